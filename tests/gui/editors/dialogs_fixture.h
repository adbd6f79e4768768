#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <memory>

class KalProject;
class KalSqlTableModel;

// A fresh untitled project for a group of dialog tests, with small helpers
// that read and write its working copy directly (not through the dialogs).
class DialogsFixture
{
public:
    DialogsFixture();
    ~DialogsFixture();

    bool open();
    void close();

    KalProject *project() const { return m_project.get(); }
    KalSqlTableModel *model(const QString &table) const;

    bool exec(const QString &sql, const QVariantMap &values = QVariantMap());
    QVariant scalar(const QString &sql, const QVariantMap &values = QVariantMap());
    // Inserts a company with a new id and the given position; returns the id.
    qint64 addCompany(const QString &company, const QString &type, int pos);
    // Re-reads the models after direct writes.
    bool reselect();

private:
    std::unique_ptr<KalProject> m_project;
};
