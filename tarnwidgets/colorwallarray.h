// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API and not installed: the grids of colours in ColorDialog.

#ifndef TARN_WIDGETS_COLORWALLARRAY_H
#define TARN_WIDGETS_COLORWALLARRAY_H

#include <QRgb>
#include <QWidget>

namespace Tarn::Widgets {

/*!
 * \brief A grid of equal cells with two marks, each on a cell or on none.
 *
 * The current cell follows presses and the arrow keys and bears the focus
 * rectangle; releasing the mouse or Space makes it the selected one as well.
 * "None" is row and column -1, to which every negative row or column comes
 * down. A press beside the cells makes a current cell that does not exist: it
 * is told like any other and shown nowhere.
 *
 * Cells are 28 x 24 pixels.
 */
class WellArray : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int selectedColumn READ selectedColumn)
    Q_PROPERTY(int selectedRow READ selectedRow)

public:
    /*! The current cell is (0, 0) at the start, and none is selected. */
    WellArray(int rows, int columns, QWidget *parent = nullptr);
    ~WellArray() override;

    int selectedRow() const;
    int selectedColumn() const;

    /*! Emits currentChanged() unless the arguments, taken as they are, are the current cell already. */
    virtual void setCurrent(int row, int column);

    /*! Emits selected() for a cell, even if it was selected before, and nothing for none. */
    virtual void setSelected(int row, int column);

    /*! The place of a cell in the widget; empty where there is none. */
    QRect cellRect(int row, int column) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    void selected(int row, int column);
    void currentChanged(int row, int column);

protected:
    virtual void paintCell(QPainter *painter, int row, int column, const QRect &rect);

    /*! Paints what is inside the cell's frame: here a crossed-out white. */
    virtual void paintCellContents(QPainter *painter, int row, int column, const QRect &rect);

    int rowCount() const;
    void selectCurrent();

    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int columnX(int column) const;
    int columnAt(int x) const;
    int rowAt(int y) const;
    void updateCell(int row, int column);

    const int m_rows;
    const int m_columns;
    int m_currentRow = 0;
    int m_currentColumn = 0;
    int m_selectedRow = -1;
    int m_selectedColumn = -1;
};

/*!
 * \brief A WellArray whose cells show the colours of somebody else's array.
 *
 * Cell (row, column) shows entry row + column * rows, always opaque. Whoever
 * changes an entry updates its cell.
 */
class ColorWellArray : public WellArray
{
    Q_OBJECT

public:
    /*! \a colors has \a rows * \a columns entries and outlives the widget. */
    ColorWellArray(QWidget *parent, int rows, int columns, const QRgb *colors);
    ~ColorWellArray() override;

protected:
    void paintCellContents(QPainter *painter, int row, int column, const QRect &rect) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    const QRgb *const m_colors;
    bool m_isPressed = false;
};

} // namespace Tarn::Widgets

#endif
