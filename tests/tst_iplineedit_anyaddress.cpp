// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/addressform.h"
#include "support/functionguard.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QValidator>
#include <memory>
#include <optional>
#include <tarnwidgets/iplineedit.h>

using namespace Tarn::Test;
using Tarn::Widgets::IPLineEdit;

namespace {

QMenu *openContextMenu(QLineEdit *field)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), field->mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(field, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QAction *actionOf(const QMenu *menu, const QString &text)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class tst_IPLineEditAnyAddress : public QObject
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
        QGuiApplication::clipboard()->clear();
    }

    void anyAddressIsOffAtTheStart();
    void anyAddressIsAProperty();
    void anyAddressTakesEveryAddressAndNothingElse_data();
    void anyAddressTakesEveryAddressAndNothingElse();
    void anyAddressCanBeTurnedOffAgain();
    void validatorOfTheApplicationIsNotDeleted();
    void wholeAddressIsPasted_data();
    void wholeAddressIsPasted();
    void pastedAddressIsAnEdit();
    void pastedAddressIsAnnouncedLast();
    void pastedAddressIsAnnouncedAsNormalised();
    void otherTextsArePastedIntoTheField();
    void readOnlyFieldsAreNotPastedInto();
    void wholeAddressIsCopied_data();
    void wholeAddressIsCopied();
    void incompleteAddressIsNotCopied();
    void contextMenuHasTheWholeAddress();
    void contextMenuDisablesWhatIsOfNoUse();
    void contextMenuPolicyOfAFieldIsKept_data();
    void contextMenuPolicyOfAFieldIsKept();
    void withoutAnyAddressTheClipboardIsTheFields();
    void withoutAnyAddressTheContextMenuIsTheFields();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_IPLineEditAnyAddress::anyAddressIsOffAtTheStart()
{
    const IPLineEdit edit;
    QVERIFY(!edit.acceptsAnyAddress());
}

void tst_IPLineEditAnyAddress::anyAddressIsAProperty()
{
    IPLineEdit edit;
    QObject *object = &edit; // the editor's own setProperty() is for the fields

    QVERIFY(object->setProperty("acceptsAnyAddress", true));
    QVERIFY(edit.acceptsAnyAddress());
    QCOMPARE(object->property("acceptsAnyAddress"), QVariant(true));
}

void tst_IPLineEditAnyAddress::anyAddressTakesEveryAddressAndNothingElse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAddress");
    QTest::newRow("of a name server") << "8.8.8.8" << true;
    QTest::newRow("all zeros") << "0.0.0.0" << true;
    QTest::newRow("broadcast") << "255.255.255.255" << true;
    QTest::newRow("multicast") << "224.0.0.1" << true;
    QTest::newRow("a leading zero") << "01.2.3.04" << true;
    QTest::newRow("two leading zeros") << "001.2.3.4" << false;
    QTest::newRow("a number too great") << "1.2.3.256" << false;
    QTest::newRow("other characters for dots") << "1x2x3x4" << false;
    QTest::newRow("two parts") << "10.1" << false;
    QTest::newRow("five parts") << "1.2.3.4.5" << false;
    QTest::newRow("empty parts") << "1..3.4" << false;
    QTest::newRow("IPv6") << "::1" << false;
    QTest::newRow("a blank") << "1.2.3.4 " << false;
    QTest::newRow("a word") << "abc" << false;
}

void tst_IPLineEditAnyAddress::anyAddressTakesEveryAddressAndNothingElse()
{
    QFETCH(QString, text);
    QFETCH(bool, isAddress);
    IPLineEdit edit;
    edit.setAcceptsAnyAddress(true);
    edit.setText(QStringLiteral("9.9.9.9"));
    QVERIFY(edit.isTextValid(QString()));

    if (!isAddress)
        m_guard->sentry().expect(QtWarningMsg, noAddressWarning());
    edit.setText(text);

    QCOMPARE(edit.text(), isAddress ? text : QStringLiteral("9.9.9.9"));
    QCOMPARE(edit.isTextValid(text), isAddress);
    QVERIFY(edit.hasAcceptableInput());
}

void tst_IPLineEditAnyAddress::anyAddressCanBeTurnedOffAgain()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.type(0, QStringLiteral("8"));
    QCOMPARE(form.fields[0]->text(), QStringLiteral("8"));
    const int validators = form.edit->findChildren<QValidator *>().size();

    form.edit->setAcceptsAnyAddress(false);
    form.type(0, QStringLiteral("8"));

    QVERIFY(form.fields[0]->text().isEmpty());
    QVERIFY(!form.edit->isTextValid(QStringLiteral("8.8.8.8")));
    QCOMPARE(form.edit->findChildren<QValidator *>().size(), validators);
    QCOMPARE(validators, FieldCount);
}

