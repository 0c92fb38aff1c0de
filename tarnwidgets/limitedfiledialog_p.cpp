// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "limitedfiledialog_p.h"

#include "limitedfiledialog.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QAccessible>
#include <QCompleter>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>
#include <algorithm>

namespace Tarn::Widgets {

namespace {

bool isWithin(const QString &path, const QString &root)
{
    if (path == root)
        return true;
    return path.startsWith(root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/'));
}

// A path seen from the working directory. Empty if that is gone, for which Qt takes the file system's root,
// while "../" still leads up from where it was.
QString fromWorkingDirectory(const QString &path)
{
    const QFileInfo info(path); // it knows search paths and resources, too
    if (!info.isRelative())
        return info.filePath();
    const QString folder = QDir::currentPath();
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + info.filePath();
}

// Where the system goes for an absolute path: its links followed, names that do not exist yet put behind.
// Empty if that cannot be told, as behind a dangling link.
QString resolved(QString path)
{
    QStringList missing;
    for (;;) {
        const QFileInfo info(path);
        // Qt returns the path as it is where the system fails for another reason than that nothing is there.
        const QString canonical = info.exists() ? info.canonicalFilePath() : QString();
        if (!canonical.isEmpty())
            return QDir::cleanPath(canonical + QLatin1Char('/') + missing.join(QLatin1Char('/')));
        const int slash = path.lastIndexOf(QLatin1Char('/'));
        const QString name = path.mid(slash + 1);
        if (slash < 0 || info.isSymLink() || name == QLatin1String(".."))
            return QString();
        if (!name.isEmpty())
            missing.prepend(name);
        path.truncate(qMax(slash, 1));
    }
}

QList<QAbstractItemView *> fileViews(const QObject *dialog)
{
    QList<QAbstractItemView *> views;
    for (const auto &name : {QStringLiteral("listView"), QStringLiteral("treeView")}) {
        if (auto *view = dialog->findChild<QAbstractItemView *>(name))
            views.append(view);
    }
    return views;
}

// Unlike rowCount(), without those at the end that have become empty.
int rowsInUse(const QGridLayout *layout)
{
    for (int row = layout->rowCount() - 1; row >= 0; --row) {
        for (int column = 0; column < layout->columnCount(); ++column) {
            if (layout->itemAtPosition(row, column))
                return row + 1;
        }
    }
    return 0;
}

// "." or "..", which some filters show among the files.
bool isDots(const QModelIndex &index)
{
    const QString name = index.data(QFileSystemModel::FileNameRole).toString();
    return name == QLatin1String(".") || name == QLatin1String("..");
}

// Keys by which the views change files.
bool changesFiles(int key)
{
    return key == Qt::Key_Delete || key == Qt::Key_F2;
}

// Events by which a user acts on a view, or sees it.
bool isUse(QEvent::Type type)
{
    switch (type) {
    case QEvent::Paint:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

LimitGuard::LimitGuard(LimitedFileDialog *dialog)
    : m_dialog(dialog)
    , m_model(dialog->findChild<QFileSystemModel *>())
{
    addNotice();
    if (m_model)
        connect(m_model, &QFileSystemModel::rootPathChanged, this, &LimitGuard::checkShownFolder);
    connect(dialog, &QFileDialog::directoryEntered, this, &LimitGuard::settle);
    connect(dialog, &QFileDialog::currentChanged, this, &LimitGuard::checkCurrent);
    if (auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))) {
        connect(edit, &QLineEdit::textEdited, this, &LimitGuard::clearNotice);
        connect(edit, &QLineEdit::textChanged, this, &LimitGuard::checkText);
        m_completer = edit->completer();
        if (m_completer)
            m_completer->popup()->viewport()->installEventFilter(this);
    }
    if (auto *newFolder = dialog->findChild<QToolButton *>(QStringLiteral("newFolderButton")))
        connect(newFolder, &QToolButton::pressed, this, &LimitGuard::settle);

    dialog->installEventFilter(this);
    const QList<QAbstractItemView *> views = fileViews(dialog);
    for (auto *view : views) {
        view->installEventFilter(this);
        view->viewport()->installEventFilter(this);
    }
}

LimitGuard::~LimitGuard()
{
    setShut(false);
    m_roots.clear();
    checkText(QString());
    delete m_notice;
}

void LimitGuard::setRoots(const QStringList &roots)
{
    m_roots.clear();
    for (const QString &root : roots) {
        m_roots.append({QDir::cleanPath(fromWorkingDirectory(root)), QString()});
        standing(&m_roots.last());
    }
    clearNotice();
    settle();
}

bool LimitGuard::contains(const QString &path) const
{
    if (m_roots.isEmpty())
        return true;
    // Behind a null character, C functions see the end of the path. Half a surrogate pair is left out of the
    // encoded name: with one behind it, ".." still leads up.
    if (path.isEmpty() || path.contains(QChar::Null) || !path.isValidUtf16())
        return false;

    const QString absolute = fromWorkingDirectory(path);
    // Some programs clean a path before they open it, some do not. Behind a link ".." differs.
    const QString opened = resolved(absolute);
    const QString cleaned = resolved(QDir::cleanPath(absolute));
    return isPermitted(opened) && isPermitted(cleaned);
}

bool LimitGuard::isPermitted(const QString &place) const
{
    return std::any_of(m_roots.begin(), m_roots.end(), [&](Root &root) {
        const QString folder = standing(&root);
        return !folder.isEmpty() && isWithin(place, folder);
    });
}

// Where a permitted folder is; empty if it is gone, or something else has come to its place.
QString LimitGuard::standing(Root *root)
{
    const QFileInfo info(root->path);
    const QString canonical = info.isDir() ? info.canonicalFilePath() : QString();
    if (root->canonical.isEmpty())
        root->canonical = canonical;
    return canonical == root->canonical ? canonical : QString();
}

QStringList LimitGuard::inside(const QStringList &paths) const
{
    QStringList kept;
    std::copy_if(paths.cbegin(), paths.cend(), std::back_inserter(kept),
                 [this](const QString &path) { return contains(path); });
    return kept;
}

bool LimitGuard::mayGoUp() const
{
    return contains(QDir::cleanPath(shownFolder() + QStringLiteral("/..")));
}

std::optional<QString> LimitGuard::firstOutside(const QStringList &paths) const
{
    const auto outside = std::find_if_not(paths.cbegin(), paths.cend(),
                                          [this](const QString &path) { return contains(path); });
    return outside == paths.cend() ? std::nullopt : std::make_optional(*outside);
}

bool LimitGuard::admitsResult()
{
    const bool folderStands = isShownPermitted();
    const QString shown = shownFolder();
    settle();
    // What was typed was meant for the folder that was shown.
    if (!folderStands) {
        refuse(shown);
        return false;
    }
    const auto outside = firstOutside(m_dialog->QFileDialog::selectedFiles());
    if (outside)
        refuse(*outside);
    return !outside;
}

void LimitGuard::refuse(const QString &path)
{
    m_refused = path;
    updateNotice();
}

bool LimitGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dialog) {
        if (event->type() == QEvent::LanguageChange)
            updateNotice();
        else if (event->type() == QEvent::ShortcutOverride)
            dropForeignSelections(changesFiles(static_cast<QKeyEvent *>(event)->key()));
        return false;
    }
    if (m_completer && watched == m_completer->popup()->viewport())
        return event->type() == QEvent::Paint && dropForeignCompletions();
    if (!isUse(event->type()))
        return false;
    auto *view = qobject_cast<QAbstractItemView *>(watched);
    if (!view)
        view = qobject_cast<QAbstractItemView *>(watched->parent());
    return view && filterViewEvent(view, event);
}

// QFileDialog::directory() is the program's own folder while the list of all drives is shown.
QString LimitGuard::shownFolder() const
{
    return m_model && m_model->rootPath().isEmpty() ? QDir::rootPath() : m_dialog->directory().absolutePath();
}

bool LimitGuard::isShownPermitted() const
{
    const QString shown = shownFolder();
    return m_roots.isEmpty() || (QFileInfo(shown).isDir() && contains(shown));
}

void LimitGuard::checkShownFolder()
{
    if (isShownPermitted()) {
        m_lastInside = shownFolder();
        setShut(false);
        clearNotice();
    } else {
        const QString shown = shownFolder();
        goBackInside();
        refuse(shown);
        // QFileDialog is about to show the folder in its views, which the model has left already.
        QMetaObject::invokeMethod(this, &LimitGuard::settle, Qt::QueuedConnection);
    }
    m_dialog->checkGoToParent();
}

void LimitGuard::checkText(const QString &text)
{
    const bool fits = text.isEmpty() || contains(m_dialog->directory().absoluteFilePath(text));
    if (!fits)
        refuse(text);
    // What could be completed outside is nobody's business.
    auto *edit = m_dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (edit && m_completer)
        edit->setCompleter(fits && mayComplete(text) ? m_completer : nullptr);
}

// Whether the names that continue the text are in a permitted folder.
bool LimitGuard::mayComplete(const QString &text) const
{
    if (m_roots.isEmpty() || text.isEmpty())
        return true;
    // QFileDialog takes it for somebody's home.
    if (text.startsWith(QLatin1Char('~')))
        return false;
    const QString path = m_dialog->directory().absoluteFilePath(text);
    return contains(path.left(path.lastIndexOf(QLatin1Char('/')) + 1));
}

// QFileDialog's completer comes back by itself when a folder that the dialog has left again is loaded.
bool LimitGuard::dropForeignCompletions() const
{
    auto *popup = m_completer->popup();
    const QString path = popup->model()->index(0, 0).data(QFileSystemModel::FilePathRole).toString();
    if (m_roots.isEmpty() || path.isEmpty() || contains(QFileInfo(path).path()))
        return false;
    QMetaObject::invokeMethod(popup, &QWidget::hide, Qt::QueuedConnection);
    return true;
}

void LimitGuard::checkCurrent(const QString &path)
{
    if (path.isEmpty())
        return;
    if (contains(path))
        clearNotice();
    else
        refuse(path);
}

void LimitGuard::goBackInside()
{
    QStringList folders(m_lastInside);
    for (const Root &root : qAsConst(m_roots))
        folders.append(root.path);
    for (const QString &folder : qAsConst(folders)) {
        if (QFileInfo(folder).isDir() && contains(folder)) {
            m_dialog->setDirectory(folder);
            return;
        }
    }
}

// Makes the dialog show a permitted folder, and its views the same one as its model.
void LimitGuard::settle()
{
    if (!isShownPermitted())
        goBackInside();
    setShut(!isShownPermitted());
    updateNewFolder();
    if (m_roots.isEmpty() || m_shut)
        return;
    m_lastInside = shownFolder();
    const QList<QAbstractItemView *> views = fileViews(m_dialog);
    for (auto *view : views)
        settleView(view);
}

void LimitGuard::settleView(QAbstractItemView *view) const
{
    if (!m_model)
        return;
    QModelIndex shown = m_model->index(m_model->rootPath());
    if (const auto *proxy = qobject_cast<const QAbstractProxyModel *>(view->model()))
        shown = proxy->mapFromSource(shown);
    // Filters that list no folders may leave the model without an index for the one that is shown.
    if (shown.isValid() && view->rootIndex() != shown)
        view->setRootIndex(shown);
}

// Typing the path of a file selects it, wherever it is, and the views would rename and delete it.
// The entries of dots stand for folders above, too, but may be walked over and entered.
void LimitGuard::dropForeignSelections(bool dots) const
{
    const QList<QAbstractItemView *> views = fileViews(m_dialog);
    for (const auto *view : views)
        dropForeignSelection(view, dots);
}

void LimitGuard::dropForeignSelection(const QAbstractItemView *view, bool dots) const
{
    auto *selection = view->selectionModel();
    if (m_roots.isEmpty() || !selection)
        return;
    const QModelIndexList indexes = QModelIndexList(selection->selectedIndexes())
        << selection->currentIndex();
    // Without a root a view shows the top of all folders, where everything is foreign.
    const QModelIndex root = view->rootIndex();
    const bool foreign =
        std::any_of(indexes.cbegin(), indexes.cend(), [root, dots](const QModelIndex &index) {
            return index.isValid() && (!root.isValid() || index.parent() != root || (dots && isDots(index)));
        });
    if (foreign)
        selection->clear();
}

// Without a permitted folder there is nothing to show, and nowhere to make one.
void LimitGuard::setShut(bool shut)
{
    if (shut == m_shut)
        return;
    m_shut = shut;
    if (auto *views = m_dialog->findChild<QWidget *>(QStringLiteral("stackedWidget")))
        views->setVisible(!shut);
    updateNewFolder();
    if (shut)
        refuse(shownFolder());
    else
        clearNotice();
}

// QFileDialog sets the button for each folder that it enters, those that are left again at once included.
void LimitGuard::updateNewFolder() const
{
    auto *button = m_dialog->findChild<QWidget *>(QStringLiteral("newFolderButton"));
    if (!button || !m_model)
        return;
    const Qt::ItemFlags flags = m_model->flags(m_model->index(m_model->rootPath()));
    button->setEnabled(!m_shut && flags.testFlag(Qt::ItemIsDropEnabled));
}

// The first path outside that the drop has to do with.
std::optional<QString> LimitGuard::foreignPath(const QAbstractItemView *view, const QDropEvent *drop) const
{
    QStringList paths;
    const QModelIndex target = view->indexAt(drop->pos());
    if (target.isValid())
        paths.append(target.data(QFileSystemModel::FilePathRole).toString());
    // What is dropped may be moved: it must not come from outside either.
    const QList<QUrl> urls = drop->mimeData()->urls();
    for (const QUrl &url : urls)
        paths.append(url.isLocalFile() ? url.toLocalFile() : url.toDisplayString());
    return firstOutside(paths);
}

// True if the view must not see the event.
bool LimitGuard::filterViewEvent(QAbstractItemView *view, QEvent *event)
{
    settle();
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        dropForeignSelection(view, changesFiles(static_cast<QKeyEvent *>(event)->key()));
        return false;
    case QEvent::ContextMenu:
        dropForeignSelection(view, true);
        return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return false;
    }

