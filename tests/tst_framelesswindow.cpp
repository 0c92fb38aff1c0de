// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the window is made of, its content, title and state. Mouse and keys are in
// tst_framelesswindow_input.cpp.

#include "support/functionguard.h"

#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QMetaEnum>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <memory>
#include <optional>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Test::FunctionGuard;
using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::FramelessWindow;
using Tarn::Widgets::TitleBar;

namespace {

constexpr int Logo = 0;
constexpr int Minimise = 1;
constexpr int Maximise = 2;
constexpr int Restore = 3;
constexpr int Close = 4;

constexpr Qt::WindowFlags AddedFlags =
    Qt::FramelessWindowHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

QMainWindow &asMainWindow(QMainWindow &window)
{
    return window;
}

QFrame *frameOf(FramelessWindow &window)
{
    return qobject_cast<QFrame *>(asMainWindow(window).centralWidget());
}

// What the frame holds, from top to bottom.
QList<const QWidget *> framed(FramelessWindow &window)
{
    QList<const QWidget *> widgets;
    const QLayout *layout = frameOf(window)->layout();
    for (int i = 0; i < layout->count(); ++i)
        widgets.append(layout->itemAt(i)->widget());
    return widgets;
}

QIcon someIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

QRgb iconColor(const QIcon &icon)
{
    const QImage image = icon.pixmap(16, 16).toImage();
    return image.isNull() ? 0 : image.pixel(8, 8);
}

void click(FramelessWindow &window, int button)
{
    QTest::mouseClick(window.getTitleBar()->titleButton(button), Qt::LeftButton);
}

bool offersRestore(const FramelessWindow &window)
{
    return !window.getTitleBar()->titleButton(Restore)->isHidden();
}

bool offersMaximise(const FramelessWindow &window)
{
    return !window.getTitleBar()->titleButton(Maximise)->isHidden();
}

} // namespace

class tst_FramelessWindow : public QObject
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
    void windowIsAnAppMainWindow();
    void signalAndSlotCanBeConnectedByName();
    void directionsHaveTheirNumbers();
    void flagsAreThoseOfTheConstructor_data();
    void flagsAreThoseOfTheConstructor();
    void groundIsTranslucentAndStyled_data();
    void groundIsTranslucentAndStyled();
    void styleSheetPaintsTheGround();
    void titleBarIsThereBeforeTheContent();
    void titleBarDiesWithTheWindow_data();
    void titleBarDiesWithTheWindow();
    void hiddenIsLeftToSubclasses();

    // Content
    void contentLiesInAFrameBelowTheTitleBar_data();
    void contentLiesInAFrameBelowTheTitleBar();
    void titleBarIsFixedInHeightAndContentTakesTheRest();
    void withoutTitleBarTheFrameHoldsTheContentAlone();
    void nullContentIsIgnored_data();
    void nullContentIsIgnored();
    void secondContentReplacesTheFirst_data();
    void secondContentReplacesTheFirst();
    void sameContentTwiceStays_data();
    void sameContentTwiceStays();
    void contentIsOwnedByTheWindow();
    void deletedContentIsForgotten();
    void windowMayDieBeforeContentThatWasReplaced();
    void titleBarOutlivesAFrameThatOthersReplace();
    void titleBarOutlivesAFrameThatOthersTakeAway();

    // Placement
    void placedWindowBecomesFramelessAtTheOrigin_data();
    void placedWindowBecomesFramelessAtTheOrigin();
    void placementAddsEveryHintThatIsMissing();
    void otherWindowsStayWhereTheyAre();
    void firstContentHidesAPlacedWindowOnScreen();
    void placedWindowKeepsItsFlagsAtTheSecondContent();

    // Title and icon
    void titleIsTheTitleBars();
    void titleReachesPlatformAndScreenReaders_data();
    void titleReachesPlatformAndScreenReaders();
    void iconIsTheLogosAndThePlatforms_data();
    void iconIsTheLogosAndThePlatforms();
    void iconOutlivesAChangeOfTheApplications();
    void titleAndIconReachAWindowThatIsMadeAnew();
    void accessibleNameOfTheApplicationStays();
    void iconTextIsTheWidgets();

    // State
    void switchTogglesBetweenMaximisedAndNormal();
    void switchMaximisesAWindowOnTheFullScreen();
    void switchShowsAHiddenWindow();
    void stateThatComesFromElsewhereLeavesTheTitleBar();
    void maximiseAndRestoreButtonsDriveTheState();
    void firstClickDecidesWhichOfThePairShows();
    void restoreButtonOfAPlacedWindowMaximises();
    void minimiseButtonMinimises();
    void closeButtonClosesUnlessTheCloseFunctionRefuses();
    void closeIsAcceptedAsAWidgetDoes();
    void cursorFollowsTheStyle_data();
    void cursorFollowsTheStyle();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessWindow::windowIsAnAppMainWindow()
{
    FramelessWindow window(nullptr);
    QObject *object = &window;
    QCOMPARE(object->metaObject()->className(), "Tarn::Widgets::FramelessWindow");
    QCOMPARE(object->metaObject()->superClass(), &Tarn::Utils::AppMainWindow::staticMetaObject);
    QCOMPARE(object->qt_metacast("Tarn::Utils::AppMainWindow"),
             static_cast<void *>(static_cast<Tarn::Utils::AppMainWindow *>(&window)));
    QVERIFY(object->inherits("QMainWindow"));
    QVERIFY(!window.isVisible());
    QVERIFY(window.findChildren<FramelessHelper *>().isEmpty());
}

