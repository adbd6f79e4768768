// Copies made when opening and saving a project must be byte for byte,
// whatever the size against the blocks and chunks the copy moves at once.
#include "core/project/KalFileOps.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class tst_FileOps : public QObject
{
    Q_OBJECT

private slots:
    void copiesByteForByte_data();
    void copiesByteForByte();
};

void tst_FileOps::copiesByteForByte_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("maxBytes");
    QTest::newRow("empty") << qint64(0) << qint64(-1);
    QTest::newRow("one byte") << qint64(1) << qint64(-1);
    QTest::newRow("a block less one") << qint64(4095) << qint64(-1);
    QTest::newRow("one block") << qint64(4096) << qint64(-1);
    QTest::newRow("five 1024-byte pages") << qint64(5 * 1024) << qint64(-1);
    QTest::newRow("past a chunk") << (qint64(8) << 20) + 3 * 512 << qint64(-1);
    QTest::newRow("first part, inside a block") << qint64(20000) << qint64(10000);
    QTest::newRow("first part, past a chunk") << (qint64(9) << 20) << (qint64(8) << 20) + 4096;
}

void tst_FileOps::copiesByteForByte()
{
    QFETCH(qint64, size);
    QFETCH(qint64, maxBytes);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    // Every block differs from its neighbours, so a shifted or repeated
    // block shows.
    QByteArray data(int(size), Qt::Uninitialized);
    for (int i = 0; i < data.size(); ++i)
        data[i] = char(i * 131 + i / 4096);
    const QString source = dir.filePath("source.pwp");
    const QString target = dir.filePath("copy.pwp");
    QFile out(source);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(data) == size);
    out.close();
    QFile(target).open(QIODevice::WriteOnly); // an old file is replaced

    QVERIFY(KalFileOps::copyFile(source, target, maxBytes));
    QFile copy(target);
    QVERIFY(copy.open(QIODevice::ReadOnly));
    const QByteArray expected = maxBytes < 0 ? data : data.left(int(maxBytes));
    QCOMPARE(copy.size(), qint64(expected.size()));
    QVERIFY(copy.readAll() == expected);
}

QTEST_GUILESS_MAIN(tst_FileOps)
#include "tst_fileops.moc"
