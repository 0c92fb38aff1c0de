// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_MESSAGEBOXPARTS_H
#define TARN_TEST_MESSAGEBOXPARTS_H

#include <QSignalSpy>
#include <tarnwidgets/framelessmessagebox.h>

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace Tarn::Test {

/*! No code that a box ends with. */
constexpr int Untouched = -99;

/*! What a click, a key or a closing ended a box with, and how often. */
struct Outcome
{
    explicit Outcome(const Widgets::FramelessMessageBox &box);

    /*! Untouched until the box has ended. */
    int code() const;

    QSignalSpy clicks;
    QSignalSpy finished;
};

/*! Shows \a widget, and fails the test unless the window comes. */
void show(QWidget &widget);

QDialogButtonBox *buttonBoxOf(const Widgets::FramelessMessageBox &box);

QLabel *label(const Widgets::FramelessMessageBox &box, const QString &name);

/*! The button that opens and closes the details, if the box has one. */
QPushButton *detailsButton(const Widgets::FramelessMessageBox &box);

} // namespace Tarn::Test

#endif
