#pragma once

#include "orvwidgets_export.h"

#include <QLineEdit>
#include <QWidget>

#include <functional>

class QShortcut;
class Ui_OrvDateTimeEdit;
namespace Ui {
class OrvDateTimeEditLe;
}

namespace OrvWidgets {

// A field that reports leaving it: plainly, or backwards by Backspace in an empty field.
class ORVWIDGETS_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit LineEdit(QWidget* parent = nullptr);

    // Also drops the yellow marking.
    void clear();
    bool isEmpty() const;

Q_SIGNALS:
    void focusOutBackspace();
    void focusOut();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

// A numeric field; the wheel and Up/Down ask the owner to step the unit under the cursor.
class ORVWIDGETS_EXPORT DigitsLineEdit : public LineEdit
{
    Q_OBJECT
public:
    explicit DigitsLineEdit(QWidget* parent = nullptr);

    void setExactNumDigits(int numDigits);
    int exactNumDigits() const { return m_exactNumDigits; }
    // A negative position becomes 1.
    void setCursorPosition(int pos);
    void setValue(int value);
    int getValue() const;

Q_SIGNALS:
    void wheelEventReceived(bool bForward, int cursorPos);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_exactNumDigits;
};

// Editor of one instant (UTC milliseconds) as a date-time group: day, HHMMSS, zone letter,
// month name and two-digit year, shown in the local time of the zone letter.
class ORVWIDGETS_EXPORT OrvDateTimeEdit : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool autoForward READ autoForward WRITE setAutoForward)
    Q_PROPERTY(bool editTimezone READ editTimezone WRITE setEditTimezone)
    Q_PROPERTY(bool withButtons READ withButtons WRITE setWithButtons)
    Q_PROPERTY(bool withSlider READ withSlider WRITE setWithSlider)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool withNowButton READ withNowButton WRITE setWithNowButton)
    Q_PROPERTY(bool checkable READ isCheckable WRITE setCheckable)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY toggled)

public:
    // The application's current time, UTC milliseconds since the epoch.
    using CurrentTimeCallback = std::function<qint64()>;

    explicit OrvDateTimeEdit(QWidget* parent = nullptr, bool withNowButton = false, bool checkable = false);
    ~OrvDateTimeEdit() override;

    // 0 when a field is empty, the box is unchecked or the fields are not acceptable.
    qint64 msecsSinceEpoch() const;
    bool isEmpty() const;
    bool isValidDate() const { return m_dateIsAcceptable; }
    // Any of the five fields has the focus.
    bool hasFocus() const;

    void setMinimumTimeMSec(qint64 msec);
    void setMaximumTimeMSec(qint64 msec);
    void setMinMaxTimeMSec(qint64 minMSec, qint64 maxMSec);
    qint64 minimumTimeMSec() const { return m_minTimeMSec; }
    qint64 maximumTimeMSec() const { return m_maxTimeMSec; }

    void setRetrieveCurrentTimeCallback(const CurrentTimeCallback& callback);

    bool setTimezone(char zone);
    char getTimezone() const;
    qint64 getTimezoneAsSecs() const;

    void setEditTimezone(bool edit);
    bool editTimezone() const { return m_editTimezone; }
    void setAutoForward(bool autoForward);
    bool autoForward() const { return m_autoForward; }
    void setWithButtons(bool withButtons);
    bool withButtons() const { return m_withButtons; }
    void setWithSlider(bool withSlider);
    bool withSlider() const { return m_withSlider; }
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_readOnly; }
    void setCheckable(bool checkable);
    bool isCheckable() const { return m_checkable; }
    void setChecked(bool checked);
    bool isChecked() const;
    void setWithNowButton(bool withNowButton);
    bool withNowButton() const { return m_withNowButton; }

    // Dynamic property on every field, for style-sheet selectors.
    void setSubWidgetsProperties(const QString& name, const QVariant& value);

    // Replaces the line-edit fields by spin boxes and combo boxes.
    void setupUiTouch();
    // Month window of the touch month combo.
    void setMinMaxMonth(int minMonth, int maxMonth);

