// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Where the parts of a message box are, and how large it gets.

#include "support/functionguard.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOptionButton>
#include <QTest>
#include <QTranslator>
#include <functional>
#include <optional>
#include <tarnwidgets/framelessmessagebox_p.h>

using namespace Tarn::Test;
using Tarn::Widgets::DetailButton;
using Tarn::Widgets::FramelessMessageBox;
using Tarn::Widgets::FramelessMessageBoxPrivate;
using Tarn::Widgets::MessageLabel;
using Tarn::Widgets::QMessageBoxDetailsText;

namespace {

/* A place in a grid: row, column, rows, columns. */
using Place = QRect;

Place place(int row, int column, int rows, int columns)
{
    return {column, row, columns, rows};
}

class ResizeCount : public QObject
{
public:
    explicit ResizeCount(QWidget *widget)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Resize ? 1 : 0;
        return false;
    }

    int count = 0;
};

class Box : public FramelessMessageBox
{
public:
    using FramelessMessageBox::FramelessMessageBox;
    using FramelessMessageBox::m_pApplyButton;
    using FramelessMessageBox::m_pBottomLayout;
    using FramelessMessageBox::m_pCancelButton;
    using FramelessMessageBox::m_pOKButton;

    bool event(QEvent *event) override
    {
        layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return FramelessMessageBox::event(event);
    }

    QLabel *label(const char *name) const
    {
        return findChild<QLabel *>(QString::fromLatin1(name));
    }
    QLabel *main() const
    {
        return label("qt_msgbox_label");
    }
    QLabel *iconLabel() const
    {
        return label("qt_msgboxex_icon_label");
    }
    QLabel *informative() const
    {
        return label("qt_msgbox_informativelabel");
    }
    QMessageBoxDetailsText *details() const
    {
        return findChild<QMessageBoxDetailsText *>();
    }
    QTextEdit *editor() const
    {
        return findChild<QTextEdit *>();
    }
    QAbstractButton *detailsButton() const
    {
        const QList<QAbstractButton *> all = buttons();
        for (QAbstractButton *button : all) {
            if (dynamic_cast<DetailButton *>(button))
                return button;
        }
        return nullptr;
    }
    QDialogButtonBox *buttonBox() const
    {
        return findChild<QDialogButtonBox *>(QStringLiteral("qt_msgbox_buttonbox"));
    }
    QGridLayout *grid() const
    {
        return qobject_cast<QGridLayout *>(layout()->itemAt(1)->layout());
    }
    Place placeOf(QWidget *widget) const
    {
        const int index = grid()->indexOf(widget);
        return index < 0 ? Place() : placeOf(index);
    }
    Place placeOf(int index) const
    {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid()->getItemPosition(index, &row, &column, &rows, &columns);
        return place(row, column, rows, columns);
    }
    Qt::Alignment alignmentOf(QWidget *widget) const
    {
        return grid()->itemAt(grid()->indexOf(widget))->alignment();
    }
    QList<int> spacers() const
    {
        QList<int> found;
        for (int i = 0; i < grid()->count(); ++i) {
            if (grid()->itemAt(i)->spacerItem())
                found.append(i);
        }
        return found;
    }

    int layoutRequests = 0;
};

/* Has icons of a size of its own, and remembers which was asked for. */
class IconStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_MessageBoxIconSize ? 23 : QProxyStyle::pixelMetric(metric, option, widget);
    }
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override
    {
        asked = which;
        return QProxyStyle::standardIcon(which, option, widget);
    }

    mutable int asked = -1;
};

void show(QWidget &widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

QString wordOfWidth(const QLabel *label, int width)
{
    QString word;
    while (label->fontMetrics().horizontalAdvance(word) < width)
        word.append(QLatin1Char('W'));
    return word;
}

QPixmap square(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::red);
    return pixmap;
}

/* What the box needs besides its content, and the air below that. */
int outerHeight(const Box &box)
{
    return box.noCentralHeight() + 10;
}

/* What is done with a label before its texts come. */
using Prepare = std::function<void(QLabel *)>;

} // namespace

Q_DECLARE_METATYPE(QMessageBox::Icon)
Q_DECLARE_METATYPE(Prepare)

