// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "modaldriver.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <utility>

namespace Tarn::Test {

namespace {

constexpr int PollInterval = 5; // milliseconds

void dismiss(QWidget *widget)
{
    if (auto *dialog = qobject_cast<QDialog *>(widget))
        dialog->done(QDialog::Rejected);
    else
        widget->hide();
}

} // namespace

ModalDriver::ModalDriver(Action action, int timeout)
    : m_timeout(timeout)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(PollInterval);
    connect(&m_timer, &QTimer::timeout, this, &ModalDriver::poll);
    then(std::move(action));
    m_sinceProgress.start();
    m_timer.start();
}

ModalDriver::~ModalDriver()
{
    if (!ran() && !m_gaveUp)
        QTest::qFail("A dialog that the test waits for did not come", __FILE__, __LINE__);
}

ModalDriver &ModalDriver::then(Action action)
{
    m_waiting.append(std::move(action));
    return *this;
}

bool ModalDriver::ran() const
{
    return !m_gaveUp && m_waiting.isEmpty() && m_running == 0;
}

bool ModalDriver::eventFilter(QObject *watched, QEvent *event)
{
    // The same dialog may come again: hiding ends its turn.
    if (event->type() == QEvent::Hide) {
        m_handled.removeAll(qobject_cast<QWidget *>(watched));
        m_sinceProgress.start();
    }
    return QObject::eventFilter(watched, event);
}

void ModalDriver::poll()
{
    // A fresh shot each time, ahead of the action: a repeating timer stays silent in an event loop that its
    // slot runs.
    m_timer.start();
    m_handled.removeAll(nullptr);
    QWidget *dialog = QApplication::activeModalWidget();
    const bool isNew = dialog != nullptr && dialog->isVisible() && !m_handled.contains(dialog);
    const bool isLate = m_sinceProgress.hasExpired(m_timeout);
    if (isNew && !m_gaveUp && !m_waiting.isEmpty())
        act(dialog);
    else if (isNew)
        giveUp("A dialog came that the test does not wait for");
    else if (isLate && dialog != nullptr)
        giveUp("A dialog is still open although the test has acted on it");
    else if (isLate && !ran())
        giveUp("A dialog that the test waits for did not come");
}

void ModalDriver::act(QWidget *dialog)
{
    m_sinceProgress.start();
    m_handled.append(dialog);
    dialog->installEventFilter(this);
    const Action action = m_waiting.takeFirst();
    ++m_running;
    action(dialog);
    --m_running;
}

void ModalDriver::giveUp(const char *reason)
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!m_gaveUp) {
        const char *className = dialog != nullptr ? dialog->metaObject()->className() : "none";
        const QString text =
            QStringLiteral("%1 (open: %2)").arg(QString::fromLatin1(reason), QString::fromLatin1(className));
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    }
    m_gaveUp = true;
    m_sinceProgress.start();
    if (dialog != nullptr)
        dismiss(dialog);
}

} // namespace Tarn::Test
