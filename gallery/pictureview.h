// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_PICTUREVIEW_H
#define GALLERY_PICTUREVIEW_H

#include <QPixmap>
#include <QWidget>

namespace Gallery {

/*! Shows a picture in its middle, made smaller where there is not enough room. */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);
    ~PictureView() override;

    void setPicture(const QPixmap &picture);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
};

} // namespace Gallery

#endif
