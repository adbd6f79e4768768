#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/textaids/KalCompleterLineEdit.h"
#include "gui/textaids/KalDateEdit.h"
#include "gui/widgets/KalItemDelegate.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDir>
#include <QHeaderView>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QSqlQuery>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {
const QString kDefectFormat = QStringLiteral("TableView/Defect/DefectTableFormat");

QSet<qint64> toSet(const QList<qint64> &ids)
{
    return QSet<qint64>(ids.begin(), ids.end());
}
} // namespace

class TstTableView : public QObject
{
    Q_OBJECT

private:
    // A row of `table` with the fields it needs; `values` go on top.
    qint64 insertRow(const QString &table, const QVariantMap &values = {})
    {
        QVariantMap row;
        if (table == QLatin1String("status"))
            row = {{"status", "Prüfen"}, {"color", "#00ff00"}, {"type", 2}, {"reduction_option", 0}, {"pos", 50}};
        else if (table == QLatin1String("photo_info"))
            row = {{"defect_id", insertRow("defect")}, {"pos", 1}, {"site_journal_data_modified", 0}};
        else if (table == QLatin1String("plan_info"))
            row = {{"plan_name", "EG"}, {"pos", 1}};
        else if (table == QLatin1String("defect"))
            row = {{"number", "1"}, {"description", "Mangel"}, {"site_journal_data_modified", 0}};
        else
            row = {{"company", "Bau GmbH"}, {"city", "Köln"}, {"modified", 0}};
        for (auto it = values.constBegin(); it != values.constEnd(); ++it)
            row.insert(it.key(), it.value());
        if (table != QLatin1String("company"))
            return m_fx.insert(table, row);
        const QString name = row.take("company").toString();
        return m_fx.addCompany(name, "Rohbau", row);
    }

    // Shows `view` on `model` as the user sees it.
    static bool shown(KalTableView &view, QAbstractItemModel *model, const QSize &size = QSize(900, 400))
    {
        view.setModel(model);
        view.resize(size);
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

    qint64 insertCompany(const QString &name) { return insertRow("company", {{"company", name}}); }

    KalSqlTableModel *model(const QString &table) const { return m_fx.model(table); }
    int count(const QString &sql) { return m_fx.value(sql).toInt(); }

    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;

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
        for (const char *table : {"defect", "company", "photo_info"})
            QVERIFY(m_fx.exec(QStringLiteral("DELETE FROM %1").arg(table)));
        QVERIFY(m_fx.exec("DELETE FROM status WHERE type = 2"));
        QVERIFY(m_fx.reselect());
    }

    void deleteAsksPerTable_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("rows"); // selected; one more row stays unselected
        QTest::addColumn<bool>("viaDeleteKey");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");

