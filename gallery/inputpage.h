// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_INPUTPAGE_H
#define GALLERY_INPUTPAGE_H

#include "page.h"
#include "texts.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace Tarn::Widgets {
class IPLineEdit;
}

namespace Gallery {

/*! An IPv4 editor and a change-notice line edit, all that can be set on them, and a log of what they report.
 */
class InputPage : public QWidget
{
    Q_OBJECT

public:
    explicit InputPage(QWidget *parent = nullptr);
    ~InputPage() override;

    static Page page();

private:
    QWidget *createAddressGroup();
    QWidget *createAddressState();
    QWidget *createAddressActions();
    QWidget *createNoticeGroup();
    QWidget *createLog();

    void setAddress();
    void askWhetherModified();
    void refresh();
    void log(const Text &line);

    Tarn::Widgets::IPLineEdit *m_address = nullptr;
    QLineEdit *m_text = nullptr;
    QLabel *m_value = nullptr;
    QLabel *m_acceptable = nullptr;
    QLabel *m_valid = nullptr;
    QListWidget *m_log = nullptr;
};

} // namespace Gallery

#endif
