#include "KalAddressCaption.h"

#include "core/import/KalCompanyImport.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace {

using R = KalCompanyRecord;

QSet<QString> wordSet(const char *words)
{
    const QStringList list = QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return QSet<QString>(list.begin(), list.end());
}

// Words that make a column something the company list has no field for
// (a title, a country, a birthday, a display name, a pager ...), whatever
// else its caption says.
const QSet<QString> &ignoredWords()
{
    static const QSet<QString> words =
        wordSet("anrede titel title jobtitle position suffix prefix initials initialen abteilung department display "
                "displayname angezeigter anzeigename screen nick nickname spitzname short maiden yomi phonetic "
                "middlename typ type label formatted country land region state bundesland kanton province provinz "
                "pobox postfach pager web webseite webpage website homepage url internet im messenger birthday "
                "geburtstag geburtsjahr geburtsmonat anniversary jahrestag gender geschlecht notes notizen assistant "
                "assistants assistent assistentin manager managers vorgesetzten spouse partner children kinder "
                "callback rueckmeldung tty tdd radio telex isdn account konto billing user benutzer benutzerdef "
                "custom language sprache priority prioritaet sensitivity vertraulichkeit photo group membership "
                "symbol job description relation event location referred hoerbehinderte id directory mileage hobby "
                "subject occupation arbeitstitel");
    return words;
}

// The field a word names. Where a caption has words of several fields the
// first in kindOrder() decides ("Company Main Phone" is a phone number,
// "PLZ Ort" a city with its postcode, "E-Mail-Adresse" an e-mail address).
const QHash<QString, int> &kindWords()
{
    static const QHash<QString, int> table = [] {
        QHash<QString, int> t;
        const auto add = [&t](int kind, const char *words) {
            for (const QString &word : wordSet(words))
                t.insert(word, kind);
        };
        add(R::Email, "email mail emailadresse mailadresse eml correo");
        add(R::Mobile,
            "mobil mobile mobiltelefon mobilnummer mobilfunk handy handynummer cell cellphone natel movil celular");
        add(R::Telefax, "fax telefax faxnummer faxnr telefaxnummer");
        add(R::Telephone,
            "telefon tel telnr telefonnummer fon festnetz phone telephone haupttelefon rufnummer telefono");
        add(R::City, "ort stadt city town wohnort ortschaft gemeinde plzort ciudad localidad poblacion");
        add(R::Plz, "plz postleitzahl zip zipcode postalcode postcode codigopostal");
        add(R::Street,
            "strasse str street anschrift adresse address hausanschrift streetaddress adresszusatz calle direccion "
            "domicilio");
        add(KalAddressCaption::HouseNumber, "hausnummer hausnr hnr housenumber");
        add(R::Type, "gewerk gewerke gewerkbezeichnung branche beruf taetigkeit fachgebiet leistung kategorie trade "
                     "category industry profession");
        add(R::FirstName, "vorname vname rufname firstname givenname forename");
        add(R::LastName, "nachname nname familienname zuname lastname surname familyname apellido apellidos");
        add(R::Company, "firma firmenname firmierung unternehmen betrieb company companyname organisation organization "
                        "organisationsname name1 empresa compania organizacion");
        add(KalAddressCaption::FullName,
            "fullname ansprechpartner kontaktperson kontakt contact contactperson kontaktname");
        return t;
    }();
    return table;
}

const QVector<int> &kindOrder()
{
    static const QVector<int> order = {R::Email,
                                       R::Mobile,
                                       R::Telefax,
                                       R::Telephone,
                                       R::City,
                                       R::Plz,
                                       R::Street,
                                       KalAddressCaption::HouseNumber,
                                       R::Type,
                                       R::FirstName,
                                       R::LastName,
                                       R::Company,
                                       KalAddressCaption::FullName};
    return order;
}

const QSet<QString> &businessWords()
{
    static const QSet<QString> words =
        wordSet("geschaeftlich dienstlich business work buero arbeit office beruflich geschaeft trabajo");
    return words;
}

const QSet<QString> &companyWords()
{
    static const QSet<QString> words = wordSet("firma company organisation organization unternehmen");
    return words;
}

const QSet<QString> &privateWords()
{
    static const QSet<QString> words = wordSet("privat private home personal persoenlich heim zuhause particular casa");
    return words;
}

const QSet<QString> &otherWords()
{
    static const QSet<QString> words =
        wordSet("weitere weiterer weiteres other andere anderer secondary sekundaere car auto alternative");
    return words;
}

// Rank of a caption's or a type value's words.
int rankOf(const QStringList &words, bool companyMeansBusiness)
{
    int rank = KalAddressCaption::Plain;
    for (const QString &word : words) {
        if (businessWords().contains(word) || (companyMeansBusiness && companyWords().contains(word)))
            return KalAddressCaption::Business;
        if (privateWords().contains(word))
            rank = KalAddressCaption::Private;
        else if (otherWords().contains(word) && rank == KalAddressCaption::Plain)
            rank = KalAddressCaption::Other;
    }
    return rank;
}

// Pairs of words that name one thing together.
const QHash<QString, QString> &compounds()
{
    // "first name>firstname": the two words, then the one word they make.
    static const QHash<QString, QString> table = [] {
        QHash<QString, QString> t;
        const QStringList pairs =
            QString::fromLatin1(
                "e mail>email|zip code>zipcode|postal code>postalcode|post code>postcode|first name>firstname|"
                "given name>givenname|last name>lastname|family name>familyname|middle name>middlename|"
                "additional name>middlename|weitere vornamen>middlename|zweiter vorname>middlename|"
                "display name>displayname|codigo postal>codigopostal|full name>fullname|house number>housenumber|po "
                "box>pobox|web page>webpage|"
                "job title>jobtitle|company name>companyname|contact person>contactperson|"
                "street address>streetaddress|extended address>adresszusatz|plz ort>plzort|"
                "vollstaendiger name>fullname")
                .split(QLatin1Char('|'));
        for (const QString &pair : pairs)
            t.insert(pair.section(QLatin1Char('>'), 0, 0), pair.section(QLatin1Char('>'), 1));
        return t;
    }();
    return table;
}

