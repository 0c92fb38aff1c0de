// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API and not installed: the numbers and the swatch in ColorDialog.

#ifndef TARN_WIDGETS_COLORSHOWER_H
#define TARN_WIDGETS_COLORSHOWER_H

#include <QColor>
#include <QFrame>
#include <QSpinBox>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace Tarn::Widgets {

/*! \brief A spin box from 0 to 255 that is silent when the program sets it. */
class ColSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit ColSpinBox(QWidget *parent = nullptr);
    ~ColSpinBox() override;

    /*! Emits nothing. \note Hides QSpinBox::setValue(). */
    void setValue(int value);
};

/*! \brief A swatch of one colour, which can be dragged away from it and dropped on it. */
class ColorShowLabel : public QFrame
{
    Q_OBJECT

public:
    explicit ColorShowLabel(QWidget *parent = nullptr);
    ~ColorShowLabel() override;

    void setColor(const QColor &color);

Q_SIGNALS:
    void colorDropped(QRgb rgb);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void startDrag();

    QColor m_color;
    QPoint m_pressPos;
    bool m_isPressed = false;
};

/*!
 * \brief One colour as a swatch, as hue, saturation and value, as red, green and blue, and in HTML.
 *
 * What the user edits is converted to the other forms and told by newCol();
 * what the program sets is shown and not told. There is an editor for alpha,
 * too, which is hidden and so stays at 0.
 */
class ColorShower : public QWidget
{
    Q_OBJECT

public:
    explicit ColorShower(QWidget *parent = nullptr);
    ~ColorShower() override;

    /*! The colour as it was set or edited last. */
    QRgb currentColor() const;

    /*! The same with the alpha editor's alpha. */
    QColor currentQColor() const;

    /*! Hue -1 is that of grey, one of 360 or more counts on from 0 and shows as 359. Hues below -1, and
     * saturations and values outside 0 to 255, are ignored. */
    void setHsv(int hue, int sat, int val);

    void showAlpha(bool visible);

    /*! Sets the labels in the present language. */
    void retranslateStrings();

public Q_SLOTS:
    void setRgb(QRgb rgb);

Q_SIGNALS:
    /*! The user edited or dropped a colour. */
    void newCol(QRgb rgb);

    /*! currentQColor() is another one, whoever changed it. */
    void currentColorChanged(const QColor &color);

private Q_SLOTS:
    void rgbEd();
    void hsvEd();
    void htmlEd();

private:
    enum Editor { Hue, Sat, Val, Red, Green, Blue, Alpha, EditorCount };

    void createSwatch(QGridLayout *layout);
    void createSpinBox(Editor editor, QGridLayout *layout);
    void createHtmlField(QGridLayout *layout);

    void showHsv(const QColor &color);
    void showHsv(int hue, int sat, int val);
    void showRgb(const QColor &color);
    void showHtml(const QColor &color);
    void showCurrentColor();
    void finishEdit();
    void updateQColor();

    QRgb m_currentColor = 0xffffffff;
    QColor m_currentQColor;
    QLabel *m_labels[EditorCount];
    ColSpinBox *m_boxes[EditorCount];
    QLabel *m_htmlLabel;
    QLineEdit *m_htmlField;
    ColorShowLabel *m_swatch;
};

} // namespace Tarn::Widgets

#endif
