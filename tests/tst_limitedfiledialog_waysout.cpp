// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The ways out of the tree that the limited file dialog's rules leave open. They are known and kept: the
// dialog steers QFileDialog from outside, and compares texts where files are meant. Each test walks one of
// them to its end.

#include "support/confined.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QMessageBox>
#include <QTest>
#include <optional>
#include <pwd.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

/*! What the dialog was accepted with; nothing if it was not. */
QString accepted(const Confined &confined)
{
    if (confined.dialog.isVisible() || confined.dialog.result() != QDialog::Accepted)
        return QString();
    return QDir::cleanPath(confined.dialog.selectedFiles().value(0));
}

void enterByReturn(const Confined &confined, const QString &text)
{
    confined.parts.type(text);
    QTest::keyClick(confined.parts.edit, Qt::Key_Return);
}

void press(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

} // namespace

class tst_LimitedFileDialogWaysOut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
        m_tree.emplace();
        QVERIFY(m_tree->isValid());
        m_secret = m_tree->at(QStringLiteral("@/outside/secret.txt"));
    }
    void cleanup()
    {
        m_tree.reset();
        m_guard.reset();
    }

    // Text
    void clickOnAFolderEnablesTheButtonForATextOutside();
    void textIsNotCheckedAgainInAnotherFolder();
    void textOfBeforeTheLimitIsNotChecked();
    void absoluteTextMayHaveTwoDots();
    void homeIsExpandedAfterTheCheck_data();
    void homeIsExpandedAfterTheCheck();
    void quotedNamesAreTakenApartAfterTheCheck_data();
    void quotedNamesAreTakenApartAfterTheCheck();
    void backslashesAreReadAsSlashesBesideTheRoot();
    void twoDotsBehindALinkLeadUpFromItsTarget();

    void fileOutsideIsSelectedUnseenAndDeleted();

    // Names that begin like the root
    void siblingWithTheSamePrefixIsInside();
    void parentButtonLeadsOutOfSuchASibling();
    void lookInOffersNeighboursOneCharacterApart();

    // Links
    void linkToAFolderIsFollowed();
    void linkToAFileIsFollowed();

    // Keys and buttons
    void controlUpLeadsUp();
    void fileOutsideIsOpenedByADoubleClick();
    void controlShiftHLeadsHome();
    void backKeyLeavesTheParentButtonEnabledInTheRoot();
    void backLeadsToAFolderOfBefore();

    // Start and roots
    void startFolderOutsideIsShown_data();
    void startFolderOutsideIsShown();
    void folderLastVisitedIsTheStart();
    void missingRootIsNoLimit();
    void rootVanishedBeforeTheCallIsNoLimit();

    // The application's own doing
    void applicationGoesAnywhere();
    void parentButtonIsEnabledWhereTheApplicationGoesToTheRoot();
    void modesEnableTheButton_data();
    void modesEnableTheButton();
    void acceptIsNotChecked();
    void textPutInWithoutFocusIsCutToTheBareName();
    void entryOfTwoDotsLeadsUp();

private:
    std::optional<FunctionGuard> m_guard;
    std::optional<FileTree> m_tree;
    QString m_secret;
};

// Kept: the check only ever disables the button, and QFileDialog enables it for whatever is selected in its
// view.
void tst_LimitedFileDialogWaysOut::clickOnAFolderEnablesTheButtonForATextOutside()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(m_secret);
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(parts.click(QStringLiteral("sub")));
    QVERIFY(parts.accepting()->isEnabled());
    press(parts.accepting()); // the folder is entered
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    press(parts.accepting()); // the text is accepted
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: a text is checked when it changes, and means something else in another folder.
void tst_LimitedFileDialogWaysOut::textIsNotCheckedAgainInAnotherFolder()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub/deep"));
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.type(QStringLiteral("../near.txt"));
    QVERIFY(parts.accepting()->isEnabled());
    press(parts.toParent);
    press(parts.toParent);
    QCOMPARE(parts.shown(), m_tree->root());
    QTest::keyClick(parts.edit, Qt::Key_Return); // the key is checked again
    QVERIFY(confined.dialog.isVisible());
    press(parts.accepting());
    QCOMPARE(accepted(confined), m_tree->at(QStringLiteral("@/near.txt")));
}

