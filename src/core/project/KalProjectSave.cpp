// Saving and compacting. The project file is never missing or half-written:
// the new state is written beside it from the open connection, synced and
// checked, the previous file is kept as the newest backup through a hard
// link, and one atomic rename puts the new file in place. The working copy
// stays open and locked throughout.
#include "core/project/KalLog.h"
#include "core/project/KalProject.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProjectLock.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSnapshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

namespace {
QString nativeName(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

// Snapshot files of saves that were killed before they finished.
void removeStaleSnapshots(const QString &target)
{
    KalProjectLock::removeStalePrivateFiles(target, QStringLiteral(".saving"));
}

QString snapshotName(const QString &target)
{
    return KalProjectLock::privateName(target, QStringLiteral(".saving"));
}

void reportNoSpaceForSaving(const QString &volume, qint64 shortfall)
{
    KalPrompt::critical(KalProject::tr("Speicherplatz nicht ausreichend"),
                        KalProject::tr("Auf dem Ziellaufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um "
                                       "das Projekt zu speichern.\nGeben Sie mindestens %2 MB Speicherplatz frei und "
                                       "versuchen Sie es erneut.")
                            .arg(volume)
                            .arg(shortfall / 1000000));
}

// Save as must not take a project away from the instance that has it open:
// the same write test as opening, on the target's working copy.
bool targetIsHeld(const QString &target)
{
    const QString workingCopy = target + QStringLiteral(".workingcopy");
    if (!QFileInfo::exists(workingCopy))
        return false;
    QString error;
    if (KalProjectLock::probe(workingCopy, &error) != KalProjectLock::State::Held)
        return false;
    KalProjectLock::reportHeld(target + QStringLiteral(".udf"));
    return true;
}

// Writes the new working copy of a save as under a name of this process
// and gives it its name only if no other instance made one meanwhile (a
// crashed run's leftover, found unheld before, is replaced).
int installWorkingCopy(const QSqlDatabase &db, int sourceFd, const QString &workingCopy, const QString &userData)
{
    const auto failed = [&]() {
        KalPrompt::critical(KalProject::tr("Dateifehler"),
                            KalProject::tr("Fehler beim Kopieren der Working Copy Datei."));
        return int(KalProject::SaveFailed);
    };
    const QString temporary = snapshotName(workingCopy);
    removeStaleSnapshots(workingCopy);
    QString error;
    if (!KalFileOps::removeDatabaseFile(workingCopy) || !KalSnapshot::write(db, temporary, &error, sourceFd))
        return failed();
    switch (KalFileOps::installNew(temporary, workingCopy)) {
    case KalFileOps::Installed:
        KalFileOps::syncDirectory(QFileInfo(workingCopy).absolutePath());
        return KalProject::Saved;
    case KalFileOps::AlreadyExists:
        QFile::remove(temporary);
        KalProjectLock::reportHeld(userData);
        return KalProject::NotSaved;
    case KalFileOps::InstallFailed:
        break;
    }
    QFile::remove(temporary);
    return failed();
}

bool sameFile(const QString &a, const QString &b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return a == b || (!canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath());
}

qint64 fileSize(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? info.size() : 0;
}
} // namespace

bool KalProject::writeSnapshot(const QString &targetFile, QString *errorText)
{
    const QString temporary = snapshotName(targetFile);
    removeStaleSnapshots(targetFile);
    if (!KalSnapshot::write(database(), temporary, errorText, m_workingCopyFd))
        return false;
    if (QFileInfo::exists(targetFile))
        KalFileOps::keepModeAndGroup(targetFile, temporary);
    // A journal beside the file being replaced belongs to the old file (a
    // crashed run's leftover); rolled back into the new one it would damage it.
    QFile::remove(targetFile + QStringLiteral("-journal"));
    if (!KalFileOps::replaceFile(temporary, targetFile)) {
        QFile::remove(temporary);
        if (errorText)
            *errorText = QStringLiteral("rename failed");
        return false;
    }
    KalFileOps::syncDirectory(QFileInfo(targetFile).absolutePath());
    return true;
}

int KalProject::saveProject(const QString &target)
{
    if (!m_open)
        return SaveFailed;
    // Changes of an unfinished outer transaction belong to the save.
    while (m_transactions.depth() > 0)
        m_transactions.commit();
    // A transaction still open outside the counted ones (a commit that
    // failed earlier) holds edits too; no consistent copy can be made under it.
    if (KalSnapshot::inTransaction(database())) {
        QSqlQuery commit(database());
        if (!commit.exec(QStringLiteral("COMMIT TRANSACTION"))) {
            KalPrompt::critical(tr("Datenbankfehler"), commit.lastError().text());
            return SaveFailed;
        }
    }
    KalDatabaseSchema::setFileVersion(database(), KalDatabaseSchema::programFileVersion());

    if (target.isEmpty()) {
        if (!m_projectPath.isEmpty() && QFileInfo::exists(m_projectPath) && KalFileOps::isReadOnly(m_projectPath)) {
            KalPrompt::warning(tr("Speicher-Fehler"),
                               tr("Sie können die Datei %1 nicht speichern, da sie keine Schreibrechte "
                                  "besitzen.\nWählen Sie im Menü 'Datei' den Menüpunkt 'Speichern unter',\num die "
                                  "Datei unter einem anderen Namen oder in einen anderen Ordner zu speichern.\n")
                                   .arg(nativeName(m_projectPath)));
            return NotSaved;
        }
    }
    KalBusyScope busy(tr("Projekt wird gespeichert..."));
    const int result = target.isEmpty() ? saveInPlace() : saveAs(QFileInfo(target).absoluteFilePath());
    if (result == Saved) {
        if (!QFileInfo::exists(m_userDataPath))
            writeUserDataFile(false);
        m_backupsMade = m_backupsMade || target.isEmpty();
        setModified(false);
    }
    return result;
}

int KalProject::saveInPlace()
{
    if (m_projectPath.isEmpty()) {
        KalPrompt::critical(tr("interner Fehler"), tr("Dateiname fehlt."));
        return SaveFailed;
    }
    const int n = KalSettings::numberOfBackups();
    const qint64 workingSize = fileSize(m_workingCopyPath);

    const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(m_projectPath);
    if (volume.valid && volume.ready) {
        qint64 freed = 0;
        if (n < 1)
            freed = fileSize(m_projectPath);
        else
            freed = fileSize(backupFileName(m_projectPath, m_backupsMade ? 0 : n - 1));
        const qint64 balance = volume.bytesAvailable + freed - workingSize;
        if (balance < 0) {
            reportNoSpaceForSaving(volume.name, -balance);
            return SaveFailed;
        }
    }

    // Make room first, as the space check counted on it.
    const bool projectExists = QFileInfo::exists(m_projectPath);
    if (n >= 1 && projectExists) {
        const QString oldest = backupFileName(m_projectPath, m_backupsMade ? 0 : n - 1);
        if (QFileInfo::exists(oldest) && !QFile::remove(oldest))
            KalPrompt::critical(tr("Dateifehler"),
                                tr("Löschen der Backup-Datei\n%1\n fehlgeschlagen.").arg(nativeName(oldest)));
    }

    const QString temporary = snapshotName(m_projectPath);
    removeStaleSnapshots(m_projectPath);
    QString error;
    if (!KalSnapshot::write(database(), temporary, &error, m_workingCopyFd)) {
        qCDebug(kalSqlLog, "Save failed: %s", qPrintable(error));
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Kopieren der Datei\n%1\n fehlgeschlagen.").arg(nativeName(m_projectPath)));
        return SaveFailed;
    }

    if (n >= 1 && projectExists) {
        if (!m_backupsMade) {
            for (int k = n - 1; k >= 1; --k) {
                const QString from = backupFileName(m_projectPath, k - 1);
                if (!QFileInfo::exists(from))
                    continue;
                const QString to = backupFileName(m_projectPath, k);
                QFile::remove(to);
                if (KalFileOps::injectedFault(QStringLiteral("rename"), from) || !QFile::rename(from, to))
                    KalPrompt::critical(tr("Dateifehler"),
                                        tr("Umbenennen der Backup-Datei\n%1\n fehlgeschlagen.").arg(nativeName(from)));
            }
        }
        const QString slot0 = backupFileName(m_projectPath, 0);
        QFile::remove(slot0);
        if (!KalFileOps::linkOrCopy(m_projectPath, slot0))
            KalPrompt::critical(tr("Dateifehler"),
                                tr("Umbenennen der Backup-Datei\n%1\n fehlgeschlagen.").arg(nativeName(m_projectPath)));
    }

    if (projectExists)
        KalFileOps::keepModeAndGroup(m_projectPath, temporary);
    if (!KalFileOps::replaceFile(temporary, m_projectPath)) {
        QFile::remove(temporary);
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Kopieren der Datei\n%1\n fehlgeschlagen.").arg(nativeName(m_projectPath)));
        return SaveFailed;
    }
    KalFileOps::syncDirectory(QFileInfo(m_projectPath).absolutePath());
    return Saved;
}

int KalProject::saveAs(const QString &target)
{
    if (sameFile(target, m_projectPath))
        return saveInPlace();
    const QString folder = QFileInfo(target).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        KalPrompt::critical(tr("Dateifehler"), tr("Der Ordner\n%1\nexistiert nicht.").arg(nativeName(folder)));
        return SaveFailed;
    }
    if (targetIsHeld(target))
        return SaveFailed;
    const qint64 workingSize = fileSize(m_workingCopyPath);
    const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(target);
    if (volume.valid && volume.ready) {
        const qint64 balance = volume.bytesAvailable + fileSize(target) - 2 * workingSize;
        if (balance < 0) {
            reportNoSpaceForSaving(volume.name, -balance);
            return SaveFailed;
        }
    }
    const QFileInfo targetInfo(target);
    if (targetInfo.exists() &&
        (KalFileOps::isReadOnly(target) || KalFileOps::injectedFault(QStringLiteral("remove"), target))) {
        KalPrompt::critical(tr("Dateifehler"),
                            tr("Die Datei\n%1\nkonnte nicht gelöscht werden.").arg(nativeName(target)));
        return SaveFailed;
    }
    const QString newWorkingCopy = target + QStringLiteral(".workingcopy");
    const QString newUserData = target + QStringLiteral(".udf");

