#include "KalMainWindow.h"

#include "core/project/KalDefectColumns.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalItemDelegate.h"
#include "gui/widgets/KalTableView.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QHash>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QToolTip>
#include <QVBoxLayout>

namespace {
const char *const kResourceFolder = ":/KalMainWindow/Resources/";

QIcon resourceIcon(const QString &name)
{
    return QIcon(QLatin1String(kResourceFolder) + name);
}

const char *const kGeometryKey = "MainWindow/Geometry";
const char *const kStateKey = "MainWindow/WindowState";
const char *const kRecentKey = "MainWindow/RecentFileList";
const char *const kFormatKey = "TableView/Defect/DefectTableFormat";
const char *const kTooltipHelpKey = "TooltipHelpActive";

} // namespace

KalMainWindow::KalMainWindow(QWidget *parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("KalMainWindow"));
    setWindowTitle(QStringLiteral("MainWindow"));

    QSettings settings;
    m_defectTableFormat = settings.value(QLatin1String(kFormatKey), 1).toInt() == 2 ? 2 : 1;
    m_recentFiles = settings.value(QLatin1String(kRecentKey)).toStringList();

    createActions();
    createMenus();
    createCentralWidget();

    m_project = new KalProject(this);
    connect(m_project, &KalProject::projectOpened, this, &KalMainWindow::slotProjectOpened);
    connect(m_project, &KalProject::projectAboutToClose, this, &KalMainWindow::slotProjectClosed);
    connect(m_project, &KalProject::modifiedChanged, this, &KalMainWindow::slotModifiedChanged);

    rebuildRecentMenu();
    updateTooltipHelpAction();
    updateSpellCheckingAction();
    updateFormatButton();
    resize(1200, 760);

    if (!m_project->newProject())
        KalPrompt::critical(tr("Fehler"), tr("Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!"));
    updateWindowTitle();
}

KalMainWindow::~KalMainWindow()
{
    if (m_project && m_project->isOpen())
        m_project->closeProject();
}

KalSqlTableModel *KalMainWindow::defectModel() const
{
    return m_project && m_project->isOpen() ? m_project->model(QStringLiteral("defect")) : nullptr;
}

QAction *KalMainWindow::makeAction(const QString &name, const QString &icon)
{
    auto *action = new QAction(this);
    action->setObjectName(name);
    if (!icon.isEmpty())
        action->setIcon(resourceIcon(icon));
    return action;
}

