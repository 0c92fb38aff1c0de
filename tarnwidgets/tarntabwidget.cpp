// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tarntabwidget.h"

#include <QBoxLayout>
#include <QColor>
#include <QFontMetrics>
#include <QIcon>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVariant>

namespace Tarn::Widgets {

namespace {

constexpr int CloseAllowance = 20; // pixels that a tab's close button is taken to need

} // namespace

class TarnTabWidgetPrivate
{
public:
    explicit TarnTabWidgetPrivate(TarnTabWidget *q);

    void movePage(int from, int to) const;
    void followTab(int from, int to) const;

    TarnTabBar *const m_pTabBar;
    QStackedWidget *const m_pStack;
    QColor m_stackColor = Qt::white;
};

TarnTabWidgetPrivate::TarnTabWidgetPrivate(TarnTabWidget *q)
    : m_pTabBar(new TarnTabBar(q))
    , m_pStack(new QStackedWidget(q))
{
}

void TarnTabWidgetPrivate::movePage(int from, int to) const
{
    const QSignalBlocker blocker(m_pStack); // nothing is added or removed
    QWidget *page = m_pStack->widget(from);
    m_pStack->removeWidget(page);
    m_pStack->insertWidget(to, page);
}

// The page on show stays where it is and the others go past it: taken out it would be hidden, and lose the
// focus.
void TarnTabWidgetPrivate::followTab(int from, int to) const
{
    if (from != m_pStack->currentIndex()) {
        movePage(from, to);
        return;
    }
    const int step = from < to ? 1 : -1;
    for (int index = from; index != to; index += step)
        movePage(index + step, index);
}

TarnTabWidget::TarnTabWidget(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<TarnTabWidgetPrivate>(this))
{
    creatUi();
    connectFun();
}

TarnTabWidget::~TarnTabWidget() = default;

void TarnTabWidget::creatUi()
{
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->m_pTabBar);
    layout->addWidget(d->m_pStack);
    setStackedWidgetBackground();
}

void TarnTabWidget::connectFun()
{
    connect(d->m_pTabBar, &TarnTabBar::currentChanged, this, &TarnTabWidget::slot_currentShow);
    connect(d->m_pTabBar, &TarnTabBar::currentChanged, this, &TarnTabWidget::currentChanged);
    connect(d->m_pTabBar, &TarnTabBar::tabCloseRequested, this, &TarnTabWidget::slot_tabCloseRequested);
    // Kept: the notice comes after the tab has gone.
    connect(d->m_pTabBar, &TarnTabBar::tabCloseRequested, this, &TarnTabWidget::tabCloseRequested);

    connect(d->m_pTabBar->getTabBar(), &QTabBar::tabMoved, this,
            [this](int from, int to) { d->followTab(from, to); });
    // While a tab is dragged the bar keeps its current index, and the page on show has to be that one.
    connect(d->m_pStack, &QStackedWidget::widgetRemoved, d->m_pTabBar,
            [bar = d->m_pTabBar, stack = d->m_pStack](int index) {
                bar->removeTab(index);
                stack->setCurrentIndex(bar->currentIndex());
            });
}

TarnTabBar *TarnTabWidget::getTabBar() const
{
    return d->m_pTabBar;
}

QStackedWidget *TarnTabWidget::getStackWidget() const
{
    return d->m_pStack;
}

int TarnTabWidget::insertTab(int index, QWidget *page, const QString &text)
{
    return insertTab(index, page, QIcon(), text);
}

int TarnTabWidget::insertTab(int index, QWidget *page, const QIcon &icon, const QString &text)
{
    return page ? d->m_pTabBar->insertTab(d->m_pStack->insertWidget(index, page), icon, text) : -1;
}

int TarnTabWidget::addTab(QWidget *page, const QString &text)
{
    return insertTab(-1, page, text);
}

int TarnTabWidget::addTab(QWidget *page, const QIcon &icon, const QString &text)
{
    return insertTab(-1, page, icon, text);
}

void TarnTabWidget::addPage(QWidget *page)
{
    if (!page)
        return;
    d->m_pStack->addWidget(page);
    // The bar inside: the frame around it would make the new tab the current one.
    d->m_pTabBar->getTabBar()->addTab(page->windowTitle());
    disconnect(page, &QWidget::windowTitleChanged, this, nullptr); // a page may have been here before
    connect(page, &QWidget::windowTitleChanged, this,
            [this, page](const QString &title) { d->m_pTabBar->setTabText(indexOf(page), title); });
}

// The bar follows the stack, so that whoever hears of a new current tab finds its page.
void TarnTabWidget::removeTab(int index)
{
    if (QWidget *page = widget(index))
        d->m_pStack->removeWidget(page);
    else
        d->m_pTabBar->removeTab(index);
}

int TarnTabWidget::count() const
{
    return d->m_pTabBar->count();
}

QWidget *TarnTabWidget::widget(int index) const
{
    return d->m_pStack->widget(index);
}

int TarnTabWidget::indexOf(QWidget *page) const
{
    return d->m_pStack->indexOf(page);
}

int TarnTabWidget::currentIndex() const
{
    return d->m_pTabBar->currentIndex();
}

QWidget *TarnTabWidget::currentWidget() const
{
    return widget(currentIndex());
}

