// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The functions that ask for files in one call.

#include "support/functionguard.h"
#include "support/leftovers.h"
#include "support/modaldriver.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <optional>
#include <sys/fsuid.h>
#include <tarnwidgets/framelessfiledialog.h>
#include <unistd.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessFileDialog;
using Options = QFileDialog::Options;

namespace {

/* What all the getters have in common; those for directories leave the filters alone. */
struct Question
{
    QWidget *parent = nullptr;
    QString dir;
    QString filter;
    QString *selectedFilter = nullptr;
    Options options;
};

using Getter = std::function<QStringList(const Question &)>;
using PlainCall = std::function<bool()>;
using StringCall = QString (*)(QWidget *, const QString &, const QString &, const QString &, QString *,
                               Options);
using UrlCall = QUrl (*)(QWidget *, const QString &, const QUrl &, const QString &, QString *, Options,
                         const QStringList &);

QString caption()
{
    return QStringLiteral("Caption");
}

QStringList schemes()
{
    return {QStringLiteral("file"), QStringLiteral("ftp")};
}

QStringList listOf(const QString &file)
{
    return file.isEmpty() ? QStringList() : QStringList(file);
}

QStringList listOf(const QList<QUrl> &urls)
{
    QStringList files;
    for (const QUrl &url : urls)
        files += listOf(url.toLocalFile());
    return files;
}

Getter ofString(StringCall call)
{
    return [call](const Question &q) {
        return listOf(call(q.parent, caption(), q.dir, q.filter, q.selectedFilter, q.options));
    };
}

Getter ofUrl(UrlCall call)
{
    return [call](const Question &q) {
        return listOf(call(q.parent, caption(), QUrl::fromLocalFile(q.dir), q.filter, q.selectedFilter,
                           q.options, schemes())
                          .toLocalFile());
    };
}

Getter openFileName()
{
    return ofString(FramelessFileDialog::getOpenFileName);
}

FramelessFileDialog *dialogOf(QWidget *widget)
{
    return qobject_cast<FramelessFileDialog *>(widget);
}

template <typename Child> Child *part(QWidget *dialog, const char *name)
{
    return dialog->findChild<Child *>(QString::fromLatin1(name));
}

QPushButton *acceptButton(QWidget *dialog)
{
    const auto *box = dialog->findChild<QDialogButtonBox *>();
    return box->button(dialogOf(dialog)->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                                                 : QDialogButtonBox::Open);
}

QPushButton *cancelButton(QWidget *dialog)
{
    return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel);
}

void cancel(QWidget *dialog)
{
    cancelButton(dialog)->click();
}

void acceptIt(QWidget *dialog)
{
    QVERIFY(acceptButton(dialog));
    QTRY_VERIFY(acceptButton(dialog)->isEnabled());
    acceptButton(dialog)->click();
}

ModalDriver::Action typeAndAccept(const QString &text)
{
    return [text](QWidget *dialog) {
        part<QLineEdit>(dialog, "fileNameEdit")->setText(text);
        acceptIt(dialog);
    };
}

/* As a click on the file in the list does. */
void selectInView(QWidget *dialog, const QString &name)
{
    auto *view = part<QAbstractItemView>(dialog, "treeView");
    const auto find = [&] {
        const QModelIndexList found = view->model()->match(view->model()->index(0, 0, view->rootIndex()),
                                                           Qt::DisplayRole, name, 1, Qt::MatchExactly);
        return found.value(0);
    };
    QTRY_VERIFY(find().isValid());
    view->selectionModel()->select(find(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/* While it lives, files are opened as somebody opens them who is not root. */
class NotRoot
{
public:
    NotRoot()
        : m_former(uid_t(setfsuid(getuid() == 0 ? 65534 : getuid())))
    {
    }
    ~NotRoot()
    {
        setfsuid(m_former);
    }

private:
    Q_DISABLE_COPY(NotRoot)

    const uid_t m_former;
};

/* While it lives, Qt's complaints that it cannot watch a directory do not reach the log, however many they
 * are. */
class NoWatchMessages
{
public:
    NoWatchMessages()
    {
        s_next = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                if (!text.startsWith(QLatin1String("inotify_add_watch")))
                    s_next(type, context, text);
            });
    }
    ~NoWatchMessages()
    {
        qInstallMessageHandler(s_next);
    }

private:
    Q_DISABLE_COPY(NoWatchMessages)

    static QtMessageHandler s_next;
};

QtMessageHandler NoWatchMessages::s_next = nullptr;

} // namespace

Q_DECLARE_METATYPE(Getter)
Q_DECLARE_METATYPE(PlainCall)

