// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "xserver.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <array>
#include <memory>
#include <poll.h>
#include <xcb/xproto.h>

// Last: its macros break Qt's headers.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>

namespace Tarn::Test {

namespace {

constexpr int Patience = 10000; // milliseconds
constexpr long MostLongs = 1024; // of a property

struct Freer
{
    void operator()(void *data) const
    {
        XFree(data);
    }
};

template <typename T> using XPointer = std::unique_ptr<T, Freer>;

/* Quits a loop when the application is told that a property of a window has changed. */
class PropertyNotice : public QAbstractNativeEventFilter
{
public:
    PropertyNotice(xcb_window_t window, xcb_atom_t property, QEventLoop *loop)
        : m_window(window)
        , m_property(property)
        , m_loop(loop)
    {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray &, void *message, long *) override
    {
        const auto *event = static_cast<xcb_generic_event_t *>(message);
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return false;
        const auto *notice = static_cast<xcb_property_notify_event_t *>(message);
        if (notice->window == m_window && notice->atom == m_property) {
            m_came = true;
            m_loop->quit();
        }
        return false;
    }

    bool came() const
    {
        return m_came;
    }

private:
    const xcb_window_t m_window;
    const xcb_atom_t m_property;
    QEventLoop *const m_loop;
    bool m_came = false;
};

/* Windows go at any time; asking about one that is gone is no reason to end the program. */
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

} // namespace

XServer::XServer()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
    XSetErrorHandler(ignoreError);
    m_probe = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(m_display, m_probe, PropertyChangeMask);
}

XServer::~XServer()
{
    if (m_display)
        XCloseDisplay(m_display);
}

bool XServer::isConnected() const
{
    return m_display != nullptr;
}

Display *XServer::display() const
{
    return m_display;
}

bool XServer::hasWindowManager() const
{
    return !property(DefaultRootWindow(m_display), "_NET_SUPPORTING_WM_CHECK").isEmpty();
}

bool XServer::expectsWindowManager()
{
    return qgetenv("TARN_TEST_WINDOW_MANAGER") != "none";
}

bool XServer::settle() const
{
    // Twice: the answer to what one side did may make the other do something.
    for (int round = 0; round < 2; ++round) {
        if (!applicationAnswers() || (hasWindowManager() && !windowManagerAnswers()))
            return false;
    }
    return applicationAnswers();
}

// The server keeps the order of events: when the application hears of this change, it has heard of all
// before.
bool XServer::applicationAnswers() const
{
    const WId root = DefaultRootWindow(m_display);
    const Atom mark = atom("_TARN_TEST_MARK");
    QEventLoop loop;
    PropertyNotice notice(xcb_window_t(root), xcb_atom_t(mark), &loop);
    XSync(m_display, False);
    XChangeProperty(m_display, root, mark, XA_INTEGER, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char *>("x"), 1);
    XFlush(m_display);
    QTimer::singleShot(Patience, &loop, &QEventLoop::quit);
    loop.exec();
    QGuiApplication::sync(); // what the application asks for in turn is on its way, too
    return notice.came();
}

// The window manager answers this question by a property, after all that it was sent before.
bool XServer::windowManagerAnswers() const
{
    const Atom answer = atom("_NET_FRAME_EXTENTS");
    XDeleteProperty(m_display, m_probe, answer);
    XSync(m_display, True);

    XEvent question = {};
    question.xclient.type = ClientMessage;
    question.xclient.window = m_probe;
    question.xclient.message_type = atom("_NET_REQUEST_FRAME_EXTENTS");
    question.xclient.format = 32;
    XSendEvent(m_display, DefaultRootWindow(m_display), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &question);
    XFlush(m_display);

    const QDeadlineTimer deadline(Patience);
    while (!deadline.hasExpired()) {
        XEvent event;
        if (XCheckTypedWindowEvent(m_display, m_probe, PropertyNotify, &event)) {
            if (event.xproperty.atom == answer && event.xproperty.state == PropertyNewValue)
                return true;
            continue;
        }
        pollfd connection = {ConnectionNumber(m_display), POLLIN, 0};
        poll(&connection, 1, int(deadline.remainingTime()));
    }
    return false;
}

Atom XServer::atom(const char *name) const
{
    return XInternAtom(m_display, name, False);
}

