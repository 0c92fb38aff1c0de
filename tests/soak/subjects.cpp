// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "subjects.h"

#include "support/modalkinds.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <memory>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/frameline.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>

using namespace Tarn::Widgets;

namespace Tarn::Soak {

namespace {

/* A click beside everything, and a key that changes nothing for good. */
void use(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(widget->width() / 2, 3));
    QWidget *focused = widget->focusWidget();
    QTest::keyClick(focused ? focused : widget, Qt::Key_Right);
    QCoreApplication::processEvents(); // so that it is painted, too
}

/* Does something with the next modal dialog, from its event loop. */
void whenOpen(const std::function<void(QWidget *)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || !dialog->isVisible())
            return whenOpen(action);
        use(dialog);
        action(dialog);
    });
}

void close(QWidget *dialog)
{
    dialog->close();
}

/*
 * Every other time it is accepted, and closed in between. The window stays, so that what is left to it is
 * seen; it is a new one each time if dialogs are left there by design.
 */
std::function<void()> asking(const std::function<void(QWidget *)> &run,
                             const std::function<void(QWidget *)> &accept, bool isLeftToParent = false)
{
    return [run, accept, isLeftToParent, window = std::shared_ptr<QWidget>(), isAccepted = false]() mutable {
        isAccepted = !isAccepted;
        if (isLeftToParent || window == nullptr) {
            window = std::make_shared<QWidget>();
            window->show();
        }
        whenOpen(isAccepted ? accept : close);
        run(window.get());
    };
}

template <typename Widget> Widget *make(QWidget *parent)
{
    return new Widget(parent);
}

TarnTabWidget *makeTabs(QWidget *parent)
{
    auto *tabs = new TarnTabWidget(parent);
    for (int i = 0; i < 3; ++i)
        tabs->addTab(new QWidget, QString::number(i));
    return tabs;
}

ToolButton *makeMenuButton(QWidget *parent)
{
    auto *button = new ToolButton(parent);
    button->setMenu(new QMenu(button));
    return button;
}

QTabWidget *makeQtTabs(QWidget *parent)
{
    auto *tabs = new QTabWidget(parent);
    for (int i = 0; i < 3; ++i)
        tabs->addTab(new QWidget, QString::number(i));
    return tabs;
}

QWidget *makeManaged(QWidget *parent)
{
    auto *widget = new QWidget(parent);
    auto *helper = new FramelessHelper(widget);
    helper->activateOn(widget);
    helper->setRubberBandOnResize(true);
    return widget;
}

QWidget *makeLine(QWidget *parent)
{
    return FrameLine::createHorizontalLine(QStringLiteral("isPageSeparator"), parent, 1, 0, 0);
}

/* Inside a window, which is shown with it. */
template <typename Make> std::function<void()> showing(Make make)
{
    return [make] {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        QWidget *widget = make(&window);
        layout->addWidget(widget);
        window.show();
        QCoreApplication::processEvents();
        use(widget);
        QCoreApplication::processEvents();
    };
}

/* A window of its own. */
template <typename Window> void showWindow()
{
    Window window;
    window.show();
    QCoreApplication::processEvents();
    use(&window);
    QCoreApplication::processEvents();
    window.close();
}

void openMessageBox()
{
    FramelessMessageBox box;
    box.setText(QStringLiteral("text"));
    box.setDetailedText(QStringLiteral("details"));
    box.open();
    QCoreApplication::processEvents();
    use(&box);
    box.close();
}

bool isOfFiles(const Test::ModalKind &kind)
{
    const QByteArray name = kind.name;
    return name.contains("File") || name.contains("Directory");
}

QVector<Subject> ourWidgets()
{
    return {{QStringLiteral("FramelessWindow"), true, showWindow<FramelessWindow>},
            {QStringLiteral("FramelessMessageBox, opened"), true, openMessageBox},
            {QStringLiteral("FramelessHelper"), true, showing(makeManaged)},
            {QStringLiteral("FrameLine"), true, showing(makeLine)},
            {QStringLiteral("IPLineEdit"), true, showing(make<IPLineEdit>)},
            {QStringLiteral("ChangedNoticeLineEdit"), true, showing(make<ChangedNoticeLineEdit>)},
            {QStringLiteral("StyleSheetWidget"), true, showing(make<StyleSheetWidget>)},
            {QStringLiteral("TarnPushButton"), true, showing(make<TarnPushButton>)},
            {QStringLiteral("TarnTabBar"), true, showing(make<TarnTabBar>)},
            {QStringLiteral("TarnTabWidget"), true, showing(makeTabs)},
            {QStringLiteral("TitleBar"), true, showing(make<TitleBar>)},
            {QStringLiteral("ToolButton"), true, showing(makeMenuButton)}};
}

QVector<Subject> qtWidgets()
{
    const auto dialog = [](QWidget *parent) { QDialog(parent).exec(); };
    const auto box = [](QWidget *parent) {
        QMessageBox::question(parent, QString(), QStringLiteral("text"));
    };
    const auto color = [](QWidget *parent) { QColorDialog::getColor(Qt::red, parent); };
    const auto file = [](QWidget *parent) {
        QFileDialog::getOpenFileName(parent, QString(), QString(), QString(), nullptr,
                                     QFileDialog::DontUseNativeDialog);
    };
    return {{QStringLiteral("Qt's QDialog"), false, asking(dialog, close)},
            {QStringLiteral("Qt's QMessageBox::question"), false, asking(box, close)},
            {QStringLiteral("Qt's QColorDialog::getColor"), false, asking(color, close)},
            {QStringLiteral("Qt's QFileDialog::getOpenFileName"), false, asking(file, close)},
            {QStringLiteral("Qt's QMainWindow"), false, showWindow<QMainWindow>},
            {QStringLiteral("Qt's QLineEdit"), false, showing(make<QLineEdit>)},
            {QStringLiteral("Qt's QPushButton"), false, showing(make<QPushButton>)},
            {QStringLiteral("Qt's QTabWidget"), false, showing(makeQtTabs)}};
}

} // namespace

QVector<Subject> subjects(const QString &folder)
{
    QVector<Subject> all;
    const QVector<Test::ModalKind> kinds = Test::modalKinds(folder);
    for (const Test::ModalKind &kind : kinds)
        all.append({QString::fromLatin1(kind.name), true, asking(kind.run, kind.accept, kind.isLeftToParent),
                    isOfFiles(kind)});
    return all + ourWidgets() + qtWidgets();
}

QVector<Subject> leaking()
{
    const auto lose = [] {
        showWindow<QWidget>();
        auto *lost = new QObject; // NOLINT: on purpose
        Q_UNUSED(lost)
    };
    const auto grow = [] {
        showWindow<QWidget>();
        static QVector<void *> kept;
        kept.append(nullptr);
    };
    return {{QStringLiteral("losing"), true, lose}, {QStringLiteral("growing"), true, grow}};
}

} // namespace Tarn::Soak
