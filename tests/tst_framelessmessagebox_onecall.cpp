// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The functions that show a message box in one call.

#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/framelessmessagebox.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessMessageBox;

namespace {

using Button = QMessageBox::StandardButton;
using Buttons = QMessageBox::StandardButtons;
using ShortCall = Button (*)(QWidget *, const QString &, const QString &, Buttons, Button);
using LongCall = Button (*)(QWidget *, const QString &, const QString &, char *, bool, Buttons, Button, bool);

FramelessMessageBox *boxOf(QWidget *dialog)
{
    return qobject_cast<FramelessMessageBox *>(dialog);
}

ModalDriver::Action clickOn(Button button)
{
    return [button](QWidget *dialog) { boxOf(dialog)->button(button)->click(); };
}

void closeIt(QWidget *dialog)
{
    dialog->close();
}

void pressEscape(QWidget *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

QString title()
{
    return QStringLiteral("Title");
}

QString text()
{
    return QStringLiteral("Text");
}

} // namespace

Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)
Q_DECLARE_METATYPE(ShortCall)
Q_DECLARE_METATYPE(LongCall)

class tst_FramelessMessageBoxOneCall : public QObject
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

    void shortCallShowsIconTitleTextAndButtons_data();
    void shortCallShowsIconTitleTextAndButtons();
    void longCallShowsIconTitleTextAndButtons_data();
    void longCallShowsIconTitleTextAndButtons();
    void argumentsLeftOutAreThoseOfQMessageBox();
    void everyButtonIsReturned_data();
    void everyButtonIsReturned();
    void buttonsHaveTheBoxsOwnTexts();
    void buttonsComeInTheOrderOfTheirValues();
    void defaultButtonIsTheNamedOrTheFirstAccepting_data();
    void defaultButtonIsTheNamedOrTheFirstAccepting();
    void escapeAndClosingReturnTheEscapeButton_data();
    void escapeAndClosingReturnTheEscapeButton();
    void resultMinusOneReturnsCancel();
    void endWithoutAButtonReturnsNoButton();
    void boxWithoutButtonsReturnsOk();
    void propertySelectsInTheStyleSheet_data();
    void propertySelectsInTheStyleSheet();
    void closeButtonCanBeLeftOut_data();
    void closeButtonCanBeLeftOut();
    void shortCallPlacesTheBoxAsAnyOther();
    void longCallPlacesTheBoxByTheParentsSizeAlone();
    void deletedParentReturnsWhatClosingReturns_data();
    void deletedParentReturnsWhatClosingReturns();
    void answerOutlivesTheParent();
    void callsMayNest();

    // About
    void aboutShowsTheApplicationsIcon();
    void aboutShowsNoIconIfThereIsNone();
    void aboutQtTellsWhatQMessageBoxTells();
    void aboutQtTitle_data();
    void aboutQtTitle();
    void aboutTextsAreTranslated();
    void aboutSurvivesItsParent_data();
    void aboutSurvivesItsParent();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessMessageBoxOneCall::shortCallShowsIconTitleTextAndButtons_data()
{
    QTest::addColumn<ShortCall>("call");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("information") << ShortCall(FramelessMessageBox::information) << QMessageBox::Information;
    QTest::newRow("question") << ShortCall(FramelessMessageBox::question) << QMessageBox::Question;
    QTest::newRow("warning") << ShortCall(FramelessMessageBox::warning) << QMessageBox::Warning;
    QTest::newRow("critical") << ShortCall(FramelessMessageBox::critical) << QMessageBox::Critical;
}

