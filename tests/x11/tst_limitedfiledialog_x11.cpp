// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The limited file dialog under a user's hands: what its rules come to with the events of a real pointer and
// keyboard.

#include "desktop.h"

#include <QCompleter>
#include <QSignalSpy>
#include <QTest>
#include <X11/XF86keysym.h>
#include <X11/keysym.h>
#include <optional>
#include <support/confined.h>
#include <support/modaldriver.h>
#include <utility>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

class tst_LimitedFileDialogX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_desktop.emplace();
        QVERIFY(m_desktop->isAsExpected());
        m_tree.emplace();
        QVERIFY(m_tree->isValid());
    }
    void cleanup()
    {
        m_tree.reset();
        m_desktop.reset();
    }

    void foldersAreEnteredAndLeft_data();
    void foldersAreEnteredAndLeft();
    void parentButtonIsDeadInTheRoot();
    void backAndForwardAreWalked();
    void shortcutsOfTheButtonsAreCheckedLikeThem();
    void typedTextOutsideIsRefused_data();
    void typedTextOutsideIsRefused();
    void typedTextInsideIsAccepted_data();
    void typedTextInsideIsAccepted();
    void completionOutsideIsRefused();
    void completionInsideIsAccepted();
    void fileNameHasNoContextMenu();
    void sidebarAndLookInAreDeadWithOneRoot();
    void lookInLeadsToTheOtherRoot();
    void lookInIsHandledByKeys();
    void oneCallIsAnsweredByTheKeyboard();
    void oneCallIsCancelled();

    // The ways out that the rules leave open
    void controlUpLeadsUp();
    void clickOnAFolderEnablesTheButtonForATextOutside();
    void backKeyLeavesTheParentButtonEnabledInTheRoot();
    void altLeftInTheViewLeadsToAFolderOfBefore();

private:
    /*! Shows it, and returns once the keys go there and its folder is listed. */
    bool show(Confined *confined) const
    {
        if (!m_desktop->show(&confined->dialog))
            return false;
        confined->dialog.activateWindow(); // where there is no window manager, nobody else does
        return QTest::qWaitFor([&] { return m_desktop->hasKeyboard(&confined->dialog); })
            && confined->parts.isLoaded();
    }

    bool click(const QWidget *widget)
    {
        return m_desktop->input.click(m_desktop->center(widget));
    }

    /*! Where an entry is on the screen; waits for it, and until those before it have come. */
    QPoint entry(const FileDialogParts &parts, const QString &name) const
    {
        QPoint place;
        const auto isSettled = [&] {
            const QPoint before = std::exchange(place, parts.place(parts.view(), name));
            return !place.isNull() && place == before;
        };
        return parts.isLoaded() && QTest::qWaitFor(isSettled) ? parts.view()->viewport()->mapToGlobal(place)
                                                              : QPoint(-1, -1);
    }

    bool clickEntry(const FileDialogParts &parts, const char *name)
    {
        return m_desktop->input.click(entry(parts, QString::fromLatin1(name)));
    }

    bool openEntry(const FileDialogParts &parts, const char *name)
    {
        return m_desktop->input.doubleClick(entry(parts, QString::fromLatin1(name)));
    }

    bool type(const FileDialogParts &parts, const QString &text)
    {
        return click(parts.edit) && m_desktop->input.keyWith(XK_Control_L, XK_a)
            && m_desktop->input.key(XK_Delete) && m_desktop->input.type(text);
    }

    std::optional<Desktop> m_desktop;
    std::optional<FileTree> m_tree;
};

void tst_LimitedFileDialogX11::foldersAreEnteredAndLeft_data()
{
    QTest::addColumn<QFileDialog::ViewMode>("mode");
    QTest::newRow("list") << QFileDialog::List;
    QTest::newRow("details") << QFileDialog::Detail;
}

