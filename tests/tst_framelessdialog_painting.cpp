// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the dialog paints, against painters here that take each antialiased step literally: equal pixel by
// pixel.

#include "support/functionguard.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPicture>
#include <QRandomGenerator>
#include <QTest>
#include <QVBoxLayout>
#include <cmath>
#include <optional>
#include <tarnwidgets/framelessdialog.h>

using Tarn::Widgets::FramelessDialog;

namespace {

struct Look
{
    QSize size;
    QColor background;
    QColor border;
};

// A dialog that may have any size, however small.
class Dialog : public FramelessDialog
{
public:
    explicit Dialog(const QSize &size)
    {
        getMainLayout()->setSizeConstraint(QLayout::SetNoConstraint);
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        resize(size);
    }
};

class ShadowDialog : public Dialog
{
public:
    using Dialog::Dialog;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        drawShadowBorder(event);
    }
};

// Paints on top of what the base painted.
class DottedDialog : public Dialog
{
public:
    using Dialog::Dialog;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        drawSolidBorder(event);
        QPainter(this).fillRect(20, 20, 1, 1, Qt::red);
    }
};

// Passes no event on.
class EventlessDialog : public Dialog
{
public:
    using Dialog::Dialog;

protected:
    void paintEvent(QPaintEvent *) override
    {
        drawSolidBorder(nullptr);
    }
};

QImage clearImage(const QSize &size, qreal ratio)
{
    const QSize pixels(int(std::ceil(size.width() * ratio)), int(std::ceil(size.height() * ratio)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

// The dialog's own paint event alone: neither children nor what the style makes of a window's ground.
QImage painted(QWidget &dialog, qreal ratio, const QRegion &region = QRegion())
{
    QImage image = clearImage(dialog.size(), ratio);
    // render() puts the region's top left corner where it is told to, here to where it is in the dialog.
    dialog.render(&image, region.boundingRect().topLeft(), region, QWidget::RenderFlags());
    return image;
}

QPainterPath rectanglePath(const QRectF &rectangle)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(rectangle);
    return path;
}

// Takes the steps of one border literally, through the same paint event and clip as the dialog.
class Reference : public QWidget
{
public:
    using Steps = void (*)(QPainter &painter, const Look &look);

    Reference(const Look &look, Steps steps)
        : m_look(look)
        , m_steps(steps)
    {
        resize(look.size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_steps(painter, m_look);
    }

private:
    const Look m_look;
    const Steps m_steps;
};

void solidSteps(QPainter &painter, const Look &look)
{
    const int width = look.size.width();
    const int height = look.size.height();
    painter.fillPath(rectanglePath(QRectF(1, 1, width - 2, height - 2)), look.background);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(rectanglePath(QRectF(0, 0, width - 1, height - 1)));
}

void shadowSteps(QPainter &painter, const Look &look)
{
    const int width = look.size.width();
    const int height = look.size.height();
    painter.fillPath(rectanglePath(QRectF(10, 10, width - 20, height - 20)), look.background);
    QColor shadow(0, 0, 0, 35);
    for (int i = 0; i <= 9; ++i) {
        const int inset = 10 - i;
        shadow.setAlpha(int(150 - 50 * std::sqrt(i)));
        painter.setPen(shadow);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(rectanglePath(QRectF(inset, inset, width - 2 * inset, height - 2 * inset)));
    }
}

QImage solidReference(const Look &look, qreal ratio, const QRegion &region = QRegion())
{
    Reference reference(look, &solidSteps);
    return painted(reference, ratio, region);
}

QImage shadowReference(const Look &look, qreal ratio, const QRegion &region = QRegion())
{
    Reference reference(look, &shadowSteps);
    return painted(reference, ratio, region);
}

QString firstDifference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size())
        return QStringLiteral("sizes differ");
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb is = reinterpret_cast<const QRgb *>(actual.constScanLine(y))[x];
            const QRgb shall = reinterpret_cast<const QRgb *>(expected.constScanLine(y))[x];
            if (is != shall) {
                return QStringLiteral("at (%1, %2): #%3 instead of #%4")
                    .arg(x)
                    .arg(y)
                    .arg(is, 8, 16, QLatin1Char('0'))
                    .arg(shall, 8, 16, QLatin1Char('0'));
            }
        }
    }
    return QString();
}

