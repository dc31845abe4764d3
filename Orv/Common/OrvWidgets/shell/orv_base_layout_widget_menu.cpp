// The shell's plug-in menu: one button per entry, grouped per exercise part.

#include "orv_base_layout_widget.h"
#include "orv_logging_p.h"

#include "orv_base_layout_widget_p.h"
#include "orv_dialog.h"
#include "orv_drag_icon.h"
#include "orv_grid_layout.h"
#include "orv_message_dialog.h"

#include <orv_session_data.h>

#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace OrvWidgets {

OrvToolBox* OrvBaseLayoutWidget::getToolBox(const ExercisePart& part) const
{
    switch (part) {
    case ePlanning:
        return m_ui->naviActionsPlanning;
    case eExecution:
        return m_ui->naviActionsExecution;
    case eAfterAction:
        return m_ui->naviActionsAfterAction;
    case eSpecial:
        return m_ui->naviActionsSpecial;
    }
    Q_ASSERT_X(false, "OrvBaseLayoutWidget::getToolBox", "unknown exercise part");
    return m_ui->naviActionsSpecial;
}

QWidget* OrvBaseLayoutWidget::getExercisePartButton(const ExercisePart& part) const
{
    switch (part) {
    case ePlanning:
        return m_ui->pbPlanning;
    case eExecution:
        return m_ui->pbExecution;
    case eAfterAction:
        return m_ui->pbAfterAction;
    case eSpecial:
        return m_ui->pbSpecial;
    }
    Q_ASSERT_X(false, "OrvBaseLayoutWidget::getExercisePartButton", "unknown exercise part");
    return m_ui->pbSpecial;
}

QWidget* OrvBaseLayoutWidget::findGroupPage(OrvToolBox* box, const QString& menuGroup) const
{
    // Group pages are the tool box's items; look there first, it is what we add.
    for (int i = 0; i < box->count(); ++i) {
        if (box->widget(i)->objectName() == menuGroup)
            return box->widget(i);
    }
    return box->findChild<QWidget*>(menuGroup);
}

OrvDragIcon* OrvBaseLayoutWidget::addMenuAction(const PluginData& data, bool executeCreateInstant)
{
    if (!OrvSessionData::OrvSessionData::getInstance()->hasOperatorRight(data.operatorRight)) {
        qCDebug(lcShell).noquote() << " > Action" << data.menuGroup << ":" << data.menuText
                                   << "was not added due to missing operator right 0x"
                                       + QString::number(data.operatorRight, 16);
        return nullptr;
    }

    if (executeCreateInstant) {
        if (data.createInstant == CreateInstantAndAddAction) {
            executeCreateInstantFunctions(data);
        } else if (data.createInstant == CreateInstantAndDiscardAction) {
            executeCreateInstantFunctions(data);
            return nullptr;
        }
    } else if (data.createInstant == CreateInstantAndDiscardAction) {
        return nullptr;
    }

    bool refused = false;
    if (data.identifier.isEmpty()) {
        OrvMessageDialog::showMessage(
            this,
            QStringLiteral("STOP!\nHier wurde ein Menu Entry hinzugefuegt, welcher ueber keinen Identifier verfuegt!\n"
                           "Bitte aendern!\nJetzt Debugger attachen und schauen woher der aufruf kommt.\nDa der "
                           "Identifier fehlt kann ich Dir hier nicht sagen um welchen Menu Entry es sich handelt =)"),
            QString(), OrvFramelessDialog::Modal, OrvMessageDialog::Ok);
        refused = true;
    }
    if (data.menuGroup.isEmpty()) {
        OrvMessageDialog::showMessage(
            this,
            QStringLiteral("STOP!\nHier wurde ein Menu Entry hinzugefuegt, welcher ueber keine Menu Group verfuegt!\n"
                           "Bitte aendern!\nJetzt Debugger attachen und schauen woher der aufruf kommt.\nDa der "
                           "Identifier fehlt kann ich Dir hier nicht sagen um welchen Menu Entry es sich handelt =)"),
            QString(), OrvFramelessDialog::Modal, OrvMessageDialog::Ok);
        refused = true;
    }
    if (refused)
        return nullptr;

    if (!executeCreateInstant) {
        if (OrvDragIcon* button = buttonFor(data.identifier)) {
            button->setText(data.menuText);
            button->setContext(data.menuGroup);
            bool found = false;
            for (int p = 0; p < m_ui->stackedWidget->count() && !found; ++p) {
                auto* box = qobject_cast<OrvToolBox*>(m_ui->stackedWidget->widget(p));
                if (!box)
                    continue;
                for (int i = 0; i < box->count(); ++i) {
                    if (box->widget(i)->isAncestorOf(button)) {
                        box->setItemText(i, data.menuGroup);
                        found = true;
                        break;
                    }
                }
            }
            if (!found)
                qCWarning(lcShell) << "group widget not found";
            return nullptr;
        }
    }

    OrvToolBox* box = getToolBox(m_bg ? data.exercisePart : eSpecial);
    QWidget* page = findGroupPage(box, data.menuGroup);
    const bool separator = !data.createWidgetFunc && !data.directFunc;
    if (!page) {
        if (separator)
            return nullptr;
        page = new QWidget;
        page->setObjectName(data.menuGroup);
        auto* grid = new OrvGridLayout(eDefault, page, 1);
        Q_UNUSED(grid)
        box->addItem(page, data.menuGroup);
        connect(box, &OrvToolBox::resized, grid, &OrvGridLayout::onParentResize);
    }

    auto* grid = qobject_cast<OrvGridLayout*>(page->layout());
    if (!grid) {
        qCWarning(lcShell).noquote() << "temp widget has no layout! cannot add action" << data.menuText
                                     << "to menu! (the bad widget was of type" << page->metaObject()->className()
                                     << ") [did you forget to add the menuGroup to that action?]";
        return nullptr;
    }

    if (grid->count() > 0) {
        QLayoutItem* last = grid->itemAt(grid->count() - 1);
        if (last && last->spacerItem()) {
            grid->removeItem(last);
            delete last;
        }
    }

    OrvDragIcon* button = nullptr;
    if (separator) {
        auto* line = new QFrame(page);
        line->setLineWidth(2);
        line->setFrameStyle(QFrame::HLine);
        grid->add_widget(line);
    } else {
        button = createButton(data);
        grid->add_widget(button);
        m_mapButtons.insert(button, data);
        m_buttonsByIdentifier.insert(data.identifier, button);
        if (m_notFoundYet.removeAll(data.identifier) > 0)
            m_ui->toolBar->addMenuEntry(button, nullptr);
        scheduleToolBarRestore();
    }

    checkExercisePartButtonVisibility();
    grid->addItem(new QSpacerItem(10, 1, QSizePolicy::Minimum, QSizePolicy::MinimumExpanding), grid->rowCount(), 0);
    return button;
}

