// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "appearance.h"
#include "language.h"
#include "parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QScrollArea>
#include <QSizeGrip>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/titlebar.h>

using Tarn::Widgets::StyleSheetWidget;

namespace Gallery {

MainWindow::MainWindow(Appearance *appearance, Language *language, QWidget *parent)
    : FramelessWindow(parent)
    , m_appearance(appearance)
    , m_language(language)
    , m_pages(pages())
{
    auto *body = new QWidget;
    auto *layout = new QHBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createSidebar());
    layout->addWidget(createPageArea(), 1);
    setCentralWidget(body);
    getTitleBar()->setMaximized(false);

    connect(m_list, &QListWidget::currentRowChanged, this, &MainWindow::showPageAt);
    connect(m_appearance, &Appearance::changed, this, &MainWindow::showTheme);
    connect(m_language, &Language::changed, this, &MainWindow::showLanguage);
    m_list->setCurrentRow(0);
    keepTranslated(this, [this] { retranslate(); });
    showTheme();
    showLanguage();
}

MainWindow::~MainWindow() = default;

QWidget *MainWindow::createSidebar()
{
    auto *sidebar = new StyleSheetWidget(this);
    sidebar->setObjectName(QStringLiteral("gallerySidebar"));
    sidebar->setFixedWidth(168);
    m_list = new QListWidget(sidebar);
    m_list->setObjectName(QStringLiteral("galleryPages"));
    m_list->setResizeMode(QListView::Adjust); // the first layout comes before the style sheet's sizes
    for (const Page &page : qAsConst(m_pages))
        m_list->addItem(page.title);

    auto *layout = new QVBoxLayout(sidebar);
    layout->setContentsMargins(8, 12, 8, 12);
    layout->setSpacing(8);
    layout->addWidget(m_list, 1);
    layout->addWidget(createThemeChooser());
    layout->addWidget(createLanguageChooser());
    layout->addWidget(createDirectionSwitch());
    return sidebar;
}

QWidget *MainWindow::createThemeChooser()
{
    m_themes = createComboBox();
    const QStringList names = Appearance::themeNames();
    for (const QString &name : names)
        m_themes->addItem(QString(), name);
    connect(m_themes, QOverload<int>::of(&QComboBox::activated), m_appearance,
            [this](int index) { m_appearance->setTheme(m_themes->itemData(index).toString()); });
    return m_themes;
}

QWidget *MainWindow::createLanguageChooser()
{
    m_languages = createComboBox();
    const QStringList names = Language::names();
    for (const QString &name : names)
        m_languages->addItem(Language::title(name), name);
    connect(m_languages, QOverload<int>::of(&QComboBox::activated), m_language,
            [this](int index) { m_language->setName(m_languages->itemData(index).toString()); });
    return m_languages;
}

QWidget *MainWindow::createDirectionSwitch()
{
    m_rightToLeft =
        createCheckBox([] { return tr("Right to left"); }, isRightToLeft(), [this](bool) { turnLayout(); });
    return m_rightToLeft;
}

void MainWindow::turnLayout()
{
    QGuiApplication::setLayoutDirection(m_rightToLeft->isChecked() ? Qt::RightToLeft : Qt::LeftToRight);
}

QWidget *MainWindow::createPageArea()
{
    auto *area = new QWidget(this);
    m_stack = new QStackedWidget(area);
    for (int i = 0; i < m_pages.count(); ++i) {
        auto *scroller = new QScrollArea;
        scroller->setObjectName(QStringLiteral("galleryPage"));
        scroller->setWidgetResizable(true);
        m_stack->addWidget(scroller);
    }

    auto *layout = new QGridLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader(), 0, 0);
    layout->addWidget(m_stack, 1, 0);
    layout->addWidget(new QSizeGrip(area), 1, 0, Qt::AlignRight | Qt::AlignBottom); // over the page's margin
    layout->setRowStretch(1, 1);
    return area;
}

QWidget *MainWindow::createHeader()
{
    auto *header = new QWidget(this);
    m_heading = new QLabel(header);
    m_heading->setObjectName(QStringLiteral("galleryHeading"));
    m_summary = createNote([this] { return m_pages.at(m_stack->currentIndex()).summary; });

    auto *layout = new QVBoxLayout(header);
    layout->setContentsMargins(20, 12, 20, 4);
    layout->setSpacing(2);
    layout->addWidget(m_heading);
    layout->addWidget(m_summary);
    return header;
}

void MainWindow::showPage(const QString &id)
{
    for (int i = 0; i < m_pages.count(); ++i) {
        if (m_pages.at(i).id == id)
            m_list->setCurrentRow(i);
    }
}

void MainWindow::showPageAt(int index)
{
    auto *scroller = qobject_cast<QScrollArea *>(m_stack->widget(index));
    if (!scroller)
        return;
    const Page &page = m_pages.at(index);
    if (!scroller->widget())
        scroller->setWidget(page.create(m_appearance, scroller));
    m_stack->setCurrentIndex(index);
    showHeading();
}

void MainWindow::showHeading()
{
    const Page &page = m_pages.at(m_stack->currentIndex());
    m_heading->setText(page.title);
    m_summary->setText(page.summary);
}

void MainWindow::showTheme()
{
    m_themes->setCurrentIndex(m_themes->findData(m_appearance->theme()));
}

/* One that is not in the list was asked for on the command line. */
void MainWindow::showLanguage()
{
    const QString name = m_language->name();
    if (m_languages->findData(name) < 0)
        m_languages->addItem(Language::title(name), name);
    m_languages->setCurrentIndex(m_languages->findData(name));
    setLocale(QLocale());
    turnLayout(); // which Qt sets anew with each translator
}

void MainWindow::retranslate()
{
    setWindowTitle(tr("Tarn widgets gallery"));
    m_list->setAccessibleName(tr("Pages"));
    m_themes->setAccessibleName(tr("Theme"));
    m_themes->setToolTip(tr("The theme of the whole application"));
    m_languages->setAccessibleName(tr("Language"));
    m_languages->setToolTip(tr("The language of the whole application"));
    for (QComboBox *box : {m_themes, m_languages}) {
        for (int row = 0; row < box->count(); ++row) {
            const QString name = box->itemData(row).toString();
            box->setItemText(row, box == m_themes ? Appearance::themeTitle(name) : Language::title(name));
        }
    }
    m_pages = pages();
    for (int i = 0; i < m_pages.count(); ++i)
        m_list->item(i)->setText(m_pages.at(i).title);
    showHeading();
}

} // namespace Gallery
