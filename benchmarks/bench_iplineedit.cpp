// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// IPLineEdit against a line edit with an input mask.

#include "benchmark.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegExpValidator>
#include <QVBoxLayout>
#include <tarnwidgets/iplineedit.h>

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

/* The fields, dots and validators of an IPLineEdit, made in the fewest calls. */
class BareEdit : public QLineEdit
{
public:
    BareEdit()
    {
        setObjectName(QStringLiteral("ipLineEdit"));
        setLayoutDirection(Qt::LeftToRight);
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(4);
        row->addWidget(createField());
        for (int i = 0; i < 3; ++i) {
            auto *column = new QVBoxLayout;
            column->addStretch();
            column->addWidget(createDot());
            row->addLayout(column);
            row->addWidget(createField());
        }
    }

private:
    QWidget *createField()
    {
        auto *field = new QLineEdit(this);
        field->setFrame(false);
        field->setMaxLength(3);
        field->setAlignment(Qt::AlignCenter);
        field->setValidator(
            new QRegExpValidator(QRegExp(QStringLiteral("(2[0-5]{2}|2[0-4][0-9]|1?[0-9]{1,2})")), this));
        field->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        return field;
    }

    QWidget *createDot()
    {
        auto *dot = new QFrame(this);
        dot->setObjectName(QStringLiteral("ipLineEditDot"));
        dot->setProperty("ipLineEditDot", true);
        dot->setFixedSize(2, 2);
        return dot;
    }
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"address-type", "an address of 12 digits typed", 0.29, side<Type<IPLineEdit>>(),
             side<Type<MaskedEdit>>(), nullptr, false, 20},
            {"address-life", "an editor: made, shown, hidden, destroyed", 1.30, side<Life<IPLineEdit>>(),
             side<Life<MaskedEdit>>(), nullptr, true, 20, 20, side<Life<BareEdit>>()},
        });
}
