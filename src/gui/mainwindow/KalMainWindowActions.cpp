// File and defect commands of the main window.

#include "gui/mainwindow/KalMainWindow.h"

#include "core/project/KalEnvironment.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlError.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/editors/KalStatusDialog.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/mainwindow/KalLanguageDialog.h"
#include "gui/mainwindow/KalShortHelpDialog.h"
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
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {
QString projectFilter()
{
    return KalMainWindow::tr("Pellwick Projekt (*.pwp)");
}

// A name typed without extension gets the project extension.
QString withProjectSuffix(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    return path + QStringLiteral(".pwp");
}

// Fields a copy takes over from its source; number, plan, position, photos
// and everything the site-journal import owns stay behind on purpose.
const QStringList &copiedFields()
{
    static const QStringList fields{"description",
                                    "company_id",
                                    "type",
                                    "user_id",
                                    "roomname",
                                    "roombook_number",
                                    "correction_instruction",
                                    "priority",
                                    "reduction",
                                    "creation_date",
                                    "correction_date",
                                    "deadline_1",
                                    "deadline_2",
                                    "deadline_3",
                                    "status_id"};
    return fields;
}
} // namespace

bool KalMainWindow::projectIsReadOnly() const
{
    const QString path = m_project->projectPath();
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    return info.exists() && !info.isWritable();
}

QString KalMainWindow::askSaveFileName(const QString &title)
{
    QString proposed;
    if (!m_project->projectPath().isEmpty())
        proposed = QFileInfo(m_project->projectPath()).fileName();
    return withProjectSuffix(
        KalFileDialog::getSaveFileName(this, KalSettings::ProjectSave, title, projectFilter(), proposed));
}

int KalMainWindow::maybeSave(bool saveAs, bool explicitRequest)
{
    if (!m_project || !m_project->isOpen())
        return GoOn;

    const bool readOnly = projectIsReadOnly();
    const QString nativePath = QDir::toNativeSeparators(m_project->projectPath());
    const KalPrompt::Button saveAsButton{KalPrompt::AcceptCustom, tr("Speichern unter")};
    const KalPrompt::Button cancelButton{KalPrompt::RejectCustom, tr("Abbrechen")};

    if (explicitRequest) {
        if (readOnly) {
            KalPrompt::Message m;
            m.icon = KalPrompt::Question;
            m.title = tr("Projekt speichern");
            m.text = tr("Das Projekt kann nicht gespeichert werden, da die Datei\n%1\nschreibgeschützt ist.\n\n"
                        "Möchten Sie die Änderungen in einer neuen Datei speichern?")
                         .arg(nativePath);
            m.buttons = {saveAsButton, cancelButton};
            if (KalPrompt::ask(m) != 0)
                return Cancelled;
        }
    } else {
        if (!m_project->isModified())
            return GoOn;
        KalPrompt::Message m;
        m.icon = KalPrompt::Question;
        m.title = tr("Projekt geändert");
        if (!readOnly) {
            m.text = tr("Das Projekt wurde geändert. Möchten Sie die Änderungen speichern?");
            m.buttons = {{KalPrompt::Save, QString()}, {KalPrompt::Discard, QString()}, {KalPrompt::Cancel, QString()}};
            m.defaultButton = -1;
            const int answer = KalPrompt::ask(m);
            if (answer == 1) {
                m_project->setModified(false);
                return GoOn;
            }
            if (answer != 0)
                return Cancelled;
        } else {
            m.text = tr("Das Projekt wurde geändert.\nDie Datei \n%1\nist jedoch schreibgeschützt.\n\n"
                        "Möchten Sie die Änderungen in einer neuen Datei speichern?")
                         .arg(nativePath);
            m.buttons = {saveAsButton, cancelButton};
            if (KalPrompt::ask(m) != 0)
                return Cancelled;
        }
    }
    return saveCurrent(saveAs || readOnly || m_project->projectPath().isEmpty());
}

int KalMainWindow::saveCurrent(bool askForName)
{
    QString target;
    if (askForName) {
        target = askSaveFileName(tr("Datei speichern"));
        if (target.isEmpty())
            return Cancelled;
        // Saving under the current name is an ordinary save.
        if (QFileInfo(target).absoluteFilePath() == QFileInfo(m_project->projectPath()).absoluteFilePath())
            target.clear();
    }
    // Saving reopens the working copy and rebuilds the models: keep the
    // user's place in the list.
    const QList<qint64> selected = selectedDefectIds();
    const int result = m_project->saveProject(target);
    selectDefects(selected);
    if (result == KalProject::NotSaved)
        return Cancelled;
    if (result != KalProject::Saved) {
        KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
        updateWindowTitle();
        return Failed;
    }
    addRecentFile(m_project->projectPath());
    m_project->setModified(false);
    updateWindowTitle();
    return GoOn;
}

