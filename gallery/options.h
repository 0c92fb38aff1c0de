// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_OPTIONS_H
#define GALLERY_OPTIONS_H

#include <QString>
#include <QStringList>

namespace Gallery {

/*! What the command line asks for. */
struct Options
{
    QString page; //!< empty: the first, or all in picture mode
    QString theme; //!< likewise
    QString language; //!< empty: the system's
    QString picturesDirectory; //!< empty: a window is opened
};

/*!
 * Whether the program ends without opening a window, and so needs no display.
 * To be asked before the application object exists.
 */
bool runsWithoutDisplay(int argc, char **argv);

/*!
 * Reads the command line. Help and version end the program, and so do, with a
 * message, options and theme names that do not exist. Pages are not checked.
 */
Options parseOptions(const QStringList &arguments);

/*! Ends the program with a message about its command line. */
[[noreturn]] void failOnCommandLine(const QString &message);

} // namespace Gallery

#endif
