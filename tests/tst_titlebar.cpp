// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QAction>
#include <QApplication>
#include <QFontMetrics>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QMetaMethod>
#include <QPixmap>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <limits>
#include <memory>
#include <optional>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::TitleBar;

namespace {

enum Index { Logo, Minimise, Maximise, Restore, Close, Count };

constexpr const char *Selectors[Count] = {"isTitleBarLogoButton", "isTitleBarMinButton",
                                          "isTitleBarMaxButton", "isTitleBarRestoreButton",
                                          "isTitleBarCloseButton"};

constexpr QSize ButtonSize(26, 18);
constexpr QSize IconSize(14, 12);

/* A bar on the screen, wide enough for all its pieces. */
class ShownBar : public TitleBar
{
public:
    ShownBar()
    {
        resize(600, height());
        show();
    }
};

/* How often each signal has come. */
class Signals
{
public:
    explicit Signals(const TitleBar &bar)
        : m_minimuned(&bar, &TitleBar::minimuned)
        , m_maximumed(&bar, &TitleBar::maximumed)
        , m_normaled(&bar, &TitleBar::normaled)
        , m_closed(&bar, &TitleBar::closed)
    {
    }

    /*! The names of those since the last call, in alphabetical order. */
    QStringList take()
    {
        QStringList names;
        const auto add = [&names](QSignalSpy &spy, const QString &name) {
            for (; !spy.isEmpty(); spy.removeFirst())
                names.append(name);
        };
        add(m_closed, QStringLiteral("closed"));
        add(m_maximumed, QStringLiteral("maximumed"));
        add(m_minimuned, QStringLiteral("minimuned"));
        add(m_normaled, QStringLiteral("normaled"));
        return names;
    }

private:
    QSignalSpy m_minimuned;
    QSignalSpy m_maximumed;
    QSignalSpy m_normaled;
    QSignalSpy m_closed;
};

/* Translates the bar's texts, and no other class's, by a mark in front. */
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "Tarn::Widgets::TitleBar") != 0)
            return QString();
        return QStringLiteral("~") + QString::fromLatin1(sourceText);
    }
    bool isEmpty() const override
    {
        return false;
    }
};

QIcon icon(Qt::GlobalColor color)
{
    QPixmap pixmap(30, 20);
    pixmap.fill(color);
    return QIcon(pixmap);
}

QList<bool> shownButtons(const TitleBar &bar)
{
    QList<bool> shown;
    for (int index = 0; index < Count; ++index)
        shown.append(bar.isTitleButtonVisible(index));
    return shown;
}

QVector<QRect> buttonPlaces(const TitleBar &bar)
{
    QVector<QRect> places;
    for (int index = 0; index < Count; ++index)
        places.append(bar.titleButton(index)->geometry());
    return places;
}

QHBoxLayout *extraLayout(const TitleBar &bar)
{
    return qobject_cast<QHBoxLayout *>(bar.getTitleVBarMainLayout()->itemAt(2)->layout());
}

/* The texts of the extra buttons' actions from left to right. */
QStringList extraButtons(const TitleBar &bar)
{
    QStringList texts;
    for (int place = 0; place < extraLayout(bar)->count(); ++place) {
        const auto *button = qobject_cast<QToolButton *>(extraLayout(bar)->itemAt(place)->widget());
        texts.append(button->defaultAction()->text());
    }
    return texts;
}

QToolButton *extraButton(const TitleBar &bar, int place)
{
    return qobject_cast<QToolButton *>(extraLayout(bar)->itemAt(place)->widget());
}

void addOutsideIndexRows()
{
    QTest::addColumn<int>("index");
    QTest::newRow("one below") << -1;
    QTest::newRow("one above") << 5;
    QTest::newRow("some above") << 7;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

} // namespace

Q_DECLARE_METATYPE(QMetaMethod::MethodType)

