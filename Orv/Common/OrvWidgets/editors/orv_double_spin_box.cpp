#include "orv_double_spin_box.h"

#include "orv_spin_box_p.h"

#include <QDoubleValidator>

#include <cmath>

namespace OrvWidgets {

OrvDoubleSpinBox::OrvDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
}

OrvDoubleSpinBox::~OrvDoubleSpinBox() = default;

QValidator::State OrvDoubleSpinBox::validate(QString& text, int& pos) const
{
    QString number = SpinGrid::stripAffixes(text, prefix(), suffix());
    int numberPos = int(number.size());
    QDoubleValidator validator(minimum(), maximum(), decimals());
    validator.setNotation(QDoubleValidator::StandardNotation);
    validator.setLocale(locale());
    const QValidator::State state = validator.validate(number, numberPos);
    if (state != QValidator::Acceptable)
        return state;
    bool ok = false;
    const double value = locale().toDouble(number, &ok);
    if (!ok)
        return QValidator::Intermediate;
    return SpinGrid::onGrid(value, minimum(), singleStep()) ? QValidator::Acceptable : QValidator::Intermediate;
}

void OrvDoubleSpinBox::fixup(QString& text) const
{
    QDoubleSpinBox::fixup(text);
    if (qFuzzyCompare(singleStep(), std::pow(10.0, decimals())))
        return;
    bool ok = false;
    const double value = locale().toDouble(SpinGrid::stripAffixes(text, prefix(), suffix()), &ok);
    if (!ok || qFuzzyIsNull(singleStep()))
        return;
    text = textFromValue(SpinGrid::roundToGrid(value, minimum(), maximum(), singleStep()));
}

void OrvDoubleSpinBox::stepBy(int steps)
{
    SpinGrid::stepBox(this, lineEdit(), [this, steps](double value) {
        return SpinGrid::stepOnGrid(value, steps, minimum(), maximum(), singleStep(), wrapping(),
                                    [](double candidate, bool) { return candidate; });
    });
}

void OrvDoubleSpinBox::setValue(double value)
{
    QDoubleSpinBox::setValue(value);
}

} // namespace OrvWidgets
