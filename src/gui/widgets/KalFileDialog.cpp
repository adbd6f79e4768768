#include "KalFileDialog.h"

#include "core/project/KalSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQueue>

namespace {
struct DialogState
{
    QQueue<QStringList> queued;
    QString lastStartPath;
    QString lastCaption;
};

DialogState &state()
{
    static DialogState s;
    return s;
}

// Without a screen nobody could answer a dialog: it would wait forever.
bool headless()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal");
}

// Returns true and sets `answer` when a test queued the answer (or when no
// dialog can be shown, which counts as cancelled).
bool takeQueued(const QString &start, const QString &caption, QStringList *answer)
{
    DialogState &s = state();
    s.lastStartPath = start;
    s.lastCaption = caption;
    if (s.queued.isEmpty()) {
        if (!headless())
            return false;
        qWarning("KalFileDialog: no answer queued for \"%s\", cancelled", qUtf8Printable(caption));
        answer->clear();
        return true;
    }
    *answer = s.queued.dequeue();
    return true;
}

void remember(int kind, const QStringList &chosen, bool isDirectory)
{
    if (!chosen.isEmpty() && !chosen.first().isEmpty())
        KalSettings::rememberFilePath(kind, chosen.first(), isDirectory);
}
} // namespace

QString KalFileDialog::startPath(int kind, const QString &proposedName)
{
    const QString folder = KalSettings::filePathForDialog(kind);
    if (proposedName.isEmpty())
        return folder;
    if (QFileInfo(proposedName).isAbsolute())
        return QDir::toNativeSeparators(proposedName);
    return QDir::toNativeSeparators(QDir(QDir::fromNativeSeparators(folder)).filePath(proposedName));
}

QString KalFileDialog::getOpenFileName(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                       const QString &proposedName, QString *selectedFilter)
{
    const QString start = startPath(kind, proposedName);
    QStringList chosen;
    if (!takeQueued(start, caption, &chosen)) {
        const QString file = QFileDialog::getOpenFileName(parent, caption, start, filter, selectedFilter);
        if (!file.isEmpty())
            chosen << file;
    }
    remember(kind, chosen, false);
    return chosen.value(0);
}

QStringList KalFileDialog::getOpenFileNames(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                            QString *selectedFilter)
{
    const QString start = startPath(kind);
    QStringList chosen;
    if (!takeQueued(start, caption, &chosen))
        chosen = QFileDialog::getOpenFileNames(parent, caption, start, filter, selectedFilter);
    remember(kind, chosen, false);
    return chosen;
}

QString KalFileDialog::getSaveFileName(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                       const QString &proposedName, QString *selectedFilter)
{
    const QString start = startPath(kind, proposedName);
    QStringList chosen;
    if (!takeQueued(start, caption, &chosen)) {
        const QString file = QFileDialog::getSaveFileName(parent, caption, start, filter, selectedFilter);
        if (!file.isEmpty())
            chosen << file;
    }
    remember(kind, chosen, false);
    return chosen.value(0);
}

QString KalFileDialog::getExistingDirectory(QWidget *parent, int kind, const QString &caption)
{
    const QString start = startPath(kind);
    QStringList chosen;
    if (!takeQueued(start, caption, &chosen)) {
        const QString dir = QFileDialog::getExistingDirectory(parent, caption, start);
        if (!dir.isEmpty())
            chosen << dir;
    }
    remember(kind, chosen, true);
    return chosen.value(0);
}

void KalFileDialog::queueChoice(const QString &path)
{
    state().queued.enqueue(path.isEmpty() ? QStringList() : QStringList{path});
}

void KalFileDialog::queueChoices(const QStringList &paths)
{
    state().queued.enqueue(paths);
}

void KalFileDialog::queueCancel()
{
    state().queued.enqueue(QStringList());
}

int KalFileDialog::queuedChoices()
{
    return state().queued.size();
}

void KalFileDialog::clearQueue()
{
    state().queued.clear();
}

QString KalFileDialog::lastStartPath()
{
    return state().lastStartPath;
}

QString KalFileDialog::lastCaption()
{
    return state().lastCaption;
}
