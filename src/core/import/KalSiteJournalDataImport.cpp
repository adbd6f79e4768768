#include "KalSiteJournalDataImport.h"

#include "core/import/KalDataImportQuestions.h"
#include "core/import/KalSiteJournalFile.h"
#include "core/import/KalSiteJournalImportRun.h"
#include "core/import/KalSiteJournalLockMarker.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProgress.h"
#include "core/project/KalProject.h"
#include "core/project/KalPrompt.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

void tell(KalPrompt *prompt, KalPrompt::Icon icon, const QString &title, const QString &text)
{
    KalPrompt::Message message;
    message.icon = icon;
    message.title = title;
    message.text = text;
    prompt->show(message);
}

// A file another file names (`exportedTo`, `exportedFrom`): as written, or,
// when that path is from another computer, the same name beside `besideFile`.
QString resolveNamed(const QString &named, const QString &besideFile)
{
    if (named.trimmed().isEmpty())
        return QString();
    if (KalFileOps::isRegularFile(named))
        return QFileInfo(named).absoluteFilePath();
    QString name = named.trimmed();
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    name = name.section(QLatin1Char('/'), -1);
    const QString beside = QFileInfo(besideFile).absoluteDir().filePath(name);
    return !name.isEmpty() && KalFileOps::isRegularFile(beside) ? beside : QString();
}

QString identity(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

} // namespace

KalSiteJournalDataImport::KalSiteJournalDataImport(KalProject *project, KalPrompt *prompt, KalProgress *progress,
                                                   KalDataImportConflictResolver *resolver)
    : m_project(project)
    , m_prompt(prompt ? prompt : KalPrompt::instance())
    , m_progress(progress ? progress : KalProgress::instance())
    , m_resolver(resolver)
{
}

KalSiteJournalDataImport::~KalSiteJournalDataImport() = default;

bool KalSiteJournalDataImport::confirmLock(const QString &journalPath)
{
    // Asked once per file and run, however often the run comes back to it.
    if (!m_checkLockMarker || m_confirmed.contains(identity(journalPath)))
        return true;
    m_progress->yieldToMessage();
    if (!KalSiteJournalLockMarker::confirm(journalPath, m_prompt))
        return false;
    m_confirmed.insert(identity(journalPath));
    return true;
}

KalDataImportResult KalSiteJournalDataImport::run(const QString &journalPath, Mode mode)
{
    KalDataImportResult result;
    result.update = mode == Mode::Update;
    const auto stop = [&](const QString &text) {
        result.outcome = KalDataImportResult::Outcome::Failed;
        result.errorText = text;
        tell(m_prompt, KalPrompt::Critical, tr("Datenimport aus dem Bautagebuch"), text);
        return result;
    };
    if (!m_project || !m_project->isOpen())
        return stop(tr("Es ist kein Projekt geöffnet."));
    if (m_project->isWriteProtected())
        return stop(tr("Das Projekt ist schreibgeschützt; es kann nichts importiert werden."));

    m_confirmed.clear();
    KalDataImportQuestions questions(m_prompt, m_progress);
    m_progress->beginCancelable(tr("Datenimport aus dem Bautagebuch"));
    const QString path = QFileInfo(journalPath).absoluteFilePath();
    if (!confirmLock(path)) {
        result.outcome = KalDataImportResult::Outcome::Stopped;
        m_progress->end();
        return result;
    }
    QString predecessor;
    if (mode == Mode::Initial && offerPredecessor(path, &predecessor) && !predecessor.isEmpty()) {
        importChain(predecessor, mode, false, &result, &questions);
        // The predecessor normally leads to the chosen file by itself.
        const bool reached = result.files.contains(path) || result.files.contains(identity(path));
        if (result.succeeded() && !reached)
            importChain(path, Mode::Update, false, &result, &questions);
    } else if (result.succeeded()) {
        importChain(path, mode, true, &result, &questions);
    }
    // The project keeps the choice read at opening; it may have changed.
    if (result.written)
        m_project->readAutomaticImportMode();
    m_progress->end();
    return result;
}

bool KalSiteJournalDataImport::offerPredecessor(const QString &journalPath, QString *predecessor)
{
    QString named;
    {
        KalSiteJournalFile file;
        QString error;
        if (!file.open(journalPath, &error))
            return false; // importChain reports it
        named = file.meta(QStringLiteral("exportedFrom"));
    }
    if (named.isEmpty())
        return false;
    KalPrompt::Message question;
    question.icon = KalPrompt::Question;
    question.title = tr("Datenimport aus Bautagebuch");
    question.text = tr("Zu der Bautagebuchdatei existiert die Vorgängerdatei\n%1\n.Sollen die Daten dieser "
                       "Vorgängerdatei ebenfalls importiert werden?\n")
                        .arg(QDir::toNativeSeparators(named));
    question.buttons = {{KalPrompt::AcceptCustom, tr("Daten aus Vorgängerdatei importieren")},
                        {KalPrompt::RejectCustom, tr("Nein")}};
    question.escapeButton = 1;
    m_progress->yieldToMessage();
    if (m_prompt->show(question) != 0)
        return false;
    const QString resolved = resolveNamed(named, journalPath);
    QString error;
    KalSiteJournalFile probe;
    if (resolved.isEmpty() || identity(resolved) == identity(journalPath) ||
        (m_checkLockMarker &&
         KalSiteJournalLockMarker::check(resolved).state == KalSiteJournalLockMarker::State::OtherUser) ||
        !probe.open(resolved, &error)) {
        tell(m_prompt, KalPrompt::Warning, tr("Datenbankfehler"),
             tr("Die Vorgängerdatenbank konnte nicht geöffnet werden.\nEs werden nur die Daten der "
                "Folgesatei importiert.\n\n") +
                 error);
        return true;
    }
    *predecessor = resolved;
    return true;
}

