// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The gallery's program, run as a user without a display runs it. Its pages are tst_gallerypages' business.

#include "support/functionguard.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <appearance.h>
#include <cstdlib>
#include <optional>
#include <page.h>
#include <sys/wait.h>

using namespace Gallery;

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

// Without a display, and without anything that Qt would complain of.
constexpr char Environment[] =
    "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u QT_SCALE_FACTOR -u LC_ALL "
    "LANG=C.UTF-8 XDG_RUNTIME_DIR=";

QString quoted(QString text)
{
    text.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString takeText(const QString &path)
{
    QFile file(path);
    const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    file.remove();
    return text;
}

/* Whether not all pixels are the same. */
bool showsSomething(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return true;
        }
    }
    return false;
}

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_directory.emplace();
        QVERIFY(m_directory->isValid());
        m_guard.emplace();
    }

    void cleanup()
    {
        m_guard.reset();
        m_directory.reset();
    }

    void drawsEveryPageAndDialogInEveryTheme();
    void drawsOnlyThePageAndThemeThatAreAskedFor();
    void makesTheDirectoryForItsPictures();
    void drawsTheSamePicturesEveryTime();
    void refusesWhatItDoesNotKnow_data();
    void refusesWhatItDoesNotKnow();
    void complainsOfADirectoryThatItCannotWrite();
    void warnsOfALanguageWithoutTranslation();
    void tellsHelpAndVersionWithoutADisplay_data();
    void tellsHelpAndVersionWithoutADisplay();

private:
    Outcome run(const QStringList &arguments) const;
    QStringList pictures() const;

    std::optional<QTemporaryDir> m_directory;
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

// By the shell, since a child of QProcess does not live to its first instruction under qemu-user.
Outcome tst_Gallery::run(const QStringList &arguments) const
{
    const QString output = m_directory->filePath(QStringLiteral("output"));
    const QString errors = m_directory->filePath(QStringLiteral("errors"));
    QString command = QLatin1String(Environment) + quoted(m_directory->path());
    command += QStringLiteral(" " TARN_LAUNCHER " ") + quoted(QStringLiteral(TARN_GALLERY));
    for (const QString &argument : arguments)
        command += QLatin1Char(' ') + quoted(argument);
    command += QStringLiteral(" >%1 2>%2 </dev/null").arg(quoted(output), quoted(errors));
    const int status = std::system(qPrintable(command));
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, takeText(output), takeText(errors)};
}

QStringList tst_Gallery::pictures() const
{
    return QDir(m_directory->path()).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
}

void tst_Gallery::drawsEveryPageAndDialogInEveryTheme()
{
    // GIVEN what the gallery has
    QStringList expected;
    const QVector<Page> all = pages();
    QVERIFY(all.count() >= 4);
    for (const QString &theme : Appearance::themeNames()) {
        for (const Page &page : all) {
            for (const char *size : {"1280x800", "800x480"})
                expected.append(QStringLiteral("%1-%2-%3.png").arg(page.id, theme, QLatin1String(size)));
            for (const DialogExhibit &dialog : page.dialogs)
                expected.append(QStringLiteral("%1-%2-%3.png").arg(page.id, dialog.id, theme));
        }
    }
    expected.sort();

    // WHEN it draws its pictures
    const Outcome outcome = run({QStringLiteral("--pictures"), m_directory->path()});

    // THEN there is one of each, and it says where, and no more
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.contains(m_directory->path()));
    QCOMPARE(pictures(), expected);

    // THEN they have the size in their name, and something on them
    for (const QString &name : pictures()) {
        const QImage image(m_directory->filePath(name));
        QVERIFY2(showsSomething(image), qPrintable(name));
        const QString size = QStringLiteral("%1x%2").arg(image.width()).arg(image.height());
        if (name.contains(QLatin1String("800")))
            QVERIFY2(name.endsWith(QStringLiteral("-%1.png").arg(size)), qPrintable(name + size));
    }
}

void tst_Gallery::drawsOnlyThePageAndThemeThatAreAskedFor()
{
    const Outcome outcome = run({QStringLiteral("--pictures"), m_directory->path(), QStringLiteral("--page"),
                                 QStringLiteral("separators"), QStringLiteral("--theme=light")});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(pictures(),
             QStringList({QStringLiteral("separators-light-1280x800.png"),
                          QStringLiteral("separators-light-800x480.png")}));
}

