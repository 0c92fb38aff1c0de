// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The limited file dialog in use: views, buttons, keys, typed names and the look-in list, in real folders
// with every kind of name, and in folders that cannot be read or are gone.

#include "support/confined.h"
#include "support/functionguard.h"

#include <QCompleter>
#include <QSignalSpy>
#include <QTest>
#include <dirent.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

/*! While it lives, the process has no more rights than anybody. */
class Nobody
{
public:
    Nobody()
    {
        if (geteuid() == 0)
            m_dropped = seteuid(65534) == 0;
    }
    ~Nobody()
    {
        if (m_dropped && seteuid(0) != 0)
            qFatal("The rights did not come back");
    }

private:
    Q_DISABLE_COPY(Nobody)

    bool m_dropped = false;
};

// QFileInfo asks for the rights of the real user, not of the effective one.
bool isListable(const QByteArray &folder)
{
    DIR *handle = opendir(folder.constData());
    return handle != nullptr && closedir(handle) == 0;
}

QStringList twoRoots(const FileTree &tree)
{
    return {tree.root(), tree.second()};
}

} // namespace

class tst_LimitedFileDialogUse : public QObject
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

    // Walking
    void foldersAreEnteredAndLeftInTheViews_data();
    void foldersAreEnteredAndLeftInTheViews();
    void folderIsEnteredByReturnInTheViews_data();
    void folderIsEnteredByReturnInTheViews();
    void parentButtonLeadsToTheRootAndNoFurther();
    void backAndForwardAreCheckedAtEachClick();
    void forwardIntoTheRootIsChecked();
    void historyHasNoOtherFolder();
    void sidebarIsOutOfUse();

    // Typing
    void typedTextOutsideIsRefused_data();
    void typedTextOutsideIsRefused();
    void typedTextInsideIsLeftToQFileDialog_data();
    void typedTextInsideIsLeftToQFileDialog();
    void typedFileIsAccepted_data();
    void typedFileIsAccepted();
    void detourInsideIsAnsweredByQFileDialog_data();
    void detourInsideIsAnsweredByQFileDialog();
    void typedFolderIsEntered();
    void buttonComesBackWithATextInside();
    void clearedTextInTheRootDisables();
    void pastedTextIsChecked();
    void completionsAreShownAndReturnInThemIsChecked_data();
    void completionsAreShownAndReturnInThemIsChecked();
    void fileIsOpenedByADoubleClick();

    // Two roots
    void lookInOffersTheRootsAlone_data();
    void lookInOffersTheRootsAlone();
    void lookInLeadsToTheOtherRootAndBack();
    void lookInIsNotToBeOpenedWithOneRoot();

    // Names and conditions
    void namesOfAllKinds_data();
    void namesOfAllKinds();
    void rootsOfAllKinds_data();
    void rootsOfAllKinds();
    void nameInNoEncodingDoesNoHarm();
    void rootWithABackslashAdmitsNothing();
    void unreadableFolderIsEnteredAndLeft();
    void unreadableRootIsALimit();
    void vanishedFolderIsLeft();
    void vanishedRootRemainsTheLimit();
    void tenThousandEntries();
    void dialogsAreIndependent();

private:
    std::optional<FunctionGuard> m_guard;
    std::optional<FileTree> m_tree;
};

void tst_LimitedFileDialogUse::foldersAreEnteredAndLeftInTheViews_data()
{
    QTest::addColumn<QFileDialog::ViewMode>("mode");
    QTest::newRow("list") << QFileDialog::List;
    QTest::newRow("details") << QFileDialog::Detail;
}

void tst_LimitedFileDialogUse::foldersAreEnteredAndLeftInTheViews()
{
    QFETCH(QFileDialog::ViewMode, mode);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    confined.dialog.setViewMode(mode);
    QVERIFY(confined.show());
    QCOMPARE(parts.view() == parts.list, mode == QFileDialog::List);
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));

    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));

    QVERIFY(parts.doubleClick(QStringLiteral("deep")));
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub/deep")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));

    // Backspace leads up, but not out
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->root());
    QVERIFY(confined.dialog.isVisible());
}

void tst_LimitedFileDialogUse::folderIsEnteredByReturnInTheViews_data()
{
    foldersAreEnteredAndLeftInTheViews_data();
}

