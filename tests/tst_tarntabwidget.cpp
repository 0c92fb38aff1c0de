// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the tab widget is made of, its look and its tabs. tst_tarntabwidget_pages.cpp holds its pages.

#include "support/functionguard.h"
#include "support/tabpages.h"

#include <QFontMetrics>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Test;
using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;

namespace {

QColor colourOf(QWidget *window, const QPoint &pos)
{
    return window->grab().toImage().pixelColor(pos);
}

} // namespace

class tst_TarnTabWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    // What it is made of
    void barStandsAboveTheStack();
    void signalsAndSlotsAreDeclared();
    void fixedSizeIsTheWidgets();

    // Look
    void stackHasTheColoursStyleSheet_data();
    void stackHasTheColoursStyleSheet();
    void plainPagesHaveTheColourOthersKeepTheirs();
    void colourIsPaintedWheneverItIsSet_data();
    void colourIsPaintedWheneverItIsSet();
    void backgroundCanBeSetAgain();
    void colourNames();

    // Tabs
    void toolTipOfATextThatDoesNotFit_data();
    void toolTipOfATextThatDoesNotFit();
    void toolTipGoesWithATextThatFits();
    void widthThatCountsIsTheOneBefore();
    void fontThatCountsIsTheWidgets_data();
    void fontThatCountsIsTheWidgets();
    void barIsNoWiderThanTheWidget();
    void widgetWithEvenTabsGetsNarrowerAgain();
    void tabOperationsAreTheBars();
    void propertiesAreThoseOfQTabBar_data();
    void propertiesAreThoseOfQTabBar();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TarnTabWidget::barStandsAboveTheStack()
{
    // GIVEN a new widget
    QWidget parent;
    const TarnTabWidget widget(&parent);
    QCOMPARE(widget.parentWidget(), &parent);
    QVERIFY(!widget.isWindow());

    // THEN it is a column of bar and stack, without gaps
    const auto *column = qobject_cast<QVBoxLayout *>(widget.layout());
    QVERIFY(column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins());
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget(), widget.getTabBar());
    QCOMPARE(column->itemAt(1)->widget(), widget.getStackWidget());
    QCOMPARE(widget.getTabBar()->parentWidget(), &widget);
    QCOMPARE(widget.getStackWidget()->parentWidget(), &widget);
    QCOMPARE(widget.getStackWidget()->metaObject(), &QStackedWidget::staticMetaObject);
    QCOMPARE(widget.count(), 0);
    QCOMPARE(widget.currentIndex(), -1);
    QVERIFY(!widget.currentWidget());
}

void tst_TarnTabWidget::signalsAndSlotsAreDeclared()
{
    const QMetaObject &meta = TarnTabWidget::staticMetaObject;
    QCOMPARE(meta.className(), "Tarn::Widgets::TarnTabWidget");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QVERIFY(meta.indexOfSignal("currentChanged(int)") >= 0);
    QVERIFY(meta.indexOfSignal("tabCloseRequested(int)") >= 0);
    for (const char *slot : {"slot_currentShow(int)", "slot_tabCloseRequested(int)"}) {
        QVERIFY(meta.indexOfSlot(slot) >= 0);
        QCOMPARE(meta.method(meta.indexOfSlot(slot)).access(), QMetaMethod::Public);
    }
}

void tst_TarnTabWidget::fixedSizeIsTheWidgets()
{
    TarnTabWidget widget(nullptr);

    widget.setWidgetSize(321, 245);

    QCOMPARE(widget.minimumSize(), QSize(321, 245));
    QCOMPARE(widget.maximumSize(), QSize(321, 245));
}

void tst_TarnTabWidget::stackHasTheColoursStyleSheet_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("styleSheet");
    QTest::newRow("some colour") << QColor(0x12, 0xab, 0x34) << ".QWidget{background-color:#12ab34;}";
    QTest::newRow("translucent") << QColor(0x12, 0xab, 0x34, 0x80) << ".QWidget{background-color:#8012ab34;}";
}

void tst_TarnTabWidget::stackHasTheColoursStyleSheet()
{
    QFETCH(QColor, colour);
    QFETCH(QString, styleSheet);
    TarnTabWidget widget(nullptr);
    QCOMPARE(widget.getStackWidget()->styleSheet(), QStringLiteral(".QWidget{background-color:#ffffff;}"));

    widget.setStackedWidgetColor(colour);

    QCOMPARE(widget.getStackWidget()->styleSheet(), styleSheet);
    QVERIFY(widget.styleSheet().isEmpty());
}

