// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The message box beside QMessageBox: both are treated alike and must agree. Where they differ on purpose is
// in the functions named difference...().

#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QtAlgorithms>
#include <functional>
#include <memory>
#include <optional>
#include <tarnwidgets/framelessmessagebox.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessMessageBox;

namespace {

using Button = QMessageBox::StandardButton;
using Buttons = QMessageBox::StandardButtons;
using Role = QMessageBox::ButtonRole;

constexpr int Untouched = -99;
// Of no meaning, but with a bit of the enumeration's: to pass on any other is undefined behaviour.
constexpr Button UnknownButton = Button(1);
constexpr int ButtonCount = 18;
constexpr int SetCount = 1 << ButtonCount;
constexpr int Shards =
    8; // rows that the walk through all sets is cut into, each with a time limit of its own

Button standardButton(int bit)
{
    return Button(QMessageBox::FirstButton << bit);
}

/* What a box is made of. */
struct Recipe
{
    Buttons standard;
    QVector<Role> custom;
    bool addedOneByOne = false;
    bool details = false;
    bool checkBox = false;
    bool link = false;
    int defaultIndex = -1; // among buttons()
    int escapeIndex = -1;
};

/* The names of buttons that both boxes have in common: the standard value, or the place among the custom
 * ones. */
template <class Box> QString nameOf(const Box &box, QAbstractButton *button)
{
    if (!button)
        return QStringLiteral("none");
    const Button standard = box.standardButton(button);
    return standard ? QString::number(standard, 16) : button->property("number").toString();
}

template <class Box> QStringList namesAndRoles(const Box &box)
{
    QStringList names;
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons)
        names.append(QStringLiteral("%1/%2").arg(nameOf(box, button)).arg(box.buttonRole(button)));
    return names;
}

template <class Box> void build(Box &box, const Recipe &recipe)
{
    if (recipe.addedOneByOne) {
        for (int bit = 0; bit < ButtonCount; ++bit) {
            if (recipe.standard.testFlag(standardButton(bit)))
                box.addButton(standardButton(bit));
        }
    } else if (recipe.standard) {
        box.setStandardButtons(recipe.standard);
    }
    for (int i = 0; i < recipe.custom.size(); ++i)
        box.addButton(QStringLiteral("Custom"), recipe.custom.at(i))
            ->setProperty("number", QStringLiteral("custom %1").arg(i));
    if (recipe.details)
        box.setDetailedText(QStringLiteral("details"));
    if (recipe.checkBox)
        box.setCheckBox(new QCheckBox(QStringLiteral("check")));
    if (recipe.link) {
        box.setText(QStringLiteral("a <a href=\"x\">link</a>"));
        box.setTextInteractionFlags(Qt::TextBrowserInteraction);
    }
    const QList<QAbstractButton *> buttons = box.buttons();
    if (recipe.defaultIndex >= 0)
        box.setDefaultButton(qobject_cast<QPushButton *>(buttons.value(recipe.defaultIndex)));
    if (recipe.escapeIndex >= 0)
        box.setEscapeButton(buttons.value(recipe.escapeIndex));
}

template <class Box> QString defaultOnScreen(const Box &box)
{
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        const auto *push = qobject_cast<QPushButton *>(button);
        if (push && push->isDefault())
            return nameOf(box, button);
    }
    return QStringLiteral("none");
}

template <class Box> QString focusOnScreen(const Box &box)
{
    return nameOf(box, qobject_cast<QAbstractButton *>(box.focusWidget()));
}

/* Shows a box of the recipe, acts, and tells what came of it. */
template <class Box> QString outcome(const Recipe &recipe, const std::function<void(Box &)> &act)
{
    Box box;
    build(box, recipe);
    box.show();
    QApplication::setActiveWindow(&box);
    QSignalSpy finished(&box, &QDialog::finished);
    act(box);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(box.isVisible() ? QStringLiteral("open") : QStringLiteral("gone"))
        .arg(finished.isEmpty() ? Untouched : finished.last().first().toInt())
        .arg(box.isVisible() ? Untouched : box.result())
        .arg(nameOf(box, box.clickedButton()));
}

