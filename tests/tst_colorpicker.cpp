// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/paintwatch.h"

#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/colorpicker.h>
#include <tarnwidgets/framelessdialog.h>

using Tarn::Test::mouseDoubleClick;
using Tarn::Test::mouseMove;
using Tarn::Test::mousePress;
using Tarn::Test::mouseRelease;
using Tarn::Test::PaintWatch;
using Tarn::Test::toGlobal;
using Tarn::Widgets::ColorLuminancePicker;
using Tarn::Widgets::ColorPicker;
using Tarn::Widgets::FramelessDialog;

namespace {

constexpr int FieldSide = 233;
constexpr int StripWidth = 40;
constexpr int StripHeight = 233; // as in the dialog

using HueSat = QPair<int, int>;

/* Over a ground of that colour. */
QImage rendered(QWidget *widget, const QColor &ground = Qt::transparent)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    widget->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/* The rule for the field's pixels, as QColor works it out. */
QImage expectedField(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            QColor color;
            color.setHsv(360 - x * 360 / (size.width() - 1), 255 - y * 255 / (size.height() - 1), 200, 255);
            image.setPixelColor(x, y, color);
        }
    }
    return image;
}

void drawRing(QImage *image, const QPoint &middle)
{
    QPainter painter(image);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRect(middle - QPoint(4, 4), middle + QPoint(3, 3)));
}

/* The steps that paint the strip, one by one. */
QImage expectedStrip(const QSize &size, int hue, int sat, int val, const QColor &ground)
{
    const int w = size.width();
    const int h = size.height();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    for (int y = 0; y < h - 14; ++y) {
        const QColor color = QColor::fromHsv(hue, sat, 255 - y * 255 / (h - 15), 255);
        for (int x = 0; x < w; ++x)
            image.setPixelColor(x, y + 7, color);
    }
    const int y0 = (h - 15) * (255 - val) / 255;
    QPainter painter(&image);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::black);
    painter.fillRect(QRect(QPoint(0, 0), QPoint(8, h - 1)), ground);
    painter.drawPolygon(QPolygon({QPoint(0, y0 + 14), QPoint(0, y0), QPoint(8, y0 + 7)}));
    painter.fillRect(QRect(QPoint(w - 9, 0), QPoint(w - 1, h - 1)), ground);
    painter.drawPolygon(QPolygon({QPoint(w - 9, y0 + 7), QPoint(w - 1, y0 + 14), QPoint(w - 1, y0)}));
    return image;
}

/* What is seen of a colour under the present ground. */
QColor through(const QColor &below)
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(below);
    QPainter painter(&image);
    painter.fillRect(image.rect(), FramelessDialog::m_defaultBackgroundColor);
    painter.end();
    return image.pixelColor(0, 0);
}

void dragTo(QWidget *widget, const QPointF &pos)
{
    mouseMove(widget, toGlobal(widget, pos));
}

HueSat lastHueSat(const QSignalSpy &spy)
{
    return spy.isEmpty() ? HueSat(-9, -9) : HueSat(spy.last().at(0).toInt(), spy.last().at(1).toInt());
}

/* Hue, saturation and value as told last. */
QVector<int> lastHsv(const QSignalSpy &spy)
{
    QVector<int> hsv;
    for (const QVariant &part : spy.isEmpty() ? QVariantList() : spy.last())
        hsv.append(part.toInt());
    return hsv;
}

/* What a field holds, told by a drag that does not move. */
HueSat colorOf(ColorPicker *field)
{
    QSignalSpy colors(field, &ColorPicker::newCol);
    dragTo(field, field->colPt() + field->contentsRect().topLeft());
    return lastHueSat(colors);
}

ColorLuminancePicker *createStrip()
{
    auto *strip = new ColorLuminancePicker;
    strip->resize(StripWidth, StripHeight);
    return strip;
}

} // namespace

