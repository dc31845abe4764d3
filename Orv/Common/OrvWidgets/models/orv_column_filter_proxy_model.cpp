#include "orv_column_filter_proxy_model.h"
#include "orv_column_filter_proxy_model_p.h"

#include <QAbstractItemModel>

#include <cmath>
#include <cstring>
#include <limits>

namespace OrvWidgets {

namespace ColumnFilter {

bool isLiteralPattern(const QString& pattern)
{
    // ASCII letters fold the same way in both engines (k and s included, whose
    // caseless sets contain the Kelvin sign and the long s in both); the
    // punctuation here is no syntax outside brackets and has no case.
    for (const QChar ch : pattern) {
        const char16_t c = ch.unicode();
        if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'))
            continue;
        switch (c) {
        case u' ': case u'!': case u'"': case u'#': case u'%': case u'&': case u'\'':
        case u',': case u'-': case u'/': case u':': case u';': case u'<': case u'=':
        case u'>': case u'@': case u'_': case u'~':
            continue;
        default:
            return false;
        }
    }
    return !pattern.isEmpty();
}

bool isWellFormedUtf16(QStringView text)
{
    const qsizetype size = text.size();
    const QChar* data = text.data();
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = data[i].unicode();
        if (c < 0xD800 || c > 0xDFFF)
            continue;
        if (c > 0xDBFF || i + 1 == size || !QChar::isLowSurrogate(data[i + 1].unicode()))
            return false;
        ++i;
    }
    return true;
}

bool orderLess(const QVariant& a, const QVariant& b)
{
    const QMetaType stringType = QMetaType::fromType<QString>();
    if (a.canConvert(stringType) && b.canConvert(stringType)) {
        const QString left = a.toString();
        const QString right = b.toString();
        bool leftIsNumber = false;
        bool rightIsNumber = false;
        const double leftNumber = left.toDouble(&leftIsNumber);
        const double rightNumber = right.toDouble(&rightIsNumber);
        if (leftIsNumber && rightIsNumber)
            return leftNumber < rightNumber;
        return QString::compare(left, right, Qt::CaseSensitive) < 0;
    }
    const QMetaType doubleType = QMetaType::fromType<double>();
    if (a.canConvert(doubleType) && b.canConvert(doubleType))
        return a.toDouble() < b.toDouble();
    return false;
}

quint64 SortKey::make(const QVariant& value, QString* text)
{
    double number = 0.0;
    switch (value.metaType().id()) {
    // Their text reads back as exactly this double (integers in decimal, doubles
    // in their shortest form), so the text is only made when a pair needs it.
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        number = value.toDouble();
        *text = QString();
        break;
    default: {
        if (!value.canConvert(QMetaType::fromType<QString>()))
            return NoText;
        *text = value.toString();
        bool isNumber = false;
        number = text->toDouble(&isNumber);
        if (!isNumber)
            return Text;
    }
    }
    if (std::isnan(number))
        number = std::numeric_limits<double>::quiet_NaN();
    quint64 bits;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

} // namespace ColumnFilter

namespace SortKey = ColumnFilter::SortKey;

namespace {
// Up to this many top-level source rows, filter changes are announced row by row.
constexpr int kIncrementalRowLimit = 10000;
} // namespace

void OrvColumnFilterProxyModelPrivate::forgetRejected()
{
    if (++rejectGeneration == 0) {
        rejectedGeneration.assign(rejectedGeneration.size(), 0);
        rejectGeneration = 1;
    }
}

void OrvColumnFilterProxyModelPrivate::forgetTexts()
{
    if (++textGeneration == 0) {
        for (auto& entry : filterTexts)
            entry.second.generation.assign(entry.second.generation.size(), 0);
        textGeneration = 1;
    }
}

void OrvColumnFilterProxyModelPrivate::forgetSortKeys()
{
    if (++sortGeneration == 0) {
        sortBlockGeneration.assign(sortBlockGeneration.size(), 0);
        sortGeneration = 1;
    }
}

const QString& OrvColumnFilterProxyModelPrivate::filterText(const QAbstractItemModel* model,
                                                           ColumnTexts& cache, int row, int column)
{
    if (size_t(row) >= cache.texts.size()) {
        const size_t rows = size_t(std::max(row + 1, model->rowCount()));
        cache.texts.resize(rows);
        cache.generation.resize(rows, 0);
    }
    QString& text = cache.texts[size_t(row)];
    if (cache.generation[size_t(row)] != textGeneration) {
        text = model->data(model->index(row, column), Qt::DisplayRole).toString();
        cache.generation[size_t(row)] = textGeneration;
    }
    return text;
}

void OrvColumnFilterProxyModelPrivate::forgetRows(int first, int last)
{
    for (auto& entry : filterTexts) {
        std::vector<quint32>& generation = entry.second.generation;
        for (int row = std::max(first, 0); row <= last && size_t(row) < generation.size(); ++row)
            generation[size_t(row)] = 0;
    }
    for (int row = std::max(first, 0); row <= last; ++row) {
        if (size_t(row) < rejectedGeneration.size())
            rejectedGeneration[size_t(row)] = 0;
        if (size_t(row) < sortKeys.size())
            sortKeys[size_t(row)] = SortKey::Unknown;
    }
}

void OrvColumnFilterProxyModelPrivate::markRejected(const QAbstractItemModel* model, int row)
{
    if (size_t(row) >= rejectedGeneration.size())
        rejectedGeneration.resize(size_t(std::max(row + 1, model->rowCount())), 0);
    rejectedGeneration[size_t(row)] = rejectGeneration;
}

void OrvColumnFilterProxyModelPrivate::prepareSortKeys(const QAbstractItemModel* model, int column,
                                                       int maxRow)
{
    if (column != sortKeyColumn) {
        sortKeyColumn = column;
        forgetSortKeys();
    }
    if (size_t(maxRow) >= sortKeys.size()) {
        const size_t rows = size_t(std::max(maxRow + 1, model->rowCount()));
        // Rows past the old end start in an old block generation.
        sortKeys.resize(rows, SortKey::Unknown);
        sortTexts.resize(rows);
        sortBlockGeneration.resize((rows >> BlockShift) + 1, 0);
    }
}

quint64 OrvColumnFilterProxyModelPrivate::sortKey(const QAbstractItemModel* model, int row, int column)
{
    const size_t block = size_t(row) >> BlockShift;
    if (sortBlockGeneration[block] != sortGeneration) {
        const size_t first = block << BlockShift;
        const size_t end = std::min(sortKeys.size(), first + (size_t(1) << BlockShift));
        std::fill(sortKeys.begin() + qsizetype(first), sortKeys.begin() + qsizetype(end), SortKey::Unknown);
        sortBlockGeneration[block] = sortGeneration;
    }
    quint64& key = sortKeys[size_t(row)];
    if (key == SortKey::Unknown)
        key = SortKey::make(model->data(model->index(row, column), Qt::DisplayRole), &sortTexts[size_t(row)]);
    return key;
}

const QString& OrvColumnFilterProxyModelPrivate::sortText(const QAbstractItemModel* model, int row,
                                                         int column, quint64 key)
{
    QString& text = sortTexts[size_t(row)];
    if (text.isNull() && SortKey::isNumber(key))
        text = model->data(model->index(row, column), Qt::DisplayRole).toString();
    return text;
}

OrvColumnFilterProxyModel::OrvColumnFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent)
    , d(std::make_unique<OrvColumnFilterProxyModelPrivate>())
{
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

OrvColumnFilterProxyModel::~OrvColumnFilterProxyModel()
{
    // The handlers use the private part, which goes before QObject disconnects.
    for (const QMetaObject::Connection& connection : d->sourceConnections)
        disconnect(connection);
}

void OrvColumnFilterProxyModel::setSourceModel(QAbstractItemModel* model)
{
    if (model == sourceModel()) {
        QSortFilterProxyModel::setSourceModel(model);
        return;
    }
    for (const QMetaObject::Connection& connection : d->sourceConnections)
        disconnect(connection);
    d->sourceConnections.clear();
    d->forgetRejected();
    d->forgetSortKeys();
    d->forgetTexts();
    d->filterTexts.clear();
    d->rejectedGeneration.clear();
    d->sortKeys.clear();
    d->sortTexts.clear();
    d->sortBlockGeneration.clear();

    if (model) {
        // Connected before the base class connects its own handlers, so the
        // caches are stale-free when it re-filters and re-sorts on the change.
        auto forgetAll = [this]() {
            d->forgetRejected();
            d->forgetSortKeys();
            d->forgetTexts();
        };
        auto forgetTopLevel = [forgetAll](const QModelIndex& parent) {
            if (!parent.isValid())
                forgetAll();
        };
        auto& c = d->sourceConnections;
        c.push_back(connect(model, &QAbstractItemModel::dataChanged, this,
                            [this](const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                   const QList<int>& roles) {
                                if (!topLeft.isValid() || topLeft.parent().isValid())
                                    return;
                                if (!roles.isEmpty() && !roles.contains(Qt::DisplayRole)
                                    && !roles.contains(DataFilterRole))
                                    return;
                                d->forgetRows(topLeft.row(), bottomRight.row());
                            }));
        c.push_back(connect(model, &QAbstractItemModel::rowsInserted, this, forgetTopLevel));
        c.push_back(connect(model, &QAbstractItemModel::rowsRemoved, this, forgetTopLevel));
        c.push_back(connect(model, &QAbstractItemModel::columnsInserted, this, forgetTopLevel));
        c.push_back(connect(model, &QAbstractItemModel::columnsRemoved, this, forgetTopLevel));
        c.push_back(connect(model, &QAbstractItemModel::rowsMoved, this, forgetAll));
        c.push_back(connect(model, &QAbstractItemModel::columnsMoved, this, forgetAll));
        c.push_back(connect(model, &QAbstractItemModel::layoutChanged, this, forgetAll));
        c.push_back(connect(model, &QAbstractItemModel::modelReset, this, forgetAll));
    }
    QSortFilterProxyModel::setSourceModel(model);
}

bool OrvColumnFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QAbstractItemModel* model = sourceModel();
    const int column = left.column();
    if (model && left.model() == model && right.model() == model && right.column() == column
        && !left.parent().isValid() && !right.parent().isValid()) {
        const int leftRow = left.row();
        const int rightRow = right.row();
        d->prepareSortKeys(model, column, std::max(leftRow, rightRow));
        const quint64 a = d->sortKey(model, leftRow, column);
        const quint64 b = d->sortKey(model, rightRow, column);
        if (SortKey::isNumber(a) && SortKey::isNumber(b)) {
            double x, y;
            std::memcpy(&x, &a, sizeof x);
            std::memcpy(&y, &b, sizeof y);
            return x < y;
        }
        if (a != SortKey::NoText && b != SortKey::NoText) {
            return QString::compare(d->sortText(model, leftRow, column, a),
                                    d->sortText(model, rightRow, column, b), Qt::CaseSensitive)
                   < 0;
        }
    }
    return ColumnFilter::orderLess(left.data(Qt::DisplayRole), right.data(Qt::DisplayRole));
}

