// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The dialog's pieces and how they work together. Its result and its file are tst_colordialog_use's business.

#include "support/colordialogparts.h"
#include "support/events.h"
#include "support/functionguard.h"
#include "support/paintwatch.h"
#include "support/testdialog.h"

#include <QBoxLayout>
#include <QDir>
#include <QDragEnterEvent>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <optional>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/colorpicker.h>
#include <tarnwidgets/colorshower.h>
#include <tarnwidgets/colorwallarray.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::ColorDialog;
using Tarn::Widgets::ColorLuminancePicker;
using Tarn::Widgets::ColorPicker;
using Tarn::Widgets::ColorShower;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::TitleBar;
using Tarn::Widgets::WellArray;

namespace {

constexpr int StandardRows = 6;
constexpr int CustomRows = 2;
constexpr int Columns = 8;
const QColor Initial(200, 80, 30); // hue 17, saturation 217, value 200

using Numbers = QVector<int>;
using Cell = QPair<int, int>; // row, column
constexpr Cell None(-1, -1);
constexpr Cell Yellow(3, 7); // of the standard colours

/* A dialog with its protected members, and its hidden pieces by their classes. */
class Dialog : public ColorDialog
{
public:
    explicit Dialog(const QColor &initial = Initial, QWidget *parent = nullptr)
        : ColorDialog(initial, parent)
        , parts(this)
        , standardGrid(qobject_cast<WellArray *>(parts.standardGrid))
        , customGrid(qobject_cast<WellArray *>(parts.customGrid))
        , field(qobject_cast<ColorPicker *>(parts.field))
        , strip(qobject_cast<ColorLuminancePicker *>(parts.strip))
        , shower(qobject_cast<ColorShower *>(parts.shower))
    {
    }

    bool isComplete() const
    {
        return parts.isComplete() && standardGrid && customGrid && field && strip && shower;
    }

    /* Whether every editor shows the colour that goes with these numbers. */
    bool shows(const QColor &color)
    {
        int hue = 0;
        int sat = 0;
        int val = 0;
        color.getHsv(&hue, &sat, &val);
        const Numbers numbers = {qMax(0, hue), sat, val, color.red(), color.green(), color.blue()};
        return parts.numbers() == numbers && parts.color() == QColor(color.rgb()) && marks(hue, sat, val);
    }

    /* Whether the field and the strip do. */
    bool marks(int hue, int sat, int val)
    {
        ColorPicker sampleField;
        sampleField.setCol(hue, sat);
        ColorLuminancePicker sampleStrip;
        sampleStrip.resize(strip->size());
        sampleStrip.setCol(hue, sat, val);
        return field->colPt() == sampleField.colPt()
            && strip->grab().toImage() == sampleStrip.grab().toImage();
    }

    Cell selectedCell() const
    {
        return Cell(customGrid->selectedRow(), customGrid->selectedColumn());
    }

    QColor seenCell(WellArray *grid, const Cell &cell) const
    {
        return grid->grab().toImage().pixelColor(cellCenter(cell.first, cell.second));
    }

    using ColorDialog::m_pBottomLayout;
    using ColorDialog::m_pBottomWidget;
    using ColorDialog::m_pTitleBar;

    const ColorDialogParts parts;
    WellArray *const standardGrid;
    WellArray *const customGrid;
    ColorPicker *const field;
    ColorLuminancePicker *const strip;
    ColorShower *const shower;
};

QString settingsPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/customSettingCfg.info");
}

/* The rule for the standard colours: green outermost, then red, then blue. */
QRgb standardColor(int entry)
{
    const int blues[] = {0x00, 0x7f, 0xff};
    return qRgb(entry / 3 % 4 * 0x55, entry / 12 * 0x55, blues[entry % 3]);
}

void drag(QWidget *widget, const QPointF &pos)
{
    mouseMove(widget, toGlobal(widget, pos));
}

