// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "changing.h"

namespace Tarn::Changing {

// In a source of its own, as the functions that moc writes are.
Value Gauge::value() const
{
    return m_level;
}

} // namespace Tarn::Changing
