// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tarnpushbutton.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

namespace Tarn::Widgets {

class TarnPushButtonPrivate
{
public:
    QString m_text;
    bool m_bRotated = false;
    bool m_bClockwise = true;
};

TarnPushButton::TarnPushButton(QWidget *parent)
    : QPushButton(parent)
    , d(std::make_unique<TarnPushButtonPrivate>())
{
}

TarnPushButton::~TarnPushButton() = default;

// Kept: a setter, despite its name.
void TarnPushButton::isOpenRotation(bool on)
{
    d->m_bRotated = on;
    update();
}

void TarnPushButton::setRotationDirection(bool clockwise)
{
    d->m_bClockwise = clockwise;
    update();
}

void TarnPushButton::setBtnText(const QString &text)
{
    d->m_text = text;
    setText(text);
    update();
}

QString TarnPushButton::getBtnText() const
{
    return d->m_text;
}

void TarnPushButton::setText(const QString &text)
{
    // Kept: the height counts whether or not the text is turned, and the font that the button has by now,
    // which a style sheet may change later.
    const bool fits = fontMetrics().horizontalAdvance(text) <= height();
    const QString toolTip = fits ? QString() : text; // Kept: also in place of one of the application's own
    if (toolTip != this->toolTip())
        setToolTip(toolTip);
    QPushButton::setText(fontMetrics().elidedText(text, Qt::ElideRight, height()));
}

void TarnPushButton::paintEvent(QPaintEvent *event)
{
    if (!d->m_bRotated) {
        QPushButton::paintEvent(event);
        return;
    }
    // Asks for another paint only if that changes something. Without its text the button is painted by an
    // option, since taking the text away for a moment would have it painted for ever.
    setText(d->m_text);

    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.save();
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
    painter.restore();

    if (d->m_bClockwise) {
        painter.rotate(90);
        painter.translate(0, -width());
    } else {
        painter.translate(0, height());
        painter.rotate(-90);
    }
    // Kept: ampersands are shown, and the colour is the palette's in every state.
    painter.drawText(QRect(0, 0, height(), width()), Qt::AlignCenter, text());
}

} // namespace Tarn::Widgets
