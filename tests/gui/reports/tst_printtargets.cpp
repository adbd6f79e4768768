// Printing from the filter dialog as the user does it: the layout choice,
// the PDF file dialog with its name and overwrite rules, the preview, one
// PDF per company and a printer that fails.
#include "core/project/KalProject.h"
#include "core/reports/KalDefectFilter.h"
#include "gui/reports/KalFilterDialog.h"
#include "gui/reports/KalPrintModeSelectDialog.h"
#include "gui/reports/KalPrintTargets.h"
#include "gui/widgets/KalFileDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalTestFiles.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

using State = KalDefectFilterState;
Q_DECLARE_METATYPE(KalDefectFilterState)

namespace {

QString pdfText(const QString &path)
{
    QProcess p;
    p.start("pdftotext", {"-layout", path, "-"});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

int pdfPages(const QString &path)
{
    QProcess p;
    p.start("pdfinfo", {path});
    p.waitForFinished(60000);
    const QString info = QString::fromUtf8(p.readAllStandardOutput());
    const QRegularExpressionMatch m = QRegularExpression("Pages:\\s+(\\d+)").match(info);
    return m.hasMatch() ? m.captured(1).toInt() : -1;
}

} // namespace

class TstPrintTargets : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_alpha = 0, m_beta = 0;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    void saveState(const State &state)
    {
        QVERIFY(KalDefectFilter(*m_fx.project()).save(state));
        m_fx.project()->setModified(false);
    }

    // Presses a print button of a fresh filter dialog, choosing the layout
    // when it is asked for (`layoutButton` empty: cancel that question).
    bool press(const char *button, const QString &layoutButton = "pbPrintModeShort")
    {
        KalDialogAnswer<KalPrintModeSelectDialog> answer([layoutButton](KalPrintModeSelectDialog *d) {
            d->findChild<QPushButton *>(layoutButton.isEmpty() ? "pbCancel" : layoutButton)->click();
        });
        KalFilterDialog dialog(m_fx.project());
        dialog.findChild<QPushButton *>(button)->click();
        return answer.seen();
    }

