// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include <QPointer>
#include <QTest>
#include <memory>
#include <tarnutils/appmainwindow.h>
#include <type_traits>

using Tarn::Utils::AppMainWindow;

class tst_AppMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectChainsToQMainWindow();
    void standInAddsNothingToQMainWindow();
    void windowBelongsToItsParent();
    void windowHasTheFlagsOfAQMainWindow_data();
    void windowHasTheFlagsOfAQMainWindow();
    void windowIsDeletedThroughItsBase();
};

void tst_AppMainWindow::metaObjectChainsToQMainWindow()
{
    AppMainWindow window(nullptr);
    QObject *object = &window;
    QCOMPARE(object->metaObject()->className(), "Tarn::Utils::AppMainWindow");
    QCOMPARE(object->metaObject()->superClass(), &QMainWindow::staticMetaObject);
    QCOMPARE(qobject_cast<AppMainWindow *>(object), &window);
    QCOMPARE(object->qt_metacast("Tarn::Utils::AppMainWindow"), static_cast<void *>(&window));
    QCOMPARE(object->qt_metacast("QMainWindow"), static_cast<void *>(static_cast<QMainWindow *>(&window)));
    QVERIFY(object->inherits("QMainWindow"));
}

void tst_AppMainWindow::standInAddsNothingToQMainWindow()
{
    if (!TARN_BUNDLED_UTILS)
        QSKIP("The device's own class may add what it likes");
    const QMetaObject &own = AppMainWindow::staticMetaObject;
    QCOMPARE(own.methodCount(), QMainWindow::staticMetaObject.methodCount());
    QCOMPARE(own.propertyCount(), QMainWindow::staticMetaObject.propertyCount());
    QCOMPARE(own.enumeratorCount(), QMainWindow::staticMetaObject.enumeratorCount());
    QCOMPARE(sizeof(AppMainWindow), sizeof(QMainWindow));
}

void tst_AppMainWindow::windowBelongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<AppMainWindow> window = new AppMainWindow(parent.get());
    QCOMPARE(window->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(window.isNull());
}

void tst_AppMainWindow::windowHasTheFlagsOfAQMainWindow_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("with a parent") << true;
    QTest::newRow("without a parent") << false;
}

void tst_AppMainWindow::windowHasTheFlagsOfAQMainWindow()
{
    QFETCH(bool, withParent);
    QWidget owner;
    QWidget *parent = withParent ? &owner : nullptr;
    QCOMPARE(AppMainWindow(parent).windowFlags(), QMainWindow(parent).windowFlags());
}

void tst_AppMainWindow::windowIsDeletedThroughItsBase()
{
    static_assert(std::has_virtual_destructor_v<AppMainWindow>);
    static_assert(!std::is_convertible_v<QWidget *, AppMainWindow>, "the constructor is explicit");
    auto *content = new QWidget;
    const QPointer<QWidget> guard(content);
    std::unique_ptr<QMainWindow> window = std::make_unique<AppMainWindow>(nullptr);
    window->setCentralWidget(content);
    window.reset();
    QVERIFY(guard.isNull());
}

QTEST_MAIN(tst_AppMainWindow)

#include "tst_appmainwindow.moc"
