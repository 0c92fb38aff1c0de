// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPixmap>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QStyle>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <optional>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Test;
using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;

namespace {

QIcon redIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

/* Counts how often it comes and goes. */
class Page : public QWidget
{
public:
    explicit Page(const QString &name)
    {
        setObjectName(name);
    }

    int shows = 0;
    int hides = 0;

protected:
    void showEvent(QShowEvent *event) override
    {
        ++shows;
        QWidget::showEvent(event);
    }
    void hideEvent(QHideEvent *event) override
    {
        ++hides;
        QWidget::hideEvent(event);
    }
};

/* A widget on the screen whose pages are named like their tabs. */
struct Tabs
{
    explicit Tabs(int count = 0)
    {
        for (int index = 0; index < count; ++index)
            add(QString(QChar('A' + index)));
        widget.resize(600, 200);
        widget.show();
    }

    QPointer<Page> add(const QString &name, int index = -1)
    {
        auto *page = new Page(name);
        widget.insertTab(index, page, name);
        return page;
    }

    Page *page(int index) const
    {
        return static_cast<Page *>(widget.widget(index));
    }

    QString names() const
    {
        QString names;
        for (int index = 0; index < widget.count(); ++index)
            names += widget.tabText(index);
        return names;
    }

    /*! Whether tab i shows page i, and the current page alone is to be seen. */
    bool areInStep() const
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

    QWidget *closeButton(int index) const
    {
        const auto side = QTabBar::ButtonPosition(
            QApplication::style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, &widget));
        return widget.getTabBar()->tabButton(index, side);
    }

    /*! As the user does it, with the mouse. */
    void dragTab(int from, int to) const
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

    TarnTabWidget widget{nullptr};
};

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
    void setCurrentIndexWhileDraggingKeepsStep();
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

void tst_TarnTabWidget::addedPageBecomesCurrent()
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

void tst_TarnTabWidget::pageAddedByItsTitleLeavesTheCurrentOne()
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

void tst_TarnTabWidget::tabFollowsTheTitleOfItsPage()
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

void tst_TarnTabWidget::insertionMakesTheLastPageCurrent_data()
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

void tst_TarnTabWidget::insertionMakesTheLastPageCurrent()
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

void tst_TarnTabWidget::insertionTakesIcons()
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

