// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// FramelessDialog against QDialog.

#include "benchmark.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QToolButton>
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

/* The widgets, layouts, names and properties of an empty FramelessDialog, made in the fewest calls. */
class BareTree : public QDialog
{
public:
    BareTree()
        : QDialog(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setProperty("isFramelessDialog", true);
        setMouseTracking(true);
        setAttribute(Qt::WA_Hover);
        auto *title = new QHBoxLayout;
        title->setContentsMargins(1, 0, 1, 0);
        title->addWidget(createTitleBar());
        auto *layout = new QVBoxLayout(this);
        layout->setSpacing(0);
        layout->setContentsMargins(1, 1, 1, 1);
        layout->addLayout(title);
        layout->addWidget(createLine());
        layout->addWidget(createLine());
        layout->addWidget(createBottom());
    }

private:
    QWidget *createTitleBar()
    {
        auto *bar = new QFrame(this);
        bar->setFixedHeight(24);
        for (const char *name : {"isFramelessDialogTitleBar", "isTitleBar", "isForeground"})
            bar->setProperty(name, true);
        auto *label = new QLabel(bar);
        label->setTextFormat(Qt::PlainText);
        label->setMinimumWidth(1);
        label->setAlignment(Qt::AlignCenter);
        label->setProperty("isTitleBarTitle", true);
        auto *layout = new QHBoxLayout(bar);
        layout->setContentsMargins(5, 0, 5, 0);
        layout->setSpacing(2);
        layout->addWidget(createTitleButton(bar, "isTitleBarLogoButton"));
        layout->addWidget(label);
        auto *more = new QHBoxLayout;
        more->setContentsMargins(10, 0, 10, 0);
        more->setSpacing(2);
        layout->addLayout(more);
        for (const char *name : {"isTitleBarMinButton", "isTitleBarMaxButton", "isTitleBarRestoreButton"}) {
            auto *hidden = createTitleButton(bar, name);
            layout->addWidget(hidden);
            hidden->hide();
        }
        layout->addWidget(createTitleButton(bar, "isTitleBarCloseButton"));
        return bar;
    }

    static QToolButton *createTitleButton(QWidget *parent, const char *name)
    {
        auto *button = new QToolButton(parent);
        button->setProperty("isTitleBarButton", true);
        button->setProperty(name, true);
        button->setIconSize(QSize(30, 20));
        button->setAutoRaise(true);
        button->setAutoFillBackground(true);
        button->setFocusPolicy(Qt::NoFocus);
        return button;
    }

    QWidget *createLine()
    {
        auto *line = new QFrame(this);
        line->setLineWidth(2);
        line->setProperty("isBackgroundSeparator", true);
        line->setFixedHeight(2);
        line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return line;
    }

    QWidget *createBottom()
    {
        auto *bottom = new QWidget(this);
        bottom->setProperty("isFramelessDialogBottomWidget", true);
        auto *layout = new QHBoxLayout(bottom);
        layout->setSpacing(20);
        layout->setContentsMargins(20, 10, 20, 10);
        layout->addStretch();
        auto *ok = new QPushButton(QStringLiteral("OK"), bottom);
        ok->setDefault(true);
        auto *apply = new QPushButton(QStringLiteral("Apply"), bottom);
        layout->addWidget(ok);
        layout->addWidget(new QPushButton(QStringLiteral("Cancel"), bottom));
        layout->addWidget(apply);
        apply->hide();
        return bottom;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), FramelessDialog::m_defaultBackgroundColor);
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
             side<Life<FramelessDialog>>(), side<Life<ButtonDialog>>(), nullptr, true, 20, 20,
             side<Life<BareTree>>()},
            {"dialog-paint", "ground and border painted in full", 0.31, side<Paint<BareDialog>>(),
             side<Paint<PlainlyPaintedDialog>>()},
            {"dialog-paint-child", "ground painted under one small child", 0.40,
             side<PaintChild<BareDialog>>(), side<PaintChild<PlainlyPaintedDialog>>()},
        });
}
