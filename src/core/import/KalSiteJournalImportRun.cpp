#include "KalSiteJournalImportRun.h"

#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalSqlError.h"
#include "core/project/KalSqlTableModel.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

using Mode = KalSiteJournalDataImport::Mode;

// Values as the project stores them, for telling whether anything changed:
// NULL and empty text are the same, and so are the "no company" forms.
QString comparable(const QString &column, const QVariant &value)
{
    if (value.isNull())
        return QString();
    if (column == QLatin1String("company_id") && value.toLongLong() <= 0)
        return QString();
    return value.toString();
}

bool differs(const QVariantMap &journal, const QVariantMap &project)
{
    for (auto it = journal.constBegin(); it != journal.constEnd(); ++it) {
        if (comparable(it.key(), it.value()) != comparable(it.key(), project.value(it.key())))
            return true;
    }
    return false;
}

bool sameRecord(const KalCompanyRecord &a, const KalCompanyRecord &b)
{
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field) {
        if (a.value(field) != b.value(field))
            return false;
    }
    return true;
}

const char *const kModelTables[] = {"company",
                                    "defect",
                                    "photo_info",
                                    "image",
                                    "imported_report",
                                    "imported_closed_report_company",
                                    "deleted_site_journal_defect",
                                    "deleted_site_journal_photo_info",
                                    "deleted_site_journal_company"};

} // namespace

KalSiteJournalImportRun::KalSiteJournalImportRun(KalProject *project, KalProgress *progress,
                                                 KalDataImportConflictResolver *resolver,
                                                 KalDataImportQuestions *questions, KalDataImportResult *result)
    : m_project(project)
    , m_progress(progress)
    , m_resolver(resolver)
    , m_questions(questions)
    , m_result(result)
    , m_writer(project)
{
}

bool KalSiteJournalImportRun::updates() const
{
    return (m_settings.mode == Mode::Update || m_settings.mode == Mode::App) && m_settings.weighDeletions;
}

bool KalSiteJournalImportRun::newOnly() const
{
    return m_settings.mode == Mode::NewOnly;
}

bool KalSiteJournalImportRun::canceled()
{
    if (!m_canceled && m_progress && m_progress->wasCanceled())
        m_canceled = true;
    return m_canceled;
}

bool KalSiteJournalImportRun::fail(const QString &what)
{
    if (!m_canceled) {
        m_result->outcome = KalDataImportResult::Outcome::Failed;
        m_result->errorText = tr("Der Datenimport aus dem Bautagebuch ist fehlgeschlagen; das Projekt bleibt, wie "
                                 "es war.\n%1")
                                  .arg(m_writer.lastError());
        kalReportSqlError(QSqlError(m_writer.lastError(), QString(), QSqlError::StatementError),
                          QStringLiteral("KalSiteJournalDataImport"), what, __LINE__);
    }
    return false;
}

