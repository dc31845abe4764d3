#include "orv_selection_popup.h"
#include "orv_logging_p.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

#include <vector>

namespace OrvWidgets {

namespace {

// The rows of one source column whose folded text contains the folded filter text.
// Texts are folded once per source change; a keystroke that only narrows the filter
// looks at the rows that passed before, so typing stays cheap on large lists.
class FoldedFilterProxy : public QAbstractProxyModel
{
public:
    explicit FoldedFilterProxy(QObject* parent)
        : QAbstractProxyModel(parent)
    {
    }

    void setSource(QAbstractItemModel* model, int column)
    {
        beginResetModel();
        for (const QMetaObject::Connection& c : std::as_const(m_connections))
            disconnect(c);
        m_connections.clear();
        QAbstractProxyModel::setSourceModel(model);
        m_column = qMax(0, column);
        m_checked.clear();
        if (model) {
            // Any change of the rows or texts: fold again and filter again.
            const auto refold = [this] { refresh(); };
            m_connections << connect(model, &QAbstractItemModel::modelReset, this, refold)
                          << connect(model, &QAbstractItemModel::layoutChanged, this, refold)
                          << connect(model, &QAbstractItemModel::rowsInserted, this, refold)
                          << connect(model, &QAbstractItemModel::rowsRemoved, this, refold)
                          << connect(model, &QAbstractItemModel::rowsMoved, this, refold)
                          << connect(model, &QAbstractItemModel::dataChanged, this,
                                     [this](const QModelIndex& from, const QModelIndex& to) {
                                         if (from.column() <= m_column && to.column() >= m_column)
                                             refresh();
                                     })
                          << connect(model, &QObject::destroyed, this, [this] { setSource(nullptr, 0); });
        }
        fold();
        m_needle.clear();
        filterAll();
        endResetModel();
    }

    int column() const { return m_column; }

    void setNeedle(const QString& text)
    {
        const QString needle = OrvSelectionPopup::foldedText(text);
        if (needle == m_needle)
            return;
        const bool narrows = !m_needle.isEmpty() && needle.contains(m_needle);
        m_needle = needle;
        beginResetModel();
        if (narrows) {
            std::vector<int> kept;
            kept.reserve(m_rows.size());
            for (const int row : m_rows) {
                if (m_folded[size_t(row)].contains(m_needle))
                    kept.push_back(row);
            }
            m_rows.swap(kept);
        } else {
            filterAll();
        }
        endResetModel();
    }

    bool multi = false;

    bool isChecked(int sourceRow) const
    {
        return sourceRow >= 0 && size_t(sourceRow) < m_checked.size() && m_checked[size_t(sourceRow)];
    }
    bool setChecked(int sourceRow, bool checked)
    {
        if (sourceRow < 0 || size_t(sourceRow) >= m_folded.size() || isChecked(sourceRow) == checked)
            return false;
        if (m_checked.size() < m_folded.size())
            m_checked.resize(m_folded.size(), false);
        m_checked[size_t(sourceRow)] = checked;
        const QModelIndex at = mapFromSource(sourceModel()->index(sourceRow, m_column));
        if (at.isValid())
            Q_EMIT dataChanged(at, at, {Qt::CheckStateRole});
        return true;
    }
    QList<int> checkedRows() const
    {
        QList<int> rows;
        for (size_t i = 0; i < m_checked.size(); ++i) {
            if (m_checked[i])
                rows.append(int(i));
        }
        return rows;
    }
    void clearChecks()
    {
        m_checked.clear();
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    }
    int sourceRowCount() const { return int(m_folded.size()); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override
    {
        if (parent.isValid() || column != 0 || row < 0 || size_t(row) >= m_rows.size())
            return {};
        return createIndex(row, 0);
    }
    QModelIndex parent(const QModelIndex&) const override { return {}; }
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : int(m_rows.size()); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 1; }

