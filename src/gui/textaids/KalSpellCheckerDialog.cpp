#include "KalSpellCheckerDialog.h"

#include "core/project/KalPrompt.h"
#include "core/textaids/KalSpellChecker.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
QPushButton *addButton(QWidget *parent, QVBoxLayout *layout, const QString &name, const QString &text)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    layout->addWidget(button);
    return button;
}
} // namespace

KalSpellCheckerDialog::KalSpellCheckerDialog(KalSpellChecker *checker, QTextEdit *edit, QWidget *parent)
    : QDialog(parent)
    , m_checker(checker)
    , m_edit(edit)
{
    setWindowTitle(tr("Rechtschreibprüfung"));
    setObjectName(QStringLiteral("KalSpellCheckerDialog"));

    auto *grid = new QGridLayout(this);
    grid->addWidget(new QLabel(tr("Nicht im Wörterbuch:"), this), 0, 0);
    m_lblWord = new QLabel(this);
    m_lblWord->setObjectName(QStringLiteral("lblWord"));
    m_lblWord->setTextFormat(Qt::RichText);
    grid->addWidget(m_lblWord, 1, 0);
    grid->addWidget(new QLabel(tr("Ersetzen durch:"), this), 2, 0);
    m_leReplace = new QLineEdit(this);
    m_leReplace->setObjectName(QStringLiteral("leReplace"));
    grid->addWidget(m_leReplace, 3, 0);
    grid->addWidget(new QLabel(tr("Vorschläge:"), this), 4, 0);
    m_lwSuggestions = new QListWidget(this);
    m_lwSuggestions->setObjectName(QStringLiteral("lwSuggestions"));
    grid->addWidget(m_lwSuggestions, 5, 0);
    connect(m_lwSuggestions, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { m_leReplace->setText(item->text()); });

    auto *buttons = new QVBoxLayout;
    QPushButton *ignore = addButton(this, buttons, QStringLiteral("pbIgnore"), tr("Ignorieren"));
    QPushButton *ignoreAll = addButton(this, buttons, QStringLiteral("pbIgnoreAll"), tr("Alle ignorieren"));
    QPushButton *change = addButton(this, buttons, QStringLiteral("pbChange"), tr("Ändern"));
    QPushButton *changeAll = addButton(this, buttons, QStringLiteral("pbChangeAll"), tr("Alle ändern"));
    QPushButton *add = addButton(this, buttons, QStringLiteral("pbAddToDict"), tr("Zum Wörterbuch hinzufügen"));
    buttons->addStretch();
    QPushButton *cancel = addButton(this, buttons, QStringLiteral("pbCancel"), tr("Abbrechen"));
    grid->addLayout(buttons, 0, 1, 6, 1);

    connect(ignore, &QPushButton::clicked, this, &KalSpellCheckerDialog::slotIgnoreClicked);
    connect(ignoreAll, &QPushButton::clicked, this, &KalSpellCheckerDialog::slotIgnoreAllClicked);
    connect(change, &QPushButton::clicked, this, &KalSpellCheckerDialog::slotChangeClicked);
    connect(changeAll, &QPushButton::clicked, this, &KalSpellCheckerDialog::slotChangeAllClicked);
    connect(add, &QPushButton::clicked, this, &KalSpellCheckerDialog::slotAddToDictClicked);
    connect(cancel, &QPushButton::clicked, this, &KalSpellCheckerDialog::reject);
}

void KalSpellCheckerDialog::checkTextEdit(QTextEdit *edit)
{
    KalSpellChecker *checker = KalSpellChecker::instance();
    if (!checker || !checker->isValid()) {
        KalPrompt::critical(tr("Fehler"), tr("Das Modul Rechtschreibprüfung ist nicht geladen!"));
        return;
    }
    KalSpellCheckerDialog dialog(checker, edit, edit ? edit->window() : nullptr);
    if (!dialog.start()) {
        KalPrompt::information(tr("Rechtschreibprüfung"), tr("Die Rechtschreibprüfung konnte keinen Fehler finden."));
        return;
    }
    dialog.exec();
}

bool KalSpellCheckerDialog::start()
{
    m_position = 0;
    m_found = 0;
    return findNext();
}

bool KalSpellCheckerDialog::findNext()
{
    m_word.clear();
    m_wordStart = -1;
    if (!m_edit || !m_checker)
        return false;
    const QString text = m_edit->toPlainText();
    for (const KalSpellChecker::Word &word : KalSpellChecker::words(text)) {
        if (word.position < m_position || !KalSpellChecker::isCheckable(word.text) || m_checker->spell(word.text))
            continue;
        m_word = word.text;
        m_wordStart = word.position;
        ++m_found;
        const QStringList suggestions = m_checker->suggest(m_word);
        m_lblWord->setText(QStringLiteral("<b>%1</b>").arg(m_word.toHtmlEscaped()));
        m_lwSuggestions->clear();
        m_lwSuggestions->addItems(suggestions);
        m_leReplace->setText(suggestions.value(0, m_word));
        markWord();
        return true;
    }
    clearMarking();
    return false;
}

