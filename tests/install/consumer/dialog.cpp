// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include <appmainwindow.h>
#include <framelessdialog.h>

QString dialogClass();

QString dialogClass()
{
    const Tarn::Widgets::FramelessDialog dialog;
    return QString::fromLatin1(dialog.metaObject()->className());
}
