// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_COLORDIALOGPARTS_H
#define TARN_TEST_COLORDIALOGPARTS_H

#include <QColor>
#include <QPoint>
#include <QVector>

class QLineEdit;
class QPushButton;
class QSpinBox;
class QToolButton;
class QWidget;

namespace Tarn::Widgets {
class ColorDialog;
}

namespace Tarn::Test {

/*!
 * The pieces of a colour dialog as the user finds them, told by the names of
 * their classes: the classes themselves are hidden.
 */
struct ColorDialogParts
{
    explicit ColorDialogParts(const Widgets::ColorDialog *dialog);

    /*! Whether all of them were found. */
    bool isComplete() const;

    /*! What the HTML field says. */
    QColor color() const;

    /*! Hue, saturation, value, red, green, blue. */
    QVector<int> numbers() const;

    QWidget *standardGrid = nullptr;
    QWidget *customGrid = nullptr;
    QWidget *field = nullptr;
    QWidget *strip = nullptr;
    QWidget *shower = nullptr;
    QWidget *swatch = nullptr;
    QVector<QSpinBox *> boxes; //!< as in numbers(), and alpha
    QLineEdit *html = nullptr;
    QPushButton *ok = nullptr;
    QPushButton *cancel = nullptr;
    QPushButton *apply = nullptr;
    QToolButton *close = nullptr;
};

/*! The middle of a cell in its grid. */
QPoint cellCenter(int row, int column);

/*! A press and a release of the left button on a cell. */
void clickCell(QWidget *grid, int row, int column);

/*! The custom colours by their places, as clicks on their cells show them. */
QVector<QRgb> customColors(const ColorDialogParts &parts);

/*! Sets one as the user does it: selects the cell and adds the colour that the dialog shows. */
void setCustomColor(Widgets::ColorDialog *dialog, const ColorDialogParts &parts, int place, QRgb rgb);

} // namespace Tarn::Test

#endif
