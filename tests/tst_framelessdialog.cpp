// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What the dialog is made of, its content, title and buttons. The other tst_framelessdialog_*.cpp hold the
// rest.

#include "support/functionguard.h"
#include "support/testdialog.h"

#include <QAccessible>
#include <QAction>
#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolButton>
#include <QWindow>
#include <optional>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::TitleBar;

namespace {

using Setter = void (FramelessDialog::*)(bool);

QWidget &asWidget(QWidget &widget)
{
    return widget;
}

QString itemName(const TestDialog &dialog, QLayoutItem *item)
{
    if (QLayout *layout = item->layout())
        return layout->indexOf(dialog.m_pTitleBar) >= 0 ? QStringLiteral("title") : layout->objectName();
    if (item->widget() == dialog.m_pBottomWidget)
        return QStringLiteral("bottom bar");
    if (item->widget()->property("isBackgroundSeparator").toBool())
        return QStringLiteral("line");
    return item->widget()->objectName();
}

// The main layout from top to bottom; what the test put there by its object name.
QString mainItems(const TestDialog &dialog)
{
    QStringList names;
    for (int i = 0; i < dialog.getMainLayout()->count(); ++i)
        names.append(itemName(dialog, dialog.getMainLayout()->itemAt(i)));
    return names.join(QStringLiteral(", "));
}

QVBoxLayout *namedLayout(const QString &name)
{
    auto *layout = new QVBoxLayout;
    layout->setObjectName(name);
    return layout;
}

QIcon someIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

QString accessibleText(QWidget &widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

} // namespace

Q_DECLARE_METATYPE(Setter)

class tst_FramelessDialog : public QObject
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

    // What it is made of
    void flagsAreThoseGivenAndFramelessAndBypassing_data();
    void flagsAreThoseGivenAndFramelessAndBypassing();
    void groundIsTranslucent();
    void classWideColorsAreDarkGreys();
    void selectorsAreSet();
    void mainLayoutIsTheLayoutOfTheDialog();
    void titleLayoutHoldsTheTitleBarAlone();
    void separatorsAreFrameLines();
    void bottomBarHoldsThreeButtonsAtItsRight();
    void protectedMembersAreThePieces();
    void helperIsActiveOnTheDialog();
    void titleHeightIsSetForTheWholeProcess();
    void sizeIsCappedAtTheScreensAvailableArea();
    void showSlotsCanBeCalledByName();
    void newDialogShowsLogoAndCloseButtonOnly();
    void newDialogIsMovableAndNotResizable();

    // Content
    void contentHolderIsMadeOnceBetweenTheLines();
    void contentHolderIsMadeAnewAfterItsDeletion();
    void layoutGoesBetweenTheLinesWithWiderMargins();
    void layoutIsTheContentsAndNotTheMainOne();
    void layoutOfTheHolderCountsWhereNoneWasSet();
    void holderComesAboveAnEarlierLayout();
    void laterLayoutComesAboveTheHolder();
    void secondLayoutComesAboveTheFirst();
    void sameLayoutTwiceIsTakenOnce();
    void deletedLayoutIsForgotten();
    void nullLayoutIsIgnored();
    void layoutOfAnotherOwnerIsLeftThere_data();
    void layoutOfAnotherOwnerIsLeftThere();
    void layoutMadeWithTheDialogAsItsParentIsTaken();
    void heightBesidesTheContentFollowsTheTitleBar();

    // Title and icon
    void titleIsTheTitleBars();
    void titleReachesPlatformAndScreenReaders_data();
    void titleReachesPlatformAndScreenReaders();
    void titleReachesAWindowThatIsMadeAnew();
    void accessibleNameOfTheApplicationStays();
    void titleAlignmentIsTheLabels();
    void iconIsTheLogosAndTheWindows();
    void titleButtonIconsAreForwarded();
    void extraTitleButtonsAreForwarded();

