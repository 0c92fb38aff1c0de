// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/functionguard.h"
#include "support/paintwatch.h"

#include <QImage>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleOption>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/colorwallarray.h>
#include <vector>

using Tarn::Test::mousePress;
using Tarn::Test::mouseRelease;
using Tarn::Test::PaintWatch;
using Tarn::Test::toGlobal;
using Tarn::Widgets::ColorWellArray;
using Tarn::Widgets::WellArray;

namespace {

constexpr int CellWidth = 28;
constexpr int CellHeight = 24;
constexpr int Rows = 6;
constexpr int Columns = 8;
const QSize GridSize(280, 185);

using Cell = QPair<int, int>; // row, column
constexpr Cell None(-1, -1);

// Keeps the cells that were painted and where.
class RecordingWells : public WellArray
{
    Q_OBJECT

public:
    explicit RecordingWells(int rows = Rows, int columns = Columns)
        : WellArray(rows, columns)
    {
    }

    QVector<Cell> cells;
    QVector<QRect> cellRects;
    QVector<QRect> contents;

protected:
    void paintCell(QPainter *painter, int row, int column, const QRect &rect) override
    {
        cells.append(Cell(row, column));
        cellRects.append(rect);
        WellArray::paintCell(painter, row, column, rect);
    }

    void paintCellContents(QPainter *painter, int row, int column, const QRect &rect) override
    {
        contents.append(rect);
        WellArray::paintCellContents(painter, row, column, rect);
    }
};

struct DrawnFrame
{
    QStyle::PrimitiveElement element;
    QRect rect;
    QStyle::State state;
    QPalette palette;
    int lineWidth = 0;
    int midLineWidth = 0;
    const QWidget *widget = nullptr;
};

// Keeps what it is asked to draw, and has frames of three pixels.
class RecordingStyle : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr int FrameWidth = 3;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        if (metric != PM_DefaultFrameWidth)
            return QProxyStyle::pixelMetric(metric, option, widget);
        if (option != nullptr || widget != nullptr)
            return FrameWidth + 1;
        return FrameWidth;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                       const QWidget *widget) const override
    {
        DrawnFrame drawn{element, option->rect, option->state, option->palette, 0, 0, widget};
        if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option)) {
            drawn.lineWidth = frame->lineWidth;
            drawn.midLineWidth = frame->midLineWidth;
        }
        frames.append(drawn);
    }

    QVector<DrawnFrame> ofKind(PrimitiveElement element) const
    {
        QVector<DrawnFrame> found;
        std::copy_if(frames.cbegin(), frames.cend(), std::back_inserter(found),
                     [element](const DrawnFrame &drawn) { return drawn.element == element; });
        return found;
    }

    mutable QVector<DrawnFrame> frames;
};

QImage rendered(QWidget *widget, const QRegion &region = QRegion())
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    widget->render(&painter, QPoint(), region, QWidget::RenderFlags());
    return image;
}

/* The place of a cell, reckoned apart from the widget: a gap of 8 pixels but from right to left. */
QRect place(Qt::LayoutDirection direction, int row, int column, int columns = Columns)
{
    const int x = direction == Qt::LeftToRight ? column * 36 : (columns - column - 1) * 28;
    return QRect(x, row * 32, CellWidth, CellHeight);
}

Cell selectedCell(const WellArray &wells)
{
    return Cell(wells.selectedRow(), wells.selectedColumn());
}

Cell lastCell(const QSignalSpy &spy)
{
    return spy.isEmpty() ? Cell(-9, -9) : Cell(spy.last().at(0).toInt(), spy.last().at(1).toInt());
}

/* What the current cell is, told by where a key press leads. */
bool isCurrent(WellArray *wells, const Cell &cell)
{
    QSignalSpy changes(wells, &WellArray::currentChanged);
    wells->setCurrent(cell.first, cell.second);
    return changes.isEmpty();
}

void press(QWidget *widget, const QPointF &pos)
{
    mousePress(widget, toGlobal(widget, pos));
}

void release(QWidget *widget)
{
    mouseRelease(widget, toGlobal(widget, QPointF(3, 3)));
}

/* Whether the key was taken. */
bool pressKey(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

/* Shown and with the keyboard. */
bool activate(QWidget *widget)
{
    widget->show();
    widget->activateWindow();
    widget->setFocus();
    return QTest::qWaitForWindowActive(widget) && QTest::qWaitFor([widget] { return widget->hasFocus(); });
}

std::vector<QRgb> differentColors(int count)
{
    std::vector<QRgb> colors;
    for (int i = 0; i < count; ++i)
        colors.push_back(qRgb(40 + 4 * i, 250 - 3 * i, i));
    return colors;
}

} // namespace

