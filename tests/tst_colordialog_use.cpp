// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// What an application gets: the result of getColor(), and colours that outlive the dialog.

#include "support/colordialogparts.h"
#include "support/events.h"
#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/titlebar.h>

using namespace Tarn::Test;
using Tarn::Widgets::ColorDialog;
using Tarn::Widgets::TitleBar;

namespace {

const QColor Initial(200, 80, 30);
const QColor Former(11, 22, 33);

using UserAction = std::function<void(ColorDialog *, const ColorDialogParts &)>;

ModalDriver::Action userDoes(const UserAction &action)
{
    return [action](QWidget *widget) {
        auto *dialog = qobject_cast<ColorDialog *>(widget);
        QVERIFY(dialog);
        const ColorDialogParts parts(dialog);
        QVERIFY(parts.isComplete());
        action(dialog, parts);
    };
}

/* What getColor() returns if the user does that. */
QColor colorAfter(const UserAction &action, const QColor &initial = Initial, QWidget *parent = nullptr)
{
    ModalDriver driver(userDoes(action));
    const QColor color = ColorDialog::getColor(initial, parent);
    return driver.ran() ? color : QColor(QStringLiteral("#bad"));
}

void pressOK(ColorDialog *, const ColorDialogParts &parts)
{
    parts.ok->click();
}

void pressCancel(ColorDialog *, const ColorDialogParts &parts)
{
    parts.cancel->click();
}

void pressClose(ColorDialog *, const ColorDialogParts &parts)
{
    parts.close->click();
}

void pressEscape(ColorDialog *dialog, const ColorDialogParts &)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

void pressEnter(ColorDialog *dialog, const ColorDialogParts &)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

/* Lets go beside the button, which is no click, and then presses Escape. */
void pressWithoutClick(ColorDialog *dialog, QAbstractButton *button)
{
    mousePress(button, toGlobal(button, QPointF(9, 9)));
    QVERIFY(button->isDown());
    mouseMove(button, toGlobal(button, QPointF(-9, -9)));
    QVERIFY(!button->isDown());
    mouseRelease(button, toGlobal(button, QPointF(-9, -9)));
    QVERIFY(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
}

/* A result for those to come that leave it as it is. */
bool chooseFormer()
{
    return colorAfter(pressOK, Former) == Former;
}

QString settingsPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/customSettingCfg.info");
}

QByteArray settings()
{
    QFile file(settingsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool putSettings(const QByteArray &text)
{
    QFile file(settingsPath());
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/* The file with these colours first and white in the other places. */
QByteArray settingsWith(const QVector<QRgb> &first)
{
    QByteArrayList numbers;
    for (int i = 0; i < 16; ++i)
        numbers.append(QByteArray::number(first.value(i, 0xffffffff)));
    return "[General]\ncustomColor=" + numbers.join(", ") + '\n';
}

QVector<QRgb> colorsWith(const QVector<QRgb> &first)
{
    QVector<QRgb> colors = first;
    while (colors.size() < 16)
        colors.append(0xffffffff);
    return colors;
}

} // namespace

Q_DECLARE_METATYPE(UserAction)

class tst_ColorDialog_use : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void escapeBeforeAnyResultReturnsWhite(); // first, since the result is the whole process's

    void okReturnsTheInitialColor_data();
    void okReturnsTheInitialColor();
    void okReturnsTheEditedColor_data();
    void okReturnsTheEditedColor();
    void cancelReturnsAnInvalidColor_data();
    void cancelReturnsAnInvalidColor();
    void otherWaysOutReturnTheFormerColor_data();
    void otherWaysOutReturnTheFormerColor();
    void escapeAfterCancelReturnsAnInvalidColor();
    void vetoedCloseCounts();
    void resultIsSharedByAllDialogs();
    void nestedCallReplacesTheResult();
    void dialogIsModalAndBelongsToTheParent();
    void parentMayBeDeletedMeanwhile_data();
    void parentMayBeDeletedMeanwhile();
    void dialogMayBeDeletedMeanwhile();

    void everyWayOutWritesTheFile_data();
    void everyWayOutWritesTheFile();
    void dialogThatIsNeverShownWritesTheFile();
    void fileIsThereWhenGetColorReturns();
    void dialogReadsTheFileOnceAndWritesItOnce();
    void customColorsOutliveTheDialog();
    void shortListIsFollowedByWhite();
    void brokenFileMakesNoTrouble_data();
    void brokenFileMakesNoTrouble();
    void ofTwoDialogsTheOneDestroyedLastWins();

    void editMayEndWhileTheDialogDies_data();
    void editMayEndWhileTheDialogDies();
    void greyBeginsOnTheStripAsGrey();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_ColorDialog_use::init()
{
    QFile::remove(settingsPath());
    m_guard.emplace();
}

void tst_ColorDialog_use::cleanup()
{
    m_guard.reset();
    QFile::remove(settingsPath());
}

void tst_ColorDialog_use::escapeBeforeAnyResultReturnsWhite()
{
    QCOMPARE(colorAfter(pressEscape), QColor(Qt::white));
}

void tst_ColorDialog_use::okReturnsTheInitialColor_data()
{
    QTest::addColumn<QColor>("initial");
    QTest::addColumn<QColor>("result");
    QTest::newRow("opaque") << Initial << Initial;
    QTest::newRow("translucent") << QColor(1, 2, 3, 4) << QColor(1, 2, 3);
    QTest::newRow("by hue, saturation and value")
        << QColor::fromHsv(10, 20, 30) << QColor(QColor::fromHsv(10, 20, 30).rgb());
    QTest::newRow("invalid") << QColor() << QColor(Qt::black);
}

void tst_ColorDialog_use::okReturnsTheInitialColor()
{
    QFETCH(QColor, initial);
    const QColor color = colorAfter(pressOK, initial);
    QTEST(color, "result");
    QCOMPARE(color.alpha(), 255);
}

void tst_ColorDialog_use::okReturnsTheEditedColor_data()
{
    QTest::addColumn<UserAction>("action");
    QTest::addColumn<QColor>("result");
    QTest::newRow("number") << UserAction([](ColorDialog *, const ColorDialogParts &parts) {
        parts.boxes.at(3)->QSpinBox::setValue(7);
        parts.ok->click();
    }) << QColor(7, 80, 30);
    QTest::newRow("hue") << UserAction([](ColorDialog *, const ColorDialogParts &parts) {
        parts.boxes.at(0)->QSpinBox::setValue(120);
        parts.ok->click();
    }) << QColor(QColor::fromHsv(120, 217, 200).rgb());
    QTest::newRow("HTML") << UserAction([](ColorDialog *, const ColorDialogParts &parts) {
        parts.html->clear();
        QTest::keyClicks(parts.html, QStringLiteral("#abc"));
        parts.ok->click();
    }) << QColor(0xaa, 0xbb, 0xcc);
    QTest::newRow("standard colour") << UserAction([](ColorDialog *, const ColorDialogParts &parts) {
        clickCell(parts.standardGrid, 3, 7);
        parts.ok->click();
    }) << QColor(255, 255, 0);
    QTest::newRow("enter, which presses OK") << UserAction(pressEnter) << Initial;
}

void tst_ColorDialog_use::okReturnsTheEditedColor()
{
    QFETCH(UserAction, action);
    QTEST(colorAfter(action), "result");
}

void tst_ColorDialog_use::cancelReturnsAnInvalidColor_data()
{
    QTest::addColumn<UserAction>("action");
    QTest::newRow("cancel") << UserAction(pressCancel);
    QTest::newRow("title bar's close button") << UserAction(pressClose);
}

void tst_ColorDialog_use::cancelReturnsAnInvalidColor()
{
    QFETCH(UserAction, action);
    QVERIFY(chooseFormer());
    const QColor color = colorAfter(action);
    QVERIFY(!color.isValid());
    QCOMPARE(color, QColor());
}

void tst_ColorDialog_use::otherWaysOutReturnTheFormerColor_data()
{
    QTest::addColumn<UserAction>("action");
    QTest::newRow("escape") << UserAction(pressEscape);
    QTest::newRow("close()") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &) { dialog->close(); });
    QTest::newRow("reject()") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &) { dialog->reject(); });
    QTest::newRow("accept()") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &) { dialog->accept(); });
    QTest::newRow("hide()") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &) { dialog->hide(); });
    QTest::newRow("OK without a click") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &parts) { pressWithoutClick(dialog, parts.ok); });
    QTest::newRow("cancel without a click") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &parts) { pressWithoutClick(dialog, parts.cancel); });
    QTest::newRow("title bar's close button without a click") << UserAction(
        [](ColorDialog *dialog, const ColorDialogParts &parts) { pressWithoutClick(dialog, parts.close); });
}