void tst_FramelessMessageBoxOneCall::shortCallShowsIconTitleTextAndButtons()
{
    QFETCH(ShortCall, call);
    QFETCH(QMessageBox::Icon, icon);

    QWidget parent;
    QPointer<FramelessMessageBox> seen;
    ModalDriver driver([&](QWidget *dialog) {
        seen = boxOf(dialog);
        QCOMPARE(seen->parentWidget(), &parent);
        QCOMPARE(seen->icon(), icon);
        QCOMPARE(seen->windowTitle(), title());
        QCOMPARE(seen->text(), text());
        QCOMPARE(seen->standardButtons(), QMessageBox::Retry | QMessageBox::Abort);
        QCOMPARE(seen->defaultButton(), seen->button(QMessageBox::Abort));
        QVERIFY(seen->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
        seen->button(QMessageBox::Retry)->click();
    });
    QCOMPARE(call(&parent, title(), text(), QMessageBox::Retry | QMessageBox::Abort, QMessageBox::Abort),
             QMessageBox::Retry);
    QVERIFY(driver.ran());
    QVERIFY(!seen);
    QVERIFY(parent.children().isEmpty());
}

void tst_FramelessMessageBoxOneCall::longCallShowsIconTitleTextAndButtons_data()
{
    QTest::addColumn<LongCall>("call");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("information") << LongCall(FramelessMessageBox::information) << QMessageBox::Information;
    QTest::newRow("question") << LongCall(FramelessMessageBox::question) << QMessageBox::Question;
    QTest::newRow("warning") << LongCall(FramelessMessageBox::warning) << QMessageBox::Warning;
    QTest::newRow("critical") << LongCall(FramelessMessageBox::critical) << QMessageBox::Critical;
}

void tst_FramelessMessageBoxOneCall::longCallShowsIconTitleTextAndButtons()
{
    QFETCH(LongCall, call);
    QFETCH(QMessageBox::Icon, icon);

    char property[] = "isAlarm";
    ModalDriver driver([&](QWidget *dialog) {
        const FramelessMessageBox *box = boxOf(dialog);
        QCOMPARE(box->icon(), icon);
        QCOMPARE(box->windowTitle(), title());
        QCOMPARE(box->text(), text());
        QCOMPARE(box->standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::Ok));
        QCOMPARE(box->property("isAlarm"), QVariant(true));
        QVERIFY(box->getCloseButtonVisible());
        box->button(QMessageBox::Ok)->click();
    });
    QCOMPARE(call(nullptr, title(), text(), property, true, QMessageBox::Ok | QMessageBox::Cancel,
                  QMessageBox::NoButton, true),
             QMessageBox::Ok);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::argumentsLeftOutAreThoseOfQMessageBox()
{
    Buttons shown;
    const auto look = [&shown](QWidget *dialog) {
        if (const auto *qt = qobject_cast<QMessageBox *>(dialog))
            shown = qt->standardButtons();
        else
            shown = boxOf(dialog)->standardButtons();
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    const auto buttonsOf = [&](const std::function<Button()> &call) {
        shown = QMessageBox::NoButton;
        ModalDriver driver(look);
        call();
        return driver.ran() ? shown : Buttons(QMessageBox::NoButton);
    };
    char property[] = "p";
    QCOMPARE(buttonsOf([] { return FramelessMessageBox::information(nullptr, title(), text()); }),
             buttonsOf([] { return QMessageBox::information(nullptr, title(), text()); }));
    QCOMPARE(buttonsOf([] { return FramelessMessageBox::question(nullptr, title(), text()); }),
             buttonsOf([] { return QMessageBox::question(nullptr, title(), text()); }));
    QCOMPARE(buttonsOf([] { return FramelessMessageBox::warning(nullptr, title(), text()); }),
             buttonsOf([] { return QMessageBox::warning(nullptr, title(), text()); }));
    QCOMPARE(buttonsOf([] { return FramelessMessageBox::critical(nullptr, title(), text()); }),
             buttonsOf([] { return QMessageBox::critical(nullptr, title(), text()); }));
    QCOMPARE(
        buttonsOf([&] { return FramelessMessageBox::question(nullptr, title(), text(), property, true); }),
        QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(
        buttonsOf([&] { return FramelessMessageBox::warning(nullptr, title(), text(), property, true); }),
        Buttons(QMessageBox::Ok));
}

void tst_FramelessMessageBoxOneCall::everyButtonIsReturned_data()
{
    QTest::addColumn<Button>("button");
    for (uint bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1)
        QTest::newRow(qPrintable(QString::number(bit, 16))) << Button(bit);
}

void tst_FramelessMessageBoxOneCall::everyButtonIsReturned()
{
    QFETCH(Button, button);

    ModalDriver driver(clickOn(button));
    const Buttons all(0x0ffffc00);
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text(), all), button);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::buttonsHaveTheBoxsOwnTexts()
{
    ModalDriver driver([](QWidget *dialog) {
        QCOMPARE(boxOf(dialog)->button(QMessageBox::Save)->text(), QStringLiteral("&Save"));
        QCOMPARE(boxOf(dialog)->button(QMessageBox::Cancel)->text(), QStringLiteral("&Cancel"));
        dialog->close();
    });
    FramelessMessageBox::question(nullptr, title(), text(), QMessageBox::Save | QMessageBox::Cancel);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::buttonsComeInTheOrderOfTheirValues()
{
    ModalDriver driver([](QWidget *dialog) {
        // Of the same role, so that the order is that of addition.
        QList<Button> order;
        const QList<QAbstractButton *> buttons = boxOf(dialog)->buttons();
        for (QAbstractButton *button : buttons)
            order.append(boxOf(dialog)->standardButton(button));
        QCOMPARE(order,
                 (QList<Button>{QMessageBox::Ok, QMessageBox::Save, QMessageBox::Open, QMessageBox::Retry,
                                QMessageBox::Ignore}));
        boxOf(dialog)->button(QMessageBox::Ok)->click();
    });
    FramelessMessageBox::information(nullptr, title(), text(),
                                     QMessageBox::Ignore | QMessageBox::Retry | QMessageBox::Open
                                         | QMessageBox::Save | QMessageBox::Ok);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::defaultButtonIsTheNamedOrTheFirstAccepting_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<Button>("named");
    QTest::addColumn<Button>("expected");
    const auto none = QMessageBox::NoButton;
    QTest::newRow("Yes and No") << (QMessageBox::Yes | QMessageBox::No) << none << none;
    QTest::newRow("OK and Cancel") << (QMessageBox::Ok | QMessageBox::Cancel) << none << QMessageBox::Ok;
    QTest::newRow("first of two accepting")
        << (QMessageBox::Open | QMessageBox::Save) << none << QMessageBox::Save;
    QTest::newRow("named") << (QMessageBox::Ok | QMessageBox::Cancel) << QMessageBox::Cancel
                           << QMessageBox::Cancel;
    QTest::newRow("named, behind an accepting one")
        << (QMessageBox::Ok | QMessageBox::Retry) << QMessageBox::Retry << QMessageBox::Retry;
    QTest::newRow("named, but not there")
        << (QMessageBox::Ok | QMessageBox::Cancel) << QMessageBox::Help << none;
}

void tst_FramelessMessageBoxOneCall::defaultButtonIsTheNamedOrTheFirstAccepting()
{
    QFETCH(Buttons, buttons);
    QFETCH(Button, named);
    QFETCH(Button, expected);

    const auto look = [&](QWidget *dialog) {
        FramelessMessageBox *box = boxOf(dialog);
        QCOMPARE(box->standardButton(box->defaultButton()), expected);
        box->buttons().first()->click();
    };
    char property[] = "p";
    ModalDriver driver(look);
    driver.then(look);
    FramelessMessageBox::warning(nullptr, title(), text(), buttons, named);
    FramelessMessageBox::warning(nullptr, title(), text(), property, true, buttons, named, true);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::escapeAndClosingReturnTheEscapeButton_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<Button>("expected");
    QTest::newRow("No") << (QMessageBox::Yes | QMessageBox::No) << QMessageBox::No;
    QTest::newRow("Cancel") << (QMessageBox::Ok | QMessageBox::Cancel) << QMessageBox::Cancel;
    QTest::newRow("Abort") << (QMessageBox::Retry | QMessageBox::Abort) << QMessageBox::Abort;
    QTest::newRow("the single one") << Buttons(QMessageBox::Apply) << QMessageBox::Apply;
}

void tst_FramelessMessageBoxOneCall::escapeAndClosingReturnTheEscapeButton()
{
    QFETCH(Buttons, buttons);
    QFETCH(Button, expected);

    ModalDriver driver(pressEscape);
    driver.then(closeIt);
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text(), buttons), expected);
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text(), buttons), expected);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::resultMinusOneReturnsCancel()
{
    ModalDriver driver([](QWidget *dialog) { boxOf(dialog)->done(-1); });
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text()), QMessageBox::Cancel);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::endWithoutAButtonReturnsNoButton()
{
    ModalDriver driver([](QWidget *dialog) { boxOf(dialog)->accept(); });
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text()), QMessageBox::NoButton);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::boxWithoutButtonsReturnsOk()
{
    ModalDriver driver(pressEscape);
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text(), QMessageBox::NoButton), QMessageBox::Ok);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::propertySelectsInTheStyleSheet_data()
{
    QTest::addColumn<bool>("value");
    QTest::newRow("set to true") << true;
    QTest::newRow("set to false") << false;
}

