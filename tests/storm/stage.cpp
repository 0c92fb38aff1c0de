// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "stage.h"

#include "tally.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QPalette>
#include <QStyle>
#include <algorithm>

namespace Tarn::Storm {

Stage::Stage()
    : m_style(QApplication::style()->objectName())
    , m_font(QApplication::font())
    , m_direction(QApplication::layoutDirection())
{
    m_nursery = new QWidget;
    m_nursery->setObjectName(QStringLiteral("stormNursery"));
    qApp->installEventFilter(this);
}

Stage::~Stage()
{
    const QVector<QPointer<QObject>> all = m_owned; // what one deletes may take others along
    for (const QPointer<QObject> &object : all)
        delete object;
    delete m_nursery;
    qApp->removeEventFilter(this);
    m_props.clear();
    restoreLook();
}

// What one scene leaves to the next would make that depend on it.
void Stage::restoreLook()
{
    // Qt keeps a tool tip, whose style is that of a widget that has gone.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QTipLabel"))
            delete window;
    }
    qApp->setStyleSheet(QString());
    if (QApplication::style()->objectName() != m_style)
        QApplication::setStyle(m_style);
    QApplication::setPalette(QPalette());
    QApplication::setFont(m_font);
    QApplication::setLayoutDirection(m_direction);
}

void Stage::own(QObject *object)
{
    m_owned.append(object);
    auto *widget = qobject_cast<QWidget *>(object);
    if (widget && widget->isWindow())
        m_windows.append(widget);
}

void Stage::keep(std::shared_ptr<void> prop)
{
    m_props.append(std::move(prop));
}

QWidget *Stage::nursery()
{
    return m_nursery;
}

QVector<QWidget *> Stage::windows()
{
    QVector<QWidget *> found;
    m_windows.erase(std::remove_if(m_windows.begin(), m_windows.end(),
                                   [](const QPointer<QWidget> &window) { return window.isNull(); }),
                    m_windows.end());
    for (const QPointer<QWidget> &window : qAsConst(m_windows)) {
        if (window->isWindow() && window->windowType() != Qt::Desktop && !found.contains(window))
            found.append(window);
    }
    return found;
}

QVector<QObject *> Stage::owned()
{
    m_owned.erase(std::remove_if(m_owned.begin(), m_owned.end(),
                                 [](const QPointer<QObject> &object) { return object.isNull(); }),
                  m_owned.end());
    QVector<QObject *> found;
    for (const QPointer<QObject> &object : qAsConst(m_owned))
        found.append(object);
    return found;
}

QVector<QObject *> Stage::objects()
{
    QVector<QWidget *> widgets;
    const QVector<QWidget *> all = windows();
    for (QWidget *window : all)
        collectWidgets(window, widgets);
    QVector<QObject *> found;
    found.reserve(widgets.size());
    for (QWidget *widget : qAsConst(widgets))
        found.append(widget);
    const QVector<QObject *> others = owned();
    for (QObject *object : others) {
        if (!object->isWidgetType())
            found.append(object);
    }
    return found;
}

QVector<QWidget *> Stage::inputWindows()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return {popup};
    QVector<QWidget *> found;
    QWidget *modal = QApplication::activeModalWidget();
    const QVector<QWidget *> all = windows();
    for (QWidget *window : all) {
        if (window->isVisible() && (!modal || modal == window || modal->isAncestorOf(window)))
            found.append(window);
    }
    if (modal && !found.contains(modal))
        found.append(modal);
    return found;
}

const Test::FileTree &Stage::files()
{
    return m_files;
}

bool Stage::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    tally(event);
    if (event->type() != QEvent::Show)
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    if (!widget->isWindow())
        return false;
    // QFileSystemModel crashes when the files that it shows go away: nobody may remove or rename them.
    if (auto *dialog = qobject_cast<QFileDialog *>(widget))
        dialog->setOption(QFileDialog::ReadOnly);
    if (!m_windows.contains(QPointer<QWidget>(widget)))
        m_windows.append(widget);
    return false;
}

void collectWidgets(QWidget *root, QVector<QWidget *> &widgets)
{
    widgets.append(root);
    const QObjectList &children = root->children();
    for (QObject *child : children) {
        if (child->isWidgetType() && !static_cast<QWidget *>(child)->isWindow())
            collectWidgets(static_cast<QWidget *>(child), widgets);
    }
}

} // namespace Tarn::Storm