void tst_FramelessWindow::signalAndSlotCanBeConnectedByName()
{
    const QMetaObject &meta = FramelessWindow::staticMetaObject;
    QVERIFY(meta.indexOfSignal("Hidden()") >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("swithMaxNormal()") >= meta.methodOffset());
}

void tst_FramelessWindow::directionsHaveTheirNumbers()
{
    QCOMPARE(int(FramelessWindow::eLeft), 0);
    QCOMPARE(int(FramelessWindow::eTop), 1);
    QCOMPARE(int(FramelessWindow::eRight), 2);
    QCOMPARE(int(FramelessWindow::eBottom), 3);
    QCOMPARE(int(FramelessWindow::eNormal), 4);
    QCOMPARE(QMetaEnum::fromType<FramelessWindow::eDirection>().keyCount(), 5);
}

void tst_FramelessWindow::flagsAreThoseOfTheConstructor_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("without a parent") << false;
    QTest::newRow("with a parent") << true;
}

void tst_FramelessWindow::flagsAreThoseOfTheConstructor()
{
    QFETCH(bool, withParent);

    // GIVEN the flags of a main window of Qt's own
    QWidget owner;
    QWidget *parent = withParent ? &owner : nullptr;
    const QMainWindow plain(parent);
    QVERIFY(!plain.windowFlags().testFlag(Qt::FramelessWindowHint));

    // THEN all but a window to be placed are frameless from the start
    const FramelessWindow window(parent);
    QCOMPARE(window.windowFlags(), plain.windowFlags() | AddedFlags);
    QCOMPARE(window.parentWidget(), parent);
    const FramelessWindow notPlaced(false, parent);
    QCOMPARE(notPlaced.windowFlags(), plain.windowFlags() | AddedFlags);
    QCOMPARE(notPlaced.parentWidget(), parent);
    const FramelessWindow placed(true, parent);
    QCOMPARE(placed.windowFlags(), plain.windowFlags());
    QCOMPARE(placed.parentWidget(), parent);
}

void tst_FramelessWindow::groundIsTranslucentAndStyled_data()
{
    QTest::addColumn<bool>("placement");
    QTest::newRow("to be placed") << true;
    QTest::newRow("not to be placed") << false;
}

void tst_FramelessWindow::groundIsTranslucentAndStyled()
{
    QFETCH(bool, placement);
    const FramelessWindow window(placement, nullptr);
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(window.contentsMargins(), QMargins());
}

void tst_FramelessWindow::styleSheetPaintsTheGround()
{
    // GIVEN a window with content, which paints nothing by itself
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget, false);
    window.resize(60, 40);
    window.show();
    const auto painted = [&] {
        QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        window.render(&image);
        return image;
    };
    QCOMPARE(painted().pixelColor(30, 20).alpha(), 0);

    // WHEN a style sheet gives the frame a ground
    window.setStyleSheet(QStringLiteral("*[isFramelessCentralWidget=\"true\"] { background: #c02040; }"));

    // THEN that shows, up to the window's corners
    for (const QPoint &pos : {QPoint(30, 20), QPoint(0, 0), QPoint(59, 39)})
        QCOMPARE(painted().pixelColor(pos), QColor(0xc0, 0x20, 0x40));
}

void tst_FramelessWindow::titleBarIsThereBeforeTheContent()
{
    const FramelessWindow window(nullptr);
    QVERIFY(window.getTitleBar());
    QVERIFY(!window.getTitleBar()->parent());
    QVERIFY(!window.centralWidget());
}

