// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelessmessagebox.h"

#include "framelessmessagebox_p.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <cstring>

namespace Tarn::Widgets {

namespace {

struct ButtonText
{
    QMessageBox::StandardButton button;
    const char *text;
};

// RestoreDefaults is not among them: it keeps the text that QDialogButtonBox gives it.
constexpr ButtonText ButtonTexts[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "OK")},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "&Save")},
    {QMessageBox::SaveAll, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Save All")},
    {QMessageBox::Open, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Open")},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "&Yes")},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Yes to &All")},
    {QMessageBox::No, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "&No")},
    {QMessageBox::NoToAll, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "N&o to All")},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Abort")},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Retry")},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Ignore")},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Close")},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "&Cancel")},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Discard")},
    {QMessageBox::Help, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Help")},
    {QMessageBox::Apply, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Apply")},
    {QMessageBox::Reset, QT_TRANSLATE_NOOP("Tarn::Widgets::FramelessMessageBox", "Reset")},
};

void wrapWordsOfRichText(QLabel *label)
{
    const Qt::TextFormat format = label->textFormat();
    const bool wraps =
        format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(label->text()));
    if (label->wordWrap() != wraps)
        label->setWordWrap(wraps);
}

QDialogButtonBox::StandardButton toButtonBox(QMessageBox::StandardButton button)
{
    return QDialogButtonBox::StandardButton(button); // the numbers are the same
}

} // namespace

// The box

FramelessMessageBox::FramelessMessageBox(QWidget *parent)
    : FramelessDialog(parent,
                      Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowCloseButtonHint)
    , d(std::make_unique<FramelessMessageBoxPrivate>(this))
{
    d->init(QString(), QString());
    d->setupLayout();
}

FramelessMessageBox::FramelessMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                                         QMessageBox::StandardButtons buttons, QWidget *parent,
                                         Qt::WindowFlags f)
    : FramelessDialog(parent,
                      f | Qt::X11BypassWindowManagerHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                          | Qt::WindowCloseButtonHint)
    , d(std::make_unique<FramelessMessageBoxPrivate>(this))
{
    d->init(title, text);
    setIcon(icon);
    if (buttons)
        setStandardButtons(buttons);
}

FramelessMessageBox::~FramelessMessageBox() = default;

QString FramelessMessageBox::text() const
{
    return d->label->text();
}

void FramelessMessageBox::setText(const QString &text)
{
    d->label->setText(text);
    wrapWordsOfRichText(d->label);
    d->updateSize();
}

QMessageBox::Icon FramelessMessageBox::icon() const
{
    return d->icon;
}

void FramelessMessageBox::setIcon(QMessageBox::Icon icon)
{
    setIconPixmap(FramelessMessageBoxPrivate::standardIcon(icon, this));
    d->icon = icon;
}

QPixmap FramelessMessageBox::iconPixmap() const
{
    return d->iconLabel->pixmap(Qt::ReturnByValue);
}

void FramelessMessageBox::setIconPixmap(const QPixmap &pixmap)
{
    d->setPixmap(pixmap);
    d->setupLayout();
}

Qt::TextFormat FramelessMessageBox::textFormat() const
{
    return d->label->textFormat();
}

void FramelessMessageBox::setTextFormat(Qt::TextFormat format)
{
    d->label->setTextFormat(format);
    wrapWordsOfRichText(d->label);
    d->updateSize();
}

Qt::TextInteractionFlags FramelessMessageBox::textInteractionFlags() const
{
    return d->label->textInteractionFlags();
}

void FramelessMessageBox::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    d->label->setTextInteractionFlags(flags);
}

QString FramelessMessageBox::informativeText() const
{
    return d->informativeLabel ? d->informativeLabel->text() : QString();
}

void FramelessMessageBox::setInformativeText(const QString &text)
{
    if (!text.isEmpty()) {
        if (!d->informativeLabel)
            d->informativeLabel = d->createInformativeLabel();
        d->informativeLabel->setText(text);
    } else if (d->informativeLabel) {
        d->informativeLabel->hide();
        d->informativeLabel->deleteLater();
        d->informativeLabel.clear();
    }
    d->setupLayout();
}

