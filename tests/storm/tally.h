// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_TALLY_H
#define TARN_STORM_TALLY_H

#include <QByteArray>

class QEvent;

namespace Tarn::Storm {

/*!
 * How often each thing was done, by names such as "call TitleBar::setTitle". What is expected counts as
 * missing until it was done once.
 */
void expectInTally(const QByteArray &name);
void tally(const QByteArray &name);

/*! Counts \a event by its type, and by its reason if it brings the focus. */
void tally(const QEvent *event);

void printTally();

/*! Prints what is missing, and returns how much that is. */
int printMissing();

} // namespace Tarn::Storm

#endif
