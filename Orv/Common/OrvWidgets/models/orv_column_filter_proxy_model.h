#pragma once

#include "orvwidgets_export.h"

#include <QHash>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QVariant>

#include <memory>

namespace OrvWidgets {

class OrvColumnFilterProxyModelPrivate;

// Sort and filter proxy with one filter per column and kind: a case-insensitive
// regular expression the display text must contain, and a value the cell's
// role-273 data (as a string) must equal. Rows pass only if they pass every
// filter. Sorting compares numbers as numbers when both texts are numbers.
class ORVWIDGETS_EXPORT OrvColumnFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    // Role whose data the data filters compare (Qt::UserRole + 17).
    static constexpr int DataFilterRole = Qt::UserRole + 17;

    explicit OrvColumnFilterProxyModel(QObject* parent = nullptr);
    ~OrvColumnFilterProxyModel() override;

    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

    virtual void setColumnStringFilter(const QString& pattern, int column);
    virtual void setColumnDataFilter(const QVariant& value, int column);

    const QHash<int, QRegularExpression>& columnStringFilters() const;
    const QHash<int, QVariant>& columnDataFilters() const;

    void setSourceModel(QAbstractItemModel* sourceModel) override;

public Q_SLOTS:
    void onSetColumnStringFilter(const QString& newFilterString, int column);
    void onSetColumnDataFilter(const QVariant& newFilterData, int column);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    void filtersChanged(bool narrowed);

    QHash<int, QRegularExpression> m_columnStringFilters;
    QHash<int, QVariant> m_columnDataFilters;
    std::unique_ptr<OrvColumnFilterProxyModelPrivate> d;
};

} // namespace OrvWidgets
