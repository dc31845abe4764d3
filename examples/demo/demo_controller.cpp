#include "demo_controller.h"

#include "event_log_model.h"
#include "exercise.h"
#include "pages/event_log_page.h"
#include "pages/exercise_control_page.h"
#include "pages/exercise_setup_page.h"
#include "pages/participants_page.h"
#include "pages/settings_page.h"

#include <dtg.h>
#include <idl_types.h>
#include <orv_background_widget.h>
#include <orv_base_layout_widget.h>
#include <orv_column_filter_proxy_model.h>
#include <orv_drag_icon.h>
#include <orv_events.h>
#include <orv_session_data.h>
#include <orv_text_edit_dialog.h>
#include <orv_wait_dialog.h>

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include <memory>

using namespace OrvWidgets;

namespace {

constexpr int kParticipants = 100000;
constexpr int kPlanEditable = ExerciseState::eCreated | ExerciseState::eStopped;
constexpr int kRunning = ExerciseState::eStarted | ExerciseState::ePaused;
constexpr int kAfterStart = kRunning | ExerciseState::eStopped;
constexpr int kAll = ExerciseState::eAll;

QString trc(const char* text)
{
    return QCoreApplication::translate("DemoController", text);
}

// A round picture with the operator's initials, drawn at the screen's pixel ratio.
QPixmap profilePicture(const QString& initials, qreal ratio)
{
    const int side = 64;
    QPixmap pixmap(QSize(side, side) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x2f, 0x5d, 0x8a));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(0, 0, side, side));
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(side * 2 / 5);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, initials);
    return pixmap;
}

} // namespace

const QList<DemoController::Entry>& DemoController::entries()
{
    // Texts are translated when shown; the identifiers never change.
    static const QList<Entry> list{
        {"plan.setup", QT_TRANSLATE_NOOP("DemoController", "Exercise setup"),
         QT_TRANSLATE_NOOP("DemoController", "Exercise"), ePlanning, kPlanEditable, RightPlan, "setup", Kind::Page,
         eMainTab},
        {"plan.participants", QT_TRANSLATE_NOOP("DemoController", "Participants"),
         QT_TRANSLATE_NOOP("DemoController", "Exercise"), ePlanning, kAll, RightPlan, "participants", Kind::Page,
         eMainTab},
        {"plan.separator", nullptr, QT_TRANSLATE_NOOP("DemoController", "Exercise"), ePlanning, kAll, 0, nullptr,
         Kind::Separator, eDialogTab},
        {"plan.notes", QT_TRANSLATE_NOOP("DemoController", "Exercise notes"),
         QT_TRANSLATE_NOOP("DemoController", "Exercise"), ePlanning, kAll, RightPlan, "notes", Kind::Page, eDialogTab},
        {"plan.check", QT_TRANSLATE_NOOP("DemoController", "Check plan data"),
         QT_TRANSLATE_NOOP("DemoController", "Data"), ePlanning, kPlanEditable, RightPlan, "check", Kind::Action,
         eDialogTab},
        {"plan.import", QT_TRANSLATE_NOOP("DemoController", "Import order of battle"),
         QT_TRANSLATE_NOOP("DemoController", "Data"), ePlanning, kPlanEditable, RightAdmin, "import", Kind::Page,
         eDialogTab},
        {"run.control", QT_TRANSLATE_NOOP("DemoController", "Exercise control"),
         QT_TRANSLATE_NOOP("DemoController", "Control"), eExecution, kAll, RightRun, "control", Kind::InstantPage,
         eInfoTab},
        {"run.status", QT_TRANSLATE_NOOP("DemoController", "Server status"),
         QT_TRANSLATE_NOOP("DemoController", "Control"), eExecution, kRunning, RightRun, "status", Kind::Action,
         eDialogTab},
        {"run.log", QT_TRANSLATE_NOOP("DemoController", "Event log"), QT_TRANSLATE_NOOP("DemoController", "Monitoring"),
         eExecution, kAfterStart, RightRun, "log", Kind::Page, eDialogTab},
        {"review.report", QT_TRANSLATE_NOOP("DemoController", "Exercise report"),
         QT_TRANSLATE_NOOP("DemoController", "Review"), eAfterAction, kAll, RightReview, "report", Kind::Action,
         eDialogTab},
        {"review.lessons", QT_TRANSLATE_NOOP("DemoController", "Lessons learned"),
         QT_TRANSLATE_NOOP("DemoController", "Review"), eAfterAction, ExerciseState::eStopped, RightReview, "lessons",
         Kind::Page, eDialogTab},
        {"tools.settings", QT_TRANSLATE_NOOP("DemoController", "Settings"),
         QT_TRANSLATE_NOOP("DemoController", "Tools"), eSpecial, kAll, 0, "settings", Kind::Page, eDialogTab},
        {"tools.notify", QT_TRANSLATE_NOOP("DemoController", "Test notifications"),
         QT_TRANSLATE_NOOP("DemoController", "Tools"), eSpecial, kAll, 0, "notify", Kind::Action, eDialogTab},
        {"tools.lock", QT_TRANSLATE_NOOP("DemoController", "Second operator"),
         QT_TRANSLATE_NOOP("DemoController", "Tools"), eSpecial, kAll, 0, "lock", Kind::Action, eDialogTab},
    };
    return list;
}

