#include "KalCompleter.h"

#include "core/project/KalPrompt.h"
#include "gui/textaids/KalCompleterDialog.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPointer>
#include <QSet>
#include <QSettings>
#include <QStringListModel>
#include <QTextEdit>

namespace {
QSet<KalCompleter *> &liveCompleters()
{
    static QSet<KalCompleter *> set;
    return set;
}

const char *const DontShowKey = "Messages/DontShowCompleterMsg";
} // namespace

KalCompleter::KalCompleter(const QString &tableId, int kind, const QString &columnId, int columnNumber, QWidget *owner)
    : QCompleter(owner)
{
    m_info.tableId = tableId;
    m_info.columnId = columnId;
    m_info.kind = kind;
    m_info.columnNumber = columnNumber;

    m_model = new QStringListModel(this);
    setModel(m_model);
    setCaseSensitivity(Qt::CaseInsensitive);
    setCompletionMode(QCompleter::PopupCompletion);
    setModelSorting(QCompleter::UnsortedModel);
    reload();

    if (owner) {
        // setWidget() also makes the completer the event filter of its popup,
        // which hands the keys on to the field.
        setWidget(owner);
        if (auto *lineEdit = qobject_cast<QLineEdit *>(owner)) {
            connect(lineEdit, &QLineEdit::editingFinished, this, [this, lineEdit] { appendEntry(lineEdit->text()); });
        }
    }
    connect(this, QOverload<const QString &>::of(&QCompleter::activated), this, &KalCompleter::insertCompletion);
    liveCompleters().insert(this);
}

KalCompleter::~KalCompleter()
{
    liveCompleters().remove(this);
}

QStringList KalCompleter::displayList() const
{
    QStringList list;
    for (const QString &value : m_values)
        list << KalCompleterStore::displayText(value);
    return list;
}

QString KalCompleter::valueForDisplay(const QString &display) const
{
    for (const QString &value : m_values) {
        if (KalCompleterStore::displayText(value) == display)
            return value;
    }
    return display;
}

bool KalCompleter::appendEntry(const QString &text)
{
    if (!m_enabled)
        return false;
    const QString value = KalCompleterStore::normalizedValue(text);
    if (value.isEmpty() || m_values.contains(value))
        return false;
    m_values << value;
    KalCompleterStore::State state;
    state.enabled = m_enabled;
    state.hasValues = true;
    state.values = m_values;
    KalCompleterStore::write(m_info, state);
    rebuildModel();
    reloadSiblings();
    return true;
}

void KalCompleter::reload()
{
    KalCompleterStore::ensureDefaults(m_info);
    const KalCompleterStore::State state = KalCompleterStore::read(m_info.tableId, m_info.columnId);
    m_enabled = state.enabled;
    m_values.clear();
    for (const QString &value : state.values) {
        if (!m_values.contains(value))
            m_values << value;
    }
    rebuildModel();
    if (!m_enabled && popup())
        popup()->hide();
}

void KalCompleter::reloadAll()
{
    const QSet<KalCompleter *> all = liveCompleters();
    for (KalCompleter *completer : all)
        completer->reload();
}

void KalCompleter::reloadSiblings()
{
    const QSet<KalCompleter *> all = liveCompleters();
    for (KalCompleter *completer : all) {
        if (completer != this && completer->m_info.tableId == m_info.tableId &&
            completer->m_info.columnId == m_info.columnId)
            completer->reload();
    }
}

void KalCompleter::rebuildModel()
{
    m_model->setStringList(displayList());
}

void KalCompleter::showAllValues()
{
    QWidget *field = widget();
    if (!m_enabled || m_values.isEmpty()) {
        showExplanation(field);
        return;
    }
    setCompletionPrefix(QString());
    if (field) {
        QRect rect = field->rect();
        complete(rect);
    } else {
        complete();
    }
    if (popup())
        popup()->setCurrentIndex(completionModel()->index(0, 0));
}

void KalCompleter::showExplanation(QWidget *parent)
{
    if (QSettings().value(QLatin1String(DontShowKey), false).toBool())
        return;
    KalPrompt::Message message;
    message.icon = KalPrompt::Information;
    message.title = tr("Autotexte");
    message.text = tr("Diese Funktion erlaubt das automatische Einfügen der Texte, die bisher in dieses Feld "
                      "eingetragen wurden.\n\n"
                      "Für dieses Feld sind noch keine Texte gespeichert oder die Funktion ist ausgeschaltet. "
                      "Jeder Text, den Sie hier eingeben, wird in die Liste aufgenommen und beim nächsten Mal "
                      "vorgeschlagen.\n"
                      "Mit „Autotexte bearbeiten“ können Sie die Listen aller Felder ändern und die Funktion "
                      "für einzelne Felder ein- oder ausschalten.");
    message.buttons = {{KalPrompt::AcceptCustom, tr("Autotexte bearbeiten")},
                       {KalPrompt::RejectCustom, tr("Schließen")}};
    message.defaultButton = 1;
    message.escapeButton = 1;
    message.dontShowAgainKey = QLatin1String(DontShowKey);
    message.dontShowAgainText = tr("Diese Meldung nicht mehr anzeigen");
    // The field may be a grid editor that closes once the focus goes to the
    // message or dialog, so the dialog belongs to the field's window.
    QPointer<QWidget> window(parent ? parent->window() : nullptr);
    if (KalPrompt::ask(message) == 0) {
        KalCompleterDialog dialog(window);
        dialog.exec();
    }
}

void KalCompleter::insertCompletion(const QString &completion)
{
    const QString value = valueForDisplay(completion);
    if (auto *lineEdit = qobject_cast<QLineEdit *>(widget())) {
        // A line edit holds one line; the lines of a multi-line value are
        // joined with blanks.
        QString line = value;
        line.replace(QLatin1Char('\n'), QLatin1Char(' '));
        lineEdit->setText(line);
        return;
    }
    emit valueChosen(value);
}
