// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "pictureview.h"

#include <QPainter>

namespace Gallery {

PictureView::PictureView(QWidget *parent)
    : QWidget(parent)
{
}

PictureView::~PictureView() = default;

void PictureView::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const QSizeF size = QSizeF(m_picture.size()) / m_picture.devicePixelRatio();
    const bool fits = size.width() <= width() && size.height() <= height();
    QRectF target(QPointF(), fits ? size : size.scaled(this->size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(rect()).center());
    target.moveTopLeft(target.topLeft().toPoint()); // whole pixels, or the picture is blurred

    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !fits);
    painter.drawPixmap(target, m_picture, QRectF(m_picture.rect()));
}

} // namespace Gallery
