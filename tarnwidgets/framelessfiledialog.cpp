// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelessfiledialog.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QMessageLogger>
#include <QPointer>

namespace Tarn::Widgets {

/* Having a meta-object of its own, it never goes native once it has its widgets. */
class InnerFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    using QFileDialog::QFileDialog;
};

class FramelessFileDialogPrivate
{
public:
    QPointer<QFileDialog> inner;
};

FramelessFileDialog::FramelessFileDialog(QWidget *parent, Qt::WindowFlags flags)
    : FramelessDialog(parent)
    , d(std::make_unique<FramelessFileDialogPrivate>())
{
    // Kept: the inner dialog's buttons do not close this one.
    init(new InnerFileDialog(this, flags));
}

FramelessFileDialog::FramelessFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                                         const QString &filter)
    : FramelessDialog(parent)
    , d(std::make_unique<FramelessFileDialogPrivate>())
{
    // Kept: the caption is not the title bar's.
    init(new InnerFileDialog(this, caption, directory, filter));
    // Kept: accepted() and rejected() come again when this dialog closes.
    connect(d->inner, &QFileDialog::rejected, this, &FramelessFileDialog::slot_rejected);
    connect(d->inner, &QFileDialog::accepted, this, &FramelessFileDialog::slot_accepted);
}

FramelessFileDialog::~FramelessFileDialog() = default;

void FramelessFileDialog::init(QFileDialog *inner)
{
    d->inner = inner;
    // Qt takes the dialog for a native one during its construction; refusing that once makes the widgets. The
    // options are the caller's again afterwards.
    inner->setOption(QFileDialog::DontUseNativeDialog);
    inner->setOption(QFileDialog::DontUseNativeDialog, false);
    inner->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    inner->setWindowFlags(inner->windowFlags() & ~Qt::Dialog); // no window but a child widget

    auto *layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(inner); // Kept: hides with the user's answer, and nothing shows it again
    setLayout(layout);
    m_pBottomWidget->hide();

    connect(inner, &QFileDialog::rejected, this, &FramelessFileDialog::rejected);
    connect(inner, &QFileDialog::accepted, this, &FramelessFileDialog::accepted);
    resize(800, 600);
}

// Kept: nothing here calls it, so that the nine signals stay silent.
void FramelessFileDialog::connectSignals()
{
    if (!d->inner)
        return;
    connect(d->inner, &QFileDialog::currentChanged, this, &FramelessFileDialog::currentChanged);
    connect(d->inner, &QFileDialog::currentUrlChanged, this, &FramelessFileDialog::currentUrlChanged);
    connect(d->inner, &QFileDialog::directoryEntered, this, &FramelessFileDialog::directoryEntered);
    connect(d->inner, &QFileDialog::directoryUrlEntered, this, &FramelessFileDialog::directoryUrlEntered);
    connect(d->inner, &QFileDialog::fileSelected, this, &FramelessFileDialog::fileSelected);
    connect(d->inner, &QFileDialog::filesSelected, this, &FramelessFileDialog::filesSelected);
    connect(d->inner, &QFileDialog::filterSelected, this, &FramelessFileDialog::filterSelected);
    connect(d->inner, &QFileDialog::urlSelected, this, &FramelessFileDialog::urlSelected);
    connect(d->inner, &QFileDialog::urlsSelected, this, &FramelessFileDialog::urlsSelected);
}

// The log lines name their place themselves, which qDebug() does in debug builds only.

void FramelessFileDialog::slot_accepted()
{
    QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO).debug("FileDialog::slot_accepted");
    accept();
}

void FramelessFileDialog::slot_rejected()
{
    QMessageLogger(__FILE__, __LINE__, Q_FUNC_INFO).debug("FileDialog::slot_rejected");
    reject();
}

void FramelessFileDialog::setDirectory(const QString &directory)
{
    if (d->inner)
        d->inner->setDirectory(directory);
}

QDir FramelessFileDialog::directory() const
{
    return d->inner ? d->inner->directory() : QDir(QString());
}

void FramelessFileDialog::setDirectoryUrl(const QUrl &directory)
{
    if (d->inner)
        d->inner->setDirectoryUrl(directory);
}

QUrl FramelessFileDialog::directoryUrl() const
{
    return d->inner ? d->inner->directoryUrl() : QUrl();
}

void FramelessFileDialog::selectFile(const QString &filename)
{
    if (d->inner)
        d->inner->selectFile(filename);
}

