#pragma once

#include <QLocale>
#include <QString>

// Settings read in more than one place: remembered folders for the file
// dialogs, one per kind of file, the number of backups and the chosen locale.
namespace KalSettings {

enum FileDialogKind {
    ProjectOpen = 1,    // "DBOpenPath"
    ProjectSave = 2,    // "DBSavePath"
    ImageFiles = 3,     // "ImageAddPath"
    ImageDirectory = 4, // "ImageAddDirectoryPath"
    PlanFiles = 5,      // "PlanAddPath"
    LogoFile = 6,       // "LogoAddPath"
    PdfExport = 7       // "PDFPath"
};

// The settings key (inside "FileDialogPaths") of a kind; empty when unknown.
QString fileDialogKey(int kind);

// Folder to start a file dialog of this kind in, with native separators.
QString filePathForDialog(int kind);

// Remembers the folder of the chosen path (or the path itself for a folder).
void rememberFilePath(int kind, const QString &chosenPath, bool isDirectory);

// "File/NumberOfBackups" with its default for saving.
int numberOfBackups();

// The language and country the user chose ("Language", "Country", Qt's
// enumeration numbers), by default those of the system, as stored.
struct LocaleChoice
{
    int language;
    int country;
};
LocaleChoice chosenLanguageAndCountry();
// The same as a locale (Qt may settle an odd pair on another country):
// texts and dates follow it.
QLocale chosenLocale();

} // namespace KalSettings
