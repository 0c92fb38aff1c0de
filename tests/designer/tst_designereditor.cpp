// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/messagesentry.h"
#include "support/modaldriver.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QTest>
#include <QUndoStack>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerMetaDataBaseInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QDesignerWidgetFactoryInterface>
#include <QtDesigner/QExtensionManager>
#include <memory>
#include <optional>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Test;
using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;

namespace {

QString formText()
{
    QFile file(QStringLiteral(TARN_FORM));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/* The entry of a context menu, or of a menu in it, whose text begins like that. */
QAction *findAction(const QList<QAction *> &actions, const QString &text)
{
    for (QAction *action : actions) {
        if (action->text().startsWith(text))
            return action;
        QAction *inMenu = action->menu() ? findAction(action->menu()->actions(), text) : nullptr;
        if (inMenu)
            return inMenu;
    }
    return nullptr;
}

} // namespace

/* Designer's form editor, without the windows around it. */
class tst_DesignerEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void boxOffersTheGroups();
    void savedFormIsTheOneThatWasLoaded();
    void headersAreSavedAsThePublicOnes();
    void sampleTabsAreNotSaved();
    void newTabWidgetHasTwoPages();
    void pageIsInsertedByTheMenu_data();
    void pageIsInsertedByTheMenu();
    void insertedPageIsSavedWithItsTitle();
    void deletedPageIsGoneFromTheFormAndComesBack();
    void titleIsChangedByTheMenu();
    void cancelledTitleStays();
    void otherPageIsShownOnDemand();
    void closeButtonLeavesThePagesOfAForm();
    void closeButtonWorksInAPreview();
    void draggedTabCountsAsAChange();

private:
    TarnTabWidget *tabs() const;
    QStringList titles() const;
    void trigger(const QString &entry) const;

    template <typename Extension> Extension *extension(QObject *object) const
    {
        return qt_extension<Extension *>(m_core->extensionManager(), object);
    }

    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
    std::optional<MessageSentry> m_sentry;
};

void tst_DesignerEditor::initTestCase()
{
    // Designer looks into the directory designer of each path; what else the machine has is not asked for.
    QCoreApplication::setLibraryPaths({QFileInfo(QFileInfo(QStringLiteral(TARN_PLUGIN)).path()).path()});
    QDesignerComponents::initializeResources();
    m_core = QDesignerComponents::createFormEditor(this);
    auto *top = new QWidget;
    m_core->setTopLevel(top);
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, top));
    m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, top));
    m_core->setObjectInspector(QDesignerComponents::createObjectInspector(m_core, top));
    m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, top));
    QDesignerComponents::createTaskMenu(m_core, this);
    new QDesignerIntegration(m_core, this); // which is the core's from now on
    QDesignerComponents::initializePlugins(m_core);
    const int index =
        m_core->widgetDataBase()->indexOfClassName(QStringLiteral("Tarn::Widgets::TarnTabWidget"));
    QVERIFY2(index >= 0, "Designer has not found the plugin");
}

void tst_DesignerEditor::cleanupTestCase()
{
    delete m_core->topLevel();
}

void tst_DesignerEditor::init()
{
    m_sentry.emplace();
    m_form = m_core->formWindowManager()->createFormWindow(m_core->topLevel());
    QVERIFY(m_form->setContents(formText()));
    m_core->formWindowManager()->setActiveFormWindow(m_form);
    m_form->setDirty(false);
    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
}

void tst_DesignerEditor::cleanup()
{
    m_form->setDirty(false);
    delete m_form;
    m_sentry.reset();
}

TarnTabWidget *tst_DesignerEditor::tabs() const
{
    return m_form->mainContainer()->findChild<TarnTabWidget *>();
}

QStringList tst_DesignerEditor::titles() const
{
    QStringList titles;
    for (int index = 0; index < tabs()->count(); ++index)
        titles.append(tabs()->tabText(index));
    return titles;
}

void tst_DesignerEditor::trigger(const QString &entry) const
{
    // Designer puts these together: what it has itself for widgets with pages, and what plugins bring.
    QList<QAction *> actions;
    const QString ids[] = {Q_TYPEID(QDesignerTaskMenuExtension),
                           QStringLiteral("QDesignerInternalTaskMenuExtension")};
    for (const QString &id : ids) {
        QObject *object = m_core->extensionManager()->extension(tabs(), id);
        const auto *menu = qobject_cast<QDesignerTaskMenuExtension *>(object);
        QVERIFY2(menu, qPrintable(id));
        actions += menu->taskActions();
    }
    QAction *action = findAction(actions, entry);
    QVERIFY2(action, qPrintable(entry));
    QVERIFY(action->isEnabled());
    action->trigger();
}

