// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The strict file dialog against every way out of its folders that is known.
// tst_limitedfiledialog_strict_use.cpp holds the rest of it.

#include "support/functionguard.h"
#include "support/limitscene.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <functional>
#include <optional>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

using Attempt = std::function<void(LimitScene &)>;

/*! Calls the menu for an item that is there, by the keyboard, and chooses one of QFileDialog's actions. */
void chooseInMenu(LimitScene &scene, const QModelIndex &index, const QString &action)
{
    bool isChosen = false;
    QTimer::singleShot(0, &scene.dialog, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        auto *chosen = scene.dialog.findChild<QAction *>(action);
        isChosen = menu && chosen && menu->actions().contains(chosen) && chosen->isEnabled();
        if (isChosen) {
            menu->setActiveAction(chosen);
            QTest::keyClick(menu, Qt::Key_Return);
        } else if (menu) {
            menu->close();
        }
    });
    const QPoint pos = scene.list()->visualRect(index).center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, pos, scene.list()->viewport()->mapToGlobal(pos));
    QCoreApplication::sendEvent(scene.list()->viewport(), &event);
    if (!isChosen)
        qWarning("%s cannot be chosen", qPrintable(action));
}

} // namespace

Q_DECLARE_METATYPE(Attempt)

class tst_LimitedFileDialogStrict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void refusesWhatIsTyped_data();
    void refusesWhatIsTyped();
    void refusesClicksAndKeys_data();
    void refusesClicksAndKeys();
    void refusesTheProgram_data();
    void refusesTheProgram();
    void refusesChangesOutside_data();
    void refusesChangesOutside();
    void makesFoldersInsideOnly();
    void makesNoFolderWhileShut();
    void makesFoldersAgainAfterOneThatIsNotWritable();
    void endsADropInsideOnly();
    void deletesLinksButNotWhatTheyLeadTo_data();
    void deletesLinksButNotWhatTheyLeadTo();
    void deletesNothingAboveByDots();
    void deletesNothingOutsideByTheMenu_data();
    void deletesNothingOutsideByTheMenu();
    void followsLinks_data();
    void followsLinks();
    void relativePathsLeadNowhereWithoutAWorkingDirectory();
    void takesTheRootHoweverItIsSpelt_data();
    void takesTheRootHoweverItIsSpelt();
    void admitsWhatIsInside_data();
    void admitsWhatIsInside();
    void admitsTheSecondFolder();
    void admitsTheSecondFolderInWhicheverOrder();
    void secondFolderAloneIsNoLimit();
    void linkInPlaceOfTheRootRefusesEverything();
    void completesInsideOnly_data();
    void completesInsideOnly();
    void completesNothingOfAFolderThatIsLeftAgain();

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
    m_guard.reset();
}

// Tries to get out, and whether that succeeds unless the dialog is strict; else the plain limit holds, too.
static void addAttempts()
{
    QTest::addColumn<Attempt>("attempt");
    QTest::addColumn<bool>("leavesUnlessStrict");
}

static void row(const char *name, bool leavesUnlessStrict, const Attempt &attempt)
{
    QTest::newRow(name) << attempt << leavesUnlessStrict;
}

static void checkAttempt()
{
    QFETCH(Attempt, attempt);
    QFETCH(bool, leavesUnlessStrict);
    const Answerer answerer;

    // GIVEN that without strictness the attempt gets out
    if (leavesUnlessStrict) {
        LimitScene plain(false);
        qputenv("HOME", plain.tree.at("outside").toLocal8Bit());
        attempt(plain);
        QVERIFY(plain.hasEscaped());
    }

    // WHEN it is made in a strict dialog
    LimitScene scene(true);
    qputenv("HOME", scene.tree.at("outside").toLocal8Bit());
    QVERIFY(scene.outside().isEmpty());
    QVERIFY(!scene.notice()->isVisible());
    attempt(scene);

    // THEN nothing outside was ever seen, and the user is told
    QCOMPARE(scene.outside(), QStringList());
    QVERIFY(scene.notice()->isVisible());
    QVERIFY(!scene.notice()->text().isEmpty());
    QCOMPARE(scene.outsideOnceSettled(), QStringList());
    QVERIFY(scene.isOutsideUntouched());
    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.isVisible());
}