void OrvColumnFilterProxyModel::setColumnStringFilter(const QString& pattern, int column)
{
    if (column < 0)
        return;
    if (pattern.isEmpty()) {
        if (m_columnStringFilters.remove(column))
            filtersChanged(false);
        return;
    }
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    const auto it = m_columnStringFilters.constFind(column);
    if (it != m_columnStringFilters.constEnd() && *it == expression)
        return;

    // A longer literal containing the old one, or any filter replacing one that
    // let everything pass, can only drop rows: the rows that already failed stay out.
    bool narrowed = true;
    if (it != m_columnStringFilters.constEnd() && it->isValid()) {
        narrowed = expression.isValid() && ColumnFilter::isLiteralPattern(it->pattern())
                   && ColumnFilter::isLiteralPattern(pattern)
                   && pattern.contains(it->pattern(), Qt::CaseInsensitive);
    }
    m_columnStringFilters.insert(column, expression);
    filtersChanged(narrowed);
}

void OrvColumnFilterProxyModel::setColumnDataFilter(const QVariant& value, int column)
{
    if (column < 0)
        return;
    if (value.isNull()) {
        if (m_columnDataFilters.remove(column))
            filtersChanged(false);
        return;
    }
    const auto it = m_columnDataFilters.constFind(column);
    if (it != m_columnDataFilters.constEnd() && *it == value)
        return;
    const bool narrowed = it == m_columnDataFilters.constEnd();
    m_columnDataFilters.insert(column, value);
    filtersChanged(narrowed);
}

