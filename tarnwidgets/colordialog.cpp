// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colordialog.h"

#include "colorpicker.h"
#include "colorshower.h"
#include "colorwallarray.h"
#include "customcolorfile_p.h"
#include "titlebar.h"
#include "titlebuttons_p.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>

namespace Tarn::Widgets {

namespace {

constexpr QSize DialogSize(630, 525);
constexpr int TitleBarHeight = 32;
constexpr int TitleLabelHeight = 20;
constexpr QSize StandardGridSize(280, 185);
constexpr QSize CustomGridSize(280, 60);
constexpr int ShowerHeight = 122;
constexpr QSize ApplyButtonSize(148, 30);
constexpr QSize ButtonSize(70, 30);
constexpr int BottomBarHeight = 50;

constexpr int ColumnCount = 8; // of both grids
constexpr int StandardRowCount = 6;
constexpr int CustomRowCount = 2;
constexpr int StandardColorCount = StandardRowCount * ColumnCount;
constexpr int ColorCount = StandardColorCount + CustomColorCount;
static_assert(CustomColorCount == CustomRowCount * ColumnCount);

constexpr QRgb White = 0xffffffff;

CustomColorFile customColorFile()
{
    return CustomColorFile(QCoreApplication::applicationDirPath() + QStringLiteral("/customSettingCfg.info"));
}

/* The entry of a standard colour among those with every mixture of 4 greens, 4 reds and 3 blues. */
constexpr QRgb standardColor(int index)
{
    const int green = index / 12 * 0x55;
    const int red = index / 3 % 4 * 0x55;
    const int blue = index % 3 * 0xff / 2;
    return qRgb(red, green, blue);
}

ColorWellArray *createGrid(QWidget *parent, int rows, const QRgb *colors, const QSize &size)
{
    auto *grid = new ColorWellArray(parent, rows, ColumnCount, colors);
    grid->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    grid->setFixedSize(size);
    grid->setCurrent(-1, -1);
    grid->setSelected(-1, -1);
    return grid;
}

/* Without a margin. */
template <typename Layout> Layout *createLayout(int spacing)
{
    auto *layout = new Layout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QLayout *createColumn(QWidget *caption, QWidget *grid)
{
    auto *column = createLayout<QVBoxLayout>(16);
    column->addWidget(caption);
    column->addWidget(grid);
    return column;
}

void setUpButton(QPushButton *button, const QSize &size, const QString &styleClass)
{
    button->setFixedSize(size);
    button->setProperty("class", styleClass);
}

} // namespace

class ColorDialogPrivate
{
public:
    void createWidgets(QWidget *parent);
    QLayout *createLeftSide() const;
    QLayout *createRightSide() const;

    void showInPickers(const QColor &color) const;
    void showEverywhere(const QColor &color) const;
    void showEntry(int index) const;
    void setEntry(int index, QRgb rgb);
    QRgb *customColors();

    // The standard colours, then the custom ones, both by columns.
    QRgb m_colors[ColorCount];