void tst_FramelessMessageBoxOneCall::propertySelectsInTheStyleSheet()
{
    QFETCH(bool, value);

    qApp->setStyleSheet(QStringLiteral("*[isAlarm=\"true\"] QLabel#qt_msgbox_label { color: #123456; }"));
    char property[] = "isAlarm";
    ModalDriver driver([&](QWidget *dialog) {
        const auto *label = dialog->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        const bool selected = label->palette().color(QPalette::WindowText) == QColor(0x12, 0x34, 0x56);
        QCOMPARE(dialog->property("isAlarm"), QVariant(value));
        QCOMPARE(selected, value);
        dialog->close();
    });
    driver.then(closeIt);
    FramelessMessageBox::warning(nullptr, title(), text(), property, value);
    FramelessMessageBox::warning(nullptr, title(), text(), nullptr, value); // a name that is not there
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::closeButtonCanBeLeftOut_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<bool>("wanted");
    QTest::addColumn<bool>("visible");
    QTest::newRow("wanted") << Buttons(QMessageBox::Ok) << true << true;
    QTest::newRow("not wanted") << Buttons(QMessageBox::Ok) << false << false;
    QTest::newRow("wanted, but nothing to escape by")
        << (QMessageBox::Ok | QMessageBox::Save) << true << false;
}

