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
    return QDir::toNativeSeparators(path);
}

void rememberFilePath(int kind, const QString &chosenPath, bool isDirectory)
{
    const QString key = fileDialogKey(kind);
    if (chosenPath.isEmpty() || key.isEmpty())
        return;
    QFileInfo fi(chosenPath);
    const QString folder = isDirectory ? fi.absoluteFilePath() : fi.absolutePath();
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
