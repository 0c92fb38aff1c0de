// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "tally.h"

#include <QEvent>
#include <QFocusEvent>
#include <QMap>
#include <QMetaEnum>
#include <array>
#include <cstdio>

namespace Tarn::Storm {

namespace {

using Counts = QMap<QByteArray, int>;

// What must reach the widgets. What needs another platform than offscreen is left out.
constexpr QEvent::Type ExpectedEvents[] = {
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Wheel,
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::ShortcutOverride,
    QEvent::InputMethod,
    QEvent::ContextMenu,
    QEvent::ToolTip,
    QEvent::Enter,
    QEvent::Leave,
    QEvent::HoverEnter,
    QEvent::HoverMove,
    QEvent::HoverLeave,
    QEvent::DragEnter,
    QEvent::DragMove,
    QEvent::DragLeave,
    QEvent::Drop,
    QEvent::FocusIn,
    QEvent::FocusOut,
    QEvent::Show,
    QEvent::Hide,
    QEvent::Close,
    QEvent::Move,
    QEvent::Resize,
    QEvent::Paint,
    QEvent::LayoutRequest,
    QEvent::ParentChange,
    QEvent::WindowStateChange,
    QEvent::WindowActivate,
    QEvent::WindowDeactivate,
    QEvent::WindowBlocked,
    QEvent::WindowUnblocked,
    QEvent::EnabledChange,
    QEvent::LanguageChange,
    QEvent::LayoutDirectionChange,
    QEvent::ApplicationLayoutDirectionChange,
    QEvent::StyleChange,
    QEvent::PaletteChange,
    QEvent::ApplicationPaletteChange,
    QEvent::FontChange,
    QEvent::ApplicationFontChange,
    QEvent::LocaleChange,
    QEvent::DeferredDelete,
    QEvent::Timer,
};

constexpr Qt::FocusReason ExpectedReasons[] = {
    Qt::MouseFocusReason, Qt::TabFocusReason,      Qt::BacktabFocusReason, Qt::ActiveWindowFocusReason,
    Qt::PopupFocusReason, Qt::ShortcutFocusReason, Qt::MenuBarFocusReason, Qt::OtherFocusReason};

Counts s_counts;
std::array<int, QEvent::User> s_events; // an array, since there are so many
std::array<int, Qt::NoFocusReason + 1> s_reasons;

QByteArray eventName(int type)
{
    return "event " + QByteArray(QMetaEnum::fromType<QEvent::Type>().valueToKey(type));
}

QByteArray reasonName(int reason)
{
    return "focus " + QByteArray(QMetaEnum::fromType<Qt::FocusReason>().valueToKey(reason));
}

Counts allCounts()
{
    Counts counts = s_counts;
    for (const QEvent::Type type : ExpectedEvents)
        counts.insert(eventName(type), s_events[std::size_t(type)]);
    for (const Qt::FocusReason reason : ExpectedReasons)
        counts.insert(reasonName(reason), s_reasons[std::size_t(reason)]);
    return counts;
}

} // namespace

void expectInTally(const QByteArray &name)
{
    s_counts[name] += 0;
}

void tally(const QByteArray &name)
{
    ++s_counts[name];
}

void tally(const QEvent *event)
{
    const auto type = std::size_t(event->type());
    if (type < s_events.size())
        ++s_events[type];
    if (event->type() == QEvent::FocusIn)
        ++s_reasons[std::size_t(static_cast<const QFocusEvent *>(event)->reason())];
}

void printTally()
{
    const Counts counts = allCounts();
    for (auto place = counts.cbegin(); place != counts.cend(); ++place)
        std::printf("%8d %s\n", place.value(), place.key().constData());
}

int printMissing()
{
    const Counts counts = allCounts();
    const QList<QByteArray> missing = counts.keys(0);
    for (const QByteArray &name : missing)
        std::printf("Never: %s\n", name.constData());
    return missing.size();
}

} // namespace Tarn::Storm
