// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// FramelessHelper against widgets that move, resize and show cursors by event handlers of their own.

#include "benchmark.h"

#include <QApplication>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <array>
#include <tarnwidgets/framelesshelper.h>
#include <utility>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::FramelessHelper;

namespace {

constexpr int BorderWidth = 5;
constexpr int TitleHeight = 30;
constexpr QRect StartGeometry(100, 100, 400, 300);

// In the widget's coordinates.
constexpr QPoint InTitle(200, 10);
constexpr QPoint InTheMiddle(200, 150);
constexpr QPoint OnLeftEdge(2, 150);
constexpr QPoint FurtherDown(3, 160);
constexpr QPoint InBottomRightCorner(398, 298);

/* Managed by a helper that manages so many others, too. */
template <int Others> class ManagedWidget : public QWidget
{
public:
    ManagedWidget()
    {
        m_helper.setBorderWidth(BorderWidth);
        m_helper.setTitleHeight(TitleHeight);
        m_helper.activateOn(this);
        for (QWidget &other : m_others)
            m_helper.activateOn(&other);
    }

private:
    std::array<QWidget, Others> m_others;
    FramelessHelper m_helper{nullptr};
};

using Managed = ManagedWidget<0>;

/* Does by hand what the helper does, in the straightforward way: the same zones, cursors, moves and sizes. */
class Handmade : public QWidget
{
public:
    Handmade()
    {
        setMouseTracking(true);
        setAttribute(Qt::WA_Hover);
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::HoverMove)
            updateCursor(mapToGlobal(static_cast<QHoverEvent *>(event)->pos()));
        return QWidget::event(event);
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        m_pressed = event->button() == Qt::LeftButton;
        m_inTitle = event->pos().y() < TitleHeight;
        m_pressedZones = zonesAt(event->globalPos());
        m_offset = event->globalPos() - frameGeometry().topLeft();
    }

    void mouseReleaseEvent(QMouseEvent *) override
    {
        m_pressed = false;
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (m_pressed && m_pressedZones.any())
            resizeTo(event->globalPos());
        else if (m_pressed && m_inTitle)
            move(event->globalPos() - m_offset);
    }

    void leaveEvent(QEvent *) override
    {
        if (!m_pressed)
            unsetCursor();
    }

private:
    struct Zones
    {
        bool any() const
        {
            return left || right || top || bottom;
        }

        bool left = false;
        bool right = false;
        bool top = false;
        bool bottom = false;
    };

    Zones zonesAt(const QPoint &pos) const
    {
        const QRect frame = frameGeometry();
        const int right = frame.x() + frame.width();
        const int bottom = frame.y() + frame.height();
        Zones zones;
        zones.left = pos.x() >= frame.x() && pos.x() <= frame.x() + BorderWidth;
        zones.right = pos.x() >= right - BorderWidth && pos.x() <= right;
        zones.top = pos.y() >= frame.y() && pos.y() <= frame.y() + BorderWidth;
        zones.bottom = pos.y() >= bottom - BorderWidth && pos.y() <= bottom;
        return zones;
    }

    void updateCursor(const QPoint &pos)
    {
        const Zones zones = zonesAt(pos);
        if ((zones.left && zones.top) || (zones.right && zones.bottom))
            setCursor(Qt::SizeFDiagCursor);
        else if ((zones.right && zones.top) || (zones.left && zones.bottom))
            setCursor(Qt::SizeBDiagCursor);
        else if (zones.left || zones.right)
            setCursor(Qt::SizeHorCursor);
        else if (zones.top || zones.bottom)
            setCursor(Qt::SizeVerCursor);
        else
            unsetCursor();
    }

    void resizeTo(const QPoint &pos)
    {
        QRect wanted = frameGeometry();
        if (m_pressedZones.left)
            wanted.setLeft(pos.x());
        else if (m_pressedZones.right)
            wanted.setRight(pos.x());
        if (m_pressedZones.top)
            wanted.setTop(pos.y());
        else if (m_pressedZones.bottom)
            wanted.setBottom(pos.y());
        if (wanted.width() >= minimumWidth() && wanted.height() >= minimumHeight())
            setGeometry(wanted);
    }

    bool m_pressed = false;
    bool m_inTitle = false;
    Zones m_pressedZones;
    QPoint m_offset;
};

