// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"
#include "otherprogram.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <X11/keysym.h>
#include <functional>
#include <optional>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Test::addZoneRows;
using Tarn::Test::Desktop;
using Tarn::Test::OtherProgram;
using Tarn::Test::Zone;
using Tarn::Widgets::FramelessWindow;

namespace {

constexpr int TitleHeight = 24;
const QRect Place(200, 150, 800, 400);

// Indices of title buttons.
constexpr int LogoButton = 0;
constexpr int MinButton = 1;
constexpr int MaxButton = 2;
constexpr int RestoreButton = 3;
constexpr int CloseButton = 4;

class Window : public FramelessWindow
{
public:
    explicit Window(bool placement = false)
        : FramelessWindow(placement, nullptr)
        , page(new QWidget)
        , field(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(page);
        layout->addWidget(field);
        layout->addStretch();
        setCentralWidget(page);
        setGeometry(Place);
    }

    QToolButton *titleButton(int index) const
    {
        return getTitleBar()->titleButton(index);
    }

    /* As a window is after the first change of its state: one of the two is offered, not both. */
    void offerMaximising()
    {
        getTitleBar()->setMaximized(false);
    }

    using FramelessWindow::destroy;

    QWidget *const page;
    QLineEdit *const field;
};

// One of the ways in which a user asks for the other state.
using Switch = std::function<bool(Desktop &, const Window &)>;

QPoint titlePoint()
{
    return Place.topLeft() + QPoint(300, TitleHeight / 2);
}

} // namespace

Q_DECLARE_METATYPE(Switch)

class tst_FramelessWindow_x11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dragMovesTheWindow_data();
    void dragMovesTheWindow();
    void dragStartsLeftOfTheButtonStrip_data();
    void dragStartsLeftOfTheButtonStrip();
    void otherButtonsDoNotDrag();
    void borderDragMovesInsteadOfResizing_data();
    void borderDragMovesInsteadOfResizing();
    void cursorStaysAnArrowOverTheBorder();

    void userMaximisesAndRestores_data();
    void userMaximisesAndRestores();
    void applicationsRestoreCounts();
    void fullScreenTakesTheWholeScreen();
    void windowBeginsMaximised();
    void doubleClickCountsLeftOfTheButtonStrip_data();
    void doubleClickCountsLeftOfTheButtonStrip();
    void maximisedWindowIsNotDragged();
    void restoredWindowIsDraggedAgain();
    void applicationSetsTheState_data();
    void applicationSetsTheState();
    void placedWindowBeginsInTheCorner();
    void minimiseButtonMinimises();
    void escapeCloses();
    void closeButtonCloses();
    void pressGivesTheKeyboard_data();
    void pressGivesTheKeyboard();
    void titleReachesTheTaskSwitcher();
    void pictureWithAStyleSheet();

private:
    std::optional<Desktop> m_desktop;
};

void tst_FramelessWindow_x11::init()
{
    m_desktop.emplace();
    QVERIFY(m_desktop->isAsExpected());
}

void tst_FramelessWindow_x11::cleanup()
{
    m_desktop.reset();
}

void tst_FramelessWindow_x11::dragMovesTheWindow_data()
{
    QTest::addColumn<QPoint>("start");
    QTest::newRow("title") << QPoint(300, TitleHeight / 2);
    QTest::newRow("free area of the page") << QPoint(400, 300);
    QTest::newRow("page below the buttons") << QPoint(790, TitleHeight + 3);
}

void tst_FramelessWindow_x11::dragMovesTheWindow()
{
    QFETCH(QPoint, start);

    // GIVEN a window where it asked to be
    Window window;
    QVERIFY(m_desktop->show(&window));
    QCOMPARE(m_desktop->geometry(&window), Place);

    // WHEN it is dragged there
    const QPoint pos = Place.topLeft() + start;
    const QPoint way(-110, 130);
    QVERIFY(m_desktop->input.moveTo(pos));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(pos + way));

    // THEN it is under the pointer before the button is let go, and does not follow it afterwards
    QTRY_COMPARE(m_desktop->geometry(&window), Place.translated(way));
    QVERIFY(m_desktop->input.release());
    QVERIFY(m_desktop->input.moveTo(pos));
    QCOMPARE(m_desktop->geometry(&window), Place.translated(way));
}

