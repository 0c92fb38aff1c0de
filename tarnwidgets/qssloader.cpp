// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "qssloader.h"

#include <QFile>

QString QssLoader::load(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    const QByteArray text = file.readAll();
    if (text.isEmpty())
        return QString();
    // Handed over as a C string, so that the text ends at the first NUL byte.
    return QString::fromUtf8(text.constData());
}
