// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the message box does: ending, keys, showing, changes of language and style.

#include "support/functionguard.h"
#include "support/messageboxparts.h"
#include "support/testdialog.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QScreen>
#include <QSizeGrip>
#include <QTest>
#include <QTextCursor>
#include <QTextEdit>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/framelessmessagebox.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessMessageBox;

namespace {

constexpr const char *Context = "Tarn::Widgets::FramelessMessageBox";

using Buttons = QMessageBox::StandardButtons;
using Role = QMessageBox::ButtonRole;

class Receiver : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void takeButton(QAbstractButton *button)
    {
        buttons.append(button);
    }
    void takeResult(int result)
    {
        results.append(result);
    }
    void takeNothing()
    {
        ++calls;
    }

public:
    QList<QAbstractButton *> buttons;
    QList<int> results;
    int calls = 0;
};

/* Makes flags and centring differ from those of any real style. */
class OddStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        if (hint == SH_MessageBox_TextInteractionFlags)
            return Qt::TextEditable;
        if (hint == SH_MessageBox_CenterButtons)
            return centred;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_MessageBoxIconSize ? 23 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    bool centred = true;
};

/* What happens to a visible box. */
using Change = std::function<void(FramelessMessageBox &)>;

QList<QPair<QAccessible::Event, QObject *>> accessibleEvents;

} // namespace

// In place of Qt's own, which drops every event unless a screen reader is running.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    accessibleEvents.append({event->type(), event->object()});
}

Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)
Q_DECLARE_METATYPE(QMessageBox::ButtonRole)
Q_DECLARE_METATYPE(QList<QMessageBox::ButtonRole>)
Q_DECLARE_METATYPE(Change)

class tst_FramelessMessageBoxUse : public QObject
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

    void initTestCase()
    {
        qRegisterMetaType<QAbstractButton *>(); // for the spies on buttonClicked()
    }

    // Ending
    void escapeButtonIsDetected_data();
    void escapeButtonIsDetected();
    void escapeButtonIsDetectedAtEveryShowAndOnlyThen();
    void explicitEscapeButtonWins();
    void clickEndsTheBoxBeforeItIsReported();
    void boxMayBeDeletedByWhoeverHearsOfTheClick_data();
    void boxMayBeDeletedByWhoeverHearsOfTheClick();
    void boxMayBeDeletedByWhoeverHearsThatItCloses();
    void closingGivesTheEscapeButton();
    void closingWithAButtonThatWasTakenOutGivesMinusOne();
    void closingWithDeadButtonsGivesMinusOne();
    void clickOfAButtonThatDiesMeanwhileIsNotReported();
    void closeButtonIsHiddenWithoutAnEscapeButton();
    void hiddenCloseButtonStaysHidden();
    void detailsButtonDoesNotEndTheBox();
    void slotClickedEndsWithTheStandardButton();

    // Keys
    void shortcutKeyClicksWithoutModifier_data();
    void shortcutKeyClicksWithoutModifier();
    void altIsLeftToTheMnemonic();
    void firstOfTwoEqualShortcutsIsClicked();
    void escapeGoesNoFurther();
    void copyAndSelectAllReachTheDetails();
    void copyingNeedsTheSelectionThatIsThereNow();
    void otherKeysAreTheDialogs();
    void eventsAreAnsweredAsByTheBaseClass();

    // Showing
    void showTellsAccessibilityAlert();
    void boxIsPlacedOverItsParent();
    void sizeGripFollowsTheCorner();
    void detailsButtonMovesToTheEndOfTheCustomOnes();
    void openConnectsByMember_data();
    void openConnectsByMember();
    void openDisconnectsAfterOneClick();
    void openLeavesLaterConnectionsAlone();
    void openSurvivesADeadReceiver();
    void windowModalityReplacesTheFlags_data();
    void windowModalityReplacesTheFlags();

    // Changes
    void everyChangeSizesAVisibleBoxAtOnce_data();
    void everyChangeSizesAVisibleBoxAtOnce();
    void languageChangeReachesDetailsAndOwnTexts();
    void languageChangeLeavesTheTextsOfASetToQt();
    void newDetailsAreClosed();
    void languageChangeReachesTheSubclass();
    void newBoxCentresItsButtonsAsItsStyleDoes();
    void styleChangeReachesIconFlagsAndCentring();

