// The shell's top bar texts, clock, session identity, animated areas, closing
// and its notification queue.

#include "orv_base_layout_widget.h"
#include "orv_logging_p.h"

#include "orv_base_layout_widget_p.h"
#include "orv_dialog.h"
#include "orv_drag_icon.h"
#include "orv_events.h"
#include "orv_message_dialog.h"
#include "orv_operator_menu.h"

#include <dtg.h>
#include <orv_settings.h>

#include <QCloseEvent>
#include <QDateTime>
#include <QLoggingCategory>
#include <QPropertyAnimation>
#include <QToolButton>

namespace OrvWidgets {

// --- exercise and session ---------------------------------------------------------

void OrvBaseLayoutWidget::setExerciseData(const ExerciseData& data)
{
    m_exerciseData = data;
    Ui::OrvBaseLayoutWidget& ui = *m_ui;

    ui.lbExerciseName->setText(data.exName.isEmpty() ? tr("no exercise") : data.exName);
    QString nameTip = tr("Exercise name");
    if (m_partitionId >= 0)
        nameTip += tr("\nPartition Id:") + QStringLiteral(" %1").arg(m_partitionId);
    if (!data.exDescription.isEmpty())
        nameTip += tr("\nDescription:") + QStringLiteral(" %1").arg(data.exDescription);
    ui.lbExerciseName->setToolTip(nameTip);

    const bool phases =
        OrvUtils::ProjectSettings::getInstance()->value(QStringLiteral("exm"), QStringLiteral("enableEditPhases"), false)
            .toBool();
    ui.lbExercisePhase->setVisible(phases);
    ui.bullet1->setVisible(phases);
    ui.lbExercisePhase->setText(data.phName.isEmpty() ? tr("no phase") : data.phName);
    QString phaseTip = tr("Exercise phase");
    if (!data.phDescription.isEmpty())
        phaseTip += tr("\nDescription:") + QStringLiteral(" %1").arg(data.phDescription);
    ui.lbExercisePhase->setToolTip(phaseTip);

    ui.lbExerciseStatus->setText(data.exStateString.isEmpty() ? tr("no status") : data.exStateString);
    QPalette palette = ui.lbExerciseStatus->parentWidget()->palette();
    if (data.exStateCol.isValid() && data.exStateCol != QColor()) {
        palette.setColor(QPalette::WindowText, data.exStateCol);
        palette.setColor(QPalette::Text, data.exStateCol);
    }
    ui.lbExerciseStatus->setPalette(palette);

    ui.lbPartitionType->setText(data.partitionType);
    applyExerciseStateRestricition();
}

void OrvBaseLayoutWidget::setExerciseTime(qint64 msecsSinceEpoch)
{
    m_exerciseTime = msecsSinceEpoch;
}

void OrvBaseLayoutWidget::setCurrentTime()
{
    m_ui->lbCurrentTime->setText(
        DTG::toString(QDateTime::currentDateTimeUtc(), DTG::eLongSeconds, DTG::dateTimeType()));
    m_ui->lbExerciseTime->setText(m_exerciseTime < 1 ? QStringLiteral(" # ")
                                                     : DTG::toStringMSec(m_exerciseTime, DTG::eLongSeconds));
}

void OrvBaseLayoutWidget::setSessionInfo(int domainId, const IDL::PartitionType& partitionType, int partitionId,
                                         const QString& workspaceId)
{
    m_domainId = domainId;
    m_partitionType = partitionType;
    m_partitionId = partitionId;
    m_workspaceId = workspaceId;
}

void OrvBaseLayoutWidget::setOperatorName(const QString& name, bool showTerminalButton)
{
    m_operatorName = name.isEmpty() ? QStringLiteral("Admin") : name;
    m_ui->profileButton->setToolTip(tr("Operator Name: <b>%1</b>").arg(m_operatorName));
    m_showTerminalButton = showTerminalButton;
}

void OrvBaseLayoutWidget::setProfilePicture(const QPixmap& picture)
{
    m_ui->profileButton->setPixmap(picture);
}

void OrvBaseLayoutWidget::setAppName(const QString& name)
{
    m_ui->lbAppName->setText(name);
}

void OrvBaseLayoutWidget::setCustomText(const QString& text)
{
    if (text.isEmpty()) {
        m_ui->lbCustomText->clear();
        m_ui->lbCustomText->hide();
        m_ui->lbCustomTextBullet->hide();
        return;
    }
    m_ui->lbCustomText->setText(text);
    m_ui->lbCustomText->show();
    m_ui->lbCustomTextBullet->show();
}

const QString OrvBaseLayoutWidget::customText() const
{
    return m_ui->lbCustomText->text();
}

void OrvBaseLayoutWidget::setTopBarVisible(bool visible)
{
    m_ui->topLayoutWidget->setVisible(visible);
}

bool OrvBaseLayoutWidget::isTopBarVisible() const
{
    return m_ui->topLayoutWidget->isVisibleTo(const_cast<OrvBaseLayoutWidget*>(this));
}

void OrvBaseLayoutWidget::setMenuVisible(bool visible)
{
    m_ui->rightSplitter->setVisible(visible);
}

bool OrvBaseLayoutWidget::isMenuVisible() const
{
    return m_ui->rightSplitter->isVisibleTo(const_cast<OrvBaseLayoutWidget*>(this));
}

void OrvBaseLayoutWidget::collapseMenu(bool collapse)
{
    m_menuCollapsed = collapse;
    if (collapse) {
        m_ui->masterSplitter->setSizes(m_menuSplitterSizes);
    } else {
        m_menuSplitterSizes = m_ui->masterSplitter->sizes();
        m_ui->masterSplitter->setSizes({1, 0});
    }
}

bool OrvBaseLayoutWidget::isMenuCollapsed() const
{
    return m_menuCollapsed;
}

// --- animated dialog area -------------------------------------------------------------

void OrvBaseLayoutWidget::onHideAnimated()
{
    delete m_currentAnimation;
    m_currentAnimation = nullptr;

    auto* animation = new QPropertyAnimation(m_ui->mainSplitter, "sizes", this);
    animation->setDuration(500);
    m_mainSplitterSizes = m_ui->mainSplitter->sizes();
    QList<int> end = m_mainSplitterSizes;
    const int index = getIndexOfTab(m_ui->detailWidget);
    if (index >= 0 && index < end.size())
        end[index] = 1;
    animation->setStartValue(QVariant::fromValue(m_mainSplitterSizes));
    animation->setEndValue(QVariant::fromValue(end));
    connect(animation, &QPropertyAnimation::finished, this, [this] {
        hideWidgets();
        m_currentAnimation = nullptr;
    });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    m_isHidden = true;
    m_currentAnimation = animation;
}

void OrvBaseLayoutWidget::onReShowAnimated()
{
    auto* animation = new QPropertyAnimation(m_ui->mainSplitter, "sizes", this);
    animation->setDuration(500);
    QList<int> start = m_mainSplitterSizes;
    const int index = getIndexOfTab(m_ui->detailWidget);
    if (index >= 0 && index < start.size())
        start[index] = 0;
    animation->setStartValue(QVariant::fromValue(start));
    animation->setEndValue(QVariant::fromValue(m_mainSplitterSizes));
    connect(animation, &QPropertyAnimation::finished, this, [this, animation] {
        if (m_currentAnimation == animation)
            m_currentAnimation = nullptr;
    });
    m_ui->detailWidget->show();
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    m_isHidden = false;
    delete m_currentAnimation;
    m_currentAnimation = animation;
}

// --- closing ------------------------------------------------------------------------

bool OrvBaseLayoutWidget::haveUnsavedChanges()
{
    for (LayoutArea area : {eDialogTab, eInfoTab, eMainTab, eSpecialTab}) {
        OrvTabWidget* tab = getTabFromLayoutArea(area);
        if (tab && tab->hasUnsavedChanges(tab))
            return true;
    }
    return false;
}

bool OrvBaseLayoutWidget::notifyUnsavedChanges()
{
    if (isSignalConnected(QMetaMethod::fromSignal(&OrvBaseLayoutWidget::signalNotifyUnsavedChanges))) {
        bool closeAllowed = false;
        Q_EMIT signalNotifyUnsavedChanges(closeAllowed);
        return closeAllowed;
    }
    if (!haveUnsavedChanges())
        return true;
    const auto answer = OrvMessageDialog::showMessage(
        this, tr("There are dialogs with unsaved changes.<br>Please save or discard their changes before closing"),
        tr("Unsaved changes"), OrvFramelessDialog::Modal,
        OrvMessageDialog::Buttons(OrvMessageDialog::Yes) | OrvMessageDialog::Cancel,
        {{OrvMessageDialog::Yes, tr("Discard All")}});
    return answer == OrvMessageDialog::Yes;
}

bool OrvBaseLayoutWidget::slotClose()
{
    if (!notifyUnsavedChanges())
        return false;
    hide();
    Q_EMIT signalClose();
    return true;
}

void OrvBaseLayoutWidget::slotLogout()
{
    // Logging out ends the session as closing does: changed pages are asked first.
    if (!notifyUnsavedChanges())
        return;
    Q_EMIT signalLogout();
}

void OrvBaseLayoutWidget::closeEvent(QCloseEvent* event)
{
    // The window closes only through the application's reaction to signalClose.
    event->ignore();
    slotClose();
}

void OrvBaseLayoutWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_firstShow) {
        m_firstShow = false;
        settleFirstShow();
    }
}

