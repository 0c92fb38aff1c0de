// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QMetaObject>
#include <QPainter>
#include <QPixmap>
#include <QTest>
#include <QVBoxLayout>
#include <optional>
#include <tarnwidgets/tarnpushbutton.h>

using namespace Tarn::Test;
using Tarn::Widgets::TarnPushButton;

namespace {

const QString LongText = QStringLiteral("Messages of the pump station in the order of their arrival");
constexpr QSize Narrow(28, 90);

/* How often it is painted. */
class CountingButton : public TarnPushButton
{
public:
    using TarnPushButton::TarnPushButton;

    int paints = 0;
    int toolTipChanges = 0;

protected:
    bool event(QEvent *event) override
    {
        toolTipChanges += int(event->type() == QEvent::ToolTipChange);
        return TarnPushButton::event(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        TarnPushButton::paintEvent(event);
    }
};

/* The turned button step by step, as plainly as can be: it does not care that it asks for ever new paints. */
class PlainSteps : public QPushButton
{
public:
    explicit PlainSteps(bool isClockwise)
        : m_isClockwise(isClockwise)
    {
    }

    void setFullText(const QString &text)
    {
        m_fullText = text;
        showAsMuchAsFits();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPushButton::setText(QString());
        QPushButton::paintEvent(event);
        showAsMuchAsFits();

        QPainter painter(this);
        if (m_isClockwise) {
            painter.rotate(90);
            painter.translate(0, -width());
        } else {
            painter.translate(0, height());
            painter.rotate(-90);
        }
        painter.drawText(0, 0, height(), width(), Qt::AlignCenter, text());
    }

private:
    void showAsMuchAsFits()
    {
        const bool fits = fontMetrics().horizontalAdvance(m_fullText) <= height();
        setToolTip(fits ? QString() : m_fullText);
        QPushButton::setText(fontMetrics().elidedText(m_fullText, Qt::ElideRight, height()));
    }

    const bool m_isClockwise;
    QString m_fullText;
};

QImage picture(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/* Where in the picture's height the ink of the text begins and ends, the frame left out. */
QPair<int, int> inkOf(const QImage &image)
{
    QVector<int> rows;
    for (int y = 6; y < image.height() - 6; ++y) {
        const QRgb ground = image.pixel(6, y);
        for (int x = 6; x < image.width() - 6; ++x) {
            if (image.pixel(x, y) != ground) {
                rows.append(y);
                break;
            }
        }
    }
    return rows.isEmpty() ? qMakePair(-1, -1) : qMakePair(rows.constFirst(), rows.constLast());
}

void setFlatLook(QWidget *button)
{
    button->setStyleSheet(QStringLiteral("QPushButton { background: white; border: none; color: black; }"));
}

} // namespace

class tst_TarnPushButton : public QObject
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

    void buttonIsAPushButtonWithoutAnythingDeclared();
    void newButtonIsEmptyAndNotTurned();

    // The text
    void textIsCutToTheHeight_data();
    void textIsCutToTheHeight();
    void textAsLongAsTheHeightFits();
    void toolTipGoesWithATextThatFits();
    void fullTextStays();
    void setTextDoesNotTouchTheFullText();
    void textOfAButtonNotTurnedIsCutWhenSet();
    void textSetBeforePolishingIsCutForTheFormerFont();
    void toolTipOfTheApplicationGoesWithTheNextPaint_data();
    void toolTipOfTheApplicationGoesWithTheNextPaint();
    void textOfATurnedButtonIsCutWhenPainted_data();
    void textOfATurnedButtonIsCutWhenPainted();
    void turningAloneLeavesTheTextAlone();
    void turnedButtonGoesBackToItsFullText();

    // The picture
    void buttonNotTurnedLooksLikeAPushButton();
    void turnedButtonLooksLikeThePlainSteps_data();
    void turnedButtonLooksLikeThePlainSteps();
    void textReadsInItsDirection_data();
    void textReadsInItsDirection();
    void clockwiseIsTheStart();
    void turnedTextIsCentred_data();
    void turnedTextIsCentred();

