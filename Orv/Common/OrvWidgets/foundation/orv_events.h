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

/*! A link for the application: one clicked in a notification's text, forwarded
    unchanged, or "orv://NotificationAck/<id>" when the operator acknowledged a message.
    The library never acts on a link itself. */
class ORVWIDGETS_EXPORT OrvLinkEvent : public QEvent
{
public:
    /*! An event of type eventTypeId() carrying \a url, posted by the shell
        \a sourceBaseLayoutWidget (not owned, guarded). */
    OrvLinkEvent(QUrl url, QWidget* sourceBaseLayoutWidget);
    /*! A copy of \a other. */
    OrvLinkEvent(const OrvLinkEvent& other);
    /*! Takes over the link of \a other. */
    OrvLinkEvent(OrvLinkEvent&& other) noexcept;
    ~OrvLinkEvent() override;

    /*! The link, "orv://<target>/<argument>". */
    const QUrl& url() const { return m_url; }
    /*! The shell that posted the link; null once that shell is gone. */
    QWidget* sourceBaseLayoutWidget() const { return m_sourceBaseLayoutWidget; }

    /*! The event type of link events, registered on the first call and the same for
        the life of the process. */
    static QEvent::Type eventTypeId();

private:
    QUrl m_url;
    QPointer<QWidget> m_sourceBaseLayoutWidget;
};

/*! A page grabbed as an image, for the application to save (posted by the tab bar's
    save action). */
class ORVWIDGETS_EXPORT SaveImageEvent : public QEvent
{
public:
    /*! An event of type saveImageEventId() for the page \a widget (not owned, guarded)
        and its image \a pixmap (moved in). */
    SaveImageEvent(QWidget* widget, QPixmap&& pixmap);
    ~SaveImageEvent() override;

    /*! The page that was grabbed; null once it is gone. */
    QWidget* widget() const { return m_widget; }
    /*! The grabbed image. */
    const QPixmap& pixmap() const { return m_pix; }

    /*! The event type, registered on the first call. */
    static QEvent::Type saveImageEventId();

private:
    QPointer<QWidget> m_widget;
    QPixmap m_pix;
};

/*! Asks the application to set a marker with a description. Declared for the
    applications, which post and handle it; the library posts none. */
class ORVWIDGETS_EXPORT SetMarkerEvent : public QEvent
{
public:
    /*! An event of type setMarkerEventId() with \a description. */
    explicit SetMarkerEvent(const QString& description);
    ~SetMarkerEvent() override;

    /*! The marker's description. */
    const QString& getDescription() const { return m_description; }
    /*! Replaces the marker's description. */
    void setDescription(const QString& description) { m_description = description; }

    /*! The event type, registered on the first call. */
    static QEvent::Type setMarkerEventId();

private:
    QString m_description;
};

/*! Asks the application to add a marker. Declared for the applications; the library
    posts none. */
class ORVWIDGETS_EXPORT AddMarkerEvent : public QEvent
{
public:
    /*! An event of type addMarkerEventId(). */
    AddMarkerEvent();
    ~AddMarkerEvent() override;

    /*! The event type, registered on the first call. */
    static QEvent::Type addMarkerEventId();
};

/*! Asks the application to add a snapshot. Declared for the applications; the library
    posts none. */
class ORVWIDGETS_EXPORT AddSnapshotEvent : public QEvent
{
public:
    /*! An event of type addSnapshotEventId(). */
    AddSnapshotEvent();
    ~AddSnapshotEvent() override;

    /*! The event type, registered on the first call. */
    static QEvent::Type addSnapshotEventId();
};

/*! Asks the application to save a snapshot with a description. Declared for the
    applications; the library posts none. */
class ORVWIDGETS_EXPORT SaveSnapshotEvent : public QEvent
{
public:
    /*! An event of type saveSnapshotEventId() with \a description. */
    explicit SaveSnapshotEvent(const QString& description);
    ~SaveSnapshotEvent() override;

    /*! The snapshot's description. */
    const QString& getDescription() const { return m_description; }
    /*! Replaces the snapshot's description. */
    void setDescription(const QString& description) { m_description = description; }

    /*! The event type, registered on the first call. */
    static QEvent::Type saveSnapshotEventId();

private:
    QString m_description;
};

/*! Posts \a event to the application object, not accepted, at normal priority; the
    event loop takes ownership. Without an application the event is deleted. */
ORVWIDGETS_EXPORT void postToApplication(QEvent* event);

} // namespace OrvWidgets
