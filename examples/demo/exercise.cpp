#include "exercise.h"

#include <QDateTime>
#include <QTimer>

using namespace OrvWidgets;

Exercise::Exercise(QObject* parent)
    : QObject(parent)
    , m_tick(new QTimer(this))
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const qint64 hour = 3600 * 1000;
    // A plan to start from: today, on the full hour, for eight hours.
    m_plannedStart = now - now % hour + hour;
    m_plannedEnd = m_plannedStart + 8 * hour;
    m_name = tr("Northern Shield");
    m_description = tr("Command post exercise of the northern task force");
    m_phases = {tr("Deployment"), tr("Defence"), tr("Counter-attack")};

    m_tick->setInterval(1000);
    connect(m_tick, &QTimer::timeout, this, [this] { Q_EMIT exerciseTimeChanged(exerciseTime()); });
}

QString Exercise::currentPhaseName() const
{
    return m_phases.value(m_currentPhase);
}

void Exercise::setPlan(const QString& name, const QString& description, const QStringList& phases, qint64 start,
                       qint64 end)
{
    m_name = name;
    m_description = description;
    m_phases = phases;
    m_currentPhase = qBound(0, m_currentPhase, qMax(0, int(phases.size()) - 1));
    m_plannedStart = start;
    m_plannedEnd = end;
    Q_EMIT planChanged();
    Q_EMIT exerciseTimeChanged(exerciseTime());
}

QString Exercise::stateText(State state)
{
    switch (state) {
    case ExerciseState::eCreated:
        return tr("Created");
    case ExerciseState::eStarted:
        return tr("Running");
    case ExerciseState::ePaused:
        return tr("Paused");
    case ExerciseState::eStopped:
        return tr("Stopped");
    case ExerciseState::eTerminated:
        return tr("Terminated");
    default:
        return tr("Unknown");
    }
}

QColor Exercise::stateColour(State state)
{
    switch (state) {
    case ExerciseState::eStarted:
        return QColor(0x2e, 0x9d, 0x4a);
    case ExerciseState::ePaused:
        return QColor(0xd8, 0x8c, 0x12);
    case ExerciseState::eStopped:
    case ExerciseState::eTerminated:
        return QColor(0xc6, 0x32, 0x32);
    default:
        return QColor(0x7a, 0x86, 0x94);
    }
}

qint64 Exercise::exerciseTime() const
{
    if (m_state == ExerciseState::eCreated)
        return 0;
    const qint64 run = m_bankedMs + (m_running.isValid() ? m_running.elapsed() : 0);
    return m_plannedStart + run;
}

bool Exercise::canStop() const
{
    return m_state == ExerciseState::eStarted || m_state == ExerciseState::ePaused;
}

bool Exercise::canAdvancePhase() const
{
    return m_state == ExerciseState::eStarted && m_currentPhase + 1 < m_phases.size();
}

bool Exercise::moveTo(State from, State to)
{
    if (m_state != from)
        return false;
    m_state = to;
    Q_EMIT stateChanged(to);
    Q_EMIT exerciseTimeChanged(exerciseTime());
    return true;
}

bool Exercise::start()
{
    if (!canStart())
        return false;
    m_bankedMs = 0;
    m_currentPhase = 0;
    m_running.start();
    m_tick->start();
    Q_EMIT phaseChanged(m_currentPhase);
    return moveTo(ExerciseState::eCreated, ExerciseState::eStarted);
}

bool Exercise::pause()
{
    if (!canPause())
        return false;
    m_bankedMs += m_running.elapsed();
    m_running.invalidate();
    m_tick->stop();
    return moveTo(ExerciseState::eStarted, ExerciseState::ePaused);
}

bool Exercise::resume()
{
    if (!canResume())
        return false;
    m_running.start();
    m_tick->start();
    return moveTo(ExerciseState::ePaused, ExerciseState::eStarted);
}

bool Exercise::stop()
{
    if (!canStop())
        return false;
    if (m_running.isValid())
        m_bankedMs += m_running.elapsed();
    m_running.invalidate();
    m_tick->stop();
    return moveTo(m_state, ExerciseState::eStopped);
}

bool Exercise::reset()
{
    if (!canReset())
        return false;
    m_bankedMs = 0;
    m_currentPhase = 0;
    Q_EMIT phaseChanged(m_currentPhase);
    return moveTo(ExerciseState::eStopped, ExerciseState::eCreated);
}

bool Exercise::advancePhase()
{
    if (!canAdvancePhase())
        return false;
    ++m_currentPhase;
    Q_EMIT phaseChanged(m_currentPhase);
    return true;
}
