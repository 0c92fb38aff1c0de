// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "titlebar.h"

#include "titlebuttons_p.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolButton>
#include <QVector>

namespace Tarn::Widgets {

namespace {

constexpr int BarHeight = 24;
constexpr QSize TitleBarButtonIconSize(30, 20);

constexpr const char *ButtonSelectors[TitleButtonCount] = {"isTitleBarLogoButton", "isTitleBarMinButton",
                                                           "isTitleBarMaxButton", "isTitleBarRestoreButton",
                                                           "isTitleBarCloseButton"};

constexpr const char *ButtonToolTips[TitleButtonCount] = {
    nullptr, QT_TRANSLATE_NOOP("Tarn::Widgets::TitleBar", "Minimize"),
    QT_TRANSLATE_NOOP("Tarn::Widgets::TitleBar", "Maximization"),
    QT_TRANSLATE_NOOP("Tarn::Widgets::TitleBar", "Restore"),
    QT_TRANSLATE_NOOP("Tarn::Widgets::TitleBar", "Close")};

/* A title that does not fit ends in an ellipsis, and never makes its window wider. */
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget *parent)
        : QLabel(parent)
    {
        setTextFormat(Qt::PlainText);
        setMinimumWidth(1);
        QSizePolicy policy = sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        setSizePolicy(policy);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        const QRect room = contentsRect();
        const QString elided = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
        if (textFormat() != Qt::PlainText || elided == text()) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        drawFrame(&painter);
        style()->drawItemText(&painter, room, int(QStyle::visualAlignment(layoutDirection(), alignment())),
                              palette(), isEnabled(), elided, foregroundRole());
    }
};

} // namespace

class TitleBarPrivate
{
public:
    explicit TitleBarPrivate(TitleBar *q);

    QToolButton *createButton(int index) const;
    QToolButton *button(int index) const;
    void setButtonVisibleIfAllowed(int index, bool visible);

    TitleBar *const q;
    QLabel *const m_pTitleLabel;
    bool m_bMaximized = false;
    QVector<QToolButton *> m_buttons;
    QVector<bool> m_buttonsAllowed;
    QHBoxLayout *const m_pExtendLayout;
    std::function<bool()> m_mayClose;
};

TitleBarPrivate::TitleBarPrivate(TitleBar *q)
    : q(q)
    , m_pTitleLabel(new TitleLabel(q))
    , m_buttons(TitleButtonCount)
    , m_buttonsAllowed(TitleButtonCount, true) // Kept: maximise and restore alike, until the state is known
    , m_pExtendLayout(new QHBoxLayout)
    , m_mayClose([] { return true; })
{
    m_pTitleLabel->setProperty("isTitleBarTitle", true);
    for (int index = 0; index < TitleButtonCount; ++index)
        m_buttons[index] = createButton(index);
    m_buttons[LogoButton]->setIcon(QApplication::windowIcon());
    m_pExtendLayout->setContentsMargins(10, 0, 10, 0);
    m_pExtendLayout->setSpacing(2);
}

