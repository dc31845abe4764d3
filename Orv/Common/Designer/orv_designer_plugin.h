#pragma once

// The form designer's view of the library: every public widget in the group
// "OrvWidgets", created through one generic interface from a table of entries.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QIcon>
#include <QObject>
#include <QSize>

#include <functional>

class QDesignerFormEditorInterface;

namespace OrvWidgets::DesignerPlugin {

// One widget as the designer offers it.
struct WidgetEntry {
    QString className;   // with namespace, as forms name it: "OrvWidgets::OrvSpinBox"
    QString includeFile; // the public header
    QString toolTip;     // one line in the widget box
    QString whatsThis;   // a sentence or two
    QSize defaultSize;   // the size a newly dropped widget gets
    bool container = false;
    QString pagesXml;    // child pages of a container, as form XML
    std::function<QWidget*(QWidget*)> create;
};

// The table of every widget the plugin offers (orv_designer_widgets.cpp).
QList<WidgetEntry> widgetEntries();

class OrvCustomWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    OrvCustomWidget(WidgetEntry entry, QObject* parent);

    QString name() const override { return m_entry.className; }
    QString group() const override;
    QString toolTip() const override { return m_entry.toolTip; }
    QString whatsThis() const override { return m_entry.whatsThis; }
    QString includeFile() const override { return m_entry.includeFile; }
    QIcon icon() const override;
    bool isContainer() const override { return m_entry.container; }
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface* core) override;
    QString domXml() const override;

private:
    WidgetEntry m_entry;
    mutable QIcon m_icon;
    bool m_initialized = false;
};

class OrvWidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    explicit OrvWidgetCollection(QObject* parent = nullptr);
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

} // namespace OrvWidgets::DesignerPlugin
