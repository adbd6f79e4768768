#include "KalPlans.h"

#include "core/plans/KalPlanRasteriser.h"
#include "core/plans/KalPlanReference.h"
#include "core/plans/KalPlanTransform.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>
#include <cstring>

namespace {

void showFailure(const QString &title, const QString &text, const QString &detail)
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Critical;
    message.title = title;
    message.text = text;
    message.detailText = detail;
    KalPrompt::ask(message);
}

QString shown(const QString &file)
{
    return QDir::toNativeSeparators(file);
}

bool readFile(const QString &path, QByteArray *data, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    *data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        *error = file.errorString();
        return false;
    }
    if (data->isEmpty()) {
        *error = KalPlans::tr("Die Datei ist leer.");
        return false;
    }
    return true;
}

bool exec(QSqlQuery &query, QString *error)
{
    if (query.exec())
        return true;
    *error = query.lastError().text();
    return false;
}

// A question with OK and Abort and no default button; true for OK.
bool okAbort(const QString &title, const QString &text)
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = title;
    message.text = text;
    message.buttons = {{KalPrompt::Ok, {}}, {KalPrompt::Abort, {}}};
    message.defaultButton = -1;
    message.escapeButton = 1;
    return KalPrompt::ask(message) == 0;
}

} // namespace

KalPlans::KalPlans(KalProject *project)
    : m_project(project)
{
}

bool KalPlans::isPdf(const QString &file)
{
    return QFileInfo(file).suffix().toUpper() == QLatin1String("PDF");
}

KalPlans::Prepared KalPlans::preparePicture(const QString &file, KalStoredPicture *picture, QDate *date)
{
    const QString failTitle = tr("Fehler Plan Import");
    const QString failText = tr("Der Plan %1 konnte nicht importiert werden.").arg(shown(file));
    const int limit = KalPictureStore::sizeLimit(KalPictureStore::Kind::Plan);
    const QFileInfo info(file);
    QString error;
    QByteArray data;
    if (!info.isFile()) {
        showFailure(failTitle, failText, tr("Die Datei existiert nicht."));
        return Failed;
    }
    if (isPdf(file)) {
        KalPlanRasteriser rasteriser;
        const KalPlanRasteriser::Result page = rasteriser.rasterise(file, limit);
        switch (page.outcome) {
        case KalPlanRasteriser::Done:
            break;
        case KalPlanRasteriser::CopyFailed:
            showFailure(tr("Dateifehler"),
                        tr("Die PDF-Datei %1 konnte nicht in den Temp-Ordner kopiert werden.").arg(shown(file)),
                        page.detail);
            return Failed;
        case KalPlanRasteriser::StartFailed:
            showFailure(tr("PDF-Fehler"),
                        tr("Die PDF-Konvertierung konnte nicht gestartet werden.\nDie PDF-Datei %1 wurde nicht "
                           "importiert.")
                            .arg(shown(file)),
                        page.detail);
            return Failed;
        case KalPlanRasteriser::Canceled:
            return Canceled;
        case KalPlanRasteriser::Failed:
            showFailure(failTitle, failText, page.detail);
            return Failed;
        }
        if (!readFile(page.jpegPath, &data, &error)) {
            showFailure(failTitle, failText, error);
            return Failed;
        }
        // A PDF carries no picture date: the file's own date stands for the plan's.
        *date = info.lastModified().date();
    } else {
        if (!readFile(file, &data, &error)) {
            showFailure(failTitle, failText, error);
            return Failed;
        }
        const QDateTime taken = KalPictureStore::exifDateTaken(data);
        *date = taken.isValid() ? taken.date() : info.lastModified().date();
    }
    const QImage fitted = KalPictureStore::decodeFitted(data, limit, &error);
    if (fitted.isNull() || !KalPictureStore::prepare(fitted, picture, &error)) {
        showFailure(failTitle, failText, error);
        return Failed;
    }
    return Ready;
}

KalPlans::Import KalPlans::addFiles(const QStringList &files)
{
    Import result;
    for (const QString &file : files) {
        const qint64 id = addFile(file);
        if (id > 0) {
            result.planInfoIds << id;
            continue;
        }
        result.failed << file;
        if (id == -2) {
            result.canceled = true;
            break;
        }
    }
    return result;
}