class tst_FramelessFileDialogGetters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    // What is asked
    void getterShowsItsKindOfDialog_data();
    void getterShowsItsKindOfDialog();
    void argumentsMayBeLeftOut_data();
    void argumentsMayBeLeftOut();
    void optionsAreThoseGiven_data();
    void optionsAreThoseGiven();
    void directoryModeFollowsShowDirsOnly_data();
    void directoryModeFollowsShowDirsOnly();

    // What comes back
    void chosenFileIsReturned_data();
    void chosenFileIsReturned();
    void severalFilesAreReturnedInOrder();
    void ofSeveralFilesTheFirstIsReturned_data();
    void ofSeveralFilesTheFirstIsReturned();
    void newNameCanBeSaved();
    void cancelReturnsNothing_data();
    void cancelReturnsNothing();
    void urlThatIsNoLocalFileGivesAnEmptyString();

    // Filters
    void selectedFilterAloneIsOffered_data();
    void selectedFilterAloneIsOffered();
    void emptySelectedFilterLeavesTheListAndLearnsTheChoice();
    void selectedFilterStaysAfterCancel();

    // Where it opens
    void workingDirectoryIsTheNearestDirectory_data();
    void workingDirectoryIsTheNearestDirectory();
    void noDirectoryIsRemembered();
    void initialSelectionIsTheNameOfNoDirectory_data();
    void initialSelectionIsTheNameOfNoDirectory();
    void dialogOpensThereWithTheNameSelected_data();
    void dialogOpensThereWithTheNameSelected();
    void oddNamesAreReturnedAsQFileDialogReturnsThem_data();
    void oddNamesAreReturnedAsQFileDialogReturnsThem();
    void oddNamesCanBePickedInTheList_data();
    void oddNamesCanBePickedInTheList();
    void unreadableDirectoryIsShownEmpty();
    void fileThatIsNotThereIsNotReturned();

    // Who owns the dialog
    void dialogIsLeftToTheParent_data();
    void dialogIsLeftToTheParent();
    void dialogWithoutParentStays();
    void deletedParentReturnsNothing_data();
    void deletedParentReturnsNothing();
    void deletedInnerDialogReturnsNothing_data();
    void deletedInnerDialogReturnsNothing();
    void gettersMayNest();

private:
    void expectAccepted();
    void expectRejected();
    QString path(const QString &name) const;

    std::optional<FunctionGuard> m_guard;
    std::unique_ptr<QWidget> m_parent;
    QTemporaryDir m_settings;
    QTemporaryDir m_dir;
    QString m_formerCurrent;
};

void tst_FramelessFileDialogGetters::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    m_formerCurrent = QDir::currentPath();
    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder/below")));
    for (const char *name : {"one.txt", "two.txt", "picture.png", "folder/inside.txt"}) {
        QFile file(path(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QFile::link(path(QStringLiteral("folder")), path(QStringLiteral("folder/below/link"))));
    QVERIFY(QFile::link(path(QStringLiteral("missing")), path(QStringLiteral("folder/below/lost"))));
}

void tst_FramelessFileDialogGetters::init()
{
    QSettings(QSettings::UserScope, QStringLiteral("QtProject")).clear(); // what the dialogs before left
    QVERIFY(QDir::setCurrent(m_dir.path()));
    m_guard.emplace();
    m_parent = std::make_unique<QWidget>();
}

void tst_FramelessFileDialogGetters::cleanup()
{
    m_parent.reset();
    m_guard.reset();
    QVERIFY(QDir::setCurrent(m_formerCurrent));
}

void tst_FramelessFileDialogGetters::expectAccepted()
{
    m_guard->sentry().expect(QtDebugMsg, QStringLiteral("FileDialog::slot_accepted"));
}

void tst_FramelessFileDialogGetters::expectRejected()
{
    m_guard->sentry().expect(QtDebugMsg, QStringLiteral("FileDialog::slot_rejected"));
}

QString tst_FramelessFileDialogGetters::path(const QString &name) const
{
    return m_dir.filePath(name);
}

/* A row for each getter: the name to choose, and the modes and schemes that it asks with. */
static void addGetters()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("acceptMode");
    QTest::addColumn<QStringList>("supportedSchemes");
    const QString file = QStringLiteral("one.txt");
    const QString folder = QStringLiteral("folder");
    const QStringList onlyFiles = {QStringLiteral("file")};
    const int open = QFileDialog::AcceptOpen;
    const int save = QFileDialog::AcceptSave;

    QTest::newRow("getOpenFileName") << openFileName() << file << 1 << open << onlyFiles;
    QTest::newRow("getOpenFileNames") << Getter([](const Question &q) {
        return FramelessFileDialog::getOpenFileNames(q.parent, caption(), q.dir, q.filter, q.selectedFilter,
                                                     q.options);
    }) << file << 3 << open << onlyFiles;
    QTest::newRow("getSaveFileName") << ofString(FramelessFileDialog::getSaveFileName)
                                     << QStringLiteral("new.txt") << 0 << save << onlyFiles;
    QTest::newRow("getExistingDirectory") << Getter([](const Question &q) {
        return listOf(FramelessFileDialog::getExistingDirectory(q.parent, caption(), q.dir, q.options));
    }) << folder << 2 << open << onlyFiles;
    QTest::newRow("getOpenFileUrl") << ofUrl(FramelessFileDialog::getOpenFileUrl) << file << 1 << open
                                    << schemes();
    QTest::newRow("getOpenFileUrls") << Getter([](const Question &q) {
        return listOf(FramelessFileDialog::getOpenFileUrls(q.parent, caption(), QUrl::fromLocalFile(q.dir),
                                                           q.filter, q.selectedFilter, q.options, schemes()));
    }) << file << 3 << open << schemes();
    QTest::newRow("getSaveFileUrl") << ofUrl(FramelessFileDialog::getSaveFileUrl) << QStringLiteral("new.txt")
                                    << 0 << save << schemes();
    QTest::newRow("getExistingDirectoryUrl") << Getter([](const Question &q) {
        return listOf(FramelessFileDialog::getExistingDirectoryUrl(
                          q.parent, caption(), QUrl::fromLocalFile(q.dir), q.options, schemes())
                          .toLocalFile());
    }) << folder << 2 << open << schemes();
}

