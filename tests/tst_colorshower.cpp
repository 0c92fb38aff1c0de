// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/paintwatch.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/colorshower.h>

using Tarn::Test::Brackets;
using Tarn::Test::mouseMove;
using Tarn::Test::mousePress;
using Tarn::Test::mouseRelease;
using Tarn::Test::PaintWatch;
using Tarn::Test::toGlobal;
using Tarn::Widgets::ColorShower;
using Tarn::Widgets::ColorShowLabel;
using Tarn::Widgets::ColSpinBox;

namespace {

enum Editor { Hue, Sat, Val, Red, Green, Blue, Alpha, EditorCount };

using Numbers = QVector<int>; // of the six editors that are seen

const QSize ShowerSize(300, 122);

/* A shower and its pieces, as the user sees them. */
struct Fixture
{
    Fixture()
        : boxes(shower.findChildren<ColSpinBox *>())
        , html(nullptr)
        , swatch(shower.findChild<ColorShowLabel *>())
    {
        shower.resize(ShowerSize);
        const auto fields = shower.findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
        html = fields.size() == 1 ? fields.constFirst() : nullptr;
    }

    bool isComplete() const
    {
        return boxes.size() == EditorCount && html != nullptr && swatch != nullptr;
    }

    Numbers numbers() const
    {
        Numbers values;
        for (int editor = Hue; editor <= Blue; ++editor)
            values.append(boxes.at(editor)->value());
        return values;
    }

    /* As the user does it: told, unlike what ColSpinBox::setValue() does. */
    void edit(Editor editor, int value) const
    {
        static_cast<QSpinBox *>(boxes.at(editor))->setValue(value);
    }

    QColor swatchColor() const
    {
        return swatch->grab().toImage().pixelColor(swatch->rect().center());
    }

