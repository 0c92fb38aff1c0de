// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_DESIGNER_DESCRIPTIONS_H
#define TARN_DESIGNER_DESCRIPTIONS_H

#include "widgetplugin.h"

/*! The widgets on offer, group by group. */
QVector<WidgetDescription> widgetDescriptions();

#endif
