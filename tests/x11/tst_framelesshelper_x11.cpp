// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"

#include <QRubberBand>
#include <QTest>
#include <QWidget>
#include <optional>
#include <tarnwidgets/framelesshelper.h>

using Tarn::Test::addZoneRows;
using Tarn::Test::Desktop;
using Tarn::Test::isOutlined;
using Tarn::Test::Zone;
using Tarn::Widgets::FramelessHelper;

namespace {

constexpr int BorderWidth = 5; // the helpers' own at the start, as is the next
constexpr int TitleHeight = 30;
const QRect Place(300, 200, 400, 300);
const QSize MinimumSize(300, 200);

/* A frameless window of the application's own, with a helper. */
class Panel : public QWidget
{
public:
    Panel()
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(Place);
        setMinimumSize(MinimumSize);
        setStyleSheet(QStringLiteral("background: #204060"));
        helper.activateOn(this);
    }

    FramelessHelper helper;
};

QPoint titlePoint()
{
    return Place.topLeft() + QPoint(200, TitleHeight / 2);
}

} // namespace

class tst_FramelessHelper_x11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void titleDragMovesTheWindow();
    void titleZoneEndsAtItsHeight_data();
    void titleZoneEndsAtItsHeight();
    void unmovableWindowStays();
    void borderDragResizes_data();
    void borderDragResizes();
    void borderZoneEndsAtItsWidth_data();
    void borderZoneEndsAtItsWidth();
    void minimumSizeHolds_data();
    void minimumSizeHolds();
    void sidesDoNotPassEachOther_data();
    void sidesDoNotPassEachOther();
    void unresizableWindowKeepsItsSize_data();
    void unresizableWindowKeepsItsSize();
    void otherButtonsDoNothing_data();
    void otherButtonsDoNothing();

    void cursorTellsTheZone_data();
    void cursorTellsTheZone();
    void shapesOfTheZonesDiffer();
    void cursorStaysAnArrowWhereNothingResizes_data();
    void cursorStaysAnArrowWhereNothingResizes();

    void rubberBandShowsTheMove();
    void rubberBandShowsTheResize_data();
    void rubberBandShowsTheResize();
    void rubberBandStopsAtTheMinimumSize_data();
    void rubberBandStopsAtTheMinimumSize();

    void windowThatIsLetGoIsDraggedNoMore();
    void helperThatDiesDuringADragEndsIt();

private:
    std::optional<Desktop> m_desktop;
};

void tst_FramelessHelper_x11::init()
{
    m_desktop.emplace();
    QVERIFY(m_desktop->isAsExpected());
}

void tst_FramelessHelper_x11::cleanup()
{
    m_desktop.reset();
}

void tst_FramelessHelper_x11::titleDragMovesTheWindow()
{
    // GIVEN a window where it asked to be
    Panel panel;
    QVERIFY(m_desktop->show(&panel));
    QCOMPARE(m_desktop->geometry(&panel), Place);

    // WHEN it is dragged by its title
    const QPoint way(120, -70);
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(titlePoint() + way));

    // THEN it is under the pointer before the button is let go, and does not follow it afterwards
    QTRY_COMPARE(m_desktop->geometry(&panel), Place.translated(way));
    QVERIFY(m_desktop->input.release());
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QCOMPARE(m_desktop->geometry(&panel), Place.translated(way));
    QCOMPARE(panel.geometry(), Place.translated(way));
}

void tst_FramelessHelper_x11::titleZoneEndsAtItsHeight_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("moves");
    QTest::newRow("last row of the title") << TitleHeight - 1 << true;
    QTest::newRow("first row below") << TitleHeight << false;
}

void tst_FramelessHelper_x11::titleZoneEndsAtItsHeight()
{
    QFETCH(int, y);
    QFETCH(bool, moves);

    // GIVEN a window
    Panel panel;
    QVERIFY(m_desktop->show(&panel));

    // WHEN a drag begins in that row
    const QPoint way(40, 60);
    const QPoint start = Place.topLeft() + QPoint(200, y);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN the window moves only from within the title
    QTRY_COMPARE(m_desktop->geometry(&panel), moves ? Place.translated(way) : Place);
}

void tst_FramelessHelper_x11::unmovableWindowStays()
{
    // GIVEN a window that is not to be moved
    Panel panel;
    panel.helper.setWidgetMovable(false);
    QVERIFY(m_desktop->show(&panel));

    // WHEN its title is dragged
    QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + QPoint(100, 100)));

    // THEN it stays
    QCOMPARE(m_desktop->geometry(&panel), Place);
}

