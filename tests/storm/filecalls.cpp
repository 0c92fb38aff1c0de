// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What programs call of the two file dialogs.

#include "call.h"
#include "stage.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QUrl>
#include <memory>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

QString drawPath(Source source)
{
    const QString name = source.dice.pick({QStringLiteral("@/root"), QStringLiteral("@/root/sub"),
                                           QStringLiteral("@/root/sub/deep"), QStringLiteral("@/second"),
                                           QStringLiteral("@/outside"), QStringLiteral("@/rootx"),
                                           QStringLiteral("@/root/file.txt"), QStringLiteral("@/root/.."),
                                           QStringLiteral("@/nothing"), QString()});
    return source.stage.files().at(name);
}

QUrl drawUrl(Source source)
{
    return source.dice.oneIn(6) ? QUrl(QStringLiteral("x:y")) : QUrl::fromLocalFile(drawPath(source));
}

QStringList drawFilters(Source source)
{
    return {QStringLiteral("Text (*.txt)"), drawText(source.dice).left(20)};
}

template <typename Dialog> QVector<Call> commonCalls()
{
    return {
        CALL(Dialog, setViewMode),
        CALL(Dialog, setFileMode),
        CALL(Dialog, setAcceptMode),
        CALL(Dialog, setDefaultSuffix),
        special<Dialog>("setDirectory",
                        [](Dialog *dialog, Source source) { dialog->setDirectory(drawPath(source)); }),
        special<Dialog>("selectFile",
                        [](Dialog *dialog, Source source) { dialog->selectFile(drawPath(source)); }),
        special<Dialog>("setNameFilters",
                        [](Dialog *dialog, Source source) { dialog->setNameFilters(drawFilters(source)); }),
        special<Dialog>("setHistory",
                        [](Dialog *dialog, Source source) {
                            dialog->setHistory({drawPath(source), drawPath(source)});
                        }),
        CALL(Dialog, selectedFiles),
        CALL(Dialog, selectedUrls)};
}

QVector<Call> limitedCalls()
{
    return {
        special<LimitedFileDialog>(
            "setLimitedPath",
            [](LimitedFileDialog *dialog, Source source) { dialog->setLimitedPath(drawPath(source)); }),
        special<LimitedFileDialog>(
            "setLimitedPath1",
            [](LimitedFileDialog *dialog, Source source) { dialog->setLimitedPath1(drawPath(source)); }),
        special<LimitedFileDialog>(
            "pathFits", [](LimitedFileDialog *dialog, Source source) { dialog->pathFits(drawPath(source)); }),
        special<LimitedFileDialog>(
            "isShowInComboBox",
            [](LimitedFileDialog *dialog, Source source) { dialog->isShowInComboBox(drawPath(source)); }),
        // The default is the process's, so it is put back.
        special<LimitedFileDialog>("setStrictByDefault",
                                   [](LimitedFileDialog *, Source source) {
                                       const bool former = LimitedFileDialog::isStrictByDefault();
                                       LimitedFileDialog::setStrictByDefault(!former);
                                       const LimitedFileDialog other(nullptr, QString(), drawPath(source));
                                       LimitedFileDialog::setStrictByDefault(former);
                                   }),
        CALL(LimitedFileDialog, getLimitedPath), CALL(LimitedFileDialog, isStrict),
        CALL(LimitedFileDialog, setStrict), CALL(LimitedFileDialog, checkGoToParent),
        CALL(LimitedFileDialog, checkLineEdit), CALL(LimitedFileDialog, checkComboBox),
        CALL(LimitedFileDialog, setHistoryPath), CALL(LimitedFileDialog, checkHistory),
        CALL(LimitedFileDialog, initFileDialog)};
}

QVector<Call> framelessGetters()
{
    return {CALL(FramelessFileDialog, directory),
            CALL(FramelessFileDialog, directoryUrl),
            CALL(FramelessFileDialog, isNameFilterDetailsVisible),
            CALL(FramelessFileDialog, nameFilters),
            CALL(FramelessFileDialog, selectedNameFilter),
            CALL(FramelessFileDialog, mimeTypeFilters),
            CALL(FramelessFileDialog, filter),
            CALL(FramelessFileDialog, viewMode),
            CALL(FramelessFileDialog, fileMode),
            CALL(FramelessFileDialog, acceptMode),
            CALL(FramelessFileDialog, isReadOnly),
            CALL(FramelessFileDialog, resolveSymlinks),
            CALL(FramelessFileDialog, sidebarUrls),
            CALL(FramelessFileDialog, saveState),
            CALL(FramelessFileDialog, confirmOverwrite),
            CALL(FramelessFileDialog, defaultSuffix),
            CALL(FramelessFileDialog, history),
            CALL(FramelessFileDialog, itemDelegate),
            CALL(FramelessFileDialog, iconProvider),
            CALL(FramelessFileDialog, labelText),
            CALL(FramelessFileDialog, supportedSchemes),
            CALL(FramelessFileDialog, proxyModel),
            CALL(FramelessFileDialog, testOption),
            CALL(FramelessFileDialog, options)};
}

