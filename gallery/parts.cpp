// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStyledItemDelegate>

namespace Gallery {

QLabel *createNote(const Text &text)
{
    auto *note = new QLabel;
    note->setObjectName(QStringLiteral("galleryNote"));
    note->setWordWrap(true);
    showText(note, text);
    return note;
}

void addFormRow(QGridLayout *form, const Text &label, QWidget *field)
{
    auto *labelWidget = new QLabel;
    showText(labelWidget, label);
    labelWidget->setBuddy(field);
    const int row = form->rowCount();
    form->addWidget(labelWidget, row, 0);
    form->addWidget(field, row, 1);
}

QPushButton *createButton(const Text &text)
{
    auto *button = new QPushButton;
    showText(button, text);
    return button;
}

QCheckBox *createCheckBox(const Text &text, bool checked, std::function<void(bool)> onToggled)
{
    auto *box = new QCheckBox;
    showText(box, text);
    box->setChecked(checked);
    QObject::connect(box, &QCheckBox::toggled, box, std::move(onToggled));
    return box;
}

QSpinBox *createPixelBox(int minimum, int maximum, int value, std::function<void(int)> onChanged)
{
    auto *box = new QSpinBox;
    box->setRange(minimum, maximum);
    box->setValue(value);
    keepTranslated(box, [box] { box->setSuffix(QCoreApplication::translate("Gallery", " px")); });
    QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), box, std::move(onChanged));
    return box;
}

QComboBox *createComboBox()
{
    auto *box = new QComboBox;
    box->setItemDelegate(new QStyledItemDelegate(box));
    return box;
}

} // namespace Gallery
