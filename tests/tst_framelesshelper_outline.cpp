// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/managedpanel.h"

#include <QPointer>
#include <QRubberBand>
#include <QTest>
#include <optional>
#include <tarnwidgets/framelesshelper.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessHelper;

class tst_FramelessHelperOutline : public QObject
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

    // The outline
    void outlinesComeAndGoWithTheFlags();
    void outlineComesWithTheWidgetAndGoesWithIt();
    void outlineIsAWindowOfRectangleShape();
    void outlineOfAMoveIsInsetByTenAtLeftAndTop();
    void outlineOfAMoveShowsWhateverMayMove_data();
    void outlineOfAMoveShowsWhateverMayMove();
    void moveByOutlineIsAppliedOnRelease();
    void outlineOfAMoveNeedsThePressInTheTitle();
    void outlineOfAResizeBeginsAtTheFrame_data();
    void outlineOfAResizeBeginsAtTheFrame();
    void resizeByOutlineIsAppliedOnRelease();
    void outlineOfADecoratedWindowGoesByItsFrame_data();
    void outlineOfADecoratedWindowGoesByItsFrame();
    void outlineKeepsToTheMinimumOfTheWidget();
    void outlineIgnoresTheMaximumOfTheWidget();
    void outlineForTheOtherDragStaysAway_data();
    void outlineForTheOtherDragStaysAway();
    void hiddenOutlineAppliesNothing();
    void outlineOfAnEdgeIsAppliedAfterAMove_data();
    void outlineOfAnEdgeIsAppliedAfterAMove();
    void otherButtonsLeaveTheOutline();
    void outlineSwitchedOffDuringTheDragIsNotApplied();
    void outlineSwitchedOnDuringTheDragIsNotApplied();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessHelperOutline::outlinesComeAndGoWithTheFlags()
{
    // GIVEN two managed widgets
    ManagedPanel managed;
    Panel second;
    managed.helper.activateOn(&second);
    QVERIFY(rubberBands().isEmpty());

    // WHEN either flag is on, THEN each has one outline, and the same one all the time
    managed.helper.setRubberBandOnMove(true);
    QCOMPARE(rubberBands().size(), 2);
    const QPointer<QRubberBand> first(rubberBands().constFirst());
    managed.helper.setRubberBandOnResize(true);
    QCOMPARE(rubberBands().size(), 2);
    managed.helper.setRubberBandOnMove(false);
    QCOMPARE(rubberBands().size(), 2);
    QVERIFY(first);

    // WHEN neither is, THEN none has
    managed.helper.setRubberBandOnResize(false);
    QVERIFY(rubberBands().isEmpty());

    managed.helper.setRubberBandOnResize(true);
    QCOMPARE(rubberBands().size(), 2);
}

void tst_FramelessHelperOutline::outlineComesWithTheWidgetAndGoesWithIt()
{
    Panel panel;
    Panel second;
    {
        FramelessHelper helper;
        helper.setRubberBandOnResize(true);
        QVERIFY(rubberBands().isEmpty());

        helper.activateOn(&panel);
        helper.activateOn(&second);
        QCOMPARE(rubberBands().size(), 2);

        helper.removeFrom(&panel);
        QCOMPARE(rubberBands().size(), 1);
    }
    QVERIFY(rubberBands().isEmpty());
}

void tst_FramelessHelperOutline::outlineIsAWindowOfRectangleShape()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    QCOMPARE(band->shape(), QRubberBand::Rectangle);
    QVERIFY(!band->parentWidget());
    QVERIFY(!band->isVisible());
}

void tst_FramelessHelperOutline::outlineOfAMoveIsInsetByTenAtLeftAndTop()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);
    const QRect inset(QPoint(110, 210), QPoint(299, 349));

    mousePress(&managed.panel, InTitle);
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), inset);
    QCOMPARE(managed.panel.geometry(), Frame);

    // The widget takes the outline's place even if the mouse did not move
    mouseRelease(&managed.panel, InTitle);
    QVERIFY(!band->isVisible());
    QCOMPARE(managed.panel.geometry(), inset);
}

void tst_FramelessHelperOutline::outlineOfAMoveShowsWhateverMayMove_data()
{
    QTest::addColumn<bool>("movable");
    QTest::addColumn<bool>("maximised");
    QTest::newRow("a widget that is not movable") << false << false;
    QTest::newRow("a maximised widget") << true << true;
}

void tst_FramelessHelperOutline::outlineOfAMoveShowsWhateverMayMove()
{
    QFETCH(bool, movable);
    QFETCH(bool, maximised);
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    managed.helper.setWidgetMovable(movable);
    if (maximised)
        managed.panel.setWindowState(Qt::WindowMaximized);
    QCOMPARE(managed.panel.isMaximized(), maximised);
    QCoreApplication::processEvents();
    const QRect frame = managed.panel.frameGeometry();
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    const QPoint from = frame.topLeft() + QPoint(100, 20);
    mousePress(&managed.panel, from);
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), frame.adjusted(10, 10, 0, 0));

    mouseRelease(&managed.panel, from);
    QCOMPARE(managed.panel.geometry(), frame.adjusted(10, 10, 0, 0));
}

