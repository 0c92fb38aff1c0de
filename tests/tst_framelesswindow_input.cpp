// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the window does with the mouse and with keys.

#include "support/events.h"
#include "support/functionguard.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <memory>
#include <optional>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Test::FunctionGuard;
using Tarn::Widgets::FramelessWindow;
using Tarn::Widgets::TitleBar;

namespace {

constexpr int Maximise = 2;
constexpr int Restore = 3;
constexpr int Close = 4;

// The title bar is 800 pixels wide and 24 high. Its strip of buttons begins at x = 681 for a press and at x =
// 680 for a double click.
constexpr QSize WindowSize(800, 400);
constexpr QPoint Start(40, 50);
constexpr QPoint OnTitle(300, 10);
constexpr QPoint OnButtons(750, 10);
constexpr QPoint OnContent(300, 200);
constexpr QPoint Step(30, 20);

// Lets tests ask what became of an event.
class Window : public FramelessWindow
{
public:
    explicit Window(bool withTitleBar = true)
        : FramelessWindow(nullptr)
    {
        setCentralWidget(new QWidget, withTitleBar);
        setGeometry(QRect(Start, WindowSize));
        show();
    }

    bool press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::MouseButtonPress, at, button, button);
    }

    bool moveTo(const QPoint &at, Qt::MouseButtons held = Qt::LeftButton)
    {
        return send(QEvent::MouseMove, at, Qt::NoButton, held);
    }

    bool release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }

    bool doubleClick(const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        return send(QEvent::MouseButtonDblClick, at, button, button);
    }

    // What is held besides.
    Qt::KeyboardModifiers modifiers;
    Qt::MouseButtons otherButtons;

private:
    // Whether the event was accepted. The position is on the window where it is now.
    bool send(QEvent::Type type, const QPoint &at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, at, at, mapToGlobal(at), button, held | otherButtons, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(this, &event);
        return event.isAccepted();
    }
};

// Counts the keys that nobody below wanted.
class KeyCounter : public QWidget
{
public:
    int keys = 0;

protected:
    void keyPressEvent(QKeyEvent *) override
    {
        ++keys;
    }
};

// Whether somebody accepted it: the receiver, or a widget around it.
bool pressKey(QWidget *receiver, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(receiver, &event);
    return event.isAccepted();
}