void tst_FramelessHelper_x11::borderDragResizes_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::borderDragResizes()
{
    QFETCH(Zone, zone);

    // GIVEN a window
    Panel panel;
    QVERIFY(m_desktop->show(&panel));

    // WHEN it is dragged out by a place inside the zone
    const QPoint start = zone.grip(Place, 3);
    const QPoint end = start + zone.outwards(50) + QPoint(9, 7);
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(end));

    // THEN the sides of that zone, and no others, are at the pointer while it moves
    QTRY_COMPARE(m_desktop->geometry(&panel), zone.resized(Place, end));
    QVERIFY(m_desktop->input.release());
    QCOMPARE(m_desktop->geometry(&panel), zone.resized(Place, end));

    // WHEN it is dragged back in
    const QRect large = zone.resized(Place, end);
    const QPoint inside = zone.grip(large) + zone.outwards(-80);
    QVERIFY(m_desktop->input.drag(zone.grip(large), inside));

    // THEN the same sides follow
    QTRY_COMPARE(m_desktop->geometry(&panel), zone.resized(large, inside));
}

void tst_FramelessHelper_x11::borderZoneEndsAtItsWidth_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::borderZoneEndsAtItsWidth()
{
    QFETCH(Zone, zone);

    // GIVEN a window without a title, so that only the border is left to take hold of
    Panel panel;
    panel.helper.setWidgetMovable(false);
    QVERIFY(m_desktop->show(&panel));

    // WHEN a drag begins one pixel inwards of the zone
    const QPoint innermost = zone.innermost(Place, BorderWidth);
    const QPoint missed = innermost + zone.outwards(-1);
    QVERIFY(m_desktop->input.drag(missed, missed + zone.outwards(40)));

    // THEN nothing happens
    QCOMPARE(m_desktop->geometry(&panel), Place);

    // WHEN it begins at the zone's last pixel
    const QPoint end = innermost + zone.outwards(40);
    QVERIFY(m_desktop->input.drag(innermost, end));

    // THEN the window is resized
    QTRY_COMPARE(m_desktop->geometry(&panel), zone.resized(Place, end));
}

void tst_FramelessHelper_x11::minimumSizeHolds_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::minimumSizeHolds()
{
    QFETCH(Zone, zone);

    // GIVEN a window somewhat above its minimum size
    Panel panel;
    QVERIFY(m_desktop->show(&panel));
    QVERIFY(Place.width() > MinimumSize.width() && Place.height() > MinimumSize.height());

    // WHEN its sides are pulled, in one go, to where it would be a bit too small
    const QPoint start = zone.grip(Place);
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.moveTo(start + zone.outwards(-110)));

    // THEN they stay
    QCOMPARE(m_desktop->geometry(&panel), Place);

    // WHEN they are pulled to where it has just its minimum size in one direction
    const QPoint end = start + zone.outwards(-100);
    QVERIFY(m_desktop->input.moveTo(end));

    // THEN they follow
    QTRY_COMPARE(m_desktop->geometry(&panel), zone.resized(Place, end));
}

void tst_FramelessHelper_x11::sidesDoNotPassEachOther_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::sidesDoNotPassEachOther()
{
    QFETCH(Zone, zone);

    // GIVEN a window that may be as small as it likes
    Panel panel;
    panel.setMinimumSize(0, 0);
    QVERIFY(m_desktop->show(&panel));

    // WHEN a side is pulled to the first pixel beyond the opposite one, and further
    const bool isUpright = zone.edges & (Qt::TopEdge | Qt::BottomEdge);
    const int extent = isUpright ? Place.height() : Place.width();
    const QPoint start = zone.grip(Place);
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());
    for (const int distance : {extent, extent + 50}) {
        QVERIFY(m_desktop->input.moveTo(start + zone.outwards(-distance)));

        // THEN nothing changes
        QCOMPARE(m_desktop->geometry(&panel), Place);
    }

    // WHEN it is pulled to just before that, THEN it follows
    const QPoint end = start + zone.outwards(1 - extent);
    QVERIFY(m_desktop->input.moveTo(end));
    QTRY_COMPARE(m_desktop->geometry(&panel), zone.resized(Place, end));
}

void tst_FramelessHelper_x11::unresizableWindowKeepsItsSize_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::unresizableWindowKeepsItsSize()
{
    QFETCH(Zone, zone);

    // GIVEN a window that is not to be resized
    Panel panel;
    panel.helper.setWidgetResizable(false);
    QVERIFY(m_desktop->show(&panel));

    // WHEN it is dragged by its border
    const QPoint way = zone.outwards(50);
    const QPoint start = zone.grip(Place, 3);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN that moves it where the border is part of the title, and does nothing elsewhere
    const bool isTitle = start.y() < Place.top() + TitleHeight;
    QTRY_COMPARE(m_desktop->geometry(&panel), isTitle ? Place.translated(way) : Place);
}

