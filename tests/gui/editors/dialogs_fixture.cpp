#include "dialogs_fixture.h"

#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"

#include <QSqlError>
#include <QSqlQuery>

DialogsFixture::DialogsFixture() = default;
DialogsFixture::~DialogsFixture() = default;

bool DialogsFixture::open()
{
    m_project.reset(new KalProject);
    return m_project->newProject();
}

void DialogsFixture::close()
{
    if (m_project)
        m_project->closeProject();
    m_project.reset();
}

KalSqlTableModel *DialogsFixture::model(const QString &table) const
{
    return m_project ? m_project->model(table) : nullptr;
}

bool DialogsFixture::exec(const QString &sql, const QVariantMap &values)
{
    QSqlQuery q(m_project->database());
    if (!q.prepare(sql)) {
        qWarning("prepare failed: %s", qPrintable(q.lastError().text()));
        return false;
    }
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        q.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!q.exec()) {
        qWarning("exec failed: %s", qPrintable(q.lastError().text()));
        return false;
    }
    return true;
}

QVariant DialogsFixture::scalar(const QString &sql, const QVariantMap &values)
{
    QSqlQuery q(m_project->database());
    q.prepare(sql);
    for (auto it = values.constBegin(); it != values.constEnd(); ++it)
        q.bindValue(QLatin1Char(':') + it.key(), it.value());
    if (!q.exec() || !q.next())
        return QVariant();
    return q.value(0);
}

qint64 DialogsFixture::addCompany(const QString &company, const QString &type, int pos)
{
    const qint64 id = m_project->nextId(QStringLiteral("company"));
    const bool ok = exec(QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, "
                                        "city, telephone, telefax, mobile, email, pos) VALUES (:id, :type, '', '', "
                                        ":company, '', '', '', '', '', '', '', :pos)"),
                         {{QStringLiteral("id"), id},
                          {QStringLiteral("type"), type},
                          {QStringLiteral("company"), company},
                          {QStringLiteral("pos"), pos}});
    return ok ? id : -1;
}

bool DialogsFixture::reselect()
{
    bool ok = true;
    for (const char *table : {"kal", "status", "company", "plan_info", "defect"}) {
        if (KalSqlTableModel *m = model(QLatin1String(table)))
            ok = m->select() && ok;
    }
    return ok;
}