void tst_FramelessMessageBoxOneCall::closeButtonCanBeLeftOut()
{
    QFETCH(Buttons, buttons);
    QFETCH(bool, wanted);
    QFETCH(bool, visible);

    char property[] = "p";
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(boxOf(dialog)->getCloseButtonVisible(), visible);
        boxOf(dialog)->button(QMessageBox::Ok)->click();
    });
    FramelessMessageBox::critical(nullptr, title(), text(), property, true, buttons, QMessageBox::Ok, wanted);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::shortCallPlacesTheBoxAsAnyOther()
{
    // GIVEN where a box that nobody moves is shown
    QWidget parent;
    parent.setGeometry(350, 230, 300, 260);
    parent.show();
    QPoint place;
    {
        FramelessMessageBox plain(QMessageBox::Warning, title(), text(), QMessageBox::Ok, &parent);
        plain.show();
        place = plain.pos();
    }

    // WHEN a box is shown in one call THEN it is there too
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(dialog->pos(), place);
        dialog->close();
    });
    FramelessMessageBox::warning(&parent, title(), text());
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::longCallPlacesTheBoxByTheParentsSizeAlone()
{
    // GIVEN a parent away from the origin
    QWidget parent;
    parent.setGeometry(120, 90, 777, 555);
    parent.show();
    FramelessMessageBox unshown(QMessageBox::Warning, title(), text(), QMessageBox::NoButton, &parent);
    unshown.addButton(QMessageBox::Ok);

    char property[] = "p";
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(dialog->pos(), QPoint((777 - unshown.width()) / 2, (555 - unshown.height()) / 2));
        dialog->close();
    });
    FramelessMessageBox::warning(&parent, title(), text(), property, true);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::deletedParentReturnsWhatClosingReturns_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<Button>("expected");
    QTest::newRow("No") << (QMessageBox::Yes | QMessageBox::No) << QMessageBox::No;
    QTest::newRow("Cancel") << (QMessageBox::Ok | QMessageBox::Cancel) << QMessageBox::Cancel;
    QTest::newRow("the single one") << Buttons(QMessageBox::Apply) << QMessageBox::Apply;
    QTest::newRow("the automatic OK") << Buttons() << QMessageBox::Ok;
    QTest::newRow("nothing to escape by") << (QMessageBox::Ok | QMessageBox::Save) << QMessageBox::Cancel;
}