void tst_ColorDialog_use::otherWaysOutReturnTheFormerColor()
{
    QFETCH(UserAction, action);
    QVERIFY(chooseFormer());
    const QColor color = colorAfter(action);
    QCOMPARE(color, Former);
    QCOMPARE(color.alpha(), 255);
}

void tst_ColorDialog_use::escapeAfterCancelReturnsAnInvalidColor()
{
    QVERIFY(!colorAfter(pressCancel).isValid());
    QVERIFY(!colorAfter(pressEscape).isValid());
}

void tst_ColorDialog_use::vetoedCloseCounts()
{
    // The click sets the result, whether or not the dialog closes.
    QVERIFY(chooseFormer());
    const QColor color = colorAfter([](ColorDialog *dialog, const ColorDialogParts &parts) {
        dialog->findChild<TitleBar *>()->appendCloseEvent([] { return false; });
        parts.close->click();
        QVERIFY(dialog->isVisible());
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QVERIFY(!color.isValid());
}

void tst_ColorDialog_use::resultIsSharedByAllDialogs()
{
    // GIVEN a dialog that no getColor() runs
    QVERIFY(chooseFormer());
    ColorDialog dialog(QColor(4, 5, 6), nullptr);
    const ColorDialogParts parts(&dialog);
    QVERIFY(parts.isComplete());

    // WHEN it is accepted by a click, THEN that is the result, opaque once getColor() gives it out
    parts.ok->click();
    QCOMPARE(colorAfter(pressEscape), QColor(4, 5, 6));
}

void tst_ColorDialog_use::nestedCallReplacesTheResult()
{
    QVERIFY(chooseFormer());
    ModalDriver driver(userDoes([](ColorDialog *dialog, const ColorDialogParts &) {
        QCOMPARE(ColorDialog::getColor(QColor(4, 5, 6), dialog), QColor(4, 5, 6));
        QTest::keyClick(dialog, Qt::Key_Escape);
    }));
    driver.then(userDoes(pressOK));
    QCOMPARE(ColorDialog::getColor(Initial, nullptr), QColor(4, 5, 6));
    QVERIFY(driver.ran());
}

void tst_ColorDialog_use::dialogIsModalAndBelongsToTheParent()
{
    QWidget parent;
    QPointer<QWidget> seen;
    const QColor color = colorAfter(
        [&](ColorDialog *dialog, const ColorDialogParts &parts) {
            seen = dialog;
            QCOMPARE(dialog->parentWidget(), &parent);
            QVERIFY(dialog->isModal());
            parts.ok->click();
        },
        Initial, &parent);
    QCOMPARE(color, Initial);
    QVERIFY(!seen); // destroyed by then
}

void tst_ColorDialog_use::parentMayBeDeletedMeanwhile_data()
{
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("while it is open") << false;
    QTest::newRow("after OK") << true;
}

void tst_ColorDialog_use::parentMayBeDeletedMeanwhile()
{
    QFETCH(bool, isAccepted);

    // GIVEN a former result, and a dialog with a parent
    QVERIFY(chooseFormer());
    QFile::remove(settingsPath());
    auto parent = std::make_unique<QWidget>();

    // WHEN the parent is deleted while the dialog is open
    const QColor color = colorAfter(
        [&](ColorDialog *dialog, const ColorDialogParts &parts) {
            setCustomColor(dialog, parts, 0, qRgb(9, 9, 9));
            if (isAccepted)
                parts.ok->click();
            parent.reset();
        },
        Initial, parent.get());

    // THEN the call returns, as after Escape or as after OK, and the colours are kept
    QCOMPARE(color, isAccepted ? QColor(9, 9, 9) : Former);
    QCOMPARE(settings(), settingsWith({qRgb(9, 9, 9)}));
}

void tst_ColorDialog_use::dialogMayBeDeletedMeanwhile()
{
    QVERIFY(chooseFormer());
    QCOMPARE(colorAfter([](ColorDialog *dialog, const ColorDialogParts &) { delete dialog; }), Former);
}

void tst_ColorDialog_use::everyWayOutWritesTheFile_data()
{
    QTest::addColumn<UserAction>("action");
    QTest::newRow("OK") << UserAction(pressOK);
    QTest::newRow("cancel") << UserAction(pressCancel);
    QTest::newRow("title bar's close button") << UserAction(pressClose);
    QTest::newRow("escape") << UserAction(pressEscape);
}

void tst_ColorDialog_use::everyWayOutWritesTheFile()
{
    QFETCH(UserAction, action);
    colorAfter(action);
    QCOMPARE(settings(), settingsWith({}));
    colorAfter([action](ColorDialog *dialog, const ColorDialogParts &parts) {
        setCustomColor(dialog, parts, 0, 0xff010203);
        action(dialog, parts);
    });
    QCOMPARE(settings(), settingsWith({0xff010203}));
}

void tst_ColorDialog_use::dialogThatIsNeverShownWritesTheFile()
{
    std::optional<ColorDialog> dialog;
    dialog.emplace(Initial, nullptr);
    QVERIFY(!QFile::exists(settingsPath()));
    dialog.reset();
    QCOMPARE(settings(), settingsWith({}));
    QCOMPARE(QByteArray("[General]\ncustomColor=4294967295") + QByteArray(", 4294967295").repeated(15) + '\n',
             settings());
}

void tst_ColorDialog_use::fileIsThereWhenGetColorReturns()
{
    colorAfter([](ColorDialog *, const ColorDialogParts &parts) {
        QVERIFY(!QFile::exists(settingsPath()));
        parts.ok->click();
        QVERIFY(!QFile::exists(settingsPath()));
    });
    QVERIFY(QFile::exists(settingsPath()));
}

void tst_ColorDialog_use::dialogReadsTheFileOnceAndWritesItOnce()
{
    // GIVEN a dialog that has read the file
    QVERIFY(putSettings(settingsWith({1, 2})));
    std::optional<ColorDialog> dialog;
    dialog.emplace(Initial, nullptr);
    const ColorDialogParts parts(&*dialog);
    QVERIFY(parts.isComplete());

    // WHEN the file changes, and the dialog is shown, used and hidden
    const QByteArray others = settingsWith({5, 6, 7});
    QVERIFY(putSettings(others));
    dialog->show();
    setCustomColor(&*dialog, parts, 2, 0xff000003);
    parts.ok->click();
    QVERIFY(!dialog->isVisible());

    // THEN it neither looks at the file nor touches it until it is destroyed
    QCOMPARE(customColors(parts), colorsWith({0xff000001, 0xff000002, 0xff000003}));
    QCOMPARE(settings(), others);
    dialog.reset();
    QCOMPARE(settings(), settingsWith({1, 2, 0xff000003}));
}

void tst_ColorDialog_use::customColorsOutliveTheDialog()
{
    QVector<QRgb> colors;
    for (int i = 0; i < 16; ++i)
        colors.append(qRgb(10 * i, 255 - i, i));
    {
        ColorDialog dialog(Initial, nullptr);
        const ColorDialogParts parts(&dialog);
        QVERIFY(parts.isComplete());
        for (int i = 0; i < 16; ++i)
            setCustomColor(&dialog, parts, i, colors.at(i));
    }
    QCOMPARE(settings(), settingsWith(colors));
    const ColorDialog next(Initial, nullptr);
    QCOMPARE(customColors(ColorDialogParts(&next)), colors);
}

void tst_ColorDialog_use::shortListIsFollowedByWhite()
{
    QVERIFY(putSettings("[General]\ncustomColor=1, 2, word\n"));
    {
        const ColorDialog dialog(Initial, nullptr);
        QCOMPARE(customColors(ColorDialogParts(&dialog)), colorsWith({0xff000001, 0xff000002, 0xff000000}));
    }
    QCOMPARE(settings(), settingsWith({1, 2, 0})); // as stored, not as seen
}

void tst_ColorDialog_use::brokenFileMakesNoTrouble_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("noise") << QByteArray("\xff\0\1[[[=;\"\\", 10);
    QTest::newRow("object") << QByteArray("a=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\n");
    QTest::newRow("part of the key") << settingsWith({}).left(15);
}

void tst_ColorDialog_use::brokenFileMakesNoTrouble()
{
    QFETCH(QByteArray, text);
    QVERIFY(putSettings(text));
    {
        const ColorDialog dialog(Initial, nullptr);
        QCOMPARE(customColors(ColorDialogParts(&dialog)), colorsWith({}));
    }
    QVERIFY2(settings().startsWith(settingsWith({})), settings().constData());
}

void tst_ColorDialog_use::ofTwoDialogsTheOneDestroyedLastWins()
{
    // GIVEN two dialogs at once, each with a colour of its own
    QVERIFY(putSettings(settingsWith({1})));
    auto one = std::make_unique<ColorDialog>(Initial, nullptr);
    auto other = std::make_unique<ColorDialog>(Initial, nullptr);
    const ColorDialogParts oneParts(one.get());
    const ColorDialogParts otherParts(other.get());
    setCustomColor(one.get(), oneParts, 1, 0xff000011);
    setCustomColor(other.get(), otherParts, 2, 0xff000022);
    QCOMPARE(customColors(otherParts), colorsWith({0xff000001, 0xffffffff, 0xff000022}));

    // WHEN they are destroyed, THEN each writes its own
    other.reset();
    QCOMPARE(settings(), settingsWith({1, 0xffffffff, 0xff000022}));
    one.reset();
    QCOMPARE(settings(), settingsWith({1, 0xff000011}));
}

/* An input method that ends an edit when the focus goes, as those for Chinese do. */
class CommitOnFocusOut : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusOut) {
            watched->removeEventFilter(this);
            QInputMethodEvent commit;
            commit.setCommitString(text);
            QCoreApplication::sendEvent(watched, &commit);
            ++commits;
        }
        return false;
    }

    QString text;
    int commits = 0;
};

