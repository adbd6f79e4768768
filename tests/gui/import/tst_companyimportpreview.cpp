// The address preview of the company import as the user sees it: the field
// each column fills, how it is read, what is left out, and corrections that
// hold for the next file of the same address book.
#include "core/import/KalAddressFile.h"
#include "core/project/KalProject.h"
#include "gui/import/KalCompanyImportDialog.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>

namespace {

const QByteArray webExport("Name,Given Name,Family Name,Phone 1 - Type,Phone 1 - Value,Birthday,Gruppe\n"
                           "Hans Berg,Hans,Berg,Mobile,0171 5,1970-01-01,Rohbau\n");

std::shared_ptr<KalAddressFile> load(const QByteArray &data)
{
    auto file = std::make_shared<KalAddressFile>();
    QString error;
    return file->loadData(data, &error) ? file : nullptr;
}

} // namespace

class TstCompanyImportPreview : public QObject
{
    Q_OBJECT

private:
    KalProject m_project;
    KalScriptedPrompt *m_prompt = nullptr;

    QString shownField(KalCompanyImportDialog &dialog, int column)
    {
        // Combo boxes of an earlier preview go with the next event loop turn.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        auto *combo = dialog.findChild<QComboBox *>(QStringLiteral("cbxMapping%1").arg(column));
        return combo ? combo->currentText() : QStringLiteral("<none>");
    }

private slots:
    void initTestCase()
    {
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_project.newProject());
    }
    void cleanupTestCase() { m_project.closeProject(); }
    void init() { QSettings().remove(QStringLiteral("CompanyImport")); }

    void previewNamesFieldsAndLeftOutColumns()
    {
        KalCompanyImportDialog dialog(&m_project);
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
            KalCompanyImportDialog dialog(&m_project);
            dialog.setAddressFile(load(webExport), QStringLiteral("kontakte.csv"));
            dialog.setColumnMapping(6, KalCompanyRecord::Type);
            QCOMPARE(shownField(dialog, 6), QStringLiteral("Gewerk"));
            QVERIFY(!dialog.findChild<QLabel *>(QStringLiteral("lblUnmapped"))->text().contains("Gruppe"));
            dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->click();
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
            QCOMPARE(dialog.insertedIds().size(), 1);
        }
        KalCompanyImportDialog again(&m_project);
        again.setAddressFile(load(webExport + "Eva Roth,Eva,Roth,Work,0228 1,,Maler\n"), QStringLiteral("neu.csv"));
        QCOMPARE(shownField(again, 6), QStringLiteral("Gewerk"));
        QCOMPARE(again.companies().last().value(KalCompanyRecord::Type), QStringLiteral("Maler"));
        QCOMPARE(again.duplicateRows(), QVector<int>{0});
    }

    void unclosedQuoteAfterChangingSeparatorBlocksImport()
    {
        KalCompanyImportDialog dialog(&m_project);
        dialog.setAddressFile(load("Firma|Ort\nRoth|Bonn;\"x\nKaya|K\xC3\xB6ln\n"), QStringLiteral("a.csv"));
        QVERIFY(dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->isEnabled());
        auto *separator = dialog.findChild<QComboBox *>(QStringLiteral("cbxSeparator"));
        separator->setCurrentIndex(separator->findData(QVariant(QChar(';'))));
        QVERIFY(dialog.findChild<QLabel *>(QStringLiteral("lblUnmapped"))->text().contains("Zeile"));
        QVERIFY(!dialog.findChild<QPushButton *>(QStringLiteral("pbImport"))->isEnabled());
    }
};

KAL_WIDGET_TEST_MAIN(TstCompanyImportPreview)
#include "tst_companyimportpreview.moc"
