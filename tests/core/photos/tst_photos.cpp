// The rules of a defect's photo list: what adding, removing, turning and
// ordering photos leave in the project, also when the database fails.
#include "core/photos/KalPhotos.h"
#include "core/photos/KalPictureStore.h"
#include "core/project/KalProject.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using KalTestImages::Exif;

class TstPhotos : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;
    QTemporaryDir m_dir;

    QString writeFile(const QString &name, const QByteArray &data, const QDateTime &modified = QDateTime())
    {
        const QString path = m_dir.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
            return QString();
        file.flush();
        if (modified.isValid())
            file.setFileTime(modified, QFileDevice::FileModificationTime);
        return path;
    }

    QString photo(const QString &name, int orientation = 1)
    {
        Exif exif;
        exif.orientation = orientation;
        return writeFile(name, KalTestImages::jpeg(KalTestImages::marked({400, 300}), exif));
    }

    // The defect's photos in list order.
    QList<qint64> ids(qint64 defect)
    {
        QString error;
        return KalPhotos(m_fx.project()).photoIds(defect, &error);
    }
    QVariant photoField(qint64 id, const QString &column)
    {
        return m_fx.field(QStringLiteral("photo_info"), id, column);
    }
    int imageCount(qint64 defect)
    {
        return m_fx.value(QStringLiteral("SELECT image_cnt FROM defect WHERE id = :id"), {{"id", defect}}).toInt();
    }
    void checkCounts(qint64 defect)
    {
        QCOMPARE(imageCount(defect),
                 m_fx.count(QStringLiteral("photo_info"), QStringLiteral("defect_id = %1").arg(defect)));
        // No image is left without its photo, none of a photo is missing.
        QCOMPARE(m_fx.count(QStringLiteral("image")), m_fx.count(QStringLiteral("photo_info")));
        QCOMPARE(m_fx.count(QStringLiteral("photo_info"), QStringLiteral("image_id NOT IN (SELECT id FROM image)")), 0);
    }
    QList<qint64> addPhotos(qint64 defect, int n)
    {
        QStringList files;
        for (int i = 0; i < n; ++i)
            files << photo(QStringLiteral("p%1.jpg").arg(i));
        return KalPhotos(m_fx.project()).addFiles(defect, files).photoInfoIds;
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(m_dir.isValid());
    }

    void init()
    {
        m_prompt->clear();
        QVERIFY(m_fx.open());
    }

    void cleanup() { m_fx.close(); }

    void addWithOneBadFile()
    {
        const qint64 defect = m_fx.addDefect();
        m_fx.project()->setModified(false);
        const QString bad = writeFile(QStringLiteral("kaputt \"Ö\".jpg"), QByteArray("\xFF\xD8\xFF\xE0 not more"));
        const QStringList files{photo(QStringLiteral("a.jpg")), bad, photo(QStringLiteral("b.jpg"), 6),
                                photo(QStringLiteral("c.jpg"), 8)};
        const KalPhotoImport result = KalPhotos(m_fx.project()).addFiles(defect, files);
        QCOMPARE(result.photoInfoIds.size(), 3);
        QCOMPARE(result.failedFiles, QStringList{bad});
        QVERIFY(result.anyPortrait);
        QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Fehler Fotoimport")});
        QCOMPARE(m_prompt->texts(),
                 QStringList{
                     QStringLiteral("Das Foto %1 konnte nicht importiert werden.").arg(QDir::toNativeSeparators(bad))});
        QCOMPARE(ids(defect), result.photoInfoIds);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(photoField(result.photoInfoIds.at(i), "pos").toInt(), i + 1);
        QVERIFY(m_fx.project()->isModified());
        checkCounts(defect);
    }

    void landscapeOnlyIsNoPortrait()
    {
        const qint64 defect = m_fx.addDefect();
        const KalPhotoImport result =
            KalPhotos(m_fx.project())
                .addFiles(defect, {photo(QStringLiteral("a.jpg"), 3), photo(QStringLiteral("b.jpg"), 5)});
        QCOMPARE(result.photoInfoIds.size(), 2);
        QVERIFY(!result.anyPortrait);
    }

    void addAfterTheLast()
    {
        const qint64 defect = m_fx.addDefect();
        const qint64 other = m_fx.addDefect({{QStringLiteral("number"), QStringLiteral("2")}});
        addPhotos(other, 1);
        // A list with gaps, as an import may leave it.
        const qint64 first = addPhotos(defect, 1).value(0);
        QVERIFY(m_fx.exec(QStringLiteral("UPDATE photo_info SET pos = 7 WHERE id = :id"), {{"id", first}}));
        const qint64 next = addPhotos(defect, 1).value(0);
        QCOMPARE(photoField(next, "pos").toInt(), 8);
        QCOMPARE(imageCount(other), 1);
        QCOMPARE(imageCount(defect), 2);
    }

    void siteJournalPhotoComesAndGoes()
    {
        const qint64 defect = m_fx.addDefect();
        const qint64 own = addPhotos(defect, 1).value(0);
        QString error;
        KalPhotoInfo info;
        info.imageId = m_fx.project()->insertImageFromFile(photo(QStringLiteral("sj.jpg")), &error);
        info.defectId = defect;
        info.siteJournalId = 77;
        info.deleteOnImport = 0;
        const qint64 id = m_fx.project()->insertPhotoInfo(info, &error);
        QVERIFY2(id > 0, qPrintable(error));
        QCOMPARE(ids(defect), (QList<qint64>{own, id}));
        checkCounts(defect);
        QVERIFY(KalPhotos(m_fx.project()).remove({id}, &error));
        QCOMPARE(m_fx.value(QStringLiteral("SELECT defect_id || ':' || site_journal_id FROM "
                                           "deleted_site_journal_photo_info"))
                     .toString(),
                 QStringLiteral("%1:77").arg(defect));
        checkCounts(defect);
    }

    void photoDate_data()
    {
        QTest::addColumn<QString>("exifDate");
        QTest::addColumn<QDate>("stored");
        const QDateTime fileTime(QDate(2021, 3, 4), QTime(12, 0));
        QTest::newRow("camera date") << "2024:05:01 10:11:12" << QDate(2024, 5, 1);
        QTest::newRow("no date: file date") << "" << fileTime.date();
        QTest::newRow("blank date: file date") << "    :  :     :  :  " << fileTime.date();
        QTest::newRow("invalid date: file date") << "2024:02:30 10:11:12" << fileTime.date();
        QTest::newRow("other notation: file date") << "01.05.2024 10:11" << fileTime.date();
    }
    void photoDate()
    {
        QFETCH(QString, exifDate);
        QFETCH(QDate, stored);
        const qint64 defect = m_fx.addDefect();
        Exif exif;
        exif.dateTaken = exifDate;
        const QString file =
            writeFile(QStringLiteral("d.jpg"), KalTestImages::jpeg(KalTestImages::marked({80, 60}), exif),
                      QDateTime(QDate(2021, 3, 4), QTime(12, 0)));
        const qint64 id = KalPhotos(m_fx.project()).addFiles(defect, {file}).photoInfoIds.value(0);
        QCOMPARE(photoField(id, "date").toDate(), stored);
        QCOMPARE(photoField(id, "site_journal_id").toInt(), -1);
    }

    void remove_data()
    {
        QTest::addColumn<QList<int>>("siteJournalIds"); // of four photos
        QTest::addColumn<QList<int>>("removed");        // indexes
        QTest::addColumn<int>("tombstones");
        QTest::newRow("own photo") << QList<int>{-1, -1, -1, -1} << QList<int>{1} << 0;
        QTest::newRow("journal photo") << QList<int>{-1, 55, -1, -1} << QList<int>{1} << 1;
        QTest::newRow("mixed, several") << QList<int>{12, -1, 13, -1} << QList<int>{0, 1, 2} << 2;
        QTest::newRow("all") << QList<int>{-1, 9, -1, -1} << QList<int>{3, 2, 1, 0} << 1;
    }
    void remove()
    {
        QFETCH(QList<int>, siteJournalIds);
        QFETCH(QList<int>, removed);
        QFETCH(int, tombstones);
        const qint64 defect = m_fx.addDefect();
        const QList<qint64> photos = addPhotos(defect, 4);
        QCOMPARE(photos.size(), 4);
        for (int i = 0; i < 4; ++i)
            QVERIFY(m_fx.exec(QStringLiteral("UPDATE photo_info SET site_journal_id = :s WHERE id = :id"),
                              {{"s", siteJournalIds.at(i)}, {"id", photos.at(i)}}));
        QList<qint64> doomed;
        QList<qint64> kept = photos;
        for (int index : removed) {
            doomed << photos.at(index);
            kept.removeOne(photos.at(index));
        }
        m_fx.project()->setModified(false);
        QString error;
        QVERIFY2(KalPhotos(m_fx.project()).remove(doomed, &error), qPrintable(error));
        QCOMPARE(ids(defect), kept);
        for (int i = 0; i < kept.size(); ++i)
            QCOMPARE(photoField(kept.at(i), "pos").toInt(), i + 1);
        QCOMPARE(m_fx.count(QStringLiteral("deleted_site_journal_photo_info"),
                            QStringLiteral("defect_id = %1 AND site_journal_id <> -1").arg(defect)),
                 tombstones);
        QVERIFY(m_fx.project()->isModified());
        checkCounts(defect);
    }

    void databaseFaultsChangeNothing_data()
    {
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<QString>("operation");
        for (const auto &row :
             {std::make_pair("add: count fails", "BEFORE UPDATE ON defect"),
              std::make_pair("add: photo row fails", "BEFORE INSERT ON photo_info"),
              std::make_pair("remove: tombstone fails", "BEFORE INSERT ON deleted_site_journal_photo_info"),
              std::make_pair("remove: count fails", "BEFORE UPDATE ON defect"),
              std::make_pair("rotate: flag fails", "BEFORE UPDATE ON photo_info"),
              std::make_pair("move: fails half-way", "BEFORE UPDATE OF pos ON photo_info WHEN NEW.pos = 3")})
            QTest::newRow(row.first) << QString(row.second) << QString(row.first).section(':', 0, 0);
    }
    void databaseFaultsChangeNothing()
    {
        QFETCH(QString, trigger);
        QFETCH(QString, operation);
        const qint64 defect = m_fx.addDefect();
        const QList<qint64> photos = addPhotos(defect, 3);
        QVERIFY(m_fx.exec(QStringLiteral("UPDATE photo_info SET site_journal_id = 4")));
        const auto state = [&] {
            return m_fx.value(QStringLiteral(
                                  "SELECT group_concat(id || ':' || pos || ':' || image_id, ',') FROM photo_info"))
                       .toString() +
                   m_fx.value(QStringLiteral("SELECT group_concat(hex(thumbnail), ',') FROM image")).toString() +
                   m_fx.value(QStringLiteral("SELECT image_cnt FROM defect")).toString() +
                   QString::number(m_fx.count(QStringLiteral("deleted_site_journal_photo_info")));
        };
        const QString before = state();
        QVERIFY(
            m_fx.exec(QStringLiteral("CREATE TEMP TRIGGER fault %1 BEGIN SELECT RAISE(ABORT, 'disk I/O error'); END")
                          .arg(trigger)));
        m_prompt->clear();
        KalPhotos photoList(m_fx.project());
        QString error;
        if (operation == QLatin1String("add")) {
            const KalPhotoImport result = photoList.addFiles(defect, {photo(QStringLiteral("x.jpg"))});
            QVERIFY(result.photoInfoIds.isEmpty());
            QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Datenbankfehler")});
            QVERIFY(m_prompt->texts().value(0).contains(QLatin1String("disk I/O error")));
        } else if (operation == QLatin1String("remove")) {
            QVERIFY(!photoList.remove({photos.at(0), photos.at(2)}, &error));
        } else if (operation == QLatin1String("rotate")) {
            QVERIFY(!photoList.rotate(photos.at(1), 90, &error));
        } else {
            QVERIFY(!photoList.move(photos.at(0), 2, &error));
        }
        QCOMPARE(m_fx.project()->transactions().depth(), 0);
        QVERIFY(m_fx.exec(QStringLiteral("DROP TRIGGER fault")));
        QCOMPARE(state(), before);
    }

    void rotate_data()
    {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("corner");
        QTest::newRow("right") << 90 << QSize(300, 400) << 1;
        QTest::newRow("left") << -90 << QSize(300, 400) << 3;
        QTest::newRow("left as 270") << 270 << QSize(300, 400) << 3;
        QTest::newRow("half") << 180 << QSize(400, 300) << 2;
    }
    void rotate()
    {
        QFETCH(int, degrees);
        QFETCH(QSize, size);
        QFETCH(int, corner);
        const qint64 defect = m_fx.addDefect();
        const qint64 id = addPhotos(defect, 1).value(0);
        QString error;
        QVERIFY2(KalPhotos(m_fx.project()).rotate(id, degrees, &error), qPrintable(error));
        const qint64 imageId = photoField(id, "image_id").toLongLong();
        const QImage stored =
            KalPictureStore(m_fx.project()->database(), KalPictureStore::Kind::Photo).load(imageId, &error);
        QCOMPARE(stored.size(), size);
        QCOMPARE(KalTestImages::redCorner(stored), corner);
        QImage thumbnail;
        thumbnail.loadFromData(m_fx.field(QStringLiteral("image"), imageId, QStringLiteral("thumbnail")).toByteArray());
        QCOMPARE(KalTestImages::redCorner(thumbnail), corner);
        QCOMPARE(photoField(id, "site_journal_data_modified").toInt(), 1);
    }

    void move_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QList<int>>("order");
        QTest::newRow("first to last") << 0 << 3 << QList<int>{1, 2, 3, 0};
        QTest::newRow("last to first") << 3 << 0 << QList<int>{3, 0, 1, 2};
        QTest::newRow("middle down") << 1 << 2 << QList<int>{0, 2, 1, 3};
        QTest::newRow("beyond the end") << 1 << 99 << QList<int>{0, 2, 3, 1};
        QTest::newRow("before the start") << 2 << -5 << QList<int>{2, 0, 1, 3};
        QTest::newRow("same place") << 2 << 2 << QList<int>{0, 1, 2, 3};
    }
    void move()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QList<int>, order);
        const qint64 defect = m_fx.addDefect();
        const QList<qint64> photos = addPhotos(defect, 4);
        QString error;
        m_fx.project()->setModified(false);
        QVERIFY2(KalPhotos(m_fx.project()).move(photos.at(from), to, &error), qPrintable(error));
        QList<qint64> expected;
        for (int index : order)
            expected << photos.at(index);
        QCOMPARE(ids(defect), expected);
        QCOMPARE(m_fx.project()->isModified(), expected != photos);
        QCOMPARE(m_fx.value(QStringLiteral("SELECT group_concat(pos) FROM (SELECT pos FROM photo_info ORDER BY pos)"))
                     .toString(),
                 QStringLiteral("1,2,3,4"));
    }

    void unknownDefectOrPhoto()
    {
        QString error;
        KalPhotos photoList(m_fx.project());
        QVERIFY(photoList.addFiles(4711, {photo(QStringLiteral("a.jpg"))}).photoInfoIds.isEmpty());
        QCOMPARE(m_prompt->titles(), QStringList{QStringLiteral("Datenbankfehler")});
        QCOMPARE(m_fx.count(QStringLiteral("image")), 0);
        QCOMPARE(m_fx.count(QStringLiteral("photo_info")), 0);
        QVERIFY(!photoList.rotate(4711, 90, &error));
        QVERIFY(!photoList.move(4711, 0, &error));
        QVERIFY(!photoList.remove({4711}, &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstPhotos)
#include "tst_photos.moc"