// Kept: setting the limit puts the text anew, which is no change of it.
void tst_LimitedFileDialogWaysOut::textOfBeforeTheLimitIsNotChecked()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QString());
    QVERIFY(confined.show());
    confined.parts.type(m_secret);
    confined.dialog.setLimitedPath(m_tree->root());
    QVERIFY(!confined.dialog.pathFits(m_secret));
    press(confined.parts.accepting());
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: an absolute text is compared as it stands.
void tst_LimitedFileDialogWaysOut::absoluteTextMayHaveTwoDots()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    enterByReturn(confined, m_tree->at(QStringLiteral("@/root/../outside/secret.txt")));
    QCOMPARE(accepted(confined), m_secret);
}

void tst_LimitedFileDialogWaysOut::homeIsExpandedAfterTheCheck_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    const passwd *root = getpwnam("root");
    QVERIFY(root != nullptr);
    QTest::newRow("own") << QStringLiteral("~/house.txt") << QStringLiteral("@/home/house.txt");
    QTest::newRow("another user's") << QStringLiteral("~root/none.txt")
                                    << QFile::decodeName(root->pw_dir) + QStringLiteral("/none.txt");
}

// Kept: "~" looks like the name of a file until QFileDialog expands it.
void tst_LimitedFileDialogWaysOut::homeIsExpandedAfterTheCheck()
{
    QFETCH(QString, text);
    QFETCH(QString, file);
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    enterByReturn(confined, text);
    QCOMPARE(accepted(confined), m_tree->at(file));
}

void tst_LimitedFileDialogWaysOut::quotedNamesAreTakenApartAfterTheCheck_data()
{
    QTest::addColumn<QFileDialog::FileMode>("mode");
    QTest::addColumn<QString>("text");
    const QString one = QStringLiteral("\"../outside/secret.txt\"");
    QTest::newRow("one") << QFileDialog::AnyFile << one;
    QTest::newRow("one, existing") << QFileDialog::ExistingFile << one;
    QTest::newRow("several") << QFileDialog::ExistingFiles << one + QStringLiteral(" \"file.txt\"");
    QTest::newRow("absolute") << QFileDialog::AnyFile << QStringLiteral("\"@/outside/secret.txt\"");
}

// Kept: with its quotes the text is the name of a file in the folder.
void tst_LimitedFileDialogWaysOut::quotedNamesAreTakenApartAfterTheCheck()
{
    QFETCH(QFileDialog::FileMode, mode);
    QFETCH(QString, text);
    Confined confined(*m_tree);
    confined.dialog.setFileMode(mode);
    QVERIFY(confined.show());
    enterByReturn(confined, m_tree->at(text));
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: backslashes are compared as slashes, though they are part of a name here.
void tst_LimitedFileDialogWaysOut::backslashesAreReadAsSlashesBesideTheRoot()
{
    const QString file = QStringLiteral("@/root\\sub\\x/file.txt");
    QVERIFY(m_tree->addFile(file));
    const QString limit = QStringLiteral("@/root/sub");
    Confined confined(*m_tree, limit, limit);
    QVERIFY(confined.show());
    enterByReturn(confined, QStringLiteral("../../root\\sub\\x/file.txt"));
    QCOMPARE(accepted(confined), m_tree->at(file));
}

// Kept: two dots are taken off the text, not off the place that a link leads to.
void tst_LimitedFileDialogWaysOut::twoDotsBehindALinkLeadUpFromItsTarget()
{
    QVERIFY(QFile::link(m_tree->outside(), m_tree->at(QStringLiteral("@/root/link"))));
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    enterByReturn(confined, QStringLiteral("link/../outside/secret.txt"));
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
    const QString result = confined.dialog.selectedFiles().value(0);
    QCOMPARE(QFileInfo(result).canonicalFilePath(), m_secret);
}

// Kept: QFileDialog selects what a full path names, though its view does not show it.
void tst_LimitedFileDialogWaysOut::fileOutsideIsSelectedUnseenAndDeleted()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    parts.edit->setFocus();
    parts.edit->setText(m_secret);
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(!parts.list->selectionModel()->selectedIndexes().isEmpty());
    ModalDriver driver(
        [](QWidget *question) { qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes)->click(); });
    QTest::keyClick(parts.list, Qt::Key_Delete);
    QVERIFY(driver.ran());
    QVERIFY(!QFile::exists(m_secret));
}

