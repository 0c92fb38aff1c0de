// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QMetaEnum>
#include <QPaintEvent>
#include <QRegion>
#include <QStyle>
#include <QTest>
#include <algorithm>
#include <optional>
#include <tarnwidgets/tarntabbar.h>

using namespace Tarn::Test;
using Tarn::Widgets::TabBarRd;

namespace {

class Bar : public TabBarRd
{
public:
    using TabBarRd::TabBarRd;
    using TabBarRd::tabSizeHint;

    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        TabBarRd::paintEvent(event);
    }
};

class PlainBar : public QTabBar
{
public:
    using QTabBar::tabSizeHint;
};

void addTabs(QTabBar *bar, int count)
{
    for (int index = 0; index < count; ++index)
        bar->addTab(QStringLiteral("Tab").repeated(index + 1));
}

void dragOn(QTabBar *bar, const QPoint &pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, bar->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(bar, &move);
}

/* Drags a tab over another one, which makes way, and holds it there. */
void drag(QTabBar *bar, int from, int to)
{
    const QPoint start = bar->tabRect(from).center();
    const QPoint end = bar->tabRect(to).center();
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    dragOn(bar, (start + end) / 2);
    dragOn(bar, end);
}

QStringList tabTexts(const QTabBar &bar)
{
    QStringList texts;
    for (int index = 0; index < bar.count(); ++index)
        texts.append(bar.tabText(index));
    return texts;
}

/* The picture of a dragged tab is a child of the bar. */
bool showsDraggedTab(const QTabBar &bar)
{
    const QList<QWidget *> children = bar.findChildren<QWidget *>();
    return std::any_of(children.cbegin(), children.cend(), [](const QWidget *child) {
        return child->isVisible() && !qobject_cast<const QAbstractButton *>(child);
    });
}

QVector<int> tabWidths(const QTabBar &bar)
{
    QVector<int> widths;
    for (int index = 0; index < bar.count(); ++index)
        widths.append(bar.tabRect(index).width());
    return widths;
}

QVector<int> evenWidths(int width, int count)
{
    QVector<int> widths(count, width / count);
    widths.last() += width - width / count * count;
    return widths;
}

} // namespace

class tst_TabBarRd : public QObject
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

    void newBarIsNormalWithoutWidths();
    void typesHaveTheirNumbers();
    void typeIsAPropertyWithNames();
    void normalTabsHaveQtsHints();
    void evenHintIsTheSharedWidthAndTheHeight_data();
    void evenHintIsTheSharedWidthAndTheHeight();
    void evenTabsFillTheBarExactly();
    void evenTabsFollowInsertionAndRemoval();
    void evenTakesEffectAtOnce_data();
    void evenTakesEffectAtOnce();
    void normalTakesEffectAtOnce();
    void normalGivesTheWidthBackToALayout();
    void changeOfTypeRepaintsAll();
    void sameTypeAgainChangesNothing();
    void widthsAreThoseOfTheBar();
    void negativeWidthIsPassedOn();
    void resizeRepaintsAll();
    void removalLetsTheDraggedTabGo_data();
    void removalLetsTheDraggedTabGo();
    void draggedTabMayBeHidden_data();
    void draggedTabMayBeHidden();
    void hiddenTabMayTakeThePlaceOfTheDragged();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TabBarRd::newBarIsNormalWithoutWidths()
{
    QWidget parent;
    const auto *bar = new TabBarRd(&parent);

    QCOMPARE(bar->parentWidget(), &parent);
    QCOMPARE(bar->metaObject()->className(), "Tarn::Widgets::TabBarRd");
    QCOMPARE(bar->metaObject()->superClass(), &QTabBar::staticMetaObject);
    QCOMPARE(bar->getTabBarType(), TabBarRd::Normal);
    QCOMPARE(bar->getTabMinWidth(), 0);
    QCOMPARE(bar->getTabMaxWidth(), 0);
    QCOMPARE(bar->minimumWidth(), 0);
    QCOMPARE(bar->maximumWidth(), QWIDGETSIZE_MAX);
}

void tst_TabBarRd::typesHaveTheirNumbers()
{
    QCOMPARE(int(TabBarRd::Normal), 0);
    QCOMPARE(int(TabBarRd::Even), 1);
    QCOMPARE(sizeof(TabBarRd::TabBarType), sizeof(int));
    QCOMPARE(QMetaEnum::fromType<TabBarRd::TabBarType>().keyCount(), 2);
}

void tst_TabBarRd::typeIsAPropertyWithNames()
{
    TabBarRd bar;

    QVERIFY(bar.setProperty("tabBarType", QStringLiteral("Even")));

    QCOMPARE(bar.getTabBarType(), TabBarRd::Even);
    QCOMPARE(bar.property("tabBarType").toInt(), int(TabBarRd::Even));
}

