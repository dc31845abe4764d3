#pragma once

// Every public widget of the library with what tools need to present it: the form
// designer plugin offers them, the gallery renders them. A new widget joins with one
// entry in orv_widget_catalog.cpp.

#include <QList>
#include <QSize>
#include <QString>

#include <functional>

class QWidget;

namespace OrvWidgets::DesignerPlugin {

struct WidgetEntry
{
    QString className;   // with namespace, as forms name it: "OrvWidgets::OrvSpinBox"
    QString includeFile; // the public header
    QString toolTip;     // one line in the widget box
    QString whatsThis;   // a sentence or two
    QSize defaultSize;   // the size a newly dropped widget gets
    bool container = false;
    QString pagesXml; // child pages of a container, as form XML
    std::function<QWidget*(QWidget*)> create;
    // Puts a created widget into a typical state for the gallery (a value, a text);
    // empty when the fresh widget is typical already.
    std::function<void(QWidget*)> showcase;
};

QList<WidgetEntry> widgetEntries();

} // namespace OrvWidgets::DesignerPlugin
