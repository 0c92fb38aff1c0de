// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "toolbutton.h"

#include <QMenu>

namespace Tarn::Widgets {

class ToolButtonPrivate
{};

ToolButton::ToolButton(QWidget *parent)
    : QToolButton(parent)
{
}

ToolButton::~ToolButton() = default;

void ToolButton::setMenu(QMenu *menu)
{
    // A former menu stays connected: it may be open, and then closes later.
    if (menu)
        connect(menu, &QMenu::aboutToHide, this, &ToolButton::recover, Qt::UniqueConnection);
    QToolButton::setMenu(menu);
}

void ToolButton::recover()
{
    setAttribute(Qt::WA_UnderMouse, rect().contains(mapFromGlobal(QCursor::pos())));
    update();
}

} // namespace Tarn::Widgets
