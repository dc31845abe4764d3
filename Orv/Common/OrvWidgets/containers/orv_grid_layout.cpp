#include "orv_grid_layout.h"
#include "orv_logging_p.h"

#include <algorithm>
#include <limits>
#include <vector>

#include <QHash>
#include <QLoggingCategory>
#include <QRect>
#include <QResizeEvent>
#include <QWidget>

namespace OrvWidgets {

namespace {

// Walks the grid row by row from the top left: cells taken by widgets are skipped,
// a cell held by a widget-less item (a spacer) has that item removed and is used.
// The occupancy is read once into a flat table indexed in walk order, so placing a
// run of widgets costs one pass over the layout's items plus one step per cell.
class CellWalker
{
public:
    // `placements`: how many widgets will be placed; the walk never needs to look
    // further than the cells taken so far plus those.
    CellWalker(QGridLayout* layout, int maxColumn, int placements)
        : m_layout(layout)
        , m_maxColumn(maxColumn)
    {
        const int n = layout->count();
        m_items.reserve(n);
        qint64 covered = 0;
        for (int i = 0; i < n; ++i) {
            Item entry;
            entry.item = layout->itemAt(i);
            int row = 0, col = 0, rowSpan = 1, colSpan = 1;
            layout->getItemPosition(i, &row, &col, &rowSpan, &colSpan);
            entry.area = QRect(col, row, qMax(1, colSpan), qMax(1, rowSpan));
            entry.freeable = !entry.item->widget();
            covered += qint64(entry.area.width()) * entry.area.height();
            m_items.append(entry);
        }
        m_cells.assign(size_t(qMin<qint64>(covered + placements + 1, std::numeric_limits<int>::max())), kFree);
        for (int i = 0; i < m_items.size(); ++i)
            mark(m_items.at(i).area, quint32(i));
    }

    // The next free cell at or after the last one handed out; it is reserved.
    void nextFree(int* row, int* col)
    {
        for (;; ++m_index) {
            if (m_index >= m_cells.size())
                m_cells.resize(m_index + 1, kFree);
            const quint32 at = m_cells[m_index];
            if (at == kFree)
                break;
            if (at != kPlaced && m_items.at(int(at)).freeable) {
                release(int(at));
                break;
            }
        }
        m_cells[m_index] = kPlaced;
        if (m_maxColumn > 0) {
            *row = int(m_index / size_t(m_maxColumn));
            *col = int(m_index % size_t(m_maxColumn));
        } else {
            *row = 0;
            *col = int(m_index);
        }
    }

private:
    static constexpr quint32 kFree = 0xffffffffu;
    static constexpr quint32 kPlaced = 0xfffffffeu;

    struct Item
    {
        QLayoutItem* item = nullptr;
        QRect area;
        bool freeable = false;
    };

    // Calls f(walkIndex) for each cell of the area the walk can reach.
    template<typename F>
    void forEachCell(const QRect& area, F f) const
    {
        const qint64 limit = qint64(m_cells.size());
        if (m_maxColumn <= 0) {
            if (area.top() > 0)
                return;
            for (qint64 c = area.left(); c <= area.right() && c < limit; ++c)
                f(size_t(c));
            return;
        }
        const int lastCol = qMin(area.right(), m_maxColumn - 1);
        for (qint64 r = area.top(); r <= area.bottom(); ++r) {
            const qint64 base = r * m_maxColumn;
            if (base >= limit)
                return;
            for (qint64 c = area.left(); c <= lastCol && base + c < limit; ++c)
                f(size_t(base + c));
        }
    }

    // An overlapped cell belongs to the first item, as for QGridLayout::itemAtPosition().
    void mark(const QRect& area, quint32 id)
    {
        forEachCell(area, [this, id](size_t i) {
            if (m_cells[i] == kFree)
                m_cells[i] = id;
        });
    }

    void release(int id)
    {
        forEachCell(m_items.at(id).area, [this, id](size_t i) {
            if (m_cells[i] == quint32(id))
                m_cells[i] = kFree;
        });
        QLayoutItem* item = m_items.at(id).item;
        m_items[id].freeable = false;
        delete m_layout->takeAt(m_layout->indexOf(item));
    }

