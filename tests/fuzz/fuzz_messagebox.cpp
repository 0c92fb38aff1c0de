// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Any texts in a message box that is shown, which takes its size from them.

#include "fuzzsupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScreen>
#include <tarnwidgets/framelessmessagebox_p.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::DetailButton;
using Tarn::Widgets::FramelessMessageBox;
using Tarn::Widgets::FramelessMessageBoxPrivate;

namespace {

constexpr QSize SmallestBox(400, 220);
constexpr int MostChanges = 4; // of all texts; inputs grow to a hundred else, and take their time

struct Texts
{
    explicit Texts(Input *input)
        : text(input->text())
        , informative(input->text())
        , detailed(input->text())
        , title(input->text())
    {
    }

    void give(FramelessMessageBox *box) const
    {
        box->setWindowTitle(title);
        box->setText(text);
        box->setInformativeText(informative);
        box->setDetailedText(detailed);
    }

    QString text;
    QString informative;
    QString detailed;
    QString title;
};

void openDetails(FramelessMessageBox *box)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (dynamic_cast<DetailButton *>(button))
            button->click();
    }
}

void checkSize(const FramelessMessageBox &box)
{
    const int screenWidth = QApplication::primaryScreen()->availableGeometry().width();
    const int limit = qMax(SmallestBox.width(), FramelessMessageBoxPrivate::hardWidthLimit(screenWidth));
    require(box.width() <= limit, "no text widens the box beyond the limit");
    require(box.width() >= SmallestBox.width() && box.height() >= SmallestBox.height(),
            "no box is smaller than the smallest");
}

/* Parts that went, and layouts that are to be made anew. */
void handlePostedEvents()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const int flags = input.byte();
    FramelessMessageBox box;
    box.setTextFormat(flags & 1 ? Qt::PlainText : Qt::AutoText);
    box.setIcon(QMessageBox::Icon(flags >> 1 & 3));
    Texts texts(&input);
    texts.give(&box);
    box.show();
    checkSize(box);
    require(box.text() == texts.text && box.informativeText() == texts.informative,
            "the texts stay as given");
    if (flags & 8) {
        openDetails(&box);
        checkSize(box);
    }
    for (int left = MostChanges; left > 0 && !input.atEnd(); --left) { // a visible box follows
        texts = Texts(&input);
        texts.give(&box);
        handlePostedEvents();
        checkSize(box);
    }
    box.setText(texts.text); // parts that came last count from now on
    const QSize shown = box.size();
    box.setText(texts.text);
    require(box.size() == shown, "the same text again makes the same size");
    box.hide();
    handlePostedEvents();
    return 0;
}