    // Paints
    void idleButtonIsNotPainted_data();
    void idleButtonIsNotPainted();
    void paintingLeavesTheToolTipAlone();
    void everySetterAsksForAPaint_data();
    void everySetterAsksForAPaint();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TarnPushButton::buttonIsAPushButtonWithoutAnythingDeclared()
{
    QWidget parent;
    const auto *button = new TarnPushButton(&parent);

    QCOMPARE(button->parentWidget(), &parent);
    const QMetaObject *base = &QPushButton::staticMetaObject;
    QCOMPARE(button->metaObject()->className(), "Tarn::Widgets::TarnPushButton");
    QCOMPARE(button->metaObject()->superClass(), base);
    QCOMPARE(button->metaObject()->propertyCount(), base->propertyCount());
    QCOMPARE(button->metaObject()->methodCount(), base->methodCount());
}

void tst_TarnPushButton::newButtonIsEmptyAndNotTurned()
{
    TarnPushButton button;
    QVERIFY(button.text().isEmpty());
    QVERIFY(button.getBtnText().isEmpty());
    QVERIFY(button.toolTip().isEmpty());

    // Not turned: it keeps a text that it is given past setBtnText() through a paint.
    button.resize(Narrow);
    button.setText(QStringLiteral("A"));
    picture(&button);
    QCOMPARE(button.text(), QStringLiteral("A"));
}

void tst_TarnPushButton::textIsCutToTheHeight_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isTurned");
    for (const bool isTurned : {false, true}) {
        const char *const turned = isTurned ? "turned" : "not turned";
        QTest::addRow("high and narrow, %s", turned) << QSize(28, 400) << isTurned;
        QTest::addRow("low and wide, %s", turned) << QSize(400, 28) << isTurned;
        QTest::addRow("no height at all, %s", turned) << QSize(400, 0) << isTurned;
    }
}

void tst_TarnPushButton::textIsCutToTheHeight()
{
    QFETCH(QSize, size);
    QFETCH(bool, isTurned);

    // GIVEN texts of all lengths, some of which fit
    TarnPushButton button;
    button.resize(size);
    button.isOpenRotation(isTurned);
    int fitting = 0;
    for (int length = 1; length <= LongText.size(); ++length) {
        const QString text = LongText.left(length);
        const bool fits = button.fontMetrics().horizontalAdvance(text) <= size.height();

        // WHEN the text is set
        button.setBtnText(text);

        // THEN it is shown whole without a tool tip, or cut with all of it in the tool tip
        QCOMPARE(button.text(), button.fontMetrics().elidedText(text, Qt::ElideRight, size.height()));
        if (size.height() > 0) // Qt leaves one letter of one
            QCOMPARE(button.text() == text, fits);
        QCOMPARE(button.toolTip(), fits ? QString() : text);
        fitting += int(fits);
    }
    QVERIFY(size.height() == 400 ? fitting > 0 : fitting < LongText.size());
}

void tst_TarnPushButton::textAsLongAsTheHeightFits()
{
    for (int length = 1; length <= LongText.size(); ++length) {
        const QString text = LongText.left(length);
        TarnPushButton button;
        const int advance = button.fontMetrics().horizontalAdvance(text);
        button.resize(28, advance);
        button.setBtnText(text);
        QCOMPARE(button.toolTip(), QString());
        button.resize(28, advance - 1);
        button.setBtnText(text);
        QCOMPARE(button.toolTip(), text);
    }
}

void tst_TarnPushButton::toolTipGoesWithATextThatFits()
{
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(LongText);
    QCOMPARE(button.toolTip(), LongText);
    QVERIFY(button.text().endsWith(QChar(0x2026)));

    button.setBtnText(QStringLiteral("A"));

    QVERIFY(button.toolTip().isEmpty());
    QCOMPARE(button.text(), QStringLiteral("A"));
}

void tst_TarnPushButton::fullTextStays()
{
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(LongText);
    QVERIFY(button.text() != LongText);
    QCOMPARE(button.getBtnText(), LongText);
}

void tst_TarnPushButton::setTextDoesNotTouchTheFullText()
{
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(QStringLiteral("A"));

    button.setText(LongText);

    QCOMPARE(button.getBtnText(), QStringLiteral("A"));
    QVERIFY(button.text().endsWith(QChar(0x2026)));
    QCOMPARE(button.toolTip(), LongText);
}

void tst_TarnPushButton::textOfAButtonNotTurnedIsCutWhenSet()
{
    // GIVEN a cut text
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(LongText);
    const QString cut = button.text();

    // WHEN the button becomes high enough for all of it
    button.resize(28, 1000);
    picture(&button);

    // THEN it stays cut until it is set again
    QCOMPARE(button.text(), cut);
    button.setBtnText(LongText);
    QCOMPARE(button.text(), LongText);
}

void tst_TarnPushButton::textSetBeforePolishingIsCutForTheFormerFont()
{
    // GIVEN a button that has not got the great font of its window's style sheet yet
    QWidget window;
    window.setStyleSheet(QStringLiteral("QPushButton { font-size: 60px; }"));
    TarnPushButton button(&window);
    button.resize(Narrow);
    const QString text = QStringLiteral("Message");
    QVERIFY(button.fontMetrics().horizontalAdvance(text) <= Narrow.height());

    // WHEN a text is set that fits by the font that it has
    button.setBtnText(text);
    button.ensurePolished();

    // THEN it stays whole until it is set again
    QVERIFY(button.fontMetrics().horizontalAdvance(text) > Narrow.height());
    QCOMPARE(button.text(), text);
    QVERIFY(button.toolTip().isEmpty());
    button.setBtnText(text);
    QVERIFY(button.text().endsWith(QChar(0x2026)));
    QCOMPARE(button.toolTip(), text);
}

void tst_TarnPushButton::toolTipOfTheApplicationGoesWithTheNextPaint_data()
{
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<QString>("expected");
    QTest::newRow("turned") << true << QString();
    QTest::newRow("not turned") << false << "The application's";
}

void tst_TarnPushButton::toolTipOfTheApplicationGoesWithTheNextPaint()
{
    QFETCH(bool, isTurned);
    QFETCH(QString, expected);
    TarnPushButton button;
    button.resize(Narrow);
    button.isOpenRotation(isTurned);
    button.setBtnText(QStringLiteral("A"));

    button.setToolTip(QStringLiteral("The application's"));
    picture(&button);
    QCOMPARE(button.toolTip(), expected);

    button.setBtnText(QStringLiteral("B"));
    QVERIFY(button.toolTip().isEmpty());
}

void tst_TarnPushButton::textOfATurnedButtonIsCutWhenPainted_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("pointSize");
    QTest::newRow("higher") << 1000 << 0;
    QTest::newRow("lower") << 40 << 0;
    QTest::newRow("with a larger font") << 90 << 24;
    QTest::newRow("with a smaller font") << 90 << 4;
}

