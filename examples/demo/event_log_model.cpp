#include "event_log_model.h"

#include <dtg.h>

#include <QDateTime>

EventLogModel::EventLogModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void EventLogModel::add(Category category, const QString& text)
{
    const int row = int(m_entries.size());
    beginInsertRows(QModelIndex(), row, row);
    m_entries.append(Entry{QDateTime::currentMSecsSinceEpoch(), category, text});
    endInsertRows();
}

QString EventLogModel::categoryText(Category category)
{
    switch (category) {
    case System:
        return tr("System");
    case Exercise:
        return tr("Exercise");
    case Operator:
        return tr("Operator");
    case Server:
        return tr("Server");
    }
    return QString();
}

int EventLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int EventLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventLogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return QVariant();
    const Entry& entry = m_entries.at(index.row());
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
        case TimeColumn:
            return DTG::toStringMSec(entry.time, DTG::eLongSeconds);
        case CategoryColumn:
            return categoryText(entry.category);
        case TextColumn:
            return entry.text;
        }
    } else if (role == Qt::ToolTipRole && index.column() == TextColumn) {
        return entry.text;
    }
    return QVariant();
}

QVariant EventLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case CategoryColumn:
        return tr("Category");
    case TextColumn:
        return tr("Event");
    }
    return QVariant();
}
