// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The gallery in each language, and changing between them while it runs.

#include "support/functionguard.h"
#include "support/showntexts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <appearance.h>
#include <language.h>
#include <mainwindow.h>
#include <memory>
#include <optional>
#include <page.h>
#include <pictureview.h>
#include <sampledialog.h>
#include <tarnwidgets/titlebar.h>

using namespace Gallery;
using Tarn::Test::hasChineseLetter;
using Tarn::Test::textsCutOffOn;
using Tarn::Test::textsOn;
using Tarn::Widgets::TitleBar;

namespace {

constexpr QSize SmallDevice(800, 480);

const QString English = QStringLiteral("en");
const QString Chinese = QStringLiteral("zh_CN");

/* The gallery with all pages made. */
struct Stage
{
    explicit Stage(const QString &languageName)
        : appearance(QStringLiteral(TARN_THEMES_DIR))
        , language(QStringLiteral(TARN_CATALOGUES_DIR))
    {
        language.setName(languageName);
        appearance.setTheme(QStringLiteral("dark"));
        window = std::make_unique<MainWindow>(&appearance, &language);
        window->resize(SmallDevice);
        window->show();
        const QVector<Page> all = pages();
        for (const Page &page : all)
            window->showPage(page.id);
        window->showPage(all.constFirst().id);
        settle();
    }

    void change(const QString &name)
    {
        language.setName(name);
        settle();
    }

    // Posted events, the language's among them, and what follows from those.
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    QListWidget *list() const
    {
        return window->findChild<QListWidget *>(QStringLiteral("galleryPages"));
    }

    QWidget *page(const QString &id) const
    {
        window->showPage(id);
        settle();
        const QList<QScrollArea *> areas = window->findChildren<QScrollArea *>(QStringLiteral("galleryPage"));
        for (QScrollArea *area : areas) {
            if (area->isVisible())
                return area->widget();
        }
        return nullptr;
    }

    QComboBox *languages() const
    {
        const QList<QComboBox *> boxes = window->findChildren<QComboBox *>();
        for (QComboBox *box : boxes) {
            if (box->findData(Chinese) >= 0)
                return box;
        }
        return nullptr;
    }

    Appearance appearance;
    Language language;
    std::unique_ptr<MainWindow> window;
};

/* Without what differs for another reason: the folder with the sample files, and the names of a tab bar's
 * scroll buttons, which Qt sets once. */
QStringList textsOf(const QWidget *widget)
{
    QStringList texts = textsOn(widget, false);
    texts.replaceInStrings(QRegularExpression(QStringLiteral("/\\S*tst_gallerylanguages-\\w+")),
                           QStringLiteral("FOLDER"));
    texts = texts.filter(QRegularExpression(QStringLiteral("^(?!QToolButton accessibleName)")));
    return texts;
}

constexpr const char *PagesWithPicture[] = {"dialogs", "message-boxes", "colour-dialog"};

/* In one size, as the view's own follows from the other texts. */
QImage pictureOn(const QWidget *page)
{
    auto *view = page->findChild<PictureView *>();
    view->resize(SmallDevice / 2);
    return view->grab().toImage();
}

QVector<QImage> picturesOn(const Stage &stage)
{
    QVector<QImage> pictures;
    for (const char *id : PagesWithPicture)
        pictures.append(pictureOn(stage.page(QLatin1String(id))));
    return pictures;
}

} // namespace

class tst_GalleryLanguages : public QObject
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
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::c());
        m_guard.reset();
    }

    void changedTextsAreThoseOfAFreshStart_data();
    void changedTextsAreThoseOfAFreshStart();
    void changingKeepsWhatTheUserDid();
    void picturesOfDialogsFollow();
    void openDialogsFollow();
    void chooserChangesTheLanguage();
    void languageOutsideTheListIsShownThere();
    void translatorsAreReplaced();
    void layoutTurnsAround();
    void noTextIsCutOff_data();
    void noTextIsCutOff();

private:
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_GalleryLanguages::changedTextsAreThoseOfAFreshStart_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("to Chinese") << English << Chinese;
    QTest::newRow("to English") << Chinese << English;
}

