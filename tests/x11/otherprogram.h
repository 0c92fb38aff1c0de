// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_OTHERPROGRAM_H
#define TARN_TEST_OTHERPROGRAM_H

#include <QProcess>
#include <QRect>
#include <QWindow>

namespace Tarn::Test {

/*!
 * A program of somebody else's on the same screen: one plain window that takes
 * the keyboard when it is clicked. It ends with this object.
 */
class OtherProgram
{
public:
    explicit OtherProgram(const QRect &geometry);
    ~OtherProgram();

    /*! Returns once the window is on the screen; false if it does not come. */
    bool waitForWindow();
    WId window() const;

private:
    Q_DISABLE_COPY(OtherProgram)

    QProcess m_process;
    WId m_window = 0;
};

} // namespace Tarn::Test

#endif