    ColorShower shower;
    QList<ColSpinBox *> boxes;
    QLineEdit *html;
    ColorShowLabel *swatch;
};

std::unique_ptr<QMimeData> colorData(const QColor &color)
{
    auto data = std::make_unique<QMimeData>();
    data->setColorData(color);
    return data;
}

/* Whether the widget takes it. */
bool dragEnter(QWidget *widget, const QMimeData &data)
{
    QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/* Comes after the enter, as Qt wants it. */
bool drop(QWidget *widget, const QMimeData &data)
{
    dragEnter(widget, data);
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

QRgb lastRgb(const QSignalSpy &spy)
{
    return spy.isEmpty() ? 0x12345678 : qvariant_cast<QRgb>(spy.last().constFirst());
}

QColor lastColor(const QSignalSpy &spy)
{
    return spy.isEmpty() ? QColor() : qvariant_cast<QColor>(spy.last().constFirst());
}

/* The numbers that go with a colour, as QColor works them out. */
Numbers numbersOf(const QColor &color)
{
    return {qMax(0, color.hue()), color.saturation(), color.value(),
            color.red(),          color.green(),      color.blue()};
}

QImage filled(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QImage rendered(QWidget *widget)
{
    QImage image = filled(widget->size(), Qt::transparent);
    QPainter painter(&image);
    widget->render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

} // namespace

class tst_ColorShower : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QRgb>("QRgb");
    }
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void spinBoxGoesFrom0To255();
    void spinBoxIsSilentWhenItIsSet();
    void spinBoxKeepsItsSignalsBlocked();

    void interfaceIsSignalsAndSlots();
    void editorsHaveTheirPlaces_data();
    void editorsHaveTheirPlaces();
    void htmlFieldHasItsPlace();
    void swatchHasItsPlace();
    void alphaEditorIsHidden();
    void showerBeginsWithAColor();
    void textsAreChineseAndFollowTheLanguage();

    void setRgbShowsTheColor_data();
    void setRgbShowsTheColor();
    void setHsvShowsTheColor_data();
    void setHsvShowsTheColor();
    void setHsvIgnoresWhatIsNoColor_data();
    void setHsvIgnoresWhatIsNoColor();
    void hueOfAWholeTurnShowsAsTheLargest();
    void settingTellsTheColorOnceAndNoEdit();
    void settingShowsTheColorBeforeItIsTold();
    void settingTheSameColorShowsItAgain();

    void editedNumberIsShownEverywhereAndToldOnce_data();
    void editedNumberIsShownEverywhereAndToldOnce();
    void alphaEditorGoesIntoTheColor();
    void editThatGivesTheSameColorIsToldAsAnEdit();
    void editIsShownBeforeItIsTold_data();
    void editIsShownBeforeItIsTold();

    void htmlTakesThreeOrSixDigits_data();
    void htmlTakesThreeOrSixDigits();
    void htmlRefusesOtherCharacters();
    void unfinishedHtmlDoesNothing();
    void everyValidStateOfTheHtmlFieldIsTold();

    void swatchIsFilledInsideItsFrame();
    void swatchIsPaintedAtOnce();
    void swatchIsDraggedAwayAfterTheStartDistance_data();
    void swatchIsDraggedAwayAfterTheStartDistance();
    void dragOfTheSwatchCarriesItsColor();
    void dragNeedsAPressBeforeIt();
    void anyButtonDragsTheSwatch();
    void startDistanceIsTheApplications();
    void swatchTakesColorsOnly_data();
    void swatchTakesColorsOnly();
    void dropWhoseColorIsGoneChangesNothing();
    void droppedColorIsToldAndShown();
    void droppedColorIsPaintedBeforeItIsTold();
    void droppedColorBecomesOpaque();
    void leavingDragChangesNothing();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_ColorShower::spinBoxGoesFrom0To255()
{
    const ColSpinBox box;
    QCOMPARE(box.minimum(), 0);
    QCOMPARE(box.maximum(), 255);
    QCOMPARE(box.value(), 0);
}

void tst_ColorShower::spinBoxIsSilentWhenItIsSet()
{
    ColSpinBox box;
    QSignalSpy values(&box, qOverload<int>(&ColSpinBox::valueChanged));
    QSignalSpy texts(&box, &ColSpinBox::textChanged);
    box.setValue(70);
    QCOMPARE(box.value(), 70);
    QCOMPARE(box.text(), QStringLiteral("70"));
    box.setValue(-1);
    QCOMPARE(box.value(), 0);
    QVERIFY(values.isEmpty() && texts.isEmpty());
    static_cast<QSpinBox &>(box).setValue(71);
    QCOMPARE(values.count(), 1);
}

void tst_ColorShower::spinBoxKeepsItsSignalsBlocked()
{
    ColSpinBox box;
    box.blockSignals(true);
    box.setValue(70);
    QVERIFY(box.signalsBlocked());
    box.blockSignals(false);
    box.setValue(71);
    QVERIFY(!box.signalsBlocked());
}

void tst_ColorShower::interfaceIsSignalsAndSlots()
{
    const QMetaObject &shower = ColorShower::staticMetaObject;
    QVERIFY(shower.indexOfSignal("newCol(QRgb)") >= 0);
    QVERIFY(shower.indexOfSignal("currentColorChanged(QColor)") >= 0);
    QVERIFY(shower.indexOfSlot("setRgb(QRgb)") >= 0);
    for (const char *slot : {"rgbEd()", "hsvEd()", "htmlEd()"}) {
        const int index = shower.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(shower.method(index).access(), QMetaMethod::Private);
    }
    QVERIFY(ColorShowLabel::staticMetaObject.indexOfSignal("colorDropped(QRgb)") >= 0);
    QCOMPARE(ColSpinBox::staticMetaObject.superClass(), &QSpinBox::staticMetaObject);
}

void tst_ColorShower::editorsHaveTheirPlaces_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<int>("largest");
    QTest::addColumn<QRect>("labelCell"); // column and row
    QTest::addColumn<QRect>("boxCell");
    QTest::newRow("hue") << int(Hue) << 359 << QRect(1, 0, 1, 1) << QRect(2, 0, 1, 1);
    QTest::newRow("saturation") << int(Sat) << 255 << QRect(1, 1, 1, 1) << QRect(2, 1, 1, 1);
    QTest::newRow("value") << int(Val) << 255 << QRect(1, 2, 1, 1) << QRect(2, 2, 1, 1);
    QTest::newRow("red") << int(Red) << 255 << QRect(3, 0, 1, 1) << QRect(4, 0, 1, 1);
    QTest::newRow("green") << int(Green) << 255 << QRect(3, 1, 1, 1) << QRect(4, 1, 1, 1);
    QTest::newRow("blue") << int(Blue) << 255 << QRect(3, 2, 1, 1) << QRect(4, 2, 1, 1);
    QTest::newRow("alpha") << int(Alpha) << 255 << QRect(1, 3, 3, 1) << QRect(4, 3, 1, 1);
}

namespace {

/* Columns and rows that a widget takes in the grid of its parent. */
QRect cellOf(QWidget *widget)
{
    const auto *grid = qobject_cast<QGridLayout *>(widget->parentWidget()->layout());
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &rowSpan, &columnSpan);
    return QRect(column, row, columnSpan, rowSpan);
}

QLabel *labelOf(const QWidget *editor)
{
    const auto labels = editor->parentWidget()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->buddy() == editor)
            return label;
    }
    return nullptr;
}

} // namespace

void tst_ColorShower::editorsHaveTheirPlaces()
{
    QFETCH(int, editor);
    QFETCH(int, largest);
    const Fixture fixture;
    QVERIFY(fixture.isComplete());
    QCOMPARE(fixture.shower.layout()->contentsMargins(), QMargins());

    ColSpinBox *box = fixture.boxes.at(editor);
    QCOMPARE(box->minimum(), 0);
    QCOMPARE(box->maximum(), largest);
    QTEST(cellOf(box), "boxCell");

    QLabel *label = labelOf(box);
    QVERIFY(label);
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QTEST(cellOf(label), "labelCell");
}

