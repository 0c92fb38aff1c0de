// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_TITLEBARPAGE_H
#define GALLERY_TITLEBARPAGE_H

#include "page.h"
#include "texts.h"

#include <QWidget>

class QAction;
class QListWidget;

namespace Tarn::Widgets {
class TitleBar;
}

namespace Gallery {

/*! A title bar with switches for all that can be set on it, and a log of what it reports. */
class TitleBarPage : public QWidget
{
    Q_OBJECT

public:
    explicit TitleBarPage(QWidget *parent = nullptr);
    ~TitleBarPage() override;

    static Page page();

private:
    QWidget *createSpecimen();
    QWidget *createButtonSwitches();
    QWidget *createTitleSwitches();
    QWidget *createAlignmentChooser();
    QWidget *createLog();
    QAction *addExtraButton(const QString &text);
    void connectSignals();

    void setExtraButtonsVisible(bool visible);
    void setCloseAsks(bool asks);
    bool askBeforeClosing();
    void log(const Text &line);

    Tarn::Widgets::TitleBar *m_bar = nullptr;
    QListWidget *m_log = nullptr;
};

} // namespace Gallery

#endif
