// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The message box under a user's hands: by the keyboard alone, from opening to the result.

#include "desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <X11/keysym.h>
#include <optional>
#include <support/modaldriver.h>
#include <tarnwidgets/framelessmessagebox.h>

using Tarn::Test::Desktop;
using Tarn::Test::ModalDriver;
using Tarn::Widgets::FramelessMessageBox;

namespace {

constexpr int Untouched = -99;

using Keys = QVector<unsigned long>;

QAbstractButton *detailsButton(const FramelessMessageBox &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (box.standardButton(button) == QMessageBox::NoButton)
            return button;
    }
    return nullptr;
}

} // namespace

Q_DECLARE_METATYPE(Keys)

class tst_FramelessMessageBoxX11 : public QObject
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

    void keysLeadFromOpeningToTheResult_data();
    void keysLeadFromOpeningToTheResult();
    void oneCallIsAnsweredByTheKeyboard();
    void detailsAreOpenedSelectedAndCopied();
    void closeButtonGivesTheEscapeButton();
    void textsLimitTheWidthByTheScreen();

private:
    std::optional<Desktop> m_desktop;
};

void tst_FramelessMessageBoxX11::keysLeadFromOpeningToTheResult_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("result");
    QTest::newRow("Return") << Keys{XK_Return} << int(QMessageBox::Yes);
    QTest::newRow("Enter") << Keys{XK_KP_Enter} << int(QMessageBox::Yes);
    QTest::newRow("Space") << Keys{XK_space} << int(QMessageBox::Yes);
    QTest::newRow("Tab, Space") << Keys{XK_Tab, XK_space} << int(QMessageBox::No);
    QTest::newRow("Tab, Return") << Keys{XK_Tab, XK_Return} << int(QMessageBox::No);
    QTest::newRow("right, Return") << Keys{XK_Right, XK_Return} << int(QMessageBox::No);
    QTest::newRow("mnemonic") << Keys{XK_n} << int(QMessageBox::No);
    QTest::newRow("Escape") << Keys{XK_Escape} << int(QMessageBox::Cancel);
    QTest::newRow("a key of no button") << Keys{XK_x} << Untouched;
}

void tst_FramelessMessageBoxX11::keysLeadFromOpeningToTheResult()
{
    QFETCH(Keys, keys);
    QFETCH(int, result);

    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"));
    box.addButton(QMessageBox::Yes);
    box.addButton(QMessageBox::No);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Yes);
    QSignalSpy finished(&box, &QDialog::finished);
    QVERIFY(m_desktop->show(&box));
    QTRY_VERIFY(m_desktop->hasKeyboard(&box));
    for (const unsigned long key : qAsConst(keys))
        QVERIFY(m_desktop->input.key(key));
    if (result == Untouched) {
        QVERIFY(box.isVisible());
        QCOMPARE(finished.count(), 0);
    } else {
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(box.result(), result);
    }
}

void tst_FramelessMessageBoxX11::oneCallIsAnsweredByTheKeyboard()
{
    ModalDriver driver([this](QWidget *dialog) {
        QVERIFY(m_desktop->isShown(dialog));
        QTRY_VERIFY(m_desktop->hasKeyboard(dialog));
        QVERIFY(m_desktop->input.key(XK_Tab));
        QVERIFY(m_desktop->input.key(XK_space));
    });
    QCOMPARE(FramelessMessageBox::question(nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
                                           QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes),
             QMessageBox::No);
    QVERIFY(driver.ran());
}

void tst_FramelessMessageBoxX11::detailsAreOpenedSelectedAndCopied()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    FramelessMessageBox box(QMessageBox::Warning, QStringLiteral("Title"), QStringLiteral("Text"),
                            QMessageBox::Close);
    box.setDetailedText(QStringLiteral("details to copy"));
    QVERIFY(m_desktop->show(&box));
    QTRY_VERIFY(m_desktop->hasKeyboard(&box));

    // WHEN the user tabs to the details button and presses it
    for (int i = 0; i < 8 && !detailsButton(box)->hasFocus(); ++i)
        QVERIFY(m_desktop->input.key(XK_Tab));
    QVERIFY(detailsButton(box)->hasFocus());
    QVERIFY(m_desktop->input.key(XK_space));
    QTRY_VERIFY(box.findChild<QTextEdit *>()->isVisible());
    QVERIFY(box.isVisible());

    // AND selects and copies all
    QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_c)); // nothing yet
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_a));
    QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_c));

    // THEN the clipboard has it, and Escape still ends the box
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("details to copy"));
    QVERIFY(m_desktop->input.key(XK_Escape));
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), int(QMessageBox::Close));
}

void tst_FramelessMessageBoxX11::closeButtonGivesTheEscapeButton()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Title"), QStringLiteral("Text"),
                            QMessageBox::Yes | QMessageBox::No);
    QVERIFY(m_desktop->show(&box));
    QVERIFY(box.getCloseButtonVisible());
    const QRect frame = m_desktop->geometry(&box);
    QVERIFY(m_desktop->input.click(frame.topRight() + QPoint(-15, 12)));
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.result(), int(QMessageBox::No));
}

void tst_FramelessMessageBoxX11::textsLimitTheWidthByTheScreen()
{
    const int screen = QGuiApplication::primaryScreen()->availableGeometry().width();
    QVERIFY(screen > 1024); // or the limit is the screen itself
    FramelessMessageBox box(QMessageBox::NoIcon, QString(300, QLatin1Char('W')), QStringLiteral("Text"));
    QVERIFY(m_desktop->show(&box));
    const int limit = qMin(screen - 480, 1000);
    QCOMPARE(m_desktop->geometry(&box).width(), limit);
}

QTEST_MAIN(tst_FramelessMessageBoxX11)

#include "tst_framelessmessagebox_x11.moc"
