#include "orv_dialog.h"

#include "orv_dialog_button_box.h"
#include "orv_dialog_helper.h"
#include "open_questions_p.h"
#include "requirement_widget.h"

#include <dax_logger.h>
#include <orv_session_data.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QLoggingCategory>
#include <QMenu>
#include <QMetaMethod>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QTableView>
#include <QTextEdit>

#if __has_include(<orv_base_layout_widget.h>)
#include <orv_base_layout_widget.h>
#define ORV_HAVE_SHELL_CLASS 1
#endif

Q_LOGGING_CATEGORY(lcDialog, "orv.dialogs.dialog")

namespace OrvWidgets {

int OrvDialog::s_object_count = 0;

namespace {

const char* const kConst = "const";
const char* const kLastReadOnlyState = "lastReadOnlyState";
const char* const kLastEnabledState = "lastEnabledState";

// The page holds its shell only as a QWidget: the shell's header includes this
// one, so the shell class is complete here only once it is part of the build.
#ifdef ORV_HAVE_SHELL_CLASS
QWidget* shellWidget(OrvBaseLayoutWidget* shell)
{
    return shell;
}
OrvBaseLayoutWidget* shellFromWidget(QWidget* widget)
{
    return static_cast<OrvBaseLayoutWidget*>(widget);
}
#else
// OrvBaseLayoutWidget derives from QWidget alone, so both pointers coincide.
QWidget* shellWidget(OrvBaseLayoutWidget* shell)
{
    return reinterpret_cast<QWidget*>(shell);
}
OrvBaseLayoutWidget* shellFromWidget(QWidget* widget)
{
    return reinterpret_cast<OrvBaseLayoutWidget*>(widget);
}
#endif

// The shell sits above the dialog framework, so the page reaches the shell's
// hosting operations (declared Q_INVOKABLE there) by name through the
// meta-object system instead of calling into a class it cannot include. The
// method is matched by name, argument count and bool result, not by the
// spelling of its argument types (moc keeps them as the shell writes them).
bool invokeShell(QObject* shell, const char* name, int argc, QGenericArgument a0, QGenericArgument a1 = {},
                 QGenericArgument a2 = {}, QGenericArgument a3 = {}, QGenericArgument a4 = {},
                 QGenericArgument a5 = {})
{
    const QMetaObject* meta = shell->metaObject();
    for (int i = meta->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod method = meta->method(i);
        if (method.parameterCount() != argc || method.returnType() != QMetaType::Bool || method.name() != name)
            continue;
        bool result = false;
        if (!method.invoke(shell, Qt::DirectConnection, Q_RETURN_ARG(bool, result), a0, a1, a2, a3, a4, a5))
            break;
        return result;
    }
    qCWarning(lcDialog, "OrvDialog: base layout offers no invokable %s with %d arguments", name, argc);
    return false;
}

bool isConst(const QWidget* widget)
{
    // Most widgets carry no dynamic property at all: skip the property lookup.
    return widget->dynamicPropertyNames().contains(kConst) && widget->property(kConst).toBool();
}

// Remembers a widget's state before the first of nested locks only, so that
// unlock() restores the state from before locking.
void remember(QWidget* widget, const char* name, bool value)
{
    if (!widget->property(name).isValid())
        widget->setProperty(name, value);
}

// The stored state, if any; the property is cleared once it is restored.
bool takeRemembered(QWidget* widget, const char* name, bool* value)
{
    const QVariant stored = widget->property(name);
    if (!stored.isValid() || stored.isNull() || !stored.canConvert<bool>())
        return false;
    *value = stored.toBool();
    widget->setProperty(name, QVariant());
    return true;
}

// The kinds lock() and unlock() act on, in their order; a widget belongs to
// the first kind it is (a QTableWidget is handled as a QTableView).
enum class LockKind { None, ReadOnlyLineEdit, ReadOnlySpinBox, ReadOnlyPlainText, ReadOnlyText, Enable, PushButton };

LockKind lockKind(QWidget* w)
{
    if (qobject_cast<QLineEdit*>(w))
        return LockKind::ReadOnlyLineEdit;
    if (qobject_cast<QDateTimeEdit*>(w) || qobject_cast<QSpinBox*>(w) || qobject_cast<QDoubleSpinBox*>(w))
        return LockKind::ReadOnlySpinBox;
    if (qobject_cast<QPlainTextEdit*>(w))
        return LockKind::ReadOnlyPlainText;
    if (qobject_cast<QTextEdit*>(w))
        return LockKind::ReadOnlyText;
    if (qobject_cast<QComboBox*>(w) || qobject_cast<QCheckBox*>(w) || qobject_cast<QRadioButton*>(w)
        || qobject_cast<QSlider*>(w) || qobject_cast<QTableView*>(w) || qobject_cast<QListView*>(w))
        return LockKind::Enable;
    if (qobject_cast<QPushButton*>(w))
        return LockKind::PushButton;
    return LockKind::None;
}

bool isReadOnly(QWidget* w, LockKind kind)
{
    switch (kind) {
    case LockKind::ReadOnlyLineEdit: return static_cast<QLineEdit*>(w)->isReadOnly();
    case LockKind::ReadOnlySpinBox: return static_cast<QAbstractSpinBox*>(w)->isReadOnly();
    case LockKind::ReadOnlyPlainText: return static_cast<QPlainTextEdit*>(w)->isReadOnly();
    case LockKind::ReadOnlyText: return static_cast<QTextEdit*>(w)->isReadOnly();
    default: return false;
    }
}

void setReadOnly(QWidget* w, LockKind kind, bool readOnly)
{
    switch (kind) {
    case LockKind::ReadOnlyLineEdit: static_cast<QLineEdit*>(w)->setReadOnly(readOnly); break;
    case LockKind::ReadOnlySpinBox: static_cast<QAbstractSpinBox*>(w)->setReadOnly(readOnly); break;
    case LockKind::ReadOnlyPlainText: static_cast<QPlainTextEdit*>(w)->setReadOnly(readOnly); break;
    case LockKind::ReadOnlyText: static_cast<QTextEdit*>(w)->setReadOnly(readOnly); break;
    default: break;
    }
}

bool isReadOnlyKind(LockKind kind)
{
    return kind == LockKind::ReadOnlyLineEdit || kind == LockKind::ReadOnlySpinBox
           || kind == LockKind::ReadOnlyPlainText || kind == LockKind::ReadOnlyText;
}

} // namespace

// --- OverlayContainer --------------------------------------------------------

OverlayContainer::OverlayContainer(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

void OverlayContainer::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(80, 80, 80, 200));
    painter.end();
    QWidget::paintEvent(event);
}

