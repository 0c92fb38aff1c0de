// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The catalogues that come with the library, and its widgets in each language.

#include "support/functionguard.h"
#include "support/modaldriver.h"
#include "support/showntexts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>
#include <algorithm>
#include <memory>
#include <optional>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/qssloader.h>

using namespace Tarn::Widgets;
using Tarn::Test::hasChineseLetter;
using Tarn::Test::ModalDriver;
using Tarn::Test::textsCutOffOn;
using Tarn::Test::textsOn;

namespace {

constexpr int FontPixels = 14; // what the themes are made for

struct Message
{
    QString source;
    QString translation;
    QString type; // empty for one that is finished
};

QVector<Message> messagesIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Message> messages;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("source")) {
            messages.append({reader.readElementText(), QString(), QString()});
        } else if (reader.name() == QLatin1String("translation")) {
            messages.last().type = reader.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = reader.readElementText();
        }
    }
    return messages;
}

QStringList matchesIn(const QString &text, const QString &pattern)
{
    QStringList matches;
    QRegularExpressionMatchIterator all = QRegularExpression(pattern).globalMatch(text);
    while (all.hasNext())
        matches.append(all.next().captured());
    matches.sort();
    return matches;
}

QString mnemonicIn(const QString &text)
{
    const QStringList marked = matchesIn(text, QStringLiteral("&[^&;\\s](?![a-z]*;)"));
    return marked.join(QString()).toUpper();
}

using Box = FramelessMessageBox;

Box *createBox(const QVector<QMessageBox::StandardButton> &buttons)
{
    auto *box = new Box;
    for (const QMessageBox::StandardButton button : buttons)
        box->addButton(button);
    return box;
}

/* With the notice that a path outside is refused. */
QWidget *createFileDialog()
{
    auto *dialog = new LimitedFileDialog(nullptr, QString(), QDir::tempPath());
    dialog->setStrict(true);
    dialog->setLimitedPath(QDir::tempPath());
    dialog->setDirectory(QStringLiteral("/"));
    return dialog;
}

struct Exhibit
{
    const char *name;
    QWidget *(*create)();
};

const Exhibit Exhibits[] = {
    {"dialog",
     []() -> QWidget * {
         auto *dialog = new FramelessDialog;
         dialog->setApplyButtonVisible(true);
         dialog->setMinButtonVisible(true);
         dialog->setMaxButtonVisible(true);
         return dialog;
     }},
    {"message box about saving",
     []() -> QWidget * {
         return createBox({QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel});
     }},
    {"message box about many files",
     []() -> QWidget * {
         return createBox({QMessageBox::Yes, QMessageBox::YesToAll, QMessageBox::No, QMessageBox::NoToAll});
     }},
    {"message box about a failure",
     []() -> QWidget * {
         return createBox({QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore});
     }},
    {"message box about settings",
     []() -> QWidget * {
         return createBox({QMessageBox::Apply, QMessageBox::Reset, QMessageBox::Close});
     }},
    {"message box about help",
     []() -> QWidget * {
         return createBox({QMessageBox::Ok, QMessageBox::Open, QMessageBox::SaveAll, QMessageBox::Help});
     }},
    {"message box with details",
     []() -> QWidget * {
         Box *box = createBox({QMessageBox::Ok});
         box->setDetailedText(QStringLiteral("10:42"));
         return box;
     }},
    {"colour dialog", []() -> QWidget * { return new ColorDialog(Qt::red); }},
};

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFont font = QApplication::font();
        font.setPixelSize(FontPixels);
        QApplication::setFont(font);
        const QString themes = QStringLiteral(TARN_THEMES_DIR);
        QDir::addSearchPath(QStringLiteral("tarnwidgets"), themes);
        qApp->setStyleSheet(QssLoader::load(themes + QStringLiteral("/base.qss"))
                            + QssLoader::load(themes + QStringLiteral("/dark.qss")));
    }

    void init()
    {
        m_guard.emplace();
    }

    void cleanup()
    {
        QCoreApplication::removeTranslator(&m_translator);
        m_guard.reset();
    }

    void translationsAgreeWithTheirSources_data();
    void translationsAgreeWithTheirSources();
    void chineseTextsAreChinese_data();
    void chineseTextsAreChinese();
    void localesFindTheirCatalogue_data();
    void localesFindTheirCatalogue();

    void widgetsSpeakOneLanguage_data();
    void widgetsSpeakOneLanguage();
    void noTextIsCutOff_data();
    void noTextIsCutOff();
    void mnemonicsDiffer_data();
    void mnemonicsDiffer();
    void noticeAndMenuSpeakTheLanguage();
    void aboutQtSpeaksTheLanguage();

