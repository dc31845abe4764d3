#include "orv_angle_edit.h"

#include "ui_orv_angle_edit.h"

#include <QDoubleSpinBox>
#include <QEvent>

namespace OrvWidgets {

double pi() { return 3.141592653589793; }
double deg2rad() { return pi() / 180.0; }
double mil2Deg(const double& x) { return 360.0 * x / 6400.0; }
double deg2Mil(const double& x) { return 6400.0 * x / 360.0; }
double deg2Rad(const double& x) { return deg2rad() * x; }
double rad2Degree(const double& x) { return x * 180.0 / pi(); }
double mil2Rad(const double& x) { return deg2Rad(mil2Deg(x)); }
double rad2Mil(const double& x) { return deg2Mil(rad2Degree(x)); }

OrvAngleEdit::OrvAngleEdit(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui_OrvAngleEdit)
{
    m_ui->setupUi(this);
}

OrvAngleEdit::~OrvAngleEdit()
{
    // The boxes go before the form that lays them out.
    m_sBoxMap.clear();
    delete m_ui;
}

void OrvAngleEdit::initAngleEditWidget(unsigned int count)
{
    // (minimum, maximum, decimals, single step) per unit; degrees and mils are closed
    // circles, radians a wide open range.
    m_dboxLimitMap.insert(Deg, std::make_tuple(0, 360, 0, 10));
    m_dboxLimitMap.insert(Mil, std::make_tuple(0, 6400, 0, 50));
    m_dboxLimitMap.insert(Rad, std::make_tuple(-99999, 99999, 3, 1));

    m_hiddenUnits.clear();
    m_hiddenUnits.insert(Rad);

    for (unsigned int i = 0; i < count; ++i) {
        const int index = int(m_sBoxMap.size());
        QSharedPointer<QDoubleSpinBox> spinBox(new QDoubleSpinBox(this));
        spinBox->setValue(0.0);
        spinBox->setAlignment(Qt::AlignRight);
        spinBox->setMinimumWidth(91);
        spinBox->setObjectName(spinBoxName + QString::number(index));
        m_ui->hLayoutSpinbox->addWidget(spinBox.data());
        m_sBoxMap.insert(index, spinBox);
    }
    m_ui->horizontalLayout->setContentsMargins(1, 1, 1, 1);

    connect(m_ui->cBoxAngleUnit, &QComboBox::currentIndexChanged, this, &OrvAngleEdit::onCBoxAngleUnitChanged,
            Qt::UniqueConnection);
    setCboxUnit();
}

QString OrvAngleEdit::toString(AngleUnitType unit)
{
    switch (unit) {
    case Deg:
        return tr("Degree");
    case Mil:
        return tr("Mil");
    case Rad:
        return tr("Radian");
    }
    return QString();
}

void OrvAngleEdit::setCboxUnit()
{
    m_ui->cBoxAngleUnit->clear();
    for (const AngleUnitType unit : {Deg, Mil, Rad}) {
        if (!m_hiddenUnits.contains(unit))
            m_ui->cBoxAngleUnit->insertItem(int(unit), toString(unit), int(unit));
    }
    setAngleUnit(Deg);
}

void OrvAngleEdit::setAngleUnit(const AngleUnitType& unit)
{
    m_ui->cBoxAngleUnit->setCurrentIndex(int(unit));
}

OrvAngleEdit::AngleUnitType OrvAngleEdit::getAngleCurrentUnit() const
{
    // The combo position stands for the unit (true while no unit before it is hidden).
    return AngleUnitType(m_ui->cBoxAngleUnit->currentIndex());
}

QDoubleSpinBox* OrvAngleEdit::box(qint64 index) const
{
    if (index < 0)
        return nullptr;
    const auto it = m_sBoxMap.constFind(int(index));
    return it == m_sBoxMap.cend() ? nullptr : it.value().data();
}

void OrvAngleEdit::setValue(double value, unsigned int index)
{
    if (QDoubleSpinBox* spinBox = box(index))
        spinBox->setValue(value);
}

void OrvAngleEdit::setValue(double value, AngleUnitType unit, unsigned int index)
{
    setValue(getAngleConverted(value, m_currAngleUnit, unit), index);
}

void OrvAngleEdit::setValue(double value, AngleUnitType unit)
{
    setValue(value, unit, 0);
}

double OrvAngleEdit::getAngle(unsigned int index) const
{
    const QDoubleSpinBox* spinBox = box(index);
    return spinBox ? spinBox->value() : 0.0;
}

double OrvAngleEdit::getAngleConverted(double value, AngleUnitType to, AngleUnitType from)
{
    if (to == from)
        return value;
    switch (from) {
    case Deg:
        return to == Mil ? deg2Mil(value) : deg2Rad(value);
    case Mil:
        return to == Deg ? mil2Deg(value) : mil2Rad(value);
    case Rad:
        return to == Deg ? rad2Degree(value) : rad2Mil(value);
    }
    return value;
}

void OrvAngleEdit::hideUnits(const QList<AngleUnitType>& units)
{
    for (const AngleUnitType unit : units)
        m_hiddenUnits.insert(unit);
    setCboxUnit();
}

void OrvAngleEdit::showUnits(const QList<AngleUnitType>& units)
{
    for (const AngleUnitType unit : units)
        m_hiddenUnits.remove(unit);
    setCboxUnit();
}

void OrvAngleEdit::setEnable(int index, bool enable)
{
    if (QDoubleSpinBox* spinBox = box(index))
        spinBox->setEnabled(enable);
}

void OrvAngleEdit::showSpinbox(int index, bool show)
{
    if (QDoubleSpinBox* spinBox = box(index))
        spinBox->setVisible(show);
}

void OrvAngleEdit::onCBoxAngleUnitChanged()
{
    const QVariant data = m_ui->cBoxAngleUnit->currentData();
    if (!data.isValid())
        return; // the combo is being refilled
    const AngleUnitType newUnit = AngleUnitType(data.toInt());
    const auto limits = m_dboxLimitMap.constFind(newUnit);
    if (limits == m_dboxLimitMap.cend())
        return;
    const auto [minimum, maximum, decimals, step] = limits.value();
    for (auto it = m_sBoxMap.cbegin(); it != m_sBoxMap.cend(); ++it) {
        QDoubleSpinBox* spinBox = it.value().data();
        const double converted = getAngleConverted(spinBox->value(), newUnit, m_currAngleUnit);
        spinBox->setMinimum(minimum);
        spinBox->setMaximum(maximum);
        spinBox->setDecimals(decimals);
        spinBox->setSingleStep(step);
        spinBox->setValue(converted);
    }
    m_currAngleUnit = newUnit;
}

void OrvAngleEdit::retranslate()
{
    QComboBox* combo = m_ui->cBoxAngleUnit;
    for (int i = 0; i < combo->count(); ++i)
        combo->setItemText(i, toString(AngleUnitType(combo->itemData(i).toInt())));
}

void OrvAngleEdit::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

} // namespace OrvWidgets
