// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "paintwatch.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QTest>
#include <QWidget>

namespace Tarn::Test {

PaintWatch::PaintWatch(QWidget *widget)
    : m_widget(widget)
{
    widget->installEventFilter(this);
}

PaintWatch::~PaintWatch() = default;

bool PaintWatch::begin()
{
    m_widget->window()->show();
    const bool isPainted = QTest::qWaitFor([this] { return painted == QRegion(m_widget->rect()); });
    QCoreApplication::processEvents();
    reset();
    return isPainted;
}

void PaintWatch::reset()
{
    painted = QRegion();
    times = 0;
}

bool PaintWatch::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        painted += static_cast<QPaintEvent *>(event)->region();
        ++times;
    }
    return false;
}

} // namespace Tarn::Test