QToolButton *TitleBarPrivate::createButton(int index) const
{
    auto *button = new QToolButton(q);
    button->setProperty("isTitleBarButton", true);
    button->setProperty(ButtonSelectors[index], true);
    button->setIconSize(TitleBarButtonIconSize);
    button->setAutoRaise(true);
    button->setAutoFillBackground(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QToolButton *TitleBarPrivate::button(int index) const
{
    return m_buttons.value(index);
}

void TitleBarPrivate::setButtonVisibleIfAllowed(int index, bool visible)
{
    if (m_buttonsAllowed.at(index))
        m_buttons.at(index)->setVisible(visible);
}

TitleBar::TitleBar(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<TitleBarPrivate>(this))
{
    retranslateUi();
    createWidgets();
    createConnects();
}

TitleBar::~TitleBar() = default;

void TitleBar::createWidgets()
{
    m_pMainLayout = new QHBoxLayout(this);
    m_pMainLayout->setContentsMargins(5, 0, 5, 0);
    m_pMainLayout->setSpacing(2);
    m_pMainLayout->addWidget(d->m_buttons.at(LogoButton));
    m_pMainLayout->addWidget(d->m_pTitleLabel);
    m_pMainLayout->addLayout(d->m_pExtendLayout);
    for (int index = MinButton; index <= CloseButton; ++index)
        m_pMainLayout->addWidget(d->m_buttons.at(index));
    setFixedHeight(BarHeight);
    setProperty("isTitleBar", true);
    setProperty("isForeground", true);
}

void TitleBar::createConnects()
{
    connect(d->m_buttons.at(MinButton), &QToolButton::clicked, this, &TitleBar::minimuned);
    connect(d->m_buttons.at(MaxButton), &QToolButton::clicked, this, &TitleBar::switchMaxMin);
    connect(d->m_buttons.at(RestoreButton), &QToolButton::clicked, this, &TitleBar::switchMaxMin);
    connect(d->m_buttons.at(CloseButton), &QToolButton::clicked, this, [this] {
        // A copy, since the function may replace itself; guarded, since it may delete the bar.
        const QPointer<TitleBar> guard(this);
        // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): d is never null, unseen by the analyzer
        const std::function<bool()> mayClose = d->m_mayClose;
        if ((!mayClose || mayClose()) && guard)
            Q_EMIT closed();
    });
}

void TitleBar::setTitle(const QString &title)
{
    d->m_pTitleLabel->setText(title);
}

QString TitleBar::title() const
{
    return d->m_pTitleLabel->text();
}

void TitleBar::setTitleAlignment(Qt::Alignment alignment)
{
    d->m_pTitleLabel->setAlignment(alignment);
}

QLabel *TitleBar::titleLabel() const
{
    return d->m_pTitleLabel;
}

void TitleBar::setTitleVisible(bool visible)
{
    d->m_pTitleLabel->setVisible(visible);
}

bool TitleBar::isTitleVisible() const
{
    return d->m_pTitleLabel->isVisible();
}

QToolButton *TitleBar::titleButton(const int &index) const
{
    return d->button(index);
}

void TitleBar::setTitleButtonVisible(const int &index, bool visible)
{
    if (QToolButton *button = d->button(index)) {
        button->setVisible(visible);
        d->m_buttonsAllowed[index] = visible;
    }
}

bool TitleBar::isTitleButtonVisible(const int &index) const
{
    const QToolButton *button = d->button(index);
    return button && button->isVisible();
}

void TitleBar::setTitleButtonIcon(const int &index, const QIcon &icon)
{
    if (QToolButton *button = d->button(index))
        button->setIcon(icon);
}

QIcon TitleBar::titleButtonIcon(const int &index) const
{
    const QToolButton *button = d->button(index);
    return button ? button->icon() : QIcon();
}

void TitleBar::setTitleButtonToolTip(const int &index, const QString &toolTip)
{
    if (QToolButton *button = d->button(index))
        button->setToolTip(toolTip);
}

QString TitleBar::titleButtonToolTip(const int &index) const
{
    const QToolButton *button = d->button(index);
    return button ? button->toolTip() : QString();
}

void TitleBar::appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize)
{
    insertExtendTitleButton(d->m_pExtendLayout->count(), action, buttonSize, iconSize);
}

void TitleBar::insertExtendTitleButton(int index, QAction *action, QSize buttonSize, QSize iconSize)
{
    if (!action)
        return;
    auto *button = new QToolButton(this);
    button->setDefaultAction(action); // brings the icon and the tool tip, and keeps them up to date
    button->setIconSize(iconSize);
    button->setFixedSize(buttonSize);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    const bool exists = index >= 0 && index <= d->m_pExtendLayout->count();
    d->m_pExtendLayout->insertWidget(exists ? index : -1, button);
}

void TitleBar::appendCloseEvent(std::function<bool()> mayClose)
{
    // Kept: it replaces the former function.
    d->m_mayClose = std::move(mayClose);
}

void TitleBar::setMaximized(bool maximized)
{
    d->m_bMaximized = maximized;
    d->setButtonVisibleIfAllowed(MaxButton, !maximized);
    d->setButtonVisibleIfAllowed(RestoreButton, maximized);
}

void TitleBar::switchMaxMin()
{
    const bool wasMaximized = d->m_bMaximized;
    d->setButtonVisibleIfAllowed(MaxButton, wasMaximized);
    d->setButtonVisibleIfAllowed(RestoreButton, !wasMaximized);

    const QPointer<TitleBar> guard(this);
    if (wasMaximized)
        Q_EMIT normaled();
    else
        Q_EMIT maximumed();
    // Inverted as it stands now: a receiver may have called setMaximized().
    if (guard)
        d->m_bMaximized = !d->m_bMaximized;
}

void TitleBar::clearChecked()
{
    for (QToolButton *button : qAsConst(d->m_buttons))
        button->setChecked(false);
}

bool TitleBar::hitTest(const int &x, const int &y) const
{
    const QPoint pos(x, y);
    return rect().contains(pos) && !childAt(pos);
}

QHBoxLayout *TitleBar::getTitleVBarMainLayout() const
{
    return m_pMainLayout;
}

void TitleBar::retranslateUi()
{
    d->m_buttons.at(LogoButton)->setAccessibleName(tr("Logo"));
    for (int index = MinButton; index <= CloseButton; ++index) {
        const QString text = tr(ButtonToolTips[index]);
        d->m_buttons.at(index)->setToolTip(text);
        d->m_buttons.at(index)->setAccessibleName(text);
    }
}

void TitleBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

} // namespace Tarn::Widgets
