// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#ifndef TARN_WIDGETS_TARNTABBAR_H
#define TARN_WIDGETS_TARNTABBAR_H

#include "tarnwidgets_export.h"

#include <QFrame>
#include <QTabBar>
#include <memory>

namespace Tarn::Widgets {

class TabBarRdPrivate;
class TarnTabBarPrivate;

/*!
 * \ingroup input
 * \brief A QTabBar whose tabs can share its whole width evenly.
 *
 * Use it for a bare bar; TarnTabBar puts one into a frame with room for other
 * widgets. Style sheet rules for QTabBar reach it unchanged. A tab that is dragged
 * is let go when any tab is removed.
 *
 * \code
 * auto *bar = new TabBarRd(page);
 * bar->setTabBarType(TabBarRd::Even);
 * \endcode
 */
class TARNWIDGETS_EXPORT TabBarRd : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(TabBarType tabBarType READ getTabBarType WRITE setTabBarType)

public:
    /*! How wide the tabs are. */
    enum TabBarType : int {
        Normal, //!< as QTabBar has them
        Even, //!< all alike; the last takes the pixels that do not divide
    };
    Q_ENUM(TabBarType)

    explicit TabBarRd(QWidget *parent = nullptr);
    ~TabBarRd() override;

    /*!
     * Normal at the start; takes effect at once.
     *
     * \note Even tabs are as high as the bar is already, and a bar that was never
     * laid out is 30 pixels high: where the style needs more, give it a minimum
     * height.
     */
    void setTabBarType(TabBarType type);
    TabBarType getTabBarType() const;

    /*!
     * The least width in pixels of the bar, not of a tab: QWidget::setMinimumWidth().
     * getTabMinWidth() is what was set here last, 0 at the start.
     */
    void setTabMinWidth(int width);
    int getTabMinWidth() const;

    /*! The greatest width of the bar, likewise. At the start there is none, and getTabMaxWidth() is 0. */
    void setTabMaxWidth(int width);
    int getTabMaxWidth() const;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void tabRemoved(int index) override;

private:
    friend class TarnTabBar;

    void letGo();

    const std::unique_ptr<TabBarRdPrivate> d;
};

/*!
 * \ingroup input
 * \brief A tab bar with room for other widgets to its left, right behind its tabs, and at the far right.
 *
 * Use it instead of a QTabBar where buttons belong into the strip of tabs, such
 * as one that adds a tab. TarnTabWidget adds the pages. All that is not
 * described here does what QTabBar does under the same name.
 *
 * \code
 * auto *bar = new TarnTabBar(window);
 * bar->addTab(tr("Pumps"));
 * bar->addCenterWidget(addButton);
 * connect(bar, &TarnTabBar::currentChanged, window, &Window::showPage);
 * \endcode
 *
 * The frame owns the bar and the widgets that are added, as their parent. Style
 * sheet rules for QTabBar reach the bar inside; the frame has no selector of its
 * own but its class, Tarn--Widgets--TarnTabBar.
 *
 * \note Whatever place a tab is inserted at, it is the last tab that becomes
 * current.
 */
class TARNWIDGETS_EXPORT TarnTabBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Tarn::Widgets::TabBarRd::TabBarType tabBarType READ getTabBarType WRITE setTabBarType)
    Q_PROPERTY(bool autoHide READ autoHide WRITE setAutoHide)
    Q_PROPERTY(bool expanding READ expanding WRITE setExpanding)
    Q_PROPERTY(bool movable READ isMovable WRITE setMovable)
    Q_PROPERTY(bool tabsClosable READ tabsClosable WRITE setTabsClosable)
    Q_PROPERTY(bool usesScrollButtons READ usesScrollButtons WRITE setUsesScrollButtons)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)

public:
    explicit TarnTabBar(QWidget *parent = nullptr);
    ~TarnTabBar() override;

    /*! The bar inside; owned by the frame. */
    QTabBar *getTabBar() const;

    // The frame

    /*! Fixes the frame's size, in pixels. */
    void setWidgetFixedSize(int width, int height);

    /*! A colour for the application's own use: nothing is painted with it. Invalid at the start. */
    void setWidgetColor(const QColor &color);
    QColor widgetColor() const;

    /*! The colour's "#" name, as style sheets take it. */
    static QString fromColorToStr(const QColor &color);

    /*! Adds \a widget behind the others in that area, at the lower right of the room it gets. Null is
     * ignored. */
    void addLeftWidget(QWidget *widget);
    void addRightWidget(QWidget *widget);

    /*! The same for the one widget behind the tabs. While there is one, another is ignored and stays the
     * caller's. */
    void addCenterWidget(QWidget *widget);

    /*! Centres the three areas in the height of the frame, instead of giving them all of it. */
    void setRightLeftVCenter();

    /*! The pixels between the widgets of that area; at the start none. */
    void setLeftHLayoutSpace(int spacing);
    void setRightHLayoutSpace(int spacing);
    void setCenterHLayoutSpace(int spacing);

    // The bar

    /*!
     * With Even the bar takes all the width that the three areas leave, and goes
     * on doing so with Normal afterwards.
     */
    void setTabBarType(TabBarRd::TabBarType type);
    TabBarRd::TabBarType getTabBarType() const;

    /*! As TabBarRd::setTabMinWidth(); Qt warns about a negative width. */
    void setTabMinWidth(int width);
    int getTabMinWidth() const;

    /*! As TabBarRd::setTabMaxWidth(); a negative width is ignored. */
    void setTabMaxWidth(int width);
    int getTabMaxWidth() const;

    bool expanding() const;
    void setExpanding(bool on);
    bool autoHide() const;
    void setAutoHide(bool on);
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

    /*! Inserts a tab, makes the last tab current, and returns where the new one is. */
    int insertTab(int index, const QString &text);
    int insertTab(int index, const QIcon &icon, const QString &text);
    int addTab(const QString &text);
    int addTab(const QIcon &icon, const QString &text);
    void removeTab(int index);
    void moveTab(int from, int to);
    int count() const;

    int currentIndex() const;
    void setCurrentIndex(int index);

    bool isTabEnabled(int index) const;
    void setTabEnabled(int index, bool on);
    QString tabText(int index) const;
    void setTabText(int index, const QString &text);
    QColor tabTextColor(int index) const;
    void setTabTextColor(int index, const QColor &color); //!< Of no effect where a style sheet colours tabs.
    QIcon tabIcon(int index) const;
    void setTabIcon(int index, const QIcon &icon);
    QString tabToolTip(int index) const;
    void setTabToolTip(int index, const QString &toolTip);
    QVariant tabData(int index) const;
    void setTabData(int index, const QVariant &data);
    QWidget *tabButton(int index, QTabBar::ButtonPosition position) const;
    void setTabButton(int index, QTabBar::ButtonPosition position, QWidget *widget);

    /*! In the coordinates of the bar inside. */
    QRect tabRect(int index) const;
    int tabAt(const QPoint &position) const;

Q_SIGNALS:
    void currentChanged(int index);
    void tabCloseRequested(int index);

private Q_SLOTS:
    void slot_currIndexChanged(int index);
    void slot_tabClosed(int index);

private:
    void initUi();

    const std::unique_ptr<TarnTabBarPrivate> d;
};

} // namespace Tarn::Widgets

#endif
