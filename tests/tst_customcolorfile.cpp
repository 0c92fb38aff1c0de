// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"

#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>
#include <array>
#include <memory>
#include <numeric>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <tarnwidgets/customcolorfile_p.h>
#include <unistd.h>

using Tarn::Widgets::CustomColorFile;
using Tarn::Widgets::CustomColorText;

namespace {

constexpr int Count = 16;
constexpr qint64 LargestSize = 4 * 1024 * 1024;
constexpr QRgb Untouched = 0xffffffff;

using Colors = std::array<QRgb, Count>;

Colors allOf(QRgb color)
{
    Colors colors;
    colors.fill(color);
    return colors;
}

/* Sixteen in a row. */
Colors from(QRgb first)
{
    Colors colors;
    std::iota(colors.begin(), colors.end(), first);
    return colors;
}

/* The beginning, and all others as they were. */
Colors beginning(std::initializer_list<QRgb> first)
{
    Colors colors = allOf(Untouched);
    std::copy(first.begin(), first.end(), colors.begin());
    return colors;
}

Colors readFrom(const QString &path)
{
    Colors colors = allOf(Untouched);
    CustomColorFile(path).read(colors.data());
    return colors;
}

void writeTo(const QString &path, const Colors &colors)
{
    CustomColorFile(path).write(colors.data());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

bool putContents(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/* What the file has, told without what Qt remembers of a file of that name. */
QMap<QString, QVariant> settingsOnDisk(const QString &path)
{
    const QTemporaryDir elsewhere;
    const QString copy = elsewhere.filePath(QStringLiteral("copy.ini"));
    QMap<QString, QVariant> values;
    if (!QFile::copy(path, copy))
        return values;
    const QSettings settings(copy, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        // Others are not found by what they are called.
        if (!key.isEmpty() && !key.startsWith(QLatin1Char('/')) && !key.endsWith(QLatin1Char('/'))
            && !key.contains(QLatin1String("//")))
            values.insert(key, settings.value(key));
    }
    return values;
}

QByteArray randomText(std::minstd_rand &random)
{
    static const QByteArrayList pieces = {"customColor",
                                          "customColor=1, 2",
                                          "customColor=",
                                          "%63ustomColor",
                                          "%U0063ustomColor=1, 2",
                                          "%",
                                          "=",
                                          "=",
                                          "a=",
                                          "b=x",
                                          "1",
                                          "2",
                                          "300",
                                          "-5",
                                          "+3",
                                          "0x1",
                                          "1.5",
                                          "4294967297",
                                          "18446744073709551616",
                                          " ",
                                          "\t",
                                          "\f",
                                          ",",
                                          ", ",
                                          "\n",
                                          "\n",
                                          "\n",
                                          "\r\n",
                                          "\r",
                                          "\"",
                                          "\\",
                                          "\\\n",
                                          "\\x31",
                                          "\\061",
                                          "\\\"",
                                          "\\q",
                                          ";",
                                          "; x",
                                          "[",
                                          "]",
                                          "[General]",
                                          "[general",
                                          "[B]",
                                          "[%General]",
                                          "@Invalid()",
                                          "@ByteArray(12)",
                                          "@String(7)",
                                          "@@",
                                          "@Size(1 2)"};
    QByteArray text = random() % 9 == 0 ? "\xef\xbb\xbf[" : "";
    for (unsigned i = random() % 14; i > 0; --i)
        text += pieces.at(int(random() % uint(pieces.size())));
    return text;
}

/* What files get written like. */
const QByteArray OneToSixteen("customColor=1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16\n");

/* Not the superuser, whom no permission stops, as long as it lives. */
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_formerUser(geteuid())
    {
        // The real one counts where Qt asks what is allowed; the saved one is the way back.
        m_isReady = m_formerUser != 0 || setresuid(Nobody, Nobody, 0) == 0;
    }

    ~OrdinaryUser()
    {
        if (geteuid() != m_formerUser && setresuid(m_formerUser, m_formerUser, m_formerUser) != 0)
            qFatal("The former user cannot be taken up again");
    }

    bool isReady() const
    {
        return m_isReady;
    }

    /* Gives a file or a directory to the user that this will be. */
    static bool own(const QString &path)
    {
        return geteuid() != 0 || chown(qPrintable(path), Nobody, gid_t(-1)) == 0;
    }

private:
    Q_DISABLE_COPY(OrdinaryUser)

    static constexpr uid_t Nobody = 65534;

    const uid_t m_formerUser;
    bool m_isReady = false;
};

} // namespace

Q_DECLARE_METATYPE(Colors)

class tst_CustomColorFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fileIsWrittenInExactlyThisForm();
    void plainSettingsReadWhatIsWritten();
    void writtenColorsAreReadBack();
    void readingDoesNotMakeTheFile();
    void fileIsReadAsSettingsAreRead_data();
    void fileIsReadAsSettingsAreRead();
    void listOfOneIsRead_data();
    void listOfOneIsRead();
    void everyPrefixOfTheFileIsRead();
    void randomFilesAreTakenAsSettingsTakeThem();
    void anyTextKeepsItsRest_data();
    void anyTextKeepsItsRest();

