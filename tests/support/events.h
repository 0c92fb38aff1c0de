// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_EVENTS_H
#define TARN_TEST_EVENTS_H

#include <QEvent>
#include <QPointF>
#include <Qt>

class QWidget;

/*!
 * Mouse events as the platform would deliver them, sent at once. Unlike those
 * of QTest they keep fractions of a pixel and need no window on a screen.
 * Every function returns what QCoreApplication::sendEvent() does.
 */
namespace Tarn::Test {

/*! The event with exactly these positions, even such as contradict each other. */
bool sendMouseEvent(QWidget *receiver, QEvent::Type type, const QPointF &local, const QPointF &global,
                    Qt::MouseButton button, Qt::MouseButtons buttons);

/*! These take the position on the screen; the local one follows from where \a receiver is. */
bool mousePress(QWidget *receiver, const QPointF &global, Qt::MouseButton button = Qt::LeftButton);
bool mouseRelease(QWidget *receiver, const QPointF &global, Qt::MouseButton button = Qt::LeftButton);
bool mouseDoubleClick(QWidget *receiver, const QPointF &global, Qt::MouseButton button = Qt::LeftButton);
bool mouseMove(QWidget *receiver, const QPointF &global, Qt::MouseButtons held = Qt::LeftButton);

/*! A hover event has no other position than the local one. */
bool hoverMove(QWidget *receiver, const QPointF &local);

bool leave(QWidget *receiver);

/*! \a local of \a widget on the screen, with its fraction. */
QPointF toGlobal(const QWidget *widget, const QPointF &local);

} // namespace Tarn::Test

#endif
