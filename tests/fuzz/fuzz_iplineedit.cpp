// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Keys and texts for the address editor, with models of this file's own for what is an address.

#include "fuzzsupport.h"

#include <QApplication>
#include <QClipboard>
#include <QHostAddress>
#include <QLineEdit>
#include <QValidator>
#include <algorithm>
#include <array>
#include <tarnwidgets/iplineedit.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::IPLineEdit;

namespace {

constexpr int FieldCount = 4;
constexpr int MaxDigits = 3;
constexpr QLatin1Char Dot('.');

/* Bytes from 0x80 on: what is done besides pressing keys. */
enum Deed { SetText, Validate, Clear, FixInput, FillClipboard, Focus, Ask, ToggleReadOnly, DeedCount };

bool isAsciiDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isNumber(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isAsciiDigit);
}

/* Three digits begin with 1 or 2. */
bool isOctet(const QString &text)
{
    if (!isNumber(text) || text.size() > MaxDigits)
        return false;
    return text.size() < MaxDigits || (text.at(0) != QLatin1Char('0') && text.toInt() <= 255);
}

bool isAddress(const QString &text)
{
    const QStringList parts = text.split(Dot);
    return parts.size() == FieldCount && std::all_of(parts.cbegin(), parts.cend(), isOctet);
}

/* Digits of any script, but those that limit the number are ASCII. */
bool isLooseNumber(const QString &text, bool isFirst)
{
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    if (text.isEmpty() || !std::all_of(text.cbegin(), text.cend(), isDigit))
        return false;
    const QChar first = text.at(0);
    if (isFirst)
        return first == QLatin1Char('1') || first == QLatin1Char('2');
    if (text.size() < MaxDigits || first == QLatin1Char('1'))
        return true;
    const QChar second = text.at(1);
    const QChar third = text.at(2);
    if (first != QLatin1Char('2') || !isAsciiDigit(second) || second > QLatin1Char('5'))
        return false;
    return second < QLatin1Char('5') || (isAsciiDigit(third) && third <= QLatin1Char('5'));
}

/* Numbers with one character of any kind between them. */
bool isLooseAddress(const QString &text, int number = 0)
{
    for (int digits = 1; digits <= qMin(MaxDigits, text.size()); ++digits) {
        if (!isLooseNumber(text.left(digits), number == 0))
            continue;
        const bool isLast = number == FieldCount - 1;
        if (isLast ? digits == text.size()
                   : digits < text.size() && isLooseAddress(text.mid(digits + 1), number + 1))
            return true;
    }
    return false;
}

/* An editor that is there from input to input. */
class Scene
{
public:
    explicit Scene(bool acceptsAnyAddress);

    void start();
    void act(int byte, Input *input);

private:
    void setText(const QString &text);
    void toggleReadOnly(int index);
    QStringList texts() const;
    static bool isRefused(const QLineEdit *field);
    void checkFields();
    void checkAnnouncement(const QString &before, bool isKey) const;

    IPLineEdit m_edit;
    std::array<QLineEdit *, FieldCount> m_fields{};
    QStringList m_announced;
    bool m_holdsNumbers = true; // as far as the user's keys make texts, and those that are checked
};

Scene::Scene(bool acceptsAnyAddress)
{
    const QList<QLineEdit *> fields = m_edit.findChildren<QLineEdit *>();
    require(fields.size() == FieldCount, "there are four fields");
    for (QLineEdit *field : fields)
        m_fields.at(uint(m_edit.getIndex(field))) = field;
    m_edit.setAcceptsAnyAddress(acceptsAnyAddress);
    QObject::connect(&m_edit, &IPLineEdit::addressChanged, &m_edit,
                     [this](const QString &address) { m_announced.append(address); });
    Tarn::Fuzz::showActive(&m_edit);
}

/* Nothing of the former input may have a say. */
void Scene::start()
{
    m_edit.activateWindow();
    QApplication::setActiveWindow(&m_edit);
    if (!QGuiApplication::clipboard()->text().isEmpty())
        QGuiApplication::clipboard()->clear();
    for (QLineEdit *field : m_fields) {
        field->setReadOnly(false);
        field->setText(QString()); // unlike clear() without a way back
    }
    m_edit.setIPFocus();
    m_holdsNumbers = true;
    QCoreApplication::removePostedEvents(nullptr);
}