void pressKey(QWidget *widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/* As the user edits it. */
void edit(QSpinBox *box, int value)
{
    box->QSpinBox::setValue(value);
}

void dropColor(QWidget *widget, const QColor &color)
{
    QMimeData data;
    data.setColorData(color);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
}

QLabel *labelWithText(const QWidget &parent, const QString &text)
{
    const auto labels = parent.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QRect placeIn(const QWidget &window, const QWidget *widget)
{
    return QRect(widget->mapTo(&window, QPoint()), widget->size());
}

/* What the editors and the shower tell while they are counted. */
struct Spies
{
    explicit Spies(const Dialog &dialog)
        : field(dialog.field, &ColorPicker::newCol)
        , strip(dialog.strip, &ColorLuminancePicker::newHsv)
        , shower(dialog.shower, &ColorShower::newCol)
        , color(dialog.shower, &ColorShower::currentColorChanged)
        , standardGrid(dialog.standardGrid, &WellArray::currentChanged)
        , customGrid(dialog.customGrid, &WellArray::currentChanged)
    {
    }

    /* In that order. */
    Numbers counts() const
    {
        return {field.count(), strip.count(),        shower.count(),
                color.count(), standardGrid.count(), customGrid.count()};
    }

    QSignalSpy field;
    QSignalSpy strip;
    QSignalSpy shower;
    QSignalSpy color;
    QSignalSpy standardGrid;
    QSignalSpy customGrid;
};

} // namespace

class tst_ColorDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void dialogIsAFramelessDialog();
    void titleBarHasATitleAndACloseButton();
    void dialogIsMovedButNotResized();
    void dialogIsOfOneSize();
    void contentHasItsSpaces();
    void piecesHaveTheirSizes();
    void piecesHaveTheirPlaces();
    void bottomBarHasItsButtonsAtTheRight();
    void buttonsHaveStyleClasses();
    void textsAreChineseAndFollowTheLanguage();

    void standardColorsFollowTheirRule();
    void customColorsBeginWhite();
    void nothingIsMarkedAtTheStart();

    void initialColorIsShownEverywhere_data();
    void initialColorIsShownEverywhere();
    void anotherInitialColorIsShown();
    void dragOverTheFieldMovesTheStripAndTheNumbers();
    void dragOverTheStripMovesTheNumbers();
    void editedNumberMovesTheFieldAndTheStrip_data();
    void editedNumberMovesTheFieldAndTheStrip();
    void typedHtmlMovesTheFieldAndTheStrip();
    void droppedColorMovesTheFieldAndTheStrip();
    void pressedStandardColorIsShown();
    void pressedCustomColorIsShown();
    void sameCellPressedAgainShowsNothing();
    void arrowKeysShowTheColorsTheyReach();
    void keyWithoutACurrentCustomColorShowsTheYellowOne_data();
    void keyWithoutACurrentCustomColorShowsTheYellowOne();
    void keyWithoutACurrentStandardColorShowsNothing_data();
    void keyWithoutACurrentStandardColorShowsNothing();
    void cellThatDoesNotExistShowsNothing();

    void addedColorGoesIntoTheSelectedCell();
    void pressWithoutClickAddsNothing();
    void additionsGoThroughTheGridAndBeginAgain();
    void addedColorKeepsItsAlpha();
    void additionRepaintsItsCellAtOnce();
    void additionWithoutASelectionReplacesTheYellowStandardColor();
    void additionToACellThatDoesNotExistIsIgnored();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_ColorDialog::initTestCase()
{
    qRegisterMetaType<QRgb>("QRgb");
}

void tst_ColorDialog::init()
{
    QFile::remove(settingsPath());
    m_guard.emplace();
}

void tst_ColorDialog::cleanup()
{
    m_guard.reset();
    QFile::remove(settingsPath());
}

void tst_ColorDialog::dialogIsAFramelessDialog()
{
    QWidget parent;
    const Dialog dialog(Initial, &parent);
    const FramelessDialog plain(&parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowFlags(), plain.windowFlags());
    QCOMPARE(dialog.property("isColorEditDialog"), QVariant(true));
    QCOMPARE(dialog.property("isFramelessDialog"), QVariant(true));

    const QMetaObject &meta = ColorDialog::staticMetaObject;
    QCOMPARE(meta.className(), "Tarn::Widgets::ColorDialog");
    QCOMPARE(meta.superClass(), &FramelessDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), FramelessDialog::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), FramelessDialog::staticMetaObject.propertyCount());
}