class tst_ColorWallArray : public QObject
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

    void gridIsAPlainChildThatTakesTheFocus();
    void interfaceIsTwoSignalsAndTwoReadOnlyProperties();
    void firstCellIsCurrentAndNoneSelectedAtTheStart();
    void sizeHintIsOneCellShortAndBounded_data();
    void sizeHintIsOneCellShortAndBounded();
    void sizeHintPolishesTheGrid();
    void cellsHaveTheirPlaces_data();
    void cellsHaveTheirPlaces();
    void cellsThatDoNotExistHaveNoPlace_data();
    void cellsThatDoNotExistHaveNoPlace();

    void currentCellIsToldOnce();
    void everyNegativeCellIsNone_data();
    void everyNegativeCellIsNone();
    void changeToNoneIsToldAgainForOtherArguments();
    void selectingTellsEveryTime();
    void selectingNoneTellsNothing();
    void bothMarksAreIndependent();
    void marksAreThereWhenTheyAreTold();

    void pressMakesTheCellThereCurrent_data();
    void pressMakesTheCellThereCurrent();
    void clickTellsThePressAndTheRelease();
    void clickBesideTheCellsIsToldAsWell();
    void anyButtonClicks();
    void colorGridSelectsOnlyAfterAPress();
    void colorGridHasNoDragAndDrop();

    void keysMoveTheCurrentCell_data();
    void keysMoveTheCurrentCell();
    void arrowKeysWithoutACurrentCellLeadToNone_data();
    void arrowKeysWithoutACurrentCellLeadToNone();
    void spaceSelectsTheCurrentCell();
    void spaceWithoutACurrentCellTellsNothing();
    void modifiersDoNotMatterToTheKeys();
    void otherKeysArePassedOn_data();
    void otherKeysArePassedOn();

    void changesRepaintTheOldAndTheNewCellOnly_data();
    void changesRepaintTheOldAndTheNewCellOnly();
    void onlyCellsOfTheExposedAreaArePainted_data();
    void onlyCellsOfTheExposedAreaArePainted();
    void cellsThatDoNotExistAreNotPainted_data();
    void cellsThatDoNotExistAreNotPainted();
    void cellIsASunkenFrameAroundItsContents();
    void focusRectangleIsOnTheCurrentCellWhileTheGridHasTheKeyboard();
    void contentsAreOnTopOfTheFocusRectangle();
    void plainCellIsACrossedOutWhite();
    void colorCellsAreFilledByColumnsAndOpaque_data();
    void colorCellsAreFilledByColumnsAndOpaque();
    void changedColorShowsAfterAnUpdate();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_ColorWallArray::gridIsAPlainChildThatTakesTheFocus()
{
    QWidget parent;
    const QRgb colors[] = {1, 2};
    const auto *wells = new WellArray(2, 1, &parent);
    const auto *colorWells = new ColorWellArray(&parent, 2, 1, colors);
    for (const WellArray *grid : {wells, static_cast<const WellArray *>(colorWells)}) {
        QCOMPARE(grid->parentWidget(), &parent);
        QCOMPARE(grid->windowFlags(), QWidget(&parent).windowFlags());
        QCOMPARE(grid->focusPolicy(), Qt::StrongFocus);
    }
}

void tst_ColorWallArray::interfaceIsTwoSignalsAndTwoReadOnlyProperties()
{
    const QMetaObject &meta = WellArray::staticMetaObject;
    QCOMPARE(meta.className(), "Tarn::Widgets::WellArray");
    QVERIFY(meta.indexOfSignal("selected(int,int)") >= 0);
    QVERIFY(meta.indexOfSignal("currentChanged(int,int)") >= 0);
    QCOMPARE(meta.methodCount() - QWidget::staticMetaObject.methodCount(), 2);
    QCOMPARE(meta.propertyCount() - QWidget::staticMetaObject.propertyCount(), 2);
    for (const char *name : {"selectedRow", "selectedColumn"}) {
        const QMetaProperty property = meta.property(meta.indexOfProperty(name));
        QCOMPARE(property.userType(), int(QMetaType::Int));
        QVERIFY(!property.isWritable());
    }
    QCOMPARE(ColorWellArray::staticMetaObject.superClass(), &meta);
    QCOMPARE(ColorWellArray::staticMetaObject.methodCount(), meta.methodCount());
}

void tst_ColorWallArray::firstCellIsCurrentAndNoneSelectedAtTheStart()
{
    WellArray wells(Rows, Columns);
    QCOMPARE(selectedCell(wells), None);
    QCOMPARE(wells.property("selectedRow").toInt(), -1);
    QCOMPARE(wells.property("selectedColumn").toInt(), -1);
    QVERIFY(isCurrent(&wells, Cell(0, 0)));
    QVERIFY(!isCurrent(&wells, Cell(0, 1)));
}

void tst_ColorWallArray::sizeHintIsOneCellShortAndBounded_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QSize>("hint");
    QTest::newRow("standard colours") << 6 << 8 << QSize(7 * 36, 5 * 32);
    QTest::newRow("custom colours") << 2 << 8 << QSize(7 * 36, 32);
    QTest::newRow("one cell") << 1 << 1 << QSize(0, 0);
    QTest::newRow("largest within the bounds") << 16 << 18 << QSize(17 * 36, 480);
    QTest::newRow("wider than 640") << 16 << 19 << QSize(640, 480);
    QTest::newRow("higher than 480") << 17 << 2 << QSize(36, 480);
}

void tst_ColorWallArray::sizeHintIsOneCellShortAndBounded()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QTEST(WellArray(rows, columns).sizeHint(), "hint");
}

