// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_ORACLE_H
#define TARN_STORM_ORACLE_H

#include "stage.h"

namespace Tarn::Storm {

/*! Takes over Qt's log. What is in it and is not to be expected, sanctioned messages left out, is a finding.
 */
void watchLog();

/*! The first unexpected message since the last call, or null. */
QString unexpectedMessage();

/*! What the classes' headers promise at any time and does not hold; null if all is well. */
QString brokenPromise(Stage &stage);

/*! Widgets that are still there; null if there are none. */
QString leftOvers();

} // namespace Tarn::Storm

#endif
