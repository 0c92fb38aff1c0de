// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"
#include "otherprogram.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRubberBand>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <X11/keysym.h>
#include <functional>
#include <optional>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Test::addZoneRows;
using Tarn::Test::Desktop;
using Tarn::Test::isOutlined;
using Tarn::Test::OtherProgram;
using Tarn::Test::Zone;
using Tarn::Widgets::FramelessDialog;

namespace {

constexpr int BorderWidth = 5;
constexpr int TitleHeight = 24;
const QRect Place(500, 150, 420, 320);
const QRect BesidePlace(40, 150, 380, 320);
const QRect BelowPlace(40, 520, 380, 200);

// Indices of title buttons.
constexpr int MinButton = 1;
constexpr int MaxButton = 2;
constexpr int RestoreButton = 3;
constexpr int CloseButton = 4;

class Dialog : public FramelessDialog
{
public:
    explicit Dialog(QWidget *parent = nullptr)
        : FramelessDialog(parent)
        , label(new QLabel(QStringLiteral("A label")))
        , field(new QLineEdit)
        , checkBox(new QCheckBox(QStringLiteral("A check box")))
    {
        auto *layout = new QVBoxLayout(getContentHolder());
        layout->addWidget(label);
        layout->addWidget(field);
        layout->addWidget(checkBox);
        layout->addStretch();
        setApplyButtonVisible(true);
        field->setFocus();
        setGeometry(Place);
    }

    QToolButton *titleButton(int index) const
    {
        return m_pTitleBar->titleButton(index);
    }

    using FramelessDialog::destroy;
    using FramelessDialog::m_pApplyButton;
    using FramelessDialog::m_pBottomWidget;
    using FramelessDialog::m_pCancelButton;
    using FramelessDialog::m_pOKButton;

    QLabel *const label;
    QLineEdit *const field;
    QCheckBox *const checkBox;
};

/* A window of the same application that the window manager, if there is one, looks after. */
class MainWindow : public QWidget
{
public:
    MainWindow()
        : field(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(field);
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(BesidePlace);
    }

    QLineEdit *const field;
};

// What a person who sits before the dialog may press, as a place on the screen.
using PlaceIn = std::function<QPoint(const Desktop &, const Dialog &)>;

using ButtonOf = std::function<QWidget *(Dialog &)>;
using Action = std::function<void(Dialog &)>;

enum class Kind { Modeless, Modal, Opened, Orphan };

enum class Rival { MainWindow, OtherProgram };

/* What the dialog is, and who has the keyboard before it. */
struct Situation
{
    Kind kind;
    Rival rival;
};

/* A pixel of the dialog and what it is to look like. */
struct Spot
{
    const char *name;
    QPoint place;
    QColor color;
};

/* What half of one over the other gives. */
QColor mixed(const QColor &over, const QColor &under)
{
    const auto half = [](int a, int b) { return (a + b) / 2; };
    return QColor(half(over.red(), under.red()), half(over.green(), under.green()),
                  half(over.blue(), under.blue()));
}

/* Within what rounding may change: an antialiased half is 128 of 255. */
bool isColored(QRgb seen, const QColor &color)
{
    return qAbs(qRed(seen) - color.red()) <= 1 && qAbs(qGreen(seen) - color.green()) <= 1
        && qAbs(qBlue(seen) - color.blue()) <= 1;
}

QPoint titlePoint()
{
    return Place.topLeft() + QPoint(150, TitleHeight / 2);
}

} // namespace

Q_DECLARE_METATYPE(PlaceIn)
Q_DECLARE_METATYPE(ButtonOf)
Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Situation)

class tst_FramelessDialog_x11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void titleDragMovesTheDialog();
    void unmovableDialogStays();
    void doubleClickOnTheTitleDoesNothing();
    void newDialogIsNotResizable_data();
    void newDialogIsNotResizable();
    void borderDragResizes_data();
    void borderDragResizes();
    void contentKeepsItsMinimumSize_data();
    void contentKeepsItsMinimumSize();
    void dialogIsNeverLargerThanTheWorkArea();
    void cursorTellsTheZone_data();
    void cursorTellsTheZone();
    void childrenKeepTheirOwnCursors();
    void cursorStaysAnArrowWhereNothingResizes_data();
    void cursorStaysAnArrowWhereNothingResizes();
    void rubberBandShowsTheMove();
    void rubberBandShowsTheResize_data();
    void rubberBandShowsTheResize();

    void titleButtonsMaximiseAndRestore();
    void maximisedDialogIsMovedByItsTitle();
    void fullScreenTakesTheWholeScreen();
    void statesFollowEachOther();
    void dialogMayBeginMaximised();
    void minimisedDialogStaysUsable();
    void escapeRejects();
    void buttonsEndTheDialog_data();
    void buttonsEndTheDialog();
    void titleReachesTheTaskSwitcher();
    void windowFlagsStay();

    void pressGivesTheKeyboard_data();
    void pressGivesTheKeyboard();
    void pressCountsInEveryNativeWindow_data();
    void pressCountsInEveryNativeWindow();
    void pressInTheMainWindowTakesTheKeyboardBack();
    void modalDialogKeepsTheKeyboardFromTheMainWindow();
    void shownDialogTakesTheKeyboardAndGivesItBack();
    void nestedDialogGivesTheKeyboardBackToItsParent();
    void dialogShownWithoutActivatingLeavesTheKeyboard();

    void picture_data();
    void picture();
    void pictureWithAStyleSheet();

