// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef DEVICEUTILS_APPMAINWINDOW_H
#define DEVICEUTILS_APPMAINWINDOW_H

#include <QMainWindow>

namespace Tarn::Utils {

// Made like the stand-in's class, though not by the same symbol: what was compiled with the stand-in's header
// does not link.
class AppMainWindow : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(bool device READ device CONSTANT)

public:
    explicit AppMainWindow(QWidget *parent, bool device = true);
    ~AppMainWindow() override;

    bool device() const;

private:
    bool m_device;
};

} // namespace Tarn::Utils

#endif
