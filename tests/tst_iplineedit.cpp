// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/addressform.h"
#include "support/functionguard.h"

#include <QApplication>
#include <QClipboard>
#include <QFrame>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QRegExpValidator>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <memory>
#include <optional>
#include <tarnwidgets/iplineedit.h>

using namespace Tarn::Test;
using Tarn::Widgets::IPLineEdit;

namespace {

QStringList textsOf(const IPLineEdit &edit)
{
    QStringList texts;
    const QVector<QLineEdit *> fields = fieldsOf(edit);
    for (const QLineEdit *field : fields)
        texts.append(field->text());
    return texts;
}

/* Whether \a text is an address as isTextValid() sees it, told without regular expressions. */
class LooseAddress
{
public:
    static bool matches(const QString &text)
    {
        return matchesFrom(text, 0, 0);
    }

private:
    static bool isDigit(const QString &text, int i, char from = '0', char to = '9')
    {
        return text.at(i) >= QLatin1Char(from) && text.at(i) <= QLatin1Char(to);
    }

    static bool isNumber(const QString &text, bool isFirst)
    {
        for (int i = 0; i < text.size(); ++i) {
            if (!isDigit(text, i))
                return false;
        }
        switch (text.size()) {
        case 1:
        case 2:
            return !isFirst || isDigit(text, 0, '1', '2');
        case 3:
            return isDigit(text, 0, '1', '1') || (isFirst && isDigit(text, 0, '2', '2'))
                || (isDigit(text, 0, '2', '2') && text.toInt() <= 255);
        default:
            return false;
        }
    }

    static bool matchesFrom(const QString &text, int start, int index)
    {
        for (int length = 1; length <= 3 && start + length <= text.size(); ++length) {
            if (!isNumber(text.mid(start, length), index == 0))
                continue;
            const int end = start + length;
            if (index == 3 ? end == text.size() : end < text.size() && matchesFrom(text, end + 1, index + 1))
                return true;
        }
        return false;
    }
};

QImage rendered(QWidget *widget, QWidget::RenderFlags flags)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), flags);
    return image;
}

