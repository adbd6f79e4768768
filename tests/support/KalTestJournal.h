#pragma once

#include <QByteArray>
#include <QDate>
#include <QSize>
#include <QString>
#include <QVariantMap>

// A site journal (".sjd") as the site-diary program writes it, built row by
// row for a test. The connection is closed by close() or the destructor;
// close it before importing.
class KalTestJournal
{
public:
    // Creates `path` with the journal tables (none when `withSchema` is false).
    explicit KalTestJournal(const QString &path, bool withSchema = true);
    ~KalTestJournal();
    // Reopens an existing journal for changes.
    static KalTestJournal reopen(const QString &path);
    KalTestJournal(KalTestJournal &&other) noexcept;
    KalTestJournal(const KalTestJournal &) = delete;
    KalTestJournal &operator=(const KalTestJournal &) = delete;

    bool ok() const { return m_ok; }
    void close();
    QString path() const { return m_path; }

    // Ids: given, or the next free one. `more` overrides columns.
    qint64 addCompany(const QString &name, const QString &trade, const QString &category = QStringLiteral("2"),
                      const QVariantMap &more = {});
    qint64 addReport(const QString &number, const QVariantMap &more = {});
    qint64 addDefect(qint64 reportId, const QString &number, const QString &description, const QVariantMap &more = {});
    // A photo of a defect: the picture row (with a JPEG thumbnail made from
    // `picture` unless `thumbnail` is given), its entry_photo and its item.
    // Returns the item id.
    qint64 addPhoto(qint64 defectId, const QByteArray &picture, const QString &caption = QString(),
                    const QDate &date = QDate(), const QString &contentType = QStringLiteral("image/jpeg"),
                    const QByteArray &thumbnail = QByteArray());
    bool setMeta(const QString &key, const QString &value);
    bool setEntryCounter(qint64 value);

    // Plain SQL with named values (":key").
    bool exec(const QString &sql, const QVariantMap &values = {});

    // A JPEG of `size` that meets the storage rule when small enough.
    static QByteArray jpeg(const QSize &size = QSize(640, 480));

private:
    KalTestJournal() = default;
    qint64 insert(const QString &table, QVariantMap values);
    QString m_path;
    QString m_connection;
    bool m_ok = false;
};
