#include <orv_events.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
// Describes the link and save-image events that reach the application object.
struct EventRecorder : QObject
{
    EventRecorder() { qApp->installEventFilter(this); }
    ~EventRecorder() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString accepted = event->isAccepted() ? "accepted " : "";
        if (watched == qApp && event->type() == OrvLinkEvent::eventTypeId()) {
            const auto* link = static_cast<OrvLinkEvent*>(event);
            seen << accepted + link->url().toString() + (link->sourceBaseLayoutWidget() ? " from source" : "");
        } else if (watched == qApp && event->type() == SaveImageEvent::saveImageEventId()) {
            const auto* save = static_cast<SaveImageEvent*>(event);
            seen << accepted + QStringLiteral("image %1x%2").arg(save->pixmap().width()).arg(save->pixmap().height())
                        + (save->widget() ? " from source" : "");
        }
        return false;
    }
    QStringList seen;
};
} // namespace

class TestOrvEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Each event registers its own type once and carries it.
    void typesAreStableAndDistinct()
    {
        const QList<int> types = {OrvLinkEvent(QUrl(), nullptr).type(), SaveImageEvent(nullptr, QPixmap()).type(),
                                  SetMarkerEvent("m").type(),           AddMarkerEvent().type(),
                                  AddSnapshotEvent().type(),            SaveSnapshotEvent("s").type()};
        QCOMPARE(types, (QList<int>{OrvLinkEvent::eventTypeId(), SaveImageEvent::saveImageEventId(),
                                    SetMarkerEvent::setMarkerEventId(), AddMarkerEvent::addMarkerEventId(),
                                    AddSnapshotEvent::addSnapshotEventId(), SaveSnapshotEvent::saveSnapshotEventId()}));
        QCOMPARE(QSet<int>(types.begin(), types.end()).size(), 6);
        QVERIFY(*std::min_element(types.begin(), types.end()) >= QEvent::User);
    }

    // Posted events arrive unaccepted; a link whose source is gone by then names none.
    void postedEvents()
    {
        QWidget page;
        page.resize(40, 30);
        auto* shell = new QWidget;
        EventRecorder recorder;
        postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://NotificationAck/%1").arg(42)), shell));
        postToApplication(nullptr); // ignored
        postToApplication(new SaveImageEvent(&page, page.grab()));
        delete shell;
        QCoreApplication::sendPostedEvents(qApp);
        QCOMPARE(recorder.seen, QStringList({"orv://notificationack/42", "image 40x30 from source"}));
    }
};

QTEST_MAIN(TestOrvEvents)
#include "tst_orv_events.moc"
