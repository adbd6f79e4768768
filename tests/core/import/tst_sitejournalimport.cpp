// The site-journal import as the user meets it: what lands in which project
// column, which companies come along, the questions of an update and what
// each answer does, unchanged journals, and journals continued in new files.
#include "core/import/KalDataImportConflictResolver.h"
#include "core/import/KalSiteJournalDataImport.h"
#include "core/photos/KalPhotos.h"
#include "core/project/KalProject.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestFiles.h"
#include "support/KalTestImages.h"
#include "support/KalTestJournal.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QTemporaryDir>
#include <QtTest>

using Mode = KalSiteJournalDataImport::Mode;

namespace {

// Answers every conflict with the first candidate and remembers what it saw.
class FirstCandidate : public KalDataImportConflictResolver
{
public:
    qint64 assign(const JournalDefect &defect, const QList<qint64> &candidates) override
    {
        asked << defect.number;
        return candidates.value(0, -1);
    }
    QStringList asked;
};

} // namespace

class TstSiteJournalImport : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    KalTestProject m_fx;
    KalScriptedPrompt *m_prompt = nullptr;
    FirstCandidate m_resolver;
    int m_files = 0;

    QString newPath(const QString &name = QStringLiteral("journal"))
    {
        return m_dir.filePath(QStringLiteral("%1_%2.sjd").arg(name).arg(++m_files));
    }

    KalDataImportResult import(const QString &path, Mode mode, int automatic = -1)
    {
        KalSiteJournalDataImport engine(m_fx.project(), m_prompt, nullptr, &m_resolver);
        engine.setAutomaticImportMode(automatic);
        return engine.run(path, mode);
    }

    QVariant sql(const QString &statement) { return m_fx.value(statement); }

    // A journal with one trade, one report with defects "1" and "2" (the
    // first with a photo without caption and date), imported into the project.
    QString importBasic()
    {
        const QString path = newPath();
        KalTestJournal j(path);
        const qint64 company = j.addCompany(QStringLiteral("Roth GmbH"), QStringLiteral("Maler"));
        const qint64 report = j.addReport(QStringLiteral("7"));
        const qint64 d1 = j.addDefect(report, QStringLiteral("1"), QStringLiteral("Riss"), {{"company_id", company}});
        j.addDefect(report, QStringLiteral("2"), QStringLiteral("Fleck"));
        j.addPhoto(d1, KalTestJournal::jpeg());
        j.close();
        const KalDataImportResult result = import(path, Mode::Initial, 1);
        if (result.outcome != KalDataImportResult::Outcome::Done)
            qWarning("%s", qPrintable(result.errorText));
        return path;
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QVERIFY(m_dir.isValid());
    }
    void init()
    {
        QVERIFY(m_fx.open());
        m_prompt = KalScriptedPrompt::install();
        m_resolver.asked.clear();
    }
    void cleanup() { m_fx.close(); }

    void columnMapping_data()
    {
        QTest::addColumn<QVariantMap>("journalDefect"); // columns of the journal item
        QTest::addColumn<QString>("projectValue");      // SQL on the imported defect
        QTest::addColumn<QVariant>("expected");

        const QString quoted = QStringLiteral("Riss in 'Wand' \"Nord\"; DROP TABLE defect; --");
        QTest::newRow("description with quotes")
            << QVariantMap{{"description", quoted}} << "SELECT description FROM defect" << QVariant(quoted);
        QTest::newRow("room and room book")
            << QVariantMap{{"roomname", "Flur"}, {"roombook_number", "R.12"}}
            << "SELECT roomname || '|' || roombook_number FROM defect" << QVariant("Flur|R.12");
        QTest::newRow("ISO date") << QVariantMap{{"date", "2024-05-06"}} << "SELECT creation_date FROM defect"
                                  << QVariant("2024-05-06");
        QTest::newRow("German date") << QVariantMap{{"date", "31.12.2023"}} << "SELECT creation_date FROM defect"
                                     << QVariant("2023-12-31");
        QTest::newRow("no date: the report's inspection day")
            << QVariantMap{} << "SELECT creation_date FROM defect" << QVariant("2024-03-01");
        QTest::newRow("unreadable deadline left empty")
            << QVariantMap{{"correction_date", "bald"}} << "SELECT IFNULL(correction_date, 'none') FROM defect"
            << QVariant("none");
        QTest::newRow("deadline") << QVariantMap{{"correction_date", "2024-06-30"}}
                                  << "SELECT correction_date FROM defect" << QVariant("2024-06-30");
        QTest::newRow("author from the report") << QVariantMap{} << "SELECT user_id FROM defect" << QVariant("MB");
        QTest::newRow("journal id only in site_journal_id")
            << QVariantMap{{"id", 9000}} << "SELECT site_journal_id || '|' || (id < 9000) FROM defect"
            << QVariant("9000|1");
        QTest::newRow("trade company mapped to its project row")
            << QVariantMap{{"company_id", 500}}
            << "SELECT c.company FROM defect d JOIN company c ON c.id = d.company_id" << QVariant("Roth GmbH");
        QTest::newRow("no company") << QVariantMap{{"company_id", -1}}
                                    << "SELECT IFNULL(company_id, 'none') FROM defect" << QVariant("none");
        QTest::newRow("dangling company")
            << QVariantMap{{"company_id", 777}} << "SELECT IFNULL(company_id, 'none') FROM defect" << QVariant("none");
        QTest::newRow("company that is no trade")
            << QVariantMap{{"company_id", 501}} << "SELECT IFNULL(company_id, 'none') FROM defect" << QVariant("none");
        QTest::newRow("report row") << QVariantMap{}
                                    << "SELECT r.number || '|' || r.site_journal_id FROM defect d JOIN "
                                       "imported_report r ON r.id = d.imported_report_id"
                                    << QVariant("7|40");
        QTest::newRow("text id read as number")
            << QVariantMap{{"id", "12"}} << "SELECT site_journal_id FROM defect" << QVariant(12);
    }
    void columnMapping()
    {
        QFETCH(QVariantMap, journalDefect);
        QFETCH(QString, projectValue);
        QFETCH(QVariant, expected);
        const QString path = newPath();
        {
            KalTestJournal j(path);
            j.addCompany(QStringLiteral("Roth GmbH"), QStringLiteral("Maler"), QStringLiteral("2"), {{"id", 500}});
            j.addCompany(QStringLiteral("Bauherr"), QStringLiteral(""), QStringLiteral("1"), {{"id", 501}});
            const qint64 report = j.addReport(QStringLiteral("7"), {{"id", 40}});
            QVERIFY(j.addDefect(report, QStringLiteral("3"), QStringLiteral("Riss"), journalDefect) > 0);
        }
        const QVariant kalBefore = sql(QStringLiteral("SELECT projectname || headline_left FROM kal"));
        const KalDataImportResult result = import(path, Mode::Initial);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(result.defects.added, 1);
        QCOMPARE(sql(projectValue).toString(), expected.toString());
        QCOMPARE(sql(QStringLiteral("SELECT projectname || headline_left FROM kal")), kalBefore);
        // The model shows the new row without a reload by the caller.
        QCOMPARE(m_fx.model(QStringLiteral("defect"))->rowCount(), 1);
    }

    void companies_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<int>("imported");
        QTest::newRow("trade") << "2" << 1;
        QTest::newRow("deleted in the journal") << "-2" << 0;
        QTest::newRow("client") << "1" << 0;
        QTest::newRow("empty") << "" << 0;
    }
    void companies()
    {
        QFETCH(QString, category);
        QFETCH(int, imported);
        const QString path = newPath();
        {
            KalTestJournal j(path);
            const qint64 company = j.addCompany(QStringLiteral("Weg AG"), QStringLiteral("Abbruch"), category);
            const qint64 closed = j.addReport(QStringLiteral("1"), {{"locked", "1"}});
            j.addDefect(closed, QStringLiteral("1"), QStringLiteral("x"), {{"company_id", company}});
        }
        const KalDataImportResult result = import(path, Mode::Initial);
        QCOMPARE(result.companies.added, imported);
        QCOMPARE(m_fx.count(QStringLiteral("company"), QStringLiteral("company = 'Weg AG'")), imported);
        // Companies of closed reports are noted, only when they were taken.
        QCOMPARE(m_fx.count(QStringLiteral("imported_closed_report_company")), imported);
    }

    void firstImport()
    {
        const QString path = newPath();
        const QByteArray stored = KalTestJournal::jpeg(QSize(800, 600));
        {
            KalTestJournal j(path);
            j.addCompany(QStringLiteral("Roth GmbH"), QStringLiteral("Maler"));
            const qint64 report = j.addReport(QStringLiteral("1"));
            const qint64 d1 = j.addDefect(report, QStringLiteral("1"), QStringLiteral("Riss"));
            const qint64 d2 = j.addDefect(report, QStringLiteral("2"), QStringLiteral("Fleck"));
            j.addPhoto(d1, stored, QStringLiteral("Nord"), QDate(2024, 3, 2));
            j.addPhoto(d1, KalTestImages::encoded(KalTestImages::marked(QSize(300, 200)), "png"),
                       QStringLiteral("als PNG"), QDate(), QStringLiteral("image/png"));
            j.addPhoto(d1, stored, QStringLiteral("Daumen kaputt"), QDate(), QStringLiteral("image/jpeg"),
                       QByteArrayLiteral("kein JPEG"));
            j.addPhoto(d2, KalTestImages::pngHeaderOnly(QSize(20000, 20000)), QStringLiteral("riesig"));
            j.addPhoto(d2, QByteArrayLiteral("kein Bild"), QStringLiteral("kaputt"));
            j.addPhoto(d2, stored.left(stored.size() / 2), QStringLiteral("abgeschnitten"));
        }
        const KalDataImportResult result = import(path, Mode::Initial, 2);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(result.text().section(QLatin1Char('\n'), 0, 0),
                 QStringLiteral("Es wurden 1 Firma und 2 Mängel mit 3 Fotos importiert."));
        QCOMPARE(result.skippedPhotos.size(), 3);
        QVERIFY(result.text().contains(QStringLiteral("riesig")));
        QVERIFY(result.text().contains(QStringLiteral("kaputt")));
        QVERIFY(result.text().contains(QStringLiteral("abgeschnitten")));
        // A picture that meets the storage rule is taken over as it is; the PNG is stored as JPEG.
        QCOMPARE(sql(QStringLiteral("SELECT image FROM image i JOIN photo_info p ON p.image_id = i.id WHERE "
                                    "p.caption = 'Nord'"))
                     .toByteArray(),
                 stored);
        QCOMPARE(sql(QStringLiteral("SELECT image_ct FROM image i JOIN photo_info p ON p.image_id = i.id WHERE "
                                    "p.caption = 'als PNG'"))
                     .toString(),
                 QStringLiteral("image/jpeg"));
        QCOMPARE(sql(QStringLiteral("SELECT group_concat(image_cnt) FROM (SELECT image_cnt FROM defect ORDER BY "
                                    "number)"))
                     .toString(),
                 QStringLiteral("3,0"));
        // A broken thumbnail is made anew from the picture.
        const QByteArray thumbnail = sql(QStringLiteral("SELECT thumbnail FROM image i JOIN photo_info p ON "
                                                        "p.image_id = i.id WHERE p.caption = 'Daumen kaputt'"))
                                         .toByteArray();
        QVERIFY(!QImage::fromData(thumbnail).isNull());
        QCOMPARE(sql(QStringLiteral("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'")).toString(),
                 QDir::toNativeSeparators(path));
        QCOMPARE(sql(QStringLiteral("SELECT value FROM meta WHERE key = 'automaticImportMode'")).toString(),
                 QStringLiteral("2"));
        QCOMPARE(m_fx.project()->automaticImportMode(), 2);
        QVERIFY(m_fx.project()->isModified());
        // Ids handed out are known to the allocator: the next defect does not collide.
        const qint64 next = m_fx.project()->nextId(QStringLiteral("defect"));
        QVERIFY(next > sql(QStringLiteral("SELECT MAX(id) FROM defect")).toLongLong());
    }

    void resultWords_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("words");
        QTest::newRow("none") << 0 << "Firmen|Mängel|Fotos";
        QTest::newRow("one") << 1 << "Firma|Mangel|Foto";
        QTest::newRow("two") << 2 << "Firmen|Mängel|Fotos";
    }
    void resultWords()
    {
        QFETCH(int, count);
        QFETCH(QString, words);
        KalDataImportResult result;
        result.companies.added = result.defects.added = result.photos.added = count;
        const QStringList w = words.split(QLatin1Char('|'));
        QCOMPARE(result.text(), QStringLiteral("Es wurden %1 %2 und %1 %3 mit %1 %4 importiert.")
                                    .arg(count)
                                    .arg(w.at(0), w.at(1), w.at(2)));
        result.update = true;
        QCOMPARE(result.text(), QStringLiteral("Die Daten wurden aktualisiert."));
    }

    void updateMatrix_data()
    {
        QTest::addColumn<QString>("change");      // what happens between the imports
        QTest::addColumn<QStringList>("answers"); // button per question
        QTest::addColumn<bool>("allAlike");       // the box of the first question
        QTest::addColumn<QStringList>("questions");
        QTest::addColumn<QString>("state"); // SQL on the project after the update
        QTest::addColumn<QString>("expected");

        const QString defects = QStringLiteral("SELECT group_concat(number || ':' || description, ' ') FROM (SELECT "
                                               "* FROM defect ORDER BY number)");
        QTest::newRow("changed in the journal")
            << "journalEdit" << QStringList() << false << QStringList() << defects << "1:Riss breiter 2:Fleck";
        QTest::newRow("changed here and in the journal: here wins")
            << "bothEdit" << QStringList() << false << QStringList() << defects << "1:hier geändert 2:Fleck";
        QTest::newRow("deleted in the journal, delete here")
            << "journalDelete" << QStringList{"Mangel im Pellwick löschen"} << false
            << QStringList{"Der Mangel 2 wurde im Bautagebuch gelöscht.\nSoll dieser Mangel im Pellwick ebenfalls "
                           "gelöscht werden?\n"}
            << defects << "1:Riss";
        QTest::newRow("deleted in the journal, keep") << "journalDelete" << QStringList{"Nein"} << false
                                                      << QStringList{"Der Mangel 2 wurde im Bautagebuch "
                                                                     "gelöscht.\nSoll dieser Mangel im "
                                                                     "Pellwick ebenfalls gelöscht werden?\n"}
                                                      << "SELECT delete_on_import FROM defect WHERE number = '2'"
                                                      << "0";
        QTest::newRow("deleted here, import again")
            << "projectDelete" << QStringList{"Mangel erneut importieren"} << false
            << QStringList{"Der Mangel 2 wurde im Pellwick gelöscht.\nSoll dieser Mangel erneut importiert werden?\n"}
            << "SELECT COUNT(*) || '|' || (SELECT COUNT(*) FROM deleted_site_journal_defect) FROM defect"
            << "2|0";
        QTest::newRow("deleted here, keep deleted")
            << "projectDelete" << QStringList{"Nein"} << false
            << QStringList{"Der Mangel 2 wurde im Pellwick gelöscht.\nSoll dieser Mangel erneut importiert werden?\n"}
            << "SELECT COUNT(*) || '|' || (SELECT restore_on_import FROM deleted_site_journal_defect) FROM defect"
            << "1|0";
        QTest::newRow("report deleted in the journal")
            << "reportDelete" << QStringList{"Mängel im Pellwick löschen"} << false
            << QStringList{"Der Bericht 7 wurde im Bautagebuch gelöscht.\nSollen die Mängel dieses Berichts im "
                           "Pellwick gelöscht werden?\n"}
            << "SELECT COUNT(*) || '|' || (SELECT COUNT(*) FROM imported_report) FROM defect"
            << "0|0";
        QTest::newRow("photo removed in the journal")
            << "photoDelete" << QStringList{"Foto im Pellwick entfernen"} << false
            << QStringList{"Das Foto \"Ohne Titel\" vom 'Ohne Datum' wurde im Bautagebuch aus dem Mangel "
                           "entfernt.\nSoll dieses Foto im Pellwick ebenfalls entfernt werden?\n"}
            << "SELECT (SELECT COUNT(*) FROM photo_info) || '|' || (SELECT COUNT(*) FROM image) || '|' || "
               "(SELECT image_cnt FROM defect WHERE number = '1')"
            << "0|0|0";
        QTest::newRow("photo deleted here, import again")
            << "photoProjectDelete" << QStringList{"Foto erneut importieren"} << false
            << QStringList{"Das Foto \"Ohne Titel\" vom 'Ohne Datum' wurde im Pellwick gelöscht.\nSoll dieses Foto "
                           "erneut importiert werden?\n"}
            << "SELECT (SELECT COUNT(*) FROM photo_info) || '|' || (SELECT image_cnt FROM defect WHERE number = '1') "
               "|| '|' || (SELECT COUNT(*) FROM deleted_site_journal_photo_info)"
            << "1|1|0";
        QTest::newRow("photo caption and date set in the journal")
            << "photoEdit" << QStringList() << false << QStringList() << "SELECT caption || '|' || date FROM photo_info"
            << "Nordwand|2024-03-05";
        QTest::newRow("company deleted in the journal")
            << "companyDelete" << QStringList{"Firma im Pellwick löschen"} << false
            << QStringList{"Die Firma\n\nGewerk: Maler\nVorname: \nNachname: \nFirma: Roth GmbH\nStraße: \nPLZ: "
                           "\nStadt: \nTelefon: \nFax: \nMobil: \nE-Mail: \n\nwurde im Bautagebuch gelöscht.\nSoll "
                           "diese Firma auch im Pellwick gelöscht werden?\n"}
            << "SELECT COUNT(*) || '|' || IFNULL((SELECT company_id FROM defect WHERE number = '1'), 'none') FROM "
               "company"
            << "0|none";
        QTest::newRow("company deleted here, import again")
            << "companyProjectDelete" << QStringList{"Firma erneut importieren"} << false
            << QStringList{"Die Firma\n\nGewerk: Maler\nVorname: \nNachname: \nFirma: Roth GmbH\nStraße: \nPLZ: "
                           "\nStadt: \nTelefon: \nFax: \nMobil: \nE-Mail: \n\nwurde im Pellwick gelöscht.\nSoll diese "
                           "Firma erneut importiert werden?\n"}
            << "SELECT COUNT(*) FROM company WHERE company = 'Roth GmbH'"
            << "1";
        QTest::newRow("company changed here and in the journal")
            << "companyBothEdit" << QStringList() << false << QStringList() << "SELECT company FROM company"
            << "Roth & Söhne";
        QTest::newRow("all further deletions alike: one question")
            << "journalDeleteBoth" << QStringList{"Mangel im Pellwick löschen"} << true
            << QStringList{"Der Mangel 1 wurde im Bautagebuch gelöscht.\nSoll dieser Mangel im Pellwick ebenfalls "
                           "gelöscht werden?\n"}
            << "SELECT COUNT(*) FROM defect"
            << "0";
        QTest::newRow("without the box: each asked")
            << "journalDeleteBoth" << QStringList{"Nein", "Mangel im Pellwick löschen"} << false
            << QStringList{"Der Mangel 1 wurde im Bautagebuch gelöscht.\nSoll dieser Mangel im Pellwick ebenfalls "
                           "gelöscht werden?\n",
                           "Der Mangel 2 wurde im Bautagebuch gelöscht.\nSoll dieser Mangel im Pellwick ebenfalls "
                           "gelöscht werden?\n"}
            << defects << "1:Riss";
    }
    void updateMatrix()
    {
        QFETCH(QString, change);
        QFETCH(QStringList, answers);
        QFETCH(bool, allAlike);
        QFETCH(QStringList, questions);
        QFETCH(QString, state);
        QFETCH(QString, expected);
        const QString path = importBasic();
        QCOMPARE(m_fx.count(QStringLiteral("defect")), 2);
        const qint64 journalDefect1 =
            sql(QStringLiteral("SELECT site_journal_id FROM defect WHERE number = '1'")).toLongLong();
        {
            KalTestJournal j = KalTestJournal::reopen(path);
            const auto defectInProject = [&](const QString &number) {
                return sql(QStringLiteral("SELECT id FROM defect WHERE number = '%1'").arg(number)).toLongLong();
            };
            if (change == QLatin1String("journalEdit") || change == QLatin1String("bothEdit"))
                QVERIFY(j.exec("UPDATE entry_progress SET description = 'Riss breiter', modified = 1 WHERE number "
                               "= '1'"));
            if (change == QLatin1String("bothEdit"))
                QVERIFY(m_fx.exec("UPDATE defect SET description = 'hier geändert', site_journal_data_modified = 1 "
                                  "WHERE number = '1'"));
            if (change == QLatin1String("journalDelete"))
                QVERIFY(j.exec("DELETE FROM entry_progress WHERE number = '2'"));
            if (change == QLatin1String("journalDeleteBoth"))
                QVERIFY(j.exec("DELETE FROM entry_progress WHERE type = 4"));
            if (change == QLatin1String("reportDelete"))
                QVERIFY(j.exec("DELETE FROM entry") && j.exec("DELETE FROM entry_progress"));
            if (change == QLatin1String("photoDelete"))
                QVERIFY(j.exec("DELETE FROM entry_progress WHERE type = 2"));
            if (change == QLatin1String("photoEdit"))
                QVERIFY(j.exec("UPDATE entry_photo SET caption = 'Nordwand', date = '2024-03-05'"));
            if (change == QLatin1String("photoProjectDelete")) {
                QString error;
                const qint64 photo = sql("SELECT id FROM photo_info").toLongLong();
                QVERIFY2(KalPhotos(m_fx.project()).remove({photo}, &error), qPrintable(error));
            }
            if (change == QLatin1String("companyDelete"))
                QVERIFY(j.exec("UPDATE company SET category = '-2'"));
            if (change == QLatin1String("companyBothEdit")) {
                QVERIFY(j.exec("UPDATE company SET company = 'Roth AG', modified = 1"));
                QVERIFY(m_fx.exec("UPDATE company SET company = 'Roth & Söhne', modified = 1"));
            }
            if (change == QLatin1String("projectDelete") || change == QLatin1String("companyProjectDelete")) {
                // Through the model, as the user deletes.
                const QString table =
                    change == QLatin1String("projectDelete") ? QStringLiteral("defect") : QStringLiteral("company");
                KalSqlTableModel *model = m_fx.model(table);
                const qint64 id = table == QLatin1String("defect") ? defectInProject(QStringLiteral("2"))
                                                                   : sql("SELECT id FROM company").toLongLong();
                int row = 0;
                while (row < model->rowCount() && model->data(model->index(row, 0)).toLongLong() != id)
                    ++row;
                QVERIFY(model->removeRows(row, 1, QModelIndex(), true));
            }
        }
        m_fx.reselect();
        m_prompt->clear();
        for (const QString &answer : qAsConst(answers))
            m_prompt->queueAnswer(answer);
        m_prompt->queueCheckBox(allAlike);
        const KalDataImportResult result = import(path, Mode::Update);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(m_prompt->texts(), questions);
        QCOMPARE(sql(state).toString(), expected);
        if (change == QLatin1String("bothEdit")) {
            QVERIFY(result.text().contains(QStringLiteral("Folgende Mängel wurden nicht aktualisiert")));
            QVERIFY(result.notUpdatedDefects.value(0).contains(QStringLiteral("hier geändert")));
        }
        if (change == QLatin1String("companyBothEdit"))
            QVERIFY(result.text().contains(QStringLiteral("Folgende Firmen wurden nicht aktualisiert")));
        QVERIFY(journalDefect1 >= 0);

        // A kept answer is not asked again, and a second run changes nothing.
        const QByteArray before = KalTestFiles::fileHash(m_fx.project()->workingCopyPath());
        m_prompt->clear();
        const KalDataImportResult again = import(path, Mode::Update);
        QCOMPARE(m_prompt->texts(), QStringList());
        QCOMPARE(KalTestFiles::fileHash(m_fx.project()->workingCopyPath()), before);
        QCOMPARE(again.changed(), false);
        QCOMPARE(again.defects.added + again.defects.updated + again.defects.deleted + again.defects.restored, 0);
    }

    void unchangedReimport()
    {
        const QString path = importBasic();
        // Changed here only: nothing to update, so nothing to report either.
        QVERIFY(m_fx.exec(QStringLiteral("UPDATE defect SET description = 'hier', site_journal_data_modified = 1 "
                                         "WHERE number = '1'")));
        m_fx.project()->setModified(false);
        const QByteArray before = KalTestFiles::fileHash(m_fx.project()->workingCopyPath());
        m_prompt->clear();
        for (Mode mode : {Mode::Update, Mode::NewOnly, Mode::Initial}) {
            const KalDataImportResult result = import(path, mode);
            QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
            QCOMPARE(result.defects.added + result.photos.added + result.companies.added, 0);
            QVERIFY(!result.changed());
            QCOMPARE(result.notUpdatedDefects, QStringList());
        }
        QCOMPARE(m_prompt->shown().size(), 0);
        QCOMPARE(KalTestFiles::fileHash(m_fx.project()->workingCopyPath()), before);
        QVERIFY(!m_fx.project()->isModified());
    }

    void questionsShowTextsAsTheyAre()
    {
        const QString path = importBasic();
        {
            KalTestJournal j = KalTestJournal::reopen(path);
            QVERIFY(j.exec("UPDATE company SET company = 'Roth %1 %10 \"50%\"', city = 'Köln', category = '-2'"));
        }
        m_prompt->clear();
        import(path, Mode::Update);
        QCOMPARE(m_prompt->texts().size(), 1);
        QVERIFY2(m_prompt->texts().first().contains(QStringLiteral("\nFirma: Roth %1 %10 \"50%\"\nStraße: \nPLZ: "
                                                                   "\nStadt: Köln\nTelefon: \n")),
                 qPrintable(m_prompt->texts().first()));
        QCOMPARE(m_prompt->shown().first().checkBoxText,
                 QStringLiteral("Alle weiteren gelöschten Firmen genauso behandeln"));
    }

    void newOnlyTakesNewRecordsOnly()
    {
        const QString path = importBasic();
        {
            KalTestJournal j = KalTestJournal::reopen(path);
            QVERIFY(j.exec("UPDATE entry_progress SET description = 'Riss breiter', modified = 1 WHERE number = '1'"));
            QVERIFY(j.exec("DELETE FROM entry_progress WHERE number = '2'"));
            QVERIFY(j.exec("UPDATE company SET company = 'Roth AG', modified = 1"));
            j.addDefect(j.addReport(QStringLiteral("8")), QStringLiteral("3"), QStringLiteral("neu"));
        }
        m_prompt->clear();
        const KalDataImportResult result = import(path, Mode::NewOnly);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(m_prompt->texts(), QStringList());
        QCOMPARE(result.defects.added, 1);
        QCOMPARE(sql("SELECT group_concat(number || ':' || description, ' ') FROM (SELECT * FROM defect ORDER BY "
                     "number)")
                     .toString(),
                 QStringLiteral("1:Riss 2:Fleck 3:neu"));
        QCOMPARE(sql("SELECT company FROM company").toString(), QStringLiteral("Roth GmbH"));
    }

    void conflictsOnlyWhenReal()
    {
        const QString path = importBasic();
        {
            // The journal was rebuilt: its defects and photos got new ids; one
            // defect also a new number.
            KalTestJournal j = KalTestJournal::reopen(path);
            QVERIFY(j.exec("UPDATE entry_progress SET id = id + 100"));
            QVERIFY(j.exec("UPDATE entry_progress SET relation_id = relation_id + 100 WHERE type = 2"));
            QVERIFY(j.exec("UPDATE entry_progress SET number = '2a' WHERE number = '2'"));
            const qint64 report = j.addReport(QStringLiteral("8"));
            j.addDefect(report, QStringLiteral("1"), QStringLiteral("neu im neuen Bericht"));
        }
        const KalDataImportResult result = import(path, Mode::Update);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        // "1" matched by report and number, "2a" asked, the new report's defect simply new.
        QCOMPARE(m_resolver.asked, QStringList{QStringLiteral("2a")});
        QCOMPARE(m_fx.count(QStringLiteral("defect")), 3);
        QCOMPARE(m_fx.count(QStringLiteral("defect"), QStringLiteral("site_journal_id > 100")), 3);
        // The photo of the matched defect is the same picture: relinked, not
        // imported again, and nobody is asked about its vanished old record.
        QCOMPARE(m_fx.count(QStringLiteral("photo_info"), QStringLiteral("site_journal_id > 100")), 1);
        QCOMPARE(m_fx.count(QStringLiteral("photo_info")), 1);
        QCOMPARE(m_prompt->texts(), QStringList());
    }

    void appExportKeepsJournalRecords()
    {
        const QString journal = importBasic();
        const QString app = newPath(QStringLiteral("app"));
        {
            KalTestJournal j(app);
            const qint64 report = j.addReport(QStringLiteral("A1"), {{"id", 900}, {"exported_by_app", 1}});
            j.addDefect(report, QStringLiteral("1"), QStringLiteral("vom Handy"), {{"id", 901}});
        }
        const KalDataImportResult fromApp = import(app, Mode::App);
        QCOMPARE(int(fromApp.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(fromApp.defects.added, 1);
        QCOMPARE(sql("SELECT value FROM meta WHERE key = 'appImportlDatabasePath'").toString(),
                 QDir::toNativeSeparators(app));
        QCOMPARE(sql("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'").toString(),
                 QDir::toNativeSeparators(journal));
        // The journal does not have the app's report: nobody asks to delete it.
        m_prompt->clear();
        const KalDataImportResult update = import(journal, Mode::Update);
        QCOMPARE(m_prompt->texts(), QStringList());
        QCOMPARE(m_fx.count(QStringLiteral("defect")), 3);
        QCOMPARE(update.defects.deleted, 0);
    }

    void successorChain_data()
    {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<int>("announcements");
        QTest::addColumn<QString>("linkedTo");
        QTest::newRow("A to B to C") << "chain" << 2 << "C";
        QTest::newRow("A to B to A") << "cycle" << 1 << "B";
        QTest::newRow("successor named with another computer's path") << "foreign" << 1 << "B";
    }
    void successorChain()
    {
        QFETCH(QString, shape);
        QFETCH(int, announcements);
        QFETCH(QString, linkedTo);
        const QString project = m_dir.filePath(QStringLiteral("chain_%1.pwp").arg(++m_files));
        QCOMPARE(m_fx.project()->saveProject(project), int(KalProject::Saved));
        QDir folder(m_dir.filePath(QStringLiteral("chain_%1").arg(m_files)));
        QVERIFY(folder.mkpath(QStringLiteral(".")));
        const QString a = folder.filePath(QStringLiteral("A.sjd"));
        const QString b = folder.filePath(QStringLiteral("B.sjd"));
        const QString c = folder.filePath(QStringLiteral("C.sjd"));
        {
            KalTestJournal ja(a);
            const qint64 r1 = ja.addReport(QStringLiteral("1"));
            ja.addDefect(r1, QStringLiteral("1"), QStringLiteral("aus A"));
        }
        QCOMPARE(int(import(a, Mode::Initial).outcome), int(KalDataImportResult::Outcome::Done));
        {
            // B carries A's report over (same ids) and adds its own after A's counter.
            KalTestJournal jb(b);
            const qint64 r1 = jb.addReport(QStringLiteral("1"));
            jb.addDefect(r1, QStringLiteral("1"), QStringLiteral("aus A"));
            const qint64 r2 = jb.addReport(QStringLiteral("2"));
            jb.addDefect(r2, QStringLiteral("2"), QStringLiteral("aus B"));
            jb.setMeta(QStringLiteral("exportedFrom"), a);
            KalTestJournal ja = KalTestJournal::reopen(a);
            ja.setMeta(QStringLiteral("exportedTo"),
                       shape == QLatin1String("foreign") ? QStringLiteral("X:\\Bau\\Tagebuch\\B.sjd") : b);
            if (shape == QLatin1String("cycle"))
                jb.setMeta(QStringLiteral("exportedTo"), a);
            if (shape == QLatin1String("chain")) {
                jb.setMeta(QStringLiteral("exportedTo"), c);
                KalTestJournal jc(c);
                // A successor goes on with its predecessor's ids.
                jc.addDefect(jc.addReport(QStringLiteral("1")), QStringLiteral("1"), QStringLiteral("aus A"));
                jc.addDefect(jc.addReport(QStringLiteral("2")), QStringLiteral("2"), QStringLiteral("aus B"));
                const qint64 r3 = jc.addReport(QStringLiteral("3"));
                jc.addDefect(r3, QStringLiteral("3"), QStringLiteral("aus C"));
                jc.setMeta(QStringLiteral("exportedFrom"), b);
            }
        }
        m_prompt->clear();
        for (int i = 0; i < announcements; ++i)
            m_prompt->queueAnswerIndex(0);
        const KalDataImportResult result = import(a, Mode::Update);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QCOMPARE(m_prompt->titles().count(QStringLiteral("Bautagebuch Folgedatei gefunden")),
                 announcements + (shape == QLatin1String("cycle") ? 1 : 0));
        QCOMPARE(sql("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'").toString(),
                 QDir::toNativeSeparators(folder.filePath(linkedTo + QStringLiteral(".sjd"))));
        // Reports carried into the successor are not imported twice, and nothing was asked to be deleted.
        QCOMPARE(m_fx.count(QStringLiteral("defect"), QStringLiteral("description = 'aus A'")), 1);
        QCOMPARE(m_fx.count(QStringLiteral("defect"), QStringLiteral("description = 'aus B'")), 1);
        QCOMPARE(m_fx.count(QStringLiteral("defect"), QStringLiteral("description = 'aus C'")),
                 shape == QLatin1String("chain") ? 1 : 0);
        QVERIFY(!m_prompt->texts().join(QString()).contains(QStringLiteral("gelöscht")));
    }

    void predecessorOffered_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("predecessorReadable");
        QTest::addColumn<int>("defects");
        QTest::newRow("taken") << "Daten aus Vorgängerdatei importieren" << true << 2;
        QTest::newRow("declined") << "Nein" << true << 1;
        QTest::newRow("unreadable") << "Daten aus Vorgängerdatei importieren" << false << 1;
    }
    void predecessorOffered()
    {
        QFETCH(QString, answer);
        QFETCH(bool, predecessorReadable);
        QFETCH(int, defects);
        QCOMPARE(m_fx.project()->saveProject(m_dir.filePath(QStringLiteral("pre_%1.pwp").arg(++m_files))),
                 int(KalProject::Saved));
        const QString a = newPath(QStringLiteral("A"));
        const QString b = newPath(QStringLiteral("B"));
        if (predecessorReadable) {
            KalTestJournal ja(a);
            ja.addDefect(ja.addReport(QStringLiteral("1")), QStringLiteral("1"), QStringLiteral("aus A"));
            ja.setMeta(QStringLiteral("exportedTo"), b);
        } else {
            QVERIFY(KalTestFiles::writeFile(a, QByteArray(4096, 'x')));
        }
        {
            KalTestJournal jb(b);
            jb.setEntryCounter(1);
            jb.addDefect(jb.addReport(QStringLiteral("2"), {{"id", 2}}), QStringLiteral("2"), QStringLiteral("aus B"),
                         {{"id", 2}});
            jb.setMeta(QStringLiteral("exportedFrom"), a);
        }
        m_prompt->queueAnswer(answer);
        const KalDataImportResult result = import(b, Mode::Initial);
        QCOMPARE(int(result.outcome), int(KalDataImportResult::Outcome::Done));
        QVERIFY(m_prompt->texts().value(0).startsWith(
            QStringLiteral("Zu der Bautagebuchdatei existiert die Vorgängerdatei\n")));
        if (!predecessorReadable)
            QVERIFY(m_prompt->texts().value(1).startsWith(
                QStringLiteral("Die Vorgängerdatenbank konnte nicht geöffnet werden.\nEs werden nur die Daten der "
                               "Folgesatei importiert.\n\n")));
        QCOMPARE(m_fx.count(QStringLiteral("defect")), defects);
        QCOMPARE(sql("SELECT value FROM meta WHERE key = 'siteJournalDatabasePath'").toString(),
                 QDir::toNativeSeparators(b));
    }
};

QTEST_GUILESS_MAIN(TstSiteJournalImport)
#include "tst_sitejournalimport.moc"
