// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_PAINTWATCH_H
#define TARN_TEST_PAINTWATCH_H

#include <QObject>
#include <QRegion>

class QWidget;

namespace Tarn::Test {

/*! Keeps account of the paint events that a widget gets. */
class PaintWatch : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatch(QWidget *widget);
    ~PaintWatch() override;

    /*!
     * Shows the window of the widget, waits until the widget was painted
     * wholly and begins to count after that. False if that did not come.
     */
    bool begin();

    void reset();

    bool eventFilter(QObject *watched, QEvent *event) override;

    QRegion painted; //!< all of it together
    int times = 0;

private:
    QWidget *const m_widget;
};

} // namespace Tarn::Test

#endif