private:
    std::optional<FunctionGuard> m_guard;
};

// Ending

void tst_FramelessMessageBoxUse::escapeButtonIsDetected_data()
{
    QTest::addColumn<Buttons>("standard");
    QTest::addColumn<QList<Role>>("custom");
    QTest::addColumn<bool>("details");
    QTest::addColumn<int>("result");
    const QList<Role> none;
    const auto accept = QMessageBox::AcceptRole;
    const auto reject = QMessageBox::RejectRole;
    QTest::newRow("automatic OK") << Buttons() << none << false << int(QMessageBox::Ok);
    QTest::newRow("a single button") << Buttons(QMessageBox::Help) << none << false << int(QMessageBox::Help);
    QTest::newRow("Yes and No") << (QMessageBox::Yes | QMessageBox::No) << none << false
                                << int(QMessageBox::No);
    QTest::newRow("Yes, No, Cancel") << (QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel) << none
                                     << false << int(QMessageBox::Cancel);
    QTest::newRow("Cancel before Abort")
        << (QMessageBox::Abort | QMessageBox::Cancel) << none << false << int(QMessageBox::Cancel);
    QTest::newRow("the only reject role") << Buttons(QMessageBox::No) << QList<Role>{reject} << false << 0;
    QTest::newRow("two reject roles, one no role")
        << Buttons(QMessageBox::No) << QList<Role>{reject, reject} << false << int(QMessageBox::No);
    QTest::newRow("two reject roles") << Buttons() << QList<Role>{reject, reject} << false << Untouched;
    QTest::newRow("two no roles") << (QMessageBox::No | QMessageBox::NoToAll) << none << false << Untouched;
    QTest::newRow("accept roles") << Buttons() << QList<Role>{accept, accept} << false << Untouched;
    QTest::newRow("OK and details") << Buttons(QMessageBox::Ok) << none << true << Untouched;
    QTest::newRow("automatic OK and details") << Buttons() << none << true << Untouched;
    QTest::newRow("Close and details")
        << Buttons(QMessageBox::Close) << none << true << int(QMessageBox::Close);
}

void tst_FramelessMessageBoxUse::escapeButtonIsDetected()
{
    QFETCH(Buttons, standard);
    QFETCH(QList<Role>, custom);
    QFETCH(bool, details);
    QFETCH(int, result);

    FramelessMessageBox box;
    if (standard)
        box.setStandardButtons(standard);
    for (const Role role : qAsConst(custom))
        box.addButton(QStringLiteral("custom"), role);
    if (details)
        box.setDetailedText(QStringLiteral("details"));
    show(box);

    const Outcome outcome(box);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(outcome.code(), result);
    QCOMPARE(box.isVisible(), result == Untouched);
    QVERIFY(!box.escapeButton()); // a detected one is not a set one
}

void tst_FramelessMessageBoxUse::escapeButtonIsDetectedAtEveryShowAndOnlyThen()
{
    // GIVEN a box that gets another escape button while it is on screen
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    show(box);
    box.addButton(QMessageBox::Cancel);

    // WHEN Escape is pressed THEN the one found at the show counts, and the new one from the next show on
    const Outcome outcome(box);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(outcome.code(), int(QMessageBox::No));
    show(box);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(outcome.code(), int(QMessageBox::Cancel));
}

void tst_FramelessMessageBoxUse::explicitEscapeButtonWins()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Yes);
    show(box);
    const Outcome outcome(box);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(outcome.code(), int(QMessageBox::Yes));
}

void tst_FramelessMessageBoxUse::clickEndsTheBoxBeforeItIsReported()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    show(box);
    QStringList order;
    connect(&box, &QDialog::finished, this, [&](int result) {
        QCOMPARE(result, int(QMessageBox::Yes));
        QCOMPARE(box.clickedButton(), box.button(QMessageBox::Yes));
        order.append(QStringLiteral("finished"));
    });
    connect(&box, &FramelessMessageBox::buttonClicked, this, [&](QAbstractButton *button) {
        QCOMPARE(button, box.button(QMessageBox::Yes));
        QVERIFY(!box.isVisible());
        order.append(QStringLiteral("clicked"));
    });
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(order, (QStringList{QStringLiteral("finished"), QStringLiteral("clicked")}));
    QCOMPARE(box.result(), int(QMessageBox::Yes));
}