class tst_FramelessMessageBoxLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelGivesTheSizesOfQLabel_data();
    void labelGivesTheSizesOfQLabel();
    void init()
    {
        m_guard.emplace();
        QCOMPARE(QApplication::primaryScreen()->availableGeometry().width(), ScreenWidth);
    }
    void cleanup()
    {
        m_guard.reset();
    }

    // Parts
    void labelsHaveTheirNamesAndPolicies();
    void buttonBoxIsInTheBottomBarBehindTheHiddenButtons();
    void buttonBoxStaysLastWhenTheLayoutIsRebuilt();
    void contentIsCentredBetweenTwoStretches();

    // Grid
    void gridWithoutInformativeText_data();
    void gridWithoutInformativeText();
    void gridWithInformativeText_data();
    void gridWithInformativeText();
    void checkBoxIsBelowTheTexts_data();
    void checkBoxIsBelowTheTexts();
    void detailsSpanTheWholeGrid_data();
    void detailsSpanTheWholeGrid();
    void informativeTextColoursTheMainTextForGood();
    void informativeLabelComesAndGoes();
    void everyChangeRebuildsTheGrid();

    // Details
    void detailsAreHiddenUntilAsked();
    void detailsAreMadeOfLineAndEditor();
    void detailsComeAndGo();
    void newDetailsKeepTheButtonAndTheState();
    void detailsButtonTextFollowsTheState();
    void detailsButtonFitsBothTexts();
    void detailsButtonFollowsLanguageAndFont();
    void detailsButtonIsMeasuredInTheFontOfItsStyleSheet();
    void detailsButtonIsMeasuredWithoutTheSignsOfMnemonics();
    void contextMenuOfTheDetailsPopsUp();

    // Icons
    void standardIconIsTheStyles_data();
    void standardIconIsTheStyles();
    void standardIconWithoutABoxIsTheApplicationStyles();

    // Size
    void limitsFollowTheScreen_data();
    void limitsFollowTheScreen();
    void limitIsThePrimaryScreensWhereTheCursorIsOnNone();
    void smallestBox();
    void hiddenBoxIsNotSized();
    void titleWidensUpToTheScreen_data();
    void titleWidensUpToTheScreen();
    void titleIsMeasuredInTheFontOfInnerWindowTitles();
    void textBelowTheSoftLimitIsOneLine();
    void longTextWrapsAtTheSoftLimit();
    void longWordWidensUpToTheHardLimit_data();
    void longWordWidensUpToTheHardLimit();
    void longWordWidensABoxWithAnInformativeText();
    void longInformativeWordWidensUpToTheHardLimit_data();
    void longInformativeWordWidensUpToTheHardLimit();
    void heightIsThatOfTheContentAndTheBars();
    void buttonsHaveNoSayInTheWidth();
    void detailButtonIsAsLargeAsTheGlobalStrut();
    void visibleBoxFollowsItsTexts();
    void partsAddedToAVisibleBoxCountOnceTheyAreShown();
    void togglingTheDetailsTwiceRestoresTheSize();
    void togglingTheDetailsLeavesTheTextsAlone();
    void textIsPlacedAtOnceInABoxThatKeepsItsSize();
    void sizingLeavesNoLayoutRequestBehind();
    void sizingLeavesTheLayoutRequestsOfOthers();
    void minimumSizeOfTheCallerIsOverwritten();

private:
    static constexpr int ScreenWidth = 800; // of the platform without a screen
    std::optional<FunctionGuard> m_guard;
};

// Parts

void tst_FramelessMessageBoxLayout::labelsHaveTheirNamesAndPolicies()
{
    Box box;
    box.setInformativeText(QStringLiteral("more"));
    const Qt::TextInteractionFlags flags(
        box.style()->styleHint(QStyle::SH_MessageBox_TextInteractionFlags, nullptr, &box));
    QCOMPARE(box.main()->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    QCOMPARE(box.iconLabel()->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(box.iconLabel()->parentWidget(), &box);
    for (const QLabel *label : {box.main(), box.informative()}) {
        QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(label->textInteractionFlags(), flags);
        QVERIFY(label->openExternalLinks());
    }
    QVERIFY(box.informative()->wordWrap());
    QCOMPARE(box.buttonBox()->centerButtons(),
             box.style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, &box) != 0);
}

void tst_FramelessMessageBoxLayout::buttonBoxIsInTheBottomBarBehindTheHiddenButtons()
{
    Box box;
    box.addButton(QMessageBox::Ok);
    show(box);
    for (const QPushButton *button : {box.m_pOKButton, box.m_pCancelButton, box.m_pApplyButton})
        QVERIFY(button->isHidden());
    const QLayout *bottom = box.m_pBottomLayout;
    QCOMPARE(bottom->count(), 5);
    QVERIFY(bottom->itemAt(0)->spacerItem());
    QCOMPARE(bottom->itemAt(4)->widget(), box.buttonBox());
    QCOMPARE(box.grid()->indexOf(box.buttonBox()), -1);
    QVERIFY(box.buttonBox()->isVisible());
}

void tst_FramelessMessageBoxLayout::buttonBoxStaysLastWhenTheLayoutIsRebuilt()
{
    Box box;
    box.setIcon(QMessageBox::Warning);
    box.setInformativeText(QStringLiteral("more"));
    QCOMPARE(box.m_pBottomLayout->count(), 5);
    QCOMPARE(box.m_pBottomLayout->itemAt(4)->widget(), box.buttonBox());
}

void tst_FramelessMessageBoxLayout::contentIsCentredBetweenTwoStretches()
{
    Box box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("x"));
    const auto *outer = qobject_cast<QVBoxLayout *>(box.layout());
    QVERIFY(outer);
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->contentsMargins(), QMargins(1, 0, 1, 0)); // the dialog's border
    QCOMPARE(outer->count(), 3);
    QVERIFY(outer->itemAt(0)->spacerItem());
    QVERIFY(box.grid());
    QVERIFY(outer->itemAt(2)->spacerItem());
    show(box);
    const QRect content = outer->geometry();
    QVERIFY(qAbs((box.grid()->geometry().top() - content.top())
                 - (content.bottom() - box.grid()->geometry().bottom()))
            <= 1);
}

// Grid

void tst_FramelessMessageBoxLayout::gridWithoutInformativeText_data()
{
    QTest::addColumn<bool>("withIcon");
    QTest::newRow("icon") << true;
    QTest::newRow("no icon") << false;
}

