#pragma once

#include "exercise_data.h"
#include "orv_notification_box.h"
#include "orv_types.h"
#include "orvwidgets_export.h"
#include "plugin_data.h"

#include <idl_types.h>

#include <QList>
#include <QMultiHash>
#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>

class QButtonGroup;
class QPropertyAnimation;
class QTimer;
class QToolButton;

namespace Ui {
class OrvBaseLayoutWidget;
}

namespace OrvWidgets {

class OrvDialog;
class OrvDragIcon;
class OrvTabWidget;
class OrvToolBarArea;
class OrvToolBox;

// The main window content of every application: top bar, navigation column of
// menu buttons per exercise part, five page areas in splitters, notifications.
class ORVWIDGETS_EXPORT OrvBaseLayoutWidget : public QWidget
{
    Q_OBJECT
public:
    // One queued notification.
    struct Message
    {
        QString title;
        QString text;
        OrvNotificationBox::MessageType type = OrvNotificationBox::Info;
        std::function<void(const QString&)> clickedLinkCallback;
        bool closeOnLinkClicked = false;
        QString identifier;
    };

    // exercisePartButtons: the four exercise-part buttons drive the tool box stack.
    OrvBaseLayoutWidget(QWidget* parent, bool exercisePartButtons);
    ~OrvBaseLayoutWidget() override;

    // --- page hosting ---
    Q_INVOKABLE bool addWidget(OrvWidgets::OrvDialog* dialog, const QString& menuGroup, const QString& identifier,
                               OrvWidgets::LayoutArea area, bool closable, bool focus);
    bool addOrReplaceWidget(OrvDialog* dialog, const QString& menuGroup, const QString& identifier,
                            LayoutArea area, bool closable, bool focus);
    OrvDialog* getWidget(const QString& menuGroup, const QString& identifier, LayoutArea area);
    Q_INVOKABLE bool focusTab(const QString& menuGroup, const QString& identifier, OrvWidgets::LayoutArea area);
    Q_INVOKABLE bool isDialogFocused(const OrvWidgets::OrvDialog* dialog) const;
    OrvTabWidget* getTabFromLayoutArea(LayoutArea area) const;

    void setIrreplaceableOnce();
    bool irreplaceableReset();
    bool isIrreplaceable() const;

    void hideVisibleLayouts();
    void resetLayoutVisibility();
    void showWidgets();
    void hideWidgets();
    // True while the dialog area is shown (the inverted name is the interface's).
    bool isWidgetsHidden() const;

    QWidget* getMenu() const;
    OrvToolBarArea* getToolbar() const;
    void setWorkspaceId(const QString& workspaceId);
    void setSecondaryWidget();
    bool isSecondaryWidget() const;
    void initilizationFinished();

    // --- plug-in menu ---
    OrvDragIcon* addMenuAction(const PluginData& data, bool executeCreateInstant);
    bool removeMenuAction(OrvDragIcon* button);
    bool removeMenuAction(const PluginData& data);
    bool removeMenuAction(const QString& identifier);
    void clearMenuActions();
    void executeAction(const QString& identifier);
    void executeCreateInstantFunctions(const PluginData& data);
    const QMap<OrvDragIcon*, PluginData>& mapButtons() const;
    void setToolBarActions(const QList<QString>& identifiers);
    QStringList toolBarActions() const;
    void setFunctionKeys(const QMap<int, QString>& keys);
    QMap<int, QString> functionKeys() const;

    // --- notifications ---
    void showMessage(const QString& title, const QString& text, OrvNotificationBox::MessageType type,
                     const std::function<void(const QString&)>& clickedLinkCallback = {},
                     bool closeOnLinkClicked = false, const QString& identifier = QString());
    void removeQueuedMessage(const QString& identifier);
    bool messageIdentifierExists(const QString& identifier) const;
    void addNotification(QToolButton* button);
    bool notificationExists(const QString& objectName) const;
    OrvNotificationBox* notificationBox() const { return m_notiBox; }

