// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_STATEGUARD_H
#define TARN_TEST_STATEGUARD_H

#include <QColor>
#include <QIcon>
#include <QString>

namespace Tarn::Test {

/*!
 * Puts back on destruction what the whole process shares: the helpers' border
 * width and title height, the dialogs' colours, and the application's style
 * sheet and window icon.
 */
class StateGuard
{
public:
    StateGuard();
    ~StateGuard();

private:
    Q_DISABLE_COPY(StateGuard)

    unsigned int m_borderWidth;
    unsigned int m_titleHeight;
    QColor m_backgroundColor;
    QColor m_borderColor;
    QColor m_specialBackgroundColor;
    QColor m_normalBackgroundColor;
    QString m_styleSheet;
    QIcon m_windowIcon;
};

} // namespace Tarn::Test

#endif