bool offersRestore(const FramelessWindow &window)
{
    return !window.getTitleBar()->titleButton(Restore)->isHidden();
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class tst_FramelessWindowInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    // Dragging
    void pressStartsADragOutsideTheButtonStrip_data();
    void pressStartsADragOutsideTheButtonStrip();
    void withoutTitleBarThereIsNoStrip_data();
    void withoutTitleBarThereIsNoStrip();
    void withoutTitleBarTheWindowFollowsOverItsTop();
    void deletedTitleBarIsNotFollowed();
    void everyPressIsAccepted_data();
    void everyPressIsAccepted();
    void otherButtonsDoNotStartADrag_data();
    void otherButtonsDoNotStartADrag();
    void otherButtonsDoNotDisturbADrag();
    void leftButtonCountsWhateverElseIsHeld();
    void pressInTheStripEndsADrag();
    void windowFollowsTheCursor();
    void moveWithoutPressIsIgnored();
    void dragGoesOnUntilAReleaseIsHeardOf();
    void moveOverTheButtonStripIsIgnored_data();
    void moveOverTheButtonStripIsIgnored();
    void maximisedWindowIsNotDragged();
    void pressOnAMaximisedWindowCountsOnceItIsRestored();
    void fullScreenWindowIsDragged();
    void decoratedWindowKeepsItsFrameUnderTheCursor();
    void releaseEndsTheDrag_data();
    void releaseEndsTheDrag();
    void releaseUnchecksTheTitleButtons();
    void dragOverTheTitleTextMovesTheWindow();
    void dragOnAWidgetThatTakesThePressDoesNotMoveTheWindow();
    void edgesDoNotResize_data();
    void edgesDoNotResize();
    void stripFollowsTheWidthOfTheWindow();
    void stripFollowsTheHeightOfTheTitleBar();
    void stripLiesAtTheTopOfTheWindowWhereverTheTitleBarIs();

    // Double click
    void doubleClickOnTheTitleTogglesMaximised_data();
    void doubleClickOnTheTitleTogglesMaximised();
    void doubleClickRestoresAMaximisedWindow();
    void doubleClickAsksTheTitleBar();
    void withoutTitleBarADoubleClickDoesNothing_data();
    void withoutTitleBarADoubleClickDoesNothing();

    // Keys
    void escapeClosesTheWindow_data();
    void escapeClosesTheWindow();
    void escapeIsACloseThatTheWindowMayRefuse();
    void escapeDoesNotAskTheCloseFunction();
    void f11ClicksTheMaximiseButton_data();
    void f11ClicksTheMaximiseButton();
    void f11DoesNotClickADisabledButton();
    void f11MaximisesAWindowWithoutTitleBar();
    void otherKeysEndInTheWindow_data();
    void otherKeysEndInTheWindow();
    void keysThatTheContentWantsDoNotReachTheWindow();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessWindowInput::initTestCase()
{
    Window window;
    QCOMPARE(window.size(), WindowSize);
    QCOMPARE(window.pos(), Start);
    QCOMPARE(window.getTitleBar()->size(), QSize(800, 24));
    QCOMPARE(window.frameGeometry(), window.geometry());
}

void tst_FramelessWindowInput::pressStartsADragOutsideTheButtonStrip_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<bool>("starts");
    QTest::newRow("last pixel left of the strip") << QPoint(680, 10) << true;
    QTest::newRow("first pixel of the strip") << QPoint(681, 10) << false;
    QTest::newRow("first pixel of the strip, top row") << QPoint(681, 0) << false;
    QTest::newRow("first pixel of the strip, bottom row") << QPoint(681, 23) << false;
    QTest::newRow("right below the strip") << QPoint(681, 24) << true;
    QTest::newRow("last pixel of the strip") << QPoint(799, 23) << false;
    QTest::newRow("below the end of the strip") << QPoint(799, 24) << true;
    QTest::newRow("left end of the title bar") << QPoint(0, 0) << true;
    QTest::newRow("middle of the title bar") << OnTitle << true;
    QTest::newRow("content") << OnContent << true;
    QTest::newRow("last pixel of the window") << QPoint(799, 399) << true;
}

void tst_FramelessWindowInput::pressStartsADragOutsideTheButtonStrip()
{
    QFETCH(QPoint, at);
    QFETCH(bool, starts);

    // GIVEN a window, WHEN the left button is pressed there, and the cursor goes on over the content
    Window window;
    QVERIFY(window.press(at));
    const QPoint before = window.pos();
    const bool accepted = window.moveTo(OnContent);

    // THEN the window has moved along, or not
    QCOMPARE(accepted, starts);
    QCOMPARE(window.pos(), starts ? before + OnContent - at : before);
    QCOMPARE(window.size(), WindowSize);
}

void tst_FramelessWindowInput::withoutTitleBarThereIsNoStrip_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("top right") << QPoint(799, 0);
    QTest::newRow("where the strip would begin") << QPoint(681, 10);
    QTest::newRow("where a bar of the default width has its strip") << QPoint(600, 10);
    QTest::newRow("middle") << OnContent;
}

void tst_FramelessWindowInput::withoutTitleBarThereIsNoStrip()
{
    QFETCH(QPoint, at);
    Window window(false);
    QVERIFY(!window.getTitleBar()->isVisible());
    QVERIFY(window.press(at));
    QVERIFY(window.moveTo(at + Step));
    QCOMPARE(window.pos(), Start + Step);
}

void tst_FramelessWindowInput::withoutTitleBarTheWindowFollowsOverItsTop()
{
    const QPoint nearTheTop(50, 5);
    const QPoint up(0, -10);
    Window window(false);
    QVERIFY(window.press(nearTheTop));
    QVERIFY(window.moveTo(nearTheTop + up));
    QCOMPARE(window.pos(), Start + up);
}