QString FramelessMessageBox::detailedText() const
{
    return d->detailsText ? d->detailsText->text() : QString();
}

void FramelessMessageBox::setDetailedText(const QString &text)
{
    if (text.isEmpty()) {
        d->removeDetails();
    } else {
        d->createDetails();
        d->detailsText->setText(text);
    }
    d->setupLayout();
}

void FramelessMessageBox::setCheckBox(QCheckBox *checkBox)
{
    if (checkBox == d->checkbox)
        return;
    if (QCheckBox *former = d->checkbox) {
        former->hide();
        layout()->removeWidget(former);
        if (former->parentWidget() == this) {
            former->setParent(nullptr);
            former->deleteLater();
        }
    }
    d->checkbox = checkBox;
    if (checkBox) {
        QSizePolicy policy = checkBox->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::MinimumExpanding);
        checkBox->setSizePolicy(policy);
    }
    d->setupLayout();
}

QCheckBox *FramelessMessageBox::checkBox() const
{
    return d->checkbox;
}

void FramelessMessageBox::setWindowTitle(const QString &title)
{
    FramelessDialog::setWindowTitle(title);
}

void FramelessMessageBox::setWindowModality(Qt::WindowModality modality)
{
    FramelessDialog::setWindowModality(modality);
    // Kept: these flags take the place of all others.
    const bool isSheet = parentWidget() && modality == Qt::WindowModal;
    setParent(parentWidget(), isSheet ? Qt::Sheet : Qt::Dialog);
}

void FramelessMessageBox::addButton(QAbstractButton *button, QMessageBox::ButtonRole role)
{
    if (!button)
        return;
    removeButton(button);
    d->buttonBox->addButton(button, QDialogButtonBox::ButtonRole(role));
    if (!buttons().contains(button)) {
        button->setParent(this); // refused for its unknown role, and owned all the same
        return;
    }
    d->customButtonList.append(button);
    d->autoAddOkButton = false;
}

QPushButton *FramelessMessageBox::addButton(const QString &text, QMessageBox::ButtonRole role)
{
    auto *button = new QPushButton(text);
    addButton(button, role);
    d->updateSize();
    return button;
}

QPushButton *FramelessMessageBox::addButton(QMessageBox::StandardButton button)
{
    QPushButton *created = d->buttonBox->addButton(toButtonBox(button));
    if (created && buttonRole(created) == QMessageBox::InvalidRole) {
        // Of an unknown value: made by the button box, but not taken.
        d->buttonBox->removeButton(created);
        delete created;
        return nullptr;
    }
    if (created) {
        d->autoAddOkButton = false;
        if (!d->ownTextButtons.contains(button))
            d->ownTextButtons.append(button);
    }
    retranslateButtonUi(button);
    return created;
}

void FramelessMessageBox::removeButton(QAbstractButton *button)
{
    if (!button)
        return;
    d->customButtonList.removeAll(button);
    if (d->escapeButton == button)
        d->escapeButton.clear();
    if (d->defaultButton == button)
        d->defaultButton.clear();
    // QDialogButtonBox takes a button that it does not have away from its parent.
    if (buttons().contains(button))
        d->buttonBox->removeButton(button);
    d->updateSize();
}

QMessageBox::StandardButtons FramelessMessageBox::standardButtons() const
{
    return QMessageBox::StandardButtons(int(d->buttonBox->standardButtons()));
}

void FramelessMessageBox::setStandardButtons(QMessageBox::StandardButtons buttons)
{
    // Kept: unlike those of addButton(), these buttons show the texts of QDialogButtonBox.
    d->ownTextButtons.clear();
    d->buttonBox->setStandardButtons(QDialogButtonBox::StandardButtons(int(buttons)));
    const QList<QAbstractButton *> present = this->buttons();
    if (!present.contains(d->escapeButton.data()))
        d->escapeButton.clear();
    if (!present.contains(d->defaultButton.data()))
        d->defaultButton.clear();
    d->autoAddOkButton = false;
    d->updateSize();
}