void tst_FramelessWindow::titleBarDiesWithTheWindow_data()
{
    QTest::addColumn<bool>("withContent");
    QTest::addColumn<bool>("withTitleBar");
    QTest::newRow("no content") << false << false;
    QTest::newRow("content without title bar") << true << false;
    QTest::newRow("content with title bar") << true << true;
}

void tst_FramelessWindow::titleBarDiesWithTheWindow()
{
    QFETCH(bool, withContent);
    QFETCH(bool, withTitleBar);

    // GIVEN a window
    auto window = std::make_unique<FramelessWindow>(nullptr);
    const QPointer<TitleBar> bar = window->getTitleBar();
    if (withContent)
        window->setCentralWidget(new QWidget, withTitleBar);
    QVERIFY(bar);
    QCOMPARE(bar->parent() != nullptr, withTitleBar);

    // WHEN it goes
    window.reset();

    // THEN its title bar goes with it
    QVERIFY(bar.isNull());
}

void tst_FramelessWindow::hiddenIsLeftToSubclasses()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    QSignalSpy hidden(&window, &FramelessWindow::Hidden);
    window.show();
    window.hide();
    window.showMinimized();
    window.showMaximized();
    window.close();
    QCOMPARE(hidden.count(), 0);

    Q_EMIT window.Hidden();
    QCOMPARE(hidden.count(), 1);
}

void tst_FramelessWindow::contentLiesInAFrameBelowTheTitleBar_data()
{
    QTest::addColumn<bool>("said");
    QTest::newRow("by the short form") << false;
    QTest::newRow("by saying so") << true;
}

void tst_FramelessWindow::contentLiesInAFrameBelowTheTitleBar()
{
    QFETCH(bool, said);

    // GIVEN a window
    FramelessWindow window(nullptr);
    auto *content = new QWidget;

    // WHEN it gets content
    if (said)
        window.setCentralWidget(content, true);
    else
        window.setCentralWidget(content);

    // THEN the content is the window's, and lies in a frame with nothing around it
    QCOMPARE(window.centralWidget(), content);
    QFrame *frame = frameOf(window);
    QVERIFY(frame);
    QCOMPARE(frame->metaObject(), &QFrame::staticMetaObject);
    QCOMPARE(frame->parentWidget(), &window);
    QCOMPARE(frame->property("isFramelessCentralWidget"), QVariant(true));
    QVERIFY(qobject_cast<QVBoxLayout *>(frame->layout()));
    QCOMPARE(frame->layout()->spacing(), 0);
    QCOMPARE(frame->layout()->contentsMargins(), QMargins());
    QCOMPARE(framed(window), QList<const QWidget *>({window.getTitleBar(), content}));
    QCOMPARE(content->parentWidget(), frame);
    QCOMPARE(window.getTitleBar()->parentWidget(), frame);
}

