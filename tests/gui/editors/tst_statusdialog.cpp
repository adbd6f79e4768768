#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalStatusDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QToolButton>
#include <QtTest>

namespace {
// Every status row as text, in id order.
QStringList statusRows(KalTestProject &fx)
{
    QStringList rows;
    QSqlQuery q(fx.project()->database());
    q.exec("SELECT id, status, color, type, reduction_option, pos FROM status ORDER BY id");
    while (q.next()) {
        QStringList fields;
        for (int i = 0; i < 6; ++i)
            fields << q.value(i).toString();
        rows << fields.join('|');
    }
    return rows;
}
} // namespace

class TstStatusDialog : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QStringList m_factoryRows; // the status table of a new project
    KalScriptedPrompt *m_prompt = nullptr;

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_fx.open());
        m_factoryRows = statusRows(m_fx);
        QCOMPARE(m_factoryRows.size(), 8);
    }

    void cleanupTestCase()
    {
        KalStatusDialog::setColorChooser(KalStatusDialog::ColorChooser());
        m_fx.close();
    }

    void init()
    {
        // Every test starts from a new project.
        QVERIFY(m_fx.open());
        m_prompt->clear();
    }

    void listedInTheirOrder()
    {
        // The grid lists them in their `pos` order, whatever the model's order.
        QVERIFY(m_fx.exec(QStringLiteral("UPDATE status SET pos = 0 WHERE id = 8")));
        QVERIFY(m_fx.reselect());
        KalStatusDialog dialog(m_fx.project());
        QAbstractItemModel *shown = dialog.tableView()->model();
        const int idColumn = m_fx.model(QStringLiteral("status"))->idColumn();
        QList<int> order;
        for (int r = 0; r < shown->rowCount(); ++r)
            order << shown->index(r, idColumn).data(Qt::EditRole).toInt();
        QCOMPARE(order, (QList<int>{8, 1, 2, 3, 4, 5, 6, 7}));
    }

    void addStatus()
    {
        KalStatusDialog dialog(m_fx.project());
        dialog.tableView()->addButton()->click();
        dialog.tableView()->addButton()->click();

        // User statuses after the factory ones, each selected as it comes.
        const QStringList added = statusRows(m_fx).mid(8);
        QCOMPARE(added.size(), 2);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(added.at(i).section('|', 1), QStringLiteral("Neuer Status|#859FAF|2|0|%1").arg(9 + i));
        QCOMPARE(dialog.tableView()->selectedIds(), QList<qint64>{added.last().section('|', 0, 0).toLongLong()});
    }

    void factorySetting_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("restored");

        QTest::newRow("OK restores") << 0 << true;
        QTest::newRow("Cancel keeps") << 1 << false;
    }

    void factorySetting()
    {
        QFETCH(int, answer);
        QFETCH(bool, restored);

        for (const char *change :
             {"UPDATE status SET status = 'Mein Status' WHERE id = 1",
              "UPDATE status SET color = '#000000' WHERE id = 2",
              "UPDATE status SET status = 'x', color = '#ffffff' WHERE id = 8", "DELETE FROM status WHERE id = 5"})
            QVERIFY(m_fx.exec(change));
        QVERIFY(m_fx.reselect());

        KalStatusDialog dialog(m_fx.project());
        dialog.tableView()->addButton()->click();
        QCOMPARE(m_fx.count("status"), 8);

        m_prompt->queueAnswerIndex(answer);
        dialog.findChild<QPushButton *>(QStringLiteral("pbDefaultStatus"))->click();
        QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Standard Status wiederherstellen")});
        QCOMPARE(m_prompt->texts().value(0),
                 QStringLiteral("Die Standard Status werden auf die Werkseinstellungen zurückgesetzt."));

        // Restored means: as in a new project, plus the user's own status.
        const QStringList rows = statusRows(m_fx);
        QCOMPARE(rows.mid(0, 8) == m_factoryRows, restored);
        QCOMPARE(rows.size(), restored ? 9 : 8);
        QCOMPARE(m_fx.count("status", "type = 2"), 1);
    }

    void removeUserStatuses_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("userLeft");

        QTest::newRow("OK removes") << 0 << 0;
        QTest::newRow("Cancel keeps") << 1 << 2;
    }

    void removeUserStatuses()
    {
        QFETCH(int, answer);
        QFETCH(int, userLeft);

        KalStatusDialog dialog(m_fx.project());
        dialog.tableView()->addButton()->click();
        dialog.tableView()->addButton()->click();
        QCOMPARE(m_fx.count("status", "type = 2"), 2);

        m_prompt->queueAnswerIndex(answer);
        dialog.findChild<QPushButton *>(QStringLiteral("pbRemoveUserStatus"))->click();
        QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Benutzerstatus löschen")});
        QCOMPARE(m_fx.count("status", "type = 2"), userLeft);
        QCOMPARE(m_fx.count("status", "type = 1"), 8);
        QCOMPARE(m_fx.model(QStringLiteral("status"))->rowCount(), 8 + userLeft);
    }

    void colourChoice_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("stored");

        QTest::newRow("a colour") << "#12ab9F"
                                  << "#12ab9f";
        QTest::newRow("cancelled") << ""
                                   << "#cb2821";
    }

    void colourChoice()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, stored);

        QColor offered;
        KalStatusDialog::setColorChooser([&](const QColor &initial, QWidget *, const QString &) {
            offered = initial;
            return chosen.isEmpty() ? QColor() : QColor(chosen);
        });
        KalStatusDialog dialog(m_fx.project());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        // A click on the colour cell of status 2 (the view sorts through a proxy).
        KalSqlTableModel *model = m_fx.model("status");
        KalTableView *view = dialog.tableView();
        QModelIndex target;
        for (int r = 0; r < view->model()->rowCount(); ++r) {
            if (view->model()->index(r, model->idColumn()).data(Qt::EditRole).toInt() == 2)
                target = view->model()->index(r, model->fieldIndex("color"));
        }
        view->scrollTo(target);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(target).center());
        QTRY_COMPARE(offered, QColor(QStringLiteral("#cb2821")));
        QCOMPARE(m_fx.field("status", 2, "color").toString(), stored);
        KalStatusDialog::setColorChooser(KalStatusDialog::ColorChooser());
    }

    void widthsAndGeometryKept()
    {
        QSettings().remove(QStringLiteral("TableView/status/ColumnWidths"));
        QSettings().remove(QStringLiteral("StatusDialog/Geometry"));
        const int nameColumn = m_fx.model(QStringLiteral("status"))->fieldIndex(QStringLiteral("status"));
        {
            KalStatusDialog dialog(m_fx.project());
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            dialog.resize(640, 480);
            // Written as soon as a column changes, not only on closing.
            dialog.tableView()->horizontalHeader()->resizeSection(nameColumn, 321);
            QVERIFY(QSettings().contains(QStringLiteral("TableView/status/ColumnWidths")));
            dialog.findChild<QPushButton *>("pbClose")->click();
        }
        QVERIFY(!QSettings().value(QStringLiteral("StatusDialog/Geometry")).toByteArray().isEmpty());
        KalStatusDialog again(m_fx.project());
        QCOMPARE(again.tableView()->columnWidth(nameColumn), 321);
        QCOMPARE(again.size(), QSize(640, 480));
    }
};

KAL_WIDGET_TEST_MAIN(TstStatusDialog)
#include "tst_statusdialog.moc"
