// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QDomDocument>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QMap>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>
#include <optional>
#include <tarnwidgets/tarntabbar.h>

using namespace Tarn::Test;

Q_DECLARE_METATYPE(QDesignerCustomWidgetInterface *)

namespace {

QString fileText(const char *name)
{
    QFile file(QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/* The names, without namespaces, of the classes that the library exports. */
QStringList exportedClasses()
{
    QStringList classes;
    const QStringList lines = fileText(TARN_CLASSES).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            classes.append(line.section(QLatin1Char(' '), 0, 0).section(QStringLiteral("::"), -1));
    }
    return classes;
}

/* Classes that cannot stand in a form. */
QMap<QString, QString> leftOut()
{
    const QString dialog = QStringLiteral("a dialog that is called, not filled by a form");
    const QString window = QStringLiteral("a window with a layout of its own");
    const QString noWidget = QStringLiteral("no widget");
    return {{QStringLiteral("ColorDialog"), dialog},       {QStringLiteral("FrameLine"), noWidget},
            {QStringLiteral("FramelessDialog"), window},   {QStringLiteral("FramelessFileDialog"), dialog},
            {QStringLiteral("FramelessHelper"), noWidget}, {QStringLiteral("FramelessMessageBox"), dialog},
            {QStringLiteral("FramelessWindow"), window},   {QStringLiteral("LimitedFileDialog"), dialog},
            {QStringLiteral("QssLoader"), noWidget}};
}

QString shortName(const QDesignerCustomWidgetInterface *plugin)
{
    return plugin->name().section(QStringLiteral("::"), -1);
}

QImage picture(const QDesignerCustomWidgetInterface *plugin, int size)
{
    return plugin->icon().pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

int opaquePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
    }
    return count;
}

} // namespace

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void everyExportedClassIsOfferedOrLeftOutForAReason();
    void manualOfThePluginNamesEveryClass();
    void descriptionIsComplete_data();
    void descriptionIsComplete();
    void iconsDiffer();
    void iconIsSharpOnDenseScreens_data();
    void iconIsSharpOnDenseScreens();
    void includeFileIsThePublicHeaderOfTheClass_data();
    void includeFileIsThePublicHeaderOfTheClass();
    void widgetIsOfItsClass_data();
    void widgetIsOfItsClass();
    void xmlPlacesOneWidgetOfTheClass_data();
    void xmlPlacesOneWidgetOfTheClass();
    void xmlTellsUicTheBaseClass_data();
    void xmlTellsUicTheBaseClass();
    void propertyToolTipsAreAboutProperties_data();
    void propertyToolTipsAreAboutProperties();
    void containersCanBeFilled();
    void programsGetBarsWithoutSampleTabs();

private:
    void addRows() const;
    QDesignerCustomWidgetInterface *plugin(const char *name) const;

    QList<QDesignerCustomWidgetInterface *> m_plugins;
    std::optional<FunctionGuard> m_guard;
};

void tst_DesignerPlugin::initTestCase()
{
    QPluginLoader loader(QStringLiteral(TARN_PLUGIN));
    const auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    m_plugins = collection->customWidgets();
    QVERIFY(!m_plugins.isEmpty());
}

void tst_DesignerPlugin::addRows() const
{
    QTest::addColumn<QDesignerCustomWidgetInterface *>("plugin");
    for (QDesignerCustomWidgetInterface *plugin : m_plugins)
        QTest::newRow(qPrintable(shortName(plugin))) << plugin;
}

QDesignerCustomWidgetInterface *tst_DesignerPlugin::plugin(const char *name) const
{
    for (QDesignerCustomWidgetInterface *plugin : m_plugins) {
        if (shortName(plugin) == QLatin1String(name))
            return plugin;
    }
    return nullptr;
}

void tst_DesignerPlugin::everyExportedClassIsOfferedOrLeftOutForAReason()
{
    // GIVEN the list of exported classes, and TabBarRd, whose header is TarnTabBar's
    const QStringList classes = exportedClasses();
    QVERIFY(classes.contains(QStringLiteral("TabBarRd")));

    // WHEN those on offer and those left out are put together
    QStringList known = leftOut().keys();
    for (const QDesignerCustomWidgetInterface *plugin : qAsConst(m_plugins))
        known.append(shortName(plugin));

    // THEN that is each class once
    known.sort();
    QStringList expected = classes;
    expected.sort();
    QCOMPARE(known, expected);
}