void tst_ColorDialog::titleBarHasATitleAndACloseButton()
{
    Dialog dialog;
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("颜色编辑器"));
    QCOMPARE(dialog.m_pTitleBar->titleLabel()->alignment(), Qt::AlignCenter);
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Close}));
    QCOMPARE(dialog.m_pTitleBar->minimumHeight(), 32);
    QCOMPARE(dialog.m_pTitleBar->maximumHeight(), 32);
    QCOMPARE(dialog.m_pTitleBar->titleLabel()->minimumHeight(), 20);
    QCOMPARE(dialog.m_pTitleBar->titleLabel()->maximumHeight(), 20);
}

void tst_ColorDialog::dialogIsMovedButNotResized()
{
    const Dialog dialog;
    const auto *helper = dialog.findChild<FramelessHelper *>();
    QVERIFY(helper);
    QVERIFY(helper->widgetMovable());
    QVERIFY(!helper->widgetResizable());
    QCOMPARE(helper->titleHeight(), 24U); // the zone to drag by, not the bar
}

void tst_ColorDialog::dialogIsOfOneSize()
{
    Dialog dialog;
    QCOMPARE(dialog.minimumSize(), QSize(630, 525));
    QCOMPARE(dialog.maximumSize(), QSize(630, 525));
    dialog.show();
    QCOMPARE(dialog.size(), QSize(630, 525));
}

void tst_ColorDialog::contentHasItsSpaces()
{
    const Dialog dialog;
    QVERIFY(dialog.isComplete());
    const auto *content = qobject_cast<QHBoxLayout *>(dialog.layout());
    QVERIFY(content);
    QCOMPARE(content->spacing(), 16);
    QCOMPARE(content->contentsMargins(), QMargins(14 + 1, 25, 14 + 1, 25)); // widened by the dialog
    QCOMPARE(content->count(), 2);

    for (const int side : {0, 1}) {
        const auto *column = qobject_cast<QVBoxLayout *>(content->itemAt(side)->layout());
        QVERIFY(column);
        QCOMPARE(column->spacing(), 0);
        QCOMPARE(column->contentsMargins(), QMargins());
        QCOMPARE(column->count(), 3);
        QVERIFY(column->itemAt(1)->spacerItem());
    }
    for (const int row : {0, 2}) {
        const auto *column = qobject_cast<QVBoxLayout *>(content->itemAt(0)->layout()->itemAt(row)->layout());
        QVERIFY(column);
        QCOMPARE(column->spacing(), 16);
        QCOMPARE(column->contentsMargins(), QMargins());
        QVERIFY(qobject_cast<QLabel *>(column->itemAt(0)->widget()));
        QCOMPARE(column->itemAt(1)->widget(), row == 0 ? dialog.standardGrid : dialog.customGrid);
    }
    const auto *pickers = qobject_cast<QHBoxLayout *>(content->itemAt(1)->layout()->itemAt(0)->layout());
    QVERIFY(pickers);
    QCOMPARE(pickers->spacing(), 11);
    QCOMPARE(pickers->contentsMargins(), QMargins());
    QCOMPARE(pickers->itemAt(0)->widget(), dialog.field);
    QCOMPARE(pickers->itemAt(1)->widget(), dialog.strip);
    QCOMPARE(content->itemAt(1)->layout()->itemAt(2)->widget(), dialog.shower);
}

void tst_ColorDialog::piecesHaveTheirSizes()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    for (const WellArray *grid : {dialog.standardGrid, dialog.customGrid}) {
        const QSize size(280, grid == dialog.standardGrid ? 185 : 60);
        QCOMPARE(grid->minimumSize(), size);
        QCOMPARE(grid->maximumSize(), size);
        QCOMPARE(grid->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    }
    QCOMPARE(dialog.shower->minimumHeight(), 122);
    QCOMPARE(dialog.shower->maximumHeight(), 122);
    const auto lines = dialog.findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
    int count = 0;
    for (const QFrame *line : lines) {
        if (!line->property("isBackgroundSeparator").toBool())
            continue;
        ++count;
        QCOMPARE(line->minimumHeight(), 1);
        QCOMPARE(line->maximumHeight(), 1);
    }
    QCOMPARE(count, 2);
}