private:
    const char *describe(const QWidget *window, const Spot &spot);

    std::optional<Desktop> m_desktop;
    QByteArray m_description;
};

void tst_FramelessDialog_x11::init()
{
    m_desktop.emplace();
    QVERIFY(m_desktop->isAsExpected());
}

void tst_FramelessDialog_x11::cleanup()
{
    m_desktop.reset();
}

/* What is wrong about a spot, for a failure's text. */
const char *tst_FramelessDialog_x11::describe(const QWidget *window, const Spot &spot)
{
    m_description = QStringLiteral("%1: %2 instead of %3")
                        .arg(QLatin1String(spot.name), QColor(m_desktop->pixel(window, spot.place)).name(),
                             spot.color.name())
                        .toUtf8();
    return m_description.constData();
}

void tst_FramelessDialog_x11::titleDragMovesTheDialog()
{
    // GIVEN a dialog where it asked to be
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));
    QCOMPARE(m_desktop->geometry(&dialog), Place);

    // WHEN it is dragged by its title
    const QPoint way(-120, 90);
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(titlePoint() + way));

    // THEN it is under the pointer before the button is let go, and does not follow it afterwards
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place.translated(way));
    QVERIFY(m_desktop->input.release());
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QCOMPARE(m_desktop->geometry(&dialog), Place.translated(way));
}

void tst_FramelessDialog_x11::unmovableDialogStays()
{
    // GIVEN a dialog that is not to be moved
    Dialog dialog;
    dialog.setDialogMovable(false);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN its title is dragged
    QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + QPoint(50, 50)));

    // THEN it stays
    QCOMPARE(m_desktop->geometry(&dialog), Place);
}

void tst_FramelessDialog_x11::doubleClickOnTheTitleDoesNothing()
{
    // GIVEN a dialog that can be maximised
    Dialog dialog;
    dialog.setMaxButtonVisible(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN its title is double-clicked
    QVERIFY(m_desktop->input.doubleClick(titlePoint()));

    // THEN it is not
    QVERIFY(!dialog.isMaximized());
    QCOMPARE(m_desktop->geometry(&dialog), Place);
}

void tst_FramelessDialog_x11::newDialogIsNotResizable_data()
{
    addZoneRows();
}

void tst_FramelessDialog_x11::newDialogIsNotResizable()
{
    QFETCH(Zone, zone);

    // GIVEN a dialog as it comes
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it is dragged by its border
    const QPoint start = zone.grip(Place);
    const QPoint way = zone.outwards(30);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN it keeps its size; where the border is part of the title, it moves
    const bool isTitle = start.y() < Place.top() + TitleHeight;
    QTRY_COMPARE(m_desktop->geometry(&dialog), isTitle ? Place.translated(way) : Place);
}

void tst_FramelessDialog_x11::borderDragResizes_data()
{
    addZoneRows();
}

void tst_FramelessDialog_x11::borderDragResizes()
{
    QFETCH(Zone, zone);

    // GIVEN a dialog that may be resized
    Dialog dialog;
    dialog.setDialogResizable(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it is dragged out by its outermost pixel there
    const QPoint start = zone.grip(Place);
    const QPoint end = start + zone.outwards(50) + QPoint(9, 7);
    QVERIFY(m_desktop->input.drag(start, end));

    // THEN the sides of that zone, and no others, are where the button was let go
    const QRect large = zone.resized(Place, end);
    QTRY_COMPARE(m_desktop->geometry(&dialog), large);

    // WHEN it is dragged back in
    const QPoint inside = zone.grip(large) + zone.outwards(-70);
    QVERIFY(m_desktop->input.drag(zone.grip(large), inside));

    // THEN the same sides follow
    QTRY_COMPARE(m_desktop->geometry(&dialog), zone.resized(large, inside));
}

void tst_FramelessDialog_x11::contentKeepsItsMinimumSize_data()
{
    addZoneRows();
}

void tst_FramelessDialog_x11::contentKeepsItsMinimumSize()
{
    QFETCH(Zone, zone);

    // GIVEN a dialog whose content just fits
    Dialog dialog;
    dialog.setDialogResizable(true);
    dialog.getContentHolder()->setMinimumSize(400, 230);
    QVERIFY(m_desktop->show(&dialog));
    QVERIFY(dialog.minimumWidth() > 400 && dialog.minimumHeight() > 230);
    const QRect before = m_desktop->geometry(&dialog);

    // WHEN the dialog's sides are pulled in
    QVERIFY(m_desktop->input.moveTo(zone.grip(before)));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.moveTo(zone.grip(before) + zone.outwards(-100)));

    // THEN they stay
    QCOMPARE(m_desktop->geometry(&dialog), before);
}

void tst_FramelessDialog_x11::dialogIsNeverLargerThanTheWorkArea()
{
    // GIVEN a dialog that may be resized, and a screen that is not all for windows
    const QRect workArea = m_desktop->server.workArea();
    QVERIFY(workArea.height() < m_desktop->server.screenGeometry().height());
    Dialog dialog;
    dialog.setDialogResizable(true);
    dialog.move(400, 10);
    QVERIFY(m_desktop->show(&dialog));
    const QRect before = m_desktop->geometry(&dialog);

    // WHEN its lower side is dragged to the screen's end
    const QPoint start(before.center().x(), before.bottom());
    QVERIFY(m_desktop->input.drag(start, QPoint(start.x(), m_desktop->server.screenGeometry().bottom())));

    // THEN it is as high as the work area
    QTRY_COMPARE(m_desktop->geometry(&dialog).height(), workArea.height());
    QCOMPARE(m_desktop->geometry(&dialog).topLeft(), before.topLeft());
}

void tst_FramelessDialog_x11::cursorTellsTheZone_data()
{
    addZoneRows();
}

void tst_FramelessDialog_x11::cursorTellsTheZone()
{
    QFETCH(Zone, zone);

    // GIVEN a dialog that may be resized
    const QImage arrow = m_desktop->referenceCursor(Qt::ArrowCursor);
    const QImage expected = m_desktop->referenceCursor(zone.shape);
    QVERIFY(!arrow.isNull());
    QVERIFY(!expected.isNull());
    QVERIFY(expected != arrow);
    Dialog dialog;
    dialog.setDialogResizable(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN the pointer is over the zone's outermost and, there over a child, innermost pixels, THEN it tells
    // so
    const QPoint innermost = zone.innermost(Place, BorderWidth);
    QVERIFY(dialog.childAt(innermost - Place.topLeft()));
    QVERIFY(m_desktop->input.moveTo(zone.grip(Place)));
    QTRY_COMPARE(m_desktop->server.cursor(), expected);
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(dialog.label)));
    QTRY_COMPARE(m_desktop->server.cursor(), arrow);
    QVERIFY(m_desktop->input.moveTo(innermost));
    QTRY_COMPARE(m_desktop->server.cursor(), expected);

    // WHEN it is moved one pixel on, THEN it is an arrow again
    QVERIFY(m_desktop->input.moveTo(innermost + zone.outwards(-1)));
    QTRY_COMPARE(m_desktop->server.cursor(), arrow);
}

