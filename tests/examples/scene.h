// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef SCENE_H
#define SCENE_H

#include <QtWidgets>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/frameline.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/qssloader.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>

using namespace Tarn::Widgets;

struct Window : QWidget
{
    void showPage(int index);
};

struct Form : QWidget
{
    void checkAddress(const QString &address);
    void checkName();
};

namespace Ui {
struct Settings
{
    void setupUi(QWidget *widget);
};
} // namespace Ui

using MonitorPage = QWidget;

bool mayClose(QWidget *window);

// A widget of an application, of which every example is a function. Nothing here is defined, nor linked.
struct Scene : QWidget
{
    Window *window;
    Form *form;
    QWidget *page, *pumpsPage, *tanksPage, *strip;
    QPushButton *addButton, *menuButton;
    QToolBar *toolBar;
    QLineEdit *nameEdit;
    QVBoxLayout *layout;
    QMenu *menu;
    QAction *helpAction;
    QPen pen, m_pen;
    QString recipes, stick, history;

    void load(const QString &file);
    void load(const QStringList &files);
    void rename(const QString &name);
    void save();
    void stopPump();
};

#endif