class tst_TitleBar : public QObject
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

    // A new bar
    void newBarIsMarkedAndOfFixedHeight();
    void newBarIsAChildWithoutWindowFlags();
    void signalsAndSlotsAreKnownByTheirNames_data();
    void signalsAndSlotsAreKnownByTheirNames();
    void piecesStandInOrder();
    void layoutsHaveTheirMarginsAndSpacing();
    void piecesShowFromLeftToRight();
    void buttonsAreMarkedAndFlat_data();
    void buttonsAreMarkedAndFlat();
    void newBarShowsEveryButton();
    void logoShowsTheApplicationIcon();
    void barOwnsItsPieces();

    // The title
    void titleIsTheTextOfTheLabel();
    void titleIsAProperty();
    void titleIsShownAsPlainText();
    void titleInAnotherFormatIsLeftToTheLabel();
    void longTitleIsElidedAndDoesNotWidenTheBar();
    void hiddenTitleKeepsTheButtonsInTheirPlaces();

    // The buttons by index
    void outsideIndexHasNoButton_data();
    void outsideIndexHasNoButton();
    void outsideIndexIsIgnored_data();
    void outsideIndexIsIgnored();
    void visibilityIsThatOnTheScreen();
    void buttonIsHiddenAndShownByItself_data();
    void buttonIsHiddenAndShownByItself();
    void iconAndToolTipAreTheButtonsOwn_data();
    void iconAndToolTipAreTheButtonsOwn();
    void clearCheckedUnchecksEveryButton();

    // Clicks
    void clickEmitsTheSignalOfTheButton_data();
    void clickEmitsTheSignalOfTheButton();
    void doubleClickOnTheBarEmitsNothing();
    void closeFunctionDecidesWhetherTheBarCloses();
    void newCloseFunctionReplacesTheFormer();
    void emptyCloseFunctionLetsTheCloseGoAhead();
    void closeFunctionMayReplaceItself();
    void closeFunctionMayDeleteTheBar();
    void receiverMayDeleteTheBar_data();
    void receiverMayDeleteTheBar();

    // Maximise and restore
    void setMaximizedShowsTheAllowedButton_data();
    void setMaximizedShowsTheAllowedButton();
    void switchShowsTheOtherAllowedButton_data();
    void switchShowsTheOtherAllowedButton();
    void switchAlternatesBetweenTheSignals();
    void buttonsAreSwitchedBeforeTheSignal();
    void switchInvertsTheStateThatTheReceiverLeaves();
    void forbiddenButtonStaysHiddenUntilItIsAllowed();

    // Extra buttons
    void extraButtonTakesItsLookFromTheAction();
    void extraButtonTriggersItsAction();
    void extraButtonsAreAppendedAndInserted_data();
    void extraButtonsAreAppendedAndInserted();
    void nullActionAddsNothing();
    void deletedActionLeavesTheBarUsable();

    // The bare caption area
    void hitTestIsTrueOnTheBareBarOnly();
    void hitTestIsFalseOnAnExtraButton();
    void hitTestPassesThroughHiddenPieces();

    // Language and accessibility
    void toolTipsFollowTheLanguage_data();
    void toolTipsFollowTheLanguage();
    void retranslationSetsTheFourToolTipsAgain();
    void buttonsHaveAccessibleNames();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_TitleBar::newBarIsMarkedAndOfFixedHeight()
{
    const TitleBar bar;

    QCOMPARE(bar.property("isTitleBar"), QVariant(true));
    QCOMPARE(bar.property("isForeground"), QVariant(true));
    QCOMPARE(bar.titleLabel()->property("isTitleBarTitle"), QVariant(true));
    QCOMPARE(bar.minimumHeight(), 24);
    QCOMPARE(bar.maximumHeight(), 24);
}

void tst_TitleBar::newBarIsAChildWithoutWindowFlags()
{
    QWidget window;
    const auto *bar = new TitleBar(&window);

    QCOMPARE(bar->parentWidget(), &window);
    QVERIFY(!bar->isWindow());
    QCOMPARE(bar->windowFlags(), QFrame(&window).windowFlags());
    QCOMPARE(bar->title(), QString());
}

void tst_TitleBar::signalsAndSlotsAreKnownByTheirNames_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QMetaMethod::MethodType>("type");
    for (const char *name : {"maximumed()", "minimuned()", "normaled()", "closed()"})
        QTest::newRow(name) << QByteArray(name) << QMetaMethod::Signal;
    for (const char *name : {"switchMaxMin()", "clearChecked()"})
        QTest::newRow(name) << QByteArray(name) << QMetaMethod::Slot;
}

void tst_TitleBar::signalsAndSlotsAreKnownByTheirNames()
{
    QFETCH(QByteArray, signature);
    QFETCH(QMetaMethod::MethodType, type);
    const QMetaObject &meta = TitleBar::staticMetaObject;
    const int index = meta.indexOfMethod(signature.constData());

    QVERIFY(index >= meta.methodOffset());
    QCOMPARE(meta.method(index).methodType(), type);
    QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
}

void tst_TitleBar::piecesStandInOrder()
{
    const TitleBar bar;
    const QHBoxLayout *layout = bar.getTitleVBarMainLayout();

    QCOMPARE(bar.layout(), layout);
    QCOMPARE(layout->count(), 7);
    QCOMPARE(layout->itemAt(0)->widget(), bar.titleButton(Logo));
    QCOMPARE(layout->itemAt(1)->widget(), bar.titleLabel());
    QVERIFY(extraLayout(bar));
    QCOMPARE(layout->itemAt(3)->widget(), bar.titleButton(Minimise));
    QCOMPARE(layout->itemAt(4)->widget(), bar.titleButton(Maximise));
    QCOMPARE(layout->itemAt(5)->widget(), bar.titleButton(Restore));
    QCOMPARE(layout->itemAt(6)->widget(), bar.titleButton(Close));
}

