// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "limitedfiledialog.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

namespace Tarn::Widgets {

class LimitedFileDialogPrivate
{
public:
    QString limitedPath; // empty: no limit
    QString limitedPath1; // the second folder
    bool useLimitedPath1 = false;
};

namespace {

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

// Deletes the dialog on return, unless its parent has taken it along while it was open.
template <typename Result> QString runModally(QPointer<LimitedFileDialog> dialog, Result result)
{
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString chosen = accepted && dialog ? result(*dialog) : QString();
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
}

LimitedFileDialog::LimitedFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                                     const QString &filter)
    : QFileDialog(parent, caption, directory, filter)
    , d(std::make_unique<LimitedFileDialogPrivate>())
{
    setOption(QFileDialog::DontUseNativeDialog, true);
    initFileDialog();
}

LimitedFileDialog::~LimitedFileDialog() = default;

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
    if (path == d->limitedPath)
        return;

    // Kept: a path that names no folder lifts the limit.
    d->limitedPath = QFileInfo(path).isDir() ? path : QString();
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
}

QString LimitedFileDialog::getLimitedPath() const
{
    return d->limitedPath;
}

bool LimitedFileDialog::pathFits(const QString &path) const
{
    const QString candidate = withSlashes(path);
    if (d->limitedPath.isEmpty() || isBelow(candidate, d->limitedPath))
        return true;
    return d->useLimitedPath1 && (d->limitedPath1.isEmpty() || isBelow(candidate, d->limitedPath1));
}

void LimitedFileDialog::checkGoToParent()
{
    const bool fits = pathFits(directory().absolutePath());
    setChildEnabled(this, QStringLiteral("toParentButton"), fits);
    setChildEnabled(this, QStringLiteral("backButton"), fits);
}

void LimitedFileDialog::checkLineEdit(const QString &text)
{
    const auto *box = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    if (!box || box->buttons().isEmpty())
        return;
    // Only ever disabled: QFileDialog enables it when the text changes again.
    if (!pathFits(typedPath(this, text)))
        box->buttons().constFirst()->setEnabled(false);
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
        return key == Qt::Key_Backspace && !pathFits(directory().absolutePath());
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    const auto *edit = fileNameEdit(this);
    return edit && !pathFits(typedPath(this, edit->text()));
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
