#include <orv_frameless_dialog.h>

#include <QtTest>

namespace OrvWidgets {
// Reaches the private screen lookup, which has no public entry point.
class OrvFramelessDialogTest
{
public:
    static QRect screenRectFromPoint(const QPoint& p) { return OrvFramelessDialog::screenRectFromPoint(p); }
};
} // namespace OrvWidgets

using namespace OrvWidgets;

class TestOrvFramelessDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void flags_data()
    {
        QTest::addColumn<int>("behaviour");
        QTest::addColumn<bool>("modal");
        QTest::addColumn<int>("windowType");
        QTest::addColumn<bool>("staysOnTop");
        QTest::newRow("popup") << int(OrvFramelessDialog::Popup) << false << int(Qt::Popup) << false;
        QTest::newRow("modal") << int(OrvFramelessDialog::Modal) << true << int(Qt::Dialog) << true;
    }
    void flags()
    {
        QFETCH(int, behaviour);
        QFETCH(bool, modal);
        QFETCH(int, windowType);
        QFETCH(bool, staysOnTop);
        OrvFramelessDialog dialog(nullptr, OrvFramelessDialog::Behaviour(behaviour));
        QCOMPARE(dialog.isModal(), modal);
        QCOMPARE(int(dialog.windowType()), windowType);
        QCOMPARE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint), staysOnTop);
    }

    void centredOnPrimaryScreenWithoutParent()
    {
        OrvFramelessDialog dialog(nullptr, OrvFramelessDialog::Modal);
        dialog.resize(300, 200);
        dialog.show();
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QTRY_COMPARE(dialog.geometry().center(), screen.center());
        QCOMPARE(dialog.size(), QSize(300, 200));
    }

    void centredOverParentWindow()
    {
        QWidget window;
        window.setGeometry(100, 80, 800, 600);
        auto* inner = new QWidget(&window);
        inner->setGeometry(10, 10, 50, 50);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        OrvFramelessDialog dialog(inner, OrvFramelessDialog::Popup);
        dialog.resize(200, 100);
        dialog.show();
        const QRect reference(window.mapToGlobal(QPoint(0, 0)), window.size());
        QTRY_COMPARE(dialog.geometry().center(), reference.center());
    }

    void screenLookupToleratesFiftyPixels_data()
    {
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<bool>("found");
        QTest::newRow("inside") << QPoint(10, 10) << true;
        QTest::newRow("40 px left of the edge") << QPoint(-40, 10) << true;
        QTest::newRow("50 px above") << QPoint(10, -50) << true;
        QTest::newRow("51 px left") << QPoint(-51, 10) << false;
        QTest::newRow("far away") << QPoint(-5000, -5000) << false;
    }
    void screenLookupToleratesFiftyPixels()
    {
        QFETCH(QPoint, offset);
        QFETCH(bool, found);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QRect result = OrvFramelessDialogTest::screenRectFromPoint(screen.topLeft() + offset);
        QCOMPARE(result == screen, found);
        QCOMPARE(result.isEmpty(), !found);
    }
};

QTEST_MAIN(TestOrvFramelessDialog)
#include "tst_orv_frameless_dialog.moc"
