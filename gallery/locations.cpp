// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "locations.h"

#include <QCoreApplication>
#include <QDir>

namespace Gallery {

QString dataDirectory(const QString &name)
{
    const QString roots[] = {QCoreApplication::applicationDirPath()
                                 + QStringLiteral("/../share/tarnwidgets/"),
                             QStringLiteral(GALLERY_INSTALLED_DATA "/")};
    for (const QString &root : roots) {
        const QDir directory(root + name);
        if (directory.exists())
            return directory.canonicalPath();
    }
    return QString();
}

} // namespace Gallery
