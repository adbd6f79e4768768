// The logo dialog as the user meets it: choosing, replacing and removing
// logos, refused files, OK and "Abbrechen".
#include "core/project/KalProject.h"
#include "core/reports/KalLogos.h"
#include "gui/reports/KalLogoDialog.h"
#include "gui/widgets/KalFileDialog.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalWidgetTestMain.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>

class TstLogoDialog : public QObject
{
    Q_OBJECT

private:
    KalTestProject m_fx;
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;

    template <typename T> static T *child(QObject *parent, const QString &panel, const QString &name)
    {
        QObject *scope = panel.isEmpty() ? parent : parent->findChild<QWidget *>(panel);
        T *widget = scope ? scope->findChild<T *>(name) : nullptr;
        if (!widget)
            qFatal("no widget %s/%s", qPrintable(panel), qPrintable(name));
        return widget;
    }

    static void press(KalLogoDialog &dialog, const QString &panel, const QString &button)
    {
        child<QPushButton>(&dialog, panel, button)->click();
    }

    QString file(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(name);
        if (!KalTestFiles::writeFile(path, bytes))
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QString picture(const QString &name, const QSize &size)
    {
        return file(name, KalTestImages::encoded(KalTestImages::marked(size), "png"));
    }

    // Puts `path` in as the logo of `panel` by the panel's button.
    void insert(KalLogoDialog &dialog, const QString &panel, const QString &path)
    {
        KalFileDialog::queueChoice(path);
        press(dialog, panel, "pbAppend");
        QCOMPARE(KalFileDialog::queuedChoices(), 0);
    }

    KalLogo stored(KalLogos::Which which)
    {
        KalLogo logo;
        KalLogos(m_fx.project()->database()).read(which, &logo);
        return logo;
    }

private slots:
    void initTestCase()
    {
        m_prompt = static_cast<KalScriptedPrompt *>(KalPrompt::instance());
        QVERIFY(m_dir.isValid());
        QVERIFY(m_fx.open());
    }

    void cleanupTestCase() { m_fx.close(); }

    void init()
    {
        m_prompt->clear();
        KalFileDialog::clearQueue();
        m_fx.project()->setModified(false);
    }

    void okStoresLogosAlignmentAndSettings_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<int>("limit"); // "Foto/Imagesize"
        QTest::addColumn<QSize>("kept");
        QTest::addColumn<QString>("align");
        QTest::addColumn<int>("height");
        QTest::newRow("small logo kept at its size") << QSize(200, 80) << 1000 << QSize(200, 80) << "rbCenter" << 0;
        QTest::newRow("large logo fitted") << QSize(1200, 400) << 600 << QSize(600, 200) << "rbLeft" << 40;
        QTest::newRow("tall logo fitted") << QSize(300, 900) << 450 << QSize(150, 450) << "rbRight" << 500;
    }

