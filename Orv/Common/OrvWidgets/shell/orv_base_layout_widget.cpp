#include "orv_base_layout_widget.h"
#include "orv_logging_p.h"

#include "orv_base_layout_widget_p.h"
#include "orv_dialog.h"
#include "orv_dialog_helper.h"
#include "orv_events.h"
#include "orv_message_dialog.h"
#include "orv_operator_menu.h"

#include <dtg.h>
#include <orv_settings.h>

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QMenu>
#include <QPropertyAnimation>
#include <QScrollArea>
#include <QScroller>
#include <QTimer>
#include <QToolButton>

namespace OrvWidgets {

OrvBaseLayoutWidget::OrvBaseLayoutWidget(QWidget* parent, bool exercisePartButtons)
    : QWidget(parent)
    , m_ui(new Ui::OrvBaseLayoutWidget)
{
    m_setCurrentTimeTimer = new QTimer(this);
    m_ui->setupUi(this);
    buildDebugMenu();

    installTimeContextMenu(m_ui->lbCurrentTime, [] { return QDateTime::currentMSecsSinceEpoch(); });
    installTimeContextMenu(m_ui->lbExerciseTime, [this] { return m_exerciseTime; });

    setMinimumSize(1280, 900);
    setTopBarImages();

    m_ui->detailWidget->setSubTabsVisible(true);
    OrvSplitter::registerInterpolator();
    qRegisterMetaType<LayoutArea>("LayoutArea");
    m_ui->mainWidget->setTabBarAutoHide(true);
    m_ui->infoWidget->setActuatorTabStyle(true);
    m_ui->infoWidget->setTabBarAutoHide(false);
    m_ui->infoWidget->setTabPosition(QTabWidget::West);
    m_ui->infoWidget->hide();
    m_ui->detailWidget->hide();
    m_ui->specialWidget->hide();

    m_ui->masterSplitter->setStretchFactor(m_ui->masterSplitter->indexOf(m_ui->infoWidget), 0);
    m_ui->masterSplitter->setStretchFactor(m_ui->masterSplitter->indexOf(m_ui->mainSplitter), 20);
    m_ui->mainSplitter->setStretchFactor(m_ui->mainSplitter->indexOf(m_ui->mainWidget), 20);
    m_ui->mainSplitter->setStretchFactor(m_ui->mainSplitter->indexOf(m_ui->detailWidget), 0);
    m_ui->rightSplitter->setStretchFactor(m_ui->rightSplitter->indexOf(m_ui->specialWidget), 0);
    // stackedWidget is no direct child of rightSplitter: index -1, so this changes
    // nothing and the navigation column keeps the default stretch.
    m_ui->rightSplitter->setStretchFactor(m_ui->rightSplitter->indexOf(m_ui->stackedWidget), 20);

    connect(m_ui->profileButton, &OrvProfileButton::signalClicked, this,
            &OrvBaseLayoutWidget::slotOperatorMenuClicked);
    m_ui->lbCustomTextBullet->hide();
    m_ui->lbCustomText->hide();
    m_ui->lbExerciseTime->setText(QStringLiteral(" # "));
    m_ui->lbCurrentTime->setText(QStringLiteral(" # "));

    connect(m_setCurrentTimeTimer, &QTimer::timeout, this, &OrvBaseLayoutWidget::setCurrentTime);
    m_setCurrentTimeTimer->start(200);
    setExerciseData(m_exerciseData);

    if (exercisePartButtons) {
        m_bg = new QButtonGroup(m_ui->naviWidget);
        m_bg->addButton(m_ui->pbPlanning, ePlanning);
        m_bg->addButton(m_ui->pbExecution, eExecution);
        m_bg->addButton(m_ui->pbAfterAction, eAfterAction);
        m_bg->addButton(m_ui->pbSpecial, eSpecial);
        connect(m_bg, &QButtonGroup::idClicked, this, [this](int id) {
            if (id >= ePlanning && id <= eSpecial)
                m_ui->stackedWidget->setCurrentWidget(getToolBox(ExercisePart(id)));
        });
        m_ui->pbSpecial->click();
    } else {
        m_ui->stackedWidget->setCurrentWidget(getToolBox(eSpecial));
    }
    for (OrvTabWidget* area : {m_ui->infoWidget, m_ui->mainWidget, m_ui->detailWidget, m_ui->specialWidget})
        addTouchScroll(area);
    checkExercisePartButtonVisibility();
}

OrvBaseLayoutWidget::~OrvBaseLayoutWidget()
{
    if (m_notiBox) {
        disconnect(m_notiBox, nullptr, this, nullptr);
        m_notiBox->setParent(nullptr);
        delete m_notiBox;
        m_notiBox = nullptr;
    }
    delete m_currentAnimation;
    m_currentAnimation = nullptr;
    clearMenuActions();
    delete m_ui;
}

// --- page hosting -----------------------------------------------------------------

OrvTabWidget* OrvBaseLayoutWidget::getTabFromLayoutArea(LayoutArea area) const
{
    switch (area) {
    case eUnknown:
    case eDialogTab:
        return m_ui->detailWidget;
    case eInfoTab:
        return m_ui->infoWidget;
    case eSpecialTab:
        return m_ui->specialWidget;
    case eMainTab:
        return m_ui->mainWidget;
    }
    return nullptr;
}

namespace {

// Opens the collapsed section at index with an animation, to its preferred size but at
// most a third of the splitter, taking the room from the largest other section; the
// handle flashes to draw the eye there.
void animateSectionOpen(OrvSplitter* splitter, int index)
{
    const QList<int> from = splitter->sizes();
    QList<int> to = from;
    const bool horizontal = splitter->orientation() == Qt::Horizontal;
    int total = 0;
    for (const int size : from)
        total += size;
    QWidget* section = splitter->widget(index);
    section->show();
    const int preferred = horizontal ? qMax(section->sizeHint().width(), section->minimumWidth())
                                     : qMax(section->sizeHint().height(), section->minimumHeight());
    const int want = qBound(1, preferred > 0 ? preferred : total / 3, qMax(1, total / 3));
    int largest = -1;
    for (int i = 0; i < to.size(); ++i) {
        if (i != index && (largest < 0 || to.at(i) > to.at(largest)))
            largest = i;
    }
    if (largest < 0)
        return;
    const int taken = qMin(want, to.at(largest));
    to[largest] -= taken;
    to[index] += taken;
    auto* animation = new QPropertyAnimation(splitter, "sizes", splitter);
    animation->setDuration(300);
    animation->setStartValue(QVariant::fromValue(from));
    animation->setEndValue(QVariant::fromValue(to));
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    splitter->animate(index);
}

} // namespace

void OrvBaseLayoutWidget::openCollapsedSection(LayoutArea area, const char* logLine)
{
    OrvSplitter* splitter = nullptr;
    int index = -1;
    if (area == eDialogTab) {
        splitter = m_ui->mainSplitter;
        index = getIndexOfTab(m_ui->detailWidget);
    } else if (area == eInfoTab) {
        splitter = m_ui->masterSplitter;
        index = getIndexOfTab(m_ui->infoWidget);
    }
    if (!splitter)
        return;
    const QList<int> sizes = splitter->sizes();
    if (index < 0 || index >= sizes.size() || sizes.at(index) != 0)
        return;
    if (logLine)
        qCDebug(lcShell) << logLine << sizes;
    animateSectionOpen(splitter, index);
}

bool OrvBaseLayoutWidget::addWidget(OrvDialog* dialog, const QString& menuGroup, const QString& identifier,
                                    LayoutArea area, bool closable, bool focus)
{
    if (!dialog) {
        qCWarning(lcShell) << "OrvBaseLayoutWidget::addWidget: cannot add null-widget!";
        return false;
    }
    OrvTabWidget* tab = getTabFromLayoutArea(area);
    if (!tab) {
        qCWarning(lcShell) << "OrvBaseLayoutWidget::addWidget: tab, by enum type, not found!";
        return false;
    }
    dialog->setMenuGroup(menuGroup);
    dialog->setIdentifier(identifier);
    QWidget* widget = dialog->getHelper();
    if (!widget) {
        widget = dialog;
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }

    if (!identifier.isEmpty() && tab->getWidget(menuGroup, identifier)) {
        widget->deleteLater();
        if (focus)
            tab->focusTab(menuGroup, identifier);
        openCollapsedSection(area == eUnknown ? eDialogTab : area, nullptr);
        return false;
    }

    dialog->setBaseLayoutWidget(this);
    connect(dialog, &OrvDialog::startMainSelect, this, &OrvBaseLayoutWidget::onHideAnimated, Qt::UniqueConnection);
    connect(dialog, &OrvDialog::endMainSelect, this, &OrvBaseLayoutWidget::onReShowAnimated, Qt::UniqueConnection);
    Q_EMIT signalStapleTopicLockHandler(dialog);
    dialog->triggerTopicLock();
    tab->addTab(menuGroup, identifier, widget, closable, focus);

    if (tab->count() > 1) {
        const LayoutArea effective = area == eUnknown ? eDialogTab : area;
        openCollapsedSection(effective, effective == eDialogTab ? "animate 1a: " : "animate 1b: ");
    }
    return true;
}

bool OrvBaseLayoutWidget::addOrReplaceWidget(OrvDialog* dialog, const QString& menuGroup, const QString& identifier,
                                             LayoutArea area, bool closable, bool focus)
{
    OrvTabWidget* tab = getTabFromLayoutArea(area);
    if (tab && dialog && !identifier.isEmpty()) {
        if (QWidget* existing = tab->getWidget(menuGroup, identifier)) {
            if (tab->removeWidget(existing))
                existing->deleteLater();
            else
                qCWarning(lcShell).noquote() << "addOrReplaceWidget" << " : Remove existing widget from TabWidget failed.";
        }
    }
    return addWidget(dialog, menuGroup, identifier, area, closable, focus);
}

OrvDialog* OrvBaseLayoutWidget::getWidget(const QString& menuGroup, const QString& identifier, LayoutArea area)
{
    OrvTabWidget* tab = getTabFromLayoutArea(area);
    if (!tab)
        return nullptr;
    auto* helper = qobject_cast<OrvDialogHelper*>(tab->getWidget(menuGroup, identifier));
    return helper ? helper->getDialog() : nullptr;
}

bool OrvBaseLayoutWidget::focusTab(const QString& menuGroup, const QString& identifier, LayoutArea area)
{
    OrvTabWidget* tab = getTabFromLayoutArea(area);
    if (!tab) {
        qCWarning(lcShell) << "OrvBaseLayoutWidget::focusTab: tab, by enum type, not found!";
        return false;
    }
    return tab->focusTab(menuGroup, identifier);
}

bool OrvBaseLayoutWidget::isDialogFocused(const OrvDialog* dialog) const
{
    for (LayoutArea area : {eDialogTab, eInfoTab, eSpecialTab, eMainTab}) {
        if (isDialogFocused(dialog, area))
            return true;
    }
    return false;
}

bool OrvBaseLayoutWidget::isDialogFocused(const OrvDialog* dialog, const LayoutArea& area) const
{
    OrvTabWidget* tab = getTabFromLayoutArea(area);
    if (!tab) {
        qCWarning(lcShell) << "OrvBaseLayoutWidget::addWidget: tab, by enum type, not found!";
        return false;
    }
    return isDialogFocused(dialog, tab);
}

bool OrvBaseLayoutWidget::isDialogFocused(const OrvDialog* dialog, const OrvTabWidget* tab) const
{
    QWidget* current = tab->currentWidget();
    if (!current)
        return false;
    if (auto* nested = qobject_cast<OrvTabWidget*>(current))
        return isDialogFocused(dialog, nested);
    if (auto* helper = qobject_cast<OrvDialogHelper*>(current))
        return helper->compare(dialog);
    qCWarning(lcShell).noquote()
        << "OrvBaseLayoutWidget::isDialogFocused(OrvDialog *dialog, OrvTabWidget *tab): i found something weird.."
        << current->metaObject()->className();
    return false;
}

int OrvBaseLayoutWidget::getIndexOfTab(OrvTabWidget* tab)
{
    for (QSplitter* splitter : {static_cast<QSplitter*>(m_ui->masterSplitter),
                                static_cast<QSplitter*>(m_ui->mainSplitter),
                                static_cast<QSplitter*>(m_ui->rightSplitter)}) {
        const int index = splitter->indexOf(tab);
        if (index >= 0)
            return index;
    }
    qCWarning(lcShell) << "OrvBaseLayoutWidget::getIndexOfTab: tab not found in any splitter..";
    return -1;
}

void OrvBaseLayoutWidget::setIrreplaceableOnce()
{
    m_irreplaceableOnce = true;
}

bool OrvBaseLayoutWidget::irreplaceableReset()
{
    const bool was = m_irreplaceableOnce;
    m_irreplaceableOnce = false;
    return was;
}

bool OrvBaseLayoutWidget::isIrreplaceable() const
{
    return m_irreplaceableOnce;
}

void OrvBaseLayoutWidget::hideVisibleLayouts()
{
    if (!m_oldLayoutVisibilityStates.isEmpty()) {
        qCWarning(lcShell) << "OrvBaseLayoutWidget::hideVisibleLayouts: old states available - ignoring";
        return;
    }
    for (LayoutArea area : {eInfoTab, eSpecialTab, eDialogTab}) {
        OrvTabWidget* tab = getTabFromLayoutArea(area);
        const bool visible = tab->isVisible();
        m_oldLayoutVisibilityStates.append({QPointer<OrvTabWidget>(tab), visible});
        if (visible)
            tab->hide();
    }
}

void OrvBaseLayoutWidget::resetLayoutVisibility()
{
    for (const auto& state : qAsConst(m_oldLayoutVisibilityStates)) {
        if (state.first)
            state.first->setVisible(state.second);
    }
    m_oldLayoutVisibilityStates.clear();
}

void OrvBaseLayoutWidget::showWidgets()
{
    m_ui->detailWidget->show();
}

void OrvBaseLayoutWidget::hideWidgets()
{
    m_ui->detailWidget->hide();
}

bool OrvBaseLayoutWidget::isWidgetsHidden() const
{
    return m_ui->detailWidget->isVisible();
}

QWidget* OrvBaseLayoutWidget::getMenu() const
{
    return m_ui->naviWidget;
}

OrvToolBarArea* OrvBaseLayoutWidget::getToolbar() const
{
    return m_ui->toolBar;
}

void OrvBaseLayoutWidget::setWorkspaceId(const QString& workspaceId)
{
    m_workspaceId = workspaceId;
}

void OrvBaseLayoutWidget::setSecondaryWidget()
{
    m_isSecondaryWidget = true;
}

bool OrvBaseLayoutWidget::isSecondaryWidget() const
{
    return m_isSecondaryWidget;
}

void OrvBaseLayoutWidget::initilizationFinished()
{
}

void OrvBaseLayoutWidget::slotScreenCountChanged(int count)
{
    m_screenCount = count;
}

void OrvBaseLayoutWidget::addTouchScroll(QWidget* widget)
{
    if (!widget)
        return;
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    if (auto* area = qobject_cast<QScrollArea*>(widget)) {
        QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        QScroller::grabGesture(view->viewport(), QScroller::LeftMouseButtonGesture);
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
}

void OrvBaseLayoutWidget::installTimeContextMenu(QWidget* label, const std::function<qint64()>& milliseconds)
{
    label->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(label, &QWidget::customContextMenuRequested, this, [this, label, milliseconds](const QPoint& pos) {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(tr("Copy"), this, [label] {
            if (auto* l = qobject_cast<QLabel*>(label))
                QGuiApplication::clipboard()->setText(l->text());
        });
        menu->addAction(tr("Copy in milliseconds"), this, [milliseconds] {
            QGuiApplication::clipboard()->setText(QString::number(milliseconds()));
        });
        menu->popup(label->mapToGlobal(pos));
    });
}

void OrvBaseLayoutWidget::setTopBarImages()
{
    // Drawn from scalable sources at the screen's pixel ratio, so they stay sharp.
    const int height = m_ui->profileButton->height();
    const qreal ratio = devicePixelRatioF();
    const QIcon splitter(QStringLiteral(":/kiv_splitter_left.svg"));
    if (!splitter.isNull())
        m_ui->lbKivSplitterLeft->setPixmap(splitter.pixmap(QSize(height / 2, height), ratio));
    if (QFile::exists(QStringLiteral(":/project/logo.png")))
        m_ui->lbProjectLogo->setPixmap(QIcon(QStringLiteral(":/project/logo.png")).pixmap(QSize(height, height), ratio));
}

void OrvBaseLayoutWidget::buildDebugMenu()
{
    // Test actions for developers; the texts are fixed on purpose.
    auto* menu = new QMenu(m_ui->pbDebug);
    menu->setObjectName(QStringLiteral("debugMenu"));
    const struct { const char* text; OrvNotificationBox::MessageType type; } kinds[] = {
        {"notification: success", OrvNotificationBox::Success},
        {"notification: error", OrvNotificationBox::Error},
        {"notification: warning", OrvNotificationBox::Warning},
        {"notification: info", OrvNotificationBox::Info},
    };
    for (const auto& kind : kinds) {
        const auto type = kind.type;
        menu->addAction(QLatin1String(kind.text), this, [this, type] {
            showMessage(QStringLiteral("Test notification"),
                        QStringLiteral("A <a href='orv://Debug/%1'>test link</a> of type %1").arg(int(type)), type, {},
                        false, QStringLiteral("debug-%1").arg(int(type)));
        });
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("simulate lock on current page"), this, [this] {
        for (OrvTabWidget* tab : {m_ui->detailWidget, m_ui->mainWidget, m_ui->infoWidget, m_ui->specialWidget}) {
            QWidget* current = tab->currentWidget();
            if (auto* inner = qobject_cast<OrvTabWidget*>(current))
                current = inner->currentWidget();
            if (auto* helper = qobject_cast<OrvDialogHelper*>(current)) {
                if (OrvDialog* dialog = helper->getDialog()) {
                    dialog->slotLock(QStringLiteral("debug"));
                    QTimer::singleShot(5000, dialog, &OrvDialog::slotUnlock);
                    return;
                }
            }
        }
    });
    menu->addAction(QStringLiteral("toggle top bar"), this, [this] { setTopBarVisible(!isTopBarVisible()); });
    menu->addAction(QStringLiteral("toggle menu"), this, [this] { setMenuVisible(!isMenuVisible()); });
    m_ui->pbDebug->setMenu(menu);
    m_ui->pbDebug->setText(QStringLiteral("[debug]"));
}

void OrvBaseLayoutWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void OrvBaseLayoutWidget::retranslate()
{
    // The form first, then the exercise texts on top of it, then the actions.
    m_ui->retranslateUi(this);
    setExerciseData(m_exerciseData);
    Q_EMIT signalRetranslateActions();
}

} // namespace OrvWidgets
