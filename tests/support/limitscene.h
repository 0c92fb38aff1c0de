// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_LIMITSCENE_H
#define TARN_TEST_LIMITSCENE_H

#include <QAbstractItemView>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>
#include <functional>
#include <tarnwidgets/limitedfiledialog.h>

namespace Tarn::Test {

/*!
 * Real folders with links that lead out, removed with the object:
 *
 * \code
 * root/       file.txt  "with space.txt"  sub/file.txt  sub/deep/
 *             linkdir -> outside  linkfile -> outside/secret.txt  dangling -> outside/new.txt  inner -> sub
 * root2/      file.txt  sub/
 * root-not/   secret.txt         begins like root
 * outside/    secret.txt  dir/secret.txt
 * \endcode
 *
 * Permitted are root and root2.
 */
class LimitTree
{
public:
    LimitTree();

    /*! Nothing comes and goes beside it, as it does among temporary folders. */
    QString path() const;

    /*! \a name as seen from path(). */
    QString at(const char *name) const;

    /*! By the standard library's means, not by the dialog's. */
    bool isInside(const QString &name) const;

    /*! All files and folders that are not permitted, and the names of the permitted folders. */
    QStringList contentsOutside() const;

private:
    void fill() const;

    QTemporaryDir m_dir;
};

/*! A limited file dialog on the tree's root, what a user can do with it, and what came out of it. */
class LimitScene
{
public:
    enum Limits { OneRoot, TwoRoots };

    explicit LimitScene(bool strict, const QString &start = QString(), Limits limits = OneRoot);

    /*! The way to functions that LimitedFileDialog hides, or can only check afterwards. */
    QFileDialog &base();

    template <typename T> T *part(const char *name)
    {
        return dialog.findChild<T *>(QLatin1String(name));
    }

    QLineEdit *edit();
    QAbstractItemView *list();
    QFileSystemModel *model();
    QLabel *notice();
    QPushButton *acceptButton();

    /*! By keyboard, up to and with Return. */
    void type(const QString &text);

    /*! As the completer and scripts do, past the checks of single keys. */
    void put(const QString &text);

    /*! The item of the shown folder, once it is there. */
    QModelIndex item(const char *name);
    void click(const char *name);
    void doubleClick(const char *name);
    bool drop(const QPoint &position, const QList<QUrl> &urls, Qt::DropAction action = Qt::CopyAction);

    /*! What the user is shown to complete the text. */
    QStringList completions();

    /*! What of all that can be seen is outside; empty if nothing. */
    QStringList outside();

    /*! The same once pending events are handled, with the folders in the views that the model does not show.
     */
    QStringList outsideOnceSettled();

    bool isOutsideUntouched() const;
    bool hasEscaped();

    LimitTree tree;
    Widgets::LimitedFileDialog dialog;
    QStringList results;
    int accepted = 0;

private:
    QStringList offeredOutside();
    QStringList viewsAstray();

    const QStringList m_contentsOutside;
};

/*! Answers the questions that QFileDialog itself asks, such as whether to delete a file. */
class Answerer : public QObject
{
    Q_OBJECT

public:
    Answerer();

    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! Asked when a question comes, whether to say yes. */
    std::function<bool()> answer = [] { return true; };
};

} // namespace Tarn::Test

#endif
