#include "orv_tab_widget.h"
#include "orv_logging_p.h"

#include "orv_dialog.h"
#include "orv_dialog_helper.h"
#include "orv_events.h"
#include "orv_message_dialog.h"
#include "orv_splitter.h"

#include <tab_bar_tab_style.h>

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSplitter>
#include <QTimer>

#include <cmath>

namespace OrvWidgets {

namespace {
const char* const s_readOnlySeparator = "- READ-ONLY";

void applyBarFont(QTabBar* bar, const QFont& base, bool secondary)
{
    QFont font = base;
    font.setCapitalization(secondary ? QFont::MixedCase : QFont::SmallCaps);
    font.setBold(!secondary);
    bar->setFont(font);
}
} // namespace

// --- CloseButton ---------------------------------------------------------------

CloseButton::CloseButton()
    : QAbstractButton(nullptr)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

CloseButton::~CloseButton() = default;

void CloseButton::setFontColor(const QColor& color)
{
    m_fontColor = color;
}

QLineF CloseButton::line() const
{
    const qreal h = height();
    const qreal m = 0.125 * h + 0.001;
    return QLineF(m, m, m, h - m);
}

QRectF CloseButton::cross() const
{
    const qreal w = width();
    const qreal h = height();
    const qreal m = line().x1();
    return QRectF(QPointF(3 * m, 2 * m), QPointF(w - (0.15 * w + 0.001), h - 2 * m));
}

QSize CloseButton::sizeHint() const
{
    const int f = QFontMetrics(QApplication::font()).height();
    const int side = f + int(0.25 * f);
    return QSize(side, side);
}

void CloseButton::mousePressEvent(QMouseEvent* event)
{
    // Let the press reach the tab bar as well, so that it selects the tab.
    m_isPressed = true;
    event->ignore();
}

void CloseButton::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasPressed = m_isPressed;
    m_isPressed = false;
    if (!wasPressed) {
        event->ignore();
        return;
    }
    const QRectF c = cross();
    const QRect hit(QPoint(int(std::floor(c.x())), int(std::floor(c.y()))),
                    QPoint(int(std::ceil(c.right())), int(std::ceil(c.bottom() + 1.0))));
    const QPoint pos = event->position().toPoint();
    // Edges included: QRect::contains treats right/bottom as inside.
    if (pos.x() >= hit.left() && pos.x() <= hit.right() && pos.y() >= hit.top() && pos.y() <= hit.bottom()) {
        event->accept();
        Q_EMIT clicked(false);
    } else {
        event->ignore();
    }
}

void CloseButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(m_fontColor, 1.5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    painter.setPen(pen);
    painter.drawLine(line());
    pen.setWidthF(2.5);
    painter.setPen(pen);
    const QRectF c = cross();
    painter.drawLine(c.topLeft(), c.bottomRight());
    painter.drawLine(c.topRight(), c.bottomLeft());
}

// --- OrvTabBar ----------------------------------------------------------------

OrvTabBar::OrvTabBar(bool secondary, QWidget* parent)
    : QTabBar(parent)
    , m_secondary(secondary)
{
    setDocumentMode(true);
    setTabsClosable(true);
    connect(this, &QTabBar::currentChanged, this, &OrvTabBar::updateCloseButtonColors);
    if (m_secondary) {
        setContextMenuPolicy(Qt::CustomContextMenu);
        connect(this, &QWidget::customContextMenuRequested, this, &OrvTabBar::onCustomContextMenuRequested);
    }
}

OrvTabBar::~OrvTabBar() = default;

void OrvTabBar::updateCloseButtonColors(int newIndex)
{
    if (newIndex == -1)
        newIndex = currentIndex();
    using Style = Styles::TabBarTabStyle;
    for (int i = 0; i < count(); ++i) {
        auto* button = qobject_cast<CloseButton*>(tabButton(i, QTabBar::RightSide));
        if (!button)
            continue;
        QColor colour;
        if (!isTabEnabled(i))
            colour = m_secondary ? Style::secondaryDisabled() : Style::primaryDisabled();
        else if (i == newIndex)
            colour = m_secondary ? Style::secondarySelected() : Style::primarySelected();
        else
            colour = m_secondary ? Style::secondaryNormal() : Style::primaryNormal();
        button->setFontColor(colour);
        button->update();
    }
}

