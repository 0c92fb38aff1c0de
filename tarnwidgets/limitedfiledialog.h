// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_LIMITEDFILEDIALOG_H
#define TARN_WIDGETS_LIMITEDFILEDIALOG_H

#include "tarnwidgets_export.h"

#include <QFileDialog>
#include <memory>

namespace Tarn::Widgets {

class LimitedFileDialogPrivate;

/*!
 * \ingroup filedialogs
 * \brief A file dialog that keeps the user inside one folder, or two.
 *
 * Use it where a user is meant to find files below a given folder and would
 * only get lost elsewhere: the projects of an application, a mounted stick. It
 * is a QFileDialog, always the one made of widgets, in which the buttons, keys,
 * entries and texts that lead out of the folder are disabled or ignored.
 *
 * \code
 * const QString recipe = LimitedFileDialog::getOpenFileNamesFromDlg(
 *     this, tr("Open Recipe"), recipes, tr("Recipes (*.rcp)"), recipes);
 * \endcode
 *
 * \note The confinement is a convenience for the user and not a security
 * border: there are ways around it, which the manual lists. The property strict
 * closes them.
 * \note Unless strict, the limit compares texts: it knows nothing of symbolic
 * links, a folder itself does not count as inside, and its name also admits the
 * folders whose names begin with it.
 *
 * Style selectors: the object names of QFileDialog's parts, and limitNotice for
 * the line in which a strict dialog tells what it has refused.
 */
class TARNWIDGETS_EXPORT LimitedFileDialog : public QFileDialog
{
    Q_OBJECT
    Q_PROPERTY(bool strict READ isStrict WRITE setStrict)

public:
    LimitedFileDialog(QWidget *parent, Qt::WindowFlags flags);
    explicit LimitedFileDialog(QWidget *parent = nullptr, const QString &caption = QString(),
                               const QString &directory = QString(), const QString &filter = QString());
    ~LimitedFileDialog() override;

    /*! Connects the dialog to its own parts. The constructors have done so already. */
    void initFileDialog();

    /*!
     * Keeps the user below the folder \a path. A path that is empty or names no
     * folder lifts the limit. The dialog stays in the folder that it shows. See
     * setStrict() for what a strict dialog does instead.
     */
    void setLimitedPath(const QString &path);

    /*!
     * Admits a second folder, which the user reaches by the look-in list. Set
     * it before the first one, so that the list stays enabled. A path that is
     * empty or names no folder is ignored; there is no way back to one folder.
     * Without a first folder there is no limit.
     */
    void setLimitedPath1(const QString &path);

    /*! The first folder, or an empty text without a limit. */
    QString getLimitedPath() const;

    /*! Whether \a path is below one of the folders, or there is no limit. */
    bool pathFits(const QString &path) const;

    /*! Enables the buttons that lead up and back if the shown folder is below one of the two. */
    void checkGoToParent();

    /*! Disables the button that accepts if \a text, typed as a file name, leads out. */
    void checkLineEdit(const QString &text);

    /*! Takes the entries that lead out from the look-in list; only if \a index, which became current, is 0.
     */
    void checkComboBox(int index);

    /*! Whether \a path, an entry of the look-in list, names one of the two folders. */
    bool isShowInComboBox(const QString &path);

    /*! Makes the dialog forget all folders that were visited but the two. */
    void setHistoryPath();

    /*! The same as setHistoryPath(). */
    void checkHistory();

    /*!
     * Holds the limit against every way out: each folder that is entered and
     * each result is checked with its links followed, and what is outside is
     * left again, or refused, with a line in the dialog that says so. A folder
     * counts as inside itself. A start folder outside gives way to the limited
     * one, and a limited folder that is missing admits nothing; only an empty
     * path lifts the limit. The default is isStrictByDefault().
     *
     * \note directoryEntered() may still name a folder that has been left already, and fileSelected() a file
     * that was exchanged for a link while Qt asked whether to overwrite it; the dialog is not accepted then.
     */
    bool isStrict() const;
    void setStrict(bool strict);

    /*! What new dialogs take, those of the one-call functions included; false at first. */
    static bool isStrictByDefault();
    static void setStrictByDefault(bool strict);

    /*! \note Hides QFileDialog::selectedFiles(): a strict dialog leaves out what is outside. */
    QStringList selectedFiles() const;
    QList<QUrl> selectedUrls() const; //!< \note Hides QFileDialog::selectedUrls() likewise.

    bool eventFilter(QObject *watched, QEvent *event) override;

    /*!
     * The one-call functions show a dialog that is limited to \a limitedPath
     * and, unless it is empty, \a limitedPath1. They return an empty text if
     * the user cancels, or \a parent is deleted meanwhile.
     *
     * This one returns the folder that the dialog shows when it is accepted,
     * not one that is selected in it: the user enters the folder to choose it.
     */
    static QString getExistingDirectoryFromDlg(QWidget *parent = nullptr, const QString &caption = QString(),
                                               const QString &dir = QString(),
                                               QFileDialog::Options options = QFileDialog::ShowDirsOnly,
                                               const QString &limitedPath = QString(),
                                               const QString &limitedPath1 = QString());

    /*! Returns one file, which need not exist. \a selectedFilter is neither read nor written. */
    static QString getOpenFileNamesFromDlg(QWidget *parent = nullptr, const QString &caption = QString(),
                                           const QString &dir = QString(), const QString &filter = QString(),
                                           const QString &limitedPath = QString(),
                                           const QString &limitedPath1 = QString(),
                                           QString *selectedFilter = nullptr,
                                           QFileDialog::Options options = QFileDialog::Options());

    /*! Returns the file to write; Qt asks before one is overwritten. \a selectedFilter as above. */
    static QString getSaveFileNameFromDlg(QWidget *parent = nullptr, const QString &caption = QString(),
                                          const QString &dir = QString(), const QString &filter = QString(),
                                          const QString &limitedPath = QString(),
                                          const QString &limitedPath1 = QString(),
                                          QString *selectedFilter = nullptr,
                                          QFileDialog::Options options = QFileDialog::Options());

protected:
    void accept() override;
    void done(int result) override;

private:
    bool mayGoUp() const;
    bool typedTextFits(const QString &text) const;
    void applyLimit(const QString &path);

    const std::unique_ptr<LimitedFileDialogPrivate> d;
};

} // namespace Tarn::Widgets

#endif
