#pragma once

#include <QMetaObject>
#include <QRegularExpression>
#include <QString>
#include <QStringMatcher>
#include <QVariant>

#include <unordered_map>
#include <vector>

class QAbstractItemModel;
class QModelIndex;

namespace OrvWidgets {

namespace ColumnFilter {

// True when a case-insensitive match of the pattern is exactly a case-folded
// substring search: only characters that are no expression syntax and whose
// caseless equivalents agree between the expression engine and QString folding.
bool isLiteralPattern(const QString& pattern);

// The longest run of literal characters every match of a case-insensitive
// expression contains; empty when there is none or the pattern is beyond the
// constructs this recognises. A caseless search for it finds every row the
// expression can match (the characters are those of isLiteralPattern).
QString requiredLiteral(const QString& pattern);

// The expression engine rejects subjects with unpaired surrogates (no match).
bool isWellFormedUtf16(QStringView text);

// Order rule: numbers as numbers when both texts are numbers, else the texts
// code unit by code unit; values without text compare as doubles if they can.
bool orderLess(const QVariant& a, const QVariant& b);

// Sort keys are one 64-bit word per row, so that the comparisons of a sort
// touch as little memory as possible: a number is stored as its double
// (NaN made canonical), anything else as a NaN with a tag no arithmetic
// produces. The texts, needed only when a pair compares as text, live apart.
namespace SortKey {
constexpr quint64 TagMask = 0xFFFF000000000000ull;
constexpr quint64 TagBase = 0x7FF4000000000000ull;
constexpr quint64 Unknown = TagBase | 1;  // not computed yet
constexpr quint64 Text = TagBase | 2;     // text that is no number
constexpr quint64 NoText = TagBase | 3;   // the pair must be decided from the values
inline bool isNumber(quint64 key) { return (key & TagMask) != TagBase; }
quint64 make(const QVariant& value, QString* text);
} // namespace SortKey

} // namespace ColumnFilter

class OrvColumnFilterProxyModelPrivate
{
public:
    // Display texts of the top-level rows of a column with a string filter, so
    // that typing into the filter re-reads no cell (valid while the cell is
    // unchanged: a row's entry counts only in the current generation).
    struct ColumnTexts
    {
        std::vector<QString> texts;
        std::vector<quint32> generation;
    };
    std::unordered_map<int, ColumnTexts> filterTexts;
    quint32 textGeneration = 1;
    const QString& filterText(const QAbstractItemModel* model, ColumnTexts& cache, int row, int column);

    // One filter as evaluated per row; the list is ordered cheapest first,
    // which is free to do because every filter must pass.
    struct Step
    {
        enum Kind { DataText, Literal, DataValue, Expression };
        Kind kind = DataText;
        int column = 0;
        QString text;
        QVariant value;
        QStringMatcher matcher;
        QRegularExpression expression;
        ColumnTexts* texts = nullptr;
    };
    std::vector<Step> steps;
    bool accepts(const QAbstractItemModel* model, int sourceRow, const QModelIndex& sourceParent);

    // Top-level source rows known to fail the filters: valid while the source
    // data is unchanged and every filter change since only narrowed the set.
    std::vector<quint32> rejectedGeneration;
    quint32 rejectGeneration = 1;

    // Sort keys of the top-level rows of one column, computed lazily. A block
    // of rows whose generation is old counts as not computed.
    static constexpr int BlockShift = 6;
    std::vector<quint64> sortKeys;
    std::vector<QString> sortTexts;
    std::vector<quint32> sortBlockGeneration;
    int sortKeyColumn = -1;
    quint32 sortGeneration = 1;

    // Dense ranks of the top-level rows in the order of one column, equal
    // values sharing a rank, so that a comparison is one integer comparison.
    // Only made when the order rule is a consistent order over the whole
    // column (otherwise the pairwise answers could not be reproduced), and
    // only once the comparisons on unchanged data have paid for making it.
    std::vector<quint32> ranks;
    int rankColumn = -1;        // -1: no valid ranks
    bool ranksRefused = false;  // this column's values cannot be ranked
    quint64 keyComparisons = 0; // made without ranks since the data changed

    // The source model, read on every comparison (sourceModel() is a property read).
    const QAbstractItemModel* model = nullptr;
    std::vector<QMetaObject::Connection> sourceConnections;

    void forgetRejected();
    void forgetSortKeys();
    void forgetTexts();
    void forgetRanks();
    void forgetRows(int first, int last, int firstColumn, int lastColumn);
    bool isKnownRejected(int row) const
    {
        return row >= 0 && size_t(row) < rejectedGeneration.size()
               && rejectedGeneration[size_t(row)] == rejectGeneration;
    }
    void markRejected(const QAbstractItemModel* model, int row);
    void prepareSortKeys(const QAbstractItemModel* model, int column, int maxRow);
    quint64 sortKey(const QAbstractItemModel* model, int row, int column);
    const QString& sortText(const QAbstractItemModel* model, int row, int column, quint64 key);
    bool buildRanks(const QAbstractItemModel* model, int column);
};

} // namespace OrvWidgets
