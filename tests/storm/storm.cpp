// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "storm.h"

#include "oracle.h"
#include "tally.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Tarn::Storm {

namespace {

constexpr int StepsPerLife = 400;
constexpr int MostNests = 4;
constexpr int LongestNest = 60; // steps
constexpr int MostAttempts = 300; // to end a loop
constexpr int StepsPerTurn = 12; // on average
constexpr int StepsPerCheck = 32;
constexpr int StepsPerLook = 8;
constexpr int ExitFound = 3;

enum Purpose : quint64 { Building, Choosing, Nesting, Ending };

quint64 purposeOf(const Scene &scene, Purpose purpose)
{
    quint64 value = purpose;
    for (const QChar &character : scene.name)
        value = value * 31 + character.unicode();
    return value;
}

// What may be running, for whoever looks for the reason.
QString openWindows(Stage &stage)
{
    QString text;
    const QVector<QWidget *> windows = stage.windows();
    for (const QWidget *window : windows)
        text += QStringLiteral("; %1%2").arg(QLatin1String(window->metaObject()->className()),
                                             window->isVisible() ? QStringLiteral(" (visible)") : QString());
    if (const QWidget *modal = QApplication::activeModalWidget())
        text += QStringLiteral("; modal: ") + QLatin1String(modal->metaObject()->className());
    return text;
}

} // namespace

void Notes::about(const QObject *target, const QString &detail)
{
    if (!wanted)
        return;
    text = target ? QLatin1String(target->metaObject()->className()) : QLatin1String("nobody");
    if (target && !target->objectName().isEmpty())
        text += QLatin1Char(' ') + target->objectName();
    if (!detail.isEmpty())
        text += QStringLiteral(": ") + detail.left(80);
}

QObject *pickSubject(Context &context)
{
    const QVector<QObject *> owned = context.stage.owned();
    if (!owned.isEmpty() && context.dice.oneIn(2))
        return context.dice.pickOf(owned);
    const QVector<QObject *> all = context.stage.objects();
    for (int tries = 0; tries < 4 && !all.isEmpty(); ++tries) {
        QObject *object = context.dice.pickOf(all);
        if (hasCalls(object))
            return object;
    }
    return owned.isEmpty() ? nullptr : context.dice.pickOf(owned);
}

QWidget *pickSubjectWidget(Context &context)
{
    return qobject_cast<QWidget *>(pickSubject(context));
}

Storm::Storm(const Scene &scene, const Course &course, Trail &trail)
    : m_scene(scene)
    , m_course(course)
    , m_trail(trail)
    , m_kinds(inputKinds() + changeKinds() + callKinds() + modalKinds())
{
    for (const Kind &kind : qAsConst(m_kinds)) {
        m_weight += kind.weight;
        expectInTally(QByteArray("act ") + kind.name);
    }
    m_notes.wanted = course.isTold;
    m_trail.enter(scene.name);
}

Storm::~Storm() = default;

void Storm::run()
{
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, &Storm::pump);
    timer.start(0);
    while (!isOver())
        QApplication::exec();
    endLife();
}

void Storm::pump()
{
    noticeNest();
    // A timer does not fire inside its own slot, so the loops that open in this one need another.
    QTimer inner;
    connect(&inner, &QTimer::timeout, this, &Storm::pump);
    inner.start(0);
    if (m_nests.isEmpty() && isOver())
        QApplication::quit();
    else if (m_nests.isEmpty() || !leaveNest())
        work();
}

// What runs now is either a new loop inside the latest step, or one of those that are known.
void Storm::noticeNest()
{
    const int level = QThread::currentThread()->loopLevel();
    while (!m_nests.isEmpty() && m_nests.constLast().loopLevel > level)
        m_nests.removeLast();
    const int known = m_nests.isEmpty() ? 1 : m_nests.constLast().loopLevel;
    if (level <= known)
        return;
    Dice dice(m_course.seed, purposeOf(m_scene, Nesting), quint64(m_number));
    const bool outerMay = mayDelete();
    m_nests.append(
        {level, m_number + 1 + dice.below(LongestNest), outerMay && m_kind && m_kind->opensModal, 0});
}

bool Storm::leaveNest()
{
    Nest &nest = m_nests.last();
    if (!isOver() && nextNumber() < nest.endsAt && nextNumber() / StepsPerLife == m_life
        && m_nests.size() <= MostNests)
        return false;
    if (++nest.attempts > MostAttempts)
        report(QStringLiteral("An event loop does not end") + openWindows(*m_stage));
    Dice dice(m_course.seed, purposeOf(m_scene, Ending),
              quint64(m_number) * MostAttempts + quint64(nest.attempts));
    m_hand.buttons = Qt::NoButton;
    // What Qt asks now it asks from the stack of a dialog, which must stay until the answer.
    const Kind *outer = m_kind;
    m_kind = nullptr;
    endInnermostLoop(*m_stage, dice, nest.mayDelete);
    m_kind = outer;
    return true;
}

