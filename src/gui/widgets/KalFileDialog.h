#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// The only way the program asks for a file or folder. Every dialog starts
// in the folder remembered for its kind (KalSettings::FileDialogKind) and
// remembers the folder of the first chosen entry; cancelling remembers
// nothing.
//
// Tests queue the next answers instead of showing a dialog: each queued
// entry answers one dialog, an empty list means "cancel". Without a screen
// (offscreen platform) a dialog nobody queued an answer for is cancelled.
class KalFileDialog
{
public:
    static QString getOpenFileName(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                   const QString &proposedName = QString(), QString *selectedFilter = nullptr);
    static QStringList getOpenFileNames(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                        QString *selectedFilter = nullptr);
    static QString getSaveFileName(QWidget *parent, int kind, const QString &caption, const QString &filter,
                                   const QString &proposedName = QString(), QString *selectedFilter = nullptr);
    static QString getExistingDirectory(QWidget *parent, int kind, const QString &caption);

    // Where a dialog of this kind starts: the remembered folder, joined with
    // the proposed file name when one is given.
    static QString startPath(int kind, const QString &proposedName = QString());

    // --- test hook ---
    static void queueChoice(const QString &path);
    static void queueChoices(const QStringList &paths);
    static void queueCancel();
    static int queuedChoices();
    static void clearQueue();
    // Start path and caption of the last dialog asked for (shown or answered from the queue).
    static QString lastStartPath();
    static QString lastCaption();
};