// --- OrvDialog: construction -------------------------------------------------

OrvDialog::OrvDialog(QWidget* parent, ButtonCombination buttons, bool closable)
    : QWidget(nullptr)
    , m_isClosable(closable)
    , m_logger(Dax::DaxLoggerBootstrap::getDaxRootLogger().child(QStringLiteral("OrvWidget.OrvDialog")))
{
    Q_UNUSED(parent)
    m_dialogHelper = new OrvDialogHelper(nullptr);
    m_dialogHelper->setDialog(this);
    m_uiRequirements = new UiRequirementList;
    ++s_object_count;
    m_buttonBox = m_dialogHelper->getButtonBox();
    // Ok and Apply are enabled only while there are changes to apply.
    setStandardButtonsEnabled(false);

    buildDebugMenu();
    connect(m_buttonBox->getButton(Close), &QPushButton::clicked, this, &OrvDialog::slotClose);

    switch (buttons) {
    case OkApplyCancel:
        m_closeMeansCancel = true;
        m_buttonBox->setText(Close, tr("Cancel"));
        connect(m_buttonBox->getButton(Ok), &QPushButton::clicked, this, &OrvDialog::slotOkay);
        connect(m_buttonBox->getButton(Apply), &QPushButton::clicked, this, &OrvDialog::slotApply);
        m_buttonBox->setButtonVisible(Apply, true);
        break;
    case OkCancel:
        m_closeMeansCancel = true;
        m_buttonBox->setText(Close, tr("Cancel"));
        connect(m_buttonBox->getButton(Ok), &QPushButton::clicked, this, &OrvDialog::slotOkay);
        break;
    case CloseOnly:
        m_closeOnly = true;
        m_buttonBox->setButtonVisible(Ok, false);
        setUnchangeable(true);
        break;
    case SeamlessDialog:
    default:
        m_buttonBox->hide();
        setContentsMargins(0, 0, 0, 0);
        m_dialogHelper->setContentsMargins(0, 0, 0, 0);
        if (QLayout* layout = m_dialogHelper->layout())
            layout->setContentsMargins(0, 0, 0, 0);
        else if (m_logger.isWarnEnabled())
            m_logger.warn(QStringLiteral("OrvDialog::c_tor: Dialog Helper has no layout to set margins"));
        break;
    }

    if (!closable) {
        m_buttonBox->setButtonVisible(Ok, false);
        m_buttonBox->setButtonVisible(Close, false);
    }
}

