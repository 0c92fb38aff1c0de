// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "desktop.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <X11/keysym.h>
#include <optional>
#include <tarnwidgets/iplineedit.h>

using Tarn::Test::Desktop;
using Tarn::Widgets::IPLineEdit;

namespace {

/* An editor and another field in a window, shown and with the keyboard in the editor's first field. */
struct Form
{
    explicit Form(Desktop &desktop)
        : desktop(desktop)
        , edit(new IPLineEdit)
        , next(new QLineEdit)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(edit);
        layout->addWidget(next);
        window.setGeometry(400, 200, 300, 120);
        fields = edit->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    }

    bool isReady()
    {
        if (!desktop.show(&window))
            return false;
        window.activateWindow();
        edit->setIPFocus();
        return desktop.server.settle() && desktop.hasKeyboard(&window) && fields.size() == 4;
    }

    /*! Digits and dots, key by key. */
    bool type(const QString &text) const
    {
        bool isTyped = true;
        for (const QChar c : text)
            isTyped = isTyped && desktop.input.key(c.unicode()); // the key symbols of Latin 1 are its codes
        return isTyped;
    }

    int focusIndex() const
    {
        return edit->getIndex(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
    }

    Desktop &desktop;
    QWidget window;
    IPLineEdit *const edit;
    QLineEdit *const next;
    QList<QLineEdit *> fields;
};

} // namespace

class tst_IPLineEditX11 : public QObject
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

    void typedAddressIsThere_data();
    void typedAddressIsThere();
    void clickPutsTheCursorIntoTheNumber();
    void keysLeadBackAndForth();
    void tabLeavesAndNormalises();

private:
    std::optional<Desktop> m_desktop;
};

void tst_IPLineEditX11::typedAddressIsThere_data()
{
    QTest::addColumn<bool>("anyAddress");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("address");
    QTest::newRow("with dots") << false << "192.168.1.20"
                               << "192.168.1.20";
    QTest::newRow("three digits each") << false << "100.200.199.250"
                                       << "100.200.199.250";
    QTest::newRow("a digit for the way to the next number") << false << "192x168x99x20"
                                                            << "192.168.99.20";
    QTest::newRow("what cannot be typed") << false << "8.256.300.9"
                                          << ".25.30.9";
    QTest::newRow("any address") << true << "8.8.8.8"
                                 << "8.8.8.8";
}

void tst_IPLineEditX11::typedAddressIsThere()
{
    QFETCH(bool, anyAddress);
    QFETCH(QString, keys);
    QFETCH(QString, address);
    Form form(*m_desktop);
    form.edit->setAcceptsAnyAddress(anyAddress);
    QVERIFY(form.isReady());

    QVERIFY(form.type(keys.replace(QLatin1Char('x'), QLatin1Char('0'))));

    QCOMPARE(form.edit->text(), address);
    QCOMPARE(form.focusIndex(), 3);
}

void tst_IPLineEditX11::clickPutsTheCursorIntoTheNumber()
{
    // GIVEN an address
    Form form(*m_desktop);
    QVERIFY(form.isReady());
    form.edit->setText(QStringLiteral("192.168.1.20"));

    // WHEN the user clicks at the right end of the third number, and types
    QVERIFY(m_desktop->input.click(m_desktop->center(form.fields[2]) + QPoint(12, 0)));
    QCOMPARE(form.focusIndex(), 2);
    QVERIFY(form.type(QStringLiteral("7")));

    // THEN that number is longer
    QCOMPARE(form.edit->text(), QStringLiteral("192.168.17.20"));
    QVERIFY(form.edit->isModified());
}

void tst_IPLineEditX11::keysLeadBackAndForth()
{
    Form form(*m_desktop);
    QVERIFY(form.isReady());
    QVERIFY(form.type(QStringLiteral("10.20.")));
    QCOMPARE(form.focusIndex(), 2);

    // An empty number is left at once, and Backspace deletes where it has led.
    QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(form.focusIndex(), 1);
    QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(form.edit->text(), QStringLiteral("10.2.."));

    // Right at the end, Left at the start.
    QVERIFY(m_desktop->input.key(XK_Right));
    QCOMPARE(form.focusIndex(), 2);
    QVERIFY(m_desktop->input.key(XK_Left));
    QCOMPARE(form.focusIndex(), 1);
    QCOMPARE(form.fields[1]->cursorPosition(), 1);
}

void tst_IPLineEditX11::tabLeavesAndNormalises()
{
    Form form(*m_desktop);
    QVERIFY(form.isReady());
    QVERIFY(form.type(QStringLiteral("10.007")));
    QCOMPARE(form.edit->text(), QStringLiteral("10.00.."));

    QVERIFY(m_desktop->input.key(XK_Tab));

    QCOMPARE(form.edit->text(), QStringLiteral("10.0.."));
    QCOMPARE(form.focusIndex(), 2);
    QVERIFY(m_desktop->input.key(XK_Tab));
    QVERIFY(m_desktop->input.key(XK_Tab));
    QVERIFY(form.next->hasFocus());
}

QTEST_MAIN(tst_IPLineEditX11)

#include "tst_iplineedit_x11.moc"
