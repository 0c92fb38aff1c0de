// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// FramelessMessageBox against QMessageBox.

#include "barelife.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessmessagebox.h>

using Tarn::Benchmark::bareLife;
using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::FramelessDialog;
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

std::unique_ptr<QWidget> makeFullBox()
{
    auto box = std::make_unique<FramelessMessageBox>(QMessageBox::Warning, QStringLiteral("Storage"),
                                                     QStringLiteral("The storage is full."), QMessageBox::Ok);
    addAllTexts(box.get());
    return box;
}

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

/* The widgets and layouts of a message box, without anybody who asks for their sizes. */
class BareBox : public FramelessDialog
{
public:
    BareBox(const QString &title, const QString &text)
        : m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok))
        , m_text(createLabel(text))
    {
        setOKButtonVisible(false);
        setCancelButtonVisible(false);
        setModal(true);
        setWindowTitle(title);
        m_pBottomLayout->addWidget(m_buttons);
        connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        m_grid->setContentsMargins(20, 10, 20, 10);
        m_grid->setVerticalSpacing(16);
        m_grid->addItem(new QSpacerItem(15, 1, QSizePolicy::Fixed, QSizePolicy::Fixed), 0, 1, 2, 1);
        m_grid->addWidget(m_text, 0, 2, 2, 2, Qt::AlignVCenter);
        auto *layout = new QVBoxLayout;
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addStretch();
        layout->addLayout(m_grid);
        layout->addStretch();
        setLayout(layout);
        (new QLabel(this))->hide(); // for the icon
        setFixedSize(400, 220);
    }

    QAbstractButton *button(QMessageBox::StandardButton button) const
    {
        return m_buttons->button(QDialogButtonBox::StandardButton(button));
    }

private:
    static QLabel *createLabel(const QString &text)
    {
        auto *label = new QLabel;
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
        label->setOpenExternalLinks(true);
        label->setText(text);
        label->setWordWrap(true);
        return label;
    }

    QDialogButtonBox *const m_buttons;
    QLabel *const m_text;
    QGridLayout *const m_grid = new QGridLayout;
};

class BareLife : public Side
{
public:
    void step() override
    {
        BareBox box(QStringLiteral("Storage"), QStringLiteral("The records were stored."));
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
            {"message-life", "a message with OK: made, shown, painted, clicked, destroyed", 1.15,
             side<Life<FramelessMessageBox>>(), side<Life<QMessageBox>>(), nullptr, true, 20, 20,
             side<BareLife>()},
            {"message-bare", "the same against its bare widgets and layouts", 0.89,
             side<Life<FramelessMessageBox>>(), side<BareLife>(), nullptr, true, 20},
            {"message-full-life", "the same with icon, informative and detailed text", 0.33,
             side<FullLife<FramelessMessageBox>>(), side<FullLife<QMessageBox>>(), nullptr, true, 10, 20,
             bareLife(makeFullBox)},
            {"message-details", "details opened and closed", 0.13, side<Details<FramelessMessageBox>>(),
             side<Details<QMessageBox>>(), nullptr, true, 10},
        });
}
