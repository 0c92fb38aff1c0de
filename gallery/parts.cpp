// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>
#include <QStyledItemDelegate>

namespace Gallery {

QLabel *createNote(const QString &text)
{
    auto *note = new QLabel(text);
    note->setObjectName(QStringLiteral("galleryNote"));
    note->setWordWrap(true);
    return note;
}

void addFormRow(QGridLayout *form, const QString &label, QWidget *field)
{
    auto *labelWidget = new QLabel(label);
    labelWidget->setBuddy(field);
    const int row = form->rowCount();
    form->addWidget(labelWidget, row, 0);
    form->addWidget(field, row, 1);
}

QCheckBox *createCheckBox(const QString &text, bool checked, std::function<void(bool)> onToggled)
{
    auto *box = new QCheckBox(text);
    box->setChecked(checked);
    QObject::connect(box, &QCheckBox::toggled, box, std::move(onToggled));
    return box;
}

QSpinBox *createPixelBox(int minimum, int maximum, int value, std::function<void(int)> onChanged)
{
    auto *box = new QSpinBox;
    box->setRange(minimum, maximum);
    box->setValue(value);
    box->setSuffix(QCoreApplication::translate("Gallery", " px"));
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
