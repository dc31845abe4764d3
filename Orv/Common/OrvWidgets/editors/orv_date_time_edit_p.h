#pragma once

// Forms of OrvDateTimeEdit, built in code. Every pointer is owned by its Qt parent.

#include "orv_date_time_edit.h"

class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QPushButton;
class QSlider;
class QSpinBox;

namespace Ui {

// Line-edit layout: [<<< << <] [check] [day|HHMMSS|zone|month|year] [Now] [> >> >>>], slider below.
class OrvDateTimeEditLe
{
public:
    OrvWidgets::DigitsLineEdit* leLongDay = nullptr;
    OrvWidgets::DigitsLineEdit* leLongHHMMSS = nullptr;
    OrvWidgets::LineEdit* leLongTZ = nullptr;
    OrvWidgets::DigitsLineEdit* leLongMonth = nullptr;
    OrvWidgets::DigitsLineEdit* leLongYear = nullptr;
    QCheckBox* checkBox = nullptr;
    QGridLayout* gridLayout = nullptr;
    QPushButton* pbBBB = nullptr;
    QPushButton* pbBB = nullptr;
    QPushButton* pbB = nullptr;
    QPushButton* pbF = nullptr;
    QPushButton* pbFF = nullptr;
    QPushButton* pbFFF = nullptr;
    QPushButton* pbNow = nullptr;
    QSlider* slTime = nullptr;

    void setupUi(QWidget* widget);
    void retranslateUi(QWidget* widget);
    static void setFixedSize(QLineEdit* field, int numChars);
    QPushButton* addButton(const QString& text, QWidget* widget);
    void addButtons(QWidget* widget);
    void addSlider(QWidget* widget);

private:
    // Columns 0-2 hold the backward buttons; the forward ones follow pbNow.
    int m_nowColumn = 0;
};

} // namespace Ui

// Touch layout: spin boxes for the numbers, combo boxes for zone and month.
class Ui_OrvDateTimeEdit
{
public:
    QGridLayout* gridLayout = nullptr;
    QHBoxLayout* dtgLayout = nullptr;
    QCheckBox* checkBox = nullptr;
    QSpinBox* spDay = nullptr;
    QFrame* frame = nullptr;
    QSpinBox* spHour = nullptr;
    QSpinBox* spMinutes = nullptr;
    QSpinBox* spSeconds = nullptr;
    QFrame* frame_2 = nullptr;
    QComboBox* cbxTimeZone = nullptr;
    QFrame* frame_3 = nullptr;
    QComboBox* cbxMonth = nullptr;
    QSpinBox* spYear = nullptr;
    QPushButton* pbNow = nullptr;

    void setupUi(QWidget* widget);
    void retranslateUi(QWidget* widget);
};
