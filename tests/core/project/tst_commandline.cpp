#include "core/project/KalCommandLine.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// What the command line asks for, which connect-mode calls are refused and
// why, and the restart hand-over.
class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QVERIFY(m_dir.isValid());
        for (const char *name : {"a.pwp", "b.sjd"}) {
            QFile f(m_dir.filePath(QString::fromLatin1(name)));
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
    }

    void parse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("journal");

        const auto N = int(KalCommandLine::Nothing);
        const auto F = int(KalCommandLine::OpenFile);
        const auto C = int(KalCommandLine::Connect);
        auto row = [](const char *name, const QString &args, int kind, int mode, const char *project,
                      const char *journal) {
            QTest::newRow(name) << ("pellwick " + args).split(' ', Qt::SkipEmptyParts) << kind << mode
                                << QString(project) << QString(journal);
        };
        row("no arguments", "", N, 0, "", "");
        row("single path", "/p/a.pwp", F, 0, "/p/a.pwp", "");
        row("single keyword is a path too", "-file", F, 0, "-file", "");
        row("-file among others", "-x -y -file /p/a.pwp -z", F, 0, "/p/a.pwp", "");
        row("first -file wins", "-file /p/1.pwp -file /p/2.pwp", F, 0, "/p/1.pwp", "");
        row("-file without value", "-x -file", N, 0, "", "");
        row("connect full", "-connectmode 102 -file /p/a.pwp -sitejournalfile /p/b.sjd", C, 102, "/p/a.pwp",
            "/p/b.sjd");
        row("connect keyword out of place", "-connectmode 103 -sitejournalfile /p/b.sjd -file /p/a.pwp", C, 103, "",
            "");
        row("connect short", "-connectmode 101", C, 101, "", "");
        row("connect mode not a number", "-connectmode x1 -file /p/a.pwp", C, 0, "/p/a.pwp", "");
        row("eight arguments never connect", "-connectmode 102 -file /p/a.pwp -sitejournalfile /p/b.sjd extra", F, 0,
            "/p/a.pwp", "");
        row("eight arguments without -file", "-connectmode 102 -x /p/a.pwp -sitejournalfile /p/b.sjd extra", N, 0, "",
            "");
        row("connectmode not first", "-file /p/a.pwp -connectmode 102", F, 0, "/p/a.pwp", "");
    }

    void parse()
    {
        QFETCH(QStringList, args);
        QFETCH(int, kind);
        QFETCH(int, mode);
        QFETCH(QString, project);
        QFETCH(QString, journal);

        const KalCommandLine cl = KalCommandLine::parse(args);
        QCOMPARE(int(cl.kind), kind);
        QCOMPARE(cl.connectMode, mode);
        QCOMPARE(cl.projectFile, project);
        QCOMPARE(cl.siteJournalFile, journal);
        QVERIFY(!cl.fromRestart);
    }

    void connectModeProblems_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("journal");
        QTest::addColumn<QStringList>("problems"); // in order

        const QString a = QStringLiteral("a.pwp");
        const QString b = QStringLiteral("b.sjd");
        const QString missingP = QStringLiteral("missing.pwp");
        const QString missingJ = QStringLiteral("missing.sjd");
        const QString badMode = QStringLiteral("\nungültiger connect Mode: %1");
        const QString noProject = QStringLiteral("\nParameter Pellwick-Datei fehlt.");
        const QString projectMissing = QStringLiteral("\nDie Pellwick-Datei existiert nicht.");
        const QString noJournal = QStringLiteral("\nParameter Bautagebuch-Datei fehlt.");
        const QString journalMissing = QStringLiteral("\nDie Bautagebuch-Datei %1 existiert nicht.");

        QTest::newRow("103 valid") << "103" << a << b << QStringList{};
        QTest::newRow("102 valid") << "102" << a << b << QStringList{};
        QTest::newRow("101 new file is valid") << "101" << missingP << b << QStringList{};
        QTest::newRow("102 new file is not") << "102" << missingP << b << QStringList{projectMissing};
        QTest::newRow("103 new file is not") << "103" << missingP << b << QStringList{projectMissing};
        QTest::newRow("104 with existing files") << "104" << a << b << QStringList{badMode.arg(104)};
        QTest::newRow("104 with missing files")
            << "104" << missingP << missingJ << QStringList{badMode.arg(104), projectMissing, journalMissing};
        QTest::newRow("everything empty")
            << QString() << QString() << QString() << QStringList{badMode.arg(QString()), noProject, noJournal};
        QTest::newRow("101 without journal") << "101" << missingP << "" << QStringList{noJournal};
        QTest::newRow("102 journal missing") << "102" << a << missingJ << QStringList{journalMissing};
    }

    void connectModeProblems()
    {
        QFETCH(QString, mode);
        QFETCH(QString, project);
        QFETCH(QString, journal);
        QFETCH(QStringList, problems);

        const QString p = project.isEmpty() ? QString() : m_dir.filePath(project);
        const QString j = journal.isEmpty() ? QString() : m_dir.filePath(journal);
        QStringList args{"pellwick", "-connectmode", mode};
        args << "-file" << p << "-sitejournalfile" << j;
        const KalCommandLine cl = KalCommandLine::parse(args);
        QCOMPARE(cl.kind, KalCommandLine::Connect);

        QString expected;
        for (QString item : problems) {
            if (item.contains(QLatin1String("%1")))
                item = item.arg(QDir::toNativeSeparators(j));
            expected += item;
        }
        QCOMPARE(cl.connectModeProblems(), expected);
    }

    // A restart's key wins over the command line once, then is gone; an
    // empty key opens nothing.
    void restartKey_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("a project") << "a.pwp";
        QTest::newRow("empty") << "";
    }

    void restartKey()
    {
        QFETCH(QString, stored);
        QSettings().setValue(KalCommandLine::reopenKey(), stored.isEmpty() ? QString() : m_dir.filePath(stored));
        const QStringList args{"pellwick",         "-connectmode",         "102", "-file", m_dir.filePath("b.sjd"),
                               "-sitejournalfile", m_dir.filePath("b.sjd")};
        const KalCommandLine first = KalCommandLine::forStartup(args);
        QCOMPARE(first.kind, stored.isEmpty() ? KalCommandLine::Nothing : KalCommandLine::OpenFile);
        QCOMPARE(first.projectFile, stored.isEmpty() ? QString() : m_dir.filePath(stored));
        QVERIFY(first.fromRestart);
        QVERIFY(!QSettings().contains(KalCommandLine::reopenKey()));

        const KalCommandLine second = KalCommandLine::forStartup(args);
        QCOMPARE(second.kind, KalCommandLine::Connect);
        QVERIFY(!second.fromRestart);
    }

private:
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
