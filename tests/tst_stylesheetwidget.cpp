// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QImage>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <optional>
#include <tarnwidgets/stylesheetwidget.h>

using Tarn::Widgets::StyleSheetWidget;

namespace {

// A widget class of one's own that does nothing for its style sheet.
class PlainPanel : public QWidget
{
    Q_OBJECT
};

class DerivedPanel : public StyleSheetWidget
{
    Q_OBJECT

public:
    using StyleSheetWidget::StyleSheetWidget;
};

// Keeps what it was last asked to draw for one widget.
class RecordingStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit RecordingStyle(const QWidget *target)
        : m_target(target)
    {
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (widget != m_target)
            return;
        elements.append(element);
        state = option->state;
        rect = option->rect;
        direction = option->direction;
        palette = option->palette;
        painted = painter->isActive();
    }

    mutable QVector<PrimitiveElement> elements;
    mutable QStyle::State state;
    mutable QRect rect;
    mutable Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    mutable QPalette palette;
    mutable bool painted = false;

private:
    const QWidget *m_target;
};

QImage rendered(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QImage filled(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

const QColor Red(0xc0, 0x20, 0x40);
const QColor Blue(0x20, 0x40, 0xc0);

} // namespace

class tst_StyleSheetWidget : public QObject
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

    void widgetIsAPlainWidgetOfItsParent();
    void windowHasTheFlagsOfAPlainWidget();
    void paintAsksTheStyleForTheWidgetPrimitiveOnly();
    void styleLearnsTheStateOfTheWidget_data();
    void styleLearnsTheStateOfTheWidget();
    void nothingIsPaintedWithoutARule();
    void backgroundRuleShows_data();
    void backgroundRuleShows();
    void backgroundRuleShowsOnASubclass();
    void borderRuleShows();
    void roundedCornerStaysClear();
    void borderImageRuleShows();
    void ruleForAStateFollowsTheState();
    void childrenStayAboveTheBackground();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_StyleSheetWidget::widgetIsAPlainWidgetOfItsParent()
{
    // GIVEN a page
    QWidget page;

    // WHEN the widget is made as its child
    const auto *panel = new StyleSheetWidget(&page);

    // THEN it is no window, and adds no signals, slots or properties to QWidget
    QCOMPARE(panel->parentWidget(), &page);
    QVERIFY(!panel->isWindow());
    QCOMPARE(panel->windowFlags(), QWidget(&page).windowFlags());
    QCOMPARE(panel->metaObject()->className(), "Tarn::Widgets::StyleSheetWidget");
    QCOMPARE(panel->metaObject()->superClass(), &QWidget::staticMetaObject);
    QCOMPARE(panel->metaObject()->methodCount(), QWidget::staticMetaObject.methodCount());
    QCOMPARE(panel->metaObject()->propertyCount(), QWidget::staticMetaObject.propertyCount());
    QVERIFY(panel->dynamicPropertyNames().isEmpty());
}

void tst_StyleSheetWidget::windowHasTheFlagsOfAPlainWidget()
{
    const StyleSheetWidget panel(nullptr);
    QVERIFY(panel.isWindow());
    QCOMPARE(panel.windowFlags(), QWidget().windowFlags());
}

void tst_StyleSheetWidget::paintAsksTheStyleForTheWidgetPrimitiveOnly()
{
    // GIVEN a widget whose style keeps account
    StyleSheetWidget panel;
    RecordingStyle style(&panel);
    panel.setStyle(&style);
    panel.resize(60, 40);
    QVERIFY(style.elements.isEmpty());

    // WHEN the widget is painted once
    rendered(&panel);

    // THEN the style drew one primitive, through a painter that was open
    QCOMPARE(style.elements, QVector<QStyle::PrimitiveElement>({QStyle::PE_Widget}));
    QVERIFY(style.painted);
}

void tst_StyleSheetWidget::styleLearnsTheStateOfTheWidget_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("enabled, from the left") << true << Qt::LeftToRight;
    QTest::newRow("enabled, from the right") << true << Qt::RightToLeft;
    QTest::newRow("disabled, from the left") << false << Qt::LeftToRight;
}

void tst_StyleSheetWidget::styleLearnsTheStateOfTheWidget()
{
    QFETCH(bool, enabled);
    QFETCH(Qt::LayoutDirection, direction);

    // GIVEN a widget in that state, with a palette of its own
    StyleSheetWidget panel;
    RecordingStyle style(&panel);
    panel.setStyle(&style);
    panel.setEnabled(enabled);
    panel.setLayoutDirection(direction);
    QPalette palette = panel.palette();
    palette.setColor(QPalette::Window, Red);
    panel.setPalette(palette);
    panel.resize(60, 40);

    // WHEN the widget is painted
    rendered(&panel);

    // THEN the style's option was filled from it
    QCOMPARE(style.rect, QRect(0, 0, 60, 40));
    QCOMPARE(style.direction, direction);
    QCOMPARE(style.state.testFlag(QStyle::State_Enabled), enabled);
    QCOMPARE(style.palette.color(QPalette::Window), Red);
}

