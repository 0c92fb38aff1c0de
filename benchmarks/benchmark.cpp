// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "benchmark.h"

#include "allocations.h"

#include <QApplication>
#include <QByteArray>
#include <QStringList>
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
    return double(allocated) / scenario.steps;
}

void measure(const Scenario &scenario)
{
    const double ours = count(scenario, "ours", scenario.ours);
    const double qt = count(scenario, "qt", scenario.qt);
    if (scenario.empty)
        count(scenario, "empty", scenario.empty);
    std::printf("%s\t%d\t%g\t%s\t%.2f\t%.2f\t%s\n", scenario.name, scenario.steps, scenario.goal,
                scenario.mayAllocateMore ? "any" : "same", ours, qt, scenario.work);
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
    const QStringList names = QApplication::arguments().mid(1);
    for (const Scenario &scenario : scenarios) {
        if (names.isEmpty() || names.contains(QLatin1String(scenario.name)))
            measure(scenario);
    }
    return 0;
}

} // namespace Tarn::Benchmark
