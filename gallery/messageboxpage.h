// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_MESSAGEBOXPAGE_H
#define GALLERY_MESSAGEBOXPAGE_H

#include "page.h"
#include "texts.h"

#include <QMessageBox>
#include <QWidget>
#include <functional>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace Tarn::Widgets {
class FramelessMessageBox;
}

namespace Gallery {

class PictureView;

/*! What a message box of the page shows; the numbers are rows of the page's lists. */
struct MessageOptions
{
    int call = 0;
    QMessageBox::Icon icon = QMessageBox::Question;
    int text = 0;
    int buttons = 2;
    bool informativeText = false;
    bool checkBox = false;
    bool detailedText = false;
    bool noCloseButton = false; // of a one-call function
};

/*! Choices for a message box, a picture of it, the code that makes it, and a button that opens it. */
class MessageBoxPage : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBoxPage(Appearance *appearance, QWidget *parent = nullptr);
    ~MessageBoxPage() override;

    static Page page();

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void showOutcome(QAbstractButton *button);

private:
    using Texts = std::function<QStringList()>;

    QWidget *createChoices();
    QWidget *createPreview();
    QComboBox *createList(const Texts &entries, int current, std::function<void(int)> onChanged);
    QCheckBox *createSwitch(const Text &text, bool MessageOptions::*option);

    void open();
    void openCall();
    void showOutcome(int result);
    MessageOptions optionsOfBox() const;
    void showCode();
    void refresh();

    MessageOptions m_options;
    QComboBox *m_icons = nullptr;
    QVector<QCheckBox *> m_parts; // that only a box of one's own can have
    QCheckBox *m_noCloseButton = nullptr;
    PictureView *m_preview = nullptr;
    QPlainTextEdit *m_code = nullptr;
    QLabel *m_outcome = nullptr;
};

} // namespace Gallery

#endif
