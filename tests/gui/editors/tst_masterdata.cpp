#include "tst_masterdata.h"

#include "core/import/KalAddressFile.h"
#include "core/project/KalCompanyFormat.h"
#include "core/project/KalPrivacyNotice.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalCompanyDialog.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/import/KalCompanyImportDialog.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

void TstMasterData::initTestCase()
{
    m_prompt = KalScriptedPrompt::install();
    // The file to import from is made first: making a project uses the
    // program's one connection.
    QVERIFY(m_dir.isValid());
    m_otherProject = m_dir.filePath(QStringLiteral("other.pwp"));
    QVERIFY(KalTestFiles::createProject(m_otherProject));
    QVERIFY(KalTestFiles::execute(
        m_otherProject,
        {QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                        "telephone, telefax, mobile, email, pos) VALUES (1, 'Maurer', '', '', 'Alpha Bau', '', "
                        "'', '', '', '', '', '', 1)"),
         QStringLiteral("INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, "
                        "telephone, telefax, mobile, email, pos) VALUES (2, 'Maler', 'Eva', 'Farb', 'Farbe "
                        "GmbH', '', '', 'Köln', '', '', '', '', 2)")}));
    QVERIFY(m_fx.open());
}

void TstMasterData::cleanupTestCase()
{
    m_fx.close();
}

void TstMasterData::init()
{
    m_prompt->clear();
    QVERIFY(m_fx.exec(QStringLiteral("UPDATE kal SET projectname = 'Haus am See', headline_left = 'Haus am See', "
                                     "headline_center = '', headline_right = '', footer_right = 'www', "
                                     "project_data_modified = 0")));
    QVERIFY(m_fx.exec(QStringLiteral("DELETE FROM company")));
    QVERIFY(m_fx.reselect());
}

void TstMasterData::projectDataModified_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("flag");

    QTest::newRow("nothing changed") << ""
                                     << "" << 0;
    QTest::newRow("same text typed again") << "leProjectName"
                                           << "Haus am See" << 0;
    QTest::newRow("project name") << "leProjectName"
                                  << "Haus am Berg" << 1;
    QTest::newRow("project number") << "leProjectNumber"
                                    << "2026-17" << 1;
    QTest::newRow("footer right") << "leFooterRight"
                                  << "www.example.org" << 1;
    QTest::newRow("header centre") << "leHeaderCenter"
                                   << "Bauabschnitt 2" << 1;
}

void TstMasterData::projectDataModified()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(int, flag);

    m_fx.project()->setModified(false);
    {
        KalMasterDataDialog dialog(m_fx.project());
        if (!field.isEmpty())
            dialog.findChild<QLineEdit *>(field)->setText(text);
        dialog.slotOkClicked();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT project_data_modified FROM kal")).toInt(), flag);
    QCOMPARE(m_fx.project()->isModified(), flag == 1);
    if (field == QLatin1String("leProjectName"))
        QCOMPARE(m_fx.scalar(QStringLiteral("SELECT projectname FROM kal")).toString(), text);
}

void TstMasterData::cancelReverts()
{
    const qint64 existing = m_fx.addCompany(QStringLiteral("Alpha Bau"), QStringLiteral("Maurer"), 1);
    QVERIFY(m_fx.reselect());
    KalSqlTableModel *companies = m_fx.model(QStringLiteral("company"));
    {
        KalMasterDataDialog dialog(m_fx.project());
        dialog.findChild<QLineEdit *>(QStringLiteral("leProjectName"))->setText(QStringLiteral("Anderes"));
        dialog.slotAddCompany();
        const int row = companies->findRowById(existing);
        companies->setData(companies->index(row, companies->fieldIndex(QStringLiteral("company"))),
                           QStringLiteral("Umbenannt"));
        QCOMPARE(companies->rowCount(), 2);
        dialog.slotCancelClicked();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }
    QCOMPARE(companies->rowCount(), 1);
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM company")).toInt(), 1);
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT company FROM company")).toString(), QStringLiteral("Alpha Bau"));
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT projectname FROM kal")).toString(), QStringLiteral("Haus am See"));
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT project_data_modified FROM kal")).toInt(), 0);
    // A second opening shows the stored texts again.
    KalMasterDataDialog again(m_fx.project());
    QCOMPARE(again.findChild<QLineEdit *>(QStringLiteral("leProjectName"))->text(), QStringLiteral("Haus am See"));
}

