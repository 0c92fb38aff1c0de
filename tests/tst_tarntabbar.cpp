// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpacerItem>
#include <QStyle>
#include <QTest>
#include <QTextStream>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/tarntabbar.h>

using namespace Tarn::Test;
using Tarn::Widgets::TabBarRd;
using Tarn::Widgets::TarnTabBar;

namespace {

QIcon redIcon()
{
    static const QIcon icon = [] {
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        return QIcon(pixmap);
    }();
    return icon;
}

/* Something to be done alike to our bar and to Qt's. */
struct Operation
{
    const char *name = nullptr;
    std::function<void(TarnTabBar &)> ours;
    std::function<void(QTabBar &)> qts;
};

template <typename Function> Operation operation(const char *name, Function function)
{
    return {name, function, function};
}

const QVector<Operation> &operations()
{
    static const QVector<Operation> all = {
        operation("removeTab, the first", [](auto &bar) { bar.removeTab(0); }),
        operation("removeTab, the current", [](auto &bar) { bar.removeTab(bar.currentIndex()); }),
        operation("removeTab, none", [](auto &bar) { bar.removeTab(99); }),
        operation("moveTab forwards", [](auto &bar) { bar.moveTab(0, 2); }),
        operation("moveTab backwards", [](auto &bar) { bar.moveTab(3, 1); }),
        operation("moveTab, none", [](auto &bar) { bar.moveTab(-1, 1); }),
        operation("setTabEnabled off", [](auto &bar) { bar.setTabEnabled(1, false); }),
        operation("setTabEnabled on", [](auto &bar) { bar.setTabEnabled(1, true); }),
        operation("setTabText", [](auto &bar) { bar.setTabText(2, QStringLiteral("A longer text")); }),
        operation("setTabTextColor", [](auto &bar) { bar.setTabTextColor(1, Qt::blue); }),
        operation("setTabIcon", [](auto &bar) { bar.setTabIcon(0, redIcon()); }),
        operation("setElideMode", [](auto &bar) { bar.setElideMode(Qt::ElideMiddle); }),
        operation("setTabToolTip", [](auto &bar) { bar.setTabToolTip(1, QStringLiteral("A tip")); }),
        operation("setTabData", [](auto &bar) { bar.setTabData(1, 42); }),
        operation("setCurrentIndex", [](auto &bar) { bar.setCurrentIndex(1); }),
        operation("setCurrentIndex, none", [](auto &bar) { bar.setCurrentIndex(99); }),
        operation("setIconSize", [](auto &bar) { bar.setIconSize(QSize(24, 20)); }),
        operation("setTabsClosable", [](auto &bar) { bar.setTabsClosable(true); }),
        operation("setTabsClosable off", [](auto &bar) { bar.setTabsClosable(false); }),
        operation(
            "setTabButton",
            [](auto &bar) { bar.setTabButton(1, QTabBar::LeftSide, new QLabel(QStringLiteral("!"), &bar)); }),
        operation("setTabButton, null", [](auto &bar) { bar.setTabButton(1, QTabBar::LeftSide, nullptr); }),
        operation("setExpanding off", [](auto &bar) { bar.setExpanding(false); }),
        operation("setExpanding", [](auto &bar) { bar.setExpanding(true); }),
        operation("setAutoHide", [](auto &bar) { bar.setAutoHide(true); }),
        operation("setAutoHide off", [](auto &bar) { bar.setAutoHide(false); }),
        operation("setMovable", [](auto &bar) { bar.setMovable(true); }),
        operation("setMovable off", [](auto &bar) { bar.setMovable(false); }),
        operation("setUsesScrollButtons off", [](auto &bar) { bar.setUsesScrollButtons(false); }),
        operation("setUsesScrollButtons", [](auto &bar) { bar.setUsesScrollButtons(true); }),
    };
    return all;
}

const char *className(const QWidget *widget)
{
    return widget ? widget->metaObject()->className() : "none";
}

/* All that the bar tells about itself through the functions that both have. */
template <typename Bar> QString stateOf(const Bar &bar)
{
    QString state;
    QTextStream out(&state);
    const auto writeRect = [&out](const QRect &rect) {
        out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
    };
    out << "count " << bar.count() << " current " << bar.currentIndex() << " elide " << int(bar.elideMode())
        << " icon size " << bar.iconSize().width() << 'x' << bar.iconSize().height() << " closable "
        << bar.tabsClosable() << " expanding " << bar.expanding() << " hides " << bar.autoHide()
        << " movable " << bar.isMovable() << " scrolls " << bar.usesScrollButtons() << '\n';
    for (int index = -1; index <= bar.count(); ++index) {
        out << index << " enabled " << bar.isTabEnabled(index) << " text " << bar.tabText(index) << " colour "
            << bar.tabTextColor(index).name() << " icon " << bar.tabIcon(index).cacheKey() << " tip "
            << bar.tabToolTip(index) << " data " << bar.tabData(index).toString() << " left "
            << className(bar.tabButton(index, QTabBar::LeftSide)) << " right "
            << className(bar.tabButton(index, QTabBar::RightSide)) << " at ";
        writeRect(bar.tabRect(index));
        out << '\n';
    }
    for (int x = 0; x < 400; x += 20)
        out << bar.tabAt(QPoint(x, 10)) << ' ';
    return state;
}

/* Our bar and a plain one, set up alike, and what they have signalled. */
struct Pair
{
    Pair()
    {
        frame.getTabBar()->setMinimumSize(400, 40);
        frame.show();
        plain.setDrawBase(false);
        plain.resize(frame.getTabBar()->size());
        plain.show();
        record(&frame, &signalled[0]);
        record(&plain, &signalled[1]);
    }

