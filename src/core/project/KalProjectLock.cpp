#include "KalProjectLock.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>

namespace KalProjectLock {

namespace {
// Primary result code of a driver error (extended codes included).
int primaryCode(const QSqlError &error)
{
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok);
    return ok ? (code & 0xff) : -1;
}

QStringList readLines(const QString &path, int count, bool *readable)
{
    QFile file(path);
    QStringList lines;
    // Only a regular file: reading a pipe would wait for a writer forever.
    *readable = KalFileOps::isRegularFile(path) && file.open(QIODevice::ReadOnly | QIODevice::Text);
    if (*readable) {
        QTextStream in(&file);
        in.setCodec("UTF-8");
        for (int i = 0; i < count; ++i)
            lines << in.readLine();
    }
    return lines;
}
} // namespace

namespace {
QString hostTag()
{
    QString host = KalEnvironment::computerName();
    for (QChar &c : host)
        if (!c.isLetterOrNumber())
            c = QLatin1Char('_');
    return host;
}
} // namespace

QString privateName(const QString &path, const QString &kind)
{
    return path + kind + QLatin1Char('.') + hostTag() + QLatin1Char('.') +
           QString::number(QCoreApplication::applicationPid());
}

void removeStalePrivateFiles(const QString &path, const QString &kind)
{
    const QFileInfo info(path);
    const QString prefix = info.fileName() + kind + QLatin1Char('.') + hostTag() + QLatin1Char('.');
    const QStringList names = info.dir().entryList({prefix + QLatin1Char('*')}, QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        bool isNumber = false;
        const qint64 pid = name.mid(prefix.size()).toLongLong(&isNumber);
        if (isNumber && pid != QCoreApplication::applicationPid() && !KalFileOps::processAlive(pid))
            QFile::remove(info.dir().filePath(name));
    }
}

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

namespace {
// Bytes 18 and 19 of the header are 2 for a file in WAL mode.
bool inWalMode(const QString &file)
{
    QFile f(file);
    // Opening a pipe would wait for a writer forever.
    if (!KalFileOps::isRegularFile(file) || !f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = f.read(20);
    return header.size() == 20 && (header.at(18) == 2 || header.at(19) == 2);
}
} // namespace

void readFile(const QString &name, const QString &file, const std::function<void(QSqlDatabase &db)> &read)
{
    // Even a read-only connection writes beside a file in WAL mode (it
    // creates "-shm" and may leave "-wal"), and a journal beside a file
    // asks to be rolled back. Such a file is read from a private copy in
    // the temporary folder, its companions with it, where SQLite may fold
    // them in. "immutable=1" would write nothing either, but it ignores the
    // "-wal" file and so hides rows that were committed there.
    const QStringList companions = {QStringLiteral("-wal"), QStringLiteral("-journal")};
    bool privateCopy = inWalMode(file);
    for (const QString &companion : companions)
        privateCopy = privateCopy || QFileInfo::exists(file + companion);
    QTemporaryDir folder;
    QString source = file;
    bool copied = true;
    if (privateCopy) {
        source = folder.filePath(QStringLiteral("copy.pwp"));
        copied = folder.isValid() && KalFileOps::isRegularFile(file) && KalFileOps::copyFile(file, source);
        for (const QString &companion : companions) {
            if (copied && QFileInfo::exists(file + companion))
                copied = KalFileOps::isRegularFile(file + companion) &&
                         KalFileOps::copyFile(file + companion, source + companion);
        }
    }
    if (!copied) // fails to open read-only, with SQLite's own reason
        source = folder.filePath(QStringLiteral("unreadable.pwp"));
    {
        QSqlDatabase db = addProbeConnection(name, source, !privateCopy || !copied);
        if (db.open())
            KalDatabaseSchema::applySafetyPragmas(db);
        read(db);
    }
    removeConnection(name);
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
    const int code = primaryCode(error);
    return code == 5 || code == 6;
}

bool writeTest(const QString &connection, QString *errorText, QSqlError *sqlError)
{
    QSqlDatabase db = QSqlDatabase::database(connection, false);
    QSqlQuery query(db);
    const QString insert = QStringLiteral("INSERT INTO meta (KEY, VALUE) VALUES('dummy', 'dummy');");
    const QString remove = QStringLiteral("DELETE FROM meta WHERE KEY='dummy';");
    bool ok = query.exec(insert);
    if (!ok && primaryCode(query.lastError()) == 19) {
        // A run killed between the two statements left the dummy behind.
        QSqlQuery cleanup(db);
        if (cleanup.exec(remove))
            ok = query.exec(insert);
    }
    if (ok)
        ok = query.exec(remove);
    if (!ok && errorText)
        *errorText = query.lastError().text();
    if (!ok && sqlError)
        *sqlError = query.lastError();
    return ok;
}

State probe(const QString &workingCopy, QString *errorText)
{
    const QString name = QStringLiteral("BTBLOCK");
    QSqlError error;
    bool ok = false;
    {
        QSqlDatabase db = addProbeConnection(name, workingCopy, false);
        ok = db.open();
        if (ok) {
            KalDatabaseSchema::applySafetyPragmas(db);
            ok = writeTest(name, errorText, &error);
        } else {
            error = db.lastError();
            if (errorText)
                *errorText = error.text();
        }
    }
    removeConnection(name);
    if (ok)
        return State::Free;
    switch (primaryCode(error)) {
    case 5: // SQLITE_BUSY
    case 6: // SQLITE_LOCKED
        return State::Held;
    case 26: // SQLITE_NOTADB
        return State::NotDatabase;
    case 13: // SQLITE_FULL
        return State::DiskFull;
    case 3:  // SQLITE_PERM
    case 8:  // SQLITE_READONLY
    case 14: // SQLITE_CANTOPEN: no journal can be made beside it
        return State::ReadOnly;
    default:
        return State::Failed;
    }
}

void reportHeld(const QString &userDataPath)
{
    bool readable = false;
    const QStringList lines = readLines(userDataPath, 4, &readable);
    QString text;
    if (readable)
        text = KalProject::tr("Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist von\nUser: "
                              "%1\nComputer: %2\nseit dem %3 %4 Uhr.")
                   .arg(lines.at(0), lines.at(1), lines.at(2), lines.at(3));
    else
        text = KalProject::tr("Die Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist.");
    KalPrompt::critical(KalProject::tr("Datenbank in Bearbeitung"), text);
}

QStringList holder(const QString &userDataPath)
{
    bool readable = false;
    return readLines(userDataPath, 2, &readable);
}

bool belongsToSomebodyElse(const QString &userDataPath)
{
    const QStringList lines = holder(userDataPath);
    const QString user = KalEnvironment::userNameVariable();
    const QString computer = KalEnvironment::computerNameVariable();
    return !user.isEmpty() && !computer.isEmpty() && (lines.value(0) != user || lines.value(1) != computer);
}

} // namespace KalProjectLock
