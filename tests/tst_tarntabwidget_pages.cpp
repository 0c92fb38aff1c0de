// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The pages of the tab widget: how they come and go, which is on show, and that each stays with its tab.

#include "support/functionguard.h"
#include "support/tabpages.h"

#include <QApplication>
#include <QLineEdit>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <algorithm>
#include <optional>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Test;
using Tarn::Widgets::TarnTabWidget;

class tst_TarnTabWidgetPages : public QObject
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

    // Pages
    void addedPageBecomesCurrent();
    void pageAddedByItsTitleLeavesTheCurrentOne();
    void tabFollowsTheTitleOfItsPage();
    void insertionMakesTheLastPageCurrent_data();
    void insertionMakesTheLastPageCurrent();
    void insertionTakesIcons();
    void nullPageIsIgnored();
    void pageInsertedAgainMoves();
    void removedPageIsHiddenAndStaysAlive_data();
    void removedPageIsHiddenAndStaysAlive();
    void lastPageCanBeRemoved();
    void removingNoPageIsIgnored();
    void tabWithoutPageCanBeRemoved();
    void deletedPageTakesItsTabAlong();
    void reparentedPageTakesItsTabAlong();
    void queriesAskTheStack();

    // The current page
    void setCurrentIndexShowsThePage();
    void currentIndexIsAPropertyThatNotifies();
    void setCurrentWidgetShowsItsTab();
    void stackChangesBeforeTheBarForAPageAndAfterItForAnIndex();
    void unknownPagesAndIndicesAreIgnored();
    void clickOnATabShowsItsPage();
    void slotShowsAPageAndLeavesTheBar();
    void listenersFindThePageOfTheTab_data();
    void listenersFindThePageOfTheTab();
    void onePageComesAndOneGoesPerChange_data();
    void onePageComesAndOneGoesPerChange();

    // In step
    void draggedTabTakesItsPageAlong_data();
    void draggedTabTakesItsPageAlong();
    void draggedPageStaysOnShowAndKeepsTheFocus();
    void choiceWhileDraggingKeepsStep();
    void removalWhileDraggingKeepsStep_data();
    void removalWhileDraggingKeepsStep();
    void everyMoveKeepsStep();
    void anyMixtureOfChangesKeepsStep();

    // Closing
    void closeRequestRemovesThePage_data();
    void closeRequestRemovesThePage();
    void lastPageIsNotClosedButReported();
    void requestIsReportedAfterTheTabHasGone();
    void closeSlotIgnoresOtherIndices();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TarnTabWidgetPages::addedPageBecomesCurrent()
{
    Tabs tabs;
    auto *first = new Page(QStringLiteral("A"));
    auto *second = new Page(QStringLiteral("B"));
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    QCOMPARE(tabs.widget.addTab(first, QStringLiteral("A")), 0);
    QCOMPARE(tabs.widget.currentWidget(), first);
    QCOMPARE(tabs.widget.addTab(second, QStringLiteral("B")), 1);
    QCOMPARE(tabs.widget.currentWidget(), second);

    QVERIFY(tabs.areInStep());
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(0).constFirst().toInt(), 0);
    QCOMPARE(changes.at(1).constFirst().toInt(), 1);
}

void tst_TarnTabWidgetPages::pageAddedByItsTitleLeavesTheCurrentOne()
{
    // GIVEN an empty widget
    Tabs tabs;
    const QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    // WHEN pages are added by their titles
    for (const QString &name : {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}) {
        auto *page = new Page(name);
        page->setWindowTitle(name);
        tabs.widget.addPage(page);
    }
    tabs.widget.addPage(nullptr);

    // THEN they stand in this order, and the first is on show
    QCOMPARE(tabs.names(), QStringLiteral("ABC"));
    QCOMPARE(tabs.widget.currentIndex(), 0);
    QVERIFY(tabs.areInStep());
    QCOMPARE(changes.count(), 1);
}