class tst_ColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void fieldIsAFrameWithoutAFrame();
    void interfacesAreSignalsAndSlots();
    void fieldPixelsAreThoseOfQColor_data();
    void fieldPixelsAreThoseOfQColor();
    void fieldOfAnySizeIsPainted();
    void fieldFillsTheInsideOfItsFrame();
    void fieldFollowsAChangeOfItsFrame();
    void fieldMapsPositions_data();
    void fieldMapsPositions();
    void fieldMapsItsColor_data();
    void fieldMapsItsColor();
    void fieldKeepsColorsInRange_data();
    void fieldKeepsColorsInRange();
    void fieldIsSilentWhenItIsSet();
    void pressOnTheFieldPicksNothing();
    void fieldIsNotFollowedWithoutAButton();
    void dragOverTheFieldPicks_data();
    void dragOverTheFieldPicks();
    void dragTellsEveryMove();
    void dragCountsFromInsideTheFrame();
    void anyButtonDrags();
    void ringMarksTheColor_data();
    void ringMarksTheColor();
    void ringMayBeLeftOut();
    void changeRepaintsTheRingAtOnce_data();
    void changeRepaintsTheRingAtOnce();
    void dragIsPaintedBeforeItIsTold();
    void sameColorRepaintsNothing();

    void stripIsAWidgetOfFixedWidth();
    void stripPixelsFollowTheRule_data();
    void stripPixelsFollowTheRule();
    void stripOfAnySizeIsPainted();
    void gradientIsThatOfEveryHueAndSaturation();
    void gradientFollowsTheHeight();
    void groundIsTheDialogsAtEveryPaint();
    void translucentGroundLetsShowWhatIsBelow();
    void groundMayBecomeTranslucentLater();
    void stripMapsRowsAndValues_data();
    void stripMapsRowsAndValues();
    void pressOnTheStripPicksNothing();
    void dragOverTheStripPicks_data();
    void dragOverTheStripPicks();
    void sameValueIsNotTold();
    void valueOutOfRangeIsToldAgain();
    void stripIsSilentWhenAllIsSet();
    void stripTellsAHueAndSaturationEveryTime();
    void stripTakesAnythingAsItIs();
    void stripRepaintsAtOnce();
    void stripIsPaintedBeforeItTells();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_ColorPicker::fieldIsAFrameWithoutAFrame()
{
    QWidget parent;
    const auto *field = new ColorPicker(&parent);
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->windowFlags(), QWidget(&parent).windowFlags());
    QCOMPARE(field->frameShape(), QFrame::NoFrame);
    QCOMPARE(field->frameWidth(), 0);
    QVERIFY(field->testAttribute(Qt::WA_NoSystemBackground));
    QCOMPARE(field->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(field->minimumSize(), QSize(FieldSide, FieldSide));
    QCOMPARE(field->maximumSize(), QSize(FieldSide, FieldSide));
    QCOMPARE(field->sizeHint(), QSize(220, 200));
}

void tst_ColorPicker::interfacesAreSignalsAndSlots()
{
    const QMetaObject &field = ColorPicker::staticMetaObject;
    QVERIFY(field.indexOfSignal("newCol(int,int)") >= 0);
    QVERIFY(field.indexOfSlot("setCol(int,int)") >= 0);
    QCOMPARE(field.methodCount() - QFrame::staticMetaObject.methodCount(), 2);

    const QMetaObject &strip = ColorLuminancePicker::staticMetaObject;
    QVERIFY(strip.indexOfSignal("newHsv(int,int,int)") >= 0);
    QVERIFY(strip.indexOfSlot("setCol(int,int,int)") >= 0);
    QVERIFY(strip.indexOfSlot("setCol(int,int)") >= 0);
    QCOMPARE(strip.methodCount() - QWidget::staticMetaObject.methodCount(), 3);
}

void tst_ColorPicker::fieldPixelsAreThoseOfQColor_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("the dialog's") << QSize(FieldSide, FieldSide);
    QTest::newRow("every hue and every saturation") << QSize(361, 256);
    QTest::newRow("more pixels than colours") << QSize(800, 600);
    QTest::newRow("few pixels") << QSize(2, 3);
}

void tst_ColorPicker::fieldPixelsAreThoseOfQColor()
{
    QFETCH(QSize, size);
    ColorPicker field;
    field.setCrossVisible(false);
    field.setFixedSize(size);
    QCOMPARE(rendered(&field), expectedField(size));
}

void tst_ColorPicker::fieldOfAnySizeIsPainted()
{
    // What a row or a column of one pixel shows is the beginning of each range.
    for (const QSize &size : {QSize(1, 1), QSize(1, 50), QSize(50, 1)}) {
        ColorPicker field;
        field.setCrossVisible(false);
        field.setFixedSize(size);
        QCOMPARE(rendered(&field).pixelColor(0, 0).rgb(), QColor::fromHsv(0, 255, 200).rgb());
        QCOMPARE(field.huePt(QPoint(0, 0)), 360);
        QCOMPARE(field.satPt(QPoint(0, 0)), 255);
    }
}

