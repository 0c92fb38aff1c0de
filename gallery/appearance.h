// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_APPEARANCE_H
#define GALLERY_APPEARANCE_H

#include <QObject>
#include <QString>
#include <QStringList>

namespace Gallery {

/*!
 * \brief What the whole application looks like: a theme, and rules of the user's own on top of it.
 *
 * A theme is base.qss with the colours of one of the themes behind it, the
 * gallery's own rules, a palette for what no rule reaches, and the colours that
 * frameless dialogs paint themselves in.
 */
class Appearance : public QObject
{
    Q_OBJECT

public:
    /*! Takes the themes from \a themesDirectory, which becomes the search path "tarnwidgets". */
    explicit Appearance(const QString &themesDirectory, QObject *parent = nullptr);
    ~Appearance() override;

    /*! The names that setTheme() and the command line know; the first is the default. */
    static QStringList themeNames();
    static QString themeTitle(const QString &name);

    QString themesDirectory() const;
    QString theme() const;

    /*! Unknown names are ignored. */
    void setTheme(const QString &name);

    /*! The rules that come after the theme's; empty at the start. They stay when the theme changes. */
    QString extraRules() const;

    /*! False where Qt finds an error in \a rules; the former ones stay then. */
    bool setExtraRules(const QString &rules);

Q_SIGNALS:
    void changed();

private:
    bool applyStyleSheet();

    const QString m_themesDirectory;
    QString m_theme;
    QString m_themeRules;
    QString m_extraRules;
};

} // namespace Gallery

#endif
