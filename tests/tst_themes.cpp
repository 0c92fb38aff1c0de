// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/colordialogparts.h"
#include "support/functionguard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QFrame>
#include <QGroupBox>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QSizeGrip>
#include <QSpinBox>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>
#include <algorithm>
#include <memory>
#include <optional>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/qssloader.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Widgets;

namespace {

const QStringList StyleSheets = {QStringLiteral("base.qss"), QStringLiteral("dark.qss"),
                                 QStringLiteral("light.qss")};
const QStringList Themes = {QStringLiteral("dark"), QStringLiteral("light")};

// Qt knows these by name. It ignores others without a word, so that a misspelt one would never be noticed.
const QSet<QString> Subcontrols = {
    QStringLiteral("add-line"),    QStringLiteral("add-page"),       QStringLiteral("branch"),
    QStringLiteral("chunk"),       QStringLiteral("close-button"),   QStringLiteral("corner"),
    QStringLiteral("down-arrow"),  QStringLiteral("down-button"),    QStringLiteral("drop-down"),
    QStringLiteral("groove"),      QStringLiteral("handle"),         QStringLiteral("indicator"),
    QStringLiteral("item"),        QStringLiteral("left-arrow"),     QStringLiteral("menu-arrow"),
    QStringLiteral("menu-button"), QStringLiteral("menu-indicator"), QStringLiteral("pane"),
    QStringLiteral("right-arrow"), QStringLiteral("scroller"),       QStringLiteral("section"),
    QStringLiteral("separator"),   QStringLiteral("sub-line"),       QStringLiteral("sub-page"),
    QStringLiteral("tab"),         QStringLiteral("tab-bar"),        QStringLiteral("tear"),
    QStringLiteral("title"),       QStringLiteral("up-arrow"),       QStringLiteral("up-button")};
const QSet<QString> States = {
    QStringLiteral("checked"), QStringLiteral("default"),    QStringLiteral("disabled"),
    QStringLiteral("enabled"), QStringLiteral("flat"),       QStringLiteral("focus"),
    QStringLiteral("hover"),   QStringLiteral("horizontal"), QStringLiteral("indeterminate"),
    QStringLiteral("off"),     QStringLiteral("on"),         QStringLiteral("open"),
    QStringLiteral("pressed"), QStringLiteral("selected"),   QStringLiteral("unchecked"),
    QStringLiteral("vertical")};

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString themeFile(const QString &name)
{
    return QStringLiteral(TARN_THEMES_DIR "/") + name;
}

struct Rule
{
    QStringList selectors;
    QString declarations;
};

/* The rules of a style sheet, which has no strings with braces or commas in it. */
QVector<Rule> rulesOf(const QString &fileName)
{
    QString text = readText(themeFile(fileName));
    text.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    QVector<Rule> rules;
    const QStringList blocks = text.split(QLatin1Char('}'));
    for (const QString &block : blocks) {
        if (block.trimmed().isEmpty())
            continue;
        Rule rule;
        const QStringList selectors = block.section(QLatin1Char('{'), 0, 0).split(QLatin1Char(','));
        for (const QString &selector : selectors)
            rule.selectors.append(selector.simplified());
        rule.declarations = block.section(QLatin1Char('{'), 1).simplified();
        rules.append(rule);
    }
    return rules;
}

QStringList selectorsOf(const QString &fileName)
{
    QStringList selectors;
    const QVector<Rule> rules = rulesOf(fileName);
    for (const Rule &rule : rules)
        selectors += rule.selectors;
    return selectors;
}

/* One step of a selector: QToolButton[isTitleBarButton="true"]:hover, for example. */
struct Step
{
    QString className;
    QSet<QString> properties; // all with the value true
    QSet<QString> subcontrols;
    QSet<QString> states;
    bool isClassProperty =
        false; // the name with a dot: the widget's property "class", by default its very class
    bool isChild = false; // of the widget that the step before is about, else any descendant
    QString unread;
};

QStringList takeAll(QString *text, const QString &pattern)
{
    QStringList taken;
    const QRegularExpression expression(pattern);
    QRegularExpressionMatchIterator matches = expression.globalMatch(*text);
    while (matches.hasNext())
        taken.append(matches.next().captured(1));
    text->remove(expression);
    return taken;
}

QSet<QString> toSet(const QStringList &list)
{
    return QSet<QString>(list.cbegin(), list.cend());
}

QVector<Step> stepsOf(const QString &selector)
{
    QVector<Step> steps;
    bool isChild = false;
    const QStringList words = selector.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString word : words) {
        if (word == QLatin1String(">")) {
            isChild = true;
            continue;
        }
        Step step;
        step.isChild = std::exchange(isChild, false);
        step.properties = toSet(takeAll(&word, QStringLiteral("\\[(\\w+)=\"true\"\\]")));
        step.subcontrols = toSet(takeAll(&word, QStringLiteral("::([\\w-]+)")));
        step.states = toSet(takeAll(&word, QStringLiteral(":!?([\\w-]+)")));
        step.isClassProperty = !takeAll(&word, QStringLiteral("^(\\.)")).isEmpty();
        step.className = takeAll(&word, QStringLiteral("^(\\w[\\w-]*)")).value(0);
        step.unread = word;
        steps.append(step);
    }
    return steps;
}

