// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_SOAK_LIVEHEAP_H
#define TARN_SOAK_LIVEHEAP_H

namespace Tarn::Soak {

/*! What of the heap is in use by the whole process: by malloc() and its like, and by every operator new. */
struct LiveHeap
{
    long blocks;
    long bytes;
};

LiveHeap liveHeap();

/*! The same without blocks of 16 KiB and more: a window's buffer for its pixels is one of these. */
LiveHeap liveHeapWithoutPixels();

} // namespace Tarn::Soak

#endif
