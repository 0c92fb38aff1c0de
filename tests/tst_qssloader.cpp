// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/messagesentry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>
#include <memory>
#include <optional>
#include <tarnwidgets/qssloader.h>
#include <type_traits>

namespace {

constexpr const char *ResourcePath = ":/tst_qssloader.qss";

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int openFileCount()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

} // namespace

class tst_QssLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void textOfTheFileIsReturned_data();
    void textOfTheFileIsReturned();
    void pathIsTakenAsItStands_data();
    void pathIsTakenAsItStands();
    void fileThatCannotBeReadGivesNull_data();
    void fileThatCannotBeReadGivesNull();
    void pathThatIsNoneGivesNull_data();
    void pathThatIsNoneGivesNull();
    void emptyFileGivesNull();
    void fileThatBeginsWithNulGivesAnEmptyTextThatIsNotNull();
    void resourceIsReadByItsFullPath();
    void resourcePrefixIsNotAdded();
    void relativePathStartsAtTheWorkingDirectoryOnly();
    void fileOfUnknownSizeIsReadToItsEnd();
    void bigFileIsReadWhole();
    void fileIsReadAfreshEachTime();
    void fileIsClosedAgain();
    void loadedTextStylesAWidget();
    void classHasOnlyItsStaticFunction();

private:
    QString path(const QString &name) const
    {
        return m_directory->filePath(name);
    }

    // Every function runs under the sentry: whatever happens to the file, nothing is logged.
    std::optional<Tarn::Test::MessageSentry> m_sentry;
    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_QssLoader::init()
{
    m_sentry.emplace();
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_QssLoader::cleanup()
{
    m_directory.reset();
    m_sentry.reset();
}

void tst_QssLoader::textOfTheFileIsReturned_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("one rule") << QByteArrayLiteral("QWidget { color: red; }")
                              << QStringLiteral("QWidget { color: red; }");
    QTest::newRow("plain line feeds") << QByteArrayLiteral("a\nb\n\nc\n") << QStringLiteral("a\nb\n\nc\n");
    QTest::newRow("Windows line ends")
        << QByteArrayLiteral("a\r\nb\r\n\r\nc\r\n") << QStringLiteral("a\nb\n\nc\n");
    QTest::newRow("mixed line ends") << QByteArrayLiteral("a\r\nb\nc\r\n") << QStringLiteral("a\nb\nc\n");
    QTest::newRow("no line end at the end") << QByteArrayLiteral("a\r\nb") << QStringLiteral("a\nb");
    QTest::newRow("blanks at both ends") << QByteArrayLiteral(" \t a \t ") << QStringLiteral(" \t a \t ");
    QTest::newRow("nothing but a line end") << QByteArrayLiteral("\n") << QStringLiteral("\n");
    QTest::newRow("UTF-8, two bytes a letter") << QByteArrayLiteral("/* gr\xc3\xb6\xc3\x9f"
                                                                    "e */")
                                               << QStringLiteral("/* gr\u00f6\u00dfe */");
    QTest::newRow("UTF-8, three bytes a letter")
        << QByteArrayLiteral("\xe8\x89\xb2") << QStringLiteral("\u8272");
    QTest::newRow("UTF-8, four bytes a letter")
        << QByteArrayLiteral("\xf0\x9f\x97\x97") << QStringLiteral("\U0001F5D7");
    QTest::newRow("a byte order mark goes")
        << QByteArrayLiteral("\xef\xbb\xbfQWidget {}") << QStringLiteral("QWidget {}");
    QTest::newRow("bytes that are not UTF-8") << QByteArrayLiteral("a\xff"
                                                                   "b")
                                              << QStringLiteral("a\ufffdb");
    QTest::newRow("ends at the first NUL byte")
        << QByteArray("before\0after\0", 13) << QStringLiteral("before");
    QTest::newRow("NUL byte at the end") << QByteArray("all\0", 4) << QStringLiteral("all");
    QTest::newRow("nothing is substituted")
        << QByteArrayLiteral("@ground; %1 $HOME ${x} ~/x url(:/a.png) url(b.png) \\a &amp;")
        << QStringLiteral("@ground; %1 $HOME ${x} ~/x url(:/a.png) url(b.png) \\a &amp;");
}

