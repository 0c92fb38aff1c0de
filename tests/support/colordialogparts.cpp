// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colordialogparts.h"

#include "events.h"

#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <tarnwidgets/colordialog.h>

namespace Tarn::Test {

namespace {

constexpr int CustomRows = 2;
constexpr int CustomColors = 16;

QVector<QWidget *> childrenOfClass(const QWidget *parent, const char *className)
{
    QVector<QWidget *> found;
    const auto children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (qstrcmp(child->metaObject()->className(), className) == 0)
            found.append(child);
    }
    return found;
}

QWidget *childOfClass(const QWidget *parent, const char *className)
{
    const QVector<QWidget *> found = childrenOfClass(parent, className);
    return found.size() == 1 ? found.constFirst() : nullptr;
}

} // namespace

ColorDialogParts::ColorDialogParts(const Widgets::ColorDialog *dialog)
    : field(childOfClass(dialog, "Tarn::Widgets::ColorPicker"))
    , strip(childOfClass(dialog, "Tarn::Widgets::ColorLuminancePicker"))
    , shower(childOfClass(dialog, "Tarn::Widgets::ColorShower"))
    , swatch(childOfClass(dialog, "Tarn::Widgets::ColorShowLabel"))
{
    const QVector<QWidget *> grids = childrenOfClass(dialog, "Tarn::Widgets::ColorWellArray");
    standardGrid = grids.value(0);
    customGrid = grids.value(1);
    if (shower) {
        boxes = shower->findChildren<QSpinBox *>().toVector();
        html = shower->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    }
    const auto buttons = dialog->findChildren<QPushButton *>();
    ok = buttons.value(0);
    cancel = buttons.value(1);
    apply = buttons.value(2);
    const auto titleButtons = dialog->findChildren<QToolButton *>();
    for (QToolButton *button : titleButtons) {
        if (button->property("isTitleBarCloseButton").toBool())
            close = button;
    }
}

bool ColorDialogParts::isComplete() const
{
    return standardGrid && customGrid && field && strip && shower && swatch && boxes.size() == 7 && html && ok
        && cancel && apply && close;
}

QColor ColorDialogParts::color() const
{
    return QColor(html->text());
}

QVector<int> ColorDialogParts::numbers() const
{
    QVector<int> values;
    for (int i = 0; i < 6; ++i)
        values.append(boxes.at(i)->value());
    return values;
}

QPoint cellCenter(int row, int column)
{
    return QPoint(column * 36 + 14, row * 32 + 12);
}

void clickCell(QWidget *grid, int row, int column)
{
    const QPointF pos = toGlobal(grid, cellCenter(row, column));
    mousePress(grid, pos);
    mouseRelease(grid, pos);
}

QVector<QRgb> customColors(const ColorDialogParts &parts)
{
    QVector<QRgb> colors;
    clickCell(parts.customGrid, 1, 7); // the current cell shows nothing when it is clicked again
    for (int place = 0; place < CustomColors; ++place) {
        clickCell(parts.customGrid, place % CustomRows, place / CustomRows);
        colors.append(parts.color().rgb());
    }
    return colors;
}

void setCustomColor(Widgets::ColorDialog *dialog, const ColorDialogParts &parts, int place, QRgb rgb)
{
    clickCell(parts.customGrid, place % CustomRows, place / CustomRows);
    dialog->setInitColor(QColor(rgb));
    parts.apply->click();
}

} // namespace Tarn::Test