void tst_TarnPushButton::textOfATurnedButtonIsCutWhenPainted()
{
    QFETCH(int, height);
    QFETCH(int, pointSize);
    TarnPushButton button;
    button.resize(Narrow);
    button.isOpenRotation(true);
    button.setBtnText(LongText);
    picture(&button);
    const QString before = button.text();

    button.resize(28, height);
    if (pointSize > 0)
        button.setFont(QFont(button.font().family(), pointSize));
    picture(&button);

    const QString expected = button.fontMetrics().elidedText(LongText, Qt::ElideRight, height);
    QVERIFY(expected != before);
    QCOMPARE(button.text(), expected);
    QCOMPARE(button.toolTip(), expected == LongText ? QString() : LongText);
}

void tst_TarnPushButton::turningAloneLeavesTheTextAlone()
{
    // GIVEN a button that shows another text than its full one
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(QStringLiteral("A"));
    button.setText(LongText);
    const QString shown = button.text();

    // WHEN it is turned, and back, and not painted between
    for (const bool on : {true, false}) {
        button.isOpenRotation(on);
        button.setRotationDirection(!on);

        // THEN it still shows that, for its text is the next paint's to change
        QCOMPARE(button.text(), shown);
        QCOMPARE(button.toolTip(), LongText);
    }
}

void tst_TarnPushButton::turnedButtonGoesBackToItsFullText()
{
    TarnPushButton button;
    button.resize(Narrow);
    button.setBtnText(QStringLiteral("A"));
    button.setText(LongText);

    button.isOpenRotation(true);
    picture(&button);

    QCOMPARE(button.text(), QStringLiteral("A"));
    QVERIFY(button.toolTip().isEmpty());
}