void tst_FramelessWindow_x11::dragStartsLeftOfTheButtonStrip_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("moves");
    QTest::newRow("last column before the strip") << Place.width() - 120 << true;
    QTest::newRow("first column of the strip") << Place.width() - 119 << false;
}

void tst_FramelessWindow_x11::dragStartsLeftOfTheButtonStrip()
{
    QFETCH(int, x);
    QFETCH(bool, moves);

    // GIVEN a window whose title bar has no buttons there that would take the press
    Window window;
    for (const int index : {MinButton, MaxButton, RestoreButton, CloseButton})
        window.getTitleBar()->setTitleButtonVisible(index, false);
    QVERIFY(m_desktop->show(&window));

    // WHEN a drag begins in that column of the title bar
    const QPoint start = Place.topLeft() + QPoint(x, 10);
    const QPoint way(-60, 40);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN the window moves only from outside the strip
    QTRY_COMPARE(m_desktop->geometry(&window), moves ? Place.translated(way) : Place);
}

void tst_FramelessWindow_x11::otherButtonsDoNotDrag()
{
    // GIVEN a window that was pressed, and let go, with the left button before
    Window window;
    QVERIFY(m_desktop->show(&window));
    QVERIFY(m_desktop->input.click(titlePoint() + QPoint(10, 0)));

    // WHEN it is dragged with the right button
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press(Qt::RightButton));
    QVERIFY(m_desktop->input.dragTo(titlePoint() + QPoint(50, 50)));
    QVERIFY(m_desktop->input.release(Qt::RightButton));

    // THEN it stays
    QCOMPARE(m_desktop->geometry(&window), Place);
}

void tst_FramelessWindow_x11::borderDragMovesInsteadOfResizing_data()
{
    addZoneRows();
}

void tst_FramelessWindow_x11::borderDragMovesInsteadOfResizing()
{
    QFETCH(Zone, zone);

    // GIVEN a window with nothing at its border that would take the press
    Window window;
    for (int index = LogoButton; index <= CloseButton; ++index)
        window.getTitleBar()->setTitleButtonVisible(index, false);
    QVERIFY(m_desktop->show(&window));

    // WHEN it is dragged by its border
    const QPoint start = zone.grip(Place);
    const QPoint way = zone.outwards(40);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN it keeps its size, and moves unless that place belongs to the buttons
    const bool isStrip =
        start.y() < Place.top() + TitleHeight && start.x() >= Place.left() + Place.width() - 119;
    QTRY_COMPARE(m_desktop->geometry(&window), isStrip ? Place : Place.translated(way));
}

void tst_FramelessWindow_x11::cursorStaysAnArrowOverTheBorder()
{
    // GIVEN a window
    const QImage arrow = m_desktop->referenceCursor(Qt::ArrowCursor);
    QVERIFY(!arrow.isNull());
    Window window;
    QVERIFY(m_desktop->show(&window));

    // WHEN the pointer is over its border, THEN it promises nothing
    for (const Zone &zone : Tarn::Test::zones()) {
        QVERIFY(m_desktop->input.moveTo(zone.grip(Place)));
        QCOMPARE(m_desktop->server.cursor(), arrow);
    }
}

