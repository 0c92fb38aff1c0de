// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"
#include "support/managedpanel.h"

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QRubberBand>
#include <QTest>
#include <algorithm>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <tarnwidgets/framelesshelper_p.h>

using namespace Tarn::Test;
using Tarn::Widgets::CursorPosCalculator;
using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::FramelessHelperPrivate;
using Tarn::Widgets::WidgetData;

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

/* The flags that are set, in the order of their declaration. */
QString flagsOf(const CursorPosCalculator &position)
{
    QStringList set;
    const auto add = [&set](bool flag, const QString &name) {
        if (flag)
            set.append(name);
    };
    add(position.m_bOnEdges, QStringLiteral("edges"));
    add(position.m_bOnLeftEdge, QStringLiteral("left"));
    add(position.m_bOnRightEdge, QStringLiteral("right"));
    add(position.m_bOnTopEdge, QStringLiteral("top"));
    add(position.m_bOnBottomEdge, QStringLiteral("bottom"));
    add(position.m_bOnTopLeftEdge, QStringLiteral("top-left"));
    add(position.m_bOnBottomLeftEdge, QStringLiteral("bottom-left"));
    add(position.m_bOnTopRightEdge, QStringLiteral("top-right"));
    add(position.m_bOnBottomRightEdge, QStringLiteral("bottom-right"));
    return set.join(QLatin1Char(' '));
}

constexpr char AllFlags[] = "edges left right top bottom top-left bottom-left top-right bottom-right";

void handleMouse(WidgetData &data, QEvent::Type type, const QPoint &global,
                 Qt::MouseButton button = Qt::LeftButton)
{
    const QPointF inWidget = data.widget()->mapFromGlobal(global);
    QMouseEvent event(type, inWidget, inWidget, global, button, button, Qt::NoModifier);
    data.handleWidgetEvent(&event);
}

} // namespace

class tst_WidgetData : public QObject
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

    // CursorPosCalculator
    void newPositionLiesOnNoEdge();
    void borderWidthAndTitleHeightBeginAtFiveAndThirty();
    void flagsFollowTheZones_data();
    void flagsFollowTheZones();
    void resetClearsEveryFlag();
    void recalculationForgetsTheFormerPosition();

    // FramelessHelperPrivate
    void newPrivateDataHasTheDefaults();
    void privateDataOwnsItsRecords();

    // WidgetData
    void recordTurnsTrackingAndHoverOnAndRestores();
    void forgottenWidgetIsNotTouched();
    void recordHandlesTheFiveKindsOfEvents();
    void otherEventsAreNotHandled();
    void recordReadsTheFlagsOfItsHelper();
    void outlineIsMadeAndDeletedByTheFlags_data();
    void outlineIsMadeAndDeletedByTheFlags();
    void outlineExistsFromTheStart();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_WidgetData::newPositionLiesOnNoEdge()
{
    // Over memory that was not zero before
    alignas(CursorPosCalculator) unsigned char room[sizeof(CursorPosCalculator)];
    std::fill(std::begin(room), std::end(room), static_cast<unsigned char>(0xff));
    auto *position = new (room) CursorPosCalculator;

    QCOMPARE(flagsOf(*position), QString());
    position->~CursorPosCalculator();
}

void tst_WidgetData::borderWidthAndTitleHeightBeginAtFiveAndThirty()
{
    QCOMPARE(CursorPosCalculator::m_nBorderWidth, 5u);
    QCOMPARE(CursorPosCalculator::m_nTitleHeight, 30u);
    QCOMPARE(FramelessHelper().borderWidth(), 5u);
    QCOMPARE(FramelessHelper().titleHeight(), 30u);
}

