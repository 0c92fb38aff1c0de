// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "leftovers.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>

namespace Tarn::Test {

namespace {

bool isExcused(const QWidget *widget, const QStringList &excused)
{
    return std::any_of(excused.cbegin(), excused.cend(), [widget](const QString &name) {
        return name == widget->objectName() || widget->inherits(name.toLatin1().constData());
    });
}

} // namespace

QStringList leftOverTopLevels(const QStringList &excused)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList found;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *widget : topLevels) {
        // A child turned into a window dies with its parent, so the parent is the one to report.
        if (widget->parentWidget() == nullptr && !isExcused(widget, excused)) {
            found.append(
                QStringLiteral("%1 \"%2\"")
                    .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName()));
        }
    }
    return found;
}

} // namespace Tarn::Test
