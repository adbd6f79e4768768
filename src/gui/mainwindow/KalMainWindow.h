#pragma once

#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QModelIndex>
#include <QPixmap>
#include <QStringList>
#include <QVariant>

class KalProject;
class KalSqlTableModel;
class KalTableView;
class QAction;
class QGraphicsScene;
class QGraphicsTextItem;
class QGraphicsView;
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
    enum MaybeSaveResult { GoOn = 0, Cancelled = 1, Failed = 2 };

    explicit KalMainWindow(QWidget *parent = nullptr);
    ~KalMainWindow() override;

    KalProject *project() const { return m_project; }
    KalTableView *defectTable() const { return tvDefects; }
    KalSqlTableModel *defectModel() const;

    // Asks before the open project is given up; see MaybeSaveResult.
    int maybeSave(bool saveAs, bool explicitRequest);
    bool newProject();
    // Closes the open project (with the save question) and opens `path`.
    bool openProject(const QString &path);
    bool closeProject(bool ask);
    // Creates a project, saves it at once under `path`.
    bool createProjectAt(const QString &path);

    QStringList recentFiles() const { return m_recentFiles; }
    void addRecentFile(const QString &path);
    void removeRecentFile(const QString &path);

    int defectTableFormat() const { return m_defectTableFormat; }
    void setDefectTableFormat(int format);

    // Adds a defect with its defaults and selects it; its id or -1.
    qint64 addDefect();
    // Runs the defect editor on a defect and selects it again afterwards.
    void openDefectEditor(qint64 id);
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

    // Records the site-journal file this project belongs to ("meta").
    bool linkSiteJournal(const QString &siteJournalPath);
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
    void on_actionCreateFile_triggered();
    void on_actionOpenFile_triggered();
    void on_actionSaveFile_triggered();
    void on_actionFileSaveAs_triggered();
    void on_actionCompactDB_triggered();
    void on_actionAddDefect_triggered();
    void on_actionEditStatusTable_triggered();
    void on_actionEditProjectData_triggered();
    void on_actionEditCompanyTable_triggered();
    void on_actionEditCompanyFormat_triggered();
    void on_actionImportDefectManagerCompanies_triggered();
    void on_actionImportSiteJournalCompanies_triggered();
    void on_actionImportCSVCompanies_triggered();
    void on_actionSettingsLanguage_triggered();
    void on_actionStartSpellChecking_triggered();
    void on_actionSettingsCompleter_triggered();
    void on_actionTooltipHelp_triggered();
    void on_actionShortHelpImportFromSiteJournal_triggered();
    void on_actionShortHelpImportFromMobile_triggered();
    void on_actionProgramInfoDialog_triggered();
    void on_pbDefectTableDisplayFormat_clicked();
    void on_pbShowTotalPlan_clicked();
    void on_pbZoomInfo_clicked();
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

private:
    void openMasterData(int page);
    void importCompanies(int source);
    void createActions();
    void createMenus();
    void createCentralWidget();
    QAction *makeAction(const QString &name, const QString &icon);
    void updateWindowTitle();
    void updateProjectHeader();
    void updateImportMenuState();
    void updateTooltipHelpAction();
    void updateFormatButton();
    void rebuildRecentMenu();
    void bindDefectTable();
    void applyDefectTableFormat();
    int tableShare(int total) const;
    void storeColumnWidths();
    void showPlanHint();
    void layoutPlanHint();
    void clearPlanPanel();
    void fitPlan();
    int saveCurrent(bool saveAs);
    bool projectIsReadOnly() const;
    QString askSaveFileName(const QString &title);
    bool tooltipHelpActive() const;
    void showHelpTip(QWidget *widget, const QString &text);

    KalProject *m_project = nullptr;

    KalTableView *tvDefects = nullptr;
    QGraphicsView *gvPlan = nullptr;
    QGraphicsScene *m_planScene = nullptr;
    QGraphicsTextItem *m_hintItem = nullptr;
    QPixmap m_planPixmap;
    qint64 m_shownPlanId = -1;
    QLabel *lblProjectHeader = nullptr;
    QPushButton *pbDefectTableDisplayFormat = nullptr;
    QPushButton *pbShowTotalPlan = nullptr;
    QPushButton *pbZoomInfo = nullptr;
    QSplitter *m_splitter = nullptr;
    QToolBar *m_toolBar = nullptr;

    QStringList m_recentFiles;
    int m_defectTableFormat = 1;
    bool m_planHelpShown = false;
    bool m_tableHelpShown = false;
    QList<qint64> m_idsBeforeSorting;
    QList<qint64> m_idsBeforeReset;

    QMenu *menuFile = nullptr;
    QMenu *menuFileRecent = nullptr;
    QMenu *menuEdit = nullptr;
    QMenu *menuMasterData = nullptr;
    QMenu *menuPrint = nullptr;
    QMenu *menuDataImport = nullptr;
    QMenu *menuSettings = nullptr;
    QMenu *menuHelp = nullptr;

    QAction *actionCreateFile = nullptr;
    QAction *actionOpenFile = nullptr;
    QAction *actionSaveFile = nullptr;
    QAction *actionFileSaveAs = nullptr;
    QAction *actionFileRecentPlaceholder = nullptr;
    QAction *actionCompactDB = nullptr;
    QAction *actionAddDefect = nullptr;
    QAction *actionEditPlanTable = nullptr;
    QAction *actionEditStatusTable = nullptr;
    QAction *actionEditProjectData = nullptr;
    QAction *actionEditCompanyTable = nullptr;
    QAction *actionEditCompanyFormat = nullptr;
    QAction *actionEditLogos = nullptr;
    QAction *actionPrintDefectListShort = nullptr;
    QAction *actionPrintDefectListLong = nullptr;
    QAction *actionPrintPreview = nullptr;
    QAction *actionInitialDataImport = nullptr;
    QAction *actionUpdateDataImport = nullptr;
    QAction *actionAutomaticNewRecordsImport = nullptr;
    QAction *actionAutomaticUpdateImport = nullptr;
    QAction *actionImportFromApp = nullptr;
    QAction *actionImportDefectManagerCompanies = nullptr;
    QAction *actionImportSiteJournalCompanies = nullptr;
    QAction *actionImportCSVCompanies = nullptr;
    QAction *actionSettingsLanguage = nullptr;
    QAction *actionSettingsCompleter = nullptr;
    QAction *actionStartSpellChecking = nullptr;
    QAction *actionSettingsPlanSize = nullptr;
    QAction *actionSettingsImageSize = nullptr;
    QAction *actionStandardMarker = nullptr;
    QAction *actionStandardMarkerText = nullptr;
    QAction *actionTooltipHelp = nullptr;
    QAction *actionShortHelpImportFromSiteJournal = nullptr;
    QAction *actionShortHelpImportFromMobile = nullptr;
    QAction *actionProgramInfoDialog = nullptr;
    QAction *actionUpdateTest = nullptr;
};
