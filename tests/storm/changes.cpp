// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What applications and users change about widgets of any kind.

#include "acts.h"
#include "support/testdialog.h"
#include "tally.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <memory>
#include <tarnwidgets/qssloader.h>

namespace Tarn::Storm {

namespace {

bool isPage(const QWidget *widget)
{
    return QByteArray(widget->metaObject()->className()).startsWith("Gallery::");
}

void geometry(Context &c)
{
    QWidget *widget = pickSubjectWidget(c);
    if (!widget)
        return;
    QSize size = drawSize(c.dice);
    // Text edits without room for a scroll bar make Qt show and hide it for ever.
    if (isPage(widget))
        size = size.expandedTo(widget->minimumSizeHint());
    const QPoint place(c.dice.between(-200, 900), c.dice.between(-200, 700));
    if (c.notes.wanted)
        c.notes.about(widget, QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()));
    switch (c.dice.below(6)) {
    case 0:
        widget->move(place);
        break;
    case 1:
        widget->setGeometry(QRect(place, size));
        break;
    case 2:
        widget->setMinimumSize(size.expandedTo(QSize(0, 0)));
        break;
    case 3:
        widget->setMaximumSize(size.expandedTo(QSize(0, 0)));
        break;
    case 4:
        widget->adjustSize();
        break;
    default:
        widget->resize(size);
        break;
    }
}

void visibility(Context &c)
{
    QWidget *widget = pickSubjectWidget(c);
    if (!widget)
        return;
    c.notes.about(widget);
    switch (c.dice.below(8)) {
    case 0:
        widget->hide();
        break;
    case 1:
        widget->close();
        break;
    case 2:
        widget->lower();
        break;
    case 3:
        widget->raise();
        break;
    case 4:
        widget->activateWindow();
        break;
    default:
        widget->show();
        break;
    }
}

void windowState(Context &c)
{
    const QVector<QWidget *> windows = c.stage.windows();
    if (windows.isEmpty())
        return;
    QWidget *window = c.dice.pickOf(windows);
    // Popups are no windows that a user could maximise.
    if (window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip)
        return;
    c.notes.about(window);
    switch (c.dice.below(5)) {
    case 0:
        window->showMinimized();
        break;
    case 1:
        window->showMaximized();
        break;
    case 2:
        window->showFullScreen();
        break;
    case 3:
        window->setWindowState(Qt::WindowStates(c.dice.below(16)));
        break;
    default:
        window->showNormal();
        break;
    }
}

void enabled(Context &c)
{
    if (QWidget *widget = pickSubjectWidget(c)) {
        c.notes.about(widget);
        widget->setEnabled(!c.dice.oneIn(3));
    }
}

#ifdef TARN_TRANSLATIONS_DIR
// As programs have it, the library's texts and those of Qt.
void realLanguage(Context &c)
{
    const QLocale locale(c.dice.pick({QLocale::Chinese, QLocale::English}));
    for (const char *catalogue : {"tarnwidgets", "qtbase"}) {
        const bool isQts = qstrcmp(catalogue, "qtbase") == 0;
        const auto translator = std::make_shared<QTranslator>();
        if (translator->load(locale, QLatin1String(catalogue), QStringLiteral("_"),
                             isQts ? QLibraryInfo::location(QLibraryInfo::TranslationsPath)
                                   : QStringLiteral(TARN_TRANSLATIONS_DIR))) {
            tally("translation " + QByteArray(catalogue) + ' ' + locale.name().toLatin1());
            QCoreApplication::installTranslator(translator.get());
            c.stage.keep(translator);
        }
    }
}
#endif

// Language changes with a translator put in and taken out.
void language(Context &c)
{
    c.notes.about(qApp);
#ifdef TARN_TRANSLATIONS_DIR
    if (c.dice.oneIn(2)) {
        realLanguage(c);
        return;
    }
#endif
    const char *context = c.dice.pick({"Tarn::Widgets::FramelessDialog", "Tarn::Widgets::TitleBar",
                                       "Tarn::Widgets::ColorDialog", "Tarn::Widgets::FramelessMessageBox"});
    if (c.dice.oneIn(2))
        c.stage.keep(std::make_shared<Test::Brackets>(context));
    else
        Test::Brackets passing(context);
}

QString theme(Context &c)
{
    const QDir themes(QStringLiteral(TARN_THEMES_DIR));
    const QString colors = c.dice.pick({QStringLiteral("dark.qss"), QStringLiteral("light.qss")});
    return QssLoader::load(themes.filePath(QStringLiteral("base.qss")))
        + QssLoader::load(themes.filePath(colors));
}

void applicationStyleSheet(Context &c)
{
    c.notes.about(qApp);
    qApp->setStyleSheet(c.dice.oneIn(3) ? theme(c) : drawStyleSheet(c.dice));
}

// They stay to the end, since Qt keeps tool tips, whose style sheets stand upon them.
QStyle *drawStyle(Dice &dice)
{
    static QHash<QString, QStyle *> styles;
    const QString name = dice.pickOf(QStyleFactory::keys().toVector());
    QStyle *&style = styles[name];
    if (!style) {
        style = QStyleFactory::create(name);
        style->setParent(qApp);
    }
    return style;
}

void look(Context &c)
{
    QWidget *widget = pickSubjectWidget(c);
    if (!widget)
        return;
    c.notes.about(widget);
    switch (c.dice.below(8)) {
    case 0:
        widget->setFont(drawFont(c.dice));
        break;
    case 1:
        widget->setPalette(QPalette(drawColor(c.dice)));
        break;
    case 2:
        widget->setLayoutDirection(c.dice.pick({Qt::LeftToRight, Qt::RightToLeft, Qt::LayoutDirectionAuto}));
        break;
    case 3:
        widget->setStyleSheet(drawStyleSheet(c.dice));
        break;
    case 4:
        widget->unsetLayoutDirection();
        break;
    case 5:
        widget->setCursor(Qt::CursorShape(c.dice.below(Qt::LastCursor + 1)));
        break;
    case 6:
        widget->setStyle(drawStyle(c.dice));
        break;
    default:
        widget->setFocusPolicy(c.dice.pick({Qt::NoFocus, Qt::TabFocus, Qt::ClickFocus, Qt::StrongFocus}));
        break;
    }
}

// To a button that it is given, QDialogButtonBox gives a style that it does not take back before it is
// deleted.
void takeStylesFromButtons()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QPushButton *>(widget) && widget->testAttribute(Qt::WA_SetStyle))
            widget->setStyle(nullptr);
    }
}

