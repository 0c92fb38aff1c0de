// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef GALLERY_SEPARATORSPAGE_H
#define GALLERY_SEPARATORSPAGE_H

#include "page.h"
#include "texts.h"

#include <QWidget>

class QBoxLayout;
class QFrame;

namespace Gallery {

/*! Horizontal and vertical separator lines of several widths, with and without a style rule. */
class SeparatorsPage : public QWidget
{
    Q_OBJECT

public:
    explicit SeparatorsPage(QWidget *parent = nullptr);
    ~SeparatorsPage() override;

    static Page page();

private:
    QWidget *createGroup(const Text &title, const QString &propertyName);
    QWidget *createHorizontalLines(const QString &propertyName);
    QWidget *createVerticalLines(const QString &propertyName);
    QWidget *createWidthChooser();
    void setChosenWidth(int width);

    QVector<QFrame *> m_chosenHorizontal; // the lines whose width the user chooses
    QVector<QFrame *> m_chosenVertical;
};

} // namespace Gallery

#endif