int numberIn(const QStringList &words)
{
    for (const QString &word : words) {
        bool ok = false;
        const int n = word.toInt(&ok);
        if (ok)
            return n;
    }
    return 0;
}

// Kind and rank of a caption's words, without the numbered-entry layout.
KalAddressCaption fromWords(const QStringList &words)
{
    KalAddressCaption result;
    QSet<int> kinds;
    bool names = false;
    for (const QString &word : words) {
        if (ignoredWords().contains(word))
            return result;
        const auto it = kindWords().constFind(word);
        if (it != kindWords().constEnd())
            kinds.insert(*it);
        names = names || word == QLatin1String("name");
    }
    for (const int kind : kindOrder()) {
        if (kinds.contains(kind)) {
            result.kind = kind;
            break;
        }
    }
    const QStringList withoutNumbers = QStringList(words).filter(QRegularExpression(QStringLiteral("^\\D")));
    if (result.kind < 0 && names && withoutNumbers.size() == 1) {
        // "Name" is a person's full name; "Name 1", "Name 2" are the lines of
        // a company name as German address lists keep them.
        const int number = numberIn(words);
        result.kind = number > 0 ? int(R::Company) : int(KalAddressCaption::FullName);
        result.continuation = number > 1;
    }
    if (result.kind < 0)
        return result;
    // "Telefon Firma", "Company Main Phone": the company's own number.
    result.rank = rankOf(words, result.kind != R::Company);
    if (result.kind == R::Street)
        result.continuation = numberIn(words) > 1 || words.contains(QLatin1String("adresszusatz"));
    return result;
}

} // namespace

QStringList KalAddressCaption::words(const QString &text)
{
    QString folded = text.toLower();
    folded.replace(QStringLiteral("ä"), QStringLiteral("ae"));
    folded.replace(QStringLiteral("ö"), QStringLiteral("oe"));
    folded.replace(QStringLiteral("ü"), QStringLiteral("ue"));
    folded.replace(QStringLiteral("ß"), QStringLiteral("ss"));
    // "Téléphone" -> "telephone": other accents only mark the letter.
    QString plain;
    for (const QChar c : folded.normalized(QString::NormalizationForm_D)) {
        if (c.category() != QChar::Mark_NonSpacing)
            plain += c;
    }
    folded = plain;
    QStringList raw;
    QString word;
    const auto flush = [&] {
        if (!word.isEmpty())
            raw << word;
        word.clear();
    };
    for (const QChar c : qAsConst(folded)) {
        const bool letter = c >= QLatin1Char('a') && c <= QLatin1Char('z');
        const bool digit = c.isDigit();
        if (!letter && !digit) {
            flush();
            continue;
        }
        // "Email2" -> "email", "2"
        if (!word.isEmpty() && word.back().isDigit() != digit)
            flush();
        word += c;
    }
    flush();
    QStringList result;
    for (int i = 0; i < raw.size(); ++i) {
        if (i + 1 < raw.size()) {
            const auto it = compounds().constFind(raw.at(i) + QLatin1Char(' ') + raw.at(i + 1));
            if (it != compounds().constEnd()) {
                result << *it;
                ++i;
                continue;
            }
        }
        result << raw.at(i);
    }
    return result;
}

KalAddressCaption KalAddressCaption::analyse(const QString &caption)
{
    // "Phone 1 - Value", "Address 2 - City", "Organization 1 - Name": an
    // entry, its number and the part of it the column holds.
    static const QRegularExpression numbered(QStringLiteral("^\\s*(\\D+?)\\s*(\\d+)\\s+-\\s+(.+?)\\s*$"));
    const QRegularExpressionMatch match = numbered.match(caption);
    if (!match.hasMatch())
        return fromWords(words(caption));
    const QStringList entry = words(match.captured(1));
    const QStringList part = words(match.captured(3));
    const QString group = entry.join(QLatin1Char(' ')) + QLatin1Char(' ') + match.captured(2);
    if (part.contains(QLatin1String("type")) || part.contains(QLatin1String("label")) ||
        part.contains(QLatin1String("typ"))) {
        KalAddressCaption result;
        result.kind = TypeColumn;
        result.group = group;
        return result;
    }
    KalAddressCaption result = fromWords(entry + part);
    if (result.kind >= 0)
        result.group = group;
    if (result.kind == R::Street)
        result.continuation = part.contains(QLatin1String("adresszusatz"));
    return result;
}

void KalAddressCaption::applyType(const QString &typeValue, int *field, int *rank)
{
    const QStringList typeWords = words(typeValue);
    if (typeWords.isEmpty())
        return;
    const bool phone = *field == R::Telephone || *field == R::Telefax || *field == R::Mobile;
    if (phone) {
        int kind = R::Telephone;
        for (const QString &word : typeWords) {
            const int named = kindWords().value(word, -1);
            if (word == QLatin1String("pager")) {
                kind = -1;
                break;
            }
            if (named == R::Mobile || (named == R::Telefax && kind != R::Mobile))
                kind = named;
        }
        *field = kind;
    }
    *rank = rankOf(typeWords, true);
}
