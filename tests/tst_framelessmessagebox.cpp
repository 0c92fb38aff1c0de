// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the message box is made of: texts, check box and buttons. The other tst_framelessmessagebox_*.cpp hold
// the rest.

#include "support/functionguard.h"
#include "support/messageboxparts.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QLabel>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/framelessmessagebox.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessMessageBox;

namespace {

constexpr const char *Context = "Tarn::Widgets::FramelessMessageBox";

using Button = QMessageBox::StandardButton;
using Buttons = QMessageBox::StandardButtons;
using Role = QMessageBox::ButtonRole;

// Of no meaning, but with a bit of the enumeration's: to pass on any other is undefined behaviour.
constexpr Button UnknownButton = Button(1);

QLabel *mainLabel(const FramelessMessageBox &box)
{
    return label(box, QStringLiteral("qt_msgbox_label"));
}

/* Why a widget got the focus, each time. */
class FocusReasons : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons.append(static_cast<QFocusEvent *>(event)->reason());
        return false;
    }

    QList<Qt::FocusReason> reasons;
};

QList<int> order(const FramelessMessageBox &box)
{
    QList<int> values;
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons)
        values.append(box.standardButton(button));
    return values;
}

} // namespace

Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)
Q_DECLARE_METATYPE(QMessageBox::ButtonRole)

class tst_FramelessMessageBox : public QObject
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

    // Construction and properties
    void emptyBoxIsModalAndEmpty();
    void constructorTakesItsArguments();
    void constructorTakesTitleOrTextAlone();
    void windowFlags_data();
    void windowFlags();
    void propertiesAreReadWriteDesignableScriptableStored_data();
    void propertiesAreReadWriteDesignableScriptableStored();
    void propertiesReachTheFunctions();
    void wordsWrapInRichTextOnly_data();
    void wordsWrapInRichTextOnly();
    void iconOfItsOwnResetsTheKind();
    void interactionFlagsAreTheMainTextsAlone();
    void titleIsTheTitleBars();

    // Check box
    void checkBoxStretchesAndBelongsToTheBox();
    void formerCheckBoxIsDeletedIfItIsTheBoxs();
    void formerCheckBoxOfSomebodyElseIsOnlyHidden();
    void sameCheckBoxAgainChangesNothing();
    void deletedCheckBoxIsForgotten();

    // Buttons
    void standardButtonText_data();
    void standardButtonText();
    void standardButtonSetKeepsTheButtonBoxsTexts();
    void retranslatingAnAbsentOrUnknownButtonDoesNothing();
    void unknownStandardButtonGivesNull();
    void nullButtonIsIgnored();
    void customButtonTakesItsRoleAndPlace_data();
    void customButtonTakesItsRoleAndPlace();
    void buttonAddedTwiceIsListedOnce();
    void buttonOfUnknownRoleIsOwnedAllTheSame_data();
    void buttonOfUnknownRoleIsOwnedAllTheSame();
    void refusedButtonDoesNotReplaceTheAutomaticOk();
    void removedButtonLivesAndIsForgotten();
    void foreignButtonIsLeftAlone();
    void resultCodesFollowTheOrderOfAddition();
    void setOfButtonsForgetsTheSpecialOnesOfTheFormer();
    void setOfButtonsKeepsACustomDefaultButton();
    void setOfButtonsForgetsThoseTakenBehindItsBack();
    void newButtonAtADeadOnesAddressIsNotTakenForIt();
    void defaultButtonIsDefaultAndFocused();
    void defaultButtonIsFocusedForNoReasonOfTheUsers();
    void strangersAreNeitherDefaultNorEscapeButton();
    void okIsAddedToABoxWithoutButtonsOnly_data();
    void okIsAddedToABoxWithoutButtonsOnly();
    void deletedButtonsAreForgotten();

    // Bad input
    void megabyteOfTextIsTaken();
    void brokenTagsAreTaken();
    void hugeIconIsTaken();
    void unknownIconShowsNone();

private:
    std::optional<FunctionGuard> m_guard;
};

// Construction and properties

