// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_TOOLBUTTON_H
#define TARN_WIDGETS_TOOLBUTTON_H

#include "tarnwidgets_export.h"

#include <QToolButton>
#include <memory>

namespace Tarn::Widgets {

class ToolButtonPrivate;

/*!
 * \ingroup input
 * \brief A tool button that does not go on looking hovered once its menu has closed.
 *
 * A QToolButton looks hovered until it hears that the pointer has left, and goes
 * on so if that gets lost while its menu has the mouse. This one asks where the
 * pointer is when the menu closes. Use it for buttons with a menu; otherwise it
 * is a QToolButton, and style sheet rules for QToolButton reach it unchanged.
 *
 * \code
 * auto *button = new ToolButton(toolBar);
 * button->setPopupMode(QToolButton::InstantPopup);
 * button->setMenu(menu);
 * \endcode
 */
class TARNWIDGETS_EXPORT ToolButton : public QToolButton
{
    Q_OBJECT

public:
    explicit ToolButton(QWidget *parent = nullptr);
    ~ToolButton() override;

    /*!
     * Gives the button \a menu, which stays the caller's; null takes the present
     * one away.
     *
     * \note Hides QToolButton::setMenu(). A menu set through a QToolButton
     * pointer is shown, but the hover look is not put right after it.
     */
    void setMenu(QMenu *menu);

public Q_SLOTS:
    /*! Takes the button as hovered if the pointer is over it now, whatever lies in between, and as not
     * hovered otherwise. */
    void recover();

private:
    const std::unique_ptr<ToolButtonPrivate> d; // null: room for state that a later version adds
};

} // namespace Tarn::Widgets

#endif