// An application that has put the bar into its own page may delete it with that.
void tst_FramelessWindowInput::deletedTitleBarIsNotFollowed()
{
    // GIVEN a window whose title bar is gone
    Window window(false);
    delete window.getTitleBar();
    QVERIFY(!window.getTitleBar());

    // THEN it is still dragged
    QVERIFY(window.press(OnContent));
    QVERIFY(window.moveTo(OnContent + Step));
    QCOMPARE(window.pos(), Start + Step);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, OnContent);
    QTest::mouseDClick(&window, Qt::LeftButton, {}, OnTitle);
    QTest::keyClick(&window, Qt::Key_F11);
    QVERIFY(!window.isMaximized());

    // AND what goes to the bar is lost
    window.setWindowTitle(QStringLiteral("lost"));
    window.setWindowIcon(QIcon());
    QCOMPARE(window.windowTitle(), QString());
    QVERIFY(window.windowIcon().isNull());
    window.setCentralWidget(new QWidget);
    QVERIFY(window.centralWidget());
}

void tst_FramelessWindowInput::everyPressIsAccepted_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at");
    const struct
    {
        const char *name;
        QPoint at;
    } places[] = {{"title", OnTitle}, {"buttons", OnButtons}, {"content", OnContent}};
    for (const auto &[name, at] : places) {
        QTest::addRow("left, on the %s", name) << Qt::LeftButton << at;
        QTest::addRow("right, on the %s", name) << Qt::RightButton << at;
        QTest::addRow("middle, on the %s", name) << Qt::MiddleButton << at;
    }
}

void tst_FramelessWindowInput::everyPressIsAccepted()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    Window window;
    QVERIFY(window.press(at, button));

    // also of a maximised window
    window.showMaximized();
    QVERIFY(window.press(at, button));
}

void tst_FramelessWindowInput::otherButtonsDoNotStartADrag_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_FramelessWindowInput::otherButtonsDoNotStartADrag()
{
    QFETCH(Qt::MouseButton, button);
    Window window;
    window.press(OnTitle, button);
    QVERIFY(!window.moveTo(OnTitle + Step, button));
    QCOMPARE(window.pos(), Start);
}

void tst_FramelessWindowInput::otherButtonsDoNotDisturbADrag()
{
    // GIVEN a drag
    Window window;
    window.press(OnTitle);

    // WHEN another button is pressed, be it over the strip
    window.press(OnButtons, Qt::RightButton);
    window.press(OnContent, Qt::RightButton);

    // THEN the drag goes on from where it began
    QVERIFY(window.moveTo(OnTitle + Step));
    QCOMPARE(window.pos(), Start + Step);
}

void tst_FramelessWindowInput::leftButtonCountsWhateverElseIsHeld()
{
    Window window;
    window.modifiers = Qt::ShiftModifier | Qt::ControlModifier;
    window.otherButtons = Qt::RightButton;

    window.press(OnTitle);
    QVERIFY(window.moveTo(OnTitle + Step));
    QCOMPARE(window.pos(), Start + Step);
    window.release(OnTitle);
    QVERIFY(!window.moveTo(OnTitle + Step));

    QVERIFY(window.doubleClick(OnTitle));
    QVERIFY(window.isMaximized());
}

void tst_FramelessWindowInput::pressInTheStripEndsADrag()
{
    // GIVEN a drag whose release was lost
    Window window;
    window.press(OnTitle);

    // WHEN the left button is pressed in the strip
    window.press(OnButtons);

    // THEN the drag is over
    QVERIFY(!window.moveTo(OnTitle + Step));
    QCOMPARE(window.pos(), Start);
}

void tst_FramelessWindowInput::windowFollowsTheCursor()
{
    // GIVEN a drag
    Window window;
    window.press(OnTitle);

    // WHEN the cursor goes on, also off the screen
    const QPoint ways[] = {QPoint(1, 0), QPoint(-15, 40), QPoint(-600, -700), QPoint(900, 900)};
    QPoint expected = Start;
    for (const QPoint &way : ways) {
        // The cursor is still over the same place of the window before each move.
        QVERIFY(window.moveTo(OnTitle + way));
        expected += way;

        // THEN the window keeps its place under it
        QCOMPARE(window.pos(), expected);
        QCOMPARE(window.size(), WindowSize);
    }
}

void tst_FramelessWindowInput::moveWithoutPressIsIgnored()
{
    Window window;
    QVERIFY(!window.moveTo(OnTitle, Qt::NoButton));
    QVERIFY(!window.moveTo(OnContent, Qt::LeftButton));
    QCOMPARE(window.pos(), Start);
}

