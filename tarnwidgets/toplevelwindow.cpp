// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "toplevelwindow_p.h"

#include <QChildEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace Tarn::Widgets {

namespace {

/* There the compositor alone decides where windows are and which of them has the keyboard. */
bool isWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

TopLevelWindow::TopLevelWindow(QWidget *widget)
    : m_widget(widget)
{
}

TopLevelWindow::~TopLevelWindow() = default;

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

void TopLevelWindow::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::WinIdChange:
    case QEvent::WindowIconChange: // QWidget has given the native window its own icon
        tellNativeWindow();
        break;
    case QEvent::WindowStateChange:
        if (event->spontaneous())
            m_normalGeometry = QRect(); // the window manager changed the state, and looks after the geometry
        else if (m_widget->isVisible())
            placeByState();
        break;
    case QEvent::Show:
        // A state from before the show counts as soon as the native window is on the screen.
        if (!event->spontaneous() && isLarge())
            QMetaObject::invokeMethod(
                this, [this] { placeByState(); }, Qt::QueuedConnection);
        break;
    default:
        break;
    }
}

void TopLevelWindow::tellNativeWindow()
{
    QWindow *window = m_widget->windowHandle();
    if (!window)
        return;
    watch(window);
    if (!m_title.isEmpty())
        window->setTitle(m_title);
    if (!m_icon.isNull() && window->icon().cacheKey() != m_icon.cacheKey())
        window->setIcon(m_icon);
}

bool TopLevelWindow::isLarge() const
{
    return m_widget->isMaximized() || m_widget->isFullScreen();
}

void TopLevelWindow::placeByState()
{
    QWindow *window = m_widget->windowHandle();
    const bool wasLarge = m_normalGeometry.isValid();
    if (!window || (!isLarge() && !wasLarge) || isWayland())
        return;
    if (!wasLarge)
        m_normalGeometry = m_widget->normalGeometry();
    // The native window's geometry: QWidget::setGeometry() would end the state, and keep to the maximum size.
    const QRect geometry = stateGeometry();
    if (window->geometry() != geometry)
        window->setGeometry(geometry);
    if (!isLarge())
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
    const bool mayTake = window && !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus) && !isWayland();
    if (!mayTake || window == focusWindow)
        return;
    m_formerFocusWindow = focusWindow;
    window->requestActivate();
}

void TopLevelWindow::returnKeyboard()
{
    QWindow *former = formerFocusWindow();
    if (QGuiApplication::focusWindow() == m_widget->windowHandle() && former && former->isVisible()
        && !isWayland())
        former->requestActivate();
    m_formerFocusWindow.clear();
}

QWindow *TopLevelWindow::formerFocusWindow() const
{
    if (m_formerFocusWindow)
        return m_formerFocusWindow;
    const QWidget *parent = m_widget->parentWidget();
    return parent ? parent->window()->windowHandle() : nullptr;
}

void TopLevelWindow::watch(QObject *window)
{
    window->installEventFilter(this);
    for (QObject *child : window->children())
        watch(child);
}

void TopLevelWindow::unwatch(QObject *window)
{
    window->removeEventFilter(this);
    for (QObject *child : window->children())
        unwatch(child);
}

bool TopLevelWindow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        takeKeyboard();
        break;
    case QEvent::ChildAdded:
        watch(static_cast<QChildEvent *>(event)->child());
        break;
    case QEvent::ChildRemoved:
        unwatch(static_cast<QChildEvent *>(event)->child());
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Tarn::Widgets
