// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tabpages.h"

#include <QAction>
#include <QInputDialog>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <tarnwidgets/tarntabwidget.h>

using Tarn::Widgets::TarnTabBar;
using Tarn::Widgets::TarnTabWidget;

namespace {

/* Gives a page a title that Designer saves. */
void setTitle(QWidget *page, const QString &title)
{
    page->setWindowTitle(title);
    const QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(page);
    if (!form)
        return;
    auto *sheet = qt_extension<QDesignerPropertySheetExtension *>(form->core()->extensionManager(), page);
    if (sheet)
        sheet->setChanged(sheet->indexOf(QStringLiteral("windowTitle")), true);
}

} // namespace

TabPages::TabPages(TarnTabWidget *tabs, QObject *parent)
    : QObject(parent)
    , m_pTabs(tabs)
{
}

int TabPages::count() const
{
    return m_pTabs->count();
}

QWidget *TabPages::widget(int index) const
{
    return m_pTabs->widget(index);
}

int TabPages::currentIndex() const
{
    return m_pTabs->currentIndex();
}

void TabPages::setCurrentIndex(int index)
{
    m_pTabs->setCurrentIndex(index);
}

void TabPages::addWidget(QWidget *page)
{
    insertWidget(count(), page);
}

void TabPages::insertWidget(int index, QWidget *page)
{
    m_pTabs->addPage(page);
    m_pTabs->getTabBar()->moveTab(count() - 1, index);
    // Without a text the tab could hardly be clicked.
    if (page->windowTitle().isEmpty())
        setTitle(page, tr("Page %1").arg(count()));
}

void TabPages::remove(int index)
{
    m_pTabs->removeTab(index);
}

TabPagesMenu::TabPagesMenu(TarnTabWidget *tabs, QObject *parent)
    : QObject(parent)
    , m_pTabs(tabs)
    , m_pTitleAction(new QAction(tr("Change page title..."), this))
{
    connect(m_pTitleAction, &QAction::triggered, this, &TabPagesMenu::askForTitle);
}

QAction *TabPagesMenu::preferredEditAction() const
{
    return m_pTitleAction;
}

QList<QAction *> TabPagesMenu::taskActions() const
{
    m_pTitleAction->setEnabled(m_pTabs->currentWidget() != nullptr);
    return {m_pTitleAction};
}

void TabPagesMenu::askForTitle() const
{
    QWidget *page = m_pTabs->currentWidget();
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(m_pTabs);
    if (!page || !form)
        return;
    bool accepted = false;
    const QString title =
        QInputDialog::getText(form->core()->topLevel(), tr("Change Page Title"), tr("Title:"),
                              QLineEdit::Normal, page->windowTitle(), &accepted);
    // By the cursor, so that it can be undone.
    if (accepted)
        form->cursor()->setWidgetProperty(page, QStringLiteral("windowTitle"), title);
}

TabPagesFactory::TabPagesFactory(QExtensionManager *manager)
    : QExtensionFactory(manager)
{
}

QObject *TabPagesFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    auto *tabs = qobject_cast<TarnTabWidget *>(object);
    if (!tabs)
        return nullptr;
    if (iid == Q_TYPEID(QDesignerContainerExtension))
        return new TabPages(tabs, parent);
    if (iid == Q_TYPEID(QDesignerTaskMenuExtension))
        return new TabPagesMenu(tabs, parent);
    return nullptr;
}

void registerTabPages(QDesignerFormEditorInterface *core)
{
    QExtensionManager *manager = core->extensionManager();
    auto *factory = new TabPagesFactory(manager);
    manager->registerExtensions(factory, Q_TYPEID(QDesignerContainerExtension));
    manager->registerExtensions(factory, Q_TYPEID(QDesignerTaskMenuExtension));
}

void prepareTabWidgetForEditor(QWidget *tabWidget)
{
    auto *tabs = static_cast<TarnTabWidget *>(tabWidget);
    const TarnTabBar *bar = tabs->getTabBar();
    QObject::disconnect(bar, &TarnTabBar::tabCloseRequested, tabs, &TarnTabWidget::slot_tabCloseRequested);
    QObject::connect(bar, &TarnTabBar::tabCloseRequested, tabs, [tabs](int index) {
        if (!QDesignerFormWindowInterface::findFormWindow(tabs)) // a preview
            tabs->slot_tabCloseRequested(index);
    });
    QObject::connect(bar->getTabBar(), &QTabBar::tabMoved, tabs, [tabs] {
        if (auto *form = QDesignerFormWindowInterface::findFormWindow(tabs))
            form->setDirty(true);
    });
}