    // Buttons
    void minButtonCanBeShown();
    void maxButtonShowsTheOneThatTheStateAsksFor_data();
    void maxButtonShowsTheOneThatTheStateAsksFor();
    void hidingTheMaxButtonEndsResizing();
    void showingTheMaxButtonDoesNotBringResizingBack();
    void closeButtonVisibilityIsThatOnScreen();
    void bottomButtonsAreShownAndHidden_data();
    void bottomButtonsAreShownAndHidden();
    void okButtonDefaultCanBeTakenAndGiven();
    void bottomBarGoesWithTheLowerLineOnly();
    void lineHeightIsThatOfBothLines();
    void lineHeightWithoutLinesIsIgnored();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessDialog::flagsAreThoseGivenAndFramelessAndBypassing_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<Qt::WindowFlags>("flags");
    for (const bool withParent : {false, true}) {
        const char *parent = withParent ? "with a parent" : "without a parent";
        QTest::addRow("no flags, %s", parent) << withParent << Qt::WindowFlags();
        QTest::addRow("a dialog, %s", parent) << withParent << Qt::WindowFlags(Qt::Dialog);
        QTest::addRow("a tool window, %s", parent) << withParent << Qt::WindowFlags(Qt::Tool);
        QTest::addRow("always on top with a help button, %s", parent)
            << withParent << (Qt::WindowStaysOnTopHint | Qt::WindowContextHelpButtonHint);
    }
}

