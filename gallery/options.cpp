// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "appearance.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Gallery {

namespace {

struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::Options)
};

} // namespace

bool runsWithoutDisplay(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QString option = QString::fromLocal8Bit(argument).section(QLatin1Char('='), 0, 0);
        return option == QLatin1String("--pictures") || option == QLatin1String("--help")
            || option == QLatin1String("--help-all") || option == QLatin1String("-h")
            || option == QLatin1String("--version") || option == QLatin1String("-v");
    });
}

Options parseOptions(const QStringList &arguments)
{
    const QString themes = Appearance::themeNames().join(QStringLiteral(", "));
    const QCommandLineOption page(QStringLiteral("page"), CommandLine::tr("Show the page <id> first."),
                                  CommandLine::tr("id"));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   CommandLine::tr("Use the theme <name>: %1.").arg(themes),
                                   CommandLine::tr("name"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      CommandLine::tr("Show texts in <language>, for example en or zh_CN."),
                                      CommandLine::tr("language"));
    const QCommandLineOption pictures(
        QStringLiteral("pictures"),
        CommandLine::tr("Draw all pages in all themes, or those chosen, into PNG files in "
                        "<directory>, and end. Needs no display."),
        CommandLine::tr("directory"));
    QCommandLineParser parser;
    parser.setApplicationDescription(CommandLine::tr("Shows the widgets of the tarnwidgets library."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({page, theme, language, pictures});
    parser.process(arguments);

    if (!parser.positionalArguments().isEmpty())
        failOnCommandLine(
            CommandLine::tr("unexpected argument '%1'").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(theme) && !Appearance::themeNames().contains(parser.value(theme)))
        failOnCommandLine(CommandLine::tr("no theme '%1'; there are: %2").arg(parser.value(theme), themes));
    return {parser.value(page), parser.value(theme), parser.value(language), parser.value(pictures)};
}

void failOnCommandLine(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(message));
    std::exit(EXIT_FAILURE);
}

} // namespace Gallery