void tst_FramelessMessageBox::emptyBoxIsModalAndEmpty()
{
    const FramelessMessageBox box;
    QVERIFY(box.isModal());
    QCOMPARE(box.minimumSize(), QSize(400, 220));
    QCOMPARE(box.text(), QString());
    QCOMPARE(box.windowTitle(), QString());
    QCOMPARE(box.icon(), QMessageBox::NoIcon);
    QVERIFY(box.iconPixmap().isNull());
    QCOMPARE(box.informativeText(), QString());
    QCOMPARE(box.detailedText(), QString());
    QCOMPARE(box.textFormat(), Qt::AutoText);
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::NoButton));
    QVERIFY(box.buttons().isEmpty());
    QVERIFY(!box.checkBox());
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());
    QVERIFY(!box.clickedButton());
    QVERIFY(!box.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_FramelessMessageBox::constructorTakesItsArguments()
{
    QWidget parent;
    const FramelessMessageBox box(QMessageBox::Critical, QStringLiteral("Title"), QStringLiteral("Text"),
                                  QMessageBox::Yes | QMessageBox::No, &parent);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.isModal());
    QCOMPARE(box.minimumSize(), QSize(400, 220));
    QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
    QCOMPARE(box.text(), QStringLiteral("Text"));
    QCOMPARE(box.icon(), QMessageBox::Critical);
    QVERIFY(!box.iconPixmap().isNull());
    QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
}

void tst_FramelessMessageBox::constructorTakesTitleOrTextAlone()
{
    const FramelessMessageBox titled(QMessageBox::NoIcon, QStringLiteral("Title"), QString());
    QCOMPARE(titled.windowTitle(), QStringLiteral("Title"));
    QCOMPARE(titled.text(), QString());
    const FramelessMessageBox untitled(QMessageBox::NoIcon, QString(), QStringLiteral("Text"));
    QCOMPARE(untitled.windowTitle(), QString());
    QCOMPARE(untitled.text(), QStringLiteral("Text"));
}

void tst_FramelessMessageBox::windowFlags_data()
{
    const Qt::WindowFlags always = Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint | Qt::BypassWindowManagerHint
        | Qt::FramelessWindowHint | Qt::Dialog;
    QTest::addColumn<bool>("withArguments");
    QTest::addColumn<Qt::WindowFlags>("given");
    QTest::addColumn<Qt::WindowFlags>("expected");
    QTest::newRow("parent only") << false << Qt::WindowFlags() << always;
    QTest::newRow("default flags") << true << Qt::WindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint)
                                   << always;
    QTest::newRow("no flags") << true << Qt::WindowFlags() << (always & ~Qt::MSWindowsFixedSizeDialogHint);
    QTest::newRow("flags of the caller")
        << true << Qt::WindowFlags(Qt::WindowStaysOnTopHint)
        << ((always & ~Qt::MSWindowsFixedSizeDialogHint) | Qt::WindowStaysOnTopHint);
}

void tst_FramelessMessageBox::windowFlags()
{
    QFETCH(bool, withArguments);
    QFETCH(Qt::WindowFlags, given);
    QFETCH(Qt::WindowFlags, expected);

    const auto box = withArguments ? std::make_unique<FramelessMessageBox>(
                         QMessageBox::NoIcon, QString(), QString(), QMessageBox::NoButton, nullptr, given)
                                   : std::make_unique<FramelessMessageBox>(nullptr);
    QCOMPARE(box->windowFlags(), expected);
}

void tst_FramelessMessageBox::propertiesAreReadWriteDesignableScriptableStored_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("type");
    const auto add = [](const char *name, const char *type) {
        QTest::newRow(name) << QByteArray(name) << QByteArray(type);
    };
    add("text", "QString");
    add("icon", "QMessageBox::Icon");
    add("iconPixmap", "QPixmap");
    add("textFormat", "Qt::TextFormat");
    add("standardButtons", "QMessageBox::StandardButtons");
    add("detailedText", "QString");
    add("informativeText", "QString");
    add("textInteractionFlags", "Qt::TextInteractionFlags");
}

void tst_FramelessMessageBox::propertiesAreReadWriteDesignableScriptableStored()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, type);

    const FramelessMessageBox box;
    const QMetaObject &meta = FramelessMessageBox::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty(name.constData()));
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QVERIFY(property.isDesignable(&box));
    QVERIFY(property.isScriptable(&box));
    QVERIFY(property.isStored(&box));
    QCOMPARE(QByteArray(property.typeName()), type);
    QVERIFY(property.read(&box).isValid());
}

