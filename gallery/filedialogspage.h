// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_FILEDIALOGSPAGE_H
#define GALLERY_FILEDIALOGSPAGE_H

#include "escapes.h"
#include "page.h"

#include <QWidget>

class QLabel;
class QTreeWidget;

namespace Gallery {

/*! The file dialogs on a small tree of folders, and what becomes of those who try to leave it. */
class FileDialogsPage : public QWidget
{
    Q_OBJECT

public:
    explicit FileDialogsPage(QWidget *parent = nullptr);
    ~FileDialogsPage() override;

    static Page page();

protected:
    void showEvent(QShowEvent *event) override;

private:
    enum Kind { OpenFile, SaveFile, ChooseFolder };
    enum Column { TitleColumn, PlainColumn, StrictColumn };

    QWidget *createLimited();
    QWidget *createFrameless();
    QWidget *createEscapes();

    void openLimited();
    void openFrameless();
    void tryEscapes();
    void showEscapes();
    void showOutcome(const QString &path);

    const SampleTree m_tree;
    int m_kind = OpenFile;
    bool m_strict = false;
    bool m_secondFolder = false;
    QLabel *m_outcome = nullptr;
    QTreeWidget *m_escapes = nullptr;
};

} // namespace Gallery

#endif
