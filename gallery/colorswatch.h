// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_COLORSWATCH_H
#define GALLERY_COLORSWATCH_H

#include <QColor>
#include <QWidget>

namespace Gallery {

/*! A field of one colour with the colour's name in it, on which another colour can be dropped. */
class ColorSwatch : public QWidget
{
    Q_OBJECT

public:
    explicit ColorSwatch(const QColor &color, QWidget *parent = nullptr);
    ~ColorSwatch() override;

    QColor color() const;
    void setColor(const QColor &color);

    QSize sizeHint() const override;

Q_SIGNALS:
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QColor m_color;
};

} // namespace Gallery

#endif