void tst_LimitedFileDialogUse::folderIsEnteredByReturnInTheViews()
{
    QFETCH(QFileDialog::ViewMode, mode);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    confined.dialog.setViewMode(mode);
    QVERIFY(confined.show());
    QVERIFY(parts.click(QStringLiteral("sub")));
    parts.keyInView(Qt::Key_Return);
    QTRY_COMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(confined.dialog.isVisible());
}

void tst_LimitedFileDialogUse::parentButtonLeadsToTheRootAndNoFurther()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub/deep"));
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    for (const char *next : {"@/root/sub", "@/root"}) {
        QVERIFY(parts.toParent->isEnabled());
        QTest::mouseClick(parts.toParent, Qt::LeftButton);
        QCOMPARE(parts.shown(), m_tree->at(QString::fromLatin1(next)));
    }
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->root());
}

void tst_LimitedFileDialogUse::backAndForwardAreCheckedAtEachClick()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QVERIFY(parts.doubleClick(QStringLiteral("deep")));
    QCOMPARE(confined.enabled().left(3), QStringLiteral("PB."));

    QTest::mouseClick(parts.back, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QCOMPARE(confined.enabled().left(3), QStringLiteral("PBF"));
    QTest::mouseClick(parts.back, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(3), QStringLiteral("..F"));

    QTest::mouseClick(parts.forward, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QCOMPARE(confined.enabled().left(3), QStringLiteral("PBF"));
    QTest::mouseClick(parts.forward, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub/deep")));
    QCOMPARE(confined.enabled().left(3), QStringLiteral("PB."));
}

void tst_LimitedFileDialogUse::forwardIntoTheRootIsChecked()
{
    // GIVEN a root that comes after a folder below it
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->root());
    confined.dialog.setDirectory(m_tree->at(QStringLiteral("@/root/sub"))); // back is enabled
    confined.dialog.setDirectory(m_tree->root());
    QTest::mouseClick(parts.back, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));

    QTest::mouseClick(parts.forward, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(3), QStringLiteral("..."));
}

void tst_LimitedFileDialogUse::historyHasNoOtherFolder()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QVERIFY(parts.doubleClick(QStringLiteral("deep")));
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.dialog.history(), QStringList(m_tree->root()));
}

void tst_LimitedFileDialogUse::sidebarIsOutOfUse()
{
    QFileDialog plain;
    plain.setOption(QFileDialog::DontUseNativeDialog);
    Confined confined(*m_tree);
    confined.dialog.setSidebarUrls({QUrl::fromLocalFile(m_tree->outside())});
    QVERIFY(confined.show());
    auto *sidebar = qobject_cast<QAbstractItemView *>(confined.parts.sidebar);
    QVERIFY(sidebar != nullptr);
    QVERIFY(sidebar->model()->rowCount() == 1);
    const QPoint place = sidebar->visualRect(sidebar->model()->index(0, 0)).center();
    QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(confined.parts.shown(), m_tree->root());

    // It is the limit that keeps the click off
    confined.dialog.setLimitedPath(QString());
    QTest::mouseClick(sidebar->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(confined.parts.shown(), m_tree->outside());
}

void tst_LimitedFileDialogUse::typedTextOutsideIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("up") << QStringLiteral("..");
    QTest::newRow("up twice") << QStringLiteral("../..");
    QTest::newRow("file outside") << QStringLiteral("../outside/secret.txt");
    QTest::newRow("new file outside") << QStringLiteral("../outside/new.txt");
    QTest::newRow("folder outside") << QStringLiteral("../outside");
    QTest::newRow("down and out") << QStringLiteral("sub/../../outside/secret.txt");
    QTest::newRow("absolute file") << QStringLiteral("@/outside/secret.txt");
    QTest::newRow("absolute folder") << QStringLiteral("@/outside");
    QTest::newRow("the root by name") << QStringLiteral("@/root");
    QTest::newRow("the file system's root") << QStringLiteral("/");
}

