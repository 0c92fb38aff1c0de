// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <appearance.h>
#include <memory>
#include <optional>
#include <page.h>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/toolbutton.h>

using namespace Gallery;
using Tarn::Widgets::ChangedNoticeLineEdit;
using Tarn::Widgets::IPLineEdit;
using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnPushButton;
using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;
using Tarn::Widgets::ToolButton;

namespace {

template <typename Widget> Widget *findByText(QWidget *parent, const QString &text)
{
    const QList<Widget *> all = parent->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->text() == text)
            return widget;
    }
    return nullptr;
}

/* A page on its own. */
struct Stage
{
    explicit Stage(const QString &id)
        : appearance(QStringLiteral(TARN_THEMES_DIR))
    {
        appearance.setTheme(QStringLiteral("dark"));
        const QVector<Page> all = pages();
        for (const Page &candidate : all) {
            if (candidate.id == id)
                page.reset(candidate.create(&appearance, nullptr));
        }
        if (!page)
            qFatal("There is no page %s", qPrintable(id));
        page->show();
        QApplication::setActiveWindow(page.get());
    }

    template <typename Widget> Widget *find() const
    {
        return page->findChild<Widget *>();
    }

    void click(const QString &button) const
    {
        auto *widget = findByText<QPushButton>(page.get(), button);
        QVERIFY2(widget, qPrintable(button));
        widget->click();
    }

    void setSwitch(const QString &text, bool on) const
    {
        auto *widget = findByText<QCheckBox>(page.get(), text);
        QVERIFY2(widget, qPrintable(text));
        QVERIFY2(widget->isChecked() != on, qPrintable(text));
        widget->setChecked(on);
    }

    /* The field beside a label. */
    template <typename Widget> Widget *field(const QString &label) const
    {
        auto *widget = findByText<QLabel>(page.get(), label);
        return widget ? qobject_cast<Widget *>(widget->buddy()) : nullptr;
    }

    QString value(const QString &label) const
    {
        const auto *widget = field<QLabel>(label);
        return widget ? widget->text() : QStringLiteral("no such row");
    }

    QStringList log() const
    {
        const auto *list = find<QListWidget>();
        QStringList lines;
        for (int row = 0; row < list->count(); ++row)
            lines.append(list->item(row)->text());
        return lines;
    }

    bool says(const QString &text) const
    {
        return findByText<QLabel>(page.get(), text);
    }

    Appearance appearance;
    std::unique_ptr<QWidget> page;
};

} // namespace

/* The pages of the small widgets. */
class tst_GalleryPages_Input : public QObject
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

    // Input fields
    void typedAddressIsShownAndLogged();
    void addressIsSetAsTheEditorTakesIt_data();
    void addressIsSetAsTheEditorTakesIt();
    void emptyEditorIsNotAcceptable();
    void addressSwitchesReachTheEditor();
    void modifiedIsToldOnce();
    void focusGoesToTheFirstNumber();
    void leavingTheLineEditIsLogged();

    // Tabs
    void barSwitchesReachBothBars_data();
    void barSwitchesReachBothBars();
    void secondTabIsDisabledAndEnabled();
    void toolTipsAndButtonsComeAndGo();
    void iconsComeAndGo();
    void sideWidgetsComeAndGo();
    void addButtonAddsATab();
    void sizesReachBothBars();
    void pagesHaveTheChosenColour();
    void pagesAreInsertedAndRemoved();
    void longTextGetsAToolTip();
    void closingATabIsReported();
    void areasAreCentred();

    // Buttons
    void textReachesAllButtons();
    void sizesReachAllButtons();
    void turningReachesTheButtons();
    void menuModeReachesTheToolButton();
    void hoverIsTold();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_GalleryPages_Input::typedAddressIsShownAndLogged()
{
    const Stage stage(QStringLiteral("input"));
    QCOMPARE(stage.value(QStringLiteral("Address")), QStringLiteral("192.168.1.20"));
    QCOMPARE(stage.value(QStringLiteral("Acceptable")), QStringLiteral("yes"));
    QCOMPARE(stage.log(), QStringList());

    QTest::keyClick(stage.find<IPLineEdit>()->findChildren<QLineEdit *>().constLast(), Qt::Key_Backspace);

    QCOMPARE(stage.value(QStringLiteral("Address")), QStringLiteral("192.168.1.2"));
    QCOMPARE(stage.log(), QStringList(QStringLiteral("addressChanged: 192.168.1.2")));
}

