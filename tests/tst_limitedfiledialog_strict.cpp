// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The strict file dialog against every way out of its folders that is known, and against a user who tries at
// random.

#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

/* root and root2 are permitted; outside, and root-not beside root, are not. */
class Tree
{
public:
    Tree()
    {
        fill();
    }

    // Puts back what a test has deleted or renamed.
    void fill() const
    {
        for (const char *folder : {"root/sub/deep", "root2/sub", "root-not", "outside/dir"})
            QDir(path()).mkpath(QLatin1String(folder));
        for (const char *file :
             {"root/file.txt", "root/with space.txt", "root/sub/file.txt", "root2/file.txt",
              "root-not/secret.txt", "outside/secret.txt", "outside/dir/secret.txt"}) {
            QFile made(at(file));
            if (!made.exists())
                made.open(QIODevice::WriteOnly);
        }
        QFile::link(at("outside"), at("root/linkdir"));
        QFile::link(at("outside/secret.txt"), at("root/linkfile"));
        QFile::link(at("outside/new.txt"), at("root/dangling"));
        QFile::link(at("root/sub"), at("root/inner"));
    }

    QString path() const
    {
        // Nothing comes and goes beside it, as it does among temporary folders.
        return QFileInfo(m_dir.path()).canonicalFilePath() + QStringLiteral("/tree");
    }

    QString at(const char *name) const
    {
        return path() + QLatin1Char('/') + QLatin1String(name);
    }

    // By the standard library's means, not by the dialog's.
    bool isInside(const QString &name) const
    {
        namespace fs = std::filesystem;
        if (name.isEmpty())
            return false;
        const fs::path real(QFileInfo(name).isRelative() || !name.startsWith(QLatin1Char('/'))
                                ? QFileInfo(name).absoluteFilePath().toStdString()
                                : name.toStdString());
        std::error_code error;
        if (fs::is_symlink(real, error) && !fs::exists(real, error))
            return false;
        const QString end = QString::fromStdString(fs::weakly_canonical(real, error).string());
        for (const QString &root : {at("root"), at("root2")}) {
            if (end == root || end.startsWith(root + QLatin1Char('/')))
                return true;
        }
        return false;
    }

private:
    QTemporaryDir m_dir;
};

/* A dialog on the tree's root, and what came out of it. */
class Scene
{
public:
    enum Limits { OneRoot, TwoRoots };

    explicit Scene(bool strict, const QString &start = QString(), Limits limits = OneRoot)
        : dialog(nullptr, QString(), start.isEmpty() ? tree.at("root") : start)
    {
        dialog.setStrict(strict);
        dialog.setViewMode(QFileDialog::List);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        if (limits == TwoRoots)
            dialog.setLimitedPath1(tree.at("root2"));
        dialog.setLimitedPath(tree.at("root"));
        QObject::connect(&dialog, &QFileDialog::filesSelected, &dialog,
                         [this](const QStringList &files) { results += files; });
        QObject::connect(&dialog, &QDialog::accepted, &dialog, [this] {
            ++accepted;
            results += base().directory().absolutePath();
            results += base().selectedFiles();
        });
        dialog.resize(640, 400);
        dialog.show();
        dialog.activateWindow(); // shortcuts are for active windows
        if (!QTest::qWaitForWindowActive(&dialog))
            qWarning("The dialog does not become active");
    }

    // The way to functions that LimitedFileDialog hides, or can only check afterwards.
    QFileDialog &base()
    {
        return dialog;
    }

    template <typename T> T *part(const char *name)
    {
        return dialog.findChild<T *>(QLatin1String(name));
    }

    QLineEdit *edit()
    {
        return part<QLineEdit>("fileNameEdit");
    }

    QAbstractItemView *list()
    {
        return part<QAbstractItemView>("listView");
    }

    QFileSystemModel *model()
    {
        return dialog.findChild<QFileSystemModel *>();
    }

    QLabel *notice()
    {
        return part<QLabel>("limitNotice");
    }

    QPushButton *acceptButton()
    {
        auto *box = part<QDialogButtonBox>("buttonBox");
        return qobject_cast<QPushButton *>(box->buttons().constFirst());
    }

    // By keyboard, up to and with Return.
    void type(const QString &text)
    {
        edit()->setFocus();
        edit()->selectAll();
        QTest::keyClicks(edit(), text);
        QTest::keyClick(edit(), Qt::Key_Return);
    }

    // As the completer and scripts do, past the checks of single keys.
    void put(const QString &text)
    {
        edit()->setText(text);
        acceptButton()->setEnabled(true);
        acceptButton()->click();
    }

    // The item of the shown folder, once it is there.
    QModelIndex item(const char *name)
    {
        const QString path = model()->rootPath() + QLatin1Char('/') + QLatin1String(name);
        QModelIndex index;
        const bool there = QTest::qWaitFor([&] {
            index = model()->index(path);
            return index.isValid() && list()->visualRect(index).isValid()
                && list()->viewport()->rect().intersects(list()->visualRect(index));
        });
        if (!there)
            qWarning("%s does not show", name);
        return index;
    }

    void click(const char *name)
    {
        const QPoint position = list()->visualRect(item(name)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }

    void doubleClick(const char *name)
    {
        click(name);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                           list()->visualRect(item(name)).center());
    }

    bool drop(const QPoint &position, const QList<QUrl> &urls, Qt::DropAction action = Qt::CopyAction)
    {
        list()->setDragDropMode(
            QAbstractItemView::DragDrop); // QFileDialog's own takes drags from itself only
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(list()->viewport(), &enter);
        QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(action);
        QCoreApplication::sendEvent(list()->viewport(), &drop);
        return drop.isAccepted();
    }

