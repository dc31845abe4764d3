#include "orv_date_time_edit.h"
#include "orv_date_time_edit_p.h"

#include <dtg.h>
#include <orv_settings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFontMetricsF>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QWheelEvent>
#include <QtNumeric>

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 kSecondMSec = 1000;
constexpr qint64 kMinuteMSec = 60 * kSecondMSec;
constexpr qint64 kHourMSec = 60 * kMinuteMSec;
constexpr qint64 kDayMSec = 24 * kHourMSec;
constexpr int kCtrlFactor = 5;


QString invalidStyle()
{
    return QStringLiteral("background-color: yellow;");
}

// Re-applying an unchanged style sheet still repolishes the widget; validation runs on every edit.
void setStyleSheetIfChanged(QWidget* widget, const QString& sheet)
{
    if (widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}

bool validatorAccepts(const QLineEdit* field)
{
    const QValidator* validator = field->validator();
    if (!validator)
        return true;
    QString text = field->text();
    int pos = 0;
    return validator->validate(text, pos) != QValidator::Invalid;
}

// Values come from callers and settings unchecked: never let a step overflow.
qint64 saturatedAdd(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (qAddOverflow(a, b, &result))
        return b > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
    return result;
}

// The slider works in seconds and is limited to int.
int toSliderValue(qint64 seconds)
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), seconds, qint64(std::numeric_limits<int>::max())));
}

bool numberAtLeast(const QString& text, int limit)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok && value >= limit;
}

bool ctrlHeld()
{
    return QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
}

QRegularExpressionValidator* digitsValidator(const QString& pattern, QObject* parent)
{
    return new QRegularExpressionValidator(QRegularExpression(pattern), parent);
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Forms

namespace Ui {

void OrvDateTimeEditLe::setupUi(QWidget* widget)
{
    using namespace OrvWidgets;
    gridLayout = new QGridLayout(widget);
    gridLayout->setObjectName(QStringLiteral("gridLayout"));
    gridLayout->setContentsMargins(0, 0, 0, 0);
    int column = 3;

    checkBox = new QCheckBox(widget);
    checkBox->setObjectName(QStringLiteral("checkBox"));
    gridLayout->addWidget(checkBox, 0, column++);

    auto* fields = new QHBoxLayout;
    fields->setSpacing(0);
    fields->setContentsMargins(0, 0, 0, 0);
    leLongDay = new DigitsLineEdit(widget);
    leLongDay->setObjectName(QStringLiteral("leLongDay"));
    setFixedSize(leLongDay, 2);
    leLongHHMMSS = new DigitsLineEdit(widget);
    leLongHHMMSS->setObjectName(QStringLiteral("leLongHHMMSS"));
    leLongHHMMSS->setExactNumDigits(6);
    setFixedSize(leLongHHMMSS, 6);
    leLongTZ = new LineEdit(widget);
    leLongTZ->setObjectName(QStringLiteral("leLongTZ"));
    leLongTZ->setAlignment(Qt::AlignCenter);
    setFixedSize(leLongTZ, 1);
    leLongMonth = new DigitsLineEdit(widget);
    leLongMonth->setObjectName(QStringLiteral("leLongMonth"));
    leLongMonth->setAlignment(Qt::AlignCenter);
    setFixedSize(leLongMonth, 3);
    leLongYear = new DigitsLineEdit(widget);
    leLongYear->setObjectName(QStringLiteral("leLongYear"));
    leLongYear->setExactNumDigits(2);
    setFixedSize(leLongYear, 2);
    for (QWidget* field : {static_cast<QWidget*>(leLongDay), static_cast<QWidget*>(leLongHHMMSS),
                           static_cast<QWidget*>(leLongTZ), static_cast<QWidget*>(leLongMonth),
                           static_cast<QWidget*>(leLongYear)})
        fields->addWidget(field);
    gridLayout->addLayout(fields, 0, column++);

    pbNow = new QPushButton(widget);
    pbNow->setObjectName(QStringLiteral("pbNow"));
    m_nowColumn = column;
    gridLayout->addWidget(pbNow, 0, m_nowColumn);

    QWidget::setTabOrder(checkBox, leLongDay);
    QWidget::setTabOrder(leLongDay, leLongHHMMSS);
    QWidget::setTabOrder(leLongHHMMSS, leLongTZ);
    QWidget::setTabOrder(leLongTZ, leLongMonth);
    QWidget::setTabOrder(leLongMonth, leLongYear);
    QWidget::setTabOrder(leLongYear, pbNow);
    widget->setFocusProxy(leLongDay);
    retranslateUi(widget);
}

void OrvDateTimeEditLe::retranslateUi(QWidget*)
{
    pbNow->setText(QCoreApplication::translate("OrvDateTimeEdit", "Now"));
}

void OrvDateTimeEditLe::setFixedSize(QLineEdit* field, int numChars)
{
    const QFontMetricsF metrics(field->font());
    const QMargins margins = field->textMargins();
    const int width = int((numChars + 3) * metrics.horizontalAdvance(QLatin1Char('x')) + margins.left()
                          + margins.right());
    field->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    field->setMinimumWidth(width);
    field->setMaximumWidth(width);
}

QPushButton* OrvDateTimeEditLe::addButton(const QString& text, QWidget* widget)
{
    return new QPushButton(text, widget);
}

void OrvDateTimeEditLe::addButtons(QWidget* widget)
{
    const struct
    {
        QPushButton** button;
        const char* text;
        const char* name;
        int column;
    } buttons[] = {
        {&pbBBB, "<<<", "pbBBB", 0},
        {&pbBB, "<<", "pbBB", 1},
        {&pbB, "<", "pbB", 2},
        {&pbF, ">", "pbF", m_nowColumn + 1},
        {&pbFF, ">>", "pbFF", m_nowColumn + 2},
        {&pbFFF, ">>>", "pbFFF", m_nowColumn + 3},
    };
    for (const auto& b : buttons) {
        *b.button = addButton(QString::fromLatin1(b.text), widget);
        (*b.button)->setObjectName(QString::fromLatin1(b.name));
        gridLayout->addWidget(*b.button, 0, b.column);
    }
}

void OrvDateTimeEditLe::addSlider(QWidget* widget)
{
    slTime = new QSlider(Qt::Horizontal, widget);
    slTime->setObjectName(QStringLiteral("slTime"));
    gridLayout->addWidget(slTime, 1, 0, 1, 7);
}

} // namespace Ui

void Ui_OrvDateTimeEdit::setupUi(QWidget* widget)
{
    gridLayout = new QGridLayout(widget);
    gridLayout->setObjectName(QStringLiteral("gridLayout"));
    gridLayout->setContentsMargins(0, 0, 0, 0);
    dtgLayout = new QHBoxLayout;
    dtgLayout->setObjectName(QStringLiteral("dtgLayout"));

    checkBox = new QCheckBox(widget);
    checkBox->setObjectName(QStringLiteral("checkBox"));
    gridLayout->addWidget(checkBox, 0, 0);

    const auto spin = [&](const char* name, int minimum, int maximum) {
        auto* box = new QSpinBox(widget);
        box->setObjectName(QString::fromLatin1(name));
        box->setRange(minimum, maximum);
        box->setAlignment(Qt::AlignRight);
        dtgLayout->addWidget(box);
        return box;
    };
    const auto separator = [&](const char* name) {
        auto* line = new QFrame(widget);
        line->setObjectName(QString::fromLatin1(name));
        line->setFrameShape(QFrame::VLine);
        line->setFrameShadow(QFrame::Sunken);
        dtgLayout->addWidget(line);
        return line;
    };
    spDay = spin("spDay", 1, 31);
    frame = separator("frame");
    spHour = spin("spHour", 0, 23);
    spMinutes = spin("spMinutes", 0, 59);
    spSeconds = spin("spSeconds", 0, 59);
    frame_2 = separator("frame_2");
    cbxTimeZone = new QComboBox(widget);
    cbxTimeZone->setObjectName(QStringLiteral("cbxTimeZone"));
    for (char zone = 'A'; zone <= 'Z'; ++zone) {
        if (DTG::isTimezoneValid(zone))
            cbxTimeZone->addItem(QString(QLatin1Char(zone)));
    }
    dtgLayout->addWidget(cbxTimeZone);
    frame_3 = separator("frame_3");
    cbxMonth = new QComboBox(widget);
    cbxMonth->setObjectName(QStringLiteral("cbxMonth"));
    cbxMonth->setEditable(true);
    cbxMonth->setInsertPolicy(QComboBox::NoInsert);
    dtgLayout->addWidget(cbxMonth);
    spYear = spin("spYear", 0, 99);
    gridLayout->addLayout(dtgLayout, 0, 1);

    pbNow = new QPushButton(widget);
    pbNow->setObjectName(QStringLiteral("pbNow"));
    gridLayout->addWidget(pbNow, 0, 2);

    const QList<QWidget*> order = {checkBox, spDay, spHour, spMinutes, spSeconds, cbxTimeZone, cbxMonth, spYear, pbNow};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
    widget->setFocusProxy(spDay);
    retranslateUi(widget);
}

void Ui_OrvDateTimeEdit::retranslateUi(QWidget* widget)
{
    widget->setWindowTitle(QCoreApplication::translate("OrvDateTimeEdit", "Form"));
    pbNow->setText(QCoreApplication::translate("OrvDateTimeEdit", "Now"));
}

namespace OrvWidgets {

// ---------------------------------------------------------------------------------------------
// LineEdit, DigitsLineEdit

LineEdit::LineEdit(QWidget* parent)
    : QLineEdit(parent)
{
}

void LineEdit::clear()
{
    setStyleSheetIfChanged(this, QString());
    QLineEdit::clear();
}

bool LineEdit::isEmpty() const
{
    return text().isEmpty();
}

void LineEdit::keyPressEvent(QKeyEvent* event)
{
    const bool wasEmpty = isEmpty();
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Backspace && wasEmpty) {
        Q_EMIT focusOutBackspace();
        focusPreviousChild();
        event->accept();
    }
}

void LineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusOut();
}

