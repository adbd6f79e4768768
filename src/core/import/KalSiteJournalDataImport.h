#pragma once

#include "core/import/KalDataImportResult.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>

class KalProject;
class KalPrompt;
class KalProgress;
class KalDataImportConflictResolver;
class KalDataImportQuestions;
class KalSiteJournalFile;

// Copies the defects, photos and companies of a site journal (".sjd", or a
// file exported by the mobile app) into the open project and keeps them in
// step on later runs.
//
// The journal is opened as "SITE_JOURNAL_DB" read-only with
// trusted_schema=OFF, cell_size_check=ON and locking_mode=EXCLUSIVE, and
// read at once so the lock is taken; it is held until the run ends. A hot
// rollback journal or WAL mode stops the run with a message, changing
// nothing. Each file is written in one counted transaction of the project,
// its link in `meta` included: a failure or a cancel leaves the project
// exactly as before that file (rows, `meta`, modified flag, models).
// The project is never compacted here; that stays the user's choice.
//
// Column mapping (journal -> project). Project ids always come from the
// project's `id_generator`; journal ids go only into `site_journal_id`.
//   company (category "2" only; "-2" = deleted in the journal, others ignored)
//     type, firstname, lastname, company, street, plz, city, telephone,
//     telefax, mobile, email -> same columns; id -> site_journal_id;
//     pos after the last company; modified 0.
//   entry -> imported_report
//     id -> site_journal_id; number, user_id, creation_date, exported_by_app,
//     import_version -> same; locked '1' -> 1, anything else -> 0.
//   entry_progress, type 4 -> defect
//     id -> site_journal_id; number, description, roomname, roombook_number,
//     correction_date -> same; date -> creation_date (else the report's
//     inspection_date); the report's user_id -> user_id; company_id -> the
//     project company imported from that journal company (none when -1,
//     dangling or not a trade); imported_report_id -> the report's row;
//     image_cnt = photos actually imported; priority "Normal", status 0,
//     no plan. Journal dates that are not ISO ("31.12.2023") are read as
//     German dates; anything else is left empty.
//   entry_progress, type 2 -> photo_info, entry_photo -> caption/date,
//     image -> image
//     the type-2 row's id -> site_journal_id; relation_id -> defect_id of the
//     project defect from that journal defect; pictures that already meet
//     the storage rule (JPEG "image/jpeg" within "Foto/Imagesize", thumbnail
//     within 240, no turning orientation) are taken byte for byte after a
//     header check; others go through KalPictureStore; more than 100
//     megapixels, unreadable or missing pictures are skipped and named.
//   closed reports (locked '1'): their companies -> imported_closed_report_company.
//   The project table `kal` is never touched.
//
// Update rules: a record is new when its journal id is in no project row
// and no tombstone; a changed journal record overwrites the project row
// unless that row was changed here (`site_journal_data_modified`, or
// `modified` for companies); records deleted on one side are deleted or
// restored after a question with an "Alle weiteren ... genauso behandeln"
// box that holds for the rest of the run. Answers are kept in
// `delete_on_import` / `restore_on_import`; a kept "Nein" is not asked again.
// Re-importing an unchanged journal writes nothing and asks nothing.
// Photos: caption and date are compared; the picture only when the journal
// marks the item `modified`, and then by byte count and thumbnail, never by
// decoding. Questions about deletions and restores are asked in Update and
// App mode only; Initial and NewOnly never delete or restore anything.
//
// Matching before a conflict (see KalDataImportConflictResolver): by
// journal id; then, within an already imported report, the one project
// defect with the same number whose journal counterpart is gone.
//
// Successors: a file whose `exportedTo` names another file is imported,
// the project saved, and the successor imported with
// `siteJournalMinReportId` = the old file's "entry" counter + 1: reports
// below it came from the old file and are neither imported again nor
// offered for deletion. A missing successor, or a cycle, ends the chain
// with a message after the file at hand.
//
// App exports share the journal's id space: reports keep their origin
// (`exported_by_app` = 1 for the app), and a file never updates or
// deletes the reports of the other origin. A report missing from an app
// export is not taken as deleted (an export carries only what it exports).
//
// Messages: every failure, question and notice is shown by the engine
// through the prompt it was given (SQL errors through the shared report,
// class "KalSiteJournalDataImport"); the caller shows only the result
// text and offers saving.
class KalSiteJournalDataImport
{
    Q_DECLARE_TR_FUNCTIONS(KalSiteJournalDataImport)

public:
    enum class Mode {
        Initial, // first import of a newly linked journal: link, choice, everything
        Update,  // later runs on the linked journal: every rule
        NewOnly, // "Nur neue Mängel und Firmen importieren": new records only
        App,     // a file exported by the mobile app: every rule, its path in
                 // `appImportlDatabasePath`, the journal link unchanged
    };

    static QString connectionName() { return QStringLiteral("SITE_JOURNAL_DB"); }

    // Null prompt/progress: the installed KalPrompt/KalProgress instances.
    // Null resolver: every conflict is imported as a new defect.
    KalSiteJournalDataImport(KalProject *project, KalPrompt *prompt = nullptr, KalProgress *progress = nullptr,
                             KalDataImportConflictResolver *resolver = nullptr);
    ~KalSiteJournalDataImport();

    // Initial mode writes this as `automaticImportMode` (0 off, 1 new
    // records at opening, 2 new records and updates); -1 (the default)
    // leaves the stored choice alone.
    void setAutomaticImportMode(int mode) { m_automaticImportMode = mode; }

    // Whether run() checks the lock marker of each file first (see
    // KalSiteJournalLockMarker::confirm). On by default.
    void setCheckLockMarker(bool check) { m_checkLockMarker = check; }

    // Whether Update and App runs look at records deleted on one side (ask,
    // delete or restore, and keep the answer). Off, such records are left
    // as they are and nothing is remembered for them, so a later run still
    // asks: for callers that cannot ask anyone. On by default.
    void setWeighDeletions(bool weigh) { m_weighDeletions = weigh; }

    // Imports `journalPath`. Initial and Update/NewOnly link the project to
    // the file (`siteJournalDatabasePath`) in the same transaction. In
    // Initial mode a predecessor named by the file's `exportedFrom` is
    // offered first (one step back; taking it imports the predecessor,
    // saves the project and goes on with the chosen file). In Initial,
    // Update and NewOnly a successor named by `exportedTo` is announced, the
    // file is imported, the project saved, relinked and the successor
    // imported (chains are followed, cycles and missing files end with a
    // message). The project is not saved at the end: the caller offers
    // "Jetzt speichern" / "Später speichern". The project must have a file
    // (saved once) when successors are to be followed.
    KalDataImportResult run(const QString &journalPath, Mode mode);

private:
    // Imports `first` and, when asked to, the successors it names. Counts
    // and files are added to `result`.
    void importChain(const QString &first, Mode mode, bool announceSuccessor, KalDataImportResult *result,
                     KalDataImportQuestions *questions);
    bool offerPredecessor(const QString &journalPath, QString *predecessor);
    bool confirmLock(const QString &journalPath);
    // The file `exportedTo` names, found; empty (after a message) when it is
    // missing or was imported in this chain already.
    QString successorOf(const KalSiteJournalFile &file, const QSet<QString> &visited);
    // The successor announcement; true for OK.
    bool announce();
    KalProject *m_project;
    KalPrompt *m_prompt;
    KalProgress *m_progress;
    KalDataImportConflictResolver *m_resolver;
    int m_automaticImportMode = -1;
    bool m_weighDeletions = true;
    bool m_checkLockMarker = true;
    QSet<QString> m_confirmed;
};
