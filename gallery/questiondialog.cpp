// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "questiondialog.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace Gallery {

QuestionDialog::QuestionDialog(const Text &title, const Text &question, const Text &yes, const Text &no,
                               QWidget *parent)
    : FramelessDialog(parent)
{
    keepTranslated(this, [=] { setWindowTitle(title()); });
    auto *label = new QLabel;
    showText(label, question);
    label->setWordWrap(true);
    auto *content = new QVBoxLayout(getContentHolder());
    content->setContentsMargins(20, 20, 20, 20);
    content->addWidget(label);
    showText(m_pOKButton, yes);
    showText(m_pCancelButton, no);
    m_pCancelButton->setFocus();
    resize(340, noCentralHeight() + 92);
}

QuestionDialog::~QuestionDialog() = default;

bool QuestionDialog::ask(QuestionDialog *dialog)
{
    // Watched, since a parent that is deleted meanwhile deletes the dialog.
    const QPointer<QuestionDialog> guard = dialog;
    const bool answer = dialog->exec() == Accepted;
    delete guard;
    return answer;
}

} // namespace Gallery
