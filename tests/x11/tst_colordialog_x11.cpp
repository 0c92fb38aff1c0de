// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The colour dialog under a user's hands: real drags over field, strip and swatch, and the keyboard.

#include "desktop.h"

#include <QApplication>
#include <QDrag>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <X11/keysym.h>
#include <optional>
#include <support/colordialogparts.h>
#include <support/modaldriver.h>
#include <tarnwidgets/colordialog.h>

using Tarn::Test::cellCenter;
using Tarn::Test::ColorDialogParts;
using Tarn::Test::Desktop;
using Tarn::Test::ModalDriver;
using Tarn::Widgets::ColorDialog;

namespace {

constexpr QRgb Start = 0xff3c6e9b;

QPoint toScreen(const QWidget *widget, const QPoint &pos)
{
    return widget->mapToGlobal(pos);
}

/* A dialog on the screen. */
struct Stage
{
    explicit Stage(const Desktop &desktop, const QPoint &pos = QPoint(10, 50))
        : dialog(QColor(Start))
        , parts(&dialog)
    {
        dialog.move(pos);
        isReady = parts.isComplete() && desktop.show(&dialog) && parts.color() == QColor(Start);
    }

    ColorDialog dialog;
    ColorDialogParts parts;
    bool isReady;
};

/*
 * Goes on with a drag of Qt's, which takes the thread until the drop: the pointer is moved to a place and
 * let go there as soon as the drag has begun.
 */
class Dropper
{
public:
    Dropper(Desktop *desktop, const QWidget *source, const QPoint &to)
        : m_desktop(desktop)
        , m_source(source)
        , m_to(to)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { drop(); });
        m_timer.start(5);
    }

    bool hasDropped() const
    {
        return m_hasDropped;
    }

private:
    void drop()
    {
        if (!m_source->findChild<QDrag *>())
            return;
        m_timer.stop();
        m_hasDropped = m_desktop->input.dragTo(m_to) && m_desktop->input.release();
    }

    Desktop *const m_desktop;
    const QWidget *const m_source;
    const QPoint m_to;
    QTimer m_timer;
    bool m_hasDropped = false;
};

} // namespace

class tst_ColorDialogX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_desktop.emplace();
        QVERIFY(m_desktop->isAsExpected());
    }
    void cleanup()
    {
        m_desktop.reset();
    }

    void dragOverTheFieldPicksHueAndSaturation();
    void dragBesideTheFieldPicksAtItsEdge();
    void dragOnTheStripPicksTheValue();
    void clickOnThePickersPicksNothing();
    void swatchIsDraggedFromOneDialogToAnother();
    void swatchDroppedNowhereChangesNothing();
    void shortDragOfTheSwatchIsNone();
    void clickAndKeysChooseInTheGrids();
    void addedColorIsShownInItsCell();
    void numbersAndHtmlAreTyped();
    void dialogIsMovedByItsTitleAndNotResized();
    void oneCallIsAnsweredByTheKeyboard();

private:
    /* What the screen shows at a place of a child. */
    QRgb pixel(const QWidget *child, const QPoint &pos) const
    {
        return m_desktop->pixel(child->window(), child->mapTo(child->window(), pos));
    }

    std::optional<Desktop> m_desktop;
};

