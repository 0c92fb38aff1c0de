// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/managedpanel.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTest>
#include <limits>
#include <optional>
#include <tarnwidgets/framelesshelper.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessHelper;

/* QApplication sends a hover ahead of each mouse move; this is the mouse move by itself. */
static void moveAlone(FramelessHelper &helper, Panel &panel, const QPointF &global)
{
    const QPointF local = global - toGlobal(&panel, QPointF());
    QMouseEvent event(QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(helper.eventFilter(&panel, &event));
}

/* Whether the cursor shows, at each place of a row through the widget, what the place on the screen asks for.
 */
static void checkHoverAlongARow(QWidget &widget)
{
    const QRect frame = widget.frameGeometry();
    int inZone = 0;
    int outside = 0;
    for (int x = -200; x < 400; ++x) {
        const QPoint place(x, 50);
        const QPoint global = widget.mapToGlobal(place);
        const bool isOnLeft = frame.x() <= global.x() && global.x() <= frame.x() + 5;
        const bool isOnRight =
            frame.x() + frame.width() - 5 <= global.x() && global.x() <= frame.x() + frame.width();
        hoverMove(&widget, place);
        QCOMPARE(hasOwnCursor(widget), isOnLeft || isOnRight);
        ++(isOnLeft || isOnRight ? inZone : outside);
    }
    QCOMPARE(inZone, 12);
    QVERIFY(outside > 0);
}

class tst_FramelessHelperDrag : public QObject
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

    // The cursor
    void cursorShowsTheZone_data();
    void cursorShowsTheZone();
    void zonesCrossTheCoordinateOrigin_data();
    void zonesCrossTheCoordinateOrigin();
    void borderWiderThanTheWidgetLeavesNoMiddle_data();
    void borderWiderThanTheWidgetLeavesNoMiddle();
    void zonesAreThoseOfTheFrameNotOfTheContents();
    void hoverOverAChildCountsOnTheScreen();
    void hoverOverAnEmbeddedWidgetCountsOnTheScreen();
    void cursorGoesBackWhenThePointerComesOffTheBorder();
    void cursorOfTheApplicationStaysOffTheBorder();
    void leaveTakesEveryCursorAway();
    void leaveWithTheButtonDownKeepsTheCursor();
    void leaveDoesNotForgetThatACursorWasSet();
    void fullScreenAndMaximisedShowNoResizeCursor_data();
    void fullScreenAndMaximisedShowNoResizeCursor();
    void widgetThatIsNotResizableShowsNoResizeCursor();
    void mouseMoveDuringADragLeavesTheCursor();
    void hoverDuringADragUpdatesTheCursor();

    // Moving
    void titleZoneReachesDownToTheTitleHeight_data();
    void titleZoneReachesDownToTheTitleHeight();
    void titleIsDecidedByTheLocalAndTheEdgeByTheGlobalPosition();
    void movingKeepsThePressedPointUnderTheCursor();
    void movingIsNotHeldBackByTheScreen();
    void movingADecoratedWindowKeepsItsFrameUnderTheCursor();
    void maximisedAndFullScreenWidgetsMove_data();
    void maximisedAndFullScreenWidgetsMove();
    void dragLastsFromTheLeftPressToTheLeftRelease();
    void leftButtonCountsWhateverElseIsHeld_data();
    void leftButtonCountsWhateverElseIsHeld();
    void movableIsReadAtEachMove();
    void pressOutsideTitleAndBorderDoesNothing();
    void edgeInTheTitleZoneMovesWhatIsNotResizable();

    // Resizing
    void pressedSidesFollowTheCursor_data();
    void pressedSidesFollowTheCursor();
    void pressedZoneStaysForTheWholeDrag();
    void cornerWinsOverSideAndLeftAndTopWinOverRightAndBottom_data();
    void cornerWinsOverSideAndLeftAndTopWinOverRightAndBottom();
    void sideGoesBackWhenTheMinimumIsReached_data();
    void sideGoesBackWhenTheMinimumIsReached();
    void sideGoesBackToWhereItWasBeforeThisMove();
    void maximumSizeDoesNotHoldTheSideBack();
    void minimumIsTheOneThatWasSetAndNotTheHint();
    void invertedRectangleIsDropped_data();
    void invertedRectangleIsDropped();
    void resizableIsReadAtEachMove();
    void whatIsNotMovableIsResizedAllTheSame();
    void resizingADecoratedWindowBeginsAtItsFrame();
    void maximisedAndFullScreenWidgetsResize_data();
    void maximisedAndFullScreenWidgetsResize();

    // Fractions of a pixel
    void fractionsAreRoundedInTheTitleZone_data();
    void fractionsAreRoundedInTheTitleZone();
    void fractionsAreRoundedInTheBorderZone_data();
    void fractionsAreRoundedInTheBorderZone();
    void fractionsAreRoundedWhileDragging();

private:
    std::optional<FunctionGuard> m_guard;
};

static void addZoneRows(const char *name, const QPoint &point, Qt::CursorShape shape)
{
    QTest::addRow("%s, by a hover", name) << point << shape << true;
    QTest::addRow("%s, by a mouse move", name) << point << shape << false;
}

