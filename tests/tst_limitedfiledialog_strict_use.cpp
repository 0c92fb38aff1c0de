// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The strict file dialog in use: where it starts, folders that are not there, switching and defaults, the
// notice, and that nothing of it is left where it is not strict.

#include "support/functionguard.h"
#include "support/limitscene.h"
#include "support/modaldriver.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <optional>
#include <tarnwidgets/limitedfiledialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::LimitedFileDialog;

namespace {

using Call = std::function<QString(const LimitTree &, const QString &root)>;
using Change = std::function<void(LimitedFileDialog &)>;

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Change)

class tst_LimitedFileDialogStrictUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void startsInTheRoot();
    void startsInTheRootAfterTheLimitIsMadeStrict();
    void staysInAStartFolderInside();
    void countsAFolderAsInsideItself();
    void missingRootRefusesEverything();
    void missingRootAdmitsAgainOnceItIsThere();
    void vanishedRootRefusesEverything();
    void vanishedFolderLeadsBackToTheRoot();
    void vanishedFolderTakesItsTypedNameAlong();
    void emptyPathLiftsTheLimit();
    void selectionStaysWhereThereIsNoLimit();
    void missingPartIsDoneWithout_data();
    void missingPartIsDoneWithout();
    void switchingOffBringsThePlainLimitBack();
    void switchingLeavesTheLayoutAsItWas();
    void newDialogsTakeTheDefault();
    void oneCallFunctionsHonourTheDefault_data();
    void oneCallFunctionsHonourTheDefault();
    void noticeIsOneLineThatGoesWhenTypedOn();
    void addsNothingUnlessStrict();
    void listsWhatQFileDialogLists_data();
    void listsWhatQFileDialogLists();

private:
    const QTemporaryDir m_config;
    std::optional<FunctionGuard> m_guard;
};

void tst_LimitedFileDialogStrictUse::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", m_config.path().toLocal8Bit()); // QFileDialog keeps settings
}

void tst_LimitedFileDialogStrictUse::init()
{
    m_guard.emplace();
}

void tst_LimitedFileDialogStrictUse::cleanup()
{
    LimitedFileDialog::setStrictByDefault(false);
    m_guard.reset();
}

void tst_LimitedFileDialogStrictUse::startsInTheRoot()
{
    const LimitTree other;
    LimitScene scene(true, other.at("outside"));

    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
    QVERIFY(!scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrictUse::startsInTheRootAfterTheLimitIsMadeStrict()
{
    const LimitTree other;
    LimitScene scene(false, other.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), other.at("outside"));

    scene.dialog.setStrict(true);

    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("root"));
    QVERIFY(scene.dialog.isStrict());
    QVERIFY(scene.dialog.property("strict").toBool());
}

void tst_LimitedFileDialogStrictUse::staysInAStartFolderInside()
{
    const LimitTree tree;
    LimitedFileDialog dialog(nullptr, QString(), tree.at("root/sub"));
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));
    QCOMPARE(dialog.directory().absolutePath(), tree.at("root/sub"));
}

void tst_LimitedFileDialogStrictUse::countsAFolderAsInsideItself()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::missingRootRefusesEverything()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::missingRootAdmitsAgainOnceItIsThere()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::vanishedRootRefusesEverything()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::vanishedFolderLeadsBackToTheRoot()
{
    LimitScene scene(true);
    scene.dialog.setDirectory(scene.tree.at("root/sub"));
    scene.item("deep");
    QVERIFY(QDir(scene.tree.at("root/sub")).removeRecursively());

    QTRY_COMPARE((scene.list()->viewport()->repaint(), scene.dialog.directory().absolutePath()),
                 scene.tree.at("root"));
    QCOMPARE(scene.outside(), QStringList());
}

void tst_LimitedFileDialogStrictUse::vanishedFolderTakesItsTypedNameAlong()
{
    // GIVEN a name that was typed in a folder, and that the root has, too
    LimitScene scene(true);
    scene.dialog.setDirectory(scene.tree.at("root/sub"));
    scene.item("deep");
    scene.edit()->setText(QStringLiteral("file.txt"));
    QVERIFY(QFileInfo::exists(scene.tree.at("root/file.txt")));

    // WHEN the folder vanishes before the name is accepted
    QVERIFY(QDir(scene.tree.at("root/sub")).removeRecursively());
    static_cast<QDialog &>(scene.dialog).accept();

    // THEN the root's file is not mistaken for it
    QCOMPARE(scene.accepted, 0);
    QVERIFY(scene.dialog.isVisible());
    QVERIFY(scene.notice()->isVisible());
}

void tst_LimitedFileDialogStrictUse::emptyPathLiftsTheLimit()
{
    LimitScene scene(true);
    scene.type(scene.tree.at("outside"));
    QVERIFY(scene.notice()->isVisible());

    scene.dialog.setLimitedPath(QString());

    QVERIFY(!scene.notice()->isVisible());
    QVERIFY(scene.dialog.pathFits(scene.tree.at("outside")));
    scene.dialog.setDirectory(scene.tree.at("outside"));
    QCOMPARE(scene.dialog.directory().absolutePath(), scene.tree.at("outside"));
}

void tst_LimitedFileDialogStrictUse::selectionStaysWhereThereIsNoLimit()
{
    // GIVEN a strict dialog without a limit, where a file of another folder is typed and so selected
    LimitScene scene(true);
    scene.dialog.setLimitedPath(QString());
    scene.edit()->setText(scene.tree.at("outside/secret.txt"));
    const auto *selection = scene.list()->selectionModel();
    QTRY_VERIFY(selection->hasSelection());

    // WHEN a key is pressed that may change files
    scene.list()->setFocus();
    QTest::keyClick(scene.list(), Qt::Key_F2);

    // THEN it is the user's own business
    QVERIFY(selection->hasSelection());
}

