// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/addressform.h"
#include "support/functionguard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSet>
#include <QTest>
#include <QVector>
#include <optional>
#include <tarnwidgets/iplineedit.h>

using namespace Tarn::Test;
using Tarn::Widgets::IPLineEdit;

namespace {

/* An editor on the screen, in a window that has the keyboard. */
struct Editor
{
    Editor()
        : fields(fieldsOf(edit))
    {
        edit.setUpdatesEnabled(false); // nothing here is about paint, and it takes most of the time
        edit.show();
        QApplication::setActiveWindow(&edit);
    }

    bool isReady() const
    {
        return fields.size() == FieldCount && edit.isActiveWindow();
    }

    /*! Puts these texts into the fields as a program would, without a rule in the way. */
    void fill(const QStringList &texts)
    {
        for (int i = 0; i < FieldCount; ++i)
            fields[i]->setText(texts.value(i));
    }

    void enter(int index, int cursorPosition = -1)
    {
        fields[index]->setFocus();
        fields[index]->deselect();
        fields[index]->setCursorPosition(cursorPosition < 0 ? fields[index]->text().size() : cursorPosition);
    }

    int focusIndex() const
    {
        return edit.getIndex(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    }

    QStringList texts() const
    {
        QStringList texts;
        for (const QLineEdit *field : fields)
            texts.append(field->text());
        return texts;
    }

    bool isAllSelected(int index) const
    {
        return fields[index]->hasSelectedText() && fields[index]->selectedText() == fields[index]->text();
    }

    IPLineEdit edit;
    QVector<QLineEdit *> fields;
};

/* To whichever widget has the focus, as a keyboard would. */
void press(int key)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
}

void type(const QString &digits)
{
    for (const QChar digit : digits)
        QTest::keyClick(QApplication::focusWidget(), digit.toLatin1());
}

// Keeps the reasons for which the widgets get the focus that it is installed on.
class FocusWatch : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons.append(static_cast<QFocusEvent *>(event)->reason());
        return false;
    }

    QVector<Qt::FocusReason> reasons;
};

/*
 * What the editor is to do with digits typed one after another behind the cursor, told without regular
 * expressions: by the list of all numbers that a field takes.
 */
class Model
{
public:
    Model(const QStringList &texts, int focus, bool isRestricted)
        : texts(texts)
        , focus(focus)
        , m_isRestricted(isRestricted)
    {
    }

    void type(QChar digit)
    {
        QString &text = texts[focus];
        if (isAllSelected) {
            if (isBeginning(QString(digit), focus)) {
                text = digit;
                isAllSelected = false;
            }
        } else if (text.toInt() * 10 > 255) {
            if (focus + 1 == FieldCount)
                return; // no number of three digits begins with more than 25
            // Leaving a finished number normalises all four.
            if (isNumber(text, focus)) {
                for (QString &each : texts)
                    each = each.isEmpty() ? each : QString::number(each.toInt());
            }
            ++focus;
            isAllSelected = !texts[focus].isEmpty();
        } else {
            // Then a zero is put in whether or not it makes a number that is taken.
            const bool isInserted = digit == QLatin1Char('0') && text.size() == 2 && text.toInt() != 0;
            if (isInserted || isBeginning(text + digit, focus))
                text += digit;
        }
    }

    QStringList texts;
    int focus;
    bool isAllSelected = false;

private:
    static QSet<QString> numbers(bool isRestricted)
    {
        QSet<QString> all;
        for (int number = 100; number <= 255; ++number)
            all.insert(QString::number(number));
        if (isRestricted) {
            for (int number = 10; number <= 19; ++number)
                all.insert(QString::number(number));
        } else {
            for (int number = 0; number <= 99; ++number) {
                all.insert(QString::number(number));
                all.insert(QString::number(number).rightJustified(2, QLatin1Char('0')));
            }
        }
        return all;
    }

    static QSet<QString> beginnings(bool isRestricted)
    {
        QSet<QString> all;
        const QSet<QString> whole = numbers(isRestricted);
        for (const QString &number : whole) {
            for (int length = 1; length <= number.size(); ++length)
                all.insert(number.left(length));
        }
        return all;
    }

    bool isNumber(const QString &text, int index) const
    {
        static const QSet<QString> restricted = numbers(true);
        static const QSet<QString> unrestricted = numbers(false);
        return (m_isRestricted && index == 0 ? restricted : unrestricted).contains(text);
    }

