#include "KalTestJournal.h"

#include "support/KalTestImages.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

namespace {

const char *const kSchema[] = {
    "CREATE TABLE id_generator (id_table TEXT PRIMARY KEY, id_counter INTEGER NOT NULL)",
    "CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT NOT NULL)",
    "CREATE TABLE company (id INTEGER NOT NULL PRIMARY KEY, type TEXT NOT NULL DEFAULT '', firstname TEXT NOT NULL "
    "DEFAULT '', lastname TEXT NOT NULL DEFAULT '', company TEXT NOT NULL DEFAULT '', street TEXT NOT NULL DEFAULT "
    "'', plz TEXT NOT NULL DEFAULT '', city TEXT NOT NULL DEFAULT '', telephone TEXT NOT NULL DEFAULT '', telefax "
    "TEXT NOT NULL DEFAULT '', mobile TEXT NOT NULL DEFAULT '', email TEXT NOT NULL DEFAULT '', category TEXT NOT "
    "NULL DEFAULT '2', modified INTEGER NOT NULL DEFAULT 0)",
    "CREATE TABLE entry (id INTEGER NOT NULL PRIMARY KEY, number TEXT, locked TEXT DEFAULT '0', user_id TEXT, "
    "creation_date DATETIME, inspection_date DATE, exported_by_app INTEGER DEFAULT -1, import_version DATETIME)",
    "CREATE TABLE entry_progress (id INTEGER NOT NULL PRIMARY KEY, entry_id INTEGER NOT NULL, type INTEGER NOT NULL, "
    "relation_id INTEGER DEFAULT -1, photo_id INTEGER DEFAULT -1, number TEXT, description TEXT, company_id INTEGER "
    "DEFAULT -1, roomname TEXT, roombook_number TEXT, date DATE, image_cnt INTEGER DEFAULT 0, correction_date DATE, "
    "modified INTEGER NOT NULL DEFAULT 0)",
    "CREATE TABLE entry_photo (id INTEGER NOT NULL PRIMARY KEY, caption TEXT, date DATE, photo_image_id INTEGER)",
    "CREATE TABLE image (id INTEGER NOT NULL PRIMARY KEY AUTOINCREMENT, image BLOB NOT NULL, image_ct TEXT NOT NULL, "
    "image_width INT NOT NULL, image_height INT NOT NULL, thumbnail BLOB NOT NULL, thumbnail_ct TEXT NOT NULL, "
    "thumbnail_width INT NOT NULL, thumbnail_height INT NOT NULL)",
};

int s_counter = 0;

QSize sizeOf(const QByteArray &data)
{
    QByteArray copy = data;
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer).size();
}

} // namespace

KalTestJournal::KalTestJournal(const QString &path, bool withSchema)
    : m_path(path)
    , m_connection(QStringLiteral("testjournal_%1").arg(++s_counter))
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    db.setDatabaseName(path);
    m_ok = db.open();
    if (!withSchema)
        return;
    for (const char *sql : kSchema)
        m_ok = m_ok && exec(QLatin1String(sql));
    m_ok = m_ok && exec(QStringLiteral("PRAGMA journal_mode = DELETE"));
}

KalTestJournal KalTestJournal::reopen(const QString &path)
{
    return KalTestJournal(path, false);
}

KalTestJournal::KalTestJournal(KalTestJournal &&other) noexcept
    : m_path(other.m_path)
    , m_connection(other.m_connection)
    , m_ok(other.m_ok)
{
    other.m_connection.clear();
}

KalTestJournal::~KalTestJournal()
{
    close();
}

void KalTestJournal::close()
{
    if (m_connection.isEmpty())
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(m_connection, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
    m_connection.clear();
}

bool KalTestJournal::exec(const QString &sql, const QVariantMap &values)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (!query.prepare(sql)) {
        qWarning("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
        return false;
    }
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        query.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!query.exec()) {
        qWarning("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
        return false;
    }
    return true;
}

qint64 KalTestJournal::insert(const QString &table, QVariantMap values)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (!values.contains(QStringLiteral("id"))) {
        query.exec(QStringLiteral("SELECT IFNULL(MAX(id), 0) + 1 FROM %1").arg(table));
        values.insert(QStringLiteral("id"), query.next() ? query.value(0).toLongLong() : 1);
    }
    QStringList holders;
    for (const QString &column : values.keys())
        holders << QLatin1Char(':') + column;
    if (!exec(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                  .arg(table, values.keys().join(QLatin1Char(',')), holders.join(QLatin1Char(','))),
              values))
        return -1;
    return values.value(QStringLiteral("id")).toLongLong();
}

