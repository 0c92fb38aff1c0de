// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_BENCHMARK_H
#define TARN_BENCHMARK_H

#include <functional>
#include <memory>
#include <vector>

namespace Tarn::Benchmark {

/*! One side of a comparison: what its constructor builds stands while its steps are counted. */
class Side
{
public:
    Side() = default;
    virtual ~Side();

    /*! Comes before each step and is not counted: by default handles the events that are waiting. */
    virtual void prepare();

    /*! The work that is counted. */
    virtual void step() = 0;

private:
    Side(const Side &) = delete;
    Side &operator=(const Side &) = delete;
};

using MakeSide = std::function<std::unique_ptr<Side>()>;

/*! Makes a \a T, whose constructor is given \a arguments. */
template <typename T, typename... Arguments> MakeSide side(Arguments... arguments)
{
    return [=] { return std::make_unique<T>(arguments...); };
}

/*! Our widget and Qt's own doing the same visible work. */
struct Scenario
{
    const char *name; //!< One word, by which scripts/benchmark can be told to run it.
    const char *work; //!< What a step does, in a few words.
    double goal; //!< How many instructions ours may take for one of Qt's.
    MakeSide ours;
    MakeSide qt;
    MakeSide empty = nullptr; //!< If set, what its step costs is taken off both.
    bool mayAllocateMore = false; //!< Whether our step may ask for heap memory more often than Qt's.
    int steps = 200;
    int warmUpSteps = 20; //!< By then fonts are loaded, caches filled and lists as long as they get.
    MakeSide limit = nullptr; //!< Ours without its logic: what its widgets and layouts take by themselves.
};

/*!
 * All that main() of a benchmark has to do: counts the scenarios that the arguments name, all if they name
 * none. With --short those are left out whose names end in -1000 or -large, which take minutes under
 * callgrind. With --time both sides are timed in turn instead, and the ratio's median, least and most
 * printed.
 */
int run(int argc, char **argv, const std::vector<Scenario> &scenarios);

} // namespace Tarn::Benchmark

#endif
