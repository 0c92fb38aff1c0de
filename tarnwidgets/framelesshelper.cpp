// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelesshelper.h"

#include "framelesshelper_p.h"

#include <QCursor>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QWidget>

namespace Tarn::Widgets {

namespace {

// Kept: the outline of a move begins this many pixels inside the left and top sides, and the widget takes its
// size.
constexpr int MoveOutlineInset = 10;

bool isBetween(qint64 value, qint64 first, qint64 last)
{
    return first <= value && value <= last;
}

Qt::CursorShape cursorShape(const CursorPosCalculator &position)
{
    if (position.m_bOnTopLeftEdge || position.m_bOnBottomRightEdge)
        return Qt::SizeFDiagCursor;
    if (position.m_bOnTopRightEdge || position.m_bOnBottomLeftEdge)
        return Qt::SizeBDiagCursor;
    if (position.m_bOnLeftEdge || position.m_bOnRightEdge)
        return Qt::SizeHorCursor;
    return Qt::SizeVerCursor;
}

/* What QWidget::mapToGlobal() gives, without its long search for what the widget may be embedded in. */
QPoint toGlobal(const QWidget *widget, const QPoint &pos)
{
    if (!widget->isWindow() || widget->graphicsProxyWidget())
        return widget->mapToGlobal(pos);
    return widget->geometry().topLeft() + pos;
}

/* Moves the pressed sides of frame to pos. A corner wins over a side, left over right, top over bottom. */
QRect withPressedSidesAt(const QRect &frame, const CursorPosCalculator &pressed, const QPoint &pos)
{
    QRect moved = frame;
    if (pressed.m_bOnTopLeftEdge)
        moved.setTopLeft(pos);
    else if (pressed.m_bOnBottomLeftEdge)
        moved.setBottomLeft(pos);
    else if (pressed.m_bOnTopRightEdge)
        moved.setTopRight(pos);
    else if (pressed.m_bOnBottomRightEdge)
        moved.setBottomRight(pos);
    else if (pressed.m_bOnLeftEdge)
        moved.setLeft(pos.x());
    else if (pressed.m_bOnRightEdge)
        moved.setRight(pos.x());
    else if (pressed.m_bOnTopEdge)
        moved.setTop(pos.y());
    else if (pressed.m_bOnBottomEdge)
        moved.setBottom(pos.y());
    return moved;
}

/* Puts a moved side of wanted back to where frame has it if the result would be smaller than minimum. */
QRect keptAtMinimum(QRect wanted, const QRect &frame, const QSize &minimum)
{
    if (minimum.width() > wanted.width()) {
        if (wanted.left() != frame.left())
            wanted.setLeft(frame.left());
        else
            wanted.setRight(frame.right());
    }
    if (minimum.height() > wanted.height()) {
        if (wanted.top() != frame.top())
            wanted.setTop(frame.top());
        else
            wanted.setBottom(frame.bottom());
    }
    return wanted;
}

} // namespace

// Kept: one width and one height for all helpers of the process.
quint32 CursorPosCalculator::m_nBorderWidth = 5;
quint32 CursorPosCalculator::m_nTitleHeight = 30;

CursorPosCalculator::CursorPosCalculator()
{
    reset();
}

void CursorPosCalculator::reset()
{
    m_bOnEdges = false;
    m_bOnLeftEdge = false;
    m_bOnRightEdge = false;
    m_bOnTopEdge = false;
    m_bOnBottomEdge = false;
    m_bOnTopLeftEdge = false;
    m_bOnBottomLeftEdge = false;
    m_bOnTopRightEdge = false;
    m_bOnBottomRightEdge = false;
}

void CursorPosCalculator::recalculate(const QPoint &globalPos, const QRect &frameRect)
{
    // 64 bits, so that no border width can overflow.
    // Kept: both ends count, the far sides lie one pixel outside, and the other axis does not matter.
    const qint64 border = m_nBorderWidth;
    const qint64 left = frameRect.x();
    const qint64 top = frameRect.y();
    const qint64 right = left + frameRect.width();
    const qint64 bottom = top + frameRect.height();

    const bool onLeft = isBetween(globalPos.x(), left, left + border);
    const bool onRight = isBetween(globalPos.x(), right - border, right);
    const bool onTop = isBetween(globalPos.y(), top, top + border);
    const bool onBottom = isBetween(globalPos.y(), bottom - border, bottom);

    m_bOnEdges = onLeft || onRight || onTop || onBottom;
    m_bOnLeftEdge = onLeft;
    m_bOnRightEdge = onRight;
    m_bOnTopEdge = onTop;
    m_bOnBottomEdge = onBottom;
    m_bOnTopLeftEdge = onTop && onLeft;
    m_bOnBottomLeftEdge = onBottom && onLeft;
    m_bOnTopRightEdge = onTop && onRight;
    m_bOnBottomRightEdge = onBottom && onRight;
}

WidgetData::WidgetData(FramelessHelperPrivate *d, QWidget *widget)
    : d(d)
    , m_pWidget(widget)
    , m_windowFlags(widget->windowFlags())
{
    widget->setMouseTracking(true);
    widget->setAttribute(Qt::WA_Hover);
    updateRubberBandStatus();
}

WidgetData::~WidgetData()
{
    if (!m_pWidget)
        return;
    m_pWidget->setMouseTracking(false);
    m_pWidget->setWindowFlags(m_windowFlags);
    m_pWidget->setAttribute(Qt::WA_Hover, false);
}

QWidget *WidgetData::widget() const
{
    return m_pWidget;
}

void WidgetData::forgetWidget()
{
    m_pWidget = nullptr;
}

void WidgetData::updateRubberBandStatus()
{
    if (!d->m_bRubberBandOnMove && !d->m_bRubberBandOnResize)
        m_pRubberBand.reset();
    else if (!m_pRubberBand)
        m_pRubberBand = std::make_unique<QRubberBand>(QRubberBand::Rectangle);
}

void WidgetData::handleWidgetEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        handleMousePressEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        handleMouseReleaseEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        handleMouseMoveEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Leave:
        handleLeaveEvent(event);
        break;
    case QEvent::HoverMove:
        handleHoverMoveEvent(static_cast<QHoverEvent *>(event));
        break;
    default:
        break;
    }
}