void tst_GalleryPages_Input::addressIsSetAsTheEditorTakesIt_data()
{
    QTest::addColumn<bool>("anyAddress");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("valid");
    QTest::addColumn<QString>("address");
    const auto add = [](const char *name, bool any, const char *text, const char *valid,
                        const char *address) {
        QTest::newRow(name) << any << QString::fromLatin1(text) << QString::fromLatin1(valid)
                            << QString::fromLatin1(address);
    };
    add("an address", false, "10.0.0.1", "yes", "10.0.0.1");
    add("set though not valid", false, "8.8.4.4", "no", "8.8.4.4");
    add("valid with any address", true, "8.8.4.4", "yes", "8.8.4.4");
    add("no IPv4 with any address", true, "1x2x3x4", "no", "192.168.1.20");
}

void tst_GalleryPages_Input::addressIsSetAsTheEditorTakesIt()
{
    QFETCH(bool, anyAddress);
    QFETCH(QString, text);
    QFETCH(QString, valid);
    QFETCH(QString, address);

    const Stage stage(QStringLiteral("input"));
    if (anyAddress)
        stage.setSwitch(QStringLiteral("Any address"), true);
    stage.field<QLineEdit>(QStringLiteral("Text"))->setText(text);
    QCOMPARE(stage.value(QStringLiteral("Valid")), valid);

    const bool stays = address == stage.find<IPLineEdit>()->text();
    if (stays)
        m_guard->sentry().expect(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("Your IP Address is Invalid!$")));
    stage.click(QStringLiteral("Set text"));

    QCOMPARE(stage.value(QStringLiteral("Address")), address);
    QCOMPARE(stage.log().constLast(),
             (stays ? QStringLiteral("The address stays: %1") : QStringLiteral("addressChanged: %1"))
                 .arg(address));
}

void tst_GalleryPages_Input::emptyEditorIsNotAcceptable()
{
    const Stage stage(QStringLiteral("input"));
    stage.click(QStringLiteral("Clear"));
    QCOMPARE(stage.value(QStringLiteral("Address")), QStringLiteral("..."));
    QCOMPARE(stage.value(QStringLiteral("Acceptable")), QStringLiteral("no"));
}

void tst_GalleryPages_Input::addressSwitchesReachTheEditor()
{
    const Stage stage(QStringLiteral("input"));
    const auto *editor = stage.find<IPLineEdit>();
    stage.setSwitch(QStringLiteral("Any address"), true);
    QVERIFY(editor->acceptsAnyAddress());
    stage.setSwitch(QStringLiteral("Any address"), false);
    QVERIFY(!editor->acceptsAnyAddress());

    const QList<QLineEdit *> fields = editor->findChildren<QLineEdit *>();
    QCOMPARE(fields.count(), 4);
    stage.setSwitch(QStringLiteral("Read-only"), true);
    for (const QLineEdit *field : fields)
        QVERIFY(field->isReadOnly());
    stage.setSwitch(QStringLiteral("Enabled"), false);
    QVERIFY(!editor->isEnabled());
}

void tst_GalleryPages_Input::modifiedIsToldOnce()
{
    const Stage stage(QStringLiteral("input"));
    stage.click(QStringLiteral("Modified?"));
    QTest::keyClick(stage.find<IPLineEdit>()->findChildren<QLineEdit *>().constLast(), Qt::Key_Backspace);
    stage.click(QStringLiteral("Modified?"));
    stage.click(QStringLiteral("Modified?"));
    QCOMPARE(stage.log().filter(QStringLiteral("isModified")),
             (QStringList{QStringLiteral("isModified: no"), QStringLiteral("isModified: yes"),
                          QStringLiteral("isModified: no")}));
}

void tst_GalleryPages_Input::focusGoesToTheFirstNumber()
{
    const Stage stage(QStringLiteral("input"));
    stage.click(QStringLiteral("Focus"));
    QCOMPARE(QApplication::focusWidget(), stage.find<IPLineEdit>()->findChild<QLineEdit *>());
}

