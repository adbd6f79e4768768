// A defect added by pellwick-cli is the defect the program's list adds; and a
// file whose id counter lags behind its rows still takes new defects.
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "support/KalCliRun.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QSettings>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

namespace {

// The login name is set on purpose: it must never become the author.
const char *const kLogin = "mueller";

KalCliRun cli(const QStringList &args)
{
    return kalCli(args, kLogin);
}

// Every column of one defect, read from the saved file.
QVariantMap defectRow(const QString &file, qint64 id)
{
    QVariantMap row;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "ROWREAD");
        db.setDatabaseName(file);
        db.setConnectOptions("QSQLITE_OPEN_READONLY");
        if (db.open()) {
            QSqlQuery q(db);
            q.prepare("SELECT * FROM defect WHERE id = :id");
            q.bindValue(":id", id);
            if (q.exec() && q.next()) {
                const QSqlRecord rec = q.record();
                for (int i = 0; i < rec.count(); ++i)
                    row.insert(rec.fieldName(i), rec.value(i));
            }
        }
    }
    QSqlDatabase::removeDatabase("ROWREAD");
    return row;
}

} // namespace

class TstAddDefect : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // A saved project with defects numbered as given and company 1.
    bool makeBase(const QString &file, const QStringList &numbers)
    {
        QStringList sql{"INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, telephone, "
                        "telefax, mobile, email, pos) VALUES (1, 'Maler', '', '', 'Farbe & Co', '', '', '', '', '', "
                        "'', '', 1)"};
        for (int i = 0; i < numbers.size(); ++i)
            sql << QStringLiteral("UPDATE defect SET number = '%1' WHERE id = %2").arg(numbers.at(i)).arg(i + 1);
        return createProject(file, numbers.size()) && execute(file, sql);
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        qputenv("USERNAME", kLogin);
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_prompt->clear();
    }

    void sameRowFromListAndCommandLine_data()
    {
        QTest::addColumn<QStringList>("numbers"); // numbers of the defects already there
        QTest::addColumn<QString>("remembered");  // initials last entered in the program
        QTest::addColumn<QStringList>("options"); // pellwick-cli options after the file
        QTest::addColumn<QString>("number");      // expected number of the new defect
        QTest::addColumn<QString>("author");      // expected author

        const QStringList text{"--description", "Riss im Putz"};
        QTest::newRow("first defect, nobody remembered") << QStringList{} << QString() << text << "0001"
                                                         << "";
        QTest::newRow("numbers go on after the highest") << QStringList{"0007", "12", "B3"} << "KM" << text << "0013"
                                                         << "KM";
        QTest::newRow("remembered initials in capitals") << QStringList{"1"} << "km" << text << "0002"
                                                         << "KM";
        QTest::newRow("a login name is no author") << QStringList{} << "mueller" << text << "0001"
                                                   << "";
        QTest::newRow("given number, room, company, status, priority")
            << QStringList{"3"} << "AB"
            << (text + QStringList{"--number", "A-1", "--room", "Küche", "--company", "1", "--status", "3",
                                   "--priority", "Hoch"})
            << "A-1"
            << "AB";
    }

    void sameRowFromListAndCommandLine()
    {
        QFETCH(QStringList, numbers);
        QFETCH(QString, remembered);
        QFETCH(QStringList, options);
        QFETCH(QString, number);
        QFETCH(QString, author);

        QSettings settings;
        settings.setValue("DefectDialog/LastAuthorInitials", remembered);
        settings.sync();
        const QString base = path("base.pwp");
        QVERIFY(makeBase(base, numbers));
        QVERIFY(QFile::copy(base, path("list.pwp")));
        QVERIFY(QFile::copy(base, path("cli.pwp")));

        // The list's way: the core rules with the values the options name.
        const QMap<QString, QString> fieldOf{{"--description", "description"}, {"--number", "number"},
                                             {"--room", "roomname"},           {"--company", "company_id"},
                                             {"--status", "status_id"},        {"--priority", "priority"}};
        QVariantMap values;
        for (int i = 0; i + 1 < options.size(); i += 2)
            values.insert(fieldOf.value(options.at(i)), options.at(i + 1));
        qint64 listId = -1;
        {
            KalProject project;
            QVERIFY(project.openProject(path("list.pwp")));
            listId = KalDefects(project).add(values);
            QCOMPARE(project.saveProject(), int(KalProject::Saved));
            QVERIFY(project.closeProject());
        }

        const KalCliRun run = cli(QStringList{"add-defect", path("cli.pwp")} + options);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.text().trimmed().toLongLong(), listId);

        const QVariantMap fromList = defectRow(path("list.pwp"), listId);
        const QVariantMap fromCli = defectRow(path("cli.pwp"), listId);
        QCOMPARE(fromList.value("number").toString(), number);
        QCOMPARE(fromList.value("user_id").toString(), author);
        QCOMPARE(fromCli.keys(), fromList.keys());
        for (auto it = fromList.constBegin(); it != fromList.constEnd(); ++it)
            QVERIFY2(fromCli.value(it.key()) == it.value(), qPrintable(it.key()));
    }

    void laggingIdCounter_data()
    {
        QTest::addColumn<QStringList>("damage");
        QTest::addColumn<QList<qint64>>("ids"); // ids of two adds in a row; empty: refused

        QTest::newRow("counter behind the rows")
            << QStringList{"UPDATE id_generator SET id_counter = 1 WHERE id_table = 'defect'"} << QList<qint64>{4, 5};
        QTest::newRow("counter missing") << QStringList{"DELETE FROM id_generator WHERE id_table = 'defect'"}
                                         << QList<qint64>{4, 5};
        QTest::newRow("counter at the end of the range")
            << QStringList{"UPDATE id_generator SET id_counter = 9223372036854775807 WHERE id_table = 'defect'"}
            << QList<qint64>{};
        QTest::newRow("a free id below a row at the end of the range")
            << QStringList{"UPDATE defect SET id = 9223372036854775807 WHERE id = 3"} << QList<qint64>{4, 5};
        QTest::newRow("counter behind, a row at the end of the range")
            << QStringList{"UPDATE defect SET id = 9223372036854775807 WHERE id = 3",
                           "UPDATE id_generator SET id_counter = 1 WHERE id_table = 'defect'"}
            << QList<qint64>{};
    }

    void laggingIdCounter()
    {
        QFETCH(QStringList, damage);
        QFETCH(QList<qint64>, ids);

        const QString file = path("bau.pwp");
        QVERIFY(createProject(file, 3));
        QVERIFY(execute(file, damage));
        const QByteArray before = fileHash(file);
        for (int attempt = 0; attempt < 2; ++attempt) {
            const KalCliRun run = cli({"add-defect", file, "--description", "neu"});
            if (ids.isEmpty()) {
                QCOMPARE(run.code, 1);
                QVERIFY2(run.err.startsWith("Datenbankfehler: "), qPrintable(run.err));
                QCOMPARE(fileHash(file), before);
            } else {
                QCOMPARE(run.code, 0);
                QCOMPARE(run.text().trimmed().toLongLong(), ids.at(attempt));
            }
        }
        QCOMPARE(countRows(file, "defect"), ids.isEmpty() ? 3 : 5);
    }
};

QTEST_GUILESS_MAIN(TstAddDefect)
#include "tst_adddefect.moc"