    void otherSettingsStay();
    void textOfOthersStaysByteByByte_data();
    void textOfOthersStaysByteByByte();
    void byteOrderMarkStaysAtTheBeginning();
    void plainSettingsReadTheListBesideBrokenText();
    void objectsAreNotMade_data();
    void objectsAreNotMade();
    void permissionsOfTheFileStay();
    void linkToTheFileStaysALink_data();
    void linkToTheFileStaysALink();
    void nothingButTheFileIsLeftBehind();

    void fileThatSomebodyLocksIsLeftAlone();
    void lockOfAProgramThatCrashedIsNoHindrance();
    void fileThatIsTooLargeIsLeftAlone();
    void whatIsNoPlainFileIsLeftAlone_data();
    void whatIsNoPlainFileIsLeftAlone();
    void unreadableFileIsLeftAlone();
    void unwritableFileStays();
    void unwritableDirectoryStays();
    void missingDirectoryStaysMissing();

private:
    QString path(const char *name = "customSettingCfg.info") const
    {
        return m_directory->filePath(QLatin1String(name));
    }

    std::optional<QTemporaryDir> m_directory;
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_CustomColorFile::init()
{
    m_directory.emplace();
    QVERIFY(m_directory->isValid());
    m_guard.emplace();
}

void tst_CustomColorFile::cleanup()
{
    m_guard.reset();
    m_directory.reset();
}

void tst_CustomColorFile::fileIsWrittenInExactlyThisForm()
{
    writeTo(path(), from(1));
    QCOMPARE(contents(path()), QByteArray("[General]\n") + OneToSixteen);

    Colors colors = allOf(0xffffffff);
    colors[1] = 0;
    colors[2] = 0x80ff0000;
    writeTo(path(), colors);
    QByteArray expected = "[General]\ncustomColor=4294967295, 0, 2164195328";
    for (int i = 3; i < Count; ++i)
        expected += ", 4294967295";
    QCOMPARE(contents(path()), expected + '\n');
}

void tst_CustomColorFile::plainSettingsReadWhatIsWritten()
{
    writeTo(path(), from(0xfffffff0));
    const QSettings settings(path(), QSettings::IniFormat);
    QCOMPARE(settings.allKeys(), QStringList(QStringLiteral("customColor")));
    const QVariantList list = settings.value(QStringLiteral("/customColor")).toList();
    QCOMPARE(list.size(), Count);
    for (int i = 0; i < Count; ++i)
        QCOMPARE(list.at(i).toString(), QString::number(0xfffffff0 + uint(i)));
}

void tst_CustomColorFile::writtenColorsAreReadBack()
{
    for (const QRgb first : {0x00000000U, 0x7ffffff8U, 0xfffffff0U}) {
        writeTo(path(), from(first));
        QCOMPARE(readFrom(path()), from(first));
    }
}

void tst_CustomColorFile::readingDoesNotMakeTheFile()
{
    QCOMPARE(readFrom(path()), allOf(Untouched));
    QVERIFY(QDir(m_directory->path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void tst_CustomColorFile::fileIsReadAsSettingsAreRead_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Colors>("colors");
    const auto row = [](const char *name, const QByteArray &text, const Colors &colors) {
        QTest::newRow(name) << text << colors;
    };
    const Colors untouched = allOf(Untouched);
    const QByteArray general("[General]\n");

    row("empty file", "", untouched);
    row("no key", general, untouched);
    row("another key", general + "customColour=1, 2\n", untouched);
    row("key in another group", "[Other]\ncustomColor=1, 2\n", untouched);
    row("no value", general + "customColor=\n", untouched);
    row("one number", general + "customColor=5\n", untouched); // no list
    row("one number and a comma", general + "customColor=5,\n", beginning({5, 0}));
    row("three numbers", general + "customColor=1, 2, 3\n", beginning({1, 2, 3}));
    row("sixteen numbers", general + OneToSixteen, from(1));
    row("seventeen numbers", general + OneToSixteen.trimmed() + ", 17\n", from(1));
    row("two thousand numbers", general + OneToSixteen.trimmed() + QByteArray(", 17").repeated(2000),
        from(1));
    row("no group line", "customColor=1, 2\n", beginning({1, 2}));
    row("no line end", general + "customColor=1, 2", beginning({1, 2}));
    row("line ends of Windows", "[General]\r\ncustomColor=1, 2\r\n", beginning({1, 2}));
    row("byte order mark", "\xef\xbb\xbf" + general + "customColor=1, 2\n", beginning({1, 2}));
    row("group line cut off", "[General\ncustomColor=1, 2\n", beginning({1, 2}));
    row("group twice", general + "a=1\n[Other]\nb=2\n" + general + "customColor=1, 2\n", beginning({1, 2}));
    row("key twice", general + "customColor=1, 2\ncustomColor=3, 4\n", beginning({3, 4}));
    row("no blanks", general + "customColor=1,2,3\n", beginning({1, 2, 3}));
    row("many blanks", general + "  customColor  =  1 ,\t2 \n", beginning({1, 2}));
    row("comment", general + "; comment\ncustomColor=1, 2 ; comment\n", beginning({1, 2}));
    row("a quote that is never closed", general + "a=\"\ncustomColor=1, 2\n", untouched);
    row("our key within another value", general + "a=\"\ncustomColor=1, 2\n\"\n", untouched);
    row("our key behind a backslash", general + "a=b\\\ncustomColor=1, 2\n", untouched);
    row("our key behind a quote in a comment", general + "; \"\ncustomColor=1, 2 ; \"\n", beginning({1, 2}));
    row("list over two lines", general + "customColor=1, \\\n2\n", beginning({1, 2}));
    row("escaped key", general + "%63ustomColor=1, 2\n", beginning({1, 2}));
    row("widely escaped key", general + "%U0063ustomColor=1, 2\n", beginning({1, 2}));
    row("escaped with a blank", general + "%U 063ustomColor=1, 2\n", beginning({1, 2}));
    row("no wide escape", general + "%u0063ustomColor=1, 2\n", untouched);
    row("half an escape", general + "%6ustomColor=1, 2\n", untouched);
    row("escaped numbers", general + "customColor=\\x31\\x46, \\062, \\x32\n", beginning({0, 2, 2}));
    row("group line with more behind it", "[B]\nb=1\n[ General ] x ; y\ncustomColor=1, 2\n",
        beginning({1, 2}));
    row("quoted comma", general + "customColor=\"1, 2\", 3\n", beginning({0, 3}));
    row("quoted list", general + "customColor=\"1, 2\"\n", untouched);
    row("quoted numbers", general + "customColor=\"1\", \"2\"\n", beginning({1, 2}));
    row("largest number", general + "customColor=4294967295, 4294967294\n",
        beginning({0xffffffff, 0xfffffffe}));
    row("more than 32 bits", general + "customColor=4294967296, 4294967303\n", beginning({0, 7}));
    row("more than 64 bits", general + "customColor=18446744073709551616, 1\n", beginning({0, 1}));
    row("negative number", general + "customColor=-1, -2\n", beginning({0, 0}));
    row("hexadecimal number", general + "customColor=0xff, 1\n", beginning({0, 1}));
    row("number with a fraction", general + "customColor=1.5, 1\n", beginning({0, 1}));
    row("words", general + "customColor=red, #ff0000, 3\n", beginning({0, 0, 3}));
    row("gaps", general + "customColor=, , 3\n", beginning({0, 0, 3}));
    row("no value of its own", general + "customColor=@Invalid(), 3\n", beginning({0, 3}));
    row("wrong kinds", general + "customColor=@Size(3 4), @Rect(1 2 3 4), 3\n", beginning({0, 0, 3}));
    row("null bytes", general + QByteArray("customColor=1\0, 2\0\0, 3\n", 23), beginning({0, 0, 3}));
    row("binary",
        QByteArray("\x7f"
                   "ELF\2\1\1\0\0\0\xff\xfe\xfd[\n=\n]=,\n\0",
                   22),
        untouched);
}

void tst_CustomColorFile::fileIsReadAsSettingsAreRead()
{
    QFETCH(QByteArray, text);
    QVERIFY(putContents(path(), text));

    // Reading takes what there is, though not more than there is room for, and leaves the file alone,
    QVERIFY(CustomColorText(text).colors.size() <= Count);
    QTEST(readFrom(path()), "colors");
    QCOMPARE(contents(path()), text);

    // and the next write puts any file right.
    writeTo(path(), from(100));
    QCOMPARE(readFrom(path()), from(100));
}

// QSettings writes a list of one value as an object.
void tst_CustomColorFile::listOfOneIsRead_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QVariant &value) { QTest::newRow(name) << value; };
    row("number without a sign", 0xff2c3d5bU); // in bytes that have to be quoted
    row("largest number", 0xffffffffU);
    row("number with a sign", -2);
    row("long number", Q_INT64_C(4294967303));
    row("long number without a sign", Q_UINT64_C(18446744073709551615));
    row("number with a fraction", 7.5);
    row("truth", true);
    row("text", QStringLiteral("4278190335"));
    row("word", QStringLiteral("red"));
    row("bytes", QByteArray("77"));
    row("colour", QColor(1, 2, 3)); // of which no number is made
    row("nothing", QVariant());
}

void tst_CustomColorFile::listOfOneIsRead()
{
    QFETCH(QVariant, value);
    {
        QSettings settings(path(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("/customColor"), QVariantList({value}));
    }
    QVERIFY(contents(path()).contains("@Variant"));
    QCOMPARE(readFrom(path()), beginning({value.toUInt()}));
}

void tst_CustomColorFile::everyPrefixOfTheFileIsRead()
{
    // GIVEN a file as it is written, and any part of it that a cut may leave
    const QByteArray whole = "[General]\n" + OneToSixteen;
    for (int size = 0; size <= whole.size(); ++size) {
        QVERIFY(putContents(path(), whole.left(size)));

        // WHEN it is read
        const Colors colors = readFrom(path());

        // THEN the colours that are there are right up to the last, which may be cut or missing
        bool isWhole = true;
        for (int i = 0; i < Count; ++i) {
            if (isWhole && colors.at(uint(i)) == QRgb(i + 1))
                continue;
            if (isWhole) {
                const QByteArray number = QByteArray::number(i + 1);
                const QByteArray read = QByteArray::number(colors.at(uint(i)));
                QVERIFY2(number.startsWith(read) || colors.at(uint(i)) == 0
                             || colors.at(uint(i)) == Untouched,
                         qPrintable(QString::number(size)));
                isWhole = false;
                continue;
            }
            QCOMPARE(colors.at(uint(i)), Untouched);
        }
    }
}

void tst_CustomColorFile::randomFilesAreTakenAsSettingsTakeThem()
{
    // The generator's sequence is part of the C++ standard, so the texts are the same everywhere.
    std::minstd_rand random(7);
    for (int i = 0; i < 200; ++i) {
        // GIVEN any mixture of what such files are made of
        const QByteArray text = randomText(random);
        const std::unique_ptr<char[]> shown(QTest::toPrettyCString(text.constData(), text.size()));
        QVERIFY(putContents(path(), text));
        QMap<QString, QVariant> before = settingsOnDisk(path());

        // WHEN it is read, THEN the colours are those that QSettings finds
        Colors colors = allOf(Untouched);
        const QVariantList list = before.take(QStringLiteral("customColor")).toList().mid(0, Count);
        std::transform(list.cbegin(), list.cend(), colors.begin(),
                       [](const QVariant &value) { return value.toUInt(); });
        QVERIFY2(readFrom(path()) == colors, shown.get());

        // and WHEN it is written, THEN QSettings finds our colours, and all else as before
        CustomColorText content(text);
        content.colors = QVector<QRgb>(Count, 7);
        QVERIFY(putContents(path(), content.text()));
        QMap<QString, QVariant> after = settingsOnDisk(path());
        QVERIFY2(after.take(QStringLiteral("customColor")).toList().size() == Count, shown.get());
        QVERIFY2(after == before, shown.get());
    }
}

void tst_CustomColorFile::anyTextKeepsItsRest_data()
{
    QTest::addColumn<QByteArray>("text");

    // The generator's sequence is part of the C++ standard, so the texts are the same everywhere.
    std::minstd_rand random(1);
    const QByteArray alphabet("\\,\"=;[]@%x0 \n\r\0customColor[General]1234567890", 45);
    for (int i = 0; i < 500; ++i) {
        QByteArray text;
        while (random() % 400 != 0)
            text += i % 2 == 0 ? alphabet.at(int(random() % uint(alphabet.size()))) : char(random() % 256);
        QTest::addRow("random %d", i) << text;
    }
}

void tst_CustomColorFile::anyTextKeepsItsRest()
{
    QFETCH(QByteArray, text);
    CustomColorText content(text);
    QVERIFY(content.colors.size() <= Count);
    QVERIFY(content.rest.size() <= text.size());
    content.colors = QVector<QRgb>(Count, 0xff123456);
    const CustomColorText again(content.text());
    QCOMPARE(again.colors, content.colors);
    QCOMPARE(again.rest, content.rest);
}

void tst_CustomColorFile::otherSettingsStay()
{
    // GIVEN a file with settings of others, of all kinds that are written as text
    QMap<QString, QVariant> others;
    others.insert(QStringLiteral("aNumber"), 12);
    others.insert(QStringLiteral("zText"), QStringLiteral("a; b, \"c\" = [d] \\ \n @e"));
    others.insert(QStringLiteral("chinese"), QStringLiteral("颜色"));
    others.insert(QStringLiteral("list"), QStringList({QStringLiteral("x"), QStringLiteral("y z")}));
    others.insert(QStringLiteral("emptyList"), QStringList());
    others.insert(QStringLiteral("size"), QSize(3, 4));
    others.insert(QStringLiteral("bytes"), QByteArray("\0\1@\xff", 4));
    others.insert(QStringLiteral("nothing"), QVariant());
    others.insert(QStringLiteral("color"), QColor(1, 2, 3));
    others.insert(QStringLiteral("date"), QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)));
    others.insert(QStringLiteral("map"), QVariantMap({{QStringLiteral("a"), 1}}));
    others.insert(QStringLiteral("Window/geometry"), QRect(1, 2, 3, 4));
    others.insert(QStringLiteral("General/inItsOwnGroup"), true);
    others.insert(QStringLiteral("a b/c%d/\u00e4"), 1.5);
    {
        QSettings settings(path(), QSettings::IniFormat);
        for (auto it = others.cbegin(); it != others.cend(); ++it)
            settings.setValue(it.key(), it.value());
    }
    const QMap<QString, QVariant> before = settingsOnDisk(path());
    QCOMPARE(before.keys(), others.keys());
    QVERIFY(before.value(QStringLiteral("chinese")) == others.value(QStringLiteral("chinese")));

