#include "KalCliPrint.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalDefectCsv.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/reports/KalDefectFilter.h"
#include "core/reports/KalPrintDefects.h"
#include "core/reports/KalPrintPerCompany.h"

#include <QDir>
#include <QSqlError>

using namespace KalCli;

namespace {

// The filter reads the stored choices and the defects, nothing else: a host
// that cannot write keeps the command read-only.
class ReadOnlyHost : public KalModelHost
{
public:
    explicit ReadOnlyHost(QSqlDatabase db)
        : m_db(db)
    {
    }
    QSqlDatabase database() const override { return m_db; }
    qint64 nextId(const QString &) override { return -1; }
    bool beginTransaction() override { return false; }
    bool commitTransaction() override { return false; }
    bool rollbackTransaction() override { return false; }
    void markModified() override {}
    KalSqlTableModel *model(const QString &) const override { return nullptr; }
    QImage imageThumbnail(qint64) const override { return QImage(); }
    QImage planThumbnail(qint64) const override { return QImage(); }

private:
    QSqlDatabase m_db;
};

bool isProject(const QSqlDatabase &db)
{
    const QMap<QString, QString> tables = KalDatabaseSchema::tableMap(db);
    for (const char *table : {"kal", "defect", "company", "status", "plan_info", "photo_info", "image"}) {
        if (!tables.contains(QLatin1String(table)))
            return false;
    }
    return true;
}

// The list to print; false when there is none (the filter has said why).
bool selection(QSqlDatabase db, bool fromProject, KalPrintOptions *options, QVector<qint64> *ids, QString *error)
{
    if (!fromProject) {
        *ids = KalPrintDefects::allByNumber(db, error);
        return error->isEmpty();
    }
    ReadOnlyHost host(db);
    KalDefectFilter filter(host);
    const KalDefectFilterState state = filter.restore();
    const KalDefectFilterResult result = filter.select(state);
    if (result.outcome != KalDefectFilterResult::Listed)
        return false;
    *ids = result.ids();
    options->photosInList = state.printPhotosInList;
    options->photoAnnex = state.printPhotosAsAnnex;
    options->planAnnex = state.printPlansAsAnnex;
    return true;
}

} // namespace

int kalCliPrint(const QString &file, const QStringList &options)
{
    const Options parsed =
        parseOptions(options, {QStringLiteral("--output"), QStringLiteral("--layout"), QStringLiteral("--per-company")},
                     {QStringLiteral("--filter-from-project")});
    if (!parsed.error.isEmpty())
        return usageError(parsed.error);
    const QString output = parsed.values.value(QStringLiteral("--output"));
    const QString folder = parsed.values.value(QStringLiteral("--per-company"));
    if (output.isEmpty() && folder.isEmpty())
        return usageError(QStringLiteral("print needs --output FILE.pdf or --per-company DIR"));
    KalPrintOptions printOptions = KalPrintOptions::fromSettings();
    const QString layout = parsed.values.value(QStringLiteral("--layout"), QStringLiteral("compact"));
    if (layout == QLatin1String("detailed"))
        printOptions.layout = KalPrintOptions::Detailed;
    else if (layout != QLatin1String("compact"))
        return usageError(QStringLiteral("--layout takes compact or detailed, not '%1'").arg(layout));
    if (fileMissing(file))
        return Failed;
    if (!output.isEmpty() && KalDefectCsv::belongsToProject(output, file)) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Mängelliste kann nicht in die Projektdatei selbst oder eine ihrer Begleitdateien "
                               "geschrieben werden:\n%1")
                                .arg(QDir::toNativeSeparators(output)));
        return Failed;
    }
    QLocale::setDefault(KalSettings::chosenLocale());

    const QString nativeFile = QDir::toNativeSeparators(file);
    const bool fromProject = parsed.flags.contains(QStringLiteral("--filter-from-project"));
    QString error;
    bool done = false;
    bool nothingListed = false; // the filter has shown its reason
    QStringList written;
    kalCliReadOnly(file, [&](QSqlDatabase &db) {
        if (!db.isOpen()) {
            error = tr("Die Datei\n%1\nkonnte nicht geöffnet werden:\n%2").arg(nativeFile, db.lastError().text());
            return;
        }
        if (!isProject(db)) {
            error = tr("Die Datei\n%1\nist keine Pellwick-Projektdatei.").arg(nativeFile);
            return;
        }
        QVector<qint64> ids;
        if (!selection(db, fromProject, &printOptions, &ids, &error)) {
            nothingListed = error.isEmpty();
            if (!nothingListed)
                error = KalPrintDefects::tr("Die Mängel konnten nicht gelesen werden.") + QLatin1Char('\n') + error;
            return;
        }
        if (!output.isEmpty()) {
            KalPrintDefects job(db, ids, printOptions);
            if (!job.writePdf(output, &error))
                return;
            written << output;
        }
        if (!folder.isEmpty() && !KalPrintPerCompany::write(db, ids, printOptions, folder, &written, &error))
            return;
        done = true;
    });
    for (const QString &path : qAsConst(written))
        out(QDir::toNativeSeparators(path));
    if (nothingListed)
        return Failed;
    if (!done) {
        KalPrompt::critical(tr("Dateifehler"), error);
        return Failed;
    }
    return Success;
}