QMessageBox::StandardButton FramelessMessageBox::standardButton(QAbstractButton *button) const
{
    return QMessageBox::StandardButton(d->buttonBox->standardButton(button));
}

QAbstractButton *FramelessMessageBox::button(QMessageBox::StandardButton which) const
{
    return d->buttonBox->button(toButtonBox(which));
}

QList<QAbstractButton *> FramelessMessageBox::buttons() const
{
    return d->buttonBox->buttons();
}

QMessageBox::ButtonRole FramelessMessageBox::buttonRole(QAbstractButton *button) const
{
    return QMessageBox::ButtonRole(d->buttonBox->buttonRole(button));
}

void FramelessMessageBox::retranslateButtonUi(QMessageBox::StandardButton button)
{
    QPushButton *present = d->buttonBox->button(toButtonBox(button));
    for (const ButtonText &known : ButtonTexts) {
        if (present && known.button == button)
            present->setText(tr(known.text));
    }
}

QPushButton *FramelessMessageBox::defaultButton() const
{
    return d->defaultButton;
}

void FramelessMessageBox::setDefaultButton(QPushButton *button)
{
    if (!buttons().contains(button))
        return;
    d->defaultButton = button;
    button->setDefault(true);
    button->setFocus(Qt::OtherFocusReason);
}

void FramelessMessageBox::setDefaultButton(QMessageBox::StandardButton button)
{
    setDefaultButton(d->buttonBox->button(toButtonBox(button)));
}

QAbstractButton *FramelessMessageBox::escapeButton() const
{
    return d->escapeButton;
}

void FramelessMessageBox::setEscapeButton(QAbstractButton *button)
{
    if (buttons().contains(button))
        d->escapeButton = button;
}

void FramelessMessageBox::setEscapeButton(QMessageBox::StandardButton button)
{
    setEscapeButton(this->button(button));
}

QAbstractButton *FramelessMessageBox::clickedButton() const
{
    return d->clickedButton;
}

void FramelessMessageBox::open(QObject *receiver, const char *member)
{
    const bool takesButton = member && std::strchr(member, '*');
    const char *signal = takesButton ? SIGNAL(buttonClicked(QAbstractButton *)) : SIGNAL(finished(int));
    connect(this, signal, receiver, member);
    d->signalToDisconnectOnClose = signal;
    d->receiverToDisconnectOnClose = receiver;
    d->memberToDisconnectOnClose = member;
    FramelessDialog::open();
}

void FramelessMessageBox::slot_buttonClicked(QAbstractButton *button)
{
    d->buttonClicked(button);
}

void FramelessMessageBox::slot_clicked(QMessageBox::StandardButton button, QMessageBox::ButtonRole role)
{
    d->clicked(button, role);
}

bool FramelessMessageBox::event(QEvent *event)
{
    const bool result = FramelessDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        d->updateSize();
    } else if (event->type() == QEvent::LanguageChange) {
        d->retranslateStrings();
        d->retranslateStandardButtons();
    }
    return result;
}

void FramelessMessageBox::resizeEvent(QResizeEvent *event)
{
    FramelessDialog::resizeEvent(event);
}

void FramelessMessageBox::keyPressEvent(QKeyEvent *event)
{
    const bool detailsVisible = d->detailsText && d->detailsText->isVisible();
    if (event->matches(QKeySequence::Cancel)) {
        event->accept();
        if (d->detectedEscapeButton)
            d->detectedEscapeButton->click();
    } else if (event->matches(QKeySequence::Copy) && detailsVisible && d->detailsText->copy()) {
        event->accept();
    } else if (event->matches(QKeySequence::SelectAll) && detailsVisible) {
        d->detailsText->selectAll();
        event->accept();
    } else if (!d->clickButtonByKey(event)) {
        FramelessDialog::keyPressEvent(event);
    }
}

