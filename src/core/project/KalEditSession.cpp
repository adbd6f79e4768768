#include "KalEditSession.h"

#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"

#include <QSqlQuery>

KalEditSession::KalEditSession(KalProject *project, const QStringList &tables)
    : m_project(project)
    , m_tables(tables)
{
    if (!m_project || !m_project->isOpen() || m_project->isWriteProtected())
        return;
    m_wasModified = m_project->isModified();
    // Writes of the dialog nest inside this transaction, so none of them
    // reaches the file before OK.
    m_active = m_project->beginTransaction();
}

KalEditSession::~KalEditSession()
{
    undo();
}

bool KalEditSession::keep()
{
    if (!m_active)
        return true;
    m_active = false;
    if (m_project->commitTransaction())
        return true;
    // The count is gone with the failed commit; the database may still hold
    // the transaction open.
    QSqlQuery rollback(m_project->database());
    rollback.exec(QStringLiteral("ROLLBACK TRANSACTION"));
    reread();
    m_project->setModified(m_wasModified);
    return false;
}

void KalEditSession::undo()
{
    if (!m_active)
        return;
    m_active = false;
    for (const QString &table : qAsConst(m_tables)) {
        if (KalSqlTableModel *model = m_project->model(table))
            model->revertAll();
    }
    m_project->rollbackTransaction();
    reread();
    m_project->setModified(m_wasModified);
}

void KalEditSession::reread()
{
    for (const QString &table : qAsConst(m_tables)) {
        if (KalSqlTableModel *model = m_project->model(table))
            model->select();
    }
}