bool KalSiteJournalImportRun::execute(const KalSiteJournalFile &file, const Settings &settings)
{
    m_file = &file;
    m_settings = settings;
    const KalDataImportResult before = *m_result;
    const bool wasModified = m_project->isModified();
    if (!m_project->beginTransaction()) {
        m_result->outcome = KalDataImportResult::Outcome::Failed;
        m_result->errorText = tr("Der Datenimport konnte nicht begonnen werden.");
        // The counted transactions only log a failed BEGIN; the user must
        // still learn why nothing was imported.
        const QSqlError error = m_project->database().lastError();
        kalReportSqlError(error.isValid() ? error
                                          : QSqlError(m_result->errorText, QString(), QSqlError::StatementError),
                          QStringLiteral("KalSiteJournalDataImport"), QStringLiteral("execute"), __LINE__);
        return false;
    }
    bool ok = loadProject() && importCompanies() && importReports() && (!updates() || deletedInJournal()) &&
              closedReportCompanies();
    for (auto it = m_touchedDefects.constBegin(); ok && it != m_touchedDefects.constEnd(); ++it)
        ok = m_writer.setImageCount(*it) || fail(QStringLiteral("setImageCount"));
    if (ok && m_progress)
        m_progress->setText(tr("Datenbank wird aktualisiert ..."));
    ok = ok && writeLink() && (m_writer.flushIds() || fail(QStringLiteral("flushIds"))) && !canceled();
    if (ok && !m_project->commitTransaction()) {
        ok = false;
        m_result->outcome = KalDataImportResult::Outcome::Failed;
        m_result->errorText = tr("Die importierten Daten konnten nicht gespeichert werden.");
        const QSqlError error = m_project->database().lastError();
        kalReportSqlError(error.isValid() ? error
                                          : QSqlError(m_result->errorText, QString(), QSqlError::StatementError),
                          QStringLiteral("KalSiteJournalDataImport"), QStringLiteral("execute"), __LINE__);
    }
    if (!ok) {
        m_project->rollbackTransaction();
        m_project->setModified(wasModified);
        const KalDataImportResult::Outcome outcome =
            m_canceled ? KalDataImportResult::Outcome::Canceled : m_result->outcome;
        const QString error = m_result->errorText;
        *m_result = before;
        m_result->outcome = outcome;
        m_result->errorText = error;
        return false;
    }
    m_result->files << file.path();
    if (m_writer.writes() > 0) {
        m_result->written = true;
        m_project->markModified();
        if (KalProjectModels *models = m_project->models()) {
            for (const char *table : kModelTables) {
                if (KalSqlTableModel *model = models->model(QLatin1String(table)))
                    model->select();
            }
        }
    }
    return true;
}

bool KalSiteJournalImportRun::loadProject()
{
    QSqlError error;
    if (!m_state.load(m_project->database(), &error)) {
        kalReportSqlError(error, QStringLiteral("KalSiteJournalDataImport"), QStringLiteral("loadProject"), __LINE__);
        m_result->outcome = KalDataImportResult::Outcome::Failed;
        m_result->errorText = error.text();
        return false;
    }
    m_minReportId = m_settings.minReportId >= 0
                        ? m_settings.minReportId
                        : m_state.meta.value(QStringLiteral("siteJournalMinReportId")).toLongLong();
    if (m_settings.mode == Mode::App)
        m_minReportId = 0;
    for (const KalSiteJournalFile::Defect &defect : m_file->defects())
        m_journalDefectIds.insert(defect.id);
    const QVector<KalSiteJournalFile::Photo> &photos = m_file->photos();
    for (int i = 0; i < photos.size(); ++i) {
        m_photosOf[photos.at(i).relationId] << i;
        m_journalPhotoIds.insert(photos.at(i).id);
    }
    for (auto it = m_state.photos.constBegin(); it != m_state.photos.constEnd(); ++it) {
        if (!m_journalPhotoIds.contains(it.key()))
            m_vanishedPhotos[it->defectId] << it.key();
    }
    return true;
}

QVariant KalSiteJournalImportRun::projectCompanyFor(qint64 journalCompanyId) const
{
    const auto it = m_companyMap.constFind(journalCompanyId);
    return it == m_companyMap.constEnd() ? QVariant() : QVariant(it.value());
}

