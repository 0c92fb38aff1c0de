// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELESSHELPER_H
#define TARN_WIDGETS_FRAMELESSHELPER_H

#include "tarnwidgets_export.h"

#include <QObject>
#include <memory>

class QWidget;

namespace Tarn::Widgets {

class FramelessHelperPrivate;

/*!
 * \ingroup frameless
 * \brief Moves and resizes top-level widgets that have no window-manager frame.
 *
 * The helper watches the mouse over each widget handed to activateOn(): a left
 * drag that begins in the title zone at the top moves the widget, one that
 * begins in the border zone resizes it, and the cursor shows the resize arrows
 * while it hovers over the border. FramelessDialog has one built in; use the
 * helper directly for top-level widgets of your own. It paints nothing and has
 * no style selectors.
 *
 * \code
 * auto *panel = new QWidget(nullptr, Qt::FramelessWindowHint);
 * auto *helper = new FramelessHelper(panel);
 * helper->setTitleHeight(40);
 * helper->activateOn(panel);
 * \endcode
 *
 * The helper never owns the widgets; either side may be deleted first. It does
 * not set Qt::FramelessWindowHint: it saves the window flags at activation and
 * writes them back when it lets go.
 *
 * \note A managed widget no longer receives mouse presses, releases and moves
 * of any button, nor leave and hover-move events. Child widgets get theirs.
 * \note Border width and title height are shared by all helpers of the process.
 */
class TARNWIDGETS_EXPORT FramelessHelper : public QObject
{
    Q_OBJECT

public:
    explicit FramelessHelper(QObject *parent = nullptr);

    /*! Lets go of every widget, as removeFrom() does. A drag in progress ends where it is. */
    ~FramelessHelper() override;

    /*!
     * Begins to manage \a widget: turns on mouse tracking and hover events and
     * filters its events. Null and a widget already managed are ignored.
     */
    void activateOn(QWidget *widget);

    /*!
     * Stops managing \a widget: turns mouse tracking and hover events off and
     * restores the window flags of activateOn(). Flags that changed in between
     * hide a visible widget, as QWidget::setWindowFlags() does. Null and
     * unknown widgets are ignored.
     */
    void removeFrom(QWidget *widget);

    /*! Whether a drag in the title zone moves; on at the start. Read at every mouse move, so it takes effect
     * during a drag. */
    void setWidgetMovable(bool movable);
    bool widgetMovable() const;

    /*! Whether a drag on the border resizes and the cursor shows it; on at the start. */
    void setWidgetResizable(bool resizable);
    bool widgetResizable() const;

    /*!
     * Shows an outline while moving and moves the widget on release; off at the
     * start. The outline begins 10 pixels inside the left and top sides, and
     * the widget takes its size: each such move makes it 10 pixels smaller in
     * both directions.
     */
    void setRubberBandOnMove(bool on);
    bool rubberBandOnMove() const;

    /*! Shows an outline while resizing and resizes the widget on release; off at the start. */
    void setRubberBandOnResize(bool on);
    bool rubberBandOnResisze() const; //!< (sic)

    /*!
     * The depth in pixels of the zone along each side, for all helpers; 5 at the
     * start, 0 is ignored. The zone is one pixel deeper than the number, and on
     * the right and bottom it reaches one pixel past the frame.
     */
    void setBorderWidth(unsigned int width);
    unsigned int borderWidth() const;

    /*!
     * The height in pixels of the title zone, from the widget's top, for all
     * helpers; 30 at the start, 0 is ignored. Every FramelessDialog sets it to
     * its title bar's height.
     */
    void setTitleHeight(unsigned int height);
    unsigned int titleHeight() const;

    /*! Consumes the five kinds of events named above for managed widgets and leaves all others alone. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void forget(QObject *widget);

    const std::unique_ptr<FramelessHelperPrivate> d;
};

} // namespace Tarn::Widgets

#endif
