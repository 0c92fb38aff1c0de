// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "functionguard.h"

#include "leftovers.h"

#include <QTest>

namespace Tarn::Test {

FunctionGuard::FunctionGuard(const QStringList &excused)
    : m_excused(excused)
{
}

FunctionGuard::~FunctionGuard()
{
    const QStringList found = leftOverTopLevels(m_excused);
    if (!found.isEmpty()) {
        const QString text = QStringLiteral("Left-over windows: ") + found.join(QStringLiteral(", "));
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    }
}

MessageSentry &FunctionGuard::sentry()
{
    return m_sentry;
}

} // namespace Tarn::Test
