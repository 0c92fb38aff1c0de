// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "descriptions.h"

#include "tabpages.h"

#include <QCoreApplication>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>

using namespace Tarn::Widgets;

namespace {

/* The texts of the box of widgets and the property editor. */
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TarnWidgetsDesigner)
};

template <typename Widget> QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

/* A bar without tabs could hardly be seen. These are not part of the form: tabs are for the program to add.
 */
template <typename Bar> void addSampleTabs(QWidget *widget)
{
    auto *bar = static_cast<Bar *>(widget);
    bar->addTab(Texts::tr("Tab 1"));
    bar->addTab(Texts::tr("Tab 2"));
    bar->setCurrentIndex(0);
}

QPair<QString, QString> typeToolTip()
{
    return {QStringLiteral("tabBarType"),
            Texts::tr("Normal: tabs as wide as their texts. Even: tabs that share the "
                      "width of the bar.")};
}

WidgetDescription tabWidget()
{
    WidgetDescription description;
    description.name = QStringLiteral("TarnTabWidget");
    // It is a QFrame. But uic sets a currentIndex after the pages are added, and not before, only for those
    // that it takes for a QTabWidget; what it calls then is there under the same names.
    description.base = QStringLiteral("QTabWidget");
    description.header = QStringLiteral("tarntabwidget.h");
    description.group = Texts::tr("Tarn Containers");
    description.toolTip = Texts::tr("Pages under tabs");
    description.whatsThis =
        Texts::tr("Pages under tabs that can share the width evenly, with room for other widgets "
                  "beside them. The text of a tab is the window title of its page.");
    description.size = QSize(240, 160);
    description.propertyToolTips = {
        typeToolTip(),
        {QStringLiteral("currentIndex"),
         Texts::tr("The page on show. Programs that load the form with QUiLoader "
                   "begin with the first.")},
        {QStringLiteral("tabsClosable"), Texts::tr("Tabs have close buttons. The last page stays.")},
    };
    description.create = make<TarnTabWidget>;
    description.prepareForEditor = prepareTabWidgetForEditor;
    description.registerExtensions = registerTabPages;
    description.isContainer = true;
    description.addPageMethod = QStringLiteral("addPage");
    description.pages = 2;
    return description;
}

WidgetDescription styleSheetWidget()
{
    WidgetDescription description;
    description.name = QStringLiteral("StyleSheetWidget");
    description.base = QStringLiteral("QWidget");
    description.header = QStringLiteral("stylesheetwidget.h");
    description.group = Texts::tr("Tarn Containers");
    description.toolTip = Texts::tr("A panel that the style sheet paints");
    description.whatsThis =
        Texts::tr("A plain panel whose background, border and border image come from the style "
                  "sheet. Without a rule it paints nothing.");
    description.size = QSize(160, 100);
    description.create = make<StyleSheetWidget>;
    description.isContainer = true;
    return description;
}

WidgetDescription titleBar()
{
    WidgetDescription description;
    description.name = QStringLiteral("TitleBar");
    description.base = QStringLiteral("QFrame");
    description.header = QStringLiteral("titlebar.h");
    description.group = Texts::tr("Tarn Bars");
    description.toolTip = Texts::tr("The title bar of a window that draws its own frame");
    description.whatsThis =
        Texts::tr("Logo, title, and buttons that minimise, maximise, restore and close. It only "
                  "reports what the user asks for; the window acts on its signals. The buttons' "
                  "icons come from the style sheet.");
    description.size = QSize(320, 24);
    description.propertyToolTips = {
        {QStringLiteral("title"), Texts::tr("The text on the bar, shown as it is.")}};
    description.create = make<TitleBar>;
    return description;
}

WidgetDescription tabBar()
{
    WidgetDescription description;
    description.name = QStringLiteral("TarnTabBar");
    description.base = QStringLiteral("QFrame");
    description.header = QStringLiteral("tarntabbar.h");
    description.group = Texts::tr("Tarn Bars");
    description.toolTip = Texts::tr("Tabs with room for other widgets beside them");
    description.whatsThis =
        Texts::tr("A tab bar in a frame that has room for other widgets to the left, behind the "
                  "tabs and at the far right. The program adds tabs and widgets; the tabs shown "
                  "here are samples.");
    description.size = QSize(240, 30);
    description.propertyToolTips = {typeToolTip()};
    description.create = make<TarnTabBar>;
    description.prepareForEditor = addSampleTabs<TarnTabBar>;
    return description;
}