void OrvTabBar::_internal_closeTab()
{
    QObject* source = sender();
    for (int i = 0; i < count(); ++i) {
        if (tabButton(i, QTabBar::RightSide) == source) {
            Q_EMIT tabCloseRequested(i);
            return;
        }
    }
}

void OrvTabBar::onCustomContextMenuRequested(const QPoint& pos)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* save = menu->addAction(tr("Save as image"));
    connect(save, &QAction::triggered, this, [this, pos] { onSaveCurrentWidgetAsImage(pos); });
    menu->popup(mapToGlobal(pos));
}

void OrvTabBar::onSaveCurrentWidgetAsImage(const QPoint& pos)
{
    int index = tabAt(pos);
    if (index < 0)
        index = currentIndex();
    if (index < 0)
        return;
    auto* tabWidget = qobject_cast<OrvTabWidget*>(parentWidget());
    if (!tabWidget)
        return;
    QWidget* widget = tabWidget->widget(index);
    if (!widget)
        return;
    if (auto* helper = qobject_cast<OrvDialogHelper*>(widget)) {
        if (helper->getDialog())
            widget = helper->getDialog();
    }
    // A page in the background has its updates paused; it paints for the picture.
    const bool paused = !widget->updatesEnabled();
    if (paused)
        widget->setUpdatesEnabled(true);
    QPixmap picture = widget->grab();
    if (paused)
        widget->setUpdatesEnabled(false);
    postToApplication(new SaveImageEvent(widget, std::move(picture)));
}

// --- OrvTabWidget ---------------------------------------------------------------

OrvTabWidget::OrvTabWidget(QWidget* parent, bool isSecondary)
    : QTabWidget(parent)
    , m_isSecondary(isSecondary)
{
    setDocumentMode(true);
    setMinimumSize(200, 100);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);

    setTabBar(new OrvTabBar(isSecondary, this));
    applyBarFont(m_tabbar, m_tabbar->font(), isSecondary);
    // The tab bar is the stop for Tab; the tab widget itself would be an empty one.
    setFocusPolicy(Qt::NoFocus);

    connect(this, &QTabWidget::currentChanged, this, &OrvTabWidget::slotCurrentChanged);

    auto* splitter = qobject_cast<QSplitter*>(parent);
    if (splitter && splitter->objectName() == QLatin1String("mainSplitter") && splitter->indexOf(this) == 1
        && !isSecondary) {
        const int h = int(m_tabbar->height() * 1.33);
        setStyleSheet(styleSheet() + QStringLiteral("QTabWidget::tab-bar {left: %1px; } ").arg(20));
        auto* button = new QPushButton(this);
        button->setObjectName(QStringLiteral("MinMaxTabButton"));
        button->setText(QString(QChar(0x25B2)) + QLatin1Char('\n') + QChar(0x25BC));
        button->setFixedSize(20, 2 * h);
        button->setStyleSheet(QStringLiteral("QPushButton { border-radius: 0px; border: 1px solid gray; } "));
        connect(button, &QPushButton::clicked, this, &OrvTabWidget::slotMaximizeButtonClicked);
    }
}

OrvTabWidget::~OrvTabWidget()
{
    // Pages still here (also ones whose tab was removed) go down with us; their
    // destroyed() must not call back into a half-destroyed tab widget.
    const QList<QWidget*> children = findChildren<QWidget*>();
    for (QWidget* w : children)
        disconnect(w, nullptr, this, nullptr);
}

OrvTabBar* OrvTabWidget::tabBar() const
{
    return m_tabbar;
}

