// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the message box is made of and how it ends. The other tst_framelessmessagebox_*.cpp hold the rest.

#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/testdialog.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMetaProperty>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
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

constexpr int Untouched = -99;
// Of no meaning, but with a bit of the enumeration's: to pass on any other is undefined behaviour.
constexpr Button UnknownButton = Button(1);

/* What a click, a key or a closing ended a box with, and how often. */
struct Outcome
{
    explicit Outcome(const FramelessMessageBox &box)
        : clicks(&box, &FramelessMessageBox::buttonClicked)
        , finished(&box, &QDialog::finished)
    {
    }

    int code() const
    {
        return finished.isEmpty() ? Untouched : finished.last().first().toInt();
    }

    QSignalSpy clicks;
    QSignalSpy finished;
};

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

void show(QWidget &widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

QDialogButtonBox *buttonBoxOf(const FramelessMessageBox &box)
{
    return box.findChild<QDialogButtonBox *>();
}

QLabel *label(const FramelessMessageBox &box, const QString &name)
{
    return box.findChild<QLabel *>(name);
}

QLabel *mainLabel(const FramelessMessageBox &box)
{
    return label(box, QStringLiteral("qt_msgbox_label"));
}

QPushButton *detailsButton(const FramelessMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text().endsWith(QStringLiteral("Details...")))
            return qobject_cast<QPushButton *>(button);
    }
    return nullptr;
}

QList<int> order(const FramelessMessageBox &box)
{
    QList<int> values;
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons)
        values.append(box.standardButton(button));
    return values;
}

QList<QPair<QAccessible::Event, QObject *>> accessibleEvents;

} // namespace

// In place of Qt's own, which drops every event unless a screen reader is running.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    accessibleEvents.append({event->type(), event->object()});
}

Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(QMessageBox::StandardButton)
Q_DECLARE_METATYPE(QMessageBox::StandardButtons)
Q_DECLARE_METATYPE(QMessageBox::ButtonRole)
Q_DECLARE_METATYPE(QList<QMessageBox::ButtonRole>)

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
    void setOfButtonsForgetsThoseTakenBehindItsBack();
    void newButtonAtADeadOnesAddressIsNotTakenForIt();
    void defaultButtonIsDefaultAndFocused();
    void strangersAreNeitherDefaultNorEscapeButton();
    void okIsAddedToABoxWithoutButtonsOnly_data();
    void okIsAddedToABoxWithoutButtonsOnly();
    void deletedButtonsAreForgotten();

    // Ending
    void escapeButtonIsDetected_data();
    void escapeButtonIsDetected();
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
    void otherKeysAreTheDialogs();

    // Showing
    void showTellsAccessibilityAlert();
    void detailsButtonMovesToTheEndOfTheCustomOnes();
    void openConnectsByMember_data();
    void openConnectsByMember();
    void openDisconnectsAfterOneClick();
    void openLeavesLaterConnectionsAlone();
    void openSurvivesADeadReceiver();
    void windowModalityReplacesTheFlags_data();
    void windowModalityReplacesTheFlags();

    // Changes
    void languageChangeReachesDetailsAndOwnTexts();
    void languageChangeLeavesTheTextsOfASetToQt();
    void newDetailsAreClosed();
    void styleChangeReachesIconFlagsAndCentring();

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

// Ending

void tst_FramelessMessageBox::escapeButtonIsDetected_data()
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

void tst_FramelessMessageBox::escapeButtonIsDetected()
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

void tst_FramelessMessageBox::explicitEscapeButtonWins()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Yes);
    show(box);
    const Outcome outcome(box);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(outcome.code(), int(QMessageBox::Yes));
}

void tst_FramelessMessageBox::clickEndsTheBoxBeforeItIsReported()
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

void tst_FramelessMessageBox::boxMayBeDeletedByWhoeverHearsOfTheClick_data()
{
    QTest::addColumn<bool>("atFinished");
    QTest::newRow("at finished") << true;
    QTest::newRow("at buttonClicked") << false;
}

void tst_FramelessMessageBox::boxMayBeDeletedByWhoeverHearsOfTheClick()
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

void tst_FramelessMessageBox::boxMayBeDeletedByWhoeverHearsThatItCloses()
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

void tst_FramelessMessageBox::closingGivesTheEscapeButton()
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