QStringList FramelessFileDialog::selectedFiles() const
{
    return d->inner ? d->inner->selectedFiles() : QStringList();
}

void FramelessFileDialog::selectUrl(const QUrl &url)
{
    if (d->inner)
        d->inner->selectUrl(url);
}

QList<QUrl> FramelessFileDialog::selectedUrls() const
{
    return d->inner ? d->inner->selectedUrls() : QList<QUrl>();
}

void FramelessFileDialog::setNameFilterDetailsVisible(bool enabled)
{
    setOption(QFileDialog::HideNameFilterDetails, !enabled);
}

bool FramelessFileDialog::isNameFilterDetailsVisible() const
{
    return d->inner && !d->inner->testOption(QFileDialog::HideNameFilterDetails);
}

void FramelessFileDialog::setNameFilter(const QString &filter)
{
    if (d->inner)
        d->inner->setNameFilter(filter);
}

void FramelessFileDialog::setNameFilters(const QStringList &filters)
{
    if (d->inner)
        d->inner->setNameFilters(filters);
}

QStringList FramelessFileDialog::nameFilters() const
{
    return d->inner ? d->inner->nameFilters() : QStringList();
}

void FramelessFileDialog::selectNameFilter(const QString &filter)
{
    // Kept: replaces the list of filters instead of choosing from it.
    if (d->inner)
        d->inner->setNameFilter(filter);
}

QString FramelessFileDialog::selectedNameFilter() const
{
    return d->inner ? d->inner->selectedNameFilter() : QString();
}

void FramelessFileDialog::setMimeTypeFilters(const QStringList &filters)
{
    if (d->inner)
        d->inner->setMimeTypeFilters(filters);
}

void FramelessFileDialog::selectMimeTypeFilter(const QString &filter)
{
    if (d->inner)
        d->inner->selectMimeTypeFilter(filter);
}

QStringList FramelessFileDialog::mimeTypeFilters() const
{
    return d->inner ? d->inner->mimeTypeFilters() : QStringList();
}

void FramelessFileDialog::setFilter(QDir::Filters filters)
{
    if (d->inner)
        d->inner->setFilter(filters);
}

QDir::Filters FramelessFileDialog::filter() const
{
    // Kept: Dirs, not 0, without an inner dialog.
    return d->inner ? d->inner->filter() : QDir::Filters(QDir::Dirs);
}

void FramelessFileDialog::setViewMode(QFileDialog::ViewMode mode)
{
    if (d->inner)
        d->inner->setViewMode(mode);
}

QFileDialog::ViewMode FramelessFileDialog::viewMode() const
{
    return d->inner ? d->inner->viewMode() : QFileDialog::ViewMode(0);
}

void FramelessFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    if (d->inner)
        d->inner->setFileMode(mode);
}

QFileDialog::FileMode FramelessFileDialog::fileMode() const
{
    return d->inner ? d->inner->fileMode() : QFileDialog::FileMode(0);
}

void FramelessFileDialog::setAcceptMode(QFileDialog::AcceptMode mode)
{
    if (d->inner)
        d->inner->setAcceptMode(mode);
}

QFileDialog::AcceptMode FramelessFileDialog::acceptMode() const
{
    return d->inner ? d->inner->acceptMode() : QFileDialog::AcceptMode(0);
}

void FramelessFileDialog::setReadOnly(bool enabled)
{
    setOption(QFileDialog::ReadOnly, enabled);
}

bool FramelessFileDialog::isReadOnly() const
{
    return testOption(QFileDialog::ReadOnly);
}

void FramelessFileDialog::setResolveSymlinks(bool enabled)
{
    setOption(QFileDialog::DontResolveSymlinks, !enabled);
}

bool FramelessFileDialog::resolveSymlinks() const
{
    return d->inner && !d->inner->testOption(QFileDialog::DontResolveSymlinks);
}

void FramelessFileDialog::setSidebarUrls(const QList<QUrl> &urls)
{
    if (d->inner)
        d->inner->setSidebarUrls(urls);
}

QList<QUrl> FramelessFileDialog::sidebarUrls() const
{
    return d->inner ? d->inner->sidebarUrls() : QList<QUrl>();
}

bool FramelessFileDialog::restoreState(const QByteArray &state)
{
    return d->inner && d->inner->restoreState(state);
}

QByteArray FramelessFileDialog::saveState() const
{
    return d->inner ? d->inner->saveState() : QByteArray();
}

