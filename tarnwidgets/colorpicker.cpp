// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colorpicker.h"

#include "framelessdialog.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVarLengthArray>
#include <algorithm>

namespace Tarn::Widgets {

namespace {

constexpr int FieldSide = 233;
constexpr uint FieldValue = 200; // so the field is never white or black
constexpr int LargestHue = 359;
constexpr int LargestSat = 255;
constexpr int LargestVal = 255;

constexpr int StripWidth = 40;
constexpr int Offset = 7; // between the ends of the strip and those of its gradient
constexpr int ArrowDepth = 8;
constexpr int ArrowHeight = 14;

// The field's colours in integers, each equal to QColor's. Of the three channels one is full, one falls to 0
// as the saturation rises, and the middle one falls less, in proportion to the degrees between the hue and
// the one at which it is full too. Everything is reckoned with 16 bits behind the point.
constexpr uint SectorDegrees = 60;
constexpr uint FullChannel = (FieldValue << 16) + (1U << 15); // rounds

constexpr uint steepness(uint degrees)
{
    return (FieldValue << 16) * degrees / (LargestSat * SectorDegrees);
}

constexpr uint channel(uint sat, uint steepness)
{
    return (FullChannel - sat * steepness) >> 16;
}

/* The places of the channels in a QRgb, for each sixth of the hues. */
struct Sector
{
    int full;
    int middle;
    int falling;
};

constexpr Sector Sectors[] = {{16, 8, 0}, {8, 16, 0}, {8, 0, 16}, {0, 8, 16}, {0, 16, 8}, {16, 0, 8}};
constexpr int SectorCount = 6;

/* What the pixels of one column have in common. */
struct Column
{
    uint steepness;
    uchar sector;
    uchar middle;
};

Column columnOf(uint hue)
{
    const uint sector = hue / SectorDegrees;
    const uint degrees = hue % SectorDegrees;
    const bool isTowardsFull = sector % 2 == 0;
    return {steepness(isTowardsFull ? SectorDegrees - degrees : degrees), uchar(sector),
            uchar(Sectors[sector].middle)};
}

/* Of length pixels, the one that has the fraction pos / (length - 1) of largest. */
int scaled(int pos, int length, int largest)
{
    return pos * largest / qMax(1, length - 1);
}

} // namespace

ColorPicker::ColorPicker(QWidget *parent)
    : QFrame(parent)
{
    setAttribute(Qt::WA_NoSystemBackground);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFixedSize(FieldSide, FieldSide);
}

ColorPicker::~ColorPicker() = default;

QImage ColorPicker::fieldImage(const QSize &size)
{
    QVarLengthArray<Column, FieldSide> columns;
    for (int x = 0; x < size.width(); ++x)
        columns.append(columnOf(uint(360 - scaled(x, size.width(), 360)) % 360));

    QImage image(size, QImage::Format_RGB32);
    // Without rows if there was no memory for it
    for (int y = 0; y < image.height(); ++y) {
        const uint sat = uint(LargestSat - scaled(y, size.height(), LargestSat));
        const uint falling = channel(sat, steepness(SectorDegrees));
        QRgb grounds[SectorCount];
        for (int i = 0; i < SectorCount; ++i)
            grounds[i] = 0xff000000U | FieldValue << Sectors[i].full | falling << Sectors[i].falling;
        std::transform(columns.cbegin(), columns.cend(), reinterpret_cast<QRgb *>(image.scanLine(y)),
                       [sat, &grounds](const Column &column) {
                           return grounds[column.sector] | channel(sat, column.steepness) << column.middle;
                       });
    }
    return image;
}

int ColorPicker::huePt(const QPoint &pos) const
{
    return 360 - scaled(pos.x(), contentsRect().width(), 360);
}

int ColorPicker::satPt(const QPoint &pos) const
{
    return LargestSat - scaled(pos.y(), contentsRect().height(), LargestSat);
}

QPoint ColorPicker::colPt() const
{
    const QRect area = contentsRect();
    return QPoint((360 - m_hue) * (area.width() - 1) / 360,
                  (LargestSat - m_sat) * (area.height() - 1) / LargestSat);
}

void ColorPicker::setCol(const QPoint &pos)
{
    setCol(huePt(pos), satPt(pos));
}

void ColorPicker::setCol(int hue, int sat)
{
    hue = qBound(0, hue, LargestHue);
    sat = qBound(0, sat, LargestSat);
    if (hue == m_hue && sat == m_sat)
        return;
    const QRect before = ringRect();
    m_hue = hue;
    m_sat = sat;
    repaint(before | ringRect());
}

void ColorPicker::setCrossVisible(bool visible)
{
    if (visible == m_isCrossVisible)
        return;
    m_isCrossVisible = visible;
    update();
}

/* Everything that the ring touches, and some pixels more. */
QRect ColorPicker::ringRect() const
{
    return QRect(contentsRect().topLeft() + colPt() - QPoint(9, 9), QSize(20, 20));
}

QSize ColorPicker::sizeHint() const
{
    return QSize(220 + 2 * frameWidth(), 200 + 2 * frameWidth());
}

// Kept: a press is not handled, so the colour changes from the first move on.
void ColorPicker::mouseMoveEvent(QMouseEvent *event)
{
    setCol(event->pos() - contentsRect().topLeft());
    Q_EMIT newCol(m_hue, m_sat);
}

void ColorPicker::paintEvent(QPaintEvent *)
{
    const QRect area = contentsRect();
    if (m_field.size() != area.size())
        m_field = fieldImage(area.size());

    QPainter painter(this);
    drawFrame(&painter);
    painter.drawImage(area.topLeft(), m_field);
    if (m_isCrossVisible) {
        painter.setPen(Qt::black);
        painter.drawEllipse(QRect(area.topLeft() + colPt() - QPoint(4, 4), QSize(8, 8)));
    }
}

ColorLuminancePicker::ColorLuminancePicker(QWidget *parent)
    : QWidget(parent)
{
    setWindowFlag(Qt::FramelessWindowHint);
    followGround(FramelessDialog::m_defaultBackgroundColor);
    setFixedWidth(StripWidth);
}

ColorLuminancePicker::~ColorLuminancePicker() = default;

int ColorLuminancePicker::y2val(int y) const
{
    return LargestVal - scaled(y - Offset, height() - 2 * Offset, LargestVal);
}

int ColorLuminancePicker::val2y(int val) const
{
    return Offset + (LargestVal - val) * (height() - 2 * Offset - 1) / LargestVal;
}

void ColorLuminancePicker::setVal(int val)
{
    if (val == m_val)
        return;
    m_val = qBound(0, val, LargestVal);
    repaint();
    Q_EMIT newHsv(m_hue, m_sat, m_val);
}

void ColorLuminancePicker::setCol(int hue, int sat, int val)
{
    if (hue == m_hue && sat == m_sat && val == m_val)
        return;
    m_isGradientStale = m_isGradientStale || hue != m_hue || sat != m_sat;
    m_hue = hue;
    m_sat = sat;
    m_val = val;
    repaint();
}

void ColorLuminancePicker::setCol(int hue, int sat)
{
    setCol(hue, sat, m_val);
    Q_EMIT newHsv(hue, sat, m_val);
}

// Kept: a press is not handled, so the value changes from the first move on.
void ColorLuminancePicker::mouseMoveEvent(QMouseEvent *event)
{
    setVal(y2val(event->y()));
}

/* Only what is seen between the arrows. */
void ColorLuminancePicker::updateGradient()
{
    const QSize size(width() - 2 * (ArrowDepth + 1), height() - 2 * Offset);
    if (m_gradient.size() == size && !m_isGradientStale)
        return;
    if (m_gradient.size() != size)
        m_gradient = QImage(size, QImage::Format_RGB32);
    m_isGradientStale = false;
    for (int y = 0; y < m_gradient.height(); ++y) {
        const int val = LargestVal - scaled(y, size.height(), LargestVal);
        auto *line = reinterpret_cast<QRgb *>(m_gradient.scanLine(y));
        std::fill_n(line, size.width(), QColor::fromHsv(m_hue, m_sat, val).rgb());
    }
}

/* What is below an opaque strip is not painted. When the ground changes between two paints, the first of them
 * has that wrong, and a second one is asked for. */
void ColorLuminancePicker::followGround(const QColor &ground)
{
    const bool isOpaque = ground.alpha() == 255;
    if (testAttribute(Qt::WA_OpaquePaintEvent) == isOpaque)
        return;
    setAttribute(Qt::WA_OpaquePaintEvent, isOpaque);
    update();
}

/* The gradient reaches across the whole width, and is seen under the arrows through their ground. */
void ColorLuminancePicker::paintThroughGround(QPainter *painter, const QColor &ground) const
{
    const int columns = ArrowDepth + 1;
    for (const int left : {0, width() - columns}) {
        painter->drawImage(QRect(left, Offset, columns, m_gradient.height()), m_gradient);
        painter->fillRect(left, 0, columns, height(), ground);
    }
}

void ColorLuminancePicker::paintEvent(QPaintEvent *)
{
    updateGradient();
    const int y = val2y(m_val);
    const int right = width() - 1;
    const int top = y - ArrowHeight / 2;
    const int bottom = y + ArrowHeight / 2;
    const QPoint leftArrow[] = {{0, bottom}, {0, top}, {ArrowDepth, y}};
    const QPoint rightArrow[] = {{right - ArrowDepth, y}, {right, bottom}, {right, top}};

    QPainter painter(this);
    const QColor ground = FramelessDialog::m_defaultBackgroundColor;
    followGround(ground);
    painter.fillRect(rect(), ground);
    painter.drawImage(ArrowDepth + 1, Offset, m_gradient);
    if (ground.alpha() < 255)
        paintThroughGround(&painter, ground);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    painter.drawPolygon(leftArrow, 3);
    painter.drawPolygon(rightArrow, 3);
}

} // namespace Tarn::Widgets
