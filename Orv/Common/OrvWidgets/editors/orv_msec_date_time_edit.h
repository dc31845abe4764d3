#pragma once

#include "orvwidgets_export.h"

#include <QDateTimeEdit>

namespace OrvWidgets {

// Edits an instant with millisecond resolution ("dd.MM.yy HH:mm:ss.zzz"), shown as
// UTC plus a whole number of hours. Callers exchange milliseconds since the epoch.
class ORVWIDGETS_EXPORT OrvMSecDateTimeEdit : public QDateTimeEdit
{
    Q_OBJECT
public:
    explicit OrvMSecDateTimeEdit(QWidget* parent = nullptr);
    explicit OrvMSecDateTimeEdit(const QDateTime& dateTime, QWidget* parent = nullptr);
    explicit OrvMSecDateTimeEdit(const QDate& date, QWidget* parent = nullptr);
    explicit OrvMSecDateTimeEdit(const QTime& time, QWidget* parent = nullptr);
    ~OrvMSecDateTimeEdit() override;

    void stepBy(int steps) override;

    qint64 msecsSinceEpoch() const;
    int timezoneHoursOffset() const { return m_timezoneHoursOffset; }
    void setTimezoneHoursOffset(int hours);
    int msecStepSize() const { return m_msecStepSize; }
    void setMsecStepSize(int msecs);

public Q_SLOTS:
    // Shows dt's instant in this widget's hour offset, whatever zone dt carries.
    void setDateTime(const QDateTime& dateTime);
    void setMsecsSinceEpoch(qint64 msecs);

private Q_SLOTS:
    void onEditingFinished();

private:
    void init();
    void showWallClock(const QDateTime& wallClock);

    int m_msecStepSize = 10;
    int m_timezoneHoursOffset = 0;
};

} // namespace OrvWidgets
