// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"
#include "ui_promoted.h"

#include <QTest>
#include <optional>

using namespace Tarn::Test;

/* A form by someone who has no plugin. */
class tst_DesignerPromotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void promotedTabWidgetHasItsPages();
    void promotedTabWidgetHasItsProperties();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_DesignerPromotion::promotedTabWidgetHasItsPages()
{
    QWidget form;
    Ui::Promoted ui;

    ui.setupUi(&form);

    QCOMPARE(ui.tabs->count(), 2);
    QCOMPARE(ui.tabs->widget(0), ui.pumps);
    QCOMPARE(ui.tabs->widget(1), ui.valves);
    QCOMPARE(ui.tabs->tabText(0), QStringLiteral("Pumps"));
    QCOMPARE(ui.tabs->tabText(1), QStringLiteral("Valves"));
    QCOMPARE(ui.tabs->tabToolTip(0), QStringLiteral("All pumps"));
    QCOMPARE(ui.tabs->currentIndex(), 1);
}

void tst_DesignerPromotion::promotedTabWidgetHasItsProperties()
{
    QWidget form;
    Ui::Promoted ui;

    ui.setupUi(&form);

    QCOMPARE(ui.tabs->elideMode(), Qt::ElideMiddle);
    QCOMPARE(ui.tabs->iconSize(), QSize(20, 18));
    QVERIFY(!ui.tabs->usesScrollButtons());
    QVERIFY(ui.tabs->tabsClosable());
    QVERIFY(ui.tabs->isMovable());
}

QTEST_MAIN(tst_DesignerPromotion)

#include "tst_designerpromotion.moc"
