#include "KalMessageBoxPrompt.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QEventLoop>
#include <QIcon>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

namespace {
QMessageBox::Icon boxIcon(KalPrompt::Icon icon)
{
    switch (icon) {
    case KalPrompt::Information:
        return QMessageBox::Information;
    case KalPrompt::Warning:
        return QMessageBox::Warning;
    case KalPrompt::Critical:
        return QMessageBox::Critical;
    case KalPrompt::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton standardButton(KalPrompt::ButtonRole role)
{
    switch (role) {
    case KalPrompt::Ok:
        return QMessageBox::Ok;
    case KalPrompt::Yes:
        return QMessageBox::Yes;
    case KalPrompt::No:
        return QMessageBox::No;
    case KalPrompt::Cancel:
        return QMessageBox::Cancel;
    case KalPrompt::Save:
        return QMessageBox::Save;
    case KalPrompt::Discard:
        return QMessageBox::Discard;
    case KalPrompt::Abort:
        return QMessageBox::Abort;
    case KalPrompt::AcceptCustom:
    case KalPrompt::RejectCustom:
        break;
    }
    return QMessageBox::NoButton;
}

QWidget *dialogParent()
{
    // Never the busy window: it goes away with its operation and would take
    // the box with it.
    QWidget *w = QApplication::activeModalWidget();
    if (!w || qobject_cast<QProgressDialog *>(w))
        w = QApplication::activeWindow();
    while (qobject_cast<QProgressDialog *>(w))
        w = w->parentWidget();
    return w;
}
// Keeps Return and Enter from choosing a button while it lives.
class NoDefaultButton : public QObject
{
public:
    NoDefaultButton(QMessageBox *box, bool active)
    {
        if (!active)
            return;
        box->installEventFilter(this);
        for (QAbstractButton *button : box->buttons())
            button->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter)
                return true;
        }
        return QObject::eventFilter(watched, event);
    }
};
} // namespace

KalMessageBoxPrompt::KalMessageBoxPrompt() = default;

QString KalMessageBoxPrompt::dontShowAgainDefaultText()
{
    return QCoreApplication::translate("KalMessageBoxPrompt", "Diese Meldung nicht mehr anzeigen");
}

int KalMessageBoxPrompt::show(const Message &message)
{
    QMessageBox box(boxIcon(message.icon), message.title, message.text, QMessageBox::NoButton, dialogParent());
    if (!message.iconPath.isEmpty())
        box.setIconPixmap(QIcon(message.iconPath).pixmap(48, 48));

    QVector<Button> buttons = message.buttons;
    if (buttons.isEmpty())
        buttons.append(Button{Ok, {}});

    QVector<QAbstractButton *> made;
    made.reserve(buttons.size());
    for (const Button &b : buttons) {
        QAbstractButton *button = nullptr;
        const QMessageBox::StandardButton standard = standardButton(b.role);
        if (standard != QMessageBox::NoButton) {
            button = box.addButton(standard);
            if (!b.text.isEmpty())
                button->setText(b.text);
        } else {
            button = box.addButton(b.text, b.role == AcceptCustom ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        }
        made.append(button);
    }

    if (message.defaultButton >= 0 && message.defaultButton < made.size()) {
        if (auto *push = qobject_cast<QPushButton *>(made.at(message.defaultButton)))
            box.setDefaultButton(push);
    }
    // No recommended choice: Return must not answer for the user (the box
    // would otherwise make its first accepting button the default on show).
    NoDefaultButton noDefault(&box, message.defaultButton < 0);
    const int escape = escapeIndex(message);
    box.setEscapeButton(made.value(qBound(0, escape, made.size() - 1)));

    if (!message.detailText.isEmpty())
        box.setDetailedText(message.detailText);

    QCheckBox *dontShow = nullptr;
    QCheckBox *returned = nullptr;
    if (!message.checkBoxText.isEmpty()) {
        returned = new QCheckBox(message.checkBoxText);
        returned->setChecked(message.checkBoxChecked && *message.checkBoxChecked);
        box.setCheckBox(returned);
    } else if (!message.dontShowAgainKey.isEmpty()) {
        dontShow =
            new QCheckBox(message.dontShowAgainText.isEmpty() ? dontShowAgainDefaultText() : message.dontShowAgainText);
        box.setCheckBox(dontShow);
    }

    box.exec();

    int answer = made.indexOf(box.clickedButton());
    if (answer < 0)
        answer = qBound(0, escape, made.size() - 1);

    if (returned && message.checkBoxChecked)
        *message.checkBoxChecked = returned->isChecked();
    if (dontShow && dontShow->isChecked()) {
        QSettings settings;
        settings.setValue(message.dontShowAgainKey, true);
    }
    return answer;
}

void KalMessageBoxPrompt::notice(const QString &title, const QString &text, int milliseconds)
{
    QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Information, title, text, QMessageBox::NoButton, dialogParent());
    box->setStandardButtons(QMessageBox::NoButton);
    box->setWindowModality(Qt::NonModal);
    // The busy window of the work that follows may appear meanwhile; the
    // notice is what the user is meant to read.
    box->setWindowFlag(Qt::WindowStaysOnTopHint, true);
    box->show();

    QEventLoop loop;
    QTimer::singleShot(qMax(0, milliseconds), &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);

    // A box without an escape button refuses to close: hide and drop it.
    if (box) {
        box->hide();
        box->deleteLater();
    }
}
