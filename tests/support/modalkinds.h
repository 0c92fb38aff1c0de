// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_MODALKINDS_H
#define TARN_TEST_MODALKINDS_H

#include <QString>
#include <QVector>
#include <functional>

class QWidget;

namespace Tarn::Test {

/*! One way to ask the user something and wait for the answer. */
struct ModalKind
{
    const char *name;

    /*! Asks, and returns the answer as a text. */
    std::function<QString(QWidget *parent)> run;

    /*! Gives the answer, as a user does who accepts. */
    std::function<void(QWidget *dialog)> accept;

    QString accepted; //!< What run() returns then.
    QString closed; //!< What it returns when the dialog is closed; null if that is the last colour chosen.
    QString orphaned; //!< What it returns when the dialog is deleted with its parent; null likewise.
    QString interrupted; //!< What it returns when the program quits; null likewise.

    /*! Whether the dialog stays with its parent until that is deleted. */
    bool isLeftToParent = false;
};

/*! Every one-call function and every class of dialog; \a folder has a file "file.txt". */
QVector<ModalKind> modalKinds(const QString &folder);

} // namespace Tarn::Test

#endif
