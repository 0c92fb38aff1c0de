// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The rules of the limited file dialog, one by one: its roots, what fits them, and what each of its functions
// does to the dialog's widgets.

#include "support/confined.h"
#include "support/functionguard.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <optional>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

/*! Writes down which widgets were enabled or disabled, in that order, and what the history was the first
 * time. */
class EnabledChanges : public QObject
{
public:
    explicit EnabledChanges(Confined *confined)
        : m_dialog(&confined->dialog)
    {
        const FileDialogParts &parts = confined->parts;
        for (QWidget *widget :
             {static_cast<QWidget *>(parts.toParent), static_cast<QWidget *>(parts.back),
              static_cast<QWidget *>(parts.forward), static_cast<QWidget *>(parts.lookIn), parts.sidebar})
            widget->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange) {
            if (names.isEmpty())
                history = m_dialog->history();
            names.append(watched->objectName());
        }
        return QObject::eventFilter(watched, event);
    }

    QStringList names;
    QStringList history;

private:
    const QFileDialog *const m_dialog;
};

/*! "@/root/link" leads out of the root, "@/outside/link" into it. */
bool addLinks(const FileTree &tree)
{
    return QFile::link(tree.outside(), tree.at(QStringLiteral("@/root/link")))
        && QFile::link(tree.at(QStringLiteral("@/root/sub")), tree.at(QStringLiteral("@/outside/link")));
}

} // namespace

class tst_LimitedFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
        m_tree.emplace();
        QVERIFY(m_tree->isValid());
    }
    void cleanup()
    {
        m_tree.reset();
        m_guard.reset();
    }

    // Construction
    void flagsConstructorGivesParentAndFlags();
    void captionConstructorGivesCaptionDirectoryAndFilter();
    void newDialogHasNoLimit_data();
    void newDialogHasNoLimit();
    void newDialogIsWidgetBased_data();
    void newDialogIsWidgetBased();
    void newDialogFollowsItsWidgets_data();
    void newDialogFollowsItsWidgets();
    void nothingIsAddedToTheMetaObject();

    // Containment
    void pathFits_data();
    void pathFits();
    void secondRootAloneIsNoLimit();
    void secondRootOfBeforeIsUsedWithALaterLimit();

    // Roots
    void limitIsTakenAsGiven_data();
    void limitIsTakenAsGiven();
    void limitDisablesLookInAndSidebar();
    void badLimitLiftsTheLimit_data();
    void badLimitLiftsTheLimit();
    void badLimitLeavesLookInToASecondRoot();
    void sameLimitDoesNothing();
    void sameEmptyLimitDoesNothing();
    void limitPutsTheFileNameAnewWithoutAContextMenu();
    void limitDerivesParentButtonAndDisablesBack_data();
    void limitDerivesParentButtonAndDisablesBack();
    void limitChangesWidgetsInOrder();
    void limitIsChangedWhileOpen();
    void secondRootTouchesNoWidget();
    void badSecondRootIsIgnored_data();
    void badSecondRootIsIgnored();
    void secondRootIsReplacedButNeverDropped();

    // Parent and back button
    void parentAndBackFollowTheFolder_data();
    void parentAndBackFollowTheFolder();
    void parentIsSetBeforeBack();
    void forwardIsLeftAlone();
    void enteringReplacesTheHistoryFirst();

    // History
    void historyIsTheRoots_data();
    void historyIsTheRoots();

    // Typed text
    void textIsTestedInTheFolderShown_data();
    void textIsTestedInTheFolderShown();
    void textThatComesWhileDisabledLeavesTheButtonDisabled();
    void returnAndEnterAreTestedLikeText_data();
    void returnAndEnterAreTestedLikeText();

    // Look-in entries
    void lookInEntryNamesARoot_data();
    void lookInEntryNamesARoot();
    void lookInIsPrunedFromTheIndex_data();
    void lookInIsPrunedFromTheIndex();
    void lookInIsPrunedToASecondRootAlone();
    void lookInIsLeftAloneWithoutARoot();
    void lookInIsLeftAloneOtherwise();

    // Keys
    void backspaceInTheViews_data();
    void backspaceInTheViews();
    void otherKeysAndEventsPass_data();
    void otherKeysAndEventsPass();

private:
    std::optional<FunctionGuard> m_guard;
    std::optional<FileTree> m_tree;
};

void tst_LimitedFileDialog::flagsConstructorGivesParentAndFlags()
{
    QWidget parent;
    const LimitedFileDialog dialog(&parent, Qt::Window | Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    const LimitedFileDialog plain(nullptr, Qt::WindowFlags());
    QCOMPARE(plain.parentWidget(), nullptr);
    QCOMPARE(plain.windowFlags(), QFileDialog(nullptr, Qt::WindowFlags()).windowFlags());
}

void tst_LimitedFileDialog::captionConstructorGivesCaptionDirectoryAndFilter()
{
    QWidget parent;
    const LimitedFileDialog dialog(&parent, QStringLiteral("Caption"), m_tree->root(),
                                   QStringLiteral("Texts (*.txt);;All (*)"));
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Caption"));
    QCOMPARE(dialog.directory().absolutePath(), m_tree->root());
    QCOMPARE(dialog.nameFilters(), QStringList({QStringLiteral("Texts (*.txt)"), QStringLiteral("All (*)")}));
}

void tst_LimitedFileDialog::newDialogHasNoLimit_data()
{
    QTest::addColumn<bool>("flags");
    QTest::newRow("flags") << true;
    QTest::newRow("caption") << false;
}

void tst_LimitedFileDialog::newDialogHasNoLimit()
{
    QFETCH(bool, flags);
    const auto dialog = flags
        ? std::make_unique<LimitedFileDialog>(nullptr, Qt::WindowFlags())
        : std::make_unique<LimitedFileDialog>(nullptr, QString(), m_tree->root(), QString());
    const FileDialogParts parts(dialog.get());
    QVERIFY(dialog->getLimitedPath().isEmpty());
    QVERIFY(dialog->pathFits(QStringLiteral("/")));
    QVERIFY(dialog->pathFits(QString()));
    QVERIFY(parts.lookIn->isEnabled());
    QVERIFY(parts.sidebar->isEnabled());
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::DefaultContextMenu);
}

