// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "baretree.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPushButton>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <utility>
#include <vector>

namespace Tarn::Benchmark {

namespace {

using Copies = QHash<const QWidget *, QWidget *>;

using Maker = QWidget *(*)(QWidget *parent);

template <typename Widget> QWidget *makeWidget(QWidget *parent)
{
    return new Widget(parent);
}

template <typename... Widgets> Maker firstMaker(const QWidget &model)
{
    Maker maker = nullptr;
    ((maker = !maker && qobject_cast<const Widgets *>(&model) ? &makeWidget<Widgets> : maker), ...);
    return maker;
}

/* Of the class of Qt's that the model derives from, among those that our widgets are made of. */
Maker makerOfPeer(const QWidget &model)
{
    return firstMaker<QDialog, QDialogButtonBox, QCheckBox, QPushButton, QToolButton, QLabel, QLineEdit,
                      QSpinBox, QTextEdit, QStackedWidget, QTabBar, QFrame, QWidget>(model);
}

/* What makes its own children. */
bool isWhole(const QWidget &model)
{
    return qobject_cast<const QDialogButtonBox *>(&model) || qobject_cast<const QAbstractSpinBox *>(&model)
        || qobject_cast<const QAbstractScrollArea *>(&model) || qobject_cast<const QTabBar *>(&model);
}

bool isInherited(const QWidget &model, const QByteArray &name)
{
    return (name == "font" && !model.testAttribute(Qt::WA_SetFont))
        || (name == "palette" && !model.testAttribute(Qt::WA_SetPalette))
        || (name == "cursor" && !model.testAttribute(Qt::WA_SetCursor))
        || (name == "locale" && !model.testAttribute(Qt::WA_SetLocale))
        || (name == "layoutDirection" && !model.testAttribute(Qt::WA_SetLayoutDirection));
}

/* A QTextEdit would share its document with the model, and set as HTML a plain text takes more. */
bool isCopied(const QMetaProperty &property)
{
    const QByteArray name = property.name();
    return property.isWritable() && property.isStored() && name != "geometry" && name != "document"
        && name != "html";
}

void copyIcon(const QLabel *model, QWidget *copy)
{
    if (model && !model->pixmap(Qt::ReturnByValue).isNull())
        qobject_cast<QLabel *>(copy)->setPixmap(model->pixmap(Qt::ReturnByValue));
}

void copyContent(const QWidget &model, QWidget *copy)
{
    if (const auto *bar = qobject_cast<const QTabBar *>(&model)) {
        for (int i = 0; i < bar->count(); ++i)
            qobject_cast<QTabBar *>(copy)->addTab(bar->tabText(i));
        qobject_cast<QTabBar *>(copy)->setCurrentIndex(bar->currentIndex());
    } else if (const auto *box = qobject_cast<const QDialogButtonBox *>(&model)) {
        const auto buttons = box->buttons();
        for (QAbstractButton *button : buttons) {
            if (box->standardButton(button) == QDialogButtonBox::NoButton)
                qobject_cast<QDialogButtonBox *>(copy)->addButton(button->text(), box->buttonRole(button));
        }
    }
    copyIcon(qobject_cast<const QLabel *>(&model), copy);
    const auto validators = model.findChildren<QRegExpValidator *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QRegExpValidator *validator : validators)
        new QRegExpValidator(validator->regExp(), copy);
}

QLayout *copyLayout(QLayout *model, const Copies &copies);

QLayout *copyGrid(QGridLayout *model, const Copies &copies)
{
    auto *copy = new QGridLayout;
    copy->setHorizontalSpacing(model->horizontalSpacing());
    copy->setVerticalSpacing(model->verticalSpacing());
    for (int i = 0; i < model->count(); ++i) {
        QLayoutItem *item = model->itemAt(i);
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        model->getItemPosition(i, &row, &column, &rows, &columns);
        if (item->widget())
            copy->addWidget(copies.value(item->widget()), row, column, rows, columns, item->alignment());
        else if (item->layout())
            copy->addLayout(copyLayout(item->layout(), copies), row, column, rows, columns,
                            item->alignment());
        else
            copy->addItem(new QSpacerItem(*item->spacerItem()), row, column, rows, columns,
                          item->alignment());
    }
    return copy;
}

QLayout *copyBox(QBoxLayout *model, const Copies &copies)
{
    auto *copy = new QBoxLayout(model->direction());
    copy->setSpacing(model->spacing());
    for (int i = 0; i < model->count(); ++i) {
        QLayoutItem *item = model->itemAt(i);
        if (item->widget())
            copy->addWidget(copies.value(item->widget()), model->stretch(i), item->alignment());
        else if (item->layout())
            copy->addLayout(copyLayout(item->layout(), copies), model->stretch(i));
        else
            copy->addSpacerItem(new QSpacerItem(*item->spacerItem()));
    }
    return copy;
}

QLayout *copyLayout(QLayout *model, const Copies &copies)
{
    auto *grid = qobject_cast<QGridLayout *>(model);
    QLayout *copy = grid ? copyGrid(grid, copies) : copyBox(static_cast<QBoxLayout *>(model), copies);
    copy->setContentsMargins(model->contentsMargins());
    return copy;
}

void copyLayouts(const Copies &copies)
{
    for (auto copy = copies.cbegin(); copy != copies.cend(); ++copy) {
        QLayout *layout = copy.key()->layout();
        if (layout && !copy.value()->layout())
            copy.value()->setLayout(copyLayout(layout, copies));
    }
}

} // namespace