void tst_TarnPushButton::buttonNotTurnedLooksLikeAPushButton()
{
    TarnPushButton button;
    QPushButton plain;
    plain.setText(QStringLiteral("&Start"));
    for (QPushButton *each : {static_cast<QPushButton *>(&button), &plain})
        each->resize(120, 60);
    button.setBtnText(QStringLiteral("&Start"));

    QCOMPARE(picture(&button), picture(&plain));
    QCOMPARE(button.shortcut(), plain.shortcut());
}

void tst_TarnPushButton::turnedButtonLooksLikeThePlainSteps_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("a short text") << "Start"
                                  << "" << true;
    QTest::newRow("a long text") << LongText << "" << true;
    QTest::newRow("no text") << ""
                             << "" << true;
    QTest::newRow("an ampersand") << "&Start"
                                  << "" << true;
    QTest::newRow("two lines") << "Start\nnow"
                               << "" << true;
    QTest::newRow("disabled") << "Start"
                              << "" << false;
    QTest::newRow("a style sheet") << "Start"
                                   << "QPushButton { background: #204060; color: #f0c040; }" << true;
}

void tst_TarnPushButton::turnedButtonLooksLikeThePlainSteps()
{
    QFETCH(QString, text);
    QFETCH(QString, styleSheet);
    QFETCH(bool, isEnabled);
    QPixmap pixmap(12, 12);
    pixmap.fill(Qt::darkGreen);

    for (const bool isClockwise : {true, false}) {
        for (const bool hasIcon : {false, true}) {
            for (const QSize &size : {Narrow, QSize(28, 300), QSize(41, 33), QSize(300, 30)}) {
                // GIVEN a button and one that takes the steps plainly
                TarnPushButton button;
                PlainSteps plain(isClockwise);
                button.isOpenRotation(true);
                button.setRotationDirection(isClockwise);
                for (QPushButton *each :
                     {static_cast<QPushButton *>(&button), static_cast<QPushButton *>(&plain)}) {
                    each->resize(size);
                    each->setEnabled(isEnabled);
                    each->setStyleSheet(styleSheet);
                    each->setIcon(hasIcon ? QIcon(pixmap) : QIcon());
                }
                button.setBtnText(text);
                plain.setFullText(text);

                // THEN neither a picture nor a text tells them apart
                QCOMPARE(picture(&button), picture(&plain));
                QCOMPARE(button.text(), plain.text());
                QCOMPARE(button.toolTip(), plain.toolTip());
                QCOMPARE(button.shortcut(), plain.shortcut());
            }
        }
    }
}

void tst_TarnPushButton::textReadsInItsDirection_data()
{
    QTest::addColumn<bool>("isClockwise");
    QTest::newRow("clockwise, from top to bottom") << true;
    QTest::newRow("counter-clockwise, from bottom to top") << false;
}

void tst_TarnPushButton::textReadsInItsDirection()
{
    QFETCH(bool, isClockwise);

    // GIVEN a turned button whose text begins with a stroke and goes on with little ink
    TarnPushButton button;
    setFlatLook(&button);
    button.resize(40, 120);
    button.isOpenRotation(true);
    button.setRotationDirection(isClockwise);
    button.setBtnText(QStringLiteral("|.........."));

    // THEN the row with the most ink is at the text's beginning
    const QImage image = picture(&button);
    int darkestRow = -1;
    int mostInk = 0;
    for (int y = 0; y < image.height(); ++y) {
        int ink = 0;
        for (int x = 0; x < image.width(); ++x)
            ink += 255 - qGray(image.pixel(x, y));
        if (ink > mostInk) {
            mostInk = ink;
            darkestRow = y;
        }
    }
    QVERIFY(darkestRow >= 0);
    QCOMPARE(darkestRow < image.height() / 2, isClockwise);
}

void tst_TarnPushButton::clockwiseIsTheStart()
{
    TarnPushButton button;
    setFlatLook(&button);
    button.resize(40, 120);
    button.isOpenRotation(true);
    button.setBtnText(QStringLiteral("|.........."));
    const QImage start = picture(&button);
    button.setRotationDirection(false);
    QVERIFY(picture(&button) != start);
    button.setRotationDirection(true);
    QCOMPARE(picture(&button), start);
}

