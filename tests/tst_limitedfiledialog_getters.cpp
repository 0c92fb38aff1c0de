// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The functions that show a limited file dialog in one call.

#include "support/filedialogparts.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/testdialog.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

enum Getter { Directory, Open, Save };

/*! The arguments of all three; paths as for FileTree::at(). */
struct Call
{
    Getter getter = Open;
    QWidget *parent = nullptr;
    QString caption;
    QString dir = QStringLiteral("@/root");
    QString filter; // not for a directory
    QFileDialog::Options options = QFileDialog::DontUseNativeDialog;
    QString limit = QStringLiteral("@/root");
    QString limit1;
    QString *selectedFilter = nullptr; // not for a directory

    QString operator()(const FileTree &tree) const
    {
        if (getter == Directory) {
            return LimitedFileDialog::getExistingDirectoryFromDlg(parent, caption, tree.at(dir), options,
                                                                  tree.at(limit), tree.at(limit1));
        }
        const auto file = getter == Open ? LimitedFileDialog::getOpenFileNamesFromDlg
                                         : LimitedFileDialog::getSaveFileNameFromDlg;
        return file(parent, caption, tree.at(dir), filter, tree.at(limit), tree.at(limit1), selectedFilter,
                    options);
    }
};

LimitedFileDialog *dialogOf(QWidget *widget)
{
    return qobject_cast<LimitedFileDialog *>(widget);
}

void cancel(QWidget *widget)
{
    FileDialogParts(dialogOf(widget)).rejecting()->click();
}

/*! Types \a text and presses the button that accepts. */
ModalDriver::Action enter(const QString &text)
{
    return [text](QWidget *widget) {
        const FileDialogParts parts(dialogOf(widget));
        parts.edit->setText(text);
        QVERIFY(parts.accepting()->isEnabled());
        parts.accepting()->click();
    };
}

void addGetterRows()
{
    QTest::addColumn<Getter>("getter");
    QTest::newRow("directory") << Directory;
    QTest::newRow("open") << Open;
    QTest::newRow("save") << Save;
}

} // namespace

Q_DECLARE_METATYPE(Getter)
Q_DECLARE_METATYPE(QFileDialog::Options)

class tst_LimitedFileDialogGetters : public QObject
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

    void dialogIsSetUp_data();
    void dialogIsSetUp();
    void filtersAreOffered_data();
    void filtersAreOffered();
    void directoryGetterOffersNoFilter();
    void limitIsInForce_data();
    void limitIsInForce();
    void secondRootKeepsLookInEnabled_data();
    void secondRootKeepsLookInEnabled();
    void badRootsAreNoLimit_data();
    void badRootsAreNoLimit();
    void optionsReplaceAllOthers_data();
    void optionsReplaceAllOthers();
    void fileModeIsSetAfterTheOptions();
    void widgetsAreUsedWhateverTheOptions_data();
    void widgetsAreUsedWhateverTheOptions();
    void cancelButtonIsTranslatedInOwnContext_data();
    void cancelButtonIsTranslatedInOwnContext();

    void fileGettersReturnTheFile_data();
    void fileGettersReturnTheFile();
    void openReturnsOnePathThoughSeveralAreNamed();
    void saveAsksBeforeOverwriting();
    void directoryGetterReturnsTheFolderShown_data();
    void directoryGetterReturnsTheFolderShown();
    void cancellingReturnsNothing_data();
    void cancellingReturnsNothing();
    void selectedFilterIsNeitherReadNorWritten_data();
    void selectedFilterIsNeitherReadNorWritten();
    void argumentsCanBeLeftOut_data();
    void argumentsCanBeLeftOut();

    void dialogIsGoneOnReturn_data();
    void dialogIsGoneOnReturn();
    void deletedParentReturnsNothing_data();
    void deletedParentReturnsNothing();
    void parentDeletedWhenAcceptedReturnsNothing_data();
    void parentDeletedWhenAcceptedReturnsNothing();
    void deletedDialogReturnsNothing_data();
    void deletedDialogReturnsNothing();
    void callsMayNest();

