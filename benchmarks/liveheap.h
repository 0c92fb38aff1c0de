// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_LIVEHEAP_H
#define TARN_LIVEHEAP_H

namespace Tarn::Benchmark {

/*! What the process has of the heap, buffers for pixels left out: all blocks of 16 KiB and more. */
struct LiveHeap
{
    long blocks;
    long bytes;
};

LiveHeap liveHeap();

} // namespace Tarn::Benchmark

#endif