void tst_DesignerEditor::boxOffersTheGroups()
{
    QStringList offered;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int index = 0; index < box->categoryCount(); ++index) {
        const QDesignerWidgetBoxInterface::Category category = box->category(index);
        if (!category.name().startsWith(QStringLiteral("Tarn ")))
            continue;
        for (int widget = 0; widget < category.widgetCount(); ++widget)
            offered.append(category.name() + QLatin1Char('/') + category.widget(widget).name());
    }

    const QStringList expected = {QStringLiteral("Tarn Containers/TarnTabWidget"),
                                  QStringLiteral("Tarn Containers/StyleSheetWidget"),
                                  QStringLiteral("Tarn Bars/TitleBar"),
                                  QStringLiteral("Tarn Bars/TarnTabBar"),
                                  QStringLiteral("Tarn Bars/TabBarRd"),
                                  QStringLiteral("Tarn Input Widgets/IPLineEdit"),
                                  QStringLiteral("Tarn Input Widgets/ChangedNoticeLineEdit"),
                                  QStringLiteral("Tarn Buttons/TarnPushButton"),
                                  QStringLiteral("Tarn Buttons/ToolButton")};
    QCOMPARE(offered, expected);
}

void tst_DesignerEditor::savedFormIsTheOneThatWasLoaded()
{
    const QString saved = m_form->contents();

    // Loaded once more, it is saved as before: nothing is lost on the way.
    QVERIFY(m_form->setContents(saved));
    QCOMPARE(m_form->contents(), saved);
    for (const char *part : {"<string>Monitor</string>", "<enum>Tarn::Widgets::TabBarRd::Even</enum>",
                             "name=\"acceptsAnyAddress\"", "<enum>QToolButton::InstantPopup</enum>",
                             "<string>In the panel</string>", "<string>Pumps</string>",
                             "<string>Valves</string>", "<string>First</string>", "<string>Second</string>",
                             "<addpagemethod>addPage</addpagemethod>", "<extends>QTabWidget</extends>"})
        QVERIFY2(saved.contains(QLatin1String(part)), part);
}

void tst_DesignerEditor::headersAreSavedAsThePublicOnes()
{
    const QString saved = m_form->contents();

    for (const char *header : {"tarntabwidget.h", "titlebar.h", "iplineedit.h"}) {
        const QString line =
            QStringLiteral("<header location=\"global\">tarnwidgets/%1</header>").arg(QLatin1String(header));
        QVERIFY2(saved.contains(line), header);
    }
}

void tst_DesignerEditor::sampleTabsAreNotSaved()
{
    // GIVEN bars that show some
    const auto *bar = m_form->mainContainer()->findChild<TarnTabBar *>(QStringLiteral("tarnTabBar"));
    QVERIFY(bar);
    QCOMPARE(bar->count(), 2);

    QVERIFY(!m_form->contents().contains(bar->tabText(0)));
}

void tst_DesignerEditor::newTabWidgetHasTwoPages()
{
    // GIVEN what the box of widgets drops
    const QDesignerWidgetBoxInterface::Category containers = m_core->widgetBox()->category(
        m_core->widgetBox()->findOrInsertCategory(QStringLiteral("Tarn Containers")));
    QCOMPARE(containers.widget(0).name(), QStringLiteral("TarnTabWidget"));

    // WHEN it becomes a form
    QVERIFY(m_form->setContents(containers.widget(0).domXml()));

    // THEN it has pages that can be filled
    auto *widget = qobject_cast<TarnTabWidget *>(m_form->mainContainer());
    QVERIFY(widget);
    QCOMPARE(widget->count(), 2);
    QCOMPARE(widget->tabText(1), QStringLiteral("Page 2"));
}

void tst_DesignerEditor::pageIsInsertedByTheMenu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("after") << QStringLiteral("Insert Page After Current Page")
                           << QStringList({QStringLiteral("Pumps"), QStringLiteral("Page 3"),
                                           QStringLiteral("Valves")});
    QTest::newRow("before") << QStringLiteral("Insert Page Before Current Page")
                            << QStringList({QStringLiteral("Page 3"), QStringLiteral("Pumps"),
                                            QStringLiteral("Valves")});
}

void tst_DesignerEditor::pageIsInsertedByTheMenu()
{
    QFETCH(QString, entry);
    QFETCH(QStringList, expected);
    QCOMPARE(tabs()->currentIndex(), 0);

    trigger(entry);

    // THEN it stands there with a title, is part of the form, and the pages are as the tabs
    QCOMPARE(titles(), expected);
    const auto *pages = extension<QDesignerContainerExtension>(tabs());
    QVERIFY(pages);
    QCOMPARE(pages->count(), 3);
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(pages->widget(index)->windowTitle(), expected.at(index));
        QVERIFY(m_core->metaDataBase()->item(pages->widget(index)));
    }

    // WHEN it is undone
    m_form->commandHistory()->undo();

    // THEN it is gone
    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
}