    QModelIndex mapToSource(const QModelIndex& proxyIndex) const override
    {
        if (!proxyIndex.isValid() || !sourceModel() || size_t(proxyIndex.row()) >= m_rows.size())
            return {};
        return sourceModel()->index(m_rows[size_t(proxyIndex.row())], m_column);
    }
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const override
    {
        if (!sourceIndex.isValid() || sourceIndex.column() != m_column || sourceIndex.parent().isValid())
            return {};
        // The rows are ascending: a binary search finds the proxy row.
        const auto it = std::lower_bound(m_rows.begin(), m_rows.end(), sourceIndex.row());
        if (it == m_rows.end() || *it != sourceIndex.row())
            return {};
        return index(int(it - m_rows.begin()), 0);
    }

    QVariant data(const QModelIndex& proxyIndex, int role) const override
    {
        if (role == Qt::CheckStateRole && multi) {
            const QModelIndex source = mapToSource(proxyIndex);
            return source.isValid() ? QVariant(isChecked(source.row()) ? Qt::Checked : Qt::Unchecked) : QVariant();
        }
        return QAbstractProxyModel::data(proxyIndex, role);
    }
    // Check boxes are drawn, not toggled by the view: the popup toggles them itself,
    // so a click on the box and a click on the text do the same.
    Qt::ItemFlags flags(const QModelIndex& proxyIndex) const override
    {
        return QAbstractProxyModel::flags(proxyIndex) & ~Qt::ItemIsUserCheckable & ~Qt::ItemIsEditable;
    }

private:
    void refresh()
    {
        beginResetModel();
        fold();
        filterAll();
        endResetModel();
    }

    void fold()
    {
        m_folded.clear();
        QAbstractItemModel* model = sourceModel();
        if (!model)
            return;
        const int rows = model->rowCount();
        m_folded.reserve(size_t(rows));
        for (int row = 0; row < rows; ++row)
            m_folded.push_back(OrvSelectionPopup::foldedText(model->index(row, m_column).data().toString()));
        if (m_checked.size() > m_folded.size())
            m_checked.resize(m_folded.size());
    }

    void filterAll()
    {
        m_rows.clear();
        m_rows.reserve(m_folded.size());
        for (size_t row = 0; row < m_folded.size(); ++row) {
            if (m_needle.isEmpty() || m_folded[row].contains(m_needle))
                m_rows.push_back(int(row));
        }
    }