void tst_ColorWallArray::sizeHintPolishesTheGrid()
{
    const WellArray wells(Rows, Columns);
    QVERIFY(!wells.testAttribute(Qt::WA_WState_Polished));
    wells.sizeHint();
    QVERIFY(wells.testAttribute(Qt::WA_WState_Polished));
}

void tst_ColorWallArray::cellsHaveTheirPlaces_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left, with a gap") << Qt::LeftToRight;
    QTest::newRow("from the right, without a gap between columns") << Qt::RightToLeft;
}

void tst_ColorWallArray::cellsHaveTheirPlaces()
{
    QFETCH(Qt::LayoutDirection, direction);
    WellArray wells(Rows, Columns);
    wells.setLayoutDirection(direction);
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column)
            QCOMPARE(wells.cellRect(row, column), place(direction, row, column));
    }
    // Spelt out for two of them.
    const bool fromLeft = direction == Qt::LeftToRight;
    QCOMPARE(wells.cellRect(5, 7), QRect(fromLeft ? 252 : 0, 160, 28, 24));
    QCOMPARE(wells.cellRect(0, 0), QRect(fromLeft ? 0 : 196, 0, 28, 24));
}

void tst_ColorWallArray::cellsThatDoNotExistHaveNoPlace_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("none") << -1 << -1;
    QTest::newRow("row before the first") << -1 << 0;
    QTest::newRow("column before the first") << 0 << -1;
    QTest::newRow("row behind the last") << Rows << 0;
    QTest::newRow("column behind the last") << 0 << Columns;
}

void tst_ColorWallArray::cellsThatDoNotExistHaveNoPlace()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QVERIFY(WellArray(Rows, Columns).cellRect(row, column).isEmpty());
}

void tst_ColorWallArray::currentCellIsToldOnce()
{
    WellArray wells(Rows, Columns);
    QSignalSpy changes(&wells, &WellArray::currentChanged);
    wells.setCurrent(0, 0); // as at the start
    QCOMPARE(changes.count(), 0);
    wells.setCurrent(2, 3);
    wells.setCurrent(2, 3);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(lastCell(changes), Cell(2, 3));
}

void tst_ColorWallArray::everyNegativeCellIsNone_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("both") << -1 << -1;
    QTest::newRow("the row alone") << -1 << 4;
    QTest::newRow("the column alone") << 2 << -1;
    QTest::newRow("far off") << -70 << -2;
}

void tst_ColorWallArray::everyNegativeCellIsNone()
{
    QFETCH(int, row);
    QFETCH(int, column);

    // GIVEN a grid with both marks on a cell
    WellArray wells(Rows, Columns);
    wells.setCurrent(1, 1);
    wells.setSelected(1, 1);
    QSignalSpy changes(&wells, &WellArray::currentChanged);
    QSignalSpy selections(&wells, &WellArray::selected);

    // WHEN they are set to a negative row or column
    wells.setCurrent(row, column);
    wells.setSelected(row, column);

    // THEN there is neither, which is told for the current cell only
    QCOMPARE(lastCell(changes), None);
    QVERIFY(isCurrent(&wells, None));
    QCOMPARE(selectedCell(wells), None);
    QCOMPARE(selections.count(), 0);
}

void tst_ColorWallArray::changeToNoneIsToldAgainForOtherArguments()
{
    // GIVEN a grid without a current cell
    WellArray wells(Rows, Columns);
    wells.setCurrent(-1, -1);
    QSignalSpy changes(&wells, &WellArray::currentChanged);

    // WHEN none is set again, in those words and in others
    wells.setCurrent(-1, -1);
    QCOMPARE(changes.count(), 0);
    wells.setCurrent(-1, 0);
    wells.setCurrent(0, -1);

    // THEN only the others count as a change
    QCOMPARE(changes.count(), 2);
    QCOMPARE(lastCell(changes), None);
}

void tst_ColorWallArray::selectingTellsEveryTime()
{
    WellArray wells(Rows, Columns);
    QSignalSpy selections(&wells, &WellArray::selected);
    wells.setSelected(4, 5);
    wells.setSelected(4, 5);
    QCOMPARE(selections.count(), 2);
    QCOMPARE(lastCell(selections), Cell(4, 5));
    QCOMPARE(selectedCell(wells), Cell(4, 5));
    QCOMPARE(wells.property("selectedRow").toInt(), 4);
    QCOMPARE(wells.property("selectedColumn").toInt(), 5);
}

void tst_ColorWallArray::selectingNoneTellsNothing()
{
    WellArray wells(Rows, Columns);
    QSignalSpy selections(&wells, &WellArray::selected);
    wells.setSelected(-1, -1);
    QCOMPARE(selections.count(), 0);
}

void tst_ColorWallArray::bothMarksAreIndependent()
{
    WellArray wells(Rows, Columns);
    wells.setSelected(4, 5);
    QVERIFY(isCurrent(&wells, Cell(0, 0)));
    wells.setCurrent(2, 2);
    QCOMPARE(selectedCell(wells), Cell(4, 5));
}

