// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_UTILS_APPMAINWINDOW_H
#define TARN_UTILS_APPMAINWINDOW_H

#include "tarnutils_export.h"

#include <QMainWindow>

namespace Tarn::Utils {

/*!
 * \brief The main window class that FramelessWindow is built on.
 *
 * A device's own libtarnutils brings a richer class of the same name; this one
 * adds nothing to QMainWindow and stands in for it on machines without one.
 */
class TARNUTILS_EXPORT AppMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit AppMainWindow(QWidget *parent);
    ~AppMainWindow() override;
};

} // namespace Tarn::Utils

#endif