void tst_FramelessDialog_x11::childrenKeepTheirOwnCursors()
{
    // GIVEN a dialog that may be resized, and the pointer over its border
    const QImage beam = m_desktop->referenceCursor(Qt::IBeamCursor);
    QVERIFY(!beam.isNull());
    Dialog dialog;
    dialog.setDialogResizable(true);
    QVERIFY(m_desktop->show(&dialog));
    QVERIFY(m_desktop->input.moveTo(QPoint(Place.left(), m_desktop->center(dialog.field).y())));
    QVERIFY(m_desktop->server.cursor() != beam);

    // WHEN it enters a line edit
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(dialog.field)));

    // THEN it is a line edit's
    QTRY_COMPARE(m_desktop->server.cursor(), beam);
}

void tst_FramelessDialog_x11::cursorStaysAnArrowWhereNothingResizes_data()
{
    QTest::addColumn<Action>("showDialog");
    QTest::newRow("as it comes") << Action([](Dialog &dialog) { dialog.show(); });
    QTest::newRow("maximised") << Action([](Dialog &dialog) {
        dialog.setDialogResizable(true);
        dialog.showMaximized();
    });
    QTest::newRow("full screen") << Action([](Dialog &dialog) {
        dialog.setDialogResizable(true);
        dialog.showFullScreen();
    });
}

void tst_FramelessDialog_x11::cursorStaysAnArrowWhereNothingResizes()
{
    QFETCH(Action, showDialog);

    // GIVEN a dialog that is not to be resized, or not now
    const QImage arrow = m_desktop->referenceCursor(Qt::ArrowCursor);
    QVERIFY(!arrow.isNull());
    Dialog dialog;
    showDialog(dialog);
    QVERIFY(m_desktop->isShown(&dialog));

    // WHEN the pointer is over its border, THEN it promises nothing
    const QRect frame = m_desktop->geometry(&dialog);
    for (const Zone &zone : Tarn::Test::zones()) {
        QVERIFY(m_desktop->input.moveTo(zone.grip(frame, 3)));
        QCOMPARE(m_desktop->server.cursor(), arrow);
    }
}

void tst_FramelessDialog_x11::rubberBandShowsTheMove()
{
    // GIVEN a dialog that is moved by an outline
    Dialog dialog;
    dialog.setRubberBandOnMove(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it is dragged by its title, over the bare screen
    const QPoint way(-440, 100);
    const QRect outline(Place.topLeft() + way, Place.size() - QSize(10, 10));
    const QImage before = m_desktop->server.grab(outline);
    QVERIFY(m_desktop->input.moveTo(titlePoint()));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(titlePoint() + way));

    // THEN only the outline follows, and is seen
    QTRY_VERIFY(m_desktop->visibleRubberBand());
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), outline);
    QTRY_VERIFY(isOutlined(before, m_desktop->server.grab(outline)));
    QCOMPARE(m_desktop->geometry(&dialog), Place);

    // WHEN the button is let go
    QVERIFY(m_desktop->input.release());

    // THEN the dialog takes the outline's place, and the outline is gone
    QTRY_COMPARE(m_desktop->geometry(&dialog), outline);
    QVERIFY(!m_desktop->visibleRubberBand());
}

void tst_FramelessDialog_x11::rubberBandShowsTheResize_data()
{
    addZoneRows();
}

