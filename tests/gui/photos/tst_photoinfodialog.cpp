#include "core/photos/KalPhotos.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "gui/editors/KalDefectEditor.h"
#include "gui/photos/KalPhotoEditor.h"
#include "gui/photos/KalPhotoInfoDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "gui/widgets/KalTableView.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

namespace {
const QString kPortraitNotice = QStringLiteral(
    "Bitte nehmen Sie nur dann Fotos im Hochformat auf, wenn das Motiv es nicht anders zulässt. Die beste "
    "Platzausnutzung im Bericht erreichen Sie mit Fotos im Querformat. Hochformate mit Seitenverhältnissen größer 4:3 "
    "können aus Platzgründen zugeschnitten werden.");
const QDate kFileDate(2021, 3, 4);
} // namespace

class TstPhotoInfoDialog : public QObject
{
    Q_OBJECT

    KalTestProject m_project;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    qint64 m_defect = -1;

    // A file in the test folder, last modified on kFileDate, described as "WxH",
    // "empty" or "truncated".
    QString makeFile(const QString &name, const QString &content)
    {
        const QString path = m_dir.filePath(name);
        QByteArray bytes;
        if (content == QLatin1String("truncated")) {
            bytes = KalTestImages::jpeg(KalTestImages::marked(QSize(400, 300)));
            bytes.chop(bytes.size() / 2);
        } else if (content != QLatin1String("empty")) {
            const QStringList wh = content.split('x');
            bytes = KalTestImages::jpeg(KalTestImages::marked(QSize(wh.at(0).toInt(), wh.at(1).toInt())));
        }
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
            return QString();
        file.setFileTime(QDateTime(kFileDate, QTime(12, 0)), QFileDevice::FileModificationTime);
        return path;
    }

    int storedCount() { return m_project.count("photo_info", QStringLiteral("defect_id = %1").arg(m_defect)); }
    int imageCount() { return m_project.field("defect", m_defect, "image_cnt").toInt(); }

    QList<qint64> addPhotos(KalPhotoInfoDialog &dialog, const QStringList &contents)
    {
        QStringList files;
        for (int i = 0; i < contents.size(); ++i)
            files << makeFile(QStringLiteral("Foto \"%1\" Küche.jpg").arg(i), contents.at(i));
        KalFileDialog::queueChoices(files);
        dialog.findChild<QPushButton *>("pbAddImages")->click();
        return KalPhotos(m_project.project()).photoIds(m_defect, nullptr);
    }

    static KalTableView *list(QDialog &dialog) { return dialog.findChild<KalTableView *>("tvImageInfo"); }

    static QSize preview(QDialog &dialog)
    {
        for (QGraphicsItem *item : dialog.findChild<QGraphicsView *>("gvImage")->scene()->items()) {
            if (auto *pixmap = dynamic_cast<QGraphicsPixmapItem *>(item))
                return pixmap->pixmap().size();
        }
        return QSize();
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void init()
    {
        QVERIFY(m_project.open());
        m_defect = m_project.addDefect();
        m_prompt = KalScriptedPrompt::install();
        QSettings().setValue("Foto/Imagesize", 1000);
    }

    void cleanup()
    {
        KalFileDialog::clearQueue();
        m_project.close();
    }

    void addPhotos_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("stored");
        QTest::addColumn<QStringList>("titles"); // messages shown
        QTest::newRow("three portraits, one notice")
            << QStringList{"600x800", "1000x1200", "300x301"} << 3 << QStringList{"Fotoimport"};
        QTest::newRow("bad files alone fail") << QStringList{"empty", "800x600", "truncated", "500x900"} << 2
                                              << QStringList{"Fehler Fotoimport", "Fehler Fotoimport", "Fotoimport"};
    }

