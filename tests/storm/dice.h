// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_DICE_H
#define TARN_STORM_DICE_H

#include <QVector>
#include <QtGlobal>
#include <initializer_list>

namespace Tarn::Storm {

/*!
 * Random numbers that follow from a seed, a purpose and a number alone: what one step draws does not depend
 * on the steps before it, so that steps can be left out. Thousands of these are made in a second, which is
 * why it is not a QRandomGenerator: that has two kilobytes to fill first.
 */
class Dice
{
public:
    Dice(quint64 seed, quint64 purpose, quint64 number);

    quint64 next();

    /*! 0 to \a limit - 1; 0 for a limit below 1. */
    int below(int limit);
    int between(int least, int most);
    bool oneIn(int number);

    template <typename T> T pick(std::initializer_list<T> choices)
    {
        return choices.begin()[below(int(choices.size()))];
    }

    template <typename T> T pickOf(const QVector<T> &choices)
    {
        return choices.at(below(choices.size()));
    }

private:
    quint64 m_state;
};

} // namespace Tarn::Storm

#endif
