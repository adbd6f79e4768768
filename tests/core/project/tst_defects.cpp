// The rules for defects and companies as every window, dialog and import
// meets them: through the project's models and the core rule classes.
#include "core/import/KalCompanyImport.h"
#include "core/project/KalCompanies.h"
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QSqlQuery>
#include <QtTest>

class TstDefects : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;
    KalProject *m_project = nullptr;

    KalSqlTableModel *model(const char *table) const { return m_fx.model(QLatin1String(table)); }
    QVariant scalar(const QString &sql) { return m_fx.value(sql); }

    qint64 company(const QString &name) { return KalCompanies(*m_project).add({{QStringLiteral("company"), name}}); }

    qint64 defect(qint64 companyId) { return KalDefects(*m_project).add({{QStringLiteral("company_id"), companyId}}); }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
    }

    void init()
    {
        m_prompt->clear();
        QVERIFY(m_fx.open());
        m_project = m_fx.project();
    }

    void cleanup() { m_fx.close(); }

    void authorInitials_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("none") << "" << true;
        QTest::newRow("one letter") << "K" << true;
        QTest::newRow("two capitals") << "KM" << true;
        QTest::newRow("lower case") << "km" << false;
        QTest::newRow("six letters") << "MUELLX" << false;
        QTest::newRow("login name") << "mueller" << false;
        QTest::newRow("digit") << "K1" << false;
        QTest::newRow("umlaut") << "ÄB" << false;
    }

    void authorInitials()
    {
        QFETCH(QString, text);
        QFETCH(bool, valid);
        QCOMPARE(KalDefects::isValidAuthor(text), valid);
        // Only initials are remembered for the next defect, and only they are written.
        QSettings().remove("DefectDialog/LastAuthorInitials");
        KalDefects::rememberAuthor(text);
        QCOMPARE(KalDefects::rememberedAuthor(), valid ? text : QString());
        const qint64 id = KalDefects(*m_project).add({{QStringLiteral("user_id"), text}});
        QCOMPARE(id > 0, valid);
        QCOMPARE(m_prompt->hasTitle(QStringLiteral("Fehler")), !valid);
    }

    void userEditMarksTheRow_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("flag"); // empty: the table has none
        QTest::addColumn<bool>("marked");

        auto row = [](const char *name, const char *table, const char *field, const QVariant &value, const char *flag,
                      bool marked) { QTest::newRow(name) << table << field << value << flag << marked; };
        const char *journalFlag = "site_journal_data_modified";
        row("company name", "company", "company", "Neu GmbH", "modified", true);
        row("company unchanged", "company", "company", "Alt GmbH", "modified", false);
        row("defect room", "defect", "roomname", "Bad", journalFlag, true);
        row("defect date", "defect", "correction_date", QDate(2026, 5, 4), journalFlag, true);
        row("defect same date as text", "defect", "creation_date", "2026-01-02", journalFlag, false);
        row("project name", "kal", "projectname", "Rathaus", "project_data_modified", true);
        row("status has no flag", "status", "status", "Erledigt?", "", true);
    }

    void userEditMarksTheRow()
    {
        QFETCH(QString, table);
        QFETCH(QString, field);
        QFETCH(QVariant, value);
        QFETCH(QString, flag);
        QFETCH(bool, marked);

        company(QStringLiteral("Alt GmbH"));
        KalDefects(*m_project).add({{QStringLiteral("creation_date"), QDate(2026, 1, 2)}});
        KalSqlTableModel *m = model(table.toLatin1().constData());
        QVERIFY(m->rowCount() > 0);
        const QModelIndex index = m->index(0, m->fieldIndex(field));
        const QVariant before = m->data(index, Qt::EditRole);
        QVERIFY(m->setData(index, value, KalSqlTableModel::UserEditRole));
        QVERIFY(m->submitWithNotification());
        const QVariant stored = scalar(QStringLiteral("SELECT %1 FROM %2").arg(field, table));
        QCOMPARE(stored != before, marked);
        if (!flag.isEmpty())
            QCOMPARE(scalar(QStringLiteral("SELECT %1 FROM %2").arg(flag, table)).toInt(), marked ? 1 : 0);
    }

    void newCompaniesFollowTheLast_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("master data list") << "append";
        QTest::newRow("quick dialog") << "add";
        QTest::newRow("import") << "insert";
    }

    void newCompaniesFollowTheLast()
    {
        QFETCH(QString, way);
        QVERIFY(m_fx.addCompany("Alt", "", {{"id", 40}, {"pos", 7}, {"modified", 1}}) == 40);
        QVERIFY(model("company")->select());

        KalCompanies companies(*m_project);
        const QVariantMap texts{{QStringLiteral("company"), QStringLiteral("Neu")}};
        QString error;
        qint64 first = -1;
        qint64 second = -1;
        if (way == QLatin1String("append")) {
            first = companies.append(texts);
            second = companies.append(texts); // the first is not written yet
            QVERIFY(model("company")->submitWithNotification());
        } else if (way == QLatin1String("add")) {
            first = companies.add(texts);
            second = companies.add(texts);
        } else {
            KalCompanyRecord record;
            record.setValue(KalCompanyRecord::Company, QStringLiteral("Neu"));
            const auto result = KalCompanyImport::insertCompanies(*m_project, {record, record}, true);
            error = result.errorText;
            first = result.insertedIds.value(0, -1);
            second = result.insertedIds.value(1, -1);
        }
        QVERIFY2(first > 0 && second > first, qPrintable(error));
        // After the last, new rather than changed, not from the site journal, texts never NULL.
        QCOMPARE(scalar(QStringLiteral("SELECT group_concat(pos || modified || site_journal_id || delete_on_import || "
                                       "(street IS NULL), ' ') FROM company WHERE id IN (%1, %2)")
                            .arg(first)
                            .arg(second))
                     .toString(),
                 QStringLiteral("80-110 90-110"));
        QVERIFY(m_project->isModified());
    }

    void removedCompaniesLeaveTheirDefects_data()
    {
        QTest::addColumn<QList<int>>("removed"); // indexes of the three companies
        QTest::addColumn<int>("affected");
        QTest::newRow("unused company") << QList<int>{2} << 0;
        QTest::newRow("one with two defects") << QList<int>{0} << 2;
        QTest::newRow("two companies") << QList<int>{0, 1} << 3;
    }

    void removedCompaniesLeaveTheirDefects()
    {
        QFETCH(QList<int>, removed);
        QFETCH(int, affected);

        const QList<qint64> companies{company("A"), company("B"), company("C")};
        const QList<qint64> defects{defect(companies.at(0)), defect(companies.at(0)), defect(companies.at(1)),
                                    KalDefects(*m_project).add()};
        QList<qint64> doomed;
        for (int i : removed)
            doomed << companies.at(i);
        KalCompanies rules(*m_project);
        QCOMPARE(rules.defectCount(doomed), affected);

        QVERIFY(model("company")->removeRowsById(doomed));
        QCOMPARE(scalar("SELECT COUNT(*) FROM company").toInt(), 3 - doomed.size());
        QCOMPARE(scalar("SELECT COUNT(*) FROM defect WHERE company_id IS NULL").toInt(), affected + 1);
        QCOMPARE(rules.defectCount(doomed), 0);
        // The grid shows the defects without company at once.
        KalSqlTableModel *grid = model("defect");
        int withoutCompany = 0;
        for (int row = 0; row < grid->rowCount(); ++row)
            withoutCompany += grid->data(grid->index(row, grid->fieldIndex("company_id")), Qt::EditRole).isNull();
        QCOMPARE(withoutCompany, affected + 1);
        QCOMPARE(m_project->transactions().depth(), 0);
    }
};

QTEST_GUILESS_MAIN(TstDefects)
#include "tst_defects.moc"