    void addPhotos()
    {
        QFETCH(QStringList, files);
        QFETCH(int, stored);
        QFETCH(QStringList, titles);

        KalPhotoInfoDialog dialog(m_project.project(), m_defect);
        dialog.show();
        const QList<qint64> ids = addPhotos(dialog, files);

        QCOMPARE(m_prompt->titles(), titles);
        if (titles.contains("Fehler Fotoimport")) {
            QCOMPARE(m_prompt->texts().first(),
                     QStringLiteral("Das Foto %1 konnte nicht importiert werden.")
                         .arg(QDir::toNativeSeparators(m_dir.filePath("Foto \"0\" Küche.jpg"))));
        }
        if (titles.contains("Fotoimport"))
            QCOMPARE(m_prompt->texts().last(), kPortraitNotice);

        QCOMPARE(ids.size(), stored);
        QCOMPARE(dialog.photoCount(), stored);
        QCOMPARE(list(dialog)->model()->rowCount(), stored);
        // The list shows dates as the user types them, not as stored.
        QAbstractItemModel *shown = list(dialog)->model();
        for (int column = 0; column < shown->columnCount(); ++column) {
            if (shown->headerData(column, Qt::Horizontal).toString() == QLatin1String("Datum"))
                QCOMPARE(shown->index(0, column).data().toString(), QStringLiteral("04.03.2021"));
        }
        // The last added photo is selected and shown.
        QCOMPARE(list(dialog)->selectedIds(), QList<qint64>{ids.last()});
        const qint64 image = m_project.field("photo_info", ids.last(), "image_id").toLongLong();
        QCOMPARE(preview(dialog), QSize(m_project.field("image", image, "image_width").toInt(),
                                        m_project.field("image", image, "image_height").toInt()));
    }

    void removePhotos_data()
    {
        QTest::addColumn<QList<int>>("selected"); // rows of the five photos
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("selectedAfter"); // row of the photo selected after, among the original five
        QTest::newRow("one, Delete key") << QList<int>{0} << "OK" << 1;
        QTest::newRow("one, Abort") << QList<int>{1} << "Abbrechen" << 1;
        QTest::newRow("two, OK") << QList<int>{2, 3} << "OK" << 4;
        QTest::newRow("last two: the one before is selected") << QList<int>{3, 4} << "OK" << 2;
    }

    // Which photos a removal keeps in the file is proven in core; here the
    // question, the answer and the selection after it.
    void removePhotos()
    {
        QFETCH(QList<int>, selected);
        QFETCH(QString, answer);
        QFETCH(int, selectedAfter);
        const QString one =
            QStringLiteral("Sie haben 1 Foto zum Löschen ausgewählt.\nSoll dieses Foto tatsächlich gelöscht werden?");
        const QString two =
            QStringLiteral("Sie haben 2 Fotos zum Löschen ausgewählt.\nSollen diese Foto tatsächlich gelöscht werden?");

        QList<qint64> ids;
        {
            KalPhotoInfoDialog dialog(m_project.project(), m_defect);
            ids = addPhotos(dialog, {"400x300", "400x300", "400x300", "400x300", "400x300"});
        }
        m_prompt->clear();

        KalPhotoInfoDialog dialog(m_project.project(), m_defect);
        dialog.show();
        QList<qint64> chosen;
        for (int row : selected)
            chosen << ids.at(row);
        QCOMPARE(list(dialog)->selectIds(chosen), selected.size());
        m_prompt->queueAnswer(answer);
        if (QByteArray(QTest::currentDataTag()).contains("Delete key")) {
            list(dialog)->setFocus();
            QTest::keyClick(list(dialog), Qt::Key_Delete);
        } else {
            dialog.findChild<QPushButton *>("pbRemoveImages")->click();
        }

        QCOMPARE(m_prompt->titles(), QStringList{selected.size() == 1 ? "Foto löschen" : "Fotos löschen"});
        QCOMPARE(m_prompt->texts(), QStringList{selected.size() == 1 ? one : two});
        QCOMPARE(m_prompt->shown().first().buttons, (QStringList{"OK", "Abbrechen"}));
        const bool removed = answer == QLatin1String("OK");
        const int left = removed ? 5 - selected.size() : 5;
        QCOMPARE(storedCount(), left);
        QCOMPARE(list(dialog)->model()->rowCount(), left);
        QCOMPARE(list(dialog)->selectedIds(), removed ? QList<qint64>{ids.at(selectedAfter)} : chosen);
    }