void tst_Gallery::makesTheDirectoryForItsPictures()
{
    const QString directory = m_directory->filePath(QStringLiteral("new/deep"));
    const Outcome outcome =
        run({QStringLiteral("--pictures=") + directory, QStringLiteral("--page=separators")});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(!QDir(directory).entryList({QStringLiteral("*.png")}).isEmpty());
}

// Pictures for the manual must not change by themselves.
void tst_Gallery::drawsTheSamePicturesEveryTime()
{
    const QStringList arguments = {QStringLiteral("--page=dialogs"), QStringLiteral("--theme=dark")};
    const QString first = m_directory->filePath(QStringLiteral("first"));
    const QString second = m_directory->filePath(QStringLiteral("second"));
    QCOMPARE(run(arguments + QStringList(QStringLiteral("--pictures=") + first)).exitCode, 0);
    QCOMPARE(run(arguments + QStringList(QStringLiteral("--pictures=") + second)).exitCode, 0);

    const QStringList names = QDir(first).entryList(QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QCOMPARE(QImage(second + QLatin1Char('/') + name), QImage(first + QLatin1Char('/') + name));
}

void tst_Gallery::refusesWhatItDoesNotKnow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("a page") << QStringList{QStringLiteral("--page"), QStringLiteral("nonsense")}
                            << QStringLiteral("no page 'nonsense'; there are: title-bar,");
    QTest::newRow("a theme") << QStringList{QStringLiteral("--theme"), QStringLiteral("pink")}
                             << QStringLiteral("no theme 'pink'; there are: dark, light");
    QTest::newRow("an option") << QStringList{QStringLiteral("--speed")}
                               << QStringLiteral("Unknown option 'speed'");
    QTest::newRow("an argument") << QStringList{QStringLiteral("file.qss")}
                                 << QStringLiteral("unexpected argument 'file.qss'");
    QTest::newRow("an option without its value")
        << QStringList{QStringLiteral("--theme")} << QStringLiteral("Missing value after '--theme'");
}

void tst_Gallery::refusesWhatItDoesNotKnow()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);

    const Outcome outcome = run(QStringList{QStringLiteral("--pictures"), m_directory->path()} + arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.contains(complaint), qPrintable(outcome.errors));
    QCOMPARE(outcome.output, QString());
    QCOMPARE(pictures(), QStringList());
}

void tst_Gallery::complainsOfADirectoryThatItCannotWrite()
{
    // GIVEN a file in the place of the directory
    const QString path = m_directory->filePath(QStringLiteral("file"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));

    const Outcome outcome = run({QStringLiteral("--pictures"), path});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.contains(QStringLiteral("Cannot make the directory ") + path),
             qPrintable(outcome.errors));
}

void tst_Gallery::warnsOfALanguageWithoutTranslation()
{
    const Outcome outcome = run({QStringLiteral("--pictures"), m_directory->path(),
                                 QStringLiteral("--page=separators"), QStringLiteral("--language=eo")});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QStringLiteral("No translation for 'eo': the texts are English\n"));
    QCOMPARE(pictures().count(), 4);
}

void tst_Gallery::tellsHelpAndVersionWithoutADisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("parts");

    QTest::newRow("help") << QStringLiteral("--help")
                          << QStringList{QStringLiteral("--page"), QStringLiteral("--theme"),
                                         QStringLiteral("--language"), QStringLiteral("--pictures"),
                                         QStringLiteral("dark, light")};
    QTest::newRow("version") << QStringLiteral("--version")
                             << QStringList{QStringLiteral("tarnwidgets-gallery " TARN_VERSION)};
}

void tst_Gallery::tellsHelpAndVersionWithoutADisplay()
{
    QFETCH(QString, option);
    QFETCH(QStringList, parts);

    const Outcome outcome = run({option});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.errors, QString());
    for (const QString &part : parts)
        QVERIFY2(outcome.output.contains(part), qPrintable(part));
}

QTEST_MAIN(tst_Gallery)
#include "tst_gallery.moc"