void tst_TitleBar::layoutsHaveTheirMarginsAndSpacing()
{
    const TitleBar bar;

    QCOMPARE(bar.getTitleVBarMainLayout()->contentsMargins(), QMargins(5, 0, 5, 0));
    QCOMPARE(bar.getTitleVBarMainLayout()->spacing(), 2);
    QCOMPARE(extraLayout(bar)->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(extraLayout(bar)->spacing(), 2);
    QCOMPARE(extraLayout(bar)->count(), 0);
}

void tst_TitleBar::piecesShowFromLeftToRight()
{
    const ShownBar bar;
    QCOMPARE(bar.height(), 24);

    QCOMPARE(bar.titleButton(Logo)->x(), 5);
    QCOMPARE(bar.titleLabel()->x(), bar.titleButton(Logo)->geometry().right() + 1 + 2);
    for (int index = Maximise; index < Count; ++index)
        QCOMPARE(bar.titleButton(index)->x(), bar.titleButton(index - 1)->geometry().right() + 1 + 2);
    QCOMPARE(bar.titleButton(Close)->geometry().right(), bar.width() - 1 - 5);
}

void tst_TitleBar::buttonsAreMarkedAndFlat_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("logo") << int(Logo) << QString();
    QTest::newRow("minimise") << int(Minimise) << QStringLiteral("Minimize");
    QTest::newRow("maximise") << int(Maximise) << QStringLiteral("Maximization");
    QTest::newRow("restore") << int(Restore) << QStringLiteral("Restore");
    QTest::newRow("close") << int(Close) << QStringLiteral("Close");
}

void tst_TitleBar::buttonsAreMarkedAndFlat()
{
    QFETCH(int, index);
    QFETCH(QString, toolTip);
    const TitleBar bar;
    const QToolButton *button = bar.titleButton(index);
    QVERIFY(button);

    QCOMPARE(button->property("isTitleBarButton"), QVariant(true));
    for (int other = 0; other < Count; ++other)
        QCOMPARE(button->property(Selectors[other]), other == index ? QVariant(true) : QVariant());
    QCOMPARE(button->toolTip(), toolTip);
    QCOMPARE(bar.titleButtonToolTip(index), toolTip);
    QCOMPARE(button->parentWidget(), &bar);
    QCOMPARE(button->iconSize(), QSize(30, 20));
    QVERIFY(button->autoRaise());
    QVERIFY(button->autoFillBackground());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(!button->isCheckable());
}

void tst_TitleBar::newBarShowsEveryButton()
{
    const ShownBar bar;
    QVERIFY(bar.isVisible());

    QCOMPARE(shownButtons(bar), QList<bool>({true, true, true, true, true}));
    QVERIFY(bar.isTitleVisible());
}

void tst_TitleBar::logoShowsTheApplicationIcon()
{
    QVERIFY(QApplication::windowIcon().isNull());
    QVERIFY(TitleBar().titleButtonIcon(Logo).isNull());

    const QIcon application = icon(Qt::red);
    QApplication::setWindowIcon(application);
    const TitleBar bar;

    QCOMPARE(bar.titleButtonIcon(Logo).cacheKey(), application.cacheKey());
    for (int index = Minimise; index < Count; ++index)
        QVERIFY(bar.titleButtonIcon(index).isNull());
}

void tst_TitleBar::barOwnsItsPieces()
{
    auto bar = std::make_unique<TitleBar>();
    QAction action(QStringLiteral("extra"));
    bar->appendExtendTitleButton(&action, ButtonSize, IconSize);
    const QPointer<QToolButton> extra = extraButton(*bar, 0);
    const QPointer<QToolButton> close = bar->titleButton(Close);
    const QPointer<QLabel> label = bar->titleLabel();
    QVERIFY(extra && close && label);

    bar.reset();

    QVERIFY(!extra && !close && !label);
    QCOMPARE(action.text(), QStringLiteral("extra")); // not the bar's, so still there
}

void tst_TitleBar::titleIsTheTextOfTheLabel()
{
    TitleBar bar;
    QVERIFY(bar.titleLabel());

    bar.setTitle(QStringLiteral("Settings"));
    QCOMPARE(bar.title(), QStringLiteral("Settings"));
    QCOMPARE(bar.titleLabel()->text(), QStringLiteral("Settings"));

    bar.setTitleAlignment(Qt::AlignRight | Qt::AlignBottom);
    QCOMPARE(bar.titleLabel()->alignment(), Qt::AlignRight | Qt::AlignBottom);
}

void tst_TitleBar::titleIsAProperty()
{
    TitleBar bar;

    QVERIFY(bar.setProperty("title", QStringLiteral("Monitor")));

    QCOMPARE(bar.title(), QStringLiteral("Monitor"));
    QCOMPARE(bar.property("title"), QVariant(QStringLiteral("Monitor")));
}

void tst_TitleBar::titleIsShownAsPlainText()
{
    TitleBar bar;
    const QString markup = QStringLiteral("<b>5 < 7</b> &amp; so on");

    bar.setTitle(markup);

    QCOMPARE(bar.title(), markup);
    QCOMPARE(bar.titleLabel()->textFormat(), Qt::PlainText);
    QCOMPARE(bar.titleLabel()->sizeHint().width(), bar.titleLabel()->fontMetrics().size(0, markup).width());
}