void tst_LimitedFileDialogUse::typedTextOutsideIsRefused()
{
    QFETCH(QString, text);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QSignalSpy finished(&confined.dialog, &QDialog::finished);
    QSignalSpy entered(&confined.dialog, &QFileDialog::directoryEntered);

    parts.type(m_tree->at(text));
    QCOMPARE(parts.edit->text(), m_tree->at(text));
    QVERIFY(!parts.accepting()->isEnabled());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(parts.edit, key);
        QTest::keyClick(parts.completions(), key);
    }
    QTest::mouseClick(parts.accepting(), Qt::LeftButton);

    QCOMPARE(finished.count(), 0);
    QCOMPARE(entered.count(), 0);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(parts.edit->text(), m_tree->at(text));
}

void tst_LimitedFileDialogUse::typedTextInsideIsLeftToQFileDialog_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QString>("text");
    const QPair<const char *, QFileDialog::FileMode> modes[] = {{"any file", QFileDialog::AnyFile},
                                                                {"existing file", QFileDialog::ExistingFile},
                                                                {"directory", QFileDialog::Directory}};
    for (const auto &mode : modes) {
        for (const char *text :
             {"file.txt", "none.txt", "sub", "sub/inner.txt", "@/root/sub/inner.txt", "@/root/none/none"})
            QTest::addRow("%s: %s", mode.first, text) << mode.second << QString::fromLatin1(text);
    }
}

void tst_LimitedFileDialogUse::typedTextInsideIsLeftToQFileDialog()
{
    QFETCH(QFileDialog::FileMode, mode);
    QFETCH(QString, text);
    QFileDialog plain(nullptr, QString(), m_tree->root(), QString());
    plain.setOption(QFileDialog::DontUseNativeDialog);
    plain.setFileMode(mode);
    const FileDialogParts plainParts(&plain);
    Confined confined(*m_tree);
    confined.dialog.setFileMode(mode);
    for (const FileDialogParts *parts : {&plainParts, &confined.parts}) {
        QVERIFY(parts->isLoaded());
        parts->edit->setText(QStringLiteral("x"));
        parts->edit->setText(m_tree->at(text));
    }
    QCOMPARE(confined.parts.accepting()->isEnabled(), plainParts.accepting()->isEnabled());
}

void tst_LimitedFileDialogUse::typedFileIsAccepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("byReturn");
    for (const bool byReturn : {true, false}) {
        const char *how = byReturn ? "Return" : "click";
        const auto add = [&](const char *name, const char *text, const char *file) {
            QTest::addRow("%s: %s", name, how)
                << QString::fromLatin1(text) << QString::fromLatin1(file) << byReturn;
        };
        add("file", "file.txt", "@/root/file.txt");
        add("with a space", "with space.txt", "@/root/with space.txt");
        add("missing file", "none.txt", "@/root/none.txt");
        add("below", "sub/inner.txt", "@/root/sub/inner.txt");
        add("absolute", "@/root/sub/deep/deep.txt", "@/root/sub/deep/deep.txt");
    }
}

void tst_LimitedFileDialogUse::typedFileIsAccepted()
{
    QFETCH(QString, text);
    QFETCH(QString, file);
    QFETCH(bool, byReturn);
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    confined.parts.type(m_tree->at(text));
    QVERIFY(confined.parts.accepting()->isEnabled());
    if (byReturn)
        QTest::keyClick(confined.parts.edit, Qt::Key_Return);
    else
        QTest::mouseClick(confined.parts.accepting(), Qt::LeftButton);
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QVERIFY(!confined.dialog.isVisible());
    QCOMPARE(QDir::cleanPath(confined.dialog.selectedFiles().value(0)), m_tree->at(file));
}

void tst_LimitedFileDialogUse::detourInsideIsAnsweredByQFileDialog_data()
{
    QTest::addColumn<bool>("isPasted");
    QTest::addColumn<int>("result");
    QTest::newRow("pasted") << true << int(QDialog::Accepted);
    QTest::newRow("typed") << false << int(QDialog::Rejected); // on "sub/.." it selects the folder itself
}

