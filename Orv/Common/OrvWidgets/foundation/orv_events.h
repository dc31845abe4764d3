#pragma once

#include "orvwidgets_export.h"

#include <QEvent>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QWidget>

namespace OrvWidgets {

// The library talks to its application through these events, posted to the
// application object. Each class registers its event type on first use.

// A link clicked in a notification, or "orv://NotificationAck/<id>".
class ORVWIDGETS_EXPORT OrvLinkEvent : public QEvent
{
public:
    OrvLinkEvent(QUrl url, QWidget* sourceBaseLayoutWidget);
    OrvLinkEvent(const OrvLinkEvent& other);
    OrvLinkEvent(OrvLinkEvent&& other) noexcept;
    ~OrvLinkEvent() override;

    const QUrl& url() const { return m_url; }
    // The shell that posted the link; null once that shell is gone.
    QWidget* sourceBaseLayoutWidget() const { return m_sourceBaseLayoutWidget; }

    static QEvent::Type eventTypeId();

private:
    QUrl m_url;
    QPointer<QWidget> m_sourceBaseLayoutWidget;
};

// A page grabbed as an image, for the application to save.
class ORVWIDGETS_EXPORT SaveImageEvent : public QEvent
{
public:
    SaveImageEvent(QWidget* widget, QPixmap&& pixmap);
    ~SaveImageEvent() override;

    QWidget* widget() const { return m_widget; }
    const QPixmap& pixmap() const { return m_pix; }

    static QEvent::Type saveImageEventId();

private:
    QPointer<QWidget> m_widget;
    QPixmap m_pix;
};

class ORVWIDGETS_EXPORT SetMarkerEvent : public QEvent
{
public:
    explicit SetMarkerEvent(const QString& description);
    ~SetMarkerEvent() override;

    const QString& getDescription() const { return m_description; }
    void setDescription(const QString& description) { m_description = description; }

    static QEvent::Type setMarkerEventId();

private:
    QString m_description;
};

class ORVWIDGETS_EXPORT AddMarkerEvent : public QEvent
{
public:
    AddMarkerEvent();
    ~AddMarkerEvent() override;

    static QEvent::Type addMarkerEventId();
};

class ORVWIDGETS_EXPORT AddSnapshotEvent : public QEvent
{
public:
    AddSnapshotEvent();
    ~AddSnapshotEvent() override;

    static QEvent::Type addSnapshotEventId();
};

class ORVWIDGETS_EXPORT SaveSnapshotEvent : public QEvent
{
public:
    explicit SaveSnapshotEvent(const QString& description);
    ~SaveSnapshotEvent() override;

    const QString& getDescription() const { return m_description; }
    void setDescription(const QString& description) { m_description = description; }

    static QEvent::Type saveSnapshotEventId();

private:
    QString m_description;
};

// Posts an event to the application object, not accepted, at normal priority;
// the event loop takes ownership. Without an application the event is dropped.
ORVWIDGETS_EXPORT void postToApplication(QEvent* event);

} // namespace OrvWidgets