void tst_ColorWallArray::marksAreThereWhenTheyAreTold()
{
    // GIVEN a grid whose receivers look at it
    WellArray wells(Rows, Columns);
    Cell selected = None;
    bool wasCurrent = false;
    connect(&wells, &WellArray::selected, this, [&] { selected = selectedCell(wells); });
    connect(&wells, &WellArray::currentChanged, this, [&] {
        wells.disconnect(this); // or it would be told of its own question
        wasCurrent = isCurrent(&wells, Cell(2, 3));
    });

    // WHEN the marks move, THEN they are found where they are told
    wells.setSelected(4, 5);
    QCOMPARE(selected, Cell(4, 5));
    wells.setCurrent(2, 3);
    QVERIFY(wasCurrent);
}

void tst_ColorWallArray::pressMakesTheCellThereCurrent_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<Cell>("cell");
    const auto fromLeft = [](const char *name, const QPointF &pos, const Cell &cell) {
        QTest::newRow(name) << Qt::LeftToRight << pos << cell;
    };
    const auto fromRight = [](const char *name, const QPointF &pos, const Cell &cell) {
        QTest::newRow(name) << Qt::RightToLeft << pos << cell;
    };
    fromLeft("in a cell", QPointF(36 * 3 + 10, 32 * 2 + 10), Cell(2, 3));
    fromLeft("last pixel of a cell", QPointF(36 + 27, 23), Cell(0, 1));
    fromLeft("first pixel of the gap to the right", QPointF(28, 40), Cell(1, 0));
    fromLeft("last pixel of the gap to the right", QPointF(35, 40), Cell(1, 0));
    fromLeft("first pixel of the next column", QPointF(36, 40), Cell(1, 1));
    fromLeft("gap below", QPointF(40, 24), Cell(0, 1));
    fromLeft("last pixel of the gap below", QPointF(40, 31), Cell(0, 1));
    fromLeft("fraction that rounds into the gap", QPointF(35.4, 40), Cell(1, 0));
    fromLeft("fraction that rounds into the next column", QPointF(35.6, 40), Cell(1, 1));
    fromLeft("fraction that rounds into the next row", QPointF(40, 31.5), Cell(1, 1));
    fromLeft("below the last row", QPointF(40, 32 * 6 + 3), Cell(6, 1));
    fromLeft("right of the last column", QPointF(36 * 8 + 3, 40), Cell(1, 8));
    fromLeft("a little above", QPointF(36, -31), Cell(0, 1));
    fromLeft("above", QPointF(36, -32), None);
    fromLeft("left", QPointF(-36, 40), None);
    fromRight("from the right: first column", QPointF(28 * 7, 40), Cell(1, 0));
    fromRight("from the right: last pixel of a cell", QPointF(28 * 7 - 1, 40), Cell(1, 1));
    fromRight("from the right: last column", QPointF(5, 170), Cell(5, 7));
    fromRight("from the right: room beside the columns", QPointF(28 * 8, 40), None);
}

void tst_ColorWallArray::pressMakesTheCellThereCurrent()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPointF, pos);
    QFETCH(Cell, cell);

    // GIVEN a grid with another current cell
    WellArray wells(Rows, Columns);
    wells.setLayoutDirection(direction);
    wells.resize(GridSize);
    wells.setCurrent(3, 6);
    QSignalSpy changes(&wells, &WellArray::currentChanged);

    // WHEN it is pressed there
    press(&wells, pos);

    // THEN the cell that the place belongs to is current, and nothing is selected yet
    QCOMPARE(changes.count(), 1);
    QCOMPARE(lastCell(changes), cell);
    QCOMPARE(selectedCell(wells), None);
}

void tst_ColorWallArray::clickTellsThePressAndTheRelease()
{
    const std::vector<QRgb> colors = differentColors(Rows * Columns);
    const auto plain = std::make_unique<WellArray>(Rows, Columns);
    const auto colored = std::make_unique<ColorWellArray>(nullptr, Rows, Columns, colors.data());
    for (WellArray *wells : {plain.get(), static_cast<WellArray *>(colored.get())}) {
        QSignalSpy changes(wells, &WellArray::currentChanged);
        QSignalSpy selections(wells, &WellArray::selected);
        const QPointF pos(36 * 2 + 4, 32 + 4);

        // The press makes the cell current, the release selects it.
        press(wells, pos);
        QCOMPARE(lastCell(changes), Cell(1, 2));
        QCOMPARE(selections.count(), 0);
        release(wells);
        QCOMPARE(lastCell(selections), Cell(1, 2));
        QCOMPARE(selectedCell(*wells), Cell(1, 2));

        // A second click there changes nothing but selects again.
        press(wells, pos);
        release(wells);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(selections.count(), 2);
    }
}

void tst_ColorWallArray::clickBesideTheCellsIsToldAsWell()
{
    const std::vector<QRgb> colors = differentColors(Rows * Columns);
    const auto plain = std::make_unique<WellArray>(Rows, Columns);
    const auto colored = std::make_unique<ColorWellArray>(nullptr, Rows, Columns, colors.data());
    for (WellArray *wells : {plain.get(), static_cast<WellArray *>(colored.get())}) {
        QSignalSpy selections(wells, &WellArray::selected);
        press(wells, QPointF(40, 32 * Rows + 3));
        release(wells);
        QCOMPARE(selections.count(), 1);
        QCOMPARE(lastCell(selections), Cell(Rows, 1));
        QCOMPARE(selectedCell(*wells), Cell(Rows, 1));
    }
}

