// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Keys in the editors of a colour: its numbers and its HTML form.

#include "fuzzsupport.h"

#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <algorithm>
#include <tarnwidgets/colorshower.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::ColorShower;
using Tarn::Widgets::ColSpinBox;

namespace {

enum Editor { Hue, Sat, Val, Red, Green, Blue, Alpha, EditorCount };

/* Bytes from 0x80 on: what is done besides pressing keys. */
enum Deed { FocusHtml, FocusNumber, FillClipboard, SetRgb, SetHsv, DeedCount };

constexpr int ShortForm = 4; // #rgb
constexpr int LongForm = 7; // #rrggbb

int digit(QChar character)
{
    const QString digits = QStringLiteral("0123456789abcdef");
    return digits.indexOf(character.toLower());
}

bool isBeginningOfForm(const QString &text)
{
    const QString digits = text.mid(1);
    return text.isEmpty()
        || (text.at(0) == QLatin1Char('#') && text.size() <= LongForm
            && std::all_of(digits.cbegin(), digits.cend(), [](QChar c) { return digit(c) >= 0; }));
}

QRgb colorOf(const QString &form)
{
    const bool isShort = form.size() == ShortForm;
    QRgb rgb = 0;
    for (int i = 1; i < form.size(); ++i) {
        for (int copy = 0; copy < (isShort ? 2 : 1); ++copy)
            rgb = rgb << 4 | uint(digit(form.at(i)));
    }
    return rgb;
}

/* Editors that are there from input to input. */
class Scene
{
public:
    Scene();

    void start();
    void act(int byte, Input *input);

private:
    void setHsv(Input *input);
    void check() const;

    ColorShower m_shower;
    QList<ColSpinBox *> m_boxes;
    QLineEdit *m_html = nullptr;
    QRgb m_told = 0;
    bool m_isTold = false;
};

Scene::Scene()
    : m_boxes(m_shower.findChildren<ColSpinBox *>())
{
    const QList<QLineEdit *> fields =
        m_shower.findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    require(m_boxes.size() == EditorCount && fields.size() == 1, "the editors are there");
    m_html = fields.constFirst();
    QObject::connect(&m_shower, &ColorShower::newCol, &m_shower, [this](QRgb rgb) {
        m_told = rgb;
        m_isTold = true;
    });
    Tarn::Fuzz::showActive(&m_shower);
}

/* Nothing of the former input may have a say. */
void Scene::start()
{
    QApplication::setActiveWindow(&m_shower);
    if (!QGuiApplication::clipboard()->text().isEmpty())
        QGuiApplication::clipboard()->clear();
    m_shower.setRgb(0xff000000);
    m_shower.setRgb(0xff336699); // shown anew in all editors
    for (ColSpinBox *box : qAsConst(m_boxes))
        box->setValue(box->value());
    m_html->setFocus();
    m_html->selectAll();
    QCoreApplication::removePostedEvents(nullptr);
}

void Scene::act(int byte, Input *input)
{
    m_isTold = false;
    if (byte < 0x80) {
        Tarn::Fuzz::pressKey(byte);
    } else {
        switch (Deed(byte % DeedCount)) {
        case FocusHtml:
            m_html->setFocus();
            break;
        case FocusNumber:
            m_boxes.at(input->below(EditorCount))->setFocus();
            break;
        case FillClipboard:
            QGuiApplication::clipboard()->setText(input->text());
            break;
        case SetRgb:
            m_shower.setRgb(qRgba(input->byte(), input->byte(), input->byte(), input->byte()));
            break;
        case SetHsv:
            setHsv(input);
            break;
        case DeedCount:
            break;
        }
    }
    check();
}

void Scene::setHsv(Input *input)
{
    const int hue = input->byte() * 2 - 4;
    const int saturation = input->byte() * 2 - 4;
    const int value = input->byte() * 2 - 4;
    m_shower.setHsv(hue, saturation, value);
}

void Scene::check() const
{
    const QRgb color = m_shower.currentColor();
    const QColor shown = m_shower.currentQColor();
    require(shown.isValid(), "the colour is valid");
    require((shown.rgb() & RGB_MASK) == (color & RGB_MASK), "both forms of the colour are one");
    require(shown.alpha() == m_boxes.at(Alpha)->value(), "the alpha is that of its editor");
    require(!m_isTold || m_told == color, "the colour is told as it is");
    require(m_boxes.at(Red)->value() == qRed(color) && m_boxes.at(Green)->value() == qGreen(color)
                && m_boxes.at(Blue)->value() == qBlue(color),
            "red, green and blue are those of the colour");

    const QString html = m_html->text();
    require(isBeginningOfForm(html), "the HTML form is one, or can become one");
    const bool isForm = html.size() == ShortForm || html.size() == LongForm;
    require(!isForm || colorOf(html) == (color & RGB_MASK), "the HTML form is that of the colour");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static auto *const scene = new Scene;
    Input input(data, size);
    scene->start();
    while (!input.atEnd())
        scene->act(input.byte(), &input);
    return 0;
}
