#pragma once

#include "orvwidgets_export.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QColor>
#include <QLineF>
#include <QMap>
#include <QPointer>
#include <QPalette>
#include <QPoint>
#include <QRectF>
#include <QTabBar>
#include <QTabWidget>

namespace OrvWidgets {

class OrvDialog;

// The drawn close button at the right of every tab: a separator line and a
// cross; only a release on the cross closes.
class ORVWIDGETS_EXPORT CloseButton : public QAbstractButton
{
    Q_OBJECT
public:
    CloseButton();
    ~CloseButton() override;

    void setFontColor(const QColor& color);
    QColor fontColor() const { return m_fontColor; }
    QLineF line() const;
    QRectF cross() const;

    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_fontColor;
    bool m_isPressed = false;
};

// Tab bar of every OrvTabWidget: close buttons coloured from the tab style and,
// on inner (per menu group) bars, a "Save as image" context menu.
class ORVWIDGETS_EXPORT OrvTabBar : public QTabBar
{
    Q_OBJECT
public:
    OrvTabBar(bool secondary, QWidget* parent);
    ~OrvTabBar() override;

    bool isSecondary() const { return m_secondary; }

public Q_SLOTS:
    void updateCloseButtonColors(int newIndex = -1);
    void _internal_closeTab();

protected Q_SLOTS:
    void onCustomContextMenuRequested(const QPoint& pos);
    void onSaveCurrentWidgetAsImage(const QPoint& pos);

private:
    bool m_secondary;
};

// Holds the pages of one shell area as tabs, found by menu group and identifier,
// optionally grouped into inner tab widgets per menu group.
class ORVWIDGETS_EXPORT OrvTabWidget : public QTabWidget
{
    Q_OBJECT
public:
    OrvTabWidget(QWidget* parent, bool isSecondary);
    ~OrvTabWidget() override;

    bool focusTab(const QString& menuGroup, const QString& identifier);
    QWidget* getWidget(const QString& menuGroup, const QString& identifier);
    void setSubTabsVisible(bool on);
    bool hasSubTabs() const { return m_hasSubTabs; }
    bool isSecondary() const { return m_isSecondary; }
    bool hasUnsavedChanges(OrvTabWidget* tabWidget);
    void clearAll();
    void aboutToClose();
    void setActuatorTabStyle(bool on);
    OrvTabBar* tabBar() const;
    void setTabBar(OrvTabBar* bar);

Q_SIGNALS:
    void signalCheckTabBarVisibility();

public Q_SLOTS:
    void addTab(const QString& menuGroup, const QString& identifier, QWidget* widget, bool setClosable,
                bool focusNewTab);
    bool removeWidget(QWidget* widget);
    void onRemoveTab(QObject* object);
    void onCheckTabBarVisibility();
    void slotTabCloseRequested(int index);
    void slotCurrentChanged(int newIdx);
    void slotMaximizeButtonClicked();

protected:
    void tabInserted(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void slotWindowTitleChanged(const QString& title);
    void onWidgetDestroyed(QObject* object);

private:
    void addWidget(QString key, QWidget* widget, bool closable, bool focus);
    QWidget* getWidget(const QString& key) const;
    bool focusWidget(const QString& key);
    void closeRequestTabWidget(OrvTabWidget* tabWidget);
    static OrvDialog* dialogOf(QWidget* widget);
    static QString joinedKey(const QString& menuGroup, const QString& identifier);
    void switchPageUpdates(int current);

    QPoint startPos;
    OrvTabBar* m_tabbar = nullptr;
    QPalette m_palette;
    QMap<QString, QWidget*> m_tabMap;
    bool m_hasSubTabs = false;
    bool m_isSecondary = false;
    QByteArray m_mainSplitterState;
    // The one page whose updates are on; the others are paused (see switchPageUpdates).
    QPointer<QWidget> m_updatingPage;
};

} // namespace OrvWidgets
