// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "buttonspage.h"

#include "parts.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/toolbutton.h>

using Tarn::Widgets::StyleSheetWidget;
using Tarn::Widgets::TarnPushButton;
using Tarn::Widgets::ToolButton;

namespace Gallery {

namespace {

constexpr int GreatestHeight = 300;
constexpr int StripMargin = 12;
constexpr int ButtonHeight = 130;
constexpr int ButtonWidth = 36;

QMenu *createMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    QAction *start = menu->addAction(QString());
    QAction *stop = menu->addAction(QString());
    menu->addSeparator();
    QAction *flush = menu->addAction(QString());
    keepTranslated(menu, [=] {
        start->setText(ButtonsPage::tr("Start"));
        stop->setText(ButtonsPage::tr("Stop"));
        flush->setText(ButtonsPage::tr("Flush"));
    });
    return menu;
}

} // namespace

ButtonsPage::ButtonsPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(10);
    layout->addWidget(createStrip(), 0, 0, 2, 1);
    layout->addWidget(createPushButtonGroup(), 0, 1);
    layout->addWidget(createToolButtonGroup(), 1, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    keepTranslated(m_hover, [this] { refresh(); });
}

ButtonsPage::~ButtonsPage() = default;

Page ButtonsPage::page()
{
    return {QStringLiteral("buttons"),
            tr("Buttons"),
            tr("A push button that turns its text, and a tool button that is sound after its menu."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new ButtonsPage(parent); },
            {}};
}

/* One for either direction and a disabled one, all with the same text. */
QWidget *ButtonsPage::createStrip()
{
    auto *strip = new StyleSheetWidget(this);
    strip->setObjectName(QStringLiteral("galleryStage"));
    auto *layout = new QHBoxLayout(strip);
    layout->setContentsMargins(StripMargin, StripMargin, StripMargin, StripMargin);
    for (const bool isClockwise : {true, false}) {
        auto *button = new TarnPushButton(strip);
        button->isOpenRotation(true);
        button->setRotationDirection(isClockwise);
        m_buttons.append(button);
    }
    m_buttons.append(new TarnPushButton(strip));
    m_buttons.last()->setEnabled(false);
    m_buttons.last()->isOpenRotation(true);
    changeAll([layout](PushButton *button) {
        button->setFixedSize(ButtonWidth, ButtonHeight);
        layout->addWidget(button, 0, Qt::AlignTop);
    });
    strip->setMinimumHeight(GreatestHeight + 2 * StripMargin);
    return strip;
}

QWidget *ButtonsPage::createPushButtonGroup()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Push buttons"); });
    auto *text = new QLineEdit;
    connect(text, &QLineEdit::textChanged, this, [this](const QString &fullText) {
        changeAll([&](PushButton *button) { button->setBtnText(fullText); });
    });
    showSample(text, [] { return tr("Messages"); });
    const auto setHeight = [this](int height) {
        changeAll([=](PushButton *button) {
            button->setFixedHeight(height);
            button->setBtnText(button->getBtnText());
        });
    };
    const auto setWidth = [this](int width) {
        changeAll([=](PushButton *button) { button->setFixedWidth(width); });
    };
    m_shown = new QLabel;
    m_toolTip = new QLabel;
    for (QLabel *label : {m_shown, m_toolTip})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // cuts a long text

    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    addFormRow(
        layout, [] { return tr("Text"); }, text);
    addFormRow(
        layout, [] { return tr("Height"); }, createPixelBox(24, GreatestHeight, ButtonHeight, setHeight));
    addFormRow(
        layout, [] { return tr("Width"); }, createPixelBox(20, 60, ButtonWidth, setWidth));
    addFormRow(
        layout, [] { return tr("Shown"); }, m_shown);
    addFormRow(
        layout, [] { return tr("Tool tip"); }, m_toolTip);
    const auto addSwitch = [=](const Text &title, std::function<void(PushButton *, bool)> change) {
        auto *box = createCheckBox(title, true, [this, change = std::move(change)](bool on) {
            changeAll([&](PushButton *button) { change(button, on); });
        });
        layout->addWidget(box, layout->rowCount(), 0, 1, 2, Qt::AlignLeft);
    };
    addSwitch([] { return tr("Turned"); }, [](PushButton *button, bool on) { button->isOpenRotation(on); });
    addSwitch([] { return tr("First one clockwise"); },
              [this](PushButton *button, bool on) {
                  if (button == m_buttons.first())
                      button->setRotationDirection(on);
              });
    return group;
}

QWidget *ButtonsPage::createToolButtonGroup()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Tool button"); });
    m_toolButton = new ToolButton(group);
    showText(m_toolButton, [] { return tr("Pump"); });
    m_toolButton->setPopupMode(QToolButton::InstantPopup);
    m_toolButton->setMenu(createMenu(m_toolButton));
    m_toolButton->installEventFilter(this);
    m_hover = new QLabel;

    auto *modes = createComboBox();
    for (const auto mode :
         {QToolButton::InstantPopup, QToolButton::MenuButtonPopup, QToolButton::DelayedPopup})
        modes->addItem(QString(), mode);
    keepTranslated(modes, [modes] {
        setRowTexts(modes, {tr("At once"), tr("By its arrow"), tr("After a delay")});
    });
    connect(modes, QOverload<int>::of(&QComboBox::currentIndexChanged), m_toolButton, [this, modes](int row) {
        m_toolButton->setPopupMode(QToolButton::ToolButtonPopupMode(modes->itemData(row).toInt()));
    });

    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_toolButton, 0, 0, Qt::AlignLeft);
    layout->addWidget(m_hover, 0, 1);
    addFormRow(
        layout, [] { return tr("Menu"); }, modes);
    return group;
}

void ButtonsPage::changeAll(const std::function<void(PushButton *)> &change)
{
    for (PushButton *button : qAsConst(m_buttons))
        change(button);
    if (m_hover)
        refresh();
}

void ButtonsPage::refresh()
{
    const QString toolTip = m_buttons.first()->toolTip();
    m_shown->setText(m_buttons.first()->text());
    m_toolTip->setText(toolTip.isEmpty() ? tr("none") : toolTip);
    m_hover->setText(m_toolButton->underMouse() ? tr("Hovered") : tr("Not hovered"));
}

/* Whatever changes the hover look has the button painted. */
bool ButtonsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_toolButton && event->type() == QEvent::Paint)
        refresh();
    return QWidget::eventFilter(watched, event);
}

} // namespace Gallery
