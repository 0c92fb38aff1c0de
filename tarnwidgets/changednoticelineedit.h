// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_CHANGEDNOTICELINEEDIT_H
#define TARN_WIDGETS_CHANGEDNOTICELINEEDIT_H

#include "tarnwidgets_export.h"

#include <QLineEdit>
#include <memory>

namespace Tarn::Widgets {

class ChangedNoticeLineEditPrivate;

/*!
 * \ingroup input
 * \brief A line edit that tells a form when the user has left it.
 *
 * Use it where a value is checked or stored on leaving the field rather than on
 * every key press. QLineEdit::editingFinished() comes on Return as well and
 * stays away while the validator is not content; this notice does neither. The
 * field looks and edits exactly like a QLineEdit and adds no property, so style
 * sheet rules for QLineEdit reach it unchanged.
 *
 * \code
 * auto *name = new ChangedNoticeLineEdit(form);
 * connect(name, &ChangedNoticeLineEdit::signal_focusOut, form, &Form::checkName);
 * \endcode
 *
 * \note The notice says that focus went away, not that the text changed: ask
 * QLineEdit::isModified() when only real edits count.
 *
 * \note A form that is deleted while it is shown takes the focus away in
 * QWidget's destructor, when what the derived class has is gone already. A form
 * whose own slot hears the notice calls hide() in its destructor.
 */
class TARNWIDGETS_EXPORT ChangedNoticeLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ChangedNoticeLineEdit(QWidget *parent = nullptr);
    ~ChangedNoticeLineEdit() override;

Q_SIGNALS:
    /*!
     * Focus is about to leave, for whatever reason: a tab, a click elsewhere, a
     * popup, another window. Emitted before QLineEdit reacts, so a slot still
     * finds the selection that the user left behind. A slot may delete the field,
     * best with deleteLater(): Qt does not stand a delete at once when the focus
     * leaves for the field's own context menu, or by setEnabled(), hide() or
     * clearFocus() called on the field.
     */
    void signal_focusOut();

protected:
    void focusOutEvent(QFocusEvent *event) override;

private:
    const std::unique_ptr<ChangedNoticeLineEditPrivate> d; // null: room for state that a later version adds
};

} // namespace Tarn::Widgets

#endif
