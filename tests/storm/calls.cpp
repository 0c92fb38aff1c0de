// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What programs call: the table of our own functions, and the properties and slots that Qt knows of.

#include "acts.h"
#include "call.h"
#include "tally.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QHash>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <iterator>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/frameline.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

QVector<Call> titleBarCalls()
{
    return {CALL(TitleBar, setTitle),
            CALL(TitleBar, title),
            CALL(TitleBar, titleLabel),
            CALL(TitleBar, isTitleVisible),
            CALL(TitleBar, getTitleVBarMainLayout),
            CALL(TitleBar, setTitleAlignment),
            CALL(TitleBar, setTitleVisible),
            CALL(TitleBar, titleButton),
            CALL(TitleBar, setTitleButtonVisible),
            CALL(TitleBar, isTitleButtonVisible),
            CALL(TitleBar, setTitleButtonIcon),
            CALL(TitleBar, titleButtonIcon),
            CALL(TitleBar, setTitleButtonToolTip),
            CALL(TitleBar, titleButtonToolTip),
            CALL(TitleBar, appendExtendTitleButton),
            CALL(TitleBar, insertExtendTitleButton),
            CALL(TitleBar, setMaximized),
            CALL(TitleBar, hitTest),
            CALL(TitleBar, retranslateUi),
            CALL(TitleBar, switchMaxMin),
            CALL(TitleBar, clearChecked),
            special<TitleBar>("appendCloseEvent", [](TitleBar *bar, Source source) {
                const int kind = source.dice.below(3);
                if (kind == 0)
                    bar->appendCloseEvent({});
                else
                    bar->appendCloseEvent([kind] { return kind == 1; });
            })};
}

QVector<Call> dialogCalls()
{
    return {CALL(FramelessDialog, getContentHolder),
            CALL(FramelessDialog, getMainLayout),
            CALL(FramelessDialog, layout),
            CALL(FramelessDialog, windowTitle),
            CALL(FramelessDialog, windowIcon),
            CALL(ColorDialog, setInitColor),
            CALL(ColorDialog, reTranslateUI),
            CALL(FramelessDialog, noCentralHeight),
            CALL(FramelessDialog, setWindowTitle),
            CALL(FramelessDialog, setWindowTitleAlignment),
            CALL(FramelessDialog, setWindowIcon),
            CALL(FramelessDialog, setTitleButtonIcon),
            CALL(FramelessDialog, appendExtendTitleButton),
            CALL(FramelessDialog, insertExtendTitleButton),
            CALL(FramelessDialog, setMinButtonVisible),
            CALL(FramelessDialog, setMaxButtonVisible),
            CALL(FramelessDialog, setCloseButtonVisible),
            CALL(FramelessDialog, getCloseButtonVisible),
            CALL(FramelessDialog, setOKButtonVisible),
            CALL(FramelessDialog, setCancelButtonVisible),
            CALL(FramelessDialog, setApplyButtonVisible),
            CALL(FramelessDialog, setOKButtonDefault),
            CALL(FramelessDialog, setBottomBarVisible),
            special<FramelessDialog>("setHorizontalLineHeight",
                                     [](FramelessDialog *dialog, Source source) {
                                         dialog->setHorizontalLineHeight(source.dice.between(0, 40));
                                     }),
            CALL(FramelessDialog, setDialogMovable),
            CALL(FramelessDialog, setDialogtMovable),
            CALL(FramelessDialog, setDialogResizable),
            CALL(FramelessDialog, setRubberBandOnMove),
            CALL(FramelessDialog, setRubberBandOnResize),
            CALL(FramelessDialog, reTranslateUI),
            CALL(FramelessDialog, swithMaxNormal),
            CALL(FramelessDialog, show),
            CALL(FramelessDialog, showMinimized),
            CALL(FramelessDialog, showMaximized),
            CALL(FramelessDialog, showFullScreen),
            CALL(FramelessDialog, showNormal),
            special<FramelessDialog>("setLayout", [](FramelessDialog *dialog, Source source) {
                // What is derived from it has its own layout there.
                if (dialog->metaObject() != &FramelessDialog::staticMetaObject || source.dice.oneIn(3)) {
                    dialog->setLayout(nullptr);
                    return;
                }
                if (source.dice.oneIn(2))
                    delete dialog->layout();
                // A place that is taken is not given away, Qt says so in its log.
                if (dialog->layout())
                    return;
                auto *layout = new QFormLayout;
                layout->addRow(drawText(source.dice), new QLineEdit);
                dialog->setLayout(layout);
            })};
}

