// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARNUTILS_EXPORT_H
#define TARNUTILS_EXPORT_H

#include <QtGlobal>

#ifdef TARNUTILS_BUILD
#define TARNUTILS_EXPORT Q_DECL_EXPORT
#else
#define TARNUTILS_EXPORT Q_DECL_IMPORT
#endif

#endif
