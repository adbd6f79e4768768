#include "KalCliExport.h"

#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlError>
#include <cstdio>

namespace {

enum ExitCode { Success = 0, Failed = 1, Usage = 2 };

QString tr(const char *text)
{
    return QCoreApplication::translate("KalCli", text);
}

int usageError(const QString &text)
{
    std::fprintf(stderr,
                 "pellwick-cli: %s\n\nUsage: pellwick-cli export-defects FILE.pwp [--output OUT.csv] "
                 "[--columns compact|all]\n",
                 text.toLocal8Bit().constData());
    return Usage;
}

// The date notation the program uses: the language and country of the settings.
void applyChosenLocale()
{
    const QLocale system = QLocale::system();
    QSettings settings;
    const auto language = QLocale::Language(settings.value(QStringLiteral("Language"), int(system.language())).toInt());
    const auto country = QLocale::Country(settings.value(QStringLiteral("Country"), int(system.country())).toInt());
    QLocale::setDefault(QLocale(language, country));
}

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

int kalCliExportDefects(const QStringList &args)
{
    if (args.isEmpty() || args.first().startsWith(QLatin1String("--")))
        return usageError(QStringLiteral("export-defects needs a project file"));
    const QString file = args.first();
    QString output;
    KalDefectCsv::Columns columns = KalDefectCsv::Compact;
    for (int i = 1; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--output") || arg == QLatin1String("--columns")) {
            if (i + 1 >= args.size() || args.at(i + 1).isEmpty())
                return usageError(QStringLiteral("%1 needs a value").arg(arg));
            const QString value = args.at(++i);
            if (arg == QLatin1String("--output")) {
                output = value;
            } else if (value == QLatin1String("compact")) {
                columns = KalDefectCsv::Compact;
            } else if (value == QLatin1String("all")) {
                columns = KalDefectCsv::All;
            } else {
                return usageError(QStringLiteral("--columns takes compact or all, not '%1'").arg(value));
            }
        } else {
            return usageError(QStringLiteral("unknown argument '%1'").arg(arg));
        }
    }

    const QString nativeFile = QDir::toNativeSeparators(file);
    if (!QFileInfo(file).isFile()) {
        KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nexistiert nicht.").arg(nativeFile));
        return Failed;
    }
    if (!output.isEmpty() && QFileInfo(output).absoluteFilePath() == QFileInfo(file).absoluteFilePath()) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Mängelliste kann nicht in die Projektdatei selbst geschrieben werden."));
        return Failed;
    }
    applyChosenLocale();

    const QString connection = QStringLiteral("CLIEXPORT");
    QByteArray csv;
    QString error;
    bool read = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(file);
        // Read-only: exporting never leaves a working copy or changes a byte.
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=500"));
        if (!db.open()) {
            error = tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2").arg(nativeFile, db.lastError().text());
        } else {
            KalDatabaseSchema::applySafetyPragmas(db);
            if (!isProject(db))
                error = tr("Die Datei\n%1\nist keine Pellwick-Projektdatei.").arg(nativeFile);
            else
                read = KalDefectCsv::fromDatabase(db, columns, KalCompanyFormat::load(), &csv, &error);
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
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