    template <typename Bar> static void record(Bar *bar, QStringList *list)
    {
        QObject::connect(bar, &Bar::currentChanged, bar,
                         [list](int index) { list->append(QStringLiteral("current %1").arg(index)); });
        QObject::connect(bar, &Bar::tabCloseRequested, bar,
                         [list](int index) { list->append(QStringLiteral("close %1").arg(index)); });
    }

    void fill()
    {
        for (int index = 0; index < 4; ++index)
            insert(-1, QStringLiteral("Tab %1").arg(index));
    }

    /*! Into ours, and as ours does it into the plain one. */
    void insert(int index, const QString &text)
    {
        frame.insertTab(index, text);
        plain.insertTab(index, text);
        plain.setCurrentIndex(plain.count() - 1);
    }

    void apply(const Operation &operation)
    {
        operation.ours(frame);
        operation.qts(plain);
        plain.resize(frame.getTabBar()->size());
    }

    bool areAlike() const
    {
        return stateOf(frame) == stateOf(plain) && signalled[0] == signalled[1];
    }

    TarnTabBar frame{nullptr};
    QTabBar plain;
    QStringList signalled[2];
};

QHBoxLayout *areaOf(const TarnTabBar &frame, int place)
{
    return qobject_cast<QHBoxLayout *>(frame.layout()->itemAt(place)->layout());
}

enum Place { Left, Bar, Centre, Space, Right };

} // namespace

Q_DECLARE_METATYPE(Operation)

