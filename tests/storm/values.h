// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_VALUES_H
#define TARN_STORM_VALUES_H

#include "dice.h"

#include <QColor>
#include <QDir>
#include <QFileDialog>
#include <QFont>
#include <QIcon>
#include <QMessageBox>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QTabBar>
#include <QTabWidget>
#include <QVariant>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/tarntabbar.h>

class QAction;
class QWidget;

namespace Tarn::Storm {

class Stage;

/*! What arguments are drawn from. Objects that are drawn belong to the stage. */
struct Source
{
    Dice &dice;
    Stage &stage;
};

QString drawText(Dice &dice);
QString drawAddress(Dice &dice);
QString drawStyleSheet(Dice &dice);
QSize drawSize(Dice &dice);
QColor drawColor(Dice &dice);
QFont drawFont(Dice &dice);
int drawNumber(Dice &dice);

/*! Null for types that nobody has thought of. */
QVariant drawVariant(int type, Source source);

template <typename T> struct Draw;

template <typename T> std::decay_t<T> draw(Source source)
{
    return Draw<std::decay_t<T>>::from(source);
}

// Defines how values of a type are drawn, in terms of "source".
#define TARN_STORM_DRAW(Type, expression)                                                                    \
    template <> struct Draw<Type>                                                                            \
    {                                                                                                        \
        static Type from(Source source)                                                                      \
        {                                                                                                    \
            return expression;                                                                               \
        }                                                                                                    \
    };

QWidget *drawWidget(Source source); //!< A new one, or seldom null.
QAction *drawAction(Source source);
QPixmap drawPixmap(Dice &dice);

TARN_STORM_DRAW(bool, source.dice.oneIn(2))
TARN_STORM_DRAW(int, drawNumber(source.dice))
TARN_STORM_DRAW(unsigned int, unsigned(source.dice.pick({0, 1, 5, 24, 30, 400, 70000})))
TARN_STORM_DRAW(QString, drawText(source.dice))
TARN_STORM_DRAW(QSize, drawSize(source.dice))
TARN_STORM_DRAW(QPoint, QPoint(drawNumber(source.dice), drawNumber(source.dice)))
TARN_STORM_DRAW(QColor, drawColor(source.dice))
TARN_STORM_DRAW(QPixmap, drawPixmap(source.dice))
TARN_STORM_DRAW(QIcon, QIcon(drawPixmap(source.dice)))
TARN_STORM_DRAW(QVariant, drawVariant(int(QVariant::String), source))
TARN_STORM_DRAW(QWidget *, drawWidget(source))
TARN_STORM_DRAW(QAction *, drawAction(source))
TARN_STORM_DRAW(Qt::Alignment,
                Qt::Alignment(source.dice.pick({Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignTop,
                                                Qt::AlignCenter, Qt::AlignJustify})))
TARN_STORM_DRAW(Qt::TextElideMode,
                source.dice.pick({Qt::ElideLeft, Qt::ElideRight, Qt::ElideMiddle, Qt::ElideNone}))
TARN_STORM_DRAW(Qt::TextFormat,
                source.dice.pick({Qt::PlainText, Qt::RichText, Qt::AutoText, Qt::MarkdownText}))
TARN_STORM_DRAW(Qt::TextInteractionFlags, Qt::TextInteractionFlags(source.dice.below(32)))
TARN_STORM_DRAW(Qt::WindowModality, source.dice.pick({Qt::NonModal, Qt::WindowModal, Qt::ApplicationModal}))
TARN_STORM_DRAW(QTabBar::ButtonPosition, source.dice.pick({QTabBar::LeftSide, QTabBar::RightSide}))
TARN_STORM_DRAW(Widgets::TabBarRd::TabBarType,
                source.dice.pick({Widgets::TabBarRd::Normal, Widgets::TabBarRd::Even}))
TARN_STORM_DRAW(Widgets::FramelessWindow::eDirection,
                source.dice.pick({Widgets::FramelessWindow::eLeft, Widgets::FramelessWindow::eTop,
                                  Widgets::FramelessWindow::eRight, Widgets::FramelessWindow::eBottom,
                                  Widgets::FramelessWindow::eNormal}))
TARN_STORM_DRAW(QMessageBox::Icon,
                source.dice.pick({QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                  QMessageBox::Critical, QMessageBox::Question}))
TARN_STORM_DRAW(QMessageBox::ButtonRole, QMessageBox::ButtonRole(source.dice.between(-1, 9)))
TARN_STORM_DRAW(QMessageBox::StandardButton,
                QMessageBox::StandardButton(source.dice.oneIn(8) ? 0 : 1 << source.dice.between(10, 27)))
TARN_STORM_DRAW(QMessageBox::StandardButtons,
                QMessageBox::StandardButtons(QFlag(int(source.dice.next() & source.dice.next()
                                                       & 0x0ffffc00))))
TARN_STORM_DRAW(QFileDialog::ViewMode, source.dice.pick({QFileDialog::Detail, QFileDialog::List}))
TARN_STORM_DRAW(QFileDialog::FileMode,
                source.dice.pick({QFileDialog::AnyFile, QFileDialog::ExistingFile, QFileDialog::Directory,
                                  QFileDialog::ExistingFiles}))
TARN_STORM_DRAW(QFileDialog::DialogLabel, QFileDialog::DialogLabel(source.dice.below(5)))
// Qt's own dialog stays Qt's own.
TARN_STORM_DRAW(QFileDialog::Option,
                source.dice.pick({QFileDialog::ShowDirsOnly, QFileDialog::DontResolveSymlinks,
                                  QFileDialog::DontConfirmOverwrite, QFileDialog::ReadOnly,
                                  QFileDialog::HideNameFilterDetails,
                                  QFileDialog::DontUseCustomDirectoryIcons}))
TARN_STORM_DRAW(QDir::Filters, QDir::Filters(QFlag(source.dice.below(0x8000))))
TARN_STORM_DRAW(QFileDialog::AcceptMode, source.dice.pick({QFileDialog::AcceptOpen, QFileDialog::AcceptSave}))

} // namespace Tarn::Storm

#endif
