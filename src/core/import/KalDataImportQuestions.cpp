#include "KalDataImportQuestions.h"

#include "core/project/KalProgress.h"
#include "core/project/KalPrompt.h"
#include "core/textaids/KalDateFormat.h"

#include <QRegularExpression>

namespace {

const struct
{
    const char *text;
    const char *yes;
    const char *all;
} kQuestions[KalDataImportQuestions::KindCount] = {
    {QT_TRANSLATE_NOOP(
         "KalDataImportQuestions",
         "Die Firma\n\nGewerk: %1\nVorname: %2\nNachname: %3\nFirma: %4\nStraße: %5\nPLZ: %6\nStadt: %7\nTelefon: "
         "%8\nFax: %9\nMobil: %10\nE-Mail: %11\n\n"
         "wurde im Bautagebuch gelöscht.\nSoll diese Firma auch im Pellwick gelöscht "
         "werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Firma im Pellwick löschen"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren gelöschten Firmen genauso behandeln")},
    {QT_TRANSLATE_NOOP("KalDataImportQuestions",
                       "Der Bericht %1 wurde im Bautagebuch gelöscht.\nSollen die Mängel dieses Berichts im "
                       "Pellwick gelöscht werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Mängel im Pellwick löschen"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren im Bautagebuch gelöschten Berichte genauso behandeln")},
    {QT_TRANSLATE_NOOP("KalDataImportQuestions",
                       "Der Mangel %1 wurde im Bautagebuch gelöscht.\nSoll dieser Mangel im Pellwick ebenfalls "
                       "gelöscht werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Mangel im Pellwick löschen"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren im Bautagebuch gelöschten Mängel genauso behandeln")},
    {QT_TRANSLATE_NOOP("KalDataImportQuestions",
                       "Das Foto \"%1\" vom %2 wurde im Bautagebuch aus dem Mangel entfernt.\nSoll dieses Foto im "
                       "Pellwick ebenfalls entfernt werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Foto im Pellwick entfernen"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren im Bautagebuch gelöschten Fotos genauso behandeln")},
    {QT_TRANSLATE_NOOP(
         "KalDataImportQuestions",
         "Die Firma\n\nGewerk: %1\nVorname: %2\nNachname: %3\nFirma: %4\nStraße: %5\nPLZ: %6\nStadt: %7\nTelefon: "
         "%8\nFax: %9\nMobil: %10\nE-Mail: %11\n\n"
         "wurde im Pellwick gelöscht.\nSoll diese Firma erneut importiert werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Firma erneut importieren"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren gelöschten Firmen genauso behandeln")},
    {QT_TRANSLATE_NOOP("KalDataImportQuestions",
                       "Der Mangel %1 wurde im Pellwick gelöscht.\nSoll dieser Mangel erneut importiert werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Mangel erneut importieren"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren gelöschten Mängel genauso behandeln")},
    {QT_TRANSLATE_NOOP("KalDataImportQuestions",
                       "Das Foto \"%1\" vom %2 wurde im Pellwick gelöscht.\nSoll dieses Foto erneut importiert "
                       "werden?\n"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Foto erneut importieren"),
     QT_TRANSLATE_NOOP("KalDataImportQuestions", "Alle weiteren gelöschten Fotos genauso behandeln")},
};

} // namespace

KalDataImportQuestions::KalDataImportQuestions(KalPrompt *prompt, KalProgress *progress)
    : m_prompt(prompt)
    , m_progress(progress)
{
    for (int &all : m_all)
        all = -1;
}

QString KalDataImportQuestions::fill(const QString &pattern, const QStringList &values)
{
    static const QRegularExpression placeholder(QStringLiteral("%(\\d+)"));
    QString out;
    int last = 0;
    auto it = placeholder.globalMatch(pattern);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const int index = match.captured(1).toInt() - 1;
        out += pattern.midRef(last, match.capturedStart() - last);
        out += index >= 0 && index < values.size() ? values.at(index) : match.captured(0);
        last = match.capturedEnd();
    }
    out += pattern.midRef(last);
    return out;
}

bool KalDataImportQuestions::ask(Kind kind, const QStringList &values)
{
    if (m_all[kind] >= 0)
        return m_all[kind] == 1;
    bool all = false;
    KalPrompt::Message message;
    message.icon = KalPrompt::Question;
    message.title = tr("Datenimport aus dem Bautagebuch");
    message.text = fill(tr(kQuestions[kind].text), values);
    message.buttons = {{KalPrompt::AcceptCustom, tr(kQuestions[kind].yes)}, {KalPrompt::RejectCustom, tr("Nein")}};
    message.defaultButton = 0;
    message.escapeButton = 1;
    message.checkBoxText = tr(kQuestions[kind].all);
    message.checkBoxChecked = &all;
    if (m_progress)
        m_progress->yieldToMessage();
    const bool yes = m_prompt->show(message) == 0;
    if (all)
        m_all[kind] = yes ? 1 : 0;
    return yes;
}

bool KalDataImportQuestions::askCompany(Kind kind, const KalCompanyRecord &company)
{
    QStringList values;
    for (int field = 0; field < KalCompanyRecord::FieldCount; ++field)
        values << company.value(field);
    return ask(kind, values);
}

bool KalDataImportQuestions::askReport(const QString &reportNumber)
{
    return ask(DeleteReport, {reportNumber});
}

bool KalDataImportQuestions::askDefect(Kind kind, const QString &defectNumber)
{
    return ask(kind, {defectNumber});
}

bool KalDataImportQuestions::askPhoto(Kind kind, const QString &caption, const QDate &date)
{
    const QString title = caption.trimmed().isEmpty() ? tr("Ohne Titel") : caption;
    const QString day = date.isValid() ? KalDateFormat::toText(date) : tr("'Ohne Datum'");
    return ask(kind, {title, day});
}