WidgetDescription bareTabBar()
{
    WidgetDescription description;
    description.name = QStringLiteral("TabBarRd");
    description.base = QStringLiteral("QTabBar");
    description.header = QStringLiteral("tarntabbar.h");
    description.group = Texts::tr("Tarn Bars");
    description.toolTip = Texts::tr("A tab bar whose tabs can share its width");
    description.whatsThis =
        Texts::tr("A QTabBar whose tabs can share its whole width evenly. The program adds the "
                  "tabs; those shown here are samples.");
    description.size = QSize(240, 30);
    description.propertyToolTips = {typeToolTip()};
    description.create = make<TabBarRd>;
    description.prepareForEditor = addSampleTabs<TabBarRd>;
    return description;
}

WidgetDescription addressEdit()
{
    WidgetDescription description;
    description.name = QStringLiteral("IPLineEdit");
    description.base = QStringLiteral("QLineEdit");
    description.header = QStringLiteral("iplineedit.h");
    description.group = Texts::tr("Tarn Input Widgets");
    description.toolTip = Texts::tr("An IPv4 address");
    description.whatsThis =
        Texts::tr("Edits an IPv4 address as four numbers with dots between them. The dots are the "
                  "style sheet's to paint.");
    description.size = QSize(140, 24);
    description.propertyToolTips = {
        {QStringLiteral("acceptsAnyAddress"),
         Texts::tr("Whether every address from 0.0.0.0 to 255.255.255.255 can be "
                   "typed, and whole addresses copied and pasted. Otherwise the "
                   "first number begins with 1 or 2.")},
        {QStringLiteral("text"),
         Texts::tr("The address, in forms that uic compiles. Designer and QUiLoader set that "
                   "of the line edit behind the four numbers, which is not seen.")},
    };
    description.create = make<IPLineEdit>;
    return description;
}

WidgetDescription noticeEdit()
{
    WidgetDescription description;
    description.name = QStringLiteral("ChangedNoticeLineEdit");
    description.base = QStringLiteral("QLineEdit");
    description.header = QStringLiteral("changednoticelineedit.h");
    description.group = Texts::tr("Tarn Input Widgets");
    description.toolTip = Texts::tr("A line edit that tells when the user leaves it");
    description.whatsThis =
        Texts::tr("A QLineEdit with the signal signal_focusOut(), which comes whenever the focus "
                  "leaves the field.");
    description.size = QSize(140, 24);
    description.create = make<ChangedNoticeLineEdit>;
    return description;
}

WidgetDescription pushButton()
{
    WidgetDescription description;
    description.name = QStringLiteral("TarnPushButton");
    description.base = QStringLiteral("QPushButton");
    description.header = QStringLiteral("tarnpushbutton.h");
    description.group = Texts::tr("Tarn Buttons");
    description.toolTip = Texts::tr("A push button with its text turned by 90 degrees");
    description.whatsThis = Texts::tr("A push button for narrow vertical strips. The program turns it by "
                                      "isOpenRotation(true) and gives it its text by setBtnText().");
    description.size = QSize(28, 100);
    description.propertyToolTips = {
        {QStringLiteral("text"),
         Texts::tr("Leave it empty and call setBtnText() in the program: forms that uic "
                   "compiles cut this text to the height that the button has before it is "
                   "laid out.")},
        {QStringLiteral("toolTip"), Texts::tr("The button's own to set: each new text replaces it.")},
    };
    description.create = make<TarnPushButton>;
    return description;
}

WidgetDescription toolButton()
{
    WidgetDescription description;
    description.name = QStringLiteral("ToolButton");
    description.base = QStringLiteral("QToolButton");
    description.header = QStringLiteral("toolbutton.h");
    description.group = Texts::tr("Tarn Buttons");
    description.toolTip = Texts::tr("A tool button that is not left hovered by its menu");
    description.whatsThis =
        Texts::tr("A QToolButton that asks where the pointer is when its menu closes. The program "
                  "gives it the menu.");
    description.size = QSize(28, 24);
    description.create = make<ToolButton>;
    return description;
}

} // namespace

QVector<WidgetDescription> widgetDescriptions()
{
    return {tabWidget(),   styleSheetWidget(), titleBar(),   tabBar(),    bareTabBar(),
            addressEdit(), noticeEdit(),       pushButton(), toolButton()};
}