void tst_ColorDialog::piecesHaveTheirPlaces()
{
    // GIVEN a dialog on the screen: border 1, title 32, line 1, content, line 1, bottom 50, border 1
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const int contentTop = 1 + 32 + 1;
    const int contentBottom = 525 - 1 - 50 - 1;
    const int left = 1 + 15;
    const int right = 630 - 1 - 15;
    const int top = contentTop + 25;
    const int bottom = contentBottom - 25;

    // THEN the pieces stand at the sides of the content, with what is left over between them
    const QRect caption = placeIn(dialog, labelWithText(dialog, QStringLiteral("基本颜色")));
    const QRect standard = placeIn(dialog, dialog.standardGrid);
    QCOMPARE(caption.topLeft(), QPoint(left, top));
    QCOMPARE(standard.left(), left);
    QCOMPARE(standard.top() - caption.bottom() - 1, 16);
    const QRect customCaption = placeIn(dialog, labelWithText(dialog, QStringLiteral("自定义颜色")));
    const QRect custom = placeIn(dialog, dialog.customGrid);
    QCOMPARE(custom.topLeft(), QPoint(left, bottom - 60));
    QCOMPARE(custom.top() - customCaption.bottom() - 1, 16);

    const QRect shower = placeIn(dialog, dialog.shower);
    QCOMPARE(shower.bottom() + 1, bottom);
    QCOMPARE(shower.right() + 1, right);
    const int columnLeft = left + 280 + 16;
    QCOMPARE(shower.left(), columnLeft);
    const QRect field = placeIn(dialog, dialog.field);
    const QRect strip = placeIn(dialog, dialog.strip);
    QCOMPARE(field.top(), top);
    QCOMPARE(strip.top(), top);
    QCOMPARE(strip.size(), QSize(40, 233));
    QVERIFY(field.left() >= columnLeft && field.right() + 11 < strip.left() && strip.right() < right);
}

void tst_ColorDialog::bottomBarHasItsButtonsAtTheRight()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    QCOMPARE(dialog.m_pBottomWidget->minimumHeight(), 50);
    QCOMPARE(dialog.m_pBottomWidget->maximumHeight(), 50);
    QCOMPARE(dialog.m_pBottomLayout->spacing(), 24);
    QCOMPARE(dialog.m_pBottomLayout->contentsMargins(), QMargins(0, 0, 20, 0));

    const QRect apply = placeIn(*dialog.m_pBottomWidget, dialog.parts.apply);
    const QRect ok = placeIn(*dialog.m_pBottomWidget, dialog.parts.ok);
    const QRect cancel = placeIn(*dialog.m_pBottomWidget, dialog.parts.cancel);
    QCOMPARE(apply.size(), QSize(148, 30));
    QCOMPARE(ok.size(), QSize(70, 30));
    QCOMPARE(cancel.size(), QSize(70, 30));
    QCOMPARE(cancel.right() + 1, dialog.m_pBottomWidget->width() - 20);
    QCOMPARE(cancel.left() - ok.right() - 1, 24 + 2); // Qt gives no spacing of its own to an added one
    QCOMPARE(ok.left() - apply.right() - 1, 24);
    QVERIFY(dialog.parts.apply->isVisible());
    QVERIFY(dialog.parts.ok->isDefault());
}

void tst_ColorDialog::buttonsHaveStyleClasses()
{
    const Dialog dialog;
    QVERIFY(dialog.isComplete());
    QCOMPARE(dialog.parts.apply->property("class"), QVariant(QStringLiteral("Active")));
    QCOMPARE(dialog.parts.ok->property("class"), QVariant(QStringLiteral("Active")));
    QCOMPARE(dialog.parts.cancel->property("class"), QVariant(QStringLiteral("NoActive")));
}

void tst_ColorDialog::textsAreChineseAndFollowTheLanguage()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    const QStringList texts = {
        QStringLiteral("颜色编辑器"), QStringLiteral("基本颜色"),         QStringLiteral("自定义颜色"),
        QStringLiteral("色调:"),      QStringLiteral("添加到自定义颜色"), QStringLiteral("确定"),
        QStringLiteral("取消")};
    const auto seen = [&] {
        const auto labels =
            dialog.layout()->parentWidget()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
        QStringList captions;
        for (const QLabel *label : labels)
            captions.append(label->text());
        return QStringList({dialog.windowTitle(), captions.value(0), captions.value(1),
                            dialog.shower->findChild<QLabel *>()->text(), dialog.parts.apply->text(),
                            dialog.parts.ok->text(), dialog.parts.cancel->text()});
    };
    QCOMPARE(seen(), texts);

    // WHEN the language changes, and changes back
    std::optional<Brackets> language("Tarn::Widgets::ColorDialog");
    QStringList translated;
    for (const QString &text : texts)
        translated.append(QStringLiteral("<%1>").arg(text));
    QTRY_COMPARE(seen(), translated);
    language.reset();
    QTRY_COMPARE(seen(), texts);
}