// An ellipsis in the source of a rich text would show its tags. The text is far wider in its source than on
// the screen.
void tst_TitleBar::titleInAnotherFormatIsLeftToTheLabel()
{
    // GIVEN a label that shows a rich text, and room for the text but not for its source
    TitleBar bar;
    bar.setTitle(QStringLiteral("<span style='font-weight:normal'></span><b></b><i></i>M"));
    bar.titleLabel()->setTextFormat(Qt::RichText);
    bar.resize(300, 24);
    bar.show();
    QLabel *label = bar.titleLabel();
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) > label->width());

    // THEN it looks as in a label of its own
    QLabel reference(label->text());
    reference.setTextFormat(Qt::RichText);
    reference.resize(label->size());
    const auto picture = [](QLabel *shown) {
        QImage image(shown->size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        shown->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    QCOMPARE(picture(label), picture(&reference));
}

void tst_TitleBar::longTitleIsElidedAndDoesNotWidenTheBar()
{
    ShownBar bar;
    const int narrowest = bar.minimumSizeHint().width();
    const QString title = QString(200, QLatin1Char('m')) + QStringLiteral(" end");

    // WHEN the title is far too long
    bar.setTitle(title);
    const QImage image = bar.titleLabel()->grab().toImage();

    // THEN the bar needs no more room, and shows what a title cut by an ellipsis shows
    QCOMPARE(bar.minimumSizeHint().width(), narrowest);
    const QString elided =
        bar.titleLabel()->fontMetrics().elidedText(title, Qt::ElideRight, bar.titleLabel()->width());
    QVERIFY(elided != title);
    bar.setTitle(elided);
    QCOMPARE(image, bar.titleLabel()->grab().toImage());
    bar.setTitle(title.left(elided.size()));
    QVERIFY(image != bar.titleLabel()->grab().toImage());
}

void tst_TitleBar::hiddenTitleKeepsTheButtonsInTheirPlaces()
{
    ShownBar bar;
    bar.setTitle(QStringLiteral("Settings"));
    const QVector<QRect> places = buttonPlaces(bar);

    bar.setTitleVisible(false);
    QVERIFY(!bar.isTitleVisible());
    QVERIFY(bar.titleLabel()->isHidden());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(buttonPlaces(bar), places);

    bar.setTitleVisible(true);
    QVERIFY(bar.isTitleVisible());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(buttonPlaces(bar), places);

    // Also in a bar whose title was never on the screen
    TitleBar untitled;
    untitled.setTitleVisible(false);
    untitled.resize(bar.size());
    untitled.show();
    QCOMPARE(buttonPlaces(untitled), places);
}

void tst_TitleBar::outsideIndexHasNoButton_data()
{
    addOutsideIndexRows();
}

void tst_TitleBar::outsideIndexHasNoButton()
{
    QFETCH(int, index);
    const ShownBar bar;

    QVERIFY(!bar.titleButton(index));
    QVERIFY(!bar.isTitleButtonVisible(index));
    QVERIFY(bar.titleButtonIcon(index).isNull());
    QCOMPARE(bar.titleButtonToolTip(index), QString());
}

void tst_TitleBar::outsideIndexIsIgnored_data()
{
    addOutsideIndexRows();
}

void tst_TitleBar::outsideIndexIsIgnored()
{
    QFETCH(int, index);
    ShownBar bar;
    bar.setTitleButtonVisible(Minimise, false);
    const QList<bool> shown = shownButtons(bar);

    bar.setTitleButtonVisible(index, true);
    bar.setTitleButtonVisible(index, false);
    bar.setTitleButtonIcon(index, icon(Qt::red));
    bar.setTitleButtonToolTip(index, QStringLiteral("elsewhere"));

    QCOMPARE(shownButtons(bar), shown);
    for (int other = 0; other < Count; ++other) {
        QVERIFY(bar.titleButtonIcon(other).isNull());
        QVERIFY(bar.titleButtonToolTip(other) != QStringLiteral("elsewhere"));
    }
}

void tst_TitleBar::visibilityIsThatOnTheScreen()
{
    TitleBar bar;
    bar.setTitleButtonVisible(Close, true);
    QVERIFY(!bar.isTitleButtonVisible(Close));
    QVERIFY(!bar.isTitleVisible());

    bar.show();
    QVERIFY(bar.isTitleButtonVisible(Close));
    QVERIFY(bar.isTitleVisible());

    bar.hide();
    QVERIFY(!bar.isTitleButtonVisible(Close));
    QVERIFY(!bar.isTitleVisible());
}

void tst_TitleBar::buttonIsHiddenAndShownByItself_data()
{
    buttonsAreMarkedAndFlat_data();
}

void tst_TitleBar::buttonIsHiddenAndShownByItself()
{
    QFETCH(int, index);
    ShownBar bar;

    bar.setTitleButtonVisible(index, false);
    for (int other = 0; other < Count; ++other)
        QCOMPARE(bar.isTitleButtonVisible(other), other != index);

    bar.setTitleButtonVisible(index, true);
    for (int other = 0; other < Count; ++other)
        QVERIFY(bar.isTitleButtonVisible(other));
}

void tst_TitleBar::iconAndToolTipAreTheButtonsOwn_data()
{
    buttonsAreMarkedAndFlat_data();
}

void tst_TitleBar::iconAndToolTipAreTheButtonsOwn()
{
    QFETCH(int, index);
    TitleBar bar;
    const QIcon red = icon(Qt::red);

    bar.setTitleButtonIcon(index, red);
    bar.setTitleButtonToolTip(index, QStringLiteral("hint"));

    for (int other = 0; other < Count; ++other) {
        QCOMPARE(bar.titleButtonIcon(other).cacheKey() == red.cacheKey(), other == index);
        QCOMPARE(bar.titleButton(other)->icon().cacheKey(), bar.titleButtonIcon(other).cacheKey());
        QCOMPARE(bar.titleButtonToolTip(other) == QStringLiteral("hint"), other == index);
        QCOMPARE(bar.titleButton(other)->toolTip(), bar.titleButtonToolTip(other));
    }
}

void tst_TitleBar::clearCheckedUnchecksEveryButton()
{
    TitleBar bar;
    for (int index = 0; index < Count; ++index) {
        bar.titleButton(index)->setCheckable(true);
        bar.titleButton(index)->setChecked(true);
    }
    Signals emitted(bar);

    bar.clearChecked();

    for (int index = 0; index < Count; ++index)
        QVERIFY(!bar.titleButton(index)->isChecked());
    QCOMPARE(emitted.take(), QStringList());
}

void tst_TitleBar::clickEmitsTheSignalOfTheButton_data()
{
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("emitted");
    const QStringList maximumed(QStringLiteral("maximumed"));
    const QStringList normaled(QStringLiteral("normaled"));

    QTest::newRow("logo") << false << int(Logo) << QStringList();
    QTest::newRow("minimise") << false << int(Minimise) << QStringList(QStringLiteral("minimuned"));
    QTest::newRow("maximise") << false << int(Maximise) << maximumed;
    QTest::newRow("restore") << false << int(Restore) << maximumed;
    QTest::newRow("close") << false << int(Close) << QStringList(QStringLiteral("closed"));
    QTest::newRow("minimise while maximised")
        << true << int(Minimise) << QStringList(QStringLiteral("minimuned"));
    QTest::newRow("maximise while maximised") << true << int(Maximise) << normaled;
    QTest::newRow("restore while maximised") << true << int(Restore) << normaled;
    QTest::newRow("close while maximised") << true << int(Close) << QStringList(QStringLiteral("closed"));
}

void tst_TitleBar::clickEmitsTheSignalOfTheButton()
{
    QFETCH(bool, maximized);
    QFETCH(int, index);
    QFETCH(QStringList, emitted);
    ShownBar bar;
    bar.setMaximized(maximized);
    bar.setTitleButtonVisible(index, true);
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QVERIFY(bar.isTitleButtonVisible(index));
    Signals seen(bar);

    QTest::mouseClick(bar.titleButton(index), Qt::LeftButton);

    QCOMPARE(seen.take(), emitted);
}

void tst_TitleBar::doubleClickOnTheBarEmitsNothing()
{
    ShownBar bar;
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    Signals emitted(bar);
    const QList<bool> shown = shownButtons(bar);

    QTest::mouseDClick(&bar, Qt::LeftButton, Qt::NoModifier, QPoint(2, 12));
    QTest::mouseDClick(bar.titleLabel(), Qt::LeftButton);

    QCOMPARE(emitted.take(), QStringList());
    QCOMPARE(shownButtons(bar), shown);
}

void tst_TitleBar::closeFunctionDecidesWhetherTheBarCloses()
{
    TitleBar bar;
    Signals emitted(bar);
    bool mayClose = false;
    int calls = 0;
    bar.appendCloseEvent([&] {
        ++calls;
        return mayClose;
    });
    QCOMPARE(calls, 0);

    bar.titleButton(Close)->click();
    QCOMPARE(calls, 1);
    QCOMPARE(emitted.take(), QStringList());

    mayClose = true;
    bar.titleButton(Close)->click();
    QCOMPARE(calls, 2);
    QCOMPARE(emitted.take(), QStringList(QStringLiteral("closed")));
}

void tst_TitleBar::newCloseFunctionReplacesTheFormer()
{
    TitleBar bar;
    Signals emitted(bar);
    int formerCalls = 0;
    bar.appendCloseEvent([&formerCalls] {
        ++formerCalls;
        return false;
    });

    bar.appendCloseEvent([] { return true; });
    bar.titleButton(Close)->click();

    QCOMPARE(formerCalls, 0);
    QCOMPARE(emitted.take(), QStringList(QStringLiteral("closed")));
}

void tst_TitleBar::emptyCloseFunctionLetsTheCloseGoAhead()
{
    TitleBar bar;
    Signals emitted(bar);
    bar.appendCloseEvent([] { return false; });

    bar.appendCloseEvent(nullptr);
    bar.titleButton(Close)->click();

    QCOMPARE(emitted.take(), QStringList(QStringLiteral("closed")));
}

void tst_TitleBar::closeFunctionMayReplaceItself()
{
    TitleBar bar;
    Signals emitted(bar);
    const auto captured = std::make_shared<bool>(false);
    bar.appendCloseEvent([&bar, captured] {
        bar.appendCloseEvent([] { return true; });
        return *captured; // gone with the function, unless that is kept for the call
    });

    bar.titleButton(Close)->click();
    QCOMPARE(emitted.take(), QStringList());
    QCOMPARE(captured.use_count(), 1L); // the former one was dropped

    bar.titleButton(Close)->click();
    QCOMPARE(emitted.take(), QStringList(QStringLiteral("closed")));
}

void tst_TitleBar::closeFunctionMayDeleteTheBar()
{
    QPointer<TitleBar> bar = new TitleBar;
    int closed = 0;
    connect(bar, &TitleBar::closed, this, [&closed] { ++closed; });
    bar->appendCloseEvent([bar] {
        delete bar;
        return true;
    });

    bar->titleButton(Close)->click();

    QVERIFY(!bar);
    QCOMPARE(closed, 0);
}

void tst_TitleBar::receiverMayDeleteTheBar_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("minimise") << int(Minimise);
    QTest::newRow("maximise") << int(Maximise);
    QTest::newRow("restore") << int(Restore);
    QTest::newRow("close") << int(Close);
}