void tst_ColorPicker::fieldFillsTheInsideOfItsFrame()
{
    // GIVEN a field with a frame of three pixels
    ColorPicker field;
    field.setFrameStyle(QFrame::Box | QFrame::Plain);
    field.setLineWidth(3);
    QPalette palette = field.palette();
    palette.setColor(QPalette::WindowText, Qt::magenta);
    field.setPalette(palette);
    field.setCrossVisible(false);
    const QRect inside(3, 3, FieldSide - 6, FieldSide - 6);
    QCOMPARE(field.contentsRect(), inside);

    // WHEN it is painted
    const QImage image = rendered(&field);

    // THEN the colours go from side to side within the frame
    QCOMPARE(image.copy(inside), expectedField(inside.size()));
    QCOMPARE(image.pixelColor(2, 100), QColor(Qt::magenta));
    QCOMPARE(image.pixelColor(FieldSide - 3, 100), QColor(Qt::magenta));
    QCOMPARE(field.sizeHint(), QSize(226, 206));
}

void tst_ColorPicker::fieldFollowsAChangeOfItsFrame()
{
    ColorPicker field;
    field.setCrossVisible(false);
    rendered(&field);
    field.setStyleSheet(QStringLiteral("border: 5px solid #ff00ff;"));
    const QImage image = rendered(&field);
    const QRect inside(5, 5, FieldSide - 10, FieldSide - 10);
    QCOMPARE(field.contentsRect(), inside);
    QCOMPARE(image.copy(inside), expectedField(inside.size()));
    QCOMPARE(image.pixelColor(4, 100), QColor(Qt::transparent));
}

void tst_ColorPicker::fieldMapsPositions_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::newRow("top left") << QPoint(0, 0) << 360 << 255;
    QTest::newRow("bottom right") << QPoint(232, 232) << 0 << 0;
    QTest::newRow("middle") << QPoint(116, 116) << 180 << 128;
    QTest::newRow("first pixels") << QPoint(1, 1) << 359 << 254;
    QTest::newRow("second pixels") << QPoint(2, 2) << 357 << 253;
    QTest::newRow("outside to the left and above") << QPoint(-10, -10) << 375 << 265;
    QTest::newRow("outside to the right and below") << QPoint(240, 240) << -12 << -8;
}

void tst_ColorPicker::fieldMapsPositions()
{
    QFETCH(QPoint, pos);
    const ColorPicker field;
    QTEST(field.huePt(pos), "hue");
    QTEST(field.satPt(pos), "sat");
}

void tst_ColorPicker::fieldMapsItsColor_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("at the start") << 100 << 100 << QPoint(260 * 232 / 360, 155 * 232 / 255);
    QTest::newRow("largest") << 359 << 255 << QPoint(0, 0);
    QTest::newRow("smallest") << 0 << 0 << QPoint(232, 232);
    QTest::newRow("hue that goes down by a fraction") << 357 << 253 << QPoint(1, 1);
}

void tst_ColorPicker::fieldMapsItsColor()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    ColorPicker field;
    field.setCol(hue, sat);
    QTEST(field.colPt(), "pos");
}

void tst_ColorPicker::fieldKeepsColorsInRange_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<QPoint>("pos");
    QTest::newRow("hue of grey") << -1 << 0 << QPoint(232, 232);
    QTest::newRow("far below") << -500 << -500 << QPoint(232, 232);
    QTest::newRow("hue of a whole turn") << 360 << 256 << QPoint(0, 0);
    QTest::newRow("far above") << 5000 << 5000 << QPoint(0, 0);
}

void tst_ColorPicker::fieldKeepsColorsInRange()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    ColorPicker field;
    field.setCol(hue, sat);
    QTEST(field.colPt(), "pos");
}

void tst_ColorPicker::fieldIsSilentWhenItIsSet()
{
    ColorPicker field;
    QSignalSpy colors(&field, &ColorPicker::newCol);
    field.setCol(20, 30);
    field.setCol(QPoint(50, 60));
    QCOMPARE(field.colPt(), QPoint(49, 59)); // less what two divisions drop
    QCOMPARE(colors.count(), 0);
}

