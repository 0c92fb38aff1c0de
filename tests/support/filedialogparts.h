// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_FILEDIALOGPARTS_H
#define TARN_TEST_FILEDIALOGPARTS_H

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>

namespace Tarn::Test {

/*!
 * Real folders and files to walk in, removed with the object:
 *
 * \code
 * root/       file.txt  with space.txt  empty/  sub/inner.txt  sub/deep/deep.txt  sub/deep/deepest/
 * rootx/      near.txt         begins like root
 * second/     two.txt  below/below.txt
 * outside/    secret.txt
 * home/       house.txt        the user's home while the object lives
 * \endcode
 *
 * The settings that file dialogs keep go there, too, so that no dialog begins where another one ended.
 */
class FileTree
{
public:
    FileTree();
    ~FileTree();

    bool isValid() const;

    /*! \a text with the folder that holds all this in place of each "@". */
    QString at(const QString &text) const;
    QString base() const;
    QString root() const;
    QString second() const;
    QString outside() const;

    /*! Paths as for at(). */
    bool addFolder(const QString &path) const;
    bool addFile(const QString &path) const;

private:
    Q_DISABLE_COPY(FileTree)

    QTemporaryDir m_dir;
    QString m_base;
    QByteArray m_formerHome;
    bool m_complete = true;
};

/*! What a widget-based file dialog is made of, by the names that Qt gives the parts. */
struct FileDialogParts
{
    explicit FileDialogParts(const QFileDialog *dialog);

    bool areThere() const;

    const QFileDialog *const dialog;
    QToolButton *const back;
    QToolButton *const forward;
    QToolButton *const toParent;
    QLineEdit *const edit;
    QComboBox *const lookIn;
    QListView *const list;
    QTreeView *const tree;
    QWidget *const sidebar;
    QDialogButtonBox *const box;

    /*! "Open" or "Save"; "Cancel". Qt makes them anew with the accept mode. */
    QPushButton *accepting() const;
    QPushButton *rejecting() const;

    /*! Of the popup that completes file names. */
    QAbstractItemView *completions() const;

    QString shown() const; //!< The folder.
    QStringList lookInTexts() const;

    /*! Whether the view has all entries of the folder, in order; waits for that. Before, they move. */
    bool isLoaded() const;

    /*! Whether the entry \a name is in the view; waits for it. */
    bool hasEntry(const QString &name) const;

    /*! Where the entry is in the viewport of \a view, scrolled to; null if there is none. */
    QPoint place(const QAbstractItemView *view, const QString &name) const;

    /*! As a user does it in the view that is shown. False if there is no such entry. */
    bool click(const QString &name) const;
    bool doubleClick(const QString &name) const;

    /*! Replaces the text by \a text, key by key. */
    void type(const QString &text) const;

    /*! A key to whichever view is shown. */
    void keyInView(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    QAbstractItemView *view() const;
};

} // namespace Tarn::Test

#endif