void FramelessFileDialog::setConfirmOverwrite(bool enabled)
{
    setOption(QFileDialog::DontConfirmOverwrite, !enabled);
}

bool FramelessFileDialog::confirmOverwrite() const
{
    return d->inner && !d->inner->testOption(QFileDialog::DontConfirmOverwrite);
}

void FramelessFileDialog::setDefaultSuffix(const QString &suffix)
{
    if (d->inner)
        d->inner->setDefaultSuffix(suffix);
}

QString FramelessFileDialog::defaultSuffix() const
{
    return d->inner ? d->inner->defaultSuffix() : QString();
}

void FramelessFileDialog::setHistory(const QStringList &paths)
{
    if (d->inner)
        d->inner->setHistory(paths);
}

QStringList FramelessFileDialog::history() const
{
    // Kept: the schemes, not the history.
    return d->inner ? d->inner->supportedSchemes() : QStringList();
}

void FramelessFileDialog::setItemDelegate(QAbstractItemDelegate *delegate)
{
    if (d->inner)
        d->inner->setItemDelegate(delegate);
}

QAbstractItemDelegate *FramelessFileDialog::itemDelegate() const
{
    return d->inner ? d->inner->itemDelegate() : nullptr;
}

void FramelessFileDialog::setIconProvider(QFileIconProvider *provider)
{
    if (d->inner)
        d->inner->setIconProvider(provider);
}

QFileIconProvider *FramelessFileDialog::iconProvider() const
{
    return d->inner ? d->inner->iconProvider() : nullptr;
}

void FramelessFileDialog::setLabelText(QFileDialog::DialogLabel label, const QString &text)
{
    if (d->inner)
        d->inner->setLabelText(label, text);
}

QString FramelessFileDialog::labelText(QFileDialog::DialogLabel label) const
{
    return d->inner ? d->inner->labelText(label) : QString();
}

void FramelessFileDialog::setSupportedSchemes(const QStringList &schemes)
{
    if (d->inner)
        d->inner->setSupportedSchemes(schemes);
}

QStringList FramelessFileDialog::supportedSchemes() const
{
    return d->inner ? d->inner->supportedSchemes() : QStringList();
}

void FramelessFileDialog::setProxyModel(QAbstractProxyModel *model)
{
    if (d->inner)
        d->inner->setProxyModel(model);
}

QAbstractProxyModel *FramelessFileDialog::proxyModel() const
{
    return d->inner ? d->inner->proxyModel() : nullptr;
}

void FramelessFileDialog::setOption(QFileDialog::Option option, bool on)
{
    if (d->inner)
        d->inner->setOption(option, on);
}

bool FramelessFileDialog::testOption(QFileDialog::Option option) const
{
    return d->inner && d->inner->testOption(option);
}

void FramelessFileDialog::setOptions(QFileDialog::Options options)
{
    if (d->inner)
        d->inner->setOptions(options);
}

QFileDialog::Options FramelessFileDialog::options() const
{
    // Kept: ShowDirsOnly, not 0, without an inner dialog.
    return d->inner ? d->inner->options() : QFileDialog::Options(QFileDialog::ShowDirsOnly);
}

namespace {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
constexpr QFileDialog::FileMode DirectoryOnly = QFileDialog::DirectoryOnly; // fileMode() still tells it
QT_WARNING_POP

struct Question
{
    QWidget *parent;
    QString caption;
    QUrl dir;
    QString filter;
    QFileDialog::FileMode mode;
    QFileDialog::Options options;
    QStringList supportedSchemes;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QString *selectedFilter = nullptr;
};

FramelessFileDialog *createDialog(const Question &question)
{
    const QString directory = FramelessFileDialog::workingDirectory(question.dir).toLocalFile();
    // Kept: left to the parent, which may also be gone before the dialog ends.
    auto *dialog = new FramelessFileDialog(question.parent, question.caption, directory, question.filter);
    dialog->setFileMode(question.mode);
    dialog->setOptions(question.options); // also ShowDirsOnly, which the file mode has set or cleared
    dialog->selectFile(FramelessFileDialog::initialSelection(question.dir));
    dialog->setSupportedSchemes(question.supportedSchemes);
    if (question.acceptMode != QFileDialog::AcceptOpen)
        dialog->setAcceptMode(question.acceptMode);
    if (question.selectedFilter && !question.selectedFilter->isEmpty())
        dialog->selectNameFilter(*question.selectedFilter);
    return dialog;
}

QList<QUrl> ask(const Question &question)
{
    const QPointer<FramelessFileDialog> dialog(createDialog(question));
    if (dialog->exec() != QDialog::Accepted || !dialog)
        return {};
    if (question.selectedFilter)
        *question.selectedFilter = dialog->selectedNameFilter();
    return dialog->selectedUrls();
}

QStringList onlyFiles()
{
    return {QStringLiteral("file")};
}

/* The directory that \a url names, or else the one that holds it; an empty URL if there is neither. */
QUrl nearestDirectory(const QUrl &url)
{
    if (!url.isLocalFile())
        return url;
    QFileInfo info(QDir(QDir::currentPath()), url.toLocalFile());
    if (info.isDir())
        return QUrl::fromLocalFile(QDir::cleanPath(info.absoluteFilePath()));
    info.setFile(info.absolutePath());
    return info.isDir() ? QUrl::fromLocalFile(info.absoluteFilePath()) : QUrl();
}

} // namespace