class tst_TarnTabBar : public QObject
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

    // The frame
    void barStandsBetweenTheAreas();
    void innerBarIsATabBarRd();
    void onlyTheTwoSignalsAreDeclared();
    void fixedSizeIsTheFrames();
    void widgetColourIsStored();
    void colourNames_data();
    void colourNames();

    // The areas
    void widgetsAreAddedToTheirArea_data();
    void widgetsAreAddedToTheirArea();
    void onlyOneCentreWidget();
    void deletedCentreWidgetMakesRoom();
    void nullWidgetsAreIgnored();
    void spacingIsTheAreas_data();
    void spacingIsTheAreas();
    void areasLieLeftBehindAndRight();
    void areasAreCentredOnDemand();

    // The bar
    void propertiesAreThoseOfQTabBar_data();
    void propertiesAreThoseOfQTabBar();
    void everyOperationDoesWhatQTabBarDoes_data();
    void everyOperationDoesWhatQTabBarDoes();
    void anyMixtureOfOperationsDoesWhatQTabBarDoes();
    void insertionMakesTheLastTabCurrent_data();
    void insertionMakesTheLastTabCurrent();
    void insertionTakesIcons();
    void clicksAreSignalled();
    void closeButtonsAreSignalled();
    void evenBarTakesTheFreeWidth_data();
    void evenBarTakesTheFreeWidth();
    void evenLeavesRoomForTheAreas();
    void evenBarGetsNarrowerAgain_data();
    void evenBarGetsNarrowerAgain();
    void normalLeavesABarThatWasNeverEven();
    void normalAfterEvenLeavesTheBarWide();
    void widthsArePassedOn();
    void negativeMaximumIsIgnoredAndMinimumPassedOn();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TarnTabBar::barStandsBetweenTheAreas()
{
    // GIVEN a new frame
    QWidget parent;
    const TarnTabBar frame(&parent);
    QCOMPARE(frame.parentWidget(), &parent);
    QVERIFY(!frame.isWindow());

    // THEN its row is left area, bar, centre area, space and right area, close together
    const auto *row = qobject_cast<QHBoxLayout *>(frame.layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 5);
    for (const Place place : {Left, Centre, Right}) {
        QVERIFY(areaOf(frame, place));
        QVERIFY(areaOf(frame, place)->isEmpty());
    }
    QCOMPARE(row->itemAt(Bar)->widget(), frame.getTabBar());
    const QSpacerItem *space = row->itemAt(Space)->spacerItem();
    QVERIFY(space);
    QCOMPARE(space->sizeHint(), QSize(0, 0));
    QCOMPARE(space->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void tst_TarnTabBar::innerBarIsATabBarRd()
{
    const TarnTabBar frame(nullptr);
    const auto *bar = qobject_cast<TabBarRd *>(frame.getTabBar());

    QVERIFY(bar);
    QCOMPARE(bar->parentWidget(), &frame);
    QVERIFY(!bar->drawBase());
    QCOMPARE(bar->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
    QCOMPARE(bar->getTabBarType(), TabBarRd::Normal);
    QCOMPARE(frame.getTabBarType(), TabBarRd::Normal);
    QCOMPARE(frame.getTabMinWidth(), 0);
    QCOMPARE(frame.getTabMaxWidth(), 0);
}

void tst_TarnTabBar::onlyTheTwoSignalsAreDeclared()
{
    const QMetaObject &meta = TarnTabBar::staticMetaObject;
    QCOMPARE(meta.className(), "Tarn::Widgets::TarnTabBar");
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QVERIFY(meta.indexOfSignal("currentChanged(int)") >= 0);
    QVERIFY(meta.indexOfSignal("tabCloseRequested(int)") >= 0);
    for (const char *slot : {"slot_currIndexChanged(int)", "slot_tabClosed(int)"}) {
        QVERIFY(meta.indexOfSlot(slot) >= 0);
        QCOMPARE(meta.method(meta.indexOfSlot(slot)).access(), QMetaMethod::Private);
    }
    QCOMPARE(meta.methodCount(), QFrame::staticMetaObject.methodCount() + 4);
}

void tst_TarnTabBar::fixedSizeIsTheFrames()
{
    TarnTabBar frame(nullptr);

    frame.setWidgetFixedSize(321, 45);

    QCOMPARE(frame.minimumSize(), QSize(321, 45));
    QCOMPARE(frame.maximumSize(), QSize(321, 45));
}

void tst_TarnTabBar::widgetColourIsStored()
{
    TarnTabBar frame(nullptr);
    QVERIFY(!frame.widgetColor().isValid());

    frame.setWidgetColor(Qt::darkCyan);

    QCOMPARE(frame.widgetColor(), QColor(Qt::darkCyan));
    QVERIFY(frame.styleSheet().isEmpty());
}

void tst_TarnTabBar::colourNames_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("name");
    QTest::newRow("white") << QColor(Qt::white) << "#ffffff";
    QTest::newRow("some colour") << QColor(0x12, 0xab, 0x34) << "#12ab34";
    QTest::newRow("translucent") << QColor(0x12, 0xab, 0x34, 0x80) << "#8012ab34";
    QTest::newRow("invalid") << QColor() << "#000000";
}

void tst_TarnTabBar::colourNames()
{
    QFETCH(QColor, colour);
    QFETCH(QString, name);
    QCOMPARE(TarnTabBar::fromColorToStr(colour), name);
}

using AddWidget = void (TarnTabBar::*)(QWidget *);
using SetSpacing = void (TarnTabBar::*)(int);
Q_DECLARE_METATYPE(AddWidget)
Q_DECLARE_METATYPE(SetSpacing)

void tst_TarnTabBar::widgetsAreAddedToTheirArea_data()
{
    QTest::addColumn<AddWidget>("add");
    QTest::addColumn<int>("place");
    QTest::newRow("left") << &TarnTabBar::addLeftWidget << int(Left);
    QTest::newRow("centre") << &TarnTabBar::addCenterWidget << int(Centre);
    QTest::newRow("right") << &TarnTabBar::addRightWidget << int(Right);
}

void tst_TarnTabBar::widgetsAreAddedToTheirArea()
{
    QFETCH(AddWidget, add);
    QFETCH(int, place);
    TarnTabBar frame(nullptr);
    auto *first = new QPushButton;
    auto *second = new QPushButton;

    (frame.*add)(first);
    (frame.*add)(second);
    const std::unique_ptr<QWidget> leftOver(second->parent() ? nullptr : second);

    // The areas at the sides take them one behind the other.
    const QHBoxLayout *area = areaOf(frame, place);
    QCOMPARE(area->count(), place == Centre ? 1 : 2);
    QCOMPARE(area->itemAt(0)->widget(), first);
    QCOMPARE(first->parentWidget(), &frame);
    for (int index = 0; index < area->count(); ++index)
        QCOMPARE(area->itemAt(index)->alignment(), Qt::AlignRight | Qt::AlignBottom);
    for (const Place other : {Left, Centre, Right}) {
        if (other != place)
            QVERIFY(areaOf(frame, other)->isEmpty());
    }
}

void tst_TarnTabBar::onlyOneCentreWidget()
{
    TarnTabBar frame(nullptr);
    auto *first = new QPushButton;
    QPushButton second;
    frame.addCenterWidget(first);

    frame.addCenterWidget(&second);

    QCOMPARE(areaOf(frame, Centre)->count(), 1);
    QCOMPARE(areaOf(frame, Centre)->itemAt(0)->widget(), first);
    QVERIFY(!second.parent());
    for (const QHBoxLayout *area : frame.findChildren<QHBoxLayout *>())
        QCOMPARE(area->indexOf(&second), -1);
}

void tst_TarnTabBar::deletedCentreWidgetMakesRoom()
{
    TarnTabBar frame(nullptr);
    auto *first = new QPushButton;
    auto *second = new QPushButton;
    frame.addCenterWidget(first);

    delete first;
    frame.addCenterWidget(second);

    QCOMPARE(areaOf(frame, Centre)->count(), 1);
    QCOMPARE(areaOf(frame, Centre)->itemAt(0)->widget(), second);
}

void tst_TarnTabBar::nullWidgetsAreIgnored()
{
    TarnTabBar frame(nullptr);

    frame.addLeftWidget(nullptr);
    frame.addCenterWidget(nullptr);
    frame.addRightWidget(nullptr);

    for (const Place place : {Left, Centre, Right})
        QVERIFY(areaOf(frame, place)->isEmpty());
    auto *widget = new QPushButton;
    frame.addCenterWidget(widget);
    QCOMPARE(areaOf(frame, Centre)->count(), 1);
}

void tst_TarnTabBar::spacingIsTheAreas_data()
{
    QTest::addColumn<SetSpacing>("set");
    QTest::addColumn<int>("place");
    QTest::newRow("left") << &TarnTabBar::setLeftHLayoutSpace << int(Left);
    QTest::newRow("centre") << &TarnTabBar::setCenterHLayoutSpace << int(Centre);
    QTest::newRow("right") << &TarnTabBar::setRightHLayoutSpace << int(Right);
}

void tst_TarnTabBar::spacingIsTheAreas()
{
    QFETCH(SetSpacing, set);
    QFETCH(int, place);
    TarnTabBar frame(nullptr);

    (frame.*set)(17);

    for (const Place each : {Left, Centre, Right})
        QCOMPARE(areaOf(frame, each)->spacing(), each == place ? 17 : 0);
}

void tst_TarnTabBar::areasLieLeftBehindAndRight()
{
    // GIVEN a wide frame with a widget in each area, two at the right
    TarnTabBar frame(nullptr);
    frame.addTab(QStringLiteral("Tab"));
    QPushButton *buttons[4];
    for (QPushButton *&button : buttons) {
        button = new QPushButton;
        button->setFixedSize(20, 16);
    }
    frame.addLeftWidget(buttons[0]);
    frame.addCenterWidget(buttons[1]);
    frame.addRightWidget(buttons[2]);
    frame.addRightWidget(buttons[3]);
    frame.setRightHLayoutSpace(5);
    frame.resize(500, 60);
    frame.show();

    // THEN each is where its area is, at the bottom
    const QRect bar = frame.getTabBar()->geometry();
    QCOMPARE(buttons[0]->geometry(), QRect(0, 44, 20, 16));
    QCOMPARE(bar.left(), 20);
    QCOMPARE(bar.width(),
             frame.getTabBar()->sizeHint().expandedTo(frame.getTabBar()->minimumSizeHint()).width());
    QCOMPARE(buttons[1]->geometry(), QRect(bar.right() + 1, 44, 20, 16));
    QCOMPARE(buttons[2]->geometry(), QRect(455, 44, 20, 16));
    QCOMPARE(buttons[3]->geometry(), QRect(480, 44, 20, 16));
}

void tst_TarnTabBar::areasAreCentredOnDemand()
{
    TarnTabBar frame(nullptr);
    frame.addTab(QStringLiteral("Tab"));
    QPushButton *buttons[3];
    for (QPushButton *&button : buttons) {
        button = new QPushButton;
        button->setFixedSize(20, 16);
    }
    frame.addLeftWidget(buttons[0]);
    frame.addCenterWidget(buttons[1]);
    frame.addRightWidget(buttons[2]);
    frame.resize(500, 60);
    frame.show();
    for (const Place place : {Left, Centre, Right})
        QCOMPARE(frame.layout()->itemAt(place)->alignment(), Qt::Alignment());

    frame.setRightLeftVCenter();
    frame.layout()->activate();

    for (const Place place : {Left, Centre, Right})
        QCOMPARE(frame.layout()->itemAt(place)->alignment(), Qt::AlignVCenter);
    for (const QPushButton *button : buttons)
        QCOMPARE(button->y(), 22);
    QCOMPARE(frame.getTabBar()->height(), 60);
}

void tst_TarnTabBar::propertiesAreThoseOfQTabBar_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("type") << QByteArray("tabBarType") << QVariant::fromValue(TabBarRd::Even);
    QTest::newRow("hides itself") << QByteArray("autoHide") << QVariant(true);
    QTest::newRow("expanding") << QByteArray("expanding") << QVariant(false);
    QTest::newRow("movable") << QByteArray("movable") << QVariant(true);
    QTest::newRow("closable") << QByteArray("tabsClosable") << QVariant(true);
    QTest::newRow("scroll buttons") << QByteArray("usesScrollButtons") << QVariant(false);
    QTest::newRow("elision") << QByteArray("elideMode") << QVariant::fromValue(Qt::ElideMiddle);
    QTest::newRow("icons") << QByteArray("iconSize") << QVariant(QSize(37, 29));
}

void tst_TarnTabBar::propertiesAreThoseOfQTabBar()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);

    // GIVEN one whose bar inside has another value
    TarnTabBar widget;
    const QObject *bar = widget.getTabBar();
    QVERIFY(widget.metaObject()->indexOfProperty(name.constData())
            >= 0); // else it would become a dynamic one
    QVERIFY(bar->property(name.constData()) != value);

    // WHEN the property is set
    QVERIFY(widget.setProperty(name.constData(), value));

    // THEN that is the bar's, and it can be read again
    QCOMPARE(bar->property(name.constData()), value);
    QCOMPARE(widget.property(name.constData()), value);
}

