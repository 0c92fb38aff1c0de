// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "messageboxparts.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace Tarn::Test {

using Widgets::FramelessMessageBox;

Outcome::Outcome(const FramelessMessageBox &box)
    : clicks(&box, &FramelessMessageBox::buttonClicked)
    , finished(&box, &QDialog::finished)
{
}

int Outcome::code() const
{
    return finished.isEmpty() ? Untouched : finished.last().first().toInt();
}

void show(QWidget &widget)
{
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

QDialogButtonBox *buttonBoxOf(const FramelessMessageBox &box)
{
    return box.findChild<QDialogButtonBox *>();
}

QLabel *label(const FramelessMessageBox &box, const QString &name)
{
    return box.findChild<QLabel *>(name);
}

QPushButton *detailsButton(const FramelessMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text().endsWith(QStringLiteral("Details...")))
            return qobject_cast<QPushButton *>(button);
    }
    return nullptr;
}

} // namespace Tarn::Test