void tst_FramelessMessageBox::propertiesReachTheFunctions()
{
    FramelessMessageBox box;
    QVERIFY(box.setProperty("text", QStringLiteral("a")));
    QVERIFY(box.setProperty("informativeText", QStringLiteral("b")));
    QVERIFY(box.setProperty("detailedText", QStringLiteral("c")));
    QVERIFY(box.setProperty("textFormat", int(Qt::PlainText)));
    QPixmap picture(3, 3);
    picture.fill(Qt::red);
    QVERIFY(box.setProperty("iconPixmap", picture));
    QCOMPARE(box.text(), QStringLiteral("a"));
    QCOMPARE(box.informativeText(), QStringLiteral("b"));
    QCOMPARE(box.detailedText(), QStringLiteral("c"));
    QCOMPARE(box.textFormat(), Qt::PlainText);
    QCOMPARE(box.iconPixmap().toImage(), picture.toImage());
    QVERIFY(box.setProperty("icon", QVariant::fromValue(QMessageBox::Warning)));
    QVERIFY(box.setProperty("standardButtons", QVariant::fromValue(Buttons(QMessageBox::Yes))));
    QVERIFY(box.setProperty("textInteractionFlags",
                            QVariant::fromValue(Qt::TextInteractionFlags(Qt::TextSelectableByMouse))));
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::Yes));
    QCOMPARE(box.textInteractionFlags(), Qt::TextInteractionFlags(Qt::TextSelectableByMouse));
}

void tst_FramelessMessageBox::wordsWrapInRichTextOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<bool>("wraps");
    const QString plain = QStringLiteral("plain words");
    const QString rich = QStringLiteral("<b>rich</b> words");
    QTest::newRow("plain, guessed") << plain << Qt::AutoText << false;
    QTest::newRow("rich, guessed") << rich << Qt::AutoText << true;
    QTest::newRow("plain, told rich") << plain << Qt::RichText << true;
    QTest::newRow("rich, told plain") << rich << Qt::PlainText << false;
    QTest::newRow("markdown") << rich << Qt::MarkdownText << false;
}

void tst_FramelessMessageBox::wordsWrapInRichTextOnly()
{
    QFETCH(QString, text);
    QFETCH(Qt::TextFormat, format);
    QFETCH(bool, wraps);

    // GIVEN a box that was told the opposite before
    FramelessMessageBox textLast;
    textLast.setText(QStringLiteral("<i>x</i>"));
    QVERIFY(mainLabel(textLast)->wordWrap());

    // WHEN text and format come in either order, THEN the rule looks at both
    textLast.setTextFormat(format);
    textLast.setText(text);
    QCOMPARE(mainLabel(textLast)->wordWrap(), wraps);
    QCOMPARE(textLast.text(), text);

    FramelessMessageBox formatLast;
    formatLast.setText(text);
    formatLast.setTextFormat(format);
    QCOMPARE(mainLabel(formatLast)->wordWrap(), wraps);
    QCOMPARE(formatLast.textFormat(), format);
}

void tst_FramelessMessageBox::iconOfItsOwnResetsTheKind()
{
    FramelessMessageBox box;
    box.setIcon(QMessageBox::Question);
    QCOMPARE(box.icon(), QMessageBox::Question);
    const QPixmap standard = box.iconPixmap();
    QVERIFY(!standard.isNull());

    QPixmap own(5, 7);
    own.fill(Qt::green);
    box.setIconPixmap(own);
    QCOMPARE(box.icon(), QMessageBox::NoIcon);
    QCOMPARE(box.iconPixmap().toImage(), own.toImage());

    box.setIcon(QMessageBox::Question);
    QCOMPARE(box.iconPixmap().toImage(), standard.toImage());
    box.setIcon(QMessageBox::NoIcon);
    QVERIFY(box.iconPixmap().isNull());
}

void tst_FramelessMessageBox::interactionFlagsAreTheMainTextsAlone()
{
    FramelessMessageBox box;
    box.setInformativeText(QStringLiteral("more"));
    const QLabel *informative = label(box, QStringLiteral("qt_msgbox_informativelabel"));
    const Qt::TextInteractionFlags before = informative->textInteractionFlags();
    QVERIFY(before != Qt::TextSelectableByKeyboard);

    box.setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QCOMPARE(box.textInteractionFlags(), Qt::TextInteractionFlags(Qt::TextSelectableByKeyboard));
    QCOMPARE(mainLabel(box)->textInteractionFlags(), Qt::TextInteractionFlags(Qt::TextSelectableByKeyboard));
    QCOMPARE(informative->textInteractionFlags(), before);
}

