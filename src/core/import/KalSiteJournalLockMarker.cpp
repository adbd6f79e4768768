#include "KalSiteJournalLockMarker.h"

#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProjectLock.h"
#include "core/project/KalPrompt.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

// Only a read: the working copy belongs to the site-diary program, and a
// write test would change it. A writer in exclusive mode blocks readers.
bool workingCopyHeld(const QString &workingCopy)
{
    const QString name = QStringLiteral("BTBLOCK");
    bool held = false;
    {
        QSqlDatabase db = KalProjectLock::addProbeConnection(name, workingCopy, true);
        if (db.open()) {
            QSqlQuery query(db);
            if (!query.exec(QStringLiteral("SELECT COUNT(*) FROM sqlite_master")) || !query.next())
                held = KalProjectLock::isLockError(query.lastError());
        } else {
            held = KalProjectLock::isLockError(db.lastError());
        }
    }
    KalProjectLock::removeConnection(name);
    return held;
}

} // namespace

QString KalSiteJournalLockMarker::workingCopyPath(const QString &journalPath)
{
    return journalPath + QStringLiteral(".workingcopy");
}

QString KalSiteJournalLockMarker::userDataPath(const QString &journalPath)
{
    return journalPath + QStringLiteral(".udf");
}

KalSiteJournalLockMarker::Verdict KalSiteJournalLockMarker::check(const QString &journalPath)
{
    Verdict verdict;
    const QString workingCopy = workingCopyPath(journalPath);
    if (!KalFileOps::isRegularFile(workingCopy))
        return verdict;
    if (!workingCopyHeld(workingCopy)) {
        verdict.state = State::LeftOver;
        return verdict;
    }
    const QStringList holder = KalProjectLock::holder(userDataPath(journalPath));
    verdict.user = holder.value(0).trimmed();
    verdict.computer = holder.value(1).trimmed();
    const bool same = !verdict.user.isEmpty() && verdict.user == KalEnvironment::userName() &&
                      verdict.computer.compare(KalEnvironment::computerName(), Qt::CaseInsensitive) == 0;
    verdict.state = same ? State::ThisUser : State::OtherUser;
    return verdict;
}

bool KalSiteJournalLockMarker::confirm(const QString &journalPath, KalPrompt *prompt)
{
    if (!prompt)
        prompt = KalPrompt::instance();
    const Verdict verdict = check(journalPath);
    KalPrompt::Message message;
    switch (verdict.state) {
    case State::Free:
    case State::LeftOver:
        return true;
    case State::ThisUser:
        message.icon = KalPrompt::Warning;
        message.title = tr("Bautagebuch geöffnet");
        message.text = tr("Die Bautagebuch-Datei ist im Bautagebuch-Programm zur Bearbeitung geöffnet.\nSpeichern Sie "
                          "Ihre Änderungen im Bautagebuch-Programm, bevor Sie fortfahren.\nWährend des "
                          "Import-Vorgangs ist kein Speichern des Bautagebuchs möglich!");
        message.buttons = {{KalPrompt::AcceptCustom, tr("Fortfahren")},
                           {KalPrompt::RejectCustom, tr("Import abbrechen")}};
        message.escapeButton = 1;
        return prompt->show(message) == 0;
    case State::OtherUser:
        message.icon = KalPrompt::Warning;
        message.title = tr("Datenbankfehler");
        message.text = tr("Die Bautagebuch-Datei konnte nicht geöffnet werden, da sie in Bearbeitung ist "
                          "von\nUser: %1\nComputer: %2.")
                           .arg(verdict.user, verdict.computer);
        prompt->show(message);
        return false;
    }
    return false;
}
