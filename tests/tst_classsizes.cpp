// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QSet>
#include <QTest>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/frameline.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/qssloader.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>
#include <type_traits>

using namespace Tarn::Widgets;

class tst_ClassSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachClassAddsOnlyItsPrivatePointer_data();
    void eachClassAddsOnlyItsPrivatePointer();
    void everyExportedClassIsChecked();
    void loaderHasNoState();
};

namespace {

struct ExportedClass
{
    const QMetaObject *self;
    const QMetaObject *base;
    size_t size;
    size_t baseSize;
    size_t pointers; // one for the private data, and those that the class has besides
};

template <typename Class, typename Base> ExportedClass exportedClass(size_t pointersBesides = 0)
{
    static_assert(std::is_base_of_v<Base, Class>);
    static_assert(!std::is_copy_constructible_v<Class> && !std::is_copy_assignable_v<Class>);
    return {&Class::staticMetaObject, &Base::staticMetaObject, sizeof(Class), sizeof(Base),
            1 + pointersBesides};
}

QVector<ExportedClass> exportedClasses()
{
    constexpr size_t ForSubclasses = 7; // title bar, layouts and buttons, which subclasses use
    constexpr size_t MainLayout = 1; // which the title bar holds itself
    return {
        exportedClass<ChangedNoticeLineEdit, QLineEdit>(),
        exportedClass<ColorDialog, FramelessDialog>(),
        exportedClass<FrameLine, QObject>(),
        exportedClass<FramelessDialog, QDialog>(ForSubclasses),
        exportedClass<FramelessFileDialog, FramelessDialog>(),
        exportedClass<FramelessHelper, QObject>(),
        exportedClass<FramelessMessageBox, FramelessDialog>(),
        exportedClass<FramelessWindow, Tarn::Utils::AppMainWindow>(),
        exportedClass<IPLineEdit, QLineEdit>(),
        exportedClass<LimitedFileDialog, QFileDialog>(),
        exportedClass<StyleSheetWidget, QWidget>(),
        exportedClass<TabBarRd, QTabBar>(),
        exportedClass<TarnPushButton, QPushButton>(),
        exportedClass<TarnTabBar, QFrame>(),
        exportedClass<TarnTabWidget, QFrame>(),
        exportedClass<TitleBar, QFrame>(MainLayout),
        exportedClass<ToolButton, QToolButton>(),
    };
}

} // namespace

Q_DECLARE_METATYPE(ExportedClass)

void tst_ClassSizes::eachClassAddsOnlyItsPrivatePointer_data()
{
    QTest::addColumn<ExportedClass>("exported");
    const QVector<ExportedClass> classes = exportedClasses();
    for (const ExportedClass &exported : classes)
        QTest::newRow(exported.self->className()) << exported;
}

// A member that is added to a class itself moves those of its subclasses, in programs that are built already.
void tst_ClassSizes::eachClassAddsOnlyItsPrivatePointer()
{
    QFETCH(ExportedClass, exported);
    QCOMPARE(exported.self->superClass(), exported.base);
    QCOMPARE(exported.size, exported.baseSize + exported.pointers * sizeof(void *));
}

void tst_ClassSizes::everyExportedClassIsChecked()
{
    // GIVEN the list that the library's symbols are compared with
    QFile list(QStringLiteral(TARN_CLASSES));
    QVERIFY(list.open(QIODevice::ReadOnly));
    QSet<QByteArray> listed;
    const QList<QByteArray> lines = list.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.isEmpty() && !line.startsWith('#') && !line.endsWith(" plain"))
            listed.insert(line);
    }

    // THEN these are its classes
    QSet<QByteArray> checked;
    const QVector<ExportedClass> classes = exportedClasses();
    for (const ExportedClass &exported : classes)
        checked.insert(exported.self->className());
    QCOMPARE(checked, listed);
}

// It has static functions alone, so it needs no room to grow.
void tst_ClassSizes::loaderHasNoState()
{
    static_assert(std::is_empty_v<QssLoader>);
    static_assert(!std::is_polymorphic_v<QssLoader>);
}

QTEST_APPLESS_MAIN(tst_ClassSizes)

#include "tst_classsizes.moc"
