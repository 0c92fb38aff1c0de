// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// IPLineEdit against a line edit with an input mask.

#include "barelife.h"

#include <QApplication>
#include <QKeyEvent>
#include <tarnwidgets/iplineedit.h>

using Tarn::Benchmark::bareLife;
using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::IPLineEdit;

namespace {

class MaskedEdit : public QLineEdit
{
public:
    MaskedEdit()
    {
        setInputMask(QStringLiteral("000.000.000.000;_"));
    }

    void setIPFocus()
    {
        setFocus();
        setCursorPosition(0);
    }
};

template <typename Edit> class Type : public Side
{
public:
    Type()
    {
        m_edit.show();
        QApplication::setActiveWindow(&m_edit);
    }

    void prepare() override
    {
        m_edit.clear();
        m_edit.setIPFocus();
        Side::prepare();
    }

    /* Each key is shown before the next one comes. */
    void step() override
    {
        for (const char key : "192.168.101.120") {
            if (key == '\0')
                break;
            sendKey(QEvent::KeyPress, key);
            sendKey(QEvent::KeyRelease, key);
            QApplication::processEvents();
        }
    }

private:
    static void sendKey(QEvent::Type type, char key)
    {
        QKeyEvent event(type, key, Qt::NoModifier, QString(QLatin1Char(key)));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    Edit m_edit;
};

template <typename Edit> class Life : public Side
{
public:
    void step() override
    {
        Edit edit;
        edit.show();
        QApplication::processEvents();
        edit.hide();
        QApplication::processEvents();
    }
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(argc, argv,
                                {
                                    {"address-type", "an address of 12 digits typed", 0.29,
                                     side<Type<IPLineEdit>>(), side<Type<MaskedEdit>>(), nullptr, false, 20},
                                    {"address-life", "an editor: made, shown, hidden, destroyed", 1.30,
                                     side<Life<IPLineEdit>>(), side<Life<MaskedEdit>>(), nullptr, true, 20,
                                     20, bareLife([] { return std::make_unique<IPLineEdit>(); })},
                                });
}
