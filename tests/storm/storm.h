// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_STORM_STORM_H
#define TARN_STORM_STORM_H

#include "acts.h"
#include "scenes.h"
#include "trail.h"

#include <QObject>
#include <QVector>
#include <memory>

namespace Tarn::Storm {

struct Course
{
    quint64 seed = 0;
    int steps = 0; //!< numbered from 0
    QVector<int> only; //!< if not empty, these alone, in rising order
    bool isTold = false; //!< Prints each step.
};

/*!
 * Goes over one scene. Steps are done in the pump, a timer in whatever event loop runs: that of the
 * application, or of a modal dialog, menu or drag that a step has opened. After each turn of the loop some
 * more steps follow. Which ones make up a turn is a step, too, so that steps can be left out without a change
 * in the others.
 */
class Storm : public QObject
{
    Q_OBJECT

public:
    Storm(const Scene &scene, const Course &course, Trail &trail);
    ~Storm() override;

    /*! Returns when all went well; a finding ends the process. */
    void run();

private:
    // A loop that runs inside a step.
    struct Nest
    {
        int loopLevel = 0;
        int endsAt = 0; // step number
        bool mayDelete = false;
        int attempts = 0;
    };

    void pump();
    bool leaveNest();
    void noticeNest();
    void work();
    void doStep(int number);
    bool isAnybodyCalled() const;
    bool isBare() const;
    void announce(const Kind &kind);
    const Kind &kindOf(Dice &dice) const;
    bool mayDelete() const;
    bool isSuitable(const Kind &kind) const;
    void beginLife(int number);
    void endLife();
    void check();
    bool isOver() const;
    int nextNumber() const;
    [[noreturn]] void report(const QString &finding) const;

    const Scene m_scene;
    const Course m_course;
    Trail &m_trail;
    QVector<Kind> m_kinds;
    int m_weight = 0;
    Hand m_hand;
    Notes m_notes;
    std::unique_ptr<Stage> m_stage;
    bool m_hasCalls = false; // the scene, when it was built
    int m_life = -1;
    int m_place = 0; // in m_course.only, or the step number itself
    QVector<Nest> m_nests;
    int m_number = 0; // of the latest step
    const Kind *m_kind = nullptr; // of the latest step, null outside
    int m_idle = 0;
};

} // namespace Tarn::Storm

#endif
