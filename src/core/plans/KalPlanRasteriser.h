#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// Turns page 1 of a PDF into a JPEG with an external rasteriser
// (ptc/ptc beside the program, else pdftocairo): a temporary copy of the
// PDF, arguments as a list (no shell), a cancelable wait, and no temporary
// file left behind in any outcome.
class KalPlanRasteriser
{
public:
    enum Outcome { Done, CopyFailed, StartFailed, Failed, Canceled };

    struct Result
    {
        Outcome outcome = Failed;
        QString jpegPath; // Done: the page; the caller removes it with cleanUp()
        QString detail;   // why it failed, for the detail text
    };

    // The program to start; empty when none is installed.
    static QString program();
    using ProgramLookup = std::function<QString()>;
    // Replaces the lookup (empty function: the real one again).
    static void setProgramLookup(ProgramLookup lookup);
    // Longest wait for the rasteriser to finish, in milliseconds.
    static int finishTimeout();
    static void setFinishTimeout(int milliseconds); // <= 0: the default

    // The rasteriser's arguments for a PDF, output root and size.
    static QStringList arguments(const QString &pdf, const QString &outputRoot, int size);
    // The file a rasteriser wrote for page 1, by the digits of the page count.
    static QString findFirstPage(const QString &outputRoot);

    // `pdf` is only read; the result's JPEG lies in the temporary folder.
    Result rasterise(const QString &pdf, int size);
    // Removes the copy and every page the rasteriser wrote.
    void cleanUp();
    ~KalPlanRasteriser();

private:
    Result run(const QString &program, int size);
    QString m_copy;
    QString m_outputRoot;
};