QImage transparent(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

class tst_IPLineEdit : public QObject
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

    // What it is made of
    void editorIsAReadOnlyLineEdit();
    void fieldsAreSetUpForNumbers();
    void dotsStandBetweenTheFields();
    void dotsLieAtTheBottom();
    void addressReadsFromLeftToRightInEveryLanguage();
    void editorItselfPaintsNothing();
    void dotsShowByTheirSelector();

    // Setting and asking
    void addressFillsTheFields_data();
    void addressFillsTheFields();
    void whatIsNoAddressIsRefusedWithAWarning_data();
    void whatIsNoAddressIsRefusedWithAWarning();
    void emptyTextIsIgnored();
    void textJoinsTheFieldsAsTyped();
    void clearEmptiesTheFields();
    void propertyGoesToTheFields();
    void propertySetIsAnsweredAsTheFieldsDo();
    void setIPFocusGoesToTheFirstField();
    void getIndexKnowsTheFourFieldsOnly();
    void tabStopsAtTheEditorAndAtEachField();

    // Modified
    void modifiedNeedsAnEditAndFourNumbers();
    void modifiedIsSaidOnce();
    void modifiedThatIsNotSaidIsKept();
    void settingATextIsNoEdit();

    // Normalising
    void normalisingTakesLeadingZerosAway_data();
    void normalisingTakesLeadingZerosAway();
    void normalisingKeepsTheModifiedFlags();
    void normalisingKeepsTheCursorAtItsDigit_data();
    void normalisingKeepsTheCursorAtItsDigit();
    void normalisingLeavesANormalNumberAlone();
    void leavingAFieldNormalisesAll();
    void leavingAnUnacceptableFieldNormalisesNothing();
    void returnKeyNormalises();
    void everyFieldThatIsFinishedNormalises_data();
    void everyFieldThatIsFinishedNormalises();

    // Validity
    void validTexts_data();
    void validTexts();
    void validityAgreesWithTheModel();

    // Beyond
    void changeIsAnnouncedOnce_data();
    void changeIsAnnouncedOnce();
    void acceptableInputNeedsFourAcceptableNumbers_data();
    void acceptableInputNeedsFourAcceptableNumbers();

    // The end
    void deletedWithTheFocusItGoesQuietly_data();
    void deletedWithTheFocusItGoesQuietly();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_IPLineEdit::editorIsAReadOnlyLineEdit()
{
    QWidget parent;
    const auto *edit = new IPLineEdit(&parent);

    QCOMPARE(edit->parentWidget(), &parent);
    QCOMPARE(edit->objectName(), QStringLiteral("ipLineEdit"));
    QVERIFY(edit->isReadOnly());
    QVERIFY(edit->dynamicPropertyNames().isEmpty());
    QCOMPARE(edit->metaObject()->className(), "Tarn::Widgets::IPLineEdit");
    QCOMPARE(edit->metaObject()->superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(edit->text(), QStringLiteral("..."));
    const int slot = edit->metaObject()->indexOfSlot("slot_fixInput()");
    QVERIFY(slot >= QLineEdit::staticMetaObject.methodCount());
    QCOMPARE(edit->metaObject()->method(slot).access(), QMetaMethod::Public);
    QVERIFY(edit->metaObject()->indexOfSignal("addressChanged(QString)") >= 0);
}

void tst_IPLineEdit::fieldsAreSetUpForNumbers()
{
    const IPLineEdit edit;
    const QVector<QLineEdit *> fields = fieldsOf(edit);
    QCOMPARE(fields.size(), FieldCount);

    for (const QLineEdit *field : fields) {
        QCOMPARE(field->metaObject(), &QLineEdit::staticMetaObject);
        QVERIFY(!field->testAttribute(Qt::WA_MacShowFocusRect));
        QVERIFY(!field->hasFrame());
        QCOMPARE(field->maxLength(), 3);
        QCOMPARE(field->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
        QCOMPARE(field->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
        QVERIFY(field->text().isEmpty());
        QVERIFY(!field->isReadOnly());

        const auto *validator = qobject_cast<const QRegExpValidator *>(field->validator());
        QVERIFY(validator);
        QCOMPARE(validator->parent(), &edit);
        QCOMPARE(validator->regExp(),
                 QRegExp(field == fields.first() ? QStringLiteral("(2[0-5]{2}|2[0-4][0-9]|1+[0-9]{1,2})")
                                                 : QStringLiteral("(2[0-5]{2}|2[0-4][0-9]|1?[0-9]{1,2})")));
    }
}

void tst_IPLineEdit::dotsStandBetweenTheFields()
{
    // GIVEN an editor
    const IPLineEdit edit;
    const QVector<QLineEdit *> fields = fieldsOf(edit);
    QCOMPARE(fields.size(), FieldCount);

    // THEN its row is fields and dots in turn, as close as four pixels
    const auto *row = qobject_cast<QHBoxLayout *>(edit.layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 4);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 2 * FieldCount - 1);
    for (int index = 0; index < FieldCount; ++index)
        QCOMPARE(row->itemAt(2 * index)->widget(), fields[index]);

    // and a dot is a frame without a frame below a stretch
    const QList<QFrame *> dots = edit.findChildren<QFrame *>(QStringLiteral("ipLineEditDot"));
    QCOMPARE(dots.size(), FieldCount - 1);
    for (int index = 0; index < dots.size(); ++index) {
        const auto *column = qobject_cast<QVBoxLayout *>(row->itemAt(2 * index + 1)->layout());
        QVERIFY(column);
        QCOMPARE(column->count(), 2);
        QVERIFY(column->itemAt(0)->spacerItem());
        QCOMPARE(column->itemAt(1)->widget(), dots[index]);
        QCOMPARE(dots[index]->metaObject(), &QFrame::staticMetaObject);
        QCOMPARE(dots[index]->frameShape(), QFrame::NoFrame);
        QCOMPARE(dots[index]->minimumSize(), QSize(2, 2));
        QCOMPARE(dots[index]->maximumSize(), QSize(2, 2));
        QCOMPARE(dots[index]->contentsMargins(), QMargins());
        QCOMPARE(dots[index]->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(dots[index]->dynamicPropertyNames(),
                 QList<QByteArray>({QByteArrayLiteral("ipLineEditDot")}));
        QCOMPARE(dots[index]->property("ipLineEditDot"), QVariant(true));
    }
}

void tst_IPLineEdit::dotsLieAtTheBottom()
{
    IPLineEdit edit;
    edit.resize(200, 40);
    edit.show();

    const QVector<QLineEdit *> fields = fieldsOf(edit);
    const QList<QFrame *> dots = edit.findChildren<QFrame *>(QStringLiteral("ipLineEditDot"));
    for (int index = 0; index < dots.size(); ++index) {
        const QRect dot = dots[index]->geometry();
        QCOMPARE(dot.bottom(), edit.rect().bottom());
        QCOMPARE(dot.left() - fields[index]->geometry().right() - 1, 4);
        QCOMPARE(fields[index + 1]->geometry().left() - dot.right() - 1, 4);
        QCOMPARE(fields[index]->height(), edit.height());
    }
}

void tst_IPLineEdit::addressReadsFromLeftToRightInEveryLanguage()
{
    // GIVEN an editor in a window whose language reads from right to left
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto *layout = new QVBoxLayout(&window);
    auto *edit = new IPLineEdit;
    layout->addWidget(edit);
    window.show();
    QApplication::setActiveWindow(&window);
    const QVector<QLineEdit *> fields = fieldsOf(*edit);
    QCOMPARE(fields.size(), FieldCount);

    // THEN its first number is the leftmost all the same
    for (int index = 1; index < FieldCount; ++index)
        QVERIFY(fields[index - 1]->geometry().right() < fields[index]->geometry().left());

    // and Right leads to the field at the right
    edit->setIPFocus();
    QTest::keyClick(fields[0], Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), fields[1]);
}

void tst_IPLineEdit::editorItselfPaintsNothing()
{
    // GIVEN an editor with a text, and a style sheet that would paint any other line edit
    IPLineEdit edit;
    edit.setStyleSheet(QStringLiteral("QLineEdit { background: red; border: 3px solid blue; }"));
    edit.resize(200, 40);
    edit.show();
    QVERIFY(rendered(&edit, QWidget::DrawChildren) != transparent(edit.size()));

    // THEN without its children there is nothing to see
    QCOMPARE(rendered(&edit, QWidget::RenderFlags()), transparent(edit.size()));
}

void tst_IPLineEdit::dotsShowByTheirSelector()
{
    // GIVEN a dot, invisible by itself
    IPLineEdit edit;
    edit.resize(200, 40);
    edit.show();
    QFrame *dot = edit.findChild<QFrame *>(QStringLiteral("ipLineEditDot"));
    QVERIFY(dot);
    QCOMPARE(rendered(dot, QWidget::RenderFlags()), transparent(dot->size()));

    // WHEN a rule names it
    edit.setStyleSheet(QStringLiteral("QFrame[ipLineEditDot=\"true\"] { background: #c02040; }"));

    // THEN it is painted
    QImage expected(dot->size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(QColor(0xc0, 0x20, 0x40));
    QCOMPARE(rendered(dot, QWidget::RenderFlags()), expected);
}

void tst_IPLineEdit::addressFillsTheFields_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("expected"); // the fields held 1.2.3.4 before
    QTest::newRow("of a private net") << "192.168.1.20"
                                      << "192.168.1.20";
    QTest::newRow("that cannot be typed") << "8.8.8.8"
                                          << "8.8.8.8";
    QTest::newRow("all zeros") << "0.0.0.0"
                               << "0.0.0.0";
    QTest::newRow("broadcast") << "255.255.255.255"
                               << "255.255.255.255";
    QTest::newRow("just below multicast") << "223.255.255.255"
                                          << "223.255.255.255";
    QTest::newRow("just above multicast") << "240.0.0.0"
                                          << "240.0.0.0";
    QTest::newRow("of two parts") << "10.1"
                                  << "10.1.3.4";
    QTest::newRow("of one part") << "7"
                                 << "7.2.3.4";
    QTest::newRow("with a blank in front") << " 192.168.1.20"
                                           << " 19.168.1.20";
    QTest::newRow("with a hexadecimal part") << "0x10.1.1.1"
                                             << "0x1.1.1.1";
    QTest::newRow("with an octal part") << "010.1.1.1"
                                        << "010.1.1.1";
    QTest::newRow("of one great number") << "3232235777"
                                         << "323.2.3.4";
    QTest::newRow("IPv6, as far as it goes") << "fe80::1"
                                             << "fe8.2.3.4";
    QTest::newRow("IPv6 with dots") << "::1.2.3.4"
                                    << "::1.2.3.4";
}

void tst_IPLineEdit::addressFillsTheFields()
{
    QFETCH(QString, address);
    QFETCH(QString, expected);
    IPLineEdit edit;
    edit.setText(QStringLiteral("1.2.3.4"));
    QCOMPARE(textsOf(edit).join(QLatin1Char('.')), QStringLiteral("1.2.3.4"));

    edit.setText(address);

    QCOMPARE(textsOf(edit).join(QLatin1Char('.')), expected);
    QCOMPARE(edit.text(), expected);
}

void tst_IPLineEdit::whatIsNoAddressIsRefusedWithAWarning_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << "abc";
    QTest::newRow("multicast") << "224.0.0.1";
    QTest::newRow("the last multicast address") << "239.255.255.255";
    QTest::newRow("IPv6 multicast") << "ff02::1";
    QTest::newRow("a number too great") << "1.2.3.256";
    QTest::newRow("five numbers") << "1.2.3.4.5";
    QTest::newRow("a blank") << " ";
    QTest::newRow("a dot too many") << "1.2.3.4.";
}

void tst_IPLineEdit::whatIsNoAddressIsRefusedWithAWarning()
{
    QFETCH(QString, text);
    IPLineEdit edit;
    edit.setText(QStringLiteral("192.168.1.20"));
    QSignalSpy changes(&edit, &IPLineEdit::addressChanged);

    m_guard->sentry().expect(QtWarningMsg, noAddressWarning());
    edit.setText(text);

    QVERIFY(m_guard->sentry().isSatisfied());
    QCOMPARE(edit.text(), QStringLiteral("192.168.1.20"));
    QCOMPARE(changes.count(), 0);
}

void tst_IPLineEdit::emptyTextIsIgnored()
{
    IPLineEdit edit;
    edit.setText(QStringLiteral("192.168.1.20"));

    edit.setText(QString());
    edit.setText(QLatin1String(""));

    QCOMPARE(edit.text(), QStringLiteral("192.168.1.20"));
}

void tst_IPLineEdit::textJoinsTheFieldsAsTyped()
{
    const IPLineEdit edit;
    const QVector<QLineEdit *> fields = fieldsOf(edit);
    fields[0]->setText(QStringLiteral("10"));
    fields[2]->setText(QStringLiteral("00"));
    fields[3]->setText(QStringLiteral("01"));

    QCOMPARE(edit.text(), QStringLiteral("10..00.01"));
}

void tst_IPLineEdit::clearEmptiesTheFields()
{
    IPLineEdit edit;
    edit.setText(QStringLiteral("192.168.1.20"));

    edit.clear();

    QCOMPARE(textsOf(edit), QStringList({QString(), QString(), QString(), QString()}));
}

void tst_IPLineEdit::propertyGoesToTheFields()
{
    IPLineEdit edit;

    QVERIFY(!edit.setProperty("isWrong", true)); // as QObject answers for a dynamic property

    for (const QLineEdit *field : fieldsOf(edit))
        QCOMPARE(field->property("isWrong"), QVariant(true));
    QVERIFY(!edit.property("isWrong").isValid());
}

void tst_IPLineEdit::propertySetIsAnsweredAsTheFieldsDo()
{
    IPLineEdit edit;

    // Yes for a property that a line edit has by itself.
    QVERIFY(edit.setProperty("placeholderText", QStringLiteral("0")));
    for (const QLineEdit *field : fieldsOf(edit))
        QCOMPARE(field->placeholderText(), QStringLiteral("0"));

    // No for a value that does not convert.
    QVERIFY(!edit.setProperty("maxLength", QVariant::fromValue<QObject *>(&edit)));
}

void tst_IPLineEdit::setIPFocusGoesToTheFirstField()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.next->setFocus();

    // The reason can be told by its trace: by Tab, all of the text would be selected.
    form.edit->setText(QStringLiteral("192.168.1.20"));
    form.edit->setIPFocus();

    QCOMPARE(QApplication::focusWidget(), form.fields[0]);
    QVERIFY(!form.fields[0]->hasSelectedText());
}

void tst_IPLineEdit::getIndexKnowsTheFourFieldsOnly()
{
    IPLineEdit edit;
    QLineEdit stranger(&edit);
    const QVector<QLineEdit *> fields = fieldsOf(edit);

    for (int index = 0; index < FieldCount; ++index)
        QCOMPARE(edit.getIndex(fields[index]), index);
    QCOMPARE(edit.getIndex(&stranger), -1);
    QCOMPARE(edit.getIndex(&edit), -1);
    QCOMPARE(edit.getIndex(nullptr), -1);
}

void tst_IPLineEdit::tabStopsAtTheEditorAndAtEachField()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setFocus();
    QCOMPARE(QApplication::focusWidget(), form.edit);

    for (QLineEdit *field : qAsConst(form.fields)) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), field);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), form.next);
}

