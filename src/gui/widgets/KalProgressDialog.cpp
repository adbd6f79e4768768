#include "KalProgressDialog.h"

#include <QApplication>
#include <QProgressBar>
#include <QProgressDialog>
#include <QTimer>

KalProgressDialog::KalProgressDialog(QObject *parent)
    : QObject(parent)
    , m_showTimer(new QTimer(this))
{
    m_showTimer->setSingleShot(true);
    connect(m_showTimer, &QTimer::timeout, this, [this] { showWindow(); });
}

KalProgressDialog::~KalProgressDialog()
{
    delete m_window;
    if (m_depth > 0 && !m_yielded)
        QApplication::restoreOverrideCursor();
}

bool KalProgressDialog::isShowing() const
{
    return m_window && m_window->isVisible();
}

void KalProgressDialog::begin(const QString &text)
{
    if (m_depth++ > 0) {
        if (!text.isEmpty() && m_window)
            m_window->setLabelText(text);
        return;
    }
    m_yielded = false;
    m_text = text.isEmpty() ? tr("Bitte warten...") : text;
    m_started.start();
    m_lastPaint.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);

    m_window = new QProgressDialog(m_text, QString(), 0, 0, QApplication::activeWindow());
    m_window->setWindowTitle(QCoreApplication::applicationName());
    m_window->setWindowModality(Qt::ApplicationModal);
    m_window->setCancelButton(nullptr);
    m_window->setMinimumDuration(showDelay());
    m_window->setAutoClose(false);
    m_window->setAutoReset(false);
    m_window->setMinimumWidth(320);
    // QProgressDialog would show itself after its own timer; we decide.
    m_window->reset();
    m_window->hide();
    m_showTimer->start(showDelay());
}

void KalProgressDialog::beginCancelable(const QString &text)
{
    const bool outermost = m_depth == 0;
    begin(text);
    if (!outermost || !m_window)
        return;
    m_cancelable = true;
    m_window->setCancelButtonText(tr("Abbrechen"));
    connect(m_window, &QProgressDialog::canceled, this, [this] { m_canceled = true; });
}

bool KalProgressDialog::wasCanceled() const
{
    return m_canceled;
}

void KalProgressDialog::setText(const QString &text)
{
    if (m_depth == 0 || !m_window)
        return;
    m_window->setWindowTitle(m_text);
    // Wide enough for the title beside the frame's buttons.
    m_window->setMinimumWidth(qMax(320, m_window->fontMetrics().horizontalAdvance(m_text) * 3 / 2 + 120));
    m_window->setLabelText(text);
    if (!m_yielded)
        keepPainting();
}

void KalProgressDialog::setProgress(qint64 done, qint64 total)
{
    if (m_depth == 0 || !m_window)
        return;
    if (m_yielded) {
        if (!m_cancelable) {
            // Setting a value would let the window show itself again.
            keepPainting();
            return;
        }
        // Work goes on after the question: a long run must stay cancelable,
        // so its window returns after the usual delay.
        m_yielded = false;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_started.restart();
        m_showTimer->start(showDelay());
    }
    if (total > 0) {
        // The bar works with int; scale large totals down.
        const double fraction = qBound(0.0, double(done) / double(total), 1.0);
        m_window->setMaximum(1000);
        m_window->setValue(int(fraction * 1000));
    } else {
        m_window->setMaximum(0);
    }
    if (!isShowing() && m_started.elapsed() >= showDelay())
        showWindow();
    keepPainting();
}

void KalProgressDialog::end()
{
    if (m_depth == 0)
        return;
    if (--m_depth > 0)
        return;
    m_showTimer->stop();
    if (m_window) {
        // The window's own timer, started by the first value, would show it
        // again while it waits for deletion (a message box's loop does not
        // delete it): reset() stops that timer.
        m_window->disconnect(this);
        m_window->reset();
        m_window->hide();
        m_window->deleteLater();
        m_window = nullptr;
    }
    if (!m_yielded)
        QApplication::restoreOverrideCursor();
    m_yielded = false;
    m_cancelable = false;
    m_canceled = false;
}

void KalProgressDialog::yieldToMessage()
{
    if (m_depth == 0 || m_yielded)
        return;
    m_yielded = true;
    m_showTimer->stop();
    if (m_window) {
        // The window's own timer, started by a first value before it showed,
        // would bring it up over the question: reset() stops it.
        m_window->reset();
        m_window->hide();
    }
    QApplication::restoreOverrideCursor();
}

void KalProgressDialog::showWindow()
{
    if (m_depth == 0 || m_yielded || !m_window || m_window->isVisible())
        return;
    m_window->show();
    m_window->raise();
    keepPainting();
}

void KalProgressDialog::keepPainting()
{
    // Called from inside long work: paint, but never run the user's clicks,
    // except on the Cancel button of a window that is showing (it is modal,
    // so no other window takes input meanwhile).
    if (m_lastPaint.elapsed() < 40 && isShowing())
        return;
    m_lastPaint.restart();
    const bool acceptCancel = m_cancelable && isShowing();
    QApplication::processEvents(acceptCancel ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}