    // WHEN colours are written, once and again
    writeTo(path(), from(50));
    writeTo(path(), from(1));

    // THEN both are there
    QMap<QString, QVariant> after = settingsOnDisk(path());
    QVERIFY(after.remove(QStringLiteral("customColor")) == 1);
    QCOMPARE(after.keys(), before.keys());
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        QVERIFY2(after.value(it.key()) == it.value(), qPrintable(it.key()));
    QVERIFY(contents(path()).contains(OneToSixteen));
}

void tst_CustomColorFile::textOfOthersStaysByteByByte_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("rest");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &rest) {
        QTest::newRow(name) << before << rest;
    };
    const QByteArray general("[General]\n");
    const QByteArray own("customColor=7, 8\n");
    const QByteArray objects(
        "a=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\nd=@DateTime(\\0\\0\\0\\x10\\0)\n");

    row("nothing", "", "");
    row("our list alone", general + own, "");
    row("our list twice", general + own + "a=1\n" + own, "a=1\n");
    row("our list in two groups of the name", general + own + "[B]\nb=1\n" + general + own,
        "[B]\nb=1\n" + general);
    row("our list before the first group", own + "[B]\nb=1\n", "[B]\nb=1\n");
    row("our key in another group", general + "[B]\n" + own, "[B]\n" + own);
    row("our key with a bracket too few", "[General\n" + own + "a=1\n", "a=1\n");
    row("our key in other letters", "customcolor=7, 8\n", "customcolor=7, 8\n");
    row("comments", "; one\n" + general + "; two\n" + own + "; customColor=7, 8\n",
        "; one\n" + general + "; two\n; customColor=7, 8\n");
    row("order and blanks", general + " z = 1\n\n\na =2 ; b\n", " z = 1\n\n\na =2 ; b\n");
    row("noise", "noise\n[[[\n=\n\"\n" + own, "noise\n[[[\n=\n\"\n" + own); // in the group "[["
    row("no line end", general + "a=1", "a=1");
    row("no line end behind our list", general + "a=1\n" + own.trimmed(), "a=1\n");
    row("no line end behind the group", "[General]", "");
    row("line ends of Windows", "[General]\r\ncustomColor=7, 8\r\na=1\r\n", "a=1\r\n");
    row("line ends of old", "a=1\rb=2\r", "a=1\rb=2\r");
    row("other encodings", "a=\xe9\x80\xa0 \xe4\nb=\\x989c\n", "a=\xe9\x80\xa0 \xe4\nb=\\x989c\n");
    row("null bytes", QByteArray("a=\0\0\n\0\n", 7) + own, QByteArray("a=\0\0\n\0\n", 7));
    row("objects", general + objects + own, objects);
    row("a value without an end", "a=\"1\n[b]\n" + own, "a=\"1\n[b]\n" + own);
    row("our key within a value", "a=\"1\n" + own + "2\"\n" + own, "a=\"1\n" + own + "2\"\n");
    row("our key behind a backslash", "a=1\\\n" + own, "a=1\\\n" + own);
    row("our list over two lines", general + "customColor=1, \\\n2\na=1\n", "a=1\n");
    row("our key escaped", general + "%63ustomColor=1, 2\na=1\n", "a=1\n");
    row("our key escaped widely", general + "%U0063ustomColor=1, 2\na=1\n", "a=1\n");
    row("something behind the group", "[General] a=1\nb=2\n", "[General] a=1\nb=2\n");
    row("a comment behind our list", general + "customColor=1, 2 ; kept\na=1\n", "; kept\na=1\n");
    row("a comment behind the group", "[General] ; a\n" + own, "[General] ; a\n");
    row("empty lines", general + "\n\n" + own + "\n", "\n\n\n");
}

