#include "KalSqlTableModel.h"

#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalLog.h"
#include "core/project/KalModelHost.h"
#include "core/project/KalTransactions.h"
#include "core/textaids/KalDateFormat.h"

#include <QBuffer>
#include <QDate>
#include <QDateTime>
#include <QDebug>
#include <QImage>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <algorithm>
#include <functional>

namespace {

KalSqlTableModel::CompanyFormatter &companyFormatterStorage()
{
    static KalSqlTableModel::CompanyFormatter formatter;
    return formatter;
}

// Bumped whenever the company formatter is replaced, so lookup maps built
// with the old one are rebuilt.
int s_formatterGeneration = 0;

// Living models (GUI thread only), so that a new company format repaints them.
QVector<KalSqlTableModel *> &liveModels()
{
    static QVector<KalSqlTableModel *> models;
    return models;
}

QString defaultCompanyText(const QSqlRecord &company)
{
    const QString name = company.value(QStringLiteral("company")).toString();
    const QString trade = company.value(QStringLiteral("type")).toString();
    if (trade.isEmpty())
        return name;
    if (name.isEmpty())
        return trade;
    return QStringLiteral("%1 (%2)").arg(name, trade);
}

QDate storedDate(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QDate:
        return value.toDate();
    case QMetaType::QDateTime:
        return value.toDateTime().date();
    default:
        break;
    }
    const QString text = value.toString();
    if (text.isEmpty())
        return QDate();
    // What Qt's SQL layer writes: ISO, possibly with a time part.
    if (text.size() >= 10 && text.at(4) == QLatin1Char('-') && text.at(7) == QLatin1Char('-')) {
        const QDate iso = QDate::fromString(text.left(10), Qt::ISODate);
        if (iso.isValid())
            return iso;
    }
    return KalDateFormat::parse(text);
}

bool isAutoIncrementTable(const QString &table)
{
    return table == QLatin1String("plan") || table == QLatin1String("image") || table == QLatin1String("marker") ||
           table == QLatin1String("marker_text");
}

const QHash<qint64, QString> &emptyTexts()
{
    static const QHash<qint64, QString> empty;
    return empty;
}

} // namespace

KalSqlTableModel::KalSqlTableModel(KalModelHost *host, QObject *parent, const QSqlDatabase &db)
    : QSqlTableModel(parent, db)
    , m_host(host)
    , m_ownTransactions(std::make_unique<KalTransactions>(database().connectionName()))
    , m_reductionSuffix(tr(" - mit Minderung"))
    , m_standardStatusText(tr("Standardstatus"))
    , m_userStatusText(tr("Benutzerstatus"))
{
    setEditStrategy(QSqlTableModel::OnManualSubmit);
    liveModels().append(this);
    connect(this, &QSqlTableModel::primeInsert, this, &KalSqlTableModel::assignNewId);

    // Rows are found by id through a map that any change of rows invalidates.
    connect(this, &QAbstractItemModel::modelReset, this, [this] { invalidateRowIndex(); });
    connect(this, &QAbstractItemModel::rowsInserted, this, [this] { invalidateRowIndex(); });
    connect(this, &QAbstractItemModel::rowsRemoved, this, [this] { invalidateRowIndex(); });
    connect(this, &QAbstractItemModel::rowsMoved, this, [this] { invalidateRowIndex(); });
    connect(this, &QAbstractItemModel::layoutChanged, this, [this] { invalidateRowIndex(); });
    connect(this, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                if (m_idColumn >= topLeft.column() && m_idColumn <= bottomRight.column())
                    invalidateRowIndex();
            });
}

KalSqlTableModel::~KalSqlTableModel()
{
    liveModels().removeOne(this);
}

void KalSqlTableModel::setTable(const QString &tableName)
{
    QSqlTableModel::setTable(tableName);
    resetColumnInfo();
}