OrvDialog::~OrvDialog()
{
    cancelOpenQuestions(this);
    delete m_uiRequirements;
    m_uiRequirements = nullptr;
    // The overlay widget belongs to whoever set it: it must not go down with
    // the page's frame.
    if (m_overlayWidget) {
        if (m_overlayContainer)
            disconnect(m_overlayWidget, nullptr, m_overlayContainer, nullptr);
        m_overlayWidget->setParent(nullptr);
    }
    --s_object_count;
}

int OrvDialog::objectCount()
{
    return s_object_count;
}

void OrvDialog::buildDebugMenu()
{
    // Developer tools: the texts are fixed on purpose.
    auto* menu = new QMenu(this);
    menu->addAction(QStringLiteral("simulate changes"), this, &OrvDialog::slotChangesMade);
    menu->addAction(QStringLiteral("unchange"), this, &OrvDialog::__unchange__);
    menu->addAction(QStringLiteral("retranslate"), this, &OrvDialog::retranslate);
    menu->addAction(QStringLiteral("force unlock"), this, [this] { setUnchangeable(false); });
    menu->addAction(QStringLiteral("set unchangeable"), this, [this] { setUnchangeable(true); });
    menu->addAction(QStringLiteral("try lock"), this, &OrvDialog::tryLockTopic);
    menu->addAction(QStringLiteral("set closable"), this, [this] { m_isClosable = true; });
    menu->addAction(QStringLiteral("set unclosable"), this, [this] { m_isClosable = false; });
    menu->addAction(QStringLiteral("clear requirements"), this, [this] { m_uiRequirements->clear(); });
    menu->addAction(QStringLiteral("enable all button box buttons"), this, [this] {
        const auto buttons = m_buttonBox->findChildren<QPushButton*>();
        for (QPushButton* b : buttons)
            b->setEnabled(true);
    });
    menu->addAction(QStringLiteral("show button box button .."), this, &OrvDialog::showButtonBoxButton);
    m_buttonBox->setMenu(_debug_, menu);
    m_buttonBox->setButtonVisible(_debug_, true);
}