void tst_ColorDialog::standardColorsFollowTheirRule()
{
    // GIVEN the rule, in which some entries are known
    QCOMPARE(standardColor(0), QRgb(0xff000000));
    QCOMPARE(standardColor(2), QRgb(0xff0000ff));
    QCOMPARE(standardColor(45), QRgb(0xffffff00));
    QCOMPARE(standardColor(47), QRgb(0xffffffff));

    // THEN each cell, by columns, has its colour, seen and pressed
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    const QImage image = dialog.standardGrid->grab().toImage();
    for (int entry = 0; entry < StandardRows * Columns; ++entry) {
        const int row = entry % StandardRows;
        const int column = entry / StandardRows;
        QCOMPARE(image.pixel(cellCenter(row, column)), standardColor(entry));
        clickCell(dialog.standardGrid, row, column);
        QCOMPARE(dialog.shower->currentColor(), standardColor(entry));
    }
}

void tst_ColorDialog::customColorsBeginWhite()
{
    const Dialog dialog;
    QVERIFY(dialog.isComplete());
    const QImage image = dialog.customGrid->grab().toImage();
    for (int row = 0; row < CustomRows; ++row) {
        for (int column = 0; column < Columns; ++column)
            QCOMPARE(image.pixel(cellCenter(row, column)), QRgb(0xffffffff));
    }
}

void tst_ColorDialog::nothingIsMarkedAtTheStart()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    for (WellArray *grid : {dialog.standardGrid, dialog.customGrid}) {
        QCOMPARE(Cell(grid->selectedRow(), grid->selectedColumn()), None);
        QSignalSpy changes(grid, &WellArray::currentChanged);
        grid->setCurrent(-1, -1);
        QCOMPARE(changes.count(), 0);
    }
}

void tst_ColorDialog::initialColorIsShownEverywhere_data()
{
    QTest::addColumn<QColor>("initial");
    QTest::newRow("chromatic") << Initial;
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("grey, without a hue") << QColor(99, 99, 99);
    QTest::newRow("named") << QColor(QStringLiteral("steelblue"));
    QTest::newRow("translucent") << QColor(10, 20, 30, 40);
}

void tst_ColorDialog::initialColorIsShownEverywhere()
{
    QFETCH(QColor, initial);
    Dialog dialog(initial);
    QVERIFY(dialog.isComplete());
    dialog.show();
    QVERIFY(dialog.shows(initial));
    QCOMPARE(dialog.shower->currentColor(), initial.rgb());
}

void tst_ColorDialog::anotherInitialColorIsShown()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    QVERIFY(dialog.shows(Initial));
    const Spies spies(dialog);
    dialog.setInitColor(QColor(1, 200, 3));
    QVERIFY(dialog.shows(QColor(1, 200, 3)));
    QCOMPARE(spies.counts(), Numbers({0, 0, 0, 1, 0, 0})); // nobody has edited anything

    // The field and the strip take hue, saturation and value from the colour itself, not from its red, green
    // and blue.
    const QColor dark = QColor::fromHsv(123, 45, 6);
    dialog.setInitColor(dark);
    QVERIFY(dialog.marks(123, 45, 6));
}

void tst_ColorDialog::dragOverTheFieldMovesTheStripAndTheNumbers()
{
    // GIVEN a dialog with a colour of value 200
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const Spies spies(dialog);

    // WHEN the mouse is dragged over the field
    drag(dialog.field, QPointF(116, 58));

    // THEN hue and saturation are those of the place, and the value is the same
    const QColor color = QColor::fromHsv(180, 255 - 58 * 255 / 232, 200);
    QCOMPARE(dialog.shower->currentColor(), color.rgb());
    QCOMPARE(dialog.parts.color(), QColor(color.rgb()));
    QVERIFY(dialog.marks(180, color.saturation(), 200));
    QCOMPARE(spies.counts(), Numbers({1, 1, 0, 1, 0, 0}));

    // and a further move to the same place goes all the way again, though nothing changes
    drag(dialog.field, QPointF(116, 58));
    QCOMPARE(spies.counts(), Numbers({2, 2, 0, 1, 0, 0}));
}