void tst_CustomColorFile::textOfOthersStaysByteByByte()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, rest);
    QVERIFY(putContents(path(), before));

    // The list comes first, where nothing that is broken comes before it, in a group that is there only once.
    writeTo(path(), from(1));
    QCOMPARE(contents(path()), "[General]\n" + OneToSixteen + rest);

    // A second write finds the same rest.
    writeTo(path(), from(1));
    QCOMPARE(contents(path()), "[General]\n" + OneToSixteen + rest);
    QCOMPARE(readFrom(path()), from(1));
}

// The mark makes the text UTF-8, and is one at the beginning only.
void tst_CustomColorFile::byteOrderMarkStaysAtTheBeginning()
{
    QVERIFY(putContents(path(), "\xef\xbb\xbf[B]\nb=\xe9\xa2\x9c\n[General]\ncustomColor=7, 8\n"));
    writeTo(path(), from(1));
    QCOMPARE(contents(path()), "\xef\xbb\xbf[General]\n" + OneToSixteen + "[B]\nb=\xe9\xa2\x9c\n[General]\n");
    QCOMPARE(settingsOnDisk(path()).value(QStringLiteral("B/b")).toString(), QStringLiteral("颜"));
    QCOMPARE(readFrom(path()), from(1));
}

void tst_CustomColorFile::plainSettingsReadTheListBesideBrokenText()
{
    QVERIFY(putContents(path(), "[General]\na=\"never closed\n[B\n=\\\n\"\n"));
    writeTo(path(), from(1));
    const QVariant list = settingsOnDisk(path()).value(QStringLiteral("customColor"));
    QCOMPARE(list.toList().size(), Count);
    QCOMPARE(list.toList().constLast().toUInt(), 16U);
}

