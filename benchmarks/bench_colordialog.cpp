// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// ColorDialog against QColorDialog.

#include "barelife.h"

#include <QApplication>
#include <QColorDialog>
#include <QImage>
#include <QMouseEvent>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/colorpicker.h>

using Tarn::Benchmark::bareLife;
using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::ColorDialog;
using Tarn::Widgets::ColorPicker;

namespace {

constexpr QRgb InitialColor = 0xff346ec8;
constexpr QSize FieldSize(233, 233);
constexpr int FieldValue = 200;

/* Qt's own, whatever the platform has. */
class QtDialog : public QColorDialog
{
public:
    explicit QtDialog(const QColor &initial)
    {
        setOption(DontUseNativeDialog);
        setCurrentColor(initial);
    }
};

/* From construction to destruction, custom colours read and, by ours, written. */
template <typename Dialog> class Life : public Side
{
public:
    void step() override
    {
        Dialog dialog{QColor(InitialColor)};
        dialog.show();
        QApplication::processEvents();
        dialog.close();
        QApplication::processEvents();
    }
};

class FieldOfTables : public Side
{
public:
    void step() override
    {
        m_image = ColorPicker::fieldImage(FieldSize);
    }

private:
    QImage m_image;
};

class FieldOfColors : public Side
{
public:
    void step() override
    {
        const int right = FieldSize.width() - 1;
        const int bottom = FieldSize.height() - 1;
        for (int y = 0; y <= bottom; ++y) {
            auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
            for (int x = 0; x <= right; ++x) {
                QColor color;
                color.setHsv(360 - x * 360 / right, 255 - y * 255 / bottom, FieldValue);
                line[x] = color.rgb();
            }
        }
    }

private:
    QImage m_image = QImage(FieldSize, QImage::Format_RGB32);
};

/* The child of a class with that name, in whatever namespace. */
QWidget *childOfClass(const QWidget *parent, const char *name)
{
    const auto children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        const QString className = QLatin1String(child->metaObject()->className());
        if (className.section(QLatin1Char(':'), -1).contains(QLatin1String(name)))
            return child;
    }
    qFatal("There is no %s", name);
}

/* A move of the mouse with the button held down, until all that follows it is painted. */
template <typename Dialog> class Drag : public Side
{
public:
    explicit Drag(const char *picker)
        : m_dialog(QColor(InitialColor))
    {
        m_dialog.show();
        m_picker = childOfClass(&m_dialog, picker);
    }

    void step() override
    {
        // A walk that is the same on either side and does not come back to where it was for long.
        m_count = (m_count + 1) % 180;
        const QPointF pos(10 + m_count, 10 + m_count * 7 % 180);
        QMouseEvent move(QEvent::MouseMove, pos, m_picker->mapToGlobal(pos.toPoint()), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_picker, &move);
        QApplication::processEvents();
    }

private:
    Dialog m_dialog;
    QWidget *m_picker = nullptr;
    int m_count = 0;
};

} // namespace

int main(int argc, char **argv)
{
    static const char field[] = "ColorPicker";
    static const char strip[] = "ColorLuminancePicker";
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"color-life", "the dialog made, shown, painted, closed, destroyed", 0.28,
             side<Life<ColorDialog>>(), side<Life<QtDialog>>(), nullptr, true, 10, 20,
             bareLife([] { return std::make_unique<ColorDialog>(QColor(InitialColor)); })},
            {"color-pixels", "the pixels of the field", 0.07, side<FieldOfTables>(), side<FieldOfColors>(),
             nullptr, true, 20},
            {"color-field", "one step of a drag over the field", 0.80, side<Drag<ColorDialog>>(field),
             side<Drag<QtDialog>>(field), nullptr, false, 50},
            {"color-strip", "one step of a drag on the strip", 0.76, side<Drag<ColorDialog>>(strip),
             side<Drag<QtDialog>>(strip), nullptr, true, 50},
        });
}
