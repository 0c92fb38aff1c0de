// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colorwallarray.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <utility>

namespace Tarn::Widgets {

namespace {

constexpr int CellWidth = 28;
constexpr int CellHeight = 24;
constexpr int Gap = 8;
constexpr QSize LargestHint(640, 480);

bool isIn(int value, int count)
{
    return value >= 0 && value < count;
}

} // namespace

WellArray::WellArray(int rows, int columns, QWidget *parent)
    : QWidget(parent)
    , m_rows(rows)
    , m_columns(columns)
{
    setFocusPolicy(Qt::StrongFocus);
}

WellArray::~WellArray() = default;

int WellArray::rowCount() const
{
    return m_rows;
}

int WellArray::selectedRow() const
{
    return m_selectedRow;
}

int WellArray::selectedColumn() const
{
    return m_selectedColumn;
}

// Kept: from right to left the columns stand without a gap between them.

int WellArray::columnX(int column) const
{
    return isRightToLeft() ? (m_columns - column - 1) * CellWidth : column * (CellWidth + Gap);
}

int WellArray::columnAt(int x) const
{
    return isRightToLeft() ? m_columns - x / CellWidth - 1 : x / (CellWidth + Gap);
}

int WellArray::rowAt(int y) const
{
    return y / (CellHeight + Gap);
}

QRect WellArray::cellRect(int row, int column) const
{
    if (!isIn(row, m_rows) || !isIn(column, m_columns))
        return QRect();
    return QRect(columnX(column), row * (CellHeight + Gap), CellWidth, CellHeight);
}

// Kept: one cell short of the grid's extent each way.
QSize WellArray::sizeHint() const
{
    ensurePolished();
    const QSize cells((m_columns - 1) * (CellWidth + Gap), (m_rows - 1) * (CellHeight + Gap));
    return cells.boundedTo(LargestHint);
}

void WellArray::updateCell(int row, int column)
{
    update(cellRect(row, column));
}

void WellArray::setCurrent(int row, int column)
{
    // Kept: a second press on the current cell tells nothing, even if another colour is shown by then.
    if (row == m_currentRow && column == m_currentColumn)
        return;
    if (row < 0 || column < 0)
        row = column = -1;
    const int oldRow = std::exchange(m_currentRow, row);
    const int oldColumn = std::exchange(m_currentColumn, column);
    updateCell(oldRow, oldColumn);
    updateCell(row, column);
    Q_EMIT currentChanged(row, column);
}

void WellArray::setSelected(int row, int column)
{
    if (row < 0 || column < 0)
        row = column = -1;
    const int oldRow = std::exchange(m_selectedRow, row);
    const int oldColumn = std::exchange(m_selectedColumn, column);
    updateCell(oldRow, oldColumn);
    updateCell(row, column);
    if (row >= 0)
        Q_EMIT selected(row, column);
}

void WellArray::selectCurrent()
{
    setSelected(m_currentRow, m_currentColumn);
}

void WellArray::mousePressEvent(QMouseEvent *event)
{
    setCurrent(rowAt(event->y()), columnAt(event->x()));
}

void WellArray::mouseReleaseEvent(QMouseEvent *)
{
    selectCurrent();
}

// Kept: from right to left the arrow keys are not mirrored. Without a current cell Right and Down lead to
// none again, and are told as a change.
void WellArray::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        if (m_currentColumn > 0)
            setCurrent(m_currentRow, m_currentColumn - 1);
        break;
    case Qt::Key_Right:
        if (m_currentColumn < m_columns - 1)
            setCurrent(m_currentRow, m_currentColumn + 1);
        break;
    case Qt::Key_Up:
        if (m_currentRow > 0)
            setCurrent(m_currentRow - 1, m_currentColumn);
        break;
    case Qt::Key_Down:
        if (m_currentRow < m_rows - 1)
            setCurrent(m_currentRow + 1, m_currentColumn);
        break;
    case Qt::Key_Space:
        selectCurrent();
        break;
    default:
        event->ignore();
        break;
    }
}

void WellArray::paintEvent(QPaintEvent *event)
{
    const QRect area = event->rect();
    int firstColumn = columnAt(area.x());
    int lastColumn = columnAt(area.x() + area.width());
    if (isRightToLeft())
        std::swap(firstColumn, lastColumn);
    if (!isIn(lastColumn, m_columns))
        lastColumn = m_columns - 1;
    int lastRow = rowAt(area.y() + area.height());
    if (!isIn(lastRow, m_rows))
        lastRow = m_rows - 1;

    QPainter painter(this);
    for (int row = rowAt(area.y()); row <= lastRow; ++row) {
        // Beside the columns there is room that counts as columns before the first.
        for (int column = qMax(0, firstColumn); column <= lastColumn; ++column)
            paintCell(&painter, row, column, cellRect(row, column));
    }
}

void WellArray::paintCell(QPainter *painter, int row, int column, const QRect &rect)
{
    const int frameWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    QStyleOptionFrame frame;
    frame.rect = rect;
    frame.palette = palette();
    frame.lineWidth = frameWidth;
    frame.midLineWidth = 1;
    frame.state = QStyle::State_Enabled | QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, painter, this);

    if (row == m_currentRow && column == m_currentColumn && hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.rect = rect;
        focus.palette = palette();
        focus.state = QStyle::State_KeyboardFocusChange;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, this);
    }
    paintCellContents(painter, row, column, rect.adjusted(frameWidth, frameWidth, -frameWidth, -frameWidth));
}

void WellArray::paintCellContents(QPainter *painter, int, int, const QRect &rect)
{
    painter->fillRect(rect, Qt::white);
    painter->setPen(Qt::black);
    painter->drawLine(rect.topLeft(), rect.bottomRight());
    painter->drawLine(rect.topRight(), rect.bottomLeft());
}

ColorWellArray::ColorWellArray(QWidget *parent, int rows, int columns, const QRgb *colors)
    : WellArray(rows, columns, parent)
    , m_colors(colors)
{
}

ColorWellArray::~ColorWellArray() = default;

void ColorWellArray::paintCellContents(QPainter *painter, int row, int column, const QRect &rect)
{
    painter->fillRect(rect, QColor(m_colors[row + column * rowCount()]));
}

void ColorWellArray::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = true; // first, since whoever hears of the press may delete the dialog
    WellArray::mousePressEvent(event);
}

void ColorWellArray::mouseReleaseEvent(QMouseEvent *)
{
    if (std::exchange(m_isPressed, false))
        selectCurrent();
}

} // namespace Tarn::Widgets
