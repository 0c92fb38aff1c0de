// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "stylesheetwidget.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace Tarn::Widgets {

class StyleSheetWidgetPrivate
{};

StyleSheetWidget::StyleSheetWidget(QWidget *parent)
    : QWidget(parent)
{
}

StyleSheetWidget::~StyleSheetWidget() = default;

void StyleSheetWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

} // namespace Tarn::Widgets
