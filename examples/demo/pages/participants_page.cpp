#include "participants_page.h"

#include "../participants_model.h"

#include <orv_column_filter_proxy_model.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

using namespace OrvWidgets;

ColumnFilterRow::ColumnFilterRow(QTableView* table, QWidget* parent)
    : QWidget(parent)
    , m_table(table)
{
    QHeaderView* header = table->horizontalHeader();
    connect(header, &QHeaderView::sectionResized, this, &ColumnFilterRow::reposition);
    connect(header, &QHeaderView::sectionMoved, this, &ColumnFilterRow::reposition);
    connect(header, &QHeaderView::geometriesChanged, this, &ColumnFilterRow::reposition);
    connect(table->horizontalScrollBar(), &QScrollBar::valueChanged, this, &ColumnFilterRow::reposition);
}

void ColumnFilterRow::setEditor(int column, QWidget* editor)
{
    if (column < 0)
        return;
    if (m_editors.size() <= column)
        m_editors.resize(column + 1);
    editor->setParent(this);
    m_editors[column] = editor;
    setFixedHeight(qMax(height(), editor->sizeHint().height()));
    reposition();
}

void ColumnFilterRow::reposition()
{
    QHeaderView* header = m_table->horizontalHeader();
    // The table's frame and its row header sit left of the first section.
    const int offset = m_table->frameWidth() + m_table->verticalHeader()->width();
    for (int column = 0; column < m_editors.size(); ++column) {
        QWidget* editor = m_editors.at(column);
        if (!editor)
            continue;
        editor->setVisible(!header->isSectionHidden(column));
        editor->setGeometry(offset + header->sectionViewportPosition(column), 0, header->sectionSize(column),
                            height());
    }
}

ParticipantsPage::ParticipantsPage(int rows, QWidget* parent)
    : OrvDialog(parent, CloseOnly, true)
    , m_model(new ParticipantsModel(rows, this))
    , m_proxy(new OrvColumnFilterProxyModel(this))
{
    setObjectName(QStringLiteral("ParticipantsPage"));
    m_proxy->setSourceModel(m_model);

    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("tvParticipants"));
    m_table->setModel(m_proxy);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(ParticipantsModel::NumberColumn, Qt::AscendingOrder);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    // Fixed row heights and section sizes keep 100,000 rows cheap to lay out.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setColumnWidth(ParticipantsModel::NumberColumn, 110);
    m_table->setColumnWidth(ParticipantsModel::CallSignColumn, 150);
    m_table->setColumnWidth(ParticipantsModel::UnitColumn, 160);
    m_table->setColumnWidth(ParticipantsModel::StrengthColumn, 100);

    m_filterRow = new ColumnFilterRow(m_table, this);
    for (int column = 0; column < ParticipantsModel::RoleColumn; ++column) {
        auto* edit = new QLineEdit;
        edit->setObjectName(QStringLiteral("leFilter%1").arg(column));
        edit->setClearButtonEnabled(true);
        connect(edit, &QLineEdit::textChanged, this, [this, column](const QString& text) {
            m_proxy->onSetColumnStringFilter(text, column);
            updateCount();
        });
        m_filterRow->setEditor(column, edit);
        m_filters << edit;
    }
    m_roleFilter = new QComboBox;
    m_roleFilter->setObjectName(QStringLiteral("cbRoleFilter"));
    connect(m_roleFilter, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) {
        // The role column filters on its code, not on the translated name.
        m_proxy->onSetColumnDataFilter(m_roleFilter->itemData(index), ParticipantsModel::RoleColumn);
        updateCount();
    });
    m_filterRow->setEditor(ParticipantsModel::RoleColumn, m_roleFilter);

    m_count = new QLabel(this);
    m_count->setObjectName(QStringLiteral("lbCount"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filterRow);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_count);
    setTabOrder(m_filters.constLast(), m_roleFilter);
    setTabOrder(m_roleFilter, m_table);

    retranslate();
}

void ParticipantsPage::retranslate()
{
    const QString title = tr("Participants");
    translate(title);
    const QStringList hints{tr("Number"), tr("Call sign"), tr("Unit"), tr("Strength")};
    for (int i = 0; i < m_filters.size(); ++i)
        m_filters.at(i)->setPlaceholderText(tr("Filter: %1").arg(hints.value(i)));
    {
        const QSignalBlocker blocker(m_roleFilter);
        const int current = qMax(0, m_roleFilter->currentIndex());
        m_roleFilter->clear();
        m_roleFilter->addItem(tr("All roles"), QVariant());
        for (const QString& code : ParticipantsModel::roleCodes())
            m_roleFilter->addItem(ParticipantsModel::roleName(code), code);
        m_roleFilter->setCurrentIndex(current);
    }
    m_model->retranslate();
    updateCount();
}

void ParticipantsPage::updateCount()
{
    m_count->setText(tr("%1 of %2 participants shown")
                         .arg(QLocale().toString(m_proxy->rowCount()), QLocale().toString(m_model->rowCount())));
}

void ParticipantsPage::showParticipant(int number)
{
    for (int i = 1; i < m_filters.size(); ++i)
        m_filters.at(i)->clear();
    m_roleFilter->setCurrentIndex(0);
    m_filters.constFirst()->setText(QStringLiteral("^%1$").arg(number));
    if (m_proxy->rowCount() > 0)
        m_table->selectRow(0);
}
