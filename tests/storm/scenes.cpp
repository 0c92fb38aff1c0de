// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "scenes.h"

#include "values.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <tarnwidgets/changednoticelineedit.h>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/stylesheetwidget.h>
#include <tarnwidgets/tarnpushbutton.h>
#include <tarnwidgets/tarntabwidget.h>
#include <tarnwidgets/titlebar.h>
#include <tarnwidgets/toolbutton.h>
#ifdef TARN_STORM_GALLERY
#include <appearance.h>
#include <language.h>
#include <mainwindow.h>
#include <page.h>
#endif

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

constexpr int WithManyCalls = 4;

// A window with two of the widgets and neighbours to take the focus.
QWidget *createForm(Stage &stage)
{
    auto *form = new QWidget;
    stage.own(form);
    auto *layout = new QVBoxLayout(form);
    layout->addWidget(new QLineEdit(form));
    layout->addWidget(new QPushButton(QStringLiteral("&Next"), form));
    return form;
}

template <typename Widget> Widget *addTo(QWidget *form, Stage &stage)
{
    auto *widget = new Widget(form);
    form->layout()->addWidget(widget);
    stage.own(widget);
    return widget;
}

template <typename Widget> void buildForm(Stage &stage, Dice &)
{
    QWidget *form = createForm(stage);
    addTo<Widget>(form, stage);
    addTo<Widget>(form, stage);
    form->show();
}

// Qt does not stand it that the field goes away inside what is called on itself, such as setEnabled() and
// hide(), or together with a window of its own that is about to get the focus: its context menu, a dialog.
bool isInUse(const QWidget *field)
{
    return QApplication::activePopupWidget() || !field->isEnabled() || field->isHidden()
        || field->findChild<QDialog *>() || field->findChild<QMenu *>();
}

void buildNotice(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    auto *survivor = addTo<ChangedNoticeLineEdit>(form, stage);
    QObject::connect(survivor, &ChangedNoticeLineEdit::signal_focusOut, survivor, &QLineEdit::clear);
    auto *victim = addTo<ChangedNoticeLineEdit>(form, stage);
    if (dice.oneIn(2)) {
        victim->setProperty("mayVanish", true);
        QObject::connect(victim, &ChangedNoticeLineEdit::signal_focusOut, form, [victim] {
            if (isInUse(victim))
                victim->deleteLater();
            else
                delete victim;
        });
    }
    form->show();
}

void buildFrameLine(Stage &stage, Dice &)
{
    QWidget *form = createForm(stage);
    addTo<StyleSheetWidget>(form, stage)->setLayout(new QHBoxLayout);
    form->show();
}

void buildTitleBar(Stage &stage, Dice &)
{
    QWidget *form = createForm(stage);
    auto *bar = addTo<TitleBar>(form, stage);
    bar->setTitle(QStringLiteral("Storm"));
    QObject::connect(bar, &TitleBar::minimuned, form, &QWidget::showMinimized);
    QObject::connect(bar, &TitleBar::maximumed, form, &QWidget::showMaximized);
    QObject::connect(bar, &TitleBar::normaled, form, &QWidget::showNormal);
    QObject::connect(bar, &TitleBar::closed, form, &QWidget::close);
    form->show();
}

void buildToolButton(Stage &stage, Dice &)
{
    QWidget *form = createForm(stage);
    auto *menu = new QMenu(form);
    menu->addAction(QStringLiteral("One"));
    menu->addAction(QStringLiteral("Two"));
    stage.own(menu);
    addTo<ToolButton>(form, stage)->setMenu(menu);
    addTo<ToolButton>(form, stage);
    form->show();
}

void buildPlainTabBar(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    auto *bar = addTo<TabBarRd>(form, stage);
    for (int left = dice.below(6); left > 0; --left)
        bar->addTab(QStringLiteral("Tab %1").arg(left));
    bar->setTabsClosable(dice.oneIn(2));
    bar->setMovable(!dice.oneIn(3));
    form->show();
}

void buildTabBar(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    auto *bar = addTo<TarnTabBar>(form, stage);
    for (int left = dice.below(6); left > 0; --left)
        bar->addTab(QStringLiteral("Tab %1").arg(left));
    form->show();
}

void buildTabWidget(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    auto *tabs = addTo<TarnTabWidget>(form, stage);
    for (int left = dice.below(6); left > 0; --left) {
        auto *page = new QWidget;
        tabs->addTab(page, QStringLiteral("Tab %1").arg(left));
        stage.own(page);
    }
    tabs->setTabsClosable(dice.oneIn(2));
    tabs->setMovable(dice.oneIn(2));
    form->show();
}

void buildHelper(Stage &stage, Dice &)
{
    QWidget *form = createForm(stage);
    form->setWindowFlag(Qt::FramelessWindowHint);
    QWidget *other = createForm(stage);
    auto *helper = new FramelessHelper(stage.nursery());
    stage.own(helper);
    helper->activateOn(form);
    form->show();
    other->show();
}

void buildMessageBox(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    form->show();
    QWidget *parent = dice.oneIn(2) ? form : nullptr;
    auto *box = dice.oneIn(2)
        ? new FramelessMessageBox(parent)
        : new FramelessMessageBox(draw<QMessageBox::Icon>({dice, stage}), drawText(dice).left(40),
                                  drawText(dice), draw<QMessageBox::StandardButtons>({dice, stage}), parent);
    stage.own(box);
    box->show();
}