void tst_FramelessMessageBox::titleIsTheTitleBars()
{
    FramelessMessageBox box;
    box.setWindowTitle(QStringLiteral("Upload"));
    QCOMPARE(box.windowTitle(), QStringLiteral("Upload"));
    QCOMPARE(static_cast<QWidget &>(box).windowTitle(), QString());
}

// Check box

void tst_FramelessMessageBox::checkBoxStretchesAndBelongsToTheBox()
{
    FramelessMessageBox box;
    auto *check = new QCheckBox(QStringLiteral("again"));
    check->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
    box.setCheckBox(check);
    QCOMPARE(box.checkBox(), check);
    QCOMPARE(check->parentWidget(), &box);
    QCOMPARE(check->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(check->sizePolicy().verticalPolicy(), QSizePolicy::Maximum);
}

void tst_FramelessMessageBox::formerCheckBoxIsDeletedIfItIsTheBoxs()
{
    FramelessMessageBox box;
    const QPointer<QCheckBox> former = new QCheckBox;
    box.setCheckBox(former);
    box.setCheckBox(new QCheckBox);
    QVERIFY(former->isHidden());
    QVERIFY(!former->parentWidget());
    QTRY_VERIFY(!former);

    const QPointer<QCheckBox> last = box.checkBox();
    box.setCheckBox(nullptr);
    QVERIFY(!box.checkBox());
    QTRY_VERIFY(!last);
}

void tst_FramelessMessageBox::formerCheckBoxOfSomebodyElseIsOnlyHidden()
{
    QWidget owner;
    FramelessMessageBox box;
    const QPointer<QCheckBox> former = new QCheckBox;
    box.setCheckBox(former);
    former->setParent(&owner);
    former->show();
    QVERIFY(!former->isHidden());

    box.setCheckBox(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(former);
    QVERIFY(former->isHidden());
    QCOMPARE(former->parentWidget(), &owner);
}

void tst_FramelessMessageBox::sameCheckBoxAgainChangesNothing()
{
    FramelessMessageBox box;
    auto *check = new QCheckBox;
    box.setCheckBox(check);
    const QLayout *before = box.layout();
    check->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    box.setCheckBox(check);
    QCOMPARE(box.layout(), before);
    QCOMPARE(check->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
}

void tst_FramelessMessageBox::deletedCheckBoxIsForgotten()
{
    FramelessMessageBox box;
    box.setCheckBox(new QCheckBox);
    delete box.checkBox();
    QVERIFY(!box.checkBox());
    box.setInformativeText(QStringLiteral("more")); // arranges anew
    show(box);
}

// Buttons

void tst_FramelessMessageBox::standardButtonText_data()
{
    QTest::addColumn<Button>("button");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");
    const auto add = [](Button button, int value, const char *text) {
        QTest::newRow(text) << button << value << QString::fromLatin1(text);
    };
    add(QMessageBox::Ok, 0x00000400, "OK");
    add(QMessageBox::Save, 0x00000800, "&Save");
    add(QMessageBox::SaveAll, 0x00001000, "Save All");
    add(QMessageBox::Open, 0x00002000, "Open");
    add(QMessageBox::Yes, 0x00004000, "&Yes");
    add(QMessageBox::YesToAll, 0x00008000, "Yes to &All");
    add(QMessageBox::No, 0x00010000, "&No");
    add(QMessageBox::NoToAll, 0x00020000, "N&o to All");
    add(QMessageBox::Abort, 0x00040000, "Abort");
    add(QMessageBox::Retry, 0x00080000, "Retry");
    add(QMessageBox::Ignore, 0x00100000, "Ignore");
    add(QMessageBox::Close, 0x00200000, "Close");
    add(QMessageBox::Cancel, 0x00400000, "&Cancel");
    add(QMessageBox::Discard, 0x00800000, "Discard");
    add(QMessageBox::Help, 0x01000000, "Help");
    add(QMessageBox::Apply, 0x02000000, "Apply");
    add(QMessageBox::Reset, 0x04000000, "Reset");
    QTest::newRow("RestoreDefaults keeps Qt's") << QMessageBox::RestoreDefaults << 0x08000000 << QString();
}

void tst_FramelessMessageBox::standardButtonText()
{
    QFETCH(Button, button);
    QFETCH(int, value);
    QFETCH(QString, text);

    // GIVEN what Qt calls the button
    QDialogButtonBox qt;
    const QString qtText = qt.addButton(QDialogButtonBox::StandardButton(button))->text();

    // WHEN it is added, THEN it has the box's own text
    FramelessMessageBox box;
    QPushButton *added = box.addButton(button);
    QVERIFY(added);
    QCOMPARE(int(box.standardButton(added)), value);
    QCOMPARE(added->text(), text.isEmpty() ? qtText : text);
    QCOMPARE(box.button(button), added);
    QCOMPARE(box.standardButtons(), Buttons(button));

    // WHEN the text is changed and set again, THEN the own text is back; what has none keeps the change
    added->setText(QStringLiteral("changed"));
    box.retranslateButtonUi(button);
    QCOMPARE(added->text(), text.isEmpty() ? QStringLiteral("changed") : text);

    // AND it is translated in the class's context
    const Brackets brackets(Context);
    box.retranslateButtonUi(button);
    QCOMPARE(added->text(), text.isEmpty() ? QStringLiteral("changed") : QStringLiteral("<%1>").arg(text));
}

void tst_FramelessMessageBox::standardButtonSetKeepsTheButtonBoxsTexts()
{
    const Brackets brackets(Context); // changes the box's own texts alone
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Cancel);
    QDialogButtonBox qt(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QMessageBox::Save)->text(), qt.button(QDialogButtonBox::Save)->text());
    QCOMPARE(box.button(QMessageBox::Cancel)->text(), qt.button(QDialogButtonBox::Cancel)->text());
}

void tst_FramelessMessageBox::retranslatingAnAbsentOrUnknownButtonDoesNothing()
{
    FramelessMessageBox box;
    QPushButton *yes = box.addButton(QMessageBox::Yes);
    yes->setText(QStringLiteral("changed"));
    box.retranslateButtonUi(QMessageBox::No);
    box.retranslateButtonUi(QMessageBox::NoButton);
    box.retranslateButtonUi(UnknownButton);
    QCOMPARE(yes->text(), QStringLiteral("changed"));
    QCOMPARE(box.buttons().size(), 1);
}

void tst_FramelessMessageBox::unknownStandardButtonGivesNull()
{
    FramelessMessageBox box;
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Invalid ButtonRole"));
    QVERIFY(!box.addButton(QMessageBox::NoButton));
    QVERIFY(!box.addButton(UnknownButton));
    QVERIFY(box.buttons().isEmpty());
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::NoButton));
    QVERIFY(buttonBoxOf(box)->findChildren<QPushButton *>().isEmpty());

    // and leaves the box one that gets its OK
    show(box);
    QCOMPARE(order(box), QList<int>{QMessageBox::Ok});
}