void tst_LimitedFileDialogX11::foldersAreEnteredAndLeft()
{
    QFETCH(QFileDialog::ViewMode, mode);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    confined.dialog.setViewMode(mode);
    QVERIFY(show(&confined));

    QVERIFY(openEntry(parts, "sub"));
    QTRY_COMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(openEntry(parts, "deep"));
    QTRY_COMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub/deep")));
    QCOMPARE(confined.enabled().left(2), QStringLiteral("PB"));

    QVERIFY(parts.view()->hasFocus()); // by the clicks
    QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(parts.shown(), m_tree->root());
    QVERIFY(m_desktop->input.key(XK_BackSpace));
    QCOMPARE(parts.shown(), m_tree->root());
    QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
}

void tst_LimitedFileDialogX11::parentButtonIsDeadInTheRoot()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"));
    QVERIFY(show(&confined));
    QVERIFY(click(confined.parts.toParent));
    QCOMPARE(confined.parts.shown(), m_tree->root());
    QVERIFY(click(confined.parts.toParent));
    QCOMPARE(confined.parts.shown(), m_tree->root());
    QVERIFY(click(confined.parts.back));
    QCOMPARE(confined.parts.shown(), m_tree->root());
}

void tst_LimitedFileDialogX11::backAndForwardAreWalked()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(openEntry(parts, "sub"));
    QVERIFY(openEntry(parts, "deep"));
    const struct
    {
        QToolButton *button;
        const char *shown;
        const char *enabled;
    } steps[] = {{parts.back, "@/root/sub", "PBF"},
                 {parts.back, "@/root", "..F"},
                 {parts.back, "@/root", "..F"},
                 {parts.forward, "@/root/sub", "PBF"},
                 {parts.forward, "@/root/sub/deep", "PB."},
                 {parts.toParent, "@/root/sub", "PB."},
                 {parts.toParent, "@/root", "..."}};
    for (const auto &step : steps) {
        QVERIFY(click(step.button));
        QCOMPARE(parts.shown(), m_tree->at(QString::fromLatin1(step.shown)));
        QCOMPARE(confined.enabled().left(3), QString::fromLatin1(step.enabled));
    }
}

void tst_LimitedFileDialogX11::shortcutsOfTheButtonsAreCheckedLikeThem()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(openEntry(parts, "sub"));
    const struct
    {
        unsigned long key; // with Alt
        const char *shown;
        const char *enabled;
    } steps[] = {{XK_Left, "@/root", "..F"},
                 {XK_Up, "@/root", "..F"},
                 {XK_Right, "@/root/sub", "PB."},
                 {XK_Up, "@/root", "..."},
                 {XK_Up, "@/root", "..."}};
    for (const auto &step : steps) {
        QVERIFY(m_desktop->input.keyWith(XK_Alt_L, step.key));
        QTRY_COMPARE(parts.shown(), m_tree->at(QString::fromLatin1(step.shown)));
        QTRY_COMPARE(confined.enabled().left(3), QString::fromLatin1(step.enabled));
    }
}

void tst_LimitedFileDialogX11::typedTextOutsideIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("up") << QStringLiteral("..");
    QTest::newRow("up twice") << QStringLiteral("../..");
    QTest::newRow("file outside") << QStringLiteral("../outside/secret.txt");
    QTest::newRow("down and out") << QStringLiteral("sub/../../outside/secret.txt");
    QTest::newRow("absolute") << QStringLiteral("/etc/hosts");
    QTest::newRow("the file system's root") << QStringLiteral("/");
}

void tst_LimitedFileDialogX11::typedTextOutsideIsRefused()
{
    QFETCH(QString, text);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QSignalSpy finished(&confined.dialog, &QDialog::finished);

    QVERIFY(type(parts, text));
    QCOMPARE(parts.edit->text(), text);
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(m_desktop->input.key(XK_Return)); // into the completions, if there are any
    QVERIFY(m_desktop->input.key(XK_KP_Enter));
    parts.completions()->hide();
    QVERIFY(m_desktop->input.key(XK_Return));
    QVERIFY(m_desktop->input.key(XK_KP_Enter));
    QVERIFY(click(parts.accepting()));
    QCOMPARE(finished.count(), 0);
    QCOMPARE(parts.shown(), m_tree->root());
}

