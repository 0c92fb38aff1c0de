// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_DIALOGSPAGE_H
#define GALLERY_DIALOGSPAGE_H

#include "page.h"
#include "sampledialog.h"
#include "texts.h"

#include <QWidget>

class QCheckBox;
class QLabel;

namespace Gallery {

class PictureView;

/*! Switches for a frameless dialog, a picture of it, and buttons that open it. */
class DialogsPage : public QWidget
{
    Q_OBJECT

public:
    explicit DialogsPage(Appearance *appearance, QWidget *parent = nullptr);
    ~DialogsPage() override;

    static Page page();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createSwitches();
    QWidget *createNumbers();
    QWidget *createPreview();
    QWidget *createOpenButtons();
    QCheckBox *createSwitch(const Text &text, bool DialogOptions::*option);
    QWidget *createNumber(int minimum, int maximum, int DialogOptions::*option);

    void openModal();
    void openModeless();
    void showOutcome(int result);
    void updatePreview();

    DialogOptions m_options;
    PictureView *m_preview = nullptr;
    QLabel *m_outcome = nullptr;
};

} // namespace Gallery

#endif