void tst_ColorWallArray::anyButtonClicks()
{
    const std::vector<QRgb> colors = differentColors(Rows * Columns);
    const auto plain = std::make_unique<WellArray>(Rows, Columns);
    const auto colored = std::make_unique<ColorWellArray>(nullptr, Rows, Columns, colors.data());
    for (WellArray *wells : {plain.get(), static_cast<WellArray *>(colored.get())}) {
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            QSignalSpy selections(wells, &WellArray::selected);
            const int column = button == Qt::RightButton ? 2 : 3;
            const QPointF pos = toGlobal(wells, QPointF(36 * column + 4, 32 + 4));
            mousePress(wells, pos, button);
            mouseRelease(wells, pos, button);
            QCOMPARE(selections.count(), 1);
            QCOMPARE(lastCell(selections), Cell(1, column));
        }
    }
}

void tst_ColorWallArray::colorGridSelectsOnlyAfterAPress()
{
    const std::vector<QRgb> colors = differentColors(Rows * Columns);
    WellArray plain(Rows, Columns);
    ColorWellArray colored(nullptr, Rows, Columns, colors.data());
    QSignalSpy plainSelections(&plain, &WellArray::selected);
    QSignalSpy coloredSelections(&colored, &WellArray::selected);

    // A release whose press went elsewhere
    release(&plain);
    release(&colored);
    QCOMPARE(plainSelections.count(), 1);
    QCOMPARE(coloredSelections.count(), 0);

    // and a second release after one press
    press(&colored, QPointF(3, 3));
    release(&colored);
    release(&colored);
    QCOMPARE(coloredSelections.count(), 1);
}

void tst_ColorWallArray::colorGridHasNoDragAndDrop()
{
    const std::vector<QRgb> colors = differentColors(Rows * Columns);
    QVERIFY(!ColorWellArray(nullptr, Rows, Columns, colors.data()).acceptDrops());
}

void tst_ColorWallArray::keysMoveTheCurrentCell_data()
{
    QTest::addColumn<Cell>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Cell>("to");
    const auto row = [](const char *name, const Cell &from, Qt::Key key, const Cell &to) {
        QTest::newRow(name) << from << key << to;
    };
    row("left", Cell(2, 3), Qt::Key_Left, Cell(2, 2));
    row("right", Cell(2, 3), Qt::Key_Right, Cell(2, 4));
    row("up", Cell(2, 3), Qt::Key_Up, Cell(1, 3));
    row("down", Cell(2, 3), Qt::Key_Down, Cell(3, 3));
    row("left to the edge", Cell(2, 1), Qt::Key_Left, Cell(2, 0));
    row("right to the edge", Cell(2, Columns - 2), Qt::Key_Right, Cell(2, Columns - 1));
    row("up to the edge", Cell(1, 3), Qt::Key_Up, Cell(0, 3));
    row("down to the edge", Cell(Rows - 2, 3), Qt::Key_Down, Cell(Rows - 1, 3));
    row("left at the edge", Cell(2, 0), Qt::Key_Left, Cell(2, 0));
    row("right at the edge", Cell(2, Columns - 1), Qt::Key_Right, Cell(2, Columns - 1));
    row("up at the edge", Cell(0, 3), Qt::Key_Up, Cell(0, 3));
    row("down at the edge", Cell(Rows - 1, 3), Qt::Key_Down, Cell(Rows - 1, 3));
    row("left without a current cell", None, Qt::Key_Left, None);
    row("up without a current cell", None, Qt::Key_Up, None);
    row("up from below the cells", Cell(Rows, 3), Qt::Key_Up, Cell(Rows - 1, 3));
    row("down from below the cells", Cell(Rows, 3), Qt::Key_Down, Cell(Rows, 3));
    row("left from beside the cells", Cell(2, Columns), Qt::Key_Left, Cell(2, Columns - 1));
    row("right from beside the cells", Cell(2, Columns), Qt::Key_Right, Cell(2, Columns));
}

void tst_ColorWallArray::keysMoveTheCurrentCell()
{
    QFETCH(Cell, from);
    QFETCH(Qt::Key, key);
    QFETCH(Cell, to);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        WellArray wells(Rows, Columns);
        wells.setLayoutDirection(direction);
        wells.setCurrent(from.first, from.second);
        QSignalSpy changes(&wells, &WellArray::currentChanged);
        QVERIFY(pressKey(&wells, key));
        QCOMPARE(changes.count(), from == to ? 0 : 1);
        QVERIFY(isCurrent(&wells, to));
        QCOMPARE(selectedCell(wells), None);
    }
}

void tst_ColorWallArray::arrowKeysWithoutACurrentCellLeadToNone_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("right") << Qt::Key_Right;
    QTest::newRow("down") << Qt::Key_Down;
}