void tst_FramelessWindow_x11::userMaximisesAndRestores_data()
{
    QTest::addColumn<Switch>("maximise");
    QTest::addColumn<Switch>("restore");

    const Switch doubleClick = [](Desktop &desktop, const Window &window) {
        return desktop.input.doubleClick(desktop.geometry(&window).topLeft() + QPoint(300, TitleHeight / 2));
    };
    const Switch key = [](Desktop &desktop, const Window &) { return desktop.input.key(XK_F11); };
    const Switch maximiseButton = [](Desktop &desktop, const Window &window) {
        return desktop.input.click(desktop.center(window.titleButton(MaxButton)));
    };
    const Switch restoreButton = [](Desktop &desktop, const Window &window) {
        return desktop.input.click(desktop.center(window.titleButton(RestoreButton)));
    };
    QTest::newRow("double click") << doubleClick << doubleClick;
    QTest::newRow("F11") << key << key;
    QTest::newRow("buttons") << maximiseButton << restoreButton;
    QTest::newRow("button, then double click") << maximiseButton << doubleClick;
    QTest::newRow("F11, then button") << key << restoreButton;
}

void tst_FramelessWindow_x11::userMaximisesAndRestores()
{
    QFETCH(Switch, maximise);
    QFETCH(Switch, restore);

    // GIVEN a window with the keyboard, on a screen that is not all for windows
    const QRect workArea = m_desktop->server.workArea();
    QVERIFY(!workArea.isEmpty() && workArea != m_desktop->server.screenGeometry());
    Window window;
    window.offerMaximising();
    QVERIFY(m_desktop->show(&window));
    QVERIFY(m_desktop->input.click(Place.center()));
    QTRY_VERIFY(m_desktop->hasKeyboard(&window));

    for (int turn = 0; turn < 2; ++turn) {
        // WHEN the user maximises it
        QVERIFY(maximise(*m_desktop, window));

        // THEN it covers the work area and offers to go back
        QTRY_COMPARE(m_desktop->geometry(&window), workArea);
        QTRY_VERIFY(window.isMaximized());
        QVERIFY(window.titleButton(RestoreButton)->isVisible());
        QVERIFY(!window.titleButton(MaxButton)->isVisible());

        // WHEN the user restores it
        QVERIFY(restore(*m_desktop, window));

        // THEN it is where and as large as it was
        QTRY_COMPARE(m_desktop->geometry(&window), Place);
        QTRY_VERIFY(!window.isMaximized());
        QVERIFY(window.titleButton(MaxButton)->isVisible());
        QVERIFY(!window.titleButton(RestoreButton)->isVisible());
    }
}

void tst_FramelessWindow_x11::doubleClickCountsLeftOfTheButtonStrip_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("maximises");
    QTest::newRow("last column before the strip") << Place.width() - 121 << 10 << true;
    QTest::newRow("first column of the strip") << Place.width() - 120 << 10 << false;
    QTest::newRow("last row of the title bar") << 300 << TitleHeight - 1 << true;
    QTest::newRow("first row below") << 300 << TitleHeight << false;
}

void tst_FramelessWindow_x11::doubleClickCountsLeftOfTheButtonStrip()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(bool, maximises);

    // GIVEN a window whose title bar has no buttons there that would take the clicks
    Window window;
    for (const int index : {MinButton, MaxButton, RestoreButton, CloseButton})
        window.getTitleBar()->setTitleButtonVisible(index, false);
    QVERIFY(m_desktop->show(&window));

    // WHEN that pixel is double-clicked
    QVERIFY(m_desktop->input.doubleClick(Place.topLeft() + QPoint(x, y)));

    // THEN the window is maximised only from the title bar outside the strip
    QTRY_COMPARE(m_desktop->geometry(&window), maximises ? m_desktop->server.workArea() : Place);
    QTRY_COMPARE(window.isMaximized(), maximises);
}

void tst_FramelessWindow_x11::applicationsRestoreCounts()
{
    // GIVEN a window that the user has maximised, and that the application has restored and moved
    const QRect elsewhere(300, 250, 400, 300);
    Window window;
    window.offerMaximising();
    QVERIFY(m_desktop->show(&window));
    window.titleButton(MaxButton)->click();
    QTRY_COMPARE(m_desktop->geometry(&window), m_desktop->server.workArea());
    window.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&window), Place);
    window.setGeometry(elsewhere);
    QTRY_COMPARE(m_desktop->geometry(&window), elsewhere);
    // The server is there before the application knows, which has yet to hear even of the place before.
    QVERIFY(m_desktop->server.settle());
    QCOMPARE(window.geometry(), elsewhere);

    // WHEN the application maximises and restores it, THEN it comes back to the new place
    window.showMaximized();
    QTRY_COMPARE(m_desktop->geometry(&window), m_desktop->server.workArea());
    window.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&window), elsewhere);
}

