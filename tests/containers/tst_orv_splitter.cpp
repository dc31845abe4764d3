#include <orv_splitter.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
const QColor kFlashRed(239, 87, 50);

// A shown horizontal splitter of three panes, 320 pixels wide (300 for the panes).
struct ThreePanes
{
    ThreePanes()
    {
        for (int i = 0; i < 3; ++i)
            splitter.addWidget(new QWidget);
        splitter.resize(320, 100);
        splitter.show();
        splitter.setSizes({100, 100, 100});
    }
    OrvSplitter splitter;
};
} // namespace

class TestOrvSplitter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void collapseChild_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("collapses");
        QTest::newRow("first pane") << 0 << true;
        QTest::newRow("last pane") << 2 << true;
        QTest::newRow("a child object but no pane") << 4 << false;
        QTest::newRow("beyond the child objects") << 6 << false;
        QTest::newRow("negative") << -1 << false;
    }
    void collapseChild()
    {
        QFETCH(int, index);
        QFETCH(bool, collapses);
        ThreePanes f;
        const QList<int> before = f.splitter.getSizes();
        f.splitter.collapseChild(index);
        const QList<int> after = f.splitter.getSizes();
        if (!collapses) {
            QCOMPARE(after, before);
            return;
        }
        QCOMPARE(after.at(index), 0);
        QCOMPARE(std::accumulate(after.cbegin(), after.cend(), 0), 300);
    }

    void sizesChangedKeepsSplittersInStep()
    {
        ThreePanes a, b;
        connect(&a.splitter, &OrvSplitter::sizesChanged, &b.splitter, &OrvSplitter::changeSizes);
        QSignalSpy spy(&a.splitter, &OrvSplitter::sizesChanged);
        // The splitter's own operations leave the signal to its owner.
        a.splitter.setSizes({200, 50, 50});
        a.splitter.collapseChild(0);
        QCOMPARE(spy.count(), 0);

        const QList<int> wanted{60, 60, 180};
        Q_EMIT a.splitter.sizesChanged(wanted);
        QCOMPARE(a.splitter.getSizes(), wanted);
        QCOMPARE(b.splitter.getSizes(), wanted);
    }

    // The "sizes" property animates linearly per pane and ends exactly on the end value.
    void sizesAnimation()
    {
        OrvSplitter::registerInterpolator(); // twice is harmless
        ThreePanes f;
        const QList<int> end{1, 149, 150};
        QPropertyAnimation animation(&f.splitter, "sizes");
        animation.setDuration(1000);
        animation.setStartValue(QVariant::fromValue(QList<int>{201, 49, 50}));
        animation.setEndValue(QVariant::fromValue(end));
        animation.start();
        animation.pause(); // stepped by hand
        animation.setCurrentTime(500);
        QCOMPARE(animation.currentValue().value<QList<int>>(), (QList<int>{101, 99, 100}));
        QCOMPARE(f.splitter.property("sizes").value<QList<int>>(), (QList<int>{101, 99, 100}));
        animation.setCurrentTime(1000);
        QCOMPARE(f.splitter.getSizes(), end);
    }

    void flashRunsTwoPassesOnce()
    {
        ThreePanes f;
        QVERIFY(QTest::qWaitForWindowExposed(&f.splitter));
        auto* handle = qobject_cast<OrvSplitterHandle*>(f.splitter.handle(1));
        QVERIFY(handle);
        const QColor endColor = handle->palette().color(handle->backgroundRole());
        const QImage idle = handle->grab().toImage();

        f.splitter.animate(1);
        QVERIFY(handle->isAnimating());
        QCOMPARE(handle->splitterColor(), kFlashRed);
        const QImage flashing = handle->grab().toImage();
        QCOMPARE(flashing.pixelColor(flashing.rect().center()), kFlashRed);

        // A second request during the flash neither restarts nor resets it.
        QTRY_VERIFY(handle->splitterColor() != kFlashRed);
        const QColor midway = handle->splitterColor();
        f.splitter.animate(1);
        QCOMPARE(handle->splitterColor(), midway);

        QTRY_VERIFY_WITH_TIMEOUT(!handle->isAnimating(), 10000);
        QCOMPARE(handle->splitterColor(), endColor);
        QCOMPARE(handle->grab().toImage(), idle);
    }

    void destroyedMidFlash()
    {
        auto* f = new ThreePanes;
        for (int index : {-1, 0, 3})
            f->splitter.animate(index); // no such flashing handle: nothing happens
        f->splitter.animate(1);
        f->splitter.animate(2);
        QTest::qWait(50);
        delete f;
        QTest::qWait(50);
    }
};

QTEST_MAIN(TestOrvSplitter)
#include "tst_orv_splitter.moc"
