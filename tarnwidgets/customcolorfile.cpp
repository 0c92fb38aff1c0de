// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "customcolorfile_p.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QVariant>
#include <algorithm>
#include <cstring>

namespace Tarn::Widgets {

namespace {

constexpr qint64 LargestFile = 1LL << 22; // four megabytes
constexpr int LockTimeout = 1000; // milliseconds

const char ColorKey[] = "customColor";
const char ByteOrderMark[] = "\xef\xbb\xbf";

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || isLineEnd(character);
}

/* Form feeds and the like are no blanks here. */
QByteArray trimmed(const QByteArray &text)
{
    const auto *begin = std::find_if_not(text.cbegin(), text.cend(), isBlank);
    const auto end = std::find_if_not(text.crbegin(), std::make_reverse_iterator(begin), isBlank);
    return QByteArray(begin, int(end.base() - begin));
}

/* The place behind the character there, which may be a line end of two. */
int behindCharacter(const QByteArray &text, int pos)
{
    const QByteArray pair = text.mid(pos, 2);
    return qMin(text.size(), pos + (pair == "\r\n" || pair == "\n\r" ? 2 : 1));
}

/* A line as it is meant: line ends that are quoted or behind a backslash do not end it. */
struct Line
{
    Line(const QByteArray &text, int begin);

    QByteArray content; // without blanks before it, and comments
    QByteArray comment; // with the line end, if there is any
    int equals = -1; // in the content
    int end;
};

Line::Line(const QByteArray &text, int begin)
{
    while (begin < text.size() && isBlank(text.at(begin)) && !isLineEnd(text.at(begin)))
        ++begin;
    end = begin;
    bool isQuoted = false;
    while (end < text.size()) {
        const char character = text.at(end);
        if (!isQuoted && (character == ';' || isLineEnd(character)))
            break;
        if (!isQuoted && character == '=' && equals < 0)
            equals = end - begin;
        if (character == '"')
            isQuoted = !isQuoted;
        end = character == '\\' ? behindCharacter(text, end + 1) : end + 1;
    }
    content = text.mid(begin, end - begin);
    const int contentEnd = end;
    while (end < text.size() && !isLineEnd(text.at(end)))
        ++end;
    const bool hasComment = end > contentEnd;
    end = text.mid(end, 2) == "\r\n" ? end + 2 : qMin(text.size(), end + 1);
    if (hasComment)
        comment = text.mid(contentEnd, end - contentEnd);
}

bool isGroup(const Line &line)
{
    return line.content.startsWith('[');
}

/* With or without the closing bracket. */
bool isGeneralGroup(const Line &line)
{
    const QByteArray name = line.content.mid(1).split(']').constFirst();
    return isGroup(line) && name.trimmed().toLower() == "general";
}

/* A key without its escapes: two digits behind a percent sign, or four behind that and a U. */
QString keyIn(const QByteArray &text)
{
    QString key;
    for (int pos = 0; pos < text.size();) {
        const bool isWide = text.mid(pos, 2) == "%U";
        const int digits = isWide ? 4 : 2;
        const int begin = pos + (isWide ? 2 : 1);
        const QByteArray number = text.mid(begin, digits);
        bool isNumber = false; // signs and blanks may be among its digits
        const ushort code = number.toUShort(&isNumber, 16);
        const bool isEscape = text.at(pos) == '%' && number.size() == digits && isNumber;
        key += isEscape ? QChar(code) : QChar(QLatin1Char(text.at(pos)));
        pos = isEscape ? begin + digits : pos + 1;
    }
    return key;
}

bool isColorList(const Line &line)
{
    if (line.equals < 0)
        return false;
    return keyIn(trimmed(line.content.left(line.equals))) == QLatin1String(ColorKey);
}

/* The first sixteen items of a value, without quotes and escapes. */
class ItemReader
{
public:
    explicit ItemReader(const QByteArray &value);

    const QStringList &items() const
    {
        return m_items;
    }

private:
    void readEscape();
    void readCharacter(int base);
    void skipBlanks();

