// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tarntabbar.h"

#include <QBoxLayout>
#include <QColor>
#include <QIcon>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QVariant>

namespace Tarn::Widgets {

namespace {

QMouseEvent leftButton(QEvent::Type type, const QWidget *widget, const QPoint &pos)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    return QMouseEvent(type, pos, widget->mapToGlobal(pos), Qt::LeftButton, held, Qt::NoModifier);
}

/* -1 if all are hidden. */
int lastVisibleTab(const QTabBar &bar)
{
    int index = bar.count() - 1;
    while (index >= 0 && !bar.isTabVisible(index))
        --index;
    return index;
}

} // namespace

class TabBarRdPrivate
{
public:
    TabBarRd::TabBarType m_type = TabBarRd::Normal;
    int m_nMinWidth = 0;
    int m_nMaxWidth = 0;
    bool m_isHeld = false; // a tab, with the left button
};

TabBarRd::TabBarRd(QWidget *parent)
    : QTabBar(parent)
    , d(std::make_unique<TabBarRdPrivate>())
{
}

TabBarRd::~TabBarRd() = default;

void TabBarRd::setTabBarType(TabBarType type)
{
    if (d->m_type == type)
        return;
    d->m_type = type;
    // QTabBar lays its tabs out anew on a resize, even to the size that it has.
    QResizeEvent event(size(), size());
    resizeEvent(&event);
    updateGeometry();
}

TabBarRd::TabBarType TabBarRd::getTabBarType() const
{
    return d->m_type;
}

void TabBarRd::setTabMinWidth(int width)
{
    d->m_nMinWidth = width;
    setMinimumWidth(width);
}

int TabBarRd::getTabMinWidth() const
{
    return d->m_nMinWidth;
}

void TabBarRd::setTabMaxWidth(int width)
{
    d->m_nMaxWidth = width;
    setMaximumWidth(width);
}

int TabBarRd::getTabMaxWidth() const
{
    return d->m_nMaxWidth;
}

QSize TabBarRd::tabSizeHint(int index) const
{
    if (d->m_type != Even)
        return QTabBar::tabSizeHint(index);
    // Kept: the height is the bar's own, so that a bar that is too low stays so.
    const int tabs = count();
    if (tabs == 0)
        return QSize(0, height());
    const int remainder = index == tabs - 1 ? width() % tabs : 0;
    return QSize(width() / tabs + remainder, height());
}

// Of itself this is tabSizeHint(), and a bar without scroll buttons could then never get narrower than it is.
QSize TabBarRd::minimumTabSizeHint(int index) const
{
    return d->m_type == Even ? QSize(0, height()) : QTabBar::minimumTabSizeHint(index);
}

void TabBarRd::resizeEvent(QResizeEvent *event)
{
    QTabBar::resizeEvent(event);
    update();
}

void TabBarRd::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        letGo(); // what could not be let go while all tabs were hidden
        d->m_isHeld = d->m_isHeld || tabAt(event->pos()) >= 0;
    }
    QTabBar::mousePressEvent(event);
}

void TabBarRd::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        // A tab stays current while it is dragged, even when it is hidden.
        if (isTabVisible(currentIndex()))
            d->m_isHeld = false;
        else
            letGo();
    }
    QTabBar::mouseReleaseEvent(event);
}

// QTabBar keeps the index of the tab that is held, and while others slide aside it keeps it even when tabs
// are taken away: it would paint a tab beyond the last.
void TabBarRd::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    letGo();
}

// QTabBar divides by the width of the tab that is let go, which none has that is hidden or gone: the bar is
// made to forget it, as one does whose tabs cannot be moved. What is left of the drag, such as the picture of
// the tab, and a current tab that cannot be changed, goes with the next tab that is held and let go.
void TabBarRd::letGo()
{
    if (!d->m_isHeld)
        return;
    const auto release = [this] {
        QMouseEvent event = leftButton(QEvent::MouseButtonRelease, this, QPoint(-1, -1));
        QTabBar::mouseReleaseEvent(&event);
    };
    const bool wasMovable = isMovable();
    setMovable(false);
    release();
    setMovable(wasMovable);

    const int current = currentIndex();
    const int index = isTabVisible(current) ? current : lastVisibleTab(*this);
    if (index < 0)
        return;
    d->m_isHeld = false;
    {
        const QSignalBlocker blocker(this); // for nobody clicks
        QMouseEvent press = leftButton(QEvent::MouseButtonPress, this, tabRect(index).center());
        QTabBar::mousePressEvent(&press);
        release();
    }
    setCurrentIndex(index);
}

namespace {

void addToArea(QHBoxLayout *area, QWidget *widget)
{
    if (widget)
        area->addWidget(widget, 0, Qt::AlignRight | Qt::AlignBottom);
}

} // namespace

class TarnTabBarPrivate
{
public:
    explicit TarnTabBarPrivate(TarnTabBar *q);

