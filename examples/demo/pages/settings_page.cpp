#include "settings_page.h"

#include <orv_angle_edit.h>
#include <orv_bitfield_widget.h>
#include <orv_double_spin_box.h>
#include <orv_multi_range_spin_box.h>
#include <orv_settings.h>
#include <orv_spin_box.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace OrvWidgets;

namespace {
const QString kGroup = QStringLiteral("demoSettings");
}

SettingsPage::SettingsPage(QWidget* parent)
    : OrvDialog(parent, OkApplyCancel, true)
{
    setObjectName(QStringLiteral("SettingsPage"));
    auto* form = new QFormLayout;
    // Short numbers need no full-width fields.
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);

    m_headingLabel = new QLabel(this);
    m_heading = new OrvAngleEdit(this);
    m_heading->setObjectName(QStringLiteral("aeHeading"));
    m_heading->initAngleEditWidget(1);
    form->addRow(m_headingLabel, m_heading);

    // Channels come in two bands; between them lie the reserved ones.
    m_channelLabel = new QLabel(this);
    m_channel = new OrvMultiRangeSpinBox(this);
    m_channel->setObjectName(QStringLiteral("mrsChannel"));
    m_channel->setRanges({{1, 16}, {40, 56}});
    form->addRow(m_channelLabel, m_channel);

    // 13 updates per minute collide with the server's own cycle, so they are excluded.
    m_rateLabel = new QLabel(this);
    m_rate = new OrvSpinBox(this);
    m_rate->setObjectName(QStringLiteral("sbRate"));
    m_rate->setRange(1, 60);
    m_rate->addExclusionRange(13, 13);
    form->addRow(m_rateLabel, m_rate);

    m_distanceLabel = new QLabel(this);
    m_distance = new OrvDoubleSpinBox(this);
    m_distance->setObjectName(QStringLiteral("dsbDistance"));
    m_distance->setRange(0.1, 250.0);
    m_distance->setDecimals(1);
    m_distance->setSingleStep(0.5);
    form->addRow(m_distanceLabel, m_distance);

    m_alertsLabel = new QLabel(this);
    m_alerts = new OrvBitfieldWidget(this);
    m_alerts->setObjectName(QStringLiteral("bfAlerts"));
    m_alerts->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_alertsHint = new QLabel(this);
    m_alertsHint->setWordWrap(true);
    auto* alerts = new QHBoxLayout;
    alerts->addWidget(m_alerts);
    alerts->addWidget(m_alertsHint, 1);
    form->addRow(m_alertsLabel, alerts);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);

    load();
    retranslate();
    // The bit field is not one of the editors the page watches by itself.
    connect(m_alerts, &OrvBitfieldWidget::valueChanged, this, &OrvDialog::slotChangesMade);
}

void SettingsPage::retranslate()
{
    const QString title = tr("Settings");
    translate(title);
    m_headingLabel->setText(tr("Default heading:"));
    m_channelLabel->setText(tr("Radio channel:"));
    m_channel->setToolTip(tr("Channels 1-16 and 40-56; the others are reserved."));
    m_rateLabel->setText(tr("Updates per minute:"));
    m_rate->setToolTip(tr("13 is not available: it collides with the server's cycle."));
    m_distanceLabel->setText(tr("Reporting distance:"));
    m_distance->setSuffix(tr(" km"));
    m_alertsLabel->setText(tr("Alert classes:"));
    m_alertsHint->setText(tr("Bit 0: contacts, 1: losses, 2: supply, 3: weather, 4-7: reserved."));
}

void SettingsPage::load()
{
    auto* settings = OrvUtils::OperatorSettings::getInstance();
    m_heading->setValue(settings->value(kGroup, QStringLiteral("heading"), 90.0).toDouble(), 0U);
    m_channel->setValue(settings->value(kGroup, QStringLiteral("channel"), 5).toInt());
    m_rate->setValue(settings->value(kGroup, QStringLiteral("rate"), 12).toInt());
    m_distance->setValue(settings->value(kGroup, QStringLiteral("distance"), 25.0).toDouble());
    const QSignalBlocker blocker(m_alerts);
    m_alerts->setValue(quint8(settings->value(kGroup, QStringLiteral("alerts"), 0x0b).toUInt()));
}

bool SettingsPage::apply()
{
    auto* settings = OrvUtils::OperatorSettings::getInstance();
    settings->setValue(kGroup, QStringLiteral("heading"), m_heading->getAngle(0));
    settings->setValue(kGroup, QStringLiteral("channel"), m_channel->value());
    settings->setValue(kGroup, QStringLiteral("rate"), m_rate->value());
    settings->setValue(kGroup, QStringLiteral("distance"), m_distance->value());
    settings->setValue(kGroup, QStringLiteral("alerts"), uint(m_alerts->value()));
    Q_EMIT settingsApplied(tr("Settings applied: channel %1, %2 updates per minute, reporting distance %3 km")
                               .arg(m_channel->value())
                               .arg(m_rate->value())
                               .arg(m_distance->value(), 0, 'f', 1));
    return true;
}

void SettingsPage::dialogCanceled()
{
    load();
}
