#include "core/project/KalCompanyFormat.h"
#include "core/project/KalDefects.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalCompanyDialog.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>
#include <QtTest>

class TstMasterData : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_fx.open());
    }

    void cleanupTestCase() { m_fx.close(); }

    void init()
    {
        m_prompt->clear();
        QVERIFY(m_fx.exec("UPDATE kal SET projectname = 'Haus am See', headline_left = 'Haus am See', headline_center "
                          "= '', headline_right = '', footer_right = 'www', project_data_modified = 0"));
        QVERIFY(m_fx.exec("DELETE FROM company"));
        QVERIFY(m_fx.exec("DELETE FROM defect"));
        QVERIFY(m_fx.reselect());
    }

    void projectDataModified_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("flag");

        auto row = [](const char *name, const char *field, const char *text, int flag) {
            QTest::newRow(name) << QString(field) << QString(text) << flag;
        };
        row("nothing changed", "", "", 0);
        row("same text typed again", "leProjectName", "Haus am See", 0);
        row("project name", "leProjectName", "Haus am Berg", 1);
        row("footer right", "leFooterRight", "www.example.org", 1);
    }

    void projectDataModified()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(int, flag);

        m_fx.project()->setModified(false);
        {
            KalMasterDataDialog dialog(m_fx.project());
            if (!field.isEmpty())
                dialog.findChild<QLineEdit *>(field)->setText(text);
            kalPress(&dialog, QDialogButtonBox::Ok);
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
        QCOMPARE(m_fx.value("SELECT project_data_modified FROM kal").toInt(), flag);
        QCOMPARE(m_fx.project()->isModified(), flag == 1);
        if (field == QLatin1String("leProjectName"))
            QCOMPARE(m_fx.value("SELECT projectname FROM kal").toString(), text);
    }

    void cancelReverts()
    {
        const qint64 existing = m_fx.addCompany("Alpha Bau", "Maurer");
        QVERIFY(m_fx.reselect());
        KalSqlTableModel *companies = m_fx.model(QStringLiteral("company"));
        {
            KalMasterDataDialog dialog(m_fx.project());
            dialog.findChild<QLineEdit *>(QStringLiteral("leProjectName"))->setText(QStringLiteral("Anderes"));
            dialog.companyView()->addButton()->click();
            const int row = companies->findRowById(existing);
            companies->setData(companies->index(row, companies->fieldIndex(QStringLiteral("company"))),
                               QStringLiteral("Umbenannt"));
            QCOMPARE(companies->rowCount(), 2);
            kalPress(&dialog, QDialogButtonBox::Cancel);
            QCOMPARE(dialog.result(), int(QDialog::Rejected));
        }
        QCOMPARE(companies->rowCount(), 1);
        QCOMPARE(m_fx.count("company"), 1);
        QCOMPARE(m_fx.value("SELECT company FROM company").toString(), QStringLiteral("Alpha Bau"));
        QCOMPARE(m_fx.value("SELECT projectname FROM kal").toString(), QStringLiteral("Haus am See"));
        QCOMPARE(m_fx.value("SELECT project_data_modified FROM kal").toInt(), 0);
        // A second opening shows the stored texts again.
        KalMasterDataDialog again(m_fx.project());
        QCOMPARE(again.findChild<QLineEdit *>(QStringLiteral("leProjectName"))->text(), QStringLiteral("Haus am See"));
    }

    void headerReminder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("center");
        QTest::addColumn<QString>("right");
        QTest::addColumn<bool>("shown");

        auto row = [](const char *name, const char *project, const char *left, const char *center, const char *right,
                      bool shown) {
            QTest::newRow(name) << QString(project) << QString(left) << QString(center) << QString(right) << shown;
        };
        row("name on the left", "Haus am See", "Haus am See", "", "", false);
        row("name inside a longer text", "Haus am See", "BV Haus am See, 2. BA", "", "", false);
        row("name on the right", "Haus am See", "", "", "haus am see", false);
        row("name nowhere", "Haus am See", "Bauherr", "Los 3", "", true);
        row("all empty", "Haus am See", "", "", "", true);
        row("no project name", "", "Bauherr", "", "", false);
    }

    void headerReminder()
    {
        QFETCH(QString, name);
        QFETCH(QString, left);
        QFETCH(QString, center);
        QFETCH(QString, right);
        QFETCH(bool, shown);

        KalMasterDataDialog dialog(m_fx.project());
        dialog.findChild<QLineEdit *>(QStringLiteral("leProjectName"))->setText(name);
        dialog.findChild<QLineEdit *>(QStringLiteral("leHeaderCenter"))->setText(center);
        dialog.findChild<QLineEdit *>(QStringLiteral("leHeaderRight"))->setText(right);
        auto *headerLeft = dialog.findChild<QLineEdit *>(QStringLiteral("leHeaderLeft"));
        headerLeft->setText(left);
        emit headerLeft->editingFinished();

        QCOMPARE(m_prompt->hasTitle(QStringLiteral("Projektname")), shown);
        if (shown) {
            QCOMPARE(m_prompt->texts().value(0),
                     QStringLiteral("Bitte denken Sie daran, den Projektnamen in der Kopfzeile zu platzieren "
                                    "(empfohlen)!"));
            // Reminded once per dialog, not on every focus change.
            emit headerLeft->editingFinished();
            QCOMPARE(m_prompt->shown().size(), 1);
        }
        kalPress(&dialog, QDialogButtonBox::Cancel);
    }

    void addCompany()
    {
        const qint64 existing = m_fx.addCompany("Alpha Bau", "Maurer", {{"pos", 7}});
        QVERIFY(m_fx.reselect());
        const qint64 counter =
            m_fx.value("SELECT id_counter FROM id_generator WHERE id_table = 'company'").toLongLong();
        QCOMPARE(counter, existing);
        {
            KalMasterDataDialog dialog(m_fx.project());
            dialog.setCurrentPage(KalMasterDataDialog::CompanyPage);
            dialog.companyView()->addButton()->click();
            QCOMPARE(dialog.companyView()->selectedIds(), QList<qint64>{counter + 1});
            // Not written before OK.
            QCOMPARE(m_fx.count("company"), 1);
            kalPress(&dialog, QDialogButtonBox::Ok);
        }
        // After the last, new rather than changed, with empty texts (never NULL).
        QCOMPARE(m_fx.count("company"), 2);
        QCOMPARE(m_fx.value("SELECT pos || ':' || modified || ':' || company || email FROM company WHERE id = :id",
                            {{"id", counter + 1}})
                     .toString(),
                 QStringLiteral("8:0:"));
    }

    void outputFormat()
    {
        KalMasterDataDialog dialog(m_fx.project());
        auto *field1 = dialog.findChild<QComboBox *>(QStringLiteral("cbxOutputField1"));
        auto *field3 = dialog.findChild<QComboBox *>(QStringLiteral("cbxOutputField3"));
        auto *brackets3 = dialog.findChild<QCheckBox *>(QStringLiteral("cbField3InBrackets"));
        auto *example = dialog.findChild<QLabel *>(QStringLiteral("lblExample"));
        QVERIFY(field1 && field3 && brackets3 && example);

        // Each change is stored at once and shown in the example.
        field1->setCurrentIndex(KalCompanyFormat::LastName);
        QCOMPARE(QSettings().value(QStringLiteral("MasterDataDialog/CompanyOutputFormats/FormatField1")).toInt(),
                 int(KalCompanyFormat::LastName));
        QVERIFY(example->text().startsWith(QStringLiteral("Mustermann  Mustermann & Söhne")));
        brackets3->setChecked(false);
        field3->setCurrentIndex(KalCompanyFormat::City);
        QCOMPARE(example->text(), QStringLiteral("Mustermann  Mustermann & Söhne  Musterstadt"));

        // The defect grid's company texts follow the format.
        const qint64 id = m_fx.addCompany("Beta Elektro", "Elektriker");
        QVERIFY(m_fx.reselect());
        KalSqlTableModel *companies = m_fx.model("company");
        QCOMPARE(KalSqlTableModel::companyText(companies->record(companies->findRowById(id))),
                 QStringLiteral("Beta Elektro"));

        dialog.findChild<QPushButton *>("pbCompaniesOutputFormatDefaults")->click();
        QCOMPARE(field1->currentIndex(), 0);
        QVERIFY(brackets3->isChecked());
        QCOMPARE(example->text(), QStringLiteral("Mustermann & Söhne  (Architekt)"));
        QCOMPARE(KalSqlTableModel::companyText(companies->record(companies->findRowById(id))),
                 QStringLiteral("Beta Elektro  (Elektriker)"));
        kalPress(&dialog, QDialogButtonBox::Cancel);
    }

    void quickCompanyDialog()
    {
        QSettings().remove(KalPrivacyNotice::settingsKey());
        KalCompanyDialog dialog(m_fx.project());
        dialog.show();
        QTRY_VERIFY(m_prompt->hasTitle(QStringLiteral("Erfassung personenbezogener Daten")));
        const QString notice =
            m_prompt->texts().value(m_prompt->titles().indexOf(QStringLiteral("Erfassung personenbezogener Daten")));
        QVERIFY(notice.contains(QStringLiteral("Wenn Sie hier personenbezogene Daten (gem. Art. 4 DSGVO) erfassen und "
                                               "Berichte mit diesen Daten veröffentlichen,")));
        dialog.findChild<QLineEdit *>(QStringLiteral("leType"))->setText(QStringLiteral("Dachdecker"));
        dialog.findChild<QLineEdit *>(QStringLiteral("leCompany"))->setText(QStringLiteral("Ziegel KG"));
        kalPress(&dialog, QDialogButtonBox::Ok);
        QVERIFY(dialog.companyId() > 0);
        QCOMPARE(m_fx.value("SELECT type || company || firstname || street || pos FROM company WHERE id = :id",
                            {{"id", dialog.companyId()}})
                     .toString(),
                 QStringLiteral("DachdeckerZiegel KG1"));

        // With "don't show again" set the notice stays away.
        QSettings().setValue(KalPrivacyNotice::settingsKey(), true);
        m_prompt->clear();
        KalCompanyDialog second(m_fx.project());
        second.show();
        QVERIFY(QTest::qWaitForWindowExposed(&second));
        QCoreApplication::processEvents();
        QVERIFY(!m_prompt->hasTitle(QStringLiteral("Erfassung personenbezogener Daten")));
        kalPress(&second, QDialogButtonBox::Cancel);
    }
    // Removing companies: the question says how many defects lose their
    // company, and only Yes removes them and leaves those defects without one.
    void companyRemovalCountsTheDefects_data()
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

    void companyRemovalCountsTheDefects()
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
        QCOMPARE(m_fx.count("company"), yes ? 3 - ids.size() : 3);
        QCOMPARE(m_fx.count("defect", "company_id IS NULL"), released);
        dialog.reject();
    }
};

KAL_WIDGET_TEST_MAIN(TstMasterData)
#include "tst_masterdata.moc"