void tst_FramelessDialog::flagsAreThoseGivenAndFramelessAndBypassing()
{
    QFETCH(bool, withParent);
    QFETCH(Qt::WindowFlags, flags);

    // GIVEN a dialog of Qt's own with these flags and the two hints
    QWidget owner;
    QWidget *parent = withParent ? &owner : nullptr;
    QDialog plain(parent, flags | Qt::BypassWindowManagerHint);
    plain.setWindowFlags(plain.windowFlags() | Qt::FramelessWindowHint);

    // WHEN a frameless one is made with the flags
    const TestDialog dialog(parent, flags);

    // THEN it has the same ones
    QCOMPARE(dialog.windowFlags(), plain.windowFlags());
    QVERIFY(dialog.windowFlags().testFlag(Qt::BypassWindowManagerHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(dialog.parentWidget(), parent);
    QVERIFY(!dialog.isModal());
    QVERIFY(!dialog.isVisible());
}

void tst_FramelessDialog::groundIsTranslucent()
{
    const TestDialog dialog;
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_FramelessDialog::classWideColorsAreDarkGreys()
{
    QCOMPARE(FramelessDialog::m_defaultBackgroundColor, QColor(0x45, 0x45, 0x45));
    QCOMPARE(FramelessDialog::m_defaultBorderColor, QColor(0x38, 0x38, 0x38));
    QCOMPARE(FramelessDialog::m_defaultSpecialBackgroungColor, QColor(0x22, 0x21, 0x26));
    QCOMPARE(FramelessDialog::m_defaultNormalBackgroungColor, QColor(0x38, 0x3a, 0x3f));
}

void tst_FramelessDialog::selectorsAreSet()
{
    const TestDialog dialog;
    QCOMPARE(dialog.property("isFramelessDialog"), QVariant(true));
    QCOMPARE(dialog.m_pTitleBar->property("isFramelessDialogTitleBar"), QVariant(true));
    QCOMPARE(dialog.m_pBottomWidget->property("isFramelessDialogBottomWidget"), QVariant(true));
    QCOMPARE(dialog.separators().size(), 2);
}

void tst_FramelessDialog::mainLayoutIsTheLayoutOfTheDialog()
{
    TestDialog dialog;
    QVBoxLayout *layout = dialog.getMainLayout();
    QCOMPARE(asWidget(dialog).layout(), layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(dialog.contentsMargins(), QMargins());
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, line, bottom bar"));
}

void tst_FramelessDialog::titleLayoutHoldsTheTitleBarAlone()
{
    const TestDialog dialog;
    const auto *layout = qobject_cast<QHBoxLayout *>(dialog.getMainLayout()->itemAt(0)->layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 0, 1, 0));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), dialog.m_pTitleBar);
    QCOMPARE(dialog.m_pTitleBar->parentWidget(), &dialog);
}

void tst_FramelessDialog::separatorsAreFrameLines()
{
    const TestDialog dialog;
    const QVector<QFrame *> lines = dialog.separators();
    QCOMPARE(lines.size(), 2);
    for (const QFrame *line : lines) {
        QCOMPARE(line->minimumHeight(), 2);
        QCOMPARE(line->maximumHeight(), 2);
        QCOMPARE(line->frameShape(), QFrame::NoFrame);
        QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    }
}

void tst_FramelessDialog::bottomBarHoldsThreeButtonsAtItsRight()
{
    // GIVEN a dialog
    const TestDialog dialog;
    const QWidget *bar = dialog.m_pBottomWidget;
    const QHBoxLayout *layout = dialog.m_pBottomLayout;

    // THEN its bottom bar has this layout
    QCOMPARE(bar->parentWidget(), &dialog);
    QCOMPARE(bar->layout(), layout);
    QCOMPARE(layout->spacing(), 20);
    QCOMPARE(layout->contentsMargins(), QMargins(20, 10, 20, 10));

    // and in it a stretch and the buttons
    QCOMPARE(layout->count(), 4);
    const QSpacerItem *stretch = layout->itemAt(0)->spacerItem();
    QVERIFY(stretch);
    QVERIFY(stretch->expandingDirections().testFlag(Qt::Horizontal));
    QCOMPARE(layout->itemAt(1)->widget(), dialog.m_pOKButton);
    QCOMPARE(layout->itemAt(2)->widget(), dialog.m_pCancelButton);
    QCOMPARE(layout->itemAt(3)->widget(), dialog.m_pApplyButton);
    for (const QPushButton *button : {dialog.m_pOKButton, dialog.m_pCancelButton, dialog.m_pApplyButton})
        QCOMPARE(button->parentWidget(), bar);

    // with these texts; OK is the default, Apply is hidden
    QCOMPARE(dialog.m_pOKButton->text(), QStringLiteral("OK"));
    QCOMPARE(dialog.m_pCancelButton->text(), QStringLiteral("Cancel"));
    QCOMPARE(dialog.m_pApplyButton->text(), QStringLiteral("Apply"));
    QVERIFY(dialog.m_pOKButton->isDefault());
    QVERIFY(!dialog.m_pCancelButton->isDefault());
    QVERIFY(!dialog.m_pOKButton->isHidden());
    QVERIFY(!dialog.m_pCancelButton->isHidden());
    QVERIFY(dialog.m_pApplyButton->isHidden());
}

void tst_FramelessDialog::protectedMembersAreThePieces()
{
    const TestDialog dialog;
    QCOMPARE(dialog.m_pMainLayout, dialog.getMainLayout());
    QCOMPARE(dialog.m_pTitleBar, dialog.findChild<TitleBar *>());
    QCOMPARE(dialog.findChildren<TitleBar *>().size(), 1);
    QCOMPARE(dialog.m_pBottomWidget->findChildren<QPushButton *>().size(), 3);
}

void tst_FramelessDialog::helperIsActiveOnTheDialog()
{
    const TestDialog dialog;
    QCOMPARE(dialog.findChildren<FramelessHelper *>().size(), 1);
    QVERIFY(dialog.helper());
    QVERIFY(dialog.hasMouseTracking());
    QVERIFY(dialog.testAttribute(Qt::WA_Hover));
}

void tst_FramelessDialog::titleHeightIsSetForTheWholeProcess()
{
    // GIVEN a helper on its own with another title height
    FramelessHelper other;
    other.setTitleHeight(77);

    // WHEN a dialog is made
    const TestDialog dialog;

    // THEN the title height is that of its title bar, for every helper
    QCOMPARE(dialog.findChild<TitleBar *>()->height(), 24);
    QCOMPARE(other.titleHeight(), 24U);
}

void tst_FramelessDialog::sizeIsCappedAtTheScreensAvailableArea()
{
    // GIVEN a dialog
    TestDialog dialog;
    const QSize available = QGuiApplication::primaryScreen()->availableGeometry().size();
    QCOMPARE(dialog.maximumSize(), available);

    // WHEN it is to be larger than the screen
    dialog.resize(available + QSize(500, 300));

    // THEN it is as large as that
    QCOMPARE(dialog.size(), available);
}

void tst_FramelessDialog::showSlotsCanBeCalledByName()
{
    const QMetaObject &meta = FramelessDialog::staticMetaObject;
    QCOMPARE(meta.className(), "Tarn::Widgets::FramelessDialog");
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    for (const char *slot : {"show()", "showMinimized()", "showMaximized()", "showFullScreen()",
                             "showNormal()", "open()", "exec()"}) {
        const int index = meta.indexOfSlot(slot);
        QVERIFY2(index >= meta.methodOffset(), slot);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
    }
}

void tst_FramelessDialog::newDialogShowsLogoAndCloseButtonOnly()
{
    // WHEN a new dialog is shown
    TestDialog dialog;
    dialog.show();
    QVERIFY(dialog.isVisible());

    // THEN minimise, maximise and restore are missing
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Close}));
    QVERIFY(dialog.m_pTitleBar->isTitleVisible());
    QVERIFY(dialog.m_pOKButton->isVisible());
    QVERIFY(dialog.m_pCancelButton->isVisible());
    QVERIFY(!dialog.m_pApplyButton->isVisible());
}

