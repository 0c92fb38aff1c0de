// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_TITLEBAR_H
#define TARN_WIDGETS_TITLEBAR_H

#include "tarnwidgets_export.h"

#include <QFrame>
#include <functional>
#include <memory>

class QAction;
class QHBoxLayout;
class QIcon;
class QLabel;
class QToolButton;

namespace Tarn::Widgets {

class TitleBarPrivate;

/*!
 * \ingroup frameless
 * \brief The caption strip of a window that draws its own frame.
 *
 * From left to right: a logo button, the title, room for extra buttons, and the
 * minimise, maximise, restore and close buttons. The bar only reports what the
 * user asks for; the window that owns it acts on its signals. FramelessWindow
 * and FramelessDialog have one built in; use it directly for a top-level widget
 * of your own. It is 24 pixels high.
 *
 * \code
 * auto *bar = new TitleBar(window);
 * bar->setTitle(tr("Log"));
 * connect(bar, &TitleBar::closed, window, &QWidget::close);
 * \endcode
 *
 * Buttons are addressed by index: 0 logo, 1 minimise, 2 maximise, 3 restore,
 * 4 close. Other indices are ignored. The bar owns all its children.
 *
 * Style selectors (dynamic properties, all true): isTitleBar and isForeground on
 * the bar, isTitleBarTitle on the label, isTitleBarButton on every button, and
 * isTitleBarLogoButton, isTitleBarMinButton, isTitleBarMaxButton,
 * isTitleBarRestoreButton, isTitleBarCloseButton on one each. The buttons have
 * no icons of their own: a style sheet gives them with qproperty-icon or
 * background-image, or setTitleButtonIcon() does.
 *
 * \note A new bar shows both the maximise and the restore button until
 * setMaximized() or the first switchMaxMin() decides between them.
 */
class TARNWIDGETS_EXPORT TitleBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    /*! The logo shows the application's window icon, if there is one. */
    explicit TitleBar(QWidget *parent = nullptr);
    ~TitleBar() override;

    /*! Shown as plain text; what does not fit ends in an ellipsis. */
    void setTitle(const QString &title);
    QString title() const;
    void setTitleAlignment(Qt::Alignment alignment);
    QLabel *titleLabel() const;

    /*! The room of a hidden title stays, so that the buttons keep their places. */
    void setTitleVisible(bool visible);
    bool isTitleVisible() const;

    /*! Null for an index outside 0 to 4. The bar owns the button. */
    QToolButton *titleButton(const int &index) const;

    /*!
     * Shows or hides a button and remembers that: a maximise or restore button
     * hidden here stays hidden when the state changes.
     */
    void setTitleButtonVisible(const int &index, bool visible);

    /*! Whether the button is on screen now, so false while the bar is not; false for an index outside 0 to 4.
     */
    bool isTitleButtonVisible(const int &index) const;

    void setTitleButtonIcon(const int &index, const QIcon &icon);
    QIcon titleButtonIcon(const int &index) const;

    /*! Replaces the button's tool tip until the next change of language. */
    void setTitleButtonToolTip(const int &index, const QString &toolTip);
    QString titleButtonToolTip(const int &index) const;

    /*!
     * Adds a button for \a action behind the other extra buttons, flat and
     * without focus as all buttons of the bar are. Sizes are in pixels. The bar
     * owns the button, not the action; null is ignored.
     */
    void appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize);

    /*! The same at place \a index among the extra buttons; a place that does not exist means the end. */
    void insertExtendTitleButton(int index, QAction *action, QSize buttonSize, QSize iconSize);

    /*!
     * Sets the function that a click on the close button asks first; closed() is
     * emitted only if it returns true. It replaces the former one despite its
     * name. An empty function lets every close go ahead.
     */
    void appendCloseEvent(std::function<bool()> mayClose);

    /*! Tells the bar the window's state, which decides between the maximise and the restore button. Emits
     * nothing. */
    void setMaximized(bool maximized);

    /*! Whether (\a x, \a y), in the bar's pixels, is inside the bar and on no visible child. */
    bool hitTest(const int &x, const int &y) const;

    /*! The layout of all the bar's pieces; owned by the bar. */
    QHBoxLayout *getTitleVBarMainLayout() const;

    /*! Sets the buttons' tool tips again in the present language. */
    void retranslateUi();

public Q_SLOTS:
    /*!
     * Swaps the maximise and restore buttons, as far as they may be shown, and
     * emits normaled() or maximumed(). The window state is for the receiver to
     * change.
     */
    void switchMaxMin();

    void clearChecked();

Q_SIGNALS:
    void maximumed(); //!< (sic) The user asks for the maximised state.
    void minimuned(); //!< (sic) The user asks for the minimised state.
    void normaled(); //!< (sic) The user asks for the normal state.
    void closed(); //!< The user asks to close, and the close function agrees.

protected:
    void changeEvent(QEvent *event) override;

private:
    void createWidgets();
    void createConnects();

    const std::unique_ptr<TitleBarPrivate> d;
    QHBoxLayout *m_pMainLayout = nullptr;
};

} // namespace Tarn::Widgets

#endif