template <class Box> QStringList everyOutcome(const Recipe &recipe)
{
    QStringList all;
    all.append(outcome<Box>(recipe, [&all](Box &box) {
        all.append(namesAndRoles(box).join(QLatin1Char(' ')));
        all.append(defaultOnScreen(box));
        all.append(focusOnScreen(box));
    }));
    all.append(outcome<Box>(recipe, [](Box &box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    all.append(outcome<Box>(recipe, [](Box &box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); }));
    if (recipe.checkBox) {
        all.append(outcome<Box>(recipe, [](Box &box) {
            box.checkBox()->setFocus();
            QTest::keyClick(box.checkBox(), Qt::Key_Return);
        }));
    }
    if (recipe.link) {
        all.append(outcome<Box>(recipe, [](Box &box) {
            auto *label = box.template findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            label->setFocus();
            QTest::keyClick(label, Qt::Key_Return);
        }));
    }
    all.append(outcome<Box>(recipe, [](Box &box) { box.close(); }));
    all.append(outcome<Box>(recipe, [](Box &box) { box.buttons().last()->click(); }));
    return all;
}

void compare(const Recipe &recipe)
{
    const QStringList ours = everyOutcome<FramelessMessageBox>(recipe);
    const QStringList qts = everyOutcome<QMessageBox>(recipe);
    if (ours != qts) {
        qInfo("%s",
              qPrintable(QStringLiteral("set %1, custom %2, default %3, escape %4")
                             .arg(int(recipe.standard), 0, 16)
                             .arg(recipe.custom.size())
                             .arg(recipe.defaultIndex)
                             .arg(recipe.escapeIndex)));
    }
    QCOMPARE(ours, qts);
}

Recipe randomRecipe(QRandomGenerator &random)
{
    Recipe recipe;
    for (int i = random.bounded(4); i > 0; --i)
        recipe.standard |= standardButton(random.bounded(ButtonCount));
    for (int i = random.bounded(recipe.standard ? 3 : 4); i > 0; --i)
        recipe.custom.append(Role(random.bounded(int(QMessageBox::NRoles))));
    recipe.addedOneByOne = random.bounded(2);
    recipe.checkBox = random.bounded(2);
    recipe.link = random.bounded(4) == 0;
    const int count = recipe.custom.size() + int(qPopulationCount(uint(recipe.standard)));
    recipe.defaultIndex = count ? random.bounded(-count, count) : -1;
    recipe.escapeIndex = count ? random.bounded(-count, count) : -1;
    return recipe;
}

/* Shows nothing: both boxes find their escape button in the show event, and click it on Escape. */
template <class Box> int resultOfEscape(Box &box)
{
    QShowEvent show;
    QCoreApplication::sendEvent(&box, &show);
    box.setResult(Untouched);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &escape);
    return box.result();
}

template <class Box> int resultOfClick(Box &box, Button button)
{
    box.setResult(Untouched);
    box.button(button)->click();
    return box.result();
}

template <class Box> void toggle(Box &box, Button button)
{
    if (QAbstractButton *present = box.button(button)) {
        box.removeButton(present);
        delete present;
    } else {
        box.addButton(button);
    }
}

/* Ordinary code, for either class. */
template <class Box> QStringList ordinaryCalls(QWidget *parent)
{
    QStringList seen;
    ModalDriver driver([](QWidget *dialog) { dialog->close(); });
    for (int i = 0; i < 13; ++i)
        driver.then([](QWidget *dialog) { dialog->close(); });

    {
        Box msgBox;
        msgBox.setText(QStringLiteral("The document has been modified."));
        seen += QString::number(msgBox.exec());
    }
    {
        Box msgBox;
        msgBox.setText(QStringLiteral("The document has been modified."));
        msgBox.setInformativeText(QStringLiteral("Do you want to save your changes?"));
        msgBox.setStandardButtons(Box::Save | Box::Discard | Box::Cancel);
        msgBox.setDefaultButton(Box::Save);
        switch (msgBox.exec()) {
        case Box::Save:
            seen += QStringLiteral("saved");
            break;
        case Box::Discard:
            seen += QStringLiteral("not saved");
            break;
        case Box::Cancel:
            seen += QStringLiteral("cancelled");
            break;
        default:
            seen += QStringLiteral("never reached");
            break;
        }
        seen += msgBox.informativeText();
        seen += QString::number(msgBox.standardButtons());
        seen += QString::number(msgBox.standardButton(msgBox.defaultButton()));
    }
    {
        Box msgBox(parent);
        QPushButton *connectButton = msgBox.addButton(QStringLiteral("Connect"), Box::ActionRole);
        QPushButton *abortButton = msgBox.addButton(Box::Abort);
        msgBox.exec();
        seen += QString::number(msgBox.clickedButton() == connectButton);
        seen += QString::number(msgBox.clickedButton() == abortButton);
    }
    {
        Box msgBox(Box::Warning, QStringLiteral("Title"), QStringLiteral("Text"));
        msgBox.addButton(new QPushButton(QStringLiteral("Own")), Box::RejectRole);
        seen += QString::number(msgBox.exec());
        seen += msgBox.text() + msgBox.windowTitle();
        seen += QString::number(msgBox.icon());
    }
    {
        Box msgBox(Box::Question, QStringLiteral("Title"), QStringLiteral("Text"), Box::Yes | Box::No, parent,
                   Qt::Dialog);
        msgBox.setEscapeButton(Box::Yes);
        msgBox.setTextFormat(Qt::RichText);
        msgBox.setTextInteractionFlags(Qt::TextSelectableByMouse);
        msgBox.setDetailedText(QStringLiteral("Details"));
        msgBox.setCheckBox(new QCheckBox(QStringLiteral("Again")));
        msgBox.setWindowModality(Qt::WindowModal);
        typename Box::StandardButton result = static_cast<typename Box::StandardButton>(msgBox.exec());
        seen += QString::number(result);
        seen += QString::number(msgBox.buttonRole(msgBox.button(Box::Yes)) == Box::YesRole);
        seen += msgBox.checkBox()->text() + msgBox.detailedText();
        seen += QString::number(msgBox.textFormat()) + QString::number(msgBox.textInteractionFlags());
        const std::unique_ptr<QAbstractButton> removed(msgBox.button(Box::No));
        msgBox.removeButton(removed.get());
        seen += QString::number(msgBox.buttons().size());
    }
    {
        Box box;
        box.setIconPixmap(QPixmap(4, 4));
        box.setWindowTitle(QStringLiteral("Open"));
        box.setStandardButtons(Box::Ok);
        QObject::connect(&box, &Box::buttonClicked, &box,
                         [&](QAbstractButton *button) { seen += nameOf(box, button); });
        box.open(parent, SLOT(update()));
        box.button(Box::Ok)->click();
        seen += QString::number(box.result()) + QString::number(box.icon());
    }
    seen += QString::number(Box::information(parent, QStringLiteral("Title"), QStringLiteral("Text")));
    seen += QString::number(Box::question(parent, QStringLiteral("Title"), QStringLiteral("Text")));
    seen += QString::number(Box::question(parent, QStringLiteral("Title"), QStringLiteral("Text"),
                                          Box::Yes | Box::No | Box::Cancel, Box::No));
    seen += QString::number(
        Box::warning(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), Box::Retry | Box::Abort));
    const typename Box::StandardButtons set = Box::Ok | Box::Help;
    seen += QString::number(Box::warning(nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
                                         set | Box::Cancel, Box::Cancel));
    seen +=
        QString::number(Box::critical(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), Box::Close));
    Box::about(parent, QStringLiteral("Title"), QStringLiteral("Text"));
    Box::aboutQt(parent);
    Box::aboutQt(parent, QStringLiteral("Title"));
    seen += driver.ran() ? QStringLiteral("all closed") : QStringLiteral("some missing");
    return seen;
}

} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_FramelessMessageBoxQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void everySetAgrees_data();
    void everySetAgrees();
    void pairsAgreeOnScreen_data();
    void pairsAgreeOnScreen();
    void customRolesAgreeOnScreen_data();
    void customRolesAgreeOnScreen();
    void boxesWithOtherThingsToFocusAgree_data();
    void boxesWithOtherThingsToFocusAgree();
    void randomBoxesAgreeOnScreen();
    void classNameIsAllThatChanges();

    void differenceDetailsAndOneOtherButtonHaveNoEscapeButton();
    void differenceTextsOfAddedStandardButtons_data();
    void differenceTextsOfAddedStandardButtons();
    void differenceDefaultButtonIsNotRestoredByWindowModality();
    void differenceDefaultThatIsNotThereIsNoFallback();
    void differenceUnknownStandardButtonIsRefused();
    void differenceMainTextIsOrangeWithAnInformativeText();
    void differenceForeignButtonKeepsItsParent();
    void differenceSmallestSize();

