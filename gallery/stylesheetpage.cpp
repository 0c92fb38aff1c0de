// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "stylesheetpage.h"

#include "appearance.h"
#include "parts.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <tarnwidgets/qssloader.h>

namespace Gallery {

namespace {

constexpr int FontPixels = 13;
constexpr int TypingPause = 300; // in milliseconds: a whole application is restyled
constexpr int TabWidth = 2; // in characters

constexpr char Example[] = "QPushButton {\n  border-radius: 12px;\n}\n\n"
                           "QLabel[isTitleBarTitle=\"true\"] {\n  font-style: italic;\n}\n";

/* Why QssLoader, which says only that it got no text, got none from \a path. */
Text whyNotLoaded(const QString &path)
{
    if (path.isEmpty())
        return [] { return StyleSheetPage::tr("Which file?"); };
    const QFileInfo file(path);
    if (!file.exists())
        return [=] { return StyleSheetPage::tr("There is no file %1.").arg(path); };
    if (!file.isFile())
        return [=] { return StyleSheetPage::tr("%1 is not a file.").arg(path); };
    if (!file.isReadable())
        return [=] { return StyleSheetPage::tr("%1 may not be read.").arg(path); };
    return [=] { return StyleSheetPage::tr("%1 is empty.").arg(path); };
}

} // namespace

StyleSheetPage::StyleSheetPage(Appearance *appearance, QWidget *parent)
    : QWidget(parent)
    , m_appearance(appearance)
    , m_typingPause(new QTimer(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(10);
    layout->addWidget(createFileRow());
    layout->addWidget(createEditor(), 1);
    layout->addWidget(createActionRow());
    showMessage([] { return tr("Not applied yet."); });
}

StyleSheetPage::~StyleSheetPage() = default;

Page StyleSheetPage::page()
{
    return {QStringLiteral("style-sheet"),
            tr("Style sheet"),
            tr("Rules from a file, or typed here, restyle the whole application."),
            [](Appearance *appearance, QWidget *parent) -> QWidget * {
                return new StyleSheetPage(appearance, parent);
            },
            {}};
}

QWidget *StyleSheetPage::createFileRow()
{
    auto *row = new QWidget(this);
    auto *label = new QLabel(row);
    showText(label, [] { return tr("File"); });
    m_path = new QLineEdit(row);
    label->setBuddy(m_path);
    auto *browseButton = createButton([] { return tr("Browse…"); });
    auto *loadButton = createButton([] { return tr("Load"); });
    connect(m_path, &QLineEdit::returnPressed, this, &StyleSheetPage::load);
    connect(browseButton, &QPushButton::clicked, this, &StyleSheetPage::browse);
    connect(loadButton, &QPushButton::clicked, this, &StyleSheetPage::load);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(label);
    layout->addWidget(m_path, 1);
    layout->addWidget(browseButton);
    layout->addWidget(loadButton);
    return row;
}

QWidget *StyleSheetPage::createEditor()
{
    m_editor = new QPlainTextEdit(QString::fromLatin1(Example), this);
    keepTranslated(m_editor, [this] { m_editor->setAccessibleName(tr("Rules")); });
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(FontPixels);
    m_editor->setFont(font);
    m_editor->setTabStopDistance(TabWidth * m_editor->fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    m_editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_typingPause->setSingleShot(true);
    m_typingPause->setInterval(TypingPause);
    connect(m_editor, &QPlainTextEdit::textChanged, m_typingPause, QOverload<>::of(&QTimer::start));
    connect(m_typingPause, &QTimer::timeout, this, &StyleSheetPage::applyIfLive);
    return m_editor;
}

QWidget *StyleSheetPage::createActionRow()
{
    auto *row = new QWidget(this);
    m_message = new QLabel(row);
    m_message->setObjectName(QStringLiteral("galleryMessage"));
    m_message->setWordWrap(true);
    m_live = createCheckBox([] { return tr("Apply while typing"); }, true, [this](bool) { applyIfLive(); });
    auto *applyButton = createButton([] { return tr("Apply"); });
    auto *revertButton = createButton([] { return tr("Revert"); });
    connect(applyButton, &QPushButton::clicked, this, &StyleSheetPage::apply);
    connect(revertButton, &QPushButton::clicked, this, &StyleSheetPage::revert);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_live);
    layout->addWidget(applyButton);
    layout->addWidget(revertButton);
    return row;
}

void StyleSheetPage::browse()
{
    const QString start = m_path->text().isEmpty() ? m_appearance->themesDirectory() : m_path->text();
    const QString path = QFileDialog::getOpenFileName(this, tr("Load a style sheet"), start,
                                                      tr("Style sheets (*.qss *.css);;All files (*)"));
    if (path.isEmpty())
        return;
    m_path->setText(QDir::toNativeSeparators(path));
    load();
}

void StyleSheetPage::load()
{
    const QString path = QDir::fromNativeSeparators(m_path->text());
    const QString rules = path.isEmpty() ? QString() : QssLoader::load(path);
    if (rules.isNull()) {
        showMessage(whyNotLoaded(path), true);
        return;
    }
    m_editor->setPlainText(rules);
    apply();
}

void StyleSheetPage::apply()
{
    m_typingPause->stop();
    if (m_appearance->setExtraRules(m_editor->toPlainText()))
        showMessage([] { return tr("Applied."); });
    else
        showMessage([] { return tr("There is an error; the former rules stay."); }, true);
}

void StyleSheetPage::applyIfLive()
{
    if (m_live->isChecked())
        apply();
}

void StyleSheetPage::revert()
{
    m_typingPause->stop();
    m_appearance->setExtraRules(QString());
    showMessage([] { return tr("Back to the theme; these rules are not applied."); });
}

void StyleSheetPage::showMessage(const Text &message, bool isError)
{
    showText(m_message, message);
    m_message->setProperty("isGalleryError", isError);
    m_message->style()->unpolish(m_message);
    m_message->style()->polish(m_message);
}

} // namespace Gallery