    // The new working copy first: if it cannot be made, the target is not touched.
    const int installed = installWorkingCopy(database(), m_workingCopyFd, newWorkingCopy, newUserData);
    if (installed != Saved)
        return SaveFailed;
    QString error;
    if (!writeSnapshot(target, &error)) {
        KalFileOps::removeDatabaseFile(newWorkingCopy);
        KalPrompt::critical(tr("Dateifehler"), tr("Fehler beim Kopieren der Working Copy Datei."));
        return SaveFailed;
    }

    // Switch the connection to the new working copy.
    const QString oldProjectPath = m_projectPath;
    const QString oldWorkingCopy = m_workingCopyPath;
    const QString oldUserData = m_userDataPath;
    const bool oldWriteProtected = m_writeProtected;
    const bool oldBackupsMade = m_backupsMade;
    emit projectAboutToClose();
    m_open = false;
    dropModels();
    closeConnection();
    m_projectPath = target;
    m_workingCopyPath = newWorkingCopy;
    m_userDataPath = newUserData;
    m_writeProtected = false;
    m_backupsMade = false;
    const int reopened = reopenWorkingCopy();
    if (reopened != Saved) {
        // Keep working on the old copy: nothing of the user's edits is lost.
        m_projectPath = oldProjectPath;
        m_workingCopyPath = oldWorkingCopy;
        m_userDataPath = oldUserData;
        m_writeProtected = oldWriteProtected;
        m_backupsMade = oldBackupsMade;
        reopenWorkingCopy();
        if (reopened != NotSaved) // otherwise the name is another instance's now
            KalFileOps::removeDatabaseFile(newWorkingCopy);
        return SaveFailed;
    }
    KalFileOps::removeDatabaseFile(oldWorkingCopy);
    if (!oldUserData.isEmpty() && QFileInfo::exists(oldUserData)) {
        QFile::remove(newUserData);
        if (!QFile::rename(oldUserData, newUserData))
            QFile::remove(oldUserData);
    }
    return Saved;
}

