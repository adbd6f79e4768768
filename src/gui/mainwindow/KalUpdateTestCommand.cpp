#include "KalUpdateTestCommand.h"

#include "core/project/KalPrompt.h"

#include <QAction>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

KalUpdateTestCommand::KalUpdateTestCommand(QAction *action, QObject *parent)
    : QObject(parent)
    , m_check(new KalUpdateCheck(this))
    , m_action(action)
{
    connect(m_check, &KalUpdateCheck::finished, this, &KalUpdateTestCommand::showResult);
    if (action)
        connect(action, &QAction::triggered, this, &KalUpdateTestCommand::run);
}

void KalUpdateTestCommand::run()
{
    if (!m_check->start())
        return;
    if (m_action)
        m_action->setEnabled(false);
}

void KalUpdateTestCommand::showResult(const KalUpdateCheck::Result &result)
{
    if (m_action)
        m_action->setEnabled(true);
    if (result.answered)
        startWindowsUpdater();
    if (result.outcome == KalUpdateCheck::NewerAvailable) {
        offerDownload(result);
    } else {
        KalPrompt::Message message;
        message.icon = result.outcome == KalUpdateCheck::Failed ? KalPrompt::Warning : KalPrompt::Information;
        message.title = tr("Update Test");
        message.text = result.text;
        message.detailText = result.detailText;
        KalPrompt::ask(message);
    }
    emit done();
}

void KalUpdateTestCommand::offerDownload(const KalUpdateCheck::Result &result)
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = tr("Update Test");
    message.text = result.text + QStringLiteral("\n\n") + tr("Möchten Sie die Download-Seite öffnen?");
    message.buttons = {{KalPrompt::Yes, {}}, {KalPrompt::No, {}}};
    message.defaultButton = 0;
    message.escapeButton = 1;
    if (KalPrompt::ask(message) != 0)
        return;
    // The check accepts only http and https pages, so nothing local or
    // executable is handed to the desktop.
    if (!QDesktopServices::openUrl(result.downloadUrl)) {
        KalPrompt::warning(
            tr("Update Test"),
            tr("Die Download-Seite %1 konnte nicht geöffnet werden.").arg(result.downloadUrl.toDisplayString()));
    }
}

void KalUpdateTestCommand::startWindowsUpdater()
{
#ifdef Q_OS_WIN
    // The Windows installer ships its own updater; once the server answered,
    // it takes over the download and installation we never do ourselves.
    const QString updater = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("updtest.exe"));
    if (QFileInfo(updater).isFile())
        QProcess::startDetached(updater, {});
#endif
}
