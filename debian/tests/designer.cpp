// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "ui_everywidget.h"

#include <QApplication>
#include <QPluginLoader>
#include <QTextStream>

// Shows a form that uic compiled, and loads the plugin for Qt Designer, whose path is given.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);

    QWidget window;
    Ui::EveryWidget form;
    form.setupUi(&window);
    window.show();
    out << "a form with " << form.tarnTabWidget->metaObject()->className();

    QPluginLoader plugin(QString::fromLocal8Bit(argv[1]));
    out << ", " << (plugin.instance() ? QStringLiteral("the plugin") : plugin.errorString()) << '\n';
    return 0;
}
