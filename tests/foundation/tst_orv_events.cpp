#include <orv_events.h>
#include <orv_types.h>

#include <QtTest>

using namespace OrvWidgets;

// Records the custom events that reach the application object.
class EventRecorder : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == QCoreApplication::instance() && event->type() >= QEvent::User) {
            types << event->type();
            accepted << event->isAccepted();
            if (event->type() == OrvLinkEvent::eventTypeId()) {
                auto* link = static_cast<OrvLinkEvent*>(event);
                urls << link->url();
                sources << link->sourceBaseLayoutWidget();
            }
            if (event->type() == SaveImageEvent::saveImageEventId()) {
                auto* save = static_cast<SaveImageEvent*>(event);
                pixmapSizes << save->pixmap().size();
                sources << save->widget();
            }
        }
        return false;
    }
    QList<int> types;
    QList<bool> accepted;
    QList<QUrl> urls;
    QList<QWidget*> sources;
    QList<QSize> pixmapSizes;
};

class TestOrvEvents : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void typesAreStableAndDistinct()
    {
        const QList<int> first = {OrvLinkEvent::eventTypeId(),       SaveImageEvent::saveImageEventId(),
                                  SetMarkerEvent::setMarkerEventId(), AddMarkerEvent::addMarkerEventId(),
                                  AddSnapshotEvent::addSnapshotEventId(), SaveSnapshotEvent::saveSnapshotEventId()};
        const QList<int> second = {OrvLinkEvent::eventTypeId(),       SaveImageEvent::saveImageEventId(),
                                   SetMarkerEvent::setMarkerEventId(), AddMarkerEvent::addMarkerEventId(),
                                   AddSnapshotEvent::addSnapshotEventId(), SaveSnapshotEvent::saveSnapshotEventId()};
        QCOMPARE(first, second);
        QCOMPARE(QSet<int>(first.begin(), first.end()).size(), 6);
        for (int t : first) {
            QVERIFY(t >= QEvent::User);
            QVERIFY(t <= QEvent::MaxUser);
        }
        // Each event carries its own class's type.
        QCOMPARE(int(OrvLinkEvent(QUrl(), nullptr).type()), first[0]);
        QCOMPARE(int(SaveImageEvent(nullptr, QPixmap()).type()), first[1]);
        QCOMPARE(int(SetMarkerEvent("m").type()), first[2]);
        QCOMPARE(int(AddMarkerEvent().type()), first[3]);
        QCOMPARE(int(AddSnapshotEvent().type()), first[4]);
        QCOMPARE(int(SaveSnapshotEvent("s").type()), first[5]);
    }

    void descriptions()
    {
        SetMarkerEvent marker("first");
        QCOMPARE(marker.getDescription(), QStringLiteral("first"));
        marker.setDescription("second");
        QCOMPARE(marker.getDescription(), QStringLiteral("second"));
        SaveSnapshotEvent snapshot("snap");
        snapshot.setDescription("shot");
        QCOMPARE(snapshot.getDescription(), QStringLiteral("shot"));
    }

    void linkEventCopiesAndMoves()
    {
        QWidget shell;
        OrvLinkEvent original(QUrl("orv://ParticipantInfo/19"), &shell);
        OrvLinkEvent copy(original);
        QCOMPARE(copy.url(), original.url());
        QCOMPARE(copy.sourceBaseLayoutWidget(), &shell);
        OrvLinkEvent moved(std::move(copy));
        QCOMPARE(moved.url(), QUrl("orv://ParticipantInfo/19"));
        QCOMPARE(moved.url().path(), QStringLiteral("/19"));
        QCOMPARE(moved.type(), original.type());
    }

    void postedLinkLosesDestroyedSource()
    {
        EventRecorder recorder;
        qApp->installEventFilter(&recorder);
        auto* shell = new QWidget;
        postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://NotificationAck/%1").arg(42)), shell));
        postToApplication(new OrvLinkEvent(QUrl("orv://ParticipantInfo/19"), shell));
        delete shell; // gone before delivery
        QCoreApplication::sendPostedEvents(qApp);
        qApp->removeEventFilter(&recorder);
        QCOMPARE(recorder.urls.size(), 2);
        QCOMPARE(recorder.urls[0], QUrl("orv://NotificationAck/42"));
        QCOMPARE(recorder.sources, QList<QWidget*>({nullptr, nullptr}));
        QCOMPARE(recorder.accepted, QList<bool>({false, false}));
    }

    void saveImageEventCarriesPixmap()
    {
        EventRecorder recorder;
        qApp->installEventFilter(&recorder);
        QWidget page;
        page.resize(40, 30);
        postToApplication(new SaveImageEvent(&page, page.grab()));
        QCoreApplication::sendPostedEvents(qApp);
        qApp->removeEventFilter(&recorder);
        QCOMPARE(recorder.pixmapSizes.size(), 1);
        QCOMPARE(recorder.pixmapSizes[0], QSize(40, 30));
        QCOMPARE(recorder.sources[0], &page);
    }

    void nullEventIsIgnored()
    {
        postToApplication(nullptr); // no crash, nothing posted
    }

    void sharedEnumValues()
    {
        QCOMPARE(int(ExerciseState::eAll),
                 ExerciseState::eCreated | ExerciseState::eStarted | ExerciseState::ePaused | ExerciseState::eStopped
                     | ExerciseState::eTerminated);
        const ExerciseStates states = ExerciseState::eCreated | ExerciseState::ePaused;
        QVERIFY(states.testFlag(ExerciseState::ePaused));
        QVERIFY(!states.testFlag(ExerciseState::eStarted));
        QCOMPARE(int(Designer::eUnknownArea), int(eUnknown));
        QCOMPARE(int(Designer::eTextNextToIcon), int(eTextNextToIcon));
        QCOMPARE(QMetaEnum::fromType<Designer::LayoutArea>().valueToKey(Designer::eMainTab), "eMainTab");
    }
};

QTEST_MAIN(TestOrvEvents)
#include "tst_orv_events.moc"