void tst_TarnTabWidget::plainPagesHaveTheColourOthersKeepTheirs()
{
    // GIVEN a widget whose ground is red, and no style sheet of its own
    TarnTabWidget widget(nullptr);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::red);
    widget.setPalette(palette);
    widget.resize(200, 200);
    widget.addTab(new QWidget, QStringLiteral("Plain"));
    widget.addTab(new Page(QString()), QStringLiteral("Of a class without meta-object"));
    widget.addTab(new QFrame, QStringLiteral("Special"));
    widget.show();
    const QPoint onPage = widget.rect().center();

    // THEN a plain page is white, and so is one that looks plain to style sheets
    widget.setCurrentIndex(0);
    QCOMPARE(colourOf(&widget, onPage), QColor(Qt::white));
    widget.setCurrentIndex(1);
    QCOMPARE(colourOf(&widget, onPage), QColor(Qt::white));

    // and another is not
    widget.setCurrentIndex(2);
    QCOMPARE(colourOf(&widget, onPage), QColor(Qt::red));
}

void tst_TarnTabWidget::colourIsPaintedWheneverItIsSet_data()
{
    QTest::addColumn<bool>("isShownBefore");
    QTest::addColumn<bool>("hasPageBefore");
    for (const bool isShownBefore : {false, true}) {
        for (const bool hasPageBefore : {false, true}) {
            QTest::addRow("%s, with%s a page", isShownBefore ? "on the screen" : "not yet shown",
                          hasPageBefore ? "" : "out")
                << isShownBefore << hasPageBefore;
        }
    }
}

void tst_TarnTabWidget::colourIsPaintedWheneverItIsSet()
{
    QFETCH(bool, isShownBefore);
    QFETCH(bool, hasPageBefore);
    TarnTabWidget widget(nullptr);
    widget.resize(200, 200);
    if (hasPageBefore)
        widget.addTab(new QWidget, QStringLiteral("A"));
    widget.setVisible(isShownBefore);

    for (const QColor &colour : {QColor(Qt::blue), QColor(Qt::green), QColor(Qt::cyan)})
        widget.setStackedWidgetColor(colour);
    if (!hasPageBefore)
        widget.addTab(new QWidget, QStringLiteral("A"));
    widget.show();

    QCOMPARE(colourOf(&widget, widget.rect().center()), QColor(Qt::cyan));
}

void tst_TarnTabWidget::backgroundCanBeSetAgain()
{
    TarnTabWidget widget(nullptr);
    widget.setStackedWidgetColor(Qt::blue);
    widget.getStackWidget()->setStyleSheet(QStringLiteral("QLabel { color: red; }"));

    widget.setStackedWidgetBackground();

    QCOMPARE(widget.getStackWidget()->styleSheet(), QStringLiteral(".QWidget{background-color:#0000ff;}"));
}

void tst_TarnTabWidget::colourNames()
{
    QCOMPARE(TarnTabWidget::fromColorToStr(QColor(0x12, 0xab, 0x34)), QStringLiteral("#12ab34"));
}

void tst_TarnTabWidget::toolTipOfATextThatDoesNotFit_data()
{
    QTest::addColumn<bool>("isClosable");
    QTest::newRow("not closable") << false;
    QTest::newRow("closable") << true;
}

void tst_TarnTabWidget::toolTipOfATextThatDoesNotFit()
{
    QFETCH(bool, isClosable);
    // GIVEN a tab of some width
    Tabs tabs(2);
    tabs.widget.setTabsClosable(isClosable);
    tabs.widget.getTabBar()->setExpanding(false);
    const QString former = QStringLiteral("A text of some length");
    QSet<int> distances;

    for (int length = 1; length <= 60; ++length) {
        for (int wide = 0; wide <= length; ++wide) {
            tabs.widget.getTabBar()->setTabText(1, former);
            const int room = tabs.widget.getTabBar()->tabRect(1).width() - (isClosable ? 20 : 0);
            const QString text =
                QStringLiteral("m").repeated(wide) + QStringLiteral("i").repeated(length - wide);
            const int width = tabs.widget.fontMetrics().horizontalAdvance(text);
            if (qAbs(width - room) > 3)
                continue;

            // WHEN another text is set, about as wide as the tab less the room of a close button
            tabs.widget.setTabText(1, text);

            // THEN it is the tool tip, too, if it is wider
            QCOMPARE(tabs.widget.tabText(1), text);
            QCOMPARE(tabs.widget.tabToolTip(1), width <= room ? QString() : text);
            QVERIFY(tabs.widget.tabToolTip(0).isEmpty());
            distances.insert(width - room);
        }
    }
    QVERIFY(distances.size() > 2 && *std::min_element(distances.cbegin(), distances.cend()) <= 0
            && *std::max_element(distances.cbegin(), distances.cend()) > 0);
}

