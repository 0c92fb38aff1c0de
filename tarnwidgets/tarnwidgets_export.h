// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARNWIDGETS_EXPORT_H
#define TARNWIDGETS_EXPORT_H

#include <QtGlobal>

#ifdef TARNWIDGETS_BUILD
#define TARNWIDGETS_EXPORT Q_DECL_EXPORT
#else
#define TARNWIDGETS_EXPORT Q_DECL_IMPORT
#endif

#endif
