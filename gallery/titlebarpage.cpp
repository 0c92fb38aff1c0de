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
    const Text close = [] { return TitleBarPage::tr("Close"); };
    const Text question = [] { return TitleBarPage::tr("Some changes are not stored. Close all the same?"); };
    return new QuestionDialog(
        close, question, close, [] { return TitleBarPage::tr("Stay"); }, parent);
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
    m_bar->setMaximized(false);
    QAction *help = addExtraButton(QStringLiteral("?"));
    QAction *newWindow = addExtraButton(QStringLiteral("+"));
    keepTranslated(m_bar, [=] {
        help->setToolTip(tr("Help"));
        newWindow->setToolTip(tr("New window"));
    });

    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addSpacing(24);
    return frame;
}

QAction *TitleBarPage::addExtraButton(const QString &text)
{
    auto *action = new QAction(text, m_bar);
    connect(action, &QAction::triggered, this,
            [=] { log([=] { return tr("Extra button: %1").arg(action->toolTip()); }); });
    m_bar->appendExtendTitleButton(action, ExtraButtonSize, ExtraIconSize);
    return action;
}

QWidget *TitleBarPage::createButtonSwitches()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Buttons"); });
    auto *layout = new QGridLayout(group);
    const auto addSwitch = [=](int row, int column, const Text &text, std::function<void(bool)> onToggled) {
        layout->addWidget(createCheckBox(text, true, std::move(onToggled)), row, column, Qt::AlignLeft);
    };
    const auto addButtonSwitch = [=](int row, int column, const Text &text, int button) {
        addSwitch(row, column, text, [=](bool visible) { m_bar->setTitleButtonVisible(button, visible); });
    };
    addButtonSwitch(
        0, 0, [] { return tr("Logo"); }, Logo);
    addButtonSwitch(
        0, 1, [] { return tr("Minimise"); }, Minimize);
    addButtonSwitch(
        1, 0, [] { return tr("Maximise"); }, Maximize);
    addButtonSwitch(
        1, 1, [] { return tr("Restore"); }, Restore);
    addButtonSwitch(
        2, 0, [] { return tr("Close"); }, Close);
    addSwitch(
        2, 1, [] { return tr("Extra buttons"); }, [this](bool visible) { setExtraButtonsVisible(visible); });
    layout->setVerticalSpacing(0);
    return group;
}

QWidget *TitleBarPage::createTitleSwitches()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Title"); });
    auto *title = new QLineEdit;
    connect(title, &QLineEdit::textChanged, m_bar, &TitleBar::setTitle);
    showSample(title, [] { return tr("Pump station 4"); });

    auto *layout = new QGridLayout(group);
    addFormRow(
        layout, [] { return tr("Text"); }, title);
    addFormRow(
        layout, [] { return tr("Alignment"); }, createAlignmentChooser());
    layout->addWidget(
        createCheckBox([] { return tr("Visible"); }, true, [this](bool on) { m_bar->setTitleVisible(on); }),
        layout->rowCount(), 1, Qt::AlignLeft);
    return group;
}

QWidget *TitleBarPage::createAlignmentChooser()
{
    auto *box = createComboBox();
    for (const Qt::AlignmentFlag alignment : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight})
        box->addItem(QString(), int(alignment));
    keepTranslated(box, [box] { setRowTexts(box, {tr("Left"), tr("Centre"), tr("Right")}); });
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), m_bar, [this, box](int index) {
        m_bar->setTitleAlignment(Qt::Alignment(box->itemData(index).toInt()) | Qt::AlignVCenter);
    });
    return box;
}

QWidget *TitleBarPage::createLog()
{
    auto *group = new QGroupBox(this);
    showText(group, [] { return tr("Signals"); });
    m_log = createLogList([] { return tr("Signals"); });
    m_log->setFocusPolicy(Qt::TabFocus);
    auto *clear = createButton([] { return tr("Clear"); });
    connect(clear, &QPushButton::clicked, m_log, &QListWidget::clear);

    auto *layout = new QGridLayout(group);
    layout->addWidget(m_log, 0, 0, 1, 2);
    layout->addWidget(
        createCheckBox([] { return tr("Ask before closing"); }, true, [this](bool on) { setCloseAsks(on); }),
        1, 0, Qt::AlignLeft);
    layout->addWidget(clear, 1, 1, Qt::AlignRight);
    return group;
}

void TitleBarPage::connectSignals()
{
    connect(m_bar, &TitleBar::minimuned, this, [this] { log([] { return QStringLiteral("minimuned()"); }); });
    connect(m_bar, &TitleBar::maximumed, this, [this] { log([] { return QStringLiteral("maximumed()"); }); });
    connect(m_bar, &TitleBar::normaled, this, [this] { log([] { return QStringLiteral("normaled()"); }); });
    connect(m_bar, &TitleBar::closed, this, [this] { log([] { return QStringLiteral("closed()"); }); });
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
        log([] { return tr("The close function said no"); });
    return closes;
}

void TitleBarPage::log(const Text &line)
{
    addLine(m_log, line);
}

} // namespace Gallery