void tst_FramelessMessageBoxUse::boxMayBeDeletedByWhoeverHearsOfTheClick_data()
{
    QTest::addColumn<bool>("atFinished");
    QTest::newRow("at finished") << true;
    QTest::newRow("at buttonClicked") << false;
}

void tst_FramelessMessageBoxUse::boxMayBeDeletedByWhoeverHearsOfTheClick()
{
    QFETCH(bool, atFinished);

    // The button itself must outlive its click, so it is the box alone that goes.
    const QPointer<FramelessMessageBox> box = new FramelessMessageBox;
    const std::unique_ptr<QPushButton> button(box->addButton(QStringLiteral("go"), QMessageBox::AcceptRole));
    const auto remove = [&] {
        button->setParent(nullptr);
        delete box;
    };
    if (atFinished)
        connect(box, &QDialog::finished, this, remove);
    else
        connect(box, &FramelessMessageBox::buttonClicked, this, remove);
    QMetaObject::invokeMethod(box, "slot_buttonClicked", Q_ARG(QAbstractButton *, button.get()));
    QVERIFY(!box);
}

void tst_FramelessMessageBoxUse::boxMayBeDeletedByWhoeverHearsThatItCloses()
{
    // GIVEN a box that is deleted as soon as it has finished
    const QPointer<FramelessMessageBox> box = new FramelessMessageBox;
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    show(*box);
    connect(box, &QDialog::finished, this, [&] { delete box; });

    // WHEN it is closed, THEN it is gone, and nothing is asked of it any more
    box->close();
    QVERIFY(!box);
}

void tst_FramelessMessageBoxUse::closingGivesTheEscapeButton()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    show(box);
    const Outcome outcome(box);
    bool nothingClickedYet = false;
    connect(&box, &QDialog::finished, this, [&] { nothingClickedYet = !box.clickedButton(); });
    QVERIFY(box.close());
    QCOMPARE(outcome.clicks.count(), 0);
    QCOMPARE(outcome.code(), 0); // told from inside the close event
    QVERIFY(nothingClickedYet);
    QCOMPARE(box.clickedButton(), box.button(QMessageBox::No));
    QCOMPARE(box.result(), int(QMessageBox::No));
}

void tst_FramelessMessageBoxUse::closingWithAButtonThatWasTakenOutGivesMinusOne()
{
    FramelessMessageBox box;
    box.addButton(QMessageBox::Yes);
    const std::unique_ptr<QPushButton> no(box.addButton(QMessageBox::No));
    show(box);
    box.removeButton(no.get());
    QVERIFY(box.close());
    QCOMPARE(box.result(), -1);
    QCOMPARE(box.clickedButton(), no.get());
}

void tst_FramelessMessageBoxUse::closingWithDeadButtonsGivesMinusOne()
{
    FramelessMessageBox box;
    QPushButton *escape = box.addButton(QStringLiteral("escape"), QMessageBox::RejectRole);
    delete box.addButton(QStringLiteral("other"), QMessageBox::AcceptRole);
    show(box);
    connect(&box, &QDialog::finished, escape, [escape] { delete escape; });
    QVERIFY(box.close());
    QCOMPARE(box.result(), -1);
    QVERIFY(!box.clickedButton());
}

void tst_FramelessMessageBoxUse::clickOfAButtonThatDiesMeanwhileIsNotReported()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Save);
    show(box);
    const Outcome outcome(box);
    connect(&box, &QDialog::finished, &box, [&box] { box.setStandardButtons(QMessageBox::Ok); });
    box.button(QMessageBox::Save)->click();
    QCOMPARE(outcome.code(), int(QMessageBox::Save));
    QCOMPARE(outcome.clicks.count(), 0);
}

