#include "core/plans/KalFontCheck.h"
#include "gui/plans/KalTextEditor.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalWidgetTestMain.h"

#include <QComboBox>
#include <QPushButton>
#include <QSettings>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>

class TstTextEditor : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;

private slots:
    void init()
    {
        m_prompt = KalScriptedPrompt::install();
        QSettings().clear();
    }

    void defaultsStored_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("properties");
        QTest::newRow("bold and underline") << QStringList{"tbBold", "tbUnderline"} << 5;
        QTest::newRow("italic") << QStringList{"tbItalic"} << 2;
        QTest::newRow("all three") << QStringList{"tbBold", "tbItalic", "tbUnderline"} << 7;
        QTest::newRow("bold twice is off") << QStringList{"tbBold", "tbBold"} << 0;
    }

    void defaultsStored()
    {
        QFETCH(QStringList, buttons);
        QFETCH(int, properties);
        KalTextEditor::setColorChooser([](const QColor &, QWidget *, const QString &title) {
            return title == "Textfarbe wählen" ? QColor(Qt::blue) : QColor();
        });
        KalTextEditor editor(KalTextEditor::PlanTextDefaults);
        QCOMPARE(editor.findChild<QTextEdit *>("teText")->toPlainText(), QString("0001: Mangelbeschreibung"));
        for (const QString &button : buttons)
            editor.findChild<QToolButton *>(button)->click();
        editor.findChild<QComboBox *>("cbxFontSize")->setCurrentText("14");
        editor.findChild<QPushButton *>("pbColor")->click();
        editor.findChild<QPushButton *>("pbOk")->click();
        QCOMPARE(editor.result(), int(QDialog::Accepted));
        const QSettings settings;
        QCOMPARE(settings.value("MarkerText/StandardMarkerTextProperties").toInt(), properties);
        QCOMPARE(settings.value("MarkerText/StandardMarkerTextFontSize").toInt(), 14);
        QCOMPARE(settings.value("MarkerText/StandardMarkerTextColor").toString(), QString("#0000ff"));
        // The next editor starts from what was stored.
        KalTextEditor next(KalTextEditor::NewText);
        QCOMPARE(next.values().properties, properties);
        QCOMPARE(next.values().size, 14);
        KalTextEditor::setColorChooser({});
    }

    void presetsLoadTheStoredDefaults()
    {
        QSettings settings;
        settings.setValue("MarkerText/StandardMarkerTextFontSize", 20);
        settings.setValue("MarkerText/StandardMarkerTextColor", "#008000");
        settings.setValue("MarkerText/StandardMarkerTextProperties", 6);
        KalTextEditor editor(KalTextEditor::EditText);
        KalTextEditor::Values own;
        own.text = "Fuge offen";
        own.size = 9;
        editor.setValues(own);
        editor.findChild<QPushButton *>("pbPresets")->click();
        const KalTextEditor::Values now = editor.values();
        QCOMPARE(now.text, QString("Fuge offen")); // the text stays
        QCOMPARE(now.size, 20);
        QCOMPARE(now.color, QColor("#008000"));
        QCOMPARE(now.properties, 6);
        QVERIFY(editor.findChild<QToolButton *>("tbItalic")->isChecked());
        // Unreadable stored values fall back to the factory ones.
        settings.setValue("MarkerText/StandardMarkerTextFontSize", "groß");
        settings.setValue("MarkerText/StandardMarkerTextColor", "keine Farbe");
        QCOMPARE(KalTextEditor::storedDefaults().size, 8);
        QCOMPARE(KalTextEditor::storedDefaults().color, QColor(Qt::black));
    }

    void cancelAsksOnlyAfterAChange()
    {
        KalTextEditor untouched(KalTextEditor::EditText);
        untouched.findChild<QPushButton *>("pbCancel")->click();
        QVERIFY(m_prompt->shown().isEmpty());

        KalTextEditor editor(KalTextEditor::EditText);
        editor.show();
        editor.findChild<QTextEdit *>("teText")->setPlainText("Riss");
        m_prompt->queueAnswerIndex(1); // No: stay
        editor.findChild<QPushButton *>("pbCancel")->click();
        QCOMPARE(m_prompt->titles(), QStringList{"Änderungen verwerfen"});
        QCOMPARE(m_prompt->texts(), QStringList{"Möchten Sie die Änderungen tatsächlich verwerfen?"});
        QVERIFY(editor.isVisible());
    }

    void emptiedTextAsksBeforeDeleting_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("deleted");
        QTest::newRow("yes") << 0 << true;
        QTest::newRow("no") << 1 << false;
    }

    void emptiedTextAsksBeforeDeleting()
    {
        QFETCH(int, answer);
        QFETCH(bool, deleted);
        KalTextEditor editor(KalTextEditor::EditText);
        KalTextEditor::Values values;
        values.text = "0001: Riss";
        editor.setValues(values);
        editor.show();
        editor.findChild<QTextEdit *>("teText")->clear();
        m_prompt->queueAnswerIndex(answer);
        editor.findChild<QPushButton *>("pbOk")->click();
        QCOMPARE(m_prompt->titles(), QStringList{"Text"});
        QVERIFY(m_prompt->texts().value(0).startsWith("Sie haben den kompletten Text gelöscht.\n"));
        QCOMPARE(editor.textDeleted(), deleted);
        QCOMPARE(editor.isVisible(), !deleted);
    }

    void fontCheck()
    {
        QVERIFY(KalFontCheck::isInstalled("Arial")); // Liberation Sans stands in on Linux
        QVERIFY(!KalFontCheck::isInstalled("No Such Font 4711"));
        const QStringList asked{"Arial", "No Such Font 4711", "Other Missing Font"};
        QCOMPARE(KalFontCheck::warnAboutMissing(asked), (QStringList{"No Such Font 4711", "Other Missing Font"}));
        QCOMPARE(m_prompt->titles(), QStringList{"Fehlende Schriften im Fotoeditor"});
        QCOMPARE(m_prompt->texts().value(0),
                 QString("Folgende Schriften sind auf Ihrem System nicht installiert:\nNo Such Font 4711\nOther "
                         "Missing Font\n\nSie müssen diese Schriften installieren, um den vollen Funktionsumfang des "
                         "Fotoeditors nutzen zu können."));
        // The user ticked "don't show again".
        QSettings().setValue("Messages/DontShowMissingFontsMsg", true);
        m_prompt->clear();
        KalFontCheck::warnAboutMissing(asked);
        QVERIFY(m_prompt->shown().isEmpty());
        // A symbol is drawn with a font that has it.
        const QString check = QString::fromUtf8("✔");
        const QString family = KalFontCheck::familyFor(check, {"No Such Font 4711", "Arial"});
        QVERIFY(!family.isEmpty());
        QVERIFY(KalFontCheck::canRender(family, check));
    }
};

KAL_WIDGET_TEST_MAIN(TstTextEditor)
#include "tst_texteditor.moc"
