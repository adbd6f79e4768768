#include "KalMainWindow.h"

#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalRecentFiles.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalSiteJournalImportCommands.h"
#include "gui/mainwindow/KalDefectTableLayout.h"
#include "gui/mainwindow/KalUpdateTestCommand.h"
#include "gui/plans/KalPlanPanel.h"
#include "gui/widgets/KalItemDelegate.h"
#include "gui/widgets/KalTableView.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
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
const char *const kFormatKey = "TableView/Defect/DefectTableFormat";
const char *const kTooltipHelpKey = "TooltipHelpActive";

} // namespace

// One row per command: the menus, the tool bar and the tests find each action
// by its object name.
struct KalMainWindow::ActionSpec
{
    enum Enabled { Always, WithProject, NotBuilt };
    const char *name;
    const char *icon;
    QKeySequence shortcut;
    void (KalMainWindow::*slot)();
    Enabled enabled;
    const char *text;
    const char *toolTip; // nullptr: the text on one line
};

const QVector<KalMainWindow::ActionSpec> &KalMainWindow::actionTable()
{
    using A = ActionSpec;
    using M = KalMainWindow;
    const QKeySequence saveAs(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    // Commands whose dialogs are not part of the program yet stay visible but
    // disabled (NotBuilt), so nothing pretends to work.
    // clang-format off
    static const QVector<ActionSpec> table{
        {"actionCreateFile", "datei-neu.ico", QKeySequence::New, &M::slotCreateFile, A::Always,
         QT_TR_NOOP("Neu"), QT_TR_NOOP("Neues Projekt anlegen")},
        {"actionOpenFile", "datei-öffnen.ico", QKeySequence::Open, &M::slotOpenFile, A::Always,
         QT_TR_NOOP("Öffnen"), QT_TR_NOOP("Projekt öffnen")},
        {"actionSaveFile", "datei-speichern.ico", QKeySequence::Save, &M::slotSaveFile, A::WithProject,
         QT_TR_NOOP("Speichern"), QT_TR_NOOP("Projekt speichern")},
        {"actionFileSaveAs", "datei-speichern-als.ico", saveAs, &M::slotFileSaveAs, A::WithProject,
         QT_TR_NOOP("Speichern unter"), QT_TR_NOOP("Projekt unter einem neuen Namen speichern")},
        {"actionFileRecentPlaceholder", "", {}, nullptr, A::Always,
         "Placeholder", nullptr},
        {"actionCompactDB", "icon-datei-datenbank.ico", {}, &M::slotCompactDB, A::WithProject,
         QT_TR_NOOP("Datenbank bereinigen"), nullptr},
        {"actionAddDefect", "icon-add-defect.ico", {}, &M::slotAddDefect, A::WithProject,
         QT_TR_NOOP("Mangel hinzufügen"), QT_TR_NOOP("neue Mängel")},
        {"actionEditPlanTable", "icon-plaene.ico", {}, &M::slotEditPlanTable, A::WithProject,
         QT_TR_NOOP("Pläne"), QT_TR_NOOP("Planverwaltung öffnen")},
        {"actionEditStatusTable", "icon-status.ico", {}, &M::slotEditStatusTable, A::Always,
         QT_TR_NOOP("Status"), QT_TR_NOOP("Statusverwaltung öffnen")},
        {"actionEditProjectData", "icon-projektdaten.ico", {}, &M::slotEditProjectData, A::Always,
         QT_TR_NOOP("Projektdaten bearbeiten"), nullptr},
        {"actionEditCompanyTable", "icon-firmen.ico", {}, &M::slotEditCompanyTable, A::Always,
         QT_TR_NOOP("Firmenliste bearbeiten"), nullptr},
        {"actionEditCompanyFormat", "icon-firmen-format.ico", {}, &M::slotEditCompanyFormat, A::Always,
         QT_TR_NOOP("Firmendaten Ausgabeformat"), nullptr},
        {"actionEditLogos", "icon-logo.ico", {}, &M::slotEditLogos, A::WithProject,
         QT_TR_NOOP("Logo hinzufügen / bearbeiten"), nullptr},
        {"actionPrintDefectListShort", "icon-drucken-kompakt.ico", {}, &M::slotPrintDefectListShort, A::WithProject,
         QT_TR_NOOP("Mängelliste kompakt"), nullptr},
        {"actionPrintDefectListLong", "icon-drucken-detailliert.ico", {}, &M::slotPrintDefectListLong, A::WithProject,
         QT_TR_NOOP("Mängelliste detailliert"), nullptr},
        {"actionPrintPreview", "icon-druckvorschau.ico", {}, &M::slotPrintPreview, A::WithProject,
         QT_TR_NOOP("Druckvorschau"), nullptr},
        {"actionInitialDataImport", "icon-datenimport.ico", {}, &M::slotInitialDataImport, A::WithProject,
         QT_TR_NOOP("Mängel und Firmen aus einem Bautagebuch importieren"), nullptr},
        {"actionUpdateDataImport", "icon-datenimport-aktualisieren.ico", {}, &M::slotUpdateDataImport,
         A::WithProject,
         QT_TR_NOOP("Mängel und Firmen aus dem Bautagebuch aktualisieren"), nullptr},
        {"actionAutomaticNewRecordsImport", "icon-datenimport-automatisch-ein.ico", {},
         &M::slotAutomaticNewRecordsImport, A::WithProject,
         QT_TR_NOOP("Automatischen Import neuer Mängel und Firmen einschalten"), nullptr},
        {"actionAutomaticUpdateImport", "icon-datenimport-automatisch-ein.ico", {}, &M::slotAutomaticUpdateImport,
         A::WithProject,
         QT_TR_NOOP("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten"), nullptr},
        {"actionImportFromApp", "icon-datenimport-app.ico", {}, &M::slotImportFromApp, A::WithProject,
         QT_TR_NOOP("Mängel und Firmen aus der Quellor App importieren\n"),
         QT_TR_NOOP("Importiert Mängel aus der Quellor App")},
        {"actionImportDefectManagerCompanies", "icon-firmen-import.ico",
         {}, &M::slotImportDefectManagerCompanies, A::Always,
         QT_TR_NOOP("Import von Firmen aus anderer Pellwick-Datei"), nullptr},
        {"actionImportSiteJournalCompanies", "icon-firmen-import.ico",
         {}, &M::slotImportSiteJournalCompanies, A::Always,
         QT_TR_NOOP("Import von Firmen aus Quellor Bautagebuch"), nullptr},
        {"actionImportCSVCompanies", "icon-firmen-import.ico", {}, &M::slotImportCSVCompanies, A::Always,
         QT_TR_NOOP("Import von Firmen aus externer Adress-Datei"), nullptr},
        {"actionSettingsLanguage", "icon-sprache.ico", {}, &M::slotSettingsLanguage, A::Always,
         QT_TR_NOOP("Sprache wählen"), nullptr},
        {"actionSettingsCompleter", "icon-texte.ico", {}, &M::slotSettingsCompleter, A::Always,
         QT_TR_NOOP("Texte ändern - Eingabe"), nullptr},
        // Text and enabled state follow the spell checker.
        {"actionStartSpellChecking", "icon-rechtschreibung.ico", {}, &M::slotStartSpellChecking, A::Always,
         "", nullptr},
        {"actionSettingsPlanSize", "icon-plangroesse.ico", {}, &M::slotSettingsPlanSize, A::Always,
         QT_TR_NOOP("Plangröße"), nullptr},
        {"actionSettingsImageSize", "icon-fotogroesse.ico", {}, &M::slotSettingsImageSize, A::Always,
         QT_TR_NOOP("Fotogröße"), nullptr},
        {"actionStandardMarker", "icon-marker.ico", {}, &M::slotStandardMarker, A::Always,
         QT_TR_NOOP("Standardmarker"), nullptr},
        {"actionStandardMarkerText", "icon-marker-text.ico", {}, &M::slotStandardMarkerText, A::Always,
         QT_TR_NOOP("Mängeltexte im Plan"), nullptr},
        // Text and icon follow the help-text setting.
        {"actionTooltipHelp", "icon-help.ico", {}, &M::slotTooltipHelp, A::Always,
         "", nullptr},
        {"actionShortHelpImportFromSiteJournal", "icon-help.ico",
         {}, &M::slotShortHelpImportFromSiteJournal, A::Always,
         QT_TR_NOOP("Wie übernehme ich Mängel und\nFirmen aus einem Bautagebuch?"), nullptr},
        {"actionShortHelpImportFromMobile", "icon-help.ico", {}, &M::slotShortHelpImportFromMobile, A::Always,
         QT_TR_NOOP("Wie übernehme ich Mängel und Firmen\nvon einem Mobilgerät?"), nullptr},
        {"actionProgramInfoDialog", "icon-info.ico", {}, &M::slotProgramInfoDialog, A::Always,
         QT_TR_NOOP("Info über Pellwick"), nullptr},
        {"actionUpdateTest", "icon-update.ico", {}, nullptr, A::Always,
         QT_TR_NOOP("Auf Updates prüfen"), nullptr},
    };
    // clang-format on
    return table;
}

namespace {
// Menus in menu-bar order: object name, title, actions ("-" a separator,
// "menuFileRecent" the recent-file submenu).
struct MenuSpec
{
    const char *name;
    const char *title;
    QVector<const char *> actions;
};

const QVector<MenuSpec> &menuTable()
{
    static const QVector<MenuSpec> menus{
        {"menuFile",
         QT_TRANSLATE_NOOP("KalMainWindow", "Datei"),
         {"actionCreateFile", "actionOpenFile", "actionSaveFile", "actionFileSaveAs", "-", "menuFileRecent", "-",
          "actionCompactDB"}},
        {"menuEdit",
         QT_TRANSLATE_NOOP("KalMainWindow", "Bearbeiten"),
         {"actionAddDefect", "actionEditPlanTable", "actionEditStatusTable"}},
        {"menuMasterData",
         QT_TRANSLATE_NOOP("KalMainWindow", "Stammdaten"),
         {"actionEditProjectData", "actionEditCompanyTable", "actionEditCompanyFormat", "actionEditLogos"}},
        {"menuPrint",
         QT_TRANSLATE_NOOP("KalMainWindow", "Drucken"),
         {"actionPrintDefectListShort", "actionPrintDefectListLong", "actionPrintPreview"}},
        {"menuDataImport",
         QT_TRANSLATE_NOOP("KalMainWindow", "Datenimport"),
         {"actionInitialDataImport", "actionUpdateDataImport", "actionAutomaticNewRecordsImport",
          "actionAutomaticUpdateImport", "-", "actionImportFromApp", "-", "actionImportDefectManagerCompanies",
          "actionImportSiteJournalCompanies", "actionImportCSVCompanies"}},
        {"menuSettings",
         QT_TRANSLATE_NOOP("KalMainWindow", "Einstellungen"),
         {"actionSettingsLanguage", "actionSettingsCompleter", "actionStartSpellChecking", "-",
          "actionSettingsPlanSize", "actionSettingsImageSize", "-", "actionStandardMarker",
          "actionStandardMarkerText"}},
        {"menuHelp",
         QT_TRANSLATE_NOOP("KalMainWindow", "Hilfe"),
         {"actionTooltipHelp", "-", "actionShortHelpImportFromSiteJournal", "actionShortHelpImportFromMobile", "-",
          "actionProgramInfoDialog", "actionUpdateTest"}},
    };
    return menus;
}

const QVector<const char *> &toolBarActions()
{
    // clang-format off
    static const QVector<const char *> actions{
        "actionCreateFile", "actionOpenFile", "actionSaveFile", "actionFileSaveAs", "-",
        "actionAddDefect", "actionEditPlanTable", "actionEditStatusTable", "-",
        "actionEditProjectData", "actionEditCompanyTable", "-",
        "actionPrintDefectListShort", "actionPrintDefectListLong", "actionPrintPreview"};
    // clang-format on
    return actions;
}
} // namespace

KalMainWindow::KalMainWindow(QWidget *parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("KalMainWindow"));
    setWindowTitle(QStringLiteral("MainWindow"));

    m_defectTableFormat = QSettings().value(QLatin1String(kFormatKey), 1).toInt() == 2 ? 2 : 1;
    m_recentFiles = new KalRecentFiles(KalRecentFiles::defaultKey(), 0, this);
    connect(m_recentFiles, &KalRecentFiles::changed, this, &KalMainWindow::rebuildRecentMenu);

    createActions();
    new KalUpdateTestCommand(action("actionUpdateTest"), this);
    createMenus();
    createCentralWidget();

    m_project = new KalProject(this);
    m_fileCommands = new KalProjectFileCommands(m_project, m_recentFiles, this);
    connect(m_fileCommands, &KalProjectFileCommands::projectStateChanged, this, &KalMainWindow::updateWindowTitle);
    connect(m_fileCommands, &KalProjectFileCommands::modelsAboutToBeRebuilt, this,
            [this] { m_idsBeforeRebuild = selectedDefectIds(); });
    connect(m_fileCommands, &KalProjectFileCommands::modelsRebuilt, this,
            [this] { selectDefects(m_idsBeforeRebuild); });
    m_importCommands = new KalSiteJournalImportCommands(m_project, m_fileCommands, this);
    connect(m_fileCommands, &KalProjectFileCommands::projectFileOpened, this, &KalMainWindow::slotProjectFileOpened);
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
    updateProjectActions(m_project->isOpen());
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

QAction *KalMainWindow::action(const char *name) const
{
    QAction *a = m_actions.value(QLatin1String(name));
    Q_ASSERT(a);
    return a;
}

void KalMainWindow::createActions()
{
    for (const ActionSpec &entry : actionTable()) {
        auto *a = new QAction(this);
        a->setObjectName(QLatin1String(entry.name));
        if (*entry.icon)
            a->setIcon(resourceIcon(QString::fromUtf8(entry.icon)));
        if (*entry.text) {
            const QString text = tr(entry.text);
            a->setText(text);
            a->setToolTip(entry.toolTip ? tr(entry.toolTip)
                                        : QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')).trimmed());
        }
        if (!entry.shortcut.isEmpty())
            a->setShortcut(entry.shortcut);
        if (entry.slot)
            connect(a, &QAction::triggered, this, entry.slot);
        a->setEnabled(entry.enabled != ActionSpec::NotBuilt);
        m_actions.insert(a->objectName(), a);
    }
    action("actionFileRecentPlaceholder")->setText(QStringLiteral("Placeholder"));
    action("actionEditStatusTable")->setIconText(tr("Statusverwaltung öffnen"));
}

void KalMainWindow::updateProjectActions(bool open)
{
    for (const ActionSpec &entry : actionTable()) {
        if (entry.enabled == ActionSpec::WithProject)
            action(entry.name)->setEnabled(open);
    }
}

void KalMainWindow::createMenus()
{
    // White menus with a thin frame; items leave room for the icon column.
    setStyleSheet(QStringLiteral("QMenu { background-color: white; border: 1px solid black; padding: 1px; }"
                                 "QMenu::item { padding: 1px 25px 1px 28px; background-color: transparent; }"
                                 "QMenu::item:selected { background-color: rgb(204,228,247); color: black; }"
                                 "QMenu::item:disabled { color: rgb(150,150,150); }"
                                 "QMenu::separator { height: 1px; background: rgb(210,210,210); margin: 3px 6px; }"));

    for (const MenuSpec &entry : menuTable()) {
        QMenu *menu = menuBar()->addMenu(tr(entry.title));
        menu->setObjectName(QLatin1String(entry.name));
        for (const char *name : entry.actions) {
            if (qstrcmp(name, "-") == 0) {
                menu->addSeparator();
            } else if (qstrcmp(name, "menuFileRecent") == 0) {
                m_menuFileRecent =
                    menu->addMenu(resourceIcon(QStringLiteral("datei-recent.ico")), tr("Vorherige Dateien..."));
                m_menuFileRecent->setObjectName(QLatin1String(name));
                m_menuFileRecent->addAction(action("actionFileRecentPlaceholder"));
            } else {
                menu->addAction(action(name));
            }
        }
    }

    m_toolBar = addToolBar(tr("Symbolleiste"));
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setIconSize(QSize(24, 24));
    for (const char *name : toolBarActions()) {
        if (qstrcmp(name, "-") == 0)
            m_toolBar->addSeparator();
        else
            m_toolBar->addAction(action(name));
    }
}

void KalMainWindow::createCentralWidget()
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(6, 4, 6, 6);

    m_lblProjectHeader = new QLabel(central);
    m_lblProjectHeader->setObjectName(QStringLiteral("lblProjectHeader"));
    QFont headerFont = m_lblProjectHeader->font();
    headerFont.setPointSizeF(headerFont.pointSizeF() * 1.3);
    headerFont.setBold(true);
    m_lblProjectHeader->setFont(headerFont);
    layout->addWidget(m_lblProjectHeader);

    m_splitter = new QSplitter(Qt::Horizontal, central);
    m_splitter->setObjectName(QStringLiteral("splitter"));
    m_splitter->setChildrenCollapsible(false);

    auto *tablePane = new QWidget(m_splitter);
    auto *tableLayout = new QVBoxLayout(tablePane);
    tableLayout->setContentsMargins(0, 0, 0, 0);
    m_tvDefects = new KalTableView(tablePane);
    m_tvDefects->setObjectName(QStringLiteral("tvDefects"));
    m_tvDefects->setSortingEnabled(true);
    // A double click opens the defect editor; F2 still edits a cell in place.
    m_tvDefects->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_tvDefects->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_tvDefects->installEventFilter(this);
    m_tvDefects->viewport()->installEventFilter(this);
    tableLayout->addWidget(m_tvDefects, 1);
    auto *tableButtons = new QHBoxLayout;
    m_pbDefectTableDisplayFormat = new QPushButton(tr("Alle Spalten anzeigen"), tablePane);
    m_pbDefectTableDisplayFormat->setObjectName(QStringLiteral("pbDefectTableDisplayFormat"));
    connect(m_pbDefectTableDisplayFormat, &QPushButton::clicked, this, &KalMainWindow::slotDefectTableDisplayFormat);
    tableButtons->addWidget(m_pbDefectTableDisplayFormat);
    tableButtons->addStretch(1);
    tableLayout->addLayout(tableButtons);

    m_planPanel = new KalPlanPanel(m_splitter);
    connect(m_planPanel, &KalPlanPanel::planDoubleClicked, this, &KalMainWindow::slotPlanPanelDoubleClicked);
    connect(m_planPanel, &KalPlanPanel::shownPlanDoubleClicked, this, &KalMainWindow::slotShownPlanDoubleClicked);

    m_splitter->addWidget(tablePane);
    m_splitter->addWidget(m_planPanel);
    m_splitter->setStretchFactor(0, 2);
    m_splitter->setStretchFactor(1, 1);
    layout->addWidget(m_splitter, 1);
    setCentralWidget(central);
    m_tableLayout = new KalDefectTableLayout(m_tvDefects, m_splitter, this);

    connect(m_tvDefects, &QAbstractItemView::doubleClicked, this, &KalMainWindow::slotOpenDefectEditor);
    connect(m_tvDefects->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &KalMainWindow::slotSaveSelectionBeforeSorting);
    connect(m_tvDefects->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &KalMainWindow::slotRestoreSelectionAfterSorting);
    connect(m_tvDefects, &KalTableView::signalButtonAddClicked, this, &KalMainWindow::slotDefectTableAddButtonClicked);
    connect(m_tvDefects, &KalTableView::signalButtonCopyClicked, this,
            &KalMainWindow::slotDefectTableCopyButtonClicked);
    m_tvDefects->setFileDropEnabled(true);
    connect(m_tvDefects, &KalTableView::signalFilesDropped, this, &KalMainWindow::slotFilesDroppedOnDefect);
    connect(m_tvDefects, &KalTableView::signalRowsDeleted, this, &KalMainWindow::slotDefectTableDeleteButtonClicked);
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
    m_lblProjectHeader->setText(tr("Projekt:") + QLatin1Char(' ') + name);
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

    QAction *newRecords = action("actionAutomaticNewRecordsImport");
    QAction *update = action("actionAutomaticUpdateImport");
    action("actionInitialDataImport")->setVisible(!linked);
    action("actionUpdateDataImport")->setVisible(linked);
    newRecords->setVisible(linked && mode != 2);
    update->setVisible(linked);

    const QString on = QStringLiteral("icon-datenimport-automatisch-ein.ico");
    const QString off = QStringLiteral("icon-datenimport-automatisch-aus.ico");
    if (mode == 1) {
        newRecords->setText(tr("Automatischen Import neuer Mängel und Firmen ausschalten"));
        newRecords->setIcon(resourceIcon(off));
    } else {
        newRecords->setText(tr("Automatischen Import neuer Mängel und Firmen einschalten"));
        newRecords->setIcon(resourceIcon(on));
    }
    if (mode == 2) {
        update->setText(tr("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen ausschalten"));
        update->setIcon(resourceIcon(off));
    } else {
        update->setText(tr("Automatischen Import und Aktualisierung vorhandener Mängel und Firmen einschalten"));
        update->setIcon(resourceIcon(on));
    }
}

bool KalMainWindow::tooltipHelpActive() const
{
    return QSettings().value(QLatin1String(kTooltipHelpKey), true).toBool();
}

void KalMainWindow::updateTooltipHelpAction()
{
    QAction *actionTooltipHelp = action("actionTooltipHelp");
    if (tooltipHelpActive()) {
        actionTooltipHelp->setText(tr("Hilfetexte ausschalten"));
        actionTooltipHelp->setIcon(resourceIcon(QStringLiteral("icon-help-off.ico")));
    } else {
        actionTooltipHelp->setText(tr("Hilfetexte einschalten"));
        actionTooltipHelp->setIcon(resourceIcon(QStringLiteral("icon-help.ico")));
    }
    actionTooltipHelp->setToolTip(actionTooltipHelp->text());
    m_planPanel->setHelpActive(tooltipHelpActive());
    rebuildRecentMenu();
}

void KalMainWindow::slotTooltipHelp()
{
    QSettings().setValue(QLatin1String(kTooltipHelpKey), !tooltipHelpActive());
    if (!tooltipHelpActive())
        QToolTip::hideText();
    updateTooltipHelpAction();
}

QStringList KalMainWindow::recentFiles() const
{
    return m_recentFiles->files();
}

void KalMainWindow::addRecentFile(const QString &path)
{
    m_recentFiles->add(path);
}

void KalMainWindow::removeRecentFile(const QString &path)
{
    m_recentFiles->remove(path);
}

void KalMainWindow::rebuildRecentMenu()
{
    if (!m_menuFileRecent)
        return;
    for (QAction *a : m_menuFileRecent->actions()) {
        if (a != action("actionFileRecentPlaceholder"))
            a->deleteLater();
    }
    m_menuFileRecent->clear();
    const bool help = tooltipHelpActive();
    const QStringList files = m_recentFiles->files();
    for (const QString &path : files) {
        QAction *a =
            m_menuFileRecent->addAction(resourceIcon(QStringLiteral("datei-recent.ico")), QFileInfo(path).fileName());
        a->setData(path);
        if (help)
            a->setToolTip(tr("Öffnet die Datei %1").arg(QDir::toNativeSeparators(path)));
        connect(a, &QAction::triggered, this, &KalMainWindow::slotOpenRecentFile);
    }
    m_menuFileRecent->setToolTipsVisible(help);
    m_menuFileRecent->setEnabled(!files.isEmpty());
}

void KalMainWindow::slotOpenRecentFile()
{
    auto *action = qobject_cast<QAction *>(sender());
    if (action)
        openProject(action->data().toString());
}

void KalMainWindow::updateFormatButton()
{
    m_pbDefectTableDisplayFormat->setText(m_defectTableFormat == 2 ? tr("Spalten ausblenden")
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

void KalMainWindow::slotDefectTableDisplayFormat()
{
    setDefectTableFormat(m_defectTableFormat == 2 ? 1 : 2);
}

void KalMainWindow::storeColumnWidths()
{
    // Defaults spread over this window are no choice of the user's: the
    // next start spreads them over its own width.
    if (defectModel() && !m_tableLayout->showsDefaults())
        m_tvDefects->saveColumnWidths();
}

void KalMainWindow::applyDefectTableFormat()
{
    m_tableLayout->apply(m_defectTableFormat);
}

void KalMainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_tableLayout->refit();
}

void KalMainWindow::bindDefectTable()
{
    KalSqlTableModel *model = defectModel();
    m_tvDefects->setModel(model);
    if (!model)
        return;
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &KalMainWindow::slotDefectModelAboutToReset,
            Qt::UniqueConnection);
    applyDefectTableFormat();
    if (QItemSelectionModel *selection = m_tvDefects->selectionModel())
        connect(selection, &QItemSelectionModel::currentRowChanged, this, &KalMainWindow::defectRowChanged,
                Qt::UniqueConnection);
    // The header keeps its sort indicator across models (a save rebuilds
    // them); the new model is sorted to match it.
    QHeaderView *header = m_tvDefects->horizontalHeader();
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
    m_planPanel->showHint();
    updateProjectActions(true);
}

void KalMainWindow::slotProjectClosed()
{
    // The grid also stores the widths of the model it lets go.
    const bool defaults = m_tableLayout->showsDefaults();
    storeColumnWidths();
    m_tvDefects->setModel(nullptr);
    if (defaults)
        QSettings().remove(KalTableView::columnWidthsKey(QStringLiteral("defect")));
    m_planPanel->clear();
    // Called while the project is about to close: it still counts as open.
    updateProjectActions(false);
}

void KalMainWindow::slotModifiedChanged(bool modified)
{
    Q_UNUSED(modified)
    updateProjectHeader();
}

QString KalMainWindow::planPanelHint() const
{
    return KalPlanPanel::hintText();
}

void KalMainWindow::defectRowChanged(const QModelIndex &prevIndex, const QModelIndex &actIndex)
{
    Q_UNUSED(prevIndex)
    Q_UNUSED(actIndex)
    m_planPanel->showDefect(m_project, currentDefectId());
}

qint64 KalMainWindow::currentDefectId() const
{
    KalSqlTableModel *model = defectModel();
    const QModelIndex current = m_tvDefects->currentIndex();
    if (!model || !current.isValid())
        return -1;
    return model->data(model->index(current.row(), model->idColumn()), Qt::EditRole).toLongLong();
}

bool KalMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_tvDefects || (watched != m_tvDefects && watched != m_tvDefects->viewport()))
        return QMainWindow::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ToolTip:
        // The help text shows once per visit; the cells' own tool tips stay.
        if (!tooltipHelpActive()) {
            QToolTip::hideText();
        } else if (!m_tableHelpShown) {
            m_tableHelpShown = true;
            QToolTip::showText(m_tvDefects->mapToGlobal(m_tvDefects->rect().center()),
                               tr("Liste der Mängel des Projekts.\nDoppelklick auf einen Mangel: bearbeiten.\n"
                                  "Klick auf eine Spaltenüberschrift: sortieren.\n"
                                  "Die Knöpfe unten links fügen Mängel hinzu, kopieren oder löschen sie."),
                               m_tvDefects);
            return true;
        }
        break;
    case QEvent::Leave:
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