void TstMasterData::headerReminder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("center");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("shown");

    QTest::newRow("name on the left") << "Haus am See"
                                      << "Haus am See"
                                      << ""
                                      << "" << false;
    QTest::newRow("name inside a longer text") << "Haus am See"
                                               << "BV Haus am See, 2. BA"
                                               << ""
                                               << "" << false;
    QTest::newRow("name in the centre") << "Haus am See"
                                        << "Bauherr"
                                        << "Haus am See"
                                        << "" << false;
    QTest::newRow("name on the right") << "Haus am See"
                                       << ""
                                       << ""
                                       << "haus am see" << false;
    QTest::newRow("name nowhere") << "Haus am See"
                                  << "Bauherr"
                                  << "Los 3"
                                  << "" << true;
    QTest::newRow("all empty") << "Haus am See"
                               << ""
                               << ""
                               << "" << true;
    QTest::newRow("no project name") << ""
                                     << "Bauherr"
                                     << ""
                                     << "" << false;
}

void TstMasterData::headerReminder()
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
    dialog.slotCancelClicked();
}

void TstMasterData::addCompany()
{
    const qint64 existing = m_fx.addCompany(QStringLiteral("Alpha Bau"), QStringLiteral("Maurer"), 7);
    QVERIFY(m_fx.reselect());
    const qint64 counter =
        m_fx.scalar(QStringLiteral("SELECT id_counter FROM id_generator WHERE id_table = 'company'")).toLongLong();
    QCOMPARE(counter, existing);
    {
        KalMasterDataDialog dialog(m_fx.project());
        dialog.setCurrentPage(KalMasterDataDialog::CompanyPage);
        dialog.companyView()->addButton()->click();
        QCOMPARE(dialog.companyView()->selectedIds(), QList<qint64>{counter + 1});
        // Not written before OK.
        QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM company")).toInt(), 1);
        dialog.slotOkClicked();
    }
    QSqlQuery q(m_fx.project()->database());
    QVERIFY(q.exec(QStringLiteral("SELECT id, pos, modified, company, type, email FROM company ORDER BY pos")));
    QVERIFY(q.next());
    QCOMPARE(q.value(0).toLongLong(), existing);
    QVERIFY(q.next());
    QCOMPARE(q.value(0).toLongLong(), counter + 1);
    QCOMPARE(q.value(1).toInt(), 8);
    // A company created here is new, not an imported row changed here.
    QCOMPARE(q.value(2).toInt(), 0);
    QVERIFY(!q.value(3).isNull() && q.value(3).toString().isEmpty());
    QVERIFY(!q.value(5).isNull());
    QVERIFY(!q.next());
}

void TstMasterData::outputFormat()
{
    KalMasterDataDialog dialog(m_fx.project());
    auto *field1 = dialog.findChild<QComboBox *>(QStringLiteral("cbxOutputField1"));
    auto *field3 = dialog.findChild<QComboBox *>(QStringLiteral("cbxOutputField3"));
    auto *brackets3 = dialog.findChild<QCheckBox *>(QStringLiteral("cbField3InBrackets"));
    auto *example = dialog.findChild<QLabel *>(QStringLiteral("lblExample"));
    QVERIFY(field1 && field3 && brackets3 && example);
    QCOMPARE(field1->count(), 10);
    QCOMPARE(field1->itemText(0), QStringLiteral("- leer -"));
    QCOMPARE(field1->itemText(9), QStringLiteral("E-Mail"));

    // Each change is stored at once and shown in the example.
    field1->setCurrentIndex(KalCompanyFormat::LastName);
    QCOMPARE(QSettings().value(QStringLiteral("MasterDataDialog/CompanyOutputFormats/FormatField1")).toInt(),
             int(KalCompanyFormat::LastName));
    QVERIFY(example->text().startsWith(QStringLiteral("Mustermann  Mustermann & Söhne")));
    brackets3->setChecked(false);
    field3->setCurrentIndex(KalCompanyFormat::City);
    QCOMPARE(example->text(), QStringLiteral("Mustermann  Mustermann & Söhne  Musterstadt"));

    // The defect grid's company texts follow the format.
    const qint64 id = m_fx.addCompany(QStringLiteral("Beta Elektro"), QStringLiteral("Elektriker"), 1);
    QVERIFY(m_fx.reselect());
    QCOMPARE(KalSqlTableModel::companyText(
                 m_fx.model(QStringLiteral("company"))->record(m_fx.model(QStringLiteral("company"))->findRowById(id))),
             QStringLiteral("Beta Elektro"));

    dialog.slotCompaniesOutputFormatDefaultsClicked();
    QCOMPARE(field1->currentIndex(), 0);
    QVERIFY(brackets3->isChecked());
    QCOMPARE(example->text(), QStringLiteral("Mustermann & Söhne  (Architekt)"));
    QCOMPARE(KalSqlTableModel::companyText(
                 m_fx.model(QStringLiteral("company"))->record(m_fx.model(QStringLiteral("company"))->findRowById(id))),
             QStringLiteral("Beta Elektro  (Elektriker)"));
    dialog.slotCancelClicked();
}

