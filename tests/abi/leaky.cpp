// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A library with all the faults that the checks here are to find, to show that they do.

#include <QThread>
#include <QTimer>
#include <QVector>
#include <cstdlib>

#define LEAKY_EXPORT Q_DECL_EXPORT

template class LEAKY_EXPORT QVector<QVector<double>>;

class LEAKY_EXPORT QssLoader
{
public:
    static int load();
};

namespace Tarn::Widgets {

class LEAKY_EXPORT TitleBar
{
public:
    explicit TitleBar(int height);
};

class LEAKY_EXPORT TitleBarPrivate : public TitleBar
{
public:
    explicit TitleBarPrivate(int height);
};

TitleBar::TitleBar(int height)
{
    QVector<QVector<double>>().resize(height);
}

TitleBarPrivate::TitleBarPrivate(int height)
    : TitleBar(height)
{
}

} // namespace Tarn::Widgets

static const int s_atLoadTime = std::rand();

int QssLoader::load()
{
    QTimer timer;
    timer.start(0);
    QThread thread;
    thread.wait(1);
    return s_atLoadTime + qgetenv("LEAKY").size();
}
