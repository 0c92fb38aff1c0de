// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "sampledialog.h"

#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <tarnwidgets/framelesshelper.h>

using Tarn::Widgets::FramelessHelper;

namespace Gallery {

namespace {

QComboBox *createModeBox()
{
    QComboBox *box = createComboBox();
    keepTranslated(box, [box] {
        setRowTexts(box,
                    {SampleDialog::tr("Automatic"), SampleDialog::tr("By hand"), SampleDialog::tr("Off")});
    });
    return box;
}

QSpinBox *createLevelBox()
{
    auto *box = new QSpinBox;
    box->setRange(0, 100);
    box->setValue(60);
    box->setSuffix(QStringLiteral(" %"));
    return box;
}

QCheckBox *createAlarmBox()
{
    auto *box = new QCheckBox;
    showText(box, [] { return SampleDialog::tr("Sound an alarm"); });
    box->setChecked(true);
    return box;
}

} // namespace

SampleDialog::SampleDialog(const DialogOptions &options, QWidget *parent)
    : FramelessDialog(parent)
{
    keepTranslated(this, [this] { setWindowTitle(tr("Pump settings")); });
    auto *form = new QGridLayout(getContentHolder());
    form->setContentsMargins(20, 14, 20, 14);
    form->setColumnStretch(1, 1);
    auto *name = new QLineEdit;
    showSample(name, [] { return tr("Pump 4"); });
    addFormRow(
        form, [] { return tr("Name"); }, name);
    addFormRow(
        form, [] { return tr("Mode"); }, createModeBox());
    addFormRow(
        form, [] { return tr("Level"); }, createLevelBox());
    form->addWidget(createAlarmBox(), form->rowCount(), 1, Qt::AlignLeft);
    form->setRowStretch(form->rowCount(), 1);
    name->setFocus(); // the bottom bar was there first
    setOptions(options);
}

SampleDialog::~SampleDialog() = default;

void SampleDialog::setOptions(const DialogOptions &options)
{
    setMinButtonVisible(options.minButton);
    setMaxButtonVisible(options.maxButton);
    setCloseButtonVisible(options.closeButton);
    setApplyButtonVisible(options.applyButton);
    setBottomBarVisible(options.bottomBar);
    setHorizontalLineHeight(options.lineHeight);

    setDialogMovable(options.movable);
    setDialogResizable(options.resizable); // after the maximise button, which takes it away
    setRubberBandOnMove(options.outlineOnMove);
    setRubberBandOnResize(options.outlineOnResize);

    // Any helper sets these for all of them; every new dialog sets the title height again.
    FramelessHelper helper;
    helper.setBorderWidth(uint(options.borderWidth));
    helper.setTitleHeight(uint(options.titleHeight));
}

} // namespace Gallery
