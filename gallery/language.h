// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_LANGUAGE_H
#define GALLERY_LANGUAGE_H

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace Gallery {

/*!
 * \brief The language of the whole application: the translations of Qt, of the library and of the gallery.
 *
 * Every widget gets a QEvent::LanguageChange when another one is chosen.
 */
class Language : public QObject
{
    Q_OBJECT

public:
    /*! Reads \a directory for the library's translations and the gallery's. */
    explicit Language(const QString &directory, QObject *parent = nullptr);

    /*! The texts are those of the sources then. */
    ~Language() override;

    /*! Those to choose from, as setName() takes them; the first is empty. */
    static QStringList names();

    /*! \a name for a list to choose from: in the language itself, but for the empty one. */
    static QString title(const QString &name);

    QString name() const;

    /*!
     * Changes to the language \a name, for example "zh_CN", or to the system's
     * where it is empty, and so QLocale's default. False where the gallery is not
     * translated into it: the texts are English then.
     */
    bool setName(const QString &name);

Q_SIGNALS:
    void changed();

private:
    bool load(QTranslator *translator, const QLocale &locale, const QString &catalogue,
              const QString &directory);

    const QString m_directory;
    QString m_name;
    QTranslator m_qt;
    QTranslator m_library;
    QTranslator m_gallery;
};

} // namespace Gallery

#endif
