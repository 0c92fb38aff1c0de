// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "benchmark.h"

#include "allocations.h"

#include <QApplication>
#include <QByteArray>
#include <QStringList>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <valgrind/callgrind.h>

namespace Tarn::Benchmark {

namespace {

/*
 * Leaves a dump of callgrind's, called after scenario and side, with the instructions of the steps. Returns
 * the allocations of one.
 */
double count(const Scenario &scenario, const char *sideName, const MakeSide &makeSide)
{
    const QByteArray dump = QByteArray(scenario.name) + ' ' + sideName;
    const std::unique_ptr<Side> side = makeSide();
    for (int i = 0; i < scenario.warmUpSteps; ++i) {
        side->prepare();
        side->step();
    }

    long allocated = 0;
    CALLGRIND_START_INSTRUMENTATION; // what comes before runs faster without
    CALLGRIND_ZERO_STATS;
    for (int i = 0; i < scenario.steps; ++i) {
        side->prepare();
        const long before = allocations();
        CALLGRIND_TOGGLE_COLLECT;
        side->step();
        CALLGRIND_TOGGLE_COLLECT;
        allocated += allocations() - before;
    }
    CALLGRIND_DUMP_STATS_AT(dump.constData());
    CALLGRIND_STOP_INSTRUMENTATION;
    return double(allocated) / scenario.steps;
}

void measure(const Scenario &scenario)
{
    const double ours = count(scenario, "ours", scenario.ours);
    const double qt = count(scenario, "qt", scenario.qt);
    if (scenario.empty)
        count(scenario, "empty", scenario.empty);
    if (scenario.limit)
        count(scenario, "limit", scenario.limit);
    std::printf("%s\t%d\t%g\t%s\t%.2f\t%.2f\t%s\n", scenario.name, scenario.steps, scenario.goal,
                scenario.mayAllocateMore ? "any" : "same", ours, qt, scenario.work);
}

/* Seconds of a step. */
double secondsOf(const Scenario &scenario, const MakeSide &makeSide)
{
    if (!makeSide)
        return 0;
    const std::unique_ptr<Side> side = makeSide();
    std::chrono::duration<double> sum{};
    for (int i = -1; i < scenario.steps; ++i) { // one to warm up
        side->prepare();
        const auto begin = std::chrono::steady_clock::now();
        side->step();
        if (i >= 0)
            sum += std::chrono::steady_clock::now() - begin;
    }
    return sum.count() / scenario.steps;
}

/* Both sides in turn, so that what slows the machine down slows both. */
void compareTimes(const Scenario &scenario)
{
    std::array<double, 9> ratios{};
    for (double &ratio : ratios) {
        const double empty = secondsOf(scenario, scenario.empty);
        const double ours = secondsOf(scenario, scenario.ours) - empty;
        ratio = ours / (secondsOf(scenario, scenario.qt) - empty);
    }
    std::sort(ratios.begin(), ratios.end());
    std::printf("%s\t%.2f\t%.2f\t%.2f\n", scenario.name, ratios[ratios.size() / 2], ratios.front(),
                ratios.back());
}

bool isLarge(const QString &name)
{
    return name.endsWith(QLatin1String("-1000")) || name.endsWith(QLatin1String("-large"));
}

} // namespace

Side::~Side() = default;

void Side::prepare()
{
    QApplication::processEvents();
}

int run(int argc, char **argv, const std::vector<Scenario> &scenarios)
{
    const QApplication application(argc, argv);
    QStringList names = QApplication::arguments().mid(1);
    const bool isTimed = names.removeAll(QStringLiteral("--time")) > 0;
    const bool isShort = names.removeAll(QStringLiteral("--short")) > 0;
    for (const Scenario &scenario : scenarios) {
        const QString name = QLatin1String(scenario.name);
        if ((names.isEmpty() || names.contains(name)) && !(isShort && isLarge(name)))
            isTimed ? compareTimes(scenario) : measure(scenario);
    }
    return 0;
}

} // namespace Tarn::Benchmark
