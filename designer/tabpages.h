// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_DESIGNER_TABPAGES_H
#define TARN_DESIGNER_TABPAGES_H

#include <QList>
#include <QObject>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

class QAction;
class QDesignerFormEditorInterface;

namespace Tarn::Widgets {
class TarnTabWidget;
}

/*! Lets Designer insert, remove and save the pages of a TarnTabWidget. */
class TabPages : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    TabPages(Tarn::Widgets::TarnTabWidget *tabs, QObject *parent);

    int count() const override;
    QWidget *widget(int index) const override;
    int currentIndex() const override;
    void setCurrentIndex(int index) override;
    void addWidget(QWidget *page) override;
    void insertWidget(int index, QWidget *page) override;
    void remove(int index) override;

private:
    Tarn::Widgets::TarnTabWidget *const m_pTabs;
};

/*! Adds an entry for the title of a page to the menu that Designer has for pages. */
class TabPagesMenu : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    TabPagesMenu(Tarn::Widgets::TarnTabWidget *tabs, QObject *parent);

    QAction *preferredEditAction() const override;
    QList<QAction *> taskActions() const override;

private:
    void askForTitle() const;

    Tarn::Widgets::TarnTabWidget *const m_pTabs;
    QAction *const m_pTitleAction;
};

/*! Makes both. */
class TabPagesFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    explicit TabPagesFactory(QExtensionManager *manager);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;
};

/*! Tells \a core about the extensions above. */
void registerTabPages(QDesignerFormEditorInterface *core);

/*!
 * Keeps close buttons from removing pages of a form behind Designer's back, and
 * lets a dragged tab count as a change of the form.
 */
void prepareTabWidgetForEditor(QWidget *tabWidget);

#endif