    const auto foreign = foreignPath(view, static_cast<QDropEvent *>(event));
    if (!foreign)
        return false;
    event->ignore();
    refuse(*foreign);
    return true;
}

void LimitGuard::addNotice()
{
    auto *layout = qobject_cast<QGridLayout *>(m_dialog->layout());
    if (!layout)
        return;
    m_notice = new QLabel(m_dialog);
    m_notice->setObjectName(QStringLiteral("limitNotice"));
    m_notice->setTextFormat(Qt::PlainText);
    // A long text must not make the dialog wider.
    m_notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_notice->hide();
    layout->addWidget(m_notice, rowsInUse(layout), 0, 1, -1);
}

void LimitGuard::updateNotice()
{
    if (!m_notice || m_refused.isNull())
        return;
    const QString path = m_notice->fontMetrics().elidedText(QDir::toNativeSeparators(m_refused).simplified(),
                                                            Qt::ElideMiddle, m_dialog->width() / 2);
    m_notice->setText(m_shut ? LimitedFileDialog::tr("The permitted folder is missing.")
                             : LimitedFileDialog::tr("Outside the permitted folder: %1").arg(path));
    m_notice->show();
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void LimitGuard::clearNotice()
{
    if (!m_notice || m_shut)
        return;
    m_refused.clear();
    m_notice->hide();
}

} // namespace Tarn::Widgets
