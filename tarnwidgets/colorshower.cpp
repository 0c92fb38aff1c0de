// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colorshower.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <utility>

namespace Tarn::Widgets {

namespace {

constexpr int LargestHue = 359;
constexpr int LargestChannel = 255;
constexpr int SwatchMinimumWidth = 60;
constexpr int HtmlFieldHeight = 30;
constexpr QSize DragPictureSize(30, 20);

constexpr int HtmlRow = 5; // row 4 stays empty
constexpr Qt::Alignment LabelAlignment = Qt::AlignRight | Qt::AlignVCenter;

constexpr char TextContext[] = "Tarn::Widgets::ColorDialog";

/* The place of an editor's label in the grid; the editor is right of it. */
struct EditorPlace
{
    const char *text;
    int row;
    int column;
    int columnSpan;
    bool isHsv;
};

constexpr EditorPlace EditorPlaces[] = {
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "色调:"), 0, 1, 1, true},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "饱和度:"), 1, 1, 1, true},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "灰度:"), 2, 1, 1, true},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "红:"), 0, 3, 1, false},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "绿:"), 1, 3, 1, false},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "蓝:"), 2, 3, 1, false},
    {QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "Alpha通道:"), 3, 1, 3, false},
};
constexpr const char *HtmlText = QT_TRANSLATE_NOOP("Tarn::Widgets::ColorDialog", "HTML:");

QColor colorIn(const QMimeData *data)
{
    return qvariant_cast<QColor>(data->colorData());
}

} // namespace

ColSpinBox::ColSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setRange(0, LargestChannel);
}

ColSpinBox::~ColSpinBox() = default;

void ColSpinBox::setValue(int value)
{
    const QSignalBlocker blocker(this);
    QSpinBox::setValue(value);
}

ColorShowLabel::ColorShowLabel(QWidget *parent)
    : QFrame(parent)
{
    setAcceptDrops(true);
}

ColorShowLabel::~ColorShowLabel() = default;

void ColorShowLabel::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    repaint();
}

void ColorShowLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(contentsRect(), m_color);
    drawFrame(&painter);
}

void ColorShowLabel::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = true;
    m_pressPos = event->pos();
}

void ColorShowLabel::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->pos() - m_pressPos).manhattanLength();
    if (m_isPressed && distance > QApplication::startDragDistance()) {
        m_isPressed = false;
        startDrag();
    }
}

void ColorShowLabel::startDrag()
{
    QPixmap picture(DragPictureSize);
    picture.fill(m_color);
    QPainter(&picture).drawRect(0, 0, picture.width() - 2, picture.height() - 2);

    auto *data = new QMimeData;
    data->setColorData(m_color);
    auto *drag = new QDrag(this);
    drag->setMimeData(data);
    drag->setPixmap(picture);
    drag->exec(Qt::CopyAction);
}

void ColorShowLabel::mouseReleaseEvent(QMouseEvent *)
{
    m_isPressed = false;
}

void ColorShowLabel::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(colorIn(event->mimeData()).isValid());
}

void ColorShowLabel::dragLeaveEvent(QDragLeaveEvent *) {}

void ColorShowLabel::dropEvent(QDropEvent *event)
{
    const QColor color = colorIn(event->mimeData());
    event->setAccepted(color.isValid());
    if (!color.isValid())
        return;
    setColor(color);
    Q_EMIT colorDropped(color.rgb());
}

ColorShower::ColorShower(QWidget *parent)
    : QWidget(parent)
    , m_currentQColor(Qt::white)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    createSwatch(layout);
    for (int editor = Hue; editor < EditorCount; ++editor)
        createSpinBox(Editor(editor), layout);
    createHtmlField(layout);
    // Kept: the alpha editor stays at 0, so what is edited by red, green, blue or HTML is transparent.
    showAlpha(false);
    retranslateStrings();
    setHsv(100, 100, 100);
}

ColorShower::~ColorShower() = default;

void ColorShower::createSwatch(QGridLayout *layout)
{
    m_swatch = new ColorShowLabel(this);
    m_swatch->setMinimumWidth(SwatchMinimumWidth);
    layout->addWidget(m_swatch, 0, 0, -1, 1);
    connect(m_swatch, &ColorShowLabel::colorDropped, this, &ColorShower::newCol);
    connect(m_swatch, &ColorShowLabel::colorDropped, this, &ColorShower::setRgb);
}

void ColorShower::createSpinBox(Editor editor, QGridLayout *layout)
{
    const EditorPlace &place = EditorPlaces[editor];
    auto *box = new ColSpinBox(this);
    box->setMaximum(editor == Hue ? LargestHue : LargestChannel);
    auto *label = new QLabel(this);
    label->setAlignment(LabelAlignment);
    label->setBuddy(box);
    layout->addWidget(label, place.row, place.column, 1, place.columnSpan);
    layout->addWidget(box, place.row, place.column + place.columnSpan);
    connect(box, qOverload<int>(&ColSpinBox::valueChanged), this,
            place.isHsv ? &ColorShower::hsvEd : &ColorShower::rgbEd);
    m_labels[editor] = label;
    m_boxes[editor] = box;
}

