// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/managedpanel.h"

#include <QHoverEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRubberBand>
#include <QTest>
#include <QWheelEvent>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <tarnwidgets/framelesshelper.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessHelper;

class tst_FramelessHelper : public QObject
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

    // The settings
    void newHelperHasTheDefaults();
    void metaObjectHasNothingOfItsOwn();
    void eachFlagIsSetByItself_data();
    void eachFlagIsSetByItself();
    void zeroIsIgnoredAsBorderWidthAndTitleHeight();
    void borderWidthIsSharedByAllHelpers();
    void titleHeightIsSharedByAllHelpers();

    // Taking on and letting go
    void activationTurnsTrackingAndHoverOnAndKeepsTheFlags();
    void lettingGoRestoresTheWidget_data();
    void lettingGoRestoresTheWidget();
    void lettingGoTurnsTrackingAndHoverOffWhoeverTurnedThemOn();
    void lettingGoWithUnchangedFlagsKeepsTheWidgetOnScreen();
    void removedWidgetIsNoLongerFiltered();
    void secondActivationIsIgnored();
    void reactivationSavesTheFlagsAnew();
    void unknownWidgetIsLeftAlone();
    void nullIsIgnored();

    // Which events are taken
    void fiveKindsOfEventsAreConsumed_data();
    void fiveKindsOfEventsAreConsumed();
    void fiveKindsOfEventsAreConsumedWhereNothingIsToBeDone_data();
    void fiveKindsOfEventsAreConsumedWhereNothingIsToBeDone();
    void eventsOfOthersPass();
    void otherButtonsAreConsumedAndDoNothing_data();
    void otherButtonsAreConsumedAndDoNothing();
    void doubleClickPassesAndStartsNoDrag();
    void childThatTakesThePressKeepsIt();
    void pressThatAChildIgnoresDragsTheWindow();

    // Several widgets, and lifetimes
    void widgetsOfOneHelperAreDraggedApart();
    void deadWidgetIsForgotten();
    void deadWidgetIsForgottenEvenIfItsEventsWereEaten();
    void widgetTakenTwiceIsListenedToOnce();
    void widgetDyingInMidDragTakesItsOutlineAlong();
    void widgetAtTheAddressOfADeadOneIsUnknown();
    void removalInMidDragEndsTheDrag();
    void helperDeletedInMidDragLeavesTheWidgetAlone();
    void helperMayBeDeletedByTheWidgetItWorksOn_data();
    void helperMayBeDeletedByTheWidgetItWorksOn();
    void widgetMayBeRemovedWhileItIsMoved();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessHelper::newHelperHasTheDefaults()
{
    QObject parent;
    const auto *helper = new FramelessHelper(&parent);

    QCOMPARE(helper->parent(), &parent);
    QVERIFY(helper->widgetMovable());
    QVERIFY(helper->widgetResizable());
    QVERIFY(!helper->rubberBandOnMove());
    QVERIFY(!helper->rubberBandOnResisze());
    QCOMPARE(helper->borderWidth(), 5u);
    QCOMPARE(helper->titleHeight(), 30u);
}

