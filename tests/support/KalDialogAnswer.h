#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <QtTest>
#include <functional>

// Answers the next dialog of type T once it shows. A modal dialog runs its
// own event loop, so a timer running in that loop looks for it; non-modal
// windows (a notice) are found among the visible top-level widgets.
template <typename T> class KalDialogAnswer
{
public:
    explicit KalDialogAnswer(std::function<void(T *)> answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer] {
            if (T *dialog = find()) {
                m_timer.stop();
                m_seen = true;
                answer(dialog);
            }
        });
        m_timer.start(10);
    }

    bool seen() const { return m_seen; }

    static T *find()
    {
        if (auto *modal = qobject_cast<T *>(QApplication::activeModalWidget()))
            return modal;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *window = qobject_cast<T *>(widget); window && window->isVisible())
                return window;
        }
        return nullptr;
    }

private:
    QTimer m_timer;
    bool m_seen = false;
};

// Presses a dialog's OK or Cancel as the user would: the standard button of
// its button box, or the push button named "pbOk" / "pbCancel".
inline void kalPress(QWidget *dialog, QDialogButtonBox::StandardButton which)
{
    QAbstractButton *button = nullptr;
    if (auto *box = dialog->findChild<QDialogButtonBox *>())
        button = box->button(which);
    if (!button)
        button = dialog->findChild<QAbstractButton *>(which == QDialogButtonBox::Ok ? "pbOk" : "pbCancel");
    QVERIFY2(button && button->isEnabled(), "no usable OK/Cancel button");
    button->click();
}