void OrvTabWidget::setTabBar(OrvTabBar* bar)
{
    if (!bar)
        return;
    if (m_tabbar && m_tabbar != bar)
        m_tabbar->deleteLater();
    applyBarFont(bar, font(), false);
    connect(bar, &QTabBar::tabCloseRequested, this, &OrvTabWidget::slotTabCloseRequested);
    m_tabbar = bar;
    QTabWidget::setTabBar(bar);
}

void OrvTabWidget::setActuatorTabStyle(bool on)
{
    if (on)
        setTabBar(new OrvTabBar(false, this));
}

void OrvTabWidget::setSubTabsVisible(bool on)
{
    if (count() == 0)
        m_hasSubTabs = on;
}

QString OrvTabWidget::joinedKey(const QString& menuGroup, const QString& identifier)
{
    return menuGroup + QLatin1Char('.') + identifier;
}

OrvDialog* OrvTabWidget::dialogOf(QWidget* widget)
{
    auto* helper = qobject_cast<OrvDialogHelper*>(widget);
    return helper ? helper->getDialog() : nullptr;
}

void OrvTabWidget::addTab(const QString& menuGroup, const QString& identifier, QWidget* widget, bool setClosable,
                          bool focusNewTab)
{
    if (!widget) {
        qCWarning(lcContainers) << "OrvTabWidget::addTab: cannot add a null widget";
        return;
    }
    setFocus();
    OrvTabWidget* target = this;
    QString key = joinedKey(menuGroup, identifier);
    OrvTabWidget* inner = nullptr;
    if (m_hasSubTabs) {
        key = identifier;
        inner = qobject_cast<OrvTabWidget*>(m_tabMap.value(menuGroup));
        if (inner) {
            inner->show();
        } else {
            inner = new OrvTabWidget(nullptr, true);
            inner->setMovable(true);
            addWidget(menuGroup, inner, true, focusNewTab);
            if (focusNewTab)
                setCurrentWidget(inner);
        }
        target = inner;
    }
    show();
    target->addWidget(key, widget, setClosable, focusNewTab);

    if (inner) {
        for (int i = 0; i < inner->count(); ++i) {
            QWidget* button = inner->m_tabbar->tabButton(i, QTabBar::RightSide);
            if (button && button->isHidden()) {
                // The outer current tab, not necessarily the group's own tab.
                if (QWidget* outerButton = m_tabbar->tabButton(currentIndex(), QTabBar::RightSide))
                    outerButton->hide();
                break;
            }
        }
    }
}