void tst_LimitedFileDialog::newDialogIsWidgetBased_data()
{
    newDialogHasNoLimit_data();
}

void tst_LimitedFileDialog::newDialogIsWidgetBased()
{
    QFETCH(bool, flags);
    const auto dialog = flags
        ? std::make_unique<LimitedFileDialog>(nullptr, Qt::WindowFlags())
        : std::make_unique<LimitedFileDialog>(nullptr, QString(), m_tree->root(), QString());
    QCOMPARE(dialog->options(), QFileDialog::Options(QFileDialog::DontUseNativeDialog));
    QVERIFY(FileDialogParts(dialog.get()).areThere());
}

void tst_LimitedFileDialog::newDialogFollowsItsWidgets_data()
{
    newDialogHasNoLimit_data();
}

void tst_LimitedFileDialog::newDialogFollowsItsWidgets()
{
    QFETCH(bool, flags);
    const auto dialog = flags
        ? std::make_unique<LimitedFileDialog>(nullptr, Qt::WindowFlags())
        : std::make_unique<LimitedFileDialog>(nullptr, QString(), m_tree->root(), QString());
    const FileDialogParts parts(dialog.get());
    dialog->setDirectory(m_tree->at(QStringLiteral("@/root/sub")));
    dialog->setLimitedPath(m_tree->root());

    // The file name's text
    parts.edit->setText(QStringLiteral("inner.txt"));
    QVERIFY(parts.accepting()->isEnabled());
    parts.edit->setText(QStringLiteral("../../outside/secret.txt"));
    QVERIFY(!parts.accepting()->isEnabled());

    // The folder that is entered
    parts.toParent->setEnabled(false);
    Q_EMIT dialog->directoryEntered(m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(parts.toParent->isEnabled());

    // Keys
    dialog->setDirectory(m_tree->root());
    for (QWidget *view : {static_cast<QWidget *>(parts.list), static_cast<QWidget *>(parts.tree)}) {
        QTest::keyClick(view, Qt::Key_Backspace);
        QCOMPARE(parts.shown(), m_tree->root());
    }
}

void tst_LimitedFileDialog::nothingIsAddedToTheMetaObject()
{
    const QMetaObject &own = LimitedFileDialog::staticMetaObject;
    QCOMPARE(own.className(), "Tarn::Widgets::LimitedFileDialog");
    QCOMPARE(own.superClass(), &QFileDialog::staticMetaObject);
    QCOMPARE(own.enumeratorCount(), own.enumeratorOffset());
    QCOMPARE(own.methodCount(), own.methodOffset());
}

void tst_LimitedFileDialog::pathFits_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("fits");

    const struct
    {
        const char *name;
        const char *limit;
        const char *limit1;
        const char *path;
        bool fits;
    } rows[] = {
        {"no limit: anything", "", "", "/etc/hosts", true},
        {"no limit: the file system's root", "", "", "/", true},
        {"no limit: nothing", "", "", "", true},
        {"no limit but a second root: anything", "", "@/second", "/etc/hosts", true},

        {"root itself", "@/root", "", "@/root", false},
        {"root with a slash", "@/root", "", "@/root/", true},
        {"file in it", "@/root", "", "@/root/file.txt", true},
        {"missing file in it", "@/root", "", "@/root/none", true},
        {"folder below", "@/root", "", "@/root/sub", true},
        {"deep below", "@/root", "", "@/root/sub/deep/deepest", true},
        {"parent", "@/root", "", "@", false},
        {"file system's root", "@/root", "", "/", false},
        {"nothing", "@/root", "", "", false},
        {"sibling", "@/root", "", "@/outside", false},
        {"file in a sibling", "@/root", "", "@/outside/secret.txt", false},
        {"sibling that begins like it", "@/root", "", "@/rootx", true},
        {"file in such a sibling", "@/root", "", "@/rootx/near.txt", true},
        {"one character short", "@/root", "", "@/roo", false},
        {"other case", "@/root", "", "@/Root/file.txt", false},
        {"upper case", "@/root", "", "@/ROOT/FILE.TXT", false},
        {"relative", "@/root", "", "root/file.txt", false},
        {"further on in the path", "@/root", "", "/x@/root/file.txt", false},
        {"two dots are not resolved", "@/root", "", "@/root/../outside", true},
        {"dots on the way are not resolved", "@/root", "", "@/./root/file.txt", false},
        {"double slash is not resolved", "@/root", "", "@//root/file.txt", false},
        {"space in front", "@/root", "", " @/root/file.txt", false},

        {"backslashes below", "@/root", "", "@/root\\sub\\inner.txt", true},
        {"backslash before the root", "@/root", "", "@\\root\\file.txt", true},
        {"backslashes for root itself", "@/root", "", "@\\root", false},
        {"root and a backslash", "@/root", "", "@/root\\", true},
        {"backslashes elsewhere", "@/root", "", "\\etc\\hosts", false},

        {"root with a slash at its end: itself", "@/root/", "", "@/root/", false},
        {"root with a slash at its end: without it", "@/root/", "", "@/root", false},
        {"root with a slash at its end: below", "@/root/", "", "@/root/file.txt", true},
        {"root with a slash at its end: alike sibling", "@/root/", "", "@/rootx/near.txt", false},
        {"root with dots: its plain form", "@/sub/../root", "", "@/root/file.txt", false},
        {"whole file system: a file", "/", "", "/etc/hosts", true},
        {"whole file system: itself", "/", "", "/", false},

        {"two roots: below the first", "@/root", "@/second", "@/root/sub", true},
        {"two roots: below the second", "@/root", "@/second", "@/second/below", true},
        {"two roots: the first itself", "@/root", "@/second", "@/root", false},
        {"two roots: the second itself", "@/root", "@/second", "@/second", false},
        {"two roots: the second with a slash", "@/root", "@/second", "@/second/", true},
        {"two roots: neither", "@/root", "@/second", "@/outside/secret.txt", false},
        {"two roots: nothing", "@/root", "@/second", "", false},
        {"two roots: sibling like the second", "@/root", "@/second", "@/second hand", true},
        {"two roots: second in other case", "@/root", "@/second", "@/Second/two.txt", false},
        {"two roots: backslashes in the second", "@/root", "@/second", "@\\second\\two.txt", true},
        {"second above the first: the first", "@/root/sub", "@/root", "@/root/sub", true},
        {"second inside the first: the second", "@/root", "@/root/sub", "@/root/sub", true},
        {"the same twice: itself", "@/root", "@/root", "@/root", false},
        {"missing second root", "@/root", "@/none", "@/none/file", false},
        {"file for a second root", "@/root", "@/second/two.txt", "@/second/two.txt.bak", false},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.limit) << QString::fromLatin1(row.limit1)
                                << QString::fromLatin1(row.path) << row.fits;
    }
}

