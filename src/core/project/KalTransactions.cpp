#include "KalTransactions.h"

#include "core/project/KalLog.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>

KalTransactions::KalTransactions(const QString &connectionName)
    : m_connectionName(connectionName)
{
}

void KalTransactions::setConnectionName(const QString &connectionName)
{
    m_connectionName = connectionName;
    m_depth = 0;
}

QSqlDatabase KalTransactions::database() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

bool KalTransactions::begin()
{
    if (m_depth++ > 0)
        return true;
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("BEGIN EXCLUSIVE TRANSACTION"))) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        m_depth = 0;
        return false;
    }
    return true;
}

bool KalTransactions::commit()
{
    if (m_depth <= 0) {
        m_depth = 0;
        return false;
    }
    if (--m_depth > 0)
        return true;
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("COMMIT TRANSACTION"))) {
        // A failed commit is logged only; the caller decides what to tell.
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        return false;
    }
    return true;
}

bool KalTransactions::rollback()
{
    if (m_depth <= 0)
        return false;
    m_depth = 0;
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("ROLLBACK TRANSACTION"))) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        return false;
    }
    return true;
}