bool KalMainWindow::newProject()
{
    if (maybeSave(false, false) != GoOn)
        return false;
    if (m_project->isOpen() && !closeProject(false))
        return false;
    const bool ok = m_project->newProject();
    if (!ok)
        KalPrompt::critical(tr("Fehler"), tr("Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!"));
    updateWindowTitle();
    return ok;
}

bool KalMainWindow::closeProject(bool ask)
{
    if (!m_project->isOpen())
        return true;
    if (ask && maybeSave(false, false) != GoOn)
        return false;
    const bool ok = m_project->closeProject();
    updateWindowTitle();
    if (!ok) {
        KalPrompt::critical(tr("Fehler"), tr("Beim Schließen des Projekts ist ein Fehler aufgetreten!"));
        return false;
    }
    return true;
}

bool KalMainWindow::openProject(const QString &path)
{
    if (path.isEmpty())
        return false;
    if (maybeSave(false, false) != GoOn)
        return false;
    // A file that is gone is reported before the open project is given up.
    if (!QFileInfo::exists(path)) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(path)));
        removeRecentFile(path);
        return false;
    }
    // The project gives up the open one only once the new one can be
    // opened; a refusal has been explained already and changes nothing here.
    if (!m_project->openProject(path)) {
        if (!QFileInfo::exists(path))
            removeRecentFile(path);
        // The window always works on a project.
        if (!m_project->isOpen() && !m_project->newProject())
            KalPrompt::critical(tr("Fehler"), tr("Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!"));
        updateWindowTitle();
        return false;
    }
    addRecentFile(m_project->projectPath());
    updateWindowTitle();
    return true;
}

bool KalMainWindow::createProjectAt(const QString &path)
{
    if (!newProject())
        return false;
    const int result = m_project->saveProject(QFileInfo(path).absoluteFilePath());
    if (result != KalProject::Saved) {
        if (result == KalProject::SaveFailed)
            KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
        updateWindowTitle();
        return false;
    }
    addRecentFile(m_project->projectPath());
    m_project->setModified(false);
    updateWindowTitle();
    return true;
}

void KalMainWindow::on_actionCreateFile_triggered()
{
    newProject();
}

void KalMainWindow::on_actionOpenFile_triggered()
{
    const QString path =
        KalFileDialog::getOpenFileName(this, KalSettings::ProjectOpen, tr("Projekt öffnen"), projectFilter());
    if (!path.isEmpty())
        openProject(path);
}

void KalMainWindow::on_actionSaveFile_triggered()
{
    maybeSave(false, true);
}

void KalMainWindow::on_actionFileSaveAs_triggered()
{
    maybeSave(true, true);
}

void KalMainWindow::on_actionCompactDB_triggered()
{
    const QString title = tr("Datenbank bereinigen");
    KalPrompt::Message intro;
    intro.icon = KalPrompt::Information;
    intro.title = title;
    intro.text = tr("Verringern der Datenbankgröße durch Bereinigung der Datenbank\n\n"
                    "Beim Löschen von Daten wird die Datenbank-Datei fragmentiert: Der frei gewordene Platz bleibt "
                    "in der Datei erhalten. Die Bereinigung ordnet die Daten der Tabellen zusammenhängend an und "
                    "organisiert die Datei neu.\n\n"
                    "Dadurch kann die Datei erheblich kleiner werden, vor allem nachdem Fotos gelöscht wurden.");
    intro.buttons = {{KalPrompt::AcceptCustom, tr("Datenbank bereinigen")}, {KalPrompt::Cancel, QString()}};
    if (KalPrompt::ask(intro) != 0)
        return;

    if (m_project->projectPath().isEmpty()) {
        KalPrompt::information(title, tr("Das Projekt wurde noch nicht gespeichert.\nSie müssen das Projekt vor der "
                                         "Bereinigung der Datenbank speichern."));
        const QString target = askSaveFileName(tr("Neues Projekt"));
        if (target.isEmpty())
            return;
        const int result = m_project->saveProject(target);
        if (result == KalProject::SaveFailed)
            KalPrompt::critical(title, tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!\nDie Datenbank "
                                          "konnte nicht bereinigt werden.\n"));
        if (result != KalProject::Saved) {
            updateWindowTitle();
            return;
        }
        addRecentFile(m_project->projectPath());
        updateWindowTitle();
    } else if (m_project->isModified()) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Information;
        m.title = title;
        m.text = tr("Das Projekt wurde geändert.\nVor dem Bereinigen der Datenbank werden die Änderungen "
                    "gespeichert.\n");
        m.buttons = {{KalPrompt::AcceptCustom, tr("Speichern und Bereinigen der Datenbank")},
                     {KalPrompt::Cancel, QString()}};
        if (KalPrompt::ask(m) != 0)
            return;
        const int result = m_project->saveProject();
        if (result == KalProject::SaveFailed)
            KalPrompt::critical(title, tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!\nDie Datenbank "
                                          "konnte nicht bereinigt werden.\n"));
        if (result != KalProject::Saved)
            return;
    }
    const QList<qint64> selected = selectedDefectIds();
    m_project->vacuumDatabase(false);
    selectDefects(selected);
}

