#pragma once

#include "core/import/KalDataImportConflictResolver.h"
#include "core/import/KalDataImportQuestions.h"
#include "core/import/KalDataImportResult.h"
#include "core/import/KalSiteJournalDataImport.h"
#include "core/import/KalSiteJournalFile.h"
#include "core/import/KalSiteJournalImportState.h"
#include "core/import/KalSiteJournalImportWriter.h"

#include <QHash>
#include <QMap>
#include <QSet>

class KalProject;
class KalProgress;

// One journal file written into the project in one transaction: the rules
// of a first import and of an update, the questions and the matching.
class KalSiteJournalImportRun
{
    Q_DECLARE_TR_FUNCTIONS(KalSiteJournalDataImport)

public:
    struct Settings
    {
        KalSiteJournalDataImport::Mode mode = KalSiteJournalDataImport::Mode::Initial;
        QString linkKey; // meta key that names the file afterwards
        QString linkValue;
        int automaticImportMode = -1;
        // Reports below this id belong to a predecessor file; -1 leaves the stored value.
        qint64 minReportId = -1;
        bool weighDeletions = true;
    };

    KalSiteJournalImportRun(KalProject *project, KalProgress *progress, KalDataImportConflictResolver *resolver,
                            KalDataImportQuestions *questions, KalDataImportResult *result);

    // False with the result's outcome and text set; the project is then as before.
    bool execute(const KalSiteJournalFile &file, const Settings &settings);

private:
    using Tomb = KalSiteJournalImportState::Tomb;
    using ProjectDefect = KalSiteJournalImportState::Defect;
    using ProjectPhoto = KalSiteJournalImportState::Photo;

    bool loadProject();
    bool importCompanies();
    bool importReports();
    bool importDefect(const KalSiteJournalFile::Defect &defect, const KalSiteJournalFile::Report &report,
                      qint64 reportRowId, bool reportKnown, QList<qint64> *orphans);
    // `orphans`: old journal ids of project defects of the report whose
    // journal counterpart is gone. Returns the one the journal defect takes
    // over (removed from `orphans`), or -1 for a new defect.
    qint64 matchDefect(const KalSiteJournalFile::Defect &defect, const KalSiteJournalFile::Report &report,
                       QList<qint64> *orphans);
    bool importPhotos(qint64 journalDefectId, qint64 projectDefectId, bool defectIsNew);
    bool importPhoto(const KalSiteJournalFile::Photo &photo, qint64 projectDefectId, bool *imported);
    bool updatePhoto(const KalSiteJournalFile::Photo &photo, const ProjectPhoto &known);
    bool relinkPhoto(const KalSiteJournalFile::Photo &photo, qint64 projectDefectId, bool *relinked);
    // Whether both pictures could be looked at; `same` then tells whether
    // they are the same bytes (size and thumbnail, without decoding).
    bool comparePictures(qint64 projectImageId, qint64 journalImageId, bool *same);
    bool deletedInJournal();
    bool closedReportCompanies();
    bool writeLink();
    bool canceled();
    bool fail(const QString &what);
    QVariant projectCompanyFor(qint64 journalCompanyId) const;
    QString defectLine(const QVariantMap &values) const;
    // Whether records deleted on one side are weighed (asked about, deleted or restored).
    bool updates() const;
    bool newOnly() const;
    bool inScope(const KalSiteJournalFile::Report &report) const;

    KalProject *m_project;
    KalProgress *m_progress;
    KalDataImportConflictResolver *m_resolver;
    KalDataImportQuestions *m_questions;
    KalDataImportResult *m_result;
    KalSiteJournalImportWriter m_writer;
    const KalSiteJournalFile *m_file = nullptr;
    Settings m_settings;
    qint64 m_minReportId = 0;

    KalSiteJournalImportState m_state;       // the project's imported rows, read at the start
    QHash<qint64, qint64> m_companyMap;      // journal company -> project company
    QSet<qint64> m_journalDefectIds;         // every journal defect id of the file
    QSet<qint64> m_claimed;                  // project defects matched this run
    QHash<qint64, QList<qint64>> m_photosOf; // journal defect -> its photos (indexes)
    QSet<qint64> m_touchedDefects;           // project defects whose photos changed
    QSet<qint64> m_journalPhotoIds;
    QHash<qint64, QList<qint64>> m_vanishedPhotos; // project defect -> old journal ids no longer in the file
    QSet<qint64> m_relinkedPhotos;                 // of those, the ones a new journal record took over
    QSet<qint64> m_presentReports;                 // project report rows the file still has
    bool m_canceled = false;
    int m_done = 0;
    int m_total = 0;
};
