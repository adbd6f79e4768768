#pragma once

#include <QObject>

class KalProject;
class KalRecentFiles;
class QWidget;

// The commands on the project file the main window offers: the question
// before a project is given up, save, save as, new, open, close and
// compacting. Every message and file dialog has the window as parent.
class KalProjectFileCommands : public QObject
{
    Q_OBJECT

public:
    enum MaybeSaveResult { GoOn = 0, Cancelled = 1, Failed = 2 };

    KalProjectFileCommands(KalProject *project, KalRecentFiles *recentFiles, QWidget *dialogParent);

    // Asks before the open project is given up; see MaybeSaveResult.
    int maybeSave(bool saveAs, bool explicitRequest);
    bool newProject();
    // Closes the open project (with the save question) and opens `path`.
    bool openProject(const QString &path);
    // Asks for a project file and opens it.
    void openChosenProject();
    bool closeProject(bool ask);
    // Creates a project, links it to a site-journal file when one is given
    // and saves it at once under `path`. An existing file is never replaced:
    // refused with a message.
    bool createProjectAt(const QString &path, const QString &siteJournalPath = QString());
    // Records the site-journal file the project belongs to ("meta") and
    // saves the project at once when that was its only change. False when
    // the link could not be written.
    bool linkSiteJournal(const QString &siteJournalPath);
    // Saves first where needed, then compacts the project file.
    void compactDatabase();
    // Saves in place (empty target) or under `target` without a message of
    // its own; a saved project goes to the recent list. KalProject::SaveResult.
    int saveTo(const QString &target = QString());

signals:
    // The project's file or open state may have changed (window title).
    void projectStateChanged();
    // A project file was opened (not a new or a saved one).
    void projectFileOpened();
    // Saving and compacting rebuild the models; views keep their place.
    void modelsAboutToBeRebuilt();
    void modelsRebuilt();

private:
    int saveCurrent(bool askForName);
    bool projectIsReadOnly() const;
    QString askSaveFileName(const QString &title);
    // Writes the link into the working copy; `changed` false when it was there.
    bool writeSiteJournalLink(const QString &siteJournalPath, bool *changed);

    KalProject *m_project;
    KalRecentFiles *m_recentFiles;
    QWidget *m_dialogParent;
};