void tst_TarnTabWidget::toolTipGoesWithATextThatFits()
{
    Tabs tabs(2);
    tabs.widget.setTabText(0, QStringLiteral("A text that is much longer than the tab").repeated(5));
    QVERIFY(!tabs.widget.tabToolTip(0).isEmpty());

    tabs.widget.setTabText(0, QStringLiteral("A"));

    QVERIFY(tabs.widget.tabToolTip(0).isEmpty());
    tabs.widget.setTabText(7, QStringLiteral("A")); // no tab, no harm
}

void tst_TarnTabWidget::widthThatCountsIsTheOneBefore()
{
    // GIVEN a narrow tab in a wide bar
    Tabs tabs(1);
    tabs.widget.getTabBar()->setExpanding(false);
    const QString text = QStringLiteral("A text that is longer than the tab");

    // WHEN a text is set for which it has to grow
    tabs.widget.setTabText(0, text);

    // THEN there is a tool tip though the text now fits
    QVERIFY(tabs.widget.getTabBar()->tabRect(0).width() > tabs.widget.fontMetrics().horizontalAdvance(text));
    QCOMPARE(tabs.widget.tabToolTip(0), text);

    // and it goes when the text is set again
    tabs.widget.setTabText(0, text);
    QVERIFY(tabs.widget.tabToolTip(0).isEmpty());
}

void tst_TarnTabWidget::fontThatCountsIsTheWidgets_data()
{
    QTest::addColumn<int>("pixelSize"); // of the bar's font; the widget's is of 12 pixels
    QTest::addColumn<int>("repetitions");
    QTest::addColumn<bool>("hasToolTip");
    QTest::newRow("larger tabs, where the text would not fit by their own") << 36 << 2 << false;
    QTest::newRow("smaller tabs, where the text would fit by their own") << 4 << 1 << true;
}

void tst_TarnTabWidget::fontThatCountsIsTheWidgets()
{
    QFETCH(int, pixelSize);
    QFETCH(int, repetitions);
    QFETCH(bool, hasToolTip);

    // GIVEN a tab with a font of its own
    Tabs tabs(1);
    QTabBar *bar = tabs.widget.getTabBar()->getTabBar();
    bar->setExpanding(false);
    QFont font = tabs.widget.font();
    font.setPixelSize(12);
    tabs.widget.setFont(font);
    font.setPixelSize(pixelSize);
    bar->setFont(font);
    const QString former =
        QStringLiteral("A text of such a length that no margin of the tab makes up for it");
    bar->setTabText(0, former);
    const int room = bar->tabRect(0).width();
    const QString text = former.repeated(repetitions);
    QCOMPARE(bar->fontMetrics().horizontalAdvance(text) <= room, hasToolTip);
    QCOMPARE(tabs.widget.fontMetrics().horizontalAdvance(text) <= room, !hasToolTip);

    // WHEN a text is set, THEN it is measured by the widget's font
    tabs.widget.setTabText(0, text);
    QCOMPARE(tabs.widget.tabToolTip(0), hasToolTip ? text : QString());
}

void tst_TarnTabWidget::barIsNoWiderThanTheWidget()
{
    // GIVEN a widget with more tabs than it is wide
    Tabs tabs;
    for (int index = 0; index < 20; ++index)
        tabs.add(QStringLiteral("A tab with a text"));

    // WHEN it has a size
    for (const int width : {300, 500, 250}) {
        tabs.widget.setWidgetSize(width, 200);

        // THEN the bar's greatest width is that
        QCOMPARE(tabs.widget.getTabMaxWidth(), width);
        QCOMPARE(tabs.widget.getTabBar()->getTabBar()->maximumWidth(), width);
        QTRY_COMPARE(tabs.widget.getTabBar()->getTabBar()->width(), width);
    }
}

void tst_TarnTabWidget::widgetWithEvenTabsGetsNarrowerAgain()
{
    // GIVEN even tabs without scroll buttons in a widget that was wide when a text changed
    Tabs tabs(3);
    tabs.widget.setUsesScrollButtons(false);
    tabs.widget.setTabBarType(TabBarRd::Even);
    tabs.widget.setTabText(0, QStringLiteral("Another text"));
    tabs.widget.getTabBar()->layout()->activate();
    tabs.widget.layout()->activate();
    QCOMPARE(tabs.widget.getTabBar()->getTabBar()->width(), 600);

    // WHEN it gets narrower
    tabs.widget.resize(300, 200);

    // THEN the tabs do, too
    QCOMPARE(tabs.widget.width(), 300);
    QCOMPARE(tabs.widget.getTabBar()->getTabBar()->width(), 300);
    for (int index = 0; index < 3; ++index)
        QCOMPARE(tabs.widget.getTabBar()->tabRect(index).width(), 100);
}

