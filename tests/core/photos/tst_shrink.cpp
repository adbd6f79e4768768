// Shrinking stored pictures after the size was lowered, and the backup a
// user may ask for first: no picture damaged or lost, whatever happens.
#include "core/photos/KalPictureStore.h"
#include "core/photos/KalShrinkBackup.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "support/KalTestFaults.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

class TstShrink : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    KalCancelingProgress *m_progress = nullptr;
    // Sizes of the photos every test starts with.
    const QList<QSize> m_sizes{{1000, 750}, {750, 1000}, {800, 600}, {400, 300}, {1000, 20}, {510, 400}};
    QList<qint64> m_ids;

    KalPictureStore store(KalPictureStore::Kind kind = KalPictureStore::Kind::Photo) const
    {
        return KalPictureStore(m_fx.project()->database(), kind);
    }
    struct Row
    {
        QByteArray picture;
        QByteArray thumbnail;
        QSize size;
    };
    Row row(qint64 id, const QString &table = QStringLiteral("image"))
    {
        return {m_fx.field(table, id, table).toByteArray(),
                m_fx.field(table, id, QStringLiteral("thumbnail")).toByteArray(),
                QSize(m_fx.field(table, id, table + QStringLiteral("_width")).toInt(),
                      m_fx.field(table, id, table + QStringLiteral("_height")).toInt())};
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_progress = new KalCancelingProgress;
        KalProgress::install(m_progress);
    }

    void init()
    {
        m_progress->cancelAfter = INT_MAX;
        QVERIFY(m_fx.open());
        m_ids.clear();
        QString error;
        for (const QSize &size : m_sizes) {
            m_ids << store().insertFromData(KalTestImages::jpeg(KalTestImages::marked(size)), &error);
            QVERIFY2(m_ids.last() > 0, qPrintable(error));
        }
    }

    void cleanup()
    {
        kalFillVolumes(false);
        KalFileOps::setFaultHook({});
        m_fx.close();
    }

    void shrink_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("larger");
        QTest::newRow("same as now") << 1000 << 0;
        QTest::newRow("one side just over") << 999 << 3;
        QTest::newRow("most") << 500 << 5;
        QTest::newRow("smallest setting") << 300 << 6;
    }
    void shrink()
    {
        QFETCH(int, size);
        QFETCH(int, larger);
        QString error;
        QCOMPARE(store().countLargerThan(size, &error), larger);
        QList<Row> before;
        for (qint64 id : qAsConst(m_ids))
            before << row(id);
        m_fx.project()->setModified(false);
        const KalShrinkResult result = m_fx.project()->shrinkImages(size);
        QCOMPARE(m_fx.project()->isModified(), larger > 0);
        QCOMPARE(result.total, larger);
        QCOMPARE(result.done, larger);
        QCOMPARE(result.failed, 0);
        QVERIFY(!result.canceled);
        QCOMPARE(store().countLargerThan(size, &error), 0);
        for (int i = 0; i < m_ids.size(); ++i) {
            const Row after = row(m_ids.at(i));
            // Thumbnails stay as they were; a picture that fitted keeps its very bytes.
            QCOMPARE(after.thumbnail, before.at(i).thumbnail);
            QCOMPARE(after.size, KalPictureStore::fittedSize(m_sizes.at(i), size));
            if (after.size == before.at(i).size)
                QCOMPARE(after.picture, before.at(i).picture);
            const QImage picture = store().load(m_ids.at(i), &error);
            QCOMPARE(picture.size(), after.size);
            if (picture.height() >= 20)
                QCOMPARE(KalTestImages::redCorner(picture), 0);
        }
    }

    void garbageAndRefusedPicturesStayAsTheyWere()
    {
        // A row an old program or a broken import left behind, and a picture
        // the plan rules refuse to rescale.
        QVERIFY(
            m_fx.exec(QStringLiteral("UPDATE image SET image = X'FFD8FFE000104A46', image_width = 3000 WHERE id = :id"),
                      {{"id", m_ids.at(0)}}));
        const Row garbage = row(m_ids.at(0));
        const Row refused = row(m_ids.at(1));
        KalPictureStore photos = store();
        photos.setShrinkHook([&](qint64 id, const QSize &, const QSize &) { return id != m_ids.at(1); });
        const KalShrinkResult result = photos.shrink(500);
        QCOMPARE(result.total, 5);
        QCOMPARE(result.failed, 2);
        QCOMPARE(result.done, 3);
        QCOMPARE(row(m_ids.at(0)).picture, garbage.picture);
        QCOMPARE(row(m_ids.at(1)).picture, refused.picture);
        QCOMPARE(row(m_ids.at(1)).size, refused.size);
        QCOMPARE(m_fx.project()->transactions().depth(), 0);
    }

    void cancelHalfWay()
    {
        // Enough pictures for more than one batch.
        QString error;
        const QByteArray big = KalTestImages::jpeg(KalTestImages::marked({900, 600}));
        for (int i = 0; i < 44; ++i)
            QVERIFY(store().insertFromData(big, &error) > 0);
        const int larger = store().countLargerThan(500, &error);
        QCOMPARE(larger, 49);
        m_progress->cancelAfter = 30;
        const KalShrinkResult result = store().shrink(500);
        QVERIFY(m_progress->cancelable);
        QVERIFY(result.canceled);
        QCOMPARE(result.failed, 0);
        QCOMPARE(result.done, 30);
        // What was finished stays finished, the rest is untouched and whole.
        QCOMPARE(store().countLargerThan(500, &error), larger - result.done);
        QCOMPARE(m_fx.count(QStringLiteral("image")), m_sizes.size() + 44);
        QCOMPARE(m_fx.value(QStringLiteral("SELECT COUNT(*) FROM image WHERE length(image) < 100")).toInt(), 0);
        QCOMPARE(m_fx.project()->transactions().depth(), 0);
    }

    void plansReportTheirScale()
    {
        QSettings().setValue(QStringLiteral("Plans/Plansize"), 3000);
        KalPictureStore plans = store(KalPictureStore::Kind::Plan);
        QString error;
        const qint64 id = plans.insertFromData(KalTestImages::jpeg(KalTestImages::marked({2400, 1600})), &error);
        QVERIFY2(id > 0, qPrintable(error));
        QSettings().remove(QStringLiteral("Plans/Plansize"));
        QList<QVariantList> calls;
        plans.setShrinkHook([&](qint64 planId, const QSize &oldSize, const QSize &newSize) {
            calls << QVariantList{planId, oldSize, newSize};
            return true;
        });
        const int imagesBefore = m_fx.count(QStringLiteral("image"));
        const KalShrinkResult result = plans.shrink(1200);
        QCOMPARE(result.done, 1);
        QCOMPARE(calls, (QList<QVariantList>{{id, QSize(2400, 1600), QSize(1200, 800)}}));
        QCOMPARE(row(id, QStringLiteral("plan")).size, QSize(1200, 800));
        QCOMPARE(store().countLargerThan(999, &error), 3); // photos untouched
        QCOMPARE(m_fx.count(QStringLiteral("image")), imagesBefore);
    }

    void backup_data()
    {
        QTest::addColumn<QString>("situation");
        QTest::addColumn<bool>("made");
        QTest::newRow("saved project") << "saved" << true;
        QTest::newRow("untitled project") << "untitled" << false;
        QTest::newRow("backup exists") << "exists" << false;
        QTest::newRow("read-only folder") << "readonly" << false;
        QTest::newRow("volume full") << "full" << false;
        QTest::newRow("copy fails half-way") << "copyfails" << false;
    }
    void backup()
    {
        QFETCH(QString, situation);
        QFETCH(bool, made);
        m_fx.close(); // the file is made and copied without an open project
        QTemporaryDir dir;
        const QString project = dir.filePath(QStringLiteral("Bau \"Süd\".pwp"));
        QVERIFY(KalTestFiles::createProject(project, 2));
        const QString target = KalShrinkBackup::fileName(project);
        if (situation == QLatin1String("exists"))
            QVERIFY(KalTestFiles::writeFile(target, "older backup"));
        if (situation == QLatin1String("readonly"))
            QVERIFY(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner));
        if (situation == QLatin1String("copyfails")) {
            // Writes a partial copy, then fails as a full disk would.
            KalFileOps::setFaultHook([](const QString &operation, const QString &path) {
                if (operation != QLatin1String("copy"))
                    return false;
                KalTestFiles::writeFile(path, "partial");
                return true;
            });
        }
        kalFillVolumes(situation == QLatin1String("full"));
        const QStringList before = KalTestFiles::folderState(dir.path());
        QString error;
        const bool ok = KalShrinkBackup::create(situation == QLatin1String("untitled") ? QString() : project, &error);
        QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (situation == QLatin1String("readonly") && ::geteuid() == 0)
            QSKIP("root writes into read-only folders");
        QCOMPARE(ok, made);
        QCOMPARE(error.isEmpty(), made);
        if (made) {
            QCOMPARE(KalTestFiles::fileHash(target), KalTestFiles::fileHash(project));
            QCOMPARE(KalTestFiles::folderState(dir.path()).size(), before.size() + 1);
        } else {
            QCOMPARE(KalTestFiles::folderState(dir.path()), before);
        }
    }
};

QTEST_GUILESS_MAIN(TstShrink)
#include "tst_shrink.moc"
