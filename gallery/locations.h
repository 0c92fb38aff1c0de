// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_LOCATIONS_H
#define GALLERY_LOCATIONS_H

#include <QString>

namespace Gallery {

/*!
 * The directory \a name of the library's shared data, for example "themes": the
 * one that lies beside the program's own directory, as it does in the build tree
 * and where the whole tree was installed elsewhere, or else the one that was
 * chosen when the program was configured. Null if neither exists.
 */
QString dataDirectory(const QString &name);

} // namespace Gallery

#endif