void tst_FramelessHelperDrag::cursorShowsTheZone_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::addColumn<bool>("byHover");

    addZoneRows("left zone, first pixel", {100, 275}, Qt::SizeHorCursor);
    addZoneRows("left zone, last pixel", {105, 275}, Qt::SizeHorCursor);
    addZoneRows("one past the left zone", {106, 275}, Qt::ArrowCursor);
    addZoneRows("one before the left zone", {99, 275}, Qt::ArrowCursor);
    addZoneRows("right zone, first pixel", {295, 275}, Qt::SizeHorCursor);
    addZoneRows("right zone, one pixel past the frame", {300, 275}, Qt::SizeHorCursor);
    addZoneRows("one before the right zone", {294, 275}, Qt::ArrowCursor);
    addZoneRows("one past the right zone", {301, 275}, Qt::ArrowCursor);
    addZoneRows("top zone, first pixel", {200, 200}, Qt::SizeVerCursor);
    addZoneRows("top zone, last pixel", {200, 205}, Qt::SizeVerCursor);
    addZoneRows("one past the top zone", {200, 206}, Qt::ArrowCursor);
    addZoneRows("one before the top zone", {200, 199}, Qt::ArrowCursor);
    addZoneRows("bottom zone, first pixel", {200, 345}, Qt::SizeVerCursor);
    addZoneRows("bottom zone, one pixel past the frame", {200, 350}, Qt::SizeVerCursor);
    addZoneRows("one before the bottom zone", {200, 344}, Qt::ArrowCursor);
    addZoneRows("one past the bottom zone", {200, 351}, Qt::ArrowCursor);
    addZoneRows("top-left corner, innermost", {105, 205}, Qt::SizeFDiagCursor);
    addZoneRows("bottom-right corner, outermost", {300, 350}, Qt::SizeFDiagCursor);
    addZoneRows("top-right corner, innermost", {295, 205}, Qt::SizeBDiagCursor);
    addZoneRows("bottom-left corner, innermost", {105, 345}, Qt::SizeBDiagCursor);
    addZoneRows("left column far below the widget", {102, 9000}, Qt::SizeHorCursor);
    addZoneRows("right column far above the widget", {298, -9000}, Qt::SizeHorCursor);
    addZoneRows("top row far left of the widget", {-9000, 202}, Qt::SizeVerCursor);
    addZoneRows("bottom row far right of the widget", {9000, 348}, Qt::SizeVerCursor);
    addZoneRows("middle", Middle, Qt::ArrowCursor);
}

void tst_FramelessHelperDrag::cursorShowsTheZone()
{
    QFETCH(QPoint, point);
    QFETCH(Qt::CursorShape, shape);
    QFETCH(bool, byHover);
    ManagedPanel managed;
    QCOMPARE(managed.panel.frameGeometry(), Frame);
    QVERIFY(!hasOwnCursor(managed.panel));

    if (byHover)
        hoverMove(&managed.panel, local(point));
    else
        moveAlone(managed.helper, managed.panel, point);

    QCOMPARE(managed.panel.cursor().shape(), shape);
    QCOMPARE(hasOwnCursor(managed.panel), shape != Qt::ArrowCursor);
}

void tst_FramelessHelperDrag::zonesCrossTheCoordinateOrigin_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("left zone, first pixel") << QPoint(-2, 40) << Qt::SizeHorCursor;
    QTest::newRow("left zone, at the origin") << QPoint(0, 40) << Qt::SizeHorCursor;
    QTest::newRow("left zone, last pixel") << QPoint(3, 40) << Qt::SizeHorCursor;
    QTest::newRow("one past the left zone") << QPoint(4, 40) << Qt::ArrowCursor;
    QTest::newRow("one before the left zone") << QPoint(-3, 40) << Qt::ArrowCursor;
    QTest::newRow("top zone, first pixel") << QPoint(50, -60) << Qt::SizeVerCursor;
    QTest::newRow("top zone, last pixel") << QPoint(50, -55) << Qt::SizeVerCursor;
    QTest::newRow("one past the top zone") << QPoint(50, -54) << Qt::ArrowCursor;
    QTest::newRow("bottom-right corner") << QPoint(98, 90) << Qt::SizeFDiagCursor;
    QTest::newRow("top-left corner") << QPoint(-1, -56) << Qt::SizeFDiagCursor;
}

void tst_FramelessHelperDrag::zonesCrossTheCoordinateOrigin()
{
    QFETCH(QPoint, point);
    QFETCH(Qt::CursorShape, shape);
    ManagedPanel managed;
    managed.panel.setGeometry(-2, -60, 100, 150);
    QCOMPARE(managed.panel.frameGeometry(), QRect(-2, -60, 100, 150));

    moveAlone(managed.helper, managed.panel, point);

    QCOMPARE(managed.panel.cursor().shape(), shape);
}

void tst_FramelessHelperDrag::borderWiderThanTheWidgetLeavesNoMiddle_data()
{
    QTest::addColumn<unsigned int>("width");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<Qt::CursorShape>("shape");
    constexpr unsigned int Huge = std::numeric_limits<unsigned int>::max();
    constexpr unsigned int HalfHuge = Huge / 2 + 1; // negative if taken for an int

    QTest::newRow("as wide as the widget, in the middle") << 200u << Middle << Qt::SizeFDiagCursor;
    QTest::newRow("as wide as the widget, one left of it") << 200u << QPoint(99, 0) << Qt::ArrowCursor;
    QTest::newRow("the largest, in the middle") << Huge << Middle << Qt::SizeFDiagCursor;
    QTest::newRow("the largest, far to the upper left")
        << Huge << QPoint(-9000, -9000) << Qt::SizeFDiagCursor;
    QTest::newRow("the largest, far to the lower left") << Huge << QPoint(-9000, 9000) << Qt::SizeBDiagCursor;
    QTest::newRow("the largest, far to the upper right")
        << Huge << QPoint(9000, -9000) << Qt::SizeBDiagCursor;
    QTest::newRow("half the largest, in the middle") << HalfHuge << Middle << Qt::SizeFDiagCursor;
}

