// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The strict file dialog against a user who tries at random.

#include "support/functionguard.h"
#include "support/limitscene.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <memory>
#include <optional>

using namespace Tarn::Test;

namespace {

/* Drives a strict dialog with whatever comes to its mind. */
class Monkey
{
public:
    explicit Monkey(quint32 seed)
        : m_random(seed)
    {
        renew();
    }

    LimitScene &scene()
    {
        return *m_scene;
    }

    // What the last step did.
    QString deed() const
    {
        return m_deed;
    }

    void step()
    {
        if (++m_steps % StepsPerScene == 0)
            renew();
        using Step = void (Monkey::*)();
        static constexpr Step Steps[] = {
            &Monkey::key,    &Monkey::key,      &Monkey::key,         &Monkey::key,     &Monkey::mouse,
            &Monkey::mouse,  &Monkey::typeName, &Monkey::putPath,     &Monkey::program, &Monkey::drop,
            &Monkey::button, &Monkey::list,     &Monkey::changeFilter};
        (this->*pick(Steps))();
        if (!m_scene->dialog.isVisible())
            m_scene->dialog.show();
    }

private:
    static constexpr int StepsPerScene = 2500;

    template <typename T, size_t N> const T &pick(const T (&choices)[N])
    {
        return choices[m_random.bounded(int(N))];
    }

    bool chance(int oneIn)
    {
        return m_random.bounded(oneIn) == 0;
    }

    void renew()
    {
        while (auto *popup = QApplication::activePopupWidget())
            popup->close();
        m_scene.reset();
        m_scene = std::make_unique<LimitScene>(true, QString(),
                                               chance(2) ? LimitScene::TwoRoots : LimitScene::OneRoot);
        qputenv("HOME", m_scene->tree.at("outside").toLocal8Bit());
        QDir::setSearchPaths(QStringLiteral("tarntest"), {m_scene->tree.at("outside")});
    }

    // A path somewhere in the tree, and seldom a sensible one.
    QString path()
    {
        static const char *const names[] = {
            "root",     "sub",   "deep",     "outside", "dir",     "secret.txt",
            "file.txt", "..",    "..",       ".",       "linkdir", "linkfile",
            "dangling", "inner", "root-not", "root2",   "new.txt", "with space.txt",
            "~",        ""};
        QString path;
        switch (m_random.bounded(5)) {
        case 0:
            path = QStringLiteral("tarntest:");
            break;
        case 1:
            path = QStringLiteral("~/");
            break;
        case 2:
            break;
        default:
            path = m_scene->tree.path() + QLatin1Char('/');
        }
        for (int left = m_random.bounded(4); left >= 0; --left)
            path += QLatin1String(pick(names)) + (left ? QStringLiteral("/") : QString());
        if (chance(8))
            path = QLatin1Char('"') + path + QStringLiteral("\" \"") + m_scene->tree.at("outside/secret.txt")
                + QLatin1Char('"');
        return path;
    }

    QWidget *keyTarget()
    {
        QWidget *const targets[] = {m_scene->edit(),
                                    m_scene->edit(),
                                    m_scene->list(),
                                    &m_scene->dialog,
                                    m_scene->part<QAbstractItemView>("treeView"),
                                    QApplication::focusWidget()};
        QWidget *target = pick(targets);
        return target && m_scene->dialog.isAncestorOf(target) ? target : m_scene->edit();
    }

    void key()
    {
        static constexpr Qt::Key keys[] = {
            Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Up,         Qt::Key_Down,
            Qt::Key_Left,   Qt::Key_Right, Qt::Key_Home,      Qt::Key_End,        Qt::Key_Tab,
            Qt::Key_Delete, Qt::Key_Space, Qt::Key_Escape,    Qt::Key_Slash,      Qt::Key_Period,
            Qt::Key_A,      Qt::Key_L,     Qt::Key_S,         Qt::Key_AsciiTilde, Qt::Key_QuoteDbl};
        static constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier,  Qt::NoModifier,
                                                             Qt::NoModifier,  Qt::ControlModifier,
                                                             Qt::AltModifier, Qt::ShiftModifier};
        const Qt::Key key = pick(keys);
        const Qt::KeyboardModifier modifier = pick(modifiers);
        m_deed = QStringLiteral("key %1 with %2").arg(key, 0, 16).arg(modifier, 0, 16);
        QTest::keyClick(keyTarget(), key, modifier);
    }

