#include "core/project/KalRecentFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// The recent-file list: order, duplicates, length, what is stored and how a
// missing file leaves it. Names stand for files in a temporary folder;
// "a", "b", "c" exist, "gone" does not.
class TstRecentFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void operations_data();
    void operations();

private:
    QString file(const QString &name) const { return m_dir.filePath(name + QStringLiteral(".pwp")); }
    QStringList files(const QStringList &names) const;

    QTemporaryDir m_dir;
};

void TstRecentFiles::initTestCase()
{
    KalTestSettings::isolate();
    QVERIFY(m_dir.isValid());
    for (const char *name : {"a", "b", "c"}) {
        QFile f(file(QLatin1String(name)));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
}

QStringList TstRecentFiles::files(const QStringList &names) const
{
    QStringList paths;
    for (const QString &name : names)
        paths << file(name);
    return paths;
}

void TstRecentFiles::operations_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<int>("maxCount");
    // "+x" adds, "-x" removes, "?x" opens (a missing file leaves the list).
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("changes");

    QTest::newRow("newest first") << QStringList() << 0 << QStringList{"+a", "+b", "+c"} << QStringList{"c", "b", "a"}
                                  << 3;
    QTest::newRow("again moves to the top")
        << QStringList{"a", "b", "c"} << 0 << QStringList{"+c", "+c"} << QStringList{"c", "a", "b"} << 2;
    QTest::newRow("remove") << QStringList{"a", "b", "c"} << 0 << QStringList{"-b", "-x"} << QStringList{"a", "c"} << 1;
    QTest::newRow("no limit") << QStringList{"a", "b"} << 0 << QStringList{"+c", "+gone"}
                              << QStringList{"gone", "c", "a", "b"} << 2;
    QTest::newRow("limit drops the oldest")
        << QStringList() << 2 << QStringList{"+a", "+b", "+c"} << QStringList{"c", "b"} << 3;
    QTest::newRow("limit applies to the stored list")
        << QStringList{"a", "b", "c"} << 1 << QStringList() << QStringList{"a"} << 0;
    QTest::newRow("stored duplicates collapse")
        << QStringList{"a", "b", "a"} << 0 << QStringList() << QStringList{"a", "b"} << 0;
    QTest::newRow("missing file leaves") << QStringList{"a", "gone", "b"} << 0 << QStringList{"?gone", "?a"}
                                         << QStringList{"a", "b"} << 1;
}

void TstRecentFiles::operations()
{
    QFETCH(QStringList, stored);
    QFETCH(int, maxCount);
    QFETCH(QStringList, steps);
    QFETCH(QStringList, expected);
    QFETCH(int, changes);

    QSettings().setValue(KalRecentFiles::defaultKey(), files(stored));
    KalRecentFiles recent(KalRecentFiles::defaultKey(), maxCount);
    QSignalSpy changed(&recent, &KalRecentFiles::changed);
    for (const QString &step : steps) {
        const QString path = file(step.mid(1));
        if (step.startsWith(QLatin1Char('+')))
            recent.add(path);
        else if (step.startsWith(QLatin1Char('-')))
            recent.remove(path);
        else
            QCOMPARE(recent.keepIfExists(path), QFile::exists(path));
    }
    QCOMPARE(recent.files(), files(expected));
    QCOMPARE(changed.count(), changes);
    if (changes > 0)
        QCOMPARE(QSettings().value(KalRecentFiles::defaultKey()).toStringList(), files(expected));
    // A second list on the same key reads what the first stored.
    QCOMPARE(KalRecentFiles(KalRecentFiles::defaultKey(), maxCount).files(), files(expected));
}

QTEST_GUILESS_MAIN(TstRecentFiles)
#include "tst_recentfiles.moc"
