// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "appmainwindow.h"

namespace Tarn::Utils {

AppMainWindow::AppMainWindow(QWidget *parent, bool device)
    : QMainWindow(parent)
    , m_device(device)
{
}

AppMainWindow::~AppMainWindow() = default;

bool AppMainWindow::device() const
{
    return m_device;
}

} // namespace Tarn::Utils