void OrvDialog::showButtonBoxButton()
{
    const QPointer<OrvDialog> guard(this);
    bool ok = false;
    const QString name = QInputDialog::getText(this, QString(), QStringLiteral("Enter button object name"),
                                               QLineEdit::Normal, QString(), &ok);
    if (!guard || !ok || name.isEmpty())
        return;
    const auto found = m_buttonBox->findChildren<QPushButton*>(name);
    if (found.isEmpty()) {
        OrvMessageDialog::showMessage(this, QStringLiteral("button not found"));
    } else if (found.size() > 1) {
        QStringList names;
        for (const QPushButton* b : found)
            names << b->objectName();
        OrvMessageDialog::showMessage(this, QStringLiteral("button ambiguous: %1").arg(names.join(QLatin1String(", "))));
    } else {
        found.first()->show();
    }
}

// --- identity and state --------------------------------------------------------

OrvDialogHelper* OrvDialog::getHelper() const
{
    return m_dialogHelper.data();
}

bool OrvDialog::hasUnsavedChanges() const
{
    return m_changesMade || m_currentlyBlocking;
}

void OrvDialog::closeRequest()
{
    slotClose();
}

void OrvDialog::setUnchangeable(bool unchangeable)
{
    m_unchangeableDialog = unchangeable;
}

bool OrvDialog::unchangeable() const
{
    return m_unchangeableDialog;
}

void OrvDialog::__unchange__()
{
    resetChanges();
}

void OrvDialog::setClosable(bool closable)
{
    m_isClosable = closable;
}

bool OrvDialog::isClosable() const
{
    return m_isClosable;
}

void OrvDialog::setMenuGroup(const QString& menuGroup)
{
    m_menuGroup = menuGroup;
}

const QString& OrvDialog::menuGroup() const
{
    return m_menuGroup;
}

void OrvDialog::setIdentifier(const QString& identifier)
{
    m_identifier = identifier;
    tableColumnOrganiserSetting();
}

const QString& OrvDialog::identifier() const
{
    return m_identifier;
}

void OrvDialog::setCurrentlyBlocking(bool blocking)
{
    m_currentlyBlocking = blocking;
}

void OrvDialog::setNoTopicLock()
{
    m_noLockTopic = true;
}

void OrvDialog::setMinWidthForWidgetHelper(QWidget* widget)
{
    if (!widget || !m_dialogHelper)
        return;
    // Room for the widget next to a vertical scroll bar and inside the frame's margins.
    const QMargins margins = m_dialogHelper->layout() ? m_dialogHelper->layout()->contentsMargins() : QMargins();
    m_dialogHelper->setMinimumWidth(widget->sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent)
                                    + margins.left() + margins.right());
}

void OrvDialog::setOnlineHelpFilename(const QString& fileName)
{
    m_onlineHelpFileName = fileName;
    QPushButton* help = m_buttonBox->getButton(Help);
    if (!help || OrvSessionData::OrvSessionData::getInstance()->isTablet())
        return;
    connect(help, &QPushButton::clicked, this, &OrvDialog::emitShowOnlineHelp, Qt::UniqueConnection);
    m_buttonBox->setButtonVisible(Help, true);
}

void OrvDialog::emitShowOnlineHelp()
{
    Q_EMIT signalShowOnlineHelp(m_onlineHelpFileName);
}

// --- shell -------------------------------------------------------------------

void OrvDialog::setBaseLayoutWidget(OrvBaseLayoutWidget* baseLayoutWidget)
{
    m_baseLayoutWidget = shellWidget(baseLayoutWidget);
}

OrvBaseLayoutWidget* OrvDialog::baseLayoutWidget() const
{
    return shellFromWidget(m_baseLayoutWidget.data());
}

bool OrvDialog::addDialog(OrvDialog* dialog, const QString& identifier, const QString& title, const LayoutArea& area,
                          bool closable, bool focus)
{
    if (!m_baseLayoutWidget) {
        qCCritical(lcDialog, "OrvDialog: addDialog: no base layout set - cannot add Dialog !");
        return false;
    }
    return invokeShell(m_baseLayoutWidget, "addWidget", 6, Q_ARG(OrvWidgets::OrvDialog*, dialog),
                       Q_ARG(QString, identifier), Q_ARG(QString, title), Q_ARG(OrvWidgets::LayoutArea, area),
                       Q_ARG(bool, closable), Q_ARG(bool, focus));
}