// Without the option "read only" the user may remove the files that the model shows, see
// Stage::eventFilter().
QVector<Call> framelessOptions()
{
    return {CALL(FramelessFileDialog, setNameFilterDetailsVisible),
            CALL(FramelessFileDialog, setResolveSymlinks),
            CALL(FramelessFileDialog, setConfirmOverwrite),
            special<FramelessFileDialog>(
                "setReadOnly", [](FramelessFileDialog *dialog, Source) { dialog->setReadOnly(true); }),
            special<FramelessFileDialog>(
                "setOption",
                [](FramelessFileDialog *dialog, Source source) {
                    const auto option = draw<QFileDialog::Option>(source);
                    dialog->setOption(option, option == QFileDialog::ReadOnly || source.dice.oneIn(2));
                }),
            special<FramelessFileDialog>("setOptions", [](FramelessFileDialog *dialog, Source source) {
                dialog->setOptions(draw<QFileDialog::Option>(source) | QFileDialog::DontUseNativeDialog
                                   | QFileDialog::ReadOnly);
            })};
}

// Delegates and icon providers stay their giver's, and are asked as long as the dialog is there.
QVector<Call> framelessHelpers()
{
    return {special<FramelessFileDialog>("setItemDelegate",
                                         [](FramelessFileDialog *dialog, Source source) {
                                             const auto delegate = std::make_shared<QStyledItemDelegate>();
                                             source.stage.keep(delegate);
                                             dialog->setItemDelegate(delegate.get());
                                         }),
            special<FramelessFileDialog>("setIconProvider",
                                         [](FramelessFileDialog *dialog, Source source) {
                                             const auto provider = std::make_shared<QFileIconProvider>();
                                             source.stage.keep(provider);
                                             dialog->setIconProvider(provider.get());
                                         }),
            special<FramelessFileDialog>("setProxyModel", [](FramelessFileDialog *dialog, Source source) {
                dialog->setProxyModel(source.dice.oneIn(3) ? nullptr : new QSortFilterProxyModel(dialog));
            })};
}

QVector<Call> framelessSetters()
{
    return {
        CALL(FramelessFileDialog, setNameFilter), CALL(FramelessFileDialog, selectNameFilter),
        CALL(FramelessFileDialog, setLabelText), CALL(FramelessFileDialog, setFilter),
        special<FramelessFileDialog>("setDirectoryUrl",
                                     [](FramelessFileDialog *dialog, Source source) {
                                         dialog->setDirectoryUrl(QUrl::fromLocalFile(drawPath(source)));
                                     }),
        special<FramelessFileDialog>(
            "selectUrl",
            [](FramelessFileDialog *dialog, Source source) { dialog->selectUrl(drawUrl(source)); }),
        special<FramelessFileDialog>("setSidebarUrls",
                                     [](FramelessFileDialog *dialog, Source source) {
                                         dialog->setSidebarUrls({drawUrl(source), drawUrl(source)});
                                     }),
        special<FramelessFileDialog>(
            "setMimeTypeFilters",
            [](FramelessFileDialog *dialog, Source source) {
                dialog->setMimeTypeFilters({QStringLiteral("text/plain"), drawText(source.dice).left(20)});
            }),
        special<FramelessFileDialog>(
            "selectMimeTypeFilter",
            [](FramelessFileDialog *dialog, Source source) {
                dialog->selectMimeTypeFilter(
                    source.dice.pick({QStringLiteral("text/plain"), QStringLiteral("image/png"), QString()}));
            }),
        special<FramelessFileDialog>("setSupportedSchemes",
                                     [](FramelessFileDialog *dialog, Source source) {
                                         dialog->setSupportedSchemes(
                                             source.dice.oneIn(2) ? QStringList()
                                                                  : QStringList(QStringLiteral("file")));
                                     }),
        special<FramelessFileDialog>("restoreState",
                                     [](FramelessFileDialog *dialog, Source source) {
                                         QByteArray state = dialog->saveState();
                                         if (source.dice.oneIn(3))
                                             state.truncate(source.dice.below(state.size() + 1));
                                         dialog->restoreState(state);
                                     }),
        special<FramelessFileDialog>("workingDirectory",
                                     [](FramelessFileDialog *, Source source) {
                                         FramelessFileDialog::workingDirectory(drawUrl(source));
                                         FramelessFileDialog::initialSelection(drawUrl(source));
                                     }),
        // Not while a menu is open. The header says what the functions do without it.
        special<FramelessFileDialog>("delete the inner dialog",
                                     [](FramelessFileDialog *dialog, Source source) {
                                         auto *inner = dialog->findChild<QFileDialog *>();
                                         const bool isWished = source.dice.oneIn(4);
                                         if (inner && isWished && !QApplication::activePopupWidget())
                                             inner->deleteLater();
                                     })};
}

} // namespace

QVector<Call> fileDialogCalls()
{
    return commonCalls<LimitedFileDialog>() + limitedCalls() + commonCalls<FramelessFileDialog>()
        + framelessGetters() + framelessOptions() + framelessHelpers() + framelessSetters();
}

} // namespace Tarn::Storm
