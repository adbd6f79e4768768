// What the user types into the editing dialogs is kept or dropped exactly as
// the button or key they press says: OK keeps a stored date when the typed
// one cannot be read, Escape cancels, Return never accepts from a field, an
// open grid cell is written when the dialog closes, and Cancel in the master
// data takes back removed companies too. Everything is driven by real clicks
// and keys on shown dialogs.
#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/editors/KalMasterDataDialog.h"
#include "gui/editors/KalStatusDialog.h"
#include "gui/textaids/KalDateEdit.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>
#include <QtTest>

namespace {

QPushButton *dialogButton(QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    auto *box = dialog.findChild<QDialogButtonBox *>();
    return box ? box->button(which) : nullptr;
}

// Opens the cell editor of `column` in the row of `id`.
QLineEdit *editCell(KalTableView *view, qint64 id, int column)
{
    if (!view->selectId(id))
        return nullptr;
    const QModelIndex index = view->currentIndex().sibling(view->currentIndex().row(), column);
    view->setCurrentIndex(index);
    view->edit(index);
    auto *editor = qobject_cast<QLineEdit *>(view->indexWidget(index));
    if (editor) {
        editor->setFocus();
        editor->selectAll();
    }
    return editor;
}

enum Way { MouseOk, KeyboardOk, ReturnInField };
enum Kind { DefectEditor, MasterData, MasterDataGrid, StatusGrid };

} // namespace

class TstDialogCommit : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;

    QVariant stored(const QString &sql, qint64 id) { return m_fx.value(sql, {{QStringLiteral("id"), id}}); }
    int formatWarnings() const { return m_prompt->titles().count(QStringLiteral("Format-Fehler")); }

    qint64 newDefect()
    {
        return KalDefects(*m_fx.project())
            .add({{"deadline_1", QDate(2031, 1, 2)}, {"roomname", "Küche"}, {"description", "Riss"}});
    }

