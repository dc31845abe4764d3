#pragma once

#include "orvwidgets_export.h"

#include <QLabel>

namespace OrvWidgets {

// Label that shortens its text with an ellipsis to fit its width. text() always
// returns the full text; only the painting is shortened.
class ORVWIDGETS_EXPORT OrvElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode ElideMode READ elideMode WRITE setElideMode)
public:
    explicit OrvElidedLabel(QWidget* parent = nullptr);
    explicit OrvElidedLabel(const QString& text, QWidget* parent = nullptr);
    ~OrvElidedLabel() override;

    void setElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode elideMode() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool elides() const;
    Qt::LayoutDirection textDirection() const;
    QRect textRect() const;
    void refreshCache();

    Qt::TextElideMode m_elideMode = Qt::ElideRight;
    QString m_cachedElidedText;
    QString m_cachedText;
    int m_cachedWidth = -1;
};

} // namespace OrvWidgets
