#pragma once

#include "orvwidgets_export.h"

#include <QRegularExpression>
#include <QSpinBox>
#include <QVector>

#include <utility>

namespace OrvWidgets {

// Integer spin box restricted to several allowed ranges. Typing is free; after each
// interaction a value outside every range moves to a range endpoint (in the direction
// of movement when stepping), snapped to the step grid. The tool tip lists the ranges.
class ORVWIDGETS_EXPORT OrvMultiRangeSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit OrvMultiRangeSpinBox(QWidget* parent = nullptr);
    ~OrvMultiRangeSpinBox() override;

    void setRanges(const QVector<std::pair<int, int>>& ranges);
    void setRange(int low, int high);
    void setMinimum(int value);
    void setMaximum(int value);
    QVector<std::pair<int, int>> ranges() const { return m_rangesList; }

    QValidator::State validate(QString& text, int& pos) const override;
    void fixup(QString& text) const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    static QVector<std::pair<int, int>> sortRanges(QVector<std::pair<int, int>> ranges);
    QValidator::State validateAll(QString& text, int& pos) const;
    bool valueAllowed() const;
    int fixupValue(int value) const;
    int fixupValue(int value, bool up) const;
    int snapToGrid(qint64 value) const;
    void correctStep();
    void retranslate();

    QVector<std::pair<int, int>> m_rangesList;
    int m_curVal = 0;
    QRegularExpression m_regex;
};

} // namespace OrvWidgets
