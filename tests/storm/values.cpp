// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "values.h"

#include "stage.h"

#include <QAction>
#include <QCheckBox>
#include <QCursor>
#include <QDate>
#include <QDateTime>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPalette>
#include <QPushButton>
#include <QRect>
#include <QRegion>
#include <QUrl>
#include <limits>

namespace Tarn::Storm {

namespace {

constexpr int LargestSize = 1600; // larger ones cost seconds to paint and reach nothing new

QString longText(Dice &dice)
{
    const QString unit = dice.pick({QStringLiteral("m"), QStringLiteral("ab cd "), QStringLiteral("\n"),
                                    QStringLiteral("<b>x</b> "), QStringLiteral("&"), QStringLiteral("字")});
    return unit.repeated(dice.between(100, 3000) / unit.size());
}

QString randomText(Dice &dice)
{
    QString text;
    for (int left = dice.below(12); left > 0; --left)
        text += QChar(ushort(dice.below(0xd800))); // no surrogates: those that stand alone are no text
    return text;
}

} // namespace

int drawNumber(Dice &dice)
{
    switch (dice.below(8)) {
    case 0:
        return -1;
    case 1:
        return dice.pick({std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1000, 65536,
                          16777215, 16777216});
    case 2:
        return dice.between(-300, 3000);
    default:
        return dice.below(6);
    }
}

QString drawText(Dice &dice)
{
    switch (dice.below(12)) {
    case 0:
        return QString();
    case 1:
        return longText(dice);
    case 2:
        return randomText(dice);
    case 3:
        return drawAddress(dice);
    default:
        return dice.pick({QStringLiteral("OK"), QStringLiteral("&Save && go"), QStringLiteral("two\nlines"),
                          QStringLiteral("<b>bold</b><img src='nothing'>"), QStringLiteral("Größe"),
                          QStringLiteral("你好，世界"), QStringLiteral("שלום"), QStringLiteral("مرحبا"),
                          QStringLiteral("नमस्ते"), QStringLiteral("สวัสดี"),
                          QStringLiteral("👩‍👩‍👧 e\u0301"), QStringLiteral("%1 %s %n"),
                          QStringLiteral("\t \u00a0 \u200f"), QStringLiteral("255"),
                          QStringLiteral("a/b\\c:*?")});
    }
}

QString drawAddress(Dice &dice)
{
    if (dice.oneIn(4))
        return dice.pick({QStringLiteral("1.2.3"), QStringLiteral("256.1.1.1"), QStringLiteral("::1"),
                          QStringLiteral("0x10.1.1.1"), QStringLiteral("224.0.0.1"),
                          QStringLiteral(" 1.2.3.4"), QStringLiteral("..."), QStringLiteral("1..2.3"),
                          QStringLiteral("001.002.003.004")});
    return QStringLiteral("%1.%2.%3.%4")
        .arg(dice.below(256))
        .arg(dice.below(256))
        .arg(dice.below(256))
        .arg(dice.below(256));
}

QString drawStyleSheet(Dice &dice)
{
    return dice.pick(
        {QString(), QStringLiteral("* { font-size: 20px; }"),
         QStringLiteral("* { border: 3px solid red; padding: 5px; margin: 2px; }"),
         QStringLiteral("QWidget { background: transparent; color: #345; }"),
         QStringLiteral("QPushButton { min-width: 300px; } QPushButton:hover { border: none; }"),
         QStringLiteral("QToolButton { qproperty-iconSize: 40px 40px; width: 60px; }"),
         QStringLiteral("QLineEdit { border-image: none; min-height: 50px; }"),
         QStringLiteral("QTabBar::tab { width: 5px; height: 90px; }"),
         QStringLiteral("QTabBar::tab:selected { margin: -9px; } QTabBar::close-button { width: 0; }"),
         QStringLiteral("QLabel { qproperty-wordWrap: true; max-width: 10px; }"),
         QStringLiteral("QFrame { border-radius: 12px; border: 1px dashed; }"),
         QStringLiteral("QDialogButtonBox { button-layout: 3; }"),
         QStringLiteral("Tarn--Widgets--TarnTabBar { background: qlineargradient(x1:0, x2:1, "
                        "stop:0 red, stop:1 blue); }")});
}

QSize drawSize(Dice &dice)
{
    if (dice.oneIn(6))
        return dice.pick({QSize(), QSize(0, 0), QSize(-5, 20), QSize(1, 1), QSize(LargestSize, 3)});
    return {dice.below(dice.oneIn(4) ? LargestSize : 300), dice.below(dice.oneIn(4) ? LargestSize : 300)};
}

QColor drawColor(Dice &dice)
{
    switch (dice.below(5)) {
    case 0:
        return QColor();
    case 1:
        return QColor::fromHsv(dice.below(360), dice.below(256), dice.below(256), dice.below(256));
    case 2:
        return QColor::fromCmyk(dice.below(256), dice.below(256), dice.below(256), dice.below(256));
    default:
        return QColor::fromRgb(QRgb(dice.next() & 0xffffffff));
    }
}

QPixmap drawPixmap(Dice &dice)
{
    if (dice.oneIn(3))
        return QPixmap();
    QPixmap pixmap(dice.between(1, 64), dice.between(1, 64));
    pixmap.fill(drawColor(dice));
    return pixmap;
}

QFont drawFont(Dice &dice)
{
    QFont font;
    font.setPixelSize(dice.pick({1, 8, 12, 14, 20, 60}));
    font.setBold(dice.oneIn(3));
    font.setItalic(dice.oneIn(3));
    return font;
}

QWidget *drawWidget(Source source)
{
    QWidget *parent = source.stage.nursery();
    QWidget *widget = nullptr;
    switch (source.dice.below(6)) {
    case 0:
        return nullptr;
    case 1:
        widget = new QLabel(drawText(source.dice), parent);
        break;
    case 2:
        widget = new QLineEdit(drawText(source.dice), parent);
        break;
    case 3:
        widget = new QPushButton(drawText(source.dice), parent);
        break;
    default:
        widget = new QWidget(parent);
        break;
    }
    source.stage.own(widget);
    return widget;
}

QAction *drawAction(Source source)
{
    if (source.dice.oneIn(6))
        return nullptr;
    auto *action = new QAction(draw<QIcon>(source), drawText(source.dice), source.stage.nursery());
    action->setCheckable(source.dice.oneIn(2));
    source.stage.own(action);
    return action;
}

QVariant drawVariant(int type, Source source)
{
    Dice &dice = source.dice;
    if (type == qMetaTypeId<QWidget *>())
        return QVariant::fromValue(drawWidget(source));
    switch (type) {
    case QMetaType::Bool:
        return dice.oneIn(2);
    case QMetaType::Int:
        return drawNumber(dice);
    case QMetaType::Double:
        return dice.pick({0.0, 1.0, -1.0, 0.5, 1e9});
    case QMetaType::QString:
        return drawText(dice);
    case QMetaType::QSize:
        return drawSize(dice);
    case QMetaType::QPoint:
        return QPoint(dice.between(-200, 1000), dice.between(-200, 800));
    case QMetaType::QRect:
        return QRect(QPoint(dice.between(-200, 1000), dice.between(-200, 800)), drawSize(dice));
    case QMetaType::QColor:
        return drawColor(dice);
    case QMetaType::QFont:
        return drawFont(dice);
    case QMetaType::QIcon:
        return draw<QIcon>(source);
    case QMetaType::QPixmap:
        return drawPixmap(dice);
    case QMetaType::QPalette:
        return QPalette(drawColor(dice));
    case QMetaType::QCursor:
        return QCursor(Qt::CursorShape(dice.below(Qt::LastCursor + 1)));
    case QMetaType::QKeySequence:
        return QKeySequence(Qt::CTRL + Qt::Key_A + dice.below(26));
    case QMetaType::QLocale:
        return QLocale(QLocale::Language(dice.between(2, 120)));
    default:
        return {};
    }
}

} // namespace Tarn::Storm