private:
    std::optional<FunctionGuard> m_guard;
};

void tst_FramelessMessageBoxQt::everySetAgrees_data()
{
    QTest::addColumn<int>("shard");
    for (int shard = 0; shard < Shards; ++shard)
        QTest::newRow(qPrintable(QStringLiteral("sets with part %1 of %2").arg(shard + 1).arg(Shards)))
            << shard;
}

// A walk through all sets in which each differs from the last by one button, so that none is built from
// nothing.
void tst_FramelessMessageBoxQt::everySetAgrees()
{
    QFETCH(int, shard);

    FramelessMessageBox ours;
    QMessageBox qts;
    constexpr int Length = SetCount / Shards;
    bool isShortened = false;
    const int wishedSteps = qEnvironmentVariableIntValue("TARN_TEST_STEPS", &isShortened);
    const int walked = isShortened ? qBound(1, wishedSteps / Shards, Length) : Length;
    int set = (shard * Length) ^ ((shard * Length) >> 1);
    ours.setStandardButtons(Buttons(set << 10));
    qts.setStandardButtons(Buttons(set << 10));
    for (int step = shard * Length;; ++step) {
        QCOMPARE(int(ours.standardButtons()), set << 10);
        QCOMPARE(ours.standardButton(ours.defaultButton()), qts.standardButton(qts.defaultButton()));
        if (namesAndRoles(ours) != namesAndRoles(qts))
            QCOMPARE(namesAndRoles(ours), namesAndRoles(qts));
        const int escaped = resultOfEscape(ours);
        if (escaped != resultOfEscape(qts)) {
            qInfo("set %x", uint(set << 10));
            QCOMPARE(escaped, resultOfEscape(qts));
        }
        if (step + 1 == shard * Length + walked)
            break;
        const int next = (step + 1) ^ ((step + 1) >> 1);
        const Button changed = Button((set ^ next) << 10);
        toggle(ours, changed);
        toggle(qts, changed);
        set = next;
        if (set & (changed >> 10)) {
            ours.setDefaultButton(changed);
            qts.setDefaultButton(changed);
            QCOMPARE(resultOfClick(ours, changed), resultOfClick(qts, changed));
        }
    }
}

