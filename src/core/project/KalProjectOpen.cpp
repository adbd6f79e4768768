// Opening a project file, step by step. Each step either goes on or has
// told the user why not. The open project (if any) is given up only once
// the new one is known to be openable, and one guard undoes what a failed
// attempt made.
#include "core/project/KalProject.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProjectLock.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSnapshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>
#include <functional>

struct KalOpenPlan
{
    QString file; // the project file, absolute
    QString workingCopy;
    QString userData;
    bool afterRestore = false;
    bool recovered = false;       // a crashed run's working copy, reopened as it is
    bool madeWorkingCopy = false; // ours to remove when the attempt fails
    bool switched = false;        // the previous project is closed, the connection is this attempt's
    bool wroteUserData = false;
    qint64 databaseBytes = -1; // what SQLite uses of the file; -1 when unknown
};

namespace {
using KalProjectLock::State;

class ScopeGuard
{
public:
    explicit ScopeGuard(std::function<void()> undo)
        : m_undo(std::move(undo))
    {
    }
    ~ScopeGuard()
    {
        if (m_undo)
            m_undo();
    }
    void dismiss() { m_undo = nullptr; }

private:
    std::function<void()> m_undo;
};

QString tr(const char *text)
{
    return KalProject::tr(text);
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

bool removeOrSay(const QString &path, bool database)
{
    const bool removed = database ? KalFileOps::removeDatabaseFile(path) : QFile::remove(path);
    if (!removed)
        KalPrompt::critical(tr("Dateifehler"), tr("Löschen der Datei\n%1\n fehlgeschlagen.").arg(native(path)));
    return removed;
}

void reportNoSpaceToOpen(const QString &volume, qint64 shortfall)
{
    KalPrompt::critical(tr("Speicherplatz nicht ausreichend"),
                        tr("Auf dem Laufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das Projekt "
                           "zu öffnen.\nGeben Sie mindestens %2 MB Speicherplatz frei und versuchen Sie es erneut.")
                            .arg(volume)
                            .arg(shortfall / 1000000));
}

// A crashed run's working copy that cannot be written now is kept: it may
// hold the only copy of the user's last edits.
void reportKeptLeftover(const KalOpenPlan &plan, State state, const QString &error)
{
    if (state == State::DiskFull) {
        const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(plan.workingCopy);
        // Room for the journal of the first change and for saving later.
        const qint64 wanted = qMax<qint64>(1000000, 2 * QFileInfo(plan.workingCopy).size());
        reportNoSpaceToOpen(volume.name, wanted - qMax<qint64>(0, volume.bytesAvailable));
        return;
    }
    const QString kept = tr("Die Working Copy Datei mit dem letzten, nicht gespeicherten Bearbeitungsstand bleibt "
                            "erhalten.");
    if (state == State::ReadOnly) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Sie haben keine Schreibrechte für die Datei %1.").arg(native(plan.workingCopy)) +
                                QLatin1Char('\n') + kept);
        return;
    }
    KalPrompt::critical(tr("Datenbankfehler"),
                        error + QStringLiteral("\n\n") + native(plan.workingCopy) + QLatin1Char('\n') + kept);
}

// Writing through a link under a companion's name would change whatever it
// points to (the project itself, say): such a folder is left alone.
bool companionsAreNoLinks(const KalOpenPlan &plan)
{
    for (const QString &companion : {plan.workingCopy, plan.userData, plan.file + QStringLiteral("-journal"),
                                     plan.workingCopy + QStringLiteral("-journal")}) {
        if (QFileInfo(companion).isSymLink()) {
            KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nist eine Verknüpfung. Das Projekt wird nicht "
                                                      "geöffnet, damit nichts über sie hinweg geändert wird.")
                                                       .arg(native(companion)));
            return false;
        }
    }
    return true;
}

// Step 3: a working copy already beside the file.
bool handleLeftover(KalOpenPlan &plan)
{
    KalProjectLock::removeStalePrivateFiles(plan.workingCopy, QStringLiteral(".part"));
    if (!QFileInfo::exists(plan.workingCopy))
        return true;
    QString error;
    const State state = KalProjectLock::probe(plan.workingCopy, &error);
    if (state == State::Held) {
        KalProjectLock::reportHeld(plan.userData);
        return false;
    }
    // Nobody holds it: an interrupted run left it behind. Only the same user
    // on the same computer gets that state back.
    const bool noUserData = !QFileInfo::exists(plan.userData);
    if (noUserData || KalProjectLock::belongsToSomebodyElse(plan.userData) || state == State::NotDatabase) {
        if (!removeOrSay(plan.workingCopy, true))
            return false;
        if (!noUserData)
            removeOrSay(plan.userData, false);
        return true;
    }
    if (state != State::Free) {
        reportKeptLeftover(plan, state, error);
        return false;
    }
    KalPrompt::information(tr("Datei öffnen"),
                           tr("Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß abgeschlossen.\nDer "
                              "letzte Bearbeitungsstand wird geöffnet. Speichern Sie die Datei, wenn Sie diesen Stand "
                              "behalten wollen."));
    plan.recovered = true;
    return true;
}