static bool asksForDirectories()
{
    return QByteArray(QTest::currentDataTag()).startsWith("getExistingDirectory");
}

void tst_FramelessFileDialogGetters::getterShowsItsKindOfDialog_data()
{
    addGetters();
}

void tst_FramelessFileDialogGetters::getterShowsItsKindOfDialog()
{
    QFETCH(Getter, getter);
    QFETCH(int, fileMode);
    QFETCH(int, acceptMode);
    QFETCH(QStringList, supportedSchemes);

    expectRejected();
    const QString filters = QStringLiteral("Text (*.txt);;Pictures (*.png)");
    const QStringList offered = asksForDirectories() ? QFileDialog().nameFilters() // as without any
                                                     : filters.split(QStringLiteral(";;"));
    ModalDriver driver([&](QWidget *widget) {
        const FramelessFileDialog *dialog = dialogOf(widget);
        QVERIFY(dialog);
        QCOMPARE(dialog->parentWidget(), m_parent.get());
        QCOMPARE(int(dialog->fileMode()), fileMode);
        QCOMPARE(int(dialog->acceptMode()), acceptMode);
        QCOMPARE(dialog->supportedSchemes(), supportedSchemes);
        QCOMPARE(dialog->options(), Options());
        QCOMPARE(dialog->directory().path(), path(QStringLiteral("folder")));
        QCOMPARE(dialog->findChild<QFileDialog *>()->windowTitle(), caption());
        QCOMPARE(dialog->nameFilters(), offered);
        cancel(widget);
    });
    getter({m_parent.get(), path(QStringLiteral("folder")), filters, nullptr, Options()});
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::argumentsMayBeLeftOut_data()
{
    QTest::addColumn<PlainCall>("isEmpty");
    QTest::addColumn<Options>("options");
    using F = FramelessFileDialog;
    const Options none;
    const Options dirsOnly = QFileDialog::ShowDirsOnly;
    QTest::newRow("getOpenFileName") << PlainCall([] { return F::getOpenFileName().isEmpty(); }) << none;
    QTest::newRow("getOpenFileNames") << PlainCall([] { return F::getOpenFileNames().isEmpty(); }) << none;
    QTest::newRow("getSaveFileName") << PlainCall([] { return F::getSaveFileName().isEmpty(); }) << none;
    QTest::newRow("getExistingDirectory")
        << PlainCall([] { return F::getExistingDirectory().isEmpty(); }) << dirsOnly;
    QTest::newRow("getOpenFileUrl") << PlainCall([] { return F::getOpenFileUrl().isEmpty(); }) << none;
    QTest::newRow("getOpenFileUrls") << PlainCall([] { return F::getOpenFileUrls().isEmpty(); }) << none;
    QTest::newRow("getSaveFileUrl") << PlainCall([] { return F::getSaveFileUrl().isEmpty(); }) << none;
    QTest::newRow("getExistingDirectoryUrl")
        << PlainCall([] { return F::getExistingDirectoryUrl().isEmpty(); }) << dirsOnly;
}

// As with QFileDialog, the parent included.
void tst_FramelessFileDialogGetters::argumentsMayBeLeftOut()
{
    QFETCH(PlainCall, isEmpty);
    QFETCH(Options, options);

    expectRejected();
    std::unique_ptr<QWidget> left;
    ModalDriver driver([&](QWidget *dialog) {
        left.reset(dialog);
        QCOMPARE(dialogOf(dialog)->options(), options);
        QCOMPARE(dialogOf(dialog)->directory().path(), QDir::currentPath());
        cancel(dialog);
    });
    QVERIFY(isEmpty());
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::optionsAreThoseGiven_data()
{
    addGetters();
}

// The file mode sets or clears ShowDirsOnly: the options come after it.
void tst_FramelessFileDialogGetters::optionsAreThoseGiven()
{
    QFETCH(Getter, getter);

    for (const Options options : {Options(), Options(QFileDialog::ShowDirsOnly),
                                  QFileDialog::ReadOnly | QFileDialog::DontConfirmOverwrite,
                                  Options(QFileDialog::DontUseNativeDialog)}) {
        expectRejected();
        ModalDriver driver([&](QWidget *dialog) {
            QCOMPARE(dialogOf(dialog)->options(), options);
            cancel(dialog);
        });
        getter({m_parent.get(), QString(), QString(), nullptr, options});
        QVERIFY(driver.ran());
    }
}

void tst_FramelessFileDialogGetters::directoryModeFollowsShowDirsOnly_data()
{
    QTest::addColumn<Options>("options");
    QTest::addColumn<int>("fileMode");
    QTest::newRow("without") << Options() << 2;
    QTest::newRow("with") << Options(QFileDialog::ShowDirsOnly) << 4;
    QTest::newRow("with another") << Options(QFileDialog::ReadOnly) << 2;
    QTest::newRow("with it and another") << (QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly) << 4;
}

void tst_FramelessFileDialogGetters::directoryModeFollowsShowDirsOnly()
{
    QFETCH(Options, options);
    QFETCH(int, fileMode);

    expectRejected();
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(int(dialogOf(dialog)->fileMode()), fileMode);
        cancel(dialog);
    });
    FramelessFileDialog::getExistingDirectoryUrl(m_parent.get(), QString(), QUrl(), options);
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::chosenFileIsReturned_data()
{
    addGetters();
}

void tst_FramelessFileDialogGetters::chosenFileIsReturned()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    expectAccepted();
    ModalDriver driver(typeAndAccept(name));
    QCOMPARE(getter({m_parent.get(), m_dir.path(), QString(), nullptr, Options()}), QStringList(path(name)));
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::severalFilesAreReturnedInOrder()
{
    const QStringList files = {path(QStringLiteral("two.txt")), path(QStringLiteral("one.txt"))};
    expectAccepted();
    expectAccepted();
    ModalDriver driver(typeAndAccept(QStringLiteral("\"two.txt\" \"one.txt\"")));
    driver.then(typeAndAccept(QStringLiteral("\"two.txt\" \"one.txt\"")));
    QCOMPARE(FramelessFileDialog::getOpenFileNames(m_parent.get(), caption(), m_dir.path()), files);
    QCOMPARE(
        FramelessFileDialog::getOpenFileUrls(m_parent.get(), caption(), QUrl::fromLocalFile(m_dir.path())),
        QList<QUrl>({QUrl::fromLocalFile(files.at(0)), QUrl::fromLocalFile(files.at(1))}));
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::ofSeveralFilesTheFirstIsReturned_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    const QString files[] = {QStringLiteral("two.txt"), QStringLiteral("one.txt")};
    const QString newFiles[] = {QStringLiteral("new two.txt"), QStringLiteral("new one.txt")};
    QTest::newRow("open") << ofUrl(FramelessFileDialog::getOpenFileUrl) << files[0] << files[1];
    QTest::newRow("save") << ofUrl(FramelessFileDialog::getSaveFileUrl) << newFiles[0] << newFiles[1];
}

// Qt's dialog takes several names even where one is asked for.
void tst_FramelessFileDialogGetters::ofSeveralFilesTheFirstIsReturned()
{
    QFETCH(Getter, getter);
    QFETCH(QString, first);
    QFETCH(QString, second);

    expectAccepted();
    ModalDriver driver([&](QWidget *dialog) {
        typeAndAccept(QStringLiteral("\"%1\" \"%2\"").arg(first, second))(dialog);
        QCOMPARE(dialogOf(dialog)->selectedUrls().size(), 2);
    });
    QCOMPARE(getter({m_parent.get(), m_dir.path(), QString(), nullptr, Options()}), QStringList(path(first)));
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::newNameCanBeSaved()
{
    const QString file = path(QStringLiteral("folder/new.txt"));
    QVERIFY(!QFile::exists(file));
    expectAccepted();
    ModalDriver driver([](QWidget *dialog) {
        QCOMPARE(part<QLineEdit>(dialog, "fileNameEdit")->text(), QStringLiteral("new.txt"));
        acceptIt(dialog);
    });
    QCOMPARE(FramelessFileDialog::getSaveFileName(m_parent.get(), caption(), file), file);
    QVERIFY(driver.ran());
    QVERIFY(!QFile::exists(file));
}

void tst_FramelessFileDialogGetters::cancelReturnsNothing_data()
{
    addGetters();
}

void tst_FramelessFileDialogGetters::cancelReturnsNothing()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    // A name is selected, which is then not what comes back.
    expectRejected();
    ModalDriver driver(cancel);
    driver.then([](QWidget *dialog) { dialog->close(); }); // without a log line
    driver.then([](QWidget *dialog) { dialogOf(dialog)->done(QDialog::Accepted + 1); });
    const Question question = {m_parent.get(), path(name), QString(), nullptr, Options()};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(getter(question), QStringList());
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::urlThatIsNoLocalFileGivesAnEmptyString()
{
    const QUrl remote(QStringLiteral("ftp://host/folder/one.txt"));
    QCOMPARE(FramelessFileDialog::initialSelection(remote), QStringLiteral("one.txt"));

    // Qt's dialog knows local files alone, so it opens where it would anyway, with the name selected.
    expectRejected();
    ModalDriver driver([](QWidget *dialog) {
        QCOMPARE(part<QLineEdit>(dialog, "fileNameEdit")->text(), QStringLiteral("one.txt"));
        cancel(dialog);
    });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(m_parent.get(), caption(), remote), QUrl());
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::selectedFilterAloneIsOffered_data()
{
    addGetters();
}

// Kept
void tst_FramelessFileDialogGetters::selectedFilterAloneIsOffered()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    if (asksForDirectories())
        return; // they take no filters
    const QString second = QStringLiteral("Pictures and texts (*.png *.txt)");
    QString selected = second;
    expectAccepted();
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(dialogOf(dialog)->nameFilters(), QStringList(second));
        QCOMPARE(part<QComboBox>(dialog, "fileTypeCombo")->count(), 1);
        typeAndAccept(name)(dialog);
    });
    const QString filters = QStringLiteral("All (*);;") + second;
    QCOMPARE(getter({m_parent.get(), m_dir.path(), filters, &selected, Options()}), QStringList(path(name)));
    QVERIFY(driver.ran());
    QCOMPARE(selected, second);
}