void tst_GalleryPages_Input::leavingTheLineEditIsLogged()
{
    const Stage stage(QStringLiteral("input"));
    auto *field = stage.find<ChangedNoticeLineEdit>();
    field->setFocus();
    QVERIFY(field->hasFocus());
    stage.find<IPLineEdit>()->setIPFocus();
    field->setText(QStringLiteral("pump"));
    field->setFocus();
    field->selectAll();
    stage.find<IPLineEdit>()->setIPFocus();
    QCOMPARE(
        stage.log(),
        (QStringList{QStringLiteral("signal_focusOut"), QStringLiteral("signal_focusOut, selected: pump")}));
}

using Getter = bool (TarnTabBar::*)() const;
Q_DECLARE_METATYPE(Getter)

void tst_GalleryPages_Input::barSwitchesReachBothBars_data()
{
    QTest::addColumn<Getter>("get");
    QTest::newRow("Closable") << &TarnTabBar::tabsClosable;
    QTest::newRow("Movable") << &TarnTabBar::isMovable;
    QTest::newRow("Scroll buttons") << &TarnTabBar::usesScrollButtons;
    QTest::newRow("Expanding") << &TarnTabBar::expanding;
    QTest::newRow("Hide if single") << &TarnTabBar::autoHide;
    QTest::newRow("Even") << Getter();
}

void tst_GalleryPages_Input::barSwitchesReachBothBars()
{
    QFETCH(Getter, get);

    const Stage stage(QStringLiteral("tabs"));
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    const QList<TarnTabBar *> bars = stage.page->findChildren<TarnTabBar *>();
    QCOMPARE(bars.count(), 2);
    const auto isOn = [get](const TarnTabBar *bar) {
        return get ? (bar->*get)() : bar->getTabBarType() == TabBarRd::Even;
    };
    const bool wasOn = findByText<QCheckBox>(stage.page.get(), text)->isChecked();
    for (const bool on : {!wasOn, wasOn}) {
        for (const TarnTabBar *bar : bars)
            QCOMPARE(isOn(bar), !on);
        stage.setSwitch(text, on);
        for (const TarnTabBar *bar : bars)
            QCOMPARE(isOn(bar), on);
    }
}

void tst_GalleryPages_Input::secondTabIsDisabledAndEnabled()
{
    const Stage stage(QStringLiteral("tabs"));
    const auto *tabs = stage.find<TarnTabWidget>();
    for (const bool on : {false, true}) {
        stage.setSwitch(QStringLiteral("Second tab enabled"), on);
        QVERIFY(tabs->isTabEnabled(0));
        QCOMPARE(tabs->isTabEnabled(1), on);
    }
}

void tst_GalleryPages_Input::toolTipsAndButtonsComeAndGo()
{
    const Stage stage(QStringLiteral("tabs"));
    const QList<TarnTabBar *> bars = stage.page->findChildren<TarnTabBar *>();
    for (const bool on : {true, false}) {
        for (const char *text : {"Tool tips", "Tab buttons"})
            stage.setSwitch(QString::fromLatin1(text), on);
        for (const TarnTabBar *bar : bars) {
            QCOMPARE(bar->tabToolTip(2), on ? QStringLiteral("This is tab 3") : QString());
            QCOMPARE(bar->tabButton(2, QTabBar::LeftSide) != nullptr, on);
        }
    }
}

void tst_GalleryPages_Input::iconsComeAndGo()
{
    const Stage stage(QStringLiteral("tabs"));
    const auto *tabs = stage.find<TarnTabWidget>();
    for (const bool on : {true, false}) {
        stage.setSwitch(QStringLiteral("Icons"), on);
        QCOMPARE(tabs->tabIcon(0).isNull(), !on);
        QCOMPARE(tabs->tabIcon(2).isNull(), !on);
    }
}

void tst_GalleryPages_Input::sideWidgetsComeAndGo()
{
    const Stage stage(QStringLiteral("tabs"));
    QVERIFY(findByText<QToolButton>(stage.page.get(), QStringLiteral("Right"))->isVisible());
    stage.setSwitch(QStringLiteral("Side widgets"), false);
    for (const char *text : {"Left", "+", "Right", "Far right"})
        QVERIFY(!findByText<QToolButton>(stage.page.get(), QLatin1String(text))->isVisible());
}

