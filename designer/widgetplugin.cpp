// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "widgetplugin.h"

#include <QIcon>
#include <QXmlStreamWriter>

namespace {

void writeProperty(QXmlStreamWriter &xml, const QString &name, const QString &type, const QString &value)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), name);
    xml.writeTextElement(type, value);
    xml.writeEndElement();
}

void writeGeometry(QXmlStreamWriter &xml, const QSize &size)
{
    xml.writeStartElement(QStringLiteral("property"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("geometry"));
    xml.writeStartElement(QStringLiteral("rect"));
    xml.writeTextElement(QStringLiteral("x"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("y"), QStringLiteral("0"));
    xml.writeTextElement(QStringLiteral("width"), QString::number(size.width()));
    xml.writeTextElement(QStringLiteral("height"), QString::number(size.height()));
    xml.writeEndElement();
    xml.writeEndElement();
}

void startWidget(QXmlStreamWriter &xml, const QString &className, const QString &name)
{
    xml.writeStartElement(QStringLiteral("widget"));
    xml.writeAttribute(QStringLiteral("class"), className);
    xml.writeAttribute(QStringLiteral("name"), name);
}

void writePage(QXmlStreamWriter &xml, int number)
{
    startWidget(xml, QStringLiteral("QWidget"), QStringLiteral("page_%1").arg(number));
    writeProperty(xml, QStringLiteral("windowTitle"), QStringLiteral("string"),
                  QStringLiteral("Page %1").arg(number));
    xml.writeEndElement();
}

/* As Designer names new widgets: titleBar for a TitleBar. */
QString newName(const QString &className)
{
    if (className.startsWith(QStringLiteral("IP")))
        return QStringLiteral("ip") + className.mid(2);
    return className.at(0).toLower() + className.mid(1);
}

} // namespace

WidgetPlugin::WidgetPlugin(WidgetDescription description, QObject *parent)
    : QObject(parent)
    , m_description(std::move(description))
{
}

QString WidgetPlugin::name() const
{
    return QStringLiteral("Tarn::Widgets::") + m_description.name;
}

QString WidgetPlugin::group() const
{
    return m_description.group;
}

QString WidgetPlugin::toolTip() const
{
    return m_description.toolTip;
}

QString WidgetPlugin::whatsThis() const
{
    return m_description.whatsThis;
}

// In angle brackets, so that forms include it as <tarnwidgets/x.h>.
QString WidgetPlugin::includeFile() const
{
    return QStringLiteral("<tarnwidgets/%1>").arg(m_description.header);
}

QIcon WidgetPlugin::icon() const
{
    return QIcon(QStringLiteral(":/tarnwidgetsdesigner/icons/%1.png").arg(m_description.name.toLower()));
}

bool WidgetPlugin::isContainer() const
{
    return m_description.isContainer;
}

bool WidgetPlugin::isInitialized() const
{
    return m_bInDesigner;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (m_bInDesigner || !core)
        return;
    m_bInDesigner = true;
    if (m_description.registerExtensions)
        m_description.registerExtensions(core);
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    QWidget *widget = m_description.create(parent);
    if (m_bInDesigner && m_description.prepareForEditor)
        m_description.prepareForEditor(widget);
    return widget;
}

QString WidgetPlugin::domXml() const
{
    QString text;
    QXmlStreamWriter xml(&text);
    xml.writeStartElement(QStringLiteral("ui"));
    xml.writeAttribute(QStringLiteral("language"), QStringLiteral("c++"));
    xml.writeAttribute(QStringLiteral("displayname"), m_description.name);

    startWidget(xml, name(), newName(m_description.name));
    writeGeometry(xml, m_description.size);
    for (int page = 1; page <= m_description.pages; ++page)
        writePage(xml, page);
    xml.writeEndElement();

    writeCustomWidget(xml);
    xml.writeEndDocument();
    return text;
}

void WidgetPlugin::writeCustomWidget(QXmlStreamWriter &xml) const
{
    xml.writeStartElement(QStringLiteral("customwidgets"));
    xml.writeStartElement(QStringLiteral("customwidget"));
    xml.writeTextElement(QStringLiteral("class"), name());
    xml.writeTextElement(QStringLiteral("extends"), m_description.base);
    if (!m_description.addPageMethod.isEmpty())
        xml.writeTextElement(QStringLiteral("addpagemethod"), m_description.addPageMethod);
    xml.writeStartElement(QStringLiteral("propertyspecifications"));
    for (const auto &[property, toolTip] : m_description.propertyToolTips) {
        xml.writeStartElement(QStringLiteral("tooltip"));
        xml.writeAttribute(QStringLiteral("name"), property);
        xml.writeCharacters(toolTip);
        xml.writeEndElement();
    }
    for (int open = 0; open < 3; ++open)
        xml.writeEndElement();
}
