#pragma once

#include "core/import/KalDataImportResult.h"
#include "core/import/KalSiteJournalDataImport.h"

#include <QObject>

class KalProject;
class KalProjectFileCommands;
class QWidget;

// The site-journal and app imports as the main window offers them: the
// checks before any import (the project saved, the journal known and
// present, nobody working on it), the dialogs of each kind of import, the
// run with its progress window, the result and the offer to save.
class KalSiteJournalImportCommands : public QObject
{
    Q_OBJECT

public:
    KalSiteJournalImportCommands(KalProject *project, KalProjectFileCommands *fileCommands, QWidget *dialogParent);

    // "Mängel und Firmen aus einem Bautagebuch importieren".
    KalDataImportResult initialImport();
    // "Mängel und Firmen aus dem Bautagebuch aktualisieren".
    KalDataImportResult updateImport();
    // "Mängel und Firmen aus der Quellor App importieren".
    KalDataImportResult importFromApp();
    // The site-journal program hands over `journalPath` (connect modes 101
    // and 102): imported as a first import, or as an update when the project
    // is linked to it already; linked to another journal, the user is asked
    // before the link moves.
    KalDataImportResult importGivenJournal(const QString &journalPath);
    // At opening, as the project's `automaticImportMode` asks (1 new records,
    // 2 with updates). Its problems are reported; the project stays open.
    KalDataImportResult automaticImport();

    // Writes `automaticImportMode` (0, 1, 2) into the project.
    bool setAutomaticImportMode(int mode);

    // The linked journal (`siteJournalDatabasePath`); empty when none.
    QString linkedJournal() const;
    QString metaValue(const QString &key) const;

    // The steps before any import, in their order. Each returns false (the
    // reason was shown) when the import must not start.
    // 1 and 2: a never-saved or changed project is saved first.
    bool saveFirst(const QString &title);
    // 3: the linked journal, or one the user chooses when there is none or
    // it is missing; empty when the user cancelled.
    QString journalToImport(const QString &title);
    // 4: nobody else works on the journal; this user is asked to save there.
    bool lockAllows(const QString &journalPath);

    static QString siteJournalTitle();
    static QString updateTitle();

signals:
    // Rows, the link or the automatic-import choice may have changed.
    void importFinished();

private:
    QString chooseJournal(const QString &startPath);
    KalDataImportResult run(const QString &journalPath, KalSiteJournalDataImport::Mode mode,
                            int automaticImportMode = -1, bool quietWhenUnchanged = false);
    KalDataImportResult runInitial(const QString &journalPath);
    KalDataImportResult runUpdate(const QString &journalPath);
    void showResult(const KalDataImportResult &result, const QString &title);

    KalProject *m_project;
    KalProjectFileCommands *m_fileCommands;
    QWidget *m_dialogParent;
};