void tst_TitleBar::receiverMayDeleteTheBar()
{
    QFETCH(int, index);
    QPointer<TitleBar> bar = new TitleBar;
    const auto deletion = [bar] { delete bar; };
    connect(bar, &TitleBar::minimuned, this, deletion);
    connect(bar, &TitleBar::maximumed, this, deletion);
    connect(bar, &TitleBar::closed, this, deletion);

    bar->titleButton(index)->click();

    QVERIFY(!bar);
}

static void addPairColumns()
{
    QTest::addColumn<bool>("maximiseAllowed");
    QTest::addColumn<bool>("restoreAllowed");
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<bool>("maximiseShown");
    QTest::addColumn<bool>("restoreShown");
}

void tst_TitleBar::setMaximizedShowsTheAllowedButton_data()
{
    addPairColumns();
    QTest::newRow("both allowed, normal") << true << true << false << true << false;
    QTest::newRow("both allowed, maximised") << true << true << true << false << true;
    QTest::newRow("only maximise allowed, normal") << true << false << false << true << false;
    QTest::newRow("only maximise allowed, maximised") << true << false << true << false << false;
    QTest::newRow("only restore allowed, normal") << false << true << false << false << false;
    QTest::newRow("only restore allowed, maximised") << false << true << true << false << true;
    QTest::newRow("none allowed, normal") << false << false << false << false << false;
    QTest::newRow("none allowed, maximised") << false << false << true << false << false;
}

