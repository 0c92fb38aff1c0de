// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_PICTURECOMPARISON_H
#define TARN_TEST_PICTURECOMPARISON_H

#include <QStringList>

class QDir;

namespace Tarn::Test {

/*! The names of the PNG files in \a directory. */
QStringList picturesIn(const QDir &directory);

/*!
 * What the PNG files of two directories differ in: a line for each picture that
 * only one of them has, or that has another size or other pixels in the second.
 * Colours are compared multiplied with their alpha, as they go to a screen.
 */
QStringList pictureDifferences(const QDir &first, const QDir &second);

} // namespace Tarn::Test

#endif