    void makeLastCurrent() const;

    TabBarRd *const m_pTabBar;
    QHBoxLayout *const m_pLeftLayout;
    QHBoxLayout *const m_pCenterLayout;
    QHBoxLayout *const m_pRightLayout;
    QSpacerItem *const m_pSpacer;
    QColor m_widgetColor;
};

TarnTabBarPrivate::TarnTabBarPrivate(TarnTabBar *q)
    : m_pTabBar(new TabBarRd(q))
    , m_pLeftLayout(new QHBoxLayout)
    , m_pCenterLayout(new QHBoxLayout)
    , m_pRightLayout(new QHBoxLayout)
    , m_pSpacer(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum))
{
    m_pTabBar->setDrawBase(false);
    m_pTabBar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

// Kept: the last tab becomes current, wherever the new one is.
void TarnTabBarPrivate::makeLastCurrent() const
{
    m_pTabBar->setCurrentIndex(m_pTabBar->count() - 1);
}

TarnTabBar::TarnTabBar(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<TarnTabBarPrivate>(this))
{
    initUi();
}

TarnTabBar::~TarnTabBar() = default;

void TarnTabBar::initUi()
{
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(d->m_pLeftLayout);
    layout->addWidget(d->m_pTabBar);
    layout->addLayout(d->m_pCenterLayout);
    layout->addSpacerItem(d->m_pSpacer);
    layout->addLayout(d->m_pRightLayout);
    connect(d->m_pTabBar, &QTabBar::currentChanged, this, &TarnTabBar::slot_currIndexChanged);
    connect(d->m_pTabBar, &QTabBar::tabCloseRequested, this, &TarnTabBar::slot_tabClosed);
}

QTabBar *TarnTabBar::getTabBar() const
{
    return d->m_pTabBar;
}

void TarnTabBar::setWidgetFixedSize(int width, int height)
{
    setFixedSize(width, height);
}

// Kept: nothing is painted with it.
void TarnTabBar::setWidgetColor(const QColor &color)
{
    d->m_widgetColor = color;
}

QColor TarnTabBar::widgetColor() const
{
    return d->m_widgetColor;
}

QString TarnTabBar::fromColorToStr(const QColor &color)
{
    return QVariant(color).toString();
}

void TarnTabBar::addLeftWidget(QWidget *widget)
{
    addToArea(d->m_pLeftLayout, widget);
}

void TarnTabBar::addRightWidget(QWidget *widget)
{
    addToArea(d->m_pRightLayout, widget);
}

void TarnTabBar::addCenterWidget(QWidget *widget)
{
    if (d->m_pCenterLayout->isEmpty())
        addToArea(d->m_pCenterLayout, widget);
}

void TarnTabBar::setRightLeftVCenter()
{
    for (QHBoxLayout *area : {d->m_pLeftLayout, d->m_pRightLayout, d->m_pCenterLayout})
        layout()->setAlignment(area, Qt::AlignVCenter);
}

void TarnTabBar::setLeftHLayoutSpace(int spacing)
{
    d->m_pLeftLayout->setSpacing(spacing);
}

void TarnTabBar::setRightHLayoutSpace(int spacing)
{
    d->m_pRightLayout->setSpacing(spacing);
}

void TarnTabBar::setCenterHLayoutSpace(int spacing)
{
    d->m_pCenterLayout->setSpacing(spacing);
}

void TarnTabBar::setTabBarType(TabBarRd::TabBarType type)
{
    if (type == TabBarRd::Even) {
        // Kept: no way back from here, so that a bar that was Even once stays wide.
        d->m_pTabBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        d->m_pSpacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Preferred);
        layout()->invalidate();
    }
    d->m_pTabBar->setTabBarType(type);
    layout()->activate();
}

TabBarRd::TabBarType TarnTabBar::getTabBarType() const
{
    return d->m_pTabBar->getTabBarType();
}

// Kept: a negative width is passed on here, and ignored as a greatest width.
void TarnTabBar::setTabMinWidth(int width)
{
    d->m_pTabBar->setTabMinWidth(width);
}

int TarnTabBar::getTabMinWidth() const
{
    return d->m_pTabBar->getTabMinWidth();
}

void TarnTabBar::setTabMaxWidth(int width)
{
    if (width >= 0)
        d->m_pTabBar->setTabMaxWidth(width);
}

int TarnTabBar::getTabMaxWidth() const
{
    return d->m_pTabBar->getTabMaxWidth();
}

bool TarnTabBar::expanding() const
{
    return d->m_pTabBar->expanding();
}

void TarnTabBar::setExpanding(bool on)
{
    d->m_pTabBar->setExpanding(on);
}

bool TarnTabBar::autoHide() const
{
    return d->m_pTabBar->autoHide();
}

void TarnTabBar::setAutoHide(bool on)
{
    d->m_pTabBar->setAutoHide(on);
}

