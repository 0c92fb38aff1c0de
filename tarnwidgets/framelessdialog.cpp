// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "framelessdialog.h"

#include "framelesshelper.h"
#include "frameline.h"
#include "titlebar.h"
#include "titlebuttons_p.h"
#include "toplevelwindow_p.h"

#include <QEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

namespace Tarn::Widgets {

namespace {

constexpr int ContentIndex = 2; // in the main layout: below the title bar and the upper line
constexpr int SeparatorHeight = 2;
constexpr int BottomBarHeight =
    54; // the buttons, their margins and the lines, as noCentralHeight() counts them
constexpr int ShadowDepth = 10;

QSize primaryScreenSize()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().size() : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

/* Unlike QPainter::fillRect() this covers every pixel wholly that lies inside, however it is clipped. */
void fillGround(QPainter *painter, const QRectF &ground)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(ground);
    painter->fillPath(path, FramelessDialog::m_defaultBackgroundColor);
}

/*
 * The two steps that drawSolidBorder() stands for.
 * Kept: the pen runs along whole coordinates, so that each side of the outline is half covered.
 */
void drawGroundAndOutline(QPainter *painter, const QSize &size)
{
    painter->setRenderHint(QPainter::Antialiasing);
    fillGround(painter, QRectF(1, 1, size.width() - 2, size.height() - 2));
    painter->setPen(QPen(FramelessDialog::m_defaultBorderColor, 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(0, 0, size.width() - 1, size.height() - 1));
}

bool isWhole(qreal value)
{
    return value == std::floor(value);
}

/*
 * Whether filled rectangles give the very pixels of the antialiased steps: where the painter's pixels are the
 * dialog's, and colors are blended with 8 bits a channel.
 */
bool isPixelByPixel(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxTranslate || !isWhole(transform.dx()) || !isWhole(transform.dy())
        || painter.hasClipping() || painter.compositionMode() != QPainter::CompositionMode_SourceOver)
        return false;
    const auto *image = dynamic_cast<const QImage *>(painter.paintEngine()->paintDevice());
    return image
        && (image->format() == QImage::Format_ARGB32_Premultiplied
            || image->format() == QImage::Format_RGB32);
}

/*
 * The antialiased outline, one pixel wide along whole coordinates: half of it lies on the pixels before its
 * lines and half on those behind, and each line ends before the next one begins.
 */
void fillOutline(QPainter *painter, const QSize &size, const QRect &exposed)
{
    // Reduced to 8 bits first, as the antialiased pen reduces it.
    QColor before(FramelessDialog::m_defaultBorderColor.rgba64().toArgb32());
    QColor behind = before;
    before.setAlpha(127);
    behind.setAlpha(128);
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    const auto fill = [painter, &exposed](const QRect &line, const QColor &color) {
        if (line.intersects(exposed))
            painter->fillRect(line, color);
    };
    fill(QRect(0, 0, right, 1), behind);
    fill(QRect(right - 1, 0, 1, bottom), before);
    fill(QRect(right, 0, 1, bottom), behind);
    fill(QRect(0, bottom - 1, right, 1), before);
    fill(QRect(0, bottom, right, 1), behind);
    fill(QRect(0, 0, 1, bottom), behind);
}

} // namespace

class FramelessDialogPrivate
{
public:
    explicit FramelessDialogPrivate(FramelessDialog *q)
        : m_platformWindow(q)
    {
    }

    QPointer<QFrame> m_pUpperLine;
    QPointer<QFrame> m_pLowerLine;
    QPointer<QWidget> m_pContentHolder;
    QPointer<QLayout> m_pContentLayout;
    FramelessHelper *m_pHelper = nullptr;
    QString m_buttonTexts[3]; // of OK, Cancel and Apply, as the dialog itself set them last
    TopLevelWindow m_platformWindow;
};

QColor FramelessDialog::m_defaultBackgroundColor(69, 69, 69);
QColor FramelessDialog::m_defaultBorderColor(56, 56, 56);
QColor FramelessDialog::m_defaultSpecialBackgroungColor(34, 33, 38);
QColor FramelessDialog::m_defaultNormalBackgroungColor(56, 58, 63);

