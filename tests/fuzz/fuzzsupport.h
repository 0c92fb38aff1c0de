// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_FUZZ_FUZZSUPPORT_H
#define TARN_FUZZ_FUZZSUPPORT_H

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>

class QMimeData;
class QWidget;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace Tarn::Fuzz {

/*! Ends the program, which is how a target tells a finding, after naming the \a rule that does not hold. */
void require(bool holds, const char *rule);

/*! How many messages have reached Qt's log, which shows none of them. */
int messageCount();

/*! Takes an input apart from its front. Behind its end there are zeros and empty texts. */
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size);

    bool atEnd() const;
    int byte();

    /*! A number from 0 to \a count - 1. */
    int below(int count);

    /*! Up to the next byte 0xff, which is in no UTF-8 text, or the end. */
    QByteArray bytes();

    /*! The same as UTF-8, in which U+E000 to U+E7FF stand for the halves of surrogate pairs, which UTF-8 does
     * not have. */
    QString text();

private:
    const QByteArray m_data;
    int m_pos = 0;
};

/*! Shows the widget in the active window, which keys and the focus ask for. */
void showActive(QWidget *widget);

/*! Sends the widget with the focus what a keyboard does for a byte below 0x80: a character, or a key that has
 * none.
 */
void pressKey(int byte);

/*! Drags \a data over the widget and drops it if the widget would take it. Whether it was dropped and taken.
 */
bool drop(QWidget *widget, const QMimeData &data);

} // namespace Tarn::Fuzz

#endif
