#pragma once

#include <QSqlDatabase>

// Counted transactions on one connection: nested begin/commit pairs only
// issue SQL at the outermost level.
class KalTransactions
{
public:
    explicit KalTransactions(const QString &connectionName = QString());
    void setConnectionName(const QString &connectionName);

    bool begin();
    bool commit();
    // Rolls back the whole outermost transaction and resets the count.
    bool rollback();
    int depth() const { return m_depth; }
    void reset() { m_depth = 0; }

private:
    QSqlDatabase database() const;
    QString m_connectionName;
    int m_depth = 0;
};
