// Opening and saving under real faults: a second instance racing or holding
// the project, full and read-only volumes, journals left by crashed writers,
// and files shared with colleagues.
#include "core/project/KalDefects.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalCliRun.h"
#include "support/KalHolderProcess.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace KalTestFiles;

namespace {
// A small tmpfs, unmounted when the test ends however it ends.
class SmallVolume
{
public:
    SmallVolume(const QString &mountPoint, const QString &size)
        : m_mountPoint(mountPoint)
    {
        QDir().mkpath(mountPoint);
        m_mounted = ::geteuid() == 0 &&
                    QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=" + size, "tmpfs", mountPoint}) == 0;
    }
    ~SmallVolume()
    {
        if (m_mounted)
            QProcess::execute("umount", {"-l", m_mountPoint});
    }
    bool mounted() const { return m_mounted; }
    bool makeReadOnly() { return QProcess::execute("mount", {"-o", "remount,ro", m_mountPoint}) == 0; }
    void fill()
    {
        QFile filler(m_mountPoint + "/filler");
        filler.open(QIODevice::WriteOnly);
        const QByteArray block(4096, 'x');
        while (filler.write(block) == block.size() && filler.flush()) {
        }
    }

private:
    QString m_mountPoint;
    bool m_mounted = false;
};

// What a crashed run of this program leaves beside `file`: a working copy
// with one unsaved defect (id 77) and the user file naming erika/BAUBUERO.
bool leaveCrashedWorkingCopy(const QString &file)
{
    if (!QFile::copy(file, file + ".workingcopy"))
        return false;
    writeFile(file + ".udf", "erika\nBAUBUERO\n01.02.26\n10:15\n4711\n");
    return execute(file + ".workingcopy", {"INSERT INTO defect (id, description) VALUES (77, 'ungesichert')"});
}

struct FileMode
{
    mode_t mode = 0;
    gid_t group = 0;
};

FileMode fileMode(const QString &path)
{
    struct stat st;
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return {};
    return {st.st_mode & 07777, st.st_gid};
}
} // namespace