void tst_FramelessMessageBoxLayout::gridWithoutInformativeText()
{
    QFETCH(bool, withIcon);

    Box box;
    box.setText(QStringLiteral("text"));
    box.setIconPixmap(withIcon ? square(32) : QPixmap());
    const QGridLayout *grid = box.grid();
    QCOMPARE(grid->contentsMargins(), QMargins(20, 10, 20, 10));
    QCOMPARE(grid->verticalSpacing(), 16);
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->sizeConstraint(), QLayout::SetNoConstraint);
    QCOMPARE(box.iconLabel()->isHidden(), !withIcon);

    const int column = withIcon ? 2 : 1;
    QCOMPARE(box.placeOf(box.main()), place(0, column, 2, 2));
    QCOMPARE(box.alignmentOf(box.main()), Qt::AlignVCenter);
    QCOMPARE(box.placeOf(box.iconLabel()), withIcon ? place(0, 0, 2, 1) : Place());
    if (withIcon)
        QCOMPARE(box.alignmentOf(box.iconLabel()), Qt::AlignVCenter);

    const QList<int> spacers = box.spacers();
    QCOMPARE(spacers.size(), 1);
    QCOMPARE(box.placeOf(spacers.first()), place(0, column - 1, 2, 1));
    const QLayoutItem *indent = grid->itemAt(spacers.first());
    QCOMPARE(indent->sizeHint(), QSize(withIcon ? 7 : 15, 1));
    QCOMPARE(indent->expandingDirections(), Qt::Orientations());
    QCOMPARE(indent->maximumSize(), indent->sizeHint());
    QCOMPARE(box.main()->styleSheet(), QString());
}

void tst_FramelessMessageBoxLayout::gridWithInformativeText_data()
{
    gridWithoutInformativeText_data();
}

void tst_FramelessMessageBoxLayout::gridWithInformativeText()
{
    QFETCH(bool, withIcon);

    Box box;
    box.setText(QStringLiteral("text"));
    box.setIconPixmap(withIcon ? square(32) : QPixmap());
    box.setInformativeText(QStringLiteral("more"));
    const QGridLayout *grid = box.grid();
    QCOMPARE(grid->contentsMargins(), QMargins(20, 10, 20, 24));
    QCOMPARE(grid->verticalSpacing(), 2);

    const int column = withIcon ? 2 : 1;
    QCOMPARE(box.placeOf(box.main()), place(0, column, 1, 2));
    QCOMPARE(box.alignmentOf(box.main()), Qt::Alignment());
    QCOMPARE(box.placeOf(box.informative()), place(1, column, 2, 2));
    QCOMPARE(box.informative()->contentsMargins(), QMargins(0, 7, 0, 7));
    QCOMPARE(box.placeOf(box.iconLabel()), withIcon ? place(0, 0, 1, 1) : Place());
    if (withIcon)
        QCOMPARE(box.alignmentOf(box.iconLabel()), Qt::AlignTop);
    QCOMPARE(box.placeOf(box.spacers().first()), place(0, column - 1, 2, 1));
}

void tst_FramelessMessageBoxLayout::checkBoxIsBelowTheTexts_data()
{
    QTest::addColumn<bool>("withIcon");
    QTest::addColumn<bool>("withInformativeText");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("spacerRow");
    QTest::newRow("icon") << true << false << 1 << 2;
    QTest::newRow("no icon") << false << false << 1 << 2;
    QTest::newRow("icon, informative text") << true << true << 2 << 3;
    QTest::newRow("no icon, informative text") << false << true << 2 << 3;
}

void tst_FramelessMessageBoxLayout::checkBoxIsBelowTheTexts()
{
    QFETCH(bool, withIcon);
    QFETCH(bool, withInformativeText);
    QFETCH(int, row);
    QFETCH(int, spacerRow);

    Box box;
    box.setIconPixmap(withIcon ? square(32) : QPixmap());
    if (withInformativeText)
        box.setInformativeText(QStringLiteral("more"));
    auto *check = new QCheckBox(QStringLiteral("again"));
    box.setCheckBox(check);
    QCOMPARE(box.placeOf(check), place(row, withIcon ? 2 : 1, 1, 1));
    QCOMPARE(box.alignmentOf(check), Qt::AlignLeft);

    const QList<int> spacers = box.spacers();
    QCOMPARE(spacers.size(), 2);
    QCOMPARE(box.placeOf(spacers.last()), place(spacerRow, 0, 1, 1));
    QCOMPARE(box.grid()->itemAt(spacers.last())->minimumSize(), QSize(1, 7));
    QCOMPARE(box.grid()->itemAt(spacers.last())->maximumSize(), QSize(1, 7));
}

void tst_FramelessMessageBoxLayout::detailsSpanTheWholeGrid_data()
{
    QTest::addColumn<bool>("withIcon");
    QTest::addColumn<bool>("withCheckBox");
    QTest::addColumn<Place>("expected");
    QTest::newRow("icon") << true << false << place(2, 0, 1, 4);
    QTest::newRow("no icon") << false << false << place(2, 0, 1, 3);
    QTest::newRow("icon, check box") << true << true << place(3, 0, 1, 4);
}

void tst_FramelessMessageBoxLayout::detailsSpanTheWholeGrid()
{
    QFETCH(bool, withIcon);
    QFETCH(bool, withCheckBox);
    QFETCH(Place, expected);

    Box box;
    box.setIconPixmap(withIcon ? square(32) : QPixmap());
    if (withCheckBox)
        box.setCheckBox(new QCheckBox);
    box.setDetailedText(QStringLiteral("details"));
    QCOMPARE(box.placeOf(box.details()), expected);
}

void tst_FramelessMessageBoxLayout::informativeTextColoursTheMainTextForGood()
{
    Box box;
    box.setText(QStringLiteral("text"));
    box.setInformativeText(QStringLiteral("more"));
    const QString sheet = QStringLiteral("font-size:16px;color:#e67007;");
    QCOMPARE(box.main()->styleSheet(), sheet);
    QCOMPARE(box.informative()->styleSheet(), QStringLiteral("font-size:14px;"));
    show(box);
    QCOMPARE(box.main()->font().pixelSize(), 16);
    QCOMPARE(box.main()->palette().color(QPalette::WindowText), QColor(0xe6, 0x70, 0x07));
    QCOMPARE(box.informative()->font().pixelSize(), 14);

    box.setInformativeText(QString());
    QCOMPARE(box.main()->styleSheet(), sheet);
    QCOMPARE(box.grid()->verticalSpacing(), 16);
    QCOMPARE(box.grid()->contentsMargins(), QMargins(20, 10, 20, 10));
}

