// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "testdialog.h"

#include <QCoreApplication>
#include <QFrame>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::TitleBar;

namespace Tarn::Test {

QVector<int> visibleTitleButtons(const TitleBar &bar)
{
    QVector<int> visible;
    for (int index = Logo; index <= Close; ++index) {
        if (bar.isTitleButtonVisible(index))
            visible.append(index);
    }
    return visible;
}

TestDialog::~TestDialog() = default;

void TestDialog::reTranslateUI()
{
    ++retranslations;
    okTextThen = m_pOKButton->text();
}

QVector<QFrame *> TestDialog::separators() const
{
    QVector<QFrame *> lines;
    for (int i = 0; i < m_pMainLayout->count(); ++i) {
        auto *frame = qobject_cast<QFrame *>(m_pMainLayout->itemAt(i)->widget());
        if (frame && frame->property("isBackgroundSeparator").toBool())
            lines.append(frame);
    }
    return lines;
}

FramelessHelper *TestDialog::helper() const
{
    return findChild<FramelessHelper *>(QString(), Qt::FindDirectChildrenOnly);
}

bool TestDialog::offersRestore() const
{
    return !m_pTitleBar->titleButton(Restore)->isHidden();
}

bool TestDialog::offersMaximise() const
{
    return !m_pTitleBar->titleButton(Maximise)->isHidden();
}

void TestDialog::paintEvent(QPaintEvent *event)
{
    ++paints;
    FramelessDialog::paintEvent(event);
}

Brackets::Brackets(const char *context)
    : m_context(context)
{
    QCoreApplication::installTranslator(this);
}

Brackets::~Brackets()
{
    QCoreApplication::removeTranslator(this);
}

bool Brackets::isEmpty() const
{
    return false;
}

QString Brackets::translate(const char *context, const char *text, const char *, int) const
{
    return m_context == context ? QStringLiteral("<%1>").arg(QString::fromUtf8(text)) : QString();
}

} // namespace Tarn::Test