QVector<Call> windowCalls()
{
    return {CALL_OVERLOAD(FramelessWindow, setCentralWidget, QWidget *),
            CALL_OVERLOAD(FramelessWindow, setCentralWidget, QWidget *, bool),
            CALL(FramelessWindow, centralWidget),
            CALL(FramelessWindow, setWindowTitle),
            CALL(FramelessWindow, getTitleBar),
            CALL(FramelessWindow, windowTitle),
            CALL(FramelessWindow, windowIcon),
            CALL(FramelessWindow, windowIconText),
            CALL(FramelessWindow, setWindowIcon),
            CALL(FramelessWindow, setWindowIconText),
            CALL(FramelessWindow, setCursorStyle),
            CALL(FramelessWindow, swithMaxNormal)};
}

QVector<Call> helperCalls()
{
    return {special<FramelessHelper>("activateOn",
                                     [](FramelessHelper *helper, Source source) {
                                         const QVector<QWidget *> windows = source.stage.windows();
                                         helper->activateOn(windows.isEmpty() ? nullptr
                                                                              : source.dice.pickOf(windows));
                                     }),
            special<FramelessHelper>("removeFrom",
                                     [](FramelessHelper *helper, Source source) {
                                         const QVector<QWidget *> windows = source.stage.windows();
                                         helper->removeFrom(windows.isEmpty() ? nullptr
                                                                              : source.dice.pickOf(windows));
                                     }),
            CALL(FramelessHelper, setWidgetMovable),
            CALL(FramelessHelper, widgetMovable),
            CALL(FramelessHelper, widgetResizable),
            CALL(FramelessHelper, rubberBandOnMove),
            CALL(FramelessHelper, rubberBandOnResisze),
            CALL(FramelessHelper, borderWidth),
            CALL(FramelessHelper, titleHeight),
            CALL(FramelessHelper, setWidgetResizable),
            CALL(FramelessHelper, setRubberBandOnMove),
            CALL(FramelessHelper, setRubberBandOnResize),
            CALL(FramelessHelper, setBorderWidth),
            CALL(FramelessHelper, setTitleHeight)};
}

// The four fields are the editor's own, and not to be deleted.
QVector<Call> addressCalls()
{
    return {
        special<IPLineEdit>("setText",
                            [](IPLineEdit *edit, Source source) { edit->setText(drawAddress(source.dice)); }),
        special<IPLineEdit>(
            "isTextValid",
            [](IPLineEdit *edit, Source source) { edit->isTextValid(drawAddress(source.dice)); }),
        special<IPLineEdit>(
            "setProperty",
            [](IPLineEdit *edit, Source source) {
                edit->setProperty(source.dice.pick({"marked", "readOnly", "enabled"}), source.dice.oneIn(2));
            }),
        CALL(IPLineEdit, setAcceptsAnyAddress),
        CALL(IPLineEdit, acceptsAnyAddress),
        CALL(IPLineEdit, text),
        special<IPLineEdit>("getIndex",
                            [](IPLineEdit *edit, Source source) {
                                const QList<QLineEdit *> fields = edit->findChildren<QLineEdit *>();
                                edit->getIndex(fields.isEmpty() || source.dice.oneIn(4)
                                                   ? edit
                                                   : fields.at(source.dice.below(fields.size())));
                            }),
        CALL(IPLineEdit, isModified),
        CALL(IPLineEdit, hasAcceptableInput),
        CALL(IPLineEdit, clear),
        CALL(IPLineEdit, setIPFocus),
        CALL(IPLineEdit, slot_fixInput)};
}