void tst_FramelessHelper::metaObjectHasNothingOfItsOwn()
{
    const QMetaObject &meta = FramelessHelper::staticMetaObject;

    QCOMPARE(QByteArray(meta.className()), QByteArray("Tarn::Widgets::FramelessHelper"));
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

using Setter = void (FramelessHelper::*)(bool);
using Getter = bool (FramelessHelper::*)() const;

struct Flag
{
    const char *name;
    Setter set;
    Getter get;
};

static constexpr Flag Flags[] = {
    {"movable", &FramelessHelper::setWidgetMovable, &FramelessHelper::widgetMovable},
    {"resizable", &FramelessHelper::setWidgetResizable, &FramelessHelper::widgetResizable},
    {"rubber band on move", &FramelessHelper::setRubberBandOnMove, &FramelessHelper::rubberBandOnMove},
    {"rubber band on resize", &FramelessHelper::setRubberBandOnResize, &FramelessHelper::rubberBandOnResisze},
};

void tst_FramelessHelper::eachFlagIsSetByItself_data()
{
    QTest::addColumn<int>("chosen");
    for (int index = 0; index < int(std::size(Flags)); ++index)
        QTest::newRow(Flags[index].name) << index;
}

void tst_FramelessHelper::eachFlagIsSetByItself()
{
    QFETCH(int, chosen);
    const Flag &flag = Flags[chosen];

    for (const bool start : {false, true}) {
        // GIVEN two helpers with all flags alike
        FramelessHelper helper;
        FramelessHelper other;
        for (const Flag &each : Flags) {
            (helper.*each.set)(start);
            (other.*each.set)(start);
            QCOMPARE((helper.*each.get)(), start);
        }

        // WHEN one flag of one helper is turned over
        (helper.*flag.set)(!start);

        // THEN only this one has changed
        for (int index = 0; index < int(std::size(Flags)); ++index) {
            QCOMPARE((helper.*Flags[index].get)(), index == chosen ? !start : start);
            QCOMPARE((other.*Flags[index].get)(), start);
        }
    }
}

void tst_FramelessHelper::zeroIsIgnoredAsBorderWidthAndTitleHeight()
{
    FramelessHelper helper;
    helper.setBorderWidth(8);
    helper.setTitleHeight(40);

    helper.setBorderWidth(0);
    helper.setTitleHeight(0);

    QCOMPARE(helper.borderWidth(), 8u);
    QCOMPARE(helper.titleHeight(), 40u);
}

void tst_FramelessHelper::borderWidthIsSharedByAllHelpers()
{
    // GIVEN a point of a managed widget eight pixels from the left, off the border
    ManagedPanel managed;
    const QPoint point = local(QPoint(108, Middle.y()));
    hoverMove(&managed.panel, point);
    QVERIFY(!hasOwnCursor(managed.panel));

    // WHEN another helper sets the border width
    FramelessHelper other;
    other.setBorderWidth(8);

    // THEN the first helper goes by it
    QCOMPARE(managed.helper.borderWidth(), 8u);
    hoverMove(&managed.panel, point);
    QCOMPARE(managed.panel.cursor().shape(), Qt::SizeHorCursor);
}

void tst_FramelessHelper::titleHeightIsSharedByAllHelpers()
{
    // GIVEN a point of a managed widget below the title zone
    ManagedPanel managed;
    const QPoint point(200, 235);
    drag(&managed.panel, point, point + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);

    // WHEN another helper sets a title height that takes it in
    FramelessHelper other;
    other.setTitleHeight(36);

    // THEN the first helper goes by it
    QCOMPARE(managed.helper.titleHeight(), 36u);
    drag(&managed.panel, point, point + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

void tst_FramelessHelper::activationTurnsTrackingAndHoverOnAndKeepsTheFlags()
{
    Panel panel(Frame, Qt::Window);
    const Qt::WindowFlags flags = panel.windowFlags();
    QVERIFY(!panel.hasMouseTracking());
    QVERIFY(!panel.testAttribute(Qt::WA_Hover));

    FramelessHelper helper;
    helper.activateOn(&panel);

    QVERIFY(panel.hasMouseTracking());
    QVERIFY(panel.testAttribute(Qt::WA_Hover));
    QCOMPARE(panel.windowFlags(), flags);
    QVERIFY(panel.isVisible());
}

void tst_FramelessHelper::lettingGoRestoresTheWidget_data()
{
    QTest::addColumn<bool>("byDeletion");
    QTest::newRow("removeFrom()") << false;
    QTest::newRow("deletion of the helper") << true;
}

void tst_FramelessHelper::lettingGoRestoresTheWidget()
{
    QFETCH(bool, byDeletion);

    // GIVEN a managed widget whose flags changed since activation
    Panel panel;
    const Qt::WindowFlags flags = panel.windowFlags();
    auto helper = std::make_unique<FramelessHelper>();
    helper->activateOn(&panel);
    panel.setWindowFlag(Qt::WindowStaysOnTopHint);
    panel.show();
    QVERIFY(panel.windowFlags() != flags);

    // WHEN the helper lets go
    if (byDeletion)
        helper.reset();
    else
        helper->removeFrom(&panel);

    // THEN the flags are back, tracking and hover are off, and mouse events come through again
    QCOMPARE(panel.windowFlags(), flags);
    QVERIFY(!panel.hasMouseTracking());
    QVERIFY(!panel.testAttribute(Qt::WA_Hover));
    panel.received.clear();
    drag(&panel, InTitle, Middle);
    QVERIFY(panel.received.contains(QEvent::MouseButtonPress));
    QVERIFY(panel.received.contains(QEvent::MouseMove));
    QVERIFY(panel.received.contains(QEvent::MouseButtonRelease));
    QCOMPARE(panel.geometry(), Frame);
}

void tst_FramelessHelper::lettingGoTurnsTrackingAndHoverOffWhoeverTurnedThemOn()
{
    // GIVEN a widget that had both before it was managed
    Panel panel;
    panel.setMouseTracking(true);
    panel.setAttribute(Qt::WA_Hover);
    FramelessHelper helper;
    helper.activateOn(&panel);

    // WHEN the helper lets go
    helper.removeFrom(&panel);

    // THEN it has neither
    QVERIFY(!panel.hasMouseTracking());
    QVERIFY(!panel.testAttribute(Qt::WA_Hover));
}

void tst_FramelessHelper::lettingGoWithUnchangedFlagsKeepsTheWidgetOnScreen()
{
    ManagedPanel managed;
    QVERIFY(managed.panel.isVisible());

    managed.helper.removeFrom(&managed.panel);

    QVERIFY(managed.panel.isVisible());
}

/* Counts the events that come by. */
class CountingHelper : public FramelessHelper
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        ++events;
        return FramelessHelper::eventFilter(watched, event);
    }

    int events = 0;
};

void tst_FramelessHelper::removedWidgetIsNoLongerFiltered()
{
    Panel panel;
    CountingHelper helper;
    helper.activateOn(&panel);
    mousePress(&panel, Middle);
    QVERIFY(helper.events > 0);

    helper.removeFrom(&panel);
    helper.events = 0;
    mousePress(&panel, Middle);

    QCOMPARE(helper.events, 0);
}

void tst_FramelessHelper::secondActivationIsIgnored()
{
    // GIVEN a managed widget whose flags changed since activation
    ManagedPanel managed;
    const Qt::WindowFlags flags = managed.panel.windowFlags();
    managed.panel.setWindowFlag(Qt::WindowStaysOnTopHint);

    // WHEN it is activated again, and removed once
    managed.helper.activateOn(&managed.panel);
    managed.helper.removeFrom(&managed.panel);

    // THEN the flags are those of the first time, and nothing of the filter is left
    QCOMPARE(managed.panel.windowFlags(), flags);
    mousePress(&managed.panel, InTitle);
    QVERIFY(managed.panel.received.contains(QEvent::MouseButtonPress));

    // AND what somebody else has turned off since the first time stays off
    managed.helper.activateOn(&managed.panel);
    managed.panel.setMouseTracking(false);
    managed.panel.setAttribute(Qt::WA_Hover, false);
    managed.helper.activateOn(&managed.panel);
    QVERIFY(!managed.panel.hasMouseTracking());
    QVERIFY(!managed.panel.testAttribute(Qt::WA_Hover));
}

void tst_FramelessHelper::reactivationSavesTheFlagsAnew()
{
    ManagedPanel managed;
    managed.helper.removeFrom(&managed.panel);
    managed.panel.setWindowFlag(Qt::WindowStaysOnTopHint);
    const Qt::WindowFlags flags = managed.panel.windowFlags();

    managed.helper.activateOn(&managed.panel);
    drag(&managed.panel, InTitle, InTitle + QPoint(5, 5));
    QCOMPARE(managed.panel.pos(), Frame.topLeft() + QPoint(5, 5));
    managed.panel.setWindowFlag(Qt::WindowStaysOnTopHint, false);
    managed.helper.removeFrom(&managed.panel);

    QCOMPARE(managed.panel.windowFlags(), flags);
}

void tst_FramelessHelper::unknownWidgetIsLeftAlone()
{
    Panel panel;
    panel.setMouseTracking(true);
    panel.setAttribute(Qt::WA_Hover);
    const Qt::WindowFlags flags = panel.windowFlags();
    ManagedPanel managed;

    managed.helper.removeFrom(&panel);

    QVERIFY(panel.hasMouseTracking());
    QVERIFY(panel.testAttribute(Qt::WA_Hover));
    QCOMPARE(panel.windowFlags(), flags);
    QVERIFY(panel.isVisible());
    mousePress(&managed.panel, InTitle);
    QVERIFY(!managed.panel.received.contains(QEvent::MouseButtonPress));
}

void tst_FramelessHelper::nullIsIgnored()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);

    helper.activateOn(nullptr);
    helper.removeFrom(nullptr);

    QVERIFY(rubberBands().isEmpty());
}

