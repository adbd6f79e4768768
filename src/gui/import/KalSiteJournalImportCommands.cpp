#include "KalSiteJournalImportCommands.h"

#include "core/import/KalSiteJournalLockMarker.h"
#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqlError.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/import/KalDataImportDefectAssignDialog.h"
#include "gui/import/KalImportFromAppDialog.h"
#include "gui/import/KalInitialImportDialog.h"
#include "gui/mainwindow/KalProjectFileCommands.h"
#include "gui/widgets/KalFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <QWidget>

namespace {
const char *const kLinkKey = "siteJournalDatabasePath";
const char *const kAppPathKey = "appImportlDatabasePath";

KalDataImportResult notStarted()
{
    KalDataImportResult result;
    result.outcome = KalDataImportResult::Outcome::Stopped;
    return result;
}

QString nativeAbsolute(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}
} // namespace

KalSiteJournalImportCommands::KalSiteJournalImportCommands(KalProject *project, KalProjectFileCommands *fileCommands,
                                                           QWidget *dialogParent)
    : QObject(dialogParent)
    , m_project(project)
    , m_fileCommands(fileCommands)
    , m_dialogParent(dialogParent)
{
}

QString KalSiteJournalImportCommands::siteJournalTitle()
{
    return tr("Datenimport aus Bautagebuch");
}

QString KalSiteJournalImportCommands::updateTitle()
{
    return tr("Mängel und Firmen aus dem Bautagebuch aktualisieren");
}

QString KalSiteJournalImportCommands::metaValue(const QString &key) const
{
    if (!m_project->isOpen())
        return QString();
    QSqlQuery query(m_project->database());
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key = :key"));
    query.bindValue(QStringLiteral(":key"), key);
    return query.exec() && query.next() ? query.value(0).toString() : QString();
}

QString KalSiteJournalImportCommands::linkedJournal() const
{
    return metaValue(QLatin1String(kLinkKey));
}

bool KalSiteJournalImportCommands::saveFirst(const QString &title)
{
    if (!m_project->isOpen())
        return false;
    if (m_project->projectPath().isEmpty()) {
        KalPrompt::information(title, tr("Das Projekt wurde noch nicht gespeichert.\nSie müssen das Projekt vor "
                                         "dem Import speichern."));
        QString target =
            KalFileDialog::getSaveFileName(m_dialogParent, KalSettings::ProjectSave, tr("Projekt speichern"),
                                           tr("Pellwick Projekt (*.pwp)"), tr("Neues Projekt"));
        if (target.isEmpty())
            return false;
        if (QFileInfo(target).suffix().isEmpty())
            target += QStringLiteral(".pwp");
        const int result = m_fileCommands->saveTo(target);
        if (result == KalProject::SaveFailed)
            KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
        return result == KalProject::Saved;
    }
    if (!m_project->isModified())
        return true;
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.title = title;
    m.text = tr("Das Projekt wurde geändert.\nVor dem Datenimport werden die Änderungen gespeichert.\n");
    m.buttons = {{KalPrompt::AcceptCustom, tr("Speichern und Starten des Imports")}, {KalPrompt::Cancel, QString()}};
    if (KalPrompt::ask(m) != 0)
        return false;
    const int result = m_fileCommands->saveTo();
    if (result == KalProject::SaveFailed)
        KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!\nDer Import "
                                             "konnte nicht durchgeführt werden.\n"));
    return result == KalProject::Saved;
}

QString KalSiteJournalImportCommands::journalToImport(const QString &title)
{
    const QString stored = linkedJournal();
    if (stored.isEmpty()) {
        KalPrompt::information(title, tr("Zu diesem Projekt ist kein zugehöriges Bautagebuch gespeichert.\nBitte "
                                         "wählen Sie im folgenden Dateidialog das Bautagebuch aus.\n"));
    } else if (!QFileInfo(stored).isFile()) {
        KalPrompt::information(title, tr("Die Bautagebuch-Datei %1 existiert nicht.\nBitte wählen Sie im folgenden "
                                         "Dateidialog das Bautagebuch aus.\n")
                                          .arg(QDir::toNativeSeparators(stored)));
    } else {
        return QFileInfo(stored).absoluteFilePath();
    }
    return chooseJournal(stored);
}

