#include "orv_drag_icon.h"
#include "orv_logging_p.h"

#include <QAction>
#include <QButtonGroup>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

namespace OrvWidgets {
namespace {

const QString kDropHandlerFormat = QStringLiteral("DropHandlerPtr");
constexpr int kMarkEdge = 32;
constexpr int kDragPixmapEdge = 16;

// 32 x 32 copy of the icon (transparent when the icon has none) with the mark
// in red bold monospace in its top-left corner, at the given pixel ratio.
QPixmap markedPixmap(const QIcon& icon, const QString& mark, qreal ratio)
{
    QPixmap canvas(QSize(kMarkEdge, kMarkEdge) * ratio);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);

    QPainter painter(&canvas);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    const QPixmap base = icon.pixmap(QSize(kMarkEdge, kMarkEdge), ratio, QIcon::Normal, QIcon::Off);
    if (!base.isNull())
        painter.drawPixmap(QRectF(0, 0, kMarkEdge, kMarkEdge), base, QRectF(base.rect()));
    const QColor red(QStringLiteral("red"));
    painter.setBrush(red);
    painter.setPen(QPen(QBrush(red), 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    QFont font(QStringLiteral("Monospace"), 12);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(0, 0, 28, 28), mark, QTextOption());
    return canvas;
}

} // namespace

// ---------------------------------------------------------------------------
// OrvToolButton

OrvToolButton::OrvToolButton(QWidget* parent)
    : QToolButton(parent)
{
    setAutoFillBackground(false);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
}

void OrvToolButton::setDraggable(bool draggable)
{
    m_isDraggable = draggable;
}

void OrvToolButton::setSameWidgetDrop(bool allowed)
{
    m_sameWidgetDrop = allowed;
}

void OrvToolButton::addMimeData(const QString& format, const QByteArray& data)
{
    if (format.isEmpty()) {
        qCWarning(lcContainers) << "OrvToolButton::addMimeData: empty format refused";
        return;
    }
    m_mimeData.insert(format, data);
}

bool OrvToolButton::removeMimeData(const QString& format)
{
    return m_mimeData.remove(format) > 0;
}

void OrvToolButton::removeAllMimeData()
{
    m_mimeData.clear();
}

void OrvToolButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_startPos = event->position().toPoint();
    QToolButton::mousePressEvent(event);
}

void OrvToolButton::mouseReleaseEvent(QMouseEvent* event)
{
    QToolButton::mouseReleaseEvent(event);
}

void OrvToolButton::mouseMoveEvent(QMouseEvent* event)
{
    if (m_isDraggable && (event->buttons() & Qt::LeftButton)
        && (event->position().toPoint() - m_startPos).manhattanLength() > DragThreshold) {
        setDown(false);
        startDrag();
        return;
    }
    QToolButton::mouseMoveEvent(event);
}

void OrvToolButton::startDrag()
{
    OrvDragIcon* owner = nullptr;
    QString name;
    for (QWidget* w = this; w; w = w->parentWidget()) {
        if (name.isEmpty())
            name = w->objectName();
        if ((owner = qobject_cast<OrvDragIcon*>(w)))
            break;
    }

    auto* mime = new QMimeData;
    mime->setText(name);
    for (auto it = m_mimeData.cbegin(); it != m_mimeData.cend(); ++it)
        mime->setData(it.key(), it.value());
    if (owner && owner->dropHandlerKey() != 0)
        mime->setData(kDropHandlerFormat, QByteArray::number(owner->dropHandlerKey()));

    QPointer<OrvToolButton> guard(this);
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    const qreal ratio = devicePixelRatioF();
    const QSize edge(kDragPixmapEdge, kDragPixmapEdge);
    if (defaultAction() && owner && owner->showDragIcon())
        drag->setPixmap(defaultAction()->icon().pixmap(edge, ratio));
    else if (owner)
        drag->setPixmap(owner->icon().pixmap(edge, ratio));

    const Qt::DropAction result = drag->exec(Qt::CopyAction | Qt::MoveAction);
    if (!guard)
        return;
    drag->deleteLater();
    if (result == Qt::CopyAction || result == Qt::MoveAction)
        Q_EMIT dropSuc();
}

