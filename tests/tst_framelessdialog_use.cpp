// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the dialog does: moving, showing, results, languages.

#include "support/events.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRubberBand>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTouchDevice>
#include <QWindow>
#include <memory>
#include <optional>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::TitleBar;

namespace {

using Setter = void (FramelessDialog::*)(bool);
using Slot = void (FramelessDialog::*)();
using Action = void (*)(TestDialog &);

constexpr const char *Context = "Tarn::Widgets::FramelessDialog";

QPoint onTitle(const QWidget &dialog)
{
    return dialog.mapToGlobal(QPoint(dialog.width() / 2, 12));
}

QPoint onRightEdge(const QWidget &dialog)
{
    return dialog.mapToGlobal(QPoint(dialog.width() - 2, dialog.height() / 2));
}

void drag(QWidget &widget, const QPoint &from, const QPoint &by)
{
    mousePress(&widget, from);
    mouseMove(&widget, from + by);
    mouseRelease(&widget, from + by);
}

int rubberBandCount()
{
    int count = 0;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *widget : topLevels)
        count += qobject_cast<const QRubberBand *>(widget) ? 1 : 0;
    return count;
}

void click(QAbstractButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

class TouchPad : public QWidget
{
public:
    TouchPad()
    {
        setAttribute(Qt::WA_AcceptTouchEvents);
        setMinimumSize(50, 50);
    }

    int touches = 0;
    int presses = 0;

protected:
    bool event(QEvent *event) override
    {
        touches += event->type() == QEvent::TouchBegin ? 1 : 0;
        presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        const bool isTouch = event->type() >= QEvent::TouchBegin && event->type() <= QEvent::TouchEnd;
        return isTouch || QWidget::event(event);
    }
};

} // namespace

Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(Slot)
Q_DECLARE_METATYPE(Action)

class tst_FramelessDialogUse : public QObject
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

    // Moving and resizing
    void titleDragMovesOnlyAMovableDialog_data();
    void titleDragMovesOnlyAMovableDialog();
    void titleDragOverTheTitleTextMovesTheDialog();
    void edgeDragResizesOnlyAResizableDialog();
    void rubberBandsAreForwarded_data();
    void rubberBandsAreForwarded();
    void doubleClickOnTheTitleDoesNothing_data();
    void doubleClickOnTheTitleDoesNothing();

    // Showing
    void showSlotsTellTheTitleBarTheState_data();
    void showSlotsTellTheTitleBarTheState();
    void showOfAMaximisedDialogTellsTheTitleBar();
    void largeStatesFillTheirAreaAndGoBack_data();
    void largeStatesFillTheirAreaAndGoBack();
    void switchTogglesBetweenMaximisedAndNormal();
    void switchMaximisesADialogOnTheFullScreen();
    void switchShowsAHiddenDialog();
    void maximiseAndRestoreButtonsDriveTheState();
    void minimiseButtonMinimises();
    void pressInTheDialogActivatesIt_data();
    void pressInTheDialogActivatesIt();
    void pressInANativeChildActivatesTheDialog_data();
    void pressInANativeChildActivatesTheDialog();
    void pressInANativeChildThatHasLeftIsNoneInTheDialog();
    void touchInTheDialogActivatesIt();
    void keyboardGoesBackToWhereItCameFrom_data();
    void keyboardGoesBackToWhereItCameFrom();

    // Results
    void execReturnsTheResult_data();
    void execReturnsTheResult();
    void buttonsGoThroughWhatASubclassOverrides_data();
    void buttonsGoThroughWhatASubclassOverrides();
    void execThroughTheBaseClassIsTheSame();
    void openIsModalToTheWindowAndReportsTheResult();
    void returnKeyTakesTheDefaultButtonOnly();
    void applyButtonIsTheApplications();
    void closeFunctionCanKeepTheDialogOpen();
    void parentMayDieDuringExec();

    // Languages
    void buttonTextsAreTranslatedInTheClassContext();
    void buttonTextsFollowTheLanguage();
    void textsOfTheApplicationSurviveALanguageChange();
    void languageChangeCallsTheSubclassOnce();
    void otherChangesDoNotCallTheSubclass();
    void changesReachTheBaseClass();
    void eventFilterPassesToTheBaseClass();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessDialogUse::titleDragMovesOnlyAMovableDialog_data()
{
    QTest::addColumn<Setter>("setMovable");
    QTest::newRow("setDialogMovable") << &FramelessDialog::setDialogMovable;
    QTest::newRow("the misspelt setDialogtMovable") << &FramelessDialog::setDialogtMovable;
}