    QLabel *m_pStandardLabel = nullptr;
    ColorWellArray *m_pStandardGrid = nullptr;
    QLabel *m_pCustomLabel = nullptr;
    ColorWellArray *m_pCustomGrid = nullptr;
    ColorPicker *m_pPicker = nullptr;
    ColorLuminancePicker *m_pLuminancePicker = nullptr;
    ColorShower *m_pShower = nullptr;
};

void ColorDialogPrivate::createWidgets(QWidget *parent)
{
    m_pStandardLabel = new QLabel(parent);
    m_pStandardGrid = createGrid(parent, StandardRowCount, m_colors, StandardGridSize);
    m_pCustomLabel = new QLabel(parent);
    m_pCustomGrid = createGrid(parent, CustomRowCount, customColors(), CustomGridSize);
    m_pPicker = new ColorPicker(parent);
    m_pLuminancePicker = new ColorLuminancePicker(parent);
    m_pShower = new ColorShower(parent);
    m_pShower->setFixedHeight(ShowerHeight);
}

QLayout *ColorDialogPrivate::createLeftSide() const
{
    auto *side = createLayout<QVBoxLayout>(0);
    side->addLayout(createColumn(m_pStandardLabel, m_pStandardGrid));
    side->addStretch();
    side->addLayout(createColumn(m_pCustomLabel, m_pCustomGrid));
    return side;
}

QLayout *ColorDialogPrivate::createRightSide() const
{
    auto *pickers = createLayout<QHBoxLayout>(11);
    pickers->addWidget(m_pPicker);
    pickers->addWidget(m_pLuminancePicker);
    auto *side = createLayout<QVBoxLayout>(0);
    side->addLayout(pickers);
    side->addStretch();
    side->addWidget(m_pShower);
    return side;
}

QRgb *ColorDialogPrivate::customColors()
{
    return m_colors + StandardColorCount;
}

void ColorDialogPrivate::showInPickers(const QColor &color) const
{
    int hue = 0;
    int sat = 0;
    int val = 0;
    color.getHsv(&hue, &sat, &val);
    m_pPicker->setCol(hue, sat);
    m_pLuminancePicker->setCol(hue, sat, val);
}

void ColorDialogPrivate::showEverywhere(const QColor &color) const
{
    showInPickers(color);
    m_pShower->setRgb(color.rgb());
}

// Kept: the custom grid's missing cell (-1, -1) is three entries before its first one, which makes it a
// standard colour, the yellow one. It is shown, and changed, like any other.

void ColorDialogPrivate::showEntry(int index) const
{
    if (index >= 0 && index < ColorCount)
        showEverywhere(QColor(m_colors[index]));
}

void ColorDialogPrivate::setEntry(int index, QRgb rgb)
{
    if (index < 0 || index >= ColorCount)
        return;
    m_colors[index] = rgb;
    if (index < StandardColorCount)
        m_pStandardGrid->update(
            m_pStandardGrid->cellRect(index % StandardRowCount, index / StandardRowCount));
}

QColor ColorDialog::m_selectedColor(255, 255, 255);

ColorDialog::ColorDialog(QColor initial, QWidget *parent)
    : FramelessDialog(parent)
    , d(std::make_unique<ColorDialogPrivate>())
{
    setProperty("isColorEditDialog", true);
    setWindowTitleAlignment(Qt::AlignCenter);
    setMinButtonVisible(false);
    setMaxButtonVisible(false);
    setDialogResizable(false);
    setDialogtMovable(true);
    m_pTitleBar->setTitleButtonVisible(LogoButton, false);
    m_pTitleBar->setFixedHeight(TitleBarHeight);
    m_pTitleBar->titleLabel()->setFixedHeight(TitleLabelHeight);
    setFixedSize(DialogSize);

    initData();
    initUI();
    initConnect();
    setInitColor(initial);
    setApplyButtonVisible(true);
}

// Kept: whether it was accepted or not.
ColorDialog::~ColorDialog()
{
    customColorFile().write(d->customColors());
    // The parts die after this. An input method may end an edit then, which must find nobody.
    const QList<QObject *> parts = findChildren<QObject *>();
    for (QObject *part : parts)
        part->disconnect(this);
}

QColor ColorDialog::getColor(const QColor &initial, QWidget *parent)
{
    // Watched, since the parent may be deleted meanwhile, and the dialog with it.
    const QPointer<ColorDialog> dialog = new ColorDialog(initial, parent);
    dialog->exec();
    m_selectedColor.setAlpha(255);
    delete dialog;
    return m_selectedColor;
}

void ColorDialog::setInitColor(const QColor &color)
{
    d->showEverywhere(color);
}

void ColorDialog::initData()
{
    for (int i = 0; i < StandardColorCount; ++i)
        d->m_colors[i] = standardColor(i);
    std::fill_n(d->customColors(), CustomColorCount, White);
    customColorFile().read(d->customColors());
}

void ColorDialog::initUI()
{
    setHorizontalLineHeight(1);
    d->createWidgets(this);
    auto *content = new QHBoxLayout;
    content->setSpacing(16);
    content->setContentsMargins(14, 25, 14, 25);
    content->addLayout(d->createLeftSide());
    content->addLayout(d->createRightSide());
    setLayout(content);
    initBottomBtn();
    ColorDialog::reTranslateUI();
}

void ColorDialog::initBottomBtn()
{
    for (QPushButton *button : {m_pApplyButton, m_pOKButton, m_pCancelButton})
        m_pBottomLayout->removeWidget(button);
    setUpButton(m_pApplyButton, ApplyButtonSize, QStringLiteral("Active"));
    setUpButton(m_pOKButton, ButtonSize, QStringLiteral("Active"));
    setUpButton(m_pCancelButton, ButtonSize, QStringLiteral("NoActive"));

    m_pBottomWidget->setFixedHeight(BottomBarHeight);
    m_pBottomLayout->setSpacing(24);
    m_pBottomLayout->setContentsMargins(0, 0, 20, 0);
    m_pBottomLayout->addStretch();
    m_pBottomLayout->addWidget(m_pApplyButton);
    m_pBottomLayout->addWidget(m_pOKButton);
    m_pBottomLayout->addSpacing(2);
    m_pBottomLayout->addWidget(m_pCancelButton);
}

void ColorDialog::reTranslateUI()
{
    setWindowTitle(tr("颜色编辑器"));
    d->m_pStandardLabel->setText(tr("基本颜色"));
    d->m_pCustomLabel->setText(tr("自定义颜色"));
    m_pApplyButton->setText(tr("添加到自定义颜色"));
    m_pOKButton->setText(tr("确定"));
    m_pCancelButton->setText(tr("取消"));
    d->m_pShower->retranslateStrings();
}

void ColorDialog::initConnect()
{
    connect(d->m_pPicker, &ColorPicker::newCol, d->m_pLuminancePicker,
            qOverload<int, int>(&ColorLuminancePicker::setCol));
    connect(d->m_pLuminancePicker, &ColorLuminancePicker::newHsv, this, [this](int hue, int sat, int val) {
        d->m_pShower->setRgb(QColor::fromHsv(hue, sat, val).rgb());
    });
    connect(d->m_pShower, &ColorShower::newCol, this, [this](QRgb rgb) { d->showInPickers(QColor(rgb)); });
    connect(d->m_pStandardGrid, &WellArray::currentChanged, this,
            [this](int row, int column) { d->showEntry(row + column * StandardRowCount); });
    connect(d->m_pCustomGrid, &WellArray::currentChanged, this, [this](int row, int column) {
        d->showEntry(StandardColorCount + row + column * CustomRowCount);
    });
    connect(m_pApplyButton, &QPushButton::clicked, this, &ColorDialog::addToCustomColors);

    // Kept: the result follows clicks alone, so that closing in another way leaves it as it was.
    connect(m_pOKButton, &QPushButton::clicked, this,
            [this] { m_selectedColor = d->m_pShower->currentQColor(); });
    const auto cancel = [] { m_selectedColor = QColor(); };
    connect(m_pCancelButton, &QPushButton::clicked, this, cancel);
    connect(m_pTitleBar->titleButton(CloseButton), &QToolButton::clicked, this, cancel);
}

void ColorDialog::addToCustomColors()
{
    int row = d->m_pCustomGrid->selectedRow();
    int column = d->m_pCustomGrid->selectedColumn();
    d->setEntry(StandardColorCount + row + column * CustomRowCount, d->m_pShower->currentColor());
    d->m_pCustomGrid->repaint(d->m_pCustomGrid->cellRect(row, column));
    moveNextPos(row, column);
    d->m_pCustomGrid->setSelected(row, column);
}

void ColorDialog::moveNextPos(int &row, int &column) const
{
    if (++row == CustomRowCount) {
        row = 0;
        ++column;
    }
    if (column == ColumnCount)
        column = 0;
}

} // namespace Tarn::Widgets