void tst_FramelessDialog_x11::rubberBandShowsTheResize()
{
    QFETCH(Zone, zone);

    // GIVEN a dialog that is resized by an outline
    Dialog dialog;
    dialog.setDialogResizable(true);
    dialog.setRubberBandOnResize(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it is dragged by its border
    const QPoint start = zone.grip(Place, 3);
    const QPoint end = start + zone.outwards(60);
    const QRect outline = zone.resized(Place, end);
    const QImage before = m_desktop->server.grab(outline);
    QVERIFY(m_desktop->input.moveTo(start));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.dragTo(end));

    // THEN only the outline follows, and is seen
    QTRY_VERIFY(m_desktop->visibleRubberBand());
    QTRY_COMPARE(m_desktop->geometry(m_desktop->visibleRubberBand()), outline);
    QTRY_VERIFY(isOutlined(before, m_desktop->server.grab(outline)));
    QCOMPARE(m_desktop->geometry(&dialog), Place);

    // WHEN the button is let go
    QVERIFY(m_desktop->input.release());

    // THEN the dialog takes the outline's place, and the outline is gone
    QTRY_COMPARE(m_desktop->geometry(&dialog), outline);
    QVERIFY(!m_desktop->visibleRubberBand());
}

void tst_FramelessDialog_x11::titleButtonsMaximiseAndRestore()
{
    // GIVEN a dialog that can be maximised
    const QRect workArea = m_desktop->server.workArea();
    QVERIFY(!workArea.isEmpty() && workArea != m_desktop->server.screenGeometry());
    Dialog dialog;
    dialog.setMaxButtonVisible(true);
    QVERIFY(m_desktop->show(&dialog));

    for (int turn = 0; turn < 2; ++turn) {
        // WHEN its maximise button is clicked
        QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(MaxButton))));

        // THEN it covers the work area and offers to go back
        QTRY_COMPARE(m_desktop->geometry(&dialog), workArea);
        QVERIFY(dialog.isMaximized());
        QVERIFY(dialog.titleButton(RestoreButton)->isVisible());
        QVERIFY(!dialog.titleButton(MaxButton)->isVisible());

        // WHEN its restore button is clicked
        QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(RestoreButton))));

        // THEN it is where and as large as it was
        QTRY_COMPARE(m_desktop->geometry(&dialog), Place);
        QVERIFY(!dialog.isMaximized());
        QVERIFY(dialog.titleButton(MaxButton)->isVisible());
        QVERIFY(!dialog.titleButton(RestoreButton)->isVisible());
    }
}

void tst_FramelessDialog_x11::maximisedDialogIsMovedByItsTitle()
{
    // GIVEN a maximised dialog
    const QRect workArea = m_desktop->server.workArea();
    Dialog dialog;
    dialog.setDialogResizable(true);
    QVERIFY(m_desktop->show(&dialog));
    dialog.showMaximized();
    QTRY_COMPARE(m_desktop->geometry(&dialog), workArea);

    // WHEN it is dragged by its title
    const QPoint start(600, TitleHeight / 2);
    const QPoint way(30, 200);
    QVERIFY(m_desktop->input.drag(start, start + way));

    // THEN it moves
    QTRY_COMPARE(m_desktop->geometry(&dialog), workArea.translated(way));

    // WHEN it is restored
    dialog.showNormal();

    // THEN it is where and as large as it was before
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place);
}

void tst_FramelessDialog_x11::fullScreenTakesTheWholeScreen()
{
    // GIVEN a dialog on a screen that is not all for windows
    const QRect screen = m_desktop->server.screenGeometry();
    QVERIFY(m_desktop->server.workArea() != screen);
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it is shown full screen, THEN it covers all of it
    dialog.showFullScreen();
    QTRY_COMPARE(m_desktop->geometry(&dialog), screen);
    QVERIFY(dialog.isFullScreen());

    // WHEN it is shown as usual, THEN it is where and as large as it was
    dialog.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place);
    QVERIFY(!dialog.isFullScreen());

    // THEN it is no larger than the work area again, as any dialog
    dialog.resize(screen.size());
    QVERIFY(m_desktop->server.settle());
    QCOMPARE(m_desktop->geometry(&dialog).size(), m_desktop->server.workArea().size());
}

void tst_FramelessDialog_x11::statesFollowEachOther()
{
    // GIVEN a dialog
    const QRect workArea = m_desktop->server.workArea();
    const QRect screen = m_desktop->server.screenGeometry();
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));

    // WHEN it goes from one large state to the other and back, THEN it has the geometry of each
    dialog.showMaximized();
    QTRY_COMPARE(m_desktop->geometry(&dialog), workArea);
    dialog.showFullScreen();
    QTRY_COMPARE(m_desktop->geometry(&dialog), screen);
    dialog.showMaximized();
    QTRY_COMPARE(m_desktop->geometry(&dialog), workArea);

    // WHEN it is hidden and shown in between, THEN that changes nothing
    dialog.hide();
    QVERIFY(m_desktop->show(&dialog));
    QTRY_COMPARE(m_desktop->geometry(&dialog), workArea);
    QVERIFY(dialog.isMaximized());

    // WHEN it is shown as usual, THEN it is where and as large as it was at first
    dialog.showNormal();
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place);
}