void tst_FramelessMessageBoxLayout::informativeLabelComesAndGoes()
{
    Box box;
    box.setInformativeText(QString());
    QVERIFY(!box.informative());
    box.setInformativeText(QStringLiteral("more"));
    const QPointer<QLabel> label = box.informative();
    box.setInformativeText(QStringLiteral("even more"));
    QCOMPARE(box.informative(), label.data());
    QCOMPARE(box.informativeText(), QStringLiteral("even more"));

    box.setInformativeText(QString());
    QVERIFY(label->isHidden());
    QCOMPARE(box.informativeText(), QString());
    QTRY_VERIFY(!label);
}

void tst_FramelessMessageBoxLayout::everyChangeRebuildsTheGrid()
{
    Box box;
    QPointer<QLayout> former;
    const auto rebuilds = [&](const std::function<void()> &change) {
        former = box.layout();
        change();
        return !former && box.layout();
    };
    QVERIFY(rebuilds([&] { box.setIconPixmap(QPixmap()); }));
    QVERIFY(rebuilds([&] { box.setIcon(QMessageBox::Warning); }));
    QVERIFY(rebuilds([&] { box.setCheckBox(new QCheckBox); }));
    QVERIFY(rebuilds([&] { box.setCheckBox(nullptr); }));
    QVERIFY(rebuilds([&] { box.setInformativeText(QStringLiteral("i")); }));
    QVERIFY(rebuilds([&] { box.setInformativeText(QString()); }));
    QVERIFY(rebuilds([&] { box.setDetailedText(QStringLiteral("d")); }));
    QVERIFY(rebuilds([&] { box.setDetailedText(QString()); }));
    QVERIFY(!rebuilds([&] { box.setText(QStringLiteral("t")); }));
}

// Details

void tst_FramelessMessageBoxLayout::detailsAreHiddenUntilAsked()
{
    Box box;
    QVERIFY(!box.details());
    QVERIFY(!box.detailsButton());
    box.setDetailedText(QStringLiteral("details"));
    QVERIFY(box.details()->isHidden());
    QCOMPARE(box.details()->parentWidget(), &box);
    QCOMPARE(box.detailsButton()->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(box.buttonRole(box.detailsButton()), QMessageBox::ActionRole);
    show(box);
    QVERIFY(!box.details()->isVisible());
    box.detailsButton()->click();
    QVERIFY(box.details()->isVisible());
    box.detailsButton()->click();
    QVERIFY(!box.details()->isVisible());
}

void tst_FramelessMessageBoxLayout::detailsAreMadeOfLineAndEditor()
{
    Box box;
    box.setDetailedText(QStringLiteral("<b>not</b> rich"));
    const QLayout *layout = box.details()->layout();
    QVERIFY(qobject_cast<const QVBoxLayout *>(layout));
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);
    const auto *line = qobject_cast<QFrame *>(layout->itemAt(0)->widget());
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Sunken);
    QCOMPARE(layout->itemAt(1)->widget(), box.editor());
    QCOMPARE(box.editor()->minimumHeight(), 100);
    QCOMPARE(box.editor()->maximumHeight(), 100);
    QCOMPARE(box.editor()->focusPolicy(), Qt::NoFocus);
    QVERIFY(box.editor()->isReadOnly());
    QCOMPARE(box.editor()->toPlainText(), QStringLiteral("<b>not</b> rich"));
    QCOMPARE(box.detailedText(), QStringLiteral("<b>not</b> rich"));
}

void tst_FramelessMessageBoxLayout::detailsComeAndGo()
{
    Box box;
    box.setDetailedText(QString());
    box.setDetailedText(QStringLiteral("details"));
    const QPointer<QWidget> details = box.details();
    const QPointer<QAbstractButton> button = box.detailsButton();
    box.setDetailedText(QString());
    QCOMPARE(box.detailedText(), QString());
    QVERIFY(box.buttons().isEmpty());
    QVERIFY(details->isHidden());
    QVERIFY(button->isHidden());
    QTRY_VERIFY(!details);
    QVERIFY(!button);
}

void tst_FramelessMessageBoxLayout::newDetailsKeepTheButtonAndTheState()
{
    Box box;
    box.setDetailedText(QStringLiteral("a"));
    show(box);
    box.detailsButton()->click();
    const QAbstractButton *button = box.detailsButton();
    box.setDetailedText(QStringLiteral("b"));
    QCOMPARE(box.detailsButton(), button);
    QVERIFY(box.details()->isVisible());
    QCOMPARE(button->text(), QStringLiteral("Hide Details..."));
    QCOMPARE(box.detailedText(), QStringLiteral("b"));
}

void tst_FramelessMessageBoxLayout::detailsButtonTextFollowsTheState()
{
    Box box;
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    QCOMPARE(box.detailsButton()->text(), QStringLiteral("Show Details..."));
    box.detailsButton()->click();
    QCOMPARE(box.detailsButton()->text(), QStringLiteral("Hide Details..."));
    {
        const Brackets brackets("Tarn::Widgets::FramelessMessageBox");
        QTRY_COMPARE(box.detailsButton()->text(), QStringLiteral("<Hide Details...>"));
    }
    QTRY_COMPARE(box.detailsButton()->text(), QStringLiteral("Hide Details..."));
    box.detailsButton()->click();
    QCOMPARE(box.detailsButton()->text(), QStringLiteral("Show Details..."));
}