QVector<Call> buttonAndLineCalls()
{
    return {CALL(TarnPushButton, isOpenRotation),
            CALL(TarnPushButton, setRotationDirection),
            CALL(TarnPushButton, setBtnText),
            CALL(TarnPushButton, getBtnText),
            CALL(TarnPushButton, setText),
            CALL(ToolButton, recover),
            special<ToolButton>("setMenu",
                                [](ToolButton *button, Source source) {
                                    if (source.dice.oneIn(3)) {
                                        button->setMenu(nullptr);
                                        return;
                                    }
                                    auto *menu = new QMenu(source.stage.nursery());
                                    for (int left = source.dice.below(5); left > 0; --left)
                                        menu->addAction(drawText(source.dice));
                                    source.stage.own(menu);
                                    button->setMenu(menu);
                                }),
            special<ToolButton>("setPopupMode",
                                [](ToolButton *button, Source source) {
                                    button->setPopupMode(source.dice.pick({QToolButton::DelayedPopup,
                                                                           QToolButton::MenuButtonPopup,
                                                                           QToolButton::InstantPopup}));
                                }),
            special<StyleSheetWidget>("create...Line", [](StyleSheetWidget *panel, Source source) {
                const FrameLine factory(panel); // an object of it has nothing to say
                const auto width = uint(source.dice.below(20));
                QFrame *line = source.dice.oneIn(2)
                    ? FrameLine::createHorizontalLine(drawText(source.dice).left(20), panel, width, 1, 1)
                    : FrameLine::createVerticalLine(drawText(source.dice).left(20), panel, width, 1, 1);
                source.stage.own(line);
            })};
}

