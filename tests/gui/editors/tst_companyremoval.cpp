// Removing companies in the master data: the question says how many defects
// lose their company, and only Yes removes them and leaves those defects
// without a company.
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QToolButton>
#include <QtTest>

class TstCompanyRemoval : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;

    int count(const QString &sql) { return m_fx.value(sql).toInt(); }

private slots:
    void init()
    {
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
    }

    void cleanup() { m_fx.close(); }

    void questionCountsTheDefects_data()
    {
        QTest::addColumn<QList<int>>("selected"); // of companies A (two defects), B (one), C (none)
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("says");
        QTest::addColumn<int>("released"); // defects left without a company

        QTest::newRow("one company, two defects") << QList<int>{0} << true << "Firma entfernen"
                                                  << "Der gewählten Firma sind 2 Mängel zugeordnet." << 2;
        QTest::newRow("one company, one defect") << QList<int>{1} << true << "Firma entfernen"
                                                 << "Der gewählten Firma ist 1 Mangel zugeordnet." << 1;
        QTest::newRow("two companies") << QList<int>{0, 1} << true << "Firma entfernen"
                                       << "Den gewählten Firmen sind 3 Mängel zugeordnet." << 3;
        QTest::newRow("unused company") << QList<int>{2} << true << "Eintrag entfernen"
                                        << "Soll der gewählte Eintrag tatsächlich entfernt werden?" << 0;
        QTest::newRow("no keeps all") << QList<int>{0, 1} << false << "Firma entfernen"
                                      << "3 Mängel" << 0;
    }

    void questionCountsTheDefects()
    {
        QFETCH(QList<int>, selected);
        QFETCH(bool, yes);
        QFETCH(QString, title);
        QFETCH(QString, says);
        QFETCH(int, released);

        const QList<qint64> companies{m_fx.addCompany("A", "Maler", {{"pos", 1}}),
                                      m_fx.addCompany("B", "Maurer", {{"pos", 2}}),
                                      m_fx.addCompany("C", "Dach", {{"pos", 3}})};
        QVERIFY(m_fx.reselect());
        for (int owner : {0, 0, 1})
            QVERIFY(KalDefects(*m_fx.project()).add({{"company_id", companies.at(owner)}}) > 0);
        QList<qint64> ids;
        for (int i : selected)
            ids << companies.at(i);

        KalMasterDataDialog dialog(m_fx.project());
        dialog.setCurrentPage(KalMasterDataDialog::CompanyPage);
        QCOMPARE(dialog.companyView()->selectIds(ids), ids.size());
        m_prompt->clear();
        m_prompt->queueAnswerIndex(yes ? 0 : 1);
        dialog.companyView()->deleteButton()->click();

        QCOMPARE(m_prompt->titles(), QStringList{title});
        QVERIFY2(m_prompt->texts().first().contains(says), qPrintable(m_prompt->texts().first()));
        QCOMPARE(count("SELECT COUNT(*) FROM company"), yes ? 3 - ids.size() : 3);
        QCOMPARE(count("SELECT COUNT(*) FROM defect WHERE company_id IS NULL"), released);
        dialog.reject();
    }
};

KAL_WIDGET_TEST_MAIN(TstCompanyRemoval)
#include "tst_companyremoval.moc"