QString FramelessFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                             const QString &filter, QString *selectedFilter,
                                             QFileDialog::Options options)
{
    const QUrl url = getOpenFileUrl(parent, caption, QUrl::fromLocalFile(dir), filter, selectedFilter,
                                    options, onlyFiles());
    return url.toLocalFile();
}

QStringList FramelessFileDialog::getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                                  const QString &filter, QString *selectedFilter,
                                                  QFileDialog::Options options)
{
    const QList<QUrl> urls = getOpenFileUrls(parent, caption, QUrl::fromLocalFile(dir), filter,
                                             selectedFilter, options, onlyFiles());
    QStringList files;
    for (const QUrl &url : urls)
        files.append(url.toLocalFile());
    return files;
}

QString FramelessFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                             const QString &filter, QString *selectedFilter,
                                             QFileDialog::Options options)
{
    const QUrl url = getSaveFileUrl(parent, caption, QUrl::fromLocalFile(dir), filter, selectedFilter,
                                    options, onlyFiles());
    return url.toLocalFile();
}

QString FramelessFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                                  QFileDialog::Options options)
{
    const QUrl url = getExistingDirectoryUrl(parent, caption, QUrl::fromLocalFile(dir), options, onlyFiles());
    return url.toLocalFile();
}

QUrl FramelessFileDialog::getOpenFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                         const QString &filter, QString *selectedFilter,
                                         QFileDialog::Options options, const QStringList &supportedSchemes)
{
    return ask({parent, caption, dir, filter, QFileDialog::ExistingFile, options, supportedSchemes,
                QFileDialog::AcceptOpen, selectedFilter})
        .value(0);
}

QList<QUrl> FramelessFileDialog::getOpenFileUrls(QWidget *parent, const QString &caption, const QUrl &dir,
                                                 const QString &filter, QString *selectedFilter,
                                                 QFileDialog::Options options,
                                                 const QStringList &supportedSchemes)
{
    return ask({parent, caption, dir, filter, QFileDialog::ExistingFiles, options, supportedSchemes,
                QFileDialog::AcceptOpen, selectedFilter});
}

QUrl FramelessFileDialog::getSaveFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                         const QString &filter, QString *selectedFilter,
                                         QFileDialog::Options options, const QStringList &supportedSchemes)
{
    return ask({parent, caption, dir, filter, QFileDialog::AnyFile, options, supportedSchemes,
                QFileDialog::AcceptSave, selectedFilter})
        .value(0);
}

QUrl FramelessFileDialog::getExistingDirectoryUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                                  QFileDialog::Options options,
                                                  const QStringList &supportedSchemes)
{
    const QFileDialog::FileMode mode =
        options.testFlag(QFileDialog::ShowDirsOnly) ? DirectoryOnly : QFileDialog::Directory;
    return ask({parent, caption, dir, QString(), mode, options, supportedSchemes}).value(0);
}

QUrl FramelessFileDialog::workingDirectory(const QUrl &url)
{
    // Kept: unlike QFileDialog, no dialog remembers the directory of the one before.
    const QUrl directory = nearestDirectory(url);
    return directory.isEmpty() ? QUrl::fromLocalFile(QDir::currentPath()) : directory;
}

QString FramelessFileDialog::initialSelection(const QUrl &url)
{
    if (!url.isLocalFile())
        return url.fileName();
    const QFileInfo info(url.toLocalFile());
    return info.isDir() ? QString() : info.fileName();
}

} // namespace Tarn::Widgets

#include "framelessfiledialog.moc"