QVector<Call> tabCalls()
{
    return {CALL(TabBarRd, setTabBarType),
            CALL(TabBarRd, getTabBarType),
            CALL(TabBarRd, getTabMinWidth),
            CALL(TabBarRd, getTabMaxWidth),
            CALL(TarnTabBar, getTabBar),
            CALL(TarnTabBar, widgetColor),
            special<TarnTabBar>("fromColorToStr",
                                [](TarnTabBar *, Source source) {
                                    TarnTabBar::fromColorToStr(drawColor(source.dice));
                                    TarnTabWidget::fromColorToStr(drawColor(source.dice));
                                }),
            CALL(TarnTabBar, getTabBarType),
            CALL(TarnTabBar, getTabMinWidth),
            CALL(TarnTabBar, getTabMaxWidth),
            CALL(TarnTabBar, expanding),
            CALL(TarnTabBar, autoHide),
            CALL(TarnTabBar, isMovable),
            CALL(TarnTabBar, tabsClosable),
            CALL(TarnTabBar, usesScrollButtons),
            CALL(TarnTabBar, elideMode),
            CALL(TarnTabBar, iconSize),
            CALL(TarnTabBar, count),
            CALL(TarnTabWidget, getTabBar),
            CALL(TarnTabWidget, getStackWidget),
            CALL(TarnTabWidget, count),
            CALL(TarnTabWidget, currentIndex),
            CALL(TarnTabWidget, currentWidget),
            CALL(TarnTabWidget, getTabBarType),
            CALL(TarnTabWidget, getTabMinWidth),
            CALL(TarnTabWidget, getTabMaxWidth),
            CALL(TarnTabWidget, autoHide),
            CALL(TarnTabWidget, isMovable),
            CALL(TarnTabWidget, tabsClosable),
            CALL(TarnTabWidget, usesScrollButtons),
            CALL(TarnTabWidget, elideMode),
            CALL(TarnTabWidget, iconSize),
            CALL(TarnTabWidget, isTabEnabled),
            CALL(TarnTabWidget, tabIcon),
            CALL(TarnTabWidget, tabData),
            CALL(TarnTabWidget, addPage),
            special<TarnTabBar>("setWidgetFixedSize",
                                [](TarnTabBar *bar, Source source) {
                                    const QSize size = drawSize(source.dice);
                                    bar->setWidgetFixedSize(size.width(), size.height());
                                }),
            CALL(TarnTabBar, setWidgetColor),
            CALL(TarnTabBar, addLeftWidget),
            CALL(TarnTabBar, addRightWidget),
            CALL(TarnTabBar, addCenterWidget),
            CALL(TarnTabBar, setRightLeftVCenter),
            CALL(TarnTabBar, setTabBarType),
            CALL(TarnTabBar, setExpanding),
            CALL(TarnTabBar, setAutoHide),
            CALL(TarnTabBar, setMovable),
            CALL(TarnTabBar, setTabsClosable),
            CALL(TarnTabBar, setUsesScrollButtons),
            CALL(TarnTabBar, setElideMode),
            CALL(TarnTabBar, setIconSize),
            CALL(TarnTabBar, currentIndex),
            CALL(TarnTabBar, setCurrentIndex),
            CALL(TarnTabBar, isTabEnabled),
            CALL(TarnTabBar, setTabEnabled),
            CALL(TarnTabBar, tabText),
            CALL(TarnTabBar, setTabText),
            CALL(TarnTabBar, tabTextColor),
            CALL(TarnTabBar, setTabTextColor),
            CALL(TarnTabBar, tabIcon),
            CALL(TarnTabBar, setTabIcon),
            CALL(TarnTabBar, tabToolTip),
            CALL(TarnTabBar, setTabToolTip),
            CALL(TarnTabBar, tabData),
            CALL(TarnTabBar, setTabData),
            CALL(TarnTabBar, tabButton),
            special<TarnTabBar>("setTabButton",
                                [](TarnTabBar *bar, Source source) {
                                    // Not the storm's to delete: QTabBar keeps a plain pointer and crashes.
                                    const int place = source.dice.below(4);
                                    bar->setTabButton(
                                        place, draw<QTabBar::ButtonPosition>(source),
                                        source.dice.oneIn(3) ? nullptr : new QWidget(source.stage.nursery()));
                                }),
            CALL(TarnTabBar, tabRect),
            CALL(TarnTabBar, tabAt),
            special<TarnTabWidget>("setWidgetSize",
                                   [](TarnTabWidget *tabs, Source source) {
                                       const QSize size = drawSize(source.dice);
                                       tabs->setWidgetSize(size.width(), size.height());
                                   }),
            CALL(TarnTabWidget, setStackedWidgetColor),
            CALL(TarnTabWidget, setStackedWidgetBackground),
            CALL(TarnTabWidget, setTabBarType),
            CALL(TarnTabWidget, setAutoHide),
            CALL(TarnTabWidget, setMovable),
            CALL(TarnTabWidget, setTabsClosable),
            CALL(TarnTabWidget, setUsesScrollButtons),
            CALL(TarnTabWidget, setElideMode),
            CALL(TarnTabWidget, setIconSize),
            CALL(TarnTabWidget, widget),
            CALL(TarnTabWidget, indexOf),
            CALL(TarnTabWidget, setTabText),
            CALL(TarnTabWidget, tabText),
            CALL(TarnTabWidget, setTabEnabled),
            CALL(TarnTabWidget, setTabIcon),
            CALL(TarnTabWidget, tabToolTip),
            CALL(TarnTabWidget, setTabToolTip),
            CALL(TarnTabWidget, setTabData),
            CALL(TarnTabWidget, setCurrentIndex),
            CALL(TarnTabWidget, slot_currentShow),
            CALL(TarnTabWidget, slot_tabCloseRequested),
            CALL(TarnTabWidget, removeTab)};
}

// Tabs are for the tab widget to add and remove, where there is one.
bool isBare(const TarnTabBar *bar)
{
    return !qobject_cast<TarnTabWidget *>(bar->parentWidget());
}

bool isBare(const TabBarRd *bar)
{
    return !qobject_cast<TarnTabBar *>(bar->parentWidget());
}

/* What the bar has of QTabBar, as a program calls it while tabs are dragged, too. */
QVector<Call> plainTabSpecials()
{
    return {special<TabBarRd>("QTabBar::insertTab",
                              [](TabBarRd *bar, Source source) {
                                  const int place = drawNumber(source.dice);
                                  if (isBare(bar))
                                      bar->insertTab(place, drawText(source.dice));
                              }),
            special<TabBarRd>("QTabBar::removeTab",
                              [](TabBarRd *bar, Source source) {
                                  const int place = drawNumber(source.dice);
                                  if (isBare(bar))
                                      bar->removeTab(place);
                              }),
            special<TabBarRd>("QTabBar::moveTab",
                              [](TabBarRd *bar, Source source) {
                                  const int from = drawNumber(source.dice);
                                  const int to = drawNumber(source.dice);
                                  if (isBare(bar))
                                      bar->moveTab(from, to);
                              }),
            special<TabBarRd>("QTabBar::setTabVisible",
                              [](TabBarRd *bar, Source source) {
                                  bar->setTabVisible(source.dice.below(5), source.dice.oneIn(2));
                              }),
            special<TabBarRd>(
                "QTabBar::setCurrentIndex",
                [](TabBarRd *bar, Source source) { bar->setCurrentIndex(drawNumber(source.dice)); }),
            special<TabBarRd>("QTabBar::setMovable",
                              [](TabBarRd *bar, Source source) { bar->setMovable(source.dice.oneIn(2)); })};
}