private:
    void setLanguage(const QString &language);

    QTranslator m_translator;
    std::optional<Tarn::Test::FunctionGuard> m_guard;
};

void tst_Translations::setLanguage(const QString &language)
{
    QVERIFY(m_translator.load(QLocale(language), QStringLiteral("tarnwidgets"), QStringLiteral("_"),
                              QStringLiteral(TARN_CATALOGUES_DIR)));
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void tst_Translations::translationsAgreeWithTheirSources_data()
{
    QTest::addColumn<QString>("path");
    const QDir directory(QStringLiteral(TARN_TRANSLATIONS_DIR));
    const QStringList names = directory.entryList({QStringLiteral("*.ts")});
    QVERIFY(names.count() >= 2);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << directory.filePath(name);
}

void tst_Translations::translationsAgreeWithTheirSources()
{
    QFETCH(QString, path);

    const QVector<Message> messages = messagesIn(path);
    QVERIFY(messages.count() > 40);
    for (const Message &message : messages) {
        const QByteArray source = message.source.toUtf8();
        QVERIFY2(message.type.isEmpty(), source.constData());
        QVERIFY2(!message.translation.trimmed().isEmpty(), source.constData());
        for (const char *pattern : {"%\\d", "<[^>]+>", "\\n", "\\*[.\\w]*", ";;", "\\.\\.\\.|…"}) {
            const QString expression = QLatin1String(pattern);
            QVERIFY2(matchesIn(message.translation, expression) == matchesIn(message.source, expression),
                     source.constData());
        }
        QVERIFY2(mnemonicIn(message.translation) == mnemonicIn(message.source), source.constData());
    }
}

void tst_Translations::chineseTextsAreChinese_data()
{
    translationsAgreeWithTheirSources_data();
}

// What is left in Latin letters is the same in every language.
void tst_Translations::chineseTextsAreChinese()
{
    QFETCH(QString, path);

    const QStringList international = {QStringLiteral("HTML:"),         QStringLiteral("id"),
                                       QStringLiteral("name"),          QStringLiteral("language"),
                                       QStringLiteral("directory"),     QStringLiteral("addressChanged: %1"),
                                       QStringLiteral("isModified: %1")};
    const bool isChinese = path.endsWith(QStringLiteral("_zh_CN.ts"));
    const QVector<Message> messages = messagesIn(path);
    for (const Message &message : messages) {
        const bool isExpected = isChinese && !international.contains(message.source);
        QVERIFY2(hasChineseLetter(message.translation) == isExpected, qPrintable(message.source));
    }
}

void tst_Translations::localesFindTheirCatalogue_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::newRow("zh_CN") << QStringLiteral("tarnwidgets_zh_CN.qm");
    QTest::newRow("zh_Hans_CN") << QStringLiteral("tarnwidgets_zh_CN.qm");
    QTest::newRow("zh") << QStringLiteral("tarnwidgets_zh_CN.qm");
    QTest::newRow("en") << QStringLiteral("tarnwidgets_en.qm");
    QTest::newRow("en_GB") << QStringLiteral("tarnwidgets_en.qm");
    QTest::newRow("de") << QString();
}

void tst_Translations::localesFindTheirCatalogue()
{
    QFETCH(QString, catalogue);

    QTranslator translator;
    const bool isFound =
        translator.load(QLocale(QLatin1String(QTest::currentDataTag())), QStringLiteral("tarnwidgets"),
                        QStringLiteral("_"), QStringLiteral(TARN_CATALOGUES_DIR));
    QCOMPARE(isFound, !catalogue.isEmpty());
    QCOMPARE(QFileInfo(translator.filePath()).fileName(), catalogue);
}

