// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_PICTURES_H
#define GALLERY_PICTURES_H

#include "page.h"

#include <QCoreApplication>
#include <QDir>
#include <QSize>
#include <QStringList>

namespace Gallery {

class Language;

/*!
 * \brief Draws pages and their dialogs into PNG files.
 *
 * A page's picture is called PAGE-THEME-WIDTHxHEIGHT.png, a dialog's
 * PAGE-DIALOG-THEME.png.
 */
class Pictures
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::Pictures)

public:
    Pictures(Appearance *appearance, Language *language, const QString &directory);

    /*! Draws all of \a pages in all of \a themes. False, with errorText(), when a file cannot be written. */
    bool draw(const QVector<Page> &pages, const QStringList &themes);

    int count() const;
    QString directory() const;
    QString errorText() const;

private:
    bool drawTheme(const QString &theme, const QVector<Page> &pages);
    bool drawPages(const QVector<Page> &pages, const QSize &size);
    bool drawDialogs(const Page &page);
    bool save(QWidget *widget, const QString &name);

    Appearance *const m_appearance;
    Language *const m_language;
    const QDir m_directory;
    int m_count = 0;
    QString m_errorText;
};

} // namespace Gallery

#endif
