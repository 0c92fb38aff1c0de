// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_QUESTIONDIALOG_H
#define GALLERY_QUESTIONDIALOG_H

#include "texts.h"

#include <tarnwidgets/framelessdialog.h>

namespace Gallery {

/*! A question with two answers; the safe one, "no", has the focus. */
class QuestionDialog : public Tarn::Widgets::FramelessDialog
{
    Q_OBJECT

public:
    QuestionDialog(const Text &title, const Text &question, const Text &yes, const Text &no, QWidget *parent);
    ~QuestionDialog() override;

    /*! Shows \a dialog, waits for the answer and deletes the dialog; true for yes. */
    static bool ask(QuestionDialog *dialog);
};

} // namespace Gallery

#endif