void tst_Translations::widgetsSpeakOneLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("exhibit");
    QTest::addColumn<bool>("changesLater");
    for (const char *language : {"en", "zh_CN"}) {
        int index = 0;
        for (const Exhibit &exhibit : Exhibits) {
            QTest::addRow("%s, %s", exhibit.name, language)
                << QString::fromLatin1(language) << index << false;
            QTest::addRow("%s, changing to %s", exhibit.name, language)
                << QString::fromLatin1(language) << index << true;
            ++index;
        }
    }
}

void tst_Translations::widgetsSpeakOneLanguage()
{
    QFETCH(QString, language);
    QFETCH(int, exhibit);
    QFETCH(bool, changesLater);

    // GIVEN a widget, made in this language or before it
    if (!changesLater)
        setLanguage(language);
    const std::unique_ptr<QWidget> widget(Exhibits[exhibit].create());
    if (changesLater) {
        setLanguage(language);
        QCoreApplication::processEvents();
    }

    // THEN each of its words is of the language
    const QRegularExpression word(QStringLiteral(": .*\\p{L}"));
    int words = 0;
    const QStringList texts = textsOn(widget.get(), false);
    for (const QString &text : texts) {
        if (!text.contains(word) || text.endsWith(QLatin1String("HTML:"))
            || text.startsWith(QLatin1String("QLineEdit text")))
            continue;
        ++words;
        QVERIFY2(hasChineseLetter(text) == (language == QLatin1String("zh_CN")), qPrintable(text));
    }
    QVERIFY(words >= 5);
}

void tst_Translations::noTextIsCutOff_data()
{
    widgetsSpeakOneLanguage_data();
}

void tst_Translations::noTextIsCutOff()
{
    QFETCH(QString, language);
    QFETCH(int, exhibit);
    QFETCH(bool, changesLater);

    if (!changesLater)
        setLanguage(language);
    const std::unique_ptr<QWidget> widget(Exhibits[exhibit].create());
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    if (changesLater) {
        setLanguage(language);
        QCoreApplication::processEvents(); // or the former texts would be looked at
    }
    QTRY_COMPARE_WITH_TIMEOUT(textsCutOffOn(widget.get()).join(QStringLiteral(", ")), QString(), 500);
}

void tst_Translations::mnemonicsDiffer_data()
{
    widgetsSpeakOneLanguage_data();
}

void tst_Translations::mnemonicsDiffer()
{
    QFETCH(QString, language);
    QFETCH(int, exhibit);

    setLanguage(language);
    const std::unique_ptr<QWidget> widget(Exhibits[exhibit].create());
    QStringList mnemonics;
    const QList<QPushButton *> buttons = widget->findChildren<QPushButton *>();
    QVERIFY(!buttons.isEmpty());
    for (const QPushButton *button : buttons) {
        const QString mnemonic = mnemonicIn(button->text());
        QVERIFY2(mnemonic.isEmpty() || !mnemonics.contains(mnemonic), qPrintable(button->text()));
        mnemonics.append(mnemonic);
    }
}

void tst_Translations::noticeAndMenuSpeakTheLanguage()
{
    // GIVEN Chinese, and a path that a dialog refused
    setLanguage(QStringLiteral("zh_CN"));
    const std::unique_ptr<QWidget> dialog(createFileDialog());
    const auto *notice = dialog->findChild<QLabel *>(QStringLiteral("limitNotice"));
    QVERIFY(notice);
    QVERIFY2(hasChineseLetter(notice->text()), qPrintable(notice->text()));

    // WHEN the language changes, THEN the notice follows
    QCoreApplication::removeTranslator(&m_translator);
    QTRY_VERIFY(!hasChineseLetter(notice->text()));
}

void tst_Translations::aboutQtSpeaksTheLanguage()
{
    setLanguage(QStringLiteral("zh_CN"));
    ModalDriver driver([](QWidget *dialog) {
        const QStringList texts = textsOn(dialog, true);
        const auto count = std::count_if(texts.cbegin(), texts.cend(), [](const QString &text) {
            return hasChineseLetter(text) && text.contains(QLatin1String("Qt"));
        });
        QVERIFY(count >= 3); // title, headline, paragraph
        qobject_cast<QDialog *>(dialog)->accept();
    });
    FramelessMessageBox::aboutQt(nullptr);
    QVERIFY(driver.ran());
}

QTEST_MAIN(tst_Translations)
#include "tst_translations.moc"
