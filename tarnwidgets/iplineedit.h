// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_IPLINEEDIT_H
#define TARN_WIDGETS_IPLINEEDIT_H

#include "tarnwidgets_export.h"

#include <QLineEdit>
#include <memory>

namespace Tarn::Widgets {

class IPLineEditPrivate;

/*!
 * \ingroup input
 * \brief Edits an IPv4 address as four numbers with dots between them.
 *
 * The arrow keys, Backspace and the full stop lead from number to number, and
 * numbers above 255 cannot be typed. Use it instead of a QLineEdit with an input
 * mask, which keeps blanks in place and takes any three digits.
 *
 * \code
 * auto *address = new IPLineEdit(form);
 * address->setAcceptsAnyAddress(true);
 * address->setText(QStringLiteral("192.168.1.20"));
 * \endcode
 *
 * The widget is a read-only line edit that paints nothing. It owns four
 * QLineEdit children for the numbers and three QFrame children for the dots;
 * all that is seen is theirs. They stand from left to right in every language.
 *
 * Style selectors: object name ipLineEdit on the widget; object name and dynamic
 * property ipLineEditDot (true) on the dots, which have no frame: without a
 * rule they are invisible. setProperty() marks the four fields.
 *
 * \note The first number has to begin with 1 or 2, so that 8.8.8.8 can be set
 * but not typed, unless acceptsAnyAddress is set.
 * \note A digit for which a number has no room moves on to the next number, and
 * is not typed there.
 * \note What is QLineEdit's own and not described here is that of an empty,
 * read-only line edit behind the fields: text, textChanged(), acceptableInput,
 * setReadOnly(). Use addressChanged(), hasAcceptableInput() and, for the fields,
 * setProperty().
 * \note The widget itself takes the focus, and not the first number: by Tab, which
 * stops at both, by the mnemonic of a label whose buddy it is, and by setFocus().
 * Where that is not wanted, set Qt::NoFocus and give the focus by setIPFocus().
 */
class TARNWIDGETS_EXPORT IPLineEdit : public QLineEdit
{
    Q_OBJECT

    /*!
     * Whether every address from 0.0.0.0 to 255.255.255.255, and nothing else,
     * can be typed and set; off at the start.
     *
     * It also lets the user copy and paste whole addresses: the keys for Paste
     * replace all four numbers when the clipboard holds an address, those for
     * Copy take the whole address unless a part of a number is selected, and the
     * fields' context menu has an entry for each, unless another
     * contextMenuPolicy is set on them.
     *
     * \note IPLineEdit::setProperty() is for the fields and does not set it.
     */
    Q_PROPERTY(bool acceptsAnyAddress READ acceptsAnyAddress WRITE setAcceptsAnyAddress)

public:
    explicit IPLineEdit(QWidget *parent = nullptr);
    ~IPLineEdit() override;

    void setAcceptsAnyAddress(bool on);
    bool acceptsAnyAddress() const;

    /*!
     * Writes the parts of \a text between the dots into the fields, beginning
     * with the first. An empty text is ignored; one that is no address, or a
     * multicast address, is ignored with a warning in Qt's log.
     *
     * What is an address is for QHostAddress to say: of a short form such as
     * 10.1 the parts fill the first fields and the other fields stay; of an IPv6
     * address three characters end up in the first field. A field takes the first
     * three characters of its part as they are, be it hexadecimal, octal or with
     * a blank in front: trim texts from elsewhere. With acceptsAnyAddress, four
     * numbers up to 255 are an address and nothing else is; 01 may stand for 1
     * there, but 001 may not.
     *
     * \note Hides QLineEdit::setText().
     */
    void setText(const QString &text);

    /*!
     * The numbers as typed, joined by dots, so "..." while all are empty.
     * \note Hides QLineEdit::text().
     */
    QString text() const;

    /*!
     * Whether each field holds something and the user has edited at least one.
     * Such an answer clears the fields' modified flags, so it is given once per
     * edit.
     *
     * \note Hides QLineEdit::isModified().
     */
    bool isModified() const;

    /*!
     * Whether each field holds a number that can be typed there.
     * \note Hides QLineEdit::hasAcceptableInput().
     */
    bool hasAcceptableInput() const;

    /*!
     * Empties the four fields.
     * \note Hides QLineEdit::clear().
     */
    void clear();

    /*!
     * Sets a property of the four fields, not of this widget, and returns what
     * the last of them does: false for a dynamic property.
     *
     * \note Hides QObject::setProperty().
     */
    bool setProperty(const char *name, const QVariant &value);

    /*! Gives the first field the focus. */
    void setIPFocus();

    /*! The place of \a field, 0 to 3, or -1 if it is none of the four. */
    int getIndex(QLineEdit *field) const;

    /*!
     * Whether \a text is empty or looks like an address that can be typed. Any
     * character counts as a dot, so that 1x2x3x4 is valid, too. With
     * acceptsAnyAddress: whether it is empty or an address.
     */
    bool isTextValid(const QString &text) const;

    /*!
     * Moves the focus between the fields on key presses, which still reach the field
     * that they were for: all but the full stop between two fields and, with
     * acceptsAnyAddress, the keys that copy or paste a whole address.
     */
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /*! Writes the fields' numbers without leading zeros; their modified flags stay. Comes by itself when the
     * user leaves a field that holds an acceptable number. */
    void slot_fixInput();

Q_SIGNALS:
    /*! text() is now \a address, be it by the user or the program. Comes once, however many fields change. */
    void addressChanged(const QString &address);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void createWidgets();
    void createConnects();

    const std::unique_ptr<IPLineEditPrivate> d;
};

} // namespace Tarn::Widgets

#endif