// --- defects ---

int KalMainWindow::highestDefectNumber() const
{
    KalSqlTableModel *model = defectModel();
    const int numberColumn = model->fieldIndex(QStringLiteral("number"));
    int highest = 0;
    for (int row = 0; row < model->rowCount(); ++row)
        highest = qMax(highest, model->data(model->index(row, numberColumn), Qt::EditRole).toString().toInt());
    return highest;
}

qint64 KalMainWindow::insertDefectRow(const QMap<QString, QVariant> &values)
{
    KalSqlTableModel *model = defectModel();
    const int row = model->rowCount();
    // Inserting a row gives it its id from the allocator.
    if (!model->insertRow(row))
        return -1;
    const qint64 id =
        model->data(model->index(row, model->fieldIndex(QStringLiteral("id"))), Qt::EditRole).toLongLong();
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        const int column = model->fieldIndex(it.key());
        if (column >= 0 && !model->setData(model->index(row, column), it.value(), Qt::EditRole)) {
            model->revertRow(row);
            return -1;
        }
    }
    if (id <= 0) {
        model->revertRow(row);
        return -1;
    }
    return id;
}

qint64 KalMainWindow::addDefect()
{
    KalSqlTableModel *model = defectModel();
    if (!model)
        return -1;
    model->fetchAll();
    const QMap<QString, QVariant> values{
        {QStringLiteral("number"), QStringLiteral("%1").arg(highestDefectNumber() + 1, 4, 10, QLatin1Char('0'))},
        {QStringLiteral("description"), QString(QLatin1String(""))},
        {QStringLiteral("creation_date"), KalEnvironment::now().date()},
        {QStringLiteral("user_id"), KalEnvironment::userName()},
        {QStringLiteral("priority"), QStringLiteral("Normal")},
        {QStringLiteral("image_cnt"), 0},
    };
    const qint64 id = insertDefectRow(values);
    if (id <= 0)
        return -1;
    if (!model->submitWithNotification(true))
        return -1;
    selectDefects({id});
    return id;
}

QList<qint64> KalMainWindow::copyDefects(const QList<qint64> &ids)
{
    QList<qint64> copies;
    KalSqlTableModel *model = defectModel();
    if (!model || ids.isEmpty())
        return copies;
    model->fetchAll();
    int highest = highestDefectNumber();

    QVector<QSqlRecord> sources;
    for (qint64 sourceId : ids) {
        const int sourceRow = model->findRowById(sourceId);
        if (sourceRow >= 0)
            sources << model->record(sourceRow);
    }
    m_project->beginTransaction();
    for (const QSqlRecord &source : qAsConst(sources)) {
        QMap<QString, QVariant> values{
            {QStringLiteral("number"), QStringLiteral("%1").arg(++highest, 4, 10, QLatin1Char('0'))},
            {QStringLiteral("image_cnt"), 0},
        };
        for (const QString &field : copiedFields())
            values.insert(field, source.value(field));
        const qint64 id = insertDefectRow(values);
        if (id <= 0)
            break;
        copies << id;
    }
    const bool ok = !copies.isEmpty() && model->submitWithNotification(true);
    if (ok) {
        m_project->commitTransaction();
        selectDefects(copies);
    } else {
        m_project->rollbackTransaction();
        model->revertAll();
        copies.clear();
    }
    return copies;
}

QList<qint64> KalMainWindow::selectedDefectIds() const
{
    return defectModel() ? tvDefects->selectedIds() : QList<qint64>();
}