void tst_FramelessHelperOutline::moveByOutlineIsAppliedOnRelease()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);
    mousePress(&managed.panel, InTitle);

    // WHEN the mouse moves, THEN the outline goes where the widget would, with its own size
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(band->geometry(), QRect(140, 230, 190, 140));
    mouseMove(&managed.panel, InTitle + QPoint(-50, -20));
    QCOMPARE(band->geometry(), QRect(50, 180, 190, 140));
    QCOMPARE(managed.panel.geometry(), Frame);

    // WHEN the button is released, THEN the widget follows
    mouseRelease(&managed.panel, InTitle + QPoint(-50, -20));
    QVERIFY(!band->isVisible());
    QCOMPARE(managed.panel.geometry(), QRect(50, 180, 190, 140));

    // AND a second release applies nothing
    managed.panel.setGeometry(Frame);
    mouseRelease(&managed.panel, InTitle);
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperOutline::outlineOfAMoveNeedsThePressInTheTitle()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    managed.helper.setRubberBandOnResize(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    mousePress(&managed.panel, Middle);
    QVERIFY(!band->isVisible());
    mouseMove(&managed.panel, Middle + QPoint(40, 30));
    mouseRelease(&managed.panel, Middle + QPoint(40, 30));

    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperOutline::outlineOfAResizeBeginsAtTheFrame_data()
{
    QTest::addColumn<bool>("onMoveToo");
    QTest::addColumn<bool>("resizable");
    QTest::addColumn<QPoint>("from");
    QTest::newRow("on an edge") << false << true << OnRightEdge;
    QTest::newRow("on an edge in the title") << false << true << OnTopEdge;
    QTest::newRow("on an edge in the title, outlines for both") << true << true << OnTopEdge;
    QTest::newRow("on an edge of a widget that is not resizable") << false << false << OnRightEdge;
}

void tst_FramelessHelperOutline::outlineOfAResizeBeginsAtTheFrame()
{
    QFETCH(bool, onMoveToo);
    QFETCH(bool, resizable);
    QFETCH(QPoint, from);
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(onMoveToo);
    managed.helper.setRubberBandOnResize(true);
    managed.helper.setWidgetResizable(resizable);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    mousePress(&managed.panel, from);
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), Frame);

    mouseRelease(&managed.panel, from);
    QVERIFY(!band->isVisible());
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperOutline::resizeByOutlineIsAppliedOnRelease()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnResize(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);
    mousePress(&managed.panel, QPoint(100, 350));

    mouseMove(&managed.panel, QPoint(90, 380));
    const QRect first(QPoint(90, 200), QPoint(299, 380));
    QCOMPARE(band->geometry(), first);
    mouseMove(&managed.panel, QPoint(400, 380)); // inverted: dropped here as well
    QCOMPARE(band->geometry(), first);
    mouseMove(&managed.panel, QPoint(130, 360));
    const QRect second(QPoint(130, 200), QPoint(299, 360));
    QCOMPARE(band->geometry(), second);
    QCOMPARE(managed.panel.geometry(), Frame);

    mouseRelease(&managed.panel, QPoint(130, 360));
    QVERIFY(!band->isVisible());
    QCOMPARE(managed.panel.geometry(), second);
}

void tst_FramelessHelperOutline::outlineOfADecoratedWindowGoesByItsFrame_data()
{
    QTest::addColumn<bool>("onMove");
    QTest::newRow("of a move") << true;
    QTest::newRow("of a resize") << false;
}

void tst_FramelessHelperOutline::outlineOfADecoratedWindowGoesByItsFrame()
{
    QFETCH(bool, onMove);

    // GIVEN a window with a platform frame around it
    Panel panel(Frame, Qt::Window);
    QTRY_VERIFY(panel.frameGeometry() != panel.geometry());
    const QRect frame = panel.frameGeometry();
    FramelessHelper helper;
    helper.activateOn(&panel);
    helper.setRubberBandOnMove(onMove);
    helper.setRubberBandOnResize(!onMove);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    // WHEN it is pressed
    const QPoint from = onMove ? InTitle : QPoint(frame.x(), frame.center().y());
    mousePress(&panel, from);

    // THEN the outline lies along the frame, and the release makes the window's contents as large as that
    const QRect outline = onMove ? frame.adjusted(10, 10, 0, 0) : frame;
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), outline);
    mouseRelease(&panel, from);
    QCOMPARE(panel.geometry(), outline);
}

void tst_FramelessHelperOutline::outlineKeepsToTheMinimumOfTheWidget()
{
    ManagedPanel managed;
    managed.panel.setMinimumSize(150, 100);
    managed.helper.setRubberBandOnResize(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);
    mousePress(&managed.panel, QPoint(100, 200));
    mouseMove(&managed.panel, QPoint(120, 220));

    mouseMove(&managed.panel, QPoint(151, 251));

    QCOMPARE(band->geometry(), QRect(QPoint(120, 220), QPoint(299, 349)));
}

