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
    void initTestCase();
    void cleanup();
    void qtTextsFollowTheShownLanguage_data();
    void qtTextsFollowTheShownLanguage();
};

void TestStartupLanguage::initTestCase()
{
    KalTestSettings::isolate();
    QCOMPARE(QLocale::system().language(), QLocale::French);
}

void TestStartupLanguage::cleanup()
{
    for (QTranslator *translator : qApp->findChildren<QTranslator *>()) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    QSettings().clear();
    QLocale::setDefault(QLocale::system());
}

void TestStartupLanguage::qtTextsFollowTheShownLanguage_data()
{
    QTest::addColumn<int>("language"); // stored choice, 0: none (the system's)
    QTest::addColumn<int>("country");
    QTest::addColumn<int>("shown"); // QLocale::Language of the default locale afterwards
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("save");
    QTest::addColumn<QString>("lookIn");

    const int de = QLocale::German;
    const int en = QLocale::English;
    const int es = QLocale::Spanish;
    QTest::newRow("system French") << 0 << 0 << de << "Datei"
                                   << "Speichern"
                                   << "Suchen in:";
    QTest::newRow("stored French") << int(QLocale::French) << int(QLocale::France) << de << "Datei"
                                   << "Speichern"
                                   << "Suchen in:";
    QTest::newRow("German") << de << int(QLocale::Germany) << de << "Datei"
                            << "Speichern"
                            << "Suchen in:";
    QTest::newRow("Austrian German") << de << int(QLocale::Austria) << de << "Datei"
                                     << "Speichern"
                                     << "Suchen in:";
    QTest::newRow("Spanish") << es << int(QLocale::Spain) << es << "Archivo"
                             << "Guardar"
                             << "Ver en:";
    QTest::newRow("English UK") << en << int(QLocale::UnitedKingdom) << en << "File"
                                << "Save"
                                << "Look in:";
    QTest::newRow("English US") << en << int(QLocale::UnitedStates) << en << "File"
                                << "Save"
                                << "Look in:";
    QTest::newRow("English Australia") << en << int(QLocale::Australia) << en << "File"
                                       << "Save"
                                       << "Look in:";
}

void TestStartupLanguage::qtTextsFollowTheShownLanguage()
{
    QFETCH(int, language);
    QFETCH(int, country);
    QFETCH(int, shown);
    QFETCH(QString, menu);
    QFETCH(QString, save);
    QFETCH(QString, lookIn);

    if (language) {
        QSettings().setValue(QStringLiteral("Language"), language);
        QSettings().setValue(QStringLiteral("Country"), country);
    }
    const QLocale locale = KalStartup::setUpLanguage(qApp);

    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Save"), save);
    QCOMPARE(QCoreApplication::translate("QFileDialog", "Look in:"), lookIn);
    QCOMPARE(QCoreApplication::translate("KalMainWindow", "Datei"), menu);
    // Dates and the calendar follow the texts too.
    QCOMPARE(int(locale.language()), shown);
    QCOMPARE(int(QLocale().language()), shown);
}

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