void tst_FramelessHelperDrag::borderWiderThanTheWidgetLeavesNoMiddle()
{
    QFETCH(unsigned int, width);
    QFETCH(QPoint, point);
    QFETCH(Qt::CursorShape, shape);
    ManagedPanel managed;

    managed.helper.setBorderWidth(width);
    QCOMPARE(managed.helper.borderWidth(), width);
    moveAlone(managed.helper, managed.panel, point);

    QCOMPARE(managed.panel.cursor().shape(), shape);
}

void tst_FramelessHelperDrag::zonesAreThoseOfTheFrameNotOfTheContents()
{
    // GIVEN a window with a platform frame around it
    Panel panel(Frame, Qt::Window);
    QTRY_VERIFY(panel.frameGeometry() != panel.geometry());
    const QRect frame = panel.frameGeometry();
    QVERIFY(frame.x() < panel.x() || frame.x() < panel.geometry().x());
    FramelessHelper helper;
    helper.activateOn(&panel);

    // WHEN the pointer is on the frame's last left-zone column, then one further in
    moveAlone(helper, panel, QPoint(frame.x() + 5, frame.center().y()));
    const Qt::CursorShape inZone = panel.cursor().shape();
    moveAlone(helper, panel, QPoint(frame.x() + 6, frame.center().y()));

    // THEN only the first is in the zone
    QCOMPARE(inZone, Qt::SizeHorCursor);
    QCOMPARE(panel.cursor().shape(), Qt::ArrowCursor);

    // AND a hover, whose position counts from the contents, is measured against the frame too
    const QPoint lastColumn = QPoint(frame.x() + 5, frame.center().y()) - panel.geometry().topLeft();
    hoverMove(&panel, lastColumn);
    QCOMPARE(panel.cursor().shape(), Qt::SizeHorCursor);
    hoverMove(&panel, lastColumn + QPoint(1, 0));
    QCOMPARE(panel.cursor().shape(), Qt::ArrowCursor);
}

void tst_FramelessHelperDrag::hoverOverAChildCountsOnTheScreen()
{
    // GIVEN a managed widget that is no window: its frame counts from its parent
    Panel parent(Frame);
    QWidget child(&parent);
    child.setGeometry(20, 30, 100, 100);
    child.show();
    FramelessHelper helper;
    helper.activateOn(&child);
    QVERIFY(child.mapToGlobal(QPoint()) != child.frameGeometry().topLeft());

    checkHoverAlongARow(child);
}

void tst_FramelessHelperDrag::hoverOverAnEmbeddedWidgetCountsOnTheScreen()
{
    // GIVEN a managed widget in a graphics view: its frame counts from the scene
    QGraphicsScene scene(0, 0, 180, 130);
    auto *widget = new QWidget;
    widget->setGeometry(40, 10, 100, 100);
    scene.addWidget(widget);
    QGraphicsView view(&scene);
    view.setGeometry(Frame);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    FramelessHelper helper;
    helper.activateOn(widget);
    QVERIFY(widget->mapToGlobal(QPoint()) != widget->frameGeometry().topLeft());

    checkHoverAlongARow(*widget);
}

void tst_FramelessHelperDrag::cursorGoesBackWhenThePointerComesOffTheBorder()
{
    ManagedPanel managed;
    hoverMove(&managed.panel, local(OnRightEdge));
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);

    hoverMove(&managed.panel, local(OnBottomEdge));
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeVerCursor);

    hoverMove(&managed.panel, local(Middle));
    QVERIFY(!hasOwnCursor(managed.panel));
}

void tst_FramelessHelperDrag::cursorOfTheApplicationStaysOffTheBorder()
{
    ManagedPanel managed;
    managed.panel.setCursor(Qt::CrossCursor);

    hoverMove(&managed.panel, local(Middle));
    QCOMPARE(managed.panel.cursor().shape(), Qt::CrossCursor);

    // Even after a visit to the border, once the cursor of that visit is gone
    hoverMove(&managed.panel, local(OnRightEdge));
    hoverMove(&managed.panel, local(Middle));
    managed.panel.setCursor(Qt::CrossCursor);
    hoverMove(&managed.panel, local(Middle));
    QCOMPARE(managed.panel.cursor().shape(), Qt::CrossCursor);
}

void tst_FramelessHelperDrag::leaveTakesEveryCursorAway()
{
    ManagedPanel managed;
    hoverMove(&managed.panel, local(OnRightEdge));
    QVERIFY(hasOwnCursor(managed.panel));
    leave(&managed.panel);
    QVERIFY(!hasOwnCursor(managed.panel));

    // Also one of the application's that no visit to the border preceded
    ManagedPanel untouched;
    untouched.panel.setCursor(Qt::CrossCursor);
    leave(&untouched.panel);
    QVERIFY(!hasOwnCursor(untouched.panel));
}

void tst_FramelessHelperDrag::leaveWithTheButtonDownKeepsTheCursor()
{
    ManagedPanel managed;
    hoverMove(&managed.panel, local(OnRightEdge));
    mousePress(&managed.panel, OnRightEdge);

    leave(&managed.panel);
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);

    mouseRelease(&managed.panel, OnRightEdge);
    leave(&managed.panel);
    QVERIFY(!hasOwnCursor(managed.panel));
}

// That a resize cursor was set is remembered across a leave. It shows by a cursor of the application's that
// is taken away in the middle, where it would stay otherwise.
void tst_FramelessHelperDrag::leaveDoesNotForgetThatACursorWasSet()
{
    ManagedPanel managed;
    hoverMove(&managed.panel, local(OnRightEdge));
    leave(&managed.panel);
    managed.panel.setCursor(Qt::CrossCursor);

    hoverMove(&managed.panel, local(Middle));

    QVERIFY(!hasOwnCursor(managed.panel));
}