void KalMainWindow::createActions()
{
    actionCreateFile = makeAction(QStringLiteral("actionCreateFile"), QStringLiteral("datei-neu.ico"));
    actionCreateFile->setText(tr("Neu"));
    actionCreateFile->setToolTip(tr("Neues Projekt anlegen"));
    actionCreateFile->setShortcut(QKeySequence::New);
    connect(actionCreateFile, &QAction::triggered, this, &KalMainWindow::on_actionCreateFile_triggered);

    actionOpenFile = makeAction(QStringLiteral("actionOpenFile"), QStringLiteral("datei-öffnen.ico"));
    actionOpenFile->setText(tr("Öffnen"));
    actionOpenFile->setToolTip(tr("Projekt öffnen"));
    actionOpenFile->setShortcut(QKeySequence::Open);
    connect(actionOpenFile, &QAction::triggered, this, &KalMainWindow::on_actionOpenFile_triggered);

    actionSaveFile = makeAction(QStringLiteral("actionSaveFile"), QStringLiteral("datei-speichern.ico"));
    actionSaveFile->setText(tr("Speichern"));
    actionSaveFile->setToolTip(tr("Projekt speichern"));
    actionSaveFile->setShortcut(QKeySequence::Save);
    connect(actionSaveFile, &QAction::triggered, this, &KalMainWindow::on_actionSaveFile_triggered);

    actionFileSaveAs = makeAction(QStringLiteral("actionFileSaveAs"), QStringLiteral("datei-speichern-als.ico"));
    actionFileSaveAs->setText(tr("Speichern unter"));
    actionFileSaveAs->setToolTip(tr("Projekt unter einem neuen Namen speichern"));
    actionFileSaveAs->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    connect(actionFileSaveAs, &QAction::triggered, this, &KalMainWindow::on_actionFileSaveAs_triggered);

    actionFileRecentPlaceholder = makeAction(QStringLiteral("actionFileRecentPlaceholder"), QString());
    actionFileRecentPlaceholder->setText(QStringLiteral("Placeholder"));

    actionCompactDB = makeAction(QStringLiteral("actionCompactDB"), QStringLiteral("icon-datei-datenbank.ico"));
    actionCompactDB->setText(tr("Datenbank bereinigen"));
    actionCompactDB->setToolTip(tr("Datenbank bereinigen"));
    connect(actionCompactDB, &QAction::triggered, this, &KalMainWindow::on_actionCompactDB_triggered);

    actionAddDefect = makeAction(QStringLiteral("actionAddDefect"), QStringLiteral("icon-add-defect.ico"));
    actionAddDefect->setText(tr("Mangel hinzufügen"));
    actionAddDefect->setToolTip(tr("neue Mängel"));
    connect(actionAddDefect, &QAction::triggered, this, &KalMainWindow::on_actionAddDefect_triggered);

    // Commands whose dialogs are not part of the program yet stay visible but
    // disabled, so nothing pretends to work.
    auto later = [this](const QString &name, const QString &icon, const QString &text, const QString &toolTip) {
        QAction *a = makeAction(name, icon);
        a->setText(text);
        a->setToolTip(toolTip.isEmpty() ? QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')).trimmed()
                                        : toolTip);
        a->setEnabled(false);
        return a;
    };

    actionEditPlanTable = later(QStringLiteral("actionEditPlanTable"), QStringLiteral("icon-plaene.ico"), tr("Pläne"),
                                tr("Planverwaltung öffnen"));
    actionEditStatusTable = makeAction(QStringLiteral("actionEditStatusTable"), QStringLiteral("icon-status.ico"));
    actionEditStatusTable->setText(tr("Status"));
    actionEditStatusTable->setIconText(tr("Statusverwaltung öffnen"));
    actionEditStatusTable->setToolTip(tr("Statusverwaltung öffnen"));
    connect(actionEditStatusTable, &QAction::triggered, this, &KalMainWindow::on_actionEditStatusTable_triggered);

    actionEditProjectData =
        makeAction(QStringLiteral("actionEditProjectData"), QStringLiteral("icon-projektdaten.ico"));
    actionEditProjectData->setText(tr("Projektdaten bearbeiten"));
    actionEditProjectData->setToolTip(tr("Projektdaten bearbeiten"));
    connect(actionEditProjectData, &QAction::triggered, this, &KalMainWindow::on_actionEditProjectData_triggered);
    actionEditCompanyTable = makeAction(QStringLiteral("actionEditCompanyTable"), QStringLiteral("icon-firmen.ico"));
    actionEditCompanyTable->setText(tr("Firmenliste bearbeiten"));
    actionEditCompanyTable->setToolTip(tr("Firmenliste bearbeiten"));
    connect(actionEditCompanyTable, &QAction::triggered, this, &KalMainWindow::on_actionEditCompanyTable_triggered);
    actionEditCompanyFormat =
        makeAction(QStringLiteral("actionEditCompanyFormat"), QStringLiteral("icon-firmen-format.ico"));
    actionEditCompanyFormat->setText(tr("Firmendaten Ausgabeformat"));
    actionEditCompanyFormat->setToolTip(tr("Firmendaten Ausgabeformat"));
    connect(actionEditCompanyFormat, &QAction::triggered, this, &KalMainWindow::on_actionEditCompanyFormat_triggered);
    actionEditLogos = later(QStringLiteral("actionEditLogos"), QStringLiteral("icon-logo.ico"),
                            tr("Logo hinzufügen / bearbeiten"), QString());

    actionPrintDefectListShort =
        later(QStringLiteral("actionPrintDefectListShort"), QStringLiteral("icon-drucken-kompakt.ico"),
              tr("Mängelliste kompakt"), QString());
    actionPrintDefectListLong =
        later(QStringLiteral("actionPrintDefectListLong"), QStringLiteral("icon-drucken-detailliert.ico"),
              tr("Mängelliste detailliert"), QString());
    actionPrintPreview = later(QStringLiteral("actionPrintPreview"), QStringLiteral("icon-druckvorschau.ico"),
                               tr("Druckvorschau"), QString());

    actionInitialDataImport = later(QStringLiteral("actionInitialDataImport"), QStringLiteral("icon-datenimport.ico"),
                                    tr("Mängel und Firmen aus einem Bautagebuch importieren"), QString());
    actionUpdateDataImport =
        later(QStringLiteral("actionUpdateDataImport"), QStringLiteral("icon-datenimport-aktualisieren.ico"),
              tr("Mängel und Firmen aus dem Bautagebuch aktualisieren"), QString());
    actionAutomaticNewRecordsImport =
        later(QStringLiteral("actionAutomaticNewRecordsImport"), QStringLiteral("icon-datenimport-automatisch-ein.ico"),
              tr("Automatischen Import neuer Mängel und Firmen einschalten"), QString());
    actionAutomaticUpdateImport =
        later(QStringLiteral("actionAutomaticUpdateImport"), QStringLiteral("icon-datenimport-automatisch-ein.ico"),
              tr("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten"), QString());
    actionImportFromApp =
        later(QStringLiteral("actionImportFromApp"), QStringLiteral("icon-datenimport-app.ico"),
              tr("Mängel und Firmen aus der Quellor App importieren\n"), tr("Importiert Mängel aus der Quellor App"));
    actionImportDefectManagerCompanies =
        makeAction(QStringLiteral("actionImportDefectManagerCompanies"), QStringLiteral("icon-firmen-import.ico"));
    actionImportDefectManagerCompanies->setText(tr("Import von Firmen aus anderer Pellwick-Datei"));
    actionImportDefectManagerCompanies->setToolTip(tr("Import von Firmen aus anderer Pellwick-Datei"));
    connect(actionImportDefectManagerCompanies, &QAction::triggered, this,
            &KalMainWindow::on_actionImportDefectManagerCompanies_triggered);
    actionImportSiteJournalCompanies =
        makeAction(QStringLiteral("actionImportSiteJournalCompanies"), QStringLiteral("icon-firmen-import.ico"));
    actionImportSiteJournalCompanies->setText(tr("Import von Firmen aus Quellor Bautagebuch"));
    actionImportSiteJournalCompanies->setToolTip(tr("Import von Firmen aus Quellor Bautagebuch"));
    connect(actionImportSiteJournalCompanies, &QAction::triggered, this,
            &KalMainWindow::on_actionImportSiteJournalCompanies_triggered);
    actionImportCSVCompanies =
        makeAction(QStringLiteral("actionImportCSVCompanies"), QStringLiteral("icon-firmen-import.ico"));
    actionImportCSVCompanies->setText(tr("Import von Firmen aus externer Adress-Datei"));
    actionImportCSVCompanies->setToolTip(tr("Import von Firmen aus externer Adress-Datei"));
    connect(actionImportCSVCompanies, &QAction::triggered, this, &KalMainWindow::on_actionImportCSVCompanies_triggered);

    actionSettingsLanguage = makeAction(QStringLiteral("actionSettingsLanguage"), QStringLiteral("icon-sprache.ico"));
    actionSettingsLanguage->setText(tr("Sprache wählen"));
    actionSettingsLanguage->setToolTip(tr("Sprache wählen"));
    connect(actionSettingsLanguage, &QAction::triggered, this, &KalMainWindow::on_actionSettingsLanguage_triggered);

    actionSettingsCompleter = makeAction(QStringLiteral("actionSettingsCompleter"), QStringLiteral("icon-texte.ico"));
    actionSettingsCompleter->setText(tr("Texte ändern - Eingabe"));
    actionSettingsCompleter->setToolTip(tr("Texte ändern - Eingabe"));
    connect(actionSettingsCompleter, &QAction::triggered, this, &KalMainWindow::on_actionSettingsCompleter_triggered);
    actionStartSpellChecking =
        makeAction(QStringLiteral("actionStartSpellChecking"), QStringLiteral("icon-rechtschreibung.ico"));
    connect(actionStartSpellChecking, &QAction::triggered, this, &KalMainWindow::on_actionStartSpellChecking_triggered);
    actionSettingsPlanSize = later(QStringLiteral("actionSettingsPlanSize"), QStringLiteral("icon-plangroesse.ico"),
                                   tr("Plangröße"), QString());
    actionSettingsImageSize = later(QStringLiteral("actionSettingsImageSize"), QStringLiteral("icon-fotogroesse.ico"),
                                    tr("Fotogröße"), QString());
    actionStandardMarker = later(QStringLiteral("actionStandardMarker"), QStringLiteral("icon-marker.ico"),
                                 tr("Standardmarker"), QString());
    actionStandardMarkerText = later(QStringLiteral("actionStandardMarkerText"), QStringLiteral("icon-marker-text.ico"),
                                     tr("Mängeltexte im Plan"), QString());

    actionTooltipHelp = makeAction(QStringLiteral("actionTooltipHelp"), QStringLiteral("icon-help.ico"));
    connect(actionTooltipHelp, &QAction::triggered, this, &KalMainWindow::on_actionTooltipHelp_triggered);

    actionShortHelpImportFromSiteJournal =
        makeAction(QStringLiteral("actionShortHelpImportFromSiteJournal"), QStringLiteral("icon-help.ico"));
    actionShortHelpImportFromSiteJournal->setText(tr("Wie übernehme ich Mängel und\nFirmen aus einem Bautagebuch?"));
    connect(actionShortHelpImportFromSiteJournal, &QAction::triggered, this,
            &KalMainWindow::on_actionShortHelpImportFromSiteJournal_triggered);

    actionShortHelpImportFromMobile =
        makeAction(QStringLiteral("actionShortHelpImportFromMobile"), QStringLiteral("icon-help.ico"));
    actionShortHelpImportFromMobile->setText(tr("Wie übernehme ich Mängel und Firmen\nvon einem Mobilgerät?"));
    connect(actionShortHelpImportFromMobile, &QAction::triggered, this,
            &KalMainWindow::on_actionShortHelpImportFromMobile_triggered);

    actionProgramInfoDialog = makeAction(QStringLiteral("actionProgramInfoDialog"), QStringLiteral("icon-info.ico"));
    actionProgramInfoDialog->setText(tr("Info über Pellwick"));
    connect(actionProgramInfoDialog, &QAction::triggered, this, &KalMainWindow::on_actionProgramInfoDialog_triggered);

    actionUpdateTest = later(QStringLiteral("actionUpdateTest"), QStringLiteral("icon-update.ico"),
                             tr("Auf Updates prüfen"), QString());
}

