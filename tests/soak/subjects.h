// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_SOAK_SUBJECTS_H
#define TARN_SOAK_SUBJECTS_H

#include <QString>
#include <QVector>
#include <functional>

namespace Tarn::Soak {

/*! Something that a program does again and again. */
struct Subject
{
    QString name;
    bool isOurs; //!< Else it is Qt's, for comparison.
    std::function<void()> round; //!< Makes it, shows it, uses it a little and gives it up.
    bool hasThread = false; //!< So that what it has of the heap comes and goes, as a file dialog's.
};

/*! All dialogs and widgets, ours and Qt's; \a folder as for modalKinds(). */
QVector<Subject> subjects(const QString &folder);

/*! Some that lose a block, or keep a pointer in a list, each time, to show that this is found. */
QVector<Subject> leaking();

} // namespace Tarn::Soak

#endif
