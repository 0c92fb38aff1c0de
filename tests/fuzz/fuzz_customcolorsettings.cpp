// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The custom colours' file, read by us and by QSettings.

#include "fuzzsupport.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <tarnwidgets/customcolorfile_p.h>

using Tarn::Fuzz::require;
using Tarn::Widgets::CustomColorCount;
using Tarn::Widgets::CustomColorText;

namespace {

/* QSettings makes objects of any kind and size out of what follows an at sign, however that is written. */
bool isHarmless(const QByteArray &text)
{
    if (text.contains('@'))
        return false;
    for (int pos = text.indexOf('\\'); pos >= 0; pos = text.indexOf('\\', pos + 1)) {
        const QByteArray next = text.mid(pos + 1, 1);
        if (next == "x" || (next >= "0" && next <= "7"))
            return false;
    }
    return true;
}

/* Qt remembers files by their names, so each text has a file of another. */
QVector<QRgb> colorsForSettings(const QByteArray &text)
{
    static const QTemporaryDir folder;
    static int number = 0;
    const QString path = folder.filePath(QStringLiteral("%1.ini").arg(++number));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), "the file can be written");
    file.close();
    const QVariantList list =
        QSettings(path, QSettings::IniFormat).value(QStringLiteral("customColor")).toList();
    file.remove();
    QVector<QRgb> colors;
    for (const QVariant &value : list.mid(0, CustomColorCount))
        colors.append(value.toUInt());
    return colors;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    if (!isHarmless(text))
        return 0;
    CustomColorText content(text);
    // For QSettings the mark is a part of the first key where no group stands between them.
    if (content.mark.isEmpty() || text.mid(content.mark.size()).startsWith('['))
        require(content.colors == colorsForSettings(text), "the colours are those that QSettings reads");

    for (int i = 0; i < CustomColorCount; ++i)
        content.colors.append(0xff123456U + uint(i) * 0x01010101U);
    content.colors = content.colors.mid(content.colors.size() - CustomColorCount);
    require(colorsForSettings(content.text()) == content.colors, "QSettings reads what is written");
    return 0;
}