void tst_FramelessFileDialogGetters::emptySelectedFilterLeavesTheListAndLearnsTheChoice()
{
    for (const QString &before : {QString(), QStringLiteral("")}) {
        QString selected = before;
        expectAccepted();
        ModalDriver driver([](QWidget *dialog) {
            auto *combo = part<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(combo->count(), 2);
            combo->setCurrentIndex(1);
            Q_EMIT combo->activated(1); // as a click on the entry does
            selectInView(dialog, QStringLiteral("picture.png")); // once it is listed
            acceptIt(dialog);
        });
        const QString filters = QStringLiteral("Text (*.txt);;Pictures (*.png)");
        FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), m_dir.path(), filters, &selected);
        QVERIFY(driver.ran());
        QCOMPARE(selected, QStringLiteral("Pictures (*.png)"));
    }
}

void tst_FramelessFileDialogGetters::selectedFilterStaysAfterCancel()
{
    for (const QString &before : {QString(), QStringLiteral("Text (*.txt)"), QStringLiteral("Other (*.x)")}) {
        QString selected = before;
        expectRejected();
        ModalDriver driver(cancel);
        const QString filters = QStringLiteral("All (*);;Text (*.txt)");
        FramelessFileDialog::getSaveFileName(m_parent.get(), caption(), m_dir.path(), filters, &selected);
        QVERIFY(driver.ran());
        QCOMPARE(selected, before);
    }
}

