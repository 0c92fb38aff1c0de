// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// Little memory, and much that is to go into it. Where Qt's own containers get none they end the program, as
// in every Qt program; what is tested here is the rest.

#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/modalkinds.h"

#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <sys/resource.h>
#include <tarnwidgets/colorpicker.h>
#include <tarnwidgets/colorshower.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/iplineedit.h>
#include <unistd.h>

using namespace Tarn::Test;
using namespace Tarn::Widgets;

namespace {

constexpr std::size_t Kilobyte = 1024;
constexpr std::size_t Megabyte = 1024 * Kilobyte;

/* While it lives, the process cannot grow by more than so many bytes. */
class MemoryLimit
{
public:
    explicit MemoryLimit(std::size_t more)
    {
        getrlimit(RLIMIT_AS, &m_former);
        const rlimit limit = {size() + more, m_former.rlim_max};
        m_isSet = setrlimit(RLIMIT_AS, &limit) == 0;
    }

    ~MemoryLimit()
    {
        setrlimit(RLIMIT_AS, &m_former);
    }

    bool isSet() const
    {
        return m_isSet;
    }

private:
    Q_DISABLE_COPY(MemoryLimit)

    static std::size_t size()
    {
        QFile pages(QStringLiteral("/proc/self/statm"));
        pages.open(QIODevice::ReadOnly);
        return pages.readLine().split(' ').value(0).toULong() * std::size_t(sysconf(_SC_PAGESIZE));
    }

    rlimit m_former = {};
    bool m_isSet = false;
};

/* While it lives there is memory for small things only. */
class Shortage
{
public:
    static constexpr std::size_t Large = 64 * Kilobyte;
    static constexpr std::size_t Small = 16 * Kilobyte;

    Shortage()
    {
        Block *holes = nullptr;
        for (int i = 0; i < HoleCount; ++i) {
            holes = take(Small, holes);
            m_eaten = take(Small, m_eaten); // lest the holes become one
        }
        m_limit.emplace(0);
        for (std::size_t size = 16 * Megabyte; size > Small; size /= 2) {
            while (Block *block = take(size, m_eaten))
                m_eaten = block;
        }
        release(holes);
    }

    ~Shortage()
    {
        m_limit.reset();
        release(m_eaten);
    }

    bool isThere() const
    {
        void *large = std::malloc(Large);
        std::free(large);
        return m_limit->isSet() && large == nullptr;
    }

private:
    Q_DISABLE_COPY(Shortage)

    static constexpr int HoleCount = 500;

    struct Block
    {
        Block *next;
    };

    static Block *take(std::size_t size, Block *next)
    {
        auto *block = static_cast<Block *>(std::malloc(size));
        if (block != nullptr)
            block->next = next;
        return block;
    }

    static void release(Block *blocks)
    {
        while (blocks != nullptr) {
            Block *next = blocks->next;
            std::free(blocks);
            blocks = next;
        }
    }

    Block *m_eaten = nullptr;
    std::optional<MemoryLimit> m_limit;
};

QImage canvas(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

} // namespace

class tst_FaultsMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void fieldIsPaintedOnceThereIsMemoryForIt();
    void stripIsPaintedOnceThereIsMemoryForIt();
    void everyDialogWorksWithLittleMemoryLeft_data();
    void everyDialogWorksWithLittleMemoryLeft();
    void hugeDropIsRefused_data();
    void hugeDropIsRefused();
    void hugeTextIsShown();

private:
    std::optional<FunctionGuard> m_guard;
};

template <typename Picker> void paintsOnceThereIsMemory(Picker *picker)
{
    // GIVEN what it looks like
    Picker other;
    other.resize(picker->size());
    QImage expected = canvas(picker->size());
    other.render(&expected);
    QImage painted = canvas(picker->size());
    {
        // WHEN it is painted while there is no memory for its pixels
        const Shortage shortage;
        QVERIFY(shortage.isThere());
        picker->render(&painted);
    }
    // THEN it goes on without them
    QVERIFY(painted != expected);

    // AND paints them the next time
    picker->render(&painted);
    QCOMPARE(painted, expected);
}

