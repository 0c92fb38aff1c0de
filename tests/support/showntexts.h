// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_SHOWNTEXTS_H
#define TARN_TEST_SHOWNTEXTS_H

#include <QStringList>

class QWidget;

namespace Tarn::Test {

/*!
 * All texts that a user may see, or hear from a screen reader, on \a window and
 * its children: each as "class property: text", in the order of the children.
 * Hidden widgets are left out with \a visibleOnly.
 */
QStringList textsOn(const QWidget *window, bool visibleOnly);

/*! Labels, buttons and boxes on \a window that are seen, and have less room than their text takes. */
QStringList textsCutOffOn(const QWidget *window);

bool hasChineseLetter(const QString &text);

} // namespace Tarn::Test

#endif
