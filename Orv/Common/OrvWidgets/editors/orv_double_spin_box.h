#pragma once

#include "orvwidgets_export.h"

#include <QDoubleSpinBox>

namespace OrvWidgets {

// Floating-point spin box that accepts only values on its step grid
// (minimum + k * single step).
class ORVWIDGETS_EXPORT OrvDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
public:
    explicit OrvDoubleSpinBox(QWidget* parent = nullptr);
    ~OrvDoubleSpinBox() override;

    QValidator::State validate(QString& text, int& pos) const override;
    void fixup(QString& text) const override;
    void stepBy(int steps) override;

    // Stores the value through the base class; the grid applies to typed text only.
    void setValue(double value);
};

} // namespace OrvWidgets