void tst_FramelessFileDialogGetters::workingDirectoryIsTheNearestDirectory_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QUrl>("directory");
    const QUrl current = QUrl::fromLocalFile(QDir(m_dir.path()).canonicalPath()); // set by init()
    const QUrl folder = QUrl::fromLocalFile(path(QStringLiteral("folder")));
    const auto local = [this](const char *name) {
        return QUrl::fromLocalFile(path(QString::fromLatin1(name)));
    };
    QTest::newRow("empty") << QUrl() << current;
    QTest::newRow("directory") << local("folder") << folder;
    QTest::newRow("directory, slash behind") << local("folder/") << folder;
    QTest::newRow("directory, detour") << local("folder/below/../.") << folder;
    QTest::newRow("file") << local("folder/inside.txt") << folder;
    QTest::newRow("missing in a directory") << local("folder/missing") << folder;
    QTest::newRow("missing in a missing directory") << local("missing/missing") << current;
    QTest::newRow("missing directory, slash behind") << local("missing/") << current;
    QTest::newRow("below a file") << local("one.txt/below") << current;
    const QUrl link = local("folder/below/link"); // links stay as they are
    QTest::newRow("link to a directory") << link << link;
    QTest::newRow("file in a linked directory") << local("folder/below/link/inside.txt") << link;
    QTest::newRow("link to nothing") << local("folder/below/lost") << local("folder/below");
    QTest::newRow("root") << QUrl::fromLocalFile(QStringLiteral("/"))
                          << QUrl::fromLocalFile(QStringLiteral("/"));
    QTest::newRow("missing in the root")
        << QUrl::fromLocalFile(QStringLiteral("/no such name")) << QUrl::fromLocalFile(QStringLiteral("/"));
    QTest::newRow("relative directory") << QUrl::fromLocalFile(QStringLiteral("folder")) << folder;
    QTest::newRow("relative file") << QUrl::fromLocalFile(QStringLiteral("folder/inside.txt")) << folder;
    QTest::newRow("relative missing") << QUrl::fromLocalFile(QStringLiteral("missing")) << current;
    QTest::newRow("no path") << QUrl(QStringLiteral("file:")) << current;
    QTest::newRow("not local") << QUrl(QStringLiteral("ftp://host/folder/file"))
                               << QUrl(QStringLiteral("ftp://host/folder/file"));
    QTest::newRow("without a scheme") << QUrl(QStringLiteral("folder")) << QUrl(QStringLiteral("folder"));
}