void tst_ColorPicker::pressOnTheFieldPicksNothing()
{
    ColorPicker field;
    const QPoint before = field.colPt();
    QSignalSpy colors(&field, &ColorPicker::newCol);
    const QPointF pos = toGlobal(&field, QPointF(10, 10));
    mousePress(&field, pos);
    mouseRelease(&field, pos);
    mouseDoubleClick(&field, pos);
    mouseRelease(&field, pos);
    QCOMPARE(colors.count(), 0);
    QCOMPARE(field.colPt(), before);
}

void tst_ColorPicker::fieldIsNotFollowedWithoutAButton()
{
    QVERIFY(!ColorPicker().hasMouseTracking());
    QVERIFY(!ColorLuminancePicker().hasMouseTracking());
}

void tst_ColorPicker::dragOverTheFieldPicks_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<HueSat>("color");
    QTest::newRow("inside") << QPointF(50, 60) << HueSat(360 - 50 * 360 / 232, 255 - 60 * 255 / 232);
    QTest::newRow("left side") << QPointF(0, 60) << HueSat(359, 255 - 60 * 255 / 232);
    QTest::newRow("left of it") << QPointF(-40, 0) << HueSat(359, 255);
    QTest::newRow("above") << QPointF(116, -40) << HueSat(180, 255);
    QTest::newRow("right and below") << QPointF(400, 400) << HueSat(0, 0);
    QTest::newRow("fraction that rounds down") << QPointF(116.4, 231.4) << HueSat(180, 2);
    QTest::newRow("fraction that rounds up") << QPointF(115.5, 231.5) << HueSat(180, 0);
}

void tst_ColorPicker::dragOverTheFieldPicks()
{
    QFETCH(QPointF, pos);
    QFETCH(HueSat, color);

    // GIVEN a field that was pressed somewhere
    ColorPicker field;
    QSignalSpy colors(&field, &ColorPicker::newCol);
    mousePress(&field, toGlobal(&field, QPointF(200, 200)));

    // WHEN the mouse moves
    dragTo(&field, pos);

    // THEN the colour there is told once, and is the field's
    QCOMPARE(colors.count(), 1);
    QCOMPARE(lastHueSat(colors), color);
    const QPoint mark((360 - color.first) * 232 / 360, (255 - color.second) * 232 / 255);
    QCOMPARE(field.colPt(), mark);
}

void tst_ColorPicker::dragTellsEveryMove()
{
    ColorPicker field;
    QSignalSpy colors(&field, &ColorPicker::newCol);
    for (int move = 1; move <= 3; ++move) {
        dragTo(&field, QPointF(50, 60));
        QCOMPARE(colors.count(), move);
    }
}

void tst_ColorPicker::dragCountsFromInsideTheFrame()
{
    ColorPicker field;
    field.setFrameStyle(QFrame::Box | QFrame::Plain);
    field.setLineWidth(10);
    QSignalSpy colors(&field, &ColorPicker::newCol);
    dragTo(&field, QPointF(10, 10));
    QCOMPARE(lastHueSat(colors), HueSat(359, 255));
    dragTo(&field, QPointF(FieldSide - 11, FieldSide - 11));
    QCOMPARE(lastHueSat(colors), HueSat(0, 0));
}

void tst_ColorPicker::anyButtonDrags()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        ColorPicker field;
        QSignalSpy fieldColors(&field, &ColorPicker::newCol);
        mouseMove(&field, toGlobal(&field, QPointF(50, 60)), button);
        QCOMPARE(fieldColors.count(), 1);

        const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
        QSignalSpy stripColors(strip.get(), &ColorLuminancePicker::newHsv);
        mouseMove(strip.get(), toGlobal(strip.get(), QPointF(20, 60)), button);
        QCOMPARE(stripColors.count(), 1);
    }
}

void tst_ColorPicker::ringMarksTheColor_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<int>("lineWidth");
    QTest::newRow("at the start") << 100 << 100 << 0;
    QTest::newRow("top left corner") << 359 << 255 << 0;
    QTest::newRow("bottom right corner") << 0 << 0 << 0;
    QTest::newRow("inside a frame") << 180 << 128 << 6;
}