// Kept: the comparison asks for no separator behind the root.
void tst_LimitedFileDialogWaysOut::siblingWithTheSamePrefixIsInside()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    enterByReturn(confined, QStringLiteral("../rootx/near.txt"));
    QCOMPARE(accepted(confined), m_tree->at(QStringLiteral("@/rootx/near.txt")));
}

// Kept: in a folder that fits the parent button is enabled, wherever the parent is.
void tst_LimitedFileDialogWaysOut::parentButtonLeadsOutOfSuchASibling()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    enterByReturn(confined, QStringLiteral("../rootx"));
    QCOMPARE(confined.parts.shown(), m_tree->at(QStringLiteral("@/rootx")));
    press(confined.parts.toParent);
    QCOMPARE(confined.parts.shown(), m_tree->base());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("outside")));
    QVERIFY(confined.parts.doubleClick(QStringLiteral("secret.txt")));
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: an entry may have any one character behind the root's name.
void tst_LimitedFileDialogWaysOut::lookInOffersNeighboursOneCharacterApart()
{
    const QString neighbour = QStringLiteral("@/rootx");
    Confined confined(*m_tree, neighbour, QStringLiteral("@/root"), QStringLiteral("@/second"));
    QVERIFY(confined.show());
    confined.parts.lookIn->showPopup();
    const QStringList offered = confined.parts.lookInTexts();
    confined.parts.lookIn->hidePopup();
    QVERIFY(offered.contains(m_tree->at(neighbour)));
    QVERIFY(!offered.contains(m_tree->base()));
}

// Kept: a link is where its name is.
void tst_LimitedFileDialogWaysOut::linkToAFolderIsFollowed()
{
    QVERIFY(QFile::link(m_tree->base(), m_tree->at(QStringLiteral("@/root/link"))));
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("link")));
    QVERIFY(confined.parts.doubleClick(QStringLiteral("outside")));
    QVERIFY(confined.parts.doubleClick(QStringLiteral("secret.txt")));
    QCOMPARE(QFileInfo(accepted(confined)).canonicalFilePath(), m_secret);
}

// Kept: likewise.
void tst_LimitedFileDialogWaysOut::linkToAFileIsFollowed()
{
    QVERIFY(QFile::link(m_secret, m_tree->at(QStringLiteral("@/root/link.txt"))));
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("link.txt")));
    QCOMPARE(QFileInfo(accepted(confined)).canonicalFilePath(), m_secret);
}

// Kept: QFileDialog's own shortcut works where the button for the same is disabled.
void tst_LimitedFileDialogWaysOut::controlUpLeadsUp()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QVERIFY(!confined.parts.toParent->isEnabled());
    QTest::keyClick(&confined.dialog, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(confined.parts.shown(), m_tree->base());
    QTest::keyClick(&confined.dialog, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(confined.parts.shown(), QFileInfo(m_tree->base()).path());
    QCOMPARE(confined.enabled().left(2), QStringLiteral("..")); // what is checked says no
}

// Kept: the views open what is in the folder shown, without asking where that is.
void tst_LimitedFileDialogWaysOut::fileOutsideIsOpenedByADoubleClick()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QTest::keyClick(&confined.dialog, Qt::Key_Up, Qt::ControlModifier);
    QVERIFY(confined.parts.doubleClick(QStringLiteral("outside")));
    QVERIFY(!confined.parts.accepting()->isEnabled());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("secret.txt")));
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: another shortcut of QFileDialog, which tells nobody that a folder was entered.
void tst_LimitedFileDialogWaysOut::controlShiftHLeadsHome()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QTest::keyClick(&confined.dialog, Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(confined.parts.shown(), m_tree->at(QStringLiteral("@/home")));
    QVERIFY(confined.parts.toParent->isEnabled());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("house.txt")));
    QCOMPARE(accepted(confined), m_tree->at(QStringLiteral("@/home/house.txt")));
}