void tst_FramelessDialogUse::titleDragMovesOnlyAMovableDialog()
{
    QFETCH(Setter, setMovable);

    // GIVEN a dialog on screen that a drag on the title moves, and one on the ground does not
    TestDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    drag(dialog, dialog.mapToGlobal(QPoint(150, 24)), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(100, 100));
    drag(dialog, dialog.mapToGlobal(QPoint(150, 23)), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 140));

    // WHEN it is not to be movable
    (dialog.*setMovable)(false);

    // THEN the same drag leaves it where it is, until it is movable again
    QVERIFY(!dialog.helper()->widgetMovable());
    drag(dialog, onTitle(dialog), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(130, 140));
    (dialog.*setMovable)(true);
    drag(dialog, onTitle(dialog), QPoint(30, 40));
    QCOMPARE(dialog.pos(), QPoint(160, 180));
    QCOMPARE(dialog.size(), QSize(300, 200));
}

void tst_FramelessDialogUse::titleDragOverTheTitleTextMovesTheDialog()
{
    // GIVEN a dialog on screen with a title
    TestDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Rename"));
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    QLabel *label = dialog.m_pTitleBar->titleLabel();
    const QPoint grip = label->mapToGlobal(label->rect().center());

    // WHEN the pointer drags the text
    mousePress(label, grip);
    mouseMove(label, grip + QPoint(25, 35));
    mouseRelease(label, grip + QPoint(25, 35));

    // THEN the dialog goes along
    QCOMPARE(dialog.pos(), QPoint(125, 135));
}

void tst_FramelessDialogUse::edgeDragResizesOnlyAResizableDialog()
{
    // GIVEN a new dialog on screen, with which a drag at its right edge does nothing
    TestDialog dialog;
    dialog.setGeometry(100, 100, 300, 200);
    dialog.show();
    drag(dialog, onRightEdge(dialog), QPoint(50, 0));
    QCOMPARE(dialog.geometry(), QRect(100, 100, 300, 200));

    // WHEN it is to be resizable
    dialog.setDialogResizable(true);

    // THEN the same drag makes it wider, until it is not resizable any more
    const int cursor = onRightEdge(dialog).x() + 50;
    drag(dialog, onRightEdge(dialog), QPoint(50, 0));
    QCOMPARE(dialog.geometry(), QRect(QPoint(100, 100), QPoint(cursor, 299)));
    dialog.setDialogResizable(false);
    drag(dialog, onRightEdge(dialog), QPoint(50, 0));
    QCOMPARE(dialog.geometry().right(), cursor);
}

void tst_FramelessDialogUse::rubberBandsAreForwarded_data()
{
    QTest::addColumn<bool>("onMove");
    QTest::newRow("on move") << true;
    QTest::newRow("on resize") << false;
}

void tst_FramelessDialogUse::rubberBandsAreForwarded()
{
    QFETCH(bool, onMove);

    TestDialog dialog;
    QCOMPARE(rubberBandCount(), 0);
    const auto set = [&](bool on) {
        onMove ? dialog.setRubberBandOnMove(on) : dialog.setRubberBandOnResize(on);
    };
    set(true);
    QCOMPARE(dialog.helper()->rubberBandOnMove(), onMove);
    QCOMPARE(dialog.helper()->rubberBandOnResisze(), !onMove);
    QCOMPARE(rubberBandCount(), 1);
    set(false);
    QVERIFY(!dialog.helper()->rubberBandOnMove());
    QVERIFY(!dialog.helper()->rubberBandOnResisze());
    QCOMPARE(rubberBandCount(), 0);
}

