#pragma once

#include "orv_types.h"
#include "orvwidgets_export.h"

#include <QGridLayout>
#include <QSize>
#include <QVector>

class QResizeEvent;

namespace OrvWidgets {

// Grid of equally sized buttons filled row by row, either with a fixed number of
// columns or with as many as the parent's width allows (auto size, maxColumn < 0).
class ORVWIDGETS_EXPORT OrvGridLayout : public QGridLayout
{
    Q_OBJECT
public:
    explicit OrvGridLayout(ButtonSize buttonSize = eDefault, QWidget* parent = nullptr, int maxColumn = -1);
    ~OrvGridLayout() override;

    // Places the widget at the first free cell; a widget added before is ignored.
    void add_widget(QWidget* widget);

    // On: the column count follows onParentResize(). Off: a single column.
    void setAutoSize(bool on);
    bool isAutoSize() const;

    // Sets the column count and rebuilds the grid in insertion order.
    void setMaxColumn(int maxColumn);
    int maxColumn() const;

    ButtonSize buttonSize() const;

public Q_SLOTS:
    // To be called (or connected) whenever the widget whose width rules the grid is resized.
    void onParentResize(QResizeEvent* event);
    void onWidgetDestroyed();

private:
    void addWidgetInternal(QWidget* widget);
    void rebuild();

    ButtonSize m_buttonSize;
    int m_defaultMaxColumn;
    int m_maxColumn;
    int m_colSize = 0;
    QVector<QWidget*> m_widgetList;
    QSize m_oldSize;
    bool m_autoSize;
};

} // namespace OrvWidgets
