// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_PARTS_H
#define GALLERY_PARTS_H

#include "texts.h"

#include <QMargins>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QWidget;

namespace Gallery {

/*! Around the contents of every page, below the heading and beside the size grip. */
constexpr QMargins PageMargins(20, 6, 20, 16);

/*! A wrapped, quiet line of explanation. */
QLabel *createNote(const Text &text);

/*! Adds a row to a form made of a grid, with the label at the height of the field's middle. */
void addFormRow(QGridLayout *form, const Text &label, QWidget *field);

/*! For the caller to connect. */
QPushButton *createButton(const Text &text);

/*! A check box that calls \a onToggled when it changes; not at once. Align it, or its focus frame fills the
 * cell. */
QCheckBox *createCheckBox(const Text &text, bool checked, std::function<void(bool)> onToggled);

/*! A spin box from \a minimum to \a maximum that calls \a onChanged when its value changes; not at once. */
QSpinBox *createPixelBox(int minimum, int maximum, int value, std::function<void(int)> onChanged);

/*! A combo box whose list follows the style sheet's item rules, which Qt's default delegate does not. */
QComboBox *createComboBox();

} // namespace Gallery

#endif
