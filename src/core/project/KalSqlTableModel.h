#pragma once

#include <QColor>
#include <QHash>
#include <QIcon>
#include <QMap>
#include <QPointer>
#include <QSqlTableModel>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <functional>
#include <memory>

class KalModelHost;
class KalTransactions;

// The model behind every project grid: a QSqlTableModel (manual submit) that
// knows per column a field type, a display role and a background role, shows
// looked-up texts for id columns, allocates ids on insert and runs the removal
// rule of its table (rows of other tables that go with a removed row).
//
// Display and edit roles: Qt::DisplayRole returns the text the column's
// display role asks for; Qt::EditRole returns the stored value (a QDate for
// date columns), so that editors and widget mappers work on real values.
//
// Every row this model writes to the database marks the project modified.
class KalSqlTableModel : public QSqlTableModel
{
    Q_OBJECT

public:
    // Display roles of a column (fixed values, also used to choose editors).
    enum DisplayRole {
        NoDisplayRole = 0,
        CompanyRole = 1,   // company.id -> company text
        PlainRole = 2,     // shows nothing
        MultiLineRole = 3, // multi-line text
        DateRole = 4,      // date in the program's notation
        StatusRole = 5,    // status.id -> status text (+ " - mit Minderung")
        StatusTypeRole = 6,
        ColorRole = 7, // colour column: shows nothing, painted as background
        PlanRole = 8,  // plan_info.id -> plan name
        CheckRole = 9  // check-box column: shows nothing
    };
    enum BackgroundRole { NoBackgroundRole = 0, ColorNameBackground = 1 };

    // Numbers of the tables whose captions other parts show.
    enum TableNumber {
        MetaTable = 0,
        KalTable = 1,
        DefectTable = 2,
        PlanTable = 3,
        PhotoTable = 4,
        AddressListTable = 8,
        CompanyTable = 9,
        AddressTable = 10
    };

    using CompanyFormatter = std::function<QString(const QSqlRecord &company)>;
    // Runs inside the transaction that deletes `row`; adds the names of the
    // tables it changed to `changedTables`. False undoes the whole removal.
    using RemovalRule = std::function<bool(const QSqlRecord &row, QStringList *changedTables)>;

    // Custom role of setData(): a change the user made. Writes the value like
    // Qt::EditRole and, when it differs from the stored one, sets the row's
    // "changed here" flag (`modified` of companies, `site_journal_data_modified`
    // of defects and photos, `project_data_modified` of the master data).
    static constexpr int UserEditRole = Qt::UserRole + 1;
    // The flag a user edit sets in `table`; empty for tables without one.
    static QString userEditFlagField(const QString &table);
    // Sets the "changed here" flag of `row` (for dialogs that compare a whole
    // row on OK); true when the table has none.
    bool markUserEdited(int row);

    // `host` supplies ids, transactions, thumbnails and the modified flag;
    // without one the model allocates ids on its own connection.
    explicit KalSqlTableModel(KalModelHost *host, QObject *parent = nullptr, const QSqlDatabase &db = QSqlDatabase());
    ~KalSqlTableModel() override;

    KalModelHost *host() const { return m_host; }

    // Rows of other tables that go with a removed row of this table.
    void setRemovalRule(const RemovalRule &rule) { m_removalRule = rule; }

    void setTable(const QString &tableName) override;

    // Column declarations; each resolves the name with fieldIndex().
    // False when the table has no such field.
    bool declareField(const QString &fieldName, QVariant::Type type);
    bool setDisplayRole(const QString &fieldName, int role);
    bool setBackgroundRole(const QString &fieldName, int role);
    bool setHeaderText(const QString &fieldName, Qt::Orientation orientation, int role, const QString &text);
    bool setHeaderText(const QString &fieldName, const QString &text)
    {
        return setHeaderText(fieldName, Qt::Horizontal, Qt::DisplayRole, text);
    }

    // QVariant::Invalid / 0 for an undeclared column.
    QVariant::Type fieldType(int column) const;
    QString declaredFieldName(int column) const;
    int displayRole(int column) const;
    int backgroundRole(int column) const;
    // Column -> declared type / display role, for building editors.
    QMap<int, QVariant::Type> fieldTypes() const;
    QMap<int, int> displayRoles() const;