    // The turning rules are proven in core; here the menu entry reaches them.
    void rotateFromTheMenu()
    {
        const QString action = QStringLiteral("Bild um 90° nach links drehen");
        const QSize size(600, 800);
        const int corner = 3;

        KalPhotoInfoDialog dialog(m_project.project(), m_defect);
        dialog.show();
        const QList<qint64> ids = addPhotos(dialog, {"800x600", "640x480"});
        QVERIFY(list(dialog)->selectId(ids.first()));
        QAction *turn = nullptr;
        for (QAction *a : dialog.findChild<QGraphicsView *>("gvImage")->actions()) {
            if (a->text() == action)
                turn = a;
        }
        QVERIFY(turn);
        turn->trigger();

        const qint64 image = m_project.field("photo_info", ids.first(), "image_id").toLongLong();
        QString error;
        const QImage stored =
            KalPictureStore(m_project.project()->database(), KalPictureStore::Kind::Photo).load(image, &error);
        QCOMPARE(stored.size(), size);
        QCOMPARE(KalTestImages::redCorner(stored), corner);
        QCOMPARE(preview(dialog), size);
        QCOMPARE(list(dialog)->selectedIds(), QList<qint64>{ids.first()});
        // The other photo stays as it was.
        const qint64 other = m_project.field("photo_info", ids.last(), "image_id").toLongLong();
        QCOMPARE(m_project.field("image", other, "image_width").toInt(), 640);
    }

    // The editor opened from the list stores what was applied, and nothing
    // when the user leaves it unchanged or discards the changes.
    void editorResultIsStored_data()
    {
        QTest::addColumn<QString>("closeWith");
        QTest::addColumn<bool>("turn");
        QTest::addColumn<QSize>("size");
        QTest::newRow("turned, OK") << "pbOk" << true << QSize(600, 800);
        QTest::newRow("unchanged, OK") << "pbOk" << false << QSize(800, 600);
        QTest::newRow("turned, discarded") << "pbCancel" << true << QSize(800, 600);
    }

    void editorResultIsStored()
    {
        QFETCH(QString, closeWith);
        QFETCH(bool, turn);
        QFETCH(QSize, size);

        KalPhotoInfoDialog dialog(m_project.project(), m_defect);
        dialog.show();
        const QList<qint64> ids = addPhotos(dialog, {"800x600"});
        QVERIFY(list(dialog)->selectId(ids.first()));
        const qint64 image = m_project.field("photo_info", ids.first(), "image_id").toLongLong();
        const QByteArray before = m_project.field("image", image, "image").toByteArray();

        KalDialogAnswer<KalPhotoEditor> editor([&](KalPhotoEditor *e) {
            if (turn)
                e->findChild<QAbstractButton *>("tbImageRotateRight")->click();
            m_prompt->queueAnswerIndex(0);
            e->findChild<QPushButton *>(closeWith)->click();
        });
        auto *start = dialog.findChild<QPushButton *>("pbStartPhotoEditor");
        QVERIFY(start->isEnabled());
        start->click();
        QVERIFY(editor.seen());

        QCOMPARE(m_project.field("image", image, "image_width").toInt(), size.width());
        QCOMPARE(m_project.field("image", image, "image_height").toInt(), size.height());
        const bool changed = m_project.field("image", image, "image").toByteArray() != before;
        QCOMPARE(changed, size != QSize(800, 600));
        QCOMPARE(m_project.field("image", image, "thumbnail_width").toInt(), changed ? 180 : 240);
        QCOMPARE(preview(dialog), size);
    }

    // A caption typed into the list is stored at once and marks the photo as
    // changed here (the comment column is edited the same way).
    void captionIsStored()
    {
        const QString column = QStringLiteral("caption");
        KalPhotoInfoDialog dialog(m_project.project(), m_defect);
        dialog.show();
        const qint64 id = addPhotos(dialog, {"400x300"}).first();
        KalTableView *view = list(dialog);
        const QModelIndex cell = view->model()->index(0, m_project.model("photo_info")->fieldIndex(column));
        view->setCurrentIndex(cell);
        view->edit(cell);
        QWidget *editor = view->indexWidget(cell);
        QVERIFY(editor);
        QTest::keyClicks(editor, QStringLiteral("Riss 2. OG"));
        // Closing the list ends the edit as the user's next click would.
        dialog.findChild<QPushButton *>("pbClose")->click();
        QCOMPARE(m_project.field("photo_info", id, column).toString(), QStringLiteral("Riss 2. OG"));
        QCOMPARE(m_project.field("photo_info", id, "site_journal_data_modified").toInt(), 1);
    }

