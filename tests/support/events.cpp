// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "events.h"

#include <QCoreApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QWidget>

namespace Tarn::Test {

namespace {

bool sendAtGlobal(QWidget *receiver, QEvent::Type type, const QPointF &global, Qt::MouseButton button,
                  Qt::MouseButtons buttons)
{
    return sendMouseEvent(receiver, type, global - toGlobal(receiver, QPointF()), global, button, buttons);
}

} // namespace

bool sendMouseEvent(QWidget *receiver, QEvent::Type type, const QPointF &local, const QPointF &global,
                    Qt::MouseButton button, Qt::MouseButtons buttons)
{
    const QPointF inWindow = local + QPointF(receiver->mapTo(receiver->window(), QPoint()));
    QMouseEvent event(type, local, inWindow, global, button, buttons, Qt::NoModifier);
    return QCoreApplication::sendEvent(receiver, &event);
}

bool mousePress(QWidget *receiver, const QPointF &global, Qt::MouseButton button)
{
    return sendAtGlobal(receiver, QEvent::MouseButtonPress, global, button, button);
}

bool mouseRelease(QWidget *receiver, const QPointF &global, Qt::MouseButton button)
{
    return sendAtGlobal(receiver, QEvent::MouseButtonRelease, global, button, Qt::NoButton);
}

bool mouseDoubleClick(QWidget *receiver, const QPointF &global, Qt::MouseButton button)
{
    return sendAtGlobal(receiver, QEvent::MouseButtonDblClick, global, button, button);
}

bool mouseMove(QWidget *receiver, const QPointF &global, Qt::MouseButtons held)
{
    return sendAtGlobal(receiver, QEvent::MouseMove, global, Qt::NoButton, held);
}

bool hoverMove(QWidget *receiver, const QPointF &local)
{
    QHoverEvent event(QEvent::HoverMove, local, local);
    return QCoreApplication::sendEvent(receiver, &event);
}

bool leave(QWidget *receiver)
{
    QEvent event(QEvent::Leave);
    return QCoreApplication::sendEvent(receiver, &event);
}

QPointF toGlobal(const QWidget *widget, const QPointF &local)
{
    return local + QPointF(widget->mapToGlobal(QPoint()));
}

} // namespace Tarn::Test