void TarnTabWidget::setCurrentIndex(int index)
{
    d->m_pTabBar->setCurrentIndex(index);
    // Not the index asked for: while a tab is dragged the bar keeps its own.
    d->m_pStack->setCurrentIndex(currentIndex());
}

void TarnTabWidget::setCurrentWidget(QWidget *page)
{
    // Kept: the stack first, so that whoever hears of the page from there finds the former tab.
    d->m_pStack->setCurrentIndex(indexOf(page));
    setCurrentIndex(indexOf(page));
}

// Kept: the bar is not told.
void TarnTabWidget::slot_currentShow(int index)
{
    d->m_pStack->setCurrentIndex(index);
}

void TarnTabWidget::slot_tabCloseRequested(int index)
{
    if (count() > 1)
        removeTab(index);
}

void TarnTabWidget::setWidgetSize(int width, int height)
{
    setFixedSize(width, height);
}

void TarnTabWidget::setStackedWidgetColor(const QColor &color)
{
    d->m_stackColor = color;
    // Before it is polished, a widget that has got a second style sheet paints by the first.
    d->m_pStack->ensurePolished();
    setStackedWidgetBackground();
}

void TarnTabWidget::setStackedWidgetBackground()
{
    d->m_pStack->setStyleSheet(
        QStringLiteral(".QWidget{background-color:%1;}").arg(fromColorToStr(d->m_stackColor)));
}

QString TarnTabWidget::fromColorToStr(const QColor &color)
{
    return TarnTabBar::fromColorToStr(color);
}

void TarnTabWidget::setTabText(int index, const QString &text)
{
    // Kept: what counts is the width that the tab has now, for its former text.
    const int room = d->m_pTabBar->tabRect(index).width() - (tabsClosable() ? CloseAllowance : 0);
    const bool fits = fontMetrics().horizontalAdvance(text) <= room;
    setTabToolTip(index, fits ? QString() : text);
    d->m_pTabBar->setTabText(index, text);
}

void TarnTabWidget::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    setTabMaxWidth(width());
}

void TarnTabWidget::setTabBarType(TabBarRd::TabBarType type)
{
    d->m_pTabBar->setTabBarType(type);
}

TabBarRd::TabBarType TarnTabWidget::getTabBarType() const
{
    return d->m_pTabBar->getTabBarType();
}

void TarnTabWidget::setTabMinWidth(int width)
{
    d->m_pTabBar->setTabMinWidth(width);
}

int TarnTabWidget::getTabMinWidth() const
{
    return d->m_pTabBar->getTabMinWidth();
}

void TarnTabWidget::setTabMaxWidth(int width)
{
    d->m_pTabBar->setTabMaxWidth(width);
}

int TarnTabWidget::getTabMaxWidth() const
{
    return d->m_pTabBar->getTabMaxWidth();
}

bool TarnTabWidget::autoHide() const
{
    return d->m_pTabBar->autoHide();
}

void TarnTabWidget::setAutoHide(bool on)
{
    d->m_pTabBar->setAutoHide(on);
}

bool TarnTabWidget::isMovable() const
{
    return d->m_pTabBar->isMovable();
}

void TarnTabWidget::setMovable(bool on)
{
    d->m_pTabBar->setMovable(on);
}

bool TarnTabWidget::tabsClosable() const
{
    return d->m_pTabBar->tabsClosable();
}

void TarnTabWidget::setTabsClosable(bool on)
{
    d->m_pTabBar->setTabsClosable(on);
}

bool TarnTabWidget::usesScrollButtons() const
{
    return d->m_pTabBar->usesScrollButtons();
}

void TarnTabWidget::setUsesScrollButtons(bool on)
{
    d->m_pTabBar->setUsesScrollButtons(on);
}

Qt::TextElideMode TarnTabWidget::elideMode() const
{
    return d->m_pTabBar->elideMode();
}

void TarnTabWidget::setElideMode(Qt::TextElideMode mode)
{
    d->m_pTabBar->setElideMode(mode);
}

QSize TarnTabWidget::iconSize() const
{
    return d->m_pTabBar->iconSize();
}

void TarnTabWidget::setIconSize(const QSize &size)
{
    d->m_pTabBar->setIconSize(size);
}

QString TarnTabWidget::tabText(int index) const
{
    return d->m_pTabBar->tabText(index);
}

bool TarnTabWidget::isTabEnabled(int index) const
{
    return d->m_pTabBar->isTabEnabled(index);
}

void TarnTabWidget::setTabEnabled(int index, bool on)
{
    d->m_pTabBar->setTabEnabled(index, on);
}

QIcon TarnTabWidget::tabIcon(int index) const
{
    return d->m_pTabBar->tabIcon(index);
}

void TarnTabWidget::setTabIcon(int index, const QIcon &icon)
{
    d->m_pTabBar->setTabIcon(index, icon);
}

QString TarnTabWidget::tabToolTip(int index) const
{
    return d->m_pTabBar->tabToolTip(index);
}

void TarnTabWidget::setTabToolTip(int index, const QString &toolTip)
{
    d->m_pTabBar->setTabToolTip(index, toolTip);
}

QVariant TarnTabWidget::tabData(int index) const
{
    return d->m_pTabBar->tabData(index);
}

void TarnTabWidget::setTabData(int index, const QVariant &data)
{
    d->m_pTabBar->setTabData(index, data);
}

} // namespace Tarn::Widgets
