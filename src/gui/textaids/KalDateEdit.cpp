#include "KalDateEdit.h"

#include "core/project/KalPrompt.h"
#include "core/textaids/KalDateFormat.h"
#include "gui/textaids/KalFieldButton.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

KalDateEdit::KalDateEdit(QWidget *parent)
    : QLineEdit(parent)
{
    auto *button = new KalFieldButton(this, 8);
    button->setObjectName(QStringLiteral("toolButtonPopup"));
    m_button = button;
    setStyleSheet(QStringLiteral("QLineEdit { padding-right: %1px; }").arg(button->reservedWidth()));
    connect(m_button, &QToolButton::clicked, this, &KalDateEdit::slotPopupButtonClicked);
}

QString KalDateEdit::calendarTitle() const
{
    return toolTip().isEmpty() ? tr("Datum auswählen") : toolTip();
}

bool KalDateEdit::textIsInvalid() const
{
    return !text().trimmed().isEmpty() && !KalDateFormat::parse(text()).isValid();
}

QDate KalDateEdit::date()
{
    if (text().trimmed().isEmpty())
        return QDate();
    const QDate parsed = KalDateFormat::parse(text());
    if (!parsed.isValid()) {
        scheduleWarning();
        return QDate();
    }
    return parsed;
}

void KalDateEdit::setDate(const QDate &date)
{
    setText(KalDateFormat::toText(date));
}

void KalDateEdit::scheduleWarning()
{
    // After the current event, so a focus change or a commit finishes first;
    // several reasons in one go give one warning. A grid editor may be gone
    // by then (closed on focus loss); the warning is still due.
    if (m_pendingWarning && *m_pendingWarning)
        return;
    m_pendingWarning = std::make_shared<bool>(true);
    QTimer::singleShot(0, QCoreApplication::instance(), [pending = m_pendingWarning] {
        if (!*pending)
            return;
        *pending = false;
        KalPrompt::warning(tr("Format-Fehler"), formatWarningText());
    });
}

void KalDateEdit::discardWarning()
{
    if (m_pendingWarning)
        *m_pendingWarning = false;
}

bool KalDateEdit::checkInput()
{
    if (!textIsInvalid())
        return true;
    discardWarning();
    showFormatWarning();
    return false;
}

QString KalDateEdit::formatWarningText()
{
    return tr("Das eingegebene Datum ist nicht korrekt.\nBitte verwenden Sie das Format %1!")
        .arg(KalDateFormat::userPattern(QLocale()));
}

void KalDateEdit::showFormatWarning()
{
    KalPrompt::warning(tr("Format-Fehler"), formatWarningText());
}

void KalDateEdit::slotPopupButtonClicked()
{
    if (!m_calendar) {
        m_calendar = new QCalendarWidget(this);
        m_calendar->setObjectName(QStringLiteral("calendarWidget"));
        m_calendar->setWindowFlags(Qt::Window | Qt::Tool | Qt::WindowStaysOnTopHint);
        m_calendar->setGridVisible(true);
        m_calendar->setLocale(QLocale());
        connect(m_calendar, &QCalendarWidget::clicked, this, &KalDateEdit::slotCalendarClicked);
        connect(m_calendar, &QCalendarWidget::activated, this, &KalDateEdit::slotCalendarClicked);
        m_calendar->installEventFilter(this);
    }
    m_calendar->setWindowTitle(calendarTitle());
    const QDate current = KalDateFormat::parse(text());
    m_calendar->setSelectedDate(current.isValid() ? current : QDate::currentDate());
    m_calendar->adjustSize();
    QPoint topLeft = mapToGlobal(QPoint(0, height()));
    if (const QScreen *screen = QGuiApplication::screenAt(topLeft)) {
        const QRect area = screen->availableGeometry();
        topLeft.setX(qBound(area.left(), topLeft.x(), area.right() - m_calendar->width()));
        if (topLeft.y() + m_calendar->height() > area.bottom())
            topLeft.setY(mapToGlobal(QPoint(0, 0)).y() - m_calendar->height());
    }
    m_calendar->move(topLeft);
    m_calendar->show();
    m_calendar->raise();
    m_calendar->activateWindow();
}

void KalDateEdit::slotCalendarClicked(const QDate &date)
{
    setDate(date);
    if (m_calendar)
        m_calendar->hide();
    setFocus(Qt::OtherFocusReason);
    emit editingFinished();
}

void KalDateEdit::focusOutEvent(QFocusEvent *event)
{
    // Opening the calendar is not leaving the field. The text is kept: an
    // empty field would be taken for a deleted date (a deadline, say) by
    // whoever reads the field next.
    const bool toCalendar = m_calendar && m_calendar->isVisible();
    if (!toCalendar && event->reason() != Qt::PopupFocusReason && textIsInvalid())
        scheduleWarning();
    QLineEdit::focusOutEvent(event);
}

bool KalDateEdit::eventFilter(QObject *watched, QEvent *event)
{
    // Like a popup: clicking elsewhere closes the calendar.
    if (watched == m_calendar && event->type() == QEvent::WindowDeactivate)
        m_calendar->hide();
    return QLineEdit::eventFilter(watched, event);
}

void KalDateEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    static_cast<KalFieldButton *>(m_button)->reposition();
}
