// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "liveheap.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <malloc.h>

namespace {

constexpr long SmallestPixels = 16384;

// File dialogs have threads.
struct Counters
{
    std::atomic<long> blocks{0};
    std::atomic<long> bytes{0};
};

Counters small;
Counters large;

long sizeOf(void *memory)
{
    return memory != nullptr ? long(malloc_usable_size(memory)) : 0;
}

// Blocks of no size are none.
void count(long size, int sign)
{
    if (size == 0)
        return;
    Counters &counters = size < SmallestPixels ? small : large;
    counters.blocks += sign;
    counters.bytes += sign * size;
}

void *counted(void *memory)
{
    count(sizeOf(memory), 1);
    return memory;
}

} // namespace

extern "C" {

// glibc's own names for what the functions below take the place of, in this program and in every library it
// loads.
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *memory);

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

__attribute__((visibility("default"))) void *realloc(void *memory, std::size_t size)
{
    const long former = sizeOf(memory);
    void *moved = __libc_realloc(memory, size);
    if (moved != nullptr || size == 0)
        count(former, -1);
    return counted(moved);
}

__attribute__((visibility("default"))) void *memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

__attribute__((visibility("default"))) void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

__attribute__((visibility("default"))) int posix_memalign(void **memory, std::size_t alignment,
                                                          std::size_t size)
{
    *memory = counted(__libc_memalign(alignment, size));
    return *memory != nullptr ? 0 : ENOMEM;
}

__attribute__((visibility("default"))) void free(void *memory)
{
    count(sizeOf(memory), -1);
    __libc_free(memory);
}
}

namespace Tarn::Soak {

LiveHeap liveHeap()
{
    return {small.blocks + large.blocks, small.bytes + large.bytes};
}

LiveHeap liveHeapWithoutPixels()
{
    return {small.blocks, small.bytes};
}

} // namespace Tarn::Soak