void KalMainWindow::createMenus()
{
    // White menus with a thin frame; items leave room for the icon column.
    setStyleSheet(QStringLiteral("QMenu { background-color: white; border: 1px solid black; padding: 1px; }"
                                 "QMenu::item { padding: 1px 25px 1px 28px; background-color: transparent; }"
                                 "QMenu::item:selected { background-color: rgb(204,228,247); color: black; }"
                                 "QMenu::item:disabled { color: rgb(150,150,150); }"
                                 "QMenu::separator { height: 1px; background: rgb(210,210,210); margin: 3px 6px; }"));

    QMenuBar *bar = menuBar();
    menuFile = bar->addMenu(tr("Datei"));
    menuFile->setObjectName(QStringLiteral("menuFile"));
    menuFile->addAction(actionCreateFile);
    menuFile->addAction(actionOpenFile);
    menuFile->addAction(actionSaveFile);
    menuFile->addAction(actionFileSaveAs);
    menuFile->addSeparator();
    menuFileRecent = menuFile->addMenu(resourceIcon(QStringLiteral("datei-recent.ico")), tr("Vorherige Dateien..."));
    menuFileRecent->setObjectName(QStringLiteral("menuFileRecent"));
    menuFileRecent->addAction(actionFileRecentPlaceholder);
    menuFile->addSeparator();
    menuFile->addAction(actionCompactDB);

    menuEdit = bar->addMenu(tr("Bearbeiten"));
    menuEdit->setObjectName(QStringLiteral("menuEdit"));
    menuEdit->addAction(actionAddDefect);
    menuEdit->addAction(actionEditPlanTable);
    menuEdit->addAction(actionEditStatusTable);

    menuMasterData = bar->addMenu(tr("Stammdaten"));
    menuMasterData->setObjectName(QStringLiteral("menuMasterData"));
    menuMasterData->addAction(actionEditProjectData);
    menuMasterData->addAction(actionEditCompanyTable);
    menuMasterData->addAction(actionEditCompanyFormat);
    menuMasterData->addAction(actionEditLogos);

    menuPrint = bar->addMenu(tr("Drucken"));
    menuPrint->setObjectName(QStringLiteral("menuPrint"));
    menuPrint->addAction(actionPrintDefectListShort);
    menuPrint->addAction(actionPrintDefectListLong);
    menuPrint->addAction(actionPrintPreview);

    menuDataImport = bar->addMenu(tr("Datenimport"));
    menuDataImport->setObjectName(QStringLiteral("menuDataImport"));
    menuDataImport->addAction(actionInitialDataImport);
    menuDataImport->addAction(actionUpdateDataImport);
    menuDataImport->addAction(actionAutomaticNewRecordsImport);
    menuDataImport->addAction(actionAutomaticUpdateImport);
    menuDataImport->addSeparator();
    menuDataImport->addAction(actionImportFromApp);
    menuDataImport->addSeparator();
    menuDataImport->addAction(actionImportDefectManagerCompanies);
    menuDataImport->addAction(actionImportSiteJournalCompanies);
    menuDataImport->addAction(actionImportCSVCompanies);

    menuSettings = bar->addMenu(tr("Einstellungen"));
    menuSettings->setObjectName(QStringLiteral("menuSettings"));
    menuSettings->addAction(actionSettingsLanguage);
    menuSettings->addAction(actionSettingsCompleter);
    menuSettings->addAction(actionStartSpellChecking);
    menuSettings->addSeparator();
    menuSettings->addAction(actionSettingsPlanSize);
    menuSettings->addAction(actionSettingsImageSize);
    menuSettings->addSeparator();
    menuSettings->addAction(actionStandardMarker);
    menuSettings->addAction(actionStandardMarkerText);

    menuHelp = bar->addMenu(tr("Hilfe"));
    menuHelp->setObjectName(QStringLiteral("menuHelp"));
    menuHelp->addAction(actionTooltipHelp);
    menuHelp->addSeparator();
    menuHelp->addAction(actionShortHelpImportFromSiteJournal);
    menuHelp->addAction(actionShortHelpImportFromMobile);
    menuHelp->addSeparator();
    menuHelp->addAction(actionProgramInfoDialog);
    menuHelp->addAction(actionUpdateTest);

    m_toolBar = addToolBar(tr("Symbolleiste"));
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setIconSize(QSize(24, 24));
    m_toolBar->addAction(actionCreateFile);
    m_toolBar->addAction(actionOpenFile);
    m_toolBar->addAction(actionSaveFile);
    m_toolBar->addAction(actionFileSaveAs);
    m_toolBar->addSeparator();
    m_toolBar->addAction(actionAddDefect);
    m_toolBar->addAction(actionEditPlanTable);
    m_toolBar->addAction(actionEditStatusTable);
    m_toolBar->addSeparator();
    m_toolBar->addAction(actionEditProjectData);
    m_toolBar->addAction(actionEditCompanyTable);
    m_toolBar->addSeparator();
    m_toolBar->addAction(actionPrintDefectListShort);
    m_toolBar->addAction(actionPrintDefectListLong);
    m_toolBar->addAction(actionPrintPreview);
}