DemoController::DemoController(QObject* parent)
    : QObject(parent)
    , m_exercise(new Exercise(this))
    , m_eventLog(new EventLogModel(this))
    , m_releaseTimer(new QTimer(this))
{
    // The session's operator may plan, run and review, but not administrate.
    OrvSessionData::OrvSessionData::getInstance()->setOperatorRights(RightPlan | RightRun | RightReview);

    m_shell = new OrvBaseLayoutWidget(nullptr, true);
    m_shell->setAttribute(Qt::WA_DeleteOnClose, false);
    m_shell->setWindowIcon(QIcon(QStringLiteral(":/project/logo.png")));
    m_shell->setAppName(tr("Exercise Control"));
    m_shell->setOperatorName(QStringLiteral("Alpha"), false);
    m_shell->setProfilePicture(profilePicture(QStringLiteral("AL"), m_shell->devicePixelRatioF()));
    m_shell->setSessionInfo(7, IDL::Global, 1, QStringLiteral("WS-01"));
    m_shell->setCustomText(tr("Training"));

    m_releaseTimer->setSingleShot(true);
    m_releaseTimer->setInterval(8000);
    connect(m_releaseTimer, &QTimer::timeout, this, &DemoController::releaseSecondOperator);

    connect(m_exercise, &Exercise::stateChanged, this, [this](Exercise::State state) {
        updateExerciseData();
        updatePlanLock();
        m_eventLog->add(EventLogModel::Exercise, tr("Exercise state: %1").arg(Exercise::stateText(state)));
    });
    connect(m_exercise, &Exercise::phaseChanged, this, &DemoController::updateExerciseData);
    connect(m_exercise, &Exercise::planChanged, this, [this] {
        updateExerciseData();
        m_eventLog->add(EventLogModel::Operator, tr("Exercise plan changed: %1").arg(m_exercise->name()));
    });
    connect(m_exercise, &Exercise::exerciseTimeChanged, m_shell, &OrvBaseLayoutWidget::setExerciseTime);

    connect(m_shell, &OrvBaseLayoutWidget::signalStapleTopicLockHandler, this, &DemoController::onStaple);
    connect(m_shell, &OrvBaseLayoutWidget::signalRetranslateActions, this, &DemoController::retranslateMenu);
    connect(m_shell, &OrvBaseLayoutWidget::signalClose, this, &DemoController::closeRequested);
    connect(m_shell, &OrvBaseLayoutWidget::signalLogout, this,
            [this] { notify(tr("Logout"), tr("Log out at the session manager."), OrvNotificationBox::Info); });

    // The library posts its links to the application object.
    qApp->installEventFilter(this);

    updateExerciseData();
    registerMenu();
    m_eventLog->add(EventLogModel::System, tr("Session started, operator Alpha at WS-01"));
}