void tst_FramelessMessageBox::nullButtonIsIgnored()
{
    FramelessMessageBox box;
    box.addButton(nullptr, QMessageBox::AcceptRole);
    box.removeButton(nullptr);
    box.setDefaultButton(static_cast<QPushButton *>(nullptr));
    box.setEscapeButton(static_cast<QAbstractButton *>(nullptr));
    QVERIFY(box.buttons().isEmpty());
    QCOMPARE(box.standardButton(nullptr), QMessageBox::NoButton);
    QCOMPARE(box.buttonRole(nullptr), QMessageBox::InvalidRole);
    show(box);
    QCOMPARE(order(box), QList<int>{QMessageBox::Ok}); // still added: nothing came
}

void tst_FramelessMessageBox::customButtonTakesItsRoleAndPlace_data()
{
    QTest::addColumn<Role>("role");
    for (int role = QMessageBox::AcceptRole; role < QMessageBox::NRoles; ++role)
        QTest::newRow(qPrintable(QStringLiteral("role %1").arg(role))) << Role(role);
}

void tst_FramelessMessageBox::customButtonTakesItsRoleAndPlace()
{
    QFETCH(Role, role);

    FramelessMessageBox box;
    QPushButton *push = box.addButton(QStringLiteral("push"), role);
    auto *radio = new QRadioButton(QStringLiteral("radio"));
    box.addButton(radio, role);
    QCOMPARE(push->text(), QStringLiteral("push"));
    QCOMPARE(box.buttonRole(push), role);
    QCOMPARE(box.buttonRole(radio), role);
    QCOMPARE(box.standardButton(push), QMessageBox::NoButton);
    QCOMPARE(box.buttons(), (QList<QAbstractButton *>{push, radio}));
    QCOMPARE(buttonBoxOf(box)->buttons(), box.buttons());
    QVERIFY(box.isAncestorOf(radio));
}

