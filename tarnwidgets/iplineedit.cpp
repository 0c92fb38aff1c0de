// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "iplineedit.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QHostAddress>
#include <QKeyEvent>
#include <QMenu>
#include <QRegExpValidator>
#include <algorithm>
#include <array>

namespace Tarn::Widgets {

namespace {

constexpr int FieldCount = 4;
constexpr int MaxDigits = 3;
constexpr int MaxOctet = 255;
constexpr int Spacing = 4;
constexpr QSize DotSize(2, 2);
constexpr QLatin1Char Dot('.');
constexpr auto CommandModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// Kept: the first number has to begin with 1 or 2, and only 10 to 19 and 100 to 255 are acceptable.
QString firstOctetPattern()
{
    return QStringLiteral("(2[0-5]{2}|2[0-4][0-9]|1+[0-9]{1,2})");
}

QString octetPattern()
{
    return QStringLiteral("(2[0-5]{2}|2[0-4][0-9]|1?[0-9]{1,2})");
}

// Kept: the full stops between the numbers match any character, and the first number goes up to 299.
QString looseAddressPattern()
{
    return QStringLiteral("^([12]\\d?\\d?|2[0-4]\\d|25[0-5]).([1]?\\d\\d?|2[0-4]\\d|25[0-5])."
                          "([1]?\\d\\d?|2[0-4]\\d|25[0-5]).([1]?\\d\\d?|2[0-4]\\d|25[0-5])$");
}

bool isAddress(const QString &text)
{
    const QStringList parts = text.split(Dot);
    const QRegExp octet(octetPattern());
    return parts.size() == FieldCount
        && std::all_of(parts.cbegin(), parts.cend(),
                       [&octet](const QString &part) { return octet.exactMatch(part); });
}

/*
 * What can be set without acceptsAnyAddress. Kept: that includes short forms, IPv6 and blanks, of which the
 * fields take what they have room for.
 */
bool isHostAddress(const QString &text)
{
    const QHostAddress address(text);
    return !address.isNull() && !address.isMulticast();
}

QString clipboardAddress()
{
    const QString text = QGuiApplication::clipboard()->text().trimmed();
    return isAddress(text) ? text : QString();
}

QWidget *createDot(QWidget *parent)
{
    auto *dot = new QFrame(parent);
    dot->setFrameShape(QFrame::NoFrame);
    dot->setObjectName(QStringLiteral("ipLineEditDot"));
    dot->setProperty("ipLineEditDot", true);
    dot->setFixedSize(DotSize);
    dot->setContentsMargins(0, 0, 0, 0);
    dot->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return dot;
}

} // namespace

class IPLineEditPrivate
{
public:
    explicit IPLineEditPrivate(IPLineEdit *q);

    QLineEdit *createField(int index) const;
    QRegExpValidator *createValidator(int index) const;
    int indexOf(const QObject *object) const;

    void enterAllSelected(int index) const;
    void enterAtStart(int index) const;
    void enterAtEnd(int index) const;

    static void settle(QLineEdit *field);
    bool filterKey(int index, const QKeyEvent *event);
    void filterDigit(int index, int key);
    void insertZero(QLineEdit *field);
    bool filterClipboardKey(const QLineEdit *field, const QKeyEvent *event);

    void pasteAddress();
    bool hasAddressMenu(int index) const;
    void showContextMenu(QLineEdit *field, const QPoint &globalPos);

    void fill(const QStringList &parts) const;
    void normalize(QLineEdit *field) const;
    template <typename Change> void changeAtOnce(Change change);
    void announceChange();