void tst_IPLineEdit::modifiedNeedsAnEditAndFourNumbers()
{
    AddressForm form;
    QVERIFY(form.isReady());
    QVERIFY(!form.edit->isModified());

    // Edited, but not all are there.
    form.type(0, QStringLiteral("10"));
    form.type(1, QStringLiteral("1"));
    form.type(2, QStringLiteral("1"));
    QVERIFY(!form.edit->isModified());

    // All are there.
    form.type(3, QStringLiteral("1"));
    QVERIFY(form.edit->isModified());

    // One is enough.
    form.edit->setText(QStringLiteral("192.168.1.20"));
    QVERIFY(!form.edit->isModified());
    form.type(2, QStringLiteral("7"));
    QVERIFY(form.edit->isModified());
}

void tst_IPLineEdit::modifiedIsSaidOnce()
{
    AddressForm form;
    QVERIFY(form.isReady());
    for (int index = 0; index < FieldCount; ++index)
        form.type(index, QStringLiteral("100"));
    QCOMPARE(form.edit->text(), QStringLiteral("100.100.100.100"));

    QVERIFY(form.edit->isModified());

    QVERIFY(!form.edit->isModified());
    for (const QLineEdit *field : qAsConst(form.fields))
        QVERIFY(!field->isModified());
    form.type(1, QStringLiteral("2"));
    QVERIFY(form.edit->isModified());
}

