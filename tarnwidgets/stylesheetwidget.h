// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_STYLESHEETWIDGET_H
#define TARN_WIDGETS_STYLESHEETWIDGET_H

#include "tarnwidgets_export.h"

#include <QWidget>
#include <memory>

namespace Tarn::Widgets {

class StyleSheetWidgetPrivate;

/*!
 * \ingroup styles
 * \brief A plain widget whose background, border and border image the style sheet can paint.
 *
 * Use it, or derive from it, instead of QWidget for panels that a style sheet
 * is to decorate: a QWidget subclass of one's own ignores such rules.
 *
 * \code
 * auto *panel = new StyleSheetWidget(page);
 * panel->setObjectName(QStringLiteral("statusPanel"));
 * // #statusPanel { background: #222126; border-radius: 4px; }
 * \endcode
 *
 * It adds no selectors of its own.
 */
class TARNWIDGETS_EXPORT StyleSheetWidget : public QWidget
{
    Q_OBJECT

public:
    explicit StyleSheetWidget(QWidget *parent = nullptr);
    ~StyleSheetWidget() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const std::unique_ptr<StyleSheetWidgetPrivate> d; // null: room for state that a later version adds
};

} // namespace Tarn::Widgets

#endif