/* One widget, and those in it that it does not make itself. */
struct BareTree::Part
{
    explicit Part(const QWidget &original)
        : model(original)
        , maker(makerOfPeer(original))
    {
        const std::unique_ptr<QWidget> copy(maker(nullptr));
        const QMetaObject *type = copy->metaObject();
        for (int i = 0; i < type->propertyCount(); ++i) {
            const QMetaProperty property = type->property(i);
            const QVariant value = property.read(&model);
            if (isCopied(property) && !isInherited(model, property.name())
                && value != property.read(copy.get())) {
                property.write(copy.get(), value); // others may follow it
                properties.emplace_back(property, value);
            }
        }
        const auto dynamicNames = model.dynamicPropertyNames();
        for (const QByteArray &name : dynamicNames) {
            if (!name.startsWith("_q_"))
                names.emplace_back(name, model.property(name.constData()));
        }
        if (isWhole(model))
            return;
        const auto children = model.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *child : children)
            parts.emplace_back(*child);
    }

    QWidget *make(QWidget *parent) const
    {
        return maker(parent);
    }

    void fill(QWidget *copy, Copies *copies) const
    {
        copies->insert(&model, copy);
        for (const auto &[property, value] : properties)
            property.write(copy, value);
        for (const auto &[name, value] : names)
            copy->setProperty(name.constData(), value);
        copyContent(model, copy);
        for (const Part &part : parts) {
            QWidget *child = part.make(copy);
            part.fill(child, copies);
            if (part.model.isHidden() && part.model.testAttribute(Qt::WA_WState_ExplicitShowHide))
                child->hide();
            if (auto *stack = qobject_cast<QStackedWidget *>(copy))
                stack->addWidget(child);
        }
    }

    const QWidget &model;
    const Maker maker;
    std::vector<std::pair<QMetaProperty, QVariant>> properties;
    std::vector<std::pair<QByteArray, QVariant>> names;
    std::vector<Part> parts;
};

BareTree::BareTree(const QWidget &model)
    : m_model(model)
    , m_top(std::make_unique<Part>(model))
{
}

BareTree::~BareTree() = default;

std::unique_ptr<QWidget> BareTree::make() const
{
    std::unique_ptr<QWidget> tree(m_top->make(nullptr));
    tree->setWindowFlags(m_model.windowFlags());
    tree->setAttribute(Qt::WA_TranslucentBackground, m_model.testAttribute(Qt::WA_TranslucentBackground));
    Copies copies;
    m_top->fill(tree.get(), &copies);
    copyLayouts(copies);
    tree->resize(m_model.size());
    return tree;
}

} // namespace Tarn::Benchmark