void tst_WidgetData::flagsFollowTheZones_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<quint32>("border");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("flags");

    const auto row = [](const char *name, const QRect &frame, quint32 border, const QPoint &point,
                        const char *flags) {
        QTest::newRow(name) << frame << border << point << QString::fromLatin1(flags);
    };
    row("left, first", Frame, 5, {100, 275}, "edges left");
    row("left, last", Frame, 5, {105, 275}, "edges left");
    row("left, one past", Frame, 5, {106, 275}, "");
    row("left, one before", Frame, 5, {99, 275}, "");
    row("right, first", Frame, 5, {295, 275}, "edges right");
    row("right, last", Frame, 5, {300, 275}, "edges right");
    row("right, one before", Frame, 5, {294, 275}, "");
    row("right, one past", Frame, 5, {301, 275}, "");
    row("top, first", Frame, 5, {200, 200}, "edges top");
    row("top, last", Frame, 5, {200, 205}, "edges top");
    row("top, one past", Frame, 5, {200, 206}, "");
    row("top, one before", Frame, 5, {200, 199}, "");
    row("bottom, first", Frame, 5, {200, 345}, "edges bottom");
    row("bottom, last", Frame, 5, {200, 350}, "edges bottom");
    row("bottom, one before", Frame, 5, {200, 344}, "");
    row("bottom, one past", Frame, 5, {200, 351}, "");
    row("top-left corner", Frame, 5, {105, 205}, "edges left top top-left");
    row("bottom-left corner", Frame, 5, {105, 345}, "edges left bottom bottom-left");
    row("top-right corner", Frame, 5, {295, 205}, "edges right top top-right");
    row("bottom-right corner", Frame, 5, {300, 350}, "edges right bottom bottom-right");
    row("left, far below", Frame, 5, {100, Highest}, "edges left");
    row("top, far to the left", Frame, 5, {Lowest, 200}, "edges top");
    row("border of one, last", Frame, 1, {101, 275}, "edges left");
    row("border of one, one past", Frame, 1, {102, 275}, "");

    const QRect acrossOrigin(-2, -60, 100, 150);
    row("across the origin, left, first", acrossOrigin, 5, {-2, 0}, "edges left");
    row("across the origin, left, last", acrossOrigin, 5, {3, 0}, "edges left");
    row("across the origin, left, one past", acrossOrigin, 5, {4, 0}, "");
    row("across the origin, left, one before", acrossOrigin, 5, {-3, 0}, "");
    row("left of the origin, right, last", QRect(-200, 0, 195, 100), 5, {-5, 50}, "edges right");
    row("left of the origin, right, one past", QRect(-200, 0, 195, 100), 5, {-4, 50}, "");

    row("opposite zones meet", QRect(0, 0, 10, 10), 5, {5, 5}, AllFlags);
    row("upright zones meet", QRect(0, 0, 10, 100), 5, {5, 50}, "edges left right");
    row("no width, one column left", QRect(0, 0, 0, 100), 5, {0, 50}, "edges left right");
    row("largest border, inside", Frame, std::numeric_limits<quint32>::max(), Middle, AllFlags);
    row("largest border, upper left", Frame, std::numeric_limits<quint32>::max(), {99, 199},
        "edges right bottom bottom-right");
    row("largest border, lower right", Frame, std::numeric_limits<quint32>::max(), {301, 351},
        "edges left top top-left");
    row("border negative as an int, inside", Frame, 0x80000000u, Middle, AllFlags);
    row("end of the coordinates", QRect(QPoint(Highest - 99, 0), QPoint(Highest, 99)), 5, {Highest, 50},
        "edges right");
    row("begin of the coordinates", QRect(QPoint(Lowest, 0), QPoint(Lowest + 99, 99)), 5, {Lowest, 50},
        "edges left");
    row("begin of the coordinates, from their end", QRect(QPoint(Lowest, 0), QPoint(Lowest + 99, 99)), 5,
        {Highest, 50}, "");
}

void tst_WidgetData::flagsFollowTheZones()
{
    QFETCH(QRect, frame);
    QFETCH(quint32, border);
    QFETCH(QPoint, point);
    QFETCH(QString, flags);
    CursorPosCalculator::m_nBorderWidth = border;

    CursorPosCalculator position;
    position.recalculate(point, frame);

    QCOMPARE(flagsOf(position), flags);
}

void tst_WidgetData::resetClearsEveryFlag()
{
    CursorPosCalculator position;
    position.recalculate(QPoint(5, 5), QRect(0, 0, 10, 10));
    QCOMPARE(flagsOf(position), QString::fromLatin1(AllFlags));

    position.reset();

    QCOMPARE(flagsOf(position), QString());
}

void tst_WidgetData::recalculationForgetsTheFormerPosition()
{
    CursorPosCalculator position;
    position.recalculate(QPoint(5, 5), QRect(0, 0, 10, 10));
    QCOMPARE(flagsOf(position), QString::fromLatin1(AllFlags));

    position.recalculate(OnRightEdge, Frame);
    QCOMPARE(flagsOf(position), QStringLiteral("edges right"));

    position.recalculate(Middle, Frame);
    QCOMPARE(flagsOf(position), QString());
}

void tst_WidgetData::newPrivateDataHasTheDefaults()
{
    const FramelessHelperPrivate d;

    QVERIFY(d.m_widgetDataHash.isEmpty());
    QVERIFY(d.m_bWidgetMovable);
    QVERIFY(d.m_bWidgetResizable);
    QVERIFY(!d.m_bRubberBandOnResize);
    QVERIFY(!d.m_bRubberBandOnMove);
}

void tst_WidgetData::privateDataOwnsItsRecords()
{
    Panel panel;
    {
        FramelessHelperPrivate d;
        d.m_widgetDataHash.insert(&panel, new WidgetData(&d, &panel));
        QVERIFY(panel.hasMouseTracking());
    }
    QVERIFY(!panel.hasMouseTracking());
}