void tst_ColorPicker::ringMarksTheColor()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    QFETCH(int, lineWidth);

    // GIVEN a field, and how it looks without a ring
    ColorPicker field;
    if (lineWidth > 0)
        field.setFrameStyle(QFrame::Box | QFrame::Plain);
    field.setLineWidth(lineWidth);
    field.setCrossVisible(false);
    QImage expected = rendered(&field);

    // WHEN it shows a colour with the ring
    field.setCrossVisible(true);
    field.setCol(hue, sat);
    const QImage image = rendered(&field);

    // THEN there is a black ring, eight pixels across, and nothing else has changed
    const int side = field.contentsRect().width() - 1;
    const QPoint mark((360 - hue) * side / 360, (255 - sat) * side / 255);
    drawRing(&expected, mark + QPoint(lineWidth, lineWidth));
    QCOMPARE(image, expected);
}

void tst_ColorPicker::ringMayBeLeftOut()
{
    // GIVEN a field on the screen
    ColorPicker field;
    PaintWatch watch(&field);
    QVERIFY(watch.begin());

    // WHEN the ring is asked for, which is there, nothing happens
    field.setCrossVisible(true);
    QCoreApplication::processEvents();
    QCOMPARE(watch.times, 0);

    // and WHEN it is put out, THEN the field is painted without it, though not at once
    field.setCrossVisible(false);
    QCOMPARE(watch.times, 0);
    QTRY_COMPARE(watch.painted, QRegion(field.rect()));
    QCOMPARE(rendered(&field), expectedField(field.size()));
}

void tst_ColorPicker::changeRepaintsTheRingAtOnce_data()
{
    QTest::addColumn<HueSat>("from");
    QTest::addColumn<HueSat>("to");
    QTest::addColumn<int>("lineWidth");
    QTest::newRow("a step") << HueSat(180, 128) << HueSat(176, 120) << 0;
    QTest::newRow("from corner to corner") << HueSat(0, 0) << HueSat(359, 255) << 0;
    QTest::newRow("inside a frame") << HueSat(180, 128) << HueSat(170, 140) << 6;
}

void tst_ColorPicker::changeRepaintsTheRingAtOnce()
{
    QFETCH(HueSat, from);
    QFETCH(HueSat, to);
    QFETCH(int, lineWidth);

    // GIVEN a field on the screen
    ColorPicker field;
    if (lineWidth > 0)
        field.setFrameStyle(QFrame::Box | QFrame::Plain);
    field.setLineWidth(lineWidth);
    field.setCol(from.first, from.second);
    PaintWatch watch(&field);
    QVERIFY(watch.begin());

    // WHEN its colour changes
    const QPoint before = field.colPt();
    field.setCol(to.first, to.second);

    // THEN the surroundings of both rings were painted before it returned
    const QPoint shift = field.contentsRect().topLeft() - QPoint(9, 9);
    const QRect area = (QRect(before, QSize(20, 20)) | QRect(field.colPt(), QSize(20, 20))).translated(shift);
    QCOMPARE(watch.times, 1);
    QCOMPARE(watch.painted, QRegion(area & field.rect()));
}

void tst_ColorPicker::dragIsPaintedBeforeItIsTold()
{
    // GIVEN a field on the screen whose receiver looks at it
    ColorPicker field;
    PaintWatch watch(&field);
    QVERIFY(watch.begin());
    int paintedBefore = -1;
    QPoint mark;
    connect(&field, &ColorPicker::newCol, this, [&] {
        paintedBefore = watch.times;
        mark = field.colPt();
    });

    // WHEN the mouse is dragged to a corner
    dragTo(&field, QPointF(0, 0));

    // THEN the ring was there when it was told
    QCOMPARE(paintedBefore, 1);
    QCOMPARE(mark, QPoint(0, 0));
}

void tst_ColorPicker::sameColorRepaintsNothing()
{
    ColorPicker field;
    PaintWatch watch(&field);
    QVERIFY(watch.begin());
    field.setCol(100, 100); // as at the start
    QCoreApplication::processEvents();
    QCOMPARE(watch.times, 0);
    QCOMPARE(colorOf(&field), HueSat(101, 101)); // a pixel has more colours than one
    QCOMPARE(watch.times, 1);
}

