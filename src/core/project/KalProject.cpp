#include "KalProject.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QRandomGenerator>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTextStream>
#include <QThread>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {
const char *const kProbeLeftover = "BTBLOCK";
const char *const kProbeVersion = "VERSIONTEST";
const char *const kProbeBackup = "BCKTEST";

QString fileErrorTitle()
{
    return KalProject::tr("Dateifehler");
}

QString deleteFailedText(const QString &path)
{
    return KalProject::tr("Löschen der Datei\n%1\n fehlgeschlagen.").arg(QDir::toNativeSeparators(path));
}

// Connections to files this program did not necessarily write itself.
QSqlDatabase addProbeConnection(const QString &name, const QString &file, bool readOnly)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    db.setDatabaseName(file);
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=500");
    if (readOnly)
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
    db.setConnectOptions(options);
    return db;
}

void removeConnection(const QString &name)
{
    {
        QSqlDatabase db = QSqlDatabase::database(name, false);
        if (db.isValid())
            db.close();
    }
    QSqlDatabase::removeDatabase(name);
}

bool isLockError(const QSqlError &error)
{
    // SQLITE_BUSY (5) and SQLITE_LOCKED (6), with their extended codes.
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok) & 0xff;
    return ok && (code == 5 || code == 6);
}

// Thumbnails come from files anybody may have written: look at the size
// before decoding, so a hostile one cannot take all memory.
QImage decodeThumbnail(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > 4096LL * 4096LL)
        return QImage();
    return reader.read();
}

bool isConstraintError(const QSqlError &error)
{
    // SQLITE_CONSTRAINT (19) and its extended codes end in 19 modulo 256.
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok);
    return ok && (code & 0xff) == 19;
}
} // namespace

KalProject::KalProject(QObject *parent)
    : QObject(parent)
    , m_transactions(connectionName())
{
}

KalProject::~KalProject()
{
    if (m_open)
        closeProject();
}

QSqlDatabase KalProject::database() const
{
    return QSqlDatabase::database(connectionName(), false);
}

void KalProject::setModified(bool modified)
{
    if (m_modified == modified)
        return;
    m_modified = modified;
    emit modifiedChanged(modified);
}

bool KalProject::beginTransaction()
{
    return m_transactions.begin();
}

bool KalProject::commitTransaction()
{
    return m_transactions.commit();
}

bool KalProject::rollbackTransaction()
{
    return m_transactions.rollback();
}

qint64 KalProject::nextId(const QString &table)
{
    return KalDatabaseSchema::nextId(database(), m_transactions, table);
}

bool KalProject::setIdCounter(const QString &table, qint64 value)
{
    return KalDatabaseSchema::setIdCounter(database(), m_transactions, table, value);
}

int KalProject::readAutomaticImportMode()
{
    m_automaticImportMode = KalDatabaseSchema::automaticImportMode(database());
    return m_automaticImportMode;
}

KalSqlTableModel *KalProject::model(const QString &table) const
{
    return m_models ? m_models->model(table) : nullptr;
}

