// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "support/colordialogparts.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <appearance.h>
#include <colorswatch.h>
#include <language.h>
#include <mainwindow.h>
#include <optional>
#include <page.h>
#include <sampledialog.h>
#include <stylesheetpage.h>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelesshelper.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/titlebar.h>
#include <titlebarpage.h>
#include <unistd.h>

using namespace Gallery;
using Tarn::Test::clickCell;
using Tarn::Test::ColorDialogParts;
using Tarn::Test::ModalDriver;
using Tarn::Widgets::ColorDialog;
using Tarn::Widgets::FramelessDialog;
using Tarn::Widgets::FramelessHelper;
using Tarn::Widgets::FramelessMessageBox;
using Tarn::Widgets::LimitedFileDialog;
using Tarn::Widgets::TitleBar;

namespace {

const QString GoodRules = QStringLiteral("QLabel { font-style: italic; }");
const QString BadRules = QStringLiteral("QLabel { font-style: italic; } QPushButton { color:");

template <typename Widget> Widget *findByText(QWidget *parent, const QString &text)
{
    const QList<Widget *> all = parent->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->text() == text)
            return widget;
    }
    return nullptr;
}

/* A page on its own. */
struct Stage
{
    explicit Stage(const QString &id)
        : appearance(QStringLiteral(TARN_THEMES_DIR))
    {
        appearance.setTheme(QStringLiteral("dark"));
        const QVector<Page> all = pages();
        for (const Page &candidate : all) {
            if (candidate.id == id)
                page.reset(candidate.create(&appearance, nullptr));
        }
        if (page)
            page->show();
    }

    void click(const QString &button) const
    {
        auto *widget = findByText<QPushButton>(page.get(), button);
        QVERIFY2(widget, qPrintable(button));
        widget->click();
    }

    void setSwitch(const QString &text, bool on) const
    {
        auto *widget = findByText<QCheckBox>(page.get(), text);
        QVERIFY2(widget, qPrintable(text));
        widget->setChecked(on);
    }

    QString message() const
    {
        return page->findChild<QLabel *>(QStringLiteral("galleryMessage"))->text();
    }

    Appearance appearance;
    std::unique_ptr<QWidget> page;
};

QStringList logOf(const QWidget &page)
{
    const auto *list = page.findChild<QListWidget *>();
    QStringList lines;
    for (int row = 0; row < list->count(); ++row)
        lines.append(list->item(row)->text());
    return lines;
}

} // namespace

class tst_GalleryPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFont font = QApplication::font();
        font.setPixelSize(14); // as the program does
        QApplication::setFont(font);
    }

    void init()
    {
        m_guard.emplace();
    }

    void cleanup()
    {
        m_guard.reset();
    }

    void everyPageFitsASmallDevice_data();
    void everyPageFitsASmallDevice();
    void choosingAThemeRestylesEverything();
    void unknownThemesAndPagesAreIgnored();

    void titleButtonsFollowTheirSwitches_data();
    void titleButtonsFollowTheirSwitches();
    void titleFollowsItsSwitches();
    void closingAsksAndLogsTheAnswer_data();
    void closingAsksAndLogsTheAnswer();
    void closingDoesNotAskWhenSwitchedOff();
    void titleBarSignalsAreLogged();

    void modalDialogTellsItsOutcome_data();
    void modalDialogTellsItsOutcome();
    void modelessDialogLeavesThePageUsable();
    void dialogsAreOpenedWithTheChosenOptions();

    void messageBoxIsMadeAsTheCodeTells_data();
    void messageBoxIsMadeAsTheCodeTells();
    void messageBoxTellsItsResult_data();
    void messageBoxTellsItsResult();
    void messageBoxCallLeavesOutTheCloseButton();
    void strictFileDialogHoldsWhatThePlainOneLetsOut();
    void fileDialogReturnsWhatIsChosen_data();
    void fileDialogReturnsWhatIsChosen();

    void chosenColorGoesIntoTheSwatch_data();
    void chosenColorGoesIntoTheSwatch();
    void colorDialogBeginsAsTheCodeTells();
    void colorPageShowsTheLastPartOfTheProgramsPlace();
    void colorIsDraggedFromAModelessDialogToTheSwatch();
    void swatchTakesColorsOnly();

    void chosenWidthReachesAllLines();

    void styleSheetFileIsAppliedAtOnce();
    void fileThatCannotBeReadIsExplained_data();
    void fileThatCannotBeReadIsExplained();
    void rulesWithAnErrorLeaveTheFormerOnes();
    void typedRulesAreAppliedAfterAPause();
    void typedRulesWaitWhenSwitchedOff();
    void revertGoesBackToTheTheme();
    void extraRulesOutliveAChangeOfTheme();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_GalleryPages::everyPageFitsASmallDevice_data()
{
    QTest::addColumn<QString>("id");
    const QVector<Page> all = pages();
    for (const Page &page : all)
        QTest::newRow(qPrintable(page.id)) << page.id;
}

