#include "KalCompanyFormat.h"

#include "core/project/KalLog.h"
#include "core/project/KalSqlTableModel.h"

#include <QSettings>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QVariant>

namespace {

const char *const s_keyField1 = "FormatField1";
const char *const s_keyField2 = "FormatField2";
const char *const s_keyField3 = "FormatField3";
const char *const s_keyField2InBrackets = "FormatField2InBrackets";
const char *const s_keyField3InBrackets = "FormatField3InBrackets";

int readField(const QSettings &settings, const char *key, int fallback)
{
    const QVariant stored = settings.value(QLatin1String(key));
    if (!stored.isValid())
        return fallback;
    bool ok = false;
    const int value = stored.toString().trimmed().toInt(&ok);
    return ok && value >= 0 && value < KalCompanyFormat::FieldCount ? value : fallback;
}

bool readFlag(const QSettings &settings, const char *key, bool fallback)
{
    const QVariant stored = settings.value(QLatin1String(key));
    if (!stored.isValid())
        return fallback;
    if (stored.userType() == QMetaType::Bool)
        return stored.toBool();
    // QVariant would call any non-empty text "true"; only accept real flags.
    const QString text = stored.toString().trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return fallback;
}

bool isBlankSeparator(const QString &separator)
{
    return separator == QLatin1String(" ") || separator == QLatin1String("  ");
}

} // namespace

KalCompanyFormat KalCompanyFormat::load()
{
    const KalCompanyFormat defaults = factoryDefaults();
    QSettings settings;
    settings.beginGroup(settingsGroup());
    KalCompanyFormat format;
    format.field1 = readField(settings, s_keyField1, defaults.field1);
    format.field2 = readField(settings, s_keyField2, defaults.field2);
    format.field3 = readField(settings, s_keyField3, defaults.field3);
    format.field2InBrackets = readFlag(settings, s_keyField2InBrackets, defaults.field2InBrackets);
    format.field3InBrackets = readFlag(settings, s_keyField3InBrackets, defaults.field3InBrackets);
    settings.endGroup();
    return format;
}

void KalCompanyFormat::save() const
{
    QSettings settings;
    settings.beginGroup(settingsGroup());
    settings.setValue(QLatin1String(s_keyField1), field1);
    settings.setValue(QLatin1String(s_keyField2), field2);
    settings.setValue(QLatin1String(s_keyField3), field3);
    settings.setValue(QLatin1String(s_keyField2InBrackets), field2InBrackets);
    settings.setValue(QLatin1String(s_keyField3InBrackets), field3InBrackets);
    settings.endGroup();
}

QStringList KalCompanyFormat::fieldCaptions()
{
    return {tr("- leer -"), tr("Gewerk"), tr("Vorname"), tr("Nachname"), tr("Firma"),
            tr("Straße"),   tr("Stadt"),  tr("Telefon"), tr("Handy"),    tr("E-Mail")};
}

QString KalCompanyFormat::fieldColumn(int field)
{
    switch (field) {
    case Type:
        return QStringLiteral("type");
    case FirstName:
        return QStringLiteral("firstname");
    case LastName:
        return QStringLiteral("lastname");
    case Company:
        return QStringLiteral("company");
    case Street:
        return QStringLiteral("street");
    case City:
        return QStringLiteral("city");
    case Telephone:
        return QStringLiteral("telephone");
    case Mobile:
        return QStringLiteral("mobile");
    case Email:
        return QStringLiteral("email");
    default:
        return QString();
    }
}

QString KalCompanyFormat::text(const QSqlRecord &company, const QString &separator) const
{
    const auto value = [&company](int field) {
        const QString column = fieldColumn(field);
        if (column.isEmpty())
            return QString();
        const int index = company.indexOf(column);
        return index < 0 ? QString() : company.value(index).toString();
    };

    QString result = value(field1);
    bool bracketOpen = false;

    const QString second = value(field2);
    if (!second.isEmpty()) {
        if (!result.isEmpty())
            result += separator;
        if (field2InBrackets) {
            result += QLatin1Char('(');
            bracketOpen = true;
        }
        result += second;
        if (field2InBrackets && !field3InBrackets) {
            result += QLatin1Char(')');
            bracketOpen = false;
        }
    }

    // The closing step belongs to field 3: without a third field a bracket
    // opened for field 2 stays open.
    if (!fieldColumn(field3).isEmpty()) {
        const QString third = value(field3);
        if (!third.isEmpty()) {
            if (!result.isEmpty()) {
                if (bracketOpen && isBlankSeparator(separator))
                    result += QLatin1Char(',') + separator;
                else
                    result += separator;
            }
            if (field3InBrackets && !bracketOpen)
                result += QLatin1Char('(');
            result += third;
            bracketOpen = field3InBrackets;
        }
        if (bracketOpen)
            result += QLatin1Char(')');
    }
    return result;
}

QString KalCompanyFormat::text(const QSqlDatabase &db, qint64 companyId, const QString &separator) const
{
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT * FROM company WHERE id = :id"));
    query.bindValue(QStringLiteral(":id"), companyId);
    if (!query.exec()) {
        qCDebug(kalSqlLog, "SQL-Error: %s", qPrintable(query.lastError().text()));
        return QString();
    }
    if (!query.next())
        return QString();
    return text(query.record(), separator);
}

QSqlRecord KalCompanyFormat::sampleCompany()
{
    const QList<QPair<const char *, QString>> values = {
        {"type", tr("Architekt")},
        {"firstname", QStringLiteral("Karl")},
        {"lastname", QStringLiteral("Mustermann")},
        {"company", QStringLiteral("Mustermann & Söhne")},
        {"street", QStringLiteral("Musterstraße. 99")},
        {"plz", QStringLiteral("12345")},
        {"city", QStringLiteral("Musterstadt")},
        {"telephone", QStringLiteral("Tel. 0123-45678")},
        {"telefax", QStringLiteral("Fax 0123-456789")},
        {"mobile", QStringLiteral("Mobil 0178-7654321")},
        {"email", QStringLiteral("info@mustermann-soehne.de")},
    };
    QSqlRecord record;
    for (const auto &pair : values) {
        QSqlField field(QLatin1String(pair.first), QVariant::String);
        field.setValue(pair.second);
        record.append(field);
    }
    return record;
}

void KalCompanyFormat::installInModels() const
{
    const KalCompanyFormat format = *this;
    KalSqlTableModel::setCompanyFormatter(
        [format](const QSqlRecord &company) { return format.text(company, gridSeparator()); });
}

void KalCompanyFormat::installFromSettings()
{
    load().installInModels();
}

bool KalCompanyFormat::operator==(const KalCompanyFormat &other) const
{
    return field1 == other.field1 && field2 == other.field2 && field3 == other.field3 &&
           field2InBrackets == other.field2InBrackets && field3InBrackets == other.field3InBrackets;
}
