// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "dice.h"

namespace Tarn::Storm {

namespace {

// SplitMix64.
constexpr quint64 Increment = 0x9e3779b97f4a7c15;

quint64 mixed(quint64 value)
{
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9;
    value = (value ^ (value >> 27)) * 0x94d049bb133111eb;
    return value ^ (value >> 31);
}

} // namespace

Dice::Dice(quint64 seed, quint64 purpose, quint64 number)
    : m_state(mixed(mixed(seed + Increment) + purpose) + mixed(number + Increment))
{
}

quint64 Dice::next()
{
    m_state += Increment;
    return mixed(m_state);
}

int Dice::below(int limit)
{
    return limit < 1 ? 0 : int(next() % quint64(limit));
}

int Dice::between(int least, int most)
{
    return least + below(most - least + 1);
}

bool Dice::oneIn(int number)
{
    return below(number) == 0;
}

} // namespace Tarn::Storm