void tst_ColorShower::htmlFieldHasItsPlace()
{
    const Fixture fixture;
    QVERIFY(fixture.isComplete());
    const auto *grid = qobject_cast<QGridLayout *>(fixture.shower.layout());
    QCOMPARE(cellOf(fixture.html), QRect(2, 5, 3, 1));
    QCOMPARE(grid->itemAtPosition(5, 2)->alignment(), Qt::AlignVCenter);
    QCOMPARE(fixture.html->minimumHeight(), 30);
    QCOMPARE(fixture.html->maximumHeight(), 30);
    QCOMPARE(fixture.html->sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed));

    QLabel *label = labelOf(fixture.html);
    QVERIFY(label);
    QCOMPARE(cellOf(label), QRect(1, 5, 1, 1));
    QCOMPARE(grid->itemAtPosition(5, 1)->alignment(), Qt::AlignVCenter);
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);

    // Row 4 has nothing but the swatch.
    for (int column = 1; column <= 4; ++column)
        QVERIFY(grid->itemAtPosition(4, column) == nullptr);
    const auto *validator = qobject_cast<const QRegularExpressionValidator *>(fixture.html->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), &fixture.shower);
    QCOMPARE(validator->regularExpression().pattern(), QStringLiteral("#([A-Fa-f0-9]{6}|[A-Fa-f0-9]{3})"));
}

void tst_ColorShower::swatchHasItsPlace()
{
    const Fixture fixture;
    QVERIFY(fixture.isComplete());
    QCOMPARE(cellOf(fixture.swatch), QRect(0, 0, 1, 6));
    QCOMPARE(fixture.swatch->minimumWidth(), 60);
    QCOMPARE(fixture.swatch->frameShape(), QFrame::NoFrame);
    QVERIFY(fixture.swatch->acceptDrops());
    QCOMPARE(fixture.swatch->parentWidget(), &fixture.shower);
}

void tst_ColorShower::alphaEditorIsHidden()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    const ColSpinBox *box = fixture.boxes.at(Alpha);
    QLabel *label = labelOf(box);
    QVERIFY(box->isHidden() && label->isHidden());
    QCOMPARE(box->value(), 0);
    fixture.shower.showAlpha(true);
    QVERIFY(!box->isHidden() && !label->isHidden());
    fixture.shower.showAlpha(false);
    QVERIFY(box->isHidden() && label->isHidden());
}

void tst_ColorShower::showerBeginsWithAColor()
{
    const Fixture fixture;
    QVERIFY(fixture.isComplete());
    const QColor color = QColor::fromHsv(100, 100, 100);
    QCOMPARE(fixture.numbers(), Numbers({100, 100, 100, color.red(), color.green(), color.blue()}));
    QCOMPARE(fixture.html->text(), color.name());
    QCOMPARE(fixture.shower.currentColor(), color.rgb());
    QCOMPARE(fixture.shower.currentQColor(), QColor(color.red(), color.green(), color.blue(), 0));
    QCOMPARE(fixture.swatchColor(), QColor(color.rgb()));
}

void tst_ColorShower::textsAreChineseAndFollowTheLanguage()
{
    const QStringList texts = {QStringLiteral("色调:"),     QStringLiteral("饱和度:"),
                               QStringLiteral("灰度:"),     QStringLiteral("红:"),
                               QStringLiteral("绿:"),       QStringLiteral("蓝:"),
                               QStringLiteral("Alpha通道:")};
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    for (int editor = Hue; editor < EditorCount; ++editor)
        QCOMPARE(labelOf(fixture.boxes.at(editor))->text(), texts.at(editor));
    QCOMPARE(labelOf(fixture.html)->text(), QStringLiteral("HTML:"));

    const Brackets language("Tarn::Widgets::ColorDialog");
    fixture.shower.retranslateStrings();
    for (int editor = Hue; editor < EditorCount; ++editor) {
        QCOMPARE(labelOf(fixture.boxes.at(editor))->text(), QStringLiteral("<%1>").arg(texts.at(editor)));
    }
    QCOMPARE(labelOf(fixture.html)->text(), QStringLiteral("<HTML:>"));
}

void tst_ColorShower::setRgbShowsTheColor_data()
{
    QTest::addColumn<QRgb>("rgb");
    QTest::addColumn<QString>("name");
    QTest::newRow("chromatic") << QRgb(0xffc8501e) << QStringLiteral("#c8501e");
    QTest::newRow("grey, without a hue") << QRgb(0xff808080) << QStringLiteral("#808080");
    QTest::newRow("black") << QRgb(0xff000000) << QStringLiteral("#000000");
    QTest::newRow("white") << QRgb(0xffffffff) << QStringLiteral("#ffffff");
    QTest::newRow("translucent") << QRgb(0x40ffaa00) << QStringLiteral("#ffaa00");
    QTest::newRow("transparent") << QRgb(0x000055ff) << QStringLiteral("#0055ff");
}

void tst_ColorShower::setRgbShowsTheColor()
{
    QFETCH(QRgb, rgb);
    QFETCH(QString, name);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(rgb);
    const QColor opaque(rgb);
    QCOMPARE(fixture.numbers(), numbersOf(opaque));
    QCOMPARE(fixture.html->text(), name);
    QCOMPARE(fixture.swatchColor(), opaque);
    QCOMPARE(fixture.shower.currentColor(), rgb);
    QCOMPARE(fixture.shower.currentQColor(), QColor(opaque.red(), opaque.green(), opaque.blue(), 0));
}