OrvDragIcon* OrvBaseLayoutWidget::createButton(const PluginData& data)
{
    auto* button = new OrvDragIcon(nullptr);
    button->setObjectName(data.identifier);
    button->setButtonStyle(eTextNextToIcon);
    button->setIcon(data.menuIcon);
    button->setContext(data.menuGroup);
    button->setText(data.menuText);
    if (!data.tooltip.isEmpty())
        button->setToolTip(data.tooltip);
    button->setDropHandlerKey(data.dropHandlerKey);
    button->setIdentifier(data.identifier);
    connect(button, &QObject::destroyed, this, [] { qCDebug(lcShell) << "OrvDragIcon was destroyed"; });
    // Not the sender() slot: finding the sender costs a walk over every connected button.
    connect(button, &OrvDragIcon::clicked, this, [this, button] { runMenuEntry(button); });
    return button;
}

void OrvBaseLayoutWidget::onMenuEntryClicked()
{
    runMenuEntry(qobject_cast<OrvDragIcon*>(sender()));
}

void OrvBaseLayoutWidget::runMenuEntry(OrvDragIcon* button)
{
    if (!button)
        return;
    const auto it = m_mapButtons.constFind(button);
    if (it == m_mapButtons.cend())
        return;
    // A copy: the page may remove the entry while it runs.
    const PluginData data = it.value();
    executePluginData(data);
}

void OrvBaseLayoutWidget::executePluginData(const PluginData& data)
{
    OrvTabWidget* tab = getTabFromLayoutArea(data.layoutArea);
    if (tab && tab->focusTab(data.menuGroup, data.identifier))
        return;
    if (data.createWidgetFunc) {
        if (OrvDialog* dialog = data.createWidgetFunc(this))
            addWidget(dialog, data.menuGroup, data.identifier, data.layoutArea, data.closable, true);
    } else if (data.directFunc) {
        data.directFunc(data);
    }
}

void OrvBaseLayoutWidget::executeCreateInstantFunctions(const PluginData& data)
{
    if (data.createWidgetFunc) {
        if (OrvDialog* dialog = data.createWidgetFunc(this))
            addWidget(dialog, data.menuGroup, data.identifier, data.layoutArea, data.closable, true);
    }
    if (data.directFunc)
        data.directFunc(data);
}

OrvDragIcon* OrvBaseLayoutWidget::buttonFor(const QString& identifier) const
{
    // Several buttons may share an identifier (instant entries are not checked);
    // the first in the button map's order answers, as a walk over the map would.
    OrvDragIcon* first = nullptr;
    for (auto it = m_buttonsByIdentifier.constFind(identifier);
         it != m_buttonsByIdentifier.cend() && it.key() == identifier; ++it) {
        if (!first || std::less<OrvDragIcon*>()(it.value(), first))
            first = it.value();
    }
    return first;
}

void OrvBaseLayoutWidget::executeAction(const QString& identifier)
{
    if (OrvDragIcon* button = buttonFor(identifier)) {
        const PluginData data = m_mapButtons.value(button);
        executePluginData(data);
    }
}