void tst_FramelessMessageBoxLayout::detailsButtonFitsBothTexts()
{
    const auto sizeFor = [](const DetailButton &button, const QString &text) {
        QStyleOptionButton option;
        option.initFrom(&button);
        if (button.autoDefault())
            option.features |= QStyleOptionButton::AutoDefaultButton;
        option.text = text;
        return button.style()->sizeFromContents(
            QStyle::CT_PushButton, &option, button.fontMetrics().size(Qt::TextShowMnemonic, text), &button);
    };
    QWidget parent;
    DetailButton button(&parent);
    QFont large = button.font();
    large.setPixelSize(30);
    button.setFont(large);
    const QSize showing = sizeFor(button, QStringLiteral("Show Details..."));
    const QSize hiding = sizeFor(button, QStringLiteral("Hide Details..."));
    QVERIFY(showing.width() != hiding.width());
    QCOMPARE(button.sizeHint(), showing.expandedTo(hiding));
    button.setText(QStringLiteral("x"));
    QCOMPARE(button.sizeHint(), showing.expandedTo(hiding));
}

void tst_FramelessMessageBoxLayout::detailsButtonFollowsLanguageAndFont()
{
    // GIVEN a button that has told its size
    DetailButton button(nullptr);
    const QSize before = button.sizeHint();
    {
        // WHEN its texts are longer, THEN it is wider
        const Brackets brackets("Tarn::Widgets::FramelessMessageBox");
        QVERIFY(button.sizeHint().width() > before.width());
    }
    QCOMPARE(button.sizeHint(), before);
    // WHEN its font is larger, THEN it is higher
    QFont large = button.font();
    large.setPixelSize(30);
    button.setFont(large);
    QVERIFY(button.sizeHint().height() > before.height());
}

void tst_FramelessMessageBoxLayout::detailsButtonIsMeasuredInTheFontOfItsStyleSheet()
{
    // GIVEN a button with a style sheet that nothing has read yet
    const QSize plain = DetailButton(nullptr).sizeHint();
    DetailButton button(nullptr);
    button.setStyleSheet(QStringLiteral("font-size: 40px;"));

    // WHEN it is asked for its size THEN that is the size of the text that will be shown
    const QSize hint = button.sizeHint();
    QVERIFY(hint.height() > plain.height());
    button.ensurePolished();
    QCOMPARE(hint, button.sizeHint());
}

void tst_FramelessMessageBoxLayout::detailsButtonIsMeasuredWithoutTheSignsOfMnemonics()
{
    // GIVEN a language whose texts have a mnemonic each
    class Mnemonics : public QTranslator
    {
    public:
        bool isEmpty() const override
        {
            return false;
        }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QLatin1Char('&') + QString::fromLatin1(text);
        }
    };
    const QSize without = DetailButton(nullptr).sizeHint();
    Mnemonics mnemonics;
    QVERIFY(QCoreApplication::installTranslator(&mnemonics));
    const DetailButton button(nullptr);
    const QSize with = button.sizeHint();
    QCoreApplication::removeTranslator(&mnemonics);

    // THEN the button is no wider for the sign that marks it
    QVERIFY(button.text().startsWith(QLatin1Char('&')));
    QCOMPARE(with, without);
}

void tst_FramelessMessageBoxLayout::contextMenuOfTheDetailsPopsUp()
{
    Box box;
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    box.detailsButton()->click();
    const QPoint where = box.editor()->mapToGlobal(QPoint(5, 5));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), where);
    QCoreApplication::sendEvent(box.editor()->viewport(), &event);

    const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->pos(), where);
    QVERIFY(menu->testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!menu->actions().isEmpty());
    menu->close();
    QTRY_VERIFY(!menu);
}

// Icons

void tst_FramelessMessageBoxLayout::standardIconIsTheStyles_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<int>("standard");
    QTest::newRow("information") << QMessageBox::Information << int(QStyle::SP_MessageBoxInformation);
    QTest::newRow("warning") << QMessageBox::Warning << int(QStyle::SP_MessageBoxWarning);
    QTest::newRow("critical") << QMessageBox::Critical << int(QStyle::SP_MessageBoxCritical);
    QTest::newRow("question") << QMessageBox::Question << int(QStyle::SP_MessageBoxQuestion);
    QTest::newRow("none") << QMessageBox::NoIcon << -1;
    QTest::newRow("unknown") << QMessageBox::Icon(7) << -1;
}

void tst_FramelessMessageBoxLayout::standardIconIsTheStyles()
{
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(int, standard);

    IconStyle style;
    FramelessMessageBox box;
    box.setStyle(&style);
    const QPixmap pixmap = FramelessMessageBoxPrivate::standardIcon(icon, &box);
    QCOMPARE(style.asked, standard);
    if (standard < 0) {
        QVERIFY(pixmap.isNull());
    } else {
        QCOMPARE(pixmap.size(), QSize(23, 23));
        QCOMPARE(
            pixmap.toImage(),
            style.standardIcon(QStyle::StandardPixmap(standard), nullptr, &box).pixmap(23, 23).toImage());
    }
    box.setStyle(nullptr);
}

void tst_FramelessMessageBoxLayout::standardIconWithoutABoxIsTheApplicationStyles()
{
    const QStyle *style = QApplication::style();
    const int size = style->pixelMetric(QStyle::PM_MessageBoxIconSize);
    const QPixmap pixmap = FramelessMessageBoxPrivate::standardIcon(QMessageBox::Warning, nullptr);
    QVERIFY(!pixmap.isNull());
    QCOMPARE(pixmap.toImage(),
             style->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size).toImage());
}

// Size

