// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_BARELIFE_H
#define TARN_BARELIFE_H

#include "baretree.h"
#include "benchmark.h"

namespace Tarn::Benchmark {

/*! The limit of a widget's whole life: a bare copy made, shown, closed and destroyed. */
class BareLife : public Side
{
public:
    /*! It is shown as long as this lives. */
    explicit BareLife(std::unique_ptr<QWidget> model);

    void step() override;

private:
    const std::unique_ptr<QWidget> m_model;
    const BareTree m_tree;
};

/*! Makes a BareLife of the widget that \a makeModel makes. */
template <typename Function> MakeSide bareLife(Function makeModel)
{
    return [makeModel] { return std::make_unique<BareLife>(makeModel()); };
}

} // namespace Tarn::Benchmark

#endif