    // --- exercise, session and chrome ---
    void setExerciseData(const ExerciseData& data);
    const ExerciseData& exerciseData() const { return m_exerciseData; }
    void setExerciseTime(qint64 msecsSinceEpoch);
    void setSessionInfo(int domainId, const IDL::PartitionType& partitionType, int partitionId,
                        const QString& workspaceId);
    void setOperatorName(const QString& name, bool showTerminalButton);
    void setProfilePicture(const QPixmap& picture);
    void setAppName(const QString& name);
    void setCustomText(const QString& text);
    const QString customText() const;
    void setTopBarVisible(bool visible);
    bool isTopBarVisible() const;
    void setMenuVisible(bool visible);
    bool isMenuVisible() const;
    void collapseMenu(bool collapse);
    bool isMenuCollapsed() const;
    bool haveUnsavedChanges();
    bool notifyUnsavedChanges();

Q_SIGNALS:
    /*! Emitted when the operator closed the shell and every changed page agreed; the shell
        is hidden. The application ends here with QCoreApplication::exit(): quit() would
        first ask every window to close, and the shell and the background refuse that. */
    void signalClose();
    /*! Emitted when the operator logged out and every changed page agreed. */
    void signalLogout();
    void signalShowOperatorSettings();
    void signalRetranslateActions();
    void signalSwap();
    void signalStapleTopicLockHandler(OrvWidgets::OrvDialog* dialog);
    void signalSuccessfullyPlaced();
    void signalNotifyUnsavedChanges(bool& closeAllowed);

public Q_SLOTS:
    void onMenuEntryClicked();
    void onHideAnimated();
    void onReShowAnimated();
    bool slotClose();
    void slotLogout();
    void slotScreenCountChanged(int count);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void setCurrentTime();
    void slotOperatorMenuClicked();

private:
    bool isDialogFocused(const OrvDialog* dialog, const LayoutArea& area) const;
    bool isDialogFocused(const OrvDialog* dialog, const OrvTabWidget* tab) const;
    int getIndexOfTab(OrvTabWidget* tab);
    void openCollapsedSection(LayoutArea area, const char* logLine);
    void addTouchScroll(QWidget* widget);
    void retranslate();
    void buildDebugMenu();
    void setTopBarImages();
    void installTimeContextMenu(QWidget* label, const std::function<qint64()>& milliseconds);

    OrvDragIcon* createButton(const PluginData& data);
    OrvDragIcon* buttonFor(const QString& identifier) const;
    void runMenuEntry(OrvDragIcon* button);
    void executePluginData(const PluginData& data);
    OrvToolBox* getToolBox(const ExercisePart& part) const;
    QWidget* getExercisePartButton(const ExercisePart& part) const;
    QWidget* findGroupPage(OrvToolBox* box, const QString& menuGroup) const;
    void checkMenuGroup(const QString& menuGroup, const ExercisePart& part);
    void checkExercisePartButtonVisibility();
    void applyExerciseStateRestricition();
    void showNextQueuedMessage();
    void settleFirstShow();
    void scheduleToolBarRestore();

    ExerciseData m_exerciseData;
    QMap<OrvDragIcon*, PluginData> m_mapButtons;
    // The same buttons by identifier, so that lookups do not walk the whole menu.
    QMultiHash<QString, OrvDragIcon*> m_buttonsByIdentifier;
    QList<int> m_mainSplitterSizes;
    QList<int> m_menuSplitterSizes;
    bool m_isHidden = false;
    QPropertyAnimation* m_currentAnimation = nullptr;
    Ui::OrvBaseLayoutWidget* m_ui = nullptr;
    IDL::PartitionType m_partitionType = IDL::Global;
    int m_domainId = -1;
    int m_partitionId = -1;
    QString m_operatorName;
    bool m_firstShow = true;
    bool m_showTerminalButton = false;
    qint64 m_exerciseTime = 0;
    QTimer* m_setCurrentTimeTimer = nullptr;
    bool m_irreplaceableOnce = false;
    QButtonGroup* m_bg = nullptr;
    QString m_workspaceId;
    int m_screenCount = 1;
    bool m_menuCollapsed = true;
    // Guarded pointers keep their order even if an area vanished, unlike map keys.
    QVector<QPair<QPointer<OrvTabWidget>, bool>> m_oldLayoutVisibilityStates;
    OrvNotificationBox* m_notiBox = nullptr;
    QStringList m_notFoundYet;
    bool m_isSecondaryWidget = false;
    // The operator's stored tool bar is restored once, after the first entries exist.
    bool m_toolBarRestoreScheduled = false;
    QVector<Message> m_currentMessage;
    QVector<Message> m_messageQueue;
};

} // namespace OrvWidgets