/* Gets the same events and does nothing with them. */
class Idle : public QWidget
{
public:
    Idle()
    {
        setMouseTracking(true);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void mousePressEvent(QMouseEvent *) override {}
    void mouseMoveEvent(QMouseEvent *) override {}
};

template <typename Widget> class WidgetSide : public Side
{
public:
    WidgetSide()
    {
        m_widget.setGeometry(StartGeometry);
        m_widget.show();
    }

protected:
    Widget m_widget;
};

/* Mouse moves to and fro while the left button is held. */
template <typename Widget> class Drag : public WidgetSide<Widget>
{
public:
    explicit Drag(const QPoint &pressedAt)
        : m_pos(StartGeometry.topLeft() + pressedAt)
    {
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }

    void step() override
    {
        m_pos += m_forth ? QPoint(3, 2) : QPoint(-3, -2);
        m_forth = !m_forth;
        send(QEvent::MouseMove, Qt::NoButton);
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button)
    {
        const QPoint local = m_pos - this->m_widget.pos();
        QMouseEvent event(type, local, m_pos, button, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&this->m_widget, &event);
    }

    QPoint m_pos;
    bool m_forth = true;
};

/* The pointer hovers over two places in turn. */
template <typename Widget> class Hover : public WidgetSide<Widget>
{
public:
    Hover(const QPoint &here, const QPoint &there)
        : m_here(here)
        , m_there(there)
    {
    }

    void step() override
    {
        QHoverEvent event(QEvent::HoverMove, m_there, m_here);
        QCoreApplication::sendEvent(&this->m_widget, &event);
        std::swap(m_here, m_there);
    }

private:
    QPoint m_here;
    QPoint m_there;
};

/* An event that the helper leaves alone. */
template <typename Widget> class KeyPress : public WidgetSide<Widget>
{
public:
    void step() override
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QCoreApplication::sendEvent(&this->m_widget, &event);
    }
};

/* Begins and ends to manage a widget. */
class TakeAndRelease : public Side
{
public:
    void step() override
    {
        m_helper.activateOn(&m_widget);
        m_helper.removeFrom(&m_widget);
    }

private:
    QWidget m_widget;
    FramelessHelper m_helper{nullptr};
};

/* The same by a filter for each widget. */
class FilterAndRelease : public Side
{
public:
    void step() override
    {
        delete new Filter(&m_widget);
    }

private:
    class Filter : public QObject
    {
    public:
        explicit Filter(QWidget *widget)
            : QObject(widget)
            , m_widget(widget)
            , m_flags(widget->windowFlags())
        {
            m_widget->setMouseTracking(true);
            m_widget->setAttribute(Qt::WA_Hover);
            m_widget->installEventFilter(this);
        }

        ~Filter() override
        {
            m_widget->removeEventFilter(this);
            m_widget->setMouseTracking(false);
            m_widget->setWindowFlags(m_flags);
            m_widget->setAttribute(Qt::WA_Hover, false);
        }

    private:
        QWidget *const m_widget;
        const Qt::WindowFlags m_flags;
    };

    QWidget m_widget;
};

} // namespace

int main(int argc, char **argv)
{
    const auto handmadeMove = side<Drag<Handmade>>(InTitle);
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"helper-move", "one move of a drag by the title, less an idle one", 0.85,
             side<Drag<Managed>>(InTitle), handmadeMove, side<Drag<Idle>>(InTitle)},
            {"helper-resize", "one move of a drag by a corner, less an idle one", 0.86,
             side<Drag<Managed>>(InBottomRightCorner), side<Drag<Handmade>>(InBottomRightCorner),
             side<Drag<Idle>>(InBottomRightCorner)},
            {"helper-hover-across", "hovering into and out of the border, less idly", 0.95,
             side<Hover<Managed>>(InTheMiddle, OnLeftEdge), side<Hover<Handmade>>(InTheMiddle, OnLeftEdge),
             side<Hover<Idle>>(InTheMiddle, OnLeftEdge)},
            {"helper-hover-along", "hovering along the border, less idly", 0.70,
             side<Hover<Managed>>(OnLeftEdge, FurtherDown), side<Hover<Handmade>>(OnLeftEdge, FurtherDown),
             side<Hover<Idle>>(OnLeftEdge, FurtherDown)},
            {"helper-1", "one move of a drag, one widget managed", 0.92, side<Drag<Managed>>(InTitle),
             handmadeMove},
            {"helper-100", "one move of a drag, 100 widgets managed", 0.92,
             side<Drag<ManagedWidget<99>>>(InTitle), handmadeMove},
            {"helper-1000", "one move of a drag, 1000 widgets managed", 0.92,
             side<Drag<ManagedWidget<999>>>(InTitle), handmadeMove},
            {"helper-unwanted", "a key press, which the helper leaves alone", 1.09, side<KeyPress<Managed>>(),
             side<KeyPress<Idle>>()},
            {"helper-take", "a widget taken and released", 0.60, side<TakeAndRelease>(),
             side<FilterAndRelease>()},
        });
}
