// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_QSSLOADER_H
#define TARN_WIDGETS_QSSLOADER_H

#include "tarnwidgets_export.h"

#include <QString>

/*!
 * \ingroup styles
 * \brief Reads a style sheet file into a string.
 *
 * Unlike the classes around it, it lives outside the library's namespace.
 *
 * \code
 * qApp->setStyleSheet(QssLoader::load(QStringLiteral("/usr/share/tarnwidgets/themes/dark.qss")));
 * \endcode
 */
class TARNWIDGETS_EXPORT QssLoader
{
public:
    /*!
     * The whole text of the UTF-8 file at \a path, with plain line feeds and up
     * to the first NUL byte. The path is taken as it stands: nothing is
     * searched.
     *
     * Null where the file cannot be opened, and also where it is empty; nothing
     * is logged.
     */
    static QString load(const QString &path);
};

#endif
