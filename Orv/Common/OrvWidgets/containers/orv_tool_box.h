#pragma once

#include "orvwidgets_export.h"

#include <QToolBox>

class QAbstractButton;
class QResizeEvent;

namespace OrvWidgets {

/// Tool box of the navigation column: one page per menu group. Reports its resizes
/// so that the button grids of its pages can follow its width.
/// 
/// Keyboard: the page tabs take focus with Tab; Up/Down (Left/Right), Home/End move
/// between pages, Return/Enter/Space open the focused page; Ctrl+PageUp/PageDown
/// switch pages from anywhere inside the tool box.
class ORVWIDGETS_EXPORT OrvToolBox : public QToolBox
{
    Q_OBJECT
public:
    /*! An empty tool box in the navigation look. */
    explicit OrvToolBox(QWidget* parent = nullptr);
    ~OrvToolBox() override;

    /// The look applied at construction: compact page tabs in palette colours with
    /// the current page marked by a highlight bar.
    static QString navigationStyleSheet();

Q_SIGNALS:
    /*! Emitted after every resize, with the resize event. */
    void resized(QResizeEvent* event);

protected:
    /*! \reimp */
    void resizeEvent(QResizeEvent* event) override;
    /*! \reimp */
    void keyPressEvent(QKeyEvent* event) override;
    /*! \reimp */
    void itemInserted(int index) override;
    /*! \reimp */
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractButton* tabButton(int index) const;
    int indexOfTabButton(const QObject* button) const;
    void goToPage(int index);
    void stepPage(int from, int step);
};

} // namespace OrvWidgets