void tst_FramelessWindow::titleBarIsFixedInHeightAndContentTakesTheRest()
{
    // GIVEN a window whose content would rather be small
    FramelessWindow window(nullptr);
    auto *content = new QWidget;
    content->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    window.setCentralWidget(content);

    // WHEN it is shown
    window.resize(400, 300);
    window.show();

    // THEN both take the width, and the content all that is left of the height
    QCOMPARE(window.getTitleBar()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window.getTitleBar()->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(content->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(content->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window.getTitleBar()->size(), QSize(400, 24));
    QCOMPARE(window.getTitleBar()->mapTo(&window, QPoint()), QPoint());
    QCOMPARE(content->size(), QSize(400, 276));
    QCOMPARE(content->mapTo(&window, QPoint()), QPoint(0, 24));
}

void tst_FramelessWindow::withoutTitleBarTheFrameHoldsTheContentAlone()
{
    FramelessWindow window(nullptr);
    auto *content = new QWidget;
    window.setCentralWidget(content, false);
    window.resize(400, 300);
    window.show();
    QCOMPARE(framed(window), QList<const QWidget *>({content}));
    QCOMPARE(frameOf(window)->property("isFramelessCentralWidget"), QVariant(true));
    QCOMPARE(content->size(), QSize(400, 300));
    QVERIFY(window.getTitleBar());
    QVERIFY(!window.getTitleBar()->isVisible());
    QVERIFY(!window.getTitleBar()->parent());
}

void tst_FramelessWindow::nullContentIsIgnored_data()
{
    QTest::addColumn<bool>("placement");
    QTest::addColumn<bool>("withTitleBar");
    QTest::newRow("with title bar") << false << true;
    QTest::newRow("without title bar") << false << false;
    QTest::newRow("to be placed") << true << true;
}

void tst_FramelessWindow::nullContentIsIgnored()
{
    QFETCH(bool, placement);
    QFETCH(bool, withTitleBar);

    // GIVEN a window without content, WHEN it is to get none
    FramelessWindow window(placement, nullptr);
    window.move(50, 60);
    const Qt::WindowFlags flags = window.windowFlags();
    window.setCentralWidget(nullptr, withTitleBar);
    window.setCentralWidget(nullptr);

    // THEN nothing happens
    QVERIFY(!window.centralWidget());
    QVERIFY(!asMainWindow(window).centralWidget());
    QCOMPARE(window.windowFlags(), flags);
    QCOMPARE(window.pos(), QPoint(50, 60));

    // and content that is there stays
    const QPointer<QWidget> content = new QWidget;
    window.setCentralWidget(content, withTitleBar);
    window.setCentralWidget(nullptr, !withTitleBar);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.centralWidget(), content.data());
    QCOMPARE(framed(window).size(), withTitleBar ? 2 : 1);
}

void tst_FramelessWindow::secondContentReplacesTheFirst_data()
{
    QTest::addColumn<bool>("barAtFirst");
    QTest::addColumn<bool>("barThen");
    QTest::newRow("with title bar, with title bar") << true << true;
    QTest::newRow("with title bar, without") << true << false;
    QTest::newRow("without, with title bar") << false << true;
    QTest::newRow("without, without") << false << false;
}

void tst_FramelessWindow::secondContentReplacesTheFirst()
{
    QFETCH(bool, barAtFirst);
    QFETCH(bool, barThen);

    // GIVEN a window on screen with content and a title
    FramelessWindow window(nullptr);
    window.setWindowTitle(QStringLiteral("Monitor"));
    const QPointer<QWidget> first = new QWidget;
    window.setCentralWidget(first, barAtFirst);
    window.resize(400, 300);
    window.show();
    const QPointer<QFrame> firstFrame = frameOf(window);
    const QPointer<TitleBar> bar = window.getTitleBar();
    QCOMPARE(bar->isVisible(), barAtFirst);

    // WHEN other content comes
    auto *second = new QWidget;
    window.setCentralWidget(second, barThen);

    // THEN the title bar changes its place at once
    QVERIFY(bar);
    QCOMPARE(bar->parentWidget(), barThen ? frameOf(window) : nullptr);

    // and the first is deleted with its frame, while the title bar lives on
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(first.isNull());
    QVERIFY(firstFrame.isNull());
    QVERIFY(bar);
    QCOMPARE(window.getTitleBar(), bar.data());
    QCOMPARE(window.windowTitle(), QStringLiteral("Monitor"));
    QCOMPARE(window.centralWidget(), second);
    QCOMPARE(framed(window).size(), barThen ? 2 : 1);
    QCOMPARE(bar->isVisible(), barThen);
    QVERIFY(second->isVisible());
    QCOMPARE(second->height(), barThen ? 276 : 300);
}

void tst_FramelessWindow::sameContentTwiceStays_data()
{
    QTest::addColumn<bool>("barThen");
    QTest::newRow("with title bar again") << true;
    QTest::newRow("without title bar now") << false;
}

void tst_FramelessWindow::sameContentTwiceStays()
{
    QFETCH(bool, barThen);

    // GIVEN a window on screen with content
    FramelessWindow window(nullptr);
    const QPointer<QWidget> content = new QLabel(QStringLiteral("content"));
    window.setCentralWidget(content, true);
    window.show();
    const QPointer<TitleBar> bar = window.getTitleBar();

    // WHEN the same is set again
    window.setCentralWidget(content, barThen);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();

    // THEN it is still there, in a new frame
    QVERIFY(content);
    QVERIFY(bar);
    QVERIFY(content->isVisible());
    QCOMPARE(bar->isVisible(), barThen);
    QCOMPARE(window.centralWidget(), content.data());
    QCOMPARE(framed(window).constLast(), content.data());
    QCOMPARE(framed(window).size(), barThen ? 2 : 1);
}

void tst_FramelessWindow::contentIsOwnedByTheWindow()
{
    auto window = std::make_unique<FramelessWindow>(nullptr);
    const QPointer<QWidget> content = new QWidget;
    window->setCentralWidget(content);
    window.reset();
    QVERIFY(content.isNull());
}

void tst_FramelessWindow::deletedContentIsForgotten()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.show();
    delete window.centralWidget();
    QVERIFY(!window.centralWidget());
    auto *next = new QWidget;
    window.setCentralWidget(next);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.centralWidget(), next);
    QCOMPARE(framed(window), QList<const QWidget *>({window.getTitleBar(), next}));
}