QStringList classNames(const QWidget *widget)
{
    QStringList names;
    for (const QMetaObject *meta = widget->metaObject(); meta; meta = meta->superClass())
        names.append(
            QString::fromLatin1(meta->className()).replace(QStringLiteral("::"), QStringLiteral("--")));
    // The class behind tool tips is hidden; Qt lets style sheets call it by this name.
    names.replaceInStrings(QRegularExpression(QStringLiteral("^QTipLabel$")), QStringLiteral("QToolTip"));
    return names;
}

bool matches(const QWidget *widget, const Step &step)
{
    const QStringList names = classNames(widget);
    const QString styleClass =
        widget->property("class").isValid() ? widget->property("class").toString() : names.constFirst();
    return (step.isClassProperty ? styleClass == step.className : names.contains(step.className))
        && std::all_of(step.properties.cbegin(), step.properties.cend(), [=](const QString &property) {
               return widget->property(qPrintable(property)) == QVariant(true);
           });
}

/* Whether \a widget is one that the last of \a steps is about, and its ancestors fit the steps before. */
bool matches(const QWidget *widget, const QVector<Step> &steps)
{
    if (!widget || !matches(widget, steps.constLast()))
        return false;
    if (steps.count() == 1)
        return true;
    const QVector<Step> before = steps.mid(0, steps.count() - 1);
    const QWidget *ancestor = widget->parentWidget();
    if (steps.constLast().isChild)
        return matches(ancestor, before);
    while (ancestor && !matches(ancestor, before))
        ancestor = ancestor->parentWidget();
    return ancestor;
}

/* What an application has on screen: the library's windows, and one of each of Qt's widgets. */
struct World
{
    World()
        : window(nullptr)
        , dialog(nullptr)
    {
        auto *content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        auto *combo = new QComboBox;
        auto *button = new QPushButton;
        button->setMenu(new QMenu(button));
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 combo, button, new QLabel, new QToolButton, new QCheckBox, new QRadioButton, new QLineEdit,
                 new QSpinBox, new QPlainTextEdit, new QTextEdit, new QListWidget, new QTreeWidget,
                 new QGroupBox, new QScrollArea, new QSizeGrip(content), new QTabBar, new IPLineEdit})
            layout->addWidget(widget);
        combo->view(); // made on demand
        window.setCentralWidget(content);
        dialog.getContentHolder();
        window.show();
        QToolTip::showText(window.pos(), QStringLiteral("tip"), &window);
    }

    ~World()
    {
        QToolTip::hideText();
    }

    static QVector<const QWidget *> widgets()
    {
        QVector<const QWidget *> widgets;
        const QWidgetList all = QApplication::allWidgets();
        for (const QWidget *widget : all)
            widgets.append(widget);
        return widgets;
    }

    FramelessWindow window;
    FramelessDialog dialog;
    ColorDialog colorDialog{Qt::red};
    FramelessMessageBox messageBox{QMessageBox::Information, QString(), QString(), QMessageBox::Ok};
};

/* The names of the dynamic properties of all widgets of the library; those of Qt begin with an underscore. */
QSet<QString> librarySelectors()
{
    QSet<QString> selectors;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget *widget : all) {
        const QList<QByteArray> names = widget->dynamicPropertyNames();
        for (const QByteArray &name : names) {
            if (!name.startsWith('_') && widget->property(name.constData()) == QVariant(true))
                selectors.insert(QString::fromLatin1(name));
        }
    }
    return selectors;
}

QStringList urlsIn(const QString &text)
{
    QString copy = text;
    return takeAll(&copy, QStringLiteral("url\\(([^)]*)\\)"));
}

