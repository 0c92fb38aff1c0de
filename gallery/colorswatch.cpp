// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colorswatch.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

namespace Gallery {

namespace {

constexpr int LightestUnderWhite = 140; // grey on which white text can be read

QColor colorIn(const QMimeData *data)
{
    return qvariant_cast<QColor>(data->colorData());
}

} // namespace

ColorSwatch::ColorSwatch(const QColor &color, QWidget *parent)
    : QWidget(parent)
    , m_color(color)
{
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

ColorSwatch::~ColorSwatch() = default;

QColor ColorSwatch::color() const
{
    return m_color;
}

void ColorSwatch::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged(color);
}

QSize ColorSwatch::sizeHint() const
{
    return {160, 56};
}

void ColorSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setBrush(m_color);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(qGray(m_color.rgb()) > LightestUnderWhite ? Qt::black : Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, m_color.name());
}

void ColorSwatch::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(colorIn(event->mimeData()).isValid());
}

void ColorSwatch::dropEvent(QDropEvent *event)
{
    setColor(colorIn(event->mimeData()));
    event->acceptProposedAction();
}

} // namespace Gallery