void TstMasterData::quickCompanyDialog()
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
    dialog.accept();
    QVERIFY(dialog.companyId() > 0);
    QSqlQuery q(m_fx.project()->database());
    q.prepare(QStringLiteral("SELECT type, company, firstname, street, pos FROM company WHERE id = :id"));
    q.bindValue(QStringLiteral(":id"), dialog.companyId());
    QVERIFY(q.exec() && q.next());
    QCOMPARE(q.value(0).toString(), QStringLiteral("Dachdecker"));
    QCOMPARE(q.value(1).toString(), QStringLiteral("Ziegel KG"));
    QVERIFY(!q.value(2).isNull() && !q.value(3).isNull());
    QCOMPARE(q.value(4).toInt(), 1);

    // With "don't show again" set the notice stays away.
    QSettings().setValue(KalPrivacyNotice::settingsKey(), true);
    m_prompt->clear();
    KalCompanyDialog second(m_fx.project());
    second.show();
    QTest::qWait(20);
    QVERIFY(!m_prompt->hasTitle(QStringLiteral("Erfassung personenbezogener Daten")));
    second.reject();
}

void TstMasterData::importPointsOutDuplicates()
{
    m_fx.addCompany(QStringLiteral("Alpha Bau"), QStringLiteral("Maurer"), 1);
    QVERIFY(m_fx.reselect());

    KalFileDialog::queueChoice(m_otherProject);
    bool seen = false;
    QVector<int> duplicates;
    QTimer poll;
    poll.setInterval(10);
    connect(&poll, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<KalCompanyImportDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        poll.stop();
        seen = true;
        duplicates = dialog->duplicateRows();
        dialog->slotImport();
    });
    poll.start();
    const QVector<qint64> ids =
        KalCompanyImportSelectDialog::importFrom(m_fx.project(), KalCompanyImportSelectDialog::ProjectFile, nullptr);
    QVERIFY(seen);
    QCOMPARE(KalFileDialog::lastCaption(), QStringLiteral("Pellwick-Datei auswählen"));
    QCOMPARE(duplicates, QVector<int>{0});
    QCOMPARE(ids.size(), 1);
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM company")).toInt(), 2);
    QCOMPARE(
        m_fx.scalar(QStringLiteral("SELECT company FROM company WHERE id = :id"), {{QStringLiteral("id"), ids.first()}})
            .toString(),
        QStringLiteral("Farbe GmbH"));
    QVERIFY(m_prompt->texts().contains(QStringLiteral("Eine Firma wurde importiert.")));
}

void TstMasterData::addressFileMapping()
{
    m_fx.addCompany(QStringLiteral("Alpha Bau"), QStringLiteral("Maurer"), 1);
    QVERIFY(m_fx.reselect());
    auto file = std::make_shared<KalAddressFile>();
    QString error;
    // Captions the guess cannot place: the user maps the columns.
    QVERIFY2(file->loadData(QByteArrayLiteral("Spalte A;Spalte B\nAlpha Bau;Maurer\nDelta Dach;Dachdecker\n"), &error),
             qPrintable(error));
    KalCompanyImportDialog dialog(m_fx.project());
    dialog.setAddressFile(file, QStringLiteral("adressen.csv"));
    auto *header = dialog.findChild<QCheckBox *>(QStringLiteral("cbHeader"));
    auto *preview = dialog.findChild<QTableWidget *>(QStringLiteral("twPreview"));
    QVERIFY(header && preview);
    if (!header->isChecked())
        header->setChecked(true);
    QCOMPARE(preview->columnCount(), 2);

    auto map = [&](int column, int field) {
        auto *combo = dialog.findChild<QComboBox *>(QStringLiteral("cbxMapping%1").arg(column));
        QVERIFY(combo);
        const int index = combo->findData(field);
        QVERIFY(index >= 0);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        QCoreApplication::processEvents();
    };
    map(0, KalCompanyRecord::Company);
    map(1, KalCompanyRecord::Type);

    const QVector<KalCompanyRecord> companies = dialog.companies();
    QCOMPARE(companies.size(), 2);
    QCOMPARE(companies.at(1).value(KalCompanyRecord::Company), QStringLiteral("Delta Dach"));
    QCOMPARE(companies.at(1).value(KalCompanyRecord::Type), QStringLiteral("Dachdecker"));
    // "Alpha Bau / Maurer" is in the project: pointed out and not chosen.
    QCOMPARE(dialog.duplicateRows(), QVector<int>{0});
    QVERIFY(!dialog.isChecked(0));
    QVERIFY(dialog.isChecked(1));
    QCOMPARE(dialog.checkedCompanies().size(), 1);

    // Nothing mapped: nothing to import.
    map(0, -1);
    map(1, -1);
    QVERIFY(dialog.companies().isEmpty());
    QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->isEnabled());
}