void tst_FramelessDialog::newDialogIsMovableAndNotResizable()
{
    const TestDialog dialog;
    QVERIFY(dialog.helper()->widgetMovable());
    QVERIFY(!dialog.helper()->widgetResizable());
    QVERIFY(!dialog.helper()->rubberBandOnMove());
    QVERIFY(!dialog.helper()->rubberBandOnResisze());
}

void tst_FramelessDialog::contentHolderIsMadeOnceBetweenTheLines()
{
    // GIVEN a dialog, which has no holder unasked
    TestDialog dialog;
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, line, bottom bar"));

    // WHEN the holder is asked for
    QWidget *holder = dialog.getContentHolder();
    holder->setObjectName(QStringLiteral("holder"));

    // THEN it is a plain widget that takes all the room between the lines
    QCOMPARE(holder->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(holder->parentWidget(), &dialog);
    QCOMPARE(holder->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(holder->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, holder, line, bottom bar"));

    // and remains the one
    QCOMPARE(dialog.getContentHolder(), holder);
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, holder, line, bottom bar"));
}

void tst_FramelessDialog::contentHolderIsMadeAnewAfterItsDeletion()
{
    TestDialog dialog;
    delete dialog.getContentHolder();
    QVERIFY(!dialog.layout());
    QWidget *holder = dialog.getContentHolder();
    QVERIFY(holder);
    holder->setObjectName(QStringLiteral("holder"));
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, holder, line, bottom bar"));
}

void tst_FramelessDialog::layoutGoesBetweenTheLinesWithWiderMargins()
{
    // GIVEN a layout with a field in it
    TestDialog dialog;
    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    layout->setContentsMargins(3, 4, 5, 6);
    auto *field = new QLineEdit;
    layout->addWidget(field);

    // WHEN it is given to the dialog
    dialog.setLayout(layout);

    // THEN it is between the lines, one pixel wider at the left and at the right
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, form, line, bottom bar"));
    QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 6, 6));
    QCOMPARE(layout->parent(), dialog.getMainLayout());
    QCOMPARE(field->parentWidget(), &dialog);
}

void tst_FramelessDialog::layoutIsTheContentsAndNotTheMainOne()
{
    TestDialog dialog;
    QVERIFY(!dialog.layout());
    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(asWidget(dialog).layout(), dialog.getMainLayout());
}

void tst_FramelessDialog::layoutOfTheHolderCountsWhereNoneWasSet()
{
    // GIVEN a dialog with a content holder
    TestDialog dialog;
    QWidget *holder = dialog.getContentHolder();
    QVERIFY(!dialog.layout());

    // WHEN the holder gets a layout
    auto *inHolder = new QVBoxLayout(holder);

    // THEN that is the dialog's, until one is set
    QCOMPARE(dialog.layout(), inHolder);
    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);

    // and again once that is gone
    delete layout;
    QCOMPARE(dialog.layout(), inHolder);
}

void tst_FramelessDialog::holderComesAboveAnEarlierLayout()
{
    TestDialog dialog;
    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    dialog.setLayout(layout);
    dialog.getContentHolder()->setObjectName(QStringLiteral("holder"));
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, holder, form, line, bottom bar"));
    QCOMPARE(dialog.layout(), layout);
}

void tst_FramelessDialog::laterLayoutComesAboveTheHolder()
{
    TestDialog dialog;
    dialog.getContentHolder()->setObjectName(QStringLiteral("holder"));
    dialog.setLayout(namedLayout(QStringLiteral("form")));
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, form, holder, line, bottom bar"));
}

void tst_FramelessDialog::secondLayoutComesAboveTheFirst()
{
    // GIVEN a dialog with a layout
    TestDialog dialog;
    QVBoxLayout *first = namedLayout(QStringLiteral("first"));
    dialog.setLayout(first);
    const QMargins marginsOfTheFirst = first->contentsMargins();

    // WHEN another one is set
    QVBoxLayout *second = namedLayout(QStringLiteral("second"));
    dialog.setLayout(second);

    // THEN it comes above, and is the one that counts
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, second, first, line, bottom bar"));
    QCOMPARE(dialog.layout(), second);
    QCOMPARE(first->contentsMargins(), marginsOfTheFirst);
}