void tst_FramelessDialog_x11::dialogMayBeginMaximised()
{
    // GIVEN a dialog that has not been on the screen
    Dialog dialog;
    dialog.setMaxButtonVisible(true);

    // WHEN it is shown maximised
    dialog.showMaximized();
    QVERIFY(m_desktop->isShown(&dialog));

    // THEN it covers the work area
    QTRY_COMPARE(m_desktop->geometry(&dialog), m_desktop->server.workArea());

    // WHEN it is restored
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(RestoreButton))));

    // THEN it has the place that it was given before
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place);
}

void tst_FramelessDialog_x11::minimisedDialogStaysUsable()
{
    // GIVEN a dialog that can be minimised
    Dialog dialog;
    dialog.setMinButtonVisible(true);
    QVERIFY(m_desktop->show(&dialog));

    // WHEN its minimise button is clicked
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(MinButton))));

    // THEN nobody would bring it back, so it is still there, takes the keyboard and can be moved
    QVERIFY(m_desktop->server.isViewable(dialog.winId()));
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.field)));
    QVERIFY(m_desktop->input.type(QStringLiteral("still here")));
    QTRY_COMPARE(dialog.field->text(), QStringLiteral("still here"));
    const QPoint way(25, 35);
    QVERIFY(m_desktop->input.drag(titlePoint(), titlePoint() + way));
    QTRY_COMPARE(m_desktop->geometry(&dialog), Place.translated(way));
}

void tst_FramelessDialog_x11::escapeRejects()
{
    // GIVEN a dialog with the keyboard
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.field)));
    QVERIFY(m_desktop->hasKeyboard(&dialog));
    QSignalSpy rejected(&dialog, &QDialog::rejected);

    // WHEN Escape is pressed
    QVERIFY(m_desktop->input.key(XK_Escape));

    // THEN it is rejected and gone
    QTRY_COMPARE(rejected.count(), 1);
    QTRY_VERIFY(!m_desktop->server.isViewable(dialog.winId()));
}

void tst_FramelessDialog_x11::buttonsEndTheDialog_data()
{
    QTest::addColumn<ButtonOf>("buttonOf");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << ButtonOf([](Dialog &dialog) { return dialog.m_pOKButton; })
                        << int(QDialog::Accepted);
    QTest::newRow("Cancel") << ButtonOf([](Dialog &dialog) { return dialog.m_pCancelButton; })
                            << int(QDialog::Rejected);
    QTest::newRow("close") << ButtonOf([](Dialog &dialog) { return dialog.titleButton(CloseButton); })
                           << int(QDialog::Rejected);
}

void tst_FramelessDialog_x11::buttonsEndTheDialog()
{
    QFETCH(ButtonOf, buttonOf);
    QFETCH(int, result);

    // GIVEN a dialog
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));
    QSignalSpy finished(&dialog, &QDialog::finished);

    // WHEN the button is clicked
    QVERIFY(m_desktop->input.click(m_desktop->center(buttonOf(dialog))));

    // THEN the dialog ends with that result and is gone
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toInt(), result);
    QTRY_VERIFY(!m_desktop->server.isViewable(dialog.winId()));
}

void tst_FramelessDialog_x11::titleReachesTheTaskSwitcher()
{
    // GIVEN a dialog that was given a title before it was shown
    const QString first = QStringLiteral("Données – 数据");
    Dialog dialog;
    dialog.setWindowTitle(first);
    QVERIFY(m_desktop->show(&dialog));

    // THEN the screen knows it
    QTRY_COMPARE(m_desktop->server.title(dialog.winId()), first);

    // WHEN the title changes, THEN so does what the screen knows
    const QString second = QStringLiteral("Another");
    dialog.setWindowTitle(second);
    QTRY_COMPARE(m_desktop->server.title(dialog.winId()), second);

    // WHEN the dialog gets a new native window, THEN that has the title, too
    const WId former = dialog.winId();
    dialog.hide();
    dialog.destroy();
    QVERIFY(m_desktop->show(&dialog));
    QVERIFY(dialog.winId() != former);
    QTRY_COMPARE(m_desktop->server.title(dialog.winId()), second);
}

void tst_FramelessDialog_x11::windowFlagsStay()
{
    // GIVEN a dialog with the flags that it was made with
    Dialog dialog;
    dialog.setMaxButtonVisible(true);
    const Qt::WindowFlags flags = dialog.windowFlags();
    QVERIFY(flags.testFlag(Qt::BypassWindowManagerHint));
    QVERIFY(flags.testFlag(Qt::FramelessWindowHint));

    // WHEN it lives through all that a user can do to it
    QVERIFY(m_desktop->show(&dialog));
    const WId window = dialog.winId();
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.field)));
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(MaxButton))));
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.titleButton(RestoreButton))));
    dialog.showFullScreen();
    dialog.showNormal();
    QVERIFY(m_desktop->server.settle());

    // THEN its flags are the same, and so is its native window, which no window manager looks after
    QCOMPARE(dialog.windowFlags(), flags);
    QCOMPARE(dialog.winId(), window);
    QVERIFY(m_desktop->server.bypassesWindowManager(window));
}

