#include "orv_elided_label.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>

namespace OrvWidgets {

OrvElidedLabel::OrvElidedLabel(QWidget* parent)
    : QLabel(parent)
{
}

OrvElidedLabel::OrvElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}

OrvElidedLabel::~OrvElidedLabel() = default;

void OrvElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    if (mode == m_elideMode)
        return;
    m_elideMode = mode;
    m_cachedText.clear();
    update();
}

Qt::TextElideMode OrvElidedLabel::elideMode() const
{
    return m_elideMode;
}

// Only a single line of plain, non-selectable text is shortened; pictures, rich
// text, wrapped and selectable text keep the label's own painting.
bool OrvElidedLabel::elides() const
{
    if (m_elideMode == Qt::ElideNone || wordWrap() || !pixmap().isNull())
        return false;
#if QT_CONFIG(movie)
    if (movie())
        return false;
#endif
    if (textInteractionFlags() & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::TextEditable))
        return false;
    const Qt::TextFormat format = textFormat();
    return format == Qt::PlainText || (format == Qt::AutoText && !Qt::mightBeRichText(text()));
}

Qt::LayoutDirection OrvElidedLabel::textDirection() const
{
    return text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

// The rectangle the label lays its text out in: contents minus margin and indent.
QRect OrvElidedLabel::textRect() const
{
    QRect r = contentsRect();
    const int m = margin();
    r.adjust(m, m, -m, -m);
    int ind = indent();
    if (ind < 0 && frameWidth())
        ind = fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - m;
    if (ind > 0) {
        const Qt::Alignment align = QStyle::visualAlignment(textDirection(), alignment());
        if (align & Qt::AlignLeft)
            r.setLeft(r.left() + ind);
        if (align & Qt::AlignRight)
            r.setRight(r.right() - ind);
        if (align & Qt::AlignTop)
            r.setTop(r.top() + ind);
        if (align & Qt::AlignBottom)
            r.setBottom(r.bottom() - ind);
    }
    return r;
}

void OrvElidedLabel::refreshCache()
{
    const QString full = text();
    const int width = textRect().width();
    if (full == m_cachedText && width == m_cachedWidth)
        return;
    m_cachedText = full;
    m_cachedWidth = width;
    const QFontMetrics fm = fontMetrics();
    m_cachedElidedText = fm.elidedText(full, m_elideMode, width, Qt::TextShowMnemonic);
    if (!full.isEmpty()) {
        // Never narrower than one character and the ellipsis.
        const int firstLength = (full.size() > 1 && full.at(0).isHighSurrogate()) ? 2 : 1;
        setMinimumWidth(fm.horizontalAdvance(full.left(firstLength) + QStringLiteral("...")) + 1);
    }
}

void OrvElidedLabel::paintEvent(QPaintEvent* event)
{
    if (!elides()) {
        QLabel::paintEvent(event);
        return;
    }
    refreshCache();
    // Draws like the label itself does for plain text, with the shortened text.
    // Swapping the label's text for the paint would re-run its layout on every paint.
    QPainter painter(this);
    drawFrame(&painter);
    QStyleOption option;
    option.initFrom(this);
    const Qt::LayoutDirection direction = textDirection();
    int flags = int(QStyle::visualAlignment(direction, alignment()))
        | (direction == Qt::LeftToRight ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft);
    if (buddy() && text().contains(QLatin1Char('&'))) {
        flags |= Qt::TextShowMnemonic;
        if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this))
            flags |= Qt::TextHideMnemonic;
    }
    style()->drawItemText(&painter, textRect(), flags, option.palette, isEnabled(), m_cachedElidedText,
                          foregroundRole());
}

void OrvElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    m_cachedText.clear();
}

void OrvElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_cachedText.clear();
}

} // namespace OrvWidgets