void tst_FramelessWindowInput::dragGoesOnUntilAReleaseIsHeardOf()
{
    // GIVEN a drag whose release went elsewhere, of a window that hears of moves without a button
    Window window;
    window.setMouseTracking(true);
    window.press(OnTitle);

    // THEN the window follows the cursor though no button is held
    QVERIFY(window.moveTo(OnTitle + Step, Qt::NoButton));
    QCOMPARE(window.pos(), Start + Step);
}

void tst_FramelessWindowInput::moveOverTheButtonStripIsIgnored_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<bool>("moves");
    QTest::newRow("last pixel left of the strip") << QPoint(680, 23) << true;
    QTest::newRow("first pixel of the strip") << QPoint(681, 23) << false;
    QTest::newRow("right below the strip") << QPoint(681, 24) << true;
    QTest::newRow("right of the window, level with the strip") << QPoint(900, 10) << false;
    QTest::newRow("above the strip") << QPoint(700, -5) << false;
}

void tst_FramelessWindowInput::moveOverTheButtonStripIsIgnored()
{
    QFETCH(QPoint, at);
    QFETCH(bool, moves);

    // GIVEN a drag
    Window window;
    window.press(OnContent);

    // WHEN the cursor gets there
    QCOMPARE(window.moveTo(at), moves);

    // THEN the window follows, or waits until the cursor has left the strip
    QCOMPARE(window.pos(), moves ? Start + at - OnContent : Start);
    const QPoint before = window.pos();
    QVERIFY(window.moveTo(OnContent + Step));
    QCOMPARE(window.pos(), before + Step);
}

void tst_FramelessWindowInput::maximisedWindowIsNotDragged()
{
    // GIVEN a maximised window
    Window window;
    window.showMaximized();
    QVERIFY(window.isMaximized());
    QTRY_COMPARE(window.geometry(), window.screen()->availableGeometry());
    const QRect geometry = window.geometry();

    // WHEN the user drags it
    QVERIFY(window.press(OnTitle));
    QVERIFY(!window.moveTo(OnTitle + Step));

    // THEN it stays
    QCOMPARE(window.geometry(), geometry);
    QVERIFY(window.isMaximized());
}

void tst_FramelessWindowInput::pressOnAMaximisedWindowCountsOnceItIsRestored()
{
    // GIVEN a maximised window that is pressed
    Window window;
    window.showMaximized();
    QTRY_COMPARE(window.geometry(), window.screen()->availableGeometry());
    window.press(OnContent);
    QVERIFY(!window.moveTo(OnContent + Step));

    // WHEN it is restored with the button still down
    window.showNormal();
    QTRY_COMPARE(window.geometry(), QRect(Start, WindowSize));

    // THEN it follows the cursor
    QVERIFY(window.moveTo(OnContent));
}

void tst_FramelessWindowInput::fullScreenWindowIsDragged()
{
    Window window;
    window.showFullScreen();
    QTRY_COMPARE(window.geometry(), window.screen()->geometry());

    window.press(OnContent);
    QVERIFY(window.moveTo(OnContent + Step));

    QCOMPARE(window.pos(), window.screen()->geometry().topLeft() + Step);
}

void tst_FramelessWindowInput::decoratedWindowKeepsItsFrameUnderTheCursor()
{
    // GIVEN a window to be placed that has no content yet, and therefore a platform frame
    FramelessWindow window(true, nullptr);
    window.setGeometry(QRect(Start, WindowSize));
    window.show();
    QTRY_VERIFY(window.frameGeometry() != window.geometry());
    const QPoint place = window.frameGeometry().topLeft();
    const QPoint from = window.mapToGlobal(OnContent);

    // WHEN it is dragged
    Tarn::Test::mousePress(&window, from);
    Tarn::Test::mouseMove(&window, from + Step);

    // THEN the frame goes as far as the cursor
    QCOMPARE(window.frameGeometry().topLeft(), place + Step);
}

void tst_FramelessWindowInput::releaseEndsTheDrag_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("on the title") << OnTitle << Qt::LeftButton;
    QTest::newRow("over the buttons") << OnButtons << Qt::LeftButton;
    QTest::newRow("outside the window") << QPoint(-100, 1000) << Qt::LeftButton;
    QTest::newRow("of another button") << OnTitle << Qt::RightButton;
}