void WidgetData::handleMousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const qint64 titleBottom = qint64(m_nTitleOffset) + CursorPosCalculator::m_nTitleHeight;
    const QPoint globalPos = event->globalPos();
    const QRect frame = m_pWidget->frameGeometry();

    m_bLeftButtonPressed = true;
    m_bLeftButtonTitlePressed = event->pos().y() < titleBottom;
    m_pressedMousePos.recalculate(globalPos, frame);
    m_ptDragPos = globalPos - frame.topLeft();

    if (m_pressedMousePos.m_bOnEdges) {
        if (d->m_bRubberBandOnResize)
            showRubberBand(frame);
    } else if (d->m_bRubberBandOnMove && m_bLeftButtonTitlePressed) {
        showRubberBand(frame.adjusted(MoveOutlineInset, MoveOutlineInset, 0, 0));
    }
}

void WidgetData::showRubberBand(const QRect &geometry)
{
    m_pRubberBand->setGeometry(geometry);
    m_pRubberBand->show();
}

void WidgetData::handleMouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressedMousePos.reset();
    m_bLeftButtonPressed = false;
    m_bLeftButtonTitlePressed = false;
    if (m_pRubberBand && m_pRubberBand->isVisible()) {
        m_pRubberBand->hide();
        m_pWidget->setGeometry(m_pRubberBand->geometry());
    }
}

void WidgetData::handleMouseMoveEvent(QMouseEvent *event)
{
    const QPoint globalPos = event->globalPos();
    if (!m_bLeftButtonPressed) {
        if (d->m_bWidgetResizable)
            updateCursorShape(globalPos);
    } else if (d->m_bWidgetResizable && m_pressedMousePos.m_bOnEdges) {
        resizeWidget(globalPos);
    } else if (d->m_bWidgetMovable && m_bLeftButtonTitlePressed) {
        // Kept: also on the border of a widget that is not resizable, and on a maximised one.
        moveWidget(globalPos);
    }
}

void WidgetData::handleLeaveEvent(QEvent *)
{
    if (!m_bLeftButtonPressed)
        m_pWidget->unsetCursor();
}

void WidgetData::handleHoverMoveEvent(QHoverEvent *event)
{
    if (d->m_bWidgetResizable)
        updateCursorShape(toGlobal(m_pWidget, event->pos()));
}

// A slot or handler that hears of a new geometry or cursor may delete the helper: nothing of it is touched
// after the change.

void WidgetData::moveWidget(const QPoint &globalPos)
{
    const QPoint topLeft = globalPos - m_ptDragPos;
    if (d->m_bRubberBandOnMove)
        m_pRubberBand->move(topLeft);
    else
        m_pWidget->move(topLeft);
}

void WidgetData::resizeWidget(const QPoint &globalPos)
{
    QWidget *resized = d->m_bRubberBandOnResize ? m_pRubberBand.get() : m_pWidget;
    const QRect frame = resized->frameGeometry();
    const QRect wanted = withPressedSidesAt(frame, m_pressedMousePos, globalPos);
    if (wanted.isValid())
        resized->setGeometry(keptAtMinimum(wanted, frame, m_pWidget->minimumSize()));
}