void tst_ColorShower::setHsvShowsTheColor_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<int>("val");
    QTest::newRow("chromatic") << 200 << 123 << 231;
    QTest::newRow("smallest") << 0 << 0 << 0;
    QTest::newRow("largest") << 359 << 255 << 255;
    QTest::newRow("grey") << -1 << 0 << 99;
    QTest::newRow("black with a hue") << 77 << 88 << 0;
}

void tst_ColorShower::setHsvShowsTheColor()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    QFETCH(int, val);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setHsv(hue, sat, val);
    QColor color;
    color.setHsv(hue, sat, val, 255);
    const Numbers numbers = {qMax(0, hue), sat, val, color.red(), color.green(), color.blue()};
    QCOMPARE(fixture.numbers(), numbers);
    QCOMPARE(fixture.html->text(), color.name());
    QCOMPARE(fixture.shower.currentColor(), color.rgb());
    QCOMPARE(fixture.swatchColor(), QColor(color.rgb()));
}

void tst_ColorShower::setHsvIgnoresWhatIsNoColor_data()
{
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("sat");
    QTest::addColumn<int>("val");
    QTest::newRow("hue") << -2 << 10 << 10;
    QTest::newRow("saturation below") << 10 << -1 << 10;
    QTest::newRow("saturation above") << 10 << 256 << 10;
    QTest::newRow("value below") << 10 << 10 << -1;
    QTest::newRow("value above") << 10 << 10 << 256;
}

void tst_ColorShower::setHsvIgnoresWhatIsNoColor()
{
    QFETCH(int, hue);
    QFETCH(int, sat);
    QFETCH(int, val);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    const Numbers before = fixture.numbers();
    fixture.shower.setHsv(hue, sat, val);
    QCOMPARE(fixture.numbers(), before);
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xffc8501e));
}

void tst_ColorShower::hueOfAWholeTurnShowsAsTheLargest()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setHsv(360, 255, 255);
    QCOMPARE(fixture.boxes.at(Hue)->value(), 359);
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xffff0000));
}

void tst_ColorShower::settingTellsTheColorOnceAndNoEdit()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    QSignalSpy colors(&fixture.shower, &ColorShower::currentColorChanged);

    fixture.shower.setRgb(0xff0055ff);
    QCOMPARE(colors.count(), 1);
    QCOMPARE(lastColor(colors), QColor(0, 0x55, 0xff, 0));

    // The same colour is no change, nor is its alpha, which the shower does not take over.
    fixture.shower.setRgb(0x400055ff);
    QCOMPARE(colors.count(), 1);
    fixture.shower.setHsv(0, 255, 255);
    QCOMPARE(colors.count(), 2);
    QCOMPARE(lastColor(colors), QColor(255, 0, 0, 0));
    QCOMPARE(edits.count(), 0);
}

void tst_ColorShower::settingShowsTheColorBeforeItIsTold()
{
    // GIVEN a shower on the screen whose receiver looks at it
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    PaintWatch watch(fixture.swatch);
    QVERIFY(watch.begin());
    Numbers numbers;
    QString html;
    int paintedBefore = -1;
    connect(&fixture.shower, &ColorShower::currentColorChanged, this, [&] {
        numbers = fixture.numbers();
        html = fixture.html->text();
        paintedBefore = watch.times;
    });

    // WHEN a colour is set, THEN all of it is shown by the time it is told
    fixture.shower.setRgb(0xffc8501e);
    QCOMPARE(numbers, Numbers({17, 217, 200, 200, 80, 30}));
    QCOMPARE(html, QStringLiteral("#c8501e"));
    QCOMPARE(paintedBefore, 1);
    fixture.shower.setHsv(0, 255, 255);
    QCOMPARE(numbers, Numbers({0, 255, 255, 255, 0, 0}));
    QCOMPARE(html, QStringLiteral("#ff0000"));
    QCOMPARE(paintedBefore, 2);
}

void tst_ColorShower::settingTheSameColorShowsItAgain()
{
    // GIVEN a shower with a grey whose hue and HTML were edited
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xff808080);
    fixture.edit(Hue, 50);
    fixture.html->clear();
    QTest::keyClicks(fixture.html, QStringLiteral("#12"));
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xff808080));

    // WHEN the grey is set once more, THEN both are as the colour has them
    fixture.shower.setRgb(0xff808080);
    QCOMPARE(fixture.numbers(), Numbers({0, 0, 128, 128, 128, 128}));
    QCOMPARE(fixture.html->text(), QStringLiteral("#808080"));

    // and so they are by the other way of setting
    fixture.html->clear();
    fixture.shower.setHsv(70, 0, 128);
    QCOMPARE(fixture.numbers(), Numbers({70, 0, 128, 128, 128, 128}));
    QCOMPARE(fixture.html->text(), QStringLiteral("#808080"));
}