void tst_IPLineEdit::modifiedThatIsNotSaidIsKept()
{
    // GIVEN an edit in an address that is not complete
    AddressForm form;
    QVERIFY(form.isReady());
    form.type(0, QStringLiteral("10"));
    QVERIFY(!form.edit->isModified());

    // WHEN a program completes it
    for (int index = 1; index < FieldCount; ++index)
        form.fields[index]->setText(QStringLiteral("1"));

    // THEN the edit is still known
    QVERIFY(form.edit->isModified());
}

void tst_IPLineEdit::settingATextIsNoEdit()
{
    AddressForm form;
    QVERIFY(form.isReady());
    for (int index = 0; index < FieldCount; ++index)
        form.type(index, QStringLiteral("10"));

    form.edit->setText(QStringLiteral("192.168.1.20"));

    QVERIFY(!form.edit->isModified());

    // Even what the user has typed is none any more.
    form.type(2, QStringLiteral("7"));
    form.edit->setText(form.edit->text());
    QVERIFY(!form.edit->isModified());
}

void tst_IPLineEdit::normalisingTakesLeadingZerosAway_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("007") << "007"
                         << "7";
    QTest::newRow("010") << "010"
                         << "10";
    QTest::newRow("000") << "000"
                         << "0";
    QTest::newRow("00") << "00"
                        << "0";
    QTest::newRow("0") << "0"
                       << "0";
    QTest::newRow("100") << "100"
                         << "100";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("no number") << "::1"
                               << "0";
}

