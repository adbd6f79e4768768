#include "core/project/KalProject.h"
#include "core/project/KalProjectModels.h"
#include "core/project/KalSqlTableModel.h"
#include "support/KalScriptedPrompt.h"
#include "support/KalTestImages.h"
#include "support/KalTestProject.h"
#include "support/KalTestSettings.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QIcon>
#include <QImage>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

class TstModels : public QObject
{
    Q_OBJECT

private:
    KalScriptedPrompt *m_prompt = nullptr;
    KalTestProject m_fx;
    KalProject *m_project = nullptr;

    KalSqlTableModel *model(const char *table) const { return m_project->model(QString::fromLatin1(table)); }
    bool exec(const QString &sql, const QVariantMap &binds = {}) { return m_fx.exec(sql, binds); }
    int count(const QString &sql, const QVariantMap &binds = {}) { return m_fx.value(sql, binds).toInt(); }
    qint64 insertRow(const QString &table, const QVariantMap &values) { return m_fx.insert(table, values); }
    qint64 insertDefect(const QVariantMap &values = {}) { return m_fx.addDefect(values); }
    qint64 insertCompany(const QString &name, const QString &trade) { return m_fx.addCompany(name, trade); }

    qint64 insertImage(const QString &table = QStringLiteral("image"))
    {
        const QByteArray thumb = KalTestImages::jpeg(KalTestImages::marked(QSize(40, 30)));
        return insertRow(table, {{table, KalTestImages::jpeg(KalTestImages::marked(QSize(80, 60)))},
                                 {table + "_ct", "image/jpeg"},
                                 {table + "_width", 80},
                                 {table + "_height", 60},
                                 {"thumbnail", thumb},
                                 {"thumbnail_ct", "image/jpeg"},
                                 {"thumbnail_width", 40},
                                 {"thumbnail_height", 30}});
    }

    qint64 insertPhoto(qint64 defectId, qint64 imageId, int pos = 1)
    {
        return insertRow(QStringLiteral("photo_info"),
                         {{"defect_id", defectId}, {"image_id", imageId}, {"pos", pos}, {"caption", "Foto"}});
    }

    void selectAll() { m_fx.reselect(); }

    QVariant cell(const char *table, qint64 id, const char *field, int role = Qt::DisplayRole)
    {
        KalSqlTableModel *m = model(table);
        const int row = m->findRowById(id);
        if (row < 0)
            return QStringLiteral("<no row %1>").arg(id);
        return m->data(m->index(row, m->fieldIndex(QLatin1String(field))), role);
    }

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        m_prompt = KalScriptedPrompt::install();
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void init()
    {
        m_prompt->clear();
        QVERIFY(m_fx.open());
        m_project = m_fx.project();
    }

    void cleanup()
    {
        m_fx.close();
        KalSqlTableModel::setCompanyFormatter({});
    }

    void everyTableHasAFullyFetchedModel()
    {
        // Pictures are read when shown, never as a whole table.
        QVERIFY(!model("image"));
        QVERIFY(!model("plan"));
        QCOMPARE(model("kal")->rowCount(), 1);

        // More rows than the driver delivers in one block.
        QVERIFY(m_project->beginTransaction());
        for (int i = 0; i < 700; ++i)
            insertDefect({{"number", QString::number(i)}});
        QVERIFY(m_project->commitTransaction());
        QVERIFY(model("defect")->select());
        QCOMPARE(model("defect")->rowCount(), 700);
        QVERIFY(!model("defect")->canFetchMore());
    }