void tst_FramelessFileDialogGetters::workingDirectoryIsTheNearestDirectory()
{
    QFETCH(QUrl, url);
    QFETCH(QUrl, directory);

    QCOMPARE(FramelessFileDialog::workingDirectory(url), directory);
}

// Kept
void tst_FramelessFileDialogGetters::noDirectoryIsRemembered()
{
    const QString inside = path(QStringLiteral("folder/inside.txt"));
    expectAccepted();
    ModalDriver driver(acceptIt);
    QCOMPARE(FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), inside), inside);
    QVERIFY(driver.ran());
    QCOMPARE(FramelessFileDialog::workingDirectory(QUrl()), QUrl::fromLocalFile(QDir::currentPath()));
    QVERIFY(QDir::currentPath() != path(QStringLiteral("folder")));
}

void tst_FramelessFileDialogGetters::initialSelectionIsTheNameOfNoDirectory_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("name");
    const auto local = [this](const char *name) {
        return QUrl::fromLocalFile(path(QString::fromLatin1(name)));
    };
    QTest::newRow("empty") << QUrl() << QString();
    QTest::newRow("file") << local("one.txt") << QStringLiteral("one.txt");
    QTest::newRow("missing") << local("missing/name.txt") << QStringLiteral("name.txt");
    QTest::newRow("directory") << local("folder") << QString();
    QTest::newRow("directory, slash behind") << local("folder/") << QString();
    QTest::newRow("link to a directory") << local("folder/below/link") << QString();
    QTest::newRow("link to nothing") << local("folder/below/lost") << QStringLiteral("lost");
    QTest::newRow("relative directory") << QUrl::fromLocalFile(QStringLiteral("folder")) << QString();
    QTest::newRow("relative file") << QUrl::fromLocalFile(QStringLiteral("one.txt"))
                                   << QStringLiteral("one.txt");
    QTest::newRow("not local") << QUrl(QStringLiteral("ftp://host/folder/file")) << QStringLiteral("file");
    QTest::newRow("not local, slash behind") << QUrl(QStringLiteral("ftp://host/folder/")) << QString();
}

void tst_FramelessFileDialogGetters::initialSelectionIsTheNameOfNoDirectory()
{
    QFETCH(QUrl, url);
    QFETCH(QString, name);

    QCOMPARE(FramelessFileDialog::initialSelection(url), name);
}

