// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What can go wrong while a dialog waits for its user: dialogs in dialogs, owners that are deleted, and a
// program that is to end. Each rule for every class and every one-call function.

#include "support/colordialogparts.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/modalkinds.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <optional>
#include <tarnwidgets/colordialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::ColorDialog;

namespace {

/* The colour that getColor() returns when nobody clicked a button: that of the last call. */
const QColor LastColor(1, 2, 3);

enum WayOut { Quit, ExitWithCode, CloseAllWindows };

constexpr int ExitCode = 7;

QString orLastColor(const QString &answer)
{
    return answer.isNull() ? LastColor.name() : answer;
}

QStringList visibleWindows()
{
    QStringList names;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (const QWidget *widget : topLevels) {
        if (widget->isVisible())
            names.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(WayOut)

class tst_FaultsModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void nestedDialogsReturnTheirOwnAnswers_data();
    void nestedDialogsReturnTheirOwnAnswers();
    void deletedParentEndsTheCall_data();
    void deletedParentEndsTheCall();
    void parentDeletedFromANestedDialogEndsBothCalls_data();
    void parentDeletedFromANestedDialogEndsBothCalls();
    void dialogMayBeDeletedLaterByWhoeverHearsOfItsEnd_data();
    void dialogMayBeDeletedLaterByWhoeverHearsOfItsEnd();
    void programEndsWhileItWaits_data();
    void programEndsWhileItWaits();

private:
    void addKinds();
    static void chooseLastColor();

    QTemporaryDir m_folder;
    QVector<ModalKind> m_kinds;
    std::unique_ptr<QWidget> m_window;
    std::optional<FunctionGuard> m_guard;
};

void tst_FaultsModal::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QFile file(m_folder.filePath(QStringLiteral("file.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    m_kinds = modalKinds(m_folder.path());
}

void tst_FaultsModal::init()
{
    m_guard.emplace();
    m_window = std::make_unique<QWidget>();
    m_window->resize(600, 400);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    chooseLastColor();
}

void tst_FaultsModal::cleanup()
{
    m_window.reset();
    // The file dialog tells what the user did.
    QStringList messages = m_guard->sentry().unexpected();
    messages.erase(std::remove_if(messages.begin(), messages.end(),
                                  [](const QString &message) {
                                      return message.contains(QLatin1String("FileDialog::slot_"));
                                  }),
                   messages.end());
    m_guard->sentry().clear();
    m_guard.reset();
    QCOMPARE(messages, QStringList());
}

void tst_FaultsModal::chooseLastColor()
{
    ModalDriver driver(
        [](QWidget *dialog) { ColorDialogParts(qobject_cast<ColorDialog *>(dialog)).ok->click(); });
    QCOMPARE(ColorDialog::getColor(LastColor), LastColor);
}

void tst_FaultsModal::addKinds()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_kinds.size(); ++i)
        QTest::newRow(m_kinds[i].name) << i;
}

// Each inside each other, with the outer one as the inner one's parent

void tst_FaultsModal::nestedDialogsReturnTheirOwnAnswers_data()
{
    addKinds();
}

void tst_FaultsModal::nestedDialogsReturnTheirOwnAnswers()
{
    QFETCH(int, index);
    const ModalKind &outer = m_kinds[index];
    for (const ModalKind &inner : qAsConst(m_kinds)) {
        // GIVEN a dialog that waits for its user
        QString innerAnswer;
        QStringList visible;
        ModalDriver driver([&](QWidget *dialog) {
            // WHEN it asks another question, which is answered
            innerAnswer = inner.run(dialog);

            // THEN it alone is the modal one again, and nothing else is open
            QCOMPARE(QApplication::activeModalWidget(), dialog);
            visible = visibleWindows();
            outer.accept(dialog);
        });
        driver.then(inner.accept);
        const QString outerAnswer = outer.run(m_window.get());

        // AND each has its own answer
        const QByteArray pair = QByteArray(inner.name) + " in " + outer.name;
        QVERIFY2(driver.ran(), pair.constData());
        QVERIFY2(innerAnswer == inner.accepted, (pair + ": " + innerAnswer.toUtf8()).constData());
        QVERIFY2(outerAnswer == outer.accepted, (pair + ": " + outerAnswer.toUtf8()).constData());
        QVERIFY2(visible.size() == 2, (pair + ": " + visible.join(QLatin1Char(' ')).toUtf8()).constData());
        QCOMPARE(visibleWindows().size(), 1);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }
}

// Owners that are deleted

void tst_FaultsModal::deletedParentEndsTheCall_data()
{
    addKinds();
}

void tst_FaultsModal::deletedParentEndsTheCall()
{
    QFETCH(int, index);
    QPointer<QWidget> seen;
    ModalDriver driver([&](QWidget *dialog) {
        seen = dialog;
        m_window.reset();
    });
    QCOMPARE(m_kinds[index].run(m_window.get()), orLastColor(m_kinds[index].orphaned));
    QVERIFY(driver.ran());
    QVERIFY(seen.isNull());
}

void tst_FaultsModal::parentDeletedFromANestedDialogEndsBothCalls_data()
{
    addKinds();
}

void tst_FaultsModal::parentDeletedFromANestedDialogEndsBothCalls()
{
    QFETCH(int, index);
    const ModalKind &outer = m_kinds[index];
    for (const ModalKind &inner : qAsConst(m_kinds)) {
        // GIVEN a dialog in a dialog
        m_window = std::make_unique<QWidget>();
        m_window->show();
        QString innerAnswer;
        ModalDriver driver([&](QWidget *dialog) { innerAnswer = inner.run(dialog); });
        // WHEN the window at the bottom is deleted
        driver.then([&](QWidget *) { m_window.reset(); });
        const QString outerAnswer = outer.run(m_window.get());

        // THEN both calls return
        const QByteArray pair = QByteArray(inner.name) + " in " + outer.name;
        QVERIFY2(driver.ran(), pair.constData());
        QVERIFY2(innerAnswer == orLastColor(inner.orphaned),
                 (pair + ": " + innerAnswer.toUtf8()).constData());
        QVERIFY2(outerAnswer == orLastColor(outer.orphaned),
                 (pair + ": " + outerAnswer.toUtf8()).constData());
        QCOMPARE(visibleWindows(), QStringList());
    }
}

void tst_FaultsModal::dialogMayBeDeletedLaterByWhoeverHearsOfItsEnd_data()
{
    addKinds();
}

// At once would be too early: QDialog goes on after each of its signals.
void tst_FaultsModal::dialogMayBeDeletedLaterByWhoeverHearsOfItsEnd()
{
    QFETCH(int, index);
    QPointer<QDialog> seen;
    ModalDriver driver([&](QWidget *widget) {
        seen = qobject_cast<QDialog *>(widget);
        QVERIFY(seen);
        connect(seen, &QDialog::rejected, seen, &QObject::deleteLater);
        seen->reject();
    });
    m_kinds[index].run(m_window.get()); // what it returns then is of no interest: nobody chose anything
    QVERIFY(driver.ran());
    QTRY_VERIFY(seen.isNull());
}

// A program that is to end

void tst_FaultsModal::programEndsWhileItWaits_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<WayOut>("wayOut");
    for (int i = 0; i < m_kinds.size(); ++i) {
        QTest::addRow("quit, %s", m_kinds[i].name) << i << Quit;
        QTest::addRow("exit with a code, %s", m_kinds[i].name) << i << ExitWithCode;
        QTest::addRow("all windows closed, %s", m_kinds[i].name) << i << CloseAllWindows;
    }
}

void tst_FaultsModal::programEndsWhileItWaits()
{
    QFETCH(int, index);
    QFETCH(WayOut, wayOut);
    const ModalKind &kind = m_kinds[index];

    // GIVEN a program whose event loop runs that of a dialog
    QString answer = QStringLiteral("none");
    QTimer::singleShot(0, this, [&] { answer = kind.run(m_window.get()); });

    // WHEN the program is to end
    ModalDriver driver([&](QWidget *) {
        if (wayOut == Quit)
            QCoreApplication::quit();
        else if (wayOut == ExitWithCode)
            QCoreApplication::exit(ExitCode);
        else
            QApplication::closeAllWindows();
    });
    const int code = QApplication::exec();

    // THEN the call returns without an answer, and the program ends with its code
    QVERIFY(driver.ran());
    QCOMPARE(code, wayOut == ExitWithCode ? ExitCode : 0);
    QCOMPARE(answer, orLastColor(wayOut == CloseAllWindows ? kind.closed : kind.interrupted));
    if (wayOut == CloseAllWindows)
        QCOMPARE(visibleWindows(), QStringList());
}

QTEST_MAIN(tst_FaultsModal)

#include "tst_faults_modal.moc"
