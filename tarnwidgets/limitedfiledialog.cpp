// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "limitedfiledialog.h"

#include "limitedfiledialog_p.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QUrl>

namespace Tarn::Widgets {

class LimitedFileDialogPrivate
{
public:
    void updateGuard();
    bool admits(bool fits, const QString &what);

    QString requestedPath; // what was asked for, a folder or not
    QString limitedPath; // empty: no limit
    QString limitedPath1; // the second folder
    bool useLimitedPath1 = false;
    std::unique_ptr<LimitGuard> guard; // only a strict dialog has one
};

void LimitedFileDialogPrivate::updateGuard()
{
    if (!guard)
        return;
    QStringList roots;
    if (!limitedPath.isEmpty())
        roots.append(limitedPath);
    if (!limitedPath.isEmpty() && useLimitedPath1)
        roots.append(limitedPath1);
    guard->setRoots(roots);
}

// Passes on whether something fits; a strict dialog says so if not.
bool LimitedFileDialogPrivate::admits(bool fits, const QString &what)
{
    if (!fits && guard)
        guard->refuse(what);
    return fits;
}

namespace {

bool strictByDefault = false;

void setChildEnabled(const QFileDialog *dialog, const QString &name, bool enabled)
{
    if (auto *child = dialog->findChild<QWidget *>(name))
        child->setEnabled(enabled);
}

QLineEdit *fileNameEdit(const QFileDialog *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

QString withSlashes(QString path)
{
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

// What a typed text names: as it stands if it is absolute, else seen from the folder that is shown.
QString typedPath(const QFileDialog *dialog, const QString &text)
{
    if (!QDir(text).isRelative())
        return text;
    return QDir::cleanPath(dialog->directory().absolutePath() + QLatin1Char('/') + text);
}

bool isBelow(const QString &path, const QString &root)
{
    // Kept: texts are compared, so that /a/b also admits /a/bc/d, and a folder itself does not fit.
    return path.size() > root.size() && path.startsWith(root);
}

// Makes two texts equal that differ by a trailing slash.
QString alignedWith(const QString &root, const QString &path)
{
    if (path.size() == root.size() - 1 && root.startsWith(path))
        return path + QLatin1Char('/');
    // Kept: any one character may stand behind the folder's name, not only a slash.
    if (path.size() == root.size() + 1 && path.startsWith(root))
        return path.left(root.size());
    return path;
}

// QFileSystemModel is slow to find that each name matches "*", which it need not be told.
void matchNoNames(const QFileDialog *dialog)
{
    auto *model = dialog->findChild<QFileSystemModel *>();
    if (model && model->nameFilters() == QStringList(QStringLiteral("*")))
        model->setNameFilters({});
}

// Deletes the dialog on return, unless its parent has taken it along while it was open.
template <typename Result> QString runModally(QPointer<LimitedFileDialog> dialog, Result result)
{
    const bool accepted = dialog->exec() == QDialog::Accepted;
    QString chosen = accepted && dialog ? result(*dialog) : QString();
    delete dialog;
    return chosen;
}

void limit(LimitedFileDialog *dialog, const QString &limitedPath, const QString &limitedPath1)
{
    dialog->setLabelText(QFileDialog::Reject, LimitedFileDialog::tr("&Cancel"));
    // The second folder comes first, so that the first one leaves the look-in list enabled.
    dialog->setLimitedPath1(limitedPath1);
    dialog->setLimitedPath(limitedPath);
    dialog->setHistoryPath();
}

// Kept: the file mode is QFileDialog's default, so that a file that does not exist can be opened.
QString firstFile(const LimitedFileDialog &dialog)
{
    const QStringList files = dialog.selectedFiles();
    return files.isEmpty() ? QString() : files.first();
}

} // namespace

LimitedFileDialog::LimitedFileDialog(QWidget *parent, Qt::WindowFlags flags)
    : QFileDialog(parent, flags)
    , d(std::make_unique<LimitedFileDialogPrivate>())
{
    setOption(QFileDialog::DontUseNativeDialog, true);
    initFileDialog();
    matchNoNames(this);
    setStrict(strictByDefault);
}

LimitedFileDialog::LimitedFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                                     const QString &filter)
    : QFileDialog(parent, caption, directory, filter)
    , d(std::make_unique<LimitedFileDialogPrivate>())
{
    setOption(QFileDialog::DontUseNativeDialog, true);
    initFileDialog();
    matchNoNames(this);
    setStrict(strictByDefault);
}

LimitedFileDialog::~LimitedFileDialog()
{
    // The parts die after this, and what they tell then must find nobody.
    const QList<QObject *> parts = findChildren<QObject *>();
    for (QObject *part : parts)
        part->disconnect(this);
}

void LimitedFileDialog::initFileDialog()
{
    connect(this, &QFileDialog::directoryEntered, this, &LimitedFileDialog::checkHistory);
    connect(this, &QFileDialog::directoryEntered, this, &LimitedFileDialog::checkGoToParent);
    for (const auto &name : {QStringLiteral("backButton"), QStringLiteral("forwardButton")}) {
        if (auto *button = findChild<QToolButton *>(name))
            connect(button, &QToolButton::clicked, this, &LimitedFileDialog::checkGoToParent);
    }
    auto *edit = fileNameEdit(this);
    if (edit)
        connect(edit, &QLineEdit::textChanged, this, &LimitedFileDialog::checkLineEdit);
    if (auto *lookIn = findChild<QComboBox *>(QStringLiteral("lookInCombo"))) {
        connect(lookIn, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &LimitedFileDialog::checkComboBox);
    }

    if (edit)
        edit->installEventFilter(this);
    for (const auto &name : {QStringLiteral("listView"), QStringLiteral("treeView")}) {
        if (auto *view = findChild<QWidget *>(name))
            view->installEventFilter(this);
    }
    if (edit && edit->completer())
        edit->completer()->popup()->installEventFilter(this);
}

void LimitedFileDialog::setLimitedPath(const QString &path)
{
    d->requestedPath = path;
    if (path != d->limitedPath)
        applyLimit(path);
}

void LimitedFileDialog::applyLimit(const QString &path)
{
    // Kept: a path that names no folder lifts the limit, unless the dialog is strict.
    d->limitedPath = isStrict() || QFileInfo(path).isDir() ? path : QString();
    d->updateGuard();
    if (auto *edit = fileNameEdit(this)) {
        edit->setText(edit->text());
        edit->setContextMenuPolicy(Qt::NoContextMenu);
    }

    const bool unlimited = d->limitedPath.isEmpty();
    if (!d->useLimitedPath1)
        setChildEnabled(this, QStringLiteral("lookInCombo"), unlimited);
    setChildEnabled(this, QStringLiteral("sidebar"), unlimited);
    checkGoToParent();
    setChildEnabled(this, QStringLiteral("backButton"), false);
}

void LimitedFileDialog::setLimitedPath1(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return;
    d->limitedPath1 = path;
    d->useLimitedPath1 = true;
    d->updateGuard();
}

QString LimitedFileDialog::getLimitedPath() const
{
    return d->limitedPath;
}

bool LimitedFileDialog::pathFits(const QString &path) const
{
    if (d->guard)
        return d->guard->contains(path);
    const QString candidate = withSlashes(path);
    if (d->limitedPath.isEmpty() || isBelow(candidate, d->limitedPath))
        return true;
    return d->useLimitedPath1 && (d->limitedPath1.isEmpty() || isBelow(candidate, d->limitedPath1));
}

bool LimitedFileDialog::mayGoUp() const
{
    return d->guard ? d->guard->mayGoUp() : pathFits(directory().absolutePath());
}

bool LimitedFileDialog::typedTextFits(const QString &text) const
{
    return pathFits(typedPath(this, text));
}

void LimitedFileDialog::checkGoToParent()
{
    const bool enabled = mayGoUp();
    setChildEnabled(this, QStringLiteral("toParentButton"), enabled);
    setChildEnabled(this, QStringLiteral("backButton"), enabled);
}

void LimitedFileDialog::checkLineEdit(const QString &text)
{
    const auto *box = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    if (!box || box->buttons().isEmpty())
        return;
    // Only ever disabled: QFileDialog enables it when the text changes again.
    QAbstractButton *button = box->buttons().constFirst();
    button->setEnabled(button->isEnabled() && typedTextFits(text));
}

void LimitedFileDialog::checkComboBox(int index)
{
    const auto *lookIn = findChild<QComboBox *>(QStringLiteral("lookInCombo"));
    if (index != 0 || !lookIn || lookIn->model()->rowCount() < 2)
        return;
    QAbstractItemModel *model = lookIn->model();
    // The row count is asked for each time, since removing a row may lead back here.
    for (int row = index; row < model->rowCount();) {
        const QString path = model->index(row, 0).data(Qt::DisplayRole).toString();
        if (d->useLimitedPath1 ? isShowInComboBox(path) : pathFits(path))
            ++row;
        else
            model->removeRows(row, 1);
    }
}

bool LimitedFileDialog::isShowInComboBox(const QString &path)
{
    const QString entry = alignedWith(d->limitedPath1, alignedWith(d->limitedPath, withSlashes(path)));
    return entry == d->limitedPath || entry == d->limitedPath1;
}

void LimitedFileDialog::setHistoryPath()
{
    QStringList paths(d->limitedPath);
    if (d->useLimitedPath1)
        paths.append(d->limitedPath1);
    setHistory(paths);
}

void LimitedFileDialog::checkHistory()
{
    setHistoryPath();
}

bool LimitedFileDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;