void tst_TitleBar::setMaximizedShowsTheAllowedButton()
{
    QFETCH(bool, maximiseAllowed);
    QFETCH(bool, restoreAllowed);
    QFETCH(bool, maximized);
    QFETCH(bool, maximiseShown);
    QFETCH(bool, restoreShown);
    ShownBar bar;
    bar.setTitleButtonVisible(Maximise, maximiseAllowed);
    bar.setTitleButtonVisible(Restore, restoreAllowed);
    Signals emitted(bar);

    for (const bool state : {maximized, !maximized, maximized})
        bar.setMaximized(state);

    QCOMPARE(bar.isTitleButtonVisible(Maximise), maximiseShown);
    QCOMPARE(bar.isTitleButtonVisible(Restore), restoreShown);
    QVERIFY(bar.isTitleButtonVisible(Minimise) && bar.isTitleButtonVisible(Close));
    QCOMPARE(emitted.take(), QStringList());
}

void tst_TitleBar::switchShowsTheOtherAllowedButton_data()
{
    addPairColumns();
    QTest::newRow("both allowed, to maximised") << true << true << false << false << true;
    QTest::newRow("both allowed, to normal") << true << true << true << true << false;
    QTest::newRow("only maximise allowed, to maximised") << true << false << false << false << false;
    QTest::newRow("only maximise allowed, to normal") << true << false << true << true << false;
    QTest::newRow("only restore allowed, to maximised") << false << true << false << false << true;
    QTest::newRow("only restore allowed, to normal") << false << true << true << false << false;
    QTest::newRow("none allowed, to maximised") << false << false << false << false << false;
    QTest::newRow("none allowed, to normal") << false << false << true << false << false;
}

void tst_TitleBar::switchShowsTheOtherAllowedButton()
{
    QFETCH(bool, maximiseAllowed);
    QFETCH(bool, restoreAllowed);
    QFETCH(bool, maximized);
    QFETCH(bool, maximiseShown);
    QFETCH(bool, restoreShown);
    ShownBar bar;
    bar.setTitleButtonVisible(Maximise, maximiseAllowed);
    bar.setTitleButtonVisible(Restore, restoreAllowed);
    bar.setMaximized(maximized);
    Signals emitted(bar);

    bar.switchMaxMin();

    QCOMPARE(bar.isTitleButtonVisible(Maximise), maximiseShown);
    QCOMPARE(bar.isTitleButtonVisible(Restore), restoreShown);
    QCOMPARE(emitted.take(),
             QStringList(maximized ? QStringLiteral("normaled") : QStringLiteral("maximumed")));
}

void tst_TitleBar::switchAlternatesBetweenTheSignals()
{
    TitleBar bar;
    Signals emitted(bar);

    for (int round = 0; round < 2; ++round) {
        bar.switchMaxMin();
        QCOMPARE(emitted.take(), QStringList(QStringLiteral("maximumed")));
        bar.switchMaxMin();
        QCOMPARE(emitted.take(), QStringList(QStringLiteral("normaled")));
    }
}