void tst_TarnTabWidgetPages::tabFollowsTheTitleOfItsPage()
{
    // GIVEN a page that had no title when it was added, and another before it since
    TarnTabWidget widget;
    auto *page = new QWidget;
    widget.addPage(page);
    QCOMPARE(widget.tabText(0), QString());
    widget.insertTab(0, new QWidget, QStringLiteral("Valves"));

    // WHEN it gets a title
    page->setWindowTitle(QStringLiteral("Pumps"));

    // THEN that is the text of its tab
    QCOMPARE(widget.tabText(1), QStringLiteral("Pumps"));

    // WHEN it gets another one after its tab was removed
    widget.removeTab(1);
    page->setWindowTitle(QStringLiteral("Tanks"));

    // THEN no tab changes
    QCOMPARE(widget.count(), 1);
    QCOMPARE(widget.tabText(0), QStringLiteral("Valves"));
}

void tst_TarnTabWidgetPages::insertionMakesTheLastPageCurrent_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expectedIndex");
    QTest::addColumn<QString>("names");
    QTest::newRow("in front") << 0 << 0 << "XABC";
    QTest::newRow("in the middle") << 1 << 1 << "AXBC";
    QTest::newRow("at the end") << 3 << 3 << "ABCX";
    QTest::newRow("beyond the end") << 99 << 3 << "ABCX";
    QTest::newRow("nowhere") << -1 << 3 << "ABCX";
}

void tst_TarnTabWidgetPages::insertionMakesTheLastPageCurrent()
{
    QFETCH(int, index);
    QFETCH(int, expectedIndex);
    QFETCH(QString, names);

    for (const bool hasIcon : {false, true}) {
        Tabs tabs(3);
        tabs.widget.setCurrentIndex(0);
        auto *page = new Page(QStringLiteral("X"));

        const int inserted = hasIcon ? tabs.widget.insertTab(index, page, redIcon(), QStringLiteral("X"))
                                     : tabs.widget.insertTab(index, page, QStringLiteral("X"));

        QCOMPARE(inserted, expectedIndex);
        QCOMPARE(tabs.names(), names);
        QCOMPARE(tabs.widget.currentIndex(), 3);
        QVERIFY(tabs.areInStep());
    }
}