void tst_TabBarRd::normalTabsHaveQtsHints()
{
    Bar bar;
    PlainBar plain;
    for (QTabBar *each : {static_cast<QTabBar *>(&bar), static_cast<QTabBar *>(&plain)}) {
        addTabs(each, 5);
        each->setTabIcon(2, QApplication::style()->standardIcon(QStyle::SP_DirIcon));
        each->resize(300, 40);
        each->show();
    }

    for (int index = 0; index < bar.count(); ++index)
        QCOMPARE(bar.tabSizeHint(index), plain.tabSizeHint(index));
    QCOMPARE(tabWidths(bar), tabWidths(plain));
}

void tst_TabBarRd::evenHintIsTheSharedWidthAndTheHeight_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("divisible, first") << QSize(300, 40) << 3 << 0 << QSize(100, 40);
    QTest::newRow("divisible, last") << QSize(300, 40) << 3 << 2 << QSize(100, 40);
    QTest::newRow("one pixel left, first") << QSize(301, 33) << 3 << 0 << QSize(100, 33);
    QTest::newRow("one pixel left, middle") << QSize(301, 33) << 3 << 1 << QSize(100, 33);
    QTest::newRow("one pixel left, last") << QSize(301, 33) << 3 << 2 << QSize(101, 33);
    QTest::newRow("two pixels left, last") << QSize(302, 33) << 3 << 2 << QSize(102, 33);
    QTest::newRow("less than a pixel each, first") << QSize(2, 33) << 3 << 0 << QSize(0, 33);
    QTest::newRow("less than a pixel each, last") << QSize(2, 33) << 3 << 2 << QSize(2, 33);
    QTest::newRow("the only one") << QSize(301, 33) << 1 << 0 << QSize(301, 33);
    QTest::newRow("none") << QSize(301, 33) << 0 << 0 << QSize(0, 33);
    QTest::newRow("not there") << QSize(301, 33) << 3 << 7 << QSize(100, 33);
    QTest::newRow("in front of all") << QSize(301, 33) << 0 << -1 << QSize(0, 33);
}

void tst_TabBarRd::evenHintIsTheSharedWidthAndTheHeight()
{
    QFETCH(QSize, size);
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(QSize, expected);
    Bar bar;
    addTabs(&bar, count);
    bar.resize(size);

    bar.setTabBarType(TabBarRd::Even);

    QCOMPARE(bar.tabSizeHint(index), expected);
}

void tst_TabBarRd::evenTabsFillTheBarExactly()
{
    // GIVEN an even bar on the screen
    Bar bar;
    bar.setTabBarType(TabBarRd::Even);
    bar.resize(100, 30);
    bar.show();

    for (int count = 1; count <= 12; ++count) {
        bar.addTab(QStringLiteral("Tab %1").arg(count));
        for (int width = 90; width <= 500; width += 7) {
            // WHEN it is resized
            bar.resize(width, 30);

            // THEN its tabs lie side by side, all alike but the last, from end to end
            QCOMPARE(tabWidths(bar), evenWidths(width, count));
            int left = 0;
            for (int index = 0; index < count; ++index) {
                QCOMPARE(bar.tabRect(index).topLeft(), QPoint(left, 0));
                QCOMPARE(bar.tabRect(index).height(), 30);
                left += bar.tabRect(index).width();
            }
            QCOMPARE(left, width);
        }
    }
}

void tst_TabBarRd::evenTabsFollowInsertionAndRemoval()
{
    Bar bar;
    bar.setTabBarType(TabBarRd::Even);
    bar.resize(301, 30);
    addTabs(&bar, 2);
    bar.show();
    QCOMPARE(tabWidths(bar), QVector<int>({150, 151}));

    bar.insertTab(0, QStringLiteral("First"));
    QCOMPARE(tabWidths(bar), QVector<int>({100, 100, 101}));

    bar.removeTab(2);
    QCOMPARE(tabWidths(bar), QVector<int>({150, 151}));
}

void tst_TabBarRd::evenTakesEffectAtOnce_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::newRow("on the screen") << true;
    QTest::newRow("not yet shown") << false;
}

void tst_TabBarRd::evenTakesEffectAtOnce()
{
    QFETCH(bool, isShown);

    // GIVEN a bar that is laid out
    Bar bar;
    addTabs(&bar, 3);
    bar.resize(301, 30);
    bar.setVisible(isShown);
    QVERIFY(tabWidths(bar) != evenWidths(301, 3));

    // WHEN it becomes even
    bar.setTabBarType(TabBarRd::Even);

    // THEN its tabs are
    QCOMPARE(bar.getTabBarType(), TabBarRd::Even);
    QCOMPARE(tabWidths(bar), QVector<int>({100, 100, 101}));
}

