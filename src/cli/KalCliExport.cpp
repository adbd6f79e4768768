#include "KalCliExport.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"

#include <QDir>
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
    if (!output.isEmpty() && QFileInfo(output).absoluteFilePath() == QFileInfo(file).absoluteFilePath()) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Mängelliste kann nicht in die Projektdatei selbst geschrieben werden."));
        return Failed;
    }
    // Dates in the notation the program uses.
    QLocale::setDefault(KalSettings::chosenLocale());

    QByteArray csv;
    QString error;
    bool read = false;
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        if (!db.isOpen())
            error = tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2").arg(nativeFile, db.lastError().text());
        else if (!isProject(db))
            error = tr("Die Datei\n%1\nist keine Pellwick-Projektdatei.").arg(nativeFile);
        else
            read = KalDefectCsv::fromDatabase(db, columns, KalCompanyFormat::load(), &csv, &error);
    });
    if (!read) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return Failed;
    }

    if (output.isEmpty()) {
        const bool written = std::fwrite(csv.constData(), 1, size_t(csv.size()), stdout) == size_t(csv.size());
        if (std::fflush(stdout) != 0 || !written) {
            KalPrompt::critical(tr("Dateifehler"), tr("Die Mängelliste konnte nicht ausgegeben werden."));
            return Failed;
        }
        return Success;
    }
    if (!KalDefectCsv::writeFile(output, csv, &error)) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return Failed;
    }
    return Success;
}
