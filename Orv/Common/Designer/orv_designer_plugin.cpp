#include "orv_designer_plugin.h"

#include <QDynamicPropertyChangeEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QStyle>
#include <QTimer>
#include <QWidget>

Q_LOGGING_CATEGORY(lcDesigner, "orv.designer")

namespace OrvWidgets::DesignerPlugin {

namespace {

// A form loader sets a property the class does not declare as a dynamic property,
// silently. While a form is being built (until the event loop runs again), this
// says so, except for the dynamic properties pages use on purpose.
class FormPropertyWatcher : public QObject
{
public:
    explicit FormPropertyWatcher(QWidget* widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
        QTimer::singleShot(0, this, [this] { delete this; });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::DynamicPropertyChange)
            return false;
        const QByteArray name = static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName();
        if (name == "const" || name == "checkMe" || name.startsWith("_q_"))
            return false;
        qCWarning(lcDesigner, "%s \"%s\": the form sets \"%s\", which the class does not have",
                  watched->metaObject()->className(), qPrintable(watched->objectName()), name.constData());
        return false;
    }
};

} // namespace

OrvCustomWidget::OrvCustomWidget(WidgetEntry entry, QObject* parent)
    : QObject(parent)
    , m_entry(std::move(entry))
{
}

QString OrvCustomWidget::group() const
{
    return QStringLiteral("OrvWidgets");
}

QWidget* OrvCustomWidget::createWidget(QWidget* parent)
{
    QWidget* widget = m_entry.create(parent);
    if (widget)
        new FormPropertyWatcher(widget);
    return widget;
}

void OrvCustomWidget::initialize(QDesignerFormEditorInterface*)
{
    m_initialized = true;
}

// The icon is the widget itself, drawn once at its default size and scaled into a
// square: it always shows the current look and needs no artwork kept in step.
QIcon OrvCustomWidget::icon() const
{
    if (!m_icon.isNull())
        return m_icon;
    constexpr int side = 64;
    QPixmap icon(side, side);
    icon.fill(Qt::transparent);
    std::unique_ptr<QWidget> widget(m_entry.create(nullptr));
    if (widget) {
        widget->setAttribute(Qt::WA_DontShowOnScreen);
        widget->resize(m_entry.defaultSize);
        const QPixmap shot = widget->grab();
        if (!shot.isNull()) {
            const QPixmap scaled = shot.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            QPainter painter(&icon);
            painter.drawPixmap((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
        }
    }
    m_icon = QIcon(icon);
    return m_icon;
}

QString OrvCustomWidget::domXml() const
{
    QString objectName = m_entry.className.section(QStringLiteral("::"), -1);
    objectName[0] = objectName[0].toLower();
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"%1\" name=\"%2\">\n"
                          "  <property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>\n"
                          "%5"
                          " </widget>\n"
                          "</ui>\n")
        .arg(m_entry.className, objectName)
        .arg(m_entry.defaultSize.width())
        .arg(m_entry.defaultSize.height())
        .arg(m_entry.pagesXml);
}

OrvWidgetCollection::OrvWidgetCollection(QObject* parent)
    : QObject(parent)
{
    const QList<WidgetEntry> entries = widgetEntries();
    m_widgets.reserve(entries.size());
    for (const WidgetEntry& entry : entries)
        m_widgets.append(new OrvCustomWidget(entry, this));
}

} // namespace OrvWidgets::DesignerPlugin