QString KalSiteJournalImportCommands::chooseJournal(const QString &startPath)
{
    // Start where the journal was, when that folder is still there.
    QString proposed;
    if (!startPath.isEmpty() && QFileInfo(startPath).absoluteDir().exists())
        proposed = QFileInfo(startPath).absoluteFilePath();
    const QString chosen = KalFileDialog::getOpenFileName(m_dialogParent, KalSettings::ProjectOpen,
                                                          tr("Zum Projekt gehöriges Bautagebuch auswählen"),
                                                          tr("Bautagebücher (*.sjd)"), proposed);
    return chosen.isEmpty() ? QString() : QFileInfo(chosen).absoluteFilePath();
}

bool KalSiteJournalImportCommands::lockAllows(const QString &journalPath)
{
    return KalSiteJournalLockMarker::confirm(journalPath);
}

KalDataImportResult KalSiteJournalImportCommands::run(const QString &journalPath, KalSiteJournalDataImport::Mode mode,
                                                      int automaticImportMode, bool quietWhenUnchanged)
{
    KalDataImportDefectAssignDialog resolver(m_project, m_dialogParent);
    KalSiteJournalDataImport import(m_project, nullptr, nullptr, &resolver);
    import.setAutomaticImportMode(automaticImportMode);
    // The marker of the chosen file was checked before any dialog.
    import.setCheckLockMarker(false);
    const KalDataImportResult result = import.run(journalPath, mode);
    emit importFinished();
    // Opening a project whose journal has nothing new says nothing.
    if (quietWhenUnchanged && result.succeeded() && !result.changed())
        return result;
    showResult(result, mode == KalSiteJournalDataImport::Mode::App
                           ? KalImportFromAppDialog::tr("Import aus der Quellor App")
                           : siteJournalTitle());
    return result;
}