void tst_ColorDialog::dragOverTheStripMovesTheNumbers()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const QPoint ring = dialog.field->colPt();
    const Spies spies(dialog);
    drag(dialog.strip, QPointF(20, 116));
    QCOMPARE(dialog.shower->currentColor(), QColor::fromHsv(17, 217, 128).rgb());
    QVERIFY(dialog.marks(17, 217, 128));
    QCOMPARE(dialog.field->colPt(), ring);
    QCOMPARE(spies.counts(), Numbers({0, 1, 0, 1, 0, 0}));
}

void tst_ColorDialog::editedNumberMovesTheFieldAndTheStrip_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<int>("value");
    QTest::addColumn<QColor>("color");
    QTest::newRow("hue") << 0 << 240 << QColor::fromHsv(240, 217, 200);
    QTest::newRow("saturation") << 1 << 100 << QColor::fromHsv(17, 100, 200);
    QTest::newRow("value") << 2 << 100 << QColor::fromHsv(17, 217, 100);
    QTest::newRow("red") << 3 << 20 << QColor(20, 80, 30);
    QTest::newRow("green") << 4 << 200 << QColor(200, 200, 30);
    QTest::newRow("blue") << 5 << 199 << QColor(200, 80, 199);
    QTest::newRow("alpha") << 6 << 199 << QColor(200, 80, 30);
}

void tst_ColorDialog::editedNumberMovesTheFieldAndTheStrip()
{
    QFETCH(int, editor);
    QFETCH(int, value);
    QFETCH(QColor, color);
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const Spies spies(dialog);
    edit(dialog.parts.boxes.at(editor), value);

    // The field and the strip go by the colour in red, green and blue; neither tells the shower about it.
    const QColor rgb(color.rgb());
    QVERIFY(dialog.marks(rgb.hue(), rgb.saturation(), rgb.value()));
    QCOMPARE(dialog.parts.color(), rgb);
    QCOMPARE(dialog.parts.boxes.at(editor)->value(), value);
    QCOMPARE(spies.counts(), Numbers({0, 0, 1, 1, 0, 0}));
}

void tst_ColorDialog::typedHtmlMovesTheFieldAndTheStrip()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    dialog.parts.html->clear();
    const Spies spies(dialog);
    QTest::keyClicks(dialog.parts.html, QStringLiteral("#0f0"));
    QVERIFY(dialog.marks(120, 255, 255));
    QCOMPARE(spies.counts(), Numbers({0, 0, 1, 1, 0, 0}));
}

void tst_ColorDialog::droppedColorMovesTheFieldAndTheStrip()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const Spies spies(dialog);
    dropColor(dialog.parts.swatch, QColor(0, 0, 255));
    QVERIFY(dialog.shows(QColor(0, 0, 255)));
    QCOMPARE(spies.counts(), Numbers({0, 0, 1, 1, 0, 0}));
}

void tst_ColorDialog::pressedStandardColorIsShown()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const Spies spies(dialog);
    mousePress(dialog.standardGrid, toGlobal(dialog.standardGrid, cellCenter(2, 5)));
    QVERIFY(dialog.shows(QColor(standardColor(2 + 5 * StandardRows))));
    QCOMPARE(spies.counts(), Numbers({0, 0, 0, 1, 1, 0}));
}

void tst_ColorDialog::pressedCustomColorIsShown()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    setCustomColor(&dialog, dialog.parts, 1 + 4 * CustomRows, qRgb(7, 8, 9));
    clickCell(dialog.customGrid, 0, 0);
    QVERIFY(dialog.shows(Qt::white));
    const Spies spies(dialog);
    mousePress(dialog.customGrid, toGlobal(dialog.customGrid, cellCenter(1, 4)));
    QVERIFY(dialog.shows(QColor(7, 8, 9)));
    QCOMPARE(spies.counts(), Numbers({0, 0, 0, 1, 0, 1}));
}

void tst_ColorDialog::sameCellPressedAgainShowsNothing()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    clickCell(dialog.standardGrid, 2, 5);
    dialog.setInitColor(Initial);
    clickCell(dialog.standardGrid, 2, 5);
    QCOMPARE(dialog.parts.color(), Initial);
}

