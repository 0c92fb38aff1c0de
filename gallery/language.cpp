// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "language.h"

#include "locations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace Gallery {

namespace {

bool install(const QLocale &locale, const QString &catalogue, const QString &directory)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, catalogue, QStringLiteral("_"), directory))
        return false;
    translator->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

bool installLanguage(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    const QString ours = dataDirectory(QStringLiteral("translations"));
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("tarnwidgets"), ours);
    const bool hasOwn = install(locale, QStringLiteral("tarnwidgets_gallery"), ours);
    return hasOwn || locale.language() == QLocale::English || locale.language() == QLocale::C;
}

} // namespace Gallery