void tst_FramelessWindowInput::releaseEndsTheDrag()
{
    QFETCH(QPoint, at);
    QFETCH(Qt::MouseButton, button);
    Window window;
    window.press(OnTitle);
    QVERIFY(window.moveTo(OnTitle + Step));
    window.release(at, button);
    QVERIFY(!window.moveTo(OnTitle + Step));
    QCOMPARE(window.pos(), Start + Step);
}

void tst_FramelessWindowInput::releaseUnchecksTheTitleButtons()
{
    // GIVEN a window whose title buttons are all checked
    Window window;
    const TitleBar *bar = window.getTitleBar();
    for (int index = 0; index < 5; ++index) {
        bar->titleButton(index)->setCheckable(true);
        bar->titleButton(index)->setChecked(true);
    }

    // WHEN a button of the mouse is pressed, and then released
    window.press(OnContent);
    QVERIFY(bar->titleButton(0)->isChecked());
    window.release(OnContent);

    // THEN none is checked any more
    for (int index = 0; index < 5; ++index)
        QVERIFY(!bar->titleButton(index)->isChecked());
}

void tst_FramelessWindowInput::dragOverTheTitleTextMovesTheWindow()
{
    // GIVEN a window with a title
    Window window;
    window.setWindowTitle(QStringLiteral("Monitor"));
    QLabel *label = window.getTitleBar()->titleLabel();
    const QPoint grip = label->rect().center();
    QVERIFY(label->mapTo(&window, grip).x() < 681);

    // WHEN the pointer drags the text
    QTest::mousePress(label, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent move(QEvent::MouseMove, grip + Step, label->mapTo(&window, grip + Step),
                     label->mapToGlobal(grip + Step), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &move);

    // THEN the window goes along
    QCOMPARE(window.pos(), Start + Step);
}

void tst_FramelessWindowInput::dragOnAWidgetThatTakesThePressDoesNotMoveTheWindow()
{
    // GIVEN a window with a push button for content
    Window window;
    auto *button = new QPushButton;
    window.setCentralWidget(button);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    const QPoint grip = button->rect().center();

    // WHEN the pointer is pressed there and moves
    QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, grip);
    QVERIFY(!window.moveTo(OnContent));

    // THEN the button is down and the window where it was
    QVERIFY(button->isDown());
    QCOMPARE(window.pos(), Start);
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, grip);
}

void tst_FramelessWindowInput::edgesDoNotResize_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("left edge") << QPoint(0, 200);
    QTest::newRow("right edge") << QPoint(799, 200);
    QTest::newRow("top edge") << QPoint(300, 0);
    QTest::newRow("bottom edge") << QPoint(300, 399);
    QTest::newRow("bottom right corner") << QPoint(799, 399);
}

void tst_FramelessWindowInput::edgesDoNotResize()
{
    QFETCH(QPoint, at);
    Window window;
    window.press(at);
    window.moveTo(at + Step);
    QCOMPARE(window.geometry(), QRect(Start + Step, WindowSize));
    QVERIFY(!window.testAttribute(Qt::WA_SetCursor));
}

void tst_FramelessWindowInput::stripFollowsTheWidthOfTheWindow()
{
    Window window;
    window.resize(500, 300);
    QCoreApplication::processEvents();
    QCOMPARE(window.getTitleBar()->width(), 500);

    window.press(QPoint(381, 10));
    QVERIFY(!window.moveTo(OnContent));
    window.press(QPoint(380, 10));
    QVERIFY(window.moveTo(OnContent));
}

void tst_FramelessWindowInput::stripFollowsTheHeightOfTheTitleBar()
{
    // GIVEN a window with a title bar higher than usual
    Window window;
    window.getTitleBar()->setFixedHeight(40);
    QTRY_COMPARE(window.getTitleBar()->height(), 40);

    // THEN the strip reaches down to its end
    window.press(QPoint(681, 39));
    QVERIFY(!window.moveTo(OnContent));
    window.press(QPoint(681, 40));
    QVERIFY(window.moveTo(OnContent));

    // and so does the room for double clicks
    QVERIFY(!window.doubleClick(QPoint(300, 40)));
    QVERIFY(window.doubleClick(QPoint(300, 39)));
}