void tst_FramelessWindow::windowMayDieBeforeContentThatWasReplaced()
{
    // GIVEN a window whose content was replaced twice, without a return to the event loop that deletes the
    // former
    auto window = std::make_unique<FramelessWindow>(nullptr);
    const QPointer<TitleBar> bar = window->getTitleBar();
    const QPointer<QWidget> contents[] = {new QWidget, new QWidget, new QWidget};
    for (const QPointer<QWidget> &content : contents)
        window->setCentralWidget(content);
    QVERIFY(contents[0]);

    // WHEN the window is deleted
    window.reset();

    // THEN everything goes with it
    for (const QPointer<QWidget> &content : contents)
        QVERIFY(content.isNull());
    QVERIFY(bar.isNull());
}

void tst_FramelessWindow::titleBarOutlivesAFrameThatOthersReplace()
{
    // GIVEN a window with content
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    const QPointer<TitleBar> bar = window.getTitleBar();
    const QPointer<QFrame> frame = frameOf(window);

    // WHEN somebody replaces the frame as a main window's central widget
    asMainWindow(window).setCentralWidget(new QWidget);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(frame.isNull());

    // THEN the title bar is there for the next content
    QVERIFY(bar);
    QVERIFY(!window.centralWidget());
    auto *content = new QWidget;
    window.setCentralWidget(content);
    QCOMPARE(framed(window), QList<const QWidget *>({bar.data(), content}));
}

void tst_FramelessWindow::titleBarOutlivesAFrameThatOthersTakeAway()
{
    // GIVEN a frame that somebody took out of the window
    auto window = std::make_unique<FramelessWindow>(nullptr);
    window->setCentralWidget(new QWidget);
    const QPointer<TitleBar> bar = window->getTitleBar();
    std::unique_ptr<QWidget> frame(window->takeCentralWidget());
    QVERIFY(frame);

    // WHEN it is deleted
    frame.reset();

    // THEN the title bar remains, and dies with the window
    QVERIFY(bar);
    QCOMPARE(window->getTitleBar(), bar.data());
    window.reset();
    QVERIFY(bar.isNull());
}

void tst_FramelessWindow::placedWindowBecomesFramelessAtTheOrigin_data()
{
    QTest::addColumn<bool>("withTitleBar");
    QTest::newRow("with title bar") << true;
    QTest::newRow("without title bar") << false;
}

void tst_FramelessWindow::placedWindowBecomesFramelessAtTheOrigin()
{
    QFETCH(bool, withTitleBar);

    // GIVEN a window to be placed, somewhere on the screen
    FramelessWindow window(true, nullptr);
    window.move(50, 60);
    const Qt::WindowFlags flags = window.windowFlags();
    QVERIFY(!flags.testFlag(Qt::FramelessWindowHint));
    QVERIFY(offersMaximise(window));

    // WHEN it gets its content
    window.setCentralWidget(new QWidget, withTitleBar);

    // THEN it lies frameless at the origin and offers to restore, without being maximised
    QCOMPARE(window.pos(), QPoint(0, 0));
    QCOMPARE(window.windowFlags(), flags | AddedFlags);
    QVERIFY(offersRestore(window));
    QVERIFY(!offersMaximise(window));
    QVERIFY(!window.isMaximized());
}

void tst_FramelessWindow::placementAddsEveryHintThatIsMissing()
{
    // GIVEN a window to be placed that has none of the hints, and what Qt makes of them
    constexpr Qt::WindowFlags flags = Qt::Window | Qt::WindowTitleHint;
    FramelessWindow window(true, nullptr);
    window.setWindowFlags(flags);
    QVERIFY(!(window.windowFlags() & AddedFlags));
    QMainWindow plain;
    plain.setWindowFlags(flags);
    plain.setWindowFlags(plain.windowFlags() | AddedFlags);
    QVERIFY(plain.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));

    // WHEN it gets its content
    window.setCentralWidget(new QWidget);

    // THEN it has them all
    QCOMPARE(window.windowFlags(), plain.windowFlags());
}

