// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include <QString>
#include <QVector>

class QDialog;
class QWidget;

namespace Gallery {

class Appearance;

/*! A dialog of a page, for the picture that is taken of it. */
struct DialogExhibit
{
    QString id; //!< part of the picture's file name
    QDialog *(*create)(QWidget *parent);
};

/*!
 * \brief One entry of the gallery: what the list shows, and how its widgets are made.
 *
 * A new page is a function that returns one of these, and a line in pages().
 */
struct Page
{
    QString id; //!< for --page and the names of pictures
    QString title;
    QString summary; //!< a sentence below the title
    QWidget *(*create)(Appearance *appearance, QWidget *parent);
    QVector<DialogExhibit> dialogs;
};

/*! All pages, in the order of the list, in the present language. */
QVector<Page> pages();

} // namespace Gallery

#endif
