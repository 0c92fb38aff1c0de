// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/events.h"
#include "support/leftovers.h"
#include "support/messagesentry.h"
#include "support/modaldriver.h"
#include "support/picturecomparison.h"
#include "support/stateguard.h"

#include <QDialog>
#include <QDir>
#include <QHoverEvent>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelesshelper.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessHelper;

namespace {

/* Keeps what it got of the last mouse or hover event. */
class EventKeeper : public QWidget
{
public:
    EventKeeper()
    {
        setMouseTracking(true);
    }

    QPointF local;
    QPointF global;
    Qt::MouseButton button = Qt::NoButton;
    Qt::MouseButtons buttons;
    QEvent::Type type = QEvent::None;

protected:
    bool event(QEvent *event) override
    {
        if (auto *mouse = dynamic_cast<QMouseEvent *>(event)) {
            local = mouse->localPos();
            global = mouse->screenPos();
            button = mouse->button();
            buttons = mouse->buttons();
            type = event->type();
        } else if (auto *hover = dynamic_cast<QHoverEvent *>(event)) {
            local = hover->posF();
            type = event->type();
        } else if (event->type() == QEvent::Leave) {
            type = event->type();
        }
        return QWidget::event(event);
    }
};

/* Two directories with the same picture. */
class TwoPictures
{
public:
    TwoPictures()
    {
        for (const QDir &directory : {first, second}) {
            directory.mkpath(QStringLiteral("."));
            picture().save(directory.filePath(QStringLiteral("a.png")));
        }
    }

    static QImage picture()
    {
        QImage image(4, 4, QImage::Format_ARGB32);
        image.fill(QColor(100, 100, 100));
        return image;
    }

private:
    const QTemporaryDir m_top;

public:
    const QDir first = m_top.filePath(QStringLiteral("first"));
    const QDir second = m_top.filePath(QStringLiteral("second"));
};

void accept(QWidget *dialog)
{
    qobject_cast<QDialog *>(dialog)->accept();
}

} // namespace

// What must make a test fail is tried by support/deliberatefailures.cpp.
class tst_TestSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsKeepTheirFractions();
    void eventsCarryTheirButtons();

    void announcedMessageIsInOrder();
    void otherMessagesAreNoted();
    void innermostSentryJudges();

    void leftOverWindowsAreNamedUnlessExcused();
    void deferredDeletionIsDoneFirst();

    void sharedStateIsPutBack();

    void driverActsOnTheDialog();
    void driverActsOnNestedDialogs();
    void driverActsOnTheSameDialogAgain();

    void equalPicturesHaveNoDifferences();
    void differencesOfPicturesAreTold_data();
    void differencesOfPicturesAreTold();
    void roundingOfTranslucentColorsIsNoDifference();
};

void tst_TestSupport::eventsKeepTheirFractions()
{
    EventKeeper widget;
    widget.move(100, 200);
    QCOMPARE(toGlobal(&widget, QPointF(1.5, 2.25)), QPointF(101.5, 202.25));

    mousePress(&widget, QPointF(110.25, 220.75));
    QCOMPARE(widget.local, QPointF(10.25, 20.75));
    QCOMPARE(widget.global, QPointF(110.25, 220.75));

    hoverMove(&widget, QPointF(3.5, 4.5));
    QCOMPARE(widget.type, QEvent::HoverMove);
    QCOMPARE(widget.local, QPointF(3.5, 4.5));

    sendMouseEvent(&widget, QEvent::MouseButtonPress, QPointF(1, 2), QPointF(3, 4), Qt::LeftButton,
                   Qt::LeftButton);
    QCOMPARE(widget.local, QPointF(1, 2));
    QCOMPARE(widget.global, QPointF(3, 4));
}

