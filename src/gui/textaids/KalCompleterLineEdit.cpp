#include "KalCompleterLineEdit.h"

#include "gui/textaids/KalCompleter.h"
#include "gui/textaids/KalCompleterKeys.h"
#include "gui/textaids/KalFieldButton.h"

#include <QAbstractItemView>
#include <QKeyEvent>

KalCompleterLineEdit::KalCompleterLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

KalCompleterLineEdit::KalCompleterLineEdit(const QString &tableId, const QString &columnId, QWidget *parent)
    : QLineEdit(parent)
{
    setField(tableId, columnId);
}

void KalCompleterLineEdit::setField(const QString &tableId, const QString &columnId)
{
    const KalCompleterStore::Info info = KalCompleterStore::info(tableId, columnId);
    setKalCompleter(
        new KalCompleter(info.tableId, KalCompleterStore::LineEditKind, info.columnId, info.columnNumber, this));
}

void KalCompleterLineEdit::setKalCompleter(KalCompleter *completer)
{
    if (m_completer == completer)
        return;
    delete m_completer;
    m_completer = completer;
    if (!m_completer) {
        delete m_button;
        m_button = nullptr;
        setStyleSheet(QString());
        return;
    }
    if (m_completer->widget() != this)
        m_completer->setWidget(this);
    if (!m_button) {
        m_button = new KalFieldButton(this);
        m_button->setToolTip(tr("Diese Funktion erlaubt das automatische Einfügen der \nTexte, die bisher in "
                                "dieses Feld eingetragen wurden."));
        connect(m_button, &QToolButton::clicked, this, &KalCompleterLineEdit::slotShowAllValues);
        m_button->hide();
    }
    setStyleSheet(m_button->paddingStyle());
    m_button->reposition();
    m_button->setVisible(hasFocus());
}

void KalCompleterLineEdit::slotShowAllValues()
{
    if (m_completer)
        m_completer->showAllValues();
}

void KalCompleterLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (KalCompleterKeys::popupKeyIgnored(m_completer, event))
        return;
    const bool shortcut = m_completer && m_completer->isEnabled() && KalCompleterKeys::isShortcut(event);
    if (!shortcut)
        QLineEdit::keyPressEvent(event);
    KalCompleterKeys::afterKey(m_completer, event, text(), rect());
}

void KalCompleterLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (m_button)
        m_button->show();
}

void KalCompleterLineEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (m_button && !(m_completer && m_completer->popup()->isVisible()))
        m_button->hide();
}

void KalCompleterLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    if (m_button)
        m_button->reposition();
}