void tst_TarnTabBar::everyOperationDoesWhatQTabBarDoes_data()
{
    QTest::addColumn<Operation>("operation");
    for (const Operation &operation : operations())
        QTest::newRow(operation.name) << operation;
}

void tst_TarnTabBar::everyOperationDoesWhatQTabBarDoes()
{
    QFETCH(Operation, operation);

    for (const bool isFull : {true, false}) {
        // GIVEN two bars alike, with tabs or without
        Pair pair;
        if (isFull)
            pair.fill();
        QVERIFY2(pair.areAlike(), qPrintable(stateOf(pair.frame) + stateOf(pair.plain)));

        // WHEN the same is done to both
        pair.apply(operation);

        // THEN they are still alike
        QCOMPARE(stateOf(pair.frame), stateOf(pair.plain));
        QCOMPARE(pair.signalled[0], pair.signalled[1]);
        QCOMPARE(stateOf(*pair.frame.getTabBar()), stateOf(pair.plain));
    }
}

void tst_TarnTabBar::anyMixtureOfOperationsDoesWhatQTabBarDoes()
{
    Pair pair;
    pair.fill();
    quint32 random = 7;
    const QString start = stateOf(pair.frame);
    int changes = 0;

    for (int round = 0; round < 1500; ++round) {
        random = random * 1664525U + 1013904223U;
        const int choice = int((random >> 16) % quint32(operations().size() + 6));
        const QString before = stateOf(pair.frame);
        if (choice < operations().size())
            pair.apply(operations().at(choice));
        else if (pair.frame.count() < 8)
            pair.insert(choice - operations().size() - 1, QStringLiteral("Tab %1").arg(round));
        QVERIFY2(
            pair.areAlike(),
            qPrintable(QStringLiteral("round %1\n").arg(round) + stateOf(pair.frame) + stateOf(pair.plain)));
        changes += int(stateOf(pair.frame) != before);
    }
    QVERIFY(changes > 300);
    QVERIFY(stateOf(pair.frame) != start);
    QVERIFY(pair.signalled[0].size() > 100);
}