void tst_LimitedFileDialog::pathFits()
{
    QFETCH(QString, limit);
    QFETCH(QString, limit1);
    QFETCH(QString, path);
    QFETCH(bool, fits);

    QVERIFY(m_tree->addFolder(QStringLiteral("@/sub")));
    const Confined confined(*m_tree, QStringLiteral("@/root"), limit, limit1);
    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->at(limit)); // or another rule is tried
    QCOMPARE(confined.dialog.pathFits(m_tree->at(path)), fits);
}

void tst_LimitedFileDialog::secondRootAloneIsNoLimit()
{
    const Confined confined(*m_tree, QStringLiteral("@/root"), QString(), QStringLiteral("@/second"));
    QVERIFY(confined.dialog.pathFits(m_tree->outside()));
    QVERIFY(confined.parts.sidebar->isEnabled());
    QVERIFY(confined.parts.lookIn->isEnabled());
}

void tst_LimitedFileDialog::secondRootOfBeforeIsUsedWithALaterLimit()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QString(), QStringLiteral("@/second"));
    confined.dialog.setLimitedPath(m_tree->root());
    QVERIFY(confined.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
    QVERIFY(!confined.dialog.pathFits(m_tree->outside()));
}

void tst_LimitedFileDialog::limitIsTakenAsGiven_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("absolute") << QStringLiteral("@/root");
    QTest::newRow("with a slash at its end") << QStringLiteral("@/root/");
    QTest::newRow("with dots") << QStringLiteral("@/second/../root");
    QTest::newRow("relative") << QStringLiteral(".");
    QTest::newRow("file system's root") << QStringLiteral("/");
    QTest::newRow("with spaces") << QStringLiteral("@/a b  c");
    QTest::newRow("with quotes") << QStringLiteral("@/\"it's\"");
    QTest::newRow("with a backslash") << QStringLiteral("@/back\\slash");
    QTest::newRow("with a newline") << QStringLiteral("@/new\nline");
    QTest::newRow("not Latin") << QString::fromUtf8("@/\xE7\x9B\xAE\xE5\xBD\x95 \xD0\xB6 \xF0\x9F\x93\x81");
}

void tst_LimitedFileDialog::limitIsTakenAsGiven()
{
    QFETCH(QString, path);
    QVERIFY(m_tree->addFolder(path));
    LimitedFileDialog dialog(nullptr, QString(), m_tree->root(), QString());
    dialog.setLimitedPath(m_tree->at(path));
    QCOMPARE(dialog.getLimitedPath(), m_tree->at(path));
    QVERIFY(!FileDialogParts(&dialog).sidebar->isEnabled());
}

void tst_LimitedFileDialog::limitDisablesLookInAndSidebar()
{
    LimitedFileDialog dialog(nullptr, QString(), m_tree->root(), QString());
    const FileDialogParts parts(&dialog);
    dialog.setLimitedPath(m_tree->root());
    QVERIFY(!parts.lookIn->isEnabled());
    QVERIFY(!parts.sidebar->isEnabled());
}

void tst_LimitedFileDialog::badLimitLiftsTheLimit_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("missing") << QStringLiteral("@/none");
    QTest::newRow("a file") << QStringLiteral("@/root/file.txt");
    QTest::newRow("below a file") << QStringLiteral("@/root/file.txt/x");
    QTest::newRow("other case") << QStringLiteral("@/ROOT");
}

void tst_LimitedFileDialog::badLimitLiftsTheLimit()
{
    QFETCH(QString, path);
    Confined confined(*m_tree);
    QVERIFY(!confined.dialog.pathFits(m_tree->outside()));

    confined.dialog.setLimitedPath(m_tree->at(path));

    QVERIFY(confined.dialog.getLimitedPath().isEmpty());
    QVERIFY(confined.dialog.pathFits(m_tree->outside()));
    QVERIFY(confined.parts.lookIn->isEnabled());
    QVERIFY(confined.parts.sidebar->isEnabled());
    QVERIFY(confined.parts.toParent->isEnabled());
    QVERIFY(!confined.parts.back->isEnabled());
    QVERIFY(!QFileInfo::exists(m_tree->at(QStringLiteral("@/none"))));
}

void tst_LimitedFileDialog::badLimitLeavesLookInToASecondRoot()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    confined.parts.lookIn->setEnabled(false);
    confined.dialog.setLimitedPath(QString());
    QVERIFY(confined.parts.sidebar->isEnabled());
    QVERIFY(!confined.parts.lookIn->isEnabled());
}

void tst_LimitedFileDialog::sameLimitDoesNothing()
{
    // GIVEN a limit, and widgets that it would not leave like this
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    parts.edit->setText(QStringLiteral("file.txt"));
    parts.edit->setSelection(0, 4);
    parts.edit->setContextMenuPolicy(Qt::DefaultContextMenu);
    for (QWidget *widget : {static_cast<QWidget *>(parts.lookIn), parts.sidebar,
                            static_cast<QWidget *>(parts.toParent), static_cast<QWidget *>(parts.back)})
        widget->setEnabled(true);

    confined.dialog.setLimitedPath(m_tree->root());

    QCOMPARE(parts.edit->selectedText(), QStringLiteral("file"));
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::DefaultContextMenu);
    QVERIFY(parts.lookIn->isEnabled());
    QVERIFY(parts.sidebar->isEnabled());
    QVERIFY(parts.toParent->isEnabled());
    QVERIFY(parts.back->isEnabled());

    // AND the same folder, spelt in another way, is another limit
    confined.dialog.setLimitedPath(m_tree->root() + QLatin1Char('/'));
    QVERIFY(!parts.sidebar->isEnabled());
}