void tst_LimitedFileDialogStrict::refusesWhatIsTyped_data()
{
    addAttempts();
    row("an outside name, then a folder clicked", true, [](LimitScene &s) {
        s.edit()->setFocus();
        QTest::keyClicks(s.edit(), QStringLiteral("../outside/secret.txt"));
        s.click("sub");
        s.list()->clearSelection();
        s.put(QStringLiteral("../outside/secret.txt"));
    });
    row("absolute text", false, [](LimitScene &s) { s.type(s.tree.at("outside/secret.txt")); });
    row("absolute text put in", true, [](LimitScene &s) { s.put(s.tree.at("outside/secret.txt")); });
    row("absolute text with ..", true,
        [](LimitScene &s) { s.type(s.tree.at("root/sub/../../outside/secret.txt")); });
    row("absolute text with .., that names a folder", true,
        [](LimitScene &s) { s.type(s.tree.at("root/sub/../../outside")); });
    row("relative text with ..", false,
        [](LimitScene &s) { s.type(QStringLiteral("../outside/secret.txt")); });
    row("..", false, [](LimitScene &s) { s.type(QStringLiteral("..")); });
    row(".. put in", true, [](LimitScene &s) { s.put(QStringLiteral("..")); });
    row("~", true, [](LimitScene &s) { s.type(QStringLiteral("~")); });
    row("~ and a file", true, [](LimitScene &s) { s.type(QStringLiteral("~/secret.txt")); });
    row("~root", true, [](LimitScene &s) { s.type(QStringLiteral("~root")); });
    row("a quoted name", true,
        [](LimitScene &s) { s.type(QLatin1Char('"') + s.tree.at("outside/secret.txt") + QLatin1Char('"')); });
    row("several quoted names, one outside", true, [](LimitScene &s) {
        s.dialog.setFileMode(QFileDialog::ExistingFiles);
        s.put(QStringLiteral("\"file.txt\" \"") + s.tree.at("outside/secret.txt") + QLatin1Char('"'));
    });
    row("a sibling with the same prefix", true,
        [](LimitScene &s) { s.type(s.tree.at("root-not/secret.txt")); });
    row("a sibling folder with the same prefix", true, [](LimitScene &s) { s.type(s.tree.at("root-not")); });
    row("a link to a file", true, [](LimitScene &s) { s.type(QStringLiteral("linkfile")); });
    row("a link to a folder", true, [](LimitScene &s) { s.type(QStringLiteral("linkdir")); });
    row("a file behind a link", true, [](LimitScene &s) { s.type(QStringLiteral("linkdir/secret.txt")); });
    row(".. behind a link", true, [](LimitScene &s) { s.type(QStringLiteral("linkdir/dir/../secret.txt")); });
    row(".. behind a link, quoted", true,
        [](LimitScene &s) { s.type(QStringLiteral("\"linkdir/../outside/new\"")); });
    row("a name to save behind a link", true, [](LimitScene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.type(QStringLiteral("linkdir/new"));
    });
    row("a dangling link to save to", true, [](LimitScene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.type(QStringLiteral("dangling"));
    });
    row("a name that the default suffix makes a link", true, [](LimitScene &s) {
        QFile::link(s.tree.at("outside/secret.txt"), s.tree.at("root/report.txt"));
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.dialog.setDefaultSuffix(QStringLiteral("txt"));
        s.type(QStringLiteral("report"));
    });
    row("a search path", true, [](LimitScene &s) {
        QDir::setSearchPaths(QStringLiteral("tarntest"), {s.tree.at("outside")});
        s.put(QStringLiteral("tarntest:secret.txt"));
    });
    row("a resource", true, [](LimitScene &s) { s.put(QStringLiteral(":/qt-project.org/styles")); });
    row("a folder outside, where folders are chosen", true, [](LimitScene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.put(s.tree.at("outside/dir"));
    });
    row("a link to a folder, where folders are chosen", true, [](LimitScene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.type(QStringLiteral("linkdir"));
    });
}

void tst_LimitedFileDialogStrict::refusesWhatIsTyped()
{
    checkAttempt();
}

