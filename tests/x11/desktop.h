// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_DESKTOP_H
#define TARN_TEST_DESKTOP_H

#include "xinput.h"
#include "xserver.h"

#include <QVector>
#include <Qt>
#include <support/functionguard.h>

class QRubberBand;
class QWidget;

namespace Tarn::Test {

/*!
 * A screen with a user in front of it: what every test function here works
 * with. Made in init() and destroyed in cleanup(), it holds the function to
 * what FunctionGuard asks, begins with the pointer out of the way and ends with
 * nothing held down.
 */
class Desktop
{
    FunctionGuard m_guard; // first, so that it judges last

public:
    Desktop();

    XServer server;
    XInput input;

    /*! Whether the server is reached and the window manager is there, or is not, as the run says. */
    bool isAsExpected() const;

    /*! Shows \a widget as applications do and returns once it is on the screen and all is quiet. */
    template <typename Widget> bool show(Widget *widget) const
    {
        widget->show();
        return isShown(widget);
    }

    /*! The same for a widget that was shown by other means. */
    bool isShown(const QWidget *widget) const;

    /*! Where the server has the widget; a pixel at \a local of it. */
    QRect geometry(const QWidget *widget) const;
    QRgb pixel(const QWidget *widget, const QPoint &local) const;

    /*! The middle of a widget, child or window, on the screen. */
    QPoint center(const QWidget *widget) const;

    /*! What the pointer looks like over a plain window with that cursor. */
    QImage referenceCursor(Qt::CursorShape shape);

    /*! The rubber band that is on the screen, if any. */
    QRubberBand *visibleRubberBand() const;

    bool hasKeyboard(const QWidget *widget) const;

private:
    Q_DISABLE_COPY(Desktop)
};

/*! One of the eight places that resize a frame, and the sides that it moves. */
struct Zone
{
    const char *name;
    Qt::Edges edges;
    Qt::CursorShape shape;

    /*! A pixel of \a frame inside the zone, \a depth pixels from its sides. */
    QPoint grip(const QRect &frame, int depth = 0) const;

    /*! The last pixel of the zone towards the middle of \a frame; the far zones begin one pixel outside. */
    QPoint innermost(const QRect &frame, int borderWidth) const;

    /*! \a frame with the sides of the zone at \a pos. */
    QRect resized(const QRect &frame, const QPoint &pos) const;

    /*! \a distance pixels out of the frame, or into it if negative. */
    QPoint outwards(int distance) const;
};

const QVector<Zone> &zones();

/*! For a test function's table: a column "zone" and a row for each. */
void addZoneRows();

/*! Whether what is \a now seen differs on all four sides from what was seen \a before. */
bool isOutlined(const QImage &before, const QImage &now);

} // namespace Tarn::Test

Q_DECLARE_METATYPE(Tarn::Test::Zone)

#endif
