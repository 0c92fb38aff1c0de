// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELINE_H
#define TARN_WIDGETS_FRAMELINE_H

#include "tarnwidgets_export.h"

#include <QObject>
#include <memory>

class QFrame;
class QWidget;

namespace Tarn::Widgets {

class FrameLinePrivate;

/*!
 * \ingroup styles
 * \brief Makes thin separator lines whose look comes from the style sheet.
 *
 * Use it instead of a bare QFrame where one style rule is to paint all
 * separators of a kind: each line carries a dynamic property of the caller's
 * choice that a selector can name.
 *
 * \code
 * layout->addWidget(FrameLine::createHorizontalLine(QStringLiteral("isPageSeparator"), page, 1, 0, 0));
 * // QFrame[isPageSeparator="true"] { background: #383838; }
 * \endcode
 *
 * A line belongs to the parent that is given.
 */
class TARNWIDGETS_EXPORT FrameLine : public QObject
{
    Q_OBJECT

public:
    explicit FrameLine(QObject *parent = nullptr);
    ~FrameLine() override;

    /*!
     * A line \a lineWidth pixels high that takes all the width it is given. It
     * has no frame shape: without a style rule it is invisible.
     *
     * \a propertyName becomes a dynamic property with the value true. The two
     * margins have no effect: the line comes without a layout of its own.
     */
    static QFrame *createHorizontalLine(const QString &propertyName, QWidget *parent, const uint &lineWidth,
                                        const uint &crossMargin, const uint &endMargin);

    /*! A line \a lineWidth pixels wide that takes all the height it is given; it shows as QFrame::VLine
     * without a style rule. */
    static QFrame *createVerticalLine(const QString &propertyName, QWidget *parent, const uint &lineWidth,
                                      const uint &crossMargin, const uint &endMargin);

private:
    const std::unique_ptr<FrameLinePrivate> d; // null: room for state that a later version adds
};

} // namespace Tarn::Widgets

#endif