void tst_FramelessWindowInput::stripLiesAtTheTopOfTheWindowWhereverTheTitleBarIs()
{
    // GIVEN a window with something above its title bar
    Window window;
    window.setContentsMargins(0, 50, 0, 0);
    QTRY_COMPARE(window.getTitleBar()->mapTo(&window, QPoint()), QPoint(0, 50));

    // THEN the bar's size counts from the window's corner
    window.press(OnButtons);
    QVERIFY(!window.moveTo(OnContent));
    window.press(OnButtons + QPoint(0, 50));
    QVERIFY(window.moveTo(OnContent));
    QVERIFY(!window.doubleClick(OnTitle + QPoint(0, 50)));
    QVERIFY(window.doubleClick(OnTitle));
}

void tst_FramelessWindowInput::doubleClickOnTheTitleTogglesMaximised_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("last pixel left of the strip") << QPoint(679, 10) << Qt::LeftButton << true;
    QTest::newRow("first pixel of the strip") << QPoint(680, 10) << Qt::LeftButton << false;
    QTest::newRow("last pixel of the strip") << QPoint(799, 23) << Qt::LeftButton << false;
    QTest::newRow("left end of the title bar") << QPoint(0, 0) << Qt::LeftButton << true;
    QTest::newRow("bottom row of the title bar") << QPoint(300, 23) << Qt::LeftButton << true;
    QTest::newRow("right below the title bar") << QPoint(300, 24) << Qt::LeftButton << false;
    QTest::newRow("right below the strip") << QPoint(750, 24) << Qt::LeftButton << false;
    QTest::newRow("another button on the title bar") << OnTitle << Qt::RightButton << true;
}

void tst_FramelessWindowInput::doubleClickOnTheTitleTogglesMaximised()
{
    QFETCH(QPoint, at);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, toggles);
    Window window;
    QCOMPARE(window.doubleClick(at, button), toggles);
    QCOMPARE(window.isMaximized(), toggles);
}

void tst_FramelessWindowInput::doubleClickRestoresAMaximisedWindow()
{
    // GIVEN a window that a double click has maximised
    Window window;
    window.doubleClick(OnTitle);
    QVERIFY(window.isMaximized());
    QVERIFY(offersRestore(window));
    QTRY_COMPARE(window.geometry(), window.screen()->availableGeometry());

    // WHEN the title is double clicked once more
    QVERIFY(window.doubleClick(OnTitle));

    // THEN the window is as it was
    QVERIFY(!window.isMaximized());
    QVERIFY(!offersRestore(window));
    QTRY_COMPARE(window.geometry(), QRect(Start, WindowSize));
}

void tst_FramelessWindowInput::doubleClickAsksTheTitleBar()
{
    Window window;
    QSignalSpy maximumed(window.getTitleBar(), &TitleBar::maximumed);
    QSignalSpy normaled(window.getTitleBar(), &TitleBar::normaled);
    window.doubleClick(OnTitle);
    QCOMPARE(maximumed.count(), 1);
    window.doubleClick(OnTitle);
    QCOMPARE(normaled.count(), 1);
    QCOMPARE(maximumed.count(), 1);
    window.doubleClick(OnContent);
    QCOMPARE(maximumed.count() + normaled.count(), 2);
}

void tst_FramelessWindowInput::withoutTitleBarADoubleClickDoesNothing_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("where the title would be") << OnTitle;
    QTest::newRow("where the buttons would be") << OnButtons;
    QTest::newRow("content") << OnContent;
}

void tst_FramelessWindowInput::withoutTitleBarADoubleClickDoesNothing()
{
    QFETCH(QPoint, at);
    Window window(false);
    QSignalSpy maximumed(window.getTitleBar(), &TitleBar::maximumed);
    QVERIFY(!window.doubleClick(at));
    QCOMPARE(maximumed.count(), 0);
    QVERIFY(!window.isMaximized());
}

static void addModifierRows()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("alone") << Qt::KeyboardModifiers();
    QTest::newRow("with Shift") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("with Control and Alt") << (Qt::ControlModifier | Qt::AltModifier);
}

void tst_FramelessWindowInput::escapeClosesTheWindow_data()
{
    addModifierRows();
}

void tst_FramelessWindowInput::escapeClosesTheWindow()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    Window window;
    QVERIFY(window.isVisible());
    QVERIFY(pressKey(&window, Qt::Key_Escape, modifiers));
    QVERIFY(!window.isVisible());
}