bool KalSiteJournalImportRun::importCompanies()
{
    if (m_progress)
        m_progress->setText(tr("Firmendaten werden importiert ..."));
    for (const KalSiteJournalFile::Company &company : m_file->companies()) {
        if (canceled())
            return false;
        const auto known = m_state.companies.constFind(company.id);
        if (company.category == QLatin1String("-2")) {
            if (known == m_state.companies.constEnd())
                continue;
            m_companyMap.insert(company.id, known->id);
            if (!updates() || known->deleteOnImport != 1)
                continue;
            if (m_questions->askCompany(KalDataImportQuestions::DeleteCompany, company.record)) {
                if (!m_writer.deleteCompany(known->id))
                    return fail(QStringLiteral("deleteCompany"));
                m_companyMap.remove(company.id);
                ++m_result->companies.deleted;
            } else if (!m_writer.setFlag(QStringLiteral("company"), QStringLiteral("delete_on_import"), known->id, 0)) {
                return fail(QStringLiteral("setFlag"));
            }
            continue;
        }
        if (company.category != QLatin1String("2"))
            continue;
        if (known != m_state.companies.constEnd()) {
            m_companyMap.insert(company.id, known->id);
            if (newOnly() || sameRecord(known->record, company.record))
                continue;
            if (known->modified) {
                // Listed only when the journal changed it too: otherwise
                // there was nothing to update.
                if (company.modified)
                    m_result->notUpdatedCompanies << known->record.displayText();
                continue;
            }
            if (!m_writer.updateCompany(known->id, company.record))
                return fail(QStringLiteral("updateCompany"));
            ++m_result->companies.updated;
            continue;
        }
        const auto tomb = m_state.companyTombs.constFind(company.id);
        if (tomb != m_state.companyTombs.constEnd()) {
            if (!updates() || tomb->restore != 1)
                continue;
            if (!m_questions->askCompany(KalDataImportQuestions::RestoreCompany, company.record)) {
                if (!m_writer.setFlag(QStringLiteral("deleted_site_journal_company"),
                                      QStringLiteral("restore_on_import"), tomb->id, 0))
                    return fail(QStringLiteral("setFlag"));
                continue;
            }
            if (!m_writer.deleteRow(QStringLiteral("deleted_site_journal_company"), tomb->id))
                return fail(QStringLiteral("deleteRow"));
            ++m_result->companies.restored;
        } else {
            ++m_result->companies.added;
        }
        const qint64 id = m_writer.insertCompany(company.id, company.record);
        if (id < 0)
            return fail(QStringLiteral("insertCompany"));
        m_companyMap.insert(company.id, id);
    }
    return true;
}

bool KalSiteJournalImportRun::inScope(const KalSiteJournalFile::Report &report) const
{
    return report.id >= m_minReportId;
}

bool KalSiteJournalImportRun::importReports()
{
    const bool appFile = m_settings.mode == Mode::App;
    QHash<qint64, QList<int>> defectsOf;
    const QVector<KalSiteJournalFile::Defect> &defects = m_file->defects();
    for (int i = 0; i < defects.size(); ++i)
        defectsOf[defects.at(i).entryId] << i;
    QList<const KalSiteJournalFile::Report *> reports;
    for (const KalSiteJournalFile::Report &report : m_file->reports()) {
        const auto known = m_state.reports.constFind(report.id);
        // The app and the journal share one id space; neither touches the
        // reports the other brought.
        if (!inScope(report) || (known != m_state.reports.constEnd() && known->fromApp != appFile))
            continue;
        reports << &report;
        m_total += defectsOf.value(report.id).size();
    }
    QHash<qint64, QList<qint64>> projectDefectsOf; // report row -> journal ids of its project defects
    for (auto it = m_state.defects.constBegin(); it != m_state.defects.constEnd(); ++it)
        projectDefectsOf[it->reportId] << it.key();
    if (m_progress)
        m_progress->setText(tr("Mängel werden importiert ..."));
    for (const KalSiteJournalFile::Report *report : qAsConst(reports)) {
        const auto known = m_state.reports.constFind(report->id);
        const bool reportKnown = known != m_state.reports.constEnd();
        qint64 rowId = reportKnown ? known->id : -1;
        if (!reportKnown) {
            rowId = m_writer.insertReport(*report);
            if (rowId < 0)
                return fail(QStringLiteral("insertReport"));
            ++m_result->reports;
        } else if (!newOnly() && (known->number != report->number || known->locked != report->locked ||
                                  known->userId != report->userId || known->creationDate != report->creationDate ||
                                  known->importVersion != report->importVersion)) {
            if (!m_writer.updateReport(rowId, *report))
                return fail(QStringLiteral("updateReport"));
        }
        m_presentReports.insert(rowId);
        // Project defects of this report whose journal counterpart is gone,
        // by their old journal id.
        QList<qint64> orphans;
        for (qint64 key : projectDefectsOf.value(rowId)) {
            if (!m_journalDefectIds.contains(key))
                orphans << key;
        }
        for (int index : defectsOf.value(report->id)) {
            if (!importDefect(defects.at(index), *report, rowId, reportKnown, &orphans))
                return false;
        }
    }
    return true;
}