void tst_LimitedFileDialog::sameEmptyLimitDoesNothing()
{
    LimitedFileDialog dialog(nullptr, QString(), m_tree->root(), QString());
    const FileDialogParts parts(&dialog);
    parts.sidebar->setEnabled(false);
    dialog.setLimitedPath(QString());
    QVERIFY(!parts.sidebar->isEnabled());
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::DefaultContextMenu);
    dialog.setLimitedPath(QStringLiteral("/none")); // not the same, though it comes to the same
    QVERIFY(parts.sidebar->isEnabled());
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::NoContextMenu);
}

void tst_LimitedFileDialog::limitPutsTheFileNameAnewWithoutAContextMenu()
{
    LimitedFileDialog dialog(nullptr, QString(), m_tree->root(), QString());
    const FileDialogParts parts(&dialog);
    parts.edit->setText(QStringLiteral("file.txt"));
    parts.edit->setSelection(0, 4);
    QSignalSpy changed(parts.edit, &QLineEdit::textChanged);

    dialog.setLimitedPath(m_tree->root());

    QCOMPARE(parts.edit->text(), QStringLiteral("file.txt"));
    QVERIFY(!parts.edit->hasSelectedText());
    QCOMPARE(parts.edit->cursorPosition(), 8);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::NoContextMenu);
    dialog.setLimitedPath(QString());
    QCOMPARE(parts.edit->contextMenuPolicy(), Qt::NoContextMenu); // also without one
}

void tst_LimitedFileDialog::limitDerivesParentButtonAndDisablesBack_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<bool>("parent");
    QTest::newRow("in the root") << QStringLiteral("@/root") << false;
    QTest::newRow("below") << QStringLiteral("@/root/sub") << true;
    QTest::newRow("elsewhere") << QStringLiteral("@/outside") << false;
}

void tst_LimitedFileDialog::limitDerivesParentButtonAndDisablesBack()
{
    QFETCH(QString, start);
    QFETCH(bool, parent);
    LimitedFileDialog dialog(nullptr, QString(), m_tree->at(start), QString());
    const FileDialogParts parts(&dialog);
    parts.back->setEnabled(true);
    parts.toParent->setEnabled(!parent);
    dialog.setLimitedPath(m_tree->root());
    QCOMPARE(parts.toParent->isEnabled(), parent);
    QVERIFY(!parts.back->isEnabled());
}

void tst_LimitedFileDialog::limitChangesWidgetsInOrder()
{
    // GIVEN a dialog below the root, with all of them the other way round
    Confined confined(*m_tree, QStringLiteral("@/root/sub"), QString());
    confined.parts.toParent->setEnabled(false);
    confined.parts.back->setEnabled(false);
    EnabledChanges changes(&confined);

    confined.dialog.setLimitedPath(m_tree->root());

    // Back is enabled with the parent button first, and disabled at the end.
    QCOMPARE(changes.names,
             QStringList({QStringLiteral("lookInCombo"), QStringLiteral("sidebar"),
                          QStringLiteral("toParentButton"), QStringLiteral("backButton"),
                          QStringLiteral("backButton")}));
    QVERIFY(!confined.parts.back->isEnabled());
}

void tst_LimitedFileDialog::limitIsChangedWhileOpen()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"));
    QVERIFY(confined.show());
    QVERIFY(confined.parts.toParent->isEnabled());
    confined.dialog.setLimitedPath(m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(!confined.parts.toParent->isEnabled());
    confined.parts.type(QStringLiteral("../file.txt"));
    QVERIFY(!confined.parts.accepting()->isEnabled());
    confined.dialog.setLimitedPath(m_tree->root());
    QVERIFY(confined.parts.toParent->isEnabled());
    confined.parts.type(QStringLiteral("../file.txt"));
    QVERIFY(confined.parts.accepting()->isEnabled());
}

void tst_LimitedFileDialog::secondRootTouchesNoWidget()
{
    Confined confined(*m_tree);
    confined.parts.edit->setContextMenuPolicy(Qt::DefaultContextMenu);
    EnabledChanges changes(&confined);
    const QStringList history = confined.dialog.history();

    confined.dialog.setLimitedPath1(m_tree->second());

    QCOMPARE(changes.names, QStringList());
    QCOMPARE(confined.dialog.history(), history);
    QCOMPARE(confined.parts.edit->contextMenuPolicy(), Qt::DefaultContextMenu);
    QVERIFY(!confined.parts.lookIn->isEnabled()); // as the first root has left it
    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->root());
    QVERIFY(confined.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
}

void tst_LimitedFileDialog::badSecondRootIsIgnored_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("missing") << QStringLiteral("@/none");
    QTest::newRow("a file") << QStringLiteral("@/second/two.txt");
}