    // What of all that can be seen is outside; empty if nothing.
    QStringList outside()
    {
        QStringList seen = results;
        seen += base().directory().absolutePath();
        seen += model()->rootPath();
        seen += dialog.selectedFiles();
        const QList<QUrl> urls = dialog.selectedUrls();
        for (const QUrl &url : urls)
            seen += url.toLocalFile();
        QStringList found;
        for (const QString &path : qAsConst(seen)) {
            if (!tree.isInside(path))
                found += path;
        }
        return found;
    }

    bool isOutsideUntouched() const
    {
        return QDir(tree.at("outside")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
            == QStringList{QStringLiteral("dir"), QStringLiteral("secret.txt")};
    }

    bool hasEscaped()
    {
        return !outside().isEmpty() || !isOutsideUntouched();
    }

    Tree tree;
    LimitedFileDialog dialog;
    QStringList results;
    int accepted = 0;
};

/* Answers the questions that QFileDialog itself asks, such as whether to delete a file. */
class Answerer : public QObject
{
public:
    Answerer()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = qobject_cast<QMessageBox *>(watched);
        if (box && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(box, answer ? &QDialog::accept : &QDialog::reject,
                                      Qt::QueuedConnection);
        return false;
    }

    bool answer = true;
};

using Attempt = std::function<void(Scene &)>;
using Call = std::function<QString(const Tree &, const QString &root)>;

} // namespace

Q_DECLARE_METATYPE(Attempt)
Q_DECLARE_METATYPE(Call)

class tst_LimitedFileDialogStrict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void refusesEveryWayOut_data();
    void refusesEveryWayOut();
    void makesFoldersInsideOnly();
    void endsADropInsideOnly();
    void deletesLinksButNotWhatTheyLeadTo_data();
    void deletesLinksButNotWhatTheyLeadTo();
    void startsInTheRoot();
    void startsInTheRootAfterTheLimitIsMadeStrict();
    void staysInAStartFolderInside();
    void countsAFolderAsInsideItself();
    void followsLinks_data();
    void followsLinks();
    void takesTheRootHoweverItIsSpelt_data();
    void takesTheRootHoweverItIsSpelt();
    void admitsWhatIsInside_data();
    void admitsWhatIsInside();
    void admitsTheSecondFolder();
    void missingRootRefusesEverything();
    void missingRootAdmitsAgainOnceItIsThere();
    void vanishedRootRefusesEverything();
    void vanishedFolderLeadsBackToTheRoot();
    void emptyPathLiftsTheLimit();
    void switchingOffBringsThePlainLimitBack();
    void newDialogsTakeTheDefault();
    void oneCallFunctionsHonourTheDefault_data();
    void oneCallFunctionsHonourTheDefault();
    void noticeIsOneLineThatGoesWhenTypedOn();
    void addsNothingUnlessStrict();
    void listsWhatQFileDialogLists_data();
    void listsWhatQFileDialogLists();
    void staysInsideWhateverTheUserDoes();

private:
    QByteArray m_home;
    const QTemporaryDir m_config;
    std::optional<FunctionGuard> m_guard;
};

void tst_LimitedFileDialogStrict::initTestCase()
{
    m_home = qgetenv("HOME");
    qputenv("XDG_CONFIG_HOME", m_config.path().toLocal8Bit()); // QFileDialog keeps settings
}

void tst_LimitedFileDialogStrict::cleanupTestCase()
{
    qputenv("HOME", m_home);
}

void tst_LimitedFileDialogStrict::init()
{
    m_guard.emplace();
}

void tst_LimitedFileDialogStrict::cleanup()
{
    LimitedFileDialog::setStrictByDefault(false);
    m_guard.reset();
}