    bool isBeginning(const QString &text, int index) const
    {
        static const QSet<QString> restricted = beginnings(true);
        static const QSet<QString> unrestricted = beginnings(false);
        return (m_isRestricted && index == 0 ? restricted : unrestricted).contains(text);
    }

    bool m_isRestricted;
};

} // namespace

class tst_IPLineEditKeys : public QObject
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

    // Digits
    void threeDigitsDoWhatTheModelDoes_data();
    void threeDigitsDoWhatTheModelDoes();
    void twelveDigitsDoWhatTheModelDoes_data();
    void twelveDigitsDoWhatTheModelDoes();
    void firstNumberBeginsWithOneOrTwo_data();
    void firstNumberBeginsWithOneOrTwo();
    void fewFirstNumbersAreAcceptable();
    void otherNumbersGoUpTo255_data();
    void otherNumbersGoUpTo255();
    void digitWithoutRoomSelectsTheNextNumber_data();
    void digitWithoutRoomSelectsTheNextNumber();
    void digitThatMovesOnIsNotTypedIntoTheNextNumber();
    void digitThatMovesOnIsTypedWhereTheValidatorTakesIt();
    void digitWithoutRoomStaysInTheLastField();
    void zeroIsInsertedWithoutAskingTheValidator_data();
    void zeroIsInsertedWithoutAskingTheValidator();
    void insertedZeroIsAnEdit();
    void readOnlyFieldGetsNoZero();
    void digitReplacesASelectionAsTheValidatorSays_data();
    void digitReplacesASelectionAsTheValidatorSays();
    void fieldLongerThanThreeNeverMovesOn();
    void keypadDigitsAreDigits();
    void digitsOfShortcutsAreNotTyped_data();
    void digitsOfShortcutsAreNotTyped();

    // Other keys
    void keysLeadFromFieldToField_data();
    void keysLeadFromFieldToField();
    void keysLeadOutOfAnEmptyField_data();
    void keysLeadOutOfAnEmptyField();
    void modifiersDoNotMatterToKeysThatLead_data();
    void modifiersDoNotMatterToKeysThatLead();
    void focusThatAKeyMovesHasTheReasonOther_data();
    void focusThatAKeyMovesHasTheReasonOther();
    void fullStopIsNotTyped_data();
    void fullStopIsNotTyped();
    void backspaceAtTheStartDeletesNothing();
    void backspaceInsideANumberDeletes();
    void otherKeysAreLeftToTheField_data();
    void otherKeysAreLeftToTheField();
    void leavingByAKeyNormalisesFirst();

    // What else is filtered
    void keysOfOtherWidgetsPass();
    void mousePressAndFocusInAreMarkedIgnored();
    void otherEventsPassUnmarked();
    void mousePressReachesTheEditorToo();
    void typingGoesOnAfterRedoing_data();
    void typingGoesOnAfterRedoing();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_IPLineEditKeys::threeDigitsDoWhatTheModelDoes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("anyAddress");
    QTest::addColumn<int>("movingOn"); // sequences from 260 to 999 fill the number with two digits
    QTest::newRow("in the first field") << 0 << false << 0;
    QTest::newRow("in the second field") << 1 << false << 740;
    QTest::newRow("in the first field, any address") << 0 << true << 740;
}

void tst_IPLineEditKeys::threeDigitsDoWhatTheModelDoes()
{
    QFETCH(int, index);
    QFETCH(bool, anyAddress);
    QFETCH(int, movingOn);
    Editor editor;
    editor.edit.setAcceptsAnyAddress(anyAddress);
    QVERIFY(editor.isReady());
    int moved = 0;

    for (int number = 0; number < 1000; ++number) {
        const QString digits = QString::number(number).rightJustified(3, QLatin1Char('0'));

        // GIVEN an empty field among full ones, with the cursor in it
        QStringList texts(
            {QStringLiteral("77"), QStringLiteral("88"), QStringLiteral("99"), QStringLiteral("66")});
        texts[index].clear();
        editor.fill(texts);
        editor.enter(index);
        Model model(texts, index, !anyAddress);

        for (int i = 0; i < digits.size(); ++i) {
            // WHEN a digit is typed
            type(digits.at(i));
            model.type(digits.at(i));

            // THEN texts, focus and selection are those of the model
            const QString context = QStringLiteral("%1, after %2 digits").arg(digits).arg(i + 1);
            QVERIFY2(editor.texts() == model.texts,
                     qPrintable(context + editor.texts().join(QLatin1Char('.'))));
            QVERIFY2(editor.focusIndex() == model.focus, qPrintable(context));
            QVERIFY2(editor.isAllSelected(model.focus) == model.isAllSelected, qPrintable(context));
        }
        moved += int(editor.focusIndex() != index);
    }
    QCOMPARE(moved, movingOn);
}

