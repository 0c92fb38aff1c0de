// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_TRAIL_H
#define TARN_STORM_TRAIL_H

#include <QByteArray>
#include <QString>

namespace Tarn::Storm {

/*!
 * Where the storm is, in a file that outlives the process however it ends, and an alarm that ends it when it
 * has stayed there too long.
 */
class Trail
{
public:
    explicit Trail(const QString &path);
    ~Trail();

    void enter(const QString &scene);
    void mark(int number);

private:
    Q_DISABLE_COPY(Trail)

    void *m_memory = nullptr;
    QByteArray m_scene;
    int m_marks = 0;
};

} // namespace Tarn::Storm

#endif