void tst_LimitedFileDialogStrict::refusesEveryWayOut_data()
{
    QTest::addColumn<Attempt>("attempt");
    QTest::addColumn<bool>("leavesUnlessStrict"); // else the plain limit holds too

    const auto row = [](const char *name, bool leavesUnlessStrict, const Attempt &attempt) {
        QTest::newRow(name) << attempt << leavesUnlessStrict;
    };

    // Typed.
    row("an outside name, then a folder clicked", true, [](Scene &s) {
        s.edit()->setFocus();
        QTest::keyClicks(s.edit(), QStringLiteral("../outside/secret.txt"));
        s.click("sub");
        s.list()->clearSelection();
        s.put(QStringLiteral("../outside/secret.txt"));
    });
    row("absolute text", false, [](Scene &s) { s.type(s.tree.at("outside/secret.txt")); });
    row("absolute text put in", true, [](Scene &s) { s.put(s.tree.at("outside/secret.txt")); });
    row("absolute text with ..", true,
        [](Scene &s) { s.type(s.tree.at("root/sub/../../outside/secret.txt")); });
    row("absolute text with .., that names a folder", true,
        [](Scene &s) { s.type(s.tree.at("root/sub/../../outside")); });
    row("relative text with ..", false, [](Scene &s) { s.type(QStringLiteral("../outside/secret.txt")); });
    row("..", false, [](Scene &s) { s.type(QStringLiteral("..")); });
    row(".. put in", true, [](Scene &s) { s.put(QStringLiteral("..")); });
    row("~", true, [](Scene &s) { s.type(QStringLiteral("~")); });
    row("~ and a file", true, [](Scene &s) { s.type(QStringLiteral("~/secret.txt")); });
    row("~root", true, [](Scene &s) { s.type(QStringLiteral("~root")); });
    row("a quoted name", true,
        [](Scene &s) { s.type(QLatin1Char('"') + s.tree.at("outside/secret.txt") + QLatin1Char('"')); });
    row("several quoted names, one outside", true, [](Scene &s) {
        s.dialog.setFileMode(QFileDialog::ExistingFiles);
        s.put(QStringLiteral("\"file.txt\" \"") + s.tree.at("outside/secret.txt") + QLatin1Char('"'));
    });
    row("a sibling with the same prefix", true, [](Scene &s) { s.type(s.tree.at("root-not/secret.txt")); });
    row("a sibling folder with the same prefix", true, [](Scene &s) { s.type(s.tree.at("root-not")); });
    row("a link to a file", true, [](Scene &s) { s.type(QStringLiteral("linkfile")); });
    row("a link to a folder", true, [](Scene &s) { s.type(QStringLiteral("linkdir")); });
    row("a file behind a link", true, [](Scene &s) { s.type(QStringLiteral("linkdir/secret.txt")); });
    row(".. behind a link", true, [](Scene &s) { s.type(QStringLiteral("linkdir/dir/../secret.txt")); });
    row(".. behind a link, quoted", true,
        [](Scene &s) { s.type(QStringLiteral("\"linkdir/../outside/new\"")); });
    row("a name to save behind a link", true, [](Scene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.type(QStringLiteral("linkdir/new"));
    });
    row("a dangling link to save to", true, [](Scene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.type(QStringLiteral("dangling"));
    });
    row("a name that the default suffix makes a link", true, [](Scene &s) {
        QFile::link(s.tree.at("outside/secret.txt"), s.tree.at("root/report.txt"));
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.dialog.setDefaultSuffix(QStringLiteral("txt"));
        s.type(QStringLiteral("report"));
    });
    row("a search path", true, [](Scene &s) {
        QDir::setSearchPaths(QStringLiteral("tarntest"), {s.tree.at("outside")});
        s.put(QStringLiteral("tarntest:secret.txt"));
    });
    row("a resource", true, [](Scene &s) { s.put(QStringLiteral(":/qt-project.org/styles")); });
    row("a folder outside, where folders are chosen", true, [](Scene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.put(s.tree.at("outside/dir"));
    });
    row("a link to a folder, where folders are chosen", true, [](Scene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.type(QStringLiteral("linkdir"));
    });

    // Clicked and pressed.
    row("a double click on a link to a folder", true, [](Scene &s) { s.doubleClick("linkdir"); });
    row("a double click on a link to a file", true, [](Scene &s) { s.doubleClick("linkfile"); });
    row("Return on a link to a folder", true, [](Scene &s) {
        s.click("linkdir");
        QTest::keyClick(s.list(), Qt::Key_Return);
    });
    row("Ctrl+Up", true, [](Scene &s) { QTest::keyClick(&s.dialog, Qt::Key_Up, Qt::ControlModifier); });
    row("Backspace in the list", false, [](Scene &s) {
        s.item("file.txt");
        s.list()->setFocus();
        QTest::keyClick(s.list(), Qt::Key_Backspace);
    });
    row("the button that leads up, enabled by the program", true, [](Scene &s) {
        s.part<QToolButton>("toParentButton")->setEnabled(true);
        s.part<QToolButton>("toParentButton")->click();
    });
    row("the button that leads back, to a folder from before the limit", true, [](Scene &s) {
        s.dialog.setLimitedPath(QString());
        s.dialog.setDirectory(s.tree.at("outside"));
        s.dialog.setDirectory(s.tree.at("root"));
        s.dialog.setLimitedPath(s.tree.at("root"));
        s.part<QToolButton>("backButton")->setEnabled(true);
        s.part<QToolButton>("backButton")->click();
    });
    row("an entry of the look-in list", true, [](Scene &s) {
        auto *lookIn = s.part<QComboBox>("lookInCombo");
        lookIn->setEnabled(true);
        lookIn->showPopup();
        lookIn->hidePopup();
        Q_EMIT lookIn->textActivated(s.tree.at("outside"));
        s.dialog.setDirectory(s.tree.at("outside")); // if the list leads elsewhere
    });
    row("the sidebar, enabled by the program", true, [](Scene &s) {
        auto *sidebar = s.part<QAbstractItemView>("sidebar");
        s.dialog.setSidebarUrls({QUrl::fromLocalFile(s.tree.at("outside"))});
        sidebar->setEnabled(true);
        QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier,
                          sidebar->visualRect(sidebar->model()->index(0, 0)).center());
    });

    // By the program.
    row("setDirectory()", true, [](Scene &s) { s.dialog.setDirectory(s.tree.at("outside")); });
    row("setDirectory() through a link", true,
        [](Scene &s) { s.dialog.setDirectory(s.tree.at("root/linkdir")); });
    row("setDirectory() to all drives", true, [](Scene &s) { s.model()->setRootPath(QString()); });
    row("setDirectoryUrl()", true,
        [](Scene &s) { s.dialog.setDirectoryUrl(QUrl::fromLocalFile(s.tree.at("outside"))); });
    row("setDirectory() with a search path", true, [](Scene &s) {
        QDir::setSearchPaths(QStringLiteral("tarntest"), {s.tree.at("outside")});
        s.dialog.setDirectory(QStringLiteral("tarntest:dir"));
    });
    row("selectFile()", true, [](Scene &s) { s.dialog.selectFile(s.tree.at("outside/dir/secret.txt")); });
    row("selectUrl()", true,
        [](Scene &s) { s.dialog.selectUrl(QUrl::fromLocalFile(s.tree.at("outside/dir/secret.txt"))); });
    row("restoreState()", true, [](Scene &s) {
        QFileDialog other(nullptr, QString(), s.tree.at("outside"));
        other.setOption(QFileDialog::DontUseNativeDialog);
        QVERIFY(s.dialog.restoreState(other.saveState()));
    });
    row("a proxy model, and a double click", true, [](Scene &s) {
        s.dialog.setProxyModel(new QIdentityProxyModel(&s.dialog));
        s.dialog.setDirectory(s.tree.at("outside"));
    });
    row("a result outside, accepted by the program", true, [](Scene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        static_cast<QDialog &>(s.dialog).done(QDialog::Accepted);
    });
    row("a result outside, accepted with another code", true, [](Scene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        static_cast<QDialog &>(s.dialog).done(2);
    });

    // Changes outside.
    row("a file outside dropped in", true, [](Scene &s) {
        const QPoint free(s.list()->viewport()->rect().bottomRight() - QPoint(5, 5));
        s.drop(free, {QUrl::fromLocalFile(s.tree.at("outside/secret.txt"))}, Qt::MoveAction);
    });
    row("a file dropped on a link to a folder", true, [](Scene &s) {
        const QPoint link = s.list()->visualRect(s.item("linkdir")).center();
        s.drop(link, {QUrl::fromLocalFile(s.tree.at("root/file.txt"))});
    });
    row("a file outside typed, and Delete", false, [](Scene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        s.list()->setFocus();
        QTest::keyClick(s.list(), Qt::Key_Delete);
    });
}