    const int key = static_cast<QKeyEvent *>(event)->key();
    const QString name = watched->objectName();
    if (name == QLatin1String("listView") || name == QLatin1String("treeView"))
        return key == Qt::Key_Backspace && !d->admits(mayGoUp(), QStringLiteral(".."));
    const auto *edit = fileNameEdit(this);
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    return isReturn && edit && !d->admits(typedTextFits(edit->text()), edit->text());
}

bool LimitedFileDialog::isStrict() const
{
    return d->guard != nullptr;
}

void LimitedFileDialog::setStrict(bool strict)
{
    if (strict == isStrict())
        return;
    d->guard = strict ? std::make_unique<LimitGuard>(this) : nullptr;
    // Whether the path that was asked for limits the dialog depends on the strictness.
    if (!d->requestedPath.isEmpty())
        applyLimit(d->requestedPath);
}

bool LimitedFileDialog::isStrictByDefault()
{
    return strictByDefault;
}

void LimitedFileDialog::setStrictByDefault(bool strict)
{
    strictByDefault = strict;
}

QStringList LimitedFileDialog::selectedFiles() const
{
    const QStringList files = QFileDialog::selectedFiles();
    return d->guard ? d->guard->inside(files) : files;
}

QList<QUrl> LimitedFileDialog::selectedUrls() const
{
    if (!d->guard)
        return QFileDialog::selectedUrls();
    QList<QUrl> urls;
    const QStringList files = selectedFiles();
    for (const QString &file : files)
        urls.append(QUrl::fromLocalFile(file));
    return urls;
}

void LimitedFileDialog::accept()
{
    if (!d->guard || d->guard->admitsResult())
        QFileDialog::accept();
}

void LimitedFileDialog::done(int result)
{
    if (result == QDialog::Rejected || !d->guard || d->guard->admitsResult())
        QFileDialog::done(result);
}

QString LimitedFileDialog::getExistingDirectoryFromDlg(QWidget *parent, const QString &caption,
                                                       const QString &dir, QFileDialog::Options options,
                                                       const QString &limitedPath,
                                                       const QString &limitedPath1)
{
    auto *dialog = new LimitedFileDialog(parent, caption, dir, QString());
    limit(dialog, limitedPath, limitedPath1);
    dialog->setOptions(options);
    dialog->setFileMode(QFileDialog::Directory);
    // Kept: the folder that is shown, not one that is selected in it.
    return runModally(dialog, [](const LimitedFileDialog &accepted) { return accepted.directory().path(); });
}

QString LimitedFileDialog::getOpenFileNamesFromDlg(QWidget *parent, const QString &caption,
                                                   const QString &dir, const QString &filter,
                                                   const QString &limitedPath, const QString &limitedPath1,
                                                   QString *selectedFilter, QFileDialog::Options options)
{
    Q_UNUSED(selectedFilter)
    auto *dialog = new LimitedFileDialog(parent, caption, dir, filter);
    limit(dialog, limitedPath, limitedPath1);
    dialog->setOptions(options);
    return runModally(dialog, firstFile);
}

QString LimitedFileDialog::getSaveFileNameFromDlg(QWidget *parent, const QString &caption, const QString &dir,
                                                  const QString &filter, const QString &limitedPath,
                                                  const QString &limitedPath1, QString *selectedFilter,
                                                  QFileDialog::Options options)
{
    Q_UNUSED(selectedFilter)
    auto *dialog = new LimitedFileDialog(parent, caption, dir, filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    limit(dialog, limitedPath, limitedPath1);
    dialog->setOptions(options);
    return runModally(dialog, firstFile);
}

} // namespace Tarn::Widgets