void tst_FramelessDialog::sameLayoutTwiceIsTakenOnce()
{
    TestDialog dialog;
    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    dialog.setLayout(layout);
    const QMargins margins = layout->contentsMargins();
    dialog.setLayout(layout);
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, form, line, bottom bar"));
    QCOMPARE(layout->contentsMargins(), margins);
    QCOMPARE(dialog.layout(), layout);
}

void tst_FramelessDialog::deletedLayoutIsForgotten()
{
    // GIVEN a dialog whose layout was deleted
    TestDialog dialog;
    dialog.setLayout(namedLayout(QStringLiteral("form")));
    delete dialog.layout();
    QVERIFY(!dialog.layout());
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, line, bottom bar"));

    // WHEN another one takes its place
    dialog.setLayout(namedLayout(QStringLiteral("next")));

    // THEN nothing of the first is left
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, next, line, bottom bar"));
    QCOMPARE(dialog.layout()->objectName(), QStringLiteral("next"));
}

void tst_FramelessDialog::nullLayoutIsIgnored()
{
    TestDialog dialog;
    dialog.setLayout(nullptr);
    QVERIFY(!dialog.layout());
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, line, bottom bar"));

    QVBoxLayout *layout = namedLayout(QStringLiteral("form"));
    dialog.setLayout(layout);
    dialog.setLayout(nullptr);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, form, line, bottom bar"));
}

void tst_FramelessDialog::layoutOfAnotherOwnerIsLeftThere_data()
{
    QTest::addColumn<QString>("owner");
    QTest::newRow("another widget's layout") << QStringLiteral("widget");
    QTest::newRow("a part of another layout") << QStringLiteral("layout");
    QTest::newRow("the dialog's main layout") << QStringLiteral("dialog");
}

void tst_FramelessDialog::layoutOfAnotherOwnerIsLeftThere()
{
    QFETCH(QString, owner);

    // GIVEN a layout that has its place already
    TestDialog dialog;
    QWidget widget;
    auto *outer = new QVBoxLayout(&widget);
    auto *part = new QHBoxLayout;
    outer->addLayout(part);
    QLayout *taken = dialog.getMainLayout();
    if (owner == QLatin1String("widget"))
        taken = outer;
    else if (owner == QLatin1String("layout"))
        taken = part;
    const QObject *parent = taken->parent();
    const QMargins margins = taken->contentsMargins();

    // WHEN it is given to the dialog
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("FramelessDialog::setLayout"));
    dialog.setLayout(taken);

    // THEN a warning comes, and nothing changes
    QVERIFY(!dialog.layout());
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, line, bottom bar"));
    QCOMPARE(taken->parent(), parent);
    QCOMPARE(taken->contentsMargins(), margins);
}

void tst_FramelessDialog::layoutMadeWithTheDialogAsItsParentIsTaken()
{
    // GIVEN a layout that was constructed on the dialog, upon which Qt warns that the dialog has one
    TestDialog dialog;
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("which already has a layout"));
    auto *layout = new QVBoxLayout(&dialog);
    layout->setObjectName(QStringLiteral("form"));
    QVERIFY(!dialog.layout());

    // WHEN it is given to the dialog
    dialog.setLayout(layout);

    // THEN it is the content
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(mainItems(dialog), QStringLiteral("title, line, form, line, bottom bar"));
}

void tst_FramelessDialog::heightBesidesTheContentFollowsTheTitleBar()
{
    TestDialog dialog;
    QCOMPARE(dialog.noCentralHeight(), 24 + 54);
    dialog.m_pTitleBar->setFixedHeight(40);
    QCOMPARE(dialog.noCentralHeight(), 40 + 54);
}

