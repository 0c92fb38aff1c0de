// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "modalkinds.h"

#include "colordialogparts.h"
#include "filedialogparts.h"

#include <QPointer>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Widgets;

namespace Tarn::Test {

namespace {

using Button = QMessageBox::StandardButton;
using ShortCall = Button (*)(QWidget *, const QString &, const QString &, QMessageBox::StandardButtons,
                             Button);
using LongCall = Button (*)(QWidget *, const QString &, const QString &, char *, bool,
                            QMessageBox::StandardButtons, Button, bool);

const QString Accepted = QString::number(QDialog::Accepted);
const QString Rejected = QString::number(QDialog::Rejected);
const QString NoButton = QString::number(QMessageBox::NoButton);
const QString Nothing = QStringLiteral(""); // not null
const QString Question = QStringLiteral("Is the door closed?");

/* On the heap and watched, since the parent may take it along. */
template <typename Dialog> QString execute(const QPointer<Dialog> &dialog)
{
    const int answer = dialog->exec();
    delete dialog;
    return QString::number(answer);
}

void clickOK(QWidget *dialog)
{
    const QList<QPushButton *> buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QLatin1String("OK")) {
            button->click();
            return;
        }
    }
}

std::function<void(QWidget *)> clickOn(Button button)
{
    return
        [button](QWidget *dialog) { qobject_cast<FramelessMessageBox *>(dialog)->button(button)->click(); };
}

void enterFile(QWidget *dialog)
{
    auto *inner = qobject_cast<QFileDialog *>(dialog);
    const FileDialogParts parts(inner ? inner : dialog->findChild<QFileDialog *>());
    parts.edit->setText(QStringLiteral("file.txt"));
    parts.accepting()->click();
}

void enterFolder(QWidget *dialog)
{
    auto *inner = qobject_cast<QFileDialog *>(dialog);
    FileDialogParts(inner ? inner : dialog->findChild<QFileDialog *>()).accepting()->click();
}

ModalKind shortCall(const char *name, ShortCall call)
{
    const auto run = [call](QWidget *parent) {
        return QString::number(
            call(parent, Question, Question, QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::NoButton));
    };
    return {name,
            run,
            clickOn(QMessageBox::Yes),
            QString::number(QMessageBox::Yes),
            QString::number(QMessageBox::Cancel),
            QString::number(QMessageBox::Cancel),
            NoButton};
}

ModalKind longCall(const char *name, LongCall call)
{
    const auto run = [call](QWidget *parent) {
        char property[] = "isAsking";
        return QString::number(call(parent, Question, Question, property, true,
                                    QMessageBox::Retry | QMessageBox::Abort, QMessageBox::NoButton, true));
    };
    return {name,
            run,
            clickOn(QMessageBox::Retry),
            QString::number(QMessageBox::Retry),
            QString::number(QMessageBox::Abort),
            QString::number(QMessageBox::Abort),
            NoButton};
}

QVector<ModalKind> messageBoxes()
{
    const auto exec = [](QWidget *parent) {
        return execute(QPointer<FramelessMessageBox>(new FramelessMessageBox(
            QMessageBox::Question, Question, Question, QMessageBox::Save | QMessageBox::Cancel, parent)));
    };
    const auto about = [](QWidget *parent) {
        FramelessMessageBox::about(parent, Question, Question);
        return Nothing;
    };
    const auto aboutQt = [](QWidget *parent) {
        FramelessMessageBox::aboutQt(parent);
        return Nothing;
    };
    return {
        {"FramelessMessageBox", exec, clickOn(QMessageBox::Save), QString::number(QMessageBox::Save),
         QString::number(QMessageBox::Cancel), Rejected, Rejected},
        shortCall("information", &FramelessMessageBox::information),
        shortCall("question", &FramelessMessageBox::question),
        shortCall("warning", &FramelessMessageBox::warning),
        shortCall("critical", &FramelessMessageBox::critical),
        longCall("information with a property", &FramelessMessageBox::information),
        longCall("question with a property", &FramelessMessageBox::question),
        longCall("warning with a property", &FramelessMessageBox::warning),
        longCall("critical with a property", &FramelessMessageBox::critical),
        {"about", about, clickOn(QMessageBox::Ok), Nothing, Nothing, Nothing, Nothing},
        {"aboutQt", aboutQt, clickOn(QMessageBox::Ok), Nothing, Nothing, Nothing, Nothing},
    };
}