void tst_IPLineEditKeys::twelveDigitsDoWhatTheModelDoes_data()
{
    QTest::addColumn<bool>("anyAddress");
    QTest::newRow("first number restricted") << false;
    QTest::newRow("any address") << true;
}

void tst_IPLineEditKeys::twelveDigitsDoWhatTheModelDoes()
{
    QFETCH(bool, anyAddress);
    Editor editor;
    editor.edit.setAcceptsAnyAddress(anyAddress);
    QVERIFY(editor.isReady());
    quint32 random = 20260;
    QSet<int> ends;

    for (int round = 0; round < 100; ++round) {
        // GIVEN an empty editor, with the cursor in its first field
        editor.edit.clear();
        editor.enter(0);
        Model model(editor.texts(), 0, !anyAddress);

        // WHEN twelve digits are typed, most of them small, as in addresses
        QString digits;
        for (int i = 0; i < 12; ++i) {
            random = random * 1664525u + 1013904223u;
            digits += QChar(ushort('0' + (random >> 16) % (i % 3 == 0 ? 3 : 10)));
        }
        type(digits);
        for (const QChar digit : qAsConst(digits))
            model.type(digit);

        // THEN they are where the model has them
        QVERIFY2(editor.texts() == model.texts, qPrintable(digits + editor.texts().join(QLatin1Char('.'))));
        QCOMPARE(editor.focusIndex(), model.focus);
        ends.insert(model.focus);
    }
    QVERIFY(ends.contains(3)); // the way through all fields was among them
}

void tst_IPLineEditKeys::firstNumberBeginsWithOneOrTwo_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << "0"
                          << "";
    QTest::newRow("one") << "1"
                         << "1";
    QTest::newRow("two") << "2"
                         << "2";
    for (char digit = '3'; digit <= '9'; ++digit)
        QTest::addRow("%c", digit) << QString(QLatin1Char(digit)) << "";
    QTest::newRow("two and a six") << "26"
                                   << "2";
    QTest::newRow("the greatest") << "255"
                                  << "255";
    QTest::newRow("too great") << "256"
                               << "25";
}

void tst_IPLineEditKeys::firstNumberBeginsWithOneOrTwo()
{
    QFETCH(QString, digits);
    QFETCH(QString, expected);
    Editor editor;
    QVERIFY(editor.isReady());

    editor.enter(0);
    type(digits);

    QCOMPARE(editor.fields[0]->text(), expected);
}

void tst_IPLineEditKeys::fewFirstNumbersAreAcceptable()
{
    const IPLineEdit edit;
    QLineEdit *first = fieldsOf(edit).constFirst();
    for (int number = 0; number <= 999; ++number) {
        first->setText(QString::number(number));
        const bool isAcceptable = (number >= 10 && number <= 19) || (number >= 100 && number <= 255);
        QVERIFY2(first->hasAcceptableInput() == isAcceptable, qPrintable(first->text()));
    }
}

void tst_IPLineEditKeys::otherNumbersGoUpTo255_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zero") << "0"
                          << "0";
    QTest::newRow("nine") << "9"
                          << "9";
    QTest::newRow("two zeros") << "00"
                               << "00";
    QTest::newRow("three zeros") << "000"
                                 << "00";
    QTest::newRow("249") << "249"
                         << "249";
    QTest::newRow("255") << "255"
                         << "255";
    QTest::newRow("256") << "256"
                         << "25";
    QTest::newRow("199") << "199"
                         << "199";
    QTest::newRow("300") << "300"
                         << "30";
}

void tst_IPLineEditKeys::otherNumbersGoUpTo255()
{
    QFETCH(QString, digits);
    QFETCH(QString, expected);
    Editor editor;
    QVERIFY(editor.isReady());

    for (int index = 1; index < FieldCount; ++index) {
        editor.edit.clear();
        editor.enter(index);
        type(digits);
        QCOMPARE(editor.fields[index]->text(), expected);
    }
}