QString styleSheet(const QString &theme)
{
    return QssLoader::load(themeFile(QStringLiteral("base.qss")))
        + QssLoader::load(themeFile(theme + QStringLiteral(".qss")));
}

/* What a title button looks like: its icon, at the screen's resolution, in the middle of the bar's colour. */
QImage expectedButton(const QSize &size, qreal ratio, const QColor &ground, const QString &iconFile)
{
    QImage icon(themeFile(
        ratio > 1 ? QString(iconFile).replace(QStringLiteral(".png"), QStringLiteral("@2x.png")) : iconFile));
    icon.setDevicePixelRatio(1);
    const QSize pixels = size * ratio;
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.drawImage((pixels.width() - icon.width()) / 2, (pixels.height() - icon.height()) / 2, icon);
    return image;
}

} // namespace

class tst_Themes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QDir::setSearchPaths(QStringLiteral("tarnwidgets"), {QStringLiteral(TARN_THEMES_DIR)});
        m_guard.emplace(QStringList{QStringLiteral("QTipLabel")});
    }

    void cleanup()
    {
        m_guard.reset();
    }

    void everySelectorMatchesAWidget_data();
    void everySelectorMatchesAWidget();
    void everySubcontrolAndStateIsOneQtKnows_data();
    void everySubcontrolAndStateIsOneQtKnows();
    void everyPropertyInASelectorIsSetByTheLibrary_data();
    void everyPropertyInASelectorIsSetByTheLibrary();
    void matcherTellsMisspeltSelectors_data();
    void matcherTellsMisspeltSelectors();

    void themesStyleTheSameThings();
    void baseHoldsNoColour();
    void everyIconIsThereAtBothResolutions_data();
    void everyIconIsThereAtBothResolutions();
    void everyIconFileIsUsed();
    void readmeListsTheLibrarysSelectors();
    void qtReadsTheThemes_data();
    void qtReadsTheThemes();
    void titleButtonsShowTheThemesIconsSharply_data();
    void titleButtonsShowTheThemesIconsSharply();
    void titleButtonsFollowAChangeOfTheme();
    void titleButtonsIconCanBeTakenAway();
    void titleBarsHaveTheDocumentedHeights();
    void dialogNeedsTheHeightThatItTells();
    void bottomButtonsHaveTheDocumentedLeastSizes();
    void colorDialogHasRoomForItsFields_data();
    void colorDialogHasRoomForItsFields();
    void addressFieldsHaveRoomForThreeDigits();

private:
    static void addStyleSheetRows();

    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_Themes::addStyleSheetRows()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : StyleSheets)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_Themes::everySelectorMatchesAWidget_data()
{
    addStyleSheetRows();
}

void tst_Themes::everySelectorMatchesAWidget()
{
    QFETCH(QString, file);

    // GIVEN one of each widget
    const World world;
    const QVector<const QWidget *> widgets = World::widgets();

    // THEN each selector is about at least one of them
    const QStringList selectors = selectorsOf(file);
    QVERIFY(selectors.count() > 20); // otherwise the file was not read
    for (const QString &selector : selectors) {
        const QVector<Step> steps = stepsOf(selector);
        for (const Step &step : steps)
            QCOMPARE(step.unread, QString());
        QVERIFY2(std::any_of(widgets.cbegin(), widgets.cend(),
                             [&](const QWidget *widget) { return matches(widget, steps); }),
                 qPrintable(selector));
    }
}

void tst_Themes::everySubcontrolAndStateIsOneQtKnows_data()
{
    addStyleSheetRows();
}

void tst_Themes::everySubcontrolAndStateIsOneQtKnows()
{
    QFETCH(QString, file);

    const QStringList selectors = selectorsOf(file);
    QVERIFY(!selectors.isEmpty());
    for (const QString &selector : selectors) {
        const QVector<Step> steps = stepsOf(selector);
        for (const Step &step : steps) {
            QVERIFY2(Subcontrols.contains(step.subcontrols), qPrintable(selector));
            QVERIFY2(States.contains(step.states), qPrintable(selector));
        }
    }
}

void tst_Themes::everyPropertyInASelectorIsSetByTheLibrary_data()
{
    addStyleSheetRows();
}

void tst_Themes::everyPropertyInASelectorIsSetByTheLibrary()
{
    QFETCH(QString, file);

    const World world;
    const QSet<QString> known = librarySelectors();
    QVERIFY(!known.isEmpty());
    const QStringList selectors = selectorsOf(file);
    for (const QString &selector : selectors) {
        const QVector<Step> steps = stepsOf(selector);
        for (const Step &step : steps)
            QVERIFY2(known.contains(step.properties), qPrintable(selector));
    }
}