void tst_GalleryPages::everyPageFitsASmallDevice()
{
    QFETCH(QString, id);

    // GIVEN the gallery on the smallest screen
    Appearance appearance(QStringLiteral(TARN_THEMES_DIR));
    appearance.setTheme(QStringLiteral("light"));
    Language language((QString()));
    MainWindow window(&appearance, &language);
    window.resize(800, 480);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    // THEN the page need not be scrolled sideways
    window.showPage(id);
    const QList<QScrollArea *> areas = window.findChildren<QScrollArea *>(QStringLiteral("galleryPage"));
    const auto shown =
        std::find_if(areas.cbegin(), areas.cend(), [](QScrollArea *area) { return area->isVisible(); });
    QVERIFY(shown != areas.cend());
    QVERIFY((*shown)->widget());
    QTRY_COMPARE((*shown)->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(window.size(), QSize(800, 480));
}

void tst_GalleryPages::choosingAThemeRestylesEverything()
{
    // GIVEN the gallery in the dark theme
    Appearance appearance(QStringLiteral(TARN_THEMES_DIR));
    appearance.setTheme(QStringLiteral("dark"));
    Language language((QString()));
    MainWindow window(&appearance, &language);
    window.resize(800, 480);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *themes = window.findChild<QComboBox *>();
    QCOMPARE(themes->currentText(), QStringLiteral("Dark"));
    const QColor dark = window.grab().toImage().pixelColor(400, 470);
    const QColor darkDialog = FramelessDialog::m_defaultBackgroundColor;

    // WHEN the user picks the light one
    themes->setFocus();
    QTest::keyClick(themes, Qt::Key_Down);

    // THEN the window and the colours of dialogs are light
    QCOMPARE(appearance.theme(), QStringLiteral("light"));
    QVERIFY(window.grab().toImage().pixelColor(400, 470).lightness() > dark.lightness() + 100);
    QVERIFY(FramelessDialog::m_defaultBackgroundColor.lightness() > darkDialog.lightness() + 100);

    // WHEN something else sets the theme, THEN the list shows it
    appearance.setTheme(QStringLiteral("dark"));
    QCOMPARE(themes->currentText(), QStringLiteral("Dark"));
    QCOMPARE(FramelessDialog::m_defaultBackgroundColor, darkDialog);
}

void tst_GalleryPages::unknownThemesAndPagesAreIgnored()
{
    Appearance appearance(QStringLiteral(TARN_THEMES_DIR));
    appearance.setTheme(QStringLiteral("light"));
    Language language((QString()));
    MainWindow window(&appearance, &language);
    window.showPage(QStringLiteral("separators"));
    const auto *list = window.findChild<QListWidget *>(QStringLiteral("galleryPages"));
    const int row = list->currentRow();
    QVERIFY(row > 0);

    QSignalSpy changes(&appearance, &Appearance::changed);
    appearance.setTheme(QStringLiteral("pink"));
    window.showPage(QStringLiteral("nonsense"));
    QCOMPARE(appearance.theme(), QStringLiteral("light"));
    QCOMPARE(list->currentRow(), row);
    QCOMPARE(changes.count(), 0);
}

void tst_GalleryPages::titleButtonsFollowTheirSwitches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("button");

    QTest::newRow("logo") << QStringLiteral("Logo") << 0;
    QTest::newRow("minimise") << QStringLiteral("Minimise") << 1;
    QTest::newRow("maximise") << QStringLiteral("Maximise") << 2;
    QTest::newRow("close") << QStringLiteral("Close") << 4;
}

