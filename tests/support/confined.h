// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_CONFINED_H
#define TARN_TEST_CONFINED_H

#include "filedialogparts.h"

#include <QApplication>
#include <QTest>
#include <tarnwidgets/limitedfiledialog.h>

namespace Tarn::Test {

/*! A limited dialog as its one-call functions set it up, with its parts at hand. */
struct Confined
{
    /*! Paths as for FileTree::at(). */
    explicit Confined(const FileTree &tree, const QString &start = QStringLiteral("@/root"),
                      const QString &limit = QStringLiteral("@/root"), const QString &limit1 = QString())
        : dialog(nullptr, QString(), tree.at(start), QString())
        , parts(&dialog)
    {
        dialog.setViewMode(QFileDialog::List);
        dialog.setLimitedPath1(tree.at(limit1));
        dialog.setLimitedPath(tree.at(limit));
        dialog.setHistoryPath();
    }

    /*! Shows it and returns once it has the keyboard and its folder is listed. */
    bool show()
    {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        return QTest::qWaitForWindowActive(&dialog) && parts.isLoaded();
    }

    /*! Where the buttons stand: toParent, back, forward, accepting, each as its letter or a dot if disabled.
     */
    QString enabled() const
    {
        const auto letter = [](bool on, char sign) { return QLatin1Char(on ? sign : '.'); };
        return QString(letter(parts.toParent->isEnabled(), 'P')) + letter(parts.back->isEnabled(), 'B')
            + letter(parts.forward->isEnabled(), 'F') + letter(parts.accepting()->isEnabled(), 'A');
    }

    Widgets::LimitedFileDialog dialog;
    const FileDialogParts parts;
};

} // namespace Tarn::Test

#endif