void tst_LimitedFileDialogUse::detourInsideIsAnsweredByQFileDialog()
{
    QFETCH(bool, isPasted);
    QFETCH(int, result);
    const QString text = QStringLiteral("sub/../file.txt");
    QFileDialog plain(nullptr, QString(), m_tree->root(), QString());
    plain.setOption(QFileDialog::DontUseNativeDialog);
    plain.setViewMode(QFileDialog::List);
    const FileDialogParts plainParts(&plain);
    Confined confined(*m_tree);
    const std::pair<QFileDialog *, const FileDialogParts *> both[] = {{&plain, &plainParts},
                                                                      {&confined.dialog, &confined.parts}};
    for (const auto &[dialog, parts] : both) {
        dialog->show();
        QApplication::setActiveWindow(dialog);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY(parts->isLoaded());
        if (isPasted)
            parts->edit->setText(text);
        else
            parts->type(text);
        QTest::keyClick(parts->edit, Qt::Key_Return);
        QCOMPARE(dialog->result(), result);
    }
    QCOMPARE(confined.parts.shown(), plainParts.shown());
}

void tst_LimitedFileDialogUse::typedFolderIsEntered()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(QStringLiteral("sub/deep"));
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub/deep")));
    QVERIFY(confined.dialog.isVisible());
    parts.type(QStringLiteral("..")); // QFileDialog goes up
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    parts.type(QStringLiteral(".."));
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub"))); // the root itself does not fit
}

void tst_LimitedFileDialogUse::buttonComesBackWithATextInside()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(QStringLiteral("../outside"));
    QVERIFY(!parts.accepting()->isEnabled());
    parts.type(QStringLiteral("file.txt"));
    QVERIFY(parts.accepting()->isEnabled());

    // Key by key: the button follows each state of the text
    const QString text = QStringLiteral("sub/../../x");
    for (int size = 1; size <= text.size(); ++size) {
        const QString begin = text.left(size);
        parts.type(begin);
        const bool fits = !QStringList{QStringLiteral("sub/.."),     QStringLiteral("sub/../"),
                                       QStringLiteral("sub/../."),   QStringLiteral("sub/../.."),
                                       QStringLiteral("sub/../../"), text}
                               .contains(begin);
        QVERIFY2(parts.accepting()->isEnabled() == fits, qPrintable(begin));
    }
}

void tst_LimitedFileDialogUse::clearedTextInTheRootDisables()
{
    Confined confined(*m_tree);
    confined.dialog.setFileMode(QFileDialog::Directory);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(QStringLiteral("sub"));
    QVERIFY(parts.accepting()->isEnabled());
    parts.edit->clear();
    QVERIFY(!parts.accepting()->isEnabled());

    // A plain dialog would take the folder that it shows, and below the root so does this one
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    parts.type(QStringLiteral("x"));
    parts.edit->clear();
    QVERIFY(parts.accepting()->isEnabled());
}

void tst_LimitedFileDialogUse::pastedTextIsChecked()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.edit->setFocus();
    parts.edit->insert(QStringLiteral("/etc\n/hosts")); // as pasting does
    QVERIFY(!parts.accepting()->isEnabled());
    parts.edit->undo();
    QCOMPARE(parts.edit->text(), QString());
    parts.edit->redo();
    QVERIFY(!parts.edit->text().isEmpty());
    QVERIFY(!parts.accepting()->isEnabled());
}

void tst_LimitedFileDialogUse::completionsAreShownAndReturnInThemIsChecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("completed");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("inside") << QStringLiteral("fil") << QStringLiteral("file.txt") << true;
    QTest::newRow("below") << QStringLiteral("sub/inn") << QStringLiteral("sub/inner.txt") << true;
    QTest::newRow("outside") << QStringLiteral("@/outside/sec") << QStringLiteral("@/outside/secret.txt")
                             << false;
}

void tst_LimitedFileDialogUse::completionsAreShownAndReturnInThemIsChecked()
{
    QFETCH(QString, text);
    QFETCH(QString, completed);
    QFETCH(bool, accepted);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(m_tree->at(text));
    // The model has to read the folder that is meant first; typing on offers it then
    QTRY_VERIFY([&] {
        parts.edit->completer()->complete();
        return parts.completions()->isVisible();
    }());
    QTest::keyClick(parts.completions(), Qt::Key_Down);
    QTRY_COMPARE(parts.edit->text(), m_tree->at(completed));
    QCOMPARE(parts.accepting()->isEnabled(), accepted);
    QTest::keyClick(parts.completions(), Qt::Key_Return);
    QCOMPARE(confined.dialog.result(), int(accepted ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(confined.dialog.isVisible(), !accepted);
    parts.completions()->hide();
}

void tst_LimitedFileDialogUse::fileIsOpenedByADoubleClick()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("file.txt")));
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(confined.dialog.selectedFiles(), QStringList(m_tree->at(QStringLiteral("@/root/file.txt"))));
}

