#pragma once

#include "orv_message_dialog.h"
#include "orv_types.h"
#include "orvwidgets_export.h"

#include <QMetaType>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace Dax {
class Logger;
}

namespace OrvWidgets {

class OrvBaseLayoutWidget;
class OrvDialogButtonBox;
class OrvDialogHelper;
class UiRequirementList;

// The data topic a page is bound to, with its lock state.
class ORVWIDGETS_EXPORT TopicInfo
{
public:
    const QString& topicName() const { return m_topicName; }
    int entityId() const { return m_entityId; }
    bool isLocked() const { return m_locked; }
    bool isValid() const { return m_valid; }

    void setTopicName(const QString& topicName) { m_topicName = topicName; }
    void setEntity(int entityId) { m_entityId = entityId; }
    void setLocked(bool locked) { m_locked = locked; }
    // There is no way back to invalid.
    void setValid() { m_valid = true; }

private:
    QString m_topicName;
    int m_entityId = 0;
    bool m_locked = false;
    bool m_valid = false;
};

// The translucent grey veil that holds a page's overlay widget.
class ORVWIDGETS_EXPORT OverlayContainer : public QWidget
{
    Q_OBJECT
public:
    explicit OverlayContainer(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// Base class of every page an application hosts in the shell: change tracking,
// topic locking, read-only display, requirements and the standard button box.
class ORVWIDGETS_EXPORT OrvDialog : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool unchangeable READ unchangeable WRITE setUnchangeable)
    friend class OrvTabWidget; // calls aboutToClose() of the pages it closes
public:
    // The parent is accepted but not used: the page always lives in the scroll
    // area of its own frame.
    explicit OrvDialog(QWidget* parent = nullptr, ButtonCombination buttons = OkApplyCancel, bool closable = true);
    ~OrvDialog() override;

    // Number of pages alive in the process.
    static int objectCount();

    OrvDialogHelper* getHelper() const;
    bool hasUnsavedChanges() const;
    void closeRequest();

    void setUnchangeable(bool unchangeable);
    bool unchangeable() const;

    bool addDialog(OrvDialog* dialog, const QString& identifier, const QString& title, const LayoutArea& area,
                   bool closable, bool focus);
    bool addDialogFixed(OrvDialog* dialog, const char* identifier, const QString& title, const LayoutArea& area,
                        bool closable, bool focus);
    bool focusDialog(const QString& menuGroup, const QString& identifier, const LayoutArea& area);
    bool amIFocused();
    void setBaseLayoutWidget(OrvBaseLayoutWidget* baseLayoutWidget);

    void __unchange__();

    void setClosable(bool closable);
    bool isClosable() const;
    void setMenuGroup(const QString& menuGroup);
    const QString& menuGroup() const;
    void setIdentifier(const QString& identifier);
    const QString& identifier() const;

    void setOverlay(QWidget* widget);
    void unsetOverlay();

    void setMinWidthForWidgetHelper(QWidget* widget);
    // The undecorated title (no change bullet, no read-only suffix).
    QString windowTitle() const { return m_title; }
    void setWindowTitle(const QString& title);

    void tryLockTopicNew();
    virtual void tryLockTopicNew(const QString& topicName, int entityId);
    void triggerTopicLock();
    const TopicInfo& topicInfo() const { return m_topicInfo; }
    const QString& topicLockedBy() const { return m_topicLockedBy; }

    void setOnlineHelpFilename(const QString& fileName);
    void setCurrentlyBlocking(bool blocking);

    // Every page sets its texts here, its title through translate().
    virtual void retranslate() = 0;

Q_SIGNALS:
    void startMainSelect(OrvWidgets::LayoutArea area);
    void endMainSelect(OrvWidgets::LayoutArea area);
    void signalChangesMade();
    void signalHide(QObject* object);
    void signalChangesReset();
    void signalFocused();
    void visibilityChanged(bool visible);
    void signalLockTopic(const OrvWidgets::TopicInfo& topicInfo);
    void signalShowOnlineHelp(const QString& fileName);

public Q_SLOTS:
    void slotChangesMade();
    void slotHide();
    void slotLock(const QString& lockedBy);
    void slotUnlock();

protected:
    void translate(const QString& title);
    OrvBaseLayoutWidget* baseLayoutWidget() const;
    void setNoTopicLock();
    OrvMessageDialog::Button askApplyDiscardCancel();

    virtual void aboutToClose() {}
    virtual void tableColumnOrganiserSetting() {}
    virtual void dialogCanceled() {}
    virtual void lock();
    virtual void unlock();
    virtual bool apply() { return true; }

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    OrvDialogButtonBox* m_buttonBox = nullptr;
    UiRequirementList* m_uiRequirements = nullptr;

private Q_SLOTS:
    void slotApply();
    void slotOkay();
    void slotClose();
    void onReadOnlyButtonClicked();

private:
    friend class OrvDialogHelper;

    void buildDebugMenu();
    void showButtonBoxButton();
    void wireChangeSignals();
    void updateWindowTitle();
    void resetChanges();
    void setStandardButtonsEnabled(bool enabled);
    void emitShowOnlineHelp();
    bool _apply();
    void _discard();
    void _close();
    void _hide();
    void tryLockTopic();
    void initTopicLockHandler(const QString& topicName, int entityId);
    QString logPrefix(const char* operation) const;

    bool m_changesMade = false;
    bool m_currentlyBlocking = false;
    bool m_firstShow = true;
    // Guarded as QWidget: the shell's class is not known here (see the .cpp).
    QPointer<QWidget> m_baseLayoutWidget;
    bool m_isClosable = true;
    TopicInfo m_topicInfo;
    QString m_topicLockedBy;
    bool m_noLockTopic = false;
    bool m_unchangeableDialog = false;
    QPointer<OrvDialogHelper> m_dialogHelper;
    Dax::Logger& m_logger;
    QString m_title;
    QString m_onlineHelpFileName;
    QString m_menuGroup;
    QString m_identifier;
    QPointer<OverlayContainer> m_overlayContainer;
    QPointer<QWidget> m_overlayWidget;
    // Close reads "Cancel" for the combinations that apply.
    bool m_closeMeansCancel = false;
    // Built as CloseOnly: stays unchangeable through a topic unlock.
    bool m_closeOnly = false;

    static int s_object_count;
};

} // namespace OrvWidgets

Q_DECLARE_METATYPE(OrvWidgets::TopicInfo)
