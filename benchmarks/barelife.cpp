// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "barelife.h"

#include <QApplication>
#include <utility>

namespace Tarn::Benchmark {

// A widget that was never shown has not all that it is made of.
BareLife::BareLife(std::unique_ptr<QWidget> model)
    : m_model([&] {
        model->show();
        QApplication::processEvents();
        return std::move(model);
    }())
    , m_tree(*m_model)
{
}

void BareLife::step()
{
    const std::unique_ptr<QWidget> copy = m_tree.make();
    copy->show();
    QApplication::processEvents();
    copy->close();
    QApplication::processEvents();
}

} // namespace Tarn::Benchmark