void tst_FramelessMessageBoxUse::closeButtonIsHiddenWithoutAnEscapeButton()
{
    // GIVEN two boxes, one of which can be escaped
    FramelessMessageBox can;
    can.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    FramelessMessageBox cannot;
    cannot.addButton(QStringLiteral("a"), QMessageBox::RejectRole);
    cannot.addButton(QStringLiteral("b"), QMessageBox::RejectRole);
    show(can);
    show(cannot);

    // THEN only that one has a close button, and only that one closes
    QVERIFY(can.getCloseButtonVisible());
    QVERIFY(!cannot.getCloseButtonVisible());
    QVERIFY(!cannot.close());
    QVERIFY(cannot.isVisible());
    QVERIFY(!cannot.clickedButton());
    QVERIFY(can.close());
}

void tst_FramelessMessageBoxUse::hiddenCloseButtonStaysHidden()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Cancel);
    box.setCloseButtonVisible(false);
    show(box);
    QVERIFY(!box.getCloseButtonVisible());
}

void tst_FramelessMessageBoxUse::detailsButtonDoesNotEndTheBox()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    const Outcome outcome(box);
    QCOMPARE(box.buttonRole(detailsButton(box)), QMessageBox::ActionRole);
    detailsButton(box)->click();
    QVERIFY(box.isVisible());
    QCOMPARE(outcome.clicks.count(), 0);
    QCOMPARE(outcome.finished.count(), 0);
    QVERIFY(!box.clickedButton());
}

void tst_FramelessMessageBoxUse::slotClickedEndsWithTheStandardButton()
{
    qRegisterMetaType<QMessageBox::StandardButton>("QMessageBox::StandardButton");
    qRegisterMetaType<QMessageBox::ButtonRole>("QMessageBox::ButtonRole");
    FramelessMessageBox box;
    const Outcome outcome(box);
    QVERIFY(QMetaObject::invokeMethod(&box, "slot_clicked",
                                      Q_ARG(QMessageBox::StandardButton, QMessageBox::Abort),
                                      Q_ARG(QMessageBox::ButtonRole, QMessageBox::YesRole)));
    QCOMPARE(outcome.code(), int(QMessageBox::Abort));
    QVERIFY(!box.clickedButton());
}

// Keys

void tst_FramelessMessageBoxUse::shortcutKeyClicksWithoutModifier_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("result");
    const auto add = [](const char *name, int key, Qt::KeyboardModifiers modifiers, int result) {
        QTest::newRow(name) << key << modifiers << result;
    };
    add("the letter", Qt::Key_Y, Qt::NoModifier, QMessageBox::Yes);
    add("another one", Qt::Key_N, Qt::NoModifier, QMessageBox::No);
    add("with Shift", Qt::Key_Y, Qt::ShiftModifier, QMessageBox::Yes);
    add("from the keypad", Qt::Key_Y, Qt::KeypadModifier, QMessageBox::Yes);
    add("with Ctrl", Qt::Key_Y, Qt::ControlModifier, Untouched);
    add("with Meta", Qt::Key_Y, Qt::MetaModifier, Untouched);
    add("a letter of no button", Qt::Key_X, Qt::NoModifier, Untouched);
    add("no key", 0, Qt::NoModifier, Untouched);
}

void tst_FramelessMessageBoxUse::shortcutKeyClicksWithoutModifier()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, result);

    FramelessMessageBox box;
    box.addButton(QMessageBox::Yes);
    box.addButton(QMessageBox::No);
    box.addButton(QMessageBox::Help); // without a shortcut
    show(box);
    const Outcome outcome(box);
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(&box, &press);
    QCOMPARE(outcome.code(), Untouched); // the click is animated
    const bool isDown = qobject_cast<QPushButton *>(box.button(QMessageBox::Yes))->isDown()
        || qobject_cast<QPushButton *>(box.button(QMessageBox::No))->isDown();
    QCOMPARE(isDown, result != Untouched);
    if (isDown)
        QTRY_COMPARE(outcome.code(), result);
}