void ColorShower::createHtmlField(QGridLayout *layout)
{
    m_htmlField = new QLineEdit(this);
    m_htmlField->setFixedHeight(HtmlFieldHeight);
    m_htmlField->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    const QRegularExpression pattern(QStringLiteral("#([A-Fa-f0-9]{6}|[A-Fa-f0-9]{3})"));
    m_htmlField->setValidator(new QRegularExpressionValidator(pattern, this));
    m_htmlLabel = new QLabel(this);
    m_htmlLabel->setAlignment(LabelAlignment);
    m_htmlLabel->setBuddy(m_htmlField);
    layout->addWidget(m_htmlLabel, HtmlRow, 1, Qt::AlignVCenter);
    layout->addWidget(m_htmlField, HtmlRow, 2, 1, 3, Qt::AlignVCenter);
    connect(m_htmlField, &QLineEdit::textEdited, this, &ColorShower::htmlEd);
}

void ColorShower::showAlpha(bool visible)
{
    m_labels[Alpha]->setVisible(visible);
    m_boxes[Alpha]->setVisible(visible);
}

void ColorShower::retranslateStrings()
{
    for (int editor = Hue; editor < EditorCount; ++editor)
        m_labels[editor]->setText(QCoreApplication::translate(TextContext, EditorPlaces[editor].text));
    m_htmlLabel->setText(QCoreApplication::translate(TextContext, HtmlText));
}

QRgb ColorShower::currentColor() const
{
    return m_currentColor;
}

QColor ColorShower::currentQColor() const
{
    return m_currentQColor;
}

void ColorShower::setRgb(QRgb rgb)
{
    m_currentColor = rgb;
    const QColor color(rgb);
    showHsv(color);
    showRgb(color);
    showHtml(color);
    showCurrentColor();
    updateQColor();
}

void ColorShower::setHsv(int hue, int sat, int val)
{
    if (hue < -1 || uint(sat) > LargestChannel || uint(val) > LargestChannel)
        return;
    QColor color;
    color.setHsv(hue, sat, val);
    m_currentColor = color.rgb();
    showHsv(hue, sat, val);
    showRgb(color);
    showHtml(color);
    showCurrentColor();
    updateQColor();
}

void ColorShower::rgbEd()
{
    m_currentColor = qRgba(m_boxes[Red]->value(), m_boxes[Green]->value(), m_boxes[Blue]->value(),
                           m_boxes[Alpha]->value());
    const QColor color(m_currentColor);
    showHsv(color);
    showHtml(color);
    finishEdit();
}

void ColorShower::hsvEd()
{
    const QColor color = QColor::fromHsv(m_boxes[Hue]->value(), m_boxes[Sat]->value(), m_boxes[Val]->value());
    m_currentColor = color.rgb();
    showRgb(color);
    showHtml(color);
    finishEdit();
}

void ColorShower::htmlEd()
{
    const QColor color(m_htmlField->text());
    if (!color.isValid())
        return;
    m_currentColor = qRgba(color.red(), color.green(), color.blue(), m_boxes[Alpha]->value());
    showHsv(color);
    showRgb(color);
    finishEdit();
}

void ColorShower::showHsv(const QColor &color)
{
    int hue = 0;
    int sat = 0;
    int val = 0;
    color.getHsv(&hue, &sat, &val);
    showHsv(hue, sat, val);
}

void ColorShower::showHsv(int hue, int sat, int val)
{
    m_boxes[Hue]->setValue(hue); // that of grey, -1, comes out as 0
    m_boxes[Sat]->setValue(sat);
    m_boxes[Val]->setValue(val);
}

void ColorShower::showRgb(const QColor &color)
{
    m_boxes[Red]->setValue(color.red());
    m_boxes[Green]->setValue(color.green());
    m_boxes[Blue]->setValue(color.blue());
}

void ColorShower::showHtml(const QColor &color)
{
    m_htmlField->setText(color.name());
}

void ColorShower::showCurrentColor()
{
    m_swatch->setColor(QColor(m_currentColor));
}

void ColorShower::finishEdit()
{
    showCurrentColor();
    Q_EMIT newCol(m_currentColor);
    updateQColor();
}

void ColorShower::updateQColor()
{
    QColor color(m_currentColor);
    color.setAlpha(m_boxes[Alpha]->value());
    if (std::exchange(m_currentQColor, color) != color)
        Q_EMIT currentColorChanged(color);
}

} // namespace Tarn::Widgets
