// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// A program with a colour dialog, to be run from a directory of its own:
//
//     colordialogprocess keep|FIRST|forever [fail|crash|misread BYTES]
//
// It prints the custom colours that the dialog has read, sets them to sixteen in a row that begin with FIRST,
// says "ready", and destroys the dialog once a line comes in. From then on no file can grow beyond so many
// BYTES: to try it fails, as on a full disk, or ends the program, as a crash does. Or no file can be read
// beyond them, as on a broken disk. With "forever" it opens, changes and destroys one dialog after the other.

#include "colordialogparts.h"

#include <QApplication>
#include <QTextStream>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <tarnwidgets/colordialog.h>
#include <unistd.h>

using namespace Tarn::Test;
using Tarn::Widgets::ColorDialog;

namespace {

uint s_readableBytes = std::numeric_limits<uint>::max();

void setAll(ColorDialog *dialog, const ColorDialogParts &parts, QRgb first)
{
    for (int place = 0; place < 16; ++place)
        setCustomColor(dialog, parts, place, first + QRgb(place));
}

void say(const QString &line)
{
    QTextStream(stdout) << line << '\n' << Qt::flush;
}

void limitFiles(const QString &consequence, uint size)
{
    if (consequence == QLatin1String("misread")) {
        s_readableBytes = size;
        return;
    }
    if (consequence == QLatin1String("crash"))
        std::signal(SIGXFSZ, [](int) { std::_Exit(EXIT_FAILURE); });
    else
        std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limits = {rlim_t(size), rlim_t(size)};
    setrlimit(RLIMIT_FSIZE, &limits);
}

[[noreturn]] void goOnForever()
{
    say(QStringLiteral("ready"));
    for (QRgb first = 0xff000100;; first += 0x100) {
        ColorDialog dialog(Qt::white, nullptr);
        setAll(&dialog, ColorDialogParts(&dialog), first);
    }
}

} // namespace

#ifndef __SANITIZE_ADDRESS__
/* Takes the place of the C library's for all of the program. */
extern "C" Q_DECL_EXPORT ssize_t read(int file, void *buffer, std::size_t size)
{
    const off_t position = lseek(file, 0, SEEK_CUR);
    if (position >= 0 && position + size > s_readableBytes) {
        size = std::size_t(qMax(off_t(0), off_t(s_readableBytes) - position));
        if (size == 0) {
            errno = EIO;
            return -1;
        }
    }
    return syscall(SYS_read, file, buffer, size);
}
#endif

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString task = arguments.value(1);
    if (task == QLatin1String("forever"))
        goOnForever();

    ColorDialog dialog(Qt::white, nullptr);
    const ColorDialogParts parts(&dialog);
    QStringList colors;
    const QVector<QRgb> read = customColors(parts);
    for (const QRgb color : read)
        colors.append(QString::number(color));
    say(colors.join(QLatin1Char(' ')));
    if (task != QLatin1String("keep"))
        setAll(&dialog, parts, task.toUInt());

    say(QStringLiteral("ready"));
    QTextStream(stdin).readLine();
    if (arguments.size() > 3)
        limitFiles(arguments.at(2), arguments.at(3).toUInt());
    return EXIT_SUCCESS;
}
