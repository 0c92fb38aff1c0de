// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What runs an event loop of its own. The storm goes on inside, see Storm::pump().

#include "acts.h"

#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QTest>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

// QDialog warns about an exec() inside its own.
QVector<QPointer<QDialog>> s_running;

QWidget *drawParent(Context &c)
{
    const QVector<QObject *> all = c.stage.owned();
    for (int tries = 0; tries < 3 && !all.isEmpty(); ++tries) {
        auto *widget = qobject_cast<QWidget *>(c.dice.pickOf(all));
        if (widget && widget->isVisible())
            return widget;
    }
    return nullptr;
}

void execute(Context &c)
{
    QVector<QDialog *> dialogs;
    const QVector<QObject *> all = c.stage.owned();
    for (QObject *object : all) {
        auto *dialog = qobject_cast<QDialog *>(object);
        if (dialog && !s_running.contains(QPointer<QDialog>(dialog)))
            dialogs.append(dialog);
    }
    if (dialogs.isEmpty())
        return;
    QDialog *dialog = c.dice.pickOf(dialogs);
    c.notes.about(dialog);
    s_running.append(dialog);
    dialog->exec();
    s_running.removeLast();
}

void askMessageBox(Context &c)
{
    QWidget *parent = drawParent(c);
    const QString title = drawText(c.dice).left(40);
    const QString text = drawText(c.dice);
    const auto buttons = draw<QMessageBox::StandardButtons>(c.source());
    const auto preferred = draw<QMessageBox::StandardButton>(c.source());
    c.notes.about(parent);
    char property[] = "isStormy";
    switch (c.dice.below(7)) {
    case 0:
        FramelessMessageBox::information(parent, title, text, buttons, preferred);
        break;
    case 1:
        FramelessMessageBox::question(parent, title, text, buttons, preferred);
        break;
    case 2:
        FramelessMessageBox::warning(parent, title, text, property, true, buttons, preferred, false);
        break;
    case 3:
        FramelessMessageBox::critical(parent, title, text, nullptr, true, buttons, preferred);
        break;
    case 4:
        FramelessMessageBox::about(parent, title, text);
        break;
    case 5:
        FramelessMessageBox::aboutQt(parent, title);
        break;
    default:
        FramelessMessageBox::critical(parent, title, text);
        break;
    }
}

void askColor(Context &c)
{
    QWidget *parent = drawParent(c);
    c.notes.about(parent);
    ColorDialog::getColor(drawColor(c.dice), parent);
}

void askLimited(Context &c)
{
    QWidget *parent = drawParent(c);
    const QString root = c.stage.files().root();
    const QString second = c.dice.oneIn(2) ? c.stage.files().second() : QString();
    c.notes.about(parent);
    switch (c.dice.below(3)) {
    case 0:
        LimitedFileDialog::getExistingDirectoryFromDlg(parent, QString(), root, QFileDialog::ReadOnly, root,
                                                       second);
        break;
    case 1:
        LimitedFileDialog::getOpenFileNamesFromDlg(parent, QString(), root, QString(), root, second, nullptr,
                                                   QFileDialog::ReadOnly);
        break;
    default:
        LimitedFileDialog::getSaveFileNameFromDlg(parent, QString(), root, QString(), root, second, nullptr,
                                                  QFileDialog::ReadOnly);
        break;
    }
}

// Without a parent such a dialog stays until the program ends.
void askFrameless(Context &c)
{
    QWidget *parent = drawParent(c);
    if (!parent)
        return;
    const QString root = c.stage.files().root();
    c.notes.about(parent);
    switch (c.dice.below(3)) {
    case 0:
        FramelessFileDialog::getExistingDirectory(parent, QString(), root, QFileDialog::ReadOnly);
        break;
    case 1:
        FramelessFileDialog::getOpenFileNames(parent, QString(), root, QString(), nullptr,
                                              QFileDialog::ReadOnly);
        break;
    default:
        FramelessFileDialog::getSaveFileName(parent, QString(), root, QString(), nullptr,
                                             QFileDialog::ReadOnly);
        break;
    }
}

void endDialog(QDialog *dialog, Dice &dice, bool mayDelete)
{
    const bool isOurs = s_running.contains(QPointer<QDialog>(dialog));
    switch (dice.below(6)) {
    case 0:
        dialog->accept();
        break;
    case 1:
        dialog->reject();
        break;
    case 2:
        dialog->close();
        break;
    case 3:
        if (mayDelete && isOurs)
            delete dialog;
        else
            dialog->done(dice.below(3));
        break;
    case 4:
        if (mayDelete && !isOurs && dialog->parentWidget())
            delete dialog->parentWidget();
        else
            dialog->hide();
        break;
    default:
        QTest::keyClick(dialog, Qt::Key_Escape);
        break;
    }
}

} // namespace

void endInnermostLoop(Stage &stage, Dice &dice, bool mayDelete)
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    // A dialog that is shown again before its exec() returns stays the modal one for ever, Qt's own, too.
    auto *modal = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (modal && modal->isVisible()) {
        endDialog(modal, dice, mayDelete);
        return;
    }
    // A dialog that was visible before does not become modal by exec(), and one that was modal may be so no
    // more.
    const QVector<QWidget *> windows = stage.windows();
    for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
        auto *dialog = qobject_cast<QDialog *>(*window);
        if (dialog && dialog->isVisible()) {
            endDialog(dialog, dice, false);
            return;
        }
    }
    QDrag::cancel();
}

QVector<Kind> modalKinds()
{
    return {{"exec", 8, execute, true},
            {"message box", 2, askMessageBox, true},
            {"color dialog", 1, askColor, true},
            {"limited file dialog", 1, askLimited, true},
            {"frameless file dialog", 1, askFrameless, true}};
}

} // namespace Tarn::Storm
