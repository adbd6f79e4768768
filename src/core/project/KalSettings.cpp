#include "KalSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace KalSettings {

QString fileDialogKey(int kind)
{
    switch (kind) {
    case ProjectOpen:
        return QStringLiteral("DBOpenPath");
    case ProjectSave:
        return QStringLiteral("DBSavePath");
    case ImageFiles:
        return QStringLiteral("ImageAddPath");
    case ImageDirectory:
        return QStringLiteral("ImageAddDirectoryPath");
    case PlanFiles:
        return QStringLiteral("PlanAddPath");
    case LogoFile:
        return QStringLiteral("LogoAddPath");
    case PdfExport:
        return QStringLiteral("PDFPath");
    default:
        return QString();
    }
}

static QString defaultFolder()
{
    QSettings settings;
    if (settings.contains(QStringLiteral("currentDirectory")))
        return settings.value(QStringLiteral("currentDirectory")).toString();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!documents.isEmpty() && QFileInfo(documents).isDir())
        return documents;
    return QDir::homePath();
}

QString filePathForDialog(int kind)
{
    const QString fallback = defaultFolder();
    const QString key = fileDialogKey(kind);
    QString path = fallback;
    if (!key.isEmpty()) {
        QSettings settings;
        settings.beginGroup(QStringLiteral("FileDialogPaths"));
        path = settings.value(key, fallback).toString();
        settings.endGroup();
    }
    // A remembered folder that is gone (or was never a folder) would make the
    // dialog start below a file and return paths that lead nowhere: start in
    // the nearest folder that exists.
    QFileInfo info(path);
    while (!info.isDir() && !info.isRoot() && info.absolutePath() != info.absoluteFilePath())
        info.setFile(info.absolutePath());
    return QDir::toNativeSeparators(info.isDir() ? info.absoluteFilePath() : fallback);
}

void rememberFilePath(int kind, const QString &chosenPath, bool isDirectory)
{
    const QString key = fileDialogKey(kind);
    if (chosenPath.isEmpty() || key.isEmpty())
        return;
    QFileInfo fi(chosenPath);
    const QString folder = isDirectory ? fi.absoluteFilePath() : fi.absolutePath();
    if (!QFileInfo(folder).isDir())
        return;
    QSettings settings;
    settings.beginGroup(QStringLiteral("FileDialogPaths"));
    settings.setValue(key, folder);
    settings.endGroup();
}

int numberOfBackups()
{
    QSettings settings;
    return settings.value(QStringLiteral("File/NumberOfBackups"), 5).toInt();
}

LocaleChoice chosenLanguageAndCountry()
{
    const QLocale system = QLocale::system();
    QSettings settings;
    return {settings.value(QStringLiteral("Language"), int(system.language())).toInt(),
            settings.value(QStringLiteral("Country"), int(system.country())).toInt()};
}

QLocale chosenLocale()
{
    const LocaleChoice chosen = chosenLanguageAndCountry();
    return QLocale(QLocale::Language(chosen.language), QLocale::Country(chosen.country));
}

} // namespace KalSettings