void KalMainWindow::selectDefects(const QList<qint64> &ids)
{
    if (!defectModel() || ids.isEmpty())
        return;
    if (tvDefects->selectIds(ids) > 0)
        tvDefects->scrollTo(tvDefects->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void KalMainWindow::on_actionAddDefect_triggered()
{
    slotDefectTableAddButtonClicked();
}

void KalMainWindow::slotDefectTableAddButtonClicked()
{
    const qint64 id = addDefect();
    if (id > 0)
        openDefectEditor(id);
}

void KalMainWindow::openDefectEditor(qint64 id)
{
    KalSqlTableModel *model = defectModel();
    if (!model)
        return;
    const int row = model->findRowById(id);
    if (row < 0)
        return;
    {
        KalDefectEditor editor(m_project, row, this);
        editor.exec();
    }
    // Sorting or the edit may have moved the row: find it again by id.
    tvDefects->doItemsLayout();
    model = defectModel();
    if (model && model->findRowById(id) >= 0) {
        tvDefects->selectId(id, QAbstractItemView::PositionAtCenter);
        defectRowChanged(QModelIndex(), tvDefects->currentIndex());
    }
}

void KalMainWindow::slotDefectTableCopyButtonClicked()
{
    copyDefects(selectedDefectIds());
}

void KalMainWindow::slotDefectTableDeleteButtonClicked()
{
    // The grid asked and removed the rows; the plan panel follows the new
    // current defect.
    defectRowChanged(QModelIndex(), tvDefects->currentIndex());
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
    tvDefects->viewport()->update();
    selectDefects(selected);
}

void KalMainWindow::on_actionEditProjectData_triggered()
{
    openMasterData(KalMasterDataDialog::ProjectPage);
}

void KalMainWindow::on_actionEditCompanyTable_triggered()
{
    openMasterData(KalMasterDataDialog::CompanyPage);
}

void KalMainWindow::on_actionEditCompanyFormat_triggered()
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
    tvDefects->viewport()->update();
}

void KalMainWindow::on_actionImportDefectManagerCompanies_triggered()
{
    importCompanies(KalCompanyImportSelectDialog::ProjectFile);
}

void KalMainWindow::on_actionImportSiteJournalCompanies_triggered()
{
    importCompanies(KalCompanyImportSelectDialog::SiteJournal);
}

void KalMainWindow::on_actionImportCSVCompanies_triggered()
{
    importCompanies(KalCompanyImportSelectDialog::AddressFile);
}

void KalMainWindow::on_actionEditStatusTable_triggered()
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
    KalSpellChecker *checker = KalSpellChecker::instance();
    const bool active = checker && checker->isValid() && checker->isActive();
    actionStartSpellChecking->setEnabled(checker != nullptr);
    actionStartSpellChecking->setText(KalSpellChecker::toggleActionText(active));
    actionStartSpellChecking->setToolTip(actionStartSpellChecking->text());
}

void KalMainWindow::on_actionSettingsCompleter_triggered()
{
    KalCompleterDialog dialog(this);
    dialog.exec();
}

void KalMainWindow::on_actionStartSpellChecking_triggered()
{
    KalSpellChecker *checker = KalSpellChecker::instance();
    const bool active = checker && checker->isValid() && checker->isActive();
    if (KalSpellChecker::switchSpellChecking(!active))
        emit rehighlightAllSpellCheckerWidgets();
    updateSpellCheckingAction();
}

bool KalMainWindow::linkSiteJournal(const QString &siteJournalPath)
{
    if (!m_project->isOpen())
        return false;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES (:key, :value)"));
    query.bindValue(QStringLiteral(":key"), QStringLiteral("siteJournalDatabasePath"));
    query.bindValue(QStringLiteral(":value"), QFileInfo(siteJournalPath).absoluteFilePath());
    if (!query.exec()) {
        KAL_REPORT_SQL_ERROR(query.lastError(), "KalMainWindow", "linkSiteJournal");
        return false;
    }
    if (KalSqlTableModel *meta = m_project->model(QStringLiteral("meta")))
        meta->select();
    m_project->setModified(true);
    updateImportMenuState();
    return true;
}

void KalMainWindow::on_actionSettingsLanguage_triggered()
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

void KalMainWindow::on_actionShortHelpImportFromSiteJournal_triggered()
{
    KalShortHelpDialog dialog(KalShortHelpDialog::ImportFromSiteJournal, this);
    dialog.exec();
}

void KalMainWindow::on_actionShortHelpImportFromMobile_triggered()
{
    KalShortHelpDialog dialog(KalShortHelpDialog::ImportFromMobile, this);
    dialog.exec();
}

void KalMainWindow::on_actionProgramInfoDialog_triggered()
{
    KalPrompt::information(tr("Info"), QStringLiteral("Quellor Pellwick\n") +
                                           tr("Version %1").arg(QStringLiteral(PELLWICK_VERSION)));
}