void tst_FramelessFileDialogGetters::dialogOpensThereWithTheNameSelected_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString() << QString() << QString();
    QTest::newRow("file") << QStringLiteral("folder/inside.txt") << QStringLiteral("folder")
                          << QStringLiteral("inside.txt");
    QTest::newRow("directory") << QStringLiteral("folder") << QStringLiteral("folder") << QString();
    QTest::newRow("missing in a directory")
        << QStringLiteral("folder/name.txt") << QStringLiteral("folder") << QStringLiteral("name.txt");
    QTest::newRow("missing in a missing directory")
        << QStringLiteral("missing/name.txt") << QString() << QStringLiteral("name.txt");
}

void tst_FramelessFileDialogGetters::dialogOpensThereWithTheNameSelected()
{
    QFETCH(QString, dir);
    QFETCH(QString, opened);
    QFETCH(QString, name);

    expectRejected();
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(dialogOf(dialog)->directory().path(), QDir::cleanPath(path(opened)));
        QCOMPARE(part<QLineEdit>(dialog, "fileNameEdit")->text(), name);
        cancel(dialog);
    });
    openFileName()({m_parent.get(), dir.isEmpty() ? QString() : path(dir), QString(), nullptr, Options()});
    QVERIFY(driver.ran());
}

static void addOddNames()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << QStringLiteral(" two  spaces .txt");
    QTest::newRow("single quote") << QStringLiteral("it's.txt");
    QTest::newRow("double quote") << QStringLiteral("a \"quoted\" name");
    QTest::newRow("one double quote") << QStringLiteral("5\" disk");
    QTest::newRow("backslash") << QStringLiteral("back\\slash");
    QTest::newRow("newline") << QStringLiteral("two\nlines");
    QTest::newRow("Chinese") << QString::fromUtf8("\xe6\x96\x87\xe4\xbb\xb6.txt");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa7\xd7\x95\xd7\x91\xd7\xa5.txt");
    QTest::newRow("outside the basic plane") << QString::fromUtf8("\xf0\x9f\x97\x8e.txt");
    QTest::newRow("ampersand") << QStringLiteral("this & that");
    QTest::newRow("percent") << QStringLiteral("100%20.txt");
    QTest::newRow("hash and question mark") << QStringLiteral("a#b?c");
}

void tst_FramelessFileDialogGetters::oddNamesAreReturnedAsQFileDialogReturnsThem_data()
{
    addOddNames();
}

void tst_FramelessFileDialogGetters::oddNamesAreReturnedAsQFileDialogReturnsThem()
{
    QFETCH(QString, name);

    // GIVEN a file of that name, and what Qt's dialog makes of it
    QFile file(path(QStringLiteral("folder/") + name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QFileDialog qt(nullptr, QString(), path(QStringLiteral("folder")));
    qt.setFileMode(QFileDialog::ExistingFiles);
    qt.selectFile(name);
    const QStringList expected = qt.selectedFiles();
    QVERIFY(!expected.isEmpty());
    const bool isThere = expected == QStringList(file.fileName());

    // WHEN the file is the one to start with, and accepted
    if (isThere)
        expectAccepted();
    else
        expectRejected();
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(dialogOf(dialog)->selectedFiles(), expected);
        if (isThere)
            acceptIt(dialog);
        else // Qt reads quotes as separators, and would say that the files are missing.
            cancel(dialog);
    });
    const QStringList files =
        FramelessFileDialog::getOpenFileNames(m_parent.get(), caption(), file.fileName());

    // THEN it is the same
    QVERIFY(driver.ran());
    QCOMPARE(files, isThere ? expected : QStringList());
    QVERIFY(file.remove());
}

void tst_FramelessFileDialogGetters::oddNamesCanBePickedInTheList_data()
{
    addOddNames();
}

void tst_FramelessFileDialogGetters::oddNamesCanBePickedInTheList()
{
    QFETCH(QString, name);

    QFile file(path(QStringLiteral("folder/") + name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    expectAccepted();
    ModalDriver driver([&](QWidget *dialog) {
        selectInView(dialog, name);
        acceptIt(dialog);
    });
    QCOMPARE(FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), path(QStringLiteral("folder"))),
             file.fileName());
    QVERIFY(driver.ran());
    QVERIFY(file.remove());
}

