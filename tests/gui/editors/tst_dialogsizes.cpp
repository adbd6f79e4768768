#include "core/project/KalDefects.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/textaids/KalCompleterDialog.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QSettings>
#include <QTableView>
#include <QTimer>

// Dialogs open large enough to read what they show.
class TstDialogSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KalScriptedPrompt::install(); }

    void completerDialogShowsEveryField_data()
    {
        QTest::addColumn<bool>("tinyGeometryStored");
        QTest::newRow("first opening") << false;
        QTest::newRow("after being shrunk") << true;
    }

    void completerDialogShowsEveryField()
    {
        QFETCH(bool, tinyGeometryStored);
        QSettings().clear();
        if (tinyGeometryStored) {
            QDialog tiny;
            tiny.resize(120, 80);
            QSettings().setValue(QStringLiteral("CompleterDialog/Geometry"), tiny.saveGeometry());
        }
        KalCompleterDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTableView *fields = dialog.completerView();
        const QFontMetrics metrics(fields->font());
        QVERIFY(fields->model()->rowCount() > 5);
        for (int row = 0; row < fields->model()->rowCount(); ++row) {
            const QModelIndex index = fields->model()->index(row, 0);
            const QString text = index.data().toString();
            QVERIFY2(fields->visualRect(index).width() >= metrics.horizontalAdvance(text) + 8, qPrintable(text));
        }
        QVERIFY(dialog.valuesView()->width() >= metrics.averageCharWidth() * 30);
        QVERIFY(fields->viewport()->height() >= metrics.height() * 8);
        dialog.reject();
    }

    void newStatusShowsItsHint()
    {
        KalTestProject fx;
        QVERIFY(fx.open());
        const qint64 id = KalDefects(*fx.project()).add();
        QVERIFY(id > 0);
        KalDefectEditor editor(fx.project(), fx.model(QStringLiteral("defect"))->findRowById(id));
        auto *status = editor.findChild<QComboBox *>(QStringLiteral("cbxStatus"));
        QVERIFY(status);
        const QString hint = QStringLiteral("Sie können hier einen neuen Status für dieses Projekt anlegen");
        bool hintReadable = false;
        QTimer poll;
        poll.setInterval(10);
        connect(&poll, &QTimer::timeout, [&] {
            auto *input = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
            if (!input)
                return;
            poll.stop();
            for (QLabel *label : input->findChildren<QLabel *>()) {
                hintReadable = hintReadable || (label->isVisible() && label->text().contains(hint) &&
                                                label->width() >= label->fontMetrics().horizontalAdvance(hint));
            }
            input->reject();
        });
        poll.start();
        const int index = status->findData(KalDefectEditor::NewEntry);
        QVERIFY(index >= 0);
        emit status->activated(index);
        QVERIFY(hintReadable);
        editor.reject();
        fx.close();
    }
};

KAL_WIDGET_TEST_MAIN(TstDialogSizes)

#include "tst_dialogsizes.moc"