QString KalSiteJournalImportRun::defectLine(const QVariantMap &values) const
{
    QString description = values.value(QStringLiteral("description")).toString().simplified();
    if (description.size() > 60)
        description = description.left(57) + QStringLiteral("...");
    return tr("Mangel %1: %2").arg(values.value(QStringLiteral("number")).toString(), description);
}

bool KalSiteJournalImportRun::importDefect(const KalSiteJournalFile::Defect &defect,
                                           const KalSiteJournalFile::Report &report, qint64 reportRowId,
                                           bool reportKnown, QList<qint64> *orphans)
{
    if (canceled())
        return false;
    ++m_done;
    if (m_progress) {
        m_progress->setText(tr("Mängel werden importiert ...") + QLatin1Char('\n') +
                            tr("Mangel %1 von %2").arg(m_done).arg(m_total));
        m_progress->setProgress(m_done, m_total);
    }
    const QVariantMap values =
        KalSiteJournalImportWriter::defectValues(defect, report, projectCompanyFor(defect.companyId), reportRowId);
    const auto known = m_state.defects.constFind(defect.id);
    if (known != m_state.defects.constEnd()) {
        m_claimed.insert(known->id);
        if (!newOnly() && differs(values, known->values)) {
            if (known->modified) {
                if (defect.modified)
                    m_result->notUpdatedDefects << defectLine(known->values);
            } else {
                if (!m_writer.updateDefect(known->id, values))
                    return fail(QStringLiteral("updateDefect"));
                ++m_result->defects.updated;
            }
        }
        return importPhotos(defect.id, known->id, false);
    }
    const auto tomb = m_state.defectTombs.constFind(defect.id);
    if (tomb != m_state.defectTombs.constEnd()) {
        if (!updates() || tomb->restore != 1)
            return true;
        if (!m_questions->askDefect(KalDataImportQuestions::RestoreDefect, defect.number)) {
            return m_writer.setFlag(QStringLiteral("deleted_site_journal_defect"), QStringLiteral("restore_on_import"),
                                    tomb->id, 0) ||
                   fail(QStringLiteral("setFlag"));
        }
        if (!m_writer.deleteRow(QStringLiteral("deleted_site_journal_defect"), tomb->id))
            return fail(QStringLiteral("deleteRow"));
        const qint64 id = m_writer.insertDefect(values);
        if (id < 0)
            return fail(QStringLiteral("insertDefect"));
        ++m_result->defects.restored;
        m_claimed.insert(id);
        return importPhotos(defect.id, id, true);
    }
    const qint64 key = reportKnown ? matchDefect(defect, report, orphans) : -1;
    if (key >= 0) {
        const ProjectDefect &project = m_state.defects[key];
        const qint64 target = project.id;
        m_claimed.insert(target);
        // A defect changed here (or any, when only new records are wanted)
        // keeps its values; it only learns its new journal id.
        QVariantMap written = project.modified || newOnly() ? project.values : values;
        written.insert(QStringLiteral("site_journal_id"), defect.id);
        written.insert(QStringLiteral("imported_report_id"), reportRowId);
        if (!m_writer.updateDefect(target, written))
            return fail(QStringLiteral("updateDefect"));
        ++m_result->defects.updated;
        return importPhotos(defect.id, target, false);
    }
    const qint64 id = m_writer.insertDefect(values);
    if (id < 0)
        return fail(QStringLiteral("insertDefect"));
    ++m_result->defects.added;
    m_claimed.insert(id);
    return importPhotos(defect.id, id, true);
}