void tst_TarnTabBar::insertionMakesTheLastTabCurrent_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expectedIndex");
    QTest::newRow("in front") << 0 << 0;
    QTest::newRow("in the middle") << 1 << 1;
    QTest::newRow("at the end") << 3 << 3;
    QTest::newRow("beyond the end") << 99 << 3;
    QTest::newRow("nowhere") << -1 << 3;
}

void tst_TarnTabBar::insertionMakesTheLastTabCurrent()
{
    QFETCH(int, index);
    QFETCH(int, expectedIndex);

    for (const bool hasIcon : {false, true}) {
        // GIVEN three tabs, the first of them current
        TarnTabBar frame(nullptr);
        QCOMPARE(frame.addTab(QStringLiteral("A")), 0);
        QCOMPARE(frame.addTab(QStringLiteral("B")), 1);
        QCOMPARE(frame.addTab(QStringLiteral("C")), 2);
        frame.setCurrentIndex(0);
        QSignalSpy changes(&frame, &TarnTabBar::currentChanged);

        // WHEN one is inserted
        const int inserted = hasIcon ? frame.insertTab(index, redIcon(), QStringLiteral("D"))
                                     : frame.insertTab(index, QStringLiteral("D"));

        // THEN it is there, and the last one is current
        QCOMPARE(inserted, expectedIndex);
        QCOMPARE(frame.tabText(expectedIndex), QStringLiteral("D"));
        QCOMPARE(frame.currentIndex(), 3);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.constFirst().constFirst().toInt(), 3);
    }
}