DemoController::~DemoController()
{
    qApp->removeEventFilter(this);
    delete m_background;
    // Pages first, while the exercise and the log they show still exist.
    delete m_shell;
}

void DemoController::setSimulationDelays(int lockMs, int serverMs)
{
    m_releaseTimer->setInterval(qMax(0, lockMs));
    m_serverMs = qMax(0, serverMs);
}

QStringList DemoController::menuIdentifiers() const
{
    QStringList identifiers;
    for (auto it = m_shell->mapButtons().cbegin(); it != m_shell->mapButtons().cend(); ++it) {
        if (it.key()->buttonVisible())
            identifiers << it.value().identifier;
    }
    return identifiers;
}

PluginData DemoController::pluginData(const Entry& entry)
{
    const QString identifier = QLatin1String(entry.identifier);
    if (entry.kind == Kind::Separator)
        return PluginData::createGroup(trc(entry.group), identifier, entry.part);
    PluginData data(trc(entry.text), trc(entry.group), identifier, PluginData::createWidgetFuncPtr(), entry.right,
                    entry.part, ExerciseStates(entry.states));
    data.tooltip = trc(entry.text);
    data.layoutArea = entry.area;
    if (entry.icon)
        data.menuIcon = QIcon(QStringLiteral(":/demo/icons/%1.svg").arg(QLatin1String(entry.icon)));
    if (entry.kind == Kind::Action) {
        data.directFunc = [this, identifier](const PluginData&) { runAction(identifier); };
        return data;
    }
    data.createWidgetFunc = [this, identifier](QWidget*) { return createPage(identifier); };
    if (entry.kind == Kind::InstantPage) {
        data.createInstant = CreateInstantAndAddAction;
        data.closable = false;
    }
    return data;
}

void DemoController::registerMenu()
{
    for (const Entry& entry : entries())
        m_shell->addMenuAction(pluginData(entry), true);
    m_shell->setToolBarActions(
        {QStringLiteral("run.control"), QStringLiteral("plan.participants"), QStringLiteral("tools.notify")});
    m_shell->setFunctionKeys({{Qt::Key_F5, QStringLiteral("run.control")},
                              {Qt::Key_F6, QStringLiteral("plan.participants")},
                              {Qt::Key_F7, QStringLiteral("tools.notify")}});
}

void DemoController::retranslateMenu()
{
    // Same identifiers: the shell updates texts in place.
    for (const Entry& entry : entries()) {
        if (entry.kind != Kind::Separator &&
            OrvSessionData::OrvSessionData::getInstance()->hasOperatorRight(entry.right))
            m_shell->addMenuAction(pluginData(entry), false);
    }
    m_shell->setAppName(tr("Exercise Control"));
    m_shell->setCustomText(tr("Training"));
}

OrvDialog* DemoController::createPage(const QString& identifier)
{
    if (identifier == QLatin1String("plan.setup"))
        return new ExerciseSetupPage(m_exercise);
    if (identifier == QLatin1String("plan.participants")) {
        auto* page = new ParticipantsPage(kParticipants);
        m_participantsPage = page;
        return page;
    }
    if (identifier == QLatin1String("run.control"))
        return new ExerciseControlPage(m_exercise);
    if (identifier == QLatin1String("run.log")) {
        return new EventLogPage(m_eventLog,
                                [this](QObject* context, std::function<void()> done) { serverRequest(context, done); });
    }
    if (identifier == QLatin1String("tools.settings")) {
        auto* page = new SettingsPage;
        connect(page, &SettingsPage::settingsApplied, this,
                [this](const QString& summary) { m_eventLog->add(EventLogModel::Operator, summary); });
        return page;
    }
    if (identifier == QLatin1String("plan.notes") || identifier == QLatin1String("review.lessons")) {
        const bool notes = identifier == QLatin1String("plan.notes");
        auto* page = new OrvTextEditDialog;
        page->setHtml(notes ? m_notes : m_lessons);
        connect(page, &OrvTextEditDialog::signalTextApplied, this, [this, notes](const QString& html) {
            (notes ? m_notes : m_lessons) = html;
            m_eventLog->add(EventLogModel::Operator, notes ? tr("Exercise notes saved") : tr("Lessons learned saved"));
        });
        return page;
    }
    return nullptr;
}

