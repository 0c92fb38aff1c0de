// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "showntexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QWidget>
#include <algorithm>

namespace Tarn::Test {

namespace {

constexpr const char *Properties[] = {"text",        "title",           "windowTitle",
                                      "toolTip",     "placeholderText", "accessibleName",
                                      "currentText", "suffix",          "plainText"};

constexpr int FieldMargin = 2; // at either end of a line edit's text

void addEntries(const QAbstractItemModel *model, QStringList *texts)
{
    for (int column = 0; column < model->columnCount(); ++column) {
        texts->append(QStringLiteral("header: ") + model->headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, column);
            texts->append(QStringLiteral("entry: ") + index.data().toString());
            texts->append(QStringLiteral("entry's tip: ") + index.data(Qt::ToolTipRole).toString());
        }
    }
}

void addTextsOf(const QWidget *widget, QStringList *texts)
{
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    for (const char *property : Properties) {
        const QString text = widget->property(property).toString();
        if (!text.isEmpty())
            texts->append(QStringLiteral("%1 %2: %3").arg(className, QLatin1String(property), text));
    }
    const QList<QAction *> actions = widget->actions();
    for (const QAction *action : actions)
        texts->append(QStringLiteral("action: ") + action->text());
    if (const auto *bar = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
            texts->append(QStringLiteral("tab: %1, tip: %2").arg(bar->tabText(i), bar->tabToolTip(i)));
    }
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        if (view->model())
            addEntries(view->model(), texts);
    }
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        addEntries(box->model(), texts);
}

/* Behind the buttons of a spin box, whose text never scrolls as long as it is not edited. */
bool isInSpinBox(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget)
        && qobject_cast<const QAbstractSpinBox *>(widget->parentWidget());
}

/* Within what the style sheet keeps free. */
int roomIn(const QPushButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    return button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button).width();
}

int roomFor(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->wordWrap() ? QWIDGETSIZE_MAX : label->width();
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return roomIn(button);
    return isInSpinBox(widget) ? widget->contentsRect().width() - 2 * FieldMargin : widget->width();
}

/* Of the text alone, where the rest of the hint is room that may go. */
int widthOf(const QWidget *widget)
{
    if (widget->property("text").toString().isEmpty() || widget->inherits("Tarn::Widgets::TarnPushButton"))
        return 0; // that one turns its text, and cuts it by itself
    if (isInSpinBox(widget))
        return widget->fontMetrics().horizontalAdvance(widget->property("text").toString());
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    if (qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget))
        return widget->sizeHint().width();
    return 0;
}

} // namespace

QStringList textsOn(const QWidget *window, bool visibleOnly)
{
    QStringList texts;
    addTextsOf(window, &texts);
    const QList<QWidget *> children = window->findChildren<QWidget *>();
    for (const QWidget *child : children) {
        if (!visibleOnly || child->isVisibleTo(window))
            addTextsOf(child, &texts);
    }
    return texts;
}

QStringList textsCutOffOn(const QWidget *window)
{
    QStringList texts;
    const QList<QWidget *> children = window->findChildren<QWidget *>();
    for (const QWidget *child : children) {
        if (child->isVisible() && widthOf(child) > roomFor(child))
            texts.append(QStringLiteral("%1 (%2 of %3 pixels)")
                             .arg(child->property("text").toString())
                             .arg(roomFor(child))
                             .arg(widthOf(child)));
    }
    return texts;
}

bool hasChineseLetter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar letter) { return letter.script() == QChar::Script_Han; });
}

} // namespace Tarn::Test