using EventMaker = std::function<std::unique_ptr<QEvent>()>;
Q_DECLARE_METATYPE(EventMaker)

static EventMaker plainEvent(QEvent::Type type)
{
    return [type] { return std::make_unique<QEvent>(type); };
}

static EventMaker mouseEvent(QEvent::Type type, Qt::MouseButton button)
{
    return [type, button] {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        return std::make_unique<QMouseEvent>(type, local(Middle), local(Middle), Middle, button, held,
                                             Qt::NoModifier);
    };
}

static EventMaker hoverEvent(QEvent::Type type)
{
    return [type] { return std::make_unique<QHoverEvent>(type, local(Middle), local(Middle)); };
}

void tst_FramelessHelper::fiveKindsOfEventsAreConsumed_data()
{
    QTest::addColumn<EventMaker>("make");
    QTest::addColumn<bool>("consumed");

    QTest::newRow("left press") << mouseEvent(QEvent::MouseButtonPress, Qt::LeftButton) << true;
    QTest::newRow("left release") << mouseEvent(QEvent::MouseButtonRelease, Qt::LeftButton) << true;
    QTest::newRow("right press") << mouseEvent(QEvent::MouseButtonPress, Qt::RightButton) << true;
    QTest::newRow("right release") << mouseEvent(QEvent::MouseButtonRelease, Qt::RightButton) << true;
    QTest::newRow("mouse move") << mouseEvent(QEvent::MouseMove, Qt::NoButton) << true;
    QTest::newRow("leave") << plainEvent(QEvent::Leave) << true;
    QTest::newRow("hover move") << hoverEvent(QEvent::HoverMove) << true;

    QTest::newRow("double click") << mouseEvent(QEvent::MouseButtonDblClick, Qt::LeftButton) << false;
    QTest::newRow("enter") << plainEvent(QEvent::Enter) << false;
    QTest::newRow("hover enter") << hoverEvent(QEvent::HoverEnter) << false;
    QTest::newRow("hover leave") << hoverEvent(QEvent::HoverLeave) << false;
    QTest::newRow("wheel") << EventMaker([] {
        return std::make_unique<QWheelEvent>(local(Middle), Middle, QPoint(), QPoint(0, 120), Qt::NoButton,
                                             Qt::NoModifier, Qt::NoScrollPhase, false);
    }) << false;
    QTest::newRow("key press") << EventMaker([] {
        return std::make_unique<QKeyEvent>(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    }) << false;
    QTest::newRow("key release") << EventMaker([] {
        return std::make_unique<QKeyEvent>(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    }) << false;
    QTest::newRow("style change") << plainEvent(QEvent::StyleChange) << false;
    QTest::newRow("language change") << plainEvent(QEvent::LanguageChange) << false;
    QTest::newRow("window activation") << plainEvent(QEvent::WindowActivate) << false;
    QTest::newRow("user event") << plainEvent(QEvent::User) << false;
}

void tst_FramelessHelper::fiveKindsOfEventsAreConsumed()
{
    QFETCH(EventMaker, make);
    QFETCH(bool, consumed);

    // GIVEN a managed widget
    ManagedPanel managed;
    managed.panel.received.clear();
    const std::unique_ptr<QEvent> event = make();

    // WHEN the event is sent to it
    QCoreApplication::sendEvent(&managed.panel, event.get());

    // THEN it reaches the widget exactly if it is none of the five kinds
    QCOMPARE(managed.panel.received.contains(event->type()), !consumed);
    QCOMPARE(managed.helper.eventFilter(&managed.panel, event.get()), consumed);

    // AND it could have reached it
    managed.helper.removeFrom(&managed.panel);
    managed.panel.setMouseTracking(true);
    QCoreApplication::sendEvent(&managed.panel, event.get());
    QVERIFY(managed.panel.received.contains(event->type()));
}

void tst_FramelessHelper::fiveKindsOfEventsAreConsumedWhereNothingIsToBeDone_data()
{
    fiveKindsOfEventsAreConsumed_data();
}

void tst_FramelessHelper::fiveKindsOfEventsAreConsumedWhereNothingIsToBeDone()
{
    QFETCH(EventMaker, make);
    QFETCH(bool, consumed);

    // GIVEN a managed widget that is neither movable nor resizable
    ManagedPanel managed;
    managed.helper.setWidgetMovable(false);
    managed.helper.setWidgetResizable(false);
    managed.panel.received.clear();

    // WHEN the event is sent to it
    const std::unique_ptr<QEvent> event = make();
    QCoreApplication::sendEvent(&managed.panel, event.get());

    // THEN the same kinds are kept from it
    QCOMPARE(managed.panel.received.contains(event->type()), !consumed);
}

void tst_FramelessHelper::eventsOfOthersPass()
{
    ManagedPanel managed;
    Panel stranger;
    QObject plain;
    const std::unique_ptr<QEvent> press = mouseEvent(QEvent::MouseButtonPress, Qt::LeftButton)();

    QVERIFY(!managed.helper.eventFilter(&stranger, press.get()));
    QVERIFY(!managed.helper.eventFilter(&plain, press.get()));
    QVERIFY(!FramelessHelper().eventFilter(&managed.panel, press.get()));
}

void tst_FramelessHelper::otherButtonsAreConsumedAndDoNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("from");
    QTest::newRow("right, in the title") << int(Qt::RightButton) << InTitle;
    QTest::newRow("right, on the edge") << int(Qt::RightButton) << OnRightEdge;
    QTest::newRow("middle, in the title") << int(Qt::MiddleButton) << InTitle;
    QTest::newRow("back, on the edge") << int(Qt::BackButton) << OnRightEdge;
}

void tst_FramelessHelper::otherButtonsAreConsumedAndDoNothing()
{
    QFETCH(int, button);
    QFETCH(QPoint, from);
    ManagedPanel managed;
    managed.panel.received.clear();

    mousePress(&managed.panel, from, Qt::MouseButton(button));
    mouseMove(&managed.panel, from + QPoint(40, 30), Qt::MouseButton(button));
    mouseRelease(&managed.panel, from + QPoint(40, 30), Qt::MouseButton(button));

    QVERIFY(!managed.panel.received.contains(QEvent::MouseButtonPress));
    QVERIFY(!managed.panel.received.contains(QEvent::MouseMove));
    QVERIFY(!managed.panel.received.contains(QEvent::MouseButtonRelease));
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelper::doubleClickPassesAndStartsNoDrag()
{
    ManagedPanel managed;

    // WHEN the sequence of a double click comes, the pointer slipping at its end
    mousePress(&managed.panel, InTitle);
    mouseRelease(&managed.panel, InTitle);
    mouseDoubleClick(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(3, 3));
    mouseRelease(&managed.panel, InTitle + QPoint(3, 3));

    // THEN the widget hears of the double click and stays where it is
    QCOMPARE(managed.panel.received.count(QEvent::MouseButtonDblClick), 1);
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelper::childThatTakesThePressKeepsIt()
{
    ManagedPanel managed;
    QPushButton button(&managed.panel);
    button.setGeometry(50, 8, 40, 16);
    button.show();
    const QPoint onButton = button.mapToGlobal(QPoint(5, 5));

    mousePress(&button, onButton);
    QVERIFY(button.isDown());
    mouseMove(&button, onButton + QPoint(40, 30));
    mouseRelease(&button, onButton + QPoint(40, 30));

    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelper::pressThatAChildIgnoresDragsTheWindow()
{
    // GIVEN a label across the end of the title zone, so that its own y would mislead
    ManagedPanel managed;
    QLabel label(&managed.panel);
    label.setGeometry(50, 20, 40, 40);
    label.show();
    const QPoint inTitle = label.mapToGlobal(QPoint(5, 5));
    const QPoint belowTitle = label.mapToGlobal(QPoint(5, 15));

    drag(&label, belowTitle, belowTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame);

    drag(&label, inTitle, inTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

void tst_FramelessHelper::widgetsOfOneHelperAreDraggedApart()
{
    // GIVEN two widgets of one helper, both pressed
    ManagedPanel managed;
    Panel second;
    managed.helper.activateOn(&second);
    mousePress(&managed.panel, InTitle);
    mousePress(&second, OnRightEdge);

    // WHEN both are dragged in turn, THEN each does what its own press began
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(second.geometry(), Frame);
    mouseMove(&second, QPoint(320, 275));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
    QCOMPARE(second.geometry(), QRect(QPoint(100, 200), QPoint(320, 349)));

    // AND one release ends one drag
    mouseRelease(&second, QPoint(320, 275));
    mouseMove(&managed.panel, InTitle + QPoint(50, 35));
    QCOMPARE(managed.panel.geometry(), Frame.translated(50, 35));

    // AND removing one keeps the other
    managed.helper.removeFrom(&managed.panel);
    drag(&second, InTitle, InTitle + QPoint(5, 5));
    QCOMPARE(second.pos(), Frame.topLeft() + QPoint(5, 5));
}

void tst_FramelessHelper::deadWidgetIsForgotten()
{
    ManagedPanel managed;
    auto dead = std::make_unique<Panel>();
    Panel *address = dead.get();
    managed.helper.activateOn(address);
    dead.reset();

    // Whatever goes through all widgets, or names the dead one, reaches the live one only
    managed.helper.setRubberBandOnMove(true);
    QCOMPARE(rubberBands().size(), 1);
    managed.helper.setRubberBandOnMove(false);
    managed.helper.removeFrom(address);
    drag(&managed.panel, InTitle, InTitle + QPoint(40, 30));
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
}

/* Lets no event through. */
class EventEater : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *) override
    {
        return true;
    }
};

void tst_FramelessHelper::deadWidgetIsForgottenEvenIfItsEventsWereEaten()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    EventEater eater;
    {
        Panel panel;
        helper.activateOn(&panel);
        QCOMPARE(rubberBands().size(), 1);
        panel.installEventFilter(&eater); // asked before the helper
    }
    QVERIFY(rubberBands().isEmpty());
}

/* Tells how many wait for its death. */
class Mortal : public Panel
{
public:
    using Panel::Panel;

    int mourners() const
    {
        return receivers(SIGNAL(destroyed(QObject *)));
    }
};

void tst_FramelessHelper::widgetTakenTwiceIsListenedToOnce()
{
    // GIVEN a widget that was taken and let go of
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    {
        Mortal panel;
        const int others = panel.mourners();
        helper.activateOn(&panel);
        helper.removeFrom(&panel);
        QVERIFY(rubberBands().isEmpty());

        // WHEN it is taken again
        helper.activateOn(&panel);

        // THEN nothing has come together on it
        QCOMPARE(panel.mourners(), others + 1);
        QCOMPARE(rubberBands().size(), 1);
    }

    // AND its death is heard
    QVERIFY(rubberBands().isEmpty());
}

void tst_FramelessHelper::widgetDyingInMidDragTakesItsOutlineAlong()
{
    FramelessHelper helper;
    helper.setRubberBandOnMove(true);
    {
        Panel panel;
        helper.activateOn(&panel);
        mousePress(&panel, InTitle);
        QVERIFY(rubberBands().constFirst()->isVisible());
    }
    QVERIFY(rubberBands().isEmpty());
}

void tst_FramelessHelper::widgetAtTheAddressOfADeadOneIsUnknown()
{
    // GIVEN a managed widget that died with a drag on
    FramelessHelper helper;
    alignas(Panel) unsigned char room[sizeof(Panel)];
    auto *first = new (room) Panel;
    helper.activateOn(first);
    mousePress(first, InTitle);
    first->~Panel();

    // WHEN another comes to live at its address
    auto *second = new (room) Panel(Frame, Qt::FramelessWindowHint | Qt::Tool);
    const Qt::WindowFlags flags = second->windowFlags();
    mouseMove(second, InTitle + QPoint(40, 30));

    // THEN it is unknown to the helper
    QVERIFY(second->received.contains(QEvent::MouseMove));
    QCOMPARE(second->geometry(), Frame);

    // AND once activated, it has a record of its own
    helper.activateOn(second);
    mouseMove(second, InTitle + QPoint(40, 30));
    QCOMPARE(second->geometry(), Frame);
    drag(second, InTitle, InTitle + QPoint(40, 30));
    QCOMPARE(second->geometry(), Frame.translated(40, 30));
    helper.removeFrom(second);
    QCOMPARE(second->windowFlags(), flags);
    second->~Panel();
}

void tst_FramelessHelper::removalInMidDragEndsTheDrag()
{
    ManagedPanel managed;
    managed.helper.setRubberBandOnMove(true);
    mousePress(&managed.panel, InTitle);
    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    QCOMPARE(rubberBands().size(), 1);

    managed.helper.removeFrom(&managed.panel);
    QVERIFY(rubberBands().isEmpty());
    QCOMPARE(managed.panel.geometry(), Frame);

    managed.helper.activateOn(&managed.panel);
    mouseMove(&managed.panel, InTitle + QPoint(50, 35));
    mouseRelease(&managed.panel, InTitle + QPoint(50, 35));
    QCOMPARE(managed.panel.geometry(), Frame);
}

void tst_FramelessHelper::helperDeletedInMidDragLeavesTheWidgetAlone()
{
    Panel panel;
    auto helper = std::make_unique<FramelessHelper>();
    helper->activateOn(&panel);
    mousePress(&panel, InTitle);
    mouseMove(&panel, InTitle + QPoint(40, 30));
    QCOMPARE(panel.geometry(), Frame.translated(40, 30));

    helper.reset();
    panel.received.clear();
    mouseMove(&panel, InTitle + QPoint(50, 35));
    mouseRelease(&panel, InTitle + QPoint(50, 35));

    QCOMPARE(panel.geometry(), Frame.translated(40, 30));
    QCOMPARE(panel.received.count(QEvent::MouseButtonRelease), 1);
}

using Step = std::function<void(FramelessHelper *, Panel *, const std::function<void()> &deletion)>;
Q_DECLARE_METATYPE(Step)

void tst_FramelessHelper::helperMayBeDeletedByTheWidgetItWorksOn_data()
{
    QTest::addColumn<Step>("run");
    QTest::newRow("while it moves the widget")
        << Step([](FramelessHelper *, Panel *panel, const std::function<void()> &deletion) {
               mousePress(panel, InTitle);
               panel->onMove = deletion;
               mouseMove(panel, InTitle + QPoint(40, 30));
           });
    QTest::newRow("while it resizes the widget")
        << Step([](FramelessHelper *, Panel *panel, const std::function<void()> &deletion) {
               mousePress(panel, OnRightEdge);
               panel->onResize = deletion;
               mouseMove(panel, QPoint(320, 275));
           });
    QTest::newRow("while it applies the outline")
        << Step([](FramelessHelper *helper, Panel *panel, const std::function<void()> &deletion) {
               helper->setRubberBandOnMove(true);
               mousePress(panel, InTitle);
               mouseMove(panel, InTitle + QPoint(40, 30));
               panel->onMove = deletion;
               mouseRelease(panel, InTitle + QPoint(40, 30));
           });
    QTest::newRow("while it writes the flags back")
        << Step([](FramelessHelper *helper, Panel *panel, const std::function<void()> &deletion) {
               panel->setWindowFlag(Qt::WindowStaysOnTopHint);
               panel->show();
               panel->onHide = deletion;
               helper->removeFrom(panel);
           });
}

void tst_FramelessHelper::helperMayBeDeletedByTheWidgetItWorksOn()
{
    QFETCH(Step, run);
    Panel panel;
    Panel second;
    QPointer<FramelessHelper> helper = new FramelessHelper;
    helper->activateOn(&panel);
    helper->activateOn(&second);

    run(helper, &panel, [helper] { delete helper; });

    QVERIFY(!helper);
    QVERIFY(!panel.hasMouseTracking());
    QVERIFY(!second.hasMouseTracking());
    panel.received.clear();
    mousePress(&panel, InTitle);
    QVERIFY(panel.received.contains(QEvent::MouseButtonPress));
}

void tst_FramelessHelper::widgetMayBeRemovedWhileItIsMoved()
{
    ManagedPanel managed;
    mousePress(&managed.panel, InTitle);
    managed.panel.onMove = [&managed] { managed.helper.removeFrom(&managed.panel); };

    mouseMove(&managed.panel, InTitle + QPoint(40, 30));
    mouseMove(&managed.panel, InTitle + QPoint(50, 35));

    QVERIFY(!managed.panel.onMove); // the first move has called it
    QCOMPARE(managed.panel.geometry(), Frame.translated(40, 30));
    QVERIFY(!managed.panel.hasMouseTracking());
}

QTEST_MAIN(tst_FramelessHelper)

#include "tst_framelesshelper.moc"