void tst_FramelessHelper_x11::otherButtonsDoNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("start");
    QTest::newRow("right, on the title") << int(Qt::RightButton) << titlePoint();
    QTest::newRow("right, on the border")
        << int(Qt::RightButton) << QPoint(Place.right(), Place.center().y());
    QTest::newRow("middle, on the title") << int(Qt::MiddleButton) << titlePoint();
    QTest::newRow("middle, on the border")
        << int(Qt::MiddleButton) << QPoint(Place.right(), Place.center().y());
}

void tst_FramelessHelper_x11::otherButtonsDoNothing()
{
    QFETCH(int, button);
    QFETCH(QPoint, start);

    // GIVEN a window
    Panel panel;
    QVERIFY(m_desktop->show(&panel));

    // WHEN it is dragged with that button
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press(Qt::MouseButton(button)));
    QVERIFY(m_desktop->input.dragTo(start + QPoint(60, 30)));
    QVERIFY(m_desktop->input.release(Qt::MouseButton(button)));

    // THEN it is where it was
    QCOMPARE(m_desktop->geometry(&panel), Place);
}

void tst_FramelessHelper_x11::cursorTellsTheZone_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::cursorTellsTheZone()
{
    QFETCH(Zone, zone);

    // GIVEN a window, and what the pointer looks like as a plain arrow and as that zone's
    const QImage arrow = m_desktop->referenceCursor(Qt::ArrowCursor);
    const QImage expected = m_desktop->referenceCursor(zone.shape);
    QVERIFY(!arrow.isNull());
    QVERIFY(!expected.isNull());
    QVERIFY(expected != arrow);
    Panel panel;
    QVERIFY(m_desktop->show(&panel));

    // WHEN the pointer is moved, without a button, to the zone's outermost and innermost pixels, THEN it
    // tells so
    const QPoint innermost = zone.innermost(Place, BorderWidth);
    QVERIFY(m_desktop->input.moveTo(zone.grip(Place)));
    QTRY_COMPARE(m_desktop->server.cursor(), expected);
    QVERIFY(m_desktop->input.moveTo(Place.center()));
    QTRY_COMPARE(m_desktop->server.cursor(), arrow);
    QVERIFY(m_desktop->input.moveTo(innermost));
    QTRY_COMPARE(m_desktop->server.cursor(), expected);

    // WHEN it is moved one pixel on, THEN it is an arrow again
    QVERIFY(m_desktop->input.moveTo(innermost + zone.outwards(-1)));
    QTRY_COMPARE(m_desktop->server.cursor(), arrow);
}

void tst_FramelessHelper_x11::shapesOfTheZonesDiffer()
{
    // GIVEN what the pointer looks like in each direction
    const QVector<Qt::CursorShape> shapes = {Qt::ArrowCursor, Qt::SizeHorCursor, Qt::SizeVerCursor,
                                             Qt::SizeFDiagCursor, Qt::SizeBDiagCursor};
    QVector<QImage> seen;
    for (const Qt::CursorShape shape : shapes) {
        const QImage cursor = m_desktop->referenceCursor(shape);
        QVERIFY(!cursor.isNull());

        // THEN no two are alike, or comparing them would prove nothing
        QVERIFY(!seen.contains(cursor));
        seen.append(cursor);
    }
}

void tst_FramelessHelper_x11::cursorStaysAnArrowWhereNothingResizes_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::cursorStaysAnArrowWhereNothingResizes()
{
    QFETCH(Zone, zone);

    // GIVEN a window that is not to be resized
    const QImage arrow = m_desktop->referenceCursor(Qt::ArrowCursor);
    QVERIFY(!arrow.isNull());
    Panel panel;
    panel.helper.setWidgetResizable(false);
    QVERIFY(m_desktop->show(&panel));

    // WHEN the pointer is over its border
    QVERIFY(m_desktop->input.moveTo(zone.grip(Place, 3)));

    // THEN it promises nothing
    QCOMPARE(m_desktop->server.cursor(), arrow);
}

void tst_FramelessHelper_x11::rubberBandShowsTheMove()
{
    // GIVEN a window that is moved by an outline
    Panel panel;
    panel.helper.setRubberBandOnMove(true);
    QVERIFY(m_desktop->show(&panel));
    QVERIFY(!m_desktop->visibleRubberBand());

    // WHEN its title is pressed
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press());

    // THEN the outline is on the screen, ten pixels inside the left and top sides
    const QRect outline = Place.adjusted(10, 10, 0, 0);
    QTRY_VERIFY(m_desktop->visibleRubberBand());
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), outline);

    // WHEN it is dragged out of the window, over the bare screen
    const QPoint way(420, 310);
    const QRect end = QRect(Place.topLeft() + way, outline.size());
    const QImage before = m_desktop->server.grab(end);
    QVERIFY(m_desktop->input.dragTo(titlePoint() + way));

    // THEN the outline alone moves, and is seen there
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), end);
    QTRY_VERIFY(isOutlined(before, m_desktop->server.grab(end)));
    QCOMPARE(m_desktop->geometry(&panel), Place);

    // WHEN the button is let go
    QVERIFY(m_desktop->input.release());

    // THEN the window takes the outline's place, and the outline is gone
    QTRY_COMPARE(m_desktop->geometry(&panel), end);
    QVERIFY(!m_desktop->visibleRubberBand());
}

