// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The custom colours' file between programs, and when things go wrong while it is written.

#include "support/functionguard.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

namespace {

constexpr int Timeout = 60000; // milliseconds; an emulated program starts slowly
constexpr QRgb One = 0xff110000;
constexpr QRgb Other = 0xff220000;

/* Sixteen in a row, as the file has them. */
QByteArray line(QRgb first)
{
    QByteArrayList numbers;
    for (QRgb color = first; color < first + 16; ++color)
        numbers.append(QByteArray::number(color));
    return "customColor=" + numbers.join(", ") + '\n';
}

/* The same as the program prints them. */
QByteArray row(QRgb first)
{
    QByteArrayList numbers;
    for (QRgb color = first; color < first + 16; ++color)
        numbers.append(QByteArray::number(color));
    return numbers.join(' ');
}

/* One in which Qt has nothing to complain of. */
QProcessEnvironment environment(const QString &directory)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory);
    return environment;
}

/* A run of the program with a dialog. */
class Program
{
public:
    Program(const QString &path, const QStringList &arguments)
    {
        m_process.setProcessEnvironment(environment(QFileInfo(path).path()));
        m_process.start(path, arguments);
    }

    /* Whether it has got as far as to wait. */
    bool isReady()
    {
        while (m_lines.isEmpty() || m_lines.constLast() != "ready") {
            if (!m_process.canReadLine() && !m_process.waitForReadyRead(Timeout))
                return false;
            while (m_process.canReadLine())
                m_lines.append(m_process.readLine().trimmed());
        }
        return true;
    }

    QByteArray colors() const
    {
        return m_lines.value(0);
    }

    void tellToClose()
    {
        m_process.write("\n");
        m_process.waitForBytesWritten(Timeout);
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(Timeout);
    }

    bool hasEnded(int exitCode = 0)
    {
        return (m_process.state() == QProcess::NotRunning || m_process.waitForFinished(Timeout))
            && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == exitCode;
    }

    QByteArray errors()
    {
        return m_process.readAllStandardError();
    }

private:
    QProcess m_process;
    QByteArrayList m_lines;
};

} // namespace

class tst_ColorDialog_processes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nextProgramFindsTheColors();
    void otherProgramReadsTheFile();
    void fileIsWholeAtAnyTime();
    void ofTwoThatCloseAtOnceOneWins();
    void settingsWrittenMeanwhileStay();
    void writeThatFailsLeavesTheFile_data();
    void writeThatFailsLeavesTheFile();
    void crashInTheMiddleOfAWriteLeavesTheFile_data();
    void crashInTheMiddleOfAWriteLeavesTheFile();
    void fileThatCannotBeReadToItsEndStays();
    void fullDiskLeavesTheFile_data();
    void fullDiskLeavesTheFile();

private:
    QString program() const
    {
        return m_directory->filePath(QStringLiteral("program"));
    }

    QString file() const
    {
        return m_directory->filePath(QStringLiteral("customSettingCfg.info"));
    }

    QByteArray contents() const
    {
        QFile text(file());
        return text.open(QIODevice::ReadOnly) ? text.readAll() : QByteArray();
    }

    bool putContents(const QByteArray &bytes) const
    {
        QFile text(file());
        return text.open(QIODevice::WriteOnly) && text.write(bytes) == bytes.size();
    }

    /* What is there besides the program. */
    QStringList files() const
    {
        QStringList names =
            QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll(QStringLiteral("program"));
        return names;
    }

    std::optional<QTemporaryDir> m_directory; // of the program, and so of its file
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_ColorDialog_processes::init()
{
    m_directory.emplace();
    QVERIFY(m_directory->isValid());
    QVERIFY(QFile::copy(QStringLiteral(TARN_COLORDIALOGPROCESS), program()));
    m_guard.emplace();
}

void tst_ColorDialog_processes::cleanup()
{
    m_guard.reset();
    m_directory.reset();
}

void tst_ColorDialog_processes::nextProgramFindsTheColors()
{
    // GIVEN a program that closes its dialog for the first time
    Program first(program(), {QString::number(One)});
    QVERIFY(first.isReady());
    QCOMPARE(first.colors(), QByteArray("4294967295 ").repeated(16).trimmed());
    QVERIFY(files().isEmpty());
    first.tellToClose();
    QVERIFY(first.hasEnded());
    QCOMPARE(first.errors(), QByteArray());

    // WHEN it runs again, THEN it has the colours
    Program second(program(), {QStringLiteral("keep")});
    QVERIFY(second.isReady());
    QCOMPARE(second.colors(), row(One));
    second.tellToClose();
    QVERIFY(second.hasEnded());
    QCOMPARE(contents(), "[General]\n" + line(One));
}