void tst_CustomColorFile::objectsAreNotMade_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<Colors>("colors");
    // A list that says that it has two thousand million values: QSettings would make room for them.
    const QByteArray huge = R"(@Variant(\0\0\0\t\x7f\xff\xff\xff))";
    QTest::newRow("alone") << huge << allOf(Untouched);
    QTest::newRow("in a list") << "1, " + huge + ", 3" << beginning({1, 0, 3});
    QTest::newRow("in another key") << "1, 2\nother=" + huge << beginning({1, 2});
    QTest::newRow("date without a time zone") << QByteArray(R"(1, 2
d=@DateTime(\0\0\0\x10\0\0\0\0\0%\x8\b1\xdx3\xd9\x33\x80\0))")
                                              << beginning({1, 2});
}

void tst_CustomColorFile::objectsAreNotMade()
{
    QFETCH(QByteArray, value);
    QVERIFY(putContents(path(), "[General]\ncustomColor=" + value + '\n'));
    QTEST(readFrom(path()), "colors");
    writeTo(path(), from(1));
    QCOMPARE(readFrom(path()), from(1));
}

void tst_CustomColorFile::permissionsOfTheFileStay()
{
    writeTo(path(), from(1));
    const QFile::Permissions wanted =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path(), wanted));
    writeTo(path(), from(2));
    QCOMPARE(readFrom(path()), from(2));
    QCOMPARE(QFile::permissions(path()), wanted);
}