void tst_FramelessMessageBoxQt::pairsAgreeOnScreen_data()
{
    QTest::addColumn<int>("first");
    for (int bit = 0; bit < ButtonCount; ++bit)
        QTest::newRow(qPrintable(QString::number(standardButton(bit), 16))) << bit;
}

void tst_FramelessMessageBoxQt::pairsAgreeOnScreen()
{
    QFETCH(int, first);

    for (int second = first; second < ButtonCount && !QTest::currentTestFailed(); ++second) {
        Recipe recipe;
        recipe.standard = standardButton(first) | standardButton(second);
        recipe.addedOneByOne = second % 2;
        compare(recipe);
    }
}

void tst_FramelessMessageBoxQt::customRolesAgreeOnScreen_data()
{
    QTest::addColumn<int>("first");
    for (int role = QMessageBox::AcceptRole; role < QMessageBox::NRoles; ++role)
        QTest::newRow(qPrintable(QStringLiteral("role %1").arg(role))) << role;
}

void tst_FramelessMessageBoxQt::customRolesAgreeOnScreen()
{
    QFETCH(int, first);

    for (int second = first; second < QMessageBox::NRoles && !QTest::currentTestFailed(); ++second) {
        Recipe recipe;
        recipe.custom = {Role(first), Role(second)};
        compare(recipe);
    }
}

