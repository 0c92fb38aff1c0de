// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_BUTTONSPAGE_H
#define GALLERY_BUTTONSPAGE_H

#include "page.h"

#include <QVector>
#include <QWidget>
#include <functional>

class QLabel;

namespace Tarn::Widgets {
class TarnPushButton;
class ToolButton;
}

namespace Gallery {

/*! Push buttons with turned texts, and a tool button with a menu beside Qt's own. */
class ButtonsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ButtonsPage(QWidget *parent = nullptr);
    ~ButtonsPage() override;

    static Page page();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using PushButton = Tarn::Widgets::TarnPushButton;

    QWidget *createStrip();
    QWidget *createPushButtonGroup();
    QWidget *createToolButtonGroup();
    void changeAll(const std::function<void(PushButton *)> &change);
    void refresh();

    QVector<PushButton *> m_buttons;
    Tarn::Widgets::ToolButton *m_toolButton = nullptr;
    QLabel *m_shown = nullptr;
    QLabel *m_toolTip = nullptr;
    QLabel *m_hover = nullptr;
};

} // namespace Gallery

#endif
