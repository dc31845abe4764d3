#include <orv_elided_label.h>

#include <QtTest>

using namespace OrvWidgets;

namespace {
const QString kLongText = QStringLiteral("Lage Nord: Versorgungsstrecke gesperrt bis auf Weiteres");

QImage shot(QLabel* label, int width)
{
    label->resize(width, 24);
    return label->grab().toImage();
}
} // namespace

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
        QTest::newRow("right (default)") << int(Qt::ElideRight) << kLongText << 90;
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
        if (mode != Qt::ElideRight) // through the designer property
            QVERIFY(label.setProperty("ElideMode", QVariant::fromValue(Qt::TextElideMode(mode))));
        QCOMPARE(label.elideMode(), Qt::TextElideMode(mode));
        const QString shown = mode == Qt::ElideNone
            ? text
            : label.fontMetrics().elidedText(text, Qt::TextElideMode(mode), width, Qt::TextShowMnemonic);
        QLabel reference(shown);
        QCOMPARE(shot(&label, width), shot(&reference, width));
        QCOMPARE(label.text(), text);
    }

    void followsTextChange()
    {
        OrvElidedLabel label(kLongText);
        shot(&label, 90);
        label.setText(QStringLiteral("Süd"));
        QLabel reference(QStringLiteral("Süd"));
        QCOMPARE(shot(&label, 90), shot(&reference, 90));
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
        shot(&label, 90);
        QCOMPARE(label.minimumWidth(), minimum);
    }
};

QTEST_MAIN(TestOrvElidedLabel)
#include "tst_orv_elided_label.moc"
