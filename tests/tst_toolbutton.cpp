// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QCursor>
#include <QImage>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/toolbutton.h>

using namespace Tarn::Test;
using Tarn::Widgets::ToolButton;

namespace {

constexpr QPoint Inside(15, 15);
constexpr QPoint Outside(200, 200);

class CountingButton : public ToolButton
{
public:
    using ToolButton::ToolButton;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ToolButton::paintEvent(event);
    }
};

/* How many are told when it closes. */
class CountingMenu : public QMenu
{
public:
    int hideReceivers() const
    {
        return receivers(SIGNAL(aboutToHide()));
    }
};

/* A button with a menu in the upper left corner of a window on the screen. */
struct Form
{
    Form()
        : button(&window)
    {
        window.setGeometry(100, 100, 300, 300);
        button.setGeometry(0, 0, 30, 30);
        menu.addAction(QStringLiteral("An entry"));
        button.setMenu(&menu);
        window.show();
    }

    void movePointerTo(const QPoint &pos)
    {
        QCursor::setPos(window.mapToGlobal(pos));
        QApplication::processEvents();
    }

    void openMenu()
    {
        menu.popup(window.mapToGlobal(QPoint(60, 60)));
    }

    QWidget window;
    QMenu menu;
    CountingButton button;
};

} // namespace

class tst_ToolButton : public QObject
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

    void buttonIsAToolButtonWithOneSlotMore();
    void setMenuGivesTheMenu();
    void nullTakesTheMenuAway();
    void recoverGoesByThePointer_data();
    void recoverGoesByThePointer();
    void recoverPaintsTheButton();
    void closingTheMenuRecoversOnce_data();
    void closingTheMenuRecoversOnce();
    void hoverLookIsGoneAfterTheMenu();
    void formerMenuStillRecovers_data();
    void formerMenuStillRecovers();
    void menuSetAgainIsConnectedOnce();
    void menuMayBeDeleted();
    void buttonMayBeDeletedBeforeItsMenu();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_ToolButton::buttonIsAToolButtonWithOneSlotMore()
{
    QWidget parent;
    const auto *button = new ToolButton(&parent);

    QCOMPARE(button->parentWidget(), &parent);
    const QMetaObject *base = &QToolButton::staticMetaObject;
    QCOMPARE(button->metaObject()->className(), "Tarn::Widgets::ToolButton");
    QCOMPARE(button->metaObject()->superClass(), base);
    QCOMPARE(button->metaObject()->propertyCount(), base->propertyCount());
    QCOMPARE(button->metaObject()->methodCount(), base->methodCount() + 1);
    const int index = button->metaObject()->indexOfSlot("recover()");
    QVERIFY(index >= 0);
    QCOMPARE(button->metaObject()->method(index).access(), QMetaMethod::Public);
    QVERIFY(!button->menu());
}

void tst_ToolButton::setMenuGivesTheMenu()
{
    ToolButton button;
    QMenu menu;

    button.setMenu(&menu);

    QCOMPARE(button.menu(), &menu);
    QVERIFY(!menu.parent());
}

void tst_ToolButton::nullTakesTheMenuAway()
{
    ToolButton button;
    button.setMenu(nullptr);
    QVERIFY(!button.menu());

    QMenu menu;
    button.setMenu(&menu);
    button.setMenu(nullptr);
    QVERIFY(!button.menu());
}

void tst_ToolButton::recoverGoesByThePointer_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("isHovered");
    QTest::newRow("in the middle") << Inside << true;
    QTest::newRow("on the first pixel") << QPoint(0, 0) << true;
    QTest::newRow("on the last pixel") << QPoint(29, 29) << true;
    QTest::newRow("to the right of the last") << QPoint(30, 29) << false;
    QTest::newRow("below the last") << QPoint(29, 30) << false;
    QTest::newRow("far away") << Outside << false;
}

void tst_ToolButton::recoverGoesByThePointer()
{
    QFETCH(QPoint, pointer);
    QFETCH(bool, isHovered);
    Form form;
    form.movePointerTo(pointer);

    for (const bool before : {false, true}) {
        form.button.setAttribute(Qt::WA_UnderMouse, before);
        form.button.recover();
        QCOMPARE(form.button.underMouse(), isHovered);
    }
}