void tst_FramelessMessageBox::buttonAddedTwiceIsListedOnce()
{
    FramelessMessageBox box;
    QPushButton *first = box.addButton(QStringLiteral("first"), QMessageBox::ActionRole);
    QPushButton *second = box.addButton(QStringLiteral("second"), QMessageBox::ActionRole);
    box.addButton(first, QMessageBox::ActionRole);
    QCOMPARE(box.buttons(), (QList<QAbstractButton *>{second, first}));

    // WHEN both are clicked, THEN the codes tell that the first moved to the end
    const Outcome outcome(box);
    second->click();
    QCOMPARE(outcome.code(), 0);
    first->click();
    QCOMPARE(outcome.code(), 1);
}

void tst_FramelessMessageBox::buttonOfUnknownRoleIsOwnedAllTheSame_data()
{
    QTest::addColumn<int>("role");
    QTest::newRow("unknown") << 12;
    QTest::newRow("invalid") << int(QMessageBox::InvalidRole);
}

void tst_FramelessMessageBox::buttonOfUnknownRoleIsOwnedAllTheSame()
{
    QFETCH(int, role);
    for (int i = 0; i < 3; ++i)
        m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Invalid ButtonRole"));
    QPointer<QPushButton> made;
    QPointer<QPushButton> given = new QPushButton;
    QPointer<QPushButton> again = new QPushButton;
    {
        FramelessMessageBox box;
        made = box.addButton(QStringLiteral("odd"), Role(role));
        box.addButton(given, Role(role));
        box.addButton(again, QMessageBox::AcceptRole);
        box.addButton(again, Role(role));
        QVERIFY(box.buttons().isEmpty());
    }
    QVERIFY(!made);
    QVERIFY(!given);
    QVERIFY(!again);
}

void tst_FramelessMessageBox::refusedButtonDoesNotReplaceTheAutomaticOk()
{
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Invalid ButtonRole"));
    FramelessMessageBox box;
    box.addButton(QStringLiteral("odd"), Role(12));
    show(box);
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::Ok));
    QVERIFY(box.close());
}

void tst_FramelessMessageBox::removedButtonLivesAndIsForgotten()
{
    FramelessMessageBox box;
    const std::unique_ptr<QPushButton> button(box.addButton(QMessageBox::Yes));
    box.setDefaultButton(button.get());
    box.setEscapeButton(button.get());
    QCOMPARE(box.defaultButton(), button.get());
    QCOMPARE(box.escapeButton(), button.get());

    box.removeButton(button.get());
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());
    QVERIFY(box.buttons().isEmpty());
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::NoButton));
    QVERIFY(!button->parent());
}

void tst_FramelessMessageBox::foreignButtonIsLeftAlone()
{
    QWidget owner;
    QPushButton foreign(&owner);
    FramelessMessageBox box;
    box.addButton(QMessageBox::Ok);
    box.removeButton(&foreign);
    QCOMPARE(foreign.parentWidget(), &owner);
    QCOMPARE(box.buttons().size(), 1);
    QCOMPARE(box.standardButton(&foreign), QMessageBox::NoButton);
    QCOMPARE(box.buttonRole(&foreign), QMessageBox::InvalidRole);
}

