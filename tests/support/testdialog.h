// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_TESTDIALOG_H
#define TARN_TEST_TESTDIALOG_H

#include <QTranslator>
#include <QVector>
#include <tarnwidgets/framelessdialog.h>

class QFrame;

namespace Tarn::Widgets {
class FramelessHelper;
class TitleBar;
}

namespace Tarn::Test {

/*! The title bar's buttons by index. */
enum TitleButton { Logo, Minimise, Maximise, Restore, Close };

QVector<int> visibleTitleButtons(const Widgets::TitleBar &bar);

/*! A subclass as applications write it: it uses the protected members, and retranslates its texts. */
class TestDialog : public Widgets::FramelessDialog
{
public:
    using FramelessDialog::FramelessDialog;
    ~TestDialog() override;

    using FramelessDialog::changeEvent;
    using FramelessDialog::eventFilter;
    using FramelessDialog::m_pApplyButton;
    using FramelessDialog::m_pBottomLayout;
    using FramelessDialog::m_pBottomWidget;
    using FramelessDialog::m_pCancelButton;
    using FramelessDialog::m_pMainLayout;
    using FramelessDialog::m_pOKButton;
    using FramelessDialog::m_pTitleBar;

    void reTranslateUI() override;

    int retranslations = 0;
    QString okTextThen; //!< The text of OK during the last of them.
    int paints = 0;

    /*! Both separator lines, as far as they are there, the upper one first. */
    QVector<QFrame *> separators() const;

    Widgets::FramelessHelper *helper() const;

    /*! Whether the restore or the maximise button is to be seen, also while the dialog is not on screen. */
    bool offersRestore() const;
    bool offersMaximise() const;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/*! While it lives, the language is one in which the texts of one context stand in angle brackets. */
class Brackets : public QTranslator
{
    Q_OBJECT

public:
    explicit Brackets(const char *context);
    ~Brackets() override;

    bool isEmpty() const override;
    QString translate(const char *context, const char *text, const char *disambiguation,
                      int n) const override;

private:
    const QByteArray m_context;
};

} // namespace Tarn::Test

#endif
