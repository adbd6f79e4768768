#include "core/project/KalRecentFiles.h"
#include "core/project/KalSettings.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

// What the program remembers between runs: the folders of its file
// dialogs and the recent-file list.
class TstSettings : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString file(const QString &name) const { return m_dir.filePath(name + QStringLiteral(".pwp")); }
    QStringList files(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths << file(name);
        return paths;
    }

    static QString documents()
    {
        const QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        return QFileInfo(docs).isDir() ? docs : QDir::homePath();
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        for (const char *name : {"a", "b", "c"})
            QVERIFY(QFile(file(QLatin1String(name))).open(QIODevice::WriteOnly));
    }
    void init() { QSettings().clear(); }

    void everyKindStartsInDocumentsWithoutSettings()
    {
        QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        for (int kind : {1, 2, 3, 4, 5, 6, 7, 42})
            QVERIFY2(KalSettings::filePathForDialog(kind) == QDir::toNativeSeparators(documents()),
                     qPrintable(QString::number(kind)));
    }

    void currentDirectoryIsTheDefault()
    {
        QSettings().setValue("currentDirectory", m_dir.path());
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::PlanFiles), QDir::toNativeSeparators(m_dir.path()));
    }

    void rememberedSaveFolderIsAFolder_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("two paths joined below a project file") << "sa.pwp/ordner/proj";
        QTest::newRow("a project file") << "sa.pwp";
        QTest::newRow("a folder that was removed") << "weg/unterordner";
    }

    void rememberedSaveFolderIsAFolder()
    {
        QFETCH(QString, stored);
        QVERIFY(QFile(m_dir.filePath("sa.pwp")).open(QIODevice::WriteOnly));
        QSettings().setValue("FileDialogPaths/DBSavePath", m_dir.filePath(stored));
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ProjectSave), QDir::toNativeSeparators(m_dir.path()));
        // Choosing a name below a file does not make that file the folder.
        KalSettings::rememberFilePath(KalSettings::ProjectSave, m_dir.filePath("sa.pwp/neu.pwp"), false);
        QCOMPARE(KalSettings::filePathForDialog(KalSettings::ProjectSave), QDir::toNativeSeparators(m_dir.path()));
    }

    // The recent-file list: order, duplicates, length, what is stored and how
    // a missing file leaves it. Names stand for files in the temporary
    // folder; "a", "b", "c" exist, "gone" does not.
    void recentFiles_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<int>("maxCount");
        // "+x" adds, "-x" removes, "?x" opens (a missing file leaves the list).
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<int>("changes");

        QTest::newRow("newest first") << QStringList() << 0 << QStringList{"+a", "+b", "+c"}
                                      << QStringList{"c", "b", "a"} << 3;
        QTest::newRow("again moves to the top")
            << QStringList{"a", "b", "c"} << 0 << QStringList{"+c", "+c"} << QStringList{"c", "a", "b"} << 2;
        QTest::newRow("remove") << QStringList{"a", "b", "c"} << 0 << QStringList{"-b", "-x"} << QStringList{"a", "c"}
                                << 1;
        QTest::newRow("no limit") << QStringList{"a", "b"} << 0 << QStringList{"+c", "+gone"}
                                  << QStringList{"gone", "c", "a", "b"} << 2;
        QTest::newRow("limit drops the oldest")
            << QStringList() << 2 << QStringList{"+a", "+b", "+c"} << QStringList{"c", "b"} << 3;
        QTest::newRow("limit applies to the stored list")
            << QStringList{"a", "b", "c"} << 1 << QStringList() << QStringList{"a"} << 0;
        QTest::newRow("stored duplicates collapse")
            << QStringList{"a", "b", "a"} << 0 << QStringList() << QStringList{"a", "b"} << 0;
        QTest::newRow("missing file leaves")
            << QStringList{"a", "gone", "b"} << 0 << QStringList{"?gone", "?a"} << QStringList{"a", "b"} << 1;
    }

    void recentFiles()
    {
        QFETCH(QStringList, stored);
        QFETCH(int, maxCount);
        QFETCH(QStringList, steps);
        QFETCH(QStringList, expected);
        QFETCH(int, changes);

        QSettings().setValue(KalRecentFiles::defaultKey(), files(stored));
        KalRecentFiles recent(KalRecentFiles::defaultKey(), maxCount);
        QSignalSpy changed(&recent, &KalRecentFiles::changed);
        for (const QString &step : steps) {
            const QString path = file(step.mid(1));
            if (step.startsWith(QLatin1Char('+')))
                recent.add(path);
            else if (step.startsWith(QLatin1Char('-')))
                recent.remove(path);
            else
                QCOMPARE(recent.keepIfExists(path), QFile::exists(path));
        }
        QCOMPARE(recent.files(), files(expected));
        QCOMPARE(changed.count(), changes);
        if (changes > 0)
            QCOMPARE(QSettings().value(KalRecentFiles::defaultKey()).toStringList(), files(expected));
        // A second list on the same key reads what the first stored.
        QCOMPARE(KalRecentFiles(KalRecentFiles::defaultKey(), maxCount).files(), files(expected));
    }
};

QTEST_GUILESS_MAIN(TstSettings)
#include "tst_settings.moc"