void OrvToolButton::dragEnterEvent(QDragEnterEvent* event)
{
    QWidget* source = qobject_cast<QWidget*>(event->source());
    if (source && (source != this || m_sameWidgetDrop)) {
        event->setDropAction(Qt::MoveAction);
        event->accept();
        return;
    }
    event->ignore();
}

void OrvToolButton::dropEvent(QDropEvent* event)
{
    Q_EMIT newDropEvent(event);
    QToolButton::dropEvent(event);
}

// ---------------------------------------------------------------------------
// OrvDragIcon

OrvDragIcon::OrvDragIcon(QWidget* parent)
    : QWidget(parent)
    , m_dragLabel(new QLabel(this))
{
    m_dragLabel->hide();
    initButton();
}

OrvDragIcon::~OrvDragIcon() = default;

OrvDragIcon* OrvDragIcon::enclosingDragIcon(QObject* object, const QObject* boundary)
{
    for (QObject* o = object; o && o != boundary; o = o->parent()) {
        if (auto* icon = qobject_cast<OrvDragIcon*>(o))
            return icon;
        if (o->isWidgetType() && static_cast<QWidget*>(o)->isWindow())
            break;
    }
    return nullptr;
}

void OrvDragIcon::ensureButton()
{
    if (!m_toolButton)
        initButton();
}

void OrvDragIcon::initButton()
{
    setMinimumSize(m_buttonSize, m_buttonSize);

    // State of the old button that is not part of the look and must survive.
    QPointer<OrvToolButton> old = m_toolButton;
    QPointer<QButtonGroup> group;
    int groupId = -1;
    const bool wasHidden = old && !old->isVisibleTo(this);
    if (old) {
        group = old->group();
        if (group) {
            groupId = group->id(old);
            group->removeButton(old);
        }
        old->disconnect(this);
        old->hide();
        // Deferred: this may run inside a signal of the old button.
        old->deleteLater();
    }
    m_toolButton = nullptr;
    delete m_lay;
    m_lay = nullptr;
    delete layout();

    m_toolButton = new OrvToolButton(this);
    m_toolButton->setDraggable(m_isDraggable);
    if (old) {
        m_toolButton->setDefaultAction(old->defaultAction());
        m_toolButton->setMenu(old->menu());
        m_toolButton->setPopupMode(old->popupMode());
        m_toolButton->setCheckable(old->isCheckable());
        m_toolButton->setChecked(old->isChecked());
        m_toolButton->setAcceptDrops(old->acceptDrops());
        m_toolButton->setSameWidgetDrop(old->sameWidgetDrop());
        m_toolButton->m_mimeData = old->m_mimeData;
        if (wasHidden)
            m_toolButton->setVisible(false);
        if (group)
            group->addButton(m_toolButton, groupId);
    }
    connect(m_toolButton, &OrvToolButton::clicked, this, &OrvDragIcon::clicked);
    connect(m_toolButton, &OrvToolButton::toggled, this, &OrvDragIcon::toggled);
    connect(m_toolButton, &OrvToolButton::newDropEvent, this, &OrvDragIcon::newDropEvent);
    connect(m_toolButton, &OrvToolButton::dropSuc, this, &OrvDragIcon::dropSuc);

    m_toolButton->setIcon(modifyIcon(m_icon));
    m_toolButton->setText(m_text);
    generateToolTip();
    m_toolButton->setIconSize(QSize(m_buttonSize, m_buttonSize));

    auto* lay = new QVBoxLayout(this);
    lay->setContentsMargins(0, 0, 0, 0);
    lay->setSpacing(0);
    lay->addWidget(m_toolButton);
    m_lay = lay;

    applyBaseLook();
    setStyleToButton();
}

