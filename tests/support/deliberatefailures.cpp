// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "functionguard.h"
#include "modaldriver.h"

#include <QDialog>
#include <QTest>
#include <QWidget>

using namespace Tarn::Test;

/* Every function fails, each for the reason in its name; ctest checks that it says so. */
class DeliberateFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unexpectedMessage();
    void missingMessage();
    void leftOverWindow();
    void missingDialog();
    void unexpectedDialog();
    void secondUnexpectedDialog();
    void dialogLeftOpen();

private:
    const int m_shortly = 50; // milliseconds
};

void DeliberateFailures::unexpectedMessage()
{
    const FunctionGuard guard;
    qWarning("surprise");
}

void DeliberateFailures::missingMessage()
{
    FunctionGuard guard;
    guard.sentry().expect(QtWarningMsg, QStringLiteral("no surprise"));
}

void DeliberateFailures::leftOverWindow()
{
    QWidget window;
    const FunctionGuard guard;
}

void DeliberateFailures::missingDialog()
{
    const ModalDriver driver([](QWidget *) {});
}

void DeliberateFailures::unexpectedDialog()
{
    const ModalDriver driver([](QWidget *dialog) {
        QDialog(dialog).exec();
        dialog->close();
    });
    QDialog().exec();
}

void DeliberateFailures::secondUnexpectedDialog()
{
    const ModalDriver driver([](QWidget *dialog) { dialog->close(); }, m_shortly);
    QDialog().exec();
    QDialog().exec();
}

void DeliberateFailures::dialogLeftOpen()
{
    const ModalDriver driver([](QWidget *) {}, m_shortly);
    QDialog().exec();
}

QTEST_MAIN(DeliberateFailures)

#include "deliberatefailures.moc"