void OrvTabWidget::addWidget(QString key, QWidget* widget, bool closable, bool focus)
{
    if (key.isEmpty()) {
        static const QString alphabet =
            QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789");
        key.reserve(24);
        for (int i = 0; i < 24; ++i)
            key += alphabet.at(QRandomGenerator::global()->bounded(alphabet.size()));
    }
    widget->setObjectName(key);

    auto* helper = qobject_cast<OrvDialogHelper*>(widget);
    if (helper)
        helper->retranslate();

    QString text = widget->windowTitle();
    if (text.isEmpty())
        text = helper ? QStringLiteral("retranslate() fehlt!") : widget->objectName();

    if (helper) {
        if (OrvDialog* dialog = helper->getDialog()) {
            connect(dialog, &OrvDialog::signalHide, this, &OrvTabWidget::onRemoveTab,
                    Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        }
    }
    connect(widget, &QObject::destroyed, this, &OrvTabWidget::onWidgetDestroyed, Qt::DirectConnection);
    connect(widget, &QWidget::windowTitleChanged, this, &OrvTabWidget::slotWindowTitleChanged);

    m_tabMap.insert(key, widget);
    const int index = QTabWidget::addTab(widget, text);
    setTabToolTip(index, tr("DEBUG: WindowName: %1").arg(key));
    if (focus)
        setCurrentIndex(index);

    if (m_tabbar) {
        auto* button = new CloseButton;
        connect(button, &QAbstractButton::clicked, m_tabbar, &OrvTabBar::_internal_closeTab);
        m_tabbar->setTabButton(index, QTabBar::RightSide, button);
        if (!closable)
            button->hide();
        m_tabbar->updateCloseButtonColors(-1);
    }
}

void OrvTabWidget::slotWindowTitleChanged(const QString& title)
{
    auto* source = qobject_cast<QWidget*>(sender());
    if (!source) {
        qCWarning(lcContainers).nospace() << "OrvTabWidget: slotWindowTitleChanged failed! (not a QWidget) " << sender();
        return;
    }
    const int index = indexOf(source);
    if (index < 0) {
        qCWarning(lcContainers) << "OrvTabWidget: slotWindowTitleChanged failed! (widget not found on TabBar)";
        return;
    }
    const QStringList parts = title.split(QLatin1String(s_readOnlySeparator), Qt::KeepEmptyParts, Qt::CaseSensitive);
    QString tabText = title;
    QString lockText;
    if (parts.size() == 2) {
        tabText = parts[0].trimmed();
        QString holder = parts[1].trimmed();
        if (holder.startsWith(QLatin1Char('(')))
            holder.remove(0, 1);
        if (holder.endsWith(QLatin1Char(')')))
            holder.chop(1);
        lockText = tr("Locked by: %1").arg(holder);
    }
    setTabText(index, tabText);

    QWidget* existing = m_tabbar ? m_tabbar->tabButton(index, QTabBar::LeftSide) : nullptr;
    if (!lockText.isEmpty()) {
        if (auto* label = qobject_cast<QLabel*>(existing)) {
            label->setToolTip(lockText);
            return;
        }
        auto* label = new QLabel(QStringLiteral("<b>READ-ONLY</b>"));
        label->setObjectName(QStringLiteral("ReadOnlyMark"));
        label->setToolTip(lockText);
        label->setPixmap(QIcon(QStringLiteral("icon:warning.svg")).pixmap(QSize(25, 25), devicePixelRatioF()));
        if (m_tabbar)
            m_tabbar->setTabButton(index, QTabBar::LeftSide, label);
    } else if (existing) {
        m_tabbar->setTabButton(index, QTabBar::LeftSide, nullptr);
        existing->setParent(this);
        delete existing;
    }
}

// Switching tabs makes Qt's stacked layout walk every widget of every page to
// pause and resume updates, so a switch cost grew with the number of open
// pages. Pages that are not shown keep their updates paused instead; the walk
// skips them and only touches the page coming to front.
void OrvTabWidget::switchPageUpdates(int current)
{
    QWidget* page = widget(current);
    if (m_updatingPage && m_updatingPage != page && indexOf(m_updatingPage) >= 0)
        m_updatingPage->setUpdatesEnabled(false);
    if (page)
        page->setUpdatesEnabled(true);
    m_updatingPage = page;
}

void OrvTabWidget::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    QWidget* page = widget(index);
    if (!page)
        return;
    page->installEventFilter(this);
    if (index != currentIndex())
        page->setUpdatesEnabled(false);
}

bool OrvTabWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A page taken elsewhere paints again wherever it goes.
    if (event->type() == QEvent::ParentChange) {
        auto* page = qobject_cast<QWidget*>(watched);
        if (page && indexOf(page) < 0) {
            page->removeEventFilter(this);
            page->setUpdatesEnabled(true);
        }
    }
    return QTabWidget::eventFilter(watched, event);
}

void OrvTabWidget::slotCurrentChanged(int newIdx)
{
    switchPageUpdates(newIdx);
    QWidget* w = widget(newIdx);
    if (!w)
        return;
    if (OrvDialog* dialog = dialogOf(w)) {
        Q_EMIT dialog->signalFocused();
    } else if (auto* inner = qobject_cast<OrvTabWidget*>(w)) {
        if (OrvDialog* dialog = dialogOf(inner->currentWidget()))
            Q_EMIT dialog->signalFocused();
    }
}

