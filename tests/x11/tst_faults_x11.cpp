// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// While a program waits for an answer: dialogs in dialogs, as the user sees them, and a display that
// vanishes.

#include "desktop.h"

#include <QFile>
#include <QFileDialog>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <support/messagesentry.h>
#include <support/modaldriver.h>
#include <support/modalkinds.h>
#include <tarnwidgets/framelesswindow.h>

using namespace Tarn::Test;

namespace {

constexpr int Patience = 30000; // milliseconds

/* An X server that can be killed. */
class Server
{
public:
    Server()
    {
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                         QStringLiteral("tcp")});
        if (m_process.waitForReadyRead(Patience))
            m_display = QLatin1Char(':') + QString::fromLatin1(m_process.readLine()).trimmed();
    }

    ~Server()
    {
        kill();
    }

    QString display() const
    {
        return m_display;
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    Q_DISABLE_COPY(Server)

    QProcess m_process;
    QString m_display;
};

/* How a program came to its end. */
struct End
{
    bool isReady;
    bool isOver;
    QProcess::ExitStatus status;
    int code;
    QByteArray words;
};

End endWithoutDisplay(const QStringList &arguments)
{
    Server server;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), server.display());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(TARN_FAULTPROCESS), arguments);
    const bool isReady = program.waitForReadyRead(Patience) && program.readLine() == "ready\n";
    server.kill();
    const bool isOver = program.waitForFinished(Patience);
    if (!isOver)
        program.kill();
    return {isReady, isOver, program.exitStatus(), program.exitCode(), program.readAllStandardError()};
}

} // namespace

class tst_FaultsX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_desktop.emplace();
        QVERIFY(m_desktop->isAsExpected());
    }
    void cleanup()
    {
        m_desktop.reset();
    }

    void keyboardComesBackToEachDialog_data();
    void keyboardComesBackToEachDialog();
    void vanishedDisplayEndsTheProgramAsQtsDialogsEndIt_data();
    void vanishedDisplayEndsTheProgramAsQtsDialogsEndIt();

private:
    std::optional<Desktop> m_desktop;
};

void tst_FaultsX11::keyboardComesBackToEachDialog_data()
{
    QTest::addColumn<int>("index");
    const QVector<ModalKind> kinds = modalKinds(QString());
    for (int i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].name) << i;
}

void tst_FaultsX11::keyboardComesBackToEachDialog()
{
    QFETCH(int, index);
    QTemporaryDir folder;
    QVERIFY(QFile(folder.filePath(QStringLiteral("file.txt"))).open(QIODevice::WriteOnly));
    const QVector<ModalKind> kinds = modalKinds(folder.path());
    const ModalKind &inner = kinds[index];

    // GIVEN a window, a dialog on it, and one more on that, which has the keyboard
    Tarn::Widgets::FramelessWindow window;
    window.resize(600, 400);
    QVERIFY(m_desktop->show(&window));
    MessageSentry sentry; // the file dialog tells what the user did
    bool hadKeyboard = false;
    bool hasKeyboard = false;
    bool isQtsOwn = false;
    ModalDriver driver([&](QWidget *outer) {
        QVERIFY(m_desktop->isShown(outer));
        inner.run(outer);
        // WHEN that one is answered, THEN the first one has the keyboard again
        // Without a window manager a QDialog, which the limited file dialog is, leaves the keyboard to
        // nobody.
        hasKeyboard = (isQtsOwn && !XServer::expectsWindowManager())
            || QTest::qWaitFor([&] { return m_desktop->hasKeyboard(outer); });
        kinds.first().accept(outer);
    });
    driver.then([&](QWidget *dialog) {
        QVERIFY(m_desktop->isShown(dialog));
        isQtsOwn = qobject_cast<QFileDialog *>(dialog);
        hadKeyboard = QTest::qWaitFor([&] { return m_desktop->hasKeyboard(dialog); });
        inner.accept(dialog);
    });
    kinds.first().run(&window);
    QVERIFY(driver.ran());
    QVERIFY(hadKeyboard);
    QVERIFY(hasKeyboard);

    // AND at the end the window, where there is somebody to give it, who may need more than one step for that
    if (XServer::expectsWindowManager())
        QVERIFY(QTest::qWaitFor([&] { return m_desktop->hasKeyboard(&window); }));
    sentry.clear();
}

void tst_FaultsX11::vanishedDisplayEndsTheProgramAsQtsDialogsEndIt_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("peer");
    QTest::addColumn<bool>("isDragged");
    QTest::newRow("dialog") << QStringLiteral("FramelessDialog") << QStringLiteral("QDialog") << false;
    QTest::newRow("dialog, dragged") << QStringLiteral("FramelessDialog") << QStringLiteral("QDialog")
                                     << true;
    QTest::newRow("message box") << QStringLiteral("FramelessMessageBox") << QStringLiteral("QMessageBox")
                                 << false;
    QTest::newRow("message box, dragged")
        << QStringLiteral("FramelessMessageBox") << QStringLiteral("QMessageBox") << true;
    QTest::newRow("colours") << QStringLiteral("ColorDialog") << QStringLiteral("QColorDialog") << false;
    QTest::newRow("colours, dragged")
        << QStringLiteral("ColorDialog") << QStringLiteral("QColorDialog") << true;
    QTest::newRow("files") << QStringLiteral("FramelessFileDialog") << QStringLiteral("QFileDialog") << false;
    QTest::newRow("files, dragged") << QStringLiteral("FramelessFileDialog") << QStringLiteral("QFileDialog")
                                    << true;
    QTest::newRow("limited files") << QStringLiteral("LimitedFileDialog") << QStringLiteral("QFileDialog")
                                   << false;
}

void tst_FaultsX11::vanishedDisplayEndsTheProgramAsQtsDialogsEndIt()
{
    QFETCH(QString, kind);
    QFETCH(QString, peer);
    QFETCH(bool, isDragged);

    // GIVEN how a program with Qt's own dialog ends
    const End expected = endWithoutDisplay({peer});
    QVERIFY(expected.isReady);
    QVERIFY(expected.isOver);
    QCOMPARE(expected.status, QProcess::NormalExit);
    QVERIFY2(expected.words.contains("X11 connection broke"), expected.words.constData());

    // WHEN one that waits in our dialog loses its display, maybe while the user drags the dialog
    const End end =
        endWithoutDisplay(isDragged ? QStringList{kind, QStringLiteral("drag")} : QStringList{kind});

    // THEN it ends in the same way: neither by a crash nor never
    QVERIFY(end.isReady);
    QVERIFY(end.isOver);
    QCOMPARE(end.status, expected.status);
    QCOMPARE(end.code, expected.code);
    QVERIFY2(end.words.contains("X11 connection broke"), end.words.constData());
}

QTEST_MAIN(tst_FaultsX11)

#include "tst_faults_x11.moc"