void tst_TarnTabWidgetPages::insertionTakesIcons()
{
    Tabs tabs;
    tabs.widget.addTab(new Page(QStringLiteral("A")), redIcon(), QStringLiteral("A"));
    tabs.widget.insertTab(0, new Page(QStringLiteral("B")), redIcon(), QStringLiteral("B"));
    tabs.widget.addTab(new Page(QStringLiteral("C")), QStringLiteral("C"));

    QVERIFY(!tabs.widget.tabIcon(0).isNull());
    QVERIFY(!tabs.widget.tabIcon(1).isNull());
    QVERIFY(tabs.widget.tabIcon(2).isNull());
    QCOMPARE(tabs.names(), QStringLiteral("BAC"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::nullPageIsIgnored()
{
    Tabs tabs(2);
    tabs.widget.setCurrentIndex(0);

    QCOMPARE(tabs.widget.addTab(nullptr, QStringLiteral("X")), -1);
    QCOMPARE(tabs.widget.insertTab(0, nullptr, redIcon(), QStringLiteral("X")), -1);

    QCOMPARE(tabs.names(), QStringLiteral("AB"));
    QCOMPARE(tabs.widget.currentIndex(), 0);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::pageInsertedAgainMoves()
{
    Tabs tabs(3);
    QWidget *page = tabs.widget.widget(0);

    QCOMPARE(tabs.widget.insertTab(2, page, page->objectName()), 2);

    QCOMPARE(tabs.names(), QStringLiteral("BCA"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::removedPageIsHiddenAndStaysAlive_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    for (int current = 0; current < 4; ++current) {
        for (int removed = 0; removed < 4; ++removed)
            QTest::addRow("%d of 4 with %d current", removed, current) << current << removed;
    }
}

void tst_TarnTabWidgetPages::removedPageIsHiddenAndStaysAlive()
{
    QFETCH(int, current);
    QFETCH(int, removed);

    // GIVEN four pages, and a plain bar set up alike
    Tabs tabs(4);
    tabs.widget.setCurrentIndex(current);
    QTabBar plain;
    for (int index = 0; index < 4; ++index)
        plain.addTab(QString());
    plain.setCurrentIndex(current);
    const QPointer<QWidget> page = tabs.widget.widget(removed);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);
    QSignalSpy plainChanges(&plain, &QTabBar::currentChanged);

    // WHEN one is removed
    tabs.widget.removeTab(removed);
    plain.removeTab(removed);

    // THEN the others are in step, the bar did what QTabBar does, and the page is hidden but there
    QVERIFY(tabs.areInStep());
    QCOMPARE(tabs.widget.count(), 3);
    QCOMPARE(tabs.widget.currentIndex(), plain.currentIndex());
    QCOMPARE(changes, plainChanges);
    QVERIFY(page);
    QVERIFY(!page->isVisible());
    QCOMPARE(page->parentWidget(), tabs.widget.getStackWidget());
    QCOMPARE(tabs.widget.indexOf(page), -1);
}

void tst_TarnTabWidgetPages::lastPageCanBeRemoved()
{
    Tabs tabs(1);

    tabs.widget.removeTab(0);

    QCOMPARE(tabs.widget.count(), 0);
    QCOMPARE(tabs.widget.currentIndex(), -1);
    QVERIFY(!tabs.widget.currentWidget());
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::removingNoPageIsIgnored()
{
    Tabs tabs(3);

    tabs.widget.removeTab(-1);
    tabs.widget.removeTab(3);

    QCOMPARE(tabs.names(), QStringLiteral("ABC"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::tabWithoutPageCanBeRemoved()
{
    Tabs tabs(2);
    tabs.widget.getTabBar()->addTab(QStringLiteral("+"));
    QCOMPARE(tabs.widget.count(), 3);

    tabs.widget.removeTab(2);

    QCOMPARE(tabs.names(), QStringLiteral("AB"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::deletedPageTakesItsTabAlong()
{
    for (int index = 0; index < 3; ++index) {
        Tabs tabs(3);

        delete tabs.widget.widget(index);

        QCOMPARE(tabs.names(), QStringLiteral("ABC").remove(index, 1));
        QVERIFY(tabs.areInStep());
    }
}

void tst_TarnTabWidgetPages::reparentedPageTakesItsTabAlong()
{
    for (int index = 0; index < 3; ++index) {
        Tabs tabs(3);
        QWidget elsewhere;

        tabs.widget.widget(index)->setParent(&elsewhere);

        QCOMPARE(tabs.names(), QStringLiteral("ABC").remove(index, 1));
        QVERIFY(tabs.areInStep());
    }
}

void tst_TarnTabWidgetPages::queriesAskTheStack()
{
    Tabs tabs(3);
    QWidget stranger;

    for (int index = 0; index < 3; ++index) {
        QCOMPARE(tabs.widget.widget(index), tabs.widget.getStackWidget()->widget(index));
        QCOMPARE(tabs.widget.indexOf(tabs.widget.widget(index)), index);
    }
    QVERIFY(!tabs.widget.widget(-1));
    QVERIFY(!tabs.widget.widget(3));
    QCOMPARE(tabs.widget.indexOf(&stranger), -1);
    QCOMPARE(tabs.widget.indexOf(nullptr), -1);
}

void tst_TarnTabWidgetPages::setCurrentIndexShowsThePage()
{
    Tabs tabs(3);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    for (const int index : {0, 2, 1}) {
        tabs.widget.setCurrentIndex(index);
        QCOMPARE(tabs.widget.currentIndex(), index);
        QVERIFY(tabs.areInStep());
    }
    QCOMPARE(changes.count(), 3);

    // What it is already is no change.
    tabs.widget.setCurrentIndex(1);
    QCOMPARE(changes.count(), 3);
}

void tst_TarnTabWidgetPages::currentIndexIsAPropertyThatNotifies()
{
    Tabs tabs(3);
    const QMetaProperty property = TarnTabWidget::staticMetaObject.property(
        TarnTabWidget::staticMetaObject.indexOfProperty("currentIndex"));
    QCOMPARE(property.read(&tabs.widget), QVariant(2));

    QVERIFY(property.write(&tabs.widget, 1));

    QCOMPARE(tabs.widget.currentIndex(), 1);
    QCOMPARE(property.notifySignal().name(), QByteArray("currentChanged"));
}

void tst_TarnTabWidgetPages::setCurrentWidgetShowsItsTab()
{
    Tabs tabs(3);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    for (const int index : {0, 2, 1}) {
        tabs.widget.setCurrentWidget(tabs.widget.widget(index));
        QCOMPARE(tabs.widget.currentIndex(), index);
        QVERIFY(tabs.areInStep());
    }
    QCOMPARE(changes.count(), 3);
}

void tst_TarnTabWidgetPages::stackChangesBeforeTheBarForAPageAndAfterItForAnIndex()
{
    // GIVEN somebody who hears of a page from the stack and asks for the current tab
    Tabs tabs(3);
    QVector<int> tabsInSlot;
    connect(tabs.widget.getStackWidget(), &QStackedWidget::currentChanged, this,
            [&] { tabsInSlot.append(tabs.widget.currentIndex()); });

    // WHEN a page is chosen, THEN the tab is still the former one
    tabs.widget.setCurrentWidget(tabs.widget.widget(0));
    QCOMPARE(tabsInSlot, QVector<int>({2}));

    // WHEN an index is chosen, THEN it is that one already
    tabs.widget.setCurrentIndex(1);
    QCOMPARE(tabsInSlot, QVector<int>({2, 1}));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::unknownPagesAndIndicesAreIgnored()
{
    Tabs tabs(3);
    QWidget stranger;

    tabs.widget.setCurrentIndex(-1);
    tabs.widget.setCurrentIndex(3);
    tabs.widget.setCurrentWidget(&stranger);
    tabs.widget.setCurrentWidget(nullptr);
    tabs.widget.slot_currentShow(3);

    QCOMPARE(tabs.widget.currentIndex(), 2);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::clickOnATabShowsItsPage()
{
    Tabs tabs(3);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    QTest::mouseClick(tabs.widget.getTabBar()->getTabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs.widget.getTabBar()->tabRect(1).center());

    QCOMPARE(tabs.widget.currentIndex(), 1);
    QVERIFY(tabs.areInStep());
    QCOMPARE(changes.count(), 1);
}

void tst_TarnTabWidgetPages::slotShowsAPageAndLeavesTheBar()
{
    Tabs tabs(3);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    tabs.widget.slot_currentShow(0);

    QCOMPARE(tabs.widget.getStackWidget()->currentIndex(), 0);
    QCOMPARE(tabs.widget.currentIndex(), 2);
    QCOMPARE(tabs.widget.currentWidget(), tabs.widget.widget(2));
    QCOMPARE(changes.count(), 0);

    // The next call puts both together again, also one that changes nothing for the bar.
    tabs.widget.setCurrentIndex(2);
    QVERIFY(tabs.areInStep());
}

using Change = void (*)(TarnTabWidget &);
Q_DECLARE_METATYPE(Change)

void tst_TarnTabWidgetPages::listenersFindThePageOfTheTab_data()
{
    QTest::addColumn<Change>("change"); // of four pages with the last one current
    QTest::newRow("another tab") << Change([](TarnTabWidget &widget) { widget.setCurrentIndex(1); });
    QTest::newRow("another page") << Change(
        [](TarnTabWidget &widget) { widget.setCurrentWidget(widget.widget(1)); });
    QTest::newRow("first removed") << Change([](TarnTabWidget &widget) { widget.removeTab(0); });
    QTest::newRow("current removed") << Change([](TarnTabWidget &widget) { widget.removeTab(3); });
    QTest::newRow("first closed") << Change([](TarnTabWidget &widget) { widget.slot_tabCloseRequested(0); });
    QTest::newRow("first deleted") << Change([](TarnTabWidget &widget) { delete widget.widget(0); });
    QTest::newRow("inserted") << Change([](TarnTabWidget &widget) {
        widget.setCurrentIndex(0);
        widget.insertTab(0, new Page(QStringLiteral("X")), QStringLiteral("X"));
    });
    QTest::newRow("current moved") << Change(
        [](TarnTabWidget &widget) { widget.getTabBar()->moveTab(3, 0); });
    QTest::newRow("moved past the current")
        << Change([](TarnTabWidget &widget) { widget.getTabBar()->moveTab(0, 3); });
}

void tst_TarnTabWidgetPages::listenersFindThePageOfTheTab()
{
    QFETCH(Change, change);
    Tabs tabs(4);
    int heard = 0;
    connect(&tabs.widget, &TarnTabWidget::currentChanged, this, [&](int index) {
        ++heard;
        QCOMPARE(index, tabs.widget.currentIndex());
        QVERIFY(tabs.areInStep());
    });

    change(tabs.widget);

    QVERIFY(heard > 0);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::onePageComesAndOneGoesPerChange_data()
{
    QTest::addColumn<Change>("change"); // of four pages with the last one current
    QTest::addColumn<int>("changes");
    QTest::newRow("another tab") << Change([](TarnTabWidget &widget) { widget.setCurrentIndex(1); }) << 1;
    QTest::newRow("another page") << Change([](TarnTabWidget &widget) {
        widget.setCurrentWidget(widget.widget(1));
    }) << 1;
    QTest::newRow("the same tab") << Change([](TarnTabWidget &widget) { widget.setCurrentIndex(3); }) << 0;
    QTest::newRow("first removed") << Change([](TarnTabWidget &widget) { widget.removeTab(0); }) << 0;
    QTest::newRow("current removed") << Change([](TarnTabWidget &widget) { widget.removeTab(3); }) << 1;
    QTest::newRow("current moved") << Change([](TarnTabWidget &widget) { widget.getTabBar()->moveTab(3, 0); })
                                   << 0;
    QTest::newRow("moved past the current")
        << Change([](TarnTabWidget &widget) { widget.getTabBar()->moveTab(0, 3); }) << 0;
}

void tst_TarnTabWidgetPages::onePageComesAndOneGoesPerChange()
{
    QFETCH(Change, change);
    QFETCH(int, changes);
    Tabs tabs(4);
    QVector<Page *> pages;
    for (int index = 0; index < 4; ++index) {
        pages.append(tabs.page(index));
        pages.last()->shows = 0;
        pages.last()->hides = 0;
    }

    change(tabs.widget);

    int shows = 0;
    int hides = 0;
    for (const Page *page : qAsConst(pages)) {
        shows += page->shows;
        hides += page->hides;
    }
    QCOMPARE(shows, changes);
    QCOMPARE(hides, changes);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::draggedTabTakesItsPageAlong_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("names");
    QTest::newRow("one to the right") << 0 << 1 << "BACD";
    QTest::newRow("one to the left") << 2 << 1 << "ACBD";
    QTest::newRow("from the first place to the last") << 0 << 3 << "BCDA";
    QTest::newRow("from the last place to the first") << 3 << 0 << "DABC";
}

void tst_TarnTabWidgetPages::draggedTabTakesItsPageAlong()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, names);

    // GIVEN movable tabs
    Tabs tabs(4);
    tabs.widget.setMovable(true);

    // WHEN the user drags one
    tabs.dragTab(from, to);

    // THEN it is where it was dragged to, current, and its page with it
    QTRY_COMPARE(tabs.names(), names);
    QCOMPARE(tabs.widget.currentIndex(), to);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::draggedPageStaysOnShowAndKeepsTheFocus()
{
    // GIVEN a page with the keyboard in one of its fields
    Tabs tabs(4);
    tabs.widget.setMovable(true);
    tabs.widget.setCurrentIndex(0);
    Page *page = tabs.page(0);
    auto *field = new QLineEdit(page);
    field->show();
    QApplication::setActiveWindow(&tabs.widget);
    field->setFocus();
    QVERIFY(field->hasFocus());
    tabs.widget.getTabBar()->getTabBar()->setFocusPolicy(Qt::NoFocus); // so that the press does not take it

    // WHEN its tab is dragged all along the bar, and back by a program
    const int hides = page->hides;
    tabs.dragTab(0, 3);
    QTRY_COMPARE(tabs.widget.indexOf(page), 3);
    tabs.widget.getTabBar()->moveTab(3, 0);
    QCOMPARE(tabs.widget.indexOf(page), 0);

    // THEN it was not hidden for a moment, and the keyboard is where it was
    QCOMPARE(page->hides, hides);
    QVERIFY(field->hasFocus());
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::choiceWhileDraggingKeepsStep()
{
    // GIVEN a tab that the user is dragging, at which time the bar keeps its current tab
    Tabs tabs(4);
    tabs.widget.setMovable(true);
    QTabBar *bar = tabs.widget.getTabBar()->getTabBar();
    const QPoint start = bar->tabRect(0).center();
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    QMouseEvent move(QEvent::MouseMove, start + QPoint(30, 0), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(bar, &move);
    const int current = tabs.widget.currentIndex();

    // WHEN a program wants another one
    tabs.widget.setCurrentIndex(3);

    // THEN the stack keeps to the bar
    QCOMPARE(tabs.widget.currentIndex(), current);
    QVERIFY(tabs.areInStep());

    // WHEN it wants the page, THEN likewise
    tabs.widget.setCurrentWidget(tabs.widget.widget(3));
    QCOMPARE(tabs.widget.currentIndex(), current);
    QVERIFY(tabs.areInStep());
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, start + QPoint(30, 0));
}

void tst_TarnTabWidgetPages::removalWhileDraggingKeepsStep_data()
{
    QTest::addColumn<int>("removed"); // the third of five tabs is the one that is dragged
    QTest::newRow("of the first tab") << 0;
    QTest::newRow("of the tab that makes way") << 1;
    QTest::newRow("of the tab itself") << 2;
    QTest::newRow("of the tab behind it") << 3;
    QTest::newRow("of the last tab") << 4;
    QTest::newRow("of none") << 5;
}

void tst_TarnTabWidgetPages::removalWhileDraggingKeepsStep()
{
    QFETCH(int, removed);

    // GIVEN a tab that is being dragged and has just passed another one, which is still on its way
    Tabs tabs(5);
    tabs.widget.setMovable(true);
    QTabBar *bar = tabs.widget.getTabBar()->getTabBar();
    const QPoint start = bar->tabRect(1).center();
    const QPoint end = bar->tabRect(2).center();
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, start);
    for (const QPoint &pos : {(start + end) / 2, end}) {
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &move);
    }
    QCOMPARE(tabs.names(), QStringLiteral("ACBDE"));
    QCOMPARE(tabs.widget.currentIndex(), 2);

    const auto pictures = [bar] { // Qt shows the dragged tab as a child of the bar
        const auto children = bar->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        return std::count_if(children.cbegin(), children.cend(),
                             [](QWidget *child) { return child->isVisible(); });
    };
    QCOMPARE(int(pictures()), 1);

    // WHEN one is removed
    tabs.widget.removeTab(removed);

    // THEN nothing is dragged any more, and the page on show is that of the tab that is selected, then and
    // later; one that is not there changes nothing
    QCOMPARE(int(pictures()), removed < 5 ? 0 : 1);
    QCOMPARE(tabs.names(), QStringLiteral("ACBDE").remove(removed, 1));
    QVERIFY(tabs.areInStep());
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, end);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidgetPages::everyMoveKeepsStep()
{
    for (int current = 0; current < 5; ++current) {
        for (int from = 0; from < 5; ++from) {
            for (int to = 0; to < 5; ++to) {
                Tabs tabs(5);
                tabs.widget.setCurrentIndex(current);
                QWidget *page = tabs.widget.currentWidget();

                tabs.widget.getTabBar()->moveTab(from, to);

                QVERIFY(tabs.areInStep());
                QCOMPARE(tabs.widget.currentWidget(), page);
                QString names = QStringLiteral("ABCDE");
                const QChar moved = names.at(from);
                QCOMPARE(tabs.names(), names.remove(from, 1).insert(to, moved));
            }
        }
    }
}

void tst_TarnTabWidgetPages::anyMixtureOfChangesKeepsStep()
{
    Tabs tabs(3);
    quint32 random = 11;
    const auto next = [&random](int bound) {
        random = random * 1664525U + 1013904223U;
        return int((random >> 16) % quint32(bound));
    };
    QStringList model({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QVector<QPointer<QWidget>> removed;
    const auto take = [&](int index) {
        removed.append(tabs.widget.widget(index));
        model.removeAt(index);
    };

    for (int round = 0; round < 2000; ++round) {
        const int index = model.isEmpty() ? -1 : next(model.size());
        const int choice = model.size() > 9 ? 3 + next(5) : next(8);
        if (choice <= 1 || index < 0) {
            const QString name = QStringLiteral("%1 ").arg(round);
            const int place = next(model.size() + 1);
            tabs.add(name, place);
            model.insert(place, name);
        } else if (choice == 2) {
            tabs.widget.setCurrentIndex(index);
            QCOMPARE(tabs.widget.currentIndex(), index);
        } else if (choice == 3) {
            take(index);
            tabs.widget.removeTab(index);
        } else if (choice == 4 && model.size() > 1) {
            take(index);
            tabs.widget.slot_tabCloseRequested(index);
        } else if (choice == 5) {
            model.removeAt(index);
            delete tabs.widget.widget(index);
        } else if (choice == 6) {
            const int to = next(model.size());
            model.move(index, to);
            tabs.widget.getTabBar()->moveTab(index, to);
        } else {
            tabs.widget.setCurrentWidget(tabs.widget.widget(index));
        }
        QCOMPARE(tabs.names(), model.join(QString()));
        QVERIFY(tabs.areInStep());
    }
    for (const QPointer<QWidget> &page : qAsConst(removed))
        QVERIFY(page && page->parentWidget() == tabs.widget.getStackWidget());
    QVERIFY(removed.size() > 100);
}

void tst_TarnTabWidgetPages::closeRequestRemovesThePage_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < 3; ++index)
        QTest::addRow("of tab %d", index) << index;
}

void tst_TarnTabWidgetPages::closeRequestRemovesThePage()
{
    QFETCH(int, index);

    // GIVEN tabs with close buttons
    Tabs tabs(3);
    tabs.widget.setTabsClosable(true);
    QVERIFY(tabs.widget.tabsClosable());
    const QPointer<QWidget> page = tabs.widget.widget(index);
    QSignalSpy requests(&tabs.widget, &TarnTabWidget::tabCloseRequested);

    // WHEN the user presses one
    QTest::mouseClick(tabs.closeButton(index), Qt::LeftButton);

    // THEN tab and page are gone, and the page is there for the caller to delete
    QCOMPARE(tabs.names(), QStringLiteral("ABC").remove(index, 1));
    QVERIFY(tabs.areInStep());
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.constFirst().constFirst().toInt(), index);
    QVERIFY(page);
    QCOMPARE(page->parentWidget(), tabs.widget.getStackWidget());
    QVERIFY(!page->isVisible());
}

void tst_TarnTabWidgetPages::lastPageIsNotClosedButReported()
{
    Tabs tabs(1);
    tabs.widget.setTabsClosable(true);
    QSignalSpy requests(&tabs.widget, &TarnTabWidget::tabCloseRequested);

    QTest::mouseClick(tabs.closeButton(0), Qt::LeftButton);

    QCOMPARE(tabs.widget.count(), 1);
    QVERIFY(tabs.areInStep());
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.constFirst().constFirst().toInt(), 0);
}

void tst_TarnTabWidgetPages::requestIsReportedAfterTheTabHasGone()
{
    Tabs tabs(3);
    tabs.widget.setTabsClosable(true);
    QString namesInSlot;
    connect(&tabs.widget, &TarnTabWidget::tabCloseRequested, this, [&] { namesInSlot = tabs.names(); });

    QTest::mouseClick(tabs.closeButton(1), Qt::LeftButton);

    QCOMPARE(namesInSlot, QStringLiteral("AC"));
}

void tst_TarnTabWidgetPages::closeSlotIgnoresOtherIndices()
{
    Tabs tabs(2);
    QSignalSpy requests(&tabs.widget, &TarnTabWidget::tabCloseRequested);

    tabs.widget.slot_tabCloseRequested(-1);
    tabs.widget.slot_tabCloseRequested(2);
    QCOMPARE(tabs.widget.count(), 2);

    tabs.widget.slot_tabCloseRequested(0);
    tabs.widget.slot_tabCloseRequested(0);
    QCOMPARE(tabs.names(), QStringLiteral("B"));
    QCOMPARE(requests.count(), 0);
}

QTEST_MAIN(tst_TarnTabWidgetPages)

#include "tst_tarntabwidget_pages.moc"