QVector<ModalKind> colorDialogs()
{
    const auto clickOKInColors = [](QWidget *dialog) {
        ColorDialogParts(qobject_cast<ColorDialog *>(dialog)).ok->click();
    };
    const auto exec = [](QWidget *parent) {
        return execute(QPointer<ColorDialog>(new ColorDialog(Qt::red, parent)));
    };
    const auto getColor = [](QWidget *parent) { return ColorDialog::getColor(Qt::blue, parent).name(); };
    return {
        {"ColorDialog", exec, clickOKInColors, Accepted, Rejected, Rejected, Rejected},
        {"getColor", getColor, clickOKInColors, QStringLiteral("#0000ff"), QString(), QString(), QString()}};
}

QVector<ModalKind> framelessFileDialogs(const QString &folder)
{
    const QString file = folder + QStringLiteral("/file.txt");
    const auto exec = [folder](QWidget *parent) {
        return execute(QPointer<FramelessFileDialog>(new FramelessFileDialog(parent, QString(), folder)));
    };
    const auto open = [folder](QWidget *parent) {
        return FramelessFileDialog::getOpenFileName(parent, QString(), folder);
    };
    const auto openSeveral = [folder](QWidget *parent) {
        return FramelessFileDialog::getOpenFileNames(parent, QString(), folder).join(QLatin1Char('|'));
    };
    const auto save = [folder](QWidget *parent) {
        return FramelessFileDialog::getSaveFileName(parent, QString(), folder, QString(), nullptr,
                                                    QFileDialog::DontConfirmOverwrite);
    };
    const auto directory = [folder](QWidget *parent) {
        return FramelessFileDialog::getExistingDirectory(parent, QString(), folder);
    };
    return {{"FramelessFileDialog", exec, enterFile, Accepted, Rejected, Rejected, Rejected},
            {"getOpenFileName", open, enterFile, file, Nothing, Nothing, Nothing, true},
            {"getOpenFileNames", openSeveral, enterFile, file, Nothing, Nothing, Nothing, true},
            {"getSaveFileName", save, enterFile, file, Nothing, Nothing, Nothing, true},
            {"getExistingDirectory", directory, enterFolder, folder, Nothing, Nothing, Nothing, true}};
}

QVector<ModalKind> limitedFileDialogs(const QString &folder)
{
    const QString file = folder + QStringLiteral("/file.txt");
    const auto exec = [folder](QWidget *parent) {
        return execute(
            QPointer<LimitedFileDialog>(new LimitedFileDialog(parent, QString(), folder, QString())));
    };
    const auto open = [folder](QWidget *parent) {
        return LimitedFileDialog::getOpenFileNamesFromDlg(parent, QString(), folder, QString(), folder);
    };
    const auto save = [folder](QWidget *parent) {
        return LimitedFileDialog::getSaveFileNameFromDlg(parent, QString(), folder, QString(), folder,
                                                         QString(), nullptr,
                                                         QFileDialog::DontConfirmOverwrite);
    };
    const auto directory = [folder](QWidget *parent) {
        return LimitedFileDialog::getExistingDirectoryFromDlg(parent, QString(), folder,
                                                              QFileDialog::ShowDirsOnly, folder);
    };
    return {{"LimitedFileDialog", exec, enterFile, Accepted, Rejected, Rejected, Rejected},
            {"getOpenFileNamesFromDlg", open, enterFile, file, Nothing, Nothing, Nothing},
            {"getSaveFileNameFromDlg", save, enterFile, file, Nothing, Nothing, Nothing},
            {"getExistingDirectoryFromDlg", directory, enterFolder, folder, Nothing, Nothing, Nothing}};
}

} // namespace

QVector<ModalKind> modalKinds(const QString &folder)
{
    const auto exec = [](QWidget *parent) {
        return execute(QPointer<FramelessDialog>(new FramelessDialog(parent)));
    };
    return QVector<ModalKind>{{"FramelessDialog", exec, clickOK, Accepted, Rejected, Rejected, Rejected}}
    + messageBoxes() + colorDialogs() + framelessFileDialogs(folder) + limitedFileDialogs(folder);
}

} // namespace Tarn::Test