void tst_LimitedFileDialogStrict::refusesEveryWayOut()
{
    QFETCH(Attempt, attempt);
    QFETCH(bool, leavesUnlessStrict);
    const Answerer answerer;

    // GIVEN that without strictness the attempt gets out
    if (leavesUnlessStrict) {
        Scene plain(false);
        qputenv("HOME", plain.tree.at("outside").toLocal8Bit());
        attempt(plain);
        QVERIFY(plain.hasEscaped());
    }

    // WHEN it is made in a strict dialog
    Scene scene(true);
    qputenv("HOME", scene.tree.at("outside").toLocal8Bit());
    QVERIFY(scene.outside().isEmpty());
    QVERIFY(!scene.notice()->isVisible());
    attempt(scene);

    // THEN nothing outside was ever seen, and the user is told
    QCOMPARE(scene.outside(), QStringList());
    QVERIFY(scene.notice()->isVisible());
    QVERIFY(!scene.notice()->text().isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(scene.isOutsideUntouched());
    QCOMPARE(scene.outside(), QStringList());
    QCOMPARE(scene.list()->rootIndex().data(QFileSystemModel::FilePathRole).toString(),
             scene.model()->rootPath());
    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.isVisible());
}

void tst_LimitedFileDialogStrict::makesFoldersInsideOnly()
{
    // GIVEN a dialog that was sent outside and whose views have not been told yet that it is back
    Scene scene(true);
    scene.dialog.setDirectory(scene.tree.at("outside"));

    scene.part<QToolButton>("newFolderButton")->click();

    QVERIFY(!scene.hasEscaped());
    QVERIFY(QFileInfo::exists(scene.tree.at("root/New Folder")));
}

void tst_LimitedFileDialogStrict::endsADropInsideOnly()
{
    Scene scene(true);
    const QPoint folder = scene.list()->visualRect(scene.item("sub")).center();

    QVERIFY(scene.drop(folder, {QUrl::fromLocalFile(scene.tree.at("root/with space.txt"))}));

    QVERIFY(QFileInfo::exists(scene.tree.at("root/sub/with space.txt")));
    QVERIFY(!scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrict::deletesLinksButNotWhatTheyLeadTo_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a link to a folder") << "linkdir";
    QTest::newRow("a link to a file") << "linkfile";
    QTest::newRow("a folder with links in it") << "sub";
}

void tst_LimitedFileDialogStrict::deletesLinksButNotWhatTheyLeadTo()
{
    QFETCH(QString, name);
    const Answerer answerer;
    Scene scene(true);
    QVERIFY(QFile::link(scene.tree.at("outside"), scene.tree.at("root/sub/deep/linkdir")));
    QVERIFY(QFile::link(scene.tree.at("outside/secret.txt"), scene.tree.at("root/sub/deep/linkfile")));

    scene.click(qPrintable(name));
    QTest::keyClick(scene.list(), Qt::Key_Delete);

    const QFileInfo deleted(scene.tree.at("root/") + name);
    QVERIFY(!deleted.exists() && !deleted.isSymLink());
    QVERIFY(scene.isOutsideUntouched());
    QVERIFY(QFileInfo::exists(scene.tree.at("outside/dir/secret.txt")));
}

void tst_LimitedFileDialogStrict::startsInTheRoot()
{
    const Tree other;
    Scene scene(true, other.at("outside"));

    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
    QVERIFY(!scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrict::startsInTheRootAfterTheLimitIsMadeStrict()
{
    const Tree other;
    Scene scene(false, other.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), other.at("outside"));

    scene.dialog.setStrict(true);

    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
    QVERIFY(scene.dialog.isStrict());
    QVERIFY(scene.dialog.property("strict").toBool());
}

void tst_LimitedFileDialogStrict::staysInAStartFolderInside()
{
    const Tree tree;
    LimitedFileDialog dialog(nullptr, QString(), tree.at("root/sub"));
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));
    QCOMPARE(dialog.directory().absolutePath(), tree.at("root/sub"));
}