FramelessDialog::FramelessDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::BypassWindowManagerHint)
    , d(std::make_unique<FramelessDialogPrivate>(this))
{
    createWidgets();
    createConnects();
    setMinButtonVisible(false);
    setMaxButtonVisible(false);
}

FramelessDialog::~FramelessDialog() = default;

void FramelessDialog::createWidgets()
{
    setWindowFlag(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isFramelessDialog", true);

    m_pTitleBar = new TitleBar(this);
    m_pTitleBar->setProperty("isFramelessDialogTitleBar", true);
    m_pTitleBar->setTitleAlignment(Qt::AlignCenter);
    setMaximumSize(primaryScreenSize());

    createMainLayout();

    d->m_pHelper = new FramelessHelper(this);
    d->m_pHelper->activateOn(this);
    d->m_pHelper->setTitleHeight(uint(m_pTitleBar->height()));
}

void FramelessDialog::createMainLayout()
{
    auto *titleLayout = new QHBoxLayout;
    titleLayout->setSpacing(0);
    titleLayout->setContentsMargins(1, 0, 1, 0);
    titleLayout->addWidget(m_pTitleBar);

    const QString separator = QStringLiteral("isBackgroundSeparator");
    d->m_pUpperLine = FrameLine::createHorizontalLine(separator, this, SeparatorHeight, 0, 0);
    d->m_pLowerLine = FrameLine::createHorizontalLine(separator, this, SeparatorHeight, 0, 0);
    createBottomWidget();

    m_pMainLayout = new QVBoxLayout(this);
    m_pMainLayout->setSpacing(0);
    m_pMainLayout->setContentsMargins(1, 1, 1, 1);
    m_pMainLayout->addLayout(titleLayout);
    m_pMainLayout->addWidget(d->m_pUpperLine);
    m_pMainLayout->addWidget(d->m_pLowerLine);
    m_pMainLayout->addWidget(m_pBottomWidget);
}

void FramelessDialog::createBottomWidget()
{
    m_pBottomWidget = new QWidget(this);
    m_pBottomWidget->setProperty("isFramelessDialogBottomWidget", true);
    m_pOKButton = new QPushButton(m_pBottomWidget);
    m_pOKButton->setDefault(true);
    m_pCancelButton = new QPushButton(m_pBottomWidget);
    m_pApplyButton = new QPushButton(m_pBottomWidget);
    m_pApplyButton->hide();
    retranslateButtons();

    m_pBottomLayout = new QHBoxLayout(m_pBottomWidget);
    m_pBottomLayout->setSpacing(20);
    m_pBottomLayout->setContentsMargins(20, 10, 20, 10);
    m_pBottomLayout->addStretch();
    m_pBottomLayout->addWidget(m_pOKButton);
    m_pBottomLayout->addWidget(m_pCancelButton);
    m_pBottomLayout->addWidget(m_pApplyButton);
}

void FramelessDialog::retranslateButtons()
{
    QPushButton *const buttons[] = {m_pOKButton, m_pCancelButton, m_pApplyButton};
    const QString texts[] = {tr("OK"), tr("Cancel"), tr("Apply")};
    for (int i = 0; i < 3; ++i) {
        // A text that somebody else set stays.
        if (buttons[i]->text() == d->m_buttonTexts[i])
            buttons[i]->setText(texts[i]);
        d->m_buttonTexts[i] = texts[i];
    }
}

void FramelessDialog::createConnects()
{
    connect(m_pTitleBar, &TitleBar::closed, this, &FramelessDialog::close);
    connect(m_pTitleBar, &TitleBar::minimuned, this, &FramelessDialog::showMinimized);
    connect(m_pTitleBar, &TitleBar::maximumed, this, &FramelessDialog::swithMaxNormal);
    connect(m_pTitleBar, &TitleBar::normaled, this, &FramelessDialog::swithMaxNormal);
    connect(m_pOKButton, &QPushButton::clicked, this, &FramelessDialog::accept);
    connect(m_pCancelButton, &QPushButton::clicked, this, &FramelessDialog::reject);
}

QWidget *FramelessDialog::getContentHolder()
{
    if (!d->m_pContentHolder) {
        d->m_pContentHolder = new QWidget(this);
        d->m_pContentHolder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        m_pMainLayout->insertWidget(ContentIndex, d->m_pContentHolder);
    }
    return d->m_pContentHolder;
}

void FramelessDialog::setLayout(QLayout *layout)
{
    if (!layout || layout == d->m_pContentLayout)
        return;
    if (layout->parent()) {
        qWarning("%s The layout belongs to another widget or layout.", Q_FUNC_INFO);
        return;
    }
    layout->setContentsMargins(layout->contentsMargins() + QMargins(1, 0, 1, 0)); // Kept: clear of the border
    m_pMainLayout->insertLayout(ContentIndex, layout);
    d->m_pContentLayout = layout;
}

QLayout *FramelessDialog::layout() const
{
    if (d->m_pContentLayout)
        return d->m_pContentLayout;
    return d->m_pContentHolder ? d->m_pContentHolder->layout() : nullptr;
}

QVBoxLayout *FramelessDialog::getMainLayout() const
{
    return m_pMainLayout;
}

int FramelessDialog::noCentralHeight() const
{
    return m_pTitleBar->height() + BottomBarHeight;
}

void FramelessDialog::setWindowTitle(const QString &title)
{
    m_pTitleBar->setTitle(title);
    d->m_platformWindow.setTitle(title);
}

QString FramelessDialog::windowTitle() const
{
    return m_pTitleBar->title();
}

void FramelessDialog::setWindowTitleAlignment(Qt::Alignment alignment)
{
    m_pTitleBar->setTitleAlignment(alignment);
}

void FramelessDialog::setWindowIcon(const QIcon &icon)
{
    m_pTitleBar->setTitleButtonIcon(LogoButton, icon);
    QDialog::setWindowIcon(icon);
}

QIcon FramelessDialog::windowIcon() const
{
    return m_pTitleBar->titleButtonIcon(LogoButton);
}

void FramelessDialog::setTitleButtonIcon(const int &index, const QIcon &icon)
{
    m_pTitleBar->setTitleButtonIcon(index, icon);
}

void FramelessDialog::appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize)
{
    m_pTitleBar->appendExtendTitleButton(action, buttonSize, iconSize);
}

