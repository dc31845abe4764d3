#include "orv_multi_range_spin_box.h"

#include <QEvent>
#include <QIntValidator>
#include <QKeyEvent>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace OrvWidgets {

OrvMultiRangeSpinBox::OrvMultiRangeSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
    m_curVal = minimum();
    // m_curVal remembers the last allowed value, so the next correction knows which
    // way the value moved.
    connect(this, &QSpinBox::valueChanged, this, [this](int) {
        if (valueAllowed())
            m_curVal = value();
    });
}

OrvMultiRangeSpinBox::~OrvMultiRangeSpinBox() = default;

QVector<std::pair<int, int>> OrvMultiRangeSpinBox::sortRanges(QVector<std::pair<int, int>> ranges)
{
    for (auto& range : ranges) {
        if (range.first > range.second)
            std::swap(range.first, range.second);
    }
    std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QVector<std::pair<int, int>> merged;
    if (ranges.isEmpty())
        return merged;
    std::pair<int, int> current = ranges.first();
    for (int i = 1; i < ranges.size(); ++i) {
        const auto& next = ranges.at(i);
        // Ranges that only touch stay separate.
        if (current.second > next.first) {
            current.second = std::max(current.second, next.second);
        } else {
            merged.append(current);
            current = next;
        }
    }
    merged.append(current);
    return merged;
}

void OrvMultiRangeSpinBox::setRanges(const QVector<std::pair<int, int>>& ranges)
{
    if (ranges.isEmpty())
        return;
    m_rangesList = sortRanges(ranges);
    QSpinBox::setMaximum(m_rangesList.last().second);
    QSpinBox::setMinimum(m_rangesList.first().first);
    retranslate();
}

void OrvMultiRangeSpinBox::setRange(int low, int high)
{
    setRanges({{low, high}});
}

void OrvMultiRangeSpinBox::setMinimum(int value)
{
    QVector<std::pair<int, int>> ranges = m_rangesList;
    if (ranges.isEmpty())
        ranges.append({value, maximum()});
    else
        ranges.first().first = value;
    setRanges(ranges);
}

void OrvMultiRangeSpinBox::setMaximum(int value)
{
    QVector<std::pair<int, int>> ranges = m_rangesList;
    if (ranges.isEmpty())
        ranges.append({minimum(), value});
    else
        ranges.last().second = value;
    setRanges(ranges);
}

void OrvMultiRangeSpinBox::retranslate()
{
    if (m_rangesList.isEmpty())
        return;
    QStringList parts;
    parts.reserve(m_rangesList.size());
    for (const auto& range : m_rangesList)
        parts.append(tr("%1-%2%3").arg(range.first).arg(range.second).arg(suffix()));
    setToolTip(tr("Ranges:\n%1").arg(parts.join(QStringLiteral(",\n"))));
}

void OrvMultiRangeSpinBox::changeEvent(QEvent* event)
{
    QSpinBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

QValidator::State OrvMultiRangeSpinBox::validate(QString&, int&) const
{
    // Free typing; the value is corrected after the interaction.
    return QValidator::Acceptable;
}

void OrvMultiRangeSpinBox::fixup(QString&) const
{
}

QValidator::State OrvMultiRangeSpinBox::validateAll(QString& text, int& pos) const
{
    QIntValidator validator;
    validator.setLocale(locale());
    for (const auto& range : m_rangesList) {
        validator.setRange(range.first, range.second);
        if (validator.validate(text, pos) == QValidator::Acceptable)
            return QValidator::Acceptable;
    }
    return QValidator::Invalid;
}

bool OrvMultiRangeSpinBox::valueAllowed() const
{
    if (m_rangesList.isEmpty())
        return true;
    QString text = textFromValue(value());
    int pos = 0;
    return validateAll(text, pos) == QValidator::Acceptable;
}

int OrvMultiRangeSpinBox::snapToGrid(qint64 best) const
{
    const qint64 step = std::max(1, singleStep());
    const qint64 min = minimum();
    const qint64 r = (best - min) % step;
    qint64 s = best;
    if (2 * r > step)
        s += step;
    s -= r;
    if (s < best)
        s += step;
    if (s > maximum())
        s -= step;
    return int(s);
}

int OrvMultiRangeSpinBox::fixupValue(int value) const
{
    qint64 best = std::numeric_limits<int>::max();
    for (const auto& range : m_rangesList) {
        for (const qint64 endpoint : {qint64(range.first), qint64(range.second)}) {
            if (qAbs(endpoint - value) < qAbs(best - value))
                best = endpoint;
        }
    }
    return snapToGrid(best);
}

int OrvMultiRangeSpinBox::fixupValue(int value, bool up) const
{
    // The nearest endpoint that lies in the direction of movement; when the value left
    // the outermost range, the nearest endpoint at all.
    bool found = false;
    qint64 best = 0;
    for (const auto& range : m_rangesList) {
        for (const qint64 endpoint : {qint64(range.first), qint64(range.second)}) {
            const bool ahead = up ? endpoint >= value : endpoint <= value;
            if (ahead && (!found || qAbs(endpoint - value) < qAbs(best - value))) {
                best = endpoint;
                found = true;
            }
        }
    }
    return found ? snapToGrid(best) : fixupValue(value);
}

void OrvMultiRangeSpinBox::correctStep()
{
    if (valueAllowed())
        return;
    const bool up = value() >= m_curVal;
    m_curVal = fixupValue(value(), up);
    QSpinBox::setValue(m_curVal);
}

void OrvMultiRangeSpinBox::mousePressEvent(QMouseEvent* event)
{
    QSpinBox::mousePressEvent(event);
    correctStep();
}

void OrvMultiRangeSpinBox::wheelEvent(QWheelEvent* event)
{
    QSpinBox::wheelEvent(event);
    correctStep();
}

void OrvMultiRangeSpinBox::keyPressEvent(QKeyEvent* event)
{
    QSpinBox::keyPressEvent(event);
    // Step keys move like the wheel does; typed text goes to the nearest endpoint.
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        correctStep();
        break;
    default:
        if (!valueAllowed())
            QSpinBox::setValue(fixupValue(value()));
        break;
    }
}

void OrvMultiRangeSpinBox::focusOutEvent(QFocusEvent* event)
{
    QSpinBox::focusOutEvent(event);
    if (!valueAllowed())
        QSpinBox::setValue(fixupValue(value()));
}

} // namespace OrvWidgets
