#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class KalProject;
class KalSqlTableModel;

// One KalSqlTableModel per project table the user interface edits, with
// field types, captions, display roles, lookups between them and id
// allocation on insert; the defect and company models carry the removal rules
// of KalDefects and KalCompanies. Every model is selected with all rows. Rows a model
// writes mark the project modified. Built by KalProject after every (re)opening of the
// connection and destroyed before it closes.
class KalProjectModels
{
public:
    explicit KalProjectModels(KalProject *project);
    ~KalProjectModels();

    // Null for a table without a model.
    KalSqlTableModel *model(const QString &table) const;
    QStringList tables() const;

    KalProjectModels(const KalProjectModels &) = delete;
    KalProjectModels &operator=(const KalProjectModels &) = delete;

private:
    KalProject *m_project;
    QHash<QString, KalSqlTableModel *> m_models;
    QStringList m_order; // creation order
};