void Storm::work()
{
    const int life = m_life;
    for (;;) {
        if (isOver())
            return;
        const int number = nextNumber();
        if (!m_nests.isEmpty() && (number >= m_nests.constLast().endsAt || number / StepsPerLife != life))
            return;
        if (number / StepsPerLife != m_life)
            beginLife(number);
        ++m_place;
        const int nests = m_nests.size();
        doStep(number);
        while (m_nests.size() > nests) // what the step has opened has ended with it
            m_nests.removeLast();
        Dice dice(m_course.seed, purposeOf(m_scene, Choosing), ~quint64(number));
        if (dice.oneIn(StepsPerTurn))
            return;
    }
}

bool Storm::isOver() const
{
    return m_place >= (m_course.only.isEmpty() ? m_course.steps : m_course.only.size());
}

int Storm::nextNumber() const
{
    return m_course.only.isEmpty() ? m_place : m_course.only.at(m_place);
}

bool Storm::mayDelete() const
{
    return m_nests.isEmpty() || m_nests.constLast().mayDelete;
}

bool Storm::isSuitable(const Kind &kind) const
{
    const bool deletes = qstrcmp(kind.name, "delete") == 0;
    // Qt's own widgets do not stand it that they are deleted while their menu or drag goes on.
    if (deletes && !mayDelete())
        return false;
    return !kind.opensModal || m_nests.size() < MostNests;
}

const Kind &Storm::kindOf(Dice &dice) const
{
    int place = dice.below(m_weight);
    for (const Kind &kind : m_kinds) {
        place -= kind.weight;
        if (place < 0)
            return kind;
    }
    return m_kinds.constLast();
}

void Storm::doStep(int number)
{
    m_number = number;
    m_trail.mark(number);
    Dice dice(m_course.seed, purposeOf(m_scene, Choosing), quint64(number));
    const Kind &kind = kindOf(dice);
    if (isBare())
        m_scene.build(*m_stage, dice);
    if (!isSuitable(kind))
        return;
    const Kind *outer = m_kind;
    m_kind = &kind;
    m_notes.text.clear();
    if (m_course.isTold)
        announce(kind);
    tally(QByteArray("act ") + kind.name);
    Context context{*m_stage, dice, m_hand, m_notes, mayDelete()};
    kind.act(context);
    m_kind = outer;
    if (m_course.isTold) {
        std::printf("%d   %s\n", number, qPrintable(m_notes.text));
        std::fflush(stdout);
    }
    check();
}

bool Storm::isAnybodyCalled() const
{
    const QVector<QObject *> all = m_stage->objects();
    return std::any_of(all.cbegin(), all.cend(), hasCalls);
}

// Whether what the scene is about has been deleted. Looked at now and then only, since it takes long.
bool Storm::isBare() const
{
    if (m_number % StepsPerLook != 0)
        return m_stage->owned().isEmpty();
    return m_stage->windows().isEmpty() || (m_hasCalls && !isAnybodyCalled());
}

void Storm::announce(const Kind &kind)
{
    std::printf("%d %s%s\n", m_number, kind.name,
                qPrintable(m_nests.isEmpty()
                               ? QString()
                               : QStringLiteral(", in a loop at depth %1").arg(m_nests.size())));
    std::fflush(stdout);
}

void Storm::check()
{
    const QString message = unexpectedMessage();
    if (!message.isNull())
        report(QStringLiteral("message: ") + message);
    if (m_number % StepsPerCheck != 0)
        return;
    const QString broken = brokenPromise(*m_stage);
    if (!broken.isNull())
        report(broken);
}

void Storm::beginLife(int number)
{
    endLife();
    m_life = number / StepsPerLife;
    // What outlives a scene would make one depend on those before it.
    QFile::remove(QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("customSettingCfg.info")));
    QApplication::clipboard()->clear();
    QCursor::setPos(0, 0);
    m_hand = Hand();
    m_stage = std::make_unique<Stage>();
    Dice dice(m_course.seed, purposeOf(m_scene, Building), quint64(m_life));
    m_scene.build(*m_stage, dice);
    m_hasCalls = isAnybodyCalled();
}

void Storm::endLife()
{
    if (!m_stage)
        return;
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    m_stage.reset();
    const QString rest = leftOvers();
    if (!rest.isNull())
        report(rest);
    const QString message = unexpectedMessage();
    if (!message.isNull())
        report(QStringLiteral("message: ") + message);
}

void Storm::report(const QString &finding) const
{
    std::printf("\nFOUND %s\n  scene %s, seed %llu, step %d%s%s %s\n", qPrintable(finding),
                qPrintable(m_scene.name), m_course.seed, m_number, m_kind ? ", " : "",
                m_kind ? m_kind->name : "", qPrintable(m_notes.text));
    std::printf("  Again: scripts/storm --seed %llu --scene %s\n", m_course.seed, qPrintable(m_scene.name));
    std::fflush(stdout);
    // Nothing is taken down: the stack may be deep in loops.
    std::_Exit(ExitFound);
}

} // namespace Tarn::Storm