void tst_ColorPicker::stripIsAWidgetOfFixedWidth()
{
    QWidget parent;
    auto *strip = new ColorLuminancePicker(&parent);
    QCOMPARE(strip->parentWidget(), &parent);
    QVERIFY(!strip->isWindow());
    QCOMPARE(strip->windowFlags(), QWidget(&parent).windowFlags() | Qt::FramelessWindowHint);
    QCOMPARE(strip->minimumWidth(), StripWidth);
    QCOMPARE(strip->maximumWidth(), StripWidth);
    QCOMPARE(strip->minimumHeight(), 0);
    QSignalSpy colors(strip, &ColorLuminancePicker::newHsv);
    strip->setCol(100, 100);
    QCOMPARE(lastHsv(colors), QVector<int>({100, 100, 100}));
}

void tst_ColorPicker::stripPixelsFollowTheRule_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<int>("val");
    QTest::addColumn<QSize>("size");
    const QSize usual(StripWidth, StripHeight);
    QTest::newRow("at the start") << 100 << 100 << 100 << usual;
    QTest::newRow("largest value") << 210 << 255 << 255 << usual;
    QTest::newRow("smallest value") << 0 << 0 << 0 << usual;
    QTest::newRow("grey") << -1 << 0 << 77 << usual;
    QTest::newRow("above the largest value") << 33 << 200 << 258 << usual;
    QTest::newRow("below the smallest value") << 33 << 200 << -4 << usual;
    QTest::newRow("one level a row") << 33 << 200 << 128 << QSize(StripWidth, 270);
    QTest::newRow("wider and higher") << 33 << 200 << 128 << QSize(90, 500);
    QTest::newRow("barely room for a gradient") << 33 << 200 << 128 << QSize(19, 17);
}

void tst_ColorPicker::stripPixelsFollowTheRule()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    QFETCH(int, val);
    QFETCH(QSize, size);
    ColorLuminancePicker strip;
    strip.setFixedSize(size);
    strip.setCol(hue, sat, val);
    const QColor ground = FramelessDialog::m_defaultBackgroundColor;
    const QImage image = rendered(&strip);
    QCOMPARE(image, expectedStrip(size, hue, sat, val, ground));

    // The tips of the arrows touch the outermost columns of the gradient from both sides.
    const int row = strip.val2y(val);
    QCOMPARE(image.pixelColor(8, row), QColor(Qt::black));
    QCOMPARE(image.pixelColor(size.width() - 9, row), QColor(Qt::black));
    QCOMPARE(image.pixelColor(3, row), QColor(Qt::white));
    QCOMPARE(image.pixelColor(size.width() - 4, row), QColor(Qt::white));
}

void tst_ColorPicker::stripOfAnySizeIsPainted()
{
    for (int side = 1; side < 20; ++side) {
        ColorLuminancePicker strip;
        strip.setFixedSize(side, side);
        rendered(&strip);
        strip.setVal(strip.y2val(side));
        strip.setVal(strip.y2val(-100));
    }
}

void tst_ColorPicker::gradientIsThatOfEveryHueAndSaturation()
{
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    const QColor ground = FramelessDialog::m_defaultBackgroundColor;
    const auto isRight = [&](int hue, int sat) {
        strip->setCol(hue, sat, 50);
        return rendered(strip.get()) == expectedStrip(strip->size(), hue, sat, 50, ground);
    };
    for (int hue = 0; hue < 360; hue += 3)
        QVERIFY2(isRight(hue, 255 - hue / 2), qPrintable(QString::number(hue)));
    for (int sat = 0; sat < 256; sat += 3)
        QVERIFY2(isRight(sat, sat), qPrintable(QString::number(sat)));

    // One of the two changes alone.
    QVERIFY(isRight(120, 40));
    QVERIFY(isRight(120, 200));
    QVERIFY(isRight(300, 200));
}

void tst_ColorPicker::gradientFollowsTheHeight()
{
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    rendered(strip.get());
    strip->resize(StripWidth, 150);
    QCOMPARE(rendered(strip.get()),
             expectedStrip(strip->size(), 100, 100, 100, FramelessDialog::m_defaultBackgroundColor));
}

void tst_ColorPicker::groundIsTheDialogsAtEveryPaint()
{
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    QCOMPARE(rendered(strip.get()).pixelColor(20, 3), QColor(69, 69, 69));
    FramelessDialog::m_defaultBackgroundColor = QColor(240, 241, 242);
    QCOMPARE(rendered(strip.get()), expectedStrip(strip->size(), 100, 100, 100, QColor(240, 241, 242)));
}