void tst_FramelessMessageBoxLayout::limitsFollowTheScreen_data()
{
    QTest::addColumn<int>("screen");
    QTest::addColumn<int>("hard");
    QTest::addColumn<int>("soft");
    QTest::newRow("1920") << 1920 << 1000 << 400;
    QTest::newRow("1480") << 1480 << 1000 << 400;
    QTest::newRow("1479") << 1479 << 999 << 400;
    QTest::newRow("1280") << 1280 << 800 << 400;
    QTest::newRow("1025") << 1025 << 545 << 400;
    QTest::newRow("1024") << 1024 << 1024 << 400;
    QTest::newRow("800") << 800 << 800 << 400;
    QTest::newRow("799") << 799 << 799 << 399;
    QTest::newRow("640") << 640 << 640 << 320;
}

void tst_FramelessMessageBoxLayout::limitsFollowTheScreen()
{
    QFETCH(int, screen);
    QFETCH(int, hard);
    QFETCH(int, soft);
    QCOMPARE(FramelessMessageBoxPrivate::hardWidthLimit(screen), hard);
    QCOMPARE(FramelessMessageBoxPrivate::softWidthLimit(screen), soft);
}

// Screens of different sizes leave places beside them, and a screen that is switched off leaves the cursor
// there.
void tst_FramelessMessageBoxLayout::limitIsThePrimaryScreensWhereTheCursorIsOnNone()
{
    // GIVEN a cursor beside all screens
    const QPoint before = QCursor::pos();
    QCursor::setPos(-5000, -5000);
    QVERIFY(!QGuiApplication::screenAt(QCursor::pos()));

    // WHEN a box with a long text is shown
    Box box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("word ").repeated(500));
    show(box);
    const QSize beside = box.size();
    QCursor::setPos(before);

    // THEN it is as large as one on the primary screen
    QVERIFY(QGuiApplication::screenAt(QCursor::pos()) == QGuiApplication::primaryScreen());
    Box other(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("word ").repeated(500));
    show(other);
    QCOMPARE(beside, other.size());
}

void tst_FramelessMessageBoxLayout::smallestBox()
{
    Box box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("x"));
    show(box);
    QCOMPARE(box.size(), QSize(400, 220));
    QCOMPARE(box.minimumSize(), QSize(400, 220));
    QCOMPARE(box.maximumSize(), QSize(400, 220));
}

void tst_FramelessMessageBoxLayout::hiddenBoxIsNotSized()
{
    Box box;
    const QSize before = box.size();
    const QSize maximum = box.maximumSize();
    box.setText(QStringLiteral("many words ").repeated(100));
    box.setInformativeText(QStringLiteral("more"));
    box.setStandardButtons(QMessageBox::Ok);
    QCOMPARE(box.size(), before);
    QCOMPARE(box.maximumSize(), maximum);
    QVERIFY(!box.main()->wordWrap()); // sizing would have switched it on
}

void tst_FramelessMessageBoxLayout::titleWidensUpToTheScreen_data()
{
    QTest::addColumn<int>("letters");
    QTest::newRow("wider than the smallest box") << 50;
    QTest::newRow("wider than the screen") << 300;
}

void tst_FramelessMessageBoxLayout::titleWidensUpToTheScreen()
{
    QFETCH(int, letters);

    const QString title(letters, QLatin1Char('W'));
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    const int expected = qMin(metrics.horizontalAdvance(title) + 50, ScreenWidth);
    QVERIFY(expected > 400);

    Box box(QMessageBox::NoIcon, title, QStringLiteral("x"));
    show(box);
    QCOMPARE(box.width(), expected);
}

void tst_FramelessMessageBoxLayout::titleIsMeasuredInTheFontOfInnerWindowTitles()
{
    const QFont before = QApplication::font("QMdiSubWindowTitleBar");
    QFont large = before;
    large.setPixelSize(QFontInfo(before).pixelSize() + 6);
    const QString title(500 / QFontMetrics(large).horizontalAdvance(QLatin1Char('W')), QLatin1Char('W'));
    const int expected = QFontMetrics(large).horizontalAdvance(title) + 50;
    QVERIFY(expected > 400 && expected < ScreenWidth);
    QVERIFY(expected > QFontMetrics(QApplication::font()).horizontalAdvance(title) + 50);

    Box box(QMessageBox::NoIcon, title, QStringLiteral("x"));
    QApplication::setFont(large, "QMdiSubWindowTitleBar");
    show(box);
    QApplication::setFont(before, "QMdiSubWindowTitleBar");
    QCOMPARE(box.width(), expected);
}

void tst_FramelessMessageBoxLayout::textBelowTheSoftLimitIsOneLine()
{
    Box box;
    box.setText(QStringLiteral("a few words in a line"));
    show(box);
    QCOMPARE(box.width(), 400);
    QVERIFY(box.main()->wordWrap()); // from the first sizing on
    QVERIFY(box.main()->height() < 2 * box.main()->fontMetrics().lineSpacing());
}

void tst_FramelessMessageBoxLayout::longTextWrapsAtTheSoftLimit()
{
    Box box;
    box.setText(QStringLiteral("many words ").repeated(40));
    show(box);
    QCOMPARE(box.width(), 400);
    QVERIFY(box.main()->height() > 4 * box.main()->fontMetrics().lineSpacing());
}

void tst_FramelessMessageBoxLayout::longWordWidensUpToTheHardLimit_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("below the limit") << 500;
    QTest::newRow("above the limit") << 900;
}

void tst_FramelessMessageBoxLayout::longWordWidensUpToTheHardLimit()
{
    QFETCH(int, width);

    Box box;
    box.setText(wordOfWidth(box.main(), width));
    show(box);
    const int needed = box.main()->minimumSizeHint().width() + 15 + 2 * 20 + 2;
    QVERIFY(needed > width);
    QCOMPARE(box.width(), qMin(needed, ScreenWidth));
}

