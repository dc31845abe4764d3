#include "orv_tool_box.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollArea>
#include <QLayout>
#include <QResizeEvent>
#include <QToolTip>

namespace OrvWidgets {

OrvToolBox::OrvToolBox(QWidget* parent)
    : QToolBox(parent)
{
    setStyleSheet(navigationStyleSheet());
}

OrvToolBox::~OrvToolBox() = default;

QString OrvToolBox::navigationStyleSheet()
{
    return QStringLiteral(
        "QToolBox::tab {"
        " background: palette(button); color: palette(button-text);"
        " border: none; border-left: 4px solid transparent; border-bottom: 1px solid palette(mid);"
        " padding: 4px 6px; }"
        "QToolBox::tab:hover { background: palette(midlight); }"
        "QToolBox::tab:selected {"
        " background: palette(window); border-left: 4px solid palette(highlight); font-weight: bold; }"
        "QToolBox::tab:!enabled { color: palette(mid); }"
        "QToolBox::tab:focus { color: palette(highlight); text-decoration: underline; }");
}

void OrvToolBox::resizeEvent(QResizeEvent* event)
{
    QToolBox::resizeEvent(event);
    Q_EMIT resized(event);
}

// The tool box lays out tab, page, tab, page...: the tab of page i is item 2 i.
QAbstractButton* OrvToolBox::tabButton(int index) const
{
    if (index < 0 || index >= count() || !layout())
        return nullptr;
    QLayoutItem* item = layout()->itemAt(2 * index);
    return item ? qobject_cast<QAbstractButton*>(item->widget()) : nullptr;
}

int OrvToolBox::indexOfTabButton(const QObject* button) const
{
    for (int i = 0; i < count(); ++i) {
        if (tabButton(i) == button)
            return i;
    }
    return -1;
}

void OrvToolBox::itemInserted(int index)
{
    QToolBox::itemInserted(index);
    // Each page sits in a scroll area of the tool box; it is no stop of its own for Tab,
    // the buttons on the page are.
    if (QWidget* page = widget(index)) {
        if (auto* area = qobject_cast<QScrollArea*>(page->parentWidget() ? page->parentWidget()->parentWidget() : nullptr))
            area->setFocusPolicy(Qt::NoFocus);
    }
    if (QAbstractButton* button = tabButton(index)) {
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
    }
}

void OrvToolBox::goToPage(int index)
{
    setCurrentIndex(index);
    if (QAbstractButton* button = tabButton(currentIndex()))
        button->setFocus(Qt::TabFocusReason);
}

// Next enabled page after `from` in the step's direction; stays put at the ends.
void OrvToolBox::stepPage(int from, int step)
{
    for (int i = from + step; i >= 0 && i < count(); i += step) {
        if (isItemEnabled(i)) {
            goToPage(i);
            return;
        }
    }
}

void OrvToolBox::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers() == Qt::ControlModifier
        && (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)) {
        stepPage(currentIndex(), event->key() == Qt::Key_PageUp ? -1 : 1);
        event->accept();
        return;
    }
    QToolBox::keyPressEvent(event);
}

bool OrvToolBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ToolTip)
        return QToolBox::eventFilter(watched, event);
    const int index = indexOfTabButton(watched);
    if (index < 0)
        return QToolBox::eventFilter(watched, event);

    if (event->type() == QEvent::ToolTip) {
        // A title cut short by a narrow column is shown in full on hover.
        auto* help = static_cast<QHelpEvent*>(event);
        auto* button = static_cast<QAbstractButton*>(watched);
        const QString title = itemText(index);
        if (itemToolTip(index).isEmpty() && !title.isEmpty()
            && button->fontMetrics().horizontalAdvance(title) > button->width() - button->height()) {
            QToolTip::showText(help->globalPos(), title, button);
            return true;
        }
        return QToolBox::eventFilter(watched, event);
    }

    auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() & ~Qt::KeypadModifier)
        return QToolBox::eventFilter(watched, event);
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        stepPage(index, -1);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Right:
        stepPage(index, 1);
        return true;
    case Qt::Key_Home:
        goToPage(0);
        return true;
    case Qt::Key_End:
        goToPage(count() - 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToPage(index);
        return true;
    default:
        return QToolBox::eventFilter(watched, event);
    }
}

} // namespace OrvWidgets