private slots:
    void init()
    {
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_fx.open());
    }

    void cleanup() { m_fx.close(); }

    void unreadableDateKeepsStoredOne_data()
    {
        QTest::addColumn<QString>("typed"); // empty: the user empties the field
        QTest::addColumn<int>("way");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<QString>("stored");

        QTest::newRow("unreadable, OK by mouse") << "31.02.2020" << int(MouseOk) << false << "2031-01-02";
        QTest::newRow("unreadable, OK by keyboard") << "31.02.2020" << int(KeyboardOk) << false << "2031-01-02";
        QTest::newRow("unreadable, Return") << "12.13.2031" << int(ReturnInField) << false << "2031-01-02";
        QTest::newRow("emptied, OK by mouse") << "" << int(MouseOk) << true << "";
        QTest::newRow("new date, OK by keyboard") << "3.4.2032" << int(KeyboardOk) << true << "2032-04-03";
    }

    void unreadableDateKeepsStoredOne()
    {
        QFETCH(QString, typed);
        QFETCH(int, way);
        QFETCH(bool, closes);
        QFETCH(QString, stored);

        const qint64 id = newDefect();
        KalDefectEditor editor(m_fx.project(), m_fx.model("defect")->findRowById(id));
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        auto *field = editor.findChild<KalDateEdit *>(QStringLiteral("deDeadline1"));
        QPushButton *ok = dialogButton(editor, QDialogButtonBox::Ok);
        field->setFocus();
        field->selectAll();
        if (typed.isEmpty())
            QTest::keyClick(field, Qt::Key_Backspace);
        else
            QTest::keyClicks(field, typed);

        if (way == MouseOk) {
            QTest::mouseClick(ok, Qt::LeftButton);
        } else if (way == KeyboardOk) {
            ok->setFocus(Qt::TabFocusReason);
            QTest::keyClick(ok, Qt::Key_Space);
        } else {
            QTest::keyClick(field, Qt::Key_Return);
        }
        QCoreApplication::processEvents();

        QCOMPARE(editor.isVisible(), !closes);
        QCOMPARE(formatWarnings(), closes ? 0 : 1);
        if (!closes)
            QCOMPARE(field->text(), typed); // still there to be corrected
        QCOMPARE(this->stored("SELECT deadline_1 FROM defect WHERE id = :id", id).toString(), stored);
        if (!closes)
            QTest::mouseClick(dialogButton(editor, QDialogButtonBox::Cancel), Qt::LeftButton);
        QVERIFY(!editor.isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(formatWarnings(), closes ? 0 : 1); // none for leaving by Cancel
    }

    void escapeCancelsDefectEditor_data()
    {
        QTest::addColumn<QString>("field");
        QTest::newRow("room name") << "leRoomName";
        QTest::newRow("description") << "teDescription";
        QTest::newRow("deadline") << "deDeadline1";
    }

    void escapeCancelsDefectEditor()
    {
        QFETCH(QString, field);

        const qint64 id = newDefect();
        KalDefectEditor editor(m_fx.project(), m_fx.model("defect")->findRowById(id));
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        // A change made before the typing goes too.
        auto *room = editor.findChild<QLineEdit *>(QStringLiteral("leRoomName"));
        room->setFocus();
        QTest::keyClicks(room, QStringLiteral(" Nord"));
        auto *widget = editor.findChild<QWidget *>(field);
        widget->setFocus();
        QTest::keyClicks(widget, QStringLiteral("x"));
        // An open auto-text list takes the first Escape.
        if (QWidget *popup = QApplication::activePopupWidget()) {
            QTest::keyClick(popup, Qt::Key_Escape);
            QVERIFY(editor.isVisible());
        }
        QTest::keyClick(widget, Qt::Key_Escape);

        QVERIFY(!editor.isVisible());
        QCOMPARE(editor.result(), int(QDialog::Rejected));
        QCOMPARE(stored("SELECT roomname FROM defect WHERE id = :id", id).toString(), QStringLiteral("Küche"));
        QCOMPARE(stored("SELECT description FROM defect WHERE id = :id", id).toString(), QStringLiteral("Riss"));
    }

    void returnNeverAccepts_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("field");
        QTest::newRow("defect room name") << int(DefectEditor) << "leRoomName";
        QTest::newRow("defect instruction") << int(DefectEditor) << "leCorrectionInstruction";
        QTest::newRow("project name") << int(MasterData) << "leProjectName";
        QTest::newRow("company cell") << int(MasterDataGrid) << "company";
    }

    void returnNeverAccepts()
    {
        QFETCH(int, kind);
        QFETCH(QString, field);

        const qint64 defect = newDefect();
        const qint64 company = m_fx.addCompany(QStringLiteral("Alt GmbH"), QStringLiteral("Maler"), {{"pos", 1}});
        QVERIFY(m_fx.reselect());
        const QString projectName = m_fx.value("SELECT projectname FROM kal").toString();
        std::unique_ptr<QDialog> dialog;
        if (kind == DefectEditor)
            dialog.reset(new KalDefectEditor(m_fx.project(), m_fx.model("defect")->findRowById(defect)));
        else
            dialog.reset(new KalMasterDataDialog(m_fx.project()));
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        QWidget *widget = nullptr;
        if (kind == MasterDataGrid) {
            auto *master = static_cast<KalMasterDataDialog *>(dialog.get());
            master->setCurrentPage(KalMasterDataDialog::CompanyPage);
            widget = editCell(master->companyView(), company, m_fx.model("company")->fieldIndex(field));
        } else {
            widget = dialog->findChild<QWidget *>(field);
            widget->setFocus();
        }
        QVERIFY(widget);
        QTest::keyClicks(widget, QStringLiteral("Neu"));
        QTest::keyClick(widget, Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(dialog->isVisible());
        if (kind == MasterDataGrid)
            QCOMPARE(m_fx.model("company")
                         ->data(m_fx.model("company")->index(m_fx.model("company")->findRowById(company),
                                                             m_fx.model("company")->fieldIndex(field)),
                                Qt::EditRole)
                         .toString(),
                     QStringLiteral("Neu"));
        QTest::mouseClick(dialogButton(*dialog, QDialogButtonBox::Cancel), Qt::LeftButton);
        QVERIFY(!dialog->isVisible());
        dialog.reset();
        QCOMPARE(stored("SELECT company FROM company WHERE id = :id", company).toString(), QStringLiteral("Alt GmbH"));
        QCOMPARE(stored("SELECT roomname FROM defect WHERE id = :id", defect).toString(), QStringLiteral("Küche"));
        QCOMPARE(m_fx.value("SELECT projectname FROM kal").toString(), projectName);
    }

    void closingWritesOpenCell_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("byButton"); // else the window is closed
        QTest::newRow("status, Schließen") << int(StatusGrid) << true;
        QTest::newRow("status, window closed") << int(StatusGrid) << false;
        QTest::newRow("companies, OK") << int(MasterDataGrid) << true;
    }

    void closingWritesOpenCell()
    {
        QFETCH(int, kind);
        QFETCH(bool, byButton);

        const qint64 company = m_fx.addCompany(QStringLiteral("Alt GmbH"), QStringLiteral("Maler"), {{"pos", 1}});
        QVERIFY(m_fx.reselect());
        m_fx.project()->setModified(false);
        {
            std::unique_ptr<QDialog> dialog;
            QLineEdit *cell = nullptr;
            QAbstractButton *close = nullptr;
            if (kind == MasterDataGrid) {
                auto *master = new KalMasterDataDialog(m_fx.project());
                dialog.reset(master);
                dialog->show();
                QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
                master->setCurrentPage(KalMasterDataDialog::CompanyPage);
                cell = editCell(master->companyView(), company, m_fx.model("company")->fieldIndex("company"));
                close = dialogButton(*dialog, QDialogButtonBox::Ok);
            } else {
                auto *status = new KalStatusDialog(m_fx.project());
                dialog.reset(status);
                dialog->show();
                QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
                cell = editCell(status->tableView(), 1, m_fx.model("status")->fieldIndex("status"));
                close = dialog->findChild<QPushButton *>(QStringLiteral("pbClose"));
            }
            QVERIFY(cell);
            QTest::keyClicks(cell, QStringLiteral("Umbenannt"));
            if (byButton)
                QTest::mouseClick(close, Qt::LeftButton);
            else
                dialog->close();
            QVERIFY(!dialog->isVisible());
        } // gone before anything queued could run
        const QString sql = kind == MasterDataGrid ? QStringLiteral("SELECT company FROM company WHERE id = :id")
                                                   : QStringLiteral("SELECT status FROM status WHERE id = :id");
        QCOMPARE(stored(sql, kind == MasterDataGrid ? company : 1).toString(), QStringLiteral("Umbenannt"));
        QVERIFY(m_fx.project()->isModified());
    }

    void cancelTakesBackRemovedCompanies_data()
    {
        QTest::addColumn<bool>("renameOther");
        QTest::addColumn<bool>("ok");
        QTest::newRow("remove, Cancel") << false << false;
        QTest::newRow("rename, remove, Cancel") << true << false;
        QTest::newRow("remove, OK") << false << true;
        QTest::newRow("rename, remove, OK") << true << true;
    }

    void cancelTakesBackRemovedCompanies()
    {
        QFETCH(bool, renameOther);
        QFETCH(bool, ok);

        const qint64 used = m_fx.addCompany(QStringLiteral("Alt GmbH"), QStringLiteral("Maler"), {{"pos", 1}});
        const qint64 other = m_fx.addCompany(QStringLiteral("Bau AG"), QStringLiteral("Maurer"), {{"pos", 2}});
        QVERIFY(m_fx.reselect());
        for (int i = 0; i < 2; ++i)
            QVERIFY(KalDefects(*m_fx.project()).add({{"company_id", used}}) > 0);
        m_fx.project()->setModified(false);
        {
            KalMasterDataDialog dialog(m_fx.project());
            dialog.show();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            dialog.setCurrentPage(KalMasterDataDialog::CompanyPage);
            KalTableView *view = dialog.companyView();
            if (renameOther) {
                QLineEdit *cell = editCell(view, other, m_fx.model("company")->fieldIndex("company"));
                QVERIFY(cell);
                QTest::keyClicks(cell, QStringLiteral("Neu AG"));
                QTest::keyClick(cell, Qt::Key_Tab);
            }
            QVERIFY(view->selectId(used));
            m_prompt->queueAnswerIndex(0);
            QTest::mouseClick(view->deleteButton(), Qt::LeftButton);
            QVERIFY(m_prompt->hasTitle(QStringLiteral("Firma entfernen")));
            QTest::mouseClick(dialogButton(dialog, ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                              Qt::LeftButton);
            QVERIFY(!dialog.isVisible());
        }
        QCOMPARE(m_fx.value("SELECT COUNT(*) FROM company WHERE id = " + QString::number(used)).toInt(), ok ? 0 : 1);
        QCOMPARE(m_fx.value("SELECT COUNT(*) FROM defect WHERE company_id = " + QString::number(used)).toInt(),
                 ok ? 0 : 2);
        QCOMPARE(stored("SELECT company FROM company WHERE id = :id", other).toString(),
                 ok && renameOther ? QStringLiteral("Neu AG") : QStringLiteral("Bau AG"));
        QCOMPARE(m_fx.project()->isModified(), ok);
        // The shared models show the same as the file.
        KalSqlTableModel *defects = m_fx.model("defect");
        int shown = 0;
        for (int row = 0; row < defects->rowCount(); ++row)
            shown += defects->index(row, defects->fieldIndex("company_id")).data(Qt::EditRole).toLongLong() == used;
        QCOMPARE(shown, ok ? 0 : 2);
        QCOMPARE(m_fx.model("company")->findRowById(used) >= 0, !ok);
        QVERIFY(!m_fx.model("company")->isDirty());
    }
};

KAL_WIDGET_TEST_MAIN(TstDialogCommit)
#include "tst_dialogcommit.moc"