void tst_ColorDialog_processes::otherProgramReadsTheFile()
{
    // This test is that program: it has Qt's settings and nothing of the library.
    Program writer(program(), {QString::number(One)});
    QVERIFY(writer.isReady());
    writer.tellToClose();
    QVERIFY(writer.hasEnded());
    const QSettings settings(file(), QSettings::IniFormat);
    const QVariantList list = settings.value(QStringLiteral("/customColor")).toList();
    QCOMPARE(list.size(), 16);
    for (int i = 0; i < 16; ++i)
        QCOMPARE(list.at(i).toUInt(), One + QRgb(i));
    QCOMPARE(files(), QStringList(QStringLiteral("customSettingCfg.info")));
}

void tst_ColorDialog_processes::fileIsWholeAtAnyTime()
{
    // GIVEN a program that writes the file over and over
    Program writer(program(), {QStringLiteral("forever")});
    QVERIFY(writer.isReady());

    // WHEN it is looked at, THEN one of those writes is there, and all of it
    QSet<QByteArray> seen;
    QElapsedTimer timer;
    timer.start();
    while (seen.size() < 20) {
        QVERIFY(!timer.hasExpired(Timeout));
        const QByteArray text = contents();
        if (text.isEmpty() && seen.isEmpty())
            continue; // not written yet
        QVERIFY(text.startsWith("[General]\ncustomColor="));
        const QRgb first = text.mid(22, text.indexOf(',') - 22).toUInt();
        QCOMPARE(text, "[General]\n" + line(first));
        seen.insert(text);
    }

    // and so it is when the program is killed, whatever it was doing; the next one is not hindered
    writer.kill();
    const QByteArray text = contents();
    QCOMPARE(text, "[General]\n" + line(text.mid(22, text.indexOf(',') - 22).toUInt()));
    Program next(program(), {QString::number(One)});
    QVERIFY(next.isReady());
    next.tellToClose();
    QVERIFY(next.hasEnded());
    QCOMPARE(contents(), "[General]\n" + line(One));
}

void tst_ColorDialog_processes::ofTwoThatCloseAtOnceOneWins()
{
    for (int round = 0; round < 10; ++round) {
        // GIVEN two programs with one file, in which there is something of a third
        QVERIFY(putContents("[General]\nkey=value\n\n[Group]\nlist=1, b\n"));
        Program one(program(), {QString::number(One)});
        Program other(program(), {QString::number(Other)});
        QVERIFY(one.isReady() && other.isReady());

        // WHEN both dialogs close
        one.tellToClose();
        other.tellToClose();
        QVERIFY(one.hasEnded() && other.hasEnded());

        // THEN the file has the colours of one of them, and what it had before
        const QByteArray end = "key=value\n\n[Group]\nlist=1, b\n";
        QVERIFY(contents() == "[General]\n" + line(One) + end
                || contents() == "[General]\n" + line(Other) + end);
        QCOMPARE(files(), QStringList(QStringLiteral("customSettingCfg.info")));
    }
}

void tst_ColorDialog_processes::settingsWrittenMeanwhileStay()
{
    // GIVEN a program whose dialog has read the file
    QVERIFY(putContents("[General]\nbefore=1\n"));
    Program writer(program(), {QString::number(One)});
    QVERIFY(writer.isReady());

    // WHEN another one adds to the file before the dialog closes
    {
        QSettings settings(file(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("meanwhile"), 2);
    }
    writer.tellToClose();
    QVERIFY(writer.hasEnded());

    // THEN all of it is there
    QCOMPARE(contents(), "[General]\n" + line(One) + "before=1\nmeanwhile=2\n");
}

void tst_ColorDialog_processes::writeThatFailsLeavesTheFile_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("from the first byte on") << 0;
    QTest::newRow("after some bytes") << 20;
    QTest::newRow("after the lock") << 100;
    QTest::newRow("before the last byte") << QByteArray("[General]\n").size() + line(One).size() - 1;
}