void tst_TabBarRd::normalTakesEffectAtOnce()
{
    Bar bar;
    addTabs(&bar, 3);
    bar.resize(301, 30);
    bar.show();
    const QVector<int> before = tabWidths(bar);
    bar.setTabBarType(TabBarRd::Even);
    QVERIFY(tabWidths(bar) != before);

    bar.setTabBarType(TabBarRd::Normal);

    QCOMPARE(tabWidths(bar), before);
}

void tst_TabBarRd::sameTypeAgainChangesNothing()
{
    Bar bar;
    addTabs(&bar, 3);
    bar.resize(301, 30);
    bar.show();
    bar.setTabBarType(TabBarRd::Even);
    QApplication::processEvents();
    bar.painted = QRegion();

    bar.setTabBarType(TabBarRd::Even);
    QApplication::processEvents();

    QVERIFY(bar.painted.isEmpty());
    QCOMPARE(tabWidths(bar), QVector<int>({100, 100, 101}));
}

void tst_TabBarRd::widthsAreThoseOfTheBar()
{
    Bar bar;
    addTabs(&bar, 1);

    bar.setTabMinWidth(150);
    bar.setTabMaxWidth(250);

    QCOMPARE(bar.getTabMinWidth(), 150);
    QCOMPARE(bar.getTabMaxWidth(), 250);
    QCOMPARE(bar.minimumWidth(), 150);
    QCOMPARE(bar.maximumWidth(), 250);
    bar.resize(50, 30);
    QCOMPARE(bar.width(), 150);
    bar.resize(500, 30);
    QCOMPARE(bar.width(), 250);
}

void tst_TabBarRd::negativeWidthIsPassedOn()
{
    Bar bar;
    bar.setTabMinWidth(150);
    bar.setTabMaxWidth(250);

    m_guard->sentry().expect(QtWarningMsg, QRegularExpression(QStringLiteral("Negative sizes \\(-1,")));
    bar.setTabMinWidth(-1);
    m_guard->sentry().expect(QtWarningMsg, QRegularExpression(QStringLiteral("Negative sizes \\(-2,")));
    bar.setTabMaxWidth(-2);

    QCOMPARE(bar.getTabMinWidth(), -1);
    QCOMPARE(bar.getTabMaxWidth(), -2);
    QCOMPARE(bar.minimumWidth(), 0);
    QCOMPARE(bar.maximumWidth(), 0);
}

void tst_TabBarRd::normalGivesTheWidthBackToALayout()
{
    // GIVEN an even bar in a layout that is wider than its tabs need
    QWidget window;
    auto *bar = new Bar;
    bar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    addTabs(bar, 2);
    auto *layout = new QHBoxLayout(&window);
    layout->addWidget(bar);
    layout->addStretch();
    window.resize(600, 60);
    window.show();
    const int natural = bar->width();
    bar->setTabBarType(TabBarRd::Even);
    bar->setTabMinWidth(natural + 200);
    QTRY_COMPARE(bar->width(), natural + 200);
    bar->setTabMinWidth(0);
    QApplication::processEvents();
    QCOMPARE(bar->width(), natural + 200);

    // WHEN it becomes normal, THEN it is as wide as before
    bar->setTabBarType(TabBarRd::Normal);
    QTRY_COMPARE(bar->width(), natural);
}

void tst_TabBarRd::changeOfTypeRepaintsAll()
{
    Bar bar;
    addTabs(&bar, 3);
    bar.resize(300, 30);
    bar.show();
    QTRY_VERIFY(!bar.painted.isEmpty());
    QApplication::processEvents();
    bar.painted = QRegion();

    bar.setTabBarType(TabBarRd::Even);

    QTRY_COMPARE(bar.painted.boundingRect(), bar.rect());
}

void tst_TabBarRd::resizeRepaintsAll()
{
    // GIVEN a bar on the screen of which Qt would repaint only what becomes visible
    QWidget window;
    window.resize(400, 60);
    Bar bar(&window);
    addTabs(&bar, 3);
    bar.setAttribute(Qt::WA_StaticContents);
    bar.setAttribute(Qt::WA_OpaquePaintEvent);
    bar.resize(300, 30);
    window.show();
    QTRY_VERIFY(!bar.painted.isEmpty());
    QApplication::processEvents();
    bar.painted = QRegion();

    // WHEN it grows
    bar.resize(310, 30);

    // THEN all of it is painted
    QTRY_COMPARE(bar.painted.boundingRect(), bar.rect());
}