void tst_FramelessDialog::titleIsTheTitleBars()
{
    TestDialog dialog;
    QVERIFY(dialog.windowTitle().isEmpty());
    dialog.setWindowTitle(QStringLiteral("Rename"));
    QCOMPARE(dialog.m_pTitleBar->title(), QStringLiteral("Rename"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Rename"));

    // also where it was set on the bar itself
    dialog.m_pTitleBar->setTitle(QStringLiteral("Move"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Move"));
    QVERIFY(asWidget(dialog).windowTitle().isEmpty());
}

void tst_FramelessDialog::titleReachesPlatformAndScreenReaders_data()
{
    QTest::addColumn<bool>("shownFirst");
    QTest::newRow("set before the first show") << false;
    QTest::newRow("set on screen") << true;
}

void tst_FramelessDialog::titleReachesPlatformAndScreenReaders()
{
    QFETCH(bool, shownFirst);

    // GIVEN a dialog
    TestDialog dialog;
    if (shownFirst)
        dialog.show();

    // WHEN it gets a title and is shown
    dialog.setWindowTitle(QStringLiteral("Rename"));
    dialog.show();

    // THEN the platform and screen readers know it, the base class does not
    QCOMPARE(dialog.windowHandle()->title(), QStringLiteral("Rename"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Rename"));
    QCOMPARE(accessibleText(dialog), QStringLiteral("Rename"));
    QVERIFY(asWidget(dialog).windowTitle().isEmpty());

    // and they follow each change
    dialog.setWindowTitle(QStringLiteral("Move"));
    QCOMPARE(dialog.windowHandle()->title(), QStringLiteral("Move"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Move"));
    dialog.setWindowTitle(QString());
    QVERIFY(dialog.windowHandle()->title().isEmpty());
    QVERIFY(dialog.accessibleName().isEmpty());
}

void tst_FramelessDialog::titleReachesAWindowThatIsMadeAnew()
{
    // GIVEN a dialog on screen with a title
    TestDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Rename"));
    dialog.show();
    const QPointer<QWindow> former = dialog.windowHandle();
    QCOMPARE(former->title(), QStringLiteral("Rename"));

    // WHEN it gets other flags
    dialog.setWindowFlags(dialog.windowFlags() | Qt::WindowStaysOnTopHint);
    dialog.show();

    // THEN its native window has the title
    QCOMPARE(dialog.windowHandle()->title(), QStringLiteral("Rename"));

    // and so has another one, when the dialog was a part of a page for a while
    QWidget page;
    const Qt::WindowFlags flags = dialog.windowFlags();
    dialog.setParent(&page, Qt::Widget);
    QVERIFY(former.isNull());
    dialog.setParent(nullptr, flags);
    dialog.show();
    QCOMPARE(dialog.windowHandle()->title(), QStringLiteral("Rename"));
}

void tst_FramelessDialog::accessibleNameOfTheApplicationStays()
{
    TestDialog dialog;
    dialog.setAccessibleName(QStringLiteral("Name for readers"));
    dialog.setWindowTitle(QStringLiteral("Rename"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Name for readers"));

    TestDialog later;
    later.setWindowTitle(QStringLiteral("Rename"));
    later.setAccessibleName(QStringLiteral("Name for readers"));
    later.setWindowTitle(QStringLiteral("Move"));
    QCOMPARE(later.accessibleName(), QStringLiteral("Name for readers"));
}

void tst_FramelessDialog::titleAlignmentIsTheLabels()
{
    TestDialog dialog;
    QCOMPARE(dialog.m_pTitleBar->titleLabel()->alignment(), Qt::Alignment(Qt::AlignCenter));
    dialog.setWindowTitleAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(dialog.m_pTitleBar->titleLabel()->alignment(), Qt::AlignRight | Qt::AlignTop);
}

void tst_FramelessDialog::iconIsTheLogosAndTheWindows()
{
    TestDialog dialog;
    const QIcon icon = someIcon(Qt::red);
    dialog.setWindowIcon(icon);
    QCOMPARE(dialog.m_pTitleBar->titleButtonIcon(Logo).cacheKey(), icon.cacheKey());
    QCOMPARE(dialog.windowIcon().cacheKey(), icon.cacheKey());
    QCOMPARE(asWidget(dialog).windowIcon().cacheKey(), icon.cacheKey());

    // the logo's is the one that is told
    const QIcon logo = someIcon(Qt::blue);
    dialog.m_pTitleBar->setTitleButtonIcon(Logo, logo);
    QCOMPARE(dialog.windowIcon().cacheKey(), logo.cacheKey());
}

void tst_FramelessDialog::titleButtonIconsAreForwarded()
{
    TestDialog dialog;
    for (int index = Logo; index <= Close; ++index) {
        const QIcon icon = someIcon(QColor(40 * index, 0, 0));
        dialog.setTitleButtonIcon(index, icon);
        QCOMPARE(dialog.m_pTitleBar->titleButtonIcon(index).cacheKey(), icon.cacheKey());
    }
    dialog.setTitleButtonIcon(-1, someIcon(Qt::red));
    dialog.setTitleButtonIcon(5, someIcon(Qt::red));
}

void tst_FramelessDialog::extraTitleButtonsAreForwarded()
{
    // GIVEN a dialog with an extra button behind which another one was appended
    TestDialog dialog;
    QAction first;
    QAction second;
    QAction inserted;
    dialog.appendExtendTitleButton(&first, QSize(21, 19), QSize(11, 9));
    dialog.appendExtendTitleButton(&second, QSize(22, 19), QSize(12, 9));

    // WHEN a third one is inserted between them, and none twice
    dialog.insertExtendTitleButton(1, &inserted, QSize(23, 18), QSize(13, 8));
    dialog.appendExtendTitleButton(nullptr, QSize(24, 18), QSize(14, 8));
    dialog.insertExtendTitleButton(0, nullptr, QSize(24, 18), QSize(14, 8));
    dialog.show();

    // THEN the title bar shows three of these sizes in this order
    QMap<int, const QToolButton *> byPlace;
    const QList<QToolButton *> buttons = dialog.m_pTitleBar->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        if (button->defaultAction())
            byPlace.insert(button->x(), button);
    }
    QCOMPARE(byPlace.size(), 3);
    const QList<const QToolButton *> inOrder = byPlace.values();
    QCOMPARE(inOrder.at(0)->defaultAction(), &first);
    QCOMPARE(inOrder.at(1)->defaultAction(), &inserted);
    QCOMPARE(inOrder.at(2)->defaultAction(), &second);
    QCOMPARE(inOrder.at(0)->size(), QSize(21, 19));
    QCOMPARE(inOrder.at(0)->iconSize(), QSize(11, 9));
    QCOMPARE(inOrder.at(1)->size(), QSize(23, 18));
    QCOMPARE(inOrder.at(1)->iconSize(), QSize(13, 8));
    QCOMPARE(inOrder.at(2)->size(), QSize(22, 19));
    QCOMPARE(inOrder.at(2)->iconSize(), QSize(12, 9));
}

void tst_FramelessDialog::minButtonCanBeShown()
{
    TestDialog dialog;
    dialog.show();
    dialog.setMinButtonVisible(true);
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Minimise, Close}));
    dialog.setMinButtonVisible(false);
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Close}));
}

void tst_FramelessDialog::maxButtonShowsTheOneThatTheStateAsksFor_data()
{
    QTest::addColumn<bool>("maximised");
    QTest::newRow("normal") << false;
    QTest::newRow("maximised") << true;
}

void tst_FramelessDialog::maxButtonShowsTheOneThatTheStateAsksFor()
{
    QFETCH(bool, maximised);

    // GIVEN a dialog on screen in that state
    TestDialog dialog;
    if (maximised)
        dialog.showMaximized();
    else
        dialog.show();
    QCOMPARE(dialog.isMaximized(), maximised);
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Close}));

    // WHEN the pair is to be shown
    dialog.setMaxButtonVisible(true);

    // THEN the one that makes sense is
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar),
             QVector<int>({Logo, maximised ? Restore : Maximise, Close}));

    // and none after it was hidden again
    dialog.setMaxButtonVisible(false);
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Close}));
    dialog.showNormal();
    dialog.showMaximized();
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo, Close}));
}