QVector<Call> tabSpecials()
{
    return {
        special<TarnTabBar>("insertTab",
                            [](TarnTabBar *bar, Source source) {
                                const int place = drawNumber(source.dice);
                                if (isBare(bar) && source.dice.oneIn(2))
                                    bar->insertTab(place, draw<QIcon>(source), drawText(source.dice));
                                else if (isBare(bar))
                                    bar->insertTab(place, drawText(source.dice));
                            }),
        special<TarnTabBar>("addTab",
                            [](TarnTabBar *bar, Source source) {
                                if (isBare(bar) && source.dice.oneIn(2))
                                    bar->addTab(draw<QIcon>(source), drawText(source.dice));
                                else if (isBare(bar))
                                    bar->addTab(drawText(source.dice));
                            }),
        special<TarnTabBar>("removeTab",
                            [](TarnTabBar *bar, Source source) {
                                if (isBare(bar))
                                    bar->removeTab(drawNumber(source.dice));
                            }),
        special<TarnTabBar>("moveTab",
                            [](TarnTabBar *bar, Source source) {
                                const int from = drawNumber(source.dice);
                                const int to = drawNumber(source.dice);
                                if (isBare(bar))
                                    bar->moveTab(from, to);
                            }),
        special<TarnTabBar>(
            "setTabMinWidth",
            [](TarnTabBar *bar, Source source) { bar->setTabMinWidth(source.dice.between(0, 500)); }),
        special<TarnTabBar>(
            "setTabMaxWidth",
            [](TarnTabBar *bar, Source source) { bar->setTabMaxWidth(source.dice.between(-1, 500)); }),
        special<TarnTabBar>("set...HLayoutSpace",
                            [](TarnTabBar *bar, Source source) {
                                const int space = source.dice.between(-1, 60);
                                bar->setLeftHLayoutSpace(space);
                                bar->setRightHLayoutSpace(space);
                                bar->setCenterHLayoutSpace(space);
                            }),
        special<TabBarRd>("setTabMinWidth",
                          [](TabBarRd *bar, Source source) { bar->setTabMinWidth(source.dice.below(400)); }),
        special<TabBarRd>("setTabMaxWidth",
                          [](TabBarRd *bar, Source source) { bar->setTabMaxWidth(source.dice.below(400)); }),
        special<TarnTabWidget>(
            "setTabMinWidth",
            [](TarnTabWidget *tabs, Source source) { tabs->setTabMinWidth(source.dice.below(100)); }),
        special<TarnTabWidget>(
            "setTabMaxWidth",
            [](TarnTabWidget *tabs, Source source) { tabs->setTabMaxWidth(source.dice.below(400)); }),
        special<TarnTabWidget>("insertTab",
                               [](TarnTabWidget *tabs, Source source) {
                                   const int place = drawNumber(source.dice);
                                   QWidget *page = drawWidget(source);
                                   if (source.dice.oneIn(2))
                                       tabs->insertTab(place, page, draw<QIcon>(source),
                                                       drawText(source.dice));
                                   else
                                       tabs->insertTab(place, page, drawText(source.dice));
                               }),
        special<TarnTabWidget>("addTab",
                               [](TarnTabWidget *tabs, Source source) {
                                   QWidget *page = drawWidget(source);
                                   if (source.dice.oneIn(2))
                                       tabs->addTab(page, draw<QIcon>(source), drawText(source.dice));
                                   else
                                       tabs->addTab(page, drawText(source.dice));
                               }),
        special<TarnTabWidget>("setCurrentWidget",
                               [](TarnTabWidget *tabs, Source source) {
                                   tabs->setCurrentWidget(source.dice.oneIn(4)
                                                              ? drawWidget(source)
                                                              : tabs->widget(source.dice.below(5)));
                               }),
        special<TarnTabWidget>("delete a page", [](TarnTabWidget *tabs, Source source) {
            QWidget *page = tabs->widget(source.dice.below(5));
            if (source.dice.oneIn(2))
                delete page;
            else if (page)
                page->setParent(source.stage.nursery());
        })};
}