void tst_ColorDialog_use::editMayEndWhileTheDialogDies_data()
{
    QTest::addColumn<bool>("isHtml");
    QTest::newRow("HTML") << true;
    QTest::newRow("number") << false;
}

void tst_ColorDialog_use::editMayEndWhileTheDialogDies()
{
    QFETCH(bool, isHtml);

    // GIVEN a dialog in one of whose editors something is being typed
    auto dialog = std::make_unique<ColorDialog>(Initial);
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    const ColorDialogParts parts(dialog.get());
    QWidget *edit = isHtml ? static_cast<QWidget *>(parts.html) : parts.boxes[0];
    edit->setFocus();
    QVERIFY(edit->hasFocus());
    CommitOnFocusOut inputMethod;
    inputMethod.text = isHtml ? QStringLiteral("f") : QStringLiteral("1");
    if (isHtml)
        parts.html->setText(QStringLiteral("#ff"));
    edit->installEventFilter(&inputMethod);

    // WHEN the dialog is deleted, THEN the text that comes then does no harm
    dialog.reset();
    QCOMPARE(inputMethod.commits, 1);
}

void tst_ColorDialog_use::greyBeginsOnTheStripAsGrey()
{
    const QColor picked = colorAfter(
        [](ColorDialog *, const ColorDialogParts &parts) {
            QTest::mouseMove(parts.strip, parts.strip->rect().center());
            QMouseEvent move(QEvent::MouseMove, QPointF(parts.strip->rect().center()), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(parts.strip, &move);
            parts.ok->click();
        },
        QColor(100, 100, 100));
    QVERIFY(picked.isValid());
    QCOMPARE(picked.red(), picked.green());
    QCOMPARE(picked.green(), picked.blue());
    QVERIFY(picked.red() != 100);
}

QTEST_MAIN(tst_ColorDialog_use)

#include "tst_colordialog_use.moc"
