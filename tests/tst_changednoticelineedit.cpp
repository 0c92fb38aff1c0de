// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QValidator>
#include <optional>
#include <tarnwidgets/changednoticelineedit.h>

using namespace Tarn::Test;
using Tarn::Widgets::ChangedNoticeLineEdit;

namespace {

/* The field and another one, in a window that has the keyboard. */
struct Form
{
    Form()
        : field(new ChangedNoticeLineEdit)
        , next(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(next);
        field->setText(QStringLiteral("192.168.1.20"));
        window.show();
        QApplication::setActiveWindow(&window);
        field->setFocus();
        field->selectAll();
    }

    bool isReady() const
    {
        return field->hasFocus() && field->hasSelectedText();
    }

    QWidget window;
    const QPointer<ChangedNoticeLineEdit> field;
    QLineEdit *const next;
};

} // namespace

class tst_ChangedNoticeLineEdit : public QObject
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

    void fieldIsALineEditWithOneSignalMore();
    void everyLossOfFocusIsNoticedOnce_data();
    void everyLossOfFocusIsNoticedOnce();
    void noticeComesBeforeTheBaseClassActs_data();
    void noticeComesBeforeTheBaseClassActs();
    void noticeComesWithoutAnEdit();
    void noticeComesThoughTheTextIsNotAcceptable();
    void gainingFocusAndTypingAreNotNoticed();
    void slotMayDeleteTheField();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_ChangedNoticeLineEdit::fieldIsALineEditWithOneSignalMore()
{
    QWidget parent;
    const auto *field = new ChangedNoticeLineEdit(&parent);

    QCOMPARE(field->parentWidget(), &parent);
    const QMetaObject *base = &QLineEdit::staticMetaObject;
    QCOMPARE(field->metaObject()->className(), "Tarn::Widgets::ChangedNoticeLineEdit");
    QCOMPARE(field->metaObject()->superClass(), base);
    QCOMPARE(field->metaObject()->propertyCount(), base->propertyCount());
    QCOMPARE(field->metaObject()->methodCount(), base->methodCount() + 1);
    QVERIFY(field->metaObject()->indexOfSignal("signal_focusOut()") >= 0);
    QVERIFY(field->objectName().isEmpty());
    QVERIFY(field->dynamicPropertyNames().isEmpty());
}

static void addReasons()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("click elsewhere") << Qt::MouseFocusReason;
    QTest::newRow("tab") << Qt::TabFocusReason;
    QTest::newRow("tab backwards") << Qt::BacktabFocusReason;
    QTest::newRow("shortcut") << Qt::ShortcutFocusReason;
    QTest::newRow("another window") << Qt::ActiveWindowFocusReason;
    QTest::newRow("popup") << Qt::PopupFocusReason;
    QTest::newRow("menu bar") << Qt::MenuBarFocusReason;
    QTest::newRow("other") << Qt::OtherFocusReason;
}

void tst_ChangedNoticeLineEdit::everyLossOfFocusIsNoticedOnce_data()
{
    addReasons();
}

void tst_ChangedNoticeLineEdit::everyLossOfFocusIsNoticedOnce()
{
    QFETCH(Qt::FocusReason, reason);
    Form form;
    QVERIFY(form.isReady());
    QSignalSpy notices(form.field, &ChangedNoticeLineEdit::signal_focusOut);

    form.next->setFocus(reason);
    QCOMPARE(notices.count(), 1);

    form.field->setFocus(reason);
    form.field->clearFocus();
    QCOMPARE(notices.count(), 2);
}

void tst_ChangedNoticeLineEdit::noticeComesBeforeTheBaseClassActs_data()
{
    addReasons();
}

// QLineEdit drops its selection when focus leaves for good, and says that editing is finished unless a popup
// of its own is open: the two traces of the base class's work that show outside.
void tst_ChangedNoticeLineEdit::noticeComesBeforeTheBaseClassActs()
{
    QFETCH(Qt::FocusReason, reason);
    const bool dropsSelection = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;

    // GIVEN a form whose first field holds the focus and a selection
    Form form;
    QVERIFY(form.isReady());
    QSignalSpy finished(form.field, &QLineEdit::editingFinished);
    bool wasSelected = false;
    int finishedBefore = -1;
    connect(form.field, &ChangedNoticeLineEdit::signal_focusOut, this, [&] {
        wasSelected = form.field->hasSelectedText();
        finishedBefore = finished.count();
    });

    // WHEN the focus moves on
    form.next->setFocus(reason);

    // THEN the notice came first, and the base class has done its work
    QVERIFY(wasSelected);
    QCOMPARE(finishedBefore, 0);
    QCOMPARE(form.field->hasSelectedText(), !dropsSelection);
    QCOMPARE(finished.count(), 1);
}

void tst_ChangedNoticeLineEdit::noticeComesWithoutAnEdit()
{
    Form form;
    QVERIFY(form.isReady());
    QVERIFY(!form.field->isModified());
    QSignalSpy notices(form.field, &ChangedNoticeLineEdit::signal_focusOut);

    form.next->setFocus();

    QCOMPARE(notices.count(), 1);
}

void tst_ChangedNoticeLineEdit::noticeComesThoughTheTextIsNotAcceptable()
{
    // GIVEN a text that the validator does not accept
    Form form;
    QVERIFY(form.isReady());
    form.field->setValidator(new QIntValidator(100, 200, form.field));
    form.field->setText(QStringLiteral("1"));
    QVERIFY(!form.field->hasAcceptableInput());
    QSignalSpy finished(form.field, &QLineEdit::editingFinished);
    QSignalSpy notices(form.field, &ChangedNoticeLineEdit::signal_focusOut);

    // WHEN the field is left
    form.next->setFocus();

    // THEN Qt is silent, and the notice comes
    QCOMPARE(finished.count(), 0);
    QCOMPARE(notices.count(), 1);
}

void tst_ChangedNoticeLineEdit::gainingFocusAndTypingAreNotNoticed()
{
    Form form;
    QVERIFY(form.isReady());
    form.next->setFocus();
    QSignalSpy notices(form.field, &ChangedNoticeLineEdit::signal_focusOut);

    form.field->setFocus();
    QTest::keyClicks(form.field, QStringLiteral("10"));
    QTest::keyClick(form.field, Qt::Key_Return);

    QVERIFY(form.field->isModified());
    QCOMPARE(notices.count(), 0);
}

void tst_ChangedNoticeLineEdit::slotMayDeleteTheField()
{
    Form form;
    QVERIFY(form.isReady());
    connect(form.field, &ChangedNoticeLineEdit::signal_focusOut, this, [&form] { delete form.field; });

    form.next->setFocus();

    QVERIFY(form.field.isNull());
    QVERIFY(form.next->hasFocus());
}

QTEST_MAIN(tst_ChangedNoticeLineEdit)

#include "tst_changednoticelineedit.moc"