void tst_ToolButton::recoverPaintsTheButton()
{
    Form form;
    form.movePointerTo(Outside);
    QTRY_VERIFY(form.button.paints > 0);
    QApplication::processEvents();
    const int before = form.button.paints;

    form.button.recover();

    QTRY_COMPARE(form.button.paints, before + 1);
}

void tst_ToolButton::closingTheMenuRecoversOnce_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("isHovered");
    QTest::newRow("over the button") << Inside << true;
    QTest::newRow("elsewhere") << Outside << false;
}

void tst_ToolButton::closingTheMenuRecoversOnce()
{
    QFETCH(QPoint, pointer);
    QFETCH(bool, isHovered);

    // GIVEN a button that is taken as hovered, with its menu open
    Form form;
    form.openMenu();
    QVERIFY(form.menu.isVisible());
    QCursor::setPos(form.window.mapToGlobal(pointer));
    form.button.setAttribute(Qt::WA_UnderMouse, !isHovered);

    // WHEN the menu closes
    form.menu.close();

    // THEN it is hovered only if the pointer is there
    QCOMPARE(form.button.underMouse(), isHovered);
}

void tst_ToolButton::hoverLookIsGoneAfterTheMenu()
{
    // GIVEN a style sheet that shows the hover, and a button that is not hovered
    Form form;
    form.button.setStyleSheet(QStringLiteral("QToolButton { background: #0000ff; border: none; }"
                                             "QToolButton:hover { background: #ff0000; }"
                                             "QToolButton::menu-indicator { image: none; }"));
    form.movePointerTo(Outside);
    const auto background = [&form] { return form.button.grab().toImage().pixelColor(2, 2); };
    QCOMPARE(background(), QColor(Qt::blue));

    // WHEN it is hovered, and its menu comes and goes with the pointer outside
    form.button.setAttribute(Qt::WA_UnderMouse);
    QCOMPARE(background(), QColor(Qt::red));
    form.openMenu();
    form.menu.close();

    // THEN it does not look hovered
    QCOMPARE(background(), QColor(Qt::blue));
}

void tst_ToolButton::formerMenuStillRecovers_data()
{
    QTest::addColumn<bool>("hasOther");
    QTest::newRow("another one in its place") << true;
    QTest::newRow("none in its place") << false;
}

void tst_ToolButton::formerMenuStillRecovers()
{
    QFETCH(bool, hasOther);

    // GIVEN a menu that is open when it is taken away from the button
    Form form;
    QMenu other;
    form.movePointerTo(Outside);
    form.openMenu();
    form.button.setAttribute(Qt::WA_UnderMouse);
    form.button.setMenu(hasOther ? &other : nullptr);
    QVERIFY(form.menu.isVisible());

    // WHEN it closes
    form.menu.close();

    // THEN the button does not go on looking hovered
    QVERIFY(!form.button.underMouse());
}

void tst_ToolButton::menuSetAgainIsConnectedOnce()
{
    ToolButton button;
    CountingMenu menu;
    button.setMenu(&menu);
    QCOMPARE(menu.hideReceivers(), 1);

    button.setMenu(&menu);
    button.setMenu(nullptr);
    button.setMenu(&menu);

    QCOMPARE(menu.hideReceivers(), 1);
}

void tst_ToolButton::menuMayBeDeleted()
{
    ToolButton button;
    auto menu = std::make_unique<QMenu>();
    button.setMenu(menu.get());

    menu.reset();

    QVERIFY(!button.menu());
    QMenu other;
    button.setMenu(&other);
    QCOMPARE(button.menu(), &other);
}

void tst_ToolButton::buttonMayBeDeletedBeforeItsMenu()
{
    QMenu menu;
    menu.addAction(QStringLiteral("An entry"));
    auto button = std::make_unique<ToolButton>();
    button->setMenu(&menu);
    menu.popup(QPoint(60, 60));

    button.reset();
    menu.close();

    QVERIFY(!menu.isVisible());
}

QTEST_MAIN(tst_ToolButton)

#include "tst_toolbutton.moc"
