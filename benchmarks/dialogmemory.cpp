// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// dialogmemory [COUNT]: shows COUNT dialogs, one if it is not told, and prints what the process then keeps in
// memory, a name and a number of KiB on each line. Built twice: with FramelessDialog, and with QDialog and
// without our libraries.

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTextStream>
#include <cstdlib>
#include <memory>
#include <vector>
#ifdef FRAMELESS
#include <tarnwidgets/framelessdialog.h>
using Dialog = Tarn::Widgets::FramelessDialog;
#else
using Dialog = QDialog;
#endif

namespace {

constexpr QSize DialogSize(320, 240);

QList<QByteArray> linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
}

int numberIn(const QByteArray &line)
{
    return line.simplified().split(' ').value(1).toInt();
}

void printTotals(QTextStream &out)
{
    const QList<QByteArray> lines = linesOf(QStringLiteral("/proc/self/status"));
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:") || line.startsWith("RssAnon:") || line.startsWith("RssFile:"))
            out << line.left(line.indexOf(':')) << ' ' << numberIn(line) << '\n';
    }
}

/* What was written to in the mappings of our libraries: no other process shares it. */
void printPrivateDirty(QTextStream &out)
{
    int sum = 0;
    bool isOurs = false;
    const QList<QByteArray> lines = linesOf(QStringLiteral("/proc/self/smaps"));
    for (const QByteArray &line : lines) {
        if (!line.left(line.indexOf(' ')).endsWith(':')) // the line that begins a mapping
            isOurs = line.contains("/libtarn");
        else if (isOurs && line.startsWith("Private_Dirty:"))
            sum += numberIn(line);
    }
    out << "Private_Dirty " << sum << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 1;
    std::vector<std::unique_ptr<Dialog>> dialogs;
    for (int i = 0; i < count; ++i) {
        dialogs.push_back(std::make_unique<Dialog>());
        dialogs.back()->resize(DialogSize);
        dialogs.back()->show();
        QCoreApplication::processEvents();
    }

    QTextStream out(stdout);
    printTotals(out);
    printPrivateDirty(out);
    return EXIT_SUCCESS;
}