void tst_FramelessHelperDrag::fullScreenAndMaximisedShowNoResizeCursor_data()
{
    QTest::addColumn<Qt::WindowState>("state");
    QTest::newRow("maximised") << Qt::WindowMaximized;
    QTest::newRow("full screen") << Qt::WindowFullScreen;
}

void tst_FramelessHelperDrag::fullScreenAndMaximisedShowNoResizeCursor()
{
    QFETCH(Qt::WindowState, state);

    // GIVEN a widget that got a resize cursor and was then maximised
    ManagedPanel managed;
    hoverMove(&managed.panel, local(OnRightEdge));
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
    managed.panel.setWindowState(state);
    QCOMPARE(managed.panel.windowState(), Qt::WindowStates(state));

    // WHEN the pointer is on its edge, THEN the cursor is taken away
    hoverMove(&managed.panel, QPoint(0, 100));
    QVERIFY(!hasOwnCursor(managed.panel));

    // AND again, since it is not forgotten that one was set
    managed.panel.setCursor(Qt::CrossCursor);
    moveAlone(managed.helper, managed.panel, managed.panel.mapToGlobal(QPoint(0, 100)));
    QVERIFY(!hasOwnCursor(managed.panel));

    // AND a widget that never had one keeps the application's
    ManagedPanel untouched;
    untouched.panel.setWindowState(state);
    untouched.panel.setCursor(Qt::CrossCursor);
    hoverMove(&untouched.panel, QPoint(0, 100));
    QCOMPARE(untouched.panel.cursor().shape(), Qt::CrossCursor);
}

void tst_FramelessHelperDrag::widgetThatIsNotResizableShowsNoResizeCursor()
{
    ManagedPanel managed;
    managed.helper.setWidgetResizable(false);

    hoverMove(&managed.panel, local(OnRightEdge));
    QVERIFY(!hasOwnCursor(managed.panel));
    moveAlone(managed.helper, managed.panel, OnRightEdge);
    QVERIFY(!hasOwnCursor(managed.panel));

    // One that is there already stays until the pointer leaves
    managed.helper.setWidgetResizable(true);
    hoverMove(&managed.panel, local(OnRightEdge));
    managed.helper.setWidgetResizable(false);
    hoverMove(&managed.panel, local(Middle));
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
    leave(&managed.panel);
    QVERIFY(!hasOwnCursor(managed.panel));
}

void tst_FramelessHelperDrag::mouseMoveDuringADragLeavesTheCursor()
{
    ManagedPanel managed;
    mousePress(&managed.panel, Middle);

    moveAlone(managed.helper, managed.panel, OnRightEdge);
    QVERIFY(!hasOwnCursor(managed.panel));

    mouseRelease(&managed.panel, OnRightEdge);
    moveAlone(managed.helper, managed.panel, OnRightEdge);
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
}

void tst_FramelessHelperDrag::hoverDuringADragUpdatesTheCursor()
{
    ManagedPanel managed;
    mousePress(&managed.panel, Middle);

    hoverMove(&managed.panel, local(OnRightEdge));

    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
}

void tst_FramelessHelperDrag::titleZoneReachesDownToTheTitleHeight_data()
{
    QTest::addColumn<unsigned int>("height");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("moves");
    QTest::newRow("default height, last row") << 30u << 29 << true;
    QTest::newRow("default height, one below") << 30u << 30 << false;
    QTest::newRow("default height, first row off the border") << 30u << 6 << true;
    QTest::newRow("default height, above the widget") << 30u << -3 << true;
    QTest::newRow("height 24, last row") << 24u << 23 << true;
    QTest::newRow("height 24, one below") << 24u << 24 << false;
    QTest::newRow("height 1, just above the widget") << 1u << -1 << true;
    QTest::newRow("the largest height") << std::numeric_limits<unsigned int>::max() << 100 << true;
}

void tst_FramelessHelperDrag::titleZoneReachesDownToTheTitleHeight()
{
    QFETCH(unsigned int, height);
    QFETCH(int, y);
    QFETCH(bool, moves);
    ManagedPanel managed;
    managed.helper.setTitleHeight(height);
    const QPoint from = Frame.topLeft() + QPoint(100, y);

    drag(&managed.panel, from, from + QPoint(-7, 9));

    QCOMPARE(managed.panel.geometry(), moves ? Frame.translated(-7, 9) : Frame);
}