void FramelessDialog::insertExtendTitleButton(int index, QAction *action, QSize buttonSize, QSize iconSize)
{
    m_pTitleBar->insertExtendTitleButton(index, action, buttonSize, iconSize);
}

void FramelessDialog::setMinButtonVisible(bool visible)
{
    m_pTitleBar->setTitleButtonVisible(MinButton, visible);
}

void FramelessDialog::setMaxButtonVisible(bool visible)
{
    m_pTitleBar->setTitleButtonVisible(MaxButton, visible);
    m_pTitleBar->setTitleButtonVisible(RestoreButton, visible);
    if (visible)
        m_pTitleBar->setMaximized(isMaximized());
    else
        setDialogResizable(false); // Kept: showing the buttons does not undo it
}

void FramelessDialog::setCloseButtonVisible(bool visible)
{
    m_pTitleBar->setTitleButtonVisible(CloseButton, visible);
}

bool FramelessDialog::getCloseButtonVisible() const
{
    return m_pTitleBar->isTitleButtonVisible(CloseButton);
}

void FramelessDialog::setOKButtonVisible(bool visible)
{
    m_pOKButton->setVisible(visible);
}

void FramelessDialog::setCancelButtonVisible(bool visible)
{
    m_pCancelButton->setVisible(visible);
}

void FramelessDialog::setApplyButtonVisible(bool visible)
{
    m_pApplyButton->setVisible(visible);
}

void FramelessDialog::setOKButtonDefault(bool isDefault)
{
    m_pOKButton->setDefault(isDefault);
}

void FramelessDialog::setBottomBarVisible(bool visible)
{
    if (d->m_pLowerLine)
        d->m_pLowerLine->setVisible(visible);
    m_pBottomWidget->setVisible(visible);
}