qint64 KalPlans::addFile(const QString &file, const QString &name, const QDate &givenDate)
{
    KalStoredPicture picture;
    QDate date;
    const Prepared prepared = preparePicture(file, &picture, &date);
    if (givenDate.isValid())
        date = givenDate;
    if (prepared != Ready)
        return prepared == Canceled ? -2 : -1;
    const QString planName = name.isEmpty() ? QFileInfo(file).completeBaseName() : name;
    qint64 planInfoId = -1;
    QString error;
    if (!writeNewSheet(picture, planName, date, &planInfoId, &error)) {
        showFailure(tr("Fehler Plan Import"), tr("Der Plan %1 konnte nicht importiert werden.").arg(shown(file)),
                    error);
        return -1;
    }
    m_project->markModified();
    reselectModels();
    return planInfoId;
}

bool KalPlans::writeNewSheet(const KalStoredPicture &picture, const QString &name, const QDate &date,
                             qint64 *planInfoId, QString *error)
{
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    KalPictureStore store(m_project->database(), KalPictureStore::Kind::Plan);
    const qint64 planId = store.insertPrepared(picture, error);
    const qint64 id = planId > 0 ? m_project->nextId(QStringLiteral("plan_info")) : -1;
    bool ok = id > 0;
    if (planId > 0 && id <= 0)
        *error = tr("Keine neue Plannummer.");
    if (ok) {
        QSqlQuery query(m_project->database());
        query.prepare(QStringLiteral(
            "INSERT INTO plan_info (id, plan_name, plan_index, date, plan_id, pos) VALUES (:id, :plan_name, '', "
            ":date, :plan_id, (SELECT IFNULL(MAX(pos), 0) + 1 FROM plan_info))"));
        query.bindValue(QStringLiteral(":id"), id);
        query.bindValue(QStringLiteral(":plan_name"), name);
        query.bindValue(QStringLiteral(":date"), date);
        query.bindValue(QStringLiteral(":plan_id"), planId);
        ok = exec(query, error);
    }
    if (!ok || !m_project->commitTransaction()) {
        if (ok)
            *error = m_project->database().lastError().text();
        m_project->rollbackTransaction();
        return false;
    }
    *planInfoId = id;
    return true;
}

bool KalPlans::newVersion(qint64 planInfoId, const QString &file)
{
    KalStoredPicture picture;
    QDate date;
    if (preparePicture(file, &picture, &date) != Ready)
        return false;
    QString error;
    if (!writeNewVersion(planInfoId, picture, date, &error)) {
        showFailure(tr("Fehler Plan Import"), tr("Der Plan %1 konnte nicht importiert werden.").arg(shown(file)),
                    error);
        return false;
    }
    m_project->markModified();
    reselectModels();
    return true;
}

bool KalPlans::loadVersion(const QString &file, Version *version)
{
    return preparePicture(file, &version->picture, &version->date) == Ready;
}

bool KalPlans::storeVersion(qint64 planInfoId, const Version &version, const QTransform &mapping)
{
    QString error;
    if (!writeNewVersion(planInfoId, version.picture, version.date, &error, &mapping)) {
        showFailure(tr("Fehler Plan Import"), tr("Die neue Planversion konnte nicht gespeichert werden."), error);
        return false;
    }
    m_project->markModified();
    reselectModels();
    return true;
}

bool KalPlans::writeNewVersion(qint64 planInfoId, const KalStoredPicture &picture, const QDate &date, QString *error,
                               const QTransform *mapping)
{
    QSqlDatabase db = m_project->database();
    QSqlQuery old(db);
    old.prepare(QStringLiteral("SELECT p.id, p.plan_width, p.plan_height FROM plan_info i JOIN plan p ON p.id = "
                               "i.plan_id WHERE i.id = :id"));
    old.bindValue(QStringLiteral(":id"), planInfoId);
    if (!exec(old, error))
        return false;
    if (!old.next()) {
        *error = tr("Der Plan %1 existiert nicht.").arg(planInfoId);
        return false;
    }
    const qint64 planId = old.value(0).toLongLong();
    const double oldWidth = old.value(1).toDouble();
    const double oldHeight = old.value(2).toDouble();
    old.finish();
    // Without a usable old size the rows cannot be moved sensibly: keep them.
    const double rx = oldWidth > 0 ? picture.size.width() / oldWidth : 1.0;
    const double ry = oldHeight > 0 ? picture.size.height() / oldHeight : 1.0;

    if (!m_project->beginTransaction()) {
        *error = db.lastError().text();
        return false;
    }
    KalPictureStore store(db, KalPictureStore::Kind::Plan);
    bool ok = store.updatePrepared(planId, picture, error);
    if (ok) {
        QSqlQuery query(db);
        query.prepare(QStringLiteral("UPDATE plan_info SET date = :date WHERE id = :id"));
        query.bindValue(QStringLiteral(":date"), date);
        query.bindValue(QStringLiteral(":id"), planInfoId);
        ok = exec(query, error);
    }
    if (mapping)
        ok = ok && KalPlanReference::mapRows(db, planInfoId, *mapping, error);
    else
        ok = ok && KalPlanTransform::rescaleRows(db, planInfoId, rx, ry, error);
    if (!ok || !m_project->commitTransaction()) {
        if (ok)
            *error = db.lastError().text();
        m_project->rollbackTransaction();
        return false;
    }
    return true;
}