void tst_FramelessWindow::otherWindowsStayWhereTheyAre()
{
    FramelessWindow window(false, nullptr);
    window.move(50, 60);
    const Qt::WindowFlags flags = window.windowFlags();
    window.setCentralWidget(new QWidget);
    QCOMPARE(window.pos(), QPoint(50, 60));
    QCOMPARE(window.windowFlags(), flags);
    QVERIFY(offersRestore(window));
    QVERIFY(offersMaximise(window));
}

void tst_FramelessWindow::firstContentHidesAPlacedWindowOnScreen()
{
    FramelessWindow placed(true, nullptr);
    placed.show();
    placed.setCentralWidget(new QWidget);
    QVERIFY(!placed.isVisible());

    FramelessWindow window(nullptr);
    window.show();
    window.setCentralWidget(new QWidget);
    QVERIFY(window.isVisible());
}

void tst_FramelessWindow::placedWindowKeepsItsFlagsAtTheSecondContent()
{
    // GIVEN a placed window on screen, away from the origin
    FramelessWindow window(true, nullptr);
    window.setCentralWidget(new QWidget);
    window.show();
    window.move(50, 60);
    const Qt::WindowFlags flags = window.windowFlags();

    // WHEN it gets other content
    window.setCentralWidget(new QWidget);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // THEN it is at the origin again and still on screen: its flags are what they were
    QCOMPARE(window.windowFlags(), flags);
    QVERIFY(window.isVisible());
    QCOMPARE(window.pos(), QPoint(0, 0));
}

