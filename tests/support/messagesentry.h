// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_MESSAGESENTRY_H
#define TARN_TEST_MESSAGESENTRY_H

#include <QRegularExpression>
#include <QString>
#include <QVector>
#include <QtGlobal>

namespace Tarn::Test {

/*!
 * Fails the test when a message reaches Qt's log that was not announced, or
 * when one that was announced does not come. The verdict falls when the sentry
 * is destroyed. Sentries nest; the innermost alone judges.
 *
 * \code
 * MessageSentry sentry;
 * sentry.expect(QtWarningMsg, QStringLiteral("Your IP Address is Invalid!"));
 * edit.setText(QStringLiteral("1.2.3"));
 * \endcode
 */
class MessageSentry
{
public:
    MessageSentry();
    ~MessageSentry();

    /*! One message of \a type that contains \a part is in order. Announce it twice if it comes twice. */
    void expect(QtMsgType type, const QString &part);
    void expect(QtMsgType type, const QRegularExpression &pattern);

    /*! The messages so far that nobody announced. */
    QStringList unexpected() const;

    /*! Whether every announced message has come. */
    bool isSatisfied() const;

    /*! Forgets all messages and announcements up to now. */
    void clear();

private:
    Q_DISABLE_COPY(MessageSentry)

    struct Announcement
    {
        QtMsgType type;
        QRegularExpression pattern;
        QString text; // as announced
    };

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);
    void judge(QtMsgType type, const QString &message);

    QVector<Announcement> m_outstanding;
    QStringList m_unexpected;
    QtMessageHandler m_formerHandler = nullptr;
    MessageSentry *m_formerSentry = nullptr;
};

} // namespace Tarn::Test

#endif