qint64 KalTestJournal::addCompany(const QString &name, const QString &trade, const QString &category,
                                  const QVariantMap &more)
{
    QVariantMap values = {
        {QStringLiteral("company"), name}, {QStringLiteral("type"), trade}, {QStringLiteral("category"), category}};
    for (auto it = more.constBegin(); it != more.constEnd(); ++it)
        values.insert(it.key(), it.value());
    return insert(QStringLiteral("company"), values);
}

qint64 KalTestJournal::addReport(const QString &number, const QVariantMap &more)
{
    QVariantMap values = {{QStringLiteral("number"), number},
                          {QStringLiteral("user_id"), QStringLiteral("MB")},
                          {QStringLiteral("creation_date"), QStringLiteral("2024-03-01T08:00:00")},
                          {QStringLiteral("inspection_date"), QStringLiteral("2024-03-01")}};
    for (auto it = more.constBegin(); it != more.constEnd(); ++it)
        values.insert(it.key(), it.value());
    const qint64 id = insert(QStringLiteral("entry"), values);
    // The site-diary program counts its report ids.
    exec(QStringLiteral("INSERT OR REPLACE INTO id_generator (id_table, id_counter) VALUES ('entry', (SELECT MAX(id) "
                        "FROM entry))"));
    return id;
}

qint64 KalTestJournal::addDefect(qint64 reportId, const QString &number, const QString &description,
                                 const QVariantMap &more)
{
    QVariantMap values = {{QStringLiteral("entry_id"), reportId},
                          {QStringLiteral("type"), 4},
                          {QStringLiteral("number"), number},
                          {QStringLiteral("description"), description}};
    for (auto it = more.constBegin(); it != more.constEnd(); ++it)
        values.insert(it.key(), it.value());
    return insert(QStringLiteral("entry_progress"), values);
}

qint64 KalTestJournal::addPhoto(qint64 defectId, const QByteArray &picture, const QString &caption, const QDate &date,
                                const QString &contentType, const QByteArray &thumbnail)
{
    QByteArray thumb = thumbnail;
    if (thumb.isEmpty()) {
        QImage image = QImage::fromData(picture);
        if (image.isNull())
            image = KalTestImages::marked(QSize(60, 40));
        thumb = KalTestImages::jpeg(image.scaled(240, 240, Qt::KeepAspectRatio));
    }
    const QSize size = sizeOf(picture);
    const QSize thumbSize = sizeOf(thumb);
    const qint64 imageId =
        insert(QStringLiteral("image"), {{QStringLiteral("image"), picture},
                                         {QStringLiteral("image_ct"), contentType},
                                         {QStringLiteral("image_width"), size.width()},
                                         {QStringLiteral("image_height"), size.height()},
                                         {QStringLiteral("thumbnail"), thumb},
                                         {QStringLiteral("thumbnail_ct"), QStringLiteral("image/jpeg")},
                                         {QStringLiteral("thumbnail_width"), thumbSize.width()},
                                         {QStringLiteral("thumbnail_height"), thumbSize.height()}});
    const qint64 photoId =
        insert(QStringLiteral("entry_photo"),
               {{QStringLiteral("caption"), caption.isNull() ? QVariant() : QVariant(caption)},
                {QStringLiteral("date"), date.isValid() ? QVariant(date.toString(Qt::ISODate)) : QVariant()},
                {QStringLiteral("photo_image_id"), imageId}});
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.prepare(QStringLiteral("SELECT entry_id FROM entry_progress WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), defectId);
    const qint64 reportId = query.exec() && query.next() ? query.value(0).toLongLong() : -1;
    return insert(QStringLiteral("entry_progress"), {{QStringLiteral("entry_id"), reportId},
                                                     {QStringLiteral("type"), 2},
                                                     {QStringLiteral("relation_id"), defectId},
                                                     {QStringLiteral("photo_id"), photoId}});
}

bool KalTestJournal::setMeta(const QString &key, const QString &value)
{
    return exec(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES (:key, :value)"),
                {{QStringLiteral("key"), key}, {QStringLiteral("value"), value}});
}

bool KalTestJournal::setEntryCounter(qint64 value)
{
    return exec(QStringLiteral("INSERT OR REPLACE INTO id_generator (id_table, id_counter) VALUES ('entry', :v)"),
                {{QStringLiteral("v"), value}});
}

QByteArray KalTestJournal::jpeg(const QSize &size)
{
    return KalTestImages::jpeg(KalTestImages::marked(size));
}
