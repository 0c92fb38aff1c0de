// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Prints for each kind of widget, on each side, the blocks and bytes of heap that it has while it is open,
// and how many more blocks there are after each further one has come and gone.

#include "baretree.h"
#include "soak/liveheap.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <cstdio>
#include <functional>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/tarntabwidget.h>

using Tarn::Benchmark::BareTree;
using Tarn::Soak::LiveHeap;
using Tarn::Soak::liveHeapWithoutPixels;
using namespace Tarn::Widgets;

namespace {

constexpr int Lives = 5;
constexpr int Pages = 5;
constexpr QSize SmallestWindow(300, 100); // whose pixels are told by their size from what else is on the heap

using Make = std::function<std::unique_ptr<QWidget>()>;

std::unique_ptr<QWidget> open(const Make &make)
{
    std::unique_ptr<QWidget> widget = make();
    widget->resize(widget->size().expandedTo(SmallestWindow));
    widget->show();
    for (int i = 0; i < 3; ++i) // a layout may ask for one more
        QApplication::processEvents();
    return widget;
}

void live(const Make &make)
{
    for (int i = 0; i < Lives; ++i) {
        open(make).reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

void measure(const char *name, const char *side, const Make &make)
{
    live(make); // fonts are loaded then and caches filled
    const LiveHeap before = liveHeapWithoutPixels();
    live(make);
    const long kept = liveHeapWithoutPixels().blocks - before.blocks;
    const LiveHeap closed = liveHeapWithoutPixels();
    const auto widget = open(make);
    const LiveHeap opened = liveHeapWithoutPixels();
    std::printf("%s\t%s\t%ld\t%ld\t%ld\n", name, side, opened.blocks - closed.blocks,
                opened.bytes - closed.bytes, kept);
}

/*
 * The limit is a bare copy of ours while it is open. One of ours stays open for each side, since what the
 * first widget with a style sheet makes for all others, the copy would find ready.
 */
void compare(const char *name, const Make &ours, const Make &qt)
{
    const auto model = open(ours);
    measure(name, "ours", ours);
    measure(name, "qt", qt);
    const BareTree tree(*model);
    measure(name, "limit", [&tree] { return tree.make(); });
}

std::unique_ptr<QWidget> makeButtonDialog()
{
    auto dialog = std::make_unique<QDialog>();
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(new QPushButton(QStringLiteral("OK")));
    buttons->addWidget(new QPushButton(QStringLiteral("Cancel")));
    auto *layout = new QVBoxLayout(dialog.get());
    layout->addLayout(buttons);
    return dialog;
}

template <typename Box> std::unique_ptr<QWidget> makePlainBox()
{
    return std::make_unique<Box>(QMessageBox::NoIcon, QStringLiteral("Storage"),
                                 QStringLiteral("The records were stored."), QMessageBox::Ok);
}

template <typename Box> std::unique_ptr<QWidget> makeFullBox()
{
    auto box = std::make_unique<Box>(QMessageBox::Warning, QStringLiteral("Storage"),
                                     QStringLiteral("The storage is full."), QMessageBox::Ok);
    box->setInformativeText(QStringLiteral("The device keeps what was measured until it is switched off."));
    box->setDetailedText(QStringLiteral("channel 1: 17 records\nchannel 2: 4 records"));
    return box;
}

std::unique_ptr<QWidget> makeQtColorDialog()
{
    auto dialog = std::make_unique<QColorDialog>();
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    return dialog;
}

template <typename Tabs> std::unique_ptr<QWidget> makeTabs()
{
    auto tabs = std::make_unique<Tabs>();
    for (int i = 0; i < Pages; ++i)
        tabs->addTab(new QWidget, QStringLiteral("Tab %1").arg(i));
    return tabs;
}

std::unique_ptr<QWidget> makeMaskedEdit()
{
    auto edit = std::make_unique<QLineEdit>();
    edit->setInputMask(QStringLiteral("000.000.000.000;_"));
    return edit;
}

/* With its folder listed, which is empty. */
template <typename Dialog> std::unique_ptr<QWidget> makeFileDialog(const QString &folder)
{
    auto dialog = std::make_unique<Dialog>(nullptr, QString(), folder);
    if constexpr (std::is_same_v<Dialog, LimitedFileDialog>)
        dialog->setLimitedPath(folder);
    else
        dialog->setOption(QFileDialog::DontUseNativeDialog);
    bool isListed = false;
    QObject::connect(dialog->template findChild<QFileSystemModel *>(), &QFileSystemModel::directoryLoaded,
                     [&isListed] { isListed = true; });
    dialog->show();
    while (!isListed)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    dialog->template findChild<QFileSystemModel *>()->disconnect();
    return dialog;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    compare(
        "heap-dialog", [] { return std::make_unique<FramelessDialog>(); }, makeButtonDialog);
    compare("heap-message", makePlainBox<FramelessMessageBox>, makePlainBox<QMessageBox>);
    compare("heap-message-full", makeFullBox<FramelessMessageBox>, makeFullBox<QMessageBox>);
    compare(
        "heap-color", [] { return std::make_unique<ColorDialog>(QColor(Qt::blue)); }, makeQtColorDialog);
    compare("heap-pages", makeTabs<TarnTabWidget>, makeTabs<QTabWidget>);
    compare(
        "heap-address", [] { return std::make_unique<IPLineEdit>(); }, makeMaskedEdit);
    // Here Qt's dialog itself is what ours is made of.
    const QTemporaryDir folder;
    measure("heap-limited", "ours", [&folder] { return makeFileDialog<LimitedFileDialog>(folder.path()); });
    measure("heap-limited", "qt", [&folder] { return makeFileDialog<QFileDialog>(folder.path()); });
}
