// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_LANGUAGE_H
#define GALLERY_LANGUAGE_H

#include <QString>

namespace Gallery {

/*!
 * Installs the translations of the library, of the gallery and of Qt for
 * \a language, or for the system's where it is empty. False where the gallery
 * has none for a language other than English; texts are English then.
 */
bool installLanguage(const QString &language);

} // namespace Gallery

#endif
