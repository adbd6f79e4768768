#include "KalTestProject.h"

#include "core/project/KalProject.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalSqlTableModel.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

KalTestProject::KalTestProject() = default;

KalTestProject::~KalTestProject()
{
    close();
}

bool KalTestProject::open()
{
    close();
    m_project = std::make_unique<KalProject>();
    return m_project->newProject();
}

void KalTestProject::close()
{
    if (m_project && m_project->isOpen()) {
        m_project->setModified(false);
        m_project->closeProject();
    }
    m_project.reset();
}

KalSqlTableModel *KalTestProject::model(const QString &table) const
{
    return m_project ? m_project->model(table) : nullptr;
}

namespace {
bool run(QSqlQuery &q, const QString &sql, const QVariantMap &values)
{
    if (!q.prepare(sql)) {
        qWarning("%s: %s", qPrintable(sql), qPrintable(q.lastError().text()));
        return false;
    }
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        q.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!q.exec()) {
        qWarning("%s: %s", qPrintable(sql), qPrintable(q.lastError().text()));
        return false;
    }
    return true;
}
} // namespace

bool KalTestProject::exec(const QString &sql, const QVariantMap &values)
{
    QSqlQuery q(m_project->database());
    return run(q, sql, values);
}

QVariant KalTestProject::value(const QString &sql, const QVariantMap &values)
{
    QSqlQuery q(m_project->database());
    return run(q, sql, values) && q.next() ? q.value(0) : QVariant();
}

QVariant KalTestProject::field(const QString &table, qint64 id, const QString &column)
{
    return value(QStringLiteral("SELECT %1 FROM %2 WHERE id = :id").arg(column, table), {{"id", id}});
}

int KalTestProject::count(const QString &table, const QString &where)
{
    return value(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(table, where)).toInt();
}

qint64 kalInsertRow(KalProject *project, const QString &table, QVariantMap values)
{
    // Tables whose ids SQLite counts itself.
    const bool ownIds = table == QLatin1String("image") || table == QLatin1String("plan");
    if (!values.contains(QStringLiteral("id")) && !ownIds)
        values.insert(QStringLiteral("id"), project->nextId(table));
    const QStringList names = values.keys();
    QStringList holders;
    for (const QString &name : names)
        holders << QLatin1Char(':') + name;
    QSqlQuery q(project->database());
    const QString sql =
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, names.join(','), holders.join(','));
    if (!run(q, sql, values))
        return -1;
    return values.value(QStringLiteral("id"), q.lastInsertId()).toLongLong();
}

qint64 KalTestProject::addCompany(const QString &name, const QString &trade, const QVariantMap &more)
{
    QVariantMap values{{"company", name}, {"type", trade}, {"pos", 1}};
    for (const char *column :
         {"firstname", "lastname", "street", "plz", "city", "telephone", "telefax", "mobile", "email"})
        values.insert(QLatin1String(column), QString(""));
    for (auto it = more.constBegin(); it != more.constEnd(); ++it)
        values.insert(it.key(), it.value());
    return insert(QStringLiteral("company"), values);
}

qint64 KalTestProject::addDefect(const QVariantMap &values)
{
    QVariantMap all{{"number", "1"}, {"description", "Riss im Putz"}};
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        all.insert(it.key(), it.value());
    return insert(QStringLiteral("defect"), all);
}

bool KalTestProject::reselect()
{
    bool ok = true;
    for (const QString &table : m_project->models()->tables())
        ok = m_project->model(table)->select() && ok;
    return ok;
}
