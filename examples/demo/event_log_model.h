#pragma once

#include <QAbstractTableModel>
#include <QVector>

// What happened during the session, newest last: exercise state changes,
// operator actions, notifications and server answers.
class EventLogModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Category { System, Exercise, Operator, Server };
    Q_ENUM(Category)
    enum Column { TimeColumn, CategoryColumn, TextColumn, ColumnCount };

    explicit EventLogModel(QObject* parent = nullptr);

    void add(Category category, const QString& text);
    static QString categoryText(Category category);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Entry
    {
        qint64 time = 0;
        Category category = System;
        QString text;
    };
    QVector<Entry> m_entries;
};