void tst_DesignerEditor::insertedPageIsSavedWithItsTitle()
{
    trigger(QStringLiteral("Insert Page After Current Page"));

    const QString saved = m_form->contents();
    QVERIFY(saved.contains(QStringLiteral("<string>Page 3</string>")));
    QVERIFY(m_form->setContents(saved));
    QCOMPARE(titles(),
             QStringList({QStringLiteral("Pumps"), QStringLiteral("Page 3"), QStringLiteral("Valves")}));
}

void tst_DesignerEditor::deletedPageIsGoneFromTheFormAndComesBack()
{
    trigger(QStringLiteral("Delete"));

    QCOMPARE(titles(), QStringList({QStringLiteral("Valves")}));
    QVERIFY(!m_form->contents().contains(QStringLiteral("<string>Pumps</string>")));

    m_form->commandHistory()->undo();

    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
    QVERIFY(m_form->contents().contains(QStringLiteral("<string>First</string>")));
}

void tst_DesignerEditor::titleIsChangedByTheMenu()
{
    // WHEN the entry's dialog is answered
    ModalDriver driver([](QWidget *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        QVERIFY(input);
        QCOMPARE(input->textValue(), QStringLiteral("Pumps"));
        input->setTextValue(QStringLiteral("Tanks"));
        input->accept();
    });
    trigger(QStringLiteral("Change page title"));
    QVERIFY(driver.ran());

    // THEN the tab has the title, which is saved, and it can be undone
    QCOMPARE(titles(), QStringList({QStringLiteral("Tanks"), QStringLiteral("Valves")}));
    QVERIFY(m_form->isDirty());
    QVERIFY(m_form->contents().contains(QStringLiteral("<string>Tanks</string>")));
    m_form->commandHistory()->undo();
    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
}

void tst_DesignerEditor::cancelledTitleStays()
{
    ModalDriver driver([](QWidget *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        QVERIFY(input);
        input->setTextValue(QStringLiteral("Tanks"));
        input->reject();
    });
    trigger(QStringLiteral("Change page title"));
    QVERIFY(driver.ran());

    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
    QVERIFY(!m_form->isDirty());
}

void tst_DesignerEditor::otherPageIsShownOnDemand()
{
    auto *pages = extension<QDesignerContainerExtension>(tabs());
    QVERIFY(pages);
    QCOMPARE(pages->currentIndex(), 0);

    // Designer asks for a page when something on it is chosen in the object inspector.
    pages->setCurrentIndex(1);

    QCOMPARE(tabs()->currentIndex(), 1);
    QCOMPARE(pages->currentIndex(), 1);
}

void tst_DesignerEditor::closeButtonLeavesThePagesOfAForm()
{
    QVERIFY(tabs()->tabsClosable());

    Q_EMIT tabs()->getTabBar()->getTabBar()->tabCloseRequested(0);

    QCOMPARE(titles(), QStringList({QStringLiteral("Pumps"), QStringLiteral("Valves")}));
}

void tst_DesignerEditor::closeButtonWorksInAPreview()
{
    // GIVEN a widget from Designer that stands in no form
    const std::unique_ptr<QWidget> widget(
        m_core->widgetFactory()->createWidget(QStringLiteral("Tarn::Widgets::TarnTabWidget"), nullptr));
    auto *preview = qobject_cast<TarnTabWidget *>(widget.get());
    QVERIFY(preview);
    for (const QString &title : {QStringLiteral("A"), QStringLiteral("B")}) {
        auto *page = new QWidget;
        page->setWindowTitle(title);
        preview->addPage(page);
    }

    Q_EMIT preview->getTabBar()->getTabBar()->tabCloseRequested(0);

    QCOMPARE(preview->count(), 1);
    QCOMPARE(preview->tabText(0), QStringLiteral("B"));
}

void tst_DesignerEditor::draggedTabCountsAsAChange()
{
    QVERIFY(!m_form->isDirty());

    // as the inner bar does when the user drags
    tabs()->getTabBar()->moveTab(0, 1);

    QVERIFY(m_form->isDirty());
    const QString saved = m_form->contents();
    QVERIFY(saved.indexOf(QStringLiteral("<string>Valves</string>"))
            < saved.indexOf(QStringLiteral("<string>Pumps</string>")));
}

QTEST_MAIN(tst_DesignerEditor)

#include "tst_designereditor.moc"