void tst_FramelessHelperDrag::titleIsDecidedByTheLocalAndTheEdgeByTheGlobalPosition()
{
    // GIVEN a press whose local position says title and whose global one says middle
    ManagedPanel managed;
    sendMouseEvent(&managed.panel, QEvent::MouseButtonPress, QPointF(0, 10), Middle, Qt::LeftButton,
                   Qt::LeftButton);

    // WHEN the mouse moves, THEN so does the widget
    mouseMove(&managed.panel, Middle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

void tst_FramelessHelperDrag::movingKeepsThePressedPointUnderTheCursor()
{
    ManagedPanel managed;
    mousePress(&managed.panel, InTitle);

    for (const QPoint &by : {QPoint(1, 0), QPoint(40, 30), QPoint(-20, 5), QPoint(0, 0)}) {
        mouseMove(&managed.panel, InTitle + by);
        QCOMPARE(managed.panel.geometry(), Frame.translated(by));
    }
}

void tst_FramelessHelperDrag::movingIsNotHeldBackByTheScreen()
{
    ManagedPanel managed;
    mousePress(&managed.panel, InTitle);

    mouseMove(&managed.panel, InTitle + QPoint(-3000, -3000));
    QCOMPARE(managed.panel.geometry(), Frame.translated(-3000, -3000));

    mouseMove(&managed.panel, InTitle + QPoint(3000, 3000));
    QCOMPARE(managed.panel.geometry(), Frame.translated(3000, 3000));
}

void tst_FramelessHelperDrag::movingADecoratedWindowKeepsItsFrameUnderTheCursor()
{
    Panel panel(Frame, Qt::Window);
    QTRY_VERIFY(panel.frameGeometry() != panel.geometry());
    const QRect frame = panel.frameGeometry();
    FramelessHelper helper;
    helper.activateOn(&panel);

    drag(&panel, InTitle, InTitle + QPoint(40, 30));

    QCOMPARE(panel.frameGeometry(), frame.translated(40, 30));
}

void tst_FramelessHelperDrag::maximisedAndFullScreenWidgetsMove_data()
{
    fullScreenAndMaximisedShowNoResizeCursor_data();
}

void tst_FramelessHelperDrag::maximisedAndFullScreenWidgetsMove()
{
    QFETCH(Qt::WindowState, state);
    ManagedPanel managed;
    managed.panel.setWindowState(state);
    QCOMPARE(managed.panel.windowState(), Qt::WindowStates(state));
    QCoreApplication::processEvents();
    const QPoint place = managed.panel.pos();
    const QPoint from = managed.panel.mapToGlobal(QPoint(100, 20));

    drag(&managed.panel, from, from + QPoint(40, 30));

    QCOMPARE(managed.panel.pos(), place + QPoint(40, 30));
}

void tst_FramelessHelperDrag::dragLastsFromTheLeftPressToTheLeftRelease()
{
    ManagedPanel managed;

    // A move without a press does nothing
    mouseMove(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);

    // Another button neither ends the drag nor shifts it
    mousePress(&managed.panel, InTitle);
    mousePress(&managed.panel, Middle, Qt::RightButton);
    mouseRelease(&managed.panel, Middle, Qt::RightButton);
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));

    // The left release does
    mouseRelease(&managed.panel, InTitle + QPoint(40, 30));
    mouseMove(&managed.panel, InTitle);
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

void tst_FramelessHelperDrag::leftButtonCountsWhateverElseIsHeld_data()
{
    QTest::addColumn<bool>("rightButton");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("the right button") << true << Qt::KeyboardModifiers();
    QTest::newRow("Shift") << false << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Control and Alt") << false << (Qt::ControlModifier | Qt::AltModifier);
}

void tst_FramelessHelperDrag::leftButtonCountsWhateverElseIsHeld()
{
    QFETCH(bool, rightButton);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ManagedPanel managed;
    const Qt::MouseButtons others = rightButton ? Qt::RightButton : Qt::NoButton;
    const auto send = [&](QEvent::Type type, const QPoint &at, Qt::MouseButton button, bool leftIsDown) {
        const Qt::MouseButtons held = leftIsDown ? others | Qt::LeftButton : others;
        QMouseEvent event(type, managed.panel.mapFromGlobal(at), at, button, held, modifiers);
        QCoreApplication::sendEvent(&managed.panel, &event);
    };

    send(QEvent::MouseButtonPress, InTitle, Qt::LeftButton, true);
    send(QEvent::MouseMove, InTitle + QPoint(40, 30), Qt::NoButton, true);
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));

    send(QEvent::MouseButtonRelease, InTitle + QPoint(40, 30), Qt::LeftButton, false);
    send(QEvent::MouseMove, InTitle, Qt::NoButton, false);
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