void tst_WidgetData::recordTurnsTrackingAndHoverOnAndRestores()
{
    Panel panel;
    const Qt::WindowFlags flags = panel.windowFlags();
    FramelessHelperPrivate d;
    {
        const WidgetData data(&d, &panel);
        QCOMPARE(data.widget(), &panel);
        QVERIFY(panel.hasMouseTracking());
        QVERIFY(panel.testAttribute(Qt::WA_Hover));
        QCOMPARE(panel.windowFlags(), flags);
        panel.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    QVERIFY(!panel.hasMouseTracking());
    QVERIFY(!panel.testAttribute(Qt::WA_Hover));
    QCOMPARE(panel.windowFlags(), flags);
}

void tst_WidgetData::forgottenWidgetIsNotTouched()
{
    Panel panel;
    FramelessHelperPrivate d;
    auto data = std::make_unique<WidgetData>(&d, &panel);

    data->forgetWidget();
    QVERIFY(!data->widget());
    data.reset();

    QVERIFY(panel.hasMouseTracking());
    QVERIFY(panel.testAttribute(Qt::WA_Hover));
}

void tst_WidgetData::recordHandlesTheFiveKindsOfEvents()
{
    Panel panel;
    FramelessHelperPrivate d;
    WidgetData data(&d, &panel);

    QHoverEvent hover(QEvent::HoverMove, local(OnRightEdge), local(OnRightEdge));
    data.handleWidgetEvent(&hover);
    QCOMPARE(panel.cursor().shape(), Qt::SizeHorCursor);

    QEvent leave(QEvent::Leave);
    data.handleWidgetEvent(&leave);
    QVERIFY(!hasOwnCursor(panel));

    handleMouse(data, QEvent::MouseMove, OnBottomEdge, Qt::NoButton);
    QCOMPARE(panel.cursor().shape(), Qt::SizeVerCursor);

    handleMouse(data, QEvent::MouseButtonPress, InTitle);
    handleMouse(data, QEvent::MouseMove, InTitle + QPoint(40, 30));
    QCOMPARE(panel.geometry(), Frame.translated(40, 30));

    handleMouse(data, QEvent::MouseButtonRelease, InTitle + QPoint(40, 30));
    handleMouse(data, QEvent::MouseMove, InTitle);
    QCOMPARE(panel.geometry(), Frame.translated(40, 30));
}

void tst_WidgetData::otherEventsAreNotHandled()
{
    Panel panel;
    FramelessHelperPrivate d;
    WidgetData data(&d, &panel);

    // A double click is no press
    handleMouse(data, QEvent::MouseButtonDblClick, InTitle);
    handleMouse(data, QEvent::MouseMove, InTitle + QPoint(40, 30));
    QCOMPARE(panel.geometry(), Frame);

    // Entering is no hover move
    panel.unsetCursor();
    QHoverEvent enter(QEvent::HoverEnter, local(OnRightEdge), local(OnRightEdge));
    data.handleWidgetEvent(&enter);
    QVERIFY(!hasOwnCursor(panel));

    // The end of hovering is no leave
    panel.setCursor(Qt::CrossCursor);
    QHoverEvent hoverLeave(QEvent::HoverLeave, QPoint(-1, -1), local(OnRightEdge));
    data.handleWidgetEvent(&hoverLeave);
    QCOMPARE(panel.cursor().shape(), Qt::CrossCursor);
}

void tst_WidgetData::recordReadsTheFlagsOfItsHelper()
{
    Panel panel;
    FramelessHelperPrivate d;
    WidgetData data(&d, &panel);

    d.m_bWidgetMovable = false;
    handleMouse(data, QEvent::MouseButtonPress, InTitle);
    handleMouse(data, QEvent::MouseMove, InTitle + QPoint(40, 30));
    QCOMPARE(panel.geometry(), Frame);

    d.m_bWidgetMovable = true;
    handleMouse(data, QEvent::MouseMove, InTitle + QPoint(40, 30));
    QCOMPARE(panel.geometry(), Frame.translated(40, 30));
}

void tst_WidgetData::outlineIsMadeAndDeletedByTheFlags_data()
{
    QTest::addColumn<bool>("onMove");
    QTest::addColumn<bool>("onResize");
    QTest::newRow("for moves") << true << false;
    QTest::newRow("for resizes") << false << true;
    QTest::newRow("for both") << true << true;
}

void tst_WidgetData::outlineIsMadeAndDeletedByTheFlags()
{
    QFETCH(bool, onMove);
    QFETCH(bool, onResize);
    Panel panel;
    FramelessHelperPrivate d;
    WidgetData data(&d, &panel);
    QVERIFY(rubberBands().isEmpty());

    d.m_bRubberBandOnMove = onMove;
    d.m_bRubberBandOnResize = onResize;
    QVERIFY(rubberBands().isEmpty());
    data.updateRubberBandStatus();
    QCOMPARE(rubberBands().size(), 1);
    const QPointer<QRubberBand> band(rubberBands().constFirst());
    data.updateRubberBandStatus();
    QCOMPARE(rubberBands().size(), 1);
    QVERIFY(band);

    d.m_bRubberBandOnMove = false;
    d.m_bRubberBandOnResize = false;
    data.updateRubberBandStatus();
    QVERIFY(!band);
    QVERIFY(rubberBands().isEmpty());
}

void tst_WidgetData::outlineExistsFromTheStart()
{
    Panel panel;
    FramelessHelperPrivate d;
    d.m_bRubberBandOnMove = true;
    {
        const WidgetData data(&d, &panel);
        QCOMPARE(rubberBands().size(), 1);
    }
    QVERIFY(rubberBands().isEmpty());
}

QTEST_MAIN(tst_WidgetData)

#include "tst_widgetdata.moc"