void tst_GalleryPages::titleButtonsFollowTheirSwitches()
{
    QFETCH(QString, text);
    QFETCH(int, button);

    const Stage stage(QStringLiteral("title-bar"));
    const auto *bar = stage.page->findChild<TitleBar *>();
    QVERIFY(bar->isTitleButtonVisible(button));
    stage.setSwitch(text, false);
    QVERIFY(!bar->isTitleButtonVisible(button));
    stage.setSwitch(text, true);
    QVERIFY(bar->isTitleButtonVisible(button));
}

void tst_GalleryPages::titleFollowsItsSwitches()
{
    const Stage stage(QStringLiteral("title-bar"));
    auto *bar = stage.page->findChild<TitleBar *>();

    stage.page->findChild<QLineEdit *>()->setText(QStringLiteral("Boiler"));
    QCOMPARE(bar->title(), QStringLiteral("Boiler"));
    stage.page->findChild<QComboBox *>()->setCurrentIndex(2);
    QCOMPARE(bar->titleLabel()->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    stage.setSwitch(QStringLiteral("Visible"), false);
    QVERIFY(!bar->isTitleVisible());

    QVERIFY(findByText<QToolButton>(bar, QStringLiteral("?"))->isVisible());
    stage.setSwitch(QStringLiteral("Extra buttons"), false);
    QVERIFY(!findByText<QToolButton>(bar, QStringLiteral("?"))->isVisible());
}

void tst_GalleryPages::closingAsksAndLogsTheAnswer_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("line");

    QTest::newRow("yes") << QStringLiteral("Close") << QStringLiteral("closed()");
    QTest::newRow("no") << QStringLiteral("Stay") << QStringLiteral("The close function said no");
}

void tst_GalleryPages::closingAsksAndLogsTheAnswer()
{
    QFETCH(QString, answer);
    QFETCH(QString, line);

    const Stage stage(QStringLiteral("title-bar"));
    ModalDriver driver([&](QWidget *dialog) {
        QVERIFY(qobject_cast<FramelessDialog *>(dialog));
        findByText<QPushButton>(dialog, answer)->click();
    });
    stage.page->findChild<TitleBar *>()->titleButton(4)->click();
    QVERIFY(driver.ran());
    QCOMPARE(logOf(*stage.page), QStringList(line));

    // WHEN the log is cleared, THEN it is empty
    stage.click(QStringLiteral("Clear"));
    QCOMPARE(logOf(*stage.page), QStringList());
}

void tst_GalleryPages::closingDoesNotAskWhenSwitchedOff()
{
    const Stage stage(QStringLiteral("title-bar"));
    stage.setSwitch(QStringLiteral("Ask before closing"), false);
    stage.page->findChild<TitleBar *>()->titleButton(4)->click();
    QCOMPARE(logOf(*stage.page), QStringList(QStringLiteral("closed()")));
}

void tst_GalleryPages::titleBarSignalsAreLogged()
{
    const Stage stage(QStringLiteral("title-bar"));
    auto *bar = stage.page->findChild<TitleBar *>();
    bar->titleButton(1)->click();
    bar->titleButton(2)->click();
    QVERIFY(bar->isTitleButtonVisible(3));
    bar->titleButton(3)->click();
    findByText<QToolButton>(bar, QStringLiteral("?"))->click();
    QCOMPARE(logOf(*stage.page),
             QStringList({QStringLiteral("minimuned()"), QStringLiteral("maximumed()"),
                          QStringLiteral("normaled()"), QStringLiteral("Extra button: Help")}));
}

void tst_GalleryPages::modalDialogTellsItsOutcome_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("OK") << QStringLiteral("OK") << QStringLiteral("Accepted");
    QTest::newRow("Cancel") << QStringLiteral("Cancel") << QStringLiteral("Rejected");
}

void tst_GalleryPages::modalDialogTellsItsOutcome()
{
    QFETCH(QString, button);
    QFETCH(QString, outcome);

    const Stage stage(QStringLiteral("dialogs"));
    QVERIFY(!findByText<QLabel>(stage.page.get(), outcome));
    ModalDriver driver([&](QWidget *dialog) { findByText<QPushButton>(dialog, button)->click(); });
    stage.click(QStringLiteral("Open modal"));
    QVERIFY(driver.ran());
    QVERIFY(findByText<QLabel>(stage.page.get(), outcome));
    QVERIFY(!stage.page->findChild<SampleDialog *>());
}