void OrvBaseLayoutWidget::settleFirstShow()
{
    // The main area gets the room; the navigation column its preferred width;
    // info, dialog and special areas their preferred size if they hold pages
    // already (at most a third of the splitter). An empty area is hidden; it
    // keeps a third in store, so that its first page appears at a usable size
    // instead of in a collapsed section.
    const auto settle = [](QSplitter* splitter, QWidget* grows, const QList<QWidget*>& areas,
                           QWidget* preferred) {
        const bool horizontal = splitter->orientation() == Qt::Horizontal;
        const int total = horizontal ? splitter->width() : splitter->height();
        const auto preferredSize = [horizontal](const QWidget* w) {
            return horizontal ? qMax(w->sizeHint().width(), w->minimumWidth())
                              : qMax(w->sizeHint().height(), w->minimumHeight());
        };
        QList<int> sizes;
        int used = 0;
        for (int i = 0; i < splitter->count(); ++i) {
            QWidget* w = splitter->widget(i);
            int size = 0;
            if (w == preferred) {
                size = preferredSize(w);
            } else if (areas.contains(w)) {
                if (w->isHidden()) {
                    sizes << total / 3;
                    continue;
                }
                size = qMin(total / 3, preferredSize(w));
            }
            sizes << size;
            used += size;
        }
        const int index = splitter->indexOf(grows);
        if (index >= 0)
            sizes[index] = qMax(total - used, 1);
        splitter->setSizes(sizes);
    };
    settle(m_ui->masterSplitter, m_ui->mainSplitter, {m_ui->infoWidget}, m_ui->rightSplitter);
    settle(m_ui->mainSplitter, m_ui->mainWidget, {m_ui->detailWidget}, nullptr);
    settle(m_ui->rightSplitter, m_ui->naviWidget, {m_ui->specialWidget}, nullptr);
}

