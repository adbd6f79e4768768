#pragma once

#include <QCoreApplication>
#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class KalModelHost;
class KalSqlTableModel;

// The rules for the project's companies, used by the master data, the quick
// company dialog and the imports: what a new company row holds and what
// happens to the defects of a removed company.
class KalCompanies
{
    Q_DECLARE_TR_FUNCTIONS(KalCompanies)

public:
    explicit KalCompanies(KalModelHost &host);

    // Field -> value of a new company: `texts` (column -> text) with every
    // other text column empty (they are NOT NULL), `pos` after the last
    // company, `modified` 0 (nobody changed it after an import) and not
    // from the site journal. Without an id.
    QVariantMap newCompanyValues(const QVariantMap &texts = QVariantMap()) const;

    // Appends a new company to the company model without writing it (the
    // caller submits or reverts). Its id, or -1.
    qint64 append(const QVariantMap &texts = QVariantMap());
    // append() and write it at once. Its id, or -1.
    qint64 add(const QVariantMap &texts);
    // Writes a new company with a statement of its own, for imports that
    // insert many inside their own transaction; they commit and mark the
    // project modified. Its id, or -1 with `error` set.
    qint64 insert(const QVariantMap &texts, QString *error);

    // How many defects name one of these companies.
    int defectCount(const QList<qint64> &companyIds) const;

    // The removal rule of the company model: the defects of a removed company
    // are left without one (NULL, as a new defect starts); a company from the
    // site journal leaves its tombstone.
    static bool releaseDefects(KalModelHost &host, const QSqlRecord &company, QStringList *changedTables);

    // The text columns of `company`, in schema order.
    static const QStringList &textColumns();

private:
    KalSqlTableModel *model() const;
    qint64 nextPos() const;

    KalModelHost &m_host;
};
