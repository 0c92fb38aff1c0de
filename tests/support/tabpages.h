// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_TEST_TABPAGES_H
#define TARN_TEST_TABPAGES_H

#include <QIcon>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <tarnwidgets/tarntabwidget.h>

namespace Tarn::Test {

QIcon redIcon();

/*! Counts how often it comes and goes. */
class Page : public QWidget
{
public:
    explicit Page(const QString &name);

    int shows = 0;
    int hides = 0;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};

/*! A widget on the screen whose pages are named like their tabs. */
struct Tabs
{
    explicit Tabs(int count = 0);

    QPointer<Page> add(const QString &name, int index = -1);
    Page *page(int index) const;
    QString names() const;

    /*! Whether tab i shows page i, and the current page alone is to be seen. */
    bool areInStep() const;

    QWidget *closeButton(int index) const;

    /*! As the user does it, with the mouse. */
    void dragTab(int from, int to) const;

    Widgets::TarnTabWidget widget{nullptr};
};

} // namespace Tarn::Test

#endif
