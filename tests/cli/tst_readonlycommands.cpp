// Files other tools left behind: oversized files save at the size of their
// pages, reading commands leave the folder as they found it, and "check"
// judges files by the rule opening applies.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

namespace {

bool writeAt(const QString &path, qint64 offset, const QByteArray &bytes)
{
    QFile f(path);
    return f.open(QIODevice::ReadWrite) && f.seek(offset) && f.write(bytes) == bytes.size();
}

} // namespace

class TstReadOnlyCommands : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void oversizedFileSavesItsPages_data()
    {
        QTest::addColumn<bool>("sparse");
        QTest::newRow("2 GB hole after the pages") << true;
        QTest::newRow("2 MB of foreign bytes appended") << false;
    }
    void oversizedFileSavesItsPages()
    {
        QFETCH(bool, sparse);
        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 3));
        const qint64 pages = QFileInfo(file).size();
        if (sparse)
            QVERIFY(QFile::resize(file, qint64(2) << 30));
        else
            QVERIFY(writeAt(file, pages, QByteArray(2 << 20, 'x')));

        const KalCliRun run = kalCli({"add-defect", file, "--description", "neu"});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.err.contains(QDir::toNativeSeparators(file)), qPrintable(run.err));
        // One more defect may take a page or two, never the excess.
        QVERIFY2(QFileInfo(file).size() < pages + 64 * 1024, qPrintable(QString::number(QFileInfo(file).size())));
        QCOMPARE(integrity(file), QStringLiteral("ok"));
        QCOMPARE(countRows(file, "defect"), 4);
    }

    void readingLeavesTheFolderAsFound_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("shows"); // the WAL row, as the command shows it
        QTest::newRow("info") << QStringList{"info"} << R"(defect\s+2\b)";
        QTest::newRow("info --json") << QStringList{"info", "--json"} << R"("defect": 2\b)";
        QTest::newRow("check") << QStringList{"check"} << R"(p\.pwp: ok)";
        QTest::newRow("export-defects") << QStringList{"export-defects"} << R"(im WAL)";
    }
    void readingLeavesTheFolderAsFound()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, shows);
        // As another SQLite tool leaves it: the row "im WAL" not yet folded into the file.
        QVERIFY(QDir().mkpath(path("projekt")));
        QVERIFY(createProject(path("quelle.pwp"), 1));
        QVERIFY(copyWhileWriting(path("quelle.pwp"), path("projekt/p.pwp"),
                                 {"INSERT INTO defect (id, description) VALUES (900, 'im WAL')"}, true));
        const QStringList before = folderState(path("projekt"));

        args.insert(1, path("projekt/p.pwp"));
        const KalCliRun run = kalCli(args);
        QCOMPARE(run.code, 0);
        QVERIFY2(run.text().contains(QRegularExpression(shows)), run.out.constData());
        QCOMPARE(folderState(path("projekt")), before);
    }

    void checkJudgesLikeOpening_data()
    {
        QTest::addColumn<QString>("make"); // how the file is made from a sound project
        QTest::addColumn<QString>("verdict");
        auto row = [](const char *name, const char *make, const char *verdict) {
            QTest::newRow(name) << QString(make) << QString(verdict);
        };
        row("sound", "copy", "ok$");
        row("zero bytes", "empty", "leere Datei");
        row("not a database", "text", "keine lesbare Datenbank: file is not a database");
        row("other program's database", "foreign", "Tabelle KAL fehlt");
        row("damaged page", "damage", "beschädigt: .*(Page \\d+|malformed)");
        row("newer version", "newer", "mit einer neueren Programmversion");
    }
    void checkJudgesLikeOpening()
    {
        QFETCH(QString, make);
        QFETCH(QString, verdict);
        const QString sound = path("gut.pwp");
        QVERIFY(createProject(sound, 40));
        const QString file = path("p.pwp");
        if (make == "empty" || make == "text" || make == "foreign") {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly));
            if (make == "text")
                f.write(QByteArray("Mängelliste;Raum\n").repeated(400));
        } else {
            QVERIFY(QFile::copy(sound, file));
        }
        if (make == "foreign")
            QVERIFY(execute(file, {"CREATE TABLE t (x)"}));
        else if (make == "damage")
            QVERIFY(writeAt(file, QFileInfo(file).size() - 8192, QByteArray(4096, '\xa5')));
        else if (make == "newer")
            QVERIFY(execute(file, {"UPDATE meta SET value='9.0' WHERE key='fileversion'"}));
        QVERIFY(QFile::copy(file, path("p.pwp.bak")));

        const KalCliRun run = kalCli({"check", path("p.pwp")});
        QCOMPARE(run.code, make == "copy" ? 0 : 1);
        // The project and its backup, judged by the same rule.
        for (const QString &name : {path("p.pwp"), path("p.pwp.bak")}) {
            const QRegularExpression line(
                QStringLiteral("^%1: (%2)").arg(QRegularExpression::escape(QDir::toNativeSeparators(name)), verdict),
                QRegularExpression::MultilineOption);
            QVERIFY2(run.text().contains(line), run.out.constData());
        }
    }
};

QTEST_GUILESS_MAIN(TstReadOnlyCommands)
#include "tst_readonlycommands.moc"
