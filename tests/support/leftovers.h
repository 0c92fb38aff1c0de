// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_LEFTOVERS_H
#define TARN_TEST_LEFTOVERS_H

#include <QStringList>

namespace Tarn::Test {

/*!
 * The top-level widgets that are still there, shown or not, one line of class
 * and object name each. Deletions that were put off are done first. Widgets
 * kept by design are excused by naming their class, a base class or their
 * object name in \a excused.
 */
QStringList leftOverTopLevels(const QStringList &excused = {});

} // namespace Tarn::Test

#endif
