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
};

/*! All dialogs and widgets, ours and Qt's; \a folder as for modalKinds(). */
QVector<Subject> subjects(const QString &folder);

/*! One that loses a block each time, to show that this is found. */
Subject losing();

} // namespace Tarn::Soak

#endif
