// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "appmainwindow.h"

namespace Tarn::Utils {

AppMainWindow::AppMainWindow(QWidget *parent)
    : QMainWindow(parent)
{
}

AppMainWindow::~AppMainWindow() = default;

} // namespace Tarn::Utils