    IPLineEdit *const q;
    std::array<QLineEdit *, FieldCount> m_fields{};
    bool m_bAcceptsAnyAddress = false;
    bool m_bChanging = false;
    QString m_announced; // the address as it is known
};

IPLineEditPrivate::IPLineEditPrivate(IPLineEdit *q)
    : q(q)
{
}

QLineEdit *IPLineEditPrivate::createField(int index) const
{
    auto *field = new QLineEdit(q);
    field->setAttribute(Qt::WA_MacShowFocusRect, false);
    field->setFrame(false);
    field->setMaxLength(MaxDigits);
    field->setAlignment(Qt::AlignCenter);
    field->installEventFilter(q);
    field->setValidator(createValidator(index));
    field->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    return field;
}

QRegExpValidator *IPLineEditPrivate::createValidator(int index) const
{
    const bool isRestricted = index == 0 && !m_bAcceptsAnyAddress;
    return new QRegExpValidator(QRegExp(isRestricted ? firstOctetPattern() : octetPattern()), q);
}

int IPLineEditPrivate::indexOf(const QObject *object) const
{
    const auto found = std::find(m_fields.cbegin(), m_fields.cend(), object);
    return found == m_fields.cend() ? -1 : int(found - m_fields.cbegin());
}

// The focus goes first: a field that loses it is normalised, which would undo the selection.
void IPLineEditPrivate::enterAllSelected(int index) const
{
    m_fields[index]->setFocus(Qt::OtherFocusReason);
    m_fields[index]->selectAll();
}

void IPLineEditPrivate::enterAtStart(int index) const
{
    m_fields[index]->setFocus(Qt::OtherFocusReason);
    m_fields[index]->home(false);
}

void IPLineEditPrivate::enterAtEnd(int index) const
{
    m_fields[index]->setFocus(Qt::OtherFocusReason);
    m_fields[index]->end(false);
}

/* When something was undone and done again, QLineEdit may have a selection that begins before the text, or
 * the cursor behind its end: the next character would go wrong, beyond the greatest length, too. */
void IPLineEditPrivate::settle(QLineEdit *field)
{
    if (field->selectionStart() >= 0)
        return;
    if (field->hasSelectedText() || field->text().isEmpty()) // costly for each key
        field->deselect();
    if (field->cursorPosition() > field->text().size())
        field->end(false);
}

bool IPLineEditPrivate::filterKey(int index, const QKeyEvent *event)
{
    QLineEdit *field = m_fields[index];
    settle(field);
    const bool isFirst = index == 0;
    const bool isLast = index == FieldCount - 1;
    const int key = event->key();

    if (m_bAcceptsAnyAddress && filterClipboardKey(field, event))
        return true;
    if (key >= Qt::Key_0 && key <= Qt::Key_9 && !(event->modifiers() & CommandModifiers)) {
        filterDigit(index, key);
    } else if (key == Qt::Key_Period && !isLast) {
        enterAllSelected(index + 1);
        return true; // the field would only refuse it
    } else if ((key == Qt::Key_Backspace || key == Qt::Key_Left) && !isFirst
               && field->cursorPosition() == 0) {
        enterAtEnd(index - 1);
    } else if (key == Qt::Key_Right && !isLast && field->cursorPosition() == field->text().size()) {
        enterAtStart(index + 1);
    }
    return false;
}

// Kept: the digit that finds no room goes to the field that was left, which refuses it, and not into the next
// one.
void IPLineEditPrivate::filterDigit(int index, int key)
{
    QLineEdit *field = m_fields[index];
    const QString text = field->text();
    if (field->hasSelectedText() || text.size() > MaxDigits)
        return;

    const int withAnotherDigit = text.toInt() * 10;
    if (withAnotherDigit > MaxOctet) {
        if (index + 1 < FieldCount)
            enterAllSelected(index + 1);
    } else if (key == Qt::Key_0 && text.size() == MaxDigits - 1 && withAnotherDigit > 0) {
        insertZero(field);
    }
}

// Kept: the validator is not asked, so that 10 becomes 010 when a zero is typed in front of it.
void IPLineEditPrivate::insertZero(QLineEdit *field)
{
    if (field->isReadOnly())
        return;
    const int cursor = field->cursorPosition();
    changeAtOnce([field, cursor] {
        field->setText(field->text().insert(cursor, QLatin1Char('0')));
        field->setModified(true);
        field->setCursorPosition(cursor + 1);
    });
}

bool IPLineEditPrivate::filterClipboardKey(const QLineEdit *field, const QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste) && !field->isReadOnly() && !clipboardAddress().isEmpty()) {
        pasteAddress();
        return true;
    }
    const QString selected = field->selectedText();
    const bool wantsPart = !selected.isEmpty() && selected != field->text();
    if (event->matches(QKeySequence::Copy) && !wantsPart && q->hasAcceptableInput()) {
        QGuiApplication::clipboard()->setText(q->text());
        return true;
    }
    return false;
}

