// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// FramelessDialog against QDialog.

#include "benchmark.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>
#include <tarnwidgets/framelessdialog.h>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::FramelessDialog;

namespace {

constexpr QSize PaintedSize(400, 300);
constexpr QRect SmallChild(100, 100, 20, 20);

/* The buttons of an empty FramelessDialog on a dialog of Qt's. */
class ButtonDialog : public QDialog
{
public:
    ButtonDialog()
    {
        auto *ok = new QPushButton(QStringLiteral("OK"));
        ok->setDefault(true);
        auto *cancel = new QPushButton(QStringLiteral("Cancel"));
        auto *buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(ok);
        buttons->addWidget(cancel);
        auto *layout = new QVBoxLayout(this);
        layout->addLayout(buttons);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    }
};

/* From construction to destruction, at the size that the dialog comes in. */
template <typename Dialog> class Life : public Side
{
public:
    void step() override
    {
        Dialog dialog;
        dialog.show();
        QApplication::processEvents();
        dialog.close();
        QApplication::processEvents();
    }
};

/* Nothing but ground and border. */
class BareDialog : public FramelessDialog
{
public:
    BareDialog()
    {
        const auto children = findChildren<QWidget *>();
        for (QWidget *child : children)
            child->hide();
    }
};

/* Ground and border painted as one would write it down. */
class PlainlyPaintedDialog : public QDialog
{
public:
    PlainlyPaintedDialog()
        : QDialog(nullptr, Qt::FramelessWindowHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath ground;
        ground.setFillRule(Qt::WindingFill);
        ground.addRect(1, 1, width() - 2, height() - 2);
        painter.fillPath(ground, FramelessDialog::m_defaultBackgroundColor);
        painter.setPen(QPen(FramelessDialog::m_defaultBorderColor, 1));
        painter.drawRect(QRectF(0, 0, width() - 1, height() - 1));
    }
};

template <typename Dialog> class Paint : public Side
{
public:
    Paint()
    {
        m_dialog.setFixedSize(PaintedSize);
        m_dialog.show();
    }

    void step() override
    {
        m_dialog.repaint();
    }

protected:
    Dialog m_dialog;
};

/* The child is transparent: the dialog has to paint what is under it. */
template <typename Dialog> class PaintChild : public Paint<Dialog>
{
public:
    PaintChild()
        : m_child(new QWidget(&this->m_dialog))
    {
        m_child->setGeometry(SmallChild);
        m_child->show();
    }

    void step() override
    {
        m_child->repaint();
    }

private:
    QWidget *const m_child;
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"dialog-life", "an empty dialog: made, shown, painted, closed, destroyed", 2.95,
             side<Life<FramelessDialog>>(), side<Life<ButtonDialog>>(), nullptr, true, 20},
            {"dialog-paint", "ground and border painted in full", 0.31, side<Paint<BareDialog>>(),
             side<Paint<PlainlyPaintedDialog>>()},
            {"dialog-paint-child", "ground painted under one small child", 0.40,
             side<PaintChild<BareDialog>>(), side<PaintChild<PlainlyPaintedDialog>>()},
        });
}
