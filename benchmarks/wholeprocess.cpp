// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A whole process that shows one message box and ends. Built twice: with FramelessMessageBox, and with
// QMessageBox and without our libraries.

#include <QApplication>
#include <QPushButton>
#ifdef FRAMELESS
#include <tarnwidgets/framelessmessagebox.h>
using Box = Tarn::Widgets::FramelessMessageBox;
#else
#include <QMessageBox>
using Box = QMessageBox;
#endif

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Box box(QMessageBox::NoIcon, QStringLiteral("Storage"), QStringLiteral("The records were stored."),
            QMessageBox::Ok);
    box.show();
    QApplication::processEvents();
    box.button(QMessageBox::Ok)->click();
    QApplication::processEvents();
}
