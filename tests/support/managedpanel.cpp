// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "managedpanel.h"

#include "events.h"

#include <QApplication>
#include <QRubberBand>
#include <utility>

namespace Tarn::Test {

namespace {

void callOnce(std::function<void()> &function)
{
    if (function)
        std::exchange(function, nullptr)();
}

} // namespace

Panel::Panel(const QRect &geometry, Qt::WindowFlags flags)
    : QWidget(nullptr, flags)
{
    setGeometry(geometry);
    show();
}

Panel::~Panel() = default;

bool Panel::event(QEvent *event)
{
    received.append(event->type());
    return QWidget::event(event);
}

void Panel::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    callOnce(onMove);
}

void Panel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    callOnce(onResize);
}

void Panel::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    callOnce(onHide);
}

ManagedPanel::ManagedPanel()
{
    helper.activateOn(&panel);
}

QVector<QRubberBand *> rubberBands()
{
    QVector<QRubberBand *> bands;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (auto *band = qobject_cast<QRubberBand *>(widget))
            bands.append(band);
    }
    return bands;
}

QRubberBand *onlyRubberBand()
{
    const QVector<QRubberBand *> bands = rubberBands();
    if (bands.size() != 1)
        return nullptr;
    bands.constFirst()->setWindowFlag(Qt::FramelessWindowHint);
    return bands.constFirst();
}

void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    mousePress(widget, from);
    mouseMove(widget, to);
    mouseRelease(widget, to);
}

bool hasOwnCursor(const QWidget &widget)
{
    return widget.cursor().shape() != Qt::ArrowCursor;
}

QPoint local(const QPoint &global)
{
    return global - Frame.topLeft();
}

} // namespace Tarn::Test