public Q_SLOTS:
    bool setMsecsSinceEpoch(qint64 msec, bool setToNearestPossible = true);
    void clear();
    void setFixedDateTime();
    void setOffsetDateTime();

Q_SIGNALS:
    void dateTimeChanged();
    void toggled(bool checked);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void setSliderValue(int seconds);
    void valueDayChanged(const QString& text);
    void fixupHHMMSS();
    void valueMonthChanged(const QString& text);
    void valueMonthChanged2(const QString& text);
    void valueTimezoneChangedStr(const QString& text);
    void valueTimezoneChangedInt(int newTimezone);
    void valueYearChanged(const QString& text);
    void onBackHourClicked();
    void onBackMinuteClicked();
    void onBackSecondClicked();
    void onForwardSecondClicked();
    void onForwardMinuteClicked();
    void onForwardHourClicked();
    void onCheckBoxChanged();
    void disableControls();
    void enableControls();
    void enaDisaControls(bool bEnable);
    void onFocusOutHHMMSS();
    void onFocusOutTZ();
    void onFocusOutDay();
    void onFocusOutMonth();
    void onFocusOutYear();
    void onFocusOutBackspace();
    void onFocusOut();
    void onHmsWheelEvent(bool bForward, int cursorPos);
    void onDayWheelEvent(bool bForward, int cursorPos);
    void onMonthWheelEvent(bool bForward, int cursorPos);
    void onYearWheelEvent(bool bForward, int cursorPos);
    void onTouchValueChanged();

private:
    friend class OrvDateTimeEditTest;
    enum Field { Day, Time, Zone, Month, Year };

    bool setDay(int day);
    int getDay() const;
    bool setHHMMSS(int hour, int minute, int second);
    int getHour() const;
    int getMinute() const;
    int getSecond() const;
    int getHHMMSS() const;
    bool setMonth(int month);
    int getMonth() const;
    bool setYear(int year);
    int getYear() const;
    bool isEmptyDay() const;
    bool isEmptyHHMMSS() const;
    bool isEmptyTimezone() const;
    bool isEmptyMonth() const;
    bool isEmptyYear() const;
    void clearTimezone();

    bool isDayAcceptable() const;
    bool isTimeAcceptable() const;
    bool isMonthAcceptable() const;
    bool isYearAcceptable() const;
    bool isTimezoneAcceptable() const;
    bool isDataAcceptable() const;
    void showInvalidData(bool setFocus) const;

    QList<QWidget*> fieldWidgets(Field field) const;
    QLineEdit* fieldLineEdit(Field field) const;
    bool isFieldEmpty(Field field) const;
    bool otherFieldHasText(Field field) const;
    void completeFocusOut(Field field);
    void stepBy(qint64 msec, bool backward);
    void stepCalendar(Field field, bool bForward, int cursorPos);
    void finishWheel(QLineEdit* field, int cursorPos, int selStart, int selLength);
    void applyCheckable();
    void updateFieldsEnabled();
    void setControlsEnabled(bool enable, bool followValue) const;
    void retranslate();

    Ui::OrvDateTimeEditLe* m_uiLe;
    Ui_OrvDateTimeEdit* m_uiTouch;
    QShortcut* m_scFixed;
    QShortcut* m_scOffset;
    CurrentTimeCallback m_getCurrentTimeCallback;
    qint64 m_minTimeMSec;
    qint64 m_maxTimeMSec;
    // The value the fields were last validated to; validation runs from const readers too.
    mutable qint64 m_curTimeMSec;
    bool m_editTimezone;
    bool m_autoForward;
    bool m_withButtons;
    bool m_withSlider;
    bool m_readOnly;
    bool m_checkable;
    bool m_withNowButton;
    int m_minMonth;
    int m_maxMonth;
    bool m_backspacePressed;
    bool m_recursionAvoid;
    mutable bool m_dateIsAcceptable;
};

} // namespace OrvWidgets