void tst_LimitedFileDialogStrictUse::missingPartIsDoneWithout_data()
{
    QTest::addColumn<Change>("takeAway");

    // As if QFileDialog gave its parts other names: Qt promises none.
    for (const char *name : {"fileNameEdit", "lookInCombo", "buttonBox", "newFolderButton", "stackedWidget",
                             "toParentButton", "backButton", "sidebar", "listView", "treeView"}) {
        QTest::newRow(name) << Change([name](LimitedFileDialog &dialog) {
            auto *part = dialog.findChild<QWidget *>(QLatin1String(name));
            QVERIFY(part);
            part->setObjectName(QStringLiteral("other"));
        });
    }
    QTest::newRow("no buttons") << Change(
        [](LimitedFileDialog &dialog) { dialog.findChild<QDialogButtonBox *>()->clear(); });
    QTest::newRow("no completer") << Change([](LimitedFileDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setCompleter(nullptr);
    });
    QTest::newRow("no layout") << Change([](LimitedFileDialog &dialog) { delete dialog.layout(); });
    QTest::newRow("layout with nothing in it") << Change([](LimitedFileDialog &dialog) {
        delete dialog.layout();
        new QGridLayout(&dialog);
    });
}

void tst_LimitedFileDialogStrictUse::missingPartIsDoneWithout()
{
    QFETCH(Change, takeAway);

    // GIVEN a dialog in which the part is not to be found
    const LimitTree tree;
    LimitedFileDialog dialog(nullptr, QString(), tree.at("root"));
    takeAway(dialog);

    // WHEN it becomes strict and is used
    dialog.setStrict(true);
    dialog.setLimitedPath(tree.at("root"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.setDirectory(tree.at("root/sub"));
    auto *edit = dialog.findChild<QLineEdit *>();
    QVERIFY(edit);
    edit->setText(tree.at("outside/secret.txt"));
    edit->setText(QStringLiteral("file.txt"));

    // THEN it holds the limit, and admits nothing once that has vanished
    QCOMPARE(dialog.directory().absolutePath(), tree.at("root/sub"));
    QVERIFY(dialog.pathFits(tree.at("root/sub")));
    QVERIFY(!dialog.pathFits(tree.at("outside")));
    dialog.setDirectory(tree.at("outside"));
    QCOMPARE(dialog.directory().absolutePath(), tree.at("root/sub"));
    QVERIFY(QFile::rename(tree.at("root"), tree.at("gone")));
    dialog.setDirectory(tree.at("outside"));
    QVERIFY(!dialog.pathFits(tree.at("outside")));
    QVERIFY(!dialog.pathFits(tree.at("root/sub")));
}

void tst_LimitedFileDialogStrictUse::switchingOffBringsThePlainLimitBack()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::switchingLeavesTheLayoutAsItWas()
{
    LimitScene scene(true);
    const auto *layout = qobject_cast<QGridLayout *>(scene.dialog.layout());
    QVERIFY(layout);
    const int rows = layout->rowCount();

    for (int times = 0; times < 5; ++times) {
        scene.dialog.setStrict(false);
        scene.dialog.setStrict(true);
    }

    QCOMPARE(layout->rowCount(), rows);
    QVERIFY(layout->indexOf(scene.notice()) >= 0);
}

void tst_LimitedFileDialogStrictUse::newDialogsTakeTheDefault()
{
    QVERIFY(!LimitedFileDialog::isStrictByDefault());
    QVERIFY(!LimitedFileDialog().isStrict());

    LimitedFileDialog::setStrictByDefault(true);
    QVERIFY(LimitedFileDialog::isStrictByDefault());
    QVERIFY(LimitedFileDialog().isStrict());
    QVERIFY(LimitedFileDialog(nullptr, Qt::Dialog).isStrict());
}

void tst_LimitedFileDialogStrictUse::oneCallFunctionsHonourTheDefault_data()
{
    QTest::addColumn<Call>("call");

    QTest::newRow("folder") << Call([](const LimitTree &tree, const QString &root) {
        return LimitedFileDialog::getExistingDirectoryFromDlg(nullptr, QString(), tree.at("outside"),
                                                              QFileDialog::ShowDirsOnly, root);
    });
    QTest::newRow("open") << Call([](const LimitTree &tree, const QString &root) {
        return LimitedFileDialog::getOpenFileNamesFromDlg(nullptr, QString(), tree.at("outside"), QString(),
                                                          root);
    });
    QTest::newRow("save") << Call([](const LimitTree &tree, const QString &root) {
        return LimitedFileDialog::getSaveFileNameFromDlg(nullptr, QString(), tree.at("outside"), QString(),
                                                         root);
    });
}

void tst_LimitedFileDialogStrictUse::oneCallFunctionsHonourTheDefault()
{
    QFETCH(Call, call);
    const LimitTree tree;
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

void tst_LimitedFileDialogStrictUse::noticeIsOneLineThatGoesWhenTypedOn()
{
    LimitScene scene(true);
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

void tst_LimitedFileDialogStrictUse::addsNothingUnlessStrict()
{
    const LimitTree tree;
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

void tst_LimitedFileDialogStrictUse::listsWhatQFileDialogLists_data()
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

void tst_LimitedFileDialogStrictUse::listsWhatQFileDialogLists()
{
    QFETCH(QString, filter);
    QFETCH(int, mode);
    const LimitTree tree;
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

QTEST_MAIN(tst_LimitedFileDialogStrictUse)
#include "tst_limitedfiledialog_strict_use.moc"