void tst_LimitedFileDialog::badSecondRootIsIgnored()
{
    QFETCH(QString, path);

    // Alone it is as if there was none
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"), path);
    QVERIFY(!confined.parts.lookIn->isEnabled());
    QCOMPARE(confined.dialog.history(), QStringList(m_tree->root()));
    QVERIFY(!confined.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
    QVERIFY(!QFileInfo::exists(m_tree->at(QStringLiteral("@/none"))));

    // AND after a good one, that one stays
    confined.dialog.setLimitedPath1(m_tree->second());
    confined.dialog.setLimitedPath1(m_tree->at(path));
    QVERIFY(confined.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
    QVERIFY(!confined.dialog.pathFits(m_tree->outside()));
}

void tst_LimitedFileDialog::secondRootIsReplacedButNeverDropped()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    confined.dialog.setLimitedPath1(m_tree->outside());
    QVERIFY(confined.dialog.pathFits(m_tree->at(QStringLiteral("@/outside/secret.txt"))));
    QVERIFY(!confined.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
    confined.dialog.setLimitedPath(QString());
    confined.dialog.setLimitedPath(m_tree->root());
    QVERIFY(confined.dialog.pathFits(m_tree->at(QStringLiteral("@/outside/secret.txt"))));
}

void tst_LimitedFileDialog::parentAndBackFollowTheFolder_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("enabled");
    const QString root = QStringLiteral("@/root");
    const QString second = QStringLiteral("@/second");
    const QString none;
    QTest::newRow("root") << root << none << root << false;
    QTest::newRow("below") << root << none << QStringLiteral("@/root/sub") << true;
    QTest::newRow("deep below") << root << none << QStringLiteral("@/root/sub/deep/deepest") << true;
    QTest::newRow("outside") << root << none << QStringLiteral("@/outside") << false;
    QTest::newRow("above") << root << none << QStringLiteral("@") << false;
    QTest::newRow("file system's root") << root << none << QStringLiteral("/") << false;
    QTest::newRow("sibling that begins like it") << root << none << QStringLiteral("@/rootx") << true;
    QTest::newRow("no limit") << none << none << QStringLiteral("@/outside") << true;
    QTest::newRow("second root") << root << second << second << false;
    QTest::newRow("below the second root") << root << second << QStringLiteral("@/second/below") << true;
    QTest::newRow("outside both") << root << second << QStringLiteral("@/outside") << false;
    QTest::newRow("link that leads out") << root << none << QStringLiteral("@/root/link") << true;
    QTest::newRow("link that leads in") << root << none << QStringLiteral("@/outside/link") << false;
}

void tst_LimitedFileDialog::parentAndBackFollowTheFolder()
{
    QFETCH(QString, limit);
    QFETCH(QString, limit1);
    QFETCH(QString, shown);
    QFETCH(bool, enabled);

    QVERIFY(addLinks(*m_tree));
    Confined confined(*m_tree, shown, limit, limit1);
    QCOMPARE(confined.parts.shown(), m_tree->at(shown));
    for (const bool before : {false, true}) {
        confined.parts.toParent->setEnabled(before);
        confined.parts.back->setEnabled(before);
        confined.dialog.checkGoToParent();
        QCOMPARE(confined.parts.toParent->isEnabled(), enabled);
        QCOMPARE(confined.parts.back->isEnabled(), enabled);
    }
}

void tst_LimitedFileDialog::parentIsSetBeforeBack()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"));
    confined.parts.toParent->setEnabled(false);
    confined.parts.back->setEnabled(false);
    EnabledChanges changes(&confined);
    confined.dialog.checkGoToParent();
    QCOMPARE(changes.names, QStringList({QStringLiteral("toParentButton"), QStringLiteral("backButton")}));
}

void tst_LimitedFileDialog::forwardIsLeftAlone()
{
    Confined confined(*m_tree);
    for (const bool on : {true, false}) {
        confined.parts.forward->setEnabled(on);
        confined.dialog.checkGoToParent();
        QCOMPARE(confined.parts.forward->isEnabled(), on);
        confined.dialog.setLimitedPath(on ? m_tree->second() : m_tree->root());
        QCOMPARE(confined.parts.forward->isEnabled(), on);
    }
}

// The history is replaced before the buttons are looked at: seen by what it is when the first of them
// changes.
void tst_LimitedFileDialog::enteringReplacesTheHistoryFirst()
{
    Confined confined(*m_tree);
    confined.dialog.setHistory({m_tree->outside()});
    confined.parts.toParent->setEnabled(true);
    QVERIFY(confined.dialog.history().contains(m_tree->outside()));
    EnabledChanges changes(&confined);

    Q_EMIT confined.dialog.directoryEntered(m_tree->root());

    QCOMPARE(changes.names.value(0), QStringLiteral("toParentButton"));
    QCOMPARE(changes.history, QStringList(m_tree->root()));
}

void tst_LimitedFileDialog::historyIsTheRoots_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QStringList>("history");
    const QString root = QStringLiteral("@/root");
    const QString second = QStringLiteral("@/second");
    QTest::newRow("one root") << root << QString() << QStringList({root});
    QTest::newRow("two roots") << root << second << QStringList({root, second});
    QTest::newRow("second root missing") << root << QStringLiteral("@/none") << QStringList({root});
    // Without a root, that root is the empty text.
    QTest::newRow("no root") << QString() << QString() << QStringList({QString(), root});
    QTest::newRow("no first root") << QString() << second << QStringList({QString(), second, root});
}

void tst_LimitedFileDialog::historyIsTheRoots()
{
    QFETCH(QString, limit);
    QFETCH(QString, limit1);
    QFETCH(QStringList, history);
    for (QString &path : history)
        path = m_tree->at(path);

    // The folder shown is added by QFileDialog itself, so the dialog is in the first root.
    Confined confined(*m_tree, QStringLiteral("@/root"), limit, limit1);
    confined.dialog.setHistory({m_tree->outside(), m_tree->base()});
    QVERIFY(confined.dialog.history().contains(m_tree->outside()));
    confined.dialog.setHistoryPath();
    QCOMPARE(confined.dialog.history(), history);

    confined.dialog.setHistory({m_tree->outside(), m_tree->base()});
    confined.dialog.checkHistory();
    QCOMPARE(confined.dialog.history(), history);
}