void tst_FramelessHelperDrag::movableIsReadAtEachMove()
{
    // GIVEN a drag that began while the widget was not movable
    ManagedPanel managed;
    managed.helper.setWidgetMovable(false);
    mousePress(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(10, 10));
    QCOMPARE(managed.panel.geometry(), Frame);

    managed.helper.setWidgetMovable(true);
    mouseMove(&managed.panel, InTitle + QPoint(20, 20));
    QCOMPARE(managed.panel.geometry(), Frame.translated(20, 20));

    managed.helper.setWidgetMovable(false);
    mouseMove(&managed.panel, InTitle + QPoint(30, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(20, 20));
}

void tst_FramelessHelperDrag::pressOutsideTitleAndBorderDoesNothing()
{
    ManagedPanel managed;
    drag(&managed.panel, Middle, Middle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);

    // Neither does one on the border below the title of a widget that is not resizable
    managed.helper.setWidgetResizable(false);
    drag(&managed.panel, OnRightEdge, OnRightEdge + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperDrag::edgeInTheTitleZoneMovesWhatIsNotResizable()
{
    ManagedPanel managed;
    managed.helper.setWidgetResizable(false);
    drag(&managed.panel, OnTopLeftCorner, OnTopLeftCorner + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));

    // Not if it is not movable either
    managed.panel.setGeometry(Frame);
    managed.helper.setWidgetMovable(false);
    drag(&managed.panel, OnTopLeftCorner, OnTopLeftCorner + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperDrag::pressedSidesFollowTheCursor_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("result");

    // The side jumps to the cursor, wherever in the zone the press was.
    const auto corners = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    QTest::newRow("left, outwards") << QPoint(104, 275) << QPoint(80, 300) << corners(80, 200, 299, 349);
    QTest::newRow("left, inwards") << QPoint(100, 275) << QPoint(150, 10) << corners(150, 200, 299, 349);
    QTest::newRow("right, outwards") << QPoint(297, 275) << QPoint(350, 10) << corners(100, 200, 350, 349);
    QTest::newRow("right, inwards") << QPoint(300, 275) << QPoint(250, 999) << corners(100, 200, 250, 349);
    QTest::newRow("top, outwards") << QPoint(200, 205) << QPoint(10, 150) << corners(100, 150, 299, 349);
    QTest::newRow("top, across the origin")
        << QPoint(200, 200) << QPoint(10, -30) << corners(100, -30, 299, 349);
    QTest::newRow("bottom, outwards") << QPoint(200, 346) << QPoint(999, 400) << corners(100, 200, 299, 400);
    QTest::newRow("top-left") << QPoint(103, 203) << QPoint(90, 240) << corners(90, 240, 299, 349);
    QTest::newRow("top-right") << QPoint(298, 203) << QPoint(320, 190) << corners(100, 190, 320, 349);
    QTest::newRow("bottom-left") << QPoint(103, 348) << QPoint(90, 360) << corners(90, 200, 299, 360);
    QTest::newRow("bottom-right") << QPoint(300, 350) << QPoint(310, 330) << corners(100, 200, 310, 330);
    QTest::newRow("not moved") << QPoint(299, 275) << QPoint(299, 275) << Frame;
}

void tst_FramelessHelperDrag::pressedSidesFollowTheCursor()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, result);
    ManagedPanel managed;
    QCOMPARE(managed.panel.frameGeometry(), Frame);

    mousePress(&managed.panel, from);
    QCOMPARE(managed.panel.geometry(), Frame); // the press alone changes nothing
    mouseMove(&managed.panel, to);
    QCOMPARE(managed.panel.geometry(), result);
    mouseRelease(&managed.panel, to);
    QCOMPARE(managed.panel.geometry(), result);
    mouseMove(&managed.panel, from);
    QCOMPARE(managed.panel.geometry(), result);
}

void tst_FramelessHelperDrag::pressedZoneStaysForTheWholeDrag()
{
    ManagedPanel managed;
    mousePress(&managed.panel, OnRightEdge);

    mouseMove(&managed.panel, QPoint(350, Frame.top())); // by now over the top-right corner
    mouseMove(&managed.panel, QPoint(360, Frame.top() - 40));

    QCOMPARE(managed.panel.geometry(), QRect(QPoint(100, 200), QPoint(360, 349)));
}

void tst_FramelessHelperDrag::cornerWinsOverSideAndLeftAndTopWinOverRightAndBottom_data()
{
    QTest::addColumn<QSize>("size"); // 10 pixels make opposite zones meet in one pixel
    QTest::addColumn<QPoint>("from"); // counted from the frame's top-left
    QTest::addColumn<QString>("moved");

    QTest::newRow("all four corners: top-left")
        << QSize(10, 10) << QPoint(5, 5) << QStringLiteral("left top");
    QTest::newRow("both left corners: top-left")
        << QSize(10, 10) << QPoint(0, 5) << QStringLiteral("left top");
    QTest::newRow("both top corners: top-left")
        << QSize(10, 10) << QPoint(5, 0) << QStringLiteral("left top");
    QTest::newRow("both bottom corners: bottom-left")
        << QSize(10, 10) << QPoint(5, 10) << QStringLiteral("left bottom");
    QTest::newRow("both right corners: top-right")
        << QSize(10, 10) << QPoint(10, 5) << QStringLiteral("right top");
    QTest::newRow("both upright sides: left") << QSize(10, 100) << QPoint(5, 50) << QStringLiteral("left");
    QTest::newRow("both level sides: top") << QSize(100, 10) << QPoint(50, 5) << QStringLiteral("top");
}

void tst_FramelessHelperDrag::cornerWinsOverSideAndLeftAndTopWinOverRightAndBottom()
{
    QFETCH(QSize, size);
    QFETCH(QPoint, from);
    QFETCH(QString, moved);

    // GIVEN a widget so small that zones of opposite sides meet
    ManagedPanel managed;
    managed.panel.setGeometry(QRect(QPoint(100, 200), size));
    const QRect frame = managed.panel.frameGeometry();
    QCOMPARE(frame, QRect(QPoint(100, 200), size));

    // WHEN each side could follow the cursor
    const bool towardsRight = moved.contains(QLatin1String("right"));
    const bool towardsBottom = moved.contains(QLatin1String("bottom"));
    const QPoint to(towardsRight ? 250 : 80, towardsBottom ? 350 : 170);
    drag(&managed.panel, frame.topLeft() + from, to);

    // THEN those of the first zone in order do
    QRect expected = frame;
    if (moved.contains(QLatin1String("left")))
        expected.setLeft(to.x());
    if (towardsRight)
        expected.setRight(to.x());
    if (moved.contains(QLatin1String("top")))
        expected.setTop(to.y());
    if (towardsBottom)
        expected.setBottom(to.y());
    QCOMPARE(managed.panel.geometry(), expected);
}

void tst_FramelessHelperDrag::sideGoesBackWhenTheMinimumIsReached_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("result");

    // The minimum is 150 x 100.
    QTest::newRow("left, to the minimum")
        << QPoint(100, 275) << QPoint(150, 275) << QRect(150, 200, 150, 150);
    QTest::newRow("left, one further") << QPoint(100, 275) << QPoint(151, 275) << Frame;
    QTest::newRow("right, to the minimum")
        << QPoint(300, 275) << QPoint(249, 275) << QRect(100, 200, 150, 150);
    QTest::newRow("right, one further") << QPoint(300, 275) << QPoint(248, 275) << Frame;
    QTest::newRow("top, to the minimum") << QPoint(200, 200) << QPoint(200, 250) << QRect(100, 250, 200, 100);
    QTest::newRow("top, one further") << QPoint(200, 200) << QPoint(200, 251) << Frame;
    QTest::newRow("bottom, to the minimum")
        << QPoint(200, 350) << QPoint(200, 299) << QRect(100, 200, 200, 100);
    QTest::newRow("bottom, one further") << QPoint(200, 350) << QPoint(200, 298) << Frame;
    QTest::newRow("top-left, both too small") << QPoint(100, 200) << QPoint(290, 340) << Frame;
    QTest::newRow("top-left, too narrow only")
        << QPoint(100, 200) << QPoint(290, 180) << QRect(100, 180, 200, 170);
    QTest::newRow("top-right, too low only")
        << QPoint(300, 200) << QPoint(319, 340) << QRect(100, 200, 220, 150);
    QTest::newRow("bottom-left, too low only")
        << QPoint(100, 350) << QPoint(80, 210) << QRect(80, 200, 220, 150);
    QTest::newRow("bottom-right, too narrow only")
        << QPoint(300, 350) << QPoint(110, 369) << QRect(100, 200, 200, 170);
}