bool KalPlans::checkOneSelected(int selected, const QString &title)
{
    if (selected == 1)
        return true;
    KalPrompt::information(title, selected < 1 ? tr("Wählen Sie zunächst per Mausklick einen Plan aus.")
                                               : tr("Sie haben mehrere Pläne ausgewählt. Wählen Sie nur einen Plan "
                                                    "aus."));
    return false;
}

bool KalPlans::askOpenEditor()
{
    return okAbort(tr("Neue Planversion laden"),
                   tr("Die neue Planversion wurde erfolgreich importiert.\nSie sollten die Lage der Marker und Texte "
                      "im Plan an den neuen Planinhalt anpassen.\n\nSoll der Planeditor jetzt geöffnet werden?\n"));
}

int KalPlans::defectCount(qint64 planInfoId) const
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT COUNT(*) FROM defect WHERE plan_info_id = :id"));
    query.bindValue(QStringLiteral(":id"), planInfoId);
    if (!query.exec() || !query.next())
        return -1;
    return query.value(0).toInt();
}

QList<qint64> KalPlans::removeAsked(const QList<qint64> &planInfoIds)
{
    QList<qint64> removed;
    if (planInfoIds.isEmpty())
        return removed;
    const bool one = planInfoIds.size() == 1;
    if (!okAbort(one ? tr("Plan löschen") : tr("Pläne löschen"),
                 one ? tr("Sie haben 1 Plan zum Löschen ausgewählt.\nSoll dieser Plan tatsächlich gelöscht werden?")
                     : tr("Sie haben %1 Pläne zum Löschen ausgewählt.\nSollen diese Pläne tatsächlich gelöscht "
                          "werden?")
                           .arg(planInfoIds.size())))
        return removed;
    for (const qint64 id : planInfoIds) {
        QSqlQuery query(m_project->database());
        query.prepare(QStringLiteral("SELECT plan_name FROM plan_info WHERE id = :id"));
        query.bindValue(QStringLiteral(":id"), id);
        const QString name = query.exec() && query.next() ? query.value(0).toString() : QString();
        const int defects = defectCount(id);
        const QString title = one ? tr("Plan löschen") : tr("Pläne löschen");
        if (defects == 1 &&
            !okAbort(title, tr("Der Plan %1 ist einem Mangel zugeordnet.\nWenn Sie den Plan löschen, wird diese "
                               "Zuordnung aufgehoben. Der Mangel ist dann nicht mehr verortet.\n\nSoll dieser "
                               "Plan tatsächlich gelöscht werden?")
                                .arg(name)))
            continue;
        if (defects > 1 &&
            !okAbort(title, tr("Der Plan %1 ist %2 Mängeln zugeordnet.\nWenn Sie den Plan löschen, werden diese "
                               "Zuordnungen aufgehoben. Die Mängel sind dann nicht mehr verortet.\n\nSoll dieser "
                               "Plan tatsächlich gelöscht werden?")
                                .arg(name)
                                .arg(defects)))
            continue;
        QString error;
        if (!remove(id, &error)) {
            showFailure(tr("Datenbankfehler"), tr("Der Plan %1 konnte nicht gelöscht werden.").arg(name), error);
            continue;
        }
        removed << id;
    }
    return removed;
}

