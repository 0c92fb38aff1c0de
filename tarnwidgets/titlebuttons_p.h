// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API: names for the indices by which TitleBar knows its buttons.

#ifndef TARN_WIDGETS_TITLEBUTTONS_P_H
#define TARN_WIDGETS_TITLEBUTTONS_P_H

namespace Tarn::Widgets {

enum TitleButton { LogoButton, MinButton, MaxButton, RestoreButton, CloseButton, TitleButtonCount };

} // namespace Tarn::Widgets

#endif