void LineEdit::contextMenuEvent(QContextMenuEvent*)
{
    // The fields are too small for editing commands; no menu.
}

DigitsLineEdit::DigitsLineEdit(QWidget* parent)
    : LineEdit(parent)
    , m_exactNumDigits(-1)
{
    setAlignment(Qt::AlignRight);
    setValidator(digitsValidator(QStringLiteral("[-]{0,1}[0-9 ]*"), this));
}

void DigitsLineEdit::setExactNumDigits(int numDigits)
{
    m_exactNumDigits = numDigits > 0 ? numDigits : -1;
    const QValidator* old = validator();
    setValidator(m_exactNumDigits > 0
                     ? digitsValidator(QStringLiteral("^[0-9 ]{%1}$").arg(m_exactNumDigits), this)
                     : digitsValidator(QStringLiteral("[-]{0,1}[0-9 ]*"), this));
    if (old && old->parent() == this)
        delete old;
}

void DigitsLineEdit::setCursorPosition(int pos)
{
    QLineEdit::setCursorPosition(pos < 0 ? 1 : pos);
}

void DigitsLineEdit::setValue(int value)
{
    setText(m_exactNumDigits > 0 ? QStringLiteral("%1").arg(value, m_exactNumDigits, 10, QLatin1Char('0'))
                                 : QString::number(value));
}

int DigitsLineEdit::getValue() const
{
    if (isEmpty())
        return 0;
    QString digits = text();
    digits.remove(QLatin1Char(' '));
    return digits.toInt();
}

void DigitsLineEdit::wheelEvent(QWheelEvent* event)
{
    QWidget::wheelEvent(event);
    // A locked page makes its fields read-only; they must not step either.
    if (isReadOnly() || (m_exactNumDigits > 0 && text().size() != m_exactNumDigits))
        return;
    event->accept();
    Q_EMIT wheelEventReceived(event->angleDelta().y() >= 1, cursorPosition());
}

void DigitsLineEdit::keyPressEvent(QKeyEvent* event)
{
    // A refused character would still run the inline completion, which then offers the first name
    // as if it had been typed.
    const QString typed = event->text();
    if (completer() && validator() && !typed.isEmpty() && typed.at(0).isPrint()) {
        QString candidate = text();
        int pos = hasSelectedText() ? selectionStart() : cursorPosition();
        candidate.replace(pos, int(selectedText().size()), typed);
        if (validator()->validate(candidate, pos) == QValidator::Invalid) {
            event->accept();
            return;
        }
    }
    LineEdit::keyPressEvent(event);
    if (event->key() != Qt::Key_Up && event->key() != Qt::Key_Down)
        return;
    event->accept();
    if (!isReadOnly())
        Q_EMIT wheelEventReceived(event->key() == Qt::Key_Up, cursorPosition());
}

// ---------------------------------------------------------------------------------------------
// OrvDateTimeEdit: construction and forms