void tst_LimitedFileDialogStrict::refusesClicksAndKeys_data()
{
    addAttempts();
    row("a double click on a link to a folder", true, [](LimitScene &s) { s.doubleClick("linkdir"); });
    row("a double click on a link to a file", true, [](LimitScene &s) { s.doubleClick("linkfile"); });
    row("Return on a link to a folder", true, [](LimitScene &s) {
        s.click("linkdir");
        QTest::keyClick(s.list(), Qt::Key_Return);
    });
    row("Ctrl+Up", true, [](LimitScene &s) { QTest::keyClick(&s.dialog, Qt::Key_Up, Qt::ControlModifier); });
    row("Backspace in the list", false, [](LimitScene &s) {
        s.item("file.txt");
        s.list()->setFocus();
        QTest::keyClick(s.list(), Qt::Key_Backspace);
    });
    row("the button that leads up, enabled by the program", true, [](LimitScene &s) {
        s.part<QToolButton>("toParentButton")->setEnabled(true);
        s.part<QToolButton>("toParentButton")->click();
    });
    row("the button that leads back, to a folder from before the limit", true, [](LimitScene &s) {
        s.dialog.setLimitedPath(QString());
        s.dialog.setDirectory(s.tree.at("outside"));
        s.dialog.setDirectory(s.tree.at("root"));
        s.dialog.setLimitedPath(s.tree.at("root"));
        s.part<QToolButton>("backButton")->setEnabled(true);
        s.part<QToolButton>("backButton")->click();
    });
    row("an entry of the look-in list", true, [](LimitScene &s) {
        auto *lookIn = s.part<QComboBox>("lookInCombo");
        lookIn->setEnabled(true);
        lookIn->showPopup();
        lookIn->hidePopup();
        Q_EMIT lookIn->textActivated(s.tree.at("outside"));
        s.dialog.setDirectory(s.tree.at("outside")); // if the list leads elsewhere
    });
    row("the sidebar, enabled by the program", true, [](LimitScene &s) {
        auto *sidebar = s.part<QAbstractItemView>("sidebar");
        s.dialog.setSidebarUrls({QUrl::fromLocalFile(s.tree.at("outside"))});
        sidebar->setEnabled(true);
        QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier,
                          sidebar->visualRect(sidebar->model()->index(0, 0)).center());
    });
}

void tst_LimitedFileDialogStrict::refusesClicksAndKeys()
{
    checkAttempt();
}

void tst_LimitedFileDialogStrict::refusesTheProgram_data()
{
    addAttempts();
    row("setDirectory()", true, [](LimitScene &s) { s.dialog.setDirectory(s.tree.at("outside")); });
    row("setDirectory() through a link", true,
        [](LimitScene &s) { s.dialog.setDirectory(s.tree.at("root/linkdir")); });
    row("setDirectory() to all drives", true, [](LimitScene &s) { s.model()->setRootPath(QString()); });
    row("setDirectoryUrl()", true,
        [](LimitScene &s) { s.dialog.setDirectoryUrl(QUrl::fromLocalFile(s.tree.at("outside"))); });
    row("setDirectory() with a search path", true, [](LimitScene &s) {
        QDir::setSearchPaths(QStringLiteral("tarntest"), {s.tree.at("outside")});
        s.dialog.setDirectory(QStringLiteral("tarntest:dir"));
    });
    row("selectFile()", true,
        [](LimitScene &s) { s.dialog.selectFile(s.tree.at("outside/dir/secret.txt")); });
    row("selectUrl()", true,
        [](LimitScene &s) { s.dialog.selectUrl(QUrl::fromLocalFile(s.tree.at("outside/dir/secret.txt"))); });
    row("restoreState()", true, [](LimitScene &s) {
        QFileDialog other(nullptr, QString(), s.tree.at("outside"));
        other.setOption(QFileDialog::DontUseNativeDialog);
        QVERIFY(s.dialog.restoreState(other.saveState()));
    });
    row("a proxy model, and a double click", true, [](LimitScene &s) {
        s.dialog.setProxyModel(new QIdentityProxyModel(&s.dialog));
        s.dialog.setDirectory(s.tree.at("outside"));
    });
    row("a result outside, accepted by the program", true, [](LimitScene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        static_cast<QDialog &>(s.dialog).done(QDialog::Accepted);
    });
    row("a result outside, accepted with another code", true, [](LimitScene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        static_cast<QDialog &>(s.dialog).done(2);
    });
}

void tst_LimitedFileDialogStrict::refusesTheProgram()
{
    checkAttempt();
}