void tst_TarnPushButton::turnedTextIsCentred_data()
{
    QTest::addColumn<int>("height");
    QTest::newRow("high") << 200;
    QTest::newRow("odd height") << 121;
}

void tst_TarnPushButton::turnedTextIsCentred()
{
    QFETCH(int, height);

    // GIVEN a turned button with a text that looks the same from both ends
    TarnPushButton button;
    setFlatLook(&button);
    button.resize(40, height);
    button.isOpenRotation(true);
    button.setBtnText(QStringLiteral("HOOH"));

    // THEN there is as much room above as below, and the text is as long as it is wide when not turned
    const QPair<int, int> ink = inkOf(picture(&button));
    QVERIFY(ink.first >= 0);
    const int below = height - 1 - ink.second;
    QVERIFY2(qAbs(ink.first - below) <= 2,
             qPrintable(QStringLiteral("%1 above, %2 below").arg(ink.first).arg(below)));
    const int length = ink.second - ink.first + 1;
    QVERIFY(qAbs(length - button.fontMetrics().horizontalAdvance(QStringLiteral("HOOH"))) <= 4);
}

void tst_TarnPushButton::idleButtonIsNotPainted_data()
{
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<QString>("text");
    QTest::newRow("not turned") << false << "Start";
    QTest::newRow("turned, a text that fits") << true << "Start";
    QTest::newRow("turned, a text that is cut") << true << LongText;
    QTest::newRow("turned, no text") << true << "";
}

void tst_TarnPushButton::idleButtonIsNotPainted()
{
    QFETCH(bool, isTurned);
    QFETCH(QString, text);

    // GIVEN a button in a layout on the screen
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *button = new CountingButton;
    button->setMinimumHeight(60);
    layout->addWidget(button);
    button->isOpenRotation(isTurned);
    button->setBtnText(text);
    window.show();
    QTRY_VERIFY(button->paints > 0);

    // WHEN all has been dealt with that the first paint and a resize brought about
    window.resize(200, 300);
    for (int round = 0; round < 10; ++round)
        QApplication::processEvents();
    const int settled = button->paints;

    // THEN nothing paints it any more, and one request is one paint
    for (int round = 0; round < 100; ++round)
        QApplication::processEvents();
    QCOMPARE(button->paints, settled);
    button->update();
    for (int round = 0; round < 100; ++round)
        QApplication::processEvents();
    QCOMPARE(button->paints, settled + 1);
}

using Setter = void (*)(TarnPushButton *);
Q_DECLARE_METATYPE(Setter)

// Whoever listens to changes of tool tips would be called at every paint, and might ask for the next.
void tst_TarnPushButton::paintingLeavesTheToolTipAlone()
{
    CountingButton button;
    button.resize(Narrow);
    button.isOpenRotation(true);
    button.setBtnText(LongText);
    button.show();
    QTRY_VERIFY(button.paints > 0);
    QCOMPARE(button.toolTip(), LongText);
    const int before = button.toolTipChanges;
    QVERIFY(before > 0);

    button.repaint();

    QCOMPARE(button.toolTipChanges, before);
}

void tst_TarnPushButton::everySetterAsksForAPaint_data()
{
    QTest::addColumn<Setter>("set");
    QTest::newRow("isOpenRotation") << Setter([](TarnPushButton *button) { button->isOpenRotation(true); });
    QTest::newRow("setRotationDirection")
        << Setter([](TarnPushButton *button) { button->setRotationDirection(false); });
    QTest::newRow("setBtnText") << Setter(
        [](TarnPushButton *button) { button->setBtnText(QStringLiteral("A")); });
}

void tst_TarnPushButton::everySetterAsksForAPaint()
{
    QFETCH(Setter, set);

    // GIVEN a button on the screen that already is as it is to be set
    CountingButton button;
    button.resize(Narrow);
    set(&button);
    button.show();
    QTRY_VERIFY(button.paints > 0);
    for (int round = 0; round < 10; ++round)
        QApplication::processEvents();
    const int before = button.paints;

    // WHEN it is set once more
    set(&button);

    // THEN it is painted once more
    QTRY_COMPARE(button.paints, before + 1);
}

QTEST_MAIN(tst_TarnPushButton)

#include "tst_tarnpushbutton.moc"