void KalSqlTableModel::resetColumnInfo()
{
    const int columns = record().count();
    m_fieldTypes = QVector<int>(columns, int(QVariant::Invalid));
    m_fieldNames = QVector<QString>(columns);
    m_displayRoles = QVector<int>(columns, int(NoDisplayRole));
    m_backgroundRoles = QVector<int>(columns, int(NoBackgroundRole));

    const QString table = tableName();
    m_idColumn = fieldIndex(QStringLiteral("id"));
    m_reductionColumn = -1;
    m_imageCountColumn = -1;
    m_thumbnailIdColumn = -1;
    m_kind = Kind::Other;
    m_userEditFlagColumn = fieldIndex(userEditFlagField(table));
    if (table == QLatin1String("defect")) {
        m_kind = Kind::Defect;
        m_reductionColumn = fieldIndex(QStringLiteral("reduction"));
        m_imageCountColumn = fieldIndex(QStringLiteral("image_cnt"));
    } else if (table == QLatin1String("photo_info")) {
        m_kind = Kind::PhotoInfo;
        m_thumbnailIdColumn = fieldIndex(QStringLiteral("image_id"));
    } else if (table == QLatin1String("plan_info")) {
        m_kind = Kind::PlanInfo;
        m_thumbnailIdColumn = fieldIndex(QStringLiteral("plan_id"));
    }
    invalidateRowIndex();
}

bool KalSqlTableModel::declareField(const QString &fieldName, QVariant::Type type)
{
    const int column = fieldIndex(fieldName);
    if (column < 0 || column >= m_fieldTypes.size())
        return false;
    m_fieldTypes[column] = int(type);
    m_fieldNames[column] = fieldName;
    return true;
}

bool KalSqlTableModel::setDisplayRole(const QString &fieldName, int role)
{
    const int column = fieldIndex(fieldName);
    if (column < 0 || column >= m_displayRoles.size())
        return false;
    m_displayRoles[column] = role;
    return true;
}

bool KalSqlTableModel::setBackgroundRole(const QString &fieldName, int role)
{
    const int column = fieldIndex(fieldName);
    if (column < 0 || column >= m_backgroundRoles.size())
        return false;
    m_backgroundRoles[column] = role;
    return true;
}

bool KalSqlTableModel::setHeaderText(const QString &fieldName, Qt::Orientation orientation, int role,
                                     const QString &text)
{
    const int column = fieldIndex(fieldName);
    if (column < 0)
        return false;
    return setHeaderData(column, orientation, text, role);
}

QVariant::Type KalSqlTableModel::fieldType(int column) const
{
    if (column < 0 || column >= m_fieldTypes.size())
        return QVariant::Invalid;
    return QVariant::Type(m_fieldTypes.at(column));
}

QString KalSqlTableModel::declaredFieldName(int column) const
{
    return column >= 0 && column < m_fieldNames.size() ? m_fieldNames.at(column) : QString();
}

int KalSqlTableModel::displayRole(int column) const
{
    return column >= 0 && column < m_displayRoles.size() ? m_displayRoles.at(column) : int(NoDisplayRole);
}

int KalSqlTableModel::backgroundRole(int column) const
{
    return column >= 0 && column < m_backgroundRoles.size() ? m_backgroundRoles.at(column) : int(NoBackgroundRole);
}

QMap<int, QVariant::Type> KalSqlTableModel::fieldTypes() const
{
    QMap<int, QVariant::Type> types;
    for (int column = 0; column < m_fieldTypes.size(); ++column) {
        if (m_fieldTypes.at(column) != int(QVariant::Invalid))
            types.insert(column, QVariant::Type(m_fieldTypes.at(column)));
    }
    return types;
}

QMap<int, int> KalSqlTableModel::displayRoles() const
{
    QMap<int, int> roles;
    for (int column = 0; column < m_displayRoles.size(); ++column) {
        if (m_displayRoles.at(column) != NoDisplayRole)
            roles.insert(column, m_displayRoles.at(column));
    }
    return roles;
}

// --- lookups ---------------------------------------------------------------

