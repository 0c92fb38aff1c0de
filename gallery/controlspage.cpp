// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "controlspage.h"

#include "parts.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace Gallery {

namespace {

constexpr int ListEntries = 12;

QWidget *createButtons()
{
    auto *row = new QWidget;
    auto *first = new QPushButton;
    showText(first, [] { return ControlsPage::tr("Default"); });
    first->setDefault(true);
    auto *menu = new QMenu(row);
    QAction *copy = menu->addAction(QString());
    QAction *paste = menu->addAction(QString());
    paste->setEnabled(false);
    menu->addSeparator();
    QAction *selectAll = menu->addAction(QString());
    keepTranslated(menu, [=] {
        copy->setText(ControlsPage::tr("Copy"));
        paste->setText(ControlsPage::tr("Paste"));
        selectAll->setText(ControlsPage::tr("Select all"));
    });
    auto *second = new QPushButton;
    showText(second, [] { return ControlsPage::tr("Menu"); });
    second->setMenu(menu);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(first, 1);
    layout->addWidget(second, 1);
    return row;
}

QWidget *createMarks()
{
    auto *marks = new QWidget;
    auto *layout = new QGridLayout(marks);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(0);
    auto *partly = new QCheckBox;
    showText(partly, [] { return ControlsPage::tr("Partly"); });
    partly->setTristate(true);
    partly->setCheckState(Qt::PartiallyChecked);
    auto *chosen = new QRadioButton;
    showText(chosen, [] { return ControlsPage::tr("Chosen"); });
    chosen->setChecked(true);
    auto *checked = new QCheckBox;
    showText(checked, [] { return ControlsPage::tr("Checked"); });
    checked->setChecked(true);
    auto *other = new QRadioButton;
    showText(other, [] { return ControlsPage::tr("Other"); });
    layout->addWidget(checked, 0, 0, Qt::AlignLeft);
    layout->addWidget(partly, 0, 1, Qt::AlignLeft);
    layout->addWidget(chosen, 1, 0, Qt::AlignLeft);
    layout->addWidget(other, 1, 1, Qt::AlignLeft);
    return marks;
}

QWidget *createFields()
{
    auto *fields = new QWidget;
    auto *layout = new QGridLayout(fields);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    QComboBox *unit = createComboBox();
    keepTranslated(unit, [unit] {
        setRowTexts(
            unit, {ControlsPage::tr("Celsius"), ControlsPage::tr("Fahrenheit"), ControlsPage::tr("Kelvin")});
    });
    auto *text = new QLineEdit;
    showSample(text, [] { return ControlsPage::tr("Tank 2"); });
    addFormRow(
        layout, [] { return ControlsPage::tr("Text"); }, text);
    addFormRow(
        layout, [] { return ControlsPage::tr("Number"); }, new QSpinBox);
    addFormRow(
        layout, [] { return ControlsPage::tr("Choice"); }, unit);
    return fields;
}

QWidget *createList()
{
    auto *list = new QListWidget;
    for (int i = 0; i < ListEntries; ++i)
        list->addItem(QString());
    keepTranslated(list, [list] {
        for (int i = 0; i < ListEntries; ++i)
            list->item(i)->setText(ControlsPage::tr("Sensor %1").arg(i + 1));
    });
    list->setCurrentRow(1);
    list->setResizeMode(QListView::Adjust); // the first layout comes before the style sheet's sizes
    return list;
}

QWidget *createPanel(const Text &title, bool isEnabled)
{
    auto *panel = new QGroupBox;
    showText(panel, title);
    auto *layout = new QVBoxLayout(panel);
    layout->setSpacing(8);
    layout->addWidget(createButtons());
    layout->addWidget(createMarks());
    layout->addWidget(createFields());
    layout->addWidget(createList(), 1);
    panel->setEnabled(isEnabled);
    return panel;
}

} // namespace

ControlsPage::ControlsPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(16);
    layout->addWidget(createPanel([] { return tr("Enabled"); }, true));
    layout->addWidget(createPanel([] { return tr("Disabled"); }, false));
}

ControlsPage::~ControlsPage() = default;

Page ControlsPage::page()
{
    return {QStringLiteral("controls"),
            tr("Controls"),
            tr("What the theme makes of Qt's own widgets."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new ControlsPage(parent); },
            {}};
}

} // namespace Gallery
