// pellwick-cli print as a script would use it: every defect by number, the
// project's saved filter, one file per company, refusals; the project file
// and its folder stay as they were.
#include "support/KalCliRun.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

namespace {

QString pdfText(const QString &pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {"-layout", pdf, "-"});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

// The defect numbers in the order the list shows them (rows start with one).
QString order(const QString &text)
{
    QStringList numbers;
    const QRegularExpression row(QStringLiteral("^\\s*(\\d+)\\s+Mangel-"), QRegularExpression::MultilineOption);
    for (auto it = row.globalMatch(text); it.hasNext();)
        numbers << it.next().captured(1);
    return numbers.join(',');
}

} // namespace

class TstCliPrint : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
    QString path(const QString &name) const { return m_dir->filePath(name); }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        qunsetenv("QT_QPA_PLATFORM");
        qunsetenv("DISPLAY");
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_project = path("bau.pwp");
        QVERIFY(createProject(m_project));
        QVERIFY(execute(
            m_project,
            {"INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, telephone, telefax, "
             "mobile, email, pos) VALUES (7, '', '', '', 'Dach GmbH', '', '', '', '', '', '', '', 1)",
             "INSERT INTO defect (id, number, description, company_id, reduction) VALUES "
             "(1, '10', 'Mangel-zehn', 7, 1), (2, '9', 'Mangel-neun', NULL, 0), (3, '2', 'Mangel-zwei', 7, 0)"}));
    }

    void print_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("filter"); // rows of the saved filter
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("expected"); // defect order in the PDF
        QTest::newRow("all by number") << QStringList() << QStringList() << 0 << "2,9,10";
        QTest::newRow("detailed") << QStringList{"--layout", "detailed"} << QStringList() << 0 << "";
        QTest::newRow("saved filter: with reduction")
            << QStringList{"--filter-from-project"} << QStringList{"ReductionKey|checked", "WithReductionKey|checked"}
            << 0 << "10";
        QTest::newRow("saved filter: descending")
            << QStringList{"--filter-from-project"} << QStringList{"SortByNumber|checked", "SortDesc|checked"} << 0
            << "10,9,2";
        QTest::newRow("unknown layout") << QStringList{"--layout", "lang"} << QStringList() << 2 << "";
        QTest::newRow("unknown option") << QStringList{"--farbe"} << QStringList() << 2 << "";
    }
    void print()
    {
        QFETCH(QStringList, options);
        QFETCH(QStringList, filter);
        QFETCH(int, code);
        QFETCH(QString, expected);
        QStringList rows;
        for (int i = 0; i < filter.size(); ++i) {
            const QStringList kv = filter.at(i).split('|');
            rows << QStringLiteral("INSERT INTO filter_state (id, key, value) VALUES (%1, '%2', '%3')")
                        .arg(900 + i)
                        .arg(kv[0], kv[1]);
        }
        QVERIFY(rows.isEmpty() || execute(m_project, rows));
        const QByteArray before = fileHash(m_project);
        const QStringList folder = folderState(m_dir->path());
        const QString out = path("Liste.pdf");
        const KalCliRun run = kalCli(QStringList{"print", m_project, "--output", out} + options);
        QCOMPARE(run.code, code);
        QCOMPARE(fileHash(m_project), before);
        if (code != 0) {
            QCOMPARE(folderState(m_dir->path()), folder);
            return;
        }
        const QString text = pdfText(out);
        if (options.contains("detailed")) {
            QCOMPARE(text.count("Beschreibung:"), 3);
            return;
        }
        QCOMPARE(order(text), expected);
    }

    void perCompany()
    {
        const QString folder = path("Firmen");
        QVERIFY(QDir().mkpath(folder));
        const KalCliRun run = kalCli({"print", m_project, "--per-company", folder});
        QCOMPARE(run.code, 0);
        QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 2);
        QVERIFY(files[0].endsWith("Mängelliste - Dach GmbH.pdf"));
        QVERIFY(files[1].endsWith("Mängelliste - ohne Firma.pdf"));
        QCOMPARE(order(pdfText(QDir(folder).filePath(files[0]))), QString("2,10"));
        QCOMPARE(order(pdfText(QDir(folder).filePath(files[1]))), QString("9"));
        QCOMPARE(run.text().count('\n'), 2);
    }

    // A list written over the project itself would destroy it.
    void refusesTheProjectAsTarget()
    {
        const QByteArray before = fileHash(m_project);
        const KalCliRun run = kalCli({"print", m_project, "--output", m_project});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.contains("Projektdatei"));
        QCOMPARE(fileHash(m_project), before);
    }
};

QTEST_GUILESS_MAIN(TstCliPrint)
#include "tst_cliprint.moc"