void tst_IPLineEditAnyAddress::validatorOfTheApplicationIsNotDeleted()
{
    // GIVEN a validator that the application shares between the first field and something else
    IPLineEdit edit;
    QObject owner;
    const QPointer<QValidator> validator = new QIntValidator(&owner);
    fieldsOf(edit).constFirst()->setValidator(validator);

    // WHEN the editor sets its own again
    edit.setAcceptsAnyAddress(true);

    // THEN it is there still
    QVERIFY(validator);
    QVERIFY(fieldsOf(edit).constFirst()->validator() != validator);

    // and a field without one is no matter
    fieldsOf(edit).constFirst()->setValidator(nullptr);
    edit.setAcceptsAnyAddress(false);
    QVERIFY(fieldsOf(edit).constFirst()->validator());
}

void tst_IPLineEditAnyAddress::wholeAddressIsPasted_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::newRow("as it is") << "10.20.30.40";
    QTest::newRow("with blanks around") << "  10.20.30.40\n";
}

void tst_IPLineEditAnyAddress::wholeAddressIsPasted()
{
    QFETCH(QString, clipboard);

    for (int index = 0; index < FieldCount; ++index) {
        // GIVEN an address on the clipboard, and the cursor in a field
        AddressForm form;
        QVERIFY(form.isReady());
        form.edit->setAcceptsAnyAddress(true);
        form.edit->setText(QStringLiteral("8.8.8.8"));
        form.fields[index]->setFocus();
        QGuiApplication::clipboard()->setText(clipboard);

        // WHEN the user pastes
        QTest::keySequence(form.fields[index], QKeySequence(QKeySequence::Paste));

        // THEN all fields have it, and the cursor is behind it
        QCOMPARE(form.edit->text(), QStringLiteral("10.20.30.40"));
        QCOMPARE(QApplication::focusWidget(), form.fields[3]);
        QCOMPARE(form.fields[3]->cursorPosition(), 2);
    }
}

void tst_IPLineEditAnyAddress::pastedAddressIsAnEdit()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.fields[0]->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("10.20.30.40"));
    bool wasModifiedInSlot = false;
    connect(form.edit, &IPLineEdit::addressChanged, this,
            [&] { wasModifiedInSlot = form.fields[1]->isModified(); });

    QTest::keySequence(form.fields[0], QKeySequence(QKeySequence::Paste));

    QVERIFY(wasModifiedInSlot);
    QVERIFY(form.edit->isModified());
}

void tst_IPLineEditAnyAddress::pastedAddressIsAnnouncedLast()
{
    // GIVEN a slot that deletes the editor
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.fields[0]->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("10.20.30.40"));
    const QPointer<IPLineEdit> edit = form.edit;
    int focusIndex = -1;
    connect(edit, &IPLineEdit::addressChanged, this, [&] {
        focusIndex = edit->getIndex(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        delete edit;
    });

    // WHEN an address is pasted
    QTest::keySequence(form.fields[0], QKeySequence(QKeySequence::Paste));

    // THEN the editor had done all of it before
    QVERIFY(!edit);
    QCOMPARE(focusIndex, 3);
}

void tst_IPLineEditAnyAddress::pastedAddressIsAnnouncedAsNormalised()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.fields[0]->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("01.02.03.04"));
    QSignalSpy changes(form.edit, &IPLineEdit::addressChanged);

    QTest::keySequence(form.fields[0], QKeySequence(QKeySequence::Paste));

    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.constFirst().constFirst().toString(), QStringLiteral("1.2.3.4"));
    QCOMPARE(form.edit->text(), QStringLiteral("1.2.3.4"));
}

void tst_IPLineEditAnyAddress::otherTextsArePastedIntoTheField()
{
    for (const QString &clipboard :
         {QStringLiteral("42"), QStringLiteral("10.20.30"), QStringLiteral("no")}) {
        AddressForm form;
        QVERIFY(form.isReady());
        form.edit->setAcceptsAnyAddress(true);
        form.fields[1]->setFocus();
        QGuiApplication::clipboard()->setText(clipboard);

        QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Paste));

        QCOMPARE(form.edit->text(),
                 clipboard == QStringLiteral("42") ? QStringLiteral(".42..") : QStringLiteral("..."));
    }
}

void tst_IPLineEditAnyAddress::readOnlyFieldsAreNotPastedInto()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.edit->setProperty("readOnly", true);
    form.fields[1]->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("10.20.30.40"));

    QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Paste));

    QCOMPARE(form.edit->text(), QStringLiteral("..."));
}

void tst_IPLineEditAnyAddress::wholeAddressIsCopied_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing selected") << 0 << 0 << "192.168.1.20";
    QTest::newRow("all of a number selected") << 0 << 3 << "192.168.1.20";
    QTest::newRow("a part of a number selected") << 1 << 2 << "68";
}

void tst_IPLineEditAnyAddress::wholeAddressIsCopied()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, expected);
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.edit->setText(QStringLiteral("192.168.1.20"));
    form.fields[1]->setFocus();
    form.fields[1]->setSelection(start, length);
    QCOMPARE(form.fields[1]->selectedText().size(), length);

    QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Copy));

    QCOMPARE(QGuiApplication::clipboard()->text(), expected);
    QCOMPARE(form.edit->text(), QStringLiteral("192.168.1.20"));
}

