// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the platform sends: mouse, keys, drags, focus.

#include "acts.h"
#include "support/events.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <memory>

namespace Tarn::Storm {

namespace {

constexpr int BetweenEvents = 20; // milliseconds, so that some presses in a row are double clicks
constexpr int FarAway = 60; // pixels beside a widget

Qt::KeyboardModifiers drawModifiers(Dice &dice)
{
    if (!dice.oneIn(4))
        return Qt::NoModifier;
    return dice.pick<Qt::KeyboardModifiers>({Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                             Qt::ControlModifier | Qt::ShiftModifier, Qt::KeypadModifier,
                                             Qt::MetaModifier});
}

Qt::MouseButton drawButton(Dice &dice)
{
    return dice.pick({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                      Qt::MiddleButton, Qt::BackButton});
}

QPointF drawPlace(Dice &dice, const QWidget *widget)
{
    const int beside = dice.oneIn(6) ? FarAway : 0;
    const QPoint place(dice.between(-beside, widget->width() - 1 + beside),
                       dice.between(-beside, widget->height() - 1 + beside));
    switch (dice.below(6)) {
    case 0: // edges are where windows are resized
        return {0, qreal(place.y())};
    case 1:
        return {qreal(widget->width() - 1), qreal(place.y())};
    case 2:
        return QPointF(place) + QPointF(0.5, 0.25);
    default:
        return place;
    }
}

// Takes the way of the platform's own events, through the queue of the window system.
void moveHand(Context &c, QEvent::Type type, Qt::MouseButton button)
{
    QWidget *widget = pickInputWidget(c);
    if (!widget)
        return;
    QWindow *window = widget->window()->windowHandle();
    // A button that is held keeps the window.
    if (c.hand.buttons && c.hand.window && c.hand.window->isVisible())
        window = c.hand.window;
    if (!window)
        return;
    const QPointF local = widget->window()->windowHandle() == window
        ? QPointF(widget->mapTo(widget->window(), QPoint())) + drawPlace(c.dice, widget)
        : QPointF(c.dice.between(-FarAway, window->width() + FarAway),
                  c.dice.between(-FarAway, window->height() + FarAway));
    c.hand.time += BetweenEvents;
    if (type == QEvent::MouseButtonRelease && c.dice.oneIn(3))
        c.hand.time += QApplication::doubleClickInterval();
    c.hand.window = window;
    if (c.notes.wanted)
        c.notes.about(widget, QStringLiteral("%1, %2, button %3").arg(local.x()).arg(local.y()).arg(button));
    qt_handleMouseEvent(window, local, local + window->mapToGlobal(QPoint()), c.hand.buttons, button, type,
                        drawModifiers(c.dice), c.hand.time);
}

void press(Context &c)
{
    const Qt::MouseButton button = drawButton(c.dice);
    if (c.hand.buttons & button)
        return;
    c.hand.buttons |= button;
    moveHand(c, QEvent::MouseButtonPress, button);
}

void release(Context &c)
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        if (c.hand.buttons & button) {
            c.hand.buttons &= ~Qt::MouseButtons(button);
            moveHand(c, QEvent::MouseButtonRelease, button);
            return;
        }
    }
}

void click(Context &c)
{
    QWidget *widget = pickInputWidget(c);
    QWindow *window = widget ? widget->window()->windowHandle() : nullptr;
    if (!window || c.hand.buttons)
        return;
    const QPointF local = QPointF(widget->mapTo(widget->window(), QPoint())) + drawPlace(c.dice, widget);
    const QPointF global = local + window->mapToGlobal(QPoint());
    const Qt::MouseButton button = drawButton(c.dice);
    const Qt::KeyboardModifiers modifiers = drawModifiers(c.dice);
    if (c.notes.wanted)
        c.notes.about(widget, QStringLiteral("%1, %2, button %3").arg(local.x()).arg(local.y()).arg(button));
    for (int left = c.dice.oneIn(4) ? 2 : 1; left > 0; --left) {
        c.hand.time += BetweenEvents;
        qt_handleMouseEvent(window, local, global, button, button, QEvent::MouseButtonPress, modifiers,
                            c.hand.time);
        qt_handleMouseEvent(window, local, global, Qt::NoButton, button, QEvent::MouseButtonRelease,
                            modifiers, c.hand.time);
    }
    c.hand.time += QApplication::doubleClickInterval();
}

