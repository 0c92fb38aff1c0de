// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "limitscene.h"

#include <QApplication>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <filesystem>

namespace Tarn::Test {

LimitTree::LimitTree()
{
    fill();
}

void LimitTree::fill() const
{
    for (const char *folder : {"root/sub/deep", "root2/sub", "root-not", "outside/dir"})
        QDir(path()).mkpath(QLatin1String(folder));
    for (const char *file : {"root/file.txt", "root/with space.txt", "root/sub/file.txt", "root2/file.txt",
                             "root-not/secret.txt", "outside/secret.txt", "outside/dir/secret.txt"})
        QFile(at(file)).open(QIODevice::WriteOnly);
    QFile::link(at("outside"), at("root/linkdir"));
    QFile::link(at("outside/secret.txt"), at("root/linkfile"));
    QFile::link(at("outside/new.txt"), at("root/dangling"));
    QFile::link(at("root/sub"), at("root/inner"));
}

QString LimitTree::path() const
{
    return QFileInfo(m_dir.path()).canonicalFilePath() + QStringLiteral("/tree");
}

QString LimitTree::at(const char *name) const
{
    return path() + QLatin1Char('/') + QLatin1String(name);
}

bool LimitTree::isInside(const QString &name) const
{
    namespace fs = std::filesystem;
    if (name.isEmpty())
        return false;
    const fs::path real(QFileInfo(name).isRelative() || !name.startsWith(QLatin1Char('/'))
                            ? QFileInfo(name).absoluteFilePath().toStdString()
                            : name.toStdString());
    std::error_code error;
    if (fs::is_symlink(real, error) && !fs::exists(real, error))
        return false;
    const QString end = QString::fromStdString(fs::weakly_canonical(real, error).string());
    for (const QString &root : {at("root"), at("root2")}) {
        if (end == root || end.startsWith(root + QLatin1Char('/')))
            return true;
    }
    return false;
}

QStringList LimitTree::contentsOutside() const
{
    QStringList found;
    QDirIterator entries(path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (!entry.startsWith(at("root/")) && !entry.startsWith(at("root2/")))
            found += entry;
    }
    found.sort();
    return found;
}

LimitScene::LimitScene(bool strict, const QString &start, Limits limits)
    : dialog(nullptr, QString(), start.isEmpty() ? tree.at("root") : start)
    , m_contentsOutside(tree.contentsOutside())
{
    dialog.setStrict(strict);
    dialog.setViewMode(QFileDialog::List);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (limits == TwoRoots)
        dialog.setLimitedPath1(tree.at("root2"));
    dialog.setLimitedPath(tree.at("root"));
    QObject::connect(&dialog, &QFileDialog::filesSelected, &dialog,
                     [this](const QStringList &files) { results += files; });
    QObject::connect(&dialog, &QDialog::accepted, &dialog, [this] {
        ++accepted;
        results += base().directory().absolutePath();
        results += base().selectedFiles();
    });
    dialog.resize(640, 400);
    dialog.show();
    dialog.activateWindow(); // shortcuts are for active windows
    if (!QTest::qWaitForWindowActive(&dialog))
        qWarning("The dialog does not become active");
}

QFileDialog &LimitScene::base()
{
    return dialog;
}

QLineEdit *LimitScene::edit()
{
    return part<QLineEdit>("fileNameEdit");
}

QAbstractItemView *LimitScene::list()
{
    return part<QAbstractItemView>("listView");
}

QFileSystemModel *LimitScene::model()
{
    return dialog.findChild<QFileSystemModel *>();
}

QLabel *LimitScene::notice()
{
    return part<QLabel>("limitNotice");
}

QPushButton *LimitScene::acceptButton()
{
    auto *box = part<QDialogButtonBox>("buttonBox");
    return qobject_cast<QPushButton *>(box->buttons().constFirst());
}

void LimitScene::type(const QString &text)
{
    edit()->setFocus();
    edit()->selectAll();
    QTest::keyClicks(edit(), text);
    QTest::keyClick(edit(), Qt::Key_Return);
}

void LimitScene::put(const QString &text)
{
    edit()->setText(text);
    acceptButton()->setEnabled(true);
    acceptButton()->click();
}

QModelIndex LimitScene::item(const char *name)
{
    const QString path = model()->rootPath() + QLatin1Char('/') + QLatin1String(name);
    QModelIndex index;
    const bool there = QTest::qWaitFor([&] {
        index = model()->index(path);
        return index.isValid() && list()->visualRect(index).isValid()
            && list()->viewport()->rect().intersects(list()->visualRect(index));
    });
    if (!there)
        qWarning("%s does not show", name);
    return index;
}

void LimitScene::click(const char *name)
{
    const QPoint position = list()->visualRect(item(name)).center();
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
}

void LimitScene::doubleClick(const char *name)
{
    click(name);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       list()->visualRect(item(name)).center());
}

