#include "KalTestFiles.h"

#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <QVariantMap>

namespace KalTestFiles {

bool createProject(const QString &path, int defects)
{
    KalProject project;
    if (!project.newProject())
        return false;
    for (int i = 1; i <= defects; ++i) {
        QVariantMap values;
        values.insert(QStringLiteral("description"), QStringLiteral("defect %1").arg(i));
        values.insert(QStringLiteral("number"), QString::number(i));
        if (KalDefects(project).add(values) < 0)
            return false;
    }
    const bool ok = project.saveProject(path) == KalProject::Saved;
    return project.closeProject() && ok;
}

namespace {
template <typename F> auto withReadOnly(const QString &file, F f) -> decltype(f(std::declval<QSqlDatabase &>()))
{
    static int counter = 0;
    const QString name = QStringLiteral("testfiles%1").arg(++counter);
    decltype(f(std::declval<QSqlDatabase &>())) result{};
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(file);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (db.open())
            result = f(db);
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}
} // namespace

int countRows(const QString &file, const QString &table)
{
    const QString value = scalar(file, QStringLiteral("SELECT COUNT(*) FROM %1").arg(table));
    return value.isEmpty() ? -1 : value.toInt();
}

QString scalar(const QString &file, const QString &sql)
{
    return withReadOnly(file, [&](QSqlDatabase &db) {
        QSqlQuery q(db);
        if (q.exec(sql) && q.next())
            return q.value(0).toString();
        return QString();
    });
}

QVariantMap row(const QString &file, const QString &sql)
{
    return withReadOnly(file, [&](QSqlDatabase &db) {
        QVariantMap values;
        QSqlQuery q(db);
        if (q.exec(sql) && q.next()) {
            for (int i = 0; i < q.record().count(); ++i)
                values.insert(q.record().fieldName(i), q.value(i));
        }
        return values;
    });
}

QString integrity(const QString &file)
{
    return withReadOnly(file, [&](QSqlDatabase &db) {
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("PRAGMA quick_check")))
            return q.lastError().text();
        QStringList rows;
        while (q.next())
            rows << q.value(0).toString();
        return rows.join(QLatin1Char('\n'));
    });
}

bool execute(const QString &file, const QStringList &statements)
{
    static int counter = 0;
    const QString name = QStringLiteral("testexec%1").arg(++counter);
    bool ok = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(file);
        ok = db.open();
        for (const QString &s : statements) {
            QSqlQuery q(db);
            if (ok && !q.exec(s)) {
                qWarning("%s: %s", qPrintable(s), qPrintable(q.lastError().text()));
                ok = false;
            }
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

bool copyWhileWriting(const QString &file, const QString &copy, const QStringList &statements, bool wal)
{
    const QString name = QStringLiteral("testwriter");
    const QString companion = wal ? QStringLiteral("-wal") : QStringLiteral("-journal");
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(file);
        QSqlQuery q(db);
        ok = db.open() && (wal ? q.exec(QStringLiteral("PRAGMA journal_mode=WAL")) && q.next() &&
                                     q.value(0).toString() == QLatin1String("wal") &&
                                     q.exec(QStringLiteral("PRAGMA wal_autocheckpoint=0"))
                               : q.exec(QStringLiteral("PRAGMA cache_size=2")) && q.exec(QStringLiteral("BEGIN")));
        for (const QString &statement : statements)
            ok = ok && q.exec(statement);
        ok = ok && QFile::copy(file + companion, copy + companion) && QFile::copy(file, copy);
        if (!wal)
            q.exec(QStringLiteral("ROLLBACK"));
        q.finish();
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

QByteArray fileHash(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&f);
    return hash.result().toHex();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

QStringList folderState(const QString &folder)
{
    QStringList state;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo &fi : entries)
        state << QStringLiteral("%1 %2 %3 %4")
                     .arg(fi.fileName())
                     .arg(fi.size())
                     .arg(fi.lastModified().toMSecsSinceEpoch())
                     .arg(QString::fromLatin1(fileHash(fi.absoluteFilePath()).left(16)));
    return state;
}

} // namespace KalTestFiles