void tst_ColorDialogX11::dragOverTheFieldPicksHueAndSaturation()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;
    const int value = parts.numbers().at(2);

    // WHEN the button goes down over the field, THEN nothing is picked
    QVERIFY(m_desktop->input.moveTo(toScreen(parts.field, {116, 116})));
    QVERIFY(m_desktop->input.press());
    QCOMPARE(parts.color(), QColor(Start));

    // WHEN the mouse moves by a pixel, THEN the colour there is: of 233 pixels the field's last is 0
    QVERIFY(m_desktop->input.moveTo(toScreen(parts.field, {117, 116})));
    QCOMPARE(parts.color().rgb(), QColor::fromHsv(360 - 117 * 360 / 232, 255 - 116 * 255 / 232, value).rgb());

    // AND so it goes on
    QVERIFY(m_desktop->input.dragTo(toScreen(parts.field, {58, 29})));
    QCOMPARE(parts.color().rgb(), QColor::fromHsv(360 - 58 * 360 / 232, 255 - 29 * 255 / 232, value).rgb());
    QVERIFY(m_desktop->input.release());

    // and the screen shows it: the ring, the strip's new colours and the swatch
    QTRY_COMPARE(pixel(parts.field, {58, 24}), QColor(Qt::black).rgb());
    QTRY_COMPARE(pixel(parts.swatch, {5, 5}), parts.color().rgb());
    const QColor brightest = QColor::fromHsv(parts.numbers().at(0), parts.numbers().at(1), 255);
    QTRY_COMPARE(pixel(parts.strip, {20, 7}), brightest.rgb());
}

void tst_ColorDialogX11::dragBesideTheFieldPicksAtItsEdge()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;
    const int value = parts.numbers().at(2);
    const QPoint inside = toScreen(parts.field, {100, 100});
    QVERIFY(m_desktop->input.drag(inside, toScreen(parts.field, {-20, -20})));
    QCOMPARE(parts.color().rgb(), QColor::fromHsv(359, 255, value).rgb());
    QVERIFY(m_desktop->input.drag(inside, toScreen(parts.field, {240, 250})));
    QCOMPARE(parts.color().rgb(), QColor::fromHsv(0, 0, value).rgb());
}

void tst_ColorDialogX11::dragOnTheStripPicksTheValue()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;
    const int height = parts.strip->height();
    const int distance = height - 15;

    QVERIFY(m_desktop->input.moveTo(toScreen(parts.strip, {20, 60})));
    QVERIFY(m_desktop->input.press());
    QCOMPARE(parts.color(), QColor(Start));
    QVERIFY(m_desktop->input.dragTo(toScreen(parts.strip, {20, 70})));
    QCOMPARE(parts.numbers().at(2), 255 - 63 * 255 / distance);
    QTRY_COMPARE(pixel(parts.swatch, {5, 5}), parts.color().rgb());

    QVERIFY(m_desktop->input.dragTo(toScreen(parts.strip, {20, height + 20})));
    QCOMPARE(parts.numbers().at(2), 0);
    QVERIFY(m_desktop->input.dragTo(toScreen(parts.strip, {20, -20})));
    QVERIFY(m_desktop->input.release());
    QCOMPARE(parts.numbers().at(2), 255);

    // The arrow is at the top, where no arrow was.
    QTRY_COMPARE(pixel(parts.strip, {3, 7}), QColor(Qt::white).rgb());
}

void tst_ColorDialogX11::clickOnThePickersPicksNothing()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    QVERIFY(m_desktop->input.click(toScreen(stage.parts.field, {20, 20})));
    QVERIFY(m_desktop->input.click(toScreen(stage.parts.strip, {20, 20})));
    QCOMPARE(stage.parts.color(), QColor(Start));
}

void tst_ColorDialogX11::swatchIsDraggedFromOneDialogToAnother()
{
    // GIVEN two dialogs, the one below the other but for its swatch
    const Stage source(*m_desktop);
    QVERIFY(source.isReady);
    ColorDialog other(Qt::red);
    const ColorDialogParts target(&other);
    other.move(source.dialog.pos() + QPoint(70, 0) + source.parts.swatch->mapTo(&source.dialog, QPoint())
               - target.swatch->mapTo(&other, QPoint()));
    QVERIFY(m_desktop->show(&other));
    QTRY_COMPARE(pixel(target.swatch, {5, 5}), QColor(Qt::red).rgb());
    const QPoint from = toScreen(source.parts.swatch, {5, 20});
    QVERIFY(!m_desktop->geometry(&other).contains(from));

    // WHEN the swatch of the one is dragged to that of the other
    const Dropper dropper(&*m_desktop, source.parts.swatch, m_desktop->center(target.swatch));
    QVERIFY(m_desktop->input.moveTo(from));
    QVERIFY(m_desktop->input.press());
    m_desktop->input.moveTo(from + QPoint(1, 30)); // comes back after the drop

    // THEN the other has the colour, in all its pieces, and the one keeps it
    QTRY_VERIFY(dropper.hasDropped());
    QTRY_COMPARE(target.color(), QColor(Start));
    QCOMPARE(target.numbers(), source.parts.numbers());
    QCOMPARE(source.parts.color(), QColor(Start));
    QTRY_COMPARE(pixel(target.swatch, {5, 5}), Start);
}