void tst_GalleryPages::modelessDialogLeavesThePageUsable()
{
    const Stage stage(QStringLiteral("dialogs"));
    stage.click(QStringLiteral("Open modeless"));
    stage.click(QStringLiteral("Open modeless"));
    QList<SampleDialog *> dialogs = stage.page->findChildren<SampleDialog *>();
    QCOMPARE(dialogs.count(), 2);
    QVERIFY(!dialogs.constFirst()->isModal());

    dialogs.constFirst()->close();
    QVERIFY(findByText<QLabel>(stage.page.get(), QStringLiteral("Rejected")));
    QTRY_COMPARE(stage.page->findChildren<SampleDialog *>().count(), 1);
    stage.page->findChild<SampleDialog *>()->accept();
    QVERIFY(findByText<QLabel>(stage.page.get(), QStringLiteral("Accepted")));
    QTRY_VERIFY(!stage.page->findChild<SampleDialog *>());
}

void tst_GalleryPages::dialogsAreOpenedWithTheChosenOptions()
{
    // GIVEN some choices
    const Stage stage(QStringLiteral("dialogs"));
    for (const char *text : {"Minimise", "Maximise", "Apply"})
        stage.setSwitch(QLatin1String(text), true);
    stage.setSwitch(QStringLiteral("Close"), false);
    const QList<QSpinBox *> numbers = stage.page->findChildren<QSpinBox *>();
    QCOMPARE(numbers.count(), 3);
    numbers.at(0)->setValue(6);
    numbers.at(1)->setValue(9);
    numbers.at(2)->setValue(40);

    // WHEN a dialog is opened
    stage.click(QStringLiteral("Open modeless"));

    // THEN it has them
    auto *dialog = stage.page->findChild<SampleDialog *>();
    const auto *bar = dialog->findChild<TitleBar *>();
    for (const int button : {1, 2})
        QVERIFY(bar->isTitleButtonVisible(button));
    QVERIFY(!dialog->getCloseButtonVisible());
    QVERIFY(findByText<QPushButton>(dialog, QStringLiteral("Apply"))->isVisible());
    const QList<QFrame *> frames = dialog->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
    const auto lines = std::count_if(frames.cbegin(), frames.cend(), [](const QFrame *frame) {
        return frame->property("isBackgroundSeparator").toBool() && frame->height() == 6;
    });
    QCOMPARE(int(lines), 2);
    const FramelessHelper helper;
    QCOMPARE(helper.borderWidth(), 9u);
    QCOMPARE(helper.titleHeight(), 40u);
    dialog->close();
}

void tst_GalleryPages::messageBoxIsMadeAsTheCodeTells_data()
{
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<QString>("line");
    const auto add = [](const char *name, const QStringList &switches, const char *line) {
        QTest::newRow(name) << switches << QString::fromLatin1(line);
    };
    add("at the start", {},
        "FramelessMessageBox box(QMessageBox::Question, tr(\"Pump 4\"), tr(\"Switch the pump off?\"), "
        "QMessageBox::Yes | QMessageBox::No, this);");
    add("informative text", {QStringLiteral("Informative text")},
        "box.setInformativeText(tr(\"The tank behind it will be empty within an hour.\"));");
    add("check box", {QStringLiteral("Check box")},
        "box.setCheckBox(new QCheckBox(tr(\"Do not ask again\")));");
    add("details", {QStringLiteral("Details")},
        "box.setDetailedText(tr(\"10:42 pressure 0.3 bar\\n10:41 pressure 0.9 bar\\n10:40 pressure 2.1 "
        "bar\"));");
}

