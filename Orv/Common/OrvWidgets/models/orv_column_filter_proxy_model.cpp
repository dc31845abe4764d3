#include "orv_column_filter_proxy_model.h"
#include "orv_column_filter_proxy_model_p.h"

#include <QAbstractItemModel>

#include <cmath>
#include <cstring>
#include <limits>

namespace OrvWidgets {

namespace ColumnFilter {

namespace {

// ASCII letters fold the same way in both engines (k and s included, whose
// caseless sets contain the Kelvin sign and the long s in both); the
// punctuation here is no syntax outside brackets and has no case.
bool isLiteralChar(char16_t c)
{
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'))
        return true;
    switch (c) {
    case u' ': case u'!': case u'"': case u'#': case u'%': case u'&': case u'\'':
    case u',': case u'-': case u'/': case u':': case u';': case u'<': case u'=':
    case u'>': case u'@': case u'_': case u'~':
        return true;
    default:
        return false;
    }
}

// Escapes that match one character of a class, an escaped punctuation
// character, or an assertion; anything else (quoting, back references,
// properties, code points) takes arguments this scan does not read.
bool isSimpleEscape(char16_t c)
{
    if (c >= 0x80 || c < 0x20)
        return false;
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'))
        return QStringView(u"dDwWsShHvVbBAzZG").contains(QChar(c));
    return true;
}

} // namespace

bool isLiteralPattern(const QString& pattern)
{
    for (const QChar ch : pattern) {
        if (!isLiteralChar(ch.unicode()))
            return false;
    }
    return !pattern.isEmpty();
}

QString requiredLiteral(const QString& pattern)
{
    // Outside groups and without alternation every atom is matched in turn,
    // so adjacent literal characters that no quantifier makes optional or
    // repeats appear side by side in every match. Constructs that change how
    // the rest reads (inline options, verbs, quoting, conditionals) give up.
    QString best;
    QString run;
    auto endRun = [&]() {
        if (run.size() > best.size())
            best = run;
        run.clear();
    };
    int depth = 0;
    const qsizetype size = pattern.size();
    auto at = [&](qsizetype i) { return i < size ? pattern.at(i).unicode() : char16_t(0); };
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = at(i);
        const char16_t next = at(i + 1);
        switch (c) {
        case u'|':
            return {};
        case u'\\':
            if (!isSimpleEscape(next))
                return {};
            endRun();
            ++i;
            continue;
        case u'[':
            endRun();
            i += at(i + 1) == u'^' ? 2 : 1;
            if (at(i) == u']')
                ++i;
            for (; i < size && at(i) != u']'; ++i) {
                if (at(i) == u'[' || (at(i) == u'\\' && !isSimpleEscape(at(i + 1))))
                    return {};
                if (at(i) == u'\\')
                    ++i;
            }
            if (i >= size)
                return {};
            continue;
        case u'(':
            endRun();
            if (next == u'*')
                return {};
            if (next == u'?') {
                const char16_t kind = at(i + 2);
                const bool lookBehind = kind == u'<' && (at(i + 3) == u'=' || at(i + 3) == u'!');
                if (kind != u':' && kind != u'=' && kind != u'!' && kind != u'>' && !lookBehind)
                    return {};
            }
            ++depth;
            continue;
        case u')':
            endRun();
            if (--depth < 0)
                return {};
            continue;
        case u'{':
            endRun();
            while (i + 1 < size && at(i + 1) != u'}')
                ++i;
            continue;
        default:
            break;
        }
        if (depth == 0 && isLiteralChar(c) && next != u'?' && next != u'*' && next != u'+' && next != u'{')
            run += QChar(c);
        else
            endRun();
    }
    endRun();
    return best;
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
    forgetRanks();
}

void OrvColumnFilterProxyModelPrivate::forgetRanks()
{
    rankColumn = -1;
    ranksRefused = false;
    keyComparisons = 0;
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

void OrvColumnFilterProxyModelPrivate::forgetRows(int first, int last, int firstColumn, int lastColumn)
{
    first = std::max(first, 0);
    for (auto& entry : filterTexts) {
        std::vector<quint32>& generation = entry.second.generation;
        for (int row = first; row <= last && size_t(row) < generation.size(); ++row)
            generation[size_t(row)] = 0;
    }
    for (int row = first; row <= last && size_t(row) < rejectedGeneration.size(); ++row)
        rejectedGeneration[size_t(row)] = 0;
    // The same test decides whether the base class re-sorts on the change.
    if (sortKeyColumn >= firstColumn && sortKeyColumn <= lastColumn) {
        for (int row = first; row <= last && size_t(row) < sortKeys.size(); ++row)
            sortKeys[size_t(row)] = SortKey::Unknown;
        forgetRanks();
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

bool OrvColumnFilterProxyModelPrivate::buildRanks(const QAbstractItemModel* model, int column)
{
    const int rows = model->rowCount();
    if (rows <= 0)
        return false;
    prepareSortKeys(model, column, rows - 1);

    // Numbers by an integer image of their double, texts by their first four
    // code units (zero-padded, so a shorter prefix still orders first).
    struct Entry
    {
        quint64 order;
        quint32 row;
    };
    std::vector<Entry> numbers, texts;
    for (int row = 0; row < rows; ++row) {
        const quint64 key = sortKey(model, row, column);
        if (key == SortKey::NoText) {
            ranksRefused = true; // compares by value or not at all: no order to rank by
            return false;
        }
        if (SortKey::isNumber(key)) {
            double number;
            std::memcpy(&number, &key, sizeof number);
            if (std::isnan(number)) {
                ranksRefused = true; // equal to every number, yet those differ
                return false;
            }
            if (number == 0.0)
                number = 0.0; // -0 equals 0
            quint64 bits;
            std::memcpy(&bits, &number, sizeof bits);
            numbers.push_back({(bits & 0x8000000000000000ull) ? ~bits : bits | 0x8000000000000000ull, quint32(row)});
        } else {
            const QString& text = sortTexts[size_t(row)];
            quint64 prefix = 0;
            for (qsizetype i = 0; i < 4; ++i)
                prefix = (prefix << 16) | (i < text.size() ? text.at(i).unicode() : 0u);
            texts.push_back({prefix, quint32(row)});
        }
    }
    auto textLess = [this](const Entry& a, const Entry& b) {
        if (a.order != b.order)
            return a.order < b.order;
        return QString::compare(sortTexts[a.row], sortTexts[b.row], Qt::CaseSensitive) < 0;
    };
    std::sort(numbers.begin(), numbers.end(), [](const Entry& a, const Entry& b) { return a.order < b.order; });
    std::sort(texts.begin(), texts.end(), textLess);

    // A number and a text compare as texts. That agrees with ranking the
    // numbers numerically only when every number's text falls on one side of
    // every text; otherwise the pairwise answers form no order at all.
    bool numbersFirst = true;
    if (!numbers.empty() && !texts.empty()) {
        const QString* lowest = nullptr;
        const QString* highest = nullptr;
        for (const Entry& entry : numbers) {
            const QString& text = sortText(model, int(entry.row), column, sortKeys[entry.row]);
            if (!lowest || QString::compare(text, *lowest, Qt::CaseSensitive) < 0)
                lowest = &text;
            if (!highest || QString::compare(text, *highest, Qt::CaseSensitive) > 0)
                highest = &text;
        }
        if (QString::compare(*highest, sortTexts[texts.front().row], Qt::CaseSensitive) < 0) {
            numbersFirst = true;
        } else if (QString::compare(sortTexts[texts.back().row], *lowest, Qt::CaseSensitive) < 0) {
            numbersFirst = false;
        } else {
            ranksRefused = true;
            return false;
        }
    }

    ranks.resize(size_t(rows));
    quint32 rank = 0;
    auto assign = [&](const std::vector<Entry>& entries, auto&& equal) {
        for (size_t i = 0; i < entries.size(); ++i) {
            if (i > 0 && !equal(entries[i - 1], entries[i]))
                ++rank;
            ranks[entries[i].row] = rank;
        }
        ++rank;
    };
    auto sameNumber = [](const Entry& a, const Entry& b) { return a.order == b.order; };
    auto sameText = [&](const Entry& a, const Entry& b) { return !textLess(a, b); };
    if (numbersFirst) {
        assign(numbers, sameNumber);
        assign(texts, sameText);
    } else {
        assign(texts, sameText);
        assign(numbers, sameNumber);
    }
    rankColumn = column;
    return true;
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
    d->model = model;
    d->ranks.clear();
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
            // A column whose filter was cleared keeps its texts for the next
            // filter typed into it, but only while they are worth re-using.
            for (auto it = d->filterTexts.begin(); it != d->filterTexts.end();) {
                const auto filter = m_columnStringFilters.constFind(it->first);
                if (filter == m_columnStringFilters.constEnd() || !filter->isValid())
                    it = d->filterTexts.erase(it);
                else
                    ++it;
            }
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
                                d->forgetRows(topLeft.row(), bottomRight.row(), topLeft.column(),
                                              bottomRight.column());
                            }));
        c.push_back(connect(model, &QObject::destroyed, this, [this]() {
            d->model = nullptr;
            d->forgetSortKeys();
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
    const QAbstractItemModel* model = d->model;
    const int column = left.column();
    if (model && left.model() == model && right.model() == model && right.column() == column
        && !left.parent().isValid() && !right.parent().isValid()) {
        const int leftRow = left.row();
        const int rightRow = right.row();
        const std::vector<quint32>& ranks = d->ranks;
        if (column == d->rankColumn && size_t(leftRow) < ranks.size() && size_t(rightRow) < ranks.size())
            return ranks[size_t(leftRow)] < ranks[size_t(rightRow)];
        d->prepareSortKeys(model, column, std::max(leftRow, rightRow));
        // Ranking every row costs about as much as a few comparisons per row.
        if (!d->ranksRefused && ++d->keyComparisons > 2 * quint64(d->sortKeys.size())
            && d->buildRanks(model, column) && size_t(std::max(leftRow, rightRow)) < ranks.size()) {
            return ranks[size_t(leftRow)] < ranks[size_t(rightRow)];
        }
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
            // Rows without a text every match contains need no expression run.
            step.text = ColumnFilter::requiredLiteral(it->pattern());
            if (!step.text.isEmpty())
                step.matcher = QStringMatcher(step.text, Qt::CaseInsensitive);
        }
        steps.push_back(std::move(step));
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
    const QAbstractItemModel* model = d->model;
    return !model || d->accepts(model, sourceRow, sourceParent);
}

bool OrvColumnFilterProxyModelPrivate::accepts(const QAbstractItemModel* model, int sourceRow,
                                               const QModelIndex& sourceParent)
{
    if (steps.empty())
        return true;
    const bool topLevel = !sourceParent.isValid();
#if defined(__GNUC__)
    // Rows are mostly judged in order, and each cached text lives somewhere
    // else on the heap: ask for a later row's text now, so that it has
    // arrived by the time that row is judged.
    if (topLevel) {
        const size_t ahead = size_t(sourceRow) + 16;
        for (const Step& step : steps) {
            if (step.texts && ahead < step.texts->texts.size())
                __builtin_prefetch(step.texts->texts[ahead].constData());
        }
    }
#endif
    if (topLevel && isKnownRejected(sourceRow))
        return false;

    for (const Step& step : steps) {
        auto cell = [&]() { return model->index(sourceRow, step.column, sourceParent); };
        bool accepted = false;
        switch (step.kind) {
        case Step::DataText:
            accepted = model->data(cell(), OrvColumnFilterProxyModel::DataFilterRole).toString() == step.text;
            break;
        case Step::DataValue:
            accepted = QVariant(model->data(cell(), OrvColumnFilterProxyModel::DataFilterRole).toString()) == step.value;
            break;
        case Step::Literal:
        case Step::Expression: {
            QString uncached;
            const QString& text = topLevel ? filterText(model, *step.texts, sourceRow, step.column)
                                           : (uncached = model->data(cell(), Qt::DisplayRole).toString());
            if (step.kind == Step::Literal)
                accepted = step.matcher.indexIn(text) >= 0 && ColumnFilter::isWellFormedUtf16(text);
            else
                accepted = (step.text.isEmpty() || step.matcher.indexIn(text) >= 0)
                           && step.expression.match(text).hasMatch();
            break;
        }
        }
        if (!accepted) {
            if (topLevel)
                markRejected(model, sourceRow);
            return false;
        }
    }
    return true;
}

} // namespace OrvWidgets
