// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelessmessagebox_p.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <QWindow>
#include <QtMath>
#include <memory>

namespace Tarn::Widgets {

namespace {

constexpr QSize SmallestBox(400, 220);
constexpr int DetailsHeight = 100;

Qt::TextInteractionFlags textInteractionFlagsOf(const QWidget *widget)
{
    const QStyle *style = widget->style();
    return Qt::TextInteractionFlags(
        style->styleHint(QStyle::SH_MessageBox_TextInteractionFlags, nullptr, widget));
}

int withoutModifiers(int key)
{
    return key & ~int(Qt::MODIFIER_MASK);
}

void setPolicy(QLabel *label, QSizePolicy::Policy horizontal, QSizePolicy::Policy vertical,
               bool heightForWidth)
{
    QSizePolicy policy(horizontal, vertical);
    policy.setHeightForWidth(heightForWidth);
    label->setSizePolicy(policy);
}

QSize roundedUp(const QSizeF &size)
{
    return QSize(qCeil(size.width()), qCeil(size.height()));
}

/* A style sheet is costly even if it is the one that is there. */
void giveStyleSheet(QWidget *widget, const QString &styleSheet)
{
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
}

/*
 * Has the layout ask for sizes again, as activating it does, but without placing anything: the sizes that the
 * box is measured with are not those that it gets.
 */
void forgetSizes(QLayout *layout)
{
    for (int i = 0; i < layout->count(); ++i) {
        if (QLayout *inner = layout->itemAt(i)->layout())
            forgetSizes(inner);
    }
    layout->invalidate();
}

QRect availableGeometryUnderCursor()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

} // namespace

// Texts

bool MessageLabel::isIgnored() const
{
    const QSizePolicy policy = sizePolicy();
    return policy.horizontalPolicy() == QSizePolicy::Ignored
        && policy.verticalPolicy() == QSizePolicy::Ignored;
}

bool MessageLabel::isMeasuredHere() const
{
    const bool plain =
        textFormat() == Qt::PlainText || (textFormat() == Qt::AutoText && !Qt::mightBeRichText(text()));
    const bool selectable =
        textInteractionFlags() & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return plain && selectable && !text().isEmpty() && frameWidth() == 0 && margin() == 0 && indent() < 0
        && minimumSize().isNull();
}

void MessageLabel::setMeasuredUnwrapped(bool unwrapped)
{
    if (isMeasuredHere()) {
        m_measuredUnwrapped = unwrapped;
        updateGeometry();
    } else {
        setWordWrap(!unwrapped);
    }
}

void MessageLabel::followText() const
{
    ensurePolished();
    if (m_measuredText == text() && m_measuredFont == font())
        return;
    m_measuredText = text();
    m_measuredFont = font();
    m_wrapped = Sizes();
    m_heights.clear();
    m_document.reset();
    m_unwrapped.hint = m_unwrapped.minimum = roundedUp(document()->size());
}

QTextDocument *MessageLabel::document() const
{
    if (!m_document) {
        m_document = std::make_unique<QTextDocument>();
        m_document->setUndoRedoEnabled(false);
        m_document->setDocumentMargin(0);
        m_document->setDefaultFont(m_measuredFont);
        m_document->setDefaultTextOption(QTextOption()); // wraps between words
        m_document->setPlainText(m_measuredText);
    }
    return m_document.get();
}

void MessageLabel::endMeasuring()
{
    m_document.reset();
    m_measuredUnwrapped = false;
}

QSize MessageLabel::measure(qreal width) const
{
    document()->setTextWidth(width);
    return roundedUp(document()->size());
}

const MessageLabel::Sizes &MessageLabel::sizes() const
{
    followText();
    if (!wordWrap() || m_measuredUnwrapped)
        return m_unwrapped;
    if (!m_wrapped.hint.isValid()) {
        document()->adjustSize();
        m_wrapped.hint = roundedUp(document()->size());
        m_wrapped.minimum =
            QSize(measure(0).width(), qMin(m_wrapped.hint.height(), m_unwrapped.hint.height()));
    }
    return m_wrapped;
}

QSize MessageLabel::sizeHint() const
{
    if (isIgnored())
        return QSize(0, 0);
    return isMeasuredHere() ? sizes().hint.grownBy(contentsMargins()) : QLabel::sizeHint();
}

QSize MessageLabel::minimumSizeHint() const
{
    if (isIgnored())
        return QSize(0, 0);
    return isMeasuredHere() ? sizes().minimum.grownBy(contentsMargins()) : QLabel::minimumSizeHint();
}

int MessageLabel::heightForWidth(int width) const
{
    if (!isMeasuredHere() || !wordWrap())
        return QLabel::heightForWidth(width);
    followText();
    const QMargins margins = contentsMargins();
    const int textWidth = qMax(0, width - margins.left() - margins.right());
    const bool fits = textWidth >= m_unwrapped.hint.width();
    int &height = m_heights[textWidth];
    if (height == 0)
        height = fits ? m_unwrapped.hint.height() : measure(textWidth).height();
    return height + margins.top() + margins.bottom();
}

// Details

void QMessageBoxDetailsText::TextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

QMessageBoxDetailsText::QMessageBoxDetailsText(QWidget *parent)
    : QWidget(parent)
    , textEdit(new TextEdit)
{
    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    textEdit->setFixedHeight(DetailsHeight);
    textEdit->setFocusPolicy(Qt::NoFocus);
    textEdit->setReadOnly(true);
    connect(textEdit, &QTextEdit::copyAvailable, this, &QMessageBoxDetailsText::textCopyAvailable);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(line);
    layout->addWidget(textEdit);
}

void QMessageBoxDetailsText::setText(const QString &text)
{
    textEdit->setPlainText(text);
}

QString QMessageBoxDetailsText::text() const
{
    return textEdit->toPlainText();
}

bool QMessageBoxDetailsText::copy()
{
    if (copyAvailable)
        textEdit->copy();
    return copyAvailable;
}

void QMessageBoxDetailsText::selectAll()
{
    textEdit->selectAll();
}

void QMessageBoxDetailsText::textCopyAvailable(bool available)
{
    copyAvailable = available;
}

DetailButton::DetailButton(QWidget *parent)
    : QPushButton(label(true), parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QString DetailButton::label(bool detailsHidden)
{
    return detailsHidden ? FramelessMessageBox::tr("Show Details...")
                         : FramelessMessageBox::tr("Hide Details...");
}

QSize DetailButton::sizeHint() const
{
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    measureLabels();
    QSize hint;
    for (const Label &measured : m_labels) {
        option.text = measured.text;
        hint =
            hint.expandedTo(style()->sizeFromContents(QStyle::CT_PushButton, &option, measured.size, this));
    }
    return hint.expandedTo(QApplication::globalStrut());
}

/* Layouts ask for the hint several times whenever the details are shown or hidden. */
void DetailButton::measureLabels() const
{
    const QFontMetrics metrics = fontMetrics();
    const bool isSameFont = metrics == m_metrics;
    m_metrics = metrics;
    for (const bool detailsHidden : {true, false}) {
        Label &measured = m_labels[detailsHidden];
        const QString text = label(detailsHidden);
        if (!isSameFont || !measured.size.isValid() || measured.text != text)
            measured = {text, metrics.size(Qt::TextShowMnemonic, text)};
    }
}

// State, layout and size

FramelessMessageBoxPrivate::FramelessMessageBoxPrivate(FramelessMessageBox *box)
    : box(box)
{
}

void FramelessMessageBoxPrivate::init(const QString &title, const QString &text)
{
    box->setMinimumSize(SmallestBox);
    box->setOKButtonVisible(false);
    box->setCancelButtonVisible(false);
    box->setOKButtonDefault(false);
    // Else QDialog counts these hidden buttons among those that take the focus and the default.
    for (QPushButton *hidden : {box->m_pOKButton, box->m_pCancelButton, box->m_pApplyButton})
        hidden->setFocusPolicy(Qt::NoFocus);

    label = new MessageLabel(box); // first among what takes the focus
    label->setObjectName(QStringLiteral("qt_msgbox_label"));
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    label->setTextInteractionFlags(textInteractionFlagsOf(box));
    label->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    label->setOpenExternalLinks(true);

    iconLabel = new QLabel(box);
    iconLabel->setObjectName(QStringLiteral("qt_msgboxex_icon_label"));
    iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    buttonBox = new QDialogButtonBox;
    buttonBox->setObjectName(QStringLiteral("qt_msgbox_buttonbox"));
    buttonBox->setCenterButtons(box->style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, box));
    connect(buttonBox, &QDialogButtonBox::clicked, box, &FramelessMessageBox::slot_buttonClicked);
    box->m_pBottomLayout->addWidget(buttonBox);

    if (!title.isEmpty() || !text.isEmpty()) {
        box->setWindowTitle(title);
        box->setText(text);
    }
    box->setModal(true);
}

bool FramelessMessageBoxPrivate::hasIcon() const
{
    return !iconLabel->pixmap(Qt::ReturnByValue).isNull();
}

void FramelessMessageBoxPrivate::setupLayout()
{
    delete box->layout();
    iconLabel->setVisible(hasIcon());

    auto *grid = new QGridLayout;
    grid->setContentsMargins(20, 10, 20, 10);
    grid->setVerticalSpacing(16);
    addTexts(grid);
    if (checkbox)
        addCheckBox(grid);
    if (detailsText)
        grid->addWidget(detailsText, grid->rowCount(), 0, 1, grid->columnCount());
    grid->setSizeConstraint(QLayout::SetNoConstraint);

    auto *layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addLayout(grid);
    layout->addStretch();
    box->setLayout(layout);

    retranslateStrings();
    updateSize();
}

void FramelessMessageBoxPrivate::addTexts(QGridLayout *grid)
{
    const bool withIcon = hasIcon();
    const int textColumn = withIcon ? 2 : 1;
    const int indent = withIcon ? 7 : 15;
    grid->addItem(new QSpacerItem(indent, 1, QSizePolicy::Fixed, QSizePolicy::Fixed), 0, textColumn - 1, 2,
                  1);
    if (!informativeLabel) {
        if (withIcon)
            grid->addWidget(iconLabel, 0, 0, 2, 1, Qt::AlignVCenter);
        grid->addWidget(label, 0, textColumn, 2, 2, Qt::AlignVCenter);
        return;
    }

    // Kept: the style sheets stay when the informative text goes.
    informativeLabel->setContentsMargins(0, 7, 0, 7);
    grid->setVerticalSpacing(2);
    if (withIcon)
        grid->addWidget(iconLabel, 0, 0, 1, 1, Qt::AlignTop);
    grid->addWidget(label, 0, textColumn, 1, 2);
    giveStyleSheet(label, QStringLiteral("font-size:16px;color:#e67007;"));
    grid->addWidget(informativeLabel, 1, textColumn, 2, 2);
    giveStyleSheet(informativeLabel, QStringLiteral("font-size:14px;"));
    grid->setContentsMargins(20, 10, 20, 24);
}

void FramelessMessageBoxPrivate::addCheckBox(QGridLayout *grid)
{
    const int textColumn = hasIcon() ? 2 : 1;
    // Kept: the text above reaches into this row, so that the two come close, or overlap.
    grid->addWidget(checkbox, informativeLabel ? 2 : 1, textColumn, 1, 1, Qt::AlignLeft);
    grid->addItem(new QSpacerItem(1, 7, QSizePolicy::Fixed, QSizePolicy::Fixed), grid->rowCount(), 0, 1, 1);
}

int FramelessMessageBoxPrivate::layoutMinimumWidth() const
{
    forgetSizes(box->layout());
    return box->layout()->totalMinimumSize().width();
}

int FramelessMessageBoxPrivate::hardWidthLimit(int screenWidth)
{
    return screenWidth <= 1024 ? screenWidth : qMin(screenWidth - 480, 1000);
}

int FramelessMessageBoxPrivate::softWidthLimit(int screenWidth)
{
    return qMin(screenWidth / 2, 400);
}

void FramelessMessageBoxPrivate::updateSize()
{
    if (!box->isVisible())
        return;
    const int screenWidth = availableGeometryUnderCursor().width();
    const int hardLimit = hardWidthLimit(screenWidth);
    const int softLimit = softWidthLimit(screenWidth);

    // Kept: the buttons have no say in the width, so that those that do not fit get narrower.
    const int width = qMax(widthForTexts(hardLimit, softLimit), qMin(widthForTitle(), hardLimit));
    forgetSizes(box->layout());
    const int height = heightForWidth(width) + 10 + box->noCentralHeight();
    box->setFixedSize(QSize(width, height).expandedTo(SmallestBox));
    box->layout()->activate(); // the size may be the former, and what is in it not
    QCoreApplication::removePostedEvents(box, QEvent::LayoutRequest);
    for (MessageLabel *measured : {label, informativeLabel.data()}) {
        if (measured)
            measured->endMeasuring();
    }
}

int FramelessMessageBoxPrivate::widthForTexts(int hardLimit, int softLimit)
{
    if (informativeLabel)
        setPolicy(informativeLabel, QSizePolicy::Ignored, QSizePolicy::Ignored, false);
    // From here on the text is wrapped, even if it was set not to be.
    if (!label->wordWrap())
        label->setWordWrap(true);
    label->setMeasuredUnwrapped(true);
    int width = layoutMinimumWidth();
    // A text that fits need not be measured wrapped, too, where it has a row of its own, which takes its
    // height for the width. Without an informative text it has two rows, which the height of its hint has a
    // say in.
    if (width > softLimit || !informativeLabel || !label->isMeasuredHere())
        label->setMeasuredUnwrapped(false);
    if (width > softLimit)
        width = qMin(qMax(softLimit, layoutMinimumWidth()), hardLimit);
    if (informativeLabel) {
        setPolicy(label, QSizePolicy::Ignored, QSizePolicy::Ignored, false);
        setPolicy(informativeLabel, QSizePolicy::Minimum, QSizePolicy::Preferred, true);
        width = qMin(qMax(width, layoutMinimumWidth()), hardLimit);
        setPolicy(label, QSizePolicy::Minimum, QSizePolicy::Preferred, label->wordWrap());
    }
    return width;
}

int FramelessMessageBoxPrivate::widthForTitle() const
{
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    return metrics.horizontalAdvance(box->windowTitle()) + 50;
}

int FramelessMessageBoxPrivate::heightForWidth(int width) const
{
    const QLayout *layout = box->layout();
    return layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                       : layout->totalMinimumSize().height();
}

void FramelessMessageBoxPrivate::retranslateStrings()
{
    if (detailsButton)
        detailsButton->setText(DetailButton::label(!detailsText || detailsText->isHidden()));
}

void FramelessMessageBoxPrivate::retranslateStandardButtons()
{
    for (const QMessageBox::StandardButton button : qAsConst(ownTextButtons))
        box->retranslateButtonUi(button);
}

void FramelessMessageBoxPrivate::followStyle()
{
    if (icon != QMessageBox::NoIcon)
        box->setIcon(icon);
    const Qt::TextInteractionFlags flags = textInteractionFlagsOf(box);
    label->setTextInteractionFlags(flags);
    if (informativeLabel)
        informativeLabel->setTextInteractionFlags(flags);
    buttonBox->setCenterButtons(box->style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, box));
}

