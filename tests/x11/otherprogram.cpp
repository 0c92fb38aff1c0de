// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "otherprogram.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTest>

namespace Tarn::Test {

OtherProgram::OtherProgram(const QRect &geometry)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/x11_otherprogram"),
                    {QString::number(geometry.x()), QString::number(geometry.y()),
                     QString::number(geometry.width()), QString::number(geometry.height())});
}

OtherProgram::~OtherProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

// Not QProcess::waitForReadyRead(): the window manager may want this program to answer meanwhile.
bool OtherProgram::waitForWindow()
{
    const bool spoke = QTest::qWaitFor([this] { return m_process.canReadLine(); }, 10000);
    m_window = m_process.readLine().trimmed().toULongLong();
    return spoke && m_window != 0;
}

WId OtherProgram::window() const
{
    return m_window;
}

} // namespace Tarn::Test