    // The defect descriptions in the order the PDF shows them.
    static QStringList order(const QString &text)
    {
        QStringList found;
        const QRegularExpression word("Mangel-([A-Z])\\b");
        for (auto it = word.globalMatch(text); it.hasNext();)
            found << it.next().captured(1);
        return found;
    }

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_dir.isValid());
        QVERIFY(m_fx.open());
        m_alpha = m_fx.addCompany("Alpha Bau", "Rohbau");
        m_beta = m_fx.addCompany("Beta Dach", "Dach");
        QVERIFY(m_alpha > 0 && m_beta > 0);
        struct Row
        {
            const char *number, *letter, *room;
            qint64 company;
        };
        const Row rows[] = {{"10", "A", "Küche", m_alpha},
                            {"9", "B", "Eltern'zimmer", m_beta},
                            {"2", "C", "Bad", 0},
                            {"11", "D", "Küche", m_beta}};
        for (const Row &r : rows)
            QVERIFY(m_fx.addDefect({{"number", r.number},
                                    {"description", QString("Mangel-%1").arg(r.letter)},
                                    {"roomname", r.room},
                                    {"company_id", r.company}}) > 0);
        QVERIFY(m_fx.exec("UPDATE kal SET projectname='Haus Nord'"));
    }

    void cleanupTestCase() { m_fx.close(); }

    void init()
    {
        m_prompt->clear();
        KalFileDialog::clearQueue();
        saveState(State::defaults(QDate(2026, 1, 1)));
    }

    void pdfHoldsTheFilteredListInOrder_data()
    {
        QTest::addColumn<State>("state");
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QStringList>("expected");
        State s = State::defaults(QDate(2026, 1, 1));
        QTest::newRow("by number, numbers as numbers") << s << "pbPrintModeShort" << QStringList{"C", "B", "A", "D"};
        s.ascending = false;
        QTest::newRow("by number descending, detailed") << s << "pbPrintModeLong" << QStringList{"D", "A", "B", "C"};
        s = State::defaults(QDate(2026, 1, 1));
        s.listFilter[State::RoomnameList] = true;
        s.ticked[State::RoomnameList] = {"Eltern'zimmer", "Bad"};
        QTest::newRow("quoted room") << s << "pbPrintModeShort" << QStringList{"C", "B"};
    }

    void pdfHoldsTheFilteredListInOrder()
    {
        QFETCH(State, state);
        QFETCH(QString, layout);
        QFETCH(QStringList, expected);
        saveState(state);
        const QString file = path(QString("liste-%1").arg(QTest::currentDataTag()).replace(' ', '_'));
        KalFileDialog::queueChoice(file);
        QVERIFY(press("pbPDF", layout));
        QCOMPARE(KalFileDialog::lastCaption(), QString("Speichern als PDF-Dokument"));
        QVERIFY(KalFileDialog::lastStartPath().endsWith("Haus Nord Mängelliste.pdf"));
        QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join('\n')));
        QCOMPARE(order(pdfText(file + ".pdf")), expected);
    }

    void pdfNameGetsItsSuffixOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::newRow("no suffix") << "Liste"
                                   << "Liste.pdf";
        QTest::newRow("upper-case suffix kept") << "Liste.PDF"
                                                << "Liste.PDF";
        QTest::newRow("other suffix") << "Liste.txt"
                                      << "Liste.txt.pdf";
    }

    void pdfNameGetsItsSuffixOnce()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        QTemporaryDir folder;
        KalFileDialog::queueChoice(folder.filePath(typed));
        QVERIFY(press("pbPDF"));
        QCOMPARE(KalTestFiles::folderState(folder.path()).size(), 1);
        QVERIFY(QFileInfo::exists(folder.filePath(written)));
    }

    void cancelWritesNothingAndSaysNothing_data()
    {
        QTest::addColumn<QString>("layoutButton");
        QTest::newRow("layout question cancelled") << QString();
        QTest::newRow("file dialog cancelled") << "pbPrintModeLong";
    }

    void cancelWritesNothingAndSaysNothing()
    {
        QFETCH(QString, layoutButton);
        QTemporaryDir folder;
        QSettings().setValue("FileDialogPaths/PDFPath", folder.path());
        KalFileDialog::queueCancel();
        const QStringList before = KalTestFiles::folderState(folder.path());
        QVERIFY(press("pbPDF", layoutButton));
        QCOMPARE(KalFileDialog::queuedChoices(), layoutButton.isEmpty() ? 1 : 0);
        QVERIFY(m_prompt->shown().isEmpty());
        QCOMPARE(KalTestFiles::folderState(folder.path()), before);
    }

    void fileThatCannotBeReplacedIsKept()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath("Liste.pdf");
        QVERIFY(KalTestFiles::writeFile(file, "alte Liste"));
        if (QProcess::execute("chattr", {"+i", folder.path()}) != 0)
            QSKIP("cannot make the folder read-only here");
        KalFileDialog::queueChoices({file});
        KalFileDialog::queueCancel();
        const bool asked = press("pbPDF");
        const QStringList after = KalTestFiles::folderState(folder.path());
        QProcess::execute("chattr", {"-i", folder.path()});
        QVERIFY(asked);
        QCOMPARE(m_prompt->titles(), QStringList{"Dateifehler"});
        QCOMPARE(m_prompt->texts().first(),
                 QString("Die Datei\n%1\nexistiert bereits und kann nicht überschrieben werden.\nÜberprüfen Sie\n- ob "
                         "die Datei bereits geöffnet ist\n- Ihre Schreibrechte für die Datei.")
                     .arg(QDir::toNativeSeparators(file)));
        QCOMPARE(KalFileDialog::queuedChoices(), 0); // asked again, then cancelled
        QCOMPARE(after.size(), 1);
        QFile old(file);
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), QByteArray("alte Liste"));
    }

    void previewCountsThePagesOfThePdf()
    {
        // Enough detailed blocks for several pages.
        State s = State::defaults(QDate(2026, 1, 1));
        for (int i = 0; i < 40; ++i)
            QVERIFY(m_fx.addDefect(
                        {{"number", QString::number(100 + i)},
                         {"description", QString("Ein längerer Text über Mangel %1. ").arg(i).repeated(8)}}) > 0);
        saveState(s);
        const QString file = path("seiten.pdf");
        KalFileDialog::queueChoice(file);
        QVERIFY(press("pbPDF", "pbPrintModeLong"));
        const int pdf = pdfPages(file);
        QVERIFY2(pdf > 2, qPrintable(QString::number(pdf)));

        int shown = -1;
        KalDialogAnswer<QPrintPreviewDialog> preview([&shown](QPrintPreviewDialog *d) {
            auto *widget = d->findChild<QPrintPreviewWidget *>();
            QTRY_VERIFY(widget && widget->pageCount() > 0);
            shown = widget->pageCount();
            d->reject();
        });
        QVERIFY(press("pbPrintPreview", "pbPrintModeLong"));
        QVERIFY(preview.seen());
        QCOMPARE(shown, pdf);
        QVERIFY(m_prompt->shown().isEmpty());
        QVERIFY(m_fx.exec("DELETE FROM defect WHERE CAST(number AS INTEGER) >= 100"));
    }

    void onePdfPerCompany()
    {
        QTemporaryDir folder;
        KalFileDialog::queueChoice(folder.path());
        QVERIFY(press("pbPDFPerCompany"));
        QStringList files = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files.size(), 3);
        // Each file holds its company's defects only, in the list's order.
        const QString beta = folder.filePath("Haus Nord Mängelliste - Beta Dach (Dach).pdf");
        QVERIFY2(files.contains(QFileInfo(beta).fileName()), qPrintable(files.join(", ")));
        QCOMPARE(order(pdfText(beta)), (QStringList{"B", "D"}));
        QCOMPARE(order(pdfText(folder.filePath("Haus Nord Mängelliste - ohne Firma.pdf"))), QStringList{"C"});
        QCOMPARE(m_prompt->titles(), QStringList{"PDF je Firma"});
    }

    void failingPrinterIsReported()
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path("fehlt/druck.pdf"));
        KalPrintTargets targets(m_fx.project()->database(),
                                KalDefectFilter(*m_fx.project()).select(State::defaults(QDate(2026, 1, 1))).ids(),
                                KalPrintOptions::fromSettings());
        QVERIFY(!targets.printOn(&printer));
        QCOMPARE(m_prompt->titles(), QStringList{"Druckfehler"});
        QVERIFY(!QFileInfo::exists(path("fehlt")));
    }
};

KAL_WIDGET_TEST_MAIN(TstPrintTargets)
#include "tst_printtargets.moc"
