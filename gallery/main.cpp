// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "language.h"
#include "locations.h"
#include "mainwindow.h"
#include "options.h"
#include "pictures.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QTextStream>
#include <algorithm>

using namespace Gallery;

namespace {

constexpr QSize PreferredSize(1120, 700);
constexpr int FontPixels = 14;

QVector<Page> chosenPages(const Options &options)
{
    const QVector<Page> all = pages();
    if (options.page.isEmpty())
        return all;
    QStringList ids;
    for (const Page &page : all) {
        if (page.id == options.page)
            return {page};
        ids.append(page.id);
    }
    failOnCommandLine(QCoreApplication::translate("Gallery::Options", "no page '%1'; there are: %2")
                          .arg(options.page, ids.join(QStringLiteral(", "))));
}

void setUpApplication(QApplication &application)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font = application.font();
    font.setPixelSize(FontPixels);
    QApplication::setFont(font);

    QIcon icon(QStringLiteral("tarnwidgets:icons/logo.png"));
    icon.addFile(QStringLiteral("tarnwidgets:icons/logo-64.png"));
    icon.addFile(QStringLiteral("tarnwidgets:icons/logo-128.png"));
    QApplication::setWindowIcon(icon);
}

int drawPictures(Appearance *appearance, Language *language, const Options &options,
                 const QVector<Page> &pages)
{
    Pictures pictures(appearance, language, options.picturesDirectory);
    const QStringList themes =
        options.theme.isEmpty() ? Appearance::themeNames() : QStringList(options.theme);
    if (!pictures.draw(pages, themes))
        failOnCommandLine(pictures.errorText());
    const QString outcome = QCoreApplication::translate("Gallery::Pictures", "%1 pictures in %2");
    QTextStream(stdout) << outcome.arg(pictures.count()).arg(pictures.directory()) << '\n';
    return EXIT_SUCCESS;
}

/* In the middle of the screen, or all over a small one. */
void placeWindow(QWidget *window)
{
    const QRect room = window->screen()->availableGeometry();
    const bool isSmall = room.width() < PreferredSize.width() || room.height() < PreferredSize.height();
    QRect geometry(QPoint(), isSmall ? room.size() : PreferredSize);
    geometry.moveCenter(room.center());
    window->setGeometry(geometry);
}

} // namespace

int main(int argc, char **argv)
{
    if (runsWithoutDisplay(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tarnwidgets-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(GALLERY_VERSION));

    Language language(dataDirectory(QStringLiteral("translations")));
    language.setName(QString()); // of the command line's texts
    const Options options = parseOptions(QCoreApplication::arguments());
    if (!options.language.isEmpty() && !language.setName(options.language))
        qWarning("No translation for '%s': the texts are English", qPrintable(options.language));
    const QVector<Page> shown = chosenPages(options);

    const QString themes = dataDirectory(QStringLiteral("themes"));
    if (themes.isNull())
        failOnCommandLine(QCoreApplication::translate("Gallery::Options", "the themes are not installed"));
    Appearance appearance(themes);
    setUpApplication(application);
    if (!options.picturesDirectory.isEmpty())
        return drawPictures(&appearance, &language, options, shown);

    appearance.setTheme(options.theme.isEmpty() ? Appearance::themeNames().constFirst() : options.theme);
    MainWindow window(&appearance, &language);
    window.showPage(shown.constFirst().id);
    placeWindow(&window);
    window.show();
    return QApplication::exec();
}