void tst_FramelessDialogUse::doubleClickOnTheTitleDoesNothing_data()
{
    QTest::addColumn<bool>("maximised");
    QTest::newRow("normal") << false;
    QTest::newRow("maximised") << true;
}

void tst_FramelessDialogUse::doubleClickOnTheTitleDoesNothing()
{
    QFETCH(bool, maximised);

    // GIVEN a dialog on screen that could be maximised and resized
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.setDialogResizable(true);
    QRect geometry(100, 100, 300, 200);
    dialog.setGeometry(geometry);
    dialog.show();
    if (maximised) {
        dialog.showMaximized();
        geometry = QGuiApplication::primaryScreen()->availableGeometry();
    }
    QTRY_COMPARE(dialog.geometry(), geometry);
    QSignalSpy maximumed(dialog.m_pTitleBar, &TitleBar::maximumed);
    QSignalSpy normaled(dialog.m_pTitleBar, &TitleBar::normaled);

    // WHEN the title is double clicked, on the text, on the bar and through the platform
    QWidget *const receivers[] = {dialog.m_pTitleBar->titleLabel(), dialog.m_pTitleBar, &dialog};
    for (QWidget *receiver : receivers) {
        mousePress(receiver, onTitle(dialog));
        mouseRelease(receiver, onTitle(dialog));
        mouseDoubleClick(receiver, onTitle(dialog));
        mouseRelease(receiver, onTitle(dialog));
    }
    QTest::mouseDClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       dialog.mapFromGlobal(onTitle(dialog)));

    // THEN nobody asks for another state
    QCOMPARE(maximumed.count() + normaled.count(), 0);
    QCOMPARE(dialog.isMaximized(), maximised);
    QCOMPARE(dialog.geometry(), geometry);
    QCOMPARE(dialog.offersRestore(), maximised);
}

void tst_FramelessDialogUse::showSlotsTellTheTitleBarTheState_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<bool>("toldBefore");
    QTest::addColumn<bool>("told");
    QTest::addColumn<Qt::WindowStates>("state");
    for (const bool told : {false, true}) {
        const char *before = told ? "maximised" : "normal";
        QTest::addRow("show, told %s before", before)
            << QByteArrayLiteral("show") << told << false << Qt::WindowStates();
        QTest::addRow("showMaximized, told %s before", before)
            << QByteArrayLiteral("showMaximized") << told << true << Qt::WindowStates(Qt::WindowMaximized);
        QTest::addRow("showNormal, told %s before", before)
            << QByteArrayLiteral("showNormal") << told << false << Qt::WindowStates();
        QTest::addRow("showMinimized tells nothing, told %s before", before)
            << QByteArrayLiteral("showMinimized") << told << told << Qt::WindowStates(Qt::WindowMinimized);
        QTest::addRow("showFullScreen tells nothing, told %s before", before)
            << QByteArrayLiteral("showFullScreen") << told << told << Qt::WindowStates(Qt::WindowFullScreen);
        QTest::addRow("open tells nothing, told %s before", before)
            << QByteArrayLiteral("open") << told << told << Qt::WindowStates();
        QTest::addRow("exec tells nothing, told %s before", before)
            << QByteArrayLiteral("exec") << told << told << Qt::WindowStates();
    }
}

void tst_FramelessDialogUse::showSlotsTellTheTitleBarTheState()
{
    QFETCH(QByteArray, slot);
    QFETCH(bool, toldBefore);
    QFETCH(bool, told);
    QFETCH(Qt::WindowStates, state);

    // GIVEN a dialog whose title bar was told some state
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.m_pTitleBar->setMaximized(toldBefore);
    QCOMPARE(dialog.offersRestore(), toldBefore);
    std::optional<ModalDriver> driver;
    bool visibleMeanwhile = false;
    if (slot == "exec") {
        driver.emplace([&](QWidget *shown) {
            visibleMeanwhile = shown == &dialog;
            dialog.accept();
        });
    }

    // WHEN the slot is called by its name
    QVERIFY(QMetaObject::invokeMethod(&dialog, slot.constData()));

    // THEN the dialog is in the state, and the title bar knows as much of it as it is told
    QVERIFY(driver ? visibleMeanwhile : dialog.isVisible());
    QCOMPARE(dialog.windowState() & ~Qt::WindowStates(Qt::WindowActive), state);
    QCOMPARE(dialog.offersRestore(), told);
    QCOMPARE(dialog.offersMaximise(), !told);
}

