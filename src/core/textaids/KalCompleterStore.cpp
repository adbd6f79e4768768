#include "KalCompleterStore.h"

#include "core/project/KalDefectColumns.h"
#include "core/project/KalSettings.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>

namespace KalCompleterStore {

namespace {
const char *const Context = "KalCompleterStore";

QString tr(const char *text)
{
    return QCoreApplication::translate(Context, text);
}

const QString DefectTable = QStringLiteral("defect");
} // namespace

QString languageGroup()
{
    return QStringLiteral("Completer_%1").arg(KalSettings::chosenLanguageAndCountry().language);
}

QString completerGroup(const QString &tableId, const QString &columnId)
{
    return languageGroup() + QLatin1Char('/') + tableId + QLatin1Char('/') + columnId;
}

QVector<Info> knownCompleters()
{
    // Column numbers are those of the defect table; other tables have no
    // factory lists and therefore no numbers.
    return {
        {DefectTable, QStringLiteral("description"), TextEditKind, 2},
        {DefectTable, QStringLiteral("type"), LineEditKind, 4},
        {DefectTable, QStringLiteral("user_id"), LineEditKind, 5},
        {DefectTable, QStringLiteral("roomname"), LineEditKind, 7},
        {DefectTable, QStringLiteral("roombook_number"), LineEditKind, 8},
        {DefectTable, QStringLiteral("correction_instruction"), LineEditKind, 11},
        {DefectTable, QStringLiteral("priority"), LineEditKind, 12},
        {QStringLiteral("plan_info"), QStringLiteral("plan_name"), LineEditKind, -1},
        {QStringLiteral("plan_info"), QStringLiteral("plan_index"), LineEditKind, -1},
        {QStringLiteral("photo_info"), QStringLiteral("comment"), LineEditKind, -1},
    };
}

Info info(const QString &tableId, const QString &columnId)
{
    for (const Info &known : knownCompleters()) {
        if (known.tableId == tableId && known.columnId == columnId)
            return known;
    }
    Info unknown;
    unknown.tableId = tableId;
    unknown.columnId = columnId;
    return unknown;
}

QVector<Info> listedCompleters()
{
    QVector<Info> list = knownCompleters();
    QSettings settings;
    settings.beginGroup(languageGroup());
    for (const QString &table : settings.childGroups()) {
        settings.beginGroup(table);
        for (const QString &column : settings.childGroups()) {
            bool listed = false;
            for (const Info &i : list)
                listed = listed || (i.tableId == table && i.columnId == column);
            if (listed)
                continue;
            Info extra = info(table, column);
            const bool simple = settings.value(column + QStringLiteral("/Simple"), true).toBool();
            extra.kind = simple ? LineEditKind : TextEditKind;
            list.append(extra);
        }
        settings.endGroup();
    }
    return list;
}

QString tableCaption(const QString &tableId)
{
    if (tableId == DefectTable)
        return tr("Mängel");
    if (tableId == QLatin1String("plan_info"))
        return tr("Pläne");
    if (tableId == QLatin1String("photo_info"))
        return tr("Fotos");
    if (tableId == QLatin1String("company"))
        return tr("Firmen");
    if (tableId == QLatin1String("kal"))
        return tr("Kal");
    return tableId;
}

QString fieldCaption(const QString &tableId, const QString &columnId)
{
    struct Caption
    {
        const char *table;
        const char *column;
        const char *caption;
    };
    if (tableId == DefectTable) {
        const QString caption = KalDefectColumns::aidCaption(columnId);
        return caption.isEmpty() ? columnId : caption;
    }
    static const Caption captions[] = {
        {"plan_info", "plan_name", QT_TRANSLATE_NOOP("KalCompleterStore", "Plan-Name oder Nummer")},
        {"plan_info", "plan_index", QT_TRANSLATE_NOOP("KalCompleterStore", "Index")},
        {"photo_info", "caption", QT_TRANSLATE_NOOP("KalCompleterStore", "Titel")},
        {"photo_info", "comment", QT_TRANSLATE_NOOP("KalCompleterStore", "Kommentar")},
    };
    for (const Caption &c : captions) {
        if (tableId == QLatin1String(c.table) && columnId == QLatin1String(c.column))
            return tr(c.caption);
    }
    return columnId;
}

QStringList defaultValues(const QString &tableId, int columnNumber)
{
    if (tableId != DefectTable)
        return {};
    switch (columnNumber) {
    case 4:
        return {tr("Mangel vor Abnahme (§ 4 Nr. 7 VOB/B)"), tr("Gewährleistungsmangel (§ 13 Abs. 5 Nr. 1 VOB/B)"),
                tr("Mangelfolgeschaden"), tr("Mangel im Bestand")};
    case 7:
        return {tr("Büro"), tr("Küche"), tr("WC"), tr("Flur"), tr("Treppenhaus"), tr("Zimmer")};
    case 8:
        return {tr("UG-001"), tr("EG-001"), tr("OG-001"), tr("DG-001")};
    case 12:
        return {tr("Hoch"), tr("Normal"), tr("Niedrig")};
    default:
        return {};
    }
}

QString normalizedValue(const QString &text)
{
    // Line breaks are kept (multi-line fields store them); everything else
    // is simplified line by line.
    QString normalized = text;
    normalized.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    normalized.replace(QChar(0x2029), QLatin1Char('\n')); // paragraph separator
    QStringList lines;
    for (const QString &line : normalized.split(QLatin1Char('\n'))) {
        const QString simple = line.simplified();
        if (!simple.isEmpty())
            lines << simple;
    }
    return lines.join(QLatin1Char('\n'));
}

QString displayText(const QString &value)
{
    QString display = value;
    display.replace(QLatin1Char('\n'), QLatin1String(" | "));
    return display;
}

State read(const QString &tableId, const QString &columnId)
{
    State state;
    QSettings settings;
    settings.beginGroup(completerGroup(tableId, columnId));
    state.enabled = settings.value(QStringLiteral("Enabled"), true).toBool();
    state.hasValues =
        settings.childGroups().contains(QStringLiteral("Values")) || settings.contains(QStringLiteral("Values/size"));
    const int size = settings.beginReadArray(QStringLiteral("Values"));
    for (int i = 0; i < size; ++i) {
        settings.setArrayIndex(i);
        const QString value = normalizedValue(settings.value(QStringLiteral("Centry")).toString());
        if (!value.isEmpty())
            state.values << value;
    }
    settings.endArray();
    return state;
}

void write(const Info &info, const State &state)
{
    QSettings settings;
    settings.beginGroup(completerGroup(info.tableId, info.columnId));
    settings.setValue(QStringLiteral("TableID"), info.tableId);
    settings.setValue(QStringLiteral("ColumnID"), info.columnId);
    settings.setValue(QStringLiteral("Simple"), info.kind != TextEditKind);
    settings.setValue(QStringLiteral("Enabled"), state.enabled);
    settings.remove(QStringLiteral("Values"));
    settings.beginWriteArray(QStringLiteral("Values"), state.values.size());
    for (int i = 0; i < state.values.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("Centry"), state.values.at(i));
    }
    settings.endArray();
}

bool ensureDefaults(const Info &info)
{
    if (info.kind != LineEditKind)
        return false;
    State state = read(info.tableId, info.columnId);
    if (!state.enabled || state.hasValues)
        return false;
    state.values = defaultValues(info.tableId, info.columnNumber);
    if (state.values.isEmpty())
        return false;
    write(info, state);
    return true;
}

void resetAll()
{
    QSettings settings;
    settings.remove(languageGroup());
}

} // namespace KalCompleterStore