void tst_TarnTabBar::insertionTakesIcons()
{
    TarnTabBar frame(nullptr);

    frame.addTab(redIcon(), QStringLiteral("A"));
    frame.insertTab(0, redIcon(), QStringLiteral("B"));
    frame.addTab(QStringLiteral("C"));

    QCOMPARE(frame.tabIcon(0).cacheKey(), redIcon().cacheKey());
    QCOMPARE(frame.tabIcon(1).cacheKey(), redIcon().cacheKey());
    QVERIFY(frame.tabIcon(2).isNull());
    QCOMPARE(frame.tabText(0), QStringLiteral("B"));
    QCOMPARE(frame.tabText(1), QStringLiteral("A"));
}

void tst_TarnTabBar::clicksAreSignalled()
{
    Pair pair;
    pair.fill();
    QSignalSpy changes(&pair.frame, &TarnTabBar::currentChanged);

    QTest::mouseClick(pair.frame.getTabBar(), Qt::LeftButton, Qt::NoModifier, pair.frame.tabRect(1).center());

    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.constFirst().constFirst().toInt(), 1);
    QCOMPARE(pair.frame.currentIndex(), 1);
}

void tst_TarnTabBar::closeButtonsAreSignalled()
{
    Pair pair;
    pair.fill();
    pair.frame.setTabsClosable(true);
    const auto side = QTabBar::ButtonPosition(
        QApplication::style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, &pair.frame));
    QWidget *button = pair.frame.tabButton(2, side);
    QVERIFY(button);
    QSignalSpy requests(&pair.frame, &TarnTabBar::tabCloseRequested);

    QTest::mouseClick(button, Qt::LeftButton);

    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.constFirst().constFirst().toInt(), 2);
    QCOMPARE(pair.frame.count(), 4);
}