OrvDateTimeEdit::OrvDateTimeEdit(QWidget* parent, bool withNowButton, bool checkable)
    : QWidget(parent)
    , m_uiLe(nullptr)
    , m_uiTouch(nullptr)
    , m_scFixed(new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F2), this))
    , m_scOffset(new QShortcut(QKeySequence(Qt::Key_F2), this))
    , m_minTimeMSec(0)
    , m_maxTimeMSec(0)
    , m_curTimeMSec(-1)
    , m_editTimezone(true)
    , m_autoForward(true)
    , m_withButtons(false)
    , m_withSlider(false)
    , m_readOnly(false)
    , m_checkable(checkable)
    , m_withNowButton(withNowButton)
    , m_minMonth(0)
    , m_maxMonth(0)
    , m_backspacePressed(false)
    , m_recursionAvoid(false)
    , m_dateIsAcceptable(false)
{
    m_scFixed->setContext(Qt::WidgetWithChildrenShortcut);
    m_scOffset->setContext(Qt::WidgetWithChildrenShortcut);
    connect(m_scFixed, &QShortcut::activated, this, &OrvDateTimeEdit::setFixedDateTime);
    connect(m_scOffset, &QShortcut::activated, this, &OrvDateTimeEdit::setOffsetDateTime);

    m_uiLe = new Ui::OrvDateTimeEditLe;
    m_uiLe->setupUi(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setContentsMargins(0, 0, 0, 0);

    auto* ui = m_uiLe;
    const QStringList months = DTG::months();
    auto* completer = new QCompleter(months, ui->leLongMonth);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::InlineCompletion);
    ui->leLongMonth->setCompleter(completer);
    const QValidator* digits = ui->leLongMonth->validator();
    ui->leLongMonth->setValidator(
        new QRegularExpressionValidator(QRegularExpression(months.join(QLatin1Char('|'))), ui->leLongMonth));
    delete digits;

    connect(ui->leLongDay, &QLineEdit::textEdited, this, &OrvDateTimeEdit::valueDayChanged);
    connect(ui->leLongMonth, &QLineEdit::textEdited, this, &OrvDateTimeEdit::valueMonthChanged2);
    connect(ui->leLongTZ, &QLineEdit::textEdited, this, &OrvDateTimeEdit::valueTimezoneChangedStr);
    connect(ui->leLongYear, &QLineEdit::textEdited, this, &OrvDateTimeEdit::valueYearChanged);
    connect(ui->leLongHHMMSS, &LineEdit::focusOut, this, &OrvDateTimeEdit::onFocusOutHHMMSS);
    connect(ui->leLongDay, &LineEdit::focusOut, this, &OrvDateTimeEdit::onFocusOutDay);
    connect(ui->leLongMonth, &LineEdit::focusOut, this, &OrvDateTimeEdit::onFocusOutMonth);
    connect(ui->leLongTZ, &LineEdit::focusOut, this, &OrvDateTimeEdit::onFocusOutTZ);
    connect(ui->leLongYear, &LineEdit::focusOut, this, &OrvDateTimeEdit::onFocusOutYear);
    for (LineEdit* field : {static_cast<LineEdit*>(ui->leLongHHMMSS), static_cast<LineEdit*>(ui->leLongDay),
                            static_cast<LineEdit*>(ui->leLongMonth), ui->leLongTZ,
                            static_cast<LineEdit*>(ui->leLongYear)})
        connect(field, &LineEdit::focusOutBackspace, this, &OrvDateTimeEdit::onFocusOutBackspace);
    connect(ui->leLongHHMMSS, &DigitsLineEdit::wheelEventReceived, this, &OrvDateTimeEdit::onHmsWheelEvent);
    connect(ui->leLongDay, &DigitsLineEdit::wheelEventReceived, this, &OrvDateTimeEdit::onDayWheelEvent);
    connect(ui->leLongMonth, &DigitsLineEdit::wheelEventReceived, this, &OrvDateTimeEdit::onMonthWheelEvent);
    connect(ui->leLongYear, &DigitsLineEdit::wheelEventReceived, this, &OrvDateTimeEdit::onYearWheelEvent);
    connect(ui->checkBox, &QCheckBox::toggled, this, &OrvDateTimeEdit::onCheckBoxChanged);
    connect(ui->checkBox, &QCheckBox::toggled, this, &OrvDateTimeEdit::toggled);
    connect(ui->pbNow, &QPushButton::clicked, this, &OrvDateTimeEdit::setOffsetDateTime);

    setTimezone(DTG::timezone());
    // setCheckable() acts on change only; the box must still match the flag given here.
    applyCheckable();
    setWithNowButton(m_withNowButton);
    onCheckBoxChanged();
}

OrvDateTimeEdit::~OrvDateTimeEdit()
{
    // QWidget deletes the fields after this body; a focused one still reports losing the focus then.
    const QList<QObject*> children = findChildren<QObject*>();
    for (QObject* child : children)
        disconnect(child, nullptr, this, nullptr);
    delete m_uiLe;
    delete m_uiTouch;
}

void OrvDateTimeEdit::setupUiTouch()
{
    if (m_uiTouch)
        return;
    const bool wasChecked = isChecked();
    const char zone = getTimezone();
    if (m_uiLe) {
        setFocusProxy(nullptr);
        const Ui::OrvDateTimeEditLe* ui = m_uiLe;
        const QList<QWidget*> widgets = {ui->leLongDay, ui->leLongHHMMSS, ui->leLongTZ, ui->leLongMonth,
                                         ui->leLongYear, ui->checkBox, ui->pbNow, ui->pbBBB, ui->pbBB,
                                         ui->pbB, ui->pbF, ui->pbFF, ui->pbFFF, ui->slTime};
        for (QWidget* widget : widgets) {
            // A focused field would report leaving it while half gone.
            disconnect(widget, nullptr, this, nullptr);
            delete widget;
        }
        delete ui->gridLayout;
        delete m_uiLe;
        m_uiLe = nullptr;
    }

    m_uiTouch = new Ui_OrvDateTimeEdit;
    Ui_OrvDateTimeEdit* ui = m_uiTouch;
    ui->setupUi(this);
    setMinMaxMonth(m_minMonth, m_maxMonth);
    ui->checkBox->setChecked(wasChecked);
    ui->cbxTimeZone->setCurrentIndex(ui->cbxTimeZone->findText(QString(QLatin1Char(zone))));
    for (QSpinBox* box : {ui->spDay, ui->spHour, ui->spMinutes, ui->spSeconds, ui->spYear}) {
        box->setReadOnly(m_readOnly);
        connect(box, &QSpinBox::valueChanged, this, &OrvDateTimeEdit::onTouchValueChanged);
    }
    connect(ui->cbxMonth, &QComboBox::currentIndexChanged, this, &OrvDateTimeEdit::onTouchValueChanged);
    connect(ui->cbxMonth->lineEdit(), &QLineEdit::textEdited, this, &OrvDateTimeEdit::valueMonthChanged);
    connect(ui->cbxTimeZone, &QComboBox::currentIndexChanged, this, &OrvDateTimeEdit::valueTimezoneChangedInt);
    connect(ui->checkBox, &QCheckBox::toggled, this, &OrvDateTimeEdit::onCheckBoxChanged);
    connect(ui->checkBox, &QCheckBox::toggled, this, &OrvDateTimeEdit::toggled);
    connect(ui->pbNow, &QPushButton::clicked, this, &OrvDateTimeEdit::setOffsetDateTime);

    applyCheckable();
    setWithNowButton(m_withNowButton);
    if (wasChecked && m_curTimeMSec > 0)
        setMsecsSinceEpoch(m_curTimeMSec, true);
    onCheckBoxChanged();
}