void tst_FramelessWindow_x11::fullScreenTakesTheWholeScreen()
{
    Window window;
    QVERIFY(m_desktop->show(&window));

    window.showFullScreen();
    QTRY_COMPARE(m_desktop->geometry(&window), QGuiApplication::primaryScreen()->geometry());
    QVERIFY(window.isFullScreen());

    window.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&window), Place);
}

void tst_FramelessWindow_x11::windowBeginsMaximised()
{
    Window window;
    window.showMaximized();
    QTRY_COMPARE(m_desktop->geometry(&window), m_desktop->server.workArea());
    QVERIFY(window.isMaximized());

    window.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&window), Place);
}

void tst_FramelessWindow_x11::maximisedWindowIsNotDragged()
{
    // GIVEN a window that the user has maximised
    const QRect workArea = m_desktop->server.workArea();
    Window window;
    QVERIFY(m_desktop->show(&window));
    QVERIFY(m_desktop->input.doubleClick(titlePoint()));
    QTRY_COMPARE(m_desktop->geometry(&window), workArea);
    QTRY_VERIFY(window.isMaximized());

    // WHEN its title is dragged
    QVERIFY(m_desktop->input.drag(QPoint(300, 10), QPoint(350, 200)));

    // THEN it stays
    QCOMPARE(m_desktop->geometry(&window), workArea);
    QVERIFY(window.isMaximized());
}

void tst_FramelessWindow_x11::restoredWindowIsDraggedAgain()
{
    // GIVEN a window that the user has maximised and restored
    Window window;
    QVERIFY(m_desktop->show(&window));
    QVERIFY(m_desktop->input.doubleClick(titlePoint()));
    QTRY_VERIFY(window.isMaximized());
    QVERIFY(m_desktop->input.doubleClick(m_desktop->geometry(&window).topLeft() + QPoint(300, 10)));
    QTRY_COMPARE(m_desktop->geometry(&window), Place);

    // WHEN its title is dragged, THEN it moves
    const QPoint way(70, 50);
    QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + way));
    QTRY_COMPARE(m_desktop->geometry(&window), Place.translated(way));

    // WHEN it is maximised and restored once more, THEN it comes back to its new place
    QVERIFY(m_desktop->input.doubleClick(titlePoint() + way));
    QTRY_COMPARE(m_desktop->geometry(&window), m_desktop->server.workArea());
    QVERIFY(m_desktop->input.doubleClick(QPoint(300, 10)));
    QTRY_COMPARE(m_desktop->geometry(&window), Place.translated(way));
}

void tst_FramelessWindow_x11::applicationSetsTheState_data()
{
    QTest::addColumn<bool>("isFullScreen");
    QTest::addColumn<bool>("isShownBefore");
    QTest::newRow("maximised from the start") << false << false;
    QTest::newRow("maximised later") << false << true;
    QTest::newRow("full screen from the start") << true << false;
    QTest::newRow("full screen later") << true << true;
}

void tst_FramelessWindow_x11::applicationSetsTheState()
{
    QFETCH(bool, isFullScreen);
    QFETCH(bool, isShownBefore);

    // GIVEN a window on a screen that is not all for windows
    const QRect screen = m_desktop->server.screenGeometry();
    const QRect workArea = m_desktop->server.workArea();
    QVERIFY(!workArea.isEmpty() && workArea != screen);
    Window window;
    if (isShownBefore)
        QVERIFY(m_desktop->show(&window));

    // WHEN the application calls for the state
    if (isFullScreen)
        window.showFullScreen();
    else
        window.showMaximized();
    QVERIFY(m_desktop->isShown(&window));

    // THEN the window has its geometry
    QTRY_COMPARE(m_desktop->geometry(&window), isFullScreen ? screen : workArea);
    QTRY_COMPARE(window.isFullScreen(), isFullScreen);
    QTRY_COMPARE(window.isMaximized(), !isFullScreen);

    // WHEN the application ends it, THEN the window is where and as large as it was given to be
    window.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&window), Place);
}

