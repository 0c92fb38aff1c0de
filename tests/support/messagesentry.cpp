// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "messagesentry.h"

#include <QStringList>
#include <QTest>
#include <algorithm>

namespace Tarn::Test {

namespace {

MessageSentry *s_current = nullptr;

// The offscreen platform says so each time a window has a fixed size or is raised; it is not about the code
// tested.
bool isPlatformRemark(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

const char *typeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    }
    return "unknown";
}

} // namespace

MessageSentry::MessageSentry()
    : m_formerSentry(s_current)
{
    s_current = this;
    m_formerHandler = qInstallMessageHandler(&MessageSentry::handle);
}

MessageSentry::~MessageSentry()
{
    qInstallMessageHandler(m_formerHandler);
    s_current = m_formerSentry;
    for (const QString &message : qAsConst(m_unexpected)) {
        const QString text = QStringLiteral("Unexpected message in the log: ") + message;
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    }
    for (const Announcement &missing : qAsConst(m_outstanding)) {
        const QString text = QStringLiteral("This message did not come: %1: %2")
                                 .arg(QString::fromLatin1(typeName(missing.type)), missing.text);
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
    }
}

void MessageSentry::expect(QtMsgType type, const QString &part)
{
    m_outstanding.append({type, QRegularExpression(QRegularExpression::escape(part)), part});
}

void MessageSentry::expect(QtMsgType type, const QRegularExpression &pattern)
{
    m_outstanding.append({type, pattern, pattern.pattern()});
}

QStringList MessageSentry::unexpected() const
{
    return m_unexpected;
}

bool MessageSentry::isSatisfied() const
{
    return m_outstanding.isEmpty();
}

void MessageSentry::clear()
{
    m_outstanding.clear();
    m_unexpected.clear();
}

void MessageSentry::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isPlatformRemark(message))
        return;
    MessageSentry *sentry = s_current;
    sentry->judge(type, message);
    if (sentry->m_formerSentry == nullptr && sentry->m_formerHandler != nullptr)
        sentry->m_formerHandler(type, context, message);
}

void MessageSentry::judge(QtMsgType type, const QString &message)
{
    const auto announced =
        std::find_if(m_outstanding.begin(), m_outstanding.end(), [&](const Announcement &candidate) {
            return candidate.type == type && candidate.pattern.match(message).hasMatch();
        });
    if (announced != m_outstanding.end())
        m_outstanding.erase(announced);
    else
        m_unexpected.append(QStringLiteral("%1: %2").arg(QString::fromLatin1(typeName(type)), message));
}

} // namespace Tarn::Test