void tst_IPLineEditKeys::digitWithoutRoomSelectsTheNextNumber_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("moves");
    for (int index = 0; index < FieldCount; ++index) {
        const bool hasNext = index + 1 < FieldCount;
        QTest::addRow("25 in field %d", index) << index << "25" << false;
        if (index > 0) {
            QTest::addRow("26 in field %d", index) << index << "26" << hasNext;
            QTest::addRow("99 in field %d", index) << index << "99" << hasNext;
        }
        QTest::addRow("192 in field %d", index) << index << "192" << hasNext;
        QTest::addRow("025 in field %d", index) << index << "025" << false;
    }
}

void tst_IPLineEditKeys::digitWithoutRoomSelectsTheNextNumber()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(bool, moves);

    for (char digit = '0'; digit <= '9'; ++digit) {
        // GIVEN a number with the cursor behind it, and others
        Editor editor;
        QVERIFY(editor.isReady());
        editor.fill({QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14")});
        editor.fields[index]->setText(text);
        editor.enter(index);
        QVERIFY(!editor.fields[index]->hasSelectedText());

        // WHEN another digit is typed
        type(QString(QLatin1Char(digit)));

        // THEN the next number is selected if there could not be another digit; in any case the number is in
        // order
        QCOMPARE(editor.focusIndex(), moves ? index + 1 : index);
        QCOMPARE(editor.isAllSelected(editor.focusIndex()), moves);
        if (moves)
            QCOMPARE(editor.fields[index]->text(), text);
    }
}

void tst_IPLineEditKeys::digitThatMovesOnIsNotTypedIntoTheNextNumber()
{
    // GIVEN a full number before another one
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("192"), QStringLiteral("16")});
    editor.enter(0);

    // WHEN digits go on
    type(QStringLiteral("1"));
    QCOMPARE(editor.focusIndex(), 1);

    // THEN the first of them is lost, and the second begins the next number
    QCOMPARE(editor.texts(),
             QStringList({QStringLiteral("192"), QStringLiteral("16"), QString(), QString()}));
    type(QStringLiteral("6"));
    QCOMPARE(editor.texts(), QStringList({QStringLiteral("192"), QStringLiteral("6"), QString(), QString()}));
}

void tst_IPLineEditKeys::digitThatMovesOnIsTypedWhereTheValidatorTakesIt()
{
    // GIVEN the cursor in front of a number that has no room behind it, but in front
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QString(), QStringLiteral("26")});
    editor.enter(1, 0);

    // WHEN a digit is typed there that makes a number of both
    type(QStringLiteral("1"));

    // THEN the focus has gone on, and the digit is in the number all the same
    QCOMPARE(editor.focusIndex(), 2);
    QCOMPARE(editor.fields[1]->text(), QStringLiteral("126"));
}

void tst_IPLineEditKeys::digitWithoutRoomStaysInTheLastField()
{
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QString(), QString(), QString(), QStringLiteral("26")});
    editor.enter(3);

    type(QStringLiteral("5"));

    QCOMPARE(editor.focusIndex(), 3);
    QCOMPARE(editor.fields[3]->text(), QStringLiteral("26"));
}

void tst_IPLineEditKeys::zeroIsInsertedWithoutAskingTheValidator_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("expected");
    QTest::newRow("behind 10") << "10" << 2 << "100";
    QTest::newRow("behind 25") << "25" << 2 << "250";
    QTest::newRow("behind 01") << "01" << 2 << "010";
    QTest::newRow("in front of 10") << "10" << 0 << "010";
    QTest::newRow("inside 25") << "25" << 1 << "205";
    QTest::newRow("not behind 00") << "00" << 2 << "00";
    QTest::newRow("not behind 26") << "26" << 2 << "26";
}

void tst_IPLineEditKeys::zeroIsInsertedWithoutAskingTheValidator()
{
    QFETCH(QString, text);
    QFETCH(int, cursor);
    QFETCH(QString, expected);

    // GIVEN a number of two digits
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fields[3]->setText(text);
    editor.enter(3, cursor);

    // WHEN a zero is typed at the cursor
    press(Qt::Key_0);

    // THEN it is there, and the cursor behind it
    QCOMPARE(editor.fields[3]->text(), expected);
    QCOMPARE(editor.fields[3]->cursorPosition(), cursor + int(expected != text));
}