void tst_IPLineEdit::normalisingTakesLeadingZerosAway()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);

    for (int index = 0; index < FieldCount; ++index) {
        IPLineEdit edit;
        fieldsOf(edit).at(index)->setText(text);

        edit.slot_fixInput();

        QStringList texts({QString(), QString(), QString(), QString()});
        texts[index] = expected;
        QCOMPARE(textsOf(edit), texts);
    }
}

void tst_IPLineEdit::normalisingKeepsTheModifiedFlags()
{
    IPLineEdit edit;
    const QVector<QLineEdit *> fields = fieldsOf(edit);
    const QStringList texts(
        {QStringLiteral("007"), QStringLiteral("007"), QStringLiteral("7"), QStringLiteral("7")});
    for (int index = 0; index < FieldCount; ++index) {
        fields[index]->setText(texts[index]);
        fields[index]->setModified(index % 2 != 0);
    }

    edit.slot_fixInput();

    QCOMPARE(edit.text(), QStringLiteral("7.7.7.7"));
    for (int index = 0; index < FieldCount; ++index)
        QCOMPARE(fields[index]->isModified(), index % 2 != 0);
}

void tst_IPLineEdit::normalisingKeepsTheCursorAtItsDigit_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("expected");
    QTest::newRow("at the start") << 0 << 0;
    QTest::newRow("behind the zero") << 1 << 0;
    QTest::newRow("inside") << 2 << 1;
    QTest::newRow("at the end") << 3 << 2;
}

