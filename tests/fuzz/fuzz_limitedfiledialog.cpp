// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Paths of any kind for a strict file dialog on folders with links. A walk of this file's own over the links,
// and realpath(), say where they lead.

#include "fuzzsupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <climits>
#include <cstdlib>
#include <optional>
#include <tarnwidgets/limitedfiledialog.h>
#include <unistd.h>

using Tarn::Fuzz::Input;
using Tarn::Fuzz::require;
using Tarn::Widgets::LimitedFileDialog;

namespace {

constexpr int MostLinks = 40; // as many as Linux follows

/*
 * r and s are permitted:
 *
 *   r/  f  d/f  d/e/  out -> ../o  abs -> (tree)/o/f  in -> d  up -> ..  dangling -> ../o/new  loop -> loop
 *       far -> in/e  new -> d/new
 *   s/  f    rr/  f    o/  f  d/f  back -> ../r
 */
class Tree
{
public:
    Tree();

    QString at(const char *name) const
    {
        return m_path + QLatin1Char('/') + QLatin1String(name);
    }

private:
    void link(const char *name, const QByteArray &target) const;

    QTemporaryDir m_dir;
    const QString m_path;
};

Tree::Tree()
    : m_path(QFileInfo(m_dir.path()).canonicalFilePath())
{
    for (const char *folder : {"r/d/e", "s", "rr", "o/d"})
        QDir(m_path).mkpath(QLatin1String(folder));
    for (const char *file : {"r/f", "r/d/f", "s/f", "rr/f", "o/f", "o/d/f"})
        require(QFile(at(file)).open(QIODevice::WriteOnly), "files can be made");
    link("r/out", "../o");
    link("r/abs", QFile::encodeName(at("o/f")));
    link("r/in", "d");
    link("r/up", "..");
    link("r/dangling", "../o/new");
    link("r/loop", "loop");
    link("r/far", "in/e");
    link("r/new", "d/new");
    link("o/back", "../r");
}

void Tree::link(const char *name, const QByteArray &target) const
{
    require(symlink(target.constData(), QFile::encodeName(at(name)).constData()) == 0, "links can be made");
}

std::optional<QByteArray> linkTarget(const QByteArray &path)
{
    char target[PATH_MAX];
    const ssize_t size = readlink(path.constData(), target, sizeof(target));
    return size < 0 ? std::nullopt : std::make_optional(QByteArray(target, int(size)));
}

/* Where an absolute path leads, with names that are missing behind what is there; nothing if that is nowhere.
 */
std::optional<QByteArray> destination(const QByteArray &path)
{
    QList<QByteArray> names = path.split('/');
    QByteArray place; // the root
    int links = 0;
    bool isMissing = false;
    while (!names.isEmpty()) {
        const QByteArray name = names.takeFirst();
        if (name.isEmpty() || name == ".")
            continue;
        if (name == "..") {
            if (isMissing)
                return std::nullopt;
            place.truncate(qMax(0, place.lastIndexOf('/')));
            continue;
        }
        const QByteArray next = place + '/' + name;
        const auto target = linkTarget(next);
        if (!target) {
            isMissing = isMissing || access(next.constData(), F_OK) != 0;
            place = next;
            continue;
        }
        if (++links > MostLinks)
            return std::nullopt;
        if (target->startsWith('/'))
            place.clear();
        names = target->split('/') + names;
    }
    return place;
}

bool isPermitted(const Tree &tree, const QString &path)
{
    const QByteArray encoded = QFile::encodeName(path);
    const auto end = destination(encoded);
    char real[PATH_MAX];
    if (realpath(encoded.constData(), real))
        require(end && (*end == real || (end->isEmpty() && QByteArray(real) == "/")),
                "this file's walk ends where realpath() does");
    for (const char *root : {"r", "s"}) {
        const QByteArray folder = QFile::encodeName(tree.at(root));
        if (end && (*end == folder || end->startsWith(folder + '/')))
            return true;
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Tree tree;
    static LimitedFileDialog *const dialog = [] {
        auto *strict = new LimitedFileDialog(nullptr, QString(), tree.at("r"));
        strict->setStrict(true);
        strict->setLimitedPath1(tree.at("s"));
        strict->setLimitedPath(tree.at("r"));
        return strict;
    }();

    Input input(data, size);
    static constexpr const char *Bases[] = {"r/", "", "o/", "s"};
    const int base = input.below(5);
    const QString path = (base < 4 ? tree.at(Bases[base]) : QString()) + input.text();
    const bool isInside = dialog->pathFits(path);
    if (path.contains(QChar::Null) || path.isEmpty()) {
        require(!isInside, "what is no path is not permitted");
    } else if (path.startsWith(QLatin1Char('/'))) {
        if (isInside) {
            require(isPermitted(tree, path), "what is judged inside is inside");
            require(isPermitted(tree, QDir::cleanPath(path)), "and also once its dots are taken out");
        } else if (QFileInfo::exists(path)) {
            require(!isPermitted(tree, path) || !isPermitted(tree, QDir::cleanPath(path)),
                    "what is there and inside is judged so");
        }
    } else {
        require(!isInside, "what begins elsewhere is not permitted");
    }
    return 0;
}