void tst_GalleryPages::messageBoxIsMadeAsTheCodeTells()
{
    QFETCH(QStringList, switches);
    QFETCH(QString, line);

    // WHEN something is switched on
    const Stage stage(QStringLiteral("message-boxes"));
    for (const QString &text : qAsConst(switches))
        stage.setSwitch(text, true);

    // THEN the code says so, the box has it, and the box has nothing else
    const QStringList code =
        stage.page->findChild<QPlainTextEdit *>()->toPlainText().split(QLatin1Char('\n'));
    QVERIFY2(code.contains(line), qPrintable(code.join(QLatin1Char('\n'))));
    QCOMPARE(code.last(), QStringLiteral("box.exec();"));
    QCOMPARE(code.size(), 2 + switches.size());
    ModalDriver driver([&](QWidget *dialog) {
        const auto *box = qobject_cast<FramelessMessageBox *>(dialog);
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->text(), QStringLiteral("Switch the pump off?"));
        QCOMPARE(!box->informativeText().isEmpty(), switches.contains(QStringLiteral("Informative text")));
        QCOMPARE(box->checkBox() != nullptr, switches.contains(QStringLiteral("Check box")));
        QCOMPARE(!box->detailedText().isEmpty(), switches.contains(QStringLiteral("Details")));
        dialog->close();
    });
    stage.click(QStringLiteral("Open"));
    QVERIFY(driver.ran());
}

void tst_GalleryPages::messageBoxTellsItsResult_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("result");
    const auto add = [](const char *call, const char *button, const char *result) {
        QTest::newRow(call) << QString::fromLatin1(call) << QString::fromLatin1(button)
                            << QString::fromLatin1(result);
    };
    add("exec()", "&Yes", "Result: QMessageBox::Yes");
    add("open()", "&No", "Clicked: No");
    add("information()", "&No", "Result: QMessageBox::No");
    add("question()", "&Yes", "Result: QMessageBox::Yes");
    add("warning()", "&No", "Result: QMessageBox::No");
    add("critical()", "&Yes", "Result: QMessageBox::Yes");
    add("about()", "OK", "Result: QMessageBox::Ok");
    add("aboutQt()", "OK", "Result: QMessageBox::Ok");
}

void tst_GalleryPages::messageBoxTellsItsResult()
{
    QFETCH(QString, call);
    QFETCH(QString, button);
    QFETCH(QString, result);

    const Stage stage(QStringLiteral("message-boxes"));
    auto *calls = stage.page->findChild<QComboBox *>();
    calls->setCurrentText(call);
    QCOMPARE(calls->currentText(), call);
    const QString code = stage.page->findChild<QPlainTextEdit *>()->toPlainText();
    QVERIFY(code.contains(QString(call).remove(QLatin1Char(')'))));
    ModalDriver driver([&](QWidget *dialog) {
        QVERIFY(qobject_cast<FramelessMessageBox *>(dialog));
        findByText<QPushButton>(dialog->findChild<QDialogButtonBox *>(), button)->click();
    });
    stage.click(QStringLiteral("Open"));
    QTRY_VERIFY(driver.ran());
    QVERIFY(findByText<QLabel>(stage.page.get(), result));
}

void tst_GalleryPages::messageBoxCallLeavesOutTheCloseButton()
{
    const Stage stage(QStringLiteral("message-boxes"));
    stage.page->findChild<QComboBox *>()->setCurrentText(QStringLiteral("warning()"));
    stage.setSwitch(QStringLiteral("No close button"), true);
    const QString code = stage.page->findChild<QPlainTextEdit *>()->toPlainText();
    QVERIFY(code.contains(QStringLiteral("isAlarm, true, QMessageBox::Yes | QMessageBox::No")));
    ModalDriver driver([](QWidget *dialog) {
        auto *box = qobject_cast<FramelessMessageBox *>(dialog);
        QVERIFY(!box->getCloseButtonVisible());
        QCOMPARE(box->property("isAlarm"), QVariant(true));
        box->button(QMessageBox::No)->click();
    });
    stage.click(QStringLiteral("Open"));
    QVERIFY(driver.ran());
}

void tst_GalleryPages::strictFileDialogHoldsWhatThePlainOneLetsOut()
{
    const Stage stage(QStringLiteral("file-dialogs"));
    auto *list = stage.page->findChild<QTreeWidget *>();
    QStringList lettingOut;
    QVERIFY(list->topLevelItemCount() > 5);
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = list->topLevelItem(row);
        QCOMPARE(item->text(2), QStringLiteral("held"));
        if (item->text(1) == QLatin1String("gets out"))
            lettingOut.append(item->text(0));
    }
    QVERIFY(lettingOut.contains(QStringLiteral("Symbolic link")));
    QVERIFY(!lettingOut.contains(QStringLiteral("Parent button")));
}

