// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The label that measures plain texts itself against QLabel.

#include "fuzzsupport.h"

#include <array>
#include <tarnwidgets/framelessmessagebox_p.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::MessageLabel;

namespace {

constexpr int WidthStep = 7;
constexpr int MostTexts = 8; // inputs grow to a hundred else, and take their time
constexpr std::array<int, 4> FontSizes = {0, 9, 16, 31}; // the first keeps the application's
constexpr std::array<Qt::TextFormat, 3> Formats = {Qt::AutoText, Qt::PlainText, Qt::RichText};

/* What the input says of a label besides its text. */
struct Look
{
    explicit Look(Input *input)
        : flags(input->byte())
        , format(Formats.at(uint(input->below(int(Formats.size())))))
        , fontSize(FontSizes.at(uint(input->below(int(FontSizes.size())))))
        , width(input->byte() * WidthStep)
    {
    }

    void give(QLabel *label) const
    {
        label->setWordWrap(flags & 1);
        if (flags & 2)
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (flags & 4)
            label->setContentsMargins(3, 7, 5, 11);
        label->setTextFormat(format);
        if (fontSize > 0) {
            QFont font = label->font();
            font.setPixelSize(fontSize);
            label->setFont(font);
        }
    }

    int flags;
    Qt::TextFormat format;
    int fontSize;
    int width;
};

void compare(const QLabel &ours, const QLabel &qts, int width)
{
    require(ours.sizeHint() == qts.sizeHint(), "sizeHint() is that of QLabel");
    require(ours.minimumSizeHint() == qts.minimumSizeHint(), "minimumSizeHint() is that of QLabel");
    for (const int asked : {0, width, width + 1})
        require(ours.heightForWidth(asked) == qts.heightForWidth(asked),
                "heightForWidth() is that of QLabel");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    MessageLabel ours;
    QLabel qts;
    // One after the other in the same labels, so that nothing kept from the former may show.
    int left = MostTexts;
    do {
        const Look look(&input);
        const QString text = input.text();
        for (QLabel *label : {static_cast<QLabel *>(&ours), &qts}) {
            look.give(label);
            label->setText(text);
        }
        compare(ours, qts, look.width);
        ours.endMeasuring();
        for (QLabel *label : {static_cast<QLabel *>(&ours), &qts})
            label->setWordWrap(!label->wordWrap());
        compare(ours, qts, look.width);
    } while (--left > 0 && !input.atEnd());
    return 0;
}
