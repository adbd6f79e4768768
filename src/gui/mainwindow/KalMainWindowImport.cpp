// Site-journal and app imports of the main window.

#include "gui/mainwindow/KalMainWindow.h"

#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalSiteJournalImportCommands.h"
#include "gui/plans/KalPlanPanel.h"
#include "gui/widgets/KalTableView.h"

template <typename Import> void KalMainWindow::runImport(Import import)
{
    if (!m_project->isOpen())
        return;
    // The import re-reads the models; the user keeps the defects selected.
    const QList<qint64> selected = selectedDefectIds();
    import();
    refreshAfterImport();
    selectDefects(selected);
}

void KalMainWindow::refreshAfterImport()
{
    // The link and the automatic-import choice live in "meta".
    if (KalSqlTableModel *meta = m_project->isOpen() ? m_project->model(QStringLiteral("meta")) : nullptr)
        meta->select();
    updateImportMenuState();
    updateProjectHeader();
    updateWindowTitle();
    if (KalSqlTableModel *model = defectModel())
        model->invalidateLookups();
    m_tvDefects->viewport()->update();
    defectRowChanged(QModelIndex(), m_tvDefects->currentIndex());
}

void KalMainWindow::slotInitialDataImport()
{
    runImport([this] { m_importCommands->initialImport(); });
}

void KalMainWindow::slotUpdateDataImport()
{
    runImport([this] { m_importCommands->updateImport(); });
}

void KalMainWindow::slotImportFromApp()
{
    runImport([this] { m_importCommands->importFromApp(); });
}

void KalMainWindow::importGivenSiteJournal(const QString &siteJournalPath)
{
    runImport([this, siteJournalPath] { m_importCommands->importGivenJournal(siteJournalPath); });
}

void KalMainWindow::slotProjectFileOpened()
{
    if (m_automaticImportAllowed)
        runImport([this] { m_importCommands->automaticImport(); });
}

// Each toggle switches its own mode on, or the automatic import off when
// its mode is the one in force.
void KalMainWindow::slotAutomaticNewRecordsImport()
{
    if (!m_project->isOpen())
        return;
    m_importCommands->setAutomaticImportMode(m_project->readAutomaticImportMode() == 1 ? 0 : 1);
    updateImportMenuState();
}

void KalMainWindow::slotAutomaticUpdateImport()
{
    if (!m_project->isOpen())
        return;
    m_importCommands->setAutomaticImportMode(m_project->readAutomaticImportMode() == 2 ? 0 : 2);
    updateImportMenuState();
}
