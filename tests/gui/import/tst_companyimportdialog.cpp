// Importing companies into the open project: from another project file and
// from an address file, whose preview shows the field each column fills, how
// it is read and what is left out; the user's corrections hold for the next
// file of the same address book.
#include "core/import/KalAddressFile.h"
#include "core/project/KalProject.h"
#include "gui/import/KalCompanyImportDialog.h"
#include "gui/import/KalCompanyImportSelectDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {
const QByteArray webExport("Name,Given Name,Family Name,Phone 1 - Type,Phone 1 - Value,Birthday,Gruppe\n"
                           "Hans Berg,Hans,Berg,Mobile,0171 5,1970-01-01,Rohbau\n");

std::shared_ptr<KalAddressFile> load(const QByteArray &data)
{
    auto file = std::make_shared<KalAddressFile>();
    QString error;
    return file->loadData(data, &error) ? file : nullptr;
}

QString shownField(KalCompanyImportDialog &dialog, int column)
{
    // Combo boxes of an earlier preview go with the next event loop turn.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto *combo = dialog.findChild<QComboBox *>(QStringLiteral("cbxMapping%1").arg(column));
    return combo ? combo->currentText() : QStringLiteral("<none>");
}
} // namespace

class TstCompanyImportDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        // The file to import from is made first: making a project uses the
        // program's one connection.
        m_otherProject = m_dir.filePath("other.pwp");
        QVERIFY(KalTestFiles::createProject(m_otherProject));
        QVERIFY(KalTestFiles::execute(
            m_otherProject,
            {"INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, telephone, "
             "telefax, mobile, email, pos) VALUES (1, 'Maurer', '', '', 'Alpha Bau', '', '', '', '', '', "
             "'', '', 1)",
             "INSERT INTO company (id, type, firstname, lastname, company, street, plz, city, telephone, "
             "telefax, mobile, email, pos) VALUES (2, 'Maler', 'Eva', 'Farb', 'Farbe GmbH', '', '', "
             "'Köln', '', '', '', '', 2)"}));
    }

    void init()
    {
        m_prompt->clear();
        QSettings().remove(QStringLiteral("CompanyImport"));
        QVERIFY(m_fx.open());
    }

    void importPointsOutDuplicates()
    {
        m_fx.addCompany("Alpha Bau", "Maurer");
        QVERIFY(m_fx.reselect());

        KalFileDialog::queueChoice(m_otherProject);
        QVector<int> duplicates;
        KalDialogAnswer<KalCompanyImportDialog> answer([&](KalCompanyImportDialog *dialog) {
            duplicates = dialog->duplicateRows();
            dialog->findChild<QPushButton *>("pbImport")->click();
        });
        const QVector<qint64> ids = KalCompanyImportSelectDialog::importFrom(
            m_fx.project(), KalCompanyImportSelectDialog::ProjectFile, nullptr);
        QVERIFY(answer.seen());
        QCOMPARE(KalFileDialog::lastCaption(), QStringLiteral("Pellwick-Datei auswählen"));
        QCOMPARE(duplicates, QVector<int>{0});
        QCOMPARE(ids.size(), 1);
        QCOMPARE(m_fx.count("company"), 2);
        QCOMPARE(m_fx.field("company", ids.first(), "company").toString(), QStringLiteral("Farbe GmbH"));
        QVERIFY(m_prompt->texts().contains(QStringLiteral("Eine Firma wurde importiert.")));
    }

    void addressFileMapping()
    {
        m_fx.addCompany("Alpha Bau", "Maurer");
        QVERIFY(m_fx.reselect());
        auto file = std::make_shared<KalAddressFile>();
        QString error;
        // Captions the guess cannot place: the user maps the columns.
        QVERIFY2(
            file->loadData(QByteArrayLiteral("Spalte A;Spalte B\nAlpha Bau;Maurer\nDelta Dach;Dachdecker\n"), &error),
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

    void previewNamesFieldsAndLeftOutColumns()
    {
        KalCompanyImportDialog dialog(m_fx.project());
        dialog.setAddressFile(load(webExport), QStringLiteral("kontakte.csv"));
        auto *preview = dialog.findChild<QTableWidget *>(QStringLiteral("twPreview"));
        QVERIFY(preview);
        const QStringList fields{"- ignorieren -", "Vorname",        "Nachname",      "- ignorieren -",
                                 "Telefon",        "- ignorieren -", "- ignorieren -"};
        for (int column = 0; column < fields.size(); ++column)
            QCOMPARE(shownField(dialog, column), fields.at(column));
        QVERIFY(preview->item(1, 4)->text().contains(QStringLiteral("„Phone 1 - Type“")));
        QCOMPARE(preview->item(1, 0)->text(), QStringLiteral("wird nicht übernommen"));
        const QString unmapped = dialog.findChild<QLabel *>(QStringLiteral("lblUnmapped"))->text();
        QVERIFY2(unmapped.contains(QStringLiteral("Name, Birthday, Gruppe")), qPrintable(unmapped));
        // The type column chose the mobile field for this row.
        QCOMPARE(dialog.companies().first().value(KalCompanyRecord::Mobile), QStringLiteral("0171 5"));
    }

    void correctionHoldsForTheNextFile()
    {
        {
            KalCompanyImportDialog dialog(m_fx.project());
            dialog.setAddressFile(load(webExport), QStringLiteral("kontakte.csv"));
            dialog.setColumnMapping(6, KalCompanyRecord::Type);
            QCOMPARE(shownField(dialog, 6), QStringLiteral("Gewerk"));
            QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("lblUnmapped"))->text().contains("Gruppe"));
            dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->click();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(dialog.insertedIds().size(), 1);
        }
        KalCompanyImportDialog again(m_fx.project());
        again.setAddressFile(load(webExport + "Eva Roth,Eva,Roth,Work,0228 1,,Maler\n"), QStringLiteral("neu.csv"));
        QCOMPARE(shownField(again, 6), QStringLiteral("Gewerk"));
        QCOMPARE(again.companies().last().value(KalCompanyRecord::Type), QStringLiteral("Maler"));
        QCOMPARE(again.duplicateRows(), QVector<int>{0});
    }

    void unclosedQuoteAfterChangingSeparatorBlocksImport()
    {
        KalCompanyImportDialog dialog(m_fx.project());
        dialog.setAddressFile(load("Firma|Ort\nRoth|Bonn;\"x\nKaya|K\xC3\xB6ln\n"), QStringLiteral("a.csv"));
        QVERIFY(dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->isEnabled());
        auto *separator = dialog.findChild<QComboBox *>(QStringLiteral("cbxSeparator"));
        separator->setCurrentIndex(separator->findData(QVariant(QChar(';'))));
        QVERIFY(dialog.findChild<QLabel *>(QStringLiteral("lblUnmapped"))->text().contains("Zeile"));
        QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->isEnabled());
    }

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    QTemporaryDir m_dir;
    QString m_otherProject;
};

KAL_WIDGET_TEST_MAIN(TstCompanyImportDialog)
#include "tst_companyimportdialog.moc"
