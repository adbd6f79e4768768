// File and defect commands of the main window.

#include "gui/mainwindow/KalMainWindow.h"

#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalRecentFiles.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/editors/KalStatusDialog.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/mainwindow/KalLanguageDialog.h"
#include "gui/mainwindow/KalShortHelpDialog.h"
#include "gui/photos/KalPhotoInfoDialog.h"
#include "gui/photos/KalSettingsImageSizeDialog.h"
#include "gui/plans/KalPlanEditor.h"
#include "gui/plans/KalPlanInfoDialog.h"
#include "gui/plans/KalPlanPanel.h"
#include "gui/plans/KalStandardMarkerDialog.h"
#include "gui/plans/KalTextEditor.h"
#include "gui/reports/KalFilterDialog.h"
#include "gui/reports/KalLogoDialog.h"
#include "gui/textaids/KalCompleterDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalItemDelegate.h"
#include "gui/widgets/KalTableView.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSettings>

void KalMainWindow::slotCreateFile()
{
    newProject();
}

void KalMainWindow::slotOpenFile()
{
    m_fileCommands->openChosenProject();
}

void KalMainWindow::slotSaveFile()
{
    maybeSave(false, true);
}

void KalMainWindow::slotFileSaveAs()
{
    maybeSave(true, true);
}

void KalMainWindow::slotCompactDB()
{
    m_fileCommands->compactDatabase();
}

int KalMainWindow::maybeSave(bool saveAs, bool explicitRequest)
{
    return m_fileCommands->maybeSave(saveAs, explicitRequest);
}

bool KalMainWindow::newProject()
{
    return m_fileCommands->newProject();
}

bool KalMainWindow::closeProject(bool ask)
{
    return m_fileCommands->closeProject(ask);
}

bool KalMainWindow::openProject(const QString &path, bool automaticImport)
{
    m_automaticImportAllowed = automaticImport;
    const bool opened = m_fileCommands->openProject(path);
    m_automaticImportAllowed = true;
    return opened;
}

bool KalMainWindow::createProjectAt(const QString &path, const QString &siteJournalPath)
{
    const bool created = m_fileCommands->createProjectAt(path, siteJournalPath);
    updateImportMenuState();
    return created;
}

// --- defects ---

qint64 KalMainWindow::addDefect()
{
    if (!defectModel())
        return -1;
    const qint64 id = KalDefects(*m_project).add();
    if (id > 0)
        selectDefects({id});
    return id;
}

QList<qint64> KalMainWindow::copyDefects(const QList<qint64> &ids)
{
    if (!defectModel())
        return {};
    const QList<qint64> copies = KalDefects(*m_project).copy(ids);
    selectDefects(copies);
    return copies;
}

QList<qint64> KalMainWindow::selectedDefectIds() const
{
    return defectModel() ? m_tvDefects->selectedIds() : QList<qint64>();
}