void tst_FramelessMessageBoxOneCall::deletedParentReturnsWhatClosingReturns()
{
    QFETCH(Buttons, buttons);
    QFETCH(Button, expected);

    char property[] = "p";
    QPointer<QWidget> parent = new QWidget;
    const auto deleteParent = [&](QWidget *) { delete parent; };
    ModalDriver driver(deleteParent);
    driver.then(deleteParent);
    QCOMPARE(FramelessMessageBox::question(parent, title(), text(), buttons), expected);
    QVERIFY(!parent);
    parent = new QWidget;
    QCOMPARE(FramelessMessageBox::question(parent, title(), text(), property, true, buttons), expected);
    QVERIFY(!parent);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::answerOutlivesTheParent()
{
    QPointer<QWidget> parent = new QWidget;
    ModalDriver driver([&](QWidget *dialog) {
        boxOf(dialog)->button(QMessageBox::Yes)->click();
        delete parent; // before exec() returns
    });
    QCOMPARE(FramelessMessageBox::question(parent, title(), text()), QMessageBox::Yes);
    QVERIFY(!parent);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::callsMayNest()
{
    Button inner = QMessageBox::NoButton;
    ModalDriver driver([&](QWidget *dialog) {
        inner =
            FramelessMessageBox::warning(dialog, title(), text(), QMessageBox::Retry | QMessageBox::Abort);
        boxOf(dialog)->button(QMessageBox::Yes)->click();
    });
    driver.then(clickOn(QMessageBox::Abort));
    QCOMPARE(FramelessMessageBox::question(nullptr, title(), text()), QMessageBox::Yes);
    QCOMPARE(inner, QMessageBox::Abort);
    QVERIFY(driver.ran());
}

// About

void tst_FramelessMessageBoxOneCall::aboutShowsTheApplicationsIcon()
{
    QPixmap picture(96, 96);
    picture.fill(Qt::magenta);
    QApplication::setWindowIcon(QIcon(picture));
    QWidget parent;
    QPointer<FramelessMessageBox> seen;
    ModalDriver driver([&](QWidget *dialog) {
        seen = boxOf(dialog);
        QCOMPARE(seen->parentWidget(), &parent);
        QCOMPARE(seen->windowTitle(), title());
        QCOMPARE(seen->text(), text());
        QCOMPARE(seen->icon(), QMessageBox::NoIcon);
        QCOMPARE(seen->iconPixmap().size(), QSize(64, 64));
        QCOMPARE(seen->iconPixmap().toImage().pixelColor(32, 32), QColor(Qt::magenta));
        QCOMPARE(seen->standardButtons(), Buttons(QMessageBox::Ok));
        QVERIFY(seen->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
        seen->close();
    });
    FramelessMessageBox::about(&parent, title(), text());
    QVERIFY(driver.ran());
    QVERIFY(!seen);
    QVERIFY(parent.children().isEmpty());
}

void tst_FramelessMessageBoxOneCall::aboutShowsNoIconIfThereIsNone()
{
    QApplication::setWindowIcon(QIcon());
    ModalDriver driver([&](QWidget *dialog) {
        QVERIFY(boxOf(dialog)->iconPixmap().isNull());
        pressEscape(dialog);
    });
    FramelessMessageBox::about(nullptr, title(), text());
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::aboutQtTellsWhatQMessageBoxTells()
{
    // GIVEN what Qt tells
    QString qtText;
    QString qtInformative;
    QImage qtIcon;
    QPointer<FramelessMessageBox> seen;
    ModalDriver driver([&](QWidget *dialog) {
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        qtText = box->text();
        qtInformative = box->informativeText();
        qtIcon = box->iconPixmap().toImage();
        dialog->close();
    });
    // AND that this library tells another year, and the version that it was built with
    driver.then([&](QWidget *dialog) {
        qtText.replace(QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR));
        qtInformative.replace(QRegularExpression(QStringLiteral("Copyright \\(C\\) \\d{4}")),
                              QStringLiteral("Copyright (C) 2016"));
        seen = boxOf(dialog);
        QCOMPARE(seen->text().simplified(), qtText.simplified());
        QCOMPARE(seen->informativeText().simplified(), qtInformative.simplified());
        QVERIFY(!seen->informativeText().contains(QLatin1Char('%')));
        QVERIFY(!qtIcon.isNull());
        QCOMPARE(seen->iconPixmap().toImage(), qtIcon);
        QCOMPARE(seen->standardButtons(), Buttons(QMessageBox::Ok)); // the automatic one
        seen->close();
    });
    QMessageBox::aboutQt(nullptr);

    // THEN this box tells the same
    FramelessMessageBox::aboutQt(nullptr, title());
    QVERIFY(driver.ran());
    QVERIFY(!seen);
}

void tst_FramelessMessageBoxOneCall::aboutQtTitle_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    QTest::newRow("given") << title() << title();
    QTest::newRow("empty") << QString() << QStringLiteral("About Qt");
}

void tst_FramelessMessageBoxOneCall::aboutQtTitle()
{
    QFETCH(QString, given);
    QFETCH(QString, expected);

    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(boxOf(dialog)->windowTitle(), expected);
        dialog->close();
    });
    FramelessMessageBox::aboutQt(nullptr, given);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::aboutTextsAreTranslated()
{
    const Brackets brackets("Tarn::Widgets::FramelessMessageBox");
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(boxOf(dialog)->windowTitle(), QStringLiteral("<About Qt>"));
        QVERIFY(boxOf(dialog)->text().startsWith(QStringLiteral("<<h3>About Qt</h3>")));
        QVERIFY(boxOf(dialog)->informativeText().startsWith(QStringLiteral("<<p>Qt is")));
        dialog->close();
    });
    FramelessMessageBox::aboutQt(nullptr);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxOneCall::aboutSurvivesItsParent_data()
{
    QTest::addColumn<bool>("aboutQt");
    QTest::newRow("about") << false;
    QTest::newRow("aboutQt") << true;
}

void tst_FramelessMessageBoxOneCall::aboutSurvivesItsParent()
{
    QFETCH(bool, aboutQt);

    const QPointer<QWidget> parent = new QWidget;
    ModalDriver driver([&](QWidget *) { delete parent; });
    if (aboutQt)
        FramelessMessageBox::aboutQt(parent);
    else
        FramelessMessageBox::about(parent, title(), text());
    QVERIFY(driver.ran());
    QVERIFY(!parent);
}

QTEST_MAIN(tst_FramelessMessageBoxOneCall)

#include "tst_framelessmessagebox_onecall.moc"