void OrvDateTimeEdit::setMinMaxMonth(int minMonth, int maxMonth)
{
    m_minMonth = minMonth;
    m_maxMonth = maxMonth;
    if (!m_uiTouch)
        return;
    QComboBox* combo = m_uiTouch->cbxMonth;
    const QSignalBlocker blocker(combo);
    const int previous = getMonth();
    // No window set yet: the whole year.
    const int first = (minMonth == 0 && maxMonth == 0) ? 1 : minMonth;
    const int last = (minMonth == 0 && maxMonth == 0) ? 12 : maxMonth;
    const QStringList months = DTG::months();
    combo->clear();
    for (int month = qMax(1, first); month <= qMin(int(months.size()), last); ++month)
        combo->addItem(months.at(month - 1), month);
    const int index = combo->findData(previous);
    if (index >= 0)
        combo->setCurrentIndex(index);
}

void OrvDateTimeEdit::retranslate()
{
    if (m_uiLe)
        m_uiLe->retranslateUi(this);
    if (m_uiTouch)
        m_uiTouch->retranslateUi(this);
}

void OrvDateTimeEdit::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

// ---------------------------------------------------------------------------------------------
// Field access (line-edit form or touch form)

QList<QWidget*> OrvDateTimeEdit::fieldWidgets(Field field) const
{
    if (m_uiLe) {
        switch (field) {
        case Day: return {m_uiLe->leLongDay};
        case Time: return {m_uiLe->leLongHHMMSS};
        case Zone: return {m_uiLe->leLongTZ};
        case Month: return {m_uiLe->leLongMonth};
        case Year: return {m_uiLe->leLongYear};
        }
    } else if (m_uiTouch) {
        switch (field) {
        case Day: return {m_uiTouch->spDay};
        case Time: return {m_uiTouch->spHour, m_uiTouch->spMinutes, m_uiTouch->spSeconds};
        case Zone: return {m_uiTouch->cbxTimeZone};
        case Month: return {m_uiTouch->cbxMonth};
        case Year: return {m_uiTouch->spYear};
        }
    }
    return {};
}

QLineEdit* OrvDateTimeEdit::fieldLineEdit(Field field) const
{
    if (m_uiTouch)
        return field == Month ? m_uiTouch->cbxMonth->lineEdit() : nullptr;
    switch (field) {
    case Day: return m_uiLe->leLongDay;
    case Time: return m_uiLe->leLongHHMMSS;
    case Zone: return m_uiLe->leLongTZ;
    case Month: return m_uiLe->leLongMonth;
    case Year: return m_uiLe->leLongYear;
    }
    return nullptr;
}

bool OrvDateTimeEdit::isFieldEmpty(Field field) const
{
    if (m_uiLe)
        return fieldLineEdit(field)->text().isEmpty();
    if (field == Zone)
        return m_uiTouch->cbxTimeZone->currentIndex() < 0;
    if (field == Month)
        return m_uiTouch->cbxMonth->currentText().isEmpty();
    return false;
}

bool OrvDateTimeEdit::otherFieldHasText(Field field) const
{
    for (Field other : {Day, Time, Zone, Month, Year}) {
        if (other == field || (other == Zone && !fieldWidgets(Zone).constFirst()->isEnabledTo(this)))
            continue;
        if (!isFieldEmpty(other))
            return true;
    }
    return false;
}

bool OrvDateTimeEdit::isEmptyDay() const { return isFieldEmpty(Day); }
bool OrvDateTimeEdit::isEmptyHHMMSS() const { return isFieldEmpty(Time); }
bool OrvDateTimeEdit::isEmptyTimezone() const { return isFieldEmpty(Zone); }
bool OrvDateTimeEdit::isEmptyMonth() const { return isFieldEmpty(Month); }
bool OrvDateTimeEdit::isEmptyYear() const { return isFieldEmpty(Year); }

bool OrvDateTimeEdit::isEmpty() const
{
    return isEmptyDay() || isEmptyHHMMSS() || isEmptyMonth() || isEmptyTimezone() || isEmptyYear();
}

bool OrvDateTimeEdit::hasFocus() const
{
    for (Field field : {Day, Time, Month, Zone, Year}) {
        const QList<QWidget*> widgets = fieldWidgets(field);
        if (std::any_of(widgets.cbegin(), widgets.cend(), [](const QWidget* w) { return w->hasFocus(); }))
            return true;
    }
    return false;
}

bool OrvDateTimeEdit::setDay(int day)
{
    if (day < 1 || day > 31)
        return false;
    if (m_uiTouch) {
        const QSignalBlocker blocker(m_uiTouch->spDay);
        const int old = m_uiTouch->spDay->value();
        m_uiTouch->spDay->setValue(day);
        if (isDayAcceptable())
            return true;
        m_uiTouch->spDay->setValue(old);
        return false;
    }
    const QString old = m_uiLe->leLongDay->text();
    m_uiLe->leLongDay->setText(QStringLiteral("%1").arg(day, 2, 10, QLatin1Char('0')));
    if (isDayAcceptable())
        return true;
    m_uiLe->leLongDay->setText(old);
    return false;
}

int OrvDateTimeEdit::getDay() const
{
    return m_uiTouch ? m_uiTouch->spDay->value() : m_uiLe->leLongDay->getValue();
}

bool OrvDateTimeEdit::setHHMMSS(int hour, int minute, int second)
{
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
        return false;
    if (m_uiTouch) {
        const QSignalBlocker b1(m_uiTouch->spHour), b2(m_uiTouch->spMinutes), b3(m_uiTouch->spSeconds);
        m_uiTouch->spHour->setValue(hour);
        m_uiTouch->spMinutes->setValue(minute);
        m_uiTouch->spSeconds->setValue(second);
    } else {
        m_uiLe->leLongHHMMSS->setValue(hour * 10000 + minute * 100 + second);
    }
    return true;
}

int OrvDateTimeEdit::getHHMMSS() const
{
    if (m_uiTouch)
        return m_uiTouch->spHour->value() * 10000 + m_uiTouch->spMinutes->value() * 100 + m_uiTouch->spSeconds->value();
    return m_uiLe->leLongHHMMSS->getValue();
}

int OrvDateTimeEdit::getHour() const { return getHHMMSS() / 10000; }
int OrvDateTimeEdit::getMinute() const { return getHHMMSS() / 100 % 100; }
int OrvDateTimeEdit::getSecond() const { return getHHMMSS() % 100; }

bool OrvDateTimeEdit::setMonth(int month)
{
    const QStringList months = DTG::months();
    if (month < 1 || month > months.size())
        return false;
    if (m_uiTouch) {
        const int index = m_uiTouch->cbxMonth->findData(month);
        if (index < 0)
            return false;
        const QSignalBlocker blocker(m_uiTouch->cbxMonth);
        m_uiTouch->cbxMonth->setCurrentIndex(index);
        return true;
    }
    m_uiLe->leLongMonth->setText(months.at(month - 1));
    return true;
}

int OrvDateTimeEdit::getMonth() const
{
    if (m_uiTouch) {
        const QComboBox* combo = m_uiTouch->cbxMonth;
        const int index = combo->findText(combo->currentText(), Qt::MatchExactly | Qt::MatchCaseSensitive);
        return index < 0 ? -1 : combo->itemData(index).toInt();
    }
    const QString text = m_uiLe->leLongMonth->text();
    if (text.size() != 3)
        return -1;
    const int index = int(DTG::months().indexOf(text));
    return index < 0 ? -1 : index + 1;
}

