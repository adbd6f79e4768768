// Where auto-text lists live in the settings and when a field gets its
// factory list.
#include "core/textaids/KalCompleterStore.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QtTest>

using namespace KalCompleterStore;

class TstCompleterStore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KalTestSettings::isolate(); }

    void init()
    {
        QSettings().clear();
        QSettings().setValue("Language", 42);
    }

    // A factory list is written once, to an enabled single-line field that
    // has none; a list the user emptied stays empty.
    void factoryLists_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("before"); // "nothing", "emptied", "disabled"
        QTest::addColumn<bool>("written");
        auto row = [](const char *name, const char *table, const char *column, const char *before, bool written) {
            QTest::newRow(name) << QString(table) << QString(column) << QString(before) << written;
        };
        row("rooms", "defect", "roomname", "nothing", true);
        row("priorities", "defect", "priority", "nothing", true);
        row("emptied by the user", "defect", "priority", "emptied", false);
        row("switched off", "defect", "roomname", "disabled", false);
        row("multi-line field", "defect", "description", "nothing", false);
        row("field without a list", "defect", "user_id", "nothing", false);
        row("other table", "plan_info", "plan_name", "nothing", false);
    }

    void factoryLists()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(QString, before);
        QFETCH(bool, written);
        const QString group = "Completer_42/" + table + '/' + column;
        if (before == "emptied")
            write(info(table, column), State{true, true, {}});
        else if (before == "disabled")
            QSettings().setValue(group + "/Enabled", false);

        QCOMPARE(ensureDefaults(info(table, column)), written);
        QCOMPARE(read(table, column).values.isEmpty(), !written);
        QCOMPARE(QSettings().value(group + "/Values/size").toInt(), read(table, column).values.size());
        // Never a second time, whatever the user did with the list.
        QVERIFY(!ensureDefaults(info(table, column)));
    }

    void storedLayout()
    {
        write(info("defect", "roomname"), State{false, true, {"Flur", "Bad\noben"}});
        QSettings settings;
        settings.beginGroup("Completer_42/defect/roomname");
        QCOMPARE(settings.value("Enabled").toBool(), false);
        QCOMPARE(settings.value("TableID").toString(), QStringLiteral("defect"));
        QCOMPARE(settings.value("ColumnID").toString(), QStringLiteral("roomname"));
        QCOMPARE(settings.value("Values/size").toInt(), 2);
        QCOMPARE(settings.value("Values/2/Centry").toString(), QStringLiteral("Bad\noben"));
    }

    // Blanks collapse, empty lines and empty entries go, line breaks stay.
    void readingCleansValues()
    {
        QSettings settings;
        settings.beginWriteArray("Completer_42/photo_info/comment/Values");
        const QStringList raw{"  Riss   im Putz ", "   ", "A\r\n\nB"};
        for (int i = 0; i < raw.size(); ++i) {
            settings.setArrayIndex(i);
            settings.setValue("Centry", raw.at(i));
        }
        settings.endArray();
        settings.sync();
        QCOMPARE(read("photo_info", "comment").values, (QStringList{"Riss im Putz", "A\nB"}));
        QCOMPARE(displayText("A\nB"), QStringLiteral("A | B"));
    }

    void eachLanguageHasItsOwnLists()
    {
        ensureDefaults(info("defect", "roomname"));
        write(info("photo_info", "comment"), State{true, true, {"Riss"}});
        QSettings().setValue("Language", 111);
        QVERIFY(read("photo_info", "comment").values.isEmpty());
        write(info("photo_info", "comment"), State{true, true, {"Grieta"}});
        resetAll();
        QVERIFY(read("photo_info", "comment").values.isEmpty());
        // Resetting one language leaves the other alone.
        QSettings().setValue("Language", 42);
        QCOMPARE(read("photo_info", "comment").values, QStringList{"Riss"});
        QVERIFY(!read("defect", "roomname").values.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TstCompleterStore)
#include "tst_completerstore.moc"
