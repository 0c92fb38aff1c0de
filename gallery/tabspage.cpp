// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tabspage.h"

#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>

using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;

namespace Gallery {

namespace {

constexpr int FirstTabs = 3;
constexpr int FirstPages = 3;
constexpr int PagesHeight = 150;
constexpr int LongBar = 2000; // pixels; no bar of the page gets there
constexpr int FieldContents = 6; // characters
constexpr int Spacing = 6;
constexpr int SwitchColumns = 3;

QIcon iconOf(const QWidget *widget)
{
    return widget->style()->standardIcon(QStyle::SP_FileIcon);
}

QString tabTitle(int number)
{
    switch (number) {
    case 1:
        return TabsPage::tr("Pumps");
    case 2:
        return TabsPage::tr("Tanks");
    case 3:
        return TabsPage::tr("Valves");
    default:
        return TabsPage::tr("Tab %1").arg(number);
    }
}

QString pageTitle(int number)
{
    return TabsPage::tr("Page %1").arg(number);
}

} // namespace

TabsPage::TabsPage(QWidget *parent)
    : QWidget(parent)
{
    m_report = createNote([] { return tr("Nothing reported yet"); });
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->addWidget(createBar(), 0, 0, 1, 2);
    layout->addWidget(createPages(), 1, 0, 1, 2);
    layout->addWidget(m_report, 2, 0, 1, 2);
    layout->addWidget(createSwitches(), 3, 0, 1, 2);
    layout->addWidget(createSizes(), 4, 0);
    layout->addWidget(createActions(), 4, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);
    keepTranslated(this, [this] { retranslateTabs(); });
}

TabsPage::~TabsPage() = default;

Page TabsPage::page()
{
    return {QStringLiteral("tabs"),
            tr("Tabs"),
            tr("A tab bar that has room for other widgets, by itself and above pages."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new TabsPage(parent); },
            {}};
}

QWidget *TabsPage::createBar()
{
    m_bar = new TarnTabBar(this);
    for (int number = 1; number <= FirstTabs; ++number)
        addTab(number);
    m_bar->setCurrentIndex(0);
    QToolButton *add = createSideWidget([] { return QStringLiteral("+"); }, [] { return tr("Add a tab"); });
    connect(add, &QToolButton::clicked, this, [this] { addTab(m_bar->count() + 1); });
    const Text leftArea = [] { return tr("Left area"); };
    const Text rightArea = [] { return tr("Right area"); };
    m_bar->addLeftWidget(createSideWidget([] { return tr("Left"); }, leftArea));
    m_bar->addCenterWidget(add);
    m_bar->addRightWidget(createSideWidget([] { return tr("Right"); }, rightArea));
    m_bar->addRightWidget(createSideWidget([] { return tr("Far right"); }, rightArea));
    setSpacing(Spacing);
    connect(m_bar, &TarnTabBar::currentChanged, this,
            [this](int index) { report([=] { return tr("Bar: currentChanged(%1)").arg(index); }); });
    connect(m_bar, &TarnTabBar::tabCloseRequested, this, [this](int index) {
        m_bar->removeTab(index);
        report([=] { return tr("Bar: tabCloseRequested(%1)").arg(index); });
    });
    return m_bar;
}

QToolButton *TabsPage::createSideWidget(const Text &text, const Text &toolTip)
{
    auto *button = new QToolButton;
    keepTranslated(button, [=] {
        button->setText(text());
        button->setToolTip(toolTip());
    });
    button->setAutoRaise(true);
    m_sideWidgets.append(button);
    return button;
}

QWidget *TabsPage::createPages()
{
    m_tabs = new TarnTabWidget(this);
    m_tabs->setMinimumHeight(PagesHeight);
    m_tabs->setStackedWidgetColor(Qt::transparent);
    for (int i = 0; i < FirstPages; ++i)
        insertPage(-1);
    m_tabs->setCurrentIndex(0);
    connect(m_tabs, &TarnTabWidget::currentChanged, this,
            [this](int index) { report([=] { return tr("Pages: currentChanged(%1)").arg(index); }); });
    connect(m_tabs, &TarnTabWidget::tabCloseRequested, this,
            [this](int index) { report([=] { return tr("Pages: tabCloseRequested(%1)").arg(index); }); });
    return m_tabs;
}

QWidget *TabsPage::createSwitches()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Both bars"); });
    auto *layout = new QGridLayout(group);
    layout->setVerticalSpacing(0);
    int place = 0;
    const auto add = [&](const Text &text, bool on, std::function<void(bool)> onToggled) {
        layout->addWidget(createCheckBox(text, on, std::move(onToggled)), place / SwitchColumns,
                          place % SwitchColumns, Qt::AlignLeft);
        ++place;
    };
    const auto addForBars = [&](const Text &text, bool on, void (TabBar::*set)(bool)) {
        add(text, on, [this, set](bool value) { changeBars([=](TabBar *bar) { (bar->*set)(value); }); });
    };
    add([] { return tr("Even"); }, false,
        [this](bool on) {
            changeBars([=](TabBar *bar) { bar->setTabBarType(on ? TabBarRd::Even : TabBarRd::Normal); });
        });
    addForBars([] { return tr("Closable"); }, false, &TabBar::setTabsClosable);
    addForBars([] { return tr("Movable"); }, false, &TabBar::setMovable);
    addForBars([] { return tr("Scroll buttons"); }, m_bar->usesScrollButtons(),
               &TabBar::setUsesScrollButtons);
    addForBars([] { return tr("Expanding"); }, m_bar->expanding(), &TabBar::setExpanding);
    addForBars([] { return tr("Hide if single"); }, false, &TabBar::setAutoHide);
    add([] { return tr("Icons"); }, false, [this](bool on) { setIconsVisible(on); });
    add([] { return tr("Second tab enabled"); }, true,
        [this](bool on) { changeBars([=](TabBar *bar) { bar->setTabEnabled(1, on); }); });
    add([] { return tr("Side widgets"); }, true, [this](bool on) { setSideWidgetsVisible(on); });
    add([] { return tr("Tool tips"); }, false,
        [this](bool on) {
            m_hasToolTips = on;
            showToolTips();
        });
    add([] { return tr("Tab buttons"); }, false,
        [this](bool on) {
            changeTabs([on](TabBar *bar, int index) {
                bar->setTabButton(index, QTabBar::LeftSide, on ? new QCheckBox : nullptr);
            });
        });
    return group;
}