bool DemoController::openEntry(const QString& identifier)
{
    for (auto it = m_shell->mapButtons().cbegin(); it != m_shell->mapButtons().cend(); ++it) {
        if (it.value().identifier == identifier) {
            m_shell->executeAction(identifier);
            return true;
        }
    }
    return false;
}

void DemoController::runAction(const QString& identifier)
{
    if (identifier == QLatin1String("tools.notify")) {
        showTestNotifications();
    } else if (identifier == QLatin1String("tools.lock")) {
        simulateSecondOperator();
    } else if (identifier == QLatin1String("run.status")) {
        // No page to cover: the wait is shown over the whole application.
        auto wait = std::make_shared<std::unique_ptr<Waiter>>(
            std::make_unique<Waiter>(tr("Waiting for the exercise server...")));
        serverRequest(this, [wait] { wait->reset(); });
    } else if (identifier == QLatin1String("plan.check")) {
        const bool complete = !m_exercise->name().isEmpty() && !m_exercise->phases().isEmpty() &&
                              m_exercise->plannedEnd() > m_exercise->plannedStart();
        notify(tr("Plan check"),
               complete ? tr("The plan of <b>%1</b> is complete.").arg(m_exercise->name().toHtmlEscaped())
                        : tr("The plan is incomplete. <a href='orv://OpenPage/plan.setup'>Open it</a>"),
               complete ? OrvNotificationBox::Success : OrvNotificationBox::Warning);
    } else if (identifier == QLatin1String("review.report")) {
        notify(tr("Exercise report"),
               tr("%1: %2, %3 events. <a href='orv://OpenPage/run.log'>Event log</a>")
                   .arg(m_exercise->name().toHtmlEscaped(), Exercise::stateText(m_exercise->state()))
                   .arg(m_eventLog->rowCount()),
               OrvNotificationBox::Info);
    }
}

void DemoController::serverRequest(QObject* context, const std::function<void()>& done)
{
    m_eventLog->add(EventLogModel::Server, tr("Status requested from the exercise server"));
    QTimer::singleShot(m_serverMs, context, [this, done] {
        done();
        m_eventLog->add(EventLogModel::Server, tr("Exercise server: all %1 participants reporting").arg(kParticipants));
        notify(tr("Exercise server"), tr("All participants are reporting."), OrvNotificationBox::Success);
    });
}

void DemoController::updateExerciseData()
{
    ExerciseData data;
    data.exName = m_exercise->name();
    data.exDescription = m_exercise->description();
    data.phId = m_exercise->currentPhase() + 1;
    data.phName = m_exercise->currentPhaseName();
    data.exState = m_exercise->state();
    data.exStateString = Exercise::stateText(data.exState);
    data.exStateCol = Exercise::stateColour(data.exState);
    data.partitionType = tr("Partition %1").arg(1);
    m_shell->setExerciseData(data);
    m_shell->setExerciseTime(m_exercise->exerciseTime());
}

// The notification box has a fixed size and does not wrap: its texts stay short.
void DemoController::notify(const QString& title, const QString& text, OrvNotificationBox::MessageType type,
                            const QString& identifier)
{
    m_shell->showMessage(title, text, type, {}, true,
                         identifier.isEmpty() ? QStringLiteral("demo-%1").arg(++m_notificationCount) : identifier);
}

void DemoController::showTestNotifications()
{
    notify(tr("Information"), tr("Participant 19 has joined. <a href='orv://ParticipantInfo/19'>Show</a>"),
           OrvNotificationBox::Info, QStringLiteral("test-info"));
    notify(tr("Success"), tr("Plan sent to all work stations."), OrvNotificationBox::Success,
           QStringLiteral("test-success"));
    notify(tr("Warning"), tr("Participant 42: low supplies. <a href='orv://ParticipantInfo/42'>Show</a>"),
           OrvNotificationBox::Warning, QStringLiteral("test-warning"));
    notify(tr("Error"), tr("WS-03 does not answer. <a href='orv://OpenPage/run.log'>Event log</a>"),
           OrvNotificationBox::Error, QStringLiteral("test-error"));
}

