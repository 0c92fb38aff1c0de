// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "separatorspage.h"

#include "parts.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>
#include <tarnwidgets/frameline.h>

using Tarn::Widgets::FrameLine;

namespace Gallery {

namespace {

constexpr uint Widths[] = {1, 2};
constexpr uint ChosenWidth = 8; // at the start

QString widthText(uint width)
{
    return SeparatorsPage::tr("%1 px").arg(width);
}

QLabel *createLabel(const Text &text)
{
    auto *label = new QLabel;
    showText(label, text);
    return label;
}

} // namespace

SeparatorsPage::SeparatorsPage(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(10);
    layout->addWidget(createGroup([] { return tr("The theme's rule, as in dialogs"); },
                                  QStringLiteral("isBackgroundSeparator")));
    layout->addWidget(
        createGroup([] { return tr("A rule of the application"); }, QStringLiteral("isGalleryAccentLine")));
    layout->addWidget(createGroup([] { return tr("No rule: horizontal lines are not seen"); },
                                  QStringLiteral("isGalleryPlainLine")));
    layout->addWidget(createWidthChooser());
    layout->addStretch();
}

SeparatorsPage::~SeparatorsPage() = default;

Page SeparatorsPage::page()
{
    return {QStringLiteral("separators"),
            tr("Separator lines"),
            tr("Thin lines in all widths, painted by a rule for a property of the caller's choice."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new SeparatorsPage(parent); },
            {}};
}

QWidget *SeparatorsPage::createGroup(const Text &title, const QString &propertyName)
{
    auto *group = new QGroupBox(this);
    showText(group, title);
    auto *layout = new QGridLayout(group);
    layout->setHorizontalSpacing(24);
    layout->addWidget(createHorizontalLines(propertyName), 0, 0);
    layout->addWidget(createVerticalLines(propertyName), 0, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return group;
}

QWidget *SeparatorsPage::createHorizontalLines(const QString &propertyName)
{
    auto *lines = new QWidget;
    auto *layout = new QGridLayout(lines);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(2);
    int row = 0;
    const auto add = [&](uint width, const Text &text) {
        QFrame *line = FrameLine::createHorizontalLine(propertyName, lines, width, 0, 0);
        layout->addWidget(createLabel(text), row, 0);
        layout->addWidget(line, row++, 1);
        return line;
    };
    for (const uint width : Widths)
        add(width, [width] { return widthText(width); });
    m_chosenHorizontal.append(add(ChosenWidth, [] { return tr("Chosen"); }));
    return lines;
}

QWidget *SeparatorsPage::createVerticalLines(const QString &propertyName)
{
    auto *lines = new QWidget;
    auto *layout = new QGridLayout(lines);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(2);
    int column = 0;
    const auto add = [&](uint width, const Text &text) {
        QFrame *line = FrameLine::createVerticalLine(propertyName, lines, width, 0, 0);
        layout->addWidget(line, 0, column, Qt::AlignHCenter);
        layout->addWidget(createLabel(text), 1, column++, Qt::AlignHCenter);
        return line;
    };
    for (const uint width : Widths)
        add(width, [width] { return widthText(width); });
    m_chosenVertical.append(add(ChosenWidth, [] { return tr("Chosen"); }));
    return lines;
}

QWidget *SeparatorsPage::createWidthChooser()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createLabel([] { return tr("Chosen width"); }));
    layout->addWidget(createPixelBox(1, 24, int(ChosenWidth), [this](int width) { setChosenWidth(width); }));
    layout->addStretch();
    return row;
}

void SeparatorsPage::setChosenWidth(int width)
{
    for (QFrame *line : qAsConst(m_chosenHorizontal))
        line->setFixedHeight(width);
    for (QFrame *line : qAsConst(m_chosenVertical)) {
        line->setFixedWidth(width);
        line->setLineWidth(width);
    }
}

} // namespace Gallery
