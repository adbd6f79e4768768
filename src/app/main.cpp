// pellwick: the desktop program.

#include "app/KalStartup.h"
#include "core/project/KalCommandLine.h"

#include "core/project/KalPrompt.h"
#include "core/textaids/KalSpellChecker.h"
#include "gui/mainwindow/KalMainWindow.h"
#include "gui/widgets/KalMessageBoxPrompt.h"
#include "gui/widgets/KalProgressDialog.h"
#include "gui/widgets/KalResources.h"

#include <QApplication>
#include <QProcess>
#include <QSettings>
#include <QSplashScreen>
#include <QSqlDatabase>
#include <QTimer>

#include <cstdio>

int main(int argc, char *argv[])
{
    // Without a display Qt would abort with a terse message (or wait for a
    // server that never comes); say what is wrong and leave.
    const QString noDisplay = KalStartup::missingDisplayReason();
    if (!noDisplay.isEmpty()) {
        std::fprintf(stderr, "pellwick: %s\n", noDisplay.toLocal8Bit().constData());
        return 3;
    }

    QApplication app(argc, argv);
    kalInitGuiResources();
    KalStartup::setApplicationIdentity();
    KalPrompt::install(new KalMessageBoxPrompt);
    KalProgress::install(new KalProgressDialog);

    QSettings().setValue(QStringLiteral("Messages/showFilterUncheckMsgOnce"), true);

    const QLocale locale = KalStartup::setUpLanguage(&app);

    KalSpellChecker::startUp(QCoreApplication::applicationDirPath(), locale);

    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        KalPrompt::critical(QCoreApplication::translate("main", "Fehler"),
                            QCoreApplication::translate("main", "Ihre QT-Installation unterstützt SQLITE nicht. Bitte "
                                                                "kontaktieren Sie den Softwarehersteller."));
        return 1;
    }

    QSplashScreen splash(KalStartup::splashPixmap());
    splash.show();
    app.processEvents();

    int exitCode = 0;
    {
        KalMainWindow window;
        window.restoreWindowSettings();
        window.updateSpellCheckingAction();
        window.show();
        splash.finish(&window);

        KalStartup::showScalingNotice(&window);

        const KalCommandLine commandLine = KalCommandLine::forStartup(QCoreApplication::arguments());
        KalStartup::carryOut(&window, commandLine);

        QObject::connect(&app, &QGuiApplication::lastWindowClosed, &app, &QCoreApplication::quit);

        KalSpellChecker::reportStartUpProblems();
        KalStartup::showDataImportHelp();

        exitCode = app.exec();
    }

    if (exitCode == KalCommandLine::restartExitCode) {
        if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1)))
            std::fprintf(stderr, "pellwick: restart failed\n");
        return 0;
    }
    return exitCode;
}