void tst_LimitedFileDialogX11::typedTextInsideIsAccepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("byReturn");
    QTest::newRow("Return") << QStringLiteral("file.txt") << QStringLiteral("@/root/file.txt") << true;
    QTest::newRow("click") << QStringLiteral("with space.txt") << QStringLiteral("@/root/with space.txt")
                           << false;
    QTest::newRow("below, Return") << QStringLiteral("sub/inner.txt")
                                   << QStringLiteral("@/root/sub/inner.txt") << true;
    QTest::newRow("missing, click") << QStringLiteral("sub/none") << QStringLiteral("@/root/sub/none")
                                    << false;
}

void tst_LimitedFileDialogX11::typedTextInsideIsAccepted()
{
    QFETCH(QString, text);
    QFETCH(QString, file);
    QFETCH(bool, byReturn);
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(type(parts, text));
    QVERIFY(parts.accepting()->isEnabled());
    // The first one may go to the completions
    for (int i = 0; i < 2 && confined.dialog.isVisible(); ++i)
        QVERIFY(byReturn ? m_desktop->input.key(XK_Return) : click(parts.accepting()));
    QTRY_VERIFY(!confined.dialog.isVisible());
    QCOMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(QDir::cleanPath(confined.dialog.selectedFiles().value(0)), m_tree->at(file));
}

void tst_LimitedFileDialogX11::completionOutsideIsRefused()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(type(parts, QStringLiteral("/et")));
    // The folder has to be read first; then the next key would offer what is there
    QTRY_VERIFY([&] {
        parts.edit->completer()->complete();
        return parts.completions()->isVisible();
    }());
    QVERIFY(m_desktop->isShown(parts.completions()));
    QVERIFY(m_desktop->input.key(XK_Down));
    QTRY_COMPARE(parts.edit->text(), QStringLiteral("/etc"));
    QVERIFY(!parts.accepting()->isEnabled());
    QVERIFY(m_desktop->input.key(XK_Return));
    QVERIFY(m_desktop->input.key(XK_KP_Enter));
    QCOMPARE(parts.shown(), m_tree->root());
    QVERIFY(confined.dialog.isVisible());
    QVERIFY(parts.completions()->isVisible()); // the keys were swallowed before it saw them
    parts.completions()->hide();
}

void tst_LimitedFileDialogX11::completionInsideIsAccepted()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(type(parts, QStringLiteral("fil")));
    QTRY_VERIFY(parts.completions()->isVisible());
    QVERIFY(m_desktop->input.key(XK_Down));
    QTRY_COMPARE(parts.edit->text(), QStringLiteral("file.txt"));
    QVERIFY(m_desktop->input.key(XK_Return));
    QTRY_COMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(confined.dialog.selectedFiles(), QStringList(m_tree->at(QStringLiteral("@/root/file.txt"))));
}

void tst_LimitedFileDialogX11::fileNameHasNoContextMenu()
{
    for (const bool limited : {false, true}) {
        Confined confined(*m_tree, QStringLiteral("@/root"), QString());
        if (limited)
            confined.dialog.setLimitedPath(m_tree->root());
        else
            confined.parts.edit->setContextMenuPolicy(Qt::DefaultContextMenu);
        QVERIFY(show(&confined));
        QVERIFY(m_desktop->input.click(m_desktop->center(confined.parts.edit), Qt::RightButton));
        QWidget *menu = QApplication::activePopupWidget();
        QCOMPARE(menu != nullptr, !limited);
        if (menu != nullptr)
            menu->close();
    }
}