void tst_DesignerPlugin::manualOfThePluginNamesEveryClass()
{
    const QString manual = fileText(TARN_README);
    QVERIFY(!manual.isEmpty());

    const QStringList classes = exportedClasses();
    for (const QString &name : classes)
        QVERIFY2(manual.contains(QStringLiteral("`%1`").arg(name)), qPrintable(name));
}

void tst_DesignerPlugin::descriptionIsComplete_data()
{
    addRows();
}

void tst_DesignerPlugin::descriptionIsComplete()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);

    QVERIFY(plugin->name().startsWith(QStringLiteral("Tarn::Widgets::")));
    QVERIFY(plugin->group().startsWith(QStringLiteral("Tarn ")));
    QVERIFY(!plugin->toolTip().isEmpty());
    QVERIFY(plugin->whatsThis().endsWith(QLatin1Char('.')));
    QVERIFY(!plugin->icon().isNull());
    QCOMPARE(picture(plugin, 24).size(), QSize(24, 24));
    QVERIFY(opaquePixels(picture(plugin, 24)) > 24);
}

void tst_DesignerPlugin::iconsDiffer()
{
    for (int one = 0; one < m_plugins.size(); ++one) {
        for (int other = 0; other < one; ++other)
            QVERIFY2(picture(m_plugins.at(one), 24) != picture(m_plugins.at(other), 24),
                     qPrintable(shortName(m_plugins.at(one))));
    }
}

void tst_DesignerPlugin::iconIsSharpOnDenseScreens_data()
{
    addRows();
}

void tst_DesignerPlugin::iconIsSharpOnDenseScreens()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);

    const QImage image(
        QStringLiteral(":/tarnwidgetsdesigner/icons/%1@2x.png").arg(shortName(plugin).toLower()));
    QCOMPARE(image.size(), QSize(48, 48));
}

void tst_DesignerPlugin::includeFileIsThePublicHeaderOfTheClass_data()
{
    addRows();
}

void tst_DesignerPlugin::includeFileIsThePublicHeaderOfTheClass()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);

    // GIVEN the include file, in angle brackets
    const QRegularExpression form(QStringLiteral("^<tarnwidgets/(\\w+\\.h)>$"));
    const QString header = form.match(plugin->includeFile()).captured(1);
    QVERIFY2(!header.isEmpty(), qPrintable(plugin->includeFile()));

    // THEN it is installed, and declares the class
    QVERIFY(QStringLiteral(TARN_PUBLIC_HEADERS).split(QLatin1Char(' ')).contains(header));
    const QString text = fileText(qPrintable(QStringLiteral(TARN_HEADERS_DIR "/") + header));
    QVERIFY(text.contains(QStringLiteral("class TARNWIDGETS_EXPORT %1 :").arg(shortName(plugin))));
}

void tst_DesignerPlugin::widgetIsOfItsClass_data()
{
    addRows();
}

void tst_DesignerPlugin::widgetIsOfItsClass()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);
    QWidget parent;

    const QWidget *widget = plugin->createWidget(&parent);

    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &parent);
    QVERIFY(!widget->isWindow());
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), plugin->name());
}

void tst_DesignerPlugin::xmlPlacesOneWidgetOfTheClass_data()
{
    addRows();
}

