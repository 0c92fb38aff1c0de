// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "allocations.h"

#include <cstddef>

namespace {

long allocationCount = 0; // the benchmarks have one thread

} // namespace

extern "C" {

// glibc's own names for what the functions below take the place of, in this program and in every library it
// loads.
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    ++allocationCount;
    return __libc_malloc(size);
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    ++allocationCount;
    return __libc_calloc(count, size);
}

__attribute__((visibility("default"))) void *realloc(void *memory, std::size_t size)
{
    ++allocationCount;
    return __libc_realloc(memory, size);
}
}

namespace Tarn::Benchmark {

long allocations()
{
    return allocationCount;
}

} // namespace Tarn::Benchmark