    void mouse()
    {
        auto *view = chance(4) ? m_scene->part<QAbstractItemView>("treeView") : m_scene->list();
        const QModelIndex index = view->model()->index(m_random.bounded(12), 0, view->rootIndex());
        const QPoint position = view->visualRect(index).center();
        const bool twice = chance(2);
        m_deed = QStringLiteral("click on %1, double %2").arg(index.data().toString()).arg(twice);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, chance(4) ? Qt::ControlModifier : Qt::NoModifier,
                          position);
        if (twice)
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }

    void typeName()
    {
        static const char *const texts[] = {"..", "~",        "../o", "linkdir/", "sub",
                                            "/",  "linkfile", "new",  "tarntest:"};
        const QString text = QLatin1String(pick(texts));
        m_deed = QStringLiteral("typed ") + text;
        m_scene->edit()->selectAll();
        QTest::keyClicks(m_scene->edit(), text);
        QTest::keyClick(m_scene->edit(), Qt::Key_Return);
    }

    void putPath()
    {
        const QString text = path();
        m_deed = QStringLiteral("put ") + text;
        m_scene->edit()->setText(text);
        if (chance(2))
            m_scene->acceptButton()->setEnabled(true);
        m_scene->acceptButton()->click();
    }

    void program()
    {
        const QString target = path();
        const int which = m_random.bounded(11);
        m_deed = QStringLiteral("program's call %1 with %2").arg(which).arg(target);
        QFileDialog &dialog = m_scene->base();
        switch (which) {
        case 0:
            return dialog.setDirectory(target);
        case 1:
            return dialog.setDirectoryUrl(QUrl::fromLocalFile(target));
        case 2:
            return dialog.selectFile(target);
        case 3:
            m_scene->model()->setRootPath(chance(3) ? QString() : target);
            return;
        case 4:
            return dialog.setHistory({target, m_scene->tree.at("outside")});
        case 5: {
            m_state = chance(2) ? dialog.saveState() : m_state;
            dialog.restoreState(m_state);
            return;
        }
        case 6:
            return static_cast<QDialog &>(dialog).done(m_random.bounded(3));
        case 7:
            return static_cast<QDialog &>(dialog).accept();
        case 8:
            return dialog.setFileMode(pick({QFileDialog::AnyFile, QFileDialog::ExistingFile,
                                            QFileDialog::ExistingFiles, QFileDialog::Directory}));
        case 9:
            return dialog.setAcceptMode(chance(2) ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        default:
            return dialog.setViewMode(chance(2) ? QFileDialog::List : QFileDialog::Detail);
        }
    }

    template <typename T> T pick(std::initializer_list<T> choices)
    {
        return *(choices.begin() + m_random.bounded(int(choices.size())));
    }

    void drop()
    {
        const QString what = pick({m_scene->tree.at("outside/secret.txt"), m_scene->tree.at("root/linkfile"),
                                   m_scene->tree.at("root-not")});
        const QRect area = m_scene->list()->viewport()->rect();
        const QPoint position(m_random.bounded(area.width()), m_random.bounded(area.height()));
        m_deed = QStringLiteral("dropped ") + what;
        m_scene->drop(position, {QUrl::fromLocalFile(what)},
                      pick({Qt::CopyAction, Qt::MoveAction, Qt::LinkAction}));
    }

    void button()
    {
        const char *const name = pick({"backButton", "forwardButton", "toParentButton"});
        m_deed = QLatin1String(name);
        auto *button = m_scene->part<QToolButton>(name);
        button->setEnabled(button->isEnabled() || chance(2));
        button->click();
    }

    void changeFilter()
    {
        m_deed = QStringLiteral("filter");
        const QDir::Filters usual = QDir::AllEntries | QDir::AllDirs;
        m_scene->dialog.setFilter(
            pick<QDir::Filters>({usual, usual | QDir::NoDotAndDotDot, usual | QDir::Hidden | QDir::System,
                                 QDir::Dirs | QDir::NoDot}));
    }

    void list()
    {
        const char *const name = pick({"lookInCombo", "sidebar"});
        m_deed = QLatin1String(name);
        auto *combo = m_scene->part<QComboBox>("lookInCombo");
        auto *sidebar = m_scene->part<QAbstractItemView>("sidebar");
        if (name[0] == 's') {
            sidebar->setEnabled(true);
            m_scene->base().setSidebarUrls(
                {QUrl::fromLocalFile(m_scene->tree.at("outside")), QUrl::fromLocalFile(path())});
            const QModelIndex index = sidebar->model()->index(m_random.bounded(2), 0);
            QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier,
                              sidebar->visualRect(index).center());
            return;
        }
        combo->setEnabled(true);
        if (chance(8)) {
            combo->showPopup();
            QTest::keyClick(combo->view(), Qt::Key_Down);
            QTest::keyClick(combo->view(), Qt::Key_Return);
            combo->hidePopup();
        } else {
            QTest::keyClick(combo, chance(2) ? Qt::Key_Down : Qt::Key_Up);
        }
    }

    QRandomGenerator m_random;
    std::unique_ptr<LimitScene> m_scene;
    QByteArray m_state;
    QString m_deed;
    int m_steps = 0;
};

} // namespace