void tst_LimitedFileDialogStrict::countsAFolderAsInsideItself()
{
    Scene scene(true);
    auto *up = scene.part<QToolButton>("toParentButton");
    QVERIFY(scene.dialog.pathFits(scene.tree.at("root")));
    QVERIFY(!up->isEnabled());

    scene.dialog.setDirectory(scene.tree.at("root/sub"));
    QVERIFY(up->isEnabled());
    up->click();
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
    QVERIFY(!up->isEnabled());
    QCOMPARE(scene.outside(), QStringList());
}

void tst_LimitedFileDialogStrict::followsLinks_data()
{
    QTest::addColumn<QString>("name"); // in the tree
    QTest::addColumn<bool>("fits");

    QTest::newRow("the root") << "root" << true;
    QTest::newRow("the root with a slash") << "root/" << true;
    QTest::newRow("a file") << "root/file.txt" << true;
    QTest::newRow("a file to be") << "root/new.txt" << true;
    QTest::newRow("a file to be in folders to be") << "root/new/new/new.txt" << true;
    QTest::newRow("empty names") << "root//sub/./file.txt" << true;
    QTest::newRow("up and down again") << "root/sub/../file.txt" << true;
    QTest::newRow("a backslash, which is part of the name") << "root/..\\outside" << true;
    QTest::newRow("a link inside") << "root/inner/file.txt" << true;
    QTest::newRow("a file to be behind a link inside") << "root/inner/new.txt" << true;
    QTest::newRow("up from a link, down in the root") << "root/inner/../file.txt" << true;
    QTest::newRow("a sibling") << "root-not" << false;
    QTest::newRow("the folder above") << "." << false;
    QTest::newRow("the second root, not set") << "root2/file.txt" << false;
    QTest::newRow("up and out") << "root/../outside" << false;
    QTest::newRow("up and out over a folder to be") << "root/new/../../outside" << false;
    QTest::newRow("a link to a file") << "root/linkfile" << false;
    QTest::newRow("a link to a folder") << "root/linkdir" << false;
    QTest::newRow("a file behind a link") << "root/linkdir/secret.txt" << false;
    QTest::newRow("a file to be behind a link") << "root/linkdir/new.txt" << false;
    QTest::newRow("inside only for those who clean the path") << "root/linkdir/../file.txt" << false;
    QTest::newRow("inside only for those who do not") << "outside/in/../file.txt" << false;
    QTest::newRow("a dangling link") << "root/dangling" << false;
    QTest::newRow("a file to be behind a dangling link") << "root/dangling/new.txt" << false;
    QTest::newRow("a null character behind a link") << QStringLiteral("root/linkfile") + QChar(0) << false;
}

void tst_LimitedFileDialogStrict::followsLinks()
{
    QFETCH(QString, name);
    QFETCH(bool, fits);
    const Tree tree;
    QVERIFY(QFile::link(tree.at("root/sub/deep"), tree.at("outside/in")));
    LimitedFileDialog dialog;
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));

    QCOMPARE(dialog.pathFits(tree.path() + QLatin1Char('/') + name), fits);
    QVERIFY(!dialog.pathFits(QString()));
}

void tst_LimitedFileDialogStrict::takesTheRootHoweverItIsSpelt_data()
{
    QTest::addColumn<QString>("root"); // seen from the tree's folder

    QTest::newRow("plain") << "root";
    QTest::newRow("with a slash") << "root/";
    QTest::newRow("with dots") << "outside/../root/.";
    QTest::newRow("by a link") << "bylink";
}

void tst_LimitedFileDialogStrict::takesTheRootHoweverItIsSpelt()
{
    QFETCH(QString, root);
    const Tree tree;
    QVERIFY(QFile::link(tree.at("root"), tree.at("bylink")));
    const QString before = QDir::currentPath();

    for (const bool relative : {false, true}) {
        if (relative)
            QDir::setCurrent(tree.path());
        LimitedFileDialog dialog;
        dialog.setStrict(true);
        const QString path = relative ? root : tree.path() + QLatin1Char('/') + root;
        dialog.setLimitedPath(path);
        QDir::setCurrent(before); // a relative path is taken as it is meant when it is set

        QCOMPARE(dialog.getLimitedPath(), path);
        QCOMPARE(dialog.directory().canonicalPath(), tree.at("root"));
        QVERIFY(dialog.pathFits(tree.at("root/file.txt")));
        QVERIFY(!dialog.pathFits(tree.at("root-not/secret.txt")));
        QVERIFY(!dialog.pathFits(tree.at("outside/secret.txt")));
    }

    LimitedFileDialog everything;
    everything.setStrict(true);
    everything.setLimitedPath(QStringLiteral("/"));
    QVERIFY(everything.pathFits(tree.at("outside/secret.txt")));
}