void tst_ColorWallArray::arrowKeysWithoutACurrentCellLeadToNone()
{
    QFETCH(Qt::Key, key);
    WellArray wells(Rows, Columns);
    wells.setCurrent(-1, -1);
    QSignalSpy changes(&wells, &WellArray::currentChanged);
    for (int times = 1; times <= 2; ++times) {
        QVERIFY(pressKey(&wells, key));
        QCOMPARE(changes.count(), times);
        QCOMPARE(lastCell(changes), None);
    }
}

void tst_ColorWallArray::spaceSelectsTheCurrentCell()
{
    WellArray wells(Rows, Columns);
    wells.setCurrent(2, 3);
    QSignalSpy selections(&wells, &WellArray::selected);
    QVERIFY(pressKey(&wells, Qt::Key_Space));
    QCOMPARE(selections.count(), 1);
    QCOMPARE(lastCell(selections), Cell(2, 3));
}

void tst_ColorWallArray::spaceWithoutACurrentCellTellsNothing()
{
    WellArray wells(Rows, Columns);
    wells.setSelected(2, 3);
    wells.setCurrent(-1, -1);
    QSignalSpy selections(&wells, &WellArray::selected);
    QVERIFY(pressKey(&wells, Qt::Key_Space));
    QCOMPARE(selections.count(), 0);
    QCOMPARE(selectedCell(wells), None);
}

void tst_ColorWallArray::modifiersDoNotMatterToTheKeys()
{
    for (const auto modifier :
         {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::KeypadModifier}) {
        WellArray wells(Rows, Columns);
        QSignalSpy selections(&wells, &WellArray::selected);
        QVERIFY(pressKey(&wells, Qt::Key_Right, modifier));
        QVERIFY(pressKey(&wells, Qt::Key_Down, modifier));
        QVERIFY(pressKey(&wells, Qt::Key_Space, modifier));
        QCOMPARE(lastCell(selections), Cell(1, 1));
        QVERIFY(pressKey(&wells, Qt::Key_Left, modifier));
        QVERIFY(pressKey(&wells, Qt::Key_Up, modifier));
        QVERIFY(isCurrent(&wells, Cell(0, 0)));
    }
}

void tst_ColorWallArray::otherKeysArePassedOn_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("enter") << Qt::Key_Return;
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("home") << Qt::Key_Home;
    QTest::newRow("letter") << Qt::Key_A;
}

void tst_ColorWallArray::otherKeysArePassedOn()
{
    QFETCH(Qt::Key, key);
    WellArray wells(Rows, Columns);
    QSignalSpy changes(&wells, &WellArray::currentChanged);
    QSignalSpy selections(&wells, &WellArray::selected);
    QVERIFY(!pressKey(&wells, key));
    QVERIFY(changes.isEmpty() && selections.isEmpty());
}

void tst_ColorWallArray::changesRepaintTheOldAndTheNewCellOnly_data()
{
    QTest::addColumn<bool>("isCurrent");
    QTest::addColumn<Cell>("from");
    QTest::addColumn<Cell>("to");
    for (const bool isCurrent : {true, false}) {
        const char *mark = isCurrent ? "current" : "selected";
        QTest::addRow("%s, cell to cell", mark) << isCurrent << Cell(1, 1) << Cell(4, 6);
        QTest::addRow("%s, cell to none", mark) << isCurrent << Cell(1, 1) << None;
        QTest::addRow("%s, none to cell", mark) << isCurrent << None << Cell(4, 6);
        QTest::addRow("%s, cell to beside the grid", mark) << isCurrent << Cell(1, 1) << Cell(Rows, 0);
    }
}

void tst_ColorWallArray::changesRepaintTheOldAndTheNewCellOnly()
{
    QFETCH(bool, isCurrent);
    QFETCH(Cell, from);
    QFETCH(Cell, to);
    const auto mark = isCurrent ? &WellArray::setCurrent : &WellArray::setSelected;

    // GIVEN a grid on the screen that is painted
    WellArray wells(Rows, Columns);
    wells.resize(GridSize);
    (wells.*mark)(from.first, from.second);
    PaintWatch watch(&wells);
    QVERIFY(watch.begin());

    // WHEN the mark moves
    (wells.*mark)(to.first, to.second);
    QVERIFY(watch.painted.isEmpty()); // not at once

    // THEN the two cells are painted again
    const QRegion cells =
        QRegion(wells.cellRect(from.first, from.second)) + wells.cellRect(to.first, to.second);
    QVERIFY(!cells.isEmpty());
    QTRY_COMPARE(watch.painted, cells);
}