void tst_FramelessHelperOutline::outlineIgnoresTheMaximumOfTheWidget()
{
    ManagedPanel managed;
    managed.panel.setMaximumSize(220, 160);
    managed.helper.setRubberBandOnResize(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);
    mousePress(&managed.panel, QPoint(300, 350));

    mouseMove(&managed.panel, QPoint(399, 449));

    QCOMPARE(band->geometry(), QRect(100, 200, 300, 250));
}

void tst_FramelessHelperOutline::outlineForTheOtherDragStaysAway_data()
{
    QTest::addColumn<bool>("onMove");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QRect>("result");
    QTest::newRow("for moves, dragging an edge")
        << true << OnRightEdge << QRect(QPoint(100, 200), QPoint(340, 349));
    QTest::newRow("for moves, dragging an edge in the title")
        << true << OnTopEdge << QRect(QPoint(100, 232), QPoint(299, 349));
    QTest::newRow("for resizes, dragging the title") << false << InTitle << Frame.translated(40, 30);
}

void tst_FramelessHelperOutline::outlineForTheOtherDragStaysAway()
{
    QFETCH(bool, onMove);
    QFETCH(QPoint, from);
    QFETCH(QRect, result);
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(onMove);
    managed.helper.setRubberBandOnResize(!onMove);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    mousePress(&managed.panel, from);
    QVERIFY(!band->isVisible());
    mouseMove(&managed.panel, from + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), result);
    QVERIFY(!band->isVisible());
    mouseRelease(&managed.panel, from + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), result);
}

void tst_FramelessHelperOutline::hiddenOutlineAppliesNothing()
{
    // GIVEN outlines for moves only and a widget that is not resizable
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    managed.helper.setWidgetResizable(false);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    // WHEN it is dragged by an edge in the title zone
    mousePress(&managed.panel, OnTopEdge);
    mouseMove(&managed.panel, OnTopEdge + QPoint(40, 30));

    // THEN the outline goes along, unseen, and the widget stays
    QVERIFY(!band->isVisible());
    QCOMPARE(band->pos(), Frame.topLeft() + QPoint(40, 30));
    mouseRelease(&managed.panel, OnTopEdge + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperOutline::outlineOfAnEdgeIsAppliedAfterAMove_data()
{
    QTest::addColumn<bool>("onMoveToo");
    QTest::addColumn<QRect>("meanwhile");
    QTest::addColumn<QRect>("result");
    QTest::newRow("outlines for both: it is the outline that moves")
        << true << Frame << Frame.translated(40, 30);
    QTest::newRow("for resizes only: the widget moves, and goes back")
        << false << Frame.translated(40, 30) << Frame;
}

void tst_FramelessHelperOutline::outlineOfAnEdgeIsAppliedAfterAMove()
{
    QFETCH(bool, onMoveToo);
    QFETCH(QRect, meanwhile);
    QFETCH(QRect, result);

    // GIVEN a widget that is not resizable, but movable by an edge in the title zone
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(onMoveToo);
    managed.helper.setRubberBandOnResize(true);
    managed.helper.setWidgetResizable(false);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    // WHEN it is dragged there, THEN the outline of the press is on the screen
    mousePress(&managed.panel, OnTopEdge);
    mouseMove(&managed.panel, OnTopEdge + QPoint(40, 30));
    QVERIFY(band->isVisible());
    QCOMPARE(band->geometry(), result);
    QCOMPARE(managed.panel.geometry(), meanwhile);

    // AND the release applies it
    mouseRelease(&managed.panel, OnTopEdge + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), result);
}

void tst_FramelessHelperOutline::otherButtonsLeaveTheOutline()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    const QRubberBand *band = onlyRubberBand();
    QVERIFY(band);

    mousePress(&managed.panel, InTitle, Qt::RightButton);
    QVERIFY(!band->isVisible());

    mousePress(&managed.panel, InTitle);
    mouseRelease(&managed.panel, InTitle, Qt::RightButton);
    QVERIFY(band->isVisible());
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelperOutline::outlineSwitchedOffDuringTheDragIsNotApplied()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    mousePress(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);

    managed.helper.setRubberBandOnMove(false);
    QVERIFY(rubberBands().isEmpty());
    QCOMPARE(managed.panel.geometry(), Frame);

    // From here on the widget itself moves
    mouseMove(&managed.panel, InTitle + QPoint(50, 35));
    mouseRelease(&managed.panel, InTitle + QPoint(50, 35));
    QCOMPARE(managed.panel.geometry(), Frame.translated(50, 35));
}

void tst_FramelessHelperOutline::outlineSwitchedOnDuringTheDragIsNotApplied()
{
    ManagedPanel managed;
    mousePress(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));

    // It is not shown in mid-drag, so it goes unseen from here on
    managed.helper.setRubberBandOnMove(true);
    mouseMove(&managed.panel, InTitle + QPoint(50, 35));
    mouseRelease(&managed.panel, InTitle + QPoint(50, 35));

    QVERIFY(!rubberBands().constFirst()->isVisible());
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

QTEST_MAIN(tst_FramelessHelperOutline)

#include "tst_framelesshelper_outline.moc"