void FramelessMessageBox::closeEvent(QCloseEvent *event)
{
    if (!d->detectedEscapeButton) {
        event->ignore();
        return;
    }
    const QPointer<FramelessMessageBox> alive(this);
    FramelessDialog::closeEvent(event);
    if (!alive)
        return;
    d->clickedButton = d->detectedEscapeButton;
    setResult(d->execReturnCode(d->detectedEscapeButton));
}

void FramelessMessageBox::showEvent(QShowEvent *event)
{
    if (d->autoAddOkButton)
        addButton(QMessageBox::Ok);
    if (d->detailsButton)
        addButton(d->detailsButton, QMessageBox::ActionRole);
    d->detectEscapeButton();
    d->updateSize();

    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);

    setCloseButtonVisible(getCloseButtonVisible() && d->detectedEscapeButton);
    FramelessDialog::showEvent(event);
    d->chooseDefaultButton();
}

void FramelessMessageBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange)
        d->followStyle();
    FramelessDialog::changeEvent(event);
}

// One call

namespace {

void addStandardButton(FramelessMessageBox *box, QMessageBox::StandardButton which,
                       QMessageBox::StandardButton defaultButton)
{
    QPushButton *button = box->addButton(which);
    if (box->defaultButton())
        return;
    const bool accepts = box->buttonRole(button) == QMessageBox::AcceptRole;
    if (which == defaultButton || (defaultButton == QMessageBox::NoButton && accepts))
        box->setDefaultButton(button);
}

void addStandardButtons(FramelessMessageBox *box, QMessageBox::StandardButtons buttons,
                        QMessageBox::StandardButton defaultButton)
{
    for (uint bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1) {
        const auto which = QMessageBox::StandardButton(bit);
        if (buttons.testFlag(which))
            addStandardButton(box, which, defaultButton);
    }
}

QMessageBox::StandardButton showNewMessageBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                              const QString &text, QMessageBox::StandardButtons buttons,
                                              QMessageBox::StandardButton defaultButton)
{
    auto *box = new FramelessMessageBox(icon, title, text, QMessageBox::NoButton, parent);
    addStandardButtons(box, buttons, defaultButton);
    return FramelessMessageBoxPrivate::execAndDelete(box);
}

QMessageBox::StandardButton showNewMessageBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                              const QString &text, const char *propertyName,
                                              bool propertyValue, QMessageBox::StandardButtons buttons,
                                              QMessageBox::StandardButton defaultButton,
                                              bool closeButtonVisible)
{
    auto *box = new FramelessMessageBox(icon, title, text, QMessageBox::NoButton, parent);
    if (propertyName)
        box->setProperty(propertyName, propertyValue);
    if (!closeButtonVisible)
        box->setCloseButtonVisible(false);
    addStandardButtons(box, buttons, defaultButton);
    // Kept: the middle of the parent's size, not of its place on the screen, as full-screen applications want
    // it.
    if (parent)
        box->move((parent->width() - box->width()) / 2, (parent->height() - box->height()) / 2);
    return FramelessMessageBoxPrivate::execAndDelete(box);
}

} // namespace