void tst_ColorShower::editedNumberIsShownEverywhereAndToldOnce_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<int>("value");
    QTest::addColumn<QRgb>("rgb");
    // From hue 17, saturation 217 and value 200, which is red 200, green 80 and blue 30. The numbers on the
    // left give an opaque colour, those on the right take the alpha editor's 0.
    const auto hsv = [](int hue, int sat, int val) { return QColor::fromHsv(hue, sat, val).rgb(); };
    QTest::newRow("hue") << int(Hue) << 240 << hsv(240, 217, 200);
    QTest::newRow("saturation") << int(Sat) << 10 << hsv(17, 10, 200);
    QTest::newRow("saturation of grey") << int(Sat) << 0 << hsv(17, 0, 200);
    QTest::newRow("value") << int(Val) << 33 << hsv(17, 217, 33);
    QTest::newRow("red") << int(Red) << 7 << QRgb(0x0007501e);
    QTest::newRow("green") << int(Green) << 255 << QRgb(0x00c8ff1e);
    QTest::newRow("blue") << int(Blue) << 90 << QRgb(0x00c8505a);
}

void tst_ColorShower::editedNumberIsShownEverywhereAndToldOnce()
{
    QFETCH(int, editor);
    QFETCH(int, value);
    QFETCH(QRgb, rgb);

    // GIVEN a shower with a colour
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    QCOMPARE(fixture.numbers(), Numbers({17, 217, 200, 200, 80, 30}));
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    QSignalSpy colors(&fixture.shower, &ColorShower::currentColorChanged);

    // WHEN one number is edited
    fixture.edit(Editor(editor), value);

    // THEN the colour is told once
    QCOMPARE(edits.count(), 1);
    QCOMPARE(lastRgb(edits), rgb);
    QCOMPARE(fixture.shower.currentColor(), rgb);
    const QColor opaque(rgb);
    QCOMPARE(colors.count(), 1);
    QCOMPARE(lastColor(colors), QColor(opaque.red(), opaque.green(), opaque.blue(), 0));

    // and shown: what is left as edited is the side that the number is on
    Numbers expected = numbersOf(opaque);
    if (editor <= Val) {
        expected[Hue] = 17;
        expected[Sat] = 217;
        expected[Val] = 200;
    }
    expected[editor] = value;
    QCOMPARE(fixture.numbers(), expected);
    QCOMPARE(fixture.html->text(), opaque.name());
    QCOMPARE(fixture.swatchColor(), opaque);
}

void tst_ColorShower::alphaEditorGoesIntoTheColor()
{
    // GIVEN a shower
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);

    // WHEN alpha is edited, THEN it is part of what is told
    fixture.edit(Alpha, 128);
    QCOMPARE(edits.count(), 1);
    QCOMPARE(lastRgb(edits), QRgb(0x80c8501e));
    QCOMPARE(fixture.shower.currentQColor(), QColor(0xc8, 0x50, 0x1e, 128));
    QCOMPARE(fixture.swatchColor(), QColor(0xc8, 0x50, 0x1e));

    // and so it is with red, green, blue and HTML, but not with hue, saturation and value
    fixture.edit(Blue, 0x1f);
    QCOMPARE(lastRgb(edits), QRgb(0x80c8501f));
    fixture.html->clear();
    QTest::keyClicks(fixture.html, QStringLiteral("#0f0"));
    QCOMPARE(lastRgb(edits), QRgb(0x8000ff00));
    fixture.edit(Hue, 0);
    QCOMPARE(lastRgb(edits), QRgb(0xffff0000));
    QCOMPARE(fixture.shower.currentQColor(), QColor(255, 0, 0, 128));
}

void tst_ColorShower::editIsShownBeforeItIsTold_data()
{
    QTest::addColumn<int>("editor"); // the one behind the last is HTML
    QTest::newRow("blue") << int(Blue);
    QTest::newRow("value") << int(Val);
    QTest::newRow("HTML") << int(EditorCount);
}

void tst_ColorShower::editIsShownBeforeItIsTold()
{
    QFETCH(int, editor);

    // GIVEN a shower on the screen whose receivers look at it
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    PaintWatch watch(fixture.swatch);
    QVERIFY(watch.begin());
    QStringList seen;
    Numbers seenNumbers;
    connect(&fixture.shower, &ColorShower::newCol, this, [&] {
        seen.append(QStringLiteral("edit %1 %2").arg(fixture.html->text()).arg(watch.times));
        seenNumbers = fixture.numbers();
        QVERIFY(fixture.shower.currentQColor() != QColor(0, 0, 255, 0));
    });
    connect(&fixture.shower, &ColorShower::currentColorChanged, this,
            [&](const QColor &color) { seen.append(QStringLiteral("color ") + color.name()); });
    fixture.shower.setRgb(0xff0000f0);
    fixture.html->setText(QStringLiteral("#0000f"));
    watch.reset();
    seen.clear();

    // WHEN a number or HTML is edited
    if (editor < EditorCount)
        fixture.edit(Editor(editor), 255);
    else
        QTest::keyClicks(fixture.html, QStringLiteral("f"));

    // THEN they find the texts and the painted swatch, and hear of the colour last
    QCOMPARE(seen, QStringList({QStringLiteral("edit #0000ff 1"), QStringLiteral("color #0000ff")}));
    QCOMPARE(seenNumbers, Numbers({240, 255, 255, 0, 0, 255}));
}

