// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_MANAGEDPANEL_H
#define TARN_TEST_MANAGEDPANEL_H

#include <QEvent>
#include <QRect>
#include <QVector>
#include <QWidget>
#include <functional>
#include <tarnwidgets/framelesshelper.h>

class QRubberBand;

namespace Tarn::Test {

// A frame and places on it. With a border width of 5 its zones are x 100 to 105 and 295 to 300, y 200 to 205
// and 345 to 350; with a title height of 30 the title goes down to y 229.
constexpr QRect Frame(100, 200, 200, 150);
constexpr QPoint Middle(200, 275);
constexpr QPoint InTitle(200, 220); // and off the border
constexpr QPoint OnRightEdge(300, 275);
constexpr QPoint OnBottomEdge(200, 350);
constexpr QPoint OnTopEdge(200, 202); // and in the title
constexpr QPoint OnTopLeftCorner(102, 202); // and in the title

/*! A window, shown at once, that notes which events reach it. */
class Panel : public QWidget
{
public:
    explicit Panel(const QRect &geometry = Frame, Qt::WindowFlags flags = Qt::FramelessWindowHint);
    ~Panel() override;

    QVector<QEvent::Type> received;

    /*! Called at the next event of the kind, once. */
    std::function<void()> onMove;
    std::function<void()> onResize;
    std::function<void()> onHide;

protected:
    bool event(QEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};

/*! A helper that manages one panel. */
struct ManagedPanel
{
    ManagedPanel();

    Panel panel;
    Widgets::FramelessHelper helper;
};

/*! All outlines of all helpers, shown or not. */
QVector<QRubberBand *> rubberBands();

/*!
 * The only outline there is, else null. The offscreen platform puts a frame
 * around it, as no platform with a screen does; it goes without.
 */
QRubberBand *onlyRubberBand();

/*! A press of the left button, one move and the release. */
void drag(QWidget *widget, const QPoint &from, const QPoint &to);

/*! Whether another cursor than the arrow is set; on a window, unsetCursor() leaves the arrow. */
bool hasOwnCursor(const QWidget &widget);

/*! A place on the screen as a panel at Frame counts it. */
QPoint local(const QPoint &global);

} // namespace Tarn::Test

#endif
