// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_BARETREE_H
#define TARN_BARETREE_H

#include <QWidget>
#include <memory>

namespace Tarn::Benchmark {

/*!
 * Copies a tree of widgets without their logic: each widget as the one of Qt's that it derives from, with the
 * same name, the same dynamic properties and those of Qt's own that are not as they come, in layouts alike.
 * Painting, event filters, connections, and what a class keeps for itself are left out.
 */
std::unique_ptr<QWidget> bareTree(const QWidget &model);

} // namespace Tarn::Benchmark

#endif