QByteArray described(const Look &look, const QString &difference)
{
    return QStringLiteral("%1 x %2 in %3 with border %4: %5")
        .arg(look.size.width())
        .arg(look.size.height())
        .arg(look.background.name(QColor::HexArgb), look.border.name(QColor::HexArgb), difference)
        .toLocal8Bit();
}

void apply(const Look &look)
{
    FramelessDialog::m_defaultBackgroundColor = look.background;
    FramelessDialog::m_defaultBorderColor = look.border;
}

QColor randomColor(QRandomGenerator &random, bool translucent)
{
    QColor color(QRgb(random.generate()) | 0xff000000U);
    if (translucent)
        color.setAlpha(int(random.bounded(256)));
    return color;
}

Look randomLook(QRandomGenerator &random, int smallest, bool translucent)
{
    const QSize size(random.bounded(smallest, 260), random.bounded(smallest, 260));
    return {size, randomColor(random, translucent), randomColor(random, translucent)};
}

QRegion randomRegion(QRandomGenerator &random, const QSize &size)
{
    const QRect whole(QPoint(), size);
    QRegion region;
    do {
        for (int rectangles = random.bounded(1, 5); rectangles > 0; --rectangles) {
            const QPoint corner(random.bounded(-3, size.width()), random.bounded(-3, size.height()));
            const QSize extent(random.bounded(1, size.width() + 4), random.bounded(1, size.height() + 4));
            region ^= QRect(corner, extent) & whole;
        }
    } while (region.isEmpty());
    return region;
}

QImage noise(QRandomGenerator &random, const QSize &size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return image.convertToFormat(format);
}

// Something done to a painter before a widget is rendered with it.
using Setting = void (*)(QPainter &painter);

const Look DefaultLook = {QSize(200, 120), QColor(69, 69, 69), QColor(56, 56, 56)};

} // namespace

Q_DECLARE_METATYPE(QRegion)
Q_DECLARE_METATYPE(Setting)

class tst_FramelessDialogPainting : public QObject
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

    void everyPaintDrawsGroundAndBorder_data();
    void everyPaintDrawsGroundAndBorder();
    void sidesAreHalfCoveredByTheBorder();
    void solidBorderIsTheSameInAnySizeAndColor_data();
    void solidBorderIsTheSameInAnySizeAndColor();
    void partOfTheSolidBorderLooksAsInTheSteps_data();
    void partOfTheSolidBorderLooksAsInTheSteps();
    void randomPartsOfTheSolidBorderLookAsInTheSteps_data();
    void randomPartsOfTheSolidBorderLookAsInTheSteps();
    void solidBorderIsTheSameInEveryShade();
    void solidBorderIsBlendedWithWhatIsThere_data();
    void solidBorderIsBlendedWithWhatIsThere();
    void solidBorderObeysThePainterItIsRenderedWith_data();
    void solidBorderObeysThePainterItIsRenderedWith();
    void solidBorderIsRecordedInFull();
    void solidBorderNeedsNoEvent();
    void colorsCountAtTheTimeOfThePaint();
    void shadowIsPaintedOnRequest_data();
    void shadowIsPaintedOnRequest();
    void shadowFadesOutward();
    void shadowBorderIsTheSameInAnySizeAndColor_data();
    void shadowBorderIsTheSameInAnySizeAndColor();
    void randomPartsOfTheShadowBorderLookAsInTheSteps_data();
    void randomPartsOfTheShadowBorderLookAsInTheSteps();
    void subclassPaintsOnTopOfTheBorder();
    void groundIsNotTheStyleSheets();

