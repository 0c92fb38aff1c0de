// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "titlebarpage.h"

#include "parts.h"
#include "questiondialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Widgets::StyleSheetWidget;
using Tarn::Widgets::TitleBar;

namespace Gallery {

namespace {

enum TitleButton { Logo, Minimize, Maximize, Restore, Close };

constexpr QSize ExtraButtonSize(28, 22);
constexpr QSize ExtraIconSize(16, 16);

QuestionDialog *createCloseQuestion(QWidget *parent)
{
    return new QuestionDialog(TitleBarPage::tr("Close"),
                              TitleBarPage::tr("Some changes are not stored. Close all the same?"),
                              TitleBarPage::tr("Close"), TitleBarPage::tr("Stay"), parent);
}

} // namespace

TitleBarPage::TitleBarPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(10);
    layout->addWidget(createSpecimen(), 0, 0, 1, 2);
    layout->addWidget(createButtonSwitches(), 1, 0);
    layout->addWidget(createTitleSwitches(), 2, 0);
    layout->addWidget(createLog(), 1, 1, 3, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);
    connectSignals();
    setCloseAsks(true);
}

TitleBarPage::~TitleBarPage() = default;

Page TitleBarPage::page()
{
    return {QStringLiteral("title-bar"),
            tr("Title bar"),
            tr("The strip by itself: it reports what the user asks for, and its owner acts on it."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new TitleBarPage(parent); },
            {{QStringLiteral("question"),
              [](QWidget *parent) -> QDialog * { return createCloseQuestion(parent); }}}};
}

QWidget *TitleBarPage::createSpecimen()
{
    auto *frame = new StyleSheetWidget(this);
    frame->setObjectName(QStringLiteral("gallerySpecimen"));
    m_bar = new TitleBar(frame);
    m_bar->setTitle(tr("Pump station 4"));
    m_bar->setMaximized(false);
    addExtraButton(QStringLiteral("?"), tr("Help"));
    addExtraButton(QStringLiteral("+"), tr("New window"));

    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addSpacing(24);
    return frame;
}

void TitleBarPage::addExtraButton(const QString &text, const QString &toolTip)
{
    auto *action = new QAction(text, m_bar);
    action->setToolTip(toolTip);
    connect(action, &QAction::triggered, this, [this, toolTip] { log(tr("Extra button: %1").arg(toolTip)); });
    m_bar->appendExtendTitleButton(action, ExtraButtonSize, ExtraIconSize);
}

QWidget *TitleBarPage::createButtonSwitches()
{
    auto *group = new QGroupBox(tr("Buttons"), this);
    auto *layout = new QGridLayout(group);
    const auto addSwitch = [=](int row, int column, const QString &text,
                               std::function<void(bool)> onToggled) {
        layout->addWidget(createCheckBox(text, true, std::move(onToggled)), row, column, Qt::AlignLeft);
    };
    const auto addButtonSwitch = [=](int row, int column, const QString &text, int button) {
        addSwitch(row, column, text, [=](bool visible) { m_bar->setTitleButtonVisible(button, visible); });
    };
    addButtonSwitch(0, 0, tr("Logo"), Logo);
    addButtonSwitch(0, 1, tr("Minimise"), Minimize);
    addButtonSwitch(1, 0, tr("Maximise"), Maximize);
    addButtonSwitch(1, 1, tr("Restore"), Restore);
    addButtonSwitch(2, 0, tr("Close"), Close);
    addSwitch(2, 1, tr("Extra buttons"), [this](bool visible) { setExtraButtonsVisible(visible); });
    layout->setVerticalSpacing(0);
    return group;
}

QWidget *TitleBarPage::createTitleSwitches()
{
    auto *group = new QGroupBox(tr("Title"), this);
    auto *title = new QLineEdit(m_bar->title());
    connect(title, &QLineEdit::textChanged, m_bar, &TitleBar::setTitle);

    auto *layout = new QGridLayout(group);
    addFormRow(layout, tr("Text"), title);
    addFormRow(layout, tr("Alignment"), createAlignmentChooser());
    layout->addWidget(createCheckBox(tr("Visible"), true, [this](bool on) { m_bar->setTitleVisible(on); }),
                      layout->rowCount(), 1, Qt::AlignLeft);
    return group;
}

QWidget *TitleBarPage::createAlignmentChooser()
{
    auto *box = createComboBox();
    box->addItem(tr("Left"), int(Qt::AlignLeft));
    box->addItem(tr("Centre"), int(Qt::AlignHCenter));
    box->addItem(tr("Right"), int(Qt::AlignRight));
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), m_bar, [this, box](int index) {
        m_bar->setTitleAlignment(Qt::Alignment(box->itemData(index).toInt()) | Qt::AlignVCenter);
    });
    return box;
}

QWidget *TitleBarPage::createLog()
{
    auto *group = new QGroupBox(tr("Signals"), this);
    m_log = new QListWidget(group);
    m_log->setAccessibleName(tr("Signals"));
    m_log->setFocusPolicy(Qt::TabFocus);
    auto *clear = new QPushButton(tr("Clear"), group);
    connect(clear, &QPushButton::clicked, m_log, &QListWidget::clear);

    auto *layout = new QGridLayout(group);
    layout->addWidget(m_log, 0, 0, 1, 2);
    layout->addWidget(createCheckBox(tr("Ask before closing"), true, [this](bool on) { setCloseAsks(on); }),
                      1, 0, Qt::AlignLeft);
    layout->addWidget(clear, 1, 1, Qt::AlignRight);
    return group;
}

void TitleBarPage::connectSignals()
{
    connect(m_bar, &TitleBar::minimuned, this, [this] { log(QStringLiteral("minimuned()")); });
    connect(m_bar, &TitleBar::maximumed, this, [this] { log(QStringLiteral("maximumed()")); });
    connect(m_bar, &TitleBar::normaled, this, [this] { log(QStringLiteral("normaled()")); });
    connect(m_bar, &TitleBar::closed, this, [this] { log(QStringLiteral("closed()")); });
}

void TitleBarPage::setExtraButtonsVisible(bool visible)
{
    const QList<QToolButton *> buttons = m_bar->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        if (button->defaultAction())
            button->setVisible(visible);
    }
}

void TitleBarPage::setCloseAsks(bool asks)
{
    if (asks)
        m_bar->appendCloseEvent([this] { return askBeforeClosing(); });
    else
        m_bar->appendCloseEvent({});
}

bool TitleBarPage::askBeforeClosing()
{
    const bool closes = QuestionDialog::ask(createCloseQuestion(this));
    if (!closes)
        log(tr("The close function said no"));
    return closes;
}

void TitleBarPage::log(const QString &line)
{
    m_log->addItem(line);
    m_log->scrollToBottom();
}

} // namespace Gallery
