// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "liveheap.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <malloc.h>

namespace {

// File dialogs have threads.
std::atomic<long> liveBlocks{0};
std::atomic<long> liveBytes{0};

void *counted(void *memory)
{
    if (memory != nullptr) {
        ++liveBlocks;
        liveBytes += long(malloc_usable_size(memory));
    }
    return memory;
}

void discount(void *memory)
{
    if (memory != nullptr) {
        --liveBlocks;
        liveBytes -= long(malloc_usable_size(memory));
    }
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
    const long former = memory != nullptr ? long(malloc_usable_size(memory)) : 0;
    void *moved = __libc_realloc(memory, size);
    const bool isFreed = moved != nullptr || size == 0;
    if (memory != nullptr && isFreed) {
        --liveBlocks;
        liveBytes -= former;
    }
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
    discount(memory);
    __libc_free(memory);
}
}

namespace Tarn::Soak {

LiveHeap liveHeap()
{
    return {liveBlocks, liveBytes};
}

} // namespace Tarn::Soak
