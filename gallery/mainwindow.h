// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_MAINWINDOW_H
#define GALLERY_MAINWINDOW_H

#include "page.h"

#include <tarnwidgets/framelesswindow.h>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QStackedWidget;

namespace Gallery {

class Language;

/*!
 * \brief The gallery's window: the list of pages at the left, the chosen page at the right.
 *
 * A page's widgets are made when it is shown for the first time.
 */
class MainWindow : public Tarn::Widgets::FramelessWindow
{
    Q_OBJECT

public:
    MainWindow(Appearance *appearance, Language *language, QWidget *parent = nullptr);
    ~MainWindow() override;

    /*! Unknown pages are ignored. */
    void showPage(const QString &id);

private:
    QWidget *createSidebar();
    QWidget *createThemeChooser();
    QWidget *createLanguageChooser();
    QWidget *createDirectionSwitch();
    QWidget *createPageArea();
    QWidget *createHeader();
    void showPageAt(int index);
    void turnLayout();
    void showTheme();
    void showLanguage();
    void retranslate();
    void showHeading();

    Appearance *const m_appearance;
    Language *const m_language;
    QVector<Page> m_pages;
    QListWidget *m_list = nullptr;
    QComboBox *m_themes = nullptr;
    QComboBox *m_languages = nullptr;
    QCheckBox *m_rightToLeft = nullptr;
    QLabel *m_heading = nullptr;
    QLabel *m_summary = nullptr;
    QStackedWidget *m_stack = nullptr;
};

} // namespace Gallery

#endif