bool KalPlans::remove(qint64 planInfoId, QString *error)
{
    static const char *const statements[] = {
        // A picture another sheet still shows (a hand-edited file) stays.
        "DELETE FROM plan WHERE id = (SELECT plan_id FROM plan_info WHERE id = :id) AND NOT EXISTS (SELECT 1 FROM "
        "plan_info o WHERE o.plan_id = plan.id AND o.id <> :other)",
        "DELETE FROM marker WHERE plan_info_id = :id",
        "DELETE FROM marker_text WHERE plan_info_id = :id",
        "UPDATE defect SET plan_info_id = -1, plan_id = -1 WHERE plan_info_id = :id",
        "DELETE FROM plan_info WHERE id = :id",
    };
    if (!m_project->beginTransaction()) {
        *error = m_project->database().lastError().text();
        return false;
    }
    bool ok = true;
    for (const char *sql : statements) {
        QSqlQuery query(m_project->database());
        query.prepare(QLatin1String(sql));
        query.bindValue(QStringLiteral(":id"), planInfoId);
        if (std::strstr(sql, ":other"))
            query.bindValue(QStringLiteral(":other"), planInfoId);
        if (!(ok = exec(query, error)))
            break;
    }
    if (!ok || !m_project->commitTransaction()) {
        if (ok)
            *error = m_project->database().lastError().text();
        m_project->rollbackTransaction();
        return false;
    }
    m_project->markModified();
    reselectModels();
    return true;
}

KalPictureStore::ShrinkHook KalPlans::shrinkHook(QSqlDatabase db)
{
    return [db](qint64 planId, const QSize &oldSize, const QSize &newSize) {
        if (oldSize.width() <= 0 || oldSize.height() <= 0)
            return true;
        const double rx = double(newSize.width()) / oldSize.width();
        const double ry = double(newSize.height()) / oldSize.height();
        QSqlQuery sheets(db);
        sheets.prepare(QStringLiteral("SELECT id FROM plan_info WHERE plan_id = :id"));
        sheets.bindValue(QStringLiteral(":id"), planId);
        if (!sheets.exec())
            return false;
        QList<qint64> ids;
        while (sheets.next())
            ids << sheets.value(0).toLongLong();
        QString error;
        for (const qint64 id : ids) {
            if (!KalPlanTransform::rescaleRows(db, id, rx, ry, &error))
                return false;
        }
        return true;
    };
}

bool KalPlans::setInfo(qint64 planInfoId, const QString &name, const QString &index, const QDate &date, QString *error)
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral(
        "UPDATE plan_info SET plan_name = :name, plan_index = :plan_index, date = :date WHERE id = :id"));
    query.bindValue(QStringLiteral(":name"), name);
    query.bindValue(QStringLiteral(":plan_index"), index);
    query.bindValue(QStringLiteral(":date"), date);
    query.bindValue(QStringLiteral(":id"), planInfoId);
    if (!exec(query, error))
        return false;
    m_project->markModified();
    reselectModels();
    return true;
}

qint64 KalPlans::planIdOf(qint64 planInfoId) const
{
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT plan_id FROM plan_info WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), planInfoId);
    return query.exec() && query.next() ? query.value(0).toLongLong() : -1;
}

qint64 KalPlans::planInfoIdOfDefect(qint64 defectId) const
{
    QSqlQuery query(m_project->database());
    query.prepare(
        QStringLiteral("SELECT i.id FROM defect d JOIN plan_info i ON i.id = d.plan_info_id WHERE d.id = :id"));
    query.bindValue(QStringLiteral(":id"), defectId);
    return query.exec() && query.next() ? query.value(0).toLongLong() : -1;
}

bool KalPlans::assign(qint64 defectId, qint64 planInfoId, QString *error)
{
    const qint64 planId = planIdOf(planInfoId);
    if (planId < 0) {
        *error = tr("Der Plan %1 existiert nicht.").arg(planInfoId);
        return false;
    }
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("UPDATE defect SET plan_info_id = :info, plan_id = :plan WHERE id = :id"));
    query.bindValue(QStringLiteral(":info"), planInfoId);
    query.bindValue(QStringLiteral(":plan"), planId);
    query.bindValue(QStringLiteral(":id"), defectId);
    if (!exec(query, error))
        return false;
    if (query.numRowsAffected() != 1) {
        *error = tr("Der Mangel existiert nicht.");
        return false;
    }
    m_project->markModified();
    return true;
}

void KalPlans::reselectModels()
{
    // Rows were written past the models: let views show them.
    for (const char *table : {"plan_info", "marker", "marker_text"}) {
        if (KalSqlTableModel *model = m_project->model(QLatin1String(table)))
            model->select();
    }
}
