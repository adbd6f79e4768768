// The program and Qt's SQLite driver must be one SQLite library: a build
// whose driver brings its own is refused before any project is opened.
#include "core/project/KalSqliteCheck.h"

#include <QtTest>

using Versions = KalSqliteCheck::Versions;
Q_DECLARE_METATYPE(Versions)

class TstSqliteCheck : public QObject
{
    Q_OBJECT

private slots:
    // The Debian build: the driver plugin uses the system library too.
    void thisBuildUsesOneLibrary()
    {
        const Versions versions = KalSqliteCheck::versions();
        QVERIFY(!versions.driverVersion.isEmpty());
        QVERIFY2(KalSqliteCheck::mismatchText(versions).isEmpty(),
                 qPrintable(versions.driverSourceId + " / " + versions.librarySourceId));
        QVERIFY(KalSqliteCheck::verify());
    }

    void mismatch_data()
    {
        QTest::addColumn<Versions>("versions");
        QTest::addColumn<QStringList>("mentioned"); // empty: accepted
        const QString id = "2022-12-28 14:03:47 df5c253c0b3dd24916e4ec7cf77d3db5294cc9fd45ae7b9c5e82ad8197f3alt1";
        const QString otherId = "2024-01-30 16:01:20 e876e51a0ed5c5b3126f52e532044363a014bc594cfefa87ffb5b82257ccalt1";
        QTest::newRow("same library") << Versions{"3.40.1", id, "3.40.1", id} << QStringList();
        QTest::newRow("driver brings a newer SQLite")
            << Versions{"3.45.1", otherId, "3.40.1", id} << QStringList{"3.45.1", "3.40.1"};
        QTest::newRow("same version, other build")
            << Versions{"3.40.1", otherId, "3.40.1", id} << QStringList{otherId, id};
        QTest::newRow("driver does not answer") << Versions{"", "", "3.40.1", id} << QStringList{"unbekannt", id};
    }

    void mismatch()
    {
        QFETCH(Versions, versions);
        QFETCH(QStringList, mentioned);
        const QString text = KalSqliteCheck::mismatchText(versions);
        QCOMPARE(text.isEmpty(), mentioned.isEmpty());
        for (const QString &part : mentioned)
            QVERIFY2(text.contains(part), qPrintable(text));
    }
};

QTEST_GUILESS_MAIN(TstSqliteCheck)
#include "tst_sqlitecheck.moc"
