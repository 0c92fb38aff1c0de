// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "frameline.h"

#include <QFrame>
#include <QVariant>

namespace Tarn::Widgets {

namespace {

QFrame *createLine(const QString &propertyName, QWidget *parent, const uint &lineWidth)
{
    auto *line = new QFrame(parent); // with a plain shadow from the start
    line->setLineWidth(int(lineWidth));
    line->setProperty(propertyName.toUtf8().constData(), true);
    return line;
}

} // namespace

class FrameLinePrivate
{};

FrameLine::FrameLine(QObject *parent)
    : QObject(parent)
{
}

FrameLine::~FrameLine() = default;

QFrame *FrameLine::createHorizontalLine(const QString &propertyName, QWidget *parent, const uint &lineWidth,
                                        const uint &crossMargin, const uint &endMargin)
{
    // Kept: the margins are parameters without effect, because the line comes without a layout of its own.
    Q_UNUSED(crossMargin)
    Q_UNUSED(endMargin)
    QFrame *line = createLine(propertyName, parent, lineWidth);
    line->setFixedHeight(int(lineWidth));
    line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return line;
}

QFrame *FrameLine::createVerticalLine(const QString &propertyName, QWidget *parent, const uint &lineWidth,
                                      const uint &crossMargin, const uint &endMargin)
{
    // Kept: as in createHorizontalLine().
    Q_UNUSED(crossMargin)
    Q_UNUSED(endMargin)
    QFrame *line = createLine(propertyName, parent, lineWidth);
    line->setFrameShape(QFrame::VLine);
    line->setFixedWidth(int(lineWidth));
    line->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return line;
}

} // namespace Tarn::Widgets