void tst_FramelessMessageBoxUse::altIsLeftToTheMnemonic()
{
    class Box : public FramelessMessageBox
    {
    public:
        using FramelessMessageBox::keyPressEvent;
    };
    Box box;
    QPushButton *yes = box.addButton(QMessageBox::Yes);
    show(box);
    for (const Qt::KeyboardModifier modifier : {Qt::AltModifier, Qt::NoModifier}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Y, modifier);
        box.keyPressEvent(&press);
        QCOMPARE(yes->isDown(), modifier == Qt::NoModifier);
    }
}

void tst_FramelessMessageBoxUse::firstOfTwoEqualShortcutsIsClicked()
{
    FramelessMessageBox box;
    QPushButton *first = box.addButton(QStringLiteral("&One"), QMessageBox::ActionRole);
    QPushButton *second = box.addButton(QStringLiteral("&Other"), QMessageBox::ActionRole);
    QCOMPARE(first->shortcut(), second->shortcut());
    show(box);
    QTest::keyClick(&box, Qt::Key_O);
    QTRY_COMPARE(box.clickedButton(), first);
}

void tst_FramelessMessageBoxUse::escapeGoesNoFurther()
{
    FramelessMessageBox box;
    box.addButton(QStringLiteral("a"), QMessageBox::RejectRole);
    box.addButton(QStringLiteral("b"), QMessageBox::RejectRole);
    show(box);
    const Outcome outcome(box);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    press.ignore();
    QCoreApplication::sendEvent(&box, &press);
    QVERIFY(press.isAccepted());
    QVERIFY(box.isVisible());
    QCOMPARE(outcome.finished.count(), 0);
}

void tst_FramelessMessageBoxUse::copyAndSelectAllReachTheDetails()
{
    FramelessMessageBox box;
    box.addButton(QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("details to copy"));
    show(box);
    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(QStringLiteral("before"));

    // GIVEN closed details, WHEN the keys come, THEN nothing is taken
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard->text(), QStringLiteral("before"));

    // GIVEN open details without a selection, THEN copying does nothing, and the key goes on
    detailsButton(box)->click();
    QKeyEvent idle(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&box, &idle);
    QVERIFY(!idle.isAccepted());
    QCOMPARE(clipboard->text(), QStringLiteral("before"));

    // WHEN all is selected, THEN it is copied
    QKeyEvent all(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    all.ignore();
    QCoreApplication::sendEvent(&box, &all);
    QVERIFY(all.isAccepted());
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    copy.ignore();
    QCoreApplication::sendEvent(&box, &copy);
    QVERIFY(copy.isAccepted());
    QCOMPARE(clipboard->text(), QStringLiteral("details to copy"));
    QVERIFY(box.isVisible());
}

void tst_FramelessMessageBoxUse::copyingNeedsTheSelectionThatIsThereNow()
{
    // GIVEN open details whose selection has gone again
    FramelessMessageBox box;
    box.addButton(QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("details to copy"));
    show(box);
    detailsButton(box)->click();
    auto *editor = box.findChild<QTextEdit *>();
    editor->selectAll();
    QVERIFY(editor->textCursor().hasSelection());
    editor->setTextCursor(QTextCursor(editor->document()));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));

    // WHEN the key for copying comes THEN it goes on to the dialog
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&box, &copy);
    QVERIFY(!copy.isAccepted());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

void tst_FramelessMessageBoxUse::otherKeysAreTheDialogs()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Cancel);
    show(box);
    QKeyEvent other(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &other);
    QVERIFY(!other.isAccepted());
    const Outcome outcome(box);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier);
    QCoreApplication::sendEvent(&box, &enter);
    QCOMPARE(outcome.code(), int(QMessageBox::Cancel));
}

void tst_FramelessMessageBoxUse::eventsAreAnsweredAsByTheBaseClass()
{
    FramelessMessageBox box;
    FramelessDialog dialog(nullptr);
    QList<bool> answers;
    for (const QEvent::Type type : {QEvent::LayoutRequest, QEvent::LanguageChange, QEvent::User}) {
        QEvent event(type);
        answers.append(QCoreApplication::sendEvent(&box, &event));
        QCOMPARE(answers.last(), QCoreApplication::sendEvent(&dialog, &event));
    }
    QVERIFY(answers.contains(true) && answers.contains(false)); // otherwise any would do
}

