// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "toplevelwindow_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace Tarn::Widgets {

TopLevelWindow::TopLevelWindow(QWidget *widget)
    : m_widget(widget)
{ }

void TopLevelWindow::setTitle(const QString &title)
{
    // An accessible name of the application's own stays.
    if (m_widget->accessibleName() == m_title)
        m_widget->setAccessibleName(title);
    m_title = title;
    if (QWindow *window = m_widget->windowHandle())
        window->setTitle(title);
}

void TopLevelWindow::setIcon(const QIcon &icon)
{
    m_icon = icon;
    if (QWindow *window = m_widget->windowHandle())
        window->setIcon(icon);
}

void TopLevelWindow::windowCreated()
{
    QWindow *window = m_widget->windowHandle();
    if (!window)
        return;
    if (!m_title.isEmpty())
        window->setTitle(m_title);
    if (!m_icon.isNull())
        window->setIcon(m_icon);
}

void TopLevelWindow::placeByState()
{
    const bool isLarge = m_widget->isMaximized() || m_widget->isFullScreen();
    const bool wasLarge = m_normalGeometry.isValid();
    // A Wayland compositor alone decides where windows are.
    if ((!isLarge && !wasLarge) || QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return;
    if (isLarge && !wasLarge) {
        m_normalGeometry = m_widget->normalGeometry();
        m_maximumSize = m_widget->maximumSize();
    }

    const QRect geometry = stateGeometry();
    m_widget->setMaximumSize(isLarge ? m_maximumSize.expandedTo(geometry.size()) : m_maximumSize);
    if (m_widget->windowHandle()->geometry() != geometry)
        m_widget->setGeometry(geometry);
    if (!isLarge)
        m_normalGeometry = QRect();
}

QRect TopLevelWindow::stateGeometry() const
{
    if (m_widget->isFullScreen())
        return m_widget->screen()->geometry();
    if (m_widget->isMaximized())
        return m_widget->screen()->availableGeometry();
    return m_normalGeometry;
}

void TopLevelWindow::takeKeyboard()
{
    QWindow *window = m_widget->windowHandle();
    QWindow *focusWindow = QGuiApplication::focusWindow();
    if (!window || window == focusWindow || window->flags().testFlag(Qt::WindowDoesNotAcceptFocus))
        return;
    m_formerFocusWindow = focusWindow;
    window->requestActivate();
}

void TopLevelWindow::returnKeyboard()
{
    const bool hadFocus = QGuiApplication::focusWindow() == m_widget->windowHandle();
    if (hadFocus && m_formerFocusWindow && m_formerFocusWindow->isVisible())
        m_formerFocusWindow->requestActivate();
    m_formerFocusWindow.clear();
}

} // namespace Tarn::Widgets