void tst_FramelessFileDialogGetters::unreadableDirectoryIsShownEmpty()
{
    // GIVEN a directory with a file in it that nobody may read
    const QString locked = path(QStringLiteral("locked"));
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("locked")));
    {
        QFile file(locked + QStringLiteral("/file.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QFile::Permissions all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(
        m_dir.path(), all | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther));
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions()));

    // WHEN it is where the dialog opens
    {
        const NotRoot notRoot;
        const NoWatchMessages noWatchMessages;
        QVERIFY(QDir(locked).entryList(QDir::AllEntries).isEmpty());
        expectRejected();
        ModalDriver driver([&](QWidget *dialog) {
            QCOMPARE(dialogOf(dialog)->directory().path(), locked);
            const auto *view = part<QAbstractItemView>(dialog, "treeView");
            QCOMPARE(view->model()->rowCount(view->rootIndex()), 0);
            cancel(dialog);
        });
        QCOMPARE(FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), locked), QString());
        QVERIFY(driver.ran());
    }
    QVERIFY(QFile::setPermissions(locked, all));
    QVERIFY(QDir(locked).removeRecursively());
}

void tst_FramelessFileDialogGetters::fileThatIsNotThereIsNotReturned()
{
    expectRejected();
    ModalDriver driver([](QWidget *dialog) {
        auto *edit = part<QLineEdit>(dialog, "fileNameEdit");
        edit->setText(QStringLiteral("missing.txt"));
        QVERIFY(!acceptButton(dialog)->isEnabled());
        QTest::keyClick(edit, Qt::Key_Return); // returns when the message is closed
        QVERIFY(dialog->isVisible());
        cancel(dialog);
    });
    driver.then([](QWidget *message) {
        QVERIFY(!dialogOf(message));
        message->close();
    });
    QCOMPARE(FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), m_dir.path()), QString());
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialogGetters::dialogIsLeftToTheParent_data()
{
    addGetters();
}

// Kept
void tst_FramelessFileDialogGetters::dialogIsLeftToTheParent()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    QPointer<QWidget> seen;
    expectAccepted();
    ModalDriver driver([&](QWidget *dialog) {
        seen = dialog;
        typeAndAccept(name)(dialog);
    });
    getter({m_parent.get(), m_dir.path(), QString(), nullptr, Options()});
    QVERIFY(driver.ran());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(seen);
    QVERIFY(!seen->isVisible());
    QCOMPARE(seen->parentWidget(), m_parent.get());
    m_parent.reset();
    QVERIFY(!seen);
}

// Kept
void tst_FramelessFileDialogGetters::dialogWithoutParentStays()
{
    QPointer<QWidget> seen;
    expectRejected();
    ModalDriver driver([&](QWidget *dialog) {
        seen = dialog;
        cancel(dialog);
    });
    FramelessFileDialog::getOpenFileName();
    QVERIFY(driver.ran());
    QCOMPARE(leftOverTopLevels({QStringLiteral("QWidget")}), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(seen);
    delete seen;
}

void tst_FramelessFileDialogGetters::deletedParentReturnsNothing_data()
{
    addGetters();
}

void tst_FramelessFileDialogGetters::deletedParentReturnsNothing()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    const QString before = QStringLiteral("Text (*.txt)");
    QString selected = before;
    QPointer<QWidget> seen;
    ModalDriver driver([&](QWidget *dialog) {
        seen = dialog;
        m_parent.reset();
    });
    QCOMPARE(getter({m_parent.get(), path(name), QString(), &selected, Options()}), QStringList());
    QVERIFY(driver.ran());
    QVERIFY(!seen);
    QCOMPARE(selected, before);
}

void tst_FramelessFileDialogGetters::deletedInnerDialogReturnsNothing_data()
{
    addGetters();
}

void tst_FramelessFileDialogGetters::deletedInnerDialogReturnsNothing()
{
    QFETCH(Getter, getter);
    QFETCH(QString, name);

    const QString before = QStringLiteral("Text (*.txt)");
    QString selected = before;
    ModalDriver driver([&](QWidget *dialog) {
        delete dialog->findChild<QFileDialog *>();
        dialogOf(dialog)->accept();
    });
    QCOMPARE(getter({m_parent.get(), path(name), QString(), &selected, Options()}), QStringList());
    QVERIFY(driver.ran());
    QCOMPARE(selected, asksForDirectories() ? before : QString());
}

void tst_FramelessFileDialogGetters::gettersMayNest()
{
    const QString one = path(QStringLiteral("one.txt"));
    QString inner;
    expectAccepted();
    expectAccepted();
    ModalDriver driver([&](QWidget *dialog) {
        inner = FramelessFileDialog::getOpenFileName(dialog, caption(), path(QStringLiteral("two.txt")));
        acceptIt(dialog);
    });
    driver.then(acceptIt);
    QCOMPARE(FramelessFileDialog::getOpenFileName(m_parent.get(), caption(), one), one);
    QCOMPARE(inner, path(QStringLiteral("two.txt")));
    QVERIFY(driver.ran());
}

QTEST_MAIN(tst_FramelessFileDialogGetters)

#include "tst_framelessfiledialog_getters.moc"