void IPLineEditPrivate::pasteAddress()
{
    const QString address = clipboardAddress();
    if (address.isEmpty())
        return; // it may have changed while the menu was open
    changeAtOnce([this, &address] {
        fill(address.split(Dot));
        for (QLineEdit *field : m_fields)
            field->setModified(true);
        enterAtEnd(FieldCount - 1);
    });
}

bool IPLineEditPrivate::hasAddressMenu(int index) const
{
    return m_bAcceptsAnyAddress && m_fields[index]->contextMenuPolicy() == Qt::DefaultContextMenu;
}

void IPLineEditPrivate::showContextMenu(QLineEdit *field, const QPoint &globalPos)
{
    QMenu *menu = field->createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    QAction *copy = menu->addAction(IPLineEdit::tr("Copy Address"), q,
                                    [this] { QGuiApplication::clipboard()->setText(q->text()); });
    copy->setEnabled(q->hasAcceptableInput());
    QAction *paste = menu->addAction(IPLineEdit::tr("Paste Address"), q, [this] { pasteAddress(); });
    paste->setEnabled(!field->isReadOnly() && !clipboardAddress().isEmpty());
    menu->popup(globalPos);
}

void IPLineEditPrivate::fill(const QStringList &parts) const
{
    const int count = qMin(parts.size(), FieldCount);
    for (int i = 0; i < count; ++i)
        m_fields[i]->setText(parts.at(i));
}

void IPLineEditPrivate::normalize(QLineEdit *field) const
{
    const QString text = field->text();
    const QString number = text.isEmpty() ? text : QString::number(text.toInt());
    if (number == text)
        return;
    const int digitsBehindCursor = text.size() - field->cursorPosition();
    const bool wasModified = field->isModified();
    field->setText(number);
    field->setModified(wasModified);
    field->setCursorPosition(number.size() - digitsBehindCursor);
}

/* Announces all that \a change does to the fields by one signal, last of all: a slot may delete the editor.
 */
template <typename Change> void IPLineEditPrivate::changeAtOnce(Change change)
{
    if (m_bChanging) { // normalising comes within a change that moves the focus
        change();
        return;
    }
    m_bChanging = true;
    change();
    m_bChanging = false;
    announceChange();
}

/* A field also tells of a text that took the place of the same text. */
void IPLineEditPrivate::announceChange()
{
    const QString address = q->text();
    if (m_bChanging || address == m_announced)
        return;
    m_announced = address;
    Q_EMIT q->addressChanged(address);
}

IPLineEdit::IPLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<IPLineEditPrivate>(this))
{
    createWidgets();
    d->m_announced = text();
    createConnects();
}

// Qt's part of this widget may take the focus from a field, which must not find a slot of this part any more.
IPLineEdit::~IPLineEdit()
{
    for (const QLineEdit *field : d->m_fields)
        field->disconnect(this);
}

void IPLineEdit::createWidgets()
{
    setObjectName(QStringLiteral("ipLineEdit"));
    setLayoutDirection(Qt::LeftToRight); // an address reads from left to right in every language
    auto *row = new QHBoxLayout(this);
    row->setSpacing(Spacing);
    row->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < FieldCount; ++index) {
        d->m_fields[index] = d->createField(index);
        row->addWidget(d->m_fields[index]);
        if (index == FieldCount - 1)
            break;
        auto *column = new QVBoxLayout;
        column->addStretch();
        column->addWidget(createDot(this));
        row->addLayout(column);
    }
    setReadOnly(true);
}