    int m_column = 0;
    QString m_needle;
    std::vector<QString> m_folded;
    std::vector<int> m_rows;
    std::vector<bool> m_checked;
    QList<QMetaObject::Connection> m_connections;
};

} // namespace

class OrvSelectionPopupPrivate
{
public:
    QLineEdit* search = nullptr;
    QListView* list = nullptr;
    FoldedFilterProxy* proxy = nullptr;
    int maximumVisibleItems = 12;
};

OrvSelectionPopup::OrvSelectionPopup(QWidget* parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , d(std::make_unique<OrvSelectionPopupPrivate>())
{
    setObjectName(QStringLiteral("OrvSelectionPopup"));
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_WindowPropagation);

    d->search = new QLineEdit(this);
    d->search->setObjectName(QStringLiteral("leSearch"));
    d->search->setClearButtonEnabled(true);
    d->search->installEventFilter(this);

    d->proxy = new FoldedFilterProxy(this);
    d->list = new QListView(this);
    d->list->setObjectName(QStringLiteral("lvChoices"));
    d->list->setUniformItemSizes(true);
    d->list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    d->list->setSelectionMode(QAbstractItemView::SingleSelection);
    d->list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->list->setModel(d->proxy);
    d->list->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(d->search);
    layout->addWidget(d->list);
    setFocusProxy(d->search);

    connect(d->search, &QLineEdit::textChanged, this, [this](const QString& text) {
        const int current = currentRow();
        d->proxy->setNeedle(text);
        // Keep the item the user was on when it still passes, else take the first.
        setCurrentRow(current);
        if (!d->list->currentIndex().isValid() && d->proxy->rowCount() > 0)
            d->list->setCurrentIndex(d->proxy->index(0, 0));
        Q_EMIT filterTextChanged(text);
    });
    connect(d->list, &QListView::clicked, this, [this](const QModelIndex& index) {
        if (d->proxy->multi)
            toggle(index);
        else
            activate(index);
    });
    retranslate();
}

OrvSelectionPopup::~OrvSelectionPopup() = default;

void OrvSelectionPopup::setModel(QAbstractItemModel* model, int column)
{
    d->proxy->setSource(model, column);
    if (d->proxy->rowCount() > 0)
        d->list->setCurrentIndex(d->proxy->index(0, 0));
}

QAbstractItemModel* OrvSelectionPopup::model() const
{
    return d->proxy->sourceModel();
}

int OrvSelectionPopup::modelColumn() const
{
    return d->proxy->column();
}

bool OrvSelectionPopup::isMultiSelection() const
{
    return d->proxy->multi;
}

void OrvSelectionPopup::setMultiSelection(bool multi)
{
    if (multi == d->proxy->multi)
        return;
    d->proxy->multi = multi;
    const bool hadChecks = !d->proxy->checkedRows().isEmpty();
    d->proxy->clearChecks();
    d->list->viewport()->update();
    Q_EMIT multiSelectionChanged(multi);
    if (hadChecks)
        Q_EMIT checkedRowsChanged();
}

QList<int> OrvSelectionPopup::checkedRows() const
{
    return d->proxy->checkedRows();
}

void OrvSelectionPopup::setCheckedRows(const QList<int>& rows)
{
    std::vector<bool> wanted(size_t(d->proxy->sourceRowCount()), false);
    for (const int row : rows) {
        if (row >= 0 && size_t(row) < wanted.size())
            wanted[size_t(row)] = true;
    }
    bool changed = false;
    for (size_t row = 0; row < wanted.size(); ++row)
        changed = d->proxy->setChecked(int(row), wanted[row]) || changed;
    if (changed)
        Q_EMIT checkedRowsChanged();
}

bool OrvSelectionPopup::isRowChecked(int row) const
{
    return d->proxy->isChecked(row);
}

QString OrvSelectionPopup::filterText() const
{
    return d->search->text();
}

void OrvSelectionPopup::setFilterText(const QString& text)
{
    d->search->setText(text);
}

int OrvSelectionPopup::visibleCount() const
{
    return d->proxy->rowCount();
}

int OrvSelectionPopup::currentRow() const
{
    const QModelIndex source = d->proxy->mapToSource(d->list->currentIndex());
    return source.isValid() ? source.row() : -1;
}

void OrvSelectionPopup::setCurrentRow(int row)
{
    QAbstractItemModel* model = d->proxy->sourceModel();
    if (!model || row < 0)
        return;
    const QModelIndex at = d->proxy->mapFromSource(model->index(row, d->proxy->column()));
    if (!at.isValid())
        return;
    d->list->setCurrentIndex(at);
    d->list->scrollTo(at);
}

int OrvSelectionPopup::maximumVisibleItems() const
{
    return d->maximumVisibleItems;
}

void OrvSelectionPopup::setMaximumVisibleItems(int count)
{
    d->maximumVisibleItems = qMax(1, count);
    updateGeometry();
}

QLineEdit* OrvSelectionPopup::searchLine() const
{
    return d->search;
}

QListView* OrvSelectionPopup::listView() const
{
    return d->list;
}

QString OrvSelectionPopup::foldedText(const QString& text)
{
    // Most texts are plain ASCII: lower case is all they need.
    bool ascii = true;
    for (const QChar c : text) {
        if (c.unicode() >= 0x80) {
            ascii = false;
            break;
        }
    }
    if (ascii)
        return text.toLower();
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString folded;
    folded.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() != QChar::Mark_NonSpacing)
            folded.append(c);
    }
    return folded.toCaseFolded();
}

