#include "KalCompleterTextEdit.h"

#include "core/textaids/KalSpellChecker.h"
#include "gui/textaids/KalCompleter.h"
#include "gui/textaids/KalCompleterKeys.h"
#include "gui/textaids/KalFieldButton.h"
#include "gui/textaids/KalSpellCheckerDialog.h"
#include "gui/textaids/KalSpellCheckerHighlighter.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>

KalCompleterTextEdit::KalCompleterTextEdit(QWidget *parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setSpellChecking(true);
}

KalCompleterTextEdit::KalCompleterTextEdit(const QString &tableId, const QString &columnId, QWidget *parent)
    : KalCompleterTextEdit(parent)
{
    setField(tableId, columnId);
}

void KalCompleterTextEdit::setField(const QString &tableId, const QString &columnId)
{
    const KalCompleterStore::Info info = KalCompleterStore::info(tableId, columnId);
    setKalCompleter(
        new KalCompleter(info.tableId, KalCompleterStore::TextEditKind, info.columnId, info.columnNumber, this));
}

void KalCompleterTextEdit::setKalCompleter(KalCompleter *completer)
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
    connect(m_completer, &KalCompleter::valueChosen, this, &KalCompleterTextEdit::insertValue);
    if (!m_button) {
        m_button = new KalFieldButton(this);
        m_button->setToolTip(tr("Diese Funktion erlaubt das automatische Einfügen der \nTexte, die bisher in "
                                "dieses Feld eingetragen wurden."));
        connect(m_button, &QToolButton::clicked, this, &KalCompleterTextEdit::slotShowAllValues);
        m_button->hide();
    }
    setStyleSheet(m_button->paddingStyle());
    repositionButton();
    m_button->setVisible(hasFocus());
}

void KalCompleterTextEdit::rememberText()
{
    if (m_completer)
        m_completer->appendEntry(toPlainText());
}

void KalCompleterTextEdit::setSpellChecking(bool on)
{
    if (on == hasSpellChecking())
        return;
    if (!on) {
        delete m_highlighter;
        m_highlighter = nullptr;
        return;
    }
    m_highlighter = new KalSpellCheckerHighlighter(document());
    followChecker();
}

void KalCompleterTextEdit::followChecker()
{
    // The checker of the run may be created or replaced after this field.
    KalSpellChecker *checker = KalSpellChecker::instance();
    if (!m_highlighter || !checker || checker == m_followedChecker)
        return;
    m_followedChecker = checker;
    connect(checker, &KalSpellChecker::rehighlightAllSpellCheckerWidgets, this, &KalCompleterTextEdit::slot_rehighlight,
            Qt::UniqueConnection);
    m_highlighter->rehighlight();
}

void KalCompleterTextEdit::slot_rehighlight()
{
    if (m_highlighter)
        m_highlighter->rehighlight();
}

void KalCompleterTextEdit::slotShowAllValues()
{
    if (m_completer)
        m_completer->showAllValues();
}

void KalCompleterTextEdit::slotStartSpellCheck()
{
    KalSpellCheckerDialog::checkTextEdit(this);
}

QString KalCompleterTextEdit::paragraphPrefix() const
{
    const QTextCursor cursor = textCursor();
    return cursor.block().text().left(cursor.positionInBlock());
}

void KalCompleterTextEdit::insertValue(const QString &value)
{
    // The chosen value replaces what was typed of the current paragraph.
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(value);
    cursor.endEditBlock();
    setTextCursor(cursor);
}

void KalCompleterTextEdit::keyPressEvent(QKeyEvent *event)
{
    if (KalCompleterKeys::popupKeyIgnored(m_completer, event))
        return;
    const bool shortcut = m_completer && m_completer->isEnabled() && KalCompleterKeys::isShortcut(event);
    if (!shortcut)
        QTextEdit::keyPressEvent(event);
    if (!m_completer)
        return;
    QRect rect = cursorRect();
    rect.setWidth(qMax(200, viewport()->width() / 2));
    KalCompleterKeys::afterKey(m_completer, event, paragraphPrefix(), rect);
}

void KalCompleterTextEdit::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    followChecker();
    if (m_button) {
        repositionButton();
        m_button->show();
    }
}

void KalCompleterTextEdit::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason)
        return; // the completer's popup or the context menu
    if (m_button)
        m_button->hide();
    emit editingFinished();
}

void KalCompleterTextEdit::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    repositionButton();
}

void KalCompleterTextEdit::repositionButton()
{
    if (!m_button)
        return;
    const QScrollBar *bar = verticalScrollBar();
    m_button->reposition(bar && bar->isVisible() ? bar->width() : 0);
}

QMenu *KalCompleterTextEdit::createSpellingMenu(const QPoint &viewportPos)
{
    KalSpellChecker *checker = KalSpellChecker::instance();
    if (!textCursor().hasSelection() && checker) {
        QTextCursor wordCursor = cursorForPosition(viewportPos);
        wordCursor.select(QTextCursor::WordUnderCursor);
        const QString word = wordCursor.selectedText();
        if (checker->isMisspelled(word)) {
            auto *menu = new QMenu(this);
            for (const QString &suggestion : checker->suggest(word)) {
                QAction *action = menu->addAction(suggestion);
                QFont font = action->font();
                font.setBold(true);
                action->setFont(font);
                connect(action, &QAction::triggered, this, [this, wordCursor, suggestion] {
                    QTextCursor cursor = wordCursor;
                    cursor.insertText(suggestion);
                    setTextCursor(cursor);
                });
            }
            menu->addSeparator();
            QAction *add = menu->addAction(tr("Zum Wörterbuch hinzufügen"));
            connect(add, &QAction::triggered, this, [checker, word] {
                checker->addToUserDict(word);
                emit checker->rehighlightAllSpellCheckerWidgets();
            });
            return menu;
        }
    }
    const QPoint documentPos = viewportPos + QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
    QMenu *menu = createStandardContextMenu(documentPos);
    menu->addSeparator();
    QAction *check = menu->addAction(tr("Rechtschreibung prüfen"));
    check->setEnabled(checker && checker->isValid());
    connect(check, &QAction::triggered, this, &KalCompleterTextEdit::slotStartSpellCheck);
    return menu;
}

void KalCompleterTextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    // The event comes from the viewport and carries its coordinates.
    QMenu *menu = createSpellingMenu(event->pos());
    menu->exec(event->globalPos());
    delete menu;
}