bool OrvBaseLayoutWidget::removeMenuAction(OrvDragIcon* button)
{
    const auto it = m_mapButtons.find(button);
    if (it == m_mapButtons.end())
        return false;
    const QString menuGroup = it.value().menuGroup;
    const ExercisePart part = m_bg ? it.value().exercisePart : eSpecial;
    m_buttonsByIdentifier.remove(it.value().identifier, button);
    m_mapButtons.erase(it);
    button->setParent(nullptr);
    button->deleteLater();
    checkMenuGroup(menuGroup, part);
    return true;
}

bool OrvBaseLayoutWidget::removeMenuAction(const PluginData& data)
{
    return removeMenuAction(data.identifier);
}

bool OrvBaseLayoutWidget::removeMenuAction(const QString& identifier)
{
    OrvDragIcon* button = buttonFor(identifier);
    return button && removeMenuAction(button);
}

void OrvBaseLayoutWidget::checkMenuGroup(const QString& menuGroup, const ExercisePart& part)
{
    OrvToolBox* box = getToolBox(part);
    if (QWidget* page = findGroupPage(box, menuGroup)) {
        // Only its layout left: the group is empty.
        if (page->children().size() < 2) {
            const int index = box->indexOf(page);
            if (index >= 0)
                box->removeItem(index);
            page->deleteLater();
        }
    }
    checkExercisePartButtonVisibility();
}

void OrvBaseLayoutWidget::clearMenuActions()
{
    for (ExercisePart part : {ePlanning, eExecution, eAfterAction, eSpecial}) {
        OrvToolBox* box = getToolBox(part);
        while (box->count() > 0)
            box->removeItem(0);
    }
    checkExercisePartButtonVisibility();
    const QList<OrvDragIcon*> buttons = m_mapButtons.keys();
    m_mapButtons.clear();
    m_buttonsByIdentifier.clear();
    qDeleteAll(buttons);
}

const QMap<OrvDragIcon*, PluginData>& OrvBaseLayoutWidget::mapButtons() const
{
    return m_mapButtons;
}

void OrvBaseLayoutWidget::checkExercisePartButtonVisibility()
{
    const ExercisePart parts[] = {ePlanning, eExecution, eAfterAction, eSpecial};
    if (!m_bg) {
        for (ExercisePart part : parts)
            getExercisePartButton(part)->hide();
        return;
    }
    int used = 0;
    ExercisePart last = eSpecial;
    for (ExercisePart part : parts) {
        // A tool box always holds its internal children; pages add more.
        const bool hasEntries = getToolBox(part)->count() > 0;
        getExercisePartButton(part)->setVisible(hasEntries);
        if (hasEntries) {
            ++used;
            last = part;
        }
    }
    auto* button = qobject_cast<QAbstractButton*>(getExercisePartButton(last));
    button->setChecked(true);
    button->setVisible(used > 1);
}

void OrvBaseLayoutWidget::applyExerciseStateRestricition()
{
    const ExcState state = m_exerciseData.exState;
    for (auto it = m_mapButtons.cbegin(); it != m_mapButtons.cend(); ++it)
        it.key()->setButtonVisible(it.value().exerciseStates.testFlag(state));
}

void OrvBaseLayoutWidget::scheduleToolBarRestore()
{
    // Applications add their entries in one go; restore once the event loop turns,
    // when they all exist, instead of once per entry.
    if (m_toolBarRestoreScheduled)
        return;
    m_toolBarRestoreScheduled = true;
    QTimer::singleShot(0, this, [this] {
        if (m_ui->toolBar->menuEntries().isEmpty())
            m_ui->toolBar->restoreSettings(m_mapButtons.keys());
    });
}

void OrvBaseLayoutWidget::setToolBarActions(const QList<QString>& identifiers)
{
    m_notFoundYet = identifiers;
    QList<OrvDragIcon*> buttons;
    for (const QString& identifier : identifiers) {
        QList<OrvDragIcon*> matches = m_buttonsByIdentifier.values(identifier);
        std::sort(matches.begin(), matches.end(), std::less<OrvDragIcon*>());
        buttons << matches;
        const bool found = !matches.isEmpty();
        // The others follow when addMenuAction creates their buttons.
        if (found)
            m_notFoundYet.removeAll(identifier);
    }
    m_ui->toolBar->setMenuEntries(buttons);
}

QStringList OrvBaseLayoutWidget::toolBarActions() const
{
    return m_ui->toolBar ? m_ui->toolBar->menuEntries() : QStringList();
}

void OrvBaseLayoutWidget::setFunctionKeys(const QMap<int, QString>& keys)
{
    for (auto it = keys.cbegin(); it != keys.cend(); ++it)
        m_ui->toolBar->setFunctionKey(it.key(), it.value());
}

QMap<int, QString> OrvBaseLayoutWidget::functionKeys() const
{
    return m_ui ? m_ui->toolBar->functionKeys() : QMap<int, QString>();
}

} // namespace OrvWidgets