void tst_FramelessHelperDrag::sideGoesBackWhenTheMinimumIsReached()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, result);
    ManagedPanel managed;
    managed.panel.setMinimumSize(150, 100);
    QCOMPARE(managed.panel.frameGeometry(), Frame);

    drag(&managed.panel, from, to);

    QCOMPARE(managed.panel.geometry(), result);
}

void tst_FramelessHelperDrag::sideGoesBackToWhereItWasBeforeThisMove()
{
    ManagedPanel managed;
    managed.panel.setMinimumSize(150, 100);
    mousePress(&managed.panel, QPoint(100, 200));
    mouseMove(&managed.panel, QPoint(120, 220));
    QCOMPARE(managed.panel.geometry(), QRect(QPoint(120, 220), QPoint(299, 349)));

    mouseMove(&managed.panel, QPoint(290, 340));

    QCOMPARE(managed.panel.geometry(), QRect(QPoint(120, 220), QPoint(299, 349)));
}

// QWidget itself caps the size, so a left side that goes on with the cursor pulls the widget along.
void tst_FramelessHelperDrag::maximumSizeDoesNotHoldTheSideBack()
{
    ManagedPanel managed;
    managed.panel.setMaximumSize(220, 160);
    QCOMPARE(managed.panel.geometry(), Frame);

    drag(&managed.panel, QPoint(100, 200), QPoint(0, 100));

    QCOMPARE(managed.panel.geometry(), QRect(0, 100, 220, 160));
}

/* Asks layouts for more room than it needs. */
class GreedyPanel : public Panel
{
public:
    QSize minimumSizeHint() const override
    {
        return {150, 100};
    }
};

void tst_FramelessHelperDrag::minimumIsTheOneThatWasSetAndNotTheHint()
{
    GreedyPanel panel;
    QCOMPARE(panel.minimumSize(), QSize(0, 0));
    FramelessHelper helper;
    helper.activateOn(&panel);

    drag(&panel, QPoint(100, 200), QPoint(250, 320));

    QCOMPARE(panel.geometry(), QRect(QPoint(250, 320), QPoint(299, 349)));
}

void tst_FramelessHelperDrag::invertedRectangleIsDropped_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("last"); // the furthest that leaves a pixel
    QTest::addColumn<QPoint>("tooFar");
    QTest::newRow("left past right") << QPoint(100, 275) << QPoint(299, 275) << QPoint(300, 275);
    QTest::newRow("right past left") << QPoint(300, 275) << QPoint(100, 275) << QPoint(99, 275);
    QTest::newRow("top past bottom") << QPoint(200, 200) << QPoint(200, 349) << QPoint(200, 350);
    QTest::newRow("bottom past top") << QPoint(200, 350) << QPoint(200, 200) << QPoint(200, 199);
    QTest::newRow("corner, one side only") << QPoint(100, 200) << QPoint(299, 190) << QPoint(300, 190);
    QTest::newRow("corner, one side only and by far")
        << QPoint(100, 200) << QPoint(299, 190) << QPoint(360, 190);
}

void tst_FramelessHelperDrag::invertedRectangleIsDropped()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, last);
    QFETCH(QPoint, tooFar);
    ManagedPanel managed;
    mousePress(&managed.panel, from);

    mouseMove(&managed.panel, tooFar);
    QCOMPARE(managed.panel.geometry(), Frame);

    // It is dropped for that event only
    mouseMove(&managed.panel, last);
    QVERIFY(managed.panel.geometry() != Frame);
    QVERIFY(managed.panel.width() == 1 || managed.panel.height() == 1);
}

void tst_FramelessHelperDrag::resizableIsReadAtEachMove()
{
    // GIVEN a press on an edge outside the title zone
    ManagedPanel managed;
    managed.helper.setWidgetResizable(false);
    mousePress(&managed.panel, OnRightEdge);
    mouseMove(&managed.panel, QPoint(310, 275));
    QCOMPARE(managed.panel.geometry(), Frame);

    managed.helper.setWidgetResizable(true);
    mouseMove(&managed.panel, QPoint(320, 275));
    QCOMPARE(managed.panel.geometry(), QRect(QPoint(100, 200), QPoint(320, 349)));
    mouseRelease(&managed.panel, QPoint(320, 275));

    // AND one inside it: resizing turns into moving
    managed.panel.setGeometry(Frame);
    mousePress(&managed.panel, OnTopEdge);
    mouseMove(&managed.panel, QPoint(200, 190));
    QCOMPARE(managed.panel.geometry(), QRect(QPoint(100, 190), QPoint(299, 349)));
    managed.helper.setWidgetResizable(false);
    mouseMove(&managed.panel, OnTopEdge + QPoint(40, 30));
    QCOMPARE(managed.panel.pos(), Frame.topLeft() + QPoint(40, 30));
}

