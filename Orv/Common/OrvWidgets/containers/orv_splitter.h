#pragma once

#include "orvwidgets_export.h"

#include <QColor>
#include <QList>
#include <QSplitter>

class QPropertyAnimation;

namespace OrvWidgets {

/// Splitter of the application shell: wide handles that can flash, collapsing a
/// pane by index, and a sizes property that property animations can drive.
class ORVWIDGETS_EXPORT OrvSplitter : public QSplitter
{
    Q_OBJECT
    Q_PROPERTY(QList<int> sizes READ getSizes WRITE changeSizes)
public:
    /*! A horizontal splitter. */
    explicit OrvSplitter(QWidget* parent = nullptr);
    /*! A splitter laid out in \a orientation. */
    explicit OrvSplitter(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~OrvSplitter() override;

    /*! The pane sizes in pixels, as QSplitter::sizes(). */
    QList<int> getSizes() const;

    /// Lets QPropertyAnimation interpolate QList<int> values (the "sizes" property).
    /// Safe to call any number of times; every splitter calls it on construction.
    static void registerInterpolator();

Q_SIGNALS:
    /// Emitted by the owner to keep splitters in step; connected to this splitter's
    /// own changeSizes(), and to other splitters' changeSizes() by the owner.
    void sizesChanged(const QList<int>& newSizes);

public Q_SLOTS:
    /*! Gives the panes the sizes in \a list (pixels), as QSplitter::setSizes(). */
    void changeSizes(const QList<int>& list);
    /// Gives the pane at index the size 0.
    void collapseChild(int index);
    /// Flashes the handle at index to draw the user's eye to the pane after it.
    void animate(int index);

protected:
    /*! \reimp */
    QSplitterHandle* createHandle() override;
};

/*! The wide handle of an OrvSplitter, which can flash to draw the eye to a pane. */
class ORVWIDGETS_EXPORT OrvSplitterHandle : public QSplitterHandle
{
    Q_OBJECT
    Q_PROPERTY(QColor splittercolor READ splitterColor WRITE setCurrentColor)
public:
    /*! A handle of \a parent laid out in \a orientation. */
    OrvSplitterHandle(Qt::Orientation orientation, QSplitter* parent);
    ~OrvSplitterHandle() override;

    /// Starts a flash of two fading passes; ignored while one is running.
    void animate();
    /*! True while a flash runs. */
    bool isAnimating() const;

    /*! The colour the handle is painted in now (animated during a flash). */
    QColor splitterColor() const;
    /*! Paints the handle in \a color; driven by the flash animation. */
    void setCurrentColor(const QColor& color);

protected:
    /*! \reimp */
    void paintEvent(QPaintEvent* event) override;

private:
    void onAnimationFinished();

    bool m_animate = false;
    QColor m_endColor;
    QColor m_currentColor;
    QPropertyAnimation* m_colorAnimation = nullptr;
};

} // namespace OrvWidgets
