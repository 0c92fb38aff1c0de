// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include <tarnutils/appmainwindow.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/frameline.h>
#include <tarnwidgets/qssloader.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/titlebar.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

QString dialogClass();

// Shows what an application would, and tells in one line what it was made of.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    Tarn::Widgets::FramelessWindow window(nullptr);
    window.setCentralWidget(new Tarn::Widgets::StyleSheetWidget);
    window.show();

    QTextStream(stdout) << window.metaObject()->className() << " on "
                        << window.metaObject()->superClass()->className() << " of the "
                        << (window.property("device").toBool() ? "device" : "stand-in") << ", with "
                        << dialogClass() << '\n';
    QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