int KalProject::reopenWorkingCopy()
{
    if (!openConnection(m_workingCopyPath, true))
        return SaveFailed;
    QString error;
    QSqlError sqlError;
    const bool locked = writeTest(connectionName(), &error, &sqlError);
    if (!locked && !KalProjectLock::isLockError(sqlError)) {
        KalPrompt::critical(QStringLiteral("SQL Error"), error);
        closeConnection();
        return SaveFailed;
    }
    // Another instance took the name before we held the file: it is theirs.
    if (!locked || !KalFileOps::namesOpenFile(m_workingCopyPath, m_workingCopyFd)) {
        KalProjectLock::reportHeld(m_userDataPath);
        closeConnection();
        return NotSaved;
    }
    if (!m_userDataPath.isEmpty() && !QFileInfo::exists(m_userDataPath))
        writeUserDataFile(false);
    m_tableMap = KalDatabaseSchema::tableMap(database());
    buildModels();
    m_open = true;
    emit projectOpened();
    return Saved;
}

bool KalProject::vacuumDatabase(bool silent)
{
    if (!m_open)
        return false;
    const QString title = tr("Datenbank bereinigen");
    KalBusyScope busy(title);
    if (!silent)
        KalPrompt::instance()->notice(
            title,
            tr("Die Datenbank wird jetzt bereinigt.\nDieser Vorgang kann für größere Datenbanken mehrere Minuten "
               "dauern.\n\nUnterbrechen Sie diesen Vorgang nicht und schalten Sie den Computer nicht aus.\n"),
            5000);
    const qint64 before = fileSize(m_workingCopyPath);
    while (m_transactions.depth() > 0)
        m_transactions.commit();
    // No statement of a model may be pending while SQLite rewrites the file.
    emit projectAboutToClose();
    dropModels();
    auto rebuild = [this]() {
        buildModels();
        emit projectOpened();
    };
    QSqlQuery vacuum(database());
    if (!vacuum.exec(QStringLiteral("VACUUM"))) {
        qCDebug(kalSqlLog, "SQL-Error: %s\n", qPrintable(vacuum.lastError().text()));
        rebuild();
        KalPrompt::critical(title, tr("Aufgrund eines SQL-Fehlers konnte die Datenbank nicht bereinigt werden."));
        return false;
    }
    const qint64 after = fileSize(m_workingCopyPath);
    rebuild();

    if (!m_projectPath.isEmpty() && saveProject() == SaveFailed) {
        KalPrompt::critical(title, tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!\nDie Datenbank "
                                      "konnte nicht bereinigt werden.\n"));
        return false;
    }
    const QString beforeText = sizeText(before);
    const QString afterText = sizeText(after);
    // Compared in the units the user is shown.
    const qint64 beforeMb = before / 1024000;
    const qint64 afterMb = after / 1024000;
    bool smaller = false;
    if (beforeMb > 0)
        smaller = afterMb == 0 || afterMb < beforeMb;
    else
        smaller = afterMb == 0 && after / 1024 < before / 1024;
    if (!smaller)
        KalPrompt::information(title, tr("Die Datenbank wurde erfolgreich bereinigt.\n"));
    else
        KalPrompt::information(title, tr("Die Datenbank wurde erfolgreich bereinigt.\nDie Dateigröße wurde von %1 "
                                         "auf %2 reduziert.")
                                          .arg(beforeText, afterText));
    return true;
}
