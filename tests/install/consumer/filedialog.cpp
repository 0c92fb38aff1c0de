// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// An application of a library that exports its file dialog: it derives from it and asks its meta-object, so
// that all that a hidden class lacks is needed.

#include <QApplication>
#include <tarnwidgets/framelessfiledialog.h>

namespace {

class Dialog : public Tarn::Widgets::FramelessFileDialog
{
public:
    using FramelessFileDialog::FramelessFileDialog;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QDialog *dialog = new Dialog(nullptr, QString(), QStringLiteral("/"));
    const auto *found = dynamic_cast<Tarn::Widgets::FramelessFileDialog *>(dialog);
    const bool isRight = found && found == qobject_cast<Tarn::Widgets::FramelessFileDialog *>(dialog)
        && found->directory().path() == QStringLiteral("/");
    delete dialog;
    return isRight ? 0 : 1;
}