void tst_FramelessWindow_x11::placedWindowBeginsInTheCorner()
{
    // GIVEN a window that places itself
    FramelessWindow window(true, nullptr);
    window.setCentralWidget(new QWidget);
    window.resize(Place.size());

    // WHEN it is shown
    QVERIFY(m_desktop->show(&window));

    // THEN it is in the screen's corner, without a frame, and offers to be restored
    QTRY_COMPARE(m_desktop->geometry(&window), QRect(QPoint(0, 0), Place.size()));
    QVERIFY(window.getTitleBar()->isTitleButtonVisible(RestoreButton));
    QVERIFY(!window.getTitleBar()->isTitleButtonVisible(MaxButton));
}

void tst_FramelessWindow_x11::minimiseButtonMinimises()
{
    // GIVEN a window
    Window window;
    QVERIFY(m_desktop->show(&window));

    // WHEN its minimise button is clicked
    QVERIFY(m_desktop->input.click(m_desktop->center(window.titleButton(MinButton))));

    if (m_desktop->server.hasWindowManager()) {
        // THEN the window manager puts it away
        QTRY_VERIFY(m_desktop->server.isIconic(window.winId()));
        QTRY_VERIFY(!m_desktop->server.isViewable(window.winId()));
        QVERIFY(window.isMinimized());

        // WHEN it is brought back, THEN it is where and as large as it was
        window.showNormal();
        QTRY_VERIFY(m_desktop->server.isViewable(window.winId()));
        QTRY_COMPARE(m_desktop->geometry(&window), Place);
    } else {
        // THEN nobody would bring it back, so it is still there, and can be moved
        QVERIFY(m_desktop->server.isViewable(window.winId()));
        const QPoint way(25, 35);
        QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + way));
        QTRY_COMPARE(m_desktop->geometry(&window), Place.translated(way));
    }
}

void tst_FramelessWindow_x11::escapeCloses()
{
    // GIVEN a window with the keyboard
    Window window;
    QVERIFY(m_desktop->show(&window));
    QVERIFY(m_desktop->input.click(m_desktop->center(window.field)));
    QTRY_VERIFY(m_desktop->hasKeyboard(&window));

    // WHEN another key is pressed, THEN the window does not mind
    QVERIFY(m_desktop->input.key(XK_F10));
    QVERIFY(m_desktop->server.isViewable(window.winId()));

    // WHEN Escape is pressed, THEN it is closed
    QVERIFY(m_desktop->input.key(XK_Escape));
    QTRY_VERIFY(!m_desktop->server.isViewable(window.winId()));
    QVERIFY(!window.isVisible());
}

void tst_FramelessWindow_x11::closeButtonCloses()
{
    // GIVEN a window that asks before it closes
    Window window;
    bool mayClose = false;
    window.getTitleBar()->appendCloseEvent([&mayClose] { return mayClose; });
    QVERIFY(m_desktop->show(&window));

    // WHEN the close button is clicked and the answer is no, THEN the window stays
    const QPoint button = m_desktop->center(window.titleButton(CloseButton));
    QVERIFY(m_desktop->input.click(button));
    QVERIFY(m_desktop->server.isViewable(window.winId()));

    // WHEN it is clicked and the answer is yes, THEN the window is closed
    mayClose = true;
    QVERIFY(m_desktop->input.click(button));
    QTRY_VERIFY(!m_desktop->server.isViewable(window.winId()));
    QVERIFY(!window.isVisible());
}

