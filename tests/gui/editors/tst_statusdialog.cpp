#include "tst_statusdialog.h"

#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalStatusDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QToolButton>
#include <QtTest>

namespace {

const QString kDefaultNames[] = {QStringLiteral("Offen, zu beseitigen"),
                                 QStringLiteral("Offen, in Arbeit"),
                                 QStringLiteral("Offen, unzureichend beseitigt"),
                                 QStringLiteral("Offen, streitig"),
                                 QStringLiteral("Erledigt, komplett beseitigt"),
                                 QStringLiteral("Erledigt, teilweise beseitigt"),
                                 QStringLiteral("Erledigt, bleibt"),
                                 QStringLiteral("Erledigt, streitig abgelehnt")};

} // namespace

void TstStatusDialog::initTestCase()
{
    m_prompt = KalScriptedPrompt::install();
}

void TstStatusDialog::cleanupTestCase()
{
    KalStatusDialog::setColorChooser(KalStatusDialog::ColorChooser());
    m_fx.close();
}

void TstStatusDialog::init()
{
    // Every test starts from a new project.
    m_fx.close();
    QVERIFY(m_fx.open());
    m_prompt->clear();
}

void TstStatusDialog::newProjectHasDefaults()
{
    QSqlQuery q(m_fx.project()->database());
    QVERIFY(q.exec(QStringLiteral("SELECT id, status, type, pos FROM status ORDER BY id")));
    int n = 0;
    while (q.next()) {
        QCOMPARE(q.value(0).toInt(), n + 1);
        QCOMPARE(q.value(1).toString(), kDefaultNames[n]);
        QCOMPARE(q.value(2).toInt(), 1);
        QCOMPARE(q.value(3).toInt(), n + 1);
        ++n;
    }
    QCOMPARE(n, 8);

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

void TstStatusDialog::addStatus()
{
    KalStatusDialog dialog(m_fx.project());
    dialog.tableView()->addButton()->click();
    dialog.slotAddStatus();

    QSqlQuery q(m_fx.project()->database());
    QVERIFY(q.exec(QStringLiteral("SELECT id, type, color, pos FROM status WHERE id > 8 ORDER BY id")));
    QVERIFY(q.next());
    const qint64 first = q.value(0).toLongLong();
    QVERIFY(first >= 9);
    QCOMPARE(q.value(1).toInt(), 2);
    QCOMPARE(q.value(2).toString(), QStringLiteral("#859FAF"));
    QCOMPARE(q.value(3).toInt(), 9);
    QVERIFY(q.next());
    const qint64 second = q.value(0).toLongLong();
    QVERIFY(second > first);
    QCOMPARE(q.value(3).toInt(), 10);
    QVERIFY(!q.next());
    // The new status is the selected one.
    QCOMPARE(dialog.tableView()->selectedIds(), QList<qint64>{second});
}

void TstStatusDialog::renameIsWrittenAtOnce()
{
    KalStatusDialog dialog(m_fx.project());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    KalTableView *view = dialog.tableView();
    QAbstractItemModel *shown = view->model();
    const int nameColumn = m_fx.model(QStringLiteral("status"))->fieldIndex(QStringLiteral("status"));
    const QModelIndex index = shown->index(0, nameColumn);
    view->setCurrentIndex(index);
    view->edit(index);
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText(QStringLiteral("Offen, Mängelrüge versandt"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    dialog.close();
    QSqlQuery q(m_fx.project()->database());
    QVERIFY(q.exec(QStringLiteral("SELECT status FROM status WHERE id = 1")) && q.next());
    QCOMPARE(q.value(0).toString(), QStringLiteral("Offen, Mängelrüge versandt"));
    QVERIFY(m_fx.project()->isModified());
}

void TstStatusDialog::factorySetting_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("restored");

    QTest::newRow("OK restores") << 0 << true;
    QTest::newRow("Cancel keeps") << 1 << false;
}

void TstStatusDialog::factorySetting()
{
    QFETCH(int, answer);
    QFETCH(bool, restored);

    QVERIFY(m_fx.exec(QStringLiteral("UPDATE status SET status = 'Mein Status' WHERE id = 1")));
    QVERIFY(m_fx.exec(QStringLiteral("UPDATE status SET color = '#000000' WHERE id = 2")));
    QVERIFY(m_fx.exec(QStringLiteral("UPDATE status SET status = 'x', color = '#ffffff' WHERE id = 8")));
    QVERIFY(m_fx.exec(QStringLiteral("DELETE FROM status WHERE id = 5")));
    QVERIFY(m_fx.reselect());

    KalStatusDialog dialog(m_fx.project());
    dialog.slotAddStatus();
    const int before = m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status")).toInt();
    QCOMPARE(before, 8);

    m_prompt->queueAnswerIndex(answer);
    dialog.findChild<QPushButton *>(QStringLiteral("pbDefaultStatus"))->click();
    QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Standard Status wiederherstellen")});
    QCOMPARE(m_prompt->texts().value(0),
             QStringLiteral("Die Standard Status werden auf die Werkseinstellungen zurückgesetzt."));

    if (!restored) {
        QCOMPARE(m_fx.scalar(QStringLiteral("SELECT status FROM status WHERE id = 1")).toString(),
                 QStringLiteral("Mein Status"));
        QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status WHERE id = 5")).toInt(), 0);
        return;
    }
    const QList<KalStatusDialog::DefaultStatus> defaults = KalStatusDialog::defaultStatuses();
    QCOMPARE(defaults.size(), 8);
    for (const KalStatusDialog::DefaultStatus &d : defaults) {
        QSqlQuery q(m_fx.project()->database());
        q.prepare(QStringLiteral("SELECT status, color, type, reduction_option, pos FROM status WHERE id = :id"));
        q.bindValue(QStringLiteral(":id"), d.id);
        QVERIFY(q.exec() && q.next());
        QCOMPARE(q.value(0).toString(), kDefaultNames[d.id - 1]);
        QCOMPARE(q.value(1).toString(), d.color);
        QCOMPARE(q.value(2).toInt(), 1);
        QCOMPARE(q.value(3).toInt(), d.id >= 6 ? 1 : 0);
        QCOMPARE(q.value(4).toLongLong(), d.id);
    }
    // The user status stays.
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status WHERE type = 2")).toInt(), 1);
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status")).toInt(), 9);
}

void TstStatusDialog::removeUserStatuses_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("userLeft");

    QTest::newRow("OK removes") << 0 << 0;
    QTest::newRow("Cancel keeps") << 1 << 2;
}

void TstStatusDialog::removeUserStatuses()
{
    QFETCH(int, answer);
    QFETCH(int, userLeft);

    KalStatusDialog dialog(m_fx.project());
    dialog.slotAddStatus();
    dialog.slotAddStatus();
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status WHERE type = 2")).toInt(), 2);

    m_prompt->queueAnswerIndex(answer);
    dialog.findChild<QPushButton *>(QStringLiteral("pbRemoveUserStatus"))->click();
    QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Benutzerstatus löschen")});
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status WHERE type = 2")).toInt(), userLeft);
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT COUNT(*) FROM status WHERE type = 1")).toInt(), 8);
    QCOMPARE(m_fx.model(QStringLiteral("status"))->rowCount(), 8 + userLeft);
}

void TstStatusDialog::colourChoice_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("stored");

    QTest::newRow("a colour") << "#12ab9F"
                              << "#12ab9f";
    QTest::newRow("cancelled") << ""
                               << "#cb2821";
}