void tst_FramelessDialog::hidingTheMaxButtonEndsResizing()
{
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.setDialogResizable(true);
    QVERIFY(dialog.helper()->widgetResizable());
    dialog.setMaxButtonVisible(false);
    QVERIFY(!dialog.helper()->widgetResizable());
}

void tst_FramelessDialog::showingTheMaxButtonDoesNotBringResizingBack()
{
    TestDialog dialog;
    dialog.setMaxButtonVisible(true);
    QVERIFY(!dialog.helper()->widgetResizable());
    dialog.setDialogResizable(true);
    dialog.setMaxButtonVisible(true);
    QVERIFY(dialog.helper()->widgetResizable());
}

void tst_FramelessDialog::closeButtonVisibilityIsThatOnScreen()
{
    TestDialog dialog;
    QVERIFY(!dialog.getCloseButtonVisible());
    dialog.show();
    QVERIFY(dialog.getCloseButtonVisible());
    dialog.setCloseButtonVisible(false);
    QVERIFY(!dialog.getCloseButtonVisible());
    QCOMPARE(visibleTitleButtons(*dialog.m_pTitleBar), QVector<int>({Logo}));
    dialog.setCloseButtonVisible(true);
    QVERIFY(dialog.getCloseButtonVisible());
    dialog.hide();
    QVERIFY(!dialog.getCloseButtonVisible());
}