void tst_TitleBar::buttonsAreSwitchedBeforeTheSignal()
{
    ShownBar bar;
    bar.setMaximized(false);
    QList<bool> seen;
    const auto note = [&bar, &seen] {
        seen = {bar.isTitleButtonVisible(Maximise), bar.isTitleButtonVisible(Restore)};
    };
    connect(&bar, &TitleBar::maximumed, this, note);
    connect(&bar, &TitleBar::normaled, this, note);

    bar.switchMaxMin();
    QCOMPARE(seen, QList<bool>({false, true}));
    bar.switchMaxMin();
    QCOMPARE(seen, QList<bool>({true, false}));
}

// A window that reports its new state while it handles the signal has its report inverted.
void tst_TitleBar::switchInvertsTheStateThatTheReceiverLeaves()
{
    TitleBar bar;
    Signals emitted(bar);
    const QMetaObject::Connection reporting =
        connect(&bar, &TitleBar::maximumed, this, [&bar] { bar.setMaximized(true); });

    bar.switchMaxMin();
    QCOMPARE(emitted.take(), QStringList(QStringLiteral("maximumed")));
    disconnect(reporting);

    bar.switchMaxMin();
    QCOMPARE(emitted.take(), QStringList(QStringLiteral("maximumed")));
}

void tst_TitleBar::forbiddenButtonStaysHiddenUntilItIsAllowed()
{
    ShownBar bar;
    Signals emitted(bar);
    bar.setTitleButtonVisible(Maximise, false);

    for (int round = 0; round < 4; ++round) {
        bar.switchMaxMin();
        QVERIFY(!bar.isTitleButtonVisible(Maximise));
        QCOMPARE(emitted.take().size(), 1);
    }

    bar.setTitleButtonVisible(Maximise, true);
    QVERIFY(bar.isTitleButtonVisible(Maximise));
    bar.setMaximized(true);
    QVERIFY(!bar.isTitleButtonVisible(Maximise));
    bar.setMaximized(false);
    QVERIFY(bar.isTitleButtonVisible(Maximise));
}

void tst_TitleBar::extraButtonTakesItsLookFromTheAction()
{
    TitleBar bar;
    QAction action(icon(Qt::red), QStringLiteral("Pin"));
    action.setToolTip(QStringLiteral("Keep on top"));

    bar.appendExtendTitleButton(&action, ButtonSize, IconSize);

    QCOMPARE(extraLayout(bar)->count(), 1);
    const QToolButton *button = extraButton(bar, 0);
    QVERIFY(button);
    QCOMPARE(button->parentWidget(), &bar);
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->icon().cacheKey(), action.icon().cacheKey());
    QCOMPARE(button->toolTip(), QStringLiteral("Keep on top"));
    QCOMPARE(button->iconSize(), IconSize);
    QCOMPARE(button->minimumSize(), ButtonSize);
    QCOMPARE(button->maximumSize(), ButtonSize);
}

void tst_TitleBar::extraButtonTriggersItsAction()
{
    ShownBar bar;
    QAction action(QStringLiteral("Pin"));
    bar.appendExtendTitleButton(&action, ButtonSize, IconSize);
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QTRY_VERIFY(extraButton(bar, 0)->isVisible());
    Signals emitted(bar);
    QSignalSpy triggered(&action, &QAction::triggered);

    QTest::mouseClick(extraButton(bar, 0), Qt::LeftButton);

    QCOMPARE(triggered.count(), 1);
    QCOMPARE(emitted.take(), QStringList());
}

void tst_TitleBar::extraButtonsAreAppendedAndInserted_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QStringList>("order");
    const auto order = [](const char *texts) { return QString::fromLatin1(texts).split(QLatin1Char(' ')); };
    QTest::newRow("first") << 0 << order("new one two");
    QTest::newRow("between") << 1 << order("one new two");
    QTest::newRow("last") << 2 << order("one two new");
    QTest::newRow("one past the last") << 3 << order("one two new");
    QTest::newRow("far past the last") << std::numeric_limits<int>::max() << order("one two new");
    QTest::newRow("before the first") << -1 << order("one two new");
    QTest::newRow("far before the first") << std::numeric_limits<int>::min() << order("one two new");
}

void tst_TitleBar::extraButtonsAreAppendedAndInserted()
{
    QFETCH(int, place);
    QFETCH(QStringList, order);
    TitleBar bar;
    QAction one(QStringLiteral("one"));
    QAction two(QStringLiteral("two"));
    QAction inserted(QStringLiteral("new"));
    bar.appendExtendTitleButton(&one, ButtonSize, IconSize);
    bar.appendExtendTitleButton(&two, ButtonSize, IconSize);
    QCOMPARE(extraButtons(bar), QStringList({QStringLiteral("one"), QStringLiteral("two")}));

    bar.insertExtendTitleButton(place, &inserted, ButtonSize, IconSize);

    QCOMPARE(extraButtons(bar), order);
    QCOMPARE(bar.getTitleVBarMainLayout()->count(), 7);
}

void tst_TitleBar::nullActionAddsNothing()
{
    TitleBar bar;
    const int children = bar.children().size();

    bar.appendExtendTitleButton(nullptr, ButtonSize, IconSize);
    bar.insertExtendTitleButton(0, nullptr, ButtonSize, IconSize);

    QCOMPARE(extraLayout(bar)->count(), 0);
    QCOMPARE(bar.children().size(), children);
}