void tst_LimitedFileDialog::textIsTestedInTheFolderShown_data()
{
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");

    const struct
    {
        const char *name;
        const char *shown;
        const char *text;
        bool fits;
        const char *limit1;
    } rows[] = {
        {"nothing, in the root", "@/root", "", false, ""},
        {"a file", "@/root", "file.txt", true, ""},
        {"a missing file", "@/root", "none", true, ""},
        {"a folder", "@/root", "sub", true, ""},
        {"a folder with a slash", "@/root", "sub/", true, ""},
        {"one dot", "@/root", ".", false, ""},
        {"two dots", "@/root", "..", false, ""},
        {"two dots twice", "@/root", "../..", false, ""},
        {"many dots", "@/root", "../../../../../../../../..", false, ""},
        {"three dots are a name", "@/root", "...", true, ""},
        {"two dots and a name", "@/root", "../outside/secret.txt", false, ""},
        {"down and up", "@/root", "sub/..", false, ""},
        {"down, up and out", "@/root", "sub/../../outside", false, ""},
        {"down, up and in", "@/root", "sub/../file.txt", true, ""},
        {"out and in", "@/root", "../root/file.txt", true, ""},
        {"out and into the root", "@/root", "../root", false, ""},
        {"out and into a sibling that begins like it", "@/root", "../rootx/near.txt", true, ""},
        {"double slashes", "@/root", "sub//inner.txt", true, ""},
        {"dots between slashes", "@/root", "./././file.txt", true, ""},
        {"absolute, inside", "@/root", "@/root/sub/inner.txt", true, ""},
        {"absolute, the root", "@/root", "@/root", false, ""},
        {"absolute, the root with a slash", "@/root", "@/root/", true, ""},
        {"absolute, outside", "@/root", "/etc/hosts", false, ""},
        {"absolute, in dots", "@/root", "@/root/../outside", true, ""},
        {"absolute, through dots", "@/root", "@/outside/../root/file.txt", false, ""},
        {"the file system's root", "@/root", "/", false, ""},
        {"two slashes", "@/root", "//", false, ""},
        {"a resource", "@/root", ":/qt-project.org", false, ""},
        {"backslashes down", "@/root", "sub\\inner.txt", true, ""},
        {"backslashes and dots", "@/root", "..\\..", true, ""},
        {"backslash in front", "@/root", "\\etc\\hosts", true, ""},
        {"backslashes, absolute, inside", "@/root", "@\\root\\file.txt", true, ""},
        {"backslashes, absolute, outside", "@/root", "@\\outside\\secret.txt", false, ""},
        {"home", "@/root", "~", true, ""},
        {"quotes", "@/root", "\"file.txt\"", true, ""},
        {"a space", "@/root", " ", true, ""},

        {"nothing, below", "@/root/sub", "", true, ""},
        {"one dot, below", "@/root/sub", ".", true, ""},
        {"up to the root", "@/root/sub", "..", false, ""},
        {"up to a file of the root", "@/root/sub", "../file.txt", true, ""},
        {"up and out", "@/root/sub", "../..", false, ""},
        {"up, deep below", "@/root/sub/deep", "..", true, ""},

        {"nothing, outside", "@/outside", "", false, ""},
        {"a file, outside", "@/outside", "secret.txt", false, ""},
        {"back in", "@/outside", "../root/file.txt", true, ""},
        {"absolute and in, from outside", "@/outside", "@/root/file.txt", true, ""},
        {"a file in the file system's root", "/", "etc", false, ""},
        {"a file behind a link that leads out", "@/root/link", "secret.txt", true, ""},
        {"nothing, behind a link that leads out", "@/root/link", "", true, ""},
        {"a file behind a link that leads in", "@/outside/link", "inner.txt", false, ""},

        {"over to the second root", "@/root", "../second", false, "@/second"},
        {"over into the second root", "@/root", "../second/two.txt", true, "@/second"},
        {"absolute, in the second root", "@/root", "@/second/two.txt", true, "@/second"},
        {"outside both", "@/root", "../outside/secret.txt", false, "@/second"},
        {"nothing, in the second root", "@/second", "", false, "@/second"},
        {"a file of the second root", "@/second", "two.txt", true, "@/second"},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.limit1) << QString::fromLatin1(row.shown)
                                << QString::fromLatin1(row.text) << row.fits;
    }
}

void tst_LimitedFileDialog::textIsTestedInTheFolderShown()
{
    QFETCH(QString, limit1);
    QFETCH(QString, shown);
    QFETCH(QString, text);
    QFETCH(bool, fits);

    QVERIFY(addLinks(*m_tree));
    Confined confined(*m_tree, shown, QStringLiteral("@/root"), limit1);
    QCOMPARE(confined.parts.shown(), m_tree->at(shown));
    QAbstractButton *first = confined.parts.box->buttons().value(0);
    QCOMPARE(first, confined.parts.accepting());

    // An enabled button stays so if the text fits
    first->setEnabled(true);
    confined.dialog.checkLineEdit(m_tree->at(text));
    QCOMPARE(first->isEnabled(), fits);

    // AND a disabled one is never enabled
    first->setEnabled(false);
    confined.dialog.checkLineEdit(m_tree->at(text));
    QVERIFY(!first->isEnabled());
    QVERIFY(confined.parts.rejecting()->isEnabled());
}

void tst_LimitedFileDialog::textThatComesWhileDisabledLeavesTheButtonDisabled()
{
    Confined confined(*m_tree);
    confined.parts.edit->setText(QStringLiteral("file.txt"));
    QVERIFY(confined.parts.accepting()->isEnabled());

    confined.dialog.setEnabled(false);
    confined.parts.edit->setText(QStringLiteral("with space.txt"));
    confined.dialog.setEnabled(true);
    QVERIFY(!confined.parts.accepting()->isEnabled());

    // Until the text changes again
    confined.parts.edit->setText(QStringLiteral("file.txt"));
    QVERIFY(confined.parts.accepting()->isEnabled());
}

void tst_LimitedFileDialog::returnAndEnterAreTestedLikeText_data()
{
    textIsTestedInTheFolderShown_data();
}

void tst_LimitedFileDialog::returnAndEnterAreTestedLikeText()
{
    QFETCH(QString, limit1);
    QFETCH(QString, shown);
    QFETCH(QString, text);
    QFETCH(bool, fits);

    QVERIFY(addLinks(*m_tree));
    Confined confined(*m_tree, shown, QStringLiteral("@/root"), limit1);
    confined.parts.edit->setText(m_tree->at(text));
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCOMPARE(confined.dialog.eventFilter(confined.parts.edit, &press), !fits);
        QCOMPARE(confined.dialog.eventFilter(confined.parts.completions(), &press), !fits);
        QObject stranger; // any other object is taken for the file name
        QCOMPARE(confined.dialog.eventFilter(&stranger, &press), !fits);
        QVERIFY(!confined.dialog.eventFilter(confined.parts.list, &press));
        QVERIFY(!confined.dialog.eventFilter(confined.parts.tree, &press));
    }
}