void FramelessDialog::setHorizontalLineHeight(int height)
{
    for (QFrame *line : {d->m_pUpperLine.data(), d->m_pLowerLine.data()}) {
        if (line)
            line->setFixedHeight(height);
    }
}

void FramelessDialog::setDialogMovable(bool movable)
{
    d->m_pHelper->setWidgetMovable(movable);
}

void FramelessDialog::setDialogtMovable(bool movable)
{
    setDialogMovable(movable);
}

void FramelessDialog::setDialogResizable(bool resizable)
{
    d->m_pHelper->setWidgetResizable(resizable);
}

void FramelessDialog::setRubberBandOnMove(bool on)
{
    d->m_pHelper->setRubberBandOnMove(on);
}

void FramelessDialog::setRubberBandOnResize(bool on)
{
    d->m_pHelper->setRubberBandOnResize(on);
}

void FramelessDialog::reTranslateUI() {}

void FramelessDialog::swithMaxNormal()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void FramelessDialog::show()
{
    QDialog::show();
    m_pTitleBar->setMaximized(isMaximized());
}

void FramelessDialog::showMinimized()
{
    QDialog::showMinimized();
}

void FramelessDialog::showMaximized()
{
    QDialog::showMaximized();
    m_pTitleBar->setMaximized(true);
}

void FramelessDialog::showFullScreen()
{
    QDialog::showFullScreen();
}

void FramelessDialog::showNormal()
{
    QDialog::showNormal();
    d->m_platformWindow.placeByState(); // a drag of the maximised dialog has ended the state without an event
    m_pTitleBar->setMaximized(false);
}

void FramelessDialog::open()
{
    QDialog::open();
}

int FramelessDialog::exec()
{
    return QDialog::exec();
}

bool FramelessDialog::event(QEvent *event)
{
    d->m_platformWindow.handleEvent(event);
    // The window manager, which the dialog bypasses, gives it the keyboard neither now nor back.
    if (event->type() == QEvent::Show && !event->spontaneous()
        && !testAttribute(Qt::WA_ShowWithoutActivating))
        d->m_platformWindow.takeKeyboard();
    else if (event->type() == QEvent::Hide && !event->spontaneous())
        d->m_platformWindow.returnKeyboard();
    return QDialog::event(event);
}

void FramelessDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateButtons();
        reTranslateUI();
    }
}

bool FramelessDialog::eventFilter(QObject *watched, QEvent *event)
{
    return QDialog::eventFilter(watched, event);
}

void FramelessDialog::paintEvent(QPaintEvent *event)
{
    drawSolidBorder(event);
}

void FramelessDialog::drawSolidBorder(QPaintEvent *event)
{
    QPainter painter(this);
    if (width() < 3 || height() < 3 || m_defaultBorderColor.alpha() < 255 || !isPixelByPixel(painter)) {
        drawGroundAndOutline(&painter, size());
        return;
    }
    const QRect ground = rect().adjusted(1, 1, -1, -1);
    const QRect clearOfOutline = ground.adjusted(0, 0, -1, -1);
    const QRegion exposed = event ? event->region() : rect();
    for (const QRect &part : exposed) {
        // Qt clips to one rectangle much faster than to a region.
        if (exposed.rectCount() > 1)
            painter.setClipRect(part);
        painter.fillRect(ground, m_defaultBackgroundColor);
        if (!clearOfOutline.contains(part))
            fillOutline(&painter, size(), part);
    }
}

void FramelessDialog::drawShadowBorder(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    fillGround(&painter, QRectF(rect()).adjusted(ShadowDepth, ShadowDepth, -ShadowDepth, -ShadowDepth));
    QColor shadow(Qt::black);
    for (int ring = 0; ring < ShadowDepth; ++ring) {
        const qreal inset = ShadowDepth - ring;
        // Fades from 150 next to the content to 0 at the outer edge.
        shadow.setAlpha(int(150 - std::sqrt(ring) * 50));
        painter.setPen(shadow);
        painter.drawRect(QRectF(inset, inset, width() - 2 * inset, height() - 2 * inset));
    }
}

} // namespace Tarn::Widgets