void KalSqlTableModel::setLookupModel(int displayRole, KalSqlTableModel *source)
{
    Lookup &lookup = m_lookups[displayRole];
    if (lookup.source)
        disconnect(lookup.source, nullptr, this, nullptr);
    lookup.source = source;
    lookup.dirty = true;
    lookup.texts.clear();
    if (!source)
        return;
    // Repaint once per reset, edit or submit; rows arriving in blocks while
    // the source fetches only invalidate the map (a reset came first).
    auto changed = [this, displayRole] { lookupSourceChanged(displayRole); };
    auto stale = [this, displayRole] {
        const auto it = m_lookups.find(displayRole);
        if (it != m_lookups.end())
            it->dirty = true;
    };
    connect(source, &QAbstractItemModel::modelReset, this, changed);
    connect(source, &QAbstractItemModel::dataChanged, this, changed);
    connect(source, &KalSqlTableModel::afterSubmit, this, changed);
    connect(source, &QAbstractItemModel::rowsInserted, this, stale);
    connect(source, &QAbstractItemModel::rowsRemoved, this, changed);
    connect(source, &QAbstractItemModel::layoutChanged, this, stale);
}

KalSqlTableModel *KalSqlTableModel::lookupModel(int displayRole) const
{
    const auto it = m_lookups.constFind(displayRole);
    return it == m_lookups.constEnd() ? nullptr : it->source.data();
}

void KalSqlTableModel::lookupSourceChanged(int role)
{
    auto it = m_lookups.find(role);
    if (it == m_lookups.end())
        return;
    it->dirty = true;
    // Views repaint the looked-up columns; the map is rebuilt on first use.
    const int rows = rowCount();
    if (rows <= 0)
        return;
    for (int column = 0; column < m_displayRoles.size(); ++column) {
        if (m_displayRoles.at(column) == role)
            emit dataChanged(index(0, column), index(rows - 1, column));
    }
}

void KalSqlTableModel::invalidateLookups()
{
    const QList<int> roles = m_lookups.keys();
    for (int role : roles)
        lookupSourceChanged(role);
}

const QHash<qint64, QString> &KalSqlTableModel::lookupTexts(int role) const
{
    const auto it = m_lookups.find(role);
    if (it == m_lookups.end())
        return emptyTexts();
    Lookup &lookup = *it;
    if (!lookup.dirty && (role != CompanyRole || lookup.formatterGeneration == s_formatterGeneration))
        return lookup.texts;

    lookup.texts.clear();
    lookup.dirty = false;
    lookup.formatterGeneration = s_formatterGeneration;
    const KalSqlTableModel *source = lookup.source.data();
    if (!source || source->m_idColumn < 0)
        return lookup.texts;

    const int rows = source->rowCount();
    lookup.texts.reserve(rows);
    if (role == CompanyRole) {
        for (int row = 0; row < rows; ++row) {
            const QVariant id = source->baseValue(row, source->m_idColumn);
            if (!id.isNull())
                lookup.texts.insert(id.toLongLong(), companyText(source->record(row)));
        }
        return lookup.texts;
    }
    const int textColumn =
        source->fieldIndex(role == StatusRole ? QStringLiteral("status") : QStringLiteral("plan_name"));
    if (textColumn < 0)
        return lookup.texts;
    for (int row = 0; row < rows; ++row) {
        const QVariant id = source->baseValue(row, source->m_idColumn);
        if (!id.isNull())
            lookup.texts.insert(id.toLongLong(), source->baseValue(row, textColumn).toString());
    }
    return lookup.texts;
}

QString KalSqlTableModel::lookupText(int displayRole, qint64 id) const
{
    return lookupTexts(displayRole).value(id);
}

void KalSqlTableModel::setCompanyFormatter(const CompanyFormatter &formatter)
{
    companyFormatterStorage() = formatter;
    ++s_formatterGeneration;
    const QVector<KalSqlTableModel *> models = liveModels();
    for (KalSqlTableModel *model : models) {
        if (model->m_lookups.contains(CompanyRole))
            model->lookupSourceChanged(CompanyRole);
    }
}

QString KalSqlTableModel::companyText(const QSqlRecord &company)
{
    const CompanyFormatter &formatter = companyFormatterStorage();
    return formatter ? formatter(company) : defaultCompanyText(company);
}

// --- fetching and submitting ---------------------------------------------

