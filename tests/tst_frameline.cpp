// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QBoxLayout>
#include <QFrame>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <tarnwidgets/frameline.h>

using Tarn::Widgets::FrameLine;

namespace {

// What is alive of all that was made by new, counted below in place of the standard operators.
std::atomic<qint64> s_liveAllocations{0};

using CreateLine = QFrame *(*)(const QString &, QWidget *, const uint &, const uint &, const uint &);

const QString Selector = QStringLiteral("isPageSeparator");

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

} // namespace

Q_DECLARE_METATYPE(CreateLine)

void *operator new(std::size_t size)
{
    void *memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr)
        throw std::bad_alloc();
    ++s_liveAllocations;
    return memory;
}

void operator delete(void *memory) noexcept
{
    if (memory == nullptr)
        return;
    --s_liveAllocations;
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    operator delete(memory);
}

class tst_FrameLine : public QObject
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

    void factoryIsAPlainObjectOfItsParent();
    void lineBelongsToTheGivenParent_data();
    void lineBelongsToTheGivenParent();
    void lineWithoutParentBelongsToTheCaller_data();
    void lineWithoutParentBelongsToTheCaller();
    void lineIsAPlainQFrame_data();
    void lineIsAPlainQFrame();
    void horizontalLineHasNoShape();
    void verticalLineHasTheVLineShape();
    void horizontalLineIsFixedInHeightAndTakesTheWidth_data();
    void horizontalLineIsFixedInHeightAndTakesTheWidth();
    void verticalLineIsFixedInWidthAndTakesTheHeight_data();
    void verticalLineIsFixedInWidthAndTakesTheHeight();
    void propertyNameIsUsedAsPassed_data();
    void propertyNameIsUsedAsPassed();
    void marginsHaveNoEffect_data();
    void marginsHaveNoEffect();
    void noLayoutStaysBehind_data();
    void noLayoutStaysBehind();
    void nothingIsLeaked_data();
    void nothingIsLeaked();
    void horizontalLineIsInvisibleWithoutARule();
    void verticalLineShowsWithoutARule();
    void ruleForTheSelectorPaintsTheLine_data();
    void ruleForTheSelectorPaintsTheLine();
    void ruleForAnotherSelectorDoesNotPaintTheLine();

private:
    static void addBothDirections();

    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_FrameLine::addBothDirections()
{
    QTest::addColumn<CreateLine>("createLine");
    QTest::newRow("horizontal") << &FrameLine::createHorizontalLine;
    QTest::newRow("vertical") << &FrameLine::createVerticalLine;
}

