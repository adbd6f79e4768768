#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "core/textaids/KalCompleterStore.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/textaids/KalCompleterTextEdit.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>

// The description's auto-text list learns only what the user keeps.
class TstAutoTexts : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;

    static QStringList storedDescriptions()
    {
        return KalCompleterStore::read(QStringLiteral("defect"), QStringLiteral("description")).values;
    }

private slots:
    void initTestCase()
    {
        KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
    }

    void cleanupTestCase() { m_fx.close(); }

    void init() { QSettings().remove(KalCompleterStore::languageGroup()); }

    void descriptionTexts_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("OK keeps the final text only")
            << true << QStringList{QStringLiteral("Riss im Putz neben der Tür")};
        QTest::newRow("Cancel keeps nothing") << false << QStringList();
    }

    void descriptionTexts()
    {
        QFETCH(bool, ok);
        QFETCH(QStringList, expected);
        const qint64 id = KalDefects(*m_fx.project()).add();
        QVERIFY(id > 0);
        KalDefectEditor editor(m_fx.project(), m_fx.model(QStringLiteral("defect"))->findRowById(id));
        auto *description = editor.findChild<KalCompleterTextEdit *>(QStringLiteral("teDescription"));
        auto *box = editor.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        QVERIFY(description && box);

        // The user leaves the field several times while writing, typos included.
        for (const char *draft : {"Riss im Ptuz", "Riss im Putz", "Riss im Putz neben der Tür"}) {
            description->setPlainText(QString::fromUtf8(draft));
            QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
            QApplication::sendEvent(description, &leave);
        }
        QVERIFY(storedDescriptions().isEmpty());
        box->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
        QCOMPARE(storedDescriptions(), expected);
    }
};

KAL_WIDGET_TEST_MAIN(TstAutoTexts)

#include "tst_autotexts.moc"