void tst_FramelessDialogUse::showOfAMaximisedDialogTellsTheTitleBar()
{
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.setWindowState(Qt::WindowMaximized);
    QVERIFY(dialog.offersMaximise());
    dialog.show();
    QVERIFY(dialog.isMaximized());
    QVERIFY(dialog.offersRestore());
    QVERIFY(!dialog.offersMaximise());
}

void tst_FramelessDialogUse::largeStatesFillTheirAreaAndGoBack_data()
{
    QTest::addColumn<Slot>("showLarge");
    QTest::addColumn<QRect>("area");
    const QScreen *screen = QGuiApplication::primaryScreen();
    QTest::newRow("maximised") << &FramelessDialog::showMaximized << screen->availableGeometry();
    QTest::newRow("full screen") << &FramelessDialog::showFullScreen << screen->geometry();
}

void tst_FramelessDialogUse::largeStatesFillTheirAreaAndGoBack()
{
    QFETCH(Slot, showLarge);
    QFETCH(QRect, area);

    // GIVEN a dialog on screen
    TestDialog dialog;
    dialog.setGeometry(100, 120, 300, 200);
    dialog.show();
    const QSize cap = dialog.maximumSize();

    // WHEN it is made large, twice
    (dialog.*showLarge)();
    (dialog.*showLarge)();

    // THEN it fills the area, and afterwards is what it was
    QTRY_COMPARE(dialog.geometry(), area);
    dialog.showNormal();
    QTRY_COMPARE(dialog.geometry(), QRect(100, 120, 300, 200));
    QCOMPARE(dialog.maximumSize(), cap);
}

void tst_FramelessDialogUse::switchTogglesBetweenMaximisedAndNormal()
{
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.show();
    for (const bool maximised : {true, false, true}) {
        dialog.swithMaxNormal();
        QCOMPARE(dialog.isMaximized(), maximised);
        QCOMPARE(dialog.offersRestore(), maximised);
        QCOMPARE(dialog.offersMaximise(), !maximised);
    }
}

void tst_FramelessDialogUse::switchMaximisesADialogOnTheFullScreen()
{
    TestDialog dialog;
    dialog.showFullScreen();
    QVERIFY(dialog.isFullScreen());

    dialog.swithMaxNormal();

    QVERIFY(dialog.isMaximized());
}

void tst_FramelessDialogUse::switchShowsAHiddenDialog()
{
    TestDialog dialog;
    for (const bool maximised : {true, false}) {
        dialog.hide();
        dialog.swithMaxNormal();
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.isMaximized(), maximised);
    }
}

void tst_FramelessDialogUse::maximiseAndRestoreButtonsDriveTheState()
{
    // GIVEN a dialog on screen with the pair
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.show();

    // WHEN the visible one of the two is clicked again and again
    for (const bool maximised : {true, false, true, false}) {
        QToolButton *button = dialog.m_pTitleBar->titleButton(maximised ? Maximise : Restore);
        QVERIFY(button->isVisible());
        click(button);

        // THEN the state changes, and the other button is there instead
        QCOMPARE(dialog.isMaximized(), maximised);
        QCOMPARE(dialog.offersRestore(), maximised);
        QCOMPARE(dialog.offersMaximise(), !maximised);
    }
}

void tst_FramelessDialogUse::minimiseButtonMinimises()
{
    TestDialog dialog;
    dialog.setMinButtonVisible(true);
    dialog.show();
    QVERIFY(!dialog.isMinimized());
    click(dialog.m_pTitleBar->titleButton(Minimise));
    QVERIFY(dialog.isMinimized());
}

