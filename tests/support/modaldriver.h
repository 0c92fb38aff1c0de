// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_MODALDRIVER_H
#define TARN_TEST_MODALDRIVER_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <functional>

namespace Tarn::Test {

/*!
 * Acts on modal dialogs while the test is inside their exec().
 *
 * Made before the call, it gives each dialog that appears to the next of its
 * actions, once. A dialog that does not come, that nobody waits for, or that is
 * still open when the time is up fails the test; whatever is open then is
 * closed, so that exec() returns.
 *
 * \code
 * ModalDriver driver([](QWidget *dialog) { qobject_cast<QDialog *>(dialog)->accept(); });
 * QCOMPARE(dialog.exec(), int(QDialog::Accepted));
 * QVERIFY(driver.ran());
 * \endcode
 */
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    using Action = std::function<void(QWidget *dialog)>;

    /*! \a timeout in milliseconds is for each dialog to come, and again for it to go. */
    explicit ModalDriver(Action action, int timeout = 10000);
    ~ModalDriver() override;

    /*! The action for the dialog after the last one, be it opened by that one or once that one is gone. */
    ModalDriver &then(Action action);

    /*! Whether every action has run to its end. */
    bool ran() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void poll();
    void act(QWidget *dialog);
    void giveUp(const char *reason);

    QVector<Action> m_waiting;
    QVector<QPointer<QWidget>> m_handled; // on screen at present
    int m_running = 0;
    bool m_gaveUp = false;
    int m_timeout;
    QElapsedTimer m_sinceProgress;
    QTimer m_timer;
};

} // namespace Tarn::Test

#endif
