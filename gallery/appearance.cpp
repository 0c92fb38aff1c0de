// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "appearance.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QWidget>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/qssloader.h>
#include <utility>

using Tarn::Widgets::FramelessDialog;

namespace Gallery {

namespace {

struct Theme
{
    const char *name;
    const char *title;

    // the palette
    QRgb window;
    QRgb text;
    QRgb mutedText;
    QRgb disabledText;
    QRgb base;
    QRgb button;
    QRgb line;
    QRgb highlight;
    QRgb link;
    QRgb toolTip;

    // what frameless dialogs paint themselves in
    QRgb dialogBackground;
    QRgb dialogBorder;
    QRgb dialogSpecialBackground;
    QRgb dialogNormalBackground;
};

// The colours are those of the style sheets with the same names. The dark theme goes with the dialog colours
// that the library starts with, but for the border: a lighter one sets dialogs off from the window behind
// them.
constexpr Theme Themes[] = {
    {"dark", QT_TRANSLATE_NOOP("Gallery::Appearance", "Dark"), 0xff383a3f, 0xfff0f2f5, 0xffb9bec7, 0xff8b9099,
     0xff2a2b2f, 0xff4d5057, 0xff55585f, 0xff1b77a3, 0xff5cc8f0, 0xff15161a, 0xff454545, 0xff7b8089,
     0xff222126, 0xff383a3f},
    {"light", QT_TRANSLATE_NOOP("Gallery::Appearance", "Light"), 0xfff4f6f8, 0xff1c2228, 0xff56606b,
     0xff98a0ab, 0xffffffff, 0xffffffff, 0xffcbd1d9, 0xff0b6a93, 0xff0b6a93, 0xffffffff, 0xfff4f6f8,
     0xff87909b, 0xffe3e7ec, 0xfff4f6f8},
};

const Theme *findTheme(const QString &name)
{
    for (const Theme &theme : Themes) {
        if (name == QLatin1String(theme.name))
            return &theme;
    }
    return nullptr;
}

QPalette paletteOf(const Theme &theme)
{
    const QColor text(theme.text);
    QPalette palette(text, QColor(theme.button), QColor(theme.line).lighter(), QColor(theme.line).darker(),
                     QColor(theme.line), text, QColor(Qt::white), QColor(theme.base), QColor(theme.window));
    palette.setColor(QPalette::Highlight, theme.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, theme.link);
    palette.setColor(QPalette::PlaceholderText, theme.mutedText);
    palette.setColor(QPalette::ToolTipBase, theme.toolTip);
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, theme.disabledText);
    return palette;
}

void setDialogColors(const Theme &theme)
{
    FramelessDialog::m_defaultBackgroundColor = QColor(theme.dialogBackground);
    FramelessDialog::m_defaultBorderColor = QColor(theme.dialogBorder);
    FramelessDialog::m_defaultSpecialBackgroungColor = QColor(theme.dialogSpecialBackground);
    FramelessDialog::m_defaultNormalBackgroungColor = QColor(theme.dialogNormalBackground);
}

/* Qt tells of an error in a style sheet nowhere but in its log. */
class ParseErrorWatch
{
public:
    ParseErrorWatch()
    {
        s_sawError = false;
        s_former = qInstallMessageHandler(look);
    }

    ~ParseErrorWatch()
    {
        qInstallMessageHandler(s_former);
    }

    bool sawError() const
    {
        return s_sawError;
    }

private:
    Q_DISABLE_COPY(ParseErrorWatch)

    static void look(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (message.startsWith(QLatin1String("Could not parse")))
            s_sawError = true;
        else
            s_former(type, context, message);
    }

    static inline bool s_sawError = false;
    static inline QtMessageHandler s_former = nullptr;
};

} // namespace

Appearance::Appearance(const QString &themesDirectory, QObject *parent)
    : QObject(parent)
    , m_themesDirectory(themesDirectory)
{
    QDir::addSearchPath(QStringLiteral("tarnwidgets"), themesDirectory);
}

Appearance::~Appearance() = default;

QStringList Appearance::themeNames()
{
    QStringList names;
    for (const Theme &theme : Themes)
        names.append(QLatin1String(theme.name));
    return names;
}

QString Appearance::themeTitle(const QString &name)
{
    const Theme *theme = findTheme(name);
    return theme ? tr(theme->title) : QString();
}

QString Appearance::themesDirectory() const
{
    return m_themesDirectory;
}

QString Appearance::theme() const
{
    return m_theme;
}

void Appearance::setTheme(const QString &name)
{
    const Theme *theme = findTheme(name);
    if (!theme || name == m_theme)
        return;
    m_theme = name;
    m_themeRules = QssLoader::load(m_themesDirectory + QStringLiteral("/base.qss"))
        + QssLoader::load(m_themesDirectory + QStringLiteral("/%1.qss").arg(name))
        + QssLoader::load(QStringLiteral(":/gallery/styles/base.qss"))
        + QssLoader::load(QStringLiteral(":/gallery/styles/%1.qss").arg(name));
    setDialogColors(*theme);
    QApplication::setPalette(paletteOf(*theme));
    applyStyleSheet();
}

QString Appearance::extraRules() const
{
    return m_extraRules;
}

bool Appearance::setExtraRules(const QString &rules)
{
    const QString former = std::exchange(m_extraRules, rules);
    if (rules == former || applyStyleSheet())
        return true;
    m_extraRules = former;
    applyStyleSheet();
    return false;
}

bool Appearance::applyStyleSheet()
{
    const ParseErrorWatch watch;
    qApp->setStyleSheet(m_themeRules + m_extraRules);
    QWidget().ensurePolished(); // Qt reads the style sheet with the first widget that is polished
    Q_EMIT changed();
    return !watch.sawError();
}

} // namespace Gallery
