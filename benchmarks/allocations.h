// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_ALLOCATIONS_H
#define TARN_ALLOCATIONS_H

namespace Tarn::Benchmark {

/*!
 * How often the process has asked for heap memory so far: by malloc(), calloc(),
 * realloc() and, since they call malloc(), by every operator new.
 */
long allocations();

} // namespace Tarn::Benchmark

#endif
