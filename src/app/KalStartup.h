#pragma once

#include <QCoreApplication>
#include <QLocale>
#include <QPixmap>
#include <QString>
#include <QStringList>

class KalCommandLine;
class KalMainWindow;
class QWidget;

// The steps of start-up that are more than a line in main().
class KalStartup
{
    Q_DECLARE_TR_FUNCTIONS(KalStartup)

public:
    // Empty when a display can be used; otherwise why not.
    static QString missingDisplayReason();

    // Organisation, application name and window icon; they also decide
    // where the settings live.
    static void setApplicationIdentity();

    // "../Translations" beside the program folder.
    static QString translationsFolder();
    // Loads Qt's base translation and the program's own for `locale`; a
    // missing file is skipped. Returns the files that were loaded.
    static QStringList installTranslations(QCoreApplication *app, const QString &folder, const QLocale &locale);
    // The locale the program can show for `wanted`: a language it has no
    // texts for falls back to German, the language it is written in, so that
    // Qt's own texts, dates and dictionaries follow the texts on screen.
    static QLocale shownLocale(const QLocale &wanted);
    // The chosen language (by default the system's) as the program shows it:
    // made the default locale, with the program's translation and Qt's own
    // for the same language installed. Returns that locale.
    static QLocale setUpLanguage(QCoreApplication *app);

    static QPixmap splashPixmap();

    // Display scaling in per cent: logical DPI relative to 96.
    static int scalingPercent(qreal logicalDpi);
    static QString scalingNoticeText(int percent);
    static void showScalingNotice(QWidget *window);

    // Opens what the command line (or a pending restart) asks for.
    static void carryOut(KalMainWindow *window, const KalCommandLine &commandLine);
    // Asked to create a project at a path that exists: whether to open that
    // project instead (the safe answer cancels).
    static bool askOpenExistingProject(const QString &path);

    static QString dataImportHelpText();
    static void showDataImportHelp();
};
