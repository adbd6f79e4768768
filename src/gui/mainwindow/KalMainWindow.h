#pragma once

#include "gui/mainwindow/KalProjectFileCommands.h"

#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QModelIndex>
#include <QStringList>
#include <QVariant>
#include <QVector>

class KalDefectTableLayout;
class KalSiteJournalImportCommands;
class KalPlanPanel;
class KalProject;
class KalRecentFiles;
class KalSqlTableModel;
class KalTableView;
class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QSplitter;
class QToolBar;

// The program's only top-level window: the defect list of the open project,
// the plan of the current defect beside it, and every command the user starts.
// A project is always open while the window exists.
class KalMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum MaybeSaveResult {
        GoOn = KalProjectFileCommands::GoOn,
        Cancelled = KalProjectFileCommands::Cancelled,
        Failed = KalProjectFileCommands::Failed
    };

    explicit KalMainWindow(QWidget *parent = nullptr);
    ~KalMainWindow() override;

    KalProject *project() const { return m_project; }
    KalTableView *defectTable() const { return m_tvDefects; }
    KalSqlTableModel *defectModel() const;

    // Asks before the open project is given up; see MaybeSaveResult.
    int maybeSave(bool saveAs, bool explicitRequest);
    bool newProject();
    // Closes the open project (with the save question) and opens `path`;
    // then runs the automatic import the project asks for, unless told not to.
    bool openProject(const QString &path, bool automaticImport = true);
    bool closeProject(bool ask);
    // Creates a project, links it to a site-journal file when one is given
    // and saves it at once under `path`; never replaces an existing file.
    bool createProjectAt(const QString &path, const QString &siteJournalPath = QString());

    QStringList recentFiles() const;
    void addRecentFile(const QString &path);
    void removeRecentFile(const QString &path);

    int defectTableFormat() const { return m_defectTableFormat; }
    void setDefectTableFormat(int format);

    // Adds a defect with its defaults and selects it; its id or -1.
    qint64 addDefect();
    // Runs the defect editor on a defect and selects it again afterwards;
    // true when the editor was left with OK.
    bool openDefectEditor(qint64 id);
    // Copies the given defects; the ids of the copies.
    QList<qint64> copyDefects(const QList<qint64> &ids);
    QList<qint64> selectedDefectIds() const;
    void selectDefects(const QList<qint64> &ids);

    // Stores the project path for the next start, closes the project (asking
    // to save) and leaves the event loop with the restart code. False when
    // the user cancelled.
    bool restartApplication();

    // Restores "MainWindow/Geometry" and "MainWindow/WindowState".
    void restoreWindowSettings();

    QString planPanelHint() const;
    // The defect the list's current row shows; -1 for none.
    qint64 currentDefectId() const;
    // The plan library, with the current defect to locate.
    void openPlanLibrary();
    void openPlanEditor(qint64 planInfoId, qint64 defectId);

    // Records the site-journal file this project belongs to ("meta") and
    // saves it with the project.
    bool linkSiteJournal(const QString &siteJournalPath);
    // The site-journal program hands over a journal: import it (the user
    // is asked before a link to another journal moves).
    void importGivenSiteJournal(const QString &siteJournalPath);
    // Follows the spell checker created at start-up.
    void updateSpellCheckingAction();

    static QString windowTitleFor(bool open, const QString &projectPath);

signals:
    void rehighlightAllSpellCheckerWidgets();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void slotCreateFile();
    void slotOpenFile();
    void slotSaveFile();
    void slotFileSaveAs();
    void slotCompactDB();
    void slotAddDefect();
    void slotEditStatusTable();
    void slotEditProjectData();
    void slotEditCompanyTable();
    void slotEditCompanyFormat();
    void slotEditLogos();
    void slotPrintDefectListShort();
    void slotPrintDefectListLong();
    void slotPrintPreview();
    void slotImportDefectManagerCompanies();
    void slotImportSiteJournalCompanies();
    void slotImportCSVCompanies();
    void slotSettingsLanguage();
    void slotStartSpellChecking();
    void slotSettingsCompleter();
    void slotTooltipHelp();
    void slotShortHelpImportFromSiteJournal();
    void slotShortHelpImportFromMobile();
    void slotProgramInfoDialog();
    void slotDefectTableDisplayFormat();
    void slotOpenRecentFile();
    void slotDefectTableAddButtonClicked();
    void slotDefectTableCopyButtonClicked();
    void slotDefectTableDeleteButtonClicked();
    void slotOpenDefectEditor(const QModelIndex &index);
    void slotProjectOpened();
    void slotProjectClosed();
    void slotModifiedChanged(bool modified);
    void defectRowChanged(const QModelIndex &prevIndex, const QModelIndex &actIndex);
    void slotSaveSelectionBeforeSorting(int logicalIndex, Qt::SortOrder order);
    void slotRestoreSelectionAfterSorting(int logicalIndex);
    void slotDefectModelAboutToReset();
    void slotPlanPanelDoubleClicked();
    void slotShownPlanDoubleClicked(qint64 planInfoId);
    void slotEditPlanTable();
    void slotSettingsPlanSize();
    void slotStandardMarker();
    void slotStandardMarkerText();
    void slotSettingsImageSize();
    void slotFilesDroppedOnDefect(qint64 defectId, const QStringList &files);
    void slotInitialDataImport();
    void slotUpdateDataImport();
    void slotAutomaticNewRecordsImport();
    void slotAutomaticUpdateImport();
    void slotImportFromApp();
    void slotProjectFileOpened();

private:
    struct ActionSpec;
    static const QVector<ActionSpec> &actionTable();

    void openMasterData(int page);
    // Runs an import and shows its outcome: menus, names, the list.
    template <typename Import> void runImport(Import import);
    void refreshAfterImport();
    void importCompanies(int source);
    void createActions();
    void createMenus();
    void createCentralWidget();
    QAction *action(const char *name) const;
    void updateProjectActions(bool open);
    void updateWindowTitle();
    void updateProjectHeader();
    void updateImportMenuState();
    void updateTooltipHelpAction();
    void updateFormatButton();
    void rebuildRecentMenu();
    void bindDefectTable();
    void applyDefectTableFormat();
    void storeColumnWidths();
    bool tooltipHelpActive() const;

    KalProject *m_project = nullptr;
    KalRecentFiles *m_recentFiles = nullptr;
    KalProjectFileCommands *m_fileCommands = nullptr;
    KalSiteJournalImportCommands *m_importCommands = nullptr;
    bool m_automaticImportAllowed = true;

    KalTableView *m_tvDefects = nullptr;
    KalPlanPanel *m_planPanel = nullptr;
    QLabel *m_lblProjectHeader = nullptr;
    QPushButton *m_pbDefectTableDisplayFormat = nullptr;
    QSplitter *m_splitter = nullptr;
    KalDefectTableLayout *m_tableLayout = nullptr;
    QToolBar *m_toolBar = nullptr;
    QMenu *m_menuFileRecent = nullptr;
    QHash<QString, QAction *> m_actions;

    int m_defectTableFormat = 1;
    bool m_tableHelpShown = false;
    QList<qint64> m_idsBeforeSorting;
    QList<qint64> m_idsBeforeReset;
    QList<qint64> m_idsBeforeRebuild;
};