class TstOpenSaveFaults : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
    }

    void init()
    {
        m_dir.reset(new QTemporaryDir);
        m_prompt->clear();
        qputenv("USERNAME", "erika");
        qputenv("COMPUTERNAME", "BAUBUERO");
        KalEnvironment::setVolumeInfoFunction({});
    }

    // Both instances pass the check for a working copy before either has
    // made one; exactly one may get the project.
    void twoInstancesOpeningAtOnce()
    {
        const QString file = path("gleichzeitig.pwp");
        QVERIFY(createProject(file, 2));
        const QString barrier = path("barrier");
        QDir().mkpath(barrier);
        KalHolderProcess first("hold", file, "alice", "PC-17", -1, barrier);
        KalHolderProcess second("hold", file, "bob", "PC-18", -1, barrier);
        QTRY_COMPARE_WITH_TIMEOUT(QDir(barrier).entryList(QDir::Files).size(), 2, 30000);
        writeFile(barrier + "/go", "");

        const bool firstWon = first.waitFor("ready") >= 0;
        KalHolderProcess &loser = firstWon ? second : first;
        QVERIFY(firstWon || second.waitFor("ready") >= 0);
        QVERIFY(loser.process().state() == QProcess::NotRunning || loser.process().waitForFinished(30000));
        QCOMPARE(loser.process().exitCode(), 1);
        const QString said = loser.errors();
        QVERIFY2(said.startsWith("Datenbank in Bearbeitung: "), qPrintable(said));
        QCOMPARE(QDir(m_dir->path()).entryList({"*.part*"}, QDir::Files), QStringList());

        KalProject third;
        QVERIFY(!third.openProject(file));
        QCOMPARE(m_prompt->titles(), QStringList{"Datenbank in Bearbeitung"});
    }

    // Instances on other computers sharing the folder may be in the middle of
    // opening or saving: their temporary files are theirs.
    void temporaryFilesOfOtherComputersSurvive()
    {
        const QString file = path("geteilt.pwp");
        QVERIFY(createProject(file, 1));
        const QStringList theirs{file + ".saving.LAPTOP.999999", file + ".workingcopy.part.LAPTOP.999999"};
        for (const QString &name : theirs)
            writeFile(name, "in Arbeit");
        KalProject project;
        QVERIFY(project.openProject(file));
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QVERIFY(project.closeProject());
        for (const QString &name : theirs)
            QVERIFY2(QFileInfo::exists(name), qPrintable(name));
    }

    void saveAsOntoHeldProject_data()
    {
        QTest::addColumn<QString>("source"); // "new", "opened", "cli": pellwick-cli new
        QTest::addColumn<bool>("targetFileExists");
        QTest::newRow("new project onto held file") << "new" << true;
        QTest::newRow("opened project onto held file") << "opened" << true;
        QTest::newRow("held project whose file was removed") << "new" << false;
        QTest::newRow("command line new onto held project") << "cli" << false;
    }

    void saveAsOntoHeldProject()
    {
        QFETCH(QString, source);
        QFETCH(bool, targetFileExists);
        const QString target = path("belegt.pwp");
        QVERIFY(createProject(target, 3));
        KalHolderProcess holder("hold", target);
        QVERIFY(holder.waitFor("ready") >= 0);
        if (!targetFileExists)
            QVERIFY(QFile::remove(target));
        const QStringList before = folderState(m_dir->path()).filter("belegt");
        const QByteArray heldCopy = fileHash(target + ".workingcopy");
        if (source == "cli") {
            const KalCliRun cli = kalCli({"new", target});
            QVERIFY(cli.code > 0);
            QVERIFY(cli.err.contains("Datenbank in Bearbeitung"));
            QCOMPARE(folderState(m_dir->path()).filter("belegt"), before);
            return;
        }

        KalProject project;
        const QString own = path("eigen.pwp");
        QVERIFY(source == "new" ? project.newProject() : (createProject(own, 1) && project.openProject(own)));
        m_prompt->clear();
        QCOMPARE(project.saveProject(target), int(KalProject::SaveFailed));
        QCOMPARE(m_prompt->titles(), QStringList{"Datenbank in Bearbeitung"});
        QVERIFY2(m_prompt->texts().first().contains("User: alice\nComputer: PC-17\n"),
                 qPrintable(m_prompt->texts().first()));
        QCOMPARE(folderState(m_dir->path()).filter("belegt"), before);
        QCOMPARE(fileHash(target + ".workingcopy"), heldCopy);
        QVERIFY(project.isOpen());
        QVERIFY(KalDefects(project).add() > 0);
        QVERIFY(project.closeProject());

        // The holder still has it to itself.
        if (targetFileExists) {
            KalProject third;
            QVERIFY(!third.openProject(target));
        }
    }

    // Another instance makes the target's working copy while ours is being
    // written: theirs stays, ours gives up with the holder message.
    void saveAsLosingTheRaceForTheWorkingCopy()
    {
        const QString target = path("ziel.pwp");
        const QString theirs = target + ".workingcopy";
        KalProject project;
        QVERIFY(project.newProject());
        KalFileOps::setFaultHook([&](const QString &operation, const QString &file) {
            if (operation == "install" && file == theirs)
                writeFile(theirs, "die andere Instanz");
            return false;
        });
        const int result = project.saveProject(target);
        KalFileOps::setFaultHook({});
        QCOMPARE(result, int(KalProject::SaveFailed));
        QCOMPARE(m_prompt->titles(), QStringList{"Datenbank in Bearbeitung"});
        QFile file(theirs);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("die andere Instanz"));
        QVERIFY(!QFileInfo::exists(target));
        QVERIFY(project.isOpen());
    }

    // The volume reports plenty of room: the write itself must fail.
    void fullDiskDuringSave()
    {
        SmallVolume volume(path("klein"), "600k");
        if (!volume.mounted())
            QSKIP("needs root to mount a small file system");
        const QString file = path("klein/p.pwp");
        QVERIFY(createProject(file, 1));
        KalEnvironment::setVolumeInfoFunction([](const QString &) {
            return KalEnvironment::VolumeInfo{true, true, qint64(1) << 40, "tmpfs"};
        });
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY(project.beginTransaction());
        QSqlQuery q(project.database());
        q.prepare("INSERT INTO filter_state (id, key, value) VALUES (:id, 'ballast', :v)");
        for (int i = 1; i <= 4; ++i) {
            q.bindValue(":id", i);
            q.bindValue(":v", QString(60000, QChar('a' + i)));
            q.exec();
        }
        project.commitTransaction();
        const QByteArray before = fileHash(file);
        QCOMPARE(project.saveProject(), int(KalProject::SaveFailed));
        QCOMPARE(fileHash(file), before);
        QCOMPARE(integrity(file), QStringLiteral("ok"));
        QVERIFY(project.isOpen());
    }

    void leftoverWorkingCopyUnderFaults_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("textStart");
        auto row = [](const char *name, const char *fault, bool opens, const char *title, const char *text) {
            QTest::newRow(name) << fault << opens << title << text;
        };
        row("disk full", "full", false, "Speicherplatz nicht ausreichend", "Auf dem Laufwerk ");
        row("read-only folder", "readonly", false, "Dateifehler", "Sie haben keine Schreibrechte für die Datei");
        row("not a database", "garbage", true, "", "");
    }

    // A crashed run's unsaved work is discarded only when it is somebody
    // else's or no database at all; any other failure keeps it.
    void leftoverWorkingCopyUnderFaults()
    {
        QFETCH(QString, fault);
        QFETCH(bool, opens);
        QFETCH(QString, title);
        QFETCH(QString, textStart);
        SmallVolume volume(path("klein"), "1m");
        if (!volume.mounted())
            QSKIP("needs root to mount a small file system");
        const QString file = path("klein/p.pwp");
        QVERIFY(createProject(file, 1));
        QVERIFY(leaveCrashedWorkingCopy(file));
        if (fault == "garbage")
            writeFile(file + ".workingcopy", QByteArray(8192, '\x5a'));
        else if (fault == "full")
            volume.fill();
        else
            QVERIFY(volume.makeReadOnly());
        KalProject project;
        QCOMPARE(project.openProject(file), opens);
        if (opens) {
            QCOMPARE(project.model("defect")->rowCount(), 1);
            QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join("|")));
            return;
        }
        QCOMPARE(m_prompt->titles(), QStringList{title});
        QVERIFY2(m_prompt->texts().first().startsWith(textStart), qPrintable(m_prompt->texts().first()));
        QCOMPARE(scalar(file + ".workingcopy", "SELECT description FROM defect WHERE id = 77"),
                 QStringLiteral("ungesichert"));
        QVERIFY(QFileInfo::exists(file + ".udf"));
    }

    void journalBesideProject_data()
    {
        QTest::addColumn<QString>("companion");
        QTest::addColumn<int>("rows"); // defects the project shows
        QTest::newRow("hot journal of a crashed writer") << "hot" << 3;
        QTest::newRow("garbage that is no hot journal") << "garbage" << 3;
        QTest::newRow("WAL with a committed row") << "wal" << 4;
    }

    // A journal or WAL beside a sound file is SQLite's business: an
    // unfinished transaction is rolled back, a committed one kept, nothing is
    // called damaged or replaced, and the saved file is a plain one again.
    void journalBesideProject()
    {
        QFETCH(QString, companion);
        QFETCH(int, rows);
        const QString original = path("original.pwp");
        const QString file = path("p.pwp");
        QVERIFY(createProject(original, 3));
        QVERIFY(QFile::copy(original, KalProject::backupFileName(file, 0)));
        if (companion == "hot") {
            // A writer killed in the middle of a transaction.
            QStringList inserts;
            for (int i = 0; i < 200; ++i)
                inserts << QStringLiteral("INSERT INTO defect (id, description) VALUES (%1, '%2')")
                               .arg(1000 + i)
                               .arg(QString(2000, 'x'));
            QVERIFY(copyWhileWriting(original, file, inserts, false));
        } else if (companion == "wal") {
            // Another SQLite tool switched the file to WAL; its row is only in the WAL.
            QVERIFY(copyWhileWriting(original, file, {"INSERT INTO defect (id, description) VALUES (500, 'im WAL')"},
                                     true));
        } else {
            QVERIFY(QFile::copy(original, file));
            writeFile(file + "-journal", QByteArray(3000, '\x7f'));
        }
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->titles().join(", ")));
        QCOMPARE(project.model("defect")->rowCount(), rows);
        QVERIFY(KalDefects(project).add() > 0);
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QVERIFY(project.closeProject());
        QCOMPARE(QDir(m_dir->path()).entryList({"*ERROR*", "p.pwp-*"}), QStringList());
        QCOMPARE(scalar(file, "PRAGMA journal_mode"), QStringLiteral("delete"));
        QCOMPARE(countRows(file, "defect"), rows + 1);
        QCOMPARE(integrity(file), QStringLiteral("ok"));
    }

    void backupsThatAreNoProject_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("empty file") << "empty";
        QTest::newRow("SQLite file of another program") << "foreign";
        QTest::newRow("named pipe") << "fifo";
    }

    void backupsThatAreNoProject()
    {
        QFETCH(QString, kind);
        const QString file = path("p.pwp");
        QVERIFY(createProject(file, 1));
        const QString slot0 = KalProject::backupFileName(file, 0);
        const QString slot1 = KalProject::backupFileName(file, 1);
        QVERIFY(QFile::copy(file, slot1));
        if (kind == "empty")
            writeFile(slot0, "");
        else if (kind == "foreign")
            QVERIFY(execute(slot0, {"CREATE TABLE notes (id INTEGER PRIMARY KEY, text TEXT)"}));
        else
            QCOMPARE(::mkfifo(QFile::encodeName(slot0).constData(), 0600), 0);
        int count = 0;
        QCOMPARE(KalProject::findNewestIntactBackup(file, &count), slot1);
        QCOMPARE(count, 2);
    }

    void companionsThatAreNoFiles_data()
    {
        QTest::addColumn<QString>("companion");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("leftover");
        auto row = [](const char *name, const char *companion, const char *kind, bool leftover) {
            QTest::newRow(name) << companion << kind << leftover;
        };
        row("user file is a pipe", ".udf", "pipe", false);
        row("user file is a pipe, working copy left", ".udf", "pipe", true);
        row("working copy is a pipe", ".workingcopy", "pipe", false);
        row("user file links to the project", ".udf", "link", false);
        row("working copy links to the project", ".workingcopy", "link", false);
    }

    // A pipe must not make opening wait forever; nothing is written through
    // a link onto the file it points to.
    void companionsThatAreNoFiles()
    {
        QFETCH(QString, companion);
        QFETCH(QString, kind);
        QFETCH(bool, leftover);
        const QString file = path("p.pwp");
        QVERIFY(createProject(file, 1));
        if (leftover)
            QVERIFY(QFile::copy(file, file + ".workingcopy"));
        if (kind == "pipe")
            QCOMPARE(::mkfifo(QFile::encodeName(file + companion).constData(), 0600), 0);
        else
            QVERIFY(QFile::link(file, file + companion));
        const QByteArray before = fileHash(file);
        KalProject project;
        QCOMPARE(project.openProject(file), kind == "pipe");
        if (kind == "link") {
            QCOMPARE(m_prompt->titles(), QStringList{"Dateifehler"});
            QCOMPARE(fileHash(file), before);
            return;
        }
        QCOMPARE(project.model("defect")->rowCount(), 1);
        QVERIFY(project.closeProject());
        QVERIFY(!QFileInfo::exists(file + companion));
    }

    void savedFileKeepsModeAndGroup_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("saveAs");
        QTest::newRow("group-writable, save") << 0664 << false;
        QTest::newRow("private, save") << 0600 << false;
        QTest::newRow("group-writable, save as onto it") << 0660 << true;
    }

    void savedFileKeepsModeAndGroup()
    {
        QFETCH(int, mode);
        QFETCH(bool, saveAs);
        const QString file = path("geteilt.pwp");
        QVERIFY(createProject(file, 1));
        QCOMPARE(::chmod(QFile::encodeName(file).constData(), mode_t(mode)), 0);
        const gid_t group = ::geteuid() == 0 ? 4242 : ::getegid();
        QCOMPARE(::chown(QFile::encodeName(file).constData(), uid_t(-1), group), 0);
        KalProject project;
        if (saveAs)
            QVERIFY(project.newProject());
        else
            QVERIFY(project.openProject(file));
        QVERIFY(KalDefects(project).add() > 0);
        QCOMPARE(project.saveProject(saveAs ? file : QString()), int(KalProject::Saved));
        QVERIFY(project.closeProject());
        QCOMPARE(int(fileMode(file).mode), mode);
        QCOMPARE(fileMode(file).group, group);
    }

    void saveAsAfterSessionOfWork_data()
    {
        QTest::addColumn<QString>("work");
        QTest::newRow("write transaction open") << "transaction";
        QTest::newRow("cancelled counted transaction") << "rollback";
        QTest::newRow("after compacting") << "vacuum";
        QTest::newRow("after a failed save") << "failedsave";
    }

    void saveAsAfterSessionOfWork()
    {
        QFETCH(QString, work);
        const QString file = path("projekt mit blank.pwp");
        QVERIFY(createProject(file, 2));
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY(KalDefects(project).add() > 0);
        QSqlQuery query(project.database());
        if (work == "transaction") {
            QVERIFY(query.exec("BEGIN"));
            QVERIFY(query.exec("UPDATE defect SET description = 'offen' WHERE id = 1"));
        } else if (work == "rollback") {
            QVERIFY(project.beginTransaction());
            QVERIFY(project.beginTransaction());
            QVERIFY(query.exec("UPDATE defect SET description = 'verworfen' WHERE id = 1"));
            QVERIFY(project.rollbackTransaction());
            project.commitTransaction();
        } else if (work == "vacuum") {
            QVERIFY(project.vacuumDatabase(true));
        } else {
            // A target below a folder that does not exist (a remembered
            // folder that was no folder) fails before anything is written.
            QCOMPARE(project.saveProject(path("sa.pwp/fehlt/x.pwp")), int(KalProject::SaveFailed));
            QCOMPARE(m_prompt->titles(), QStringList{"Dateifehler"});
            QVERIFY(m_prompt->texts().first().startsWith("Der Ordner"));
        }
        m_prompt->clear();
        const QString target = path("sa.pwp");
        QCOMPARE(project.saveProject(target), int(KalProject::Saved));
        QVERIFY2(m_prompt->shown().isEmpty(), qPrintable(m_prompt->texts().join("|")));
        QVERIFY(project.closeProject());
        QCOMPARE(countRows(target, "defect"), 3);
        QCOMPARE(integrity(target), QStringLiteral("ok"));
    }
};

QTEST_GUILESS_MAIN(TstOpenSaveFaults)
#include "tst_opensave_faults.moc"
