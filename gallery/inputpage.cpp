// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "inputpage.h"

#include "parts.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/iplineedit.h>

using Tarn::Widgets::ChangedNoticeLineEdit;
using Tarn::Widgets::IPLineEdit;

namespace Gallery {

namespace {

constexpr int AddressWidth = 200;

QString yesOrNo(bool on)
{
    return on ? InputPage::tr("yes") : InputPage::tr("no");
}

} // namespace

InputPage::InputPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(10);
    layout->addWidget(createAddressGroup(), 0, 0);
    layout->addWidget(createNoticeGroup(), 1, 0);
    layout->addWidget(createLog(), 0, 1, 3, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    keepTranslated(m_valid, [this] { refresh(); });
}

// The field with the focus tells that it loses it: to the page, while that is whole.
InputPage::~InputPage()
{
    hide();
}

Page InputPage::page()
{
    return {QStringLiteral("input"),
            tr("Input fields"),
            tr("An editor for IPv4 addresses, and a line edit that tells when the user leaves it."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new InputPage(parent); },
            {}};
}

QWidget *InputPage::createAddressGroup()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("IPv4 address"); });
    m_address = new IPLineEdit;
    m_address->setFixedWidth(AddressWidth);
    m_address->setText(QStringLiteral("192.168.1.20"));
    connect(m_address, &IPLineEdit::addressChanged, this, [this](const QString &address) {
        log([=] { return tr("addressChanged: %1").arg(address); });
        refresh();
    });

    auto *layout = new QVBoxLayout(group);
    layout->addWidget(m_address, 0, Qt::AlignLeft);
    layout->addWidget(createCheckBox([] { return tr("Any address"); }, false,
                                     [this](bool on) {
                                         m_address->setAcceptsAnyAddress(on);
                                         refresh();
                                     }),
                      0, Qt::AlignLeft);
    layout->addWidget(createCheckBox([] { return tr("Read-only"); }, false,
                                     [this](bool on) { m_address->setProperty("readOnly", on); }),
                      0, Qt::AlignLeft);
    layout->addWidget(
        createCheckBox([] { return tr("Enabled"); }, true, [this](bool on) { m_address->setEnabled(on); }), 0,
        Qt::AlignLeft);
    layout->addWidget(createAddressState());
    layout->addWidget(createAddressActions());
    return group;
}

QWidget *InputPage::createAddressState()
{
    auto *state = new QWidget;
    auto *layout = new QGridLayout(state);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    m_value = new QLabel;
    m_acceptable = new QLabel;
    m_text = new QLineEdit(QStringLiteral("8.8.8.8"));
    m_valid = new QLabel;
    connect(m_text, &QLineEdit::textChanged, this, &InputPage::refresh);
    connect(m_text, &QLineEdit::returnPressed, this, &InputPage::setAddress);
    addFormRow(
        layout, [] { return tr("Address"); }, m_value);
    addFormRow(
        layout, [] { return tr("Acceptable"); }, m_acceptable);
    addFormRow(
        layout, [] { return tr("Text"); }, m_text);
    addFormRow(
        layout, [] { return tr("Valid"); }, m_valid);
    return state;
}

QWidget *InputPage::createAddressActions()
{
    auto *actions = new QWidget;
    auto *layout = new QGridLayout(actions);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [=](int row, int column, const Text &text, std::function<void()> onClicked) {
        QPushButton *button = createButton(text);
        connect(button, &QPushButton::clicked, this, std::move(onClicked));
        layout->addWidget(button, row, column);
    };
    add(
        0, 0, [] { return tr("Set text"); }, [this] { setAddress(); });
    add(
        0, 1, [] { return tr("Clear"); }, [this] { m_address->clear(); });
    add(
        1, 0, [] { return tr("Focus"); }, [this] { m_address->setIPFocus(); });
    add(
        1, 1, [] { return tr("Modified?"); }, [this] { askWhetherModified(); });
    return actions;
}

QWidget *InputPage::createNoticeGroup()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Line edit that tells"); });
    auto *field = new ChangedNoticeLineEdit;
    keepTranslated(field, [field] { field->setPlaceholderText(tr("Enter and leave")); });
    connect(field, &ChangedNoticeLineEdit::signal_focusOut, this, [this, field] {
        const QString selection = field->selectedText();
        log([=] {
            return selection.isEmpty() ? QStringLiteral("signal_focusOut")
                                       : tr("signal_focusOut, selected: %1").arg(selection);
        });
    });
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(field);
    return group;
}

QWidget *InputPage::createLog()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Reported"); });
    m_log = createLogList([] { return tr("Reported"); });
    m_log->setFocusPolicy(Qt::NoFocus);
    m_log->setSelectionMode(QAbstractItemView::NoSelection);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(m_log);
    return group;
}

void InputPage::setAddress()
{
    const QString before = m_address->text();
    m_address->setText(m_text->text());
    if (m_address->text() == before)
        log([=] { return tr("The address stays: %1").arg(before); });
}

void InputPage::askWhetherModified()
{
    const bool isModified = m_address->isModified();
    log([=] { return tr("isModified: %1").arg(yesOrNo(isModified)); });
}

void InputPage::refresh()
{
    m_value->setText(m_address->text());
    m_acceptable->setText(yesOrNo(m_address->hasAcceptableInput()));
    m_valid->setText(yesOrNo(m_address->isTextValid(m_text->text())));
}

void InputPage::log(const Text &line)
{
    addLine(m_log, line);
}

} // namespace Gallery
