#include "core/photos/KalPictureStore.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "gui/photos/KalSettingsImageSizeDialog.h"
#include "support/KalDialogAnswer.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFaults.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QDir>
#include <QSettings>
#include <QSpinBox>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

using Kind = KalPictureStore::Kind;
Q_DECLARE_METATYPE(Kind)

namespace {
const char *const kSuccessTail =
    "\n\nKlicken Sie im Hauptfenster auf 'Datei->Datenbank bereinigen', um die Dateigröße zu reduzieren.";
} // namespace

class TstImageSizeDialog : public QObject
{
    Q_OBJECT

    KalTestProject m_project;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;

    QString projectFile() const { return m_dir.filePath(QStringLiteral("Baustelle Süd.pwp")); }

    // Pictures of table `table` as stored: id -> (picture, thumbnail).
    QMap<qint64, QPair<QByteArray, QByteArray>> stored(const QString &table)
    {
        QMap<qint64, QPair<QByteArray, QByteArray>> result;
        QSqlQuery query(m_project.project()->database());
        query.exec(QStringLiteral("SELECT id, %1, thumbnail FROM %1").arg(table));
        while (query.next())
            result.insert(query.value(0).toLongLong(), {query.value(1).toByteArray(), query.value(2).toByteArray()});
        return result;
    }

    int largestSide(const QString &table)
    {
        return m_project.value(QStringLiteral("SELECT MAX(MAX(%1_width, %1_height)) FROM %1").arg(table)).toInt();
    }

    // Three pictures: two larger than 1000 (one portrait), one small.
    void storePictures(Kind kind)
    {
        QSettings().setValue(KalPictureStore::sizeKey(kind), 5000);
        KalPictureStore store(m_project.project()->database(), kind);
        for (const QSize &size : {QSize(1600, 1200), QSize(1100, 1500), QSize(800, 600)}) {
            QString error;
            QVERIFY2(store.insertFromData(KalTestImages::jpeg(KalTestImages::marked(size)), &error) > 0,
                     qPrintable(error));
        }
    }

    QStringList backupFiles() const { return QDir(m_dir.path()).entryList({QStringLiteral("*.Backup*")}, QDir::Files); }

    void pressOk(int newSize, Kind kind)
    {
        KalSettingsImageSizeDialog dialog(kind, m_project.project());
        dialog.show();
        dialog.findChild<QSpinBox *>(QStringLiteral("sbImageSize"))->setValue(newSize);
        kalPress(&dialog, QDialogButtonBox::Ok);
    }

private slots:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void init()
    {
        QVERIFY(m_project.open());
        m_prompt = KalScriptedPrompt::install();
        for (const QString &name : QDir(m_dir.path()).entryList(QDir::Files))
            QFile::remove(m_dir.filePath(name));
    }

    void cleanup()
    {
        KalFileOps::setFaultHook({});
        kalFillVolumes(false);
        KalProgress::install(nullptr);
        m_project.close();
    }

    void lowerSizeShrinks_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<QString>("answer"); // button pressed in the question
        QTest::addColumn<bool>("backup");    // state the check box is left in
        QTest::addColumn<QString>("fault");  // "", "copy": the backup cannot be written
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<bool>("shrunk");