void tst_LimitedFileDialogStrict::refusesChangesOutside_data()
{
    addAttempts();
    row("a file outside dropped in", true, [](LimitScene &s) {
        const QPoint free(s.list()->viewport()->rect().bottomRight() - QPoint(5, 5));
        s.drop(free, {QUrl::fromLocalFile(s.tree.at("outside/secret.txt"))}, Qt::MoveAction);
    });
    row("a file dropped on a link to a folder", true, [](LimitScene &s) {
        const QPoint link = s.list()->visualRect(s.item("linkdir")).center();
        s.drop(link, {QUrl::fromLocalFile(s.tree.at("root/file.txt"))});
    });
    row("a file outside typed, and Delete", false, [](LimitScene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        s.list()->setFocus();
        QTest::keyClick(s.list(), Qt::Key_Delete);
    });
    row("a file outside typed, and F2", true, [](LimitScene &s) {
        s.edit()->setText(s.tree.at("outside/secret.txt"));
        s.list()->setFocus();
        QTest::keyClick(s.list(), Qt::Key_F2);
        auto *editor = s.list()->findChild<QLineEdit *>();
        if (!editor)
            return;
        editor->setText(QStringLiteral("renamed"));
        QTest::keyClick(editor, Qt::Key_Return);
    });
}

void tst_LimitedFileDialogStrict::refusesChangesOutside()
{
    checkAttempt();
}

void tst_LimitedFileDialogStrict::makesFoldersInsideOnly()
{
    // GIVEN a dialog that was sent outside and whose views have not been told yet that it is back
    LimitScene scene(true);
    scene.dialog.setDirectory(scene.tree.at("outside"));

    scene.part<QToolButton>("newFolderButton")->click();

    QVERIFY(!scene.hasEscaped());
    QVERIFY(QFileInfo::exists(scene.tree.at("root/New Folder")));
}

void tst_LimitedFileDialogStrict::makesNoFolderWhileShut()
{
    // GIVEN a dialog whose root vanishes, and that is sent up and outside
    LimitScene scene(true);
    auto *newFolder = scene.part<QToolButton>("newFolderButton");
    scene.item("file.txt");
    QVERIFY(newFolder->isEnabled());
    QVERIFY(QDir(scene.tree.at("root")).removeRecursively());
    const QStringList before = scene.tree.contentsOutside();
    QTest::keyClick(&scene.dialog, Qt::Key_Up, Qt::ControlModifier);
    scene.dialog.setDirectory(scene.tree.at("outside"));
    QCoreApplication::processEvents();
    QVERIFY(!scene.list()->isVisible());

    // WHEN a folder is asked for
    const bool enabled = newFolder->isEnabled();
    QTest::mouseClick(newFolder, Qt::LeftButton);

    // THEN there is none
    QVERIFY(!enabled);
    QCOMPARE(scene.tree.contentsOutside(), before);
}

void tst_LimitedFileDialogStrict::makesFoldersAgainAfterOneThatIsNotWritable()
{
    const QString fixed = QStringLiteral("/proc/sys");
    if (!QFileInfo(fixed).isDir() || QFileInfo(fixed).isWritable())
        QSKIP("The system has no folder that not even its administrator can write to");

    // GIVEN that such a folder disables the button
    LimitScene plain(false);
    plain.dialog.setDirectory(fixed);
    QVERIFY(!plain.part<QToolButton>("newFolderButton")->isEnabled());

    // WHEN a strict dialog leaves it again
    LimitScene scene(true);
    scene.dialog.setDirectory(fixed);
    QCOMPARE(scene.outsideOnceSettled(), QStringList());

    // THEN the button is for the root
    QVERIFY(scene.part<QToolButton>("newFolderButton")->isEnabled());
}

void tst_LimitedFileDialogStrict::endsADropInsideOnly()
{
    LimitScene scene(true);
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
    LimitScene scene(true);
    QVERIFY(QFile::link(scene.tree.at("outside"), scene.tree.at("root/sub/deep/linkdir")));
    QVERIFY(QFile::link(scene.tree.at("outside/secret.txt"), scene.tree.at("root/sub/deep/linkfile")));

    scene.click(qPrintable(name));
    QTest::keyClick(scene.list(), Qt::Key_Delete);

    const QFileInfo deleted(scene.tree.at("root/") + name);
    QVERIFY(!deleted.exists() && !deleted.isSymLink());
    QVERIFY(scene.isOutsideUntouched());
    QVERIFY(QFileInfo::exists(scene.tree.at("outside/dir/secret.txt")));
}

