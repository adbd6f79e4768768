#pragma once

#include <QString>

// Remembered folders for the file dialogs, one per kind of file.
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

} // namespace KalSettings