void tst_DesignerPlugin::xmlPlacesOneWidgetOfTheClass()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);

    QDomDocument document;
    QString error;
    QVERIFY2(document.setContent(plugin->domXml(), &error), qPrintable(error));

    const QDomElement ui = document.documentElement();
    QCOMPARE(ui.attribute(QStringLiteral("displayname")), shortName(plugin));
    const QDomElement widget = ui.firstChildElement(QStringLiteral("widget"));
    QCOMPARE(widget.attribute(QStringLiteral("class")), plugin->name());
    QCOMPARE(widget.attribute(QStringLiteral("name")).toLower(), shortName(plugin).toLower());
    QVERIFY(widget.attribute(QStringLiteral("name")).at(0).isLower());

    // Large enough to be hit and small enough for a small form.
    const QDomElement size =
        widget.firstChildElement(QStringLiteral("property")).firstChildElement(QStringLiteral("rect"));
    const int width = size.firstChildElement(QStringLiteral("width")).text().toInt();
    const int height = size.firstChildElement(QStringLiteral("height")).text().toInt();
    QVERIFY(width >= 24 && width <= 320);
    QVERIFY(height >= 24 && height <= 160);
}

void tst_DesignerPlugin::xmlTellsUicTheBaseClass_data()
{
    addRows();
}

void tst_DesignerPlugin::xmlTellsUicTheBaseClass()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);
    const std::unique_ptr<QWidget> widget(plugin->createWidget(nullptr));
    QDomDocument document;
    QVERIFY(document.setContent(plugin->domXml()));

    const QDomElement custom = document.documentElement()
                                   .firstChildElement(QStringLiteral("customwidgets"))
                                   .firstChildElement(QStringLiteral("customwidget"));

    QCOMPARE(custom.firstChildElement(QStringLiteral("class")).text(), plugin->name());
    const QString base = custom.firstChildElement(QStringLiteral("extends")).text();
    const QString addPage = custom.firstChildElement(QStringLiteral("addpagemethod")).text();
    if (addPage.isEmpty()) {
        QVERIFY2(base != plugin->name() && widget->inherits(qPrintable(base)), qPrintable(base));
    } else {
        QCOMPARE(base, QStringLiteral("QTabWidget")); // for currentIndex
        QVERIFY(widget->metaObject()->indexOfMethod(qPrintable(addPage + QStringLiteral("(QWidget*)"))) >= 0);
    }
}

void tst_DesignerPlugin::propertyToolTipsAreAboutProperties_data()
{
    addRows();
}

void tst_DesignerPlugin::propertyToolTipsAreAboutProperties()
{
    QFETCH(QDesignerCustomWidgetInterface *, plugin);
    const std::unique_ptr<QWidget> widget(plugin->createWidget(nullptr));
    QDomDocument document;
    QVERIFY(document.setContent(plugin->domXml()));

    const QDomNodeList toolTips = document.elementsByTagName(QStringLiteral("tooltip"));
    for (int index = 0; index < toolTips.size(); ++index) {
        const QDomElement toolTip = toolTips.at(index).toElement();
        const QString name = toolTip.attribute(QStringLiteral("name"));
        QVERIFY2(widget->metaObject()->indexOfProperty(qPrintable(name)) >= 0, qPrintable(name));
        QVERIFY2(!toolTip.text().isEmpty(), qPrintable(name));
    }
    // What the class adds is seldom told by its name alone.
    const bool adds = widget->metaObject()->propertyCount() > widget->metaObject()->propertyOffset();
    QVERIFY(!adds || !toolTips.isEmpty());
}

void tst_DesignerPlugin::containersCanBeFilled()
{
    for (const QDesignerCustomWidgetInterface *plugin : qAsConst(m_plugins)) {
        const bool expected = plugin->group() == QStringLiteral("Tarn Containers");
        QVERIFY2(plugin->isContainer() == expected, qPrintable(shortName(plugin)));
    }
}

void tst_DesignerPlugin::programsGetBarsWithoutSampleTabs()
{
    for (const char *name : {"TabBarRd", "TarnTabBar"}) {
        QDesignerCustomWidgetInterface *const bars = plugin(name);
        QVERIFY(bars);
        QVERIFY(!bars->isInitialized());

        const std::unique_ptr<QWidget> widget(bars->createWidget(nullptr));

        const auto *frame = qobject_cast<Tarn::Widgets::TarnTabBar *>(widget.get());
        const auto *bar = frame ? frame->getTabBar() : qobject_cast<QTabBar *>(widget.get());
        QVERIFY(bar);
        QCOMPARE(bar->count(), 0);
    }
}

QTEST_MAIN(tst_DesignerPlugin)

#include "tst_designerplugin.moc"