void KalSqlTableModel::fetchAll()
{
    while (canFetchMore())
        fetchMore();
}

bool KalSqlTableModel::select()
{
    const bool ok = QSqlTableModel::select();
    if (ok)
        fetchAll();
    invalidateRowIndex();
    // A removal rule changed other tables with statements of its own (the
    // photos of a removed defect, its tombstone): show those tables anew.
    if (!m_changedTables.isEmpty())
        refreshDependentModels();
    return ok;
}

bool KalSqlTableModel::submitWithNotification(bool notify)
{
    if (notify)
        emit beforeSubmit();
    fetchAll();
    // One transaction for all rows: far fewer syncs than one per row. Rows
    // written before a failure stay written, as the model marked them so.
    const bool dirty = isDirty();
    const bool inTransaction = dirty && beginTransaction();
    const bool ok = submitAll();
    if (inTransaction)
        commitTransaction();
    fetchAll();
    if (!ok)
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(lastError().text()));
    if (!m_changedTables.isEmpty())
        refreshDependentModels();
    if (notify)
        emit afterSubmit();
    return ok;
}

bool KalSqlTableModel::removeRows(int row, int count, const QModelIndex &parent)
{
    return removeRows(row, count, parent, false);
}

bool KalSqlTableModel::removeRows(int row, int count, const QModelIndex &parent, bool refresh)
{
    if (!QSqlTableModel::removeRows(row, count, parent))
        return false;
    if (!refresh)
        return true;
    fetchAll();
    return submitWithNotification(true);
}

bool KalSqlTableModel::removeRowsById(const QList<qint64> &ids)
{
    fetchAll();
    QList<int> rows;
    for (qint64 id : ids) {
        const int row = findRowById(id);
        if (row >= 0 && !rows.contains(row))
            rows.append(row);
    }
    if (rows.isEmpty())
        return false;
    // From the bottom up: removing a row that was never submitted shifts those below it.
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    for (int row : qAsConst(rows)) {
        if (!QSqlTableModel::removeRows(row, 1))
            return false;
    }
    return submitWithNotification(true);
}

int KalSqlTableModel::findRowById(qint64 id) const
{
    if (m_idColumn < 0)
        return -1;
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (m_rowIndexDirty) {
            m_rowById.clear();
            const int rows = rowCount();
            m_rowById.reserve(rows);
            for (int row = 0; row < rows; ++row) {
                const QVariant value = baseValue(row, m_idColumn);
                if (!value.isNull())
                    m_rowById.insert(value.toLongLong(), row);
            }
            m_rowIndexDirty = false;
        }
        const auto it = m_rowById.constFind(id);
        if (it == m_rowById.constEnd())
            return -1;
        const int row = *it;
        if (row < rowCount() && baseValue(row, m_idColumn).toLongLong() == id)
            return row;
        m_rowIndexDirty = true; // changed without a signal we watch: rebuild once
    }
    return -1;
}

QString KalSqlTableModel::tableCaption(int tableNumber)
{
    switch (tableNumber) {
    case MetaTable:
        return tr("Meta");
    case KalTable:
        return tr("Kal");
    case DefectTable:
        return tr("Mängel");
    case PlanTable:
        return tr("Pläne");
    case PhotoTable:
        return tr("Fotos");
    case AddressListTable:
        return tr("Mail-Addresslisten");
    case CompanyTable:
        return tr("Firmen");
    case AddressTable:
        return tr("Mail-Addressen");
    default:
        return QString();
    }
}

// --- writing rows ------------------------------------------------------------

bool KalSqlTableModel::setData(const QModelIndex &idx, const QVariant &value, int role)
{
    if (!idx.isValid())
        return false;
    if (role == UserEditRole)
        return userEdit(idx, value);
    if (role == Qt::CheckStateRole) {
        if (fieldType(idx.column()) != QVariant::Bool)
            return false;
        return QSqlTableModel::setData(idx, value.toInt() == Qt::Checked ? 1 : 0, Qt::EditRole);
    }
    if (role == Qt::EditRole && idx.column() == m_idColumn && (value.isNull() || value.toLongLong() == 0) &&
        tableUsesIdAllocator()) {
        // insertRecord() writes the caller's record over the primed row; an
        // empty id there must not throw away the id the row already holds.
        const QVariant current = QSqlTableModel::data(idx, Qt::EditRole);
        if (!current.isNull() && current.toLongLong() != 0 && isDirty(idx))
            return true;
    }
    return QSqlTableModel::setData(idx, value, role);
}

