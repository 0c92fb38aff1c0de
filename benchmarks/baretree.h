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
 *
 * What has to be set is found out once, so that a copy takes no more than its widgets and layouts do.
 */
class BareTree
{
public:
    /*! \a model outlives it, and stays as it is. */
    explicit BareTree(const QWidget &model);
    ~BareTree();

    std::unique_ptr<QWidget> make() const;

private:
    Q_DISABLE_COPY(BareTree)

    struct Part;

    const QWidget &m_model;
    const std::unique_ptr<Part> m_top;
};

} // namespace Tarn::Benchmark

#endif
