// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API and not installed: the field and the strip in ColorDialog.

#ifndef TARN_WIDGETS_COLORPICKER_H
#define TARN_WIDGETS_COLORPICKER_H

#include <QFrame>
#include <QImage>

namespace Tarn::Widgets {

/*!
 * \brief A field with hue from right to left and saturation from bottom to top.
 *
 * A ring marks the colour. Only dragging picks one: a press alone changes
 * nothing.
 */
class ColorPicker : public QFrame
{
    Q_OBJECT

public:
    explicit ColorPicker(QWidget *parent = nullptr);
    ~ColorPicker() override;

    /*! Takes the colour at a position counted from the top left of contentsRect(). Emits nothing. */
    void setCol(const QPoint &pos);

    /*! From such a position to hue and saturation, in or out of range, and back from the present ones. */
    int huePt(const QPoint &pos) const;
    int satPt(const QPoint &pos) const;
    QPoint colPt() const;

    /*! The field at that size, without the ring. */
    static QImage fieldImage(const QSize &size);

    /*! Whether the ring is drawn; it is at the start. */
    void setCrossVisible(bool visible);

    QSize sizeHint() const override;

public Q_SLOTS:
    /*! Brings both into range, 0 to 359 and 0 to 255. Emits nothing. */
    void setCol(int hue, int sat);

Q_SIGNALS:
    /*! The mouse was dragged, even if it was over the same colour. */
    void newCol(int hue, int sat);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect ringRect() const;

    int m_hue = 100;
    int m_sat = 100;
    QImage m_field;
    bool m_isCrossVisible = true;
};

/*!
 * \brief A strip with the values of one hue and saturation, the highest at the top.
 *
 * Two arrows mark the value. Only dragging picks one: a press alone changes
 * nothing.
 */
class ColorLuminancePicker : public QWidget
{
    Q_OBJECT

public:
    explicit ColorLuminancePicker(QWidget *parent = nullptr);
    ~ColorLuminancePicker() override;

    /*! Takes 0 to 255 and brings all else into that range. Emits newHsv() unless \a val, as it is, is the
     * value. */
    void setVal(int val);

    /*! From a row of the widget to the value there, in or out of range, and back. */
    int y2val(int y) const;
    int val2y(int val) const;

public Q_SLOTS:
    /*! Emits nothing. */
    void setCol(int hue, int sat, int val);

    /*! Keeps the value. Emits newHsv(). */
    void setCol(int hue, int sat);

Q_SIGNALS:
    void newHsv(int hue, int sat, int val);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateGradient();
    void followGround(const QColor &ground);
    void paintThroughGround(QPainter *painter, const QColor &ground) const;

    int m_val = 100;
    int m_hue = 100;
    int m_sat = 100;
    QImage m_gradient;
    bool m_isGradientStale = true;
};

} // namespace Tarn::Widgets

#endif