// A file another SQLite tool left in WAL mode keeps committed rows in its
// "-wal" file: fold them into the file and switch it back to the rollback
// journal, so that the working copy (a copy of the file alone) has them all
// and no "-wal" is left to be replayed over a later version.
bool leaveWriteAheadLog(const QSqlDatabase &probe)
{
    QSqlQuery mode(probe);
    if (!mode.exec(QStringLiteral("PRAGMA journal_mode")) || !mode.next() ||
        mode.value(0).toString().compare(QLatin1String("wal"), Qt::CaseInsensitive) != 0)
        return true;
    mode.finish();
    QSqlQuery change(probe);
    change.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    return change.exec(QStringLiteral("PRAGMA journal_mode=DELETE")) && change.next() &&
           change.value(0).toString().compare(QLatin1String("delete"), Qt::CaseInsensitive) == 0;
}

// Step 4: version, project tables and integrity of the file itself. Opened
// for writing as SQLite needs it to roll back a journal that a crashed
// writer left beside it; nothing else is written.
bool probeProjectFile(KalOpenPlan &plan, QString *integrity)
{
    const QString name = QStringLiteral("VERSIONTEST");
    QString failure;
    QString failureTitle;
    // The integrity check reads every page; a large file not in the cache
    // would be read from the disk one page at a time.
    if (KalFileOps::isRegularFile(plan.file))
        KalFileOps::readAhead(plan.file);
    {
        QSqlDatabase probe = KalProjectLock::addProbeConnection(name, plan.file, false);
        if (!probe.open()) {
            failureTitle = tr("Datenbankfehler");
            failure = probe.lastError().text();
        } else {
            KalDatabaseSchema::applySafetyPragmas(probe);
            if (!leaveWriteAheadLog(probe)) {
                failureTitle = tr("Datenbankfehler");
                failure = tr("Die Datei\n%1\nwurde von einem anderen Programm im WAL-Modus gespeichert und kann "
                             "nicht umgestellt werden, da sie schreibgeschützt ist.")
                              .arg(native(plan.file));
            } else if (KalDatabaseSchema::isFileVersionNewer(KalDatabaseSchema::fileVersion(probe))) {
                failureTitle = tr("Dateifehler");
                failure = tr("Die Datei kann nicht geöffnet werden, da sie mit einer neueren Programmversion "
                             "erstellt wurde.");
            } else {
                *integrity = KalProject::checkIntegrity(name);
                plan.databaseBytes = KalSnapshot::databaseBytes(probe);
                // A readable SQLite file without the master-data table is
                // not a project; say so before a working copy is made of it.
                const QMap<QString, QString> tables = KalDatabaseSchema::tableMap(probe);
                const bool readable = probe.lastError().type() == QSqlError::NoError || !tables.isEmpty();
                if (*integrity == QLatin1String("ok") && readable && !tables.contains(QStringLiteral("kal"))) {
                    failureTitle = tr("Datenbankfehler");
                    failure = tr("Tabelle KAL fehlt");
                }
            }
        }
    }
    KalProjectLock::removeConnection(name);
    if (failure.isEmpty())
        return true;
    KalPrompt::critical(failureTitle, failure);
    return false;
}

enum class Damaged { GoOn, Stop, Restart };

