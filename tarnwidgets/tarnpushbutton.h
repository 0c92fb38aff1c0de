// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_TARNPUSHBUTTON_H
#define TARN_WIDGETS_TARNPUSHBUTTON_H

#include "tarnwidgets_export.h"

#include <QPushButton>
#include <memory>

namespace Tarn::Widgets {

class TarnPushButtonPrivate;

/*!
 * \ingroup input
 * \brief A push button for narrow vertical strips, with its text turned by 90 degrees.
 *
 * A text that is longer than the button is high ends in an ellipsis, and the
 * tool tip shows it in full. Use it for the captions of collapsed side panels
 * and the like; it behaves as a QPushButton, and style sheet rules for
 * QPushButton reach it unchanged.
 *
 * \code
 * auto *caption = new TarnPushButton(strip);
 * caption->setFixedWidth(28);
 * caption->isOpenRotation(true);
 * caption->setBtnText(tr("Messages"));
 * \endcode
 *
 * A turned button shows what setBtnText() was given, cut anew whenever its
 * height or font changes. One that is not turned cuts its text once, when it is
 * set, by the font of that moment: where a style sheet sets the font, set the
 * text after the button is shown or ensurePolished(). Its size hints are those of
 * a button that is not turned.
 *
 * \note The tool tip is the button's to set: one of the application's own is gone
 * after the next text, on a turned button after the next paint.
 * \note A turned text shows ampersands as they are, and has the colour of the
 * button's palette: a style sheet's color for :hover or :pressed does not reach
 * it.
 */
class TARNWIDGETS_EXPORT TarnPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit TarnPushButton(QWidget *parent = nullptr);
    ~TarnPushButton() override;

    /*! Turns the text, or not; off at the start. It is a setter despite its name. */
    void isOpenRotation(bool on);

    /*! Turned clockwise the text reads from top to bottom, as at the start; otherwise from bottom to top. */
    void setRotationDirection(bool clockwise);

    /*! The text in full; shows as much of it as fits. */
    void setBtnText(const QString &text);
    QString getBtnText() const;

    /*!
     * Shows \a text as far as it fits into the button's height, and sets the
     * tool tip: the text in full if it does not fit, else none. The text of
     * getBtnText() stays as it is, and a turned button goes back to it when it
     * is painted.
     *
     * \note Hides QAbstractButton::setText(), which cuts nothing.
     */
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const std::unique_ptr<TarnPushButtonPrivate> d;
};

} // namespace Tarn::Widgets

#endif
