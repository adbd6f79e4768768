#include "core/project/KalDefects.h"
#include "core/project/KalEnvironment.h"
#include "core/project/KalFileOps.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

using namespace KalTestFiles;

class TstLifecycle : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    std::unique_ptr<QTemporaryDir> m_dir;

    QString path(const QString &name) const { return m_dir->filePath(name); }

    static QVariantMap defect(const QString &description) { return {{QStringLiteral("description"), description}}; }

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
        QSettings().remove(QStringLiteral("File/NumberOfBackups"));
        KalEnvironment::setVolumeInfoFunction({});
        KalFileOps::setFaultHook({});
    }

    void newProjectLivesInTemporaryFolderUntilSaved()
    {
        KalProject project;
        QSignalSpy opened(&project, &KalProject::projectOpened);
        QVERIFY(project.newProject());
        QCOMPARE(opened.count(), 1);
        QVERIFY(project.isUntitled());
        const QString wc = project.workingCopyPath();
        QVERIFY(QFileInfo(wc).fileName().startsWith(QStringLiteral("kal_temp.")));
        QCOMPARE(QFileInfo(wc).absolutePath(), QFileInfo(QDir::tempPath()).absoluteFilePath());
        QCOMPARE(project.fileVersion(), QStringLiteral("0.1"));

        QCOMPARE(project.saveProject(), int(KalProject::SaveFailed));
        QCOMPARE(m_prompt->texts().last(), QStringLiteral("Dateiname fehlt."));
        QCOMPARE(m_prompt->titles().last(), QStringLiteral("interner Fehler"));

        QVERIFY(KalDefects(project).add(defect("erster")) > 0);
        const QString file = path("neu.pwp");
        QCOMPARE(project.saveProject(file), int(KalProject::Saved));
        QVERIFY(!QFileInfo::exists(wc));
        QCOMPARE(project.projectPath(), file);
        QVERIFY(QFileInfo::exists(file + ".workingcopy"));
        QVERIFY(!project.isModified());
        QVERIFY(project.closeProject());
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
        QVERIFY(!QFileInfo::exists(file + ".udf"));
        QCOMPARE(countRows(file, "defect"), 1);
        QCOMPARE(integrity(file), QStringLiteral("ok"));
    }

    void openMakesWorkingCopyAndUserFile()
    {
        const QString file = path("p.pwp");
        QVERIFY(createProject(file, 2));
        qputenv("USERNAME", "erika");
        qputenv("COMPUTERNAME", "BAUBUERO");
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY(QFileInfo::exists(file + ".workingcopy"));
        QFile udf(file + ".udf");
        QVERIFY(udf.open(QIODevice::ReadOnly | QIODevice::Text));
        const QStringList lines = QString::fromUtf8(udf.readAll()).split('\n');
        QCOMPARE(lines.size(), 6); // five lines, each ended by "\n"
        QCOMPARE(lines.at(0), QStringLiteral("erika"));
        QCOMPARE(lines.at(1), QStringLiteral("BAUBUERO"));
        QVERIFY(QRegularExpression("^\\d\\d:\\d\\d$").match(lines.at(3)).hasMatch());
        QCOMPARE(lines.at(4).toLongLong(), QCoreApplication::applicationPid());
        QVERIFY(m_prompt->shown().isEmpty());
        QVERIFY(project.closeProject());
        QVERIFY(!QFileInfo::exists(file + ".udf"));
        qunsetenv("USERNAME");
        qunsetenv("COMPUTERNAME");
    }

    void fileVersionAtOpen_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("opens");
        QTest::newRow("0.1") << "0.1" << true;
        QTest::newRow("empty") << "" << true;
        QTest::newRow("missing key") << "<none>" << true;
        QTest::newRow("half text") << "0.x" << true;
        QTest::newRow("three parts, same major and minor") << "0.1.7" << true;
        QTest::newRow("1.0") << "1.0" << false;
        QTest::newRow("three parts: the first two decide") << "0.2.1" << false;
        QTest::newRow("leading zeros") << "00.02" << false;
    }

    void fileVersionAtOpen()
    {
        QFETCH(QString, version);
        QFETCH(bool, opens);
        const QString file = path("v.pwp");
        QVERIFY(createProject(file, 1));
        if (version == "<none>")
            QVERIFY(execute(file, {"DELETE FROM meta WHERE key='fileversion'"}));
        else
            QVERIFY(execute(file, {QStringLiteral("UPDATE meta SET value='%1' WHERE key='fileversion'").arg(version)}));
        const QStringList before = folderState(m_dir->path());
        KalProject project;
        QCOMPARE(project.openProject(file), opens);
        if (opens) {
            QVERIFY(m_prompt->shown().isEmpty());
            QCOMPARE(project.saveProject(), int(KalProject::Saved));
            QCOMPARE(scalar(file, "SELECT value FROM meta WHERE key='fileversion'"), QStringLiteral("0.1"));
        } else {
            QCOMPARE(m_prompt->texts(), QStringList{"Die Datei kann nicht geöffnet werden, da sie mit einer neueren "
                                                    "Programmversion erstellt wurde."});
            QCOMPARE(folderState(m_dir->path()), before);
        }
    }

    // Backups move down the chain once per opening; further saves in the
    // same opening only replace the newest.
    void backups_data()
    {
        QTest::addColumn<int>("kept");           // the "File/NumberOfBackups" setting
        QTest::addColumn<QString>("openings");   // saves per opening, one digit each
        QTest::addColumn<QList<int>>("defects"); // in the file, .bak, .01.bak, ...; -1: no such file
        QTest::newRow("one backup per opening") << 3 << "111" << QList<int>{3, 2, 1, 0, -1};
        QTest::newRow("the oldest goes first") << 3 << "1111" << QList<int>{4, 3, 2, 1, -1};
        QTest::newRow("a second save replaces the newest") << 3 << "12" << QList<int>{3, 2, 0, -1};
        QTest::newRow("switched off") << 0 << "1" << QList<int>{1, -1};
    }

    void backups()
    {
        QFETCH(int, kept);
        QFETCH(QString, openings);
        QFETCH(QList<int>, defects);
        QSettings().setValue("File/NumberOfBackups", kept);
        const QString file = path("p.pwp");
        QVERIFY(createProject(file, 0));
        for (const QChar saves : openings) {
            KalProject project;
            QVERIFY(project.openProject(file));
            for (int i = 0; i < saves.digitValue(); ++i) {
                QVERIFY(KalDefects(project).add(defect("neu")) > 0);
                QCOMPARE(project.saveProject(), int(KalProject::Saved));
            }
            QVERIFY(project.closeProject());
        }
        for (int slot = -1; slot + 1 < defects.size(); ++slot) {
            const QString name = slot < 0 ? file : KalProject::backupFileName(file, slot);
            if (defects.at(slot + 1) < 0)
                QVERIFY2(!QFileInfo::exists(name), qPrintable(name));
            else
                QCOMPARE(countRows(name, "defect"), defects.at(slot + 1));
        }
        QVERIFY(m_prompt->shown().isEmpty());
    }

    void restoreNaming_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("expected");
        QTest::newRow("free") << QStringList{} << "proj.ERROR.pwp";
        QTest::newRow("first taken") << QStringList{"proj.ERROR.pwp"} << "proj.ERROR.01.pwp";
        QStringList nine{"proj.ERROR.pwp"};
        for (int i = 1; i <= 9; ++i)
            nine << QStringLiteral("proj.ERROR.0%1.pwp").arg(i);
        QTest::newRow("nine taken") << nine << "proj.ERROR.10.pwp";
    }

    void restoreNaming()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, expected);
        const QString file = path("proj.pwp");
        const QString backup = path("proj.pwp.bak");
        QVERIFY(createProject(file, 1));
        QVERIFY(createProject(backup, 2));
        for (const QString &name : existing) {
            QFile f(path(name));
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
        // A journal beside the damaged file belongs to it and goes along.
        QVERIFY(writeFile(file + "-journal", "zum beschaedigten Stand"));
        QString damagedName, error;
        QCOMPARE(KalProject::restoreBackup(file, backup, &damagedName, &error), int(KalProject::Restored));
        QCOMPARE(damagedName, path(expected));
        QVERIFY(!QFileInfo::exists(file + "-journal"));
        QFile moved(damagedName + "-journal");
        QVERIFY(moved.open(QIODevice::ReadOnly));
        QCOMPARE(moved.readAll(), QByteArray("zum beschaedigten Stand"));
        QVERIFY(moved.remove()); // read-only, SQLite refuses a file with a journal it cannot replay
        QCOMPARE(countRows(path(expected), "defect"), 1);
        QCOMPARE(countRows(file, "defect"), 2);
    }

    void restoreFailures_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("error");
        QTest::newRow("empty path") << "" << 1 << "";
        QTest::newRow("missing file") << "nicht.pwp" << 2 << "";
        // Every "pwp" in the path goes, folders included: the renamed file
        // would land in a folder that does not exist.
        QTest::newRow("suffix in folder name")
            << "pwpdaten/proj.pwp" << 3 << "Die Datei proj.pwp konnte nicht in proj.ERROR.pwp umbenannt werden.";
        QTest::newRow("backup missing") << "proj.pwp" << 4 << "Fehler beim Kopieren der Backup-Datei fehlt.bak.";
    }

    void restoreFailures()
    {
        QFETCH(QString, project);
        QFETCH(int, result);
        QFETCH(QString, error);
        QDir(m_dir->path()).mkpath("pwpdaten");
        QString file;
        if (!project.isEmpty()) {
            file = path(project);
            if (!project.startsWith("nicht"))
                QVERIFY(createProject(file, 1));
        }
        const QByteArray before = fileHash(file);
        QString damaged, text;
        QCOMPARE(KalProject::restoreBackup(file, path("fehlt.bak"), &damaged, &text), result);
        QCOMPARE(text, error);
        if (result >= 3)
            QCOMPARE(fileHash(file), before); // the project file is where it was
    }

    void hostileFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("textStart");
        const QString damaged = "Die interne Struktur der Mängel-Datenbank ist beschädigt.";
        auto row = [](const char *name, const QByteArray &content, const char *title, const QString &text) {
            QTest::newRow(name) << content << QString(title) << text;
        };
        // Another program's SQLite file: a database, but not a project.
        QTemporaryDir dir;
        const QString other = dir.filePath("fremd.db");
        QVERIFY(execute(other, {"CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT NOT NULL)",
                                "CREATE TABLE rechnung (id INTEGER PRIMARY KEY, betrag REAL)"}));
        QFile file(other);
        QVERIFY(file.open(QIODevice::ReadOnly));
        row("missing file", "<missing>", "Dateifehler", "Die Datei\n%1\nexistiert nicht.");
        row("zero bytes", QByteArray(), "Datenbankfehler", "Tabelle KAL fehlt");
        row("other SQLite file", file.readAll(), "Datenbankfehler", "Tabelle KAL fehlt");
        row("random bytes", QByteArray("\x13\x37 definitely not sqlite \xff\xfe", 28).repeated(500),
            "Beschädigte Datenbank-Datei", damaged);
        row("text file", "Mangel;Firma\n1;Maler\n", "Beschädigte Datenbank-Datei", damaged);
    }

    void hostileFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, title);
        QFETCH(QString, textStart);
        const QString file = path("feindlich.pwp");
        if (content != "<missing>")
            QVERIFY(writeFile(file, content));
        if (textStart.contains("%1"))
            textStart = textStart.arg(QDir::toNativeSeparators(file));
        const QStringList before = folderState(m_dir->path());
        KalProject project;
        QVERIFY(!project.openProject(file)); // cancelled or refused
        QVERIFY(!m_prompt->shown().isEmpty());
        QCOMPARE(m_prompt->shown().first().title, title);
        QVERIFY2(m_prompt->shown().first().text.startsWith(textStart), qPrintable(m_prompt->shown().first().text));
        QCOMPARE(folderState(m_dir->path()), before);
        QVERIFY(!project.isOpen());
    }

    void damagedFile_data()
    {
        QTest::addColumn<QString>("backups"); // "none", "intact", "damaged"
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<int>("defects");
        auto row = [](const char *name, const char *backups, const char *answer, bool opens, int defects) {
            QTest::newRow(name) << backups << answer << opens << defects;
        };
        row("restore newest intact backup", "intact", "Backup wiederherstellen", true, 2);
        row("cancel", "intact", "Abbrechen", false, -1);
        row("no backups, cancel", "none", "Abbrechen", false, -1);
        row("damaged backups, cancel", "damaged", "Abbrechen", false, -1);
    }

    void damagedFile()
    {
        QFETCH(QString, backups);
        QFETCH(QString, answer);
        QFETCH(bool, opens);
        QFETCH(int, defects);
        const QString file = path("kaputt.pwp");
        QVERIFY(createProject(file, 300));
        if (backups != "none") {
            QVERIFY(createProject(path("kaputt.pwp.01.bak"), 2));
            QVERIFY(createProject(path("kaputt.pwp.bak"), 1));
        }
        // Damage: cut off the second half of the file.
        auto truncate = [](const QString &f) {
            QFile file(f);
            return file.resize(file.size() / 2);
        };
        QVERIFY(truncate(file));
        if (backups == "damaged") {
            QVERIFY(truncate(path("kaputt.pwp.bak")));
            QVERIFY(truncate(path("kaputt.pwp.01.bak")));
        } else if (backups == "intact") {
            QVERIFY(truncate(path("kaputt.pwp.bak"))); // newest is damaged, the one before is not
        }
        QVERIFY(integrity(file) != "ok");

        m_prompt->queueAnswer(answer);
        KalProject project;
        QCOMPARE(project.openProject(file), opens);
        QVERIFY(!m_prompt->shown().isEmpty());
        const auto question = m_prompt->shown().first();
        QCOMPARE(question.title, QStringLiteral("Beschädigte Datenbank-Datei"));
        if (backups == "intact") {
            QVERIFY(question.text.contains("Das neueste unbeschädigte Backup stammt vom "));
            QCOMPARE(question.buttons.first(), QStringLiteral("Backup wiederherstellen"));
        } else if (backups == "none") {
            QVERIFY(question.text.contains("Es existieren keine Backup-Dateien."));
            QCOMPARE(question.buttons, (QStringList{"Beschädigte Datei öffnen", "Abbrechen"}));
        } else {
            QVERIFY(question.text.contains("Die Backup-Dateien sind ebenfalls beschädigt."));
        }
        if (opens) {
            QCOMPARE(m_prompt->shown().at(1).text,
                     QStringLiteral("Die Datei wurde erfolgreich wiederhergestellt und wird jetzt geöffnet.\nDie "
                                    "beschädigte Datei wurde umbenannt in %1.")
                         .arg(QDir::toNativeSeparators(path("kaputt.ERROR.pwp"))));
            QCOMPARE(project.model("defect")->rowCount(), defects);
            QVERIFY(QFileInfo::exists(path("kaputt.ERROR.pwp")));
        } else {
            QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
            QVERIFY(!QFileInfo::exists(path("kaputt.ERROR.pwp")));
        }
    }

    void damagedFileOpenedOnRequest()
    {
        const QString file = path("kaputt.pwp");
        QVERIFY(createProject(file, 400));
        // Overwrite two whole pages in the middle of the defect table.
        {
            QFile f(file);
            QVERIFY(f.open(QIODevice::ReadWrite));
            const qint64 pages = f.size() / 4096;
            QVERIFY(pages > 6);
            f.seek((pages / 2) * 4096);
            f.write(QByteArray(2 * 4096, '\x5a'));
        }
        QVERIFY(integrity(file) != "ok");
        m_prompt->queueAnswer("Beschädigte Datei öffnen");
        KalProject project;
        const bool opened = project.openProject(file);
        QCOMPARE(m_prompt->shown().first().title, QStringLiteral("Beschädigte Datenbank-Datei"));
        QCOMPARE(m_prompt->shown().first().answer, 0);
        // Either it opens (and the user works on at their own risk) or the
        // next step says why not; it never crashes and leaves no working copy.
        if (opened)
            QVERIFY(project.closeProject());
        else
            QVERIFY(m_prompt->shown().size() >= 2);
        QVERIFY(!QFileInfo::exists(file + ".workingcopy"));
    }

    // Free space is checked before anything is written: free = factor *
    // size of the project + offset.
    void lowSpace_data()
    {
        QTest::addColumn<QString>("step"); // open, save, saveas
        QTest::addColumn<QString>("volume");
        QTest::addColumn<int>("factor");
        QTest::addColumn<int>("offset");
        QTest::addColumn<bool>("done");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text"); // start; %1: the MB missing
        auto row = [](const char *name, const char *step, const char *volume, int factor, int offset, bool done,
                      const char *title, const QString &text) {
            QTest::newRow(name) << step << volume << factor << offset << done << title << text;
        };
        row("opening refused", "open", "/daten", 0, 1000, false, "Speicherplatz nicht ausreichend",
            "Auf dem Laufwerk /daten steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu öffnen.\n"
            "Geben Sie mindestens %1 MB Speicherplatz frei und versuchen Sie es erneut.");
        row("opening warns", "open", "D:", 2, 0, true, "Speicherplatz",
            "Sie sollten auf dem Laufwerk D: Speicherplatz freigeben");
        row("saving refused", "save", "/voll", 0, 0, false, "Speicherplatz nicht ausreichend",
            "Auf dem Ziellaufwerk /voll steht nicht genügend Speicherplatz zur Verfügung, um das Projekt zu "
            "speichern.");
        row("save as needs room for two copies", "saveas", "/usb", 2, -1, false, "", "");
    }

    void lowSpace()
    {
        QFETCH(QString, step);
        QFETCH(QString, volume);
        QFETCH(int, factor);
        QFETCH(int, offset);
        QFETCH(bool, done);
        QFETCH(QString, title);
        QFETCH(QString, text);
        const QString file = path("p.pwp");
        QVERIFY(createProject(file, 1));
        qint64 room = 0;
        auto setFree = [&](qint64 size) {
            room = factor * size + offset;
            KalEnvironment::setVolumeInfoFunction([=](const QString &) {
                return KalEnvironment::VolumeInfo{true, true, room, volume};
            });
        };
        KalProject project;
        const QRegularExpression others("^(?!p\\.pwp\\.(workingcopy|udf))");
        QStringList before = folderState(m_dir->path());
        const qint64 size = QFileInfo(file).size();
        if (step == "open") {
            setFree(size);
            QCOMPARE(project.openProject(file), done);
        } else {
            QVERIFY(project.openProject(file));
            QVERIFY(KalDefects(project).add(defect("ungespeichert")) > 0);
            before = folderState(m_dir->path()).filter(others);
            setFree(QFileInfo(project.workingCopyPath()).size());
            QCOMPARE(project.saveProject(step == "saveas" ? path("kopie.pwp") : QString()),
                     int(KalProject::SaveFailed));
        }
        if (!title.isEmpty()) {
            QCOMPARE(m_prompt->titles(), QStringList{title});
            const QString expected = text.contains("%1") ? text.arg((size - room) / 1000000) : text;
            QVERIFY2(m_prompt->texts().first().startsWith(expected), qPrintable(m_prompt->texts().first()));
        }
        if (step == "open") {
            if (!done)
                QCOMPARE(folderState(m_dir->path()), before);
            return;
        }
        QCOMPARE(folderState(m_dir->path()).filter(others), before);
        // Still open with the unsaved defect, and saved once there is room.
        QVERIFY(project.isOpen());
        QCOMPARE(project.projectPath(), file);
        KalEnvironment::setVolumeInfoFunction({});
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QCOMPARE(countRows(file, "defect"), 2);
    }

    // A save that fails on the way leaves the project file as it was, no
    // half-written file beside it, and the edits open for the next try.
    void saveFailuresLeaveProjectFileUnchanged_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::newRow("writing the new file") << "snapshot";
        QTest::newRow("syncing it") << "sync";
        QTest::newRow("replacing the project file") << "replace";
        QTest::newRow("folder refusing writes") << "immutable";
    }

    void saveFailuresLeaveProjectFileUnchanged()
    {
        QFETCH(QString, fault);
        const QString folder = path("gesperrt");
        QDir().mkpath(folder);
        const QString file = folder + "/p.pwp";
        QVERIFY(createProject(file, 1));
        KalProject project;
        QVERIFY(project.openProject(file));
        QVERIFY(KalDefects(project).add(defect("neu")) > 0);
        const QByteArray before = fileHash(file);
        if (fault != "immutable")
            KalFileOps::setFaultHook([fault](const QString &op, const QString &) { return op == fault; });
        else if (QProcess::execute("chattr", {"+i", folder}) != 0)
            QSKIP("cannot make the folder immutable here");
        const int result = project.saveProject();
        KalFileOps::setFaultHook({});
        if (fault == "immutable")
            QProcess::execute("chattr", {"-i", folder});
        QCOMPARE(result, int(KalProject::SaveFailed));
        QCOMPARE(m_prompt->titles().last(), QStringLiteral("Dateifehler"));
        QCOMPARE(fileHash(file), before);
        QCOMPARE(integrity(file), QStringLiteral("ok"));
        QVERIFY(project.isOpen());
        QCOMPARE(project.model("defect")->rowCount(), 2);
        const QStringList leftovers = QDir(folder).entryList({"*.saving.*"}, QDir::Files | QDir::Hidden);
        QVERIFY2(leftovers.isEmpty(), qPrintable(leftovers.join(',')));
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QCOMPARE(countRows(file, "defect"), 2);
    }

    // Save as moves the session to the new file (working copy, user file,
    // later saves), also away from a file that may not be written.
    void saveAsMovesTheSession_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::newRow("writable file") << false;
        QTest::newRow("write-protected file") << true;
    }

    void saveAsMovesTheSession()
    {
        QFETCH(bool, readOnly);
        const QString file = path("alt.pwp");
        QVERIFY(createProject(file, 1));
        if (readOnly)
            QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        KalProject project;
        QVERIFY(project.openProject(file));
        QCOMPARE(project.isWriteProtected(), readOnly);
        QCOMPARE(m_prompt->titles(), readOnly ? QStringList{"Datei-Warnung"} : QStringList());
        QVERIFY(KalDefects(project).add(defect("nur im neuen")) > 0);
        const QByteArray before = fileHash(file);
        if (readOnly) {
            QCOMPARE(project.saveProject(), int(KalProject::NotSaved));
            QCOMPARE(m_prompt->titles().last(), QStringLiteral("Speicher-Fehler"));
        }
        const QString target = path("neu.pwp");
        QCOMPARE(project.saveProject(target), int(KalProject::Saved));
        QVERIFY(!project.isWriteProtected());
        for (const char *companion : {".workingcopy", ".udf"}) {
            QVERIFY(!QFileInfo::exists(file + companion));
            QVERIFY(QFileInfo::exists(target + companion));
        }
        QCOMPARE(fileHash(file), before);
        QCOMPARE(countRows(target, "defect"), 2);
        QVERIFY(!QFileInfo::exists(target + ".bak")); // save as makes no backups
        QVERIFY(KalDefects(project).add(defect("danach")) > 0);
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QCOMPARE(countRows(target, "defect"), 3);
        QVERIFY(project.closeProject());
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    }

    void idsContinueFromForeignFile()
    {
        // A file written by another tool: rows with ids up to 10, counter at 500.
        const QString file = path("fremd.pwp");
        QVERIFY(createProject(file, 0));
        QStringList statements;
        for (int i = 1; i <= 10; ++i)
            statements << QStringLiteral("INSERT INTO defect (id, description) VALUES (%1, 'alt %1')").arg(i);
        statements << "INSERT INTO id_generator (id_table, id_counter) VALUES ('defect', 500)";
        QVERIFY(execute(file, statements));
        KalProject project;
        QVERIFY(project.openProject(file));
        QCOMPARE(KalDefects(project).add(defect("neu")), qint64(501));
        QCOMPARE(project.nextId("company"), qint64(1));
        QCOMPARE(project.saveProject(), int(KalProject::Saved));
        QVERIFY(project.closeProject());
        QCOMPARE(scalar(file, "SELECT id_counter FROM id_generator WHERE id_table='defect'"), QStringLiteral("501"));
    }

    void sizeTexts_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << qint64(0) << "0 KB";
        QTest::newRow("just below a MB") << qint64(1023999) << "999 KB";
        QTest::newRow("one MB") << qint64(1024000) << "1 MB";
        QTest::newRow("a binary MB is still 1") << qint64(1048576) << "1 MB";
        QTest::newRow("large") << qint64(1024000) * 1500 + 7 << "1500 MB";
    }

    void sizeTexts()
    {
        QFETCH(qint64, bytes);
        QFETCH(QString, text);
        QCOMPARE(KalProject::sizeText(bytes), text);
    }

    void vacuumShrinksAndSaves()
    {
        const QString file = path("gross.pwp");
        {
            KalProject project;
            QVERIFY(project.newProject());
            QVERIFY(project.beginTransaction());
            QSqlQuery q(project.database());
            q.prepare("INSERT INTO filter_state (id, key, value) VALUES (:id, 'ballast', :v)");
            for (int i = 1; i <= 60; ++i) {
                q.bindValue(":id", i);
                q.bindValue(":v", QString(50000, QChar('x' + i % 3)));
                QVERIFY(q.exec());
            }
            QVERIFY(project.commitTransaction());
            QCOMPARE(project.saveProject(file), int(KalProject::Saved));
            QVERIFY(QSqlQuery(project.database()).exec("DELETE FROM filter_state"));
            QCOMPARE(project.saveProject(), int(KalProject::Saved));
            QVERIFY(project.closeProject());
        }
        const qint64 before = QFileInfo(file).size();
        KalProject project;
        QVERIFY(project.openProject(file));
        m_prompt->clear();
        QVERIFY(project.vacuumDatabase(false));
        QVERIFY(project.isOpen());
        QCOMPARE(m_prompt->titles(), (QStringList{"Datenbank bereinigen", "Datenbank bereinigen"}));
        QVERIFY(m_prompt->texts().first().startsWith("Die Datenbank wird jetzt bereinigt."));
        QCOMPARE(
            m_prompt->texts().last(),
            QStringLiteral("Die Datenbank wurde erfolgreich bereinigt.\nDie Dateigröße wurde von %1 auf %2 reduziert.")
                .arg(KalProject::sizeText(before), KalProject::sizeText(QFileInfo(file).size())));
        QVERIFY(QFileInfo(file).size() < before);
        QVERIFY(project.closeProject());

        // Nothing left to gain: the short message, and silent mode skips the notice.
        QVERIFY(project.openProject(file));
        m_prompt->clear();
        QVERIFY(project.vacuumDatabase(true));
        QCOMPARE(m_prompt->texts(), QStringList{"Die Datenbank wurde erfolgreich bereinigt.\n"});
    }
};

QTEST_GUILESS_MAIN(TstLifecycle)
#include "tst_lifecycle.moc"
