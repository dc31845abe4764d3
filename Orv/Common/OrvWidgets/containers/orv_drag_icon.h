#pragma once

#include "orv_types.h"
#include "orvwidgets_export.h"

#include <QByteArray>
#include <QIcon>
#include <QMap>
#include <QPoint>
#include <QString>
#include <QToolButton>
#include <QWidget>

class QAction;
class QBoxLayout;
class QButtonGroup;
class QDragEnterEvent;
class QDropEvent;
class QLabel;
class QMenu;

namespace OrvWidgets {

class OrvDragIcon;

// Tool button that can be dragged with the left mouse button. A drag carries the
// object name of the button (or of the first named parent up to the enclosing
// drag icon) as text, every registered format/payload pair, and the drag icon's
// drop handler key under "DropHandlerPtr".
class ORVWIDGETS_EXPORT OrvToolButton : public QToolButton
{
    Q_OBJECT
public:
    explicit OrvToolButton(QWidget* parent = nullptr);

    void setDraggable(bool draggable);
    bool isDraggable() const { return m_isDraggable; }

    // Whether a drag started here may be dropped onto this very button.
    void setSameWidgetDrop(bool allowed);
    bool sameWidgetDrop() const { return m_sameWidgetDrop; }

    // Format/payload pairs sent with every drag.
    void addMimeData(const QString& format, const QByteArray& data);
    bool removeMimeData(const QString& format);
    void removeAllMimeData();
    const QMap<QString, QByteArray>& registeredMimeData() const { return m_mimeData; }

    // Moves of more than this Manhattan distance (logical pixels) with the left
    // button held start a drag instead of a click.
    static constexpr int DragThreshold = 4;

Q_SIGNALS:
    void newDropEvent(QDropEvent* event);
    // The drag ended in a copy or a move: the entry now lives at the drop place.
    void dropSuc();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    friend class OrvDragIcon;
    void startDrag();

    bool m_sameWidgetDrop = false;
    bool m_isDraggable = true;
    QPoint m_startPos;
    QMap<QString, QByteArray> m_mimeData;
};

// Menu button of one plug-in action: an icon and a text in one of four styles,
// an optional red modification mark on the icon, and a tool tip built from the
// context and the text. The inner OrvToolButton does the clicking and dragging;
// its signals are relayed. Rebuilding the look (initButton) keeps the button's
// state (checkable/checked, menu, action, MIME data, group, visibility).
class ORVWIDGETS_EXPORT OrvDragIcon : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString context READ context WRITE setContext)
    Q_PROPERTY(QString identifier READ identifier WRITE setIdentifier)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(OrvWidgets::Designer::ButtonSize eButtonSize READ iconSizeDesigner WRITE setIconSizeDesigner)
    Q_PROPERTY(bool eForceFixedSize READ isForceFixedSize WRITE setForceFixedSize)
    Q_PROPERTY(bool isCheckable READ isCheckable WRITE setCheckable)
    Q_PROPERTY(bool isChecked READ isChecked WRITE setChecked NOTIFY toggled)
    Q_PROPERTY(bool showDragIcon READ showDragIcon WRITE setShowDragIcon)
    Q_PROPERTY(bool isDraggable READ isDraggable WRITE setDraggable)
    Q_PROPERTY(OrvWidgets::Designer::ButtonStyle eStyle READ buttonStyleDesigner WRITE setButtonStyleDesigner)
public:
    explicit OrvDragIcon(QWidget* parent = nullptr);
    ~OrvDragIcon() override;

    void setText(const QString& text);
    QString text() const { return m_text; }
    void setContext(const QString& context);
    QString context() const { return m_context; }
    void setIdentifier(const QString& identifier);
    QString identifier() const { return m_identifier; }

    // Short text drawn in red over the icon's top-left corner (e.g. "F5").
    void setModification(const QString& modification);
    QString modification() const { return m_modification; }
    void removeModification();

    // The icon as given, without the modification mark.
    void setIcon(const QIcon& icon);
    QIcon icon() const { return m_icon; }

    void setMenu(QMenu* menu);
    QMenu* menu() const;
    void setCheckable(bool checkable);
    bool isCheckable() const;
    void setChecked(bool checked);
    bool isChecked() const;
    void setDraggable(bool draggable);
    bool isDraggable() const { return m_isDraggable; }
    void setShowDragIcon(bool show);
    bool showDragIcon() const { return m_showDragIcon; }
    void setSameWidgetDrop(bool allowed);
    bool sameWidgetDrop() const;
    void setButtonStyle(ButtonStyle style);
    ButtonStyle buttonStyle() const { return m_style; }
    void setIconSize(ButtonSize size);
    ButtonSize iconSize() const { return m_buttonSize; }
    void setButtonVisible(bool visible);
    bool buttonVisible() const;
    void setForceFixedSize(bool fixed);
    bool isForceFixedSize() const { return m_forceFixedSize; }
    // Opaque number that travels with a drag ("DropHandlerPtr"); 0 sends none.
    void setDropHandlerKey(qulonglong key);
    qulonglong dropHandlerKey() const { return m_dropHandlerKey; }

    void setButtonStyleDesigner(Designer::ButtonStyle style);
    Designer::ButtonStyle buttonStyleDesigner() const;
    void setIconSizeDesigner(Designer::ButtonSize size);
    Designer::ButtonSize iconSizeDesigner() const;

    // Takes icon (when not null) and object name from the action and makes it
    // the button's default action. A null action is refused.
    bool setAction(QAction* action);
    void addToButtonGroup(QButtonGroup* group, int id);
    void addMimeData(const QString& format, const QByteArray& data);
    bool removeMimeData(const QString& format);
    void removeAllMimeData();
    void setAcceptDrops(bool accept);

    // The inner button (recreated whenever the look is rebuilt).
    OrvToolButton* toolButton() const { return m_toolButton; }

    // The drag icon that is `object` or holds it, walking up the parents and
    // stopping before `boundary`; null if there is none.
    static OrvDragIcon* enclosingDragIcon(QObject* object, const QObject* boundary = nullptr);

Q_SIGNALS:
    void clicked();
    void toggled(bool checked);
    void newDropEvent(QDropEvent* event);
    void dropSuc();
    void enabledChanged(bool enabled);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void initButton();
    void ensureButton();
    void applyBaseLook();
    void setStyleToButton();
    void generateToolTip();
    QIcon modifyIcon(const QIcon& icon) const;

    QBoxLayout* m_lay = nullptr;
    OrvToolButton* m_toolButton = nullptr;
    QIcon m_icon;
    QLabel* m_dragLabel = nullptr;
    QString m_text;
    QString m_identifier;
    QString m_modification;
    ButtonStyle m_style = eAll;
    bool m_forceFixedSize = false;
    bool m_isDraggable = true;
    qulonglong m_dropHandlerKey = 0;
    ButtonSize m_buttonSize = eDefault;
    bool m_showDragIcon = true;
    QString m_context;
};

} // namespace OrvWidgets