// Showing

void tst_FramelessMessageBoxUse::showTellsAccessibilityAlert()
{
    FramelessMessageBox box;
    accessibleEvents.clear();
    box.show();
    QCOMPARE(accessibleEvents.count({QAccessible::Alert, &box}), 1);
}

void tst_FramelessMessageBoxUse::boxIsPlacedOverItsParent()
{
    // GIVEN a parent away from the middle of the screen
    QWidget parent;
    parent.setGeometry(350, 230, 300, 260);
    show(parent);
    FramelessMessageBox box(&parent);
    box.resize(400, 220);

    // WHEN the box is told that it is shown THEN it has moved, without the help of the platform
    QShowEvent event;
    QCoreApplication::sendEvent(&box, &event);
    const QPoint apart = box.geometry().center() - parent.geometry().center();
    QVERIFY(apart.manhattanLength() < 30);
}

void tst_FramelessMessageBoxUse::sizeGripFollowsTheCorner()
{
    FramelessMessageBox box;
    box.setSizeGripEnabled(true);
    show(box);
    const auto *grip = box.findChild<QSizeGrip *>();
    QCOMPARE(grip->geometry().bottomRight(), box.rect().bottomRight());
    box.setText(QStringLiteral("many words ").repeated(100));
    QVERIFY(box.height() > 220);
    QCOMPARE(grip->geometry().bottomRight(), box.rect().bottomRight());
}

void tst_FramelessMessageBoxUse::detailsButtonMovesToTheEndOfTheCustomOnes()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("details"));
    QPushButton *custom = box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole);
    show(box);
    const Outcome outcome(box);
    custom->click();
    QCOMPARE(outcome.code(), 0); // not 1: the details button, there before, has been added anew
}

void tst_FramelessMessageBoxUse::openConnectsByMember_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("results");
    QTest::addColumn<int>("calls");
    QTest::newRow("slot of a button") << QByteArray(SLOT(takeButton(QAbstractButton *))) << 1 << 0 << 0;
    QTest::newRow("slot of a result") << QByteArray(SLOT(takeResult(int))) << 0 << 1 << 0;
    QTest::newRow("slot of nothing") << QByteArray(SLOT(takeNothing())) << 0 << 0 << 1;
}

void tst_FramelessMessageBoxUse::openConnectsByMember()
{
    QFETCH(QByteArray, member);
    QFETCH(int, buttons);
    QFETCH(int, results);
    QFETCH(int, calls);

    Receiver receiver;
    QWidget parent;
    FramelessMessageBox box(&parent);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.open(&receiver, member.constData());
    QVERIFY(box.isVisible());
    QCOMPARE(box.windowModality(), Qt::WindowModal);
    box.button(QMessageBox::No)->click();
    QCOMPARE(receiver.buttons.count(), buttons);
    QCOMPARE(receiver.results.count(), results);
    QCOMPARE(receiver.calls, calls);
    if (buttons)
        QCOMPARE(receiver.buttons.first(), box.button(QMessageBox::No));
    if (results)
        QCOMPARE(receiver.results.first(), int(QMessageBox::No));
}

void tst_FramelessMessageBoxUse::openDisconnectsAfterOneClick()
{
    Receiver receiver;
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.open(&receiver, SLOT(takeButton(QAbstractButton *)));
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(receiver.buttons.count(), 1);
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(receiver.buttons.count(), 1);
    box.FramelessDialog::open();
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(receiver.buttons.count(), 1);
}

void tst_FramelessMessageBoxUse::openLeavesLaterConnectionsAlone()
{
    Receiver receiver;
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.open(&receiver, SLOT(takeButton(QAbstractButton *)));
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(receiver.buttons.count(), 1);

    // WHEN the application connects the two itself, THEN further clicks leave that alone
    connect(&box, SIGNAL(buttonClicked(QAbstractButton *)), &receiver, SLOT(takeButton(QAbstractButton *)));
    box.button(QMessageBox::Yes)->click();
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(receiver.buttons.count(), 3);
}

