#include "KalPlanRasteriser.h"

#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

const int s_defaultFinishTimeout = 1000000;
const int s_startTimeout = 5000;
const int s_pollInterval = 50;

KalPlanRasteriser::ProgramLookup &lookupOverride()
{
    static KalPlanRasteriser::ProgramLookup lookup;
    return lookup;
}

int &finishTimeoutValue()
{
    static int value = s_defaultFinishTimeout;
    return value;
}

QString realProgram()
{
#ifdef Q_OS_WIN
    const QString bundled = QCoreApplication::applicationDirPath() + QStringLiteral("/ptc/ptc.exe");
#else
    const QString bundled = QCoreApplication::applicationDirPath() + QStringLiteral("/ptc/ptc");
#endif
    const QFileInfo info(bundled);
    if (info.isFile() && info.isExecutable())
        return bundled;
    return QStandardPaths::findExecutable(QStringLiteral("pdftocairo"));
}

QString tr(const char *text)
{
    return QCoreApplication::translate("KalPlanRasteriser", text);
}

} // namespace

QString KalPlanRasteriser::program()
{
    return lookupOverride() ? lookupOverride()() : realProgram();
}

void KalPlanRasteriser::setProgramLookup(ProgramLookup lookup)
{
    lookupOverride() = std::move(lookup);
}

int KalPlanRasteriser::finishTimeout()
{
    return finishTimeoutValue();
}

void KalPlanRasteriser::setFinishTimeout(int milliseconds)
{
    finishTimeoutValue() = milliseconds > 0 ? milliseconds : s_defaultFinishTimeout;
}

QStringList KalPlanRasteriser::arguments(const QString &pdf, const QString &outputRoot, int size)
{
    // Without "-f 1 -l 1" every page would be rendered; only page 1 is used.
    return {pdf,
            outputRoot,
            QStringLiteral("-jpeg"),
            QStringLiteral("-scale-to"),
            QString::number(size),
            QStringLiteral("-f"),
            QStringLiteral("1"),
            QStringLiteral("-l"),
            QStringLiteral("1")};
}

QString KalPlanRasteriser::findFirstPage(const QString &outputRoot)
{
    // Page numbers carry as many digits as the page count: -1, -01, -001, -0001.
    for (const char *suffix : {"-1.jpg", "-01.jpg", "-001.jpg", "-0001.jpg"}) {
        const QString candidate = outputRoot + QLatin1String(suffix);
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return QString();
}

KalPlanRasteriser::Result KalPlanRasteriser::rasterise(const QString &pdf, int size)
{
    cleanUp();
    Result result;
    const QString prog = program();
    if (prog.isEmpty()) {
        result.outcome = StartFailed;
        result.detail = tr("Kein PDF-Konverter gefunden (ptc oder pdftocairo).");
        return result;
    }
    // The rasteriser reads a private copy: the user's file may sit on a
    // share, carry characters the program mishandles, or begin with "-".
    m_copy = KalProject::temporaryFileName(QStringLiteral("pdf"));
    m_outputRoot = m_copy.left(m_copy.size() - 4);
    if (!KalFileOps::copyFile(pdf, m_copy)) {
        m_copy.clear();
        result.outcome = CopyFailed;
        result.detail = tr("Die Kopie nach %1 ist fehlgeschlagen.").arg(QDir::toNativeSeparators(QDir::tempPath()));
        return result;
    }
    result = run(prog, size);
    if (result.outcome != Done)
        cleanUp();
    return result;
}

KalPlanRasteriser::Result KalPlanRasteriser::run(const QString &prog, int size)
{
    Result result;
    QProcess process;
    // Only its error text matters; a chatty program must not fill memory.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(prog, arguments(m_copy, m_outputRoot, size), QIODevice::ReadOnly);
    if (!process.waitForStarted(s_startTimeout)) {
        result.outcome = StartFailed;
        result.detail = process.errorString();
        return result;
    }
    KalProgress *progress = KalProgress::instance();
    progress->beginCancelable(tr("PDF wird umgewandelt ..."));
    QElapsedTimer clock;
    clock.start();
    bool canceled = false;
    QByteArray errors;
    while (!process.waitForFinished(s_pollInterval)) {
        if (process.state() == QProcess::NotRunning)
            break;
        errors += process.readAllStandardError();
        errors = errors.right(4000);
        progress->setProgress(0, 0);
        if (progress->wasCanceled()) {
            canceled = true;
            break;
        }
        if (clock.elapsed() > finishTimeout())
            break;
    }
    progress->end();
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished(s_startTimeout);
        result.outcome = canceled ? Canceled : Failed;
        result.detail = canceled ? tr("Abgebrochen.")
                                 : tr("Der PDF-Konverter hat nach %1 s nicht geantwortet und wurde beendet.")
                                       .arg(finishTimeout() / 1000.0);
        return result;
    }
    errors += process.readAllStandardError();
    const QString reported = QString::fromLocal8Bit(errors.right(2000)).trimmed();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        result.detail = process.exitStatus() != QProcess::NormalExit
                            ? tr("Der PDF-Konverter ist abgestürzt.")
                            : tr("Der PDF-Konverter meldet Fehler %1.").arg(process.exitCode());
        if (!reported.isEmpty())
            result.detail += QLatin1Char('\n') + reported;
        return result;
    }
    result.jpegPath = findFirstPage(m_outputRoot);
    if (result.jpegPath.isEmpty()) {
        result.detail = tr("Der PDF-Konverter hat keine Seite geschrieben.");
        if (!reported.isEmpty())
            result.detail += QLatin1Char('\n') + reported;
        return result;
    }
    result.outcome = Done;
    return result;
}

void KalPlanRasteriser::cleanUp()
{
    if (!m_copy.isEmpty())
        QFile::remove(m_copy);
    if (!m_outputRoot.isEmpty()) {
        const QFileInfo root(m_outputRoot);
        QDir folder = root.dir();
        const QStringList pages = folder.entryList({root.fileName() + QStringLiteral("-*")}, QDir::Files);
        for (const QString &page : pages)
            folder.remove(page);
    }
    m_copy.clear();
    m_outputRoot.clear();
}

KalPlanRasteriser::~KalPlanRasteriser()
{
    cleanUp();
}