bool OrvDialog::addDialogFixed(OrvDialog* dialog, const char* identifier, const QString& title,
                               const LayoutArea& area, bool closable, bool focus)
{
    return addDialog(dialog, tr(identifier), title, area, closable, focus);
}

bool OrvDialog::focusDialog(const QString& menuGroup, const QString& identifier, const LayoutArea& area)
{
    if (!m_baseLayoutWidget) {
        qCCritical(lcDialog, "OrvDialog: addDialog: no base layout set - cannot focus Dialog !");
        return false;
    }
    return invokeShell(m_baseLayoutWidget, "focusTab", 3, Q_ARG(QString, menuGroup), Q_ARG(QString, identifier),
                       Q_ARG(OrvWidgets::LayoutArea, area));
}

bool OrvDialog::amIFocused()
{
    if (!m_baseLayoutWidget) {
        qCCritical(lcDialog, "OrvDialog: addDialog: no base layout set - cannot check for focus!");
        return false;
    }
    const OrvDialog* self = this;
    return invokeShell(m_baseLayoutWidget, "isDialogFocused", 1, Q_ARG(const OrvWidgets::OrvDialog*, self));
}

// --- change tracking -----------------------------------------------------------

void OrvDialog::showEvent(QShowEvent* event)
{
    if (m_firstShow) {
        // Widgets that settle their values while being shown must not mark
        // the page changed.
        const bool wasUnchangeable = m_unchangeableDialog;
        m_unchangeableDialog = true;
        m_firstShow = false;
        if (!wasUnchangeable)
            wireChangeSignals();
        QWidget::showEvent(event);
        m_unchangeableDialog = wasUnchangeable;
    } else {
        QWidget::showEvent(event);
    }
    Q_EMIT visibilityChanged(true);
}

void OrvDialog::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    Q_EMIT visibilityChanged(false);
}

