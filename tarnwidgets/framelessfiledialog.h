// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELESSFILEDIALOG_H
#define TARN_WIDGETS_FRAMELESSFILEDIALOG_H

#include "framelessdialog.h"
#include "tarnwidgets_export.h"

#include <QDir>
#include <QFileDialog>
#include <QList>
#include <QStringList>
#include <QUrl>
#include <memory>

class QAbstractItemDelegate;
class QAbstractProxyModel;
class QFileIconProvider;

namespace Tarn::Widgets {

class FramelessFileDialogPrivate;

/*!
 * \ingroup filedialogs
 * \brief A QFileDialog in a FramelessDialog.
 *
 * Use it where the application's other dialogs are frameless ones. It holds Qt's
 * own widget-based file dialog, never a native one, and forwards every operation
 * of QFileDialog to it. Use QFileDialog itself where the platform's native dialog
 * is wanted, and LimitedFileDialog where the user shall stay inside a directory.
 *
 * \code
 * const QString file = FramelessFileDialog::getOpenFileName(this, QString(), QDir::homePath(),
 *                                                           tr("Pictures (*.png *.jpg)"));
 * if (!file.isEmpty())
 *     load(file);
 * \endcode
 *
 * The inner dialog belongs to this one. Should anybody delete it, setters do
 * nothing any more and getters return empty values, but filter() returns
 * QDir::Dirs and options() QFileDialog::ShowDirsOnly. Item delegates, icon
 * providers and proxy models are owned as QFileDialog has it.
 *
 * Style selectors: those of FramelessDialog, and inside it QFileDialog with the
 * object names that Qt gives its parts.
 *
 * A new dialog is 800 x 600 pixels. The user resizes it by the inner dialog's
 * size grip, also while setDialogResizable() is off.
 *
 * \note This header is installed only with a library that was built with
 * TARN_EXPORT_FRAMELESS_FILE_DIALOG.
 * \note The inner dialog hides when the user accepts or cancels, and it does not
 * come back: make a new FramelessFileDialog for each question.
 * \note Captions go to the inner dialog, where nobody sees them; the title bar
 * shows what setWindowTitle() says.
 * \note The signals of QFileDialog are declared here and never emitted. Read the
 * selection when the dialog has ended.
 */
class TARNWIDGETS_FRAMELESSFILEDIALOG_EXPORT FramelessFileDialog : public FramelessDialog
{
    Q_OBJECT

public:
    /*!
     * \a flags are the inner dialog's. Accepting and cancelling emit accepted()
     * and rejected() but leave this dialog open: the caller closes it.
     */
    FramelessFileDialog(QWidget *parent, Qt::WindowFlags flags);

    /*!
     * A dialog that closes when the user accepts or cancels, for exec(). It
     * emits accepted() or rejected() twice then, once for the inner dialog and
     * once for itself, and finished() once.
     */
    explicit FramelessFileDialog(QWidget *parent = nullptr, const QString &caption = QString(),
                                 const QString &directory = QString(), const QString &filter = QString());
    ~FramelessFileDialog() override;

    // These do what the functions of the same names in QFileDialog do, with two exceptions.

    void setDirectory(const QString &directory);
    QDir directory() const;
    void setDirectoryUrl(const QUrl &directory);
    QUrl directoryUrl() const;
    void selectFile(const QString &filename);
    QStringList selectedFiles() const;
    void selectUrl(const QUrl &url);
    QList<QUrl> selectedUrls() const;
    void setNameFilterDetailsVisible(bool enabled);
    bool isNameFilterDetailsVisible() const;
    void setNameFilter(const QString &filter);
    void setNameFilters(const QStringList &filters);
    QStringList nameFilters() const;
    /*! Unlike QFileDialog's, replaces all filters by \a filter, as setNameFilter() does. */
    void selectNameFilter(const QString &filter);
    QString selectedNameFilter() const;
    void setMimeTypeFilters(const QStringList &filters);
    void selectMimeTypeFilter(const QString &filter);
    QStringList mimeTypeFilters() const;
    void setFilter(QDir::Filters filters);
    QDir::Filters filter() const;
    void setViewMode(QFileDialog::ViewMode mode);
    QFileDialog::ViewMode viewMode() const;
    void setFileMode(QFileDialog::FileMode mode);
    QFileDialog::FileMode fileMode() const;
    void setAcceptMode(QFileDialog::AcceptMode mode);
    QFileDialog::AcceptMode acceptMode() const;
    void setReadOnly(bool enabled);
    bool isReadOnly() const;
    void setResolveSymlinks(bool enabled);
    bool resolveSymlinks() const;
    void setSidebarUrls(const QList<QUrl> &urls);
    QList<QUrl> sidebarUrls() const;
    bool restoreState(const QByteArray &state);
    QByteArray saveState() const;
    void setConfirmOverwrite(bool enabled);
    bool confirmOverwrite() const;
    void setDefaultSuffix(const QString &suffix);
    QString defaultSuffix() const;
    void setHistory(const QStringList &paths);
    /*! Unlike QFileDialog's, the same as supportedSchemes(). */
    QStringList history() const;
    void setItemDelegate(QAbstractItemDelegate *delegate);
    QAbstractItemDelegate *itemDelegate() const;
    void setIconProvider(QFileIconProvider *provider);
    QFileIconProvider *iconProvider() const;
    void setLabelText(QFileDialog::DialogLabel label, const QString &text);
    QString labelText(QFileDialog::DialogLabel label) const;
    void setSupportedSchemes(const QStringList &schemes);
    QStringList supportedSchemes() const;
    void setProxyModel(QAbstractProxyModel *model);
    QAbstractProxyModel *proxyModel() const;
    void setOption(QFileDialog::Option option, bool on = true);
    bool testOption(QFileDialog::Option option) const;
    void setOptions(QFileDialog::Options options);
    QFileDialog::Options options() const;