QString KalSqlTableModel::userEditFlagField(const QString &table)
{
    if (table == QLatin1String("company"))
        return QStringLiteral("modified");
    if (table == QLatin1String("defect") || table == QLatin1String("photo_info"))
        return QStringLiteral("site_journal_data_modified");
    if (table == QLatin1String("kal"))
        return QStringLiteral("project_data_modified");
    return QString();
}

bool KalSqlTableModel::userEdit(const QModelIndex &idx, const QVariant &value)
{
    const QVariant stored = data(idx, Qt::EditRole);
    // Same text, or both no date: nothing changed, nothing to mark.
    const bool dateColumn = fieldType(idx.column()) == QVariant::Date;
    const bool same = dateColumn ? storedDate(stored) == storedDate(value) : stored.toString() == value.toString();
    if (same)
        return true;
    if (!setData(idx, value, Qt::EditRole))
        return false;
    return idx.column() == m_userEditFlagColumn || markUserEdited(idx.row());
}

bool KalSqlTableModel::markUserEdited(int row)
{
    if (m_userEditFlagColumn < 0)
        return true;
    return setData(index(row, m_userEditFlagColumn), 1, Qt::EditRole);
}

bool KalSqlTableModel::tableUsesIdAllocator() const
{
    return m_idColumn >= 0 && !isAutoIncrementTable(tableName());
}

qint64 KalSqlTableModel::allocateId(const QString &table)
{
    if (m_host)
        return m_host->nextId(table);
    return KalDatabaseSchema::nextId(database(), *m_ownTransactions, table);
}

bool KalSqlTableModel::beginTransaction()
{
    return m_host ? m_host->beginTransaction() : m_ownTransactions->begin();
}

bool KalSqlTableModel::commitTransaction()
{
    return m_host ? m_host->commitTransaction() : m_ownTransactions->commit();
}

void KalSqlTableModel::markProjectModified()
{
    if (m_host)
        m_host->markModified();
}

void KalSqlTableModel::assignNewId(int row, QSqlRecord &record)
{
    Q_UNUSED(row)
    if (!tableUsesIdAllocator())
        return;
    const int idField = record.indexOf(QStringLiteral("id"));
    if (idField < 0)
        return;
    const QVariant current = record.value(idField);
    if (!current.isNull() && current.toLongLong() != 0)
        return;
    const qint64 id = allocateId(tableName());
    if (id <= 0)
        return; // left to the write, which tries again
    record.setValue(idField, id);
    record.setGenerated(idField, true);
}

bool KalSqlTableModel::insertRowIntoTable(const QSqlRecord &values)
{
    QSqlRecord rec = values;
    const int idField = rec.indexOf(QStringLiteral("id"));
    if (idField >= 0) {
        const QVariant current = rec.value(idField);
        const bool missing = current.isNull() || current.toLongLong() == 0;
        if (!missing) {
            // The id primed for the row, even where a record written over it
            // marked the field as not generated.
            rec.setGenerated(idField, true);
        } else if (tableUsesIdAllocator()) {
            const qint64 id = allocateId(tableName());
            if (id <= 0)
                return false;
            rec.setValue(idField, id);
            rec.setGenerated(idField, true);
        } else if (missing) {
            // AUTOINCREMENT: SQLite assigns the key.
            rec.setGenerated(idField, false);
        }
    }
    const bool ok = QSqlTableModel::insertRowIntoTable(rec);
    if (ok)
        markProjectModified();
    return ok;
}

bool KalSqlTableModel::updateRowInTable(int row, const QSqlRecord &values)
{
    const bool ok = QSqlTableModel::updateRowInTable(row, values);
    if (ok)
        markProjectModified();
    return ok;
}