bool OrvDateTimeEdit::setYear(int year)
{
    int shortYear = -1;
    if (year >= 0 && year <= 99)
        shortYear = year;
    else if (year >= 2000 && year <= 2099)
        shortYear = year - 2000;
    else
        return false;
    if (m_uiTouch) {
        const QSignalBlocker blocker(m_uiTouch->spYear);
        m_uiTouch->spYear->setValue(shortYear);
    } else {
        m_uiLe->leLongYear->setValue(shortYear);
    }
    return true;
}

int OrvDateTimeEdit::getYear() const
{
    return (m_uiTouch ? m_uiTouch->spYear->value() : m_uiLe->leLongYear->getValue()) + 2000;
}

void OrvDateTimeEdit::clearTimezone()
{
    if (m_uiTouch) {
        const QSignalBlocker blocker(m_uiTouch->cbxTimeZone);
        m_uiTouch->cbxTimeZone->setCurrentIndex(-1);
    } else {
        m_uiLe->leLongTZ->clear();
    }
}

bool OrvDateTimeEdit::setTimezone(char zone)
{
    if (zone >= 'a' && zone <= 'z')
        zone = char(zone - 'a' + 'A');
    if (!DTG::isTimezoneValid(zone))
        return false;
    const QString text(QLatin1Char{zone});
    if (m_uiTouch) {
        const QSignalBlocker blocker(m_uiTouch->cbxTimeZone);
        m_uiTouch->cbxTimeZone->setCurrentIndex(m_uiTouch->cbxTimeZone->findText(text));
    } else {
        m_uiLe->leLongTZ->setText(text);
    }
    setMsecsSinceEpoch(m_curTimeMSec, true);
    return true;
}

char OrvDateTimeEdit::getTimezone() const
{
    const QString text = m_uiTouch ? m_uiTouch->cbxTimeZone->currentText() : m_uiLe->leLongTZ->text();
    if (text.isEmpty())
        return DTG::timezone();
    return text.at(0).toUpper().toLatin1();
}

qint64 OrvDateTimeEdit::getTimezoneAsSecs() const
{
    return DTG::timezone2Secs(getTimezone(), nullptr);
}

// ---------------------------------------------------------------------------------------------
// Validation

bool OrvDateTimeEdit::isDayAcceptable() const
{
    const int day = getDay();
    int limit = 31;
    if (isMonthAcceptable()) {
        const int month = getMonth();
        if (month == 2)
            limit = (isYearAcceptable() && QDate::isLeapYear(getYear())) ? 29 : 28;
        else if (month == 4 || month == 6 || month == 9 || month == 11)
            limit = 30;
    }
    return day >= 1 && day <= limit;
}

bool OrvDateTimeEdit::isTimeAcceptable() const
{
    const int hour = getHour();
    const int minute = getMinute();
    const int second = getSecond();
    return hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
}

bool OrvDateTimeEdit::isMonthAcceptable() const
{
    const int month = getMonth();
    return month >= 1 && month <= 12;
}

bool OrvDateTimeEdit::isYearAcceptable() const
{
    return m_uiTouch || validatorAccepts(m_uiLe->leLongYear);
}

bool OrvDateTimeEdit::isTimezoneAcceptable() const
{
    return m_uiTouch || validatorAccepts(m_uiLe->leLongTZ);
}

bool OrvDateTimeEdit::isDataAcceptable() const
{
    m_dateIsAcceptable = false;
    const int year = getYear();
    const int month = getMonth();
    const int day = getDay();
    const bool ok = isDayAcceptable() && isTimeAcceptable() && isMonthAcceptable() && isYearAcceptable()
                 && QDate::isValid(year, month, day) && QTime::isValid(getHour(), getMinute(), getSecond());
    showInvalidData(false);
    if (!ok) {
        setControlsEnabled(false, false);
        return false;
    }
    const qint64 utc = QDateTime(QDate(year, month, day), QTime(getHour(), getMinute(), getSecond()), Qt::UTC)
                           .toMSecsSinceEpoch()
                     - getTimezoneAsSecs() * 1000;
    if (m_minTimeMSec > 0 && m_maxTimeMSec > 0 && m_minTimeMSec < m_maxTimeMSec
        && (utc < m_minTimeMSec || utc > m_maxTimeMSec))
        return false;
    m_curTimeMSec = utc;
    setControlsEnabled(true, true);
    m_dateIsAcceptable = true;
    return true;
}

void OrvDateTimeEdit::showInvalidData(bool setFocus) const
{
    const struct
    {
        Field field;
        bool acceptable;
        bool checked;
    } fields[] = {
        {Day, isDayAcceptable(), true},
        {Time, isTimeAcceptable(), true},
        {Zone, isTimezoneAcceptable(), m_editTimezone},
        {Month, isMonthAcceptable(), true},
        {Year, isYearAcceptable(), true},
    };
    bool focusGiven = false;
    for (const auto& f : fields) {
        if (!f.checked)
            continue;
        const QList<QWidget*> widgets = fieldWidgets(f.field);
        for (QWidget* widget : widgets)
            setStyleSheetIfChanged(widget, f.acceptable ? QString() : invalidStyle());
        if (setFocus && !f.acceptable && !focusGiven && !widgets.isEmpty()) {
            widgets.constFirst()->setFocus();
            focusGiven = true;
        }
    }
}

// ---------------------------------------------------------------------------------------------
// Value

qint64 OrvDateTimeEdit::msecsSinceEpoch() const
{
    if (isEmpty() || !isChecked() || !isDataAcceptable())
        return 0;
    return m_curTimeMSec;
}

bool OrvDateTimeEdit::setMsecsSinceEpoch(qint64 msec, bool setToNearestPossible)
{
    QCheckBox* box = m_uiTouch ? m_uiTouch->checkBox : m_uiLe->checkBox;
    if (msec == 0 && m_checkable) {
        box->setChecked(false);
        m_dateIsAcceptable = true;
        return true;
    }
    box->setChecked(true);
    m_dateIsAcceptable = false;
    if (msec == 0)
        return false;
    if (setToNearestPossible) {
        if (m_minTimeMSec > 0 && msec < m_minTimeMSec)
            msec = m_minTimeMSec;
        if (m_maxTimeMSec > 0 && msec > m_maxTimeMSec)
            msec = m_maxTimeMSec;
    } else if (!isDataAcceptable()) {
        return false;
    }
    m_curTimeMSec = msec;
    qint64 localMSec = 0;
    if (qAddOverflow(msec, getTimezoneAsSecs() * 1000, &localMSec))
        return false;
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(localMSec, Qt::UTC);
    if (!local.isValid())
        return false;
    const QDate date = local.date();
    const QTime time = local.time();
    if (!setYear(date.year()) || !setMonth(date.month()) || !setDay(date.day())
        || !setHHMMSS(time.hour(), time.minute(), time.second()))
        return false;
    if (!isDataAcceptable())
        return false;
    enableControls();
    Q_EMIT dateTimeChanged();
    return true;
}

