// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "stateguard.h"

#include <QApplication>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelesshelper.h>

using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessHelper;

namespace Tarn::Test {

StateGuard::StateGuard()
    : m_borderWidth(FramelessHelper().borderWidth())
    , m_titleHeight(FramelessHelper().titleHeight())
    , m_backgroundColor(FramelessDialog::m_defaultBackgroundColor)
    , m_borderColor(FramelessDialog::m_defaultBorderColor)
    , m_specialBackgroundColor(FramelessDialog::m_defaultSpecialBackgroungColor)
    , m_normalBackgroundColor(FramelessDialog::m_defaultNormalBackgroungColor)
    , m_styleSheet(qApp->styleSheet())
    , m_windowIcon(QApplication::windowIcon())
{
}

StateGuard::~StateGuard()
{
    FramelessHelper helper;
    helper.setBorderWidth(m_borderWidth);
    helper.setTitleHeight(m_titleHeight);
    FramelessDialog::m_defaultBackgroundColor = m_backgroundColor;
    FramelessDialog::m_defaultBorderColor = m_borderColor;
    FramelessDialog::m_defaultSpecialBackgroungColor = m_specialBackgroundColor;
    FramelessDialog::m_defaultNormalBackgroungColor = m_normalBackgroundColor;
    if (qApp->styleSheet() != m_styleSheet)
        qApp->setStyleSheet(m_styleSheet);
    QApplication::setWindowIcon(m_windowIcon);
}

} // namespace Tarn::Test