void tst_FramelessDialogUse::pressInTheDialogActivatesIt_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("windowMadeAnew");
    QTest::newRow("on the ground") << QStringLiteral("ground") << false;
    QTest::newRow("on the title") << QStringLiteral("title") << false;
    QTest::newRow("in a field") << QStringLiteral("field") << false;
    QTest::newRow("in a field of a dialog that got another native window") << QStringLiteral("field") << true;
}

void tst_FramelessDialogUse::pressInTheDialogActivatesIt()
{
    QFETCH(QString, place);
    QFETCH(bool, windowMadeAnew);

    // GIVEN a modeless dialog with a field, beside a main window that is active
    QWidget main;
    main.setGeometry(0, 0, 100, 100);
    main.show();
    TestDialog dialog(&main);
    dialog.setGeometry(200, 200, 300, 200);
    auto *content = new QVBoxLayout;
    auto *field = new QLineEdit;
    content->addWidget(field);
    dialog.setLayout(content);
    dialog.show();
    if (windowMadeAnew) {
        const QPointer<QWindow> former = dialog.windowHandle();
        const Qt::WindowFlags flags = dialog.windowFlags();
        dialog.setParent(&main, Qt::Widget);
        QVERIFY(former.isNull());
        dialog.setParent(&main, flags);
        dialog.show();
    }
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    main.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), main.windowHandle());

    // WHEN the user presses there
    QPoint pos(5, dialog.height() - 30);
    if (place == QLatin1String("title"))
        pos = QPoint(dialog.width() / 2, 12);
    else if (place == QLatin1String("field"))
        pos = field->mapTo(&dialog, field->rect().center());
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, pos);

    // THEN the dialog has the keyboard
    QTRY_COMPARE(QGuiApplication::focusWindow(), dialog.windowHandle());
    if (place == QLatin1String("field")) {
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_X);
        QCOMPARE(field->text(), QStringLiteral("x"));
    }
}

void tst_FramelessDialogUse::pressInANativeChildActivatesTheDialog_data()
{
    QTest::addColumn<bool>("nativeFromTheStart");
    QTest::newRow("native before the dialog is shown") << true;
    QTest::newRow("native since") << false;
}

void tst_FramelessDialogUse::pressInANativeChildActivatesTheDialog()
{
    QFETCH(bool, nativeFromTheStart);

    // GIVEN a modeless dialog with a field that has a native window of its own
    QWidget main;
    main.setGeometry(0, 0, 100, 100);
    main.show();
    TestDialog dialog(&main);
    dialog.setGeometry(200, 200, 300, 200);
    auto *content = new QVBoxLayout;
    auto *field = new QLineEdit;
    content->addWidget(field);
    dialog.setLayout(content);
    if (nativeFromTheStart)
        field->winId();
    dialog.show();
    field->winId();
    QVERIFY(field->windowHandle() && field->windowHandle() != dialog.windowHandle());
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    main.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), main.windowHandle());

    // WHEN the user presses in it
    QTest::mouseClick(field->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));

    // THEN the dialog has the keyboard, and the field the focus
    QTRY_VERIFY(QGuiApplication::focusWindow() != main.windowHandle());
    QTRY_VERIFY(field->hasFocus());
    QVERIFY(dialog.isActiveWindow());
}

void tst_FramelessDialogUse::pressInANativeChildThatHasLeftIsNoneInTheDialog()
{
    // GIVEN a modeless dialog, and a panel of native windows that has moved from there to the main one
    QWidget main;
    main.setGeometry(0, 0, 100, 100);
    main.show();
    TestDialog dialog(&main);
    dialog.setGeometry(200, 200, 300, 200);
    auto *content = new QVBoxLayout;
    auto *panel = new QWidget;
    auto *field = new QLineEdit(panel);
    content->addWidget(panel);
    dialog.setLayout(content);
    dialog.show();
    field->winId();
    const WId nativePanel = panel->winId();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    panel->setParent(&main);
    panel->show();
    QCOMPARE(panel->winId(), nativePanel); // otherwise there would be nothing to forget
    main.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), main.windowHandle());
    int focusChanges = 0;
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, &dialog, [&] { ++focusChanges; });

    // WHEN the user presses in a field on it
    QTest::mouseClick(field->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCoreApplication::processEvents();

    // THEN the dialog has not taken the keyboard
    QCOMPARE(focusChanges, 0);
    QVERIFY(!dialog.isActiveWindow());
}