void Scene::act(int byte, Input *input)
{
    m_announced.clear();
    const QString before = m_edit.text();
    const bool isKey = byte < 0x80;
    if (isKey) {
        Tarn::Fuzz::pressKey(byte);
    } else {
        switch (Deed(byte % DeedCount)) {
        case SetText:
            setText(input->text());
            break;
        case Validate: {
            const QString text = input->text();
            const bool isValid =
                text.isEmpty() || (m_edit.acceptsAnyAddress() ? isAddress(text) : isLooseAddress(text));
            require(m_edit.isTextValid(text) == isValid, "isTextValid() says what an address is");
            break;
        }
        case Clear:
            m_edit.clear();
            require(m_edit.text() == QLatin1String("..."), "a cleared editor is empty");
            // Undone and done again, QLineEdit's clear() leaves the cursor behind the end until a key is
            // pressed.
            for (QLineEdit *field : m_fields)
                field->setText(QString()); // forgets the way back
            break;
        case FixInput:
            m_edit.slot_fixInput();
            break;
        case FillClipboard:
            QGuiApplication::clipboard()->setText(input->text());
            break;
        case Focus:
            m_fields.at(uint(input->below(FieldCount)))->setFocus();
            break;
        case Ask:
            m_edit.isModified();
            require(!m_edit.isModified(), "an edit is told once");
            break;
        case ToggleReadOnly:
            toggleReadOnly(input->below(FieldCount));
            break;
        case DeedCount:
            break;
        }
    }
    checkFields();
    checkAnnouncement(before, isKey);
}

void Scene::setText(const QString &text)
{
    QStringList expected = texts();
    const int messages = Tarn::Fuzz::messageCount();
    const QHostAddress host(text);
    const bool isTaken = m_edit.acceptsAnyAddress() ? isAddress(text) : !host.isNull() && !host.isMulticast();
    if (isTaken) {
        const QStringList parts = text.split(Dot);
        for (int i = 0; i < qMin(FieldCount, parts.size()); ++i)
            expected[i] = parts.at(i).left(MaxDigits);
    }
    m_edit.setText(text);
    require(texts() == expected, "the fields take the parts of an address and of nothing else");
    const int warnings = text.isEmpty() || isTaken ? 0 : 1;
    require(Tarn::Fuzz::messageCount() == messages + warnings, "what is not taken is told in the log");
    m_holdsNumbers = m_holdsNumbers && (!isTaken || isAddress(text));
}

void Scene::toggleReadOnly(int index)
{
    QLineEdit *field = m_fields.at(uint(index));
    field->setReadOnly(!field->isReadOnly());
}

QStringList Scene::texts() const
{
    QStringList texts;
    for (const QLineEdit *field : m_fields)
        texts.append(field->text());
    return texts;
}

/* QLineEdit takes anything in the place of a text that its validator refuses, such as the 010 that a zero in
 * front of 10 makes. */
bool Scene::isRefused(const QLineEdit *field)
{
    QString text = field->text();
    int cursor = 0;
    return field->validator()->validate(text, cursor) == QValidator::Invalid;
}

void Scene::checkFields()
{
    require(m_edit.text() == texts().join(Dot), "text() joins the fields");
    for (const QLineEdit *field : m_fields) {
        const QString text = field->text();
        require(text.size() <= MaxDigits, "a field has three characters at most");
        require(field->cursorPosition() >= 0 && field->cursorPosition() <= text.size(),
                "the cursor is in the text");
        require(!m_holdsNumbers || text.isEmpty() || (isNumber(text) && text.toInt() <= 255),
                "typed are numbers up to 255");
    }
    m_holdsNumbers = m_holdsNumbers && std::none_of(m_fields.cbegin(), m_fields.cend(), isRefused);
}

/* A digit may be two changes: the next field is entered, which takes a zero out of another, and then it is
 * typed all the same. */
void Scene::checkAnnouncement(const QString &before, bool isKey) const
{
    const QStringList known = QStringList(before) + m_announced;
    require(known.last() == m_edit.text(), "the address is announced as it is");
    require(m_announced.size() <= (isKey ? 2 : 1), "each change is announced once");
    require(std::adjacent_find(known.cbegin(), known.cend()) == known.cend(), "only changes are announced");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto *const restricted = new Scene(false);
    static auto *const any = new Scene(true);
    Input input(data, size);
    Scene *scene = input.byte() == 'a' ? any : restricted;
    scene->start();
    while (!input.atEnd())
        scene->act(input.byte(), &input);
    return 0;
}