void tst_LimitedFileDialog::lookInEntryNamesARoot_data()
{
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("shown");

    const struct
    {
        const char *name;
        const char *limit;
        const char *limit1;
        const char *entry;
        bool shown;
    } rows[] = {
        {"first root", "@/root", "@/second", "@/root", true},
        {"first root with a slash", "@/root", "@/second", "@/root/", true},
        {"first root with two slashes", "@/root", "@/second", "@/root//", false},
        {"first root with any one character", "@/root", "@/second", "@/rootx", true},
        {"first root with any two characters", "@/root", "@/second", "@/rootxy", false},
        {"first root less a character", "@/root", "@/second", "@/roo", false},
        {"second root", "@/root", "@/second", "@/second", true},
        {"second root with a slash", "@/root", "@/second", "@/second/", true},
        {"second root with any one character", "@/root", "@/second", "@/second!", true},
        {"second root less a character", "@/root", "@/second", "@/secon", false},
        {"below the first root", "@/root", "@/second", "@/root/sub", false},
        {"above", "@/root", "@/second", "@", false},
        {"outside", "@/root", "@/second", "@/outside", false},
        {"file system's root", "@/root", "@/second", "/", false},
        {"words", "@/root", "@/second", "Computer", false},
        {"nothing", "@/root", "@/second", "", false},
        {"other case", "@/root", "@/second", "@/ROOT", false},
        {"backslashes", "@/root", "@/second", "@\\root\\", true},
        {"backslashes, second root", "@/root", "@/second", "@\\second", true},
        {"root has a slash, entry has none", "@/root/", "@/second", "@/root", true},
        {"root has a slash, entry too", "@/root/", "@/second", "@/root/", true},
        {"root has a slash, entry has two", "@/root/", "@/second", "@/root//", true},
        {"second has a slash, entry has none", "@/root", "@/second/", "@/second", true},
        {"both have a slash", "@/root/", "@/second/", "@/second", true},

        // One character apart: an entry cut or lengthened for the first root is compared in that form with
        // the second.
        {"second one longer: the first", "@/ab", "@/abc", "@/ab", false},
        {"second one longer: the first with a slash", "@/ab", "@/abc", "@/ab/", false},
        {"second one longer: the second", "@/ab", "@/abc", "@/abc", false},
        {"second one longer: the second with a slash", "@/ab", "@/abc", "@/abc/", true},
        {"second one longer: a name between", "@/ab", "@/abc", "@/abd", false},
        {"second one shorter: the first", "@/abc", "@/ab", "@/abc", true},
        {"second one shorter: the first with a slash", "@/abc", "@/ab", "@/abc/", true},
        {"second one shorter: the second", "@/abc", "@/ab", "@/ab", true},
        {"second one shorter: the second with a slash", "@/abc", "@/ab", "@/ab/", true},
        {"second one shorter: a name between", "@/abc", "@/ab", "@/abd", true},
        {"second with a slash only: the first", "@/ab", "@/ab/", "@/ab", true},
        {"second with a slash only: with a slash", "@/ab", "@/ab/", "@/ab/", true},
        {"the same twice", "@/ab", "@/ab", "@/ab/", true},

        // Without a second root, that root is the empty text.
        {"no second root: the first", "@/root", "", "@/root", true},
        {"no second root: with a slash", "@/root", "", "@/root/", true},
        {"no second root: nothing", "@/root", "", "", true},
        {"no second root: one character", "@/root", "", "x", true},
        {"no second root: two characters", "@/root", "", "xy", false},
        {"no root: nothing", "", "", "", true},
        {"no root: file system's root", "", "", "/", true},
        {"no root: a path", "", "", "@/root", false},
        {"no first root: the second", "", "@/second", "@/second", true},
        {"no first root: one character", "", "@/second", "x", true},
    };
    for (const auto &row : rows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.limit) << QString::fromLatin1(row.limit1)
                                << QString::fromLatin1(row.entry) << row.shown;
    }
}

void tst_LimitedFileDialog::lookInEntryNamesARoot()
{
    QFETCH(QString, limit);
    QFETCH(QString, limit1);
    QFETCH(QString, entry);
    QFETCH(bool, shown);

    QVERIFY(m_tree->addFolder(QStringLiteral("@/ab")));
    QVERIFY(m_tree->addFolder(QStringLiteral("@/abc")));
    Confined confined(*m_tree, QStringLiteral("@/root"), limit, limit1);
    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->at(limit));
    QCOMPARE(confined.dialog.isShowInComboBox(m_tree->at(entry)), shown);
}

void tst_LimitedFileDialog::lookInIsPrunedFromTheIndex_data()
{
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QStringList>("left");
    const auto list = [](const char *words) {
        return QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    QTest::newRow("one root, some fit")
        << QString() << list("@/root/sub @ @/root/empty @/root / Computer @/rootx")
        << list("@/root/sub @/root/empty @/rootx");
    QTest::newRow("one root, the first does not fit")
        << QString() << list("@ @/root/sub") << list("@/root/sub");
    QTest::newRow("one root, none fits") << QString() << list("@ / Computer @/root") << QStringList();
    QTest::newRow("one root, one entry") << QString() << list("@/outside") << list("@/outside");
    QTest::newRow("two roots, both there")
        << QStringLiteral("@/second") << list("@/root/sub @/root @ / Computer @/second @/root/ @/outside")
        << list("@/root @/second @/root/");
    QTest::newRow("two roots, all fit")
        << QStringLiteral("@/second") << list("@/second @/root") << list("@/second @/root");
    QTest::newRow("two roots, none is there")
        << QStringLiteral("@/second") << list("@ @/root/sub") << QStringList();
    QTest::newRow("two roots, neighbours that go together")
        << QStringLiteral("@/second") << list("@/root / / / @/second / /") << list("@/root @/second");
}

void tst_LimitedFileDialog::lookInIsPrunedFromTheIndex()
{
    QFETCH(QString, limit1);
    QFETCH(QStringList, entries);
    QFETCH(QStringList, left);
    for (QStringList *paths : {&entries, &left}) {
        for (QString &path : *paths)
            path = m_tree->at(path);
    }

    for (const bool bySignal : {false, true}) {
        Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"), limit1);
        QComboBox *lookIn = confined.parts.lookIn;
        {
            const QSignalBlocker quiet(lookIn);
            lookIn->clear();
            lookIn->addItems(entries);
            lookIn->setCurrentIndex(lookIn->count() > 1 && bySignal ? 1 : 0);
        }
        QCOMPARE(confined.parts.lookInTexts(), entries);
        if (bySignal)
            lookIn->setCurrentIndex(0);
        else
            confined.dialog.checkComboBox(0);
        QCOMPARE(confined.parts.lookInTexts(), left);
    }
}

// There is no limit then, but the entries are still those that name a root: the second one, and by way of the
// first, which is the empty text, the file system's root.
void tst_LimitedFileDialog::lookInIsPrunedToASecondRootAlone()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QString(), QStringLiteral("@/second"));
    QVERIFY(confined.dialog.pathFits(m_tree->outside()));
    QComboBox *lookIn = confined.parts.lookIn;
    {
        const QSignalBlocker quiet(lookIn);
        lookIn->clear();
        lookIn->addItems({m_tree->root(), m_tree->second(), m_tree->outside(), QStringLiteral("/")});
    }
    confined.dialog.checkComboBox(0);
    QCOMPARE(confined.parts.lookInTexts(), QStringList({m_tree->second(), QStringLiteral("/")}));
}