void buildFramelessDialog(Stage &stage, Dice &dice)
{
    QWidget *form = createForm(stage);
    form->show();
    auto *dialog = new FramelessDialog(dice.oneIn(2) ? form : nullptr);
    stage.own(dialog);
    dialog->setDialogResizable(true);
    auto *layout = new QVBoxLayout(dialog->getContentHolder());
    layout->addWidget(new QLineEdit);
    stage.own(dialog->getContentHolder());
    dialog->show();
}

void buildColorDialog(Stage &stage, Dice &dice)
{
    auto *dialog = new ColorDialog(Qt::red, dice.oneIn(2) ? createForm(stage) : nullptr);
    stage.own(dialog);
    dialog->show();
}

void buildWindow(Stage &stage, Dice &dice)
{
    auto *window = new FramelessWindow(dice.oneIn(3), nullptr);
    stage.own(window);
    auto *content = new QLabel(QStringLiteral("Content"));
    window->setCentralWidget(content);
    stage.own(content);
    window->show();
}

void buildLimited(Stage &stage, Dice &dice)
{
    auto *dialog = dice.oneIn(4) ? new LimitedFileDialog(nullptr, Qt::Window)
                                 : new LimitedFileDialog(nullptr, QString(), stage.files().root());
    dialog->setDirectory(stage.files().root());
    stage.own(dialog);
    dialog->setOption(QFileDialog::ReadOnly);
    dialog->setStrict(dice.oneIn(2));
    if (dice.oneIn(2))
        dialog->setLimitedPath1(stage.files().second());
    dialog->setLimitedPath(stage.files().root());
    dialog->show();
}

void buildFileDialog(Stage &stage, Dice &dice)
{
    auto *dialog = dice.oneIn(4) ? new FramelessFileDialog(nullptr, Qt::Widget)
                                 : new FramelessFileDialog(nullptr, QString(), stage.files().root());
    dialog->setDirectory(stage.files().root());
    stage.own(dialog);
    dialog->setOption(QFileDialog::ReadOnly);
    dialog->show();
}

#ifdef TARN_STORM_GALLERY
void addGallery(QVector<Scene> &all)
{
    const QVector<Gallery::Page> pages = Gallery::pages();
    for (const Gallery::Page &page : pages) {
        all.append({QStringLiteral("page-") + page.id, [page](Stage &stage, Dice &) {
                        auto appearance =
                            std::make_shared<Gallery::Appearance>(QStringLiteral(TARN_THEMES_DIR));
                        stage.keep(appearance);
                        appearance->setTheme(QStringLiteral("dark"));
                        QWidget *widget = page.create(appearance.get(), nullptr);
                        stage.own(widget);
                        widget->show();
                    }});
        for (const Gallery::DialogExhibit &exhibit : page.dialogs) {
            all.append({QStringLiteral("exhibit-") + page.id + QLatin1Char('-') + exhibit.id,
                        [exhibit](Stage &stage, Dice &) {
                            QDialog *dialog = exhibit.create(nullptr);
                            stage.own(dialog);
                            dialog->show();
                        }});
        }
    }
    all.append({QStringLiteral("gallery"), [](Stage &stage, Dice &) {
                    auto appearance = std::make_shared<Gallery::Appearance>(QStringLiteral(TARN_THEMES_DIR));
                    stage.keep(appearance);
                    appearance->setTheme(QStringLiteral("light"));
                    auto language = std::make_shared<Gallery::Language>(QString());
                    stage.keep(language);
                    auto *window = new Gallery::MainWindow(appearance.get(), language.get());
                    stage.own(window);
                    window->show();
                }});
}
#endif

} // namespace

QVector<Scene> scenes()
{
    QVector<Scene> all = {{QStringLiteral("changednoticelineedit"), buildNotice},
                          {QStringLiteral("colordialog"), buildColorDialog},
                          {QStringLiteral("framelessdialog"), buildFramelessDialog},
                          {QStringLiteral("framelessfiledialog"), buildFileDialog, WithManyCalls},
                          {QStringLiteral("framelesshelper"), buildHelper},
                          {QStringLiteral("framelessmessagebox"), buildMessageBox, WithManyCalls},
                          {QStringLiteral("framelesswindow"), buildWindow},
                          {QStringLiteral("frameline"), buildFrameLine},
                          {QStringLiteral("iplineedit"), buildForm<IPLineEdit>, WithManyCalls},
                          {QStringLiteral("limitedfiledialog"), buildLimited, WithManyCalls},
                          {QStringLiteral("stylesheetwidget"), buildForm<StyleSheetWidget>},
                          {QStringLiteral("tabbarrd"), buildPlainTabBar, WithManyCalls},
                          {QStringLiteral("tarnpushbutton"), buildForm<TarnPushButton>},
                          {QStringLiteral("tarntabbar"), buildTabBar, WithManyCalls},
                          {QStringLiteral("tarntabwidget"), buildTabWidget, WithManyCalls},
                          {QStringLiteral("titlebar"), buildTitleBar},
                          {QStringLiteral("toolbutton"), buildToolButton}};
#ifdef TARN_STORM_GALLERY
    addGallery(all);
#endif
    return all;
}

} // namespace Tarn::Storm
