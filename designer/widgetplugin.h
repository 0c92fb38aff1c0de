// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_DESIGNER_WIDGETPLUGIN_H
#define TARN_DESIGNER_WIDGETPLUGIN_H

#include <QObject>
#include <QPair>
#include <QSize>
#include <QString>
#include <QVector>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class QXmlStreamWriter;

/*! What Qt Designer is to know about one widget class. */
struct WidgetDescription
{
    QString name; //!< The class, without its namespace.
    QString base; //!< The class that uic takes it for.
    QString header;
    QString group;
    QString toolTip;
    QString whatsThis;
    QSize size; //!< Of a new one on a form without a layout.
    QVector<QPair<QString, QString>> propertyToolTips; //!< Names and texts.

    QWidget *(*create)(QWidget *parent) = nullptr;

    /*! Done to each one that Designer itself makes; may be null. */
    void (*prepareForEditor)(QWidget *widget) = nullptr;

    /*! Done once, in Designer only; may be null. */
    void (*registerExtensions)(QDesignerFormEditorInterface *core) = nullptr;

    bool isContainer = false;
    QString addPageMethod; //!< Empty for widgets without pages.
    int pages = 0; //!< Of a new one.
};

/*! A widget in Designer's box of widgets, as described. */
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(WidgetDescription description, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;

    bool isInitialized() const override;

    /*! Designer calls it; programs that load forms do not. */
    void initialize(QDesignerFormEditorInterface *core) override;
    QWidget *createWidget(QWidget *parent) override;

private:
    void writeCustomWidget(QXmlStreamWriter &xml) const;

    const WidgetDescription m_description;
    bool m_bInDesigner = false;
};

#endif