// The item of "." or "..".
static QModelIndex dots(LimitScene *scene, const QString &name)
{
    const QAbstractItemView *list = scene->list();
    QModelIndex found;
    const auto find = [&] {
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
            const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
            if (index.data(QFileSystemModel::FileNameRole) == name)
                found = index;
        }
        return found.isValid();
    };
    return QTest::qWaitFor(find) ? found : QModelIndex();
}

void tst_LimitedFileDialogStrict::deletesNothingAboveByDots()
{
    // GIVEN a dialog that lists the dots
    const Answerer answerer;
    LimitScene scene(true);
    scene.dialog.setFilter(QDir::AllEntries | QDir::AllDirs);
    const QModelIndex above = dots(&scene, QStringLiteral(".."));
    QVERIFY(above.isValid());
    scene.list()->setFocus();
    scene.list()->setCurrentIndex(above);

    // WHEN the user walks over them, THEN they stay current
    QTest::keyClick(scene.list(), Qt::Key_Up);
    QVERIFY(scene.list()->currentIndex().isValid());
    QVERIFY(scene.list()->currentIndex() != above);
    QTest::keyClick(scene.list(), Qt::Key_Down);
    QCOMPARE(scene.list()->currentIndex(), above);

    // BUT deleted they are not
    QTest::keyClick(scene.list(), Qt::Key_Delete);
    QVERIFY(scene.isOutsideUntouched());
    QVERIFY(QFileInfo::exists(scene.tree.at("root/file.txt")));
}

void tst_LimitedFileDialogStrict::deletesNothingOutsideByTheMenu_data()
{
    QTest::addColumn<bool>("isStrict");
    QTest::newRow("strict") << true;
    QTest::newRow("plain, which does not care") << false;
}

void tst_LimitedFileDialogStrict::deletesNothingOutsideByTheMenu()
{
    QFETCH(bool, isStrict);

    // GIVEN a dialog in which typing has selected a file outside
    const Answerer answerer;
    LimitScene scene(isStrict);
    const QModelIndex inside = scene.item("file.txt");
    scene.edit()->setText(scene.tree.at("outside/secret.txt"));
    QTRY_VERIFY(scene.list()->selectionModel()->hasSelection());

    // WHEN the user calls the menu and chooses to delete
    scene.list()->setFocus();
    chooseInMenu(scene, inside, QStringLiteral("qt_delete_action"));

    // THEN the file is deleted if the dialog is not strict, and none is if it is
    QCOMPARE(scene.isOutsideUntouched(), isStrict);
    QVERIFY(QFileInfo::exists(scene.tree.at("root/file.txt")));
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
    QTest::newRow("a file to be behind a link to itself") << "root/loop/new.txt" << false;
    QTest::newRow("a name behind a link that is too long for a file")
        << QStringLiteral("root/linkdir/") + QString(300, QLatin1Char('n')) << false;
    QTest::newRow("a null character behind a link") << QStringLiteral("root/linkfile") + QChar(0) << false;
    QTest::newRow("half a surrogate pair behind dots")
        << QStringLiteral("root/new/..") + QChar(0xd801) << false;
    QTest::newRow("the other half behind dots") << QStringLiteral("root/new/..") + QChar(0xdc01) << false;
    QTest::newRow("a whole pair behind dots") << QStringLiteral("root/..\U00010401") << true;
}

void tst_LimitedFileDialogStrict::followsLinks()
{
    QFETCH(QString, name);
    QFETCH(bool, fits);
    const LimitTree tree;
    QVERIFY(QFile::link(tree.at("root/sub/deep"), tree.at("outside/in")));
    QVERIFY(QFile::link(tree.at("root/loop"), tree.at("root/loop")));
    LimitedFileDialog dialog;
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));

    QCOMPARE(dialog.pathFits(tree.path() + QLatin1Char('/') + name), fits);
    QVERIFY(!dialog.pathFits(QString()));

    // and so it is from the working directory
    const auto restore = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(tree.path()));
    QCOMPARE(dialog.pathFits(name), fits);
}

