// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API: what FramelessWindow and FramelessDialog have in common towards the platform.

#ifndef TARN_WIDGETS_TOPLEVELWINDOW_P_H
#define TARN_WIDGETS_TOPLEVELWINDOW_P_H

#include <QIcon>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWindow>

class QWidget;

namespace Tarn::Widgets {

/*!
 * The platform's side of a top-level widget that draws its own frame: what the
 * title bar shows is told to task switchers and screen readers, states that the
 * platform only reports get their geometry, and a press brings the keyboard
 * where no window manager does.
 */
class TopLevelWindow : public QObject
{
public:
    explicit TopLevelWindow(QWidget *widget);
    ~TopLevelWindow() override;

    void setTitle(const QString &title);
    void setIcon(const QIcon &icon);

    /*! To be called with each event of the widget, before the widget acts on it. */
    void handleEvent(QEvent *event);

    /*! Gives the widget the geometry of its state where the platform only reports the state. */
    void placeByState();

    /*! Asks for the keyboard, unless the window has it or must not have it. */
    void takeKeyboard();

    /*! Gives the keyboard back to the window that had it before takeKeyboard(), else to the parent's. */
    void returnKeyboard();

    /*! Sees the presses in the native window and in those that children have of their own. */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watch(QObject *window);
    void unwatch(QObject *window);
    void tellNativeWindow();
    bool isLarge() const;
    QRect stateGeometry() const;
    QWindow *formerFocusWindow() const;

    QWidget *const m_widget;
    QString m_title;
    QIcon m_icon;
    QRect m_normalGeometry; // valid while the state is maximised or full screen
    QPointer<QWindow> m_formerFocusWindow;
};

} // namespace Tarn::Widgets

#endif
