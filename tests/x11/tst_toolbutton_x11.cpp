// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <X11/keysym.h>
#include <functional>
#include <optional>
#include <tarnwidgets/toolbutton.h>

using Tarn::Test::Desktop;
using Tarn::Widgets::ToolButton;

namespace {

const QRect Place(400, 200, 300, 200);
constexpr QPoint Ground(4, 4); // a pixel of the button with nothing drawn on it
constexpr QPoint Elsewhere(1000, 600);
constexpr QPoint InTheWindow(600, 350);
constexpr QRgb NormalColor = 0xff0000ff;
constexpr QRgb HoverColor = 0xffff0000;

/* A window with a tool button that shows by its colour whether it is hovered. */
template <typename Button> struct Form
{
    Form()
        : button(&window)
    {
        menu.addAction(QStringLiteral("An entry"));
        window.setStyleSheet(QStringLiteral("QToolButton { background: #0000ff; border: none; }"
                                            "QToolButton:hover { background: #ff0000; }"
                                            "QToolButton::menu-indicator { image: none; }"));
        window.setWindowFlag(Qt::FramelessWindowHint);
        window.setGeometry(Place);
        button.setGeometry(20, 20, 40, 40);
        button.setPopupMode(QToolButton::InstantPopup);
        button.setMenu(&menu);
    }

    QRgb color(const Desktop &desktop) const
    {
        return desktop.pixel(&window, button.pos() + Ground);
    }

    QWidget window;
    QMenu menu;
    Button button;
};

/* What the user does while the menu is open, and closes it. */
using Action = std::function<bool(Desktop &desktop, const QRect &menu)>;

/* Presses the button, and lets the user act once its menu is open; returns when that has closed. */
template <typename Button> bool openMenu(Desktop &desktop, Form<Button> &form, const Action &action)
{
    bool isDone = false;
    const auto act = [&] {
        isDone =
            desktop.input.release() && form.menu.isVisible() && action(desktop, desktop.geometry(&form.menu));
    };
    const QMetaObject::Connection connection = QObject::connect(
        &form.menu, &QMenu::aboutToShow, &form.menu, [&] { QTimer::singleShot(0, &form.menu, act); });
    const bool isPressed = desktop.input.press();
    QObject::disconnect(connection);
    return isPressed && isDone && !form.menu.isVisible() && desktop.server.settle();
}

bool escapeElsewhere(Desktop &desktop, const QRect &)
{
    return desktop.input.moveTo(Elsewhere) && desktop.input.key(XK_Escape);
}

/* Nobody hears of the pointer leaving a widget. */
class LeaveEater : public QObject
{
public:
    LeaveEater()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return watched->isWidgetType() && event->type() == QEvent::Leave;
    }
};

} // namespace

Q_DECLARE_METATYPE(Action)

class tst_ToolButtonX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_desktop.emplace();
        QVERIFY(m_desktop->isAsExpected());
    }
    void cleanup()
    {
        m_desktop.reset();
    }

    void hoverFollowsThePointerAfterTheMenu_data();
    void hoverFollowsThePointerAfterTheMenu();
    void hoverGoesThoughNobodyTellsOfTheLeave();
    void hoverWorksOnAfterTheMenu();

private:
    std::optional<Desktop> m_desktop;
};

void tst_ToolButtonX11::hoverFollowsThePointerAfterTheMenu_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<bool>("isHovered");
    QTest::newRow("Escape, pointer elsewhere") << Action(escapeElsewhere) << false;
    QTest::newRow("Escape, pointer on the button")
        << Action([](Desktop &desktop, const QRect &) { return desktop.input.key(XK_Escape); }) << true;
    QTest::newRow("click elsewhere") << Action([](Desktop &desktop, const QRect &) {
        return desktop.input.click(Elsewhere);
    }) << false;
    QTest::newRow("click in the window")
        << Action([](Desktop &desktop, const QRect &) { return desktop.input.click(InTheWindow); }) << false;
    QTest::newRow("click on the entry")
        << Action([](Desktop &desktop, const QRect &menu) { return desktop.input.click(menu.center()); })
        << false;
    QTest::newRow("entry by the keyboard, pointer elsewhere") << Action([](Desktop &desktop, const QRect &) {
        return desktop.input.moveTo(Elsewhere) && desktop.input.key(XK_Down) && desktop.input.key(XK_Return);
    }) << false;
    QTest::newRow("pointer away and back, Escape") << Action([](Desktop &desktop, const QRect &) {
        return desktop.input.moveTo(Elsewhere) && desktop.input.moveTo(Place.topLeft() + QPoint(40, 40))
            && desktop.input.key(XK_Escape);
    }) << true;
}

void tst_ToolButtonX11::hoverFollowsThePointerAfterTheMenu()
{
    QFETCH(Action, action);
    QFETCH(bool, isHovered);

    // GIVEN a button under the pointer
    Form<ToolButton> form;
    QVERIFY(m_desktop->show(&form.window));
    QCOMPARE(form.color(*m_desktop), NormalColor);
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(&form.button)));
    QCOMPARE(form.color(*m_desktop), HoverColor);

    // WHEN the user opens its menu and closes it again
    QVERIFY(openMenu(*m_desktop, form, action));

    // THEN the button is hovered only if the pointer is over it
    QCOMPARE(form.button.underMouse(), isHovered);
    QCOMPARE(form.color(*m_desktop), isHovered ? HoverColor : NormalColor);
}

template <typename Button> static void leaveUnnoticed(Desktop &desktop, QRgb expected)
{
    Form<Button> form;
    QVERIFY(desktop.show(&form.window));
    QVERIFY(desktop.input.moveTo(desktop.center(&form.button)));
    QCOMPARE(form.color(desktop), HoverColor);
    const LeaveEater eater;

    QVERIFY(openMenu(desktop, form, escapeElsewhere));

    QCOMPARE(form.color(desktop), expected);
}

void tst_ToolButtonX11::hoverGoesThoughNobodyTellsOfTheLeave()
{
    // Qt's own button stays hovered; otherwise this would tell nothing.
    leaveUnnoticed<QToolButton>(*m_desktop, HoverColor);
    leaveUnnoticed<ToolButton>(*m_desktop, NormalColor);
}

void tst_ToolButtonX11::hoverWorksOnAfterTheMenu()
{
    // GIVEN a button whose menu has closed with the pointer elsewhere
    Form<ToolButton> form;
    QVERIFY(m_desktop->show(&form.window));
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(&form.button)));
    QVERIFY(openMenu(*m_desktop, form, escapeElsewhere));
    QCOMPARE(form.color(*m_desktop), NormalColor);

    // WHEN the pointer comes and goes
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(&form.button)));

    // THEN the hover does
    QCOMPARE(form.color(*m_desktop), HoverColor);
    QVERIFY(m_desktop->input.moveTo(Elsewhere));
    QCOMPARE(form.color(*m_desktop), NormalColor);
}

QTEST_MAIN(tst_ToolButtonX11)

#include "tst_toolbutton_x11.moc"
