// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "dialogspage.h"

#include "appearance.h"
#include "parts.h"
#include "pictureview.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <tarnwidgets/stylesheetwidget.h>

using Tarn::Widgets::StyleSheetWidget;

namespace Gallery {

namespace {

constexpr int LeftColumnWidth = 112; // of both groups, for alignment

DialogOptions everything()
{
    DialogOptions options;
    options.minButton = options.maxButton = options.applyButton = options.resizable = true;
    return options;
}

DialogOptions withoutBottomBar()
{
    DialogOptions options;
    options.bottomBar = false;
    return options;
}

} // namespace

DialogsPage::DialogsPage(Appearance *appearance, QWidget *parent)
    : QWidget(parent)
{
    auto *settings = new QVBoxLayout;
    settings->addWidget(createSwitches());
    settings->addWidget(createNumbers());
    settings->addStretch();
    auto *result = new QVBoxLayout;
    result->addWidget(createPreview(), 1);
    result->addWidget(createOpenButtons());

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(16);
    layout->addLayout(settings);
    layout->addLayout(result, 1);
    for (QVBoxLayout *column : {settings, result})
        column->setSpacing(10);
    connect(appearance, &Appearance::changed, this, &DialogsPage::updatePreview);
}

DialogsPage::~DialogsPage() = default;

Page DialogsPage::page()
{
    return {QStringLiteral("dialogs"),
            tr("Dialogs"),
            tr("Dragged by the title, resized by the edges, with a border of their own."),
            [](Appearance *appearance, QWidget *parent) -> QWidget * {
                return new DialogsPage(appearance, parent);
            },
            {{QStringLiteral("plain"),
              [](QWidget *parent) -> QDialog * { return new SampleDialog(DialogOptions(), parent); }},
             {QStringLiteral("everything"),
              [](QWidget *parent) -> QDialog * { return new SampleDialog(everything(), parent); }},
             {QStringLiteral("without-bottom-bar"),
              [](QWidget *parent) -> QDialog * { return new SampleDialog(withoutBottomBar(), parent); }}}};
}

QWidget *DialogsPage::createSwitches()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Dialog"); });
    auto *layout = new QGridLayout(group);
    layout->setVerticalSpacing(0);
    layout->setColumnMinimumWidth(0, LeftColumnWidth);
    layout->setColumnStretch(1, 1);
    const auto add = [=](int row, int column, const Text &text, bool DialogOptions::*option) {
        layout->addWidget(createSwitch(text, option), row, column, Qt::AlignLeft);
    };
    add(
        0, 0, [] { return tr("Minimise"); }, &DialogOptions::minButton);
    add(
        0, 1, [] { return tr("Maximise"); }, &DialogOptions::maxButton);
    add(
        1, 0, [] { return tr("Close"); }, &DialogOptions::closeButton);
    add(
        1, 1, [] { return tr("Apply"); }, &DialogOptions::applyButton);
    add(
        2, 0, [] { return tr("Bottom bar"); }, &DialogOptions::bottomBar);
    add(
        3, 0, [] { return tr("Movable"); }, &DialogOptions::movable);
    add(
        3, 1, [] { return tr("by outline"); }, &DialogOptions::outlineOnMove);
    add(
        4, 0, [] { return tr("Resizable"); }, &DialogOptions::resizable);
    add(
        4, 1, [] { return tr("by outline"); }, &DialogOptions::outlineOnResize);
    return group;
}

QWidget *DialogsPage::createNumbers()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Sizes"); });
    auto *layout = new QGridLayout(group);
    layout->setColumnMinimumWidth(0, LeftColumnWidth);
    addFormRow(
        layout, [] { return tr("Separator lines"); }, createNumber(0, 8, &DialogOptions::lineHeight));
    addFormRow(
        layout, [] { return tr("Resize border"); }, createNumber(1, 40, &DialogOptions::borderWidth));
    addFormRow(
        layout, [] { return tr("Drag zone"); }, createNumber(1, 200, &DialogOptions::titleHeight));
    return group;
}

QWidget *DialogsPage::createPreview()
{
    auto *stage = new StyleSheetWidget(this);
    stage->setObjectName(QStringLiteral("galleryStage"));
    m_preview = new PictureView(stage);
    keepTranslated(m_preview, [this] {
        m_preview->setAccessibleName(tr("Picture of the dialog"));
        if (m_preview->isVisible())
            updatePreview();
    });
    m_outcome = createNote([] { return tr("Not opened yet"); });
    m_outcome->setAlignment(Qt::AlignCenter);

    auto *layout = new QVBoxLayout(stage);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_outcome);
    return stage;
}

QWidget *DialogsPage::createOpenButtons()
{
    auto *row = new QWidget(this);
    auto *modal = createButton([] { return tr("Open modal"); });
    auto *modeless = createButton([] { return tr("Open modeless"); });
    modal->setDefault(true);
    connect(modal, &QPushButton::clicked, this, &DialogsPage::openModal);
    connect(modeless, &QPushButton::clicked, this, &DialogsPage::openModeless);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(modal);
    layout->addWidget(modeless);
    layout->addStretch();
    return row;
}

QCheckBox *DialogsPage::createSwitch(const Text &text, bool DialogOptions::*option)
{
    return createCheckBox(text, m_options.*option, [this, option](bool on) {
        m_options.*option = on;
        updatePreview();
    });
}

QWidget *DialogsPage::createNumber(int minimum, int maximum, int DialogOptions::*option)
{
    return createPixelBox(minimum, maximum, m_options.*option, [this, option](int value) {
        m_options.*option = value;
        updatePreview();
    });
}

void DialogsPage::openModal()
{
    // Watched, since the page may be deleted meanwhile, and the dialog with it.
    const QPointer<SampleDialog> dialog = new SampleDialog(m_options, this);
    const int result = dialog->exec();
    if (!dialog)
        return;
    delete dialog;
    showOutcome(result);
}

void DialogsPage::openModeless()
{
    auto *dialog = new SampleDialog(m_options, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &DialogsPage::showOutcome);
    dialog->show();
}

void DialogsPage::showOutcome(int result)
{
    showText(m_outcome, [=] { return result == QDialog::Accepted ? tr("Accepted") : tr("Rejected"); });
}

void DialogsPage::updatePreview()
{
    SampleDialog model(m_options);
    model.resize(model.sizeHint());
    m_preview->setPicture(model.grab());
}

void DialogsPage::showEvent(QShowEvent *event)
{
    updatePreview();
    QWidget::showEvent(event);
}

} // namespace Gallery
