#pragma once

// The form designer's view of the library: every public widget of the catalog in
// the group "OrvWidgets", created through one generic interface.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "orv_widget_catalog.h"

#include <QIcon>
#include <QObject>

class QDesignerFormEditorInterface;

namespace OrvWidgets::DesignerPlugin {

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
