#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// What one import run did, across every file it read (a predecessor, the
// linked file, its successors). The GUI and the command-line tool show
// text(); the counts are there for tests, logs and the automatic import.
struct KalDataImportResult
{
    Q_DECLARE_TR_FUNCTIONS(KalDataImportResult)

public:
    enum class Outcome {
        Done,     // everything read was written (possibly nothing changed)
        Canceled, // the user stopped: the project is as before the file that was running
        Stopped,  // the import did not start (lock marker, the user said no); nothing written
        Failed,   // an error, named in errorText; the project is as before the failing file
    };
    Outcome outcome = Outcome::Done;
    QString errorText;

    // False for a first import ("Es wurden ... importiert."), true when
    // records imported before were updated ("Die Daten wurden aktualisiert.").
    bool update = false;

    struct Counts
    {
        int added = 0;    // new in the project
        int updated = 0;  // overwritten with the journal's values
        int deleted = 0;  // deleted here because the journal deleted them
        int restored = 0; // deleted here before, imported again
    };
    Counts companies;
    Counts defects;
    Counts photos;
    int reports = 0; // reports newly recorded in `imported_report`

    // Records changed in the project that the journal changed too: the
    // project's version was kept. One line per defect / company.
    QStringList notUpdatedDefects;
    QStringList notUpdatedCompanies;
    int notUpdatedPhotos = 0;

    // Photos that could not be taken over, one line each: what and why.
    QStringList skippedPhotos;

    // The journal files imported (their transactions committed), in order.
    QStringList files;
    // Whether any row of the project was written: only then is there
    // anything to save.
    bool written = false;

    bool changed() const { return written; }
    bool succeeded() const { return outcome == Outcome::Done; }

    // The result message: counts with their singular/plural words (or the
    // update sentence), the not-updated lists and the skipped photos.
    QString text() const;

    // "Firma"/"Firmen", "Mangel"/"Mängel", "Foto"/"Fotos" by count.
    static QString companyWord(int count);
    static QString defectWord(int count);
    static QString photoWord(int count);
};
