#include "KalStartup.h"

#include "core/project/KalCommandLine.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"
#include "core/project/KalSettings.h"
#include "core/project/KalSqliteCheck.h"
#include "gui/mainwindow/KalMainWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QPainter>
#include <QScreen>
#include <QSettings>
#include <QTranslator>

QString KalStartup::missingDisplayReason()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland"))
        return QString(); // offscreen, vnc, eglfs ... need no display server
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty() && wayland.isEmpty())
        return QStringLiteral("no display available (neither DISPLAY nor WAYLAND_DISPLAY is set). "
                              "Start the program in a graphical session; pellwick-cli works without a display.");
    // A local X display is a socket; when it is gone Qt would abort.
    if (wayland.isEmpty() && display.startsWith(':')) {
        const QByteArray number = display.mid(1).split('.').value(0);
        if (!QFileInfo::exists(QStringLiteral("/tmp/.X11-unix/X") + QString::fromLatin1(number)))
            return QStringLiteral("cannot reach the display %1 (no X server is listening). "
                                  "Start the program in a graphical session; pellwick-cli works without a display.")
                .arg(QString::fromLocal8Bit(display));
    }
#endif
    return QString();
}

void KalStartup::setApplicationIdentity()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quellor - Software"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("quellor-software.de"));
    QCoreApplication::setApplicationName(QStringLiteral("Quellor Pellwick"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PELLWICK_VERSION));
    QIcon icon(QStringLiteral(":/KalDatabase/Pellwick.ico"));
    if (icon.isNull())
        icon = QIcon(QStringLiteral(":/KalMainWindow/Resources/pellwick.png"));
    QApplication::setWindowIcon(icon);
    QGuiApplication::setDesktopFileName(QStringLiteral("pellwick"));
}

QString KalStartup::translationsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../Translations"));
}

QStringList KalStartup::installTranslations(QCoreApplication *app, const QString &folder, const QLocale &locale)
{
    QStringList loaded;
    const QString name = locale.name();
    for (const QString &prefix : {QStringLiteral("qtBase_"), QStringLiteral("kal_")}) {
        auto *translator = new QTranslator(app);
        // QTranslator falls back from "kal_es_ES" to "kal_es".
        if (translator->load(prefix + name, folder)) {
            app->installTranslator(translator);
            loaded << translator->filePath();
        } else {
            delete translator;
        }
    }
    return loaded;
}

QLocale KalStartup::shownLocale(const QLocale &wanted)
{
    switch (wanted.language()) {
    case QLocale::German:
    case QLocale::Spanish:
        return wanted;
    case QLocale::English:
        // The two English translations are British and American; other
        // English-speaking countries read the British one.
        if (wanted.country() == QLocale::UnitedStates)
            return wanted;
        return QLocale(QLocale::English, QLocale::UnitedKingdom);
    default:
        return QLocale(QLocale::German, QLocale::Germany);
    }
}

QLocale KalStartup::setUpLanguage(QCoreApplication *app)
{
    const QLocale locale = shownLocale(KalSettings::chosenLocale());
    QLocale::setDefault(locale);
    installTranslations(app, translationsFolder(), locale);
    return locale;
}