void tst_ColorPicker::translucentGroundLetsShowWhatIsBelow()
{
    const std::unique_ptr<ColorLuminancePicker> opaque(createStrip());
    const QColor gradient = rendered(opaque.get()).pixelColor(20, 60);

    // THEN the ground is on what was there, twice beside the gradient, and once on the gradient under the
    // arrows
    FramelessDialog::m_defaultBackgroundColor = QColor(0, 0, 0, 100);
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    QVERIFY(!strip->testAttribute(Qt::WA_OpaquePaintEvent));
    const QImage picture = rendered(strip.get(), Qt::red);
    QCOMPARE(picture.pixelColor(20, 3), through(Qt::red));
    QCOMPARE(picture.pixelColor(3, 3), through(through(Qt::red)));
    QCOMPARE(picture.pixelColor(20, 60), gradient);
    QCOMPARE(picture.pixelColor(3, 60), through(gradient));
    QCOMPARE(picture.pixelColor(StripWidth - 4, 60), through(gradient));
}

void tst_ColorPicker::groundMayBecomeTranslucentLater()
{
    // GIVEN a strip on the screen, in a red window
    QWidget window;
    window.setPalette(QPalette(Qt::red));
    window.resize(100, 300);
    auto *strip = new ColorLuminancePicker(&window);
    strip->resize(StripWidth, StripHeight);
    PaintWatch watch(strip);
    QVERIFY(watch.begin());
    const auto seen = [&window](const QPoint &pos) {
        return QColor(window.screen()->grabWindow(window.winId()).toImage().pixel(pos));
    };
    QCOMPARE(seen(QPoint(3, 3)), FramelessDialog::m_defaultBackgroundColor);

    // WHEN its ground becomes translucent, and at every paint after that
    FramelessDialog::m_defaultBackgroundColor = QColor(0, 0, 0, 100);
    int before = 100;
    for (const int val : {10, 250, 130}) {
        strip->setVal(val);

        // THEN the window shows through, and no arrow of before
        QTRY_COMPARE(seen(QPoint(20, 3)), through(Qt::red));
        QCOMPARE(seen(QPoint(3, 3)), through(through(Qt::red)));
        QCOMPARE(seen(QPoint(3, strip->val2y(val))), QColor(Qt::white));
        const int row = strip->val2y(before);
        QCOMPARE(seen(QPoint(3, row)), through(seen(QPoint(20, row))));
        before = val;
    }
}

void tst_ColorPicker::stripMapsRowsAndValues_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("val");
    QTest::addColumn<int>("rowOfVal");
    QTest::newRow("top of the gradient") << 7 << 255 << 7;
    QTest::newRow("bottom of the gradient") << StripHeight - 8 << 0 << StripHeight - 8;
    QTest::newRow("middle") << 116 << 128 << 115;
    QTest::newRow("next to the top") << 8 << 254 << 7;
    QTest::newRow("above") << 0 << 263 << 1;
    QTest::newRow("below") << StripHeight << -9 << StripHeight - 1;
}

void tst_ColorPicker::stripMapsRowsAndValues()
{
    QFETCH(int, row);
    QFETCH(int, val);
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    QCOMPARE(strip->y2val(row), val);
    QTEST(strip->val2y(val), "rowOfVal");
}

void tst_ColorPicker::pressOnTheStripPicksNothing()
{
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    QSignalSpy colors(strip.get(), &ColorLuminancePicker::newHsv);
    const QPointF pos = toGlobal(strip.get(), QPointF(10, 10));
    mousePress(strip.get(), pos);
    mouseRelease(strip.get(), pos);
    mouseDoubleClick(strip.get(), pos);
    mouseRelease(strip.get(), pos);
    QCOMPARE(colors.count(), 0);
    strip->setVal(100); // as before, so nothing to tell
    QCOMPARE(colors.count(), 0);
}

void tst_ColorPicker::dragOverTheStripPicks_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<int>("val");
    QTest::newRow("inside") << QPointF(20, 60) << 255 - 53 * 255 / 218;
    QTest::newRow("top of the gradient") << QPointF(20, 7) << 255;
    QTest::newRow("above the gradient") << QPointF(20, 3) << 255;
    QTest::newRow("above the strip") << QPointF(20, -100) << 255;
    QTest::newRow("bottom of the gradient") << QPointF(20, StripHeight - 8) << 0;
    QTest::newRow("below the strip") << QPointF(-30, 1000) << 0;
    QTest::newRow("fraction that rounds up") << QPointF(20, 59.5) << 255 - 53 * 255 / 218;
}

