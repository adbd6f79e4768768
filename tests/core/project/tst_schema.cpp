#include "core/project/KalDatabaseSchema.h"
#include "core/project/KalTransactions.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestSettings.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

class TstSchema : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    int m_counter = 0;
    QString m_connection;
    KalTransactions m_tx;

    QSqlDatabase freshDatabase()
    {
        if (!m_connection.isEmpty()) {
            QSqlDatabase::database(m_connection, false).close();
            QSqlDatabase::removeDatabase(m_connection);
        }
        m_connection = QStringLiteral("schema%1").arg(++m_counter);
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
        db.setDatabaseName(m_dir.filePath(m_connection + QStringLiteral(".pwp")));
        db.open();
        m_tx.setConnectionName(m_connection);
        return db;
    }

    static QVariant scalar(const QSqlDatabase &db, const QString &sql)
    {
        QSqlQuery q(db);
        if (!q.exec(sql) || !q.next())
            return QVariant();
        return q.value(0);
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
    }

    void init() { m_prompt->clear(); }

    void newFileHasDefaults()
    {
        QSqlDatabase db = freshDatabase();
        QVERIFY(KalDatabaseSchema::createSchema(db, m_tx));
        QCOMPARE(m_tx.depth(), 0);
        // The counter continues after the default statuses, never onto one of them.
        QCOMPARE(scalar(db, "SELECT MAX(id) FROM status").toInt(), 8);
        QCOMPARE(scalar(db, "SELECT COUNT(*) FROM kal").toInt(), 1);
        QCOMPARE(KalDatabaseSchema::fileVersion(db), QStringLiteral("0.1"));
        QCOMPARE(KalDatabaseSchema::automaticImportMode(db), -1);
        QCOMPARE(KalDatabaseSchema::nextId(db, m_tx, QStringLiteral("status")), 9);
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void defaultStatusesOnlyIntoEmptyTable()
    {
        QSqlDatabase db = freshDatabase();
        QVERIFY(KalDatabaseSchema::createSchema(db, m_tx));
        QSqlQuery(db).exec("DELETE FROM status WHERE id <> 3");
        QVERIFY(KalDatabaseSchema::insertDefaultStatuses(db));
        QCOMPARE(scalar(db, "SELECT COUNT(*) FROM status").toInt(), 1);
    }

    // A counter from elsewhere (another tool, an import) is continued, not max(id)+1.
    void idCounterFromElsewhereIsContinued()
    {
        QSqlDatabase db = freshDatabase();
        QVERIFY(KalDatabaseSchema::createSchema(db, m_tx));
        QVERIFY(KalDatabaseSchema::setIdCounter(db, m_tx, "company", 41));
        QCOMPARE(KalDatabaseSchema::nextId(db, m_tx, "company"), 42);
        QVERIFY(KalDatabaseSchema::setIdCounter(db, m_tx, "company", 100));
        QCOMPARE(KalDatabaseSchema::nextId(db, m_tx, "company"), 101);
        QCOMPARE(m_tx.depth(), 0);
    }

    void nextIdJoinsOuterTransaction()
    {
        QSqlDatabase db = freshDatabase();
        QVERIFY(KalDatabaseSchema::createSchema(db, m_tx));
        QVERIFY(m_tx.begin());
        QCOMPARE(KalDatabaseSchema::nextId(db, m_tx, "photo_info"), 1);
        QCOMPARE(m_tx.depth(), 1);
        QVERIFY(m_tx.rollback());
        // Rolled back with the outer transaction: the counter did not move.
        QCOMPARE(KalDatabaseSchema::nextId(db, m_tx, "photo_info"), 1);
    }

    void automaticImportModeParsing_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("mode");
        QTest::newRow("number") << "2" << 2;
        QTest::newRow("negative") << "-1" << -1;
        QTest::newRow("garbage") << "x" << -1;
    }

    void automaticImportModeParsing()
    {
        QFETCH(QString, value);
        QFETCH(int, mode);
        QSqlDatabase db = freshDatabase();
        QVERIFY(KalDatabaseSchema::createSchema(db, m_tx));
        QSqlQuery q(db);
        q.prepare("INSERT INTO meta (key, value) VALUES ('automaticImportMode', :v)");
        q.bindValue(":v", value);
        QVERIFY(q.exec());
        QCOMPARE(KalDatabaseSchema::automaticImportMode(db), mode);
    }

    void schemaOnNonEmptyDatabaseFailsCleanly()
    {
        QSqlDatabase db = freshDatabase();
        QVERIFY(QSqlQuery(db).exec("CREATE TABLE defect (x)"));
        QVERIFY(!KalDatabaseSchema::createSchema(db, m_tx));
        QCOMPARE(m_prompt->titles(), QStringList{"interner Fehler"});
        QCOMPARE(m_prompt->texts(), QStringList{"Datenbank-Initialisierung fehlgeschlagen."});
        // Nothing of the script is left behind.
        QVERIFY(!KalDatabaseSchema::tableMap(db).contains("kal"));
        QCOMPARE(m_tx.depth(), 0);
    }
};

QTEST_GUILESS_MAIN(TstSchema)
#include "tst_schema.moc"
