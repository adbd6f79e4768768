// Address files as mail programs and web address books export them: which
// column fills which company field, what a row becomes, and awkward files
// that can still be read. (Files that cannot are refused through
// pellwick-cli in tst_cliimport.)
#include "core/import/KalAddressFile.h"
#include "support/KalCompanyTestData.h"
#include "support/KalTestSettings.h"

#include <QSettings>
#include <QTextCodec>
#include <QtTest>

using R = KalCompanyRecord;
using CompanyTestData::describe;

namespace {

QByteArray csvLine(const QStringList &cells)
{
    QStringList quoted;
    for (QString cell : cells)
        quoted << '"' + cell.replace('"', "\"\"") + '"';
    return quoted.join(',').toUtf8() + "\r\n";
}

// "caption=column" for every mapped column ("fullname" for a split name).
QStringList mappingOf(const KalAddressFile &file)
{
    QStringList result;
    const QStringList captions = file.columnCaptions();
    for (int column = 0; column < file.columnCount(); ++column) {
        const int field = file.mapping().at(column);
        if (field >= 0)
            result << captions.at(column) + '=' +
                          (field == KalAddressFile::FullName ? QStringLiteral("fullname") : R::columnName(field));
    }
    return result;
}

// A file with the captions and one row: `values` as "caption=value", or
// "x" in every column.
QByteArray layoutFile(const QStringList &captions, const QStringList &values = {})
{
    QStringList row;
    for (const QString &caption : captions) {
        QString value = QStringLiteral("x");
        for (const QString &pair : values) {
            if (pair.startsWith(caption + '='))
                value = pair.mid(caption.size() + 1);
        }
        row << (values.isEmpty() ? value : (value == QLatin1String("x") ? QString() : value));
    }
    return csvLine(captions) + csvLine(row);
}

// The same from a caption row as an exporter writes it.
QByteArray layoutFile(const char *captionLine, const QStringList &values = {})
{
    return layoutFile(QString::fromUtf8(captionLine).split(','), values);
}

const char *const outlookEnglish =
    "Title,First Name,Middle Name,Last Name,Suffix,Company,Department,Job Title,Business Street,"
    "Business Street 2,Business Street 3,Business City,Business State,Business Postal Code,"
    "Business Country/Region,Home Street,Home Street 2,Home City,Home State,Home Postal Code,"
    "Home Country/Region,Other Street,Other City,Other Postal Code,Assistant's Phone,Business Fax,"
    "Business Phone,Business Phone 2,Callback,Car Phone,Company Main Phone,Home Fax,Home Phone,"
    "Home Phone 2,ISDN,Mobile Phone,Other Fax,Other Phone,Pager,Primary Phone,Radio Phone,"
    "TTY/TDD Phone,Telex,Account,Anniversary,Assistant's Name,Billing Information,Birthday,"
    "Business Address PO Box,Categories,Children,Directory Server,E-mail Address,E-mail Type,"
    "E-mail Display Name,E-mail 2 Address,E-mail 2 Type,E-mail 2 Display Name,Gender,"
    "Government ID Number,Hobby,Initials,Internet Free Busy,Keywords,Language,Location,"
    "Manager's Name,Mileage,Notes,Office Location,Organizational ID Number,Priority,Private,"
    "Profession,Referred By,Sensitivity,Spouse,User 1,Web Page";

const char *const outlookGerman =
    "Anrede,Vorname,Weitere Vornamen,Nachname,Suffix,Firma,Abteilung,Position,Straße geschäftlich,"
    "Straße geschäftlich 2,Straße geschäftlich 3,Ort geschäftlich,Region geschäftlich,"
    "Postleitzahl geschäftlich,Land/Region geschäftlich,Straße privat,Straße privat 2,Ort privat,"
    "Bundesland/Kanton privat,Postleitzahl privat,Land/Region privat,Weitere Straße,Weiterer Ort,"
    "Weitere Postleitzahl,Telefon Assistent,Fax geschäftlich,Telefon geschäftlich,"
    "Telefon geschäftlich 2,Rückmeldung,Autotelefon,Telefon Firma,Fax privat,Telefon privat,"
    "Telefon privat 2,ISDN,Mobiltelefon,Weiteres Fax,Weiteres Telefon,Pager,Haupttelefon,"
    "Mobiltelefon 2,Telefon für Hörbehinderte,Telex,Abrechnungsinformation,Beruf,Büro,"
    "E-Mail-Adresse,E-Mail-Typ,E-Mail: Angezeigter Name,E-Mail 2: Adresse,E-Mail 2: Typ,Geburtstag,"
    "Geschlecht,Initialen,Internet-Frei/Gebucht,Kategorien,Kinder,Konto,Name Assistent,"
    "Name des/der Vorgesetzten,Notizen,Organisationsnr.,Ort,Partner,Postfach geschäftlich,Priorität,"
    "Privat,Reisekilometer,Sprache,Stichwörter,Vertraulichkeit,Webseite";

const char *const thunderbirdEnglish =
    "First Name,Last Name,Display Name,Nickname,Primary Email,Secondary Email,Screen Name,"
    "Work Phone,Home Phone,Fax Number,Pager Number,Mobile Number,Home Address,Home Address 2,"
    "Home City,Home State,Home ZipCode,Home Country,Work Address,Work Address 2,Work City,"
    "Work State,Work ZipCode,Work Country,Job Title,Department,Organization,Web Page 1,Web Page 2,"
    "Birth Year,Birth Month,Birth Day,Custom 1,Custom 2,Notes";

const char *const thunderbirdGerman =
    "Vorname,Nachname,Anzeigename,Spitzname,Primäre E-Mail-Adresse,Sekundäre E-Mail-Adresse,"
    "Messenger-Name,Tel. dienstlich,Tel. privat,Fax-Nummer,Pager-Nummer,Mobil-Tel.-Nr.,"
    "Privat: Adresse,Privat: Adresse 2,Privat: Ort,Privat: Bundesland,Privat: PLZ,Privat: Land,"
    "Dienstlich: Adresse,Dienstlich: Adresse 2,Dienstlich: Ort,Dienstlich: Bundesland,"
    "Dienstlich: PLZ,Dienstlich: Land,Arbeitstitel,Abteilung,Organisation,Webseite 1,Webseite 2,"
    "Geburtsjahr,Geburtsmonat,Geburtstag,Benutzerdef. 1,Benutzerdef. 2,Notizen";

const char *const googleContacts =
    "Name,Given Name,Additional Name,Family Name,Yomi Name,Given Name Yomi,Name Prefix,Name Suffix,"
    "Initials,Nickname,Short Name,Maiden Name,Birthday,Gender,Location,Billing Information,"
    "Directory Server,Mileage,Occupation,Hobby,Sensitivity,Priority,Subject,Notes,Language,Photo,"
    "Group Membership,E-mail 1 - Type,E-mail 1 - Value,E-mail 2 - Type,E-mail 2 - Value,"
    "Phone 1 - Type,Phone 1 - Value,Phone 2 - Type,Phone 2 - Value,Address 1 - Type,"
    "Address 1 - Formatted,Address 1 - Street,Address 1 - City,Address 1 - PO Box,"
    "Address 1 - Region,Address 1 - Postal Code,Address 1 - Country,Address 1 - Extended Address,"
    "Organization 1 - Type,Organization 1 - Name,Organization 1 - Yomi Name,Organization 1 - Title,"
    "Organization 1 - Department,Organization 1 - Symbol,Organization 1 - Location,"
    "Organization 1 - Job Description,Website 1 - Type,Website 1 - Value";

const char *const googleLabels =
    "First Name,Middle Name,Last Name,Phonetic First Name,Nickname,File As,Organization Name,"
    "Organization Title,Organization Department,Birthday,Notes,Labels,E-mail 1 - Label,"
    "E-mail 1 - Value,Phone 1 - Label,Phone 1 - Value,Phone 2 - Label,Phone 2 - Value,"
    "Address 1 - Label,Address 1 - Formatted,Address 1 - Street,Address 1 - City,Address 1 - PO Box,"
    "Address 1 - Region,Address 1 - Postal Code,Address 1 - Country,Address 1 - Extended Address,"
    "Website 1 - Label,Website 1 - Value";

} // namespace

class TstAddressFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { KalTestSettings::isolate(); }
    void init() { QSettings().clear(); }

    void columnsOfLayouts_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("expected");
        QTest::newRow("Outlook, English")
            << layoutFile(outlookEnglish)
            << QString("First Name=firstname | Last Name=lastname | Company=company | Business Street=street | "
                       "Business Street 2=street | Business Street 3=street | Business City=city | "
                       "Business Postal Code=plz | Home Street=street | Home Street 2=street | Home City=city | "
                       "Home Postal Code=plz | Other Street=street | Other City=city | Other Postal Code=plz | "
                       "Business Fax=telefax | Business Phone=telephone | Business Phone 2=telephone | "
                       "Car Phone=telephone | Company Main Phone=telephone | Home Fax=telefax | Home Phone=telephone | "
                       "Home Phone 2=telephone | Mobile Phone=mobile | Other Fax=telefax | Other Phone=telephone | "
                       "Primary Phone=telephone | E-mail Address=email | E-mail 2 Address=email | Profession=type");
        QTest::newRow("Outlook, German")
            << layoutFile(outlookGerman)
            << QString(
                   "Vorname=firstname | Nachname=lastname | Firma=company | Straße geschäftlich=street | "
                   "Straße geschäftlich 2=street | Straße geschäftlich 3=street | Ort geschäftlich=city | "
                   "Postleitzahl geschäftlich=plz | Straße privat=street | Straße privat 2=street | "
                   "Ort privat=city | Postleitzahl privat=plz | Weitere Straße=street | Weiterer Ort=city | "
                   "Weitere Postleitzahl=plz | Fax geschäftlich=telefax | Telefon geschäftlich=telephone | "
                   "Telefon geschäftlich 2=telephone | Telefon Firma=telephone | Fax privat=telefax | "
                   "Telefon privat=telephone | Telefon privat 2=telephone | Mobiltelefon=mobile | "
                   "Weiteres Fax=telefax | Weiteres Telefon=telephone | Haupttelefon=telephone | "
                   "Mobiltelefon 2=mobile | Beruf=type | E-Mail-Adresse=email | E-Mail 2: Adresse=email | Ort=city");
        QTest::newRow("Thunderbird, English")
            << layoutFile(thunderbirdEnglish)
            << QString("First Name=firstname | Last Name=lastname | Primary Email=email | Secondary Email=email | "
                       "Work Phone=telephone | Home Phone=telephone | Fax Number=telefax | Mobile Number=mobile | "
                       "Home Address=street | Home Address 2=street | Home City=city | Home ZipCode=plz | "
                       "Work Address=street | Work Address 2=street | Work City=city | Work ZipCode=plz | "
                       "Organization=company");
        QTest::newRow("Thunderbird, German")
            << layoutFile(thunderbirdGerman)
            << QString("Vorname=firstname | Nachname=lastname | Primäre E-Mail-Adresse=email | "
                       "Sekundäre E-Mail-Adresse=email | Tel. dienstlich=telephone | Tel. privat=telephone | "
                       "Fax-Nummer=telefax | Mobil-Tel.-Nr.=mobile | Privat: Adresse=street | "
                       "Privat: Adresse 2=street | Privat: Ort=city | Privat: PLZ=plz | Dienstlich: Adresse=street | "
                       "Dienstlich: Adresse 2=street | Dienstlich: Ort=city | Dienstlich: PLZ=plz | "
                       "Organisation=company");
        QTest::newRow("web address book, types")
            << layoutFile(googleContacts)
            << QString("Given Name=firstname | Family Name=lastname | E-mail 1 - Value=email | "
                       "E-mail 2 - Value=email | Phone 1 - Value=telephone | Phone 2 - Value=telephone | "
                       "Address 1 - Street=street | Address 1 - City=city | Address 1 - Postal Code=plz | "
                       "Address 1 - Extended Address=street | Organization 1 - Name=company");
        QTest::newRow("web address book, labels")
            << layoutFile(googleLabels)
            << QString("First Name=firstname | Last Name=lastname | Organization Name=company | "
                       "E-mail 1 - Value=email | Phone 1 - Value=telephone | Phone 2 - Value=telephone | "
                       "Address 1 - Street=street | Address 1 - City=city | Address 1 - Postal Code=plz | "
                       "Address 1 - Extended Address=street");
        QTest::newRow("web address book, full name only")
            << layoutFile({"Name", "E-mail 1 - Type", "E-mail 1 - Value", "Phone 1 - Type", "Phone 1 - Value"})
            << QString("Name=fullname | E-mail 1 - Value=email | Phone 1 - Value=telephone");
        QTest::newRow("spreadsheet, Spanish with accents")
            << QString("Empresa;Teléfono;Teléfono móvil;Dirección;Código postal;Ciudad;Correo electrónico\n"
                       "A;1;2;3;4;5;6\n")
                   .toUtf8()
            << QString("Empresa=company | Teléfono=telephone | Teléfono móvil=mobile | Dirección=street | "
                       "Código postal=plz | Ciudad=city | Correo electrónico=email");
    }

    void columnsOfLayouts()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, expected);
        KalAddressFile file;
        QString error;
        QVERIFY2(file.loadData(data, &error), qPrintable(error));
        QCOMPARE(mappingOf(file).join(" | "), expected);
    }

    void recordsOfLayouts_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("business wins, second street appended")
            << layoutFile(outlookGerman,
                          {"Vorname=Eva", "Nachname=Roth", "Firma=Roth Maler GmbH", "Straße geschäftlich=Hauptstr. 12",
                           "Straße geschäftlich 2=Hinterhaus", "Ort geschäftlich=Bonn",
                           "Postleitzahl geschäftlich=53111", "Straße privat=Gartenweg 1", "Ort privat=Köln",
                           "Postleitzahl privat=50667", "Telefon privat=0221 1", "Telefon geschäftlich=0228 2",
                           "Fax geschäftlich=0228 3", "Mobiltelefon=0171 4", "E-Mail-Adresse=eva@roth.de"})
            << QStringList{
                   "firstname=Eva", "lastname=Roth",    "company=Roth Maler GmbH", "street=Hauptstr. 12, Hinterhaus",
                   "plz=53111",     "city=Bonn",        "telephone=0228 2",        "telefax=0228 3",
                   "mobile=0171 4", "email=eva@roth.de"};
        QTest::newRow("business wins wherever it stands")
            << layoutFile(
                   {"Firma", "Telefon", "Telefon geschäftlich", "Fax", "Fax dienstlich", "E-Mail privat", "E-Mail"},
                   {"Firma=Roth", "Telefon=1", "Telefon geschäftlich=2", "Fax=3", "Fax dienstlich=4",
                    "E-Mail privat=b@roth.de", "E-Mail=a@roth.de"})
            << QStringList{"company=Roth", "telephone=2", "telefax=4", "email=a@roth.de"};
        QTest::newRow("only a home address: taken whole")
            << layoutFile(outlookEnglish, {"Company=Kaya Fliesen", "Home Street=Am Markt 3", "Home City=Köln",
                                           "Home Postal Code=50667", "Other City=Trier", "Home Phone=0221 9"})
            << QStringList{"company=Kaya Fliesen", "street=Am Markt 3", "plz=50667", "city=Köln", "telephone=0221 9"};
        QTest::newRow("types decide per row")
            << layoutFile(googleContacts,
                          {"Name=Hans Berg", "Given Name=Hans", "Family Name=Berg", "E-mail 1 - Type=* Home",
                           "E-mail 1 - Value=hans@privat.de", "E-mail 2 - Type=Work", "E-mail 2 - Value=berg@bau.de",
                           "Phone 1 - Type=Mobile", "Phone 1 - Value=0171 5", "Phone 2 - Type=Work Fax",
                           "Phone 2 - Value=030 6", "Address 1 - Type=Work", "Address 1 - Street=Ring 4",
                           "Address 1 - City=Berlin", "Address 1 - Postal Code=10115",
                           "Organization 1 - Name=Berg Bau"})
            << QStringList{"firstname=Hans", "lastname=Berg", "company=Berg Bau", "street=Ring 4",    "plz=10115",
                           "city=Berlin",    "telefax=030 6", "mobile=0171 5",    "email=berg@bau.de"};
        QTest::newRow("private contact: the person names the company")
            << layoutFile({"Name", "Phone 1 - Type", "Phone 1 - Value"},
                          {"Name=Müller, Hans", "Phone 1 - Type=Work", "Phone 1 - Value=0228 7"})
            << QStringList{"firstname=Hans", "lastname=Müller", "company=Hans Müller", "telephone=0228 7"};
        QTest::newRow("a name with a legal form is a company")
            << layoutFile({"Name", "Ort"}, {"Name=Glas & Klar GmbH", "Ort=Aachen"})
            << QStringList{"company=Glas & Klar GmbH", "city=Aachen"};
    }

    void recordsOfLayouts()
    {
        QFETCH(QByteArray, data);
        QFETCH(QStringList, expected);
        KalAddressFile file;
        QString error;
        QVERIFY2(file.loadData(data, &error), qPrintable(error));
        QCOMPARE(file.companies().size(), 1);
        QCOMPARE(describe(file.companies().first()), expected);
    }

    // What the preview tells about columns it does not simply copy.
    void notesAndUnmappedColumns()
    {
        KalAddressFile file;
        QString error;
        QVERIFY(
            file.loadData(layoutFile({"Name", "Given Name", "Family Name", "Phone 1 - Type", "Phone 1 - Value",
                                      "Business Phone", "Home Phone", "Birthday"},
                                     {"Name=Hans Berg", "Given Name=Hans", "Family Name=Berg", "Phone 1 - Type=Mobile",
                                      "Phone 1 - Value=0171", "Home Phone=1", "Birthday=1970-01-01"}),
                          &error));
        QCOMPARE(file.unmappedCaptions(), (QStringList{"Name", "Birthday"}));
        QCOMPARE(file.columnNote(0), QStringLiteral("wird nicht übernommen"));
        QCOMPARE(file.columnNote(3), QStringLiteral("Art der Angabe in „Phone 1 - Value“"));
        QVERIFY(file.columnNote(4).contains("„Phone 1 - Type“"));
        QCOMPARE(file.columnNote(5), QString());
        QCOMPARE(file.columnNote(6), QStringLiteral("nur wenn „Business Phone“ leer ist"));
        // Business Phone is empty in the row: the home number is taken.
        QCOMPARE(file.companies().first().value(R::Telephone), QStringLiteral("1"));
    }

    void correctionIsRememberedPerLayout()
    {
        const QByteArray first("Nr;Bezeichnung;Ort\n1;Roth GmbH;Bonn\n");
        KalAddressFile file;
        QString error;
        QVERIFY(file.loadData(first, &error));
        QCOMPARE(mappingOf(file), QStringList{"Ort=city"});
        file.setMapping(1, R::Company);
        file.rememberMapping();

        KalAddressFile again;
        QVERIFY(again.loadData("Nr;Bezeichnung;Ort\n2;Kaya;K\xC3\xB6ln\n", &error));
        QCOMPARE(mappingOf(again), (QStringList{"Bezeichnung=company", "Ort=city"}));
        QCOMPARE(again.companies().first().value(R::Company), QStringLiteral("Kaya"));

        KalAddressFile other;
        QVERIFY(other.loadData("Nr;Bezeichnung;Stadt\n2;Kaya;K\xC3\xB6ln\n", &error));
        QCOMPARE(mappingOf(other), QStringList{"Stadt=city"});

        // Going back to the guess forgets the correction.
        again.setMapping(1, -1);
        again.rememberMapping();
        KalAddressFile third;
        QVERIFY(third.loadData(first, &error));
        QCOMPARE(mappingOf(third), QStringList{"Ort=city"});
    }

    void awkwardButReadable_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<int>("longRows");
        const QString text = QStringLiteral("Firma;Ort\nAä GmbH;Trier\n");
        QTest::newRow("UTF-16 without byte-order mark") << QTextCodec::codecForName("UTF-16LE")->fromUnicode(text)
                                                        << QStringList{"company=Aä GmbH", "city=Trier"} << 0;
        QTest::newRow("UTF-16 big-endian without mark") << QTextCodec::codecForName("UTF-16BE")->fromUnicode(text)
                                                        << QStringList{"company=Aä GmbH", "city=Trier"} << 0;
        QTest::newRow("more fields than captions")
            << QByteArray("Firma;Ort\nRoth;Bonn;Hauptstr. 1\n") << QStringList{"company=Roth", "city=Bonn"} << 1;
    }

    void awkwardButReadable()
    {
        QFETCH(QByteArray, data);
        QFETCH(QStringList, expected);
        QFETCH(int, longRows);
        KalAddressFile file;
        QString error;
        QVERIFY2(file.loadData(data, &error), qPrintable(error));
        QCOMPARE(describe(file.companies().first()), expected);
        QCOMPARE(file.longRows(), longRows);
        // The surplus field is shown, not silently dropped.
        if (longRows > 0)
            QCOMPARE(file.unmappedCaptions(), QStringList{"Spalte 3"});
    }
};

QTEST_GUILESS_MAIN(TstAddressFile)
#include "tst_addressfile.moc"