void tst_LimitedFileDialogStrict::admitsWhatIsInside_data()
{
    QTest::addColumn<Attempt>("attempt");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("result"); // none: the dialog stays open

    const auto row = [](const char *name, const char *folder, const char *result, const Attempt &attempt) {
        QTest::newRow(name) << attempt << QString::fromLatin1(folder) << QString::fromLatin1(result);
    };
    row("a typed name", "root", "root/file.txt", [](Scene &s) { s.type(QStringLiteral("file.txt")); });
    row("a typed path", "root", "root/sub/file.txt",
        [](Scene &s) { s.type(s.tree.at("root/sub/file.txt")); });
    row("a typed path over ..", "root", "root/file.txt",
        [](Scene &s) { s.type(s.tree.at("root/sub/../file.txt")); });
    row("a new name to save", "root", "root/new.txt", [](Scene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.dialog.setDefaultSuffix(QStringLiteral("txt"));
        s.type(QStringLiteral("new"));
    });
    row("a file behind a link inside", "root", "root/sub/file.txt",
        [](Scene &s) { s.type(QStringLiteral("inner/file.txt")); });
    row("a double click on a file", "root", "root/file.txt", [](Scene &s) { s.doubleClick("file.txt"); });
    row("a double click on a folder", "root/sub", "", [](Scene &s) { s.doubleClick("sub"); });
    row("a typed folder", "root/sub", "", [](Scene &s) { s.type(QStringLiteral("sub")); });
    row("the typed root", "root", "", [](Scene &s) { s.type(s.tree.at("root")); });
    row("..", "root", "", [](Scene &s) {
        s.dialog.setDirectory(s.tree.at("root/sub"));
        s.type(QStringLiteral(".."));
    });
    row("Backspace", "root", "", [](Scene &s) {
        s.dialog.setDirectory(s.tree.at("root/sub"));
        s.item("deep");
        QTest::keyClick(s.list(), Qt::Key_Backspace);
    });
    row("the root itself, where folders are chosen", "root", "root", [](Scene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.acceptButton()->click();
    });
}

void tst_LimitedFileDialogStrict::admitsWhatIsInside()
{
    QFETCH(Attempt, attempt);
    QFETCH(QString, folder);
    QFETCH(QString, result);
    Scene scene(true);

    attempt(scene);

    QCOMPARE(scene.outside(), QStringList());
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at(qPrintable(folder)));
    QCOMPARE(scene.accepted, result.isEmpty() ? 0 : 1);
    if (!result.isEmpty()) {
        const QString first = scene.results.value(0);
        const QString opened = QFileInfo::exists(first) ? QFileInfo(first).canonicalFilePath() : first;
        QCOMPARE(opened, scene.tree.at(qPrintable(result)));
    }
    QVERIFY(!scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrict::admitsTheSecondFolder()
{
    Scene scene(true, QString(), Scene::TwoRoots);
    QVERIFY(scene.part<QComboBox>("lookInCombo")->isEnabled());

    scene.type(scene.tree.at("root2"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root2"));
    scene.type(scene.tree.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root2"));
    QVERIFY(scene.notice()->isVisible());

    QVERIFY(QDir(scene.tree.at("root2")).removeRecursively());
    scene.put(QStringLiteral("file.txt"));
    QCOMPARE(scene.accepted, 0);
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
}

void tst_LimitedFileDialogStrict::missingRootRefusesEverything()
{
    Scene scene(true);
    const QString missing = scene.tree.at("missing");

    scene.dialog.setLimitedPath(missing);

    QCOMPARE(scene.dialog.getLimitedPath(), missing);
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("root/file.txt")));
    QVERIFY(!scene.dialog.pathFits(missing));
    QVERIFY(!scene.list()->isVisible());
    QVERIFY(!scene.part<QToolButton>("newFolderButton")->isEnabled());
    QVERIFY(scene.notice()->isVisible());
    scene.put(scene.tree.at("root/file.txt"));
    scene.put(QStringLiteral("file.txt"));
    scene.type(QStringLiteral("file.txt"));
    static_cast<QDialog &>(scene.dialog).accept();
    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.selectedFiles().isEmpty());
    QVERIFY(scene.dialog.selectedUrls().isEmpty());
    QVERIFY(scene.notice()->isVisible());
    QVERIFY(!QFileInfo::exists(missing));

    scene.dialog.reject();
    QVERIFY(!scene.dialog.isVisible());
}

void tst_LimitedFileDialogStrict::missingRootAdmitsAgainOnceItIsThere()
{
    Scene scene(true);
    const QString missing = scene.tree.at("missing");
    scene.dialog.setLimitedPath(missing);
    scene.put(QStringLiteral("file.txt"));
    QCOMPARE(scene.accepted, 0);

    QVERIFY(QDir().mkpath(missing));
    scene.dialog.setDirectory(missing);
    QTRY_VERIFY(scene.list()->isVisible());
    QVERIFY(!scene.notice()->isVisible());
    QVERIFY(scene.part<QToolButton>("newFolderButton")->isEnabled());
    scene.put(QStringLiteral("file.txt"));

    QCOMPARE(scene.accepted, 1);
    QCOMPARE(scene.results.value(0), missing + QStringLiteral("/file.txt"));
}

void tst_LimitedFileDialogStrict::vanishedRootRefusesEverything()
{
    Scene scene(true);
    scene.item("file.txt");
    QVERIFY(QDir(scene.tree.at("root")).removeRecursively());

    scene.put(QStringLiteral("file.txt"));
    scene.put(scene.tree.at("outside/secret.txt"));
    scene.type(scene.tree.at("outside"));

    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.selectedFiles().isEmpty());
    QVERIFY(!scene.list()->isVisible());
    QVERIFY(scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrict::vanishedFolderLeadsBackToTheRoot()
{
    Scene scene(true);
    scene.dialog.setDirectory(scene.tree.at("root/sub"));
    scene.item("deep");
    QVERIFY(QDir(scene.tree.at("root/sub")).removeRecursively());

    QTRY_COMPARE((scene.list()->viewport()->repaint(), scene.dialog.directory().absolutePath()),
                 scene.tree.at("root"));
    QCOMPARE(scene.outside(), QStringList());
}

void tst_LimitedFileDialogStrict::emptyPathLiftsTheLimit()
{
    Scene scene(true);
    scene.type(scene.tree.at("outside"));
    QVERIFY(scene.notice()->isVisible());

    scene.dialog.setLimitedPath(QString());

    QVERIFY(!scene.notice()->isVisible());
    QVERIFY(scene.dialog.pathFits(scene.tree.at("outside")));
    scene.dialog.setDirectory(scene.tree.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("outside"));
}

void tst_LimitedFileDialogStrict::switchingOffBringsThePlainLimitBack()
{
    Scene scene(true);
    scene.dialog.setLimitedPath(scene.tree.at("missing"));
    QVERIFY(!scene.list()->isVisible());

    scene.dialog.setStrict(false);
    QVERIFY(!scene.dialog.isStrict());
    QCOMPARE(scene.dialog.getLimitedPath(), QString());
    QVERIFY(scene.list()->isVisible());
    QVERIFY(!scene.notice());
    QVERIFY(scene.part<QWidget>("sidebar")->isEnabled());
    scene.dialog.setDirectory(scene.tree.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("outside"));

    // AND what was asked for while it was off counts once it is on again
    scene.dialog.setStrict(true);
    QCOMPARE(scene.dialog.getLimitedPath(), scene.tree.at("missing"));
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("outside")));
}

