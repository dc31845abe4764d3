#pragma once

#include <orv_dialog.h>

class Exercise;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QToolButton;

namespace OrvWidgets {
class OrvDateTimeEdit;
}

// Plans the exercise: name, description, phases and the planned start and end.
// The plan is a shared topic: only one operator may edit it at a time.
class ExerciseSetupPage : public OrvWidgets::OrvDialog
{
    Q_OBJECT
public:
    static constexpr const char* topicName = "exercise/plan";

    explicit ExerciseSetupPage(Exercise* exercise, QWidget* parent = nullptr);

    void retranslate() override;

protected:
    bool apply() override;
    void dialogCanceled() override;

private:
    void load();
    void addPhase();
    void removePhase();
    QStringList phases() const;

    Exercise* m_exercise = nullptr;
    QLabel* m_nameLabel = nullptr;
    QLabel* m_descriptionLabel = nullptr;
    QLabel* m_phasesLabel = nullptr;
    QLabel* m_startLabel = nullptr;
    QLabel* m_endLabel = nullptr;
    QLabel* m_requirementsHeading = nullptr;
    QLabel* m_nameRequirement = nullptr;
    QLabel* m_phaseRequirement = nullptr;
    QLabel* m_timeRequirement = nullptr;
    QLineEdit* m_name = nullptr;
    QPlainTextEdit* m_description = nullptr;
    QListWidget* m_phases = nullptr;
    QToolButton* m_addPhase = nullptr;
    QToolButton* m_removePhase = nullptr;
    OrvWidgets::OrvDateTimeEdit* m_start = nullptr;
    OrvWidgets::OrvDateTimeEdit* m_end = nullptr;
};