const QHash<int, QRegularExpression>& OrvColumnFilterProxyModel::columnStringFilters() const
{
    return m_columnStringFilters;
}

const QHash<int, QVariant>& OrvColumnFilterProxyModel::columnDataFilters() const
{
    return m_columnDataFilters;
}

void OrvColumnFilterProxyModel::onSetColumnStringFilter(const QString& newFilterString, int column)
{
    setColumnStringFilter(newFilterString, column);
}

void OrvColumnFilterProxyModel::onSetColumnDataFilter(const QVariant& newFilterData, int column)
{
    setColumnDataFilter(newFilterData, column);
}

void OrvColumnFilterProxyModel::filtersChanged(bool narrowed)
{
    using Step = OrvColumnFilterProxyModelPrivate::Step;
    std::vector<Step> steps;
    steps.reserve(size_t(m_columnDataFilters.size() + m_columnStringFilters.size()));
    for (auto it = m_columnDataFilters.cbegin(); it != m_columnDataFilters.cend(); ++it) {
        Step step;
        step.column = it.key();
        step.value = it.value();
        // A stored string compares with the cell's string by plain string equality.
        if (it->metaType() == QMetaType::fromType<QString>()) {
            step.kind = Step::DataText;
            step.text = it->toString();
        } else {
            step.kind = Step::DataValue;
        }
        steps.push_back(std::move(step));
    }
    for (auto it = m_columnStringFilters.cbegin(); it != m_columnStringFilters.cend(); ++it) {
        if (!it->isValid())
            continue; // lets every row pass
        Step step;
        step.column = it.key();
        step.texts = &d->filterTexts[it.key()];
        if (ColumnFilter::isLiteralPattern(it->pattern())) {
            step.kind = Step::Literal;
            step.text = it->pattern();
            step.matcher = QStringMatcher(step.text, Qt::CaseInsensitive);
        } else {
            step.kind = Step::Expression;
            step.expression = *it;
            step.expression.optimize();
        }
        steps.push_back(std::move(step));
    }
    // Texts of columns that lost their string filter are no longer needed.
    for (auto it = d->filterTexts.begin(); it != d->filterTexts.end();) {
        const auto filter = m_columnStringFilters.constFind(it->first);
        if (filter == m_columnStringFilters.constEnd() || !filter->isValid())
            it = d->filterTexts.erase(it);
        else
            ++it;
    }
    std::stable_sort(steps.begin(), steps.end(),
                     [](const Step& a, const Step& b) { return a.kind < b.kind; });
    d->steps = std::move(steps);
    if (!narrowed)
        d->forgetRejected();

    // The row-by-row update announces every run of removed or added rows and
    // moves the rest of the mapping each time: quadratic when a filter change
    // scatters over a large table. There the mapping is rebuilt in one pass
    // and announced as a layout change instead.
    const QAbstractItemModel* model = sourceModel();
    if (model && model->rowCount() > kIncrementalRowLimit)
        invalidate();
    else
        invalidateRowsFilter();
}