void tst_LimitedFileDialogStrict::newDialogsTakeTheDefault()
{
    QVERIFY(!LimitedFileDialog::isStrictByDefault());
    QVERIFY(!LimitedFileDialog().isStrict());

    LimitedFileDialog::setStrictByDefault(true);
    QVERIFY(LimitedFileDialog::isStrictByDefault());
    QVERIFY(LimitedFileDialog().isStrict());
    QVERIFY(LimitedFileDialog(nullptr, Qt::Dialog).isStrict());
}

void tst_LimitedFileDialogStrict::oneCallFunctionsHonourTheDefault_data()
{
    QTest::addColumn<Call>("call");

    QTest::newRow("folder") << Call([](const Tree &tree, const QString &root) {
        return LimitedFileDialog::getExistingDirectoryFromDlg(nullptr, QString(), tree.at("outside"),
                                                              QFileDialog::ShowDirsOnly, root);
    });
    QTest::newRow("open") << Call([](const Tree &tree, const QString &root) {
        return LimitedFileDialog::getOpenFileNamesFromDlg(nullptr, QString(), tree.at("outside"), QString(),
                                                          root);
    });
    QTest::newRow("save") << Call([](const Tree &tree, const QString &root) {
        return LimitedFileDialog::getSaveFileNameFromDlg(nullptr, QString(), tree.at("outside"), QString(),
                                                         root);
    });
}

void tst_LimitedFileDialogStrict::oneCallFunctionsHonourTheDefault()
{
    QFETCH(Call, call);
    const Tree tree;
    LimitedFileDialog::setStrictByDefault(true);

    for (const bool missing : {false, true}) {
        const QString root = tree.at(missing ? "missing" : "root");
        ModalDriver driver([&](QWidget *widget) {
            auto *dialog = qobject_cast<LimitedFileDialog *>(widget);
            QVERIFY(dialog && dialog->isStrict());
            auto *accept = dialog->findChild<QDialogButtonBox *>()->buttons().constFirst();
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(tree.at("outside/dir"));
            accept->setEnabled(true);
            accept->click();
            QVERIFY(dialog->isVisible());
            QVERIFY(missing || tree.isInside(dialog->directory().absolutePath()));
            dialog->reject();
        });
        QCOMPARE(call(tree, root), QString());
        QVERIFY(driver.ran());
    }
}

void tst_LimitedFileDialogStrict::noticeIsOneLineThatGoesWhenTypedOn()
{
    Scene scene(true);
    const QSize size = scene.dialog.size();
    scene.put(scene.tree.at("outside/") + QString(200, QLatin1Char('x')) + QStringLiteral("<b>\n</b>"));

    auto *notice = scene.notice();
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->textFormat(), Qt::PlainText);
    QVERIFY(!notice->text().contains(QLatin1Char('\n')));
    QVERIFY(notice->fontMetrics().horizontalAdvance(notice->text()) <= notice->width());
    QCOMPARE(scene.dialog.size(), size);
    QVERIFY(!QApplication::activeModalWidget());

    const QString text = notice->text();
    QEvent change(QEvent::LanguageChange);
    notice->clear();
    QCoreApplication::sendEvent(&scene.dialog, &change);
    QCOMPARE(notice->text(), text);

    scene.edit()->selectAll();
    QTest::keyClicks(scene.edit(), QStringLiteral("f"));
    QVERIFY(!notice->isVisible());
}

// The parts of both dialogs, one line each.
static QStringList partsOf(const QFileDialog &dialog)
{
    QStringList parts;
    const auto children = dialog.findChildren<QObject *>();
    for (const QObject *child : children)
        parts += QLatin1String(child->metaObject()->className()) + QLatin1Char(' ') + child->objectName();
    parts.sort();
    return parts;
}