void IPLineEdit::createConnects()
{
    for (const QLineEdit *field : d->m_fields) {
        connect(field, &QLineEdit::editingFinished, this, &IPLineEdit::slot_fixInput);
        connect(field, &QLineEdit::textChanged, this, [this] { d->announceChange(); });
    }
}

void IPLineEdit::setAcceptsAnyAddress(bool on)
{
    if (d->m_bAcceptsAnyAddress == on)
        return;
    d->m_bAcceptsAnyAddress = on;
    const QValidator *former = d->m_fields[0]->validator();
    d->m_fields[0]->setValidator(d->createValidator(0));
    if (former && former->parent() == this)
        delete former; // otherwise it is the application's
}

bool IPLineEdit::acceptsAnyAddress() const
{
    return d->m_bAcceptsAnyAddress;
}

void IPLineEdit::setText(const QString &text)
{
    if (text.isEmpty())
        return;
    if (d->m_bAcceptsAnyAddress ? !isAddress(text) : !isHostAddress(text)) {
        qWarning("void Tarn::Widgets::IPLineEdit::setText(const QString&) Your IP Address is Invalid!");
        return;
    }
    d->changeAtOnce([this, &text] { d->fill(text.split(Dot)); });
}

QString IPLineEdit::text() const
{
    QString text = d->m_fields[0]->text();
    for (int index = 1; index < FieldCount; ++index)
        text += Dot + d->m_fields[index]->text();
    return text;
}

// Kept: a question that changes the answer to the next one.
bool IPLineEdit::isModified() const
{
    const auto &fields = d->m_fields;
    const auto isEmpty = [](const QLineEdit *field) { return field->text().isEmpty(); };
    const auto isEdited = [](const QLineEdit *field) { return field->isModified(); };
    if (std::any_of(fields.cbegin(), fields.cend(), isEmpty)
        || std::none_of(fields.cbegin(), fields.cend(), isEdited))
        return false;
    for (QLineEdit *field : fields)
        field->setModified(false);
    return true;
}

bool IPLineEdit::hasAcceptableInput() const
{
    return std::all_of(d->m_fields.cbegin(), d->m_fields.cend(),
                       [](const QLineEdit *field) { return field->hasAcceptableInput(); });
}

void IPLineEdit::clear()
{
    d->changeAtOnce([this] {
        for (QLineEdit *field : d->m_fields)
            field->clear();
    });
}

// Kept: the editor itself does not get the property.
bool IPLineEdit::setProperty(const char *name, const QVariant &value)
{
    bool isSet = false;
    for (QLineEdit *field : d->m_fields)
        isSet = field->setProperty(name, value);
    return isSet;
}

void IPLineEdit::setIPFocus()
{
    d->m_fields[0]->setFocus(Qt::OtherFocusReason);
}

int IPLineEdit::getIndex(QLineEdit *field) const
{
    return d->indexOf(field);
}

bool IPLineEdit::isTextValid(const QString &text) const
{
    if (text.isEmpty())
        return true;
    return d->m_bAcceptsAnyAddress ? isAddress(text) : QRegExp(looseAddressPattern()).exactMatch(text);
}

bool IPLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    const int index = d->indexOf(watched);
    if (type == QEvent::KeyPress && index >= 0)
        return d->filterKey(index, static_cast<QKeyEvent *>(event));
    if (type == QEvent::ContextMenu && index >= 0 && d->hasAddressMenu(index)) {
        d->showContextMenu(d->m_fields[index], static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    // Kept: a press on a field is one on the editor, too.
    if (type == QEvent::MouseButtonPress || type == QEvent::FocusIn)
        event->ignore();
    return QLineEdit::eventFilter(watched, event);
}

void IPLineEdit::slot_fixInput()
{
    d->changeAtOnce([this] {
        for (QLineEdit *field : d->m_fields)
            d->normalize(field);
    });
}

void IPLineEdit::paintEvent(QPaintEvent *) {}

} // namespace Tarn::Widgets