        const QString one = QStringLiteral("Soll der gewählte Eintrag tatsächlich entfernt werden?");
        const QString warning = QStringLiteral("Wenn Sie einen Status löschen, der bereits Mängeln zugeordnet ist, "
                                               "verlieren diese Mängel ihren Status!\n");
        const QString oneStatus = warning + QStringLiteral("Soll der gewählte Status tatsächlich gelöscht werden?");
        auto row = [](const char *name, const char *table, int rows, bool key, const char *answer, const char *title,
                      const QString &text) {
            QTest::newRow(name) << QString(table) << rows << key << QString(answer) << QString(title) << text;
        };
        row("status", "status", 1, false, "Ja", "Status löschen", oneStatus);
        row("two statuses key", "status", 2, true, "Ja", "Status löschen",
            warning + QStringLiteral("Sollen die 2 gewählten Status tatsächlich gelöscht werden?"));
        row("defect key", "defect", 1, true, "Ja", "Eintrag entfernen", one);
        row("defect key, no", "defect", 1, true, "Nein", "Eintrag entfernen", one);
        row("three defects", "defect", 3, false, "Ja", "Einträge entfernen",
            QStringLiteral("Sollen die 3 gewählten Einträge tatsächlich entfernt werden?"));
    }

    void deleteAsksPerTable()
    {
        QFETCH(QString, table);
        QFETCH(int, rows);
        QFETCH(bool, viaDeleteKey);
        QFETCH(QString, answer);
        QFETCH(QString, title);
        QFETCH(QString, text);

        const QString nameField = table == QLatin1String("defect") ? QStringLiteral("number") : table;
        QList<qint64> ids;
        for (int i = 0; i <= rows; ++i) {
            ids << insertRow(table, {{nameField, QString::number(i + 7)}});
            QVERIFY(ids.last() > 0);
        }
        const qint64 unselected = ids.takeLast();
        KalSqlTableModel *m = model(table);
        QVERIFY(m->select());
        const int rowsBefore = m_fx.count(table);

        KalTableView view;
        view.setModel(m);
        QCOMPARE(view.selectIds(ids), rows);
        QSignalSpy deleted(&view, &KalTableView::signalRowsDeleted);

        m_prompt->queueAnswer(answer);
        if (viaDeleteKey)
            QTest::keyClick(&view, Qt::Key_Delete);
        else
            view.deleteButton()->click();

        QCOMPARE(m_prompt->titles(), QStringList{title});
        QCOMPARE(m_prompt->texts(), QStringList{text});
        QCOMPARE(m_prompt->shown().first().buttons, QStringList({QStringLiteral("Ja"), QStringLiteral("Nein")}));
        const bool removed = answer == QLatin1String("Ja");
        QCOMPARE(m_fx.count(table), rowsBefore - (removed ? rows : 0));
        QCOMPARE(m_fx.count(table, QStringLiteral("id = %1").arg(unselected)), 1);
        for (qint64 id : ids)
            QCOMPARE(m->findRowById(id) < 0, removed);
        QCOMPARE(deleted.count(), removed ? 1 : 0);
        QVERIFY(!m->isDirty());
    }

    void selectionAndDeleteThroughProxy()
    {
        QList<qint64> ids;
        for (const char *name : {"Dach", "Estrich", "Anstrich", "Beton"})
            ids << insertCompany(QString::fromUtf8(name));
        KalSqlTableModel *m = model(QStringLiteral("company"));
        QVERIFY(m->select());

        // A proxy sorted by name in reverse: view rows differ from model rows.
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(m);
        proxy.sort(m->fieldIndex(QStringLiteral("company")), Qt::DescendingOrder);
        KalTableView view;
        view.setModel(&proxy);
        QCOMPARE(view.sqlModel(), m);
        QVERIFY(view.kalDelegate());

        QCOMPARE(view.selectIds({ids[0], ids[3]}), 2);
        QCOMPARE(toSet(view.selectedIds()), toSet({ids[0], ids[3]}));
        QVERIFY(
            m->setData(m->index(m->findRowById(ids[1]), m->fieldIndex(QStringLiteral("city"))), QStringLiteral("Ulm")));
        QVERIFY(m->submitWithNotification(true));
        QCOMPARE(toSet(view.selectedIds()), toSet({ids[0], ids[3]}));

        // Deleting through the proxy removes exactly the selected companies.
        m_prompt->queueAnswer(QStringLiteral("Ja"));
        view.deleteButton()->click();
        QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM company")), 2);
        QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM company WHERE id IN (%1, %2)").arg(ids[1]).arg(ids[2])), 2);
        // Nothing selected any more: neither the minus button nor the key deletes again.
        QVERIFY(!view.deleteButton()->isEnabled());
        m_prompt->clear();
        QTest::keyClick(&view, Qt::Key_Delete);
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void setModelDataMarksOnlyRealChanges_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<bool>("changed");

        auto row = [](const char *name, const char *table, const char *field, const QVariant &stored, const char *typed,
                      const QVariant &expected, bool changed) {
            QTest::newRow(name) << QString(table) << QString(field) << stored << QString(typed) << expected << changed;
        };
        const QDate april3(2024, 4, 3);
        row("company same text", "company", "company", "Bau GmbH", "Bau GmbH", "Bau GmbH", false);
        row("company email cleared", "company", "email", "a@b.de", "", "", true);
        row("photo comment new", "photo_info", "comment", "", "siehe Plan", "siehe Plan", true);
        row("defect date new", "defect", "correction_date", april3, "04.04.2024", QDate(2024, 4, 4), true);
        row("defect date same, short notation", "defect", "correction_date", april3, "3.4.24", april3, false);
        row("defect date cleared", "defect", "deadline_1", april3, "", QDate(), true);
        row("defect empty date stays empty", "defect", "deadline_2", QVariant(), "  ", QDate(), false);
    }

    void setModelDataMarksOnlyRealChanges()
    {
        QFETCH(QString, table);
        QFETCH(QString, field);
        QFETCH(QVariant, stored);
        QFETCH(QString, typed);
        QFETCH(QVariant, expected);
        QFETCH(bool, changed);

        const qint64 id = insertRow(table, {{field, stored}});
        QVERIFY(id > 0);
        KalSqlTableModel *m = model(table);
        QVERIFY(m->select());

        KalTableView view;
        view.setModel(m);
        KalItemDelegate *delegate = view.kalDelegate();
        QVERIFY(delegate);
        const QModelIndex index = m->index(m->findRowById(id), m->fieldIndex(field));
        QVERIFY(index.isValid());

        QStyleOptionViewItem option;
        std::unique_ptr<QWidget> editor(delegate->createEditor(view.viewport(), option, index));
        QVERIFY(editor);
        delegate->setEditorData(editor.get(), index);
        if (auto *line = qobject_cast<QLineEdit *>(editor.get()))
            line->setText(typed);
        else if (auto *text = qobject_cast<QTextEdit *>(editor.get()))
            text->setPlainText(typed);
        else
            QFAIL("unexpected editor");
        delegate->setModelData(editor.get(), m, index);

        const QVariant now = m->data(index, Qt::EditRole);
        if (expected.type() == QVariant::Date)
            QCOMPARE(now.toDate(), expected.toDate());
        else
            QCOMPARE(now.toString(), expected.toString());
        // Whether the row is marked is the model's rule; the grid must not
        // turn a retyped value into a change.
        QCOMPARE(m->isDirty(), changed);
        m->revertAll();
    }

    void cellEditsAreWrittenUnlessTheOwnerDecides_data()
    {
        QTest::addColumn<bool>("submitEdits");
        QTest::newRow("grid writes at once") << true;
        QTest::newRow("dialog with OK and Cancel") << false;
    }

    void cellEditsAreWrittenUnlessTheOwnerDecides()
    {
        QFETCH(bool, submitEdits);
        const qint64 id = insertCompany(QStringLiteral("Dach AG"));
        KalSqlTableModel *m = model(QStringLiteral("company"));
        QVERIFY(m->select());
        KalTableView view;
        view.setSubmitEdits(submitEdits);
        QVERIFY(shown(view, m, QSize(900, 300)));
        const QModelIndex index = m->index(m->findRowById(id), m->fieldIndex(QStringLiteral("city")));
        view.setCurrentIndex(index);
        view.edit(index);
        auto *editor = view.viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText(QStringLiteral("Ulm"));
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(m->isDirty(), !submitEdits);
        QSqlQuery q(m_fx.project()->database());
        QVERIFY(q.exec(QStringLiteral("SELECT city, modified FROM company WHERE id = %1").arg(id)) && q.next());
        QCOMPARE(q.value(0).toString(), submitEdits ? QStringLiteral("Ulm") : QStringLiteral("Köln"));
        QCOMPARE(q.value(1).toInt(), submitEdits ? 1 : 0);
        m->revertAll();
    }

    void invalidDateInGridWarnsOnce_data()
    {
        QTest::addColumn<bool>("byReturn");
        QTest::newRow("Return") << true;
        QTest::newRow("focus elsewhere") << false;
    }

    void invalidDateInGridWarnsOnce()
    {
        QFETCH(bool, byReturn);
        const qint64 id = insertRow("defect", {{"correction_date", QDate(2024, 4, 3)}});
        KalSqlTableModel *m = model(QStringLiteral("defect"));
        QVERIFY(m->select());

        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *view = new KalTableView;
        auto *elsewhere = new QLineEdit;
        layout->addWidget(view);
        layout->addWidget(elsewhere);
        view->setModel(m);
        window.resize(900, 400);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));

        const QModelIndex index = m->index(m->findRowById(id), m->fieldIndex(QStringLiteral("correction_date")));
        view->setCurrentIndex(index);
        view->edit(index);
        auto *editor = qobject_cast<KalDateEdit *>(view->indexWidget(index));
        QVERIFY(editor);
        editor->setFocus();
        QTRY_VERIFY(editor->hasFocus());
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("31.02.2020"));
        if (byReturn)
            QTest::keyClick(editor, Qt::Key_Return);
        else
            elsewhere->setFocus();
        QTRY_VERIFY(!view->indexWidget(index));
        QTRY_COMPARE(m_prompt->titles(), QStringList{QStringLiteral("Format-Fehler")});
        QCoreApplication::processEvents();
        QCOMPARE(m_prompt->shown().size(), 1);
        QCOMPARE(m->data(index, Qt::EditRole).toDate(), QDate(2024, 4, 3));
        QVERIFY(!m->isDirty());
    }

    void editorsPerColumn_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("editorClass"); // empty: not edited in the grid; "-": Qt's own editor
        auto row = [](const char *table, const char *field, const char *editorClass) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(table, field)))
                << QString(table) << QString(field) << QString(editorClass);
        };
        row("defect", "reduction", "");
        row("defect", "correction_date", "KalDateEdit");
        row("defect", "number", "-");
        // Ids shown as names are chosen in the defect editor, never typed.
        row("defect", "company_id", "");
        row("status", "type", "");
        row("company", "email", "QLineEdit");
        row("photo_info", "comment", "KalCompleterLineEdit");
        row("plan_info", "date", "KalDateEdit");
    }

    void editorsPerColumn()
    {
        QFETCH(QString, table);
        QFETCH(QString, field);
        QFETCH(QString, editorClass);

        const qint64 id = table == QLatin1String("status") ? 1 : insertRow(table); // 1: a standard status
        KalSqlTableModel *m = model(table);
        QVERIFY(m->select());

        KalTableView view;
        QVERIFY(shown(view, m, QSize(900, 300)));
        const QModelIndex index = m->index(m->findRowById(id), m->fieldIndex(field));
        QVERIFY(index.isValid());

        // As the user would start editing.
        view.setCurrentIndex(index);
        if (!(m->flags(index) & Qt::ItemIsEnabled))
            QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
        view.edit(index);
        QWidget *editor = view.indexWidget(index);
        QCOMPARE(editor != nullptr, !editorClass.isEmpty());
        if (editorClass.isEmpty() || editorClass == "-") {
            m->revertAll();
            return;
        }
        QCOMPARE(QString::fromLatin1(editor->metaObject()->className()), editorClass);
        // A text editor commits when its editing is finished.
        auto *line = qobject_cast<QLineEdit *>(editor);
        if (line && editorClass != QLatin1String("KalDateEdit")) {
            line->setText(QStringLiteral("X1"));
            emit line->editingFinished();
            QCOMPARE(m->data(index, Qt::EditRole).toString(), QStringLiteral("X1"));
            QTRY_VERIFY(!view.indexWidget(index));
        }
        m->revertAll();
    }

    void columnWidthsPerTableAndFormat()
    {
        QSettings settings;
        struct Case
        {
            QString table;
            int format;
            QString key;
            int width;
        };
        const QVector<Case> cases{
            {"defect", 1, "TableView/Defect/ShortColumnWidths", 111},
            {"defect", 2, "TableView/Defect/LongColumnWidths", 222},
            {"defect", 0, "TableView/Defect/ShortColumnWidths", 0}, // any other format: short widths
            {"status", 1, "TableView/status/ColumnWidths", 133},
            {"company", 2, "TableView/company/ColumnWidths", 144},
        };
        for (const Case &c : cases) {
            if (c.width == 0)
                continue;
            settings.setValue(kDefectFormat, c.format);
            KalTableView view;
            view.setModel(model(c.table));
            view.setColumnWidth(1, c.width);
            view.setColumnWidth(2, c.width + 1);
            view.setColumnHidden(3, true);
            view.setModel(nullptr); // leaving a model stores its widths
            const QStringList stored = settings.value(c.key).toStringList();
            QVERIFY2(stored.size() >= 4, qPrintable(c.key));
            QCOMPARE(stored.at(1).toInt(), c.width);
            QCOMPARE(stored.at(2).toInt(), c.width + 1);
        }

        // Fresh views get the widths of their table and format back.
        for (const Case &c : cases) {
            settings.setValue(kDefectFormat, c.format);
            KalTableView view;
            view.setModel(model(c.table));
            const int expected = c.width ? c.width : 111;
            QCOMPARE(view.columnWidth(1), expected);
            QCOMPARE(view.columnWidth(2), expected + 1);
            QVERIFY(view.columnWidth(3) > 0); // hidden when stored: not restored as zero
        }
        settings.setValue(kDefectFormat, 1);
    }

    void emptyTableHint()
    {
        KalSqlTableModel *m = model(QStringLiteral("company"));
        QCOMPARE(m->rowCount(), 0);
        KalTableView view;
        view.resize(600, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(!view.emptyHintLabel()->isVisible()); // no model, no hint

        view.setModel(m);
        QLabel *hint = view.emptyHintLabel();
        QVERIFY(hint->isVisible());
        QCOMPARE(hint->text(), QStringLiteral("Doppelklick für neue Zeile"));
        QVERIFY(view.viewport()->rect().contains(hint->geometry()));

        const qint64 id = insertCompany(QStringLiteral("Neu"));
        QVERIFY(m->select());
        QVERIFY(!hint->isVisible());

        QVERIFY(view.selectId(id));
        m_prompt->queueAnswer(QStringLiteral("Ja"));
        view.deleteButton()->click();
        QCOMPARE(m->rowCount(), 0);
        QVERIFY(hint->isVisible());
    }

    void cornerButtons()
    {
        const qint64 a = insertCompany(QStringLiteral("A"));
        insertCompany(QStringLiteral("B"));
        KalSqlTableModel *m = model(QStringLiteral("company"));
        QVERIFY(m->select());
        KalTableView view;
        QVERIFY(shown(view, m, QSize(700, 400)));

        // Nobody handles adding or copying yet: those buttons are disabled.
        QVERIFY(!view.addButton()->isEnabled());
        QVERIFY(!view.copyButton()->isEnabled());
        QVERIFY(!view.deleteButton()->isEnabled());

        QSignalSpy add(&view, &KalTableView::signalButtonAddClicked);
        QSignalSpy copy(&view, &KalTableView::signalButtonCopyClicked);
        QVERIFY(view.addButton()->isEnabled());
        QVERIFY(!view.copyButton()->isEnabled()); // nothing selected

        view.addButton()->click();
        QCOMPARE(add.count(), 1);

        // A double click below the rows asks for a new row as well.
        const QPoint below(20, view.viewport()->height() - 5);
        QVERIFY(!view.indexAt(below).isValid());
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, below);
        QCOMPARE(add.count(), 2);

        QVERIFY(view.selectId(a));
        QVERIFY(view.copyButton()->isEnabled());
        QVERIFY(view.deleteButton()->isEnabled());
        view.copyButton()->click();
        QCOMPARE(copy.count(), 1);
        QCOMPARE(m->rowCount(), 2); // copying is the owner's business
    }

    void colourAndCameraCellsArePainted()
    {
        const qint64 none = insertRow("defect", {{"image_cnt", 0}});
        const qint64 three = insertRow("defect", {{"number", "2"}, {"image_cnt", 3}});
        KalSqlTableModel *defects = model(QStringLiteral("defect"));
        QVERIFY(defects->select());
        KalTableView view;
        view.setModel(defects);
        view.resize(1400, 300);
        const int photos = defects->fieldIndex(QStringLiteral("image_cnt"));
        view.setColumnWidth(photos, 80);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.scrollTo(defects->index(0, photos));

        // Dark pixels in the cell: the camera (and the count) are drawn.
        auto darkPixels = [&](const QRect &rect) {
            const QImage image = view.viewport()->grab(rect).toImage();
            int dark = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    dark += qGray(image.pixel(x, y)) < 128;
            return dark;
        };
        const QRect emptyCell =
            view.visualRect(defects->index(defects->findRowById(none), photos)).adjusted(1, 1, -1, -1);
        const QRect cameraCell =
            view.visualRect(defects->index(defects->findRowById(three), photos)).adjusted(1, 1, -1, -1);
        QCOMPARE(darkPixels(emptyCell), 0);
        QVERIFY(darkPixels(cameraCell.adjusted(0, 0, -cameraCell.width() / 2, 0)) > 20); // the camera on the left

        // A status's colour cell shows its colour, also in a selected row.
        insertRow("status", {{"id", 77}, {"status", "Lila"}, {"color", "#8020c0"}});
        KalSqlTableModel *status = model(QStringLiteral("status"));
        QVERIFY(status->select());
        KalTableView statusView;
        QVERIFY(shown(statusView, status, QSize(900, 500)));
        const int colourColumn = status->fieldIndex(QStringLiteral("color"));
        for (bool selected : {false, true}) {
            if (selected)
                QVERIFY(statusView.selectId(77));
            const QModelIndex cell = status->index(status->findRowById(77), colourColumn);
            statusView.scrollTo(cell);
            const QImage image = statusView.viewport()->grab(statusView.visualRect(cell)).toImage();
            QCOMPARE(QColor(image.pixel(image.width() / 2, image.height() / 2)), QColor(QStringLiteral("#8020c0")));
        }
    }

    // Every icon compiled into the program loads, square and with transparency.
    void iconsAreCompiledIn()
    {
        const QDir folder(QStringLiteral(":/KalMainWindow/Resources"));
        QStringList paths{QStringLiteral(":/KalDatabase/Pellwick.ico")};
        for (const QString &name : folder.entryList({QStringLiteral("*.png"), QStringLiteral("*.ico")}, QDir::Files))
            paths << folder.filePath(name);
        QVERIFY(paths.size() > 40);
        for (const QString &path : paths) {
            QImageReader reader(path);
            const QImage image = reader.read();
            QVERIFY2(!image.isNull(), qPrintable(path + QStringLiteral(": ") + reader.errorString()));
            QVERIFY2(image.width() >= 16 && image.width() == image.height() && image.hasAlphaChannel(),
                     qPrintable(path));
        }
    }
};

KAL_WIDGET_TEST_MAIN(TstTableView)
#include "tst_tableview.moc"
