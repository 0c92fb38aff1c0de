// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A program that waits for an answer, on whichever display:
//
//     x11_faultprocess KIND [drag]
//
// It says "ready" once the dialog is on the screen. With "drag" it is moved by its title bar, to and fro,
// until the end; a dialog that does not follow is never ready. The exit code is 0 if an answer comes.

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>
#include <QWindow>
#include <memory>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Widgets;

namespace {

constexpr QPoint FirstMove(40, 30); // far enough for a drag to begin

std::unique_ptr<QDialog> make(const QString &kind)
{
    if (kind == QLatin1String("QDialog"))
        return std::make_unique<QDialog>();
    if (kind == QLatin1String("QMessageBox"))
        return std::make_unique<QMessageBox>(QMessageBox::Question, QString(), QStringLiteral("text"));
    if (kind == QLatin1String("QColorDialog"))
        return std::make_unique<QColorDialog>();
    if (kind == QLatin1String("QFileDialog"))
        return std::make_unique<QFileDialog>();
    if (kind == QLatin1String("FramelessDialog"))
        return std::make_unique<FramelessDialog>();
    if (kind == QLatin1String("FramelessMessageBox"))
        return std::make_unique<FramelessMessageBox>(QMessageBox::Question, QString(), QStringLiteral("text"),
                                                     QMessageBox::Ok);
    if (kind == QLatin1String("ColorDialog"))
        return std::make_unique<ColorDialog>(Qt::red, nullptr);
    if (kind == QLatin1String("FramelessFileDialog"))
        return std::make_unique<FramelessFileDialog>();
    if (kind == QLatin1String("LimitedFileDialog"))
        return std::make_unique<LimitedFileDialog>(nullptr, QString(), QString(), QString());
    return nullptr;
}

void send(QWidget *window, QEvent::Type type, const QPoint &global)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, window->mapFromGlobal(global), global, button, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
}

/* A step of the drag at each turn of the event loop. */
void dragOn(QWidget *window, const QPoint &held, int step)
{
    send(window, QEvent::MouseMove, held + QPoint(step % 100, step % 50));
    QTimer::singleShot(0, window, [window, held, step] { dragOn(window, held, step + 1); });
}

void begin(QDialog *dialog, bool isDragged)
{
    if (!dialog->isVisible() || !dialog->windowHandle()->isExposed()) {
        QTimer::singleShot(0, dialog, [dialog, isDragged] { begin(dialog, isDragged); });
        return;
    }
    if (isDragged) {
        const QPoint held = dialog->mapToGlobal(QPoint(dialog->width() / 2, 10));
        const QPoint former = dialog->pos();
        send(dialog, QEvent::MouseButtonPress, held);
        send(dialog, QEvent::MouseMove, held + FirstMove);
        if (dialog->pos() == former) {
            dialog->reject();
            return;
        }
        dragOn(dialog, held, 1);
    }
    QTextStream(stdout) << "ready\n" << Qt::flush;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const std::unique_ptr<QDialog> dialog = make(arguments.value(1));
    const bool isDragged = arguments.value(2) == QLatin1String("drag");
    QTimer::singleShot(0, dialog.get(), [&] { begin(dialog.get(), isDragged); });
    dialog->exec();
    return EXIT_SUCCESS;
}