void KalMainWindow::createCentralWidget()
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(6, 4, 6, 6);

    lblProjectHeader = new QLabel(central);
    lblProjectHeader->setObjectName(QStringLiteral("lblProjectHeader"));
    QFont headerFont = lblProjectHeader->font();
    headerFont.setPointSizeF(headerFont.pointSizeF() * 1.3);
    headerFont.setBold(true);
    lblProjectHeader->setFont(headerFont);
    layout->addWidget(lblProjectHeader);

    m_splitter = new QSplitter(Qt::Horizontal, central);
    m_splitter->setObjectName(QStringLiteral("splitter"));
    m_splitter->setChildrenCollapsible(false);

    auto *tablePane = new QWidget(m_splitter);
    auto *tableLayout = new QVBoxLayout(tablePane);
    tableLayout->setContentsMargins(0, 0, 0, 0);
    tvDefects = new KalTableView(tablePane);
    tvDefects->setObjectName(QStringLiteral("tvDefects"));
    tvDefects->setSortingEnabled(true);
    // A double click opens the defect editor; F2 still edits a cell in place.
    tvDefects->setEditTriggers(QAbstractItemView::EditKeyPressed);
    tvDefects->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    tvDefects->installEventFilter(this);
    tvDefects->viewport()->installEventFilter(this);
    tableLayout->addWidget(tvDefects, 1);
    auto *tableButtons = new QHBoxLayout;
    pbDefectTableDisplayFormat = new QPushButton(tr("Alle Spalten anzeigen"), tablePane);
    pbDefectTableDisplayFormat->setObjectName(QStringLiteral("pbDefectTableDisplayFormat"));
    connect(pbDefectTableDisplayFormat, &QPushButton::clicked, this,
            &KalMainWindow::on_pbDefectTableDisplayFormat_clicked);
    tableButtons->addWidget(pbDefectTableDisplayFormat);
    tableButtons->addStretch(1);
    tableLayout->addLayout(tableButtons);

    auto *planPane = new QWidget(m_splitter);
    auto *planLayout = new QVBoxLayout(planPane);
    planLayout->setContentsMargins(0, 0, 0, 0);
    m_planScene = new QGraphicsScene(this);
    gvPlan = new QGraphicsView(m_planScene, planPane);
    gvPlan->setObjectName(QStringLiteral("gvPlan"));
    gvPlan->setRenderHint(QPainter::SmoothPixmapTransform);
    gvPlan->setDragMode(QGraphicsView::ScrollHandDrag);
    gvPlan->installEventFilter(this);
    gvPlan->viewport()->installEventFilter(this);
    planLayout->addWidget(gvPlan, 1);
    auto *planButtons = new QHBoxLayout;
    pbShowTotalPlan = new QPushButton(tr("An Fenstergröße anpassen"), planPane);
    pbShowTotalPlan->setObjectName(QStringLiteral("pbShowTotalPlan"));
    connect(pbShowTotalPlan, &QPushButton::clicked, this, &KalMainWindow::on_pbShowTotalPlan_clicked);
    pbZoomInfo = new QPushButton(planPane);
    pbZoomInfo->setObjectName(QStringLiteral("pbZoomInfo"));
    pbZoomInfo->setIcon(resourceIcon(QStringLiteral("icon-info.ico")));
    pbZoomInfo->setToolTip(tr("Hinweise zum Zoomen"));
    connect(pbZoomInfo, &QPushButton::clicked, this, &KalMainWindow::on_pbZoomInfo_clicked);
    planButtons->addStretch(1);
    planButtons->addWidget(pbShowTotalPlan);
    planButtons->addWidget(pbZoomInfo);
    planLayout->addLayout(planButtons);

    m_splitter->addWidget(tablePane);
    m_splitter->addWidget(planPane);
    m_splitter->setStretchFactor(0, 2);
    m_splitter->setStretchFactor(1, 1);
    layout->addWidget(m_splitter, 1);
    setCentralWidget(central);

    connect(tvDefects, &QAbstractItemView::doubleClicked, this, &KalMainWindow::slotOpenDefectEditor);
    connect(tvDefects->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &KalMainWindow::slotSaveSelectionBeforeSorting);
    connect(tvDefects->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &KalMainWindow::slotRestoreSelectionAfterSorting);
    connect(tvDefects, &KalTableView::signalButtonAddClicked, this, &KalMainWindow::slotDefectTableAddButtonClicked);
    connect(tvDefects, &KalTableView::signalButtonCopyClicked, this, &KalMainWindow::slotDefectTableCopyButtonClicked);
    connect(tvDefects, &KalTableView::signalRowsDeleted, this, &KalMainWindow::slotDefectTableDeleteButtonClicked);
}