void tst_TarnTabWidget::nullPageIsIgnored()
{
    Tabs tabs(2);
    tabs.widget.setCurrentIndex(0);

    QCOMPARE(tabs.widget.addTab(nullptr, QStringLiteral("X")), -1);
    QCOMPARE(tabs.widget.insertTab(0, nullptr, redIcon(), QStringLiteral("X")), -1);

    QCOMPARE(tabs.names(), QStringLiteral("AB"));
    QCOMPARE(tabs.widget.currentIndex(), 0);
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidget::pageInsertedAgainMoves()
{
    Tabs tabs(3);
    QWidget *page = tabs.widget.widget(0);

    QCOMPARE(tabs.widget.insertTab(2, page, page->objectName()), 2);

    QCOMPARE(tabs.names(), QStringLiteral("BCA"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidget::removedPageIsHiddenAndStaysAlive_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    for (int current = 0; current < 4; ++current) {
        for (int removed = 0; removed < 4; ++removed)
            QTest::addRow("%d of 4 with %d current", removed, current) << current << removed;
    }
}

void tst_TarnTabWidget::removedPageIsHiddenAndStaysAlive()
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

void tst_TarnTabWidget::lastPageCanBeRemoved()
{
    Tabs tabs(1);

    tabs.widget.removeTab(0);

    QCOMPARE(tabs.widget.count(), 0);
    QCOMPARE(tabs.widget.currentIndex(), -1);
    QVERIFY(!tabs.widget.currentWidget());
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidget::removingNoPageIsIgnored()
{
    Tabs tabs(3);

    tabs.widget.removeTab(-1);
    tabs.widget.removeTab(3);

    QCOMPARE(tabs.names(), QStringLiteral("ABC"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidget::tabWithoutPageCanBeRemoved()
{
    Tabs tabs(2);
    tabs.widget.getTabBar()->addTab(QStringLiteral("+"));
    QCOMPARE(tabs.widget.count(), 3);

    tabs.widget.removeTab(2);

    QCOMPARE(tabs.names(), QStringLiteral("AB"));
    QVERIFY(tabs.areInStep());
}

void tst_TarnTabWidget::deletedPageTakesItsTabAlong()
{
    for (int index = 0; index < 3; ++index) {
        Tabs tabs(3);

        delete tabs.widget.widget(index);

        QCOMPARE(tabs.names(), QStringLiteral("ABC").remove(index, 1));
        QVERIFY(tabs.areInStep());
    }
}

void tst_TarnTabWidget::reparentedPageTakesItsTabAlong()
{
    for (int index = 0; index < 3; ++index) {
        Tabs tabs(3);
        QWidget elsewhere;

        tabs.widget.widget(index)->setParent(&elsewhere);

        QCOMPARE(tabs.names(), QStringLiteral("ABC").remove(index, 1));
        QVERIFY(tabs.areInStep());
    }
}

void tst_TarnTabWidget::queriesAskTheStack()
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

void tst_TarnTabWidget::setCurrentIndexShowsThePage()
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

void tst_TarnTabWidget::currentIndexIsAPropertyThatNotifies()
{
    Tabs tabs(3);
    const QMetaProperty property = TarnTabWidget::staticMetaObject.property(
        TarnTabWidget::staticMetaObject.indexOfProperty("currentIndex"));
    QCOMPARE(property.read(&tabs.widget), QVariant(2));

    QVERIFY(property.write(&tabs.widget, 1));

    QCOMPARE(tabs.widget.currentIndex(), 1);
    QCOMPARE(property.notifySignal().name(), QByteArray("currentChanged"));
}

void tst_TarnTabWidget::setCurrentWidgetShowsItsTab()
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

void tst_TarnTabWidget::unknownPagesAndIndicesAreIgnored()
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

void tst_TarnTabWidget::clickOnATabShowsItsPage()
{
    Tabs tabs(3);
    QSignalSpy changes(&tabs.widget, &TarnTabWidget::currentChanged);

    QTest::mouseClick(tabs.widget.getTabBar()->getTabBar(), Qt::LeftButton, Qt::NoModifier,
                      tabs.widget.getTabBar()->tabRect(1).center());

    QCOMPARE(tabs.widget.currentIndex(), 1);
    QVERIFY(tabs.areInStep());
    QCOMPARE(changes.count(), 1);
}

void tst_TarnTabWidget::slotShowsAPageAndLeavesTheBar()
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

void tst_TarnTabWidget::listenersFindThePageOfTheTab_data()
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

void tst_TarnTabWidget::listenersFindThePageOfTheTab()
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

void tst_TarnTabWidget::onePageComesAndOneGoesPerChange_data()
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

void tst_TarnTabWidget::onePageComesAndOneGoesPerChange()
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

void tst_TarnTabWidget::draggedTabTakesItsPageAlong_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("names");
    QTest::newRow("one to the right") << 0 << 1 << "BACD";
    QTest::newRow("one to the left") << 2 << 1 << "ACBD";
    QTest::newRow("from the first place to the last") << 0 << 3 << "BCDA";
    QTest::newRow("from the last place to the first") << 3 << 0 << "DABC";
}

void tst_TarnTabWidget::draggedTabTakesItsPageAlong()
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

void tst_TarnTabWidget::draggedPageStaysOnShowAndKeepsTheFocus()
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

void tst_TarnTabWidget::setCurrentIndexWhileDraggingKeepsStep()
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
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, start + QPoint(30, 0));
}

void tst_TarnTabWidget::removalWhileDraggingKeepsStep_data()
{
    QTest::addColumn<int>("removed"); // the third of five tabs is the one that is dragged
    QTest::newRow("of the first tab") << 0;
    QTest::newRow("of the tab that makes way") << 1;
    QTest::newRow("of the tab itself") << 2;
    QTest::newRow("of the tab behind it") << 3;
    QTest::newRow("of the last tab") << 4;
    QTest::newRow("of none") << 5;
}

void tst_TarnTabWidget::removalWhileDraggingKeepsStep()
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

void tst_TarnTabWidget::everyMoveKeepsStep()
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

void tst_TarnTabWidget::anyMixtureOfChangesKeepsStep()
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

void tst_TarnTabWidget::closeRequestRemovesThePage_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < 3; ++index)
        QTest::addRow("of tab %d", index) << index;
}

void tst_TarnTabWidget::closeRequestRemovesThePage()
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

void tst_TarnTabWidget::lastPageIsNotClosedButReported()
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

void tst_TarnTabWidget::requestIsReportedAfterTheTabHasGone()
{
    Tabs tabs(3);
    tabs.widget.setTabsClosable(true);
    QString namesInSlot;
    connect(&tabs.widget, &TarnTabWidget::tabCloseRequested, this, [&] { namesInSlot = tabs.names(); });

    QTest::mouseClick(tabs.closeButton(1), Qt::LeftButton);

    QCOMPARE(namesInSlot, QStringLiteral("AC"));
}

void tst_TarnTabWidget::closeSlotIgnoresOtherIndices()
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
