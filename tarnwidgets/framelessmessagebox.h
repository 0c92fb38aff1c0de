// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_FRAMELESSMESSAGEBOX_H
#define TARN_WIDGETS_FRAMELESSMESSAGEBOX_H

#include "framelessdialog.h"
#include "tarnwidgets_export.h"

#include <QMessageBox>
#include <memory>

class QAbstractButton;
class QCheckBox;

namespace Tarn::Widgets {

class FramelessMessageBoxPrivate;

/*!
 * \ingroup messagebox
 * \brief A message box in a FramelessDialog.
 *
 * Whoever knows QMessageBox knows this one: it has the same enumerations,
 * result codes, properties, default and escape button rules, check box and
 * collapsible details. Use it where the application's other dialogs are
 * frameless ones. Code moves over by changing the class name.
 *
 * \code
 * const auto answer = FramelessMessageBox::question(this, tr("Quit"), tr("Save the changes?"));
 * if (answer == QMessageBox::Yes)
 *     save();
 * \endcode
 *
 * The box owns its buttons and its check box. It is modal and sizes itself, to
 * 400 x 220 pixels at least, whenever its content changes while it is visible.
 *
 * Style selectors: those of FramelessDialog, and the object names
 * qt_msgbox_label, qt_msgboxex_icon_label, qt_msgbox_buttonbox and
 * qt_msgbox_informativelabel.
 *
 * \note While there is an informative text, the main text is orange and 16
 * pixels high, and it stays so when the informative text goes.
 * \note A box in which no button can be taken for the escape button cannot be
 * closed by Escape, and its close button is hidden.
 */
class TARNWIDGETS_EXPORT FramelessMessageBox : public FramelessDialog
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QMessageBox::Icon icon READ icon WRITE setIcon)
    Q_PROPERTY(QPixmap iconPixmap READ iconPixmap WRITE setIconPixmap)
    Q_PROPERTY(Qt::TextFormat textFormat READ textFormat WRITE setTextFormat)
    Q_PROPERTY(QMessageBox::StandardButtons standardButtons READ standardButtons WRITE setStandardButtons)
    Q_PROPERTY(QString detailedText READ detailedText WRITE setDetailedText)
    Q_PROPERTY(QString informativeText READ informativeText WRITE setInformativeText)
    Q_PROPERTY(
        Qt::TextInteractionFlags textInteractionFlags READ textInteractionFlags WRITE setTextInteractionFlags)

