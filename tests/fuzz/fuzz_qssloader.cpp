// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Any bytes as the file of a style sheet. A decoder of this file's own says what the text is.

#include "fuzzsupport.h"

#include <QFile>
#include <optional>
#include <sys/mman.h>
#include <tarnwidgets/qssloader.h>
#include <unistd.h>

using Tarn::Fuzz::require;

namespace {

/* A file that has no name and is gone with the process. */
class MemoryFile
{
public:
    MemoryFile()
        : m_descriptor(memfd_create("style", MFD_CLOEXEC))
    {
        require(m_descriptor >= 0, "there is memory for a file");
    }
    ~MemoryFile()
    {
        close(m_descriptor);
    }
    Q_DISABLE_COPY(MemoryFile)

    QString path() const
    {
        return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
    }

    void fill(const QByteArray &bytes) const
    {
        const bool isFilled = ftruncate(m_descriptor, 0) == 0
            && pwrite(m_descriptor, bytes.constData(), size_t(bytes.size()), 0) == bytes.size();
        require(isFilled, "the file can be written");
    }

private:
    const int m_descriptor;
};

/* How many bytes follow the first one of a character, or -1. */
int followerCount(uchar first)
{
    if (first < 0x80)
        return 0;
    if (first < 0xc2)
        return -1; // a follower, or a longer form than need be
    if (first < 0xe0)
        return 1;
    if (first < 0xf0)
        return 2;
    return first < 0xf5 ? 3 : -1;
}

bool isCharacter(uint code, int followers)
{
    constexpr uint Smallest[] = {0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
    return code >= Smallest[followers] && code <= 0x10ffff && !isSurrogate;
}

/* Nothing if the bytes are not UTF-8. */
std::optional<QString> decoded(const QByteArray &bytes)
{
    QString text;
    for (int pos = 0; pos < bytes.size();) {
        const auto first = uchar(bytes.at(pos++));
        const int followers = followerCount(first);
        if (followers < 0 || pos + followers > bytes.size())
            return std::nullopt;
        uint code = followers == 0 ? first : first & (0x3fU >> followers);
        for (int i = 0; i < followers; ++i) {
            const auto next = uchar(bytes.at(pos++));
            if ((next & 0xc0) != 0x80)
                return std::nullopt;
            code = code << 6 | (next & 0x3fU);
        }
        if (!isCharacter(code, followers))
            return std::nullopt;
        if (QChar::requiresSurrogates(code))
            text += QChar(QChar::highSurrogate(code));
        text += QChar(QChar::requiresSurrogates(code) ? QChar::lowSurrogate(code) : ushort(code));
    }
    return text;
}

QByteArray asciiOf(const QString &text)
{
    QByteArray ascii;
    for (const QChar character : text) {
        if (character < QChar(0x80))
            ascii += character.toLatin1();
    }
    return ascii;
}

QByteArray asciiOf(const QByteArray &bytes)
{
    QByteArray ascii;
    for (const char byte : bytes) {
        if (uchar(byte) < 0x80)
            ascii += byte;
    }
    return ascii;
}

QByteArray withoutMark(QByteArray bytes)
{
    return bytes.startsWith("\xef\xbb\xbf") ? bytes.mid(3) : bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const MemoryFile file;
    QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    file.fill(bytes);
    const QString text = QssLoader::load(file.path());

    bytes.replace('\r', QByteArray());
    require(text.isNull() == bytes.isEmpty(), "the text is null where the file is empty");
    const int end = bytes.indexOf('\0');
    bytes = withoutMark(bytes.left(end < 0 ? bytes.size() : end));
    const std::optional<QString> expected = decoded(bytes);
    if (expected) {
        require(text == *expected, "what is UTF-8 is read as it stands");
    } else {
        require(text.contains(QChar::ReplacementCharacter), "what is not UTF-8 is marked");
        require(asciiOf(text) == asciiOf(bytes), "the ASCII characters beside it stay");
    }
    return 0;
}
