// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_STYLESHEETPAGE_H
#define GALLERY_STYLESHEETPAGE_H

#include "page.h"
#include "texts.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTimer;

namespace Gallery {

/*! Rules of the user's own, loaded from a file or typed, that restyle the running application. */
class StyleSheetPage : public QWidget
{
    Q_OBJECT

public:
    explicit StyleSheetPage(Appearance *appearance, QWidget *parent = nullptr);
    ~StyleSheetPage() override;

    static Page page();

private:
    QWidget *createFileRow();
    QWidget *createEditor();
    QWidget *createActionRow();

    void browse();
    void load();
    void apply();
    void applyIfLive();
    void revert();
    void showMessage(const Text &message, bool isError = false);

    Appearance *const m_appearance;
    QTimer *const m_typingPause;
    QLineEdit *m_path = nullptr;
    QPlainTextEdit *m_editor = nullptr;
    QCheckBox *m_live = nullptr;
    QLabel *m_message = nullptr;
};

} // namespace Gallery

#endif