void tst_IPLineEditKeys::insertedZeroIsAnEdit()
{
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("10"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1")});
    editor.enter(0);
    QVERIFY(!editor.fields[0]->isModified());
    bool wasModifiedInSlot = false;
    connect(&editor.edit, &IPLineEdit::addressChanged, this,
            [&] { wasModifiedInSlot = editor.fields[0]->isModified(); });

    press(Qt::Key_0);

    QVERIFY(wasModifiedInSlot);
    QCOMPARE(editor.edit.text(), QStringLiteral("100.1.1.1"));
    QVERIFY(editor.edit.isModified());
}

void tst_IPLineEditKeys::readOnlyFieldGetsNoZero()
{
    Editor editor;
    QVERIFY(editor.isReady());
    editor.edit.setProperty("readOnly", true);
    editor.fields[1]->setText(QStringLiteral("10"));
    editor.enter(1);

    press(Qt::Key_0);

    QCOMPARE(editor.fields[1]->text(), QStringLiteral("10"));
    QVERIFY(!editor.fields[1]->isModified());
}

void tst_IPLineEditKeys::digitReplacesASelectionAsTheValidatorSays_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("digit");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a full number gives way") << 1 << "192" << 0 << 3 << "7"
                                             << "7";
    QTest::newRow("a full first number gives way to 2") << 0 << "192" << 0 << 3 << "2"
                                                        << "2";
    QTest::newRow("a full first number does not give way to 7") << 0 << "192" << 0 << 3 << "7"
                                                                << "192";
    QTest::newRow("the last digit gives way") << 1 << "192" << 2 << 1 << "9"
                                              << "199";
    QTest::newRow("nothing above 255") << 1 << "192" << 0 << 1 << "3"
                                       << "192";
    QTest::newRow("no zero is inserted") << 1 << "10" << 0 << 1 << "0"
                                         << "00";
}

void tst_IPLineEditKeys::digitReplacesASelectionAsTheValidatorSays()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, digit);
    QFETCH(QString, expected);

    // GIVEN a number of which a part is selected
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fields[index]->setText(text);
    editor.enter(index);
    editor.fields[index]->setSelection(start, length);
    QCOMPARE(editor.fields[index]->selectedText().size(), length);

    // WHEN a digit is typed
    type(digit);

    // THEN it replaces that part if the result can become a number; the focus stays in any case
    QCOMPARE(editor.fields[index]->text(), expected);
    QCOMPARE(editor.focusIndex(), index);
}

void tst_IPLineEditKeys::fieldLongerThanThreeNeverMovesOn()
{
    // GIVEN a field that an application lets take more than three characters
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fields[1]->setMaxLength(5);
    for (const auto &[text, moves] :
         {std::pair(QStringLiteral("1000"), false), std::pair(QStringLiteral("100"), true)}) {
        editor.fields[1]->setText(text);
        editor.enter(1);

        // WHEN a digit is typed behind four, and behind three
        press(Qt::Key_1);

        // THEN only the three have the focus go on
        QCOMPARE(editor.focusIndex(), moves ? 2 : 1);
    }
}

void tst_IPLineEditKeys::keypadDigitsAreDigits()
{
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QString(), QStringLiteral("77")});
    editor.enter(1);

    QTest::keyClick(editor.fields[1], Qt::Key_5, Qt::KeypadModifier);

    QCOMPARE(editor.focusIndex(), 2);
    QCOMPARE(editor.fields[1]->text(), QStringLiteral("77"));
}

void tst_IPLineEditKeys::digitsOfShortcutsAreNotTyped_data()
{
    QTest::addColumn<int>("modifier");
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
    QTest::newRow("Alt") << int(Qt::AltModifier);
    QTest::newRow("Meta") << int(Qt::MetaModifier);
}

void tst_IPLineEditKeys::digitsOfShortcutsAreNotTyped()
{
    QFETCH(int, modifier);
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("11"), QStringLiteral("192"), QStringLiteral("10"), QStringLiteral("14")});

    // Typed, it would move on.
    editor.enter(1);
    QTest::keyClick(editor.fields[1], Qt::Key_1, Qt::KeyboardModifier(modifier));
    QCOMPARE(editor.focusIndex(), 1);

    // Typed, it would make 010.
    editor.enter(2, 0);
    QTest::keyClick(editor.fields[2], Qt::Key_0, Qt::KeyboardModifier(modifier));
    QCOMPARE(editor.edit.text(), QStringLiteral("11.192.10.14"));
}

