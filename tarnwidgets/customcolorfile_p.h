// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Not part of the API: the file that keeps ColorDialog's custom colours, apart so that it can be tested by
// itself.

#ifndef TARN_WIDGETS_CUSTOMCOLORFILE_P_H
#define TARN_WIDGETS_CUSTOMCOLORFILE_P_H

#include <QByteArray>
#include <QRgb>
#include <QString>
#include <QVector>

namespace Tarn::Widgets {

constexpr int CustomColorCount = 16;

/*!
 * \brief An INI file with a list of sixteen colours as numbers, and perhaps with what belongs to others.
 *
 * It may be missing, broken or hostile: what is not ours in it stays as it is,
 * byte by byte, and the file is there whole at any time. One that is larger than
 * four megabytes or is no plain file is neither read nor written. Failures are
 * not told.
 *
 * QSettings reads and writes the same format, but is not up to such files: it
 * makes objects of any kind and size out of what it finds ("@Variant"), to the
 * point of a crash, writes other settings in its own words, and when the disk
 * fills up in the middle of a write, it puts the part in the place of the whole.
 */
class CustomColorFile
{
public:
    explicit CustomColorFile(const QString &path);

    /*! Sets the first of the sixteen \a colors, as many as the file has. What is no number becomes 0. */
    void read(QRgb *colors) const;

    /*! Replaces the list with the sixteen \a colors. */
    void write(const QRgb *colors) const;

private:
    bool isUsable() const;
    bool readText(QByteArray *text) const;

    QString m_path;
};

/*! The text of such a file, taken apart as QSettings does it. */
struct CustomColorText
{
    /*! Takes any text at all. */
    explicit CustomColorText(const QByteArray &text);

    /*! The list comes first, where nothing that is broken comes before it. */
    QByteArray text() const;

    QByteArray mark; //!< Which says at the beginning that the text is UTF-8, or nothing.
    QVector<QRgb> colors; //!< Empty if there is no list.
    QByteArray rest; //!< All but the list and the name of the group that it is in.
};

} // namespace Tarn::Widgets

#endif