void tst_GalleryPages_Input::addButtonAddsATab()
{
    const Stage stage(QStringLiteral("tabs"));
    const auto *bar = stage.find<TarnTabBar>();
    QCOMPARE(bar->count(), 3);
    findByText<QToolButton>(stage.page.get(), QStringLiteral("+"))->click();
    QCOMPARE(bar->count(), 4);
    QVERIFY(stage.says(QStringLiteral("Bar: currentChanged(3)")));
}

void tst_GalleryPages_Input::sizesReachBothBars()
{
    const Stage stage(QStringLiteral("tabs"));
    stage.field<QSpinBox>(QStringLiteral("Least width"))->setValue(50);
    stage.field<QSpinBox>(QStringLiteral("Greatest width"))->setValue(210);
    stage.field<QSpinBox>(QStringLiteral("Icon size"))->setValue(33);
    stage.field<QComboBox>(QStringLiteral("Elision"))->setCurrentText(QStringLiteral("Middle"));
    const QList<TarnTabBar *> bars = stage.page->findChildren<TarnTabBar *>();
    for (const TarnTabBar *bar : bars) {
        QCOMPARE(bar->getTabMinWidth(), 50);
        QCOMPARE(bar->getTabMaxWidth(), 210);
        QCOMPARE(bar->iconSize(), QSize(33, 33));
        QCOMPARE(bar->elideMode(), Qt::ElideMiddle);
    }

    const auto *right = findByText<QToolButton>(stage.page.get(), QStringLiteral("Right"));
    const auto *farRight = findByText<QToolButton>(stage.page.get(), QStringLiteral("Far right"));
    stage.field<QSpinBox>(QStringLiteral("Spacing"))->setValue(17);
    QTRY_COMPARE(farRight->x() - right->geometry().right() - 1, 17);
}

void tst_GalleryPages_Input::pagesHaveTheChosenColour()
{
    const Stage stage(QStringLiteral("tabs"));
    const auto *tabs = stage.find<TarnTabWidget>();
    stage.field<QComboBox>(QStringLiteral("Pages"))->setCurrentText(QStringLiteral("White"));
    QCOMPARE(tabs->currentWidget()->grab().toImage().pixelColor(2, 2), QColor(Qt::white));
    stage.field<QComboBox>(QStringLiteral("Pages"))->setCurrentText(QStringLiteral("Blue"));
    QCOMPARE(tabs->currentWidget()->grab().toImage().pixelColor(2, 2), QColor(0x1b77a3));
}

void tst_GalleryPages_Input::pagesAreInsertedAndRemoved()
{
    const Stage stage(QStringLiteral("tabs"));
    const auto *tabs = stage.find<TarnTabWidget>();
    stage.click(QStringLiteral("Insert first"));
    QCOMPARE(tabs->tabText(0), QStringLiteral("Page 4"));
    QVERIFY(stage.says(QStringLiteral("Pages: currentChanged(3)")));
    stage.click(QStringLiteral("Add"));
    QCOMPARE(tabs->tabText(4), QStringLiteral("Page 5"));
    for (int left = 4; left >= 0; --left) {
        stage.click(QStringLiteral("Remove"));
        QCOMPARE(tabs->count(), qMax(left, 1)); // the last one stays
    }
}

void tst_GalleryPages_Input::longTextGetsAToolTip()
{
    const Stage stage(QStringLiteral("tabs"));
    QLineEdit *name = nullptr;
    const QList<QLineEdit *> fields = stage.page->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        if (!field->placeholderText().isEmpty())
            name = field;
    }
    QVERIFY(name);
    QTest::keyClicks(name, QStringLiteral("P"));
    QVERIFY(stage.says(QStringLiteral("The text fits")));
    QApplication::clipboard()->setText(QString(60, QLatin1Char('m')));
    QTest::keySequence(name, QKeySequence::Paste);
    QApplication::clipboard()->clear();
    QVERIFY(stage.says(QStringLiteral("Tool tip: P%1").arg(QString(60, QLatin1Char('m')))));
}

void tst_GalleryPages_Input::closingATabIsReported()
{
    const Stage stage(QStringLiteral("tabs"));
    auto *bar = stage.find<TarnTabBar>();
    Q_EMIT bar->getTabBar()->tabCloseRequested(1);
    QCOMPARE(bar->count(), 2);
    QVERIFY(stage.says(QStringLiteral("Bar: tabCloseRequested(1)")));
    const auto *tabs = stage.find<TarnTabWidget>();
    Q_EMIT tabs->getTabBar()->getTabBar()->tabCloseRequested(2);
    QCOMPARE(tabs->count(), 2);
    QVERIFY(stage.says(QStringLiteral("Pages: tabCloseRequested(2)")));
}