void tst_Themes::matcherTellsMisspeltSelectors_data()
{
    QTest::addColumn<QString>("selector");

    QTest::newRow("a property") << QStringLiteral("QFrame[isTitelBar=\"true\"]");
    QTest::newRow("a property of another widget") << QStringLiteral("QFrame[isTitleBarCloseButton=\"true\"]");
    QTest::newRow("a class") << QStringLiteral("QPushButon");
    QTest::newRow("the class of a button that has a property of that name")
        << QStringLiteral("QDialog[isColorEditDialog=\"true\"] .QPushButton");
    QTest::newRow("an ancestor") << QStringLiteral("QMenu[isTitleBar=\"true\"] > QToolButton");
    QTest::newRow("a grandchild as a child") << QStringLiteral(
        "QFrame[isFramelessCentralWidget=\"true\"] > QToolButton[isTitleBarButton=\"true\"]");
}

// Shows that the three tests above can fail.
void tst_Themes::matcherTellsMisspeltSelectors()
{
    QFETCH(QString, selector);

    const World world;
    const QVector<const QWidget *> widgets = World::widgets();
    const QVector<Step> steps = stepsOf(selector);
    QVERIFY(std::none_of(widgets.cbegin(), widgets.cend(),
                         [&](const QWidget *widget) { return matches(widget, steps); }));
}

void tst_Themes::themesStyleTheSameThings()
{
    QCOMPARE(selectorsOf(QStringLiteral("dark.qss")), selectorsOf(QStringLiteral("light.qss")));

    const QVector<Rule> dark = rulesOf(QStringLiteral("dark.qss"));
    const QVector<Rule> light = rulesOf(QStringLiteral("light.qss"));
    const auto names = [](QString declarations) {
        return takeAll(&declarations, QStringLiteral("([\\w-]+): "));
    };
    for (int i = 0; i < dark.count(); ++i)
        QCOMPARE(names(dark.at(i).declarations), names(light.at(i).declarations));
}

void tst_Themes::baseHoldsNoColour()
{
    const QRegularExpression color(
        QStringLiteral("#[0-9a-fA-F]{3}|rgb|hsv|palette\\(|url\\(|\\b(white|black)\\b"));
    QVERIFY(readText(themeFile(QStringLiteral("dark.qss"))).contains(color)); // otherwise it finds none
    const QVector<Rule> rules = rulesOf(QStringLiteral("base.qss"));
    for (const Rule &rule : rules)
        QVERIFY2(!rule.declarations.contains(color), qPrintable(rule.selectors.join(QLatin1String(", "))));
}

void tst_Themes::everyIconIsThereAtBothResolutions_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("url");
    for (const QString &theme : Themes) {
        const QStringList urls = urlsIn(readText(themeFile(theme + QStringLiteral(".qss"))));
        for (const QString &url : urls)
            QTest::addRow("%s: %s", qPrintable(theme), qPrintable(url)) << theme << url;
    }
}

void tst_Themes::everyIconIsThereAtBothResolutions()
{
    QFETCH(QString, theme);
    QFETCH(QString, url);

    QVERIFY(url.startsWith(QStringLiteral("tarnwidgets:icons/%1/").arg(theme)));
    const QSize size = QImageReader(url).size();
    QVERIFY(size.isValid());
    QCOMPARE(QImageReader(QString(url).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"))).size(),
             size * 2);
}

void tst_Themes::everyIconFileIsUsed()
{
    QSet<QString> used;
    for (const QString &theme : Themes) {
        const QStringList urls = urlsIn(readText(themeFile(theme + QStringLiteral(".qss"))));
        for (QString url : urls)
            used.insert(url.remove(QStringLiteral("tarnwidgets:icons/")));
    }
    const QDir icons(themeFile(QStringLiteral("icons")));
    QSet<QString> there;
    for (const QString &theme : Themes) {
        const QStringList files = QDir(icons.filePath(theme)).entryList(QDir::Files);
        for (QString file : files)
            there.insert(theme + QLatin1Char('/') + file.remove(QStringLiteral("@2x")));
    }
    QVERIFY(!there.isEmpty());
    QCOMPARE(there, used);
}

void tst_Themes::readmeListsTheLibrarysSelectors()
{
    QString readme = readText(themeFile(QStringLiteral("README.md")));
    const int begin = readme.indexOf(QStringLiteral("## Selectors of the library"));
    const int end = readme.indexOf(QStringLiteral("\n## "), begin + 1);
    QVERIFY(begin >= 0);
    readme = readme.mid(begin, end - begin).replace(QLatin1Char('\n'), QStringLiteral("\n\n"));
    QStringList listed = takeAll(&readme, QStringLiteral("\n\\| `(\\w+)` \\|"));
    listed.sort();

    const World world;
    QStringList set = librarySelectors().values();
    set.sort();
    QCOMPARE(listed, set);
}

void tst_Themes::qtReadsTheThemes_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &theme : Themes)
        QTest::newRow(qPrintable(theme)) << theme;
}

