// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// TarnTabBar against QTabBar.

#include "benchmark.h"

#include <QApplication>
#include <tarnwidgets/tarntabbar.h>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnTabBar;

namespace {

constexpr QSize WindowSize(800, 480);
constexpr QSize BarSize(700, 40);
constexpr int EvenTabs = 10;

/* A frame of a fixed size, with a bar that is no wider. */
class LimitedBar : public TarnTabBar
{
public:
    void setSize(const QSize &size)
    {
        setWidgetFixedSize(size.width(), size.height());
        setTabMaxWidth(size.width());
    }
};

/* QTabBar with what inserting does in a TarnTabBar. */
class PlainBar : public QTabBar
{
public:
    void setSize(const QSize &size)
    {
        setFixedSize(size);
    }

    void addTab(const QString &text)
    {
        QTabBar::addTab(text);
        setCurrentIndex(count() - 1);
    }
};

/* The hint of even tabs as one would write it down. */
class PlainEvenBar : public PlainBar
{
protected:
    QSize tabSizeHint(int index) const override
    {
        const int share = width() / count();
        return QSize(index == count() - 1 ? width() - share * (count() - 1) : share, height());
    }
};

class EvenBar : public LimitedBar
{
public:
    EvenBar()
    {
        setTabBarType(TabBarRd::Even);
    }
};

/* A bar in a window, as bars are. */
template <typename Bar> class BarSide : public Side
{
public:
    BarSide()
    {
        m_window.setFixedSize(WindowSize);
        m_bar.setParent(&m_window);
        m_bar.setSize(BarSize);
        m_window.show();
    }

    ~BarSide() override
    {
        m_bar.setParent(nullptr);
    }

protected:
    void addTabs(int count)
    {
        for (int i = 0; i < count; ++i)
            m_bar.addTab(QStringLiteral("Tab %1").arg(i));
    }

    QWidget m_window;
    Bar m_bar;
};

/* The last tabs of some, each of them shown before the next one comes. */
template <typename Bar> class Insert : public BarSide<Bar>
{
public:
    Insert(int before, int count)
        : m_before(before)
        , m_count(count)
    {
        this->addTabs(before);
    }

    void prepare() override
    {
        while (this->m_bar.count() > m_before)
            this->m_bar.removeTab(this->m_bar.count() - 1);
        Side::prepare();
    }

    void step() override
    {
        for (int i = 0; i < m_count; ++i) {
            this->addTabs(1);
            QApplication::processEvents();
        }
    }

private:
    const int m_before;
    const int m_count;
};

template <typename Bar> class Switch : public BarSide<Bar>
{
public:
    explicit Switch(int count)
    {
        this->addTabs(count);
        this->m_bar.setCurrentIndex(0);
    }

    void step() override
    {
        this->m_bar.setCurrentIndex(1 - this->m_bar.currentIndex());
        QApplication::processEvents();
    }
};

template <typename Bar> class Resize : public BarSide<Bar>
{
public:
    Resize()
    {
        this->addTabs(EvenTabs);
    }

    void step() override
    {
        m_width = m_width == BarSize.width() ? BarSize.width() + 3 : BarSize.width();
        this->m_bar.setSize(QSize(m_width, BarSize.height()));
        QApplication::processEvents();
    }

private:
    int m_width = BarSize.width();
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"tabs-insert-10", "10 tabs inserted into a bar on show", 0.92, side<Insert<LimitedBar>>(0, 10),
             side<Insert<PlainBar>>(0, 10), nullptr, true, 10, 10},
            {"tabs-insert-100", "100 tabs inserted into a bar on show", 0.98,
             side<Insert<LimitedBar>>(0, 100), side<Insert<PlainBar>>(0, 100), nullptr, true, 1, 1},
            {"tabs-insert-1000", "the last 5 of 1000 tabs inserted into a bar on show", 1.01,
             side<Insert<LimitedBar>>(995, 5), side<Insert<PlainBar>>(995, 5), nullptr, true, 1, 1},
            {"tabs-switch-10", "one switch among 10 tabs", 0.95, side<Switch<LimitedBar>>(10),
             side<Switch<PlainBar>>(10)},
            {"tabs-switch-100", "one switch among 100 tabs", 0.98, side<Switch<LimitedBar>>(100),
             side<Switch<PlainBar>>(100), nullptr, false, 50},
            {"tabs-switch-1000", "one switch among 1000 tabs", 1.01, side<Switch<LimitedBar>>(1000),
             side<Switch<PlainBar>>(1000), nullptr, false, 10, 10},
            {"tabs-resize-even", "one resize step of a bar with 10 even tabs", 0.96, side<Resize<EvenBar>>(),
             side<Resize<PlainEvenBar>>()},
        });
}
