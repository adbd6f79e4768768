#include "KalCliImportJournal.h"

#include "cli/KalCli.h"
#include "cli/KalCliProject.h"
#include "core/import/KalDataImportConflictResolver.h"
#include "core/import/KalSiteJournalDataImport.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <cstdio>

namespace {

using KalCli::Failed;
using KalCli::Success;

QString tr(const char *text)
{
    return QCoreApplication::translate("KalCliImportJournal", text);
}

void err(const QString &text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}

// Progress of a long import on stderr: the phase when it changes and the
// count at most once per percent, so 20,000 defects make a readable log.
class ImportProgress : public KalProgress
{
public:
    void begin(const QString &text) override
    {
        m_percent = -1;
        m_phase.clear();
        err(text);
    }
    void setText(const QString &text) override
    {
        m_phase = text.section(QLatin1Char('\n'), 0, 0);
        if (m_phase != m_shownPhase) {
            m_shownPhase = m_phase;
            m_percent = -1;
            err(QStringLiteral("  ") + m_phase);
        }
        m_detail = text.section(QLatin1Char('\n'), 1);
    }
    void setProgress(qint64 done, qint64 total) override
    {
        if (total <= 0)
            return;
        const int percent = int(done * 100 / total);
        if (percent == m_percent && done != total)
            return;
        m_percent = percent;
        // One arg() call: a journal text holding "%2" stays as it is.
        const QString count = m_detail.isEmpty() ? QStringLiteral("%1/%2").arg(done).arg(total) : m_detail;
        err(QStringLiteral("  %1 (%2 %)").arg(count, QString::number(percent)));
    }
    void end() override { m_shownPhase.clear(); }

private:
    QString m_phase;
    QString m_shownPhase;
    QString m_detail;
    int m_percent = -1;
};

QString linkedJournal(const KalProject &project)
{
    QSqlQuery query(project.database());
    query.prepare(QStringLiteral("SELECT value FROM meta WHERE key = :key"));
    query.bindValue(QStringLiteral(":key"), QStringLiteral("siteJournalDatabasePath"));
    return query.exec() && query.next() ? query.value(0).toString().trimmed() : QString();
}

bool sameFile(const QString &a, const QString &b)
{
    const QFileInfo left(QDir::fromNativeSeparators(a));
    const QFileInfo right(QDir::fromNativeSeparators(b));
    if (left.exists() && right.exists())
        return left.canonicalFilePath() == right.canonicalFilePath();
    return left.absoluteFilePath() == right.absoluteFilePath();
}

// The first import links the journal; a project linked to another journal
// is relinked only when the user agrees (the safe answer keeps the link).
bool chooseMode(const KalProject &project, const QString &journal, bool newOnly, KalSiteJournalDataImport::Mode *mode)
{
    using Mode = KalSiteJournalDataImport::Mode;
    const QString linked = linkedJournal(project);
    if (linked.isEmpty()) {
        *mode = Mode::Initial;
        return true;
    }
    if (sameFile(linked, journal)) {
        *mode = newOnly ? Mode::NewOnly : Mode::Update;
        return true;
    }
    KalPrompt::Message question;
    question.icon = KalPrompt::Question;
    question.title = tr("Datenimport aus dem Bautagebuch");
    question.text = tr("Das Projekt ist mit dem Bautagebuch\n%1\nverknüpft. Soll es stattdessen mit\n%2\nverknüpft "
                       "und daraus importiert werden?")
                        .arg(QDir::toNativeSeparators(linked), QDir::toNativeSeparators(journal));
    question.buttons = {{KalPrompt::AcceptCustom, tr("Neu verknüpfen")}, {KalPrompt::RejectCustom, tr("Abbrechen")}};
    question.escapeButton = 1;
    if (KalPrompt::ask(question) != 0)
        return false;
    *mode = Mode::Initial;
    return true;
}

int finish(KalProject &project, const KalDataImportResult &result)
{
    if (!result.succeeded()) {
        // Nothing of the failed or stopped file is in the project; files of
        // a chain before it were saved on the way and stay.
        project.closeProject();
        return Failed;
    }
    // An unchanged journal leaves the project file as it was, without a backup.
    const int saved = project.isModified() ? project.saveProject() : int(KalProject::Saved);
    project.closeProject();
    if (saved != KalProject::Saved)
        return Failed;
    KalCli::out(result.text());
    return Success;
}

} // namespace

int kalCliImportJournal(const QString &file, const QStringList &options)
{
    QStringList positional;
    bool newOnly = false;
    for (const QString &arg : options) {
        if (arg == QLatin1String("--new-only"))
            newOnly = true;
        else if (arg.startsWith(QLatin1String("--")))
            return KalCli::usageError(QStringLiteral("unknown argument '%1'").arg(arg));
        else
            positional << arg;
    }
    if (positional.size() != 1)
        return KalCli::usageError(QStringLiteral("import-journal needs a project file and one journal file"));
    const QString journal = QFileInfo(positional.first()).absoluteFilePath();
    if (KalCli::fileMissing(file) || KalCli::fileMissing(journal))
        return Failed;

    // Our own working copy beside it would look like somebody editing it.
    if (sameFile(file, journal)) {
        KalPrompt::critical(tr("Datenimport aus dem Bautagebuch"),
                            tr("Die Datei\n%1\nist die Projektdatei selbst und keine Bautagebuch-Datei.")
                                .arg(QDir::toNativeSeparators(journal)));
        return Failed;
    }
    KalProject project;
    if (!kalCliOpenForWriting(project, file))
        return Failed;
    KalSiteJournalDataImport::Mode mode = KalSiteJournalDataImport::Mode::Initial;
    if (!chooseMode(project, journal, newOnly, &mode)) {
        project.closeProject();
        return Failed;
    }
    ImportProgress progress;
    KalDataImportNewDefectResolver resolver;
    KalSiteJournalDataImport import(&project, KalPrompt::instance(), &progress, &resolver);
    // Nobody answers here without --yes: records deleted on one side stay as
    // they are and no "Nein" is stored for them, so the program still asks.
    const auto *prompt = dynamic_cast<KalStderrPrompt *>(KalPrompt::instance());
    const bool weigh = prompt && prompt->assumesYes();
    import.setWeighDeletions(weigh);
    if (!weigh && mode != KalSiteJournalDataImport::Mode::Initial)
        err(tr("Ohne --yes bleiben Datensätze, die auf einer Seite gelöscht wurden, unverändert; das "
               "Programm fragt beim nächsten Import danach."));
    return finish(project, import.run(journal, mode));
}
