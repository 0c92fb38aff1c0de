// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "messageboxpage.h"

#include "appearance.h"
#include "parts.h"
#include "pictureview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/stylesheetwidget.h>

using Tarn::Widgets::FramelessMessageBox;
using Tarn::Widgets::StyleSheetWidget;

namespace Gallery {

namespace {

using Box = FramelessMessageBox;
using Button = QMessageBox::StandardButton;
using Buttons = QMessageBox::StandardButtons;

constexpr int CodePixels = 12;

enum Call { Exec, Open, Information, Question, Warning, Critical, About, AboutQt };

constexpr const char *CallNames[] = {"exec",    "open",     "information", "question",
                                     "warning", "critical", "about",       "aboutQt"};

constexpr QMessageBox::Icon Icons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                       QMessageBox::Critical, QMessageBox::Question};

enum Sample { Plain, Rich, Long, Chinese };

// The last is two buttons of the application's own.
const Buttons ButtonSets[] = {
    QMessageBox::Ok,
    QMessageBox::Ok | QMessageBox::Cancel,
    QMessageBox::Yes | QMessageBox::No,
    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
    QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore,
    QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::NoToAll | QMessageBox::Cancel,
    QMessageBox::Open | QMessageBox::Close | QMessageBox::Help,
    QMessageBox::SaveAll | QMessageBox::Apply | QMessageBox::Reset | QMessageBox::RestoreDefaults,
    QMessageBox::NoButton};

/* The name of a value in one of QMessageBox's enumerations; null for unknown ones. */
QString nameIn(const char *enumeration, int value)
{
    const QMetaObject &meta = QMessageBox::staticMetaObject;
    return QString::fromLatin1(meta.enumerator(meta.indexOfEnumerator(enumeration)).valueToKey(value));
}

QString nameOf(Button button)
{
    return nameIn("StandardButtons", button);
}

QString nameOf(QMessageBox::Icon icon)
{
    return nameIn("Icon", icon);
}

QStringList namesOf(Buttons buttons, const QString &prefix)
{
    QStringList names;
    for (uint bit = QMessageBox::FirstButton; bit <= QMessageBox::LastButton; bit <<= 1) {
        if (buttons.testFlag(Button(bit)))
            names.append(prefix + nameOf(Button(bit)));
    }
    return names;
}

QStringList callNames()
{
    QStringList names;
    for (const char *name : CallNames)
        names.append(QLatin1String(name) + QStringLiteral("()"));
    return names;
}

QStringList iconNames()
{
    QStringList names;
    for (const QMessageBox::Icon icon : Icons)
        names.append(nameOf(icon));
    return names;
}

QStringList buttonSetTitles()
{
    QStringList titles;
    for (const Buttons &set : ButtonSets)
        titles.append(set ? namesOf(set, QString()).join(QStringLiteral(", "))
                          : MessageBoxPage::tr("Two of one's own"));
    return titles;
}

QString titleFor(int text)
{
    return text == Chinese ? QStringLiteral("四号水泵") : MessageBoxPage::tr("Pump 4");
}

QString mainText(int text)
{
    switch (text) {
    case Rich:
        return MessageBoxPage::tr("The pump delivers <b>0.3 bar</b>, which is <i>below</i> the limit.");
    case Long:
        return MessageBoxPage::tr(
            "The pump has been running dry for eleven minutes. Its bearings are warm, the "
            "pressure falls, and the tank behind it will be empty within the hour. Switch "
            "it off now?");
    case Chinese:
        return QStringLiteral("水泵压力低于下限。要现在关闭水泵吗？");
    default:
        return MessageBoxPage::tr("Switch the pump off?");
    }
}

QString informativeText(int text)
{
    return text == Chinese ? QStringLiteral("关闭后，后面的水箱将在一小时内排空。")
                           : MessageBoxPage::tr("The tank behind it will be empty within an hour.");
}

QString detailedText(int text)
{
    return text == Chinese ? QStringLiteral("10:42 压力 0.3 巴\n10:41 压力 0.9 巴\n10:40 压力 2.1 巴")
                           : MessageBoxPage::tr("10:42 pressure 0.3 bar\n10:41 pressure 0.9 bar\n"
                                                "10:40 pressure 2.1 bar");
}

QString checkBoxText(int text)
{
    return text == Chinese ? QStringLiteral("不再询问") : MessageBoxPage::tr("Do not ask again");
}

void addOwnButtons(Box *box)
{
    showText(box->addButton(QString(), QMessageBox::AcceptRole),
             [] { return MessageBoxPage::tr("Switch off"); });
    showText(box->addButton(QString(), QMessageBox::RejectRole), [] { return MessageBoxPage::tr("Later"); });
}

bool isBuiltStepByStep(const MessageOptions &options)
{
    return options.call == Exec || options.call == Open;
}

bool isCallWithButtons(const MessageOptions &options)
{
    return options.call >= Information && options.call < About;
}

Box *createBox(const MessageOptions &options, QWidget *parent)
{
    const Buttons buttons = ButtonSets[options.buttons];
    auto *box = new Box(options.icon, titleFor(options.text), mainText(options.text), buttons, parent);
    if (!buttons)
        addOwnButtons(box);
    if (options.checkBox) {
        auto *checkBox = new QCheckBox;
        showText(checkBox, [text = options.text] { return checkBoxText(text); });
        box->setCheckBox(checkBox);
    }
    keepTranslated(box, [=] {
        box->setWindowTitle(titleFor(options.text));
        box->setText(mainText(options.text));
        if (options.informativeText)
            box->setInformativeText(informativeText(options.text));
        if (options.detailedText)
            box->setDetailedText(detailedText(options.text));
    });
    if (options.noCloseButton)
        box->setCloseButtonVisible(false);
    return box;
}

/* What one of the one-call functions shows, for a picture of it. */
MessageOptions shownByCall(const MessageOptions &options)
{
    static constexpr QMessageBox::Icon CallIcons[] = {QMessageBox::Information, QMessageBox::Question,
                                                      QMessageBox::Warning, QMessageBox::Critical};
    MessageOptions shown;
    shown.text = options.text;
    shown.noCloseButton = options.noCloseButton && isCallWithButtons(options);
    shown.buttons = options.call == About ? 0 : options.buttons;
    shown.icon = options.call == About ? QMessageBox::NoIcon : CallIcons[options.call - Information];
    return shown;
}

Button call(const MessageOptions &options, QWidget *parent)
{
    using Function = Button (*)(QWidget *, const QString &, const QString &, Buttons, Button);
    static constexpr Function Functions[] = {Box::information, Box::question, Box::warning, Box::critical};
    return Functions[options.call - Information](parent, titleFor(options.text), mainText(options.text),
                                                 ButtonSets[options.buttons], QMessageBox::NoButton);
}

/* The property is for style sheets. */
Button callWithProperty(const MessageOptions &options, QWidget *parent)
{
    using Function =
        Button (*)(QWidget *, const QString &, const QString &, char *, bool, Buttons, Button, bool);
    static constexpr Function Functions[] = {Box::information, Box::question, Box::warning, Box::critical};
    char isAlarm[] = "isAlarm";
    return Functions[options.call - Information](parent, titleFor(options.text), mainText(options.text),
                                                 isAlarm, true, ButtonSets[options.buttons],
                                                 QMessageBox::NoButton, false);
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    return QStringLiteral("tr(\"%1\")").arg(text);
}

QString codeOfButtons(Buttons buttons)
{
    const QStringList names = namesOf(buttons, QStringLiteral("QMessageBox::"));
    return names.isEmpty() ? QStringLiteral("QMessageBox::NoButton") : names.join(QStringLiteral(" | "));
}

QString codeOfCall(const MessageOptions &options)
{
    const bool hasProperty = isCallWithButtons(options) && options.noCloseButton;
    QString code = hasProperty ? QStringLiteral("char isAlarm[] = \"isAlarm\";\n") : QString();
    code += QStringLiteral("FramelessMessageBox::%1(this").arg(QLatin1String(CallNames[options.call]));
    if (options.call != AboutQt)
        code +=
            QStringLiteral(", %1, %2").arg(quoted(titleFor(options.text)), quoted(mainText(options.text)));
    const QString buttons = codeOfButtons(ButtonSets[options.buttons]);
    if (hasProperty)
        code += QStringLiteral(", isAlarm, true, %1, QMessageBox::NoButton, false").arg(buttons);
    else if (isCallWithButtons(options))
        code += QStringLiteral(", ") + buttons;
    return code + QStringLiteral(");");
}

QString codeOfBox(const MessageOptions &options)
{
    const Buttons buttons = ButtonSets[options.buttons];
    const bool isOpened = options.call == Open;
    const QString format = isOpened
        ? QStringLiteral("auto *box = new FramelessMessageBox(QMessageBox::%1, %2, %3, %4, this);")
        : QStringLiteral("FramelessMessageBox box(QMessageBox::%1, %2, %3, %4, this);");
    const QString call = isOpened ? QStringLiteral("box->") : QStringLiteral("box.");
    QStringList lines = {format.arg(nameOf(options.icon), quoted(titleFor(options.text)),
                                    quoted(mainText(options.text)), codeOfButtons(buttons))};
    const auto add = [&](bool isWanted, const QString &function, const QString &text) {
        if (isWanted)
            lines.append(call + function.arg(quoted(text)));
    };
    add(!buttons, QStringLiteral("addButton(%1, QMessageBox::AcceptRole);"),
        MessageBoxPage::tr("Switch off"));
    add(!buttons, QStringLiteral("addButton(%1, QMessageBox::RejectRole);"), MessageBoxPage::tr("Later"));
    add(options.informativeText, QStringLiteral("setInformativeText(%1);"), informativeText(options.text));
    add(options.checkBox, QStringLiteral("setCheckBox(new QCheckBox(%1));"), checkBoxText(options.text));
    add(options.detailedText, QStringLiteral("setDetailedText(%1);"), detailedText(options.text));
    lines.append(isOpened ? QStringLiteral("box->setAttribute(Qt::WA_DeleteOnClose);\n"
                                           "box->open(this, SLOT(showOutcome(QAbstractButton*)));")
                          : QStringLiteral("box.exec();"));
    return lines.join(QLatin1Char('\n'));
}

/* With the details opened, if there are any. */
QDialog *createExhibit(const MessageOptions &options, QWidget *parent)
{
    Box *box = createBox(options, parent);
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (box->buttonRole(button) == QMessageBox::ActionRole)
            button->click();
    }
    return box;
}