void tst_LimitedFileDialog::lookInIsLeftAloneWithoutARoot()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QString());
    QComboBox *lookIn = confined.parts.lookIn;
    const QStringList entries = {m_tree->root(), m_tree->outside(), QStringLiteral("/")};
    {
        const QSignalBlocker quiet(lookIn);
        lookIn->clear();
        lookIn->addItems(entries);
    }
    confined.dialog.checkComboBox(0);
    QCOMPARE(confined.parts.lookInTexts(), entries);
}

void tst_LimitedFileDialog::lookInIsLeftAloneOtherwise()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    QComboBox *lookIn = confined.parts.lookIn;
    const QStringList entries = {m_tree->outside(), m_tree->base(), QStringLiteral("/")};
    {
        const QSignalBlocker quiet(lookIn);
        lookIn->clear();
        lookIn->addItems(entries);
    }
    for (const int index : {-1, 1, 2, 3, 100}) {
        confined.dialog.checkComboBox(index);
        QCOMPARE(confined.parts.lookInTexts(), entries);
    }
    lookIn->setCurrentIndex(2);
    QCOMPARE(confined.parts.lookInTexts(), entries);
}

void tst_LimitedFileDialog::backspaceInTheViews_data()
{
    QTest::addColumn<QString>("limit1");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("swallowed");
    QTest::newRow("root") << QString() << QStringLiteral("@/root") << true;
    QTest::newRow("below") << QString() << QStringLiteral("@/root/sub") << false;
    QTest::newRow("outside") << QString() << QStringLiteral("@/outside") << true;
    QTest::newRow("sibling that begins like the root") << QString() << QStringLiteral("@/rootx") << false;
    QTest::newRow("second root") << QStringLiteral("@/second") << QStringLiteral("@/second") << true;
    QTest::newRow("below the second root")
        << QStringLiteral("@/second") << QStringLiteral("@/second/below") << false;
    QTest::newRow("link that leads out") << QString() << QStringLiteral("@/root/link") << false;
    QTest::newRow("link that leads in") << QString() << QStringLiteral("@/outside/link") << true;
}

void tst_LimitedFileDialog::backspaceInTheViews()
{
    QFETCH(QString, limit1);
    QFETCH(QString, shown);
    QFETCH(bool, swallowed);
    QVERIFY(addLinks(*m_tree));
    Confined confined(*m_tree, shown, QStringLiteral("@/root"), limit1);
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Backspace, modifiers);
        QCOMPARE(confined.dialog.eventFilter(confined.parts.list, &press), swallowed);
        QCOMPARE(confined.dialog.eventFilter(confined.parts.tree, &press), swallowed);
        QVERIFY(!confined.dialog.eventFilter(confined.parts.edit, &press));
        QVERIFY(!confined.dialog.eventFilter(confined.parts.completions(), &press));
        QObject other; // it is the name that makes a view
        QVERIFY(!confined.dialog.eventFilter(&other, &press));
        for (const auto &name : {QStringLiteral("listView"), QStringLiteral("treeView")}) {
            other.setObjectName(name);
            QCOMPARE(confined.dialog.eventFilter(&other, &press), swallowed);
        }
    }
}

void tst_LimitedFileDialog::otherKeysAndEventsPass_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<int>("key");
    QTest::newRow("Backspace released") << QEvent::KeyRelease << int(Qt::Key_Backspace);
    QTest::newRow("Return released") << QEvent::KeyRelease << int(Qt::Key_Return);
    QTest::newRow("Return as a shortcut") << QEvent::ShortcutOverride << int(Qt::Key_Return);
    QTest::newRow("Escape") << QEvent::KeyPress << int(Qt::Key_Escape);
    QTest::newRow("Tab") << QEvent::KeyPress << int(Qt::Key_Tab);
    QTest::newRow("Delete") << QEvent::KeyPress << int(Qt::Key_Delete);
    QTest::newRow("slash") << QEvent::KeyPress << int(Qt::Key_Slash);
    QTest::newRow("letter") << QEvent::KeyPress << int(Qt::Key_A);
}

void tst_LimitedFileDialog::otherKeysAndEventsPass()
{
    QFETCH(QEvent::Type, type);
    QFETCH(int, key);

    // GIVEN the root and a text outside, where all that can be swallowed is
    Confined confined(*m_tree);
    confined.parts.edit->setText(QStringLiteral("/etc/hosts"));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(confined.dialog.eventFilter(confined.parts.edit, &enter));

    QKeyEvent event(type, key, Qt::NoModifier);
    QEvent other(QEvent::FocusIn);
    QObject *const watched[] = {confined.parts.edit, confined.parts.list, confined.parts.tree,
                                confined.parts.completions()};
    for (QObject *object : watched) {
        QVERIFY(!confined.dialog.eventFilter(object, &event));
        QVERIFY(!confined.dialog.eventFilter(object, &other));
    }
}

QTEST_MAIN(tst_LimitedFileDialog)

#include "tst_limitedfiledialog.moc"