void tst_FramelessMessageBox::resultCodesFollowTheOrderOfAddition()
{
    FramelessMessageBox box;
    QPushButton *zero = box.addButton(QStringLiteral("zero"), QMessageBox::RejectRole);
    QPushButton *one = box.addButton(QStringLiteral("one"), QMessageBox::AcceptRole);
    QPushButton *standard = box.addButton(QMessageBox::Retry);
    QPushButton *two = box.addButton(QStringLiteral("two"), QMessageBox::AcceptRole);
    const Outcome outcome(box);
    two->click();
    QCOMPARE(outcome.code(), 2);
    one->click();
    QCOMPARE(outcome.code(), 1);
    standard->click();
    QCOMPARE(outcome.code(), int(QMessageBox::Retry));

    // WHEN the first is taken out, THEN the later ones move up
    box.removeButton(zero);
    delete zero;
    two->click();
    QCOMPARE(outcome.code(), 1);
    one->click();
    QCOMPARE(outcome.code(), 0);
}

void tst_FramelessMessageBox::setOfButtonsForgetsTheSpecialOnesOfTheFormer()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    QPushButton *custom = box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(custom);
    QVERIFY(box.defaultButton());

    box.setStandardButtons(QMessageBox::Save);
    QVERIFY(!box.defaultButton());
    QCOMPARE(box.escapeButton(), custom); // still there
    QCOMPARE(box.standardButtons(), Buttons(QMessageBox::Save));
    QCOMPARE(box.buttons().size(), 2);
}

void tst_FramelessMessageBox::setOfButtonsKeepsACustomDefaultButton()
{
    FramelessMessageBox box;
    QPushButton *custom = box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole);
    box.setDefaultButton(custom);
    box.setStandardButtons(QMessageBox::Save);
    QCOMPARE(box.defaultButton(), custom);
}

void tst_FramelessMessageBox::setOfButtonsForgetsThoseTakenBehindItsBack()
{
    FramelessMessageBox box;
    const std::unique_ptr<QPushButton> custom(
        box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole));
    box.setDefaultButton(custom.get());
    box.setEscapeButton(custom.get());
    buttonBoxOf(box)->removeButton(custom.get());
    QCOMPARE(box.defaultButton(), custom.get());

    box.setStandardButtons(QMessageBox::Save);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());
}

void tst_FramelessMessageBox::newButtonAtADeadOnesAddressIsNotTakenForIt()
{
    // The memory of a button that was just deleted is likely to be the next one's. Tried often enough to meet
    // that.
    FramelessMessageBox box;
    for (int i = 0; i < 50; ++i) {
        box.setStandardButtons(QMessageBox::Yes);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::Yes);
        QVERIFY(box.escapeButton());
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        QVERIFY(!box.defaultButton());
        QVERIFY(!box.escapeButton());
    }
}

void tst_FramelessMessageBox::defaultButtonIsDefaultAndFocused()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::No);
    auto *no = qobject_cast<QPushButton *>(box.button(QMessageBox::No));
    QCOMPARE(box.defaultButton(), no);
    QVERIFY(no->isDefault());
    QCOMPARE(box.focusWidget(), no);

    show(box);
    const Outcome outcome(box);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(outcome.code(), int(QMessageBox::No));
}

void tst_FramelessMessageBox::defaultButtonIsFocusedForNoReasonOfTheUsers()
{
    // GIVEN an active box whose focus is elsewhere
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    show(box);
    QApplication::setActiveWindow(&box);
    box.button(QMessageBox::Yes)->setFocus();
    QVERIFY(box.button(QMessageBox::Yes)->hasFocus());
    FocusReasons seen;
    box.button(QMessageBox::No)->installEventFilter(&seen);

    // WHEN the program makes another button the default THEN the focus comes as the program moves it
    box.setDefaultButton(QMessageBox::No);
    QCOMPARE(seen.reasons, QList<Qt::FocusReason>{Qt::OtherFocusReason});
}

void tst_FramelessMessageBox::strangersAreNeitherDefaultNorEscapeButton()
{
    QPushButton stranger;
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    box.setDefaultButton(&stranger);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(&stranger);
    box.setEscapeButton(QMessageBox::Cancel);
    QVERIFY(!stranger.isDefault());
    QCOMPARE(box.defaultButton(), box.button(QMessageBox::Yes));
    QCOMPARE(box.escapeButton(), box.button(QMessageBox::No));
}