void tst_GalleryPages_Input::areasAreCentred()
{
    const Stage stage(QStringLiteral("tabs"));
    auto *bar = stage.find<TarnTabBar>();
    bar->setFixedHeight(100);
    const auto *right = findByText<QToolButton>(stage.page.get(), QStringLiteral("Right"));
    QTRY_COMPARE(right->geometry().bottom(), 99);
    stage.click(QStringLiteral("Centre areas"));
    QTRY_VERIFY(qAbs(right->geometry().center().y() - 50) <= 1);
}

void tst_GalleryPages_Input::textReachesAllButtons()
{
    const Stage stage(QStringLiteral("buttons"));
    QCOMPARE(stage.value(QStringLiteral("Tool tip")), QStringLiteral("none"));
    const QString text(40, QLatin1Char('m'));
    stage.field<QLineEdit>(QStringLiteral("Text"))->setText(text);
    const QList<TarnPushButton *> buttons = stage.page->findChildren<TarnPushButton *>();
    QCOMPARE(buttons.count(), 3);
    for (const TarnPushButton *button : buttons)
        QCOMPARE(button->getBtnText(), text);
    QCOMPARE(stage.value(QStringLiteral("Tool tip")), text);
    QVERIFY(stage.value(QStringLiteral("Shown")).endsWith(QChar(0x2026)));
}

void tst_GalleryPages_Input::sizesReachAllButtons()
{
    const Stage stage(QStringLiteral("buttons"));
    stage.field<QSpinBox>(QStringLiteral("Height"))->setValue(30);
    stage.field<QSpinBox>(QStringLiteral("Width"))->setValue(50);
    const QList<TarnPushButton *> buttons = stage.page->findChildren<TarnPushButton *>();
    for (const TarnPushButton *button : buttons)
        QTRY_COMPARE(button->size(), QSize(50, 30));
    QCOMPARE(stage.value(QStringLiteral("Tool tip")), QStringLiteral("Messages")); // no room any more
}

void tst_GalleryPages_Input::turningReachesTheButtons()
{
    const Stage stage(QStringLiteral("buttons"));
    const QList<TarnPushButton *> buttons = stage.page->findChildren<TarnPushButton *>();
    stage.field<QLineEdit>(QStringLiteral("Text"))->setFocus(); // the focus is seen on a button
    const QImage clockwise = buttons.at(0)->grab().toImage();
    const QImage counterClockwise = buttons.at(1)->grab().toImage();
    QVERIFY(clockwise != counterClockwise);

    stage.setSwitch(QStringLiteral("First one clockwise"), false);
    QCOMPARE(buttons.at(0)->grab().toImage(), counterClockwise);
    QCOMPARE(buttons.at(1)->grab().toImage(), counterClockwise);

    stage.setSwitch(QStringLiteral("Turned"), false);
    QVERIFY(buttons.at(1)->grab().toImage() != counterClockwise);
    QCOMPARE(buttons.at(0)->grab().toImage(), buttons.at(1)->grab().toImage());
}

void tst_GalleryPages_Input::menuModeReachesTheToolButton()
{
    const Stage stage(QStringLiteral("buttons"));
    const auto *button = stage.find<ToolButton>();
    QVERIFY(button->menu());
    QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
    stage.field<QComboBox>(QStringLiteral("Menu"))->setCurrentText(QStringLiteral("By its arrow"));
    QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
}

void tst_GalleryPages_Input::hoverIsTold()
{
    const Stage stage(QStringLiteral("buttons"));
    QVERIFY(QTest::qWaitForWindowExposed(stage.page.get()));
    auto *button = stage.find<ToolButton>();
    QTRY_VERIFY(stage.says(QStringLiteral("Not hovered")));
    button->setAttribute(Qt::WA_UnderMouse);
    button->update();
    QTRY_VERIFY(stage.says(QStringLiteral("Hovered")));
}

QTEST_MAIN(tst_GalleryPages_Input)
#include "tst_gallerypages_input.moc"