QAbstractButton *anyButton(FramelessMessageBox *box, Source source)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    if (buttons.isEmpty() || source.dice.oneIn(8))
        return nullptr;
    return buttons.at(source.dice.below(buttons.size()));
}

QVector<Call> messageBoxCalls()
{
    return {
        CALL(FramelessMessageBox, setText), CALL(FramelessMessageBox, text), CALL(FramelessMessageBox, icon),
        CALL(FramelessMessageBox, iconPixmap), CALL(FramelessMessageBox, textFormat),
        CALL(FramelessMessageBox, textInteractionFlags), CALL(FramelessMessageBox, informativeText),
        CALL(FramelessMessageBox, detailedText), CALL(FramelessMessageBox, checkBox),
        CALL(FramelessMessageBox, standardButtons), CALL(FramelessMessageBox, defaultButton),
        CALL(FramelessMessageBox, escapeButton), CALL(FramelessMessageBox, clickedButton),
        special<FramelessMessageBox>("buttonRole",
                                     [](FramelessMessageBox *box, Source source) {
                                         QAbstractButton *button = anyButton(box, source);
                                         look(box->button(box->standardButton(button)));
                                         box->buttonRole(button);
                                     }),
        CALL(FramelessMessageBox, setIcon), CALL(FramelessMessageBox, setIconPixmap),
        CALL(FramelessMessageBox, setTextFormat), CALL(FramelessMessageBox, setTextInteractionFlags),
        CALL(FramelessMessageBox, setInformativeText), CALL(FramelessMessageBox, setDetailedText),
        CALL(FramelessMessageBox, setWindowTitle),
        // On show it has no effect, and leaves Qt a modal window that is no more: a plain QDialog, too.
        special<FramelessMessageBox>("setWindowModality",
                                     [](FramelessMessageBox *box, Source source) {
                                         const auto modality = draw<Qt::WindowModality>(source);
                                         if (!box->isVisible())
                                             box->setWindowModality(modality);
                                     }),
        CALL(FramelessMessageBox, setStandardButtons), CALL(FramelessMessageBox, button),
        CALL(FramelessMessageBox, retranslateButtonUi),
        CALL_OVERLOAD(FramelessMessageBox, addButton, QMessageBox::StandardButton),
        CALL_OVERLOAD(FramelessMessageBox, setDefaultButton, QMessageBox::StandardButton),
        CALL_OVERLOAD(FramelessMessageBox, setEscapeButton, QMessageBox::StandardButton),
        special<FramelessMessageBox>("addButton",
                                     [](FramelessMessageBox *box, Source source) {
                                         const auto role = draw<QMessageBox::ButtonRole>(source);
                                         if (source.dice.oneIn(4))
                                             box->addButton(nullptr, role);
                                         else if (source.dice.oneIn(3))
                                             box->addButton(anyButton(box, source), role);
                                         else
                                             box->addButton(drawText(source.dice).left(40), role);
                                     }),
        special<FramelessMessageBox>("removeButton",
                                     [](FramelessMessageBox *box, Source source) {
                                         QAbstractButton *button = anyButton(box, source);
                                         box->removeButton(button);
                                         if (button) {
                                             // Qt would show it as a window of its own, if it was added just
                                             // now.
                                             QCoreApplication::removePostedEvents(button, QEvent::MetaCall);
                                             button->deleteLater();
                                         }
                                     }),
        special<FramelessMessageBox>("setDefaultButton",
                                     [](FramelessMessageBox *box, Source source) {
                                         box->setDefaultButton(
                                             qobject_cast<QPushButton *>(anyButton(box, source)));
                                         box->setEscapeButton(anyButton(box, source));
                                     }),
        special<FramelessMessageBox>("setCheckBox", [](FramelessMessageBox *box, Source source) {
            box->setCheckBox(source.dice.oneIn(3) ? nullptr : new QCheckBox(drawText(source.dice).left(40)));
        })};
}

