// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_SCENES_H
#define TARN_STORM_SCENES_H

#include "stage.h"

namespace Tarn::Storm {

struct Scene
{
    QString name;
    std::function<void(Stage &stage, Dice &dice)> build;
    int weight = 1; //!< its share of a run
};

/*! One for each exported class and each page of the gallery. */
QVector<Scene> scenes();

} // namespace Tarn::Storm

#endif