// Qt complains of what it cannot read when a widget is polished, and of an unreadable icon: the guard hears
// it.
void tst_Themes::qtReadsTheThemes()
{
    QFETCH(QString, theme);

    const QString rules = styleSheet(theme);
    QVERIFY(!rules.isEmpty());
    qApp->setStyleSheet(rules);
    const World world;
    const QVector<const QWidget *> widgets = World::widgets();
    for (const QWidget *widget : widgets)
        widget->ensurePolished();
}

void tst_Themes::titleButtonsShowTheThemesIconsSharply_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("icon");
    const QStringList names = {QStringLiteral("minimize"), QStringLiteral("maximize"),
                               QStringLiteral("restore"), QStringLiteral("close")};
    for (const QString &theme : Themes) {
        for (int i = 0; i < names.count(); ++i)
            QTest::addRow("%s: %s", qPrintable(theme), qPrintable(names.at(i)))
                << theme << i + 1 << QStringLiteral("icons/%1/%2.png").arg(theme, names.at(i));
    }
}

void tst_Themes::titleButtonsShowTheThemesIconsSharply()
{
    QFETCH(QString, theme);
    QFETCH(int, button);
    QFETCH(QString, icon);

    // GIVEN a title bar in the theme
    qApp->setStyleSheet(styleSheet(theme));
    TitleBar bar;
    bar.resize(400, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));

    // THEN the button is the icon on the bar's colour, pixel by pixel, at 1x and at 2x alike
    const QToolButton *widget = bar.titleButton(button);
    const QImage shown =
        bar.grab(widget->geometry()).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage expected = expectedButton(widget->size(), shown.devicePixelRatio(), shown.pixelColor(0, 0), icon);
    expected.setDevicePixelRatio(shown.devicePixelRatio());
    QVERIFY(shown.pixelColor(0, 0).alpha() == 255);
    QCOMPARE(shown, expected);
}

void tst_Themes::titleButtonsFollowAChangeOfTheme()
{
    // GIVEN a window that is shown in the dark theme
    qApp->setStyleSheet(styleSheet(QStringLiteral("dark")));
    TitleBar bar;
    bar.resize(400, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const QImage dark = bar.titleButton(4)->grab().toImage();

    // WHEN the theme changes
    qApp->setStyleSheet(styleSheet(QStringLiteral("light")));

    // THEN the button looks like that of a bar that was never dark
    TitleBar fresh;
    fresh.resize(400, fresh.height());
    fresh.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fresh));
    QCOMPARE(bar.grab().toImage(), fresh.grab().toImage());
    QVERIFY(bar.titleButton(4)->grab().toImage() != dark);
}

void tst_Themes::titleButtonsIconCanBeTakenAway()
{
    // GIVEN a title button with the theme's icon
    const QString theme = styleSheet(QStringLiteral("dark"));
    qApp->setStyleSheet(theme);
    TitleBar bar;
    bar.resize(400, bar.height());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const QRect button = bar.titleButton(4)->geometry();
    const QImage themed = bar.grab(button).toImage();
    QImage plain = themed;
    plain.fill(themed.pixelColor(0, 0));
    QVERIFY(themed != plain);

    // WHEN the application has an icon of its own
    qApp->setStyleSheet(
        theme + QStringLiteral("QToolButton[isTitleBarCloseButton=\"true\"] { background-image: url(); }"));

    // THEN the theme's is gone
    QCOMPARE(bar.grab(button).toImage(), plain);
}

void tst_Themes::titleBarsHaveTheDocumentedHeights()
{
    qApp->setStyleSheet(styleSheet(QStringLiteral("dark")));
    World world;
    world.dialog.show();
    QCOMPARE(world.window.getTitleBar()->height(), 36);
    QCOMPARE(world.dialog.findChild<TitleBar *>()->height(), 24);
}