void tst_ColorDialog_processes::writeThatFailsLeavesTheFile()
{
    QFETCH(int, size);
    const QByteArray before = "[General]\n" + line(Other) + "key=value\n";
    QVERIFY(putContents(before));
    Program writer(program(), {QString::number(One), QStringLiteral("fail"), QString::number(size)});
    QVERIFY(writer.isReady());
    writer.tellToClose();
    QVERIFY(writer.hasEnded());
    QCOMPARE(contents(), before);
    QCOMPARE(files(), QStringList(QStringLiteral("customSettingCfg.info")));
}

void tst_ColorDialog_processes::crashInTheMiddleOfAWriteLeavesTheFile_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("with a file") << true;
    QTest::newRow("without one") << false;
}

void tst_ColorDialog_processes::crashInTheMiddleOfAWriteLeavesTheFile()
{
    QFETCH(bool, exists);

    // GIVEN a program that ends abruptly when it has written a hundred bytes
    const QByteArray before = exists ? "[General]\n" + line(Other) : QByteArray();
    if (exists)
        QVERIFY(putContents(before));
    Program writer(program(), {QString::number(One), QStringLiteral("crash"), QStringLiteral("100")});
    QVERIFY(writer.isReady());

    // WHEN it closes its dialog
    writer.tellToClose();
    QVERIFY(writer.hasEnded(1));

    // THEN there is what there was
    QCOMPARE(contents(), before);
    QCOMPARE(QFile::exists(file()), exists);

    // and the next program writes its colours
    Program next(program(), {QString::number(One)});
    QVERIFY(next.isReady());
    next.tellToClose();
    QVERIFY(next.hasEnded());
    QCOMPARE(contents(), "[General]\n" + line(One));
}

void tst_ColorDialog_processes::fileThatCannotBeReadToItsEndStays()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The address sanitizer has a read() of its own, which does not fail");
#endif
    const QByteArray before = "[General]\n" + line(Other) + "key=value\n";
    QVERIFY(putContents(before));
    Program writer(program(), {QString::number(One), QStringLiteral("misread"), QStringLiteral("200")});
    QVERIFY(writer.isReady());
    QCOMPARE(writer.colors(), row(Other));
    writer.tellToClose();
    QVERIFY(writer.hasEnded());
    QCOMPARE(contents(), before);
    QCOMPARE(files(), QStringList(QStringLiteral("customSettingCfg.info")));
}

void tst_ColorDialog_processes::fullDiskLeavesTheFile_data()
{
    QTest::addColumn<int>("freeBlocks");
    QTest::addColumn<int>("otherBytes");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("not a block") << 0 << 0 << false;
    QTest::newRow("a block for the lock alone") << 1 << 0 << false;
    QTest::newRow("enough") << 2 << 0 << true;
    QTest::newRow("enough for the first block of three") << 2 << 10000 << false;
    QTest::newRow("enough for two blocks of three") << 3 << 10000 << false;
    QTest::newRow("enough for three blocks") << 4 << 10000 << true;
}

void tst_ColorDialog_processes::fullDiskLeavesTheFile()
{
    QFETCH(int, freeBlocks);
    QFETCH(int, otherBytes);
    QFETCH(bool, isWritten);
    QProcess process;
    process.setProcessEnvironment(environment(m_directory->path()));
    process.start(QStringLiteral("unshare"),
                  {QStringLiteral("-rm"), QStringLiteral("mount"), QStringLiteral("-t"),
                   QStringLiteral("tmpfs"), QStringLiteral("tmpfs"), m_directory->path()});
    if (!process.waitForFinished(Timeout) || process.exitCode() != 0)
        QSKIP("This system lets no program have a file system of its own");

    // GIVEN a disk with the program and its file and with room for that many blocks
    const QByteArray others = "key=" + QByteArray(otherBytes, 'x') + '\n';
    const QByteArray before = "[General]\n" + line(Other) + others;
    QStringList arguments = {QStringLiteral("-rm"), QStringLiteral(TARN_ON_TINY_DISK), m_directory->path(),
                             QStringLiteral(TARN_COLORDIALOGPROCESS), QString::number(freeBlocks)};
    arguments += {program(), QString::number(One)};

    // WHEN its dialog closes
    process.start(QStringLiteral("unshare"), arguments);
    process.write(before);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(Timeout));

    // THEN the file is the old one or the new one, and nothing else is left there
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.readAllStandardOutput(),
             (isWritten ? "[General]\n" + line(One) + others : before)
                 + "customSettingCfg.info\nfilling\nprogram\n");
}

QTEST_MAIN(tst_ColorDialog_processes)

#include "tst_colordialog_processes.moc"
