#include "core/project/KalSettings.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

class TstSettings : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    static QString documents()
    {
        const QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        return QFileInfo(docs).isDir() ? docs : QDir::homePath();
    }

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init() { QSettings().clear(); }

    void everyKindStartsInDocumentsWithoutSettings_data()
    {
        QTest::addColumn<int>("kind");
        for (int kind = 1; kind <= 7; ++kind)
            QTest::newRow(qPrintable(KalSettings::fileDialogKey(kind))) << kind;
        QTest::newRow("unknown kind") << 42;
    }

    void everyKindStartsInDocumentsWithoutSettings()
    {
        QFETCH(int, kind);
        QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        QCOMPARE(KalSettings::filePathForDialog(kind), QDir::toNativeSeparators(documents()));
    }

    void currentDirectoryIsTheDefault()
    {
        QSettings().setValue("currentDirectory", m_dir.path());
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::PlanFiles), QDir::toNativeSeparators(m_dir.path()));
    }

    void eachKindRemembersItsOwnFolder()
    {
        const QString photos = m_dir.path() + "/fotos";
        const QString plans = m_dir.path() + "/plaene";
        QDir().mkpath(photos);
        QDir().mkpath(plans);
        KalSettings::rememberFilePath(KalSettings::PlanFiles, plans + "/eg.pdf", false);
        KalSettings::rememberFilePath(KalSettings::ImageFiles, photos + "/riss.jpg", false);
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ImageFiles), QDir::toNativeSeparators(photos));
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::PlanFiles), QDir::toNativeSeparators(plans));
        QCOMPARE(QSettings().value("FileDialogPaths/ImageAddPath").toString(), photos);
        // A chosen folder is remembered itself, not its parent.
        KalSettings::rememberFilePath(KalSettings::ImageDirectory, photos, true);
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ImageDirectory), QDir::toNativeSeparators(photos));
        // Cancelled dialogs hand over an empty path: nothing changes.
        KalSettings::rememberFilePath(KalSettings::ImageFiles, QString(), false);
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ImageFiles), QDir::toNativeSeparators(photos));
    }
};

QTEST_GUILESS_MAIN(TstSettings)
#include "tst_settings.moc"