void tst_FramelessMessageBoxUse::openSurvivesADeadReceiver()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    {
        Receiver receiver;
        box.open(&receiver, SLOT(takeResult(int)));
    }
    const Outcome outcome(box);
    box.button(QMessageBox::Yes)->click();
    QCOMPARE(outcome.code(), int(QMessageBox::Yes));

    // Without a member, Qt says so, and the box opens all the same.
    Receiver receiver;
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("QObject::connect"));
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("QObject::disconnect"));
    box.open(&receiver, nullptr);
    QVERIFY(box.isVisible());
    box.button(QMessageBox::No)->click();
    QCOMPARE(outcome.code(), int(QMessageBox::No));
}

void tst_FramelessMessageBoxUse::windowModalityReplacesTheFlags_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<Qt::WindowModality>("modality");
    QTest::addColumn<Qt::WindowType>("type");
    QTest::newRow("sheet") << true << Qt::WindowModal << Qt::Sheet;
    QTest::newRow("no parent") << false << Qt::WindowModal << Qt::Dialog;
    QTest::newRow("application modal") << true << Qt::ApplicationModal << Qt::Dialog;
    QTest::newRow("modeless") << true << Qt::NonModal << Qt::Dialog;
}

void tst_FramelessMessageBoxUse::windowModalityReplacesTheFlags()
{
    QFETCH(bool, withParent);
    QFETCH(Qt::WindowModality, modality);
    QFETCH(Qt::WindowType, type);

    QWidget parent;
    FramelessMessageBox box(withParent ? &parent : nullptr);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    QDialog plain(withParent ? &parent : nullptr);
    plain.setParent(plain.parentWidget(), type);

    box.setWindowModality(modality);
    QCOMPARE(box.windowModality(), modality);
    QCOMPARE(box.windowFlags(), plain.windowFlags());
    QCOMPARE(box.windowType(), type);
    QCOMPARE(box.parentWidget(), withParent ? &parent : nullptr);
}

// Changes

void tst_FramelessMessageBoxUse::everyChangeSizesAVisibleBoxAtOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("text") << Change([](FramelessMessageBox &box) { box.setText(QStringLiteral("x")); });
    QTest::newRow("text format") << Change(
        [](FramelessMessageBox &box) { box.setTextFormat(Qt::PlainText); });
    QTest::newRow("icon") << Change([](FramelessMessageBox &box) { box.setIcon(QMessageBox::Warning); });
    QTest::newRow("no picture") << Change([](FramelessMessageBox &box) { box.setIconPixmap(QPixmap()); });
    QTest::newRow("check box") << Change([](FramelessMessageBox &box) { box.setCheckBox(new QCheckBox); });
    QTest::newRow("informative text")
        << Change([](FramelessMessageBox &box) { box.setInformativeText(QStringLiteral("x")); });
    QTest::newRow("detailed text") << Change(
        [](FramelessMessageBox &box) { box.setDetailedText(QStringLiteral("x")); });
    QTest::newRow("button added") << Change(
        [](FramelessMessageBox &box) { box.addButton(QStringLiteral("x"), QMessageBox::ActionRole); });
    QTest::newRow("button removed") << Change([](FramelessMessageBox &box) {
        QAbstractButton *removed = box.buttons().first();
        box.removeButton(removed);
        removed->deleteLater();
    });
    QTest::newRow("set of buttons") << Change(
        [](FramelessMessageBox &box) { box.setStandardButtons(QMessageBox::Save); });
    QTest::newRow("show event") << Change([](FramelessMessageBox &box) {
        QShowEvent event;
        QCoreApplication::sendEvent(&box, &event);
    });
}

void tst_FramelessMessageBoxUse::everyChangeSizesAVisibleBoxAtOnce()
{
    QFETCH(const Change, change);

    // GIVEN a box whose title has outgrown it, which alone does not size it
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("x"), QMessageBox::Ok);
    show(box);
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    const QString title(500 / metrics.horizontalAdvance(QLatin1Char('W')), QLatin1Char('W'));
    box.setWindowTitle(title);
    QCOMPARE(box.width(), 400);

    // WHEN something else changes THEN the box has room for the title before anything is laid out
    change(box);
    const int expected = metrics.horizontalAdvance(title) + 50;
    QVERIFY(expected > 400 && expected < QGuiApplication::primaryScreen()->availableGeometry().width());
    QCOMPARE(box.width(), expected);
}

