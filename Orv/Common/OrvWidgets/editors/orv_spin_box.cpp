#include "orv_spin_box.h"

#include "orv_spin_box_p.h"

#include <QIntValidator>

#include <algorithm>
#include <climits>

namespace OrvWidgets {

OrvSpinBox::OrvSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
}

OrvSpinBox::~OrvSpinBox() = default;

QValidator::State OrvSpinBox::validate(QString& text, int& pos) const
{
    QString number = SpinGrid::stripAffixes(text, prefix(), suffix());
    int numberPos = int(number.size());
    // Without holes the whole range is the one valid range.
    const QVector<std::pair<int, int>> ranges =
        m_validRanges.isEmpty() ? QVector<std::pair<int, int>>{{minimum(), maximum()}} : m_validRanges;
    QIntValidator validator;
    validator.setLocale(locale());
    // Every range must accept the text; the first one that does not decides.
    for (const auto& range : ranges) {
        validator.setRange(range.first, range.second);
        const QValidator::State state = validator.validate(number, numberPos);
        if (state != QValidator::Acceptable)
            return state;
    }
    bool ok = false;
    const int value = locale().toInt(number, &ok);
    if (!ok)
        return QValidator::Intermediate;
    return SpinGrid::onGrid(qint64(value), qint64(minimum()), qint64(singleStep())) ? QValidator::Acceptable
                                                                                   : QValidator::Intermediate;
}

void OrvSpinBox::fixup(QString& text) const
{
    QSpinBox::fixup(text);
    if (singleStep() == 1)
        return;
    bool ok = false;
    const qint64 value = locale().toInt(SpinGrid::stripAffixes(text, prefix(), suffix()), &ok);
    if (!ok)
        return;
    const qint64 fixed = SpinGrid::roundToGrid(value, qint64(minimum()), qint64(maximum()), qint64(singleStep()));
    text = textFromValue(int(qBound(qint64(INT_MIN), fixed, qint64(INT_MAX))));
}

int OrvSpinBox::skipExclusion(int candidate, bool up) const
{
    for (const auto& hole : m_exclusions) {
        if (candidate >= hole.first && candidate <= hole.second)
            return up ? hole.second + 1 : hole.first - 1;
    }
    return candidate;
}

void OrvSpinBox::stepBy(int steps)
{
    // Stepping keeps to the grid and jumps over excluded ranges.
    SpinGrid::stepBox(this, lineEdit(), [this, steps](int value) {
        return int(SpinGrid::stepOnGrid(qint64(value), steps, qint64(minimum()), qint64(maximum()),
                                        qint64(singleStep()), wrapping(), [this](qint64 candidate, bool up) {
                                            return qint64(skipExclusion(int(candidate), up));
                                        }));
    });
}

void OrvSpinBox::setValue(int value)
{
    QSpinBox::setValue(value);
}

bool OrvSpinBox::setExclusionRanges(const QVector<std::pair<int, int>>& ranges, bool append)
{
    QVector<std::pair<int, int>> work = ranges;
    if (append)
        work += m_exclusions;
    for (auto& range : work) {
        if (range.first > range.second)
            std::swap(range.first, range.second);
    }
    std::sort(work.begin(), work.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    if (work.isEmpty()) {
        if (!append) {
            m_exclusions.clear();
            m_validRanges.clear();
        }
        return true;
    }
    bool refused = work.first().first <= minimum() || work.last().second >= maximum();
    for (int i = 0; !refused && i + 1 < work.size(); ++i)
        refused = work.at(i).second >= work.at(i + 1).first;
    if (refused) {
        if (!append)
            m_exclusions.clear();
        return false;
    }

    m_exclusions = work;
    m_validRanges.clear();
    const int firstLow = work.first().first;
    if (firstLow - 1 > minimum())
        m_validRanges.append({minimum(), firstLow - 1});
    for (int i = 0; i + 1 < work.size(); ++i) {
        const int from = work.at(i).second + 1;
        const int to = work.at(i + 1).first - 1;
        if (from < to)
            m_validRanges.append({from, to});
    }
    // The last valid range starts below the first exclusion; kept as the team has it.
    if (work.last().second + 1 < maximum())
        m_validRanges.append({firstLow - 1, maximum()});
    return true;
}

bool OrvSpinBox::addExclusionRange(int low, int high)
{
    return setExclusionRanges({{low, high}}, true);
}

void OrvSpinBox::clearExclusionRanges()
{
    m_exclusions.clear();
}

} // namespace OrvWidgets