void tst_ColorWallArray::onlyCellsOfTheExposedAreaArePainted_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QRect>("cells"); // columns and rows
    const auto fromLeft = [](const char *name, const QRect &area, const QRect &cells) {
        QTest::newRow(name) << Qt::LeftToRight << area << cells;
    };
    const auto fromRight = [](const char *name, const QRect &area, const QRect &cells) {
        QTest::newRow(name) << Qt::RightToLeft << area << cells;
    };
    const QRect all(0, 0, Columns, Rows);
    fromLeft("everything", QRect(QPoint(), GridSize), all);
    fromLeft("within one cell", QRect(36 * 3 + 2, 32 * 2 + 2, 10, 10), QRect(3, 2, 1, 1));
    fromLeft("up to the next cells", QRect(36 * 3, 32 * 2, 36, 32), QRect(3, 2, 2, 2));
    fromLeft("one pixel less", QRect(36 * 3, 32 * 2, 35, 31), QRect(3, 2, 1, 1));
    fromLeft("across a gap", QRect(20, 20, 20, 20), QRect(0, 0, 2, 2));
    fromLeft("last cell", QRect(36 * 7 + 5, 32 * 5 + 5, 22, 19), QRect(7, 5, 1, 1));
    fromRight("from the right: everything", QRect(QPoint(), GridSize), all);
    fromRight("from the right: within one cell", QRect(28 * 4 + 2, 32 * 2 + 2, 10, 10), QRect(3, 2, 1, 1));
    fromRight("from the right: up to the next cells", QRect(28 * 4, 32 * 2, 28, 32), QRect(2, 2, 2, 2));
    fromRight("from the right: last column", QRect(0, 0, 27, 20), QRect(7, 0, 1, 1));
    fromRight("from the right: room beside the columns", QRect(28 * 8, 0, 20, 20), QRect(0, 0, Columns, 1));
}

void tst_ColorWallArray::onlyCellsOfTheExposedAreaArePainted()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, area);
    QFETCH(QRect, cells);

    // GIVEN a grid
    RecordingWells wells;
    wells.setLayoutDirection(direction);
    wells.resize(GridSize);

    // WHEN part of it is painted
    rendered(&wells, area);

    // THEN those cells were painted that the area begins and ends in and those between, row by row
    QVector<Cell> expected;
    QVector<QRect> places;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            expected.append(Cell(row, column));
            places.append(place(direction, row, column));
        }
    }
    QCOMPARE(wells.cells, expected);
    QCOMPARE(wells.cellRects, places);
}

void tst_ColorWallArray::cellsThatDoNotExistAreNotPainted_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from the left") << Qt::LeftToRight;
    QTest::newRow("from the right") << Qt::RightToLeft;
}

void tst_ColorWallArray::cellsThatDoNotExistAreNotPainted()
{
    QFETCH(Qt::LayoutDirection, direction);

    // GIVEN a widget much larger than its grid
    RecordingWells wells(2, 3);
    wells.setLayoutDirection(direction);
    wells.resize(500, 400);

    // WHEN any part of it is painted
    for (int y = 0; y < 400; y += 25) {
        for (int x = 0; x < 500; x += 25)
            rendered(&wells, QRect(x, y, 25, 25));
    }

    // THEN no other cells than its six were
    QVERIFY(!wells.cells.isEmpty());
    for (const Cell &cell : qAsConst(wells.cells)) {
        QVERIFY(cell.first >= 0 && cell.first < 2);
        QVERIFY(cell.second >= 0 && cell.second < 3);
    }
}

void tst_ColorWallArray::cellIsASunkenFrameAroundItsContents()
{
    // GIVEN a grid with a style that keeps account, and with a palette of its own
    RecordingStyle style;
    RecordingWells wells;
    wells.setStyle(&style);
    wells.resize(GridSize);
    QPalette palette = wells.palette();
    palette.setColor(QPalette::Mid, Qt::magenta);
    wells.setPalette(palette);

    // WHEN one cell is painted
    style.frames.clear();
    rendered(&wells, QRect(36 * 3 + 2, 32 * 2 + 2, 10, 10));

    // THEN the style drew its frame, and nothing else
    const QRect cell = place(Qt::LeftToRight, 2, 3);
    QCOMPARE(style.frames.size(), 1);
    const DrawnFrame &frame = style.frames.constFirst();
    QCOMPARE(frame.element, QStyle::PE_Frame);
    QCOMPARE(frame.rect, cell);
    QCOMPARE(frame.state, QStyle::State(QStyle::State_Enabled | QStyle::State_Sunken));
    QCOMPARE(frame.palette.color(QPalette::Mid), QColor(Qt::magenta));
    QCOMPARE(frame.lineWidth, RecordingStyle::FrameWidth);
    QCOMPARE(frame.midLineWidth, 1);
    QCOMPARE(frame.widget, &wells);
    QCOMPARE(wells.contents, QVector<QRect>({cell.adjusted(3, 3, -3, -3)}));
}

