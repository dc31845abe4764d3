#pragma once

#include <QAbstractTableModel>
#include <QStringList>

// The exercise's participants, generated on the fly from the row number so
// that 100,000 rows cost no memory: number, call sign, unit, strength, role.
class ParticipantsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NumberColumn, CallSignColumn, UnitColumn, StrengthColumn, RoleColumn, ColumnCount };

    explicit ParticipantsModel(int rows, QObject* parent = nullptr);

    // The role codes the data filter compares against, in display order.
    static QStringList roleCodes();
    static QString roleName(const QString& code);
    // Tells the views that headers and role names read differently now.
    void retranslate();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    int m_rows = 0;
};
