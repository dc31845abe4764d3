// Every public widget of the library, for the form designer and the gallery.

#include "orv_widget_catalog.h"

#include <orv_angle_edit.h>
#include <orv_bitfield_widget.h>
#include <orv_combo_box.h>
#include <orv_date_time_edit.h>
#include <orv_dialog_button_box.h>
#include <orv_double_spin_box.h>
#include <orv_drag_icon.h>
#include <orv_elided_label.h>
#include <orv_msec_date_time_edit.h>
#include <orv_multi_range_spin_box.h>
#include <orv_profile_button.h>
#include <orv_spin_box.h>
#include <orv_tab_widget.h>
#include <orv_text_editor.h>
#include <orv_text_editor2.h>
#include <orv_tool_bar_area.h>
#include <orv_tool_box.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QTextEdit>

namespace OrvWidgets::DesignerPlugin {

namespace {

// 14 Nov 2026, 15:30 UTC: a fixed time, so that gallery pictures do not change by themselves.
constexpr qint64 kGalleryTime = 1794670200000LL;

template <typename Widget> std::function<QWidget*(QWidget*)> plain()
{
    return [](QWidget* parent) { return new Widget(parent); };
}

QString twoPages(const QString& pageClass, const QString& titleAttribute)
{
    QString xml;
    for (int page = 1; page <= 2; ++page) {
        xml += QStringLiteral("  <widget class=\"%1\" name=\"page%2\">\n"
                              "   <attribute name=\"%3\"><string>Page %2</string></attribute>\n"
                              "  </widget>\n")
                   .arg(pageClass)
                   .arg(page)
                   .arg(titleAttribute);
    }
    return xml;
}

} // namespace

QList<WidgetEntry> widgetEntries()
{
    QList<WidgetEntry> entries;
    auto add = [&entries](const char* className, const char* header, const char* toolTip, const char* whatsThis,
                          QSize size, std::function<QWidget*(QWidget*)> create) -> WidgetEntry& {
        entries.append({QStringLiteral("OrvWidgets::") + QLatin1String(className),
                        QLatin1String(header),
                        QLatin1String(toolTip),
                        QLatin1String(whatsThis),
                        size,
                        false,
                        QString(),
                        std::move(create),
                        {}});
        return entries.last();
    };

    // Value editors
    add("OrvDateTimeEdit", "orv_date_time_edit.h", "Date-time group editor",
        "Edits a military date-time group (day, hour, minute, zone letter, month, year) with limits.", QSize(360, 32),
        plain<OrvDateTimeEdit>())
        .showcase = [](QWidget* w) {
        auto* edit = static_cast<OrvDateTimeEdit*>(w);
        edit->setMinMaxTimeMSec(0, kGalleryTime * 2);
        edit->setMsecsSinceEpoch(kGalleryTime);
    };
    add("OrvMSecDateTimeEdit", "orv_msec_date_time_edit.h", "Date-time editor with milliseconds",
        "A date-time editor that steps and shows milliseconds.", QSize(220, 28), plain<OrvMSecDateTimeEdit>())
        .showcase = [](QWidget* w) {
        static_cast<OrvMSecDateTimeEdit*>(w)->setDateTime(QDateTime::fromMSecsSinceEpoch(kGalleryTime + 250, Qt::UTC));
    };
    add("OrvAngleEdit", "orv_angle_edit.h", "Angle editor in degrees, mils or radians",
        "One or more angle boxes sharing a unit selector; switching the unit converts the values.", QSize(220, 28),
        [](QWidget* parent) {
            auto* edit = new OrvAngleEdit(parent);
            edit->initAngleEditWidget(1);
            return edit;
        });
    add("OrvSpinBox", "orv_spin_box.h", "Spin box with a step grid and excluded ranges",
        "An integer spin box that keeps values on a step grid and skips excluded ranges.", QSize(120, 28),
        plain<OrvSpinBox>())
        .showcase = [](QWidget* w) {
        auto* box = static_cast<OrvSpinBox*>(w);
        box->setRange(0, 500);
        box->setValue(250);
    };
    add("OrvDoubleSpinBox", "orv_double_spin_box.h", "Decimal spin box with a step grid",
        "A decimal spin box that keeps values on a step grid.", QSize(120, 28), plain<OrvDoubleSpinBox>())
        .showcase = [](QWidget* w) {
        auto* box = static_cast<OrvDoubleSpinBox*>(w);
        box->setRange(0.0, 100.0);
        box->setValue(12.5);
    };
    add("OrvMultiRangeSpinBox", "orv_multi_range_spin_box.h", "Spin box over several allowed ranges",
        "An integer spin box whose value lies in one of several allowed ranges.", QSize(120, 28),
        plain<OrvMultiRangeSpinBox>())
        .showcase = [](QWidget* w) {
        auto* box = static_cast<OrvMultiRangeSpinBox*>(w);
        box->setRanges({{1, 9}, {20, 29}, {100, 199}});
        box->setValue(25);
    };
    add("OrvBitfieldWidget", "orv_bitfield_widget.h", "Editor for an 8-bit field",
        "Shows and edits the eight bits of a byte as cells.", QSize(260, 48), plain<OrvBitfieldWidget>())
        .showcase = [](QWidget* w) { static_cast<OrvBitfieldWidget*>(w)->setValue(0xA5); };

    add("OrvComboBox", "orv_combo_box.h", "Combo box with a search line",
        "A combo box for long lists: typing filters its popup; optionally several items can be checked.",
        QSize(200, 28), plain<OrvComboBox>())
        .showcase = [](QWidget* w) {
        auto* combo = static_cast<OrvComboBox*>(w);
        combo->addItems({QCoreApplication::translate("OrvGallery", "Observer"),
                         QCoreApplication::translate("OrvGallery", "Controller"),
                         QCoreApplication::translate("OrvGallery", "Umpire")});
        combo->setMultiSelection(true);
        combo->setCheckedRows({0, 2});
    };

    // Containers and buttons
    WidgetEntry& tabs = add("OrvTabWidget", "orv_tab_widget.h", "Tab widget for pages",
                            "Holds pages as tabs keyed by menu group and identifier.", QSize(400, 300),
                            [](QWidget* parent) { return new OrvTabWidget(parent, false); });
    tabs.container = true;
    tabs.pagesXml = twoPages(QStringLiteral("QWidget"), QStringLiteral("title"));
    WidgetEntry& toolBox =
        add("OrvToolBox", "orv_tool_box.h", "Tool box of menu button groups",
            "A tool box whose pages hold groups of menu buttons.", QSize(220, 300), plain<OrvToolBox>());
    toolBox.container = true;
    toolBox.pagesXml = twoPages(QStringLiteral("QWidget"), QStringLiteral("label"));
    add("OrvDragIcon", "orv_drag_icon.h", "Draggable menu button",
        "A menu button in the suite's styles and sizes that can be dragged to the tool bar.", QSize(120, 40),
        plain<OrvDragIcon>())
        .showcase = [](QWidget* w) {
        static_cast<OrvDragIcon*>(w)->setText(QCoreApplication::translate("OrvGallery", "Participants"));
    };
    add("OrvToolBarArea", "orv_tool_bar_area.h", "Tool bar area with function keys",
        "Takes dropped menu buttons as copies and binds them to the function keys F5 to F12.", QSize(400, 48),
        plain<OrvToolBarArea>());
    add("OrvElidedLabel", "orv_elided_label.h", "Label that elides its text",
        "A label that shortens its text with an ellipsis where space runs out.", QSize(160, 24),
        plain<OrvElidedLabel>())
        .showcase = [](QWidget* w) {
        static_cast<OrvElidedLabel*>(w)->setText(
            QCoreApplication::translate("OrvGallery", "A text too long for the width it is given"));
    };
    add("OrvDialogButtonBox", "orv_dialog_button_box.h", "Page button box",
        "The standard buttons of a page (OK, Apply, Cancel and more).", QSize(400, 48), plain<OrvDialogButtonBox>());
    add("OrvProfileButton", "orv_profile_button.h", "Operator's profile picture button",
        "Shows the operator's picture and opens the operator menu.", QSize(48, 48), plain<OrvProfileButton>());

    // Text
    add("OrvTextEditor", "orv_text_editor.h", "Compact editor for short texts",
        "Bold, italic, underline and lists in one row, with an optional character limit and counter.", QSize(360, 120),
        plain<OrvTextEditor>())
        .showcase = [](QWidget* w) {
        auto* editor = static_cast<OrvTextEditor*>(w);
        editor->setMaximumLength(160);
        editor->setHtml(QCoreApplication::translate("OrvGallery", "Report to the <b>control room</b> at 0800Z."));
    };
    add("OrvTextEditor2", "orv_text_editor2.h", "Rich text editor",
        "Formats text, and loads and saves Markdown, HTML, plain text and OpenDocument text.", QSize(480, 320),
        plain<OrvTextEditor2>())
        .showcase = [](QWidget* w) {
        static_cast<OrvTextEditor2*>(w)->textEdit()->setHtml(QCoreApplication::translate(
            "OrvGallery", "<h2>Briefing</h2><p>The exercise starts at <b>0800Z</b>. Report to the control room.</p>"));
    };
    return entries;
}

} // namespace OrvWidgets::DesignerPlugin