QPixmap FramelessMessageBoxPrivate::standardIcon(QMessageBox::Icon icon, FramelessMessageBox *box)
{
    QStyle::StandardPixmap which = QStyle::SP_MessageBoxInformation;
    switch (icon) {
    case QMessageBox::Information:
        break;
    case QMessageBox::Warning:
        which = QStyle::SP_MessageBoxWarning;
        break;
    case QMessageBox::Critical:
        which = QStyle::SP_MessageBoxCritical;
        break;
    case QMessageBox::Question:
        which = QStyle::SP_MessageBoxQuestion;
        break;
    default:
        return QPixmap();
    }

    const QStyle *style = box ? box->style() : QApplication::style();
    const int size = style->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, box);
    const QIcon standard = style->standardIcon(which, nullptr, box);
    QWindow *window = box ? box->windowHandle() : nullptr;
    if (box && !window && box->nativeParentWidget())
        window = box->nativeParentWidget()->windowHandle();
    return standard.pixmap(window, QSize(size, size));
}

void FramelessMessageBoxPrivate::setPixmap(const QPixmap &pixmap)
{
    iconLabel->setPixmap(pixmap);
    icon = QMessageBox::NoIcon;
}

MessageLabel *FramelessMessageBoxPrivate::createInformativeLabel() const
{
    auto *informative = new MessageLabel;
    informative->setObjectName(QStringLiteral("qt_msgbox_informativelabel"));
    informative->setTextInteractionFlags(textInteractionFlagsOf(box));
    informative->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    informative->setOpenExternalLinks(true);
    informative->setWordWrap(true);
    return informative;
}

