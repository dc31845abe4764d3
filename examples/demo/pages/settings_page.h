#pragma once

#include <orv_dialog.h>

class QLabel;

namespace OrvWidgets {
class OrvAngleEdit;
class OrvBitfieldWidget;
class OrvDoubleSpinBox;
class OrvMultiRangeSpinBox;
class OrvSpinBox;
}

// The operator's own settings for the exercise: default heading, radio
// channel, update rate, reporting distance and the alert classes shown.
class SettingsPage : public OrvWidgets::OrvDialog
{
    Q_OBJECT
public:
    explicit SettingsPage(QWidget* parent = nullptr);

    void retranslate() override;

Q_SIGNALS:
    void settingsApplied(const QString& summary);

protected:
    bool apply() override;
    void dialogCanceled() override;

private:
    void load();

    QLabel* m_headingLabel = nullptr;
    QLabel* m_channelLabel = nullptr;
    QLabel* m_rateLabel = nullptr;
    QLabel* m_distanceLabel = nullptr;
    QLabel* m_alertsLabel = nullptr;
    QLabel* m_alertsHint = nullptr;
    OrvWidgets::OrvAngleEdit* m_heading = nullptr;
    OrvWidgets::OrvMultiRangeSpinBox* m_channel = nullptr;
    OrvWidgets::OrvSpinBox* m_rate = nullptr;
    OrvWidgets::OrvDoubleSpinBox* m_distance = nullptr;
    OrvWidgets::OrvBitfieldWidget* m_alerts = nullptr;
};