// --- operator menu ------------------------------------------------------------------

void OrvBaseLayoutWidget::slotOperatorMenuClicked()
{
    auto* menu = new OrvOperatorMenu(m_operatorName, m_workspaceId, true, m_screenCount, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setTerminalButton(m_showTerminalButton);
    menu->setOperatorSettingsButton(buttonFor(QStringLiteral("_OpmShowOperatorSettings")) != nullptr);
    connect(menu, &OrvOperatorMenu::signalLogout, this, &OrvBaseLayoutWidget::slotLogout);
    connect(menu, &OrvOperatorMenu::signalExit, this, &OrvBaseLayoutWidget::slotClose);
    connect(menu, &OrvOperatorMenu::signalShowOperatorSettings, this,
            &OrvBaseLayoutWidget::signalShowOperatorSettings);
    connect(menu, &OrvOperatorMenu::signalSwap, this, &OrvBaseLayoutWidget::signalSwap);
    menu->show();
}

// --- notifications ---------------------------------------------------------------------

void OrvBaseLayoutWidget::showMessage(const QString& title, const QString& text,
                                      OrvNotificationBox::MessageType type,
                                      const std::function<void(const QString&)>& clickedLinkCallback,
                                      bool closeOnLinkClicked, const QString& identifier)
{
    if (!m_notiBox) {
        auto* box = new OrvNotificationBox(nullptr);
        m_notiBox = box;
        // Made once, with this call's callback and flag: they stay in force for
        // every later message shown in this box.
        const auto closeCurrent = [this] {
            if (m_notiBox)
                m_notiBox->hide();
            m_currentMessage.clear();
            showNextQueuedMessage();
        };
        connect(box, &OrvNotificationBox::signalLinkClicked, this,
                [this, clickedLinkCallback, closeOnLinkClicked, closeCurrent](const QString& link) {
                    postToApplication(new OrvLinkEvent(QUrl(link), this));
                    if (clickedLinkCallback)
                        clickedLinkCallback(link);
                    if (closeOnLinkClicked)
                        closeCurrent();
                });
        connect(box, &QObject::destroyed, this, [this, box] {
            if (m_notiBox == box)
                m_notiBox = nullptr;
        });
        connect(box, &OrvNotificationBox::signalClose, this, closeCurrent);
        connect(box, &OrvNotificationBox::signalAck, this, [this, closeCurrent] {
            const QString id = m_currentMessage.isEmpty() ? QString() : m_currentMessage.first().identifier;
            postToApplication(new OrvLinkEvent(QUrl(QStringLiteral("orv://NotificationAck/%1").arg(id)), this));
            closeCurrent();
        });
        box->setParent(this);
        box->setGeometry(0, 0, box->width(), box->height());
    }

    if (!identifier.isEmpty()) {
        m_messageQueue.erase(std::remove_if(m_messageQueue.begin(), m_messageQueue.end(),
                                            [&](const Message& m) { return m.identifier == identifier; }),
                             m_messageQueue.end());
    }
    if (!m_currentMessage.isEmpty()) {
        const Message shown = m_currentMessage.takeFirst();
        if (identifier.isEmpty() || shown.identifier != identifier)
            m_messageQueue.append(shown);
    }
    m_currentMessage.append(Message{title, text, type, clickedLinkCallback, closeOnLinkClicked, identifier});

    m_notiBox->message(title, text, type);

    const int w = m_notiBox->width();
    const int h = m_notiBox->height();
    auto* slide = new QPropertyAnimation(m_notiBox, "geometry", m_notiBox);
    slide->setDuration(700);
    slide->setEasingCurve(QEasingCurve::OutElastic);
    slide->setStartValue(QRect(width() + 10, height() + 10, w, h));
    slide->setEndValue(QRect(width() - w - 15, height() - h - 15, w, h));
    slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void OrvBaseLayoutWidget::showNextQueuedMessage()
{
    if (m_messageQueue.isEmpty())
        return;
    // Last in, first out: the most recently queued message comes back first.
    const Message next = m_messageQueue.takeLast();
    showMessage(next.title, next.text, next.type, next.clickedLinkCallback, next.closeOnLinkClicked,
                next.identifier);
}

void OrvBaseLayoutWidget::removeQueuedMessage(const QString& identifier)
{
    if (identifier.isEmpty())
        return;
    m_messageQueue.erase(std::remove_if(m_messageQueue.begin(), m_messageQueue.end(),
                                        [&](const Message& m) { return m.identifier == identifier; }),
                         m_messageQueue.end());
    if (!m_currentMessage.isEmpty() && m_currentMessage.first().identifier == identifier) {
        m_currentMessage.clear();
        if (m_notiBox)
            m_notiBox->hide();
        showNextQueuedMessage();
    }
}

bool OrvBaseLayoutWidget::messageIdentifierExists(const QString& identifier) const
{
    if (identifier.isEmpty())
        return false;
    if (!m_currentMessage.isEmpty() && m_currentMessage.first().identifier == identifier)
        return true;
    return std::any_of(m_messageQueue.cbegin(), m_messageQueue.cend(),
                       [&](const Message& m) { return m.identifier == identifier; });
}

void OrvBaseLayoutWidget::addNotification(QToolButton* button)
{
    if (!button)
        return;
    m_ui->horizontalLayout_3->addWidget(button);
}

bool OrvBaseLayoutWidget::notificationExists(const QString& objectName) const
{
    return m_ui->notificationLayoutWidget->findChild<QObject*>(objectName) != nullptr;
}

} // namespace OrvWidgets