void FramelessMessageBoxPrivate::createDetails()
{
    if (!detailsText) {
        detailsText = new QMessageBoxDetailsText(box);
        detailsText->hide();
    }
    if (!detailsButton) {
        const bool autoAddOk = autoAddOkButton;
        detailsButton = new DetailButton(box);
        box->addButton(detailsButton, QMessageBox::ActionRole);
        autoAddOkButton = autoAddOk; // a detailed text alone does not do without the OK button
    }
}

void FramelessMessageBoxPrivate::removeDetails()
{
    if (detailsText) {
        detailsText->hide();
        detailsText->deleteLater();
        detailsText.clear();
    }
    if (detailsButton) {
        box->removeButton(detailsButton);
        detailsButton->hide();
        detailsButton->deleteLater();
        detailsButton.clear();
    }
}

void FramelessMessageBoxPrivate::toggleDetails()
{
    const bool show = detailsText->isHidden();
    detailsButton->setText(DetailButton::label(!show));
    // Else Qt squeezes the details into the former height before the box gets its new one.
    box->getMainLayout()->setEnabled(false);
    detailsText->setHidden(!show);
    box->getMainLayout()->setEnabled(true);
    updateSize();
}

// Buttons

void FramelessMessageBoxPrivate::chooseDefaultButton()
{
    // QDialog does the same, but before the box has its automatic OK.
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        const auto *push = qobject_cast<QPushButton *>(button);
        if (push && push->isDefault())
            return;
    }
    for (QWidget *next = box->nextInFocusChain(); next != box; next = next->nextInFocusChain()) {
        auto *push = qobject_cast<QPushButton *>(next);
        if (push && push->isVisibleTo(box) && push->autoDefault() && push->focusPolicy() != Qt::NoFocus) {
            push->setDefault(true);
            return;
        }
    }
}

