// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "changednoticelineedit.h"

#include <QPointer>

namespace Tarn::Widgets {

class ChangedNoticeLineEditPrivate
{};

ChangedNoticeLineEdit::ChangedNoticeLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

ChangedNoticeLineEdit::~ChangedNoticeLineEdit() = default;

void ChangedNoticeLineEdit::focusOutEvent(QFocusEvent *event)
{
    const QPointer<ChangedNoticeLineEdit> guard(this);
    Q_EMIT signal_focusOut();
    if (guard)
        QLineEdit::focusOutEvent(event);
}

} // namespace Tarn::Widgets
