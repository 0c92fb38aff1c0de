// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "trail.h"

#include <QFile>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace Tarn::Storm {

namespace {

constexpr int Length = 128; // of the file, a line of text
constexpr unsigned int Patience = 120; // seconds for MarksBetweenAlarms steps
constexpr int MarksBetweenAlarms = 64;

char s_place[Length]; // the line, for the handler

extern "C" void giveUp(int)
{
    static constexpr char Reason[] = "\nHANGS at ";
    if (write(STDERR_FILENO, Reason, sizeof Reason - 1) < 0
        || write(STDERR_FILENO, s_place, strlen(s_place)) < 0)
        _exit(1);
    abort();
}

} // namespace

Trail::Trail(const QString &path)
{
    std::signal(SIGALRM, giveUp);
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.resize(Length))
        qFatal("%s cannot be written", qPrintable(path));
    m_memory = mmap(nullptr, Length, PROT_READ | PROT_WRITE, MAP_SHARED, file.handle(), 0);
    if (m_memory == MAP_FAILED)
        qFatal("%s cannot be mapped", qPrintable(path));
}

Trail::~Trail()
{
    alarm(0);
    if (m_memory)
        munmap(m_memory, Length);
}

void Trail::enter(const QString &scene)
{
    m_scene = scene.toLatin1();
}

void Trail::mark(int number)
{
    if (m_marks++ % MarksBetweenAlarms == 0)
        alarm(Patience);
    std::snprintf(s_place, sizeof s_place, "%s %d\n", m_scene.constData(), number);
    if (m_memory)
        memcpy(m_memory, s_place, sizeof s_place);
}

} // namespace Tarn::Storm