void tst_QssLoader::textOfTheFileIsReturned()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);

    // GIVEN a file of these bytes
    const QString file = path(QStringLiteral("sheet.qss"));
    QVERIFY(write(file, bytes));

    // THEN this is its text
    QCOMPARE(QssLoader::load(file), text);
}

void tst_QssLoader::pathIsTakenAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks at both ends") << QStringLiteral(" sheet.qss ");
    QTest::newRow("a percent sign") << QStringLiteral("%41%20.qss");
    QTest::newRow("a backslash") << QStringLiteral("sheet\\dark.qss");
    QTest::newRow("a variable and a home") << QStringLiteral("~$HOME${HOME}.qss");
    QTest::newRow("wild cards") << QStringLiteral("*?[a].qss");
    QTest::newRow("a line feed") << QStringLiteral("sheet\n.qss");
    QTest::newRow("letters beyond ASCII") << QStringLiteral("\u8272\u00e4.qss");
}

void tst_QssLoader::pathIsTakenAsItStands()
{
    QFETCH(QString, name);
    QVERIFY(write(path(name), QByteArrayLiteral("QWidget {}")));
    QCOMPARE(QssLoader::load(path(name)), QStringLiteral("QWidget {}"));
}

void tst_QssLoader::fileThatCannotBeReadGivesNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.qss");
    QTest::newRow("in a missing directory") << QStringLiteral("missing/sheet.qss");
    QTest::newRow("below a file") << QStringLiteral("sheet.qss/sheet.qss");
    QTest::newRow("a directory") << QStringLiteral("directory");
    QTest::newRow("a link to nowhere") << QStringLiteral("nowhere.qss");
    QTest::newRow("a link to itself") << QStringLiteral("loop.qss");
    QTest::newRow("a name that is too long") << QString(5000, QLatin1Char('x'));
    QTest::newRow("another case") << QStringLiteral("SHEET.QSS");
    QTest::newRow("no suffix") << QStringLiteral("sheet");
}

void tst_QssLoader::fileThatCannotBeReadGivesNull()
{
    QFETCH(QString, name);

    // GIVEN a directory in which one other file can be read
    const QString readable = path(QStringLiteral("sheet.qss"));
    QVERIFY(write(readable, QByteArrayLiteral("QWidget {}")));
    QVERIFY(QDir(m_directory->path()).mkdir(QStringLiteral("directory")));
    QVERIFY(QFile::link(path(QStringLiteral("gone.qss")), path(QStringLiteral("nowhere.qss"))));
    QVERIFY(QFile::link(path(QStringLiteral("loop.qss")), path(QStringLiteral("loop.qss"))));
    QVERIFY(!QssLoader::load(readable).isEmpty());

    // THEN this one gives a null text, not an empty one
    QVERIFY(QssLoader::load(path(name)).isNull());
}

void tst_QssLoader::pathThatIsNoneGivesNull_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("the root directory") << QStringLiteral("/");
    QTest::newRow("a missing resource") << QStringLiteral(":/missing.qss");
    QTest::newRow("a NUL character") << QString(QChar(0));
    QTest::newRow("a NUL character behind a file's path")
        << QString::fromLatin1(ResourcePath) + QChar(0) + QStringLiteral("x");
    QTest::newRow("a URL") << QStringLiteral("file:///proc/self/status");
}

void tst_QssLoader::pathThatIsNoneGivesNull()
{
    QFETCH(QString, path);
    QVERIFY(QssLoader::load(path).isNull());
}

void tst_QssLoader::emptyFileGivesNull()
{
    const QString file = path(QStringLiteral("empty.qss"));
    QVERIFY(write(file, QByteArray()));
    QVERIFY(QFile::exists(file));
    QVERIFY(QssLoader::load(file).isNull());
}

void tst_QssLoader::fileThatBeginsWithNulGivesAnEmptyTextThatIsNotNull()
{
    const QString file = path(QStringLiteral("nul.qss"));
    QVERIFY(write(file, QByteArray("\0QWidget {}", 11)));
    const QString text = QssLoader::load(file);
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
}

void tst_QssLoader::resourceIsReadByItsFullPath()
{
    const QString text = QssLoader::load(QString::fromLatin1(ResourcePath));
    QVERIFY(text.endsWith(QStringLiteral("QWidget { color: red; }\n")));
}

