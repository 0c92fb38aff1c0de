// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "escapes.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <tarnwidgets/limitedfiledialog.h>

using Tarn::Widgets::LimitedFileDialog;

namespace Gallery {

namespace {

void write(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qWarning("Cannot write %s: %s", qPrintable(path), qPrintable(file.errorString()));
}

struct Titles
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::Escapes)
};

} // namespace

SampleTree::SampleTree()
{
    if (!m_directory.isValid())
        qWarning("Cannot make the sample folders: %s", qPrintable(m_directory.errorString()));
    for (const char *folder : {"recipes/bread", "recipes/soups", "stick/backup", "private", "recipes-old"})
        QDir(m_directory.path()).mkpath(QLatin1String(folder));
    for (const char *file :
         {"recipes/salt.rcp", "recipes/bread/rye.rcp", "recipes/bread/wheat.rcp", "recipes/soups/leek.rcp",
          "stick/salt.rcp", "private/keys.txt", "recipes-old/rye.rcp"})
        write(at(QLatin1String(file)));
    QFile::link(at(QStringLiteral("private")), at(QStringLiteral("recipes/link")));
}

QString SampleTree::at(const QString &name) const
{
    return QFileInfo(m_directory.path()).canonicalFilePath() + QLatin1Char('/') + name;
}

bool SampleTree::isInside(const QString &path) const
{
    const QString real = QFileInfo(path).canonicalFilePath() + QLatin1Char('/');
    return real.startsWith(at(QStringLiteral("recipes/"))) || real.startsWith(at(QStringLiteral("stick/")));
}

QVector<Escape> escapes(const SampleTree &tree)
{
    const QString recipes = tree.at(QStringLiteral("recipes"));
    const QString keys = tree.at(QStringLiteral("private/keys.txt"));
    return {
        {Titles::tr("Parent button"), recipes, QString(), recipes},
        {Titles::tr("Path with ../"), recipes, QStringLiteral("../private/keys.txt"), recipes},
        {Titles::tr("Full path"), recipes, keys, recipes},
        {Titles::tr("Full path, /../"), recipes, recipes + QStringLiteral("/../private/keys.txt"), recipes},
        {Titles::tr("Tilde"), recipes, QStringLiteral("~"), recipes},
        {Titles::tr("Quoted path"), recipes, QStringLiteral("\"../private/keys.txt\""), recipes},
        {Titles::tr("Similar name"), recipes, tree.at(QStringLiteral("recipes-old/rye.rcp")), recipes},
        {Titles::tr("Symbolic link"), recipes, QStringLiteral("link/keys.txt"), recipes},
        {Titles::tr("Start outside"), tree.at(QStringLiteral("private")), QString(), recipes},
        {Titles::tr("Missing limit"), recipes, keys, tree.at(QStringLiteral("missing"))},
    };
}

bool getsOut(const Escape &escape, const SampleTree &tree, bool strict)
{
    LimitedFileDialog dialog(nullptr, QString(), escape.start);
    dialog.setStrict(strict);
    dialog.setLimitedPath(escape.limit);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.setAttribute(Qt::WA_ShowWithoutActivating);
    dialog.setModal(false);
    QStringList reached;
    QObject::connect(&dialog, &QFileDialog::filesSelected, &dialog,
                     [&reached](const QStringList &files) { reached += files; });
    dialog.show();
    if (escape.text.isEmpty()) {
        dialog.findChild<QToolButton *>(QStringLiteral("toParentButton"))->click();
    } else {
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(escape.text);
        dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->buttons().first()->click();
    }
    reached.append(dialog.directory().absolutePath());
    for (const QString &path : qAsConst(reached)) {
        if (!tree.isInside(path))
            return true;
    }
    return false;
}

} // namespace Gallery