QVector<Call> allCalls()
{
    return titleBarCalls() + dialogCalls() + windowCalls() + helperCalls() + addressCalls()
        + buttonAndLineCalls() + tabCalls() + tabSpecials() + plainTabSpecials() + messageBoxCalls()
        + fileDialogCalls();
}

const QVector<Call> &table()
{
    static const QVector<Call> calls = allCalls();
    return calls;
}

const QVector<int> &callsOf(const QObject *object)
{
    static QHash<const QMetaObject *, QVector<int>> known;
    const QMetaObject *meta = object->metaObject();
    const auto found = known.constFind(meta);
    if (found != known.constEnd())
        return *found;
    QVector<int> calls;
    for (int i = 0; i < table().size(); ++i) {
        if (meta->inherits(table().at(i).owner))
            calls.append(i);
    }
    return *known.insert(meta, calls);
}

bool isLeftAlone(const QObject *object, const char *name)
{
    // Ends the object, blocks, or makes a window of another kind of it, each of which another step does.
    static const QByteArray anywhere[] = {"deleteLater", "exec", "open", "modal", "windowModality"};
    // QFrame keeps the distance of that to its edges, and Qt complains when it draws a frame in a widget that
    // has become too small for them.
    if (qstrcmp(name, "frameRect") == 0)
        return true;
    // These would let the user change files; see Stage::eventFilter().
    static const QByteArray inFileDialogs[] = {"options", "readOnly"};
    // The gallery's content is its own, and so is what becomes of it.
    if (QByteArray(name).startsWith("setCentralWidget") && object->inherits("Gallery::MainWindow"))
        return true;
    for (const QByteArray &candidate : anywhere) {
        if (candidate == name)
            return true;
    }
    for (const QByteArray &candidate : inFileDialogs) {
        if (candidate == name && object->inherits("QFileDialog"))
            return true;
    }
    return false;
}

QByteArray nameIn(const QMetaObject *owner, const QByteArray &name)
{
    const QByteArray scope = owner->className();
    return scope.mid(scope.lastIndexOf(':') + 1) + "::" + name;
}

QByteArray nameOf(const Call &call)
{
    return "call " + nameIn(call.owner, call.name);
}

QByteArray nameOf(const QMetaProperty &property)
{
    return "property " + nameIn(property.enclosingMetaObject(), property.name());
}

QByteArray nameOf(const QMetaMethod &method)
{
    return "slot " + nameIn(method.enclosingMetaObject(), method.methodSignature());
}

// Half of what the storm may pick is Qt's own.
QObject *pickCallable(Context &c)
{
    constexpr int MostTries = 8;
    for (int tries = 0; tries < MostTries; ++tries) {
        QObject *object = pickSubject(c);
        if (object && hasCalls(object))
            return object;
    }
    return nullptr;
}

// The classes whose functions are in the table, of which object is one.
QVector<const QMetaObject *> ourClasses(const QObject *object)
{
    QVector<const QMetaObject *> found;
    for (const int place : callsOf(object)) {
        if (!found.contains(table().at(place).owner))
            found.append(table().at(place).owner);
    }
    return found;
}

// A property or method, most often one of ours.
using Member = int (QMetaObject::*)() const;

template <typename Fits>
int pickMember(Context &c, const QObject *object, Member offset, Member count, Fits fits)
{
    constexpr int MostTries = 8;
    const QVector<const QMetaObject *> ours = ourClasses(object);
    const bool isAny = ours.isEmpty() || c.dice.oneIn(4);
    int place = 0;
    for (int tries = 0; tries < MostTries; ++tries) {
        const QMetaObject *meta = isAny ? object->metaObject() : c.dice.pickOf(ours);
        const int first = isAny ? 0 : (meta->*offset)();
        place = first + c.dice.below((meta->*count)() - first);
        if (fits(place))
            break;
    }
    return place;
}