QString KalMainWindow::windowTitleFor(bool open, const QString &projectPath)
{
    if (!open)
        return QStringLiteral("Quellor Pellwick");
    if (projectPath.isEmpty())
        return tr("Neues Pellwick-Projekt");
    return tr("Pellwick-Projekt - %0").arg(QFileInfo(projectPath).fileName());
}

void KalMainWindow::updateWindowTitle()
{
    setWindowTitle(windowTitleFor(m_project && m_project->isOpen(), m_project ? m_project->projectPath() : QString()));
}

void KalMainWindow::updateProjectHeader()
{
    QString name;
    if (KalSqlTableModel *kal = m_project->isOpen() ? m_project->model(QStringLiteral("kal")) : nullptr) {
        const int column = kal->fieldIndex(QStringLiteral("projectname"));
        if (column >= 0 && kal->rowCount() > 0)
            name = kal->data(kal->index(0, column)).toString();
    }
    lblProjectHeader->setText(tr("Projekt:") + QLatin1Char(' ') + name);
}

void KalMainWindow::updateImportMenuState()
{
    bool linked = false;
    if (KalSqlTableModel *meta = m_project->isOpen() ? m_project->model(QStringLiteral("meta")) : nullptr) {
        const int keyColumn = meta->fieldIndex(QStringLiteral("key"));
        for (int row = 0; row < meta->rowCount() && !linked; ++row)
            linked = meta->data(meta->index(row, keyColumn)).toString() == QLatin1String("siteJournalDatabasePath");
    }
    const int mode = m_project->isOpen() ? m_project->readAutomaticImportMode() : 0;

    actionInitialDataImport->setVisible(!linked);
    actionUpdateDataImport->setVisible(linked);
    actionAutomaticNewRecordsImport->setVisible(linked && mode != 2);
    actionAutomaticUpdateImport->setVisible(linked);

    const QString on = QStringLiteral("icon-datenimport-automatisch-ein.ico");
    const QString off = QStringLiteral("icon-datenimport-automatisch-aus.ico");
    if (mode == 1) {
        actionAutomaticNewRecordsImport->setText(tr("Automatischen Import neuer Mängel und Firmen ausschalten"));
        actionAutomaticNewRecordsImport->setIcon(resourceIcon(off));
    } else {
        actionAutomaticNewRecordsImport->setText(tr("Automatischen Import neuer Mängel und Firmen einschalten"));
        actionAutomaticNewRecordsImport->setIcon(resourceIcon(on));
    }
    if (mode == 2) {
        actionAutomaticUpdateImport->setText(
            tr("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten"));
        actionAutomaticUpdateImport->setIcon(resourceIcon(off));
    } else {
        actionAutomaticUpdateImport->setText(
            tr("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten"));
        actionAutomaticUpdateImport->setIcon(resourceIcon(on));
    }
}