void tst_FramelessDialogUse::touchInTheDialogActivatesIt()
{
    // GIVEN a modeless dialog with a widget that takes touches, so that Qt makes no mouse events of them
    QWidget main;
    main.setGeometry(0, 0, 100, 100);
    main.show();
    TestDialog dialog(&main);
    dialog.setGeometry(200, 200, 300, 200);
    auto *content = new QVBoxLayout;
    auto *pad = new TouchPad;
    content->addWidget(pad);
    dialog.setLayout(content);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    main.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), main.windowHandle());

    // WHEN a finger touches it
    const QPoint pos = pad->mapTo(&dialog, pad->rect().center());
    QTouchDevice *screen = QTest::createTouchDevice();
    QTest::touchEvent(dialog.windowHandle(), screen).press(0, pos, dialog.windowHandle());
    QTest::touchEvent(dialog.windowHandle(), screen).release(0, pos, dialog.windowHandle());

    // THEN the dialog has the keyboard
    QTRY_COMPARE(pad->touches, 1);
    QCOMPARE(pad->presses, 0);
    QTRY_COMPARE(QGuiApplication::focusWindow(), dialog.windowHandle());
}

void tst_FramelessDialogUse::keyboardGoesBackToWhereItCameFrom_data()
{
    QTest::addColumn<bool>("fromTheParent");
    QTest::newRow("the dialog's parent") << true;
    QTest::newRow("another window") << false;
}

void tst_FramelessDialogUse::keyboardGoesBackToWhereItCameFrom()
{
    QFETCH(bool, fromTheParent);

    // GIVEN a window that is active when a modeless dialog is shown, which takes the keyboard
    QWidget main;
    QWidget other;
    main.show();
    other.show();
    QWidget &former = fromTheParent ? main : other;
    former.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), former.windowHandle());
    TestDialog dialog(&main);
    dialog.show();
    QTRY_COMPARE(QGuiApplication::focusWindow(), dialog.windowHandle());

    // WHEN the dialog goes
    dialog.close();

    // THEN the keyboard is where it was
    QTRY_COMPARE(QGuiApplication::focusWindow(), former.windowHandle());
}

void tst_FramelessDialogUse::execReturnsTheResult_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << Action([](TestDialog &dialog) { click(dialog.m_pOKButton); })
                        << int(QDialog::Accepted);
    QTest::newRow("Cancel") << Action([](TestDialog &dialog) { click(dialog.m_pCancelButton); })
                            << int(QDialog::Rejected);
    QTest::newRow("the close button")
        << Action([](TestDialog &dialog) { click(dialog.m_pTitleBar->titleButton(Close)); })
        << int(QDialog::Rejected);
    QTest::newRow("Return") << Action([](TestDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); })
                            << int(QDialog::Accepted);
    QTest::newRow("Enter") << Action([](TestDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Enter); })
                           << int(QDialog::Accepted);
    QTest::newRow("Escape") << Action([](TestDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); })
                            << int(QDialog::Rejected);
    QTest::newRow("a number of one's own") << Action([](TestDialog &dialog) { dialog.done(42); }) << 42;
}

void tst_FramelessDialogUse::execReturnsTheResult()
{
    QFETCH(Action, action);
    QFETCH(int, result);

    // GIVEN a dialog
    TestDialog dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    bool wasModal = false;
    ModalDriver driver([&](QWidget *shown) {
        wasModal = shown == &dialog && dialog.isModal() && dialog.isVisible();
        action(dialog);
    });

    // WHEN it is run and the user does that
    const int returned = dialog.exec();

    // THEN this comes back
    QVERIFY(wasModal);
    QCOMPARE(returned, result);
    QCOMPARE(dialog.result(), result);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!dialog.isVisible());
}

// Notes in which way it is left, and does not let it happen.
class StubbornDialog : public TestDialog
{
public:
    QStringList ways;

