// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Data of any kind, dropped on what takes drops: the swatch of a colour and the fields beside it, and the
// fields of an address.

#include "fuzzsupport.h"

#include <QApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <tarnwidgets/colorshower.h>
#include <tarnwidgets/iplineedit.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::ColorShower;
using Tarn::Widgets::ColorShowLabel;
using Tarn::Widgets::ColSpinBox;
using Tarn::Widgets::IPLineEdit;

namespace {

enum Kind { ColorBytes, Color, PlainText, Text, Urls, Html, Picture, Any, KindCount };

const QLatin1String ColorFormat("application/x-color");
constexpr QRgb FirstColor = 0xff336699;

/* The colour that Qt finds in the data of that format: a name, or a form with a number sign. */
QColor colorOf(const QByteArray &bytes)
{
    return QColor(QString::fromLatin1(bytes.constData()));
}

/* Puts something into the data, and returns the colour that is in it now. */
QColor add(QMimeData *data, const QColor &former, Input *input)
{
    switch (Kind(input->below(KindCount))) {
    case ColorBytes: {
        const QByteArray bytes = input->bytes();
        data->setData(ColorFormat, bytes);
        return colorOf(bytes);
    }
    case Color: {
        const QColor color(input->byte(), input->byte(), input->byte(), input->byte());
        data->setColorData(color);
        return color;
    }
    case PlainText:
        data->setData(QStringLiteral("text/plain"), input->bytes());
        break;
    case Text:
        data->setText(input->text());
        break;
    case Urls:
        data->setUrls({QUrl(input->text())});
        break;
    case Html:
        data->setHtml(input->text());
        break;
    case Picture:
        data->setData(QStringLiteral("image/png"), input->bytes());
        break;
    case Any: {
        const QString format = input->text();
        const QByteArray bytes = input->bytes();
        data->setData(format, bytes);
        return format == ColorFormat ? colorOf(bytes) : former;
    }
    case KindCount:
        break;
    }
    return former;
}

/* What takes drops, there from input to input. */
class Scene
{
public:
    Scene();

    void start();
    void drop(const QMimeData &data, const QColor &color);

private:
    void check() const;

    QWidget m_window;
    ColorShower *m_shower;
    IPLineEdit *m_address;
    ColorShowLabel *m_swatch;
    QList<QLineEdit *> m_fields;
    QVector<QRgb> m_dropped;
};

Scene::Scene()
    : m_shower(new ColorShower)
    , m_address(new IPLineEdit)
    , m_swatch(m_shower->findChild<ColorShowLabel *>())
    , m_fields(m_shower->findChildren<QLineEdit *>() + m_address->findChildren<QLineEdit *>())
{
    auto *layout = new QVBoxLayout(&m_window);
    layout->addWidget(m_shower);
    layout->addWidget(m_address);
    require(m_swatch != nullptr && m_fields.size() == 12, "what takes drops is there");
    QObject::connect(m_swatch, &ColorShowLabel::colorDropped, m_swatch,
                     [this](QRgb rgb) { m_dropped.append(rgb); });
    Tarn::Fuzz::showActive(&m_window);
}

void Scene::start()
{
    m_shower->setRgb(0xff000000);
    m_shower->setRgb(FirstColor);
    m_address->clear();
    m_dropped.clear();
    QCoreApplication::removePostedEvents(nullptr);
}

void Scene::drop(const QMimeData &data, const QColor &color)
{
    const bool isTaken = Tarn::Fuzz::drop(m_swatch, data);
    require(isTaken == color.isValid(), "the swatch takes colours and nothing else");
    const QVector<QRgb> expected = isTaken ? QVector<QRgb>{color.rgb()} : QVector<QRgb>();
    require(m_dropped == expected, "a dropped colour is told");
    require(m_shower->currentColor() == (isTaken ? color.rgb() : FirstColor), "a dropped colour is shown");
    for (QLineEdit *field : qAsConst(m_fields)) {
        Tarn::Fuzz::drop(field, data);
        check();
    }
}

void Scene::check() const
{
    require(m_shower->currentQColor().isValid(), "the colour is valid");
    const QString address = m_address->text();
    require(address.count(QLatin1Char('.')) == 3
                && std::all_of(address.cbegin(), address.cend(),
                               [](QChar c) {
                                   return c == QLatin1Char('.')
                                       || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
                               }),
            "an address has numbers and three dots");
    const QList<ColSpinBox *> boxes = m_shower->findChildren<ColSpinBox *>();
    for (const ColSpinBox *box : boxes)
        require(box->value() >= box->minimum() && box->value() <= box->maximum(),
                "numbers are in their range");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto *const scene = new Scene;
    Input input(data, size);
    QMimeData dropped;
    QColor color;
    while (!input.atEnd())
        color = add(&dropped, color, &input);
    scene->start();
    scene->drop(dropped, color);
    return 0;
}