MessageOptions plain(QMessageBox::Icon icon, int text, int buttons)
{
    MessageOptions options;
    options.icon = icon;
    options.text = text;
    options.buttons = buttons;
    return options;
}

MessageOptions withMoreTexts(MessageOptions options)
{
    options.informativeText = options.detailedText = true;
    return options;
}

} // namespace

MessageBoxPage::MessageBoxPage(Appearance *appearance, QWidget *parent)
    : QWidget(parent)
{
    auto *open = createButton([] { return tr("Open"); });
    open->setDefault(true);
    connect(open, &QPushButton::clicked, this, &MessageBoxPage::open);
    auto *choices = new QVBoxLayout;
    choices->setSpacing(10);
    choices->addWidget(createChoices());
    choices->addWidget(open, 0, Qt::AlignLeft);
    choices->addStretch();

    m_code = new QPlainTextEdit;
    m_code->setReadOnly(true);
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(CodePixels);
    m_code->setFont(font);
    keepTranslated(m_code, [this] {
        m_code->setAccessibleName(tr("Code"));
        showCode();
    });
    m_code->setFixedHeight(110);
    auto *result = new QVBoxLayout;
    result->setSpacing(10);
    result->addWidget(createPreview(), 1);
    result->addWidget(m_code);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(PageMargins);
    layout->setSpacing(16);
    layout->addLayout(choices);
    layout->addLayout(result, 1);
    connect(appearance, &Appearance::changed, this, &MessageBoxPage::refresh);
}