void KalSiteJournalImportCommands::showResult(const KalDataImportResult &result, const QString &title)
{
    using Outcome = KalDataImportResult::Outcome;
    switch (result.outcome) {
    case Outcome::Stopped:
        return; // the reason was shown when it stopped
    case Outcome::Failed:
        return; // the import named the failure when it happened
    case Outcome::Canceled:
        KalPrompt::information(title, result.files.isEmpty()
                                          ? tr("Der Datenimport wurde abgebrochen.\nDas Projekt wurde nicht "
                                               "verändert.")
                                          : tr("Der Datenimport wurde abgebrochen.\nDie Daten der zuletzt gelesenen "
                                               "Datei wurden nicht übernommen.\n\n") +
                                                result.text());
        return;
    case Outcome::Done:
        break;
    }
    if (!m_project->isModified()) {
        KalPrompt::information(title, result.text());
        return;
    }
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.title = title;
    m.text = result.text();
    m.buttons = {{KalPrompt::AcceptCustom, tr("Jetzt speichern")}, {KalPrompt::RejectCustom, tr("Später speichern")}};
    if (KalPrompt::ask(m) != 0)
        return;
    if (m_fileCommands->saveTo() == KalProject::SaveFailed)
        KalPrompt::critical(tr("Fehler"), tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!"));
}

KalDataImportResult KalSiteJournalImportCommands::runInitial(const QString &journalPath)
{
    const int stored = m_project->readAutomaticImportMode();
    KalInitialImportDialog dialog(journalPath, stored < 0 ? 0 : stored, m_dialogParent);
    if (dialog.exec() != QDialog::Accepted)
        return notStarted();
    return run(journalPath, KalSiteJournalDataImport::Mode::Initial, dialog.automaticImportMode());
}

KalDataImportResult KalSiteJournalImportCommands::runUpdate(const QString &journalPath)
{
    KalPrompt::Message m;
    m.icon = KalPrompt::Question;
    m.iconPath = QStringLiteral(":/KalMainWindow/Resources/icon-datenimport-aktualisieren.ico");
    m.title = updateTitle();
    m.text = tr("\nMängel und Firmen aus dem Bautagebuch werden aktualisiert:\n\n- neue Mängel / Firmen werden in den "
                "Pellwick übernommen\n- Änderungen an Mängeln / Firmen werden in den Pellwick übernommen, \n  wenn "
                "der betroffene Datensatz im Pellwick nicht geändert wurde\n- im Bautagebuch gelöschte Mängel / "
                "Firmen können im Pellwick gelöscht werden\n- im Pellwick gelöschte Mängel / Firmen können erneut "
                "importiert werden\n");
    m.buttons = {{KalPrompt::AcceptCustom, tr("Mängel und Firmen aktualisieren")},
                 {KalPrompt::AcceptCustom, tr("Nur neue Mängel und Firmen importieren")},
                 {KalPrompt::Cancel, QString()}};
    switch (KalPrompt::ask(m)) {
    case 0:
        return run(journalPath, KalSiteJournalDataImport::Mode::Update);
    case 1:
        return run(journalPath, KalSiteJournalDataImport::Mode::NewOnly);
    default:
        return notStarted();
    }
}

KalDataImportResult KalSiteJournalImportCommands::initialImport()
{
    if (!saveFirst(siteJournalTitle()))
        return notStarted();
    const QString journal = journalToImport(siteJournalTitle());
    if (journal.isEmpty() || !lockAllows(journal))
        return notStarted();
    return runInitial(journal);
}

KalDataImportResult KalSiteJournalImportCommands::updateImport()
{
    if (!saveFirst(updateTitle()))
        return notStarted();
    const QString journal = journalToImport(updateTitle());
    if (journal.isEmpty() || !lockAllows(journal))
        return notStarted();
    return runUpdate(journal);
}

KalDataImportResult KalSiteJournalImportCommands::importFromApp()
{
    const QString title = KalImportFromAppDialog::tr("Import aus der Quellor App");
    if (!saveFirst(title))
        return notStarted();
    KalImportFromAppDialog dialog(metaValue(QLatin1String(kAppPathKey)), m_dialogParent);
    if (dialog.exec() != QDialog::Accepted || !lockAllows(dialog.chosenFile()))
        return notStarted();
    return run(dialog.chosenFile(), KalSiteJournalDataImport::Mode::App);
}

KalDataImportResult KalSiteJournalImportCommands::importGivenJournal(const QString &journalPath)
{
    const QString given = QFileInfo(journalPath).absoluteFilePath();
    if (!saveFirst(siteJournalTitle()))
        return notStarted();
    const QString linked = linkedJournal();
    const bool sameFile =
        !linked.isEmpty() && (QFileInfo(linked) == QFileInfo(given) || QFileInfo(linked).absoluteFilePath() == given);
    if (!linked.isEmpty() && !sameFile) {
        KalPrompt::Message m;
        m.icon = KalPrompt::Question;
        m.title = siteJournalTitle();
        m.text = tr("Das Projekt ist mit dem Bautagebuch\n%1\nverknüpft.\n\nDas Bautagebuch-Programm hat das "
                    "Bautagebuch\n%2\nübergeben.\n\nSoll das Projekt jetzt mit diesem Bautagebuch verknüpft und "
                    "dessen Daten importiert werden?")
                     .arg(QDir::toNativeSeparators(linked), nativeAbsolute(given));
        m.buttons = {{KalPrompt::AcceptCustom, tr("Neu verknüpfen und importieren")},
                     {KalPrompt::RejectCustom, tr("Abbrechen")}};
        if (KalPrompt::ask(m) != 0)
            return notStarted();
    }
    if (!lockAllows(given))
        return notStarted();
    return sameFile ? runUpdate(given) : runInitial(given);
}

KalDataImportResult KalSiteJournalImportCommands::automaticImport()
{
    if (!m_project->isOpen())
        return notStarted();
    const int mode = m_project->readAutomaticImportMode();
    const QString journal = linkedJournal();
    if ((mode != 1 && mode != 2) || journal.isEmpty())
        return notStarted();
    if (!QFileInfo(journal).isFile()) {
        KalPrompt::warning(siteJournalTitle(),
                           tr("Der automatische Import aus dem Bautagebuch wurde übersprungen:\nDie "
                              "Bautagebuch-Datei %1 existiert nicht.")
                               .arg(QDir::toNativeSeparators(journal)));
        return notStarted();
    }
    if (!saveFirst(siteJournalTitle()) || !lockAllows(journal))
        return notStarted();
    return run(journal, mode == 2 ? KalSiteJournalDataImport::Mode::Update : KalSiteJournalDataImport::Mode::NewOnly,
               -1, true);
}

bool KalSiteJournalImportCommands::setAutomaticImportMode(int mode)
{
    if (!m_project->isOpen())
        return false;
    QSqlError error;
    if (!KalDatabaseSchema::setMetaValue(m_project->database(), QStringLiteral("automaticImportMode"),
                                         QString::number(mode), &error)) {
        KAL_REPORT_SQL_ERROR(error, "KalSiteJournalImportCommands", "setAutomaticImportMode");
        return false;
    }
    if (KalSqlTableModel *meta = m_project->model(QStringLiteral("meta")))
        meta->select();
    m_project->readAutomaticImportMode();
    m_project->setModified(true);
    emit importFinished();
    return true;
}
