// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Feeds a fuzz target all files of a directory, one by one, without libFuzzer.

#include "fuzzsupport.h"

#include <QDir>
#include <QFile>
#include <cstdio>

int main(int argc, char **argv)
{
    const QDir seeds(argc == 2 ? QFile::decodeName(argv[1]) : QString());
    const QStringList names = seeds.entryList({QStringLiteral("*.seed")}, QDir::Files);
    if (argc != 2 || names.isEmpty()) {
        std::fputs("Usage: replay DIRECTORY, which has *.seed files\n", stderr);
        return 2;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    for (const QString &name : names) {
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout); // the last name before the end tells which one it was
        QFile file(seeds.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray data = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(data.constData()),
                               std::size_t(data.size()));
    }
    return 0;
}
