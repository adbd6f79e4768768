#include "KalProjectFileCommands.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalRecentFiles.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlError.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QWidget>

namespace {
QString projectFilter()
{
    return KalProjectFileCommands::tr("Pellwick Projekt (*.pwp)");
}

// A name typed without extension gets the project extension.
QString withProjectSuffix(const QString &path)
{
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    return path + QStringLiteral(".pwp");
}

} // namespace

KalProjectFileCommands::KalProjectFileCommands(KalProject *project, KalRecentFiles *recentFiles, QWidget *dialogParent)
    : QObject(dialogParent)
    , m_project(project)
    , m_recentFiles(recentFiles)
    , m_dialogParent(dialogParent)
{
}

bool KalProjectFileCommands::projectIsReadOnly() const
{
    const QString path = m_project->projectPath();
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    return info.exists() && !info.isWritable();
}

QString KalProjectFileCommands::askSaveFileName(const QString &title)
{
    QString proposed;
    if (!m_project->projectPath().isEmpty())
        proposed = QFileInfo(m_project->projectPath()).fileName();
    return withProjectSuffix(
        KalFileDialog::getSaveFileName(m_dialogParent, KalSettings::ProjectSave, title, projectFilter(), proposed));
}

int KalProjectFileCommands::maybeSave(bool saveAs, bool explicitRequest)
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

int KalProjectFileCommands::saveCurrent(bool askForName)
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
    const int result = saveTo(target);
    if (result == KalProject::NotSaved)
        return Cancelled;
    if (result != KalProject::Saved) {
        KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
        return Failed;
    }
    return GoOn;
}

int KalProjectFileCommands::saveTo(const QString &target)
{
    // Saving reopens the working copy and rebuilds the models: keep the
    // user's place in the list.
    emit modelsAboutToBeRebuilt();
    const int result = m_project->saveProject(target);
    emit modelsRebuilt();
    if (result == KalProject::Saved) {
        m_recentFiles->add(m_project->projectPath());
        m_project->setModified(false);
    }
    emit projectStateChanged();
    return result;
}

bool KalProjectFileCommands::newProject()
{
    if (maybeSave(false, false) != GoOn)
        return false;
    if (m_project->isOpen() && !closeProject(false))
        return false;
    const bool ok = m_project->newProject();
    if (!ok)
        KalPrompt::critical(tr("Fehler"), tr("Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!"));
    emit projectStateChanged();
    return ok;
}

bool KalProjectFileCommands::closeProject(bool ask)
{
    if (!m_project->isOpen())
        return true;
    if (ask && maybeSave(false, false) != GoOn)
        return false;
    const bool ok = m_project->closeProject();
    emit projectStateChanged();
    if (!ok) {
        KalPrompt::critical(tr("Fehler"), tr("Beim Schließen des Projekts ist ein Fehler aufgetreten!"));
        return false;
    }
    return true;
}

bool KalProjectFileCommands::openProject(const QString &path)
{
    if (path.isEmpty())
        return false;
    if (maybeSave(false, false) != GoOn)
        return false;
    // A file that is gone is reported before the open project is given up.
    if (!m_recentFiles->keepIfExists(path)) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(path)));
        return false;
    }
    // The project gives up the open one only once the new one can be
    // opened; a refusal has been explained already and changes nothing here.
    if (!m_project->openProject(path)) {
        m_recentFiles->keepIfExists(path);
        // The window always works on a project.
        if (!m_project->isOpen() && !m_project->newProject())
            KalPrompt::critical(tr("Fehler"), tr("Beim Erstellen eines neuen Projekts ist ein Fehler aufgetreten!"));
        emit projectStateChanged();
        return false;
    }
    m_recentFiles->add(m_project->projectPath());
    emit projectStateChanged();
    emit projectFileOpened();
    return true;
}

bool KalProjectFileCommands::createProjectAt(const QString &path, const QString &siteJournalPath)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    if (QFileInfo::exists(target)) {
        KalPrompt::critical(
            tr("Dateifehler"),
            tr("Die Datei\n%1\nexistiert bereits und wird nicht überschrieben.").arg(QDir::toNativeSeparators(target)));
        return false;
    }
    if (!newProject())
        return false;
    bool changed = false;
    if (!siteJournalPath.isEmpty() && !writeSiteJournalLink(siteJournalPath, &changed)) {
        emit projectStateChanged();
        return false;
    }
    const int result = m_project->saveProject(target);
    if (result != KalProject::Saved) {
        if (result == KalProject::SaveFailed)
            KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
        emit projectStateChanged();
        return false;
    }
    m_recentFiles->add(m_project->projectPath());
    m_project->setModified(false);
    emit projectStateChanged();
    return true;
}

bool KalProjectFileCommands::writeSiteJournalLink(const QString &siteJournalPath, bool *changed)
{
    const QString key = QStringLiteral("siteJournalDatabasePath");
    const QString value = QFileInfo(siteJournalPath).absoluteFilePath();
    *changed = false;
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key = :key"));
    query.bindValue(QStringLiteral(":key"), key);
    if (query.exec() && query.next() && query.value(0).toString() == value)
        return true;
    QSqlError error;
    if (!KalDatabaseSchema::setMetaValue(m_project->database(), key, value, &error)) {
        KAL_REPORT_SQL_ERROR(error, "KalProjectFileCommands", "writeSiteJournalLink");
        return false;
    }
    if (KalSqlTableModel *meta = m_project->model(QStringLiteral("meta")))
        meta->select();
    *changed = true;
    return true;
}

bool KalProjectFileCommands::linkSiteJournal(const QString &siteJournalPath)
{
    if (!m_project->isOpen())
        return false;
    const bool hadChanges = m_project->isModified();
    bool changed = false;
    if (!writeSiteJournalLink(siteJournalPath, &changed))
        return false;
    if (!changed)
        return true;
    m_project->setModified(true);
    // The link belongs to the file, not to this session: save it now. Other
    // unsaved changes (a recovered session) stay the user's decision, and
    // the link is saved with them.
    if (!hadChanges && !m_project->projectPath().isEmpty())
        maybeSave(false, true);
    return true;
}

void KalProjectFileCommands::openChosenProject()
{
    const QString path =
        KalFileDialog::getOpenFileName(m_dialogParent, KalSettings::ProjectOpen, tr("Projekt öffnen"), projectFilter());
    if (!path.isEmpty())
        openProject(path);
}

void KalProjectFileCommands::compactDatabase()
{
    const QString title = tr("Datenbank bereinigen");
    KalPrompt::Message intro;
    intro.icon = KalPrompt::Information;
    intro.iconPath = QStringLiteral(":/KalMainWindow/Resources/icon-datei-datenbank.ico");
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
            emit projectStateChanged();
            return;
        }
        m_recentFiles->add(m_project->projectPath());
        emit projectStateChanged();
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
    emit modelsAboutToBeRebuilt();
    m_project->vacuumDatabase(false);
    emit modelsRebuilt();
}
