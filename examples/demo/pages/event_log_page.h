#pragma once

#include <orv_dialog.h>

#include <functional>
#include <memory>

class EventLogModel;
class QPushButton;
class QTableView;

namespace OrvWidgets {
class Waiter;
}

// The session's event log, with a request to the (simulated) exercise server
// that takes a while to answer.
class EventLogPage : public OrvWidgets::OrvDialog
{
    Q_OBJECT
public:
    // serverRequest is started with a callback to run when the answer is there.
    using ServerRequest = std::function<void(QObject* context, std::function<void()> done)>;

    EventLogPage(EventLogModel* model, ServerRequest serverRequest, QWidget* parent = nullptr);
    ~EventLogPage() override;

    void retranslate() override;
    bool isWaiting() const { return bool(m_wait); }

public Q_SLOTS:
    void requestServerStatus();

private:
    QTableView* m_table = nullptr;
    QPushButton* m_request = nullptr;
    ServerRequest m_serverRequest;
    std::unique_ptr<OrvWidgets::Waiter> m_wait;
};