void tst_FrameLine::factoryIsAPlainObjectOfItsParent()
{
    // GIVEN a parent
    QObject parent;

    // WHEN the factory is made as its child
    const auto *factory = new FrameLine(&parent);

    // THEN it is that child, and adds no signals, slots or properties to QObject
    QCOMPARE(factory->parent(), &parent);
    QCOMPARE(factory->metaObject()->className(), "Tarn::Widgets::FrameLine");
    QCOMPARE(factory->metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(factory->metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(factory->metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_FrameLine::lineBelongsToTheGivenParent_data()
{
    addBothDirections();
}

void tst_FrameLine::lineBelongsToTheGivenParent()
{
    QFETCH(CreateLine, createLine);

    // GIVEN a line on a page
    auto page = std::make_unique<QWidget>();
    const QPointer<QFrame> line = createLine(Selector, page.get(), 1, 0, 0);
    QVERIFY(line);
    QCOMPARE(line->parentWidget(), page.get());
    QVERIFY(!line->isWindow());

    // WHEN the page goes
    page.reset();

    // THEN the line goes with it
    QVERIFY(line.isNull());
}

void tst_FrameLine::lineWithoutParentBelongsToTheCaller_data()
{
    addBothDirections();
}

void tst_FrameLine::lineWithoutParentBelongsToTheCaller()
{
    QFETCH(CreateLine, createLine);

    // WHEN a line is made without parent
    const std::unique_ptr<QFrame> line(createLine(Selector, nullptr, 3, 4, 5));

    // THEN it stands alone, not shown, and can be put into a layout later
    QVERIFY(line);
    QVERIFY(!line->parent());
    QVERIFY(!line->isVisible());
    QCOMPARE(line->property("isPageSeparator"), QVariant(true));
}

void tst_FrameLine::lineIsAPlainQFrame_data()
{
    addBothDirections();
}

void tst_FrameLine::lineIsAPlainQFrame()
{
    QFETCH(CreateLine, createLine);

    // WHEN a line is made
    QWidget page;
    const QFrame *line = createLine(Selector, &page, 3, 0, 0);

    // THEN it is a QFrame with a plain shadow, as wide as asked, with one dynamic property
    QCOMPARE(line->metaObject(), &QFrame::staticMetaObject);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    QCOMPARE(line->lineWidth(), 3);
    QCOMPARE(line->dynamicPropertyNames(), QList<QByteArray>({QByteArrayLiteral("isPageSeparator")}));
    QVERIFY(line->objectName().isEmpty());
    QVERIFY(line->styleSheet().isEmpty());
}

void tst_FrameLine::horizontalLineHasNoShape()
{
    QWidget page;
    QCOMPARE(FrameLine::createHorizontalLine(Selector, &page, 2, 0, 0)->frameShape(), QFrame::NoFrame);
}

void tst_FrameLine::verticalLineHasTheVLineShape()
{
    QWidget page;
    QCOMPARE(FrameLine::createVerticalLine(Selector, &page, 2, 0, 0)->frameShape(), QFrame::VLine);
}

void tst_FrameLine::horizontalLineIsFixedInHeightAndTakesTheWidth_data()
{
    QTest::addColumn<uint>("lineWidth");
    QTest::newRow("no height at all") << 0U;
    QTest::newRow("one pixel") << 1U;
    QTest::newRow("two pixels") << 2U;
    QTest::newRow("a bar") << 17U;
}

void tst_FrameLine::horizontalLineIsFixedInHeightAndTakesTheWidth()
{
    QFETCH(uint, lineWidth);

    // GIVEN a page with a line between two fields, which leaves room to grow in both directions
    QWidget page;
    auto *layout = new QVBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QWidget);
    QFrame *line = FrameLine::createHorizontalLine(Selector, &page, lineWidth, 0, 0);
    layout->addWidget(line);
    layout->addWidget(new QWidget);
    page.resize(301, 200);

    // WHEN the page is shown
    page.show();

    // THEN the line keeps its height and is as wide as the page
    QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(line->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line->minimumHeight(), int(lineWidth));
    QCOMPARE(line->maximumHeight(), int(lineWidth));
    QCOMPARE(line->lineWidth(), int(lineWidth));
    QCOMPARE(line->size(), QSize(301, int(lineWidth)));
}

void tst_FrameLine::verticalLineIsFixedInWidthAndTakesTheHeight_data()
{
    QTest::addColumn<uint>("lineWidth");
    QTest::newRow("no width at all") << 0U;
    QTest::newRow("one pixel") << 1U;
    QTest::newRow("two pixels") << 2U;
    QTest::newRow("a bar") << 17U;
}

void tst_FrameLine::verticalLineIsFixedInWidthAndTakesTheHeight()
{
    QFETCH(uint, lineWidth);

    // GIVEN a page with a line between two fields
    QWidget page;
    auto *layout = new QHBoxLayout(&page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QWidget);
    QFrame *line = FrameLine::createVerticalLine(Selector, &page, lineWidth, 0, 0);
    layout->addWidget(line);
    layout->addWidget(new QWidget);
    page.resize(300, 201);

    // WHEN the page is shown
    page.show();

    // THEN the line keeps its width and is as high as the page
    QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(line->minimumWidth(), int(lineWidth));
    QCOMPARE(line->maximumWidth(), int(lineWidth));
    QCOMPARE(line->lineWidth(), int(lineWidth));
    QCOMPARE(line->size(), QSize(int(lineWidth), 201));
}

void tst_FrameLine::propertyNameIsUsedAsPassed_data()
{
    QTest::addColumn<CreateLine>("createLine");
    QTest::addColumn<QString>("name");
    const struct
    {
        const char *direction;
        CreateLine createLine;
    } directions[] = {{"horizontal", &FrameLine::createHorizontalLine},
                      {"vertical", &FrameLine::createVerticalLine}};
    for (const auto &[direction, createLine] : directions) {
        QTest::addRow("%s, camel case", direction) << createLine << QStringLiteral("isBackgroundSeparator");
        QTest::addRow("%s, blanks", direction) << createLine << QStringLiteral(" two words ");
        QTest::addRow("%s, umlaut", direction) << createLine << QStringLiteral("fu\u00dfzeile");
        QTest::addRow("%s, ideographs", direction) << createLine << QStringLiteral("\u5206\u9694\u7ebf");
        QTest::addRow("%s, outside the basic plane", direction) << createLine << QStringLiteral("\U0001F5D7");
    }
}

void tst_FrameLine::propertyNameIsUsedAsPassed()
{
    QFETCH(CreateLine, createLine);
    QFETCH(QString, name);

    // WHEN a line is made with that name
    QWidget page;
    const QFrame *line = createLine(name, &page, 1, 0, 0);

    // THEN exactly that property, in UTF-8, holds the boolean true
    QCOMPARE(line->dynamicPropertyNames(), QList<QByteArray>({name.toUtf8()}));
    const QVariant value = line->property(name.toUtf8().constData());
    QCOMPARE(value.type(), QVariant::Bool);
    QVERIFY(value.toBool());
}

void tst_FrameLine::marginsHaveNoEffect_data()
{
    addBothDirections();
}

void tst_FrameLine::marginsHaveNoEffect()
{
    QFETCH(CreateLine, createLine);

    // GIVEN two lines, one with margins in both directions, on pages alike
    QWidget plainPage;
    QWidget marginPage;
    QFrame *plain = createLine(Selector, &plainPage, 2, 0, 0);
    QFrame *withMargins = createLine(Selector, &marginPage, 2, 7, 13);
    for (QWidget *page : {&plainPage, &marginPage}) {
        page->resize(300, 200);
        auto *layout = new QVBoxLayout(page);
        layout->addWidget(page == &plainPage ? plain : withMargins);
    }

    // WHEN both pages are shown
    plainPage.show();
    marginPage.show();

    // THEN nothing tells the lines apart
    QCOMPARE(withMargins->geometry(), plain->geometry());
    QCOMPARE(withMargins->contentsMargins(), plain->contentsMargins());
    QCOMPARE(withMargins->minimumSize(), plain->minimumSize());
    QCOMPARE(withMargins->maximumSize(), plain->maximumSize());
}

void tst_FrameLine::noLayoutStaysBehind_data()
{
    addBothDirections();
}

void tst_FrameLine::noLayoutStaysBehind()
{
    QFETCH(CreateLine, createLine);

    // WHEN a line with margins is made
    QWidget page;
    const QFrame *line = createLine(Selector, &page, 1, 4, 6);

    // THEN neither the page nor the line got a layout: the caller is free to set one
    QVERIFY(!page.layout());
    QVERIFY(page.findChildren<QLayout *>().isEmpty());
    QVERIFY(!line->layout());
    QVERIFY(line->children().isEmpty());
}

void tst_FrameLine::nothingIsLeaked_data()
{
    addBothDirections();
}

void tst_FrameLine::nothingIsLeaked()
{
    QFETCH(CreateLine, createLine);

    // GIVEN a count of allocations that sees what the library makes, and what Qt makes once is made
    QWidget page;
    const qint64 before = s_liveAllocations;
    QFrame *first = createLine(Selector, &page, 1, 4, 6);
    QVERIFY(s_liveAllocations > before);
    delete first;
    const qint64 settled = s_liveAllocations;

    // WHEN a hundred lines are made and deleted
    for (int i = 0; i < 100; ++i)
        delete createLine(Selector, &page, 1, 4, 6);

    // THEN nothing of them is left
    QCOMPARE(qint64(s_liveAllocations), settled);
}

void tst_FrameLine::horizontalLineIsInvisibleWithoutARule()
{
    // GIVEN a shown line, four pixels high
    QWidget page;
    QFrame *line = FrameLine::createHorizontalLine(Selector, &page, 4, 0, 0);
    line->resize(40, 4);
    page.show();
    QVERIFY(line->isVisible());

    // THEN it leaves every pixel as it was
    QCOMPARE(rendered(line), filled(line->size(), Qt::transparent));
}

void tst_FrameLine::verticalLineShowsWithoutARule()
{
    // GIVEN a shown line, two pixels wide
    QWidget page;
    QFrame *line = FrameLine::createVerticalLine(Selector, &page, 2, 0, 0);
    line->resize(2, 40);
    page.show();
    QVERIFY(line->isVisible());

    // THEN it looks as a frame set up by hand does, and that is something to see
    QFrame byHand;
    byHand.setFrameStyle(int(QFrame::VLine) | int(QFrame::Plain));
    byHand.setLineWidth(2);
    byHand.resize(2, 40);
    const QImage expected = rendered(&byHand);
    QVERIFY(expected != filled(line->size(), Qt::transparent));
    QCOMPARE(rendered(line), expected);
}

void tst_FrameLine::ruleForTheSelectorPaintsTheLine_data()
{
    addBothDirections();
}

void tst_FrameLine::ruleForTheSelectorPaintsTheLine()
{
    QFETCH(CreateLine, createLine);

    // GIVEN a page whose style sheet has a rule for the selector
    QWidget page;
    page.setStyleSheet(
        QStringLiteral("QFrame[isPageSeparator=\"true\"] { background: #c02040; border: none; }"));
    page.resize(100, 100);
    page.show();

    // WHEN a line is added to the page on screen
    QFrame *line = createLine(Selector, &page, 3, 0, 0);
    line->resize(line->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding ? QSize(50, 3)
                                                                                 : QSize(3, 50));
    line->show();

    // THEN the rule paints all of it
    QCOMPARE(rendered(line), filled(line->size(), QColor(0xc0, 0x20, 0x40)));
}

void tst_FrameLine::ruleForAnotherSelectorDoesNotPaintTheLine()
{
    // GIVEN a page whose style sheet knows another selector only
    QWidget page;
    page.setStyleSheet(QStringLiteral("QFrame[isOtherSeparator=\"true\"] { background: #c02040; }"));
    page.resize(100, 100);

    // WHEN a line is shown on it
    QFrame *line = FrameLine::createHorizontalLine(Selector, &page, 3, 0, 0);
    line->resize(50, 3);
    page.show();

    // THEN the line stays invisible
    QCOMPARE(rendered(line), filled(line->size(), Qt::transparent));
}

QTEST_MAIN(tst_FrameLine)

#include "tst_frameline.moc"
