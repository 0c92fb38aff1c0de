// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_SAMPLEDIALOG_H
#define GALLERY_SAMPLEDIALOG_H

#include <tarnwidgets/framelessdialog.h>

namespace Gallery {

/*! What can be switched on a frameless dialog; the values are those of a new one. */
struct DialogOptions
{
    bool minButton = false;
    bool maxButton = false;
    bool closeButton = true;
    bool applyButton = false;
    bool bottomBar = true;
    int lineHeight = 2;

    bool movable = true;
    bool resizable = false;
    bool outlineOnMove = false;
    bool outlineOnResize = false;
    int borderWidth = 5; //!< for all dialogs of the process
    int titleHeight = 24; //!< likewise
};

/*! A settings dialog as an application might have it. */
class SampleDialog : public Tarn::Widgets::FramelessDialog
{
    Q_OBJECT

public:
    explicit SampleDialog(const DialogOptions &options, QWidget *parent = nullptr);
    ~SampleDialog() override;

private:
    void setOptions(const DialogOptions &options);
};

} // namespace Gallery

#endif
