// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "page.h"

#include "buttonspage.h"
#include "colordialogpage.h"
#include "controlspage.h"
#include "dialogspage.h"
#include "filedialogspage.h"
#include "inputpage.h"
#include "messageboxpage.h"
#include "separatorspage.h"
#include "stylesheetpage.h"
#include "tabspage.h"
#include "titlebarpage.h"

namespace Gallery {

QVector<Page> pages()
{
    return {TitleBarPage::page(),    DialogsPage::page(),  MessageBoxPage::page(), FileDialogsPage::page(),
            ColorDialogPage::page(), InputPage::page(),    TabsPage::page(),       ButtonsPage::page(),
            SeparatorsPage::page(),  ControlsPage::page(), StyleSheetPage::page()};
}

} // namespace Gallery