void tst_TitleBar::deletedActionLeavesTheBarUsable()
{
    ShownBar bar;
    QAction stays(QStringLiteral("stays"));
    auto goes = std::make_unique<QAction>(QStringLiteral("goes"));
    bar.appendExtendTitleButton(goes.get(), ButtonSize, IconSize);
    bar.appendExtendTitleButton(&stays, ButtonSize, IconSize);
    QCOMPARE(extraLayout(bar)->count(), 2);

    goes.reset();
    extraButton(bar, 0)->click();
    QSignalSpy triggered(&stays, &QAction::triggered);
    extraButton(bar, 1)->click();

    QCOMPARE(triggered.count(), 1);
}

void tst_TitleBar::hitTestIsTrueOnTheBareBarOnly()
{
    const ShownBar bar;
    const int behindTitle = bar.titleLabel()->geometry().right() + 5; // in the margin of the extra buttons
    QVERIFY(behindTitle < bar.titleButton(Minimise)->x());

    // The bare bar, to its outermost pixels
    QVERIFY(bar.hitTest(0, 0));
    QVERIFY(bar.hitTest(4, 23));
    QVERIFY(bar.hitTest(bar.width() - 1, 23));
    QVERIFY(bar.hitTest(behindTitle, 12));

    // Outside
    QVERIFY(!bar.hitTest(-1, 0));
    QVERIFY(!bar.hitTest(0, -1));
    QVERIFY(!bar.hitTest(bar.width(), 0));
    QVERIFY(!bar.hitTest(0, 24));

    // On the pieces
    QVERIFY(!bar.hitTest(bar.titleLabel()->geometry().center().x(), 12));
    for (int index = 0; index < Count; ++index) {
        const QPoint center = bar.titleButton(index)->geometry().center();
        QVERIFY(!bar.hitTest(center.x(), center.y()));
    }
}

void tst_TitleBar::hitTestIsFalseOnAnExtraButton()
{
    ShownBar bar;
    QAction action(QStringLiteral("extra"));
    bar.appendExtendTitleButton(&action, ButtonSize, IconSize);
    const QToolButton *button = extraButton(bar, 0);
    QTRY_VERIFY(button->isVisible());
    const QRect place = button->geometry();

    QVERIFY(!bar.hitTest(place.center().x(), place.center().y()));
    QVERIFY(bar.hitTest(place.left() - 1, 12));
    QVERIFY(bar.hitTest(place.right() + 1, 12));
}

void tst_TitleBar::hitTestPassesThroughHiddenPieces()
{
    ShownBar bar;
    const QPoint onTitle = bar.titleLabel()->geometry().center();
    QVERIFY(!bar.hitTest(onTitle.x(), onTitle.y()));

    bar.setTitleVisible(false);

    QVERIFY(bar.hitTest(onTitle.x(), onTitle.y()));
}

void tst_TitleBar::toolTipsFollowTheLanguage_data()
{
    QTest::addColumn<bool>("inWindow");
    QTest::newRow("a bar by itself") << false;
    QTest::newRow("a bar in a window") << true;
}

void tst_TitleBar::toolTipsFollowTheLanguage()
{
    QFETCH(bool, inWindow);
    QWidget window;
    TitleBar bar(inWindow ? &window : nullptr);
    const auto toolTips = [&bar] {
        QStringList texts;
        for (int index = 0; index < Count; ++index)
            texts.append(bar.titleButtonToolTip(index));
        return texts.join(QLatin1Char(' '));
    };
    QCOMPARE(toolTips(), QStringLiteral(" Minimize Maximization Restore Close"));
    const QString name = bar.titleButton(Close)->accessibleName();

    {
        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QTRY_COMPARE(toolTips(), QStringLiteral(" ~Minimize ~Maximization ~Restore ~Close"));
        QCOMPARE(bar.titleButton(Close)->accessibleName(), QStringLiteral("~") + name);
    }

    // The translator is gone and with it the language
    QTRY_COMPARE(toolTips(), QStringLiteral(" Minimize Maximization Restore Close"));
    QCOMPARE(bar.titleButton(Close)->accessibleName(), name);
}

void tst_TitleBar::retranslationSetsTheFourToolTipsAgain()
{
    TitleBar bar;
    for (int index = 0; index < Count; ++index)
        bar.setTitleButtonToolTip(index, QStringLiteral("own"));

    bar.retranslateUi();

    QCOMPARE(bar.titleButtonToolTip(Logo), QStringLiteral("own"));
    QCOMPARE(bar.titleButtonToolTip(Minimise), QStringLiteral("Minimize"));
    QCOMPARE(bar.titleButtonToolTip(Maximise), QStringLiteral("Maximization"));
    QCOMPARE(bar.titleButtonToolTip(Restore), QStringLiteral("Restore"));
    QCOMPARE(bar.titleButtonToolTip(Close), QStringLiteral("Close"));
}

void tst_TitleBar::buttonsHaveAccessibleNames()
{
    const TitleBar bar;
    QStringList names;

    for (int index = 0; index < Count; ++index)
        names.append(bar.titleButton(index)->accessibleName());

    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.removeDuplicates(), 0);
}

QTEST_MAIN(tst_TitleBar)

#include "tst_titlebar.moc"
