#pragma once

#include "orvwidgets_export.h"

#include <QComboBox>
#include <QList>
#include <QStringList>

#include <memory>

namespace OrvWidgets {

class OrvSelectionPopup;
class OrvComboBoxPrivate;

/*! A combo box for long lists: its popup is an OrvSelectionPopup with a search line.

    Typing on the closed, non-editable box opens the popup with the typed text as its
    filter, so that "ber" brings up "Berlin" among thousands of places. The usual
    QComboBox API keeps working: items, models, currentIndex(), activated() and
    currentIndexChanged().

    With multiple selection, every item has a check box and the closed box summarises the
    checked items: their names while they fit, "3 selected" when they do not, the
    placeholder text when nothing is checked. currentIndex() is then not used for the
    choice; read checkedRows() instead. */
class ORVWIDGETS_EXPORT OrvComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(bool multiSelection READ isMultiSelection WRITE setMultiSelection NOTIFY multiSelectionChanged)
public:
    /*! An empty, single-selection combo box. */
    explicit OrvComboBox(QWidget* parent = nullptr);
    ~OrvComboBox() override;

    /*! True when several items can be checked (false by default). */
    bool isMultiSelection() const;
    /*! Turns multiple selection on or off; turning it off clears the checks. Emits
        multiSelectionChanged() on a change. */
    void setMultiSelection(bool multi);

    /*! The checked rows, ascending (multiple selection). */
    QList<int> checkedRows() const;
    /*! Checks exactly \a rows; emits checkedRowsChanged() when the set changes. */
    void setCheckedRows(const QList<int>& rows);
    /*! The texts of the checked rows, in row order. */
    QStringList checkedTexts() const;
    /*! The text the closed box shows in multiple selection. */
    QString summaryText() const;

    /*! The popup, owned by the combo box. */
    OrvSelectionPopup* selectionPopup() const;

    /*! Opens the searchable popup at the box, its current item on the current index. */
    void showPopup() override;
    /*! Closes the popup. */
    void hidePopup() override;

Q_SIGNALS:
    /*! Emitted when the set of checked rows changed (multiple selection). */
    void checkedRowsChanged();
    /*! Emitted when multiple selection was turned on or off. */
    void multiSelectionChanged(bool multi);

protected:
    /*! \reimp */
    void paintEvent(QPaintEvent* event) override;
    /*! \reimp */
    void keyPressEvent(QKeyEvent* event) override;

private:
    void syncModel();

    std::unique_ptr<OrvComboBoxPrivate> const d;
};

} // namespace OrvWidgets
