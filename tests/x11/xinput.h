// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_XINPUT_H
#define TARN_TEST_XINPUT_H

#include <QPoint>
#include <QSet>
#include <QString>
#include <Qt>

namespace Tarn::Test {

class XServer;

/*!
 * The user's hands: real pointer and keyboard events, made by the X server.
 *
 * Every function returns when all sides have dealt with its events, and false
 * if they do not. Single presses never make a double click, however fast the
 * test is; doubleClick() always makes one, however slow.
 */
class XInput
{
public:
    explicit XInput(const XServer *server);

    /*! Lets go of everything that is held. */
    ~XInput();

    bool moveTo(const QPoint &pos);
    bool press(Qt::MouseButton button = Qt::LeftButton);
    bool release(Qt::MouseButton button = Qt::LeftButton);

    bool click(const QPoint &pos, Qt::MouseButton button = Qt::LeftButton);
    bool doubleClick(const QPoint &pos);

    /*! In a few steps, and still held at the end. */
    bool dragTo(const QPoint &pos);
    bool drag(const QPoint &from, const QPoint &to);

    /*! Presses and releases a key, given as an X key symbol such as XK_Escape. */
    bool key(unsigned long keySymbol);

    /*! The same while another key, such as XK_Control_L, is held. */
    bool keyWith(unsigned long heldSymbol, unsigned long keySymbol);

    /*! Latin lower-case letters, digits and spaces. */
    bool type(const QString &text);

private:
    Q_DISABLE_COPY(XInput)

    void sendMotion(const QPoint &pos);
    void sendButton(Qt::MouseButton button, bool down);
    bool sendKey(unsigned long keySymbol);

    const XServer *const m_server;
    QPoint m_pos;
    QSet<Qt::MouseButton> m_held;
};

} // namespace Tarn::Test

#endif