    // Id columns of this model are shown through `source`: role CompanyRole
    // uses the company formatter, StatusRole the `status` text, PlanRole the
    // `plan_name`. The id -> text maps are rebuilt when `source` changes.
    void setLookupModel(int displayRole, KalSqlTableModel *source);
    KalSqlTableModel *lookupModel(int displayRole) const;
    // The looked-up text of `id` for a lookup role; empty when not found.
    QString lookupText(int displayRole, qint64 id) const;
    // Forces the lookup maps to be rebuilt (e.g. after the company formatter changed).
    void invalidateLookups();

    // Company text shown for CompanyRole. The default is the company name with
    // the trade in brackets; the master data install the configured format.
    // Replacing it repaints the company columns of every model.
    static void setCompanyFormatter(const CompanyFormatter &formatter);
    static QString companyText(const QSqlRecord &company);

    // Fetches until the model holds every row of its table.
    void fetchAll();
    // beforeSubmit(), fetch all, submitAll(), fetch all, afterSubmit(); the
    // signals only with `notify`. Returns the result of submitAll().
    bool submitWithNotification(bool notify = true);

    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    // With `refresh` the removal is written at once (fetch all, submit with notification).
    bool removeRows(int row, int count, const QModelIndex &parent, bool refresh);

    // Removes the rows with these ids and writes the removal in one submit
    // (rows move after every submit, so several rows are best removed by id).
    bool removeRowsById(const QList<qint64> &ids);

    // Row holding `id`, or -1. Independent of the order of the rows.
    int findRowById(qint64 id) const;
    int idColumn() const { return m_idColumn; }

    static QString tableCaption(int tableNumber);

    void setSort(int column, Qt::SortOrder order) override;

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    // Keeps the id given to a new row when a record without id is written
    // over it; stores check states of Bool columns as 1 / 0; UserEditRole
    // as described there.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

public slots:
    // Selects and fetches every row.
    bool select() override;

signals:
    void beforeSubmit();
    void afterSubmit();

protected:
    // Columns that show a looked-up name sort by that name, not by the id.
    QString orderByClause() const override;
    bool insertRowIntoTable(const QSqlRecord &values) override;
    bool updateRowInTable(int row, const QSqlRecord &values) override;
    bool deleteRowFromTable(int row) override;

private:
    struct Lookup
    {
        QPointer<KalSqlTableModel> source;
        QHash<qint64, QString> texts;
        bool dirty = true;
        int formatterGeneration = -1;
    };

    void resetColumnInfo();
    void assignNewId(int row, QSqlRecord &record);
    bool tableUsesIdAllocator() const;
    qint64 allocateId(const QString &table);
    bool beginTransaction();
    bool commitTransaction();
    void markProjectModified();
    QVariant displayData(const QModelIndex &index) const;
    QVariant toolTipData(int row) const;
    const QHash<qint64, QString> &lookupTexts(int role) const;
    void lookupSourceChanged(int role);
    void invalidateRowIndex() { m_rowIndexDirty = true; }
    bool userEdit(const QModelIndex &index, const QVariant &value);
    QSqlRecord storedRecord(int row) const;
    void refreshDependentModels();
    QVariant baseValue(int row, int column) const;

    KalModelHost *m_host = nullptr;
    RemovalRule m_removalRule;
    std::unique_ptr<KalTransactions> m_ownTransactions;

    // Per column, sized to the record of the table.
    QVector<int> m_fieldTypes;
    QVector<QString> m_fieldNames;
    QVector<int> m_displayRoles;
    QVector<int> m_backgroundRoles;

    int m_idColumn = -1;
    int m_reductionColumn = -1;
    int m_imageCountColumn = -1;
    int m_thumbnailIdColumn = -1;
    enum class Kind { Other, Defect, PhotoInfo, PlanInfo };
    int m_userEditFlagColumn = -1;
    Kind m_kind = Kind::Other;

    mutable QHash<int, Lookup> m_lookups;
    mutable QHash<qint64, int> m_rowById;
    mutable bool m_rowIndexDirty = true;
    mutable QIcon m_cameraIcon;

    // Tables the removal rule changed during a submit; their models are
    // re-selected afterwards.
    QStringList m_changedTables;

    // Translated once: data() is called for every visible cell.
    QString m_reductionSuffix;
    QString m_standardStatusText;
    QString m_userStatusText;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
