#pragma once

#include <QString>
#include <QStringList>

// "import-journal FILE.pwp JOURNAL.sjd [--new-only]": links the project to a
// site journal on first use, imports its defects, photos and companies (or
// brings an earlier import up to date) and saves the project when anything
// changed. Without the global --yes every question gets its safe answer:
// nothing is deleted or restored, a journal the user has open is left
// alone; conflicts always become new defects.
int kalCliImportJournal(const QString &file, const QStringList &options);