void tst_ColorDialog::arrowKeysShowTheColorsTheyReach()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    clickCell(dialog.standardGrid, 2, 5);
    pressKey(dialog.standardGrid, Qt::Key_Down);
    QCOMPARE(dialog.shower->currentColor(), standardColor(3 + 5 * StandardRows));
    pressKey(dialog.standardGrid, Qt::Key_Left);
    QCOMPARE(dialog.shower->currentColor(), standardColor(3 + 4 * StandardRows));
}

void tst_ColorDialog::keyWithoutACurrentCustomColorShowsTheYellowOne_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("right") << Qt::Key_Right;
    QTest::newRow("down") << Qt::Key_Down;
}

void tst_ColorDialog::keyWithoutACurrentCustomColorShowsTheYellowOne()
{
    QFETCH(Qt::Key, key);
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    pressKey(dialog.customGrid, key);
    QVERIFY(dialog.shows(QColor(255, 255, 0)));

    // It is the colour of that cell, whatever it has become.
    dialog.setInitColor(QColor(1, 2, 3));
    dialog.parts.apply->click();
    dialog.setInitColor(Initial);
    pressKey(dialog.customGrid, key);
    QVERIFY(dialog.shows(QColor(1, 2, 3)));
}

void tst_ColorDialog::keyWithoutACurrentStandardColorShowsNothing_data()
{
    keyWithoutACurrentCustomColorShowsTheYellowOne_data();
}

void tst_ColorDialog::keyWithoutACurrentStandardColorShowsNothing()
{
    QFETCH(Qt::Key, key);
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    const Spies spies(dialog);
    pressKey(dialog.standardGrid, key);
    QCOMPARE(spies.counts(), Numbers({0, 0, 0, 0, 1, 0})); // told, and of no effect
    QVERIFY(dialog.shows(Initial));
}

void tst_ColorDialog::cellThatDoesNotExistShowsNothing()
{
    // GIVEN a press beside the grids, as no mouse can make it: behind the last of all colours, and before the
    // first
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    const QPointF behind(36 * 7 + 3, 32 * 2 + 3);
    mousePress(dialog.customGrid, toGlobal(dialog.customGrid, behind));
    QCOMPARE(dialog.parts.color(), Initial);
    mousePress(dialog.standardGrid, toGlobal(dialog.standardGrid, QPointF(-40, 3)));
    QCOMPARE(dialog.parts.color(), Initial);

    // One that is behind the standard colours is among the custom ones.
    mousePress(dialog.standardGrid, toGlobal(dialog.standardGrid, QPointF(36 * 7 + 3, 32 * 6 + 3)));
    QCOMPARE(dialog.parts.color(), QColor(Qt::white));
}

void tst_ColorDialog::addedColorGoesIntoTheSelectedCell()
{
    // GIVEN a dialog with a selected custom cell and another colour
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.show();
    clickCell(dialog.customGrid, 0, 7);
    dialog.setInitColor(Initial);
    const Spies spies(dialog);

    // WHEN the colour is added
    dialog.parts.apply->click();

    // THEN it is in that cell, the next one is selected, and the shown colour is the same
    QCOMPARE(dialog.seenCell(dialog.customGrid, Cell(0, 7)), Initial);
    QCOMPARE(dialog.selectedCell(), Cell(1, 7));
    QVERIFY(dialog.shows(Initial));
    QCOMPARE(spies.counts(), Numbers({0, 0, 0, 0, 0, 0}));

    // and the last cell is followed by the first
    dialog.parts.apply->click();
    QCOMPARE(dialog.seenCell(dialog.customGrid, Cell(1, 7)), Initial);
    QCOMPARE(dialog.selectedCell(), Cell(0, 0));
}

void tst_ColorDialog::pressWithoutClickAddsNothing()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    clickCell(dialog.customGrid, 0, 0);
    dialog.setInitColor(Initial);
    QPushButton *apply = dialog.parts.apply;
    mousePress(apply, toGlobal(apply, QPointF(9, 9)));
    QVERIFY(apply->isDown());
    mouseMove(apply, toGlobal(apply, QPointF(-9, -9)));
    QVERIFY(!apply->isDown());
    mouseRelease(apply, toGlobal(apply, QPointF(-9, -9)));
    QCOMPARE(dialog.selectedCell(), Cell(0, 0));
    QCOMPARE(customColors(dialog.parts), QVector<QRgb>(16, 0xffffffff));
}