void tst_TarnTabWidget::tabOperationsAreTheBars()
{
    Tabs tabs(3);
    TarnTabWidget &widget = tabs.widget;
    TarnTabBar &bar = *widget.getTabBar();

    widget.setTabEnabled(1, false);
    QVERIFY(!bar.isTabEnabled(1) && !widget.isTabEnabled(1) && widget.isTabEnabled(0));
    widget.setTabIcon(1, redIcon());
    QVERIFY(!bar.tabIcon(1).isNull());
    QCOMPARE(widget.tabIcon(1).cacheKey(), bar.tabIcon(1).cacheKey());
    widget.setTabToolTip(1, QStringLiteral("A tip"));
    QCOMPARE(bar.tabToolTip(1), QStringLiteral("A tip"));
    QCOMPARE(widget.tabToolTip(1), QStringLiteral("A tip"));
    widget.setTabData(1, 42);
    QCOMPARE(bar.tabData(1), QVariant(42));
    QCOMPARE(widget.tabData(1), QVariant(42));
    widget.setElideMode(Qt::ElideMiddle);
    QCOMPARE(bar.elideMode(), Qt::ElideMiddle);
    QCOMPARE(widget.elideMode(), Qt::ElideMiddle);
    widget.setIconSize(QSize(24, 20));
    QCOMPARE(bar.iconSize(), QSize(24, 20));
    QCOMPARE(widget.iconSize(), QSize(24, 20));
    for (const bool on : {true, false}) {
        widget.setTabsClosable(on);
        QCOMPARE(bar.tabsClosable(), on);
        QCOMPARE(widget.tabsClosable(), on);
        widget.setAutoHide(on);
        QCOMPARE(bar.autoHide(), on);
        QCOMPARE(widget.autoHide(), on);
        widget.setMovable(on);
        QCOMPARE(bar.isMovable(), on);
        QCOMPARE(widget.isMovable(), on);
        widget.setUsesScrollButtons(on);
        QCOMPARE(bar.usesScrollButtons(), on);
        QCOMPARE(widget.usesScrollButtons(), on);
    }
    widget.setTabMinWidth(111);
    QCOMPARE(bar.getTabMinWidth(), 111);
    QCOMPARE(widget.getTabMinWidth(), 111);
    widget.setTabMaxWidth(222);
    QCOMPARE(bar.getTabMaxWidth(), 222);
    QCOMPARE(widget.getTabMaxWidth(), 222);
    widget.setTabMaxWidth(-1);
    QCOMPARE(widget.getTabMaxWidth(), 222);
    widget.setTabBarType(TabBarRd::Even);
    QCOMPARE(bar.getTabBarType(), TabBarRd::Even);
    QCOMPARE(widget.getTabBarType(), TabBarRd::Even);
}

void tst_TarnTabWidget::propertiesAreThoseOfQTabBar_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("type") << QByteArray("tabBarType") << QVariant::fromValue(TabBarRd::Even);
    QTest::newRow("hides itself") << QByteArray("autoHide") << QVariant(true);
    QTest::newRow("movable") << QByteArray("movable") << QVariant(true);
    QTest::newRow("closable") << QByteArray("tabsClosable") << QVariant(true);
    QTest::newRow("scroll buttons") << QByteArray("usesScrollButtons") << QVariant(false);
    QTest::newRow("elision") << QByteArray("elideMode") << QVariant::fromValue(Qt::ElideMiddle);
    QTest::newRow("icons") << QByteArray("iconSize") << QVariant(QSize(37, 29));
}

void tst_TarnTabWidget::propertiesAreThoseOfQTabBar()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);

    // GIVEN one whose bar inside has another value
    TarnTabWidget widget;
    const QObject *bar = widget.getTabBar()->getTabBar();
    QVERIFY(widget.metaObject()->indexOfProperty(name.constData())
            >= 0); // else it would become a dynamic one
    QVERIFY(bar->property(name.constData()) != value);

    // WHEN the property is set
    QVERIFY(widget.setProperty(name.constData(), value));

    // THEN that is the bar's, and it can be read again
    QCOMPARE(bar->property(name.constData()), value);
    QCOMPARE(widget.property(name.constData()), value);
}

QTEST_MAIN(tst_TarnTabWidget)

#include "tst_tarntabwidget.moc"