void OrvDragIcon::applyBaseLook()
{
    m_toolButton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    if (m_forceFixedSize) {
        m_toolButton->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        setFixedSize(m_buttonSize, m_buttonSize);
    } else {
        m_toolButton->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
        setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
        setMinimumSize(m_buttonSize, m_buttonSize);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
}

void OrvDragIcon::setStyleToButton()
{
    if (!m_toolButton)
        return;
    switch (m_style) {
    case eAll:
        // Back to the look initButton() gives, also after another style.
        applyBaseLook();
        break;
    case eTextOnly:
    case eTextNextToIcon:
        setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
        m_toolButton->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
        // Undo an earlier fixed size without forcing a huge minimum.
        setMinimumSize(m_buttonSize, m_buttonSize);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        m_toolButton->setToolButtonStyle(m_style == eTextOnly ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextUnderIcon);
        if (m_lay)
            m_lay->setSizeConstraint(QLayout::SetDefaultConstraint);
        break;
    case eIconOnly:
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        m_toolButton->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        setFixedSize(m_buttonSize, m_buttonSize);
        m_toolButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
        break;
    }
    update();
}

void OrvDragIcon::generateToolTip()
{
    if (!m_toolButton)
        return;
    // Without a text there is nothing to generate: the button keeps what it shows.
    if (m_text.isEmpty())
        return;
    const QString tip = m_context.isEmpty() ? m_text : m_context + QStringLiteral(" - ") + m_text;
    m_toolButton->setText(m_text);
    m_toolButton->setToolTip(tip);
}

QIcon OrvDragIcon::modifyIcon(const QIcon& icon) const
{
    if (m_modification.isEmpty())
        return icon;
    // Painted per pixel ratio (standard, double and this screen's) so the mark
    // stays sharp on high-density screens and after moving between screens.
    QIcon result;
    result.addPixmap(markedPixmap(icon, m_modification, 1.0));
    result.addPixmap(markedPixmap(icon, m_modification, 2.0));
    const qreal ratio = devicePixelRatioF();
    if (!qFuzzyCompare(ratio, 1.0) && !qFuzzyCompare(ratio, 2.0))
        result.addPixmap(markedPixmap(icon, m_modification, ratio));
    return result;
}

void OrvDragIcon::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    if (m_toolButton)
        generateToolTip();
    else
        initButton();
}

void OrvDragIcon::setContext(const QString& context)
{
    if (context == m_context)
        return;
    m_context = context;
    generateToolTip();
}

void OrvDragIcon::setIdentifier(const QString& identifier)
{
    m_identifier = identifier;
}

void OrvDragIcon::setModification(const QString& modification)
{
    if (modification == m_modification)
        return;
    m_modification = modification;
    if (m_toolButton)
        m_toolButton->setIcon(modifyIcon(m_icon));
    else
        initButton();
}

void OrvDragIcon::removeModification()
{
    setModification(QString());
}

void OrvDragIcon::setIcon(const QIcon& icon)
{
    m_icon = icon;
    if (m_toolButton)
        m_toolButton->setIcon(modifyIcon(m_icon));
    else
        initButton();
}

void OrvDragIcon::setMenu(QMenu* menu)
{
    ensureButton();
    m_toolButton->setMenu(menu);
}

QMenu* OrvDragIcon::menu() const
{
    return m_toolButton ? m_toolButton->menu() : nullptr;
}

void OrvDragIcon::setCheckable(bool checkable)
{
    ensureButton();
    m_toolButton->setCheckable(checkable);
}

bool OrvDragIcon::isCheckable() const
{
    return m_toolButton && m_toolButton->isCheckable();
}

void OrvDragIcon::setChecked(bool checked)
{
    ensureButton();
    m_toolButton->setChecked(checked);
}

bool OrvDragIcon::isChecked() const
{
    return m_toolButton && m_toolButton->isChecked();
}

void OrvDragIcon::setDraggable(bool draggable)
{
    m_isDraggable = draggable;
    if (m_toolButton)
        m_toolButton->setDraggable(draggable);
}

