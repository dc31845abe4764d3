#pragma once

#include <orv_dialog.h>

class Exercise;
class QLabel;
class QPushButton;

// Drives the exercise through its life cycle and its phases.
class ExerciseControlPage : public OrvWidgets::OrvDialog
{
    Q_OBJECT
public:
    explicit ExerciseControlPage(Exercise* exercise, QWidget* parent = nullptr);

    void retranslate() override;

private:
    void updateState();
    void updateTime();

    Exercise* m_exercise = nullptr;
    QLabel* m_stateCaption = nullptr;
    QLabel* m_state = nullptr;
    QLabel* m_phaseCaption = nullptr;
    QLabel* m_phase = nullptr;
    QLabel* m_timeCaption = nullptr;
    QLabel* m_time = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_pause = nullptr;
    QPushButton* m_resume = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_nextPhase = nullptr;
};