void OrvDialog::wireChangeSignals()
{
    // One walk over the page's widgets. An input widget's own change signal
    // covers its inner parts (the line edit of a spin box, the fields of a
    // date-time edit), and a "const" widget keeps its parts quiet as well, so
    // the walk does not descend into either.
    QObjectList pending = children();
    while (!pending.isEmpty()) {
        QObject* object = pending.takeLast();
        if (!object->isWidgetType())
            continue;
        auto* w = static_cast<QWidget*>(object);
        if (isConst(w))
            continue;
        if (auto* x = qobject_cast<QLineEdit*>(w)) {
            connect(x, &QLineEdit::textChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QDateTimeEdit*>(w)) {
            connect(x, &QDateTimeEdit::dateTimeChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QComboBox*>(w)) {
            connect(x, &QComboBox::currentTextChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QCheckBox*>(w)) {
            connect(x, &QCheckBox::stateChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QSpinBox*>(w)) {
            connect(x, &QSpinBox::valueChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QDoubleSpinBox*>(w)) {
            connect(x, &QDoubleSpinBox::valueChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QSlider*>(w)) {
            connect(x, &QSlider::valueChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QPlainTextEdit*>(w)) {
            connect(x, &QPlainTextEdit::textChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QTextEdit*>(w)) {
            connect(x, &QTextEdit::textChanged, this, &OrvDialog::slotChangesMade);
        } else if (auto* x = qobject_cast<QAbstractButton*>(w)) {
            connect(x, &QAbstractButton::toggled, this, &OrvDialog::slotChangesMade);
        } else if (w->inherits("OrvWidgets::OrvDateTimeEdit")) {
            // The date-time edit lives in the editors library above this one:
            // it is found by class name and connected by signal signature.
            connect(w, SIGNAL(dateTimeChanged()), this, SLOT(slotChangesMade()));
        } else {
            pending += w->children();
        }
    }
}

void OrvDialog::slotChangesMade()
{
    if (m_unchangeableDialog)
        return;
    m_changesMade = true;
    updateWindowTitle();
    setStandardButtonsEnabled(true);
    Q_EMIT signalChangesMade();
}

void OrvDialog::resetChanges()
{
    m_changesMade = false;
    updateWindowTitle();
    setStandardButtonsEnabled(false);
    Q_EMIT signalChangesReset();
}

void OrvDialog::setStandardButtonsEnabled(bool enabled)
{
    // Directly on the buttons: the box's setButtonEnabled() is for other callers.
    m_buttonBox->getButton(Ok)->setEnabled(enabled);
    m_buttonBox->getButton(Apply)->setEnabled(enabled);
}

void OrvDialog::setWindowTitle(const QString& title)
{
    m_title = title;
    updateWindowTitle();
}

void OrvDialog::updateWindowTitle()
{
    QString title = m_title;
    if (m_changesMade)
        title.prepend(QChar(0x2022));
    if (!m_topicLockedBy.isEmpty())
        title += QStringLiteral(" - READ-ONLY (%1)").arg(m_topicLockedBy);
    QWidget::setWindowTitle(title);
    if (m_dialogHelper)
        m_dialogHelper->setWindowTitle(title);
}

void OrvDialog::translate(const QString& title)
{
    const bool wasUnchangeable = m_unchangeableDialog;
    m_unchangeableDialog = true;
    setWindowTitle(title);
    m_unchangeableDialog = wasUnchangeable;

    // The box re-reads its own texts on a language change; the page's Cancel
    // is the page's to renew.
    if (m_closeMeansCancel)
        m_buttonBox->setText(Close, tr("Cancel"));

    if (QPushButton* readOnly = m_buttonBox->getButton(ReadOnly)) {
        connect(readOnly, &QPushButton::clicked, this, &OrvDialog::onReadOnlyButtonClicked, Qt::UniqueConnection);
        const bool visible = m_unchangeableDialog && !m_topicLockedBy.isEmpty();
        m_buttonBox->setButtonVisible(ReadOnly, visible);
        readOnly->setToolTip(visible ? tr("Locked by: %1").arg(m_topicLockedBy) : QString());
    }
}

OrvMessageDialog::Button OrvDialog::askApplyDiscardCancel()
{
    return OrvMessageDialog::askApplyDiscardCancel(this);
}

// --- apply, ok, close ----------------------------------------------------------

bool OrvDialog::_apply()
{
    // Another party holds the topic: nothing of this page may be applied, whichever
    // way the request comes (a button enabled before the lock, a shortcut, a caller).
    if (!m_topicLockedBy.isEmpty()) {
        m_logger.warn(logPrefix("_apply") + QStringLiteral(" refused: topic locked by %1").arg(m_topicLockedBy));
        return false;
    }
    const QPointer<OrvDialog> guard(this);
    // The requirements tell the user themselves what is missing.
    const bool complete = m_uiRequirements->checkRequirements(this);
    if (!guard || !complete)
        return false;
    if (!apply() || !guard)
        return false;
    resetChanges();
    return true;
}

void OrvDialog::slotApply()
{
    _apply();
}

void OrvDialog::slotOkay()
{
    const QPointer<OrvDialog> guard(this);
    if (_apply() && guard)
        _close();
}

void OrvDialog::slotClose()
{
    if (!m_changesMade || m_unchangeableDialog) {
        _close();
        return;
    }
    const QPointer<OrvDialog> guard(this);
    const OrvMessageDialog::Button answer = askApplyDiscardCancel();
    if (!guard)
        return;
    if (answer == OrvMessageDialog::Apply)
        slotOkay();
    else if (answer == OrvMessageDialog::Discard)
        _discard();
}

void OrvDialog::_discard()
{
    const QPointer<OrvDialog> guard(this);
    dialogCanceled();
    if (guard)
        _close();
}

void OrvDialog::_close()
{
    const QPointer<OrvDialog> guard(this);
    resetChanges();
    aboutToClose();
    if (guard && m_dialogHelper)
        m_dialogHelper->close();
}

void OrvDialog::slotHide()
{
    _hide();
}

void OrvDialog::_hide()
{
    if (m_dialogHelper)
        Q_EMIT signalHide(m_dialogHelper.data());
}

// --- topic lock ----------------------------------------------------------------

QString OrvDialog::logPrefix(const char* operation) const
{
    return QLatin1String("OrvDialog::") + QLatin1String(operation);
}

void OrvDialog::initTopicLockHandler(const QString& topicName, int entityId)
{
    m_topicInfo.setTopicName(topicName);
    m_topicInfo.setEntity(entityId);
    m_topicInfo.setValid();
}

void OrvDialog::tryLockTopic()
{
    if (m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("tryLockTopic") + QLatin1String(" START"));
    if (!m_topicInfo.isValid())
        return;
    if (m_topicInfo.isLocked()) {
        if (m_logger.isWarnEnabled())
            m_logger.warn(logPrefix("tryLockTopic")
                          + QLatin1String(" tried to lock with an already locked topic info, return"));
        return;
    }
    if (m_noLockTopic)
        return;
    const bool connected = isSignalConnected(QMetaMethod::fromSignal(&OrvDialog::signalLockTopic));
    if (m_logger.isDebugEnabled()) {
        m_logger.debug(logPrefix("tryLockTopic") + QLatin1String(" signalLockTopic(): ")
                       + QLatin1String(", TopicName =") + m_topicInfo.topicName() + QLatin1String(", entity =")
                       + QString::number(m_topicInfo.entityId()) + QLatin1String(", signalLockTopic isConnected=")
                       + (connected ? QLatin1String("true") : QLatin1String("false")));
    }
    if (connected) {
        const QPointer<OrvDialog> guard(this);
        // The handler may answer at once (slotLock/slotUnlock) or even close the page.
        Q_EMIT signalLockTopic(m_topicInfo);
        if (!guard)
            return;
        m_topicInfo.setLocked(true);
    }
    if (m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("tryLockTopic") + QLatin1String(" END"));
}

void OrvDialog::tryLockTopicNew(const QString& topicName, int entityId)
{
    if (m_logger.isTraceEnabled()) {
        m_logger.trace(logPrefix("tryLockTopicNew") + QLatin1String(" START") + QLatin1String(", topicName='")
                       + topicName + QLatin1String("'") + QLatin1String(", entityId=") + QString::number(entityId));
    }
    if (entityId != m_topicInfo.entityId()) {
        if (m_logger.isDebugEnabled()) {
            m_logger.debug(logPrefix("tryLockTopicNew") + QLatin1String(" topicName='") + topicName
                           + QLatin1String("' change from ") + QString::number(m_topicInfo.entityId())
                           + QLatin1String(" to ") + QString::number(entityId));
        }
        // A new entity is requested afresh.
        m_topicInfo.setLocked(false);
    }
    initTopicLockHandler(topicName, entityId);
    const QPointer<OrvDialog> guard(this);
    tryLockTopic();
    if (guard && m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("tryLockTopicNew") + QLatin1String(" END"));
}

void OrvDialog::tryLockTopicNew()
{
    if (m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("tryLockTopicNew") + QLatin1String(" START"));
    const QPointer<OrvDialog> guard(this);
    tryLockTopic();
    if (guard && m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("tryLockTopicNew") + QLatin1String(" END"));
}

void OrvDialog::triggerTopicLock()
{
    if (m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("triggerTopicLock") + QLatin1String(" START"));
    if (m_logger.isDebugEnabled())
        m_logger.debug(logPrefix("triggerTopicLock") + QLatin1String(" !!trigger!!"));
    const QPointer<OrvDialog> guard(this);
    tryLockTopic();
    if (guard && m_logger.isTraceEnabled())
        m_logger.trace(logPrefix("triggerTopicLock") + QLatin1String(" END"));
}

void OrvDialog::slotLock(const QString& lockedBy)
{
    setUnchangeable(true);
    m_topicLockedBy = lockedBy;
    lock();
    // Changes made before the lock stay on the page, but OK and Apply wait for it.
    setStandardButtonsEnabled(false);
    retranslate();
}

void OrvDialog::slotUnlock()
{
    // A CloseOnly page never becomes changeable, lock or no lock.
    setUnchangeable(m_closeOnly);
    m_topicLockedBy.clear();
    unlock();
    setStandardButtonsEnabled(m_changesMade && !m_unchangeableDialog);
    retranslate();
}

void OrvDialog::onReadOnlyButtonClicked()
{
    if (!m_topicLockedBy.isEmpty())
        OrvMessageDialog::showMessage(this, tr("Locked by: %1").arg(m_topicLockedBy));
}

void OrvDialog::lock()
{
    const auto widgets = findChildren<QWidget*>();
    for (QWidget* w : widgets) {
        const LockKind kind = lockKind(w);
        if (kind == LockKind::None)
            continue;
        if (isReadOnlyKind(kind)) {
            remember(w, kLastReadOnlyState, isReadOnly(w, kind));
            setReadOnly(w, kind, true);
        } else {
            // The widget's own flag, not the one inherited from a disabled parent.
            remember(w, kLastEnabledState, !w->testAttribute(Qt::WA_ForceDisabled));
            w->setEnabled(false);
        }
    }
}

void OrvDialog::unlock()
{
    const auto widgets = findChildren<QWidget*>();
    for (QWidget* w : widgets) {
        const LockKind kind = lockKind(w);
        bool state = false;
        if (isReadOnlyKind(kind)) {
            if (takeRemembered(w, kLastReadOnlyState, &state))
                setReadOnly(w, kind, state);
        } else if (kind == LockKind::Enable) {
            // Push buttons stay disabled: the page decides which come back.
            if (takeRemembered(w, kLastEnabledState, &state))
                w->setEnabled(state);
        }
    }
}

// --- overlay -------------------------------------------------------------------

void OrvDialog::setOverlay(QWidget* widget)
{
    unsetOverlay();
    if (!widget || !m_dialogHelper)
        return;

    OrvDialogHelper* frame = m_dialogHelper.data();
    auto* veil = new OverlayContainer(frame);
    veil->setGeometry(QRect(QPoint(0, 0), frame->size()));
    connect(frame, &OrvDialogHelper::signalSizeChanged, veil,
            [veil](const QSize& size) { veil->setGeometry(QRect(QPoint(0, 0), size)); });
    auto* layout = new QHBoxLayout(veil);
    widget->setAutoFillBackground(true);
    layout->addWidget(widget, 0, Qt::AlignCenter);
    widget->show();
    connect(widget, &QObject::destroyed, veil, &QObject::deleteLater);
    m_overlayWidget = widget;
    m_overlayContainer = veil;
    veil->show();
    veil->raise();
}

void OrvDialog::unsetOverlay()
{
    // The overlay widget goes back to its owner, detached and hidden.
    if (m_overlayWidget) {
        if (m_overlayContainer)
            disconnect(m_overlayWidget, nullptr, m_overlayContainer, nullptr);
        m_overlayWidget->hide();
        m_overlayWidget->setParent(nullptr);
    }
    m_overlayWidget = nullptr;
    if (m_overlayContainer) {
        m_overlayContainer->hide();
        m_overlayContainer->setParent(nullptr);
        m_overlayContainer->deleteLater();
    }
    m_overlayContainer = nullptr;
}

} // namespace OrvWidgets