private:
    static void addRatios();

    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_FramelessDialogPainting::addRatios()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("one pixel a point") << 1.0;
    QTest::newRow("one and a half pixels a point") << 1.5;
    QTest::newRow("two pixels a point") << 2.0;
}

void tst_FramelessDialogPainting::everyPaintDrawsGroundAndBorder_data()
{
    addRatios();
}

void tst_FramelessDialogPainting::everyPaintDrawsGroundAndBorder()
{
    QFETCH(qreal, ratio);

    // GIVEN a dialog in its own colours
    Dialog dialog(DefaultLook.size);
    QCOMPARE(dialog.size(), DefaultLook.size);

    // THEN a paint draws the solid border, and so does the next one
    const QImage expected = solidReference(DefaultLook, ratio);
    QCOMPARE(firstDifference(painted(dialog, ratio), expected), QString());
    QCOMPARE(firstDifference(painted(dialog, ratio), expected), QString());
}

void tst_FramelessDialogPainting::sidesAreHalfCoveredByTheBorder()
{
    // GIVEN a dialog in its own colours
    Dialog dialog(DefaultLook.size);
    const int right = dialog.width() - 1;
    const int bottom = dialog.height() - 1;

    // WHEN it is painted
    const QImage image = painted(dialog, 1);

    // THEN the outermost pixels are half covered by the border, and the inner ones are the ground
    const QRgb half = qRgba(56, 56, 56, 128);
    QCOMPARE(image.pixelColor(100, 0).rgba(), half);
    QCOMPARE(image.pixelColor(0, 60).rgba(), half);
    QCOMPARE(image.pixelColor(right, 60).rgba(), half);
    QCOMPARE(image.pixelColor(100, bottom).rgba(), half);
    QCOMPARE(image.pixelColor(1, 1), QColor(69, 69, 69));
    QCOMPARE(image.pixelColor(100, 60), QColor(69, 69, 69));

    // and on the far sides the border's other half lies on the ground
    const QColor onGround = image.pixelColor(right - 1, 60);
    QCOMPARE(onGround.alpha(), 255);
    QVERIFY(onGround.red() > 56 && onGround.red() < 69);
    QCOMPARE(image.pixelColor(100, bottom - 1), onGround);
    QCOMPARE(image.pixelColor(right - 2, 60), QColor(69, 69, 69));
    QCOMPARE(image.pixelColor(100, bottom - 2), QColor(69, 69, 69));
}

void tst_FramelessDialogPainting::solidBorderIsTheSameInAnySizeAndColor_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<bool>("translucent");
    QTest::newRow("opaque, one pixel a point") << 1.0 << false;
    QTest::newRow("opaque, one and a half pixels a point") << 1.5 << false;
    QTest::newRow("opaque, two pixels a point") << 2.0 << false;
    QTest::newRow("opaque, three pixels a point") << 3.0 << false;
    QTest::newRow("translucent, one pixel a point") << 1.0 << true;
    QTest::newRow("translucent, two pixels a point") << 2.0 << true;
}

