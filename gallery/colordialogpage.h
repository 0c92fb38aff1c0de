// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_COLORDIALOGPAGE_H
#define GALLERY_COLORDIALOGPAGE_H

#include "page.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace Tarn::Widgets {
class ColorDialog;
}

namespace Gallery {

class ColorSwatch;
class PictureView;

/*! A swatch for the colour that was chosen, a picture of the dialog, the code that opens it, and buttons that
 * do. */
class ColorDialogPage : public QWidget
{
    Q_OBJECT

public:
    explicit ColorDialogPage(Appearance *appearance, QWidget *parent = nullptr);
    ~ColorDialogPage() override;

    static Page page();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createChoices();
    QWidget *createOpenButtons();
    QWidget *createPreview();

    QColor initialColor() const;
    void choose();
    void openModeless();
    void refresh();

    QComboBox *m_initialColors = nullptr;
    ColorSwatch *m_swatch = nullptr;
    PictureView *m_preview = nullptr;
    QLabel *m_outcome = nullptr;
    QPlainTextEdit *m_code = nullptr;
    Tarn::Widgets::ColorDialog *m_model = nullptr; // for the picture
};

} // namespace Gallery

#endif