void tst_CustomColorFile::linkToTheFileStaysALink_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("to a file") << true;
    QTest::newRow("to a file to be") << false;
}

void tst_CustomColorFile::linkToTheFileStaysALink()
{
    QFETCH(bool, exists);
    const QString target = path("elsewhere.ini");
    if (exists)
        QVERIFY(putContents(target, "[General]\ncustomColor=7, 8\n"));
    QVERIFY(QFile::link(target, path()));
    QCOMPARE(readFrom(path()), exists ? beginning({7, 8}) : allOf(Untouched));

    writeTo(path(), from(1));
    QCOMPARE(QFile::symLinkTarget(path()), target);
    QCOMPARE(contents(target), "[General]\n" + OneToSixteen);
}

void tst_CustomColorFile::nothingButTheFileIsLeftBehind()
{
    writeTo(path(), from(1));
    readFrom(path());
    writeTo(path(), from(2));
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("customSettingCfg.info")));
}

void tst_CustomColorFile::fileThatSomebodyLocksIsLeftAlone()
{
    // GIVEN a file that another program is writing, or that has a lock nobody can open
    writeTo(path(), from(1));
    const QString lockPath = path() + QStringLiteral(".lock");
    {
        QLockFile lock(lockPath);
        QVERIFY(lock.tryLock());
        writeTo(path(), from(2));
    }
    QVERIFY(QDir().mkdir(lockPath));

    // WHEN colours are written, THEN that does not take for ever
    writeTo(path(), from(2));
    QCOMPARE(readFrom(path()), from(1));

    // and when the lock is gone, they are
    QVERIFY(QDir().rmdir(lockPath));
    writeTo(path(), from(2));
    QCOMPARE(readFrom(path()), from(2));
}

