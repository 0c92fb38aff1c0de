// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/testdialog.h"

#include <QDialogButtonBox>
#include <QFileIconProvider>
#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <optional>
#include <tarnwidgets/framelessfiledialog.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessFileDialog;

namespace {

enum class Constructor { WithFlags, WithCaption };

std::unique_ptr<FramelessFileDialog> make(Constructor constructor, QWidget *parent = nullptr)
{
    if (constructor == Constructor::WithFlags)
        return std::make_unique<FramelessFileDialog>(parent, Qt::WindowFlags());
    return std::make_unique<FramelessFileDialog>(parent);
}

QFileDialog *innerOf(const FramelessFileDialog &dialog)
{
    return dialog.findChild<QFileDialog *>();
}

QPushButton *buttonOf(const FramelessFileDialog &dialog, QDialogButtonBox::StandardButton which)
{
    return innerOf(dialog)->findChild<QDialogButtonBox *>()->button(which);
}

/* While it lives, what reaches the log is kept here. */
class Log
{
public:
    struct Line
    {
        QtMsgType type;
        QByteArray category;
        QByteArray function;
        QByteArray file;
        int number;
        QString text;
    };

    Log()
    {
        s_lines.clear();
        m_former = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &context,
                                             const QString &text) {
            if (!text.startsWith(QLatin1String("This plugin does not support")))
                s_lines.append({type, context.category, context.function, context.file, context.line, text});
        });
    }
    ~Log()
    {
        qInstallMessageHandler(m_former);
    }

    static QStringList texts()
    {
        QStringList texts;
        for (const Line &line : qAsConst(s_lines))
            texts.append(line.text);
        return texts;
    }

    static QVector<Line> s_lines;

private:
    Q_DISABLE_COPY(Log)

    QtMessageHandler m_former;
};

QVector<Log::Line> Log::s_lines;

/* The same call for Qt's dialog and for ours. */
struct Call
{
    Call() = default;
    template <typename Function>
    explicit Call(Function function)
        : onQt([function](QFileDialog &dialog) { return QVariant(function(dialog)); })
        , onOurs([function](FramelessFileDialog &dialog) { return QVariant(function(dialog)); })
    {
    }

    std::function<QVariant(QFileDialog &)> onQt;
    std::function<QVariant(FramelessFileDialog &)> onOurs;
};

template <typename Function> Call setter(Function function)
{
    return Call([function](auto &dialog) {
        function(dialog);
        return QVariant();
    });
}

QVariantList toVariants(const QList<QUrl> &urls)
{
    QVariantList list;
    for (const QUrl &url : urls)
        list.append(url);
    return list;
}

QVariant toVariant(const void *pointer)
{
    return QVariant::fromValue(quintptr(pointer));
}

/* Turns something of a dialog on or off. */
using Switch = std::function<void(FramelessFileDialog &, bool)>;

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Constructor)
Q_DECLARE_METATYPE(Switch)
Q_DECLARE_METATYPE(QFileDialog::Option)
Q_DECLARE_METATYPE(QFileDialog::DialogLabel)

class tst_FramelessFileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).clear(); // what the dialogs before left
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    // Construction
    void newDialogIs800By600_data();
    void newDialogIs800By600();
    void innerDialogIsAChildWidgetThatFillsTheContent_data();
    void innerDialogIsAChildWidgetThatFillsTheContent();
    void flagsAreTheInnerDialogs();
    void argumentsAreTheInnerDialogs();
    void captionDoesNotReachTheTitleBar();
    void bottomButtonsAreHiddenAndTheLineAboveStays_data();
    void bottomButtonsAreHiddenAndTheLineAboveStays();
    void parentOwnsTheDialogAndTheDialogTheInnerOne_data();
    void parentOwnsTheDialogAndTheDialogTheInnerOne();
    void metaObjectHasNineSignalsInOrderAndNothingElse();
    void fileNameHasTheFocus();

    // Forwarding
    void operationDoesWhatItDoesInQFileDialog_data();
    void operationDoesWhatItDoesInQFileDialog();
    void switchesGoBothWays_data();
    void switchesGoBothWays();
    void everyLabelIsForwarded_data();
    void everyLabelIsForwarded();
    void freshDialogAnswersAsAQFileDialog_data();
    void freshDialogAnswersAsAQFileDialog();
    void stateIsSavedAndRestored();
    void setHistoryReachesTheInnerDialog();
    void selectNameFilterReplacesTheList();
    void historyIsTheSupportedSchemes();
    void withoutInnerDialogGettersAreNeutral_data();
    void withoutInnerDialogGettersAreNeutral();
    void withoutInnerDialogSettersDoNothing_data();
    void withoutInnerDialogSettersDoNothing();
    void withoutInnerDialogFilterIsDirsAndOptionsAreShowDirsOnly();
    void withoutInnerDialogItStillCloses();

    // The user's answer
    void answerClosesOnlyTheDialogWithACaption_data();
    void answerClosesOnlyTheDialogWithACaption();
    void answerIsSignalledTwiceAndFinishedOnce_data();
    void answerIsSignalledTwiceAndFinishedOnce();
    void answerIsLoggedWithItsSignature_data();
    void answerIsLoggedWithItsSignature();
    void execReturnsTheAnswer_data();
    void execReturnsTheAnswer();
    void escapeCancels();
    void titleBarsCloseButtonCancelsWithoutALogLine();
    void innerDialogStaysHiddenAfterTheAnswer();

    // The nine signals
    void signalsAreNeverEmitted();
    void connectSignalsLetsThemThrough();
    void connectSignalsWithoutInnerDialogDoesNothing();

