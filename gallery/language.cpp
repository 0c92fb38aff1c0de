// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Gallery {

namespace {

struct Choice
{
    const char *name;
    const char *title;
};

constexpr Choice Choices[] = {{"en", "English"}, {"zh_CN", "中文"}};

} // namespace

Language::Language(const QString &directory, QObject *parent)
    : QObject(parent)
    , m_directory(directory)
{
}

Language::~Language() = default;

QStringList Language::names()
{
    QStringList names = {QString()};
    for (const Choice &choice : Choices)
        names.append(QLatin1String(choice.name));
    return names;
}

QString Language::title(const QString &name)
{
    if (name.isEmpty())
        return tr("System");
    for (const Choice &choice : Choices) {
        if (name == QLatin1String(choice.name))
            return QString::fromUtf8(choice.title);
    }
    const QString native = QLocale(name).nativeLanguageName();
    return native.isEmpty() ? name : native;
}

QString Language::name() const
{
    return m_name;
}

bool Language::setName(const QString &name)
{
    const QLocale locale = name.isEmpty() ? QLocale::system() : QLocale(name);
    QLocale::setDefault(locale);
    for (QTranslator *translator : {&m_qt, &m_library, &m_gallery})
        QCoreApplication::removeTranslator(translator);

    // The library has a file for English, too, and so tells which of the user's languages it is to be.
    const QString catalogue = QStringLiteral("tarnwidgets");
    const bool isKnown = load(&m_library, locale, catalogue, m_directory);
    if (!isKnown)
        load(&m_library, QLocale(QLocale::English), catalogue, m_directory);
    const QLocale shown(m_library.language());
    load(&m_gallery, shown, QStringLiteral("tarnwidgets_gallery"), m_directory);
    load(&m_qt, shown, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));

    m_name = name;
    Q_EMIT changed();
    return isKnown || locale.language() == QLocale::C || locale.language() == QLocale::English;
}

bool Language::load(QTranslator *translator, const QLocale &locale, const QString &catalogue,
                    const QString &directory)
{
    return translator->load(locale, catalogue, QStringLiteral("_"), directory)
        && QCoreApplication::installTranslator(translator);
}

} // namespace Gallery