void tst_FaultsMemory::fieldIsPaintedOnceThereIsMemoryForIt()
{
    ColorPicker field;
    paintsOnceThereIsMemory(&field);
}

void tst_FaultsMemory::stripIsPaintedOnceThereIsMemoryForIt()
{
    ColorLuminancePicker strip;
    strip.resize(200, 400); // as large as to need more than there is
    paintsOnceThereIsMemory(&strip);
}

void tst_FaultsMemory::everyDialogWorksWithLittleMemoryLeft_data()
{
    QTest::addColumn<int>("index");
    const QVector<ModalKind> kinds = modalKinds(QString());
    for (int i = 0; i < kinds.size(); ++i)
        QTest::newRow(kinds[i].name) << i;
}

void tst_FaultsMemory::everyDialogWorksWithLittleMemoryLeft()
{
    QFETCH(int, index);
    QTemporaryDir folder;
    QVERIFY(QFile(folder.filePath(QStringLiteral("file.txt"))).open(QIODevice::WriteOnly));
    const ModalKind kind = modalKinds(folder.path())[index];
    QWidget window;
    window.show();

    // GIVEN a process that may grow by the stacks of a file dialog's threads, and little more
    const MemoryLimit limit(64 * Megabyte);
    QVERIFY(limit.isSet());
    QVERIFY(std::malloc(512 * Megabyte) == nullptr);

    // WHEN something is asked, THEN it is answered
    ModalDriver driver(kind.accept);
    QCOMPARE(kind.run(&window), kind.accepted);
    QVERIFY(driver.ran());
    m_guard->sentry().clear(); // the file dialog tells what the user did
}

void tst_FaultsMemory::hugeDropIsRefused_data()
{
    QTest::addColumn<bool>("isText");
    QTest::newRow("text") << true;
    QTest::newRow("a colour of the wrong form") << false;
}

void tst_FaultsMemory::hugeDropIsRefused()
{
    QFETCH(bool, isText);

    // GIVEN an address, and a swatch
    IPLineEdit edit;
    edit.setText(QStringLiteral("10.0.0.1"));
    ColorShower shower;
    shower.setRgb(qRgb(1, 2, 3));
    auto *swatch = shower.findChild<ColorShowLabel *>();
    QVERIFY(swatch != nullptr);

    // WHEN 100 MB are dropped on them
    QMimeData data;
    if (isText)
        data.setText(QString(50 * int(Megabyte), QLatin1Char('7')));
    else
        data.setData(QStringLiteral("application/x-color"), QByteArray(100 * int(Megabyte), '\x7f'));
    QVector<QWidget *> targets{swatch};
    const QList<QLineEdit *> fields = edit.findChildren<QLineEdit *>();
    for (QLineEdit *field : fields)
        targets.append(field);
    for (QWidget *target : qAsConst(targets)) {
        QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
    }

    // THEN numbers stay numbers, and the colour stays
    const QStringList numbers = edit.text().split(QLatin1Char('.'));
    QCOMPARE(numbers.size(), 4);
    QVERIFY(std::all_of(numbers.cbegin(), numbers.cend(),
                        [](const QString &number) { return number.size() <= 3; }));
    QCOMPARE(shower.currentColor(), qRgb(1, 2, 3));
}

void tst_FaultsMemory::hugeTextIsShown()
{
    // GIVEN a text of a million letters, in words
    QString text;
    for (int i = 0; i < 100000; ++i)
        text += QStringLiteral("abcdefghi ");
    FramelessMessageBox box;
    box.setText(text);
    box.setDetailedText(text);

    // WHEN the box is shown
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));

    // THEN it has it, on a window that the platform can show
    QCOMPARE(box.text().size(), text.size());
    QVERIFY(box.width() < QWIDGETSIZE_MAX);
    QVERIFY(box.height() < QWIDGETSIZE_MAX);
}

QTEST_MAIN(tst_FaultsMemory)

#include "tst_faults_memory.moc"
