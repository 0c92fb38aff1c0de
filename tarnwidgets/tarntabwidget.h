// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_TARNTABWIDGET_H
#define TARN_WIDGETS_TARNTABWIDGET_H

#include "tarntabbar.h"
#include "tarnwidgets_export.h"

#include <QFrame>
#include <memory>

class QStackedWidget;

namespace Tarn::Widgets {

class TarnTabWidgetPrivate;

/*!
 * \ingroup input
 * \brief Pages under a TarnTabBar: tab i shows page i.
 *
 * Use it instead of a QTabWidget where the strip of tabs is to hold other
 * widgets or to have even tabs, or where the last page must not be closed by
 * the user. All that is not described here does what QTabWidget does under the
 * same name.
 *
 * \code
 * auto *tabs = new TarnTabWidget(window);
 * tabs->setTabsClosable(true);
 * tabs->addTab(pumpsPage, tr("Pumps"));
 * tabs->getTabBar()->addRightWidget(menuButton);
 * \endcode
 *
 * The stack owns the pages, as their parent, also those whose tab was removed or
 * closed: the caller deletes or re-uses them. A page that is deleted or given
 * another parent takes its tab along. Tabs are for this widget to add and
 * remove, not for getTabBar().
 *
 * Pages whose class is exactly QWidget have the colour of
 * setStackedWidgetColor(), by a style sheet on the stack; others keep theirs,
 * if their class has Q_OBJECT: without it, it is QWidget to a style sheet.
 * Style sheet rules for QTabBar reach the bar.
 *
 * \note Whatever place a page is inserted at, it is the last one that becomes
 * current.
 */
class TARNWIDGETS_EXPORT TarnTabWidget : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(Tarn::Widgets::TabBarRd::TabBarType tabBarType READ getTabBarType WRITE setTabBarType)
    Q_PROPERTY(bool autoHide READ autoHide WRITE setAutoHide)
    Q_PROPERTY(bool movable READ isMovable WRITE setMovable)
    Q_PROPERTY(bool tabsClosable READ tabsClosable WRITE setTabsClosable)
    Q_PROPERTY(bool usesScrollButtons READ usesScrollButtons WRITE setUsesScrollButtons)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)

public:
    explicit TarnTabWidget(QWidget *parent = nullptr);
    ~TarnTabWidget() override;

    /*!
     * Both are owned by the widget.
     *
     * \note Pages must not be deleted or removed in a slot on the stack's own
     * currentChanged(): during a removal it comes before the page's tab is taken
     * away, and the wrong tab would follow.
     */
    TarnTabBar *getTabBar() const;
    QStackedWidget *getStackWidget() const;

    // Pages

    /*! Inserts \a page, makes the last page current, and returns where the tab is; -1, and nothing, for null.
     */
    int insertTab(int index, QWidget *page, const QString &text);
    int insertTab(int index, QWidget *page, const QIcon &icon, const QString &text);
    int addTab(QWidget *page, const QString &text);
    int addTab(QWidget *page, const QIcon &icon, const QString &text);

    /*!
     * Takes tab and page away, be it the last one. The page is hidden, not deleted.
     *
     * \note While the user drags a tab, removing that one, or another when it is the
     * last, does what it does to a QTabWidget: there may be no current tab until
     * one is chosen.
     */
    void removeTab(int index);

    int count() const;
    QWidget *widget(int index) const;
    int indexOf(QWidget *page) const;
    int currentIndex() const;
    QWidget *currentWidget() const;

    // The frame

    /*! Fixes the size of the whole widget, in pixels. */
    void setWidgetSize(int width, int height);

    /*! White at the start. */
    void setStackedWidgetColor(const QColor &color);

    /*! Sets the stack's style sheet for that colour again, after the application has set another one. */
    void setStackedWidgetBackground();

    /*! The colour's "#" name, as style sheets take it. */
    static QString fromColorToStr(const QColor &color);

    // The bar

    void setTabBarType(TabBarRd::TabBarType type);
    TabBarRd::TabBarType getTabBarType() const;
    void setTabMinWidth(int width);
    int getTabMinWidth() const;

    /*! The bar's greatest width in pixels, until the next resize sets it to the width of this widget. */
    void setTabMaxWidth(int width);
    int getTabMaxWidth() const;

    bool autoHide() const;
    void setAutoHide(bool on);

    /*! The pages follow the tabs that the user moves. */
    bool isMovable() const;
    void setMovable(bool on);

    bool tabsClosable() const;
    void setTabsClosable(bool on);
    bool usesScrollButtons() const;
    void setUsesScrollButtons(bool on);
    Qt::TextElideMode elideMode() const;
    void setElideMode(Qt::TextElideMode mode);
    QSize iconSize() const;
    void setIconSize(const QSize &size);

    // The tabs

    QString tabText(int index) const;

    /*!
     * Also sets the tab's tool tip: the text if it does not fit into the tab as
     * wide as that was before, less 20 pixels where tabs can be closed; else
     * none.
     */
    void setTabText(int index, const QString &text);

    bool isTabEnabled(int index) const;
    void setTabEnabled(int index, bool on);
    QIcon tabIcon(int index) const;
    void setTabIcon(int index, const QIcon &icon);
    QString tabToolTip(int index) const;
    void setTabToolTip(int index, const QString &toolTip);
    QVariant tabData(int index) const;
    void setTabData(int index, const QVariant &data);

public Q_SLOTS:
    void setCurrentIndex(int index);

    /*! A widget that is no page is ignored. */
    void setCurrentWidget(QWidget *page);

    /*!
     * Adds \a page behind the others with its window title as the tab's text, which
     * from then on follows that title. Forms add their pages so. Unlike addTab() it
     * leaves the current page as it is, unless there was none. Null is ignored.
     */
    void addPage(QWidget *page);

    /*! Shows the page at \a index; the bar is not told. Comes by itself when another tab becomes current. */
    void slot_currentShow(int index);

    /*! Closes tab and page at \a index, but never the last one. Comes by itself when the user asks for it. */
    void slot_tabCloseRequested(int index);

Q_SIGNALS:
    void currentChanged(int index);

    /*!
     * The user has asked to close the tab at \a index.
     *
     * \note By now that tab is gone, and \a index may stand for the next one,
     * unless it was the only one.
     */
    void tabCloseRequested(int index);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void creatUi();
    void connectFun();

    const std::unique_ptr<TarnTabWidgetPrivate> d;
};

} // namespace Tarn::Widgets

#endif
