#pragma once

#include "orvwidgets_export.h"

#include <QSpinBox>
#include <QVector>

#include <utility>

namespace OrvWidgets {

// Integer spin box that accepts only values on its step grid (minimum + k * single step)
// and can cut excluded ranges out of [minimum, maximum].
class ORVWIDGETS_EXPORT OrvSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit OrvSpinBox(QWidget* parent = nullptr);
    ~OrvSpinBox() override;

    QValidator::State validate(QString& text, int& pos) const override;
    void fixup(QString& text) const override;
    void stepBy(int steps) override;

    // Stores the value through the base class; the grid applies to typed text only.
    void setValue(int value);

    bool setExclusionRanges(const QVector<std::pair<int, int>>& ranges, bool append = false);
    bool addExclusionRange(int low, int high);
    void clearExclusionRanges();

    QVector<std::pair<int, int>> exclusionRanges() const { return m_exclusions; }
    QVector<std::pair<int, int>> validRanges() const { return m_validRanges; }

private:
    int skipExclusion(int candidate, bool up) const;

    QVector<std::pair<int, int>> m_exclusions;
    QVector<std::pair<int, int>> m_validRanges;
};

} // namespace OrvWidgets