void tst_FramelessWindow::titleIsTheTitleBars()
{
    FramelessWindow window(nullptr);
    QVERIFY(window.windowTitle().isEmpty());
    window.setWindowTitle(QStringLiteral("Monitor"));
    QCOMPARE(window.getTitleBar()->title(), QStringLiteral("Monitor"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Monitor"));
    window.getTitleBar()->setTitle(QStringLiteral("Log"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Log"));
    QVERIFY(static_cast<QWidget &>(window).windowTitle().isEmpty());
}

void tst_FramelessWindow::titleReachesPlatformAndScreenReaders_data()
{
    QTest::addColumn<bool>("shownFirst");
    QTest::newRow("set before the first show") << false;
    QTest::newRow("set on screen") << true;
}

void tst_FramelessWindow::titleReachesPlatformAndScreenReaders()
{
    QFETCH(bool, shownFirst);

    // GIVEN a window
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    if (shownFirst)
        window.show();

    // WHEN it gets a title and is shown
    window.setWindowTitle(QStringLiteral("Monitor"));
    window.show();

    // THEN the platform and screen readers know it, the base class does not
    QCOMPARE(window.windowHandle()->title(), QStringLiteral("Monitor"));
    QCOMPARE(window.accessibleName(), QStringLiteral("Monitor"));
    QCOMPARE(QAccessible::queryAccessibleInterface(&window)->text(QAccessible::Name),
             QStringLiteral("Monitor"));
    QVERIFY(static_cast<QWidget &>(window).windowTitle().isEmpty());

    // and they follow each change
    window.setWindowTitle(QStringLiteral("Log"));
    QCOMPARE(window.windowHandle()->title(), QStringLiteral("Log"));
    QCOMPARE(window.accessibleName(), QStringLiteral("Log"));
    window.setWindowTitle(QString());
    QVERIFY(window.windowHandle()->title().isEmpty());
    QVERIFY(window.accessibleName().isEmpty());
}

void tst_FramelessWindow::iconIsTheLogosAndThePlatforms_data()
{
    QTest::addColumn<bool>("shownFirst");
    QTest::newRow("set before the first show") << false;
    QTest::newRow("set on screen") << true;
}

void tst_FramelessWindow::iconIsTheLogosAndThePlatforms()
{
    QFETCH(bool, shownFirst);

    // GIVEN a window
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    if (shownFirst)
        window.show();
    const QIcon ofTheBase = static_cast<QWidget &>(window).windowIcon();

    // WHEN it gets an icon and is shown
    const QIcon icon = someIcon(Qt::red);
    window.setWindowIcon(icon);
    window.show();

    // THEN the logo and the platform show it, the base class does not know it
    QCOMPARE(window.getTitleBar()->titleButtonIcon(Logo).cacheKey(), icon.cacheKey());
    QCOMPARE(window.windowIcon().cacheKey(), icon.cacheKey());
    QCOMPARE(iconColor(window.windowHandle()->icon()), qRgb(255, 0, 0));
    QCOMPARE(static_cast<QWidget &>(window).windowIcon().cacheKey(), ofTheBase.cacheKey());
    QVERIFY(!window.testAttribute(Qt::WA_SetWindowIcon));

    // and it is the logo's that is told
    const QIcon logo = someIcon(Qt::blue);
    window.getTitleBar()->setTitleButtonIcon(Logo, logo);
    QCOMPARE(window.windowIcon().cacheKey(), logo.cacheKey());
}

void tst_FramelessWindow::iconOutlivesAChangeOfTheApplications()
{
    // GIVEN a window on screen with an icon of its own
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.setWindowIcon(someIcon(Qt::red));
    window.show();
    QCOMPARE(iconColor(window.windowHandle()->icon()), qRgb(255, 0, 0));

    // WHEN the application gets another icon
    QApplication::setWindowIcon(someIcon(Qt::blue));
    QCoreApplication::sendPostedEvents();

    // THEN the platform still shows the window's
    QCOMPARE(iconColor(window.windowHandle()->icon()), qRgb(255, 0, 0));
}

void tst_FramelessWindow::titleAndIconReachAWindowThatIsMadeAnew()
{
    // GIVEN a window on screen with title and icon
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.setWindowTitle(QStringLiteral("Monitor"));
    window.setWindowIcon(someIcon(Qt::red));
    window.show();
    const QPointer<QWindow> former = window.windowHandle();

    // WHEN it gets other flags
    const Qt::WindowFlags flags = window.windowFlags() | Qt::WindowStaysOnTopHint;
    window.setWindowFlags(flags);
    window.show();

    // THEN its native window has both
    QCOMPARE(window.windowHandle()->title(), QStringLiteral("Monitor"));
    QCOMPARE(iconColor(window.windowHandle()->icon()), qRgb(255, 0, 0));

    // and so has another one, when the window was a part of a page for a while
    QWidget page;
    window.setParent(&page, Qt::Widget);
    QVERIFY(former.isNull());
    window.setParent(nullptr, flags);
    window.show();
    QCOMPARE(window.windowHandle()->title(), QStringLiteral("Monitor"));
    QCOMPARE(iconColor(window.windowHandle()->icon()), qRgb(255, 0, 0));
}

void tst_FramelessWindow::accessibleNameOfTheApplicationStays()
{
    FramelessWindow window(nullptr);
    window.setAccessibleName(QStringLiteral("Name for readers"));
    window.setWindowTitle(QStringLiteral("Monitor"));
    QCOMPARE(window.accessibleName(), QStringLiteral("Name for readers"));

    FramelessWindow later(nullptr);
    later.setWindowTitle(QStringLiteral("Monitor"));
    later.setAccessibleName(QStringLiteral("Name for readers"));
    later.setWindowTitle(QStringLiteral("Log"));
    QCOMPARE(later.accessibleName(), QStringLiteral("Name for readers"));
}

void tst_FramelessWindow::iconTextIsTheWidgets()
{
    FramelessWindow window(nullptr);
    window.setWindowIconText(QStringLiteral("Mon"));
    QCOMPARE(window.windowIconText(), QStringLiteral("Mon"));
    QCOMPARE(window.property("windowIconText").toString(), QStringLiteral("Mon"));
    QVERIFY(window.windowTitle().isEmpty());
}

void tst_FramelessWindow::switchTogglesBetweenMaximisedAndNormal()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.setGeometry(100, 120, 300, 200);
    window.show();
    for (const bool maximised : {true, false, true, false}) {
        QVERIFY(QMetaObject::invokeMethod(&window, "swithMaxNormal"));
        QCOMPARE(window.isMaximized(), maximised);
        QVERIFY(window.isVisible());
    }
    QTRY_COMPARE(window.geometry(), QRect(100, 120, 300, 200));
}

void tst_FramelessWindow::switchMaximisesAWindowOnTheFullScreen()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.showFullScreen();
    QVERIFY(window.isFullScreen());

    window.swithMaxNormal();

    QVERIFY(window.isMaximized());
}

void tst_FramelessWindow::switchShowsAHiddenWindow()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    for (const bool maximised : {true, false}) {
        window.hide();
        window.swithMaxNormal();
        QVERIFY(window.isVisible());
        QCOMPARE(window.isMaximized(), maximised);
    }
}

void tst_FramelessWindow::stateThatComesFromElsewhereLeavesTheTitleBar()
{
    // GIVEN a window whose title bar knows the state
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.getTitleBar()->setMaximized(false);
    window.show();

    // WHEN somebody else changes the state, THEN the title bar offers what it did
    window.showMaximized();
    QVERIFY(window.isMaximized());
    QVERIFY(offersMaximise(window) && !offersRestore(window));
    window.showNormal();
    QVERIFY(offersMaximise(window) && !offersRestore(window));
}

void tst_FramelessWindow::maximiseAndRestoreButtonsDriveTheState()
{
    // GIVEN a window on screen whose title bar knows the state
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.getTitleBar()->setMaximized(false);
    window.show();

    // WHEN the visible one of the pair is clicked again and again
    for (const bool maximised : {true, false, true, false}) {
        const int button = maximised ? Maximise : Restore;
        QVERIFY(window.getTitleBar()->isTitleButtonVisible(button));
        click(window, button);

        // THEN the state changes, and the other button is there instead
        QCOMPARE(window.isMaximized(), maximised);
        QCOMPARE(offersRestore(window), maximised);
        QCOMPARE(offersMaximise(window), !maximised);
    }
}

void tst_FramelessWindow::firstClickDecidesWhichOfThePairShows()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.show();
    QVERIFY(offersRestore(window) && offersMaximise(window));
    click(window, Maximise);
    QVERIFY(window.isMaximized());
    QVERIFY(offersRestore(window) && !offersMaximise(window));
}