    void accept() override
    {
        ways.append(QStringLiteral("accept"));
    }
    void reject() override
    {
        ways.append(QStringLiteral("reject"));
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ways.append(QStringLiteral("close"));
        event->ignore();
    }
};

void tst_FramelessDialogUse::buttonsGoThroughWhatASubclassOverrides_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("way");
    QTest::newRow("OK") << Action([](TestDialog &dialog) { click(dialog.m_pOKButton); })
                        << QStringLiteral("accept");
    QTest::newRow("Cancel") << Action([](TestDialog &dialog) { click(dialog.m_pCancelButton); })
                            << QStringLiteral("reject");
    QTest::newRow("the close button")
        << Action([](TestDialog &dialog) { click(dialog.m_pTitleBar->titleButton(Close)); })
        << QStringLiteral("close");
}

void tst_FramelessDialogUse::buttonsGoThroughWhatASubclassOverrides()
{
    QFETCH(Action, action);
    QFETCH(QString, way);
    StubbornDialog dialog;
    dialog.show();

    action(dialog);

    QCOMPARE(dialog.ways, QStringList(way));
    QVERIFY(dialog.isVisible());
}

void tst_FramelessDialogUse::execThroughTheBaseClassIsTheSame()
{
    TestDialog dialog;
    QDialog &base = dialog;
    ModalDriver driver([&](QWidget *) { base.accept(); });
    QCOMPARE(base.exec(), int(QDialog::Accepted));
    QVERIFY(driver.ran());
}

void tst_FramelessDialogUse::openIsModalToTheWindowAndReportsTheResult()
{
    // GIVEN a dialog of a window
    QWidget window;
    window.show();
    TestDialog dialog(&window);
    QSignalSpy accepted(&dialog, &QDialog::accepted);

    // WHEN it is opened
    dialog.open();

    // THEN the call returns with the dialog on screen, modal to its window
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    click(dialog.m_pOKButton);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_FramelessDialogUse::returnKeyTakesTheDefaultButtonOnly()
{
    // GIVEN a dialog on screen whose default button is not OK but Cancel
    TestDialog dialog;
    dialog.setOKButtonDefault(false);
    dialog.m_pCancelButton->setDefault(true);
    auto *content = new QVBoxLayout;
    auto *field = new QLineEdit;
    content->addWidget(field);
    dialog.setLayout(content);
    dialog.show();
    field->setFocus();
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QSignalSpy rejected(&dialog, &QDialog::rejected);

    // WHEN Return is pressed in a field
    QTest::keyClick(field, Qt::Key_Return);

    // THEN it is Cancel that is taken
    QCOMPARE(accepted.count(), 0);
    QCOMPARE(rejected.count(), 1);
}

void tst_FramelessDialogUse::applyButtonIsTheApplications()
{
    // GIVEN a dialog on screen with Apply
    TestDialog dialog;
    dialog.setApplyButtonVisible(true);
    dialog.show();
    QSignalSpy clicked(dialog.m_pApplyButton, &QPushButton::clicked);
    QSignalSpy finished(&dialog, &QDialog::finished);

    // WHEN it is clicked
    click(dialog.m_pApplyButton);

    // THEN nothing happens but what the application connects
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(finished.count(), 0);
    QVERIFY(dialog.isVisible());
}

void tst_FramelessDialogUse::closeFunctionCanKeepTheDialogOpen()
{
    TestDialog dialog;
    bool mayClose = false;
    dialog.m_pTitleBar->appendCloseEvent([&] { return mayClose; });
    dialog.show();
    QSignalSpy rejected(&dialog, &QDialog::rejected);

    click(dialog.m_pTitleBar->titleButton(Close));
    QVERIFY(dialog.isVisible());
    QCOMPARE(rejected.count(), 0);

    mayClose = true;
    click(dialog.m_pTitleBar->titleButton(Close));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.count(), 1);
}

void tst_FramelessDialogUse::parentMayDieDuringExec()
{
    // GIVEN a dialog that belongs to a window
    auto parent = std::make_unique<QWidget>();
    const QPointer<FramelessDialog> dialog = new FramelessDialog(parent.get());
    ModalDriver driver([&](QWidget *) { parent.reset(); });

    // WHEN the window is deleted while the dialog runs
    const int returned = dialog->exec();

    // THEN the call returns as if the dialog had been closed
    QVERIFY(dialog.isNull());
    QCOMPARE(returned, int(QDialog::Rejected));
}

