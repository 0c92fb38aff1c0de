// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_ACTS_H
#define TARN_STORM_ACTS_H

#include "stage.h"
#include "values.h"

#include <QPointer>
#include <QString>
#include <QWindow>

namespace Tarn::Storm {

/*! What a step did, as text, if anybody wants to read it. */
struct Notes
{
    bool wanted = false;
    QString text;

    void about(const QObject *target, const QString &detail = {});
};

/*! Where the pointer is, and what it holds. */
struct Hand
{
    QPointer<QWindow> window;
    Qt::MouseButtons buttons;
    int time = 0; //!< of the events, in milliseconds
};

struct Context
{
    Stage &stage;
    Dice &dice;
    Hand &hand;
    Notes &notes;
    bool mayDelete; //!< Not in a loop of Qt's own.

    Source source()
    {
        return {dice, stage};
    }
};

/*! One kind of step. Steps of a kind come as often as its weight has it. */
struct Kind
{
    const char *name;
    int weight;
    void (*act)(Context &context);
    bool opensModal; //!< runs an event loop of its own
};

QVector<Kind> inputKinds();
QVector<Kind> changeKinds();
QVector<Kind> callKinds();
QVector<Kind> modalKinds();

/*! A widget that the platform could send input to, or null. */
QWidget *pickInputWidget(Context &context);

/*! An object that an application may change as it likes, or null: not a part of one of Qt's own widgets. */
QObject *pickSubject(Context &context);
QWidget *pickSubjectWidget(Context &context);

/*! Whether the table of calls knows the class of \a object. */
bool hasCalls(const QObject *object);

/*! Has the tally expect each of our functions, properties and slots, and each of the modal dialogs. */
void expectCalls();
void expectModals();

/*! Ends the innermost event loop, if it is that of a popup, a modal dialog or a drag. */
void endInnermostLoop(Stage &stage, Dice &dice, bool mayDelete);

} // namespace Tarn::Storm

#endif
