#include "app/KalStartup.h"
#include "support/KalTestSettings.h"

#include <QApplication>
#include <QSettings>
#include <QTranslator>
#include <QtTest>

// The language start-up settles on, on a system whose language the program
// has no texts for (French, set in main() before anything reads it): the
// program's texts, Qt's own texts (standard buttons, file dialogs) and the
// default locale must all be of the same language.
class TestStartupLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        KalTestSettings::isolate();
        QCOMPARE(QLocale::system().language(), QLocale::French);
    }

    void cleanup()
    {
        for (QTranslator *translator : qApp->findChildren<QTranslator *>()) {
            QCoreApplication::removeTranslator(translator);
            delete translator;
        }
        QSettings().clear();
        QLocale::setDefault(QLocale::system());
    }

    void qtTextsFollowTheShownLanguage_data()
    {
        QTest::addColumn<int>("language"); // stored choice, 0: none (the system's)
        QTest::addColumn<int>("country");
        QTest::addColumn<int>("shown"); // QLocale::Language of the texts and the default locale afterwards
        auto row = [](const char *name, int language, int country, int shown) {
            QTest::newRow(name) << language << country << shown;
        };
        const int de = QLocale::German;
        const int en = QLocale::English;
        const int es = QLocale::Spanish;
        row("system French", 0, 0, de);
        row("stored French", QLocale::French, QLocale::France, de);
        row("German", de, QLocale::Germany, de);
        row("Austrian German", de, QLocale::Austria, de);
        row("Spanish", es, QLocale::Spain, es);
        row("English UK", en, QLocale::UnitedKingdom, en);
        row("English US", en, QLocale::UnitedStates, en);
        row("English Australia", en, QLocale::Australia, en);
    }

    void qtTextsFollowTheShownLanguage()
    {
        QFETCH(int, language);
        QFETCH(int, country);
        QFETCH(int, shown);
        // The program's "Datei" menu, Qt's "Save" button and its file dialog's "Look in:".
        const QMap<int, QStringList> texts{{QLocale::German, {"Datei", "Speichern", "Suchen in:"}},
                                           {QLocale::Spanish, {"Archivo", "Guardar", "Ver en:"}},
                                           {QLocale::English, {"File", "Save", "Look in:"}}};
        if (language) {
            QSettings().setValue(QStringLiteral("Language"), language);
            QSettings().setValue(QStringLiteral("Country"), country);
        }
        const QLocale locale = KalStartup::setUpLanguage(qApp);

        QCOMPARE(QStringList({QCoreApplication::translate("KalMainWindow", "Datei"),
                              QCoreApplication::translate("QPlatformTheme", "Save"),
                              QCoreApplication::translate("QFileDialog", "Look in:")}),
                 texts.value(shown));
        // Dates and the calendar follow the texts too.
        QCOMPARE(int(locale.language()), shown);
        QCOMPARE(int(QLocale().language()), shown);
    }
};

int main(int argc, char *argv[])
{
    // Read once, when the system locale is first needed.
    qputenv("LC_ALL", "fr_FR.UTF-8");
    qputenv("LANG", "fr_FR.UTF-8");
    QApplication app(argc, argv);
    TestStartupLanguage test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startuplanguage.moc"