QSize OrvSelectionPopup::sizeHint() const
{
    const int rowHeight = d->proxy->rowCount() > 0 ? qMax(1, d->list->sizeHintForRow(0)) : fontMetrics().height() + 6;
    const int rows = qBound(1, d->proxy->rowCount(), d->maximumVisibleItems);
    const QMargins margins = contentsMargins() + layout()->contentsMargins();
    const int listHeight = rows * rowHeight + 2 * d->list->frameWidth();
    const int width = qMax(d->search->sizeHint().width(), fontMetrics().averageCharWidth() * 28);
    return {width + margins.left() + margins.right(),
            d->search->sizeHint().height() + layout()->spacing() + listHeight + margins.top() + margins.bottom()};
}

void OrvSelectionPopup::showAt(QWidget* anchor)
{
    if (!anchor) {
        qCWarning(lcEditors) << "OrvSelectionPopup::showAt: no anchor widget";
        return;
    }
    QScreen* screen = anchor->screen() ? anchor->screen() : QGuiApplication::primaryScreen();
    const QRect available = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
    const QSize hint = sizeHint();
    const int width = qMin(qMax(hint.width(), anchor->width()), available.width());
    const QPoint below = anchor->mapToGlobal(QPoint(0, anchor->height()));
    const QPoint above = anchor->mapToGlobal(QPoint(0, 0));
    const int roomBelow = available.bottom() - below.y() + 1;
    const int roomAbove = above.y() - available.top();
    int height = hint.height();
    int y = below.y();
    if (height > roomBelow && roomAbove > roomBelow) {
        height = qMin(height, roomAbove);
        y = above.y() - height;
    } else {
        height = qMin(height, qMax(roomBelow, 1));
    }
    const int x = qBound(available.left(), below.x(), available.right() - width + 1);
    setGeometry(x, y, width, height);
    show();
    raise();
    activateWindow();
    d->search->setFocus(Qt::PopupFocusReason);
    if (d->list->currentIndex().isValid())
        d->list->scrollTo(d->list->currentIndex());
}

bool OrvSelectionPopup::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || (watched != d->search && watched != d->list))
        return QFrame::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Escape:
        hide();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (d->proxy->multi)
            hide();
        else
            activate(d->list->currentIndex());
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (watched == d->search) {
            QCoreApplication::sendEvent(d->list, event);
            return true;
        }
        break;
    case Qt::Key_Home:
    case Qt::Key_End:
        // In the search line, Home and End move the cursor; with Ctrl they move the list.
        if (watched == d->search && (key->modifiers() & Qt::ControlModifier)) {
            QCoreApplication::sendEvent(d->list, event);
            return true;
        }
        break;
    case Qt::Key_Space:
        if (watched == d->list && d->proxy->multi) {
            toggle(d->list->currentIndex());
            return true;
        }
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void OrvSelectionPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    Q_EMIT closed();
}

void OrvSelectionPopup::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QFrame::changeEvent(event);
}

void OrvSelectionPopup::activate(const QModelIndex& proxyIndex)
{
    const QModelIndex source = d->proxy->mapToSource(proxyIndex);
    if (!source.isValid())
        return;
    const QPointer<OrvSelectionPopup> guard(this);
    Q_EMIT rowActivated(source.row());
    if (guard)
        hide();
}

void OrvSelectionPopup::toggle(const QModelIndex& proxyIndex)
{
    const QModelIndex source = d->proxy->mapToSource(proxyIndex);
    if (!source.isValid())
        return;
    d->proxy->setChecked(source.row(), !d->proxy->isChecked(source.row()));
    Q_EMIT checkedRowsChanged();
}

void OrvSelectionPopup::retranslate()
{
    d->search->setPlaceholderText(tr("Search…"));
    d->search->setAccessibleName(tr("Search"));
    d->list->setAccessibleName(tr("Choices"));
}

} // namespace OrvWidgets
