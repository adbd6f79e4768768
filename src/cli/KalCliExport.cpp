#include "KalCliExport.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlDatabase>
#include <QSqlError>
#include <cstdio>

using namespace KalCli;

namespace {

bool isProject(const QSqlDatabase &db)
{
    const QMap<QString, QString> tables = KalDatabaseSchema::tableMap(db);
    for (const char *table : {"defect", "company", "status", "plan_info"}) {
        if (!tables.contains(QLatin1String(table)))
            return false;
    }
    return true;
}

} // namespace

int kalCliExportDefects(const QString &file, const QStringList &options)
{
    const Options parsed = parseOptions(options, {QStringLiteral("--output"), QStringLiteral("--columns")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    const QString output = parsed.values.value(QStringLiteral("--output"));
    const QString columnSet = parsed.values.value(QStringLiteral("--columns"), QStringLiteral("compact"));
    if (parsed.values.contains(QStringLiteral("--output")) && output.isEmpty())
        return usageError(QStringLiteral("--output needs a value"));
    KalDefectCsv::Columns columns = KalDefectCsv::Compact;
    if (columnSet == QLatin1String("all"))
        columns = KalDefectCsv::All;
    else if (columnSet != QLatin1String("compact"))
        return usageError(QStringLiteral("--columns takes compact or all, not '%1'").arg(columnSet));

    const QString nativeFile = QDir::toNativeSeparators(file);
    if (fileMissing(file))
        return Failed;
    // Links are followed as the write would follow them: a link to the
    // project, its journal or a backup must not turn into a CSV file.
    if (!output.isEmpty() && KalDefectCsv::belongsToProject(output, file)) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Mängelliste kann nicht in die Projektdatei selbst oder eine ihrer Begleitdateien "
                               "geschrieben werden:\n%1")
                                .arg(QDir::toNativeSeparators(output)));
        return Failed;
    }
    // Dates in the notation the program uses.
    QLocale::setDefault(KalSettings::chosenLocale());

    QString error;
    bool written = false;
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        if (!db.isOpen()) {
            error = tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2").arg(nativeFile, db.lastError().text());
            return;
        }
        if (!isProject(db)) {
            error = tr("Die Datei\n%1\nist keine Pellwick-Projektdatei.").arg(nativeFile);
            return;
        }
        const KalCompanyFormat format = KalCompanyFormat::load();
        const auto write = [&](QIODevice *out, QString *errorText) {
            return KalDefectCsv::writeDatabase(db, columns, format, out, errorText);
        };
        if (!output.isEmpty()) {
            // Into a temporary file beside the resolved target, renamed over it when complete.
            written = KalDefectCsv::writeFile(KalDefectCsv::resolvedPath(output), write, &error);
            return;
        }
        QFile out;
        written = out.open(stdout, QIODevice::WriteOnly) && write(&out, &error) && out.flush();
        if (!written && error.isEmpty())
            error = tr("Die Mängelliste konnte nicht ausgegeben werden.");
    });
    if (!written) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return Failed;
    }
    return Success;
}
