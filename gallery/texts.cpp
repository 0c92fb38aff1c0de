// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "texts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <memory>
#include <utility>

namespace Gallery {

namespace {

class Translation : public QObject
{
    Q_OBJECT

public:
    explicit Translation(QWidget *widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }

    void setFunction(std::function<void()> setTexts)
    {
        m_setTexts = std::move(setTexts);
        m_setTexts();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_setTexts();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_setTexts;
};

class LogLine : public QListWidgetItem
{
public:
    explicit LogLine(Text text)
        : m_text(std::move(text))
    {
    }

    QVariant data(int role) const override
    {
        return role == Qt::DisplayRole ? m_text() : QListWidgetItem::data(role);
    }

private:
    Text m_text;
};

} // namespace

void keepTranslated(QWidget *widget, std::function<void()> setTexts)
{
    auto *translation = widget->findChild<Translation *>(QString(), Qt::FindDirectChildrenOnly);
    if (!translation)
        translation = new Translation(widget);
    translation->setFunction(std::move(setTexts));
}

void showText(QLabel *label, const Text &text)
{
    keepTranslated(label, [=] { label->setText(text()); });
}

void showText(QAbstractButton *button, const Text &text)
{
    keepTranslated(button, [=] { button->setText(text()); });
}

void showText(QGroupBox *group, const Text &title)
{
    keepTranslated(group, [=] { group->setTitle(title()); });
}

void showSample(QLineEdit *field, const Text &text)
{
    const auto sample = std::make_shared<QString>(field->text());
    keepTranslated(field, [=] {
        const QString former = std::exchange(*sample, text());
        if (field->text() == former)
            field->setText(*sample);
    });
}

void setRowTexts(QComboBox *box, const QStringList &texts)
{
    for (int row = 0; row < texts.count(); ++row) {
        if (row == box->count())
            box->addItem(QString());
        box->setItemText(row, texts.at(row));
    }
    // A box that was shown once keeps its size until it gets another policy.
    const QComboBox::SizeAdjustPolicy policy = box->sizeAdjustPolicy();
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContentsOnFirstShow);
    box->setSizeAdjustPolicy(policy);
}

QListWidget *createLogList(const Text &name)
{
    auto *log = new QListWidget;
    keepTranslated(log, [=] {
        log->setAccessibleName(name());
        log->doItemsLayout();
    });
    return log;
}

void addLine(QListWidget *log, const Text &line)
{
    log->addItem(new LogLine(line));
    log->scrollToBottom();
}

} // namespace Gallery

#include "texts.moc"