void tst_TarnTabBar::evenBarTakesTheFreeWidth_data()
{
    QTest::addColumn<bool>("isShownBefore");
    QTest::newRow("on the screen") << true;
    QTest::newRow("not yet shown") << false;
}

void tst_TarnTabBar::evenBarTakesTheFreeWidth()
{
    QFETCH(bool, isShownBefore);

    // GIVEN a frame wider than its tabs
    TarnTabBar frame(nullptr);
    for (int index = 0; index < 3; ++index)
        frame.addTab(QStringLiteral("Tab").repeated(index + 1));
    frame.resize(301, 40);
    frame.setVisible(isShownBefore);
    QVERIFY(!isShownBefore || frame.getTabBar()->width() < 301);

    // WHEN it becomes even
    frame.setTabBarType(TabBarRd::Even);

    // THEN so it is at once
    QCOMPARE(frame.getTabBarType(), TabBarRd::Even);
    QCOMPARE(qobject_cast<TabBarRd *>(frame.getTabBar())->getTabBarType(), TabBarRd::Even);
    QCOMPARE(frame.getTabBar()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred));
    const QSpacerItem *space = frame.layout()->itemAt(Space)->spacerItem();
    QCOMPARE(space->sizeHint(), QSize(0, 0));
    QCOMPARE(space->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
    QCOMPARE(frame.getTabBar()->width(), 301);
    frame.show();
    QCOMPARE(frame.tabRect(0), QRect(0, 0, 100, 40));
    QCOMPARE(frame.tabRect(1), QRect(100, 0, 100, 40));
    QCOMPARE(frame.tabRect(2), QRect(200, 0, 101, 40));
}

void tst_TarnTabBar::evenLeavesRoomForTheAreas()
{
    TarnTabBar frame(nullptr);
    for (int index = 0; index < 3; ++index)
        frame.addTab(QStringLiteral("Tab"));
    for (const AddWidget add :
         {&TarnTabBar::addLeftWidget, &TarnTabBar::addCenterWidget, &TarnTabBar::addRightWidget}) {
        auto *widget = new QWidget;
        widget->setFixedSize(20, 20);
        (frame.*add)(widget);
    }
    frame.resize(361, 40);
    frame.show();

    frame.setTabBarType(TabBarRd::Even);

    QCOMPARE(frame.getTabBar()->geometry(), QRect(20, 0, 301, 40));
}

void tst_TarnTabBar::evenBarGetsNarrowerAgain_data()
{
    QTest::addColumn<bool>("scrolls");
    QTest::newRow("with scroll buttons") << true;
    QTest::newRow("without scroll buttons") << false;
}