void tst_ColorDialog::additionsGoThroughTheGridAndBeginAgain()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    clickCell(dialog.customGrid, 0, 0);
    for (int i = 0; i < 18; ++i) {
        QCOMPARE(dialog.selectedCell(), Cell(i % CustomRows, i / CustomRows % Columns));
        dialog.setInitColor(QColor(i, 0, 0));
        dialog.parts.apply->click();
    }
    const QVector<QRgb> colors = customColors(dialog.parts);
    for (int i = 0; i < 16; ++i)
        QCOMPARE(colors.at(i), qRgb(i < 2 ? i + 16 : i, 0, 0));
}

void tst_ColorDialog::addedColorKeepsItsAlpha()
{
    // An edit of red, green or blue gives a colour with the alpha editor's 0, and so it is stored.
    {
        Dialog dialog;
        QVERIFY(dialog.isComplete());
        clickCell(dialog.customGrid, 0, 0);
        edit(dialog.parts.boxes.at(3), 1);
        dialog.parts.apply->click();
        QCOMPARE(dialog.seenCell(dialog.customGrid, Cell(0, 0)), QColor(1, 255, 255));
    }
    QFile file(settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("[General]\ncustomColor=131071, 4294967295, "));
}

void tst_ColorDialog::additionRepaintsItsCellAtOnce()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    clickCell(dialog.customGrid, 1, 2);
    dialog.setInitColor(Initial);
    PaintWatch watch(dialog.customGrid);
    QVERIFY(watch.begin());
    QRegion atOnce;
    connect(dialog.customGrid, &WellArray::selected, this, [&] { atOnce = watch.painted; });
    dialog.parts.apply->click();
    QCOMPARE(atOnce, QRegion(dialog.customGrid->cellRect(1, 2)));
}

void tst_ColorDialog::additionWithoutASelectionReplacesTheYellowStandardColor()
{
    // GIVEN a dialog as it opens, with the yellow cell on the screen
    {
        Dialog dialog;
        QVERIFY(dialog.isComplete());
        PaintWatch custom(dialog.customGrid);
        QVERIFY(custom.begin());
        PaintWatch standard(dialog.standardGrid);
        QCOMPARE(dialog.seenCell(dialog.standardGrid, Yellow), QColor(255, 255, 0));
        standard.reset();
        custom.reset();

        // WHEN colours are added
        for (const QColor &color : {QColor(1, 2, 3), QColor(4, 5, 6)}) {
            dialog.setInitColor(color);
            dialog.parts.apply->click();

            // THEN each replaces that cell's, nothing is selected, and that cell alone is painted again
            QCOMPARE(dialog.selectedCell(), None);
            QTRY_COMPARE(standard.painted,
                         QRegion(dialog.standardGrid->cellRect(Yellow.first, Yellow.second)));
            QCOMPARE(custom.times, 0);
            QCOMPARE(dialog.seenCell(dialog.standardGrid, Yellow), color);
            standard.reset();
        }
        clickCell(dialog.standardGrid, Yellow.first, Yellow.second);
        QCOMPARE(dialog.parts.color(), QColor(4, 5, 6));
        QCOMPARE(customColors(dialog.parts), QVector<QRgb>(16, 0xffffffff));
    }

    // and nothing of it is kept
    Dialog next;
    QCOMPARE(next.seenCell(next.standardGrid, Yellow), QColor(255, 255, 0));
    QCOMPARE(customColors(next.parts), QVector<QRgb>(16, 0xffffffff));
}

void tst_ColorDialog::additionToACellThatDoesNotExistIsIgnored()
{
    Dialog dialog;
    QVERIFY(dialog.isComplete());
    dialog.customGrid->setSelected(2, 7); // behind the last of all colours
    dialog.setInitColor(QColor(1, 2, 3));
    dialog.parts.apply->click();
    QCOMPARE(customColors(dialog.parts), QVector<QRgb>(16, 0xffffffff));
    dialog.customGrid->setSelected(500, 500);
    dialog.parts.apply->click();
    QCOMPARE(customColors(dialog.parts), QVector<QRgb>(16, 0xffffffff));
}

QTEST_MAIN(tst_ColorDialog)

#include "tst_colordialog.moc"
