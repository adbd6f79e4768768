// pellwick-cli add-photo and export-photos as a script would use them:
// real processes, real picture files, bad files among them, hostile captions.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

class TstCliPhotos : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // A picture file of the given kind: "good", "portrait", "bad" (truncated) or "missing".
    QString picture(const QString &kind, int n)
    {
        const QString file = path(QStringLiteral("%1 %2.jpg").arg(kind).arg(n));
        KalTestImages::Exif exif;
        exif.orientation = kind == QLatin1String("portrait") ? 6 : 1;
        const QByteArray jpeg = KalTestImages::jpeg(KalTestImages::marked({640, 480}), exif);
        if (kind == QLatin1String("bad"))
            writeFile(file, jpeg.left(jpeg.size() / 2));
        else if (kind != QLatin1String("missing"))
            writeFile(file, jpeg);
        return file;
    }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_project = path(QStringLiteral("bau.pwp"));
        QVERIFY(createProject(m_project, 3));
    }

    void addPhoto_data()
    {
        QTest::addColumn<QStringList>("kinds");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("added");
        QTest::addColumn<QString>("message");
        const QString failed = QStringLiteral("Das Foto %1 konnte nicht importiert werden.");
        QTest::newRow("all good") << QStringList{"good", "portrait"} << "2" << 0 << 2 << QString();
        QTest::newRow("one bad file") << QStringList{"good", "bad", "good"} << "2" << 1 << 2 << failed;
        QTest::newRow("one missing file") << QStringList{"missing", "good"} << "2" << 1 << 1 << failed;
        QTest::newRow("all bad") << QStringList{"bad"} << "2" << 1 << 0 << failed;
        QTest::newRow("no such number") << QStringList{"good"} << "0002" << 1 << 0 << QString("0002");
        QTest::newRow("number used twice") << QStringList{"good"} << "1" << 1 << 0 << QString("nicht eindeutig");
    }
    void addPhoto()
    {
        QFETCH(QStringList, kinds);
        QFETCH(QString, number);
        QFETCH(int, code);
        QFETCH(int, added);
        QFETCH(QString, message);
        QVERIFY(execute(m_project, {"UPDATE defect SET number = '1' WHERE id = 3"}));
        const QByteArray hash = fileHash(m_project);
        QStringList args{"add-photo", m_project, "--defect", number};
        QString firstBad;
        for (int i = 0; i < kinds.size(); ++i) {
            args << picture(kinds.at(i), i);
            if (firstBad.isEmpty() && (kinds.at(i) == QLatin1String("bad") || kinds.at(i) == QLatin1String("missing")))
                firstBad = QDir::toNativeSeparators(args.last());
        }
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, code);
        if (message.contains(QLatin1String("%1")))
            message = message.arg(firstBad);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QCOMPARE(run.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts).size(), added);
        if (added == 0) {
            QCOMPARE(fileHash(m_project), hash); // nothing to save: the file is as it was
            return;
        }
        const QString defect = scalar(m_project, "SELECT id FROM defect WHERE number = '2'");
        QCOMPARE(countRows(m_project, "photo_info"), added);
        QCOMPARE(scalar(m_project, "SELECT image_cnt FROM defect WHERE id = " + defect).toInt(), added);
        QVERIFY2(run.err.contains(QStringLiteral(" %1/%1").arg(kinds.size())), qPrintable(run.err));
        QCOMPARE(integrity(m_project), QStringLiteral("ok"));
    }

    void exportPhotos()
    {
        const QStringList files{picture("good", 1), picture("portrait", 2), picture("good", 3), picture("good", 4),
                                picture("good", 5), picture("good", 6),     picture("good", 7)};
        QCOMPARE(kalCli(QStringList{"add-photo", m_project, "--defect", "1"} + files).code, 0);
        const QStringList captions{"../x", "a/b", "CON", "", "Küche", "Küche", QString(300, QChar(0x00E4)) + "\t\x01"};
        for (int i = 0; i < captions.size(); ++i) {
            QVERIFY(execute(m_project, {QStringLiteral("UPDATE photo_info SET caption = '%1' WHERE pos = %2")
                                            .arg(QString(captions.at(i)).replace("'", "''"))
                                            .arg(i + 1)}));
        }
        // Moved around: the export follows the list order.
        QVERIFY(execute(m_project, {"UPDATE photo_info SET pos = 8 WHERE pos = 1"}));
        const QStringList projectFolder = folderState(m_dir->path());
        const QByteArray hash = fileHash(m_project);
        const QString out = path("export/fotos");

        const KalCliRun run = kalCli({"export-photos", m_project, "--defect", "1", "--output", out});
        QCOMPARE(run.code, 0);
        QCOMPARE(fileHash(m_project), hash);
        QStringList written;
        QDirIterator it(path("export"), QDir::Files | QDir::Hidden | QDir::Dirs | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            written << it.next().mid(out.size() + 1);
        written.sort();
        QCOMPARE(written.size(), 8); // the folder itself and seven files in it, nothing else
        const QStringList expected{"01 a_b.jpg", "02 _CON.jpg", "03.jpg", "04 Küche.jpg", "05 Küche.jpg"};
        for (const QString &name : expected)
            QVERIFY2(written.contains(name), qPrintable(written.join(", ")));
        QVERIFY2(written.contains("07 __x.jpg"), qPrintable(written.join(", ")));
        const QString longName = written.filter(QStringLiteral("06 ")).value(0);
        QVERIFY2(longName.endsWith(QLatin1String(".jpg")) && longName.toUtf8().size() < 200, qPrintable(longName));
        QVERIFY(longName.contains(QStringLiteral("ää")));
        // Bytes as stored.
        const QString stored = scalar(
            m_project, "SELECT hex(image) FROM image WHERE id = (SELECT image_id FROM photo_info WHERE pos = 2)");
        QFile first(out + "/01 a_b.jpg");
        QVERIFY(first.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromLatin1(first.readAll().toHex().toUpper()), stored);
        first.close();

        // A second run finds every name taken: nothing replaced.
        QVERIFY(writeFile(out + "/03.jpg", "mine"));
        const QStringList exported = folderState(out);
        const KalCliRun again = kalCli({"export-photos", m_project, "--defect", "1", "--output", out});
        QCOMPARE(again.code, 1);
        QVERIFY(again.err.contains(QStringLiteral("überschrieben")));
        QCOMPARE(folderState(out), exported);
        QCOMPARE(folderState(m_dir->path()), projectFolder);
    }

    void exportRefusals_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("code");
        QTest::newRow("no defect option") << QStringList{"--output", "x"} << 2;
        QTest::newRow("no output option") << QStringList{"--defect", "1"} << 2;
        QTest::newRow("unknown number") << QStringList{"--defect", "99", "--output", "x"} << 1;
        QTest::newRow("output is a file") << QStringList{"--defect", "1", "--output", "bau.pwp"} << 1;
    }
    void exportRefusals()
    {
        QFETCH(QStringList, options);
        QFETCH(int, code);
        QVERIFY(kalCli({"add-photo", m_project, "--defect", "1", picture("good", 1)}).code == 0);
        for (int i = 1; i < options.size(); i += 2)
            options[i] = options.at(i - 1) == QLatin1String("--output") ? path(options.at(i)) : options.at(i);
        const QStringList before = folderState(m_dir->path());
        const QByteArray hash = fileHash(m_project);
        QCOMPARE(kalCli(QStringList{"export-photos", m_project} + options).code, code);
        QCOMPARE(folderState(m_dir->path()), before);
        QCOMPARE(fileHash(m_project), hash);
    }
};

QTEST_GUILESS_MAIN(TstCliPhotos)
#include "tst_cliphotos.moc"
