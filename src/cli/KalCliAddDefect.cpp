#include "KalCliAddDefect.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"

#include <QVariantMap>

using namespace KalCli;

namespace {

struct Field
{
    const char *option;
    const char *field;
    bool numeric; // an id
};

const Field s_fields[] = {
    {"--description", "description", false}, {"--number", "number", false},     {"--room", "roomname", false},
    {"--priority", "priority", false},       {"--company", "company_id", true}, {"--status", "status_id", true},
};

} // namespace

int kalCliAddDefect(const QString &file, const QStringList &options)
{
    QStringList names;
    for (const Field &field : s_fields)
        names << QLatin1String(field.option);
    const Options parsed = parseOptions(options, names);
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    if (!parsed.values.contains(QStringLiteral("--description")))
        return usageError(QStringLiteral("add-defect needs --description"));
    QVariantMap values;
    for (const Field &field : s_fields) {
        const QString option = QLatin1String(field.option);
        if (!parsed.values.contains(option))
            continue;
        const QString text = parsed.values.value(option);
        if (!field.numeric) {
            values.insert(QLatin1String(field.field), text);
            continue;
        }
        bool ok = false;
        const qint64 id = text.toLongLong(&ok);
        if (!ok)
            return usageError(QStringLiteral("%1 needs a numeric id").arg(option));
        values.insert(QLatin1String(field.field), id);
    }
    if (fileMissing(file))
        return Failed;

    KalProject project;
    if (!kalCliOpenForWriting(project, file))
        return Failed;
    // The same rules as a defect added in the program: defaults, number,
    // author, checked references. The reason of a refusal was shown.
    const qint64 id = KalDefects(project).add(values);
    const int saved = id > 0 ? project.saveProject() : int(KalProject::NotSaved);
    project.closeProject();
    if (saved != KalProject::Saved)
        return Failed;
    out(QString::number(id));
    return Success;
}
