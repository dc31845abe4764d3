#include "exercise_control_page.h"

#include "../exercise.h"

#include <dtg.h>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace OrvWidgets;

ExerciseControlPage::ExerciseControlPage(Exercise* exercise, QWidget* parent)
    : OrvDialog(parent, CloseOnly, false)
    , m_exercise(exercise)
{
    setObjectName(QStringLiteral("ExerciseControlPage"));
    auto* grid = new QGridLayout;
    m_stateCaption = new QLabel(this);
    m_state = new QLabel(this);
    m_state->setObjectName(QStringLiteral("lbState"));
    m_phaseCaption = new QLabel(this);
    m_phase = new QLabel(this);
    m_phase->setObjectName(QStringLiteral("lbPhase"));
    m_timeCaption = new QLabel(this);
    m_time = new QLabel(this);
    m_time->setObjectName(QStringLiteral("lbTime"));
    m_time->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid->addWidget(m_stateCaption, 0, 0);
    grid->addWidget(m_state, 0, 1);
    grid->addWidget(m_phaseCaption, 1, 0);
    grid->addWidget(m_phase, 1, 1);
    grid->addWidget(m_timeCaption, 2, 0);
    grid->addWidget(m_time, 2, 1);
    grid->setColumnStretch(1, 1);

    const auto makeButton = [this](const char* name) {
        auto* button = new QPushButton(this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        return button;
    };
    m_start = makeButton("pbStart");
    m_pause = makeButton("pbPause");
    m_resume = makeButton("pbResume");
    m_stop = makeButton("pbStop");
    m_reset = makeButton("pbReset");
    m_nextPhase = makeButton("pbNextPhase");
    auto* buttons = new QGridLayout;
    const QList<QPushButton*> order{m_start, m_pause, m_resume, m_stop, m_reset, m_nextPhase};
    for (int i = 0; i < order.size(); ++i)
        buttons->addWidget(order.at(i), i / 2, i % 2);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    layout->addStretch(1);

    connect(m_start, &QPushButton::clicked, m_exercise, &Exercise::start);
    connect(m_pause, &QPushButton::clicked, m_exercise, &Exercise::pause);
    connect(m_resume, &QPushButton::clicked, m_exercise, &Exercise::resume);
    connect(m_stop, &QPushButton::clicked, m_exercise, &Exercise::stop);
    connect(m_reset, &QPushButton::clicked, m_exercise, &Exercise::reset);
    connect(m_nextPhase, &QPushButton::clicked, m_exercise, &Exercise::advancePhase);
    connect(m_exercise, &Exercise::stateChanged, this, &ExerciseControlPage::updateState);
    connect(m_exercise, &Exercise::phaseChanged, this, &ExerciseControlPage::updateState);
    connect(m_exercise, &Exercise::planChanged, this, &ExerciseControlPage::updateState);
    connect(m_exercise, &Exercise::exerciseTimeChanged, this, &ExerciseControlPage::updateTime);

    retranslate();
}

void ExerciseControlPage::retranslate()
{
    const QString title = tr("Exercise control");
    translate(title);
    m_stateCaption->setText(tr("State:"));
    m_phaseCaption->setText(tr("Phase:"));
    m_timeCaption->setText(tr("Exercise time:"));
    m_start->setText(tr("Start"));
    m_pause->setText(tr("Pause"));
    m_resume->setText(tr("Resume"));
    m_stop->setText(tr("Stop"));
    m_reset->setText(tr("Reset"));
    m_nextPhase->setText(tr("Next phase"));
    updateState();
}

void ExerciseControlPage::updateState()
{
    const Exercise::State state = m_exercise->state();
    QPalette palette = m_state->palette();
    palette.setColor(QPalette::WindowText, Exercise::stateColour(state));
    m_state->setPalette(palette);
    m_state->setText(QStringLiteral("<b>%1</b>").arg(Exercise::stateText(state).toHtmlEscaped()));
    const QString phase = m_exercise->currentPhaseName();
    m_phase->setText(phase.isEmpty() ? tr("none")
                                     : tr("%1 (%2 of %3)")
                                           .arg(phase)
                                           .arg(m_exercise->currentPhase() + 1)
                                           .arg(m_exercise->phases().size()));
    m_start->setEnabled(m_exercise->canStart());
    m_pause->setEnabled(m_exercise->canPause());
    m_resume->setEnabled(m_exercise->canResume());
    m_stop->setEnabled(m_exercise->canStop());
    m_reset->setEnabled(m_exercise->canReset());
    m_nextPhase->setEnabled(m_exercise->canAdvancePhase());
    updateTime();
}

void ExerciseControlPage::updateTime()
{
    const qint64 time = m_exercise->exerciseTime();
    m_time->setText(time > 0 ? DTG::toStringMSec(time, DTG::eLongSeconds) : tr("not started"));
}