void OrvDateTimeEdit::clear()
{
    if (m_uiLe) {
        for (Field field : {Day, Time, Month, Zone, Year})
            static_cast<LineEdit*>(fieldLineEdit(field))->clear();
    } else {
        for (Field field : {Day, Time, Month, Zone, Year}) {
            for (QWidget* widget : fieldWidgets(field))
                setStyleSheetIfChanged(widget, QString());
        }
        clearTimezone();
        const QSignalBlocker blocker(m_uiTouch->cbxMonth);
        m_uiTouch->cbxMonth->setCurrentIndex(-1);
    }
    m_curTimeMSec = 0;
    Q_EMIT dateTimeChanged();
}

void OrvDateTimeEdit::setMinimumTimeMSec(qint64 msec)
{
    if (msec == m_minTimeMSec)
        return;
    m_minTimeMSec = msec;
    QSlider* slider = m_uiLe ? m_uiLe->slTime : nullptr;
    if (msec > 0 && slider) {
        const QSignalBlocker blocker(slider);
        slider->setMinimum(toSliderValue(msec / 1000));
        slider->setEnabled(m_maxTimeMSec > m_minTimeMSec);
    }
    // 0 or less opens that side: nothing to move into.
    if (msec > 0 && m_curTimeMSec < msec)
        setMsecsSinceEpoch(msec, true);
}

void OrvDateTimeEdit::setMaximumTimeMSec(qint64 msec)
{
    if (msec == m_maxTimeMSec)
        return;
    m_maxTimeMSec = msec;
    if (QSlider* slider = m_uiLe ? m_uiLe->slTime : nullptr) {
        const QSignalBlocker blocker(slider);
        slider->setMaximum(toSliderValue(msec / 1000));
        slider->setEnabled(m_minTimeMSec > 0 && m_maxTimeMSec > m_minTimeMSec);
    }
    if (msec > 0 && m_curTimeMSec > msec)
        setMsecsSinceEpoch(msec, true);
}

void OrvDateTimeEdit::setMinMaxTimeMSec(qint64 minMSec, qint64 maxMSec)
{
    setMinimumTimeMSec(minMSec);
    setMaximumTimeMSec(maxMSec);
}

void OrvDateTimeEdit::setRetrieveCurrentTimeCallback(const CurrentTimeCallback& callback)
{
    m_getCurrentTimeCallback = callback;
}

void OrvDateTimeEdit::setFixedDateTime()
{
    const qint64 fixed = OrvUtils::OperatorSettings::getInstance()
                             ->value(QStringLiteral("TimeSettings"), QStringLiteral("FixedTime"), 0)
                             .toLongLong();
    setMsecsSinceEpoch(fixed, true);
}

void OrvDateTimeEdit::setOffsetDateTime()
{
    if (!m_getCurrentTimeCallback)
        return;
    const qint64 offset = OrvUtils::OperatorSettings::getInstance()
                              ->value(QStringLiteral("TimeSettings"), QStringLiteral("Offset"), 0)
                              .toLongLong();
    // Whole seconds: the fields cannot show milliseconds.
    setMsecsSinceEpoch(saturatedAdd(m_getCurrentTimeCallback() / 1000 * 1000, offset), true);
}

// ---------------------------------------------------------------------------------------------
// Appearance

void OrvDateTimeEdit::setEditTimezone(bool edit)
{
    m_editTimezone = edit;
    updateFieldsEnabled();
}

void OrvDateTimeEdit::setAutoForward(bool autoForward)
{
    m_autoForward = autoForward;
}

void OrvDateTimeEdit::setReadOnly(bool readOnly)
{
    if (readOnly == m_readOnly)
        return;
    m_readOnly = readOnly;
    if (m_uiLe) {
        for (Field field : {Day, Time, Zone, Month, Year})
            fieldLineEdit(field)->setReadOnly(readOnly);
    } else {
        for (QSpinBox* box : {m_uiTouch->spDay, m_uiTouch->spHour, m_uiTouch->spMinutes, m_uiTouch->spSeconds,
                              m_uiTouch->spYear})
            box->setReadOnly(readOnly);
        updateFieldsEnabled();
    }
    m_scFixed->setEnabled(!readOnly);
    m_scOffset->setEnabled(!readOnly);
}

void OrvDateTimeEdit::applyCheckable()
{
    QCheckBox* box = m_uiTouch ? m_uiTouch->checkBox : m_uiLe->checkBox;
    box->setVisible(m_checkable);
    if (!m_checkable)
        box->setChecked(true);
}

void OrvDateTimeEdit::setCheckable(bool checkable)
{
    if (checkable == m_checkable)
        return;
    m_checkable = checkable;
    applyCheckable();
}

void OrvDateTimeEdit::setChecked(bool checked)
{
    // Without a check box the value is always set.
    if (!checked && !m_checkable)
        return;
    (m_uiTouch ? m_uiTouch->checkBox : m_uiLe->checkBox)->setChecked(checked);
}

bool OrvDateTimeEdit::isChecked() const
{
    return (m_uiTouch ? m_uiTouch->checkBox : m_uiLe->checkBox)->isChecked();
}

void OrvDateTimeEdit::setWithNowButton(bool withNowButton)
{
    m_withNowButton = withNowButton;
    (m_uiTouch ? m_uiTouch->pbNow : m_uiLe->pbNow)->setVisible(withNowButton);
}

void OrvDateTimeEdit::setWithButtons(bool withButtons)
{
    m_withButtons = withButtons;
    if (!m_uiLe)
        return;
    Ui::OrvDateTimeEditLe* ui = m_uiLe;
    if (withButtons && !ui->pbBBB) {
        ui->addButtons(this);
        connect(ui->pbBBB, &QPushButton::clicked, this, &OrvDateTimeEdit::onBackHourClicked);
        connect(ui->pbBB, &QPushButton::clicked, this, &OrvDateTimeEdit::onBackMinuteClicked);
        connect(ui->pbB, &QPushButton::clicked, this, &OrvDateTimeEdit::onBackSecondClicked);
        connect(ui->pbF, &QPushButton::clicked, this, &OrvDateTimeEdit::onForwardSecondClicked);
        connect(ui->pbFF, &QPushButton::clicked, this, &OrvDateTimeEdit::onForwardMinuteClicked);
        connect(ui->pbFFF, &QPushButton::clicked, this, &OrvDateTimeEdit::onForwardHourClicked);
        disableControls();
    } else if (!withButtons && ui->pbBBB) {
        for (QPushButton** button : {&ui->pbBBB, &ui->pbBB, &ui->pbB, &ui->pbF, &ui->pbFF, &ui->pbFFF}) {
            delete *button;
            *button = nullptr;
        }
    }
}