MessageBoxPage::~MessageBoxPage() = default;

Page MessageBoxPage::page()
{
    return {QStringLiteral("message-boxes"),
            tr("Message boxes"),
            tr("QMessageBox in a frameless dialog: change the class name, and code moves over."),
            [](Appearance *appearance, QWidget *parent) -> QWidget * {
                return new MessageBoxPage(appearance, parent);
            },
            {{QStringLiteral("question"),
              [](QWidget *parent) { return createExhibit(plain(QMessageBox::Question, Plain, 2), parent); }},
             {QStringLiteral("warning"),
              [](QWidget *parent) { return createExhibit(plain(QMessageBox::Warning, Rich, 1), parent); }},
             {QStringLiteral("critical"),
              [](QWidget *parent) { return createExhibit(plain(QMessageBox::Critical, Long, 5), parent); }},
             {QStringLiteral("information"),
              [](QWidget *parent) {
                  return createExhibit(withMoreTexts(plain(QMessageBox::Information, Long, 3)), parent);
              }},
             {QStringLiteral("chinese"), [](QWidget *parent) {
                  return createExhibit(withMoreTexts(plain(QMessageBox::Warning, Chinese, 2)), parent);
              }}}};
}

QWidget *MessageBoxPage::createChoices()
{
    const auto currentIcon = std::find(std::begin(Icons), std::end(Icons), m_options.icon);
    m_icons = createList(iconNames, int(currentIcon - std::begin(Icons)),
                         [this](int row) { m_options.icon = Icons[row]; });
    m_parts = {createSwitch([] { return tr("Informative text"); }, &MessageOptions::informativeText),
               createSwitch([] { return tr("Check box"); }, &MessageOptions::checkBox),
               createSwitch([] { return tr("Details"); }, &MessageOptions::detailedText)};
    m_noCloseButton = createSwitch([] { return tr("No close button"); }, &MessageOptions::noCloseButton);

    auto *group = new QGroupBox;
    showText(group, [] { return tr("Message box"); });
    auto *layout = new QGridLayout(group);
    layout->setColumnStretch(1, 1);
    addFormRow(
        layout, [] { return tr("Call"); },
        createList(callNames, m_options.call, [this](int row) { m_options.call = row; }));
    addFormRow(
        layout, [] { return tr("Icon"); }, m_icons);
    addFormRow(
        layout, [] { return tr("Text"); },
        createList(
            [] {
                return QStringList({tr("Plain"), tr("Rich"), tr("Long"), tr("Chinese")});
            },
            m_options.text, [this](int row) { m_options.text = row; }));
    addFormRow(
        layout, [] { return tr("Buttons"); },
        createList(buttonSetTitles, m_options.buttons, [this](int row) { m_options.buttons = row; }));
    for (QCheckBox *part : qAsConst(m_parts))
        layout->addWidget(part, layout->rowCount(), 0, 1, 2, Qt::AlignLeft);
    layout->addWidget(m_noCloseButton, layout->rowCount(), 0, 1, 2, Qt::AlignLeft);
    return group;
}