    const QByteArray m_value;
    int m_pos = 0;
    QStringList m_items = {QString()};
};

ItemReader::ItemReader(const QByteArray &value)
    : m_value(value)
{
    bool isQuoted = false;
    skipBlanks();
    while (m_pos < m_value.size()) {
        const char character = m_value.at(m_pos++);
        if (character == '\\') {
            readEscape();
        } else if (character == '"') {
            isQuoted = !isQuoted;
            if (!isQuoted)
                skipBlanks();
        } else if (character == ',' && !isQuoted) {
            if (m_items.size() == CustomColorCount)
                return;
            m_items.append(QString());
            skipBlanks();
        } else {
            m_items.last() += QLatin1Char(character);
        }
    }
}

void ItemReader::readEscape()
{
    static constexpr char Codes[] = "abfnrtv\"?'\\";
    static constexpr char Characters[] = "\a\b\f\n\r\t\v\"?'\\";
    if (m_pos == m_value.size())
        return;
    const char code = m_value.at(m_pos);
    const bool isOctal = code >= '0' && code <= '7';
    if (!isOctal)
        m_pos = behindCharacter(m_value, m_pos);
    if (isOctal)
        readCharacter(8);
    else if (code == 'x')
        readCharacter(16);
    else if (const void *found = std::memchr(Codes, code, sizeof(Codes) - 1))
        m_items.last() += QLatin1Char(Characters[static_cast<const char *>(found) - Codes]);
}

/* One that is given by its number. */
void ItemReader::readCharacter(int base)
{
    static constexpr char Digits[] = "0123456789abcdef";
    const int begin = m_pos;
    int number = 0;
    for (; m_pos < m_value.size(); ++m_pos) {
        const char digit = m_value.mid(m_pos, 1).toLower().at(0);
        const auto *end = Digits + base;
        const auto *found = std::find(Digits, end, digit);
        if (found == end)
            break;
        number = (number * base + int(found - Digits)) & 0xffff;
    }
    if (m_pos > begin)
        m_items.last() += QChar(number);
}

void ItemReader::skipBlanks()
{
    while (m_pos < m_value.size() && isBlank(m_value.at(m_pos)))
        ++m_pos;
}

/* What stands between the parentheses behind a mark, if all of the item is that. */
QString marked(const QString &item, const char *mark)
{
    const int begin = int(std::strlen(mark)) + 1;
    const bool isMarked =
        item.startsWith(QLatin1String(mark) + QLatin1Char('(')) && item.endsWith(QLatin1Char(')'));
    return isMarked ? item.mid(begin, item.size() - begin - 1) : QString();
}

/* Of a larger number the low bits count. */
QRgb colorIn(const QString &item)
{
    for (const char *mark : {"@ByteArray", "@String"}) {
        const QString text = marked(item.trimmed(), mark);
        if (!text.isEmpty())
            return QVariant(text).toUInt();
    }
    return QVariant(item).toUInt();
}

/* The one value of a list that is written as an object, as lists of one are. Only plain kinds are read:
 * others may be of any size. */
QVector<QRgb> colorsInObject(const QString &object)
{
    static constexpr quint32 PlainKinds[] = {QMetaType::Bool,     QMetaType::Int,       QMetaType::UInt,
                                             QMetaType::LongLong, QMetaType::ULongLong, QMetaType::Double,
                                             QMetaType::QString,  QMetaType::QByteArray};
    const QByteArray bytes = object.toLatin1();
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_0);
    quint32 kind = 0;
    quint32 count = 0;
    quint32 valueKind = 0;
    stream >> kind >> count;
    if (kind != QMetaType::QVariantList || count != 1)
        return {};
    const qint64 begin = stream.device()->pos();
    stream >> valueKind;
    if (std::find(std::cbegin(PlainKinds), std::cend(PlainKinds), valueKind) == std::cend(PlainKinds))
        return {0};
    stream.device()->seek(begin);
    QVariant value;
    stream >> value;
    return {value.toUInt()};
}

/* A single item is no list unless it says so. */
QVector<QRgb> colorsIn(const QByteArray &value)
{
    const QStringList items = ItemReader(value).items();
    if (items.size() == 1)
        return colorsInObject(marked(items.constFirst(), "@Variant"));
    QVector<QRgb> colors;
    for (const QString &item : items)
        colors.append(colorIn(item));
    return colors;
}

/* One that leads to itself: QSaveFile would put a file in its place. */
bool isEndlessLink(QString path)
{
    constexpr int MostLinks = 40; // as many as Linux follows
    for (int i = 0; i <= MostLinks; ++i) {
        const QFileInfo info(path);
        if (!info.isSymLink())
            return false;
        path = info.symLinkTarget();
    }
    return true;
}

} // namespace

CustomColorText::CustomColorText(const QByteArray &text)
{
    if (text.startsWith(ByteOrderMark))
        mark = ByteOrderMark;
    bool isGeneral = true; // before the first group as well
    for (int begin = mark.size(); begin < text.size();) {
        const Line line(text, begin);
        if (isGroup(line))
            isGeneral = isGeneralGroup(line);
        const QByteArray whole = text.mid(begin, line.end - begin);
        const QByteArray header = trimmed(whole).toLower();
        const bool isOurGroup = begin == mark.size() && (header == "[general]" || header == "[general");
        if (isGeneral && !isGroup(line) && isColorList(line)) {
            colors = colorsIn(line.content.mid(line.equals + 1));
            rest += line.comment;
        } else if (!isOurGroup) {
            rest += whole;
        }
        begin = line.end;
    }
}

QByteArray CustomColorText::text() const
{
    QByteArrayList numbers;
    for (const QRgb color : colors)
        numbers.append(QByteArray::number(color));
    return mark + "[General]\n" + ColorKey + '=' + numbers.join(", ") + '\n' + rest;
}

CustomColorFile::CustomColorFile(const QString &path)
    : m_path(path)
{
}

/* Reading a pipe or a device might not end. */
bool CustomColorFile::isUsable() const
{
    const QFileInfo info(m_path);
    return info.isFile() && info.size() <= LargestFile;
}

bool CustomColorFile::readText(QByteArray *text) const
{
    QFile file(m_path);
    if (!isUsable() || !file.open(QIODevice::ReadOnly))
        return false;
    *text = file.readAll();
    return text->size() == file.size();
}

void CustomColorFile::read(QRgb *colors) const
{
    QByteArray text;
    if (!readText(&text))
        return;
    const QVector<QRgb> found = CustomColorText(text).colors;
    std::copy(found.cbegin(), found.cend(), colors);
}

void CustomColorFile::write(const QRgb *colors) const
{
    // The lock that QSettings uses.
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(LockTimeout))
        return;
    QByteArray text;
    if (isEndlessLink(m_path) || (QFile::exists(m_path) && !readText(&text)))
        return;
    CustomColorText content(text);
    content.colors = QVector<QRgb>(colors, colors + CustomColorCount);
    text = content.text();

    // A disk may fill up in the middle of the text. QSaveFile does not mind unless it is asked to flush.
    QSaveFile file(m_path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush())
        file.commit();
}

} // namespace Tarn::Widgets