void tst_ColorDialogX11::swatchDroppedNowhereChangesNothing()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const QPoint from = m_desktop->center(stage.parts.swatch);
    const Dropper dropper(&*m_desktop, stage.parts.swatch, m_desktop->center(stage.parts.customGrid));
    QVERIFY(m_desktop->input.moveTo(from));
    QVERIFY(m_desktop->input.press());
    m_desktop->input.moveTo(from + QPoint(0, 30));
    QTRY_VERIFY(dropper.hasDropped());
    QTRY_VERIFY(!stage.parts.swatch->findChild<QDrag *>());
    QCOMPARE(stage.parts.color(), QColor(Start));
}

void tst_ColorDialogX11::shortDragOfTheSwatchIsNone()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const QPoint from = m_desktop->center(stage.parts.swatch);
    QVERIFY(m_desktop->input.moveTo(from));
    QVERIFY(m_desktop->input.press());
    QVERIFY(m_desktop->input.moveTo(from + QPoint(QApplication::startDragDistance(), 0)));
    QVERIFY(!stage.parts.swatch->findChild<QDrag *>());
    QVERIFY(m_desktop->input.release());

    // Let go, it is not taken along.
    QVERIFY(m_desktop->input.moveTo(from - QPoint(25, 0)));
    QVERIFY(!stage.parts.swatch->findChild<QDrag *>());
}

void tst_ColorDialogX11::clickAndKeysChooseInTheGrids()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;

    // WHEN a standard colour is clicked, THEN it is shown; keys go on from there
    QVERIFY(m_desktop->input.click(toScreen(parts.standardGrid, cellCenter(3, 1))));
    QCOMPARE(parts.color(), QColor(255, 0, 0));
    QTRY_VERIFY(m_desktop->hasKeyboard(&stage.dialog));
    QVERIFY(m_desktop->input.key(XK_Down));
    QCOMPARE(parts.color(), QColor(255, 0, 127));
    QVERIFY(m_desktop->input.key(XK_Right));
    QCOMPARE(parts.color(), QColor(85, 85, 127));
    QVERIFY(m_desktop->input.key(XK_Up));
    QVERIFY(m_desktop->input.key(XK_Left));
    QCOMPARE(parts.color(), QColor(255, 0, 0));

    // WHEN Tab leads to the custom colours, which have no current cell, THEN a key shows the yellow one
    QVERIFY(m_desktop->input.key(XK_Tab));
    QVERIFY(parts.customGrid->hasFocus());
    QVERIFY(m_desktop->input.key(XK_Right));
    QCOMPARE(parts.color(), QColor(255, 255, 0));
}

