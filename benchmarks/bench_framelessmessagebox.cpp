// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// FramelessMessageBox against QMessageBox.

#include "benchmark.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <tarnwidgets/framelessmessagebox.h>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::FramelessMessageBox;

namespace {

template <typename Box> QAbstractButton *detailsButton(const Box &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (box.buttonRole(button) == QMessageBox::ActionRole)
            return button;
    }
    return nullptr;
}

template <typename Box> void addAllTexts(Box *box)
{
    box->setInformativeText(QStringLiteral("The device keeps what was measured until it is switched off."));
    box->setDetailedText(QStringLiteral("channel 1: 17 records\nchannel 2: 4 records"));
}

template <typename Box> void showAndAccept(Box *box)
{
    box->show();
    QApplication::processEvents();
    box->button(QMessageBox::Ok)->click();
    QApplication::processEvents();
}

/* A message in its simplest form, from construction to destruction. */
template <typename Box> class Life : public Side
{
public:
    void step() override
    {
        Box box(QMessageBox::NoIcon, QStringLiteral("Storage"), QStringLiteral("The records were stored."),
                QMessageBox::Ok);
        showAndAccept(&box);
    }
};

template <typename Box> class FullLife : public Side
{
public:
    void step() override
    {
        Box box(QMessageBox::Warning, QStringLiteral("Storage"), QStringLiteral("The storage is full."),
                QMessageBox::Ok);
        addAllTexts(&box);
        showAndAccept(&box);
    }
};

template <typename Box> class Details : public Side
{
public:
    Details()
        : m_box(QMessageBox::Warning, QStringLiteral("Storage"), QStringLiteral("The storage is full."),
                QMessageBox::Ok)
    {
        addAllTexts(&m_box);
        m_box.show();
    }

    void step() override
    {
        QAbstractButton *button = detailsButton(m_box);
        button->click();
        QApplication::processEvents();
        button->click();
        QApplication::processEvents();
    }

private:
    Box m_box;
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"message-life", "a message with OK: made, shown, painted, clicked, destroyed", 1.36,
             side<Life<FramelessMessageBox>>(), side<Life<QMessageBox>>(), nullptr, true, 20},
            {"message-full-life", "the same with icon, informative and detailed text", 0.43,
             side<FullLife<FramelessMessageBox>>(), side<FullLife<QMessageBox>>(), nullptr, true, 10},
            {"message-details", "details opened and closed", 0.36, side<Details<FramelessMessageBox>>(),
             side<Details<QMessageBox>>(), nullptr, true, 10},
        });
}