QWidget *TabsPage::createSizes()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Sizes and colours"); });
    QComboBox *elision = createComboBox();
    for (const Qt::TextElideMode mode : {Qt::ElideNone, Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight})
        elision->addItem(QString(), mode);
    keepTranslated(elision, [=] {
        setRowTexts(elision, {tr("None"), tr("Left"), tr("Middle"), tr("Right")});
    });
    elision->setCurrentIndex(elision->findData(m_bar->elideMode()));
    connect(elision, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, elision](int row) {
        const auto mode = Qt::TextElideMode(elision->itemData(row).toInt());
        changeBars([=](TabBar *bar) { bar->setElideMode(mode); });
    });
    QComboBox *color = createComboBox();
    for (const QColor &value : {QColor(Qt::transparent), QColor(Qt::white), QColor(0x1b77a3)})
        color->addItem(QString(), value);
    keepTranslated(color, [=] { setRowTexts(color, {tr("Clear"), tr("White"), tr("Blue")}); });
    connect(color, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, color](int row) { m_tabs->setStackedWidgetColor(color->itemData(row).value<QColor>()); });
    for (QComboBox *box : {elision, color}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(FieldContents);
    }

    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    addFormRow(
        layout, [] { return tr("Least width"); }, createPixelBox(0, LongBar, 0, [this](int width) {
            changeBars([=](TabBar *bar) { bar->setTabMinWidth(width); });
        }));
    addFormRow(
        layout, [] { return tr("Greatest width"); }, createPixelBox(0, LongBar, LongBar, [this](int width) {
            changeBars([=](TabBar *bar) { bar->setTabMaxWidth(width); });
        }));
    addFormRow(
        layout, [] { return tr("Spacing"); },
        createPixelBox(0, 40, Spacing, [this](int spacing) { setSpacing(spacing); }));
    addFormRow(
        layout, [] { return tr("Icon size"); },
        createPixelBox(8, 48, m_bar->iconSize().width(), [this](int size) {
            changeBars([=](TabBar *bar) { bar->setIconSize(QSize(size, size)); });
        }));
    addFormRow(
        layout, [] { return tr("Elision"); }, elision);
    addFormRow(
        layout, [] { return tr("Pages"); }, color);
    return group;
}

