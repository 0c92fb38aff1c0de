// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "xinput.h"

#include "xserver.h"

#include <QApplication>

// Last: its macros break Qt's headers.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace Tarn::Test {

namespace {

constexpr int DragSteps = 4;
constexpr int NoTime = 0; // milliseconds between two presses that make a double click
constexpr int AnyTime = 60000;

unsigned buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    default:
        return 1;
    }
}

} // namespace

XInput::XInput(const XServer *server)
    : m_server(server)
{
    QApplication::setDoubleClickInterval(NoTime);
}

XInput::~XInput()
{
    if (!m_server->isConnected())
        return;
    const QSet<Qt::MouseButton> held = m_held;
    for (const Qt::MouseButton button : held)
        sendButton(button, false);
    XSync(m_server->display(), False);
}

bool XInput::moveTo(const QPoint &pos)
{
    sendMotion(pos);
    return m_server->settle();
}

bool XInput::press(Qt::MouseButton button)
{
    sendButton(button, true);
    return m_server->settle();
}

bool XInput::release(Qt::MouseButton button)
{
    sendButton(button, false);
    return m_server->settle();
}

bool XInput::click(const QPoint &pos, Qt::MouseButton button)
{
    return moveTo(pos) && press(button) && release(button);
}

bool XInput::doubleClick(const QPoint &pos)
{
    if (!click(pos))
        return false;
    QApplication::setDoubleClickInterval(AnyTime);
    const bool done = press() && release();
    QApplication::setDoubleClickInterval(NoTime);
    return done;
}

// The first step is short, as a hand's is: what begins to move must not need a long one.
bool XInput::dragTo(const QPoint &pos)
{
    const QPoint start = m_pos;
    for (int step = 1; step <= DragSteps; ++step) {
        if (!moveTo(start + (pos - start) * step * step / (DragSteps * DragSteps)))
            return false;
    }
    return true;
}

bool XInput::drag(const QPoint &from, const QPoint &to)
{
    return moveTo(from) && press() && dragTo(to) && release();
}

bool XInput::key(unsigned long keySymbol)
{
    return sendKey(keySymbol) && m_server->settle();
}

bool XInput::keyWith(unsigned long heldSymbol, unsigned long keySymbol)
{
    const KeyCode held = XKeysymToKeycode(m_server->display(), heldSymbol);
    if (held == 0)
        return false;
    XTestFakeKeyEvent(m_server->display(), held, True, CurrentTime);
    const bool isSent = sendKey(keySymbol);
    XTestFakeKeyEvent(m_server->display(), held, False, CurrentTime);
    return m_server->settle() && isSent;
}

bool XInput::type(const QString &text)
{
    // The key symbols of Latin 1 are its codes.
    for (const QChar c : text) {
        if (!sendKey(c.unicode()))
            return false;
    }
    return m_server->settle();
}

void XInput::sendMotion(const QPoint &pos)
{
    m_pos = pos;
    XTestFakeMotionEvent(m_server->display(), -1, pos.x(), pos.y(), CurrentTime);
}

void XInput::sendButton(Qt::MouseButton button, bool down)
{
    if (down)
        m_held.insert(button);
    else
        m_held.remove(button);
    XTestFakeButtonEvent(m_server->display(), buttonNumber(button), down, CurrentTime);
}

bool XInput::sendKey(unsigned long keySymbol)
{
    const KeyCode code = XKeysymToKeycode(m_server->display(), keySymbol);
    if (code == 0)
        return false;
    XTestFakeKeyEvent(m_server->display(), code, True, CurrentTime);
    XTestFakeKeyEvent(m_server->display(), code, False, CurrentTime);
    return true;
}

} // namespace Tarn::Test