void OrvDragIcon::setShowDragIcon(bool show)
{
    m_showDragIcon = show;
}

void OrvDragIcon::setSameWidgetDrop(bool allowed)
{
    ensureButton();
    m_toolButton->setSameWidgetDrop(allowed);
}

bool OrvDragIcon::sameWidgetDrop() const
{
    return m_toolButton && m_toolButton->sameWidgetDrop();
}

void OrvDragIcon::setButtonStyle(ButtonStyle style)
{
    if (style < eAll || style > eTextNextToIcon) {
        qCWarning(lcContainers) << "OrvDragIcon::setButtonStyle: invalid style" << int(style);
        return;
    }
    if (style == m_style)
        return;
    m_style = style;
    setStyleToButton();
}

void OrvDragIcon::setIconSize(ButtonSize size)
{
    if (int(size) <= 0) {
        qCWarning(lcContainers) << "OrvDragIcon::setIconSize: invalid size" << int(size);
        return;
    }
    if (size == m_buttonSize)
        return;
    m_buttonSize = size;
    if (m_toolButton)
        m_toolButton->setIconSize(QSize(size, size));
    else
        initButton();
}

void OrvDragIcon::setButtonVisible(bool visible)
{
    ensureButton();
    m_toolButton->setVisible(visible);
}

bool OrvDragIcon::buttonVisible() const
{
    return m_toolButton && m_toolButton->isVisibleTo(this);
}

void OrvDragIcon::setForceFixedSize(bool fixed)
{
    if (fixed == m_forceFixedSize)
        return;
    m_forceFixedSize = fixed;
    initButton();
}

void OrvDragIcon::setDropHandlerKey(qulonglong key)
{
    m_dropHandlerKey = key;
}

void OrvDragIcon::setButtonStyleDesigner(Designer::ButtonStyle style)
{
    setButtonStyle(ButtonStyle(int(style)));
}

Designer::ButtonStyle OrvDragIcon::buttonStyleDesigner() const
{
    return Designer::ButtonStyle(int(m_style));
}

void OrvDragIcon::setIconSizeDesigner(Designer::ButtonSize size)
{
    setIconSize(ButtonSize(int(size)));
}

Designer::ButtonSize OrvDragIcon::iconSizeDesigner() const
{
    return Designer::ButtonSize(int(m_buttonSize));
}

bool OrvDragIcon::setAction(QAction* action)
{
    if (!action) {
        qCWarning(lcContainers) << "OrvDragIcon::setAction: cannot set null-action!";
        return false;
    }
    ensureButton();
    if (!action->icon().isNull())
        m_icon = action->icon();
    m_toolButton->setDefaultAction(action);
    setObjectName(action->objectName());
    return true;
}

void OrvDragIcon::addToButtonGroup(QButtonGroup* group, int id)
{
    if (!group) {
        qCWarning(lcContainers) << "OrvDragIcon::addToButtonGroup: cannot join null-group!";
        return;
    }
    ensureButton();
    group->addButton(m_toolButton, id);
}

void OrvDragIcon::addMimeData(const QString& format, const QByteArray& data)
{
    ensureButton();
    m_toolButton->addMimeData(format, data);
}

bool OrvDragIcon::removeMimeData(const QString& format)
{
    ensureButton();
    return m_toolButton->removeMimeData(format);
}

void OrvDragIcon::removeAllMimeData()
{
    ensureButton();
    m_toolButton->removeAllMimeData();
}

void OrvDragIcon::setAcceptDrops(bool accept)
{
    ensureButton();
    m_toolButton->setAcceptDrops(accept);
}

void OrvDragIcon::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_toolButton)
        m_toolButton->dragEnterEvent(event);
    else
        event->ignore();
}

void OrvDragIcon::dropEvent(QDropEvent* event)
{
    QWidget::dropEvent(event);
}

void OrvDragIcon::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        Q_EMIT enabledChanged(isEnabled());
}

} // namespace OrvWidgets
