// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"

#include <QApplication>
#include <QRubberBand>
#include <QTest>
#include <QWidget>
#include <algorithm>

namespace Tarn::Test {

Desktop::Desktop()
    : input(&server)
{
    // A corner that no test puts a window in.
    if (server.isConnected())
        input.moveTo(server.screenGeometry().bottomRight());
}

bool Desktop::isAsExpected() const
{
    return server.isConnected() && server.hasWindowManager() == XServer::expectsWindowManager();
}

bool Desktop::isShown(const QWidget *widget) const
{
    QWindow *window = widget->windowHandle();
    return window && QTest::qWaitForWindowExposed(window) && server.settle()
        && server.isViewable(window->winId());
}

QRect Desktop::geometry(const QWidget *widget) const
{
    return server.geometry(widget->windowHandle()->winId());
}

QRgb Desktop::pixel(const QWidget *widget, const QPoint &local) const
{
    return server.pixel(geometry(widget).topLeft() + local);
}

QPoint Desktop::center(const QWidget *widget) const
{
    const QWidget *window = widget->window();
    return geometry(window).topLeft() + widget->mapTo(window, widget->rect().center());
}

QImage Desktop::referenceCursor(Qt::CursorShape shape)
{
    const QRect place(1200, 700, 40, 40);
    QWidget plain(nullptr, Qt::BypassWindowManagerHint);
    plain.setGeometry(place);
    plain.setCursor(shape);
    if (!show(&plain) || !input.moveTo(place.center()))
        return QImage();
    return server.cursor();
}

QRubberBand *Desktop::visibleRubberBand() const
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        auto *band = qobject_cast<QRubberBand *>(widget);
        if (band && band->windowHandle() && server.isViewable(band->windowHandle()->winId()))
            return band;
    }
    return nullptr;
}

bool Desktop::hasKeyboard(const QWidget *widget) const
{
    return server.focusWindow() == widget->windowHandle()->winId();
}

QPoint Zone::grip(const QRect &frame, int depth) const
{
    QPoint pos = frame.center();
    if (edges.testFlag(Qt::LeftEdge))
        pos.setX(frame.left() + depth);
    if (edges.testFlag(Qt::RightEdge))
        pos.setX(frame.right() - depth);
    if (edges.testFlag(Qt::TopEdge))
        pos.setY(frame.top() + depth);
    if (edges.testFlag(Qt::BottomEdge))
        pos.setY(frame.bottom() - depth);
    return pos;
}

QPoint Zone::innermost(const QRect &frame, int borderWidth) const
{
    return grip(frame.adjusted(0, 0, 1, 1), borderWidth);
}

QRect Zone::resized(const QRect &frame, const QPoint &pos) const
{
    QRect result = frame;
    if (edges.testFlag(Qt::LeftEdge))
        result.setLeft(pos.x());
    if (edges.testFlag(Qt::RightEdge))
        result.setRight(pos.x());
    if (edges.testFlag(Qt::TopEdge))
        result.setTop(pos.y());
    if (edges.testFlag(Qt::BottomEdge))
        result.setBottom(pos.y());
    return result;
}

QPoint Zone::outwards(int distance) const
{
    const int x = int(edges.testFlag(Qt::RightEdge)) - int(edges.testFlag(Qt::LeftEdge));
    const int y = int(edges.testFlag(Qt::BottomEdge)) - int(edges.testFlag(Qt::TopEdge));
    return QPoint(x, y) * distance;
}

const QVector<Zone> &zones()
{
    static const QVector<Zone> all = {
        {"left", Qt::LeftEdge, Qt::SizeHorCursor},
        {"right", Qt::RightEdge, Qt::SizeHorCursor},
        {"top", Qt::TopEdge, Qt::SizeVerCursor},
        {"bottom", Qt::BottomEdge, Qt::SizeVerCursor},
        {"top left", Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
        {"top right", Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
        {"bottom left", Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor},
        {"bottom right", Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor},
    };
    return all;
}

void addZoneRows()
{
    QTest::addColumn<Zone>("zone");
    for (const Zone &zone : zones())
        QTest::newRow(zone.name) << zone;
}

bool isOutlined(const QImage &before, const QImage &now)
{
    const QRect area = now.rect();
    const QPoint middle = area.center();
    const QVector<QPoint> places = {
        {0, middle.y()}, {area.right(), middle.y()}, {middle.x(), 0}, {middle.x(), area.bottom()}};
    return now.size() == before.size() && std::all_of(places.cbegin(), places.cend(), [&](const QPoint &pos) {
               return now.pixel(pos) != before.pixel(pos);
           });
}

} // namespace Tarn::Test