void tst_FramelessHelper_x11::rubberBandShowsTheResize_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::rubberBandShowsTheResize()
{
    QFETCH(Zone, zone);

    // GIVEN a window that is resized by an outline
    Panel panel;
    panel.helper.setRubberBandOnResize(true);
    QVERIFY(m_desktop->show(&panel));
    const QPoint start = zone.grip(Place, 3);
    const QPoint end = start + zone.outwards(60);
    const QRect large = zone.resized(Place, end);
    const QImage before = m_desktop->server.grab(large);

    // WHEN its border is pressed
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());

    // THEN the outline is on the screen, around the window
    QTRY_VERIFY(m_desktop->visibleRubberBand());
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), Place);

    // WHEN the border is dragged
    QVERIFY(m_desktop->input.dragTo(end));

    // THEN the outline alone follows, and is seen there
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), large);
    QTRY_VERIFY(isOutlined(before, m_desktop->server.grab(large)));
    QCOMPARE(m_desktop->geometry(&panel), Place);

    // WHEN the button is let go
    QVERIFY(m_desktop->input.release());

    // THEN the window takes its geometry, and the outline is gone
    QTRY_COMPARE(m_desktop->geometry(&panel), large);
    QVERIFY(!m_desktop->visibleRubberBand());
}

void tst_FramelessHelper_x11::rubberBandStopsAtTheMinimumSize_data()
{
    addZoneRows();
}

void tst_FramelessHelper_x11::rubberBandStopsAtTheMinimumSize()
{
    QFETCH(Zone, zone);

    // GIVEN a window that is resized by an outline
    Panel panel;
    panel.helper.setRubberBandOnResize(true);
    QVERIFY(m_desktop->show(&panel));

    // WHEN its sides are pulled, in one go, to where it would be too small
    const QPoint start = zone.grip(Place);
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());
    QTRY_VERIFY(m_desktop->visibleRubberBand());
    QVERIFY(m_desktop->input.moveTo(start + zone.outwards(-110)));

    // THEN the outline stays at the window's size, and so does the window
    QCOMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), Place);
    QVERIFY(m_desktop->input.release());
    QCOMPARE(m_desktop->geometry(&panel), Place);
}

void tst_FramelessHelper_x11::windowThatIsLetGoIsDraggedNoMore()
{
    // GIVEN a window that can be dragged
    Panel panel;
    QVERIFY(m_desktop->show(&panel));
    const QPoint way(30, 20);
    QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + way));
    QTRY_COMPARE(m_desktop->geometry(&panel), Place.translated(way));

    // WHEN the helper lets go of it
    panel.helper.removeFrom(&panel);
    QVERIFY(m_desktop->server.settle());

    // THEN neither its title nor its border has an effect any more, and it is as visible as before
    const QRect place = Place.translated(way);
    QVERIFY(m_desktop->input.drag(titlePoint() + way, titlePoint()));
    QVERIFY(m_desktop->input.drag(place.bottomRight(), place.bottomRight() + way));
    QCOMPARE(m_desktop->geometry(&panel), place);
    QVERIFY(m_desktop->isShown(&panel));
}

void tst_FramelessHelper_x11::helperThatDiesDuringADragEndsIt()
{
    // GIVEN a window in the middle of a drag
    QWidget panel(nullptr, Qt::FramelessWindowHint);
    panel.setGeometry(Place);
    std::optional<FramelessHelper> helper(std::in_place);
    helper->activateOn(&panel);
    QVERIFY(m_desktop->show(&panel));
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press());
    const QPoint way(30, 20);
    QVERIFY(m_desktop->input.dragTo(titlePoint() + way));
    QTRY_COMPARE(m_desktop->geometry(&panel), Place.translated(way));

    // WHEN the helper is deleted, and the drag goes on
    helper.reset();
    QVERIFY(m_desktop->input.dragTo(titlePoint() + 2 * way));
    QVERIFY(m_desktop->input.release());

    // THEN the window stays where it was
    QCOMPARE(m_desktop->geometry(&panel), Place.translated(way));
}

QTEST_MAIN(tst_FramelessHelper_x11)
#include "tst_framelesshelper_x11.moc"