// Step 5: a file that failed the check; offers the newest intact backup.
Damaged handleDamagedFile(const KalOpenPlan &plan)
{
    const QString title = tr("Beschädigte Datenbank-Datei");
    if (plan.afterRestore) {
        // Restored once already: asking again could go round in circles.
        KalPrompt::critical(title, tr("Die wiederhergestellte Datei\n%1\nist ebenfalls beschädigt und wird nicht "
                                      "geöffnet.")
                                       .arg(native(plan.file)));
        return Damaged::Stop;
    }
    int backupCount = 0;
    const QString backup = KalProject::findNewestIntactBackup(plan.file, &backupCount);
    KalPrompt::Message m;
    m.icon = KalPrompt::Warning;
    m.title = title;
    m.text = tr("Die interne Struktur der Mängel-Datenbank ist beschädigt.\nWenn Sie mit dieser Datenbank "
                "weiterarbeiten, drohen Datenverluste!\n");
    const KalPrompt::Button openDamaged{KalPrompt::AcceptCustom, tr("Beschädigte Datei öffnen")};
    if (!backup.isEmpty()) {
        const QString date = QLocale().toString(QFileInfo(backup).lastModified(), QLocale::ShortFormat);
        m.text += tr("Das neueste unbeschädigte Backup stammt vom %1.\nSoll dieses Backup wiederhergestellt werden "
                     "(empfohlen)?")
                      .arg(date);
        m.buttons = {{KalPrompt::AcceptCustom, tr("Backup wiederherstellen")}, openDamaged, {KalPrompt::Cancel, {}}};
        m.defaultButton = 0;
        m.escapeButton = 2;
    } else {
        m.text += backupCount == 0 ? tr("Es existieren keine Backup-Dateien. Wenn sie über Sicherungskopien dieser "
                                        "Datei verfügen, stellen Sie diese wieder her.\n")
                                   : tr("Die Backup-Dateien sind ebenfalls beschädigt. Wenn sie über "
                                        "Sicherungskopien dieser Datei verfügen, stellen Sie diese wieder her.\n");
        m.buttons = {openDamaged, {KalPrompt::RejectCustom, tr("Abbrechen")}};
        m.defaultButton = 1;
        m.escapeButton = 1;
    }
    const int answer = KalPrompt::ask(m);
    if (backup.isEmpty())
        return answer == 0 ? Damaged::GoOn : Damaged::Stop;
    if (answer == 1)
        return Damaged::GoOn;
    if (answer != 0)
        return Damaged::Stop;
    QString damagedName;
    QString error;
    if (KalProject::restoreBackup(plan.file, backup, &damagedName, &error) != KalProject::Restored) {
        KalPrompt::information(tr("Backup wiederherstellen"),
                               tr("Die Datei konnte nicht wiederhegestellt werden.\n") + error);
        return Damaged::Stop;
    }
    KalPrompt::information(tr("Backup wiederherstellen"),
                           tr("Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.\nDie "
                              "beschädigte Datei wurde umbenannt in %2.")
                               .arg(native(damagedName)));
    return Damaged::Restart;
}

// A file far larger than its pages (a sparse hole, bytes appended by
// another tool) would otherwise be copied and saved at its full size.
void reportExcessBytes(const KalOpenPlan &plan)
{
    const qint64 size = QFileInfo(plan.file).size();
    if (plan.databaseBytes <= 0 || size - plan.databaseBytes < qMax<qint64>(plan.databaseBytes, 1 << 20))
        return;
    KalPrompt::warning(
        tr("Datei-Warnung"),
        tr("Die Datei\n%1\nist %2 groß, enthält aber nur %3 Projektdaten. Der Rest der Datei gehört "
           "nicht zum Projekt und wird beim nächsten Speichern nicht übernommen.")
            .arg(native(plan.file), KalProject::sizeText(size), KalProject::sizeText(plan.databaseBytes)));
}

// Step 6: room for the working copy and, later, for saving.
bool checkSpaceToOpen(const KalOpenPlan &plan)
{
    const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(plan.file);
    if (!volume.valid || !volume.ready || plan.recovered)
        return true;
    const qint64 size = plan.databaseBytes > 0 ? plan.databaseBytes : QFileInfo(plan.file).size();
    const qint64 free = volume.bytesAvailable;
    if (free - size < 0) {
        reportNoSpaceToOpen(volume.name, size - free);
        return false;
    }
    if (free < 3 * size)
        KalPrompt::warning(tr("Speicherplatz"), tr("Sie sollten auf dem Laufwerk %1 Speicherplatz freigeben, da es "
                                                   "sonst zu Problemen beim Speichern des Projekts kommen kann.")
                                                    .arg(volume.name));
    return true;
}

// Step 7: the working copy, copied under a name of this process (two
// instances opening at the same moment never share or delete it) and given
// its real name only if nobody else made one meanwhile.
bool makeWorkingCopy(KalOpenPlan &plan)
{
    if (plan.recovered)
        return true;
    KalBusyScope busy(tr("Projekt wird geöffnet..."));
    const QString partial = KalProjectLock::privateName(plan.workingCopy, QStringLiteral(".part"));
    const auto failed = [&]() {
        QFile::remove(partial);
        KalPrompt::critical(tr("Dateifehler"), tr("Die Working Copy Datei konnte nicht erstellt werden."));
        return false;
    };
    if (!KalFileOps::copyFile(plan.file, partial, plan.databaseBytes))
        return failed();
    QFile::setPermissions(partial, QFile::permissions(partial) | QFile::WriteOwner | QFile::WriteUser |
                                       QFile::ReadOwner | QFile::ReadUser);
    switch (KalFileOps::installNew(partial, plan.workingCopy)) {
    case KalFileOps::Installed:
        plan.madeWorkingCopy = true;
        return true;
    case KalFileOps::AlreadyExists:
        // Another instance got there first and is opening it right now.
        QFile::remove(partial);
        KalProjectLock::reportHeld(plan.userData);
        return false;
    case KalFileOps::InstallFailed:
        break;
    }
    return failed();
}
} // namespace