void move(Context &c)
{
    moveHand(c, QEvent::MouseMove, Qt::NoButton);
}

// Straight to a widget, at once, as an application's own event filters and tests do.
void mouseAtOnce(Context &c)
{
    QPointer<QWidget> widget = pickInputWidget(c);
    if (!widget)
        return;
    const QPointF local = drawPlace(c.dice, widget);
    const Qt::MouseButton button = drawButton(c.dice);
    const QPointF global = Test::toGlobal(widget, local);
    const QPointF end =
        global + QPointF(c.dice.between(-FarAway, FarAway), c.dice.between(-FarAway, FarAway));
    const bool twice = c.dice.oneIn(4);
    if (c.notes.wanted)
        c.notes.about(widget, QStringLiteral("%1, %2, button %3").arg(local.x()).arg(local.y()).arg(button));
    if (twice)
        Test::mouseDoubleClick(widget, global, button);
    else
        Test::mousePress(widget, global, button);
    for (int left = c.dice.below(4); left > 0 && widget; --left)
        Test::mouseMove(widget, global + (end - global) / left, button);
    if (widget)
        Test::mouseRelease(widget, end, button);
}

void wheel(Context &c)
{
    QWidget *widget = pickInputWidget(c);
    if (!widget)
        return;
    const QPointF local = drawPlace(c.dice, widget);
    const int delta = c.dice.pick({120, -120, 15, -15, 1200, -1200, 0});
    const QPoint angle = c.dice.oneIn(3) ? QPoint(delta, 0) : QPoint(0, delta);
    QWheelEvent event(local, Test::toGlobal(widget, local), QPoint(), angle, Qt::NoButton,
                      drawModifiers(c.dice), Qt::NoScrollPhase, false);
    c.notes.about(widget);
    QCoreApplication::sendEvent(widget, &event);
}

void enterAndLeave(Context &c)
{
    QWidget *widget = pickInputWidget(c);
    if (!widget)
        return;
    const QPointF local = drawPlace(c.dice, widget);
    const QPointF global = Test::toGlobal(widget, local);
    c.notes.about(widget);
    switch (c.dice.below(5)) {
    case 0: {
        QEnterEvent event(local, local, global);
        QCoreApplication::sendEvent(widget, &event);
        break;
    }
    case 1:
        Test::leave(widget);
        break;
    case 2:
        Test::mouseMove(widget, global, Qt::NoButton);
        break;
    case 3: {
        QHelpEvent event(QEvent::ToolTip, local.toPoint(), global.toPoint());
        QCoreApplication::sendEvent(widget, &event);
        break;
    }
    default:
        Test::hoverMove(widget, local);
        break;
    }
}

QWidget *keyTarget(Context &c)
{
    QWidget *focus = QApplication::focusWidget();
    QWidget *popup = QApplication::activePopupWidget();
    if (popup)
        return popup->focusWidget() ? popup->focusWidget() : popup;
    if (focus && c.stage.inputWindows().contains(focus->window()) && !c.dice.oneIn(4))
        return focus;
    return pickInputWidget(c);
}

void key(Context &c)
{
    QWidget *widget = keyTarget(c);
    if (!widget)
        return;
    const auto code = c.dice.pick(
        {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Space,
         Qt::Key_Left,   Qt::Key_Right,   Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Home,   Qt::Key_End,
         Qt::Key_PageUp, Qt::Key_Delete,  Qt::Key_PageDown, Qt::Key_Period, Qt::Key_Comma,  Qt::Key_Backspace,
         Qt::Key_F11,    Qt::Key_F4,      Qt::Key_F2,       Qt::Key_Menu,   Qt::Key_0,      Qt::Key_1,
         Qt::Key_2,      Qt::Key_5,       Qt::Key_9,        Qt::Key_A,      Qt::Key_C,      Qt::Key_V,
         Qt::Key_X,      Qt::Key_Z,       Qt::Key_Alt,      Qt::Key_Shift,  Qt::Key_F6});
    const Qt::KeyboardModifiers modifiers = drawModifiers(c.dice);
    if (c.notes.wanted)
        c.notes.about(widget,
                      QStringLiteral("key 0x%1, modifiers 0x%2").arg(code, 0, 16).arg(int(modifiers), 0, 16));
    QTest::keyClick(widget, code, modifiers);
}