void tst_ColorPicker::dragOverTheStripPicks()
{
    QFETCH(QPointF, pos);
    QFETCH(int, val);
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    strip->setCol(30, 40, 200);
    QSignalSpy colors(strip.get(), &ColorLuminancePicker::newHsv);
    mousePress(strip.get(), toGlobal(strip.get(), QPointF(20, 100)));
    dragTo(strip.get(), pos);
    QCOMPARE(colors.count(), 1);
    QCOMPARE(lastHsv(colors), QVector<int>({30, 40, val}));
}

void tst_ColorPicker::sameValueIsNotTold()
{
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    QSignalSpy colors(strip.get(), &ColorLuminancePicker::newHsv);
    dragTo(strip.get(), QPointF(20, 60));
    dragTo(strip.get(), QPointF(25, 60));
    QCOMPARE(colors.count(), 1);
}

void tst_ColorPicker::valueOutOfRangeIsToldAgain()
{
    // GIVEN a strip at the upper end
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    strip->setVal(255);
    strip->show();
    QCoreApplication::processEvents();
    QSignalSpy colors(strip.get(), &ColorLuminancePicker::newHsv);
    PaintWatch watch(strip.get());

    // WHEN it is set to that value, nothing happens
    strip->setVal(255);
    QCOMPARE(colors.count() + watch.times, 0);

    // and WHEN it is set beyond, THEN it tells and paints the end once more
    strip->setVal(300);
    QCOMPARE(lastHsv(colors), QVector<int>({100, 100, 255}));
    QCOMPARE(watch.times, 1);
    strip->setVal(-3);
    QCOMPARE(lastHsv(colors), QVector<int>({100, 100, 0}));
}

void tst_ColorPicker::stripIsSilentWhenAllIsSet()
{
    ColorLuminancePicker strip;
    QSignalSpy colors(&strip, &ColorLuminancePicker::newHsv);
    strip.setCol(1, 2, 3);
    QCOMPARE(colors.count(), 0);
}

void tst_ColorPicker::stripTellsAHueAndSaturationEveryTime()
{
    ColorLuminancePicker strip;
    strip.setCol(1, 2, 3);
    QSignalSpy colors(&strip, &ColorLuminancePicker::newHsv);
    strip.setCol(40, 50);
    strip.setCol(40, 50);
    QCOMPARE(colors.count(), 2);
    QCOMPARE(lastHsv(colors), QVector<int>({40, 50, 3}));
}

void tst_ColorPicker::stripTakesAnythingAsItIs()
{
    ColorLuminancePicker strip;
    strip.setCol(-1, 0, 300);
    QSignalSpy colors(&strip, &ColorLuminancePicker::newHsv);
    strip.setCol(-1, 0);
    QCOMPARE(lastHsv(colors), QVector<int>({-1, 0, 300}));
}

void tst_ColorPicker::stripRepaintsAtOnce()
{
    // GIVEN a strip on the screen
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    PaintWatch watch(strip.get());
    QVERIFY(watch.begin());

    // WHEN anything of its colour changes, THEN it is painted before the call returns
    watch.reset();
    strip->setVal(7);
    QCOMPARE(watch.painted, QRegion(strip->rect()));
    watch.reset();
    strip->setCol(1, 2);
    QCOMPARE(watch.painted, QRegion(strip->rect()));
    watch.reset();
    strip->setCol(1, 2, 3);
    QCOMPARE(watch.painted, QRegion(strip->rect()));

    // WHEN nothing changes, THEN it is not painted
    watch.reset();
    strip->setCol(1, 2, 3);
    QCOMPARE(watch.times, 0);
}

void tst_ColorPicker::stripIsPaintedBeforeItTells()
{
    // GIVEN a strip on the screen whose receiver looks at it
    const std::unique_ptr<ColorLuminancePicker> strip(createStrip());
    PaintWatch watch(strip.get());
    QVERIFY(watch.begin());
    QVector<int> paintedBefore;
    connect(strip.get(), &ColorLuminancePicker::newHsv, this, [&] { paintedBefore.append(watch.times); });

    // WHEN it tells, THEN what it tells is on the screen
    strip->setVal(7);
    strip->setCol(1, 2);
    QCOMPARE(paintedBefore, QVector<int>({1, 2}));
}

QTEST_MAIN(tst_ColorPicker)

#include "tst_colorpicker.moc"