void tst_LimitedFileDialogStrict::relativePathsLeadNowhereWithoutAWorkingDirectory()
{
    // GIVEN a dialog, and a working directory that was deleted
    const LimitTree tree;
    LimitedFileDialog dialog;
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));
    const auto restore = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    const QString gone = tree.path() + QStringLiteral("/gone");
    QVERIFY(QDir().mkdir(gone));
    QVERIFY(QDir::setCurrent(gone));
    QVERIFY(QDir(gone).removeRecursively());
    QVERIFY(QDir::currentPath().isEmpty());

    // THEN a relative path is not taken for one from the file system's root
    const QString fromRoot = tree.at("root/file.txt").mid(1);
    QVERIFY(dialog.pathFits(QLatin1Char('/') + fromRoot));
    QVERIFY(!dialog.pathFits(fromRoot));
    QVERIFY(!dialog.pathFits(QStringLiteral("../") + fromRoot));

    // and neither is a permitted folder
    dialog.setLimitedPath(tree.at("root").mid(1));
    QVERIFY(!dialog.pathFits(tree.at("root/file.txt")));
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
    const LimitTree tree;
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
    row("a typed name", "root", "root/file.txt", [](LimitScene &s) { s.type(QStringLiteral("file.txt")); });
    row("a typed path", "root", "root/sub/file.txt",
        [](LimitScene &s) { s.type(s.tree.at("root/sub/file.txt")); });
    row("a typed path over ..", "root", "root/file.txt",
        [](LimitScene &s) { s.type(s.tree.at("root/sub/../file.txt")); });
    row("a new name to save", "root", "root/new.txt", [](LimitScene &s) {
        s.dialog.setAcceptMode(QFileDialog::AcceptSave);
        s.dialog.setDefaultSuffix(QStringLiteral("txt"));
        s.type(QStringLiteral("new"));
    });
    row("a file behind a link inside", "root", "root/sub/file.txt",
        [](LimitScene &s) { s.type(QStringLiteral("inner/file.txt")); });
    row("a double click on a file", "root", "root/file.txt",
        [](LimitScene &s) { s.doubleClick("file.txt"); });
    row("a double click on a folder", "root/sub", "", [](LimitScene &s) { s.doubleClick("sub"); });
    row("a typed folder", "root/sub", "", [](LimitScene &s) { s.type(QStringLiteral("sub")); });
    row("the typed root", "root", "", [](LimitScene &s) { s.type(s.tree.at("root")); });
    row("..", "root", "", [](LimitScene &s) {
        s.dialog.setDirectory(s.tree.at("root/sub"));
        s.type(QStringLiteral(".."));
    });
    row("Backspace", "root", "", [](LimitScene &s) {
        s.dialog.setDirectory(s.tree.at("root/sub"));
        s.item("deep");
        QTest::keyClick(s.list(), Qt::Key_Backspace);
    });
    row("the root itself, where folders are chosen", "root", "root", [](LimitScene &s) {
        s.dialog.setFileMode(QFileDialog::Directory);
        s.acceptButton()->click();
    });
}

void tst_LimitedFileDialogStrict::admitsWhatIsInside()
{
    QFETCH(Attempt, attempt);
    QFETCH(QString, folder);
    QFETCH(QString, result);
    LimitScene scene(true);

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
    LimitScene scene(true, QString(), LimitScene::TwoRoots);
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

void tst_LimitedFileDialogStrict::admitsTheSecondFolderInWhicheverOrder()
{
    LimitScene scene(true);
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("root2/file.txt")));

    scene.dialog.setLimitedPath1(scene.tree.at("root2"));

    QVERIFY(scene.dialog.pathFits(scene.tree.at("root2/file.txt")));
    QVERIFY(scene.dialog.pathFits(scene.tree.at("root/file.txt")));
    // In one for those who clean the path, in the other for those who do not
    QVERIFY(scene.dialog.pathFits(scene.tree.at("root/linkdir/../root2/file.txt")));
    scene.dialog.setDirectory(scene.tree.at("root2"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root2"));
    QVERIFY(!scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrict::secondFolderAloneIsNoLimit()
{
    LimitScene scene(true);
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("outside/secret.txt")));
    scene.dialog.setLimitedPath1(scene.tree.at("root2"));

    scene.dialog.setLimitedPath(QString());

    QVERIFY(scene.dialog.pathFits(scene.tree.at("outside/secret.txt")));
    scene.dialog.setDirectory(scene.tree.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("outside"));
}

void tst_LimitedFileDialogStrict::linkInPlaceOfTheRootRefusesEverything()
{
    LimitScene scene(true);
    QDir tree(scene.tree.path());
    scene.item("file.txt");

    // WHEN the root is moved away, and a link comes to its place
    QVERIFY(tree.rename(QStringLiteral("root"), QStringLiteral("away")));
    QVERIFY(QFile::link(scene.tree.at("outside"), scene.tree.at("root")));

    // THEN nothing fits
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("root")));
    QVERIFY(!scene.dialog.pathFits(scene.tree.at("root/secret.txt")));
    scene.put(QStringLiteral("secret.txt"));
    scene.put(scene.tree.at("root/secret.txt"));
    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.selectedFiles().isEmpty());

    // UNTIL the folder is back
    QVERIFY(QFile::remove(scene.tree.at("root")));
    QVERIFY(tree.rename(QStringLiteral("away"), QStringLiteral("root")));
    QVERIFY(scene.dialog.pathFits(scene.tree.at("root/file.txt")));
    scene.dialog.setDirectory(scene.tree.at("root"));
    scene.put(QStringLiteral("file.txt"));
    QCOMPARE(scene.accepted, 1);
    QCOMPARE(scene.outside(), QStringList());
}