private:
    void addSetters();
    void selectAFile(FramelessFileDialog *dialog) const;
    QString path(const char *name) const;

    std::optional<FunctionGuard> m_guard;
    QTemporaryDir m_settings;
    QTemporaryDir m_dir;
    QStyledItemDelegate m_delegate;
    QFileIconProvider m_icons;
    QByteArray m_state;
};

void tst_FramelessFileDialog::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder")));
    for (const char *name : {"one.txt", "two.txt"}) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QFileDialog dialog;
    dialog.setViewMode(QFileDialog::List);
    dialog.setSidebarUrls({QUrl::fromLocalFile(QStringLiteral("/usr"))});
    m_state = dialog.saveState();
}

QString tst_FramelessFileDialog::path(const char *name) const
{
    return m_dir.filePath(QString::fromUtf8(name));
}

void tst_FramelessFileDialog::selectAFile(FramelessFileDialog *dialog) const
{
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->selectFile(path("one.txt"));
    QCOMPARE(dialog->selectedFiles(), QStringList(path("one.txt")));
}

static void addConstructors()
{
    QTest::addColumn<Constructor>("constructor");
    QTest::newRow("with flags") << Constructor::WithFlags;
    QTest::newRow("with a caption") << Constructor::WithCaption;
}

void tst_FramelessFileDialog::newDialogIs800By600_data()
{
    addConstructors();
}

void tst_FramelessFileDialog::newDialogIs800By600()
{
    QFETCH(Constructor, constructor);

    const auto dialog = make(constructor);
    QCOMPARE(dialog->size(), QSize(800, 600).boundedTo(dialog->maximumSize()));
    QVERIFY(dialog->maximumHeight() >= 600); // or the screen is too small for the rule
}

void tst_FramelessFileDialog::innerDialogIsAChildWidgetThatFillsTheContent_data()
{
    addConstructors();
}

void tst_FramelessFileDialog::innerDialogIsAChildWidgetThatFillsTheContent()
{
    QFETCH(Constructor, constructor);

    const auto dialog = make(constructor);
    const QFileDialog *inner = innerOf(*dialog);
    QVERIFY(inner);
    QCOMPARE(inner->parentWidget(), dialog.get());
    QVERIFY(!inner->isWindow());
    QCOMPARE(inner->windowFlags() & Qt::Dialog, Qt::WindowFlags());
    QCOMPARE(inner->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    const auto *layout = qobject_cast<QHBoxLayout *>(dialog->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 0, 1, 0)); // a pixel each is the base class's
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), inner);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());

    dialog->show();
    QVERIFY(inner->isVisible());
    // Title bar, two lines of two pixels, a pixel of border all around, and one more at each side.
    const int titleHeight = dialog->findChild<Tarn::Widgets::TitleBar *>()->height();
    QCOMPARE(inner->mapTo(dialog.get(), QPoint()), QPoint(2, 1 + titleHeight + 2));
    QCOMPARE(inner->size(), dialog->size() - QSize(4, 2 + titleHeight + 4));
}

