#include "exercise_setup_page.h"

#include "../exercise.h"

#include <orv_date_time_edit.h>
#include <requirement_widget.h>

#include <QDateTime>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

using namespace OrvWidgets;

namespace {
constexpr qint64 kDayMs = 24LL * 3600 * 1000;
}

ExerciseSetupPage::ExerciseSetupPage(Exercise* exercise, QWidget* parent)
    : OrvDialog(parent, OkApplyCancel, true)
    , m_exercise(exercise)
{
    setObjectName(QStringLiteral("ExerciseSetupPage"));
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);

    m_nameLabel = new QLabel(this);
    m_name = new QLineEdit(this);
    m_name->setObjectName(QStringLiteral("leName"));
    m_name->setMaxLength(64);
    m_nameLabel->setBuddy(m_name);
    form->addRow(m_nameLabel, m_name);

    m_descriptionLabel = new QLabel(this);
    m_description = new QPlainTextEdit(this);
    m_description->setObjectName(QStringLiteral("teDescription"));
    m_description->setTabChangesFocus(true);
    m_description->setMaximumHeight(m_description->fontMetrics().lineSpacing() * 5);
    m_descriptionLabel->setBuddy(m_description);
    form->addRow(m_descriptionLabel, m_description);

    m_phasesLabel = new QLabel(this);
    m_phases = new QListWidget(this);
    m_phases->setObjectName(QStringLiteral("lwPhases"));
    m_phases->setMaximumHeight(m_phases->fontMetrics().lineSpacing() * 6);
    m_phases->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                              | QAbstractItemView::AnyKeyPressed);
    m_addPhase = new QToolButton(this);
    m_addPhase->setObjectName(QStringLiteral("tbAddPhase"));
    m_addPhase->setText(QStringLiteral("+"));
    m_removePhase = new QToolButton(this);
    m_removePhase->setObjectName(QStringLiteral("tbRemovePhase"));
    m_removePhase->setText(QStringLiteral("\u2212"));
    auto* phaseButtons = new QVBoxLayout;
    phaseButtons->addWidget(m_addPhase);
    phaseButtons->addWidget(m_removePhase);
    phaseButtons->addStretch();
    auto* phaseRow = new QHBoxLayout;
    phaseRow->addWidget(m_phases, 1);
    phaseRow->addLayout(phaseButtons);
    m_phasesLabel->setBuddy(m_phases);
    form->addRow(m_phasesLabel, phaseRow);

    // Plans reach from a week back (exercises are entered late) to a year ahead.
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    m_startLabel = new QLabel(this);
    m_start = new OrvDateTimeEdit(this, true, false);
    m_start->setObjectName(QStringLiteral("dteStart"));
    m_start->setMinMaxTimeMSec(now - 7 * kDayMs, now + 365 * kDayMs);
    form->addRow(m_startLabel, m_start);
    m_endLabel = new QLabel(this);
    m_end = new OrvDateTimeEdit(this, false, false);
    m_end->setObjectName(QStringLiteral("dteEnd"));
    m_end->setMinMaxTimeMSec(now - 7 * kDayMs, now + 366 * kDayMs);
    form->addRow(m_endLabel, m_end);

    m_requirementsHeading = new QLabel(this);
    m_nameRequirement = new QLabel(this);
    m_phaseRequirement = new QLabel(this);
    m_timeRequirement = new QLabel(this);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(m_requirementsHeading);
    layout->addWidget(m_nameRequirement);
    layout->addWidget(m_phaseRequirement);
    layout->addWidget(m_timeRequirement);
    layout->addStretch(1);

    connect(m_addPhase, &QToolButton::clicked, this, &ExerciseSetupPage::addPhase);
    connect(m_removePhase, &QToolButton::clicked, this, &ExerciseSetupPage::removePhase);
    connect(m_phases->model(), &QAbstractItemModel::dataChanged, this, &OrvDialog::slotChangesMade);

    load();
    retranslate();
    m_uiRequirements->addRequirement(
        UiRequirement(m_nameRequirement, [this] { return !m_name->text().trimmed().isEmpty(); },
                      tr("Give the exercise a name.")));
    m_uiRequirements->addRequirement(
        UiRequirement(m_phaseRequirement, [this] { return !phases().isEmpty(); }, tr("Add at least one phase.")));
    m_uiRequirements->addRequirement(UiRequirement(
        m_timeRequirement,
        [this] {
            const qint64 start = m_start->msecsSinceEpoch();
            const qint64 end = m_end->msecsSinceEpoch();
            return start > 0 && end > start;
        },
        tr("The planned end must lie after the planned start.")));

    // The plan is shared between operators: ask for it as soon as the page is hosted.
    tryLockTopicNew(QString::fromLatin1(topicName), 1);
}

void ExerciseSetupPage::retranslate()
{
    // Through a variable: lupdate would take a direct argument for a context.
    const QString title = tr("Exercise setup");
    translate(title);
    m_nameLabel->setText(tr("&Name:"));
    m_descriptionLabel->setText(tr("&Description:"));
    m_phasesLabel->setText(tr("&Phases:"));
    m_startLabel->setText(tr("Planned start:"));
    m_endLabel->setText(tr("Planned end:"));
    m_addPhase->setToolTip(tr("Add a phase"));
    m_removePhase->setToolTip(tr("Remove the selected phase"));
    m_requirementsHeading->setText(tr("<b>Before the plan can be applied:</b>"));
    m_nameRequirement->setText(tr("The exercise has a name"));
    m_phaseRequirement->setText(tr("At least one phase is planned"));
    m_timeRequirement->setText(tr("The planned end lies after the planned start"));
    m_uiRequirements->retranslate();
}

void ExerciseSetupPage::load()
{
    const QSignalBlocker nameBlocker(m_name);
    const QSignalBlocker descriptionBlocker(m_description);
    const QSignalBlocker phasesBlocker(m_phases->model());
    m_name->setText(m_exercise->name());
    m_description->setPlainText(m_exercise->description());
    m_phases->clear();
    for (const QString& phase : m_exercise->phases()) {
        auto* item = new QListWidgetItem(phase, m_phases);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
    }
    m_start->setMsecsSinceEpoch(m_exercise->plannedStart());
    m_end->setMsecsSinceEpoch(m_exercise->plannedEnd());
}

QStringList ExerciseSetupPage::phases() const
{
    QStringList result;
    for (int i = 0; i < m_phases->count(); ++i) {
        const QString phase = m_phases->item(i)->text().trimmed();
        if (!phase.isEmpty())
            result << phase;
    }
    return result;
}

void ExerciseSetupPage::addPhase()
{
    if (unchangeable())
        return;
    auto* item = new QListWidgetItem(tr("Phase %1").arg(m_phases->count() + 1), m_phases);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_phases->setCurrentItem(item);
    m_phases->editItem(item);
    slotChangesMade();
}

void ExerciseSetupPage::removePhase()
{
    if (unchangeable())
        return;
    delete m_phases->currentItem();
    slotChangesMade();
}

bool ExerciseSetupPage::apply()
{
    m_exercise->setPlan(m_name->text().trimmed(), m_description->toPlainText().trimmed(), phases(),
                        m_start->msecsSinceEpoch(), m_end->msecsSinceEpoch());
    return true;
}

void ExerciseSetupPage::dialogCanceled()
{
    load();
}
