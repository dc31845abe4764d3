#pragma once

#include "orvwidgets_export.h"

#include <QList>
#include <QMap>
#include <QSet>
#include <QSharedPointer>
#include <QWidget>

#include <tuple>

class QDoubleSpinBox;
class Ui_OrvAngleEdit;

namespace OrvWidgets {

// 6400 mils to the circle; radians always convert through degrees.
ORVWIDGETS_EXPORT double pi();
ORVWIDGETS_EXPORT double deg2rad();
ORVWIDGETS_EXPORT double mil2Deg(const double& x);
ORVWIDGETS_EXPORT double deg2Mil(const double& x);
ORVWIDGETS_EXPORT double deg2Rad(const double& x);
ORVWIDGETS_EXPORT double rad2Degree(const double& x);
ORVWIDGETS_EXPORT double mil2Rad(const double& x);
ORVWIDGETS_EXPORT double rad2Mil(const double& x);

// One or more angle boxes sharing one unit combo box; switching the unit converts
// every box and gives it the unit's range, decimals and step.
class ORVWIDGETS_EXPORT OrvAngleEdit : public QWidget
{
    Q_OBJECT
public:
    enum AngleUnitType { Deg = 0, Mil = 1, Rad = 2 };
    Q_ENUM(AngleUnitType)

    explicit OrvAngleEdit(QWidget* parent = nullptr);
    ~OrvAngleEdit() override;

    void initAngleEditWidget(unsigned int count);
    QString toString(AngleUnitType unit);

    void setAngleUnit(const AngleUnitType& unit);
    AngleUnitType getAngleCurrentUnit() const;

    void setValue(double value, unsigned int index);
    void setValue(double value, AngleUnitType unit, unsigned int index);
    void setValue(double value, AngleUnitType unit);
    double getAngle(unsigned int index) const;
    double getAngleConverted(double value, AngleUnitType to, AngleUnitType from);

    void hideUnits(const QList<AngleUnitType>& units);
    void showUnits(const QList<AngleUnitType>& units);
    void setEnable(int index, bool enable);
    void showSpinbox(int index, bool show);

protected:
    void setCboxUnit();
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void onCBoxAngleUnitChanged();

private:
    QDoubleSpinBox* box(qint64 index) const;
    void retranslate();

    const QString spinBoxName = QStringLiteral("sboxAngleValue");
    Ui_OrvAngleEdit* m_ui = nullptr;
    QMap<int, QSharedPointer<QDoubleSpinBox>> m_sBoxMap;
    QMap<AngleUnitType, std::tuple<int, int, int, int>> m_dboxLimitMap;
    AngleUnitType m_currAngleUnit = Deg;
    QSet<int> m_hiddenUnits;
};

} // namespace OrvWidgets