void tst_ColorWallArray::focusRectangleIsOnTheCurrentCellWhileTheGridHasTheKeyboard()
{
    // GIVEN a grid without the keyboard beside a widget that has it
    RecordingStyle style;
    QWidget window;
    window.resize(400, 300);
    WellArray wells(Rows, Columns, &window);
    wells.setStyle(&style);
    wells.setGeometry(QRect(QPoint(), GridSize));
    wells.setCurrent(2, 3);
    wells.setSelected(1, 1);
    QPalette palette = wells.palette();
    palette.setColor(QPalette::Highlight, Qt::magenta);
    wells.setPalette(palette);
    QWidget other(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(activate(&window));
    other.setFocus();
    style.frames.clear();
    rendered(&wells);
    QCOMPARE(style.ofKind(QStyle::PE_Frame).size(), Rows * Columns);
    QVERIFY(style.ofKind(QStyle::PE_FrameFocusRect).isEmpty());

    // WHEN it gets the keyboard
    wells.setFocus();
    QVERIFY(wells.hasFocus());
    style.frames.clear();
    rendered(&wells);

    // THEN the current cell has the rectangle, and neither the selected one nor any other
    QCOMPARE(style.ofKind(QStyle::PE_FrameFocusRect).size(), 1);
    const DrawnFrame frame = style.ofKind(QStyle::PE_FrameFocusRect).constFirst();
    QCOMPARE(frame.rect, wells.cellRect(2, 3));
    QCOMPARE(frame.state, QStyle::State(QStyle::State_KeyboardFocusChange));
    QCOMPARE(frame.palette.color(QPalette::Highlight), QColor(Qt::magenta));
    QCOMPARE(frame.widget, &wells);
}

void tst_ColorWallArray::contentsAreOnTopOfTheFocusRectangle()
{
    class Wells : public WellArray
    {
    public:
        explicit Wells(const RecordingStyle *style)
            : WellArray(1, 1)
            , m_style(style)
        {
        }

        QVector<QStyle::PrimitiveElement> below;

    protected:
        void paintCellContents(QPainter *, int, int, const QRect &) override
        {
            for (const DrawnFrame &drawn : qAsConst(m_style->frames))
                below.append(drawn.element);
        }

    private:
        const RecordingStyle *const m_style;
    };

    // GIVEN a grid of one cell, which is the current one, with the keyboard
    RecordingStyle style;
    Wells wells(&style);
    wells.setStyle(&style);
    wells.resize(CellWidth, CellHeight);
    QVERIFY(activate(&wells));

    // WHEN it is painted
    style.frames.clear();
    wells.below.clear();
    rendered(&wells);

    // THEN its contents come after the frame and the rectangle
    QCOMPARE(wells.below, QVector<QStyle::PrimitiveElement>({QStyle::PE_Frame, QStyle::PE_FrameFocusRect}));
}

void tst_ColorWallArray::plainCellIsACrossedOutWhite()
{
    // GIVEN a grid of one cell in a style whose frames are three pixels wide and invisible
    RecordingStyle style;
    WellArray wells(1, 1);
    wells.setStyle(&style);
    wells.resize(CellWidth, CellHeight);

    // WHEN it is painted
    const QImage image = rendered(&wells);

    // THEN there is white inside the frame with both diagonals from corner to corner
    const QRect inside = QRect(QPoint(), wells.size()).adjusted(3, 3, -3, -3);
    QImage expected(wells.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.fillRect(inside, Qt::white);
    painter.drawLine(inside.topLeft(), inside.bottomRight());
    painter.drawLine(inside.topRight(), inside.bottomLeft());
    painter.end();
    QCOMPARE(image, expected);
    QCOMPARE(image.pixelColor(inside.topRight()), QColor(Qt::black));
    QCOMPARE(image.pixelColor(inside.center().x(), inside.top()), QColor(Qt::white));
}

void tst_ColorWallArray::colorCellsAreFilledByColumnsAndOpaque_data()
{
    cellsHaveTheirPlaces_data();
}

void tst_ColorWallArray::colorCellsAreFilledByColumnsAndOpaque()
{
    QFETCH(Qt::LayoutDirection, direction);

    // GIVEN exactly as many colours as there are cells, all of them fully transparent
    std::vector<QRgb> colors = differentColors(Rows * Columns);
    for (QRgb &color : colors)
        color &= 0x00ffffff;
    RecordingStyle style; // with invisible frames of three pixels
    ColorWellArray wells(nullptr, Rows, Columns, colors.data());
    wells.setStyle(&style);
    wells.setLayoutDirection(direction);
    wells.resize(GridSize);

    // WHEN the grid is painted
    const QImage image = rendered(&wells);

    // THEN each cell is filled inside its frame, first by rows and then by columns; the ground is left alone
    QImage expected(wells.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    for (int column = 0; column < Columns; ++column) {
        for (int row = 0; row < Rows; ++row) {
            const QRgb color = colors.at(uint(row + column * Rows)) | 0xff000000;
            painter.fillRect(place(direction, row, column).adjusted(3, 3, -3, -3), QColor(color));
        }
    }
    painter.end();
    QCOMPARE(image, expected);
}

void tst_ColorWallArray::changedColorShowsAfterAnUpdate()
{
    std::vector<QRgb> colors = differentColors(Rows * Columns);
    ColorWellArray wells(nullptr, Rows, Columns, colors.data());
    wells.resize(GridSize);
    const QPoint middle = wells.cellRect(2, 3).center();
    QCOMPARE(rendered(&wells).pixelColor(middle), QColor(colors.at(2 + 3 * Rows)));
    colors.at(2 + 3 * Rows) = qRgb(1, 2, 3);
    QCOMPARE(rendered(&wells).pixelColor(middle), QColor(1, 2, 3));
}

QTEST_MAIN(tst_ColorWallArray)

#include "tst_colorwallarray.moc"
