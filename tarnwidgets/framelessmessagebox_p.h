// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API: state, layout and size of a FramelessMessageBox, apart so that they can be tested by
// themselves.

#ifndef TARN_WIDGETS_FRAMELESSMESSAGEBOX_P_H
#define TARN_WIDGETS_FRAMELESSMESSAGEBOX_P_H

#include "framelessmessagebox.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QHash>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <QTextEdit>
#include <array>
#include <memory>

class QDialogButtonBox;
class QGridLayout;

namespace Tarn::Widgets {

/*!
 * A label that answers as a QLabel does, but measures a plain text only once: for each answer QLabel lays out
 * a selectable text up to a dozen times.
 */
class MessageLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    /*! Whether the text is one that is measured here, and not by QLabel. */
    bool isMeasuredHere() const;

    /*!
     * Has layouts ask for the sizes of the text unwrapped, or wrapped again. What is shown stays wrapped, and
     * need not be laid out anew.
     */
    void setMeasuredUnwrapped(bool unwrapped);

    /*!
     * Frees what the text is measured with. It is measured wrapped again, but layouts are not told, and the
     * sizes that are known stay known.
     */
    void endMeasuring();

private:
    /*! The sizes of a text, without the contents margins. */
    struct Sizes
    {
        QSize hint;
        QSize minimum;
    };

    bool isIgnored() const; // layouts ask, and have no use for the answer
    void followText() const;
    QTextDocument *document() const;
    QSize measure(qreal width) const;
    const Sizes &sizes() const;

    bool m_measuredUnwrapped = false;
    mutable std::unique_ptr<QTextDocument> m_document; // while measuring
    mutable QString m_measuredText;
    mutable QFont m_measuredFont;
    mutable Sizes m_unwrapped;
    mutable Sizes m_wrapped;
    mutable QHash<int, int> m_heights; // by width, wrapped
};

/*! The area that shows the detailed text. */
class QMessageBoxDetailsText : public QWidget
{
    Q_OBJECT

public:
    class TextEdit : public QTextEdit
    {
    public:
        using QTextEdit::QTextEdit;

    protected:
        void contextMenuEvent(QContextMenuEvent *event) override;
    };

    explicit QMessageBoxDetailsText(QWidget *parent);

    void setText(const QString &text);
    QString text() const;

    /*! Copies the selection if there is one; false if not. */
    bool copy();
    void selectAll();

private Q_SLOTS:
    void textCopyAvailable(bool available);

private:
    TextEdit *textEdit;
    bool copyAvailable = false;
};

/*! The button of the details, wide enough for both of its texts. */
class DetailButton : public QPushButton
{
public:
    explicit DetailButton(QWidget *parent);

    static QString label(bool detailsHidden);
    QSize sizeHint() const override;

private:
    struct Label
    {
        QString text;
        QSize size;
    };

    void measureLabels() const;

    mutable std::array<Label, 2> m_labels;
    mutable QFontMetrics m_metrics = QFontMetrics(QFont()); // with which they are measured
};

class FramelessMessageBoxPrivate : public QObject
{
public:
    explicit FramelessMessageBoxPrivate(FramelessMessageBox *box);

    void init(const QString &title, const QString &text);
    void setupLayout();
    void updateSize();

    /*! The width that no text makes a box exceed, and the one up to which a text is not wrapped. */
    static int hardWidthLimit(int screenWidth);
    static int softWidthLimit(int screenWidth);

    int layoutMinimumWidth() const;
    void retranslateStrings();
    void retranslateStandardButtons();
    void followStyle();

    static QPixmap standardIcon(QMessageBox::Icon icon, FramelessMessageBox *box);
    void setPixmap(const QPixmap &pixmap);

    void createDetails();
    void removeDetails();
    void toggleDetails();
    MessageLabel *createInformativeLabel() const;

    void chooseDefaultButton();
    void detectEscapeButton();
    QAbstractButton *onlyButtonOfRole(QMessageBox::ButtonRole role) const;
    int execReturnCode(QAbstractButton *button) const;
    void buttonClicked(QAbstractButton *button);
    void clicked(QMessageBox::StandardButton button, QMessageBox::ButtonRole role);
    bool clickButtonByKey(const QKeyEvent *event);

    /*! What closing the box gives, before it is shown. */
    QMessageBox::StandardButton closingResult();

    static QMessageBox::StandardButton execAndDelete(FramelessMessageBox *box);

    FramelessMessageBox *const box;
    MessageLabel *label = nullptr;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QLabel *iconLabel = nullptr;
    QDialogButtonBox *buttonBox = nullptr;
    QList<QPointer<QAbstractButton>> customButtonList;
    QPointer<QAbstractButton> escapeButton;
    QPointer<QPushButton> defaultButton;
    QPointer<QCheckBox> checkbox;
    QPointer<QAbstractButton> clickedButton;
    QPointer<DetailButton> detailsButton;
    QPointer<QMessageBoxDetailsText> detailsText;
    bool autoAddOkButton = true;
    QPointer<QAbstractButton> detectedEscapeButton;
    QPointer<MessageLabel> informativeLabel;
    QPointer<QObject> receiverToDisconnectOnClose;
    QByteArray memberToDisconnectOnClose;
    QByteArray signalToDisconnectOnClose;
    QList<QMessageBox::StandardButton> ownTextButtons; // those that do not show Qt's text

private:
    bool hasIcon() const;
    void addTexts(QGridLayout *grid);
    void addCheckBox(QGridLayout *grid);
    int widthForTexts(int hardLimit, int softLimit);
    int widthForTitle() const;
    int heightForWidth(int width) const;
};

} // namespace Tarn::Widgets

#endif
