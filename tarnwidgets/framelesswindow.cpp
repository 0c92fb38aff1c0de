// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelesswindow.h"

#include "titlebar.h"
#include "titlebuttons_p.h"
#include "toplevelwindow_p.h"

#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

namespace Tarn::Widgets {

namespace {

// Kept: the room of the buttons at the title bar's right end, in pixels; for double clicks it is one pixel
// wider.
constexpr int PressStripWidth = 119;
constexpr int DoubleClickStripWidth = 120;

} // namespace

class FramelessWindowPrivate
{
public:
    FramelessWindowPrivate(FramelessWindow *q, bool placement)
        : m_platformWindow(q)
        , m_bPlacement(placement)
    {
    }

    ~FramelessWindowPrivate()
    {
        // In a central frame, it belongs to that.
        if (m_pTitleBar && !m_pTitleBar->parent())
            delete m_pTitleBar;
    }

    /* Empty where no bar is shown. */
    QSize titleBarSize() const
    {
        return m_pTitleBar && m_pTitleBar->parent() ? m_pTitleBar->size() : QSize(0, 0);
    }

    QPointer<TitleBar> m_pTitleBar; // null once an application has deleted it
    QPointer<QWidget> m_pCentralWidget;
    QPoint m_ptDragPos; // the press, from the frame's top-left corner
    bool m_bPressed = false;
    TopLevelWindow m_platformWindow;
    const bool m_bPlacement;
};

FramelessWindow::FramelessWindow(QWidget *parent)
    : FramelessWindow(false, parent)
{
}

FramelessWindow::FramelessWindow(bool placement, QWidget *parent)
    : AppMainWindow(parent)
    , d(std::make_unique<FramelessWindowPrivate>(this, placement))
{
    createWidgets();
    createConnects();
}

FramelessWindow::~FramelessWindow() = default;

void FramelessWindow::createWidgets()
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    if (!d->m_bPlacement)
        addFramelessFlags();
    setContentsMargins(0, 0, 0, 0);
    d->m_pTitleBar = new TitleBar(nullptr);
}

void FramelessWindow::createConnects()
{
    connect(d->m_pTitleBar, &TitleBar::closed, this, &FramelessWindow::close);
    connect(d->m_pTitleBar, &TitleBar::minimuned, this, &FramelessWindow::showMinimized);
    connect(d->m_pTitleBar, &TitleBar::maximumed, this, &FramelessWindow::swithMaxNormal);
    connect(d->m_pTitleBar, &TitleBar::normaled, this, &FramelessWindow::swithMaxNormal);
}

void FramelessWindow::addFramelessFlags()
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::WindowMinMaxButtonsHint
                   | Qt::WindowCloseButtonHint);
}

void FramelessWindow::setCentralWidget(QWidget *widget, bool withTitleBar)
{
    if (!widget)
        return;
    d->m_pCentralWidget = widget;
    if (d->m_pTitleBar)
        d->m_pTitleBar->setParent(nullptr);
    QMainWindow::setCentralWidget(createCentralFrame(withTitleBar));

    if (d->m_bPlacement) {
        move(0, 0);
        addFramelessFlags();
        if (d->m_pTitleBar)
            d->m_pTitleBar->setMaximized(true);
    }
}

QFrame *FramelessWindow::createCentralFrame(bool withTitleBar)
{
    auto *frame = new QFrame(this);
    frame->setProperty("isFramelessCentralWidget", true);
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    if (withTitleBar && d->m_pTitleBar) {
        layout->addWidget(d->m_pTitleBar);
        d->m_pTitleBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    layout->addWidget(d->m_pCentralWidget);
    d->m_pCentralWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    // The bar outlives the frame, whoever deletes that: QMainWindow::setCentralWidget() may be called
    // directly.
    connect(frame, &QObject::destroyed, &d->m_platformWindow, [this, frame] {
        if (d->m_pTitleBar && d->m_pTitleBar->parent() == frame)
            d->m_pTitleBar->setParent(nullptr);
    });
    return frame;
}

void FramelessWindow::setCentralWidget(QWidget *widget)
{
    setCentralWidget(widget, true);
}

QWidget *FramelessWindow::centralWidget() const
{
    return d->m_pCentralWidget;
}

TitleBar *FramelessWindow::getTitleBar() const
{
    return d->m_pTitleBar;
}

void FramelessWindow::setWindowTitle(const QString &title)
{
    if (d->m_pTitleBar)
        d->m_pTitleBar->setTitle(title);
    d->m_platformWindow.setTitle(title);
}

QString FramelessWindow::windowTitle() const
{
    return d->m_pTitleBar ? d->m_pTitleBar->title() : QString();
}

void FramelessWindow::setWindowIcon(const QIcon &icon)
{
    if (d->m_pTitleBar)
        d->m_pTitleBar->setTitleButtonIcon(LogoButton, icon);
    d->m_platformWindow.setIcon(icon);
}

QIcon FramelessWindow::windowIcon() const
{
    return d->m_pTitleBar ? d->m_pTitleBar->titleButtonIcon(LogoButton) : QIcon();
}

void FramelessWindow::setWindowIconText(const QString &text)
{
    QWidget::setWindowIconText(text);
}

QString FramelessWindow::windowIconText() const
{
    return QWidget::windowIconText();
}

void FramelessWindow::setCursorStyle(eDirection direction)
{
    switch (direction) {
    case eTop:
    case eBottom:
        setCursor(Qt::SizeVerCursor);
        break;
    case eLeft:
    case eRight:
        setCursor(Qt::SizeHorCursor);
        break;
    default:
        setCursor(Qt::ArrowCursor);
        break;
    }
}

void FramelessWindow::swithMaxNormal()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

bool FramelessWindow::event(QEvent *event)
{
    d->m_platformWindow.handleEvent(event);
    return AppMainWindow::event(event);
}

void FramelessWindow::mousePressEvent(QMouseEvent *event)
{
    // Kept: every press is accepted, and any free area drags the window, not only the title bar.
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    d->m_bPressed = !isOverButtonStrip(event->pos(), PressStripWidth);
    if (d->m_bPressed)
        d->m_ptDragPos = event->globalPos() - frameGeometry().topLeft();
}

void FramelessWindow::mouseMoveEvent(QMouseEvent *event)
{
    const bool drags = d->m_bPressed && !isMaximized() && !isOverButtonStrip(event->pos(), PressStripWidth);
    event->setAccepted(drags);
    if (drags)
        move(event->globalPos() - d->m_ptDragPos);
}

void FramelessWindow::mouseReleaseEvent(QMouseEvent *)
{
    d->m_bPressed = false;
    if (d->m_pTitleBar)
        d->m_pTitleBar->clearChecked();
}

void FramelessWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    const bool onTitle = event->pos().y() < d->titleBarSize().height()
        && !isOverButtonStrip(event->pos(), DoubleClickStripWidth);
    event->setAccepted(onTitle);
    if (onTitle)
        d->m_pTitleBar->switchMaxMin();
}

bool FramelessWindow::isOverButtonStrip(const QPoint &pos, int stripWidth) const
{
    const QSize bar = d->titleBarSize();
    return !bar.isEmpty() && pos.y() < bar.height() && pos.x() >= bar.width() - stripWidth;
}

void FramelessWindow::keyPressEvent(QKeyEvent *event)
{
    // Kept: other keys end here, accepted.
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_F11 && d->m_pTitleBar)
        d->m_pTitleBar->titleButton(MaxButton)->click();
}

void FramelessWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
}

void FramelessWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
}

} // namespace Tarn::Widgets