void callOurs(Context &c)
{
    QObject *object = pickCallable(c);
    if (!object)
        return;
    const QVector<int> &candidates = callsOf(object);
    const Call &chosen = table().at(c.dice.pickOf(candidates));
    c.notes.about(object, QString::fromLatin1(nameOf(chosen)));
    // One deletes the frame before, with all windows that have their parent in there, the other a dialog.
    const bool deletes = QByteArray(chosen.name).startsWith("setCentralWidget")
        || QByteArray(chosen.name) == "delete the inner dialog";
    if (isLeftAlone(object, chosen.name) || (deletes && !c.mayDelete))
        return;
    tally(nameOf(chosen));
    chosen.run(object, c.source());
}

// Those that the storm leaves to its other acts apart.
bool isWorthCalling(const QMetaMethod &method)
{
    static const QByteArray elsewhere[] = {"deleteLater", "exec", "open"};
    return method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public
        && std::find(std::begin(elsewhere), std::end(elsewhere), method.name()) == std::end(elsewhere);
}

void expectFrom(const QMetaObject *meta)
{
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        if (meta->property(i).isWritable())
            expectInTally(nameOf(meta->property(i)));
    }
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (isWorthCalling(meta->method(i)))
            expectInTally(nameOf(meta->method(i)));
    }
}

void writeProperty(Context &c)
{
    QObject *object = c.dice.oneIn(4) ? pickSubject(c) : pickCallable(c);
    if (!object)
        return;
    const QMetaObject *meta = object->metaObject();
    const QMetaProperty property = meta->property(
        pickMember(c, object, &QMetaObject::propertyOffset, &QMetaObject::propertyCount, [meta](int place) {
            return place < meta->propertyCount() && meta->property(place).isWritable();
        }));
    if (!property.isWritable() || isLeftAlone(object, property.name()))
        return;
    QVariant value;
    if (property.isEnumType()) {
        const QMetaEnum choices = property.enumerator();
        value = choices.value(c.dice.below(choices.keyCount()));
    } else {
        value = drawVariant(property.userType(), c.source());
    }
    if (!value.isValid())
        return;
    // Nothing can paint a window that is millions of pixels wide.
    const QByteArray name = property.name();
    if (value.userType() == QMetaType::Int && (name.contains("Width") || name.contains("Height")))
        value = drawSize(c.dice).width();
    // QFrame takes any number for the width of its lines, and Qt then complains when it draws them.
    if (name == "lineWidth" || name == "midLineWidth")
        value = qMax(value.toInt(), 0);
    if (c.notes.wanted)
        c.notes.about(
            object, QStringLiteral("%1 = %2").arg(QLatin1String(property.name()), value.toString().left(60)));
    tally(nameOf(property));
    property.write(object, value);
}

void invokeSlot(Context &c)
{
    QObject *object = c.dice.oneIn(4) ? pickSubject(c) : pickCallable(c);
    if (!object)
        return;
    const QMetaObject *meta = object->metaObject();
    const QMetaMethod method = meta->method(
        pickMember(c, object, &QMetaObject::methodOffset, &QMetaObject::methodCount, [meta](int place) {
            return place < meta->methodCount() && isWorthCalling(meta->method(place));
        }));
    if (method.methodType() != QMetaMethod::Slot || method.access() != QMetaMethod::Public
        || isLeftAlone(object, method.name().constData()))
        return;
    QVariant values[3];
    QGenericArgument arguments[3];
    if (method.parameterCount() > 3)
        return;
    for (int i = 0; i < method.parameterCount(); ++i) {
        values[i] = drawVariant(method.parameterType(i), c.source());
        if (!values[i].isValid() || values[i].userType() != method.parameterType(i))
            return;
        arguments[i] = QGenericArgument(values[i].typeName(), values[i].constData());
    }
    if (c.notes.wanted)
        c.notes.about(object, QString::fromLatin1(method.methodSignature()));
    tally(nameOf(method));
    method.invoke(object, Qt::DirectConnection, arguments[0], arguments[1], arguments[2]);
}

} // namespace

void expectCalls()
{
    for (const Call &call : table()) {
        expectInTally(nameOf(call));
        expectFrom(call.owner);
    }
}

bool hasCalls(const QObject *object)
{
    return !callsOf(object).isEmpty();
}

QVector<Kind> callKinds()
{
    return {{"call", 300, callOurs, false},
            {"property", 90, writeProperty, false},
            {"slot", 90, invokeSlot, false}};
}

} // namespace Tarn::Storm
