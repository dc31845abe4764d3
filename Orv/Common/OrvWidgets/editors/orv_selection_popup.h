#pragma once

#include "orvwidgets_export.h"

#include <QFrame>
#include <QList>
#include <QModelIndex>

#include <memory>

class QAbstractItemModel;
class QLineEdit;
class QListView;

namespace OrvWidgets {

class OrvSelectionPopupPrivate;

/*! A frameless popup anchored to a widget: a search line above a list of choices.

    Typing filters the list at once: an item stays when its text contains the typed text,
    ignoring case and accents ("zur" finds "Zürich"). The keyboard works throughout: Up,
    Down, Page Up, Page Down, Ctrl+Home and Ctrl+End move through the list while the search
    line has the focus; Return takes the current item; Escape closes without a choice; Tab moves
    between the search line and the list. In multiple selection, every item has a check
    box: Space on the list or a click checks and unchecks, Return closes and keeps the
    checks. The popup opens below its anchor (above it when there is no room below) and
    always stays inside the anchor's screen.

    The popup shows a column of any item model; it does not own the model. Filtering goes
    through an internal proxy over texts folded once per model change, so a keystroke on
    100,000 items costs a few milliseconds. */
class ORVWIDGETS_EXPORT OrvSelectionPopup : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(bool multiSelection READ isMultiSelection WRITE setMultiSelection NOTIFY multiSelectionChanged)
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(int maximumVisibleItems READ maximumVisibleItems WRITE setMaximumVisibleItems)
public:
    /*! An empty popup; it becomes a top-level popup window of \a parent's window. */
    explicit OrvSelectionPopup(QWidget* parent = nullptr);
    ~OrvSelectionPopup() override;

    /*! Shows the rows of \a model in \a column; \a model is not owned and may be null.
        Checked rows are cleared. */
    void setModel(QAbstractItemModel* model, int column = 0);
    /*! The model shown; null when none is set. */
    QAbstractItemModel* model() const;
    /*! The model column shown. */
    int modelColumn() const;

    /*! True when items carry check boxes and several may be chosen (false by default). */
    bool isMultiSelection() const;
    /*! Turns check boxes on or off; turning them off clears the checks. Emits
        multiSelectionChanged() on a change. */
    void setMultiSelection(bool multi);

    /*! The checked rows of the model, ascending (multiple selection). */
    QList<int> checkedRows() const;
    /*! Checks exactly \a rows (rows outside the model are ignored); emits
        checkedRowsChanged() when the set changes. */
    void setCheckedRows(const QList<int>& rows);
    /*! True when \a row is checked. */
    bool isRowChecked(int row) const;

    /*! The text in the search line. */
    QString filterText() const;
    /*! Puts \a text into the search line and filters; emits filterTextChanged() on a change. */
    void setFilterText(const QString& text);
    /*! The number of rows that pass the filter. */
    int visibleCount() const;

    /*! The model row of the list's current item, or -1. */
    int currentRow() const;
    /*! Makes model \a row the list's current item when it passes the filter. */
    void setCurrentRow(int row);

    /*! How many items the list shows at most before it scrolls (12 by default). */
    int maximumVisibleItems() const;
    /*! Sets how many items the list shows at most before it scrolls (at least 1). */
    void setMaximumVisibleItems(int count);

    /*! Opens the popup at \a anchor: below it at least as wide as it, above it when the
        screen has no room below, always inside the anchor's screen. The search line takes
        the focus. Does nothing without an anchor. */
    void showAt(QWidget* anchor);

    /*! The search line, owned by the popup. */
    QLineEdit* searchLine() const;
    /*! The list, owned by the popup. */
    QListView* listView() const;

    /*! Folds \a text for matching: accents removed, case folded ("Zürich" gives "zurich"). */
    static QString foldedText(const QString& text);

    /*! \reimp */
    QSize sizeHint() const override;

Q_SIGNALS:
    /*! Emitted when the user took model \a row (click or Return, single selection); the
        popup then closes. */
    void rowActivated(int row);
    /*! Emitted when the set of checked rows changed (multiple selection). */
    void checkedRowsChanged();
    /*! Emitted when the popup closed, with or without a choice. */
    void closed();
    /*! Emitted when the search text changed. */
    void filterTextChanged(const QString& text);
    /*! Emitted when multiple selection was turned on or off. */
    void multiSelectionChanged(bool multi);

protected:
    /*! \reimp */
    bool eventFilter(QObject* watched, QEvent* event) override;
    /*! \reimp */
    void hideEvent(QHideEvent* event) override;
    /*! \reimp */
    void changeEvent(QEvent* event) override;

private:
    void activate(const QModelIndex& proxyIndex);
    void toggle(const QModelIndex& proxyIndex);
    void retranslate();

    std::unique_ptr<OrvSelectionPopupPrivate> const d;
};

} // namespace OrvWidgets