    void dragReordersAndDropAdds()
    {
        KalSqlTableModel *photos = m_project.model("photo_info");
        photos->setFilter("defect_id = 4711");
        QSettings().remove("PhotoInfoDialog/Geometry");
        QList<qint64> ids;
        {
            KalPhotoInfoDialog dialog(m_project.project(), m_defect);
            dialog.show();
            ids = addPhotos(dialog, {"400x300", "400x300", "400x300"});
            QAbstractItemModel *model = list(dialog)->model();

            // The first photo dropped below the last.
            std::unique_ptr<QMimeData> drag(model->mimeData({model->index(0, 0)}));
            QVERIFY(model->dropMimeData(drag.get(), Qt::CopyAction, 3, 0, QModelIndex()));
            QCOMPARE(KalPhotos(m_project.project()).photoIds(m_defect, nullptr),
                     (QList<qint64>{ids.at(1), ids.at(2), ids.at(0)}));
            // The list follows once the drop has ended, with the moved photo selected.
            QTRY_COMPARE(list(dialog)->selectedIds(), QList<qint64>{ids.at(0)});
            QCOMPARE(list(dialog)->selectionModel()->selectedRows().value(0).row(), 2);
            // The last one dropped on the first takes its place.
            drag.reset(model->mimeData({model->index(2, 0)}));
            QVERIFY(model->dropMimeData(drag.get(), Qt::CopyAction, -1, -1, model->index(0, 0)));
            QCOMPARE(KalPhotos(m_project.project()).photoIds(m_defect, nullptr), ids);
            QTRY_COMPARE(list(dialog)->selectionModel()->selectedRows().value(0).row(), 0);

            // Files dropped from outside are added.
            QMimeData files;
            files.setUrls({QUrl::fromLocalFile(makeFile("drop.jpg", "640x480"))});
            QVERIFY(model->dropMimeData(&files, Qt::CopyAction, -1, -1, QModelIndex()));
            QTRY_COMPARE(storedCount(), 4);
            QCOMPARE(imageCount(), 4);
            dialog.findChild<QPushButton *>("pbClose")->click();
        }
        // The shared model has its own filter back; the geometry is kept.
        QCOMPARE(photos->filter(), QStringLiteral("defect_id = 4711"));
        QVERIFY(!QSettings().value("PhotoInfoDialog/Geometry").toByteArray().isEmpty());
    }

    void defectEditorKeepsCount_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::newRow("OK") << true;
        QTest::newRow("Cancel") << false;
    }

    void defectEditorKeepsCount()
    {
        QFETCH(bool, ok);
        KalSqlTableModel *defects = m_project.model("defect");
        QVERIFY(m_project.reselect());
        const int row = defects->findRowById(m_defect);
        KalDefectEditor editor(m_project.project(), row);
        editor.show();
        auto *button = editor.findChild<QPushButton *>("pbPhotoEditor");
        QCOMPARE(button->text(), QStringLiteral("Fotos hinzufügen"));
        // Cancel drops what else was edited; the photos stay.
        if (!ok)
            editor.findChild<QLineEdit *>("leRoomName")->setText("Bad");

        KalDialogAnswer<KalPhotoInfoDialog> photos([this](KalPhotoInfoDialog *dialog) {
            addPhotos(*dialog, {"400x300", "300x400"});
            dialog->findChild<QPushButton *>("pbClose")->click();
        });
        button->click();
        QVERIFY(photos.seen());
        QCOMPARE(editor.findChild<QLineEdit *>("lePhotos")->text(), QStringLiteral("2"));
        QCOMPARE(button->text(), QStringLiteral("Fotos bearbeiten"));

        kalPress(&editor, ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);

        QCOMPARE(storedCount(), 2);
        QCOMPARE(imageCount(), 2);
        // The grid's camera column shows the stored count.
        const int after = defects->findRowById(m_defect);
        QCOMPARE(defects->data(defects->index(after, defects->fieldIndex("image_cnt")), Qt::EditRole).toInt(), 2);
        QCOMPARE(m_project.field("defect", m_defect, "roomname").toString(), QString());
        // OK counts new photos as a change made here.
        if (ok)
            QCOMPARE(m_project.field("defect", m_defect, "site_journal_data_modified").toInt(), 1);
    }
};

KAL_WIDGET_TEST_MAIN(TstPhotoInfoDialog)
#include "tst_photoinfodialog.moc"