void WidgetData::updateCursorShape(const QPoint &globalPos)
{
    if (m_pWidget->windowState() & (Qt::WindowFullScreen | Qt::WindowMaximized)) {
        if (m_bCursorShapeChanged)
            m_pWidget->unsetCursor();
        return;
    }
    m_moveMousePos.recalculate(globalPos, m_pWidget->frameGeometry());
    if (m_moveMousePos.m_bOnEdges) {
        setCursorShape(cursorShape(m_moveMousePos));
    } else if (m_bCursorShapeChanged) {
        m_bCursorShapeChanged = false;
        m_pWidget->unsetCursor();
    }
}

void WidgetData::setCursorShape(Qt::CursorShape shape)
{
    // Setting a cursor costs far more than asking for it, and the pointer mostly stays in one zone.
    const bool isSet = m_bCursorShapeChanged && m_pWidget->testAttribute(Qt::WA_SetCursor)
        && m_pWidget->cursor().shape() == shape;
    m_bCursorShapeChanged = true;
    if (!isSet)
        m_pWidget->setCursor(shape);
}

FramelessHelperPrivate::FramelessHelperPrivate() = default;

FramelessHelperPrivate::~FramelessHelperPrivate()
{
    qDeleteAll(m_widgetDataHash);
}

void FramelessHelperPrivate::updateRubberBands()
{
    for (WidgetData *data : qAsConst(m_widgetDataHash))
        data->updateRubberBandStatus();
}

bool FramelessHelperPrivate::handleEvent(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    WidgetData *data = m_widgetDataHash.value(static_cast<QWidget *>(watched));
    if (data)
        data->handleWidgetEvent(event);
    return data;
}

FramelessHelper::FramelessHelper(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<FramelessHelperPrivate>())
{
}

FramelessHelper::~FramelessHelper()
{
    while (!d->m_widgetDataHash.isEmpty())
        removeFrom(d->m_widgetDataHash.constBegin().key());
}

void FramelessHelper::activateOn(QWidget *widget)
{
    if (!widget || d->m_widgetDataHash.contains(widget))
        return;
    d->m_widgetDataHash.insert(widget, new WidgetData(d.get(), widget));
    widget->installEventFilter(this);
    // It stays when the widget is let go of: undoing it was two fifths of that work.
    connect(widget, &QObject::destroyed, this, &FramelessHelper::forget, Qt::UniqueConnection);
}

void FramelessHelper::removeFrom(QWidget *widget)
{
    // Out of the hash first: writing the window flags back can send the widget events.
    const std::unique_ptr<WidgetData> data(d->m_widgetDataHash.take(widget));
    if (!data)
        return;
    widget->removeEventFilter(this);
}

void FramelessHelper::forget(QObject *widget)
{
    const std::unique_ptr<WidgetData> data(d->m_widgetDataHash.take(static_cast<QWidget *>(widget)));
    if (data)
        data->forgetWidget();
}

void FramelessHelper::setWidgetMovable(bool movable)
{
    d->m_bWidgetMovable = movable;
}

bool FramelessHelper::widgetMovable() const
{
    return d->m_bWidgetMovable;
}

void FramelessHelper::setWidgetResizable(bool resizable)
{
    d->m_bWidgetResizable = resizable;
}

bool FramelessHelper::widgetResizable() const
{
    return d->m_bWidgetResizable;
}

void FramelessHelper::setRubberBandOnMove(bool on)
{
    d->m_bRubberBandOnMove = on;
    d->updateRubberBands();
}

bool FramelessHelper::rubberBandOnMove() const
{
    return d->m_bRubberBandOnMove;
}

void FramelessHelper::setRubberBandOnResize(bool on)
{
    d->m_bRubberBandOnResize = on;
    d->updateRubberBands();
}

bool FramelessHelper::rubberBandOnResisze() const
{
    return d->m_bRubberBandOnResize;
}

void FramelessHelper::setBorderWidth(unsigned int width)
{
    if (width > 0)
        CursorPosCalculator::m_nBorderWidth = width;
}

unsigned int FramelessHelper::borderWidth() const
{
    return CursorPosCalculator::m_nBorderWidth;
}

void FramelessHelper::setTitleHeight(unsigned int height)
{
    if (height > 0)
        CursorPosCalculator::m_nTitleHeight = height;
}

unsigned int FramelessHelper::titleHeight() const
{
    return CursorPosCalculator::m_nTitleHeight;
}

bool FramelessHelper::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: it settles nearly every event without a look into the hash.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Leave:
    case QEvent::HoverMove:
        if (d->handleEvent(watched, event))
            return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Tarn::Widgets