void tst_CustomColorFile::lockOfAProgramThatCrashedIsNoHindrance()
{
    // The number of a process that there cannot be, as QLockFile writes it.
    QVERIFY(putContents(path() + QStringLiteral(".lock"),
                        "2147483647\nprogram\n" + QSysInfo::machineHostName().toUtf8() + '\n'));
    writeTo(path(), from(1));
    QCOMPARE(readFrom(path()), from(1));
}

void tst_CustomColorFile::fileThatIsTooLargeIsLeftAlone()
{
    // GIVEN a file of just the largest size, most of it a comment
    QByteArray text = "[General]\ncustomColor=5, 6\n;";
    text += QByteArray(int(LargestSize) - text.size(), 'x');
    QVERIFY(putContents(path(), text));
    QCOMPARE(readFrom(path()), beginning({5, 6}));

    // WHEN it is a byte larger, THEN it is neither read nor written
    text += 'x';
    QVERIFY(putContents(path(), text));
    QCOMPARE(readFrom(path()), allOf(Untouched));
    writeTo(path(), from(1));
    QVERIFY(contents(path()) == text);

    // and so it is with one that takes no room on the disk
    QVERIFY(QFile::resize(path(), qint64(3) * 1024 * 1024 * 1024));
    QCOMPARE(readFrom(path()), allOf(Untouched));
    writeTo(path(), from(1));
    QCOMPARE(QFile(path()).size(), qint64(3) * 1024 * 1024 * 1024);
}