void tst_LimitedFileDialogStrict::addsNothingUnlessStrict()
{
    const Tree tree;
    QFileDialog plain(nullptr, QString(), tree.at("root"));
    plain.setOption(QFileDialog::DontUseNativeDialog);
    LimitedFileDialog dialog(nullptr, QString(), tree.at("root"));
    dialog.setLimitedPath(tree.at("root"));

    QCOMPARE(partsOf(dialog), partsOf(plain));
    QCOMPARE(dialog.sizeHint(), plain.sizeHint());
    dialog.selectFile(tree.at("outside/secret.txt"));
    plain.selectFile(tree.at("outside/secret.txt"));
    QCOMPARE(dialog.selectedFiles(), plain.selectedFiles());
    QCOMPARE(dialog.selectedUrls(), plain.selectedUrls());
    QVERIFY(!dialog.selectedFiles().isEmpty());
    QVERIFY(!tree.isInside(dialog.selectedFiles().constFirst()));

    // AND nothing is left behind by what was strict for a while
    dialog.setStrict(true);
    QVERIFY(partsOf(dialog) != partsOf(plain));
    dialog.setStrict(false);
    QCOMPARE(partsOf(dialog), partsOf(plain));
}

void tst_LimitedFileDialogStrict::listsWhatQFileDialogLists_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<int>("mode");

    for (const char *filter : {"", "All Files (*)", "Texts (*.txt)", "Texts (*.txt);;All (*)"}) {
        QTest::newRow(qPrintable(QLatin1Char('"') + QLatin1String(filter) + QLatin1Char('"')))
            << QString::fromLatin1(filter) << int(QFileDialog::AnyFile);
        QTest::newRow(
            qPrintable(QLatin1Char('"') + QLatin1String(filter) + QStringLiteral("\", folders only")))
            << QString::fromLatin1(filter) << int(QFileDialog::Directory);
    }
}

// The names in the folder that is shown, once they are all there.
static QStringList listed(const QFileDialog &dialog)
{
    const auto *model = dialog.findChild<QFileSystemModel *>();
    const QModelIndex folder = model->index(model->rootPath());
    QStringList names;
    for (int row = 0; row < model->rowCount(folder); ++row)
        names += model->index(row, 0, folder).data(QFileSystemModel::FileNameRole).toString();
    names.sort();
    return names;
}

void tst_LimitedFileDialogStrict::listsWhatQFileDialogLists()
{
    QFETCH(QString, filter);
    QFETCH(int, mode);
    const Tree tree;
    for (const char *name :
         {"root/*", "root/.hidden", "root/line\nbreak", "root/\xc3\xa9t\xc3\xa9", "root/noending"})
        QVERIFY(QFile(tree.path() + QLatin1Char('/') + QString::fromUtf8(name)).open(QIODevice::WriteOnly));

    QFileDialog plain(nullptr, QString(), tree.at("root"), filter);
    plain.setOption(QFileDialog::DontUseNativeDialog);
    LimitedFileDialog dialog(nullptr, QString(), tree.at("root"), filter);
    dialog.setLimitedPath(tree.at("root"));
    plain.setFileMode(QFileDialog::FileMode(mode));
    dialog.setFileMode(QFileDialog::FileMode(mode));

    QTRY_VERIFY(listed(plain).contains(QStringLiteral("sub"))
                && listed(dialog).contains(QStringLiteral("sub")));
    QTRY_COMPARE(listed(dialog), listed(plain));
    QCOMPARE(dialog.nameFilters(), plain.nameFilters());
    QCOMPARE(dialog.selectedNameFilter(), plain.selectedNameFilter());

    plain.selectNameFilter(plain.nameFilters().constLast());
    dialog.selectNameFilter(plain.nameFilters().constLast());
    QTRY_COMPARE(listed(dialog), listed(plain));
}

namespace {

/* Drives a strict dialog with whatever comes to its mind, but changes no files. */
class Monkey
{
public:
    explicit Monkey(quint32 seed)
        : m_random(seed)
    {
        renew();
    }

    Scene &scene()
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
        static constexpr Step Steps[] = {&Monkey::key,      &Monkey::key,     &Monkey::key,
                                         &Monkey::key,      &Monkey::mouse,   &Monkey::mouse,
                                         &Monkey::typeName, &Monkey::putPath, &Monkey::program,
                                         &Monkey::drop,     &Monkey::button,  &Monkey::list};
        (this->*pick(Steps))();
        if (m_steps % 16 == 0)
            QCoreApplication::processEvents();
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
        m_scene = std::make_unique<Scene>(true, QString(), chance(2) ? Scene::TwoRoots : Scene::OneRoot);
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
    std::unique_ptr<Scene> m_scene;
    QByteArray m_state;
    QString m_deed;
    int m_steps = 0;
};

} // namespace

void tst_LimitedFileDialogStrict::staysInsideWhateverTheUserDoes()
{
    bool given = false;
    const quint32 wished = qEnvironmentVariable("TARN_TEST_SEED").toUInt(&given);
    const quint32 seed = given ? wished : QRandomGenerator::global()->generate();
    bool counted = false;
    const int wishedSteps = qEnvironmentVariableIntValue("TARN_TEST_STEPS", &counted);
    const int steps = counted ? wishedSteps : 100000;
    qInfo("TARN_TEST_SEED=%u", seed);
    m_guard->sentry().clear();

    // Nothing is ever deleted or moved away: QFileDialog's completer does not survive the end of a file in
    // its path.
    Answerer answerer;
    answerer.answer = false;
    Monkey monkey(seed);
    int results = 0;
    for (int step = 0; step < steps; ++step) {
        monkey.step();
        const QStringList outside = monkey.scene().outside();
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

QTEST_MAIN(tst_LimitedFileDialogStrict)
#include "tst_limitedfiledialog_strict.moc"
