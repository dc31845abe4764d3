#include "orv_splitter.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QVariantAnimation>

namespace OrvWidgets {

namespace {

constexpr int kHandleWidth = 10;
constexpr int kFlashPassMs = 1000;
constexpr int kFlashPasses = 2;

QColor flashStartColor()
{
    return QColor(239, 87, 50, 255);
}

// Element-wise linear interpolation; the result has the length of the target list,
// entries missing from the start list grow from 0.
QVariant interpolateSizes(const QList<int>& from, const QList<int>& to, qreal progress)
{
    QList<int> result;
    result.reserve(to.size());
    for (qsizetype i = 0; i < to.size(); ++i) {
        const int start = from.value(i, 0);
        result.append(start + qRound((to.at(i) - start) * progress));
    }
    return QVariant::fromValue(result);
}

} // namespace

// ---------------------------------------------------------------------------
// OrvSplitter

OrvSplitter::OrvSplitter(QWidget* parent)
    : OrvSplitter(Qt::Horizontal, parent)
{
}

OrvSplitter::OrvSplitter(Qt::Orientation orientation, QWidget* parent)
    : QSplitter(orientation, parent)
{
    registerInterpolator();
    connect(this, &OrvSplitter::sizesChanged, this, &OrvSplitter::changeSizes);
}

OrvSplitter::~OrvSplitter() = default;

void OrvSplitter::registerInterpolator()
{
    static const bool registered = [] {
        qRegisterAnimationInterpolator<QList<int>>(interpolateSizes);
        return true;
    }();
    Q_UNUSED(registered)
}

QList<int> OrvSplitter::getSizes() const
{
    return sizes();
}

void OrvSplitter::changeSizes(const QList<int>& list)
{
    setSizes(list);
}

void OrvSplitter::collapseChild(int index)
{
    // The bound counts child objects (handles included), the index addresses a pane.
    const QObjectList& objects = children();
    if (index < 0 || index >= objects.size() || !objects.at(index))
        return;
    QList<int> current = sizes();
    if (index >= current.size())
        return;
    current[index] = 0;
    setSizes(current);
}

void OrvSplitter::animate(int index)
{
    if (auto* h = qobject_cast<OrvSplitterHandle*>(handle(index)))
        h->animate();
}

QSplitterHandle* OrvSplitter::createHandle()
{
    auto* h = new OrvSplitterHandle(orientation(), this);
    if (handleWidth() != kHandleWidth)
        setHandleWidth(kHandleWidth);
    return h;
}

// ---------------------------------------------------------------------------
// OrvSplitterHandle

OrvSplitterHandle::OrvSplitterHandle(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
    , m_endColor(palette().color(backgroundRole()))
    , m_currentColor(flashStartColor())
    , m_colorAnimation(new QPropertyAnimation(this, "splittercolor", this))
{
    m_colorAnimation->setDuration(kFlashPassMs);
    m_colorAnimation->setStartValue(flashStartColor());
    m_colorAnimation->setEndValue(m_endColor);
    m_colorAnimation->setLoopCount(kFlashPasses);
    connect(m_colorAnimation, &QPropertyAnimation::finished, this, &OrvSplitterHandle::onAnimationFinished);
}

OrvSplitterHandle::~OrvSplitterHandle()
{
    // Stop before the widget part goes away so no further frame writes the property.
    m_colorAnimation->stop();
}

void OrvSplitterHandle::animate()
{
    if (m_colorAnimation->state() == QAbstractAnimation::Running)
        return;
    m_currentColor = flashStartColor();
    m_animate = true;
    m_colorAnimation->start();
}

bool OrvSplitterHandle::isAnimating() const
{
    return m_animate;
}

QColor OrvSplitterHandle::splitterColor() const
{
    return m_currentColor;
}

void OrvSplitterHandle::setCurrentColor(const QColor& color)
{
    if (color == m_currentColor)
        return;
    m_currentColor = color;
    repaint();
}

void OrvSplitterHandle::onAnimationFinished()
{
    m_animate = false;
    m_currentColor = m_endColor;
    repaint();
}

void OrvSplitterHandle::paintEvent(QPaintEvent* event)
{
    if (!m_animate) {
        QSplitterHandle::paintEvent(event);
        return;
    }
    // Logical coordinates only: the painter maps them to device pixels on HiDPI screens.
    QLinearGradient gradient;
    if (orientation() == Qt::Vertical) {
        gradient.setStart(width() / 2, rect().top());
        gradient.setFinalStop(width() / 2, rect().bottom() / 2);
    } else {
        gradient.setStart(rect().left(), height() / 2);
        gradient.setFinalStop(height(), height() / 2);
    }
    gradient.setColorAt(0.0, m_currentColor);
    QPainter painter(this);
    painter.fillRect(event->rect(), gradient);
}

} // namespace OrvWidgets