// Items of 32 bits are as long as a long, as Xlib hands them out.
QByteArray XServer::property(WId window, const char *name) const
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    const int status = XGetWindowProperty(m_display, window, atom(name), 0, MostLongs, False, AnyPropertyType,
                                          &type, &format, &count, &left, &data);
    const XPointer<unsigned char> owner(data);
    if (status != Success || !data)
        return QByteArray();
    const std::size_t itemSize = format == 32 ? sizeof(long) : std::size_t(format / 8);
    return QByteArray(reinterpret_cast<const char *>(data), int(count * itemSize));
}

QRect XServer::screenGeometry() const
{
    const int screen = DefaultScreen(m_display);
    return QRect(0, 0, DisplayWidth(m_display, screen), DisplayHeight(m_display, screen));
}

QRect XServer::workArea() const
{
    const QByteArray data = property(DefaultRootWindow(m_display), "_NET_WORKAREA");
    std::array<long, 4> area = {};
    if (std::size_t(data.size()) < sizeof(area))
        return QRect();
    std::copy_n(data.constData(), sizeof(area), reinterpret_cast<char *>(area.data()));
    return QRect(int(area[0]), int(area[1]), int(area[2]), int(area[3]));
}

QImage XServer::grab(const QRect &area) const
{
    const QRect seen = area & screenGeometry();
    XImage *image = XGetImage(m_display, DefaultRootWindow(m_display), seen.x(), seen.y(),
                              unsigned(seen.width()), unsigned(seen.height()), AllPlanes, ZPixmap);
    if (!image)
        return QImage();
    QImage result(seen.size(), QImage::Format_RGB32);
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x)
            result.setPixel(x, y, 0xff000000u | QRgb(XGetPixel(image, x, y)));
    }
    XDestroyImage(image);
    return result;
}

QRgb XServer::pixel(const QPoint &pos) const
{
    return grab(QRect(pos, QSize(1, 1))).pixel(0, 0);
}

bool XServer::isViewable(WId window) const
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(m_display, window, &attributes) && attributes.map_state == IsViewable;
}

QRect XServer::geometry(WId window) const
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(m_display, window, &attributes))
        return QRect();
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(m_display, window, DefaultRootWindow(m_display), 0, 0, &x, &y, &child);
    return QRect(x, y, attributes.width, attributes.height);
}

bool XServer::bypassesWindowManager(WId window) const
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(m_display, window, &attributes) && attributes.override_redirect;
}

QString XServer::title(WId window) const
{
    return QString::fromUtf8(property(window, "_NET_WM_NAME"));
}

QStringList XServer::states(WId window) const
{
    const QByteArray data = property(window, "_NET_WM_STATE");
    const auto *atoms = reinterpret_cast<const Atom *>(data.constData());
    QStringList result;
    for (std::size_t i = 0; i < std::size_t(data.size()) / sizeof(Atom); ++i) {
        const XPointer<char> name(XGetAtomName(m_display, atoms[i]));
        result.append(QString::fromLatin1(name.get()).remove(QStringLiteral("_NET_WM_STATE_")));
    }
    return result;
}

bool XServer::isIconic(WId window) const
{
    const QByteArray data = property(window, "WM_STATE");
    return !data.isEmpty() && *reinterpret_cast<const long *>(data.constData()) == IconicState;
}

WId XServer::windowUnderPointer() const
{
    Window root = 0;
    Window child = 0;
    int x = 0;
    int y = 0;
    int winX = 0;
    int winY = 0;
    unsigned mask = 0;
    XQueryPointer(m_display, DefaultRootWindow(m_display), &root, &child, &x, &y, &winX, &winY, &mask);
    return child;
}

WId XServer::focusWindow() const
{
    Window window = 0;
    int revertTo = 0;
    XGetInputFocus(m_display, &window, &revertTo);
    return window == PointerRoot ? 0 : window;
}

QImage XServer::cursor() const
{
    const XPointer<XFixesCursorImage> image(XFixesGetCursorImage(m_display));
    if (!image)
        return QImage();
    QImage result(image->width, image->height, QImage::Format_ARGB32);
    for (int y = 0; y < image->height; ++y) {
        for (int x = 0; x < image->width; ++x)
            result.setPixel(x, y, QRgb(image->pixels[y * image->width + x]));
    }
    return result;
}

} // namespace Tarn::Test
