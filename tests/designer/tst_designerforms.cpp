// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"
#include "ui_everywidget.h"

#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QStackedWidget>
#include <QTest>
#include <QUiLoader>
#include <QtDesigner/QFormBuilder>
#include <memory>
#include <optional>

using namespace Tarn::Test;
using namespace Tarn::Widgets;

namespace {

enum class Reader { QtUiTools, QtFormBuilder, Uic };

QString pluginDirectory()
{
    return QFileInfo(QStringLiteral(TARN_PLUGIN)).path();
}

std::unique_ptr<QWidget> loadedByUiTools()
{
    QFile file(QStringLiteral(TARN_FORM));
    QUiLoader loader;
    loader.addPluginPath(pluginDirectory());
    return std::unique_ptr<QWidget>(file.open(QIODevice::ReadOnly) ? loader.load(&file) : nullptr);
}

std::unique_ptr<QWidget> loadedByFormBuilder()
{
    QFile file(QStringLiteral(TARN_FORM));
    QFormBuilder builder;
    builder.addPluginPath(pluginDirectory());
    return std::unique_ptr<QWidget>(file.open(QIODevice::ReadOnly) ? builder.load(&file) : nullptr);
}

std::unique_ptr<QWidget> compiledByUic()
{
    auto form = std::make_unique<QWidget>();
    Ui::EveryWidget().setupUi(form.get());
    return form;
}

std::unique_ptr<QWidget> makeForm(Reader reader)
{
    switch (reader) {
    case Reader::QtUiTools:
        return loadedByUiTools();
    case Reader::QtFormBuilder:
        return loadedByFormBuilder();
    case Reader::Uic:
        break;
    }
    return compiledByUic();
}

} // namespace

Q_DECLARE_METATYPE(Reader)

class tst_DesignerForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void propertiesAreSet();
    void containerHoldsItsLayout();
    void pagesStandUnderTheirTitles();
    void currentPageIsTheFormsWhereUicSetsIt();
    void formIsShown();

private:
    /*! The form's widget of that class and name. */
    template <typename Widget> Widget *part(const char *name) const
    {
        return m_form->findChild<Widget *>(QString::fromLatin1(name));
    }

    std::optional<FunctionGuard> m_guard;
    std::unique_ptr<QWidget> m_form;
};

void tst_DesignerForms::initTestCase_data()
{
    QTest::addColumn<Reader>("reader");

    QTest::newRow("QUiLoader") << Reader::QtUiTools;
    QTest::newRow("QFormBuilder") << Reader::QtFormBuilder;
    QTest::newRow("uic") << Reader::Uic;
}

void tst_DesignerForms::init()
{
    QFETCH_GLOBAL(Reader, reader);
    m_guard.emplace();
    m_form = makeForm(reader);
    QVERIFY(m_form);
}

void tst_DesignerForms::cleanup()
{
    m_form.reset();
    m_guard.reset();
}

void tst_DesignerForms::propertiesAreSet()
{
    const auto *titleBar = part<TitleBar>("titleBar");
    QVERIFY(titleBar);
    QCOMPARE(titleBar->title(), QStringLiteral("Monitor"));

    const auto *frame = part<TarnTabBar>("tarnTabBar");
    QVERIFY(frame);
    QCOMPARE(frame->getTabBarType(), TabBarRd::Even);
    QVERIFY(frame->isMovable());
    QCOMPARE(frame->elideMode(), Qt::ElideMiddle);

    const auto *bar = part<TabBarRd>("tabBarRd");
    QVERIFY(bar);
    QCOMPARE(bar->getTabBarType(), TabBarRd::Even);

    const auto *address = part<IPLineEdit>("ipLineEdit");
    QVERIFY(address);
    QVERIFY(address->acceptsAnyAddress());

    const auto *field = part<ChangedNoticeLineEdit>("changedNoticeLineEdit");
    QVERIFY(field);
    QCOMPARE(field->text(), QStringLiteral("Pump 1"));

    const auto *pushButton = part<TarnPushButton>("tarnPushButton");
    QVERIFY(pushButton);
    QVERIFY(pushButton->isCheckable());

    const auto *toolButton = part<ToolButton>("toolButton");
    QVERIFY(toolButton);
    QCOMPARE(toolButton->text(), QStringLiteral("Menu"));
    QCOMPARE(toolButton->popupMode(), QToolButton::InstantPopup);
}

void tst_DesignerForms::containerHoldsItsLayout()
{
    const auto *panel = part<StyleSheetWidget>("styleSheetWidget");
    const auto *label = part<QLabel>("panelLabel");
    QVERIFY(panel && label);

    QCOMPARE(label->parentWidget(), panel);
    QVERIFY(panel->layout());
    QCOMPARE(panel->layout()->indexOf(const_cast<QLabel *>(label)), 0);
}

void tst_DesignerForms::pagesStandUnderTheirTitles()
{
    const auto *tabs = part<TarnTabWidget>("tarnTabWidget");
    QVERIFY(tabs);

    QCOMPARE(tabs->getTabBarType(), TabBarRd::Even);
    QVERIFY(tabs->tabsClosable());
    QCOMPARE(tabs->iconSize(), QSize(20, 18));
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->getStackWidget()->count(), 2);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Pumps"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Valves"));
    QVERIFY(tabs->widget(0)->findChild<QLabel *>(QStringLiteral("pumpsLabel")));
    QVERIFY(tabs->widget(1)->findChild<QCheckBox *>(QStringLiteral("valvesBox")));
}

// The others set all properties before there are pages.
void tst_DesignerForms::currentPageIsTheFormsWhereUicSetsIt()
{
    QFETCH_GLOBAL(Reader, reader);
    const auto *tabs = part<TarnTabWidget>("tarnTabWidget");
    QVERIFY(tabs);

    QCOMPARE(tabs->currentIndex(), reader == Reader::Uic ? 1 : 0);
    QCOMPARE(tabs->getStackWidget()->currentIndex(), tabs->currentIndex());
}

void tst_DesignerForms::formIsShown()
{
    m_form->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_form.get()));

    for (const char *name : {"titleBar", "tarnTabBar", "tabBarRd", "ipLineEdit", "changedNoticeLineEdit",
                             "tarnPushButton", "toolButton", "styleSheetWidget", "tarnTabWidget"})
        QVERIFY2(part<QWidget>(name)->isVisible(), name);
}

QTEST_MAIN(tst_DesignerForms)

#include "tst_designerforms.moc"
