// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "pictures.h"

#include "appearance.h"
#include "mainwindow.h"

#include <QDialog>
#include <QPixmap>
#include <algorithm>
#include <iterator>
#include <memory>

namespace Gallery {

namespace {

QtMessageHandler formerHandler = nullptr;

// A desktop and the smallest device.
constexpr QSize WindowSizes[] = {{1280, 800}, {800, 480}};

/* The offscreen platform's complaint about every window with a minimum size says nothing here. */
void leaveOutSizeHints(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints")))
        formerHandler(type, context, message);
}

} // namespace

Pictures::Pictures(Appearance *appearance, Language *language, const QString &directory)
    : m_appearance(appearance)
    , m_language(language)
    , m_directory(directory)
{
}

bool Pictures::draw(const QVector<Page> &pages, const QStringList &themes)
{
    if (!m_directory.mkpath(QStringLiteral("."))) {
        m_errorText = tr("Cannot make the directory %1").arg(m_directory.path());
        return false;
    }
    formerHandler = qInstallMessageHandler(leaveOutSizeHints);
    const bool isDrawn = std::all_of(themes.cbegin(), themes.cend(),
                                     [&](const QString &theme) { return drawTheme(theme, pages); });
    qInstallMessageHandler(formerHandler);
    return isDrawn;
}

bool Pictures::drawTheme(const QString &theme, const QVector<Page> &pages)
{
    m_appearance->setTheme(theme);
    return std::all_of(std::cbegin(WindowSizes), std::cend(WindowSizes),
                       [&](const QSize &size) { return drawPages(pages, size); })
        && std::all_of(pages.cbegin(), pages.cend(), [&](const Page &page) { return drawDialogs(page); });
}

bool Pictures::drawPages(const QVector<Page> &pages, const QSize &size)
{
    MainWindow window(m_appearance, m_language);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(size);
    window.show();
    for (const Page &page : pages) {
        window.showPage(page.id);
        if (!save(&window,
                  QStringLiteral("%1-%2-%3x%4")
                      .arg(page.id, m_appearance->theme())
                      .arg(size.width())
                      .arg(size.height())))
            return false;
    }
    return true;
}

bool Pictures::drawDialogs(const Page &page)
{
    for (const DialogExhibit &exhibit : page.dialogs) {
        const std::unique_ptr<QDialog> dialog(exhibit.create(nullptr));
        dialog->setAttribute(Qt::WA_DontShowOnScreen);
        dialog->show();
        if (!save(dialog.get(), QStringLiteral("%1-%2-%3").arg(page.id, exhibit.id, m_appearance->theme())))
            return false;
    }
    return true;
}

bool Pictures::save(QWidget *widget, const QString &name)
{
    QCoreApplication::processEvents(); // layouts, and the first paint with its scroll bars
    const QString path = m_directory.filePath(name + QStringLiteral(".png"));
    if (!widget->grab().save(path)) {
        m_errorText = tr("Cannot write %1").arg(path);
        return false;
    }
    ++m_count;
    return true;
}

int Pictures::count() const
{
    return m_count;
}

QString Pictures::directory() const
{
    return m_directory.absolutePath();
}

QString Pictures::errorText() const
{
    return m_errorText;
}

} // namespace Gallery