void tst_IPLineEdit::normalisingKeepsTheCursorAtItsDigit()
{
    QFETCH(int, cursor);
    QFETCH(int, expected);
    IPLineEdit edit;
    QLineEdit *field = fieldsOf(edit).at(1);
    field->setText(QStringLiteral("012"));
    field->setCursorPosition(cursor);

    edit.slot_fixInput();

    QCOMPARE(field->text(), QStringLiteral("12"));
    QCOMPARE(field->cursorPosition(), expected);
}

void tst_IPLineEdit::normalisingLeavesANormalNumberAlone()
{
    // GIVEN a number with a selection
    IPLineEdit edit;
    QLineEdit *field = fieldsOf(edit).at(1);
    field->setText(QStringLiteral("120"));
    field->setSelection(1, 1);

    // WHEN it is normalised
    edit.slot_fixInput();

    // THEN the selection is still there
    QCOMPARE(field->selectedText(), QStringLiteral("2"));
}

void tst_IPLineEdit::leavingAFieldNormalisesAll()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.type(2, QStringLiteral("07"));
    form.fields[0]->setText(QStringLiteral("010")); // not acceptable, so that leaving it does nothing

    form.next->setFocus();

    QCOMPARE(form.edit->text(), QStringLiteral("10..7."));
    QVERIFY(form.fields[2]->isModified());
}

void tst_IPLineEdit::leavingAnUnacceptableFieldNormalisesNothing()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.type(1, QStringLiteral("010"));
    QCOMPARE(form.fields[1]->text(), QStringLiteral("010"));
    QVERIFY(!form.fields[1]->hasAcceptableInput());

    form.next->setFocus();
    QCOMPARE(form.fields[1]->text(), QStringLiteral("010"));

    // It is done as soon as another one is finished.
    form.type(2, QStringLiteral("5"));
    form.next->setFocus();
    QCOMPARE(form.edit->text(), QStringLiteral(".10.5."));
}

void tst_IPLineEdit::returnKeyNormalises()
{
    AddressForm form;
    QVERIFY(form.isReady());
    form.type(2, QStringLiteral("07"));

    QTest::keyClick(form.fields[2], Qt::Key_Return);

    QCOMPARE(form.fields[2]->text(), QStringLiteral("7"));
    QCOMPARE(QApplication::focusWidget(), form.fields[2]);
}

void tst_IPLineEdit::everyFieldThatIsFinishedNormalises_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < FieldCount; ++index)
        QTest::addRow("field %d", index) << index;
}

void tst_IPLineEdit::everyFieldThatIsFinishedNormalises()
{
    QFETCH(int, index);
    AddressForm form;
    QVERIFY(form.isReady());
    for (QLineEdit *field : qAsConst(form.fields))
        field->setText(QStringLiteral("007"));
    form.fields[index]->setFocus();
    form.fields[index]->setText(QStringLiteral("10"));
    QVERIFY(form.fields[index]->hasAcceptableInput());

    QTest::keyClick(form.fields[index], Qt::Key_Return);

    QStringList texts({QStringLiteral("7"), QStringLiteral("7"), QStringLiteral("7"), QStringLiteral("7")});
    texts[index] = QStringLiteral("10");
    QCOMPARE(textsOf(*form.edit), texts);
}