void tst_LimitedFileDialogUse::lookInOffersTheRootsAlone_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("first root") << QStringLiteral("@/root");
    QTest::newRow("below the first root") << QStringLiteral("@/root/sub/deep");
    QTest::newRow("second root") << QStringLiteral("@/second");
    QTest::newRow("below the second root") << QStringLiteral("@/second/below");
    QTest::newRow("outside") << QStringLiteral("@/outside");
}

void tst_LimitedFileDialogUse::lookInOffersTheRootsAlone()
{
    QFETCH(QString, shown);
    Confined confined(*m_tree, shown, QStringLiteral("@/root"), QStringLiteral("@/second"));
    QVERIFY(confined.show());
    QVERIFY(confined.parts.lookIn->isEnabled());
    confined.parts.lookIn->showPopup();
    QStringList offered = confined.parts.lookInTexts();
    confined.parts.lookIn->hidePopup();
    offered.removeDuplicates();
    offered.sort();
    QCOMPARE(offered, twoRoots(*m_tree));
}

void tst_LimitedFileDialogUse::lookInLeadsToTheOtherRootAndBack()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    const QStringList targets = {m_tree->second(), m_tree->root(), m_tree->second()};
    for (const QString &target : targets) {
        parts.lookIn->showPopup();
        QAbstractItemView *popup = parts.lookIn->view();
        QTRY_VERIFY(popup->isVisible());
        QVERIFY(parts.lookInTexts().contains(target));
        popup->setCurrentIndex(popup->model()->index(parts.lookInTexts().indexOf(target), 0));
        QTest::keyClick(popup, Qt::Key_Return);

        QTRY_COMPARE(parts.shown(), target);
        QCOMPARE(confined.enabled().left(2), QStringLiteral("..")); // a root
        QStringList history = confined.dialog.history();
        history.removeDuplicates();
        QCOMPARE(history, twoRoots(*m_tree));
        parts.keyInView(Qt::Key_Backspace);
        QCOMPARE(parts.shown(), target);
    }
    QVERIFY(parts.doubleClick(QStringLiteral("below")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->second());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
}

void tst_LimitedFileDialogUse::lookInIsNotToBeOpenedWithOneRoot()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QTest::mouseClick(confined.parts.lookIn, Qt::LeftButton);
    QVERIFY(!confined.parts.lookIn->view()->isVisible());
    QTest::keyClick(confined.parts.lookIn, Qt::Key_F4);
    QVERIFY(!confined.parts.lookIn->view()->isVisible());
}

void tst_LimitedFileDialogUse::namesOfAllKinds_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << QStringLiteral("a b  c");
    QTest::newRow("space in front") << QStringLiteral(" a");
    QTest::newRow("apostrophe") << QStringLiteral("it's");
    QTest::newRow("backslash") << QStringLiteral("back\\slash");
    QTest::newRow("dots") << QStringLiteral("a..b..");
    QTest::newRow("hash and per cent") << QStringLiteral("50%20#1");
    QTest::newRow("pattern") << QStringLiteral("*?[a]");
    QTest::newRow("ampersand") << QStringLiteral("a & b");
    QTest::newRow("markup") << QStringLiteral("<b>bold<");
    QTest::newRow("German") << QString::fromUtf8("Gr\xC3\xBC\xC3\x9F"
                                                 "e");
    QTest::newRow("Chinese") << QString::fromUtf8("\xE7\x9B\xAE\xE5\xBD\x95");
    QTest::newRow("Arabic") << QString::fromUtf8("\xD9\x85\xD9\x84\xD9\x81");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xF0\x9F\x93\x81");
    QTest::newRow("long") << QString(200, QLatin1Char('x'));
    QTest::newRow("newline") << QStringLiteral("new\nline");
    QTest::newRow("quotes") << QStringLiteral("a \"quoted\" name");
}