bool KalMainWindow::tooltipHelpActive() const
{
    return QSettings().value(QLatin1String(kTooltipHelpKey), true).toBool();
}

void KalMainWindow::updateTooltipHelpAction()
{
    if (tooltipHelpActive()) {
        actionTooltipHelp->setText(tr("Hilfetexte ausschalten"));
        actionTooltipHelp->setIcon(resourceIcon(QStringLiteral("icon-help-off.ico")));
    } else {
        actionTooltipHelp->setText(tr("Hilfetexte einschalten"));
        actionTooltipHelp->setIcon(resourceIcon(QStringLiteral("icon-help.ico")));
    }
    actionTooltipHelp->setToolTip(actionTooltipHelp->text());
    rebuildRecentMenu();
}

void KalMainWindow::on_actionTooltipHelp_triggered()
{
    QSettings().setValue(QLatin1String(kTooltipHelpKey), !tooltipHelpActive());
    if (!tooltipHelpActive())
        QToolTip::hideText();
    updateTooltipHelpAction();
}

void KalMainWindow::addRecentFile(const QString &path)
{
    if (path.isEmpty())
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    m_recentFiles.removeAll(absolute);
    m_recentFiles.prepend(absolute);
    QSettings().setValue(QLatin1String(kRecentKey), m_recentFiles);
    rebuildRecentMenu();
}

void KalMainWindow::removeRecentFile(const QString &path)
{
    m_recentFiles.removeAll(QFileInfo(path).absoluteFilePath());
    QSettings().setValue(QLatin1String(kRecentKey), m_recentFiles);
    rebuildRecentMenu();
}

void KalMainWindow::rebuildRecentMenu()
{
    if (!menuFileRecent)
        return;
    for (QAction *a : menuFileRecent->actions()) {
        if (a != actionFileRecentPlaceholder)
            a->deleteLater();
    }
    menuFileRecent->clear();
    const bool help = tooltipHelpActive();
    for (const QString &path : qAsConst(m_recentFiles)) {
        QAction *a =
            menuFileRecent->addAction(resourceIcon(QStringLiteral("datei-recent.ico")), QFileInfo(path).fileName());
        a->setData(path);
        if (help)
            a->setToolTip(tr("Öffnet die Datei %1").arg(QDir::toNativeSeparators(path)));
        connect(a, &QAction::triggered, this, &KalMainWindow::slotOpenRecentFile);
    }
    menuFileRecent->setToolTipsVisible(help);
    menuFileRecent->setEnabled(!m_recentFiles.isEmpty());
}

void KalMainWindow::slotOpenRecentFile()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (action)
        openProject(action->data().toString());
}

void KalMainWindow::updateFormatButton()
{
    pbDefectTableDisplayFormat->setText(m_defectTableFormat == 2 ? tr("Spalten ausblenden")
                                                                 : tr("Alle Spalten einblenden"));
}

