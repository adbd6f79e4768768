#pragma once

#include <QObject>
#include <QStringList>

// The projects opened last, newest first, kept in the settings store. Paths
// are stored absolute and each at most once.
class KalRecentFiles : public QObject
{
    Q_OBJECT

public:
    // Reads the list stored under `settingsKey`; a `maxCount` of 0 keeps
    // every entry.
    explicit KalRecentFiles(const QString &settingsKey = defaultKey(), int maxCount = 0, QObject *parent = nullptr);

    static QString defaultKey() { return QStringLiteral("MainWindow/RecentFileList"); }

    QStringList files() const { return m_files; }
    int maxCount() const { return m_maxCount; }

    // Puts `path` first (moving an earlier entry) and stores the list.
    void add(const QString &path);
    void remove(const QString &path);
    // A path whose file is gone leaves the list; true when it still exists.
    bool keepIfExists(const QString &path);

signals:
    void changed();

private:
    void store();

    QString m_key;
    int m_maxCount;
    QStringList m_files;
};
