// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "filedialogparts.h"

#include <QAbstractItemModel>
#include <QCompleter>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

namespace Tarn::Test {

FileTree::FileTree()
    : m_base(QDir(m_dir.path()).canonicalPath())
    , m_formerHome(qgetenv("HOME"))
{
    const char *const files[] = {"@/root/file.txt",          "@/root/with space.txt", "@/root/sub/inner.txt",
                                 "@/root/sub/deep/deep.txt", "@/rootx/near.txt",      "@/second/two.txt",
                                 "@/second/below/below.txt", "@/outside/secret.txt",  "@/home/house.txt"};
    for (const char *file : files)
        m_complete = addFile(QString::fromLatin1(file)) && m_complete;
    const char *const folders[] = {"@/root/empty", "@/root/sub/deep/deepest", "@/settings"};
    for (const char *folder : folders)
        m_complete = addFolder(QString::fromLatin1(folder)) && m_complete;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, at(QStringLiteral("@/settings")));
    qputenv("HOME", QFile::encodeName(at(QStringLiteral("@/home"))));
}

FileTree::~FileTree()
{
    qputenv("HOME", m_formerHome);
}

bool FileTree::isValid() const
{
    return m_dir.isValid() && m_complete;
}

QString FileTree::at(const QString &text) const
{
    return QString(text).replace(QLatin1Char('@'), m_base);
}

QString FileTree::base() const
{
    return m_base;
}

QString FileTree::root() const
{
    return at(QStringLiteral("@/root"));
}

QString FileTree::second() const
{
    return at(QStringLiteral("@/second"));
}

QString FileTree::outside() const
{
    return at(QStringLiteral("@/outside"));
}

bool FileTree::addFolder(const QString &path) const
{
    return QDir().mkpath(at(path));
}

bool FileTree::addFile(const QString &path) const
{
    QFile file(at(path));
    return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly);
}

FileDialogParts::FileDialogParts(const QFileDialog *dialog)
    : dialog(dialog)
    , back(dialog->findChild<QToolButton *>(QStringLiteral("backButton")))
    , forward(dialog->findChild<QToolButton *>(QStringLiteral("forwardButton")))
    , toParent(dialog->findChild<QToolButton *>(QStringLiteral("toParentButton")))
    , edit(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
    , lookIn(dialog->findChild<QComboBox *>(QStringLiteral("lookInCombo")))
    , list(dialog->findChild<QListView *>(QStringLiteral("listView")))
    , tree(dialog->findChild<QTreeView *>(QStringLiteral("treeView")))
    , sidebar(dialog->findChild<QWidget *>(QStringLiteral("sidebar")))
    , box(dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox")))
{
}

bool FileDialogParts::areThere() const
{
    return back != nullptr && forward != nullptr && toParent != nullptr && edit != nullptr
        && lookIn != nullptr && list != nullptr && tree != nullptr && sidebar != nullptr && box != nullptr;
}

QPushButton *FileDialogParts::accepting() const
{
    return box->button(dialog->acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                       : QDialogButtonBox::Save);
}

QPushButton *FileDialogParts::rejecting() const
{
    return box->button(QDialogButtonBox::Cancel);
}

QAbstractItemView *FileDialogParts::completions() const
{
    return edit->completer()->popup();
}

QString FileDialogParts::shown() const
{
    return dialog->directory().absolutePath();
}

QStringList FileDialogParts::lookInTexts() const
{
    QStringList texts;
    for (int row = 0; row < lookIn->count(); ++row)
        texts.append(lookIn->itemText(row));
    return texts;
}

bool FileDialogParts::isLoaded() const
{
    return QTest::qWaitFor([this] {
        const QDir::SortFlags order = QDir::DirsFirst | QDir::Name | QDir::IgnoreCase | QDir::LocaleAware;
        QStringList rows;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            rows.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        return rows == dialog->directory().entryList(dialog->filter(), order);
    });
}

bool FileDialogParts::hasEntry(const QString &name) const
{
    return QTest::qWaitFor(
        [this, &name] { return !place(list, name).isNull() || !place(tree, name).isNull(); });
}

QPoint FileDialogParts::place(const QAbstractItemView *view, const QString &name) const
{
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, view->rootIndex());
        if (index.data().toString() == name) {
            const_cast<QAbstractItemView *>(view)->scrollTo(index);
            return view->visualRect(index).center();
        }
    }
    return QPoint();
}

QAbstractItemView *FileDialogParts::view() const
{
    if (list->isVisible())
        return list;
    return tree;
}

bool FileDialogParts::click(const QString &name) const
{
    if (!hasEntry(name))
        return false;
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, place(view(), name));
    return true;
}

bool FileDialogParts::doubleClick(const QString &name) const
{
    if (!click(name))
        return false;
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, place(view(), name));
    return true;
}

void FileDialogParts::type(const QString &text) const
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void FileDialogParts::keyInView(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    view()->setFocus();
    QTest::keyClick(view(), key, modifiers);
}

} // namespace Tarn::Test
