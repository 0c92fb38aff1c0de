// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Paths of any kind for file dialogs on folders with links, a strict one and one that is not. For the strict
// one a walk of this file's own over the links, and realpath(), say where they lead.

#include "fuzzsupport.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <algorithm>
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

LimitedFileDialog *makeDialog(const Tree &tree, bool isStrict)
{
    auto *dialog = new LimitedFileDialog(nullptr, QString(), tree.at("r"));
    dialog->setStrict(isStrict);
    dialog->setLimitedPath1(tree.at("s"));
    dialog->setLimitedPath(tree.at("r"));
    return dialog;
}

/* Whether the dialog lets the user accept that text. */
bool isAcceptable(LimitedFileDialog *dialog, const QString &typed)
{
    const auto *box = dialog->findChild<QDialogButtonBox *>();
    QAbstractButton *button = box->buttons().constFirst();
    button->setEnabled(true);
    dialog->checkLineEdit(typed);
    return button->isEnabled();
}

/* What a typed text names, seen from r. */
QString named(const Tree &tree, const QString &typed)
{
    return QDir(typed).isRelative() ? QDir::cleanPath(tree.at("r/") + typed) : typed;
}

void checkStrict(const Tree &tree, const QString &path)
{
    static LimitedFileDialog *const dialog = makeDialog(tree, true);
    const bool isInside = dialog->pathFits(path);
    const QString absolute = path.startsWith(QLatin1Char('/')) ? path : tree.at("r/") + path;
    if (path.contains(QChar::Null) || !path.isValidUtf16() || path.isEmpty()) {
        require(!isInside, "what is no path is not permitted");
    } else if (path.startsWith(QLatin1Char(':'))) {
        require(!isInside, "a resource is not permitted");
    } else if (isInside) {
        require(isPermitted(tree, absolute), "what is judged inside is inside");
        require(isPermitted(tree, QDir::cleanPath(absolute)), "and also once its dots are taken out");
    } else if (QFileInfo::exists(absolute)) {
        require(!isPermitted(tree, absolute) || !isPermitted(tree, QDir::cleanPath(absolute)),
                "what is there and inside is judged so");
    }
    if (isAcceptable(dialog, path))
        require(isPermitted(tree, named(tree, path)), "what is typed and may be accepted is inside");
}

/* Texts are compared: a folder itself is not inside, one whose name goes on is, and behind the name of an
 * entry any one character may stand. */
void checkTexts(const Tree &tree, const QString &path)
{
    static LimitedFileDialog *const dialog = makeDialog(tree, false);
    const QStringList roots{tree.at("r"), tree.at("s")};
    const auto withSlashes = [](QString text) { return text.replace(QLatin1Char('\\'), QLatin1Char('/')); };
    const auto isBelow = [&](const QString &text) {
        return std::any_of(roots.cbegin(), roots.cend(), [&](const QString &root) {
            return text.size() > root.size() && withSlashes(text).startsWith(root);
        });
    };
    require(dialog->pathFits(path) == isBelow(path), "what begins like a folder is inside");
    require(isAcceptable(dialog, path) == isBelow(named(tree, path)), "what is typed is judged alike");
    const QString entry = withSlashes(path);
    const int length = roots.constFirst().size();
    const bool isEntry = entry.size() <= length + 1 && roots.contains(entry.left(length));
    require(dialog->isShowInComboBox(path) == isEntry, "the entries are the two folders");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Tree tree;
    Input input(data, size);
    static constexpr const char *Bases[] = {"r/", "", "o/", "s"};
    const int base = input.below(5);
    const QString path = (base < 4 ? tree.at(Bases[base]) : QString()) + input.text();
    const auto restore = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    require(QDir::setCurrent(tree.at("r")), "there is a working directory to which paths are relative");
    checkStrict(tree, path);
    checkTexts(tree, path);
    return 0;
}