        const Kind photo = Kind::Photo;
        const QString shrink = QStringLiteral("Bestehende Fotos verkleinern");
        const QStringList asked{"Fotogröße", "Fotogröße"};
        const QStringList refused{"Fotogröße", "Dateifehler"};
        QTest::newRow("same size asks nothing") << photo << 1000 << 1000 << "" << true << "" << QStringList() << false;
        QTest::newRow("question cancelled")
            << photo << 2000 << 1000 << "Cancel" << true << "" << QStringList{"Fotogröße"} << false;
        QTest::newRow("with backup") << photo << 2000 << 1000 << shrink << true << "" << asked << true;
        QTest::newRow("without backup") << photo << 2000 << 1000 << shrink << false << "" << asked << true;
        QTest::newRow("backup cannot be written")
            << photo << 2000 << 1000 << shrink << true << "copy" << refused << false;
        QTest::newRow("plans with backup") << Kind::Plan << 5000 << 1000 << "Bestehende Pläne verkleinern" << true << ""
                                           << QStringList{"Plangröße", "Plangröße"} << true;
    }

    void lowerSizeShrinks()
    {
        QFETCH(Kind, kind);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QString, answer);
        QFETCH(bool, backup);
        QFETCH(QString, fault);
        QFETCH(QStringList, titles);
        QFETCH(bool, shrunk);

        const QString table = kind == Kind::Photo ? QStringLiteral("image") : QStringLiteral("plan");
        storePictures(kind);
        QCOMPARE(m_project.project()->saveProject(projectFile()), int(KalProject::Saved));
        const QByteArray savedFile = KalTestFiles::fileHash(projectFile());
        QSettings().setValue(KalPictureStore::sizeKey(kind), before);
        const auto storedBefore = stored(table);
        if (fault == QLatin1String("copy"))
            KalFileOps::setFaultHook([](const QString &operation, const QString &) { return operation == "copy"; });
        if (!answer.isEmpty()) {
            m_prompt->queueAnswer(answer);
            m_prompt->queueCheckBox(backup);
        }

        pressOk(after, kind);

        QCOMPARE(QSettings().value(KalPictureStore::sizeKey(kind)).toInt(), after);
        QCOMPARE(m_prompt->titles(), titles);
        if (!titles.isEmpty()) {
            QCOMPARE(m_prompt->shown().first().checkBoxText,
                     QStringLiteral("Backup der Datei mit bisheriger Auflösung erstellen"));
            QVERIFY(m_prompt->shown().first().text.contains(
                kind == Kind::Photo ? "</p>2 bestehende Fotos sind größer als die aktuelle Einstellung. Sollen "
                                      "diese Fotos verkleinert werden?"
                                    : "</p>2 bestehende Pläne sind größer als die aktuelle Einstellung. Sollen "
                                      "diese Pläne verkleinert werden?"));
        }

        const auto storedAfter = stored(table);
        QCOMPARE(storedAfter.keys(), storedBefore.keys());
        int changed = 0;
        for (auto it = storedBefore.cbegin(); it != storedBefore.cend(); ++it) {
            QCOMPARE(storedAfter.value(it.key()).second, it.value().second); // thumbnails stay as they were
            if (storedAfter.value(it.key()).first != it.value().first) {
                ++changed;
                QCOMPARE(KalTestImages::redCorner(QImage::fromData(storedAfter.value(it.key()).first)), 0);
            }
        }
        QCOMPARE(changed, shrunk ? 2 : 0);
        QVERIFY(largestSide(table) <= (shrunk ? after : 1600));
        QCOMPARE(largestSide(table) > after, !shrunk && storedBefore.size() > 0 && after < 1600);

        const bool backupMade = shrunk && backup;
        QCOMPARE(backupFiles(), backupMade ? QStringList{"Baustelle Süd.pwp.Backup"} : QStringList());
        if (backupMade)
            QCOMPARE(KalTestFiles::fileHash(projectFile() + ".Backup"), savedFile);
        if (fault == QLatin1String("copy")) {
            QVERIFY(
                m_prompt->texts().last().startsWith(QStringLiteral("Die Backup-Datei %1 konnte nicht erstellt werden.")
                                                        .arg(QDir::toNativeSeparators(projectFile() + ".Backup"))));
        }
        if (shrunk) {
            const QString what = kind == Kind::Photo ? QStringLiteral("Fotos") : QStringLiteral("Pläne");
            const QString expected =
                backup ? QStringLiteral("Die Größe der bestehenden %1 wurde erfolgreich geändert.\nDie Backup-Datei "
                                        "%2 wurde erstellt.")
                             .arg(what, QDir::toNativeSeparators(projectFile() + ".Backup"))
                       : QStringLiteral("Die Größe der bestehenden %1 wurde erfolgreich geändert.").arg(what);
            QCOMPARE(m_prompt->texts().last(), expected + QString::fromUtf8(kSuccessTail));
            QVERIFY(m_project.project()->isModified());
        }
    }

    void cancelKeepsWhatWasDone()
    {
        storePictures(Kind::Photo);
        storePictures(Kind::Photo); // four pictures above 1000
        QSettings().setValue(KalPictureStore::sizeKey(Kind::Photo), 2000);
        KalProgress::install(new KalCancelingProgress(1));
        m_prompt->queueAnswer(QStringLiteral("Bestehende Fotos verkleinern"));
        m_prompt->queueCheckBox(false);
        pressOk(1000, Kind::Photo);

        QCOMPARE(m_prompt->titles(), (QStringList{"Fotogröße", "Fotogröße"}));
        QCOMPARE(m_prompt->texts().last(), QStringLiteral("Das Verkleinern wurde abgebrochen.\n1 von 4 Bildern "
                                                          "wurden verkleinert und bleiben es; die übrigen sind "
                                                          "unverändert."));
        QCOMPARE(m_project.count("image", "image_width > 1000 OR image_height > 1000"), 3);
        for (const auto &picture : stored(QStringLiteral("image")))
            QVERIFY(!QImage::fromData(picture.first).isNull());
    }
};

KAL_WIDGET_TEST_MAIN(TstImageSizeDialog)
#include "tst_imagesizedialog.moc"