    QGridLayout* m_layout;
    int m_maxColumn;
    size_t m_index = 0;
    QVector<Item> m_items;
    std::vector<quint32> m_cells;
};

} // namespace

OrvGridLayout::OrvGridLayout(ButtonSize buttonSize, QWidget* parent, int maxColumn)
    : QGridLayout(parent)
    , m_buttonSize(buttonSize)
    , m_defaultMaxColumn(maxColumn)
    , m_maxColumn(maxColumn)
    , m_autoSize(maxColumn < 0)
{
    setSizeConstraint(QLayout::SetNoConstraint);
    setVerticalSpacing(1);
    setContentsMargins(0, 0, 0, 0);
}

OrvGridLayout::~OrvGridLayout() = default;

void OrvGridLayout::add_widget(QWidget* widget)
{
    if (!widget) {
        qCWarning(lcContainers) << "OrvGridLayout::add_widget: cannot add null-widget!";
        return;
    }
    if (m_widgetList.contains(widget))
        return;
    connect(widget, &QObject::destroyed, this, &OrvGridLayout::onWidgetDestroyed);
    addWidgetInternal(widget);
    m_widgetList.append(widget);
}

void OrvGridLayout::addWidgetInternal(QWidget* widget)
{
    int row = 0, col = 0;
    CellWalker(this, m_maxColumn, 1).nextFree(&row, &col);
    if (row == 0)
        ++m_colSize;
    addWidget(widget, row, col);
}

void OrvGridLayout::setAutoSize(bool on)
{
    m_autoSize = on;
    if (!on) {
        // A single column on purpose, not the configured count.
        setMaxColumn(1);
        return;
    }
    m_maxColumn = -1;
    m_oldSize = QSize();
    if (QWidget* parent = parentWidget()) {
        QResizeEvent event(parent->size(), QSize());
        onParentResize(&event);
        if (!geometry().isNull())
            setGeometry(geometry());
    }
}

bool OrvGridLayout::isAutoSize() const
{
    return m_autoSize;
}

void OrvGridLayout::setMaxColumn(int maxColumn)
{
    m_maxColumn = m_defaultMaxColumn = maxColumn;
    m_colSize = 0;
    rebuild();
}

int OrvGridLayout::maxColumn() const
{
    return m_maxColumn;
}

ButtonSize OrvGridLayout::buttonSize() const
{
    return m_buttonSize;
}

void OrvGridLayout::onParentResize(QResizeEvent* event)
{
    if (!event || !m_autoSize || event->size() == m_oldSize)
        return;
    const int width = event->size().width();
    const bool grew = width > m_oldSize.width();
    m_oldSize = event->size();

    const int edge = int(m_buttonSize);
    const int cell = edge + 4; // 4 pixels of spacing per cell
    int columns = cell > 0 ? width / cell : 1;
    if (!grew && width <= edge * m_colSize - edge / 2)
        --columns;
    // However narrow the parent, a button per row still fits better than one endless row.
    columns = qMax(1, columns);
    if (columns != m_maxColumn)
        setMaxColumn(columns);
}

void OrvGridLayout::onWidgetDestroyed()
{
    QObject* dead = sender();
    // Compare addresses only: the widget part of the sender is already gone.
    const auto it = std::find_if(m_widgetList.begin(), m_widgetList.end(),
                                 [dead](QWidget* w) { return static_cast<QObject*>(w) == dead; });
    if (it == m_widgetList.end())
        return;
    m_widgetList.erase(it);
    for (int i = count() - 1; i >= 0; --i) {
        if (static_cast<QObject*>(itemAt(i)->widget()) == dead)
            delete takeAt(i);
    }
    setMaxColumn(m_maxColumn);
}

void OrvGridLayout::rebuild()
{
    // Take the listed widgets' items out and put the same items back: re-adding the
    // widgets would scan the whole layout once per widget.
    QHash<QWidget*, QLayoutItem*> taken;
    taken.reserve(m_widgetList.size());
    for (QWidget* w : std::as_const(m_widgetList))
        taken.insert(w, nullptr);
    for (int i = count() - 1; i >= 0; --i) {
        QWidget* w = itemAt(i)->widget();
        const auto it = w ? taken.find(w) : taken.end();
        if (it == taken.end())
            continue;
        QLayoutItem* item = takeAt(i);
        if (it.value())
            delete item; // the same widget in the grid twice: keep one
        else
            it.value() = item;
    }

    CellWalker walker(this, m_maxColumn, int(taken.size()));
    QVector<QWidget*> placed;
    placed.reserve(m_widgetList.size());
    for (QWidget* w : std::as_const(m_widgetList)) {
        QLayoutItem* item = taken.value(w);
        if (!item) {
            // Its owner took it out of the grid (re-parented it): do not pull it back.
            disconnect(w, &QObject::destroyed, this, &OrvGridLayout::onWidgetDestroyed);
            continue;
        }
        int row = 0, col = 0;
        walker.nextFree(&row, &col);
        if (row == 0)
            ++m_colSize;
        addItem(item, row, col);
        placed.append(w);
    }
    m_widgetList.swap(placed);
    invalidate();
}

} // namespace OrvWidgets