void tst_GalleryPages::fileDialogReturnsWhatIsChosen_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("strict");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("open") << QStringLiteral("Open a file") << false << QStringLiteral("salt.rcp")
                          << QStringLiteral("Chosen: recipes/salt.rcp");
    QTest::newRow("save") << QStringLiteral("Save a file") << false << QStringLiteral("new.rcp")
                          << QStringLiteral("Chosen: recipes/new.rcp");
    QTest::newRow("a link") << QStringLiteral("Open a file") << false << QStringLiteral("link/keys.txt")
                            << QStringLiteral("Chosen: recipes/link/keys.txt");
    QTest::newRow("a link, strictly") << QStringLiteral("Open a file") << true
                                      << QStringLiteral("link/keys.txt") << QStringLiteral("Cancelled");
}

void tst_GalleryPages::fileDialogReturnsWhatIsChosen()
{
    QFETCH(QString, call);
    QFETCH(bool, strict);
    QFETCH(QString, text);
    QFETCH(QString, result);

    const Stage stage(QStringLiteral("file-dialogs"));
    stage.page->findChild<QComboBox *>()->setCurrentText(call);
    stage.setSwitch(QStringLiteral("Strict"), strict);
    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(qobject_cast<LimitedFileDialog *>(dialog)->isStrict(), strict);
        dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(text);
        dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
        if (dialog->isVisible())
            dialog->close();
    });
    stage.click(QStringLiteral("Open"));
    QVERIFY(driver.ran());
    QVERIFY(findByText<QLabel>(stage.page.get(), result));
    QVERIFY(!LimitedFileDialog::isStrictByDefault());
}

void tst_GalleryPages::chosenColorGoesIntoTheSwatch_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QString>("result");
    QTest::newRow("OK") << true << QStringLiteral("Result: #ff0000");
    QTest::newRow("Cancel") << false << QStringLiteral("Result: an invalid colour");
}

void tst_GalleryPages::chosenColorGoesIntoTheSwatch()
{
    QFETCH(bool, isAccepted);
    QFETCH(QString, result);

    // GIVEN the page with its colour, which is not red
    const Stage stage(QStringLiteral("colour-dialog"));
    const auto *swatch = stage.page->findChild<ColorSwatch *>();
    const QColor before = swatch->color();
    QVERIFY(before != QColor(Qt::red));
    QVERIFY(findByText<QLabel>(stage.page.get(), QStringLiteral("Not opened yet")));

    // WHEN the user chooses red, and accepts or cancels
    ModalDriver driver([&](QWidget *dialog) {
        const ColorDialogParts parts(qobject_cast<ColorDialog *>(dialog));
        QVERIFY(parts.isComplete());
        QCOMPARE(parts.color(), before);
        clickCell(parts.standardGrid, 3, 1); // red
        QCOMPARE(parts.color(), QColor(Qt::red));
        (isAccepted ? parts.ok : parts.cancel)->click();
    });
    stage.click(QStringLiteral("Choose"));

    // THEN the page tells, and keeps what was chosen
    QVERIFY(driver.ran());
    QVERIFY(findByText<QLabel>(stage.page.get(), result));
    QCOMPARE(swatch->color(), isAccepted ? QColor(Qt::red) : before);
}

void tst_GalleryPages::colorDialogBeginsAsTheCodeTells()
{
    const Stage stage(QStringLiteral("colour-dialog"));
    const auto *code = stage.page->findChild<QPlainTextEdit *>();
    auto *initialColors = stage.page->findChild<QComboBox *>();
    QVERIFY(code->toPlainText().contains(stage.page->findChild<ColorSwatch *>()->color().name()));
    initialColors->setCurrentText(QStringLiteral("Grey"));
    QVERIFY(code->toPlainText().contains(QColor(Qt::gray).name()));

    ModalDriver driver([&](QWidget *dialog) {
        QCOMPARE(ColorDialogParts(qobject_cast<ColorDialog *>(dialog)).color(), QColor(Qt::gray));
        dialog->close();
    });
    stage.click(QStringLiteral("Choose"));
    QVERIFY(driver.ran());
}