void tst_GalleryLanguages::changedTextsAreThoseOfAFreshStart()
{
    QFETCH(QString, first);
    QFETCH(QString, last);

    // GIVEN what the gallery shows when it starts in either language
    QStringList firstTexts;
    QStringList lastTexts;
    {
        const Stage stage(first);
        firstTexts = textsOf(stage.window.get());
    }
    {
        const Stage stage(last);
        lastTexts = textsOf(stage.window.get());
    }
    QVERIFY(lastTexts.count() > 300);
    QVERIFY(firstTexts != lastTexts);

    // WHEN the language changes, and back
    Stage stage(first);
    QCOMPARE(textsOf(stage.window.get()), firstTexts);
    stage.change(last);

    // THEN the texts are the same, each time
    QCOMPARE(textsOf(stage.window.get()), lastTexts);
    stage.change(first);
    QCOMPARE(textsOf(stage.window.get()), firstTexts);
}

void tst_GalleryLanguages::changingKeepsWhatTheUserDid()
{
    // GIVEN changes on several pages
    Stage stage(English);
    QWidget *titleBar = stage.page(QStringLiteral("title-bar"));
    titleBar->findChild<QLineEdit *>()->setText(QStringLiteral("Boiler"));
    titleBar->findChild<QCheckBox *>()->setChecked(false);
    titleBar->findChild<TitleBar *>()->titleButton(1)->click();
    QWidget *rules = stage.page(QStringLiteral("style-sheet"));
    rules->findChild<QPlainTextEdit *>()->setPlainText(QStringLiteral("QLabel {}"));
    QWidget *tabs = stage.page(QStringLiteral("tabs"));
    auto *elision = tabs->findChild<QComboBox *>();
    elision->setCurrentIndex(2);
    auto *scrollBar = qobject_cast<QScrollArea *>(tabs->parentWidget()->parentWidget())->verticalScrollBar();
    scrollBar->setValue(scrollBar->maximum());
    const int scrolled = scrollBar->value();
    QVERIFY(scrolled > 0);

    // WHEN the language changes
    stage.change(Chinese);

    // THEN they are there, and the page is the same
    QVERIFY(stage.list()->currentRow() > 0);
    QVERIFY(tabs->isVisible());
    QVERIFY(hasChineseLetter(stage.list()->currentItem()->text()));
    QCOMPARE(scrollBar->value(), qMin(scrolled, scrollBar->maximum()));
    QCOMPARE(elision->currentIndex(), 2);
    QVERIFY(hasChineseLetter(elision->currentText()));
    QCOMPARE(titleBar->findChild<QLineEdit *>()->text(), QStringLiteral("Boiler"));
    QCOMPARE(titleBar->findChild<TitleBar *>()->title(), QStringLiteral("Boiler"));
    QVERIFY(!titleBar->findChild<QCheckBox *>()->isChecked());
    QCOMPARE(titleBar->findChild<QListWidget *>()->count(), 1);
    QCOMPARE(rules->findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("QLabel {}"));
}

void tst_GalleryLanguages::picturesOfDialogsFollow()
{
    // GIVEN the pictures of a start in either language
    QVector<QImage> expected;
    {
        const Stage fresh(Chinese);
        expected = picturesOn(fresh);
    }
    Stage stage(English);
    const QVector<QImage> before = picturesOn(stage);
    for (int i = 0; i < before.count(); ++i)
        QVERIFY2(before.at(i) != expected.at(i), PagesWithPicture[i]);

    // WHEN the language changes, each page on show in turn
    QVector<QImage> pictures;
    for (const char *id : PagesWithPicture) {
        stage.change(English);
        const QWidget *page = stage.page(QLatin1String(id));
        stage.change(Chinese);
        pictures.append(pictureOn(page));
    }

    // THEN its picture is the one of a start in that language
    QCOMPARE(pictures, expected);
}

void tst_GalleryLanguages::openDialogsFollow()
{
    // GIVEN a dialog that is open beside the gallery
    Stage stage(English);
    QWidget *page = stage.page(QStringLiteral("dialogs"));
    const QList<QPushButton *> buttons = page->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QLatin1String("Open modeless"))
            button->click();
    }
    auto *dialog = page->findChild<SampleDialog *>();
    QVERIFY(dialog);
    const QStringList before = textsOn(dialog, true);
    auto *name = dialog->findChild<QLineEdit *>();
    name->setText(QStringLiteral("Boiler"));

    // WHEN the language changes
    stage.change(Chinese);

    // THEN it has the texts of a new one, but for what was typed
    QCOMPARE(name->text(), QStringLiteral("Boiler"));
    QStringList texts = textsOn(dialog, true);
    const SampleDialog fresh((DialogOptions()));
    QStringList expected = textsOn(&fresh, true);
    for (QStringList *list : {&texts, &expected})
        *list = list->filter(QRegularExpression(QStringLiteral("^(?!QLineEdit text|entry)")));
    QVERIFY(texts != before);
    QCOMPARE(texts, expected);
    dialog->close();
}