void FramelessMessageBoxPrivate::detectEscapeButton()
{
    // Kept: the details button counts as any other, so that it and OK are two, neither of them for escaping.
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    if (escapeButton)
        detectedEscapeButton = escapeButton;
    else if (QPushButton *cancel = buttonBox->button(QDialogButtonBox::Cancel))
        detectedEscapeButton = cancel;
    else if (buttons.count() == 1)
        detectedEscapeButton = buttons.first();
    else if (QAbstractButton *reject = onlyButtonOfRole(QMessageBox::RejectRole))
        detectedEscapeButton = reject;
    else
        detectedEscapeButton = onlyButtonOfRole(QMessageBox::NoRole);
}

QAbstractButton *FramelessMessageBoxPrivate::onlyButtonOfRole(QMessageBox::ButtonRole role) const
{
    QAbstractButton *only = nullptr;
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        if (box->buttonRole(button) != role)
            continue;
        if (only)
            return nullptr;
        only = button;
    }
    return only;
}

int FramelessMessageBoxPrivate::execReturnCode(QAbstractButton *button) const
{
    if (!button)
        return -1;
    const int code = buttonBox->standardButton(button);
    return code != QDialogButtonBox::NoButton ? code : customButtonList.indexOf(button);
}

void FramelessMessageBoxPrivate::buttonClicked(QAbstractButton *button)
{
    if (detailsButton && detailsText && button == detailsButton) {
        toggleDetails();
        return;
    }
    // Whoever hears that the dialog is done may delete it, or its buttons.
    const QPointer<FramelessMessageBox> alive(box);
    clickedButton = button;
    const QPointer<QAbstractButton> clicked(button);
    box->done(execReturnCode(button));
    if (alive && clicked)
        Q_EMIT box->buttonClicked(clicked);
    if (!alive)
        return;
    if (receiverToDisconnectOnClose) {
        QObject::disconnect(box, signalToDisconnectOnClose.constData(), receiverToDisconnectOnClose,
                            memberToDisconnectOnClose.constData());
        receiverToDisconnectOnClose.clear();
    }
    signalToDisconnectOnClose.clear();
    memberToDisconnectOnClose.clear();
}