// A placed window's title bar is told that it is maximised, and the window goes by its state alone.
void tst_FramelessWindow::restoreButtonOfAPlacedWindowMaximises()
{
    FramelessWindow window(true, nullptr);
    window.setCentralWidget(new QWidget);
    window.show();
    QSignalSpy normaled(window.getTitleBar(), &TitleBar::normaled);

    click(window, Restore);
    QCOMPARE(normaled.count(), 1);
    QVERIFY(window.isMaximized());

    click(window, Maximise);
    QVERIFY(!window.isMaximized());
}

void tst_FramelessWindow::minimiseButtonMinimises()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    window.show();
    QVERIFY(!window.isMinimized());
    click(window, Minimise);
    QVERIFY(window.isMinimized());
}

void tst_FramelessWindow::closeButtonClosesUnlessTheCloseFunctionRefuses()
{
    FramelessWindow window(nullptr);
    window.setCentralWidget(new QWidget);
    bool mayClose = false;
    window.getTitleBar()->appendCloseEvent([&] { return mayClose; });
    window.show();
    click(window, Close);
    QVERIFY(window.isVisible());
    mayClose = true;
    click(window, Close);
    QVERIFY(!window.isVisible());
}

void tst_FramelessWindow::closeIsAcceptedAsAWidgetDoes()
{
    // GIVEN a window on screen that is to be deleted when closed
    const QPointer<FramelessWindow> window = new FramelessWindow(nullptr);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setCentralWidget(new QWidget);
    const QPointer<TitleBar> bar = window->getTitleBar();
    window->show();

    // WHEN it is closed
    QVERIFY(window->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    // THEN it is gone, with its title bar
    QVERIFY(window.isNull());
    QVERIFY(bar.isNull());
}

void tst_FramelessWindow::cursorFollowsTheStyle_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::newRow("left") << int(FramelessWindow::eLeft) << Qt::SizeHorCursor;
    QTest::newRow("top") << int(FramelessWindow::eTop) << Qt::SizeVerCursor;
    QTest::newRow("right") << int(FramelessWindow::eRight) << Qt::SizeHorCursor;
    QTest::newRow("bottom") << int(FramelessWindow::eBottom) << Qt::SizeVerCursor;
    QTest::newRow("normal") << int(FramelessWindow::eNormal) << Qt::ArrowCursor;
    // As far as the enumeration's bits reach.
    QTest::newRow("five, which is none") << 5 << Qt::ArrowCursor;
    QTest::newRow("six, which is none") << 6 << Qt::ArrowCursor;
    QTest::newRow("seven, which is none") << 7 << Qt::ArrowCursor;
}

void tst_FramelessWindow::cursorFollowsTheStyle()
{
    QFETCH(int, direction);
    QFETCH(Qt::CursorShape, shape);

    // GIVEN a window with another cursor than any of the styles
    FramelessWindow window(nullptr);
    window.setCursor(Qt::WaitCursor);

    // WHEN this style is set
    window.setCursorStyle(static_cast<FramelessWindow::eDirection>(direction));

    // THEN the window has its cursor
    QVERIFY(window.testAttribute(Qt::WA_SetCursor));
    QCOMPARE(window.cursor().shape(), shape);
}

QTEST_MAIN(tst_FramelessWindow)

#include "tst_framelesswindow.moc"