void tst_GalleryLanguages::chooserChangesTheLanguage()
{
    Stage stage(English);
    QComboBox *languages = stage.languages();
    QVERIFY(languages);
    QCOMPARE(languages->currentText(), QStringLiteral("English"));
    QCOMPARE(languages->itemText(languages->findData(Chinese)), QStringLiteral("中文"));

    languages->setFocus();
    QTest::keyClick(languages, Qt::Key_Down);
    QTRY_VERIFY(hasChineseLetter(stage.list()->item(0)->text()));
    QCOMPARE(stage.language.name(), Chinese);
    QCOMPARE(QLocale().language(), QLocale::Chinese);
    QCOMPARE(stage.window->locale().language(), QLocale::Chinese);

    // the system's, which is none here
    QTest::keyClick(languages, Qt::Key_Home);
    QCOMPARE(stage.language.name(), QString());
    QTRY_VERIFY(!hasChineseLetter(stage.list()->item(0)->text()));
}

void tst_GalleryLanguages::languageOutsideTheListIsShownThere()
{
    Language language(QStringLiteral(TARN_CATALOGUES_DIR));
    Appearance appearance(QStringLiteral(TARN_THEMES_DIR));
    QVERIFY(!language.setName(QStringLiteral("de")));
    MainWindow window(&appearance, &language);
    QComboBox *shown = nullptr;
    const QList<QComboBox *> boxes = window.findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        if (box->findData(Chinese) >= 0)
            shown = box;
    }
    QVERIFY(shown);
    QCOMPARE(shown->currentText(), QStringLiteral("Deutsch"));

    // the other texts are English
    QCOMPARE(QCoreApplication::translate("Tarn::Widgets::ColorDialog", "确定"), QStringLiteral("OK"));
}

// A translator that stayed would answer for texts that the later ones do not have.
void tst_GalleryLanguages::translatorsAreReplaced()
{
    {
        Language language(QStringLiteral(TARN_CATALOGUES_DIR));
        for (int i = 0; i < 3; ++i) {
            QVERIFY(language.setName(Chinese));
            QCOMPARE(QCoreApplication::translate("Gallery::MainWindow", "Theme"), QStringLiteral("主题"));
            QVERIFY(language.setName(English));
            QCOMPARE(QCoreApplication::translate("Gallery::MainWindow", "Theme"), QStringLiteral("Theme"));
        }
        QVERIFY(language.setName(Chinese));
    }
    QCOMPARE(QCoreApplication::translate("Gallery::MainWindow", "Theme"), QStringLiteral("Theme"));
}

void tst_GalleryLanguages::layoutTurnsAround()
{
    Stage stage(English);
    QCheckBox *direction = nullptr;
    const QList<QCheckBox *> boxes = stage.window->findChildren<QCheckBox *>();
    for (QCheckBox *box : boxes) {
        if (box->text() == QLatin1String("Right to left"))
            direction = box;
    }
    QVERIFY(direction);
    const auto left = [&] { return stage.list()->mapTo(stage.window.get(), QPoint()).x(); };
    QVERIFY(left() < stage.window->width() / 2);

    direction->click();
    QTRY_VERIFY(left() > stage.window->width() / 2);
    stage.change(Chinese);
    QVERIFY(direction->isChecked());
    QVERIFY(left() > stage.window->width() / 2);
    direction->click();
    QTRY_VERIFY(left() < stage.window->width() / 2);
}

void tst_GalleryLanguages::noTextIsCutOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << English;
    QTest::newRow("Chinese") << Chinese;
}

void tst_GalleryLanguages::noTextIsCutOff()
{
    QFETCH(QString, language);

    const Stage stage(language);
    QCOMPARE(stage.window->size(), SmallDevice);
    QStringList cutOff;
    const QVector<Page> all = pages();
    for (const Page &page : all) {
        QVERIFY(stage.page(page.id));
        cutOff += textsCutOffOn(stage.window.get());
    }
    QCOMPARE(cutOff.join(QStringLiteral(", ")), QString());
}

QTEST_MAIN(tst_GalleryLanguages)
#include "tst_gallerylanguages.moc"
