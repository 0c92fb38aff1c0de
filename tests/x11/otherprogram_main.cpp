// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Shows one window at X Y WIDTH HEIGHT, takes the keyboard when that is clicked, and says the window's number
// once it is to be seen. Xlib alone, so that nothing of Qt has a hand in it.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    Display *display = XOpenDisplay(nullptr);
    if (argc != 5 || !display) {
        std::fprintf(stderr, "usage, with an X server: x11_otherprogram X Y WIDTH HEIGHT\n");
        return EXIT_FAILURE;
    }
    XSizeHints hints = {};
    hints.flags = USPosition | USSize;
    hints.x = std::atoi(argv[1]);
    hints.y = std::atoi(argv[2]);
    hints.width = std::atoi(argv[3]);
    hints.height = std::atoi(argv[4]);
    const int screen = DefaultScreen(display);
    const Window window =
        XCreateSimpleWindow(display, RootWindow(display, screen), hints.x, hints.y, unsigned(hints.width),
                            unsigned(hints.height), 0, 0, WhitePixel(display, screen));
    XSetWMNormalHints(display, window, &hints);
    XSelectInput(display, window, ExposureMask | ButtonPressMask | KeyPressMask);
    XMapWindow(display, window);

    for (bool announced = false;;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type == ButtonPress)
            XSetInputFocus(display, window, RevertToPointerRoot, event.xbutton.time);
        if (event.type == Expose && !announced) {
            std::printf("%lu\n", window);
            std::fflush(stdout);
            announced = true;
        }
    }
}