void TstStatusDialog::colourChoice()
{
    QFETCH(QString, chosen);
    QFETCH(QString, stored);

    QColor offered;
    QString title;
    KalStatusDialog::setColorChooser([&](const QColor &initial, QWidget *, const QString &t) {
        offered = initial;
        title = t;
        return chosen.isEmpty() ? QColor() : QColor(chosen);
    });
    KalStatusDialog dialog(m_fx.project());
    KalSqlTableModel *model = m_fx.model(QStringLiteral("status"));
    const int row = model->findRowById(2);
    // Through the view's model (a sorting proxy): find the row of id 2.
    QAbstractItemModel *shown = dialog.tableView()->model();
    QModelIndex target;
    for (int r = 0; r < shown->rowCount(); ++r) {
        const QModelIndex idx = shown->index(r, model->fieldIndex(QStringLiteral("color")));
        if (shown->index(r, model->idColumn()).data(Qt::EditRole).toInt() == 2)
            target = idx;
    }
    QVERIFY(target.isValid());
    QVERIFY(row >= 0);
    dialog.slotColorEditor(target);
    QCOMPARE(title, QStringLiteral("Statusfarbe wählen"));
    QCOMPARE(offered, QColor(QStringLiteral("#cb2821")));
    QCOMPARE(m_fx.scalar(QStringLiteral("SELECT color FROM status WHERE id = 2")).toString(), stored);
    KalStatusDialog::setColorChooser(KalStatusDialog::ColorChooser());
}

void TstStatusDialog::widthsAndGeometryKept()
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
        dialog.accept();
    }
    QVERIFY(!QSettings().value(QStringLiteral("StatusDialog/Geometry")).toByteArray().isEmpty());
    KalStatusDialog again(m_fx.project());
    QCOMPARE(again.tableView()->columnWidth(nameColumn), 321);
    QCOMPARE(again.size(), QSize(640, 480));
}
