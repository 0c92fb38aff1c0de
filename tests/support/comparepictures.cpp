// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// comparepictures FIRST SECOND: prints what the pictures of the two directories differ in, and fails if they
// do or if there are none.

#include "picturecomparison.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.count() != 3) {
        errors << "Usage: comparepictures FIRST SECOND\n";
        return EXIT_FAILURE;
    }

    const QDir first(arguments.at(1));
    const QDir second(arguments.at(2));
    const int count = Tarn::Test::picturesIn(first).count();
    const QStringList differences = Tarn::Test::pictureDifferences(first, second);
    for (const QString &difference : differences)
        errors << difference << '\n';
    QTextStream(stdout) << count << " pictures, " << differences.count() << " differences\n";
    return count > 0 && differences.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
