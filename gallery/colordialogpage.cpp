// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "colordialogpage.h"

#include "appearance.h"
#include "colorswatch.h"
#include "parts.h"
#include "pictureview.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/stylesheetwidget.h>

using Tarn::Widgets::ColorDialog;
using Tarn::Widgets::StyleSheetWidget;

namespace Gallery {

namespace {

constexpr int CodePixels = 12;
constexpr QRgb FirstColor = 0xff2b8ad6;

QString codeFor(const QColor &initial)
{
    return QStringLiteral("const QColor color =\n"
                          "    ColorDialog::getColor(QColor(\"%1\"), this);\n"
                          "if (color.isValid())\n"
                          "    m_swatch->setColor(color);")
        .arg(initial.name());
}

/* The whole path is on the tool tip: pictures are the same wherever the program lies. */
QLabel *createPlaceNote()
{
    const QDir place(QCoreApplication::applicationDirPath());
    const QString shortened = QStringLiteral("\u2026/") + place.dirName();
    QLabel *note = createNote([shortened] {
        return ColorDialogPage::tr("Custom colours are kept beside the program, in\n%1/customSettingCfg.info")
            .arg(shortened);
    });
    note->setToolTip(place.filePath(QStringLiteral("customSettingCfg.info")));
    return note;
}

QDialog *createExhibit(QWidget *parent)
{
    return new ColorDialog(QColor(FirstColor), parent);
}

} // namespace

ColorDialogPage::ColorDialogPage(Appearance *appearance, QWidget *parent)
    : QWidget(parent)
{
    auto *choices = new QVBoxLayout;
    choices->setSpacing(10);
    choices->addWidget(createChoices());
    choices->addWidget(createOpenButtons());
    choices->addWidget(createPlaceNote());
    choices->addStretch();

    // One for all pictures: a dialog writes the custom colours when it is destroyed.
    m_model = new ColorDialog(QColor(FirstColor), this);
    m_code = new QPlainTextEdit;
    m_code->setReadOnly(true);
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(CodePixels);
    m_code->setFont(font);
    keepTranslated(m_code, [this] { m_code->setAccessibleName(tr("Code")); });
    m_code->setFixedHeight(96);
    auto *result = new QVBoxLayout;
    result->setSpacing(10);
    result->addWidget(createPreview(), 1);
    result->addWidget(m_code);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(16);
    layout->addLayout(choices);
    layout->addLayout(result, 1);
    connect(m_swatch, &ColorSwatch::colorChanged, this, &ColorDialogPage::refresh);
    connect(appearance, &Appearance::changed, this, &ColorDialogPage::refresh);
}

ColorDialogPage::~ColorDialogPage() = default;

Page ColorDialogPage::page()
{
    return {QStringLiteral("colour-dialog"),
            tr("Colour dialog"),
            tr("A chooser whose custom colours outlive the program, in one call."),
            [](Appearance *appearance, QWidget *parent) -> QWidget * {
                return new ColorDialogPage(appearance, parent);
            },
            {{QStringLiteral("dialog"), createExhibit}}};
}

QWidget *ColorDialogPage::createChoices()
{
    m_swatch = new ColorSwatch(QColor(FirstColor));
    keepTranslated(m_swatch, [this] {
        m_swatch->setToolTip(tr("Drop a colour here"));
        m_swatch->setAccessibleName(tr("Chosen colour"));
    });
    m_initialColors = createComboBox();
    m_initialColors->addItem(QString());
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::gray), QColor(Qt::white)})
        m_initialColors->addItem(QString(), color);
    keepTranslated(m_initialColors, [this] {
        setRowTexts(m_initialColors, {tr("the chosen one"), tr("Red"), tr("Grey"), tr("White")});
    });
    connect(m_initialColors, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ColorDialogPage::refresh);

    auto *group = new QGroupBox;
    showText(group, [] { return tr("Colour"); });
    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    addFormRow(
        layout, [] { return tr("Chosen"); }, m_swatch);
    addFormRow(
        layout, [] { return tr("Begin with"); }, m_initialColors);
    return group;
}

QWidget *ColorDialogPage::createOpenButtons()
{
    auto *row = new QWidget(this);
    auto *choose = createButton([] { return tr("Choose"); });
    auto *modeless = new QPushButton;
    keepTranslated(modeless, [modeless] {
        modeless->setText(tr("Open modeless"));
        modeless->setToolTip(tr("To drag its swatch to the one above"));
    });
    choose->setDefault(true);
    connect(choose, &QPushButton::clicked, this, &ColorDialogPage::choose);
    connect(modeless, &QPushButton::clicked, this, &ColorDialogPage::openModeless);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(choose);
    layout->addWidget(modeless);
    layout->addStretch();
    return row;
}

QWidget *ColorDialogPage::createPreview()
{
    auto *stage = new StyleSheetWidget(this);
    stage->setObjectName(QStringLiteral("galleryStage"));
    m_preview = new PictureView(stage);
    keepTranslated(m_preview, [this] { m_preview->setAccessibleName(tr("Picture of the colour dialog")); });
    m_outcome = createNote([] { return tr("Not opened yet"); });
    m_outcome->setAlignment(Qt::AlignCenter);

    auto *layout = new QVBoxLayout(stage);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_outcome);
    return stage;
}

QColor ColorDialogPage::initialColor() const
{
    const QVariant color = m_initialColors->currentData();
    return color.isValid() ? color.value<QColor>() : m_swatch->color();
}

void ColorDialogPage::choose()
{
    // The page may be deleted meanwhile.
    const QPointer<ColorDialogPage> alive(this);
    const QColor color = ColorDialog::getColor(initialColor(), this);
    if (!alive)
        return;
    showText(m_outcome, [color] {
        return color.isValid() ? tr("Result: %1").arg(color.name()) : tr("Result: an invalid colour");
    });
    if (color.isValid())
        m_swatch->setColor(color);
}

void ColorDialogPage::openModeless()
{
    auto *dialog = new ColorDialog(initialColor(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void ColorDialogPage::refresh()
{
    m_code->setPlainText(codeFor(initialColor()));
    m_model->setInitColor(initialColor());
    m_preview->setPicture(m_model->grab());
}

/* The dialog in the picture has its new texts once the children know of the language. */
bool ColorDialogPage::event(QEvent *event)
{
    const bool isRecognized = QWidget::event(event);
    if (event->type() == QEvent::LanguageChange && isVisible())
        refresh();
    return isRecognized;
}

void ColorDialogPage::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

} // namespace Gallery