void OrvDateTimeEdit::setWithSlider(bool withSlider)
{
    m_withSlider = withSlider;
    if (!m_uiLe)
        return;
    Ui::OrvDateTimeEditLe* ui = m_uiLe;
    if (withSlider && !ui->slTime) {
        ui->addSlider(this);
        const qint64 maxSecs = m_maxTimeMSec >= 1 ? m_maxTimeMSec / 1000 : QDateTime::currentSecsSinceEpoch();
        ui->slTime->setRange(toSliderValue(m_minTimeMSec / 1000), toSliderValue(maxSecs));
        connect(ui->slTime, &QSlider::valueChanged, this, &OrvDateTimeEdit::setSliderValue);
        disableControls();
    } else if (!withSlider && ui->slTime) {
        delete ui->slTime;
        ui->slTime = nullptr;
    }
}

void OrvDateTimeEdit::setSliderValue(int seconds)
{
    setMsecsSinceEpoch(qint64(seconds) * 1000, true);
}

void OrvDateTimeEdit::setSubWidgetsProperties(const QString& name, const QVariant& value)
{
    const QByteArray property = name.toUtf8();
    for (Field field : {Day, Time, Month, Year, Zone}) {
        for (QWidget* widget : fieldWidgets(field)) {
            widget->setProperty(property.constData(), value);
            // Style-sheet selectors on dynamic properties are only re-evaluated on polish.
            widget->style()->unpolish(widget);
            widget->style()->polish(widget);
        }
    }
}

void OrvDateTimeEdit::updateFieldsEnabled()
{
    const bool checked = isChecked();
    for (Field field : {Day, Time, Zone, Month, Year}) {
        for (QWidget* widget : fieldWidgets(field)) {
            // A read-only touch combo cannot be locked otherwise; the zone follows editTimezone.
            const bool lockedCombo = m_readOnly && qobject_cast<QComboBox*>(widget);
            widget->setEnabled(checked && (field != Zone || m_editTimezone) && !lockedCombo);
        }
    }
}

void OrvDateTimeEdit::onCheckBoxChanged()
{
    updateFieldsEnabled();
    enaDisaControls(isChecked());
}

void OrvDateTimeEdit::setControlsEnabled(bool enable, bool followValue) const
{
    if (!m_uiLe)
        return;
    const Ui::OrvDateTimeEditLe* ui = m_uiLe;
    for (QWidget* control : {static_cast<QWidget*>(ui->pbBBB), static_cast<QWidget*>(ui->pbBB),
                             static_cast<QWidget*>(ui->pbB), static_cast<QWidget*>(ui->pbF),
                             static_cast<QWidget*>(ui->pbFF), static_cast<QWidget*>(ui->pbFFF),
                             static_cast<QWidget*>(ui->slTime)}) {
        if (control)
            control->setEnabled(enable);
    }
    QSlider* slider = ui->slTime;
    if (followValue && slider && m_withSlider && m_minTimeMSec != 0 && m_maxTimeMSec > 0
        && m_maxTimeMSec > m_minTimeMSec) {
        slider->setEnabled(true);
        // Following the value must not feed back into it.
        const QSignalBlocker blocker(slider);
        slider->setValue(toSliderValue(m_curTimeMSec / 1000));
    }
}

void OrvDateTimeEdit::enaDisaControls(bool bEnable)
{
    setControlsEnabled(bEnable, false);
}

void OrvDateTimeEdit::disableControls()
{
    setControlsEnabled(false, false);
}

void OrvDateTimeEdit::enableControls()
{
    setControlsEnabled(true, true);
}

// ---------------------------------------------------------------------------------------------
// Typing

void OrvDateTimeEdit::valueDayChanged(const QString& text)
{
    if (!m_uiLe)
        return;
    DigitsLineEdit* field = m_uiLe->leLongDay;
    int pos = field->cursorPosition();
    QString day = text;
    if (day.size() > 2) {
        day.truncate(2);
        pos = qMin(pos, 2);
    }
    if (numberAtLeast(day, 32)) {
        if (pos > 0)
            day.remove(pos - 1, 1);
        --pos;
    }
    if (day != text) {
        field->setText(day);
        field->setCursorPosition(pos);
    }
    if (day.size() == 2) {
        showInvalidData(false);
        if (m_autoForward)
            focusNextPrevChild(true);
    }
}

void OrvDateTimeEdit::fixupHHMMSS()
{
    if (!m_uiLe)
        return;
    DigitsLineEdit* field = m_uiLe->leLongHHMMSS;
    QString text = field->text();
    int pos = field->cursorPosition();
    const int n = int(text.size());
    // Missing digits count as 0: a first hour digit 3-9 can then never be completed.
    const QString hour = n >= 2 ? text.left(2) : n == 1 ? text + QLatin1Char('0') : QString();
    const QString minute = n == 3 ? text.mid(2, 1) + QLatin1Char('0') : n >= 4 ? text.mid(2, 2) : QString();
    const QString second = n == 5 ? text.mid(4, 1) + QLatin1Char('0') : n >= 6 ? text.mid(4, 2) : QString();
    bool changed = false;
    const auto removeBeforeCursor = [&] {
        if (pos <= 0)
            return;
        text.remove(pos - 1, 1);
        --pos;
        changed = true;
    };
    if (numberAtLeast(hour, 24))
        removeBeforeCursor();
    if (hour.size() == 2 && numberAtLeast(minute, 60))
        removeBeforeCursor();
    if (hour.size() == 2 && minute.size() == 2 && numberAtLeast(second, 60))
        removeBeforeCursor();
    if (changed) {
        field->setText(text);
        field->setCursorPosition(pos);
    }
    isDataAcceptable();
    Q_EMIT dateTimeChanged();
}

void OrvDateTimeEdit::valueMonthChanged(const QString& text)
{
    QLineEdit* field = fieldLineEdit(Month);
    if (!field || text.isEmpty())
        return;
    int pos = field->cursorPosition();
    QString month = text;
    const QStringList months = DTG::months();
    const auto match = std::find_if(months.cbegin(), months.cend(),
                                    [&](const QString& name) { return name.startsWith(text, Qt::CaseInsensitive); });
    if (match != months.cend()) {
        month = *match;
    } else if (pos > 0) {
        month.remove(pos - 1, 1);
        --pos;
    }
    if (month != text)
        field->setText(month);
    field->setCursorPosition(qMax(pos, 1));
    if (month.size() == 3) {
        showInvalidData(false);
        if (m_autoForward)
            focusNextPrevChild(true);
    }
}

void OrvDateTimeEdit::valueMonthChanged2(const QString& text)
{
    // A selection means the inline completion is still offering the rest of a name.
    if (m_uiLe && text.size() == 3 && !m_uiLe->leLongMonth->hasSelectedText())
        focusNextPrevChild(true);
}

void OrvDateTimeEdit::valueTimezoneChangedStr(const QString& text)
{
    if (text.isEmpty())
        return;
    const QChar letter = text.at(0).toUpper();
    // J is the observer's local time, not a fixed zone.
    if (text.size() > 1 || !letter.isLetter() || letter == QLatin1Char('J') || !setTimezone(letter.toLatin1())) {
        clearTimezone();
        return;
    }
    showInvalidData(false);
    if (m_autoForward)
        focusNextPrevChild(true);
}

