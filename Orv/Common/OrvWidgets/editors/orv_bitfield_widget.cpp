#include "orv_bitfield_widget.h"

#include <QMouseEvent>
#include <QPainter>

namespace OrvWidgets {

namespace {
constexpr int kBits = 8;
}

OrvBitfieldWidget::OrvBitfieldWidget(QWidget* parent, quint8 value)
    : QWidget(parent)
    , m_value(value)
{
    setObjectName(QStringLiteral("OrvBitfieldWidget"));
}

OrvBitfieldWidget::~OrvBitfieldWidget() = default;

void OrvBitfieldWidget::setValue(quint8 value)
{
    if (value == m_value)
        return;
    m_value = value;
    update();
    emit valueChanged(m_value);
}

void OrvBitfieldWidget::setEditable(bool editable)
{
    if (editable == m_isEditable)
        return;
    m_isEditable = editable;
    emit isEditableChanged(m_isEditable);
}

QSize OrvBitfieldWidget::sizeHint() const
{
    const int cell = fontMetrics().height() * 3 / 2;
    return QSize(8 * cell, m_hasCaption ? 2 * cell : cell);
}

QSize OrvBitfieldWidget::minimumSizeHint() const
{
    const int cell = fontMetrics().height();
    return QSize(8 * cell, m_hasCaption ? 2 * cell : cell);
}

void OrvBitfieldWidget::setHasCaption(bool hasCaption)
{
    if (hasCaption == m_hasCaption)
        return;
    m_hasCaption = hasCaption;
    updateGeometry();
    update();
    emit hasCaptionChanged(m_hasCaption);
}

void OrvBitfieldWidget::setOnColor(const QColor& color)
{
    if (color == m_onColor)
        return;
    m_onColor = color;
    update();
}

void OrvBitfieldWidget::setOffColor(const QColor& color)
{
    if (color == m_offColor)
        return;
    m_offColor = color;
    update();
}

void OrvBitfieldWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Qt::SolidLine);

    // Logical coordinates in floating point: the painter maps them to device pixels,
    // so cells stay even at any device pixel ratio.
    const qreal w = width();
    const qreal h = height();
    const qreal cell = w / kBits;
    if (m_hasCaption) {
        const qreal pointSize = (h / 2 > cell) ? cell : h / 2;
        if (pointSize > 0) {
            QFont font = painter.font();
            font.setPointSizeF(pointSize);
            painter.setFont(font);
        }
    }
    for (int i = 0; i < kBits; ++i) {
        const QRectF rect(cell * i, 0, cell - 1, h - 1);
        const bool set = m_value & (1u << (kBits - 1 - i));
        painter.fillRect(rect, set ? m_onColor : m_offColor);
        if (m_hasCaption) {
            painter.setPen(set ? m_offColor : m_onColor);
            painter.drawText(rect, Qt::AlignCenter, set ? QStringLiteral("1") : QStringLiteral("0"));
        }
        painter.setPen(Qt::gray);
        painter.drawRect(rect);
    }
}

void OrvBitfieldWidget::mousePressEvent(QMouseEvent* event)
{
    if (!m_isEditable) {
        QWidget::mousePressEvent(event);
        return;
    }
    // Presses on a cell boundary or right of the last whole cell toggle nothing.
    const int cell = width() / kBits;
    const qreal x = event->position().x();
    for (int i = 0; i < kBits; ++i) {
        if (cell * i < x && x < cell * (i + 1)) {
            m_value ^= quint8(1u << (kBits - 1 - i));
            emit valueChanged(m_value);
            break;
        }
    }
    update();
}

} // namespace OrvWidgets
