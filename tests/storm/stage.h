// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_STAGE_H
#define TARN_STORM_STAGE_H

#include "dice.h"
#include "support/filedialogparts.h"
#include "support/stateguard.h"

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>
#include <functional>
#include <memory>

namespace Tarn::Storm {

/*! The objects of one scene: made, watched while the storm goes over them, and taken down. */
class Stage : public QObject
{
    Q_OBJECT

public:
    Stage();
    ~Stage() override;

    /*! \a object is the stage's to delete, and the storm may delete it at any time. */
    void own(QObject *object);

    /*! Has \a prop, which need not be a widget, deleted with the stage. */
    void keep(std::shared_ptr<void> prop);

    /*! A window that adopts what has no better parent. It is never shown, nor deleted by the storm. */
    QWidget *nursery();

    /*! The top-level windows that were ever seen, in the order in which they appeared. */
    QVector<QWidget *> windows();

    /*! All there is in \a windows, and the stage's other objects. */
    QVector<QObject *> objects();
    QVector<QObject *> owned();

    /*! The windows that the platform would send input to at present. */
    QVector<QWidget *> inputWindows();

    const Test::FileTree &files();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restoreLook();

    Test::StateGuard m_guard;
    const QString m_style;
    const QFont m_font;
    const Qt::LayoutDirection m_direction;
    Test::FileTree m_files;
    QVector<std::shared_ptr<void>> m_props;
    QVector<QPointer<QWidget>> m_windows;
    QVector<QPointer<QObject>> m_owned;
    QPointer<QWidget> m_nursery;
};

/*! \a root and the widgets in it, windows that are its children excepted. */
void collectWidgets(QWidget *root, QVector<QWidget *> &widgets);

} // namespace Tarn::Storm

#endif