bool OrvColumnFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    using Step = OrvColumnFilterProxyModelPrivate::Step;
    const QAbstractItemModel* model = sourceModel();
    if (d->steps.empty() || !model)
        return true;
    const bool topLevel = !sourceParent.isValid();
    if (topLevel && d->isKnownRejected(sourceRow))
        return false;

    for (const Step& step : d->steps) {
        auto cell = [&]() { return model->index(sourceRow, step.column, sourceParent); };
        bool accepted = false;
        switch (step.kind) {
        case Step::DataText:
            accepted = model->data(cell(), DataFilterRole).toString() == step.text;
            break;
        case Step::DataValue:
            accepted = QVariant(model->data(cell(), DataFilterRole).toString()) == step.value;
            break;
        case Step::Literal:
        case Step::Expression: {
            QString uncached;
            const QString& text = topLevel ? d->filterText(model, *step.texts, sourceRow, step.column)
                                           : (uncached = model->data(cell(), Qt::DisplayRole).toString());
            if (step.kind == Step::Literal)
                accepted = step.matcher.indexIn(text) >= 0 && ColumnFilter::isWellFormedUtf16(text);
            else
                accepted = step.expression.match(text).hasMatch();
            break;
        }
        }
        if (!accepted) {
            if (topLevel)
                d->markRejected(model, sourceRow);
            return false;
        }
    }
    return true;
}

} // namespace OrvWidgets
