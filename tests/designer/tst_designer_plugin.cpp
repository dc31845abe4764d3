// The form designer plugin as the designer and QUiLoader use it: loaded from its
// file, every widget created through the collection, forms built from .ui files.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <orv_bitfield_widget.h>
#include <orv_drag_icon.h>
#include <orv_spin_box.h>
#include <orv_tab_widget.h>
#include <orv_tool_box.h>

#include <QFile>
#include <QFileInfo>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QTest>
#include <QUiLoader>
#include <QXmlStreamReader>

using namespace OrvWidgets;

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> loadForm(const QString& name)
    {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(QStringLiteral(ORV_DESIGNER_PLUGIN_FILE)).absolutePath());
        QFile file(QStringLiteral(ORV_DESIGNER_FORMS "/") + name);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return std::unique_ptr<QWidget>(loader.load(&file));
    }

private Q_SLOTS:
    void everyWidgetIsCreatedThroughTheCollection()
    {
        QPluginLoader plugin(QStringLiteral(ORV_DESIGNER_PLUGIN_FILE));
        auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
        QVERIFY2(collection, qPrintable(plugin.errorString()));
        const auto widgets = collection->customWidgets();
        QVERIFY(widgets.size() >= 15);

        QWidget parent;
        QStringList containers;
        for (QDesignerCustomWidgetInterface* entry : widgets) {
            const QString name = entry->name();
            QVERIFY2(name.startsWith(QLatin1String("OrvWidgets::Orv")), qPrintable(name));
            QCOMPARE(entry->group(), QStringLiteral("OrvWidgets"));
            QVERIFY2(!entry->toolTip().isEmpty() && !entry->whatsThis().isEmpty(), qPrintable(name));
            QVERIFY2(entry->includeFile().endsWith(QLatin1String(".h")), qPrintable(name));
            QVERIFY2(!entry->icon().isNull(), qPrintable(name));

            std::unique_ptr<QWidget> widget(entry->createWidget(&parent));
            QVERIFY2(widget, qPrintable(name));
            QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);

            // The designer reads the default object and size from this snippet.
            QXmlStreamReader xml(entry->domXml());
            bool sawClass = false;
            while (!xml.atEnd()) {
                if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("widget") &&
                    xml.attributes().value(QLatin1String("class")) == name)
                    sawClass = true;
            }
            QVERIFY2(!xml.hasError() && sawClass, qPrintable(name + QLatin1Char(' ') + xml.errorString()));
            if (entry->isContainer())
                containers << name.section(QStringLiteral("::"), -1);
        }
        containers.sort();
        QCOMPARE(containers, QStringList({QStringLiteral("OrvTabWidget"), QStringLiteral("OrvToolBox")}));
    }

    void formBuildsWidgetsWithTheirProperties()
    {
        const std::unique_ptr<QWidget> form = loadForm(QStringLiteral("page.ui"));
        QVERIFY(form);

        auto* strength = form->findChild<OrvSpinBox*>(QStringLiteral("strength"));
        QVERIFY(strength);
        QCOMPARE(strength->maximum(), 500);
        QCOMPARE(strength->value(), 250);

        auto* flags = form->findChild<OrvBitfieldWidget*>(QStringLiteral("flags"));
        QVERIFY(flags);
        QCOMPARE(flags->value(), quint8(5));

        auto* entry = form->findChild<OrvDragIcon*>(QStringLiteral("entry"));
        QVERIFY(entry);
        QCOMPARE(entry->text(), QStringLiteral("Exercise set-up"));
        QCOMPARE(entry->property("eStyle").toInt(), int(Designer::eTextOnly));

        auto* tabs = form->findChild<OrvTabWidget*>(QStringLiteral("tabs"));
        QVERIFY(tabs);
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(1), QStringLiteral("Second"));

        auto* groups = form->findChild<OrvToolBox*>(QStringLiteral("groups"));
        QVERIFY(groups);
        QCOMPARE(groups->count(), 1);
        QCOMPARE(groups->itemText(0), QStringLiteral("Planning"));
    }

    void brokenFormsSayWhyAndStillLoad_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown class") << QStringLiteral("unknown_class.ui")
                                       << QStringLiteral("OrvWidgets::OrvNoSuchBox");
        QTest::newRow("wrong property") << QStringLiteral("wrong_property.ui")
                                        << QStringLiteral("\"noSuchProperty\", which the class does not have");
    }
    void brokenFormsSayWhyAndStillLoad()
    {
        QFETCH(QString, form);
        QFETCH(QString, message);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(message)));
        const std::unique_ptr<QWidget> widget = loadForm(form);
        QVERIFY(widget);
        QVERIFY(widget->findChild<OrvDragIcon*>(QStringLiteral("entry")));
    }
};

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designer_plugin.moc"