void tst_StyleSheetWidget::nothingIsPaintedWithoutARule()
{
    StyleSheetWidget panel;
    panel.resize(60, 40);
    QCOMPARE(rendered(&panel), filled(panel.size(), Qt::transparent));
}

void tst_StyleSheetWidget::backgroundRuleShows_data()
{
    QTest::addColumn<QString>("selector");
    QTest::newRow("by class") << QStringLiteral("Tarn--Widgets--StyleSheetWidget");
    QTest::newRow("by base class") << QStringLiteral("QWidget");
    QTest::newRow("by object name") << QStringLiteral("#statusPanel");
    QTest::newRow("by dynamic property") << QStringLiteral("*[isForeground=\"true\"]");
}

void tst_StyleSheetWidget::backgroundRuleShows()
{
    QFETCH(QString, selector);
    const QString rule = selector + QStringLiteral(" { background: #c02040; }");
    const auto prepare = [&](QWidget &widget) {
        widget.setObjectName(QStringLiteral("statusPanel"));
        widget.setProperty("isForeground", true);
        widget.setStyleSheet(rule);
        widget.resize(60, 40);
    };

    // GIVEN that a widget class of one's own ignores the rule
    PlainPanel plain;
    prepare(plain);
    QCOMPARE(rendered(&plain), filled(plain.size(), Qt::transparent));

    // WHEN the rule stands on a StyleSheetWidget
    StyleSheetWidget panel;
    prepare(panel);

    // THEN it covers all of the widget
    QCOMPARE(rendered(&panel), filled(panel.size(), Red));
}

void tst_StyleSheetWidget::backgroundRuleShowsOnASubclass()
{
    DerivedPanel panel;
    panel.setStyleSheet(QStringLiteral("Tarn--Widgets--StyleSheetWidget { background: #c02040; }"));
    panel.resize(60, 40);
    QCOMPARE(rendered(&panel), filled(panel.size(), Red));
}

void tst_StyleSheetWidget::borderRuleShows()
{
    // GIVEN a rule with a border of three pixels
    StyleSheetWidget panel;
    panel.setStyleSheet(QStringLiteral("background: #c02040; border: 3px solid #2040c0;"));
    panel.resize(60, 40);

    // WHEN the widget is painted
    const QImage image = rendered(&panel);

    // THEN three pixels on each side have the border's colour and the rest that of the background
    QImage expected = filled(panel.size(), Blue);
    QPainter(&expected).fillRect(QRect(3, 3, 54, 34), Red);
    QCOMPARE(image, expected);
}

void tst_StyleSheetWidget::roundedCornerStaysClear()
{
    StyleSheetWidget panel;
    panel.setStyleSheet(QStringLiteral("background: #c02040; border-radius: 10px;"));
    panel.resize(60, 40);
    const QImage image = rendered(&panel);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(59, 39), QColor(Qt::transparent));
    QCOMPARE(image.pixelColor(30, 20), Red);
}

void tst_StyleSheetWidget::borderImageRuleShows()
{
    // GIVEN a picture file of one colour
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("ground.png"));
    QVERIFY(filled(QSize(8, 8), Blue).save(path));

    // WHEN it is the border image of the widget
    StyleSheetWidget panel;
    panel.setStyleSheet(QStringLiteral("border-image: url(%1);").arg(path));
    panel.resize(60, 40);

    // THEN it is stretched over all of the widget
    QCOMPARE(rendered(&panel), filled(panel.size(), Blue));
}

void tst_StyleSheetWidget::ruleForAStateFollowsTheState()
{
    // GIVEN a rule for the disabled state besides the general one
    StyleSheetWidget panel;
    panel.setStyleSheet(QStringLiteral("Tarn--Widgets--StyleSheetWidget { background: #c02040; }"
                                       "Tarn--Widgets--StyleSheetWidget:disabled { background: #2040c0; }"));
    panel.resize(60, 40);
    QCOMPARE(rendered(&panel), filled(panel.size(), Red));

    // WHEN the widget is disabled
    panel.setEnabled(false);

    // THEN the other rule paints it
    QCOMPARE(rendered(&panel), filled(panel.size(), Blue));
}

void tst_StyleSheetWidget::childrenStayAboveTheBackground()
{
    // GIVEN a panel with a background and a child with another
    StyleSheetWidget panel;
    panel.setStyleSheet(QStringLiteral("#outer { background: #c02040; } #inner { background: #2040c0; }"));
    panel.setObjectName(QStringLiteral("outer"));
    panel.resize(60, 40);
    auto *inner = new StyleSheetWidget(&panel);
    inner->setObjectName(QStringLiteral("inner"));
    inner->setGeometry(20, 10, 20, 20);

    // WHEN both are painted
    QImage image = filled(panel.size(), Qt::transparent);
    panel.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);

    // THEN the child covers its part of the panel
    QImage expected = filled(panel.size(), Red);
    QPainter(&expected).fillRect(inner->geometry(), Blue);
    QCOMPARE(image, expected);
}

QTEST_MAIN(tst_StyleSheetWidget)

#include "tst_stylesheetwidget.moc"
