// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API: the state behind FramelessHelper, apart so that it can be tested by itself.

#ifndef TARN_WIDGETS_FRAMELESSHELPER_P_H
#define TARN_WIDGETS_FRAMELESSHELPER_P_H

#include <QHash>
#include <QPoint>
#include <QRect>
#include <QRubberBand>
#include <memory>

class QEvent;
class QHoverEvent;
class QMouseEvent;
class QObject;
class QWidget;

namespace Tarn::Widgets {

class WidgetData;

/*! Which border zones of a frame a cursor position lies in. */
struct CursorPosCalculator
{
    CursorPosCalculator();

    void reset();

    /*! Sets all nine flags for \a globalPos against \a frameRect, both in screen pixels. */
    void recalculate(const QPoint &globalPos, const QRect &frameRect);

    bool m_bOnEdges : 1;
    bool m_bOnLeftEdge : 1;
    bool m_bOnRightEdge : 1;
    bool m_bOnTopEdge : 1;
    bool m_bOnBottomEdge : 1;
    bool m_bOnTopLeftEdge : 1;
    bool m_bOnBottomLeftEdge : 1;
    bool m_bOnTopRightEdge : 1;
    bool m_bOnBottomRightEdge : 1;

    static quint32 m_nBorderWidth;
    static quint32 m_nTitleHeight;
};

class FramelessHelperPrivate
{
public:
    FramelessHelperPrivate();
    ~FramelessHelperPrivate();

    void updateRubberBands();

    /*!
     * Returns whether \a event was for a managed widget and is dealt with. Never
     * inline, because the filter around it sees every event of every widget.
     */
    Q_NEVER_INLINE bool handleEvent(QObject *watched, QEvent *event);

    QHash<QWidget *, WidgetData *> m_widgetDataHash; // owns its values
    bool m_bWidgetMovable = true;
    bool m_bWidgetResizable = true;
    bool m_bRubberBandOnResize = false;
    bool m_bRubberBandOnMove = false;
};

/*!
 * What the helper keeps for one managed widget. Positions handed to its
 * functions are in screen pixels.
 */
class WidgetData
{
public:
    WidgetData(FramelessHelperPrivate *d, QWidget *widget);

    /*! Gives the widget back as it was, unless forgetWidget() was called. */
    ~WidgetData();

    QWidget *widget() const;

    /*! For a widget that is being destroyed: nothing of it is touched from here on. */
    void forgetWidget();

    void handleWidgetEvent(QEvent *event);
    void updateRubberBandStatus();

private:
    Q_DISABLE_COPY(WidgetData)

    void handleMousePressEvent(QMouseEvent *event);
    void handleMouseReleaseEvent(QMouseEvent *event);
    void handleMouseMoveEvent(QMouseEvent *event);
    void handleLeaveEvent(QEvent *event);
    void handleHoverMoveEvent(QHoverEvent *event);

    void moveWidget(const QPoint &globalPos);
    void resizeWidget(const QPoint &globalPos);
    void updateCursorShape(const QPoint &globalPos);
    void setCursorShape(Qt::CursorShape shape);
    void showRubberBand(const QRect &geometry);

    FramelessHelperPrivate *d;
    std::unique_ptr<QRubberBand> m_pRubberBand;
    QWidget *m_pWidget;
    QPoint m_ptDragPos;
    CursorPosCalculator m_pressedMousePos;
    CursorPosCalculator m_moveMousePos;
    bool m_bLeftButtonPressed = false;
    bool m_bCursorShapeChanged = false;
    bool m_bLeftButtonTitlePressed = false;
    Qt::WindowFlags m_windowFlags;
    int m_nTitleOffset = 0; // nothing changes it: the title zone begins at the widget's top
};

} // namespace Tarn::Widgets

#endif