void tst_FramelessDialog_x11::pressGivesTheKeyboard_data()
{
    QTest::addColumn<Situation>("situation");
    QTest::addColumn<PlaceIn>("place");
    QTest::addColumn<bool>("keepsField");

    struct Target
    {
        const char *name;
        PlaceIn place;
        bool keepsField; // whether the line edit stays the one that is typed into
    };
    const auto middleOf = [](auto childOf) {
        return [childOf](const Desktop &desktop, const Dialog &dialog) {
            return desktop.center(childOf(dialog));
        };
    };
    const QVector<Target> targets = {
        {"line edit", middleOf([](const Dialog &dialog) { return dialog.field; }), true},
        {"label", middleOf([](const Dialog &dialog) { return dialog.label; }), true},
        {"check box", middleOf([](const Dialog &dialog) { return dialog.checkBox; }), false},
        {"button", middleOf([](const Dialog &dialog) { return dialog.m_pApplyButton; }), false},
        {"title", [](const Desktop &, const Dialog &) { return titlePoint(); }, true},
        {"border", [](const Desktop &, const Dialog &) { return Place.bottomLeft(); }, true},
    };
    const QVector<QPair<const char *, Situation>> situations = {
        {"modeless, after the main window", {Kind::Modeless, Rival::MainWindow}},
        {"modeless, after another program", {Kind::Modeless, Rival::OtherProgram}},
        {"modal, after another program", {Kind::Modal, Rival::OtherProgram}},
        {"opened, after another program", {Kind::Opened, Rival::OtherProgram}},
        {"without a parent, after another program", {Kind::Orphan, Rival::OtherProgram}},
    };
    for (const auto &situation : situations) {
        for (const Target &target : targets) {
            QTest::addRow("%s: %s", situation.first, target.name)
                << situation.second << target.place << target.keepsField;
        }
    }
}

void tst_FramelessDialog_x11::pressGivesTheKeyboard()
{
    QFETCH(Situation, situation);
    QFETCH(PlaceIn, place);
    QFETCH(bool, keepsField);

    // GIVEN a dialog beside a main window, and the keyboard with somebody else
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    Dialog dialog(situation.kind == Kind::Orphan ? nullptr : &mainWindow);
    dialog.setModal(situation.kind == Kind::Modal);
    const Qt::WindowFlags flags = dialog.windowFlags();
    if (situation.kind == Kind::Opened)
        dialog.open();
    else
        dialog.show();
    QVERIFY(m_desktop->isShown(&dialog));
    std::optional<OtherProgram> program;
    if (situation.rival == Rival::MainWindow) {
        QVERIFY(m_desktop->input.click(m_desktop->center(mainWindow.field)));
        QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));
    } else {
        program.emplace(BelowPlace);
        QVERIFY(program->waitForWindow());
        QVERIFY(m_desktop->input.click(BelowPlace.center()));
        QTRY_COMPARE(m_desktop->server.focusWindow(), program->window());
    }
    QTRY_VERIFY(!dialog.isActiveWindow());

    // WHEN the dialog is pressed
    QVERIFY(m_desktop->input.click(place(*m_desktop, dialog)));

    // THEN it has the keyboard
    QTRY_VERIFY(m_desktop->hasKeyboard(&dialog));
    QTRY_VERIFY(dialog.isActiveWindow());

    // THEN what is typed goes there, and nowhere else
    QVERIFY(m_desktop->input.type(QStringLiteral("typed 42")));
    QTRY_COMPARE(dialog.field->text(), keepsField ? QStringLiteral("typed 42") : QString());
    QCOMPARE(mainWindow.field->text(), QString());
    QCOMPARE(dialog.windowFlags(), flags);
}

void tst_FramelessDialog_x11::pressCountsInEveryNativeWindow_data()
{
    QTest::addColumn<Action>("showDialog");
    QTest::newRow("child that has one from the start") << Action([](Dialog &dialog) {
        dialog.label->winId();
        dialog.show();
    });
    QTest::newRow("child that gets one later") << Action([](Dialog &dialog) {
        dialog.show();
        dialog.label->winId();
    });
    QTest::newRow("child that brings one along") << Action([](Dialog &dialog) {
        dialog.show();
        QWidget formerWindow;
        formerWindow.setAttribute(Qt::WA_TranslucentBackground); // X11 moves windows of one color depth only
        auto *panel = new QWidget(&formerWindow);
        dialog.label->setParent(panel);
        dialog.label->winId();
        auto *layout = new QVBoxLayout(panel);
        layout->addWidget(dialog.label);
        dialog.getContentHolder()->layout()->addWidget(panel);
    });
    QTest::newRow("dialog that gets a new one") << Action([](Dialog &dialog) {
        dialog.show();
        dialog.hide();
        dialog.destroy();
        dialog.show();
    });
}

void tst_FramelessDialog_x11::pressCountsInEveryNativeWindow()
{
    QFETCH(Action, showDialog);

    // GIVEN a dialog with other native windows than it had at first, and another program with the keyboard
    Dialog dialog;
    showDialog(dialog);
    QVERIFY(m_desktop->isShown(&dialog));
    OtherProgram program(BelowPlace);
    QVERIFY(program.waitForWindow());
    QVERIFY(m_desktop->input.click(BelowPlace.center()));
    QTRY_COMPARE(m_desktop->server.focusWindow(), program.window());
    QTRY_VERIFY(!dialog.isActiveWindow());

    // WHEN the dialog is pressed where the child is
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.label)));

    // THEN the dialog is active, and what is typed goes to its line edit
    QTRY_VERIFY(dialog.isActiveWindow());
    QVERIFY(m_desktop->input.type(QStringLiteral("typed")));
    QTRY_COMPARE(dialog.field->text(), QStringLiteral("typed"));
}