void OrvDateTimeEdit::valueTimezoneChangedInt(int)
{
    if (!m_uiTouch)
        return;
    const QString text = m_uiTouch->cbxTimeZone->currentText();
    if (!text.isEmpty())
        setTimezone(text.at(0).toUpper().toLatin1());
}

void OrvDateTimeEdit::valueYearChanged(const QString& text)
{
    if (!m_uiLe)
        return;
    DigitsLineEdit* field = m_uiLe->leLongYear;
    if (text.size() > 2) {
        const int pos = field->cursorPosition();
        field->setText(text.left(2));
        field->setCursorPosition(qMin(pos, 2));
    }
    if (field->text().size() == 2) {
        showInvalidData(false);
        if (m_autoForward)
            focusNextPrevChild(true);
    }
}

void OrvDateTimeEdit::onTouchValueChanged()
{
    isDataAcceptable();
    Q_EMIT dateTimeChanged();
}

// ---------------------------------------------------------------------------------------------
// Leaving fields

void OrvDateTimeEdit::completeFocusOut(Field field)
{
    if (m_backspacePressed) {
        m_backspacePressed = false;
        return;
    }
    if (!m_recursionAvoid && !hasFocus())
        onFocusOut();
    if (!m_uiLe)
        return;
    QLineEdit* edit = fieldLineEdit(field);
    const QString text = edit->text();
    if (field == Time && !text.isEmpty() && text.size() < 6)
        edit->setText(text.leftJustified(6, QLatin1Char('0')));
    else if (field == Year && text.size() == 1)
        edit->setText(QLatin1Char('0') + text);

    if (isFieldEmpty(field) && otherFieldHasText(field)) {
        if (field == Zone) {
            setTimezone(DTG::timezone());
        } else if (field != Year && m_getCurrentTimeCallback) {
            const QDateTime now = QDateTime::fromMSecsSinceEpoch(m_getCurrentTimeCallback(), Qt::UTC);
            if (field == Day)
                setDay(now.date().day());
            else if (field == Month)
                setMonth(now.date().month());
            else if (field == Time)
                setHHMMSS(now.time().hour(), now.time().minute(), now.time().second());
        }
    }
    isDataAcceptable();
    Q_EMIT dateTimeChanged();
}

void OrvDateTimeEdit::onFocusOutHHMMSS() { completeFocusOut(Time); }
void OrvDateTimeEdit::onFocusOutTZ() { completeFocusOut(Zone); }
void OrvDateTimeEdit::onFocusOutDay() { completeFocusOut(Day); }
void OrvDateTimeEdit::onFocusOutMonth() { completeFocusOut(Month); }
void OrvDateTimeEdit::onFocusOutYear() { completeFocusOut(Year); }

void OrvDateTimeEdit::onFocusOutBackspace()
{
    m_backspacePressed = true;
}

void OrvDateTimeEdit::onFocusOut()
{
    if (m_backspacePressed) {
        m_backspacePressed = false;
        return;
    }
    m_recursionAvoid = true;
    onFocusOutDay();
    onFocusOutHHMMSS();
    onFocusOutMonth();
    onFocusOutTZ();
    onFocusOutYear();
    m_recursionAvoid = false;
}

// ---------------------------------------------------------------------------------------------
// Stepping

void OrvDateTimeEdit::stepBy(qint64 msec, bool backward)
{
    if (setMsecsSinceEpoch(saturatedAdd(m_curTimeMSec, backward ? -msec : msec), true))
        return;
    // Fall back to the limit of that side; an open side (0) has none.
    const qint64 limit = backward ? m_minTimeMSec : m_maxTimeMSec;
    if (limit > 0)
        setMsecsSinceEpoch(limit, true);
}

void OrvDateTimeEdit::onBackHourClicked() { stepBy(kHourMSec, true); }
void OrvDateTimeEdit::onBackMinuteClicked() { stepBy(kMinuteMSec * (ctrlHeld() ? kCtrlFactor : 1), true); }
void OrvDateTimeEdit::onBackSecondClicked() { stepBy(kSecondMSec * (ctrlHeld() ? kCtrlFactor : 1), true); }
void OrvDateTimeEdit::onForwardSecondClicked() { stepBy(kSecondMSec * (ctrlHeld() ? kCtrlFactor : 1), false); }
void OrvDateTimeEdit::onForwardMinuteClicked() { stepBy(kMinuteMSec * (ctrlHeld() ? kCtrlFactor : 1), false); }
void OrvDateTimeEdit::onForwardHourClicked() { stepBy(kHourMSec, false); }

void OrvDateTimeEdit::finishWheel(QLineEdit* field, int cursorPos, int selStart, int selLength)
{
    field->setCursorPosition(cursorPos);
    field->setSelection(selStart, selLength);
    Q_EMIT dateTimeChanged();
}

void OrvDateTimeEdit::onHmsWheelEvent(bool bForward, int cursorPos)
{
    if (!m_uiLe || m_uiLe->leLongHHMMSS->text().size() != 6)
        return;
    fixupHHMMSS();
    int start = 0;
    if (cursorPos >= 0 && cursorPos <= 2) {
        bForward ? onForwardHourClicked() : onBackHourClicked();
        start = 0;
    } else if (cursorPos >= 3 && cursorPos <= 4) {
        bForward ? onForwardMinuteClicked() : onBackMinuteClicked();
        start = 2;
    } else if (cursorPos >= 5 && cursorPos <= 6) {
        bForward ? onForwardSecondClicked() : onBackSecondClicked();
        start = 4;
    } else {
        return;
    }
    finishWheel(m_uiLe->leLongHHMMSS, cursorPos, start, 2);
}

void OrvDateTimeEdit::onDayWheelEvent(bool bForward, int cursorPos)
{
    if (!m_uiLe || !isDayAcceptable())
        return;
    setMsecsSinceEpoch(saturatedAdd(m_curTimeMSec, bForward ? kDayMSec : -kDayMSec), true);
    finishWheel(m_uiLe->leLongDay, cursorPos, 0, 2);
}

void OrvDateTimeEdit::stepCalendar(Field field, bool bForward, int cursorPos)
{
    const QDateTime current = QDateTime::fromMSecsSinceEpoch(m_curTimeMSec, Qt::UTC);
    if (!current.isValid())
        return;
    const int step = bForward ? 1 : -1;
    const QDateTime next = field == Month ? current.addMonths(step) : current.addYears(step);
    if (next.isValid())
        setMsecsSinceEpoch(next.toMSecsSinceEpoch(), true);
    finishWheel(fieldLineEdit(field), cursorPos, 0, field == Month ? 3 : 2);
}

void OrvDateTimeEdit::onMonthWheelEvent(bool bForward, int cursorPos)
{
    if (m_uiLe && isMonthAcceptable())
        stepCalendar(Month, bForward, cursorPos);
}

void OrvDateTimeEdit::onYearWheelEvent(bool bForward, int cursorPos)
{
    if (m_uiLe && isYearAcceptable())
        stepCalendar(Year, bForward, cursorPos);
}

} // namespace OrvWidgets