void tst_LimitedFileDialogX11::sidebarAndLookInAreDeadWithOneRoot()
{
    Confined confined(*m_tree);
    confined.dialog.setSidebarUrls({QUrl::fromLocalFile(m_tree->outside())});
    QVERIFY(show(&confined));
    const auto *sidebar = qobject_cast<QAbstractItemView *>(confined.parts.sidebar);
    const QPoint place =
        sidebar->viewport()->mapToGlobal(sidebar->visualRect(sidebar->model()->index(0, 0)).center());
    QVERIFY(m_desktop->input.click(place));
    QCOMPARE(confined.parts.shown(), m_tree->root());
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(confined.parts.lookIn)) && m_desktop->input.press());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QVERIFY(m_desktop->input.release());

    // Without the limit the same clicks work
    confined.dialog.setLimitedPath(QString());
    QVERIFY(m_desktop->input.click(place));
    QTRY_COMPARE(confined.parts.shown(), m_tree->outside());
    QVERIFY(m_desktop->input.moveTo(m_desktop->center(confined.parts.lookIn)) && m_desktop->input.press());
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    confined.parts.lookIn->hidePopup();
    QVERIFY(m_desktop->input.release());
}

void tst_LimitedFileDialogX11::lookInLeadsToTheOtherRoot()
{
    Confined confined(*m_tree, QStringLiteral("@/root/sub"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    for (const QString &target : {m_tree->second(), m_tree->root()}) {
        // Pressed on the box, let go of over the entry
        QVERIFY(m_desktop->input.moveTo(m_desktop->center(parts.lookIn)) && m_desktop->input.press());
        QAbstractItemView *popup = parts.lookIn->view();
        QTRY_VERIFY(popup->isVisible());
        QVERIFY(m_desktop->isShown(popup->window()));
        const QStringList texts = parts.lookInTexts();
        QVERIFY(!texts.contains(m_tree->base()));
        const QModelIndex row = popup->model()->index(texts.indexOf(target), 0);
        QVERIFY(row.isValid());
        QVERIFY(m_desktop->input.dragTo(popup->viewport()->mapToGlobal(popup->visualRect(row).center())));
        QTRY_COMPARE(popup->currentIndex(), row);
        QVERIFY(m_desktop->input.release());
        QTRY_COMPARE(parts.shown(), target);
        QCOMPARE(confined.enabled().left(2), QStringLiteral(".."));
    }
}

void tst_LimitedFileDialogX11::lookInIsHandledByKeys()
{
    Confined confined(*m_tree, QStringLiteral("@/root"), QStringLiteral("@/root"),
                      QStringLiteral("@/second"));
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    parts.lookIn->setFocus();
    QVERIFY(m_desktop->input.key(XK_F4));
    QTRY_VERIFY(parts.lookIn->view()->isVisible());
    QVERIFY(m_desktop->isShown(parts.lookIn->view()->window()));
    QCOMPARE(parts.lookInTexts().mid(0, 2), QStringList({m_tree->root(), m_tree->second()}));
    QVERIFY(m_desktop->input.key(XK_Down));
    QVERIFY(m_desktop->input.key(XK_Return));
    QTRY_COMPARE(parts.shown(), m_tree->second());

    // On the closed box the keys find nothing but the roots either
    for (const unsigned long key : {XK_Up, XK_Down, XK_End, XK_Home}) {
        QVERIFY(m_desktop->input.key(key));
        QVERIFY(parts.shown() == m_tree->root() || parts.shown() == m_tree->second());
    }
}

void tst_LimitedFileDialogX11::oneCallIsAnsweredByTheKeyboard()
{
    ModalDriver driver([this](QWidget *dialog) {
        QVERIFY(m_desktop->isShown(dialog));
        QTRY_VERIFY(m_desktop->hasKeyboard(dialog));
        QVERIFY(m_desktop->input.type(QStringLiteral("../outside/secret.txt")));
        QVERIFY(m_desktop->input.key(XK_Return));
        QVERIFY(dialog->isVisible());
        QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_a));
        QVERIFY(m_desktop->input.type(QStringLiteral("new.txt")));
        QVERIFY(m_desktop->input.key(XK_Return));
    });
    const QString none;
    QCOMPARE(LimitedFileDialog::getSaveFileNameFromDlg(nullptr, none, m_tree->root(), none, m_tree->root(),
                                                       none, nullptr, QFileDialog::Options()),
             m_tree->at(QStringLiteral("@/root/new.txt")));
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogX11::oneCallIsCancelled()
{
    const QString none;
    for (const bool byKey : {true, false}) {
        ModalDriver driver([&](QWidget *dialog) {
            QVERIFY(m_desktop->isShown(dialog));
            QTRY_VERIFY(m_desktop->hasKeyboard(dialog));
            if (byKey)
                QVERIFY(m_desktop->input.key(XK_Escape));
            else
                QVERIFY(click(FileDialogParts(qobject_cast<QFileDialog *>(dialog)).rejecting()));
        });
        QCOMPARE(LimitedFileDialog::getOpenFileNamesFromDlg(nullptr, none, m_tree->root(), none,
                                                            m_tree->root(), none, nullptr,
                                                            QFileDialog::Options()),
                 QString());
        QVERIFY(driver.ran());
    }
}

// Kept: QFileDialog's own shortcut works where the button for the same is disabled.
void tst_LimitedFileDialogX11::controlUpLeadsUp()
{
    Confined confined(*m_tree);
    QVERIFY(show(&confined));
    QVERIFY(m_desktop->input.keyWith(XK_Control_L, XK_Up));
    QTRY_COMPARE(confined.parts.shown(), m_tree->base());
}

// Kept: the check only ever disables the button, and QFileDialog enables it for whatever is selected in its
// view.
void tst_LimitedFileDialogX11::clickOnAFolderEnablesTheButtonForATextOutside()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(type(parts, QStringLiteral("/etc/hosts")));
    QVERIFY(!parts.accepting()->isEnabled());
    parts.completions()->hide();
    QVERIFY(clickEntry(parts, "sub"));
    QVERIFY(parts.accepting()->isEnabled());
    QVERIFY(click(parts.accepting()));
    QTRY_COMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(click(parts.accepting()));
    QTRY_COMPARE(confined.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(confined.dialog.selectedFiles(), QStringList(QStringLiteral("/etc/hosts")));
}

// Kept: the buttons are checked on clicks and on folders entered; the views' key for going back is neither.
void tst_LimitedFileDialogX11::backKeyLeavesTheParentButtonEnabledInTheRoot()
{
    Confined confined(*m_tree);
    const FileDialogParts &parts = confined.parts;
    QVERIFY(show(&confined));
    QVERIFY(openEntry(parts, "sub"));
    QTRY_COMPARE(parts.shown(), m_tree->at(QStringLiteral("@/root/sub")));
    QVERIFY(parts.view()->hasFocus());
    QVERIFY(m_desktop->input.key(XF86XK_Back));
    QTRY_COMPARE(parts.shown(), m_tree->root());
    QVERIFY(click(parts.toParent));
    QTRY_COMPARE(parts.shown(), m_tree->base());
}

// Kept: where its button is disabled, Alt and the left key go on to the view, which asks nobody.
void tst_LimitedFileDialogX11::altLeftInTheViewLeadsToAFolderOfBefore()
{
    Confined confined(*m_tree, QStringLiteral("@/outside"));
    const FileDialogParts &parts = confined.parts;
    confined.dialog.setDirectory(m_tree->root());
    confined.dialog.checkGoToParent();
    QVERIFY(show(&confined));
    QVERIFY(!parts.back->isEnabled());
    QVERIFY(clickEntry(parts, "sub"));
    QVERIFY(m_desktop->input.keyWith(XK_Alt_L, XK_Left));
    QTRY_COMPARE(parts.shown(), m_tree->outside());
}

QTEST_MAIN(tst_LimitedFileDialogX11)

#include "tst_limitedfiledialog_x11.moc"
