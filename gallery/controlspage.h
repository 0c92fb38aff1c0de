// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_CONTROLSPAGE_H
#define GALLERY_CONTROLSPAGE_H

#include "page.h"

#include <QWidget>

namespace Gallery {

/*! Qt's own controls as the theme styles them, enabled and disabled. */
class ControlsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ControlsPage(QWidget *parent = nullptr);
    ~ControlsPage() override;

    static Page page();
};

} // namespace Gallery

#endif
