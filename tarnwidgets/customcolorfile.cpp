// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "customcolorfile_p.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <algorithm>

namespace Tarn::Widgets {

namespace {

constexpr qint64 LargestFile = 1LL << 22; // four megabytes
constexpr int LockTimeout = 1000; // milliseconds

const char ColorKey[] = "customColor";

bool isGroup(const QByteArray &line)
{
    return line.trimmed().startsWith('[');
}

/* With or without the closing bracket, as QSettings has it. */
bool isGeneralGroup(const QByteArray &line)
{
    const QByteArray name = line.trimmed().toLower();
    return name == "[general]" || name == "[general";
}

bool isColorLine(const QByteArray &line)
{
    const int equals = line.indexOf('=');
    return equals > 0 && line.left(equals).trimmed() == ColorKey;
}

/* Of a larger number the low bits count, as with QVariant. */
QRgb colorIn(const QByteArray &item)
{
    QByteArray number = item.trimmed();
    if (number.size() > 1 && number.startsWith('"') && number.endsWith('"'))
        number = number.mid(1, number.size() - 2);
    return QRgb(number.toULongLong());
}

/* As many as there are between the commas, up to sixteen. One alone is no list. */
QVector<QRgb> colorsIn(const QByteArray &line)
{
    const int begin = line.indexOf('=') + 1;
    const int comment = line.indexOf(';', begin);
    const QByteArray value = line.mid(begin, comment < 0 ? -1 : comment - begin);
    QVector<QRgb> colors;
    int from = value.contains(',') ? 0 : value.size() + 1;
    while (from <= value.size() && colors.size() < CustomColorCount) {
        const int comma = value.indexOf(',', from);
        const int to = comma < 0 ? value.size() : comma;
        colors.append(colorIn(value.mid(from, to - from)));
        from = to + 1;
    }
    return colors;
}

} // namespace

CustomColorText::CustomColorText(const QByteArray &text)
{
    bool isGeneral = true; // before the first group as well
    for (int begin = 0; begin < text.size();) {
        const int newline = text.indexOf('\n', begin);
        const int end = newline < 0 ? text.size() : newline + 1;
        const QByteArray line = text.mid(begin, end - begin);
        if (isGroup(line))
            isGeneral = isGeneralGroup(line);
        if (isGeneral && isColorLine(line))
            colors = colorsIn(line);
        else if (begin > 0 || !isGeneralGroup(line))
            rest += line;
        begin = end;
    }
}

QByteArray CustomColorText::text() const
{
    QByteArrayList numbers;
    for (const QRgb color : colors)
        numbers.append(QByteArray::number(color));
    return QByteArray("[General]\n") + ColorKey + '=' + numbers.join(", ") + '\n' + rest;
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
    if (QFile::exists(m_path) && !readText(&text))
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