void tst_ColorShower::editThatGivesTheSameColorIsToldAsAnEdit()
{
    // GIVEN a shower with a grey
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xff808080);
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    QSignalSpy colors(&fixture.shower, &ColorShower::currentColorChanged);

    // WHEN its hue is edited, which a grey does not show
    fixture.edit(Hue, 50);

    // THEN that is an edit, but no other colour
    QCOMPARE(edits.count(), 1);
    QCOMPARE(lastRgb(edits), QRgb(0xff808080));
    QCOMPARE(fixture.boxes.at(Hue)->value(), 50);
    QCOMPARE(colors.count(), 0);

    // and so it is with three digits of HTML that become six
    fixture.html->clear();
    QTest::keyClicks(fixture.html, QStringLiteral("#fff"));
    QCOMPARE(edits.count(), 2);
    QTest::keyClicks(fixture.html, QStringLiteral("fff"));
    QCOMPARE(edits.count(), 3);
    QCOMPARE(colors.count(), 1);
}

void tst_ColorShower::htmlTakesThreeOrSixDigits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QRgb>("rgb");
    QTest::newRow("six digits") << QStringLiteral("#12abef") << QRgb(0x0012abef);
    QTest::newRow("three digits") << QStringLiteral("#fff") << QRgb(0x00ffffff);
    QTest::newRow("upper case") << QStringLiteral("#C8501E") << QRgb(0x00c8501e);
    QTest::newRow("grey") << QStringLiteral("#777") << QRgb(0x00777777);
}

void tst_ColorShower::htmlTakesThreeOrSixDigits()
{
    QFETCH(QString, typed);
    QFETCH(QRgb, rgb);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    fixture.html->clear();
    QCOMPARE(edits.count(), 0);
    QTest::keyClicks(fixture.html, typed);
    QCOMPARE(lastRgb(edits), rgb);
    QCOMPARE(fixture.shower.currentColor(), rgb);
    QCOMPARE(fixture.numbers(), numbersOf(QColor(rgb)));
    QCOMPARE(fixture.swatchColor(), QColor(rgb));
    QCOMPARE(fixture.html->text(), typed); // as it was typed
}

void tst_ColorShower::htmlRefusesOtherCharacters()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.html->clear();
    QTest::keyClicks(fixture.html, QStringLiteral("red#ffg"));
    QCOMPARE(fixture.html->text(), QStringLiteral("#ff"));
    fixture.html->clear();
    QTest::keyClicks(fixture.html, QStringLiteral("#1234567"));
    QCOMPARE(fixture.html->text(), QStringLiteral("#123456"));
}

void tst_ColorShower::unfinishedHtmlDoesNothing()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    fixture.html->selectAll();
    QTest::keyClick(fixture.html, Qt::Key_Delete);
    QTest::keyClicks(fixture.html, QStringLiteral("#12"));
    QCOMPARE(edits.count(), 0);
    QCOMPARE(fixture.numbers(), Numbers({17, 217, 200, 200, 80, 30}));
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xffc8501e));
}

void tst_ColorShower::everyValidStateOfTheHtmlFieldIsTold()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    fixture.html->clear();
    const QString typed = QStringLiteral("#123456");
    const int expected[] = {0, 0, 0, 1, 1, 1, 2}; // after three digits and after six
    for (int i = 0; i < typed.size(); ++i) {
        QTest::keyClicks(fixture.html, typed.mid(i, 1));
        QCOMPARE(edits.count(), expected[i]);
    }
    QCOMPARE(qvariant_cast<QRgb>(edits.first().constFirst()), QRgb(0x00112233));
    QCOMPARE(lastRgb(edits), QRgb(0x00123456));
}

void tst_ColorShower::swatchIsFilledInsideItsFrame()
{
    ColorShowLabel swatch;
    swatch.resize(60, 40);
    swatch.setColor(QColor(200, 80, 30));
    QCOMPARE(rendered(&swatch), filled(swatch.size(), QColor(200, 80, 30)));

    swatch.setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch.setLineWidth(4);
    QPalette palette = swatch.palette();
    palette.setColor(QPalette::WindowText, Qt::magenta);
    swatch.setPalette(palette);
    QImage expected = filled(swatch.size(), Qt::magenta);
    QPainter(&expected).fillRect(QRect(4, 4, 52, 32), QColor(200, 80, 30));
    QCOMPARE(rendered(&swatch), expected);
}

void tst_ColorShower::swatchIsPaintedAtOnce()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    PaintWatch watch(fixture.swatch);
    QVERIFY(watch.begin());
    fixture.shower.setRgb(0xffc8501e);
    QCOMPARE(watch.times, 1);
    QCOMPARE(watch.painted, QRegion(fixture.swatch->rect()));
}