void tst_FramelessMessageBoxLayout::longWordWidensABoxWithAnInformativeText()
{
    Box box;
    box.setInformativeText(QStringLiteral("x"));
    box.setText(wordOfWidth(box.main(), 500));
    show(box);
    const int needed = box.main()->minimumSizeHint().width() + 15 + 2 * 20 + 2;
    QVERIFY(needed > 500 && needed < ScreenWidth);
    QCOMPARE(box.width(), needed);
}

void tst_FramelessMessageBoxLayout::longInformativeWordWidensUpToTheHardLimit_data()
{
    longWordWidensUpToTheHardLimit_data();
}

void tst_FramelessMessageBoxLayout::longInformativeWordWidensUpToTheHardLimit()
{
    QFETCH(int, width);

    Box box;
    box.setText(QStringLiteral("x"));
    box.setInformativeText(wordOfWidth(box.main(), width));
    show(box);
    const int needed = box.informative()->minimumSizeHint().width() + 15 + 2 * 20 + 2;
    QVERIFY(needed > 400);
    QCOMPARE(box.width(), qMin(needed, ScreenWidth));

    // and leaves the policies of a text that has height for width
    for (const QLabel *label : {box.main(), box.informative()}) {
        QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
        QVERIFY(label->sizePolicy().hasHeightForWidth());
    }
}

void tst_FramelessMessageBoxLayout::heightIsThatOfTheContentAndTheBars()
{
    Box box;
    box.setText(QStringLiteral("many words ").repeated(100));
    show(box);
    QVERIFY(box.layout()->hasHeightForWidth());
    QCOMPARE(box.height(), box.layout()->totalHeightForWidth(box.width()) + outerHeight(box));
    QVERIFY(box.height() > 220);
}

// Kept: those that do not fit get narrower.
void tst_FramelessMessageBoxLayout::buttonsHaveNoSayInTheWidth()
{
    Box box;
    for (int i = 0; i < 8; ++i)
        box.addButton(QStringLiteral("A button with a long text"), QMessageBox::ActionRole);
    show(box);
    QCOMPARE(box.width(), 400);
    const QList<QAbstractButton *> buttons = box.buttons();
    QVERIFY(buttons.first()->width() < buttons.first()->sizeHint().width());
}

void tst_FramelessMessageBoxLayout::detailButtonIsAsLargeAsTheGlobalStrut()
{
    const QSize strut(300, 80);
    const DetailButton button(nullptr);
    QVERIFY(button.sizeHint().width() < strut.width());
    QVERIFY(button.sizeHint().height() < strut.height());
    QApplication::setGlobalStrut(strut);
    const QSize hint = button.sizeHint();
    QApplication::setGlobalStrut(QSize());
    QCOMPARE(hint, strut);
}

void tst_FramelessMessageBoxLayout::visibleBoxFollowsItsTexts()
{
    Box box;
    show(box);
    QCOMPARE(box.size(), QSize(400, 220));
    box.setText(QStringLiteral("many words ").repeated(100));
    QVERIFY(box.height() > 220); // at once
    box.setText(QStringLiteral("few"));
    QCOMPARE(box.size(), QSize(400, 220));
    box.setTextFormat(Qt::RichText);
    QCOMPARE(box.size(), QSize(400, 220));
    box.setText(QStringLiteral("many<br>").repeated(40));
    const int highAsRichText = box.height();
    QVERIFY(highAsRichText > 220);
    box.setTextFormat(Qt::PlainText);
    QVERIFY(box.height() < highAsRichText); // one line of tags
    box.setText(QStringLiteral("few"));
    box.setStandardButtons(QMessageBox::Ok);
    QCOMPARE(box.size(), QSize(400, 220));
}

void tst_FramelessMessageBoxLayout::partsAddedToAVisibleBoxCountOnceTheyAreShown()
{
    Box box;
    box.setText(QStringLiteral("text"));
    show(box);
    box.setInformativeText(QStringLiteral("many words ").repeated(100));
    QTRY_VERIFY(box.informative()->isVisible());
    QTRY_COMPARE(box.height(), box.layout()->totalHeightForWidth(box.width()) + outerHeight(box));
    QVERIFY(box.height() > 220);
}

void tst_FramelessMessageBoxLayout::togglingTheDetailsTwiceRestoresTheSize()
{
    Box box(QMessageBox::Warning, QStringLiteral("t"), QStringLiteral("many words ").repeated(30));
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    const QSize closed = box.size();
    QVERIFY(closed.height() > 220); // or the details might find room
    box.detailsButton()->click();
    QVERIFY(box.height() >= closed.height() + 100);
    const QSize open = box.size();
    box.detailsButton()->click();
    QCOMPARE(box.size(), closed);
    box.detailsButton()->click();
    QCOMPARE(box.size(), open);
}

// A selectable text is laid out anew each time its label gets another size, be it for a moment.
void tst_FramelessMessageBoxLayout::togglingTheDetailsLeavesTheTextsAlone()
{
    // GIVEN an open box whose details were seen once
    Box box(QMessageBox::Warning, QStringLiteral("t"), QStringLiteral("many words ").repeated(9));
    box.setInformativeText(QStringLiteral("more words ").repeated(9));
    box.setDetailedText(QStringLiteral("details"));
    show(box);
    box.detailsButton()->click();
    box.detailsButton()->click();
    const int closedHeight = box.height();
    const QRect closedText = box.informative()->geometry();
    ResizeCount ofMain(box.main());
    ResizeCount ofInformative(box.informative());
    ResizeCount ofDetails(box.details());

    // WHEN they are shown
    box.detailsButton()->click();

    // THEN they find their place at once, and the texts have kept their sizes all the time
    QVERIFY(box.height() > closedHeight);
    QVERIFY(box.details()->isVisible());
    QVERIFY(box.details()->y() > box.informative()->geometry().bottom());
    QCOMPARE(box.details()->height(), box.details()->sizeHint().height());
    QCOMPARE(ofDetails.count, 0);
    QCOMPARE(ofMain.count, 0);
    QCOMPARE(ofInformative.count, 0);

    // WHEN they are hidden THEN likewise
    box.detailsButton()->click();
    QCOMPARE(box.height(), closedHeight);
    QCOMPARE(box.informative()->geometry(), closedText);
    QCOMPARE(ofMain.count, 0);
    QCOMPARE(ofInformative.count, 0);
}

