#pragma once

#include <QDate>
#include <QList>
#include <QString>

// Decides where a site-journal defect goes when the import cannot tell by
// itself. The import matches first: a journal defect whose id a project
// defect already carries updates that defect; one of an already imported
// report whose id is unknown takes over the one project defect of that
// report with the same number whose journal counterpart is gone. Only when
// such orphaned project defects exist and none matches by number is the
// resolver asked; a defect of a new report, or of a report without orphans,
// is simply new. The GUI answers with a dialog, the command-line tool "new".
class KalDataImportConflictResolver
{
public:
    // The journal defect as the user needs to recognise it.
    struct JournalDefect
    {
        qint64 siteJournalId = -1;
        QString reportNumber;
        QString number;
        QString description;
        QString roomName;
        QString roombookNumber;
        QString company; // the journal company's display text, empty when none
        QDate correctionDate;
        int photoCount = 0;
    };

    virtual ~KalDataImportConflictResolver() = default;

    // The id (table `defect`) of one of `candidates` to update with the
    // journal defect, or -1 to import it as a new defect. Any id not in
    // `candidates` counts as -1.
    virtual qint64 assign(const JournalDefect &defect, const QList<qint64> &candidates) = 0;
};

// Imports every conflict as a new defect (the command-line tool's answer).
class KalDataImportNewDefectResolver : public KalDataImportConflictResolver
{
public:
    qint64 assign(const JournalDefect &, const QList<qint64> &) override { return -1; }
};