bool KalSqlTableModel::deleteRowFromTable(int row)
{
    if (!m_removalRule) {
        const bool ok = QSqlTableModel::deleteRowFromTable(row);
        if (ok)
            markProjectModified();
        return ok;
    }

    // The row and what goes with it are removed together or not at all.
    const QSqlRecord removed = storedRecord(row);
    if (!beginTransaction())
        return false;
    QSqlQuery savepoint(database());
    savepoint.exec(QStringLiteral("SAVEPOINT kal_row_removal"));
    QStringList changed;
    const bool ok = QSqlTableModel::deleteRowFromTable(row) && m_removalRule(removed, &changed);
    if (ok) {
        savepoint.exec(QStringLiteral("RELEASE SAVEPOINT kal_row_removal"));
        for (const QString &table : qAsConst(changed)) {
            if (!m_changedTables.contains(table))
                m_changedTables << table;
        }
    } else {
        savepoint.exec(QStringLiteral("ROLLBACK TO SAVEPOINT kal_row_removal"));
        savepoint.exec(QStringLiteral("RELEASE SAVEPOINT kal_row_removal"));
    }
    commitTransaction();
    if (ok)
        markProjectModified();
    return ok;
}

QSqlRecord KalSqlTableModel::storedRecord(int row) const
{
    QSqlRecord rec = record();
    for (int column = 0; column < rec.count(); ++column)
        rec.setValue(column, baseValue(row, column));
    return rec;
}

void KalSqlTableModel::refreshDependentModels()
{
    const QStringList tables = m_changedTables;
    m_changedTables.clear();
    if (!m_host)
        return;
    for (const QString &table : tables) {
        KalSqlTableModel *model = m_host->model(table);
        if (model && model != this)
            model->submitWithNotification(true);
    }
}

// --- reading ---------------------------------------------------------------

QVariant KalSqlTableModel::baseValue(int row, int column) const
{
    return QSqlTableModel::data(createIndex(row, column), Qt::EditRole);
}

QVariant KalSqlTableModel::data(const QModelIndex &idx, int role) const
{
    if (!idx.isValid())
        return QVariant();
    const int column = idx.column();

    switch (role) {
    case Qt::DisplayRole:
        return displayData(idx);

    case Qt::EditRole:
        if (displayRole(column) == DateRole) {
            const QVariant stored = QSqlTableModel::data(idx, Qt::EditRole);
            const QDate date = storedDate(stored);
            return date.isValid() ? QVariant(date) : stored;
        }
        return QSqlTableModel::data(idx, Qt::EditRole);

    case Qt::CheckStateRole:
        if (fieldType(column) == QVariant::Bool)
            return QSqlTableModel::data(idx, Qt::EditRole).toBool() ? Qt::Checked : Qt::Unchecked;
        return QSqlTableModel::data(idx, role);

    case Qt::BackgroundRole: {
        if (backgroundRole(column) == ColorNameBackground) {
            const QColor color(QSqlTableModel::data(idx, Qt::EditRole).toString());
            return color.isValid() ? QVariant(color) : QVariant();
        }
        switch (displayRole(column)) {
        case DateRole:
        case StatusTypeRole:
        case PlainRole:
        case ColorRole:
        case CheckRole:
            return QVariant(); // these never show a one-character marker
        default:
            break;
        }
        const QVariant shown = displayData(idx);
        if (shown.userType() == QMetaType::QString) {
            const QString text = shown.toString();
            if (text.size() == 1) {
                if (text.at(0) == QLatin1Char('*'))
                    return QColor(120, 255, 120);
                if (text.at(0) == QLatin1Char('!'))
                    return QColor(255, 120, 120);
            }
        }
        return QVariant();
    }

    case Qt::DecorationRole:
        if (m_kind == Kind::Defect && column == m_imageCountColumn) {
            if (m_cameraIcon.isNull())
                m_cameraIcon = QIcon(QStringLiteral(":/KalMainWindow/Resources/icon-camera.png"));
            return m_cameraIcon;
        }
        return QSqlTableModel::data(idx, role);

    case Qt::ToolTipRole:
        if (m_thumbnailIdColumn >= 0)
            return toolTipData(idx.row());
        return QSqlTableModel::data(idx, role);

    default:
        return QSqlTableModel::data(idx, role);
    }
}

