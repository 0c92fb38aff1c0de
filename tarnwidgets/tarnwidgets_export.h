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

// Visible only if the library is built so, and its header is installed only then.
#if defined(TARNWIDGETS_BUILD) && !defined(TARN_EXPORT_FRAMELESS_FILE_DIALOG)
#define TARNWIDGETS_FRAMELESSFILEDIALOG_EXPORT Q_DECL_HIDDEN
#else
#define TARNWIDGETS_FRAMELESSFILEDIALOG_EXPORT TARNWIDGETS_EXPORT
#endif

#endif