void tst_FramelessDialog_x11::pressInTheMainWindowTakesTheKeyboardBack()
{
    // GIVEN a modeless dialog with the keyboard, beside a main window
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    Dialog dialog(&mainWindow);
    QVERIFY(m_desktop->show(&dialog));

    for (int turn = 1; turn <= 2; ++turn) {
        QVERIFY(m_desktop->input.click(m_desktop->center(dialog.field)));
        QTRY_VERIFY(m_desktop->hasKeyboard(&dialog));
        QVERIFY(m_desktop->input.type(QStringLiteral("d")));
        QTRY_COMPARE(dialog.field->text(), QString(turn, QLatin1Char('d')));

        // WHEN the main window is pressed
        QVERIFY(m_desktop->input.click(m_desktop->center(mainWindow.field)));

        // THEN it has the keyboard, and what is typed goes there
        QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));
        QTRY_VERIFY(mainWindow.isActiveWindow());
        QVERIFY(m_desktop->input.type(QStringLiteral("m")));
        QTRY_COMPARE(mainWindow.field->text(), QString(turn, QLatin1Char('m')));
        QCOMPARE(dialog.field->text(), QString(turn, QLatin1Char('d')));
    }
}

void tst_FramelessDialog_x11::modalDialogKeepsTheKeyboardFromTheMainWindow()
{
    // GIVEN a modal dialog with the keyboard, beside the main window that it blocks
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    Dialog dialog(&mainWindow);
    dialog.setModal(true);
    QVERIFY(m_desktop->show(&dialog));
    QVERIFY(m_desktop->input.click(m_desktop->center(dialog.field)));
    QTRY_VERIFY(m_desktop->hasKeyboard(&dialog));

    // WHEN the main window is pressed all the same
    QVERIFY(m_desktop->input.click(m_desktop->center(mainWindow.field)));

    // THEN what is typed still goes to the dialog
    QTRY_VERIFY(m_desktop->hasKeyboard(&dialog));
    QVERIFY(m_desktop->input.type(QStringLiteral("typed")));
    QTRY_COMPARE(dialog.field->text(), QStringLiteral("typed"));
    QCOMPARE(mainWindow.field->text(), QString());
}

void tst_FramelessDialog_x11::shownDialogTakesTheKeyboardAndGivesItBack()
{
    // GIVEN a main window with the keyboard
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    QVERIFY(m_desktop->input.click(m_desktop->center(mainWindow.field)));
    QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));

    // WHEN a dialog is shown, THEN it can be typed into at once
    Dialog dialog(&mainWindow);
    QVERIFY(m_desktop->show(&dialog));
    QTRY_VERIFY(m_desktop->hasKeyboard(&dialog));
    QVERIFY(m_desktop->input.type(QStringLiteral("first")));
    QTRY_COMPARE(dialog.field->text(), QStringLiteral("first"));

    // WHEN it is closed from the keyboard, THEN typing goes on in the main window
    QVERIFY(m_desktop->input.key(XK_Escape));
    QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));
    QVERIFY(m_desktop->input.type(QStringLiteral("then")));
    QTRY_COMPARE(mainWindow.field->text(), QStringLiteral("then"));
    QCOMPARE(dialog.field->text(), QStringLiteral("first"));
}

void tst_FramelessDialog_x11::nestedDialogGivesTheKeyboardBackToItsParent()
{
    // GIVEN a modal dialog over a modal dialog over a main window
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    Dialog outer(&mainWindow);
    outer.setModal(true);
    QVERIFY(m_desktop->show(&outer));
    Dialog inner(&outer);
    inner.setModal(true);
    inner.move(Place.topLeft() + QPoint(50, 50));
    QVERIFY(m_desktop->show(&inner));
    QTRY_VERIFY(m_desktop->hasKeyboard(&inner));

    // WHEN one after the other is closed by its button, THEN the keyboard goes from one to the next
    QVERIFY(m_desktop->input.click(m_desktop->center(inner.titleButton(CloseButton))));
    QTRY_VERIFY(m_desktop->hasKeyboard(&outer));
    QVERIFY(m_desktop->input.click(m_desktop->center(outer.titleButton(CloseButton))));
    QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));
}

void tst_FramelessDialog_x11::dialogShownWithoutActivatingLeavesTheKeyboard()
{
    // GIVEN a main window with the keyboard
    MainWindow mainWindow;
    QVERIFY(m_desktop->show(&mainWindow));
    QVERIFY(m_desktop->input.click(m_desktop->center(mainWindow.field)));
    QTRY_VERIFY(m_desktop->hasKeyboard(&mainWindow));

    // WHEN a dialog is shown that is not to disturb
    Dialog dialog(&mainWindow);
    dialog.setAttribute(Qt::WA_ShowWithoutActivating);
    QVERIFY(m_desktop->show(&dialog));

    // THEN typing goes on in the main window
    QVERIFY(m_desktop->input.type(QStringLiteral("typed")));
    QTRY_COMPARE(mainWindow.field->text(), QStringLiteral("typed"));
    QCOMPARE(dialog.field->text(), QString());
}

