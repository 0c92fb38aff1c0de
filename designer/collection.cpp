// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "collection.h"

#include "descriptions.h"
#include "widgetplugin.h"

Collection::Collection(QObject *parent)
    : QObject(parent)
{
    const QVector<WidgetDescription> descriptions = widgetDescriptions();
    for (const WidgetDescription &description : descriptions)
        m_widgets.append(new WidgetPlugin(description, this));
}

QList<QDesignerCustomWidgetInterface *> Collection::customWidgets() const
{
    return m_widgets;
}