QWidget *MessageBoxPage::createPreview()
{
    auto *stage = new StyleSheetWidget(this);
    stage->setObjectName(QStringLiteral("galleryStage"));
    m_preview = new PictureView(stage);
    keepTranslated(m_preview, [this] {
        m_preview->setAccessibleName(tr("Picture of the message box"));
        if (m_preview->isVisible())
            refresh();
    });
    m_outcome = createNote([] { return tr("Not opened yet"); });
    m_outcome->setAlignment(Qt::AlignCenter);

    auto *layout = new QVBoxLayout(stage);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_outcome);
    return stage;
}

QComboBox *MessageBoxPage::createList(const Texts &entries, int current, std::function<void(int)> onChanged)
{
    QComboBox *list = createComboBox();
    keepTranslated(list, [=] { setRowTexts(list, entries()); });
    list->setCurrentIndex(current);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(12);
    connect(list, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, onChanged = std::move(onChanged)](int row) {
                onChanged(row);
                refresh();
            });
    return list;
}

QCheckBox *MessageBoxPage::createSwitch(const Text &text, bool MessageOptions::*option)
{
    return createCheckBox(text, m_options.*option, [this, option](bool on) {
        m_options.*option = on;
        refresh();
    });
}

void MessageBoxPage::open()
{
    if (m_options.call == Open) {
        Box *box = createBox(optionsOfBox(), this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open(this, SLOT(showOutcome(QAbstractButton *)));
        return;
    }
    if (m_options.call != Exec) {
        openCall();
        return;
    }
    // Watched, since the page may be deleted meanwhile, and the box with it.
    const QPointer<Box> box = createBox(optionsOfBox(), this);
    const int result = box->exec();
    if (!box)
        return;
    delete box;
    showOutcome(result);
}

MessageOptions MessageBoxPage::optionsOfBox() const
{
    MessageOptions options = m_options;
    options.noCloseButton = false;
    return options;
}

void MessageBoxPage::openCall()
{
    const QPointer<MessageBoxPage> alive(this);
    int result = QMessageBox::Ok;
    switch (m_options.call) {
    case Information:
    case Question:
    case Warning:
    case Critical:
        result = m_options.noCloseButton ? callWithProperty(m_options, this) : call(m_options, this);
        break;
    case About:
        Box::about(this, titleFor(m_options.text), mainText(m_options.text));
        break;
    default:
        Box::aboutQt(this);
        break;
    }
    if (alive)
        showOutcome(result);
}

void MessageBoxPage::showOutcome(QAbstractButton *button)
{
    const QString text = button->text().remove(QLatin1Char('&'));
    showText(m_outcome, [text] { return tr("Clicked: %1").arg(text); });
}

void MessageBoxPage::showOutcome(int result)
{
    const QString name = result ? nameOf(Button(result)) : QString();
    const QString shown = name.isEmpty() ? QString::number(result) : QStringLiteral("QMessageBox::") + name;
    showText(m_outcome, [shown] { return tr("Result: %1").arg(shown); });
}

void MessageBoxPage::showCode()
{
    m_code->setPlainText(isBuiltStepByStep(m_options) ? codeOfBox(m_options) : codeOfCall(m_options));
}

void MessageBoxPage::refresh()
{
    const bool isBox = isBuiltStepByStep(m_options);
    m_icons->setEnabled(isBox);
    for (QCheckBox *part : qAsConst(m_parts))
        part->setEnabled(isBox);
    m_noCloseButton->setEnabled(isCallWithButtons(m_options));
    showCode();
    if (m_options.call == AboutQt) {
        m_preview->setPicture(QPixmap());
        return;
    }

    // A box has its size once it is shown.
    const std::unique_ptr<Box> model(createBox(isBox ? optionsOfBox() : shownByCall(m_options), nullptr));
    if (m_options.call == About)
        model->setIconPixmap(model->windowIcon().pixmap(64));
    model->setModal(false);
    model->setAttribute(Qt::WA_DontShowOnScreen);
    model->setAttribute(Qt::WA_ShowWithoutActivating);
    model->show();
    m_preview->setPicture(model->grab());
}

void MessageBoxPage::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

} // namespace Gallery
