// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_FUNCTIONGUARD_H
#define TARN_TEST_FUNCTIONGUARD_H

#include "messagesentry.h"
#include "stateguard.h"

#include <QStringList>

namespace Tarn::Test {

/*!
 * What every test function is held to: no unexpected message, no left-over
 * window, and shared state as it was found.
 *
 * \code
 * void init() { m_guard.emplace(); }
 * void cleanup() { m_guard.reset(); }
 * std::optional<Tarn::Test::FunctionGuard> m_guard;
 * \endcode
 */
class FunctionGuard
{
public:
    /*! \a excused as for leftOverTopLevels(). */
    explicit FunctionGuard(const QStringList &excused = {});
    ~FunctionGuard();

    MessageSentry &sentry();

private:
    Q_DISABLE_COPY(FunctionGuard)

    QStringList m_excused;
    StateGuard m_state;
    MessageSentry m_sentry;
};

} // namespace Tarn::Test

#endif