void tst_FramelessMessageBoxUse::languageChangeReachesDetailsAndOwnTexts()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Save);
    box.addButton(QMessageBox::Cancel);
    box.setDetailedText(QStringLiteral("details"));
    QPushButton *details = detailsButton(box);
    const QString saveText = box.button(QMessageBox::Save)->text();
    {
        const Brackets brackets(Context);
        QTRY_COMPARE(details->text(), QStringLiteral("<Show Details...>"));
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("<&Cancel>"));
        QCOMPARE(box.button(QMessageBox::Save)->text(), saveText);
    }
    QTRY_COMPARE(details->text(), QStringLiteral("Show Details..."));
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("&Cancel"));
}

void tst_FramelessMessageBoxUse::languageChangeLeavesTheTextsOfASetToQt()
{
    FramelessMessageBox box;
    box.addButton(QMessageBox::Save);
    box.setStandardButtons(QMessageBox::Save);
    const QString text = box.button(QMessageBox::Save)->text();
    const Brackets brackets(Context);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&box, &change);
    QCOMPARE(box.button(QMessageBox::Save)->text(), text);
}

void tst_FramelessMessageBoxUse::newDetailsAreClosed()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    QPushButton *button = detailsButton(box);
    button->click();
    QCOMPARE(button->text(), QStringLiteral("Hide Details..."));
    delete box.findChild<QTextEdit *>()->parentWidget();
    box.setDetailedText(QStringLiteral("new ones"));
    QCOMPARE(detailsButton(box)->text(), QStringLiteral("Show Details..."));
}

void tst_FramelessMessageBoxUse::languageChangeReachesTheSubclass()
{
    class Box : public FramelessMessageBox
    {
    public:
        void reTranslateUI() override
        {
            ++retranslations;
        }

        int retranslations = 0;
    };
    Box box;
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&box, &change);
    QCOMPARE(box.retranslations, 1);
}

void tst_FramelessMessageBoxUse::newBoxCentresItsButtonsAsItsStyleDoes()
{
    const QString former = QApplication::style()->objectName();
    QApplication::setStyle(new OddStyle);
    {
        const FramelessMessageBox box;
        QVERIFY(buttonBoxOf(box)->centerButtons());
    }
    QApplication::setStyle(former);
    const FramelessMessageBox box;
    QVERIFY(!buttonBoxOf(box)->centerButtons());
}

void tst_FramelessMessageBoxUse::styleChangeReachesIconFlagsAndCentring()
{
    // GIVEN a box with a standard icon, and one with a picture
    OddStyle style;
    FramelessMessageBox box(QMessageBox::Warning, QStringLiteral("t"), QStringLiteral("x"), QMessageBox::Ok);
    box.setInformativeText(QStringLiteral("more"));
    FramelessMessageBox pictured;
    QPixmap picture(9, 9);
    picture.fill(Qt::blue);
    pictured.setIconPixmap(picture);
    QVERIFY(box.iconPixmap().width() != 23);
    QVERIFY(!buttonBoxOf(box)->centerButtons());

    // WHEN the style changes
    box.setStyle(&style);
    pictured.setStyle(&style);

    // THEN the standard icon alone is the new style's, and flags and centring are
    QCOMPARE(box.iconPixmap().size(), QSize(23, 23));
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QCOMPARE(pictured.iconPixmap().size(), QSize(9, 9));
    const Qt::TextInteractionFlags flags(Qt::TextEditable);
    QCOMPARE(box.textInteractionFlags(), flags);
    QCOMPARE(label(box, QStringLiteral("qt_msgbox_informativelabel"))->textInteractionFlags(), flags);
    QVERIFY(buttonBoxOf(box)->centerButtons());
    box.setStyle(nullptr);
    pictured.setStyle(nullptr);
}

QTEST_MAIN(tst_FramelessMessageBoxUse)

#include "tst_framelessmessagebox_use.moc"