void tst_FramelessWindow_x11::pressGivesTheKeyboard_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("title") << QPoint(300, TitleHeight / 2);
    QTest::newRow("free area of the page") << QPoint(400, 300);
    QTest::newRow("line edit") << QPoint(400, TitleHeight + 20);
}

void tst_FramelessWindow_x11::pressGivesTheKeyboard()
{
    QFETCH(QPoint, place);

    // GIVEN a window beside another program that has the keyboard
    Window window;
    window.field->setFocus();
    QVERIFY(m_desktop->show(&window));
    OtherProgram program(QRect(200, 600, 300, 100));
    QVERIFY(program.waitForWindow());
    QVERIFY(m_desktop->input.click(QPoint(350, 650)));
    QTRY_COMPARE(m_desktop->server.focusWindow(), program.window());
    QTRY_VERIFY(!window.isActiveWindow());

    // WHEN the window is pressed
    QVERIFY(m_desktop->input.click(Place.topLeft() + place));

    // THEN it has the keyboard, and what is typed goes there
    QTRY_VERIFY(m_desktop->hasKeyboard(&window));
    QTRY_VERIFY(window.isActiveWindow());
    QVERIFY(m_desktop->input.type(QStringLiteral("typed 42")));
    QTRY_COMPARE(window.field->text(), QStringLiteral("typed 42"));
}

void tst_FramelessWindow_x11::titleReachesTheTaskSwitcher()
{
    // GIVEN a window that was given a title before it was shown
    const QString first = QStringLiteral("Données – 数据");
    Window window;
    window.setWindowTitle(first);
    QVERIFY(m_desktop->show(&window));

    // THEN the screen knows it
    QTRY_COMPARE(m_desktop->server.title(window.winId()), first);

    // WHEN the title changes, THEN so does what the screen knows
    const QString second = QStringLiteral("Another");
    window.setWindowTitle(second);
    QTRY_COMPARE(m_desktop->server.title(window.winId()), second);

    // WHEN the window gets a new native window, THEN that has the title, too
    const WId former = window.winId();
    window.hide();
    window.destroy();
    QVERIFY(m_desktop->show(&window));
    QVERIFY(window.winId() != former);
    QTRY_COMPARE(m_desktop->server.title(window.winId()), second);
}

void tst_FramelessWindow_x11::pictureWithAStyleSheet()
{
    // GIVEN a style sheet for all the parts of a window, and a page that leaves some room around it
    const QColor ground(0x10, 0x20, 0x30);
    const QColor titleBar(0xff, 0x00, 0x00);
    qApp->setStyleSheet(QStringLiteral("*[isFramelessCentralWidget='true'] { background: %1 }"
                                       "*[isTitleBar='true'] { background: %2 }")
                            .arg(ground.name(), titleBar.name()));

    // WHEN the window is on the screen
    Window window;
    QVERIFY(m_desktop->show(&window));

    // THEN the title bar fills the top from side to side, and the central frame shows below, up to the edges
    const int right = Place.width() - 1;
    const int bottom = Place.height() - 1;
    QTRY_COMPARE(m_desktop->pixel(&window, {0, 0}), titleBar.rgb());
    QCOMPARE(m_desktop->pixel(&window, {300, TitleHeight - 1}), titleBar.rgb());
    QCOMPARE(m_desktop->pixel(&window, {right, 0}), titleBar.rgb());
    QCOMPARE(m_desktop->pixel(&window, {right, TitleHeight - 1}), titleBar.rgb());
    QCOMPARE(m_desktop->pixel(&window, {0, TitleHeight}), ground.rgb());
    QCOMPARE(m_desktop->pixel(&window, {300, bottom - 50}), ground.rgb());
    QCOMPARE(m_desktop->pixel(&window, {0, bottom}), ground.rgb());
    QCOMPARE(m_desktop->pixel(&window, {right, bottom}), ground.rgb());
}

QTEST_MAIN(tst_FramelessWindow_x11)
#include "tst_framelesswindow_x11.moc"
