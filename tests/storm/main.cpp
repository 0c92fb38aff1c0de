// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A storm of random events over all widgets and all pages of the gallery; see README.md.

#include "acts.h"
#include "oracle.h"
#include "scenes.h"
#include "storm.h"
#include "tally.h"
#include "trail.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHashFunctions>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cstdio>
#include <limits>
#include <optional>

using namespace Tarn::Storm;

namespace {

constexpr int DefaultSteps = 20000;

// The user's settings have no say, and nothing is written to them.
void leaveHome(const QTemporaryDir &home)
{
    for (const char *variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, QFile::encodeName(home.path()));
    qputenv("LANGUAGE", "");
    qputenv("QT_NO_GLIB", "1");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    QDir::setCurrent(home.path());
}

// Nothing may hang on the clock.
void stopTheClock()
{
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                                      Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        QApplication::setEffectEnabled(effect, false);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
}

// The option, else the variable, else the number that is given; nothing if that is none.
std::optional<quint64> wishedNumber(const QString &option, const char *variable, int least, quint64 other)
{
    const QString wished = option.isEmpty() ? qEnvironmentVariable(variable) : option;
    if (wished.isEmpty())
        return other;
    bool isNumber = false;
    const quint64 number = wished.toULongLong(&isNumber);
    if (isNumber && number >= quint64(least))
        return number;
    std::fprintf(stderr, "%s is no number of %d at least\n", qPrintable(wished), least);
    return std::nullopt;
}

// The scene's name, the seed and the step numbers, apart from comments.
bool readReplay(const QString &path, QString &scene, Course &course)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QStringList words;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines)
        words +=
            line.section(QLatin1Char('#'), 0, 0).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.size() < 3)
        return false;
    scene = words.takeFirst();
    bool isNumber = false;
    course.seed = words.takeFirst().toULongLong(&isNumber);
    for (const QString &word : qAsConst(words)) {
        const int former = course.only.isEmpty() ? -1 : course.only.constLast();
        bool isStep = false;
        course.only.append(word.toInt(&isStep));
        isNumber = isNumber && isStep && course.only.constLast() > former;
    }
    return isNumber;
}

void addOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    const auto add = [&parser](const char *name, const char *text, const char *value = "") {
        parser.addOption({QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(value)});
    };
    add("seed", "Repeats the run of this seed; else TARN_TEST_SEED, else a new one.", "number");
    add("events", "Steps of all scenes together; else TARN_TEST_STEPS.", "number");
    add("scene", "One scene only.", "name");
    add("replay", "Only the steps that a file lists, each printed.", "file");
    add("tell", "Prints each step.");
    add("trail", "Where to keep the place, for when the program dies.", "file");
    add("tally", "Prints how often each thing was done.");
    add("reach", "Fails if there is anything that was never done.");
    add("list", "Prints the scenes.");
}

int runAll(const QString &only, const Course &course, Trail &trail)
{
    QVector<Scene> chosen;
    const QVector<Scene> all = scenes();
    for (const Scene &scene : all) {
        if (only.isEmpty() || scene.name == only)
            chosen.append(scene);
    }
    if (chosen.isEmpty()) {
        std::fprintf(stderr, "There is no scene %s\n", qPrintable(only));
        return 2;
    }
    int weight = 0;
    for (const Scene &scene : qAsConst(chosen))
        weight += scene.weight;
    QElapsedTimer total;
    total.start();
    for (const Scene &scene : qAsConst(chosen)) {
        Course part = course;
        part.steps = qMax(1, course.steps / weight * scene.weight);
        QElapsedTimer clock;
        clock.start();
        std::printf("%-24s ", qPrintable(scene.name));
        std::fflush(stdout);
        Storm(scene, part, trail).run();
        const int done = part.only.isEmpty() ? part.steps : part.only.size();
        std::printf("%8d steps, %6d a second\n", done, int(done * 1000LL / qMax(clock.elapsed(), qint64(1))));
        std::fflush(stdout);
    }
    std::printf("All well after %.1f s\n", double(total.elapsed()) / 1000);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QDir start = QDir::current();
    const QTemporaryDir home;
    leaveHome(home);
    qSetGlobalQHashSeed(0);
    QApplication app(argc, argv);
    stopTheClock();
    QDir::addSearchPath(QStringLiteral("tarnwidgets"),
                        QStringLiteral(TARN_THEMES_DIR)); // as the themes have it

    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QCoreApplication::arguments()) || !parser.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "%s\n%s", qPrintable(parser.errorText()), qPrintable(parser.helpText()));
        return 2;
    }
    parser.process(app); // which knows what to do with --help

    const auto value = [&parser](const char *name) { return parser.value(QString::fromLatin1(name)); };
    if (parser.isSet(QStringLiteral("list"))) {
        const QVector<Scene> all = scenes();
        for (const Scene &scene : all)
            std::printf("%s\n", qPrintable(scene.name));
        return 0;
    }
    Course course;
    QString scene = value("scene");
    const auto seed =
        wishedNumber(value("seed"), "TARN_TEST_SEED", 0, QRandomGenerator::system()->generate());
    const auto steps = wishedNumber(value("events"), "TARN_TEST_STEPS", 1, DefaultSteps);
    if (!seed || !steps)
        return 2;
    course.seed = *seed;
    course.steps = int(qMin(*steps, quint64(std::numeric_limits<int>::max())));
    course.isTold = parser.isSet(QStringLiteral("tell")) || parser.isSet(QStringLiteral("replay"));
    if (parser.isSet(QStringLiteral("replay"))
        && !readReplay(start.filePath(value("replay")), scene, course)) {
        std::fprintf(stderr, "%s cannot be read\n", qPrintable(value("replay")));
        return 2;
    }
    // First of all, for whoever finds nothing else in a log but a crash.
    std::printf(
        "TARN_TEST_SEED=%llu; a failure comes again, and shorter, by: scripts/storm --seed %llu --scene "
        "THE_LAST_ONE_BELOW\n",
        course.seed, course.seed);
    Trail trail(parser.isSet(QStringLiteral("trail")) ? start.filePath(value("trail")) : QString());
    watchLog();
    expectCalls();
    expectModals();
    const int status = runAll(scene, course, trail);
    if (parser.isSet(QStringLiteral("tally")))
        printTally();
    if (parser.isSet(QStringLiteral("reach")) && status == 0)
        return printMissing() > 0 ? 4 : 0;
    return status;
}
