// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "changing.h"

namespace Tarn::Changing {

Gauge::Gauge(Level level)
    : m_level(level)
{
}

Gauge::~Gauge() = default;

#ifdef VIRTUAL_FUNCTION_INSERTED
void Gauge::prepare() {}
#endif

void Gauge::show() {}

#ifndef FUNCTION_REMOVED
void Gauge::clear()
{
    m_level = Low;
}
#endif

#ifdef FUNCTION_ADDED
void Gauge::fill()
{
    m_level = High;
}
#endif

} // namespace Tarn::Changing