    /*!
     * The one-call functions show a dialog and return what the user chose, or
     * an empty value if that is nothing, also when \a parent is deleted
     * meanwhile.
     *
     * The dialog opens in \a dir if that is a directory. If not, it opens in the
     * directory that holds \a dir, with the name selected; if there is none such
     * either, or \a dir is empty, in the current directory. If
     * \a selectedFilter points to a filter that is not empty, that one alone is
     * offered, whatever \a filter lists; it receives the user's filter and stays
     * as it is when the user cancels.
     *
     * \note The dialog, with its file system model and the model's thread, stays
     * behind as a hidden child of \a parent until that is deleted; without a
     * parent it stays until the program ends.
     */
    static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(), const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    static QStringList getOpenFileNames(QWidget *parent = nullptr, const QString &caption = QString(),
                                        const QString &dir = QString(), const QString &filter = QString(),
                                        QString *selectedFilter = nullptr,
                                        QFileDialog::Options options = QFileDialog::Options());
    static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(), const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    static QString getExistingDirectory(QWidget *parent = nullptr, const QString &caption = QString(),
                                        const QString &dir = QString(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);

    static QUrl getOpenFileUrl(QWidget *parent = nullptr, const QString &caption = QString(),
                               const QUrl &dir = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = QFileDialog::Options(),
                               const QStringList &supportedSchemes = QStringList());
    static QList<QUrl> getOpenFileUrls(QWidget *parent = nullptr, const QString &caption = QString(),
                                       const QUrl &dir = QUrl(), const QString &filter = QString(),
                                       QString *selectedFilter = nullptr,
                                       QFileDialog::Options options = QFileDialog::Options(),
                                       const QStringList &supportedSchemes = QStringList());
    static QUrl getSaveFileUrl(QWidget *parent = nullptr, const QString &caption = QString(),
                               const QUrl &dir = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = QFileDialog::Options(),
                               const QStringList &supportedSchemes = QStringList());
    static QUrl getExistingDirectoryUrl(QWidget *parent = nullptr, const QString &caption = QString(),
                                        const QUrl &dir = QUrl(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly,
                                        const QStringList &supportedSchemes = QStringList());

    /*! The directory in which the one-call functions open for \a url. */
    static QUrl workingDirectory(const QUrl &url);

    /*! The file name that they select for \a url: none for a directory. */
    static QString initialSelection(const QUrl &url);

Q_SIGNALS:
    // Those of QFileDialog. Nothing emits them unless a subclass calls connectSignals().
    void currentChanged(const QString &path);
    void currentUrlChanged(const QUrl &url);
    void directoryEntered(const QString &directory);
    void directoryUrlEntered(const QUrl &directory);
    void fileSelected(const QString &file);
    void filesSelected(const QStringList &selected);
    void filterSelected(const QString &filter);
    void urlSelected(const QUrl &url);
    void urlsSelected(const QList<QUrl> &urls);

protected:
    /*! Makes the inner dialog's signals come out of this one. */
    void connectSignals();

private:
    void init(QFileDialog *inner);
    void slot_accepted();
    void slot_rejected();

    const std::unique_ptr<FramelessFileDialogPrivate> d;
};

} // namespace Tarn::Widgets

#endif