void KalMainWindow::setDefectTableFormat(int format)
{
    format = format == 2 ? 2 : 1;
    if (format == m_defectTableFormat)
        return;
    storeColumnWidths();
    m_defectTableFormat = format;
    QSettings().setValue(QLatin1String(kFormatKey), m_defectTableFormat);
    updateFormatButton();
    applyDefectTableFormat();
}

void KalMainWindow::on_pbDefectTableDisplayFormat_clicked()
{
    setDefectTableFormat(m_defectTableFormat == 2 ? 1 : 2);
}

void KalMainWindow::storeColumnWidths()
{
    if (defectModel())
        tvDefects->saveColumnWidths();
}

int KalMainWindow::tableShare(int total) const
{
    return m_defectTableFormat == 2 ? total * 4 / 5 : total * 18 / 25;
}

void KalMainWindow::applyDefectTableFormat()
{
    KalSqlTableModel *model = defectModel();
    if (!model)
        return;
    QHeaderView *header = tvDefects->horizontalHeader();
    const QStringList visible =
        KalDefectColumns::fields(m_defectTableFormat == 2 ? KalDefectColumns::All : KalDefectColumns::Compact);
    for (int column = 0; column < model->columnCount(); ++column)
        tvDefects->setColumnHidden(column, true);
    for (const QString &field : visible) {
        const int column = model->fieldIndex(field);
        if (column >= 0)
            tvDefects->setColumnHidden(column, false);
    }

    if (!tvDefects->restoreColumnWidths()) {
        const int charWidth = tvDefects->fontMetrics().averageCharWidth();
        int used = 0;
        for (const QString &field : visible) {
            const int column = model->fieldIndex(field);
            // The description takes what the others leave.
            if (column < 0 || field == QLatin1String("description"))
                continue;
            const int captionWidth =
                header->fontMetrics().horizontalAdvance(model->headerData(column, Qt::Horizontal).toString()) + 24;
            const int width = qMax(captionWidth, KalDefectColumns::widthChars(field) * charWidth);
            header->resizeSection(column, width);
            used += width;
        }
        const int description = model->fieldIndex(QStringLiteral("description"));
        if (description >= 0) {
            // Before the window is shown the viewport has no size yet: estimate
            // the table's share of the window.
            int available = tvDefects->viewport()->width();
            if (!tvDefects->isVisible()) {
                const int share = tableShare(width());
                available = share - tvDefects->verticalHeader()->sizeHint().width() -
                            tvDefects->verticalScrollBar()->sizeHint().width() - 16;
            }
            header->resizeSection(description, qMax(30 * charWidth, available - used));
        }
    }

    // The plan panel takes what the table does not need, within reason.
    if (m_splitter && m_splitter->width() > 0) {
        const int total = m_splitter->width();
        const int table = tableShare(total);
        m_splitter->setSizes({table, total - table});
    }
}

void KalMainWindow::bindDefectTable()
{
    KalSqlTableModel *model = defectModel();
    tvDefects->setModel(model);
    if (!model)
        return;
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &KalMainWindow::slotDefectModelAboutToReset,
            Qt::UniqueConnection);
    applyDefectTableFormat();
    if (QItemSelectionModel *selection = tvDefects->selectionModel())
        connect(selection, &QItemSelectionModel::currentRowChanged, this, &KalMainWindow::defectRowChanged,
                Qt::UniqueConnection);
    // The header keeps its sort indicator across models (a save rebuilds
    // them); the new model is sorted to match it.
    QHeaderView *header = tvDefects->horizontalHeader();
    const int sortColumn = header->sortIndicatorSection();
    if (sortColumn >= 0 && sortColumn < model->columnCount())
        model->sort(sortColumn, header->sortIndicatorOrder());
}

void KalMainWindow::slotDefectModelAboutToReset()
{
    m_idsBeforeReset = selectedDefectIds();
}

void KalMainWindow::slotProjectOpened()
{
    updateWindowTitle();
    updateProjectHeader();
    updateImportMenuState();
    bindDefectTable();
    clearPlanPanel();
    showPlanHint();
    actionSaveFile->setEnabled(true);
    actionFileSaveAs->setEnabled(true);
    actionCompactDB->setEnabled(true);
    actionAddDefect->setEnabled(true);
}

void KalMainWindow::slotProjectClosed()
{
    storeColumnWidths();
    tvDefects->setModel(nullptr);
    clearPlanPanel();
}

void KalMainWindow::slotModifiedChanged(bool modified)
{
    Q_UNUSED(modified)
    updateProjectHeader();
}

QString KalMainWindow::planPanelHint() const
{
    return tr("Dieser Mangel ist in keinem Plan verortet.\nMit einem Doppelklick in dieses Fenster können Sie dem "
              "Mangel einen Plan zuordnen.\nMit einem Doppelklick auf einen Mangel können Sie diesen Mangel "
              "bearbeiten.\n");
}

void KalMainWindow::clearPlanPanel()
{
    m_planScene->clear();
    m_hintItem = nullptr;
    m_planPixmap = QPixmap();
    m_shownPlanId = -1;
    pbShowTotalPlan->setEnabled(false);
}