QVariant KalSqlTableModel::displayData(const QModelIndex &idx) const
{
    const int column = idx.column();
    switch (displayRole(column)) {
    case CompanyRole:
    case StatusRole:
    case PlanRole: {
        const int role = displayRole(column);
        const QVariant id = QSqlTableModel::data(idx, Qt::EditRole);
        if (id.isNull())
            return QString();
        QString text = lookupTexts(role).value(id.toLongLong());
        if (role == StatusRole && m_reductionColumn >= 0 && !text.isEmpty() &&
            baseValue(idx.row(), m_reductionColumn).toBool())
            text += m_reductionSuffix;
        return text;
    }
    case DateRole:
        return KalDateFormat::toText(storedDate(QSqlTableModel::data(idx, Qt::EditRole)));
    case StatusTypeRole:
        switch (QSqlTableModel::data(idx, Qt::EditRole).toInt()) {
        case 1:
            return m_standardStatusText;
        case 2:
            return m_userStatusText;
        default:
            return QString();
        }
    case PlainRole:
    case ColorRole:
    case CheckRole:
        return QVariant();
    case MultiLineRole:
    default:
        return QSqlTableModel::data(idx, Qt::DisplayRole);
    }
}

QVariant KalSqlTableModel::toolTipData(int row) const
{
    if (!m_host)
        return QString();
    const QVariant id = baseValue(row, m_thumbnailIdColumn);
    if (id.isNull())
        return QString();
    const QImage thumbnail =
        m_kind == Kind::PhotoInfo ? m_host->imageThumbnail(id.toLongLong()) : m_host->planThumbnail(id.toLongLong());
    if (thumbnail.isNull())
        return QString();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!thumbnail.save(&buffer, "JPG"))
        return QString();
    return QStringLiteral("<img src=\"data:image/jpg;base64,%1\"/>").arg(QString::fromLatin1(bytes.toBase64()));
}

Qt::ItemFlags KalSqlTableModel::flags(const QModelIndex &idx) const
{
    if (idx.isValid() && fieldType(idx.column()) == QVariant::Bool) {
        // Checkable but not enabled: the box is toggled by the editors, not in the grid.
        return Qt::ItemFlags(Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsUserCheckable |
                             Qt::ItemNeverHasChildren);
    }
    return QSqlTableModel::flags(idx);
}

void KalSqlTableModel::setSort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    QSqlTableModel::setSort(column, order);
}

QString KalSqlTableModel::orderByClause() const
{
    const int role = m_sortColumn >= 0 ? displayRole(m_sortColumn) : NoDisplayRole;
    QString lookup;
    switch (role) {
    case CompanyRole:
        lookup = QStringLiteral("(SELECT c.company || ' ' || c.lastname || ' ' || c.firstname FROM company c "
                                "WHERE c.id = %1.%2)");
        break;
    case StatusRole:
        lookup = QStringLiteral("(SELECT s.status FROM status s WHERE s.id = %1.%2)");
        break;
    case PlanRole:
        lookup = QStringLiteral("(SELECT p.plan_name FROM plan_info p WHERE p.id = %1.%2)");
        break;
    default:
        return QSqlTableModel::orderByClause();
    }
    const QString table = database().driver()->escapeIdentifier(tableName(), QSqlDriver::TableName);
    const QString field = database().driver()->escapeIdentifier(m_fieldNames.value(m_sortColumn).isEmpty()
                                                                    ? record().fieldName(m_sortColumn)
                                                                    : m_fieldNames.value(m_sortColumn),
                                                                QSqlDriver::FieldName);
    // Rows without a match sort first, like empty texts; ties keep id order.
    return QStringLiteral("ORDER BY IFNULL(%1, '') COLLATE NOCASE %2, %3.id")
        .arg(lookup.arg(table, field),
             m_sortOrder == Qt::AscendingOrder ? QStringLiteral("ASC") : QStringLiteral("DESC"), table);
}
