#pragma once

#include "orvwidgets_export.h"

#include <QLabel>

namespace OrvWidgets {

/// Label that shortens its text with an ellipsis to fit its width. text() always
/// returns the full text; only the painting is shortened.
class ORVWIDGETS_EXPORT OrvElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(Qt::TextElideMode ElideMode READ elideMode WRITE setElideMode)
public:
    /*! An empty label that elides on the right. */
    explicit OrvElidedLabel(QWidget* parent = nullptr);
    /*! A label showing \a text, elided on the right where needed. */
    explicit OrvElidedLabel(const QString& text, QWidget* parent = nullptr);
    ~OrvElidedLabel() override;

    /*! Where the ellipsis goes: Qt::ElideLeft, ElideMiddle, ElideRight or ElideNone. */
    void setElideMode(Qt::TextElideMode mode);
    /*! Where the ellipsis goes; Qt::ElideRight by default. */
    Qt::TextElideMode elideMode() const;

protected:
    /*! \reimp */
    void paintEvent(QPaintEvent* event) override;
    /*! \reimp */
    void resizeEvent(QResizeEvent* event) override;
    /*! \reimp */
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