void tst_FramelessMessageBoxQt::boxesWithOtherThingsToFocusAgree_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("checkBox");
    QTest::addColumn<bool>("link");
    const std::initializer_list<std::pair<const char *, Buttons>> sets = {
        {"no button", QMessageBox::NoButton},
        {"OK and Cancel", QMessageBox::Ok | QMessageBox::Cancel},
        {"Yes and No", QMessageBox::Yes | QMessageBox::No},
    };
    for (const auto &[name, buttons] : sets) {
        QTest::addRow("%s and a check box", name) << int(buttons) << true << false;
        QTest::addRow("%s and a link", name) << int(buttons) << false << true;
        QTest::addRow("%s and both", name) << int(buttons) << true << true;
    }
}

// Return reaches the default button from wherever the focus is.
void tst_FramelessMessageBoxQt::boxesWithOtherThingsToFocusAgree()
{
    QFETCH(int, buttons);
    Recipe recipe;
    recipe.standard = Buttons(buttons);
    QFETCH(bool, checkBox);
    recipe.checkBox = checkBox;
    QFETCH(bool, link);
    recipe.link = link;
    for (const bool oneByOne : {false, true}) {
        recipe.addedOneByOne = oneByOne;
        compare(recipe);
    }
}

void tst_FramelessMessageBoxQt::randomBoxesAgreeOnScreen()
{
    QRandomGenerator random(20260517); // always the same boxes
    for (int i = 0; i < 150 && !QTest::currentTestFailed(); ++i)
        compare(randomRecipe(random));
}

void tst_FramelessMessageBoxQt::classNameIsAllThatChanges()
{
    QStringList ours;
    QStringList qts;
    {
        QWidget parent;
        ours = ordinaryCalls<FramelessMessageBox>(&parent);
    }
    {
        QWidget parent;
        qts = ordinaryCalls<QMessageBox>(&parent);
    }
    QCOMPARE(ours, qts);
    QCOMPARE(ours.last(), QStringLiteral("all closed"));
}

// Differences

void tst_FramelessMessageBoxQt::differenceDetailsAndOneOtherButtonHaveNoEscapeButton()
{
    Recipe recipe;
    recipe.details = true;
    recipe.standard = QMessageBox::Ok;
    const auto close = [](auto &box) { box.close(); };
    QVERIFY(outcome<QMessageBox>(recipe, close).startsWith(QStringLiteral("gone")));
    QVERIFY(outcome<FramelessMessageBox>(recipe, close).startsWith(QStringLiteral("open")));

    // With a third button the two agree again.
    recipe.standard |= QMessageBox::Cancel;
    QCOMPARE(outcome<FramelessMessageBox>(recipe, close), outcome<QMessageBox>(recipe, close));
}

void tst_FramelessMessageBoxQt::differenceTextsOfAddedStandardButtons_data()
{
    QTest::addColumn<Button>("button");
    for (int bit = 0; bit < ButtonCount; ++bit)
        QTest::newRow(qPrintable(QString::number(standardButton(bit), 16))) << standardButton(bit);
}

void tst_FramelessMessageBoxQt::differenceTextsOfAddedStandardButtons()
{
    QFETCH(Button, button);

    FramelessMessageBox ours;
    QMessageBox qts;
    const bool hasAMnemonicMore = button == QMessageBox::Save || button == QMessageBox::Cancel;
    const QString added = ours.addButton(button)->text();
    const QString qtText = qts.addButton(button)->text();
    QCOMPARE(added, hasAMnemonicMore ? QLatin1Char('&') + qtText : qtText);

    // A set has the texts of Qt.
    FramelessMessageBox set;
    set.setStandardButtons(button);
    QCOMPARE(set.button(button)->text(), qtText);
}

