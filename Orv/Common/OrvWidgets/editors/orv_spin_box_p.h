#pragma once

// Step-grid arithmetic shared by the integer and the floating-point spin boxes.
// A grid is minimum + k * step inside [minimum, maximum]. Integers are handled in
// 64 bits so that differences of two ints never overflow.

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QString>
#include <QtGlobal>

#include <cmath>

namespace OrvWidgets {
namespace SpinGrid {

inline qint64 remainder(qint64 v, qint64 min, qint64 step) { return (v - min) % step; }
inline double remainder(double v, double min, double step) { return std::fmod(v - min, step); }

// Integers sit on the grid when the remainder is 0; doubles when it is 0 up to
// representation noise (fmod may also return almost a whole step).
inline bool onGrid(qint64 v, qint64 min, qint64 step) { return step == 0 || remainder(v, min, step) == 0; }
inline bool onGrid(double v, double min, double step)
{
    if (qFuzzyIsNull(step))
        return true;
    const double r = std::fabs(remainder(v, min, step)) / std::fabs(step);
    return qFuzzyIsNull(r) || qFuzzyIsNull(1.0 - r) || r < 1e-9 || 1.0 - r < 1e-9;
}

// Rounding of typed text: nearest grid value, half a step rounds down, never above the maximum.
template <typename T>
T roundToGrid(T v, T min, T max, T step)
{
    const T r = remainder(v, min, step);
    if (2 * r > step)
        v += step;
    v -= r;
    if (v > max)
        v -= step;
    return v;
}

// Index of the grid point at or below (floor) / at or above (ceil) v.
inline qint64 gridIndex(qint64 v, qint64 min, qint64 step, bool up)
{
    const qint64 d = v - min;
    qint64 k = d / step;
    if (d % step != 0 && ((d > 0) == up))
        k += up ? 1 : -1;
    return k;
}
inline qint64 gridIndex(double v, double min, double step, bool up)
{
    const double k = (v - min) / step;
    const double nearest = std::round(k);
    if (std::fabs(k - nearest) < 1e-9)
        return qint64(nearest);
    return qint64(up ? std::ceil(k) : std::floor(k));
}

// Target of `steps` single steps from value: on the grid, inside [min, max] (wrapping
// around when asked), and moved past holes by `skipHole(candidate, up)`, which returns
// the candidate unchanged when it is allowed. Returns value when no grid point is left
// in the direction of movement.
template <typename T, typename SkipHole>
T stepOnGrid(T value, int steps, T min, T max, T step, bool wrap, SkipHole skipHole)
{
    if (steps == 0 || step <= 0 || max < min)
        return value;
    const bool up = steps > 0;
    const qint64 last = gridIndex(max, min, step, false);
    const qint64 first = 0;
    // From off the grid the first step lands on the neighbouring grid point.
    const qint64 from = gridIndex(value, min, step, !up);
    qint64 k = from + steps;
    if (k > last)
        k = (wrap && from >= last) ? first : last;
    else if (k < first)
        k = (wrap && from <= first) ? last : first;
    // A hole can push the candidate off the grid or out of range: realign, give up
    // after as many tries as there can be holes.
    for (int guard = 0; guard < 64; ++guard) {
        const T candidate = min + T(k) * step;
        const T moved = skipHole(candidate, up);
        if (moved == candidate)
            return candidate;
        k = gridIndex(moved, min, step, up);
        if (k > last || k < first)
            return value;
    }
    return value;
}

// The number part of a spin box text without prefix and suffix.
inline QString stripAffixes(const QString& text, const QString& prefix, const QString& suffix)
{
    QString s = text;
    if (!prefix.isEmpty() && s.startsWith(prefix))
        s.remove(0, prefix.size());
    if (!suffix.isEmpty() && s.endsWith(suffix))
        s.chop(suffix.size());
    return s.trimmed();
}

// Stepping as the base class does it, but onto the grid: edited text that is not yet
// acceptable is only interpreted (no step), like the base class does.
template <typename Box, typename Target>
void stepBox(Box* box, const QLineEdit* edit, Target target)
{
    QString text = box->text();
    int pos = int(text.size());
    const bool step = !edit->isModified() || box->validate(text, pos) == QValidator::Acceptable;
    box->interpretText();
    if (step)
        box->setValue(target(box->value()));
    box->selectAll();
}

} // namespace SpinGrid
} // namespace OrvWidgets