void tst_LimitedFileDialogUse::namesOfAllKinds()
{
    QFETCH(QString, name);
    const QString folder = QStringLiteral("@/root/") + name;
    QVERIFY(m_tree->addFile(folder + QStringLiteral("/plain.txt")));
    QVERIFY(m_tree->addFile(folder + QLatin1Char('/') + name));
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());

    // The folder is entered and left
    QVERIFY(parts.doubleClick(name));
    QCOMPARE(parts.shown(), m_tree->at(folder));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));

    // AND entered again, for a file of that name
    QVERIFY(parts.doubleClick(name));
    QVERIFY(parts.isLoaded());
    QVERIFY(parts.doubleClick(name));
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(confined.dialog.selectedFiles(), QStringList(m_tree->at(folder + QLatin1Char('/') + name)));
}

void tst_LimitedFileDialogUse::rootsOfAllKinds_data()
{
    namesOfAllKinds_data();
}

void tst_LimitedFileDialogUse::rootsOfAllKinds()
{
    QFETCH(QString, name);
    if (name.contains(QLatin1Char('\\')))
        return; // rootWithABackslashAdmitsNothing()

    const QString folder = QStringLiteral("@/") + name;
    QVERIFY(m_tree->addFile(folder + QStringLiteral("/sub/plain.txt")));
    Confined confined(*m_tree, folder, folder);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->at(folder));
    parts.type(QStringLiteral("../outside/secret.txt"));
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
    QTest::mouseClick(parts.toParent, Qt::LeftButton);
    QCOMPARE(parts.shown(), m_tree->at(folder));
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    QCOMPARE(confined.dialog.history(), QStringList(m_tree->at(folder)));
}

// What such a name is shown as depends on the locale; that it leads nowhere does not.
void tst_LimitedFileDialogUse::nameInNoEncodingDoesNoHarm()
{
    const QByteArray bytes = QFile::encodeName(m_tree->root()) + "/bad\xFF\xFE";
    if (mkdir(bytes.constData(), 0755) != 0)
        QSKIP("This file system takes no names that are not text");
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    confined.dialog.show();
    QVERIFY(parts.hasEntry(QStringLiteral("file.txt")));
    for (int row = 0; row < parts.list->model()->rowCount(parts.list->rootIndex()); ++row) {
        const QString name = parts.list->model()->index(row, 0, parts.list->rootIndex()).data().toString();
        if (!name.startsWith(QStringLiteral("bad")))
            continue;
        QVERIFY(parts.doubleClick(name));
        QVERIFY2(parts.shown() == m_tree->root()
                     || parts.shown().startsWith(m_tree->root() + QStringLiteral("/bad")),
                 qPrintable(parts.shown()));
        break;
    }
    QCOMPARE(rmdir(bytes.constData()), 0);
}

