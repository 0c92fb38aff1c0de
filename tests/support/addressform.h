// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_ADDRESSFORM_H
#define TARN_TEST_ADDRESSFORM_H

#include <QApplication>
#include <QLineEdit>
#include <QList>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>
#include <QVector>
#include <QWidget>
#include <tarnwidgets/iplineedit.h>

namespace Tarn::Test {

constexpr int FieldCount = 4;

/* The warning about a text that is no address. */
inline QRegularExpression noAddressWarning()
{
    return QRegularExpression(QStringLiteral("^void Tarn::Widgets::IPLineEdit::setText\\(const QString&\\) "
                                             "Your IP Address is Invalid!$"));
}

inline QVector<QLineEdit *> fieldsOf(const Widgets::IPLineEdit &edit)
{
    const QList<QLineEdit *> fields = edit.findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    return fields.toVector();
}

/* An editor and another field in a window that has the keyboard. */
struct AddressForm
{
    AddressForm()
        : edit(new Widgets::IPLineEdit)
        , next(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(edit);
        layout->addWidget(next);
        window.show();
        QApplication::setActiveWindow(&window);
        fields = fieldsOf(*edit);
    }

    bool isReady() const
    {
        return window.isActiveWindow() && fields.size() == FieldCount;
    }

    /*! As the user would: by the keyboard, key by key. */
    void type(int index, const QString &digits)
    {
        fields[index]->setFocus();
        fields[index]->clear();
        QTest::keyClicks(fields[index], digits);
    }

    QWidget window;
    Widgets::IPLineEdit *const edit;
    QLineEdit *const next;
    QVector<QLineEdit *> fields;
};

} // namespace Tarn::Test

#endif