void tst_LimitedFileDialogStrict::completesInsideOnly_data()
{
    QTest::addColumn<QString>("text"); // "@" stands for the tree's folder
    QTest::addColumn<bool>("completedUnlessStrict");

    QTest::newRow("a path") << "@/outside/s" << true;
    QTest::newRow("up") << "../outside/s" << false;
    QTest::newRow("a link") << "linkdir/s" << false;
    QTest::newRow("home") << "~/s" << false;
    QTest::newRow("all homes") << "~" << true;
    QTest::newRow("a file of the folder above") << "../o" << false;
    QTest::newRow("the root's siblings") << "@/root" << true;
    QTest::newRow("the root's siblings, upwards") << "../root" << true;
}

void tst_LimitedFileDialogStrict::completesInsideOnly()
{
    QFETCH(QString, text);
    QFETCH(bool, completedUnlessStrict);
    const auto type = [&text](LimitScene *scene) {
        qputenv("HOME", scene->tree.at("outside").toLocal8Bit());
        scene->edit()->setFocus();
        scene->edit()->selectAll();
        QTest::keyClicks(scene->edit(), QString(text).replace(QLatin1Char('@'), scene->tree.path()));
    };

    // GIVEN that the text is completed in a plain dialog
    if (completedUnlessStrict) {
        LimitScene plain(false);
        type(&plain);
        QTRY_VERIFY(!plain.completions().isEmpty());
    }

    // WHEN it is typed in a strict one, THEN nothing is offered
    LimitScene scene(true);
    type(&scene);
    QVERIFY(!scene.edit()->completer());
    QCOMPARE(scene.outsideOnceSettled(), QStringList());
    QCOMPARE(scene.completions(), QStringList());

    // AND names inside are completed again
    scene.item("file.txt"); // what is not listed yet when it is typed is not offered later
    scene.edit()->selectAll();
    QTest::keyClicks(scene.edit(), QStringLiteral("fil"));
    QTRY_COMPARE(scene.completions(), QStringList(scene.tree.at("root/file.txt")));

    // AND so is everything that is not strict any more
    type(&scene);
    QVERIFY(!scene.edit()->completer());
    scene.dialog.setStrict(false);
    QVERIFY(scene.edit()->completer());
    if (completedUnlessStrict) {
        type(&scene);
        QTRY_VERIFY(!scene.completions().isEmpty());
    }
}

void tst_LimitedFileDialogStrict::completesNothingOfAFolderThatIsLeftAgain()
{
    // GIVEN a text that nothing completes
    LimitScene scene(true);
    scene.item("file.txt");
    scene.edit()->setFocus();
    QTest::keyClicks(scene.edit(), QStringLiteral("nothing"));
    QCOMPARE(scene.completions(), QStringList());

    // WHEN the user tries to go up
    QTest::keyClick(&scene.dialog, Qt::Key_Up, Qt::ControlModifier);
    QVERIFY(scene.notice()->isVisible());

    // THEN what is there is not offered
    QTRY_COMPARE(scene.outsideOnceSettled(), QStringList());
}

QTEST_MAIN(tst_LimitedFileDialogStrict)
#include "tst_limitedfiledialog_strict.moc"