void tst_IPLineEditAnyAddress::incompleteAddressIsNotCopied()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.fields[1]->setFocus();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));

    QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Copy));

    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

void tst_IPLineEditAnyAddress::contextMenuHasTheWholeAddress()
{
    // GIVEN the context menu of a field
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.edit->setText(QStringLiteral("192.168.1.20"));
    QGuiApplication::clipboard()->setText(QStringLiteral("10.20.30.40"));
    QPointer<QMenu> menu = openContextMenu(form.fields[2]);
    QVERIFY(menu);

    // THEN it has what the field's own has, and an entry each for the whole address
    const std::unique_ptr<QMenu> standard(form.fields[2]->createStandardContextMenu());
    QCOMPARE(menu->actions().size(), standard->actions().size() + 3); // and a separator
    QAction *paste = actionOf(menu, QStringLiteral("Paste Address"));
    QAction *copy = actionOf(menu, QStringLiteral("Copy Address"));
    QVERIFY(paste && copy);
    QVERIFY(paste->isEnabled() && copy->isEnabled());
    paste->trigger();
    QCOMPARE(form.edit->text(), QStringLiteral("10.20.30.40"));
    form.edit->setText(QStringLiteral("8.8.8.8"));
    copy->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("8.8.8.8"));

    // and pastes nothing once the clipboard holds no address any more
    QGuiApplication::clipboard()->setText(QStringLiteral("no address"));
    paste->trigger();
    QCOMPARE(form.edit->text(), QStringLiteral("8.8.8.8"));

    // and goes when it is closed
    menu->close();
    QTRY_VERIFY(menu.isNull());
}

void tst_IPLineEditAnyAddress::contextMenuDisablesWhatIsOfNoUse()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    QGuiApplication::clipboard()->setText(QStringLiteral("no address"));
    const QPointer<QMenu> menu = openContextMenu(form.fields[2]);
    QVERIFY(menu);

    QVERIFY(!actionOf(menu, QStringLiteral("Paste Address"))->isEnabled());
    QVERIFY(!actionOf(menu, QStringLiteral("Copy Address"))->isEnabled());

    menu->close();
    QTRY_VERIFY(menu.isNull());
}

void tst_IPLineEditAnyAddress::contextMenuPolicyOfAFieldIsKept_data()
{
    QTest::addColumn<Qt::ContextMenuPolicy>("policy");
    QTest::addColumn<int>("requests");
    QTest::newRow("a menu of the application's") << Qt::CustomContextMenu << 1;
    QTest::newRow("no menu") << Qt::PreventContextMenu << 0;
}

void tst_IPLineEditAnyAddress::contextMenuPolicyOfAFieldIsKept()
{
    QFETCH(Qt::ContextMenuPolicy, policy);
    QFETCH(int, requests);
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setAcceptsAnyAddress(true);
    form.fields[2]->setContextMenuPolicy(policy);
    QSignalSpy custom(form.fields[2], &QWidget::customContextMenuRequested);

    const QPointer<QMenu> menu = openContextMenu(form.fields[2]);
    const bool isShown = !menu.isNull();
    if (isShown)
        menu->close();

    QVERIFY(!isShown);
    QCOMPARE(custom.count(), requests);
}

void tst_IPLineEditAnyAddress::withoutAnyAddressTheClipboardIsTheFields()
{
    for (const QString &clipboard : {QStringLiteral("10.20.30.40"), QStringLiteral("192.168.1.20"),
                                     QStringLiteral("255"), QStringLiteral("7")}) {
        // GIVEN an editor, and a line edit by itself with the same rules
        AddressForm form;
        QVERIFY(form.isReady());
        QLineEdit plain(&form.window);
        plain.setMaxLength(3);
        plain.setValidator(form.fields[1]->validator());
        QGuiApplication::clipboard()->setText(clipboard);

        // WHEN a text is pasted into a field and into the line edit
        form.fields[1]->setFocus();
        QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Paste));
        plain.paste();

        // THEN the field has what the line edit has, and the others have nothing
        QCOMPARE(form.edit->text(), QStringLiteral(".%1..").arg(plain.text()));

        // and copying takes the selection
        form.fields[1]->setText(QStringLiteral("123"));
        form.fields[1]->setSelection(0, 2);
        QTest::keySequence(form.fields[1], QKeySequence(QKeySequence::Copy));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("12"));
    }
}

void tst_IPLineEditAnyAddress::withoutAnyAddressTheContextMenuIsTheFields()
{
    AddressForm form;
    QVERIFY(form.isReady());
    const QPointer<QMenu> menu = openContextMenu(form.fields[2]);
    QVERIFY(menu);

    const std::unique_ptr<QMenu> standard(form.fields[2]->createStandardContextMenu());
    QCOMPARE(menu->actions().size(), standard->actions().size());

    menu->close();
    QTRY_VERIFY(menu.isNull());
}

QTEST_MAIN(tst_IPLineEditAnyAddress)

#include "tst_iplineedit_anyaddress.moc"