void tst_IPLineEdit::validTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isValid");
    QTest::newRow("null") << QString() << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("an address") << "1.2.3.4" << true;
    QTest::newRow("any character for a dot") << "1x2x3x4" << true;
    QTest::newRow("digits for dots") << "1111111" << true;
    QTest::newRow("first number 0") << "0.2.3.4" << false;
    QTest::newRow("first number 8") << "8.8.8.8" << false;
    QTest::newRow("first number above 255") << "299.2.3.4" << true;
    QTest::newRow("second number above 255") << "1.299.3.4" << false;
    QTest::newRow("second number above 199 and below 256") << "1.255.200.249" << true;
    QTest::newRow("three numbers") << "1.2.3" << false;
    QTest::newRow("five numbers") << "1.2.3.4.5" << false;
    QTest::newRow("blank in front") << " 1.2.3.4" << false;
    QTest::newRow("line end") << "1.2.3.4\n" << false;
    QTest::newRow("empty parts") << "..." << false;
}

void tst_IPLineEdit::validTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isValid);
    const IPLineEdit edit;

    QCOMPARE(edit.isTextValid(text), isValid);
    if (!text.isEmpty())
        QCOMPARE(LooseAddress::matches(text), isValid);
}

void tst_IPLineEdit::validityAgreesWithTheModel()
{
    const IPLineEdit edit;
    int valid = 0;
    int invalid = 0;
    const auto check = [&](const QString &text) {
        const bool expected = LooseAddress::matches(text);
        if (edit.isTextValid(text) != expected)
            QTest::qFail(qPrintable(QStringLiteral("Misjudged: ") + text), __FILE__, __LINE__);
        ++(expected ? valid : invalid);
    };

    // Every number up to 400 at every place, also with leading zeros.
    for (int place = 0; place < FieldCount; ++place) {
        for (int number = 0; number <= 400; ++number) {
            for (int width = 1; width <= 4; ++width) {
                QStringList parts(
                    {QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("30"), QStringLiteral("40")});
                parts[place] = QString::number(number).rightJustified(width, QLatin1Char('0'));
                check(parts.join(QLatin1Char('.')));
            }
        }
    }

    // Numbers at random, with whatever between them.
    const QStringList separators({QStringLiteral("."), QStringLiteral("x"), QStringLiteral("7"), QString()});
    quint32 random = 42;
    const auto next = [&random](int bound) {
        random = random * 1664525U + 1013904223U;
        return int((random >> 16) % quint32(bound));
    };
    for (int round = 0; round < 20000; ++round) {
        QString text;
        for (int place = 0; place < FieldCount; ++place) {
            if (place > 0)
                text += separators[next(separators.size())];
            text += QString::number(next(next(2) == 0 ? 100 : 300));
        }
        check(text);
    }
    QVERIFY2(valid > 4000 && invalid > 4000, qPrintable(QString::number(valid)));
}

using Change = void (*)(AddressForm &);
Q_DECLARE_METATYPE(Change)

void tst_IPLineEdit::changeIsAnnouncedOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("announced"); // the fields held 10.20.30.40 before
    QTest::newRow("address set") << Change([](AddressForm &form) {
        form.edit->setText(QStringLiteral("8.8.8.8"));
    }) << QStringList({QStringLiteral("8.8.8.8")});
    QTest::newRow("same address set")
        << Change([](AddressForm &form) { form.edit->setText(form.edit->text()); }) << QStringList();
    QTest::newRow("cleared") << Change([](AddressForm &form) { form.edit->clear(); })
                             << QStringList({QStringLiteral("...")});
    QTest::newRow("a digit typed") << Change([](AddressForm &form) {
        QTest::keyClick(form.fields[0], Qt::Key_1);
    }) << QStringList({QStringLiteral("101.20.30.40")});
    QTest::newRow("a digit typed over itself") << Change([](AddressForm &form) {
        form.edit->setText(QStringLiteral("1.20.30.40"));
        form.fields[0]->selectAll();
        QTest::keyClick(form.fields[0], Qt::Key_1);
    }) << QStringList({QStringLiteral("1.20.30.40")});
    QTest::newRow("a zero inserted") << Change([](AddressForm &form) {
        QTest::keyClick(form.fields[0], Qt::Key_0);
    }) << QStringList({QStringLiteral("100.20.30.40")});
    QTest::newRow("a digit refused") << Change([](AddressForm &form) {
        QTest::keyClick(form.fields[2], Qt::Key_1);
    }) << QStringList();
    QTest::newRow("pasted") << Change([](AddressForm &form) {
        form.edit->setAcceptsAnyAddress(true);
        QGuiApplication::clipboard()->setText(QStringLiteral("1.2.3.4"));
        QTest::keySequence(form.fields[0], QKeySequence(QKeySequence::Paste));
    }) << QStringList({QStringLiteral("1.2.3.4")});
    QTest::newRow("nothing to normalise")
        << Change([](AddressForm &form) { form.edit->slot_fixInput(); }) << QStringList();
    QTest::newRow("a field set behind the editor's back")
        << Change([](AddressForm &form) { form.fields[1]->setText(QStringLiteral("5")); })
        << QStringList({QStringLiteral("10.5.30.40")});
}

