// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_XSERVER_H
#define TARN_TEST_XSERVER_H

#include <QImage>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QWindow>

struct _XDisplay;

namespace Tarn::Test {

/*!
 * What the X server itself knows, asked over a connection of its own: nothing
 * here is Qt's opinion about the screen. Positions are in screen pixels.
 */
class XServer
{
public:
    XServer();
    ~XServer();

    bool isConnected() const;
    _XDisplay *display() const;

    bool hasWindowManager() const;

    /*! Whether the run is meant to have one; the runner tells. */
    static bool expectsWindowManager();

    /*!
     * Returns once the application, the window manager and again the
     * application have dealt with all that was sent up to now, so that what has
     * not happened by then does not happen any more. False if that takes
     * unreasonably long.
     */
    bool settle() const;

    QRect screenGeometry() const;

    /*! The work area that the root window announces. */
    QRect workArea() const;

    /*! What is seen, all windows together. */
    QImage grab(const QRect &area) const;
    QRgb pixel(const QPoint &pos) const;

    bool isViewable(WId window) const;
    QRect geometry(WId window) const;

    /*! Whether the window manager is kept out of this window's affairs. */
    bool bypassesWindowManager(WId window) const;
    QString title(WId window) const; //!< _NET_WM_NAME
    QStringList states(WId window) const; //!< The atoms in _NET_WM_STATE, less that prefix.
    bool isIconic(WId window) const; //!< WM_STATE

    /*! The topmost window under the pointer, 0 over the bare root. */
    WId windowUnderPointer() const;

    /*! The window that gets the keys; 0 if none or whichever is under the pointer. */
    WId focusWindow() const;

    /*! The pointer's picture, whatever window set it. */
    QImage cursor() const;

private:
    Q_DISABLE_COPY(XServer)

    unsigned long atom(const char *name) const;
    QByteArray property(WId window, const char *name) const;
    bool applicationAnswers() const;
    bool windowManagerAnswers() const;

    _XDisplay *m_display = nullptr;
    WId m_probe = 0; // never shown
};

} // namespace Tarn::Test

#endif