qint64 KalSiteJournalImportRun::matchDefect(const KalSiteJournalFile::Defect &defect,
                                            const KalSiteJournalFile::Report &report, QList<qint64> *orphans)
{
    QList<qint64> candidates;
    QHash<qint64, qint64> keyOf; // project id -> old journal id
    QList<qint64> sameNumber;
    for (qint64 key : qAsConst(*orphans)) {
        const ProjectDefect &project = m_state.defects[key];
        if (m_claimed.contains(project.id))
            continue;
        candidates << project.id;
        keyOf.insert(project.id, key);
        if (project.values.value(QStringLiteral("number")).toString().trimmed() == defect.number.trimmed())
            sameNumber << project.id;
    }
    qint64 chosen = -1;
    if (sameNumber.size() == 1) {
        chosen = sameNumber.first();
    } else if (!candidates.isEmpty() && m_resolver) {
        KalDataImportConflictResolver::JournalDefect shown;
        shown.siteJournalId = defect.id;
        shown.reportNumber = report.number;
        shown.number = defect.number;
        shown.description = defect.description;
        shown.roomName = defect.roomName;
        shown.roombookNumber = defect.roombookNumber;
        for (const KalSiteJournalFile::Company &company : m_file->companies()) {
            if (company.id == defect.companyId)
                shown.company = company.record.displayText();
        }
        shown.correctionDate = defect.correctionDate;
        shown.photoCount = m_photosOf.value(defect.id).size();
        if (m_progress)
            m_progress->yieldToMessage();
        const qint64 answer = m_resolver->assign(shown, candidates);
        chosen = candidates.contains(answer) ? answer : -1;
    }
    if (chosen <= 0)
        return -1;
    orphans->removeAll(keyOf.value(chosen));
    return keyOf.value(chosen);
}

bool KalSiteJournalImportRun::importPhotos(qint64 journalDefectId, qint64 projectDefectId, bool defectIsNew)
{
    const QVector<KalSiteJournalFile::Photo> &photos = m_file->photos();
    int added = 0;
    for (int index : m_photosOf.value(journalDefectId)) {
        const KalSiteJournalFile::Photo &photo = photos.at(index);
        const auto known = m_state.photos.constFind(photo.id);
        if (!defectIsNew && known != m_state.photos.constEnd()) {
            if (!newOnly() && !updatePhoto(photo, *known))
                return false;
            continue;
        }
        const auto tomb = m_state.photoTombs.constFind(photo.id);
        if (!defectIsNew && tomb != m_state.photoTombs.constEnd()) {
            if (!updates() || tomb->restore != 1)
                continue;
            if (!m_questions->askPhoto(KalDataImportQuestions::RestorePhoto, photo.caption, photo.date)) {
                if (!m_writer.setFlag(QStringLiteral("deleted_site_journal_photo_info"),
                                      QStringLiteral("restore_on_import"), tomb->id, 0))
                    return fail(QStringLiteral("setFlag"));
                continue;
            }
            if (!m_writer.deleteRow(QStringLiteral("deleted_site_journal_photo_info"), tomb->id))
                return fail(QStringLiteral("deleteRow"));
        } else if (!defectIsNew) {
            bool relinked = false;
            if (!relinkPhoto(photo, projectDefectId, &relinked))
                return false;
            if (relinked)
                continue;
        }
        bool imported = false;
        if (!importPhoto(photo, projectDefectId, &imported))
            return false;
        if (imported && !defectIsNew && tomb != m_state.photoTombs.constEnd())
            ++m_result->photos.restored;
        else if (imported)
            ++m_result->photos.added;
        added += imported ? 1 : 0;
        if (canceled())
            return false;
    }
    // A new defect's count is known; a defect that had photos is counted
    // again at the end, after the deletions.
    if (defectIsNew && added > 0 && !m_writer.setImageCount(projectDefectId, added))
        return fail(QStringLiteral("setImageCount"));
    if (!defectIsNew && added > 0)
        m_touchedDefects.insert(projectDefectId);
    return true;
}