void text(Context &c)
{
    QPointer<QWidget> widget = keyTarget(c);
    if (!widget)
        return;
    const QString typed = (c.dice.oneIn(2) ? drawAddress(c.dice) : drawText(c.dice)).left(20);
    c.notes.about(widget, typed);
    if (c.dice.oneIn(3)) {
        QInputMethodEvent composing(typed.left(2), {});
        QCoreApplication::sendEvent(widget, &composing);
        QInputMethodEvent event;
        event.setCommitString(typed);
        if (widget)
            QCoreApplication::sendEvent(widget, &event);
        return;
    }
    for (const QChar &character : typed) {
        if (widget)
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
}

std::unique_ptr<QMimeData> drawMimeData(Context &c)
{
    auto data = std::make_unique<QMimeData>();
    switch (c.dice.below(4)) {
    case 0:
        data->setUrls({QUrl::fromLocalFile(c.stage.files().root()), QUrl(QStringLiteral("x:y"))});
        break;
    case 1:
        data->setColorData(drawColor(c.dice));
        break;
    case 2:
        data->setText(drawAddress(c.dice));
        break;
    default:
        data->setHtml(drawText(c.dice));
        break;
    }
    return data;
}

void drop(Context &c)
{
    QPointer<QWidget> widget = pickInputWidget(c);
    if (!widget || !widget->acceptDrops() || !widget->isEnabled())
        return;
    const auto data = drawMimeData(c);
    const QPoint place = drawPlace(c.dice, widget).toPoint();
    c.notes.about(widget);
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (!widget)
        return;
    if (enter.isAccepted()) {
        QDragMoveEvent move(place, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
        if (widget && c.dice.oneIn(2)) {
            QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &event);
            return;
        }
    }
    QDragLeaveEvent leave;
    if (widget)
        QCoreApplication::sendEvent(widget, &leave);
}

void contextMenu(Context &c)
{
    QWidget *widget = pickInputWidget(c);
    if (!widget)
        return;
    const QPointF local = drawPlace(c.dice, widget);
    const auto reason =
        c.dice.pick({QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard, QContextMenuEvent::Other});
    QContextMenuEvent event(reason, local.toPoint(), Test::toGlobal(widget, local).toPoint());
    c.notes.about(widget);
    QCoreApplication::sendEvent(widget, &event);
}

void focus(Context &c)
{
    const QPointer<QWidget> widget = pickInputWidget(c);
    if (!widget)
        return;
    const auto reason = c.dice.pick({Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason,
                                     Qt::ActiveWindowFocusReason, Qt::PopupFocusReason,
                                     Qt::ShortcutFocusReason, Qt::MenuBarFocusReason, Qt::OtherFocusReason});
    c.notes.about(widget, QStringLiteral("reason %1").arg(reason));
    switch (c.dice.below(6)) {
    case 0:
        // Qt goes on with a widget that a slot has deleted meanwhile.
        if (!widget->property("mayVanish").toBool())
            widget->clearFocus();
        break;
    case 1:
        QApplication::setActiveWindow(nullptr);
        break;
    default:
        QApplication::setActiveWindow(widget->window());
        if (widget)
            widget->setFocus(reason);
        break;
    }
}

} // namespace

QWidget *pickInputWidget(Context &context)
{
    const QVector<QWidget *> windows = context.stage.inputWindows();
    if (windows.isEmpty())
        return nullptr;
    QVector<QWidget *> widgets;
    collectWidgets(context.dice.pickOf(windows), widgets);
    for (int tries = 0; tries < 4; ++tries) {
        QWidget *widget = context.dice.pickOf(widgets);
        if (widget->isVisible())
            return widget;
    }
    return widgets.constFirst();
}

QVector<Kind> inputKinds()
{
    return {{"press", 60, press, false},
            {"release", 60, release, false},
            {"move", 120, move, false},
            {"click", 90, click, false},
            {"mouse at once", 50, mouseAtOnce, false},
            {"wheel", 25, wheel, false},
            {"enter and leave", 40, enterAndLeave, false},
            {"key", 120, key, false},
            {"text", 15, text, false},
            {"drop", 30, drop, false},
            {"context menu", 6, contextMenu, false},
            {"focus", 30, focus, false}};
}

} // namespace Tarn::Storm