void tst_FramelessHelperDrag::whatIsNotMovableIsResizedAllTheSame()
{
    ManagedPanel managed;
    managed.helper.setWidgetMovable(false);

    hoverMove(&managed.panel, local(OnRightEdge));
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
    moveAlone(managed.helper, managed.panel, OnBottomEdge);
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeVerCursor);

    drag(&managed.panel, OnRightEdge, QPoint(350, 275));
    QCOMPARE(managed.panel.geometry(), QRect(QPoint(100, 200), QPoint(350, 349)));
}

// The outer rectangle becomes the inner one, so that the window grows by its frame.
void tst_FramelessHelperDrag::resizingADecoratedWindowBeginsAtItsFrame()
{
    Panel panel(Frame, Qt::Window);
    QTRY_VERIFY(panel.frameGeometry() != panel.geometry());
    const QRect frame = panel.frameGeometry();
    FramelessHelper helper;
    helper.activateOn(&panel);

    mousePress(&panel, QPoint(frame.x() + frame.width(), frame.center().y()));
    mouseMove(&panel, QPoint(frame.right() + 40, 0));

    QCOMPARE(panel.geometry(), frame.adjusted(0, 0, 40, 0));
}

void tst_FramelessHelperDrag::maximisedAndFullScreenWidgetsResize_data()
{
    fullScreenAndMaximisedShowNoResizeCursor_data();
}

void tst_FramelessHelperDrag::maximisedAndFullScreenWidgetsResize()
{
    QFETCH(Qt::WindowState, state);
    ManagedPanel managed;
    managed.panel.setWindowState(state);
    QCOMPARE(managed.panel.windowState(), Qt::WindowStates(state));
    QCoreApplication::processEvents();
    const QRect large = managed.panel.geometry();
    QVERIFY(large != Frame);
    const QPoint onRightEdge(large.right(), large.center().y());

    drag(&managed.panel, onRightEdge, onRightEdge - QPoint(40, 0));

    QCOMPARE(managed.panel.geometry(), large.adjusted(0, 0, -40, 0));
}

void tst_FramelessHelperDrag::fractionsAreRoundedInTheTitleZone_data()
{
    QTest::addColumn<qreal>("y");
    QTest::addColumn<bool>("moves");
    QTest::newRow("just below the half") << 29.49 << true;
    QTest::newRow("the half") << 29.5 << false;
}

void tst_FramelessHelperDrag::fractionsAreRoundedInTheTitleZone()
{
    QFETCH(qreal, y);
    QFETCH(bool, moves);
    ManagedPanel managed;

    // The global position stays whole, so that the local one alone decides
    sendMouseEvent(&managed.panel, QEvent::MouseButtonPress, QPointF(100, y), Middle, Qt::LeftButton,
                   Qt::LeftButton);
    mouseMove(&managed.panel, Middle + QPoint(40, 30));

    QCOMPARE(managed.panel.geometry(), moves ? Frame.translated(40, 30) : Frame);
}

void tst_FramelessHelperDrag::fractionsAreRoundedInTheBorderZone_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<bool>("inZone");
    QTest::newRow("left zone, below the half") << QPointF(105.49, 275) << true;
    QTest::newRow("left zone, the half") << QPointF(105.5, 275) << false;
    QTest::newRow("left zone, outside, below the half") << QPointF(99.49, 275) << false;
    QTest::newRow("left zone, outside, the half") << QPointF(99.5, 275) << true;
    QTest::newRow("right zone, below the half") << QPointF(294.49, 275) << false;
    QTest::newRow("right zone, the half") << QPointF(294.5, 275) << true;
    QTest::newRow("bottom zone, outside, below the half") << QPointF(200, 350.49) << true;
    QTest::newRow("bottom zone, outside, the half") << QPointF(200, 350.5) << false;
}

void tst_FramelessHelperDrag::fractionsAreRoundedInTheBorderZone()
{
    QFETCH(QPointF, point);
    QFETCH(bool, inZone);

    ManagedPanel moved;
    moveAlone(moved.helper, moved.panel, point);
    QCOMPARE(hasOwnCursor(moved.panel), inZone);

    ManagedPanel hovered;
    hoverMove(&hovered.panel, point - Frame.topLeft());
    QCOMPARE(hasOwnCursor(hovered.panel), inZone);

    ManagedPanel pressed;
    mousePress(&pressed.panel, point);
    mouseMove(&pressed.panel, point + QPointF(7, 7));
    QCOMPARE(pressed.panel.geometry() != Frame, inZone);
}

void tst_FramelessHelperDrag::fractionsAreRoundedWhileDragging()
{
    ManagedPanel managed;

    // A press at 200.5 counts as 201, a move to 240.4 as 240
    mousePress(&managed.panel, InTitle + QPointF(0.5, -0.5));
    mouseMove(&managed.panel, InTitle + QPointF(40.4, 29.6));
    QCOMPARE(managed.panel.pos(), Frame.topLeft() + QPoint(39, 30));
    mouseRelease(&managed.panel, InTitle);

    // Halves go up on the far side of the origin, too
    managed.panel.setGeometry(Frame);
    mousePress(&managed.panel, QPoint(100, 275));
    mouseMove(&managed.panel, QPointF(-20.5, 275));
    QCOMPARE(managed.panel.geometry(), QRect(QPoint(-20, 200), QPoint(299, 349)));
}

QTEST_MAIN(tst_FramelessHelperDrag)

#include "tst_framelesshelper_drag.moc"