void KalMainWindow::showPlanHint()
{
    clearPlanPanel();
    m_hintItem = m_planScene->addText(planPanelHint());
    m_hintItem->setDefaultTextColor(QColor(110, 110, 110));
    gvPlan->resetTransform();
    layoutPlanHint();
}

void KalMainWindow::layoutPlanHint()
{
    if (!m_hintItem)
        return;
    // The hint wraps to the panel and never needs scrolling.
    const QSize area = gvPlan->viewport()->size();
    m_hintItem->setTextWidth(qMax(120, area.width() - 24));
    const QRectF text = m_hintItem->boundingRect();
    m_planScene->setSceneRect(
        QRectF(-12, 0, qMax<qreal>(text.width() + 24, area.width()), qMax<qreal>(text.height(), area.height() - 4)));
    gvPlan->centerOn(m_hintItem);
}

void KalMainWindow::defectRowChanged(const QModelIndex &prevIndex, const QModelIndex &actIndex)
{
    Q_UNUSED(prevIndex)
    // Plans cannot be assigned to defects yet; every defect shows the hint.
    if (actIndex.isValid() || m_shownPlanId != -1 || m_planScene->items().isEmpty())
        showPlanHint();
}

void KalMainWindow::fitPlan()
{
    if (m_planScene->items().isEmpty())
        return;
    if (m_planPixmap.isNull()) {
        showPlanHint();
        return;
    }
    gvPlan->fitInView(m_planScene->itemsBoundingRect(), Qt::KeepAspectRatio);
}

void KalMainWindow::on_pbShowTotalPlan_clicked()
{
    fitPlan();
}

void KalMainWindow::on_pbZoomInfo_clicked()
{
    showHelpTip(pbZoomInfo, tr("Mit dem Mausrad vergrößern und verkleinern Sie den Plan.\n"
                               "Mit gedrückter linker Maustaste verschieben Sie den Ausschnitt.\n"
                               "\"An Fenstergröße anpassen\" zeigt den ganzen Plan."));
}

void KalMainWindow::showHelpTip(QWidget *widget, const QString &text)
{
    QToolTip::showText(widget->mapToGlobal(QPoint(widget->width() / 2, widget->height() / 2)), text, widget);
}

void KalMainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    layoutPlanHint();
}

bool KalMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (!gvPlan || !tvDefects || !m_planScene)
        return QMainWindow::eventFilter(watched, event);
    const bool inPlan = watched == gvPlan || watched == gvPlan->viewport();
    const bool inTable = watched == tvDefects || watched == tvDefects->viewport();
    if (!inPlan && !inTable)
        return QMainWindow::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::Resize:
        if (watched == gvPlan->viewport())
            layoutPlanHint();
        break;
    case QEvent::MouseButtonDblClick:
        // The plan library and editor are not part of the program yet; say
        // so instead of silently ignoring the double click the hint invites.
        if (inPlan && m_shownPlanId == -1 && tvDefects->currentIndex().isValid()) {
            KalPrompt::information(tr("Pläne"), tr("Die Zuordnung von Plänen ist in dieser Programmversion noch "
                                                   "nicht verfügbar."));
            return true;
        }
        break;
    case QEvent::ToolTip: {
        if (!tooltipHelpActive()) {
            QToolTip::hideText();
            return inPlan; // the table's own cell tool tips stay
        }
        bool &shown = inPlan ? m_planHelpShown : m_tableHelpShown;
        if (!shown) {
            shown = true;
            QWidget *w = inPlan ? static_cast<QWidget *>(gvPlan) : static_cast<QWidget *>(tvDefects);
            showHelpTip(w, inPlan ? tr("Plan des gewählten Mangels.\nMausrad: vergrößern und verkleinern.\n"
                                       "Doppelklick: Plan zuordnen oder im Plan verorten.")
                                  : tr("Liste der Mängel des Projekts.\nDoppelklick auf einen Mangel: bearbeiten.\n"
                                       "Klick auf eine Spaltenüberschrift: sortieren.\n"
                                       "Die Knöpfe unten links fügen Mängel hinzu, kopieren oder löschen sie."));
            return true;
        }
        return inPlan;
    }
    case QEvent::Leave:
        if (inPlan)
            m_planHelpShown = false;
        else
            m_tableHelpShown = false;
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

void KalMainWindow::restoreWindowSettings()
{
    QSettings settings;
    if (!restoreGeometry(settings.value(QLatin1String(kGeometryKey)).toByteArray())) {
        // First start: most of the screen, centred.
        if (QScreen *screen = QGuiApplication::primaryScreen()) {
            const QRect available = screen->availableGeometry();
            const QSize size(qMin(1500, available.width() * 9 / 10), qMin(950, available.height() * 9 / 10));
            setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, available));
        }
    }
    restoreState(settings.value(QLatin1String(kStateKey)).toByteArray());
}

void KalMainWindow::closeEvent(QCloseEvent *event)
{
    if (!closeProject(true)) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QLatin1String(kGeometryKey), saveGeometry());
    settings.setValue(QLatin1String(kStateKey), saveState());
    event->accept();
}
