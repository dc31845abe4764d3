#pragma once

// Shared by the date-time edit tests: field access and an active window around the editor.
#include <orv_date_time_edit.h>

#include <QtTest>
#include <QtWidgets>

namespace DateTimeEditTest {

inline const char* const kFields[] = {"leLongDay", "leLongHHMMSS", "leLongTZ", "leLongMonth", "leLongYear"};

inline qint64 utc(int y, int mo, int d, int h = 0, int mi = 0, int s = 0)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s), Qt::UTC).toMSecsSinceEpoch();
}
inline QLineEdit* field(const QWidget& edit, const char* name)
{
    return edit.findChild<QLineEdit*>(QLatin1String(name));
}
inline QStringList fieldTexts(const QWidget& edit)
{
    QStringList texts;
    for (const char* name : kFields)
        texts << field(edit, name)->text();
    return texts;
}
// The five field texts, blank-separated.
inline QString shown(const QWidget& edit)
{
    return fieldTexts(edit).join(QLatin1Char(' '));
}
inline bool sendWheel(QWidget* target, int delta)
{
    QWheelEvent wheel(QPointF(2, 2), QPointF(2, 2), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &wheel);
    return wheel.isAccepted();
}

// The editor between two other fields, in an active window: focus moves and shortcuts work.
struct Window
{
    QWidget top;
    QLineEdit* before = new QLineEdit(&top);
    OrvWidgets::OrvDateTimeEdit* edit;
    QLineEdit* after = nullptr;
    explicit Window(bool withNow = false, bool checkable = false)
        : edit(new OrvWidgets::OrvDateTimeEdit(&top, withNow, checkable))
    {
        after = new QLineEdit(&top);
        auto* layout = new QHBoxLayout(&top);
        for (QWidget* w : {static_cast<QWidget*>(before), static_cast<QWidget*>(edit), static_cast<QWidget*>(after)})
            layout->addWidget(w);
        top.show();
        QApplication::setActiveWindow(&top);
        QVERIFY(QTest::qWaitForWindowActive(&top));
    }
};

} // namespace DateTimeEditTest
