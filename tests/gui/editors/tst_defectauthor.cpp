// The author of a defect is the user's initials: whatever reaches the author
// field (typed, or put there whole by the auto-text list), only up to two
// capital letters are written, and the last ones entered start new defects.
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalDefectEditor.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

class TstDefectAuthor : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;

private slots:
    void initTestCase()
    {
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
    }

    void cleanupTestCase() { m_fx.close(); }

    void authorFieldTakesInitialsOnly_data()
    {
        QTest::addColumn<QString>("entered"); // as the auto-text list puts it into the field
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("stored");

        QTest::newRow("initials") << "KM" << true << "KM";
        QTest::newRow("initials in lower case") << "ab" << true << "AB";
        QTest::newRow("login name") << "mueller" << false << "";
        QTest::newRow("six capitals") << "MUELLX" << false << "";
        QTest::newRow("digit") << "K1" << false << "";
    }

    void authorFieldTakesInitialsOnly()
    {
        QFETCH(QString, entered);
        QFETCH(bool, accepted);
        QFETCH(QString, stored);

        m_prompt->clear();
        QSettings().setValue("DefectDialog/LastAuthorInitials", "XY");
        const qint64 id = KalDefects(*m_fx.project()).add({{QStringLiteral("user_id"), QString()}});
        QVERIFY(id > 0);
        KalSqlTableModel *defects = m_fx.model(QStringLiteral("defect"));
        {
            KalDefectEditor editor(m_fx.project(), defects->findRowById(id));
            editor.show();
            auto *author = editor.findChild<QLineEdit *>(QStringLiteral("leUserId"));
            QVERIFY(author);
            author->setText(entered);
            editor.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            QCOMPARE(editor.isVisible(), !accepted);
            QCOMPARE(m_prompt->hasTitle(QStringLiteral("Erfasst von")), !accepted);
            if (!accepted)
                editor.reject();
        }
        QCOMPARE(m_fx.value(QStringLiteral("SELECT user_id FROM defect WHERE id = :id"), {{QStringLiteral("id"), id}})
                     .toString(),
                 stored);
        // The next defect starts with the initials entered last.
        const qint64 next = KalDefects(*m_fx.project()).add();
        QCOMPARE(m_fx.value(QStringLiteral("SELECT user_id FROM defect WHERE id = :id"), {{QStringLiteral("id"), next}})
                     .toString(),
                 accepted ? stored : QStringLiteral("XY"));
    }
};

KAL_WIDGET_TEST_MAIN(TstDefectAuthor)
#include "tst_defectauthor.moc"