void tst_CustomColorFile::whatIsNoPlainFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("directory") << QStringLiteral("directory");
    QTest::newRow("link to itself") << QStringLiteral("link to itself");
    QTest::newRow("pipe that nobody writes to") << QStringLiteral("pipe");
    QTest::newRow("link to a device without end") << QStringLiteral("device");
}

void tst_CustomColorFile::whatIsNoPlainFileIsLeftAlone()
{
    QFETCH(QString, kind);
    if (kind == QLatin1String("directory"))
        QVERIFY(QDir().mkdir(path()));
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(mkfifo(qPrintable(path()), 0600), 0);
    else if (kind == QLatin1String("link to itself"))
        QVERIFY(QFile::link(path(), path()));
    else
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path()));
    struct stat before;
    QCOMPARE(lstat(qPrintable(path()), &before), 0);

    QCOMPARE(readFrom(path()), allOf(Untouched));
    writeTo(path(), from(1));

    struct stat after;
    QCOMPARE(lstat(qPrintable(path()), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mode, before.st_mode);
}

void tst_CustomColorFile::unreadableFileIsLeftAlone()
{
    // GIVEN a file that may be written but not read
    writeTo(path(), from(1));
    const QByteArray before = contents(path());
    QVERIFY(OrdinaryUser::own(m_directory->path()) && OrdinaryUser::own(path()));
    QVERIFY(QFile::setPermissions(path(), QFile::WriteOwner | QFile::WriteUser));
    {
        const OrdinaryUser user;
        if (!user.isReady())
            QSKIP("This superuser cannot become anybody else");
        QVERIFY(!QFile(path()).open(QIODevice::ReadOnly));

        // WHEN colours are read and written
        QCOMPARE(readFrom(path()), allOf(Untouched));
        writeTo(path(), from(2));
    }

    // THEN what nobody could read is still there
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadUser));
    QCOMPARE(contents(path()), before);
}

void tst_CustomColorFile::unwritableFileStays()
{
    writeTo(path(), from(1));
    QVERIFY(OrdinaryUser::own(m_directory->path()) && OrdinaryUser::own(path()));
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadUser));
    {
        const OrdinaryUser user;
        if (!user.isReady())
            QSKIP("This superuser cannot become anybody else");
        QCOMPARE(readFrom(path()), from(1));
        writeTo(path(), from(2));
    }
    QCOMPARE(contents(path()), "[General]\n" + OneToSixteen);
}

void tst_CustomColorFile::unwritableDirectoryStays()
{
    // GIVEN a directory, with a file and without one, in which nothing may be made
    for (const bool exists : {false, true}) {
        const QString directory = path(exists ? "full" : "empty");
        const QString file = directory + QStringLiteral("/customSettingCfg.info");
        QVERIFY(QDir().mkdir(directory));
        if (exists)
            writeTo(file, from(1));
        QVERIFY(OrdinaryUser::own(m_directory->path()) && OrdinaryUser::own(directory));
        if (exists)
            QVERIFY(OrdinaryUser::own(file));
        QVERIFY(QFile::setPermissions(directory, QFile::ReadOwner | QFile::ExeOwner));
        {
            const OrdinaryUser user;
            if (!user.isReady())
                QSKIP("This superuser cannot become anybody else");

            // WHEN colours are written
            writeTo(file, from(2));
        }

        // THEN it is as it was
        QVERIFY(QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                 exists ? 1 : 0);
        if (exists)
            QCOMPARE(contents(file), "[General]\n" + OneToSixteen);
    }
}

void tst_CustomColorFile::missingDirectoryStaysMissing()
{
    const QString file = path("missing/customSettingCfg.info");
    QCOMPARE(readFrom(file), allOf(Untouched));
    writeTo(file, from(1));
    QVERIFY(!QFile::exists(path("missing")));
}

QTEST_MAIN(tst_CustomColorFile)

#include "tst_customcolorfile.moc"