QImage KalProject::imageThumbnail(qint64 imageId) const
{
    QSqlQuery query(database());
    query.prepare(QStringLiteral("SELECT thumbnail FROM image WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), imageId);
    if (query.exec() && query.next())
        return decodeThumbnail(query.value(0).toByteArray());
    return QImage();
}

QImage KalProject::planThumbnail(qint64 planId) const
{
    QSqlQuery query(database());
    query.prepare(QStringLiteral("SELECT thumbnail FROM plan WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), planId);
    if (query.exec() && query.next())
        return decodeThumbnail(query.value(0).toByteArray());
    return QImage();
}

// ---------------------------------------------------------------------------
// Connection

bool KalProject::openConnection(const QString &file, bool showErrors)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName());
    db.setDatabaseName(file);
    if (!db.open()) {
        const QString text = db.lastError().text();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(connectionName());
        if (showErrors)
            KalPrompt::critical(tr("Datenbankfehler"), text);
        return false;
    }
    QSqlQuery query(db);
    query.exec(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
    KalDatabaseSchema::applySafetyPragmas(db);
    query.exec(QStringLiteral("PRAGMA journal_mode=DELETE"));
    query.exec(QStringLiteral("PRAGMA synchronous=FULL"));
    m_transactions.setConnectionName(connectionName());
#ifdef Q_OS_UNIX
    m_workingCopyFd = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
#endif
    return true;
}

void KalProject::closeConnection()
{
    m_transactions.reset();
    removeConnection(connectionName());
#ifdef Q_OS_UNIX
    if (m_workingCopyFd >= 0)
        ::close(m_workingCopyFd);
#endif
    m_workingCopyFd = -1;
}

// Inserts and deletes a dummy meta row. On the project connection this takes
// SQLite's exclusive lock and keeps it until the connection closes.
bool KalProject::writeTest(const QString &connection, QString *errorText, QSqlError *sqlError)
{
    QSqlDatabase db = QSqlDatabase::database(connection, false);
    QSqlQuery query(db);
    bool ok = query.exec(QStringLiteral("INSERT INTO meta (KEY, VALUE) VALUES('dummy', 'dummy');"));
    if (!ok && isConstraintError(query.lastError())) {
        // A run killed between the two statements left the dummy behind.
        QSqlQuery cleanup(db);
        if (cleanup.exec(QStringLiteral("DELETE FROM meta WHERE KEY='dummy';")))
            ok = query.exec(QStringLiteral("INSERT INTO meta (KEY, VALUE) VALUES('dummy', 'dummy');"));
    }
    if (ok)
        ok = query.exec(QStringLiteral("DELETE FROM meta WHERE KEY='dummy';"));
    if (!ok && errorText)
        *errorText = query.lastError().text();
    if (!ok && sqlError)
        *sqlError = query.lastError();
    return ok;
}

bool KalProject::writeUserDataFile(bool withProcessId)
{
    if (m_userDataPath.isEmpty())
        return false;
    QString user = KalEnvironment::userName();
    if (user.isEmpty())
        user = tr("unbekannt");
    QString computer = KalEnvironment::computerName();
    if (computer.isEmpty())
        computer = tr("unbekannt");
    const QDateTime now = KalEnvironment::now();
    QFile file(m_userDataPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << user << "\n"
        << computer << "\n"
        << QLocale().toString(now.date(), QLocale::ShortFormat) << "\n"
        << now.time().toString(QStringLiteral("hh:mm")) << "\n";
    if (withProcessId)
        out << QCoreApplication::applicationPid() << "\n";
    out.flush();
    return file.error() == QFile::NoError;
}

void KalProject::buildModels()
{
    m_models.reset(new KalProjectModels(this));
}

void KalProject::dropModels()
{
    m_models.reset();
}

void KalProject::resetState()
{
    m_projectPath.clear();
    m_workingCopyPath.clear();
    m_userDataPath.clear();
    m_open = false;
    m_writeProtected = false;
    m_backupsMade = false;
    m_fileVersion.clear();
    m_automaticImportMode = -1;
    m_tableMap.clear();
    setModified(false);
}

// ---------------------------------------------------------------------------
// New, open, close

QString KalProject::temporaryFileName(const QString &extension)
{
    for (;;) {
        QString name = QDir::tempPath() + QStringLiteral("/kal_temp.") +
                       QString::number(QDateTime::currentMSecsSinceEpoch()) + QLatin1Char('.') +
                       QString::number(QRandomGenerator::global()->bounded(1u << 30));
        if (!extension.isEmpty())
            name += QLatin1Char('.') + extension;
        if (!QFileInfo::exists(name))
            return name;
        QThread::msleep(500);
    }
}

bool KalProject::newProject()
{
    if (m_open && !closeProject())
        return false;
    resetState();
    const QString file = temporaryFileName();
    if (!openConnection(file, true))
        return false;
    // The schema is written in an exclusive transaction, which also takes
    // the lock this connection keeps.
    if (!KalDatabaseSchema::createSchema(database(), m_transactions)) {
        closeConnection();
        KalFileOps::removeDatabaseFile(file);
        return false;
    }
    m_workingCopyPath = file;
    m_fileVersion = KalDatabaseSchema::fileVersion(database());
    m_automaticImportMode = -1;
    m_tableMap = KalDatabaseSchema::tableMap(database());
    buildModels();
    m_open = true;
    setModified(false);
    emit projectOpened();
    return true;
}

bool KalProject::openProject(const QString &path)
{
    if (m_open && !closeProject())
        return false;
    QString current = path;
    for (int attempt = 0; attempt < 4; ++attempt) {
        bool restart = false;
        const int result = openProjectStep(current, &restart);
        if (!restart)
            return result == 0;
    }
    return false;
}

bool KalProject::handleLeftoverWorkingCopy(const QString &path, bool *useLeftover)
{
    Q_UNUSED(path)
    *useLeftover = false;
    QFile::remove(m_workingCopyPath + QStringLiteral(".part"));
    if (!QFileInfo::exists(m_workingCopyPath))
        return true;

    QString error;
    bool held = false;
    bool unusable = false;
    {
        QSqlDatabase probe = addProbeConnection(QString::fromLatin1(kProbeLeftover), m_workingCopyPath, false);
        if (!probe.open()) {
            const QString text = probe.lastError().text();
            probe = QSqlDatabase();
            removeConnection(QString::fromLatin1(kProbeLeftover));
            KalPrompt::critical(tr("Datenbankfehler"), text);
            return false;
        }
        KalDatabaseSchema::applySafetyPragmas(probe);
        QSqlError sqlError;
        held = !writeTest(QString::fromLatin1(kProbeLeftover), &error, &sqlError);
        // Only a lock means somebody works on it; a leftover that cannot be
        // written for any other reason is unusable and is discarded below.
        if (held && !isLockError(sqlError)) {
            held = false;
            unusable = true;
        }
    }
    removeConnection(QString::fromLatin1(kProbeLeftover));
    if (unusable) {
        qDebug("Discarding unusable working copy: %s", qPrintable(error));
        if (!KalFileOps::removeDatabaseFile(m_workingCopyPath)) {
            KalPrompt::critical(fileErrorTitle(), deleteFailedText(m_workingCopyPath));
            return false;
        }
        QFile::remove(m_userDataPath);
        return true;
    }

    if (held) {
        QFile udf(m_userDataPath);
        QString text;
        if (udf.open(QIODevice::ReadOnly | QIODevice::Text)) {
            QTextStream in(&udf);
            in.setCodec("UTF-8");
            QStringList lines;
            for (int i = 0; i < 4; ++i)
                lines << in.readLine();
            text = tr("Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von\nUser: %1\nComputer: "
                      "%2\nseit dem %3 %4 Uhr.")
                       .arg(lines.at(0), lines.at(1), lines.at(2), lines.at(3));
        } else {
            text = tr("Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist.");
        }
        KalPrompt::critical(tr("Datenbank in Bearbeitung"), text);
        return false;
    }

    // Nobody holds it: an interrupted run left it behind. Only the same user
    // on the same computer gets that state back.
    if (!QFileInfo::exists(m_userDataPath)) {
        if (!KalFileOps::removeDatabaseFile(m_workingCopyPath)) {
            KalPrompt::critical(fileErrorTitle(), deleteFailedText(m_workingCopyPath));
            return false;
        }
    } else {
        QFile udf(m_userDataPath);
        QStringList lines;
        if (udf.open(QIODevice::ReadOnly | QIODevice::Text)) {
            QTextStream in(&udf);
            in.setCodec("UTF-8");
            lines << in.readLine() << in.readLine();
        }
        udf.close();
        const QString user = KalEnvironment::userNameVariable();
        const QString computer = KalEnvironment::computerNameVariable();
        const bool someoneElse =
            !user.isEmpty() && !computer.isEmpty() && (lines.value(0) != user || lines.value(1) != computer);
        if (someoneElse) {
            if (!KalFileOps::removeDatabaseFile(m_workingCopyPath)) {
                KalPrompt::critical(fileErrorTitle(), deleteFailedText(m_workingCopyPath));
                return false;
            }
            if (!QFile::remove(m_userDataPath))
                KalPrompt::critical(fileErrorTitle(), deleteFailedText(m_userDataPath));
        }
    }
    if (QFileInfo::exists(m_workingCopyPath)) {
        KalPrompt::information(tr("Datei öffnen"),
                               tr("Die letzte Bearbeitung der Mängel-Datei wurde nicht ordnungsgemäß "
                                  "abgeschlossen.\nDer letzte Bearbeitungsstand wird geöffnet. Speichern Sie die "
                                  "Datei, wenn Sie diesen Stand behalten wollen."));
        *useLeftover = true;
    }
    return true;
}

// One pass of opening; sets `restart` when a restored backup must be opened
// from the beginning. Returns 0 when the project is open.
int KalProject::openProjectStep(const QString &path, bool *restart)
{
    *restart = false;
    resetState();
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (path.isEmpty() || !QFileInfo(absolute).isFile()) {
        KalPrompt::critical(fileErrorTitle(),
                            tr("Die Datei\n%1\nexistiert nicht.").arg(QDir::toNativeSeparators(path)));
        return 1;
    }
    m_userDataPath = absolute + QStringLiteral(".udf");
    m_workingCopyPath = absolute + QStringLiteral(".workingcopy");

    bool useLeftover = false;
    if (!handleLeftoverWorkingCopy(absolute, &useLeftover)) {
        resetState();
        return 1;
    }

    // Version, project tables and integrity of the project file itself,
    // read-only: opening must never change it.
    QString integrity;
    {
        QSqlDatabase probe = addProbeConnection(QString::fromLatin1(kProbeVersion), absolute, true);
        if (!probe.open()) {
            const QString text = probe.lastError().text();
            probe = QSqlDatabase();
            removeConnection(QString::fromLatin1(kProbeVersion));
            KalPrompt::critical(tr("Datenbankfehler"), text);
            resetState();
            return 1;
        }
        KalDatabaseSchema::applySafetyPragmas(probe);
        const QString version = KalDatabaseSchema::fileVersion(probe);
        if (KalDatabaseSchema::isFileVersionNewer(version)) {
            probe = QSqlDatabase();
            removeConnection(QString::fromLatin1(kProbeVersion));
            KalPrompt::critical(fileErrorTitle(), tr("Die Datei kann nicht geöffnet werden, da sie mit einer "
                                                     "neueren Programmversion erstellt wurde."));
            resetState();
            return 1;
        }
        integrity = checkIntegrity(QString::fromLatin1(kProbeVersion));
        // A readable SQLite file without the master-data table is not a
        // project; say so before a working copy is made of it.
        const QMap<QString, QString> tables = KalDatabaseSchema::tableMap(probe);
        const bool readable = probe.lastError().type() == QSqlError::NoError || !tables.isEmpty();
        probe = QSqlDatabase();
        removeConnection(QString::fromLatin1(kProbeVersion));
        if (integrity == QLatin1String("ok") && readable && !tables.contains(QStringLiteral("kal"))) {
            KalPrompt::critical(tr("Datenbankfehler"), tr("Tabelle KAL fehlt"));
            resetState();
            return 1;
        }
    }

    if (integrity != QLatin1String("ok") && !useLeftover) {
        int backupCount = 0;
        const QString backup = findNewestIntactBackup(absolute, &backupCount);
        const QString intro = tr("Die interne Struktur der Mängel-Datenbank ist beschädigt.\nWenn Sie mit dieser "
                                 "Datenbank weiterarbeiten, drohen Datenverluste!\n");
        KalPrompt::Message m;
        m.icon = KalPrompt::Warning;
        m.title = tr("Beschädigte Datenbank-Datei");
        const KalPrompt::Button restoreButton{KalPrompt::AcceptCustom, tr("Backup wiederherstellen")};
        const KalPrompt::Button openDamaged{KalPrompt::AcceptCustom, tr("Beschädigte Datei öffnen")};
        if (!backup.isEmpty()) {
            const QString date = QLocale().toString(QFileInfo(backup).lastModified(), QLocale::ShortFormat);
            m.text = intro +
                     tr("Das neueste unbeschädigte Backup stammt vom %1.\nSoll dieses Backup wiederhergestellt werden "
                        "(empfohlen)?")
                         .arg(date);
            m.buttons = {restoreButton, openDamaged, {KalPrompt::Cancel, {}}};
            m.defaultButton = 0;
            m.escapeButton = 2;
        } else {
            if (backupCount == 0)
                m.text = intro +
                         tr("Es existieren keine Backup-Dateien. Wenn sie über Sicherungskopien dieser Datei verfügen, "
                            "stellen Sie diese wieder her.\n");
            else
                m.text = intro +
                         tr("Die Backup-Dateien sind ebenfalls beschädigt. Wenn sie über Sicherungskopien dieser Datei "
                            "verfügen, stellen Sie diese wieder her.\n");
            m.buttons = {openDamaged, {KalPrompt::RejectCustom, tr("Abbrechen")}};
            m.defaultButton = 1;
            m.escapeButton = 1;
        }
        const int answer = KalPrompt::ask(m);
        const bool wantsRestore = !backup.isEmpty() && answer == 0;
        const bool wantsDamaged = backup.isEmpty() ? answer == 0 : answer == 1;
        if (wantsRestore) {
            QString damagedName;
            QString error;
            if (restoreBackup(absolute, backup, &damagedName, &error) != Restored) {
                KalPrompt::information(tr("Backup wiederherstellen"),
                                       tr("Die Datei konnte nicht wiederhegestellt werden.\n") + error);
                resetState();
                return 1;
            }
            KalPrompt::information(tr("Backup wiederherstellen"),
                                   tr("Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.\nDie "
                                      "beschädigte Datei wurde umbenannt in %2.")
                                       .arg(QDir::toNativeSeparators(damagedName)));
            *restart = true;
            return 1;
        }
        if (!wantsDamaged) {
            resetState();
            return 1;
        }
    }

    // Room for the working copy and, later, for saving.
    const KalEnvironment::VolumeInfo volume = KalEnvironment::volumeInfo(absolute);
    if (volume.valid && volume.ready && !useLeftover) {
        const qint64 size = QFileInfo(absolute).size();
        const qint64 free = volume.bytesAvailable;
        if (free - size < 0) {
            KalPrompt::critical(tr("Speicherplatz nicht ausreichend"),
                                tr("Auf dem Laufwerk %1 steht nicht genügend Speicherplatz zur Verfügung, um das "
                                   "Projekt zu öffnen.\nGeben Sie mindestens %2 MB Speicherplatz frei und versuchen "
                                   "Sie es erneut.")
                                    .arg(volume.name)
                                    .arg((size - free) / 1000000));
            resetState();
            return 1;
        }
        if (free < 3 * size)
            KalPrompt::warning(tr("Speicherplatz"), tr("Sie sollten auf dem Laufwerk %1 Speicherplatz freigeben, da "
                                                       "es sonst zu Problemen beim Speichern des Projekts kommen kann.")
                                                        .arg(volume.name));
    }

    bool madeWorkingCopy = false;
    if (!useLeftover) {
        KalBusyScope busy(tr("Projekt wird geöffnet..."));
        // Copied under another name first: an interrupted copy must never
        // look like a working copy.
        const QString partial = m_workingCopyPath + QStringLiteral(".part");
        if (!KalFileOps::copyFile(absolute, partial) || !KalFileOps::replaceFile(partial, m_workingCopyPath)) {
            QFile::remove(partial);
            KalPrompt::critical(fileErrorTitle(), tr("Die Working Copy Datei konnte nicht erstellt werden."));
            resetState();
            return 1;
        }
        madeWorkingCopy = true;
        QFile::setPermissions(m_workingCopyPath, QFile::permissions(m_workingCopyPath) | QFile::WriteOwner |
                                                     QFile::WriteUser | QFile::ReadOwner | QFile::ReadUser);
    }
    if (KalFileOps::isReadOnly(absolute)) {
        m_writeProtected = true;
        KalPrompt::warning(tr("Datei-Warnung"),
                           tr("Sie haben keine Schreibrechte für die Datei %1.\nWenn Sie die Datei speichern wollen, "
                              "können Sie dies nur unter einem anderen Namen oder in einen anderen Ordner.\nWählen "
                              "Sie hierzu im Menü 'Datei' den Menüpunkt 'Speichern unter'.")
                               .arg(QDir::toNativeSeparators(absolute)));
    }

    auto abandon = [&]() {
        closeConnection();
        if (madeWorkingCopy)
            KalFileOps::removeDatabaseFile(m_workingCopyPath);
        resetState();
        return 1;
    };

    if (!openConnection(m_workingCopyPath, true))
        return abandon();
    QString error;
    if (!writeTest(connectionName(), &error)) {
        KalPrompt::critical(QStringLiteral("SQL Error"), error);
        return abandon();
    }
    const bool writeProtected = m_writeProtected;
    m_projectPath = absolute;
    writeUserDataFile(true);

    m_tableMap = KalDatabaseSchema::tableMap(database());
    if (!m_tableMap.contains(QStringLiteral("kal"))) {
        KalPrompt::critical(tr("Datenbankfehler"), tr("Tabelle KAL fehlt"));
        closeConnection();
        KalFileOps::removeDatabaseFile(m_workingCopyPath);
        QFile::remove(m_userDataPath);
        resetState();
        return 1;
    }

    buildModels();
    m_fileVersion = KalDatabaseSchema::fileVersion(database());
    m_automaticImportMode = KalDatabaseSchema::automaticImportMode(database());
    m_backupsMade = false;
    m_writeProtected = writeProtected;
    m_open = true;
    setModified(false);
    emit projectOpened();
    return 0;
}

bool KalProject::closeProject()
{
    if (!m_open && m_workingCopyPath.isEmpty())
        return true;
    emit projectAboutToClose();
    m_open = false;
    dropModels();
    closeConnection();
    if (!KalFileOps::removeDatabaseFile(m_workingCopyPath)) {
        KalPrompt::warning(fileErrorTitle(), deleteFailedText(m_workingCopyPath));
        return false;
    }
    if (!m_userDataPath.isEmpty() && QFileInfo::exists(m_userDataPath))
        QFile::remove(m_userDataPath);
    resetState();
    return true;
}

// ---------------------------------------------------------------------------
// Integrity and backups

QString KalProject::checkIntegrity(const QString &connection)
{
    QSqlDatabase db = QSqlDatabase::database(connection, false);
    QSqlQuery query(db);
    QString result;
    bool anyRow = false;
    if (query.exec(QStringLiteral("PRAGMA quick_check;"))) {
        while (query.next()) {
            anyRow = true;
            const QVariant value = query.value(0);
            if (value.type() != QVariant::String) {
                qDebug("integrity check : [UnknownDataType]\n");
                continue;
            }
            if (!result.isEmpty())
                result += QLatin1Char('\n');
            result += value.toString();
        }
    }
    if (!anyRow || result.isEmpty()) {
        if (!anyRow)
            qDebug("integrity check returns nothing\n");
        qDebug("integrity check : [NoResult]\n");
        QString error;
        QSqlQuery test(db);
        bool ok = test.exec(QStringLiteral("INSERT INTO meta (KEY, VALUE) VALUES('dummy', 'dummy');"));
        if (ok)
            ok = test.exec(QStringLiteral("DELETE FROM meta WHERE KEY='dummy';"));
        if (ok)
            return QStringLiteral("ok");
        error = test.lastError().text();
        if (error.trimmed().isEmpty())
            error = query.lastError().text();
        return error.trimmed().isEmpty() ? QStringLiteral("NoResult") : error;
    }
    return result;
}

QString KalProject::backupFileName(const QString &projectPath, int slot)
{
    if (slot <= 0)
        return QStringLiteral("%1.bak").arg(projectPath);
    if (slot < 10)
        return QStringLiteral("%1.0%2.bak").arg(projectPath).arg(slot);
    return QStringLiteral("%1.%2.bak").arg(projectPath).arg(slot);
}

QString KalProject::findNewestIntactBackup(const QString &path, int *count)
{
    QSettings settings;
    const int n = qMax(8, settings.value(QStringLiteral("File/NumberOfBackups"), 8).toInt());
    int found = 0;
    QString newest;
    for (int slot = 0; slot < n; ++slot) {
        const QString backup = backupFileName(path, slot);
        if (!QFileInfo::exists(backup))
            continue;
        ++found;
        QString result;
        {
            QSqlDatabase probe = addProbeConnection(QString::fromLatin1(kProbeBackup), backup, true);
            if (probe.open()) {
                KalDatabaseSchema::applySafetyPragmas(probe);
                result = checkIntegrity(QString::fromLatin1(kProbeBackup));
            }
        }
        removeConnection(QString::fromLatin1(kProbeBackup));
        if (result == QLatin1String("ok")) {
            newest = backup;
            break;
        }
    }
    if (count)
        *count = found;
    return newest;
}

int KalProject::restoreBackup(const QString &path, const QString &backup, QString *damagedNewName, QString *errorText)
{
    if (path.isEmpty())
        return EmptyPath;
    if (!QFileInfo::exists(path))
        return FileMissing;
    const QString suffix = QFileInfo(path).suffix();
    QString stem = path;
    if (!suffix.isEmpty())
        stem.remove(suffix); // also inside folder names: kept that way on purpose
    QString newName = stem + QStringLiteral("ERROR.") + suffix;
    for (int i = 1; QFileInfo::exists(newName); ++i) {
        if (i < 10)
            newName = QStringLiteral("%1ERROR.0%2.%3").arg(stem).arg(i).arg(suffix);
        else
            newName = QStringLiteral("%1ERROR.%2.%3").arg(stem).arg(i).arg(suffix);
    }
    if (damagedNewName)
        *damagedNewName = newName;
    if (KalFileOps::injectedFault(QStringLiteral("rename"), path) || !QFile::rename(path, newName)) {
        if (errorText)
            *errorText = tr("Die Datei %1 konnte nicht in %2 umbenannt werden.")
                             .arg(QFileInfo(path).fileName(), QFileInfo(newName).fileName());
        return RenameFailed;
    }
    if (!KalFileOps::copyFile(backup, path)) {
        // Put the damaged file back rather than leave no project file at all.
        QFile::rename(newName, path);
        if (errorText)
            *errorText = tr("Fehler beim Kopieren der Backup-Datei %1.").arg(QFileInfo(backup).fileName());
        return CopyFailed;
    }
    return Restored;
}

QString KalProject::sizeText(qint64 bytes)
{
    const qint64 mb = bytes / 1024000;
    if (mb == 0)
        return tr("%1 KB").arg(bytes / 1024);
    return tr("%1 MB").arg(mb);
}
