#include <orv_bitfield_widget.h>

#include <QPainter>
#include <QtTest>

using namespace OrvWidgets;

class TestOrvBitfieldWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cells_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<qreal>("ratio");
        for (const qreal ratio : {1.0, 2.0}) {
            QTest::addRow("0x80 @%g", ratio) << 0x80 << ratio;
            QTest::addRow("0x01 @%g", ratio) << 0x01 << ratio;
            QTest::addRow("0xA5 @%g", ratio) << 0xA5 << ratio;
        }
    }
    void cells()
    {
        QFETCH(int, value);
        QFETCH(qreal, ratio);
        OrvBitfieldWidget widget(nullptr, quint8(value));
        widget.setHasCaption(false);
        widget.setOnColor(Qt::red);
        widget.resize(80, 20);
        QPixmap pixmap(QSize(80, 20) * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::green);
        widget.render(&pixmap);
        const QImage image = pixmap.toImage();
        for (int i = 0; i < 8; ++i) {
            const QColor expected = (value & (0x80 >> i)) ? Qt::red : Qt::white;
            QCOMPARE(image.pixelColor(int((10 * i + 5) * ratio), int(10 * ratio)), expected);
        }
    }

    void clicks_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("toggled");
        QTest::newRow("boundary 10") << 10 << 0;
        QTest::newRow("left edge") << 0 << 0;
        QTest::newRow("cell 0") << 5 << 0x80;
        QTest::newRow("cell 1") << 15 << 0x40;
        QTest::newRow("cell 7") << 75 << 0x01;
        QTest::newRow("rest right of the cells") << 82 << 0;
    }
    void clicks()
    {
        QFETCH(int, x);
        QFETCH(int, toggled);
        OrvBitfieldWidget widget(nullptr, 0x0F);
        widget.resize(x == 82 ? 85 : 80, 20);
        QSignalSpy changed(&widget, &OrvBitfieldWidget::valueChanged);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(int(widget.value()), 0x0F ^ toggled);
        QCOMPARE(changed.size(), toggled ? 1 : 0);
        if (toggled) {
            QCOMPARE(changed.first().first().value<quint8>(), quint8(0x0F ^ toggled));
            QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
            QCOMPARE(changed.last().first().value<quint8>(), quint8(0x0F));
        }
        widget.setEditable(false);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(x, 10));
        QCOMPARE(int(widget.value()), 0x0F);
    }

    void settersEmitOnChangeOnly()
    {
        OrvBitfieldWidget widget(nullptr, 0x12);
        QCOMPARE(widget.objectName(), QStringLiteral("OrvBitfieldWidget"));
        QSignalSpy value(&widget, &OrvBitfieldWidget::valueChanged);
        QSignalSpy editable(&widget, &OrvBitfieldWidget::isEditableChanged);
        QSignalSpy caption(&widget, &OrvBitfieldWidget::hasCaptionChanged);
        widget.setValue(0x12);
        widget.setEditable(true);
        widget.setHasCaption(true);
        QCOMPARE(value.size() + editable.size() + caption.size(), 0);

        QVERIFY(widget.setProperty("value", QVariant::fromValue<quint8>(0x34)));
        QVERIFY(widget.setProperty("editable", false));
        QVERIFY(widget.setProperty("hasCaption", false));
        QVERIFY(widget.setProperty("onColor", QColor(Qt::blue)));
        QCOMPARE(widget.property("value").value<quint8>(), quint8(0x34));
        QCOMPARE(value.size(), 1);
        QCOMPARE(editable.size(), 1);
        QCOMPARE(editable.first().first().toBool(), false);
        QCOMPARE(caption.size(), 1);
        QCOMPARE(widget.onColor(), QColor(Qt::blue));
        QCOMPARE(widget.offColor(), QColor(Qt::white));
    }

    void paintsAtAnySize()
    {
        // Captions scale with the widget; tiny and empty sizes must not trip the font.
        for (const QSize size : {QSize(0, 0), QSize(3, 1), QSize(400, 30), QSize(40, 200)}) {
            OrvBitfieldWidget widget(nullptr, 0x5A);
            widget.resize(size);
            QVERIFY(!widget.grab().isNull() || size.isEmpty());
        }
    }
};

QTEST_MAIN(TestOrvBitfieldWidget)
#include "tst_orv_bitfield_widget.moc"
