#include <orv_elided_label.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
const QString kLongText = QStringLiteral("Lage Nord: Versorgungsstrecke gesperrt bis auf Weiteres");
}

class TestOrvElidedLabel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The label paints exactly what a plain label shows for the shortened text.
    void paintsElidedText_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::newRow("right") << int(Qt::ElideRight) << kLongText << 90;
        QTest::newRow("left") << int(Qt::ElideLeft) << kLongText << 90;
        QTest::newRow("middle") << int(Qt::ElideMiddle) << kLongText << 90;
        QTest::newRow("none") << int(Qt::ElideNone) << kLongText << 90;
        QTest::newRow("fits") << int(Qt::ElideRight) << QStringLiteral("Nord") << 200;
    }
    void paintsElidedText()
    {
        QFETCH(int, mode);
        QFETCH(QString, text);
        QFETCH(int, width);
        OrvElidedLabel label(text);
        label.setElideMode(Qt::TextElideMode(mode));
        QLabel reference;
        for (QLabel* l : {static_cast<QLabel*>(&label), &reference}) {
            l->resize(width, 24);
            l->show();
            QVERIFY(QTest::qWaitForWindowExposed(l));
        }
        const QString shown = mode == Qt::ElideNone
            ? text
            : label.fontMetrics().elidedText(text, Qt::TextElideMode(mode), width, Qt::TextShowMnemonic);
        reference.setText(shown);
        QCOMPARE(label.grab().toImage(), reference.grab().toImage());
        QCOMPARE(label.text(), text);
    }

    void followsTextChange()
    {
        OrvElidedLabel label(kLongText);
        label.resize(90, 24);
        label.grab();
        label.setText(QStringLiteral("Süd"));
        QLabel reference(QStringLiteral("Süd"));
        reference.resize(label.size());
        QCOMPARE(label.grab().toImage(), reference.grab().toImage());
    }

    void minimumWidthIsOneCharacterAndEllipsis_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("minimum");
        QTest::newRow("text") << kLongText << QLabel().fontMetrics().horizontalAdvance(QStringLiteral("L...")) + 1;
        QTest::newRow("empty") << QString() << 0;
    }
    void minimumWidthIsOneCharacterAndEllipsis()
    {
        QFETCH(QString, text);
        QFETCH(int, minimum);
        OrvElidedLabel label(text);
        label.resize(90, 24);
        label.grab();
        QCOMPARE(label.minimumWidth(), minimum);
    }

    void elideModeProperty()
    {
        OrvElidedLabel label;
        QCOMPARE(label.elideMode(), Qt::ElideRight);
        QVERIFY(label.setProperty("ElideMode", QVariant::fromValue(Qt::ElideMiddle)));
        QCOMPARE(label.elideMode(), Qt::ElideMiddle);
        QCOMPARE(label.property("ElideMode").value<Qt::TextElideMode>(), Qt::ElideMiddle);
    }
};

QTEST_MAIN(TestOrvElidedLabel)
#include "tst_orv_elided_label.moc"
