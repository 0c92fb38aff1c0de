// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Does everything again and again, and tells how much more of the heap is in use then:
//
//     tarn_soak [--rounds N] [--lose] [NAME...]
//
// It fails if anything of ours keeps a block for each of so many rounds as Leaking says, or as many bytes a
// round as LeakingBytes.

#include "liveheap.h"
#include "subjects.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <cstdlib>

using namespace Tarn::Soak;

namespace {

constexpr int DefaultRounds = 200;
constexpr int WrongUse = 2; // exit code

// What is filled once and kept is filled by then.
constexpr int WarmingRounds = 40;

// A block in four rounds is a leak. Qt's own tables that grow by doubling, and threads that are about to end,
// take some blocks, though not with each round.
constexpr long Leaking = 4;

// Bytes in a round: half a pointer, since a list that keeps one each time grows by doubling, in one block.
constexpr long LeakingBytes = 4;

void run(const Subject &subject, int rounds)
{
    for (int i = 0; i < rounds; ++i) {
        subject.round();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

LiveHeap grown(const Subject &subject, int rounds)
{
    const LiveHeap before = liveHeap();
    run(subject, rounds);
    const LiveHeap after = liveHeap();
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

bool isLeak(const Subject &subject, const LiveHeap &kept, int rounds)
{
    return kept.blocks * Leaking >= rounds || (!subject.hasThread && kept.bytes >= rounds * LeakingBytes);
}

/* Whether it gives back what it takes. */
bool isSound(const Subject &subject, int rounds, QTextStream &out)
{
    run(subject, WarmingRounds);
    LiveHeap kept = grown(subject, rounds);
    // A file dialog's thread that is late keeps all that it works on, though not from one time to the next.
    // So many rounds more that a list which grows by doubling has to do so.
    if (isLeak(subject, kept, rounds)) {
        rounds *= 2;
        kept = grown(subject, rounds);
    }
    const bool isLeaking = isLeak(subject, kept, rounds);
    out << QStringLiteral("%1 %2 %3 %4  %5\n")
               .arg(subject.name, -36)
               .arg(rounds, 8)
               .arg(kept.blocks, 8)
               .arg(kept.bytes, 10)
               .arg(QLatin1String(isLeaking ? "GROWS" : "flat"))
        << Qt::flush;
    return !isLeaking || !subject.isOurs;
}

/* Complains of names that nothing has, which would leave out all the rest. */
bool areKnown(const QStringList &names, const QVector<Subject> &all)
{
    bool isKnown = true;
    for (const QString &name : names) {
        const auto hasName = [&](const Subject &subject) { return subject.name == name; };
        if (std::none_of(all.begin(), all.end(), hasName)) {
            QTextStream(stderr) << QStringLiteral("Nothing is called %1.\n").arg(name);
            isKnown = false;
        }
    }
    return isKnown;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // Icons are painted from there, and each file dialog has new ones.
    QPixmapCache::setCacheLimit(0);
    // What the file dialog says of each choice
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption roundsOption(QStringLiteral("rounds"), QStringLiteral("How often."),
                                          QStringLiteral("N"), QString::number(DefaultRounds));
    const QCommandLineOption loseOption(QStringLiteral("lose"), QStringLiteral("Lose something each time."));
    parser.addOptions({roundsOption, loseOption});
    parser.process(application);

    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file.txt")));
    if (!file.open(QIODevice::WriteOnly))
        return EXIT_FAILURE;
    file.close();
    const QStringList names = parser.positionalArguments();
    const QVector<Subject> all = parser.isSet(loseOption) ? leaking() : subjects(folder.path());
    const int rounds = parser.value(roundsOption).toInt();
    if (!areKnown(names, all) || rounds < Leaking) {
        QTextStream(stderr)
            << QStringLiteral("Rounds are a number of %1 at least, names of these:\n").arg(Leaking);
        for (const Subject &subject : all)
            QTextStream(stderr) << QStringLiteral("    %1\n").arg(subject.name);
        return WrongUse;
    }

    QTextStream out(stdout);
    out << QStringLiteral("%1 %2 %3 %4\n")
               .arg(QStringLiteral("what"), -36)
               .arg(QStringLiteral("rounds"), 8)
               .arg(QStringLiteral("blocks"), 8)
               .arg(QStringLiteral("bytes"), 10);
    bool isFlat = true;
    for (const Subject &subject : all) {
        if (names.isEmpty() || names.contains(subject.name))
            isFlat = isSound(subject, rounds, out) && isFlat;
    }
    return isFlat ? EXIT_SUCCESS : EXIT_FAILURE;
}
