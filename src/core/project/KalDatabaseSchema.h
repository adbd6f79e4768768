#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QSqlDatabase>
#include <QString>

class KalTransactions;
class QSqlError;

// The project file format: creating it, its id allocator and its meta keys.
class KalDatabaseSchema
{
    Q_DECLARE_TR_FUNCTIONS(KalDatabaseSchema)

public:
    // The format version this program writes.
    static QString programFileVersion() { return QStringLiteral("0.1"); }
    static QString schemaResourcePath() { return QStringLiteral(":/KalDatabase/Resources/database_create.sql"); }

    // Runs the creation script on an empty database, inserts the default
    // statuses, the master-data row and "fileversion". Shows the message
    // and returns false when anything fails (the transaction is rolled back).
    static bool createSchema(const QSqlDatabase &db, KalTransactions &transactions);

    struct DefaultStatus
    {
        qint64 id;    // also its position
        QString name; // translated
        QString color;
        int reductionOption;
    };
    // The eight statuses of a new project, names in the current language.
    static QList<DefaultStatus> defaultStatuses();

    // Inserts the eight default statuses when the table is empty.
    static bool insertDefaultStatuses(const QSqlDatabase &db);

    // Next id of a table without AUTOINCREMENT: one past the counter, or
    // past the highest id of the table when that one is taken. -1 when the
    // allocator fails or the ids are used up (the reason was shown).
    static qint64 nextId(const QSqlDatabase &db, KalTransactions &transactions, const QString &table);
    static bool setIdCounter(const QSqlDatabase &db, KalTransactions &transactions, const QString &table, qint64 value);

    static QString fileVersion(const QSqlDatabase &db);
    static bool setFileVersion(const QSqlDatabase &db, const QString &version);
    // Writes one "meta" key (replacing its value). False, with `error` set, on failure.
    static bool setMetaValue(const QSqlDatabase &db, const QString &key, const QString &value,
                             QSqlError *error = nullptr);
    // -1 when the key is absent.
    static int automaticImportMode(const QSqlDatabase &db);

    // True when `version` was written by a newer program than `programVersion`.
    // Anything that does not parse counts as not newer.
    static bool isFileVersionNewer(const QString &version, const QString &programVersion = programFileVersion());

    // Table name -> creation SQL of every table.
    static QMap<QString, QString> tableMap(const QSqlDatabase &db);

    // Applies the pragmas every connection to a file we did not write ourselves gets.
    static void applySafetyPragmas(const QSqlDatabase &db);

    static QString readSchemaScript(bool *ok);

private:
    static bool idTaken(const QSqlDatabase &db, const QString &table, qint64 id);
    // Largest id in `table`; 0 when empty or not there.
    static qint64 highestId(const QSqlDatabase &db, const QString &table);
};
