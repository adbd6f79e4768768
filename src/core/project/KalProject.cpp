#include "KalProject.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalLog.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProjectLock.h"
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
const char *const kProbeBackup = "BCKTEST";

QString fileErrorTitle()
{
    return KalProject::tr("Dateifehler");
}

QString deleteFailedText(const QString &path)
{
    return KalProject::tr("Löschen der Datei\n%1\n fehlgeschlagen.").arg(QDir::toNativeSeparators(path));
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
    int fd = -1;
#ifdef Q_OS_UNIX
    // Opened before SQLite opens the file: if the name still leads to this
    // descriptor's file once locked, SQLite holds that same file.
    fd = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
#endif
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName());
    db.setDatabaseName(file);
    if (!db.open()) {
#ifdef Q_OS_UNIX
        if (fd >= 0)
            ::close(fd);
#endif
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
    if (fd < 0) // a new file that SQLite has just made
        fd = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
#endif
    m_workingCopyFd = fd;
    return true;
}

void KalProject::closeConnection()
{
    m_transactions.reset();
    KalProjectLock::removeConnection(connectionName());
#ifdef Q_OS_UNIX
    if (m_workingCopyFd >= 0)
        ::close(m_workingCopyFd);
#endif
    m_workingCopyFd = -1;
}

bool KalProject::writeTest(const QString &connection, QString *errorText, QSqlError *sqlError)
{
    return KalProjectLock::writeTest(connection, errorText, sqlError);
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
    // Something else under our companion's name (a pipe would block the
    // write until somebody reads it) is replaced by the real file.
    if (QFileInfo::exists(m_userDataPath) && !KalFileOps::isRegularFile(m_userDataPath))
        QFile::remove(m_userDataPath);
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
                qCDebug(kalSqlLog, "integrity check : [UnknownDataType]\n");
                continue;
            }
            if (!result.isEmpty())
                result += QLatin1Char('\n');
            result += value.toString();
        }
    }
    if (!anyRow && query.lastError().type() != QSqlError::NoError)
        return query.lastError().databaseText();
    if (!anyRow || result.isEmpty()) {
        if (!anyRow)
            qCDebug(kalSqlLog, "integrity check returns nothing\n");
        qCDebug(kalSqlLog, "integrity check : [NoResult]\n");
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

QString KalProject::intactVerdict(const QString &file)
{
    // Only a project file that would pass opening counts: an empty file,
    // another program's database or a pipe is no backup.
    if (!KalFileOps::isRegularFile(file))
        return tr("keine gewöhnliche Datei");
    if (QFileInfo(file).size() == 0)
        return tr("leere Datei");
    QString verdict;
    KalProjectLock::readFile(QString::fromLatin1(kProbeBackup), file, [&](QSqlDatabase &db) {
        QSqlQuery tables(db);
        if (!db.isOpen() || !tables.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type='table'"))) {
            verdict = tr("keine lesbare Datenbank: %1")
                          .arg((db.isOpen() ? tables.lastError() : db.lastError()).databaseText());
            return;
        }
        tables.finish();
        if (!KalDatabaseSchema::tableMap(db).contains(QStringLiteral("kal"))) {
            verdict = tr("Tabelle KAL fehlt");
            return;
        }
        if (KalDatabaseSchema::isFileVersionNewer(KalDatabaseSchema::fileVersion(db))) {
            verdict = tr("mit einer neueren Programmversion erstellt");
            return;
        }
        const QString integrity = checkIntegrity(db.connectionName());
        if (integrity == QLatin1String("ok")) {
            verdict = integrity;
            return;
        }
        // One line per file: SQLite's findings without its section headings.
        QStringList findings = integrity.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        findings.removeAll(QStringLiteral("*** in database main ***"));
        verdict = tr("beschädigt: %1").arg(findings.join(QStringLiteral(" / ")));
    });
    return verdict;
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
        const QString result = intactVerdict(backup);
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
    // A journal belongs to the file it was written for: left behind, it
    // would be rolled back into the restored file.
    for (const char *companion : {"-journal", "-wal", "-shm"}) {
        const QString from = path + QLatin1String(companion);
        if (QFileInfo::exists(from) || QFileInfo(from).isSymLink())
            QFile::rename(from, newName + QLatin1String(companion));
    }
    if (!KalFileOps::copyFile(backup, path)) {
        // Put the damaged file back rather than leave no project file at all.
        QFile::rename(newName, path);
        for (const char *companion : {"-journal", "-wal", "-shm"})
            QFile::rename(newName + QLatin1String(companion), path + QLatin1String(companion));
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
