#pragma once

#include <orv_notification_box.h>
#include <plugin_data.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>

class EventLogModel;
class ParticipantsPage;
class Exercise;
class QTimer;

namespace OrvWidgets {
class OrvBackgroundWidget;
class OrvBaseLayoutWidget;
class OrvDialog;
class TopicInfo;
} // namespace OrvWidgets

// The application: builds the shell and its menu, keeps the exercise, the
// event log and the topic locks, and reacts to the links the library posts.
class DemoController : public QObject
{
    Q_OBJECT
public:
    // Operator rights of this demo; the operator lacks the administrator right.
    enum Right { RightPlan = 0x1, RightRun = 0x2, RightReview = 0x4, RightAdmin = 0x8 };

    explicit DemoController(QObject* parent = nullptr);
    ~DemoController() override;

    static QString loadingText() { return tr("Loading the exercise..."); }

    OrvWidgets::OrvBaseLayoutWidget* shell() const { return m_shell; }
    Exercise* exercise() const { return m_exercise; }
    EventLogModel* eventLog() const { return m_eventLog; }

    // Identifiers of every menu entry the operator can see, in menu order.
    QStringList menuIdentifiers() const;
    // Opens the page or runs the action of a menu entry; false for unknown ones.
    bool openEntry(const QString& identifier);

    // The full-screen background behind the shell (not wanted for screenshots).
    void showBackground();
    // How long the simulated second operator keeps the plan and the server takes to answer.
    void setSimulationDelays(int lockMs, int serverMs);
    bool isPlanHeldByOtherOperator() const { return !m_otherOperator.isEmpty(); }

public Q_SLOTS:
    void showTestNotifications();
    void simulateSecondOperator();
    void releaseSecondOperator();
    void handleLink(const QUrl& url);

Q_SIGNALS:
    // The operator closed the shell.
    void closeRequested();
    void linkHandled(const QUrl& url);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // What a menu entry does: open a page (an instant one is there from the
    // start and cannot be closed), run an action, or separate its group.
    enum class Kind { Page, InstantPage, Action, Separator };
    struct Entry
    {
        const char* identifier;
        const char* text;
        const char* group;
        OrvWidgets::ExercisePart part;
        int states;
        int right;
        const char* icon;
        Kind kind;
        OrvWidgets::LayoutArea area;
    };
    static const QList<Entry>& entries();
    OrvWidgets::PluginData pluginData(const Entry& entry);
    OrvWidgets::OrvDialog* createPage(const QString& identifier);
    void runAction(const QString& identifier);
    void registerMenu();
    void retranslateMenu();
    void updateExerciseData();
    void onStaple(OrvWidgets::OrvDialog* page);
    void onLockRequest(OrvWidgets::OrvDialog* page, const OrvWidgets::TopicInfo& topic);
    // Who holds the exercise plan now (another operator, the running exercise), or empty.
    QString planHolder() const;
    // Locks or unlocks every open set-up page after planHolder().
    void updatePlanLock();
    void notify(const QString& title, const QString& text, OrvWidgets::OrvNotificationBox::MessageType type,
                const QString& identifier = QString());
    void serverRequest(QObject* context, const std::function<void()>& done);

    Exercise* m_exercise = nullptr;
    EventLogModel* m_eventLog = nullptr;
    OrvWidgets::OrvBaseLayoutWidget* m_shell = nullptr;
    QPointer<OrvWidgets::OrvBackgroundWidget> m_background;
    QPointer<ParticipantsPage> m_participantsPage;
    // Pages that asked for a topic, so that a lock reaches them all.
    QHash<QString, QList<QPointer<OrvWidgets::OrvDialog>>> m_topicPages;
    QString m_otherOperator;
    QTimer* m_releaseTimer = nullptr;
    QString m_notes;
    QString m_lessons;
    int m_serverMs = 1500;
    int m_notificationCount = 0;
};
