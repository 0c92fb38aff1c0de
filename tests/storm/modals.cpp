// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What runs an event loop of its own. The storm goes on inside, see Storm::pump().

#include "acts.h"
#include "tally.h"

#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QTest>
#include <QUrl>
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

// What the one-call functions are asked with.
struct Wish
{
    QWidget *parent;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton preferred;
    bool isClosable;
    QColor color;
    QString root;
    QString second;
    QUrl url;
};

struct Request
{
    const char *name;
    void (*ask)(const Wish &wish);
};

char s_property[] = "isStormy";

constexpr Request MessageBoxes[] = {
    {"FramelessMessageBox::information",
     [](const Wish &w) {
         FramelessMessageBox::information(w.parent, w.title, w.text, w.buttons, w.preferred);
     }},
    {"FramelessMessageBox::question",
     [](const Wish &w) { FramelessMessageBox::question(w.parent, w.title, w.text, w.buttons, w.preferred); }},
    {"FramelessMessageBox::warning",
     [](const Wish &w) { FramelessMessageBox::warning(w.parent, w.title, w.text, w.buttons, w.preferred); }},
    {"FramelessMessageBox::critical",
     [](const Wish &w) { FramelessMessageBox::critical(w.parent, w.title, w.text, w.buttons, w.preferred); }},
    {"FramelessMessageBox::information with a property",
     [](const Wish &w) {
         FramelessMessageBox::information(w.parent, w.title, w.text, s_property, true, w.buttons, w.preferred,
                                          w.isClosable);
     }},
    {"FramelessMessageBox::question with a property",
     [](const Wish &w) {
         FramelessMessageBox::question(w.parent, w.title, w.text, nullptr, true, w.buttons, w.preferred,
                                       w.isClosable);
     }},
    {"FramelessMessageBox::warning with a property",
     [](const Wish &w) {
         FramelessMessageBox::warning(w.parent, w.title, w.text, s_property, false, w.buttons, w.preferred,
                                      w.isClosable);
     }},
    {"FramelessMessageBox::critical with a property",
     [](const Wish &w) {
         FramelessMessageBox::critical(w.parent, w.title, w.text, s_property, true, w.buttons, w.preferred,
                                       w.isClosable);
     }},
    {"FramelessMessageBox::about",
     [](const Wish &w) { FramelessMessageBox::about(w.parent, w.title, w.text); }},
    {"FramelessMessageBox::aboutQt", [](const Wish &w) { FramelessMessageBox::aboutQt(w.parent, w.title); }},
};

constexpr Request ColorDialogs[] = {
    {"ColorDialog::getColor", [](const Wish &w) { ColorDialog::getColor(w.color, w.parent); }},
};

constexpr Request LimitedDialogs[] = {
    {"LimitedFileDialog::getExistingDirectoryFromDlg",
     [](const Wish &w) {
         LimitedFileDialog::getExistingDirectoryFromDlg(w.parent, QString(), w.root, QFileDialog::ReadOnly,
                                                        w.root, w.second);
     }},
    {"LimitedFileDialog::getOpenFileNamesFromDlg",
     [](const Wish &w) {
         LimitedFileDialog::getOpenFileNamesFromDlg(w.parent, QString(), w.root, QString(), w.root, w.second,
                                                    nullptr, QFileDialog::ReadOnly);
     }},
    {"LimitedFileDialog::getSaveFileNameFromDlg",
     [](const Wish &w) {
         LimitedFileDialog::getSaveFileNameFromDlg(w.parent, QString(), w.root, QString(), w.root, w.second,
                                                   nullptr, QFileDialog::ReadOnly);
     }},
};

// Without a parent such a dialog stays until the program ends.
constexpr Request FramelessDialogs[] = {
    {"FramelessFileDialog::getOpenFileName",
     [](const Wish &w) {
         QString filter = w.isClosable ? QString() : QStringLiteral("Text (*.txt)");
         FramelessFileDialog::getOpenFileName(w.parent, w.title, w.root, QString(), &filter,
                                              QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getOpenFileNames",
     [](const Wish &w) {
         FramelessFileDialog::getOpenFileNames(w.parent, w.title, w.root, QString(), nullptr,
                                               QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getSaveFileName",
     [](const Wish &w) {
         FramelessFileDialog::getSaveFileName(w.parent, w.title, w.root, QString(), nullptr,
                                              QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getExistingDirectory",
     [](const Wish &w) {
         FramelessFileDialog::getExistingDirectory(w.parent, w.title, w.root, QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getOpenFileUrl",
     [](const Wish &w) {
         FramelessFileDialog::getOpenFileUrl(w.parent, w.title, w.url, QString(), nullptr,
                                             QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getOpenFileUrls",
     [](const Wish &w) {
         FramelessFileDialog::getOpenFileUrls(w.parent, w.title, w.url, QString(), nullptr,
                                              QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getSaveFileUrl",
     [](const Wish &w) {
         FramelessFileDialog::getSaveFileUrl(w.parent, w.title, w.url, QString(), nullptr,
                                             QFileDialog::ReadOnly);
     }},
    {"FramelessFileDialog::getExistingDirectoryUrl",
     [](const Wish &w) {
         FramelessFileDialog::getExistingDirectoryUrl(w.parent, w.title, w.url, QFileDialog::ReadOnly);
     }},
};

QByteArray nameOf(const Request &request)
{
    return QByteArray("modal ") + request.name;
}

template <std::size_t Count> void ask(Context &c, const Request (&requests)[Count], bool needsParent)
{
    QWidget *parent = drawParent(c);
    if (needsParent && !parent)
        return;
    const QString root = c.stage.files().root();
    const QString second = c.dice.oneIn(2) ? c.stage.files().second() : QString();
    const Wish wish = {parent,
                       drawText(c.dice).left(40),
                       drawText(c.dice),
                       draw<QMessageBox::StandardButtons>(c.source()),
                       draw<QMessageBox::StandardButton>(c.source()),
                       c.dice.oneIn(2),
                       drawColor(c.dice),
                       root,
                       second,
                       c.dice.oneIn(3) ? QUrl() : QUrl::fromLocalFile(root)};
    const Request &request = requests[c.dice.below(Count)];
    c.notes.about(parent, QString::fromLatin1(request.name));
    tally(nameOf(request));
    request.ask(wish);
}

void askMessageBox(Context &c)
{
    ask(c, MessageBoxes, false);
}

void askColor(Context &c)
{
    ask(c, ColorDialogs, false);
}

void askLimited(Context &c)
{
    ask(c, LimitedDialogs, false);
}

void askFrameless(Context &c)
{
    ask(c, FramelessDialogs, true);
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

void expectModals()
{
    for (const Request &request : MessageBoxes)
        expectInTally(nameOf(request));
    for (const Request &request : ColorDialogs)
        expectInTally(nameOf(request));
    for (const Request &request : LimitedDialogs)
        expectInTally(nameOf(request));
    for (const Request &request : FramelessDialogs)
        expectInTally(nameOf(request));
}

QVector<Kind> modalKinds()
{
    return {{"exec", 8, execute, true},
            {"message box", 4, askMessageBox, true},
            {"color dialog", 1, askColor, true},
            {"limited file dialog", 2, askLimited, true},
            {"frameless file dialog", 3, askFrameless, true}};
}

} // namespace Tarn::Storm
