// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Any text at all in the place of the custom colours' file: it is read, and written with another list.

#include "fuzzsupport.h"

#include <tarnwidgets/customcolorfile_p.h>

using Tarn::Fuzz::require;
using Tarn::Widgets::CustomColorCount;
using Tarn::Widgets::CustomColorText;

namespace {

/* Whether the rest is the text without some of it. */
bool isLeftOf(const QByteArray &rest, const QByteArray &text)
{
    auto next = rest.cbegin();
    for (const char character : text) {
        if (next != rest.cend() && *next == character)
            ++next;
    }
    return next == rest.cend();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    CustomColorText content(text);
    require(content.colors.size() <= CustomColorCount, "there are sixteen colours at most");
    require(isLeftOf(content.rest, text), "the rest is the text without some of it");

    content.colors = QVector<QRgb>(CustomColorCount, 0xff123456);
    const CustomColorText again(content.text());
    require(again.colors == content.colors, "the colours are read as written");
    require(again.rest == content.rest, "the rest stays");
    require(again.mark == content.mark, "the mark stays");
    return 0;
}