void tst_ColorDialogX11::addedColorIsShownInItsCell()
{
    Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;

    // GIVEN a custom cell that is selected, and a colour that no other run of the program has left there
    QVERIFY(m_desktop->input.click(toScreen(parts.customGrid, cellCenter(0, 2))));
    const QRgb chosen = 0xff000000U | QRgb(QCoreApplication::applicationPid() & 0xffffff);
    stage.dialog.setInitColor(QColor(chosen));
    QVERIFY(pixel(parts.customGrid, cellCenter(0, 2)) != chosen);

    // WHEN the button is clicked twice, THEN that cell and the next have the colour, and no third
    const QRgb third = pixel(parts.customGrid, cellCenter(0, 3));
    QVERIFY(m_desktop->input.click(m_desktop->center(parts.apply)));
    QVERIFY(m_desktop->input.click(m_desktop->center(parts.apply)));
    QTRY_COMPARE(pixel(parts.customGrid, cellCenter(0, 2)), chosen);
    QTRY_COMPARE(pixel(parts.customGrid, cellCenter(1, 2)), chosen);
    QCOMPARE(pixel(parts.customGrid, cellCenter(0, 3)), third);
    QVERIFY(stage.dialog.isVisible());
}

void tst_ColorDialogX11::numbersAndHtmlAreTyped()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const ColorDialogParts &parts = stage.parts;

    // WHEN a number is typed, THEN each digit counts at once
    QVERIFY(m_desktop->input.click(toScreen(parts.boxes.at(3), {10, parts.boxes.at(3)->height() / 2})));
    QTRY_VERIFY(parts.boxes.at(3)->hasFocus());
    QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_a));
    QVERIFY(m_desktop->input.type(QStringLiteral("20")));
    QCOMPARE(parts.color(), QColor(20, 0x6e, 0x9b));
    QVERIFY(m_desktop->input.key(XK_Up));
    QCOMPARE(parts.color(), QColor(21, 0x6e, 0x9b));

    // WHEN an HTML name is typed, THEN other characters are refused, and it stays as it is typed
    QVERIFY(m_desktop->input.click(m_desktop->center(parts.html)));
    QTRY_VERIFY(parts.html->hasFocus());
    QVERIFY(m_desktop->input.key(XK_End));
    for (int i = 0; i < 6; ++i)
        QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(parts.html->text(), QStringLiteral("#"));
    QVERIFY(m_desktop->input.type(QStringLiteral("f0xa")));
    QCOMPARE(parts.html->text(), QStringLiteral("#f0a"));
    QCOMPARE(parts.numbers().mid(3, 3), QVector<int>({255, 0, 170}));
    QTRY_COMPARE(pixel(parts.swatch, {5, 5}), qRgb(255, 0, 170));
}

void tst_ColorDialogX11::dialogIsMovedByItsTitleAndNotResized()
{
    const Stage stage(*m_desktop);
    QVERIFY(stage.isReady);
    const QRect before = m_desktop->geometry(&stage.dialog);
    QCOMPARE(before.size(), QSize(630, 525));
    const QPoint title = before.topLeft() + QPoint(60, 12);
    QVERIFY(m_desktop->input.drag(title, title + QPoint(40, 25)));
    QTRY_COMPARE(m_desktop->geometry(&stage.dialog), before.translated(40, 25));
    const QRect now = m_desktop->geometry(&stage.dialog);
    QVERIFY(m_desktop->input.drag(now.bottomRight(), now.bottomRight() - QPoint(50, 50)));
    QCOMPARE(m_desktop->geometry(&stage.dialog), now);
}

void tst_ColorDialogX11::oneCallIsAnsweredByTheKeyboard()
{
    const auto answer = [this](unsigned long key) {
        return [this, key](QWidget *dialog) {
            QVERIFY(m_desktop->isShown(dialog));
            QTRY_VERIFY(m_desktop->hasKeyboard(dialog));
            QVERIFY(m_desktop->input.key(key));
        };
    };
    ModalDriver driver(answer(XK_Return));
    driver.then(answer(XK_Escape));
    QCOMPARE(ColorDialog::getColor(Qt::blue), QColor(Qt::blue));
    QCOMPARE(ColorDialog::getColor(Qt::green), QColor(Qt::blue)); // Escape returns that of the call before
    QVERIFY(driver.ran());
}

QTEST_MAIN(tst_ColorDialogX11)

#include "tst_colordialog_x11.moc"