void OrvTabWidget::slotTabCloseRequested(int index)
{
    QWidget* w = widget(index);
    if (!w)
        return;
    if (OrvDialog* dialog = dialogOf(w)) {
        if (!dialog->isClosable())
            return;
        setCurrentIndex(index);
        dialog->closeRequest();
        return;
    }
    if (auto* inner = qobject_cast<OrvTabWidget*>(w)) {
        if (inner->hasUnsavedChanges(inner)) {
            QPointer<OrvTabWidget> guard(inner);
            const auto answer = OrvMessageDialog::showMessage(
                this,
                tr("There are dialogs with unsaved changes.<br>Please save or discard their changes before closing."),
                tr("Unsaved changes"), OrvFramelessDialog::Modal,
                OrvMessageDialog::Buttons(OrvMessageDialog::Yes) | OrvMessageDialog::Cancel,
                {{OrvMessageDialog::Yes, tr("Discard All")}});
            if (answer == OrvMessageDialog::Yes && guard)
                guard->deleteLater();
            return;
        }
        closeRequestTabWidget(inner);
        inner->deleteLater();
        return;
    }
    w->deleteLater();
}

void OrvTabWidget::closeRequestTabWidget(OrvTabWidget* tabWidget)
{
    QList<QPointer<QWidget>> pages;
    for (int i = 0; i < tabWidget->count(); ++i)
        pages << tabWidget->widget(i);
    for (const QPointer<QWidget>& page : pages) {
        if (!page)
            continue;
        if (OrvDialog* dialog = dialogOf(page))
            dialog->closeRequest();
        else if (auto* nested = qobject_cast<OrvTabWidget*>(page.data()))
            closeRequestTabWidget(nested);
    }
}

bool OrvTabWidget::hasUnsavedChanges(OrvTabWidget* tabWidget)
{
    if (!tabWidget)
        return false;
    for (int i = 0; i < tabWidget->count(); ++i) {
        QWidget* w = tabWidget->widget(i);
        if (OrvDialog* dialog = dialogOf(w)) {
            if (dialog->hasUnsavedChanges()) {
                tabWidget->setCurrentIndex(i);
                return true;
            }
        } else if (auto* nested = qobject_cast<OrvTabWidget*>(w)) {
            if (nested->hasUnsavedChanges(nested)) {
                tabWidget->setCurrentIndex(i);
                return true;
            }
        }
    }
    return false;
}

void OrvTabWidget::onRemoveTab(QObject* object)
{
    if (!object) {
        qCWarning(lcContainers) << "onRemoveTab: obj == nullptr";
        return;
    }
    bool found = false;
    for (auto it = m_tabMap.begin(); it != m_tabMap.end(); ++it) {
        if (it.value() == object) {
            m_tabMap.erase(it);
            found = true;
            break;
        }
    }
    if (!found)
        qCWarning(lcContainers) << "OrvTabWidget::onRemoveTab: widget to remove was not on tab map!";

    // Compared by address only: during destroyed() the object is no longer a widget.
    int index = -1;
    for (int i = 0; i < count(); ++i) {
        if (static_cast<QObject*>(widget(i)) == object) {
            index = i;
            break;
        }
    }
    if (index >= 0) {
        removeTab(index);
        // No longer ours to track; it stays a hidden child until deleted.
        disconnect(object, nullptr, this, nullptr);
    } else if (found)
        qCWarning(lcContainers) << "OrvTabWidget::onRemoveTab: cannot remove widget, as it was not found on the tab widget"
                          << object;
    onCheckTabBarVisibility();
}

void OrvTabWidget::onWidgetDestroyed(QObject* object)
{
    // A page being destroyed must not be touched: the stacked widget drops its tab
    // by itself once the child is gone, so only the key is forgotten here and the
    // emptiness check waits for that. A key meanwhile taken by another page finds
    // no entry, and says so as every other removal does.
    bool found = false;
    for (auto it = m_tabMap.begin(); it != m_tabMap.end(); ++it) {
        if (it.value() == object) {
            m_tabMap.erase(it);
            found = true;
            break;
        }
    }
    if (!found)
        qCWarning(lcContainers) << "OrvTabWidget::onRemoveTab: widget to remove was not on tab map!";
    QMetaObject::invokeMethod(this, &OrvTabWidget::onCheckTabBarVisibility, Qt::QueuedConnection);
}