    void displayTexts_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("reduction");
        QTest::addColumn<QString>("expected");
        // Company 1 = "Muster Bau GmbH" (Maurer), 2 = "Ohne Gewerk" (no trade), plan 1 = "EG Nord".
        QTest::newRow("company with trade") << "company_id" << QVariant(1) << false << "Muster Bau GmbH  (Maurer)";
        QTest::newRow("company without trade") << "company_id" << QVariant(2) << false << "Ohne Gewerk";
        QTest::newRow("company -1") << "company_id" << QVariant(-1) << false << "";
        QTest::newRow("company unknown") << "company_id" << QVariant(4711) << false << "";
        QTest::newRow("status") << "status_id" << QVariant(2) << false << "Offen, in Arbeit";
        QTest::newRow("status reduced") << "status_id" << QVariant(6) << true
                                        << "Erledigt, teilweise beseitigt - mit Minderung";
        QTest::newRow("status unknown") << "status_id" << QVariant(99) << true << "";
        QTest::newRow("plan") << "plan_info_id" << QVariant(1) << false << "EG Nord";
        QTest::newRow("plan none") << "plan_info_id" << QVariant(-1) << false << "";
        QTest::newRow("date iso") << "correction_date" << QVariant("2024-02-01") << false << "01.02.2024";
        QTest::newRow("date local text") << "deadline_1" << QVariant("3.4.25") << false << "03.04.2025";
        QTest::newRow("date empty") << "correction_date" << QVariant("") << false << "";
        QTest::newRow("date invalid") << "correction_date" << QVariant("2024-02-31") << false << "";
        QTest::newRow("deadline 3 as stored") << "deadline_3" << QVariant("2024-02-01") << false << "2024-02-01";
        QTest::newRow("multi-line") << "description" << QVariant("Zeile 1\nZeile 2") << false << "Zeile 1\nZeile 2";
        QTest::newRow("reduction box shows no text") << "reduction" << QVariant(1) << true << "";
    }

    void displayTexts()
    {
        QFETCH(QString, field);
        QFETCH(QVariant, stored);
        QFETCH(bool, reduction);
        QFETCH(QString, expected);

        QCOMPARE(insertCompany("Muster Bau GmbH", "Maurer"), 1);
        QCOMPARE(insertCompany("Ohne Gewerk", ""), 2);
        QCOMPARE(insertRow("plan_info", {{"plan_name", "EG Nord"}, {"pos", 1}}), 1);
        QVariantMap values{{"reduction", reduction ? 1 : 0}};
        if (field != QLatin1String("description"))
            values.insert(field, stored);
        else
            values.insert(field, stored.toString());
        const qint64 id = insertDefect(values);
        selectAll();

        QCOMPARE(cell("defect", id, qPrintable(field)).toString(), expected);
    }

    // What the grids show besides the text; an invalid expectation means no
    // data in that role. Rows of the status table start with "status:".
    void cells_data()
    {
        QTest::addColumn<QVariantMap>("values");
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("expected");
        const int background = Qt::BackgroundRole;
        const int check = Qt::CheckStateRole;
        const QVariantMap photos{{"image_cnt", 2}};
        auto row = [](const char *name, const QVariantMap &values, const char *field, int role, const QVariant &v) {
            QTest::newRow(name) << values << QString(field) << role << v;
        };
        row("star marks green", {{"number", "*"}}, "number", background, QColor(120, 255, 120));
        row("bang marks red", {{"number", "!"}}, "number", background, QColor(255, 120, 120));
        row("two stars mark nothing", {{"number", "**"}}, "number", background, QVariant());
        row("a number marks nothing", {{"number", "12"}}, "number", background, QVariant());
        row("reduced is checked", {{"reduction", 1}}, "reduction", check, int(Qt::Checked));
        row("not reduced is unchecked", {{"reduction", 0}}, "reduction", check, int(Qt::Unchecked));
        row("no check box elsewhere", {}, "number", check, QVariant());
        row("camera beside the photo count", photos, "image_cnt", Qt::DecorationRole, "<icon>");
        row("the count is still shown", photos, "image_cnt", Qt::DisplayRole, 2);
        row("no camera elsewhere", photos, "number", Qt::DecorationRole, QVariant());
        row("dates edit as dates", {{"correction_date", "2024-02-01"}}, "correction_date", Qt::EditRole,
            QDate(2024, 2, 1));
        row("id columns edit their ids, not the shown text", {}, "status_id", Qt::EditRole, 0);
        row("status colour as hex", {{"color", "#f3752c"}}, "status:color", background, QColor("#f3752c"));
        row("status colour by name", {{"color", "darkgreen"}}, "status:color", background, QColor("darkgreen"));
        row("unknown colour paints nothing", {{"color", "nichtfarbe"}}, "status:color", background, QVariant());
        row("empty colour paints nothing", {{"color", ""}}, "status:color", background, QVariant());
        row("the colour is not written out", {{"color", "#f3752c"}}, "status:color", Qt::DisplayRole, QVariant());
        row("the name is not painted", {{"color", "#f3752c"}}, "status:status", background, QVariant());
    }

    void cells()
    {
        QFETCH(QVariantMap, values);
        QFETCH(QString, field);
        QFETCH(int, role);
        QFETCH(QVariant, expected);
        const bool status = field.startsWith("status:");
        if (status) {
            field = field.mid(7);
            values.insert({{"status", "Farbig"}, {"type", 2}, {"reduction_option", 0}, {"pos", 9}});
        }
        const qint64 id = status ? insertRow("status", values) : insertDefect(values);
        KalSqlTableModel *m = model(status ? "status" : "defect");
        m->select();
        const QModelIndex index = m->index(m->findRowById(id), m->fieldIndex(field));
        QVariant actual = m->data(index, role);
        // The reduction is shown as a check box the grid cannot toggle (the defect editor does).
        if (!status) {
            QCOMPARE(bool(m->flags(index) & Qt::ItemIsEnabled), field != "reduction");
            QCOMPARE(bool(m->flags(index) & Qt::ItemIsUserCheckable), field == "reduction");
        }
        if (expected.userType() == QMetaType::QString && expected.toString() == "<icon>") {
            QCOMPARE(actual.userType(), int(QMetaType::QIcon));
        } else if (!expected.isValid()) {
            // No data, or no text where the column holds text.
            QVERIFY2(!actual.isValid() || (actual.userType() == QMetaType::QString && actual.toString().isEmpty()),
                     qPrintable(actual.toString()));
        } else {
            QVERIFY(actual.convert(expected.userType()));
            QCOMPARE(actual, expected);
        }
    }

    void idsAreNeverReused_data()
    {
        QTest::addColumn<bool>("onlySetFieldsGenerated");
        QTest::newRow("record with empty id") << false;
        QTest::newRow("only the set fields generated") << true;
    }

    void idsAreNeverReused()
    {
        QFETCH(bool, onlySetFieldsGenerated);
        KalSqlTableModel *defects = model("defect");
        auto addDefect = [&](const QString &number) -> qint64 {
            QSqlRecord record = defects->record();
            if (onlySetFieldsGenerated) {
                for (int i = 0; i < record.count(); ++i)
                    record.setGenerated(i, false);
            }
            record.setValue("number", number);
            record.setValue("description", "Text");
            record.setGenerated("number", true);
            record.setGenerated("description", true);
            // Written over the primed row: the row must keep the id it was given.
            if (!defects->insertRecord(-1, record))
                return -1;
            const qint64 primed = defects->record(defects->rowCount() - 1).value("id").toLongLong();
            if (!defects->submitWithNotification())
                return -1;
            if (count("SELECT COUNT(*) FROM defect WHERE id = :id AND number = :n", {{"id", primed}, {"n", number}}) !=
                1)
                return -2;
            return primed;
        };
        const qint64 first = addDefect("1");
        const qint64 second = addDefect("2");
        QCOMPARE(first, 1);
        QCOMPARE(second, 2);
        QVERIFY(defects->removeRows(defects->findRowById(second), 1, QModelIndex(), true));
        QCOMPARE(count("SELECT COUNT(*) FROM defect"), 1);
        const qint64 third = addDefect("3");
        QCOMPARE(third, 3);
        QCOMPARE(count("SELECT MAX(id) FROM defect"), 3);
    }

    void autoIncrementTablesLeaveIdsToSqlite()
    {
        KalSqlTableModel *markers = model("marker");
        QVERIFY(markers->insertRow(0));
        QVERIFY(markers->index(0, markers->idColumn()).data(Qt::EditRole).isNull());
        QVERIFY(markers->setData(markers->index(0, markers->fieldIndex("defect_id")), 5));
        QVERIFY(markers->submitWithNotification());
        QCOMPARE(count("SELECT COUNT(*) FROM marker WHERE id > 0 AND defect_id = 5"), 1);
        QCOMPARE(count("SELECT COUNT(*) FROM id_generator WHERE id_table = 'marker'"), 0);
    }

    void removingDefectsTakesPhotosAlong_data()
    {
        QTest::addColumn<QVariant>("siteJournalId");
        QTest::addColumn<bool>("tombstone");
        QTest::addColumn<bool>("refresh"); // false: removed rows wait for the submit
        QTest::newRow("own defect") << QVariant(-1) << false << true;
        QTest::newRow("NULL journal id") << QVariant() << false << true;
        QTest::newRow("from site journal") << QVariant(77) << true << true;
        QTest::newRow("from site journal, submitted later") << QVariant(77) << true << false;
    }

    void removingDefectsTakesPhotosAlong()
    {
        QFETCH(QVariant, siteJournalId);
        QFETCH(bool, tombstone);
        QFETCH(bool, refresh);

        const qint64 doomed =
            insertDefect({{"number", "12"}, {"site_journal_id", siteJournalId}, {"imported_report_id", 3}});
        const qint64 kept = insertDefect({{"number", "13"}});
        const qint64 doomedImage1 = insertImage();
        const qint64 doomedImage2 = insertImage();
        const qint64 keptImage = insertImage();
        insertPhoto(doomed, doomedImage1, 1);
        insertPhoto(doomed, doomedImage2, 2);
        const qint64 keptPhoto = insertPhoto(kept, keptImage);
        selectAll();
        m_project->setModified(false);

        KalSqlTableModel *defects = model("defect");
        KalSqlTableModel *photos = model("photo_info");
        QCOMPARE(photos->rowCount(), 3);
        QSignalSpy photosBefore(photos, &KalSqlTableModel::beforeSubmit);
        QSignalSpy photosAfter(photos, &KalSqlTableModel::afterSubmit);

        QVERIFY(defects->removeRows(defects->findRowById(doomed), 1, QModelIndex(), refresh));
        if (!refresh) {
            QCOMPARE(count("SELECT COUNT(*) FROM photo_info"), 3);
            QVERIFY(defects->submitWithNotification());
        }

        QCOMPARE(count("SELECT COUNT(*) FROM defect"), 1);
        QCOMPARE(count("SELECT COUNT(*) FROM photo_info"), 1);
        QCOMPARE(count("SELECT id FROM photo_info"), int(keptPhoto));
        QCOMPARE(count("SELECT COUNT(*) FROM image"), 1);
        QCOMPARE(count("SELECT id FROM image"), int(keptImage));
        QCOMPARE(photos->rowCount(), 1);
        QCOMPARE(photosBefore.count(), 1);
        QCOMPARE(photosAfter.count(), 1);
        QVERIFY(m_project->isModified());
        QCOMPARE(m_project->transactions().depth(), 0);

        QCOMPARE(count("SELECT COUNT(*) FROM deleted_site_journal_defect"), tombstone ? 1 : 0);
        QCOMPARE(model("deleted_site_journal_defect")->rowCount(), tombstone ? 1 : 0);
        if (tombstone) {
            QCOMPARE(m_fx.value("SELECT id || ',' || site_journal_id || ',' || number || ',' || imported_report_id || "
                                "',' || restore_on_import FROM deleted_site_journal_defect")
                         .toString(),
                     QStringLiteral("1,77,12,3,1"));
            QCOMPARE(count("SELECT id_counter FROM id_generator WHERE id_table = 'deleted_site_journal_defect'"), 1);
        }
    }

    void removingSeveralDefectsById()
    {
        QList<qint64> ids;
        for (int i = 0; i < 6; ++i) {
            ids << insertDefect({{"number", QString::number(i)}, {"site_journal_id", 100 + i}});
            insertPhoto(ids.last(), insertImage());
            insertRow("marker", {{"plan_info_id", 1}, {"defect_id", ids.last()}});
            insertRow("marker_text", {{"plan_info_id", 1}, {"defect_id", ids.last()}});
        }
        selectAll();
        KalSqlTableModel *defects = model("defect");
        QSignalSpy after(defects, &KalSqlTableModel::afterSubmit);
        QVERIFY(defects->removeRowsById({ids.at(4), ids.at(1), ids.at(2)}));
        QCOMPARE(after.count(), 1);
        QCOMPARE(count("SELECT COUNT(*) FROM defect"), 3);
        QCOMPARE(count("SELECT COUNT(*) FROM defect WHERE id IN (:a, :b, :c)",
                       {{"a", ids.at(0)}, {"b", ids.at(3)}, {"c", ids.at(5)}}),
                 3);
        QCOMPARE(count("SELECT COUNT(*) FROM photo_info"), 3);
        QCOMPARE(count("SELECT COUNT(*) FROM image"), 3);
        // The plan items go as well, also from the plan editor's models.
        for (const char *table : {"marker", "marker_text"}) {
            QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE defect_id IN (:a, :b, :c)").arg(table),
                           {{"a", ids.at(0)}, {"b", ids.at(3)}, {"c", ids.at(5)}}),
                     3);
            QCOMPARE(model(table)->rowCount(), 3);
        }
        QSqlQuery q(m_project->database());
        QVERIFY(q.exec("SELECT site_journal_id FROM deleted_site_journal_defect ORDER BY site_journal_id"));
        QList<int> tombstones;
        while (q.next())
            tombstones << q.value(0).toInt();
        QCOMPARE(tombstones, (QList<int>{101, 102, 104}));
        QCOMPARE(defects->findRowById(ids.at(1)), -1);
        QVERIFY(!defects->removeRowsById({4711}));
    }

    void lookupsFollowSubmittedChanges()
    {
        const qint64 company = insertCompany("Alt GmbH", "");
        const qint64 defect = insertDefect({{"company_id", company}, {"status_id", 1}});
        selectAll();
        KalSqlTableModel *defects = model("defect");
        QCOMPARE(cell("defect", defect, "company_id").toString(), QStringLiteral("Alt GmbH"));
        QCOMPARE(cell("defect", defect, "status_id").toString(), QStringLiteral("Offen, zu beseitigen"));

        QSignalSpy changed(defects, &QAbstractItemModel::dataChanged);
        KalSqlTableModel *companies = model("company");
        const int companyRow = companies->findRowById(company);
        QVERIFY(companies->setData(companies->index(companyRow, companies->fieldIndex("company")), "Neu AG"));
        QVERIFY(companies->submitWithNotification());
        QCOMPARE(cell("defect", defect, "company_id").toString(), QStringLiteral("Neu AG"));
        const int companyColumn = defects->fieldIndex("company_id");
        QVERIFY(std::any_of(changed.cbegin(), changed.cend(), [&](const QList<QVariant> &args) {
            return args.at(0).toModelIndex().column() <= companyColumn &&
                   args.at(1).toModelIndex().column() >= companyColumn;
        }));

        KalSqlTableModel *statuses = model("status");
        QVERIFY(
            statuses->setData(statuses->index(statuses->findRowById(1), statuses->fieldIndex("status")), "Ganz offen"));
        QVERIFY(statuses->submitWithNotification());
        QCOMPARE(cell("defect", defect, "status_id").toString(), QStringLiteral("Ganz offen"));

        // A re-select after someone else wrote the table counts as well.
        exec("UPDATE plan_info SET plan_name = 'x'");
        const qint64 plan = insertRow("plan_info", {{"plan_name", "OG"}, {"pos", 1}});
        exec("UPDATE defect SET plan_info_id = :p", {{"p", plan}});
        defects->select();
        QCOMPARE(cell("defect", defect, "plan_info_id").toString(), QString());
        model("plan_info")->select();
        QCOMPARE(cell("defect", defect, "plan_info_id").toString(), QStringLiteral("OG"));
    }

    void lookupColumnsSortByTheShownName_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<int>("order");
        for (const char *field : {"company_id", "status_id"}) {
            QTest::addRow("%s ascending", field) << field << int(Qt::AscendingOrder);
            QTest::addRow("%s descending", field) << field << int(Qt::DescendingOrder);
        }
    }

    void lookupColumnsSortByTheShownName()
    {
        QFETCH(QString, field);
        QFETCH(int, order);
        // Ids and names in opposite orders: Zimmerei has the lower id.
        const qint64 zimmerei = insertCompany("Zimmerei Holz", "Zimmerer");
        const qint64 abbruch = insertCompany("abbruch & Co", "Abbruch");
        insertDefect({{"company_id", zimmerei}, {"status_id", 1}}); // "Offen, zu beseitigen"
        insertDefect({{"company_id", abbruch}, {"status_id", 5}});  // "Erledigt, komplett beseitigt"
        insertDefect({{"company_id", 9999}, {"status_id", 9999}});  // nothing to show
        selectAll();
        KalSqlTableModel *defects = model("defect");
        const int column = defects->fieldIndex(field);
        defects->sort(column, Qt::SortOrder(order));
        QStringList shown;
        for (int row = 0; row < defects->rowCount(); ++row)
            shown << defects->index(row, column).data().toString();
        QStringList expected = shown;
        std::sort(expected.begin(), expected.end(),
                  [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
        if (order == Qt::DescendingOrder)
            std::reverse(expected.begin(), expected.end());
        QCOMPARE(shown, expected);
        QCOMPARE(shown.size(), 3);
        defects->setSort(-1, Qt::AscendingOrder);
    }

    void companyFormatterCanBeReplaced()
    {
        const qint64 company = insertCompany("Muster", "Maler");
        const qint64 defect = insertDefect({{"company_id", company}});
        selectAll();
        // The factory output format: name, two blanks, trade in brackets.
        QCOMPARE(cell("defect", defect, "company_id").toString(), QStringLiteral("Muster  (Maler)"));
        QSignalSpy repaint(model("defect"), &QAbstractItemModel::dataChanged);
        KalSqlTableModel::setCompanyFormatter([](const QSqlRecord &r) {
            return r.value("type").toString() + QStringLiteral(": ") + r.value("company").toString();
        });
        QCOMPARE(repaint.count(), 1);
        QCOMPARE(repaint.at(0).at(0).toModelIndex().column(), model("defect")->fieldIndex("company_id"));
        QCOMPARE(cell("defect", defect, "company_id").toString(), QStringLiteral("Maler: Muster"));
    }

    void findRowByIdDoesNotDependOnOrder_data()
    {
        QTest::addColumn<int>("order");
        QTest::newRow("ascending") << int(Qt::AscendingOrder);
        QTest::newRow("descending") << int(Qt::DescendingOrder);
    }

    void findRowByIdDoesNotDependOnOrder()
    {
        QFETCH(int, order);
        QList<qint64> ids;
        for (int i = 0; i < 20; ++i)
            ids << insertDefect({{"number", QString::number(i)}});
        KalSqlTableModel *defects = model("defect");
        defects->setSort(defects->fieldIndex("number"), Qt::SortOrder(order));
        QVERIFY(defects->select());
        for (qint64 id : ids) {
            const int row = defects->findRowById(id);
            QVERIFY(row >= 0);
            QCOMPARE(defects->index(row, defects->idColumn()).data(Qt::EditRole).toLongLong(), id);
        }
        QCOMPARE(defects->findRowById(999), -1);

        // Rows move when one is inserted at the top: the map follows.
        QVERIFY(defects->insertRow(0));
        const qint64 fresh = defects->index(0, defects->idColumn()).data(Qt::EditRole).toLongLong();
        QCOMPARE(defects->findRowById(fresh), 0);
        const int row = defects->findRowById(ids.last());
        QCOMPARE(defects->index(row, defects->idColumn()).data(Qt::EditRole).toLongLong(), ids.last());
        defects->revertAll();
    }

    void thumbnailToolTips_data()
    {
        QTest::addColumn<QString>("table");
        QTest::newRow("photo") << "photo_info";
        QTest::newRow("plan") << "plan_info";
    }

    void thumbnailToolTips()
    {
        QFETCH(QString, table);
        const bool photo = table == QLatin1String("photo_info");
        const qint64 picture = insertImage(photo ? "image" : "plan");
        qint64 withPicture;
        qint64 without;
        if (photo) {
            const qint64 defect = insertDefect();
            withPicture = insertPhoto(defect, picture);
            without = insertPhoto(defect, picture + 100, 2);
        } else {
            withPicture = insertRow("plan_info", {{"plan_name", "EG"}, {"plan_id", picture}, {"pos", 1}});
            without = insertRow("plan_info", {{"plan_name", "OG"}, {"plan_id", picture + 100}, {"pos", 2}});
        }
        selectAll();
        const char *anyField = photo ? "caption" : "plan_name";
        const QString tip = cell(qPrintable(table), withPicture, anyField, Qt::ToolTipRole).toString();
        const QString prefix = QStringLiteral("<img src=\"data:image/jpg;base64,");
        QVERIFY2(tip.startsWith(prefix), qPrintable(tip.left(60)));
        QVERIFY(tip.endsWith(QStringLiteral("\"/>")));
        const QByteArray encoded = tip.mid(prefix.size(), tip.size() - prefix.size() - 3).toLatin1();
        const QImage decoded = QImage::fromData(QByteArray::fromBase64(encoded), "JPG");
        QCOMPARE(decoded.size(), QSize(40, 30));
        QCOMPARE(cell(qPrintable(table), without, anyField, Qt::ToolTipRole).toString(), QString());
    }

    void submitNotifiesAndReportsFailures()
    {
        KalSqlTableModel *defects = model("defect");
        QSignalSpy before(defects, &KalSqlTableModel::beforeSubmit);
        QSignalSpy after(defects, &KalSqlTableModel::afterSubmit);
        QVERIFY(defects->submitWithNotification(false));
        QCOMPARE(before.count(), 0);
        QCOMPARE(after.count(), 0);
        QVERIFY(!m_project->isModified());

        QVERIFY(defects->insertRow(0));
        QVERIFY(defects->setData(defects->index(0, defects->fieldIndex("description")), "Neu"));
        QVERIFY(defects->submitWithNotification(true));
        QCOMPARE(before.count(), 1);
        QCOMPARE(after.count(), 1);
        QVERIFY(m_project->isModified());

        // description is NOT NULL: the write fails, the row stays in the model.
        QVERIFY(defects->insertRow(1));
        QVERIFY(!defects->submitWithNotification(true));
        QCOMPARE(after.count(), 2);
        QCOMPARE(defects->rowCount(), 2);
        QCOMPARE(count("SELECT COUNT(*) FROM defect"), 1);
        QCOMPARE(m_project->transactions().depth(), 0);
        defects->revertAll();
    }

    void modelTesterAcceptsEditsAndRemovals()
    {
        for (int i = 0; i < 5; ++i)
            insertDefect({{"number", QString::number(i)}, {"status_id", i % 3}, {"reduction", i % 2}});
        KalSqlTableModel *defects = model("defect");
        defects->select();
        QAbstractItemModelTester tester(defects, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(defects->insertRow(2));
        QVERIFY(defects->setData(defects->index(2, defects->fieldIndex("description")), "Neu"));
        QVERIFY(defects->submitWithNotification());
        QCOMPARE(defects->rowCount(), 6);
        QVERIFY(defects->removeRows(0, 2, QModelIndex(), true));
        QCOMPARE(defects->rowCount(), 4);
        // Changes of the looked-up statuses repaint the status column.
        KalSqlTableModel *statuses = model("status");
        QVERIFY(statuses->setData(statuses->index(0, statuses->fieldIndex("status")), "Anders"));
        QVERIFY(statuses->submitWithNotification());
        QVERIFY(statuses->removeRows(statuses->rowCount() - 1, 1, QModelIndex(), true));
        QCOMPARE(statuses->rowCount(), 7);
    }
};

QTEST_MAIN(TstModels)
#include "tst_models.moc"
