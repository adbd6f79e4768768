// The program's CSV export of the open project: a target that is the
// project file or one of its companions, directly or through a link, is
// refused with a message and leaves every file as it was. The command
// line's export shares the rule; its tests go through every kind of link.
#include "core/project/KalDefectCsv.h"
#include "core/project/KalProject.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

class TstCsvTargets : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    KalScriptedPrompt *m_prompt = nullptr;
    QString path(const QString &name) const { return m_dir.filePath(name); }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QVERIFY(createProject(path("bau.pwp"), 2));
    }

    void exportTarget_data()
    {
        QTest::addColumn<QString>("target"); // "link:" + where a link named liste.csv points
        QTest::addColumn<bool>("written");
        QTest::newRow("new file") << "neu.csv" << true;
        QTest::newRow("the project itself") << "bau.pwp" << false;
        QTest::newRow("link to a later backup") << "link:bau.pwp.03.bak" << false;
        QTest::newRow("link to another file") << "link:andere.csv" << true;
    }

    void exportTarget()
    {
        QFETCH(QString, target);
        QFETCH(bool, written);
        QString output = path(target);
        if (target.startsWith("link:")) {
            output = path("liste.csv");
            QFile::remove(output);
            QVERIFY(QFile::link(target.mid(5), output));
        }
        KalProject project;
        QVERIFY(project.openProject(path("bau.pwp")));
        const QByteArray before = fileHash(path("bau.pwp"));
        m_prompt->clear();

        QCOMPARE(
            KalDefectCsv::exportModel(project.model("defect"), KalDefectCsv::Compact, output, project.projectPath()),
            written);
        QCOMPARE(m_prompt->hasTitle("Dateifehler"), !written);
        QCOMPARE(fileHash(path("bau.pwp")), before);
        QVERIFY(!QFileInfo::exists(path("bau.pwp-journal")));
        QVERIFY(!QFileInfo::exists(path("bau.pwp.03.bak")));
        if (written) {
            QFile file(output);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(file.readAll().contains("defect 2"));
        }
        QVERIFY(project.closeProject());
    }
};

QTEST_GUILESS_MAIN(TstCsvTargets)
#include "tst_csvtargets.moc"