// The pictures of the page are the same on every machine; a user finds the whole path on the tool tip.
void tst_GalleryPages::colorPageShowsTheLastPartOfTheProgramsPlace()
{
    const QDir place(QCoreApplication::applicationDirPath());
    const Stage stage(QStringLiteral("colour-dialog"));
    const auto *note = findByText<QLabel>(
        stage.page.get(),
        QStringLiteral("Custom colours are kept beside the program, in\n\u2026/%1/customSettingCfg.info")
            .arg(place.dirName()));
    QVERIFY(note);
    QCOMPARE(note->toolTip(), place.filePath(QStringLiteral("customSettingCfg.info")));
}

void tst_GalleryPages::colorIsDraggedFromAModelessDialogToTheSwatch()
{
    // GIVEN a dialog that stays open beside the page
    const Stage stage(QStringLiteral("colour-dialog"));
    stage.click(QStringLiteral("Open modeless"));
    const QPointer<ColorDialog> dialog =
        stage.page->findChildren<ColorDialog *>().last(); // not the page's model
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible() && !dialog->isModal());

    // WHEN the colour of its swatch is dropped on the page's
    auto *swatch = stage.page->findChild<ColorSwatch *>();
    QMimeData data;
    data.setColorData(QColor(1, 2, 3));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(swatch, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(swatch, &drop);

    // THEN it is there, and in the code
    QCOMPARE(swatch->color(), QColor(1, 2, 3));
    QVERIFY(stage.page->findChild<QPlainTextEdit *>()->toPlainText().contains(QStringLiteral("#010203")));
    QCOMPARE(swatch->grab().toImage().pixelColor(3, 3), QColor(1, 2, 3));

    // and the dialog goes when it is closed
    dialog->close();
    QTRY_VERIFY(!dialog);
}