void tst_FramelessDialog_x11::picture_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("border");
    QTest::newRow("colours as they come") << QColor(0x45, 0x45, 0x45) << QColor(0x38, 0x38, 0x38);
    QTest::newRow("colours of the application") << QColor(0x20, 0x60, 0xa0) << QColor(0xf0, 0xc0, 0x80);
}

void tst_FramelessDialog_x11::picture()
{
    QFETCH(QColor, ground);
    QFETCH(QColor, border);

    // GIVEN a dialog on a black screen, and nothing that mixes it with what is behind
    QCOMPARE(m_desktop->server.pixel(Place.center()), QColor(Qt::black).rgb());
    if (QLatin1String(QTest::currentDataTag()) == QLatin1String("colours of the application")) {
        FramelessDialog::m_defaultBackgroundColor = ground;
        FramelessDialog::m_defaultBorderColor = border;
    }
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));

    // THEN the border runs along whole coordinates: half of it lies on the outermost pixels, over nothing,
    // and half, on the far sides, over the ground
    const int right = Place.width() - 1;
    const int bottom = Place.height() - 1;
    const QPoint middle(right / 2, bottom / 2);
    const QColor onNothing = mixed(border, Qt::black);
    const QColor onGround = mixed(border, ground);
    const QVector<Spot> spots = {
        {"top side", {middle.x(), 0}, onNothing},
        {"below the top side", {middle.x(), 1}, ground},
        {"left side", {0, middle.y()}, onNothing},
        {"next to the left side", {1, middle.y()}, ground},
        {"bottom side", {middle.x(), bottom}, onNothing},
        {"above the bottom side", {middle.x(), bottom - 1}, onGround},
        {"second above the bottom side", {middle.x(), bottom - 2}, ground},
        {"right side", {right, middle.y()}, onNothing},
        {"next to the right side", {right - 1, middle.y()}, onGround},
        {"second from the right side", {right - 2, middle.y()}, ground},
        // What has no style rule shows the ground.
        {"title bar", {150, TitleHeight / 2}, ground},
        {"upper line", {middle.x(), TitleHeight + 1}, ground},
        {"content", {5, middle.y()}, ground},
        {"bottom bar", {5, bottom - 5}, ground},
    };
    for (const Spot &spot : spots)
        QTRY_VERIFY2(isColored(m_desktop->pixel(&dialog, spot.place), spot.color), describe(&dialog, spot));
}

void tst_FramelessDialog_x11::pictureWithAStyleSheet()
{
    // GIVEN a style sheet for all the parts of a dialog
    const QColor titleBar(0x10, 0x20, 0x30);
    const QColor line(0xff, 0x00, 0x00);
    const QColor bottomBar(0x00, 0x80, 0x40);
    qApp->setStyleSheet(QStringLiteral("*[isFramelessDialog='true'] { background: #ffffff }"
                                       "*[isFramelessDialogTitleBar='true'] { background: %1 }"
                                       "*[isBackgroundSeparator='true'] { background: %2 }"
                                       "*[isFramelessDialogBottomWidget='true'] { background: %3 }")
                            .arg(titleBar.name(), line.name(), bottomBar.name()));

    // WHEN the dialog is on the screen
    Dialog dialog;
    QVERIFY(m_desktop->show(&dialog));

    // THEN each part is where the layout puts it, and ground and border are still the dialog's own
    const int right = Place.width() - 1;
    const int bottom = Place.height() - 1;
    const int bottomBarTop = bottom - dialog.m_pBottomWidget->height();
    const int middleX = right / 2;
    const QColor ground = FramelessDialog::m_defaultBackgroundColor;
    const QColor edge = mixed(FramelessDialog::m_defaultBorderColor, Qt::black);
    const QVector<Spot> spots = {
        {"top side", {middleX, 0}, edge},
        {"left side", {0, Place.height() / 2}, edge},
        {"left of the title bar", {1, TitleHeight / 2}, ground},
        {"title bar's first column", {2, TitleHeight / 2}, titleBar},
        {"title bar's last column", {right - 2, TitleHeight / 2}, titleBar},
        {"title bar's first row", {150, 1}, titleBar},
        {"title bar's last row", {150, TitleHeight}, titleBar},
        {"upper line's first row", {middleX, TitleHeight + 1}, line},
        {"upper line's second row", {middleX, TitleHeight + 2}, line},
        {"upper line's first column", {1, TitleHeight + 1}, line},
        {"upper line's last column", {right - 1, TitleHeight + 1}, line},
        {"below the upper line", {middleX, TitleHeight + 3}, ground},
        {"content", {5, Place.height() / 2}, ground},
        {"above the lower line", {middleX, bottomBarTop - 3}, ground},
        {"lower line's first row", {middleX, bottomBarTop - 2}, line},
        {"lower line's second row", {middleX, bottomBarTop - 1}, line},
        {"bottom bar's first row", {middleX, bottomBarTop}, bottomBar},
        {"bottom bar's last row", {middleX, bottom - 1}, bottomBar},
        {"bottom side", {middleX, bottom}, edge},
    };
    for (const Spot &spot : spots)
        QTRY_VERIFY2(isColored(m_desktop->pixel(&dialog, spot.place), spot.color), describe(&dialog, spot));
}

QTEST_MAIN(tst_FramelessDialog_x11)
#include "tst_framelessdialog_x11.moc"
