// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "picturecomparison.h"

#include <QDir>
#include <QImage>
#include <QRect>
#include <algorithm>
#include <cstdlib>

namespace Tarn::Test {

namespace {

/*
 * As it was painted. A file keeps colours that are not multiplied with their alpha, and Qt's vector code,
 * which divides by it, rounds one way on x86-64 and the other on AArch64; both are the same again when
 * multiplied.
 */
QImage painted(const QDir &directory, const QString &name)
{
    return QImage(directory.filePath(name)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/* The bytes of a pixel, which pixel() would divide by their alpha. */
QRgb bytesAt(const QImage &image, int x, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y))[x];
}

/* How far two colours are apart in the channel in which they are most. */
int distance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

/* Nothing if they are alike. */
QString difference(const QImage &first, const QImage &second)
{
    if (first.isNull() || second.isNull())
        return QStringLiteral("cannot be read");
    if (first.size() != second.size())
        return QStringLiteral("%1 and %2 pixels").arg(sizeText(first.size()), sizeText(second.size()));

    int count = 0;
    int most = 0;
    QRect area;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const int apart = distance(bytesAt(first, x, y), bytesAt(second, x, y));
            most = std::max(most, apart);
            if (apart > 0) {
                ++count;
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    if (count == 0)
        return QString();
    return QStringLiteral("%1 pixels differ, by up to %2 of 255, within %3 at %4,%5")
        .arg(count)
        .arg(most)
        .arg(sizeText(area.size()))
        .arg(area.x())
        .arg(area.y());
}

} // namespace

QStringList picturesIn(const QDir &directory)
{
    return directory.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

QStringList pictureDifferences(const QDir &first, const QDir &second)
{
    QStringList all = picturesIn(first) + picturesIn(second);
    all.removeDuplicates();
    all.sort();
    QStringList found;
    for (const QString &name : qAsConst(all)) {
        QString text;
        if (!first.exists(name) || !second.exists(name))
            text = QStringLiteral("only in %1").arg((first.exists(name) ? first : second).path());
        else
            text = difference(painted(first, name), painted(second, name));
        if (!text.isEmpty())
            found.append(name + QStringLiteral(": ") + text);
    }
    return found;
}

} // namespace Tarn::Test
