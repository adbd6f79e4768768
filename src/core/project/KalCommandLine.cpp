#include "KalCommandLine.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

KalCommandLine KalCommandLine::parse(const QStringList &arguments)
{
    KalCommandLine cl;
    const int count = arguments.size();

    // The site-journal program passes its arguments by position; anything
    // longer than its contract is not a connect call.
    if (count >= 2 && count <= 7 && arguments.at(1) == QLatin1String("-connectmode")) {
        cl.kind = Connect;
        cl.connectModeText = arguments.value(2);
        bool ok = false;
        const int mode = cl.connectModeText.toInt(&ok, 10);
        cl.connectMode = ok ? mode : 0;
        if (arguments.value(3) == QLatin1String("-file"))
            cl.projectFile = arguments.value(4);
        if (arguments.value(5) == QLatin1String("-sitejournalfile"))
            cl.siteJournalFile = arguments.value(6);
        return cl;
    }

    if (count == 2) {
        cl.kind = OpenFile;
        cl.projectFile = arguments.at(1);
        return cl;
    }

    for (int i = 1; i + 1 < count; ++i) {
        if (arguments.at(i) == QLatin1String("-file")) {
            cl.kind = OpenFile;
            cl.projectFile = arguments.at(i + 1);
            return cl;
        }
    }
    return cl;
}

KalCommandLine KalCommandLine::forStartup(const QStringList &arguments)
{
    QSettings settings;
    if (settings.contains(reopenKey())) {
        const QString path = settings.value(reopenKey()).toString();
        settings.remove(reopenKey());
        settings.sync();
        KalCommandLine cl;
        cl.fromRestart = true;
        if (!path.isEmpty()) {
            cl.kind = OpenFile;
            cl.projectFile = path;
        }
        return cl;
    }
    return parse(arguments);
}

QString KalCommandLine::connectModeProblems() const
{
    if (kind != Connect)
        return QString();
    QString problems;
    if (connectMode != CreateAndImport && connectMode != OpenAndImport && connectMode != OpenOnly)
        problems += tr("\nungültiger connect Mode: %1").arg(connectModeText);

    if (projectFile.isEmpty())
        problems += tr("\nParameter Pellwick-Datei fehlt.");
    else if (connectMode != CreateAndImport && !QFileInfo::exists(projectFile))
        problems += tr("\nDie Pellwick-Datei existiert nicht.");

    if (siteJournalFile.isEmpty())
        problems += tr("\nParameter Bautagebuch-Datei fehlt.");
    else if (!QFileInfo::exists(siteJournalFile))
        problems += tr("\nDie Bautagebuch-Datei %1 existiert nicht.").arg(QDir::toNativeSeparators(siteJournalFile));
    return problems;
}

QString KalCommandLine::problemsMessage(const QString &problems)
{
    return tr("Die vom Bautagebuch Programm übergebenen Parameter sind fehlerhaft:\n\n") + problems;
}

QString KalCommandLine::problemsTitle()
{
    return tr("Info");
}
