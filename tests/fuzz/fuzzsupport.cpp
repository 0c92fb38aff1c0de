// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "fuzzsupport.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace Tarn::Fuzz {

namespace {

constexpr char EndOfText = '\xff';
constexpr int FirstCharacter = 0x20;
constexpr int BehindCharacters = 0x7f;
constexpr ushort FirstStandIn = 0xe000;
constexpr ushort LastStandIn = 0xe7ff;
constexpr ushort FirstSurrogate = 0xd800;

int messages = 0;

struct Key
{
    int key;
    Qt::KeyboardModifiers modifiers;
};

/* What the bytes that are no characters press. */
constexpr Key Keys[] = {
    {Qt::Key_Backspace, Qt::NoModifier},  {Qt::Key_Delete, Qt::NoModifier},
    {Qt::Key_Left, Qt::NoModifier},       {Qt::Key_Right, Qt::NoModifier},
    {Qt::Key_Home, Qt::NoModifier},       {Qt::Key_End, Qt::NoModifier},
    {Qt::Key_Left, Qt::ShiftModifier},    {Qt::Key_Right, Qt::ShiftModifier},
    {Qt::Key_Home, Qt::ShiftModifier},    {Qt::Key_End, Qt::ShiftModifier},
    {Qt::Key_A, Qt::ControlModifier},     {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},     {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},     {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
    {Qt::Key_Up, Qt::NoModifier},         {Qt::Key_Down, Qt::NoModifier},
    {Qt::Key_PageUp, Qt::NoModifier},     {Qt::Key_PageDown, Qt::NoModifier},
    {Qt::Key_Return, Qt::NoModifier},     {Qt::Key_Tab, Qt::NoModifier},
    {Qt::Key_Backtab, Qt::ShiftModifier}, {Qt::Key_Backspace, Qt::ControlModifier},
    {Qt::Key_0, Qt::KeypadModifier},      {Qt::Key_5, Qt::AltModifier},
};

void count(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++messages;
}

} // namespace

void require(bool holds, const char *rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "This rule does not hold: %s\n", rule);
    std::abort();
}

int messageCount()
{
    return messages;
}

Input::Input(const std::uint8_t *data, std::size_t size)
    : m_data(reinterpret_cast<const char *>(data), int(size))
{
}

bool Input::atEnd() const
{
    return m_pos >= m_data.size();
}

int Input::byte()
{
    return atEnd() ? 0 : uchar(m_data.at(m_pos++));
}

int Input::below(int count)
{
    return byte() % count;
}

QByteArray Input::bytes()
{
    const int begin = m_pos;
    const int end = m_data.indexOf(EndOfText, begin);
    m_pos = end < 0 ? m_data.size() : end + 1;
    return m_data.mid(begin, end < 0 ? -1 : end - begin);
}

QString Input::text()
{
    QString text = QString::fromUtf8(bytes());
    for (QChar &character : text) {
        if (character >= FirstStandIn && character <= LastStandIn)
            character = QChar(ushort(character.unicode() - FirstStandIn + FirstSurrogate));
    }
    return text;
}

void showActive(QWidget *widget)
{
    widget->show();
    QApplication::setActiveWindow(widget->window());
}

void pressKey(int byte)
{
    QWidget *receiver = QApplication::focusWidget();
    if (!receiver)
        return;
    const bool isCharacter = byte >= FirstCharacter && byte < BehindCharacters;
    const Key other = Keys[uint(byte) % std::size(Keys)];
    const QString text = isCharacter ? QString(QChar(byte)) : QString();
    const int key = isCharacter ? QChar(byte).toUpper().unicode() : other.key;
    const Qt::KeyboardModifiers modifiers = isCharacter ? Qt::KeyboardModifiers() : other.modifiers;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(receiver, &event);
    }
}

bool drop(QWidget *widget, const QMimeData &data)
{
    const QPoint pos = widget->rect().center();
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    QDropEvent drop(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &drop);
    return drop.isAccepted();
}

} // namespace Tarn::Fuzz

/* The application stays to the end of the process: a run may end anywhere. */
extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Tarn::Fuzz::count);
    static const auto *application = new QApplication(argumentCount, arguments);
    Q_UNUSED(application)
    return 0;
}