void OrvTabWidget::onCheckTabBarVisibility()
{
    if (count() > 0)
        return;
    if (m_isSecondary)
        deleteLater();
    else
        hide();
}

bool OrvTabWidget::removeWidget(QWidget* widget)
{
    if (!widget)
        return false;
    for (auto it = m_tabMap.begin(); it != m_tabMap.end(); ++it) {
        QWidget* value = it.value();
        if (!value)
            continue;
        if (m_hasSubTabs) {
            if (auto* inner = qobject_cast<OrvTabWidget*>(value)) {
                if (inner->removeWidget(widget))
                    return true;
            }
        }
        if (value == widget) {
            m_tabMap.erase(it);
            disconnect(widget, &QObject::destroyed, this, &OrvTabWidget::onWidgetDestroyed);
            return true;
        }
    }
    return false;
}

QWidget* OrvTabWidget::getWidget(const QString& key) const
{
    return m_tabMap.value(key);
}

QWidget* OrvTabWidget::getWidget(const QString& menuGroup, const QString& identifier)
{
    if (!m_hasSubTabs)
        return getWidget(joinedKey(menuGroup, identifier));
    auto* inner = qobject_cast<OrvTabWidget*>(m_tabMap.value(menuGroup));
    return inner ? inner->getWidget(identifier) : nullptr;
}

bool OrvTabWidget::focusTab(const QString& menuGroup, const QString& identifier)
{
    OrvTabWidget* target = this;
    QString key = joinedKey(menuGroup, identifier);
    if (m_hasSubTabs) {
        target = qobject_cast<OrvTabWidget*>(m_tabMap.value(menuGroup));
        if (!target)
            return false;
        setCurrentWidget(target);
        key = identifier;
    }
    // Flash the handle above a collapsed lower pane to show where the page is.
    QPointer<OrvSplitter> splitter(qobject_cast<OrvSplitter*>(parentWidget()));
    QPointer<OrvTabWidget> guard(target);
    QTimer::singleShot(500, this, [splitter, guard] {
        if (!splitter || !guard || guard->count() == 0)
            return;
        const QList<int> sizes = splitter->sizes();
        if (sizes.size() > 1 && sizes.at(1) == 0)
            splitter->animate(1);
    });
    return target->focusWidget(key);
}

bool OrvTabWidget::focusWidget(const QString& key)
{
    QWidget* w = m_tabMap.value(key);
    if (!w)
        return false;
    setCurrentWidget(w);
    w->setFocus();
    return true;
}

void OrvTabWidget::slotMaximizeButtonClicked()
{
    auto* splitter = qobject_cast<OrvSplitter*>(parentWidget());
    if (!splitter || splitter->count() == 0)
        return;
    QWidget* top = splitter->widget(0);
    if (top->height() != top->minimumHeight()) {
        m_mainSplitterState = splitter->saveState();
        splitter->collapseChild(0);
    } else {
        splitter->restoreState(m_mainSplitterState);
    }
}

void OrvTabWidget::clearAll()
{
    for (int i = 0; i < count(); ++i) {
        if (QWidget* w = widget(i)) {
            disconnect(w, &QObject::destroyed, this, &OrvTabWidget::onWidgetDestroyed);
            w->deleteLater();
        }
    }
    clear();
}

void OrvTabWidget::aboutToClose()
{
    for (int i = 0; i < count(); ++i) {
        QWidget* w = widget(i);
        if (!m_hasSubTabs) {
            if (OrvDialog* dialog = dialogOf(w))
                dialog->aboutToClose();
        } else if (auto* inner = qobject_cast<OrvTabWidget*>(w)) {
            inner->aboutToClose();
        }
    }
}

} // namespace OrvWidgets