QMessageBox::StandardButton FramelessMessageBox::information(QWidget *parent, const QString &title,
                                                             const QString &text,
                                                             QMessageBox::StandardButtons buttons,
                                                             QMessageBox::StandardButton defaultButton)
{
    return showNewMessageBox(parent, QMessageBox::Information, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton FramelessMessageBox::question(QWidget *parent, const QString &title,
                                                          const QString &text,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton)
{
    return showNewMessageBox(parent, QMessageBox::Question, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton FramelessMessageBox::warning(QWidget *parent, const QString &title,
                                                         const QString &text,
                                                         QMessageBox::StandardButtons buttons,
                                                         QMessageBox::StandardButton defaultButton)
{
    return showNewMessageBox(parent, QMessageBox::Warning, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton FramelessMessageBox::critical(QWidget *parent, const QString &title,
                                                          const QString &text,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton)
{
    return showNewMessageBox(parent, QMessageBox::Critical, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton
FramelessMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                 char *propertyName, bool propertyValue, QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton defaultButton, bool closeButtonVisible)
{
    return showNewMessageBox(parent, QMessageBox::Information, title, text, propertyName, propertyValue,
                             buttons, defaultButton, closeButtonVisible);
}

QMessageBox::StandardButton
FramelessMessageBox::question(QWidget *parent, const QString &title, const QString &text, char *propertyName,
                              bool propertyValue, QMessageBox::StandardButtons buttons,
                              QMessageBox::StandardButton defaultButton, bool closeButtonVisible)
{
    return showNewMessageBox(parent, QMessageBox::Question, title, text, propertyName, propertyValue, buttons,
                             defaultButton, closeButtonVisible);
}

QMessageBox::StandardButton
FramelessMessageBox::warning(QWidget *parent, const QString &title, const QString &text, char *propertyName,
                             bool propertyValue, QMessageBox::StandardButtons buttons,
                             QMessageBox::StandardButton defaultButton, bool closeButtonVisible)
{
    return showNewMessageBox(parent, QMessageBox::Warning, title, text, propertyName, propertyValue, buttons,
                             defaultButton, closeButtonVisible);
}

QMessageBox::StandardButton
FramelessMessageBox::critical(QWidget *parent, const QString &title, const QString &text, char *propertyName,
                              bool propertyValue, QMessageBox::StandardButtons buttons,
                              QMessageBox::StandardButton defaultButton, bool closeButtonVisible)
{
    return showNewMessageBox(parent, QMessageBox::Critical, title, text, propertyName, propertyValue, buttons,
                             defaultButton, closeButtonVisible);
}

void FramelessMessageBox::about(QWidget *parent, const QString &title, const QString &text)
{
    auto *box = new FramelessMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    const QIcon icon = box->windowIcon();
    box->setIconPixmap(icon.pixmap(icon.actualSize(QSize(64, 64))));
    box->exec();
}

void FramelessMessageBox::aboutQt(QWidget *parent, const QString &title)
{
    auto *box = new FramelessMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title.isEmpty() ? tr("About Qt") : title);
    box->setText(
        tr("<h3>About Qt</h3><p>This program uses Qt version %1.</p>").arg(QStringLiteral(QT_VERSION_STR)));
    box->setInformativeText(
        tr("<p>Qt is a C++ toolkit for cross-platform application development.</p>"
           "<p>Qt provides single-source portability across all major desktop operating systems. It is also "
           "available "
           "for embedded Linux and other embedded and mobile operating systems.</p>"
           "<p>Qt is available under multiple licensing options designed to accommodate the needs of our "
           "various "
           "users.</p>"
           "<p>Qt licensed under our commercial license agreement is appropriate for development of "
           "proprietary/commercial software where you do not want to share any source code with third "
           "parties or "
           "otherwise cannot comply with the terms of GNU (L)GPL.</p>"
           "<p>Qt licensed under GNU (L)GPL is appropriate for the development of Qt&nbsp;applications "
           "provided you "
           "can comply with the terms and conditions of the respective licenses.</p>"
           "<p>Please see <a href=\"http://%2/\">%2</a> for an overview of Qt licensing.</p>"
           "<p>Copyright (C) %1 The Qt Company Ltd and other contributors.</p>"
           "<p>Qt and the Qt logo are trademarks of The Qt Company Ltd.</p>"
           "<p>Qt is The Qt Company Ltd product developed as an open source project. See "
           "<a href=\"http://%3/\">%3</a> for more information.</p>")
            .arg(QStringLiteral("2016"), QStringLiteral("qt.io/licensing"), QStringLiteral("qt.io")));
    const QPixmap logo(QStringLiteral(":/qt-project.org/qmessagebox/images/qtlogo-64.png"));
    if (!logo.isNull())
        box->setIconPixmap(logo);
    box->exec();
}

} // namespace Tarn::Widgets