// Kept: the buttons are checked on clicks and on folders entered; the views' key for going back is neither.
void tst_LimitedFileDialogWaysOut::backKeyLeavesTheParentButtonEnabledInTheRoot()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(confined.show());
    QVERIFY(parts.doubleClick(QStringLiteral("sub")));
    parts.keyInView(Qt::Key_Back);
    QCOMPARE(parts.shown(), m_tree->root());
    QVERIFY(parts.toParent->isEnabled());
    press(parts.toParent);
    QCOMPARE(parts.shown(), m_tree->base());
}

// Kept: below the root the button for going back is enabled, wherever that leads.
void tst_LimitedFileDialogWaysOut::backLeadsToAFolderOfBefore()
{
    Confined confined(*m_tree, QStringLiteral("@/outside"));
    QVERIFY(confined.show());
    confined.dialog.setDirectory(m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(confined.parts.back->isEnabled());
    press(confined.parts.back);
    QCOMPARE(confined.parts.shown(), m_tree->outside());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("secret.txt")));
    QCOMPARE(accepted(confined), m_secret);
}

void tst_LimitedFileDialogWaysOut::startFolderOutsideIsShown_data()
{
    QTest::addColumn<int>("getter");
    QTest::newRow("directory") << 0;
    QTest::newRow("open") << 1;
    QTest::newRow("save") << 2;
}

// Kept: a start folder is shown as it is given, and what is in it can be had.
void tst_LimitedFileDialogWaysOut::startFolderOutsideIsShown()
{
    QFETCH(int, getter);
    const QFileDialog::Options options = QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite;
    ModalDriver driver([&](QWidget *widget) {
        auto *dialog = qobject_cast<LimitedFileDialog *>(widget);
        QCOMPARE(dialog->directory().absolutePath(), m_tree->outside());
        QCOMPARE(dialog->getLimitedPath(), m_tree->root());
        const FileDialogParts parts(dialog);
        if (getter == 0)
            press(parts.accepting());
        else
            QVERIFY(parts.doubleClick(QStringLiteral("secret.txt")));
    });
    const QString none;
    const QString outside = m_tree->outside();
    const QString root = m_tree->root();
    if (getter == 0)
        QCOMPARE(LimitedFileDialog::getExistingDirectoryFromDlg(nullptr, none, outside, options, root, none),
                 outside);
    else if (getter == 1)
        QCOMPARE(LimitedFileDialog::getOpenFileNamesFromDlg(nullptr, none, outside, none, root, none, nullptr,
                                                            options),
                 m_secret);
    else
        QCOMPARE(LimitedFileDialog::getSaveFileNameFromDlg(nullptr, none, outside, none, root, none, nullptr,
                                                           options),
                 m_secret);
    QVERIFY(driver.ran());
}

// Kept: without a start folder QFileDialog begins where its last one ended, be that inside or not.
void tst_LimitedFileDialogWaysOut::folderLastVisitedIsTheStart()
{
    {
        QFileDialog plain(nullptr, QString(), m_tree->outside());
        plain.setOption(QFileDialog::DontUseNativeDialog);
        plain.selectFile(QStringLiteral("secret.txt"));
        QMetaObject::invokeMethod(&plain, "accept");
        QCOMPARE(plain.result(), int(QDialog::Accepted));
    }
    const Confined confined(*m_tree, QString());
    QCOMPARE(confined.parts.shown(), m_tree->outside());
}