void tst_ColorShower::swatchIsDraggedAwayAfterTheStartDistance_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("isFarEnough");
    const int distance = QApplication::startDragDistance();
    QTest::newRow("nowhere") << QPoint(0, 0) << false;
    QTest::newRow("just the distance") << QPoint(distance, 0) << false;
    QTest::newRow("just the distance, both ways") << QPoint(3, -(distance - 3)) << false;
    QTest::newRow("a pixel more") << QPoint(distance + 1, 0) << true;
    QTest::newRow("a pixel more, both ways") << QPoint(-4, distance - 3) << true;
}

namespace {

/* What the drags offer that a swatch has begun. The offscreen platform ends a drag at once and leaves the
 * object. */
struct SeenDrag
{
    int count = 0;
    QColor color;
    QStringList formats;
    QImage picture;
    Qt::DropActions actions;
    QObject *source = nullptr;
};

SeenDrag takeDrags(QWidget *swatch)
{
    SeenDrag seen;
    const auto drags = swatch->findChildren<QDrag *>();
    for (QDrag *drag : drags) {
        ++seen.count;
        seen.color = qvariant_cast<QColor>(drag->mimeData()->colorData());
        seen.formats = drag->mimeData()->formats();
        seen.picture = drag->pixmap().toImage();
        seen.actions = drag->supportedActions();
        seen.source = drag->source();
    }
    qDeleteAll(drags);
    return seen;
}

} // namespace

void tst_ColorShower::swatchIsDraggedAwayAfterTheStartDistance()
{
    QFETCH(QPoint, way);
    QFETCH(bool, isFarEnough);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.show();
    const QPointF start = toGlobal(fixture.swatch, QPointF(30.4, 29.6));
    mousePress(fixture.swatch, start);
    mouseMove(fixture.swatch, start + way);
    QCOMPARE(takeDrags(fixture.swatch).count, isFarEnough ? 1 : 0);
}

void tst_ColorShower::dragOfTheSwatchCarriesItsColor()
{
    // GIVEN a swatch on the screen
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    fixture.shower.show();
    const QPointF start = toGlobal(fixture.swatch, QPointF(30, 30));

    // WHEN it is dragged
    mousePress(fixture.swatch, start);
    mouseMove(fixture.swatch, start + QPointF(40, 0));
    const SeenDrag seen = takeDrags(fixture.swatch);

    // THEN the drag has its colour, to be copied, and a picture of it
    QCOMPARE(seen.count, 1);
    QCOMPARE(seen.color, QColor(0xc8, 0x50, 0x1e));
    QCOMPARE(seen.formats, QStringList(QStringLiteral("application/x-color")));
    QCOMPARE(seen.actions, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(seen.source, fixture.swatch);
    QImage expected = filled(QSize(30, 20), QColor(0xc8, 0x50, 0x1e));
    QPainter painter(&expected);
    painter.fillRect(0, 0, 29, 1, Qt::black);
    painter.fillRect(0, 18, 29, 1, Qt::black);
    painter.fillRect(0, 0, 1, 19, Qt::black);
    painter.fillRect(28, 0, 1, 19, Qt::black);
    painter.end();
    QCOMPARE(seen.picture.convertToFormat(expected.format()), expected);
}

void tst_ColorShower::dragNeedsAPressBeforeIt()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.show();
    const QPointF start = toGlobal(fixture.swatch, QPointF(30, 30));
    const QPointF farOff = start + QPointF(60, 0);

    // Without a press, or with one that has ended, there is no drag,
    mouseMove(fixture.swatch, farOff);
    mousePress(fixture.swatch, start);
    mouseRelease(fixture.swatch, start);
    mouseMove(fixture.swatch, farOff);
    QCOMPARE(takeDrags(fixture.swatch).count, 0);

    // and after one drag only the next press begins another.
    mousePress(fixture.swatch, start);
    mouseMove(fixture.swatch, farOff);
    QCOMPARE(takeDrags(fixture.swatch).count, 1);
    mouseMove(fixture.swatch, start);
    mouseMove(fixture.swatch, farOff);
    QCOMPARE(takeDrags(fixture.swatch).count, 0);
}

void tst_ColorShower::anyButtonDragsTheSwatch()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Fixture fixture;
        QVERIFY(fixture.isComplete());
        fixture.shower.show();
        const QPointF start = toGlobal(fixture.swatch, QPointF(30, 30));
        mousePress(fixture.swatch, start, button);
        mouseMove(fixture.swatch, start + QPointF(40, 0), button);
        QCOMPARE(takeDrags(fixture.swatch).count, 1);
    }
}

void tst_ColorShower::startDistanceIsTheApplications()
{
    // GIVEN an application with a start distance of its own
    const int usual = QApplication::startDragDistance();
    const auto restore = qScopeGuard([usual] { QApplication::setStartDragDistance(usual); });
    QApplication::setStartDragDistance(usual + 15);
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.show();
    const QPointF start = toGlobal(fixture.swatch, QPointF(30, 30));
    mousePress(fixture.swatch, start);

    // WHEN the mouse has gone so far, there is no drag, and THEN there is one
    mouseMove(fixture.swatch, start + QPointF(usual + 15, 0));
    QCOMPARE(takeDrags(fixture.swatch).count, 0);
    mouseMove(fixture.swatch, start + QPointF(usual + 16, 0));
    QCOMPARE(takeDrags(fixture.swatch).count, 1);
}

