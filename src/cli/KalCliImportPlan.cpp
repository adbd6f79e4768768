#include "KalCliImportPlan.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/plans/KalPlans.h"
#include "core/project/KalProject.h"

using namespace KalCli;

int kalCliImportPlan(const QString &file, const QStringList &options)
{
    // The plan file comes first; a name may begin with a single "-".
    if (options.isEmpty() || options.first().startsWith(QLatin1String("--")))
        return usageError(QStringLiteral("import-plan needs a plan file"));
    const QString plan = options.first();
    const Options parsed = parseOptions(options.mid(1), {QStringLiteral("--name")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    const QString name = parsed.values.value(QStringLiteral("--name"));
    if (parsed.values.contains(QStringLiteral("--name")) && name.trimmed().isEmpty())
        return usageError(QStringLiteral("--name needs a text"));
    if (fileMissing(file) || fileMissing(plan))
        return Failed;

    KalProject project;
    if (!kalCliOpenForWriting(project, file))
        return Failed;
    const qint64 id = KalPlans(&project).addFile(plan, name);
    const int saved = id > 0 ? project.saveProject() : int(KalProject::NotSaved);
    project.closeProject();
    if (saved != KalProject::Saved)
        return Failed;
    out(QString::number(id));
    return Success;
}
