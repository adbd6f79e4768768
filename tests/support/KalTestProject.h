#pragma once

#include <QVariant>
#include <QVariantMap>
#include <memory>

class KalProject;
class KalSqlTableModel;

// Inserts a row into any open project (a window's, say) as an import or
// another program would, with an id from the allocator unless one is given;
// returns the id or -1.
qint64 kalInsertRow(KalProject *project, const QString &table, QVariantMap values);

// A new untitled project for a test class, with direct reads and writes of
// its working copy (as an import or another program would write it).
class KalTestProject
{
public:
    KalTestProject();
    ~KalTestProject();

    // A fresh project; the previous one is closed.
    bool open();
    void close();

    KalProject *project() const { return m_project.get(); }
    KalSqlTableModel *model(const QString &table) const;

    // Plain SQL with named values (":key").
    bool exec(const QString &sql, const QVariantMap &values = {});
    // First column of the first row, invalid when there is none.
    QVariant value(const QString &sql, const QVariantMap &values = {});
    // One stored field of one row.
    QVariant field(const QString &table, qint64 id, const QString &column);
    int count(const QString &table, const QString &where = QStringLiteral("1"));

    qint64 insert(const QString &table, const QVariantMap &values) { return kalInsertRow(project(), table, values); }
    qint64 addCompany(const QString &name, const QString &trade = QString(), const QVariantMap &more = {});
    // A defect numbered "1" with a description unless `values` say otherwise.
    qint64 addDefect(const QVariantMap &values = {});
    // Re-reads every model after direct writes.
    bool reselect();

private:
    std::unique_ptr<KalProject> m_project;
};