void tst_IPLineEditKeys::keysLeadFromFieldToField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("newIndex");
    QTest::addColumn<int>("newCursor"); // -1: all is selected
    const struct
    {
        const char *name;
        Qt::Key key;
    } keys[] = {{"Left", Qt::Key_Left}, {"Backspace", Qt::Key_Backspace}};
    for (const auto &[name, key] : keys) {
        QTest::addRow("%s at the start of field 0", name) << int(key) << 0 << 0 << 0 << 0;
        for (int index = 1; index < FieldCount; ++index) {
            QTest::addRow("%s at the start of field %d", name, index)
                << int(key) << index << 0 << index - 1 << 2;
            QTest::addRow("%s inside field %d", name, index) << int(key) << index << 1 << index << 0;
            QTest::addRow("%s at the end of field %d", name, index) << int(key) << index << 2 << index << 1;
        }
    }
    for (int index = 0; index < FieldCount - 1; ++index) {
        QTest::addRow("Right at the end of field %d", index)
            << int(Qt::Key_Right) << index << 2 << index + 1 << 0;
        QTest::addRow("Right inside field %d", index) << int(Qt::Key_Right) << index << 1 << index << 2;
        QTest::addRow("Right at the start of field %d", index)
            << int(Qt::Key_Right) << index << 0 << index << 1;
        QTest::addRow("full stop at the end of field %d", index)
            << int(Qt::Key_Period) << index << 2 << index + 1 << -1;
        QTest::addRow("full stop at the start of field %d", index)
            << int(Qt::Key_Period) << index << 0 << index + 1 << -1;
    }
    QTest::newRow("Right at the end of field 3") << int(Qt::Key_Right) << 3 << 2 << 3 << 2;
    QTest::newRow("full stop in field 3") << int(Qt::Key_Period) << 3 << 1 << 3 << 1;
}

void tst_IPLineEditKeys::keysLeadFromFieldToField()
{
    QFETCH(int, key);
    QFETCH(int, index);
    QFETCH(int, cursor);
    QFETCH(int, newIndex);
    QFETCH(int, newCursor);

    // GIVEN four numbers, and the cursor in one of them
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14")});
    for (QLineEdit *field : qAsConst(editor.fields))
        field->setCursorPosition(1);
    editor.enter(index, cursor);
    QCOMPARE(editor.focusIndex(), index);

    // WHEN the key is pressed
    press(key);

    // THEN the cursor is where the key leads
    QCOMPARE(editor.focusIndex(), newIndex);
    QCOMPARE(editor.isAllSelected(newIndex), newCursor < 0);
    if (newCursor >= 0)
        QCOMPARE(editor.fields[newIndex]->cursorPosition(), newCursor);
}

void tst_IPLineEditKeys::keysLeadOutOfAnEmptyField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("newIndex"); // from field 2
    QTest::newRow("Left") << int(Qt::Key_Left) << 1;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 1;
    QTest::newRow("Right") << int(Qt::Key_Right) << 3;
    QTest::newRow("full stop") << int(Qt::Key_Period) << 3;
}

void tst_IPLineEditKeys::keysLeadOutOfAnEmptyField()
{
    QFETCH(int, key);
    QFETCH(int, newIndex);
    Editor editor;
    QVERIFY(editor.isReady());
    editor.enter(2);

    press(key);

    QCOMPARE(editor.focusIndex(), newIndex);
}

void tst_IPLineEditKeys::modifiersDoNotMatterToKeysThatLead_data()
{
    QTest::addColumn<int>("modifier");
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
    QTest::newRow("Shift") << int(Qt::ShiftModifier);
    QTest::newRow("keypad") << int(Qt::KeypadModifier);
}

void tst_IPLineEditKeys::modifiersDoNotMatterToKeysThatLead()
{
    QFETCH(int, modifier);
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14")});

    for (const auto &[key, newIndex] : {std::pair(Qt::Key_Left, 1), std::pair(Qt::Key_Backspace, 1),
                                        std::pair(Qt::Key_Right, 3), std::pair(Qt::Key_Period, 3)}) {
        editor.enter(2, newIndex == 1 ? 0 : 2);
        QTest::keyClick(editor.fields[2], key, Qt::KeyboardModifier(modifier));
        QCOMPARE(editor.focusIndex(), newIndex);
    }
}

void tst_IPLineEditKeys::focusThatAKeyMovesHasTheReasonOther_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("cursor");
    QTest::newRow("Left") << int(Qt::Key_Left) << 0;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 0;
    QTest::newRow("Right") << int(Qt::Key_Right) << 2;
    QTest::newRow("full stop") << int(Qt::Key_Period) << 2;
    QTest::newRow("digit") << int(Qt::Key_1) << 2;
}