void KalMainWindow::selectDefects(const QList<qint64> &ids)
{
    if (!defectModel() || ids.isEmpty())
        return;
    if (m_tvDefects->selectIds(ids) > 0)
        m_tvDefects->scrollTo(m_tvDefects->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void KalMainWindow::slotAddDefect()
{
    slotDefectTableAddButtonClicked();
}

void KalMainWindow::slotDefectTableAddButtonClicked()
{
    const qint64 id = addDefect();
    if (id <= 0 || openDefectEditor(id))
        return;
    // Cancelling the editor of a new defect takes the defect back; its id
    // stays used.
    if (KalSqlTableModel *model = defectModel()) {
        model->removeRowsById({id});
        defectRowChanged(QModelIndex(), m_tvDefects->currentIndex());
    }
}

bool KalMainWindow::openDefectEditor(qint64 id)
{
    KalSqlTableModel *model = defectModel();
    if (!model)
        return false;
    const int row = model->findRowById(id);
    if (row < 0)
        return false;
    bool accepted;
    {
        KalDefectEditor editor(m_project, row, this);
        accepted = editor.exec() == QDialog::Accepted;
    }
    // Sorting or the edit may have moved the row: find it again by id.
    m_tvDefects->doItemsLayout();
    model = defectModel();
    if (model && model->findRowById(id) >= 0) {
        m_tvDefects->selectId(id, QAbstractItemView::PositionAtCenter);
        defectRowChanged(QModelIndex(), m_tvDefects->currentIndex());
    }
    return accepted;
}

void KalMainWindow::slotDefectTableCopyButtonClicked()
{
    copyDefects(selectedDefectIds());
}

void KalMainWindow::slotDefectTableDeleteButtonClicked()
{
    // The grid asked and removed the rows; the plan panel follows the new
    // current defect.
    defectRowChanged(QModelIndex(), m_tvDefects->currentIndex());
}

void KalMainWindow::slotOpenDefectEditor(const QModelIndex &index)
{
    KalSqlTableModel *model = defectModel();
    if (!model || !index.isValid())
        return;
    const qint64 id =
        model->data(model->index(index.row(), model->fieldIndex(QStringLiteral("id"))), Qt::EditRole).toLongLong();
    openDefectEditor(id);
}

void KalMainWindow::openMasterData(int page)
{
    if (!m_project->isOpen())
        return;
    const QList<qint64> selected = selectedDefectIds();
    {
        KalMasterDataDialog dialog(m_project, this);
        dialog.setCurrentPage(KalMasterDataDialog::Page(page));
        dialog.exec();
    }
    // Company texts and the project name may have changed.
    updateProjectHeader();
    if (KalSqlTableModel *model = defectModel())
        model->invalidateLookups();
    m_tvDefects->viewport()->update();
    selectDefects(selected);
}

void KalMainWindow::slotEditProjectData()
{
    openMasterData(KalMasterDataDialog::ProjectPage);
}

void KalMainWindow::slotEditCompanyTable()
{
    openMasterData(KalMasterDataDialog::CompanyPage);
}

void KalMainWindow::slotEditLogos()
{
    KalLogoDialog dialog(m_project, this);
    dialog.exec();
}

void KalMainWindow::slotPrintDefectListShort()
{
    KalFilterDialog dialog(m_project, this);
    dialog.setLayout(KalPrintOptions::Compact);
    dialog.exec();
}

void KalMainWindow::slotPrintDefectListLong()
{
    KalFilterDialog dialog(m_project, this);
    dialog.setLayout(KalPrintOptions::Detailed);
    dialog.exec();
}

void KalMainWindow::slotPrintPreview()
{
    // The layout is asked for when a print button is pressed.
    KalFilterDialog dialog(m_project, this);
    dialog.exec();
}

void KalMainWindow::slotEditCompanyFormat()
{
    openMasterData(KalMasterDataDialog::CompanyFormatPage);
}

void KalMainWindow::importCompanies(int source)
{
    if (!m_project->isOpen())
        return;
    KalCompanyImportSelectDialog::importFrom(m_project, KalCompanyImportSelectDialog::Source(source), this);
    if (KalSqlTableModel *model = defectModel())
        model->invalidateLookups();
    m_tvDefects->viewport()->update();
}

void KalMainWindow::slotImportDefectManagerCompanies()
{
    importCompanies(KalCompanyImportSelectDialog::ProjectFile);
}

void KalMainWindow::slotImportSiteJournalCompanies()
{
    importCompanies(KalCompanyImportSelectDialog::SiteJournal);
}

void KalMainWindow::slotImportCSVCompanies()
{
    importCompanies(KalCompanyImportSelectDialog::AddressFile);
}

void KalMainWindow::slotEditStatusTable()
{
    if (!m_project->isOpen())
        return;
    KalStatusDialog dialog(m_project, this);
    dialog.exec();
}

void KalMainWindow::slotSaveSelectionBeforeSorting(int logicalIndex, Qt::SortOrder order)
{
    Q_UNUSED(logicalIndex)
    Q_UNUSED(order)
    const QList<qint64> ids = selectedDefectIds();
    // The view may have re-sorted already; then the snapshot taken before
    // the model reset holds the selection.
    m_idsBeforeSorting = ids.isEmpty() ? m_idsBeforeReset : ids;
}

void KalMainWindow::slotRestoreSelectionAfterSorting(int logicalIndex)
{
    Q_UNUSED(logicalIndex)
    if (!m_idsBeforeSorting.isEmpty())
        selectDefects(m_idsBeforeSorting);
    m_idsBeforeSorting.clear();
}

// --- settings and help ---

void KalMainWindow::updateSpellCheckingAction()
{
    QAction *actionStartSpellChecking = action("actionStartSpellChecking");
    KalSpellChecker *checker = KalSpellChecker::instance();
    const bool active = checker && checker->isValid() && checker->isActive();
    actionStartSpellChecking->setEnabled(checker && checker->isValid());
    actionStartSpellChecking->setText(KalSpellChecker::toggleActionText(active));
    actionStartSpellChecking->setToolTip(actionStartSpellChecking->text());
}

void KalMainWindow::slotSettingsCompleter()
{
    KalCompleterDialog dialog(this);
    dialog.exec();
}

void KalMainWindow::slotStartSpellChecking()
{
    KalSpellChecker *checker = KalSpellChecker::instance();
    if (!checker || !checker->isValid())
        return; // without a dictionary the toggle is disabled, not an error
    const bool active = checker->isActive();
    if (KalSpellChecker::switchSpellChecking(!active))
        emit rehighlightAllSpellCheckerWidgets();
    updateSpellCheckingAction();
}

bool KalMainWindow::linkSiteJournal(const QString &siteJournalPath)
{
    const bool linked = m_fileCommands->linkSiteJournal(siteJournalPath);
    updateImportMenuState();
    return linked;
}

void KalMainWindow::slotSettingsLanguage()
{
    KalLanguageDialog dialog(true, this);
    if (dialog.exec() == QDialog::Accepted && dialog.restartRequested())
        restartApplication();
}

bool KalMainWindow::restartApplication()
{
    if (maybeSave(false, false) != GoOn)
        return false;
    const QString reopenKey = QStringLiteral("File/ReopenFilename");
    QSettings settings;
    settings.setValue(reopenKey, m_project->isOpen() ? m_project->projectPath() : QString());
    settings.setValue(QStringLiteral("MainWindow/Geometry"), saveGeometry());
    settings.setValue(QStringLiteral("MainWindow/WindowState"), saveState());
    if (!closeProject(false)) {
        settings.remove(reopenKey);
        return false;
    }
    settings.sync();
    QCoreApplication::exit(1000);
    return true;
}

void KalMainWindow::slotShortHelpImportFromSiteJournal()
{
    KalShortHelpDialog dialog(KalShortHelpDialog::ImportFromSiteJournal, this);
    dialog.exec();
}

void KalMainWindow::slotShortHelpImportFromMobile()
{
    KalShortHelpDialog dialog(KalShortHelpDialog::ImportFromMobile, this);
    dialog.exec();
}

void KalMainWindow::slotProgramInfoDialog()
{
    KalPrompt::information(tr("Info"), QStringLiteral("Quellor Pellwick\n") +
                                           tr("Version %1").arg(QStringLiteral(PELLWICK_VERSION)));
}

void KalMainWindow::openPlanLibrary()
{
    if (!m_project || !m_project->isOpen())
        return;
    {
        KalPlanInfoDialog dialog(m_project, currentDefectId(), this);
        connect(&dialog, &KalPlanInfoDialog::planEditorRequested, this,
                [this](qint64 planInfoId, qint64 defectId) { openPlanEditor(planInfoId, defectId); });
        dialog.exec();
    }
    // Removing a plan clears defects' references in the file, and an
    // assignment writes one: the list and the panel read them again.
    if (KalSqlTableModel *model = defectModel())
        model->select();
    defectRowChanged(QModelIndex(), m_tvDefects->currentIndex());
}

void KalMainWindow::slotEditPlanTable()
{
    openPlanLibrary();
}

void KalMainWindow::slotPlanPanelDoubleClicked()
{
    // The hint invites a double click to give the defect a plan.
    if (currentDefectId() >= 0)
        openPlanLibrary();
}

void KalMainWindow::slotShownPlanDoubleClicked(qint64 planInfoId)
{
    openPlanEditor(planInfoId, currentDefectId());
}

void KalMainWindow::openPlanEditor(qint64 planInfoId, qint64 defectId)
{
    KalPlanEditor(m_project, planInfoId, defectId, this).exec();
    m_planPanel->refresh();
}

void KalMainWindow::slotSettingsPlanSize()
{
    KalSettingsImageSizeDialog dialog(KalPictureStore::Kind::Plan, m_project, this);
    dialog.exec();
    m_planPanel->refresh();
}

void KalMainWindow::slotStandardMarker()
{
    KalStandardMarkerDialog dialog(this);
    dialog.exec();
}

void KalMainWindow::slotStandardMarkerText()
{
    KalTextEditor dialog(KalTextEditor::PlanTextDefaults, this);
    dialog.exec();
}

void KalMainWindow::slotSettingsImageSize()
{
    KalSettingsImageSizeDialog dialog(KalPictureStore::Kind::Photo, m_project, this);
    dialog.exec();
}

void KalMainWindow::slotFilesDroppedOnDefect(qint64 defectId, const QStringList &files)
{
    if (!m_project || !m_project->isOpen() || m_project->isWriteProtected())
        return;
    if (KalPhotoInfoDialog::importFiles(m_project, defectId, files).isEmpty())
        return;
    // The camera column shows the new count; the selection is kept by id.
    if (KalSqlTableModel *photos = m_project->model(QStringLiteral("photo_info")))
        photos->select();
    if (KalSqlTableModel *defects = defectModel())
        defects->submitWithNotification(true);
}