void KalSpellCheckerDialog::goOn(int fromPosition)
{
    m_position = fromPosition;
    if (findNext())
        return;
    accept();
    KalPrompt::information(tr("Rechtschreibprüfung"), tr("Die Rechtschreibprüfung ist beendet."));
}

void KalSpellCheckerDialog::markWord()
{
    QTextEdit::ExtraSelection selection;
    selection.cursor = QTextCursor(m_edit->document());
    selection.cursor.setPosition(m_wordStart);
    selection.cursor.setPosition(m_wordStart + m_word.size(), QTextCursor::KeepAnchor);
    selection.format.setBackground(QColor(QStringLiteral("#ff6060")));
    selection.format.setForeground(QColor(QStringLiteral("#000000")));
    m_edit->setExtraSelections({selection});
    QTextCursor visible = selection.cursor;
    visible.clearSelection();
    m_edit->setTextCursor(visible);
    m_edit->ensureCursorVisible();
}

void KalSpellCheckerDialog::clearMarking()
{
    if (m_edit)
        m_edit->setExtraSelections({});
}

bool KalSpellCheckerDialog::fieldGone()
{
    if (m_edit && m_checker)
        return false;
    QDialog::reject();
    return true;
}

void KalSpellCheckerDialog::slotIgnoreClicked()
{
    if (fieldGone())
        return;
    goOn(m_wordStart + m_word.size());
}

void KalSpellCheckerDialog::slotIgnoreAllClicked()
{
    if (fieldGone())
        return;
    m_checker->ignoreWord(m_word);
    goOn(m_wordStart + m_word.size());
}

void KalSpellCheckerDialog::slotChangeClicked()
{
    if (fieldGone())
        return;
    const QString replacement = m_leReplace->text();
    QTextCursor cursor(m_edit->document());
    cursor.setPosition(m_wordStart);
    cursor.setPosition(m_wordStart + m_word.size(), QTextCursor::KeepAnchor);
    cursor.insertText(replacement);
    goOn(m_wordStart + replacement.size());
}

void KalSpellCheckerDialog::slotChangeAllClicked()
{
    if (fieldGone())
        return;
    const QString replacement = m_leReplace->text();
    const QString text = m_edit->toPlainText();
    const QRegularExpression whole(QStringLiteral("\\b") + QRegularExpression::escape(m_word) + QStringLiteral("\\b"),
                                   QRegularExpression::UseUnicodePropertiesOption);
    QVector<int> starts;
    QRegularExpressionMatchIterator it = whole.globalMatch(text);
    while (it.hasNext())
        starts.append(it.next().capturedStart());
    int shiftBefore = 0;
    QTextCursor cursor(m_edit->document());
    cursor.beginEditBlock();
    // From the end, so the positions still ahead stay valid.
    for (int i = starts.size() - 1; i >= 0; --i) {
        cursor.setPosition(starts.at(i));
        cursor.setPosition(starts.at(i) + m_word.size(), QTextCursor::KeepAnchor);
        cursor.insertText(replacement);
        if (starts.at(i) < m_wordStart)
            shiftBefore += replacement.size() - m_word.size();
    }
    cursor.endEditBlock();
    goOn(m_wordStart + shiftBefore + replacement.size());
}

void KalSpellCheckerDialog::slotAddToDictClicked()
{
    if (fieldGone())
        return;
    m_checker->addToUserDict(m_word);
    goOn(m_wordStart + m_word.size());
}

void KalSpellCheckerDialog::reject()
{
    clearMarking();
    QDialog::reject();
}

void KalSpellCheckerDialog::showEvent(QShowEvent *event)
{
    QSettings settings;
    if (settings.contains(QStringLiteral("SpellCheckerDialogX")) &&
        settings.contains(QStringLiteral("SpellCheckerDialogY")))
        move(settings.value(QStringLiteral("SpellCheckerDialogX")).toInt(),
             settings.value(QStringLiteral("SpellCheckerDialogY")).toInt());
    QDialog::showEvent(event);
}

void KalSpellCheckerDialog::done(int result)
{
    if (isVisible()) {
        QSettings settings;
        settings.setValue(QStringLiteral("SpellCheckerDialogX"), pos().x());
        settings.setValue(QStringLiteral("SpellCheckerDialogY"), pos().y());
    }
    clearMarking();
    QDialog::done(result);
}
