// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_COLORDIALOG_H
#define TARN_WIDGETS_COLORDIALOG_H

#include "framelessdialog.h"
#include "tarnwidgets_export.h"

#include <QColor>
#include <memory>

namespace Tarn::Widgets {

class ColorDialogPrivate;

/*!
 * \ingroup colour
 * \brief A dialog to choose a colour in, with sixteen custom colours that outlive the program.
 *
 * Use it instead of QColorDialog where windows draw their own frame, or where
 * custom colours are to be kept. Colours are opaque: there is no alpha to choose.
 *
 * \code
 * const QColor color = ColorDialog::getColor(m_pen.color(), this);
 * if (color.isValid())
 *     m_pen.setColor(color);
 * \endcode
 *
 * The custom colours are read from the file customSettingCfg.info in
 * QCoreApplication::applicationDirPath() when a dialog is made, and written to it
 * when the dialog is destroyed, however it was closed. Of two dialogs alive at
 * once, the one destroyed last wins. It is an INI file; whatever else is in it
 * stays. Nothing is told about a failure: where the file cannot be read the
 * custom colours begin white, and where it cannot be written it stays as it is.
 *
 * Style selectors: isColorEditDialog, true, on the dialog; the property "class",
 * which is "Active" on the OK and Apply buttons and "NoActive" on Cancel; and
 * those of FramelessDialog. The texts are Chinese and come from the translation
 * context Tarn::Widgets::ColorDialog.
 *
 * \note The size is fixed at 630 x 525 pixels.
 * \note The result is one for the whole process, and only clicks on OK, on
 * Cancel and on the title bar's close button set it: after Escape getColor()
 * returns what it returned the time before, white at first.
 * \note The field and the strip follow a drag. A click alone does nothing there.
 */
class TARNWIDGETS_EXPORT ColorDialog : public FramelessDialog
{
    Q_OBJECT

public:
    explicit ColorDialog(QColor initial, QWidget *parent = nullptr);

    /*! Writes the custom colours to their file. */
    ~ColorDialog() override;

    /*!
     * Runs a modal dialog that begins with \a initial. Returns the chosen colour,
     * opaque, or an invalid one after Cancel or the title bar's close button.
     * \a parent may be deleted meanwhile; the dialog goes with it, which counts
     * as Escape.
     */
    static QColor getColor(const QColor &initial, QWidget *parent = nullptr);

    /*! Shows \a color in all editors. Emits nothing. */
    void setInitColor(const QColor &color);

    void reTranslateUI() override;

private:
    void initData();
    void initUI();
    void initBottomBtn();
    void initConnect();
    void addToCustomColors();
    void moveNextPos(int &row, int &column) const;

    static QColor m_selectedColor;

    const std::unique_ptr<ColorDialogPrivate> d;
};

} // namespace Tarn::Widgets

#endif