void applicationLook(Context &c)
{
    c.notes.about(qApp);
    switch (c.dice.below(4)) {
    case 0:
        QApplication::setLayoutDirection(c.dice.pick({Qt::LeftToRight, Qt::RightToLeft}));
        break;
    case 1:
        QApplication::setPalette(c.dice.oneIn(3) ? QPalette() : QPalette(drawColor(c.dice)));
        break;
    case 2:
        takeStylesFromButtons();
        QApplication::setStyle(c.dice.pickOf(QStyleFactory::keys().toVector()));
        break;
    default:
        QApplication::setFont(drawFont(c.dice));
        break;
    }
}

void paint(Context &c)
{
    QWidget *widget = pickInputWidget(c);
    if (!widget)
        return;
    c.notes.about(widget);
    if (c.dice.oneIn(3)) {
        widget->repaint();
    } else if (c.dice.oneIn(2)) {
        QImage image(64, 48, QImage::Format_ARGB32_Premultiplied);
        widget->render(&image, QPoint(c.dice.below(20), c.dice.below(20)));
    } else {
        widget->update();
    }
}

void picture(Context &c)
{
    if (QWidget *widget = pickSubjectWidget(c)) {
        c.notes.about(widget);
        widget->grab(QRect(c.dice.below(100), c.dice.below(100), 200, 100));
    }
}

void reparent(Context &c)
{
    QObject *object = pickSubject(c);
    if (!object->isWidgetType())
        return;
    auto *widget = static_cast<QWidget *>(object);
    if (widget->isWindow() || !c.stage.owned().contains(widget))
        return;
    c.notes.about(widget);
    widget->setParent(c.stage.nursery());
}

void remove(Context &c)
{
    const QVector<QObject *> all = c.stage.owned();
    if (all.isEmpty())
        return;
    QObject *object = c.dice.pickOf(all);
    c.notes.about(object);
    if (c.dice.oneIn(2))
        object->deleteLater();
    else
        delete object;
}

} // namespace

QVector<Kind> changeKinds()
{
    return {{"geometry", 40, geometry, false},
            {"visibility", 40, visibility, false},
            {"window state", 15, windowState, false},
            {"enabled", 10, enabled, false},
            {"language", 3, language, false},
            {"application style sheet", 2, applicationStyleSheet, false},
            {"look", 20, look, false},
            {"application look", 2, applicationLook, false},
            {"paint", 20, paint, false},
            {"picture", 8, picture, false},
            {"reparent", 2, reparent, false},
            {"delete", 6, remove, false}};
}

} // namespace Tarn::Storm
