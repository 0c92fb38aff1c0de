// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QTimer>

namespace {

// Ends a program after its first turn of the event loop.
void quitSoon()
{
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(quitSoon)
