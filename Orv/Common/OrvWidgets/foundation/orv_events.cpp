#include "orv_events.h"
#include "orv_logging_p.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace OrvWidgets {
namespace {

// Registered on first request and kept for the life of the process.
QEvent::Type lazyType(int& slot)
{
    if (slot == 0)
        slot = QEvent::registerEventType(-1);
    return static_cast<QEvent::Type>(slot);
}

int s_linkType = 0;
int s_saveImageType = 0;
int s_setMarkerType = 0;
int s_addMarkerType = 0;
int s_addSnapshotType = 0;
int s_saveSnapshotType = 0;

} // namespace

OrvLinkEvent::OrvLinkEvent(QUrl url, QWidget* sourceBaseLayoutWidget)
    : QEvent(eventTypeId())
    , m_url(std::move(url))
    , m_sourceBaseLayoutWidget(sourceBaseLayoutWidget)
{
}

OrvLinkEvent::OrvLinkEvent(const OrvLinkEvent& other) = default;
// QEvent itself cannot be moved; its few fields are copied, the payload moved.
OrvLinkEvent::OrvLinkEvent(OrvLinkEvent&& other) noexcept
    : QEvent(static_cast<const QEvent&>(other))
    , m_url(std::move(other.m_url))
    , m_sourceBaseLayoutWidget(std::move(other.m_sourceBaseLayoutWidget))
{
}
OrvLinkEvent::~OrvLinkEvent() = default;

QEvent::Type OrvLinkEvent::eventTypeId()
{
    return lazyType(s_linkType);
}

SaveImageEvent::SaveImageEvent(QWidget* widget, QPixmap&& pixmap)
    : QEvent(saveImageEventId())
    , m_widget(widget)
    , m_pix(std::move(pixmap))
{
}

SaveImageEvent::~SaveImageEvent() = default;

QEvent::Type SaveImageEvent::saveImageEventId()
{
    return lazyType(s_saveImageType);
}

SetMarkerEvent::SetMarkerEvent(const QString& description)
    : QEvent(setMarkerEventId())
    , m_description(description)
{
}

SetMarkerEvent::~SetMarkerEvent() = default;

QEvent::Type SetMarkerEvent::setMarkerEventId()
{
    return lazyType(s_setMarkerType);
}

AddMarkerEvent::AddMarkerEvent()
    : QEvent(addMarkerEventId())
{
}

AddMarkerEvent::~AddMarkerEvent() = default;

QEvent::Type AddMarkerEvent::addMarkerEventId()
{
    return lazyType(s_addMarkerType);
}

AddSnapshotEvent::AddSnapshotEvent()
    : QEvent(addSnapshotEventId())
{
}

AddSnapshotEvent::~AddSnapshotEvent() = default;

QEvent::Type AddSnapshotEvent::addSnapshotEventId()
{
    return lazyType(s_addSnapshotType);
}

SaveSnapshotEvent::SaveSnapshotEvent(const QString& description)
    : QEvent(saveSnapshotEventId())
    , m_description(description)
{
}

SaveSnapshotEvent::~SaveSnapshotEvent() = default;

QEvent::Type SaveSnapshotEvent::saveSnapshotEventId()
{
    return lazyType(s_saveSnapshotType);
}

void postToApplication(QEvent* event)
{
    if (!event)
        return;
    if (!QCoreApplication::instance()) {
        qCWarning(lcFoundation) << "postToApplication: no application object - event dropped";
        delete event;
        return;
    }
    event->setAccepted(false);
    QCoreApplication::postEvent(QCoreApplication::instance(), event, Qt::NormalEventPriority);
}

} // namespace OrvWidgets