private:
    std::optional<FunctionGuard> m_guard;
    std::optional<FileTree> m_tree;
};

void tst_LimitedFileDialogGetters::dialogIsSetUp_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::dialogIsSetUp()
{
    QFETCH(Getter, getter);
    QWidget parent;
    Call call;
    call.getter = getter;
    call.parent = &parent;
    call.caption = QStringLiteral("Caption");
    call.dir = QStringLiteral("@/root/sub");
    ModalDriver driver([&](QWidget *widget) {
        LimitedFileDialog *dialog = dialogOf(widget);
        QVERIFY(dialog != nullptr);
        QVERIFY(dialog->isModal());
        QCOMPARE(dialog->parentWidget(), &parent);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Caption"));
        QCOMPARE(dialog->directory().absolutePath(), m_tree->at(QStringLiteral("@/root/sub")));
        QCOMPARE(dialog->acceptMode(), getter == Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        QCOMPARE(dialog->fileMode(), getter == Directory ? QFileDialog::Directory : QFileDialog::AnyFile);
        QCOMPARE(dialog->labelText(QFileDialog::Reject), QStringLiteral("&Cancel"));
        QCOMPARE(FileDialogParts(dialog).rejecting()->text(), QStringLiteral("&Cancel"));
        QCOMPARE(dialog->getLimitedPath(), m_tree->root());
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::filtersAreOffered_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::newRow("open") << Open;
    QTest::newRow("save") << Save;
}

void tst_LimitedFileDialogGetters::filtersAreOffered()
{
    QFETCH(Getter, getter);
    Call call;
    call.getter = getter;
    call.filter = QStringLiteral("Texts (*.txt);;Pictures (*.png)");
    ModalDriver driver([](QWidget *widget) {
        QCOMPARE(dialogOf(widget)->nameFilters(),
                 QStringList({QStringLiteral("Texts (*.txt)"), QStringLiteral("Pictures (*.png)")}));
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::directoryGetterOffersNoFilter()
{
    Call call;
    call.getter = Directory;
    const QFileDialog plain(nullptr, QString(), m_tree->root(), QString());
    ModalDriver driver([&](QWidget *widget) {
        QCOMPARE(dialogOf(widget)->nameFilters(), plain.nameFilters());
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::limitIsInForce_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::limitIsInForce()
{
    QFETCH(Getter, getter);
    Call call;
    call.getter = getter;
    ModalDriver driver([&](QWidget *widget) {
        LimitedFileDialog *dialog = dialogOf(widget);
        const FileDialogParts parts(dialog);
        QVERIFY(!parts.lookIn->isEnabled());
        QVERIFY(!parts.sidebar->isEnabled());
        QVERIFY(!parts.toParent->isEnabled());
        QVERIFY(!parts.back->isEnabled());
        QCOMPARE(dialog->history(), QStringList(m_tree->root()));
        parts.edit->setText(m_tree->at(QStringLiteral("@/outside/none")));
        QVERIFY(!parts.accepting()->isEnabled());
        QTest::keyClick(parts.edit, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        cancel(widget);
    });
    QCOMPARE(call(*m_tree), QString());
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::secondRootKeepsLookInEnabled_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::secondRootKeepsLookInEnabled()
{
    QFETCH(Getter, getter);
    Call call;
    call.getter = getter;
    call.limit1 = QStringLiteral("@/second");
    ModalDriver driver([&](QWidget *widget) {
        LimitedFileDialog *dialog = dialogOf(widget);
        const FileDialogParts parts(dialog);
        QVERIFY(parts.lookIn->isEnabled());
        QVERIFY(!parts.sidebar->isEnabled());
        QCOMPARE(dialog->history(), QStringList({m_tree->root(), m_tree->second()}));
        QVERIFY(dialog->pathFits(m_tree->at(QStringLiteral("@/second/below"))));
        QVERIFY(!dialog->pathFits(m_tree->outside()));
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::badRootsAreNoLimit_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("limit");
    const QPair<const char *, Getter> getters[] = {{"directory", Directory}, {"open", Open}, {"save", Save}};
    for (const auto &getter : getters) {
        QTest::addRow("%s: nothing", getter.first) << getter.second << QString();
        QTest::addRow("%s: missing", getter.first) << getter.second << QStringLiteral("@/none");
        QTest::addRow("%s: a file", getter.first) << getter.second << QStringLiteral("@/root/file.txt");
    }
}

void tst_LimitedFileDialogGetters::badRootsAreNoLimit()
{
    QFETCH(Getter, getter);
    QFETCH(QString, limit);
    Call call;
    call.getter = getter;
    call.limit = limit;
    call.limit1 = limit;
    ModalDriver driver([&](QWidget *widget) {
        LimitedFileDialog *dialog = dialogOf(widget);
        const FileDialogParts parts(dialog);
        QVERIFY(dialog->getLimitedPath().isEmpty());
        QVERIFY(parts.lookIn->isEnabled());
        QVERIFY(parts.sidebar->isEnabled());
        QVERIFY(parts.toParent->isEnabled());
        QVERIFY(dialog->pathFits(m_tree->outside()));
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::optionsReplaceAllOthers_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QFileDialog::Options>("options");
    const QPair<const char *, Getter> getters[] = {{"directory", Directory}, {"open", Open}, {"save", Save}};
    for (const auto &getter : getters) {
        QTest::addRow("%s: none", getter.first) << getter.second << QFileDialog::Options();
        QTest::addRow("%s: one", getter.first)
            << getter.second << QFileDialog::Options(QFileDialog::ReadOnly);
        QTest::addRow("%s: some", getter.first)
            << getter.second
            << QFileDialog::Options(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite
                                    | QFileDialog::DontResolveSymlinks);
    }
}

void tst_LimitedFileDialogGetters::optionsReplaceAllOthers()
{
    QFETCH(Getter, getter);
    QFETCH(QFileDialog::Options, options);
    Call call;
    call.getter = getter;
    call.options = options;
    ModalDriver driver([options](QWidget *widget) {
        QCOMPARE(dialogOf(widget)->options(), options);
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

// QFileDialog::setFileMode() drops ShowDirsOnly for this mode, setOptions() would bring it back.
void tst_LimitedFileDialogGetters::fileModeIsSetAfterTheOptions()
{
    QFileDialog plain;
    plain.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    plain.setFileMode(QFileDialog::Directory);
    QVERIFY(!plain.testOption(QFileDialog::ShowDirsOnly));
    Call call;
    call.getter = Directory;
    call.options = QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog;
    ModalDriver driver([&](QWidget *widget) {
        QCOMPARE(dialogOf(widget)->options(), plain.options());
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::widgetsAreUsedWhateverTheOptions_data()
{
    addGetterRows();
}

// Says something where the platform theme has dialogs of its own, as in the run that asks for such a theme.
void tst_LimitedFileDialogGetters::widgetsAreUsedWhateverTheOptions()
{
    QFETCH(Getter, getter);
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME")) {
        QFileDialog plain(nullptr, QString(), m_tree->root());
        plain.show();
        if (FileDialogParts(&plain).areThere())
            QSKIP("This platform theme has no file dialogs here");
    }
    Call call;
    call.getter = getter;
    call.options = QFileDialog::Options();
    ModalDriver driver([](QWidget *widget) {
        QVERIFY(!dialogOf(widget)->testOption(QFileDialog::DontUseNativeDialog));
        const FileDialogParts parts(dialogOf(widget));
        QVERIFY(parts.areThere());
        QVERIFY(parts.edit->isVisible());
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::cancelButtonIsTranslatedInOwnContext_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::cancelButtonIsTranslatedInOwnContext()
{
    QFETCH(Getter, getter);
    Call call;
    call.getter = getter;
    {
        const Brackets brackets("Tarn::Widgets::LimitedFileDialog");
        ModalDriver driver([](QWidget *widget) {
            QCOMPARE(FileDialogParts(dialogOf(widget)).rejecting()->text(), QStringLiteral("<&Cancel>"));
            cancel(widget);
        });
        call(*m_tree);
        QVERIFY(driver.ran());
    }
    const Brackets brackets("QFileDialog"); // which is not the one asked
    ModalDriver driver([](QWidget *widget) {
        QCOMPARE(FileDialogParts(dialogOf(widget)).rejecting()->text(), QStringLiteral("&Cancel"));
        cancel(widget);
    });
    call(*m_tree);
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::fileGettersReturnTheFile_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    const QPair<const char *, Getter> getters[] = {{"open", Open}, {"save", Save}};
    for (const auto &getter : getters) {
        const auto add = [&](const char *name, const char *text, const char *result) {
            QTest::addRow("%s: %s", getter.first, name)
                << getter.second << QString::fromLatin1(text) << QString::fromLatin1(result);
        };
        add("a new file", "new.txt", "@/root/new.txt"); // for open as well: the file mode is the default
        add("a new file below", "sub/new.txt", "@/root/sub/new.txt");
        add("absolute", "@/root/sub/new.txt", "@/root/sub/new.txt");
        add("spaces", "a  b", "@/root/a  b");
    }
    QTest::newRow("open: a file") << Open << QStringLiteral("file.txt") << QStringLiteral("@/root/file.txt");
}

void tst_LimitedFileDialogGetters::fileGettersReturnTheFile()
{
    QFETCH(Getter, getter);
    QFETCH(QString, text);
    QFETCH(QString, result);
    Call call;
    call.getter = getter;
    ModalDriver driver(enter(m_tree->at(text)));
    QCOMPARE(call(*m_tree), m_tree->at(result));
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::openReturnsOnePathThoughSeveralAreNamed()
{
    Call call;
    ModalDriver driver([](QWidget *widget) {
        dialogOf(widget)->setFileMode(QFileDialog::ExistingFiles);
        enter(QStringLiteral("\"with space.txt\" \"file.txt\""))(widget);
    });
    QCOMPARE(call(*m_tree), m_tree->at(QStringLiteral("@/root/with space.txt")));
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::saveAsksBeforeOverwriting()
{
    Call call;
    call.getter = Save;
    {
        ModalDriver driver(enter(QStringLiteral("file.txt")));
        driver.then([](QWidget *widget) {
            auto *question = qobject_cast<QMessageBox *>(widget);
            QVERIFY(question != nullptr);
            question->button(QMessageBox::Yes)->click();
        });
        QCOMPARE(call(*m_tree), m_tree->at(QStringLiteral("@/root/file.txt")));
        QVERIFY(driver.ran());
    }
    call.options = QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite;
    ModalDriver quiet(enter(QStringLiteral("file.txt")));
    QCOMPARE(call(*m_tree), m_tree->at(QStringLiteral("@/root/file.txt")));
    QVERIFY(quiet.ran());
}

void tst_LimitedFileDialogGetters::directoryGetterReturnsTheFolderShown_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("nothing is chosen")
        << QStringLiteral("@/root/sub") << QString() << QStringLiteral("@/root/sub");
    QTest::newRow("nothing is chosen in the root")
        << QStringLiteral("@/root") << QString() << QStringLiteral("@/root");
    QTest::newRow("a folder is chosen")
        << QStringLiteral("@/root") << QStringLiteral("sub") << QStringLiteral("@/root");
    QTest::newRow("a deeper one is chosen")
        << QStringLiteral("@/root/sub") << QStringLiteral("deep/deepest") << QStringLiteral("@/root/sub");
    QTest::newRow("behind a link") << QStringLiteral("@/root/link") << QString()
                                   << QStringLiteral("@/root/link");
}

// Kept: the folder that the dialog shows is the result, not the one that the user has chosen in it.
void tst_LimitedFileDialogGetters::directoryGetterReturnsTheFolderShown()
{
    QFETCH(QString, dir);
    QFETCH(QString, text);
    QFETCH(QString, result);
    QVERIFY(QFile::link(m_tree->second(), m_tree->at(QStringLiteral("@/root/link"))));
    Call call;
    call.getter = Directory;
    call.dir = dir;
    ModalDriver driver([&](QWidget *widget) {
        QVERIFY(FileDialogParts(dialogOf(widget)).isLoaded());
        enter(text)(widget);
    });
    QCOMPARE(call(*m_tree), m_tree->at(result));
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::cancellingReturnsNothing_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<int>("way");
    const QPair<const char *, Getter> getters[] = {{"directory", Directory}, {"open", Open}, {"save", Save}};
    const char *const ways[] = {"Cancel", "Escape", "closing", "another result"};
    for (const auto &getter : getters) {
        for (int way = 0; way < 4; ++way)
            QTest::addRow("%s: %s", getter.first, ways[way]) << getter.second << way;
    }
}

void tst_LimitedFileDialogGetters::cancellingReturnsNothing()
{
    QFETCH(Getter, getter);
    QFETCH(int, way);
    Call call;
    call.getter = getter;
    ModalDriver driver([way](QWidget *widget) {
        FileDialogParts(dialogOf(widget)).edit->setText(QStringLiteral("file.txt"));
        if (way == 0)
            cancel(widget);
        else if (way == 1)
            QTest::keyClick(widget, Qt::Key_Escape);
        else if (way == 2)
            widget->close();
        else
            QMetaObject::invokeMethod(widget, "done", Q_ARG(int, 2));
    });
    QCOMPARE(call(*m_tree), QString());
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::selectedFilterIsNeitherReadNorWritten_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("open") << Open << true;
    QTest::newRow("open, cancelled") << Open << false;
    QTest::newRow("save") << Save << true;
    QTest::newRow("save, cancelled") << Save << false;
}

void tst_LimitedFileDialogGetters::selectedFilterIsNeitherReadNorWritten()
{
    QFETCH(Getter, getter);
    QFETCH(bool, accepted);
    QString filter = QStringLiteral("Pictures (*.png)");
    Call call;
    call.getter = getter;
    call.filter = QStringLiteral("All (*);;Texts (*.txt);;Pictures (*.png)");
    call.selectedFilter = &filter;
    ModalDriver driver([accepted](QWidget *widget) {
        QCOMPARE(dialogOf(widget)->selectedNameFilter(), QStringLiteral("All (*)")); // not as asked for
        dialogOf(widget)->selectNameFilter(QStringLiteral("Texts (*.txt)"));
        if (accepted)
            enter(QStringLiteral("new.txt"))(widget);
        else
            cancel(widget);
    });
    QCOMPARE(call(*m_tree).isEmpty(), !accepted);
    QVERIFY(driver.ran());
    QCOMPARE(filter, QStringLiteral("Pictures (*.png)"));
}

void tst_LimitedFileDialogGetters::argumentsCanBeLeftOut_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::argumentsCanBeLeftOut()
{
    QFETCH(Getter, getter);
    ModalDriver driver([](QWidget *widget) {
        LimitedFileDialog *dialog = dialogOf(widget);
        QCOMPARE(dialog->parentWidget(), nullptr);
        QVERIFY(dialog->getLimitedPath().isEmpty());
        QVERIFY(FileDialogParts(dialog).areThere());
        QCOMPARE(dialog->options(), QFileDialog::Options());
        cancel(widget);
    });
    const QString result = getter == Directory ? LimitedFileDialog::getExistingDirectoryFromDlg()
        : getter == Open                       ? LimitedFileDialog::getOpenFileNamesFromDlg()
                                               : LimitedFileDialog::getSaveFileNameFromDlg();
    QCOMPARE(result, QString());
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::dialogIsGoneOnReturn_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::dialogIsGoneOnReturn()
{
    QFETCH(Getter, getter);
    QWidget parent;
    for (QWidget *owner : {static_cast<QWidget *>(nullptr), &parent}) {
        for (const bool accepted : {true, false}) {
            Call call;
            call.getter = getter;
            call.parent = owner;
            call.dir = QStringLiteral("@/root/sub");
            QPointer<QWidget> seen;
            ModalDriver driver([&](QWidget *widget) {
                seen = widget;
                if (accepted)
                    enter(getter == Directory ? QString() : QStringLiteral("new.txt"))(widget);
                else
                    cancel(widget);
            });
            QCOMPARE(call(*m_tree).isEmpty(), !accepted);
            QVERIFY(driver.ran());
            QVERIFY(seen.isNull());
            QVERIFY(parent.children().isEmpty());
        }
    }
}

void tst_LimitedFileDialogGetters::deletedParentReturnsNothing_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::deletedParentReturnsNothing()
{
    QFETCH(Getter, getter);
    auto parent = std::make_unique<QWidget>();
    Call call;
    call.getter = getter;
    call.parent = parent.get();
    QPointer<QWidget> seen;
    ModalDriver driver([&](QWidget *widget) {
        seen = widget;
        FileDialogParts(dialogOf(widget)).edit->setText(QStringLiteral("file.txt"));
        parent.reset();
    });
    QCOMPARE(call(*m_tree), QString());
    QVERIFY(driver.ran());
    QVERIFY(seen.isNull());
}

void tst_LimitedFileDialogGetters::parentDeletedWhenAcceptedReturnsNothing_data()
{
    addGetterRows();
}

// The dialog is accepted, but nothing is left that could tell the result.
void tst_LimitedFileDialogGetters::parentDeletedWhenAcceptedReturnsNothing()
{
    QFETCH(Getter, getter);
    auto parent = std::make_unique<QWidget>();
    Call call;
    call.getter = getter;
    call.parent = parent.get();
    call.dir = QStringLiteral("@/root/sub");
    ModalDriver driver([&](QWidget *widget) {
        // From the event loop of exec(), before it gets to return
        QTimer::singleShot(0, this, [&] { parent.reset(); });
        enter(getter == Directory ? QString() : QStringLiteral("new.txt"))(widget);
        QCOMPARE(dialogOf(widget)->result(), int(QDialog::Accepted));
        QCoreApplication::processEvents();
        QVERIFY(parent == nullptr);
    });
    QCOMPARE(call(*m_tree), QString());
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::deletedDialogReturnsNothing_data()
{
    addGetterRows();
}

void tst_LimitedFileDialogGetters::deletedDialogReturnsNothing()
{
    QFETCH(Getter, getter);
    Call call;
    call.getter = getter;
    ModalDriver driver([](QWidget *widget) { widget->deleteLater(); });
    QCOMPARE(call(*m_tree), QString());
    QVERIFY(driver.ran());
}

void tst_LimitedFileDialogGetters::callsMayNest()
{
    Call outer;
    Call inner;
    inner.getter = Save;
    inner.limit = QStringLiteral("@/second");
    inner.dir = QStringLiteral("@/second");
    QString innerResult;
    ModalDriver driver([&](QWidget *widget) {
        inner.parent = widget;
        innerResult = inner(*m_tree);
        QCOMPARE(dialogOf(widget)->getLimitedPath(), m_tree->root());
        enter(QStringLiteral("file.txt"))(widget);
    });
    driver.then(enter(QStringLiteral("new.txt")));
    QCOMPARE(outer(*m_tree), m_tree->at(QStringLiteral("@/root/file.txt")));
    QCOMPARE(innerResult, m_tree->at(QStringLiteral("@/second/new.txt")));
    QVERIFY(driver.ran());
}

QTEST_MAIN(tst_LimitedFileDialogGetters)

#include "tst_limitedfiledialog_getters.moc"