class tst_LimitedFileDialogRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_home = qgetenv("HOME");
        qputenv("XDG_CONFIG_HOME", m_config.path().toLocal8Bit()); // QFileDialog keeps settings
    }
    void cleanupTestCase()
    {
        qputenv("HOME", m_home);
    }
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void staysInsideWhateverTheUserDoes();

private:
    QByteArray m_home;
    const QTemporaryDir m_config;
    std::optional<FunctionGuard> m_guard;
};

void tst_LimitedFileDialogRandom::staysInsideWhateverTheUserDoes()
{
    bool given = false;
    const quint32 wished = qEnvironmentVariable("TARN_TEST_SEED").toUInt(&given);
    const quint32 seed = given ? wished : QRandomGenerator::global()->generate();
    bool counted = false;
    const int wishedSteps = qEnvironmentVariableIntValue("TARN_TEST_STEPS", &counted);
    const int steps = counted ? wishedSteps : 100000;
    qInfo("TARN_TEST_SEED=%u", seed);
    m_guard->sentry().clear();

    // Nothing is ever made, renamed or deleted: QFileDialog keeps places in its model that do not survive the
    // end of a file.
    Monkey monkey(seed);
    Answerer answerer;
    answerer.answer = [] { return false; };
    int results = 0;
    for (int step = 0; step < steps; ++step) {
        monkey.step();
        const QStringList outside =
            step % 16 ? monkey.scene().outside() : monkey.scene().outsideOnceSettled();
        if (!outside.isEmpty()) {
            QFAIL(qPrintable(QStringLiteral("seed %1, step %2, after %3: %4")
                                 .arg(seed)
                                 .arg(step)
                                 .arg(monkey.deed(), outside.join(QStringLiteral(", ")))));
        }
        if (step % 100 == 0)
            QVERIFY(monkey.scene().isOutsideUntouched());
        results += monkey.scene().results.size();
        monkey.scene().results.clear();
    }
    // It did get somewhere.
    QVERIFY(results > steps / 1000);
}

QTEST_MAIN(tst_LimitedFileDialogRandom)
#include "tst_limitedfiledialog_random.moc"