void tst_GalleryPages::swatchTakesColorsOnly()
{
    ColorSwatch swatch(Qt::red);
    QMimeData data;
    data.setText(QStringLiteral("blue"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&swatch, &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_GalleryPages::chosenWidthReachesAllLines()
{
    const Stage stage(QStringLiteral("separators"));
    const auto count = [&](int width) {
        const QList<QFrame *> frames = stage.page->findChildren<QFrame *>();
        return std::count_if(frames.cbegin(), frames.cend(), [=](const QFrame *frame) {
            return frame->minimumHeight() == width
                || (frame->minimumWidth() == width && frame->lineWidth() == width);
        });
    };
    QCOMPARE(int(count(8)), 6); // three groups with a horizontal and a vertical line each
    stage.page->findChild<QSpinBox *>()->setValue(13);
    QCOMPARE(int(count(8)), 0);
    QCOMPARE(int(count(13)), 6);
}

void tst_GalleryPages::styleSheetFileIsAppliedAtOnce()
{
    // GIVEN a file with rules
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("rules.qss"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(GoodRules.toUtf8());
    file.close();
    const Stage stage(QStringLiteral("style-sheet"));
    QVERIFY(!stage.page->findChild<QLabel *>()->font().italic());

    // WHEN it is loaded
    stage.page->findChild<QLineEdit *>()->setText(path);
    stage.click(QStringLiteral("Load"));

    // THEN the editor has the text, and the application the look
    QCOMPARE(stage.page->findChild<QPlainTextEdit *>()->toPlainText(), GoodRules);
    QCOMPARE(stage.appearance.extraRules(), GoodRules);
    QCOMPARE(stage.message(), QStringLiteral("Applied."));
    QVERIFY(stage.page->findChild<QLabel *>()->font().italic());
}

void tst_GalleryPages::fileThatCannotBeReadIsExplained_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");

    QTest::newRow("no file") << QStringLiteral("missing.qss") << QStringLiteral("There is no file %1.");
    QTest::newRow("a directory") << QStringLiteral("directory") << QStringLiteral("%1 is not a file.");
    QTest::newRow("a file without permission")
        << QStringLiteral("secret.qss") << QStringLiteral("%1 may not be read.");
    QTest::newRow("an empty file") << QStringLiteral("empty.qss") << QStringLiteral("%1 is empty.");
    QTest::newRow("no name") << QString() << QStringLiteral("Which file?");
}

void tst_GalleryPages::fileThatCannotBeReadIsExplained()
{
    QFETCH(QString, name);
    QFETCH(QString, message);

    const QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkdir(QStringLiteral("directory")));
    for (const char *file : {"secret.qss", "empty.qss"})
        QVERIFY(QFile(directory.filePath(QLatin1String(file))).open(QIODevice::WriteOnly));
    QFile::setPermissions(directory.filePath(QStringLiteral("secret.qss")), QFileDevice::WriteOwner);
    if (name == QLatin1String("secret.qss") && geteuid() == 0)
        QSKIP("The superuser may read every file");

    const Stage stage(QStringLiteral("style-sheet"));
    const QString editorText = stage.page->findChild<QPlainTextEdit *>()->toPlainText();
    const QString path = name.isEmpty() ? QString() : directory.filePath(name);
    stage.page->findChild<QLineEdit *>()->setText(path);
    stage.click(QStringLiteral("Load"));

    QCOMPARE(stage.message(), path.isEmpty() ? message : message.arg(path));
    QCOMPARE(stage.page->findChild<QPlainTextEdit *>()->toPlainText(), editorText);
    QCOMPARE(stage.appearance.extraRules(), QString());
}

void tst_GalleryPages::rulesWithAnErrorLeaveTheFormerOnes()
{
    const Stage stage(QStringLiteral("style-sheet"));
    stage.setSwitch(QStringLiteral("Apply while typing"), false);
    auto *editor = stage.page->findChild<QPlainTextEdit *>();
    editor->setPlainText(GoodRules);
    stage.click(QStringLiteral("Apply"));
    QCOMPARE(stage.appearance.extraRules(), GoodRules);
    const QString before = qApp->styleSheet();

    editor->setPlainText(BadRules);
    stage.click(QStringLiteral("Apply"));

    QCOMPARE(stage.message(), QStringLiteral("There is an error; the former rules stay."));
    QCOMPARE(stage.appearance.extraRules(), GoodRules);
    QCOMPARE(qApp->styleSheet(), before);
    QCOMPARE(editor->toPlainText(), BadRules);
}

void tst_GalleryPages::typedRulesAreAppliedAfterAPause()
{
    const Stage stage(QStringLiteral("style-sheet"));
    auto *editor = stage.page->findChild<QPlainTextEdit *>();
    QSignalSpy changes(&stage.appearance, &Appearance::changed);
    editor->clear();
    QTest::keyClicks(editor, GoodRules);
    QCOMPARE(changes.count(), 0);
    QTRY_COMPARE(stage.appearance.extraRules(), GoodRules);
    QCOMPARE(changes.count(), 1);
}

void tst_GalleryPages::typedRulesWaitWhenSwitchedOff()
{
    // GIVEN a rule that is still to be applied
    const Stage stage(QStringLiteral("style-sheet"));
    stage.page->findChild<QPlainTextEdit *>()->setPlainText(GoodRules);

    // WHEN the switch goes off before it is, and on again later
    stage.setSwitch(QStringLiteral("Apply while typing"), false);
    const auto *pause = stage.page->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    QTRY_VERIFY(!pause->isActive());
    QCOMPARE(stage.appearance.extraRules(), QString());
    stage.setSwitch(QStringLiteral("Apply while typing"), true);

    // THEN it is applied then
    QCOMPARE(stage.appearance.extraRules(), GoodRules);
}

void tst_GalleryPages::revertGoesBackToTheTheme()
{
    const Stage stage(QStringLiteral("style-sheet"));
    const QString theme = qApp->styleSheet();
    stage.page->findChild<QPlainTextEdit *>()->setPlainText(GoodRules);
    stage.click(QStringLiteral("Apply"));
    QVERIFY(qApp->styleSheet() != theme);

    stage.click(QStringLiteral("Revert"));

    QCOMPARE(qApp->styleSheet(), theme);
    QCOMPARE(stage.appearance.extraRules(), QString());
    QCOMPARE(stage.page->findChild<QPlainTextEdit *>()->toPlainText(), GoodRules); // to go on with
}

void tst_GalleryPages::extraRulesOutliveAChangeOfTheme()
{
    Appearance appearance(QStringLiteral(TARN_THEMES_DIR));
    appearance.setTheme(QStringLiteral("dark"));
    QVERIFY(appearance.setExtraRules(GoodRules));
    appearance.setTheme(QStringLiteral("light"));
    QCOMPARE(appearance.extraRules(), GoodRules);
    QVERIFY(qApp->styleSheet().endsWith(GoodRules));
}

QTEST_MAIN(tst_GalleryPages)
#include "tst_gallerypages.moc"