// Every path is compared with slashes in place of backslashes, and the root is not.
void tst_LimitedFileDialogUse::rootWithABackslashAdmitsNothing()
{
    const QString root = QStringLiteral("@/back\\slash");
    QVERIFY(m_tree->addFile(root + QStringLiteral("/sub/plain.txt")));
    Confined confined(*m_tree, root, root);
    const FileDialogParts &parts = confined.parts;
    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->at(root));
    QVERIFY(confined.show());
    parts.type(QStringLiteral("sub"));
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QCOMPARE(parts.shown(), m_tree->at(root + QStringLiteral("/sub")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
}

void tst_LimitedFileDialogUse::unreadableFolderIsEnteredAndLeft()
{
    QVERIFY(m_tree->addFile(QStringLiteral("@/root/locked/file.txt")));
    QCOMPARE(chmod(QFile::encodeName(m_tree->base()).constData(), 0755), 0);
    const QByteArray locked = QFile::encodeName(m_tree->at(QStringLiteral("@/root/locked")));
    QCOMPARE(chmod(locked.constData(), 0), 0);
    {
        const Nobody nobody;
        QVERIFY(!isListable(locked));
        m_guard->sentry().expect(
            QtCriticalMsg, QStringLiteral("inotify_add_watch(%1) failed").arg(QFile::decodeName(locked)));
        Confined confined(*m_tree);
        const FileDialogParts &parts = confined.parts;
        QVERIFY(confined.show());
        QVERIFY(parts.doubleClick(QStringLiteral("locked")));
        QCOMPARE(parts.shown(), QFile::decodeName(locked));
        QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
        QCOMPARE(parts.list->model()->rowCount(parts.list->rootIndex()), 0);
        QTest::mouseClick(parts.toParent, Qt::LeftButton);
        QCOMPARE(parts.shown(), m_tree->root());
        QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    }
    QCOMPARE(chmod(locked.constData(), 0755), 0);
}

void tst_LimitedFileDialogUse::unreadableRootIsALimit()
{
    QCOMPARE(chmod(QFile::encodeName(m_tree->base()).constData(), 0755), 0);
    const QByteArray root = QFile::encodeName(m_tree->root());
    QCOMPARE(chmod(root.constData(), 0), 0);
    {
        const Nobody nobody;
        QVERIFY(!isListable(root));
        m_guard->sentry().expect(QtCriticalMsg,
                                 QStringLiteral("inotify_add_watch(%1) failed").arg(m_tree->root()));
        Confined confined(*m_tree);
        QCOMPARE(confined.dialog.getLimitedPath(), m_tree->root());
        QVERIFY(confined.show());
        QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
        confined.parts.type(QStringLiteral("../outside/secret.txt"));
        QVERIFY(!confined.parts.accepting()->isEnabled());
    }
    QCOMPARE(chmod(root.constData(), 0755), 0);
}

void tst_LimitedFileDialogUse::vanishedFolderIsLeft()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    QVERIFY(parts.doubleClick(QStringLiteral("deep")));
    QVERIFY(QDir(m_tree->at(QStringLiteral("@/root/sub/deep"))).removeRecursively());
    QVERIFY(parts.shown().startsWith(m_tree->root()));
    parts.type(QStringLiteral("../../../outside/secret.txt"));
    QVERIFY(!parts.accepting()->isEnabled());
    parts.type(m_tree->at(QStringLiteral("@/root/file.txt")));
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QCOMPARE(confined.dialog.selectedFiles(), QStringList(m_tree->at(QStringLiteral("@/root/file.txt"))));
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
}

void tst_LimitedFileDialogUse::vanishedRootRemainsTheLimit()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(QDir(m_tree->root()).removeRecursively());

    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->root());
    parts.type(m_tree->at(QStringLiteral("@/outside/secret.txt")));
    QVERIFY(!parts.accepting()->isEnabled());
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QVERIFY(confined.dialog.isVisible());

    // The same path is no other limit, even now, and it is not made again
    confined.dialog.setLimitedPath(m_tree->root());
    QCOMPARE(confined.dialog.getLimitedPath(), m_tree->root());
    QVERIFY(!parts.sidebar->isEnabled());
    QVERIFY(!QFileInfo::exists(m_tree->root()));
}

void tst_LimitedFileDialogUse::tenThousandEntries()
{
    constexpr int Count = 10000;
    for (int i = 0; i < Count; ++i)
        QVERIFY(m_tree->addFile(QStringLiteral("@/root/many/entry %1").arg(i, 5, 10, QLatin1Char('0'))));
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("many")));
    const auto listed = [&parts] { return parts.list->model()->rowCount(parts.list->rootIndex()); };
    QTRY_COMPARE_WITH_TIMEOUT(listed(), Count, 30000);
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));
    QVERIFY(parts.click(QStringLiteral("entry 09999")));
    QCOMPARE(parts.edit->text(), QStringLiteral("entry 09999"));
    QVERIFY(parts.accepting()->isEnabled());
    parts.keyInView(Qt::Key_Backspace);
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
}

void tst_LimitedFileDialogUse::dialogsAreIndependent()
{
    Confined first(*m_tree);
    Confined second(*m_tree, QStringLiteral("@/second"), QStringLiteral("@/second"));
    QCOMPARE(first.dialog.getLimitedPath(), m_tree->root());
    QCOMPARE(second.dialog.getLimitedPath(), m_tree->second());
    QVERIFY(!first.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
    QVERIFY(second.dialog.pathFits(m_tree->at(QStringLiteral("@/second/two.txt"))));
}

QTEST_MAIN(tst_LimitedFileDialogUse)

#include "tst_limitedfiledialog_use.moc"