void tst_FramelessMessageBox::closingWithAButtonThatWasTakenOutGivesMinusOne()
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

void tst_FramelessMessageBox::closingWithDeadButtonsGivesMinusOne()
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

void tst_FramelessMessageBox::clickOfAButtonThatDiesMeanwhileIsNotReported()
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

void tst_FramelessMessageBox::closeButtonIsHiddenWithoutAnEscapeButton()
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

void tst_FramelessMessageBox::hiddenCloseButtonStaysHidden()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Cancel);
    box.setCloseButtonVisible(false);
    show(box);
    QVERIFY(!box.getCloseButtonVisible());
}

void tst_FramelessMessageBox::detailsButtonDoesNotEndTheBox()
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

void tst_FramelessMessageBox::slotClickedEndsWithTheStandardButton()
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

void tst_FramelessMessageBox::shortcutKeyClicksWithoutModifier_data()
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

void tst_FramelessMessageBox::shortcutKeyClicksWithoutModifier()
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

void tst_FramelessMessageBox::altIsLeftToTheMnemonic()
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

void tst_FramelessMessageBox::firstOfTwoEqualShortcutsIsClicked()
{
    FramelessMessageBox box;
    QPushButton *first = box.addButton(QStringLiteral("&One"), QMessageBox::ActionRole);
    QPushButton *second = box.addButton(QStringLiteral("&Other"), QMessageBox::ActionRole);
    QCOMPARE(first->shortcut(), second->shortcut());
    show(box);
    QTest::keyClick(&box, Qt::Key_O);
    QTRY_COMPARE(box.clickedButton(), first);
}

void tst_FramelessMessageBox::escapeGoesNoFurther()
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

void tst_FramelessMessageBox::copyAndSelectAllReachTheDetails()
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

void tst_FramelessMessageBox::otherKeysAreTheDialogs()
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

// Showing

void tst_FramelessMessageBox::showTellsAccessibilityAlert()
{
    FramelessMessageBox box;
    accessibleEvents.clear();
    box.show();
    QCOMPARE(accessibleEvents.count({QAccessible::Alert, &box}), 1);
}

void tst_FramelessMessageBox::detailsButtonMovesToTheEndOfTheCustomOnes()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("details"));
    QPushButton *custom = box.addButton(QStringLiteral("custom"), QMessageBox::AcceptRole);
    show(box);
    const Outcome outcome(box);
    custom->click();
    QCOMPARE(outcome.code(), 0); // not 1: the details button, there before, has been added anew
}

void tst_FramelessMessageBox::openConnectsByMember_data()
{
    QTest::addColumn<QByteArray>("member");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("results");
    QTest::addColumn<int>("calls");
    QTest::newRow("slot of a button") << QByteArray(SLOT(takeButton(QAbstractButton *))) << 1 << 0 << 0;
    QTest::newRow("slot of a result") << QByteArray(SLOT(takeResult(int))) << 0 << 1 << 0;
    QTest::newRow("slot of nothing") << QByteArray(SLOT(takeNothing())) << 0 << 0 << 1;
}

void tst_FramelessMessageBox::openConnectsByMember()
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

void tst_FramelessMessageBox::openDisconnectsAfterOneClick()
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

void tst_FramelessMessageBox::openLeavesLaterConnectionsAlone()
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

void tst_FramelessMessageBox::openSurvivesADeadReceiver()
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

void tst_FramelessMessageBox::windowModalityReplacesTheFlags_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<Qt::WindowModality>("modality");
    QTest::addColumn<Qt::WindowType>("type");
    QTest::newRow("sheet") << true << Qt::WindowModal << Qt::Sheet;
    QTest::newRow("no parent") << false << Qt::WindowModal << Qt::Dialog;
    QTest::newRow("application modal") << true << Qt::ApplicationModal << Qt::Dialog;
    QTest::newRow("modeless") << true << Qt::NonModal << Qt::Dialog;
}

void tst_FramelessMessageBox::windowModalityReplacesTheFlags()
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

void tst_FramelessMessageBox::languageChangeReachesDetailsAndOwnTexts()
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

void tst_FramelessMessageBox::languageChangeLeavesTheTextsOfASetToQt()
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

void tst_FramelessMessageBox::newDetailsAreClosed()
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

void tst_FramelessMessageBox::styleChangeReachesIconFlagsAndCentring()
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
