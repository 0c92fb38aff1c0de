// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "filedialogspage.h"

#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <tarnwidgets/limitedfiledialog.h>
#ifdef TARN_EXPORT_FRAMELESS_FILE_DIALOG
#include <tarnwidgets/framelessfiledialog.h>
#endif

using Tarn::Widgets::LimitedFileDialog;

namespace Gallery {

FileDialogsPage::FileDialogsPage(QWidget *parent)
    : QWidget(parent)
{
    m_outcome = createNote([] { return tr("Not opened yet"); });
    auto *choices = new QVBoxLayout;
    choices->setSpacing(10);
    choices->addWidget(createLimited());
    choices->addWidget(createFrameless());
    choices->addWidget(m_outcome);
    choices->addStretch();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(16);
    layout->addLayout(choices);
    layout->addWidget(createEscapes(), 1);
}

FileDialogsPage::~FileDialogsPage() = default;

Page FileDialogsPage::page()
{
    return {QStringLiteral("file-dialogs"),
            tr("File dialogs"),
            tr("Files below one folder, or two: what keeps the user there, and what does not."),
            [](Appearance *, QWidget *parent) -> QWidget * { return new FileDialogsPage(parent); },
            {}};
}

QWidget *FileDialogsPage::createLimited()
{
    QComboBox *kinds = createComboBox();
    keepTranslated(kinds, [kinds] {
        setRowTexts(kinds, {tr("Open a file"), tr("Save a file"), tr("Choose a folder")});
    });
    connect(kinds, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int row) { m_kind = row; });
    auto *open = createButton([] { return tr("Open"); });
    open->setDefault(true);
    connect(open, &QPushButton::clicked, this, &FileDialogsPage::openLimited);

    auto *group = new QGroupBox;
    showText(group, [] { return tr("Limited to the recipes"); });
    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    addFormRow(
        layout, [] { return tr("Call"); }, kinds);
    const auto add = [layout](QWidget *widget) {
        layout->addWidget(widget, layout->rowCount(), 0, 1, 2, Qt::AlignLeft);
    };
    add(createCheckBox([] { return tr("The stick, too"); }, m_secondFolder,
                       [this](bool on) { m_secondFolder = on; }));
    add(createCheckBox([] { return tr("Strict"); }, m_strict, [this](bool on) { m_strict = on; }));
    add(open);
    return group;
}

QWidget *FileDialogsPage::createFrameless()
{
    auto *group = new QGroupBox;
    showText(group, [] { return tr("Frameless"); });
    auto *layout = new QVBoxLayout(group);
#ifdef TARN_EXPORT_FRAMELESS_FILE_DIALOG
    auto *open = createButton([] { return tr("Open frameless"); });
    connect(open, &QPushButton::clicked, this, &FileDialogsPage::openFrameless);
    layout->addWidget(open, 0, Qt::AlignLeft);
#else
    layout->addWidget(createNote([] { return tr("This library keeps FramelessFileDialog to itself."); }));
#endif
    return group;
}

QWidget *FileDialogsPage::createEscapes()
{
    m_escapes = new QTreeWidget;
    keepTranslated(m_escapes, [this] {
        m_escapes->setAccessibleName(tr("Ways out"));
        m_escapes->setHeaderLabels({tr("Way out"), tr("As it comes"), tr("Strict")});
        showEscapes();
    });
    m_escapes->setRootIsDecorated(false);
    m_escapes->setSelectionMode(QAbstractItemView::NoSelection);
    m_escapes->setFocusPolicy(Qt::NoFocus);
    m_escapes->header()->setStretchLastSection(false);
    m_escapes->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_escapes->header()->setSectionResizeMode(TitleColumn, QHeaderView::Stretch);
    m_escapes->header()->setSectionsClickable(false);
    return m_escapes;
}

void FileDialogsPage::openLimited()
{
    const QPointer<FileDialogsPage> alive(this);
    const QString recipes = m_tree.at(QStringLiteral("recipes"));
    const QString stick = m_secondFolder ? m_tree.at(QStringLiteral("stick")) : QString();
    const QString filter = tr("Recipes (*.rcp);;All files (*)");
    const bool formerDefault = LimitedFileDialog::isStrictByDefault();
    LimitedFileDialog::setStrictByDefault(m_strict);
    QString path;
    switch (m_kind) {
    case OpenFile:
        path = LimitedFileDialog::getOpenFileNamesFromDlg(this, tr("Open a file"), recipes, filter, recipes,
                                                          stick);
        break;
    case SaveFile:
        path = LimitedFileDialog::getSaveFileNameFromDlg(this, tr("Save a file"), recipes, filter, recipes,
                                                         stick);
        break;
    default:
        path = LimitedFileDialog::getExistingDirectoryFromDlg(this, tr("Choose a folder"), recipes,
                                                              QFileDialog::ShowDirsOnly, recipes, stick);
        break;
    }
    LimitedFileDialog::setStrictByDefault(formerDefault);
    if (alive)
        showOutcome(path);
}

void FileDialogsPage::openFrameless()
{
#ifdef TARN_EXPORT_FRAMELESS_FILE_DIALOG
    const QPointer<FileDialogsPage> alive(this);
    const QString path = Tarn::Widgets::FramelessFileDialog::getOpenFileName(
        this, tr("Open a file"), m_tree.at(QStringLiteral("recipes")), tr("Recipes (*.rcp);;All files (*)"));
    if (alive)
        showOutcome(path);
#endif
}

void FileDialogsPage::tryEscapes()
{
    const QVector<Escape> all = escapes(m_tree);
    for (const Escape &escape : all) {
        auto *item = new QTreeWidgetItem(m_escapes);
        for (const int column : {PlainColumn, StrictColumn})
            item->setData(column, Qt::UserRole, getsOut(escape, m_tree, column == StrictColumn));
    }
    showEscapes();
}

/* Whoever got out before does so in any language. */
void FileDialogsPage::showEscapes()
{
    const QVector<Escape> all = escapes(m_tree);
    for (int row = 0; row < m_escapes->topLevelItemCount(); ++row) {
        const Escape &escape = all.at(row);
        QTreeWidgetItem *item = m_escapes->topLevelItem(row);
        item->setText(TitleColumn, escape.title);
        item->setToolTip(TitleColumn,
                         escape.text.isEmpty() ? escape.title : tr("Typed: %1").arg(escape.text));
        for (const int column : {PlainColumn, StrictColumn})
            item->setText(column, item->data(column, Qt::UserRole).toBool() ? tr("gets out") : tr("held"));
    }
}

void FileDialogsPage::showOutcome(const QString &path)
{
    const QString top = QFileInfo(m_tree.at(QStringLiteral("recipes"))).path() + QLatin1Char('/');
    QString shown = path;
    if (shown.startsWith(top))
        shown.remove(0, top.size());
    showText(m_outcome, [=] {
        return shown.isEmpty() ? tr("Cancelled") : tr("Chosen: %1").arg(QDir::toNativeSeparators(shown));
    });
}

void FileDialogsPage::showEvent(QShowEvent *event)
{
    if (m_escapes->topLevelItemCount() == 0)
        tryEscapes();
    QWidget::showEvent(event);
}

} // namespace Gallery