void tst_TestSupport::eventsCarryTheirButtons()
{
    EventKeeper widget;

    mousePress(&widget, QPointF(), Qt::RightButton);
    QCOMPARE(widget.type, QEvent::MouseButtonPress);
    QCOMPARE(widget.button, Qt::RightButton);
    QCOMPARE(widget.buttons, Qt::MouseButtons(Qt::RightButton));

    mouseMove(&widget, QPointF());
    QCOMPARE(widget.type, QEvent::MouseMove);
    QCOMPARE(widget.button, Qt::NoButton);
    QCOMPARE(widget.buttons, Qt::MouseButtons(Qt::LeftButton));

    mouseRelease(&widget, QPointF());
    QCOMPARE(widget.type, QEvent::MouseButtonRelease);
    QCOMPARE(widget.button, Qt::LeftButton);
    QCOMPARE(widget.buttons, Qt::MouseButtons());

    mouseDoubleClick(&widget, QPointF());
    QCOMPARE(widget.type, QEvent::MouseButtonDblClick);

    leave(&widget);
    QCOMPARE(widget.type, QEvent::Leave);
}

void tst_TestSupport::announcedMessageIsInOrder()
{
    MessageSentry sentry;
    sentry.expect(QtWarningMsg, QStringLiteral("(half)"));
    sentry.expect(QtDebugMsg, QRegularExpression(QStringLiteral("^\\d+$")));
    QVERIFY(!sentry.isSatisfied());

    qWarning("a message (half) announced");
    QVERIFY(!sentry.isSatisfied());
    qDebug("17");

    QVERIFY(sentry.isSatisfied());
    QCOMPARE(sentry.unexpected(), QStringList());
}

void tst_TestSupport::otherMessagesAreNoted()
{
    MessageSentry sentry;
    sentry.expect(QtWarningMsg, QStringLiteral("announced once"));

    qWarning("announced once");
    qWarning("announced once");
    qInfo("not announced");
    qWarning("This plugin does not support raise()"); // what the platform says is nobody's fault

    QCOMPARE(sentry.unexpected(),
             QStringList({QStringLiteral("warning: announced once"), QStringLiteral("info: not announced")}));
    sentry.clear();
    QCOMPARE(sentry.unexpected(), QStringList());
}

void tst_TestSupport::innermostSentryJudges()
{
    MessageSentry outer;
    {
        MessageSentry inner;
        inner.expect(QtWarningMsg, QStringLiteral("for the inner one"));
        qWarning("for the inner one");
        QVERIFY(inner.isSatisfied());
    }
    QCOMPARE(outer.unexpected(), QStringList());
}

void tst_TestSupport::leftOverWindowsAreNamedUnlessExcused()
{
    QCOMPARE(leftOverTopLevels(), QStringList());
    {
        QDialog dialog;
        dialog.setObjectName(QStringLiteral("kept"));
        QDialog ownedByDialog(&dialog);
        QCOMPARE(leftOverTopLevels(), QStringList(QStringLiteral("QDialog \"kept\"")));
        QCOMPARE(leftOverTopLevels({QStringLiteral("kept")}), QStringList());
        QCOMPARE(leftOverTopLevels({QStringLiteral("QDialog")}), QStringList());
        QCOMPARE(leftOverTopLevels({QStringLiteral("QMessageBox")}).size(), 1);
    }
    QCOMPARE(leftOverTopLevels(), QStringList());
}

void tst_TestSupport::deferredDeletionIsDoneFirst()
{
    auto *widget = new QWidget;
    QCOMPARE(leftOverTopLevels().size(), 1);

    widget->deleteLater();

    QCOMPARE(leftOverTopLevels(), QStringList());
}

void tst_TestSupport::sharedStateIsPutBack()
{
    const QColor border = FramelessDialog::m_defaultBorderColor;
    FramelessHelper helper;
    const unsigned int borderWidth = helper.borderWidth();
    const unsigned int titleHeight = helper.titleHeight();
    {
        const StateGuard guard;
        helper.setBorderWidth(borderWidth + 1);
        helper.setTitleHeight(titleHeight + 1);
        FramelessDialog::m_defaultBorderColor = Qt::red;
        qApp->setStyleSheet(QStringLiteral("QLabel { color: red }"));
    }
    QCOMPARE(helper.borderWidth(), borderWidth);
    QCOMPARE(helper.titleHeight(), titleHeight);
    QCOMPARE(FramelessDialog::m_defaultBorderColor, border);
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_TestSupport::driverActsOnTheDialog()
{
    QDialog dialog;
    QWidget *seen = nullptr;
    ModalDriver driver([&seen](QWidget *widget) {
        seen = widget;
        accept(widget);
    });
    QVERIFY(!driver.ran());

    QCOMPARE(dialog.exec(), int(QDialog::Accepted));

    QVERIFY(driver.ran());
    QCOMPARE(seen, &dialog);
}

void tst_TestSupport::driverActsOnNestedDialogs()
{
    QDialog outer;
    ModalDriver driver([](QWidget *widget) {
        QDialog inner(widget);
        if (inner.exec() == QDialog::Accepted)
            accept(widget);
    });
    driver.then(&accept);

    QCOMPARE(outer.exec(), int(QDialog::Accepted));

    QVERIFY(driver.ran());
}

void tst_TestSupport::driverActsOnTheSameDialogAgain()
{
    QDialog dialog;
    ModalDriver driver(&accept);
    driver.then([](QWidget *widget) { qobject_cast<QDialog *>(widget)->reject(); });

    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(!driver.ran());
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));

    QVERIFY(driver.ran());
}