QWidget *TabsPage::createActions()
{
    auto *actions = new QWidget(this);
    auto *layout = new QGridLayout(actions);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [=](int row, int column, const Text &text, std::function<void()> onClicked) {
        auto *button = createButton(text);
        connect(button, &QPushButton::clicked, this, std::move(onClicked));
        layout->addWidget(button, row, column);
    };
    auto *name = new QLineEdit;
    keepTranslated(name, [name] { name->setPlaceholderText(tr("Text of the current tab")); });
    connect(name, &QLineEdit::textEdited, this, &TabsPage::renameCurrent);
    layout->addWidget(name, 0, 0, 1, 2);
    add(
        1, 0, [] { return tr("Insert first"); }, [this] { insertPage(0); });
    add(
        1, 1, [] { return tr("Add"); }, [this] { insertPage(-1); });
    add(
        2, 0, [] { return tr("Remove"); },
        [this] { m_tabs->slot_tabCloseRequested(m_tabs->currentIndex()); });
    add(
        2, 1, [] { return tr("Centre areas"); }, [this] { m_bar->setRightLeftVCenter(); });
    layout->setRowStretch(layout->rowCount(), 1);
    return actions;
}

void TabsPage::changeBars(const std::function<void(TabBar *)> &change)
{
    change(m_bar);
    change(m_tabs->getTabBar());
}

void TabsPage::changeTabs(const std::function<void(TabBar *, int)> &change)
{
    changeBars([&change](TabBar *bar) {
        for (int index = 0; index < bar->count(); ++index)
            change(bar, index);
    });
}

void TabsPage::setSideWidgetsVisible(bool visible)
{
    for (QWidget *widget : qAsConst(m_sideWidgets))
        widget->setVisible(visible);
}

void TabsPage::setSpacing(int spacing)
{
    m_bar->setLeftHLayoutSpace(spacing);
    m_bar->setCenterHLayoutSpace(spacing);
    m_bar->setRightHLayoutSpace(spacing);
}

void TabsPage::setIconsVisible(bool visible)
{
    changeTabs([this, visible](TabBar *bar, int index) {
        bar->setTabIcon(index, visible ? iconOf(this) : QIcon());
    });
}

void TabsPage::insertPage(int index)
{
    const int number = ++m_pagesMade;
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    auto *field = new QLineEdit;
    showSample(field, [number] { return pageTitle(number); });
    field->setMaximumWidth(160);
    layout->addWidget(field, 0, Qt::AlignCenter);
    m_tabs->insertTab(index, page, pageTitle(number));
    m_tabs->getTabBar()->setTabData(m_tabs->indexOf(page), number);
}

void TabsPage::addTab(int number)
{
    m_bar->setTabData(m_bar->addTab(tabTitle(number)), number);
}

/* A tab without a number was given another text by the user. */
void TabsPage::retranslateTabs()
{
    for (int index = 0; index < m_bar->count(); ++index)
        m_bar->setTabText(index, tabTitle(m_bar->tabData(index).toInt()));
    for (int index = 0; index < m_tabs->count(); ++index) {
        const QVariant number = m_tabs->getTabBar()->tabData(index);
        if (number.isValid())
            m_tabs->getTabBar()->setTabText(index, pageTitle(number.toInt()));
    }
    if (m_hasToolTips)
        showToolTips();
}

void TabsPage::showToolTips()
{
    changeTabs([this](TabBar *bar, int index) {
        bar->setTabToolTip(index, m_hasToolTips ? tr("This is tab %1").arg(index + 1) : QString());
    });
}

void TabsPage::renameCurrent(const QString &text)
{
    m_tabs->setTabText(m_tabs->currentIndex(), text);
    m_tabs->getTabBar()->setTabData(m_tabs->currentIndex(), QVariant());
    const QString toolTip = m_tabs->tabToolTip(m_tabs->currentIndex());
    report([=] { return toolTip.isEmpty() ? tr("The text fits") : tr("Tool tip: %1").arg(toolTip); });
}

void TabsPage::report(const Text &line)
{
    showText(m_report, line);
}

} // namespace Gallery