void tst_FramelessMessageBoxQt::differenceDefaultButtonIsNotRestoredByWindowModality()
{
    const auto defaultAfter = [](auto &box) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);
        box.button(QMessageBox::Yes)->setFocus();
        box.setWindowModality(Qt::WindowModal);
        return nameOf(box, qobject_cast<QAbstractButton *>(box.focusWidget()));
    };
    FramelessMessageBox ours;
    QMessageBox qts;
    QVERIFY(defaultAfter(ours) != QString::number(QMessageBox::No, 16));
    QCOMPARE(defaultAfter(qts), QString::number(QMessageBox::No, 16));
}

void tst_FramelessMessageBoxQt::differenceDefaultThatIsNotThereIsNoFallback()
{
    // QMessageBox takes such a call for one of its oldest interface, in which the numbers are others.
    m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Invalid ButtonRole"));
    int ours = 0;
    int qts = 0;
    ModalDriver driver([&](QWidget *dialog) {
        ours = qobject_cast<FramelessMessageBox *>(dialog)->standardButtons();
        dialog->close();
    });
    driver.then([&](QWidget *dialog) {
        qts = qobject_cast<QMessageBox *>(dialog)->standardButtons();
        qobject_cast<QMessageBox *>(dialog)->done(0);
    });
    FramelessMessageBox::question(nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
                                  QMessageBox::Yes | QMessageBox::No, QMessageBox::Cancel);
    QMessageBox::question(nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
                          QMessageBox::Yes | QMessageBox::No, QMessageBox::Cancel);
    QVERIFY(driver.ran());
    QCOMPARE(ours, int(QMessageBox::Yes | QMessageBox::No));
    QVERIFY(qts != ours);
}

void tst_FramelessMessageBoxQt::differenceUnknownStandardButtonIsRefused()
{
    for (int i = 0; i < 2; ++i)
        m_guard->sentry().expect(QtWarningMsg, QStringLiteral("Invalid ButtonRole"));
    QMessageBox qts;
    FramelessMessageBox ours;
    QVERIFY(qts.addButton(UnknownButton));
    QVERIFY(!ours.addButton(UnknownButton));
    QCOMPARE(ours.buttons().size(), qts.buttons().size());
}

void tst_FramelessMessageBoxQt::differenceMainTextIsOrangeWithAnInformativeText()
{
    const auto styleSheetOf = [](auto &box) {
        box.setInformativeText(QStringLiteral("more"));
        return box.template findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))->styleSheet();
    };
    FramelessMessageBox ours;
    QMessageBox qts;
    QCOMPARE(styleSheetOf(ours), QStringLiteral("font-size:16px;color:#e67007;"));
    QCOMPARE(styleSheetOf(qts), QString());
}

void tst_FramelessMessageBoxQt::differenceForeignButtonKeepsItsParent()
{
    QWidget owner;
    const std::unique_ptr<QPushButton> foreign(new QPushButton(&owner));
    FramelessMessageBox ours;
    ours.removeButton(foreign.get());
    QCOMPARE(foreign->parentWidget(), &owner);
    QMessageBox qts;
    qts.removeButton(foreign.get());
    QVERIFY(!foreign->parentWidget());
}

void tst_FramelessMessageBoxQt::differenceSmallestSize()
{
    const auto sizeOf = [](auto &box) {
        box.setText(QStringLiteral("x"));
        box.show();
        return box.size();
    };
    FramelessMessageBox ours;
    QMessageBox qts;
    QCOMPARE(sizeOf(ours), QSize(400, 220));
    QVERIFY(sizeOf(qts).width() < 400);
}

QTEST_MAIN(tst_FramelessMessageBoxQt)

#include "tst_framelessmessagebox_qt.moc"