// Asks its user first, as editors do.
class CarefulWindow : public Window
{
public:
    int asked = 0;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++asked;
        event->ignore();
    }
};

void tst_FramelessWindowInput::escapeIsACloseThatTheWindowMayRefuse()
{
    CarefulWindow window;
    QVERIFY(pressKey(&window, Qt::Key_Escape));
    QCOMPARE(window.asked, 1);
    QVERIFY(window.isVisible());

    // as the close button is
    window.getTitleBar()->titleButton(Close)->click();
    QCOMPARE(window.asked, 2);
    QVERIFY(window.isVisible());
}

void tst_FramelessWindowInput::escapeDoesNotAskTheCloseFunction()
{
    Window window;
    int asked = 0;
    window.getTitleBar()->appendCloseEvent([&] {
        ++asked;
        return false;
    });
    pressKey(&window, Qt::Key_Escape);
    QCOMPARE(asked, 0);
    QVERIFY(!window.isVisible());
}

void tst_FramelessWindowInput::f11ClicksTheMaximiseButton_data()
{
    addModifierRows();
}

void tst_FramelessWindowInput::f11ClicksTheMaximiseButton()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);

    // GIVEN a window
    Window window;
    QSignalSpy clicked(window.getTitleBar()->titleButton(Maximise), &QToolButton::clicked);

    // WHEN F11 is pressed again and again, THEN each time the button is clicked, be it hidden, and the state
    // changes
    for (const bool maximised : {true, false, true}) {
        clicked.clear();
        QVERIFY(pressKey(&window, Qt::Key_F11, modifiers));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(window.isMaximized(), maximised);
        QCOMPARE(offersRestore(window), maximised);
    }
}

void tst_FramelessWindowInput::f11DoesNotClickADisabledButton()
{
    Window window;
    window.getTitleBar()->titleButton(Maximise)->setEnabled(false);
    QVERIFY(pressKey(&window, Qt::Key_F11));
    QVERIFY(!window.isMaximized());
}

void tst_FramelessWindowInput::f11MaximisesAWindowWithoutTitleBar()
{
    Window window(false);
    for (const bool maximised : {true, false}) {
        QVERIFY(pressKey(&window, Qt::Key_F11));
        QCOMPARE(window.isMaximized(), maximised);
    }
}

void tst_FramelessWindowInput::otherKeysEndInTheWindow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("a letter") << int(Qt::Key_A) << Qt::KeyboardModifiers();
    QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers();
    QTest::newRow("Space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("an arrow") << int(Qt::Key_Left) << Qt::KeyboardModifiers();
    QTest::newRow("F10") << int(Qt::Key_F10) << Qt::KeyboardModifiers();
    QTest::newRow("F12") << int(Qt::Key_F12) << Qt::KeyboardModifiers();
    QTest::newRow("Control and Q") << int(Qt::Key_Q) << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void tst_FramelessWindowInput::otherKeysEndInTheWindow()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);

    // GIVEN a key that a plain window does not accept, and a window in a page that hears of all keys nobody
    // wants
    QWidget plainWindow;
    QVERIFY(!pressKey(&plainWindow, key, modifiers));
    KeyCounter page;
    auto *window = new Window;
    window->setParent(&page, Qt::Widget);
    auto *plain = new QWidget(&page);
    page.show();
    pressKey(plain, key, modifiers);
    QCOMPARE(page.keys, 1);

    // WHEN a key is pressed in the window, and in its content
    QVERIFY(pressKey(window, key, modifiers));
    QVERIFY(pressKey(window->centralWidget(), key, modifiers));

    // THEN it ends there, and nothing happens
    QCOMPARE(page.keys, 1);
    QVERIFY(window->isVisible());
    QVERIFY(!window->isMaximized());
}

void tst_FramelessWindowInput::keysThatTheContentWantsDoNotReachTheWindow()
{
    Window window;
    auto *content = new KeyCounter;
    window.setCentralWidget(content);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    pressKey(content, Qt::Key_Escape);
    QCOMPARE(content->keys, 1);
    QVERIFY(window.isVisible());
}

QTEST_MAIN(tst_FramelessWindowInput)

#include "tst_framelesswindow_input.moc"
