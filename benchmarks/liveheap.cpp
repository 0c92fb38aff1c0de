// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "liveheap.h"

#include <atomic>
#include <cstddef>
#include <malloc.h>

namespace {

constexpr std::size_t SmallestPixels = 16384; // of the windows here, all have buffers of more bytes

std::atomic<long> liveBlocks; // a file dialog has a thread
std::atomic<long> liveBytes;

void add(void *memory, int sign)
{
    const std::size_t size = memory ? malloc_usable_size(memory) : 0;
    if (size == 0 || size >= SmallestPixels)
        return;
    liveBlocks += sign;
    liveBytes += sign * long(size);
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
    void *memory = __libc_malloc(size);
    add(memory, 1);
    return memory;
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    void *memory = __libc_calloc(count, size);
    add(memory, 1);
    return memory;
}

__attribute__((visibility("default"))) void *realloc(void *memory, std::size_t size)
{
    add(memory, -1);
    void *moved = __libc_realloc(memory, size);
    add(moved, 1);
    return moved;
}

__attribute__((visibility("default"))) void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    void *memory = __libc_memalign(alignment, size);
    add(memory, 1);
    return memory;
}

__attribute__((visibility("default"))) int posix_memalign(void **memory, std::size_t alignment,
                                                          std::size_t size)
{
    *memory = aligned_alloc(alignment, size);
    return *memory ? 0 : 12; // ENOMEM
}

__attribute__((visibility("default"))) void free(void *memory)
{
    add(memory, -1);
    __libc_free(memory);
}
}

namespace Tarn::Benchmark {

LiveHeap liveHeap()
{
    return {liveBlocks, liveBytes};
}

} // namespace Tarn::Benchmark