void tst_QssLoader::resourcePrefixIsNotAdded()
{
    // GIVEN a name that only the resources know, and an empty working directory
    QVERIFY(QFile::exists(QString::fromLatin1(ResourcePath)));
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));

    // WHEN it is asked for without the prefix
    const QString bare = QssLoader::load(QStringLiteral("tst_qssloader.qss"));
    const QString rooted = QssLoader::load(QStringLiteral("/tst_qssloader.qss"));
    QVERIFY(QDir::setCurrent(former));

    // THEN nothing is found
    QVERIFY(bare.isNull());
    QVERIFY(rooted.isNull());
}

void tst_QssLoader::relativePathStartsAtTheWorkingDirectoryOnly()
{
    // GIVEN a relative path that leads to a file from the working directory, and from nowhere else
    QVERIFY(write(path(QStringLiteral("sheet.qss")), QByteArrayLiteral("QWidget {}")));
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));

    // WHEN it is loaded from there, and from the application's directory
    const QString here = QssLoader::load(QStringLiteral("sheet.qss"));
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const QString besideTheProgram = QssLoader::load(program);
    QVERIFY(QDir::setCurrent(former));

    // THEN the working directory alone counts
    QCOMPARE(here, QStringLiteral("QWidget {}"));
    QVERIFY(besideTheProgram.isNull());
}

void tst_QssLoader::fileOfUnknownSizeIsReadToItsEnd()
{
    const QString file = QStringLiteral("/proc/self/status");
    QCOMPARE(QFileInfo(file).size(), qint64(0));
    const QString text = QssLoader::load(file);
    QVERIFY(text.startsWith(QStringLiteral("Name:")));
    QVERIFY(text.endsWith(QLatin1Char('\n')));
}

void tst_QssLoader::bigFileIsReadWhole()
{
    // GIVEN a file of eight million bytes, with a mark at its end
    QByteArray bytes;
    while (bytes.size() < 8000000)
        bytes.append("QWidget#widget { color: #123456; }\r\n");
    const int lines = bytes.count('\n');
    bytes.append("/* end */");
    const QString file = path(QStringLiteral("big.qss"));
    QVERIFY(write(file, bytes));

    // WHEN it is loaded
    const QString text = QssLoader::load(file);

    // THEN nothing is missing but one carriage return a line
    QCOMPARE(text.size(), bytes.size() - lines);
    QCOMPARE(text.count(QLatin1Char('\n')), lines);
    QVERIFY(text.endsWith(QStringLiteral("; }\n/* end */")));
}

void tst_QssLoader::fileIsReadAfreshEachTime()
{
    const QString file = path(QStringLiteral("sheet.qss"));
    QVERIFY(write(file, QByteArrayLiteral("first")));
    QCOMPARE(QssLoader::load(file), QStringLiteral("first"));
    QVERIFY(write(file, QByteArrayLiteral("the second")));
    QCOMPARE(QssLoader::load(file), QStringLiteral("the second"));
}

void tst_QssLoader::fileIsClosedAgain()
{
    const QString file = path(QStringLiteral("sheet.qss"));
    QVERIFY(write(file, QByteArrayLiteral("QWidget {}")));
    const int before = openFileCount();
    QVERIFY(before > 2);
    for (int i = 0; i < 10; ++i)
        QVERIFY(!QssLoader::load(file).isNull());
    QCOMPARE(openFileCount(), before);
}

void tst_QssLoader::loadedTextStylesAWidget()
{
    // GIVEN a file as an editor on Windows saves it: byte order mark, carriage returns
    const QString file = path(QStringLiteral("sheet.qss"));
    QVERIFY(write(file,
                  QByteArrayLiteral("\xef\xbb\xbf"
                                    "QWidget {\r\n    min-width: 123px;\r\n}\r\n")));

    // WHEN its text is applied
    QWidget widget;
    widget.setStyleSheet(QssLoader::load(file));
    widget.ensurePolished();

    // THEN its first rule holds
    QCOMPARE(widget.minimumWidth(), 123);
}

void tst_QssLoader::classHasOnlyItsStaticFunction()
{
    static_assert(std::is_empty_v<QssLoader>);
    static_assert(!std::is_polymorphic_v<QssLoader>);
    static_assert(std::is_same_v<decltype(&QssLoader::load), QString (*)(const QString &)>);
}

QTEST_MAIN(tst_QssLoader)

#include "tst_qssloader.moc"
