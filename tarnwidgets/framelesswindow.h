// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELESSWINDOW_H
#define TARN_WIDGETS_FRAMELESSWINDOW_H

#include "tarnwidgets_export.h"

#include <memory>
#include <tarnutils/appmainwindow.h>

class QFrame;

namespace Tarn::Widgets {

class FramelessWindowPrivate;
class TitleBar;

/*!
 * \ingroup frameless
 * \brief An application's main window that draws its own title bar.
 *
 * Use it instead of QMainWindow where the window manager's frame is not wanted.
 * The window is moved by dragging the title bar or any free area, and a double
 * click on the title bar maximises or restores it. It is not resized by its
 * edges; FramelessDialog is.
 *
 * \code
 * FramelessWindow window;
 * window.setWindowTitle(tr("Monitor"));
 * window.setCentralWidget(new MonitorPage);
 * window.show();
 * \endcode
 *
 * Escape closes the window and F11 acts as a click on the maximise button. All
 * other keys that reach the window end there.
 *
 * The window is translucent: the style sheet paints its ground. Style
 * selectors: isFramelessCentralWidget = true on the frame around title bar and
 * central widget, and those of TitleBar.
 *
 * \note Title and icon are the title bar's. They reach the task switcher and
 * screen readers, but QWidget::windowTitle() and QWidget::windowIcon(), called
 * through a base class pointer, do not know them.
 */
class TARNWIDGETS_EXPORT FramelessWindow : public Tarn::Utils::AppMainWindow
{
    Q_OBJECT

public:
    enum eDirection : int { eLeft = 0, eTop = 1, eRight = 2, eBottom = 3, eNormal = 4 };
    Q_ENUM(eDirection)

    explicit FramelessWindow(QWidget *parent = nullptr);

    /*!
     * With \a placement, the window becomes frameless only in setCentralWidget(),
     * which also moves it to the screen's origin and shows the restore button,
     * as full-screen device applications want it.
     */
    FramelessWindow(bool placement, QWidget *parent);
    ~FramelessWindow() override;

    /*!
     * Makes \a widget the content, below the title bar if \a withTitleBar. The
     * window owns it; what was set before is deleted. Null is ignored.
     *
     * In placement mode this changes the window flags, which hides a visible
     * window: call it before show().
     *
     * \note Hides QMainWindow::setCentralWidget().
     */
    void setCentralWidget(QWidget *widget, bool withTitleBar);
    void setCentralWidget(QWidget *widget);

    /*! The widget given to setCentralWidget(), not the frame around it. \note Hides
     * QMainWindow::centralWidget(). */
    QWidget *centralWidget() const;

    /*! Owned by the window, also while setCentralWidget() shows none. */
    TitleBar *getTitleBar() const;

    void setWindowTitle(const QString &title); //!< \note Hides QWidget::setWindowTitle().
    QString windowTitle() const;
    void
    setWindowIcon(const QIcon &icon); //!< Also the title bar's logo. \note Hides QWidget::setWindowIcon().
    QIcon windowIcon() const;
    void setWindowIconText(const QString &text);
    QString windowIconText() const;

    /*! Shows the resize arrow of a side; eNormal and unknown values show the arrow. */
    void setCursorStyle(eDirection direction);

public Q_SLOTS:
    /*! (sic) Restores a maximised window and maximises any other. */
    void swithMaxNormal();

Q_SIGNALS:
    void Hidden(); //!< For subclasses to emit; the class itself does not.

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void createWidgets();
    void createConnects();
    void addFramelessFlags();
    QFrame *createCentralFrame(bool withTitleBar);
    bool isOverButtonStrip(const QPoint &pos, int stripWidth) const;

    const std::unique_ptr<FramelessWindowPrivate> d;
};

} // namespace Tarn::Widgets

#endif
