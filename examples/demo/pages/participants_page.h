#pragma once

#include <orv_dialog.h>

#include <QVector>

class ParticipantsModel;
class QComboBox;
class QHeaderView;
class QLabel;
class QLineEdit;
class QTableView;

namespace OrvWidgets {
class OrvColumnFilterProxyModel;
}

// One filter field per table column, kept under its header section while
// columns are resized, moved or scrolled.
class ColumnFilterRow : public QWidget
{
    Q_OBJECT
public:
    ColumnFilterRow(QTableView* table, QWidget* parent = nullptr);

    void setEditor(int column, QWidget* editor);
    void reposition();

private:
    QTableView* m_table = nullptr;
    QVector<QWidget*> m_editors;
};

// The exercise's participants: a large table, filtered per column and sorted
// numerically where the column holds numbers.
class ParticipantsPage : public OrvWidgets::OrvDialog
{
    Q_OBJECT
public:
    explicit ParticipantsPage(int rows, QWidget* parent = nullptr);

    void retranslate() override;
    OrvWidgets::OrvColumnFilterProxyModel* proxy() const { return m_proxy; }
    // Clears every filter but the number, which is set to exactly this participant.
    void showParticipant(int number);

private:
    void updateCount();

    ParticipantsModel* m_model = nullptr;
    OrvWidgets::OrvColumnFilterProxyModel* m_proxy = nullptr;
    QTableView* m_table = nullptr;
    ColumnFilterRow* m_filterRow = nullptr;
    QVector<QLineEdit*> m_filters;
    QComboBox* m_roleFilter = nullptr;
    QLabel* m_count = nullptr;
};