void FramelessMessageBoxPrivate::clicked(QMessageBox::StandardButton button, QMessageBox::ButtonRole)
{
    box->done(button);
}

bool FramelessMessageBoxPrivate::clickButtonByKey(const QKeyEvent *event)
{
    const int key = withoutModifiers(event->key());
    if (!key || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        const QKeySequence shortcut = button->shortcut();
        if (!shortcut.isEmpty() && withoutModifiers(shortcut[0]) == key) {
            button->animateClick(100);
            return true;
        }
    }
    return false;
}

QMessageBox::StandardButton FramelessMessageBoxPrivate::closingResult()
{
    if (autoAddOkButton)
        return QMessageBox::Ok; // which the box gets when it is shown
    detectEscapeButton();
    return detectedEscapeButton ? box->standardButton(detectedEscapeButton) : QMessageBox::Cancel;
}

QMessageBox::StandardButton FramelessMessageBoxPrivate::execAndDelete(FramelessMessageBox *box)
{
    // Whoever deletes the parent meanwhile deletes the box, which is why it is not on the stack.
    const QPointer<FramelessMessageBox> alive(box);
    const auto answer = std::make_shared<QMessageBox::StandardButton>(box->d->closingResult());
    QObject::connect(box, &QDialog::finished, box, [answer, box] {
        if (box->clickedButton())
            *answer = box->standardButton(box->clickedButton());
    });
    const int result = box->exec();
    if (!alive)
        return *answer;
    const QMessageBox::StandardButton clicked = box->standardButton(box->clickedButton());
    delete box;
    return result == -1 ? QMessageBox::Cancel : clicked;
}

} // namespace Tarn::Widgets
