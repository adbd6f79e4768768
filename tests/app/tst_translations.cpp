#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace {
struct Entry
{
    QString context;
    QString source;
    QString translation;
    bool unfinished = false;
    bool obsolete = false;
};

QVector<Entry> readTs(const QString &path, QString *error)
{
    QVector<Entry> entries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return entries;
    }
    QXmlStreamReader xml(&file);
    QString context;
    Entry current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            current = Entry();
            current.context = context;
        } else if (xml.name() == QLatin1String("source")) {
            current.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value(QLatin1String("type")).toString();
            current.unfinished = type == QLatin1String("unfinished");
            current.obsolete = type == QLatin1String("obsolete") || type == QLatin1String("vanished");
            current.translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            entries << current;
        }
    }
    if (xml.hasError())
        *error = xml.errorString();
    return entries;
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression re(QStringLiteral("%\\d+"));
    QStringList found;
    auto it = re.globalMatch(text);
    while (it.hasNext())
        found << it.next().captured();
    found.sort();
    found.removeDuplicates();
    return found;
}
} // namespace

// The shipped translations: complete, with the same placeholders as the
// German source texts, and compiled into files the program can load.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void complete_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *name : {"kal_en_GB.ts", "kal_en_US.ts", "kal_es.ts"})
            QTest::newRow(name) << QStringLiteral(KAL_TS_DIR "/") + QString::fromLatin1(name);
    }

    void complete()
    {
        QFETCH(QString, file);
        QString error;
        const QVector<Entry> entries = readTs(file, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY(entries.size() > 100);

        QStringList problems;
        for (const Entry &e : entries) {
            if (e.obsolete)
                continue;
            const QString where = e.context + QStringLiteral(": ") + QString(e.source).left(60).replace('\n', ' ');
            if (e.unfinished || e.translation.isEmpty())
                problems << QStringLiteral("unfinished ") + where;
            else if (placeholders(e.source) != placeholders(e.translation))
                problems << QStringLiteral("placeholders differ ") + where;
            else if (e.source.endsWith('\n') != e.translation.endsWith('\n'))
                problems << QStringLiteral("trailing line break differs ") + where;
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
    }

    void compiledFilesTranslate_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("open");
        QTest::newRow("en_GB") << QString("en_GB") << QString("File") << QString("Open");
        QTest::newRow("en_US") << QString("en_US") << QString("File") << QString("Open");
        QTest::newRow("es_ES") << QString("es_ES") << QString("Archivo") << QString("Abrir");
    }

    void compiledFilesTranslate()
    {
        QFETCH(QString, locale);
        QFETCH(QString, file);
        QFETCH(QString, open);

        // Loaded the way start-up loads them ("kal_es_ES" falls back to kal_es.qm).
        QTranslator own;
        QVERIFY2(own.load(QStringLiteral("kal_") + locale, QStringLiteral(KAL_QM_DIR)), qPrintable(locale));
        QCOMPARE(own.translate("KalMainWindow", "Datei"), file);
        QCOMPARE(own.translate("KalMainWindow", "Öffnen"), open);

        QTranslator qt;
        QVERIFY(qt.load(QStringLiteral("qtBase_") + locale, QStringLiteral(KAL_QM_DIR)));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