void tst_FramelessMessageBox::okIsAddedToABoxWithoutButtonsOnly_data()
{
    using Prepare = void (*)(FramelessMessageBox &);
    QTest::addColumn<QVariant>("prepare");
    QTest::addColumn<bool>("added");
    const auto add = [](const char *name, Prepare prepare, bool added) {
        QTest::newRow(name) << QVariant::fromValue(reinterpret_cast<void *>(prepare)) << added;
    };
    add(
        "nothing", [](FramelessMessageBox &) {}, true);
    add(
        "details", [](FramelessMessageBox &box) { box.setDetailedText(QStringLiteral("d")); }, true);
    add(
        "standard button", [](FramelessMessageBox &box) { box.addButton(QMessageBox::Help); }, false);
    add(
        "custom button",
        [](FramelessMessageBox &box) { box.addButton(QStringLiteral("c"), QMessageBox::HelpRole); }, false);
    add(
        "a set", [](FramelessMessageBox &box) { box.setStandardButtons(QMessageBox::Help); }, false);
    add(
        "a set and details",
        [](FramelessMessageBox &box) {
            box.setStandardButtons(QMessageBox::Help);
            box.setDetailedText(QStringLiteral("d"));
        },
        false);
    add(
        "an empty set", [](FramelessMessageBox &box) { box.setStandardButtons(QMessageBox::NoButton); },
        false);
}

void tst_FramelessMessageBox::okIsAddedToABoxWithoutButtonsOnly()
{
    QFETCH(QVariant, prepare);
    QFETCH(bool, added);

    FramelessMessageBox box;
    reinterpret_cast<void (*)(FramelessMessageBox &)>(prepare.value<void *>())(box);
    QVERIFY(!box.button(QMessageBox::Ok));
    show(box);
    QCOMPARE(box.button(QMessageBox::Ok) != nullptr, added);

    // once, however often it is shown
    const int count = box.buttons().size();
    box.hide();
    box.show();
    QCOMPARE(box.buttons().size(), count);
}

void tst_FramelessMessageBox::deletedButtonsAreForgotten()
{
    FramelessMessageBox box;
    QPushButton *custom = box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole);
    QPushButton *stays = box.addButton(QStringLiteral("stays"), QMessageBox::AcceptRole);
    box.setDetailedText(QStringLiteral("details"));
    box.setDefaultButton(custom);
    box.setEscapeButton(custom);
    show(box);
    delete custom;
    delete detailsButton(box);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());

    // WHEN the box goes on, THEN nothing follows the dead ones
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(box.isVisible());
    const Outcome outcome(box);
    stays->click();
    QCOMPARE(outcome.clicks.count(), 1);
    QCOMPARE(box.clickedButton(), stays);
    delete stays;
    QVERIFY(!box.clickedButton());
    box.setDetailedText(QString());
    box.show();
}

// Bad input

void tst_FramelessMessageBox::megabyteOfTextIsTaken()
{
    const QString words = QStringLiteral("word ").repeated(200000);
    FramelessMessageBox box;
    box.setDetailedText(words);
    box.setText(words.left(20000));
    show(box);
    QCOMPARE(box.detailedText().size(), words.size());
    box.setText(words);
    QCOMPARE(box.text().size(), words.size());
    QVERIFY(box.width() <= 1024);
}

void tst_FramelessMessageBox::brokenTagsAreTaken()
{
    FramelessMessageBox box;
    box.setText(QStringLiteral("<b><table><tr><i>x</b></p><a href='"));
    box.setInformativeText(QStringLiteral("<<<>&nosuch;<img src=nowhere>"));
    box.setTextFormat(Qt::RichText);
    show(box);
    QVERIFY(box.text().startsWith(QStringLiteral("<b>")));
}

void tst_FramelessMessageBox::hugeIconIsTaken()
{
    QPixmap huge(4000, 4000);
    huge.fill(Qt::red);
    FramelessMessageBox box;
    box.setIconPixmap(huge);
    show(box);
    QCOMPARE(box.iconPixmap().size(), QSize(4000, 4000));
}

void tst_FramelessMessageBox::unknownIconShowsNone()
{
    FramelessMessageBox box;
    box.setIcon(QMessageBox::Warning);
    box.setIcon(QMessageBox::Icon(7));
    QVERIFY(box.iconPixmap().isNull());
    QCOMPARE(int(box.icon()), 7);
}

QTEST_MAIN(tst_FramelessMessageBox)

#include "tst_framelessmessagebox.moc"