void tst_IPLineEditKeys::focusThatAKeyMovesHasTheReasonOther()
{
    QFETCH(int, key);
    QFETCH(int, cursor);

    // GIVEN a number that has no room, with the cursor in it
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fill({QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("77"), QStringLiteral("14")});
    editor.enter(2, cursor);
    FocusWatch watch;
    for (QLineEdit *field : qAsConst(editor.fields))
        field->installEventFilter(&watch);

    // WHEN a key has the focus move on
    press(key);

    // THEN it has not moved as by Tab, of which an application may make something else
    QCOMPARE(watch.reasons, QVector<Qt::FocusReason>({Qt::OtherFocusReason}));
}

void tst_IPLineEditKeys::fullStopIsNotTyped_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < FieldCount; ++index)
        QTest::addRow("in field %d", index) << index;
}

void tst_IPLineEditKeys::fullStopIsNotTyped()
{
    QFETCH(int, index);
    Editor editor;
    QVERIFY(editor.isReady());
    const QStringList texts({QStringLiteral("11"), QString(), QStringLiteral("13"), QStringLiteral("14")});
    editor.fill(texts);
    editor.enter(index);

    QTest::keyClick(editor.fields[index], '.');

    QCOMPARE(editor.texts(), texts);
}

void tst_IPLineEditKeys::backspaceAtTheStartDeletesNothing()
{
    Editor editor;
    QVERIFY(editor.isReady());
    const QStringList texts(
        {QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14")});
    editor.fill(texts);
    editor.enter(2, 0);

    press(Qt::Key_Backspace);

    QCOMPARE(editor.focusIndex(), 1);
    QCOMPARE(editor.texts(), texts);

    // A second one is for the field that has the focus now.
    press(Qt::Key_Backspace);
    QCOMPARE(editor.fields[1]->text(), QStringLiteral("1"));
}

void tst_IPLineEditKeys::backspaceInsideANumberDeletes()
{
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fields[2]->setText(QStringLiteral("13"));
    editor.enter(2);

    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);

    QCOMPARE(editor.focusIndex(), 2);
    QVERIFY(editor.fields[2]->text().isEmpty());
}

void tst_IPLineEditKeys::otherKeysAreLeftToTheField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("cursor");
    QTest::newRow("Delete") << int(Qt::Key_Delete) << "14" << 1;
    QTest::newRow("Home") << int(Qt::Key_Home) << "124" << 0;
    QTest::newRow("End") << int(Qt::Key_End) << "124" << 3;
    QTest::newRow("Up") << int(Qt::Key_Up) << "124" << 1;
    QTest::newRow("a letter") << int(Qt::Key_A) << "124" << 1;
    QTest::newRow("comma") << int(Qt::Key_Comma) << "124" << 1;
    QTest::newRow("space") << int(Qt::Key_Space) << "124" << 1;
    QTest::newRow("minus") << int(Qt::Key_Minus) << "124" << 1;
}

void tst_IPLineEditKeys::otherKeysAreLeftToTheField()
{
    QFETCH(int, key);
    QFETCH(QString, expected);
    QFETCH(int, cursor);
    Editor editor;
    QVERIFY(editor.isReady());
    editor.fields[1]->setText(QStringLiteral("124"));
    editor.enter(1, 1);

    press(key);

    QCOMPARE(editor.focusIndex(), 1);
    QCOMPARE(editor.fields[1]->text(), expected);
    QCOMPARE(editor.fields[1]->cursorPosition(), cursor);
}

void tst_IPLineEditKeys::leavingByAKeyNormalisesFirst()
{
    // GIVEN a number with a leading zero before another one
    Editor editor;
    QVERIFY(editor.isReady());
    editor.enter(1);
    editor.fill({QStringLiteral("11"), QStringLiteral("07"), QStringLiteral("08"), QStringLiteral("14")});
    QCOMPARE(editor.focusIndex(), 1);

    // WHEN the full stop leads on
    press(Qt::Key_Period);

    // THEN both are without it, and what was entered is selected to its end
    QCOMPARE(editor.fields[1]->text(), QStringLiteral("7"));
    QCOMPARE(editor.fields[2]->text(), QStringLiteral("8"));
    QVERIFY(editor.isAllSelected(2));
}

