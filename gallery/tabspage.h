// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_TABSPAGE_H
#define GALLERY_TABSPAGE_H

#include "page.h"
#include "texts.h"

#include <QVector>
#include <QWidget>
#include <functional>

class QLabel;
class QToolButton;

namespace Tarn::Widgets {
class TarnTabBar;
class TarnTabWidget;
}

namespace Gallery {

/*! A tab bar with other widgets beside its tabs, a tab widget, and all that can be set on both. */
class TabsPage : public QWidget
{
    Q_OBJECT

public:
    explicit TabsPage(QWidget *parent = nullptr);
    ~TabsPage() override;

    static Page page();

private:
    using TabBar = Tarn::Widgets::TarnTabBar;

    QWidget *createBar();
    QToolButton *createSideWidget(const Text &text, const Text &toolTip);
    QWidget *createPages();
    QWidget *createSwitches();
    QWidget *createSizes();
    QWidget *createActions();

    void changeBars(const std::function<void(TabBar *)> &change);
    void changeTabs(const std::function<void(TabBar *, int)> &change);
    void setSideWidgetsVisible(bool visible);
    void setSpacing(int spacing);
    void setIconsVisible(bool visible);
    void addTab(int number);
    void insertPage(int index);
    void retranslateTabs();
    void showToolTips();
    void renameCurrent(const QString &text);
    void report(const Text &line);

    TabBar *m_bar = nullptr;
    Tarn::Widgets::TarnTabWidget *m_tabs = nullptr;
    QVector<QWidget *> m_sideWidgets;
    QLabel *m_report = nullptr;
    int m_pagesMade = 0;
    bool m_hasToolTips = false;
};

} // namespace Gallery

#endif