bool KalSiteJournalImportRun::importPhoto(const KalSiteJournalFile::Photo &photo, qint64 projectDefectId,
                                          bool *imported)
{
    KalSiteJournalFile::Picture picture;
    QString reason;
    qint64 id = 0;
    if (photo.imageId < 0 || !m_file->readPicture(photo.imageId, &picture, &reason)) {
        if (reason.isEmpty())
            reason = KalSiteJournalFile::tr("Das Bild fehlt im Bautagebuch.");
    } else {
        id = m_writer.insertPhoto(projectDefectId, photo, picture, &reason);
        if (id < 0)
            return fail(QStringLiteral("insertPhoto"));
    }
    if (id == 0) {
        const QString caption = photo.caption.trimmed().isEmpty() ? tr("Ohne Titel") : photo.caption;
        const QString date =
            photo.date.isValid() ? photo.date.toString(QStringLiteral("dd.MM.yyyy")) : tr("'Ohne Datum'");
        m_result->skippedPhotos << tr("Foto \"%1\" vom %2: %3").arg(caption, date, reason);
        return true;
    }
    *imported = true;
    return true;
}

// A journal rebuilt by its program gives its photos new ids. A photo of the
// same defect whose old record is gone from the file, with the same picture
// (told by its size and thumbnail, never by decoding), is that photo: it
// takes the new id instead of coming in twice and being asked about as
// deleted in the journal.
bool KalSiteJournalImportRun::relinkPhoto(const KalSiteJournalFile::Photo &photo, qint64 projectDefectId,
                                          bool *relinked)
{
    *relinked = false;
    for (qint64 key : m_vanishedPhotos.value(projectDefectId)) {
        if (m_relinkedPhotos.contains(key))
            continue;
        const ProjectPhoto &old = m_state.photos[key];
        bool same = false;
        if (!comparePictures(old.imageId, photo.imageId, &same) || !same)
            continue;
        if (!m_writer.setFlag(QStringLiteral("photo_info"), QStringLiteral("site_journal_id"), old.id, photo.id))
            return fail(QStringLiteral("setFlag"));
        m_relinkedPhotos.insert(key);
        *relinked = true;
        return newOnly() || updatePhoto(photo, old);
    }
    return true;
}

bool KalSiteJournalImportRun::comparePictures(qint64 projectImageId, qint64 journalImageId, bool *same)
{
    qint64 journalBytes = -1;
    QByteArray journalThumbnail;
    if (journalImageId < 0 || !m_file->readPictureKey(journalImageId, &journalBytes, &journalThumbnail))
        return false;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT length(image), thumbnail FROM image WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), projectImageId);
    if (!query.exec() || !query.next())
        return false;
    *same = query.value(0).toLongLong() == journalBytes && query.value(1).toByteArray() == journalThumbnail;
    return true;
}

bool KalSiteJournalImportRun::updatePhoto(const KalSiteJournalFile::Photo &photo, const ProjectPhoto &known)
{
    const bool textChanged = photo.caption != known.caption || photo.date != known.date;
    bool pictureChanged = false;
    bool same = true;
    if (photo.modified && comparePictures(known.imageId, photo.imageId, &same))
        pictureChanged = !same;
    if (!textChanged && !pictureChanged)
        return true;
    if (known.modified) {
        if (photo.modified)
            ++m_result->notUpdatedPhotos;
        return true;
    }
    if (textChanged && !m_writer.updatePhotoText(known.id, photo))
        return fail(QStringLiteral("updatePhotoText"));
    if (pictureChanged) {
        KalSiteJournalFile::Picture picture;
        QString reason;
        if (m_file->readPicture(photo.imageId, &picture, &reason) &&
            !m_writer.replacePicture(known.imageId, picture, &reason))
            return fail(QStringLiteral("replacePicture"));
        if (!reason.isEmpty())
            m_result->skippedPhotos << tr("Foto \"%1\": %2").arg(photo.caption, reason);
    }
    ++m_result->photos.updated;
    return true;
}