void tst_FramelessFileDialog::flagsAreTheInnerDialogs()
{
    const FramelessFileDialog dialog(nullptr, Qt::WindowStaysOnTopHint);
    QVERIFY(innerOf(dialog)->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(dialog.windowFlags(), TestDialog(nullptr).windowFlags());
}

void tst_FramelessFileDialog::argumentsAreTheInnerDialogs()
{
    const FramelessFileDialog dialog(nullptr, QStringLiteral("Caption"), m_dir.path(),
                                     QStringLiteral("Text (*.txt);;All (*)"));
    QCOMPARE(innerOf(dialog)->windowTitle(), QStringLiteral("Caption"));
    QCOMPARE(dialog.directory().path(), m_dir.path());
    QCOMPARE(dialog.nameFilters(), QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")}));
    QCOMPARE(dialog.selectedNameFilter(), QStringLiteral("Text (*.txt)"));
}

// Kept
void tst_FramelessFileDialog::captionDoesNotReachTheTitleBar()
{
    FramelessFileDialog dialog(nullptr, QStringLiteral("Caption"));
    QCOMPARE(dialog.windowTitle(), QString());
    dialog.setWindowTitle(QStringLiteral("Title"));
    QCOMPARE(innerOf(dialog)->windowTitle(), QStringLiteral("Caption"));
}

void tst_FramelessFileDialog::bottomButtonsAreHiddenAndTheLineAboveStays_data()
{
    addConstructors();
}

void tst_FramelessFileDialog::bottomButtonsAreHiddenAndTheLineAboveStays()
{
    QFETCH(Constructor, constructor);

    const auto dialog = make(constructor);
    dialog->show();
    int bottoms = 0;
    int lines = 0;
    const QList<QWidget *> children = dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (child->property("isFramelessDialogBottomWidget").toBool()) {
            ++bottoms;
            QVERIFY(!child->isVisible());
        } else if (child->property("isBackgroundSeparator").toBool()) {
            ++lines;
            QVERIFY(child->isVisible());
        }
    }
    QCOMPARE(bottoms, 1);
    QCOMPARE(lines, 2);
}

void tst_FramelessFileDialog::parentOwnsTheDialogAndTheDialogTheInnerOne_data()
{
    addConstructors();
}

void tst_FramelessFileDialog::parentOwnsTheDialogAndTheDialogTheInnerOne()
{
    QFETCH(Constructor, constructor);

    auto parent = std::make_unique<QWidget>();
    const QPointer<FramelessFileDialog> dialog(make(constructor, parent.get()).release());
    const QPointer<QFileDialog> inner(innerOf(*dialog));
    QCOMPARE(dialog->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(!dialog);
    QVERIFY(!inner);
}

void tst_FramelessFileDialog::metaObjectHasNineSignalsInOrderAndNothingElse()
{
    const QMetaObject &meta = FramelessFileDialog::staticMetaObject;
    QCOMPARE(meta.superClass(), &FramelessDialog::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(
        methods,
        QStringList({QStringLiteral("currentChanged(QString)"), QStringLiteral("currentUrlChanged(QUrl)"),
                     QStringLiteral("directoryEntered(QString)"), QStringLiteral("directoryUrlEntered(QUrl)"),
                     QStringLiteral("fileSelected(QString)"), QStringLiteral("filesSelected(QStringList)"),
                     QStringLiteral("filterSelected(QString)"), QStringLiteral("urlSelected(QUrl)"),
                     QStringLiteral("urlsSelected(QList<QUrl>)")}));
}

void tst_FramelessFileDialog::fileNameHasTheFocus()
{
    FramelessFileDialog dialog;
    dialog.show();
    QVERIFY(dialog.focusWidget());
    QCOMPARE(dialog.focusWidget()->objectName(), QStringLiteral("fileNameEdit"));
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // among what is forwarded

    // Every setter but the odd one, with a getter that tells.
    void
    tst_FramelessFileDialog::addSetters()
{
    const QString folder = path("folder");
    const QString file = path("two.txt");
    const QUrl folderUrl = QUrl::fromLocalFile(folder);
    const QUrl fileUrl = QUrl::fromLocalFile(file);
    const QString text = QStringLiteral("Text (*.txt)");
    const QStringList filters = {text, QStringLiteral("Pictures (*.png *.jpg)")};
    const QStringList mimeTypes = {QStringLiteral("image/png"), QStringLiteral("text/plain")};

    QTest::addColumn<Call>("set");
    QTest::addColumn<Call>("get");
    QTest::newRow("setDirectory") << setter([=](auto &d) { d.setDirectory(folder); })
                                  << Call([](auto &d) { return d.directory().path(); });
    QTest::newRow("setDirectoryUrl") << setter([=](auto &d) { d.setDirectoryUrl(folderUrl); })
                                     << Call([](auto &d) { return d.directoryUrl(); });
    QTest::newRow("selectFile") << setter([=](auto &d) { d.selectFile(file); })
                                << Call([](auto &d) { return d.selectedFiles(); });
    QTest::newRow("selectUrl") << setter([=](auto &d) { d.selectUrl(fileUrl); })
                               << Call([](auto &d) { return toVariants(d.selectedUrls()); });
    QTest::newRow("setNameFilterDetailsVisible")
        << setter([](auto &d) { d.setNameFilterDetailsVisible(false); })
        << Call([](auto &d) { return d.isNameFilterDetailsVisible(); });
    QTest::newRow("setNameFilter") << setter([=](auto &d) { d.setNameFilter(text); })
                                   << Call([](auto &d) { return d.nameFilters(); });
    QTest::newRow("setNameFilters") << setter([=](auto &d) { d.setNameFilters(filters); })
                                    << Call([](auto &d) { return d.nameFilters(); });
    QTest::newRow("setNameFilters, the selected one") << setter([=](auto &d) { d.setNameFilters(filters); })
                                                      << Call([](auto &d) { return d.selectedNameFilter(); });
    QTest::newRow("setMimeTypeFilters") << setter([=](auto &d) { d.setMimeTypeFilters(mimeTypes); })
                                        << Call([](auto &d) { return d.mimeTypeFilters(); });
    QTest::newRow("selectMimeTypeFilter") << setter([=](auto &d) {
        d.setMimeTypeFilters(mimeTypes);
        d.selectMimeTypeFilter(mimeTypes.at(1));
    }) << Call([](auto &d) { return d.selectedNameFilter(); });
    QTest::newRow("setFilter") << setter([](auto &d) { d.setFilter(QDir::Files | QDir::Hidden); })
                               << Call([](auto &d) { return int(d.filter()); });
    QTest::newRow("setViewMode") << setter([](auto &d) { d.setViewMode(QFileDialog::List); })
                                 << Call([](auto &d) { return int(d.viewMode()); });
    QTest::newRow("setFileMode") << setter([](auto &d) { d.setFileMode(QFileDialog::ExistingFiles); })
                                 << Call([](auto &d) { return int(d.fileMode()); });
    QTest::newRow("setAcceptMode") << setter([](auto &d) { d.setAcceptMode(QFileDialog::AcceptSave); })
                                   << Call([](auto &d) { return int(d.acceptMode()); });
    QTest::newRow("setReadOnly") << setter([](auto &d) { d.setReadOnly(true); })
                                 << Call([](auto &d) { return d.isReadOnly(); });
    QTest::newRow("setResolveSymlinks") << setter([](auto &d) { d.setResolveSymlinks(false); })
                                        << Call([](auto &d) { return d.resolveSymlinks(); });
    QTest::newRow("setSidebarUrls") << setter([=](auto &d) { d.setSidebarUrls({folderUrl}); })
                                    << Call([](auto &d) { return toVariants(d.sidebarUrls()); });
    QTest::newRow("restoreState") << Call([this](auto &d) { return d.restoreState(m_state); })
                                  << Call([](auto &d) { return toVariants(d.sidebarUrls()); });
    QTest::newRow("setConfirmOverwrite") << setter([](auto &d) { d.setConfirmOverwrite(false); })
                                         << Call([](auto &d) { return d.confirmOverwrite(); });
    QTest::newRow("setDefaultSuffix") << setter([](auto &d) { d.setDefaultSuffix(QStringLiteral("txt")); })
                                      << Call([](auto &d) { return d.defaultSuffix(); });
    QTest::newRow("setItemDelegate") << setter([this](auto &d) { d.setItemDelegate(&m_delegate); })
                                     << Call([](auto &d) { return toVariant(d.itemDelegate()); });
    QTest::newRow("setIconProvider") << setter([this](auto &d) { d.setIconProvider(&m_icons); })
                                     << Call([](auto &d) { return toVariant(d.iconProvider()); });
    QTest::newRow("setLabelText") << setter([](auto &d) {
        d.setLabelText(QFileDialog::LookIn, QStringLiteral("Where"));
        d.setLabelText(QFileDialog::Accept, QStringLiteral("Take"));
    }) << Call([](auto &d) {
        return QStringList({d.labelText(QFileDialog::LookIn), d.labelText(QFileDialog::Accept)});
    });
    QTest::newRow("setSupportedSchemes") << setter([](auto &d) {
        d.setSupportedSchemes({QStringLiteral("file"), QStringLiteral("ftp")});
    }) << Call([](auto &d) { return d.supportedSchemes(); });
    QTest::newRow("setProxyModel") << setter([](auto &d) { d.setProxyModel(new QSortFilterProxyModel(&d)); })
                                   << Call([](auto &d) { return d.proxyModel() != nullptr; });
    QTest::newRow("setOption, on") << setter([](auto &d) { d.setOption(QFileDialog::ReadOnly); })
                                   << Call([](auto &d) { return d.testOption(QFileDialog::ReadOnly); });
    QTest::newRow("setOptions") << setter([](auto &d) {
        d.setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::DontUseCustomDirectoryIcons);
    }) << Call([](auto &d) { return int(d.options()); });
}

QT_WARNING_POP

void tst_FramelessFileDialog::operationDoesWhatItDoesInQFileDialog_data()
{
    addSetters();
}

void tst_FramelessFileDialog::operationDoesWhatItDoesInQFileDialog()
{
    QFETCH(Call, set);
    QFETCH(Call, get);

    // GIVEN Qt's dialog and ours in the same state
    QFileDialog qt(nullptr, QString(), m_dir.path(), QStringLiteral("All (*)"));
    FramelessFileDialog ours(nullptr, QString(), m_dir.path(), QStringLiteral("All (*)"));
    // Pointers to what Qt makes for each dialog are as different as the dialogs.
    const QVariant before = get.onQt(qt);

    // WHEN both are called
    const QVariant result = set.onQt(qt);

    // THEN it matters, and ours says the same as Qt's
    QVERIFY(get.onQt(qt) != before);
    QVERIFY(get.onOurs(ours) != get.onQt(qt));
    QCOMPARE(set.onOurs(ours), result);
    QCOMPARE(get.onOurs(ours), get.onQt(qt));
    QCOMPARE(get.onQt(*innerOf(ours)), get.onQt(qt));
}

void tst_FramelessFileDialog::switchesGoBothWays_data()
{
    QTest::addColumn<Switch>("set");
    QTest::addColumn<QFileDialog::Option>("option");
    QTest::addColumn<bool>("meansOn");
    QTest::newRow("setNameFilterDetailsVisible") << Switch(&FramelessFileDialog::setNameFilterDetailsVisible)
                                                 << QFileDialog::HideNameFilterDetails << false;
    QTest::newRow("setReadOnly") << Switch(&FramelessFileDialog::setReadOnly) << QFileDialog::ReadOnly
                                 << true;
    QTest::newRow("setResolveSymlinks")
        << Switch(&FramelessFileDialog::setResolveSymlinks) << QFileDialog::DontResolveSymlinks << false;
    QTest::newRow("setConfirmOverwrite")
        << Switch(&FramelessFileDialog::setConfirmOverwrite) << QFileDialog::DontConfirmOverwrite << false;
    QTest::newRow("setOption") << Switch(
        [](FramelessFileDialog &dialog, bool on) { dialog.setOption(QFileDialog::ShowDirsOnly, on); })
                               << QFileDialog::ShowDirsOnly << true;
}

void tst_FramelessFileDialog::switchesGoBothWays()
{
    QFETCH(const Switch, set);
    QFETCH(QFileDialog::Option, option);
    QFETCH(bool, meansOn);

    FramelessFileDialog dialog;
    for (const bool on : {true, false, true}) {
        set(dialog, on);
        QCOMPARE(innerOf(dialog)->testOption(option), on == meansOn);
        QCOMPARE(dialog.testOption(option), on == meansOn);
    }
}

void tst_FramelessFileDialog::everyLabelIsForwarded_data()
{
    QTest::addColumn<QFileDialog::DialogLabel>("label");
    QTest::newRow("look in") << QFileDialog::LookIn;
    QTest::newRow("file name") << QFileDialog::FileName;
    QTest::newRow("file type") << QFileDialog::FileType;
    QTest::newRow("accept") << QFileDialog::Accept;
    QTest::newRow("reject") << QFileDialog::Reject;
}

void tst_FramelessFileDialog::everyLabelIsForwarded()
{
    QFETCH(QFileDialog::DialogLabel, label);

    const QString text = QStringLiteral("A text of its own");
    FramelessFileDialog dialog;
    dialog.setLabelText(label, text);
    for (const auto each : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::FileType,
                            QFileDialog::Accept, QFileDialog::Reject}) {
        QCOMPARE(innerOf(dialog)->labelText(each) == text, each == label);
        QCOMPARE(dialog.labelText(each), innerOf(dialog)->labelText(each));
    }
}

void tst_FramelessFileDialog::freshDialogAnswersAsAQFileDialog_data()
{
    addSetters();
}

void tst_FramelessFileDialog::freshDialogAnswersAsAQFileDialog()
{
    QFETCH(Call, get);

    QFileDialog qt(nullptr, QString(), m_dir.path());
    FramelessFileDialog ours(nullptr, QString(), m_dir.path());
    QCOMPARE(get.onOurs(ours), get.onQt(*innerOf(ours)));
    const QVariant fromQt = get.onQt(qt);
    if (fromQt.userType() != qMetaTypeId<quintptr>()) // what Qt makes for each dialog
        QCOMPARE(get.onOurs(ours), fromQt);
}

void tst_FramelessFileDialog::stateIsSavedAndRestored()
{
    FramelessFileDialog dialog;
    QVERIFY(dialog.viewMode() != QFileDialog::List);
    QVERIFY(!dialog.restoreState(QByteArrayLiteral("no state")));
    QVERIFY(dialog.restoreState(m_state));
    QCOMPARE(dialog.viewMode(), QFileDialog::List);
    QCOMPARE(dialog.saveState(), innerOf(dialog)->saveState());

    QFileDialog qt;
    QVERIFY(qt.restoreState(dialog.saveState()));
    QCOMPARE(qt.viewMode(), QFileDialog::List);
    QCOMPARE(qt.sidebarUrls(), dialog.sidebarUrls());
}

void tst_FramelessFileDialog::setHistoryReachesTheInnerDialog()
{
    FramelessFileDialog dialog(nullptr, QString(), m_dir.path());
    QVERIFY(!innerOf(dialog)->history().contains(path("folder")));
    dialog.setHistory({path("folder")});
    QVERIFY(innerOf(dialog)->history().contains(path("folder")));
}

// Kept
void tst_FramelessFileDialog::selectNameFilterReplacesTheList()
{
    const QStringList filters = {QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")};
    FramelessFileDialog dialog;
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.at(1));
    QCOMPARE(dialog.nameFilters(), QStringList(filters.at(1)));
    QCOMPARE(dialog.selectedNameFilter(), filters.at(1));

    // Also by one that was not in it.
    dialog.selectNameFilter(QStringLiteral("Pictures (*.png);;Films (*.mkv)"));
    QCOMPARE(dialog.nameFilters(),
             QStringList({QStringLiteral("Pictures (*.png)"), QStringLiteral("Films (*.mkv)")}));
}

// Kept
void tst_FramelessFileDialog::historyIsTheSupportedSchemes()
{
    const QStringList schemes = {QStringLiteral("file"), QStringLiteral("ftp")};
    FramelessFileDialog dialog;
    dialog.setHistory({path("folder")});
    QCOMPARE(dialog.history(), QStringList());
    dialog.setSupportedSchemes(schemes);
    QCOMPARE(dialog.history(), schemes);
    QCOMPARE(dialog.supportedSchemes(), schemes);
}

void tst_FramelessFileDialog::withoutInnerDialogGettersAreNeutral_data()
{
    addSetters();
}

void tst_FramelessFileDialog::withoutInnerDialogGettersAreNeutral()
{
    QFETCH(Call, get);

    FramelessFileDialog dialog(nullptr, QString(), m_dir.path(), QStringLiteral("All (*)"));
    delete innerOf(dialog);
    const QVariant value = get.onOurs(dialog);
    const QByteArray row = QTest::currentDataTag();
    if (row == "setFilter" || row == "setOptions") {
        QCOMPARE(value, QVariant(1)); // see withoutInnerDialogFilterIsDirsAndOptionsAreShowDirsOnly()
    } else if (row == "setDirectory") {
        QCOMPARE(value.toString(), QDir(QString()).path());
    } else if (row == "setLabelText") {
        QCOMPARE(value.toStringList(), QStringList({QString(), QString()}));
    } else if (value.type() == QVariant::List) {
        QVERIFY(value.toList().isEmpty());
    } else {
        QCOMPARE(value, QVariant(value.userType(), nullptr));
    }
    QCOMPARE(dialog.history(), QStringList());
    QCOMPARE(dialog.saveState(), QByteArray());
}

void tst_FramelessFileDialog::withoutInnerDialogSettersDoNothing_data()
{
    addSetters();
}

void tst_FramelessFileDialog::withoutInnerDialogSettersDoNothing()
{
    QFETCH(Call, set);
    QFETCH(Call, get);

    FramelessFileDialog dialog(nullptr, Qt::WindowFlags());
    delete innerOf(dialog);
    const QVariant before = get.onOurs(dialog);
    const QVariant result = set.onOurs(dialog);
    QVERIFY(!result.isValid() || result == QVariant(false)); // restoreState()
    QCOMPARE(get.onOurs(dialog), before);
    dialog.selectNameFilter(QStringLiteral("Text (*.txt)"));
    dialog.setHistory({m_dir.path()});
    QCOMPARE(dialog.nameFilters(), QStringList());
}

// Kept
void tst_FramelessFileDialog::withoutInnerDialogFilterIsDirsAndOptionsAreShowDirsOnly()
{
    FramelessFileDialog dialog;
    delete innerOf(dialog);
    QCOMPARE(int(dialog.filter()), 1);
    QCOMPARE(dialog.filter(), QDir::Filters(QDir::Dirs));
    QCOMPARE(int(dialog.options()), 1);
    QCOMPARE(dialog.options(), QFileDialog::Options(QFileDialog::ShowDirsOnly));
    QVERIFY(!dialog.testOption(QFileDialog::ShowDirsOnly));
}

void tst_FramelessFileDialog::withoutInnerDialogItStillCloses()
{
    FramelessFileDialog dialog;
    delete innerOf(dialog);
    ModalDriver driver([](QWidget *widget) { QTest::keyClick(widget, Qt::Key_Escape); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.ran());
}

static void addAnswers()
{
    QTest::addColumn<Constructor>("constructor");
    QTest::addColumn<bool>("accepts");
    QTest::newRow("with flags, accept") << Constructor::WithFlags << true;
    QTest::newRow("with flags, cancel") << Constructor::WithFlags << false;
    QTest::newRow("with a caption, accept") << Constructor::WithCaption << true;
    QTest::newRow("with a caption, cancel") << Constructor::WithCaption << false;
}

void tst_FramelessFileDialog::answerClosesOnlyTheDialogWithACaption_data()
{
    addAnswers();
}

// Kept
void tst_FramelessFileDialog::answerClosesOnlyTheDialogWithACaption()
{
    QFETCH(Constructor, constructor);
    QFETCH(bool, accepts);

    const bool closes = constructor == Constructor::WithCaption;
    const Log log;
    const auto dialog = make(constructor);
    selectAFile(dialog.get());
    dialog->show();
    buttonOf(*dialog, accepts ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)->click();
    QVERIFY(!innerOf(*dialog)->isVisible()); // the button has worked
    QCOMPARE(dialog->isVisible(), !closes);
    QCOMPARE(dialog->result(), int(accepts && closes));
    QCOMPARE(log.texts().count(), int(closes));
}

void tst_FramelessFileDialog::answerIsSignalledTwiceAndFinishedOnce_data()
{
    addAnswers();
}

// Kept
void tst_FramelessFileDialog::answerIsSignalledTwiceAndFinishedOnce()
{
    QFETCH(Constructor, constructor);
    QFETCH(bool, accepts);

    const bool closes = constructor == Constructor::WithCaption;
    const Log log;
    const auto dialog = make(constructor);
    selectAFile(dialog.get());
    dialog->show();
    QVector<bool> visibleThen;
    const auto note = [&] { visibleThen.append(dialog->isVisible()); };
    connect(dialog.get(), &QDialog::accepted, this, note);
    connect(dialog.get(), &QDialog::rejected, this, note);
    QSignalSpy accepted(dialog.get(), &QDialog::accepted);
    QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    buttonOf(*dialog, accepts ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)->click();
    QCOMPARE((accepts ? accepted : rejected).count(), closes ? 2 : 1);
    QCOMPARE((accepts ? rejected : accepted).count(), 0);
    QCOMPARE(finished.count(), int(closes));
    // The forwarded one comes first, while the dialog is still open.
    QCOMPARE(visibleThen, closes ? QVector<bool>({true, false}) : QVector<bool>({true}));
}

void tst_FramelessFileDialog::answerIsLoggedWithItsSignature_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("function");
    QTest::newRow("accept") << true << QStringLiteral("FileDialog::slot_accepted")
                            << QByteArrayLiteral("void Tarn::Widgets::FramelessFileDialog::slot_accepted()");
    QTest::newRow("cancel") << false << QStringLiteral("FileDialog::slot_rejected")
                            << QByteArrayLiteral("void Tarn::Widgets::FramelessFileDialog::slot_rejected()");
}

void tst_FramelessFileDialog::answerIsLoggedWithItsSignature()
{
    QFETCH(bool, accepts);
    QFETCH(QString, text);
    QFETCH(QByteArray, function);

    const Log log;
    FramelessFileDialog dialog;
    selectAFile(&dialog);
    buttonOf(dialog, accepts ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)->click();
    QCOMPARE(log.texts(), QStringList(text));
    const Log::Line line = Log::s_lines.first();
    QCOMPARE(line.type, QtDebugMsg);
    QCOMPARE(line.category, QByteArrayLiteral("default"));
    QCOMPARE(line.function, function);
    QVERIFY(line.file.endsWith("framelessfiledialog.cpp"));
    QVERIFY(line.number > 0);
}

void tst_FramelessFileDialog::execReturnsTheAnswer_data()
{
    QTest::addColumn<bool>("accepts");
    QTest::newRow("accept") << true;
    QTest::newRow("cancel") << false;
}

void tst_FramelessFileDialog::execReturnsTheAnswer()
{
    QFETCH(bool, accepts);

    m_guard->sentry().expect(QtDebugMsg,
                             accepts ? QStringLiteral("FileDialog::slot_accepted")
                                     : QStringLiteral("FileDialog::slot_rejected"));
    FramelessFileDialog dialog;
    selectAFile(&dialog);
    ModalDriver driver([&](QWidget *) {
        buttonOf(dialog, accepts ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)->click();
    });
    QCOMPARE(dialog.exec(), accepts ? 1 : 0);
    QVERIFY(driver.ran());
    QVERIFY(!dialog.isVisible());
}

void tst_FramelessFileDialog::escapeCancels()
{
    m_guard->sentry().expect(QtDebugMsg, QStringLiteral("FileDialog::slot_rejected"));
    FramelessFileDialog dialog;
    ModalDriver driver([](QWidget *widget) { QTest::keyClick(widget->focusWidget(), Qt::Key_Escape); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.ran());
}

void tst_FramelessFileDialog::titleBarsCloseButtonCancelsWithoutALogLine()
{
    FramelessFileDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    ModalDriver driver([](QWidget *widget) { widget->close(); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(driver.ran());
    QCOMPARE(rejected.count(), 1);
}

// Kept
void tst_FramelessFileDialog::innerDialogStaysHiddenAfterTheAnswer()
{
    m_guard->sentry().expect(QtDebugMsg, QStringLiteral("FileDialog::slot_rejected"));
    FramelessFileDialog dialog;
    dialog.show();
    QVERIFY(innerOf(dialog)->isVisible());
    buttonOf(dialog, QDialogButtonBox::Cancel)->click();
    dialog.show();
    QVERIFY(dialog.isVisible());
    QVERIFY(!innerOf(dialog)->isVisible());
}

namespace {

class ConnectedDialog : public FramelessFileDialog
{
public:
    using FramelessFileDialog::connectSignals;
    using FramelessFileDialog::FramelessFileDialog;
};

/* How often each of the nine signals came out of a dialog, in their order. */
class NineSignals
{
public:
    explicit NineSignals(FramelessFileDialog *dialog)
        : m_spies{{dialog, &FramelessFileDialog::currentChanged},
                  {dialog, &FramelessFileDialog::currentUrlChanged},
                  {dialog, &FramelessFileDialog::directoryEntered},
                  {dialog, &FramelessFileDialog::directoryUrlEntered},
                  {dialog, &FramelessFileDialog::fileSelected},
                  {dialog, &FramelessFileDialog::filesSelected},
                  {dialog, &FramelessFileDialog::filterSelected},
                  {dialog, &FramelessFileDialog::urlSelected},
                  {dialog, &FramelessFileDialog::urlsSelected}}
    {
    }

    QVector<int> counts() const
    {
        QVector<int> counts;
        for (const QSignalSpy &spy : m_spies)
            counts.append(spy.count());
        return counts;
    }

    QVariant argument(int signal) const
    {
        return m_spies[signal].value(0).value(0);
    }

private:
    const QSignalSpy m_spies[9];
};

void emitAll(QFileDialog *inner)
{
    const QString text = QStringLiteral("/a/path");
    const QUrl url = QUrl::fromLocalFile(text);
    Q_EMIT inner->currentChanged(text);
    Q_EMIT inner->currentUrlChanged(url);
    Q_EMIT inner->directoryEntered(text);
    Q_EMIT inner->directoryUrlEntered(url);
    Q_EMIT inner->fileSelected(text);
    Q_EMIT inner->filesSelected({text});
    Q_EMIT inner->filterSelected(text);
    Q_EMIT inner->urlSelected(url);
    Q_EMIT inner->urlsSelected({url});
}

} // namespace

// Kept
void tst_FramelessFileDialog::signalsAreNeverEmitted()
{
    for (const Constructor constructor : {Constructor::WithFlags, Constructor::WithCaption}) {
        const auto dialog = make(constructor);
        const NineSignals nine(dialog.get());
        emitAll(innerOf(*dialog));
        QCOMPARE(nine.counts(), QVector<int>(9, 0));
    }
}

void tst_FramelessFileDialog::connectSignalsLetsThemThrough()
{
    ConnectedDialog dialog(nullptr, Qt::WindowFlags());
    dialog.connectSignals();
    const NineSignals nine(&dialog);
    emitAll(innerOf(dialog));
    QCOMPARE(nine.counts(), QVector<int>(9, 1));
    const QString text = QStringLiteral("/a/path");
    const QUrl url = QUrl::fromLocalFile(text);
    for (const int ofText : {0, 2, 4, 6})
        QCOMPARE(nine.argument(ofText), QVariant(text));
    for (const int ofUrl : {1, 3, 7})
        QCOMPARE(nine.argument(ofUrl), QVariant(url));
    QCOMPARE(nine.argument(5), QVariant(QStringList(text)));
    QCOMPARE(nine.argument(8).value<QList<QUrl>>(), QList<QUrl>({url}));
}

void tst_FramelessFileDialog::connectSignalsWithoutInnerDialogDoesNothing()
{
    ConnectedDialog dialog(nullptr, Qt::WindowFlags());
    delete innerOf(dialog);
    dialog.connectSignals(); // a warning of Qt's would fail the test
}

QTEST_MAIN(tst_FramelessFileDialog)

#include "tst_framelessfiledialog.moc"
