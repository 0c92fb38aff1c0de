// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_TEXTS_H
#define GALLERY_TEXTS_H

#include <QString>
#include <QStringList>
#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QAbstractButton;
class QListWidget;
class QWidget;

namespace Gallery {

/*! A text in the language of the moment, as in [] { return tr("Open"); }. */
using Text = std::function<QString()>;

/*!
 * Calls \a setTexts now, and again whenever the language changes, until
 * \a widget dies or this is called for it again. It comes before the children of
 * \a widget learn of the change.
 */
void keepTranslated(QWidget *widget, std::function<void()> setTexts);

// These show the text now, and again whenever the language changes.
void showText(QLabel *label, const Text &text);
void showText(QAbstractButton *button, const Text &text);
void showText(QGroupBox *group, const Text &title);

/*! Fills in \a field; what the user changed there stays when the language changes. */
void showSample(QLineEdit *field, const Text &text);

/*! Sets the texts of the first rows, which are added where they are missing, and nothing else of them. */
void setRowTexts(QComboBox *box, const QStringList &texts);

/*! A list for addLine(), with \a name for screen readers. */
QListWidget *createLogList(const Text &name);

/*! Adds \a line to \a log, and shows it; in the language of the moment, even if that is another one later. */
void addLine(QListWidget *log, const Text &line);

} // namespace Gallery

#endif