void tst_ColorShower::swatchTakesColorsOnly_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("colour") << QStringLiteral("color") << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("text that names a colour") << QStringLiteral("text") << false;
    QTest::newRow("invalid colour") << QStringLiteral("invalid") << false;
    QTest::newRow("file") << QStringLiteral("url") << false;
}

void tst_ColorShower::swatchTakesColorsOnly()
{
    QFETCH(QString, kind);
    QFETCH(bool, isTaken);

    // GIVEN a shower with a colour, and data
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    QSignalSpy drops(fixture.swatch, &ColorShowLabel::colorDropped);
    QMimeData data;
    if (kind == QLatin1String("color"))
        data.setColorData(QColor(1, 2, 3));
    else if (kind == QLatin1String("text"))
        data.setText(QStringLiteral("#010203"));
    else if (kind == QLatin1String("invalid"))
        data.setColorData(QColor());
    else if (kind == QLatin1String("url"))
        data.setUrls({QUrl(QStringLiteral("file:///tmp/x"))});

    // WHEN they are dragged in and dropped, THEN colours are taken and nothing else is
    QCOMPARE(dragEnter(fixture.swatch, data), isTaken);
    QCOMPARE(drop(fixture.swatch, data), isTaken);
    QCOMPARE(drops.count(), isTaken ? 1 : 0);
    QCOMPARE(edits.count(), isTaken ? 1 : 0);
    QCOMPARE(fixture.shower.currentColor(), isTaken ? QRgb(0xff010203) : QRgb(0xffc8501e));
}

// Another program may have it no longer, once the drop asks for it.
void tst_ColorShower::dropWhoseColorIsGoneChangesNothing()
{
    // GIVEN a shower with a colour, and another that is dragged over it
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xffc8501e);
    QSignalSpy drops(fixture.swatch, &ColorShowLabel::colorDropped);
    QMimeData color;
    color.setColorData(QColor(1, 2, 3));
    QVERIFY(dragEnter(fixture.swatch, color));

    // WHEN the drop comes without it
    const QMimeData nothing;
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &nothing, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(fixture.swatch, &event);

    // THEN it is refused, and the colour is the one of before
    QVERIFY(!event.isAccepted());
    QCOMPARE(drops.count(), 0);
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xffc8501e));
}

void tst_ColorShower::droppedColorIsToldAndShown()
{
    // GIVEN a shower whose receiver looks at it
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    fixture.shower.setRgb(0xff010203);
    QVector<QRgb> colorsAtEdit;
    connect(&fixture.shower, &ColorShower::newCol, this,
            [&] { colorsAtEdit.append(fixture.shower.currentColor()); });
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);

    // WHEN a colour is dropped on the swatch
    QVERIFY(drop(fixture.swatch, *colorData(QColor(200, 80, 30))));

    // THEN it is told first and then taken as by setRgb()
    QCOMPARE(edits.count(), 1);
    QCOMPARE(lastRgb(edits), QRgb(0xffc8501e));
    QCOMPARE(colorsAtEdit, QVector<QRgb>({0xff010203}));
    QCOMPARE(fixture.shower.currentColor(), QRgb(0xffc8501e));
    QCOMPARE(fixture.numbers(), Numbers({17, 217, 200, 200, 80, 30}));
    QCOMPARE(fixture.html->text(), QStringLiteral("#c8501e"));
    QCOMPARE(fixture.swatchColor(), QColor(200, 80, 30));
}

void tst_ColorShower::droppedColorIsPaintedBeforeItIsTold()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    PaintWatch watch(fixture.swatch);
    QVERIFY(watch.begin());
    int paintedBefore = -1;
    connect(fixture.swatch, &ColorShowLabel::colorDropped, this, [&] { paintedBefore = watch.times; });
    // The shower's own slots would paint it, too.
    disconnect(fixture.swatch, nullptr, &fixture.shower, nullptr);
    QVERIFY(drop(fixture.swatch, *colorData(QColor(200, 80, 30))));
    QCOMPARE(paintedBefore, 1);
    QCOMPARE(fixture.swatchColor(), QColor(200, 80, 30));
}

void tst_ColorShower::droppedColorBecomesOpaque()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    QSignalSpy edits(&fixture.shower, &ColorShower::newCol);
    QVERIFY(drop(fixture.swatch, *colorData(QColor(200, 80, 30, 40))));
    QCOMPARE(lastRgb(edits), QRgb(0xffc8501e));
    QCOMPARE(fixture.swatchColor(), QColor(200, 80, 30));
}

void tst_ColorShower::leavingDragChangesNothing()
{
    Fixture fixture;
    QVERIFY(fixture.isComplete());
    const QRgb before = fixture.shower.currentColor();
    dragEnter(fixture.swatch, *colorData(QColor(200, 80, 30)));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(fixture.swatch, &leave);
    QCOMPARE(fixture.shower.currentColor(), before);
    QCOMPARE(fixture.swatchColor(), QColor(before));
}

QTEST_MAIN(tst_ColorShower)

#include "tst_colorshower.moc"