bool TarnTabBar::isMovable() const
{
    return d->m_pTabBar->isMovable();
}

void TarnTabBar::setMovable(bool on)
{
    d->m_pTabBar->setMovable(on);
}

bool TarnTabBar::tabsClosable() const
{
    return d->m_pTabBar->tabsClosable();
}

void TarnTabBar::setTabsClosable(bool on)
{
    d->m_pTabBar->setTabsClosable(on);
}

bool TarnTabBar::usesScrollButtons() const
{
    return d->m_pTabBar->usesScrollButtons();
}

void TarnTabBar::setUsesScrollButtons(bool on)
{
    d->m_pTabBar->setUsesScrollButtons(on);
}

Qt::TextElideMode TarnTabBar::elideMode() const
{
    return d->m_pTabBar->elideMode();
}

void TarnTabBar::setElideMode(Qt::TextElideMode mode)
{
    d->m_pTabBar->setElideMode(mode);
}

QSize TarnTabBar::iconSize() const
{
    return d->m_pTabBar->iconSize();
}

void TarnTabBar::setIconSize(const QSize &size)
{
    d->m_pTabBar->setIconSize(size);
}

int TarnTabBar::insertTab(int index, const QString &text)
{
    const int inserted = d->m_pTabBar->insertTab(index, text);
    d->makeLastCurrent();
    return inserted;
}

int TarnTabBar::insertTab(int index, const QIcon &icon, const QString &text)
{
    const int inserted = d->m_pTabBar->insertTab(index, icon, text);
    d->makeLastCurrent();
    return inserted;
}

int TarnTabBar::addTab(const QString &text)
{
    return insertTab(-1, text);
}

int TarnTabBar::addTab(const QIcon &icon, const QString &text)
{
    return insertTab(-1, icon, text);
}

void TarnTabBar::removeTab(int index)
{
    // After the removal the picture of a tab that is dragged, and a page that is not the current tab's, would
    // stay.
    if (index >= 0 && index < count())
        d->m_pTabBar->letGo();
    d->m_pTabBar->removeTab(index);
}

void TarnTabBar::moveTab(int from, int to)
{
    d->m_pTabBar->moveTab(from, to);
}

int TarnTabBar::count() const
{
    return d->m_pTabBar->count();
}

int TarnTabBar::currentIndex() const
{
    return d->m_pTabBar->currentIndex();
}

void TarnTabBar::setCurrentIndex(int index)
{
    d->m_pTabBar->setCurrentIndex(index);
}

bool TarnTabBar::isTabEnabled(int index) const
{
    return d->m_pTabBar->isTabEnabled(index);
}

void TarnTabBar::setTabEnabled(int index, bool on)
{
    d->m_pTabBar->setTabEnabled(index, on);
}

QString TarnTabBar::tabText(int index) const
{
    return d->m_pTabBar->tabText(index);
}

void TarnTabBar::setTabText(int index, const QString &text)
{
    d->m_pTabBar->setTabText(index, text);
}

QColor TarnTabBar::tabTextColor(int index) const
{
    return d->m_pTabBar->tabTextColor(index);
}

void TarnTabBar::setTabTextColor(int index, const QColor &color)
{
    d->m_pTabBar->setTabTextColor(index, color);
}

QIcon TarnTabBar::tabIcon(int index) const
{
    return d->m_pTabBar->tabIcon(index);
}

void TarnTabBar::setTabIcon(int index, const QIcon &icon)
{
    d->m_pTabBar->setTabIcon(index, icon);
}

QString TarnTabBar::tabToolTip(int index) const
{
    return d->m_pTabBar->tabToolTip(index);
}

void TarnTabBar::setTabToolTip(int index, const QString &toolTip)
{
    d->m_pTabBar->setTabToolTip(index, toolTip);
}

QVariant TarnTabBar::tabData(int index) const
{
    return d->m_pTabBar->tabData(index);
}

void TarnTabBar::setTabData(int index, const QVariant &data)
{
    d->m_pTabBar->setTabData(index, data);
}

QWidget *TarnTabBar::tabButton(int index, QTabBar::ButtonPosition position) const
{
    return d->m_pTabBar->tabButton(index, position);
}

void TarnTabBar::setTabButton(int index, QTabBar::ButtonPosition position, QWidget *widget)
{
    d->m_pTabBar->setTabButton(index, position, widget);
}

QRect TarnTabBar::tabRect(int index) const
{
    return d->m_pTabBar->tabRect(index);
}

int TarnTabBar::tabAt(const QPoint &position) const
{
    return d->m_pTabBar->tabAt(position);
}

void TarnTabBar::slot_currIndexChanged(int index)
{
    Q_EMIT currentChanged(index);
}

void TarnTabBar::slot_tabClosed(int index)
{
    Q_EMIT tabCloseRequested(index);
}

} // namespace Tarn::Widgets
