#pragma once

#include <QDate>
#include <QLineEdit>

#include <memory>

class QCalendarWidget;
class QToolButton;

// Free-text date field with a calendar button. The text is read with the
// program's date notation; a text that is not a date is reported when the
// field is left. The text stays, so that an owner with OK and Cancel can
// refuse it instead of writing an empty date.
class KalDateEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit KalDateEdit(QWidget *parent = nullptr);

    // The date of the text; null for an empty text or one that is not a
    // date (then the format warning follows once the current event is done).
    QDate date();
    void setDate(const QDate &date);
    // True for an empty text or a date; otherwise shows the format warning
    // now (instead of a pending one) and returns false.
    bool checkInput();
    // The warning of a field left with a wrong text is not wanted any more
    // (its dialog was cancelled).
    void discardWarning();

    QToolButton *toolButtonPopup() const { return m_button; }
    QCalendarWidget *calendarWidget() const { return m_calendar; }
    // "Datum auswählen" unless the field has a tool tip.
    QString calendarTitle() const;
    // "Das eingegebene Datum ist nicht korrekt. ..." with the pattern of the
    // default locale.
    static QString formatWarningText();

public slots:
    void slotPopupButtonClicked();
    void slotCalendarClicked(const QDate &date);
    void showFormatWarning();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool textIsInvalid() const;
    void scheduleWarning();

    QToolButton *m_button;
    QCalendarWidget *m_calendar = nullptr;
    std::shared_ptr<bool> m_pendingWarning;
};