QPixmap KalStartup::splashPixmap()
{
    QPixmap pixmap(460, 240);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(60, 60, 60), 1));
    painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
    const QIcon icon = QApplication::windowIcon();
    if (!icon.isNull())
        painter.drawPixmap(28, 56, icon.pixmap(128, 128));
    QFont title = painter.font();
    title.setPointSize(22);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(QColor(30, 30, 30));
    painter.drawText(QRect(176, 70, 270, 40), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Quellor Pellwick"));
    QFont small = painter.font();
    small.setPointSize(10);
    small.setBold(false);
    painter.setFont(small);
    painter.drawText(QRect(178, 112, 270, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     tr("Version %1").arg(QStringLiteral(PELLWICK_VERSION)));
    painter.setPen(QColor(110, 110, 110));
    painter.drawText(QRect(178, 140, 270, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     tr("Mängelmanagement für Bauprojekte"));
    return pixmap;
}

int KalStartup::scalingPercent(qreal logicalDpi)
{
    // Displays report DPI values near, not at, the scaling steps (100, 125,
    // 150 ... per cent); a screen of 100 DPI is not "scaled".
    return qRound(logicalDpi / 96.0 * 4.0) * 25;
}

QString KalStartup::scalingNoticeText(int percent)
{
    QString text = tr("Sie verwenden eine Bildschirm-Skalierung von %1%. Dies kann es zu Problemen bei der Darstellung "
                      "des Pellwicks führen.")
                       .arg(percent);
    text += tr("\n\nWenn Schriften oder Symbole abgeschnitten oder unscharf dargestellt werden, stellen Sie die "
               "Skalierung für Pellwick auf 100 % zurück:\n");
#ifdef Q_OS_WIN
    QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"),
                       QSettings::NativeFormat);
    const int build = registry.value(QStringLiteral("CurrentBuild")).toInt();
    // Windows 10 (build 10240) moved the compatibility settings to the program's properties.
    if (build < 10240) {
        text += tr(" 1. Öffnen Sie die Systemsteuerung.\n 2. Wählen Sie \"Darstellung und Anpassung\" und dann "
                   "\"Anzeige\".\n 3. Wählen Sie \"Kleiner - 100 %\" und bestätigen Sie mit \"Übernehmen\".\n"
                   " 4. Melden Sie sich ab und wieder an.");
    } else {
        text += tr("1. Rechtsklick auf das Pellwick-Desktop-Icon.\n2. Wählen Sie \"Eigenschaften\" und dann die "
                   "Registerkarte \"Kompatibilität\".\n3. Klicken Sie auf \"Hohe DPI-Einstellungen ändern\" und "
                   "aktivieren Sie \"Verhalten bei hoher DPI-Skalierung überschreiben\" mit \"Anwendung\".\n"
                   "4. Bestätigen Sie mit \"OK\" und starten Sie Pellwick neu.");
    }
#else
    text += tr("1. Öffnen Sie die Bildschirm-Einstellungen Ihrer Arbeitsumgebung.\n2. Stellen Sie die Skalierung "
               "bzw. die Schriftauflösung auf 100 % (96 DPI).\n3. Melden Sie sich ab und wieder an und starten Sie "
               "Pellwick neu.");
#endif
    return text;
}

void KalStartup::showScalingNotice(QWidget *window)
{
    const QString key = QStringLiteral("Messages/DontShowHighDpiMsg");
    if (QSettings().value(key, false).toBool())
        return;
    QScreen *screen = window && window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const int percent = scalingPercent(screen->logicalDotsPerInch());
    if (percent == 100)
        return;
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.title = tr("Bildschirm-Skalierung");
    m.text = scalingNoticeText(percent);
    m.dontShowAgainKey = key;
    m.dontShowAgainText = tr("Diese Meldung nicht mehr anzeigen");
    KalPrompt::ask(m);
}

void KalStartup::carryOut(KalMainWindow *window, const KalCommandLine &commandLine)
{
    if (!KalSqliteCheck::verifyOrQuit())
        return;
    switch (commandLine.kind) {
    case KalCommandLine::Nothing:
        return;
    case KalCommandLine::OpenFile:
        window->openProject(commandLine.projectFile);
        return;
    case KalCommandLine::Connect:
        break;
    }

    const QString problems = commandLine.connectModeProblems();
    if (!problems.isEmpty()) {
        KalPrompt::warning(KalCommandLine::problemsTitle(), KalCommandLine::problemsMessage(problems));
        return;
    }
    const QString project = commandLine.projectFile;
    if (commandLine.connectMode == KalCommandLine::CreateAndImport && !QFileInfo::exists(project)) {
        if (!window->createProjectAt(project))
            return;
    } else {
        // Asked to create a project where one exists: never replace it.
        if (commandLine.connectMode == KalCommandLine::CreateAndImport && !askOpenExistingProject(project))
            return;
        // The journal handed over is imported next; an automatic import at
        // opening would only run the same import twice.
        const bool openOnly = commandLine.connectMode == KalCommandLine::OpenOnly;
        if (!window->openProject(project, openOnly) || openOnly)
            return;
    }
    window->importGivenSiteJournal(commandLine.siteJournalFile);
}

bool KalStartup::askOpenExistingProject(const QString &path)
{
    KalPrompt::Message m;
    m.icon = KalPrompt::Question;
    m.title = tr("Projekt existiert bereits");
    m.text = tr("Das Bautagebuch möchte das neue Projekt\n%1\nanlegen. Diese Datei existiert bereits und wird nicht "
                "überschrieben.\n\nMöchten Sie das vorhandene Projekt öffnen und mit dem Bautagebuch verknüpfen?")
                 .arg(QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()));
    m.buttons = {{KalPrompt::AcceptCustom, tr("Öffnen")}, {KalPrompt::RejectCustom, tr("Abbrechen")}};
    return KalPrompt::ask(m) == 0;
}

QString KalStartup::dataImportHelpText()
{
    return tr("Hilfe zum Datenimport\n\n"
              "Pellwick arbeitet eigenständig (standalone): Sie erfassen Mängel, Fotos, Pläne und Firmen direkt im "
              "Pellwick-Projekt.\n\n"
              "Pellwick arbeitet auch mit dem Quellor Bautagebuch zusammen: Das Bautagebuch ist dann die Datenquelle, "
              "aus der Mängel, Mängelfotos und Firmen in das Pellwick-Projekt übernommen werden.\n\n"
              "Anleitungen dazu finden Sie im Menü \"Hilfe\".");
}

void KalStartup::showDataImportHelp()
{
    const QString key = QStringLiteral("Messages/dontShowDataImportHelpMsg");
    if (QSettings().value(key, false).toBool())
        return;
    KalPrompt::Message m;
    m.icon = KalPrompt::Information;
    m.iconPath = QStringLiteral(":/KalMainWindow/Resources/icon-help.ico");
    m.title = tr("Hilfe zum Datenimport");
    m.text = dataImportHelpText();
    m.dontShowAgainKey = key;
    m.dontShowAgainText = tr("Diese Meldung nicht mehr anzeigen");
    KalPrompt::ask(m);
}
