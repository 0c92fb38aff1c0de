// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tabpages.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPixmap>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QTest>

namespace Tarn::Test {

QIcon redIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

Page::Page(const QString &name)
{
    setObjectName(name);
}

void Page::showEvent(QShowEvent *event)
{
    ++shows;
    QWidget::showEvent(event);
}

void Page::hideEvent(QHideEvent *event)
{
    ++hides;
    QWidget::hideEvent(event);
}

Tabs::Tabs(int count)
{
    for (int index = 0; index < count; ++index)
        add(QString(QChar('A' + index)));
    widget.resize(600, 200);
    widget.show();
}

QPointer<Page> Tabs::add(const QString &name, int index)
{
    auto *page = new Page(name);
    widget.insertTab(index, page, name);
    return page;
}

Page *Tabs::page(int index) const
{
    return static_cast<Page *>(widget.widget(index));
}

QString Tabs::names() const
{
    QString names;
    for (int index = 0; index < widget.count(); ++index)
        names += widget.tabText(index);
    return names;
}

bool Tabs::areInStep() const
{
    const QStackedWidget *stack = widget.getStackWidget();
    if (stack->count() != widget.count() || stack->currentIndex() != widget.currentIndex())
        return false;
    for (int index = 0; index < widget.count(); ++index) {
        const QWidget *page = widget.widget(index);
        if (page->objectName() != widget.tabText(index))
            return false;
        if (page->isVisible() != (widget.isVisible() && index == widget.currentIndex()))
            return false;
    }
    return widget.currentWidget() == stack->currentWidget();
}

QWidget *Tabs::closeButton(int index) const
{
    const auto side = QTabBar::ButtonPosition(
        QApplication::style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, &widget));
    return widget.getTabBar()->tabButton(index, side);
}

void Tabs::dragTab(int from, int to) const
{
    QTabBar *bar = widget.getTabBar()->getTabBar();
    const QPoint start = bar->tabRect(from).center();
    const QPoint end = bar->tabRect(to).center() + QPoint(from < to ? 8 : -8, 0);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    const int steps = 20;
    for (int step = 1; step <= steps; ++step) {
        const QPoint pos = start + (end - start) * step / steps;
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, end);
}

} // namespace Tarn::Test
