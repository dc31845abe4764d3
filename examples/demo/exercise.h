#pragma once

#include <orv_types.h>

#include <QColor>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

class QTimer;

// The exercise this application controls: its plan and its life cycle
// (created -> started <-> paused -> stopped, and back to created by a reset).
class Exercise : public QObject
{
    Q_OBJECT
public:
    using State = OrvWidgets::ExcState;

    explicit Exercise(QObject* parent = nullptr);

    QString name() const { return m_name; }
    QString description() const { return m_description; }
    QStringList phases() const { return m_phases; }
    int currentPhase() const { return m_currentPhase; }
    QString currentPhaseName() const;
    qint64 plannedStart() const { return m_plannedStart; }
    qint64 plannedEnd() const { return m_plannedEnd; }
    // Replaces the plan; the current phase stays where it is if it still exists.
    void setPlan(const QString& name, const QString& description, const QStringList& phases, qint64 start,
                 qint64 end);

    State state() const { return m_state; }
    static QString stateText(State state);
    static QColor stateColour(State state);
    // Exercise time in UTC milliseconds: the planned start plus the time run so far.
    qint64 exerciseTime() const;

    bool canStart() const { return m_state == OrvWidgets::ExerciseState::eCreated; }
    bool canPause() const { return m_state == OrvWidgets::ExerciseState::eStarted; }
    bool canResume() const { return m_state == OrvWidgets::ExerciseState::ePaused; }
    bool canStop() const;
    bool canReset() const { return m_state == OrvWidgets::ExerciseState::eStopped; }
    bool canAdvancePhase() const;

public Q_SLOTS:
    bool start();
    bool pause();
    bool resume();
    bool stop();
    bool reset();
    bool advancePhase();

Q_SIGNALS:
    void planChanged();
    void stateChanged(Exercise::State state);
    void phaseChanged(int phase);
    void exerciseTimeChanged(qint64 msecsSinceEpoch);

private:
    bool moveTo(State from, State to);

    QString m_name;
    QString m_description;
    QStringList m_phases;
    int m_currentPhase = 0;
    qint64 m_plannedStart = 0;
    qint64 m_plannedEnd = 0;
    State m_state = OrvWidgets::ExerciseState::eCreated;
    // Run time banked by earlier start/pause cycles plus the running stretch.
    qint64 m_bankedMs = 0;
    QElapsedTimer m_running;
    QTimer* m_tick = nullptr;
};