// Kept: a root that is not there lifts the limit, and nobody is told.
void tst_LimitedFileDialogWaysOut::missingRootIsNoLimit()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/none"));
    QVERIFY(confined.dialog.getLimitedPath().isEmpty());
    QVERIFY(confined.show());
    enterByReturn(confined, m_secret);
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: so does one that has gone, from the next time on that it is set.
void tst_LimitedFileDialogWaysOut::rootVanishedBeforeTheCallIsNoLimit()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    QVERIFY(QDir(m_tree->root()).removeRecursively());
    confined.dialog.setLimitedPath(m_tree->at(QStringLiteral("@/root/"))); // the same, but not the same text
    QVERIFY(confined.dialog.getLimitedPath().isEmpty());
    QVERIFY(confined.parts.sidebar->isEnabled());
    enterByReturn(confined, m_secret);
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: the dialog's functions are the application's business.
void tst_LimitedFileDialogWaysOut::applicationGoesAnywhere()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    confined.dialog.setDirectory(m_tree->second());
    QCOMPARE(confined.parts.shown(), m_tree->second());
    confined.dialog.selectFile(m_secret);
    QCOMPARE(confined.parts.shown(), m_tree->outside());
    confined.dialog.setDirectoryUrl(QUrl::fromLocalFile(m_tree->base()));
    QCOMPARE(confined.parts.shown(), m_tree->base());
}

// Kept: QFileDialog enables the parent button for every folder, and tells only of those that the user enters.
void tst_LimitedFileDialogWaysOut::parentButtonIsEnabledWhereTheApplicationGoesToTheRoot()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"));
    QVERIFY(confined.show());
    confined.dialog.setDirectory(m_tree->root());
    QVERIFY(confined.parts.toParent->isEnabled());
    press(confined.parts.toParent);
    QCOMPARE(confined.parts.shown(), m_tree->base());
}

void tst_LimitedFileDialogWaysOut::modesEnableTheButton_data()
{
    QTest::addColumn<bool>("fileMode");
    QTest::newRow("file mode") << true;
    QTest::newRow("accept mode") << false;
}

// Kept: QFileDialog looks at its button anew whenever a mode is set; the text, which has not changed, is not
// checked.
void tst_LimitedFileDialogWaysOut::modesEnableTheButton()
{
    QFETCH(bool, fileMode);
    Confined confined(*m_tree);
    confined.dialog.setOption(QFileDialog::DontConfirmOverwrite);
    QVERIFY(confined.show());
    confined.parts.type(m_secret);
    QVERIFY(!confined.parts.accepting()->isEnabled());
    if (fileMode)
        confined.dialog.setFileMode(QFileDialog::ExistingFile);
    else
        confined.dialog.setAcceptMode(QFileDialog::AcceptSave);
    press(confined.parts.accepting());
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: what is checked is the button and two keys, not the result.
void tst_LimitedFileDialogWaysOut::acceptIsNotChecked()
{
    Confined confined(*m_tree);
    QVERIFY(confined.show());
    confined.parts.type(m_secret);
    QVERIFY(!confined.parts.accepting()->isEnabled());
    QMetaObject::invokeMethod(&confined.dialog, "accept");
    QCOMPARE(accepted(confined), m_secret);
}

// Kept: QFileDialog selects what a text names and, while the focus is elsewhere, puts the bare name in its
// place.
void tst_LimitedFileDialogWaysOut::textPutInWithoutFocusIsCutToTheBareName()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    confined.dialog.setFileMode(QFileDialog::Directory);
    QVERIFY(confined.show());
    parts.list->setFocus();
    QVERIFY(!parts.edit->hasFocus());
    QTRY_VERIFY([&] { // once its model knows the folder
        parts.edit->clear();
        parts.list->clearSelection();
        parts.edit->setText(m_tree->outside());
        return parts.edit->text() == QStringLiteral("outside");
    }());
    QVERIFY(!parts.accepting()->isEnabled());
    QTest::keyClick(parts.edit, Qt::Key_Return);
    QCOMPARE(accepted(confined), m_tree->outside());
}

// Kept: a filter that shows the entries of dots shows a way up.
void tst_LimitedFileDialogWaysOut::entryOfTwoDotsLeadsUp()
{
    Confined confined(*m_tree);
    confined.dialog.setFilter(QDir::AllEntries);
    QVERIFY(confined.show());
    QVERIFY(confined.parts.doubleClick(QStringLiteral("..")));
    QCOMPARE(confined.parts.shown(), m_tree->base());
}

QTEST_MAIN(tst_LimitedFileDialogWaysOut)

#include "tst_limitedfiledialog_waysout.moc"