QString KalSiteJournalDataImport::successorOf(const KalSiteJournalFile &file, const QSet<QString> &visited)
{
    const QString named = file.meta(QStringLiteral("exportedTo"));
    if (named.isEmpty())
        return QString();
    const QString successor = resolveNamed(named, file.path());
    if (successor.isEmpty()) {
        tell(m_prompt, KalPrompt::Warning, tr("Bautagebuch Folgedatei gefunden"),
             tr("Das Bautagebuch nennt die Folgedatei\n%1\ndie nicht gefunden wurde.\nEs werden "
                "nur die Daten dieser Datei importiert.")
                 .arg(QDir::toNativeSeparators(named)));
        return QString();
    }
    if (visited.contains(identity(successor))) {
        tell(m_prompt, KalPrompt::Warning, tr("Bautagebuch Folgedatei gefunden"),
             tr("Die Folgedateien des Bautagebuchs verweisen im Kreis aufeinander:\n%1\nnennt "
                "wieder\n%2\nEs werden nur die Daten bis hierher importiert.")
                 .arg(QDir::toNativeSeparators(file.path()), QDir::toNativeSeparators(successor)));
        return QString();
    }
    return successor;
}

bool KalSiteJournalDataImport::announce()
{
    KalPrompt::Message message;
    message.icon = KalPrompt::Information;
    message.title = tr("Bautagebuch Folgedatei gefunden");
    message.text = tr("Für das mit dem Pellwick Projekt verknüpfte Bautagebuch wurde seit dem letzten Import "
                      "eine Folgedatei angelegt.\nDas Pellwick Projekt wird jetzt mit dieser Folgedatei "
                      "verknüpft.\nIm Anschluss werden die Daten der Folgedatei importiert.\nEin Import von "
                      "Daten aus der Ursprungsdatei des Bautagebuchs ist dann nicht mehr möglich.") +
                   tr("\n\nKlicken Sie auf 'OK', um die importierten Daten zu speichern und im Anschluss die "
                      "Folgedatei des Bautagebuchs zu importieren.");
    message.buttons = {{KalPrompt::Ok, QString()}, {KalPrompt::Cancel, QString()}};
    message.escapeButton = 1;
    m_progress->yieldToMessage();
    return m_prompt->show(message) == 0;
}

void KalSiteJournalDataImport::importChain(const QString &first, Mode mode, bool announceSuccessor,
                                           KalDataImportResult *result, KalDataImportQuestions *questions)
{
    const bool appFile = mode == Mode::App;
    QSet<QString> visited;
    for (const QString &done : qAsConst(result->files))
        visited.insert(identity(done));
    QString current = first;
    qint64 minReportId = -1;
    while (!current.isEmpty()) {
        visited.insert(identity(current));
        if (!confirmLock(current)) {
            if (result->files.isEmpty())
                result->outcome = KalDataImportResult::Outcome::Stopped;
            return;
        }
        KalSiteJournalFile file;
        QString error;
        if (!file.open(current, &error)) {
            tell(m_prompt, KalPrompt::Critical, tr("Datenbankfehler"), error);
            result->outcome = KalDataImportResult::Outcome::Failed;
            result->errorText = error;
            return;
        }
        const QString successor = appFile ? QString() : successorOf(file, visited);
        if (!successor.isEmpty() && announceSuccessor && !announce()) {
            if (result->files.isEmpty())
                result->outcome = KalDataImportResult::Outcome::Stopped;
            return;
        }
        KalSiteJournalImportRun::Settings settings;
        settings.mode = mode;
        settings.linkKey =
            appFile ? QStringLiteral("appImportlDatabasePath") : QStringLiteral("siteJournalDatabasePath");
        settings.linkValue = QDir::toNativeSeparators(current);
        settings.automaticImportMode = m_automaticImportMode;
        settings.minReportId = minReportId;
        settings.weighDeletions = m_weighDeletions;
        KalSiteJournalImportRun run(m_project, m_progress, m_resolver, questions, result);
        if (!run.execute(file, settings))
            return;
        const qint64 nextMinimum = file.entryCounter() + 1;
        file.close();
        if (successor.isEmpty())
            return;
        if (m_project->saveProject() != KalProject::Saved) {
            result->outcome = KalDataImportResult::Outcome::Failed;
            result->errorText = tr("Beim Speichern des Projekts ist ein Fehler aufgetreten!");
            tell(m_prompt, KalPrompt::Critical, tr("Fehler"), result->errorText);
            return;
        }
        current = successor;
        mode = Mode::Update;
        announceSuccessor = true;
        minReportId = nextMinimum;
    }
}
