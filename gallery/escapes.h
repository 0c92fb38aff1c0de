// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_ESCAPES_H
#define GALLERY_ESCAPES_H

#include <QString>
#include <QTemporaryDir>
#include <QVector>

namespace Gallery {

/*!
 * \brief Folders and files for the file dialogs, deleted with this object.
 *
 * recipes and stick are meant for the user; private, and recipes-old beside
 * recipes, are not.
 */
class SampleTree
{
public:
    SampleTree();

    /*! The absolute path of \a name. */
    QString at(const QString &name) const;

    /*! Whether \a path, with its links followed, is in recipes or stick. */
    bool isInside(const QString &path) const;

private:
    QTemporaryDir m_directory;
};

/*! A way in which a user may try to leave the limited folder. */
struct Escape
{
    QString title;
    QString start; //!< the folder in which the dialog opens
    QString text; //!< what is typed and accepted; without it the parent button is clicked
    QString limit; //!< the limited folder
};

QVector<Escape> escapes(const SampleTree &tree);

/*! Tries \a escape with a dialog that is not seen. Returns whether a folder or a result outside was reached.
 */
bool getsOut(const Escape &escape, const SampleTree &tree, bool strict);

} // namespace Gallery

#endif