void tst_FramelessDialog::bottomButtonsAreShownAndHidden_data()
{
    QTest::addColumn<Setter>("setVisible");
    QTest::addColumn<QString>("text");
    QTest::newRow("OK") << &FramelessDialog::setOKButtonVisible << QStringLiteral("OK");
    QTest::newRow("Cancel") << &FramelessDialog::setCancelButtonVisible << QStringLiteral("Cancel");
    QTest::newRow("Apply") << &FramelessDialog::setApplyButtonVisible << QStringLiteral("Apply");
}

void tst_FramelessDialog::bottomButtonsAreShownAndHidden()
{
    QFETCH(Setter, setVisible);
    QFETCH(QString, text);

    // GIVEN a dialog on screen with all three buttons
    TestDialog dialog;
    dialog.setApplyButtonVisible(true);
    dialog.show();
    const auto visibleTexts = [&] {
        QStringList texts;
        for (const QPushButton *button :
             {dialog.m_pOKButton, dialog.m_pCancelButton, dialog.m_pApplyButton}) {
            if (button->isVisible())
                texts.append(button->text());
        }
        return texts;
    };
    const QStringList all = visibleTexts();
    QCOMPARE(all.size(), 3);

    // WHEN this one is hidden
    (dialog.*setVisible)(false);

    // THEN it alone is missing, until it is shown again
    QStringList others = all;
    others.removeAll(text);
    QCOMPARE(visibleTexts(), others);
    (dialog.*setVisible)(true);
    QCOMPARE(visibleTexts(), all);
}

void tst_FramelessDialog::okButtonDefaultCanBeTakenAndGiven()
{
    TestDialog dialog;
    dialog.setOKButtonDefault(false);
    QVERIFY(!dialog.m_pOKButton->isDefault());
    dialog.setOKButtonDefault(true);
    QVERIFY(dialog.m_pOKButton->isDefault());
}

void tst_FramelessDialog::bottomBarGoesWithTheLowerLineOnly()
{
    // GIVEN a dialog on screen; the lower line is the one right above the bottom bar
    TestDialog dialog;
    dialog.show();
    QVBoxLayout *layout = dialog.getMainLayout();
    const QWidget *upper = layout->itemAt(1)->widget();
    const QWidget *lower = layout->itemAt(layout->count() - 2)->widget();
    QVERIFY(upper != lower);
    QVERIFY(upper->isVisible() && lower->isVisible() && dialog.m_pBottomWidget->isVisible());

    // WHEN the bottom bar is hidden
    dialog.setBottomBarVisible(false);

    // THEN the lower line goes with it and the upper line stays
    QVERIFY(!dialog.m_pBottomWidget->isVisible());
    QVERIFY(!lower->isVisible());
    QVERIFY(upper->isVisible());

    // and both come back, with the buttons as they were
    dialog.setBottomBarVisible(true);
    QVERIFY(dialog.m_pBottomWidget->isVisible());
    QVERIFY(lower->isVisible());
    QVERIFY(dialog.m_pOKButton->isVisible());
    QVERIFY(!dialog.m_pApplyButton->isVisible());
}

void tst_FramelessDialog::lineHeightIsThatOfBothLines()
{
    TestDialog dialog;
    dialog.show();
    dialog.setHorizontalLineHeight(7);
    QCoreApplication::sendPostedEvents();
    const QVector<QFrame *> lines = dialog.separators();
    QCOMPARE(lines.size(), 2);
    for (const QFrame *line : lines) {
        QCOMPARE(line->minimumHeight(), 7);
        QCOMPARE(line->maximumHeight(), 7);
        QCOMPARE(line->height(), 7);
    }
}

void tst_FramelessDialog::lineHeightWithoutLinesIsIgnored()
{
    // GIVEN a dialog whose subclass has deleted first one line, then the other
    TestDialog dialog;
    delete dialog.separators().constFirst();
    dialog.setHorizontalLineHeight(7);
    QCOMPARE(dialog.separators().constFirst()->minimumHeight(), 7);
    delete dialog.separators().constFirst();
    QVERIFY(dialog.separators().isEmpty());

    // THEN neither this nor the bottom bar's visibility needs them
    dialog.setHorizontalLineHeight(9);
    dialog.setBottomBarVisible(false);
    QVERIFY(dialog.m_pBottomWidget->isHidden());
}

QTEST_MAIN(tst_FramelessDialog)

#include "tst_framelessdialog.moc"