public:
    // QMessageBox's names, so that FramelessMessageBox::Yes means the same as QMessageBox::Yes.
    using Icon = QMessageBox::Icon;
    using ButtonRole = QMessageBox::ButtonRole;
    using StandardButton = QMessageBox::StandardButton;
    using StandardButtons = QMessageBox::StandardButtons;

    static constexpr Icon NoIcon = QMessageBox::NoIcon;
    static constexpr Icon Information = QMessageBox::Information;
    static constexpr Icon Warning = QMessageBox::Warning;
    static constexpr Icon Critical = QMessageBox::Critical;
    static constexpr Icon Question = QMessageBox::Question;

    static constexpr ButtonRole InvalidRole = QMessageBox::InvalidRole;
    static constexpr ButtonRole AcceptRole = QMessageBox::AcceptRole;
    static constexpr ButtonRole RejectRole = QMessageBox::RejectRole;
    static constexpr ButtonRole DestructiveRole = QMessageBox::DestructiveRole;
    static constexpr ButtonRole ActionRole = QMessageBox::ActionRole;
    static constexpr ButtonRole HelpRole = QMessageBox::HelpRole;
    static constexpr ButtonRole YesRole = QMessageBox::YesRole;
    static constexpr ButtonRole NoRole = QMessageBox::NoRole;
    static constexpr ButtonRole ResetRole = QMessageBox::ResetRole;
    static constexpr ButtonRole ApplyRole = QMessageBox::ApplyRole;
    static constexpr ButtonRole NRoles = QMessageBox::NRoles;

    static constexpr StandardButton NoButton = QMessageBox::NoButton;
    static constexpr StandardButton Ok = QMessageBox::Ok;
    static constexpr StandardButton Save = QMessageBox::Save;
    static constexpr StandardButton SaveAll = QMessageBox::SaveAll;
    static constexpr StandardButton Open = QMessageBox::Open;
    static constexpr StandardButton Yes = QMessageBox::Yes;
    static constexpr StandardButton YesToAll = QMessageBox::YesToAll;
    static constexpr StandardButton No = QMessageBox::No;
    static constexpr StandardButton NoToAll = QMessageBox::NoToAll;
    static constexpr StandardButton Abort = QMessageBox::Abort;
    static constexpr StandardButton Retry = QMessageBox::Retry;
    static constexpr StandardButton Ignore = QMessageBox::Ignore;
    static constexpr StandardButton Close = QMessageBox::Close;
    static constexpr StandardButton Cancel = QMessageBox::Cancel;
    static constexpr StandardButton Discard = QMessageBox::Discard;
    static constexpr StandardButton Help = QMessageBox::Help;
    static constexpr StandardButton Apply = QMessageBox::Apply;
    static constexpr StandardButton Reset = QMessageBox::Reset;
    static constexpr StandardButton RestoreDefaults = QMessageBox::RestoreDefaults;
    static constexpr StandardButton FirstButton = QMessageBox::FirstButton;
    static constexpr StandardButton LastButton = QMessageBox::LastButton;

    /*! An empty box; it gets an OK button when it is shown without any. */
    explicit FramelessMessageBox(QWidget *parent = nullptr);

    /*! \a f is taken together with the flags of a frameless dialog and Qt::X11BypassWindowManagerHint. */
    FramelessMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons = QMessageBox::NoButton,
                        QWidget *parent = nullptr,
                        Qt::WindowFlags f = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    ~FramelessMessageBox() override;

    QString text() const;
    void setText(const QString &text);

    QMessageBox::Icon icon() const;

    /*! Shows the style's icon of that kind; unknown values show none. */
    void setIcon(QMessageBox::Icon icon);

    QPixmap iconPixmap() const;

    /*! Shows a picture of its own; icon() is NoIcon from then on. */
    void setIconPixmap(const QPixmap &pixmap);

    Qt::TextFormat textFormat() const;
    void setTextFormat(Qt::TextFormat format);

    /*! What the mouse may do with the main text. */
    Qt::TextInteractionFlags textInteractionFlags() const;
    void setTextInteractionFlags(Qt::TextInteractionFlags flags);

    /*! A second, smaller text; an empty one removes it. */
    QString informativeText() const;
    void setInformativeText(const QString &text);

    /*! A plain text that a button of its own, "Show Details...", opens and closes; an empty one removes both.
     */
    QString detailedText() const;
    void setDetailedText(const QString &text);

    /*! The box takes ownership and deletes the former check box. Null removes it. */
    void setCheckBox(QCheckBox *checkBox);
    QCheckBox *checkBox() const;

    void setWindowTitle(const QString &title); //!< \note Hides QWidget::setWindowTitle().

    /*!
     * \note Hides QWidget::setWindowModality(). The window flags become
     * Qt::Sheet (window modal, with a parent) or Qt::Dialog: from here on the
     * window manager decorates the box.
     */
    void setWindowModality(Qt::WindowModality modality);

    /*!
     * The box takes ownership, also where \a role is unknown and the button is
     * not shown. Null is ignored; a button that is already there moves to the
     * end. Take a button out of another box before it is added here.
     */
    void addButton(QAbstractButton *button, QMessageBox::ButtonRole role);

    /*! A new button, owned by the box. Its result code is its place among the buttons that were added with a
     * role. */
    QPushButton *addButton(const QString &text, QMessageBox::ButtonRole role);

    /*! A new standard button with the box's own text for it, owned by the box; null for unknown values. */
    QPushButton *addButton(QMessageBox::StandardButton button);

    /*! Takes a button out without deleting it; it has no parent afterwards. Buttons of others are ignored. */
    void removeButton(QAbstractButton *button);

    QMessageBox::StandardButtons standardButtons() const;

    /*! Replaces all standard buttons, deleting the former ones. These have the texts that Qt gives them. */
    void setStandardButtons(QMessageBox::StandardButtons buttons);

    QMessageBox::StandardButton standardButton(QAbstractButton *button) const;
    QAbstractButton *button(QMessageBox::StandardButton which) const;
    QList<QAbstractButton *> buttons() const;
    QMessageBox::ButtonRole buttonRole(QAbstractButton *button) const;

    /*! Sets the text of a standard button in the present language. RestoreDefaults keeps Qt's. */
    void retranslateButtonUi(QMessageBox::StandardButton button);

    /*! The button that Return clicks. Buttons that are not the box's are ignored. */
    QPushButton *defaultButton() const;
    void setDefaultButton(QPushButton *button);
    void setDefaultButton(QMessageBox::StandardButton button);

    /*! The button that Escape clicks and closing gives, as set here; null if that is left to the box. */
    QAbstractButton *escapeButton() const;
    void setEscapeButton(QAbstractButton *button);
    void setEscapeButton(QMessageBox::StandardButton button);

    /*! The button that ended the dialog, or null. */
    QAbstractButton *clickedButton() const;

    using FramelessDialog::open;

    /*!
     * Shows the box and connects buttonClicked(), or finished(int) if the slot
     * takes no pointer, to \a member of \a receiver until a button is clicked.
     */
    void open(QObject *receiver, const char *member);

    /*!
     * The one-call functions show a box and return the button that ended it,
     * also when \a parent is deleted meanwhile: they return then what closing
     * the box returns, the escape button, or Cancel if there is none. When the
     * program is told to quit meanwhile, they return NoButton, as QMessageBox's
     * do. If no \a defaultButton is named, the first button with the accept role
     * is it.
     */
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::StandardButtons(QMessageBox::Yes
                                                                                 | QMessageBox::No),
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    /*!
     * The same for a box that carries the dynamic property \a propertyName, for
     * the style sheet, unless that is null, and is placed in the middle of
     * \a parent's size, counted from the screen's origin. Without its close
     * button it ends by its buttons and by Escape.
     */
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text, char *propertyName,
                bool propertyValue, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
                bool closeButtonVisible = true);
    static QMessageBox::StandardButton question(
        QWidget *parent, const QString &title, const QString &text, char *propertyName, bool propertyValue,
        QMessageBox::StandardButtons buttons = QMessageBox::StandardButtons(QMessageBox::Yes
                                                                            | QMessageBox::No),
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton, bool closeButtonVisible = true);
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text, char *propertyName,
            bool propertyValue, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
            bool closeButtonVisible = true);
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text, char *propertyName,
             bool propertyValue, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton,
             bool closeButtonVisible = true);

    /*! Shows \a text with the application's icon until it is closed. */
    static void about(QWidget *parent, const QString &title, const QString &text);

    /*! Tells about Qt; an empty \a title means "About Qt". */
    static void aboutQt(QWidget *parent, const QString &title = QString());

Q_SIGNALS:
    /*! A button ended the dialog; finished(int) came before. The details button does not count. */
    void buttonClicked(QAbstractButton *button);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slot_buttonClicked(QAbstractButton *button);
    void slot_clicked(QMessageBox::StandardButton button, QMessageBox::ButtonRole role);

private:
    friend class FramelessMessageBoxPrivate;

    const std::unique_ptr<FramelessMessageBoxPrivate> d;
};

} // namespace Tarn::Widgets

#endif