void tst_FramelessDialogUse::buttonTextsAreTranslatedInTheClassContext()
{
    const Brackets brackets(Context);
    const TestDialog dialog;
    QCOMPARE(dialog.m_pOKButton->text(), QStringLiteral("<OK>"));
    QCOMPARE(dialog.m_pCancelButton->text(), QStringLiteral("<Cancel>"));
    QCOMPARE(dialog.m_pApplyButton->text(), QStringLiteral("<Apply>"));
}

void tst_FramelessDialogUse::buttonTextsFollowTheLanguage()
{
    // GIVEN a dialog in the language of the source
    TestDialog dialog;
    QCOMPARE(dialog.m_pOKButton->text(), QStringLiteral("OK"));

    // WHEN another one comes, and goes again
    {
        const Brackets brackets(Context);
        QTRY_COMPARE(dialog.m_pOKButton->text(), QStringLiteral("<OK>"));
        QCOMPARE(dialog.m_pCancelButton->text(), QStringLiteral("<Cancel>"));
        QCOMPARE(dialog.m_pApplyButton->text(), QStringLiteral("<Apply>"));
    }

    // THEN the texts follow
    QTRY_COMPARE(dialog.m_pOKButton->text(), QStringLiteral("OK"));
    QCOMPARE(dialog.m_pCancelButton->text(), QStringLiteral("Cancel"));
    QCOMPARE(dialog.m_pApplyButton->text(), QStringLiteral("Apply"));
}

void tst_FramelessDialogUse::textsOfTheApplicationSurviveALanguageChange()
{
    TestDialog dialog;
    dialog.m_pOKButton->setText(QStringLiteral("Rename"));
    const Brackets brackets(Context);
    QTRY_COMPARE(dialog.m_pCancelButton->text(), QStringLiteral("<Cancel>"));
    QCOMPARE(dialog.m_pOKButton->text(), QStringLiteral("Rename"));
}

void tst_FramelessDialogUse::languageChangeCallsTheSubclassOnce()
{
    // GIVEN a dialog, which calls nothing while it is made
    TestDialog dialog;
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog.retranslations, 0);

    // WHEN the language changes
    const Brackets brackets(Context);
    QCoreApplication::sendPostedEvents();

    // THEN the subclass is called once, with the dialog's own texts already set
    QCOMPARE(dialog.retranslations, 1);
    QCOMPARE(dialog.okTextThen, QStringLiteral("<OK>"));
}

void tst_FramelessDialogUse::otherChangesDoNotCallTheSubclass()
{
    TestDialog dialog;
    dialog.show();
    dialog.setEnabled(false);
    dialog.setFont(QFont(QStringLiteral("monospace"), 20));
    dialog.setLayoutDirection(Qt::RightToLeft);
    QEvent locale(QEvent::LocaleChange);
    dialog.changeEvent(&locale);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(dialog.retranslations, 0);
}

void tst_FramelessDialogUse::changesReachTheBaseClass()
{
    // GIVEN a dialog on screen that has been painted
    TestDialog dialog;
    dialog.show();
    QTRY_VERIFY(dialog.paints > 0);
    QCoreApplication::processEvents();
    const int paintsBefore = dialog.paints;

    // WHEN it learns of another style, upon which QWidget asks for a paint
    QEvent change(QEvent::StyleChange);
    dialog.changeEvent(&change);

    // THEN it is painted again
    QTRY_VERIFY(dialog.paints > paintsBefore);
}

void tst_FramelessDialogUse::eventFilterPassesToTheBaseClass()
{
    TestDialog dialog;
    QObject watched;
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::KeyPress, QEvent::User}) {
        QEvent event(type);
        QVERIFY(!dialog.eventFilter(&watched, &event));
    }
}

QTEST_MAIN(tst_FramelessDialogUse)

#include "tst_framelessdialog_use.moc"