void tst_TabBarRd::removalLetsTheDraggedTabGo_data()
{
    QTest::addColumn<int>("from"); // of three tabs
    QTest::addColumn<int>("to");
    QTest::addColumn<QVector<int>>("removed");
    QTest::newRow("the first") << 2 << 1 << QVector<int>({0});
    QTest::newRow("the dragged one") << 2 << 1 << QVector<int>({1});
    QTest::newRow("the first two") << 2 << 1 << QVector<int>({0, 0});
    QTest::newRow("the last two") << 2 << 1 << QVector<int>({2, 1});
    QTest::newRow("all") << 2 << 1 << QVector<int>({0, 0, 0});
    QTest::newRow("one before the last, which is dragged") << 1 << 2 << QVector<int>({0});
    QTest::newRow("the last, which is dragged") << 1 << 2 << QVector<int>({2});
}

void tst_TabBarRd::removalLetsTheDraggedTabGo()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QVector<int>, removed);

    // GIVEN a tab that has just passed another one, which is still on its way
    Bar bar;
    addTabs(&bar, 3);
    bar.setMovable(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const QPoint end = bar.tabRect(to).center();
    drag(&bar, from, to);
    QCOMPARE(bar.tabText(to), QStringLiteral("Tab").repeated(from + 1));
    QStringList left = tabTexts(bar);
    for (const int index : removed)
        left.removeAt(index);

    // WHEN tabs are removed
    for (const int index : removed)
        bar.removeTab(index);

    // THEN what is left is painted, and moving on drags nothing
    bar.painted = QRegion();
    bar.repaint();
    QVERIFY(!bar.painted.isEmpty());
    QVERIFY(!showsDraggedTab(bar));
    dragOn(&bar, bar.rect().bottomRight() * 2);
    QCOMPARE(tabTexts(bar), left);
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, end);

    // AND a tab can be chosen
    for (int index = 0; index < bar.count(); ++index) {
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(index).center());
        QCOMPARE(bar.currentIndex(), index);
    }
}

void tst_TabBarRd::draggedTabMayBeHidden_data()
{
    QTest::addColumn<QVector<int>>("hidden"); // of three tabs
    QTest::newRow("it alone") << QVector<int>({1});
    QTest::newRow("and those behind it") << QVector<int>({1, 2});
    QTest::newRow("with all others") << QVector<int>({0, 1, 2});
}

// QTabBar itself divides by the width that the tab no longer has.
void tst_TabBarRd::draggedTabMayBeHidden()
{
    QFETCH(QVector<int>, hidden);

    // GIVEN a tab that has just passed another one
    Bar bar;
    addTabs(&bar, 3);
    bar.setMovable(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    drag(&bar, 0, 1);
    QCOMPARE(bar.tabText(1), QStringLiteral("Tab"));
    QVERIFY(showsDraggedTab(bar));
    const QStringList texts = tabTexts(bar);

    // WHEN it is hidden and then let go
    for (const int index : hidden)
        bar.setTabVisible(index, false);
    bar.repaint();
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, bar.rect().center());

    // THEN a tab that can be seen is current, and each of them can be chosen
    QCOMPARE(bar.isTabVisible(bar.currentIndex()), hidden.size() < bar.count());
    QCOMPARE(showsDraggedTab(bar), hidden.size() == bar.count());
    QCOMPARE(tabTexts(bar), texts);
    if (hidden.size() == bar.count())
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.rect().center()); // on none
    for (const int index : hidden)
        bar.setTabVisible(index, true);
    for (int index = 0; index < bar.count(); ++index) {
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(index).center());
        QCOMPARE(bar.currentIndex(), index);
    }
    QVERIFY(!showsDraggedTab(bar));
}

void tst_TabBarRd::hiddenTabMayTakeThePlaceOfTheDragged()
{
    // GIVEN a dragged tab with a hidden one behind it
    Bar bar;
    addTabs(&bar, 4);
    bar.setTabVisible(2, false);
    bar.setMovable(true);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    drag(&bar, 0, 1);
    QCOMPARE(bar.tabText(1), QStringLiteral("Tab"));

    // WHEN it is removed
    bar.removeTab(1);
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, bar.rect().center());

    // THEN nothing is left of the drag
    QVERIFY(!showsDraggedTab(bar));
    QVERIFY(bar.isTabVisible(bar.currentIndex()));
    for (const int index : {0, 2}) {
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(index).center());
        QCOMPARE(bar.currentIndex(), index);
    }
}

QTEST_MAIN(tst_TabBarRd)

#include "tst_tabbarrd.moc"