    void okStoresLogosAlignmentAndSettings()
    {
        QFETCH(QSize, source);
        QFETCH(int, limit);
        QFETCH(QSize, kept);
        QFETCH(QString, align);
        QFETCH(int, height);
        QSettings().setValue("Foto/Imagesize", limit);
        const int imagesBefore = m_fx.count("image");
        {
            KalLogoDialog dialog(m_fx.project());
            insert(dialog, "wSecondLogo", picture("logo.png", source));
            child<QRadioButton>(&dialog, "wSecondLogo", align)->click();
            child<QSpinBox>(&dialog, "", "sbPrintHeight")->setValue(height);
            child<QCheckBox>(&dialog, "", "cbUnderHeader")->setChecked(false);
            press(dialog, "", "pbOk");
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
        QVERIFY(m_prompt->shown().isEmpty());
        const KalLogo logo = stored(KalLogos::Second);
        QVERIFY(logo.isSet());
        const int alignValue = QStringList{"rbLeft", "rbCenter", "rbRight"}.indexOf(align);
        QCOMPARE(logo.align, alignValue);
        QCOMPARE(KalLogos(m_fx.project()->database()).image(logo.imageId).size(), kept);
        QCOMPARE(m_fx.field("image", logo.imageId, "image_ct").toString(), QString("image/jpeg"));
        // A replaced logo leaves no orphan row behind.
        QCOMPARE(m_fx.count("image"), qMax(imagesBefore, 1));
        QCOMPARE(KalLogos::printHeight(), height);
        QVERIFY(!KalLogos::underHeader());
        QVERIFY(m_fx.project()->isModified());
    }

    void cancelUndoesWhatTheDialogDid()
    {
        {
            KalLogoDialog dialog(m_fx.project());
            insert(dialog, "wFirstLogo", picture("first.png", QSize(100, 50)));
            press(dialog, "", "pbOk");
        }
        const KalLogo first = stored(KalLogos::First);
        const KalLogo second = stored(KalLogos::Second);
        QVERIFY(first.isSet() && second.isSet());
        const int images = m_fx.count("image");
        QSettings().setValue("Logo/LogoPrintHeight", 30);
        m_fx.project()->setModified(false);
        {
            KalLogoDialog dialog(m_fx.project());
            insert(dialog, "wFirstLogo", picture("other.png", QSize(120, 50)));
            press(dialog, "wSecondLogo", "pbDelete");
            child<QRadioButton>(&dialog, "wFirstLogo", "rbLeft")->click();
            child<QSpinBox>(&dialog, "", "sbPrintHeight")->setValue(12);
            press(dialog, "", "pbCancel");
        }
        QCOMPARE(m_fx.count("image"), images);
        QCOMPARE(stored(KalLogos::First).imageId, first.imageId);
        QCOMPARE(stored(KalLogos::First).align, first.align);
        QCOMPARE(stored(KalLogos::Second).imageId, second.imageId);
        QCOMPARE(KalLogos::printHeight(), 30);
        QVERIFY(!m_fx.project()->isModified());
    }

    void removeAndOkDropsThePicture()
    {
        const KalLogo first = stored(KalLogos::First);
        QVERIFY(first.isSet());
        {
            KalLogoDialog dialog(m_fx.project());
            QVERIFY(child<QPushButton>(&dialog, "wFirstLogo", "pbDelete")->isEnabled());
            press(dialog, "wFirstLogo", "pbDelete");
            QVERIFY(!child<QPushButton>(&dialog, "wFirstLogo", "pbDelete")->isEnabled());
            press(dialog, "", "pbOk");
        }
        QVERIFY(!stored(KalLogos::First).isSet());
        QVERIFY(m_fx.value("SELECT logo_image_id FROM kal").isNull());
        QCOMPARE(m_fx.count("image", QString("id=%1").arg(first.imageId)), 0);
    }

    void buttonHelpFollowsTheHelpSwitch_data()
    {
        QTest::addColumn<QVariant>("helpActive");
        QTest::addColumn<bool>("explained");
        QTest::newRow("never switched") << QVariant() << true;
        QTest::newRow("on") << QVariant(true) << true;
        QTest::newRow("off") << QVariant(false) << false;
    }

    void buttonHelpFollowsTheHelpSwitch()
    {
        QFETCH(QVariant, helpActive);
        QFETCH(bool, explained);
        if (helpActive.isValid())
            QSettings().setValue("TooltipHelpActive", helpActive);
        else
            QSettings().remove("TooltipHelpActive");
        KalLogoDialog dialog(m_fx.project());
        for (const char *button : {"pbAppend", "pbDelete"})
            QCOMPARE(child<QPushButton>(&dialog, "wSecondLogo", button)->toolTip().isEmpty(), !explained);
        QSettings().remove("TooltipHelpActive");
    }

    void hostileFileIsRefusedAndTheOldLogoStays_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        const QByteArray jpeg = KalTestImages::jpeg(KalTestImages::marked(QSize(300, 200)));
        QTest::newRow("not a picture") << QByteArray("Dies ist kein Bild.\n") << "text.png";
        QTest::newRow("empty file") << QByteArray() << "empty.jpg";
        QTest::newRow("truncated JPEG") << jpeg.left(jpeg.size() / 2) << "cut.jpg";
        QTest::newRow("over 100 megapixels") << KalTestImages::pngHeaderOnly(QSize(20000, 6000)) << "huge.png";
        QTest::newRow("missing file") << QByteArray("-") << "gone.png";
    }

    void hostileFileIsRefusedAndTheOldLogoStays()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        QString path = bytes == "-" ? m_dir.filePath(name) : file(name, bytes);
        {
            KalLogoDialog dialog(m_fx.project());
            insert(dialog, "wSecondLogo", picture("good.png", QSize(90, 30)));
            press(dialog, "", "pbOk");
        }
        const KalLogo before = stored(KalLogos::Second);
        const int images = m_fx.count("image");
        m_fx.project()->setModified(false);
        {
            KalLogoDialog dialog(m_fx.project());
            insert(dialog, "wSecondLogo", path);
            QCOMPARE(m_prompt->titles(), QStringList{"Logo auswählen"});
            QVERIFY(m_prompt->texts().first().contains(QDir::toNativeSeparators(path)));
            QCOMPARE(m_fx.count("image"), images);
            QVERIFY(child<QPushButton>(&dialog, "wSecondLogo", "pbDelete")->isEnabled());
            press(dialog, "", "pbOk");
        }
        QCOMPARE(stored(KalLogos::Second).imageId, before.imageId);
        QCOMPARE(m_fx.count("image"), images);
    }
};

KAL_WIDGET_TEST_MAIN(TstLogoDialog)
#include "tst_logodialog.moc"