void tst_FramelessMessageBoxLayout::textIsPlacedAtOnceInABoxThatKeepsItsSize()
{
    Box box(QMessageBox::NoIcon, QString(), QStringLiteral("one line"));
    show(box);
    const QSize size = box.size();
    const int oneLine = box.main()->height();
    box.setText(QStringLiteral("two\nlines"));
    QCOMPARE(box.size(), size); // otherwise the new size would place it
    QVERIFY(box.main()->height() > oneLine);
    QCOMPARE(box.main()->height(), box.main()->heightForWidth(box.main()->width()));
}

void tst_FramelessMessageBoxLayout::sizingLeavesNoLayoutRequestBehind()
{
    Box box;
    show(box);
    QCoreApplication::sendPostedEvents();
    const int before = box.layoutRequests;
    box.setText(QStringLiteral("many words ").repeated(100));
    QCoreApplication::sendPostedEvents(&box, QEvent::LayoutRequest);
    QCOMPARE(box.layoutRequests, before);
}

void tst_FramelessMessageBoxLayout::sizingLeavesTheLayoutRequestsOfOthers()
{
    class Other : public QWidget
    {
    public:
        bool event(QEvent *event) override
        {
            layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return QWidget::event(event);
        }

        int layoutRequests = 0;
    };
    Other other;
    Box box;
    show(box);
    QCoreApplication::postEvent(&other, new QEvent(QEvent::LayoutRequest));
    box.setText(QStringLiteral("many words ").repeated(100));
    QCoreApplication::sendPostedEvents(&other, QEvent::LayoutRequest);
    QCOMPARE(other.layoutRequests, 1);
}

void tst_FramelessMessageBoxLayout::minimumSizeOfTheCallerIsOverwritten()
{
    Box box;
    box.setMinimumSize(600, 500);
    show(box);
    QCOMPARE(box.size(), QSize(400, 220));
}

void tst_FramelessMessageBoxLayout::labelGivesTheSizesOfQLabel_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::newRow("as it comes") << Prepare([](QLabel *) {});
    QTest::newRow("selectable") << Prepare(
        [](QLabel *label) { label->setTextInteractionFlags(Qt::TextSelectableByMouse); });
    QTest::newRow("selectable by keys")
        << Prepare([](QLabel *label) { label->setTextInteractionFlags(Qt::TextSelectableByKeyboard); });
    QTest::newRow("contents margins") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setContentsMargins(3, 7, 5, 11);
    });
    QTest::newRow("margin and indent") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setMargin(4);
        label->setIndent(9);
    });
    QTest::newRow("frame") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setFrameStyle(QFrame::Box | QFrame::Plain);
        label->setLineWidth(3);
    });
    QTest::newRow("style sheet") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setStyleSheet(QStringLiteral("font-size: 23px; padding: 5px; border: 2px solid red;"));
    });
    QTest::newRow("plain text") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setTextFormat(Qt::PlainText);
    });
    QTest::newRow("rich text") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setTextFormat(Qt::RichText);
    });
    QTest::newRow("least width") << Prepare([](QLabel *label) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setMinimumSize(120, 60);
    });
}

void tst_FramelessMessageBoxLayout::labelGivesTheSizesOfQLabel()
{
    QFETCH(const Prepare, prepare);
    MessageLabel ours;
    QLabel qts;
    const std::initializer_list<QLabel *> both = {&ours, &qts};
    for (QLabel *label : both)
        prepare(label);

    // Each text follows another in the same label, so that nothing kept from the former may show.
    const QStringList texts = {
        QStringLiteral("short"),
        QString(),
        QStringLiteral("two\nlines"),
        QStringLiteral("some words that are too many for a narrow label but not for a wide one"),
        QStringLiteral("<b>bold</b> and <i>italic</i>"),
        QStringLiteral("averylongwordthatnolabelcanwrapanywhere in between"),
        QString::fromUtf8("\u8bb0\u5f55\u5df2\u4fdd\u5b58 \u786e\u5b9a \u53d6\u6d88"),
        QStringLiteral("a &amp; b   with   spaces \n\n and empty lines\n"),
        QStringLiteral("word ").repeated(200),
    };
    for (const int pixels : {11, 16}) {
        for (const QString &text : texts) {
            for (const bool wraps : {false, true, false, true}) {
                for (QLabel *label : both) {
                    QFont font;
                    font.setPixelSize(pixels);
                    label->setFont(font);
                    label->setText(text);
                    label->setWordWrap(wraps);
                }
                QCOMPARE(ours.sizeHint(), qts.sizeHint());
                QCOMPARE(ours.minimumSizeHint(), qts.minimumSizeHint());
                for (const int width : {0, 1, 40, 133, 134, 400, 2000})
                    QCOMPARE(ours.heightForWidth(width), qts.heightForWidth(width));
            }
        }
    }
}

QTEST_MAIN(tst_FramelessMessageBoxLayout)

#include "tst_framelessmessagebox_layout.moc"