void DemoController::onStaple(OrvDialog* page)
{
    connect(page, &OrvDialog::signalLockTopic, this,
            [this, page](const TopicInfo& topic) { onLockRequest(page, topic); });
}

void DemoController::onLockRequest(OrvDialog* page, const TopicInfo& topic)
{
    auto& pages = m_topicPages[topic.topicName()];
    pages.removeAll(nullptr);
    if (!pages.contains(page))
        pages.append(page);
    if (topic.topicName() == QLatin1String(ExerciseSetupPage::topicName) && !planHolder().isEmpty())
        page->slotLock(planHolder());
}

QString DemoController::planHolder() const
{
    if (!m_otherOperator.isEmpty())
        return m_otherOperator;
    // Outside the states in which its menu entry shows, the plan is the running exercise's.
    if (!(m_exercise->state() & kPlanEditable))
        return tr("the running exercise");
    return QString();
}

void DemoController::updatePlanLock()
{
    const QString holder = planHolder();
    const auto pages = m_topicPages.value(QLatin1String(ExerciseSetupPage::topicName));
    for (const QPointer<OrvDialog>& page : pages) {
        if (!page)
            continue;
        if (holder.isEmpty())
            page->slotUnlock();
        else
            page->slotLock(holder);
    }
}

void DemoController::simulateSecondOperator()
{
    if (!m_otherOperator.isEmpty())
        return;
    m_otherOperator = QStringLiteral("Bravo");
    updatePlanLock();
    m_eventLog->add(EventLogModel::Operator, tr("Operator %1 is editing the exercise plan").arg(m_otherOperator));
    notify(tr("Exercise plan locked"), tr("%1 is editing the plan; read-only for now.").arg(m_otherOperator),
           OrvNotificationBox::Warning, QStringLiteral("plan-lock"));
    m_releaseTimer->start();
}

void DemoController::releaseSecondOperator()
{
    if (m_otherOperator.isEmpty())
        return;
    m_releaseTimer->stop();
    const QString holder = m_otherOperator;
    m_otherOperator.clear();
    updatePlanLock();
    m_eventLog->add(EventLogModel::Operator, tr("Operator %1 released the exercise plan").arg(holder));
    notify(tr("Exercise plan released"), tr("%1 is done; you can edit the plan.").arg(holder), OrvNotificationBox::Info,
           QStringLiteral("plan-lock"));
}

void DemoController::handleLink(const QUrl& url)
{
    if (url.scheme() != QLatin1String("orv"))
        return;
    const QString target = url.host(QUrl::FullyDecoded);
    const QString argument = url.path(QUrl::FullyDecoded).mid(1);
    if (target.compare(QLatin1String("NotificationAck"), Qt::CaseInsensitive) == 0) {
        m_eventLog->add(EventLogModel::Operator, tr("Notification acknowledged: %1").arg(argument));
    } else if (target.compare(QLatin1String("OpenPage"), Qt::CaseInsensitive) == 0) {
        openEntry(argument);
    } else if (target.compare(QLatin1String("ParticipantInfo"), Qt::CaseInsensitive) == 0) {
        // Show the participants table filtered to exactly that number.
        openEntry(QStringLiteral("plan.participants"));
        bool ok = false;
        const int number = argument.toInt(&ok);
        if (m_participantsPage && ok)
            m_participantsPage->showParticipant(number);
    } else {
        return;
    }
    Q_EMIT linkHandled(url);
}

bool DemoController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == OrvLinkEvent::eventTypeId()) {
        handleLink(static_cast<OrvLinkEvent*>(event)->url());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void DemoController::showBackground()
{
    if (m_background)
        return;
    m_background = new OrvBackgroundWidget(nullptr);
    // Any activity on the background brings the shell back to the front.
    connect(m_background, &OrvBackgroundWidget::signalOperatorAction, m_shell, [this] {
        m_shell->raise();
        m_shell->activateWindow();
    });
    m_background->showFullScreen();
    m_shell->raise();
}