void tst_Themes::dialogNeedsTheHeightThatItTells()
{
    // GIVEN a dialog in the theme, with content of a known height
    qApp->setStyleSheet(styleSheet(QStringLiteral("light")));
    FramelessDialog dialog;
    dialog.getContentHolder()->setFixedHeight(100);
    dialog.show();

    // THEN all the rest is as high as it says
    QCOMPARE(dialog.sizeHint().height(), 100 + dialog.noCentralHeight());
}

void tst_Themes::bottomButtonsHaveTheDocumentedLeastSizes()
{
    qApp->setStyleSheet(styleSheet(QStringLiteral("light")));
    FramelessDialog dialog;
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton *>();
    QVERIFY(!buttons.isEmpty());
    for (const QPushButton *button : buttons)
        QCOMPARE(button->minimumSize(), QSize(94, 28));

    FramelessMessageBox box(QMessageBox::Information, QString(), QString(), QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("details"));
    box.show();
    const auto boxButtons = box.findChildren<QDialogButtonBox *>().constFirst()->buttons();
    QCOMPARE(boxButtons.size(), 2);
    for (const QAbstractButton *button : boxButtons)
        QCOMPARE(button->minimumSize(), QSize(60, 28));
}

void tst_Themes::colorDialogHasRoomForItsFields_data()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"dark", "light"})
        QTest::newRow(theme) << QString::fromLatin1(theme);
}

void tst_Themes::colorDialogHasRoomForItsFields()
{
    QFETCH(QString, theme);

    // GIVEN the colour dialog in a theme, with a font of the size that it is made for
    const QFont formerFont = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(formerFont); });
    QFont font = formerFont;
    font.setPixelSize(14);
    QApplication::setFont(font);
    qApp->setStyleSheet(styleSheet(theme));
    ColorDialog dialog(Qt::red);
    dialog.show();
    const Tarn::Test::ColorDialogParts parts(&dialog);
    QVERIFY(parts.isComplete());

    // THEN every field is inside the room that it has, and shows its longest text, with two pixels beside it
    QVector<QWidget *> fields;
    for (QSpinBox *box : parts.boxes) {
        if (box->isVisible())
            fields.append(box);
    }
    fields.append(parts.html);
    QCOMPARE(fields.size(), 7);
    for (QWidget *field : qAsConst(fields)) {
        QVERIFY2(parts.shower->rect().contains(field->geometry()), field->metaObject()->className());
        const auto *box = qobject_cast<QSpinBox *>(field);
        const QString text = box ? QString::number(box->maximum()) : QStringLiteral("#d0d0d0");
        const auto *edit = box ? box->findChild<QLineEdit *>() : parts.html;
        const QRect room = box ? edit->rect() : edit->rect().adjusted(8, 1, -8, -1);
        QVERIFY(edit->fontMetrics().horizontalAdvance(text) + 4 <= room.width());
        QVERIFY(edit->fontMetrics().height() <= room.height());
    }

    // and buttons are of the sizes that they have without a theme
    QCOMPARE(parts.apply->size(), QSize(148, 30));
    QCOMPARE(parts.ok->size(), QSize(70, 30));
    QCOMPARE(parts.cancel->size(), QSize(70, 30));
}

void tst_Themes::addressFieldsHaveRoomForThreeDigits()
{
    // GIVEN an editor in the theme that is as narrow as it gets
    qApp->setStyleSheet(styleSheet(QStringLiteral("dark")));
    IPLineEdit edit;
    edit.resize(1, 40);
    edit.show();
    QApplication::setActiveWindow(&edit);
    edit.setIPFocus();

    // THEN each number has room, also that with the focus and its wider border
    constexpr int LineEditMargins = 2 * 2;
    const QList<QLineEdit *> fields = edit.findChildren<QLineEdit *>();
    QCOMPARE(fields.count(), 4);
    QVERIFY(fields.constFirst()->hasFocus());
    for (const QLineEdit *field : fields) {
        QStyleOptionFrame option;
        option.initFrom(field);
        const QRect contents = field->style()->subElementRect(QStyle::SE_LineEditContents, &option, field);
        const int text = field->fontMetrics().horizontalAdvance(QStringLiteral("255"));
        QVERIFY(contents.width() - LineEditMargins >= text);
        QVERIFY(contents.width() - LineEditMargins <= 2 * text); // otherwise it is not narrow
    }
}

QTEST_MAIN(tst_Themes)
#include "tst_themes.moc"
