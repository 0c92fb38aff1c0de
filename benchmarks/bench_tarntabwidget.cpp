// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// TarnTabWidget against QTabWidget.

#include "benchmark.h"

#include <QApplication>
#include <QTabWidget>
#include <memory>
#include <tarnwidgets/tarntabwidget.h>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::TarnTabWidget;

namespace {

constexpr QSize WidgetSize(700, 400);

/* QTabWidget with what inserting does in a TarnTabWidget. */
class PlainTabs : public QTabWidget
{
public:
    void addTab(QWidget *page, const QString &text)
    {
        QTabWidget::addTab(page, text);
        setCurrentIndex(count() - 1);
    }
};

template <typename Tabs> class TabsSide : public Side
{
protected:
    void makeTabs()
    {
        m_tabs = std::make_unique<Tabs>();
        m_tabs->setFixedSize(WidgetSize);
    }

    void addPages(int count)
    {
        for (int i = 0; i < count; ++i)
            m_tabs->addTab(new QWidget, QStringLiteral("Tab %1").arg(i));
    }

    std::unique_ptr<Tabs> m_tabs;
};

template <typename Tabs> class InsertShown : public TabsSide<Tabs>
{
public:
    explicit InsertShown(int count)
        : m_count(count)
    {
    }

    void prepare() override
    {
        this->makeTabs();
        this->m_tabs->show();
        Side::prepare();
    }

    void step() override
    {
        this->addPages(m_count);
        QApplication::processEvents();
    }

private:
    const int m_count;
};

template <typename Tabs> class InsertHidden : public TabsSide<Tabs>
{
public:
    explicit InsertHidden(int count)
        : m_count(count)
    {
    }

    void prepare() override
    {
        this->makeTabs();
        Side::prepare();
    }

    void step() override
    {
        this->addPages(m_count);
        this->m_tabs->show();
        QApplication::processEvents();
    }

private:
    const int m_count;
};

template <typename Tabs> class Switch : public TabsSide<Tabs>
{
public:
    explicit Switch(int count)
    {
        this->makeTabs();
        this->addPages(count);
        this->m_tabs->setCurrentIndex(0);
        this->m_tabs->show();
    }

    void step() override
    {
        this->m_tabs->setCurrentIndex(1 - this->m_tabs->currentIndex());
        QApplication::processEvents();
    }
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"pages-insert-10", "10 pages inserted on show", 0.56, side<InsertShown<TarnTabWidget>>(10),
             side<InsertShown<PlainTabs>>(10), nullptr, true, 10, 10},
            {"pages-insert-100", "100 pages inserted on show", 1.12, side<InsertShown<TarnTabWidget>>(100),
             side<InsertShown<PlainTabs>>(100), nullptr, true, 2, 2},
            {"pages-before-10", "10 pages inserted, then shown", 1.00, side<InsertHidden<TarnTabWidget>>(10),
             side<InsertHidden<PlainTabs>>(10), nullptr, true, 10, 10},
            {"pages-before-100", "100 pages inserted, then shown", 1.45,
             side<InsertHidden<TarnTabWidget>>(100), side<InsertHidden<PlainTabs>>(100), nullptr, true, 2, 2},
            {"pages-before-1000", "1000 pages inserted, then shown", 1.24,
             side<InsertHidden<TarnTabWidget>>(1000), side<InsertHidden<PlainTabs>>(1000), nullptr, true, 1,
             1},
            {"pages-switch-10", "one switch among 10 pages", 0.73, side<Switch<TarnTabWidget>>(10),
             side<Switch<PlainTabs>>(10)},
            {"pages-switch-100", "one switch among 100 pages", 0.85, side<Switch<TarnTabWidget>>(100),
             side<Switch<PlainTabs>>(100), nullptr, false, 50},
            {"pages-switch-1000", "one switch among 1000 pages", 0.97, side<Switch<TarnTabWidget>>(1000),
             side<Switch<PlainTabs>>(1000), nullptr, false, 10, 10},
        });
}