void tst_IPLineEditKeys::keysOfOtherWidgetsPass()
{
    // GIVEN a field of the application's own that the editor is asked to watch
    Editor editor;
    QVERIFY(editor.isReady());
    editor.enter(1);
    QLineEdit other(QStringLiteral("77"), &editor.edit);
    other.installEventFilter(&editor.edit);

    // WHEN keys are sent to it
    QTest::keyClick(&other, Qt::Key_Period);
    QTest::keyClick(&other, Qt::Key_5);

    // THEN it has them, and the editor's focus stays
    QCOMPARE(other.text(), QStringLiteral("77.5"));
    QCOMPARE(editor.focusIndex(), 1);
}

void tst_IPLineEditKeys::mousePressAndFocusInAreMarkedIgnored()
{
    Editor editor;
    QVERIFY(editor.isReady());
    QMouseEvent mousePress(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                           Qt::NoModifier);
    QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);

    QLineEdit other; // that the editor is asked to watch, too
    const QVector<QLineEdit *> watched = editor.fields + QVector<QLineEdit *>({&other});

    for (QEvent *event : {static_cast<QEvent *>(&mousePress), static_cast<QEvent *>(&focusIn)}) {
        for (QLineEdit *field : watched) {
            event->accept();
            QVERIFY(!editor.edit.eventFilter(field, event));
            QVERIFY(!event->isAccepted());
        }
    }
}

void tst_IPLineEditKeys::otherEventsPassUnmarked()
{
    Editor editor;
    QVERIFY(editor.isReady());
    QMouseEvent mouseRelease(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                             Qt::NoModifier);
    QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
    QKeyEvent keyRelease(QEvent::KeyRelease, Qt::Key_Period, Qt::NoModifier);
    QEvent enter(QEvent::Enter);

    for (QEvent *event : {static_cast<QEvent *>(&mouseRelease), static_cast<QEvent *>(&focusOut),
                          static_cast<QEvent *>(&keyRelease), &enter}) {
        event->accept();
        QVERIFY(!editor.edit.eventFilter(editor.fields[1], event));
        QVERIFY(event->isAccepted());
    }
    QCOMPARE(editor.edit.text(), QStringLiteral("..."));
}

void tst_IPLineEditKeys::mousePressReachesTheEditorToo()
{
    class Recorder : public IPLineEdit
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *event) override
        {
            ++presses;
            IPLineEdit::mousePressEvent(event);
        }
    };

    // GIVEN an editor on the screen
    Recorder edit;
    edit.show();
    QApplication::setActiveWindow(&edit);
    QLineEdit *field = fieldsOf(edit).at(2);

    // WHEN a field is clicked
    QTest::mouseClick(field, Qt::LeftButton);

    // THEN the press has come to both, and the field has the focus
    QCOMPARE(edit.presses, 1);
    QCOMPARE(QApplication::focusWidget(), field);
}

// QLineEdit replaces what nobody sees selected then, or types behind the end.
void tst_IPLineEditKeys::typingGoesOnAfterRedoing_data()
{
    QTest::addColumn<QString>("steps"); // s selects to the start, c clears, u undoes, r does again
    QTest::addColumn<QString>("redone");
    QTest::addColumn<QChar>("typed");
    QTest::addColumn<QString>("left");

    const auto row = [](const char *name, const char *steps, const char *redone, char typed,
                        const char *left) {
        QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(redone)
                            << QChar::fromLatin1(typed) << QString::fromLatin1(left);
    };
    row("a digit without room", "0s175ur", "175", '4', "175");
    row("a character that is none", "0s175ur", "175", 'x', "175");
    row("a digit in an empty field", "5c2uur", "", '1', "1");
}

void tst_IPLineEditKeys::typingGoesOnAfterRedoing()
{
    QFETCH(QString, steps);
    QFETCH(QString, redone);
    QFETCH(QChar, typed);
    QFETCH(QString, left);

    // GIVEN a change that was undone and done again
    Editor editor;
    QVERIFY(editor.isReady());
    editor.enter(3);
    QLineEdit *field = editor.fields[3];
    for (const QChar step : qAsConst(steps)) {
        switch (step.toLatin1()) {
        case 's':
            field->home(true);
            break;
        case 'c':
            field->clear();
            break;
        case 'u':
            field->undo();
            break;
        case 'r':
            field->redo();
            break;
        default:
            type(step);
        }
    }
    QCOMPARE(field->text(), redone);

    QTest::keyClick(field, typed.toLatin1());

    QCOMPARE(field->text(), left);
}

QTEST_MAIN(tst_IPLineEditKeys)

#include "tst_iplineedit_keys.moc"