bool KalProject::openProject(const QString &path)
{
    OpenOutcome outcome = openProjectStep(path, false);
    if (outcome == OpenRestart)
        outcome = openProjectStep(path, true);
    return outcome == OpenDone;
}

KalProject::OpenOutcome KalProject::openProjectStep(const QString &path, bool afterRestore)
{
    KalOpenPlan plan;
    plan.file = QFileInfo(path).absoluteFilePath();
    plan.workingCopy = plan.file + QStringLiteral(".workingcopy");
    plan.userData = plan.file + QStringLiteral(".udf");
    plan.afterRestore = afterRestore;
    if (path.isEmpty() || !KalFileOps::isRegularFile(plan.file)) {
        KalPrompt::critical(tr("Dateifehler"), tr("Die Datei\n%1\nexistiert nicht.").arg(native(path)));
        return OpenStopped;
    }
    // Reopening the open project: it must let go of its own working copy
    // first (probing that file from here would drop our own lock).
    if (m_open && QFileInfo(m_projectPath).canonicalFilePath() == QFileInfo(plan.file).canonicalFilePath() &&
        !closeProject())
        return OpenStopped;

    ScopeGuard undo([&]() {
        if (plan.switched) {
            closeConnection();
            resetState();
        }
        if (plan.madeWorkingCopy)
            KalFileOps::removeDatabaseFile(plan.workingCopy);
        if (plan.wroteUserData)
            QFile::remove(plan.userData);
    });
    if (!companionsAreNoLinks(plan) || !handleLeftover(plan))
        return OpenStopped;
    QString integrity;
    if (!probeProjectFile(plan, &integrity))
        return OpenStopped;
    if (integrity != QLatin1String("ok") && !plan.recovered) {
        const Damaged damaged = handleDamagedFile(plan);
        if (damaged != Damaged::GoOn)
            return damaged == Damaged::Restart ? OpenRestart : OpenStopped;
    }
    reportExcessBytes(plan);
    if (!checkSpaceToOpen(plan) || !makeWorkingCopy(plan) || !switchToWorkingCopy(plan))
        return OpenStopped;
    undo.dismiss();
    return OpenDone;
}

// Steps 8 to 11: gives up the previous project, locks the new working copy
// and builds the models on it.
bool KalProject::switchToWorkingCopy(KalOpenPlan &plan)
{
    if (m_open && !closeProject())
        return false;
    resetState();
    plan.switched = true;
    if (!openConnection(plan.workingCopy, true))
        return false;
    QString error;
    QSqlError sqlError;
    const bool locked = KalProjectLock::writeTest(connectionName(), &error, &sqlError);
    // Another instance may have taken the name between our copy and our
    // lock; then the file we hold is no longer the working copy.
    if (!locked && !KalProjectLock::isLockError(sqlError)) {
        KalPrompt::critical(QStringLiteral("SQL Error"), error);
        return false;
    }
    if (!locked || !KalFileOps::namesOpenFile(plan.workingCopy, m_workingCopyFd)) {
        // Whatever now has that name belongs to the other instance.
        plan.madeWorkingCopy = false;
        KalProjectLock::reportHeld(plan.userData);
        return false;
    }
    m_projectPath = plan.file;
    m_workingCopyPath = plan.workingCopy;
    m_userDataPath = plan.userData;
    plan.wroteUserData = writeUserDataFile(true);
    m_tableMap = KalDatabaseSchema::tableMap(database());
    if (!m_tableMap.contains(QStringLiteral("kal"))) {
        KalPrompt::critical(tr("Datenbankfehler"), tr("Tabelle KAL fehlt"));
        plan.madeWorkingCopy = true; // made from a file that is no project: of no use to anybody
        return false;
    }
    buildModels();
    m_fileVersion = KalDatabaseSchema::fileVersion(database());
    m_automaticImportMode = KalDatabaseSchema::automaticImportMode(database());
    m_backupsMade = false;
    m_writeProtected = KalFileOps::isReadOnly(plan.file);
    m_open = true;
    // A recovered state was never saved: closing must ask like for any edit.
    setModified(plan.recovered);
    emit projectOpened();
    if (m_writeProtected)
        KalPrompt::warning(tr("Datei-Warnung"),
                           tr("Sie haben keine Schreibrechte für die Datei %1.\nWenn Sie die Datei speichern wollen, "
                              "können Sie dies nur unter einem anderen Namen oder in einen anderen Ordner.\nWählen "
                              "Sie hierzu im Menü 'Datei' den Menüpunkt 'Speichern unter'.")
                               .arg(native(plan.file)));
    return true;
}