void tst_TestSupport::equalPicturesHaveNoDifferences()
{
    const TwoPictures both;
    QCOMPARE(picturesIn(both.first), QStringList(QStringLiteral("a.png")));
    QCOMPARE(picturesIn(both.second), QStringList(QStringLiteral("a.png")));
    QCOMPARE(pictureDifferences(both.first, both.second), QStringList());
}

void tst_TestSupport::differencesOfPicturesAreTold_data()
{
    QTest::addColumn<QImage>("changed"); // the second a.png, none if null
    QTest::addColumn<QString>("told");

    QImage pixels = TwoPictures::picture();
    pixels.setPixelColor(2, 1, QColor(100, 101, 100));
    QTest::newRow("one pixel by one")
        << pixels << QStringLiteral("a.png: 1 pixels differ, by up to 1 of 255, within 1x1 at 2,1");
    pixels.setPixelColor(1, 3, QColor(100, 100, 60));
    QTest::newRow("two pixels") << pixels
                                << QStringLiteral(
                                       "a.png: 2 pixels differ, by up to 40 of 255, within 2x3 at 1,1");
    QImage translucent = TwoPictures::picture();
    translucent.setPixelColor(0, 0, QColor(100, 100, 100, 250));
    QTest::newRow("translucency") << translucent
                                  << QStringLiteral(
                                         "a.png: 1 pixels differ, by up to 5 of 255, within 1x1 at 0,0");
    QTest::newRow("the size") << pixels.copy(0, 0, 4, 3) << QStringLiteral("a.png: 4x4 and 4x3 pixels");
    QTest::newRow("a missing one") << QImage() << QStringLiteral("a.png: only in first");
}

void tst_TestSupport::differencesOfPicturesAreTold()
{
    QFETCH(QImage, changed);
    QFETCH(QString, told);

    // GIVEN two directories that differ
    const TwoPictures both;
    const QString path = both.second.filePath(QStringLiteral("a.png"));
    QVERIFY(changed.isNull() ? QFile::remove(path) : changed.save(path));

    // WHEN they are compared either way
    const QStringList there = pictureDifferences(both.first, both.second);
    const QStringList back = pictureDifferences(both.second, both.first);

    // THEN each tells it
    told.replace(QLatin1String("first"), both.first.path());
    QCOMPARE(there, QStringList(told));
    QCOMPARE(back.count(), 1);
}

void tst_TestSupport::roundingOfTranslucentColorsIsNoDifference()
{
    // GIVEN two translucent colours that are one when they are painted, and differ by one in a file
    const TwoPictures both;
    const QColor colors[] = {QColor(124, 128, 137, 128), QColor(124, 127, 137, 128)};
    const QDir *const directories[] = {&both.first, &both.second};
    for (int i = 0; i < 2; ++i) {
        QImage image = TwoPictures::picture();
        image.setPixelColor(0, 0, colors[i]);
        QVERIFY(image.save(directories[i]->filePath(QStringLiteral("a.png"))));
        QCOMPARE(QImage(directories[i]->filePath(QStringLiteral("a.png"))).pixelColor(0, 0), colors[i]);
    }

    QCOMPARE(pictureDifferences(both.first, both.second), QStringList());
}

QTEST_MAIN(tst_TestSupport)

#include "tst_testsupport.moc"
