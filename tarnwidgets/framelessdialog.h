// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELESSDIALOG_H
#define TARN_WIDGETS_FRAMELESSDIALOG_H

#include "tarnwidgets_export.h"

#include <QColor>
#include <QDialog>
#include <memory>

class QAction;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace Tarn::Widgets {

class FramelessDialogPrivate;
class TitleBar;

/*!
 * \ingroup frameless
 * \brief A dialog that draws its own title bar and border, with OK, Cancel and Apply at the bottom.
 *
 * Use it, or derive from it, instead of QDialog where the window manager's frame
 * is not wanted. The user drags it by the title and, once
 * setDialogResizable(true) was called, resizes it by its edges. A new dialog
 * shows the logo, the title and the close button, "OK" and "Cancel".
 *
 * \code
 * FramelessDialog dialog(this);
 * dialog.setWindowTitle(tr("Rename"));
 * auto *form = new QFormLayout(dialog.getContentHolder());
 * form->addRow(tr("Name:"), nameEdit);
 * if (dialog.exec() == QDialog::Accepted)
 *     rename(nameEdit->text());
 * \endcode
 *
 * Content goes into the content holder or comes as a layout by setLayout(); the
 * dialog owns both. The dialog is never larger than the primary screen's
 * available area.
 *
 * Style selectors: isFramelessDialog, isFramelessDialogTitleBar,
 * isFramelessDialogBottomWidget and, on the separator lines,
 * isBackgroundSeparator, all true, and those of TitleBar. Background and border
 * are not the style sheet's: they are painted in the class-wide colours below.
 *
 * \note The dialog bypasses the window manager. Where the platform therefore
 * leaves it where it is, maximising and full screen are done by the dialog
 * itself; minimising has no effect on X11.
 * \note The title is the title bar's. It reaches screen readers, but
 * QWidget::windowTitle(), called through a base class pointer, does not know it.
 */
class TARNWIDGETS_EXPORT FramelessDialog : public QDialog
{
    Q_OBJECT

public:
    static QColor m_defaultBackgroundColor; //!< The ground of every dialog, #454545.
    static QColor m_defaultBorderColor; //!< The one-pixel border of every dialog, #383838.
    static QColor m_defaultSpecialBackgroungColor; //!< (sic) #222126, for applications.
    static QColor m_defaultNormalBackgroungColor; //!< (sic) #383A3F, for applications.

    /*! \a flags are taken together with Qt::BypassWindowManagerHint and Qt::FramelessWindowHint. */
    explicit FramelessDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~FramelessDialog() override;

    /*!
     * A plain widget in the content area, made on the first call and owned by
     * the dialog. Give it a layout. Called after setLayout(), it comes above
     * that layout.
     */
    QWidget *getContentHolder();

    /*!
     * Puts \a layout into the content area; the dialog owns it. Its left and
     * right margins grow by one pixel each, to keep clear of the border. To
     * replace a layout, delete the old one first. Null is ignored.
     *
     * \note Hides QWidget::setLayout(). Construct the layout without a parent:
     * with the dialog as its parent, Qt warns that the place is taken.
     */
    void setLayout(QLayout *layout);

    /*! The layout given to setLayout(), else the content holder's, else null. \note Hides QWidget::layout().
     */
    QLayout *layout() const;

    /*! Title, upper line, content, lower line, bottom bar: the layout of the whole dialog. */
    QVBoxLayout *getMainLayout() const;

    /*! The height in pixels that the dialog needs besides its content. */
    int noCentralHeight() const;

    void setWindowTitle(const QString &title); //!< \note Hides QWidget::setWindowTitle().
    QString windowTitle() const;
    void setWindowTitleAlignment(Qt::Alignment alignment); //!< Centred at the start.
    void
    setWindowIcon(const QIcon &icon); //!< Also the title bar's logo. \note Hides QWidget::setWindowIcon().
    QIcon windowIcon() const;

    /*! These three do what the functions of the same names in TitleBar do. */
    void setTitleButtonIcon(const int &index, const QIcon &icon);
    void appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize);
    void insertExtendTitleButton(int index, QAction *action, QSize buttonSize, QSize iconSize);

    void setMinButtonVisible(bool visible);

    /*!
     * Shows the maximise or the restore button, whichever the state asks for,
     * or hides both. Hiding them also calls setDialogResizable(false); showing
     * them does not make the dialog resizable again.
     */
    void setMaxButtonVisible(bool visible);
    void setCloseButtonVisible(bool visible);

    /*! Whether the close button is on screen now, so false while the dialog is not. */
    bool getCloseButtonVisible() const;

    void setOKButtonVisible(bool visible);
    void setCancelButtonVisible(bool visible);
    void setApplyButtonVisible(bool visible); //!< Hidden at the start; connect it yourself.
    void setOKButtonDefault(bool isDefault);

    /*! Shows or hides the bottom buttons together with the line above them. */
    void setBottomBarVisible(bool visible);

    /*! The height in pixels of both separator lines; 2 at the start. */
    void setHorizontalLineHeight(int height);

    void setDialogMovable(bool movable); //!< Whether dragging the title moves the dialog; on at the start.
    void setDialogtMovable(bool movable); //!< (sic) The same as setDialogMovable().
    void
    setDialogResizable(bool resizable); //!< Whether dragging an edge resizes the dialog; off at the start.

    /*! As FramelessHelper::setRubberBandOnMove() and setRubberBandOnResize(). */
    void setRubberBandOnMove(bool on);
    void setRubberBandOnResize(bool on);

    /*! Called when the language changes; subclasses set their texts again. */
    virtual void reTranslateUI();

    /*! (sic) Restores a maximised dialog and maximises any other. */
    void swithMaxNormal();

public Q_SLOTS:
    /*!
     * \note The five hide QWidget's functions of the same names. show(),
     * showMaximized() and showNormal() also set the title bar's buttons.
     */
    void show();
    void showMinimized();
    void showMaximized();
    void showFullScreen();
    void showNormal();

    void open() override;
    int exec() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! Paints ground and border; every paint does this. */
    void drawSolidBorder(QPaintEvent *event);

    /*! Paints a ground inset by 10 pixels with a soft shadow around it, for subclasses that want one. */
    void drawShadowBorder(QPaintEvent *event);

    TitleBar *m_pTitleBar = nullptr;
    QVBoxLayout *m_pMainLayout = nullptr;
    QHBoxLayout *m_pBottomLayout = nullptr; //!< A stretch, then the three buttons.
    QPushButton *m_pOKButton = nullptr;
    QPushButton *m_pCancelButton = nullptr;
    QPushButton *m_pApplyButton = nullptr;
    QWidget *m_pBottomWidget = nullptr;

private:
    void createWidgets();
    void createConnects();
    void createBottomWidget();
    void createMainLayout();
    void retranslateButtons();

    const std::unique_ptr<FramelessDialogPrivate> d;
};

} // namespace Tarn::Widgets

#endif
