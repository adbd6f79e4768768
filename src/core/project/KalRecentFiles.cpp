#include "KalRecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace {
QString absolute(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}
} // namespace

KalRecentFiles::KalRecentFiles(const QString &settingsKey, int maxCount, QObject *parent)
    : QObject(parent)
    , m_key(settingsKey)
    , m_maxCount(qMax(0, maxCount))
{
    // Another program version may have written relative or repeated paths.
    const QStringList stored = QSettings().value(m_key).toStringList();
    for (const QString &path : stored) {
        if (!path.isEmpty() && !m_files.contains(absolute(path)))
            m_files << absolute(path);
    }
    if (m_maxCount > 0 && m_files.size() > m_maxCount)
        m_files = m_files.mid(0, m_maxCount);
}

void KalRecentFiles::add(const QString &path)
{
    if (path.isEmpty())
        return;
    const QString entry = absolute(path);
    m_files.removeAll(entry);
    m_files.prepend(entry);
    if (m_maxCount > 0 && m_files.size() > m_maxCount)
        m_files = m_files.mid(0, m_maxCount);
    store();
}

void KalRecentFiles::remove(const QString &path)
{
    if (m_files.removeAll(absolute(path)) > 0)
        store();
}

bool KalRecentFiles::keepIfExists(const QString &path)
{
    if (QFileInfo::exists(path))
        return true;
    remove(path);
    return false;
}

void KalRecentFiles::store()
{
    QSettings().setValue(m_key, m_files);
    emit changed();
}