void tst_FramelessDialogPainting::solidBorderIsTheSameInAnySizeAndColor()
{
    QFETCH(qreal, ratio);
    QFETCH(bool, translucent);

    // GIVEN small sizes, all of them, and many others
    QRandomGenerator random(2026);
    QVector<Look> looks;
    for (int width = 1; width <= 12; ++width) {
        for (int height = 1; height <= 12; ++height)
            looks.append(
                {QSize(width, height), randomColor(random, translucent), randomColor(random, translucent)});
    }
    for (int i = 0; i < 60; ++i)
        looks.append(randomLook(random, 1, translucent));

    for (const Look &look : qAsConst(looks)) {
        // WHEN a dialog of that size and these colours is painted
        Dialog dialog(look.size);
        QCOMPARE(dialog.size(), look.size);
        apply(look);
        const QImage actual = painted(dialog, ratio);

        // THEN it looks as the steps give it
        const QString difference = firstDifference(actual, solidReference(look, ratio));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::partOfTheSolidBorderLooksAsInTheSteps_data()
{
    const int right = DefaultLook.size.width() - 1;
    const int bottom = DefaultLook.size.height() - 1;
    QTest::addColumn<QRegion>("region");
    QTest::newRow("one inner pixel") << QRegion(100, 60, 1, 1);
    QTest::newRow("inside, clear of every side") << QRegion(30, 20, 90, 40);
    QTest::newRow("inside, up to the border") << QRegion(1, 1, right - 1, bottom - 1);
    QTest::newRow("inside, up to the far sides' halves") << QRegion(1, 1, right - 2, bottom - 2);
    QTest::newRow("the top row") << QRegion(0, 0, right + 1, 1);
    QTest::newRow("the bottom row") << QRegion(0, bottom, right + 1, 1);
    QTest::newRow("the row above the bottom row") << QRegion(0, bottom - 1, right + 1, 1);
    QTest::newRow("the leftmost column") << QRegion(0, 0, 1, bottom + 1);
    QTest::newRow("the rightmost column") << QRegion(right, 0, 1, bottom + 1);
    QTest::newRow("the column left of the rightmost") << QRegion(right - 1, 0, 1, bottom + 1);
    QTest::newRow("the top left corner") << QRegion(0, 0, 1, 1);
    QTest::newRow("the top right corner") << QRegion(right, 0, 1, 1);
    QTest::newRow("the bottom left corner") << QRegion(0, bottom, 1, 1);
    QTest::newRow("the bottom right corner") << QRegion(right - 1, bottom - 1, 2, 2);
    QTest::newRow("two opposite corners") << QRegion(0, 0, 9, 9).united(QRegion(right - 8, bottom - 8, 9, 9));
    QTest::newRow("a frame around a hole")
        << QRegion(0, 0, right + 1, bottom + 1).subtracted(QRegion(3, 3, 90, 90));
    QTest::newRow("two inner parts") << QRegion(10, 10, 20, 20).united(QRegion(50, 15, 20, 20));
    QTest::newRow("a circle") << QRegion(40, 10, 100, 100, QRegion::Ellipse);
    QTest::newRow("more than the whole") << QRegion(-50, -50, 400, 400);
}

void tst_FramelessDialogPainting::partOfTheSolidBorderLooksAsInTheSteps()
{
    QFETCH(QRegion, region);

    Dialog dialog(DefaultLook.size);
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        // WHEN only this region is painted
        const QImage actual = painted(dialog, ratio, region);

        // THEN it looks as the steps give it there
        const QImage expected = solidReference(DefaultLook, ratio, region);
        QCOMPARE(firstDifference(actual, expected), QString());
    }
}

void tst_FramelessDialogPainting::randomPartsOfTheSolidBorderLookAsInTheSteps_data()
{
    addRatios();
}

void tst_FramelessDialogPainting::randomPartsOfTheSolidBorderLookAsInTheSteps()
{
    QFETCH(qreal, ratio);

    QRandomGenerator random(4711);
    for (int i = 0; i < 150; ++i) {
        // GIVEN a dialog of some size and look
        const Look look = randomLook(random, 3, i % 3 == 0);
        Dialog dialog(look.size);
        apply(look);
        const QRegion region = randomRegion(random, look.size);

        // WHEN some part of it is painted
        const QImage actual = painted(dialog, ratio, region);

        // THEN it looks as the steps give it there
        const QString difference = firstDifference(actual, solidReference(look, ratio, region));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::solidBorderIsTheSameInEveryShade()
{
    Dialog dialog(QSize(16, 16));
    for (int shade = 0; shade <= 0xffff; shade += 85) {
        // GIVEN a shade, most of them finer than 8 bits can tell
        const QColor color =
            QColor::fromRgba64(ushort(shade), ushort(0xffff - shade), ushort(shade ^ 0x5555));
        const Look look = {dialog.size(), color.lighter(), color};
        apply(look);

        // THEN the dialog looks as the steps give it
        const QString difference = firstDifference(painted(dialog, 1), solidReference(look, 1));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::solidBorderIsBlendedWithWhatIsThere_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::newRow("premultiplied") << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("opaque") << QImage::Format_RGB32;
    QTest::newRow("not premultiplied") << QImage::Format_ARGB32;
    QTest::newRow("bytes in another order") << QImage::Format_RGBA8888_Premultiplied;
    QTest::newRow("16 bits a pixel") << QImage::Format_RGB16;
    QTest::newRow("16 bits a channel") << QImage::Format_RGBA64_Premultiplied;
    QTest::newRow("10 bits a channel") << QImage::Format_A2RGB30_Premultiplied;
    QTest::newRow("grey") << QImage::Format_Grayscale8;
}

void tst_FramelessDialogPainting::solidBorderIsBlendedWithWhatIsThere()
{
    QFETCH(QImage::Format, format);

    QRandomGenerator random(2028);
    for (int i = 0; i < 20; ++i) {
        // GIVEN a picture of noise, larger than the dialog
        const Look look = randomLook(random, 1, i % 3 == 0);
        QImage actual = noise(random, look.size + QSize(20, 20), format);
        QImage expected = actual;
        const QPoint place(random.bounded(20), random.bounded(20));

        // WHEN the dialog is rendered into it
        Dialog dialog(look.size);
        apply(look);
        dialog.render(&actual, place, QRegion(), QWidget::RenderFlags());
        QVERIFY(actual != expected);

        // THEN the picture is the one that the steps give
        Reference(look, &solidSteps).render(&expected, place, QRegion(), QWidget::RenderFlags());
        QVERIFY2(actual == expected, described(look, QStringLiteral("the pictures differ")).constData());
    }
}

void tst_FramelessDialogPainting::solidBorderObeysThePainterItIsRenderedWith_data()
{
    QTest::addColumn<Setting>("setting");
    const auto row = [](const char *name, Setting setting) { QTest::newRow(name) << setting; };
    row("as it comes", [](QPainter &) {});
    row("a few pixels off", [](QPainter &painter) { painter.translate(7, -3); });
    row("half a pixel off", [](QPainter &painter) { painter.translate(0.5, 2.25); });
    row("enlarged", [](QPainter &painter) { painter.scale(1.7, 2); });
    row("mirrored", [](QPainter &painter) {
        painter.translate(200, 0);
        painter.scale(-1, 1);
    });
    row("turned by a quarter", [](QPainter &painter) {
        painter.translate(200, 0);
        painter.rotate(90);
    });
    row("turned a little", [](QPainter &painter) { painter.rotate(11); });
    row("sheared", [](QPainter &painter) { painter.shear(0.1, 0.2); });
    row("through a window", [](QPainter &painter) { painter.setWindow(0, 0, 150, 150); });
    row("adding", [](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Plus); });
    row("replacing", [](QPainter &painter) { painter.setCompositionMode(QPainter::CompositionMode_Source); });
    row("half opaque", [](QPainter &painter) { painter.setOpacity(0.5); });
    row("with a brush of its own", [](QPainter &painter) { painter.setBrush(Qt::green); });
    row("antialiased and smooth", [](QPainter &painter) {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    });
    row("clipped to a rectangle", [](QPainter &painter) { painter.setClipRect(20, 20, 90, 70); });
    row("clipped to a circle", [](QPainter &painter) {
        QPainterPath circle;
        circle.addEllipse(QRectF(5.5, 3, 140, 100));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(circle);
    });
}

void tst_FramelessDialogPainting::solidBorderObeysThePainterItIsRenderedWith()
{
    QFETCH(Setting, setting);

    QRandomGenerator random(2029);
    for (int i = 0; i < 6; ++i) {
        // GIVEN a painter that was set up in some way, on a picture of noise
        const Look look = randomLook(random, 1, i % 3 == 0);
        const QImage ground = noise(random, QSize(250, 250), QImage::Format_ARGB32_Premultiplied);
        const auto renderedOn = [&ground, setting](QWidget &widget) {
            QImage image = ground;
            QPainter painter(&image);
            setting(painter);
            widget.render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
            return image;
        };

        // WHEN the dialog is rendered with it
        Dialog dialog(look.size);
        apply(look);
        const QImage actual = renderedOn(dialog);

        // THEN the picture is the one that the steps give
        Reference reference(look, &solidSteps);
        const QString difference = firstDifference(actual, renderedOn(reference));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::solidBorderIsRecordedInFull()
{
    // GIVEN a dialog that was rendered into a picture that records what is painted
    Dialog dialog(DefaultLook.size);
    QPicture picture;
    dialog.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());

    // WHEN the picture is played at three times the size
    const auto played = [](const QPicture &picture) {
        QImage image = clearImage(DefaultLook.size * 3, 1);
        QPainter painter(&image);
        painter.scale(3, 3);
        painter.drawPicture(0, 0, picture);
        return image;
    };

    // THEN it is as sharp as the steps
    QPicture expected;
    Reference(DefaultLook, &solidSteps).render(&expected, QPoint(), QRegion(), QWidget::RenderFlags());
    QVERIFY(played(picture) != clearImage(DefaultLook.size * 3, 1));
    QCOMPARE(firstDifference(played(picture), played(expected)), QString());
}

void tst_FramelessDialogPainting::solidBorderNeedsNoEvent()
{
    const QRegion region(0, 10, 50, 20);
    for (const qreal ratio : {1.0, 1.5}) {
        EventlessDialog dialog(DefaultLook.size);
        QCOMPARE(firstDifference(painted(dialog, ratio, region), solidReference(DefaultLook, ratio, region)),
                 QString());
    }
}

void tst_FramelessDialogPainting::colorsCountAtTheTimeOfThePaint()
{
    const Look first = {DefaultLook.size, QColor(10, 200, 30), QColor(200, 10, 30)};
    const Look second = {DefaultLook.size, QColor(30, 10, 200), QColor(20, 30, 40)};

    // GIVEN a dialog that was painted in two looks one after the other
    Dialog dialog(DefaultLook.size);
    apply(first);
    QCOMPARE(firstDifference(painted(dialog, 1), solidReference(first, 1)), QString());
    apply(second);
    QCOMPARE(firstDifference(painted(dialog, 1), solidReference(second, 1)), QString());

    // WHEN only the border goes back, and then the ground too
    FramelessDialog::m_defaultBorderColor = first.border;
    const QImage mixed = painted(dialog, 1);
    FramelessDialog::m_defaultBackgroundColor = first.background;
    const QImage back = painted(dialog, 1);

    // THEN each paint has the colours of its time
    QCOMPARE(firstDifference(mixed, solidReference({first.size, second.background, first.border}, 1)),
             QString());
    QCOMPARE(firstDifference(back, solidReference(first, 1)), QString());
}

void tst_FramelessDialogPainting::shadowIsPaintedOnRequest_data()
{
    addRatios();
}

void tst_FramelessDialogPainting::shadowIsPaintedOnRequest()
{
    QFETCH(qreal, ratio);
    ShadowDialog dialog(DefaultLook.size);
    const QImage expected = shadowReference(DefaultLook, ratio);
    QVERIFY(expected != solidReference(DefaultLook, ratio));
    QCOMPARE(firstDifference(painted(dialog, ratio), expected), QString());
}

void tst_FramelessDialogPainting::shadowFadesOutward()
{
    // GIVEN a dialog with a shadow
    ShadowDialog dialog(DefaultLook.size);

    // WHEN it is painted
    const QImage image = painted(dialog, 1);

    // THEN the shadow is black, begins beside the ground and gets fainter with each pixel, to nothing at the
    // side
    QCOMPARE(image.pixelColor(12, 60), QColor(69, 69, 69));
    for (int x = 8; x >= 1; --x) {
        const QColor color = image.pixelColor(x, 60);
        QCOMPARE(color.rgb(), qRgb(0, 0, 0));
        QVERIFY(color.alpha() > 0);
        QVERIFY(color.alpha() < image.pixelColor(x + 1, 60).alpha());
    }
    QCOMPARE(image.pixelColor(0, 60).alpha(), 0);
}

void tst_FramelessDialogPainting::shadowBorderIsTheSameInAnySizeAndColor_data()
{
    addRatios();
}

void tst_FramelessDialogPainting::shadowBorderIsTheSameInAnySizeAndColor()
{
    QFETCH(qreal, ratio);

    // The ground is inset by ten pixels on each side: smaller dialogs have none.
    QRandomGenerator random(2027);
    QVector<Look> looks;
    for (int width = 20; width <= 26; ++width)
        looks.append({QSize(width, 46 - width), randomColor(random, false), QColor()});
    for (int i = 0; i < 60; ++i)
        looks.append(randomLook(random, 20, i % 2 == 0));

    for (const Look &look : qAsConst(looks)) {
        // WHEN a dialog of that size and ground is painted
        ShadowDialog dialog(look.size);
        QCOMPARE(dialog.size(), look.size);
        apply(look);
        const QImage actual = painted(dialog, ratio);

        // THEN it looks as the steps give it
        const QString difference = firstDifference(actual, shadowReference(look, ratio));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::randomPartsOfTheShadowBorderLookAsInTheSteps_data()
{
    addRatios();
}

void tst_FramelessDialogPainting::randomPartsOfTheShadowBorderLookAsInTheSteps()
{
    QFETCH(qreal, ratio);

    QRandomGenerator random(4712);
    for (int i = 0; i < 150; ++i) {
        const Look look = randomLook(random, 20, false);
        ShadowDialog dialog(look.size);
        apply(look);
        const QRegion region = randomRegion(random, look.size);
        const QImage actual = painted(dialog, ratio, region);
        const QString difference = firstDifference(actual, shadowReference(look, ratio, region));
        QVERIFY2(difference.isEmpty(), described(look, difference).constData());
    }
}

void tst_FramelessDialogPainting::subclassPaintsOnTopOfTheBorder()
{
    // GIVEN a dialog that adds a red dot
    DottedDialog dialog(DefaultLook.size);

    // WHEN it is painted
    const QImage actual = painted(dialog, 1);

    // THEN the dot is all that differs
    QImage expected = solidReference(DefaultLook, 1);
    expected.setPixelColor(20, 20, Qt::red);
    QCOMPARE(firstDifference(actual, expected), QString());
}

void tst_FramelessDialogPainting::groundIsNotTheStyleSheets()
{
    // GIVEN a style sheet that gives the dialog a ground and a border
    Dialog dialog(DefaultLook.size);
    dialog.setStyleSheet(QStringLiteral("QDialog { background: #ff0000; border: 7px solid #00ff00; }"));

    // WHEN the dialog is painted with all that the style does for a window
    QImage image = clearImage(dialog.size(), 1);
    dialog.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);

    // THEN the ground within the border is the dialog's own
    const QRect inside = image.rect().adjusted(1, 1, -2, -2);
    QCOMPARE(firstDifference(image.copy(inside), solidReference(DefaultLook, 1).copy(inside)), QString());
}

QTEST_MAIN(tst_FramelessDialogPainting)

#include "tst_framelessdialog_painting.moc"
