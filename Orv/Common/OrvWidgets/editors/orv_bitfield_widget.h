#pragma once

#include "orvwidgets_export.h"

#include <QColor>
#include <QWidget>

namespace OrvWidgets {

// An 8-bit value as a row of eight cells, most significant bit on the left. When
// editable, a click on a cell toggles its bit.
class ORVWIDGETS_EXPORT OrvBitfieldWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(quint8 value READ value WRITE setValue NOTIFY valueChanged)
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable NOTIFY isEditableChanged)
    Q_PROPERTY(bool hasCaption READ hasCaption WRITE setHasCaption NOTIFY hasCaptionChanged)
    Q_PROPERTY(QColor onColor READ onColor WRITE setOnColor)
    Q_PROPERTY(QColor offColor READ offColor WRITE setOffColor)
public:
    explicit OrvBitfieldWidget(QWidget* parent = nullptr, quint8 value = 0);
    ~OrvBitfieldWidget() override;

    // Eight square cells, each a little taller than a line of text; the
    // captions take a second row.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    quint8 value() const { return m_value; }
    bool isEditable() const { return m_isEditable; }
    bool hasCaption() const { return m_hasCaption; }
    QColor onColor() const { return m_onColor; }
    QColor offColor() const { return m_offColor; }

public Q_SLOTS:
    void setValue(quint8 value);
    void setEditable(bool editable);
    void setHasCaption(bool hasCaption);
    void setOnColor(const QColor& color);
    void setOffColor(const QColor& color);

Q_SIGNALS:
    void valueChanged(quint8 newValue);
    void isEditableChanged(bool editable);
    void hasCaptionChanged(bool hasCaption);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    quint8 m_value = 0;
    bool m_isEditable = true;
    bool m_hasCaption = true;
    QColor m_onColor = Qt::black;
    QColor m_offColor = Qt::white;
};

} // namespace OrvWidgets
