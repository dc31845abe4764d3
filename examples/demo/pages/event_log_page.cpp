#include "event_log_page.h"

#include "../event_log_model.h"

#include <orv_wait_dialog.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace OrvWidgets;

EventLogPage::EventLogPage(EventLogModel* model, ServerRequest serverRequest, QWidget* parent)
    : OrvDialog(parent, CloseOnly, true)
    , m_serverRequest(std::move(serverRequest))
{
    setObjectName(QStringLiteral("EventLogPage"));
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("tvEventLog"));
    m_table->setModel(model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(EventLogModel::TimeColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(EventLogModel::CategoryColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    // Follow new entries as they arrive.
    connect(model, &QAbstractItemModel::rowsInserted, m_table, [this] { m_table->scrollToBottom(); });

    m_request = new QPushButton(this);
    m_request->setObjectName(QStringLiteral("pbRequestStatus"));
    m_request->setAutoDefault(false);
    connect(m_request, &QPushButton::clicked, this, &EventLogPage::requestServerStatus);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_request);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addLayout(buttons);
    retranslate();
}

EventLogPage::~EventLogPage() = default;

void EventLogPage::retranslate()
{
    const QString title = tr("Event log");
    translate(title);
    m_request->setText(tr("Request server status"));
    m_request->setToolTip(tr("Ask the exercise server for its status; the answer takes a moment."));
}

void EventLogPage::requestServerStatus()
{
    if (m_wait || !m_serverRequest)
        return;
    // The page is covered and cannot be closed until the server has answered.
    m_wait = std::make_unique<Waiter>(this, tr("Waiting for the exercise server..."));
    m_request->setEnabled(false);
    m_serverRequest(this, [this] {
        m_wait.reset();
        m_request->setEnabled(true);
    });
}
