// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// LimitedFileDialog against QFileDialog.

#include "benchmark.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <tarnwidgets/limitedfiledialog.h>

using Tarn::Benchmark::Side;
using Tarn::Benchmark::side;
using Tarn::Widgets::LimitedFileDialog;

namespace {

constexpr int Large = 10000;
constexpr int Small = 20;

/* A folder of files, and one folder, sub, which is empty. */
class Folder
{
public:
    explicit Folder(int files)
    {
        for (int i = 0; i < files; ++i)
            QFile(m_dir.filePath(QStringLiteral("file%1.txt").arg(i))).open(QIODevice::WriteOnly);
        QDir(m_dir.path()).mkdir(QStringLiteral("sub"));
    }

    QString path() const
    {
        return m_dir.path();
    }

private:
    const QTemporaryDir m_dir;
};

class Limited : public LimitedFileDialog
{
public:
    explicit Limited(const QString &folder)
        : LimitedFileDialog(nullptr, QString(), folder)
    {
        setLimitedPath(folder);
    }
};

class Plain : public QFileDialog
{
public:
    explicit Plain(const QString &folder)
        : QFileDialog(nullptr, QString(), folder)
    {
        setOption(DontUseNativeDialog);
    }
};

/* Until the model has listed the folder that the dialog shows. */
void load(const QFileDialog &dialog, int entries)
{
    const auto *model = dialog.findChild<QFileSystemModel *>();
    while (model->rowCount(model->index(model->rootPath())) < entries)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
}

/* From construction to destruction, with one folder entered. */
template <typename Dialog> class Life : public Side
{
public:
    explicit Life(int files)
        : m_folder(files)
        , m_files(files)
    {
    }

    void step() override
    {
        Dialog dialog(m_folder.path());
        dialog.show();
        load(dialog, m_files + 1);
        const QString sub = m_folder.path() + QStringLiteral("/sub");
        dialog.setDirectory(sub);
        Q_EMIT dialog.directoryEntered(sub);
        QApplication::processEvents();
        dialog.close();
        QApplication::processEvents();
    }

private:
    const Folder m_folder;
    const int m_files;
};

/* One key typed into the file name and erased, in an open dialog. */
template <typename Dialog> class Keys : public Side
{
public:
    Keys()
        : m_folder(Small)
        , m_dialog(m_folder.path())
        , m_edit(m_dialog.template findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
    {
        m_dialog.show();
        load(m_dialog, Small + 1);
    }

    void step() override
    {
        press(Qt::Key_X, QStringLiteral("x"));
        press(Qt::Key_Backspace, QString());
        QApplication::processEvents();
    }

private:
    void press(int key, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(m_edit, &event);
    }

    const Folder m_folder;
    Dialog m_dialog;
    QLineEdit *const m_edit;
};

} // namespace

int main(int argc, char **argv)
{
    return Tarn::Benchmark::run(
        argc, argv,
        {
            {"limited-large", "a dialog on 10 000 files: made, shown, filled, one folder down, destroyed",
             0.17, side<Life<Limited>>(Large), side<Life<Plain>>(Large), nullptr, true, 2, 1},
            {"limited-small", "the same on 20 files", 1.02, side<Life<Limited>>(Small),
             side<Life<Plain>>(Small), nullptr, true, 20},
            {"limited-key", "one key typed and erased", 1.05, side<Keys<Limited>>(), side<Keys<Plain>>(),
             nullptr, true},
        });
}
