// The end of a file's import: records the journal deleted, companies of
// closed reports, and the link in the project's meta table.
#include "KalSiteJournalImportRun.h"

using Mode = KalSiteJournalDataImport::Mode;

bool KalSiteJournalImportRun::deletedInJournal()
{
    const bool appFile = m_settings.mode == Mode::App;
    QSet<qint64> knownFileReports;
    for (const KalSiteJournalFile::Report &report : m_file->reports())
        knownFileReports.insert(report.id);
    QSet<qint64> deletedDefects;
    // An app export carries only what it exports: a report missing from it
    // was not deleted.
    for (auto it = m_state.reports.constBegin(); !appFile && it != m_state.reports.constEnd(); ++it) {
        if (it->fromApp || it.key() < m_minReportId || knownFileReports.contains(it.key()) || it->deleteOnImport != 1)
            continue;
        if (!m_questions->askReport(it->number)) {
            if (!m_writer.setFlag(QStringLiteral("imported_report"), QStringLiteral("delete_on_import"), it->id, 0))
                return fail(QStringLiteral("setFlag"));
            continue;
        }
        for (const ProjectDefect &defect : qAsConst(m_state.defects)) {
            if (defect.reportId != it->id)
                continue;
            if (!m_writer.deleteDefect(defect.id))
                return fail(QStringLiteral("deleteDefect"));
            deletedDefects.insert(defect.id);
            ++m_result->defects.deleted;
        }
        if (!m_writer.deleteReport(it->id))
            return fail(QStringLiteral("deleteReport"));
    }
    for (const ProjectDefect &defect : qAsConst(m_state.defects)) {
        if (!m_presentReports.contains(defect.reportId) || m_claimed.contains(defect.id) || defect.deleteOnImport != 1)
            continue;
        if (!m_questions->askDefect(KalDataImportQuestions::DeleteDefect,
                                    defect.values.value(QStringLiteral("number")).toString())) {
            if (!m_writer.setFlag(QStringLiteral("defect"), QStringLiteral("delete_on_import"), defect.id, 0))
                return fail(QStringLiteral("setFlag"));
            continue;
        }
        if (!m_writer.deleteDefect(defect.id))
            return fail(QStringLiteral("deleteDefect"));
        deletedDefects.insert(defect.id);
        ++m_result->defects.deleted;
    }
    for (auto it = m_state.photos.constBegin(); it != m_state.photos.constEnd(); ++it) {
        if (m_journalPhotoIds.contains(it.key()) || m_relinkedPhotos.contains(it.key()) ||
            !m_claimed.contains(it->defectId) || deletedDefects.contains(it->defectId) || it->deleteOnImport != 1)
            continue;
        if (!m_questions->askPhoto(KalDataImportQuestions::DeletePhoto, it->caption, it->date)) {
            if (!m_writer.setFlag(QStringLiteral("photo_info"), QStringLiteral("delete_on_import"), it->id, 0))
                return fail(QStringLiteral("setFlag"));
            continue;
        }
        if (!m_writer.deletePhoto(it->id))
            return fail(QStringLiteral("deletePhoto"));
        m_touchedDefects.insert(it->defectId);
        ++m_result->photos.deleted;
    }
    return !canceled();
}

bool KalSiteJournalImportRun::closedReportCompanies()
{
    for (qint64 journalId : m_file->closedReportCompanies()) {
        const auto it = m_companyMap.constFind(journalId);
        if (it == m_companyMap.constEnd())
            continue;
        const QString key = QString::number(journalId) + QLatin1Char(':') + QString::number(it.value());
        if (m_state.closedPairs.contains(key))
            continue;
        if (!m_writer.addClosedReportCompany(journalId, it.value()))
            return fail(QStringLiteral("closedReportCompanies"));
        m_state.closedPairs.insert(key);
    }
    return true;
}

bool KalSiteJournalImportRun::writeLink()
{
    QList<QPair<QString, QString>> values;
    if (!m_settings.linkKey.isEmpty())
        values << qMakePair(m_settings.linkKey, m_settings.linkValue);
    if (m_settings.mode == Mode::Initial && m_settings.automaticImportMode >= 0)
        values << qMakePair(QStringLiteral("automaticImportMode"), QString::number(m_settings.automaticImportMode));
    if (m_settings.mode != Mode::App && m_settings.minReportId >= 0)
        values << qMakePair(QStringLiteral("siteJournalMinReportId"), QString::number(m_settings.minReportId));
    for (const auto &value : qAsConst(values)) {
        const auto stored = m_state.meta.constFind(value.first);
        if (stored != m_state.meta.constEnd() && stored.value() == value.second)
            continue;
        if (!m_writer.setMeta(value.first, value.second))
            return fail(QStringLiteral("writeLink"));
    }
    return true;
}