void tst_TarnTabBar::evenBarGetsNarrowerAgain()
{
    QFETCH(bool, scrolls);

    // GIVEN an even bar that was wide when a text changed
    TarnTabBar frame(nullptr);
    frame.setUsesScrollButtons(scrolls);
    frame.setTabBarType(TabBarRd::Even);
    for (int index = 0; index < 3; ++index)
        frame.addTab(QStringLiteral("Tab"));
    frame.show();
    frame.resize(600, 40);
    QCOMPARE(frame.getTabBar()->width(), 600);
    frame.setTabText(0, QStringLiteral("Another text"));
    frame.layout()->activate();

    // WHEN it gets narrower
    frame.resize(301, 40);

    // THEN it is, and the tabs share what is left
    QCOMPARE(frame.width(), 301);
    QCOMPARE(frame.getTabBar()->width(), 301);
    for (int index = 0; index < 3; ++index)
        QCOMPARE(frame.tabRect(index).width(), index == 2 ? 101 : 100);
}

void tst_TarnTabBar::normalLeavesABarThatWasNeverEven()
{
    TarnTabBar frame(nullptr);
    frame.addTab(QStringLiteral("Tab"));
    frame.resize(400, 40);
    frame.show();
    const int before = frame.getTabBar()->width();
    QVERIFY(before < 400);

    frame.setTabBarType(TabBarRd::Normal);

    QCOMPARE(frame.getTabBar()->width(), before);
    QCOMPARE(frame.getTabBar()->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
    QCOMPARE(frame.layout()->itemAt(Space)->spacerItem()->sizePolicy(),
             QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void tst_TarnTabBar::normalAfterEvenLeavesTheBarWide()
{
    TarnTabBar frame(nullptr);
    frame.addTab(QStringLiteral("Tab"));
    frame.addTab(QStringLiteral("Another tab"));
    frame.setExpanding(false);
    frame.resize(400, 40);
    frame.show();
    const int before = frame.tabRect(1).width();
    frame.setTabBarType(TabBarRd::Even);
    QCOMPARE(frame.tabRect(1).width(), 200);

    frame.setTabBarType(TabBarRd::Normal);
    QApplication::processEvents();

    QCOMPARE(frame.getTabBarType(), TabBarRd::Normal);
    QCOMPARE(frame.tabRect(1).width(), before);
    QCOMPARE(frame.getTabBar()->width(), 400);
    QCOMPARE(frame.getTabBar()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred));
    QCOMPARE(frame.layout()->itemAt(Space)->spacerItem()->sizePolicy(),
             QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
}

void tst_TarnTabBar::widthsArePassedOn()
{
    TarnTabBar frame(nullptr);
    frame.addTab(QStringLiteral("Tab"));

    frame.setTabMinWidth(150);
    frame.setTabMaxWidth(250);

    QCOMPARE(frame.getTabMinWidth(), 150);
    QCOMPARE(frame.getTabMaxWidth(), 250);
    QCOMPARE(frame.getTabBar()->minimumWidth(), 150);
    QCOMPARE(frame.getTabBar()->maximumWidth(), 250);
    QCOMPARE(frame.maximumWidth(), QWIDGETSIZE_MAX);
    frame.setTabMaxWidth(0);
    QCOMPARE(frame.getTabMaxWidth(), 0);
}

void tst_TarnTabBar::negativeMaximumIsIgnoredAndMinimumPassedOn()
{
    TarnTabBar frame(nullptr);
    frame.setTabMinWidth(150);
    frame.setTabMaxWidth(250);

    frame.setTabMaxWidth(-1);
    QCOMPARE(frame.getTabMaxWidth(), 250);
    QCOMPARE(frame.getTabBar()->maximumWidth(), 250);

    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Negative sizes (-1,"));
    frame.setTabMinWidth(-1);
    QCOMPARE(frame.getTabMinWidth(), -1);
    QCOMPARE(frame.getTabBar()->minimumWidth(), 0);
}

QTEST_MAIN(tst_TarnTabBar)

#include "tst_tarntabbar.moc"
