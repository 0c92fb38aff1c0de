// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the interface: for the library's own sources and tests.

#ifndef TARN_WIDGETS_LIMITEDFILEDIALOG_P_H
#define TARN_WIDGETS_LIMITEDFILEDIALOG_P_H

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <optional>

class QAbstractItemView;
class QCompleter;
class QDropEvent;
class QFileSystemModel;
class QLabel;

namespace Tarn::Widgets {

class LimitedFileDialog;

/*!
 * \brief Holds a LimitedFileDialog inside its folders, by whatever route the user tries to leave.
 *
 * It does not know the routes. It holds the two places that all of them pass: the folder that the dialog's
 * model shows, and the result that is about to be accepted.
 *
 * It is a help for users and not a security border: between a check and the use of what was checked, other
 * programs can exchange files for links.
 */
class LimitGuard : public QObject
{
    Q_OBJECT

public:
    explicit LimitGuard(LimitedFileDialog *dialog);
    ~LimitGuard() override;

    /*! The permitted folders. Without any there is no limit; one that is missing admits nothing. */
    void setRoots(const QStringList &roots);

    /*! Whether a program that opens \a path ends up in a permitted folder, or would make a file there. */
    bool contains(const QString &path) const;

    QStringList inside(const QStringList &paths) const;

    /*! Whether the folder above the one that is shown is permitted. */
    bool mayGoUp() const;

    /*! Whether the dialog may be accepted as it stands; tells the user if not. */
    bool admitsResult();

    /*! Tells the user that \a path is not permitted. */
    void refuse(const QString &path);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Root
    {
        QString path;
        QString canonical; // where it was first found
    };

    bool isPermitted(const QString &place) const;
    static QString standing(Root *root);
    QString shownFolder() const;
    bool isShownPermitted() const;
    void checkShownFolder();
    void checkText(const QString &text);
    bool mayComplete(const QString &text) const;
    bool dropForeignCompletions() const;
    void checkCurrent(const QString &path);
    void goBackInside();
    void settle();
    void settleView(QAbstractItemView *view) const;
    void dropForeignSelections(bool dots) const;
    void dropForeignSelection(const QAbstractItemView *view, bool dots) const;
    void setShut(bool shut);
    void updateNewFolder() const;
    std::optional<QString> foreignPath(const QAbstractItemView *view, const QDropEvent *drop) const;
    std::optional<QString> firstOutside(const QStringList &paths) const;
    bool filterViewEvent(QAbstractItemView *view, QEvent *event);
    void addNotice();
    void updateNotice();
    void clearNotice();

    LimitedFileDialog *const m_dialog;
    QPointer<QFileSystemModel> m_model;
    QPointer<QCompleter> m_completer;
    QPointer<QLabel> m_notice;
    mutable QVector<Root> m_roots;
    QString m_lastInside; // the folder to go back to
    QString m_refused; // what the notice is about
    bool m_shut = false; // there is no permitted folder left to show
};

} // namespace Tarn::Widgets

#endif