void tst_IPLineEdit::changeIsAnnouncedOnce()
{
    QFETCH(Change, change);
    QFETCH(QStringList, announced);
    AddressForm form;
    QVERIFY(form.isReady());
    form.edit->setText(QStringLiteral("10.20.30.40"));
    form.fields[0]->setFocus();
    form.fields[0]->setCursorPosition(2);
    QSignalSpy changes(form.edit, &IPLineEdit::addressChanged);

    change(form);

    QStringList addresses;
    for (const QList<QVariant> &arguments : qAsConst(changes))
        addresses.append(arguments.constFirst().toString());
    QCOMPARE(addresses, announced);
    if (!announced.isEmpty())
        QCOMPARE(form.edit->text(), announced.constLast());
}

void tst_IPLineEdit::acceptableInputNeedsFourAcceptableNumbers_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("isAcceptable");
    QTest::addColumn<bool>("isAcceptableAsAnyAddress");
    const auto texts = [](const char *joined) { return QString::fromLatin1(joined).split(QLatin1Char('.')); };
    QTest::newRow("nothing") << texts("...") << false << false;
    QTest::newRow("an address") << texts("192.168.1.20") << true << true;
    QTest::newRow("an address that cannot be typed") << texts("8.8.8.8") << false << true;
    QTest::newRow("an incomplete first number") << texts("1.2.3.4") << false << true;
    QTest::newRow("an empty field") << texts("192.168..20") << false << false;
    QTest::newRow("a number too great") << texts("192.168.1.300") << false << false;
}

void tst_IPLineEdit::acceptableInputNeedsFourAcceptableNumbers()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, isAcceptable);
    QFETCH(bool, isAcceptableAsAnyAddress);
    IPLineEdit edit;
    for (int index = 0; index < FieldCount; ++index)
        fieldsOf(edit).at(index)->setText(texts[index]);

    QCOMPARE(edit.hasAcceptableInput(), isAcceptable);
    edit.setAcceptsAnyAddress(true);
    QCOMPARE(edit.hasAcceptableInput(), isAcceptableAsAnyAddress);
}

void tst_IPLineEdit::deletedWithTheFocusItGoesQuietly_data()
{
    QTest::addColumn<bool>("isWindow");
    QTest::newRow("as a window") << true;
    QTest::newRow("in a window") << false;
}

void tst_IPLineEdit::deletedWithTheFocusItGoesQuietly()
{
    QFETCH(bool, isWindow);

    // GIVEN an editor with the cursor in a number that leaving it would normalise
    QWidget window;
    auto edit = std::make_unique<IPLineEdit>(isWindow ? nullptr : &window);
    window.show();
    edit->show();
    QApplication::setActiveWindow(edit->window());
    const QPointer<QLineEdit> field = fieldsOf(*edit).at(2);
    field->setFocus();
    field->setText(QStringLiteral("07"));
    QVERIFY(field->hasFocus());
    QStringList texts;
    connect(field, &QLineEdit::textChanged, this, [&](const QString &text) { texts.append(text); });

    // WHEN it is deleted
    edit.reset();

    // THEN nobody touches the number any more
    QVERIFY(field.isNull());
    QVERIFY(texts.isEmpty());
}

QTEST_MAIN(tst_IPLineEdit)

#include "tst_iplineedit.moc"