bool LimitScene::drop(const QPoint &position, const QList<QUrl> &urls, Qt::DropAction action)
{
    // QFileDialog's own takes drags from itself only
    list()->setDragDropMode(QAbstractItemView::DragDrop);
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list()->viewport(), &enter);
    QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(action);
    QCoreApplication::sendEvent(list()->viewport(), &drop);
    return drop.isAccepted();
}

QStringList LimitScene::completions()
{
    QStringList offered;
    const auto completers = dialog.findChildren<QCompleter *>();
    for (QCompleter *completer : completers) {
        if (!completer->popup()->isVisible())
            continue;
        const QAbstractItemModel *rows = completer->popup()->model();
        for (int row = 0; row < rows->rowCount(); ++row)
            offered += rows->index(row, 0).data(QFileSystemModel::FilePathRole).toString();
    }
    return offered;
}

QStringList LimitScene::outside()
{
    QStringList seen = results;
    seen += base().directory().absolutePath();
    seen += model()->rootPath();
    seen += dialog.selectedFiles();
    const QList<QUrl> urls = dialog.selectedUrls();
    for (const QUrl &url : urls)
        seen += url.toLocalFile();
    QStringList found;
    for (const QString &path : qAsConst(seen)) {
        if (!tree.isInside(path))
            found += path;
    }
    return found;
}

QStringList LimitScene::offeredOutside()
{
    // A link may be offered, but not what is behind it.
    QStringList found;
    const QStringList offered = completions();
    for (const QString &path : offered) {
        if (!tree.isInside(QFileInfo(path).path()))
            found += path;
    }
    return found;
}

QStringList LimitScene::viewsAstray()
{
    QStringList found;
    for (const char *name : {"listView", "treeView"}) {
        const auto *view = part<QAbstractItemView>(name);
        const QString shown = view->rootIndex().data(QFileSystemModel::FilePathRole).toString();
        if (shown != model()->rootPath() && view->parentWidget()->isVisible())
            found += QLatin1String(name) + QLatin1String(" in ") + shown;
    }
    return found;
}

QStringList LimitScene::outsideOnceSettled()
{
    QCoreApplication::processEvents();
    // Until they are painted, views and completions may be anywhere.
    QStringList found;
    const auto isSettled = [&] {
        found = offeredOutside() + viewsAstray();
        return found.isEmpty();
    };
    return QTest::qWaitFor(isSettled, 2000) ? outside() : found;
}

bool LimitScene::isOutsideUntouched() const
{
    return tree.contentsOutside() == m_contentsOutside;
}

bool LimitScene::hasEscaped()
{
    return !outside().isEmpty() || !isOutsideUntouched();
}

Answerer::Answerer()
{
    qApp->installEventFilter(this);
}

bool Answerer::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show) {
        const bool isQuestion = box->standardButtons().testFlag(QMessageBox::Yes);
        QMetaObject::invokeMethod(box, isQuestion && answer() ? &QDialog::accept : &QDialog::reject,
                                  Qt::QueuedConnection);
    }
    return false;
}

} // namespace Tarn::Test
